<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AUDIO</name>
    <message>
        <source>APPLICATION_NAME</source>
        <translation>Tamrex Diagnostics</translation>
    </message>
    <message>
        <source>QUICK_AUDIO</source>
        <translation>Audio-Schnelldiagnose</translation>
    </message>
    <message>
        <source>QUICK_AUDIO_TESTS_TOOLTIP</source>
        <translation>Prüft Wiedergabe und Aufnahme von Ton.</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST</source>
        <translation>Audiowiedergabetest</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_DESCRIPTION</source>
        <translation>Gibt gesprochene Ziffern auf dem ausgewählten Gerät wieder. Sie geben ein, was Sie hören.</translation>
    </message>
    <message>
        <source>MICROPHONE_INTERACTIVE_TEST</source>
        <translation>Interaktiver Mikrofontest</translation>
    </message>
    <message>
        <source>MICROPHONE_INTERACTIVE_TEST_DESCRIPTION</source>
        <translation>Nimmt mit dem gewählten Mikrofon auf und gibt die Aufnahme wieder. Sie beurteilen den Ton.</translation>
    </message>
    <message>
        <source>UDI</source>
        <translation>Gerätename</translation>
    </message>
    <message>
        <source>NUMBER_OF_CHANNELS</source>
        <translation>Anzahl der Kanäle</translation>
    </message>
    <message>
        <source>SAMPLE_RATE</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>DRIVER_NAME</source>
        <translation>Audiosystem</translation>
    </message>
    <message>
        <source>DRIVER_VERSION</source>
        <translation>Treiberversion</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE</source>
        <translation>Die eingegebenen Ziffern stimmen nicht mit den wiedergegebenen überein.</translation>
    </message>
    <message>
        <source>USER_DID_NOT_REPORT_SOUND</source>
        <translation>Es wurde angegeben, dass kein Ton zu hören war.</translation>
    </message>
    <message>
        <source>AUDIO_DEVICE_COULD_NOT_BE_ACCESSED</source>
        <translation>Auf das Audiogerät konnte nicht zugegriffen werden.</translation>
    </message>
    <message>
        <source>TEST_CANCELED_BECAUSE_OF_AN_EVENT_THAT_COULD_COMPROMISE_THE_TEST_OUTCOME_HAPPENED</source>
        <translation>Der Test wurde abgebrochen, weil ein Ereignis aufgetreten ist, das das Ergebnis verfälschen könnte.</translation>
    </message>
    <message>
        <source>THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_COULD_NOT_BE_IDENTIFIED_OR_HAS_BEEN_DISCONNECTED</source>
        <translation>Dieser Test kann nicht ausgeführt werden, weil das Gerät nicht erkannt wurde oder getrennt ist.</translation>
    </message>
    <message>
        <source>THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_CAN_NOT_RECEIVE_INPUT</source>
        <translation>Dieser Test kann nicht ausgeführt werden, weil keine Benutzereingaben möglich sind.</translation>
    </message>
    <message>
        <source>AN_INTERNAL_ERROR_OCCURRED._|THIS_DOES_NOT_INDICATE_A_FAILURE._|PLEASE_TRY_AGAIN.</source>
        <translation>Ein interner Fehler ist aufgetreten.|Dies deutet nicht auf einen Defekt hin.|Bitte versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>AN_INTERNAL_ERROR_OCCURRED._</source>
        <translation>Ein interner Fehler ist aufgetreten.</translation>
    </message>
    <message>
        <source>THIS_DOES_NOT_INDICATE_A_FAILURE._</source>
        <translation>Dies deutet nicht auf einen Defekt hin.</translation>
    </message>
    <message>
        <source>PLEASE_TRY_AGAIN.</source>
        <translation>Bitte versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>NO_INPUT_DEVICE</source>
        <translation>Es wurde kein Audioeingabegerät gefunden.</translation>
    </message>
    <message>
        <source>POSSIBLE_DEFECTIVE_COMPONENTS</source>
        <translation>Möglicherweise defekte Komponenten</translation>
    </message>
    <message>
        <source>SPEAKERS</source>
        <translation>Lautsprecher</translation>
    </message>
    <message>
        <source>MICROPHONE</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>CAMERA_MICROPHONE_MODULE</source>
        <translation>Kamera- und Mikrofonmodul</translation>
    </message>
    <message>
        <source>kTkAdvancedTestInputTitle</source>
        <translation>Interaktiver Test</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_INSTRUCTIONS</source>
        <translation>Es werden drei gesprochene Ziffern wiedergegeben. Geben Sie ein, was Sie hören. Dafür werden alle Wiedergabe- und Aufnahmelautstärken dieses Computers auf 100 % gesetzt und danach zurückgestellt. Wenn Sie Kopfhörer tragen, nehmen Sie diese jetzt ab.</translation>
    </message>
    <message>
        <source>DID_YOU_HEAR_THE_SAME_SOUND_YOU_RECORDED</source>
        <translation>Haben Sie denselben Ton gehört, den Sie aufgenommen haben?</translation>
    </message>
    <message>
        <source>FIRST_SEQUENCE</source>
        <translation>Erste Ziffernfolge</translation>
    </message>
    <message>
        <source>SECOND_SEQUENCE</source>
        <translation>Zweite Ziffernfolge</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_GENERAL_INSTRUCTIONS</source>
        <translation>Geben Sie die drei gesprochenen Ziffern in der gehörten Reihenfolge ein. Sie haben zwei Versuche.</translation>
    </message>
    <message>
        <source>SELECT_OR_TYPE_NUMBER</source>
        <translation>Klicken Sie die gehörten Ziffern an oder tippen Sie sie ein.</translation>
    </message>
    <message>
        <source>FAIL_BUTTON_TEXT</source>
        <translation>Nichts gehört</translation>
    </message>
    <message>
        <source>CLICK_FAIL_IF_NO_SOUND_WAS_HEARD</source>
        <translation>Wenn kein Ton kommt, klicken Sie auf „Nichts gehört“.</translation>
    </message>
    <message>
        <source>FAIL_BUTTON_TOOLTP</source>
        <translation>Test als nicht bestanden beenden: kein Ton</translation>
    </message>
    <message>
        <source>BACKSPACE_BUTTON_TOOLTP</source>
        <translation>Letzte Ziffer löschen</translation>
    </message>
    <message>
        <source>PLAY_THE_SEQUENCE_AGAIN</source>
        <translation>Ziffernfolge erneut wiedergeben</translation>
    </message>
    <message>
        <source>SELECT_A_MICROPHONE_DEVICE</source>
        <translation>Wählen Sie ein Mikrofon aus</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>NEXT</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>Aufnehmen</translation>
    </message>
    <message>
        <source>PLAY</source>
        <translation>Wiedergeben</translation>
    </message>
    <message>
        <source>PRESS_RECORD_AND_SPEAK_ON_THE_MICROPHONE</source>
        <translation>Drücken Sie „Aufnehmen“ und sprechen Sie in das Mikrofon.</translation>
    </message>
    <message>
        <source>PRESS_PLAY_AND_LISTEN_TO_THE_RECORDED_AUDIO</source>
        <translation>Drücken Sie „Wiedergeben“ und hören Sie sich die Aufnahme an.</translation>
    </message>
</context>
</TS>
