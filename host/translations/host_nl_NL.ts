<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>HOST</name>
    <message>
        <source>DEVICES</source>
        <translation>Uitvoerapparaten</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>Apparaat</translation>
    </message>
    <message>
        <source>REFRESH_DEVICES</source>
        <translation>Vernieuwen</translation>
    </message>
    <message>
        <source>REFRESH_DEVICES_HINT</source>
        <translation>Leest de lijst met uitvoerapparaten opnieuw in (F5). De lijst wordt ook vanzelf bijgewerkt als er een apparaat bijkomt of verdwijnt.</translation>
    </message>
    <message>
        <source>READING_DEVICES</source>
        <translation>Uitvoerapparaten worden ingelezen…</translation>
    </message>
    <message>
        <source>DEVICES_FOUND</source>
        <translation>Gevonden uitvoerapparaten: %1</translation>
    </message>
    <message>
        <source>NO_DEVICES</source>
        <translation>Er is geen uitvoerapparaat gevonden. Sluit er een aan; de lijst wordt vanzelf bijgewerkt.</translation>
    </message>
    <message>
        <source>SOUND_SERVER_SILENT</source>
        <translation>De geluidsserver antwoordt niet: de apparaten kunnen niet worden weergegeven. Start deze en vernieuw daarna de lijst.</translation>
    </message>
    <message>
        <source>DEVICE_STATE</source>
        <translation>Op dit moment</translation>
    </message>
    <message>
        <source>STATE_VOLUME</source>
        <translation>volume %1%</translation>
    </message>
    <message>
        <source>STATE_MUTED</source>
        <translation>gedempt</translation>
    </message>
    <message>
        <source>STATE_DEFAULT</source>
        <translation>standaard</translation>
    </message>
    <message>
        <source>STATE_VIRTUAL</source>
        <translation>virtueel</translation>
    </message>
    <message>
        <source>PRECHECK_SOUND_SERVER_SILENT</source>
        <translation>De geluidsserver antwoordt niet: volume en demping konden niet worden gecontroleerd.</translation>
    </message>
    <message>
        <source>PRECHECK_DEVICE_MUTED</source>
        <translation>‘%1’ is gedempt. Er is niets gewijzigd: de test zet het geluid zelf aan terwijl deze wordt uitgevoerd.</translation>
    </message>
    <message>
        <source>PRECHECK_DEVICE_AT_ZERO</source>
        <translation>Het volume van ‘%1’ is 0. Er is niets gewijzigd: de test verhoogt het zelf terwijl deze wordt uitgevoerd.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIPS_MISSING</source>
        <translation>De gesproken cijfers van de taal %1 ontbreken. De test kan niet worden uitgevoerd.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIP_DAMAGED</source>
        <translation>Het geluidsbestand %1 ontbreekt of is niet het meegeleverde. De test kan niet worden uitgevoerd: het apparaat zou ten onrechte de schuld krijgen.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIPS_UNCHECKED</source>
        <translation>Er is geen lijst van de meegeleverde geluidsbestanden: ze konden niet worden gecontroleerd.</translation>
    </message>
    <message>
        <source>PRECHECK_MICROPHONE_BLOCKED</source>
        <translation>De privacyinstellingen van het systeem blokkeren de microfoon voor programma’s: er zou alleen stilte worden opgenomen.</translation>
    </message>
    <message>
        <source>PRECHECK_SOURCE_MUTED</source>
        <translation>De opnamebron ‘%1’ is gedempt. De test kan niet worden uitgevoerd: het apparaat zou ten onrechte de schuld krijgen.</translation>
    </message>
    <message>
        <source>PRECHECK_SOURCE_AT_ZERO</source>
        <translation>Het volume van de opnamebron ‘%1’ is 0. De test kan niet worden uitgevoerd: het apparaat zou ten onrechte de schuld krijgen.</translation>
    </message>
    <message>
        <source>REASON_STOPPED</source>
        <translation>De uitvoering is gestopt.</translation>
    </message>
    <message>
        <source>REASON_TOOK_TOO_LONG</source>
        <translation>De uitvoering duurde langer dan vijf minuten.</translation>
    </message>
    <message>
        <source>REASON_RUN_NOT_TAKEN</source>
        <translation>De uitvoering kon niet beginnen: er is een andere bezig of het apparaat is er niet meer.</translation>
    </message>
    <message>
        <source>REASON_HOST_BROKE_DOWN</source>
        <translation>Het grafische programma eindigde zonder resultaat, zoals bij het wegvallen van het beeldscherm.</translation>
    </message>
    <message>
        <source>REASON_HOST_HUNG</source>
        <translation>Het grafische programma kwam niet tot een einde.</translation>
    </message>
    <message>
        <source>REASON_HOST_NOT_STARTED</source>
        <translation>Het grafische programma kan niet worden gestart: %1</translation>
    </message>
    <message>
        <source>REASON_NO_MODULE</source>
        <translation>Het grafische programma kan de audiomodule niet gebruiken.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_GONE</source>
        <translation>Het apparaat ‘%1’ is er niet meer.</translation>
    </message>
    <message>
        <source>REASON_NO_OUTPUT_DEVICE</source>
        <translation>Er is geen uitvoerapparaat gevonden.</translation>
    </message>
    <message>
        <source>REASON_NO_DISPLAY</source>
        <translation>Het grafische programma heeft een beeldscherm nodig; probeer xvfb-run.</translation>
    </message>
    <message>
        <source>REASON_HEARS_ANOTHER</source>
        <translation>‘%1’ hoort een ander apparaat dan ‘%2’, dat de schuld van de stilte zou krijgen.</translation>
    </message>
    <message>
        <source>REASON_VIRTUAL_DEVICE</source>
        <translation>‘%1’ is een virtueel apparaat: een resultaat daarop zegt niets over deze computer.</translation>
    </message>
    <message>
        <source>REASON_VIRTUAL_UNKNOWN</source>
        <translation>De geluidsserver antwoordt niet: het is niet bekend of ‘%1’ een virtueel apparaat is.</translation>
    </message>
    <message>
        <source>REASON_VOLUMES_HELD</source>
        <translation>Een andere uitvoering houdt de volumes vast.</translation>
    </message>
    <message>
        <source>WARNING_IS_MUTED_AGAIN</source>
        <translation>‘%1’ was vóór de uitvoering gedempt en is dat nu weer.</translation>
    </message>
    <message>
        <source>WARNING_WAS_MUTED</source>
        <translation>‘%1’ was vóór de uitvoering gedempt.</translation>
    </message>
    <message>
        <source>WARNING_IS_AT_ZERO_AGAIN</source>
        <translation>Het volume van ‘%1’ was vóór de uitvoering 0 en is dat nu weer.</translation>
    </message>
    <message>
        <source>WARNING_WAS_AT_ZERO</source>
        <translation>Het volume van ‘%1’ was vóór de uitvoering 0.</translation>
    </message>
    <message>
        <source>RUN_UNATTENDED_NO_SOURCE</source>
        <translation>Kies eerst waarmee wordt geluisterd, via ‘Luisterbron…’ in dit menu.</translation>
    </message>
    <message>
        <source>REASON_LISTENER_LOST</source>
        <translation>Het luisterprogramma is tijdens de uitvoering weggevallen.</translation>
    </message>
    <message>
        <source>REASON_NOT_RECOGNISED</source>
        <translation>Er is geluid gehoord, maar de cijfers zijn niet herkend.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_DEAD</source>
        <translation>De opnamebron levert helemaal niets.</translation>
    </message>
    <message>
        <source>REASON_ZEROS_ONLY</source>
        <translation>‘%1’ levert alleen nullen: de opnamebron is uitgeschakeld, geblokkeerd of niet aangesloten.</translation>
    </message>
    <message>
        <source>REASON_VOLUME_NOT_RAISED</source>
        <translation>Het volume kon niet worden verhoogd.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_TURNED_DOWN</source>
        <translation>De opnamebron is gedempt of zachter gezet.</translation>
    </message>
    <message>
        <source>REASON_NO_SUCH_SOURCE</source>
        <translation>Geen enkele opnamebron heet ‘%1’. Aanwezig: %2</translation>
    </message>
    <message>
        <source>REASON_NO_SUCH_MICROPHONE</source>
        <translation>Geen enkele microfoon heet ‘%1’. Aanwezig: %2</translation>
    </message>
    <message>
        <source>REASON_QUESTION_OPEN</source>
        <translation>Een vraag van de test bleef onbeantwoord.</translation>
    </message>
    <message>
        <source>REASON_SPEECH_DID_NOT_BEGIN</source>
        <translation>De op te nemen zin kon niet worden uitgesproken.</translation>
    </message>
    <message>
        <source>REASON_SENTENCE_NOT_HEARD</source>
        <translation>De op te nemen zin was niet te horen toen deze werd uitgesproken.</translation>
    </message>
    <message>
        <source>REASON_NO_SPEAKER</source>
        <translation>De spraak kon niet worden afgespeeld: %1</translation>
    </message>
    <message>
        <source>REASON_DIALOG</source>
        <translation>Een venster van de test reageerde niet zoals verwacht.</translation>
    </message>
    <message>
        <source>REASON_ANSWERED_NO</source>
        <translation>Op de vraag of hetzelfde geluid is gehoord, is ‘Nee’ geantwoord.</translation>
    </message>
    <message>
        <source>REASON_ENDED_EARLY</source>
        <translation>De test is gesloten of geannuleerd voordat er een resultaat was.</translation>
    </message>
    <message>
        <source>REASON_NONE_GIVEN</source>
        <translation>De test heeft geen reden opgegeven.</translation>
    </message>
    <message>
        <source>REASON_CHANNEL_COUNT_UNKNOWN</source>
        <translation>Het is niet bekend hoeveel kanalen de opnamebron heeft.</translation>
    </message>
    <message>
        <source>REASON_ONE_CHANNEL</source>
        <translation>De opnamebron heeft maar één kanaal.</translation>
    </message>
    <message>
        <source>REASON_NOTHING_HEARD</source>
        <translation>Er is niets gehoord.</translation>
    </message>
    <message>
        <source>REASON_CHANNEL_SOFT</source>
        <translation>Een kanaal was te zacht om te worden herkend en te luid om stil te heten.</translation>
    </message>
    <message>
        <source>REASON_SIDES_ALIKE</source>
        <translation>De microfoon hoort beide kanten even luid.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_NOT_OPENED</source>
        <translation>Er kon niet naar de opnamebron worden geluisterd.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_NOT_OPENED</source>
        <translation>Het apparaat kon niet worden geopend.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_DID_NOT_PLAY</source>
        <translation>Het apparaat heeft niets afgespeeld.</translation>
    </message>
    <message>
        <source>REASON_NO_SERVER</source>
        <translation>De geluidsserver antwoordt niet: de apparaten kunnen niet worden weergegeven.</translation>
    </message>
    <message>
        <source>REASON_SERVER_SILENT</source>
        <translation>De geluidsserver antwoordt niet: %1</translation>
    </message>
    <message>
        <source>REASON_TOLD</source>
        <translation>Een programma van de uitvoering meldde: %1</translation>
    </message>
    <message>
        <source>VALUE_NOT_KNOWN</source>
        <translation>onbekend</translation>
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
        <translation>Beschrijving van de test</translation>
    </message>
    <message>
        <source>RUN_TEST</source>
        <translation>Uitvoeren</translation>
    </message>
    <message>
        <source>RUN_TEST_HINT</source>
        <translation>Voert de gekozen test uit op het gekozen apparaat (%1).</translation>
    </message>
    <message>
        <source>STOP_TEST</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>STOP_TEST_HINT</source>
        <translation>Stopt de lopende test. %1 doet hetzelfde en werkt ook als er een testvenster open is.</translation>
    </message>
    <message>
        <source>STOPPING</source>
        <translation>Bezig met stoppen…</translation>
    </message>
    <message>
        <source>PROGRESS</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>MESSAGES</source>
        <translation>Meldingen</translation>
    </message>
    <message>
        <source>NO_RESULT_YET</source>
        <translation>Er is nog geen test uitgevoerd.</translation>
    </message>
    <message>
        <source>TEST_IS_RUNNING</source>
        <translation>De test wordt uitgevoerd…</translation>
    </message>
    <message>
        <source>VERDICT_PASSED</source>
        <translation>Geslaagd</translation>
    </message>
    <message>
        <source>VERDICT_FAILED</source>
        <translation>Mislukt</translation>
    </message>
    <message>
        <source>VERDICT_CANNOT_BE_PERFORMED</source>
        <translation>Kan niet worden uitgevoerd</translation>
    </message>
    <message>
        <source>VERDICT_NOT_COMPLETED</source>
        <translation>Niet voltooid</translation>
    </message>
    <message>
        <source>VERDICT_STOPPED</source>
        <translation>Gestopt</translation>
    </message>
    <message>
        <source>VERDICT_INVALID_CALL</source>
        <translation>Niet uitgevoerd: de test is onjuist aangeroepen</translation>
    </message>
    <message>
        <source>LEVEL_ERROR</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>LEVEL_NOTE</source>
        <translation>Opmerking</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>Uitvoeringen sinds de start</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>LANGUAGE</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>LOG</source>
        <translation>Logboek</translation>
    </message>
    <message>
        <source>LOG_RUN_STARTED</source>
        <translation>Gestart: %1, apparaat ‘%2’</translation>
    </message>
    <message>
        <source>LOG_RUN_ENDED</source>
        <translation>Beëindigd: %1, apparaat ‘%2’, resultaat: %3</translation>
    </message>
    <message>
        <source>WITH_MICROPHONE</source>
        <translation>%1 (microfoon: %2)</translation>
    </message>
    <message>
        <source>LOG_PROGRESS</source>
        <translation>Voortgang: %1%</translation>
    </message>
    <message>
        <source>LOG_STOP_PRESSED</source>
        <translation>Er is op ‘Stoppen’ gedrukt.</translation>
    </message>
    <message>
        <source>LOG_EVENT_SIMULATED</source>
        <translation>Gebeurtenis %1 is gesimuleerd.</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_RESTORED</source>
        <translation>Een eerdere test is onderbroken. Het volume van deze apparaten is hersteld: %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_LEFT</source>
        <translation>Een afgebroken test had volumes verhoogd die sindsdien zijn gewijzigd. Ze blijven zoals ze zijn: %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_PUT_BACK</source>
        <translation>Het volume van deze apparaten is hersteld: %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_UNPROTECTED</source>
        <translation>Het volume zou na een crash niet worden hersteld: %1</translation>
    </message>
    <message>
        <source>LOG_LANGUAGE_CHANGED</source>
        <translation>Taal: %1</translation>
    </message>
    <message>
        <source>LOG_LANGUAGE_NOT_SAVED</source>
        <translation>De taal kon niet worden opgeslagen in de map ‘%1’.</translation>
    </message>
    <message>
        <source>LOG_LIST_INCOMPLETE</source>
        <translation>Er was onvoldoende geheugen om alle apparaten in te lezen.</translation>
    </message>
    <message>
        <source>LOG_DEVICE_GONE</source>
        <translation>Het apparaat ‘%1’ is niet meer beschikbaar.</translation>
    </message>
    <message>
        <source>PROMPT_ACCEPT</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>PROMPT_DECLINE</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>MICROPHONE_TEST_INSTRUCTIONS</source>
        <translation>U neemt op met een microfoon en hoort daarna de opname. Tijdens de test worden alle weergave- en opnamevolumes van deze computer op 100% gezet en daarna teruggezet. Als u een hoofdtelefoon draagt, zet die dan nu af.</translation>
    </message>
    <message>
        <source>UNATTENDED_INSTRUCTIONS</source>
        <translation>De test verloopt en antwoordt vanzelf; gebruik ondertussen geen muis of toetsenbord. Tijdens de test worden alle weergave- en opnamevolumes van deze computer op 100% gezet en daarna teruggezet. Als u een hoofdtelefoon draagt, zet die dan nu af.</translation>
    </message>
    <message>
        <source>QUESTION_YES</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>QUESTION_NO</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>ENDPOINTS_RAISED</source>
        <translation>Tijdens de test staat het volume van deze apparaten en microfoons op 100%; daarna wordt het hersteld:</translation>
    </message>
    <message>
        <source>MENU_FILE</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>MENU_TEST</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>MENU_LANGUAGE</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>MENU_DEVELOPER</source>
        <translation>Ontwikkelaar</translation>
    </message>
    <message>
        <source>MENU_HELP</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>QUIT</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>ABOUT</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>ABOUT_VERSIONS</source>
        <translation>Versie van de module: %1
Versie van dit programma: %2</translation>
    </message>
    <message>
        <source>ABOUT_WHICH_VERSION</source>
        <translation>Vermeld bij vragen en foutmeldingen de versie van dit programma; de versie van de module vertelt met welke module het test.</translation>
    </message>
    <message>
        <source>SIMULATE_EVENT</source>
        <translation>Gebeurtenis simuleren</translation>
    </message>
    <message>
        <source>EVENT_CANCELS</source>
        <translation>Gebeurtenis %1 (annuleert de test)</translation>
    </message>
    <message>
        <source>EVENT_DOES_NOT_CANCEL</source>
        <translation>Gebeurtenis %1 (annuleert de test niet)</translation>
    </message>
    <message>
        <source>LANGUAGE_IS_FIXED</source>
        <translation>De taal komt uit de map die met --config is opgegeven.</translation>
    </message>
    <message>
        <source>MODULE_CANNOT_BE_USED</source>
        <translation>De audiomodule kan niet worden gebruikt.</translation>
    </message>
    <message>
        <source>PROGRAM_IS_CLOSING</source>
        <translation>Het programma wordt gesloten zodra de test is gestopt.</translation>
    </message>
    <message>
        <source>METER_TITLE</source>
        <translation>Geluidsniveau</translation>
    </message>
    <message>
        <source>METER_SOURCE</source>
        <translation>Gehoord via: %1</translation>
    </message>
    <message>
        <source>METER_WORDS</source>
        <translation>Niveau %1 dBFS, piek %2 dBFS: %3</translation>
    </message>
    <message>
        <source>METER_SILENT</source>
        <translation>stil</translation>
    </message>
    <message>
        <source>METER_QUIET</source>
        <translation>zacht</translation>
    </message>
    <message>
        <source>METER_GOOD</source>
        <translation>goed</translation>
    </message>
    <message>
        <source>METER_TOO_LOUD</source>
        <translation>te luid</translation>
    </message>
    <message>
        <source>METER_NO_DATA</source>
        <translation>Er is nog niets gehoord.</translation>
    </message>
    <message>
        <source>METER_WAVE</source>
        <translation>Golfvorm van de laatste weergave</translation>
    </message>
    <message>
        <source>METER_WAVE_WORDS</source>
        <translation>Weergave van de opname: %1 s, piek %2 dBFS</translation>
    </message>
    <message>
        <source>METER_DIGITS_WORDS</source>
        <translation>De cijfers zoals ze zijn gehoord: %1 s, piek %2 dBFS</translation>
    </message>
    <message>
        <source>PRECHECK_TITLE</source>
        <translation>Vóór de test</translation>
    </message>
    <message>
        <source>PRECHECK_REFUSED</source>
        <translation>De test kan niet worden uitgevoerd</translation>
    </message>
    <message>
        <source>PRECHECK_RUN</source>
        <translation>Toch uitvoeren</translation>
    </message>
    <message>
        <source>PRECHECK_CLOSE</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>SAVE_REPORT</source>
        <translation>Rapport opslaan…</translation>
    </message>
    <message>
        <source>COPY_REPORT</source>
        <translation>Rapport kopiëren</translation>
    </message>
    <message>
        <source>LOG_REPORT_SAVED</source>
        <translation>Het rapport is opgeslagen: %1</translation>
    </message>
    <message>
        <source>LOG_REPORT_NOT_SAVED</source>
        <translation>Het rapport kon niet worden opgeslagen: %1</translation>
    </message>
    <message>
        <source>LOG_REPORT_COPIED</source>
        <translation>Het rapport is als tekst gekopieerd.</translation>
    </message>
    <message>
        <source>CHECK_CHANNELS</source>
        <translation>Kanalen controleren…</translation>
    </message>
    <message>
        <source>CHANNELS_TITLE</source>
        <translation>Links en rechts</translation>
    </message>
    <message>
        <source>CHANNELS_TEXT</source>
        <translation>Via ‘%1’ worden twee cijfers uitgesproken, elk aan één kant en met het huidige volume. Speel beide af en geef aan waar u ze hoort.</translation>
    </message>
    <message>
        <source>CHANNELS_FIRST</source>
        <translation>Eerste cijfer</translation>
    </message>
    <message>
        <source>CHANNELS_SECOND</source>
        <translation>Tweede cijfer</translation>
    </message>
    <message>
        <source>CHANNELS_PLAY_FIRST</source>
        <translation>Eerste cijfer afspelen</translation>
    </message>
    <message>
        <source>CHANNELS_PLAY_SECOND</source>
        <translation>Tweede cijfer afspelen</translation>
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
        <translation>Beide kanten</translation>
    </message>
    <message>
        <source>SIDE_NOTHING</source>
        <translation>Niets</translation>
    </message>
    <message>
        <source>CHANNELS_OPEN</source>
        <translation>Het resultaat volgt zodra beide cijfers zijn beantwoord.</translation>
    </message>
    <message>
        <source>CHANNELS_STRAIGHT</source>
        <translation>Links en rechts zitten op de juiste plaats.</translation>
    </message>
    <message>
        <source>CHANNELS_SWAPPED</source>
        <translation>Links en rechts zijn verwisseld.</translation>
    </message>
    <message>
        <source>CHANNELS_MIXED</source>
        <translation>Links en rechts zijn gemengd en niet te onderscheiden.</translation>
    </message>
    <message>
        <source>CHANNELS_LEFT_SILENT</source>
        <translation>Het linkerkanaal is stil.</translation>
    </message>
    <message>
        <source>CHANNELS_RIGHT_SILENT</source>
        <translation>Het rechterkanaal is stil.</translation>
    </message>
    <message>
        <source>CHANNELS_UNHEARD</source>
        <translation>Er is niets gehoord. Zet het volume hoger en speel de cijfers opnieuw af.</translation>
    </message>
    <message>
        <source>CHANNELS_NOT_KNOWN</source>
        <translation>Links en rechts konden niet worden gemeten: %1</translation>
    </message>
    <message>
        <source>CHANNELS_MEASURE</source>
        <translation>Meten met ‘%1’</translation>
    </message>
    <message>
        <source>CHANNELS_MEASURING</source>
        <translation>Er wordt geluisterd naar ‘%1’…</translation>
    </message>
    <message>
        <source>CHANNELS_NOT_PLAYED</source>
        <translation>Het cijfer kon niet worden afgespeeld: %1</translation>
    </message>
    <message>
        <source>CHANNELS_ONCE_MORE</source>
        <translation>Het cijfer dat niet is gehoord wordt nog een keer uitgesproken: misschien moest het apparaat eerst ontwaken. Geef opnieuw aan waar u het hoort.</translation>
    </message>
    <message>
        <source>CHANNELS_STALLED</source>
        <translation>Het cijfer kon niet worden afgespeeld: het geluidssysteem antwoordt niet. Over deze kant wordt niets gezegd.</translation>
    </message>
    <message>
        <source>LOG_CHANNELS</source>
        <translation>Kanalen van ‘%1’: %2</translation>
    </message>
    <message>
        <source>LISTENING_SOURCE</source>
        <translation>Luisterbron…</translation>
    </message>
    <message>
        <source>SOURCE_TITLE</source>
        <translation>Luisterbron</translation>
    </message>
    <message>
        <source>SOURCE_TEXT</source>
        <translation>Wat deze bron hoort, wordt naast de microfoontest getoond en gemeten bij de kanaalcontrole en bij tests zonder bediener. Verder wordt er niets afgeluisterd.</translation>
    </message>
    <message>
        <source>SOURCE_NONE</source>
        <translation>Geen</translation>
    </message>
    <message>
        <source>SOURCE_READING</source>
        <translation>Bronnen worden gelezen…</translation>
    </message>
    <message>
        <source>SOURCE_ABSENT</source>
        <translation>%1 (niet aangesloten)</translation>
    </message>
    <message>
        <source>SOURCE_USE</source>
        <translation>Gebruiken</translation>
    </message>
    <message>
        <source>LOG_SOURCE</source>
        <translation>Luisterbron: %1</translation>
    </message>
    <message>
        <source>LOG_SETTINGS_NOT_SAVED</source>
        <translation>De instelling kan niet worden opgeslagen in de map ‘%1’.</translation>
    </message>
    <message>
        <source>RUN_UNATTENDED</source>
        <translation>Uitvoeren zonder bediener</translation>
    </message>
    <message>
        <source>MEASUREMENTS</source>
        <translation>Metingen</translation>
    </message>
    <message>
        <source>NOTHING_MEASURED</source>
        <translation>Bij de laatste test is niets gemeten.</translation>
    </message>
    <message>
        <source>DIGIT</source>
        <translation>Cijfer</translation>
    </message>
    <message>
        <source>DIGIT_PLAYED</source>
        <translation>Afgespeeld</translation>
    </message>
    <message>
        <source>DIGIT_HEARD</source>
        <translation>Gehoord</translation>
    </message>
    <message>
        <source>DIGIT_TYPED</source>
        <translation>Ingetypt</translation>
    </message>
    <message>
        <source>DIGIT_SCORE</source>
        <translation>Gelijkenis</translation>
    </message>
    <message>
        <source>DIGIT_LEVEL</source>
        <translation>Niveau (dBFS)</translation>
    </message>
    <message>
        <source>DIGIT_SNR</source>
        <translation>SNR (dB)</translation>
    </message>
    <message>
        <source>DIGIT_LATENCY</source>
        <translation>Vertraging (ms)</translation>
    </message>
    <message>
        <source>PLOT_WAVE</source>
        <translation>Golfvorm van cijfer %1</translation>
    </message>
    <message>
        <source>PLOT_WAVE_WORDS</source>
        <translation>%1 s, piek %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_WAVE_AT</source>
        <translation>Op %1 s: van %2 tot %3</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM</source>
        <translation>Spectrum van cijfer %1</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM_WORDS</source>
        <translation>Het luidst bij %1 Hz: %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM_AT</source>
        <translation>%1 Hz: %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_KEYS</source>
        <translation>Met de pijltoetsen leest u afzonderlijke waarden.</translation>
    </message>
</context>
</TS>
