<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>HOST</name>
    <message>
        <source>DEVICES</source>
        <translation>Dispositivi di uscita</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>REFRESH_DEVICES</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>REFRESH_DEVICES_HINT</source>
        <translation>Rilegge l’elenco dei dispositivi di uscita (F5). L’elenco si aggiorna anche da solo quando un dispositivo viene collegato o scollegato.</translation>
    </message>
    <message>
        <source>READING_DEVICES</source>
        <translation>Lettura dei dispositivi di uscita…</translation>
    </message>
    <message>
        <source>DEVICES_FOUND</source>
        <translation>Dispositivi di uscita trovati: %1</translation>
    </message>
    <message>
        <source>NO_DEVICES</source>
        <translation>Nessun dispositivo di uscita trovato. Collegarne uno: l’elenco si aggiorna da solo.</translation>
    </message>
    <message>
        <source>SOUND_SERVER_SILENT</source>
        <translation>Il server audio non risponde: i dispositivi non possono essere elencati. Avviarlo, quindi aggiornare l’elenco.</translation>
    </message>
    <message>
        <source>DEVICE_STATE</source>
        <translation>Al momento</translation>
    </message>
    <message>
        <source>STATE_VOLUME</source>
        <translation>volume %1%</translation>
    </message>
    <message>
        <source>STATE_MUTED</source>
        <translation>audio disattivato</translation>
    </message>
    <message>
        <source>STATE_DEFAULT</source>
        <translation>predefinito</translation>
    </message>
    <message>
        <source>STATE_VIRTUAL</source>
        <translation>virtuale</translation>
    </message>
    <message>
        <source>PRECHECK_SOUND_SERVER_SILENT</source>
        <translation>Il server audio non risponde: non è stato possibile controllare il volume e la disattivazione dell’audio.</translation>
    </message>
    <message>
        <source>PRECHECK_DEVICE_MUTED</source>
        <translation>L’audio di «%1» è disattivato. Non è stato modificato nulla: il test lo attiva da sé durante l’esecuzione.</translation>
    </message>
    <message>
        <source>PRECHECK_DEVICE_AT_ZERO</source>
        <translation>Il volume di «%1» è a 0. Non è stato modificato nulla: il test lo alza da sé durante l’esecuzione.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIPS_MISSING</source>
        <translation>Mancano le cifre parlate della lingua %1. Non è possibile eseguire il test.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIP_DAMAGED</source>
        <translation>Il file audio %1 manca o non è quello fornito. Non è possibile eseguire il test: la colpa verrebbe attribuita al dispositivo.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIPS_UNCHECKED</source>
        <translation>Non esiste un elenco dei file audio forniti: non è stato possibile controllarli.</translation>
    </message>
    <message>
        <source>PRECHECK_MICROPHONE_BLOCKED</source>
        <translation>Le impostazioni di privacy del sistema negano il microfono ai programmi: registrerebbe solo silenzio.</translation>
    </message>
    <message>
        <source>PRECHECK_SOURCE_MUTED</source>
        <translation>L’audio della sorgente di acquisizione «%1» è disattivato. Non è possibile eseguire il test: la colpa verrebbe attribuita al dispositivo.</translation>
    </message>
    <message>
        <source>PRECHECK_SOURCE_AT_ZERO</source>
        <translation>Il volume della sorgente di acquisizione «%1» è a 0. Non è possibile eseguire il test: la colpa verrebbe attribuita al dispositivo.</translation>
    </message>
    <message>
        <source>REASON_STOPPED</source>
        <translation>L’esecuzione è stata interrotta.</translation>
    </message>
    <message>
        <source>REASON_TOOK_TOO_LONG</source>
        <translation>L’esecuzione è durata più di cinque minuti.</translation>
    </message>
    <message>
        <source>REASON_RUN_NOT_TAKEN</source>
        <translation>L’esecuzione non è potuta iniziare: ne è in corso un’altra o il dispositivo non c’è più.</translation>
    </message>
    <message>
        <source>REASON_HOST_BROKE_DOWN</source>
        <translation>Il programma grafico è terminato senza un esito, come accade quando si perde lo schermo.</translation>
    </message>
    <message>
        <source>REASON_HOST_HUNG</source>
        <translation>Il programma grafico non è giunto al termine.</translation>
    </message>
    <message>
        <source>REASON_HOST_NOT_STARTED</source>
        <translation>Impossibile avviare il programma grafico: %1</translation>
    </message>
    <message>
        <source>REASON_NO_MODULE</source>
        <translation>Il programma grafico non può usare il modulo audio.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_GONE</source>
        <translation>Il dispositivo «%1» non c’è più.</translation>
    </message>
    <message>
        <source>REASON_NO_OUTPUT_DEVICE</source>
        <translation>Non è stato trovato alcun dispositivo di uscita.</translation>
    </message>
    <message>
        <source>REASON_NO_DISPLAY</source>
        <translation>Il programma grafico ha bisogno di uno schermo; provare xvfb-run.</translation>
    </message>
    <message>
        <source>REASON_HEARS_ANOTHER</source>
        <translation>«%1» ascolta un dispositivo diverso da «%2», a cui verrebbe attribuito il silenzio.</translation>
    </message>
    <message>
        <source>REASON_VIRTUAL_DEVICE</source>
        <translation>«%1» è un dispositivo virtuale: un risultato su di esso non dice nulla su questo computer.</translation>
    </message>
    <message>
        <source>REASON_VIRTUAL_UNKNOWN</source>
        <translation>Il server audio non risponde: non si sa se «%1» sia un dispositivo virtuale.</translation>
    </message>
    <message>
        <source>REASON_VOLUMES_HELD</source>
        <translation>Un’altra esecuzione mantiene i volumi.</translation>
    </message>
    <message>
        <source>WARNING_IS_MUTED_AGAIN</source>
        <translation>L’audio di «%1» era disattivato prima dell’esecuzione e ora lo è di nuovo.</translation>
    </message>
    <message>
        <source>WARNING_WAS_MUTED</source>
        <translation>L’audio di «%1» era disattivato prima dell’esecuzione.</translation>
    </message>
    <message>
        <source>WARNING_IS_AT_ZERO_AGAIN</source>
        <translation>Il volume di «%1» era a 0 prima dell’esecuzione e ora lo è di nuovo.</translation>
    </message>
    <message>
        <source>WARNING_WAS_AT_ZERO</source>
        <translation>Il volume di «%1» era a 0 prima dell’esecuzione.</translation>
    </message>
    <message>
        <source>RUN_UNATTENDED_NO_SOURCE</source>
        <translation>Scegliere prima che cosa ascolta, con «Sorgente di ascolto…» in questo menu.</translation>
    </message>
    <message>
        <source>REASON_LISTENER_LOST</source>
        <translation>Il programma di ascolto è andato perso durante l’esecuzione.</translation>
    </message>
    <message>
        <source>REASON_NOT_RECOGNISED</source>
        <translation>È stato sentito un suono, ma le cifre non sono state riconosciute.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_DEAD</source>
        <translation>La sorgente di acquisizione non fornisce alcun segnale.</translation>
    </message>
    <message>
        <source>REASON_ZEROS_ONLY</source>
        <translation>«%1» fornisce solo zeri: è spento, bloccato o non collegato.</translation>
    </message>
    <message>
        <source>REASON_VOLUME_NOT_RAISED</source>
        <translation>Impossibile alzare il volume.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_TURNED_DOWN</source>
        <translation>La sorgente di acquisizione è stata disattivata o abbassata.</translation>
    </message>
    <message>
        <source>REASON_NO_SUCH_SOURCE</source>
        <translation>Nessuna sorgente di acquisizione si chiama «%1». Presenti: %2</translation>
    </message>
    <message>
        <source>REASON_NO_SUCH_MICROPHONE</source>
        <translation>Nessun microfono si chiama «%1». Presenti: %2</translation>
    </message>
    <message>
        <source>REASON_QUESTION_OPEN</source>
        <translation>Una domanda del test è rimasta senza risposta.</translation>
    </message>
    <message>
        <source>REASON_SPEECH_DID_NOT_BEGIN</source>
        <translation>Impossibile pronunciare la frase da registrare.</translation>
    </message>
    <message>
        <source>REASON_SENTENCE_NOT_HEARD</source>
        <translation>La frase da registrare non è stata udita quando è stata pronunciata.</translation>
    </message>
    <message>
        <source>REASON_NO_SPEAKER</source>
        <translation>Non è stato possibile riprodurre la voce: %1</translation>
    </message>
    <message>
        <source>REASON_DIALOG</source>
        <translation>Una finestra del test non ha reagito come previsto.</translation>
    </message>
    <message>
        <source>REASON_ANSWERED_NO</source>
        <translation>Alla domanda se si è sentito lo stesso suono è stato risposto «No».</translation>
    </message>
    <message>
        <source>REASON_ENDED_EARLY</source>
        <translation>Il test è stato chiuso o annullato prima di avere un risultato.</translation>
    </message>
    <message>
        <source>REASON_NONE_GIVEN</source>
        <translation>Il test non ha indicato il motivo.</translation>
    </message>
    <message>
        <source>REASON_CHANNEL_COUNT_UNKNOWN</source>
        <translation>Non si sa quanti canali abbia la sorgente di acquisizione.</translation>
    </message>
    <message>
        <source>REASON_ONE_CHANNEL</source>
        <translation>La sorgente di acquisizione ha un solo canale.</translation>
    </message>
    <message>
        <source>REASON_NOTHING_HEARD</source>
        <translation>Non si è sentito nulla.</translation>
    </message>
    <message>
        <source>REASON_CHANNEL_SOFT</source>
        <translation>Un canale era troppo debole per essere riconosciuto e troppo forte per essere considerato muto.</translation>
    </message>
    <message>
        <source>REASON_SIDES_ALIKE</source>
        <translation>Il microfono sente i due lati allo stesso modo.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_NOT_OPENED</source>
        <translation>Non è stato possibile ascoltare la sorgente di acquisizione.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_NOT_OPENED</source>
        <translation>Non è stato possibile aprire il dispositivo.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_DID_NOT_PLAY</source>
        <translation>Il dispositivo non ha riprodotto nulla.</translation>
    </message>
    <message>
        <source>REASON_NO_SERVER</source>
        <translation>Il server audio non risponde: i dispositivi non possono essere elencati.</translation>
    </message>
    <message>
        <source>REASON_SERVER_SILENT</source>
        <translation>Il server audio non risponde: %1</translation>
    </message>
    <message>
        <source>REASON_TOLD</source>
        <translation>Un programma dell’esecuzione ha segnalato: %1</translation>
    </message>
    <message>
        <source>VALUE_NOT_KNOWN</source>
        <translation>sconosciuto</translation>
    </message>
    <message>
        <source>TESTS</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>TEST</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>TEST_DESCRIPTION</source>
        <translation>Descrizione del test</translation>
    </message>
    <message>
        <source>RUN_TEST</source>
        <translation>Esegui</translation>
    </message>
    <message>
        <source>RUN_TEST_HINT</source>
        <translation>Esegue il test scelto sul dispositivo scelto (%1).</translation>
    </message>
    <message>
        <source>STOP_TEST</source>
        <translation>Interrompi</translation>
    </message>
    <message>
        <source>STOP_TEST_HINT</source>
        <translation>Interrompe il test in corso. %1 fa lo stesso e funziona anche con una finestra di test aperta.</translation>
    </message>
    <message>
        <source>STOPPING</source>
        <translation>Interruzione in corso…</translation>
    </message>
    <message>
        <source>PROGRESS</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>MESSAGES</source>
        <translation>Messaggi</translation>
    </message>
    <message>
        <source>NO_RESULT_YET</source>
        <translation>Non è stato ancora eseguito alcun test.</translation>
    </message>
    <message>
        <source>TEST_IS_RUNNING</source>
        <translation>Il test è in corso…</translation>
    </message>
    <message>
        <source>VERDICT_PASSED</source>
        <translation>Superato</translation>
    </message>
    <message>
        <source>VERDICT_FAILED</source>
        <translation>Non superato</translation>
    </message>
    <message>
        <source>VERDICT_CANNOT_BE_PERFORMED</source>
        <translation>Non eseguibile</translation>
    </message>
    <message>
        <source>VERDICT_NOT_COMPLETED</source>
        <translation>Non completato</translation>
    </message>
    <message>
        <source>VERDICT_STOPPED</source>
        <translation>Interrotto</translation>
    </message>
    <message>
        <source>VERDICT_INVALID_CALL</source>
        <translation>Non eseguito: il test non è stato chiamato correttamente</translation>
    </message>
    <message>
        <source>LEVEL_ERROR</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>LEVEL_NOTE</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>Esecuzioni dall’avvio</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>LANGUAGE</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>LOG</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>LOG_RUN_STARTED</source>
        <translation>Avviato: %1, dispositivo «%2»</translation>
    </message>
    <message>
        <source>LOG_RUN_ENDED</source>
        <translation>Terminato: %1, dispositivo «%2», risultato: %3</translation>
    </message>
    <message>
        <source>WITH_MICROPHONE</source>
        <translation>%1 (microfono: %2)</translation>
    </message>
    <message>
        <source>LOG_PROGRESS</source>
        <translation>Avanzamento: %1%</translation>
    </message>
    <message>
        <source>LOG_STOP_PRESSED</source>
        <translation>È stato premuto «Interrompi».</translation>
    </message>
    <message>
        <source>LOG_EVENT_SIMULATED</source>
        <translation>È stato simulato l’evento %1.</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_RESTORED</source>
        <translation>Un test precedente è stato interrotto. È stato ripristinato il volume di questi dispositivi: %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_LEFT</source>
        <translation>Un’esecuzione interrotta aveva alzato volumi che da allora sono stati modificati. Restano come sono: %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_PUT_BACK</source>
        <translation>È stato ripristinato il volume di questi dispositivi: %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_UNPROTECTED</source>
        <translation>Il volume non verrebbe ripristinato dopo un arresto anomalo: %1</translation>
    </message>
    <message>
        <source>LOG_LANGUAGE_CHANGED</source>
        <translation>Lingua: %1</translation>
    </message>
    <message>
        <source>LOG_LANGUAGE_NOT_SAVED</source>
        <translation>Impossibile salvare la lingua nella cartella «%1».</translation>
    </message>
    <message>
        <source>LOG_LIST_INCOMPLETE</source>
        <translation>Memoria insufficiente per leggere tutti i dispositivi.</translation>
    </message>
    <message>
        <source>LOG_DEVICE_GONE</source>
        <translation>Il dispositivo «%1» non è più disponibile.</translation>
    </message>
    <message>
        <source>PROMPT_ACCEPT</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>PROMPT_DECLINE</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>MICROPHONE_TEST_INSTRUCTIONS</source>
        <translation>Si registrerà con un microfono e poi si ascolterà la registrazione. Durante il test tutti i volumi di riproduzione e di registrazione di questo computer vengono portati al 100% e poi ripristinati. Se si indossano le cuffie, toglierle ora.</translation>
    </message>
    <message>
        <source>UNATTENDED_INSTRUCTIONS</source>
        <translation>Il test si svolge e risponde da solo; nel frattempo non usare né mouse né tastiera. Durante il test tutti i volumi di riproduzione e di registrazione di questo computer vengono portati al 100% e poi ripristinati. Se si indossano le cuffie, toglierle ora.</translation>
    </message>
    <message>
        <source>QUESTION_YES</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>QUESTION_NO</source>
        <translation>No</translation>
    </message>
    <message>
        <source>ENDPOINTS_RAISED</source>
        <translation>Durante il test il volume di questi dispositivi e microfoni è al 100%; al termine viene ripristinato:</translation>
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
        <translation>Lingua</translation>
    </message>
    <message>
        <source>MENU_DEVELOPER</source>
        <translation>Sviluppatore</translation>
    </message>
    <message>
        <source>MENU_HELP</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>QUIT</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>ABOUT</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>ABOUT_VERSIONS</source>
        <translation>Versione del modulo: %1
Versione di questo programma: %2</translation>
    </message>
    <message>
        <source>ABOUT_WHICH_VERSION</source>
        <translation>Nelle domande e nelle segnalazioni di errori, indicare la versione di questo programma; quella del modulo dice con quale modulo esegue i test.</translation>
    </message>
    <message>
        <source>SIMULATE_EVENT</source>
        <translation>Simula evento</translation>
    </message>
    <message>
        <source>EVENT_CANCELS</source>
        <translation>Evento %1 (annulla il test)</translation>
    </message>
    <message>
        <source>EVENT_DOES_NOT_CANCEL</source>
        <translation>Evento %1 (non annulla il test)</translation>
    </message>
    <message>
        <source>LANGUAGE_IS_FIXED</source>
        <translation>La lingua proviene dalla cartella indicata con --config.</translation>
    </message>
    <message>
        <source>MODULE_CANNOT_BE_USED</source>
        <translation>Impossibile usare il modulo audio.</translation>
    </message>
    <message>
        <source>PROGRAM_IS_CLOSING</source>
        <translation>Il programma si chiuderà non appena il test si sarà interrotto.</translation>
    </message>
    <message>
        <source>METER_TITLE</source>
        <translation>Livello del suono</translation>
    </message>
    <message>
        <source>METER_SOURCE</source>
        <translation>Ascoltato da: %1</translation>
    </message>
    <message>
        <source>METER_WORDS</source>
        <translation>Livello %1 dBFS, picco %2 dBFS: %3</translation>
    </message>
    <message>
        <source>METER_SILENT</source>
        <translation>silenzioso</translation>
    </message>
    <message>
        <source>METER_QUIET</source>
        <translation>debole</translation>
    </message>
    <message>
        <source>METER_GOOD</source>
        <translation>buono</translation>
    </message>
    <message>
        <source>METER_TOO_LOUD</source>
        <translation>troppo forte</translation>
    </message>
    <message>
        <source>METER_NO_DATA</source>
        <translation>Non è stato ancora sentito nulla.</translation>
    </message>
    <message>
        <source>METER_WAVE</source>
        <translation>Forma d’onda dell’ultima riproduzione</translation>
    </message>
    <message>
        <source>METER_WAVE_WORDS</source>
        <translation>Riproduzione della registrazione: %1 s, picco %2 dBFS</translation>
    </message>
    <message>
        <source>METER_DIGITS_WORDS</source>
        <translation>Le cifre come sono state sentite: %1 s, picco %2 dBFS</translation>
    </message>
    <message>
        <source>PRECHECK_TITLE</source>
        <translation>Prima del test</translation>
    </message>
    <message>
        <source>PRECHECK_REFUSED</source>
        <translation>Il test non può essere eseguito</translation>
    </message>
    <message>
        <source>PRECHECK_RUN</source>
        <translation>Esegui comunque</translation>
    </message>
    <message>
        <source>PRECHECK_CLOSE</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>SAVE_REPORT</source>
        <translation>Salva rapporto…</translation>
    </message>
    <message>
        <source>COPY_REPORT</source>
        <translation>Copia rapporto</translation>
    </message>
    <message>
        <source>LOG_REPORT_SAVED</source>
        <translation>Il rapporto è stato salvato: %1</translation>
    </message>
    <message>
        <source>LOG_REPORT_NOT_SAVED</source>
        <translation>Impossibile salvare il rapporto: %1</translation>
    </message>
    <message>
        <source>LOG_REPORT_COPIED</source>
        <translation>Il rapporto è stato copiato come testo.</translation>
    </message>
    <message>
        <source>CHECK_CHANNELS</source>
        <translation>Controlla i canali…</translation>
    </message>
    <message>
        <source>CHANNELS_TITLE</source>
        <translation>Sinistra e destra</translation>
    </message>
    <message>
        <source>CHANNELS_TEXT</source>
        <translation>Su «%1» vengono pronunciate due cifre, ciascuna da un solo lato, al volume attuale. Riproducile entrambe e indica dove le senti.</translation>
    </message>
    <message>
        <source>CHANNELS_FIRST</source>
        <translation>Prima cifra</translation>
    </message>
    <message>
        <source>CHANNELS_SECOND</source>
        <translation>Seconda cifra</translation>
    </message>
    <message>
        <source>CHANNELS_PLAY_FIRST</source>
        <translation>Riproduci la prima cifra</translation>
    </message>
    <message>
        <source>CHANNELS_PLAY_SECOND</source>
        <translation>Riproduci la seconda cifra</translation>
    </message>
    <message>
        <source>SIDE_LEFT</source>
        <translation>A sinistra</translation>
    </message>
    <message>
        <source>SIDE_RIGHT</source>
        <translation>A destra</translation>
    </message>
    <message>
        <source>SIDE_BOTH</source>
        <translation>Da entrambi i lati</translation>
    </message>
    <message>
        <source>SIDE_NOTHING</source>
        <translation>Da nessuna parte</translation>
    </message>
    <message>
        <source>CHANNELS_OPEN</source>
        <translation>Il risultato appare quando hai risposto per entrambe le cifre.</translation>
    </message>
    <message>
        <source>CHANNELS_STRAIGHT</source>
        <translation>Sinistra e destra sono al posto giusto.</translation>
    </message>
    <message>
        <source>CHANNELS_SWAPPED</source>
        <translation>Sinistra e destra sono scambiate.</translation>
    </message>
    <message>
        <source>CHANNELS_MIXED</source>
        <translation>Sinistra e destra sono mescolate e non si distinguono.</translation>
    </message>
    <message>
        <source>CHANNELS_LEFT_SILENT</source>
        <translation>Il canale sinistro è muto.</translation>
    </message>
    <message>
        <source>CHANNELS_RIGHT_SILENT</source>
        <translation>Il canale destro è muto.</translation>
    </message>
    <message>
        <source>CHANNELS_UNHEARD</source>
        <translation>Non si è sentito nulla. Alza il volume e riproduci di nuovo le cifre.</translation>
    </message>
    <message>
        <source>CHANNELS_NOT_KNOWN</source>
        <translation>Non è stato possibile misurare sinistra e destra: %1</translation>
    </message>
    <message>
        <source>CHANNELS_MEASURE</source>
        <translation>Misura con «%1»</translation>
    </message>
    <message>
        <source>CHANNELS_MEASURING</source>
        <translation>Ascolto di «%1»…</translation>
    </message>
    <message>
        <source>CHANNELS_NOT_PLAYED</source>
        <translation>Non è stato possibile riprodurre la cifra: %1</translation>
    </message>
    <message>
        <source>CHANNELS_ONCE_MORE</source>
        <translation>La cifra che non si è sentita viene pronunciata ancora una volta: forse il dispositivo doveva riattivarsi. Indica di nuovo dove la senti.</translation>
    </message>
    <message>
        <source>CHANNELS_STALLED</source>
        <translation>Non è stato possibile riprodurre la cifra: il sistema audio non risponde. Su questo lato non si dice nulla.</translation>
    </message>
    <message>
        <source>LOG_CHANNELS</source>
        <translation>Canali di «%1»: %2</translation>
    </message>
    <message>
        <source>LISTENING_SOURCE</source>
        <translation>Sorgente di ascolto…</translation>
    </message>
    <message>
        <source>SOURCE_TITLE</source>
        <translation>Sorgente di ascolto</translation>
    </message>
    <message>
        <source>SOURCE_TEXT</source>
        <translation>Ciò che questa sorgente sente è mostrato accanto al test del microfono e misurato nel controllo dei canali e nelle esecuzioni senza nessuno presente. Per il resto non si ascolta nulla.</translation>
    </message>
    <message>
        <source>SOURCE_NONE</source>
        <translation>Nessuna</translation>
    </message>
    <message>
        <source>SOURCE_READING</source>
        <translation>Lettura delle sorgenti…</translation>
    </message>
    <message>
        <source>SOURCE_ABSENT</source>
        <translation>%1 (non collegata)</translation>
    </message>
    <message>
        <source>SOURCE_USE</source>
        <translation>Usa</translation>
    </message>
    <message>
        <source>LOG_SOURCE</source>
        <translation>Sorgente di ascolto: %1</translation>
    </message>
    <message>
        <source>LOG_SETTINGS_NOT_SAVED</source>
        <translation>Impossibile salvare l’impostazione nella cartella «%1».</translation>
    </message>
    <message>
        <source>RUN_UNATTENDED</source>
        <translation>Esegui senza nessuno presente</translation>
    </message>
    <message>
        <source>MEASUREMENTS</source>
        <translation>Misure</translation>
    </message>
    <message>
        <source>NOTHING_MEASURED</source>
        <translation>Nell’ultima esecuzione non è stato misurato nulla.</translation>
    </message>
    <message>
        <source>DIGIT</source>
        <translation>Cifra</translation>
    </message>
    <message>
        <source>DIGIT_PLAYED</source>
        <translation>Emessa</translation>
    </message>
    <message>
        <source>DIGIT_HEARD</source>
        <translation>Sentita</translation>
    </message>
    <message>
        <source>DIGIT_TYPED</source>
        <translation>Digitata</translation>
    </message>
    <message>
        <source>DIGIT_SCORE</source>
        <translation>Somiglianza</translation>
    </message>
    <message>
        <source>DIGIT_LEVEL</source>
        <translation>Livello (dBFS)</translation>
    </message>
    <message>
        <source>DIGIT_SNR</source>
        <translation>SNR (dB)</translation>
    </message>
    <message>
        <source>DIGIT_LATENCY</source>
        <translation>Latenza (ms)</translation>
    </message>
    <message>
        <source>PLOT_WAVE</source>
        <translation>Forma d’onda della cifra %1</translation>
    </message>
    <message>
        <source>PLOT_WAVE_WORDS</source>
        <translation>%1 s, picco %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_WAVE_AT</source>
        <translation>A %1 s: da %2 a %3</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM</source>
        <translation>Spettro della cifra %1</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM_WORDS</source>
        <translation>Massimo a %1 Hz: %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM_AT</source>
        <translation>%1 Hz: %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_KEYS</source>
        <translation>I tasti freccia leggono i singoli valori.</translation>
    </message>
</context>
</TS>
