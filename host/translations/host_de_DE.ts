<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>HOST</name>
    <message>
        <source>DEVICES</source>
        <translation>Ausgabegeräte</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>REFRESH_DEVICES</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>REFRESH_DEVICES_HINT</source>
        <translation>Liest die Liste der Ausgabegeräte neu ein (F5). Die Liste aktualisiert sich auch selbst, wenn ein Gerät hinzukommt oder wegfällt.</translation>
    </message>
    <message>
        <source>READING_DEVICES</source>
        <translation>Ausgabegeräte werden eingelesen…</translation>
    </message>
    <message>
        <source>DEVICES_FOUND</source>
        <translation>Gefundene Ausgabegeräte: %1</translation>
    </message>
    <message>
        <source>NO_DEVICES</source>
        <translation>Es wurde kein Ausgabegerät gefunden. Schließen Sie eines an. Die Liste aktualisiert sich selbst.</translation>
    </message>
    <message>
        <source>SOUND_SERVER_SILENT</source>
        <translation>Der Soundserver antwortet nicht: Die Geräte können nicht aufgelistet werden. Starten Sie ihn und lesen Sie die Liste dann neu ein.</translation>
    </message>
    <message>
        <source>DEVICE_STATE</source>
        <translation>Derzeit</translation>
    </message>
    <message>
        <source>STATE_VOLUME</source>
        <translation>Lautstärke %1 %</translation>
    </message>
    <message>
        <source>STATE_MUTED</source>
        <translation>stummgeschaltet</translation>
    </message>
    <message>
        <source>STATE_DEFAULT</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>STATE_VIRTUAL</source>
        <translation>virtuell</translation>
    </message>
    <message>
        <source>PRECHECK_SOUND_SERVER_SILENT</source>
        <translation>Der Soundserver antwortet nicht: Lautstärke und Stummschaltung konnten nicht geprüft werden.</translation>
    </message>
    <message>
        <source>PRECHECK_DEVICE_MUTED</source>
        <translation>„%1“ ist stummgeschaltet. Daran wurde nichts geändert: Der Test schaltet den Ton für seine Dauer selbst ein.</translation>
    </message>
    <message>
        <source>PRECHECK_DEVICE_AT_ZERO</source>
        <translation>Die Lautstärke von „%1“ ist 0. Daran wurde nichts geändert: Der Test erhöht sie für seine Dauer selbst.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIPS_MISSING</source>
        <translation>Die gesprochenen Ziffern der Sprache %1 fehlen. Der Test kann nicht ausgeführt werden.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIP_DAMAGED</source>
        <translation>Die Tondatei %1 fehlt oder ist nicht die mitgelieferte. Der Test kann nicht ausgeführt werden: Der Fehler würde dem Gerät angelastet.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIPS_UNCHECKED</source>
        <translation>Es gibt keine Liste der mitgelieferten Tondateien: Sie konnten nicht geprüft werden.</translation>
    </message>
    <message>
        <source>PRECHECK_MICROPHONE_BLOCKED</source>
        <translation>Die Datenschutzeinstellungen des Systems sperren das Mikrofon für Programme: Es würde nur Stille aufnehmen.</translation>
    </message>
    <message>
        <source>PRECHECK_SOURCE_MUTED</source>
        <translation>Die Aufnahmequelle „%1“ ist stummgeschaltet. Der Test kann nicht ausgeführt werden: Der Fehler würde dem Gerät angelastet.</translation>
    </message>
    <message>
        <source>PRECHECK_SOURCE_AT_ZERO</source>
        <translation>Die Lautstärke der Aufnahmequelle „%1“ ist 0. Der Test kann nicht ausgeführt werden: Der Fehler würde dem Gerät angelastet.</translation>
    </message>
    <message>
        <source>REASON_STOPPED</source>
        <translation>Der Durchlauf wurde gestoppt.</translation>
    </message>
    <message>
        <source>REASON_TOOK_TOO_LONG</source>
        <translation>Der Durchlauf dauerte länger als fünf Minuten.</translation>
    </message>
    <message>
        <source>REASON_RUN_NOT_TAKEN</source>
        <translation>Der Durchlauf konnte nicht beginnen: Ein anderer läuft gerade, oder das Gerät ist nicht mehr da.</translation>
    </message>
    <message>
        <source>REASON_HOST_BROKE_DOWN</source>
        <translation>Das grafische Programm endete ohne Ergebnis, wie es bei einem Verlust der Anzeige geschieht.</translation>
    </message>
    <message>
        <source>REASON_HOST_HUNG</source>
        <translation>Das grafische Programm kam zu keinem Ende.</translation>
    </message>
    <message>
        <source>REASON_HOST_NOT_STARTED</source>
        <translation>Das grafische Programm lässt sich nicht starten: %1</translation>
    </message>
    <message>
        <source>REASON_NO_MODULE</source>
        <translation>Das grafische Programm kann das Audiomodul nicht verwenden.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_GONE</source>
        <translation>Das Gerät „%1“ ist nicht mehr da.</translation>
    </message>
    <message>
        <source>REASON_NO_OUTPUT_DEVICE</source>
        <translation>Es wurde kein Ausgabegerät gefunden.</translation>
    </message>
    <message>
        <source>REASON_NO_DISPLAY</source>
        <translation>Das grafische Programm braucht eine Anzeige (Display); versuchen Sie xvfb-run.</translation>
    </message>
    <message>
        <source>REASON_HEARS_ANOTHER</source>
        <translation>„%1“ hört ein anderes Gerät als „%2“, dem dessen Stille angelastet würde.</translation>
    </message>
    <message>
        <source>REASON_VIRTUAL_DEVICE</source>
        <translation>„%1“ ist ein virtuelles Gerät: Ein Ergebnis darauf sagt nichts über diesen Computer aus.</translation>
    </message>
    <message>
        <source>REASON_VIRTUAL_UNKNOWN</source>
        <translation>Der Soundserver antwortet nicht: Ob „%1“ ein virtuelles Gerät ist, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>REASON_VOLUMES_HELD</source>
        <translation>Ein anderer Durchlauf hält die Lautstärken.</translation>
    </message>
    <message>
        <source>WARNING_IS_MUTED_AGAIN</source>
        <translation>„%1“ war vor dem Durchlauf stummgeschaltet und ist es jetzt wieder.</translation>
    </message>
    <message>
        <source>WARNING_WAS_MUTED</source>
        <translation>„%1“ war vor dem Durchlauf stummgeschaltet.</translation>
    </message>
    <message>
        <source>WARNING_IS_AT_ZERO_AGAIN</source>
        <translation>Die Lautstärke von „%1“ war vor dem Durchlauf 0 und ist es jetzt wieder.</translation>
    </message>
    <message>
        <source>WARNING_WAS_AT_ZERO</source>
        <translation>Die Lautstärke von „%1“ war vor dem Durchlauf 0.</translation>
    </message>
    <message>
        <source>RUN_UNATTENDED_NO_SOURCE</source>
        <translation>Wählen Sie zuerst im Menü „Hörquelle…“, womit zugehört wird.</translation>
    </message>
    <message>
        <source>REASON_LISTENER_LOST</source>
        <translation>Das zuhörende Programm fiel während des Durchlaufs aus.</translation>
    </message>
    <message>
        <source>REASON_NOT_RECOGNISED</source>
        <translation>Es war Ton zu hören, aber die Ziffern wurden nicht erkannt.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_DEAD</source>
        <translation>Die Aufnahmequelle liefert überhaupt nichts.</translation>
    </message>
    <message>
        <source>REASON_ZEROS_ONLY</source>
        <translation>„%1“ liefert nur Nullen: Es ist ausgeschaltet, gesperrt oder nicht angeschlossen.</translation>
    </message>
    <message>
        <source>REASON_VOLUME_NOT_RAISED</source>
        <translation>Die Lautstärke konnte nicht erhöht werden.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_TURNED_DOWN</source>
        <translation>Die Aufnahmequelle wurde stummgeschaltet oder leiser gestellt.</translation>
    </message>
    <message>
        <source>REASON_NO_SUCH_SOURCE</source>
        <translation>Keine Aufnahmequelle heißt „%1“. Vorhanden: %2</translation>
    </message>
    <message>
        <source>REASON_NO_SUCH_MICROPHONE</source>
        <translation>Kein Mikrofon heißt „%1“. Vorhanden: %2</translation>
    </message>
    <message>
        <source>REASON_QUESTION_OPEN</source>
        <translation>Eine Frage des Tests blieb ohne Antwort.</translation>
    </message>
    <message>
        <source>REASON_SPEECH_DID_NOT_BEGIN</source>
        <translation>Der aufzunehmende Satz konnte nicht gesprochen werden.</translation>
    </message>
    <message>
        <source>REASON_SENTENCE_NOT_HEARD</source>
        <translation>Der aufzunehmende Satz war nicht zu hören, als er gesprochen wurde.</translation>
    </message>
    <message>
        <source>REASON_NO_SPEAKER</source>
        <translation>Die Sprachansage konnte nicht abgespielt werden: %1</translation>
    </message>
    <message>
        <source>REASON_DIALOG</source>
        <translation>Ein Fenster des Tests reagierte nicht wie erwartet.</translation>
    </message>
    <message>
        <source>REASON_ANSWERED_NO</source>
        <translation>Die Frage, ob derselbe Ton zu hören war, wurde mit „Nein“ beantwortet.</translation>
    </message>
    <message>
        <source>REASON_ENDED_EARLY</source>
        <translation>Der Test wurde vor einem Ergebnis geschlossen oder abgebrochen.</translation>
    </message>
    <message>
        <source>REASON_NONE_GIVEN</source>
        <translation>Der Test nannte keinen Grund.</translation>
    </message>
    <message>
        <source>REASON_CHANNEL_COUNT_UNKNOWN</source>
        <translation>Es ist nicht bekannt, wie viele Kanäle die Aufnahmequelle hat.</translation>
    </message>
    <message>
        <source>REASON_ONE_CHANNEL</source>
        <translation>Die Aufnahmequelle hat nur einen Kanal.</translation>
    </message>
    <message>
        <source>REASON_NOTHING_HEARD</source>
        <translation>Es wurde nichts gehört.</translation>
    </message>
    <message>
        <source>REASON_CHANNEL_SOFT</source>
        <translation>Ein Kanal war zu leise, um erkannt zu werden, und zu laut, um als stumm zu gelten.</translation>
    </message>
    <message>
        <source>REASON_SIDES_ALIKE</source>
        <translation>Das Mikrofon hört beide Seiten gleich.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_NOT_OPENED</source>
        <translation>Die Aufnahmequelle konnte nicht abgehört werden.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_NOT_OPENED</source>
        <translation>Das Gerät konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_DID_NOT_PLAY</source>
        <translation>Das Gerät hat nichts abgespielt.</translation>
    </message>
    <message>
        <source>REASON_NO_SERVER</source>
        <translation>Der Soundserver antwortet nicht: Die Geräte können nicht aufgelistet werden.</translation>
    </message>
    <message>
        <source>REASON_SERVER_SILENT</source>
        <translation>Der Soundserver antwortet nicht: %1</translation>
    </message>
    <message>
        <source>REASON_TOLD</source>
        <translation>Ein Programm des Durchlaufs meldete: %1</translation>
    </message>
    <message>
        <source>VALUE_NOT_KNOWN</source>
        <translation>unbekannt</translation>
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
        <translation>Beschreibung des Tests</translation>
    </message>
    <message>
        <source>RUN_TEST</source>
        <translation>Ausführen</translation>
    </message>
    <message>
        <source>RUN_TEST_HINT</source>
        <translation>Führt den gewählten Test auf dem gewählten Gerät aus (%1).</translation>
    </message>
    <message>
        <source>STOP_TEST</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>STOP_TEST_HINT</source>
        <translation>Stoppt den laufenden Test. %1 bewirkt dasselbe, auch während ein Testfenster geöffnet ist.</translation>
    </message>
    <message>
        <source>STOPPING</source>
        <translation>Wird gestoppt…</translation>
    </message>
    <message>
        <source>PROGRESS</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>MESSAGES</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>NO_RESULT_YET</source>
        <translation>Es wurde noch kein Test ausgeführt.</translation>
    </message>
    <message>
        <source>TEST_IS_RUNNING</source>
        <translation>Der Test läuft…</translation>
    </message>
    <message>
        <source>VERDICT_PASSED</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>VERDICT_FAILED</source>
        <translation>Nicht bestanden</translation>
    </message>
    <message>
        <source>VERDICT_CANNOT_BE_PERFORMED</source>
        <translation>Nicht ausführbar</translation>
    </message>
    <message>
        <source>VERDICT_NOT_COMPLETED</source>
        <translation>Nicht abgeschlossen</translation>
    </message>
    <message>
        <source>VERDICT_STOPPED</source>
        <translation>Gestoppt</translation>
    </message>
    <message>
        <source>VERDICT_INVALID_CALL</source>
        <translation>Nicht ausgeführt: Der Test wurde fehlerhaft aufgerufen</translation>
    </message>
    <message>
        <source>LEVEL_ERROR</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>LEVEL_NOTE</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>Durchläufe seit dem Start</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>LANGUAGE</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>LOG</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>LOG_RUN_STARTED</source>
        <translation>Gestartet: %1, Gerät „%2“</translation>
    </message>
    <message>
        <source>LOG_RUN_ENDED</source>
        <translation>Beendet: %1, Gerät „%2“, Ergebnis: %3</translation>
    </message>
    <message>
        <source>WITH_MICROPHONE</source>
        <translation>%1 (Mikrofon: %2)</translation>
    </message>
    <message>
        <source>LOG_PROGRESS</source>
        <translation>Fortschritt: %1 %</translation>
    </message>
    <message>
        <source>LOG_STOP_PRESSED</source>
        <translation>„Stoppen“ wurde gedrückt.</translation>
    </message>
    <message>
        <source>LOG_EVENT_SIMULATED</source>
        <translation>Ereignis %1 wurde simuliert.</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_RESTORED</source>
        <translation>Ein früherer Test wurde unterbrochen. Die Lautstärke dieser Geräte wurde wiederhergestellt: %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_LEFT</source>
        <translation>Ein abgebrochener Testlauf hatte Lautstärken erhöht, die seither geändert wurden. Sie bleiben, wie sie sind: %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_PUT_BACK</source>
        <translation>Die Lautstärke dieser Geräte wurde wiederhergestellt: %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_UNPROTECTED</source>
        <translation>Die Lautstärke würde nach einem Absturz nicht wiederhergestellt: %1</translation>
    </message>
    <message>
        <source>LOG_LANGUAGE_CHANGED</source>
        <translation>Sprache: %1</translation>
    </message>
    <message>
        <source>LOG_LANGUAGE_NOT_SAVED</source>
        <translation>Die Sprache konnte nicht im Ordner „%1“ gespeichert werden.</translation>
    </message>
    <message>
        <source>LOG_LIST_INCOMPLETE</source>
        <translation>Der Arbeitsspeicher reichte nicht, um alle Geräte einzulesen.</translation>
    </message>
    <message>
        <source>LOG_DEVICE_GONE</source>
        <translation>Das Gerät „%1“ ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>PROMPT_ACCEPT</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>PROMPT_DECLINE</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>MICROPHONE_TEST_INSTRUCTIONS</source>
        <translation>Sie nehmen mit einem Mikrofon auf und hören die Aufnahme danach. Während des Tests werden alle Wiedergabe- und Aufnahmelautstärken dieses Computers auf 100 % gesetzt und danach zurückgestellt. Wenn Sie Kopfhörer tragen, nehmen Sie diese jetzt ab.</translation>
    </message>
    <message>
        <source>UNATTENDED_INSTRUCTIONS</source>
        <translation>Der Test läuft und antwortet von selbst; benutzen Sie währenddessen weder Maus noch Tastatur. Während des Tests werden alle Wiedergabe- und Aufnahmelautstärken dieses Computers auf 100 % gesetzt und danach zurückgestellt. Wenn Sie Kopfhörer tragen, nehmen Sie diese jetzt ab.</translation>
    </message>
    <message>
        <source>QUESTION_YES</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>QUESTION_NO</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>ENDPOINTS_RAISED</source>
        <translation>Während des Tests steht die Lautstärke dieser Geräte und Mikrofone auf 100 %, danach wird sie wiederhergestellt:</translation>
    </message>
    <message>
        <source>MENU_FILE</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>MENU_TEST</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>MENU_LANGUAGE</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>MENU_DEVELOPER</source>
        <translation>Entwickler</translation>
    </message>
    <message>
        <source>MENU_HELP</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>QUIT</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>ABOUT</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>ABOUT_VERSIONS</source>
        <translation>Version des Moduls: %1
Version dieses Programms: %2</translation>
    </message>
    <message>
        <source>ABOUT_WHICH_VERSION</source>
        <translation>Nennen Sie bei Fragen und Fehlermeldungen die Version dieses Programms; die Version des Moduls sagt, mit welchem Modul es prüft.</translation>
    </message>
    <message>
        <source>SIMULATE_EVENT</source>
        <translation>Ereignis simulieren</translation>
    </message>
    <message>
        <source>EVENT_CANCELS</source>
        <translation>Ereignis %1 (bricht den Test ab)</translation>
    </message>
    <message>
        <source>EVENT_DOES_NOT_CANCEL</source>
        <translation>Ereignis %1 (bricht den Test nicht ab)</translation>
    </message>
    <message>
        <source>LANGUAGE_IS_FIXED</source>
        <translation>Die Sprache wird durch den mit --config angegebenen Ordner bestimmt.</translation>
    </message>
    <message>
        <source>MODULE_CANNOT_BE_USED</source>
        <translation>Das Audiomodul kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>PROGRAM_IS_CLOSING</source>
        <translation>Das Programm wird geschlossen, sobald der Test gestoppt ist.</translation>
    </message>
    <message>
        <source>METER_TITLE</source>
        <translation>Tonpegel</translation>
    </message>
    <message>
        <source>METER_SOURCE</source>
        <translation>Gehört über: %1</translation>
    </message>
    <message>
        <source>METER_WORDS</source>
        <translation>Pegel %1 dBFS, Spitze %2 dBFS: %3</translation>
    </message>
    <message>
        <source>METER_SILENT</source>
        <translation>still</translation>
    </message>
    <message>
        <source>METER_QUIET</source>
        <translation>leise</translation>
    </message>
    <message>
        <source>METER_GOOD</source>
        <translation>gut</translation>
    </message>
    <message>
        <source>METER_TOO_LOUD</source>
        <translation>zu laut</translation>
    </message>
    <message>
        <source>METER_NO_DATA</source>
        <translation>Noch wurde nichts gehört.</translation>
    </message>
    <message>
        <source>METER_WAVE</source>
        <translation>Wellenform der letzten Wiedergabe</translation>
    </message>
    <message>
        <source>METER_WAVE_WORDS</source>
        <translation>Wiedergabe der Aufnahme: %1 s, Spitze %2 dBFS</translation>
    </message>
    <message>
        <source>METER_DIGITS_WORDS</source>
        <translation>Die Ziffern, wie sie gehört wurden: %1 s, Spitze %2 dBFS</translation>
    </message>
    <message>
        <source>PRECHECK_TITLE</source>
        <translation>Vor dem Test</translation>
    </message>
    <message>
        <source>PRECHECK_REFUSED</source>
        <translation>Der Test kann nicht ausgeführt werden</translation>
    </message>
    <message>
        <source>PRECHECK_RUN</source>
        <translation>Trotzdem ausführen</translation>
    </message>
    <message>
        <source>PRECHECK_CLOSE</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>SAVE_REPORT</source>
        <translation>Bericht speichern…</translation>
    </message>
    <message>
        <source>COPY_REPORT</source>
        <translation>Bericht kopieren</translation>
    </message>
    <message>
        <source>LOG_REPORT_SAVED</source>
        <translation>Der Bericht wurde gespeichert: %1</translation>
    </message>
    <message>
        <source>LOG_REPORT_NOT_SAVED</source>
        <translation>Der Bericht konnte nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>LOG_REPORT_COPIED</source>
        <translation>Der Bericht wurde als Text kopiert.</translation>
    </message>
    <message>
        <source>CHECK_CHANNELS</source>
        <translation>Kanäle prüfen…</translation>
    </message>
    <message>
        <source>CHANNELS_TITLE</source>
        <translation>Links und rechts</translation>
    </message>
    <message>
        <source>CHANNELS_TEXT</source>
        <translation>Über „%1“ werden zwei Ziffern gesprochen, jede nur auf einer Seite und in der jetzigen Lautstärke. Spielen Sie beide ab und geben Sie an, wo Sie sie hören.</translation>
    </message>
    <message>
        <source>CHANNELS_FIRST</source>
        <translation>Erste Ziffer</translation>
    </message>
    <message>
        <source>CHANNELS_SECOND</source>
        <translation>Zweite Ziffer</translation>
    </message>
    <message>
        <source>CHANNELS_PLAY_FIRST</source>
        <translation>Erste Ziffer abspielen</translation>
    </message>
    <message>
        <source>CHANNELS_PLAY_SECOND</source>
        <translation>Zweite Ziffer abspielen</translation>
    </message>
    <message>
        <source>SIDE_LEFT</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>SIDE_RIGHT</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>SIDE_BOTH</source>
        <translation>Auf beiden Seiten</translation>
    </message>
    <message>
        <source>SIDE_NOTHING</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>CHANNELS_OPEN</source>
        <translation>Das Ergebnis folgt, sobald beide Ziffern beantwortet sind.</translation>
    </message>
    <message>
        <source>CHANNELS_STRAIGHT</source>
        <translation>Links und rechts sind richtig zugeordnet.</translation>
    </message>
    <message>
        <source>CHANNELS_SWAPPED</source>
        <translation>Links und rechts sind vertauscht.</translation>
    </message>
    <message>
        <source>CHANNELS_MIXED</source>
        <translation>Links und rechts sind vermischt und nicht zu unterscheiden.</translation>
    </message>
    <message>
        <source>CHANNELS_LEFT_SILENT</source>
        <translation>Der linke Kanal ist stumm.</translation>
    </message>
    <message>
        <source>CHANNELS_RIGHT_SILENT</source>
        <translation>Der rechte Kanal ist stumm.</translation>
    </message>
    <message>
        <source>CHANNELS_UNHEARD</source>
        <translation>Es wurde nichts gehört. Stellen Sie lauter und spielen Sie die Ziffern noch einmal ab.</translation>
    </message>
    <message>
        <source>CHANNELS_NOT_KNOWN</source>
        <translation>Links und rechts konnten nicht gemessen werden: %1</translation>
    </message>
    <message>
        <source>CHANNELS_MEASURE</source>
        <translation>Mit „%1“ messen</translation>
    </message>
    <message>
        <source>CHANNELS_MEASURING</source>
        <translation>„%1“ wird abgehört…</translation>
    </message>
    <message>
        <source>CHANNELS_NOT_PLAYED</source>
        <translation>Die Ziffer konnte nicht abgespielt werden: %1</translation>
    </message>
    <message>
        <source>CHANNELS_ONCE_MORE</source>
        <translation>Die nicht gehörte Ziffer wird noch einmal gesprochen: Das Gerät musste vielleicht erst aufwachen. Geben Sie noch einmal an, wo Sie sie hören.</translation>
    </message>
    <message>
        <source>CHANNELS_STALLED</source>
        <translation>Die Ziffer konnte nicht abgespielt werden: Das Tonsystem antwortet nicht. Über diese Seite wird nichts ausgesagt.</translation>
    </message>
    <message>
        <source>LOG_CHANNELS</source>
        <translation>Kanäle von „%1“: %2</translation>
    </message>
    <message>
        <source>LISTENING_SOURCE</source>
        <translation>Hörquelle…</translation>
    </message>
    <message>
        <source>SOURCE_TITLE</source>
        <translation>Hörquelle</translation>
    </message>
    <message>
        <source>SOURCE_TEXT</source>
        <translation>Was diese Quelle hört, wird neben dem Mikrofontest angezeigt und bei der Kanalprüfung und bei Läufen ohne Bediener gemessen. Sonst wird nichts abgehört.</translation>
    </message>
    <message>
        <source>SOURCE_NONE</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>SOURCE_READING</source>
        <translation>Quellen werden eingelesen…</translation>
    </message>
    <message>
        <source>SOURCE_ABSENT</source>
        <translation>%1 (nicht angeschlossen)</translation>
    </message>
    <message>
        <source>SOURCE_USE</source>
        <translation>Verwenden</translation>
    </message>
    <message>
        <source>LOG_SOURCE</source>
        <translation>Hörquelle: %1</translation>
    </message>
    <message>
        <source>LOG_SETTINGS_NOT_SAVED</source>
        <translation>Die Einstellung konnte nicht im Ordner „%1“ gespeichert werden.</translation>
    </message>
    <message>
        <source>RUN_UNATTENDED</source>
        <translation>Ohne Bediener ausführen</translation>
    </message>
    <message>
        <source>MEASUREMENTS</source>
        <translation>Messwerte</translation>
    </message>
    <message>
        <source>NOTHING_MEASURED</source>
        <translation>Beim letzten Lauf wurde nichts gemessen.</translation>
    </message>
    <message>
        <source>DIGIT</source>
        <translation>Ziffer</translation>
    </message>
    <message>
        <source>DIGIT_PLAYED</source>
        <translation>Gespielt</translation>
    </message>
    <message>
        <source>DIGIT_HEARD</source>
        <translation>Gehört</translation>
    </message>
    <message>
        <source>DIGIT_TYPED</source>
        <translation>Getippt</translation>
    </message>
    <message>
        <source>DIGIT_SCORE</source>
        <translation>Ähnlichkeit</translation>
    </message>
    <message>
        <source>DIGIT_LEVEL</source>
        <translation>Pegel (dBFS)</translation>
    </message>
    <message>
        <source>DIGIT_SNR</source>
        <translation>SNR (dB)</translation>
    </message>
    <message>
        <source>DIGIT_LATENCY</source>
        <translation>Latenz (ms)</translation>
    </message>
    <message>
        <source>PLOT_WAVE</source>
        <translation>Wellenform der Ziffer %1</translation>
    </message>
    <message>
        <source>PLOT_WAVE_WORDS</source>
        <translation>%1 s, Spitze %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_WAVE_AT</source>
        <translation>Bei %1 s: von %2 bis %3</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM</source>
        <translation>Spektrum der Ziffer %1</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM_WORDS</source>
        <translation>Am lautesten bei %1 Hz: %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM_AT</source>
        <translation>%1 Hz: %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_KEYS</source>
        <translation>Die Pfeiltasten lesen einzelne Werte vor.</translation>
    </message>
</context>
</TS>
