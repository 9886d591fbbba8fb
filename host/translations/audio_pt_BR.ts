<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>AUDIO</name>
    <message>
        <source>APPLICATION_NAME</source>
        <translation>Tamrex Diagnostics</translation>
    </message>
    <message>
        <source>QUICK_AUDIO</source>
        <translation>Diagnóstico rápido de áudio</translation>
    </message>
    <message>
        <source>QUICK_AUDIO_TESTS_TOOLTIP</source>
        <translation>Verifica a reprodução e a gravação de som.</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST</source>
        <translation>Teste de reprodução de áudio</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_DESCRIPTION</source>
        <translation>Reproduz dígitos falados no dispositivo selecionado; você digita o que ouvir.</translation>
    </message>
    <message>
        <source>MICROPHONE_INTERACTIVE_TEST</source>
        <translation>Teste interativo do microfone</translation>
    </message>
    <message>
        <source>MICROPHONE_INTERACTIVE_TEST_DESCRIPTION</source>
        <translation>Grava com o microfone escolhido e reproduz a gravação; você avalia o som.</translation>
    </message>
    <message>
        <source>UDI</source>
        <translation>Nome do dispositivo</translation>
    </message>
    <message>
        <source>NUMBER_OF_CHANNELS</source>
        <translation>Número de canais</translation>
    </message>
    <message>
        <source>SAMPLE_RATE</source>
        <translation>Taxa de amostragem</translation>
    </message>
    <message>
        <source>DRIVER_NAME</source>
        <translation>Sistema de áudio</translation>
    </message>
    <message>
        <source>DRIVER_VERSION</source>
        <translation>Versão do driver</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE</source>
        <translation>Os dígitos inseridos não correspondem aos reproduzidos.</translation>
    </message>
    <message>
        <source>USER_DID_NOT_REPORT_SOUND</source>
        <translation>O usuário informou que não ouviu nenhum som.</translation>
    </message>
    <message>
        <source>AUDIO_DEVICE_COULD_NOT_BE_ACCESSED</source>
        <translation>Não foi possível acessar o dispositivo de áudio.</translation>
    </message>
    <message>
        <source>TEST_CANCELED_BECAUSE_OF_AN_EVENT_THAT_COULD_COMPROMISE_THE_TEST_OUTCOME_HAPPENED</source>
        <translation>O teste foi cancelado porque ocorreu um evento que poderia comprometer o resultado.</translation>
    </message>
    <message>
        <source>THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_COULD_NOT_BE_IDENTIFIED_OR_HAS_BEEN_DISCONNECTED</source>
        <translation>Não é possível executar este teste porque o dispositivo não foi identificado ou foi desconectado.</translation>
    </message>
    <message>
        <source>THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_CAN_NOT_RECEIVE_INPUT</source>
        <translation>Não é possível executar este teste porque não há como receber entradas do usuário.</translation>
    </message>
    <message>
        <source>AN_INTERNAL_ERROR_OCCURRED._|THIS_DOES_NOT_INDICATE_A_FAILURE._|PLEASE_TRY_AGAIN.</source>
        <translation>Ocorreu um erro interno.|Isso não indica um defeito.|Tente novamente.</translation>
    </message>
    <message>
        <source>AN_INTERNAL_ERROR_OCCURRED._</source>
        <translation>Ocorreu um erro interno.</translation>
    </message>
    <message>
        <source>THIS_DOES_NOT_INDICATE_A_FAILURE._</source>
        <translation>Isso não indica um defeito.</translation>
    </message>
    <message>
        <source>PLEASE_TRY_AGAIN.</source>
        <translation>Tente novamente.</translation>
    </message>
    <message>
        <source>NO_INPUT_DEVICE</source>
        <translation>Nenhum dispositivo de entrada de áudio foi encontrado.</translation>
    </message>
    <message>
        <source>POSSIBLE_DEFECTIVE_COMPONENTS</source>
        <translation>Componentes possivelmente defeituosos</translation>
    </message>
    <message>
        <source>SPEAKERS</source>
        <translation>Alto-falantes</translation>
    </message>
    <message>
        <source>MICROPHONE</source>
        <translation>Microfone</translation>
    </message>
    <message>
        <source>CAMERA_MICROPHONE_MODULE</source>
        <translation>Módulo de câmera e microfone</translation>
    </message>
    <message>
        <source>kTkAdvancedTestInputTitle</source>
        <translation>Teste interativo</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_INSTRUCTIONS</source>
        <translation>Serão reproduzidos três dígitos falados; digite o que ouvir. Para isso, todos os volumes de reprodução e de gravação deste computador serão ajustados para 100% e restaurados depois. Se estiver usando fones de ouvido, retire-os agora.</translation>
    </message>
    <message>
        <source>DID_YOU_HEAR_THE_SAME_SOUND_YOU_RECORDED</source>
        <translation>Você ouviu o mesmo som que gravou?</translation>
    </message>
    <message>
        <source>FIRST_SEQUENCE</source>
        <translation>Primeira sequência</translation>
    </message>
    <message>
        <source>SECOND_SEQUENCE</source>
        <translation>Segunda sequência</translation>
    </message>
    <message>
        <source>AUDIO_PLAYBACK_TEST_GENERAL_INSTRUCTIONS</source>
        <translation>Insira os três dígitos falados na ordem em que os ouvir. Você tem duas tentativas.</translation>
    </message>
    <message>
        <source>SELECT_OR_TYPE_NUMBER</source>
        <translation>Clique nos dígitos que ouvir ou digite-os.</translation>
    </message>
    <message>
        <source>FAIL_BUTTON_TEXT</source>
        <translation>Não ouvi nada</translation>
    </message>
    <message>
        <source>CLICK_FAIL_IF_NO_SOUND_WAS_HEARD</source>
        <translation>Se não houver som, clique em “Não ouvi nada”.</translation>
    </message>
    <message>
        <source>FAIL_BUTTON_TOOLTP</source>
        <translation>Encerra o teste como reprovado: nenhum som</translation>
    </message>
    <message>
        <source>BACKSPACE_BUTTON_TOOLTP</source>
        <translation>Apagar o último dígito</translation>
    </message>
    <message>
        <source>PLAY_THE_SEQUENCE_AGAIN</source>
        <translation>Reproduzir a sequência novamente</translation>
    </message>
    <message>
        <source>SELECT_A_MICROPHONE_DEVICE</source>
        <translation>Selecione um microfone</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>NEXT</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>Gravar</translation>
    </message>
    <message>
        <source>PLAY</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>PRESS_RECORD_AND_SPEAK_ON_THE_MICROPHONE</source>
        <translation>Pressione “Gravar” e fale no microfone.</translation>
    </message>
    <message>
        <source>PRESS_PLAY_AND_LISTEN_TO_THE_RECORDED_AUDIO</source>
        <translation>Pressione “Reproduzir” e ouça a gravação.</translation>
    </message>
</context>
</TS>
