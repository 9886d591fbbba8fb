<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>AUDIO</name>
    <message>
        <source>APPLICATION_NAME</source>
        <translation>Tamrex Diagnostics</translation>
    </message>
    <message>
        <source>QUICK_AUDIO</source>
        <translation>Quick Audio Diagnostic</translation>
    </message>
    <message>
        <source>QUICK_AUDIO_TESTS_TOOLTIP</source>
        <translation>Checks the playback and the recording of sound.</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST</source>
        <translation>Audio Playback Test</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_DESCRIPTION</source>
        <translation>Plays spoken digits through the selected device; you type what you hear.</translation>
    </message>
    <message>
        <source>MICROPHONE_INTERACTIVE_TEST</source>
        <translation>Microphone Interactive Test</translation>
    </message>
    <message>
        <source>MICROPHONE_INTERACTIVE_TEST_DESCRIPTION</source>
        <translation>Records with the microphone you choose and plays it back; you judge the sound.</translation>
    </message>
    <message>
        <source>UDI</source>
        <translation>Device name</translation>
    </message>
    <message>
        <source>NUMBER_OF_CHANNELS</source>
        <translation>Number of channels</translation>
    </message>
    <message>
        <source>SAMPLE_RATE</source>
        <translation>Sample rate</translation>
    </message>
    <message>
        <source>DRIVER_NAME</source>
        <translation>Audio system</translation>
    </message>
    <message>
        <source>DRIVER_VERSION</source>
        <translation>Driver version</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE</source>
        <translation>The digits entered do not match the digits played.</translation>
    </message>
    <message>
        <source>USER_DID_NOT_REPORT_SOUND</source>
        <translation>The user reported that no sound was heard.</translation>
    </message>
    <message>
        <source>AUDIO_DEVICE_COULD_NOT_BE_ACCESSED</source>
        <translation>The audio device could not be accessed.</translation>
    </message>
    <message>
        <source>TEST_CANCELED_BECAUSE_OF_AN_EVENT_THAT_COULD_COMPROMISE_THE_TEST_OUTCOME_HAPPENED</source>
        <translation>The test was canceled because an event occurred that could compromise its result.</translation>
    </message>
    <message>
        <source>THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_COULD_NOT_BE_IDENTIFIED_OR_HAS_BEEN_DISCONNECTED</source>
        <translation>This test cannot be performed because the device could not be identified or has been disconnected.</translation>
    </message>
    <message>
        <source>THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_CAN_NOT_RECEIVE_INPUT</source>
        <translation>This test cannot be performed because no user input can be received.</translation>
    </message>
    <message>
        <source>AN_INTERNAL_ERROR_OCCURRED._|THIS_DOES_NOT_INDICATE_A_FAILURE._|PLEASE_TRY_AGAIN.</source>
        <translation>An internal error occurred.|This does not indicate a failure.|Please try again.</translation>
    </message>
    <message>
        <source>AN_INTERNAL_ERROR_OCCURRED._</source>
        <translation>An internal error occurred.</translation>
    </message>
    <message>
        <source>THIS_DOES_NOT_INDICATE_A_FAILURE._</source>
        <translation>This does not indicate a failure.</translation>
    </message>
    <message>
        <source>PLEASE_TRY_AGAIN.</source>
        <translation>Please try again.</translation>
    </message>
    <message>
        <source>NO_INPUT_DEVICE</source>
        <translation>No audio input device was found.</translation>
    </message>
    <message>
        <source>POSSIBLE_DEFECTIVE_COMPONENTS</source>
        <translation>Possibly defective components</translation>
    </message>
    <message>
        <source>SPEAKERS</source>
        <translation>Speakers</translation>
    </message>
    <message>
        <source>MICROPHONE</source>
        <translation>Microphone</translation>
    </message>
    <message>
        <source>CAMERA_MICROPHONE_MODULE</source>
        <translation>Camera and microphone module</translation>
    </message>
    <message>
        <source>kTkAdvancedTestInputTitle</source>
        <translation>Interactive Test</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_INSTRUCTIONS</source>
        <translation>Three spoken digits will be played; type what you hear. For this, every playback and recording volume of this computer is set to 100% and put back afterwards. If you are wearing headphones, take them off now.</translation>
    </message>
    <message>
        <source>DID_YOU_HEAR_THE_SAME_SOUND_YOU_RECORDED</source>
        <translation>Did you hear the same sound that you recorded?</translation>
    </message>
    <message>
        <source>FIRST_SEQUENCE</source>
        <translation>First sequence</translation>
    </message>
    <message>
        <source>SECOND_SEQUENCE</source>
        <translation>Second sequence</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_GENERAL_INSTRUCTIONS</source>
        <translation>Enter the three spoken digits in the order you hear them. You have two attempts.</translation>
    </message>
    <message>
        <source>SELECT_OR_TYPE_NUMBER</source>
        <translation>Click or type the digits you hear.</translation>
    </message>
    <message>
        <source>FAIL_BUTTON_TEXT</source>
        <translation>I heard nothing</translation>
    </message>
    <message>
        <source>CLICK_FAIL_IF_NO_SOUND_WAS_HEARD</source>
        <translation>If there is no sound, click “I heard nothing”.</translation>
    </message>
    <message>
        <source>FAIL_BUTTON_TOOLTP</source>
        <translation>End the test as failed: no sound</translation>
    </message>
    <message>
        <source>BACKSPACE_BUTTON_TOOLTP</source>
        <translation>Delete the last digit</translation>
    </message>
    <message>
        <source>PLAY_THE_SEQUENCE_AGAIN</source>
        <translation>Play the sequence again</translation>
    </message>
    <message>
        <source>SELECT_A_MICROPHONE_DEVICE</source>
        <translation>Select a microphone</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>NEXT</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>Record</translation>
    </message>
    <message>
        <source>PLAY</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>PRESS_RECORD_AND_SPEAK_ON_THE_MICROPHONE</source>
        <translation>Press “Record” and speak into the microphone.</translation>
    </message>
    <message>
        <source>PRESS_PLAY_AND_LISTEN_TO_THE_RECORDED_AUDIO</source>
        <translation>Press “Play” and listen to the recording.</translation>
    </message>
</context>
</TS>
