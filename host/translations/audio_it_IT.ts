<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>AUDIO</name>
    <message>
        <source>APPLICATION_NAME</source>
        <translation>Tamrex Diagnostics</translation>
    </message>
    <message>
        <source>QUICK_AUDIO</source>
        <translation>Diagnosi audio rapida</translation>
    </message>
    <message>
        <source>QUICK_AUDIO_TESTS_TOOLTIP</source>
        <translation>Verifica la riproduzione e la registrazione del suono.</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST</source>
        <translation>Test di riproduzione audio</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_DESCRIPTION</source>
        <translation>Riproduce cifre pronunciate sul dispositivo selezionato; si digita ciò che si sente.</translation>
    </message>
    <message>
        <source>MICROPHONE_INTERACTIVE_TEST</source>
        <translation>Test interattivo del microfono</translation>
    </message>
    <message>
        <source>MICROPHONE_INTERACTIVE_TEST_DESCRIPTION</source>
        <translation>Registra con il microfono scelto e riproduce la registrazione; l’utente valuta il suono.</translation>
    </message>
    <message>
        <source>UDI</source>
        <translation>Nome del dispositivo</translation>
    </message>
    <message>
        <source>NUMBER_OF_CHANNELS</source>
        <translation>Numero di canali</translation>
    </message>
    <message>
        <source>SAMPLE_RATE</source>
        <translation>Frequenza di campionamento</translation>
    </message>
    <message>
        <source>DRIVER_NAME</source>
        <translation>Sistema audio</translation>
    </message>
    <message>
        <source>DRIVER_VERSION</source>
        <translation>Versione del driver</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE</source>
        <translation>Le cifre inserite non corrispondono a quelle riprodotte.</translation>
    </message>
    <message>
        <source>USER_DID_NOT_REPORT_SOUND</source>
        <translation>L’utente ha segnalato di non aver sentito alcun suono.</translation>
    </message>
    <message>
        <source>AUDIO_DEVICE_COULD_NOT_BE_ACCESSED</source>
        <translation>Impossibile accedere al dispositivo audio.</translation>
    </message>
    <message>
        <source>TEST_CANCELED_BECAUSE_OF_AN_EVENT_THAT_COULD_COMPROMISE_THE_TEST_OUTCOME_HAPPENED</source>
        <translation>Il test è stato annullato perché si è verificato un evento che poteva comprometterne il risultato.</translation>
    </message>
    <message>
        <source>THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_COULD_NOT_BE_IDENTIFIED_OR_HAS_BEEN_DISCONNECTED</source>
        <translation>Impossibile eseguire questo test perché il dispositivo non è stato identificato o è stato scollegato.</translation>
    </message>
    <message>
        <source>THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_CAN_NOT_RECEIVE_INPUT</source>
        <translation>Impossibile eseguire questo test perché non è possibile ricevere input dall’utente.</translation>
    </message>
    <message>
        <source>AN_INTERNAL_ERROR_OCCURRED._|THIS_DOES_NOT_INDICATE_A_FAILURE._|PLEASE_TRY_AGAIN.</source>
        <translation>Si è verificato un errore interno.|Ciò non indica un guasto.|Riprovare.</translation>
    </message>
    <message>
        <source>AN_INTERNAL_ERROR_OCCURRED._</source>
        <translation>Si è verificato un errore interno.</translation>
    </message>
    <message>
        <source>THIS_DOES_NOT_INDICATE_A_FAILURE._</source>
        <translation>Ciò non indica un guasto.</translation>
    </message>
    <message>
        <source>PLEASE_TRY_AGAIN.</source>
        <translation>Riprovare.</translation>
    </message>
    <message>
        <source>NO_INPUT_DEVICE</source>
        <translation>Nessun dispositivo di ingresso audio trovato.</translation>
    </message>
    <message>
        <source>POSSIBLE_DEFECTIVE_COMPONENTS</source>
        <translation>Componenti potenzialmente difettosi</translation>
    </message>
    <message>
        <source>SPEAKERS</source>
        <translation>Altoparlanti</translation>
    </message>
    <message>
        <source>MICROPHONE</source>
        <translation>Microfono</translation>
    </message>
    <message>
        <source>CAMERA_MICROPHONE_MODULE</source>
        <translation>Modulo fotocamera e microfono</translation>
    </message>
    <message>
        <source>kTkAdvancedTestInputTitle</source>
        <translation>Test interattivo</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_INSTRUCTIONS</source>
        <translation>Verranno riprodotte tre cifre pronunciate; digitare ciò che si sente. A questo scopo tutti i volumi di riproduzione e di registrazione di questo computer vengono portati al 100% e poi ripristinati. Se si indossano le cuffie, toglierle ora.</translation>
    </message>
    <message>
        <source>DID_YOU_HEAR_THE_SAME_SOUND_YOU_RECORDED</source>
        <translation>Il suono udito è lo stesso che è stato registrato?</translation>
    </message>
    <message>
        <source>FIRST_SEQUENCE</source>
        <translation>Prima sequenza</translation>
    </message>
    <message>
        <source>SECOND_SEQUENCE</source>
        <translation>Seconda sequenza</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_GENERAL_INSTRUCTIONS</source>
        <translation>Inserire le tre cifre pronunciate nell’ordine in cui si sentono. Sono possibili due tentativi.</translation>
    </message>
    <message>
        <source>SELECT_OR_TYPE_NUMBER</source>
        <translation>Fare clic sulle cifre udite o digitarle.</translation>
    </message>
    <message>
        <source>FAIL_BUTTON_TEXT</source>
        <translation>Non ho sentito nulla</translation>
    </message>
    <message>
        <source>CLICK_FAIL_IF_NO_SOUND_WAS_HEARD</source>
        <translation>In assenza di suono, fare clic su «Non ho sentito nulla».</translation>
    </message>
    <message>
        <source>FAIL_BUTTON_TOOLTP</source>
        <translation>Termina il test come non superato: nessun suono</translation>
    </message>
    <message>
        <source>BACKSPACE_BUTTON_TOOLTP</source>
        <translation>Elimina l’ultima cifra</translation>
    </message>
    <message>
        <source>PLAY_THE_SEQUENCE_AGAIN</source>
        <translation>Riproduci di nuovo la sequenza</translation>
    </message>
    <message>
        <source>SELECT_A_MICROPHONE_DEVICE</source>
        <translation>Selezionare un microfono</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>NEXT</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>Registra</translation>
    </message>
    <message>
        <source>PLAY</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>PRESS_RECORD_AND_SPEAK_ON_THE_MICROPHONE</source>
        <translation>Premere «Registra» e parlare nel microfono.</translation>
    </message>
    <message>
        <source>PRESS_PLAY_AND_LISTEN_TO_THE_RECORDED_AUDIO</source>
        <translation>Premere «Riproduci» e ascoltare la registrazione.</translation>
    </message>
</context>
</TS>
