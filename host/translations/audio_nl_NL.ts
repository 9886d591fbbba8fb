<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>AUDIO</name>
    <message>
        <source>APPLICATION_NAME</source>
        <translation>Tamrex Diagnostics</translation>
    </message>
    <message>
        <source>QUICK_AUDIO</source>
        <translation>Snelle audiodiagnose</translation>
    </message>
    <message>
        <source>QUICK_AUDIO_TESTS_TOOLTIP</source>
        <translation>Controleert het afspelen en opnemen van geluid.</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST</source>
        <translation>Audioweergavetest</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_DESCRIPTION</source>
        <translation>Speelt gesproken cijfers af op het geselecteerde apparaat; u typt wat u hoort.</translation>
    </message>
    <message>
        <source>MICROPHONE_INTERACTIVE_TEST</source>
        <translation>Interactieve microfoontest</translation>
    </message>
    <message>
        <source>MICROPHONE_INTERACTIVE_TEST_DESCRIPTION</source>
        <translation>Neemt op met de gekozen microfoon en speelt de opname af; u beoordeelt het geluid.</translation>
    </message>
    <message>
        <source>UDI</source>
        <translation>Apparaatnaam</translation>
    </message>
    <message>
        <source>NUMBER_OF_CHANNELS</source>
        <translation>Aantal kanalen</translation>
    </message>
    <message>
        <source>SAMPLE_RATE</source>
        <translation>Samplefrequentie</translation>
    </message>
    <message>
        <source>DRIVER_NAME</source>
        <translation>Audiosysteem</translation>
    </message>
    <message>
        <source>DRIVER_VERSION</source>
        <translation>Stuurprogrammaversie</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE</source>
        <translation>De ingevoerde cijfers komen niet overeen met de afgespeelde cijfers.</translation>
    </message>
    <message>
        <source>USER_DID_NOT_REPORT_SOUND</source>
        <translation>De gebruiker heeft aangegeven geen geluid te hebben gehoord.</translation>
    </message>
    <message>
        <source>AUDIO_DEVICE_COULD_NOT_BE_ACCESSED</source>
        <translation>Het audioapparaat kon niet worden benaderd.</translation>
    </message>
    <message>
        <source>TEST_CANCELED_BECAUSE_OF_AN_EVENT_THAT_COULD_COMPROMISE_THE_TEST_OUTCOME_HAPPENED</source>
        <translation>De test is geannuleerd vanwege een gebeurtenis die het resultaat kon beïnvloeden.</translation>
    </message>
    <message>
        <source>THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_COULD_NOT_BE_IDENTIFIED_OR_HAS_BEEN_DISCONNECTED</source>
        <translation>Deze test kan niet worden uitgevoerd omdat het apparaat niet is herkend of is losgekoppeld.</translation>
    </message>
    <message>
        <source>THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_CAN_NOT_RECEIVE_INPUT</source>
        <translation>Deze test kan niet worden uitgevoerd omdat er geen gebruikersinvoer mogelijk is.</translation>
    </message>
    <message>
        <source>AN_INTERNAL_ERROR_OCCURRED._|THIS_DOES_NOT_INDICATE_A_FAILURE._|PLEASE_TRY_AGAIN.</source>
        <translation>Er is een interne fout opgetreden.|Dit wijst niet op een defect.|Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>AN_INTERNAL_ERROR_OCCURRED._</source>
        <translation>Er is een interne fout opgetreden.</translation>
    </message>
    <message>
        <source>THIS_DOES_NOT_INDICATE_A_FAILURE._</source>
        <translation>Dit wijst niet op een defect.</translation>
    </message>
    <message>
        <source>PLEASE_TRY_AGAIN.</source>
        <translation>Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>NO_INPUT_DEVICE</source>
        <translation>Er is geen audio-invoerapparaat gevonden.</translation>
    </message>
    <message>
        <source>POSSIBLE_DEFECTIVE_COMPONENTS</source>
        <translation>Mogelijk defecte onderdelen</translation>
    </message>
    <message>
        <source>SPEAKERS</source>
        <translation>Luidsprekers</translation>
    </message>
    <message>
        <source>MICROPHONE</source>
        <translation>Microfoon</translation>
    </message>
    <message>
        <source>CAMERA_MICROPHONE_MODULE</source>
        <translation>Camera- en microfoonmodule</translation>
    </message>
    <message>
        <source>kTkAdvancedTestInputTitle</source>
        <translation>Interactieve test</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_INSTRUCTIONS</source>
        <translation>Er worden drie gesproken cijfers afgespeeld; typ wat u hoort. Daarvoor worden alle weergave- en opnamevolumes van deze computer op 100% gezet en daarna teruggezet. Als u een hoofdtelefoon draagt, zet die dan nu af.</translation>
    </message>
    <message>
        <source>DID_YOU_HEAR_THE_SAME_SOUND_YOU_RECORDED</source>
        <translation>Hebt u hetzelfde geluid gehoord dat u hebt opgenomen?</translation>
    </message>
    <message>
        <source>FIRST_SEQUENCE</source>
        <translation>Eerste cijferreeks</translation>
    </message>
    <message>
        <source>SECOND_SEQUENCE</source>
        <translation>Tweede cijferreeks</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_GENERAL_INSTRUCTIONS</source>
        <translation>Voer de drie gesproken cijfers in de gehoorde volgorde in. U hebt twee pogingen.</translation>
    </message>
    <message>
        <source>SELECT_OR_TYPE_NUMBER</source>
        <translation>Klik op de cijfers die u hoort of typ ze.</translation>
    </message>
    <message>
        <source>FAIL_BUTTON_TEXT</source>
        <translation>Niets gehoord</translation>
    </message>
    <message>
        <source>CLICK_FAIL_IF_NO_SOUND_WAS_HEARD</source>
        <translation>Als er geen geluid is, klikt u op ‘Niets gehoord’.</translation>
    </message>
    <message>
        <source>FAIL_BUTTON_TOOLTP</source>
        <translation>Test als mislukt beëindigen: geen geluid</translation>
    </message>
    <message>
        <source>BACKSPACE_BUTTON_TOOLTP</source>
        <translation>Laatste cijfer wissen</translation>
    </message>
    <message>
        <source>PLAY_THE_SEQUENCE_AGAIN</source>
        <translation>Cijferreeks opnieuw afspelen</translation>
    </message>
    <message>
        <source>SELECT_A_MICROPHONE_DEVICE</source>
        <translation>Selecteer een microfoon</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>NEXT</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>Opnemen</translation>
    </message>
    <message>
        <source>PLAY</source>
        <translation>Afspelen</translation>
    </message>
    <message>
        <source>PRESS_RECORD_AND_SPEAK_ON_THE_MICROPHONE</source>
        <translation>Druk op ‘Opnemen’ en spreek in de microfoon.</translation>
    </message>
    <message>
        <source>PRESS_PLAY_AND_LISTEN_TO_THE_RECORDED_AUDIO</source>
        <translation>Druk op ‘Afspelen’ en luister naar de opname.</translation>
    </message>
</context>
</TS>
