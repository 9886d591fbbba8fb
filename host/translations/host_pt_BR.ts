<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>HOST</name>
    <message>
        <source>DEVICES</source>
        <translation>Dispositivos de saída</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>REFRESH_DEVICES</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>REFRESH_DEVICES_HINT</source>
        <translation>Lê novamente a lista de dispositivos de saída (F5). A lista também se atualiza sozinha quando um dispositivo é conectado ou removido.</translation>
    </message>
    <message>
        <source>READING_DEVICES</source>
        <translation>Lendo os dispositivos de saída…</translation>
    </message>
    <message>
        <source>DEVICES_FOUND</source>
        <translation>Dispositivos de saída encontrados: %1</translation>
    </message>
    <message>
        <source>NO_DEVICES</source>
        <translation>Nenhum dispositivo de saída foi encontrado. Conecte um; a lista se atualiza sozinha.</translation>
    </message>
    <message>
        <source>SOUND_SERVER_SILENT</source>
        <translation>O servidor de som não responde: os dispositivos não podem ser listados. Inicie-o e atualize a lista.</translation>
    </message>
    <message>
        <source>DEVICE_STATE</source>
        <translation>No momento</translation>
    </message>
    <message>
        <source>STATE_VOLUME</source>
        <translation>volume %1%</translation>
    </message>
    <message>
        <source>STATE_MUTED</source>
        <translation>sem som</translation>
    </message>
    <message>
        <source>STATE_DEFAULT</source>
        <translation>padrão</translation>
    </message>
    <message>
        <source>STATE_VIRTUAL</source>
        <translation>virtual</translation>
    </message>
    <message>
        <source>PRECHECK_SOUND_SERVER_SILENT</source>
        <translation>O servidor de som não responde: não foi possível verificar o volume nem o silenciamento.</translation>
    </message>
    <message>
        <source>PRECHECK_DEVICE_MUTED</source>
        <translation>“%1” está silenciado. Nada foi alterado: o próprio teste ativa o som enquanto é executado.</translation>
    </message>
    <message>
        <source>PRECHECK_DEVICE_AT_ZERO</source>
        <translation>O volume de “%1” está em 0. Nada foi alterado: o próprio teste o aumenta enquanto é executado.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIPS_MISSING</source>
        <translation>Faltam os dígitos falados do idioma %1. O teste não pode ser executado.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIP_DAMAGED</source>
        <translation>O arquivo de som %1 está ausente ou não é o que foi fornecido. O teste não pode ser executado: a culpa recairia sobre o dispositivo.</translation>
    </message>
    <message>
        <source>PRECHECK_CLIPS_UNCHECKED</source>
        <translation>Não há uma lista dos arquivos de som fornecidos: não foi possível verificá-los.</translation>
    </message>
    <message>
        <source>PRECHECK_MICROPHONE_BLOCKED</source>
        <translation>As configurações de privacidade do sistema impedem os programas de usar o microfone: ele gravaria apenas silêncio.</translation>
    </message>
    <message>
        <source>PRECHECK_SOURCE_MUTED</source>
        <translation>A fonte de captura “%1” está silenciada. O teste não pode ser executado: a culpa recairia sobre o dispositivo.</translation>
    </message>
    <message>
        <source>PRECHECK_SOURCE_AT_ZERO</source>
        <translation>O volume da fonte de captura “%1” está em 0. O teste não pode ser executado: a culpa recairia sobre o dispositivo.</translation>
    </message>
    <message>
        <source>REASON_STOPPED</source>
        <translation>A execução foi parada.</translation>
    </message>
    <message>
        <source>REASON_TOOK_TOO_LONG</source>
        <translation>A execução demorou mais de cinco minutos.</translation>
    </message>
    <message>
        <source>REASON_RUN_NOT_TAKEN</source>
        <translation>A execução não pôde começar: há outra em andamento ou o dispositivo não está mais presente.</translation>
    </message>
    <message>
        <source>REASON_HOST_BROKE_DOWN</source>
        <translation>O programa gráfico terminou sem resultado, como ocorre quando a tela é perdida.</translation>
    </message>
    <message>
        <source>REASON_HOST_HUNG</source>
        <translation>O programa gráfico não chegou ao fim.</translation>
    </message>
    <message>
        <source>REASON_HOST_NOT_STARTED</source>
        <translation>Não é possível iniciar o programa gráfico: %1</translation>
    </message>
    <message>
        <source>REASON_NO_MODULE</source>
        <translation>O programa gráfico não consegue usar o módulo de áudio.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_GONE</source>
        <translation>O dispositivo “%1” não está mais presente.</translation>
    </message>
    <message>
        <source>REASON_NO_OUTPUT_DEVICE</source>
        <translation>Nenhum dispositivo de saída foi encontrado.</translation>
    </message>
    <message>
        <source>REASON_NO_DISPLAY</source>
        <translation>O programa gráfico precisa de uma tela; tente xvfb-run.</translation>
    </message>
    <message>
        <source>REASON_HEARS_ANOTHER</source>
        <translation>“%1” ouve um dispositivo diferente de “%2”, que seria culpado pelo silêncio.</translation>
    </message>
    <message>
        <source>REASON_VIRTUAL_DEVICE</source>
        <translation>“%1” é um dispositivo virtual: um resultado nele não diz nada sobre este computador.</translation>
    </message>
    <message>
        <source>REASON_VIRTUAL_UNKNOWN</source>
        <translation>O servidor de som não responde: não se sabe se “%1” é um dispositivo virtual.</translation>
    </message>
    <message>
        <source>REASON_VOLUMES_HELD</source>
        <translation>Outra execução está mantendo os volumes.</translation>
    </message>
    <message>
        <source>WARNING_IS_MUTED_AGAIN</source>
        <translation>“%1” estava silenciado antes da execução e agora está silenciado novamente.</translation>
    </message>
    <message>
        <source>WARNING_WAS_MUTED</source>
        <translation>“%1” estava silenciado antes da execução.</translation>
    </message>
    <message>
        <source>WARNING_IS_AT_ZERO_AGAIN</source>
        <translation>O volume de “%1” estava em 0 antes da execução e agora está em 0 novamente.</translation>
    </message>
    <message>
        <source>WARNING_WAS_AT_ZERO</source>
        <translation>O volume de “%1” estava em 0 antes da execução.</translation>
    </message>
    <message>
        <source>RUN_UNATTENDED_NO_SOURCE</source>
        <translation>Escolha primeiro o que escuta, em “Fonte de escuta…” neste menu.</translation>
    </message>
    <message>
        <source>REASON_LISTENER_LOST</source>
        <translation>O programa de escuta foi perdido durante a execução.</translation>
    </message>
    <message>
        <source>REASON_NOT_RECOGNISED</source>
        <translation>Algum som foi ouvido, mas os dígitos não foram reconhecidos.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_DEAD</source>
        <translation>A fonte de captura não fornece nada.</translation>
    </message>
    <message>
        <source>REASON_ZEROS_ONLY</source>
        <translation>“%1” fornece somente zeros: está desligado, bloqueado ou desconectado.</translation>
    </message>
    <message>
        <source>REASON_VOLUME_NOT_RAISED</source>
        <translation>Não foi possível aumentar o volume.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_TURNED_DOWN</source>
        <translation>A fonte de captura foi silenciada ou teve o volume reduzido.</translation>
    </message>
    <message>
        <source>REASON_NO_SUCH_SOURCE</source>
        <translation>Nenhuma fonte de captura se chama “%1”. Existem: %2</translation>
    </message>
    <message>
        <source>REASON_NO_SUCH_MICROPHONE</source>
        <translation>Nenhum microfone se chama “%1”. Existem: %2</translation>
    </message>
    <message>
        <source>REASON_QUESTION_OPEN</source>
        <translation>Uma pergunta do teste ficou sem resposta.</translation>
    </message>
    <message>
        <source>REASON_SPEECH_DID_NOT_BEGIN</source>
        <translation>Não foi possível falar a frase a ser gravada.</translation>
    </message>
    <message>
        <source>REASON_SENTENCE_NOT_HEARD</source>
        <translation>A frase a ser gravada não foi ouvida quando foi falada.</translation>
    </message>
    <message>
        <source>REASON_NO_SPEAKER</source>
        <translation>Não foi possível reproduzir a fala: %1</translation>
    </message>
    <message>
        <source>REASON_DIALOG</source>
        <translation>Uma janela do teste não reagiu como esperado.</translation>
    </message>
    <message>
        <source>REASON_ANSWERED_NO</source>
        <translation>A pergunta se o mesmo som foi ouvido foi respondida com “Não”.</translation>
    </message>
    <message>
        <source>REASON_ENDED_EARLY</source>
        <translation>O teste foi fechado ou cancelado antes de ter um resultado.</translation>
    </message>
    <message>
        <source>REASON_NONE_GIVEN</source>
        <translation>O teste não informou o motivo.</translation>
    </message>
    <message>
        <source>REASON_CHANNEL_COUNT_UNKNOWN</source>
        <translation>Não se sabe quantos canais a fonte de captura tem.</translation>
    </message>
    <message>
        <source>REASON_ONE_CHANNEL</source>
        <translation>A fonte de captura tem um canal só.</translation>
    </message>
    <message>
        <source>REASON_NOTHING_HEARD</source>
        <translation>Nada foi ouvido.</translation>
    </message>
    <message>
        <source>REASON_CHANNEL_SOFT</source>
        <translation>Um canal estava baixo demais para ser reconhecido e alto demais para ser considerado mudo.</translation>
    </message>
    <message>
        <source>REASON_SIDES_ALIKE</source>
        <translation>O microfone ouve os dois lados da mesma forma.</translation>
    </message>
    <message>
        <source>REASON_SOURCE_NOT_OPENED</source>
        <translation>Não foi possível ouvir a fonte de captura.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_NOT_OPENED</source>
        <translation>Não foi possível abrir o dispositivo.</translation>
    </message>
    <message>
        <source>REASON_DEVICE_DID_NOT_PLAY</source>
        <translation>O dispositivo não reproduziu nada.</translation>
    </message>
    <message>
        <source>REASON_NO_SERVER</source>
        <translation>O servidor de som não responde: os dispositivos não podem ser listados.</translation>
    </message>
    <message>
        <source>REASON_SERVER_SILENT</source>
        <translation>O servidor de som não responde: %1</translation>
    </message>
    <message>
        <source>REASON_TOLD</source>
        <translation>Um programa da execução informou: %1</translation>
    </message>
    <message>
        <source>VALUE_NOT_KNOWN</source>
        <translation>desconhecido</translation>
    </message>
    <message>
        <source>TESTS</source>
        <translation>Testes</translation>
    </message>
    <message>
        <source>TEST</source>
        <translation>Teste</translation>
    </message>
    <message>
        <source>TEST_DESCRIPTION</source>
        <translation>Descrição do teste</translation>
    </message>
    <message>
        <source>RUN_TEST</source>
        <translation>Executar</translation>
    </message>
    <message>
        <source>RUN_TEST_HINT</source>
        <translation>Executa o teste escolhido no dispositivo escolhido (%1).</translation>
    </message>
    <message>
        <source>STOP_TEST</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>STOP_TEST_HINT</source>
        <translation>Para o teste em execução. %1 faz o mesmo e também funciona com uma janela de teste aberta.</translation>
    </message>
    <message>
        <source>STOPPING</source>
        <translation>Parando…</translation>
    </message>
    <message>
        <source>PROGRESS</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>MESSAGES</source>
        <translation>Mensagens</translation>
    </message>
    <message>
        <source>NO_RESULT_YET</source>
        <translation>Nenhum teste foi executado ainda.</translation>
    </message>
    <message>
        <source>TEST_IS_RUNNING</source>
        <translation>O teste está em execução…</translation>
    </message>
    <message>
        <source>VERDICT_PASSED</source>
        <translation>Aprovado</translation>
    </message>
    <message>
        <source>VERDICT_FAILED</source>
        <translation>Reprovado</translation>
    </message>
    <message>
        <source>VERDICT_CANNOT_BE_PERFORMED</source>
        <translation>Não pode ser executado</translation>
    </message>
    <message>
        <source>VERDICT_NOT_COMPLETED</source>
        <translation>Não concluído</translation>
    </message>
    <message>
        <source>VERDICT_STOPPED</source>
        <translation>Parado</translation>
    </message>
    <message>
        <source>VERDICT_INVALID_CALL</source>
        <translation>Não executado: chamada incorreta do teste</translation>
    </message>
    <message>
        <source>LEVEL_ERROR</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>LEVEL_NOTE</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>Execuções desde o início</translation>
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
        <translation>Iniciado: %1, dispositivo “%2”</translation>
    </message>
    <message>
        <source>LOG_RUN_ENDED</source>
        <translation>Encerrado: %1, dispositivo “%2”, resultado: %3</translation>
    </message>
    <message>
        <source>WITH_MICROPHONE</source>
        <translation>%1 (microfone: %2)</translation>
    </message>
    <message>
        <source>LOG_PROGRESS</source>
        <translation>Progresso: %1%</translation>
    </message>
    <message>
        <source>LOG_STOP_PRESSED</source>
        <translation>“Parar” foi pressionado.</translation>
    </message>
    <message>
        <source>LOG_EVENT_SIMULATED</source>
        <translation>O evento %1 foi simulado.</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_RESTORED</source>
        <translation>Um teste anterior foi interrompido. O volume destes dispositivos foi restaurado: %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_LEFT</source>
        <translation>Uma execução interrompida tinha aumentado volumes que foram alterados desde então. Eles ficam como estão: %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_PUT_BACK</source>
        <translation>O volume destes dispositivos foi restaurado: %1</translation>
    </message>
    <message>
        <source>LOG_VOLUMES_UNPROTECTED</source>
        <translation>O volume não seria restaurado após uma falha do programa: %1</translation>
    </message>
    <message>
        <source>LOG_LANGUAGE_CHANGED</source>
        <translation>Idioma: %1</translation>
    </message>
    <message>
        <source>LOG_LANGUAGE_NOT_SAVED</source>
        <translation>Não foi possível salvar o idioma na pasta “%1”.</translation>
    </message>
    <message>
        <source>LOG_LIST_INCOMPLETE</source>
        <translation>Não havia memória suficiente para ler todos os dispositivos.</translation>
    </message>
    <message>
        <source>LOG_DEVICE_GONE</source>
        <translation>O dispositivo “%1” não está mais disponível.</translation>
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
        <translation>Você gravará com um microfone e depois ouvirá a gravação. Durante o teste, todos os volumes de reprodução e de gravação deste computador serão ajustados para 100% e restaurados depois. Se estiver usando fones de ouvido, retire-os agora.</translation>
    </message>
    <message>
        <source>UNATTENDED_INSTRUCTIONS</source>
        <translation>O teste é executado e respondido sozinho; enquanto isso, não use o mouse nem o teclado. Durante o teste, todos os volumes de reprodução e de gravação deste computador serão ajustados para 100% e restaurados depois. Se estiver usando fones de ouvido, retire-os agora.</translation>
    </message>
    <message>
        <source>QUESTION_YES</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>QUESTION_NO</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>ENDPOINTS_RAISED</source>
        <translation>Durante o teste, o volume destes dispositivos e microfones fica em 100%; depois, é restaurado:</translation>
    </message>
    <message>
        <source>MENU_FILE</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>MENU_TEST</source>
        <translation>Teste</translation>
    </message>
    <message>
        <source>MENU_LANGUAGE</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>MENU_DEVELOPER</source>
        <translation>Desenvolvedor</translation>
    </message>
    <message>
        <source>MENU_HELP</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>QUIT</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>ABOUT</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>ABOUT_VERSIONS</source>
        <translation>Versão do módulo: %1
Versão deste programa: %2</translation>
    </message>
    <message>
        <source>ABOUT_WHICH_VERSION</source>
        <translation>Em perguntas e relatos de erros, cite a versão deste programa; a versão do módulo diz com qual módulo ele testa.</translation>
    </message>
    <message>
        <source>SIMULATE_EVENT</source>
        <translation>Simular evento</translation>
    </message>
    <message>
        <source>EVENT_CANCELS</source>
        <translation>Evento %1 (cancela o teste)</translation>
    </message>
    <message>
        <source>EVENT_DOES_NOT_CANCEL</source>
        <translation>Evento %1 (não cancela o teste)</translation>
    </message>
    <message>
        <source>LANGUAGE_IS_FIXED</source>
        <translation>O idioma vem da pasta indicada com --config.</translation>
    </message>
    <message>
        <source>MODULE_CANNOT_BE_USED</source>
        <translation>O módulo de áudio não pode ser usado.</translation>
    </message>
    <message>
        <source>PROGRAM_IS_CLOSING</source>
        <translation>O programa será fechado assim que o teste parar.</translation>
    </message>
    <message>
        <source>METER_TITLE</source>
        <translation>Nível de som</translation>
    </message>
    <message>
        <source>METER_SOURCE</source>
        <translation>Ouvido por: %1</translation>
    </message>
    <message>
        <source>METER_WORDS</source>
        <translation>Nível %1 dBFS, pico %2 dBFS: %3</translation>
    </message>
    <message>
        <source>METER_SILENT</source>
        <translation>silencioso</translation>
    </message>
    <message>
        <source>METER_QUIET</source>
        <translation>baixo</translation>
    </message>
    <message>
        <source>METER_GOOD</source>
        <translation>bom</translation>
    </message>
    <message>
        <source>METER_TOO_LOUD</source>
        <translation>alto demais</translation>
    </message>
    <message>
        <source>METER_NO_DATA</source>
        <translation>Nada foi ouvido ainda.</translation>
    </message>
    <message>
        <source>METER_WAVE</source>
        <translation>Forma de onda da última reprodução</translation>
    </message>
    <message>
        <source>METER_WAVE_WORDS</source>
        <translation>Reprodução da gravação: %1 s, pico %2 dBFS</translation>
    </message>
    <message>
        <source>METER_DIGITS_WORDS</source>
        <translation>Os algarismos como foram ouvidos: %1 s, pico %2 dBFS</translation>
    </message>
    <message>
        <source>PRECHECK_TITLE</source>
        <translation>Antes do teste</translation>
    </message>
    <message>
        <source>PRECHECK_REFUSED</source>
        <translation>O teste não pode ser executado</translation>
    </message>
    <message>
        <source>PRECHECK_RUN</source>
        <translation>Executar mesmo assim</translation>
    </message>
    <message>
        <source>PRECHECK_CLOSE</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>SAVE_REPORT</source>
        <translation>Salvar relatório…</translation>
    </message>
    <message>
        <source>COPY_REPORT</source>
        <translation>Copiar relatório</translation>
    </message>
    <message>
        <source>LOG_REPORT_SAVED</source>
        <translation>O relatório foi salvo: %1</translation>
    </message>
    <message>
        <source>LOG_REPORT_NOT_SAVED</source>
        <translation>Não foi possível salvar o relatório: %1</translation>
    </message>
    <message>
        <source>LOG_REPORT_COPIED</source>
        <translation>O relatório foi copiado como texto.</translation>
    </message>
    <message>
        <source>CHECK_CHANNELS</source>
        <translation>Verificar canais…</translation>
    </message>
    <message>
        <source>CHANNELS_TITLE</source>
        <translation>Esquerda e direita</translation>
    </message>
    <message>
        <source>CHANNELS_TEXT</source>
        <translation>Dois algarismos são falados em “%1”, cada um de um lado só, no volume atual. Reproduza os dois e diga onde os ouve.</translation>
    </message>
    <message>
        <source>CHANNELS_FIRST</source>
        <translation>Primeiro algarismo</translation>
    </message>
    <message>
        <source>CHANNELS_SECOND</source>
        <translation>Segundo algarismo</translation>
    </message>
    <message>
        <source>CHANNELS_PLAY_FIRST</source>
        <translation>Reproduzir o primeiro algarismo</translation>
    </message>
    <message>
        <source>CHANNELS_PLAY_SECOND</source>
        <translation>Reproduzir o segundo algarismo</translation>
    </message>
    <message>
        <source>SIDE_LEFT</source>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>SIDE_RIGHT</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>SIDE_BOTH</source>
        <translation>Os dois lados</translation>
    </message>
    <message>
        <source>SIDE_NOTHING</source>
        <translation>Nada</translation>
    </message>
    <message>
        <source>CHANNELS_OPEN</source>
        <translation>O resultado aparece quando os dois algarismos forem respondidos.</translation>
    </message>
    <message>
        <source>CHANNELS_STRAIGHT</source>
        <translation>A esquerda e a direita estão no lugar certo.</translation>
    </message>
    <message>
        <source>CHANNELS_SWAPPED</source>
        <translation>A esquerda e a direita estão trocadas.</translation>
    </message>
    <message>
        <source>CHANNELS_MIXED</source>
        <translation>A esquerda e a direita estão misturadas e não se distinguem.</translation>
    </message>
    <message>
        <source>CHANNELS_LEFT_SILENT</source>
        <translation>O canal esquerdo está mudo.</translation>
    </message>
    <message>
        <source>CHANNELS_RIGHT_SILENT</source>
        <translation>O canal direito está mudo.</translation>
    </message>
    <message>
        <source>CHANNELS_UNHEARD</source>
        <translation>Nada foi ouvido. Aumente o volume e reproduza os algarismos de novo.</translation>
    </message>
    <message>
        <source>CHANNELS_NOT_KNOWN</source>
        <translation>Não foi possível medir a esquerda e a direita: %1</translation>
    </message>
    <message>
        <source>CHANNELS_MEASURE</source>
        <translation>Medir com “%1”</translation>
    </message>
    <message>
        <source>CHANNELS_MEASURING</source>
        <translation>Ouvindo “%1”…</translation>
    </message>
    <message>
        <source>CHANNELS_NOT_PLAYED</source>
        <translation>Não foi possível reproduzir o algarismo: %1</translation>
    </message>
    <message>
        <source>CHANNELS_ONCE_MORE</source>
        <translation>O algarismo que não foi ouvido é falado mais uma vez: talvez o dispositivo ainda estivesse despertando. Diga de novo onde o ouve.</translation>
    </message>
    <message>
        <source>CHANNELS_STALLED</source>
        <translation>Não foi possível reproduzir o algarismo: o sistema de som não responde. Nada é dito sobre este lado.</translation>
    </message>
    <message>
        <source>LOG_CHANNELS</source>
        <translation>Canais de “%1”: %2</translation>
    </message>
    <message>
        <source>LISTENING_SOURCE</source>
        <translation>Fonte de escuta…</translation>
    </message>
    <message>
        <source>SOURCE_TITLE</source>
        <translation>Fonte de escuta</translation>
    </message>
    <message>
        <source>SOURCE_TEXT</source>
        <translation>O que esta fonte ouve é mostrado ao lado do teste do microfone e medido na verificação dos canais e nas execuções sem ninguém presente. Fora isso, nada é escutado.</translation>
    </message>
    <message>
        <source>SOURCE_NONE</source>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>SOURCE_READING</source>
        <translation>Lendo as fontes…</translation>
    </message>
    <message>
        <source>SOURCE_ABSENT</source>
        <translation>%1 (não conectada)</translation>
    </message>
    <message>
        <source>SOURCE_USE</source>
        <translation>Usar</translation>
    </message>
    <message>
        <source>LOG_SOURCE</source>
        <translation>Fonte de escuta: %1</translation>
    </message>
    <message>
        <source>LOG_SETTINGS_NOT_SAVED</source>
        <translation>Não foi possível salvar a configuração na pasta “%1”.</translation>
    </message>
    <message>
        <source>RUN_UNATTENDED</source>
        <translation>Executar sem ninguém presente</translation>
    </message>
    <message>
        <source>MEASUREMENTS</source>
        <translation>Medições</translation>
    </message>
    <message>
        <source>NOTHING_MEASURED</source>
        <translation>Nada foi medido na última execução.</translation>
    </message>
    <message>
        <source>DIGIT</source>
        <translation>Algarismo</translation>
    </message>
    <message>
        <source>DIGIT_PLAYED</source>
        <translation>Tocado</translation>
    </message>
    <message>
        <source>DIGIT_HEARD</source>
        <translation>Ouvido</translation>
    </message>
    <message>
        <source>DIGIT_TYPED</source>
        <translation>Digitado</translation>
    </message>
    <message>
        <source>DIGIT_SCORE</source>
        <translation>Semelhança</translation>
    </message>
    <message>
        <source>DIGIT_LEVEL</source>
        <translation>Nível (dBFS)</translation>
    </message>
    <message>
        <source>DIGIT_SNR</source>
        <translation>SNR (dB)</translation>
    </message>
    <message>
        <source>DIGIT_LATENCY</source>
        <translation>Latência (ms)</translation>
    </message>
    <message>
        <source>PLOT_WAVE</source>
        <translation>Forma de onda do algarismo %1</translation>
    </message>
    <message>
        <source>PLOT_WAVE_WORDS</source>
        <translation>%1 s, pico %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_WAVE_AT</source>
        <translation>Em %1 s: de %2 a %3</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM</source>
        <translation>Espectro do algarismo %1</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM_WORDS</source>
        <translation>Mais forte em %1 Hz: %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_SPECTRUM_AT</source>
        <translation>%1 Hz: %2 dBFS</translation>
    </message>
    <message>
        <source>PLOT_KEYS</source>
        <translation>As teclas de seta leem valores individuais.</translation>
    </message>
</context>
</TS>
