<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>HOST</name>
    <message>
        <source>DEVICES</source>
        <translation>Périphériques de sortie</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>Périphérique</translation>
    </message>
    <message>
        <source>REFRESH_DEVICES</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>REFRESH_DEVICES_HINT</source>
        <translation>Relit la liste des périphériques de sortie (F5). La liste se met aussi à jour d’elle-même lorsqu’un périphérique est branché ou débranché.</translation>
    </message>
    <message>
        <source>READING_DEVICES</source>
        <translation>Lecture des périphériques de sortie…</translation>
    </message>
    <message>
        <source>DEVICES_FOUND</source>
        <translation>Périphériques de sortie trouvés : %1</translation>
    </message>
    <message>
        <source>NO_DEVICES</source>
        <translation>Aucun périphérique de sortie n’a été trouvé. Branchez-en un : la liste se met à jour d’elle-même.</translation>
    </message>
    <message>
        <source>SOUND_SERVER_SILENT</source>
        <translation>Le serveur audio ne répond pas : les périphériques ne peuvent pas être listés. Démarrez-le, puis actualisez la liste.</translation>
    </message>
    <message>
        <source>DEVICE_STATE</source>
        <translation>Actuellement</translation>
    </message>
    <message>
        <source>STATE_VOLUME</source>
        <translation>volume %1 %</translation>
    </message>
    <message>
        <source>STATE_MUTED</source>
        <translation>son coupé</translation>
    </message>
    <message>
        <source>STATE_DEFAULT</source>
        <translation>par défaut</translation>
    </message>
    <message>
        <source>STATE_VIRTUAL</source>
        <translation>virtuel</translation>
    </message>
    <message>
        <source>PRECHECK_SOUND_SERVER_SILENT</source>
        <translation>Le serveur audio ne répond pas : le volume et la coupure du son n’ont pas pu être vérifiés.</translation>
    </message>
    <message>
        <source>PRECHECK_DEVICE_MUTED</source>
        <translation>Le son de « %1 » est coupé. Rien n’a été modifié : le test le rétablit lui-même pendant son exécution.</translation>
    </message>
    <message>
        <source>PRECHECK_DEVICE_AT_ZERO</source>
        <translation>Le volume de « %1 » est à 0. Rien n’a été modifié : le test l’augmente lui-même pendant son exécution.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIPS_MISSING</source>
        <translation>Les chiffres énoncés de la langue %1 sont absents. Le test ne peut pas être exécuté.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIP_DAMAGED</source>
        <translation>Le fichier son %1 est absent ou n’est pas celui qui a été fourni. Le test ne peut pas être exécuté : le périphérique serait mis en cause à tort.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIPS_UNCHECKED</source>
        <translation>Il n’y a pas de liste des fichiers son fournis : ils n’ont pas pu être vérifiés.</translation>
    </message>
    <message>
        <source>PRECHECK_MICROPHONE_BLOCKED</source>
        <translation>Les paramètres de confidentialité du système interdisent le microphone aux programmes : il n’enregistrerait que du silence.</translation>
    </message>
    <message>
        <source>PRECHECK_SOURCE_MUTED</source>
        <translation>Le son de la source de capture « %1 » est coupé. Le test ne peut pas être exécuté : le périphérique serait mis en cause à tort.</translation>
    </message>
    <message>
        <source>PRECHECK_SOURCE_AT_ZERO</source>
        <translation>Le volume de la source de capture « %1 » est à 0. Le test ne peut pas être exécuté : le périphérique serait mis en cause à tort.</translation>
    </message>
    <message>
        <source>REASON_STOPPED</source>
        <translation>L’exécution a été arrêtée.</translation>
    </message>
    <message>
        <source>REASON_TOOK_TOO_LONG</source>
        <translation>L’exécution a duré plus de cinq minutes.</translation>
    </message>
    <message>
        <source>REASON_RUN_NOT_TAKEN</source>
        <translation>L’exécution n’a pas pu commencer : une autre est en cours ou le périphérique n’est plus là.</translation>
    </message>
    <message>
        <source>REASON_HOST_BROKE_DOWN</source>
        <translation>Le programme graphique s’est terminé sans résultat, comme lors de la perte de l’affichage.</translation>
    </message>
    <message>
        <source>REASON_HOST_HUNG</source>
        <translation>Le programme graphique ne s’est pas terminé.</translation>
    </message>
    <message>
        <source>REASON_HOST_NOT_STARTED</source>
        <translation>Impossible de démarrer le programme graphique : %1</translation>
    </message>
    <message>
        <source>REASON_NO_MODULE</source>
        <translation>Le programme graphique ne peut pas utiliser le module audio.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_GONE</source>
        <translation>Le périphérique « %1 » n’est plus là.</translation>
    </message>
    <message>
        <source>REASON_NO_OUTPUT_DEVICE</source>
        <translation>Aucun périphérique de sortie n’a été trouvé.</translation>
    </message>
    <message>
        <source>REASON_NO_DISPLAY</source>
        <translation>Le programme graphique a besoin d’un affichage ; essayez xvfb-run.</translation>
    </message>
    <message>
        <source>REASON_HEARS_ANOTHER</source>
        <translation>« %1 » écoute un autre périphérique que « %2 », auquel on imputerait ce silence.</translation>
    </message>
    <message>
        <source>REASON_VIRTUAL_DEVICE</source>
        <translation>« %1 » est un périphérique virtuel : un résultat sur celui-ci ne dit rien de cet ordinateur.</translation>
    </message>
    <message>
        <source>REASON_VIRTUAL_UNKNOWN</source>
        <translation>Le serveur audio ne répond pas : on ne sait pas si « %1 » est un périphérique virtuel.</translation>
    </message>
    <message>
        <source>REASON_VOLUMES_HELD</source>
        <translation>Une autre exécution maintient les volumes.</translation>
    </message>
    <message>
        <source>WARNING_IS_MUTED_AGAIN</source>
        <translation>Le son de « %1 » était coupé avant l’exécution et l’est de nouveau.</translation>
    </message>
    <message>
        <source>WARNING_WAS_MUTED</source>
        <translation>Le son de « %1 » était coupé avant l’exécution.</translation>
    </message>
    <message>
        <source>WARNING_IS_AT_ZERO_AGAIN</source>
        <translation>Le volume de « %1 » était à 0 avant l’exécution et l’est de nouveau.</translation>
    </message>
    <message>
        <source>WARNING_WAS_AT_ZERO</source>
        <translation>Le volume de « %1 » était à 0 avant l’exécution.</translation>
    </message>
    <message>
        <source>RUN_UNATTENDED_NO_SOURCE</source>
        <translation>Choisissez d’abord ce qui écoute, par « Source d’écoute… » dans ce menu.</translation>
    </message>
    <message>
        <source>REASON_LISTENER_LOST</source>
        <translation>Le programme d’écoute a été perdu pendant l’exécution.</translation>
    </message>
    <message>
        <source>REASON_NOT_RECOGNISED</source>
        <translation>Du son a été entendu, mais les chiffres n’ont pas été reconnus.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_DEAD</source>
        <translation>La source de capture ne fournit rien du tout.</translation>
    </message>
    <message>
        <source>REASON_ZEROS_ONLY</source>
        <translation>« %1 » ne fournit que des zéros : il est éteint, bloqué ou débranché.</translation>
    </message>
    <message>
        <source>REASON_VOLUME_NOT_RAISED</source>
        <translation>Le volume n’a pas pu être augmenté.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_TURNED_DOWN</source>
        <translation>La source de capture a été coupée ou son volume a été baissé.</translation>
    </message>
    <message>
        <source>REASON_NO_SUCH_SOURCE</source>
        <translation>Aucune source de capture ne s’appelle « %1 ». Sources présentes : %2</translation>
    </message>
    <message>
        <source>REASON_NO_SUCH_MICROPHONE</source>
        <translation>Aucun microphone ne s’appelle « %1 ». Microphones présents : %2</translation>
    </message>
    <message>
        <source>REASON_QUESTION_OPEN</source>
        <translation>Une question du test est restée sans réponse.</translation>
    </message>
    <message>
        <source>REASON_SPEECH_DID_NOT_BEGIN</source>
        <translation>La phrase à enregistrer n’a pas pu être prononcée.</translation>
    </message>
    <message>
        <source>REASON_SENTENCE_NOT_HEARD</source>
        <translation>La phrase à enregistrer n’a pas été entendue lorsqu’elle a été prononcée.</translation>
    </message>
    <message>
        <source>REASON_NO_SPEAKER</source>
        <translation>La voix n’a pas pu être lue : %1</translation>
    </message>
    <message>
        <source>REASON_DIALOG</source>
        <translation>Une fenêtre du test n’a pas réagi comme prévu.</translation>
    </message>
    <message>
        <source>REASON_ANSWERED_NO</source>
        <translation>À la question de savoir si le même son a été entendu, la réponse a été « Non ».</translation>
    </message>
    <message>
        <source>REASON_ENDED_EARLY</source>
        <translation>Le test a été fermé ou annulé avant d’avoir un résultat.</translation>
    </message>
    <message>
        <source>REASON_NONE_GIVEN</source>
        <translation>Le test n’a pas indiqué de raison.</translation>
    </message>
    <message>
        <source>REASON_CHANNEL_COUNT_UNKNOWN</source>
        <translation>On ne sait pas combien de canaux a la source de capture.</translation>
    </message>
    <message>
        <source>REASON_ONE_CHANNEL</source>
        <translation>La source de capture n’a qu’un seul canal.</translation>
    </message>
    <message>
        <source>REASON_NOTHING_HEARD</source>
        <translation>Rien n’a été entendu.</translation>
    </message>
    <message>
        <source>REASON_CHANNEL_SOFT</source>
        <translation>Un canal était trop faible pour être reconnu et trop fort pour être tenu pour muet.</translation>
    </message>
    <message>
        <source>REASON_SIDES_ALIKE</source>
        <translation>Le microphone entend les deux côtés de la même façon.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_NOT_OPENED</source>
        <translation>La source de capture n’a pas pu être écoutée.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_NOT_OPENED</source>
        <translation>Le périphérique n’a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_DID_NOT_PLAY</source>
        <translation>Le périphérique n’a rien lu.</translation>
    </message>
    <message>
        <source>REASON_NO_SERVER</source>
        <translation>Le serveur audio ne répond pas : les périphériques ne peuvent pas être listés.</translation>
    </message>
    <message>
        <source>REASON_SERVER_SILENT</source>
        <translation>Le serveur audio ne répond pas : %1</translation>
    </message>
    <message>
        <source>REASON_TOLD</source>
        <translation>Un programme de l’exécution a signalé : %1</translation>
    </message>
    <message>
        <source>VALUE_NOT_KNOWN</source>
        <translation>inconnu</translation>
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
        <translation>Description du test</translation>
    </message>
    <message>
        <source>RUN_TEST</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>RUN_TEST_HINT</source>
        <translation>Exécute le test choisi sur le périphérique choisi (%1).</translation>
    </message>
    <message>
        <source>STOP_TEST</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>STOP_TEST_HINT</source>
        <translation>Arrête le test en cours. %1 fait de même et fonctionne aussi lorsqu’une fenêtre de test est ouverte.</translation>
    </message>
    <message>
        <source>STOPPING</source>
        <translation>Arrêt en cours…</translation>
    </message>
    <message>
        <source>PROGRESS</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>MESSAGES</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>NO_RESULT_YET</source>
        <translation>Aucun test n’a encore été exécuté.</translation>
    </message>
    <message>
        <source>TEST_IS_RUNNING</source>
        <translation>Le test est en cours…</translation>
    </message>
    <message>
        <source>VERDICT_PASSED</source>
        <translation>Réussi</translation>
    </message>
    <message>
        <source>VERDICT_FAILED</source>
        <translation>Échoué</translation>
    </message>
    <message>
        <source>VERDICT_CANNOT_BE_PERFORMED</source>
        <translation>Ne peut pas être exécuté</translation>
    </message>
    <message>
        <source>VERDICT_NOT_COMPLETED</source>
        <translation>Non terminé</translation>
    </message>
    <message>
        <source>VERDICT_STOPPED</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>VERDICT_INVALID_CALL</source>
        <translation>Non exécuté : le test n’a pas été appelé correctement</translation>
    </message>
    <message>
        <source>LEVEL_ERROR</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>LEVEL_NOTE</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>Exécutions depuis le démarrage</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>LANGUAGE</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>LOG</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>LOG_RUN_STARTED</source>
        <translation>Démarré : %1, périphérique « %2 »</translation>
    </message>
    <message>
        <source>LOG_RUN_ENDED</source>
        <translation>Terminé : %1, périphérique « %2 », résultat : %3</translation>
    </message>
    <message>
        <source>WITH_MICROPHONE</source>
        <translation>%1 (microphone : %2)</translation>
    </message>
    <message>
        <source>LOG_PROGRESS</source>
        <translation>Progression : %1 %</translation>
    </message>
    <message>
        <source>LOG_STOP_PRESSED</source>
        <translation>« Arrêter » a été actionné.</translation>
    </message>
    <message>
        <source>LOG_EVENT_SIMULATED</source>
        <translation>L’événement %1 a été simulé.</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_RESTORED</source>
        <translation>Un test précédent a été interrompu. Le volume de ces périphériques a été rétabli : %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_LEFT</source>
        <translation>Une exécution interrompue avait augmenté des volumes qui ont été modifiés depuis. Ils restent tels quels : %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_PUT_BACK</source>
        <translation>Le volume de ces périphériques a été rétabli : %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_UNPROTECTED</source>
        <translation>Le volume ne serait pas rétabli après un plantage : %1</translation>
    </message>
    <message>
        <source>LOG_LANGUAGE_CHANGED</source>
        <translation>Langue : %1</translation>
    </message>
    <message>
        <source>LOG_LANGUAGE_NOT_SAVED</source>
        <translation>Impossible d’enregistrer la langue dans le dossier « %1 ».</translation>
    </message>
    <message>
        <source>LOG_LIST_INCOMPLETE</source>
        <translation>Mémoire insuffisante pour lire tous les périphériques.</translation>
    </message>
    <message>
        <source>LOG_DEVICE_GONE</source>
        <translation>Le périphérique « %1 » n’est plus disponible.</translation>
    </message>
    <message>
        <source>PROMPT_ACCEPT</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>PROMPT_DECLINE</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>MICROPHONE_TEST_INSTRUCTIONS</source>
        <translation>Vous allez enregistrer avec un microphone, puis écouter l’enregistrement. Pendant le test, tous les volumes de lecture et d’enregistrement de cet ordinateur sont réglés à 100 %, puis rétablis. Si vous portez un casque ou des écouteurs, retirez-les maintenant.</translation>
    </message>
    <message>
        <source>UNATTENDED_INSTRUCTIONS</source>
        <translation>Le test s’exécute et se répond de lui-même ; n’utilisez ni la souris ni le clavier pendant ce temps. Pendant le test, tous les volumes de lecture et d’enregistrement de cet ordinateur sont réglés à 100 %, puis rétablis. Si vous portez un casque ou des écouteurs, retirez-les maintenant.</translation>
    </message>
    <message>
        <source>QUESTION_YES</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>QUESTION_NO</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>ENDPOINTS_RAISED</source>
        <translation>Pendant le test, le volume de ces périphériques et microphones est à 100 % ; il est ensuite rétabli :</translation>
    </message>
    <message>
        <source>MENU_FILE</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>MENU_TEST</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>MENU_LANGUAGE</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>MENU_DEVELOPER</source>
        <translation>Développeur</translation>
    </message>
    <message>
        <source>MENU_HELP</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>QUIT</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>ABOUT</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>ABOUT_VERSIONS</source>
        <translation>Version du module : %1
Version de ce programme : %2</translation>
    </message>
    <message>
        <source>ABOUT_WHICH_VERSION</source>
        <translation>Dans vos questions et rapports d’erreur, indiquez la version de ce programme ; celle du module dit avec quel module il teste.</translation>
    </message>
    <message>
        <source>SIMULATE_EVENT</source>
        <translation>Simuler un événement</translation>
    </message>
    <message>
        <source>EVENT_CANCELS</source>
        <translation>Événement %1 (annule le test)</translation>
    </message>
    <message>
        <source>EVENT_DOES_NOT_CANCEL</source>
        <translation>Événement %1 (n’annule pas le test)</translation>
    </message>
    <message>
        <source>LANGUAGE_IS_FIXED</source>
        <translation>La langue provient du dossier indiqué par --config.</translation>
    </message>
    <message>
        <source>MODULE_CANNOT_BE_USED</source>
        <translation>Le module audio ne peut pas être utilisé.</translation>
    </message>
    <message>
        <source>PROGRAM_IS_CLOSING</source>
        <translation>Le programme se fermera dès que le test sera arrêté.</translation>
    </message>
    <message>
        <source>METER_TITLE</source>
        <translation>Niveau sonore</translation>
    </message>
    <message>
        <source>METER_SOURCE</source>
        <translation>Source d’écoute : %1</translation>
    </message>
    <message>
        <source>METER_WORDS</source>
        <translation>Niveau %1 dBFS, crête %2 dBFS : %3</translation>
    </message>
    <message>
        <source>METER_SILENT</source>
        <translation>silencieux</translation>
    </message>
    <message>
        <source>METER_QUIET</source>
        <translation>faible</translation>
    </message>
    <message>
        <source>METER_GOOD</source>
        <translation>bon</translation>
    </message>
    <message>
        <source>METER_TOO_LOUD</source>
        <translation>trop fort</translation>
    </message>
    <message>
        <source>METER_NO_DATA</source>
        <translation>Rien n’a encore été entendu.</translation>
    </message>
    <message>
        <source>METER_WAVE</source>
        <translation>Forme d’onde de la dernière lecture</translation>
    </message>
    <message>
        <source>METER_WAVE_WORDS</source>
        <translation>Lecture de l’enregistrement : %1 s, crête %2 dBFS</translation>
    </message>
    <message>
        <source>METER_DIGITS_WORDS</source>
        <translation>Les chiffres tels qu’ils ont été entendus : %1 s, crête %2 dBFS</translation>
    </message>
    <message>
        <source>PRECHECK_TITLE</source>
        <translation>Avant le test</translation>
    </message>
    <message>
        <source>PRECHECK_REFUSED</source>
        <translation>Le test ne peut pas être exécuté</translation>
    </message>
    <message>
        <source>PRECHECK_RUN</source>
        <translation>Exécuter quand même</translation>
    </message>
    <message>
        <source>PRECHECK_CLOSE</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>SAVE_REPORT</source>
        <translation>Enregistrer le rapport…</translation>
    </message>
    <message>
        <source>COPY_REPORT</source>
        <translation>Copier le rapport</translation>
    </message>
    <message>
        <source>LOG_REPORT_SAVED</source>
        <translation>Le rapport a été enregistré : %1</translation>
    </message>
    <message>
        <source>LOG_REPORT_NOT_SAVED</source>
        <translation>Le rapport n’a pas pu être enregistré : %1</translation>
    </message>
    <message>
        <source>LOG_REPORT_COPIED</source>
        <translation>Le rapport a été copié sous forme de texte.</translation>
    </message>
    <message>
        <source>CHECK_CHANNELS</source>
        <translation>Vérifier les canaux…</translation>
    </message>
    <message>
        <source>CHANNELS_TITLE</source>
        <translation>Gauche et droite</translation>
    </message>
    <message>
        <source>CHANNELS_TEXT</source>
        <translation>Deux chiffres sont prononcés sur « %1 », chacun d’un seul côté, au volume actuel. Écoutez les deux et indiquez où vous les entendez.</translation>
    </message>
    <message>
        <source>CHANNELS_FIRST</source>
        <translation>Premier chiffre</translation>
    </message>
    <message>
        <source>CHANNELS_SECOND</source>
        <translation>Second chiffre</translation>
    </message>
    <message>
        <source>CHANNELS_PLAY_FIRST</source>
        <translation>Lire le premier chiffre</translation>
    </message>
    <message>
        <source>CHANNELS_PLAY_SECOND</source>
        <translation>Lire le second chiffre</translation>
    </message>
    <message>
        <source>SIDE_LEFT</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>SIDE_RIGHT</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>SIDE_BOTH</source>
        <translation>Des deux côtés</translation>
    </message>
    <message>
        <source>SIDE_NOTHING</source>
        <translation>Nulle part</translation>
    </message>
    <message>
        <source>CHANNELS_OPEN</source>
        <translation>Le résultat s’affiche une fois les deux réponses données.</translation>
    </message>
    <message>
        <source>CHANNELS_STRAIGHT</source>
        <translation>La gauche et la droite sont à leur place.</translation>
    </message>
    <message>
        <source>CHANNELS_SWAPPED</source>
        <translation>La gauche et la droite sont inversées.</translation>
    </message>
    <message>
        <source>CHANNELS_MIXED</source>
        <translation>La gauche et la droite sont mélangées et ne se distinguent pas.</translation>
    </message>
    <message>
        <source>CHANNELS_LEFT_SILENT</source>
        <translation>Le canal gauche est muet.</translation>
    </message>
    <message>
        <source>CHANNELS_RIGHT_SILENT</source>
        <translation>Le canal droit est muet.</translation>
    </message>
    <message>
        <source>CHANNELS_UNHEARD</source>
        <translation>Rien n’a été entendu. Augmentez le volume et relancez les chiffres.</translation>
    </message>
    <message>
        <source>CHANNELS_NOT_KNOWN</source>
        <translation>La gauche et la droite n’ont pas pu être mesurées : %1</translation>
    </message>
    <message>
        <source>CHANNELS_MEASURE</source>
        <translation>Mesurer avec « %1 »</translation>
    </message>
    <message>
        <source>CHANNELS_MEASURING</source>
        <translation>Écoute de « %1 »…</translation>
    </message>
    <message>
        <source>CHANNELS_NOT_PLAYED</source>
        <translation>Le chiffre n’a pas pu être lu : %1</translation>
    </message>
    <message>
        <source>CHANNELS_ONCE_MORE</source>
        <translation>Le chiffre qui n’a pas été entendu est prononcé encore une fois : le périphérique devait peut-être sortir de veille. Indiquez de nouveau où vous l’entendez.</translation>
    </message>
    <message>
        <source>CHANNELS_STALLED</source>
        <translation>Le chiffre n’a pas pu être lu : le système audio ne répond pas. Aucun avis n’est donné sur ce côté.</translation>
    </message>
    <message>
        <source>LOG_CHANNELS</source>
        <translation>Canaux de « %1 » : %2</translation>
    </message>
    <message>
        <source>LISTENING_SOURCE</source>
        <translation>Source d’écoute…</translation>
    </message>
    <message>
        <source>SOURCE_TITLE</source>
        <translation>Source d’écoute</translation>
    </message>
    <message>
        <source>SOURCE_TEXT</source>
        <translation>Ce que cette source entend est affiché à côté du test du microphone, et mesuré lors de la vérification des canaux et des exécutions sans personne. Rien d’autre n’est écouté.</translation>
    </message>
    <message>
        <source>SOURCE_NONE</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>SOURCE_READING</source>
        <translation>Lecture des sources…</translation>
    </message>
    <message>
        <source>SOURCE_ABSENT</source>
        <translation>%1 (non connectée)</translation>
    </message>
    <message>
        <source>SOURCE_USE</source>
        <translation>Utiliser</translation>
    </message>
    <message>
        <source>LOG_SOURCE</source>
        <translation>Source d’écoute : %1</translation>
    </message>
    <message>
        <source>LOG_SETTINGS_NOT_SAVED</source>
        <translation>Impossible d’enregistrer le réglage dans le dossier « %1 ».</translation>
    </message>
    <message>
        <source>RUN_UNATTENDED</source>
        <translation>Exécuter sans personne</translation>
    </message>
    <message>
        <source>MEASUREMENTS</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <source>NOTHING_MEASURED</source>
        <translation>Rien n’a été mesuré lors de la dernière exécution.</translation>
    </message>
    <message>
        <source>DIGIT</source>
        <translation>Chiffre</translation>
    </message>
    <message>
        <source>DIGIT_PLAYED</source>
        <translation>Joué</translation>
    </message>
    <message>
        <source>DIGIT_HEARD</source>
        <translation>Entendu</translation>
    </message>
    <message>
        <source>DIGIT_TYPED</source>
        <translation>Saisi</translation>
    </message>
    <message>
        <source>DIGIT_SCORE</source>
        <translation>Ressemblance</translation>
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
        <translation>Latence (ms)</translation>
    </message>
    <message>
        <source>PLOT_WAVE</source>
        <translation>Forme d’onde du chiffre %1</translation>
    </message>
    <message>
        <source>PLOT_WAVE_WORDS</source>
        <translation>%1 s, crête %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_WAVE_AT</source>
        <translation>À %1 s : de %2 à %3</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM</source>
        <translation>Spectre du chiffre %1</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM_WORDS</source>
        <translation>Maximum à %1 Hz : %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM_AT</source>
        <translation>%1 Hz : %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_KEYS</source>
        <translation>Les touches fléchées lisent les valeurs une à une.</translation>
    </message>
</context>
</TS>
