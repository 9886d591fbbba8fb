<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>HOST</name>
    <message>
        <source>DEVICES</source>
        <translation>Output devices</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>Device</translation>
    </message>
    <message>
        <source>REFRESH_DEVICES</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>REFRESH_DEVICES_HINT</source>
        <translation>Reads the list of output devices again (F5). The list also updates by itself when a device is connected or removed.</translation>
    </message>
    <message>
        <source>READING_DEVICES</source>
        <translation>Reading the output devices…</translation>
    </message>
    <message>
        <source>DEVICES_FOUND</source>
        <translation>Output devices found: %1</translation>
    </message>
    <message>
        <source>NO_DEVICES</source>
        <translation>No output device was found. Connect one: the list updates by itself.</translation>
    </message>
    <message>
        <source>SOUND_SERVER_SILENT</source>
        <translation>The sound server does not answer: the devices cannot be listed. Start it, then refresh the list.</translation>
    </message>
    <message>
        <source>DEVICE_STATE</source>
        <translation>At present</translation>
    </message>
    <message>
        <source>STATE_VOLUME</source>
        <translation>volume %1%</translation>
    </message>
    <message>
        <source>STATE_MUTED</source>
        <translation>muted</translation>
    </message>
    <message>
        <source>STATE_DEFAULT</source>
        <translation>default</translation>
    </message>
    <message>
        <source>STATE_VIRTUAL</source>
        <translation>virtual</translation>
    </message>
    <message>
        <source>PRECHECK_SOUND_SERVER_SILENT</source>
        <translation>The sound server does not answer: volume and mute could not be checked.</translation>
    </message>
    <message>
        <source>PRECHECK_DEVICE_MUTED</source>
        <translation>“%1” is muted. Nothing was changed: the test itself switches the sound on while it runs.</translation>
    </message>
    <message>
        <source>PRECHECK_DEVICE_AT_ZERO</source>
        <translation>The volume of “%1” is 0. Nothing was changed: the test itself raises it while it runs.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIPS_MISSING</source>
        <translation>The spoken digits for the language %1 are missing. The test cannot be run.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIP_DAMAGED</source>
        <translation>The sound file %1 is missing or is not the one that was supplied. The test cannot be run: the device would be blamed for it.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIPS_UNCHECKED</source>
        <translation>There is no list of the supplied sound files: they could not be checked.</translation>
    </message>
    <message>
        <source>PRECHECK_MICROPHONE_BLOCKED</source>
        <translation>The privacy settings of the system keep programs from the microphone: it would record only silence.</translation>
    </message>
    <message>
        <source>PRECHECK_SOURCE_MUTED</source>
        <translation>The capture source “%1” is muted. The test cannot be run: the device would be blamed for it.</translation>
    </message>
    <message>
        <source>PRECHECK_SOURCE_AT_ZERO</source>
        <translation>The volume of the capture source “%1” is 0. The test cannot be run: the device would be blamed for it.</translation>
    </message>
    <message>
        <source>REASON_STOPPED</source>
        <translation>The run was stopped.</translation>
    </message>
    <message>
        <source>REASON_TOOK_TOO_LONG</source>
        <translation>The run took longer than five minutes.</translation>
    </message>
    <message>
        <source>REASON_RUN_NOT_TAKEN</source>
        <translation>The run could not begin: another one is under way, or the device is gone.</translation>
    </message>
    <message>
        <source>REASON_HOST_BROKE_DOWN</source>
        <translation>The graphical program ended without a verdict, as it does when its display is lost.</translation>
    </message>
    <message>
        <source>REASON_HOST_HUNG</source>
        <translation>The graphical program did not come to an end.</translation>
    </message>
    <message>
        <source>REASON_HOST_NOT_STARTED</source>
        <translation>The graphical program cannot be started: %1</translation>
    </message>
    <message>
        <source>REASON_NO_MODULE</source>
        <translation>The graphical program cannot use the audio module.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_GONE</source>
        <translation>The device “%1” is no longer there.</translation>
    </message>
    <message>
        <source>REASON_NO_OUTPUT_DEVICE</source>
        <translation>No output device was found.</translation>
    </message>
    <message>
        <source>REASON_NO_DISPLAY</source>
        <translation>The graphical program needs a display; try xvfb-run.</translation>
    </message>
    <message>
        <source>REASON_HEARS_ANOTHER</source>
        <translation>“%1” hears another device than “%2”, which would be blamed for its silence.</translation>
    </message>
    <message>
        <source>REASON_VIRTUAL_DEVICE</source>
        <translation>“%1” is a virtual device: a result on it says nothing about this computer.</translation>
    </message>
    <message>
        <source>REASON_VIRTUAL_UNKNOWN</source>
        <translation>The sound server does not answer: whether “%1” is a virtual device is not known.</translation>
    </message>
    <message>
        <source>REASON_VOLUMES_HELD</source>
        <translation>Another run is holding the volumes.</translation>
    </message>
    <message>
        <source>WARNING_IS_MUTED_AGAIN</source>
        <translation>“%1” was muted before the run, and is muted again now.</translation>
    </message>
    <message>
        <source>WARNING_WAS_MUTED</source>
        <translation>“%1” was muted before the run.</translation>
    </message>
    <message>
        <source>WARNING_IS_AT_ZERO_AGAIN</source>
        <translation>The volume of “%1” was 0 before the run, and is 0 again now.</translation>
    </message>
    <message>
        <source>WARNING_WAS_AT_ZERO</source>
        <translation>The volume of “%1” was 0 before the run.</translation>
    </message>
    <message>
        <source>RUN_UNATTENDED_NO_SOURCE</source>
        <translation>First choose what listens, by “Listening source…” in this menu.</translation>
    </message>
    <message>
        <source>REASON_LISTENER_LOST</source>
        <translation>The program that listens was lost during the run.</translation>
    </message>
    <message>
        <source>REASON_NOT_RECOGNISED</source>
        <translation>Sound was heard, but the digits were not recognised.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_DEAD</source>
        <translation>The capture source delivers nothing at all.</translation>
    </message>
    <message>
        <source>REASON_ZEROS_ONLY</source>
        <translation>“%1” delivers nothing but zeros: it is switched off, blocked or not connected.</translation>
    </message>
    <message>
        <source>REASON_VOLUME_NOT_RAISED</source>
        <translation>The volume could not be raised.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_TURNED_DOWN</source>
        <translation>The capture source was muted or turned down.</translation>
    </message>
    <message>
        <source>REASON_NO_SUCH_SOURCE</source>
        <translation>No capture source is named “%1”. There are: %2</translation>
    </message>
    <message>
        <source>REASON_NO_SUCH_MICROPHONE</source>
        <translation>No microphone is named “%1”. There are: %2</translation>
    </message>
    <message>
        <source>REASON_QUESTION_OPEN</source>
        <translation>A question of the test was left without an answer.</translation>
    </message>
    <message>
        <source>REASON_SPEECH_DID_NOT_BEGIN</source>
        <translation>The sentence to be recorded could not be spoken.</translation>
    </message>
    <message>
        <source>REASON_SENTENCE_NOT_HEARD</source>
        <translation>The sentence to be recorded was not heard when it was spoken.</translation>
    </message>
    <message>
        <source>REASON_NO_SPEAKER</source>
        <translation>The speech could not be played: %1</translation>
    </message>
    <message>
        <source>REASON_DIALOG</source>
        <translation>A window of the test did not react as expected.</translation>
    </message>
    <message>
        <source>REASON_ANSWERED_NO</source>
        <translation>The question whether the same sound was heard was answered with “No”.</translation>
    </message>
    <message>
        <source>REASON_ENDED_EARLY</source>
        <translation>The test was closed or cancelled before it had a result.</translation>
    </message>
    <message>
        <source>REASON_NONE_GIVEN</source>
        <translation>The test did not tell why.</translation>
    </message>
    <message>
        <source>REASON_CHANNEL_COUNT_UNKNOWN</source>
        <translation>It is not known how many channels the capture source has.</translation>
    </message>
    <message>
        <source>REASON_ONE_CHANNEL</source>
        <translation>The capture source has one channel only.</translation>
    </message>
    <message>
        <source>REASON_NOTHING_HEARD</source>
        <translation>Nothing was heard.</translation>
    </message>
    <message>
        <source>REASON_CHANNEL_SOFT</source>
        <translation>One channel was too soft to be recognised, and too loud to be called silent.</translation>
    </message>
    <message>
        <source>REASON_SIDES_ALIKE</source>
        <translation>The microphone hears both sides alike.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_NOT_OPENED</source>
        <translation>The capture source could not be listened to.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_NOT_OPENED</source>
        <translation>The device could not be opened.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_DID_NOT_PLAY</source>
        <translation>The device did not play anything.</translation>
    </message>
    <message>
        <source>REASON_NO_SERVER</source>
        <translation>The sound server does not answer: the devices cannot be listed.</translation>
    </message>
    <message>
        <source>REASON_SERVER_SILENT</source>
        <translation>The sound server does not answer: %1</translation>
    </message>
    <message>
        <source>REASON_TOLD</source>
        <translation>A program of the run reported: %1</translation>
    </message>
    <message>
        <source>VALUE_NOT_KNOWN</source>
        <translation>not known</translation>
    </message>
    <message>
        <source>TESTS</source>
        <translation>Tests</translation>
    </message>
    <message>
        <source>TEST</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>TEST_DESCRIPTION</source>
        <translation>Description of the test</translation>
    </message>
    <message>
        <source>RUN_TEST</source>
        <translation>Run</translation>
    </message>
    <message>
        <source>RUN_TEST_HINT</source>
        <translation>Runs the chosen test on the chosen device (%1).</translation>
    </message>
    <message>
        <source>STOP_TEST</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>STOP_TEST_HINT</source>
        <translation>Stops the running test. %1 does the same and also works while a test window is open.</translation>
    </message>
    <message>
        <source>STOPPING</source>
        <translation>Stopping…</translation>
    </message>
    <message>
        <source>PROGRESS</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>MESSAGES</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>NO_RESULT_YET</source>
        <translation>No test has been run yet.</translation>
    </message>
    <message>
        <source>TEST_IS_RUNNING</source>
        <translation>The test is running…</translation>
    </message>
    <message>
        <source>VERDICT_PASSED</source>
        <translation>Passed</translation>
    </message>
    <message>
        <source>VERDICT_FAILED</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>VERDICT_CANNOT_BE_PERFORMED</source>
        <translation>Cannot be performed</translation>
    </message>
    <message>
        <source>VERDICT_NOT_COMPLETED</source>
        <translation>Not completed</translation>
    </message>
    <message>
        <source>VERDICT_STOPPED</source>
        <translation>Stopped</translation>
    </message>
    <message>
        <source>VERDICT_INVALID_CALL</source>
        <translation>Not run: the test was not called properly</translation>
    </message>
    <message>
        <source>LEVEL_ERROR</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>LEVEL_NOTE</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>Runs since the start</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>LANGUAGE</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>LOG</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>LOG_RUN_STARTED</source>
        <translation>Started: %1, device “%2”</translation>
    </message>
    <message>
        <source>LOG_RUN_ENDED</source>
        <translation>Ended: %1, device “%2”, result: %3</translation>
    </message>
    <message>
        <source>WITH_MICROPHONE</source>
        <translation>%1 (microphone: %2)</translation>
    </message>
    <message>
        <source>LOG_PROGRESS</source>
        <translation>Progress: %1%</translation>
    </message>
    <message>
        <source>LOG_STOP_PRESSED</source>
        <translation>Stop was pressed.</translation>
    </message>
    <message>
        <source>LOG_EVENT_SIMULATED</source>
        <translation>Event %1 was simulated.</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_RESTORED</source>
        <translation>An earlier test was interrupted. The volume of these devices was restored: %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_LEFT</source>
        <translation>An interrupted run had raised volumes that were changed since. They stay as they are: %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_PUT_BACK</source>
        <translation>The volume of these devices was restored: %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_UNPROTECTED</source>
        <translation>The volume would not be restored after a crash: %1</translation>
    </message>
    <message>
        <source>LOG_LANGUAGE_CHANGED</source>
        <translation>Language: %1</translation>
    </message>
    <message>
        <source>LOG_LANGUAGE_NOT_SAVED</source>
        <translation>The language could not be saved in the folder “%1”.</translation>
    </message>
    <message>
        <source>LOG_LIST_INCOMPLETE</source>
        <translation>There was not enough memory to read all devices.</translation>
    </message>
    <message>
        <source>LOG_DEVICE_GONE</source>
        <translation>The device “%1” is no longer there.</translation>
    </message>
    <message>
        <source>PROMPT_ACCEPT</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>PROMPT_DECLINE</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>MICROPHONE_TEST_INSTRUCTIONS</source>
        <translation>You will record with a microphone and hear the recording played back. During the test, every playback and recording volume of this computer is set to 100% and put back afterwards. If you are wearing headphones, take them off now.</translation>
    </message>
    <message>
        <source>UNATTENDED_INSTRUCTIONS</source>
        <translation>The test is run and answered by itself; do not use mouse and keyboard meanwhile. During the test, every playback and recording volume of this computer is set to 100% and put back afterwards. If you are wearing headphones, take them off now.</translation>
    </message>
    <message>
        <source>QUESTION_YES</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>QUESTION_NO</source>
        <translation>No</translation>
    </message>
    <message>
        <source>ENDPOINTS_RAISED</source>
        <translation>During the test the volume of these devices and microphones is at 100%; afterwards it is restored:</translation>
    </message>
    <message>
        <source>MENU_FILE</source>
        <translation>File</translation>
    </message>
    <message>
        <source>MENU_TEST</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>MENU_LANGUAGE</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>MENU_DEVELOPER</source>
        <translation>Developer</translation>
    </message>
    <message>
        <source>MENU_HELP</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>QUIT</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>ABOUT</source>
        <translation>About</translation>
    </message>
    <message>
        <source>ABOUT_VERSIONS</source>
        <translation>Version of the module: %1
Version of this program: %2</translation>
    </message>
    <message>
        <source>ABOUT_WHICH_VERSION</source>
        <translation>In questions and fault reports, quote the version of this program; the module’s version tells which module it tests with.</translation>
    </message>
    <message>
        <source>SIMULATE_EVENT</source>
        <translation>Simulate event</translation>
    </message>
    <message>
        <source>EVENT_CANCELS</source>
        <translation>Event %1 (cancels the test)</translation>
    </message>
    <message>
        <source>EVENT_DOES_NOT_CANCEL</source>
        <translation>Event %1 (does not cancel the test)</translation>
    </message>
    <message>
        <source>LANGUAGE_IS_FIXED</source>
        <translation>The language comes from the folder given with --config.</translation>
    </message>
    <message>
        <source>MODULE_CANNOT_BE_USED</source>
        <translation>The audio module cannot be used.</translation>
    </message>
    <message>
        <source>PROGRAM_IS_CLOSING</source>
        <translation>The program closes as soon as the test has stopped.</translation>
    </message>
    <message>
        <source>METER_TITLE</source>
        <translation>Sound level</translation>
    </message>
    <message>
        <source>METER_SOURCE</source>
        <translation>Heard through: %1</translation>
    </message>
    <message>
        <source>METER_WORDS</source>
        <translation>Level %1 dBFS, peak %2 dBFS: %3</translation>
    </message>
    <message>
        <source>METER_SILENT</source>
        <translation>silent</translation>
    </message>
    <message>
        <source>METER_QUIET</source>
        <translation>quiet</translation>
    </message>
    <message>
        <source>METER_GOOD</source>
        <translation>good</translation>
    </message>
    <message>
        <source>METER_TOO_LOUD</source>
        <translation>too loud</translation>
    </message>
    <message>
        <source>METER_NO_DATA</source>
        <translation>Nothing has been heard yet.</translation>
    </message>
    <message>
        <source>METER_WAVE</source>
        <translation>Waveform of the last playback</translation>
    </message>
    <message>
        <source>METER_WAVE_WORDS</source>
        <translation>Playback of the recording: %1 s, peak %2 dBFS</translation>
    </message>
    <message>
        <source>METER_DIGITS_WORDS</source>
        <translation>The digits as they were heard: %1 s, peak %2 dBFS</translation>
    </message>
    <message>
        <source>PRECHECK_TITLE</source>
        <translation>Before the test</translation>
    </message>
    <message>
        <source>PRECHECK_REFUSED</source>
        <translation>The test cannot be run</translation>
    </message>
    <message>
        <source>PRECHECK_RUN</source>
        <translation>Run nevertheless</translation>
    </message>
    <message>
        <source>PRECHECK_CLOSE</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>SAVE_REPORT</source>
        <translation>Save report…</translation>
    </message>
    <message>
        <source>COPY_REPORT</source>
        <translation>Copy report</translation>
    </message>
    <message>
        <source>LOG_REPORT_SAVED</source>
        <translation>The report was saved: %1</translation>
    </message>
    <message>
        <source>LOG_REPORT_NOT_SAVED</source>
        <translation>The report could not be saved: %1</translation>
    </message>
    <message>
        <source>LOG_REPORT_COPIED</source>
        <translation>The report was copied as text.</translation>
    </message>
    <message>
        <source>CHECK_CHANNELS</source>
        <translation>Check channels…</translation>
    </message>
    <message>
        <source>CHANNELS_TITLE</source>
        <translation>Left and right</translation>
    </message>
    <message>
        <source>CHANNELS_TEXT</source>
        <translation>Two digits are spoken on “%1”, each on one side only, at the present volume. Play both and say where you hear them.</translation>
    </message>
    <message>
        <source>CHANNELS_FIRST</source>
        <translation>First digit</translation>
    </message>
    <message>
        <source>CHANNELS_SECOND</source>
        <translation>Second digit</translation>
    </message>
    <message>
        <source>CHANNELS_PLAY_FIRST</source>
        <translation>Play the first digit</translation>
    </message>
    <message>
        <source>CHANNELS_PLAY_SECOND</source>
        <translation>Play the second digit</translation>
    </message>
    <message>
        <source>SIDE_LEFT</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>SIDE_RIGHT</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>SIDE_BOTH</source>
        <translation>Both sides</translation>
    </message>
    <message>
        <source>SIDE_NOTHING</source>
        <translation>Nothing</translation>
    </message>
    <message>
        <source>CHANNELS_OPEN</source>
        <translation>The result follows once both digits are answered.</translation>
    </message>
    <message>
        <source>CHANNELS_STRAIGHT</source>
        <translation>Left and right are where they belong.</translation>
    </message>
    <message>
        <source>CHANNELS_SWAPPED</source>
        <translation>Left and right are swapped.</translation>
    </message>
    <message>
        <source>CHANNELS_MIXED</source>
        <translation>Left and right are mixed and cannot be told apart.</translation>
    </message>
    <message>
        <source>CHANNELS_LEFT_SILENT</source>
        <translation>The left channel is silent.</translation>
    </message>
    <message>
        <source>CHANNELS_RIGHT_SILENT</source>
        <translation>The right channel is silent.</translation>
    </message>
    <message>
        <source>CHANNELS_UNHEARD</source>
        <translation>Nothing was heard. Turn up the volume and play the digits again.</translation>
    </message>
    <message>
        <source>CHANNELS_NOT_KNOWN</source>
        <translation>Left and right could not be measured: %1</translation>
    </message>
    <message>
        <source>CHANNELS_MEASURE</source>
        <translation>Measure with “%1”</translation>
    </message>
    <message>
        <source>CHANNELS_MEASURING</source>
        <translation>Listening to “%1”…</translation>
    </message>
    <message>
        <source>CHANNELS_NOT_PLAYED</source>
        <translation>The digit could not be played: %1</translation>
    </message>
    <message>
        <source>CHANNELS_ONCE_MORE</source>
        <translation>The digit that was not heard is spoken once more: the device may have had to wake up. Say again where you hear it.</translation>
    </message>
    <message>
        <source>CHANNELS_STALLED</source>
        <translation>The digit could not be played: the sound system does not answer. Nothing is said about this side.</translation>
    </message>
    <message>
        <source>LOG_CHANNELS</source>
        <translation>Channels of “%1”: %2</translation>
    </message>
    <message>
        <source>LISTENING_SOURCE</source>
        <translation>Listening source…</translation>
    </message>
    <message>
        <source>SOURCE_TITLE</source>
        <translation>Listening source</translation>
    </message>
    <message>
        <source>SOURCE_TEXT</source>
        <translation>What this source hears is shown beside the microphone test, and measured by the channel check and by runs with nobody there. Otherwise nothing is listened to.</translation>
    </message>
    <message>
        <source>SOURCE_NONE</source>
        <translation>None</translation>
    </message>
    <message>
        <source>SOURCE_READING</source>
        <translation>Reading the sources…</translation>
    </message>
    <message>
        <source>SOURCE_ABSENT</source>
        <translation>%1 (not connected)</translation>
    </message>
    <message>
        <source>SOURCE_USE</source>
        <translation>Use</translation>
    </message>
    <message>
        <source>LOG_SOURCE</source>
        <translation>Listening source: %1</translation>
    </message>
    <message>
        <source>LOG_SETTINGS_NOT_SAVED</source>
        <translation>The setting could not be saved in the folder “%1”.</translation>
    </message>
    <message>
        <source>RUN_UNATTENDED</source>
        <translation>Run with nobody there</translation>
    </message>
    <message>
        <source>MEASUREMENTS</source>
        <translation>Measurements</translation>
    </message>
    <message>
        <source>NOTHING_MEASURED</source>
        <translation>Nothing was measured in the last run.</translation>
    </message>
    <message>
        <source>DIGIT</source>
        <translation>Digit</translation>
    </message>
    <message>
        <source>DIGIT_PLAYED</source>
        <translation>Played</translation>
    </message>
    <message>
        <source>DIGIT_HEARD</source>
        <translation>Heard</translation>
    </message>
    <message>
        <source>DIGIT_TYPED</source>
        <translation>Typed</translation>
    </message>
    <message>
        <source>DIGIT_SCORE</source>
        <translation>Likeness</translation>
    </message>
    <message>
        <source>DIGIT_LEVEL</source>
        <translation>Level (dBFS)</translation>
    </message>
    <message>
        <source>DIGIT_SNR</source>
        <translation>SNR (dB)</translation>
    </message>
    <message>
        <source>DIGIT_LATENCY</source>
        <translation>Latency (ms)</translation>
    </message>
    <message>
        <source>PLOT_WAVE</source>
        <translation>Waveform of digit %1</translation>
    </message>
    <message>
        <source>PLOT_WAVE_WORDS</source>
        <translation>%1 s, peak %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_WAVE_AT</source>
        <translation>At %1 s: from %2 to %3</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM</source>
        <translation>Spectrum of digit %1</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM_WORDS</source>
        <translation>Loudest at %1 Hz: %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM_AT</source>
        <translation>%1 Hz: %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_KEYS</source>
        <translation>The arrow keys read single values.</translation>
    </message>
</context>
</TS>
