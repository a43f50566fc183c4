<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT">
<context>
    <name></name>
    <message id="meta_pid">
        <source></source>
        <translation>ID do processo</translation>
    </message>
    <message id="meta_pid_tip">
        <source></source>
        <translation>O número do processo. Os processos do núcleo contam-se a partir de 1; 0 é a tarefa inativa, e as aplicações do ambiente Classic têm números inventados abaixo de -1.</translation>
    </message>
    <message id="meta_name">
        <source></source>
        <translation>Nome</translation>
    </message>
    <message id="meta_name_tip">
        <source></source>
        <translation>O nome da aplicação se o processo for uma; senão, o nome do seu comando, completo quando pode ser conhecido.</translation>
    </message>
    <message id="meta_active_time">
        <source></source>
        <translation>Tempo de CPU</translation>
    </message>
    <message id="meta_active_time_tip">
        <source></source>
        <translation>Tempo de CPU utilizado desde que o processo foi iniciado, de utilizador e de sistema em conjunto, em segundos. Para as aplicações do ambiente Classic é uma estimativa.</translation>
    </message>
    <message id="meta_kind">
        <source></source>
        <translation>Tipo</translation>
    </message>
    <message id="meta_kind_tip">
        <source></source>
        <translation>O que é: uma aplicação do ambiente de trabalho, uma do ambiente Classic, uma thread do núcleo, um zombie (terminado, mas o pai não pediu o seu estado de saída) ou qualquer outro processo.</translation>
    </message>
    <message id="meta_psn">
        <source></source>
        <translation>Número de série</translation>
    </message>
    <message id="meta_psn_tip">
        <source></source>
        <translation>O número de série da aplicação no ambiente de trabalho, como duas palavras hexadecimais. Ambas são zero num processo que não é uma aplicação.</translation>
    </message>
    <message id="carbonpsn_name">
        <source></source>
        <translation>Nome da aplicação</translation>
    </message>
    <message id="carbonpsn_name_tip">
        <source></source>
        <translation>O nome da aplicação tal como o ambiente de trabalho o conhece. Vazio num processo que não é uma aplicação.</translation>
    </message>
    <message id="carbonpsn_type">
        <source></source>
        <translation>Tipo de aplicação</translation>
    </message>
    <message id="carbonpsn_type_tip">
        <source></source>
        <translation>O tipo da aplicação em quatro carateres, APPL para uma normal. Dado do ambiente de trabalho.</translation>
    </message>
    <message id="carbonpsn_signature">
        <source></source>
        <translation>Assinatura da aplicação</translation>
    </message>
    <message id="carbonpsn_signature_tip">
        <source></source>
        <translation>Quatro carateres que distinguem as aplicações: o início do nome da entrada de menu ou da classe da janela. Dado do ambiente de trabalho.</translation>
    </message>
    <message id="carbonpsn_mode">
        <source></source>
        <translation>Modo da aplicação</translation>
    </message>
    <message id="carbonpsn_mode_tip">
        <source></source>
        <translation>Os indicadores de modo da aplicação tal como o ambiente de trabalho os dá, como máscara hexadecimal.</translation>
    </message>
    <message id="classicpsn_name">
        <source></source>
        <translation>Nome Classic</translation>
    </message>
    <message id="classicpsn_name_tip">
        <source></source>
        <translation>O nome da aplicação dentro do ambiente Classic. Só as aplicações desse ambiente o têm.</translation>
    </message>
    <message id="classicpsn_type">
        <source></source>
        <translation>Tipo Classic</translation>
    </message>
    <message id="classicpsn_type_tip">
        <source></source>
        <translation>O tipo de ficheiro, em quatro carateres, da aplicação dentro do ambiente Classic.</translation>
    </message>
    <message id="classicpsn_signature">
        <source></source>
        <translation>Assinatura Classic</translation>
    </message>
    <message id="classicpsn_signature_tip">
        <source></source>
        <translation>O código de criador, em quatro carateres, da aplicação dentro do ambiente Classic.</translation>
    </message>
    <message id="classicpsn_mode">
        <source></source>
        <translation>Modo Classic</translation>
    </message>
    <message id="classicpsn_mode_tip">
        <source></source>
        <translation>Os indicadores de modo da aplicação dentro do ambiente Classic, como máscara hexadecimal.</translation>
    </message>
    <message id="classicpsn_location">
        <source></source>
        <translation>Localização Classic</translation>
    </message>
    <message id="classicpsn_location_tip">
        <source></source>
        <translation>O endereço em que começa a partição de memória da aplicação dentro do ambiente Classic, em hexadecimal.</translation>
    </message>
    <message id="classicpsn_size">
        <source></source>
        <translation>Tamanho Classic</translation>
    </message>
    <message id="classicpsn_size_tip">
        <source></source>
        <translation>O tamanho da partição de memória da aplicação dentro do ambiente Classic, em bytes.</translation>
    </message>
    <message id="classicpsn_active_time">
        <source></source>
        <translation>Tempo ativo Classic</translation>
    </message>
    <message id="classicpsn_active_time_tip">
        <source></source>
        <translation>Tempo em que a aplicação esteve ativa dentro do ambiente Classic, em tiques de um sexagésimo de segundo.</translation>
    </message>
    <message id="classicpsn_free_mem">
        <source></source>
        <translation>Memória livre Classic</translation>
    </message>
    <message id="classicpsn_free_mem_tip">
        <source></source>
        <translation>O que resta da partição de memória da aplicação dentro do ambiente Classic, em bytes.</translation>
    </message>
    <message id="pid_p_comm">
        <source></source>
        <translation>Nome do comando</translation>
    </message>
    <message id="pid_p_comm_tip">
        <source></source>
        <translation>O nome do comando, até 16 carateres. O núcleo guarda 15; um nome mais longo é completado a partir da linha de comandos ou do executável.</translation>
    </message>
    <message id="pid_p_priority">
        <source></source>
        <translation>Prioridade</translation>
    </message>
    <message id="pid_p_priority_tip">
        <source></source>
        <translation>A prioridade de escalonamento do núcleo; os números mais baixos correm primeiro. Os processos normais têm 20 mais o seu valor nice; os de tempo real estão abaixo de zero. De /proc/PID/stat.</translation>
    </message>
    <message id="pid_parent_pid">
        <source></source>
        <translation>ID do pai</translation>
    </message>
    <message id="pid_parent_pid_tip">
        <source></source>
        <translation>O número do processo que iniciou este, ou daquele que ficou com ele.</translation>
    </message>
    <message id="pid_p_nice">
        <source></source>
        <translation>Valor nice</translation>
    </message>
    <message id="pid_p_nice_tip">
        <source></source>
        <translation>Quanto o processo cede a vez aos outros, de -20 (o mínimo) a 19 (o máximo). De /proc/PID/stat.</translation>
    </message>
    <message id="pid_p_starttime">
        <source></source>
        <translation>Início</translation>
    </message>
    <message id="pid_p_starttime_tip">
        <source></source>
        <translation>A data e a hora em que o processo foi iniciado. De /proc/PID/stat.</translation>
    </message>
    <message id="pid_user_time">
        <source></source>
        <translation>Tempo de utilizador</translation>
    </message>
    <message id="pid_user_time_tip">
        <source></source>
        <translation>Tempo de CPU gasto no código do próprio programa, com todas as threads em conjunto, em segundos. De /proc/PID/stat.</translation>
    </message>
    <message id="pid_system_time">
        <source></source>
        <translation>Tempo de sistema</translation>
    </message>
    <message id="pid_system_time_tip">
        <source></source>
        <translation>Tempo de CPU que o núcleo gastou por conta do processo, com todas as threads em conjunto, em segundos. De /proc/PID/stat.</translation>
    </message>
    <message id="pid_vsz">
        <source></source>
        <translation>Tamanho virtual</translation>
    </message>
    <message id="pid_vsz_tip">
        <source></source>
        <translation>O tamanho de toda a memória que o processo tem mapeada, esteja ou não em uso, em bytes. De /proc/PID/stat.</translation>
    </message>
    <message id="pid_rsz">
        <source></source>
        <translation>Tamanho residente</translation>
    </message>
    <message id="pid_rsz_tip">
        <source></source>
        <translation>Quanta memória do processo está na RAM, incluindo as páginas partilhadas, em bytes. De /proc/PID/stat.</translation>
    </message>
    <message id="pid_pss">
        <source></source>
        <translation>Memória, a sua parte</translation>
    </message>
    <message id="pid_pss_tip">
        <source></source>
        <translation>Tamanho proporcional (PSS): a memória que o processo tem só para si e, de cada página que partilha com outros, a sua parte. Somado por todos os processos, dá o que ocupam em conjunto. De /proc/PID/smaps_rollup, que o núcleo calcula percorrendo a memória: é lido em segundo plano, primeiro as linhas à vista. Não inclui a memória enviada para a swap. Não é permitido para processos de outros utilizadores.</translation>
    </message>
    <message id="pid_uss">
        <source></source>
        <translation>Memória própria</translation>
    </message>
    <message id="pid_uss_tip">
        <source></source>
        <translation>Tamanho único (USS): a memória que ninguém partilha com o processo e, portanto, o que o seu fim devolveria. Private_Clean e Private_Dirty de /proc/PID/smaps_rollup, lidos em segundo plano, primeiro as linhas à vista. Não inclui a memória enviada para a swap nem as páginas enormes de hugetlbfs. Não é permitido para processos de outros utilizadores.</translation>
    </message>
    <message id="pid_descriptors">
        <source></source>
        <translation>Descritores abertos</translation>
    </message>
    <message id="pid_descriptors_tip">
        <source></source>
        <translation>Quantos descritores de ficheiros, sockets, canais e semelhantes o processo tem abertos: as entradas de /proc/PID/fd. Lido em segundo plano. Não inclui ficheiros que só estão mapeados na memória. O núcleo di-lo para processos de outros utilizadores desde a versão 6.2.</translation>
    </message>
    <message id="pid_net_received">
        <source></source>
        <translation>Recebido</translation>
    </message>
    <message id="pid_net_received_tip">
        <source></source>
        <translation>Bytes que chegaram pela rede, incluindo a interface local (loopback). No total significa: desde que o Lurkwell observa e, de antes, o que transferiram as ligações ainda abertas. São contadas as ligações TCP deste espaço de nomes de rede, segundo o diagnóstico de sockets do núcleo, pelos descritores do processo; uma que vários processos tenham conta para cada um. Não são contados UDP nem QUIC, ligações que começam e acabam entre duas leituras nem outros espaços de nomes de rede: um processo que ainda não teve nenhuma ligação TCP não tem valor. Não é permitido para processos de outros utilizadores; veja o valor da unidade.</translation>
    </message>
    <message id="pid_net_sent">
        <source></source>
        <translation>Enviado</translation>
    </message>
    <message id="pid_net_sent_tip">
        <source></source>
        <translation>Bytes que foram enviados pela rede, incluindo a interface local (loopback), e cuja receção a outra ponta confirmou. No total significa: desde que o Lurkwell observa e, de antes, o que transferiram as ligações ainda abertas. São contadas as ligações TCP deste espaço de nomes de rede, segundo o diagnóstico de sockets do núcleo, pelos descritores do processo; uma que vários processos tenham conta para cada um. Não são contados UDP nem QUIC, ligações que começam e acabam entre duas leituras nem outros espaços de nomes de rede: um processo que ainda não teve nenhuma ligação TCP não tem valor. Não é permitido para processos de outros utilizadores; veja o valor da unidade.</translation>
    </message>
    <message id="pid_net_receive_rate">
        <source></source>
        <translation>Receção</translation>
    </message>
    <message id="pid_net_receive_rate_tip">
        <source></source>
        <translation>Bytes por segundo que chegam pela rede, entre as duas últimas leituras. São contadas as ligações TCP deste espaço de nomes de rede, segundo o diagnóstico de sockets do núcleo, pelos descritores do processo; uma que vários processos tenham conta para cada um. Não são contados UDP nem QUIC, ligações que começam e acabam entre duas leituras nem outros espaços de nomes de rede: um processo que ainda não teve nenhuma ligação TCP não tem valor. Não é permitido para processos de outros utilizadores; veja o valor da unidade.</translation>
    </message>
    <message id="pid_net_send_rate">
        <source></source>
        <translation>Envio</translation>
    </message>
    <message id="pid_net_send_rate_tip">
        <source></source>
        <translation>Bytes por segundo que são enviados pela rede e confirmados, entre as duas últimas leituras. São contadas as ligações TCP deste espaço de nomes de rede, segundo o diagnóstico de sockets do núcleo, pelos descritores do processo; uma que vários processos tenham conta para cada um. Não são contados UDP nem QUIC, ligações que começam e acabam entre duas leituras nem outros espaços de nomes de rede: um processo que ainda não teve nenhuma ligação TCP não tem valor. Não é permitido para processos de outros utilizadores; veja o valor da unidade.</translation>
    </message>
    <message id="pid_connections">
        <source></source>
        <translation>Ligações</translation>
    </message>
    <message id="pid_connections_tip">
        <source></source>
        <translation>Quantas ligações TCP o processo tem abertas, sem as que só escutam. Do diagnóstico de sockets do núcleo, pelos descritores do processo; não são contados outros protocolos nem outros espaços de nomes de rede. Não é permitido para processos de outros utilizadores.</translation>
    </message>
    <message id="pid_listening_ports">
        <source></source>
        <translation>Escuta em</translation>
    </message>
    <message id="pid_listening_ports_tip">
        <source></source>
        <translation>As portas TCP em que o processo espera ligações. Do diagnóstico de sockets do núcleo, pelos descritores do processo; não inclui UDP nem outros espaços de nomes de rede. Não é permitido para processos de outros utilizadores.</translation>
    </message>
    <message id="pid_ports">
        <source></source>
        <translation>Portas</translation>
    </message>
    <message id="pid_ports_tip">
        <source></source>
        <translation>As portas dos sockets TCP e UDP do processo: as suas e as das outras pontas.
Dos seus descritores abertos e das tabelas de sockets em /proc/PID/net; não é permitido para processos de outros utilizadores.</translation>
    </message>
    <message id="pid_open_files">
        <source></source>
        <translation>Ficheiros abertos</translation>
    </message>
    <message id="pid_open_files_tip">
        <source></source>
        <translation>Os nomes dos ficheiros que o processo tem abertos e a sua pasta de trabalho.
De /proc/PID/fd e /proc/PID/cwd; não é permitido para processos de outros utilizadores.</translation>
    </message>
    <message id="pid_unit_net_received">
        <source></source>
        <translation>Recebido (unidade)</translation>
    </message>
    <message id="pid_unit_net_received_tip">
        <source></source>
        <translation>Bytes que chegaram por ligações TCP: um valor para todos os processos da unidade (grupo de controlo) em conjunto, que o diagnóstico de sockets do núcleo dá a todos. Não são contados UDP nem QUIC, ligações que começam e acabam entre duas leituras nem outros espaços de nomes de rede. No total significa: desde que o Lurkwell observa e, de antes, o que transferiram as ligações ainda abertas.</translation>
    </message>
    <message id="pid_unit_net_sent">
        <source></source>
        <translation>Enviado (unidade)</translation>
    </message>
    <message id="pid_unit_net_sent_tip">
        <source></source>
        <translation>Bytes que foram enviados por ligações TCP e confirmados: um valor para todos os processos da unidade (grupo de controlo) em conjunto, que o diagnóstico de sockets do núcleo dá a todos. Não são contados UDP nem QUIC, ligações que começam e acabam entre duas leituras nem outros espaços de nomes de rede. No total significa: desde que o Lurkwell observa e, de antes, o que transferiram as ligações ainda abertas.</translation>
    </message>
    <message id="pid_unit_net_receive_rate">
        <source></source>
        <translation>Receção (unidade)</translation>
    </message>
    <message id="pid_unit_net_receive_rate_tip">
        <source></source>
        <translation>Bytes por segundo que chegam por ligações TCP: um valor para todos os processos da unidade (grupo de controlo) em conjunto, que o diagnóstico de sockets do núcleo dá a todos. Não são contados UDP nem QUIC, ligações que começam e acabam entre duas leituras nem outros espaços de nomes de rede.</translation>
    </message>
    <message id="pid_unit_net_send_rate">
        <source></source>
        <translation>Envio (unidade)</translation>
    </message>
    <message id="pid_unit_net_send_rate_tip">
        <source></source>
        <translation>Bytes por segundo que são enviados por ligações TCP e confirmados: um valor para todos os processos da unidade (grupo de controlo) em conjunto, que o diagnóstico de sockets do núcleo dá a todos. Não são contados UDP nem QUIC, ligações que começam e acabam entre duas leituras nem outros espaços de nomes de rede.</translation>
    </message>
    <message id="pid_gpu_share">
        <source></source>
        <translation>GPU</translation>
    </message>
    <message id="pid_gpu_share_tip">
        <source></source>
        <translation>Durante que parte do tempo entre as duas últimas leituras o motor mais ocupado de um dispositivo gráfico trabalhou para o processo. Segundo os dados de utilização que o núcleo guarda com os descritores de dispositivos gráficos do processo (/proc/PID/fdinfo); cada cliente de um dispositivo conta uma vez. Não são contados os controladores que não guardam nenhuns, como o próprio da NVIDIA. Nenhum dispositivo é aberto nem acordado. Não é permitido para processos de outros utilizadores.</translation>
    </message>
    <message id="pid_gpu_memory">
        <source></source>
        <translation>Memória do GPU</translation>
    </message>
    <message id="pid_gpu_memory_tip">
        <source></source>
        <translation>Memória de dispositivos gráficos que o processo ocupa: o que lá reside se o controlador o disser; senão, o que foi reservado. Segundo os dados de utilização que o núcleo guarda com os descritores de dispositivos gráficos do processo (/proc/PID/fdinfo); cada cliente de um dispositivo conta uma vez. Não são contados os controladores que não guardam nenhuns, como o próprio da NVIDIA. Nenhum dispositivo é aberto nem acordado. Não é permitido para processos de outros utilizadores.</translation>
    </message>
    <message id="pid_gpu_engine">
        <source></source>
        <translation>Motor do GPU</translation>
    </message>
    <message id="pid_gpu_engine_tip">
        <source></source>
        <translation>O motor que esteve mais ocupado para o processo entre as duas últimas leituras, nas palavras do controlador (render, video, copy e semelhantes). Segundo os dados de utilização que o núcleo guarda com os descritores de dispositivos gráficos do processo (/proc/PID/fdinfo); cada cliente de um dispositivo conta uma vez. Não são contados os controladores que não guardam nenhuns, como o próprio da NVIDIA. Nenhum dispositivo é aberto nem acordado. Não é permitido para processos de outros utilizadores.</translation>
    </message>
    <message id="value_age_tip" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Lido há %n segundo.</numerusform>
            <numerusform>Lido há %n segundos.</numerusform>
        </translation>
    </message>
    <message id="pid_suspend_count">
        <source></source>
        <translation>Paragens</translation>
    </message>
    <message id="pid_suspend_count_tip">
        <source></source>
        <translation>1 enquanto o processo está parado, por um sinal ou por um depurador; senão, 0.</translation>
    </message>
    <message id="pid_terminated_user_time">
        <source></source>
        <translation>Tempo de utilizador de threads terminadas</translation>
    </message>
    <message id="pid_terminated_user_time_tip">
        <source></source>
        <translation>Tempo de utilizador das threads que terminaram. Sempre 0 em Linux, onde o tempo de utilizador o inclui.</translation>
    </message>
    <message id="pid_terminated_system_time">
        <source></source>
        <translation>Tempo de sistema de threads terminadas</translation>
    </message>
    <message id="pid_terminated_system_time_tip">
        <source></source>
        <translation>Tempo de sistema das threads que terminaram. Sempre 0 em Linux, onde o tempo de sistema o inclui.</translation>
    </message>
    <message id="pid_policy">
        <source></source>
        <translation>Política de escalonamento</translation>
    </message>
    <message id="pid_policy_tip">
        <source></source>
        <translation>A política de escalonamento do núcleo como número: 0 normal, 1 FIFO, 2 round robin, 3 em lote, 5 inativa, 6 com prazos. De /proc/PID/stat.</translation>
    </message>
    <message id="pid_faults">
        <source></source>
        <translation>Falhas de página</translation>
    </message>
    <message id="pid_faults_tip">
        <source></source>
        <translation>Falhas de página desde que o processo foi iniciado, com e sem leitura do disco. De /proc/PID/stat.</translation>
    </message>
    <message id="pid_pageins">
        <source></source>
        <translation>Páginas lidas</translation>
    </message>
    <message id="pid_pageins_tip">
        <source></source>
        <translation>Falhas de página que tiveram de esperar por uma leitura do disco (falhas maiores). De /proc/PID/stat.</translation>
    </message>
    <message id="pid_cow_faults">
        <source></source>
        <translation>Falhas de cópia na escrita</translation>
    </message>
    <message id="pid_cow_faults_tip">
        <source></source>
        <translation>Falhas de página que copiaram uma página partilhada. O Linux não as conta: sempre 0.</translation>
    </message>
    <message id="pid_messages_sent">
        <source></source>
        <translation>Mensagens enviadas</translation>
    </message>
    <message id="pid_messages_sent_tip">
        <source></source>
        <translation>Mensagens enviadas entre o núcleo e o processo. O Linux não tem tais mensagens: sempre 0.</translation>
    </message>
    <message id="pid_messages_received">
        <source></source>
        <translation>Mensagens recebidas</translation>
    </message>
    <message id="pid_messages_received_tip">
        <source></source>
        <translation>Mensagens recebidas entre o núcleo e o processo. O Linux não tem tais mensagens: sempre 0.</translation>
    </message>
    <message id="pid_syscalls_mach">
        <source></source>
        <translation>Chamadas ao sistema Mach</translation>
    </message>
    <message id="pid_syscalls_mach_tip">
        <source></source>
        <translation>Chamadas da interface do núcleo Mach. O Linux não tem nenhumas: sempre 0.</translation>
    </message>
    <message id="pid_syscalls_unix">
        <source></source>
        <translation>Chamadas ao sistema Unix</translation>
    </message>
    <message id="pid_syscalls_unix_tip">
        <source></source>
        <translation>Chamadas ao sistema que leem ou escrevem, somadas; as outras não são contadas. De /proc/PID/io, que só o seu utilizador e o root podem ler.</translation>
    </message>
    <message id="pid_csw">
        <source></source>
        <translation>Mudanças de contexto</translation>
    </message>
    <message id="pid_csw_tip">
        <source></source>
        <translation>Quantas vezes um CPU foi retirado à thread principal do processo, voluntariamente ou não. De /proc/PID/status.</translation>
    </message>
    <message id="pid_processor">
        <source></source>
        <translation>Último CPU</translation>
    </message>
    <message id="pid_processor_tip">
        <source></source>
        <translation>O número do processador em que a thread principal do processo correu pela última vez, a partir de 0. De /proc/PID/stat.</translation>
    </message>
    <message id="pid_cpu_wait">
        <source></source>
        <translation>Espera pelo CPU</translation>
    </message>
    <message id="pid_cpu_wait_tip">
        <source></source>
        <translation>Durante quanto tempo as threads do processo estiveram prontas a correr e tiveram de esperar por um processador, em segundos, todas em conjunto. Faltam as threads que terminaram. De /proc/PID/task/TID/schedstat.</translation>
    </message>
    <message id="pid_disk_read">
        <source></source>
        <translation>Lido do disco</translation>
    </message>
    <message id="pid_disk_read_tip">
        <source></source>
        <translation>Bytes que os dispositivos de armazenamento tiveram de entregar para o processo desde que foi iniciado. De /proc/PID/io, que só o seu utilizador e o root podem ler.</translation>
    </message>
    <message id="pid_disk_written">
        <source></source>
        <translation>Escrito no disco</translation>
    </message>
    <message id="pid_disk_written_tip">
        <source></source>
        <translation>Bytes que o processo deu a escrever aos dispositivos de armazenamento desde que foi iniciado; conta também o que escreveu em ficheiros que foram eliminados pouco depois. De /proc/PID/io, que só o seu utilizador e o root podem ler.</translation>
    </message>
    <message id="pid_bytes_read">
        <source></source>
        <translation>Bytes lidos</translation>
    </message>
    <message id="pid_bytes_read_tip">
        <source></source>
        <translation>Bytes que o processo obteve das suas chamadas de leitura desde que foi iniciado, viessem de um disco, de uma cache ou de um terminal. De /proc/PID/io, que só o seu utilizador e o root podem ler.</translation>
    </message>
    <message id="pid_bytes_written">
        <source></source>
        <translation>Bytes escritos</translation>
    </message>
    <message id="pid_bytes_written_tip">
        <source></source>
        <translation>Bytes que o processo passou às suas chamadas de escrita desde que foi iniciado, fossem para um disco, uma cache ou um terminal. De /proc/PID/io, que só o seu utilizador e o root podem ler.</translation>
    </message>
    <message id="pid_unit_disk_read">
        <source></source>
        <translation>Lido do disco (unidade)</translation>
    </message>
    <message id="pid_unit_disk_read_tip">
        <source></source>
        <translation>Bytes que os dispositivos de armazenamento entregaram à unidade (grupo de controlo) do processo: a todos os seus processos em conjunto, incluindo os terminados. Do seu io.stat, que todos podem ler; as unidades cuja entrada e saída não é contabilizada não o têm.</translation>
    </message>
    <message id="pid_unit_disk_written">
        <source></source>
        <translation>Escrito no disco (unidade)</translation>
    </message>
    <message id="pid_unit_disk_written_tip">
        <source></source>
        <translation>Bytes que a unidade (grupo de controlo) do processo deu a escrever aos dispositivos de armazenamento: todos os seus processos em conjunto, incluindo os terminados. Do seu io.stat, que todos podem ler; as unidades cuja entrada e saída não é contabilizada não o têm.</translation>
    </message>
    <message id="pid_owner">
        <source></source>
        <translation>Proprietário</translation>
    </message>
    <message id="pid_owner_tip">
        <source></source>
        <translation>O utilizador a quem o processo pertence e, a seguir a “as”, aquele como quem age se for outro. De /proc/PID/status; um utilizador sem nome é um número.</translation>
    </message>
    <message id="pid_state">
        <source></source>
        <translation>Estado por palavras</translation>
    </message>
    <message id="pid_state_tip">
        <source></source>
        <translation>O que faz a thread principal do processo: running (corre ou está pronta), sleeping (dorme), uninterruptible (não interrompível; quase sempre espera por um disco), stopped (parada), traced (seguida por um depurador), zombie (terminada, ainda não recolhida), idle (própria do núcleo). De /proc/PID/stat. Outras threads podem fazer outra coisa.</translation>
    </message>
    <message id="pid_threads">
        <source></source>
        <translation>Número de threads</translation>
    </message>
    <message id="pid_threads_tip">
        <source></source>
        <translation>Quantas threads o processo tem. De /proc/PID/stat. As threads que terminaram não são contadas.</translation>
    </message>
    <message id="pid_terminal">
        <source></source>
        <translation>Terminal de controlo</translation>
    </message>
    <message id="pid_terminal_tip">
        <source></source>
        <translation>O terminal a que o processo pertence, pelo seu nome abaixo de /dev. De /proc/PID/stat. Vazio num processo sem terminal; um programa numa janela de terminal tem o dessa janela.</translation>
    </message>
    <message id="pid_command_line">
        <source></source>
        <translation>Linha de comandos completa</translation>
    </message>
    <message id="pid_command_line_tip">
        <source></source>
        <translation>O programa e os seus argumentos; os carateres que não podem ser mostrados são escritos como sequências de escape. De /proc/PID/cmdline, no máximo uns 4000 carateres, tal como o processo os tem agora: pode reescrevê-los. Ao imprimir e escrever é só o programa, a menos que a definição KEEP_COMMAND_LINES esteja ativa.</translation>
    </message>
    <message id="pid_executable">
        <source></source>
        <translation>Ficheiro executável</translation>
    </message>
    <message id="pid_executable_tip">
        <source></source>
        <translation>O ficheiro que o processo executa, com “(deleted)” quando foi substituído ou removido. De /proc/PID/exe, que só o seu utilizador e o root podem ler. As threads do núcleo não o têm.</translation>
    </message>
    <message id="pid_running_time">
        <source></source>
        <translation>A correr há</translation>
    </message>
    <message id="pid_running_time_tip">
        <source></source>
        <translation>Há quanto tempo o processo foi iniciado, em dias, horas, minutos e segundos; inclui o tempo em que a máquina esteve suspensa. De /proc/PID/stat e do relógio.</translation>
    </message>
    <message id="pid_cpu_share">
        <source></source>
        <translation>CPU % de um proc.</translation>
    </message>
    <message id="pid_cpu_share_of_machine">
        <source></source>
        <translation>CPU % de todos</translation>
    </message>
    <message id="pid_cpu_share_tip">
        <source></source>
        <translation>Quanto o processo usou de um processador desde a última atualização, com todas as suas threads em conjunto: 100 é um processador o tempo todo; quatro threads ocupadas dão 400. Dos tempos em /proc/PID/stat, que contam em centésimos de segundo. Não inclui o que os filhos terminados usaram.</translation>
    </message>
    <message id="pid_user_share">
        <source></source>
        <translation>Utilizador % de um proc.</translation>
    </message>
    <message id="pid_user_share_of_machine">
        <source></source>
        <translation>Utilizador % de todos</translation>
    </message>
    <message id="pid_user_share_tip">
        <source></source>
        <translation>Quanto o processo usou de um processador desde a última atualização para o seu próprio código. Dos tempos em /proc/PID/stat.</translation>
    </message>
    <message id="pid_system_share">
        <source></source>
        <translation>Sistema % de um proc.</translation>
    </message>
    <message id="pid_system_share_of_machine">
        <source></source>
        <translation>Sistema % de todos</translation>
    </message>
    <message id="pid_system_share_tip">
        <source></source>
        <translation>Quanto o núcleo usou de um processador para o processo desde a última atualização. Dos tempos em /proc/PID/stat.</translation>
    </message>
    <message id="pid_affinity">
        <source></source>
        <translation>CPUs permitidos</translation>
    </message>
    <message id="pid_affinity_tip">
        <source></source>
        <translation>Os processadores em que a thread principal do processo pode correr, pelos seus números a partir de 0. Segundo o sched_getaffinity do núcleo. Inclui os limites do grupo de controlo do processo; outras threads podem ter outros.</translation>
    </message>
    <message id="pid_scheduler">
        <source></source>
        <translation>Escalonador</translation>
    </message>
    <message id="pid_scheduler_tip">
        <source></source>
        <translation>Como o núcleo reparte os processadores com o processo: normal, batch (em lote), idle (só quando mais ninguém os quer), real time (tempo real), deadline (com prazos). De /proc/PID/stat, para a sua thread principal.</translation>
    </message>
    <message id="pid_io_priority">
        <source></source>
        <translation>Prioridade de E/S</translation>
    </message>
    <message id="pid_io_priority_tip">
        <source></source>
        <translation>Que lugar tem o processo quando espera por um disco: a sua classe e o seu nível, de 0, o mais alto, a 7. Segundo o ioprio_get do núcleo. Os discos sem escalonador, como a maioria dos NVMe, não a têm em conta.</translation>
    </message>
    <message id="pid_shared_memory">
        <source></source>
        <translation>Memória partilhada</translation>
    </message>
    <message id="pid_shared_memory_tip">
        <source></source>
        <translation>Memória do processo que outros também podem ter mapeada: partes de ficheiros e bibliotecas, e memória destinada a ser partilhada. De RssFile e RssShmem em /proc/PID/status. Faz parte da memória real, quer alguém a partilhe quer não.</translation>
    </message>
    <message id="pid_swap">
        <source></source>
        <translation>Na swap</translation>
    </message>
    <message id="pid_swap_tip">
        <source></source>
        <translation>Memória do processo que foi movida para o espaço de swap. De VmSwap em /proc/PID/status. Não inclui a memória partilhada enviada para a swap.</translation>
    </message>
    <message id="pid_highest_rsz">
        <source></source>
        <translation>Máx. memória real</translation>
    </message>
    <message id="pid_highest_rsz_tip">
        <source></source>
        <translation>A maior quantidade de memória que o processo teve de cada vez. De VmHWM em /proc/PID/status.</translation>
    </message>
    <message id="pid_memory_share">
        <source></source>
        <translation>Memória %</translation>
    </message>
    <message id="pid_memory_share_tip">
        <source></source>
        <translation>Memória real do processo como parte de toda a que a máquina tem. De /proc/PID/stat. O que é partilhado conta por inteiro para cada um que o tem, pelo que a soma pode passar de 100.</translation>
    </message>
    <message id="pid_oom_score">
        <source></source>
        <translation>Pontuação OOM</translation>
    </message>
    <message id="pid_oom_score_tip">
        <source></source>
        <translation>Quem é terminado primeiro quando falta memória: o processo com a pontuação mais alta. De /proc/PID/oom_score.</translation>
    </message>
    <message id="pid_disk_read_rate">
        <source></source>
        <translation>Leit. disco/s</translation>
    </message>
    <message id="pid_disk_read_rate_tip">
        <source></source>
        <translation>O que os dispositivos de armazenamento tiveram de entregar para o processo, em bytes por segundo desde a última atualização. De /proc/PID/io, que só o seu utilizador e o root podem ler; para os processos de outros, veja o valor da unidade.</translation>
    </message>
    <message id="pid_disk_write_rate">
        <source></source>
        <translation>Escr. disco/s</translation>
    </message>
    <message id="pid_disk_write_rate_tip">
        <source></source>
        <translation>O que o processo deu a escrever aos dispositivos de armazenamento, em bytes por segundo desde a última atualização. De /proc/PID/io, que só o seu utilizador e o root podem ler; para os processos de outros, veja o valor da unidade.</translation>
    </message>
    <message id="pid_read_rate">
        <source></source>
        <translation>Leitura/s</translation>
    </message>
    <message id="pid_read_rate_tip">
        <source></source>
        <translation>O que o processo obteve das suas chamadas de leitura, em bytes por segundo desde a última atualização, de um disco, uma cache, um canal ou um terminal. De /proc/PID/io, que só o seu utilizador e o root podem ler.</translation>
    </message>
    <message id="pid_write_rate">
        <source></source>
        <translation>Escrita/s</translation>
    </message>
    <message id="pid_write_rate_tip">
        <source></source>
        <translation>O que o processo passou às suas chamadas de escrita, em bytes por segundo desde a última atualização, para um disco, uma cache, um canal ou um terminal. De /proc/PID/io, que só o seu utilizador e o root podem ler.</translation>
    </message>
    <message id="pid_unit_read_rate">
        <source></source>
        <translation>Leit. disco/s (unidade)</translation>
    </message>
    <message id="pid_unit_read_rate_tip">
        <source></source>
        <translation>O que os dispositivos de armazenamento entregaram à unidade (grupo de controlo) do processo, com todos os seus processos em conjunto, em bytes por segundo desde a última atualização. Do seu io.stat, que todos podem ler; as unidades cuja entrada e saída não é contabilizada não o têm.</translation>
    </message>
    <message id="pid_unit_write_rate">
        <source></source>
        <translation>Escr. disco/s (unidade)</translation>
    </message>
    <message id="pid_unit_write_rate_tip">
        <source></source>
        <translation>O que a unidade (grupo de controlo) do processo deu a escrever aos dispositivos de armazenamento, com todos os seus processos em conjunto, em bytes por segundo desde a última atualização. Do seu io.stat, que todos podem ler; as unidades cuja entrada e saída não é contabilizada não o têm.</translation>
    </message>
    <message id="pid_cgroup">
        <source></source>
        <translation>Caminho do grupo de controlo</translation>
    </message>
    <message id="pid_cgroup_tip">
        <source></source>
        <translation>O grupo de controlo do processo, a partir da raiz que este programa vê. De /proc/PID/cgroup. Quando há várias hierarquias, a unificada; senão, a do gestor de serviços.</translation>
    </message>
    <message id="pid_unit">
        <source></source>
        <translation>Serviço ou âmbito</translation>
    </message>
    <message id="pid_unit_tip">
        <source></source>
        <translation>A unidade do gestor de serviços a que o processo pertence: um serviço, uma sessão, o âmbito (scope) de uma aplicação. Do caminho do seu grupo de controlo. Vazio sem um gestor desses.</translation>
    </message>
    <message id="pid_slice">
        <source></source>
        <translation>Slice de unidades</translation>
    </message>
    <message id="pid_slice_tip">
        <source></source>
        <translation>O grupo de unidades (slice) em que está a unidade do processo. Do caminho do seu grupo de controlo.</translation>
    </message>
    <message id="pid_app_scope">
        <source></source>
        <translation>Âmbito da aplicação</translation>
    </message>
    <message id="pid_app_scope_tip">
        <source></source>
        <translation>A aplicação para a qual o gestor de sessões mantém o processo, pela sua entrada de menu. Do caminho do seu grupo de controlo. Vazio para serviços e para ambientes de trabalho que não separam as suas aplicações.</translation>
    </message>
    <message id="pid_container">
        <source></source>
        <translation>Contentor</translation>
    </message>
    <message id="pid_container_tip">
        <source></source>
        <translation>Tipo e nome ou número do contentor em que o processo está: Docker, Podman, containerd, CRI-O, Kubernetes, LXC, systemd-nspawn, Flatpak, Snap. Do caminho do seu grupo de controlo; um motor que chame outra coisa aos seus grupos não é conhecido. “own pid namespace” (espaço de nomes de PID próprio) para o que está isolado sem motor, como as partes de um navegador web.</translation>
    </message>
    <message id="pid_inner_pid">
        <source></source>
        <translation>PID interior</translation>
    </message>
    <message id="pid_inner_pid_tip">
        <source></source>
        <translation>O número do processo no espaço de nomes de PID mais interior em que está, quando não é o deste programa. De NSpid em /proc/PID/status.</translation>
    </message>
    <message id="pid_namespace">
        <source></source>
        <translation>Espaço de nomes de PID</translation>
    </message>
    <message id="pid_namespace_tip">
        <source></source>
        <translation>O número do espaço de nomes de PID em que o processo está: os que têm o mesmo número veem-se uns aos outros. De /proc/PID/ns/pid, que só o seu utilizador e o root podem ler.</translation>
    </message>
    <message id="pid_capabilities">
        <source></source>
        <translation>Capacidades efetivas</translation>
    </message>
    <message id="pid_capabilities_tip">
        <source></source>
        <translation>Quais dos direitos do root o processo tem neste momento. De CapEff em /proc/PID/status, para a sua thread principal. Num espaço de nomes de utilizadores só contam dentro dele.</translation>
    </message>
    <message id="pid_seccomp">
        <source></source>
        <translation>Filtro de chamadas ao sistema</translation>
    </message>
    <message id="pid_seccomp_tip">
        <source></source>
        <translation>Se as chamadas ao sistema do próprio processo são filtradas: off (não), strict (quase nenhumas restam) ou filter (com filtro). De Seccomp em /proc/PID/status.</translation>
    </message>
    <message id="pid_no_new_privileges">
        <source></source>
        <translation>Sem novos privilégios</translation>
    </message>
    <message id="pid_no_new_privileges_tip">
        <source></source>
        <translation>Se os programas que o processo inicia não podem obter mais direitos do que ele, digam os seus ficheiros o que disserem. De NoNewPrivs em /proc/PID/status.</translation>
    </message>
    <message id="pid_label">
        <source></source>
        <translation>Etiqueta do módulo de segurança</translation>
    </message>
    <message id="pid_label_tip">
        <source></source>
        <translation>O que o AppArmor, o SELinux ou o Smack chama ao processo. De /proc/PID/attr/current; não existe sem um módulo desses.</translation>
    </message>
    <message id="pid_elevated">
        <source></source>
        <translation>Elevado</translation>
    </message>
    <message id="pid_elevated_tip">
        <source></source>
        <translation>Se o processo tem direitos que os outros do seu utilizador não têm: root quando age como root, capabilities quando tem alguns dos direitos do root. De Uid e CapEff em /proc/PID/status.</translation>
    </message>
    <message id="internal_Icon">
        <source></source>
        <translation>Ícone</translation>
    </message>
    <message id="internal_Icon_tip">
        <source></source>
        <translation>O ícone da aplicação. Um processo que não é uma aplicação não o tem.</translation>
    </message>
    <message id="internal_Indicator">
        <source></source>
        <translation>Indicador</translation>
    </message>
    <message id="internal_Indicator_tip">
        <source></source>
        <translation>Uma marca do que foi feito aqui ao processo: parado, ou a sua prioridade aumentada ou baixada.</translation>
    </message>
    <message id="internal_CPUPercent">
        <source></source>
        <translation>Uso do CPU</translation>
    </message>
    <message id="internal_CPUPercent_tip">
        <source></source>
        <translation>A parte de um CPU que o processo usou desde a atualização anterior, como barra.</translation>
    </message>
    <message id="internal_MemGraph">
        <source></source>
        <translation>Memória</translation>
    </message>
    <message id="internal_MemGraph_tip">
        <source></source>
        <translation>O tamanho residente e o virtual do processo, como barra.</translation>
    </message>
    <message id="%CPU">
        <source></source>
        <translation>Uso do CPU (%CPU)</translation>
    </message>
    <message id="%CPU_tip">
        <source></source>
        <translation>Tempo de CPU utilizado a dividir pelo tempo há que o processo corre, em percentagem. É uma média de toda a vida do processo.</translation>
    </message>
    <message id="%CUC">
        <source></source>
        <translation>Uso do CPU com filhos (%CUC)</translation>
    </message>
    <message id="%CUC_tip">
        <source></source>
        <translation>Tempo de CPU do processo e dos seus filhos terminados a dividir pelo tempo há que ele corre, em percentagem com três casas decimais.</translation>
    </message>
    <message id="%CUU">
        <source></source>
        <translation>Uso do CPU (%CUU)</translation>
    </message>
    <message id="%CUU_tip">
        <source></source>
        <translation>Tempo de CPU utilizado a dividir pelo tempo há que o processo corre, em percentagem com três casas decimais.</translation>
    </message>
    <message id="%MEM">
        <source></source>
        <translation>Uso da memória (%MEM)</translation>
    </message>
    <message id="%MEM_tip">
        <source></source>
        <translation>O tamanho residente como percentagem da memória física da máquina.</translation>
    </message>
    <message id="AGID">
        <source></source>
        <translation>ID do autogrupo (AGID)</translation>
    </message>
    <message id="AGID_tip">
        <source></source>
        <translation>O número do grupo automático do escalonador a que o processo pertence; em regra, cada sessão tem um.</translation>
    </message>
    <message id="AGNI">
        <source></source>
        <translation>Valor nice do autogrupo (AGNI)</translation>
    </message>
    <message id="AGNI_tip">
        <source></source>
        <translation>O valor nice do grupo automático do escalonador: quanto todo o grupo cede a vez aos outros.</translation>
    </message>
    <message id="API">
        <source></source>
        <translation>Prioridade (API)</translation>
    </message>
    <message id="API_tip">
        <source></source>
        <translation>A prioridade de escalonamento numa das escalas históricas que o ps oferece: -1 menos a prioridade do núcleo.</translation>
    </message>
    <message id="BLOCKED">
        <source></source>
        <translation>Sinais bloqueados (BLOCKED)</translation>
    </message>
    <message id="BLOCKED_tip">
        <source></source>
        <translation>Os sinais cuja entrega o processo adiou, como máscara hexadecimal.</translation>
    </message>
    <message id="BSDTIME">
        <source></source>
        <translation>Tempo de CPU (BSDTIME)</translation>
    </message>
    <message id="BSDTIME_tip">
        <source></source>
        <translation>Tempo de CPU utilizado desde que o processo foi iniciado, de utilizador e de sistema em conjunto. O mesmo que TIME.</translation>
    </message>
    <message id="C">
        <source></source>
        <translation>Uso do CPU (C)</translation>
    </message>
    <message id="C_tip">
        <source></source>
        <translation>Tempo de CPU utilizado a dividir pelo tempo há que o processo corre, em percentagem inteira.</translation>
    </message>
    <message id="CATCHED">
        <source></source>
        <translation>Sinais capturados (CATCHED)</translation>
    </message>
    <message id="CATCHED_tip">
        <source></source>
        <translation>Os sinais para os quais o processo tem um tratamento próprio, como máscara hexadecimal. O mesmo que CAUGHT.</translation>
    </message>
    <message id="CAUGHT">
        <source></source>
        <translation>Sinais capturados (CAUGHT)</translation>
    </message>
    <message id="CAUGHT_tip">
        <source></source>
        <translation>Os sinais para os quais o processo tem um tratamento próprio, como máscara hexadecimal.</translation>
    </message>
    <message id="CGNAME">
        <source></source>
        <translation>Nomes dos grupos de controlo (CGNAME)</translation>
    </message>
    <message id="CGNAME_tip">
        <source></source>
        <translation>Os nomes dos grupos de controlo a que o processo pertence, tal como o núcleo os dá.</translation>
    </message>
    <message id="CGROUP">
        <source></source>
        <translation>Grupos de controlo (CGROUP)</translation>
    </message>
    <message id="CGROUP_tip">
        <source></source>
        <translation>Os grupos de controlo a que o processo pertence.</translation>
    </message>
    <message id="CGROUPNS">
        <source></source>
        <translation>Espaço de nomes de grupos de controlo (CGROUPNS)</translation>
    </message>
    <message id="CGROUPNS_tip">
        <source></source>
        <translation>O número de inode do espaço de nomes de grupos de controlo em que o processo vive. Os processos com o mesmo número partilham-no.</translation>
    </message>
    <message id="CLS">
        <source></source>
        <translation>Classe de escalonamento (CLS)</translation>
    </message>
    <message id="CLS_tip">
        <source></source>
        <translation>A classe de escalonamento: TS normal, FF o primeiro a entrar é o primeiro a sair, RR round robin, B em lote, IDL inativa, DLN com prazos.</translation>
    </message>
    <message id="CMD">
        <source></source>
        <translation>Linha de comandos (CMD)</translation>
    </message>
    <message id="CMD_tip">
        <source></source>
        <translation>O comando com todos os seus argumentos. O mesmo que COMMAND.</translation>
    </message>
    <message id="COMM">
        <source></source>
        <translation>Nome do comando (COMM)</translation>
    </message>
    <message id="COMM_tip">
        <source></source>
        <translation>O nome do comando sem os seus argumentos.</translation>
    </message>
    <message id="COMMAND">
        <source></source>
        <translation>Linha de comandos (COMMAND)</translation>
    </message>
    <message id="COMMAND_tip">
        <source></source>
        <translation>O comando com todos os seus argumentos. Quando não se podem obter, como nas threads do núcleo, o nome do comando entre parênteses retos.</translation>
    </message>
    <message id="CONTEXT">
        <source></source>
        <translation>Contexto de segurança (CONTEXT)</translation>
    </message>
    <message id="CONTEXT_tip">
        <source></source>
        <translation>O contexto de segurança que o controlo de acesso do núcleo (o SELinux, por exemplo) deu ao processo; um hífen se não houver nenhum.</translation>
    </message>
    <message id="CP">
        <source></source>
        <translation>Uso do CPU (CP)</translation>
    </message>
    <message id="CP_tip">
        <source></source>
        <translation>Tempo de CPU utilizado a dividir pelo tempo há que o processo corre, em milésimos.</translation>
    </message>
    <message id="CPUID">
        <source></source>
        <translation>Último CPU (CPUID)</translation>
    </message>
    <message id="CPUID_tip">
        <source></source>
        <translation>O número do processador em que o processo correu pela última vez.</translation>
    </message>
    <message id="CPUTIMES">
        <source></source>
        <translation>Segundos de CPU (CPUTIMES)</translation>
    </message>
    <message id="CPUTIMES_tip">
        <source></source>
        <translation>Tempo de CPU utilizado desde que o processo foi iniciado, de utilizador e de sistema em conjunto, em segundos.</translation>
    </message>
    <message id="DRS">
        <source></source>
        <translation>Tamanho dos dados (DRS)</translation>
    </message>
    <message id="DRS_tip">
        <source></source>
        <translation>O tamanho de toda a memória mapeada, exceto o código executável. Apesar do nome, nem toda tem de estar na RAM.</translation>
    </message>
    <message id="DSIZ">
        <source></source>
        <translation>Tamanho dos dados (DSIZ)</translation>
    </message>
    <message id="DSIZ_tip">
        <source></source>
        <translation>O tamanho de toda a memória mapeada, exceto o código executável.</translation>
    </message>
    <message id="EGID">
        <source></source>
        <translation>ID do grupo efetivo (EGID)</translation>
    </message>
    <message id="EGID_tip">
        <source></source>
        <translation>O número do grupo cujos direitos o processo tem.</translation>
    </message>
    <message id="EGROUP">
        <source></source>
        <translation>Grupo efetivo (EGROUP)</translation>
    </message>
    <message id="EGROUP_tip">
        <source></source>
        <translation>O nome do grupo cujos direitos o processo tem.</translation>
    </message>
    <message id="EIP">
        <source></source>
        <translation>Ponteiro de instrução (EIP)</translation>
    </message>
    <message id="EIP_tip">
        <source></source>
        <translation>O endereço da instrução em que o processo está. Desde a versão 4.9, o núcleo só o mostra enquanto um processo termina; de resto é zero.</translation>
    </message>
    <message id="ELAPSED">
        <source></source>
        <translation>Tempo decorrido (ELAPSED)</translation>
    </message>
    <message id="ELAPSED_tip">
        <source></source>
        <translation>Tempo desde que o processo foi iniciado, em dias, horas, minutos e segundos.</translation>
    </message>
    <message id="ESP">
        <source></source>
        <translation>Ponteiro da pilha (ESP)</translation>
    </message>
    <message id="ESP_tip">
        <source></source>
        <translation>O endereço do topo da pilha. Desde a versão 4.9, o núcleo só o mostra enquanto um processo termina; de resto é zero.</translation>
    </message>
    <message id="ETIMES">
        <source></source>
        <translation>Segundos decorridos (ETIMES)</translation>
    </message>
    <message id="ETIMES_tip">
        <source></source>
        <translation>Tempo desde que o processo foi iniciado, em segundos.</translation>
    </message>
    <message id="EUID">
        <source></source>
        <translation>ID do utilizador efetivo (EUID)</translation>
    </message>
    <message id="EUID_tip">
        <source></source>
        <translation>O número do utilizador cujos direitos o processo tem.</translation>
    </message>
    <message id="EUSER">
        <source></source>
        <translation>Utilizador efetivo (EUSER)</translation>
    </message>
    <message id="EUSER_tip">
        <source></source>
        <translation>O nome do utilizador cujos direitos o processo tem.</translation>
    </message>
    <message id="EXE">
        <source></source>
        <translation>Executável (EXE)</translation>
    </message>
    <message id="EXE_tip">
        <source></source>
        <translation>O caminho do ficheiro do programa; um hífen para threads do núcleo, uma cruz onde não pode ser lido.</translation>
    </message>
    <message id="F">
        <source></source>
        <translation>Indicadores (F)</translation>
    </message>
    <message id="F_tip">
        <source></source>
        <translation>Indicadores do processo, somados: 1 bifurcado mas ainda sem programa próprio, 4 usou os direitos do superutilizador.</translation>
    </message>
    <message id="FGID">
        <source></source>
        <translation>ID do grupo de acesso a ficheiros (FGID)</translation>
    </message>
    <message id="FGID_tip">
        <source></source>
        <translation>O número do grupo que conta quando o processo abre ficheiros.</translation>
    </message>
    <message id="FGROUP">
        <source></source>
        <translation>Grupo de acesso a ficheiros (FGROUP)</translation>
    </message>
    <message id="FGROUP_tip">
        <source></source>
        <translation>O nome do grupo que conta quando o processo abre ficheiros.</translation>
    </message>
    <message id="FNAME">
        <source></source>
        <translation>Nome do comando, abreviado (FNAME)</translation>
    </message>
    <message id="FNAME_tip">
        <source></source>
        <translation>As primeiras oito letras do nome do comando.</translation>
    </message>
    <message id="FSGID">
        <source></source>
        <translation>ID do grupo de acesso a ficheiros (FSGID)</translation>
    </message>
    <message id="FSGID_tip">
        <source></source>
        <translation>O número do grupo que conta quando o processo abre ficheiros. O mesmo que FGID.</translation>
    </message>
    <message id="FSGROUP">
        <source></source>
        <translation>Grupo de acesso a ficheiros (FSGROUP)</translation>
    </message>
    <message id="FSGROUP_tip">
        <source></source>
        <translation>O nome do grupo que conta quando o processo abre ficheiros. O mesmo que FGROUP.</translation>
    </message>
    <message id="FSUID">
        <source></source>
        <translation>ID do utilizador de acesso a ficheiros (FSUID)</translation>
    </message>
    <message id="FSUID_tip">
        <source></source>
        <translation>O número do utilizador que conta quando o processo abre ficheiros. O mesmo que FUID.</translation>
    </message>
    <message id="FSUSER">
        <source></source>
        <translation>Utilizador de acesso a ficheiros (FSUSER)</translation>
    </message>
    <message id="FSUSER_tip">
        <source></source>
        <translation>O nome do utilizador que conta quando o processo abre ficheiros. O mesmo que FUSER.</translation>
    </message>
    <message id="FUID">
        <source></source>
        <translation>ID do utilizador de acesso a ficheiros (FUID)</translation>
    </message>
    <message id="FUID_tip">
        <source></source>
        <translation>O número do utilizador que conta quando o processo abre ficheiros.</translation>
    </message>
    <message id="FUSER">
        <source></source>
        <translation>Utilizador de acesso a ficheiros (FUSER)</translation>
    </message>
    <message id="FUSER_tip">
        <source></source>
        <translation>O nome do utilizador que conta quando o processo abre ficheiros.</translation>
    </message>
    <message id="GID">
        <source></source>
        <translation>ID do grupo (GID)</translation>
    </message>
    <message id="GID_tip">
        <source></source>
        <translation>O número do grupo efetivo. O mesmo que EGID.</translation>
    </message>
    <message id="GROUP">
        <source></source>
        <translation>Grupo (GROUP)</translation>
    </message>
    <message id="GROUP_tip">
        <source></source>
        <translation>O nome do grupo efetivo. O mesmo que EGROUP.</translation>
    </message>
    <message id="IGNORED">
        <source></source>
        <translation>Sinais ignorados (IGNORED)</translation>
    </message>
    <message id="IGNORED_tip">
        <source></source>
        <translation>Os sinais que o processo ignora, como máscara hexadecimal.</translation>
    </message>
    <message id="IPCNS">
        <source></source>
        <translation>Espaço de nomes de IPC (IPCNS)</translation>
    </message>
    <message id="IPCNS_tip">
        <source></source>
        <translation>O número de inode do espaço de nomes de comunicação entre processos em que o processo vive. Os processos com o mesmo número partilham-no.</translation>
    </message>
    <message id="LABEL">
        <source></source>
        <translation>Contexto de segurança (LABEL)</translation>
    </message>
    <message id="LABEL_tip">
        <source></source>
        <translation>A etiqueta que o controlo de acesso do núcleo deu ao processo; um hífen se não houver nenhuma. O mesmo que CONTEXT.</translation>
    </message>
    <message id="LASTCPU">
        <source></source>
        <translation>Último CPU (LASTCPU)</translation>
    </message>
    <message id="LASTCPU_tip">
        <source></source>
        <translation>O número do processador em que o processo correu pela última vez. O mesmo que PSR.</translation>
    </message>
    <message id="LIM">
        <source></source>
        <translation>Limite de memória (LIM)</translation>
    </message>
    <message id="LIM_tip">
        <source></source>
        <translation>O limite do tamanho residente, em kibibytes; xx significa sem limite.</translation>
    </message>
    <message id="LSTART">
        <source></source>
        <translation>Data de início (LSTART)</translation>
    </message>
    <message id="LSTART_tip">
        <source></source>
        <translation>Quando o processo foi iniciado, data e hora.</translation>
    </message>
    <message id="LUID">
        <source></source>
        <translation>ID do utilizador da sessão (LUID)</translation>
    </message>
    <message id="LUID_tip">
        <source></source>
        <translation>O número do utilizador que iniciou a sessão, que não muda mesmo que os direitos passem depois para outro; um hífen se não houve início de sessão.</translation>
    </message>
    <message id="LWP">
        <source></source>
        <translation>ID da thread (LWP)</translation>
    </message>
    <message id="LWP_tip">
        <source></source>
        <translation>O número da thread principal do processo, que é igual ao ID do processo.</translation>
    </message>
    <message id="LXC">
        <source></source>
        <translation>Contentor LXC (LXC)</translation>
    </message>
    <message id="LXC_tip">
        <source></source>
        <translation>O nome do contentor LXC em que o processo corre; um hífen fora de contentores.</translation>
    </message>
    <message id="M_SIZE">
        <source></source>
        <translation>Tamanho virtual em bytes (M_SIZE)</translation>
    </message>
    <message id="M_SIZE_tip">
        <source></source>
        <translation>O tamanho de toda a memória que o processo tem mapeada, em bytes.</translation>
    </message>
    <message id="MACHINE">
        <source></source>
        <translation>Máquina virtual (MACHINE)</translation>
    </message>
    <message id="MACHINE_tip">
        <source></source>
        <translation>O nome da máquina virtual ou do contentor a que o processo pertence. Do systemd; um hífen se não houver nenhum.</translation>
    </message>
    <message id="MAJFL">
        <source></source>
        <translation>Falhas maiores (MAJFL)</translation>
    </message>
    <message id="MAJFL_tip">
        <source></source>
        <translation>Falhas de página que tiveram de esperar por uma leitura do disco. O mesmo que MAJFLT.</translation>
    </message>
    <message id="MAJFLT">
        <source></source>
        <translation>Falhas maiores (MAJFLT)</translation>
    </message>
    <message id="MAJFLT_tip">
        <source></source>
        <translation>Falhas de página que tiveram de esperar por uma leitura do disco, desde que o processo foi iniciado.</translation>
    </message>
    <message id="MINFL">
        <source></source>
        <translation>Falhas menores (MINFL)</translation>
    </message>
    <message id="MINFL_tip">
        <source></source>
        <translation>Falhas de página que não precisaram de uma leitura do disco. O mesmo que MINFLT.</translation>
    </message>
    <message id="MINFLT">
        <source></source>
        <translation>Falhas menores (MINFLT)</translation>
    </message>
    <message id="MINFLT_tip">
        <source></source>
        <translation>Falhas de página que não precisaram de uma leitura do disco, desde que o processo foi iniciado.</translation>
    </message>
    <message id="MNTNS">
        <source></source>
        <translation>Espaço de nomes de montagem (MNTNS)</translation>
    </message>
    <message id="MNTNS_tip">
        <source></source>
        <translation>O número de inode do espaço de nomes de montagem em que o processo vive. Os processos com o mesmo número partilham-no.</translation>
    </message>
    <message id="NETNS">
        <source></source>
        <translation>Espaço de nomes de rede (NETNS)</translation>
    </message>
    <message id="NETNS_tip">
        <source></source>
        <translation>O número de inode do espaço de nomes de rede em que o processo vive. Os processos com o mesmo número partilham-no.</translation>
    </message>
    <message id="NI">
        <source></source>
        <translation>Valor nice (NI)</translation>
    </message>
    <message id="NI_tip">
        <source></source>
        <translation>Quanto o processo cede a vez aos outros, de -20 (o mínimo) a 19 (o máximo). Um hífen onde não tem significado, como nos processos de tempo real.</translation>
    </message>
    <message id="NLWP">
        <source></source>
        <translation>Threads (NLWP)</translation>
    </message>
    <message id="NLWP_tip">
        <source></source>
        <translation>Quantas threads o processo tem.</translation>
    </message>
    <message id="NUMA">
        <source></source>
        <translation>Nó NUMA (NUMA)</translation>
    </message>
    <message id="NUMA_tip">
        <source></source>
        <translation>O nó de memória do processador em que o processo correu pela última vez; -1 quando não se sabe.</translation>
    </message>
    <message id="OOM">
        <source></source>
        <translation>Pontuação OOM (OOM)</translation>
    </message>
    <message id="OOM_tip">
        <source></source>
        <translation>Quão provável é que o núcleo termine o processo quando faltar memória; o mais alto vai primeiro.</translation>
    </message>
    <message id="OOMADJ">
        <source></source>
        <translation>Ajuste OOM (OOMADJ)</translation>
    </message>
    <message id="OOMADJ_tip">
        <source></source>
        <translation>O que é somado à pontuação de falta de memória, de -1000 (nunca terminado) a 1000 (terminado em primeiro lugar).</translation>
    </message>
    <message id="OPRI">
        <source></source>
        <translation>Prioridade (OPRI)</translation>
    </message>
    <message id="OPRI_tip">
        <source></source>
        <translation>A prioridade de escalonamento numa das escalas históricas que o ps oferece: a prioridade do núcleo mais 60, ou seja, 80 para um processo normal e menos para um que corre primeiro.</translation>
    </message>
    <message id="OWNER">
        <source></source>
        <translation>Proprietário da sessão (OWNER)</translation>
    </message>
    <message id="OWNER_tip">
        <source></source>
        <translation>O número do utilizador a quem pertence a sessão do processo. Do systemd; um hífen se não houver nenhum.</translation>
    </message>
    <message id="P">
        <source></source>
        <translation>CPU atual (P)</translation>
    </message>
    <message id="P_tip">
        <source></source>
        <translation>O número do processador em que o processo está a correr; um asterisco enquanto não corre.</translation>
    </message>
    <message id="PAGEIN">
        <source></source>
        <translation>Falhas maiores (PAGEIN)</translation>
    </message>
    <message id="PAGEIN_tip">
        <source></source>
        <translation>Falhas de página que tiveram de esperar por uma leitura do disco. O mesmo que MAJFLT.</translation>
    </message>
    <message id="PENDING">
        <source></source>
        <translation>Sinais pendentes (PENDING)</translation>
    </message>
    <message id="PENDING_tip">
        <source></source>
        <translation>Os sinais que esperam ser entregues ao processo, como máscara hexadecimal.</translation>
    </message>
    <message id="PGID">
        <source></source>
        <translation>ID do grupo de processos (PGID)</translation>
    </message>
    <message id="PGID_tip">
        <source></source>
        <translation>O número do grupo de processos; em regra, os comandos de um encadeamento partilham-no.</translation>
    </message>
    <message id="PGRP">
        <source></source>
        <translation>ID do grupo de processos (PGRP)</translation>
    </message>
    <message id="PGRP_tip">
        <source></source>
        <translation>O número do grupo de processos. O mesmo que PGID.</translation>
    </message>
    <message id="PID">
        <source></source>
        <translation>ID do processo (PID)</translation>
    </message>
    <message id="PID_tip">
        <source></source>
        <translation>O número do processo, tal como o ps o imprime.</translation>
    </message>
    <message id="PIDNS">
        <source></source>
        <translation>Espaço de nomes de PID (PIDNS)</translation>
    </message>
    <message id="PIDNS_tip">
        <source></source>
        <translation>O número de inode do espaço de nomes de números de processos em que o processo vive. Os processos com o mesmo número partilham-no.</translation>
    </message>
    <message id="POL">
        <source></source>
        <translation>Classe de escalonamento (POL)</translation>
    </message>
    <message id="POL_tip">
        <source></source>
        <translation>A classe de escalonamento em letras. O mesmo que CLS.</translation>
    </message>
    <message id="PPID">
        <source></source>
        <translation>ID do pai (PPID)</translation>
    </message>
    <message id="PPID_tip">
        <source></source>
        <translation>O número do processo que iniciou este, ou daquele que ficou com ele.</translation>
    </message>
    <message id="PRI">
        <source></source>
        <translation>Prioridade (PRI)</translation>
    </message>
    <message id="PRI_tip">
        <source></source>
        <translation>A prioridade de escalonamento, invertida: 19 para um processo normal e mais para um que corre primeiro.</translation>
    </message>
    <message id="PRIORITY">
        <source></source>
        <translation>Prioridade (PRIORITY)</translation>
    </message>
    <message id="PRIORITY_tip">
        <source></source>
        <translation>A prioridade de escalonamento do próprio núcleo: 20 para um processo normal e menos para um que corre primeiro, abaixo de zero para os de tempo real.</translation>
    </message>
    <message id="PSR">
        <source></source>
        <translation>Último CPU (PSR)</translation>
    </message>
    <message id="PSR_tip">
        <source></source>
        <translation>O número do processador em que o processo correu pela última vez.</translation>
    </message>
    <message id="PSS">
        <source></source>
        <translation>Tamanho proporcional (PSS)</translation>
    </message>
    <message id="PSS_tip">
        <source></source>
        <translation>Memória na RAM, com cada página partilhada dividida por quem a partilha. Demora a apurar; uma cruz onde não pode ser lido.</translation>
    </message>
    <message id="RBYTES">
        <source></source>
        <translation>Bytes lidos do armazenamento (RBYTES)</translation>
    </message>
    <message id="RBYTES_tip">
        <source></source>
        <translation>Bytes que os dispositivos de armazenamento tiveram de entregar para o processo. De /proc/PID/io; uma cruz onde não pode ser lido.</translation>
    </message>
    <message id="RCHARS">
        <source></source>
        <translation>Bytes lidos (RCHARS)</translation>
    </message>
    <message id="RCHARS_tip">
        <source></source>
        <translation>Bytes que o processo pediu nas suas chamadas de leitura, viessem de um disco, de uma cache ou de um terminal. De /proc/PID/io; uma cruz onde não pode ser lido.</translation>
    </message>
    <message id="RGID">
        <source></source>
        <translation>ID do grupo real (RGID)</translation>
    </message>
    <message id="RGID_tip">
        <source></source>
        <translation>O número do grupo a que o processo pertence, sejam quais forem agora os seus direitos.</translation>
    </message>
    <message id="RGROUP">
        <source></source>
        <translation>Grupo real (RGROUP)</translation>
    </message>
    <message id="RGROUP_tip">
        <source></source>
        <translation>O nome do grupo a que o processo pertence, sejam quais forem agora os seus direitos.</translation>
    </message>
    <message id="ROPS">
        <source></source>
        <translation>Chamadas de leitura (ROPS)</translation>
    </message>
    <message id="ROPS_tip">
        <source></source>
        <translation>Quantas chamadas ao sistema de leitura o processo fez. De /proc/PID/io; uma cruz onde não pode ser lido.</translation>
    </message>
    <message id="RSS">
        <source></source>
        <translation>Tamanho residente (RSS)</translation>
    </message>
    <message id="RSS_tip">
        <source></source>
        <translation>Quanta memória do processo está na RAM, incluindo as páginas partilhadas.</translation>
    </message>
    <message id="RSZ">
        <source></source>
        <translation>Tamanho residente (RSZ)</translation>
    </message>
    <message id="RSZ_tip">
        <source></source>
        <translation>Quanta memória do processo está na RAM, incluindo as páginas partilhadas.</translation>
    </message>
    <message id="RTPRIO">
        <source></source>
        <translation>Prioridade de tempo real (RTPRIO)</translation>
    </message>
    <message id="RTPRIO_tip">
        <source></source>
        <translation>A prioridade entre os processos de tempo real, de 1 a 99, as mais altas correm primeiro; um hífen para todos os outros processos.</translation>
    </message>
    <message id="RUID">
        <source></source>
        <translation>ID do utilizador real (RUID)</translation>
    </message>
    <message id="RUID_tip">
        <source></source>
        <translation>O número do utilizador que iniciou o processo, sejam quais forem agora os seus direitos.</translation>
    </message>
    <message id="RUSER">
        <source></source>
        <translation>Utilizador real (RUSER)</translation>
    </message>
    <message id="RUSER_tip">
        <source></source>
        <translation>O nome do utilizador que iniciou o processo, sejam quais forem agora os seus direitos.</translation>
    </message>
    <message id="S">
        <source></source>
        <translation>Estado (S)</translation>
    </message>
    <message id="S_tip">
        <source></source>
        <translation>O que o processo está a fazer: R corre ou está pronto, S dorme, D espera por um dispositivo, I thread inativa do núcleo, T parado, t parado por um depurador, Z terminado mas não recolhido.</translation>
    </message>
    <message id="SCH">
        <source></source>
        <translation>Política de escalonamento (SCH)</translation>
    </message>
    <message id="SCH_tip">
        <source></source>
        <translation>A política de escalonamento como número: 0 normal, 1 FIFO, 2 round robin, 3 em lote, 5 inativa, 6 com prazos.</translation>
    </message>
    <message id="SEAT">
        <source></source>
        <translation>Posto (SEAT)</translation>
    </message>
    <message id="SEAT_tip">
        <source></source>
        <translation>O posto (um ecrã, um teclado e um rato que vão juntos) da sessão a que o processo pertence. Do systemd; um hífen se não houver nenhum.</translation>
    </message>
    <message id="SESSION">
        <source></source>
        <translation>Sessão iniciada (SESSION)</translation>
    </message>
    <message id="SESSION_tip">
        <source></source>
        <translation>O identificador da sessão iniciada a que o processo pertence. Do systemd; um hífen se não houver nenhum.</translation>
    </message>
    <message id="SGID">
        <source></source>
        <translation>ID do grupo guardado (SGID)</translation>
    </message>
    <message id="SGID_tip">
        <source></source>
        <translation>O número do grupo cujos direitos o processo pode recuperar.</translation>
    </message>
    <message id="SGROUP">
        <source></source>
        <translation>Grupo guardado (SGROUP)</translation>
    </message>
    <message id="SGROUP_tip">
        <source></source>
        <translation>O nome do grupo cujos direitos o processo pode recuperar.</translation>
    </message>
    <message id="SID">
        <source></source>
        <translation>ID da sessão (SID)</translation>
    </message>
    <message id="SID_tip">
        <source></source>
        <translation>O número da sessão, que é o ID de processo do seu líder.</translation>
    </message>
    <message id="SIGNAL">
        <source></source>
        <translation>Sinais pendentes (SIGNAL)</translation>
    </message>
    <message id="SIGNAL_tip">
        <source></source>
        <translation>Os sinais que esperam ser entregues ao processo, como máscara hexadecimal. O mesmo que PENDING.</translation>
    </message>
    <message id="SIZE">
        <source></source>
        <translation>Tamanho na swap (SIZE)</translation>
    </message>
    <message id="SIZE_tip">
        <source></source>
        <translation>Uma estimativa aproximada do espaço de swap de que o processo precisaria se toda a sua memória modificável fosse para lá.</translation>
    </message>
    <message id="SLICE">
        <source></source>
        <translation>Slice (SLICE)</translation>
    </message>
    <message id="SLICE_tip">
        <source></source>
        <translation>O slice, um ramo da árvore de grupos de controlo, a que o processo pertence. Do systemd; um hífen se não houver nenhum.</translation>
    </message>
    <message id="SPID">
        <source></source>
        <translation>ID da thread (SPID)</translation>
    </message>
    <message id="SPID_tip">
        <source></source>
        <translation>O número da thread principal do processo, que é igual ao ID do processo. O mesmo que LWP.</translation>
    </message>
    <message id="STACKP">
        <source></source>
        <translation>Endereço da pilha (STACKP)</translation>
    </message>
    <message id="STACKP_tip">
        <source></source>
        <translation>O endereço do fundo da pilha, em hexadecimal; zero onde não pode ser lido.</translation>
    </message>
    <message id="START">
        <source></source>
        <translation>Início (START)</translation>
    </message>
    <message id="START_tip">
        <source></source>
        <translation>Quando o processo foi iniciado: a hora dentro das últimas 24 horas; senão, a data.</translation>
    </message>
    <message id="STARTED">
        <source></source>
        <translation>Início (STARTED)</translation>
    </message>
    <message id="STARTED_tip">
        <source></source>
        <translation>Quando o processo foi iniciado: a hora com segundos dentro das últimas 24 horas; senão, a data.</translation>
    </message>
    <message id="STAT">
        <source></source>
        <translation>Estado (STAT)</translation>
    </message>
    <message id="STAT_tip">
        <source></source>
        <translation>A letra do estado e, a seguir, outras: &lt; prioridade alta, N prioridade baixa, L páginas bloqueadas na memória, s líder de sessão, l várias threads, + em primeiro plano no seu terminal.</translation>
    </message>
    <message id="STIME">
        <source></source>
        <translation>Início (STIME)</translation>
    </message>
    <message id="STIME_tip">
        <source></source>
        <translation>Quando o processo foi iniciado: a hora se foi hoje, a data se foi noutro dia, o ano se foi noutro ano.</translation>
    </message>
    <message id="SUID">
        <source></source>
        <translation>ID do utilizador guardado (SUID)</translation>
    </message>
    <message id="SUID_tip">
        <source></source>
        <translation>O número do utilizador cujos direitos o processo pode recuperar.</translation>
    </message>
    <message id="SUPGID">
        <source></source>
        <translation>IDs dos grupos suplementares (SUPGID)</translation>
    </message>
    <message id="SUPGID_tip">
        <source></source>
        <translation>Os números dos outros grupos cujos direitos o processo tem; um hífen se não houver nenhum.</translation>
    </message>
    <message id="SUPGRP">
        <source></source>
        <translation>Grupos suplementares (SUPGRP)</translation>
    </message>
    <message id="SUPGRP_tip">
        <source></source>
        <translation>Os nomes dos outros grupos cujos direitos o processo tem; um hífen se não houver nenhum.</translation>
    </message>
    <message id="SUSER">
        <source></source>
        <translation>Utilizador guardado (SUSER)</translation>
    </message>
    <message id="SUSER_tip">
        <source></source>
        <translation>O nome do utilizador cujos direitos o processo pode recuperar.</translation>
    </message>
    <message id="SVGID">
        <source></source>
        <translation>ID do grupo guardado (SVGID)</translation>
    </message>
    <message id="SVGID_tip">
        <source></source>
        <translation>O número do grupo cujos direitos o processo pode recuperar. O mesmo que SGID.</translation>
    </message>
    <message id="SVGROUP">
        <source></source>
        <translation>Grupo guardado (SVGROUP)</translation>
    </message>
    <message id="SVGROUP_tip">
        <source></source>
        <translation>O nome do grupo cujos direitos o processo pode recuperar. O mesmo que SGROUP.</translation>
    </message>
    <message id="SVUID">
        <source></source>
        <translation>ID do utilizador guardado (SVUID)</translation>
    </message>
    <message id="SVUID_tip">
        <source></source>
        <translation>O número do utilizador cujos direitos o processo pode recuperar. O mesmo que SUID.</translation>
    </message>
    <message id="SVUSER">
        <source></source>
        <translation>Utilizador guardado (SVUSER)</translation>
    </message>
    <message id="SVUSER_tip">
        <source></source>
        <translation>O nome do utilizador cujos direitos o processo pode recuperar. O mesmo que SUSER.</translation>
    </message>
    <message id="SZ">
        <source></source>
        <translation>Tamanho em páginas (SZ)</translation>
    </message>
    <message id="SZ_tip">
        <source></source>
        <translation>O tamanho de toda a memória que o processo tem mapeada, que o ps conta em páginas da máquina. O mesmo que VSZ, salvo frações de página.</translation>
    </message>
    <message id="TGID">
        <source></source>
        <translation>ID do grupo de threads (TGID)</translation>
    </message>
    <message id="TGID_tip">
        <source></source>
        <translation>O número que todas as threads do processo partilham, que é o ID do processo.</translation>
    </message>
    <message id="THCNT">
        <source></source>
        <translation>Threads (THCNT)</translation>
    </message>
    <message id="THCNT_tip">
        <source></source>
        <translation>Quantas threads o processo tem. O mesmo que NLWP.</translation>
    </message>
    <message id="TID">
        <source></source>
        <translation>ID da thread (TID)</translation>
    </message>
    <message id="TID_tip">
        <source></source>
        <translation>O número da thread principal do processo, que é igual ao ID do processo. O mesmo que LWP.</translation>
    </message>
    <message id="TIME">
        <source></source>
        <translation>Tempo de CPU (TIME)</translation>
    </message>
    <message id="TIME_tip">
        <source></source>
        <translation>Tempo de CPU utilizado desde que o processo foi iniciado, de utilizador e de sistema em conjunto, em dias, horas, minutos e segundos.</translation>
    </message>
    <message id="TIMENS">
        <source></source>
        <translation>Espaço de nomes de tempo (TIMENS)</translation>
    </message>
    <message id="TIMENS_tip">
        <source></source>
        <translation>O número de inode do espaço de nomes de relógios em que o processo vive. Os processos com o mesmo número partilham-no.</translation>
    </message>
    <message id="TPGID">
        <source></source>
        <translation>ID do grupo em primeiro plano (TPGID)</translation>
    </message>
    <message id="TPGID_tip">
        <source></source>
        <translation>O grupo de processos em primeiro plano no terminal a que o processo pertence; -1 sem terminal.</translation>
    </message>
    <message id="TRS">
        <source></source>
        <translation>Tamanho do código (TRS)</translation>
    </message>
    <message id="TRS_tip">
        <source></source>
        <translation>O tamanho do código executável. Apesar do nome, nem toda tem de estar na RAM.</translation>
    </message>
    <message id="TRSS">
        <source></source>
        <translation>Tamanho do código (TRSS)</translation>
    </message>
    <message id="TRSS_tip">
        <source></source>
        <translation>O tamanho do código executável. O mesmo que TRS.</translation>
    </message>
    <message id="TSIG">
        <source></source>
        <translation>Sinais pendentes da thread (TSIG)</translation>
    </message>
    <message id="TSIG_tip">
        <source></source>
        <translation>Os sinais que esperam ser entregues apenas à thread principal do processo, como máscara hexadecimal.</translation>
    </message>
    <message id="TSIZ">
        <source></source>
        <translation>Tamanho do código (TSIZ)</translation>
    </message>
    <message id="TSIZ_tip">
        <source></source>
        <translation>O tamanho do código executável.</translation>
    </message>
    <message id="TT">
        <source></source>
        <translation>Terminal (TT)</translation>
    </message>
    <message id="TT_tip">
        <source></source>
        <translation>O terminal a que o processo pertence; um ponto de interrogação se não houver nenhum.</translation>
    </message>
    <message id="TTY">
        <source></source>
        <translation>Terminal (TTY)</translation>
    </message>
    <message id="TTY_tip">
        <source></source>
        <translation>O terminal a que o processo pertence; um ponto de interrogação se não houver nenhum. O mesmo que TT.</translation>
    </message>
    <message id="TTY4">
        <source></source>
        <translation>Terminal, abreviado (TTY4)</translation>
    </message>
    <message id="TTY4_tip">
        <source></source>
        <translation>O terminal a que o processo pertence, pelas últimas letras do seu nome; um ponto de interrogação se não houver nenhum.</translation>
    </message>
    <message id="UCMD">
        <source></source>
        <translation>Nome do comando (UCMD)</translation>
    </message>
    <message id="UCMD_tip">
        <source></source>
        <translation>O nome do comando sem os seus argumentos. O mesmo que COMM.</translation>
    </message>
    <message id="UID">
        <source></source>
        <translation>ID do utilizador (UID)</translation>
    </message>
    <message id="UID_tip">
        <source></source>
        <translation>O número do utilizador cujos direitos o processo tem.</translation>
    </message>
    <message id="UNIT">
        <source></source>
        <translation>Unidade do sistema (UNIT)</translation>
    </message>
    <message id="UNIT_tip">
        <source></source>
        <translation>A unidade (um serviço, um âmbito) a que o processo pertence. Do systemd; um hífen se não houver nenhum.</translation>
    </message>
    <message id="USER">
        <source></source>
        <translation>Utilizador (USER)</translation>
    </message>
    <message id="USER_tip">
        <source></source>
        <translation>O nome do utilizador cujos direitos o processo tem. O mesmo que EUSER.</translation>
    </message>
    <message id="USERNS">
        <source></source>
        <translation>Espaço de nomes de utilizadores (USERNS)</translation>
    </message>
    <message id="USERNS_tip">
        <source></source>
        <translation>O número de inode do espaço de nomes de utilizadores em que o processo vive. Os processos com o mesmo número partilham-no.</translation>
    </message>
    <message id="USS">
        <source></source>
        <translation>Tamanho único (USS)</translation>
    </message>
    <message id="USS_tip">
        <source></source>
        <translation>Memória na RAM que o processo não partilha com nenhum outro: o que ficaria livre se terminasse. Demora a apurar; uma cruz onde não pode ser lido.</translation>
    </message>
    <message id="UTSNS">
        <source></source>
        <translation>Espaço de nomes de anfitrião (UTSNS)</translation>
    </message>
    <message id="UTSNS_tip">
        <source></source>
        <translation>O número de inode do espaço de nomes do nome da máquina em que o processo vive. Os processos com o mesmo número partilham-no.</translation>
    </message>
    <message id="UUNIT">
        <source></source>
        <translation>Unidade de utilizador (UUNIT)</translation>
    </message>
    <message id="UUNIT_tip">
        <source></source>
        <translation>A unidade do gestor de serviços do próprio utilizador a que o processo pertence. Do systemd; um hífen se não houver nenhum.</translation>
    </message>
    <message id="VSZ">
        <source></source>
        <translation>Tamanho virtual (VSZ)</translation>
    </message>
    <message id="VSZ_tip">
        <source></source>
        <translation>O tamanho de toda a memória que o processo tem mapeada, esteja ou não em uso.</translation>
    </message>
    <message id="WBYTES">
        <source></source>
        <translation>Bytes escritos no armazenamento (WBYTES)</translation>
    </message>
    <message id="WBYTES_tip">
        <source></source>
        <translation>Bytes que o processo fez enviar para os dispositivos de armazenamento. De /proc/PID/io; uma cruz onde não pode ser lido.</translation>
    </message>
    <message id="WCBYTES">
        <source></source>
        <translation>Bytes escritos e cancelados (WCBYTES)</translation>
    </message>
    <message id="WCBYTES_tip">
        <source></source>
        <translation>Bytes que o processo escreveu em ficheiros que foram eliminados ou encurtados antes de chegarem ao dispositivo de armazenamento. De /proc/PID/io; uma cruz onde não pode ser lido.</translation>
    </message>
    <message id="WCHAN">
        <source></source>
        <translation>Espera em (WCHAN)</translation>
    </message>
    <message id="WCHAN_tip">
        <source></source>
        <translation>A função do núcleo em que o processo dorme; um hífen enquanto corre ou onde não pode ser lida.</translation>
    </message>
    <message id="WCHARS">
        <source></source>
        <translation>Bytes escritos (WCHARS)</translation>
    </message>
    <message id="WCHARS_tip">
        <source></source>
        <translation>Bytes que o processo passou às suas chamadas de escrita, fossem para um disco, uma cache ou um terminal. De /proc/PID/io; uma cruz onde não pode ser lido.</translation>
    </message>
    <message id="WOPS">
        <source></source>
        <translation>Chamadas de escrita (WOPS)</translation>
    </message>
    <message id="WOPS_tip">
        <source></source>
        <translation>Quantas chamadas ao sistema de escrita o processo fez. De /proc/PID/io; uma cruz onde não pode ser lido.</translation>
    </message>
    <message id="ZONE">
        <source></source>
        <translation>Contexto de segurança (ZONE)</translation>
    </message>
    <message id="ZONE_tip">
        <source></source>
        <translation>A etiqueta que o controlo de acesso do núcleo deu ao processo; um hífen se não houver nenhuma. O mesmo que CONTEXT.</translation>
    </message>
    <message id="menu_application">
        <source></source>
        <translation>&amp;Lurkwell</translation>
    </message>
    <message id="menu_file">
        <source></source>
        <translation>&amp;Ficheiro</translation>
    </message>
    <message id="menu_edit">
        <source></source>
        <translation>&amp;Editar</translation>
    </message>
    <message id="menu_view">
        <source></source>
        <translation>&amp;Ver</translation>
    </message>
    <message id="menu_columns">
        <source></source>
        <translation>&amp;Colunas</translation>
    </message>
    <message id="menu_process">
        <source></source>
        <translation>&amp;Processo</translation>
    </message>
    <message id="menu_window">
        <source></source>
        <translation>&amp;Janela</translation>
    </message>
    <message id="menu_help">
        <source></source>
        <translation>&amp;Ajuda</translation>
    </message>
    <message id="menu_application_about">
        <source></source>
        <translation>&amp;Acerca do Lurkwell</translation>
    </message>
    <message id="menu_application_preferences">
        <source></source>
        <translation>&amp;Preferências…</translation>
    </message>
    <message id="menu_application_quit">
        <source></source>
        <translation>&amp;Sair do Lurkwell</translation>
    </message>
    <message id="menu_file_new_cpu_history">
        <source></source>
        <translation>Nova janela de &amp;histórico do CPU</translation>
    </message>
    <message id="menu_file_new_logging">
        <source></source>
        <translation>Nova janela de &amp;registo</translation>
    </message>
    <message id="menu_file_details">
        <source></source>
        <translation>Mostrar os &amp;detalhes</translation>
    </message>
    <message id="menu_file_record">
        <source></source>
        <translation>&amp;Gravar…</translation>
    </message>
    <message id="menu_file_open_recording">
        <source></source>
        <translation>&amp;Abrir gravação…</translation>
    </message>
    <message id="menu_file_close_window">
        <source></source>
        <translation>&amp;Fechar a janela</translation>
    </message>
    <message id="menu_edit_copy">
        <source></source>
        <translation>&amp;Copiar</translation>
    </message>
    <message id="menu_edit_select_all">
        <source></source>
        <translation>Selecionar &amp;tudo</translation>
    </message>
    <message id="menu_edit_select_children">
        <source></source>
        <translation>Selecionar os &amp;filhos</translation>
    </message>
    <message id="menu_edit_filter">
        <source></source>
        <translation>Fi&amp;ltrar…</translation>
    </message>
    <message id="menu_view_update_now">
        <source></source>
        <translation>&amp;Atualizar agora</translation>
    </message>
    <message id="menu_view_pause">
        <source></source>
        <translation>&amp;Pausar</translation>
    </message>
    <message id="menu_view_follow">
        <source></source>
        <translation>&amp;Manter a seleção no lugar</translation>
    </message>
    <message id="menu_view_sort_by">
        <source></source>
        <translation>&amp;Ordenar por</translation>
    </message>
    <message id="menu_view_column_left">
        <source></source>
        <translation>Coluna ordenada para a &amp;esquerda</translation>
    </message>
    <message id="menu_view_column_right">
        <source></source>
        <translation>Coluna ordenada para a &amp;direita</translation>
    </message>
    <message id="menu_view_column_wider">
        <source></source>
        <translation>Coluna ordenada mais &amp;larga</translation>
    </message>
    <message id="menu_view_column_narrower">
        <source></source>
        <translation>Coluna ordenada mais es&amp;treita</translation>
    </message>
    <message id="menu_view_column_fit">
        <source></source>
        <translation>A&amp;justar a coluna ordenada ao conteúdo</translation>
    </message>
    <message id="menu_view_shape_list">
        <source></source>
        <translation>L&amp;ista</translation>
    </message>
    <message id="menu_view_shape_tree">
        <source></source>
        <translation>Árvo&amp;re</translation>
    </message>
    <message id="menu_view_shape_applications">
        <source></source>
        <translation>Por apli&amp;cação</translation>
    </message>
    <message id="menu_view_unfold_all">
        <source></source>
        <translation>E&amp;xpandir tudo</translation>
    </message>
    <message id="menu_view_fold_all">
        <source></source>
        <translation>Recol&amp;her tudo</translation>
    </message>
    <message id="menu_view_scope">
        <source></source>
        <translation>Mo&amp;strar</translation>
    </message>
    <message id="menu_scope_all">
        <source></source>
        <translation>&amp;Todos os processos</translation>
    </message>
    <message id="menu_scope_mine">
        <source></source>
        <translation>&amp;Os meus processos</translation>
    </message>
    <message id="menu_scope_others">
        <source></source>
        <translation>Processos de outros &amp;utilizadores</translation>
    </message>
    <message id="menu_scope_applications">
        <source></source>
        <translation>&amp;Aplicações</translation>
    </message>
    <message id="menu_scope_without_kernel">
        <source></source>
        <translation>&amp;Sem threads do núcleo</translation>
    </message>
    <message id="menu_scope_busy">
        <source></source>
        <translation>&amp;Processos ativos</translation>
    </message>
    <message id="menu_columns_set">
        <source></source>
        <translation>Con&amp;junto de colunas</translation>
    </message>
    <message id="menu_set_standard">
        <source></source>
        <translation>&amp;Padrão</translation>
    </message>
    <message id="menu_set_cpu">
        <source></source>
        <translation>&amp;CPU</translation>
    </message>
    <message id="menu_set_memory">
        <source></source>
        <translation>&amp;Memória</translation>
    </message>
    <message id="menu_set_disk_network">
        <source></source>
        <translation>&amp;Disco e rede</translation>
    </message>
    <message id="menu_set_commands">
        <source></source>
        <translation>C&amp;omandos</translation>
    </message>
    <message id="menu_set_containers">
        <source></source>
        <translation>Con&amp;tentores</translation>
    </message>
    <message id="menu_set_security">
        <source></source>
        <translation>&amp;Segurança</translation>
    </message>
    <message id="menu_set_save_as">
        <source></source>
        <translation>&amp;Guardar como…</translation>
    </message>
    <message id="menu_set_rename">
        <source></source>
        <translation>Mudar o &amp;nome…</translation>
    </message>
    <message id="menu_set_delete">
        <source></source>
        <translation>&amp;Eliminar…</translation>
    </message>
    <message id="menu_set_restore">
        <source></source>
        <translation>Como era no &amp;início…</translation>
    </message>
    <message id="menu_view_show_toolbar">
        <source></source>
        <translation>Mostrar a &amp;barra de ferramentas</translation>
    </message>
    <message id="menu_view_customise_toolbar">
        <source></source>
        <translation>Perso&amp;nalizar a barra de ferramentas…</translation>
    </message>
    <message id="menu_columns_icon">
        <source></source>
        <translation>Í&amp;cone</translation>
    </message>
    <message id="menu_columns_indicator">
        <source></source>
        <translation>In&amp;dicador</translation>
    </message>
    <message id="menu_columns_name">
        <source></source>
        <translation>&amp;Nome</translation>
    </message>
    <message id="menu_columns_cpu_usage">
        <source></source>
        <translation>&amp;Uso do CPU</translation>
    </message>
    <message id="menu_columns_memory">
        <source></source>
        <translation>&amp;Memória</translation>
    </message>
    <message id="menu_columns_built_in">
        <source></source>
        <translation>P&amp;ropriedades do processo</translation>
    </message>
    <message id="menu_columns_ps">
        <source></source>
        <translation>Colunas do &amp;ps</translation>
    </message>
    <message id="column_group_identity">
        <source></source>
        <translation>Identidade</translation>
    </message>
    <message id="column_group_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="column_group_memory">
        <source></source>
        <translation>Memória</translation>
    </message>
    <message id="column_group_network">
        <source></source>
        <translation>Rede</translation>
    </message>
    <message id="column_group_gpu">
        <source></source>
        <translation>GPU</translation>
    </message>
    <message id="column_group_security">
        <source></source>
        <translation>Segurança</translation>
    </message>
    <message id="column_group_disk">
        <source></source>
        <translation>Disco</translation>
    </message>
    <message id="column_group_users">
        <source></source>
        <translation>Utilizadores e grupos</translation>
    </message>
    <message id="column_group_terminal">
        <source></source>
        <translation>Terminal e sessão</translation>
    </message>
    <message id="column_group_signals">
        <source></source>
        <translation>Sinais</translation>
    </message>
    <message id="column_group_belonging">
        <source></source>
        <translation>Pertença</translation>
    </message>
    <message id="column_group_other">
        <source></source>
        <translation>Outras</translation>
    </message>
    <message id="column_group_desktop">
        <source></source>
        <translation>Aplicação do ambiente de trabalho</translation>
    </message>
    <message id="column_group_repeated">
        <source></source>
        <translation>O mesmo com outros nomes</translation>
    </message>
    <message id="column_group_classic">
        <source></source>
        <translation>Ambiente Classic</translation>
    </message>
    <message id="column_group_not_counted">
        <source></source>
        <translation>O que não é medido neste sistema</translation>
    </message>
    <message id="column_filter">
        <source></source>
        <translation>Procurar uma coluna</translation>
    </message>
    <message id="column_filter_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Mais %n: escreva mais letras</numerusform>
            <numerusform>Mais %n: escreva mais letras</numerusform>
        </translation>
    </message>
    <message id="column_filter_nothing">
        <source></source>
        <translation>Nenhuma coluna tem isto no nome ou na descrição</translation>
    </message>
    <message id="column_hide">
        <source></source>
        <translation>&amp;Ocultar “%1”</translation>
    </message>
    <message id="column_of_ps_tip">
        <source></source>
        <translation>Uma coluna do ps deste sistema, impressa pela sua palavra-chave %1.</translation>
    </message>
    <message id="column_keywords_tip">
        <source></source>
        <translation>Palavra-chave do ps: %1</translation>
    </message>
    <message id="menu_process_quit_or_kill">
        <source></source>
        <translation>&amp;Encerrar ou matar…</translation>
    </message>
    <message id="menu_process_high_priority">
        <source></source>
        <translation>Prioridade &amp;alta</translation>
    </message>
    <message id="menu_process_normal_priority">
        <source></source>
        <translation>Prioridade &amp;normal</translation>
    </message>
    <message id="menu_process_low_priority">
        <source></source>
        <translation>Prioridade &amp;baixa</translation>
    </message>
    <message id="menu_process_halt">
        <source></source>
        <translation>&amp;Parar…</translation>
    </message>
    <message id="menu_process_continue">
        <source></source>
        <translation>&amp;Continuar</translation>
    </message>
    <message id="menu_process_hide">
        <source></source>
        <translation>&amp;Ocultar</translation>
    </message>
    <message id="menu_process_bring_to_front">
        <source></source>
        <translation>&amp;Trazer para a frente</translation>
    </message>
    <message id="menu_process_reveal">
        <source></source>
        <translation>&amp;Mostrar no gestor de ficheiros</translation>
    </message>
    <message id="menu_process_by_id">
        <source></source>
        <translation>Procurar processo por &amp;ID…</translation>
    </message>
    <message id="menu_window_show_main">
        <source></source>
        <translation>&amp;Processos</translation>
    </message>
    <message id="menu_window_remembered">
        <source></source>
        <translation>Janelas &amp;recordadas…</translation>
    </message>
    <message id="menu_window_close_all">
        <source></source>
        <translation>&amp;Fechar todos os históricos, registos e detalhes</translation>
    </message>
    <message id="menu_window_show_animated_view">
        <source></source>
        <translation>Vista &amp;animada</translation>
    </message>
    <message id="menu_view_overlay">
        <source></source>
        <translation>&amp;Vista animada sobre o ecrã</translation>
    </message>
    <message id="quintessential_window_title">
        <source></source>
        <translation>Vista animada</translation>
    </message>
    <message id="quintessential_spoken">
        <source></source>
        <translation>Processos como ícones, os mais ativos maiores: %1. A tabela de processos traz os valores.</translation>
    </message>
    <message id="quintessential_menu_toggle">
        <source></source>
        <translation>&amp;Sobre todo o ecrã</translation>
    </message>
    <message id="quintessential_menu_processes">
        <source></source>
        <translation>Mostrar os &amp;processos</translation>
    </message>
    <message id="quintessential_menu_close">
        <source></source>
        <translation>&amp;Fechar</translation>
    </message>
    <message id="quintessential_cannot_draw">
        <source></source>
        <translation>A vista animada não pode ser desenhada: este ecrã não tem OpenGL 3.3 nem OpenGL ES 3.0, ou deixou de funcionar. Tudo o resto no Lurkwell continua.</translation>
    </message>
    <message id="overlay_needs_compositor">
        <source></source>
        <translation>A vista animada não pode ser translúcida aqui.</translation>
    </message>
    <message id="overlay_needs_compositor_text">
        <source></source>
        <translation>Nada mistura as janelas deste ambiente de trabalho (não há nenhum compositor em execução). A vista vai ocupar todo o ecrã; prima Escape ou %1 para sair dela.</translation>
    </message>
    <message id="overlay_needs_layer">
        <source></source>
        <translation>A vista animada não pode ficar aqui por cima de outras janelas.</translation>
    </message>
    <message id="overlay_needs_layer_text">
        <source></source>
        <translation>Este ambiente de trabalho não deixa nenhum programa manter uma janela por cima das dos outros. A vista vai ocupar todo o ecrã; prima Escape ou %1 para sair dela.</translation>
    </message>
    <message id="menu_help_help">
        <source></source>
        <translation>&amp;Ajuda do Lurkwell</translation>
    </message>
    <message id="main_window_title">
        <source></source>
        <translation>Processos</translation>
    </message>
    <message id="main_window_title_paused">
        <source></source>
        <translation>Processos (em pausa)</translation>
    </message>
    <message id="main_window_filter_placeholder">
        <source></source>
        <translation>Filtrar processos</translation>
    </message>
    <message id="main_window_filter_tip">
        <source></source>
        <translation>Mostra só alguns processos, por exemplo:&lt;br&gt;&lt;b&gt;ssh&lt;/b&gt; – com isto no ID ou num texto que é mostrado&lt;br&gt;&lt;b&gt;name:post&lt;/b&gt;, &lt;b&gt;user:root,mail&lt;/b&gt;, &lt;b&gt;name:/^k.*d$/&lt;/b&gt; – com isto numa propriedade&lt;br&gt;&lt;b&gt;mem&amp;gt;500M&lt;/b&gt;, &lt;b&gt;nice&amp;lt;0&lt;/b&gt;, &lt;b&gt;time&amp;gt;=1h&lt;/b&gt; – com mais ou menos&lt;br&gt;&lt;b&gt;port:443&lt;/b&gt;, &lt;b&gt;file:/var/log&lt;/b&gt; – com um socket ou um ficheiro aberto&lt;br&gt;&lt;b&gt;-sleep&lt;/b&gt; – sem; &lt;b&gt;a b&lt;/b&gt; – ambos; &lt;b&gt;a | b&lt;/b&gt; – um deles</translation>
    </message>
    <message id="main_window_filter_hides_all">
        <source></source>
        <translation>Nenhum processo satisfaz o filtro. Esc volta a mostrá-los todos.</translation>
    </message>
    <message id="field_clear">
        <source></source>
        <translation>Limpar o campo</translation>
    </message>
    <message id="filter_last">
        <source></source>
        <translation>Últimos filtros utilizados</translation>
    </message>
    <message id="filter_none_yet">
        <source></source>
        <translation>Ainda não foi utilizado nenhum filtro</translation>
    </message>
    <message id="setting_title_ALERT_RULES">
        <source></source>
        <translation>Alertas: regras</translation>
    </message>
    <message id="setting_ALERT_RULES">
        <source></source>
        <translation>As regras dos alertas, cada uma com o seu comando e se está ativa. São criadas na janela de alertas.</translation>
    </message>
    <message id="setting_title_ALERT_NOTIFICATIONS">
        <source></source>
        <translation>Alertas: notificações</translation>
    </message>
    <message id="setting_ALERT_NOTIFICATIONS">
        <source></source>
        <translation>Mostrar uma notificação no ambiente de trabalho quando um alerta começa. A janela de alertas e o registo têm-na em qualquer caso.</translation>
    </message>
    <message id="setting_title_ALERTS_WINDOW_FRAME">
        <source></source>
        <translation>Alertas: posição e tamanho da janela</translation>
    </message>
    <message id="setting_ALERTS_WINDOW_FRAME">
        <source></source>
        <translation>Posição e tamanho da janela de alertas.</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_ALERTS_WINDOW">
        <source></source>
        <translation>Alertas: a janela estava aberta</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_ALERTS_WINDOW">
        <source></source>
        <translation>Abrir a janela de alertas no arranque. O programa anota aqui se estava aberta.</translation>
    </message>
    <message id="menu_process_alert">
        <source></source>
        <translation>A&amp;lertar quando…</translation>
    </message>
    <message id="menu_window_show_alerts">
        <source></source>
        <translation>A&amp;lertas</translation>
    </message>
    <message id="help_menu_window_show_alerts">
        <source></source>
        <translation>Regras para o que quer saber, o que dizem agora e o que aconteceu</translation>
    </message>
    <message id="help_menu_process_alert">
        <source></source>
        <translation>ser avisado quando um processo como o selecionado fizer alguma coisa</translation>
    </message>
    <message id="alerts_title">
        <source></source>
        <translation>Alertas</translation>
    </message>
    <message id="alerts_rules">
        <source></source>
        <translation>Regras</translation>
    </message>
    <message id="alerts_occurrences">
        <source></source>
        <translation>O que aconteceu</translation>
    </message>
    <message id="alerts_none">
        <source></source>
        <translation>Ainda não há regras. Uma regra diz de que quer ser avisado, por exemplo “any cpu&gt;90% for 10m” ou “unit:backup.service absent for 1h”.</translation>
    </message>
    <message id="alerts_column_rule">
        <source></source>
        <translation>Regra</translation>
    </message>
    <message id="alerts_column_state">
        <source></source>
        <translation>Agora</translation>
    </message>
    <message id="alerts_column_last">
        <source></source>
        <translation>Último alerta</translation>
    </message>
    <message id="alerts_column_began">
        <source></source>
        <translation>Início</translation>
    </message>
    <message id="alerts_column_process">
        <source></source>
        <translation>Processo</translation>
    </message>
    <message id="alerts_column_lasted">
        <source></source>
        <translation>Duração</translation>
    </message>
    <message id="alerts_column_figures">
        <source></source>
        <translation>Valores</translation>
    </message>
    <message id="alerts_add">
        <source></source>
        <translation>Adicionar…</translation>
    </message>
    <message id="alerts_change">
        <source></source>
        <translation>Alterar…</translation>
    </message>
    <message id="alerts_remove">
        <source></source>
        <translation>Remover</translation>
    </message>
    <message id="alerts_add_title">
        <source></source>
        <translation>Nova regra</translation>
    </message>
    <message id="alerts_change_title">
        <source></source>
        <translation>Alterar a regra</translation>
    </message>
    <message id="alerts_remove_question">
        <source></source>
        <translation>Remover esta regra?</translation>
    </message>
    <message id="alerts_notifies">
        <source></source>
        <translation>Notificar-me no ambiente de trabalho</translation>
    </message>
    <message id="alerts_show_process">
        <source></source>
        <translation>Mostrar o processo</translation>
    </message>
    <message id="alerts_show_window">
        <source></source>
        <translation>Mostrar os alertas</translation>
    </message>
    <message id="alerts_show_log">
        <source></source>
        <translation>Mostrar o registo</translation>
    </message>
    <message id="alerts_never">
        <source></source>
        <translation>Nunca</translation>
    </message>
    <message id="alerts_state_off">
        <source></source>
        <translation>Inativa</translation>
    </message>
    <message id="alerts_state_damaged">
        <source></source>
        <translation>O que está guardado não pode ser lido; altere a regra ou remova-a.</translation>
    </message>
    <message id="alerts_state_calm">
        <source></source>
        <translation>Não satisfeita</translation>
    </message>
    <message id="alerts_state_pending">
        <source></source>
        <translation>Satisfeita: %1 de %2</translation>
    </message>
    <message id="alerts_state_firing">
        <source></source>
        <translation>Alerta</translation>
    </message>
    <message id="alerts_state_firing_for" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Alerta: %n processo</numerusform>
            <numerusform>Alerta: %n processos</numerusform>
        </translation>
    </message>
    <message id="alerts_not_allowed">
        <source></source>
        <translation>de %1 não se pode saber: não é permitido</translation>
    </message>
    <message id="alerts_not_counted">
        <source></source>
        <translation>de %1 não se pode saber: não é medido nesta máquina</translation>
    </message>
    <message id="alerts_not_yet_known">
        <source></source>
        <translation>de %1 ainda não se pode saber</translation>
    </message>
    <message id="alerts_nothing_there">
        <source></source>
        <translation>Nenhum processo assim</translation>
    </message>
    <message id="alerts_together">
        <source></source>
        <translation>Todos juntos</translation>
    </message>
    <message id="alerts_seconds">
        <source></source>
        <translation>%1 s</translation>
    </message>
    <message id="alerts_minutes">
        <source></source>
        <translation>%1 min</translation>
    </message>
    <message id="alerts_hours">
        <source></source>
        <translation>%1 h</translation>
    </message>
    <message id="alerts_days">
        <source></source>
        <translation>%1 d</translation>
    </message>
    <message id="alerts_lasts">
        <source></source>
        <translation>%1 até agora</translation>
    </message>
    <message id="alerts_lasted">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="alerts_lasted_to_process_end">
        <source></source>
        <translation>%1; o processo terminou</translation>
    </message>
    <message id="alerts_lasted_to_rule_change">
        <source></source>
        <translation>%1; a regra foi alterada</translation>
    </message>
    <message id="alerts_no_condition">
        <source></source>
        <translation>Uma regra precisa de uma condição, como “cpu&gt;90%”.</translation>
    </message>
    <message id="alerts_no_span">
        <source></source>
        <translation>“%1” precisa de um tempo, como 30s, 5m ou 1h30m.</translation>
    </message>
    <message id="alerts_too_long">
        <source></source>
        <translation>“%1” é mais do que os 30 dias que uma regra pode esperar.</translation>
    </message>
    <message id="alerts_twice">
        <source></source>
        <translation>“%1” aparece duas vezes.</translation>
    </message>
    <message id="alerts_does_not_fit">
        <source></source>
        <translation>“%1” não significa nada numa regra deste tipo.</translation>
    </message>
    <message id="alerts_unknown_word">
        <source></source>
        <translation>“%1” está depois do tempo; as condições ficam antes de “for” e “until”.</translation>
    </message>
    <message id="alerts_no_total">
        <source></source>
        <translation>Depois de “total” fica uma comparação de um valor que se possa somar, como “mem&gt;8G”.</translation>
    </message>
    <message id="alerts_other_total">
        <source></source>
        <translation>Depois de “until” fica uma comparação do mesmo valor que depois de “total”.</translation>
    </message>
    <message id="alerts_text_too_large">
        <source></source>
        <translation>Uma regra tem no máximo %1 letras.</translation>
    </message>
    <message id="alerts_rule_label">
        <source></source>
        <translation>&amp;Regra:</translation>
    </message>
    <message id="alerts_rule_placeholder">
        <source></source>
        <translation>name:postgres mem&gt;4G for 5m until mem&lt;3G</translation>
    </message>
    <message id="alerts_trial_label">
        <source></source>
        <translation>Agora:</translation>
    </message>
    <message id="alerts_trial_wait">
        <source></source>
        <translation>A procurar…</translation>
    </message>
    <message id="alerts_trial_none">
        <source></source>
        <translation>Nenhum processo a satisfaz.</translation>
    </message>
    <message id="alerts_trial_some">
        <source></source>
        <translation>Processos que a satisfazem: %1</translation>
    </message>
    <message id="alerts_trial_total" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 em %n processo</numerusform>
            <numerusform>%1 em %n processos</numerusform>
        </translation>
    </message>
    <message id="alerts_trial_met">
        <source></source>
        <translation>A condição é satisfeita.</translation>
    </message>
    <message id="alerts_trial_not_met">
        <source></source>
        <translation>A condição não é satisfeita.</translation>
    </message>
    <message id="alerts_command_label">
        <source></source>
        <translation>&amp;Comando:</translation>
    </message>
    <message id="alerts_command_placeholder">
        <source></source>
        <translation>Nada é iniciado</translation>
    </message>
    <message id="alerts_command_tip">
        <source></source>
        <translation>Um programa e os seus argumentos, a iniciar quando um alerta começa. Não há shell: as palavras são separadas por espaços, e as aspas mantêm algumas juntas. O ambiente tem LURKWELL_ALERT_RULE, _TIME, _PID, _NAME e _FIGURES.</translation>
    </message>
    <message id="alerts_command_no_end">
        <source></source>
        <translation>No comando, há umas aspas sem par.</translation>
    </message>
    <message id="alerts_command_long">
        <source></source>
        <translation>O comando é demasiado longo.</translation>
    </message>
    <message id="alerts_command_not_started">
        <source></source>
        <translation>não foi possível iniciar o comando: %1</translation>
    </message>
    <message id="alerts_command_status">
        <source></source>
        <translation>o comando terminou com o estado %1</translation>
    </message>
    <message id="alerts_command_too_long">
        <source></source>
        <translation>o comando demorou mais de %1 segundos e foi terminado</translation>
    </message>
    <message id="alerts_command_left_out">
        <source></source>
        <translation>demasiados comandos ao mesmo tempo; alguns ficaram de fora</translation>
    </message>
    <message id="alerts_editor_note">
        <source></source>
        <translation>Uma regra é uma condição como no filtro. “any” à frente faz dela um só alerta para todos os processos, “total mem&gt;8G” soma um valor, “absent” espera que não haja nenhum. “for 5m” diz durante quanto tempo tem de se verificar, e “until cpu&lt;70%” o que a acaba; senão, acaba quando não é satisfeita há meio minuto.</translation>
    </message>
    <message id="alerts_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>mais %n alerta</numerusform>
            <numerusform>mais %n alertas</numerusform>
        </translation>
    </message>
    <message id="alerts_more_latest">
        <source></source>
        <translation>O último: %1
%2</translation>
    </message>
    <message id="alerts_left_out" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Está guardada mais %n regra do que as %1 que são vigiadas. Remova alguma para que seja vigiada no próximo arranque.</numerusform>
            <numerusform>Estão guardadas mais %n regras do que as %1 que são vigiadas. Remova algumas para que sejam vigiadas no próximo arranque.</numerusform>
        </translation>
    </message>
    <message id="alerts_too_many">
        <source></source>
        <translation>Não pode haver mais regras.</translation>
    </message>
    <message id="alerts_log_problem">
        <source></source>
        <translation>O registo de alertas não pode ser escrito: %1</translation>
    </message>
    <message id="alerts_log_not_shown">
        <source></source>
        <translation>Nenhum gestor de ficheiros conseguiu mostrar o registo, que é %1</translation>
    </message>
    <message id="alerts_notification_problem">
        <source></source>
        <translation>Não é possível mostrar notificações: %1</translation>
    </message>
    <message id="alerts_has_ended">
        <source></source>
        <translation>%1 terminou.</translation>
    </message>
    <message id="alerts_not_in_table">
        <source></source>
        <translation>%1 está em execução, mas o filtro ou o âmbito da tabela deixa-o de fora.</translation>
    </message>
    <message id="alerts_not_of_recordings">
        <source></source>
        <translation>Os alertas são sobre os processos em execução. Numa gravação nada é vigiado.</translation>
    </message>
    <message id="filter_unknown_key">
        <source></source>
        <translation>Não há nenhum “%1” para consultar; entre aspas é um texto a procurar.</translation>
    </message>
    <message id="filter_unknown_key_near">
        <source></source>
        <translation>Não há nenhum “%1” para consultar; existe %2.</translation>
    </message>
    <message id="filter_no_value">
        <source></source>
        <translation>Não há nada depois de “%1”.</translation>
    </message>
    <message id="filter_no_term">
        <source></source>
        <translation>Falta alguma coisa ao lado de “%1”.</translation>
    </message>
    <message id="filter_no_end">
        <source></source>
        <translation>Há umas aspas sem par.</translation>
    </message>
    <message id="filter_text_is_not_compared">
        <source></source>
        <translation>“%1” é um texto; pergunte por %2.</translation>
    </message>
    <message id="filter_no_number">
        <source></source>
        <translation>“%1” não é um número como %2.</translation>
    </message>
    <message id="filter_no_expression">
        <source></source>
        <translation>“%1” não é uma expressão regular: %2.</translation>
    </message>
    <message id="main_window_status_some" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 de %n processo: %2; %3 selecionados</numerusform>
            <numerusform>%1 de %n processos: %2; %3 selecionados</numerusform>
        </translation>
    </message>
    <message id="main_window_status_totals">
        <source></source>
        <translation>: CPU %1 %, memória %2</translation>
    </message>
    <message id="main_window_status_paused">
        <source></source>
        <translation>Em pausa: desde então %1 terminados, %2 novos.</translation>
    </message>
    <message id="main_window_status_follows">
        <source></source>
        <translation>A seleção fica no lugar.</translation>
    </message>
    <message id="main_window_scope_hides_all">
        <source></source>
        <translation>Nenhum processo é destes: %1. Ver › Mostrar › Todos os processos volta a mostrá-los todos.</translation>
    </message>
    <message id="scope_mine">
        <source></source>
        <translation>meus</translation>
    </message>
    <message id="scope_others">
        <source></source>
        <translation>de outros utilizadores</translation>
    </message>
    <message id="scope_applications">
        <source></source>
        <translation>aplicações</translation>
    </message>
    <message id="scope_without_kernel">
        <source></source>
        <translation>sem threads do núcleo</translation>
    </message>
    <message id="scope_busy">
        <source></source>
        <translation>ativos</translation>
    </message>
    <message id="scope_filter">
        <source></source>
        <translation>filtro</translation>
    </message>
    <message id="filter_not_allowed">
        <source></source>
        <translation>não permitidos: %1</translation>
    </message>
    <message id="filter_not_allowed_tip">
        <source></source>
        <translation>Processos de outros utilizadores que só um administrador pode examinar</translation>
    </message>
    <message id="filter_looks" numerus="yes">
        <source></source>
        <translation>
            <numerusform>A examinar %n processo…</numerusform>
            <numerusform>A examinar %n processos…</numerusform>
        </translation>
    </message>
    <message id="filter_hides_all_not_allowed">
        <source></source>
        <translation>Nenhum processo que possa ser examinado satisfaz o filtro; não permitidos: %1. Escape retira o filtro.</translation>
    </message>
    <message id="switch_shape">
        <source></source>
        <translation>Forma da tabela</translation>
    </message>
    <message id="switch_scope">
        <source></source>
        <translation>Que processos são mostrados</translation>
    </message>
    <message id="switch_columns">
        <source></source>
        <translation>Conjunto de colunas</translation>
    </message>
    <message id="set_save_title">
        <source></source>
        <translation>Guardar as colunas como conjunto</translation>
    </message>
    <message id="set_rename_title">
        <source></source>
        <translation>Mudar o nome do conjunto de colunas</translation>
    </message>
    <message id="set_title_label">
        <source></source>
        <translation>Nome do conjunto:</translation>
    </message>
    <message id="set_title_agree">
        <source></source>
        <translation>Guardar</translation>
    </message>
    <message id="set_without_title">
        <source></source>
        <translation>Um conjunto precisa de um nome.</translation>
    </message>
    <message id="set_title_too_long">
        <source></source>
        <translation>O nome pode ter no máximo %1 letras.</translation>
    </message>
    <message id="set_title_is_taken">
        <source></source>
        <translation>Já existe um conjunto “%1”.</translation>
    </message>
    <message id="set_too_many">
        <source></source>
        <translation>Pode haver no máximo %1 conjuntos seus. Elimine um de que não precise.</translation>
    </message>
    <message id="set_question_title">
        <source></source>
        <translation>Conjunto de colunas</translation>
    </message>
    <message id="set_delete_question">
        <source></source>
        <translation>Eliminar o conjunto “%1”? As suas colunas, com a largura e a ordem, não podem ser recuperadas.</translation>
    </message>
    <message id="set_delete_agree">
        <source></source>
        <translation>Eliminar</translation>
    </message>
    <message id="set_restore_question">
        <source></source>
        <translation>Repor o conjunto “%1” como era no início? Perde-se o que alterou nele.</translation>
    </message>
    <message id="set_restore_agree">
        <source></source>
        <translation>Repor</translation>
    </message>
    <message id="group_kernel_threads">
        <source></source>
        <translation>Threads do núcleo</translation>
    </message>
    <message id="row_level">
        <source></source>
        <translation>, nível %1</translation>
    </message>
    <message id="row_folded">
        <source></source>
        <translation>, recolhida, %1 abaixo</translation>
    </message>
    <message id="row_ended">
        <source></source>
        <translation>, terminado</translation>
    </message>
    <message id="row_zombie">
        <source></source>
        <translation>, zumbi</translation>
    </message>
    <message id="cell_spoken">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="sorted_ascending">
        <source></source>
        <translation>ordenado do menor para o maior</translation>
    </message>
    <message id="sorted_descending">
        <source></source>
        <translation>ordenado do maior para o menor</translation>
    </message>
    <message id="row_unfolded">
        <source></source>
        <translation>, expandida, %1 abaixo</translation>
    </message>
    <message id="total_tip" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Total de %n processo, até onde é conhecido</numerusform>
            <numerusform>Total de %n processos, até onde é conhecido</numerusform>
        </translation>
    </message>
    <message id="total_memory_tip">
        <source></source>
        <translation>Memória residente: o que os processos partilham é contado por partes quando são conhecidas (PSS); senão, para cada um deles</translation>
    </message>
    <message id="main_window_status_counts" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n processo, %1 visíveis, %2 marcados</numerusform>
            <numerusform>%n processos, %1 visíveis, %2 marcados</numerusform>
        </translation>
    </message>
    <message id="main_window_helper_unprivileged">
        <source></source>
        <translation>Limitado aos seus processos. &lt;a href="rights"&gt;Mais direitos…&lt;/a&gt;</translation>
    </message>
    <message id="main_window_helper_absent">
        <source></source>
        <translation>O auxiliar não está em execução: nada se pode fazer aos processos. &lt;a href="rights"&gt;Porquê?&lt;/a&gt;</translation>
    </message>
    <message id="main_window_rights_title">
        <source></source>
        <translation>O Lurkwell só age sobre os seus próprios processos</translation>
    </message>
    <message id="main_window_rights_may_ask">
        <source></source>
        <translation>Um administrador pode dar ao auxiliar do Lurkwell os direitos para enviar sinais a todos os processos e mudar a sua prioridade. É perguntado uma vez; os arranques seguintes já os encontram.</translation>
    </message>
    <message id="main_window_rights_may_not_ask">
        <source></source>
        <translation>Um pacote instalado traz um auxiliar a que um administrador pode dar os direitos para enviar sinais a todos os processos e mudar a sua prioridade.</translation>
    </message>
    <message id="main_window_rights_ask">
        <source></source>
        <translation>Autenticar…</translation>
    </message>
    <message id="main_window_rights_close">
        <source></source>
        <translation>Fechar</translation>
    </message>
    <message id="help_title">
        <source></source>
        <translation>Ajuda do Lurkwell</translation>
    </message>
    <message id="help_no_key">
        <source></source>
        <translation>(sem tecla definida)</translation>
    </message>
    <message id="help_menu_process_quit_or_kill">
        <source></source>
        <translation>encerrar ou matar os processos selecionados</translation>
    </message>
    <message id="help_menu_edit_filter">
        <source></source>
        <translation>mostrar só os processos com um certo texto; Escape mostra-os todos</translation>
    </message>
    <message id="help_menu_process_by_id">
        <source></source>
        <translation>ir para um processo pelo seu ID</translation>
    </message>
    <message id="help_menu_edit_copy">
        <source></source>
        <translation>copiar as linhas selecionadas</translation>
    </message>
    <message id="help_menu_file_new_cpu_history">
        <source></source>
        <translation>um histórico do CPU de cada processo selecionado</translation>
    </message>
    <message id="help_menu_file_new_logging">
        <source></source>
        <translation>um registo de cada processo selecionado</translation>
    </message>
    <message id="help_menu_file_details">
        <source></source>
        <translation>tudo sobre cada processo selecionado: threads, ficheiros abertos, memória, ambiente, limites</translation>
    </message>
    <message id="help_menu_view_overlay">
        <source></source>
        <translation>pôr a vista animada sobre todo o ecrã, e retirá-la</translation>
    </message>
    <message id="help_menu_file_record">
        <source></source>
        <translation>gravar os processos num ficheiro, para os ver mais tarde; à segunda vez termina a gravação</translation>
    </message>
    <message id="help_menu_set_standard">
        <source></source>
        <translation>Colunas: Padrão</translation>
    </message>
    <message id="help_menu_set_cpu">
        <source></source>
        <translation>Colunas: CPU</translation>
    </message>
    <message id="help_menu_set_memory">
        <source></source>
        <translation>Colunas: Memória</translation>
    </message>
    <message id="help_menu_set_disk_network">
        <source></source>
        <translation>Colunas: Disco e rede</translation>
    </message>
    <message id="help_menu_set_commands">
        <source></source>
        <translation>Colunas: Comandos</translation>
    </message>
    <message id="help_menu_set_containers">
        <source></source>
        <translation>Colunas: Contentores</translation>
    </message>
    <message id="help_menu_set_security">
        <source></source>
        <translation>Colunas: Segurança</translation>
    </message>
    <message id="help_menu_file_open_recording">
        <source></source>
        <translation>ver o que foi gravado, numa janela própria</translation>
    </message>
    <message id="help_menu_file_close_window">
        <source></source>
        <translation>fechar a janela; a última sai do programa</translation>
    </message>
    <message id="help_menu_application_quit">
        <source></source>
        <translation>sair; o que está aberto volta no próximo arranque</translation>
    </message>
    <message id="help_menu_application_preferences">
        <source></source>
        <translation>as preferências</translation>
    </message>
    <message id="help_menu_edit_select_all">
        <source></source>
        <translation>selecionar todos os processos que são mostrados</translation>
    </message>
    <message id="help_menu_edit_select_children">
        <source></source>
        <translation>selecionar os filhos dos processos selecionados em vez destes</translation>
    </message>
    <message id="help_menu_view_update_now">
        <source></source>
        <translation>atualizar agora</translation>
    </message>
    <message id="help_menu_view_pause">
        <source></source>
        <translation>manter linhas e valores parados; outra vez para continuar</translation>
    </message>
    <message id="help_menu_view_follow">
        <source></source>
        <translation>manter a linha selecionada onde está enquanto as outras se movem</translation>
    </message>
    <message id="help_menu_view_shape_list">
        <source></source>
        <translation>mostrar todos os processos como lista</translation>
    </message>
    <message id="help_menu_view_shape_tree">
        <source></source>
        <translation>mostrar os filhos abaixo dos pais</translation>
    </message>
    <message id="help_menu_view_shape_applications">
        <source></source>
        <translation>mostrar os processos abaixo das suas aplicações</translation>
    </message>
    <message id="help_menu_view_unfold_all">
        <source></source>
        <translation>expandir todas as linhas</translation>
    </message>
    <message id="help_menu_view_fold_all">
        <source></source>
        <translation>recolher todas as linhas</translation>
    </message>
    <message id="help_menu_view_column_left">
        <source></source>
        <translation>mover a coluna ordenada para a esquerda</translation>
    </message>
    <message id="help_menu_view_column_right">
        <source></source>
        <translation>movê-la para a direita</translation>
    </message>
    <message id="help_menu_view_column_wider">
        <source></source>
        <translation>torná-la mais larga</translation>
    </message>
    <message id="help_menu_view_column_narrower">
        <source></source>
        <translation>torná-la mais estreita</translation>
    </message>
    <message id="help_menu_view_column_fit">
        <source></source>
        <translation>ajustá-la ao conteúdo</translation>
    </message>
    <message id="help_menu_process_halt">
        <source></source>
        <translation>parar os processos selecionados</translation>
    </message>
    <message id="help_menu_process_continue">
        <source></source>
        <translation>fazer continuar os que estão parados</translation>
    </message>
    <message id="help_menu_process_high_priority">
        <source></source>
        <translation>dar uma prioridade alta aos processos selecionados</translation>
    </message>
    <message id="help_menu_process_normal_priority">
        <source></source>
        <translation>dar-lhes a prioridade normal</translation>
    </message>
    <message id="help_menu_process_low_priority">
        <source></source>
        <translation>dar-lhes uma prioridade baixa</translation>
    </message>
    <message id="help_menu_process_bring_to_front">
        <source></source>
        <translation>trazer para a frente as aplicações selecionadas</translation>
    </message>
    <message id="help_menu_process_hide">
        <source></source>
        <translation>ocultar as suas janelas</translation>
    </message>
    <message id="help_menu_process_reveal">
        <source></source>
        <translation>mostrar os seus ficheiros no gestor de ficheiros</translation>
    </message>
    <message id="help_menu_help_help">
        <source></source>
        <translation>esta página</translation>
    </message>
    <message id="main_window_help_missing">
        <source></source>
        <translation>Não é possível ler a página de ajuda: %1</translation>
    </message>
    <message id="value_not_yet_known">
        <source></source>
        <translation>ainda não se sabe</translation>
    </message>
    <message id="value_not_allowed">
        <source></source>
        <translation>não permitido</translation>
    </message>
    <message id="value_not_counted">
        <source></source>
        <translation>não é medido neste sistema</translation>
    </message>
    <message id="value_not_yet_known_tip">
        <source></source>
        <translation>Ainda não se sabe: uma das próximas atualizações traz o valor.</translation>
    </message>
    <message id="value_not_allowed_tip">
        <source></source>
        <translation>Não permitido: neste processo só o root o pode ler. O Lurkwell mostra-o quando é iniciado pelo root.</translation>
    </message>
    <message id="value_not_counted_tip">
        <source></source>
        <translation>Não é medido: não existe esse valor deste processo neste sistema.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_read_tip">
        <source></source>
        <translation>Não permitido: só o utilizador do processo e o root o podem ler. O que a sua unidade lê e escreve está nas colunas da unidade; o root vê-o se iniciar o Lurkwell.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_written_tip">
        <source></source>
        <translation>Não permitido: só o utilizador do processo e o root o podem ler. O que a sua unidade lê e escreve está nas colunas da unidade; o root vê-o se iniciar o Lurkwell.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_read_rate_tip">
        <source></source>
        <translation>Não permitido: só o utilizador do processo e o root o podem ler. O que a sua unidade lê e escreve está nas colunas da unidade; o root vê-o se iniciar o Lurkwell.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_write_rate_tip">
        <source></source>
        <translation>Não permitido: só o utilizador do processo e o root o podem ler. O que a sua unidade lê e escreve está nas colunas da unidade; o root vê-o se iniciar o Lurkwell.</translation>
    </message>
    <message id="value_not_counted_pid_unit_disk_read_tip">
        <source></source>
        <translation>Não é medido: a unidade do processo não contabiliza a sua entrada e saída. IOAccounting=yes na unidade resolveria isso.</translation>
    </message>
    <message id="value_not_counted_pid_unit_disk_written_tip">
        <source></source>
        <translation>Não é medido: a unidade do processo não contabiliza a sua entrada e saída. IOAccounting=yes na unidade resolveria isso.</translation>
    </message>
    <message id="value_not_counted_pid_unit_read_rate_tip">
        <source></source>
        <translation>Não é medido: a unidade do processo não contabiliza a sua entrada e saída. IOAccounting=yes na unidade resolveria isso.</translation>
    </message>
    <message id="value_not_counted_pid_unit_write_rate_tip">
        <source></source>
        <translation>Não é medido: a unidade do processo não contabiliza a sua entrada e saída. IOAccounting=yes na unidade resolveria isso.</translation>
    </message>
    <message id="value_not_yet_known_pid_cpu_share_tip">
        <source></source>
        <translation>Ainda não se sabe: são precisas duas leituras; uma das próximas atualizações traz o valor.</translation>
    </message>
    <message id="value_not_yet_known_pid_user_share_tip">
        <source></source>
        <translation>Ainda não se sabe: são precisas duas leituras; uma das próximas atualizações traz o valor.</translation>
    </message>
    <message id="value_not_yet_known_pid_system_share_tip">
        <source></source>
        <translation>Ainda não se sabe: são precisas duas leituras; uma das próximas atualizações traz o valor.</translation>
    </message>
    <message id="value_not_yet_known_pid_disk_read_rate_tip">
        <source></source>
        <translation>Ainda não se sabe: são precisas duas leituras; uma das próximas atualizações traz o valor.</translation>
    </message>
    <message id="value_not_yet_known_pid_disk_write_rate_tip">
        <source></source>
        <translation>Ainda não se sabe: são precisas duas leituras; uma das próximas atualizações traz o valor.</translation>
    </message>
    <message id="value_not_yet_known_pid_read_rate_tip">
        <source></source>
        <translation>Ainda não se sabe: são precisas duas leituras; uma das próximas atualizações traz o valor.</translation>
    </message>
    <message id="value_not_yet_known_pid_write_rate_tip">
        <source></source>
        <translation>Ainda não se sabe: são precisas duas leituras; uma das próximas atualizações traz o valor.</translation>
    </message>
    <message id="value_not_yet_known_pid_unit_read_rate_tip">
        <source></source>
        <translation>Ainda não se sabe: são precisas duas leituras; uma das próximas atualizações traz o valor.</translation>
    </message>
    <message id="value_not_yet_known_pid_unit_write_rate_tip">
        <source></source>
        <translation>Ainda não se sabe: são precisas duas leituras; uma das próximas atualizações traz o valor.</translation>
    </message>
    <message id="value_not_counted_pid_label_tip">
        <source></source>
        <translation>Não é medido: o núcleo não tem nenhum módulo de segurança que etiquete os processos (AppArmor, SELinux, Smack).</translation>
    </message>
    <message id="main_window_idle_task_tip">
        <source></source>
        <translation>A tarefa inativa: o que tem é o tempo em que os processadores não tinham nada que fazer.</translation>
    </message>
    <message id="main_window_zombie_tip">
        <source></source>
        <translation>Um zombie: o processo terminou e o pai ainda não pediu o seu estado de saída.</translation>
    </message>
    <message id="main_window_ended_tip">
        <source></source>
        <translation>Este processo terminou enquanto a sua linha tinha de ficar. Nenhuma ação lhe chega.</translation>
    </message>
    <message id="main_window_late_tip">
        <source></source>
        <translation>Esta coluna foi adicionada enquanto a tabela estava em pausa: os seus valores são desse momento e dos processos que ainda existiam.</translation>
    </message>
    <message id="main_window_stale_tip">
        <source></source>
        <translation>A última atualização não trouxe valores para esta coluna; estes são mais antigos.</translation>
    </message>
    <message id="main_window_no_address">
        <source></source>
        <translation>Isto não é o endereço de um processo, como lurkwell://pid/4711: %1</translation>
    </message>
    <message id="main_window_by_id_title">
        <source></source>
        <translation>Procurar processo por ID</translation>
    </message>
    <message id="main_window_by_id_label">
        <source></source>
        <translation>ID do processo:</translation>
    </message>
    <message id="main_window_by_id_find">
        <source></source>
        <translation>&amp;Procurar</translation>
    </message>
    <message id="main_window_by_id_no_number">
        <source></source>
        <translation>Um ID de processo é um número de 0 a %1.</translation>
    </message>
    <message id="main_window_not_revealed">
        <source></source>
        <translation>Nenhum gestor de ficheiros mostrou o ficheiro, %1.</translation>
    </message>
    <message id="main_window_nothing_to_reveal_with">
        <source></source>
        <translation>Não há a quem pedir para mostrar o ficheiro: não existe barramento de sessão, ou o programa desapareceu.</translation>
    </message>
    <message id="main_window_no_details">
        <source></source>
        <translation>Não há detalhes de %1: não é um processo do sistema.</translation>
    </message>
    <message id="main_window_no_children">
        <source></source>
        <translation>Nenhum dos processos selecionados tem filhos.</translation>
    </message>
    <message id="main_window_hidden_children" numerus="yes">
        <source></source>
        <translation>
            <numerusform>O filtro oculta %n dos filhos.</numerusform>
            <numerusform>O filtro oculta %n dos filhos.</numerusform>
        </translation>
    </message>
    <message id="main_window_preferences">
        <source></source>
        <translation>As suas preferências: %1.</translation>
    </message>
    <message id="main_window_by_id_not_found">
        <source></source>
        <translation>Não existe o processo %1.</translation>
    </message>
    <message id="process_halted">
        <source></source>
        <translation>Parado</translation>
    </message>
    <message id="process_niced_high">
        <source></source>
        <translation>Prioridade alta</translation>
    </message>
    <message id="process_niced_low">
        <source></source>
        <translation>Prioridade baixa</translation>
    </message>
    <message id="context_menu_one">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="context_menu_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n processo</numerusform>
            <numerusform>%n processos</numerusform>
        </translation>
    </message>
    <message id="action_ask_window">
        <source></source>
        <translation>Lurkwell</translation>
    </message>
    <message id="action_ask_quit_one">
        <source></source>
        <translation>Encerrar o processo %1 (%2)?</translation>
    </message>
    <message id="action_ask_quit_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Encerrar %n processo?</numerusform>
            <numerusform>Encerrar %n processos?</numerusform>
        </translation>
    </message>
    <message id="action_ask_kill_one">
        <source></source>
        <translation>Matar o processo %1 (%2)?</translation>
    </message>
    <message id="action_ask_kill_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Matar %n processo?</numerusform>
            <numerusform>Matar %n processos?</numerusform>
        </translation>
    </message>
    <message id="action_ask_halt_one">
        <source></source>
        <translation>Parar o processo %1 (%2)?</translation>
    </message>
    <message id="action_ask_halt_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Parar %n processo?</numerusform>
            <numerusform>Parar %n processos?</numerusform>
        </translation>
    </message>
    <message id="action_ask_lower_one">
        <source></source>
        <translation>Baixar a prioridade do processo %1 (%2)?</translation>
    </message>
    <message id="action_ask_lower_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Baixar a prioridade de %n processo?</numerusform>
            <numerusform>Baixar a prioridade de %n processos?</numerusform>
        </translation>
    </message>
    <message id="action_button_quit">
        <source></source>
        <translation>&amp;Encerrar</translation>
    </message>
    <message id="action_button_kill">
        <source></source>
        <translation>&amp;Matar</translation>
    </message>
    <message id="action_button_halt">
        <source></source>
        <translation>&amp;Parar</translation>
    </message>
    <message id="action_button_lower">
        <source></source>
        <translation>&amp;Baixar a prioridade</translation>
    </message>
    <message id="action_next_quit">
        <source></source>
        <translation>É-lhe pedido que feche as suas janelas e saia.</translation>
    </message>
    <message id="action_next_terminate">
        <source></source>
        <translation>É-lhe pedido que termine (SIGTERM). Pode guardar primeiro o seu trabalho, mas não é obrigado a isso.</translation>
    </message>
    <message id="action_next_terminate_again">
        <source></source>
        <translation>Foi-lhe pedido %1 que saísse e ainda existe; agora é-lhe pedido que termine (SIGTERM).</translation>
    </message>
    <message id="action_next_helper">
        <source></source>
        <translation>Foi-lhe pedido %1 que terminasse e ainda existe; é-lhe pedido mais uma vez, pelo auxiliar (SIGTERM).</translation>
    </message>
    <message id="action_next_force">
        <source></source>
        <translation>É terminado à força (SIGKILL). Perde-se o que não tiver guardado.</translation>
    </message>
    <message id="action_next_force_at_last">
        <source></source>
        <translation>Foi-lhe pedido %1 que terminasse; agora é terminado à força (SIGKILL). Perde-se o que não tiver guardado.</translation>
    </message>
    <message id="action_next_halted">
        <source></source>
        <translation>Está parado, e só saberá disto quando continuar.</translation>
    </message>
    <message id="action_next_several">
        <source></source>
        <translation>A cada um é pedido que saia ou que termine, como a lista indica. Pode perder-se o que não tiverem guardado.</translation>
    </message>
    <message id="action_next_several_forced">
        <source></source>
        <translation>Cada um passa pelo passo que a lista indica. Perde-se o que não tiverem guardado os que são terminados à força.</translation>
    </message>
    <message id="action_next_halt">
        <source></source>
        <translation>Um processo parado não avança até se mandar continuar: as suas janelas não respondem, e o que precisar dele espera.</translation>
    </message>
    <message id="action_next_lower">
        <source></source>
        <translation>Recebe o processador quando mais ninguém o quer. Para voltar a aumentar a prioridade são precisos direitos de administrador.</translation>
    </message>
    <message id="action_step_quit">
        <source></source>
        <translation>é-lhe pedido que saia</translation>
    </message>
    <message id="action_step_terminate">
        <source></source>
        <translation>é-lhe pedido que termine</translation>
    </message>
    <message id="action_step_terminate_again">
        <source></source>
        <translation>é-lhe pedido que termine</translation>
    </message>
    <message id="action_step_helper">
        <source></source>
        <translation>é-lhe pedido de novo que termine</translation>
    </message>
    <message id="action_step_force">
        <source></source>
        <translation>é terminado à força</translation>
    </message>
    <message id="action_step_force_at_last">
        <source></source>
        <translation>é terminado à força</translation>
    </message>
    <message id="action_warn_own">
        <source></source>
        <translation>Este é o próprio Lurkwell.</translation>
    </message>
    <message id="action_warn_own_among">
        <source></source>
        <translation>O próprio Lurkwell está entre eles.</translation>
    </message>
    <message id="action_warn_others" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n deles pertence a outro utilizador.</numerusform>
            <numerusform>%n deles pertencem a outros utilizadores.</numerusform>
        </translation>
    </message>
    <message id="action_owner">
        <source></source>
        <translation>Proprietário:</translation>
    </message>
    <message id="action_command_line">
        <source></source>
        <translation>Linha de comandos:</translation>
    </message>
    <message id="action_unknown">
        <source></source>
        <translation>não se sabe</translation>
    </message>
    <message id="action_column_name">
        <source></source>
        <translation>Nome</translation>
    </message>
    <message id="action_column_pid">
        <source></source>
        <translation>ID</translation>
    </message>
    <message id="action_column_owner">
        <source></source>
        <translation>Proprietário</translation>
    </message>
    <message id="action_column_step">
        <source></source>
        <translation>Próximo passo</translation>
    </message>
    <message id="action_column_command">
        <source></source>
        <translation>Linha de comandos</translation>
    </message>
    <message id="times_once">
        <source></source>
        <translation>uma vez</translation>
    </message>
    <message id="times_twice">
        <source></source>
        <translation>duas vezes</translation>
    </message>
    <message id="times_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n vez</numerusform>
            <numerusform>%n vezes</numerusform>
        </translation>
    </message>
    <message id="action_process">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="action_processes" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n processo (%1)</numerusform>
            <numerusform>%n processos (%1)</numerusform>
        </translation>
    </message>
    <message id="action_failed">
        <source></source>
        <translation>Nada foi feito a %1: %2.</translation>
    </message>
    <message id="action_reason_gone">
        <source></source>
        <translation>já não existe</translation>
    </message>
    <message id="action_reason_protected">
        <source></source>
        <translation>o sistema depende dele</translation>
    </message>
    <message id="action_reason_kernel_thread">
        <source></source>
        <translation>o núcleo não aceita sinais</translation>
    </message>
    <message id="action_reason_refused">
        <source></source>
        <translation>não é permitido sem direitos de administrador</translation>
    </message>
    <message id="action_reason_in_words">
        <source></source>
        <translation>o auxiliar diz “%1”</translation>
    </message>
    <message id="action_reason_no_helper">
        <source></source>
        <translation>o auxiliar não responde</translation>
    </message>
    <message id="action_reason_no_time">
        <source></source>
        <translation>não se tentou, porque o auxiliar demora demasiado</translation>
    </message>
    <message id="action_reason_nobody">
        <source></source>
        <translation>este ambiente de trabalho não tem forma de o fazer</translation>
    </message>
    <message id="action_reason_out_of_reach">
        <source></source>
        <translation>este ambiente de trabalho não deixa nenhum programa fazer isso às janelas de outro</translation>
    </message>
    <message id="action_done_quit" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Foi pedido a %1 que saísse.</numerusform>
            <numerusform>Foi pedido a %1 que saíssem.</numerusform>
        </translation>
    </message>
    <message id="action_done_terminate" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Foi pedido a %1 que terminasse.</numerusform>
            <numerusform>Foi pedido a %1 que terminassem.</numerusform>
        </translation>
    </message>
    <message id="action_done_force" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 foi terminado à força.</numerusform>
            <numerusform>%1 foram terminados à força.</numerusform>
        </translation>
    </message>
    <message id="action_done_halt" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 foi parado.</numerusform>
            <numerusform>%1 foram parados.</numerusform>
        </translation>
    </message>
    <message id="action_done_continue" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 continua.</numerusform>
            <numerusform>%1 continuam.</numerusform>
        </translation>
    </message>
    <message id="action_done_high" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 tem agora uma prioridade alta.</numerusform>
            <numerusform>%1 têm agora uma prioridade alta.</numerusform>
        </translation>
    </message>
    <message id="action_done_normal" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 tem agora a prioridade normal.</numerusform>
            <numerusform>%1 têm agora a prioridade normal.</numerusform>
        </translation>
    </message>
    <message id="action_done_low" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 tem agora uma prioridade baixa.</numerusform>
            <numerusform>%1 têm agora uma prioridade baixa.</numerusform>
        </translation>
    </message>
    <message id="follow_confirmation_title" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Abrir %n janela nova?</numerusform>
            <numerusform>Abrir %n janelas novas?</numerusform>
        </translation>
    </message>
    <message id="follow_confirmation_text">
        <source></source>
        <translation>Será aberta uma janela para cada processo selecionado.</translation>
    </message>
    <message id="follow_confirmation_open">
        <source></source>
        <translation>&amp;Abrir</translation>
    </message>
    <message id="follow_limit_title" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Foi aberta %n de %1 janelas.</numerusform>
            <numerusform>Foram abertas %n de %1 janelas.</numerusform>
        </translation>
    </message>
    <message id="follow_limit_text">
        <source></source>
        <translation>Não podem estar abertas ao mesmo tempo mais janelas que sigam processos. Feche primeiro algumas.</translation>
    </message>
    <message id="darwin_tools_not_found">
        <source></source>
        <translation>O Lurkwell não pode funcionar sem as ferramentas do sistema /bin/ps, /bin/kill e /usr/bin/renice, e pelo menos uma delas não foi encontrada.</translation>
    </message>
    <message id="no_quartz_extreme">
        <source></source>
        <translation>Este ecrã não tem aceleração gráfica. A vista animada vai ser lenta.</translation>
    </message>
    <message id="about_title">
        <source></source>
        <translation>Acerca do Lurkwell</translation>
    </message>
    <message id="about_name">
        <source></source>
        <translation>Lurkwell</translation>
    </message>
    <message id="about_version">
        <source></source>
        <translation>Versão %1</translation>
    </message>
    <message id="about_text">
        <source></source>
        <translation>Um monitor de processos interativo
Software livre com a licença MIT</translation>
    </message>
    <message id="toolbar_system_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="toolbar_system_cpu_tip">
        <source></source>
        <translation>Quão ocupados estão os processadores da máquina.</translation>
    </message>
    <message id="toolbar_system_cpu_figure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>CPU: %1 % de %n processador</numerusform>
            <numerusform>CPU: %1 % de %n processadores</numerusform>
        </translation>
    </message>
    <message id="toolbar_system_ram">
        <source></source>
        <translation>Memória</translation>
    </message>
    <message id="toolbar_system_ram_tip">
        <source></source>
        <translation>Como é utilizada a memória da máquina.</translation>
    </message>
    <message id="toolbar_system_ram_figures">
        <source></source>
        <translation>Memória: %1 de %2 em uso
Fixa: %3
Inativa: %4
Livre: %5</translation>
    </message>
    <message id="toolbar_vm_thrashing">
        <source></source>
        <translation>Swap</translation>
    </message>
    <message id="toolbar_vm_thrashing_tip">
        <source></source>
        <translation>Verde enquanto não é enviada memória para a swap, amarelo enquanto é enviada alguma, vermelho intermitente enquanto é tanta que a máquina fica mais lenta.</translation>
    </message>
    <message id="toolbar_vm_thrashing_figure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n página enviada para a swap desde a última atualização</numerusform>
            <numerusform>%n páginas enviadas para a swap desde a última atualização</numerusform>
        </translation>
    </message>
    <message id="toolbar_usage_history">
        <source></source>
        <translation>Histórico do CPU</translation>
    </message>
    <message id="toolbar_usage_history_tip">
        <source></source>
        <translation>Abre uma janela com a utilização do CPU ao longo do tempo para cada processo selecionado.</translation>
    </message>
    <message id="toolbar_log">
        <source></source>
        <translation>Registo</translation>
    </message>
    <message id="toolbar_log_tip">
        <source></source>
        <translation>Abre uma janela que regista valores de cada processo selecionado.</translation>
    </message>
    <message id="toolbar_bring_to_front">
        <source></source>
        <translation>Para a frente</translation>
    </message>
    <message id="toolbar_bring_to_front_tip">
        <source></source>
        <translation>Traz para a frente as janelas das aplicações selecionadas.</translation>
    </message>
    <message id="toolbar_kill">
        <source></source>
        <translation>Matar</translation>
    </message>
    <message id="toolbar_kill_tip">
        <source></source>
        <translation>Pede aos processos selecionados que terminem; cada nova vez sobre o mesmo processo é mais drástica.</translation>
    </message>
    <message id="toolbar_hide_process">
        <source></source>
        <translation>Ocultar</translation>
    </message>
    <message id="toolbar_hide_process_tip">
        <source></source>
        <translation>Oculta as janelas das aplicações selecionadas.</translation>
    </message>
    <message id="toolbar_reveal">
        <source></source>
        <translation>Ver ficheiro</translation>
    </message>
    <message id="toolbar_reveal_tip">
        <source></source>
        <translation>Mostra as aplicações selecionadas no gestor de ficheiros.</translation>
    </message>
    <message id="toolbar_high">
        <source></source>
        <translation>Alta</translation>
    </message>
    <message id="toolbar_high_tip">
        <source></source>
        <translation>Dá uma prioridade alta aos processos selecionados (nice -19).</translation>
    </message>
    <message id="toolbar_medium">
        <source></source>
        <translation>Normal</translation>
    </message>
    <message id="toolbar_medium_tip">
        <source></source>
        <translation>Dá a prioridade normal aos processos selecionados (nice 0).</translation>
    </message>
    <message id="toolbar_low">
        <source></source>
        <translation>Baixa</translation>
    </message>
    <message id="toolbar_low_tip">
        <source></source>
        <translation>Dá a prioridade mais baixa aos processos selecionados, de modo que cedem a vez a todos os outros.</translation>
    </message>
    <message id="toolbar_halt">
        <source></source>
        <translation>Parar</translation>
    </message>
    <message id="toolbar_halt_tip">
        <source></source>
        <translation>Faz parar os processos selecionados até se mandarem continuar.</translation>
    </message>
    <message id="toolbar_cont">
        <source></source>
        <translation>Continuar</translation>
    </message>
    <message id="toolbar_cont_tip">
        <source></source>
        <translation>Deixa continuar os processos selecionados que estavam parados.</translation>
    </message>
    <message id="menu_process_kill_with_children">
        <source></source>
        <translation>Encerrar ou matar com os &amp;filhos</translation>
    </message>
    <message id="menu_process_signal">
        <source></source>
        <translation>Enviar &amp;sinal…</translation>
    </message>
    <message id="menu_process_scheduling">
        <source></source>
        <translation>Prioridade e p&amp;rocessadores…</translation>
    </message>
    <message id="menu_process_show_executable">
        <source></source>
        <translation>Mostrar o ficheiro do pro&amp;grama</translation>
    </message>
    <message id="menu_process_search_web">
        <source></source>
        <translation>Pesquisar na &amp;web</translation>
    </message>
    <message id="menu_edit_copy_csv">
        <source></source>
        <translation>Copiar como CS&amp;V</translation>
    </message>
    <message id="menu_edit_copy_json">
        <source></source>
        <translation>Copiar como &amp;JSON</translation>
    </message>
    <message id="help_menu_process_kill_with_children">
        <source></source>
        <translation>encerrar ou matar os processos selecionados e tudo o que iniciaram</translation>
    </message>
    <message id="help_menu_process_signal">
        <source></source>
        <translation>enviar um sinal qualquer</translation>
    </message>
    <message id="help_menu_process_scheduling">
        <source></source>
        <translation>valor nice, escalonamento, prioridade do disco, processadores</translation>
    </message>
    <message id="help_menu_process_show_executable">
        <source></source>
        <translation>mostrar o ficheiro do programa no gestor de ficheiros</translation>
    </message>
    <message id="main_window_no_executable">
        <source></source>
        <translation>Não se sabe que programas são, ou não é permitido sabê-lo.</translation>
    </message>
    <message id="main_window_many_executables">
        <source></source>
        <translation>São mais de %1 programas; nada foi aberto.</translation>
    </message>
    <message id="main_window_no_search">
        <source></source>
        <translation>Este ambiente de trabalho não abre “%1”.</translation>
    </message>
    <message id="action_ask_signal_one">
        <source></source>
        <translation>Enviar um sinal ao processo %1 (%2)?</translation>
    </message>
    <message id="action_ask_signal_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Enviar um sinal a %n processo?</numerusform>
            <numerusform>Enviar um sinal a %n processos?</numerusform>
        </translation>
    </message>
    <message id="action_ask_scheduling_one">
        <source></source>
        <translation>Prioridade e processadores do processo %1 (%2)</translation>
    </message>
    <message id="action_ask_scheduling_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Prioridade e processadores de %n processo</numerusform>
            <numerusform>Prioridade e processadores de %n processos</numerusform>
        </translation>
    </message>
    <message id="action_button_signal">
        <source></source>
        <translation>&amp;Enviar</translation>
    </message>
    <message id="action_button_scheduling">
        <source></source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message id="action_next_signal">
        <source></source>
        <translation>Um programa pode capturar um sinal e fazer outra coisa em vez disso, exceto com KILL e STOP. A lista diz o que acontece nos outros casos.</translation>
    </message>
    <message id="action_next_scheduling">
        <source></source>
        <translation>Vale para todas as threads de uma vez, até o processo terminar. Para passar à frente dos outros são precisos direitos de administrador.</translation>
    </message>
    <message id="action_reason_impossible">
        <source></source>
        <translation>esta máquina não tem esse processador ou essa prioridade</translation>
    </message>
    <message id="action_done_signal" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Foi enviado %2 a %1.</numerusform>
            <numerusform>Foi enviado %2 a %1.</numerusform>
        </translation>
    </message>
    <message id="action_done_nice" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 tem agora o valor nice %2.</numerusform>
            <numerusform>%1 têm agora o valor nice %2.</numerusform>
        </translation>
    </message>
    <message id="action_done_policy" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 é agora escalonado como %2.</numerusform>
            <numerusform>%1 são agora escalonados como %2.</numerusform>
        </translation>
    </message>
    <message id="action_done_io_priority" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 tem agora a prioridade do disco %2.</numerusform>
            <numerusform>%1 têm agora a prioridade do disco %2.</numerusform>
        </translation>
    </message>
    <message id="action_done_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 corre agora nos processadores %2.</numerusform>
            <numerusform>%1 correm agora nos processadores %2.</numerusform>
        </translation>
    </message>
    <message id="scheduling_unchanged">
        <source></source>
        <translation>como está</translation>
    </message>
    <message id="scheduling_nice">
        <source></source>
        <translation>Valor &amp;nice:</translation>
    </message>
    <message id="scheduling_nice_tip">
        <source></source>
        <translation>De -20, que vem antes de todos os outros, a 19, que vem depois deles</translation>
    </message>
    <message id="scheduling_policy">
        <source></source>
        <translation>Escalonar como:</translation>
    </message>
    <message id="scheduling_policy_tip">
        <source></source>
        <translation>Em lote serve para o que calcula durante muito tempo; inativa, para o que pode esperar por tudo o resto. O tempo real vem antes de tudo o que não o é, e pode paralisar a máquina.</translation>
    </message>
    <message id="scheduling_policy_normal">
        <source></source>
        <translation>Normal</translation>
    </message>
    <message id="scheduling_policy_batch">
        <source></source>
        <translation>Em lote</translation>
    </message>
    <message id="scheduling_policy_idle">
        <source></source>
        <translation>Inativa</translation>
    </message>
    <message id="scheduling_policy_round_robin">
        <source></source>
        <translation>Tempo real, à vez</translation>
    </message>
    <message id="scheduling_policy_fifo">
        <source></source>
        <translation>Tempo real, um a seguir ao outro</translation>
    </message>
    <message id="scheduling_priority">
        <source></source>
        <translation>Prioridade:</translation>
    </message>
    <message id="scheduling_io_class">
        <source></source>
        <translation>Prioridade do &amp;disco:</translation>
    </message>
    <message id="scheduling_io_tip">
        <source></source>
        <translation>Conta se o escalonador do disco a conhecer. 0 vem antes de 7.</translation>
    </message>
    <message id="scheduling_io_none">
        <source></source>
        <translation>Como diz o valor nice</translation>
    </message>
    <message id="scheduling_io_best_effort">
        <source></source>
        <translation>Melhor esforço</translation>
    </message>
    <message id="scheduling_io_idle">
        <source></source>
        <translation>Inativa</translation>
    </message>
    <message id="scheduling_io_real_time">
        <source></source>
        <translation>Tempo real</translation>
    </message>
    <message id="scheduling_io_level">
        <source></source>
        <translation>Nível:</translation>
    </message>
    <message id="scheduling_processors">
        <source></source>
        <translation>&amp;Processadores (de %1):</translation>
    </message>
    <message id="scheduling_processors_tip">
        <source></source>
        <translation>Números e intervalos, por exemplo 0-3,6; esta máquina tem %1</translation>
    </message>
    <message id="scheduling_no_processors">
        <source></source>
        <translation>Indique processadores entre %1, por exemplo 0 ou 0-1,3.</translation>
    </message>
    <message id="signal_list">
        <source></source>
        <translation>Sinais</translation>
    </message>
    <message id="signal_column_name">
        <source></source>
        <translation>Sinal</translation>
    </message>
    <message id="signal_column_number">
        <source></source>
        <translation>N.º</translation>
    </message>
    <message id="signal_column_effect">
        <source></source>
        <translation>Para que serve</translation>
    </message>
    <message id="signal_realtime">
        <source></source>
        <translation>Para uso do próprio programa; senão, termina-o</translation>
    </message>
    <message id="signal_hup">
        <source></source>
        <translation>O seu terminal desapareceu; os serviços costumam reler a configuração</translation>
    </message>
    <message id="signal_int">
        <source></source>
        <translation>Interrupção, como Ctrl+C num terminal; termina-o</translation>
    </message>
    <message id="signal_quit">
        <source></source>
        <translation>Como Ctrl+\ num terminal; termina-o e guarda a memória</translation>
    </message>
    <message id="signal_ill">
        <source></source>
        <translation>Chegou a uma instrução proibida; termina-o e guarda a memória</translation>
    </message>
    <message id="signal_trap">
        <source></source>
        <translation>Dos depuradores; termina-o e guarda a memória</translation>
    </message>
    <message id="signal_abrt">
        <source></source>
        <translation>Desistiu; termina-o e guarda a memória</translation>
    </message>
    <message id="signal_bus">
        <source></source>
        <translation>Acedeu a memória que não existe; termina-o e guarda a memória</translation>
    </message>
    <message id="signal_fpe">
        <source></source>
        <translation>Calculou algo impossível; termina-o e guarda a memória</translation>
    </message>
    <message id="signal_kill">
        <source></source>
        <translation>Termina-o de imediato; não pode guardar nada</translation>
    </message>
    <message id="signal_usr1">
        <source></source>
        <translation>Para uso do próprio programa; senão, termina-o</translation>
    </message>
    <message id="signal_segv">
        <source></source>
        <translation>Acedeu a memória alheia; termina-o e guarda a memória</translation>
    </message>
    <message id="signal_usr2">
        <source></source>
        <translation>Para uso do próprio programa; senão, termina-o</translation>
    </message>
    <message id="signal_pipe">
        <source></source>
        <translation>Já ninguém lê o que escreve; termina-o</translation>
    </message>
    <message id="signal_alrm">
        <source></source>
        <translation>O seu despertador tocou; termina-o</translation>
    </message>
    <message id="signal_term">
        <source></source>
        <translation>Pede-lhe que termine</translation>
    </message>
    <message id="signal_stkflt">
        <source></source>
        <translation>Não usado; termina-o</translation>
    </message>
    <message id="signal_chld">
        <source></source>
        <translation>Um filho terminou ou parou; não faz nada</translation>
    </message>
    <message id="signal_cont">
        <source></source>
        <translation>Continua depois de uma paragem</translation>
    </message>
    <message id="signal_stop">
        <source></source>
        <translation>Fica parado até se mandar continuar; não pode ser capturado</translation>
    </message>
    <message id="signal_tstp">
        <source></source>
        <translation>Paragem, como Ctrl+Z num terminal</translation>
    </message>
    <message id="signal_ttin">
        <source></source>
        <translation>Lê um terminal em segundo plano; fá-lo parar</translation>
    </message>
    <message id="signal_ttou">
        <source></source>
        <translation>Escreve num terminal em segundo plano; fá-lo parar</translation>
    </message>
    <message id="signal_urg">
        <source></source>
        <translation>Chegaram dados urgentes; não faz nada</translation>
    </message>
    <message id="signal_xcpu">
        <source></source>
        <translation>Esgotou o seu tempo de processador; termina-o e guarda a memória</translation>
    </message>
    <message id="signal_xfsz">
        <source></source>
        <translation>Um ficheiro ficou demasiado grande; termina-o e guarda a memória</translation>
    </message>
    <message id="signal_vtalrm">
        <source></source>
        <translation>O seu relógio de tempo de processador tocou; termina-o</translation>
    </message>
    <message id="signal_prof">
        <source></source>
        <translation>O relógio de um perfil tocou; termina-o</translation>
    </message>
    <message id="signal_winch">
        <source></source>
        <translation>A sua janela tem outro tamanho; não faz nada</translation>
    </message>
    <message id="signal_poll">
        <source></source>
        <translation>Um ficheiro pode ser lido ou escrito; termina-o</translation>
    </message>
    <message id="signal_pwr">
        <source></source>
        <translation>A energia falha; termina-o</translation>
    </message>
    <message id="signal_sys">
        <source></source>
        <translation>Fez uma chamada ao sistema proibida; termina-o e guarda a memória</translation>
    </message>
    <message id="toolbar_select_children">
        <source></source>
        <translation>Filhos</translation>
    </message>
    <message id="toolbar_select_children_tip">
        <source></source>
        <translation>Seleciona os processos que os selecionados iniciaram, em vez destes.</translation>
    </message>
    <message id="toolbar_prefs">
        <source></source>
        <translation>Preferências</translation>
    </message>
    <message id="toolbar_prefs_tip">
        <source></source>
        <translation>Abre as preferências.</translation>
    </message>
    <message id="toolbar_customise">
        <source></source>
        <translation>Personalizar</translation>
    </message>
    <message id="toolbar_customise_tip">
        <source></source>
        <translation>Escolhe o que a barra de ferramentas contém e por que ordem.</translation>
    </message>
    <message id="toolbar_separator">
        <source></source>
        <translation>Separador</translation>
    </message>
    <message id="toolbar_separator_tip">
        <source></source>
        <translation>Uma linha entre grupos de elementos.</translation>
    </message>
    <message id="toolbar_space">
        <source></source>
        <translation>Espaço</translation>
    </message>
    <message id="toolbar_space_tip">
        <source></source>
        <translation>Algum espaço entre elementos.</translation>
    </message>
    <message id="toolbar_flexible_space">
        <source></source>
        <translation>Espaço flexível</translation>
    </message>
    <message id="toolbar_flexible_space_tip">
        <source></source>
        <translation>Leva o que se segue para o fim da barra de ferramentas.</translation>
    </message>
    <message id="toolbar_title">
        <source></source>
        <translation>Barra de ferramentas</translation>
    </message>
    <message id="toolbar_customise_title">
        <source></source>
        <translation>Personalizar a barra de ferramentas</translation>
    </message>
    <message id="toolbar_customise_hint">
        <source></source>
        <translation>Arraste elementos para a barra de ferramentas, ou dela para a lista de elementos disponíveis. Também podem ser largados na barra da janela.</translation>
    </message>
    <message id="toolbar_customise_available">
        <source></source>
        <translation>Ele&amp;mentos disponíveis:</translation>
    </message>
    <message id="toolbar_customise_current">
        <source></source>
        <translation>Na &amp;barra:</translation>
    </message>
    <message id="toolbar_customise_add">
        <source></source>
        <translation>&amp;Adicionar</translation>
    </message>
    <message id="toolbar_customise_remove">
        <source></source>
        <translation>&amp;Remover</translation>
    </message>
    <message id="toolbar_customise_earlier">
        <source></source>
        <translation>&amp;Subir</translation>
    </message>
    <message id="toolbar_customise_later">
        <source></source>
        <translation>&amp;Descer</translation>
    </message>
    <message id="toolbar_customise_default_set">
        <source></source>
        <translation>Conjunto predefinido:</translation>
    </message>
    <message id="toolbar_customise_default_set_tip">
        <source></source>
        <translation>Pode ser arrastado inteiro para a barra de ferramentas.</translation>
    </message>
    <message id="toolbar_customise_use_default">
        <source></source>
        <translation>&amp;Usar o predefinido</translation>
    </message>
    <message id="toolbar_customise_mode">
        <source></source>
        <translation>M&amp;ostrar:</translation>
    </message>
    <message id="toolbar_customise_done">
        <source></source>
        <translation>&amp;Concluído</translation>
    </message>
    <message id="toolbar_mode_both">
        <source></source>
        <translation>Ícones e texto</translation>
    </message>
    <message id="toolbar_mode_icon">
        <source></source>
        <translation>Só ícones</translation>
    </message>
    <message id="toolbar_mode_text">
        <source></source>
        <translation>Só texto</translation>
    </message>
    <message id="logging_title">
        <source></source>
        <translation>Registo de %1 pid:%2</translation>
    </message>
    <message id="logging_title_file">
        <source></source>
        <translation>ficheiro: %1</translation>
    </message>
    <message id="logging_table">
        <source></source>
        <translation>Registo de um processo</translation>
    </message>
    <message id="logging_column_time">
        <source></source>
        <translation>Hora</translation>
    </message>
    <message id="logging_column_time_tip">
        <source></source>
        <translation>Quando a linha foi escrita.</translation>
    </message>
    <message id="logging_column_active">
        <source></source>
        <translation>Tempo de CPU</translation>
    </message>
    <message id="logging_column_active_tip">
        <source></source>
        <translation>Tempo de CPU utilizado desde que o processo foi iniciado, em segundos.</translation>
    </message>
    <message id="logging_column_active_change">
        <source></source>
        <translation>∆ tempo de CPU</translation>
    </message>
    <message id="logging_column_active_change_tip">
        <source></source>
        <translation>Tempo de CPU utilizado desde a linha anterior, em segundos.</translation>
    </message>
    <message id="logging_column_real">
        <source></source>
        <translation>Residente</translation>
    </message>
    <message id="logging_column_real_tip">
        <source></source>
        <translation>Memória que o processo tem na memória da máquina.</translation>
    </message>
    <message id="logging_column_real_change">
        <source></source>
        <translation>∆ residente</translation>
    </message>
    <message id="logging_column_real_change_tip">
        <source></source>
        <translation>Alteração da memória residente desde a linha anterior.</translation>
    </message>
    <message id="logging_column_virtual">
        <source></source>
        <translation>Virtual</translation>
    </message>
    <message id="logging_column_virtual_tip">
        <source></source>
        <translation>Espaço de endereços do processo.</translation>
    </message>
    <message id="logging_column_virtual_change">
        <source></source>
        <translation>∆ virtual</translation>
    </message>
    <message id="logging_column_virtual_change_tip">
        <source></source>
        <translation>Alteração do espaço de endereços desde a linha anterior.</translation>
    </message>
    <message id="logging_note_ended">
        <source></source>
        <translation>O processo terminou.</translation>
    </message>
    <message id="logging_note_ended_remembered">
        <source></source>
        <translation>O processo terminou. A janela volta quando for iniciado um processo com esse nome.</translation>
    </message>
    <message id="logging_note_not_created">
        <source></source>
        <translation>Não há ficheiro de registo: %1. As linhas só são mostradas aqui.</translation>
    </message>
    <message id="logging_note_not_written">
        <source></source>
        <translation>Faltam linhas no ficheiro de registo: %1.</translation>
    </message>
    <message id="logging_show_file">
        <source></source>
        <translation>Mostrar o &amp;ficheiro</translation>
    </message>
    <message id="logging_show_file_none">
        <source></source>
        <translation>Nada é escrito num ficheiro. As preferências podem fazer com que os novos registos sejam escritos num.</translation>
    </message>
    <message id="logging_save_as">
        <source></source>
        <translation>&amp;Guardar como…</translation>
    </message>
    <message id="record_title">
        <source></source>
        <translation>Gravar processos</translation>
    </message>
    <message id="record_filter">
        <source></source>
        <translation>Gravações (*.lwr);;Todos os ficheiros (*)</translation>
    </message>
    <message id="record_failed">
        <source></source>
        <translation>Os processos não são gravados.</translation>
    </message>
    <message id="record_behind">
        <source></source>
        <translation>O disco ainda não recebeu tudo o que foi gravado.</translation>
    </message>
    <message id="record_behind_message">
        <source></source>
        <translation>O resto é escrito enquanto o Lurkwell estiver em execução. Até lá não se pode voltar a gravar no ficheiro.</translation>
    </message>
    <message id="record_status">
        <source></source>
        <translation>A gravar em %1</translation>
    </message>
    <message id="record_trouble">
        <source></source>
        <translation>Não está a gravar em %1: %2</translation>
    </message>
    <message id="replay_open_title">
        <source></source>
        <translation>Abrir gravação</translation>
    </message>
    <message id="replay_failed">
        <source></source>
        <translation>A gravação não pode ser mostrada.</translation>
    </message>
    <message id="replay_title">
        <source></source>
        <translation>%1 – %2</translation>
    </message>
    <message id="replay_bar">
        <source></source>
        <translation>Linha temporal</translation>
    </message>
    <message id="replay_back">
        <source></source>
        <translation>Uma atualização atrás</translation>
    </message>
    <message id="replay_play">
        <source></source>
        <translation>Reproduzir</translation>
    </message>
    <message id="replay_forth">
        <source></source>
        <translation>Uma atualização à frente</translation>
    </message>
    <message id="replay_peak">
        <source></source>
        <translation>Próximo pico de utilização do processador</translation>
    </message>
    <message id="replay_speed">
        <source></source>
        <translation>Velocidade</translation>
    </message>
    <message id="replay_moment">
        <source></source>
        <translation>Ir para um momento</translation>
    </message>
    <message id="replay_moment_tip">
        <source></source>
        <translation>Ir para um momento (%1): uma hora como 03:12, uma data com hora, ou -2h, contado a partir do fim</translation>
    </message>
    <message id="replay_no_peak">
        <source></source>
        <translation>Não há nenhum pico posterior de utilização do processador.</translation>
    </message>
    <message id="replay_no_actions">
        <source></source>
        <translation>Isto é uma gravação: nada se pode fazer aos seus processos.</translation>
    </message>
    <message id="logging_save_title">
        <source></source>
        <translation>Guardar o registo</translation>
    </message>
    <message id="logging_save_filter">
        <source></source>
        <translation>Tabelas (*.tsv);;Todos os ficheiros (*)</translation>
    </message>
    <message id="logging_menu_title">
        <source></source>
        <translation>Registo de %1, pid %2</translation>
    </message>
    <message id="logging_identity">
        <source></source>
        <translation>Proprietário %1: %2</translation>
    </message>
    <message id="remembered_owner">
        <source></source>
        <translation>Proprietário</translation>
    </message>
    <message id="logging_copy">
        <source></source>
        <translation>&amp;Copiar</translation>
    </message>
    <message id="logging_select_all">
        <source></source>
        <translation>Selecionar &amp;tudo</translation>
    </message>
    <message id="logging_note_not_saved">
        <source></source>
        <translation>O registo não foi guardado: %1.</translation>
    </message>
    <message id="logging_note_saved">
        <source></source>
        <translation>Guardado como %1.</translation>
    </message>
    <message id="logging_note_not_shown">
        <source></source>
        <translation>Não há nenhum gestor de ficheiros para mostrar o ficheiro. É %1.</translation>
    </message>
    <message id="logging_note_follows">
        <source></source>
        <translation>O processo %1 terminou. A partir de “pid %2”, as linhas são as do processo %2.</translation>
    </message>
    <message id="logging_row_of">
        <source></source>
        <translation>pid %1</translation>
    </message>
    <message id="history_title">
        <source></source>
        <translation>Histórico do CPU de %1, pid %2</translation>
    </message>
    <message id="history_identity">
        <source></source>
        <translation>pid %1</translation>
    </message>
    <message id="history_accessible">
        <source></source>
        <translation>Histórico do CPU de %1, processo %2 de %3</translation>
    </message>
    <message id="history_now">
        <source></source>
        <translation>%1 % agora, entre %3 % e %4 % na janela; a borda superior é %2 %</translation>
    </message>
    <message id="history_tip">
        <source></source>
        <translation>&lt;b&gt;%1&lt;/b&gt;&lt;br&gt;pid %2, proprietário %3&lt;br&gt;%4</translation>
    </message>
    <message id="history_not_above">
        <source></source>
        <translation>Este ambiente de trabalho não a mantém por cima das outras janelas; uma regra de janelas dele pode fazê-lo.</translation>
    </message>
    <message id="history_menu_relative">
        <source></source>
        <translation>&amp;Escalar ao máximo recente</translation>
    </message>
    <message id="history_menu_descendants">
        <source></source>
        <translation>Contar também os &amp;descendentes</translation>
    </message>
    <message id="history_menu_close">
        <source></source>
        <translation>&amp;Fechar e esquecer</translation>
    </message>
    <message id="details_title">
        <source></source>
        <translation>%1 (%2): detalhes</translation>
    </message>
    <message id="details_title_ended">
        <source></source>
        <translation>%1 (%2), terminado: detalhes</translation>
    </message>
    <message id="details_heading">
        <source></source>
        <translation>%1 (processo %2)</translation>
    </message>
    <message id="details_heading_ended">
        <source></source>
        <translation>%1 (processo %2), às %3, terminado</translation>
    </message>
    <message id="details_ended">
        <source></source>
        <translation>Terminado; dados das %1. O que foi lido por último fica como está.</translation>
    </message>
    <message id="details_ended_before">
        <source></source>
        <translation>O processo terminou antes de isto ser lido.</translation>
    </message>
    <message id="details_actions">
        <source></source>
        <translation>&amp;Ações</translation>
    </message>
    <message id="details_pages">
        <source></source>
        <translation>Páginas</translation>
    </message>
    <message id="details_filter">
        <source></source>
        <translation>Mostrar as linhas que contêm…</translation>
    </message>
    <message id="details_reading">
        <source></source>
        <translation>A ler…</translation>
    </message>
    <message id="details_waiting">
        <source></source>
        <translation>O sistema ainda não responde; continua-se à espera. A memória do processo pode estar bloqueada, ou num sistema de ficheiros que não responde.</translation>
    </message>
    <message id="details_too_many_hang">
        <source></source>
        <translation>Demasiadas consultas anteriores ainda não tiveram resposta do sistema. Esta será feita assim que uma delas a tiver.</translation>
    </message>
    <message id="details_refused">
        <source></source>
        <translation>Não permitido: este processo pertence a outro utilizador. Só o seu proprietário e o root podem ler isto.</translation>
    </message>
    <message id="details_refused_owner">
        <source></source>
        <translation>Não permitido: este processo pertence a %1. Só o seu proprietário e o root podem ler isto.</translation>
    </message>
    <message id="details_kept_secret">
        <source></source>
        <translation>Não permitido: o processo esconde isto dos outros programas, também dos do seu próprio utilizador.</translation>
    </message>
    <message id="details_none">
        <source></source>
        <translation>Este sistema não tem nada do género para este processo.</translation>
    </message>
    <message id="details_nothing">
        <source></source>
        <translation>Não há nenhum.</translation>
    </message>
    <message id="details_failed">
        <source></source>
        <translation>Falta alguma coisa ao sistema neste momento. Será tentado de novo.</translation>
    </message>
    <message id="details_first_ones">
        <source></source>
        <translation>%1; só são mostradas as primeiras %2 linhas</translation>
    </message>
    <message id="details_unlimited">
        <source></source>
        <translation>sem limite</translation>
    </message>
    <message id="details_parent">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="details_overview">
        <source></source>
        <translation>Resumo</translation>
    </message>
    <message id="details_overview_figure">
        <source></source>
        <translation>Dado</translation>
    </message>
    <message id="details_overview_value">
        <source></source>
        <translation>Valor</translation>
    </message>
    <message id="details_graph_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="details_graph_memory">
        <source></source>
        <translation>Memória</translation>
    </message>
    <message id="details_graph_disk">
        <source></source>
        <translation>Disco</translation>
    </message>
    <message id="details_graph_network">
        <source></source>
        <translation>Rede (TCP)</translation>
    </message>
    <message id="details_graph_resident">
        <source></source>
        <translation>residente</translation>
    </message>
    <message id="details_graph_swap">
        <source></source>
        <translation>swap</translation>
    </message>
    <message id="details_graph_read">
        <source></source>
        <translation>lido</translation>
    </message>
    <message id="details_graph_written">
        <source></source>
        <translation>escrito</translation>
    </message>
    <message id="details_graph_received">
        <source></source>
        <translation>recebido</translation>
    </message>
    <message id="details_graph_sent">
        <source></source>
        <translation>enviado</translation>
    </message>
    <message id="details_threads">
        <source></source>
        <translation>Threads</translation>
    </message>
    <message id="details_threads_count">
        <source></source>
        <translation>Threads: %1</translation>
    </message>
    <message id="details_thread_id">
        <source></source>
        <translation>Thread</translation>
    </message>
    <message id="details_thread_name">
        <source></source>
        <translation>Nome</translation>
    </message>
    <message id="details_thread_share">
        <source></source>
        <translation>CPU %</translation>
    </message>
    <message id="details_thread_time">
        <source></source>
        <translation>Tempo de CPU</translation>
    </message>
    <message id="details_thread_state">
        <source></source>
        <translation>Estado</translation>
    </message>
    <message id="details_thread_processor">
        <source></source>
        <translation>Processador</translation>
    </message>
    <message id="details_thread_nice">
        <source></source>
        <translation>Nice</translation>
    </message>
    <message id="details_descriptors">
        <source></source>
        <translation>Ficheiros e sockets</translation>
    </message>
    <message id="details_descriptors_count">
        <source></source>
        <translation>Ficheiros, sockets e outros abertos: %1</translation>
    </message>
    <message id="details_descriptor">
        <source></source>
        <translation>Número</translation>
    </message>
    <message id="details_descriptor_kind">
        <source></source>
        <translation>Tipo</translation>
    </message>
    <message id="details_descriptor_target">
        <source></source>
        <translation>Caminho ou endereços</translation>
    </message>
    <message id="details_descriptor_position">
        <source></source>
        <translation>Posição</translation>
    </message>
    <message id="details_descriptor_flags">
        <source></source>
        <translation>Aberto para</translation>
    </message>
    <message id="details_mappings">
        <source></source>
        <translation>Memória</translation>
    </message>
    <message id="details_mappings_count">
        <source></source>
        <translation>Mapeamentos: %1; tamanho %2, residente %3, proporcional %4</translation>
    </message>
    <message id="details_mapping_range">
        <source></source>
        <translation>Endereços</translation>
    </message>
    <message id="details_mapping_size">
        <source></source>
        <translation>Tamanho</translation>
    </message>
    <message id="details_mapping_resident">
        <source></source>
        <translation>Residente</translation>
    </message>
    <message id="details_mapping_proportional">
        <source></source>
        <translation>Proporcional</translation>
    </message>
    <message id="details_mapping_swapped">
        <source></source>
        <translation>Swap</translation>
    </message>
    <message id="details_mapping_permissions">
        <source></source>
        <translation>Acesso</translation>
    </message>
    <message id="details_mapping_file">
        <source></source>
        <translation>Ficheiro</translation>
    </message>
    <message id="details_environment">
        <source></source>
        <translation>Ambiente</translation>
    </message>
    <message id="details_environment_count">
        <source></source>
        <translation>Variáveis quando o programa foi iniciado: %1</translation>
    </message>
    <message id="details_variable_name">
        <source></source>
        <translation>Nome</translation>
    </message>
    <message id="details_variable_value">
        <source></source>
        <translation>Valor</translation>
    </message>
    <message id="details_limits">
        <source></source>
        <translation>Limites</translation>
    </message>
    <message id="details_limits_count">
        <source></source>
        <translation>Limites do processo: %1. Ele próprio pode aumentar os seus até ao máximo.</translation>
    </message>
    <message id="details_limit_name">
        <source></source>
        <translation>Limite</translation>
    </message>
    <message id="details_limit_soft">
        <source></source>
        <translation>Agora</translation>
    </message>
    <message id="details_limit_hard">
        <source></source>
        <translation>Máximo</translation>
    </message>
    <message id="details_limit_unit">
        <source></source>
        <translation>Unidade</translation>
    </message>
    <message id="details_group">
        <source></source>
        <translation>Grupo de controlo</translation>
    </message>
    <message id="details_group_count">
        <source></source>
        <translation>Valores: %1. São os de todos os processos do grupo; os grupos acima dele são indicados onde limitam alguma coisa.</translation>
    </message>
    <message id="details_group_figure">
        <source></source>
        <translation>Dado</translation>
    </message>
    <message id="details_group_in_use">
        <source></source>
        <translation>Em uso</translation>
    </message>
    <message id="details_group_limit">
        <source></source>
        <translation>Limite</translation>
    </message>
    <message id="details_group_path">
        <source></source>
        <translation>Grupo</translation>
    </message>
    <message id="details_group_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n processador</numerusform>
            <numerusform>%n processadores</numerusform>
        </translation>
    </message>
    <message id="details_group_memory">
        <source></source>
        <translation>Memória</translation>
    </message>
    <message id="details_group_memory.high">
        <source></source>
        <translation>Memória antes de abrandar</translation>
    </message>
    <message id="details_group_memory.peak">
        <source></source>
        <translation>Máximo de memória até agora</translation>
    </message>
    <message id="details_group_memory.swap">
        <source></source>
        <translation>Swap</translation>
    </message>
    <message id="details_group_pids">
        <source></source>
        <translation>Processos e threads</translation>
    </message>
    <message id="details_group_cpu.max">
        <source></source>
        <translation>CPU no máximo</translation>
    </message>
    <message id="details_group_cpu.weight">
        <source></source>
        <translation>Peso do CPU</translation>
    </message>
    <message id="details_group_cpu.usage">
        <source></source>
        <translation>Tempo de CPU</translation>
    </message>
    <message id="details_group_cpu.throttled">
        <source></source>
        <translation>Tempo sem CPU, pelo seu limite</translation>
    </message>
    <message id="details_group_memory.high_events">
        <source></source>
        <translation>Vezes que abrandou pela memória</translation>
    </message>
    <message id="details_group_memory.oom_kills">
        <source></source>
        <translation>Processos mortos por falta de memória</translation>
    </message>
    <message id="remembered_title">
        <source></source>
        <translation>Lurkwell: janelas recordadas</translation>
    </message>
    <message id="remembered_program">
        <source></source>
        <translation>Programa</translation>
    </message>
    <message id="remembered_window">
        <source></source>
        <translation>Janela</translation>
    </message>
    <message id="remembered_process">
        <source></source>
        <translation>Processo</translation>
    </message>
    <message id="remembered_log">
        <source></source>
        <translation>Registo</translation>
    </message>
    <message id="remembered_history">
        <source></source>
        <translation>Histórico do CPU</translation>
    </message>
    <message id="remembered_follows">
        <source></source>
        <translation>pid %1</translation>
    </message>
    <message id="remembered_waits">
        <source></source>
        <translation>espera que o programa seja iniciado</translation>
    </message>
    <message id="remembered_explanation">
        <source></source>
        <translation>Estas janelas voltam quando o seu programa é iniciado. Uma que é esquecida não volta; se está aberta, fica até ser fechada.</translation>
    </message>
    <message id="remembered_forget">
        <source></source>
        <translation>&amp;Esquecer</translation>
    </message>
    <message id="preferences_title">
        <source></source>
        <translation>Preferências do Lurkwell</translation>
    </message>
    <message id="preferences_page">
        <source></source>
        <translation>Página</translation>
    </message>
    <message id="preferences_form_missing">
        <source></source>
        <translation>Não é possível mostrar as preferências.</translation>
    </message>
    <message id="preferences_form_missing_text">
        <source></source>
        <translation>Falta uma parte do programa: a disposição da janela de preferências. Instale novamente o Lurkwell.</translation>
    </message>
    <message id="preferences_times_per_second" numerus="yes">
        <source></source>
        <translation>
            <numerusform>uma vez por segundo</numerusform>
            <numerusform>%n vezes por segundo</numerusform>
        </translation>
    </message>
    <message id="preferences_every_seconds" numerus="yes">
        <source></source>
        <translation>
            <numerusform>a cada segundo</numerusform>
            <numerusform>a cada %n segundos</numerusform>
        </translation>
    </message>
    <message id="preferences_every_minutes" numerus="yes">
        <source></source>
        <translation>
            <numerusform>a cada minuto</numerusform>
            <numerusform>a cada %n minutos</numerusform>
        </translation>
    </message>
    <message id="preferences_every_hour">
        <source></source>
        <translation>a cada hora</translation>
    </message>
    <message id="preferences_interval_invalid">
        <source></source>
        <translation>valor inválido; não pode ser convertido</translation>
    </message>
    <message id="preferences_percent">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="preferences_page_general">
        <source></source>
        <translation>Geral</translation>
    </message>
    <message id="preferences_page_mainwindow">
        <source></source>
        <translation>Janela principal</translation>
    </message>
    <message id="preferences_page_animatedview">
        <source></source>
        <translation>Vista animada</translation>
    </message>
    <message id="preferences_page_history">
        <source></source>
        <translation>Histórico do CPU</translation>
    </message>
    <message id="preferences_page_logging">
        <source></source>
        <translation>Registo</translation>
    </message>
    <message id="preferences_all_settings">
        <source></source>
        <translation>Todas as de&amp;finições…</translation>
    </message>
    <message id="preferences_all_settings_tip">
        <source></source>
        <translation>Todas as definições do programa, mesmo as que não têm um controlo próprio.</translation>
    </message>
    <message id="preferences_close">
        <source></source>
        <translation>Fe&amp;char</translation>
    </message>
    <message id="preferences_close_tip">
        <source></source>
        <translation>Fecha a janela. Cada alteração já está guardada.</translation>
    </message>
    <message id="preferences_memoryFormatMatrix">
        <source></source>
        <translation>Tamanhos de memória</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_tip">
        <source></source>
        <translation>A unidade dos tamanhos de memória em tabelas, barras e registos.</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_automatic">
        <source></source>
        <translation>&amp;Automática</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_bytes">
        <source></source>
        <translation>&amp;Bytes</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_kilobytes">
        <source></source>
        <translation>&amp;Kilobytes</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_megabytes">
        <source></source>
        <translation>&amp;Megabytes</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_gigabytes">
        <source></source>
        <translation>&amp;Gigabytes</translation>
    </message>
    <message id="preferences_dateFormatMatrix">
        <source></source>
        <translation>Datas</translation>
    </message>
    <message id="preferences_dateFormatMatrix_tip">
        <source></source>
        <translation>Como se escrevem datas e horas em tabelas e registos.</translation>
    </message>
    <message id="preferences_dateFormatMatrix_calendar">
        <source></source>
        <translation>Cale&amp;ndário e relógio</translation>
    </message>
    <message id="preferences_dateFormatMatrix_seconds">
        <source></source>
        <translation>&amp;Segundos desde 1970</translation>
    </message>
    <message id="preferences_dateFormatMatrix_microseconds">
        <source></source>
        <translation>Segundos e mic&amp;rossegundos</translation>
    </message>
    <message id="preferences_mainWindowInterval">
        <source></source>
        <translation>&amp;Atualizar a tabela:</translation>
    </message>
    <message id="preferences_mainWindowInterval_tip">
        <source></source>
        <translation>Com que frequência é atualizada a tabela da janela principal. Atualizar poucas vezes custa menos.</translation>
    </message>
    <message id="preferences_memoryGraph">
        <source></source>
        <translation>Mostrar o &amp;tamanho nas barras de memória</translation>
    </message>
    <message id="preferences_memoryGraph_tip">
        <source></source>
        <translation>Escreve em cada barra de memória o tamanho que o seu comprimento mostra.</translation>
    </message>
    <message id="preferences_memoryFigure">
        <source></source>
        <translation>As &amp;barras de memória mostram:</translation>
    </message>
    <message id="preferences_memoryFigure_tip">
        <source></source>
        <translation>O que mostra o comprimento das barras de memória; quando a tabela é ordenada por elas, é também a ordem das linhas.</translation>
    </message>
    <message id="preferences_memoryFigure_virtual">
        <source></source>
        <translation>o tamanho virtual, com o residente dentro</translation>
    </message>
    <message id="preferences_memoryFigure_resident">
        <source></source>
        <translation>o tamanho residente</translation>
    </message>
    <message id="preferences_memoryFigure_proportional">
        <source></source>
        <translation>o tamanho proporcional: memória partilhada por partes</translation>
    </message>
    <message id="preferences_frameInterval">
        <source></source>
        <translation>&amp;Desenhar uma imagem:</translation>
    </message>
    <message id="preferences_frameInterval_tip">
        <source></source>
        <translation>Com que frequência é desenhada a vista animada. Os dois intervalos abaixo nunca são mais curtos.</translation>
    </message>
    <message id="preferences_mainInterval">
        <source></source>
        <translation>Atualizar os &amp;processos:</translation>
    </message>
    <message id="preferences_mainInterval_tip">
        <source></source>
        <translation>Com que frequência a vista animada procura processos que começaram ou terminaram. Nunca mais curto do que o de desenhar nem mais longo do que o de medir.</translation>
    </message>
    <message id="preferences_cpuInterval">
        <source></source>
        <translation>&amp;Medir a utilização do CPU:</translation>
    </message>
    <message id="preferences_cpuInterval_tip">
        <source></source>
        <translation>Com que frequência a vista animada mede a utilização do CPU dos seus processos. Os dois intervalos acima nunca são mais longos.</translation>
    </message>
    <message id="preferences_windowAlpha">
        <source></source>
        <translation>&amp;Opacidade em ecrã completo:</translation>
    </message>
    <message id="preferences_windowAlpha_tip">
        <source></source>
        <translation>Quanto do ambiente de trabalho a vista em ecrã completo cobre: 0 % oculta a vista, 100 % oculta o ambiente de trabalho.</translation>
    </message>
    <message id="preferences_underlayAlpha">
        <source></source>
        <translation>Opacidade do f&amp;undo:</translation>
    </message>
    <message id="preferences_underlayAlpha_tip">
        <source></source>
        <translation>Com que intensidade a imagem por trás dos processos se vê em ecrã completo.</translation>
    </message>
    <message id="preferences_connectors">
        <source></source>
        <translation>&amp;Ligar pais e filhos em ecrã completo</translation>
    </message>
    <message id="preferences_connectors_tip">
        <source></source>
        <translation>Desenha uma linha de cada processo ao seu pai, também na vista em ecrã completo.</translation>
    </message>
    <message id="preferences_historyInterval">
        <source></source>
        <translation>&amp;Medir a utilização do CPU:</translation>
    </message>
    <message id="preferences_historyInterval_tip">
        <source></source>
        <translation>Com que frequência um histórico do CPU recebe um novo ponto.</translation>
    </message>
    <message id="preferences_historyFilter">
        <source></source>
        <translation>S&amp;uavização:</translation>
    </message>
    <message id="preferences_historyFilter_tip">
        <source></source>
        <translation>Quanto do ponto anterior passa para o seguinte: 0 % mostra cada salto; valores mais altos, uma linha mais calma.</translation>
    </message>
    <message id="preferences_historyColour">
        <source></source>
        <translation>Utilizaçã&amp;o do CPU:</translation>
    </message>
    <message id="preferences_historyColour_tip">
        <source></source>
        <translation>A cor da linha da utilização do CPU do processo, com a dos seus descendentes enquanto são incluídos.</translation>
    </message>
    <message id="preferences_descendantsColour">
        <source></source>
        <translation>&amp;Parte própria:</translation>
    </message>
    <message id="preferences_descendantsColour_tip">
        <source></source>
        <translation>A cor da linha da parte própria do processo enquanto os seus descendentes são incluídos. Vale para as janelas abertas a partir de agora.</translation>
    </message>
    <message id="preferences_relative">
        <source></source>
        <translation>&amp;Escalar ao máximo recente</translation>
    </message>
    <message id="preferences_relative_tip">
        <source></source>
        <translation>A altura do gráfico representa a maior utilização recente em vez de 100 %.</translation>
    </message>
    <message id="preferences_descendants">
        <source></source>
        <translation>&amp;Incluir os descendentes do processo</translation>
    </message>
    <message id="preferences_descendants_tip">
        <source></source>
        <translation>Mostra o que usam os processos que ele iniciou, numa cor própria.</translation>
    </message>
    <message id="preferences_loggingInterval">
        <source></source>
        <translation>P&amp;rocurar alterações:</translation>
    </message>
    <message id="preferences_loggingInterval_tip">
        <source></source>
        <translation>Com que frequência um registo verifica se há algo de novo a anotar.</translation>
    </message>
    <message id="preferences_timestamp">
        <source></source>
        <translation>H&amp;ora</translation>
    </message>
    <message id="preferences_timestamp_tip">
        <source></source>
        <translation>Uma coluna com a hora de cada linha.</translation>
    </message>
    <message id="preferences_logToFile">
        <source></source>
        <translation>Escrever &amp;também num ficheiro</translation>
    </message>
    <message id="preferences_logToFile_tip">
        <source></source>
        <translation>Acrescenta cada linha a um ficheiro de texto próprio do registo.</translation>
    </message>
    <message id="preferences_activeTime">
        <source></source>
        <translation>T&amp;empo de CPU</translation>
    </message>
    <message id="preferences_activeTime_tip">
        <source></source>
        <translation>Uma coluna com o tempo de CPU que o processo utilizou.</translation>
    </message>
    <message id="preferences_deltaActiveTime">
        <source></source>
        <translation>A&amp;lteração do tempo de CPU</translation>
    </message>
    <message id="preferences_deltaActiveTime_tip">
        <source></source>
        <translation>Uma coluna com o tempo de CPU utilizado desde a linha anterior.</translation>
    </message>
    <message id="preferences_realMemory">
        <source></source>
        <translation>&amp;Memória real</translation>
    </message>
    <message id="preferences_realMemory_tip">
        <source></source>
        <translation>Uma coluna com a memória que o processo tem em uso.</translation>
    </message>
    <message id="preferences_deltaRealMemory">
        <source></source>
        <translation>&amp;Alteração da memória real</translation>
    </message>
    <message id="preferences_deltaRealMemory_tip">
        <source></source>
        <translation>Uma coluna com a alteração da memória real desde a linha anterior.</translation>
    </message>
    <message id="preferences_virtualMemory">
        <source></source>
        <translation>Memória &amp;virtual</translation>
    </message>
    <message id="preferences_virtualMemory_tip">
        <source></source>
        <translation>Uma coluna com o tamanho do espaço de endereços do processo.</translation>
    </message>
    <message id="preferences_deltaVirtualMemory">
        <source></source>
        <translation>Alteração da memória virt&amp;ual</translation>
    </message>
    <message id="preferences_deltaVirtualMemory_tip">
        <source></source>
        <translation>Uma coluna com a alteração da memória virtual desde a linha anterior.</translation>
    </message>
    <message id="preferences_notice">
        <source></source>
        <translation>As alterações valem para as janelas de registo abertas a partir de agora.</translation>
    </message>
    <message id="settings_title">
        <source></source>
        <translation>Todas as definições</translation>
    </message>
    <message id="settings_filter">
        <source></source>
        <translation>Filtrar por nome, chave, valor ou significado</translation>
    </message>
    <message id="settings_reset">
        <source></source>
        <translation>&amp;Repor predefinição</translation>
    </message>
    <message id="settings_reset_tip">
        <source></source>
        <translation>Remove os valores guardados das definições selecionadas, de modo que valham as predefinições.</translation>
    </message>
    <message id="settings_column_key">
        <source></source>
        <translation>Definição</translation>
    </message>
    <message id="settings_column_value">
        <source></source>
        <translation>Valor</translation>
    </message>
    <message id="settings_column_default">
        <source></source>
        <translation>Predefinição</translation>
    </message>
    <message id="settings_column_kind">
        <source></source>
        <translation>Tipo</translation>
    </message>
    <message id="settings_column_effect">
        <source></source>
        <translation>Vale</translation>
    </message>
    <message id="settings_column_meaning">
        <source></source>
        <translation>Significado</translation>
    </message>
    <message id="settings_kind_switch">
        <source></source>
        <translation>interruptor</translation>
    </message>
    <message id="settings_kind_choice">
        <source></source>
        <translation>escolha</translation>
    </message>
    <message id="settings_kind_integer">
        <source></source>
        <translation>número inteiro</translation>
    </message>
    <message id="settings_kind_interval">
        <source></source>
        <translation>intervalo</translation>
    </message>
    <message id="settings_kind_colour">
        <source></source>
        <translation>cor, de 0 a 65535</translation>
    </message>
    <message id="settings_kind_real">
        <source></source>
        <translation>número</translation>
    </message>
    <message id="settings_kind_text">
        <source></source>
        <translation>texto</translation>
    </message>
    <message id="settings_kind_record">
        <source></source>
        <translation>anotação do próprio programa</translation>
    </message>
    <message id="settings_kind_array">
        <source></source>
        <translation>anotações</translation>
    </message>
    <message id="settings_kind_unit">
        <source></source>
        <translation>%1 em %2</translation>
    </message>
    <message id="settings_unit_milliseconds">
        <source></source>
        <translation>milissegundos</translation>
    </message>
    <message id="settings_unit_seconds">
        <source></source>
        <translation>segundos</translation>
    </message>
    <message id="settings_unit_pages">
        <source></source>
        <translation>páginas</translation>
    </message>
    <message id="settings_unit_points">
        <source></source>
        <translation>pontos</translation>
    </message>
    <message id="settings_unit_ticks">
        <source></source>
        <translation>tiques (60 por segundo)</translation>
    </message>
    <message id="settings_kind_range">
        <source></source>
        <translation>%1, de %2 a %3</translation>
    </message>
    <message id="settings_effect_at_once">
        <source></source>
        <translation>de imediato</translation>
    </message>
    <message id="settings_effect_new_windows">
        <source></source>
        <translation>para janelas novas</translation>
    </message>
    <message id="settings_effect_next_start">
        <source></source>
        <translation>no próximo arranque</translation>
    </message>
    <message id="settings_note_at_once">
        <source></source>
        <translation>Uma alteração vale de imediato.</translation>
    </message>
    <message id="settings_note_new_windows">
        <source></source>
        <translation>Uma alteração vale para as janelas abertas a partir daí.</translation>
    </message>
    <message id="settings_note_next_start">
        <source></source>
        <translation>Uma alteração vale a partir do próximo arranque do programa.</translation>
    </message>
    <message id="settings_note_not_stored">
        <source></source>
        <translation>Não está guardado nada; vale a predefinição. %1</translation>
    </message>
    <message id="settings_note_record">
        <source></source>
        <translation>O programa mantém isto por si próprio; não se altera aqui.</translation>
    </message>
    <message id="hot_key_given">
        <source></source>
        <translation>Neste ambiente de trabalho a tecla é: %1.</translation>
    </message>
    <message id="hot_key_awaited">
        <source></source>
        <translation>O ambiente de trabalho ainda não respondeu.</translation>
    </message>
    <message id="hot_key_taken">
        <source></source>
        <translation>Não funciona: outro programa tem a tecla, ou o teclado não a tem.</translation>
    </message>
    <message id="hot_key_refused">
        <source></source>
        <translation>Não funciona: o ambiente de trabalho não concedeu a tecla. Pode mudar-se nas definições de teclas dele.</translation>
    </message>
    <message id="hot_key_no_way">
        <source></source>
        <translation>Não funciona: este ambiente de trabalho não concede teclas a programas. Nas definições dele pode dar-se uma tecla ao comando «lurkwell --toggle-overlay».</translation>
    </message>
    <message id="settings_note_no_number">
        <source></source>
        <translation>O que está guardado não é um número e é lido como 0. Introduza um número ou reponha a definição.</translation>
    </message>
    <message id="settings_elements" numerus="yes">
        <source></source>
        <translation>
            <numerusform>1 anotação</numerusform>
            <numerusform>%n anotações</numerusform>
        </translation>
    </message>
    <message id="settings_problem_no_number">
        <source></source>
        <translation>“%1” não é um número. A definição fica como estava.</translation>
    </message>
    <message id="settings_problem_not_whole">
        <source></source>
        <translation>“%1” não é um número inteiro. A definição fica como estava.</translation>
    </message>
    <message id="settings_problem_range">
        <source></source>
        <translation>“%1” está fora do intervalo: tem de estar entre %2 e %3. A definição fica como estava.</translation>
    </message>
    <message id="settings_problem_characters">
        <source></source>
        <translation>O texto tem carateres que as definições não podem guardar. A definição fica como estava.</translation>
    </message>
    <message id="settings_component_red">
        <source></source>
        <translation>%1 Vermelho.</translation>
    </message>
    <message id="settings_component_green">
        <source></source>
        <translation>%1 Verde.</translation>
    </message>
    <message id="settings_component_blue">
        <source></source>
        <translation>%1 Azul.</translation>
    </message>
    <message id="settings_title_red">
        <source></source>
        <translation>%1: vermelho</translation>
    </message>
    <message id="settings_title_green">
        <source></source>
        <translation>%1: verde</translation>
    </message>
    <message id="settings_title_blue">
        <source></source>
        <translation>%1: azul</translation>
    </message>
    <message id="settings_title_and_key">
        <source></source>
        <translation>%1, chave %2</translation>
    </message>
    <message id="setting_title_GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT">
        <source></source>
        <translation>Unidade dos tamanhos de memória</translation>
    </message>
    <message id="setting_title_GENERAL_PREFERRED_DATE_DISPLAY_FORMAT">
        <source></source>
        <translation>Formato das datas</translation>
    </message>
    <message id="setting_title_GENERAL_ALWAYS_AUTHENTICATE_DAEMON">
        <source></source>
        <translation>Pedir uma palavra-passe em cada arranque</translation>
    </message>
    <message id="setting_title_GENERAL_CONTINUE_WITHOUT_RIGHTS">
        <source></source>
        <translation>Arrancar sem direitos de administrador</translation>
    </message>
    <message id="setting_title_FIGURES_FROM_HELPER">
        <source></source>
        <translation>Pedir ao auxiliar os valores dos processos</translation>
    </message>
    <message id="setting_title_PREFERENCES_UI_DEFAULT_TAB">
        <source></source>
        <translation>Página das preferências</translation>
    </message>
    <message id="setting_title_ABOUT_PANEL_AT_EVERY_START">
        <source></source>
        <translation>Painel “Acerca” em cada arranque</translation>
    </message>
    <message id="hint_details">
        <source></source>
        <translation>Um duplo clique num processo abre os seus detalhes; um clique com o botão direito tem o que se lhe pode fazer.</translation>
    </message>
    <message id="hint_filter">
        <source></source>
        <translation>Ctrl+F encontra processos por qualquer coisa: experimente user:root cpu&gt;5 ou port:443.</translation>
    </message>
    <message id="hint_columns">
        <source></source>
        <translation>Um clique com o botão direito no cabeçalho adiciona colunas; Ctrl+1 a Ctrl+7 mudam entre conjuntos inteiros.</translation>
    </message>
    <message id="hint_follow">
        <source></source>
        <translation>Ctrl+N põe um pequeno gráfico do processo selecionado a flutuar sobre todas as janelas; volta com o seu programa.</translation>
    </message>
    <message id="hint_shapes">
        <source></source>
        <translation>Alt+2 mostra os processos como árvore, Alt+3 por aplicação; os totais são os de todo o ramo.</translation>
    </message>
    <message id="hints_none">
        <source></source>
        <translation>Não mostrar mais dicas</translation>
    </message>
    <message id="hints_close">
        <source></source>
        <translation>Retirar esta dica</translation>
    </message>
    <message id="setting_title_HINTS_SEEN">
        <source></source>
        <translation>Dicas retiradas</translation>
    </message>
    <message id="setting_title_ABOUT_PANEL_SEEN_VERSION">
        <source></source>
        <translation>Painel “Acerca”: versão vista</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_INTERVAL">
        <source></source>
        <translation>Tabela: intervalo de atualização</translation>
    </message>
    <message id="setting_title_MEM_GRAPH_DRAW_VSZ">
        <source></source>
        <translation>Tabela: tamanho nas barras de memória</translation>
    </message>
    <message id="setting_title_MEMORY_BAR_FIGURE">
        <source></source>
        <translation>Tabela: o que mostram as barras de memória</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE">
        <source></source>
        <translation>Tabela: a tarefa inativa conta como 0</translation>
    </message>
    <message id="setting_title_CPU_SHARE_OF_MACHINE">
        <source></source>
        <translation>Colunas: as partes do CPU são da máquina</translation>
    </message>
    <message id="setting_title_KEEP_COMMAND_LINES">
        <source></source>
        <translation>Saída: linhas de comandos completas</translation>
    </message>
    <message id="setting_title_MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT">
        <source></source>
        <translation>Tabela: omitir a região partilhada</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_PAGEOUT_CRITICAL_FLASH_INTERVAL">
        <source></source>
        <translation>Luz de paginação: tempo entre piscadelas</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_FILTER">
        <source></source>
        <translation>Luz de paginação: suavização</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_RED">
        <source></source>
        <translation>Luz de paginação: vermelha a partir de</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_YELLOW">
        <source></source>
        <translation>Luz de paginação: amarela a partir de</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_PROCESS_LIST_WINDOW">
        <source></source>
        <translation>A janela principal estava aberta</translation>
    </message>
    <message id="setting_title_DETAILS_WINDOW_FRAME">
        <source></source>
        <translation>Detalhes: posição e tamanho</translation>
    </message>
    <message id="setting_DETAILS_WINDOW_FRAME">
        <source></source>
        <translation>Posição e tamanho da última janela de detalhes de um processo que foi fechada.</translation>
    </message>
    <message id="setting_title_DETAILS_WINDOW_PAGE">
        <source></source>
        <translation>Detalhes: página</translation>
    </message>
    <message id="setting_DETAILS_WINDOW_PAGE">
        <source></source>
        <translation>Última página mostrada da janela de detalhes, contada a partir de 0.</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FRAME">
        <source></source>
        <translation>Janela principal: posição e tamanho</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_ITEMS">
        <source></source>
        <translation>Barra de ferramentas: elementos</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_DISPLAY_MODE">
        <source></source>
        <translation>Barra de ferramentas: ícones ou texto</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_SHOWN">
        <source></source>
        <translation>Barra de ferramentas: visível</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SORT_COLUMN_INDEX">
        <source></source>
        <translation>Tabela: coluna ordenada</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SHAPE">
        <source></source>
        <translation>Forma da tabela de processos, conjunto padrão</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SCOPE">
        <source></source>
        <translation>Âmbito da tabela de processos</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FOLLOWS_SELECTION">
        <source></source>
        <translation>A seleção fica no lugar</translation>
    </message>
    <message id="setting_title_WEB_SEARCH_ADDRESS">
        <source></source>
        <translation>Endereço com que se pesquisa na web</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FOLDED_PROGRAMS">
        <source></source>
        <translation>Programas recolhidos</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_UNFOLDED_APPLICATIONS">
        <source></source>
        <translation>Aplicações expandidas</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_RECENT_FILTERS">
        <source></source>
        <translation>Últimos filtros</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMNS">
        <source></source>
        <translation>Tabela: colunas</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMN_SETS">
        <source></source>
        <translation>Tabela: conjuntos de colunas</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMN_SET">
        <source></source>
        <translation>Tabela: conjunto que é mostrado</translation>
    </message>
    <message id="setting_title_HAS_RUN_TWO_POINT_THREE">
        <source></source>
        <translation>A coluna do indicador foi adicionada</translation>
    </message>
    <message id="setting_title_HAS_RUN_TWO_POINT_FOUR">
        <source></source>
        <translation>A coluna da barra de memória foi adicionada</translation>
    </message>
    <message id="setting_title_DEFAULT_X_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Janelas pequenas: margem esquerda da última</translation>
    </message>
    <message id="setting_title_DEFAULT_Y_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Janelas pequenas: margem superior da última</translation>
    </message>
    <message id="setting_title_DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA">
        <source></source>
        <translation>Janelas pequenas: opacidade</translation>
    </message>
    <message id="setting_title_DEFAULT_WATCHDOG_INTERVAL">
        <source></source>
        <translation>Janelas recordadas: procurar os seus programas a cada</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_WINDOW_INTERVAL">
        <source></source>
        <translation>Histórico do CPU: tempo entre dois pontos</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_USE_RELATIVE">
        <source></source>
        <translation>Histórico do CPU: escalar ao máximo recente</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS">
        <source></source>
        <translation>Histórico do CPU: incluir os descendentes</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_DEFAULT_FILTER">
        <source></source>
        <translation>Histórico do CPU: suavização</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_BACKGROUND_RGB">
        <source></source>
        <translation>Histórico do CPU: fundo</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_FOREGROUND_RGB">
        <source></source>
        <translation>Histórico do CPU: utilização do CPU</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB">
        <source></source>
        <translation>Histórico do CPU: parte própria</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_NAME_RGB">
        <source></source>
        <translation>Histórico do CPU: nome</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_RGB">
        <source></source>
        <translation>Histórico do CPU: etiqueta da escala fixa</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB">
        <source></source>
        <translation>Histórico do CPU: etiqueta da escala ajustada</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_FLASH_RGB">
        <source></source>
        <translation>Histórico do CPU: etiqueta de uma nova escala</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG">
        <source></source>
        <translation>Histórico do CPU: fundo da percentagem</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG">
        <source></source>
        <translation>Histórico do CPU: percentagem</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_NAME_ALPHA">
        <source></source>
        <translation>Histórico do CPU: opacidade do nome</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HIGHWATERMARK_ALPHA">
        <source></source>
        <translation>Histórico do CPU: opacidade da etiqueta da escala</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_ALPHA">
        <source></source>
        <translation>Histórico do CPU: opacidade da percentagem</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_ICON_ALPHA">
        <source></source>
        <translation>Histórico do CPU: opacidade do ícone (antiga)</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_ICON_ALPHA_REALLY">
        <source></source>
        <translation>Histórico do CPU: opacidade do ícone</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW">
        <source></source>
        <translation>Histórico do CPU: janelas recordadas</translation>
    </message>
    <message id="setting_title_DEFAULT_LOGGING_WINDOW_INTERVAL">
        <source></source>
        <translation>Registo: procurar alterações a cada</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_INCLUDE_TIMESTAMP">
        <source></source>
        <translation>Registo: hora</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Registo: tempo de CPU</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Registo: alteração do tempo de CPU</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_REAL_MEM_BOOL">
        <source></source>
        <translation>Registo: memória real</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_REAL_MEM_BOOL">
        <source></source>
        <translation>Registo: alteração da memória real</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Registo: memória virtual</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Registo: alteração da memória virtual</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_LOG_TO_FILE">
        <source></source>
        <translation>Registo: escrever também num ficheiro</translation>
    </message>
    <message id="setting_title_LOGGING_WINDOW">
        <source></source>
        <translation>Registo: janelas recordadas</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_GL_THREAD_INTERVAL">
        <source></source>
        <translation>Vista animada: tempo entre duas imagens</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_MAINPIC_INTERVAL">
        <source></source>
        <translation>Vista animada: procurar processos a cada</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_HELPERPIC_INTERVAL">
        <source></source>
        <translation>Vista animada: medir a utilização do CPU a cada</translation>
    </message>
    <message id="setting_title_QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS">
        <source></source>
        <translation>Vista em ecrã completo: ligar pais e filhos</translation>
    </message>
    <message id="setting_title_QUINT_FULLSCREEN_WINDOW_ALPHA">
        <source></source>
        <translation>Vista em ecrã completo: opacidade</translation>
    </message>
    <message id="setting_title_QUINT_FULLSCREEN_UNDERLAY_ALPHA">
        <source></source>
        <translation>Vista em ecrã completo: opacidade do fundo</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_ICON_SCALE_FACTOR">
        <source></source>
        <translation>Vista animada: escala dos ícones</translation>
    </message>
    <message id="setting_title_QUIVA_FULLSCREEN_EXTRA_SCALE_FACTOR">
        <source></source>
        <translation>Vista em ecrã completo: escala adicional dos ícones</translation>
    </message>
    <message id="setting_title_QUINT_MAX_ITERATIONS_TO_STABILIZE_WHEN_FIRST_SHOWING">
        <source></source>
        <translation>Vista animada: passos antes da primeira imagem</translation>
    </message>
    <message id="setting_title_QUINT_TARVIK_FACTOR">
        <source></source>
        <translation>Vista animada: fator da atividade do Lurkwell</translation>
    </message>
    <message id="setting_title_FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE">
        <source></source>
        <translation>Vista em ecrã completo: tecla</translation>
    </message>
    <message id="setting_title_QUIVA_CHECK_QUARTZ_EXTREME">
        <source></source>
        <translation>Vista animada: os gráficos foram verificados</translation>
    </message>
    <message id="setting_title_QUIVA_CHECK_COMPOSITOR">
        <source></source>
        <translation>Vista em ecrã completo: o compositor foi verificado</translation>
    </message>
    <message id="setting_title_QUIVA_WINDOW_FRAME">
        <source></source>
        <translation>Vista animada: posição e tamanho</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>A vista animada estava aberta</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>A vista em ecrã completo estava aberta</translation>
    </message>
    <message id="setting_title_CLASSIC_INITIAL_ASSUMED_CPU_USAGE">
        <source></source>
        <translation>Ambiente Classic: utilização do CPU no início</translation>
    </message>
    <message id="setting_title_CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER">
        <source></source>
        <translation>Ambiente Classic: peso de uma medição</translation>
    </message>
    <message id="setting_title_CLASSIC_WATCHDOG_INTERVAL">
        <source></source>
        <translation>Ambiente Classic: procurá-lo a cada</translation>
    </message>
    <message id="setting_title_CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX">
        <source></source>
        <translation>Ambiente Classic: repouso do seu auxiliar</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_AND_TESTING">
        <source></source>
        <translation>Valores da máquina: mostrar uma janela</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_SWI_INTERVAL">
        <source></source>
        <translation>Valores da máquina: intervalo de atualização</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_LEFT">
        <source></source>
        <translation>Valores da máquina: margem esquerda</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_TOP">
        <source></source>
        <translation>Valores da máquina: margem superior</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_RIGHT">
        <source></source>
        <translation>Valores da máquina: margem direita</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_BOTTOM">
        <source></source>
        <translation>Valores da máquina: margem inferior</translation>
    </message>
    <message id="setting_GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT">
        <source></source>
        <translation>Unidade dos tamanhos de memória: 0 automática, 1 bytes, 2 kilobytes, 3 megabytes, 4 gigabytes.</translation>
    </message>
    <message id="setting_GENERAL_PREFERRED_DATE_DISPLAY_FORMAT">
        <source></source>
        <translation>Como se escrevem as datas: 0 calendário e relógio, 1 segundos desde 1970, 2 segundos e microssegundos.</translation>
    </message>
    <message id="setting_GENERAL_ALWAYS_AUTHENTICATE_DAEMON">
        <source></source>
        <translation>Pedir a palavra-passe de um administrador em cada arranque, mesmo que o auxiliar já tenha os seus direitos.</translation>
    </message>
    <message id="setting_GENERAL_CONTINUE_WITHOUT_RIGHTS">
        <source></source>
        <translation>Arrancar sem direitos de administrador quando o auxiliar não os tem, e não os pedir. Ativada por “Continue Without”.</translation>
    </message>
    <message id="setting_FIGURES_FROM_HELPER">
        <source></source>
        <translation>Pedir ao auxiliar os valores dos processos, como nas máquinas onde só ele os pode ler. Se estiver inativa, o próprio programa lê-os, o que custa muito menos.</translation>
    </message>
    <message id="setting_PREFERENCES_UI_DEFAULT_TAB">
        <source></source>
        <translation>Última página mostrada da janela de preferências, contada a partir de 0.</translation>
    </message>
    <message id="setting_ABOUT_PANEL_AT_EVERY_START">
        <source></source>
        <translation>Mostrar o painel “Acerca” durante três segundos em cada arranque, e não só no primeiro de uma versão.</translation>
    </message>
    <message id="setting_HINTS_SEEN">
        <source></source>
        <translation>Quantas das dicas acima da tabela foram retiradas; 0 volta a mostrá-las, uma em cada arranque.</translation>
    </message>
    <message id="setting_ABOUT_PANEL_SEEN_VERSION">
        <source></source>
        <translation>Versão cujo painel “Acerca” foi mostrado no arranque.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_INTERVAL">
        <source></source>
        <translation>Tempo entre duas atualizações da tabela da janela principal.</translation>
    </message>
    <message id="setting_MEM_GRAPH_DRAW_VSZ">
        <source></source>
        <translation>Escrever nas barras de memória o tamanho que o seu comprimento mostra.</translation>
    </message>
    <message id="setting_MEMORY_BAR_FIGURE">
        <source></source>
        <translation>O que mostra o comprimento das barras de memória, e a sua ordem quando a tabela é ordenada por elas: 0 – o tamanho virtual, com o residente dentro, 1 – o tamanho residente, 2 – o tamanho proporcional, que conta a memória partilhada por partes. Tamanhos virtuais maiores do que a memória da máquina não servem de medida para nenhuma outra barra.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE">
        <source></source>
        <translation>Mostrar a utilização do CPU e o tamanho da tarefa inativa como 0, para que as suas barras não escondam todas as outras.</translation>
    </message>
    <message id="setting_CPU_SHARE_OF_MACHINE">
        <source></source>
        <translation>Mostrar as partes de CPU, utilizador e sistema como partes de todos os processadores em conjunto em vez de um: 100 % é então a máquina inteira. Os cabeçalhos das colunas dizem qual.</translation>
    </message>
    <message id="setting_KEEP_COMMAND_LINES">
        <source></source>
        <translation>Escrever e imprimir os argumentos dos programas, que podem conter palavras-passe, e não só o programa, onde quer que seja pedida uma linha de comandos.</translation>
    </message>
    <message id="setting_MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT">
        <source></source>
        <translation>Excluir dos tamanhos virtuais a região que todos os processos partilham, nas máquinas que a têm.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_PAGEOUT_CRITICAL_FLASH_INTERVAL">
        <source></source>
        <translation>Segundos entre duas mudanças do vermelho da luz de paginação, enquanto saem muitas páginas.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_FILTER">
        <source></source>
        <translation>O que resta da taxa de paginação de uma atualização para a seguinte, de 0 a 1.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_RED">
        <source></source>
        <translation>Páginas que saem por atualização a partir das quais a luz de paginação é vermelha.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_YELLOW">
        <source></source>
        <translation>Páginas que saem por atualização a partir das quais a luz de paginação é amarela.</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_PROCESS_LIST_WINDOW">
        <source></source>
        <translation>Abrir a janela principal no arranque. O programa anota aqui se estava aberta.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FRAME">
        <source></source>
        <translation>Posição e tamanho da janela principal.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SORT_COLUMN_INDEX">
        <source></source>
        <translation>A coluna recordada pela qual a tabela é ordenada, contada a partir de 0.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SHAPE">
        <source></source>
        <translation>Como se dispõem os processos na tabela com o conjunto padrão de colunas: 0 – uma lista, 1 – os filhos abaixo dos pais, 2 – abaixo das suas aplicações.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SCOPE">
        <source></source>
        <translation>Que processos a tabela mostra: 0 – todos, 1 – os do próprio utilizador, 2 – os de outros utilizadores, 3 – aplicações, 4 – todos menos as threads do núcleo, 5 – o que usou um processador desde a última atualização.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FOLLOWS_SELECTION">
        <source></source>
        <translation>Se a linha selecionada fica onde está no ecrã enquanto outras mudam de lugar.</translation>
    </message>
    <message id="setting_WEB_SEARCH_ADDRESS">
        <source></source>
        <translation>Um endereço da web em que %1 representa o nome do programa. Vazio para o habitual.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FOLDED_PROGRAMS">
        <source></source>
        <translation>Programas cujos filhos estão recolhidos na árvore, os últimos primeiro, com sinais de percentagem no lugar de outras letras.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_UNFOLDED_APPLICATIONS">
        <source></source>
        <translation>Aplicações, unidades, contentores e programas cujos processos estão expandidos, os últimos primeiro, com sinais de percentagem no lugar de outras letras.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_RECENT_FILTERS">
        <source></source>
        <translation>Os últimos filtros utilizados na tabela de processos, o mais recente primeiro, com sinais de percentagem no lugar de outras letras.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMNS">
        <source></source>
        <translation>Colunas do conjunto padrão, com as suas larguras e sentidos de ordenação.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMN_SETS">
        <source></source>
        <translation>O que os conjuntos de colunas guardam, exceto o padrão: colunas, larguras, sentidos de ordenação, coluna ordenada e forma.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMN_SET">
        <source></source>
        <translation>O conjunto de colunas que a tabela mostra.</translation>
    </message>
    <message id="setting_HAS_RUN_TWO_POINT_THREE">
        <source></source>
        <translation>Se a coluna do indicador foi uma vez adicionada à tabela.</translation>
    </message>
    <message id="setting_HAS_RUN_TWO_POINT_FOUR">
        <source></source>
        <translation>Se a coluna da barra de memória foi uma vez adicionada à tabela.</translation>
    </message>
    <message id="setting_DEFAULT_X_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Margem esquerda da última janela pequena que foi aberta; a seguinte é posta ao lado dela.</translation>
    </message>
    <message id="setting_DEFAULT_Y_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Margem superior da última janela pequena que foi aberta; a seguinte é posta abaixo dela.</translation>
    </message>
    <message id="setting_DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA">
        <source></source>
        <translation>Opacidade das janelas pequenas, 1 para opacas.</translation>
    </message>
    <message id="setting_DEFAULT_WATCHDOG_INTERVAL">
        <source></source>
        <translation>Com que frequência o programa procura novos processos cujas janelas recorda.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_WINDOW_INTERVAL">
        <source></source>
        <translation>Tempo entre dois pontos de um histórico do CPU.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_USE_RELATIVE">
        <source></source>
        <translation>Escalar os históricos do CPU ao máximo recente em vez de 100 %.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS">
        <source></source>
        <translation>Mostrar também a utilização do CPU dos descendentes de um processo no seu histórico.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_DEFAULT_FILTER">
        <source></source>
        <translation>Quanto do ponto anterior passa para o seguinte, de 0 a 1.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_BACKGROUND_RGB">
        <source></source>
        <translation>Fundo dos históricos do CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_FOREGROUND_RGB">
        <source></source>
        <translation>A utilização do CPU do processo no seu histórico, com a dos seus descendentes enquanto são incluídos.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB">
        <source></source>
        <translation>A parte própria do processo na utilização do CPU do seu histórico enquanto os seus descendentes são incluídos.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_NAME_RGB">
        <source></source>
        <translation>O nome nos históricos do CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_RGB">
        <source></source>
        <translation>A etiqueta da escala nos históricos do CPU com escala fixa.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB">
        <source></source>
        <translation>A etiqueta da escala nos históricos do CPU que são escalados ao máximo.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_FLASH_RGB">
        <source></source>
        <translation>A etiqueta da escala enquanto pisca após uma mudança.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG">
        <source></source>
        <translation>Fundo da percentagem atual nos históricos do CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG">
        <source></source>
        <translation>A percentagem atual nos históricos do CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_NAME_ALPHA">
        <source></source>
        <translation>Opacidade do nome nos históricos do CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HIGHWATERMARK_ALPHA">
        <source></source>
        <translation>Opacidade da etiqueta da escala nos históricos do CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_ALPHA">
        <source></source>
        <translation>Opacidade da percentagem atual nos históricos do CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_ICON_ALPHA">
        <source></source>
        <translation>Opacidade antiga do ícone nos históricos do CPU; outra definição tomou o seu lugar.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_ICON_ALPHA_REALLY">
        <source></source>
        <translation>Opacidade do ícone nos históricos do CPU.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW">
        <source></source>
        <translation>Históricos do CPU que voltam quando é iniciado um processo com o seu nome.</translation>
    </message>
    <message id="setting_DEFAULT_LOGGING_WINDOW_INTERVAL">
        <source></source>
        <translation>Com que frequência um registo procura alterações.</translation>
    </message>
    <message id="setting_LOG_WINDOW_INCLUDE_TIMESTAMP">
        <source></source>
        <translation>Os registos têm uma coluna com a hora.</translation>
    </message>
    <message id="setting_LOG_WINDOW_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Os registos têm uma coluna com o tempo de CPU.</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Os registos têm uma coluna com a alteração do tempo de CPU.</translation>
    </message>
    <message id="setting_LOG_WINDOW_REAL_MEM_BOOL">
        <source></source>
        <translation>Os registos têm uma coluna com a memória real.</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_REAL_MEM_BOOL">
        <source></source>
        <translation>Os registos têm uma coluna com a alteração da memória real.</translation>
    </message>
    <message id="setting_LOG_WINDOW_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Os registos têm uma coluna com a memória virtual.</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Os registos têm uma coluna com a alteração da memória virtual.</translation>
    </message>
    <message id="setting_LOG_WINDOW_LOG_TO_FILE">
        <source></source>
        <translation>Os registos são escritos também em ficheiros.</translation>
    </message>
    <message id="setting_LOGGING_WINDOW">
        <source></source>
        <translation>Registos que voltam quando é iniciado um processo com o seu nome.</translation>
    </message>
    <message id="setting_HEARTQUIVA_GL_THREAD_INTERVAL">
        <source></source>
        <translation>Tempo entre duas imagens da vista animada. Nunca mais longo do que o seguinte.</translation>
    </message>
    <message id="setting_HEARTQUIVA_MAINPIC_INTERVAL">
        <source></source>
        <translation>Com que frequência a vista animada procura processos que começaram ou terminaram. Nunca mais longo do que o seguinte.</translation>
    </message>
    <message id="setting_HEARTQUIVA_HELPERPIC_INTERVAL">
        <source></source>
        <translation>Com que frequência a vista animada mede a utilização do CPU dos seus processos.</translation>
    </message>
    <message id="setting_QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS">
        <source></source>
        <translation>Desenhar linhas entre pais e filhos também na vista em ecrã completo.</translation>
    </message>
    <message id="setting_QUINT_FULLSCREEN_WINDOW_ALPHA">
        <source></source>
        <translation>Opacidade da vista em ecrã completo.</translation>
    </message>
    <message id="setting_QUINT_FULLSCREEN_UNDERLAY_ALPHA">
        <source></source>
        <translation>Opacidade da imagem por trás dos processos na vista em ecrã completo.</translation>
    </message>
    <message id="setting_HEARTQUIVA_ICON_SCALE_FACTOR">
        <source></source>
        <translation>Escala dos ícones na vista animada: o lado de um ícone, em pontos, é o peso do seu processo (0,5 em repouso, 2,9 com um processador inteiro) vezes metade disto.</translation>
    </message>
    <message id="setting_QUIVA_FULLSCREEN_EXTRA_SCALE_FACTOR">
        <source></source>
        <translation>Quantas vezes maiores são os ícones na vista em ecrã completo.</translation>
    </message>
    <message id="setting_QUINT_MAX_ITERATIONS_TO_STABILIZE_WHEN_FIRST_SHOWING">
        <source></source>
        <translation>Passos da disposição da vista animada antes de ser mostrada pela primeira vez, no máximo.</translation>
    </message>
    <message id="setting_QUINT_TARVIK_FACTOR">
        <source></source>
        <translation>Com quantas vezes a sua atividade real contam o próprio Lurkwell e o seu auxiliar na vista animada; sem valor, com a real.</translation>
    </message>
    <message id="setting_FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE">
        <source></source>
        <translation>Tecla que liga e desliga a vista em ecrã completo em qualquer parte do ambiente de trabalho, pelo seu número: 98, F7, a menos que esteja guardada outra.</translation>
    </message>
    <message id="setting_QUIVA_CHECK_QUARTZ_EXTREME">
        <source></source>
        <translation>Se os gráficos do ecrã foram verificados quando a vista animada foi mostrada pela primeira vez.</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>Abrir a vista animada no arranque. O programa anota aqui se estava aberta.</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>Abrir a vista animada em ecrã completo no arranque. O programa anota aqui se estava.</translation>
    </message>
    <message id="setting_CLASSIC_INITIAL_ASSUMED_CPU_USAGE">
        <source></source>
        <translation>Utilização do CPU que se supõe ao ambiente Classic antes de ser medida.</translation>
    </message>
    <message id="setting_CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER">
        <source></source>
        <translation>Quanto conta uma medição da utilização do CPU do ambiente Classic, de 0 a 1.</translation>
    </message>
    <message id="setting_CLASSIC_WATCHDOG_INTERVAL">
        <source></source>
        <translation>Com que frequência o programa verifica se o ambiente Classic está em execução.</translation>
    </message>
    <message id="setting_CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX">
        <source></source>
        <translation>Quanto tempo repousa o auxiliar do programa no ambiente Classic entre duas leituras, em sexagésimos de segundo.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_AND_TESTING">
        <source></source>
        <translation>Mostrar uma pequena janela com os valores da máquina, para depuração.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_SWI_INTERVAL">
        <source></source>
        <translation>Com que frequência é atualizada a janela com os valores da máquina.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_LEFT">
        <source></source>
        <translation>Margem esquerda da janela com os valores da máquina.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_TOP">
        <source></source>
        <translation>Margem superior da janela com os valores da máquina.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_RIGHT">
        <source></source>
        <translation>Margem direita da janela com os valores da máquina.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_BOTTOM">
        <source></source>
        <translation>Margem inferior da janela com os valores da máquina.</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_ITEMS">
        <source></source>
        <translation>Elementos da barra de ferramentas da janela principal, pela sua ordem, separados por espaços.</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_DISPLAY_MODE">
        <source></source>
        <translation>O que mostra a barra de ferramentas da janela principal: 0 ou 1 imagens e nomes, 2 imagens, 3 nomes.</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_SHOWN">
        <source></source>
        <translation>Mostrar a barra de ferramentas da janela principal.</translation>
    </message>
    <message id="setting_QUIVA_CHECK_COMPOSITOR">
        <source></source>
        <translation>Se foi dito que a vista em ecrã completo precisa de um ambiente de trabalho com transparência.</translation>
    </message>
    <message id="setting_QUIVA_WINDOW_FRAME">
        <source></source>
        <translation>Posição e tamanho da janela da vista animada.</translation>
    </message>
    <message id="graph_missing">
        <source></source>
        <translation>não se sabe</translation>
    </message>
    <message id="graph_spoken_range">
        <source></source>
        <translation>entre %1 e %2</translation>
    </message>
    <message id="graph_spoken_span">
        <source></source>
        <translation>em %1</translation>
    </message>
    <message id="graph_now">
        <source></source>
        <translation>agora</translation>
    </message>
    <message id="graph_seconds_ago">
        <source></source>
        <translation>−%1 s</translation>
    </message>
    <message id="graph_minutes_ago">
        <source></source>
        <translation>−%1 min</translation>
    </message>
    <message id="menu_window_show_machine">
        <source></source>
        <translation>&amp;Máquina</translation>
    </message>
    <message id="help_menu_window_show_machine">
        <source></source>
        <translation>A máquina no seu todo: processadores, memória, discos, rede e quem esteve mais ocupado</translation>
    </message>
    <message id="fleet_error_unreachable">
        <source></source>
        <translation>Não é possível chegar ao servidor: %1. Verifique o endereço e se o servidor está em execução.</translation>
    </message>
    <message id="fleet_error_timed_out">
        <source></source>
        <translation>O servidor não deu uma resposta completa em %1 segundos. Pode ter demasiado que fazer; um filtro, ou mais tempo entre duas consultas, reduz o trabalho.</translation>
    </message>
    <message id="fleet_error_too_large">
        <source></source>
        <translation>A resposta do servidor passa de %1 MiB e foi posta de parte. Um filtro torna-a mais pequena.</translation>
    </message>
    <message id="fleet_error_certificate">
        <source></source>
        <translation>O servidor não mostrou ser aquele que devia ser: %1. Nada lhe foi enviado. Use o nome para o qual é o seu certificado, ou faça este sistema confiar em quem o emitiu.</translation>
    </message>
    <message id="fleet_error_no_encryption">
        <source></source>
        <translation>O Qt deste sistema não tem TLS, pelo que nenhum endereço https pode ser consultado. Instale a sua parte OpenSSL.</translation>
    </message>
    <message id="fleet_error_credentials">
        <source></source>
        <translation>O servidor quer saber quem pergunta, ou não deixa este utilizador perguntar (%1). “Iniciar sessão…” aceita um nome e uma palavra-passe, ou um token.</translation>
    </message>
    <message id="fleet_error_redirected">
        <source></source>
        <translation>O servidor remete todas as consultas para outro, %1, que não foi consultado. Abra esse endereço se for o correto.</translation>
    </message>
    <message id="fleet_error_not_prometheus">
        <source></source>
        <translation>O que responde neste endereço não é um Prometheus: %1. Verifique a porta e o caminho.</translation>
    </message>
    <message id="fleet_error_server">
        <source></source>
        <translation>O servidor falhou: %1. Será consultado de novo daqui a pouco.</translation>
    </message>
    <message id="fleet_error_query">
        <source></source>
        <translation>O servidor recusou a consulta: %1.</translation>
    </message>
    <message id="fleet_address_empty">
        <source></source>
        <translation>Escreva o endereço de um servidor Prometheus, como http://monitor:9090.</translation>
    </message>
    <message id="fleet_address_has_password">
        <source></source>
        <translation>Um endereço não tem nome nem palavra-passe, porque é guardado e mostrado. Ser-lhe-ão pedidos quando o servidor os quiser.</translation>
    </message>
    <message id="fleet_address_wrong">
        <source></source>
        <translation>“%1” não é um endereço como http://monitor:9090.</translation>
    </message>
    <message id="fleet_address_scheme">
        <source></source>
        <translation>Os servidores são consultados por http ou https, não por “%1”.</translation>
    </message>
    <message id="fleet_credentials_unreadable">
        <source></source>
        <translation>Não é possível ler %1: %2.</translation>
    </message>
    <message id="fleet_credentials_open">
        <source></source>
        <translation>Outros também podem ler ou alterar %1. Retire-lhes esse direito (chmod 600), e use uma nova palavra-passe se era secreta.</translation>
    </message>
    <message id="fleet_credentials_no_line">
        <source></source>
        <translation>%1 não é um ficheiro de uma linha, NOME:PALAVRA-PASSE ou um token.</translation>
    </message>
    <message id="fleet_filter_of_processes">
        <source></source>
        <translation>“%1” só se conhece de processos isolados, não das somas que o servidor tem.</translation>
    </message>
    <message id="fleet_filter_no_text">
        <source></source>
        <translation>“%1” é um número: compare-o, como em cpu&gt;50.</translation>
    </message>
    <message id="fleet_filter_either">
        <source></source>
        <translation>Ao servidor pode pedir-se um de vários textos do mesmo tipo, como em “a | b”, mas não uma de várias condições diferentes.</translation>
    </message>
    <message id="fleet_filter_two_kinds">
        <source></source>
        <translation>Cada grupo é de um só tipo, por isso não há nenhum de ambos: %1.</translation>
    </message>
    <message id="fleet_filter_not_groups">
        <source></source>
        <translation>Não se podem pedir as máquinas que não têm um grupo desses.</translation>
    </message>
    <message id="fleet_filter_not_here">
        <source></source>
        <translation>“%1” não é conhecido aqui.</translation>
    </message>
    <message id="fleet_filter_one_number">
        <source></source>
        <translation>“%1” compara-se com um número.</translation>
    </message>
    <message id="fleet_filter_order">
        <source></source>
        <translation>“%1” compara-se com &lt; ou &gt;, já que as frações quase nunca são iguais.</translation>
    </message>
    <message id="fleet_filter_too_long">
        <source></source>
        <translation>O filtro é demasiado longo.</translation>
    </message>
    <message id="fleet_cpu">
        <source></source>
        <translation>CPU %</translation>
    </message>
    <message id="fleet_cpu_tip">
        <source></source>
        <translation>Parte do tempo dos processadores: numa máquina, de todos eles; num grupo, de um, de modo que 250 são dois e meio. Entre as duas últimas visitas do servidor.</translation>
    </message>
    <message id="fleet_memory">
        <source></source>
        <translation>Memória</translation>
    </message>
    <message id="fleet_memory_tip">
        <source></source>
        <translation>Numa máquina, a memória não disponível; num grupo, a memória residente dos seus processos.</translation>
    </message>
    <message id="fleet_memory_all">
        <source></source>
        <translation>Memória total</translation>
    </message>
    <message id="fleet_memory_all_tip">
        <source></source>
        <translation>Toda a memória da máquina.</translation>
    </message>
    <message id="fleet_swap">
        <source></source>
        <translation>Swap</translation>
    </message>
    <message id="fleet_swap_tip">
        <source></source>
        <translation>Memória enviada para a swap.</translation>
    </message>
    <message id="fleet_load">
        <source></source>
        <translation>Carga</translation>
    </message>
    <message id="fleet_load_tip">
        <source></source>
        <translation>Carga ao longo de um minuto.</translation>
    </message>
    <message id="fleet_disk">
        <source></source>
        <translation>Disco</translation>
    </message>
    <message id="fleet_disk_tip">
        <source></source>
        <translation>Bytes lidos dos discos e neles escritos, por segundo.</translation>
    </message>
    <message id="fleet_network">
        <source></source>
        <translation>Rede</translation>
    </message>
    <message id="fleet_network_tip">
        <source></source>
        <translation>Bytes recebidos e enviados, por segundo; sem o que a máquina envia a si própria.</translation>
    </message>
    <message id="fleet_waits_cpu">
        <source></source>
        <translation>Esperas: CPU %</translation>
    </message>
    <message id="fleet_waits_cpu_tip">
        <source></source>
        <translation>Parte do tempo em que algo esperou por um processador.</translation>
    </message>
    <message id="fleet_waits_memory">
        <source></source>
        <translation>Esperas: memória %</translation>
    </message>
    <message id="fleet_waits_memory_tip">
        <source></source>
        <translation>Parte do tempo em que algo esperou por memória.</translation>
    </message>
    <message id="fleet_waits_disk">
        <source></source>
        <translation>Esperas: disco %</translation>
    </message>
    <message id="fleet_waits_disk_tip">
        <source></source>
        <translation>Parte do tempo em que algo esperou pelos discos.</translation>
    </message>
    <message id="fleet_processes">
        <source></source>
        <translation>Processos</translation>
    </message>
    <message id="fleet_processes_tip">
        <source></source>
        <translation>Quantos processos há.</translation>
    </message>
    <message id="fleet_threads">
        <source></source>
        <translation>Threads</translation>
    </message>
    <message id="fleet_threads_tip">
        <source></source>
        <translation>Quantas threads há.</translation>
    </message>
    <message id="fleet_machines">
        <source></source>
        <translation>Máquinas</translation>
    </message>
    <message id="fleet_machines_tip">
        <source></source>
        <translation>Em quantas máquinas há processos do grupo.</translation>
    </message>
    <message id="fleet_oldest">
        <source></source>
        <translation>A correr há</translation>
    </message>
    <message id="fleet_oldest_tip">
        <source></source>
        <translation>Há quanto tempo foi iniciada a máquina, ou o processo mais antigo do grupo.</translation>
    </message>
    <message id="fleet_seen">
        <source></source>
        <translation>Última vez</translation>
    </message>
    <message id="fleet_seen_tip">
        <source></source>
        <translation>Há quanto tempo o servidor soube da máquina. Uma máquina a que não chega é mostrada como em baixo.</translation>
    </message>
    <message id="fleet_up">
        <source></source>
        <translation>Ativa</translation>
    </message>
    <message id="fleet_up_tip">
        <source></source>
        <translation>Se o servidor chega à máquina.</translation>
    </message>
    <message id="fleet_read">
        <source></source>
        <translation>Lido</translation>
    </message>
    <message id="fleet_read_tip">
        <source></source>
        <translation>Bytes lidos dos discos, por segundo.</translation>
    </message>
    <message id="fleet_written">
        <source></source>
        <translation>Escrito</translation>
    </message>
    <message id="fleet_written_tip">
        <source></source>
        <translation>Bytes escritos nos discos, por segundo.</translation>
    </message>
    <message id="fleet_received">
        <source></source>
        <translation>Recebido</translation>
    </message>
    <message id="fleet_received_tip">
        <source></source>
        <translation>Bytes recebidos, por segundo.</translation>
    </message>
    <message id="fleet_sent">
        <source></source>
        <translation>Enviado</translation>
    </message>
    <message id="fleet_sent_tip">
        <source></source>
        <translation>Bytes enviados, por segundo.</translation>
    </message>
    <message id="fleet_seconds">
        <source></source>
        <translation>%1 s</translation>
    </message>
    <message id="fleet_minutes">
        <source></source>
        <translation>%1 min</translation>
    </message>
    <message id="fleet_hours">
        <source></source>
        <translation>%1 h</translation>
    </message>
    <message id="fleet_days">
        <source></source>
        <translation>%1 d</translation>
    </message>
    <message id="graph_hours_ago">
        <source></source>
        <translation>−%1 h</translation>
    </message>
    <message id="graph_days_ago">
        <source></source>
        <translation>−%1 d</translation>
    </message>
    <message id="fleet_title">
        <source></source>
        <translation>Frota de %1</translation>
    </message>
    <message id="fleet_machine">
        <source></source>
        <translation>Máquina</translation>
    </message>
    <message id="fleet_group">
        <source></source>
        <translation>Nome</translation>
    </message>
    <message id="fleet_down">
        <source></source>
        <translation>em baixo</translation>
    </message>
    <message id="fleet_down_for">
        <source></source>
        <translation>em baixo, %1</translation>
    </message>
    <message id="fleet_show_machines">
        <source></source>
        <translation>Máquinas</translation>
    </message>
    <message id="fleet_show_program">
        <source></source>
        <translation>Programas</translation>
    </message>
    <message id="fleet_show_unit">
        <source></source>
        <translation>Unidades</translation>
    </message>
    <message id="fleet_show_container">
        <source></source>
        <translation>Contentores</translation>
    </message>
    <message id="fleet_show_user">
        <source></source>
        <translation>Utilizadores</translation>
    </message>
    <message id="fleet_back">
        <source></source>
        <translation>Recuar</translation>
    </message>
    <message id="fleet_back_tip">
        <source></source>
        <translation>O que se via antes (Alt+Esquerda)</translation>
    </message>
    <message id="fleet_on">
        <source></source>
        <translation>em %1</translation>
    </message>
    <message id="fleet_with">
        <source></source>
        <translation>com %1</translation>
    </message>
    <message id="fleet_filter">
        <source></source>
        <translation>Filtro, pedido ao servidor</translation>
    </message>
    <message id="fleet_filter_tip">
        <source></source>
        <translation>Como na tabela de processos: web, name:postgres, machine:web-1, unit:nginx, user:root, cpu&gt;50, mem&gt;4G, processes&gt;100. É o servidor que procura, pelo que pode haver qualquer número de máquinas.</translation>
    </message>
    <message id="fleet_interval">
        <source></source>
        <translation>Com que frequência o servidor é consultado</translation>
    </message>
    <message id="fleet_interval_never">
        <source></source>
        <translation>Não por si só</translation>
    </message>
    <message id="fleet_interval_seconds">
        <source></source>
        <translation>A cada %1 s</translation>
    </message>
    <message id="fleet_interval_minutes">
        <source></source>
        <translation>A cada %1 min</translation>
    </message>
    <message id="fleet_sign_in">
        <source></source>
        <translation>Iniciar sessão…</translation>
    </message>
    <message id="fleet_again">
        <source></source>
        <translation>Tentar de novo</translation>
    </message>
    <message id="fleet_open_machine">
        <source></source>
        <translation>Mostrar o que lá corre</translation>
    </message>
    <message id="fleet_open_group">
        <source></source>
        <translation>Mostrar as suas máquinas</translation>
    </message>
    <message id="fleet_ssh">
        <source></source>
        <translation>Abrir ssh num terminal</translation>
    </message>
    <message id="fleet_copy">
        <source></source>
        <translation>Copiar</translation>
    </message>
    <message id="fleet_ssh_no_host">
        <source></source>
        <translation>“%1” não é o nome de uma máquina a que o ssh possa ir.</translation>
    </message>
    <message id="fleet_ssh_no_ssh">
        <source></source>
        <translation>Não há ssh nesta máquina. Instale o cliente OpenSSH.</translation>
    </message>
    <message id="fleet_ssh_no_terminal">
        <source></source>
        <translation>Não há nesta máquina nenhum terminal conhecido. Instale um, como o xterm, ou indique o seu na variável TERMINAL.</translation>
    </message>
    <message id="fleet_ssh_failed">
        <source></source>
        <translation>Não é possível iniciar %1.</translation>
    </message>
    <message id="fleet_old_figures">
        <source></source>
        <translation>Os valores abaixo são os das %1.</translation>
    </message>
    <message id="fleet_count_machines" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n máquina</numerusform>
            <numerusform>%n máquinas</numerusform>
        </translation>
    </message>
    <message id="fleet_count_groups" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n linha</numerusform>
            <numerusform>%n linhas</numerusform>
        </translation>
    </message>
    <message id="fleet_count_down" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n em baixo</numerusform>
            <numerusform>%n em baixo</numerusform>
        </translation>
    </message>
    <message id="fleet_shown_most" numerus="yes">
        <source></source>
        <translation>
            <numerusform>é mostrada %n, a de maior valor em “%1”; um filtro encontra outras</numerusform>
            <numerusform>são mostradas %n, as de maior valor em “%1”; um filtro encontra outras</numerusform>
        </translation>
    </message>
    <message id="fleet_shown_least" numerus="yes">
        <source></source>
        <translation>
            <numerusform>é mostrada %n, a de menor valor em “%1”; um filtro encontra outras</numerusform>
            <numerusform>são mostradas %n, as de menor valor em “%1”; um filtro encontra outras</numerusform>
        </translation>
    </message>
    <message id="fleet_as_of">
        <source></source>
        <translation>às %1</translation>
    </message>
    <message id="fleet_left_out" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n valor da resposta não fazia sentido e foi omitido</numerusform>
            <numerusform>%n valores da resposta não faziam sentido e foram omitidos</numerusform>
        </translation>
    </message>
    <message id="fleet_asking">
        <source></source>
        <translation>A consultar o servidor…</translation>
    </message>
    <message id="fleet_nothing_known">
        <source></source>
        <translation>Ainda não se sabe nada.</translation>
    </message>
    <message id="fleet_nothing_fulfils">
        <source></source>
        <translation>Nada satisfaz o filtro.</translation>
    </message>
    <message id="fleet_nothing_there">
        <source></source>
        <translation>O servidor não conhece valores deste tipo. As máquinas veem-se quando o servidor consulta o seu exportador, lurkwell-export.</translation>
    </message>
    <message id="fleet_span">
        <source></source>
        <translation>Histórico:</translation>
    </message>
    <message id="fleet_span_hour">
        <source></source>
        <translation>1 hora</translation>
    </message>
    <message id="fleet_span_6_hours">
        <source></source>
        <translation>6 horas</translation>
    </message>
    <message id="fleet_span_day">
        <source></source>
        <translation>1 dia</translation>
    </message>
    <message id="fleet_span_week">
        <source></source>
        <translation>7 dias</translation>
    </message>
    <message id="fleet_no_row">
        <source></source>
        <translation>Selecione uma linha para ver o seu histórico.</translation>
    </message>
    <message id="fleet_no_history">
        <source></source>
        <translation>O servidor não tem valores desse tempo.</translation>
    </message>
    <message id="fleet_graph_cpu_machine">
        <source></source>
        <translation>CPU, de todos os processadores</translation>
    </message>
    <message id="fleet_graph_cpu">
        <source></source>
        <translation>CPU, de um processador</translation>
    </message>
    <message id="fleet_graph_waits">
        <source></source>
        <translation>Esperas</translation>
    </message>
    <message id="fleet_graph_traffic">
        <source></source>
        <translation>Disco e rede</translation>
    </message>
    <message id="fleet_memory_series">
        <source></source>
        <translation>Em uso</translation>
    </message>
    <message id="fleet_memory_all_series">
        <source></source>
        <translation>Total</translation>
    </message>
    <message id="fleet_swap_series">
        <source></source>
        <translation>Swap</translation>
    </message>
    <message id="fleet_waits_cpu_series">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="fleet_waits_memory_series">
        <source></source>
        <translation>Memória</translation>
    </message>
    <message id="fleet_waits_disk_series">
        <source></source>
        <translation>Disco</translation>
    </message>
    <message id="fleet_read_series">
        <source></source>
        <translation>Lido</translation>
    </message>
    <message id="fleet_written_series">
        <source></source>
        <translation>Escrito</translation>
    </message>
    <message id="fleet_received_series">
        <source></source>
        <translation>Recebido</translation>
    </message>
    <message id="fleet_sent_series">
        <source></source>
        <translation>Enviado</translation>
    </message>
    <message id="fleet_open_title">
        <source></source>
        <translation>Abrir uma frota</translation>
    </message>
    <message id="fleet_open_words">
        <source></source>
        <translation>O endereço de um servidor Prometheus que consulta os exportadores das suas máquinas:</translation>
    </message>
    <message id="fleet_address">
        <source></source>
        <translation>Endereço</translation>
    </message>
    <message id="fleet_sign_in_title">
        <source></source>
        <translation>Iniciar sessão em %1</translation>
    </message>
    <message id="fleet_sign_in_words">
        <source></source>
        <translation>Um nome e uma palavra-passe, um token ou um ficheiro com qualquer deles. Só são enviados a este servidor, e guardados até a janela ser fechada.</translation>
    </message>
    <message id="fleet_sign_in_in_clear">
        <source></source>
        <translation>Um nome e uma palavra-passe, um token ou um ficheiro com qualquer deles. São guardados até a janela ser fechada. Este endereço não é cifrado: qualquer um pelo caminho os pode ler. Um endereço https é melhor.</translation>
    </message>
    <message id="fleet_sign_in_name">
        <source></source>
        <translation>&amp;Nome:</translation>
    </message>
    <message id="fleet_sign_in_password">
        <source></source>
        <translation>&amp;Palavra-passe:</translation>
    </message>
    <message id="fleet_sign_in_token">
        <source></source>
        <translation>&amp;Token:</translation>
    </message>
    <message id="fleet_sign_in_file">
        <source></source>
        <translation>&amp;Ficheiro:</translation>
    </message>
    <message id="fleet_sign_in_choose">
        <source></source>
        <translation>&amp;Escolher…</translation>
    </message>
    <message id="fleet_sign_in_nothing">
        <source></source>
        <translation>Escreva um nome, um token ou o caminho de um ficheiro.</translation>
    </message>
    <message id="fleet_sign_in_wrong">
        <source></source>
        <translation>Isso não pode ser enviado: um nome não tem dois pontos, e um token não tem espaços nem letras fora do ASCII.</translation>
    </message>
    <message id="fleet_failed">
        <source></source>
        <translation>Não é possível abrir a frota</translation>
    </message>
    <message id="menu_file_open_fleet">
        <source></source>
        <translation>Abrir fr&amp;ota…</translation>
    </message>
    <message id="help_menu_file_open_fleet">
        <source></source>
        <translation>ver todas as máquinas que um servidor Prometheus conhece, numa janela própria</translation>
    </message>
    <message id="setting_title_FLEET_WINDOW_FRAME">
        <source></source>
        <translation>Posição da janela de frota</translation>
    </message>
    <message id="setting_FLEET_WINDOW_FRAME">
        <source></source>
        <translation>Onde esteve pela última vez a janela de uma frota, com o seu tamanho.</translation>
    </message>
    <message id="setting_title_FLEET_WINDOW_SECONDS">
        <source></source>
        <translation>Intervalo da janela de frota</translation>
    </message>
    <message id="setting_FLEET_WINDOW_SECONDS">
        <source></source>
        <translation>Quantos segundos a janela de uma frota espera antes de voltar a consultar o seu servidor; 0 quando só consulta a pedido.</translation>
    </message>
    <message id="setting_title_FLEET_RECENT_ADDRESSES">
        <source></source>
        <translation>Últimas frotas</translation>
    </message>
    <message id="setting_FLEET_RECENT_ADDRESSES">
        <source></source>
        <translation>Os endereços dos últimos servidores que foram abertos, o mais recente primeiro, com sinais de percentagem no lugar de outras letras. Nomes e palavras-passe não estão entre eles.</translation>
    </message>
    <message id="machine_title">
        <source></source>
        <translation>Máquina</translation>
    </message>
    <message id="machine_span">
        <source></source>
        <translation>Mostrar os últimos</translation>
    </message>
    <message id="machine_minutes">
        <source></source>
        <translation>%1 min</translation>
    </message>
    <message id="machine_processors_busy">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="machine_no_processors">
        <source></source>
        <translation>Esta máquina não diz quão ocupados estão os seus processadores.</translation>
    </message>
    <message id="machine_processors">
        <source></source>
        <translation>Processadores</translation>
    </message>
    <message id="machine_processor">
        <source></source>
        <translation>%1: %2</translation>
    </message>
    <message id="machine_memory">
        <source></source>
        <translation>Memória</translation>
    </message>
    <message id="machine_no_memory">
        <source></source>
        <translation>Esta máquina não diz qual é a sua memória.</translation>
    </message>
    <message id="machine_swap">
        <source></source>
        <translation>Swap</translation>
    </message>
    <message id="machine_no_swap">
        <source></source>
        <translation>Esta máquina não tem espaço de swap.</translation>
    </message>
    <message id="machine_used_of">
        <source></source>
        <translation>de %1, em uso</translation>
    </message>
    <message id="machine_disks">
        <source></source>
        <translation>Discos</translation>
    </message>
    <message id="machine_no_disks">
        <source></source>
        <translation>Ainda não há valores dos discos, ou não há discos.</translation>
    </message>
    <message id="machine_network">
        <source></source>
        <translation>Rede</translation>
    </message>
    <message id="machine_no_network">
        <source></source>
        <translation>Ainda não há valores da rede, ou não há rede.</translation>
    </message>
    <message id="machine_all_devices">
        <source></source>
        <translation>Todos</translation>
    </message>
    <message id="machine_read">
        <source></source>
        <translation>lido</translation>
    </message>
    <message id="machine_written">
        <source></source>
        <translation>escrito</translation>
    </message>
    <message id="machine_received">
        <source></source>
        <translation>recebido</translation>
    </message>
    <message id="machine_sent">
        <source></source>
        <translation>enviado</translation>
    </message>
    <message id="machine_pressure">
        <source></source>
        <translation>Pressão</translation>
    </message>
    <message id="machine_no_pressure">
        <source></source>
        <translation>Este núcleo não diz quanto tempo os processos tiveram de esperar.</translation>
    </message>
    <message id="machine_waits_processor">
        <source></source>
        <translation>alguns esperaram pelo CPU</translation>
    </message>
    <message id="machine_waits_memory">
        <source></source>
        <translation>por memória</translation>
    </message>
    <message id="machine_waits_disk">
        <source></source>
        <translation>pelos discos</translation>
    </message>
    <message id="machine_stalled_memory">
        <source></source>
        <translation>todos esperaram por memória</translation>
    </message>
    <message id="machine_stalled_disk">
        <source></source>
        <translation>pelos discos</translation>
    </message>
    <message id="machine_graphics">
        <source></source>
        <translation>Gráficos</translation>
    </message>
    <message id="machine_no_graphics">
        <source></source>
        <translation>Nenhum dispositivo gráfico diz quão ocupado está.</translation>
    </message>
    <message id="machine_busiest_now">
        <source></source>
        <translation>Mais ocupados agora</translation>
    </message>
    <message id="machine_busiest_at">
        <source></source>
        <translation>Mais ocupados às %1</translation>
    </message>
    <message id="machine_back_to_now">
        <source></source>
        <translation>&amp;Agora</translation>
    </message>
    <message id="machine_note">
        <source></source>
        <translation>Um clique num gráfico mostra quem estava mais ocupado nesse momento; um clique num nome mostra-o na tabela de processos.</translation>
    </message>
    <message id="machine_has_ended">
        <source></source>
        <translation>O processo %1 terminou.</translation>
    </message>
    <message id="machine_not_in_table">
        <source></source>
        <translation>O processo %1 não está na tabela: um filtro pode estar a ocultá-lo.</translation>
    </message>
    <message id="machine_ended">
        <source></source>
        <translation>%1 (terminado)</translation>
    </message>
    <message id="machine_name">
        <source></source>
        <translation>Nome</translation>
    </message>
    <message id="machine_pid">
        <source></source>
        <translation>ID do processo</translation>
    </message>
    <message id="machine_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="machine_load">
        <source></source>
        <translation>Carga: %1, %2, %3 em 1, 5 e 15 minutos</translation>
    </message>
    <message id="machine_no_load">
        <source></source>
        <translation>Carga: esta máquina não a diz</translation>
    </message>
    <message id="machine_frequency">
        <source></source>
        <translation>Frequência: %1 GHz (de %2 a %3)</translation>
    </message>
    <message id="machine_no_frequency">
        <source></source>
        <translation>Frequência: esta máquina não a diz</translation>
    </message>
    <message id="machine_no_temperature">
        <source></source>
        <translation>Temperatura: esta máquina não a diz</translation>
    </message>
    <message id="machine_more_temperatures" numerus="yes">
        <source></source>
        <translation>
            <numerusform>mais %n sensor está mais frio</numerusform>
            <numerusform>mais %n sensores estão mais frios</numerusform>
        </translation>
    </message>
    <message id="machine_limits">
        <source></source>
        <translation>Este contentor pode usar %1.</translation>
    </message>
    <message id="machine_limit_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n processador</numerusform>
            <numerusform>%n processadores</numerusform>
        </translation>
    </message>
    <message id="machine_limit_memory">
        <source></source>
        <translation>%1 de memória</translation>
    </message>
    <message id="machine_limit_memory_used">
        <source></source>
        <translation>%1 de memória (%2 em uso)</translation>
    </message>
    <message id="tray_cpu">
        <source></source>
        <translation>CPU %1</translation>
    </message>
    <message id="tray_busy">
        <source></source>
        <translation>%1: %2</translation>
    </message>
    <message id="setting_title_TRAY_ICON">
        <source></source>
        <translation>Ícone na bandeja</translation>
    </message>
    <message id="setting_title_ACCESSIBLE_QUIET">
        <source></source>
        <translation>Leitor de tela: não anunciar mudanças</translation>
    </message>
    <message id="setting_title_REDUCE_MOTION">
        <source></source>
        <translation>Menos movimento</translation>
    </message>
    <message id="setting_title_MACHINE_HISTORY_ALWAYS">
        <source></source>
        <translation>Histórico da máquina desde o arranque</translation>
    </message>
    <message id="setting_TRAY_ICON">
        <source></source>
        <translation>Mostrar um ícone com um pequeno gráfico dos processadores na bandeja do sistema; a sua dica e o seu menu têm os três processos mais ocupados. Enquanto lá estiver, o programa continua quando a sua última janela é fechada.</translation>
    </message>
    <message id="setting_ACCESSIBLE_QUIET">
        <source></source>
        <translation>O leitor de tela lê aonde você vai e o que pede, e nada do que as atualizações mudam. Sem isto, a linha com o foco é lida de novo a cada poucos segundos enquanto seus valores mudam.</translation>
    </message>
    <message id="setting_REDUCE_MOTION">
        <source></source>
        <translation>Nada se move, desliza ou pisca por si só: a visão animada fica parada assim que seus processos têm seus lugares, e os tamanhos mudam de uma vez. O mesmo vale enquanto a área de trabalho estiver configurada para menos movimento ou sem animações.</translation>
    </message>
    <message id="setting_MACHINE_HISTORY_ALWAYS">
        <source></source>
        <translation>Guardar o que a máquina faz, e quem está mais ocupado, durante uma hora desde o arranque do programa; senão, desde que a janela da máquina é aberta pela primeira vez.</translation>
    </message>
    <message id="setting_title_MACHINE_WINDOW_FRAME">
        <source></source>
        <translation>Janela da máquina: posição e tamanho</translation>
    </message>
    <message id="setting_MACHINE_WINDOW_FRAME">
        <source></source>
        <translation>Posição e tamanho da janela da máquina.</translation>
    </message>
    <message id="setting_title_MACHINE_WINDOW_MINUTES">
        <source></source>
        <translation>Janela da máquina: minutos mostrados</translation>
    </message>
    <message id="setting_MACHINE_WINDOW_MINUTES">
        <source></source>
        <translation>Quantos minutos a janela da máquina mostra. O programa anota aqui o que lá foi escolhido.</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_MACHINE_WINDOW">
        <source></source>
        <translation>A janela da máquina estava aberta</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_MACHINE_WINDOW">
        <source></source>
        <translation>Abrir a janela da máquina no arranque. O programa anota aqui se estava aberta.</translation>
    </message>
    <message id="alert_ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="helper_refused_title">
        <source></source>
        <translation>O Lurkwell tem de ser autenticado com a palavra-passe de um administrador para funcionar neste computador.</translation>
    </message>
    <message id="helper_refused_text">
        <source></source>
        <translation>Sem direitos de administrador, o Lurkwell mostra todos os processos e age sobre os seus. Não perguntará no próximo arranque; a barra de estado indica como voltar a ser questionado.</translation>
    </message>
    <message id="helper_refused_again">
        <source></source>
        <translation>Autenticar de novo</translation>
    </message>
    <message id="helper_refused_quit">
        <source></source>
        <translation>Sair do Lurkwell</translation>
    </message>
    <message id="helper_refused_without">
        <source></source>
        <translation>Continuar sem eles</translation>
    </message>
    <message id="helper_not_wanted">
        <source></source>
        <translation>O Lurkwell foi iniciado sem direitos de administrador</translation>
    </message>
    <message id="helper_refused_by_user">
        <source></source>
        <translation>O Lurkwell continua sem direitos de administrador, como escolheu</translation>
    </message>
    <message id="shortcut_overlay">
        <source></source>
        <translation>Vista animada sobre o ecrã</translation>
    </message>
    <message id="notifications_no_bus">
        <source></source>
        <translation>não há barramento de sessão</translation>
    </message>
    <message id="notifications_too_many">
        <source></source>
        <translation>demasiadas de uma vez</translation>
    </message>
</context>
</TS>
