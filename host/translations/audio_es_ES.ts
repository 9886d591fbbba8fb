<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>AUDIO</name>
    <message>
        <source>APPLICATION_NAME</source>
        <translation>Tamrex Diagnostics</translation>
    </message>
    <message>
        <source>QUICK_AUDIO</source>
        <translation>Diagnóstico rápido de audio</translation>
    </message>
    <message>
        <source>QUICK_AUDIO_TESTS_TOOLTIP</source>
        <translation>Comprueba la reproducción y la grabación de sonido.</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST</source>
        <translation>Prueba de salida de audio</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_DESCRIPTION</source>
        <translation>Reproduce dígitos hablados en el dispositivo seleccionado; se introduce lo que se oye.</translation>
    </message>
    <message>
        <source>MICROPHONE_INTERACTIVE_TEST</source>
        <translation>Prueba del micrófono</translation>
    </message>
    <message>
        <source>MICROPHONE_INTERACTIVE_TEST_DESCRIPTION</source>
        <translation>Graba con el micrófono elegido y reproduce la grabación; el usuario valora el sonido.</translation>
    </message>
    <message>
        <source>UDI</source>
        <translation>Nombre del dispositivo</translation>
    </message>
    <message>
        <source>NUMBER_OF_CHANNELS</source>
        <translation>Número de canales</translation>
    </message>
    <message>
        <source>SAMPLE_RATE</source>
        <translation>Frecuencia de muestreo</translation>
    </message>
    <message>
        <source>DRIVER_NAME</source>
        <translation>Sistema de audio</translation>
    </message>
    <message>
        <source>DRIVER_VERSION</source>
        <translation>Versión del controlador</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE</source>
        <translation>Los dígitos introducidos no coinciden con los reproducidos.</translation>
    </message>
    <message>
        <source>USER_DID_NOT_REPORT_SOUND</source>
        <translation>El usuario ha indicado que no ha oído ningún sonido.</translation>
    </message>
    <message>
        <source>AUDIO_DEVICE_COULD_NOT_BE_ACCESSED</source>
        <translation>No se ha podido acceder al dispositivo de audio.</translation>
    </message>
    <message>
        <source>TEST_CANCELED_BECAUSE_OF_AN_EVENT_THAT_COULD_COMPROMISE_THE_TEST_OUTCOME_HAPPENED</source>
        <translation>La prueba se ha cancelado porque se ha producido un evento que podría alterar el resultado.</translation>
    </message>
    <message>
        <source>THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_COULD_NOT_BE_IDENTIFIED_OR_HAS_BEEN_DISCONNECTED</source>
        <translation>No se puede realizar esta prueba porque el dispositivo no se ha podido identificar o se ha desconectado.</translation>
    </message>
    <message>
        <source>THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_CAN_NOT_RECEIVE_INPUT</source>
        <translation>No se puede realizar esta prueba porque no es posible recibir datos del usuario.</translation>
    </message>
    <message>
        <source>AN_INTERNAL_ERROR_OCCURRED._|THIS_DOES_NOT_INDICATE_A_FAILURE._|PLEASE_TRY_AGAIN.</source>
        <translation>Se ha producido un error interno.|Esto no indica ninguna avería.|Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>AN_INTERNAL_ERROR_OCCURRED._</source>
        <translation>Se ha producido un error interno.</translation>
    </message>
    <message>
        <source>THIS_DOES_NOT_INDICATE_A_FAILURE._</source>
        <translation>Esto no indica ninguna avería.</translation>
    </message>
    <message>
        <source>PLEASE_TRY_AGAIN.</source>
        <translation>Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>NO_INPUT_DEVICE</source>
        <translation>No se ha encontrado ningún dispositivo de entrada de audio.</translation>
    </message>
    <message>
        <source>POSSIBLE_DEFECTIVE_COMPONENTS</source>
        <translation>Componentes posiblemente defectuosos</translation>
    </message>
    <message>
        <source>SPEAKERS</source>
        <translation>Altavoces</translation>
    </message>
    <message>
        <source>MICROPHONE</source>
        <translation>Micrófono</translation>
    </message>
    <message>
        <source>CAMERA_MICROPHONE_MODULE</source>
        <translation>Módulo de cámara y micrófono</translation>
    </message>
    <message>
        <source>kTkAdvancedTestInputTitle</source>
        <translation>Prueba interactiva</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_INSTRUCTIONS</source>
        <translation>Se reproducirán tres dígitos hablados; introduzca lo que oiga. Para ello, todos los volúmenes de reproducción y grabación de este equipo se pondrán al 100 % y se restablecerán después. Si lleva auriculares, quíteselos ahora.</translation>
    </message>
    <message>
        <source>DID_YOU_HEAR_THE_SAME_SOUND_YOU_RECORDED</source>
        <translation>¿Ha oído el mismo sonido que ha grabado?</translation>
    </message>
    <message>
        <source>FIRST_SEQUENCE</source>
        <translation>Primera secuencia</translation>
    </message>
    <message>
        <source>SECOND_SEQUENCE</source>
        <translation>Segunda secuencia</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_GENERAL_INSTRUCTIONS</source>
        <translation>Introduzca los tres dígitos hablados en el orden en que los oiga. Dispone de dos intentos.</translation>
    </message>
    <message>
        <source>SELECT_OR_TYPE_NUMBER</source>
        <translation>Haga clic en los dígitos que oiga o escríbalos.</translation>
    </message>
    <message>
        <source>FAIL_BUTTON_TEXT</source>
        <translation>No he oído nada</translation>
    </message>
    <message>
        <source>CLICK_FAIL_IF_NO_SOUND_WAS_HEARD</source>
        <translation>Si no hay sonido, haga clic en «No he oído nada».</translation>
    </message>
    <message>
        <source>FAIL_BUTTON_TOOLTP</source>
        <translation>Finalizar la prueba como no superada: sin sonido</translation>
    </message>
    <message>
        <source>BACKSPACE_BUTTON_TOOLTP</source>
        <translation>Borrar el último dígito</translation>
    </message>
    <message>
        <source>PLAY_THE_SEQUENCE_AGAIN</source>
        <translation>Reproducir la secuencia de nuevo</translation>
    </message>
    <message>
        <source>SELECT_A_MICROPHONE_DEVICE</source>
        <translation>Seleccione un micrófono</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>NEXT</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>Grabar</translation>
    </message>
    <message>
        <source>PLAY</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>PRESS_RECORD_AND_SPEAK_ON_THE_MICROPHONE</source>
        <translation>Pulse «Grabar» y hable por el micrófono.</translation>
    </message>
    <message>
        <source>PRESS_PLAY_AND_LISTEN_TO_THE_RECORDED_AUDIO</source>
        <translation>Pulse «Reproducir» y escuche la grabación.</translation>
    </message>
</context>
</TS>
