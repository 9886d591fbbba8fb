<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AUDIO</name>
    <message>
        <source>APPLICATION_NAME</source>
        <translation>Tamrex Diagnostics</translation>
    </message>
    <message>
        <source>QUICK_AUDIO</source>
        <translation>Diagnostic audio rapide</translation>
    </message>
    <message>
        <source>QUICK_AUDIO_TESTS_TOOLTIP</source>
        <translation>Vérifie la lecture et l’enregistrement du son.</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST</source>
        <translation>Test de lecture audio</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_DESCRIPTION</source>
        <translation>Énonce des chiffres sur le périphérique sélectionné ; vous saisissez ce que vous entendez.</translation>
    </message>
    <message>
        <source>MICROPHONE_INTERACTIVE_TEST</source>
        <translation>Test interactif du microphone</translation>
    </message>
    <message>
        <source>MICROPHONE_INTERACTIVE_TEST_DESCRIPTION</source>
        <translation>Enregistre avec le microphone choisi, puis relit l’enregistrement ; vous jugez du son.</translation>
    </message>
    <message>
        <source>UDI</source>
        <translation>Nom du périphérique</translation>
    </message>
    <message>
        <source>NUMBER_OF_CHANNELS</source>
        <translation>Nombre de canaux</translation>
    </message>
    <message>
        <source>SAMPLE_RATE</source>
        <translation>Fréquence d’échantillonnage</translation>
    </message>
    <message>
        <source>DRIVER_NAME</source>
        <translation>Système audio</translation>
    </message>
    <message>
        <source>DRIVER_VERSION</source>
        <translation>Version du pilote</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE</source>
        <translation>Les chiffres saisis ne correspondent pas aux chiffres énoncés.</translation>
    </message>
    <message>
        <source>USER_DID_NOT_REPORT_SOUND</source>
        <translation>L’utilisateur a indiqué n’avoir entendu aucun son.</translation>
    </message>
    <message>
        <source>AUDIO_DEVICE_COULD_NOT_BE_ACCESSED</source>
        <translation>Impossible d’accéder au périphérique audio.</translation>
    </message>
    <message>
        <source>TEST_CANCELED_BECAUSE_OF_AN_EVENT_THAT_COULD_COMPROMISE_THE_TEST_OUTCOME_HAPPENED</source>
        <translation>Le test a été annulé, car un événement susceptible de fausser le résultat s’est produit.</translation>
    </message>
    <message>
        <source>THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_COULD_NOT_BE_IDENTIFIED_OR_HAS_BEEN_DISCONNECTED</source>
        <translation>Ce test ne peut pas être exécuté, car le périphérique n’a pas pu être identifié ou a été déconnecté.</translation>
    </message>
    <message>
        <source>THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_CAN_NOT_RECEIVE_INPUT</source>
        <translation>Ce test ne peut pas être exécuté, car aucune saisie de l’utilisateur n’est possible.</translation>
    </message>
    <message>
        <source>AN_INTERNAL_ERROR_OCCURRED._|THIS_DOES_NOT_INDICATE_A_FAILURE._|PLEASE_TRY_AGAIN.</source>
        <translation>Une erreur interne s’est produite.|Cela n’indique pas une défaillance.|Veuillez réessayer.</translation>
    </message>
    <message>
        <source>AN_INTERNAL_ERROR_OCCURRED._</source>
        <translation>Une erreur interne s’est produite.</translation>
    </message>
    <message>
        <source>THIS_DOES_NOT_INDICATE_A_FAILURE._</source>
        <translation>Cela n’indique pas une défaillance.</translation>
    </message>
    <message>
        <source>PLEASE_TRY_AGAIN.</source>
        <translation>Veuillez réessayer.</translation>
    </message>
    <message>
        <source>NO_INPUT_DEVICE</source>
        <translation>Aucun périphérique d’entrée audio n’a été trouvé.</translation>
    </message>
    <message>
        <source>POSSIBLE_DEFECTIVE_COMPONENTS</source>
        <translation>Composants potentiellement défectueux</translation>
    </message>
    <message>
        <source>SPEAKERS</source>
        <translation>Haut-parleurs</translation>
    </message>
    <message>
        <source>MICROPHONE</source>
        <translation>Microphone</translation>
    </message>
    <message>
        <source>CAMERA_MICROPHONE_MODULE</source>
        <translation>Module caméra et microphone</translation>
    </message>
    <message>
        <source>kTkAdvancedTestInputTitle</source>
        <translation>Test interactif</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_INSTRUCTIONS</source>
        <translation>Trois chiffres vont être énoncés ; saisissez ce que vous entendez. Pour cela, tous les volumes de lecture et d’enregistrement de cet ordinateur sont réglés à 100 %, puis rétablis. Si vous portez un casque ou des écouteurs, retirez-les maintenant.</translation>
    </message>
    <message>
        <source>DID_YOU_HEAR_THE_SAME_SOUND_YOU_RECORDED</source>
        <translation>Avez-vous entendu le même son que celui que vous avez enregistré ?</translation>
    </message>
    <message>
        <source>FIRST_SEQUENCE</source>
        <translation>Première séquence</translation>
    </message>
    <message>
        <source>SECOND_SEQUENCE</source>
        <translation>Deuxième séquence</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_GENERAL_INSTRUCTIONS</source>
        <translation>Saisissez les trois chiffres dans l’ordre où vous les entendez. Vous avez deux essais.</translation>
    </message>
    <message>
        <source>SELECT_OR_TYPE_NUMBER</source>
        <translation>Cliquez sur les chiffres entendus ou tapez-les.</translation>
    </message>
    <message>
        <source>FAIL_BUTTON_TEXT</source>
        <translation>Je n’ai rien entendu</translation>
    </message>
    <message>
        <source>CLICK_FAIL_IF_NO_SOUND_WAS_HEARD</source>
        <translation>Sans aucun son, cliquez sur « Je n’ai rien entendu ».</translation>
    </message>
    <message>
        <source>FAIL_BUTTON_TOOLTP</source>
        <translation>Terminer le test comme échoué : aucun son</translation>
    </message>
    <message>
        <source>BACKSPACE_BUTTON_TOOLTP</source>
        <translation>Effacer le dernier chiffre</translation>
    </message>
    <message>
        <source>PLAY_THE_SEQUENCE_AGAIN</source>
        <translation>Réécouter la séquence</translation>
    </message>
    <message>
        <source>SELECT_A_MICROPHONE_DEVICE</source>
        <translation>Sélectionnez un microphone</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>NEXT</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>PLAY</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>PRESS_RECORD_AND_SPEAK_ON_THE_MICROPHONE</source>
        <translation>Appuyez sur « Enregistrer » et parlez dans le microphone.</translation>
    </message>
    <message>
        <source>PRESS_PLAY_AND_LISTEN_TO_THE_RECORDED_AUDIO</source>
        <translation>Appuyez sur « Lire » et écoutez l’enregistrement.</translation>
    </message>
</context>
</TS>
