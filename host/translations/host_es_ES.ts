<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>HOST</name>
    <message>
        <source>DEVICES</source>
        <translation>Dispositivos de salida</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>REFRESH_DEVICES</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>REFRESH_DEVICES_HINT</source>
        <translation>Vuelve a leer la lista de dispositivos de salida (F5). La lista también se actualiza sola cuando se conecta o se retira un dispositivo.</translation>
    </message>
    <message>
        <source>READING_DEVICES</source>
        <translation>Leyendo los dispositivos de salida…</translation>
    </message>
    <message>
        <source>DEVICES_FOUND</source>
        <translation>Dispositivos de salida encontrados: %1</translation>
    </message>
    <message>
        <source>NO_DEVICES</source>
        <translation>No se ha encontrado ningún dispositivo de salida. Conecte uno; la lista se actualiza sola.</translation>
    </message>
    <message>
        <source>SOUND_SERVER_SILENT</source>
        <translation>El servidor de sonido no responde: no se pueden mostrar los dispositivos. Inícielo y actualice la lista.</translation>
    </message>
    <message>
        <source>DEVICE_STATE</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>STATE_VOLUME</source>
        <translation>volumen %1 %</translation>
    </message>
    <message>
        <source>STATE_MUTED</source>
        <translation>silenciado</translation>
    </message>
    <message>
        <source>STATE_DEFAULT</source>
        <translation>predeterminado</translation>
    </message>
    <message>
        <source>STATE_VIRTUAL</source>
        <translation>virtual</translation>
    </message>
    <message>
        <source>PRECHECK_SOUND_SERVER_SILENT</source>
        <translation>El servidor de sonido no responde: no se ha podido comprobar el volumen ni si el sonido está silenciado.</translation>
    </message>
    <message>
        <source>PRECHECK_DEVICE_MUTED</source>
        <translation>«%1» está silenciado. No se ha cambiado nada: la prueba activa el sonido por sí misma mientras se ejecuta.</translation>
    </message>
    <message>
        <source>PRECHECK_DEVICE_AT_ZERO</source>
        <translation>El volumen de «%1» es 0. No se ha cambiado nada: la prueba lo sube por sí misma mientras se ejecuta.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIPS_MISSING</source>
        <translation>Faltan los dígitos hablados del idioma %1. La prueba no se puede ejecutar.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIP_DAMAGED</source>
        <translation>El archivo de sonido %1 falta o no es el suministrado. La prueba no se puede ejecutar: se culparía al dispositivo.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIPS_UNCHECKED</source>
        <translation>No hay una lista de los archivos de sonido suministrados: no se han podido comprobar.</translation>
    </message>
    <message>
        <source>PRECHECK_MICROPHONE_BLOCKED</source>
        <translation>La configuración de privacidad del sistema impide que los programas usen el micrófono: solo grabaría silencio.</translation>
    </message>
    <message>
        <source>PRECHECK_SOURCE_MUTED</source>
        <translation>La fuente de captura «%1» está silenciada. La prueba no se puede ejecutar: se culparía al dispositivo.</translation>
    </message>
    <message>
        <source>PRECHECK_SOURCE_AT_ZERO</source>
        <translation>El volumen de la fuente de captura «%1» es 0. La prueba no se puede ejecutar: se culparía al dispositivo.</translation>
    </message>
    <message>
        <source>REASON_STOPPED</source>
        <translation>La ejecución se ha detenido.</translation>
    </message>
    <message>
        <source>REASON_TOOK_TOO_LONG</source>
        <translation>La ejecución ha durado más de cinco minutos.</translation>
    </message>
    <message>
        <source>REASON_RUN_NOT_TAKEN</source>
        <translation>La ejecución no pudo comenzar: hay otra en curso o el dispositivo ya no está.</translation>
    </message>
    <message>
        <source>REASON_HOST_BROKE_DOWN</source>
        <translation>El programa gráfico terminó sin resultado, como ocurre cuando se pierde la pantalla.</translation>
    </message>
    <message>
        <source>REASON_HOST_HUNG</source>
        <translation>El programa gráfico no llegó a terminar.</translation>
    </message>
    <message>
        <source>REASON_HOST_NOT_STARTED</source>
        <translation>No se puede iniciar el programa gráfico: %1</translation>
    </message>
    <message>
        <source>REASON_NO_MODULE</source>
        <translation>El programa gráfico no puede usar el módulo de audio.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_GONE</source>
        <translation>El dispositivo «%1» ya no está.</translation>
    </message>
    <message>
        <source>REASON_NO_OUTPUT_DEVICE</source>
        <translation>No se encontró ningún dispositivo de salida.</translation>
    </message>
    <message>
        <source>REASON_NO_DISPLAY</source>
        <translation>El programa gráfico necesita una pantalla; pruebe xvfb-run.</translation>
    </message>
    <message>
        <source>REASON_HEARS_ANOTHER</source>
        <translation>«%1» escucha un dispositivo distinto de «%2», al que se culparía de su silencio.</translation>
    </message>
    <message>
        <source>REASON_VIRTUAL_DEVICE</source>
        <translation>«%1» es un dispositivo virtual: un resultado en él no dice nada sobre este equipo.</translation>
    </message>
    <message>
        <source>REASON_VIRTUAL_UNKNOWN</source>
        <translation>El servidor de sonido no responde: no se sabe si «%1» es un dispositivo virtual.</translation>
    </message>
    <message>
        <source>REASON_VOLUMES_HELD</source>
        <translation>Otra ejecución mantiene los volúmenes.</translation>
    </message>
    <message>
        <source>WARNING_IS_MUTED_AGAIN</source>
        <translation>«%1» estaba silenciado antes de la ejecución y ahora vuelve a estarlo.</translation>
    </message>
    <message>
        <source>WARNING_WAS_MUTED</source>
        <translation>«%1» estaba silenciado antes de la ejecución.</translation>
    </message>
    <message>
        <source>WARNING_IS_AT_ZERO_AGAIN</source>
        <translation>El volumen de «%1» era 0 antes de la ejecución y ahora vuelve a ser 0.</translation>
    </message>
    <message>
        <source>WARNING_WAS_AT_ZERO</source>
        <translation>El volumen de «%1» era 0 antes de la ejecución.</translation>
    </message>
    <message>
        <source>RUN_UNATTENDED_NO_SOURCE</source>
        <translation>Elija primero con qué se escucha, en «Fuente de escucha…» de este menú.</translation>
    </message>
    <message>
        <source>REASON_LISTENER_LOST</source>
        <translation>El programa de escucha se ha perdido durante la ejecución.</translation>
    </message>
    <message>
        <source>REASON_NOT_RECOGNISED</source>
        <translation>Se ha oído sonido, pero no se han reconocido los dígitos.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_DEAD</source>
        <translation>La fuente de captura no entrega nada.</translation>
    </message>
    <message>
        <source>REASON_ZEROS_ONLY</source>
        <translation>«%1» solo entrega ceros: está apagado, bloqueado o desconectado.</translation>
    </message>
    <message>
        <source>REASON_VOLUME_NOT_RAISED</source>
        <translation>No se ha podido subir el volumen.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_TURNED_DOWN</source>
        <translation>La fuente de captura se ha silenciado o se ha bajado su volumen.</translation>
    </message>
    <message>
        <source>REASON_NO_SUCH_SOURCE</source>
        <translation>Ninguna fuente de captura se llama «%1». Existen: %2</translation>
    </message>
    <message>
        <source>REASON_NO_SUCH_MICROPHONE</source>
        <translation>Ningún micrófono se llama «%1». Existen: %2</translation>
    </message>
    <message>
        <source>REASON_QUESTION_OPEN</source>
        <translation>Una pregunta de la prueba ha quedado sin respuesta.</translation>
    </message>
    <message>
        <source>REASON_SPEECH_DID_NOT_BEGIN</source>
        <translation>No se ha podido pronunciar la frase que se iba a grabar.</translation>
    </message>
    <message>
        <source>REASON_SENTENCE_NOT_HEARD</source>
        <translation>La frase que se iba a grabar no se ha oído al pronunciarse.</translation>
    </message>
    <message>
        <source>REASON_NO_SPEAKER</source>
        <translation>No se ha podido reproducir la voz: %1</translation>
    </message>
    <message>
        <source>REASON_DIALOG</source>
        <translation>Una ventana de la prueba no ha reaccionado como se esperaba.</translation>
    </message>
    <message>
        <source>REASON_ANSWERED_NO</source>
        <translation>A la pregunta de si se ha oído el mismo sonido se ha respondido «No».</translation>
    </message>
    <message>
        <source>REASON_ENDED_EARLY</source>
        <translation>La prueba se ha cerrado o cancelado antes de tener un resultado.</translation>
    </message>
    <message>
        <source>REASON_NONE_GIVEN</source>
        <translation>La prueba no ha indicado el motivo.</translation>
    </message>
    <message>
        <source>REASON_CHANNEL_COUNT_UNKNOWN</source>
        <translation>No se sabe cuántos canales tiene la fuente de captura.</translation>
    </message>
    <message>
        <source>REASON_ONE_CHANNEL</source>
        <translation>La fuente de captura tiene un solo canal.</translation>
    </message>
    <message>
        <source>REASON_NOTHING_HEARD</source>
        <translation>No se ha oído nada.</translation>
    </message>
    <message>
        <source>REASON_CHANNEL_SOFT</source>
        <translation>Un canal sonaba demasiado bajo para reconocerlo y demasiado alto para darlo por mudo.</translation>
    </message>
    <message>
        <source>REASON_SIDES_ALIKE</source>
        <translation>El micrófono oye los dos lados por igual.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_NOT_OPENED</source>
        <translation>No se ha podido escuchar la fuente de captura.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_NOT_OPENED</source>
        <translation>No se ha podido abrir el dispositivo.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_DID_NOT_PLAY</source>
        <translation>El dispositivo no ha reproducido nada.</translation>
    </message>
    <message>
        <source>REASON_NO_SERVER</source>
        <translation>El servidor de sonido no responde: no se pueden mostrar los dispositivos.</translation>
    </message>
    <message>
        <source>REASON_SERVER_SILENT</source>
        <translation>El servidor de sonido no responde: %1</translation>
    </message>
    <message>
        <source>REASON_TOLD</source>
        <translation>Un programa de la ejecución ha comunicado: %1</translation>
    </message>
    <message>
        <source>VALUE_NOT_KNOWN</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>TESTS</source>
        <translation>Pruebas</translation>
    </message>
    <message>
        <source>TEST</source>
        <translation>Prueba</translation>
    </message>
    <message>
        <source>TEST_DESCRIPTION</source>
        <translation>Descripción de la prueba</translation>
    </message>
    <message>
        <source>RUN_TEST</source>
        <translation>Ejecutar</translation>
    </message>
    <message>
        <source>RUN_TEST_HINT</source>
        <translation>Ejecuta la prueba elegida en el dispositivo elegido (%1).</translation>
    </message>
    <message>
        <source>STOP_TEST</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>STOP_TEST_HINT</source>
        <translation>Detiene la prueba en curso. %1 hace lo mismo y funciona también con una ventana de prueba abierta.</translation>
    </message>
    <message>
        <source>STOPPING</source>
        <translation>Deteniendo…</translation>
    </message>
    <message>
        <source>PROGRESS</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>MESSAGES</source>
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>NO_RESULT_YET</source>
        <translation>Aún no se ha ejecutado ninguna prueba.</translation>
    </message>
    <message>
        <source>TEST_IS_RUNNING</source>
        <translation>La prueba está en curso…</translation>
    </message>
    <message>
        <source>VERDICT_PASSED</source>
        <translation>Superada</translation>
    </message>
    <message>
        <source>VERDICT_FAILED</source>
        <translation>No superada</translation>
    </message>
    <message>
        <source>VERDICT_CANNOT_BE_PERFORMED</source>
        <translation>No se puede realizar</translation>
    </message>
    <message>
        <source>VERDICT_NOT_COMPLETED</source>
        <translation>No completada</translation>
    </message>
    <message>
        <source>VERDICT_STOPPED</source>
        <translation>Detenida</translation>
    </message>
    <message>
        <source>VERDICT_INVALID_CALL</source>
        <translation>No ejecutada: la prueba no se ha llamado correctamente</translation>
    </message>
    <message>
        <source>LEVEL_ERROR</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>LEVEL_NOTE</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>Ejecuciones desde el inicio</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>LANGUAGE</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>LOG</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>LOG_RUN_STARTED</source>
        <translation>Iniciada: %1, dispositivo «%2»</translation>
    </message>
    <message>
        <source>LOG_RUN_ENDED</source>
        <translation>Finalizada: %1, dispositivo «%2», resultado: %3</translation>
    </message>
    <message>
        <source>WITH_MICROPHONE</source>
        <translation>%1 (micrófono: %2)</translation>
    </message>
    <message>
        <source>LOG_PROGRESS</source>
        <translation>Progreso: %1 %</translation>
    </message>
    <message>
        <source>LOG_STOP_PRESSED</source>
        <translation>Se ha pulsado «Detener».</translation>
    </message>
    <message>
        <source>LOG_EVENT_SIMULATED</source>
        <translation>Se ha simulado el evento %1.</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_RESTORED</source>
        <translation>Una prueba anterior se interrumpió. Se ha restablecido el volumen de estos dispositivos: %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_LEFT</source>
        <translation>Una ejecución interrumpida había subido volúmenes que se cambiaron desde entonces. Se dejan como están: %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_PUT_BACK</source>
        <translation>Se ha restablecido el volumen de estos dispositivos: %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_UNPROTECTED</source>
        <translation>El volumen no se restablecería tras un fallo del programa: %1</translation>
    </message>
    <message>
        <source>LOG_LANGUAGE_CHANGED</source>
        <translation>Idioma: %1</translation>
    </message>
    <message>
        <source>LOG_LANGUAGE_NOT_SAVED</source>
        <translation>No se ha podido guardar el idioma en la carpeta «%1».</translation>
    </message>
    <message>
        <source>LOG_LIST_INCOMPLETE</source>
        <translation>No había memoria suficiente para leer todos los dispositivos.</translation>
    </message>
    <message>
        <source>LOG_DEVICE_GONE</source>
        <translation>El dispositivo «%1» ya no está disponible.</translation>
    </message>
    <message>
        <source>PROMPT_ACCEPT</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>PROMPT_DECLINE</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>MICROPHONE_TEST_INSTRUCTIONS</source>
        <translation>Va a grabar con un micrófono y después oirá la grabación. Durante la prueba, todos los volúmenes de reproducción y grabación de este equipo se pondrán al 100 % y se restablecerán después. Si lleva auriculares, quíteselos ahora.</translation>
    </message>
    <message>
        <source>UNATTENDED_INSTRUCTIONS</source>
        <translation>La prueba se ejecuta y se responde sola; mientras tanto, no use el ratón ni el teclado. Durante la prueba, todos los volúmenes de reproducción y grabación de este equipo se pondrán al 100 % y se restablecerán después. Si lleva auriculares, quíteselos ahora.</translation>
    </message>
    <message>
        <source>QUESTION_YES</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>QUESTION_NO</source>
        <translation>No</translation>
    </message>
    <message>
        <source>ENDPOINTS_RAISED</source>
        <translation>Durante la prueba, el volumen de estos dispositivos y micrófonos está al 100 %; después se restablece:</translation>
    </message>
    <message>
        <source>MENU_FILE</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>MENU_TEST</source>
        <translation>Prueba</translation>
    </message>
    <message>
        <source>MENU_LANGUAGE</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>MENU_DEVELOPER</source>
        <translation>Desarrollador</translation>
    </message>
    <message>
        <source>MENU_HELP</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>QUIT</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>ABOUT</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>ABOUT_VERSIONS</source>
        <translation>Versión del módulo: %1
Versión de este programa: %2</translation>
    </message>
    <message>
        <source>ABOUT_WHICH_VERSION</source>
        <translation>En consultas e informes de errores, indique la versión de este programa; la versión del módulo dice con qué módulo prueba.</translation>
    </message>
    <message>
        <source>SIMULATE_EVENT</source>
        <translation>Simular evento</translation>
    </message>
    <message>
        <source>EVENT_CANCELS</source>
        <translation>Evento %1 (cancela la prueba)</translation>
    </message>
    <message>
        <source>EVENT_DOES_NOT_CANCEL</source>
        <translation>Evento %1 (no cancela la prueba)</translation>
    </message>
    <message>
        <source>LANGUAGE_IS_FIXED</source>
        <translation>El idioma procede de la carpeta indicada con --config.</translation>
    </message>
    <message>
        <source>MODULE_CANNOT_BE_USED</source>
        <translation>No se puede usar el módulo de audio.</translation>
    </message>
    <message>
        <source>PROGRAM_IS_CLOSING</source>
        <translation>El programa se cerrará en cuanto la prueba se haya detenido.</translation>
    </message>
    <message>
        <source>METER_TITLE</source>
        <translation>Nivel de sonido</translation>
    </message>
    <message>
        <source>METER_SOURCE</source>
        <translation>Se escucha por: %1</translation>
    </message>
    <message>
        <source>METER_WORDS</source>
        <translation>Nivel %1 dBFS, pico %2 dBFS: %3</translation>
    </message>
    <message>
        <source>METER_SILENT</source>
        <translation>en silencio</translation>
    </message>
    <message>
        <source>METER_QUIET</source>
        <translation>bajo</translation>
    </message>
    <message>
        <source>METER_GOOD</source>
        <translation>bueno</translation>
    </message>
    <message>
        <source>METER_TOO_LOUD</source>
        <translation>demasiado alto</translation>
    </message>
    <message>
        <source>METER_NO_DATA</source>
        <translation>Aún no se ha oído nada.</translation>
    </message>
    <message>
        <source>METER_WAVE</source>
        <translation>Forma de onda de la última reproducción</translation>
    </message>
    <message>
        <source>METER_WAVE_WORDS</source>
        <translation>Reproducción de la grabación: %1 s, pico %2 dBFS</translation>
    </message>
    <message>
        <source>METER_DIGITS_WORDS</source>
        <translation>Las cifras tal como se oyeron: %1 s, pico %2 dBFS</translation>
    </message>
    <message>
        <source>PRECHECK_TITLE</source>
        <translation>Antes de la prueba</translation>
    </message>
    <message>
        <source>PRECHECK_REFUSED</source>
        <translation>No se puede realizar la prueba</translation>
    </message>
    <message>
        <source>PRECHECK_RUN</source>
        <translation>Ejecutar de todos modos</translation>
    </message>
    <message>
        <source>PRECHECK_CLOSE</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>SAVE_REPORT</source>
        <translation>Guardar informe…</translation>
    </message>
    <message>
        <source>COPY_REPORT</source>
        <translation>Copiar informe</translation>
    </message>
    <message>
        <source>LOG_REPORT_SAVED</source>
        <translation>Se ha guardado el informe: %1</translation>
    </message>
    <message>
        <source>LOG_REPORT_NOT_SAVED</source>
        <translation>No se ha podido guardar el informe: %1</translation>
    </message>
    <message>
        <source>LOG_REPORT_COPIED</source>
        <translation>Se ha copiado el informe como texto.</translation>
    </message>
    <message>
        <source>CHECK_CHANNELS</source>
        <translation>Comprobar canales…</translation>
    </message>
    <message>
        <source>CHANNELS_TITLE</source>
        <translation>Izquierda y derecha</translation>
    </message>
    <message>
        <source>CHANNELS_TEXT</source>
        <translation>Se dicen dos cifras por «%1», cada una por un solo lado y con el volumen actual. Reproduzca las dos e indique dónde las oye.</translation>
    </message>
    <message>
        <source>CHANNELS_FIRST</source>
        <translation>Primera cifra</translation>
    </message>
    <message>
        <source>CHANNELS_SECOND</source>
        <translation>Segunda cifra</translation>
    </message>
    <message>
        <source>CHANNELS_PLAY_FIRST</source>
        <translation>Reproducir la primera cifra</translation>
    </message>
    <message>
        <source>CHANNELS_PLAY_SECOND</source>
        <translation>Reproducir la segunda cifra</translation>
    </message>
    <message>
        <source>SIDE_LEFT</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>SIDE_RIGHT</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>SIDE_BOTH</source>
        <translation>Ambos lados</translation>
    </message>
    <message>
        <source>SIDE_NOTHING</source>
        <translation>Nada</translation>
    </message>
    <message>
        <source>CHANNELS_OPEN</source>
        <translation>El resultado aparece cuando se ha respondido a las dos cifras.</translation>
    </message>
    <message>
        <source>CHANNELS_STRAIGHT</source>
        <translation>La izquierda y la derecha están donde deben.</translation>
    </message>
    <message>
        <source>CHANNELS_SWAPPED</source>
        <translation>La izquierda y la derecha están intercambiadas.</translation>
    </message>
    <message>
        <source>CHANNELS_MIXED</source>
        <translation>La izquierda y la derecha están mezcladas y no se distinguen.</translation>
    </message>
    <message>
        <source>CHANNELS_LEFT_SILENT</source>
        <translation>El canal izquierdo no suena.</translation>
    </message>
    <message>
        <source>CHANNELS_RIGHT_SILENT</source>
        <translation>El canal derecho no suena.</translation>
    </message>
    <message>
        <source>CHANNELS_UNHEARD</source>
        <translation>No se ha oído nada. Suba el volumen y vuelva a reproducir las cifras.</translation>
    </message>
    <message>
        <source>CHANNELS_NOT_KNOWN</source>
        <translation>No se han podido medir la izquierda y la derecha: %1</translation>
    </message>
    <message>
        <source>CHANNELS_MEASURE</source>
        <translation>Medir con «%1»</translation>
    </message>
    <message>
        <source>CHANNELS_MEASURING</source>
        <translation>Escuchando «%1»…</translation>
    </message>
    <message>
        <source>CHANNELS_NOT_PLAYED</source>
        <translation>No se ha podido reproducir la cifra: %1</translation>
    </message>
    <message>
        <source>CHANNELS_ONCE_MORE</source>
        <translation>La cifra que no se ha oído se dice otra vez: puede que el dispositivo tuviera que activarse. Indique de nuevo dónde la oye.</translation>
    </message>
    <message>
        <source>CHANNELS_STALLED</source>
        <translation>No se ha podido reproducir la cifra: el sistema de sonido no responde. No se dice nada sobre este lado.</translation>
    </message>
    <message>
        <source>LOG_CHANNELS</source>
        <translation>Canales de «%1»: %2</translation>
    </message>
    <message>
        <source>LISTENING_SOURCE</source>
        <translation>Fuente de escucha…</translation>
    </message>
    <message>
        <source>SOURCE_TITLE</source>
        <translation>Fuente de escucha</translation>
    </message>
    <message>
        <source>SOURCE_TEXT</source>
        <translation>Lo que oye esta fuente se muestra junto a la prueba del micrófono y se mide en la comprobación de canales y en las ejecuciones sin nadie presente. Aparte de eso no se escucha nada.</translation>
    </message>
    <message>
        <source>SOURCE_NONE</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>SOURCE_READING</source>
        <translation>Leyendo las fuentes…</translation>
    </message>
    <message>
        <source>SOURCE_ABSENT</source>
        <translation>%1 (no conectada)</translation>
    </message>
    <message>
        <source>SOURCE_USE</source>
        <translation>Usar</translation>
    </message>
    <message>
        <source>LOG_SOURCE</source>
        <translation>Fuente de escucha: %1</translation>
    </message>
    <message>
        <source>LOG_SETTINGS_NOT_SAVED</source>
        <translation>No se ha podido guardar el ajuste en la carpeta «%1».</translation>
    </message>
    <message>
        <source>RUN_UNATTENDED</source>
        <translation>Ejecutar sin nadie presente</translation>
    </message>
    <message>
        <source>MEASUREMENTS</source>
        <translation>Mediciones</translation>
    </message>
    <message>
        <source>NOTHING_MEASURED</source>
        <translation>No se ha medido nada en la última ejecución.</translation>
    </message>
    <message>
        <source>DIGIT</source>
        <translation>Cifra</translation>
    </message>
    <message>
        <source>DIGIT_PLAYED</source>
        <translation>Emitida</translation>
    </message>
    <message>
        <source>DIGIT_HEARD</source>
        <translation>Oída</translation>
    </message>
    <message>
        <source>DIGIT_TYPED</source>
        <translation>Tecleada</translation>
    </message>
    <message>
        <source>DIGIT_SCORE</source>
        <translation>Parecido</translation>
    </message>
    <message>
        <source>DIGIT_LEVEL</source>
        <translation>Nivel (dBFS)</translation>
    </message>
    <message>
        <source>DIGIT_SNR</source>
        <translation>SNR (dB)</translation>
    </message>
    <message>
        <source>DIGIT_LATENCY</source>
        <translation>Latencia (ms)</translation>
    </message>
    <message>
        <source>PLOT_WAVE</source>
        <translation>Forma de onda de la cifra %1</translation>
    </message>
    <message>
        <source>PLOT_WAVE_WORDS</source>
        <translation>%1 s, pico %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_WAVE_AT</source>
        <translation>A los %1 s: de %2 a %3</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM</source>
        <translation>Espectro de la cifra %1</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM_WORDS</source>
        <translation>Máximo a %1 Hz: %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM_AT</source>
        <translation>%1 Hz: %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_KEYS</source>
        <translation>Las teclas de flecha leen valores sueltos.</translation>
    </message>
</context>
</TS>
