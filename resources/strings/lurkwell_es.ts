<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="meta_pid">
        <source></source>
        <translation>ID del proceso</translation>
    </message>
    <message id="meta_pid_tip">
        <source></source>
        <translation>El número del proceso. Los procesos del núcleo se cuentan desde 1; 0 es la tarea inactiva, y las aplicaciones del entorno Classic tienen números inventados por debajo de -1.</translation>
    </message>
    <message id="meta_name">
        <source></source>
        <translation>Nombre</translation>
    </message>
    <message id="meta_name_tip">
        <source></source>
        <translation>El nombre de la aplicación si el proceso lo es; si no, el nombre de su comando, completo si puede saberse.</translation>
    </message>
    <message id="meta_active_time">
        <source></source>
        <translation>Tiempo de CPU</translation>
    </message>
    <message id="meta_active_time_tip">
        <source></source>
        <translation>Tiempo de CPU utilizado desde que se inició el proceso, de usuario y de sistema juntos, en segundos. Para las aplicaciones del entorno Classic es una estimación.</translation>
    </message>
    <message id="meta_kind">
        <source></source>
        <translation>Tipo</translation>
    </message>
    <message id="meta_kind_tip">
        <source></source>
        <translation>Qué es: una aplicación del escritorio, una del entorno Classic, un hilo del núcleo, un zombi (terminado, pero su padre no ha pedido su estado de salida) o cualquier otro proceso.</translation>
    </message>
    <message id="meta_psn">
        <source></source>
        <translation>Número de serie</translation>
    </message>
    <message id="meta_psn_tip">
        <source></source>
        <translation>El número de serie de la aplicación en el escritorio, como dos palabras hexadecimales. Ambas son cero para un proceso que no es una aplicación.</translation>
    </message>
    <message id="carbonpsn_name">
        <source></source>
        <translation>Nombre de la aplicación</translation>
    </message>
    <message id="carbonpsn_name_tip">
        <source></source>
        <translation>El nombre con el que el escritorio conoce la aplicación. Vacío para un proceso que no es una aplicación.</translation>
    </message>
    <message id="carbonpsn_type">
        <source></source>
        <translation>Tipo de aplicación</translation>
    </message>
    <message id="carbonpsn_type_tip">
        <source></source>
        <translation>El tipo de la aplicación en cuatro caracteres, APPL para una normal. Dato del escritorio.</translation>
    </message>
    <message id="carbonpsn_signature">
        <source></source>
        <translation>Firma de la aplicación</translation>
    </message>
    <message id="carbonpsn_signature_tip">
        <source></source>
        <translation>Cuatro caracteres que distinguen las aplicaciones: el principio del nombre de la entrada de escritorio o de la clase de ventana. Dato del escritorio.</translation>
    </message>
    <message id="carbonpsn_mode">
        <source></source>
        <translation>Modo de la aplicación</translation>
    </message>
    <message id="carbonpsn_mode_tip">
        <source></source>
        <translation>Los indicadores de modo de la aplicación tal como los da el escritorio, como máscara hexadecimal.</translation>
    </message>
    <message id="classicpsn_name">
        <source></source>
        <translation>Nombre Classic</translation>
    </message>
    <message id="classicpsn_name_tip">
        <source></source>
        <translation>El nombre de la aplicación dentro del entorno Classic. Solo lo tienen las aplicaciones de ese entorno.</translation>
    </message>
    <message id="classicpsn_type">
        <source></source>
        <translation>Tipo Classic</translation>
    </message>
    <message id="classicpsn_type_tip">
        <source></source>
        <translation>El tipo de archivo, en cuatro caracteres, de la aplicación dentro del entorno Classic.</translation>
    </message>
    <message id="classicpsn_signature">
        <source></source>
        <translation>Firma Classic</translation>
    </message>
    <message id="classicpsn_signature_tip">
        <source></source>
        <translation>El código de creador, en cuatro caracteres, de la aplicación dentro del entorno Classic.</translation>
    </message>
    <message id="classicpsn_mode">
        <source></source>
        <translation>Modo Classic</translation>
    </message>
    <message id="classicpsn_mode_tip">
        <source></source>
        <translation>Los indicadores de modo de la aplicación dentro del entorno Classic, como máscara hexadecimal.</translation>
    </message>
    <message id="classicpsn_location">
        <source></source>
        <translation>Ubicación Classic</translation>
    </message>
    <message id="classicpsn_location_tip">
        <source></source>
        <translation>La dirección en la que empieza la partición de memoria de la aplicación dentro del entorno Classic, en hexadecimal.</translation>
    </message>
    <message id="classicpsn_size">
        <source></source>
        <translation>Tamaño Classic</translation>
    </message>
    <message id="classicpsn_size_tip">
        <source></source>
        <translation>El tamaño de la partición de memoria de la aplicación dentro del entorno Classic, en bytes.</translation>
    </message>
    <message id="classicpsn_active_time">
        <source></source>
        <translation>Tiempo activo Classic</translation>
    </message>
    <message id="classicpsn_active_time_tip">
        <source></source>
        <translation>Tiempo que la aplicación ha estado activa dentro del entorno Classic, en tics de un sesentavo de segundo.</translation>
    </message>
    <message id="classicpsn_free_mem">
        <source></source>
        <translation>Memoria libre Classic</translation>
    </message>
    <message id="classicpsn_free_mem_tip">
        <source></source>
        <translation>Lo que queda de la partición de memoria de la aplicación dentro del entorno Classic, en bytes.</translation>
    </message>
    <message id="pid_p_comm">
        <source></source>
        <translation>Nombre del comando</translation>
    </message>
    <message id="pid_p_comm_tip">
        <source></source>
        <translation>El nombre del comando, hasta 16 caracteres. El núcleo guarda 15; un nombre más largo se completa a partir de la línea de comandos o del ejecutable.</translation>
    </message>
    <message id="pid_p_priority">
        <source></source>
        <translation>Prioridad</translation>
    </message>
    <message id="pid_p_priority_tip">
        <source></source>
        <translation>La prioridad de planificación del núcleo; los números más bajos se ejecutan antes. Los procesos normales tienen 20 más su valor nice; los de tiempo real están por debajo de cero. De /proc/PID/stat.</translation>
    </message>
    <message id="pid_parent_pid">
        <source></source>
        <translation>ID del padre</translation>
    </message>
    <message id="pid_parent_pid_tip">
        <source></source>
        <translation>El número del proceso que inició este, o del que se hizo cargo de él.</translation>
    </message>
    <message id="pid_p_nice">
        <source></source>
        <translation>Valor nice</translation>
    </message>
    <message id="pid_p_nice_tip">
        <source></source>
        <translation>Cuánto cede el paso el proceso a los demás, de -20 (lo mínimo) a 19 (lo máximo). De /proc/PID/stat.</translation>
    </message>
    <message id="pid_p_starttime">
        <source></source>
        <translation>Inicio</translation>
    </message>
    <message id="pid_p_starttime_tip">
        <source></source>
        <translation>La fecha y la hora en que se inició el proceso. De /proc/PID/stat.</translation>
    </message>
    <message id="pid_user_time">
        <source></source>
        <translation>Tiempo de usuario</translation>
    </message>
    <message id="pid_user_time_tip">
        <source></source>
        <translation>Tiempo de CPU dedicado al código propio del programa, con todos los hilos juntos, en segundos. De /proc/PID/stat.</translation>
    </message>
    <message id="pid_system_time">
        <source></source>
        <translation>Tiempo de sistema</translation>
    </message>
    <message id="pid_system_time_tip">
        <source></source>
        <translation>Tiempo de CPU que el núcleo dedicó al proceso, con todos los hilos juntos, en segundos. De /proc/PID/stat.</translation>
    </message>
    <message id="pid_vsz">
        <source></source>
        <translation>Tamaño virtual</translation>
    </message>
    <message id="pid_vsz_tip">
        <source></source>
        <translation>El tamaño de toda la memoria que el proceso tiene asignada, esté en uso o no, en bytes. De /proc/PID/stat.</translation>
    </message>
    <message id="pid_rsz">
        <source></source>
        <translation>Tamaño residente</translation>
    </message>
    <message id="pid_rsz_tip">
        <source></source>
        <translation>Cuánta memoria del proceso está en la RAM, incluidas las páginas compartidas, en bytes. De /proc/PID/stat.</translation>
    </message>
    <message id="pid_pss">
        <source></source>
        <translation>Memoria, su parte</translation>
    </message>
    <message id="pid_pss_tip">
        <source></source>
        <translation>Tamaño proporcional (PSS): la memoria que el proceso tiene para sí solo y, de cada página que comparte con otros, su parte. Sumado para todos los procesos, da lo que ocupan juntos. De /proc/PID/smaps_rollup, que el núcleo calcula recorriendo la memoria: se lee en segundo plano, primero las filas a la vista. No incluye la memoria enviada al intercambio. No está permitido para los procesos de otros usuarios.</translation>
    </message>
    <message id="pid_uss">
        <source></source>
        <translation>Memoria propia</translation>
    </message>
    <message id="pid_uss_tip">
        <source></source>
        <translation>Tamaño único (USS): la memoria que nadie comparte con el proceso y, por tanto, lo que se recuperaría si terminara. Private_Clean y Private_Dirty de /proc/PID/smaps_rollup, leídos en segundo plano, primero las filas a la vista. No incluye la memoria enviada al intercambio ni las páginas enormes de hugetlbfs. No está permitido para los procesos de otros usuarios.</translation>
    </message>
    <message id="pid_descriptors">
        <source></source>
        <translation>Descriptores abiertos</translation>
    </message>
    <message id="pid_descriptors_tip">
        <source></source>
        <translation>Cuántos descriptores de archivos, sockets, tuberías y similares tiene abiertos el proceso: las entradas de /proc/PID/fd. Se lee en segundo plano. No incluye los archivos que solo están proyectados en memoria. El núcleo lo da para los procesos de otros usuarios desde la versión 6.2.</translation>
    </message>
    <message id="pid_net_received">
        <source></source>
        <translation>Recibido</translation>
    </message>
    <message id="pid_net_received_tip">
        <source></source>
        <translation>Bytes que han llegado por la red, incluido el bucle local. En total significa: desde que Lurkwell observa y, de antes, lo que han transferido las conexiones que siguen abiertas. Se cuentan las conexiones TCP de este espacio de nombres de red, según el diagnóstico de sockets del núcleo, por los descriptores del proceso; una que tengan varios procesos cuenta para cada uno. No se cuentan UDP ni QUIC, las conexiones que empiezan y acaban entre dos lecturas ni otros espacios de nombres de red: un proceso que aún no ha tenido ninguna conexión TCP no tiene valor. No está permitido para los procesos de otros usuarios; vea el valor de la unidad.</translation>
    </message>
    <message id="pid_net_sent">
        <source></source>
        <translation>Enviado</translation>
    </message>
    <message id="pid_net_sent_tip">
        <source></source>
        <translation>Bytes que se enviaron por la red, incluido el bucle local, y cuya recepción confirmó el otro extremo. En total significa: desde que Lurkwell observa y, de antes, lo que han transferido las conexiones que siguen abiertas. Se cuentan las conexiones TCP de este espacio de nombres de red, según el diagnóstico de sockets del núcleo, por los descriptores del proceso; una que tengan varios procesos cuenta para cada uno. No se cuentan UDP ni QUIC, las conexiones que empiezan y acaban entre dos lecturas ni otros espacios de nombres de red: un proceso que aún no ha tenido ninguna conexión TCP no tiene valor. No está permitido para los procesos de otros usuarios; vea el valor de la unidad.</translation>
    </message>
    <message id="pid_net_receive_rate">
        <source></source>
        <translation>Recepción</translation>
    </message>
    <message id="pid_net_receive_rate_tip">
        <source></source>
        <translation>Bytes por segundo que llegan por la red, entre las dos últimas lecturas. Se cuentan las conexiones TCP de este espacio de nombres de red, según el diagnóstico de sockets del núcleo, por los descriptores del proceso; una que tengan varios procesos cuenta para cada uno. No se cuentan UDP ni QUIC, las conexiones que empiezan y acaban entre dos lecturas ni otros espacios de nombres de red: un proceso que aún no ha tenido ninguna conexión TCP no tiene valor. No está permitido para los procesos de otros usuarios; vea el valor de la unidad.</translation>
    </message>
    <message id="pid_net_send_rate">
        <source></source>
        <translation>Envío</translation>
    </message>
    <message id="pid_net_send_rate_tip">
        <source></source>
        <translation>Bytes por segundo que se envían por la red y se confirman, entre las dos últimas lecturas. Se cuentan las conexiones TCP de este espacio de nombres de red, según el diagnóstico de sockets del núcleo, por los descriptores del proceso; una que tengan varios procesos cuenta para cada uno. No se cuentan UDP ni QUIC, las conexiones que empiezan y acaban entre dos lecturas ni otros espacios de nombres de red: un proceso que aún no ha tenido ninguna conexión TCP no tiene valor. No está permitido para los procesos de otros usuarios; vea el valor de la unidad.</translation>
    </message>
    <message id="pid_connections">
        <source></source>
        <translation>Conexiones</translation>
    </message>
    <message id="pid_connections_tip">
        <source></source>
        <translation>Cuántas conexiones TCP tiene abiertas el proceso, sin las que solo escuchan. Del diagnóstico de sockets del núcleo, por los descriptores del proceso; no se cuentan otros protocolos ni otros espacios de nombres de red. No está permitido para los procesos de otros usuarios.</translation>
    </message>
    <message id="pid_listening_ports">
        <source></source>
        <translation>Escucha en</translation>
    </message>
    <message id="pid_listening_ports_tip">
        <source></source>
        <translation>Los puertos TCP en los que el proceso espera conexiones. Del diagnóstico de sockets del núcleo, por los descriptores del proceso; no incluye UDP ni otros espacios de nombres de red. No está permitido para los procesos de otros usuarios.</translation>
    </message>
    <message id="pid_ports">
        <source></source>
        <translation>Puertos</translation>
    </message>
    <message id="pid_ports_tip">
        <source></source>
        <translation>Los puertos de los sockets TCP y UDP del proceso: los suyos y los de los otros extremos.
De sus descriptores abiertos y de las tablas de sockets de /proc/PID/net; no está permitido para los procesos de otros usuarios.</translation>
    </message>
    <message id="pid_open_files">
        <source></source>
        <translation>Archivos abiertos</translation>
    </message>
    <message id="pid_open_files_tip">
        <source></source>
        <translation>Los nombres de los archivos que el proceso tiene abiertos y su carpeta de trabajo.
De /proc/PID/fd y /proc/PID/cwd; no está permitido para los procesos de otros usuarios.</translation>
    </message>
    <message id="pid_unit_net_received">
        <source></source>
        <translation>Recibido (unidad)</translation>
    </message>
    <message id="pid_unit_net_received_tip">
        <source></source>
        <translation>Bytes que han llegado por conexiones TCP: un valor para todos los procesos de la unidad (grupo de control) juntos, que el diagnóstico de sockets del núcleo da a todos. No se cuentan UDP ni QUIC, las conexiones que empiezan y acaban entre dos lecturas ni otros espacios de nombres de red. En total significa: desde que Lurkwell observa y, de antes, lo que han transferido las conexiones que siguen abiertas.</translation>
    </message>
    <message id="pid_unit_net_sent">
        <source></source>
        <translation>Enviado (unidad)</translation>
    </message>
    <message id="pid_unit_net_sent_tip">
        <source></source>
        <translation>Bytes que se enviaron por conexiones TCP y se confirmaron: un valor para todos los procesos de la unidad (grupo de control) juntos, que el diagnóstico de sockets del núcleo da a todos. No se cuentan UDP ni QUIC, las conexiones que empiezan y acaban entre dos lecturas ni otros espacios de nombres de red. En total significa: desde que Lurkwell observa y, de antes, lo que han transferido las conexiones que siguen abiertas.</translation>
    </message>
    <message id="pid_unit_net_receive_rate">
        <source></source>
        <translation>Recepción (unidad)</translation>
    </message>
    <message id="pid_unit_net_receive_rate_tip">
        <source></source>
        <translation>Bytes por segundo que llegan por conexiones TCP: un valor para todos los procesos de la unidad (grupo de control) juntos, que el diagnóstico de sockets del núcleo da a todos. No se cuentan UDP ni QUIC, las conexiones que empiezan y acaban entre dos lecturas ni otros espacios de nombres de red.</translation>
    </message>
    <message id="pid_unit_net_send_rate">
        <source></source>
        <translation>Envío (unidad)</translation>
    </message>
    <message id="pid_unit_net_send_rate_tip">
        <source></source>
        <translation>Bytes por segundo que se envían por conexiones TCP y se confirman: un valor para todos los procesos de la unidad (grupo de control) juntos, que el diagnóstico de sockets del núcleo da a todos. No se cuentan UDP ni QUIC, las conexiones que empiezan y acaban entre dos lecturas ni otros espacios de nombres de red.</translation>
    </message>
    <message id="pid_gpu_share">
        <source></source>
        <translation>GPU</translation>
    </message>
    <message id="pid_gpu_share_tip">
        <source></source>
        <translation>Durante qué parte del tiempo entre las dos últimas lecturas trabajó para el proceso el motor más ocupado de un dispositivo gráfico. Según los datos de uso que el núcleo guarda con los descriptores de dispositivos gráficos del proceso (/proc/PID/fdinfo); cada cliente de un dispositivo cuenta una vez. No se cuentan los controladores que no guardan ninguno, como el propio de NVIDIA. No se abre ni se despierta ningún dispositivo. No está permitido para los procesos de otros usuarios.</translation>
    </message>
    <message id="pid_gpu_memory">
        <source></source>
        <translation>Memoria de GPU</translation>
    </message>
    <message id="pid_gpu_memory_tip">
        <source></source>
        <translation>Memoria de dispositivos gráficos que ocupa el proceso: lo que reside en ellos si el controlador lo dice; si no, lo que se asignó. Según los datos de uso que el núcleo guarda con los descriptores de dispositivos gráficos del proceso (/proc/PID/fdinfo); cada cliente de un dispositivo cuenta una vez. No se cuentan los controladores que no guardan ninguno, como el propio de NVIDIA. No se abre ni se despierta ningún dispositivo. No está permitido para los procesos de otros usuarios.</translation>
    </message>
    <message id="pid_gpu_engine">
        <source></source>
        <translation>Motor de GPU</translation>
    </message>
    <message id="pid_gpu_engine_tip">
        <source></source>
        <translation>El motor que estuvo más ocupado para el proceso entre las dos últimas lecturas, con las palabras del controlador (render, video, copy y similares). Según los datos de uso que el núcleo guarda con los descriptores de dispositivos gráficos del proceso (/proc/PID/fdinfo); cada cliente de un dispositivo cuenta una vez. No se cuentan los controladores que no guardan ninguno, como el propio de NVIDIA. No se abre ni se despierta ningún dispositivo. No está permitido para los procesos de otros usuarios.</translation>
    </message>
    <message id="value_age_tip" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Leído hace %n segundo.</numerusform>
            <numerusform>Leído hace %n segundos.</numerusform>
        </translation>
    </message>
    <message id="pid_suspend_count">
        <source></source>
        <translation>Detenciones</translation>
    </message>
    <message id="pid_suspend_count_tip">
        <source></source>
        <translation>1 mientras el proceso está detenido, por una señal o por un depurador; si no, 0.</translation>
    </message>
    <message id="pid_terminated_user_time">
        <source></source>
        <translation>Tiempo de usuario de hilos terminados</translation>
    </message>
    <message id="pid_terminated_user_time_tip">
        <source></source>
        <translation>Tiempo de usuario de los hilos que han terminado. Siempre 0 en Linux, donde el tiempo de usuario lo incluye.</translation>
    </message>
    <message id="pid_terminated_system_time">
        <source></source>
        <translation>Tiempo de sistema de hilos terminados</translation>
    </message>
    <message id="pid_terminated_system_time_tip">
        <source></source>
        <translation>Tiempo de sistema de los hilos que han terminado. Siempre 0 en Linux, donde el tiempo de sistema lo incluye.</translation>
    </message>
    <message id="pid_policy">
        <source></source>
        <translation>Política de planificación</translation>
    </message>
    <message id="pid_policy_tip">
        <source></source>
        <translation>La política de planificación del núcleo como número: 0 normal, 1 FIFO, 2 round robin, 3 por lotes, 5 inactiva, 6 con plazos. De /proc/PID/stat.</translation>
    </message>
    <message id="pid_faults">
        <source></source>
        <translation>Fallos de página</translation>
    </message>
    <message id="pid_faults_tip">
        <source></source>
        <translation>Fallos de página desde que se inició el proceso, con y sin lectura del disco. De /proc/PID/stat.</translation>
    </message>
    <message id="pid_pageins">
        <source></source>
        <translation>Páginas leídas</translation>
    </message>
    <message id="pid_pageins_tip">
        <source></source>
        <translation>Fallos de página que tuvieron que esperar a una lectura del disco (fallos mayores). De /proc/PID/stat.</translation>
    </message>
    <message id="pid_cow_faults">
        <source></source>
        <translation>Fallos de copia al escribir</translation>
    </message>
    <message id="pid_cow_faults_tip">
        <source></source>
        <translation>Fallos de página que copiaron una página compartida. Linux no los cuenta: siempre 0.</translation>
    </message>
    <message id="pid_messages_sent">
        <source></source>
        <translation>Mensajes enviados</translation>
    </message>
    <message id="pid_messages_sent_tip">
        <source></source>
        <translation>Mensajes enviados entre el núcleo y el proceso. Linux no tiene esos mensajes: siempre 0.</translation>
    </message>
    <message id="pid_messages_received">
        <source></source>
        <translation>Mensajes recibidos</translation>
    </message>
    <message id="pid_messages_received_tip">
        <source></source>
        <translation>Mensajes recibidos entre el núcleo y el proceso. Linux no tiene esos mensajes: siempre 0.</translation>
    </message>
    <message id="pid_syscalls_mach">
        <source></source>
        <translation>Llamadas al sistema Mach</translation>
    </message>
    <message id="pid_syscalls_mach_tip">
        <source></source>
        <translation>Llamadas de la interfaz del núcleo Mach. Linux no tiene ninguna: siempre 0.</translation>
    </message>
    <message id="pid_syscalls_unix">
        <source></source>
        <translation>Llamadas al sistema Unix</translation>
    </message>
    <message id="pid_syscalls_unix_tip">
        <source></source>
        <translation>Llamadas al sistema que leen o escriben, sumadas; las demás no se cuentan. De /proc/PID/io, que solo pueden leer su usuario y root.</translation>
    </message>
    <message id="pid_csw">
        <source></source>
        <translation>Cambios de contexto</translation>
    </message>
    <message id="pid_csw_tip">
        <source></source>
        <translation>Cuántas veces se retiró una CPU al hilo principal del proceso, voluntariamente o no. De /proc/PID/status.</translation>
    </message>
    <message id="pid_processor">
        <source></source>
        <translation>Última CPU</translation>
    </message>
    <message id="pid_processor_tip">
        <source></source>
        <translation>El número del procesador en el que se ejecutó por última vez el hilo principal del proceso, desde 0. De /proc/PID/stat.</translation>
    </message>
    <message id="pid_cpu_wait">
        <source></source>
        <translation>Espera de CPU</translation>
    </message>
    <message id="pid_cpu_wait_tip">
        <source></source>
        <translation>Cuánto tiempo los hilos del proceso estuvieron listos para ejecutarse y tuvieron que esperar un procesador, en segundos, todos juntos. Faltan los hilos que han terminado. De /proc/PID/task/TID/schedstat.</translation>
    </message>
    <message id="pid_disk_read">
        <source></source>
        <translation>Leído del disco</translation>
    </message>
    <message id="pid_disk_read_tip">
        <source></source>
        <translation>Bytes que los dispositivos de almacenamiento tuvieron que entregar para el proceso desde que se inició. De /proc/PID/io, que solo pueden leer su usuario y root.</translation>
    </message>
    <message id="pid_disk_written">
        <source></source>
        <translation>Escrito en disco</translation>
    </message>
    <message id="pid_disk_written_tip">
        <source></source>
        <translation>Bytes que el proceso ha dado a escribir a los dispositivos de almacenamiento desde que se inició; también cuenta lo que escribió en archivos que se borraron pronto. De /proc/PID/io, que solo pueden leer su usuario y root.</translation>
    </message>
    <message id="pid_bytes_read">
        <source></source>
        <translation>Bytes leídos</translation>
    </message>
    <message id="pid_bytes_read_tip">
        <source></source>
        <translation>Bytes que el proceso obtuvo de sus llamadas de lectura desde que se inició, vinieran de un disco, de una caché o de un terminal. De /proc/PID/io, que solo pueden leer su usuario y root.</translation>
    </message>
    <message id="pid_bytes_written">
        <source></source>
        <translation>Bytes escritos</translation>
    </message>
    <message id="pid_bytes_written_tip">
        <source></source>
        <translation>Bytes que el proceso pasó a sus llamadas de escritura desde que se inició, fueran a un disco, a una caché o a un terminal. De /proc/PID/io, que solo pueden leer su usuario y root.</translation>
    </message>
    <message id="pid_unit_disk_read">
        <source></source>
        <translation>Leído del disco (unidad)</translation>
    </message>
    <message id="pid_unit_disk_read_tip">
        <source></source>
        <translation>Bytes que los dispositivos de almacenamiento han entregado a la unidad (grupo de control) del proceso: a todos sus procesos juntos, incluidos los terminados. De su io.stat, que todos pueden leer; las unidades cuya entrada y salida no se contabiliza no lo tienen.</translation>
    </message>
    <message id="pid_unit_disk_written">
        <source></source>
        <translation>Escrito en disco (unidad)</translation>
    </message>
    <message id="pid_unit_disk_written_tip">
        <source></source>
        <translation>Bytes que la unidad (grupo de control) del proceso ha dado a escribir a los dispositivos de almacenamiento: todos sus procesos juntos, incluidos los terminados. De su io.stat, que todos pueden leer; las unidades cuya entrada y salida no se contabiliza no lo tienen.</translation>
    </message>
    <message id="pid_owner">
        <source></source>
        <translation>Propietario</translation>
    </message>
    <message id="pid_owner_tip">
        <source></source>
        <translation>El usuario al que pertenece el proceso y, tras “as”, aquel como el que actúa si es otro. De /proc/PID/status; un usuario sin nombre es un número.</translation>
    </message>
    <message id="pid_state">
        <source></source>
        <translation>Estado en palabras</translation>
    </message>
    <message id="pid_state_tip">
        <source></source>
        <translation>Qué hace el hilo principal del proceso: running (se ejecuta o está listo), sleeping (duerme), uninterruptible (ininterrumpible; casi siempre espera un disco), stopped (detenido), traced (seguido por un depurador), zombie (terminado, aún no recogido), idle (propio del núcleo). De /proc/PID/stat. Otros hilos pueden hacer otra cosa.</translation>
    </message>
    <message id="pid_threads">
        <source></source>
        <translation>Número de hilos</translation>
    </message>
    <message id="pid_threads_tip">
        <source></source>
        <translation>Cuántos hilos tiene el proceso. De /proc/PID/stat. Los hilos que han terminado no se cuentan.</translation>
    </message>
    <message id="pid_terminal">
        <source></source>
        <translation>Terminal de control</translation>
    </message>
    <message id="pid_terminal_tip">
        <source></source>
        <translation>El terminal al que pertenece el proceso, por su nombre bajo /dev. De /proc/PID/stat. Vacío para un proceso sin terminal; un programa en una ventana de terminal tiene el de esa ventana.</translation>
    </message>
    <message id="pid_command_line">
        <source></source>
        <translation>Línea de comandos completa</translation>
    </message>
    <message id="pid_command_line_tip">
        <source></source>
        <translation>El programa y sus argumentos; los caracteres que no se pueden mostrar se escriben como escapes. De /proc/PID/cmdline, unos 4000 caracteres como máximo, tal como el proceso los tiene ahora: puede reescribirlos. Al imprimir y escribir es solo el programa, salvo que esté activado el ajuste KEEP_COMMAND_LINES.</translation>
    </message>
    <message id="pid_executable">
        <source></source>
        <translation>Archivo ejecutable</translation>
    </message>
    <message id="pid_executable_tip">
        <source></source>
        <translation>El archivo que ejecuta el proceso, con “(deleted)” cuando se ha sustituido o eliminado. De /proc/PID/exe, que solo pueden leer su usuario y root. Los hilos del núcleo no lo tienen.</translation>
    </message>
    <message id="pid_running_time">
        <source></source>
        <translation>En ejecución</translation>
    </message>
    <message id="pid_running_time_tip">
        <source></source>
        <translation>Cuánto hace que se inició el proceso, en días, horas, minutos y segundos; incluye el tiempo que el equipo estuvo suspendido. De /proc/PID/stat y del reloj.</translation>
    </message>
    <message id="pid_cpu_share">
        <source></source>
        <translation>CPU % de un proc.</translation>
    </message>
    <message id="pid_cpu_share_of_machine">
        <source></source>
        <translation>CPU % de todos</translation>
    </message>
    <message id="pid_cpu_share_tip">
        <source></source>
        <translation>Cuánto usó el proceso de un procesador desde la última actualización, con todos sus hilos juntos: 100 es un procesador todo el tiempo; cuatro hilos ocupados suman 400. De los tiempos de /proc/PID/stat, que cuentan en centésimas de segundo. No incluye lo que usaron los hijos terminados.</translation>
    </message>
    <message id="pid_user_share">
        <source></source>
        <translation>Usuario % de un proc.</translation>
    </message>
    <message id="pid_user_share_of_machine">
        <source></source>
        <translation>Usuario % de todos</translation>
    </message>
    <message id="pid_user_share_tip">
        <source></source>
        <translation>Cuánto usó el proceso de un procesador desde la última actualización para su propio código. De los tiempos de /proc/PID/stat.</translation>
    </message>
    <message id="pid_system_share">
        <source></source>
        <translation>Sistema % de un proc.</translation>
    </message>
    <message id="pid_system_share_of_machine">
        <source></source>
        <translation>Sistema % de todos</translation>
    </message>
    <message id="pid_system_share_tip">
        <source></source>
        <translation>Cuánto usó el núcleo de un procesador para el proceso desde la última actualización. De los tiempos de /proc/PID/stat.</translation>
    </message>
    <message id="pid_affinity">
        <source></source>
        <translation>CPU permitidas</translation>
    </message>
    <message id="pid_affinity_tip">
        <source></source>
        <translation>Los procesadores en los que puede ejecutarse el hilo principal del proceso, por sus números desde 0. Según sched_getaffinity del núcleo. Incluye los límites del grupo de control del proceso; otros hilos pueden tener otros.</translation>
    </message>
    <message id="pid_scheduler">
        <source></source>
        <translation>Planificador</translation>
    </message>
    <message id="pid_scheduler_tip">
        <source></source>
        <translation>Cómo reparte el núcleo los procesadores con el proceso: normal, batch (por lotes), idle (solo cuando nadie más los quiere), real time (tiempo real), deadline (con plazos). De /proc/PID/stat, para su hilo principal.</translation>
    </message>
    <message id="pid_io_priority">
        <source></source>
        <translation>Prioridad de E/S</translation>
    </message>
    <message id="pid_io_priority_tip">
        <source></source>
        <translation>Qué lugar ocupa el proceso cuando espera un disco: su clase y su nivel, de 0, el más alto, a 7. Según ioprio_get del núcleo. Los discos sin planificador, como la mayoría de los NVMe, no la tienen en cuenta.</translation>
    </message>
    <message id="pid_shared_memory">
        <source></source>
        <translation>Memoria compartida</translation>
    </message>
    <message id="pid_shared_memory_tip">
        <source></source>
        <translation>Memoria del proceso que otros también pueden tener asignada: partes de archivos y bibliotecas, y memoria destinada a compartirse. De RssFile y RssShmem de /proc/PID/status. Es parte de la memoria real, la comparta alguien o no.</translation>
    </message>
    <message id="pid_swap">
        <source></source>
        <translation>En intercambio</translation>
    </message>
    <message id="pid_swap_tip">
        <source></source>
        <translation>Memoria del proceso que se trasladó al espacio de intercambio. De VmSwap de /proc/PID/status. No incluye la memoria compartida enviada al intercambio.</translation>
    </message>
    <message id="pid_highest_rsz">
        <source></source>
        <translation>Máx. memoria real</translation>
    </message>
    <message id="pid_highest_rsz_tip">
        <source></source>
        <translation>La mayor cantidad de memoria que el proceso ha tenido en un momento. De VmHWM de /proc/PID/status.</translation>
    </message>
    <message id="pid_memory_share">
        <source></source>
        <translation>Memoria %</translation>
    </message>
    <message id="pid_memory_share_tip">
        <source></source>
        <translation>Memoria real del proceso como parte de toda la que tiene el equipo. De /proc/PID/stat. Lo compartido cuenta entero para cada uno que lo tiene, así que la suma puede superar 100.</translation>
    </message>
    <message id="pid_oom_score">
        <source></source>
        <translation>Puntuación OOM</translation>
    </message>
    <message id="pid_oom_score_tip">
        <source></source>
        <translation>Quién se termina primero cuando falta memoria: el proceso con la puntuación más alta. De /proc/PID/oom_score.</translation>
    </message>
    <message id="pid_disk_read_rate">
        <source></source>
        <translation>Lect. disco/s</translation>
    </message>
    <message id="pid_disk_read_rate_tip">
        <source></source>
        <translation>Lo que los dispositivos de almacenamiento tuvieron que entregar para el proceso, en bytes por segundo desde la última actualización. De /proc/PID/io, que solo pueden leer su usuario y root; para los procesos de otros, vea el valor de la unidad.</translation>
    </message>
    <message id="pid_disk_write_rate">
        <source></source>
        <translation>Escr. disco/s</translation>
    </message>
    <message id="pid_disk_write_rate_tip">
        <source></source>
        <translation>Lo que el proceso dio a escribir a los dispositivos de almacenamiento, en bytes por segundo desde la última actualización. De /proc/PID/io, que solo pueden leer su usuario y root; para los procesos de otros, vea el valor de la unidad.</translation>
    </message>
    <message id="pid_read_rate">
        <source></source>
        <translation>Lectura/s</translation>
    </message>
    <message id="pid_read_rate_tip">
        <source></source>
        <translation>Lo que el proceso obtuvo de sus llamadas de lectura, en bytes por segundo desde la última actualización, de un disco, una caché, una tubería o un terminal. De /proc/PID/io, que solo pueden leer su usuario y root.</translation>
    </message>
    <message id="pid_write_rate">
        <source></source>
        <translation>Escritura/s</translation>
    </message>
    <message id="pid_write_rate_tip">
        <source></source>
        <translation>Lo que el proceso pasó a sus llamadas de escritura, en bytes por segundo desde la última actualización, a un disco, una caché, una tubería o un terminal. De /proc/PID/io, que solo pueden leer su usuario y root.</translation>
    </message>
    <message id="pid_unit_read_rate">
        <source></source>
        <translation>Lect. disco/s (unidad)</translation>
    </message>
    <message id="pid_unit_read_rate_tip">
        <source></source>
        <translation>Lo que los dispositivos de almacenamiento entregaron a la unidad (grupo de control) del proceso, con todos sus procesos juntos, en bytes por segundo desde la última actualización. De su io.stat, que todos pueden leer; las unidades cuya entrada y salida no se contabiliza no lo tienen.</translation>
    </message>
    <message id="pid_unit_write_rate">
        <source></source>
        <translation>Escr. disco/s (unidad)</translation>
    </message>
    <message id="pid_unit_write_rate_tip">
        <source></source>
        <translation>Lo que la unidad (grupo de control) del proceso dio a escribir a los dispositivos de almacenamiento, con todos sus procesos juntos, en bytes por segundo desde la última actualización. De su io.stat, que todos pueden leer; las unidades cuya entrada y salida no se contabiliza no lo tienen.</translation>
    </message>
    <message id="pid_cgroup">
        <source></source>
        <translation>Ruta del grupo de control</translation>
    </message>
    <message id="pid_cgroup_tip">
        <source></source>
        <translation>El grupo de control del proceso, desde la raíz que ve este programa. De /proc/PID/cgroup. Si hay varias jerarquías, la unificada; si no, la del gestor de servicios.</translation>
    </message>
    <message id="pid_unit">
        <source></source>
        <translation>Servicio o ámbito</translation>
    </message>
    <message id="pid_unit_tip">
        <source></source>
        <translation>La unidad del gestor de servicios a la que pertenece el proceso: un servicio, una sesión, el ámbito (scope) de una aplicación. De la ruta de su grupo de control. Vacío sin un gestor así.</translation>
    </message>
    <message id="pid_slice">
        <source></source>
        <translation>Slice de unidades</translation>
    </message>
    <message id="pid_slice_tip">
        <source></source>
        <translation>El grupo de unidades (slice) en el que está la unidad del proceso. De la ruta de su grupo de control.</translation>
    </message>
    <message id="pid_app_scope">
        <source></source>
        <translation>Ámbito de la aplicación</translation>
    </message>
    <message id="pid_app_scope_tip">
        <source></source>
        <translation>La aplicación para la que el gestor de sesiones mantiene el proceso, por su entrada de escritorio. De la ruta de su grupo de control. Vacío para servicios y para escritorios que no clasifican sus aplicaciones.</translation>
    </message>
    <message id="pid_container">
        <source></source>
        <translation>Contenedor</translation>
    </message>
    <message id="pid_container_tip">
        <source></source>
        <translation>Tipo y nombre o número del contenedor en el que está el proceso: Docker, Podman, containerd, CRI-O, Kubernetes, LXC, systemd-nspawn, Flatpak, Snap. De la ruta de su grupo de control; no se conoce un motor que llame a sus grupos de otro modo. “own pid namespace” (espacio de nombres de PID propio) para lo que está aislado sin motor, como las partes de un navegador web.</translation>
    </message>
    <message id="pid_inner_pid">
        <source></source>
        <translation>PID interior</translation>
    </message>
    <message id="pid_inner_pid_tip">
        <source></source>
        <translation>El número del proceso en el espacio de nombres de PID más interno en el que está, cuando no es el de este programa. De NSpid de /proc/PID/status.</translation>
    </message>
    <message id="pid_namespace">
        <source></source>
        <translation>Espacio de nombres de PID</translation>
    </message>
    <message id="pid_namespace_tip">
        <source></source>
        <translation>El número del espacio de nombres de PID en el que está el proceso: los que tienen el mismo número se ven entre sí. De /proc/PID/ns/pid, que solo pueden leer su usuario y root.</translation>
    </message>
    <message id="pid_capabilities">
        <source></source>
        <translation>Capacidades efectivas</translation>
    </message>
    <message id="pid_capabilities_tip">
        <source></source>
        <translation>Cuáles de los permisos de root tiene ahora el proceso. De CapEff de /proc/PID/status, para su hilo principal. En un espacio de nombres de usuario solo cuentan dentro de él.</translation>
    </message>
    <message id="pid_seccomp">
        <source></source>
        <translation>Filtro de llamadas al sistema</translation>
    </message>
    <message id="pid_seccomp_tip">
        <source></source>
        <translation>Si el proceso tiene filtradas sus propias llamadas al sistema: off (no), strict (casi no queda ninguna) o filter (con filtro). De Seccomp de /proc/PID/status.</translation>
    </message>
    <message id="pid_no_new_privileges">
        <source></source>
        <translation>Sin nuevos privilegios</translation>
    </message>
    <message id="pid_no_new_privileges_tip">
        <source></source>
        <translation>Si los programas que inicia el proceso no pueden obtener más permisos que él, digan lo que digan sus archivos. De NoNewPrivs de /proc/PID/status.</translation>
    </message>
    <message id="pid_label">
        <source></source>
        <translation>Etiqueta del módulo de seguridad</translation>
    </message>
    <message id="pid_label_tip">
        <source></source>
        <translation>Cómo llaman al proceso AppArmor, SELinux o Smack. De /proc/PID/attr/current; no existe sin un módulo así.</translation>
    </message>
    <message id="pid_elevated">
        <source></source>
        <translation>Elevado</translation>
    </message>
    <message id="pid_elevated_tip">
        <source></source>
        <translation>Si el proceso tiene permisos que los demás de su usuario no tienen: root cuando actúa como root, capabilities cuando tiene algunos de los permisos de root. De Uid y CapEff de /proc/PID/status.</translation>
    </message>
    <message id="internal_Icon">
        <source></source>
        <translation>Icono</translation>
    </message>
    <message id="internal_Icon_tip">
        <source></source>
        <translation>El icono de la aplicación. Un proceso que no es una aplicación no lo tiene.</translation>
    </message>
    <message id="internal_Indicator">
        <source></source>
        <translation>Indicador</translation>
    </message>
    <message id="internal_Indicator_tip">
        <source></source>
        <translation>Una marca de lo que se hizo aquí con el proceso: detenido, o su prioridad subida o bajada.</translation>
    </message>
    <message id="internal_CPUPercent">
        <source></source>
        <translation>Uso de CPU</translation>
    </message>
    <message id="internal_CPUPercent_tip">
        <source></source>
        <translation>La parte de una CPU que el proceso usó desde la actualización anterior, como barra.</translation>
    </message>
    <message id="internal_MemGraph">
        <source></source>
        <translation>Memoria</translation>
    </message>
    <message id="internal_MemGraph_tip">
        <source></source>
        <translation>El tamaño residente y el virtual del proceso, como barra.</translation>
    </message>
    <message id="%CPU">
        <source></source>
        <translation>Uso de CPU (%CPU)</translation>
    </message>
    <message id="%CPU_tip">
        <source></source>
        <translation>Tiempo de CPU utilizado dividido por el tiempo que lleva en ejecución el proceso, en tanto por ciento. Es una media de toda la vida del proceso.</translation>
    </message>
    <message id="%CUC">
        <source></source>
        <translation>Uso de CPU con hijos (%CUC)</translation>
    </message>
    <message id="%CUC_tip">
        <source></source>
        <translation>Tiempo de CPU del proceso y de sus hijos terminados dividido por el tiempo que lleva en ejecución, en tanto por ciento con tres decimales.</translation>
    </message>
    <message id="%CUU">
        <source></source>
        <translation>Uso de CPU (%CUU)</translation>
    </message>
    <message id="%CUU_tip">
        <source></source>
        <translation>Tiempo de CPU utilizado dividido por el tiempo que lleva en ejecución el proceso, en tanto por ciento con tres decimales.</translation>
    </message>
    <message id="%MEM">
        <source></source>
        <translation>Uso de memoria (%MEM)</translation>
    </message>
    <message id="%MEM_tip">
        <source></source>
        <translation>El tamaño residente como porcentaje de la memoria física del equipo.</translation>
    </message>
    <message id="AGID">
        <source></source>
        <translation>ID de autogrupo (AGID)</translation>
    </message>
    <message id="AGID_tip">
        <source></source>
        <translation>El número del grupo automático del planificador al que pertenece el proceso; por lo general, cada sesión tiene uno.</translation>
    </message>
    <message id="AGNI">
        <source></source>
        <translation>Valor nice del autogrupo (AGNI)</translation>
    </message>
    <message id="AGNI_tip">
        <source></source>
        <translation>El valor nice del grupo automático del planificador: cuánto cede el paso todo el grupo a los demás.</translation>
    </message>
    <message id="API">
        <source></source>
        <translation>Prioridad (API)</translation>
    </message>
    <message id="API_tip">
        <source></source>
        <translation>La prioridad de planificación en una de las escalas históricas que ofrece ps: -1 menos la prioridad del núcleo.</translation>
    </message>
    <message id="BLOCKED">
        <source></source>
        <translation>Señales bloqueadas (BLOCKED)</translation>
    </message>
    <message id="BLOCKED_tip">
        <source></source>
        <translation>Las señales cuya entrega ha aplazado el proceso, como máscara hexadecimal.</translation>
    </message>
    <message id="BSDTIME">
        <source></source>
        <translation>Tiempo de CPU (BSDTIME)</translation>
    </message>
    <message id="BSDTIME_tip">
        <source></source>
        <translation>Tiempo de CPU utilizado desde que se inició el proceso, de usuario y de sistema juntos. Igual que TIME.</translation>
    </message>
    <message id="C">
        <source></source>
        <translation>Uso de CPU (C)</translation>
    </message>
    <message id="C_tip">
        <source></source>
        <translation>Tiempo de CPU utilizado dividido por el tiempo que lleva en ejecución el proceso, en tanto por ciento entero.</translation>
    </message>
    <message id="CATCHED">
        <source></source>
        <translation>Señales capturadas (CATCHED)</translation>
    </message>
    <message id="CATCHED_tip">
        <source></source>
        <translation>Las señales para las que el proceso tiene un manejador propio, como máscara hexadecimal. Igual que CAUGHT.</translation>
    </message>
    <message id="CAUGHT">
        <source></source>
        <translation>Señales capturadas (CAUGHT)</translation>
    </message>
    <message id="CAUGHT_tip">
        <source></source>
        <translation>Las señales para las que el proceso tiene un manejador propio, como máscara hexadecimal.</translation>
    </message>
    <message id="CGNAME">
        <source></source>
        <translation>Nombres de grupos de control (CGNAME)</translation>
    </message>
    <message id="CGNAME_tip">
        <source></source>
        <translation>Los nombres de los grupos de control a los que pertenece el proceso, tal como los da el núcleo.</translation>
    </message>
    <message id="CGROUP">
        <source></source>
        <translation>Grupos de control (CGROUP)</translation>
    </message>
    <message id="CGROUP_tip">
        <source></source>
        <translation>Los grupos de control a los que pertenece el proceso.</translation>
    </message>
    <message id="CGROUPNS">
        <source></source>
        <translation>Espacio de nombres de grupos de control (CGROUPNS)</translation>
    </message>
    <message id="CGROUPNS_tip">
        <source></source>
        <translation>El número de inodo del espacio de nombres de grupos de control en el que vive el proceso. Los procesos con el mismo número lo comparten.</translation>
    </message>
    <message id="CLS">
        <source></source>
        <translation>Clase de planificación (CLS)</translation>
    </message>
    <message id="CLS_tip">
        <source></source>
        <translation>La clase de planificación: TS normal, FF el primero en entrar es el primero en salir, RR round robin, B por lotes, IDL inactiva, DLN con plazos.</translation>
    </message>
    <message id="CMD">
        <source></source>
        <translation>Línea de comandos (CMD)</translation>
    </message>
    <message id="CMD_tip">
        <source></source>
        <translation>El comando con todos sus argumentos. Igual que COMMAND.</translation>
    </message>
    <message id="COMM">
        <source></source>
        <translation>Nombre del comando (COMM)</translation>
    </message>
    <message id="COMM_tip">
        <source></source>
        <translation>El nombre del comando sin sus argumentos.</translation>
    </message>
    <message id="COMMAND">
        <source></source>
        <translation>Línea de comandos (COMMAND)</translation>
    </message>
    <message id="COMMAND_tip">
        <source></source>
        <translation>El comando con todos sus argumentos. Si no se pueden obtener, como con los hilos del núcleo, el nombre del comando entre corchetes.</translation>
    </message>
    <message id="CONTEXT">
        <source></source>
        <translation>Contexto de seguridad (CONTEXT)</translation>
    </message>
    <message id="CONTEXT_tip">
        <source></source>
        <translation>El contexto de seguridad que el control de acceso del núcleo (SELinux, por ejemplo) dio al proceso; un guion si no hay ninguno.</translation>
    </message>
    <message id="CP">
        <source></source>
        <translation>Uso de CPU (CP)</translation>
    </message>
    <message id="CP_tip">
        <source></source>
        <translation>Tiempo de CPU utilizado dividido por el tiempo que lleva en ejecución el proceso, en milésimas.</translation>
    </message>
    <message id="CPUID">
        <source></source>
        <translation>Última CPU (CPUID)</translation>
    </message>
    <message id="CPUID_tip">
        <source></source>
        <translation>El número del procesador en el que el proceso se ejecutó por última vez.</translation>
    </message>
    <message id="CPUTIMES">
        <source></source>
        <translation>Segundos de CPU (CPUTIMES)</translation>
    </message>
    <message id="CPUTIMES_tip">
        <source></source>
        <translation>Tiempo de CPU utilizado desde que se inició el proceso, de usuario y de sistema juntos, en segundos.</translation>
    </message>
    <message id="DRS">
        <source></source>
        <translation>Tamaño de los datos (DRS)</translation>
    </message>
    <message id="DRS_tip">
        <source></source>
        <translation>El tamaño de toda la memoria asignada, salvo el código ejecutable. A pesar del nombre, no toda tiene que estar en la RAM.</translation>
    </message>
    <message id="DSIZ">
        <source></source>
        <translation>Tamaño de los datos (DSIZ)</translation>
    </message>
    <message id="DSIZ_tip">
        <source></source>
        <translation>El tamaño de toda la memoria asignada, salvo el código ejecutable.</translation>
    </message>
    <message id="EGID">
        <source></source>
        <translation>ID de grupo efectivo (EGID)</translation>
    </message>
    <message id="EGID_tip">
        <source></source>
        <translation>El número del grupo cuyos permisos tiene el proceso.</translation>
    </message>
    <message id="EGROUP">
        <source></source>
        <translation>Grupo efectivo (EGROUP)</translation>
    </message>
    <message id="EGROUP_tip">
        <source></source>
        <translation>El nombre del grupo cuyos permisos tiene el proceso.</translation>
    </message>
    <message id="EIP">
        <source></source>
        <translation>Puntero de instrucción (EIP)</translation>
    </message>
    <message id="EIP_tip">
        <source></source>
        <translation>La dirección de la instrucción en la que está el proceso. Desde la versión 4.9, el núcleo solo la muestra mientras un proceso termina; en los demás casos es cero.</translation>
    </message>
    <message id="ELAPSED">
        <source></source>
        <translation>Tiempo transcurrido (ELAPSED)</translation>
    </message>
    <message id="ELAPSED_tip">
        <source></source>
        <translation>Tiempo desde que se inició el proceso, en días, horas, minutos y segundos.</translation>
    </message>
    <message id="ESP">
        <source></source>
        <translation>Puntero de pila (ESP)</translation>
    </message>
    <message id="ESP_tip">
        <source></source>
        <translation>La dirección de la cima de la pila. Desde la versión 4.9, el núcleo solo la muestra mientras un proceso termina; en los demás casos es cero.</translation>
    </message>
    <message id="ETIMES">
        <source></source>
        <translation>Segundos transcurridos (ETIMES)</translation>
    </message>
    <message id="ETIMES_tip">
        <source></source>
        <translation>Tiempo desde que se inició el proceso, en segundos.</translation>
    </message>
    <message id="EUID">
        <source></source>
        <translation>ID de usuario efectivo (EUID)</translation>
    </message>
    <message id="EUID_tip">
        <source></source>
        <translation>El número del usuario cuyos permisos tiene el proceso.</translation>
    </message>
    <message id="EUSER">
        <source></source>
        <translation>Usuario efectivo (EUSER)</translation>
    </message>
    <message id="EUSER_tip">
        <source></source>
        <translation>El nombre del usuario cuyos permisos tiene el proceso.</translation>
    </message>
    <message id="EXE">
        <source></source>
        <translation>Ejecutable (EXE)</translation>
    </message>
    <message id="EXE_tip">
        <source></source>
        <translation>La ruta del archivo del programa; un guion para los hilos del núcleo, una cruz donde no se puede leer.</translation>
    </message>
    <message id="F">
        <source></source>
        <translation>Indicadores (F)</translation>
    </message>
    <message id="F_tip">
        <source></source>
        <translation>Indicadores del proceso, sumados: 1 bifurcado pero aún sin programa propio, 4 ha usado los permisos del superusuario.</translation>
    </message>
    <message id="FGID">
        <source></source>
        <translation>ID de grupo de acceso a archivos (FGID)</translation>
    </message>
    <message id="FGID_tip">
        <source></source>
        <translation>El número del grupo que cuenta cuando el proceso abre archivos.</translation>
    </message>
    <message id="FGROUP">
        <source></source>
        <translation>Grupo de acceso a archivos (FGROUP)</translation>
    </message>
    <message id="FGROUP_tip">
        <source></source>
        <translation>El nombre del grupo que cuenta cuando el proceso abre archivos.</translation>
    </message>
    <message id="FNAME">
        <source></source>
        <translation>Nombre del comando, abreviado (FNAME)</translation>
    </message>
    <message id="FNAME_tip">
        <source></source>
        <translation>Las ocho primeras letras del nombre del comando.</translation>
    </message>
    <message id="FSGID">
        <source></source>
        <translation>ID de grupo de acceso a archivos (FSGID)</translation>
    </message>
    <message id="FSGID_tip">
        <source></source>
        <translation>El número del grupo que cuenta cuando el proceso abre archivos. Igual que FGID.</translation>
    </message>
    <message id="FSGROUP">
        <source></source>
        <translation>Grupo de acceso a archivos (FSGROUP)</translation>
    </message>
    <message id="FSGROUP_tip">
        <source></source>
        <translation>El nombre del grupo que cuenta cuando el proceso abre archivos. Igual que FGROUP.</translation>
    </message>
    <message id="FSUID">
        <source></source>
        <translation>ID de usuario de acceso a archivos (FSUID)</translation>
    </message>
    <message id="FSUID_tip">
        <source></source>
        <translation>El número del usuario que cuenta cuando el proceso abre archivos. Igual que FUID.</translation>
    </message>
    <message id="FSUSER">
        <source></source>
        <translation>Usuario de acceso a archivos (FSUSER)</translation>
    </message>
    <message id="FSUSER_tip">
        <source></source>
        <translation>El nombre del usuario que cuenta cuando el proceso abre archivos. Igual que FUSER.</translation>
    </message>
    <message id="FUID">
        <source></source>
        <translation>ID de usuario de acceso a archivos (FUID)</translation>
    </message>
    <message id="FUID_tip">
        <source></source>
        <translation>El número del usuario que cuenta cuando el proceso abre archivos.</translation>
    </message>
    <message id="FUSER">
        <source></source>
        <translation>Usuario de acceso a archivos (FUSER)</translation>
    </message>
    <message id="FUSER_tip">
        <source></source>
        <translation>El nombre del usuario que cuenta cuando el proceso abre archivos.</translation>
    </message>
    <message id="GID">
        <source></source>
        <translation>ID de grupo (GID)</translation>
    </message>
    <message id="GID_tip">
        <source></source>
        <translation>El número del grupo efectivo. Igual que EGID.</translation>
    </message>
    <message id="GROUP">
        <source></source>
        <translation>Grupo (GROUP)</translation>
    </message>
    <message id="GROUP_tip">
        <source></source>
        <translation>El nombre del grupo efectivo. Igual que EGROUP.</translation>
    </message>
    <message id="IGNORED">
        <source></source>
        <translation>Señales ignoradas (IGNORED)</translation>
    </message>
    <message id="IGNORED_tip">
        <source></source>
        <translation>Las señales que el proceso ignora, como máscara hexadecimal.</translation>
    </message>
    <message id="IPCNS">
        <source></source>
        <translation>Espacio de nombres de IPC (IPCNS)</translation>
    </message>
    <message id="IPCNS_tip">
        <source></source>
        <translation>El número de inodo del espacio de nombres de comunicación entre procesos en el que vive el proceso. Los procesos con el mismo número lo comparten.</translation>
    </message>
    <message id="LABEL">
        <source></source>
        <translation>Contexto de seguridad (LABEL)</translation>
    </message>
    <message id="LABEL_tip">
        <source></source>
        <translation>La etiqueta que el control de acceso del núcleo dio al proceso; un guion si no hay ninguna. Igual que CONTEXT.</translation>
    </message>
    <message id="LASTCPU">
        <source></source>
        <translation>Última CPU (LASTCPU)</translation>
    </message>
    <message id="LASTCPU_tip">
        <source></source>
        <translation>El número del procesador en el que el proceso se ejecutó por última vez. Igual que PSR.</translation>
    </message>
    <message id="LIM">
        <source></source>
        <translation>Límite de memoria (LIM)</translation>
    </message>
    <message id="LIM_tip">
        <source></source>
        <translation>El límite del tamaño residente, en kibibytes; xx significa sin límite.</translation>
    </message>
    <message id="LSTART">
        <source></source>
        <translation>Fecha de inicio (LSTART)</translation>
    </message>
    <message id="LSTART_tip">
        <source></source>
        <translation>Cuándo se inició el proceso, fecha y hora.</translation>
    </message>
    <message id="LUID">
        <source></source>
        <translation>ID de usuario de la sesión (LUID)</translation>
    </message>
    <message id="LUID_tip">
        <source></source>
        <translation>El número del usuario que inició la sesión, que no cambia aunque después los permisos pasen a otro; un guion si no hubo inicio de sesión.</translation>
    </message>
    <message id="LWP">
        <source></source>
        <translation>ID de hilo (LWP)</translation>
    </message>
    <message id="LWP_tip">
        <source></source>
        <translation>El número del hilo principal del proceso, que es igual al ID del proceso.</translation>
    </message>
    <message id="LXC">
        <source></source>
        <translation>Contenedor LXC (LXC)</translation>
    </message>
    <message id="LXC_tip">
        <source></source>
        <translation>El nombre del contenedor LXC en el que se ejecuta el proceso; un guion fuera de los contenedores.</translation>
    </message>
    <message id="M_SIZE">
        <source></source>
        <translation>Tamaño virtual en bytes (M_SIZE)</translation>
    </message>
    <message id="M_SIZE_tip">
        <source></source>
        <translation>El tamaño de toda la memoria que el proceso tiene asignada, en bytes.</translation>
    </message>
    <message id="MACHINE">
        <source></source>
        <translation>Máquina virtual (MACHINE)</translation>
    </message>
    <message id="MACHINE_tip">
        <source></source>
        <translation>El nombre de la máquina virtual o del contenedor al que pertenece el proceso. De systemd; un guion si no hay ninguno.</translation>
    </message>
    <message id="MAJFL">
        <source></source>
        <translation>Fallos mayores (MAJFL)</translation>
    </message>
    <message id="MAJFL_tip">
        <source></source>
        <translation>Fallos de página que tuvieron que esperar a una lectura del disco. Igual que MAJFLT.</translation>
    </message>
    <message id="MAJFLT">
        <source></source>
        <translation>Fallos mayores (MAJFLT)</translation>
    </message>
    <message id="MAJFLT_tip">
        <source></source>
        <translation>Fallos de página que tuvieron que esperar a una lectura del disco, desde que se inició el proceso.</translation>
    </message>
    <message id="MINFL">
        <source></source>
        <translation>Fallos menores (MINFL)</translation>
    </message>
    <message id="MINFL_tip">
        <source></source>
        <translation>Fallos de página que no necesitaron una lectura del disco. Igual que MINFLT.</translation>
    </message>
    <message id="MINFLT">
        <source></source>
        <translation>Fallos menores (MINFLT)</translation>
    </message>
    <message id="MINFLT_tip">
        <source></source>
        <translation>Fallos de página que no necesitaron una lectura del disco, desde que se inició el proceso.</translation>
    </message>
    <message id="MNTNS">
        <source></source>
        <translation>Espacio de nombres de montaje (MNTNS)</translation>
    </message>
    <message id="MNTNS_tip">
        <source></source>
        <translation>El número de inodo del espacio de nombres de montaje en el que vive el proceso. Los procesos con el mismo número lo comparten.</translation>
    </message>
    <message id="NETNS">
        <source></source>
        <translation>Espacio de nombres de red (NETNS)</translation>
    </message>
    <message id="NETNS_tip">
        <source></source>
        <translation>El número de inodo del espacio de nombres de red en el que vive el proceso. Los procesos con el mismo número lo comparten.</translation>
    </message>
    <message id="NI">
        <source></source>
        <translation>Valor nice (NI)</translation>
    </message>
    <message id="NI_tip">
        <source></source>
        <translation>Cuánto cede el paso el proceso a los demás, de -20 (lo mínimo) a 19 (lo máximo). Un guion donde no tiene sentido, como en los procesos de tiempo real.</translation>
    </message>
    <message id="NLWP">
        <source></source>
        <translation>Hilos (NLWP)</translation>
    </message>
    <message id="NLWP_tip">
        <source></source>
        <translation>Cuántos hilos tiene el proceso.</translation>
    </message>
    <message id="NUMA">
        <source></source>
        <translation>Nodo NUMA (NUMA)</translation>
    </message>
    <message id="NUMA_tip">
        <source></source>
        <translation>El nodo de memoria del procesador en el que el proceso se ejecutó por última vez; -1 si no se conoce.</translation>
    </message>
    <message id="OOM">
        <source></source>
        <translation>Puntuación OOM (OOM)</translation>
    </message>
    <message id="OOM_tip">
        <source></source>
        <translation>Lo probable que es que el núcleo termine el proceso cuando falte memoria; el más alto va primero.</translation>
    </message>
    <message id="OOMADJ">
        <source></source>
        <translation>Ajuste OOM (OOMADJ)</translation>
    </message>
    <message id="OOMADJ_tip">
        <source></source>
        <translation>Lo que se suma a la puntuación de falta de memoria, de -1000 (nunca se termina) a 1000 (se termina el primero).</translation>
    </message>
    <message id="OPRI">
        <source></source>
        <translation>Prioridad (OPRI)</translation>
    </message>
    <message id="OPRI_tip">
        <source></source>
        <translation>La prioridad de planificación en una de las escalas históricas que ofrece ps: la prioridad del núcleo más 60, es decir, 80 para un proceso normal y menos para uno que se ejecuta antes.</translation>
    </message>
    <message id="OWNER">
        <source></source>
        <translation>Propietario de la sesión (OWNER)</translation>
    </message>
    <message id="OWNER_tip">
        <source></source>
        <translation>El número del usuario propietario de la sesión a la que pertenece el proceso. De systemd; un guion si no hay ninguno.</translation>
    </message>
    <message id="P">
        <source></source>
        <translation>CPU actual (P)</translation>
    </message>
    <message id="P_tip">
        <source></source>
        <translation>El número del procesador en el que se ejecuta el proceso; un asterisco mientras no se ejecuta.</translation>
    </message>
    <message id="PAGEIN">
        <source></source>
        <translation>Fallos mayores (PAGEIN)</translation>
    </message>
    <message id="PAGEIN_tip">
        <source></source>
        <translation>Fallos de página que tuvieron que esperar a una lectura del disco. Igual que MAJFLT.</translation>
    </message>
    <message id="PENDING">
        <source></source>
        <translation>Señales pendientes (PENDING)</translation>
    </message>
    <message id="PENDING_tip">
        <source></source>
        <translation>Las señales que esperan ser entregadas al proceso, como máscara hexadecimal.</translation>
    </message>
    <message id="PGID">
        <source></source>
        <translation>ID de grupo de procesos (PGID)</translation>
    </message>
    <message id="PGID_tip">
        <source></source>
        <translation>El número del grupo de procesos; por lo general, lo comparten los comandos de una tubería.</translation>
    </message>
    <message id="PGRP">
        <source></source>
        <translation>ID de grupo de procesos (PGRP)</translation>
    </message>
    <message id="PGRP_tip">
        <source></source>
        <translation>El número del grupo de procesos. Igual que PGID.</translation>
    </message>
    <message id="PID">
        <source></source>
        <translation>ID del proceso (PID)</translation>
    </message>
    <message id="PID_tip">
        <source></source>
        <translation>El número del proceso, tal como lo imprime ps.</translation>
    </message>
    <message id="PIDNS">
        <source></source>
        <translation>Espacio de nombres de PID (PIDNS)</translation>
    </message>
    <message id="PIDNS_tip">
        <source></source>
        <translation>El número de inodo del espacio de nombres de números de proceso en el que vive el proceso. Los procesos con el mismo número lo comparten.</translation>
    </message>
    <message id="POL">
        <source></source>
        <translation>Clase de planificación (POL)</translation>
    </message>
    <message id="POL_tip">
        <source></source>
        <translation>La clase de planificación en letras. Igual que CLS.</translation>
    </message>
    <message id="PPID">
        <source></source>
        <translation>ID del padre (PPID)</translation>
    </message>
    <message id="PPID_tip">
        <source></source>
        <translation>El número del proceso que inició este, o del que se hizo cargo de él.</translation>
    </message>
    <message id="PRI">
        <source></source>
        <translation>Prioridad (PRI)</translation>
    </message>
    <message id="PRI_tip">
        <source></source>
        <translation>La prioridad de planificación, invertida: 19 para un proceso normal y más para uno que se ejecuta antes.</translation>
    </message>
    <message id="PRIORITY">
        <source></source>
        <translation>Prioridad (PRIORITY)</translation>
    </message>
    <message id="PRIORITY_tip">
        <source></source>
        <translation>La prioridad de planificación propia del núcleo: 20 para un proceso normal y menos para uno que se ejecuta antes; por debajo de cero para los de tiempo real.</translation>
    </message>
    <message id="PSR">
        <source></source>
        <translation>Última CPU (PSR)</translation>
    </message>
    <message id="PSR_tip">
        <source></source>
        <translation>El número del procesador en el que el proceso se ejecutó por última vez.</translation>
    </message>
    <message id="PSS">
        <source></source>
        <translation>Tamaño proporcional (PSS)</translation>
    </message>
    <message id="PSS_tip">
        <source></source>
        <translation>Memoria en la RAM, con cada página compartida repartida entre quienes la comparten. Lento de averiguar; una cruz donde no se puede leer.</translation>
    </message>
    <message id="RBYTES">
        <source></source>
        <translation>Bytes leídos del almacenamiento (RBYTES)</translation>
    </message>
    <message id="RBYTES_tip">
        <source></source>
        <translation>Bytes que los dispositivos de almacenamiento tuvieron que entregar para el proceso. De /proc/PID/io; una cruz donde no se puede leer.</translation>
    </message>
    <message id="RCHARS">
        <source></source>
        <translation>Bytes leídos (RCHARS)</translation>
    </message>
    <message id="RCHARS_tip">
        <source></source>
        <translation>Bytes que el proceso pidió en sus llamadas de lectura, vinieran de un disco, de una caché o de un terminal. De /proc/PID/io; una cruz donde no se puede leer.</translation>
    </message>
    <message id="RGID">
        <source></source>
        <translation>ID de grupo real (RGID)</translation>
    </message>
    <message id="RGID_tip">
        <source></source>
        <translation>El número del grupo al que pertenece el proceso, cualesquiera que sean ahora sus permisos.</translation>
    </message>
    <message id="RGROUP">
        <source></source>
        <translation>Grupo real (RGROUP)</translation>
    </message>
    <message id="RGROUP_tip">
        <source></source>
        <translation>El nombre del grupo al que pertenece el proceso, cualesquiera que sean ahora sus permisos.</translation>
    </message>
    <message id="ROPS">
        <source></source>
        <translation>Llamadas de lectura (ROPS)</translation>
    </message>
    <message id="ROPS_tip">
        <source></source>
        <translation>Cuántas llamadas al sistema de lectura ha hecho el proceso. De /proc/PID/io; una cruz donde no se puede leer.</translation>
    </message>
    <message id="RSS">
        <source></source>
        <translation>Tamaño residente (RSS)</translation>
    </message>
    <message id="RSS_tip">
        <source></source>
        <translation>Cuánta memoria del proceso está en la RAM, incluidas las páginas compartidas.</translation>
    </message>
    <message id="RSZ">
        <source></source>
        <translation>Tamaño residente (RSZ)</translation>
    </message>
    <message id="RSZ_tip">
        <source></source>
        <translation>Cuánta memoria del proceso está en la RAM, incluidas las páginas compartidas.</translation>
    </message>
    <message id="RTPRIO">
        <source></source>
        <translation>Prioridad de tiempo real (RTPRIO)</translation>
    </message>
    <message id="RTPRIO_tip">
        <source></source>
        <translation>La prioridad entre los procesos de tiempo real, de 1 a 99; las más altas se ejecutan antes; un guion para todos los demás procesos.</translation>
    </message>
    <message id="RUID">
        <source></source>
        <translation>ID de usuario real (RUID)</translation>
    </message>
    <message id="RUID_tip">
        <source></source>
        <translation>El número del usuario que inició el proceso, cualesquiera que sean ahora sus permisos.</translation>
    </message>
    <message id="RUSER">
        <source></source>
        <translation>Usuario real (RUSER)</translation>
    </message>
    <message id="RUSER_tip">
        <source></source>
        <translation>El nombre del usuario que inició el proceso, cualesquiera que sean ahora sus permisos.</translation>
    </message>
    <message id="S">
        <source></source>
        <translation>Estado (S)</translation>
    </message>
    <message id="S_tip">
        <source></source>
        <translation>Qué hace el proceso: R se ejecuta o está listo, S duerme, D espera un dispositivo, I hilo inactivo del núcleo, T detenido, t detenido por un depurador, Z terminado pero no recogido.</translation>
    </message>
    <message id="SCH">
        <source></source>
        <translation>Política de planificación (SCH)</translation>
    </message>
    <message id="SCH_tip">
        <source></source>
        <translation>La política de planificación como número: 0 normal, 1 FIFO, 2 round robin, 3 por lotes, 5 inactiva, 6 con plazos.</translation>
    </message>
    <message id="SEAT">
        <source></source>
        <translation>Puesto (SEAT)</translation>
    </message>
    <message id="SEAT_tip">
        <source></source>
        <translation>El puesto (una pantalla, un teclado y un ratón que van juntos) de la sesión a la que pertenece el proceso. De systemd; un guion si no hay ninguno.</translation>
    </message>
    <message id="SESSION">
        <source></source>
        <translation>Sesión iniciada (SESSION)</translation>
    </message>
    <message id="SESSION_tip">
        <source></source>
        <translation>El identificador de la sesión iniciada a la que pertenece el proceso. De systemd; un guion si no hay ninguno.</translation>
    </message>
    <message id="SGID">
        <source></source>
        <translation>ID de grupo guardado (SGID)</translation>
    </message>
    <message id="SGID_tip">
        <source></source>
        <translation>El número del grupo cuyos permisos puede recuperar el proceso.</translation>
    </message>
    <message id="SGROUP">
        <source></source>
        <translation>Grupo guardado (SGROUP)</translation>
    </message>
    <message id="SGROUP_tip">
        <source></source>
        <translation>El nombre del grupo cuyos permisos puede recuperar el proceso.</translation>
    </message>
    <message id="SID">
        <source></source>
        <translation>ID de sesión (SID)</translation>
    </message>
    <message id="SID_tip">
        <source></source>
        <translation>El número de la sesión, que es el ID de proceso de su líder.</translation>
    </message>
    <message id="SIGNAL">
        <source></source>
        <translation>Señales pendientes (SIGNAL)</translation>
    </message>
    <message id="SIGNAL_tip">
        <source></source>
        <translation>Las señales que esperan ser entregadas al proceso, como máscara hexadecimal. Igual que PENDING.</translation>
    </message>
    <message id="SIZE">
        <source></source>
        <translation>Tamaño en intercambio (SIZE)</translation>
    </message>
    <message id="SIZE_tip">
        <source></source>
        <translation>Una estimación aproximada del espacio de intercambio que el proceso necesitaría si se enviara allí toda su memoria modificable.</translation>
    </message>
    <message id="SLICE">
        <source></source>
        <translation>Slice (SLICE)</translation>
    </message>
    <message id="SLICE_tip">
        <source></source>
        <translation>El slice, una rama del árbol de grupos de control, al que pertenece el proceso. De systemd; un guion si no hay ninguno.</translation>
    </message>
    <message id="SPID">
        <source></source>
        <translation>ID de hilo (SPID)</translation>
    </message>
    <message id="SPID_tip">
        <source></source>
        <translation>El número del hilo principal del proceso, que es igual al ID del proceso. Igual que LWP.</translation>
    </message>
    <message id="STACKP">
        <source></source>
        <translation>Dirección de la pila (STACKP)</translation>
    </message>
    <message id="STACKP_tip">
        <source></source>
        <translation>La dirección del fondo de la pila, en hexadecimal; cero donde no se puede leer.</translation>
    </message>
    <message id="START">
        <source></source>
        <translation>Inicio (START)</translation>
    </message>
    <message id="START_tip">
        <source></source>
        <translation>Cuándo se inició el proceso: la hora dentro de las últimas 24 horas; si no, la fecha.</translation>
    </message>
    <message id="STARTED">
        <source></source>
        <translation>Inicio (STARTED)</translation>
    </message>
    <message id="STARTED_tip">
        <source></source>
        <translation>Cuándo se inició el proceso: la hora con segundos dentro de las últimas 24 horas; si no, la fecha.</translation>
    </message>
    <message id="STAT">
        <source></source>
        <translation>Estado (STAT)</translation>
    </message>
    <message id="STAT_tip">
        <source></source>
        <translation>La letra del estado y, tras ella, otras: &lt; prioridad alta, N prioridad baja, L páginas bloqueadas en memoria, s líder de sesión, l varios hilos, + en primer plano de su terminal.</translation>
    </message>
    <message id="STIME">
        <source></source>
        <translation>Inicio (STIME)</translation>
    </message>
    <message id="STIME_tip">
        <source></source>
        <translation>Cuándo se inició el proceso: la hora si fue hoy, la fecha si fue otro día, el año si fue otro año.</translation>
    </message>
    <message id="SUID">
        <source></source>
        <translation>ID de usuario guardado (SUID)</translation>
    </message>
    <message id="SUID_tip">
        <source></source>
        <translation>El número del usuario cuyos permisos puede recuperar el proceso.</translation>
    </message>
    <message id="SUPGID">
        <source></source>
        <translation>ID de grupos adicionales (SUPGID)</translation>
    </message>
    <message id="SUPGID_tip">
        <source></source>
        <translation>Los números de los demás grupos cuyos permisos tiene el proceso; un guion si no hay ninguno.</translation>
    </message>
    <message id="SUPGRP">
        <source></source>
        <translation>Grupos adicionales (SUPGRP)</translation>
    </message>
    <message id="SUPGRP_tip">
        <source></source>
        <translation>Los nombres de los demás grupos cuyos permisos tiene el proceso; un guion si no hay ninguno.</translation>
    </message>
    <message id="SUSER">
        <source></source>
        <translation>Usuario guardado (SUSER)</translation>
    </message>
    <message id="SUSER_tip">
        <source></source>
        <translation>El nombre del usuario cuyos permisos puede recuperar el proceso.</translation>
    </message>
    <message id="SVGID">
        <source></source>
        <translation>ID de grupo guardado (SVGID)</translation>
    </message>
    <message id="SVGID_tip">
        <source></source>
        <translation>El número del grupo cuyos permisos puede recuperar el proceso. Igual que SGID.</translation>
    </message>
    <message id="SVGROUP">
        <source></source>
        <translation>Grupo guardado (SVGROUP)</translation>
    </message>
    <message id="SVGROUP_tip">
        <source></source>
        <translation>El nombre del grupo cuyos permisos puede recuperar el proceso. Igual que SGROUP.</translation>
    </message>
    <message id="SVUID">
        <source></source>
        <translation>ID de usuario guardado (SVUID)</translation>
    </message>
    <message id="SVUID_tip">
        <source></source>
        <translation>El número del usuario cuyos permisos puede recuperar el proceso. Igual que SUID.</translation>
    </message>
    <message id="SVUSER">
        <source></source>
        <translation>Usuario guardado (SVUSER)</translation>
    </message>
    <message id="SVUSER_tip">
        <source></source>
        <translation>El nombre del usuario cuyos permisos puede recuperar el proceso. Igual que SUSER.</translation>
    </message>
    <message id="SZ">
        <source></source>
        <translation>Tamaño en páginas (SZ)</translation>
    </message>
    <message id="SZ_tip">
        <source></source>
        <translation>El tamaño de toda la memoria que el proceso tiene asignada, que ps cuenta en páginas del equipo. Igual que VSZ salvo fracciones de página.</translation>
    </message>
    <message id="TGID">
        <source></source>
        <translation>ID de grupo de hilos (TGID)</translation>
    </message>
    <message id="TGID_tip">
        <source></source>
        <translation>El número que comparten todos los hilos del proceso, que es el ID del proceso.</translation>
    </message>
    <message id="THCNT">
        <source></source>
        <translation>Hilos (THCNT)</translation>
    </message>
    <message id="THCNT_tip">
        <source></source>
        <translation>Cuántos hilos tiene el proceso. Igual que NLWP.</translation>
    </message>
    <message id="TID">
        <source></source>
        <translation>ID de hilo (TID)</translation>
    </message>
    <message id="TID_tip">
        <source></source>
        <translation>El número del hilo principal del proceso, que es igual al ID del proceso. Igual que LWP.</translation>
    </message>
    <message id="TIME">
        <source></source>
        <translation>Tiempo de CPU (TIME)</translation>
    </message>
    <message id="TIME_tip">
        <source></source>
        <translation>Tiempo de CPU utilizado desde que se inició el proceso, de usuario y de sistema juntos, en días, horas, minutos y segundos.</translation>
    </message>
    <message id="TIMENS">
        <source></source>
        <translation>Espacio de nombres de tiempo (TIMENS)</translation>
    </message>
    <message id="TIMENS_tip">
        <source></source>
        <translation>El número de inodo del espacio de nombres de relojes en el que vive el proceso. Los procesos con el mismo número lo comparten.</translation>
    </message>
    <message id="TPGID">
        <source></source>
        <translation>ID del grupo en primer plano (TPGID)</translation>
    </message>
    <message id="TPGID_tip">
        <source></source>
        <translation>El grupo de procesos en primer plano del terminal al que pertenece el proceso; -1 sin terminal.</translation>
    </message>
    <message id="TRS">
        <source></source>
        <translation>Tamaño del código (TRS)</translation>
    </message>
    <message id="TRS_tip">
        <source></source>
        <translation>El tamaño del código ejecutable. A pesar del nombre, no toda tiene que estar en la RAM.</translation>
    </message>
    <message id="TRSS">
        <source></source>
        <translation>Tamaño del código (TRSS)</translation>
    </message>
    <message id="TRSS_tip">
        <source></source>
        <translation>El tamaño del código ejecutable. Igual que TRS.</translation>
    </message>
    <message id="TSIG">
        <source></source>
        <translation>Señales pendientes del hilo (TSIG)</translation>
    </message>
    <message id="TSIG_tip">
        <source></source>
        <translation>Las señales que esperan ser entregadas solo al hilo principal del proceso, como máscara hexadecimal.</translation>
    </message>
    <message id="TSIZ">
        <source></source>
        <translation>Tamaño del código (TSIZ)</translation>
    </message>
    <message id="TSIZ_tip">
        <source></source>
        <translation>El tamaño del código ejecutable.</translation>
    </message>
    <message id="TT">
        <source></source>
        <translation>Terminal (TT)</translation>
    </message>
    <message id="TT_tip">
        <source></source>
        <translation>El terminal al que pertenece el proceso; un signo de interrogación si no hay ninguno.</translation>
    </message>
    <message id="TTY">
        <source></source>
        <translation>Terminal (TTY)</translation>
    </message>
    <message id="TTY_tip">
        <source></source>
        <translation>El terminal al que pertenece el proceso; un signo de interrogación si no hay ninguno. Igual que TT.</translation>
    </message>
    <message id="TTY4">
        <source></source>
        <translation>Terminal, abreviado (TTY4)</translation>
    </message>
    <message id="TTY4_tip">
        <source></source>
        <translation>El terminal al que pertenece el proceso, por las últimas letras de su nombre; un signo de interrogación si no hay ninguno.</translation>
    </message>
    <message id="UCMD">
        <source></source>
        <translation>Nombre del comando (UCMD)</translation>
    </message>
    <message id="UCMD_tip">
        <source></source>
        <translation>El nombre del comando sin sus argumentos. Igual que COMM.</translation>
    </message>
    <message id="UID">
        <source></source>
        <translation>ID de usuario (UID)</translation>
    </message>
    <message id="UID_tip">
        <source></source>
        <translation>El número del usuario cuyos permisos tiene el proceso.</translation>
    </message>
    <message id="UNIT">
        <source></source>
        <translation>Unidad del sistema (UNIT)</translation>
    </message>
    <message id="UNIT_tip">
        <source></source>
        <translation>La unidad (un servicio, un ámbito) a la que pertenece el proceso. De systemd; un guion si no hay ninguno.</translation>
    </message>
    <message id="USER">
        <source></source>
        <translation>Usuario (USER)</translation>
    </message>
    <message id="USER_tip">
        <source></source>
        <translation>El nombre del usuario cuyos permisos tiene el proceso. Igual que EUSER.</translation>
    </message>
    <message id="USERNS">
        <source></source>
        <translation>Espacio de nombres de usuario (USERNS)</translation>
    </message>
    <message id="USERNS_tip">
        <source></source>
        <translation>El número de inodo del espacio de nombres de usuario en el que vive el proceso. Los procesos con el mismo número lo comparten.</translation>
    </message>
    <message id="USS">
        <source></source>
        <translation>Tamaño único (USS)</translation>
    </message>
    <message id="USS_tip">
        <source></source>
        <translation>Memoria en la RAM que el proceso no comparte con ningún otro: lo que quedaría libre si terminara. Lento de averiguar; una cruz donde no se puede leer.</translation>
    </message>
    <message id="UTSNS">
        <source></source>
        <translation>Espacio de nombres de equipo (UTSNS)</translation>
    </message>
    <message id="UTSNS_tip">
        <source></source>
        <translation>El número de inodo del espacio de nombres de nombre de equipo en el que vive el proceso. Los procesos con el mismo número lo comparten.</translation>
    </message>
    <message id="UUNIT">
        <source></source>
        <translation>Unidad de usuario (UUNIT)</translation>
    </message>
    <message id="UUNIT_tip">
        <source></source>
        <translation>La unidad del gestor de servicios propio del usuario a la que pertenece el proceso. De systemd; un guion si no hay ninguno.</translation>
    </message>
    <message id="VSZ">
        <source></source>
        <translation>Tamaño virtual (VSZ)</translation>
    </message>
    <message id="VSZ_tip">
        <source></source>
        <translation>El tamaño de toda la memoria que el proceso tiene asignada, esté en uso o no.</translation>
    </message>
    <message id="WBYTES">
        <source></source>
        <translation>Bytes escritos en el almacenamiento (WBYTES)</translation>
    </message>
    <message id="WBYTES_tip">
        <source></source>
        <translation>Bytes que el proceso hizo enviar a los dispositivos de almacenamiento. De /proc/PID/io; una cruz donde no se puede leer.</translation>
    </message>
    <message id="WCBYTES">
        <source></source>
        <translation>Bytes escritos y cancelados (WCBYTES)</translation>
    </message>
    <message id="WCBYTES_tip">
        <source></source>
        <translation>Bytes que el proceso escribió en archivos que se borraron o acortaron antes de llegar al dispositivo de almacenamiento. De /proc/PID/io; una cruz donde no se puede leer.</translation>
    </message>
    <message id="WCHAN">
        <source></source>
        <translation>Espera en (WCHAN)</translation>
    </message>
    <message id="WCHAN_tip">
        <source></source>
        <translation>La función del núcleo en la que duerme el proceso; un guion mientras se ejecuta o donde no se puede leer.</translation>
    </message>
    <message id="WCHARS">
        <source></source>
        <translation>Bytes escritos (WCHARS)</translation>
    </message>
    <message id="WCHARS_tip">
        <source></source>
        <translation>Bytes que el proceso pasó a sus llamadas de escritura, fueran a un disco, a una caché o a un terminal. De /proc/PID/io; una cruz donde no se puede leer.</translation>
    </message>
    <message id="WOPS">
        <source></source>
        <translation>Llamadas de escritura (WOPS)</translation>
    </message>
    <message id="WOPS_tip">
        <source></source>
        <translation>Cuántas llamadas al sistema de escritura ha hecho el proceso. De /proc/PID/io; una cruz donde no se puede leer.</translation>
    </message>
    <message id="ZONE">
        <source></source>
        <translation>Contexto de seguridad (ZONE)</translation>
    </message>
    <message id="ZONE_tip">
        <source></source>
        <translation>La etiqueta que el control de acceso del núcleo dio al proceso; un guion si no hay ninguna. Igual que CONTEXT.</translation>
    </message>
    <message id="menu_application">
        <source></source>
        <translation>&amp;Lurkwell</translation>
    </message>
    <message id="menu_file">
        <source></source>
        <translation>&amp;Archivo</translation>
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
        <translation>&amp;Columnas</translation>
    </message>
    <message id="menu_process">
        <source></source>
        <translation>&amp;Proceso</translation>
    </message>
    <message id="menu_window">
        <source></source>
        <translation>Ve&amp;ntana</translation>
    </message>
    <message id="menu_help">
        <source></source>
        <translation>A&amp;yuda</translation>
    </message>
    <message id="menu_application_about">
        <source></source>
        <translation>&amp;Acerca de Lurkwell</translation>
    </message>
    <message id="menu_application_preferences">
        <source></source>
        <translation>&amp;Preferencias…</translation>
    </message>
    <message id="menu_application_quit">
        <source></source>
        <translation>&amp;Salir de Lurkwell</translation>
    </message>
    <message id="menu_file_new_cpu_history">
        <source></source>
        <translation>Nueva ventana de &amp;historial de CPU</translation>
    </message>
    <message id="menu_file_new_logging">
        <source></source>
        <translation>Nueva ventana de &amp;registro</translation>
    </message>
    <message id="menu_file_details">
        <source></source>
        <translation>Mostrar &amp;detalles</translation>
    </message>
    <message id="menu_file_record">
        <source></source>
        <translation>&amp;Grabar…</translation>
    </message>
    <message id="menu_file_open_recording">
        <source></source>
        <translation>&amp;Abrir grabación…</translation>
    </message>
    <message id="menu_file_close_window">
        <source></source>
        <translation>&amp;Cerrar ventana</translation>
    </message>
    <message id="menu_edit_copy">
        <source></source>
        <translation>&amp;Copiar</translation>
    </message>
    <message id="menu_edit_select_all">
        <source></source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message id="menu_edit_select_children">
        <source></source>
        <translation>Seleccionar &amp;hijos</translation>
    </message>
    <message id="menu_edit_filter">
        <source></source>
        <translation>&amp;Filtrar…</translation>
    </message>
    <message id="menu_view_update_now">
        <source></source>
        <translation>&amp;Actualizar ahora</translation>
    </message>
    <message id="menu_view_pause">
        <source></source>
        <translation>&amp;Pausar</translation>
    </message>
    <message id="menu_view_follow">
        <source></source>
        <translation>&amp;Mantener la selección en su sitio</translation>
    </message>
    <message id="menu_view_sort_by">
        <source></source>
        <translation>&amp;Ordenar por</translation>
    </message>
    <message id="menu_view_column_left">
        <source></source>
        <translation>Columna ordenada a la &amp;izquierda</translation>
    </message>
    <message id="menu_view_column_right">
        <source></source>
        <translation>Columna ordenada a la &amp;derecha</translation>
    </message>
    <message id="menu_view_column_wider">
        <source></source>
        <translation>Columna ordenada más a&amp;ncha</translation>
    </message>
    <message id="menu_view_column_narrower">
        <source></source>
        <translation>Columna ordenada más &amp;estrecha</translation>
    </message>
    <message id="menu_view_column_fit">
        <source></source>
        <translation>A&amp;justar la columna ordenada al contenido</translation>
    </message>
    <message id="menu_view_shape_list">
        <source></source>
        <translation>&amp;Lista</translation>
    </message>
    <message id="menu_view_shape_tree">
        <source></source>
        <translation>Á&amp;rbol</translation>
    </message>
    <message id="menu_view_shape_applications">
        <source></source>
        <translation>Por apli&amp;cación</translation>
    </message>
    <message id="menu_view_unfold_all">
        <source></source>
        <translation>E&amp;xpandir todo</translation>
    </message>
    <message id="menu_view_fold_all">
        <source></source>
        <translation>Con&amp;traer todo</translation>
    </message>
    <message id="menu_view_scope">
        <source></source>
        <translation>Mo&amp;strar</translation>
    </message>
    <message id="menu_scope_all">
        <source></source>
        <translation>&amp;Todos los procesos</translation>
    </message>
    <message id="menu_scope_mine">
        <source></source>
        <translation>&amp;Mis procesos</translation>
    </message>
    <message id="menu_scope_others">
        <source></source>
        <translation>Procesos de &amp;otros usuarios</translation>
    </message>
    <message id="menu_scope_applications">
        <source></source>
        <translation>&amp;Aplicaciones</translation>
    </message>
    <message id="menu_scope_without_kernel">
        <source></source>
        <translation>&amp;Sin hilos del núcleo</translation>
    </message>
    <message id="menu_scope_busy">
        <source></source>
        <translation>Procesos a&amp;ctivos</translation>
    </message>
    <message id="menu_columns_set">
        <source></source>
        <translation>Con&amp;junto de columnas</translation>
    </message>
    <message id="menu_set_standard">
        <source></source>
        <translation>&amp;Estándar</translation>
    </message>
    <message id="menu_set_cpu">
        <source></source>
        <translation>&amp;CPU</translation>
    </message>
    <message id="menu_set_memory">
        <source></source>
        <translation>&amp;Memoria</translation>
    </message>
    <message id="menu_set_disk_network">
        <source></source>
        <translation>&amp;Disco y red</translation>
    </message>
    <message id="menu_set_commands">
        <source></source>
        <translation>C&amp;omandos</translation>
    </message>
    <message id="menu_set_containers">
        <source></source>
        <translation>Con&amp;tenedores</translation>
    </message>
    <message id="menu_set_security">
        <source></source>
        <translation>Se&amp;guridad</translation>
    </message>
    <message id="menu_set_save_as">
        <source></source>
        <translation>G&amp;uardar como…</translation>
    </message>
    <message id="menu_set_rename">
        <source></source>
        <translation>Cam&amp;biar el nombre…</translation>
    </message>
    <message id="menu_set_delete">
        <source></source>
        <translation>E&amp;liminar…</translation>
    </message>
    <message id="menu_set_restore">
        <source></source>
        <translation>Como era al &amp;principio…</translation>
    </message>
    <message id="menu_view_show_toolbar">
        <source></source>
        <translation>Mostrar la &amp;barra de herramientas</translation>
    </message>
    <message id="menu_view_customise_toolbar">
        <source></source>
        <translation>Personalizar la barra de &amp;herramientas…</translation>
    </message>
    <message id="menu_columns_icon">
        <source></source>
        <translation>&amp;Icono</translation>
    </message>
    <message id="menu_columns_indicator">
        <source></source>
        <translation>In&amp;dicador</translation>
    </message>
    <message id="menu_columns_name">
        <source></source>
        <translation>&amp;Nombre</translation>
    </message>
    <message id="menu_columns_cpu_usage">
        <source></source>
        <translation>&amp;Uso de CPU</translation>
    </message>
    <message id="menu_columns_memory">
        <source></source>
        <translation>&amp;Memoria</translation>
    </message>
    <message id="menu_columns_built_in">
        <source></source>
        <translation>P&amp;ropiedades del proceso</translation>
    </message>
    <message id="menu_columns_ps">
        <source></source>
        <translation>Columnas de &amp;ps</translation>
    </message>
    <message id="column_group_identity">
        <source></source>
        <translation>Identidad</translation>
    </message>
    <message id="column_group_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="column_group_memory">
        <source></source>
        <translation>Memoria</translation>
    </message>
    <message id="column_group_network">
        <source></source>
        <translation>Red</translation>
    </message>
    <message id="column_group_gpu">
        <source></source>
        <translation>GPU</translation>
    </message>
    <message id="column_group_security">
        <source></source>
        <translation>Seguridad</translation>
    </message>
    <message id="column_group_disk">
        <source></source>
        <translation>Disco</translation>
    </message>
    <message id="column_group_users">
        <source></source>
        <translation>Usuarios y grupos</translation>
    </message>
    <message id="column_group_terminal">
        <source></source>
        <translation>Terminal y sesión</translation>
    </message>
    <message id="column_group_signals">
        <source></source>
        <translation>Señales</translation>
    </message>
    <message id="column_group_belonging">
        <source></source>
        <translation>Pertenencia</translation>
    </message>
    <message id="column_group_other">
        <source></source>
        <translation>Otros</translation>
    </message>
    <message id="column_group_desktop">
        <source></source>
        <translation>Aplicación del escritorio</translation>
    </message>
    <message id="column_group_repeated">
        <source></source>
        <translation>Lo mismo con otros nombres</translation>
    </message>
    <message id="column_group_classic">
        <source></source>
        <translation>Entorno Classic</translation>
    </message>
    <message id="column_group_not_counted">
        <source></source>
        <translation>Lo que no se mide en este sistema</translation>
    </message>
    <message id="column_filter">
        <source></source>
        <translation>Buscar una columna</translation>
    </message>
    <message id="column_filter_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n más: escriba más letras</numerusform>
            <numerusform>%n más: escriba más letras</numerusform>
        </translation>
    </message>
    <message id="column_filter_nothing">
        <source></source>
        <translation>Ninguna columna lo tiene en su nombre ni en su descripción</translation>
    </message>
    <message id="column_hide">
        <source></source>
        <translation>&amp;Ocultar “%1”</translation>
    </message>
    <message id="column_of_ps_tip">
        <source></source>
        <translation>Una columna del ps de este sistema, impresa por su palabra clave %1.</translation>
    </message>
    <message id="column_keywords_tip">
        <source></source>
        <translation>Palabra clave de ps: %1</translation>
    </message>
    <message id="menu_process_quit_or_kill">
        <source></source>
        <translation>&amp;Cerrar o matar…</translation>
    </message>
    <message id="menu_process_high_priority">
        <source></source>
        <translation>Prioridad &amp;alta</translation>
    </message>
    <message id="menu_process_normal_priority">
        <source></source>
        <translation>Prioridad &amp;normal</translation>
    </message>
    <message id="menu_process_low_priority">
        <source></source>
        <translation>Prioridad &amp;baja</translation>
    </message>
    <message id="menu_process_halt">
        <source></source>
        <translation>&amp;Detener…</translation>
    </message>
    <message id="menu_process_continue">
        <source></source>
        <translation>C&amp;ontinuar</translation>
    </message>
    <message id="menu_process_hide">
        <source></source>
        <translation>Oc&amp;ultar</translation>
    </message>
    <message id="menu_process_bring_to_front">
        <source></source>
        <translation>&amp;Traer al frente</translation>
    </message>
    <message id="menu_process_reveal">
        <source></source>
        <translation>&amp;Mostrar en el gestor de archivos</translation>
    </message>
    <message id="menu_process_by_id">
        <source></source>
        <translation>Buscar proceso por &amp;ID…</translation>
    </message>
    <message id="menu_window_show_main">
        <source></source>
        <translation>&amp;Procesos</translation>
    </message>
    <message id="menu_window_remembered">
        <source></source>
        <translation>Ventanas &amp;recordadas…</translation>
    </message>
    <message id="menu_window_close_all">
        <source></source>
        <translation>&amp;Cerrar todos los historiales, registros y detalles</translation>
    </message>
    <message id="menu_window_show_animated_view">
        <source></source>
        <translation>Vista &amp;animada</translation>
    </message>
    <message id="menu_view_overlay">
        <source></source>
        <translation>&amp;Vista animada sobre la pantalla</translation>
    </message>
    <message id="quintessential_window_title">
        <source></source>
        <translation>Vista animada</translation>
    </message>
    <message id="quintessential_spoken">
        <source></source>
        <translation>Procesos como iconos, los más activos más grandes: %1. La tabla de procesos da sus valores.</translation>
    </message>
    <message id="quintessential_menu_toggle">
        <source></source>
        <translation>&amp;Sobre toda la pantalla</translation>
    </message>
    <message id="quintessential_menu_processes">
        <source></source>
        <translation>Mostrar los &amp;procesos</translation>
    </message>
    <message id="quintessential_menu_close">
        <source></source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message id="quintessential_cannot_draw">
        <source></source>
        <translation>La vista animada no se puede dibujar: esta pantalla no tiene OpenGL 3.3 ni OpenGL ES 3.0, o ha dejado de funcionar. Todo lo demás de Lurkwell sigue adelante.</translation>
    </message>
    <message id="overlay_needs_compositor">
        <source></source>
        <translation>La vista animada no puede ser translúcida aquí.</translation>
    </message>
    <message id="overlay_needs_compositor_text">
        <source></source>
        <translation>Nada mezcla las ventanas de este escritorio (no hay ningún compositor en marcha). La vista ocupará toda la pantalla; pulse Escape o %1 para salir de ella.</translation>
    </message>
    <message id="overlay_needs_layer">
        <source></source>
        <translation>La vista animada no puede estar aquí por encima de otras ventanas.</translation>
    </message>
    <message id="overlay_needs_layer_text">
        <source></source>
        <translation>Este escritorio no permite que ningún programa mantenga una ventana por encima de las de otros. La vista ocupará toda la pantalla; pulse Escape o %1 para salir de ella.</translation>
    </message>
    <message id="menu_help_help">
        <source></source>
        <translation>A&amp;yuda de Lurkwell</translation>
    </message>
    <message id="main_window_title">
        <source></source>
        <translation>Procesos</translation>
    </message>
    <message id="main_window_title_paused">
        <source></source>
        <translation>Procesos (en pausa)</translation>
    </message>
    <message id="main_window_filter_placeholder">
        <source></source>
        <translation>Filtrar procesos</translation>
    </message>
    <message id="main_window_filter_tip">
        <source></source>
        <translation>Muestra solo algunos procesos, por ejemplo:&lt;br&gt;&lt;b&gt;ssh&lt;/b&gt; – con esto en su ID o en un texto que se muestra&lt;br&gt;&lt;b&gt;name:post&lt;/b&gt;, &lt;b&gt;user:root,mail&lt;/b&gt;, &lt;b&gt;name:/^k.*d$/&lt;/b&gt; – con esto en una propiedad&lt;br&gt;&lt;b&gt;mem&amp;gt;500M&lt;/b&gt;, &lt;b&gt;nice&amp;lt;0&lt;/b&gt;, &lt;b&gt;time&amp;gt;=1h&lt;/b&gt; – con más o menos&lt;br&gt;&lt;b&gt;port:443&lt;/b&gt;, &lt;b&gt;file:/var/log&lt;/b&gt; – con un socket o un archivo abierto&lt;br&gt;&lt;b&gt;-sleep&lt;/b&gt; – sin; &lt;b&gt;a b&lt;/b&gt; – ambos; &lt;b&gt;a | b&lt;/b&gt; – uno de ellos</translation>
    </message>
    <message id="main_window_filter_hides_all">
        <source></source>
        <translation>Ningún proceso cumple el filtro. Esc vuelve a mostrarlos todos.</translation>
    </message>
    <message id="field_clear">
        <source></source>
        <translation>Vaciar el campo</translation>
    </message>
    <message id="filter_last">
        <source></source>
        <translation>Últimos filtros utilizados</translation>
    </message>
    <message id="filter_none_yet">
        <source></source>
        <translation>Aún no se ha utilizado ningún filtro</translation>
    </message>
    <message id="setting_title_ALERT_RULES">
        <source></source>
        <translation>Alertas: reglas</translation>
    </message>
    <message id="setting_ALERT_RULES">
        <source></source>
        <translation>Las reglas de las alertas, cada una con su comando y si está activada. Se crean en la ventana de alertas.</translation>
    </message>
    <message id="setting_title_ALERT_NOTIFICATIONS">
        <source></source>
        <translation>Alertas: notificaciones</translation>
    </message>
    <message id="setting_ALERT_NOTIFICATIONS">
        <source></source>
        <translation>Mostrar una notificación en el escritorio cuando empieza una alerta. La ventana de alertas y el registro la recogen en cualquier caso.</translation>
    </message>
    <message id="setting_title_ALERTS_WINDOW_FRAME">
        <source></source>
        <translation>Alertas: posición y tamaño de la ventana</translation>
    </message>
    <message id="setting_ALERTS_WINDOW_FRAME">
        <source></source>
        <translation>Posición y tamaño de la ventana de alertas.</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_ALERTS_WINDOW">
        <source></source>
        <translation>Alertas: la ventana estaba abierta</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_ALERTS_WINDOW">
        <source></source>
        <translation>Abrir la ventana de alertas al inicio. El programa anota aquí si estaba abierta.</translation>
    </message>
    <message id="menu_process_alert">
        <source></source>
        <translation>Al&amp;ertar cuando…</translation>
    </message>
    <message id="menu_window_show_alerts">
        <source></source>
        <translation>A&amp;lertas</translation>
    </message>
    <message id="help_menu_window_show_alerts">
        <source></source>
        <translation>Reglas de lo que se quiere saber, qué indican ahora y qué ha ocurrido</translation>
    </message>
    <message id="help_menu_process_alert">
        <source></source>
        <translation>recibir un aviso cuando un proceso como el seleccionado haga algo</translation>
    </message>
    <message id="alerts_title">
        <source></source>
        <translation>Alertas</translation>
    </message>
    <message id="alerts_rules">
        <source></source>
        <translation>Reglas</translation>
    </message>
    <message id="alerts_occurrences">
        <source></source>
        <translation>Qué ha ocurrido</translation>
    </message>
    <message id="alerts_none">
        <source></source>
        <translation>Aún no hay reglas. Una regla dice de qué quiere recibir avisos, por ejemplo “any cpu&gt;90% for 10m” o “unit:backup.service absent for 1h”.</translation>
    </message>
    <message id="alerts_column_rule">
        <source></source>
        <translation>Regla</translation>
    </message>
    <message id="alerts_column_state">
        <source></source>
        <translation>Ahora</translation>
    </message>
    <message id="alerts_column_last">
        <source></source>
        <translation>Última alerta</translation>
    </message>
    <message id="alerts_column_began">
        <source></source>
        <translation>Inicio</translation>
    </message>
    <message id="alerts_column_process">
        <source></source>
        <translation>Proceso</translation>
    </message>
    <message id="alerts_column_lasted">
        <source></source>
        <translation>Duración</translation>
    </message>
    <message id="alerts_column_figures">
        <source></source>
        <translation>Valores</translation>
    </message>
    <message id="alerts_add">
        <source></source>
        <translation>Añadir…</translation>
    </message>
    <message id="alerts_change">
        <source></source>
        <translation>Cambiar…</translation>
    </message>
    <message id="alerts_remove">
        <source></source>
        <translation>Quitar</translation>
    </message>
    <message id="alerts_add_title">
        <source></source>
        <translation>Nueva regla</translation>
    </message>
    <message id="alerts_change_title">
        <source></source>
        <translation>Cambiar la regla</translation>
    </message>
    <message id="alerts_remove_question">
        <source></source>
        <translation>¿Quitar esta regla?</translation>
    </message>
    <message id="alerts_notifies">
        <source></source>
        <translation>Notificarme en el escritorio</translation>
    </message>
    <message id="alerts_show_process">
        <source></source>
        <translation>Mostrar el proceso</translation>
    </message>
    <message id="alerts_show_window">
        <source></source>
        <translation>Mostrar las alertas</translation>
    </message>
    <message id="alerts_show_log">
        <source></source>
        <translation>Mostrar el registro</translation>
    </message>
    <message id="alerts_never">
        <source></source>
        <translation>Nunca</translation>
    </message>
    <message id="alerts_state_off">
        <source></source>
        <translation>Desactivada</translation>
    </message>
    <message id="alerts_state_damaged">
        <source></source>
        <translation>No se puede leer lo que está guardado; cambie la regla o quítela.</translation>
    </message>
    <message id="alerts_state_calm">
        <source></source>
        <translation>No se cumple</translation>
    </message>
    <message id="alerts_state_pending">
        <source></source>
        <translation>Se cumple: %1 de %2</translation>
    </message>
    <message id="alerts_state_firing">
        <source></source>
        <translation>Alerta</translation>
    </message>
    <message id="alerts_state_firing_for" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Alerta: %n proceso</numerusform>
            <numerusform>Alerta: %n procesos</numerusform>
        </translation>
    </message>
    <message id="alerts_not_allowed">
        <source></source>
        <translation>de %1 no se puede saber: no está permitido</translation>
    </message>
    <message id="alerts_not_counted">
        <source></source>
        <translation>de %1 no se puede saber: no se mide en este equipo</translation>
    </message>
    <message id="alerts_not_yet_known">
        <source></source>
        <translation>de %1 aún no se puede saber</translation>
    </message>
    <message id="alerts_nothing_there">
        <source></source>
        <translation>No hay tal proceso</translation>
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
        <translation>%1 hasta ahora</translation>
    </message>
    <message id="alerts_lasted">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="alerts_lasted_to_process_end">
        <source></source>
        <translation>%1; el proceso terminó</translation>
    </message>
    <message id="alerts_lasted_to_rule_change">
        <source></source>
        <translation>%1; se cambió la regla</translation>
    </message>
    <message id="alerts_no_condition">
        <source></source>
        <translation>Una regla necesita una condición, como “cpu&gt;90%”.</translation>
    </message>
    <message id="alerts_no_span">
        <source></source>
        <translation>“%1” necesita un tiempo, como 30s, 5m o 1h30m.</translation>
    </message>
    <message id="alerts_too_long">
        <source></source>
        <translation>“%1” supera los 30 días que puede esperar una regla.</translation>
    </message>
    <message id="alerts_twice">
        <source></source>
        <translation>“%1” aparece dos veces.</translation>
    </message>
    <message id="alerts_does_not_fit">
        <source></source>
        <translation>“%1” no significa nada en una regla de este tipo.</translation>
    </message>
    <message id="alerts_unknown_word">
        <source></source>
        <translation>“%1” está detrás del tiempo; las condiciones van antes de “for” y “until”.</translation>
    </message>
    <message id="alerts_no_total">
        <source></source>
        <translation>Detrás de “total” va una comparación de un valor que se pueda sumar, como “mem&gt;8G”.</translation>
    </message>
    <message id="alerts_other_total">
        <source></source>
        <translation>Detrás de “until” va una comparación del mismo valor que detrás de “total”.</translation>
    </message>
    <message id="alerts_text_too_large">
        <source></source>
        <translation>Una regla tiene %1 letras como máximo.</translation>
    </message>
    <message id="alerts_rule_label">
        <source></source>
        <translation>&amp;Regla:</translation>
    </message>
    <message id="alerts_rule_placeholder">
        <source></source>
        <translation>name:postgres mem&gt;4G for 5m until mem&lt;3G</translation>
    </message>
    <message id="alerts_trial_label">
        <source></source>
        <translation>Ahora:</translation>
    </message>
    <message id="alerts_trial_wait">
        <source></source>
        <translation>Buscando…</translation>
    </message>
    <message id="alerts_trial_none">
        <source></source>
        <translation>Ningún proceso la cumple.</translation>
    </message>
    <message id="alerts_trial_some">
        <source></source>
        <translation>Procesos que la cumplen: %1</translation>
    </message>
    <message id="alerts_trial_total" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 en %n proceso</numerusform>
            <numerusform>%1 en %n procesos</numerusform>
        </translation>
    </message>
    <message id="alerts_trial_met">
        <source></source>
        <translation>La condición se cumple.</translation>
    </message>
    <message id="alerts_trial_not_met">
        <source></source>
        <translation>La condición no se cumple.</translation>
    </message>
    <message id="alerts_command_label">
        <source></source>
        <translation>&amp;Comando:</translation>
    </message>
    <message id="alerts_command_placeholder">
        <source></source>
        <translation>No se inicia nada</translation>
    </message>
    <message id="alerts_command_tip">
        <source></source>
        <translation>Un programa y sus argumentos, que se iniciará cuando empiece una alerta. No hay shell: las palabras se separan con espacios, y las comillas mantienen juntas algunas. El entorno contiene LURKWELL_ALERT_RULE, _TIME, _PID, _NAME y _FIGURES.</translation>
    </message>
    <message id="alerts_command_no_end">
        <source></source>
        <translation>En el comando, una comilla no tiene pareja.</translation>
    </message>
    <message id="alerts_command_long">
        <source></source>
        <translation>El comando es demasiado largo.</translation>
    </message>
    <message id="alerts_command_not_started">
        <source></source>
        <translation>no se pudo iniciar el comando: %1</translation>
    </message>
    <message id="alerts_command_status">
        <source></source>
        <translation>el comando terminó con el estado %1</translation>
    </message>
    <message id="alerts_command_too_long">
        <source></source>
        <translation>el comando tardó más de %1 segundos y se terminó</translation>
    </message>
    <message id="alerts_command_left_out">
        <source></source>
        <translation>demasiados comandos a la vez; se omitieron algunos</translation>
    </message>
    <message id="alerts_editor_note">
        <source></source>
        <translation>Una regla es una condición como en el filtro. “any” delante la convierte en una sola alerta para todos los procesos, “total mem&gt;8G” suma un valor, “absent” espera a que no haya ninguno. “for 5m” dice cuánto tiempo debe cumplirse, y “until cpu&lt;70%” qué la acaba; si no, acaba cuando lleva medio minuto sin cumplirse.</translation>
    </message>
    <message id="alerts_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n alerta más</numerusform>
            <numerusform>%n alertas más</numerusform>
        </translation>
    </message>
    <message id="alerts_more_latest">
        <source></source>
        <translation>La última: %1
%2</translation>
    </message>
    <message id="alerts_left_out" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Hay %n regla guardada además de las %1 que se vigilan. Quite alguna para que se vigile a partir del próximo inicio.</numerusform>
            <numerusform>Hay %n reglas guardadas además de las %1 que se vigilan. Quite algunas para que se vigilen a partir del próximo inicio.</numerusform>
        </translation>
    </message>
    <message id="alerts_too_many">
        <source></source>
        <translation>No puede haber más reglas.</translation>
    </message>
    <message id="alerts_log_problem">
        <source></source>
        <translation>No se puede escribir el registro de alertas: %1</translation>
    </message>
    <message id="alerts_log_not_shown">
        <source></source>
        <translation>Ningún gestor de archivos ha podido mostrar el registro, que es %1</translation>
    </message>
    <message id="alerts_notification_problem">
        <source></source>
        <translation>No se pueden mostrar notificaciones: %1</translation>
    </message>
    <message id="alerts_has_ended">
        <source></source>
        <translation>%1 ha terminado.</translation>
    </message>
    <message id="alerts_not_in_table">
        <source></source>
        <translation>%1 está en ejecución, pero el filtro o el ámbito de la tabla lo excluyen.</translation>
    </message>
    <message id="alerts_not_of_recordings">
        <source></source>
        <translation>Las alertas tratan de los procesos en ejecución. En una grabación no se vigila nada.</translation>
    </message>
    <message id="filter_unknown_key">
        <source></source>
        <translation>No hay ningún “%1” que consultar; entre comillas es un texto que se busca.</translation>
    </message>
    <message id="filter_unknown_key_near">
        <source></source>
        <translation>No hay ningún “%1” que consultar; existe %2.</translation>
    </message>
    <message id="filter_no_value">
        <source></source>
        <translation>No hay nada detrás de “%1”.</translation>
    </message>
    <message id="filter_no_term">
        <source></source>
        <translation>Falta algo junto a “%1”.</translation>
    </message>
    <message id="filter_no_end">
        <source></source>
        <translation>Una comilla no tiene pareja.</translation>
    </message>
    <message id="filter_text_is_not_compared">
        <source></source>
        <translation>“%1” es un texto; pregunte por %2.</translation>
    </message>
    <message id="filter_no_number">
        <source></source>
        <translation>“%1” no es un número como %2.</translation>
    </message>
    <message id="filter_no_expression">
        <source></source>
        <translation>“%1” no es una expresión regular: %2.</translation>
    </message>
    <message id="main_window_status_some" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 de %n proceso: %2; %3 seleccionados</numerusform>
            <numerusform>%1 de %n procesos: %2; %3 seleccionados</numerusform>
        </translation>
    </message>
    <message id="main_window_status_totals">
        <source></source>
        <translation>: CPU %1 %, memoria %2</translation>
    </message>
    <message id="main_window_status_paused">
        <source></source>
        <translation>En pausa: desde entonces %1 terminados, %2 nuevos.</translation>
    </message>
    <message id="main_window_status_follows">
        <source></source>
        <translation>La selección se mantiene en su sitio.</translation>
    </message>
    <message id="main_window_scope_hides_all">
        <source></source>
        <translation>Ningún proceso es de estos: %1. Ver › Mostrar › Todos los procesos vuelve a mostrarlos todos.</translation>
    </message>
    <message id="scope_mine">
        <source></source>
        <translation>míos</translation>
    </message>
    <message id="scope_others">
        <source></source>
        <translation>de otros usuarios</translation>
    </message>
    <message id="scope_applications">
        <source></source>
        <translation>aplicaciones</translation>
    </message>
    <message id="scope_without_kernel">
        <source></source>
        <translation>sin hilos del núcleo</translation>
    </message>
    <message id="scope_busy">
        <source></source>
        <translation>activos</translation>
    </message>
    <message id="scope_filter">
        <source></source>
        <translation>filtro</translation>
    </message>
    <message id="filter_not_allowed">
        <source></source>
        <translation>no permitidos: %1</translation>
    </message>
    <message id="filter_not_allowed_tip">
        <source></source>
        <translation>Procesos de otros usuarios en los que solo un administrador puede mirar</translation>
    </message>
    <message id="filter_looks" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Examinando %n proceso…</numerusform>
            <numerusform>Examinando %n procesos…</numerusform>
        </translation>
    </message>
    <message id="filter_hides_all_not_allowed">
        <source></source>
        <translation>Ningún proceso que se pueda examinar cumple el filtro; no permitidos: %1. Escape quita el filtro.</translation>
    </message>
    <message id="switch_shape">
        <source></source>
        <translation>Forma de la tabla</translation>
    </message>
    <message id="switch_scope">
        <source></source>
        <translation>Qué procesos se muestran</translation>
    </message>
    <message id="switch_columns">
        <source></source>
        <translation>Conjunto de columnas</translation>
    </message>
    <message id="set_save_title">
        <source></source>
        <translation>Guardar las columnas como conjunto</translation>
    </message>
    <message id="set_rename_title">
        <source></source>
        <translation>Cambiar el nombre del conjunto de columnas</translation>
    </message>
    <message id="set_title_label">
        <source></source>
        <translation>Nombre del conjunto:</translation>
    </message>
    <message id="set_title_agree">
        <source></source>
        <translation>Guardar</translation>
    </message>
    <message id="set_without_title">
        <source></source>
        <translation>Un conjunto necesita un nombre.</translation>
    </message>
    <message id="set_title_too_long">
        <source></source>
        <translation>El nombre puede tener %1 letras como máximo.</translation>
    </message>
    <message id="set_title_is_taken">
        <source></source>
        <translation>Ya existe un conjunto “%1”.</translation>
    </message>
    <message id="set_too_many">
        <source></source>
        <translation>Puede haber %1 conjuntos propios como máximo. Elimine uno que no necesite.</translation>
    </message>
    <message id="set_question_title">
        <source></source>
        <translation>Conjunto de columnas</translation>
    </message>
    <message id="set_delete_question">
        <source></source>
        <translation>¿Eliminar el conjunto “%1”? Sus columnas, con su anchura y su orden, no se podrán recuperar.</translation>
    </message>
    <message id="set_delete_agree">
        <source></source>
        <translation>Eliminar</translation>
    </message>
    <message id="set_restore_question">
        <source></source>
        <translation>¿Devolver el conjunto “%1” a como era al principio? Se perderá lo que haya cambiado en él.</translation>
    </message>
    <message id="set_restore_agree">
        <source></source>
        <translation>Restaurar</translation>
    </message>
    <message id="group_kernel_threads">
        <source></source>
        <translation>Hilos del núcleo</translation>
    </message>
    <message id="row_level">
        <source></source>
        <translation>, nivel %1</translation>
    </message>
    <message id="row_folded">
        <source></source>
        <translation>, contraída, %1 debajo</translation>
    </message>
    <message id="row_ended">
        <source></source>
        <translation>, terminado</translation>
    </message>
    <message id="row_zombie">
        <source></source>
        <translation>, zombi</translation>
    </message>
    <message id="cell_spoken">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="sorted_ascending">
        <source></source>
        <translation>ordenado de menor a mayor</translation>
    </message>
    <message id="sorted_descending">
        <source></source>
        <translation>ordenado de mayor a menor</translation>
    </message>
    <message id="row_unfolded">
        <source></source>
        <translation>, expandida, %1 debajo</translation>
    </message>
    <message id="total_tip" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Total de %n proceso, hasta donde se conoce</numerusform>
            <numerusform>Total de %n procesos, hasta donde se conoce</numerusform>
        </translation>
    </message>
    <message id="total_memory_tip">
        <source></source>
        <translation>Memoria residente: lo que los procesos comparten se cuenta por partes si se conocen (PSS); si no, para cada uno de ellos</translation>
    </message>
    <message id="main_window_status_counts" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n proceso, %1 visibles, %2 marcados</numerusform>
            <numerusform>%n procesos, %1 visibles, %2 marcados</numerusform>
        </translation>
    </message>
    <message id="main_window_helper_unprivileged">
        <source></source>
        <translation>Limitado a sus procesos. &lt;a href="rights"&gt;Más permisos…&lt;/a&gt;</translation>
    </message>
    <message id="main_window_helper_absent">
        <source></source>
        <translation>El auxiliar no está en marcha: no se puede hacer nada con los procesos. &lt;a href="rights"&gt;¿Por qué?&lt;/a&gt;</translation>
    </message>
    <message id="main_window_rights_title">
        <source></source>
        <translation>Lurkwell actúa solo sobre sus propios procesos</translation>
    </message>
    <message id="main_window_rights_may_ask">
        <source></source>
        <translation>Un administrador puede dar al auxiliar de Lurkwell permisos para enviar señales a todos los procesos y cambiar su prioridad. Se pregunta una sola vez; los siguientes inicios ya los encuentran.</translation>
    </message>
    <message id="main_window_rights_may_not_ask">
        <source></source>
        <translation>Un paquete instalado incluye un auxiliar al que un administrador puede dar permisos para enviar señales a todos los procesos y cambiar su prioridad.</translation>
    </message>
    <message id="main_window_rights_ask">
        <source></source>
        <translation>Autenticarse…</translation>
    </message>
    <message id="main_window_rights_close">
        <source></source>
        <translation>Cerrar</translation>
    </message>
    <message id="help_title">
        <source></source>
        <translation>Ayuda de Lurkwell</translation>
    </message>
    <message id="help_no_key">
        <source></source>
        <translation>(no tiene ninguna tecla asignada)</translation>
    </message>
    <message id="help_menu_process_quit_or_kill">
        <source></source>
        <translation>cerrar o matar los procesos seleccionados</translation>
    </message>
    <message id="help_menu_edit_filter">
        <source></source>
        <translation>mostrar solo los procesos con cierto texto; Escape los muestra todos</translation>
    </message>
    <message id="help_menu_process_by_id">
        <source></source>
        <translation>ir a un proceso por su ID</translation>
    </message>
    <message id="help_menu_edit_copy">
        <source></source>
        <translation>copiar las filas seleccionadas</translation>
    </message>
    <message id="help_menu_file_new_cpu_history">
        <source></source>
        <translation>un historial de CPU de cada proceso seleccionado</translation>
    </message>
    <message id="help_menu_file_new_logging">
        <source></source>
        <translation>un registro de cada proceso seleccionado</translation>
    </message>
    <message id="help_menu_file_details">
        <source></source>
        <translation>todo sobre cada proceso seleccionado: hilos, archivos abiertos, memoria, entorno, límites</translation>
    </message>
    <message id="help_menu_view_overlay">
        <source></source>
        <translation>poner la vista animada sobre toda la pantalla, y quitarla</translation>
    </message>
    <message id="help_menu_file_record">
        <source></source>
        <translation>grabar los procesos en un archivo, para verlos más tarde; la segunda vez termina la grabación</translation>
    </message>
    <message id="help_menu_set_standard">
        <source></source>
        <translation>Columnas: Estándar</translation>
    </message>
    <message id="help_menu_set_cpu">
        <source></source>
        <translation>Columnas: CPU</translation>
    </message>
    <message id="help_menu_set_memory">
        <source></source>
        <translation>Columnas: Memoria</translation>
    </message>
    <message id="help_menu_set_disk_network">
        <source></source>
        <translation>Columnas: Disco y red</translation>
    </message>
    <message id="help_menu_set_commands">
        <source></source>
        <translation>Columnas: Comandos</translation>
    </message>
    <message id="help_menu_set_containers">
        <source></source>
        <translation>Columnas: Contenedores</translation>
    </message>
    <message id="help_menu_set_security">
        <source></source>
        <translation>Columnas: Seguridad</translation>
    </message>
    <message id="help_menu_file_open_recording">
        <source></source>
        <translation>ver lo que se grabó, en una ventana propia</translation>
    </message>
    <message id="help_menu_file_close_window">
        <source></source>
        <translation>cerrar la ventana; la última sale del programa</translation>
    </message>
    <message id="help_menu_application_quit">
        <source></source>
        <translation>salir; lo que está abierto vuelve en el próximo inicio</translation>
    </message>
    <message id="help_menu_application_preferences">
        <source></source>
        <translation>las preferencias</translation>
    </message>
    <message id="help_menu_edit_select_all">
        <source></source>
        <translation>seleccionar todos los procesos que se muestran</translation>
    </message>
    <message id="help_menu_edit_select_children">
        <source></source>
        <translation>seleccionar los hijos de los procesos seleccionados en lugar de estos</translation>
    </message>
    <message id="help_menu_view_update_now">
        <source></source>
        <translation>actualizar ahora</translation>
    </message>
    <message id="help_menu_view_pause">
        <source></source>
        <translation>dejar quietos las filas y los valores; otra vez para seguir</translation>
    </message>
    <message id="help_menu_view_follow">
        <source></source>
        <translation>mantener la fila seleccionada donde está mientras las demás se mueven</translation>
    </message>
    <message id="help_menu_view_shape_list">
        <source></source>
        <translation>mostrar todos los procesos como lista</translation>
    </message>
    <message id="help_menu_view_shape_tree">
        <source></source>
        <translation>mostrar los hijos debajo de sus padres</translation>
    </message>
    <message id="help_menu_view_shape_applications">
        <source></source>
        <translation>mostrar los procesos debajo de sus aplicaciones</translation>
    </message>
    <message id="help_menu_view_unfold_all">
        <source></source>
        <translation>expandir todas las filas</translation>
    </message>
    <message id="help_menu_view_fold_all">
        <source></source>
        <translation>contraer todas las filas</translation>
    </message>
    <message id="help_menu_view_column_left">
        <source></source>
        <translation>mover la columna ordenada a la izquierda</translation>
    </message>
    <message id="help_menu_view_column_right">
        <source></source>
        <translation>moverla a la derecha</translation>
    </message>
    <message id="help_menu_view_column_wider">
        <source></source>
        <translation>hacerla más ancha</translation>
    </message>
    <message id="help_menu_view_column_narrower">
        <source></source>
        <translation>hacerla más estrecha</translation>
    </message>
    <message id="help_menu_view_column_fit">
        <source></source>
        <translation>ajustarla a su contenido</translation>
    </message>
    <message id="help_menu_process_halt">
        <source></source>
        <translation>detener los procesos seleccionados</translation>
    </message>
    <message id="help_menu_process_continue">
        <source></source>
        <translation>hacer que sigan los detenidos</translation>
    </message>
    <message id="help_menu_process_high_priority">
        <source></source>
        <translation>dar prioridad alta a los procesos seleccionados</translation>
    </message>
    <message id="help_menu_process_normal_priority">
        <source></source>
        <translation>darles la prioridad normal</translation>
    </message>
    <message id="help_menu_process_low_priority">
        <source></source>
        <translation>darles prioridad baja</translation>
    </message>
    <message id="help_menu_process_bring_to_front">
        <source></source>
        <translation>traer al frente las aplicaciones seleccionadas</translation>
    </message>
    <message id="help_menu_process_hide">
        <source></source>
        <translation>ocultar sus ventanas</translation>
    </message>
    <message id="help_menu_process_reveal">
        <source></source>
        <translation>mostrar sus archivos en el gestor de archivos</translation>
    </message>
    <message id="help_menu_help_help">
        <source></source>
        <translation>esta página</translation>
    </message>
    <message id="main_window_help_missing">
        <source></source>
        <translation>No se puede leer la página de ayuda: %1</translation>
    </message>
    <message id="value_not_yet_known">
        <source></source>
        <translation>aún no se conoce</translation>
    </message>
    <message id="value_not_allowed">
        <source></source>
        <translation>no permitido</translation>
    </message>
    <message id="value_not_counted">
        <source></source>
        <translation>no se mide en este sistema</translation>
    </message>
    <message id="value_not_yet_known_tip">
        <source></source>
        <translation>Aún no se conoce: lo traerá una de las próximas actualizaciones.</translation>
    </message>
    <message id="value_not_allowed_tip">
        <source></source>
        <translation>No permitido: de este proceso solo puede leerlo root. Lurkwell lo muestra cuando lo inicia root.</translation>
    </message>
    <message id="value_not_counted_tip">
        <source></source>
        <translation>No se mide: no existe ese valor de este proceso en este sistema.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_read_tip">
        <source></source>
        <translation>No permitido: solo pueden leerlo el usuario del proceso y root. Lo que lee y escribe su unidad está en las columnas de la unidad; root lo ve si inicia Lurkwell.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_written_tip">
        <source></source>
        <translation>No permitido: solo pueden leerlo el usuario del proceso y root. Lo que lee y escribe su unidad está en las columnas de la unidad; root lo ve si inicia Lurkwell.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_read_rate_tip">
        <source></source>
        <translation>No permitido: solo pueden leerlo el usuario del proceso y root. Lo que lee y escribe su unidad está en las columnas de la unidad; root lo ve si inicia Lurkwell.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_write_rate_tip">
        <source></source>
        <translation>No permitido: solo pueden leerlo el usuario del proceso y root. Lo que lee y escribe su unidad está en las columnas de la unidad; root lo ve si inicia Lurkwell.</translation>
    </message>
    <message id="value_not_counted_pid_unit_disk_read_tip">
        <source></source>
        <translation>No se mide: la unidad del proceso no contabiliza su entrada y salida. IOAccounting=yes en la unidad lo activaría.</translation>
    </message>
    <message id="value_not_counted_pid_unit_disk_written_tip">
        <source></source>
        <translation>No se mide: la unidad del proceso no contabiliza su entrada y salida. IOAccounting=yes en la unidad lo activaría.</translation>
    </message>
    <message id="value_not_counted_pid_unit_read_rate_tip">
        <source></source>
        <translation>No se mide: la unidad del proceso no contabiliza su entrada y salida. IOAccounting=yes en la unidad lo activaría.</translation>
    </message>
    <message id="value_not_counted_pid_unit_write_rate_tip">
        <source></source>
        <translation>No se mide: la unidad del proceso no contabiliza su entrada y salida. IOAccounting=yes en la unidad lo activaría.</translation>
    </message>
    <message id="value_not_yet_known_pid_cpu_share_tip">
        <source></source>
        <translation>Aún no se conoce: hacen falta dos lecturas; lo traerá una de las próximas actualizaciones.</translation>
    </message>
    <message id="value_not_yet_known_pid_user_share_tip">
        <source></source>
        <translation>Aún no se conoce: hacen falta dos lecturas; lo traerá una de las próximas actualizaciones.</translation>
    </message>
    <message id="value_not_yet_known_pid_system_share_tip">
        <source></source>
        <translation>Aún no se conoce: hacen falta dos lecturas; lo traerá una de las próximas actualizaciones.</translation>
    </message>
    <message id="value_not_yet_known_pid_disk_read_rate_tip">
        <source></source>
        <translation>Aún no se conoce: hacen falta dos lecturas; lo traerá una de las próximas actualizaciones.</translation>
    </message>
    <message id="value_not_yet_known_pid_disk_write_rate_tip">
        <source></source>
        <translation>Aún no se conoce: hacen falta dos lecturas; lo traerá una de las próximas actualizaciones.</translation>
    </message>
    <message id="value_not_yet_known_pid_read_rate_tip">
        <source></source>
        <translation>Aún no se conoce: hacen falta dos lecturas; lo traerá una de las próximas actualizaciones.</translation>
    </message>
    <message id="value_not_yet_known_pid_write_rate_tip">
        <source></source>
        <translation>Aún no se conoce: hacen falta dos lecturas; lo traerá una de las próximas actualizaciones.</translation>
    </message>
    <message id="value_not_yet_known_pid_unit_read_rate_tip">
        <source></source>
        <translation>Aún no se conoce: hacen falta dos lecturas; lo traerá una de las próximas actualizaciones.</translation>
    </message>
    <message id="value_not_yet_known_pid_unit_write_rate_tip">
        <source></source>
        <translation>Aún no se conoce: hacen falta dos lecturas; lo traerá una de las próximas actualizaciones.</translation>
    </message>
    <message id="value_not_counted_pid_label_tip">
        <source></source>
        <translation>No se mide: el núcleo no tiene ningún módulo de seguridad que etiquete los procesos (AppArmor, SELinux, Smack).</translation>
    </message>
    <message id="main_window_idle_task_tip">
        <source></source>
        <translation>La tarea inactiva: lo que tiene es el tiempo en que los procesadores no tenían nada que hacer.</translation>
    </message>
    <message id="main_window_zombie_tip">
        <source></source>
        <translation>Un zombi: el proceso ha terminado y su padre aún no ha pedido su estado de salida.</translation>
    </message>
    <message id="main_window_ended_tip">
        <source></source>
        <translation>Este proceso terminó mientras su fila tenía que quedarse. Ninguna acción llega hasta él.</translation>
    </message>
    <message id="main_window_late_tip">
        <source></source>
        <translation>Esta columna se añadió mientras la tabla estaba en pausa: sus valores son de ese momento y de los procesos que aún existían.</translation>
    </message>
    <message id="main_window_stale_tip">
        <source></source>
        <translation>La última actualización no trajo valores para esta columna; estos son anteriores.</translation>
    </message>
    <message id="main_window_no_address">
        <source></source>
        <translation>No es la dirección de un proceso, como lurkwell://pid/4711: %1</translation>
    </message>
    <message id="main_window_by_id_title">
        <source></source>
        <translation>Buscar proceso por ID</translation>
    </message>
    <message id="main_window_by_id_label">
        <source></source>
        <translation>ID del proceso:</translation>
    </message>
    <message id="main_window_by_id_find">
        <source></source>
        <translation>&amp;Buscar</translation>
    </message>
    <message id="main_window_by_id_no_number">
        <source></source>
        <translation>Un ID de proceso es un número de 0 a %1.</translation>
    </message>
    <message id="main_window_not_revealed">
        <source></source>
        <translation>Ningún gestor de archivos ha mostrado el archivo, %1.</translation>
    </message>
    <message id="main_window_nothing_to_reveal_with">
        <source></source>
        <translation>No hay a quién pedir que muestre el archivo: no hay bus de sesión, o el programa ha desaparecido.</translation>
    </message>
    <message id="main_window_no_details">
        <source></source>
        <translation>No hay detalles de %1: no es un proceso del sistema.</translation>
    </message>
    <message id="main_window_no_children">
        <source></source>
        <translation>Ninguno de los procesos seleccionados tiene hijos.</translation>
    </message>
    <message id="main_window_hidden_children" numerus="yes">
        <source></source>
        <translation>
            <numerusform>El filtro oculta %n de los hijos.</numerusform>
            <numerusform>El filtro oculta %n de los hijos.</numerusform>
        </translation>
    </message>
    <message id="main_window_preferences">
        <source></source>
        <translation>Sus preferencias: %1.</translation>
    </message>
    <message id="main_window_by_id_not_found">
        <source></source>
        <translation>No hay ningún proceso %1.</translation>
    </message>
    <message id="process_halted">
        <source></source>
        <translation>Detenido</translation>
    </message>
    <message id="process_niced_high">
        <source></source>
        <translation>Prioridad alta</translation>
    </message>
    <message id="process_niced_low">
        <source></source>
        <translation>Prioridad baja</translation>
    </message>
    <message id="context_menu_one">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="context_menu_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n proceso</numerusform>
            <numerusform>%n procesos</numerusform>
        </translation>
    </message>
    <message id="action_ask_window">
        <source></source>
        <translation>Lurkwell</translation>
    </message>
    <message id="action_ask_quit_one">
        <source></source>
        <translation>¿Cerrar el proceso %1 (%2)?</translation>
    </message>
    <message id="action_ask_quit_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>¿Cerrar %n proceso?</numerusform>
            <numerusform>¿Cerrar %n procesos?</numerusform>
        </translation>
    </message>
    <message id="action_ask_kill_one">
        <source></source>
        <translation>¿Matar el proceso %1 (%2)?</translation>
    </message>
    <message id="action_ask_kill_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>¿Matar %n proceso?</numerusform>
            <numerusform>¿Matar %n procesos?</numerusform>
        </translation>
    </message>
    <message id="action_ask_halt_one">
        <source></source>
        <translation>¿Detener el proceso %1 (%2)?</translation>
    </message>
    <message id="action_ask_halt_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>¿Detener %n proceso?</numerusform>
            <numerusform>¿Detener %n procesos?</numerusform>
        </translation>
    </message>
    <message id="action_ask_lower_one">
        <source></source>
        <translation>¿Bajar la prioridad del proceso %1 (%2)?</translation>
    </message>
    <message id="action_ask_lower_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>¿Bajar la prioridad de %n proceso?</numerusform>
            <numerusform>¿Bajar la prioridad de %n procesos?</numerusform>
        </translation>
    </message>
    <message id="action_button_quit">
        <source></source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message id="action_button_kill">
        <source></source>
        <translation>&amp;Matar</translation>
    </message>
    <message id="action_button_halt">
        <source></source>
        <translation>&amp;Detener</translation>
    </message>
    <message id="action_button_lower">
        <source></source>
        <translation>Bajar la &amp;prioridad</translation>
    </message>
    <message id="action_next_quit">
        <source></source>
        <translation>Se le pide que cierre sus ventanas y salga.</translation>
    </message>
    <message id="action_next_terminate">
        <source></source>
        <translation>Se le pide que termine (SIGTERM). Puede guardar antes su trabajo, pero no tiene por qué hacerlo.</translation>
    </message>
    <message id="action_next_terminate_again">
        <source></source>
        <translation>Se le ha pedido %1 que se cierre y sigue ahí; ahora se le pide que termine (SIGTERM).</translation>
    </message>
    <message id="action_next_helper">
        <source></source>
        <translation>Se le ha pedido %1 que termine y sigue ahí; se le pide otra vez, por medio del auxiliar (SIGTERM).</translation>
    </message>
    <message id="action_next_force">
        <source></source>
        <translation>Se termina por la fuerza (SIGKILL). Se pierde lo que no haya guardado.</translation>
    </message>
    <message id="action_next_force_at_last">
        <source></source>
        <translation>Se le ha pedido %1 que termine; ahora se termina por la fuerza (SIGKILL). Se pierde lo que no haya guardado.</translation>
    </message>
    <message id="action_next_halted">
        <source></source>
        <translation>Está detenido, y se enterará cuando se le haga continuar.</translation>
    </message>
    <message id="action_next_several">
        <source></source>
        <translation>A cada uno se le pide que se cierre o que termine, como dice la lista. Puede perderse lo que no hayan guardado.</translation>
    </message>
    <message id="action_next_several_forced">
        <source></source>
        <translation>Cada uno pasa por el paso que indica la lista. Se pierde lo que no hayan guardado los que se terminan por la fuerza.</translation>
    </message>
    <message id="action_next_halt">
        <source></source>
        <translation>Un proceso detenido no avanza hasta que se le hace continuar: sus ventanas no responden, y lo que depende de él espera.</translation>
    </message>
    <message id="action_next_lower">
        <source></source>
        <translation>Recibe el procesador cuando nadie más lo quiere. Para volver a subir la prioridad hacen falta permisos de administrador.</translation>
    </message>
    <message id="action_step_quit">
        <source></source>
        <translation>se le pide que se cierre</translation>
    </message>
    <message id="action_step_terminate">
        <source></source>
        <translation>se le pide que termine</translation>
    </message>
    <message id="action_step_terminate_again">
        <source></source>
        <translation>se le pide que termine</translation>
    </message>
    <message id="action_step_helper">
        <source></source>
        <translation>se le pide otra vez que termine</translation>
    </message>
    <message id="action_step_force">
        <source></source>
        <translation>se termina por la fuerza</translation>
    </message>
    <message id="action_step_force_at_last">
        <source></source>
        <translation>se termina por la fuerza</translation>
    </message>
    <message id="action_warn_own">
        <source></source>
        <translation>Es el propio Lurkwell.</translation>
    </message>
    <message id="action_warn_own_among">
        <source></source>
        <translation>El propio Lurkwell está entre ellos.</translation>
    </message>
    <message id="action_warn_others" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n de ellos pertenece a otro usuario.</numerusform>
            <numerusform>%n de ellos pertenecen a otros usuarios.</numerusform>
        </translation>
    </message>
    <message id="action_owner">
        <source></source>
        <translation>Propietario:</translation>
    </message>
    <message id="action_command_line">
        <source></source>
        <translation>Línea de comandos:</translation>
    </message>
    <message id="action_unknown">
        <source></source>
        <translation>no se conoce</translation>
    </message>
    <message id="action_column_name">
        <source></source>
        <translation>Nombre</translation>
    </message>
    <message id="action_column_pid">
        <source></source>
        <translation>ID</translation>
    </message>
    <message id="action_column_owner">
        <source></source>
        <translation>Propietario</translation>
    </message>
    <message id="action_column_step">
        <source></source>
        <translation>Próximo paso</translation>
    </message>
    <message id="action_column_command">
        <source></source>
        <translation>Línea de comandos</translation>
    </message>
    <message id="times_once">
        <source></source>
        <translation>una vez</translation>
    </message>
    <message id="times_twice">
        <source></source>
        <translation>dos veces</translation>
    </message>
    <message id="times_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n vez</numerusform>
            <numerusform>%n veces</numerusform>
        </translation>
    </message>
    <message id="action_process">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="action_processes" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n proceso (%1)</numerusform>
            <numerusform>%n procesos (%1)</numerusform>
        </translation>
    </message>
    <message id="action_failed">
        <source></source>
        <translation>No se hizo nada con %1: %2.</translation>
    </message>
    <message id="action_reason_gone">
        <source></source>
        <translation>ya no existe</translation>
    </message>
    <message id="action_reason_protected">
        <source></source>
        <translation>el sistema depende de él</translation>
    </message>
    <message id="action_reason_kernel_thread">
        <source></source>
        <translation>el núcleo no acepta señales</translation>
    </message>
    <message id="action_reason_refused">
        <source></source>
        <translation>no está permitido sin permisos de administrador</translation>
    </message>
    <message id="action_reason_in_words">
        <source></source>
        <translation>el auxiliar dice “%1”</translation>
    </message>
    <message id="action_reason_no_helper">
        <source></source>
        <translation>el auxiliar no responde</translation>
    </message>
    <message id="action_reason_no_time">
        <source></source>
        <translation>no se intentó, porque el auxiliar tarda demasiado</translation>
    </message>
    <message id="action_reason_nobody">
        <source></source>
        <translation>este escritorio no tiene forma de hacerlo</translation>
    </message>
    <message id="action_reason_out_of_reach">
        <source></source>
        <translation>este escritorio no permite que ningún programa haga eso con las ventanas de otro</translation>
    </message>
    <message id="action_done_quit" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Se ha pedido a %1 que se cierre.</numerusform>
            <numerusform>Se ha pedido a %1 que se cierren.</numerusform>
        </translation>
    </message>
    <message id="action_done_terminate" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Se ha pedido a %1 que termine.</numerusform>
            <numerusform>Se ha pedido a %1 que terminen.</numerusform>
        </translation>
    </message>
    <message id="action_done_force" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 se ha terminado por la fuerza.</numerusform>
            <numerusform>%1 se han terminado por la fuerza.</numerusform>
        </translation>
    </message>
    <message id="action_done_halt" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 se ha detenido.</numerusform>
            <numerusform>%1 se han detenido.</numerusform>
        </translation>
    </message>
    <message id="action_done_continue" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 continúa.</numerusform>
            <numerusform>%1 continúan.</numerusform>
        </translation>
    </message>
    <message id="action_done_high" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 tiene ahora prioridad alta.</numerusform>
            <numerusform>%1 tienen ahora prioridad alta.</numerusform>
        </translation>
    </message>
    <message id="action_done_normal" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 tiene ahora la prioridad normal.</numerusform>
            <numerusform>%1 tienen ahora la prioridad normal.</numerusform>
        </translation>
    </message>
    <message id="action_done_low" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 tiene ahora prioridad baja.</numerusform>
            <numerusform>%1 tienen ahora prioridad baja.</numerusform>
        </translation>
    </message>
    <message id="follow_confirmation_title" numerus="yes">
        <source></source>
        <translation>
            <numerusform>¿Abrir %n ventana nueva?</numerusform>
            <numerusform>¿Abrir %n ventanas nuevas?</numerusform>
        </translation>
    </message>
    <message id="follow_confirmation_text">
        <source></source>
        <translation>Se abrirá una ventana para cada proceso seleccionado.</translation>
    </message>
    <message id="follow_confirmation_open">
        <source></source>
        <translation>&amp;Abrir</translation>
    </message>
    <message id="follow_limit_title" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Se ha abierto %n de %1 ventanas.</numerusform>
            <numerusform>Se han abierto %n de %1 ventanas.</numerusform>
        </translation>
    </message>
    <message id="follow_limit_text">
        <source></source>
        <translation>No puede haber abiertas a la vez más ventanas que sigan procesos. Cierre antes algunas.</translation>
    </message>
    <message id="darwin_tools_not_found">
        <source></source>
        <translation>Lurkwell no puede funcionar sin las herramientas del sistema /bin/ps, /bin/kill y /usr/bin/renice, y no se ha encontrado al menos una de ellas.</translation>
    </message>
    <message id="no_quartz_extreme">
        <source></source>
        <translation>Esta pantalla no tiene aceleración gráfica. La vista animada será lenta.</translation>
    </message>
    <message id="about_title">
        <source></source>
        <translation>Acerca de Lurkwell</translation>
    </message>
    <message id="about_name">
        <source></source>
        <translation>Lurkwell</translation>
    </message>
    <message id="about_version">
        <source></source>
        <translation>Versión %1</translation>
    </message>
    <message id="about_text">
        <source></source>
        <translation>Un monitor de procesos interactivo
Software libre con licencia MIT</translation>
    </message>
    <message id="toolbar_system_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="toolbar_system_cpu_tip">
        <source></source>
        <translation>Lo ocupados que están los procesadores del equipo.</translation>
    </message>
    <message id="toolbar_system_cpu_figure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>CPU: %1 % de %n procesador</numerusform>
            <numerusform>CPU: %1 % de %n procesadores</numerusform>
        </translation>
    </message>
    <message id="toolbar_system_ram">
        <source></source>
        <translation>Memoria</translation>
    </message>
    <message id="toolbar_system_ram_tip">
        <source></source>
        <translation>Cómo se usa la memoria del equipo.</translation>
    </message>
    <message id="toolbar_system_ram_figures">
        <source></source>
        <translation>Memoria: %1 de %2 en uso
Fija: %3
Inactiva: %4
Libre: %5</translation>
    </message>
    <message id="toolbar_vm_thrashing">
        <source></source>
        <translation>Intercambio</translation>
    </message>
    <message id="toolbar_vm_thrashing_tip">
        <source></source>
        <translation>Verde mientras no se envía memoria al intercambio, amarillo mientras se envía algo, rojo intermitente mientras es tanta que el equipo se ralentiza.</translation>
    </message>
    <message id="toolbar_vm_thrashing_figure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n página enviada al intercambio desde la última actualización</numerusform>
            <numerusform>%n páginas enviadas al intercambio desde la última actualización</numerusform>
        </translation>
    </message>
    <message id="toolbar_usage_history">
        <source></source>
        <translation>Historial de CPU</translation>
    </message>
    <message id="toolbar_usage_history_tip">
        <source></source>
        <translation>Abre una ventana con el uso de CPU a lo largo del tiempo de cada proceso seleccionado.</translation>
    </message>
    <message id="toolbar_log">
        <source></source>
        <translation>Registro</translation>
    </message>
    <message id="toolbar_log_tip">
        <source></source>
        <translation>Abre una ventana que registra valores de cada proceso seleccionado.</translation>
    </message>
    <message id="toolbar_bring_to_front">
        <source></source>
        <translation>Traer al frente</translation>
    </message>
    <message id="toolbar_bring_to_front_tip">
        <source></source>
        <translation>Trae al frente las ventanas de las aplicaciones seleccionadas.</translation>
    </message>
    <message id="toolbar_kill">
        <source></source>
        <translation>Matar</translation>
    </message>
    <message id="toolbar_kill_tip">
        <source></source>
        <translation>Pide a los procesos seleccionados que terminen; cada vez más sobre el mismo proceso es más drástica.</translation>
    </message>
    <message id="toolbar_hide_process">
        <source></source>
        <translation>Ocultar</translation>
    </message>
    <message id="toolbar_hide_process_tip">
        <source></source>
        <translation>Oculta las ventanas de las aplicaciones seleccionadas.</translation>
    </message>
    <message id="toolbar_reveal">
        <source></source>
        <translation>Ver archivo</translation>
    </message>
    <message id="toolbar_reveal_tip">
        <source></source>
        <translation>Muestra las aplicaciones seleccionadas en el gestor de archivos.</translation>
    </message>
    <message id="toolbar_high">
        <source></source>
        <translation>Alta</translation>
    </message>
    <message id="toolbar_high_tip">
        <source></source>
        <translation>Da prioridad alta a los procesos seleccionados (nice -19).</translation>
    </message>
    <message id="toolbar_medium">
        <source></source>
        <translation>Normal</translation>
    </message>
    <message id="toolbar_medium_tip">
        <source></source>
        <translation>Da la prioridad normal a los procesos seleccionados (nice 0).</translation>
    </message>
    <message id="toolbar_low">
        <source></source>
        <translation>Baja</translation>
    </message>
    <message id="toolbar_low_tip">
        <source></source>
        <translation>Da la prioridad más baja a los procesos seleccionados, de modo que ceden el paso a todos los demás.</translation>
    </message>
    <message id="toolbar_halt">
        <source></source>
        <translation>Detener</translation>
    </message>
    <message id="toolbar_halt_tip">
        <source></source>
        <translation>Detiene los procesos seleccionados hasta que se les haga continuar.</translation>
    </message>
    <message id="toolbar_cont">
        <source></source>
        <translation>Continuar</translation>
    </message>
    <message id="toolbar_cont_tip">
        <source></source>
        <translation>Hace seguir los procesos seleccionados que estaban detenidos.</translation>
    </message>
    <message id="menu_process_kill_with_children">
        <source></source>
        <translation>Cerrar o matar con los hi&amp;jos</translation>
    </message>
    <message id="menu_process_signal">
        <source></source>
        <translation>Enviar &amp;señal…</translation>
    </message>
    <message id="menu_process_scheduling">
        <source></source>
        <translation>&amp;Prioridad y procesadores…</translation>
    </message>
    <message id="menu_process_show_executable">
        <source></source>
        <translation>Mostrar el arc&amp;hivo del programa</translation>
    </message>
    <message id="menu_process_search_web">
        <source></source>
        <translation>Buscar en la &amp;web</translation>
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
        <translation>cerrar o matar los procesos seleccionados y todo lo que han iniciado</translation>
    </message>
    <message id="help_menu_process_signal">
        <source></source>
        <translation>enviar cualquier señal</translation>
    </message>
    <message id="help_menu_process_scheduling">
        <source></source>
        <translation>valor nice, planificación, prioridad de disco, procesadores</translation>
    </message>
    <message id="help_menu_process_show_executable">
        <source></source>
        <translation>mostrar el archivo del programa en el gestor de archivos</translation>
    </message>
    <message id="main_window_no_executable">
        <source></source>
        <translation>No se sabe qué programas son, o no está permitido saberlo.</translation>
    </message>
    <message id="main_window_many_executables">
        <source></source>
        <translation>Son más de %1 programas; no se ha abierto nada.</translation>
    </message>
    <message id="main_window_no_search">
        <source></source>
        <translation>Este escritorio no abre “%1”.</translation>
    </message>
    <message id="action_ask_signal_one">
        <source></source>
        <translation>¿Enviar una señal al proceso %1 (%2)?</translation>
    </message>
    <message id="action_ask_signal_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>¿Enviar una señal a %n proceso?</numerusform>
            <numerusform>¿Enviar una señal a %n procesos?</numerusform>
        </translation>
    </message>
    <message id="action_ask_scheduling_one">
        <source></source>
        <translation>Prioridad y procesadores del proceso %1 (%2)</translation>
    </message>
    <message id="action_ask_scheduling_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Prioridad y procesadores de %n proceso</numerusform>
            <numerusform>Prioridad y procesadores de %n procesos</numerusform>
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
        <translation>Un programa puede capturar una señal y hacer otra cosa en su lugar, salvo con KILL y STOP. La lista dice qué ocurre en los demás casos.</translation>
    </message>
    <message id="action_next_scheduling">
        <source></source>
        <translation>Vale para todos los hilos a la vez, hasta que el proceso termina. Para ir por delante de otros hacen falta permisos de administrador.</translation>
    </message>
    <message id="action_reason_impossible">
        <source></source>
        <translation>este equipo no tiene ese procesador o esa prioridad</translation>
    </message>
    <message id="action_done_signal" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Se ha enviado %2 a %1.</numerusform>
            <numerusform>Se ha enviado %2 a %1.</numerusform>
        </translation>
    </message>
    <message id="action_done_nice" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 tiene ahora el valor nice %2.</numerusform>
            <numerusform>%1 tienen ahora el valor nice %2.</numerusform>
        </translation>
    </message>
    <message id="action_done_policy" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 se planifica ahora como %2.</numerusform>
            <numerusform>%1 se planifican ahora como %2.</numerusform>
        </translation>
    </message>
    <message id="action_done_io_priority" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 tiene ahora la prioridad de disco %2.</numerusform>
            <numerusform>%1 tienen ahora la prioridad de disco %2.</numerusform>
        </translation>
    </message>
    <message id="action_done_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 se ejecuta ahora en los procesadores %2.</numerusform>
            <numerusform>%1 se ejecutan ahora en los procesadores %2.</numerusform>
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
        <translation>De -20, que va por delante de todos los demás, a 19, que va por detrás</translation>
    </message>
    <message id="scheduling_policy">
        <source></source>
        <translation>Planificar como:</translation>
    </message>
    <message id="scheduling_policy_tip">
        <source></source>
        <translation>Por lotes conviene a lo que calcula mucho tiempo; inactiva, a lo que puede esperar a todo lo demás. El tiempo real va por delante de todo lo que no lo es, y puede paralizar el equipo.</translation>
    </message>
    <message id="scheduling_policy_normal">
        <source></source>
        <translation>Normal</translation>
    </message>
    <message id="scheduling_policy_batch">
        <source></source>
        <translation>Por lotes</translation>
    </message>
    <message id="scheduling_policy_idle">
        <source></source>
        <translation>Inactiva</translation>
    </message>
    <message id="scheduling_policy_round_robin">
        <source></source>
        <translation>Tiempo real, por turnos</translation>
    </message>
    <message id="scheduling_policy_fifo">
        <source></source>
        <translation>Tiempo real, uno tras otro</translation>
    </message>
    <message id="scheduling_priority">
        <source></source>
        <translation>Prioridad:</translation>
    </message>
    <message id="scheduling_io_class">
        <source></source>
        <translation>Prioridad de &amp;disco:</translation>
    </message>
    <message id="scheduling_io_tip">
        <source></source>
        <translation>Cuenta si el planificador del disco la conoce. 0 va antes que 7.</translation>
    </message>
    <message id="scheduling_io_none">
        <source></source>
        <translation>Según el valor nice</translation>
    </message>
    <message id="scheduling_io_best_effort">
        <source></source>
        <translation>Mejor esfuerzo</translation>
    </message>
    <message id="scheduling_io_idle">
        <source></source>
        <translation>Inactiva</translation>
    </message>
    <message id="scheduling_io_real_time">
        <source></source>
        <translation>Tiempo real</translation>
    </message>
    <message id="scheduling_io_level">
        <source></source>
        <translation>Nivel:</translation>
    </message>
    <message id="scheduling_processors">
        <source></source>
        <translation>&amp;Procesadores (de %1):</translation>
    </message>
    <message id="scheduling_processors_tip">
        <source></source>
        <translation>Números e intervalos, por ejemplo 0-3,6; este equipo tiene %1</translation>
    </message>
    <message id="scheduling_no_processors">
        <source></source>
        <translation>Indique procesadores entre %1, por ejemplo 0 o 0-1,3.</translation>
    </message>
    <message id="signal_list">
        <source></source>
        <translation>Señales</translation>
    </message>
    <message id="signal_column_name">
        <source></source>
        <translation>Señal</translation>
    </message>
    <message id="signal_column_number">
        <source></source>
        <translation>N.º</translation>
    </message>
    <message id="signal_column_effect">
        <source></source>
        <translation>Para qué sirve</translation>
    </message>
    <message id="signal_realtime">
        <source></source>
        <translation>Para uso propio del programa; si no, lo termina</translation>
    </message>
    <message id="signal_hup">
        <source></source>
        <translation>Su terminal ha desaparecido; los servicios suelen releer su configuración</translation>
    </message>
    <message id="signal_int">
        <source></source>
        <translation>Interrupción, como Ctrl+C en un terminal; lo termina</translation>
    </message>
    <message id="signal_quit">
        <source></source>
        <translation>Como Ctrl+\ en un terminal; lo termina y guarda su memoria</translation>
    </message>
    <message id="signal_ill">
        <source></source>
        <translation>Llegó a una instrucción prohibida; lo termina y guarda su memoria</translation>
    </message>
    <message id="signal_trap">
        <source></source>
        <translation>De los depuradores; lo termina y guarda su memoria</translation>
    </message>
    <message id="signal_abrt">
        <source></source>
        <translation>Se rindió; lo termina y guarda su memoria</translation>
    </message>
    <message id="signal_bus">
        <source></source>
        <translation>Accedió a memoria que no existe; lo termina y guarda su memoria</translation>
    </message>
    <message id="signal_fpe">
        <source></source>
        <translation>Calculó algo imposible; lo termina y guarda su memoria</translation>
    </message>
    <message id="signal_kill">
        <source></source>
        <translation>Lo termina al instante; no puede guardar nada</translation>
    </message>
    <message id="signal_usr1">
        <source></source>
        <translation>Para uso propio del programa; si no, lo termina</translation>
    </message>
    <message id="signal_segv">
        <source></source>
        <translation>Accedió a memoria ajena; lo termina y guarda su memoria</translation>
    </message>
    <message id="signal_usr2">
        <source></source>
        <translation>Para uso propio del programa; si no, lo termina</translation>
    </message>
    <message id="signal_pipe">
        <source></source>
        <translation>Nadie lee ya lo que escribe; lo termina</translation>
    </message>
    <message id="signal_alrm">
        <source></source>
        <translation>Sonó su despertador; lo termina</translation>
    </message>
    <message id="signal_term">
        <source></source>
        <translation>Le pide que termine</translation>
    </message>
    <message id="signal_stkflt">
        <source></source>
        <translation>Sin uso; lo termina</translation>
    </message>
    <message id="signal_chld">
        <source></source>
        <translation>Un hijo ha terminado o se ha detenido; no hace nada</translation>
    </message>
    <message id="signal_cont">
        <source></source>
        <translation>Sigue tras una detención</translation>
    </message>
    <message id="signal_stop">
        <source></source>
        <translation>Queda detenido hasta que se le hace continuar; no se puede capturar</translation>
    </message>
    <message id="signal_tstp">
        <source></source>
        <translation>Detención, como Ctrl+Z en un terminal</translation>
    </message>
    <message id="signal_ttin">
        <source></source>
        <translation>Lee de un terminal desde el segundo plano; lo detiene</translation>
    </message>
    <message id="signal_ttou">
        <source></source>
        <translation>Escribe en un terminal desde el segundo plano; lo detiene</translation>
    </message>
    <message id="signal_urg">
        <source></source>
        <translation>Han llegado datos urgentes; no hace nada</translation>
    </message>
    <message id="signal_xcpu">
        <source></source>
        <translation>Agotó su tiempo de procesador; lo termina y guarda su memoria</translation>
    </message>
    <message id="signal_xfsz">
        <source></source>
        <translation>Un archivo se hizo demasiado grande; lo termina y guarda su memoria</translation>
    </message>
    <message id="signal_vtalrm">
        <source></source>
        <translation>Sonó su reloj de tiempo de procesador; lo termina</translation>
    </message>
    <message id="signal_prof">
        <source></source>
        <translation>Sonó el reloj de un perfil; lo termina</translation>
    </message>
    <message id="signal_winch">
        <source></source>
        <translation>Su ventana tiene otro tamaño; no hace nada</translation>
    </message>
    <message id="signal_poll">
        <source></source>
        <translation>Se puede leer o escribir un archivo; lo termina</translation>
    </message>
    <message id="signal_pwr">
        <source></source>
        <translation>Falla la corriente; lo termina</translation>
    </message>
    <message id="signal_sys">
        <source></source>
        <translation>Hizo una llamada al sistema prohibida; lo termina y guarda su memoria</translation>
    </message>
    <message id="toolbar_select_children">
        <source></source>
        <translation>Hijos</translation>
    </message>
    <message id="toolbar_select_children_tip">
        <source></source>
        <translation>Selecciona los procesos que han iniciado los seleccionados, en lugar de estos.</translation>
    </message>
    <message id="toolbar_prefs">
        <source></source>
        <translation>Preferencias</translation>
    </message>
    <message id="toolbar_prefs_tip">
        <source></source>
        <translation>Abre las preferencias.</translation>
    </message>
    <message id="toolbar_customise">
        <source></source>
        <translation>Personalizar</translation>
    </message>
    <message id="toolbar_customise_tip">
        <source></source>
        <translation>Elige qué contiene la barra de herramientas y en qué orden.</translation>
    </message>
    <message id="toolbar_separator">
        <source></source>
        <translation>Separador</translation>
    </message>
    <message id="toolbar_separator_tip">
        <source></source>
        <translation>Una línea entre grupos de elementos.</translation>
    </message>
    <message id="toolbar_space">
        <source></source>
        <translation>Espacio</translation>
    </message>
    <message id="toolbar_space_tip">
        <source></source>
        <translation>Un poco de espacio entre elementos.</translation>
    </message>
    <message id="toolbar_flexible_space">
        <source></source>
        <translation>Espacio flexible</translation>
    </message>
    <message id="toolbar_flexible_space_tip">
        <source></source>
        <translation>Lleva lo que sigue al final de la barra de herramientas.</translation>
    </message>
    <message id="toolbar_title">
        <source></source>
        <translation>Barra de herramientas</translation>
    </message>
    <message id="toolbar_customise_title">
        <source></source>
        <translation>Personalizar la barra de herramientas</translation>
    </message>
    <message id="toolbar_customise_hint">
        <source></source>
        <translation>Arrastre elementos a la barra de herramientas, o de ella a la lista de elementos disponibles. También puede soltarlos en la barra de la ventana.</translation>
    </message>
    <message id="toolbar_customise_available">
        <source></source>
        <translation>El&amp;ementos disponibles:</translation>
    </message>
    <message id="toolbar_customise_current">
        <source></source>
        <translation>En la &amp;barra:</translation>
    </message>
    <message id="toolbar_customise_add">
        <source></source>
        <translation>&amp;Añadir</translation>
    </message>
    <message id="toolbar_customise_remove">
        <source></source>
        <translation>&amp;Quitar</translation>
    </message>
    <message id="toolbar_customise_earlier">
        <source></source>
        <translation>&amp;Subir</translation>
    </message>
    <message id="toolbar_customise_later">
        <source></source>
        <translation>Ba&amp;jar</translation>
    </message>
    <message id="toolbar_customise_default_set">
        <source></source>
        <translation>Conjunto predeterminado:</translation>
    </message>
    <message id="toolbar_customise_default_set_tip">
        <source></source>
        <translation>Se puede arrastrar entero a la barra de herramientas.</translation>
    </message>
    <message id="toolbar_customise_use_default">
        <source></source>
        <translation>&amp;Usar el predeterminado</translation>
    </message>
    <message id="toolbar_customise_mode">
        <source></source>
        <translation>&amp;Mostrar:</translation>
    </message>
    <message id="toolbar_customise_done">
        <source></source>
        <translation>&amp;Hecho</translation>
    </message>
    <message id="toolbar_mode_both">
        <source></source>
        <translation>Iconos y texto</translation>
    </message>
    <message id="toolbar_mode_icon">
        <source></source>
        <translation>Solo iconos</translation>
    </message>
    <message id="toolbar_mode_text">
        <source></source>
        <translation>Solo texto</translation>
    </message>
    <message id="logging_title">
        <source></source>
        <translation>Registro de %1 pid:%2</translation>
    </message>
    <message id="logging_title_file">
        <source></source>
        <translation>archivo: %1</translation>
    </message>
    <message id="logging_table">
        <source></source>
        <translation>Registro de un proceso</translation>
    </message>
    <message id="logging_column_time">
        <source></source>
        <translation>Hora</translation>
    </message>
    <message id="logging_column_time_tip">
        <source></source>
        <translation>Cuándo se escribió la fila.</translation>
    </message>
    <message id="logging_column_active">
        <source></source>
        <translation>Tiempo de CPU</translation>
    </message>
    <message id="logging_column_active_tip">
        <source></source>
        <translation>Tiempo de CPU utilizado desde que se inició el proceso, en segundos.</translation>
    </message>
    <message id="logging_column_active_change">
        <source></source>
        <translation>∆ tiempo de CPU</translation>
    </message>
    <message id="logging_column_active_change_tip">
        <source></source>
        <translation>Tiempo de CPU utilizado desde la fila anterior, en segundos.</translation>
    </message>
    <message id="logging_column_real">
        <source></source>
        <translation>Residente</translation>
    </message>
    <message id="logging_column_real_tip">
        <source></source>
        <translation>Memoria que el proceso tiene en la memoria del equipo.</translation>
    </message>
    <message id="logging_column_real_change">
        <source></source>
        <translation>∆ residente</translation>
    </message>
    <message id="logging_column_real_change_tip">
        <source></source>
        <translation>Cambio de la memoria residente desde la fila anterior.</translation>
    </message>
    <message id="logging_column_virtual">
        <source></source>
        <translation>Virtual</translation>
    </message>
    <message id="logging_column_virtual_tip">
        <source></source>
        <translation>Espacio de direcciones del proceso.</translation>
    </message>
    <message id="logging_column_virtual_change">
        <source></source>
        <translation>∆ virtual</translation>
    </message>
    <message id="logging_column_virtual_change_tip">
        <source></source>
        <translation>Cambio del espacio de direcciones desde la fila anterior.</translation>
    </message>
    <message id="logging_note_ended">
        <source></source>
        <translation>El proceso ha terminado.</translation>
    </message>
    <message id="logging_note_ended_remembered">
        <source></source>
        <translation>El proceso ha terminado. La ventana volverá cuando se inicie un proceso con ese nombre.</translation>
    </message>
    <message id="logging_note_not_created">
        <source></source>
        <translation>No hay archivo de registro: %1. Las filas solo se muestran aquí.</translation>
    </message>
    <message id="logging_note_not_written">
        <source></source>
        <translation>Faltan filas en el archivo de registro: %1.</translation>
    </message>
    <message id="logging_show_file">
        <source></source>
        <translation>Mostrar el &amp;archivo</translation>
    </message>
    <message id="logging_show_file_none">
        <source></source>
        <translation>No se escribe nada en un archivo. En las preferencias se puede hacer que los registros nuevos se escriban en uno.</translation>
    </message>
    <message id="logging_save_as">
        <source></source>
        <translation>&amp;Guardar como…</translation>
    </message>
    <message id="record_title">
        <source></source>
        <translation>Grabar procesos</translation>
    </message>
    <message id="record_filter">
        <source></source>
        <translation>Grabaciones (*.lwr);;Todos los archivos (*)</translation>
    </message>
    <message id="record_failed">
        <source></source>
        <translation>Los procesos no se graban.</translation>
    </message>
    <message id="record_behind">
        <source></source>
        <translation>El disco aún no ha recibido todo lo grabado.</translation>
    </message>
    <message id="record_behind_message">
        <source></source>
        <translation>El resto se escribe mientras Lurkwell esté en marcha. Hasta entonces no se puede volver a grabar en el archivo.</translation>
    </message>
    <message id="record_status">
        <source></source>
        <translation>Grabando en %1</translation>
    </message>
    <message id="record_trouble">
        <source></source>
        <translation>No se graba en %1: %2</translation>
    </message>
    <message id="replay_open_title">
        <source></source>
        <translation>Abrir grabación</translation>
    </message>
    <message id="replay_failed">
        <source></source>
        <translation>No se puede mostrar la grabación.</translation>
    </message>
    <message id="replay_title">
        <source></source>
        <translation>%1 – %2</translation>
    </message>
    <message id="replay_bar">
        <source></source>
        <translation>Línea de tiempo</translation>
    </message>
    <message id="replay_back">
        <source></source>
        <translation>Una actualización atrás</translation>
    </message>
    <message id="replay_play">
        <source></source>
        <translation>Reproducir</translation>
    </message>
    <message id="replay_forth">
        <source></source>
        <translation>Una actualización adelante</translation>
    </message>
    <message id="replay_peak">
        <source></source>
        <translation>Siguiente pico de uso del procesador</translation>
    </message>
    <message id="replay_speed">
        <source></source>
        <translation>Velocidad</translation>
    </message>
    <message id="replay_moment">
        <source></source>
        <translation>Ir a un momento</translation>
    </message>
    <message id="replay_moment_tip">
        <source></source>
        <translation>Ir a un momento (%1): una hora como 03:12, una fecha con hora, o -2h, contado desde el final</translation>
    </message>
    <message id="replay_no_peak">
        <source></source>
        <translation>No hay ningún pico posterior de uso del procesador.</translation>
    </message>
    <message id="replay_no_actions">
        <source></source>
        <translation>Es una grabación: no se puede hacer nada con sus procesos.</translation>
    </message>
    <message id="logging_save_title">
        <source></source>
        <translation>Guardar el registro</translation>
    </message>
    <message id="logging_save_filter">
        <source></source>
        <translation>Tablas (*.tsv);;Todos los archivos (*)</translation>
    </message>
    <message id="logging_menu_title">
        <source></source>
        <translation>Registro de %1, pid %2</translation>
    </message>
    <message id="logging_identity">
        <source></source>
        <translation>Propietario %1: %2</translation>
    </message>
    <message id="remembered_owner">
        <source></source>
        <translation>Propietario</translation>
    </message>
    <message id="logging_copy">
        <source></source>
        <translation>&amp;Copiar</translation>
    </message>
    <message id="logging_select_all">
        <source></source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message id="logging_note_not_saved">
        <source></source>
        <translation>El registro no se ha guardado: %1.</translation>
    </message>
    <message id="logging_note_saved">
        <source></source>
        <translation>Guardado como %1.</translation>
    </message>
    <message id="logging_note_not_shown">
        <source></source>
        <translation>No hay ningún gestor de archivos que muestre el archivo. Es %1.</translation>
    </message>
    <message id="logging_note_follows">
        <source></source>
        <translation>El proceso %1 ha terminado. A partir de “pid %2”, las filas son las del proceso %2.</translation>
    </message>
    <message id="logging_row_of">
        <source></source>
        <translation>pid %1</translation>
    </message>
    <message id="history_title">
        <source></source>
        <translation>Historial de CPU de %1, pid %2</translation>
    </message>
    <message id="history_identity">
        <source></source>
        <translation>pid %1</translation>
    </message>
    <message id="history_accessible">
        <source></source>
        <translation>Historial de CPU de %1, proceso %2 de %3</translation>
    </message>
    <message id="history_now">
        <source></source>
        <translation>%1 % ahora, entre %3 % y %4 % en la ventana; el borde superior es %2 %</translation>
    </message>
    <message id="history_tip">
        <source></source>
        <translation>&lt;b&gt;%1&lt;/b&gt;&lt;br&gt;pid %2, propietario %3&lt;br&gt;%4</translation>
    </message>
    <message id="history_not_above">
        <source></source>
        <translation>Este escritorio no la mantiene por encima de otras ventanas; una regla de ventanas del escritorio sí puede.</translation>
    </message>
    <message id="history_menu_relative">
        <source></source>
        <translation>&amp;Escalar al máximo reciente</translation>
    </message>
    <message id="history_menu_descendants">
        <source></source>
        <translation>Contar también los &amp;descendientes</translation>
    </message>
    <message id="history_menu_close">
        <source></source>
        <translation>&amp;Cerrar y olvidar</translation>
    </message>
    <message id="details_title">
        <source></source>
        <translation>%1 (%2): detalles</translation>
    </message>
    <message id="details_title_ended">
        <source></source>
        <translation>%1 (%2), terminado: detalles</translation>
    </message>
    <message id="details_heading">
        <source></source>
        <translation>%1 (proceso %2)</translation>
    </message>
    <message id="details_heading_ended">
        <source></source>
        <translation>%1 (proceso %2), a las %3, terminado</translation>
    </message>
    <message id="details_ended">
        <source></source>
        <translation>Terminado; datos de las %1. Lo último que se leyó queda como está.</translation>
    </message>
    <message id="details_ended_before">
        <source></source>
        <translation>El proceso terminó antes de que se leyera esto.</translation>
    </message>
    <message id="details_actions">
        <source></source>
        <translation>&amp;Acciones</translation>
    </message>
    <message id="details_pages">
        <source></source>
        <translation>Páginas</translation>
    </message>
    <message id="details_filter">
        <source></source>
        <translation>Mostrar las filas que contienen…</translation>
    </message>
    <message id="details_reading">
        <source></source>
        <translation>Leyendo…</translation>
    </message>
    <message id="details_waiting">
        <source></source>
        <translation>El sistema aún no responde; se sigue esperando. Puede que la memoria del proceso esté bloqueada, o en un sistema de archivos que no responde.</translation>
    </message>
    <message id="details_too_many_hang">
        <source></source>
        <translation>Demasiadas consultas anteriores siguen sin respuesta del sistema. Esta se hará en cuanto una de ellas la tenga.</translation>
    </message>
    <message id="details_refused">
        <source></source>
        <translation>No permitido: este proceso pertenece a otro usuario. Solo su propietario y root pueden leer esto.</translation>
    </message>
    <message id="details_refused_owner">
        <source></source>
        <translation>No permitido: este proceso pertenece a %1. Solo su propietario y root pueden leer esto.</translation>
    </message>
    <message id="details_kept_secret">
        <source></source>
        <translation>No permitido: el proceso lo oculta a los demás programas, también a los de su propio usuario.</translation>
    </message>
    <message id="details_none">
        <source></source>
        <translation>Este sistema no tiene nada parecido para este proceso.</translation>
    </message>
    <message id="details_nothing">
        <source></source>
        <translation>No hay ninguno.</translation>
    </message>
    <message id="details_failed">
        <source></source>
        <translation>Al sistema le falta algo en este momento. Se volverá a intentar.</translation>
    </message>
    <message id="details_first_ones">
        <source></source>
        <translation>%1; se muestran solo las %2 primeras filas</translation>
    </message>
    <message id="details_unlimited">
        <source></source>
        <translation>sin límite</translation>
    </message>
    <message id="details_parent">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="details_overview">
        <source></source>
        <translation>Resumen</translation>
    </message>
    <message id="details_overview_figure">
        <source></source>
        <translation>Dato</translation>
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
        <translation>Memoria</translation>
    </message>
    <message id="details_graph_disk">
        <source></source>
        <translation>Disco</translation>
    </message>
    <message id="details_graph_network">
        <source></source>
        <translation>Red (TCP)</translation>
    </message>
    <message id="details_graph_resident">
        <source></source>
        <translation>residente</translation>
    </message>
    <message id="details_graph_swap">
        <source></source>
        <translation>intercambio</translation>
    </message>
    <message id="details_graph_read">
        <source></source>
        <translation>leído</translation>
    </message>
    <message id="details_graph_written">
        <source></source>
        <translation>escrito</translation>
    </message>
    <message id="details_graph_received">
        <source></source>
        <translation>recibido</translation>
    </message>
    <message id="details_graph_sent">
        <source></source>
        <translation>enviado</translation>
    </message>
    <message id="details_threads">
        <source></source>
        <translation>Hilos</translation>
    </message>
    <message id="details_threads_count">
        <source></source>
        <translation>Hilos: %1</translation>
    </message>
    <message id="details_thread_id">
        <source></source>
        <translation>Hilo</translation>
    </message>
    <message id="details_thread_name">
        <source></source>
        <translation>Nombre</translation>
    </message>
    <message id="details_thread_share">
        <source></source>
        <translation>CPU %</translation>
    </message>
    <message id="details_thread_time">
        <source></source>
        <translation>Tiempo de CPU</translation>
    </message>
    <message id="details_thread_state">
        <source></source>
        <translation>Estado</translation>
    </message>
    <message id="details_thread_processor">
        <source></source>
        <translation>Procesador</translation>
    </message>
    <message id="details_thread_nice">
        <source></source>
        <translation>Nice</translation>
    </message>
    <message id="details_descriptors">
        <source></source>
        <translation>Archivos y sockets</translation>
    </message>
    <message id="details_descriptors_count">
        <source></source>
        <translation>Archivos, sockets y otros abiertos: %1</translation>
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
        <translation>Ruta o direcciones</translation>
    </message>
    <message id="details_descriptor_position">
        <source></source>
        <translation>Posición</translation>
    </message>
    <message id="details_descriptor_flags">
        <source></source>
        <translation>Abierto para</translation>
    </message>
    <message id="details_mappings">
        <source></source>
        <translation>Memoria</translation>
    </message>
    <message id="details_mappings_count">
        <source></source>
        <translation>Asignaciones: %1; tamaño %2, residente %3, proporcional %4</translation>
    </message>
    <message id="details_mapping_range">
        <source></source>
        <translation>Direcciones</translation>
    </message>
    <message id="details_mapping_size">
        <source></source>
        <translation>Tamaño</translation>
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
        <translation>Intercambio</translation>
    </message>
    <message id="details_mapping_permissions">
        <source></source>
        <translation>Acceso</translation>
    </message>
    <message id="details_mapping_file">
        <source></source>
        <translation>Archivo</translation>
    </message>
    <message id="details_environment">
        <source></source>
        <translation>Entorno</translation>
    </message>
    <message id="details_environment_count">
        <source></source>
        <translation>Variables cuando se inició el programa: %1</translation>
    </message>
    <message id="details_variable_name">
        <source></source>
        <translation>Nombre</translation>
    </message>
    <message id="details_variable_value">
        <source></source>
        <translation>Valor</translation>
    </message>
    <message id="details_limits">
        <source></source>
        <translation>Límites</translation>
    </message>
    <message id="details_limits_count">
        <source></source>
        <translation>Límites del proceso: %1. Él mismo puede subir los suyos hasta el máximo.</translation>
    </message>
    <message id="details_limit_name">
        <source></source>
        <translation>Límite</translation>
    </message>
    <message id="details_limit_soft">
        <source></source>
        <translation>Ahora</translation>
    </message>
    <message id="details_limit_hard">
        <source></source>
        <translation>Máximo</translation>
    </message>
    <message id="details_limit_unit">
        <source></source>
        <translation>Unidad</translation>
    </message>
    <message id="details_group">
        <source></source>
        <translation>Grupo de control</translation>
    </message>
    <message id="details_group_count">
        <source></source>
        <translation>Valores: %1. Son los de todos los procesos del grupo; los grupos superiores figuran donde limitan algo.</translation>
    </message>
    <message id="details_group_figure">
        <source></source>
        <translation>Dato</translation>
    </message>
    <message id="details_group_in_use">
        <source></source>
        <translation>En uso</translation>
    </message>
    <message id="details_group_limit">
        <source></source>
        <translation>Límite</translation>
    </message>
    <message id="details_group_path">
        <source></source>
        <translation>Grupo</translation>
    </message>
    <message id="details_group_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n procesador</numerusform>
            <numerusform>%n procesadores</numerusform>
        </translation>
    </message>
    <message id="details_group_memory">
        <source></source>
        <translation>Memoria</translation>
    </message>
    <message id="details_group_memory.high">
        <source></source>
        <translation>Memoria antes de ralentizarse</translation>
    </message>
    <message id="details_group_memory.peak">
        <source></source>
        <translation>Máximo de memoria hasta ahora</translation>
    </message>
    <message id="details_group_memory.swap">
        <source></source>
        <translation>Intercambio</translation>
    </message>
    <message id="details_group_pids">
        <source></source>
        <translation>Procesos e hilos</translation>
    </message>
    <message id="details_group_cpu.max">
        <source></source>
        <translation>CPU como máximo</translation>
    </message>
    <message id="details_group_cpu.weight">
        <source></source>
        <translation>Peso de CPU</translation>
    </message>
    <message id="details_group_cpu.usage">
        <source></source>
        <translation>Tiempo de CPU</translation>
    </message>
    <message id="details_group_cpu.throttled">
        <source></source>
        <translation>Tiempo sin CPU, por su límite</translation>
    </message>
    <message id="details_group_memory.high_events">
        <source></source>
        <translation>Veces ralentizado por la memoria</translation>
    </message>
    <message id="details_group_memory.oom_kills">
        <source></source>
        <translation>Procesos matados por falta de memoria</translation>
    </message>
    <message id="remembered_title">
        <source></source>
        <translation>Lurkwell: ventanas recordadas</translation>
    </message>
    <message id="remembered_program">
        <source></source>
        <translation>Programa</translation>
    </message>
    <message id="remembered_window">
        <source></source>
        <translation>Ventana</translation>
    </message>
    <message id="remembered_process">
        <source></source>
        <translation>Proceso</translation>
    </message>
    <message id="remembered_log">
        <source></source>
        <translation>Registro</translation>
    </message>
    <message id="remembered_history">
        <source></source>
        <translation>Historial de CPU</translation>
    </message>
    <message id="remembered_follows">
        <source></source>
        <translation>pid %1</translation>
    </message>
    <message id="remembered_waits">
        <source></source>
        <translation>espera a que se inicie el programa</translation>
    </message>
    <message id="remembered_explanation">
        <source></source>
        <translation>Estas ventanas vuelven cuando se inicia su programa. Una que se olvida no vuelve; si está abierta, se queda hasta que se cierra.</translation>
    </message>
    <message id="remembered_forget">
        <source></source>
        <translation>&amp;Olvidar</translation>
    </message>
    <message id="preferences_title">
        <source></source>
        <translation>Preferencias de Lurkwell</translation>
    </message>
    <message id="preferences_page">
        <source></source>
        <translation>Página</translation>
    </message>
    <message id="preferences_form_missing">
        <source></source>
        <translation>No se pueden mostrar las preferencias.</translation>
    </message>
    <message id="preferences_form_missing_text">
        <source></source>
        <translation>Falta una parte del programa: el diseño de la ventana de preferencias. Vuelva a instalar Lurkwell.</translation>
    </message>
    <message id="preferences_times_per_second" numerus="yes">
        <source></source>
        <translation>
            <numerusform>una vez por segundo</numerusform>
            <numerusform>%n veces por segundo</numerusform>
        </translation>
    </message>
    <message id="preferences_every_seconds" numerus="yes">
        <source></source>
        <translation>
            <numerusform>cada segundo</numerusform>
            <numerusform>cada %n segundos</numerusform>
        </translation>
    </message>
    <message id="preferences_every_minutes" numerus="yes">
        <source></source>
        <translation>
            <numerusform>cada minuto</numerusform>
            <numerusform>cada %n minutos</numerusform>
        </translation>
    </message>
    <message id="preferences_every_hour">
        <source></source>
        <translation>cada hora</translation>
    </message>
    <message id="preferences_interval_invalid">
        <source></source>
        <translation>valor no válido; no se puede convertir</translation>
    </message>
    <message id="preferences_percent">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="preferences_page_general">
        <source></source>
        <translation>General</translation>
    </message>
    <message id="preferences_page_mainwindow">
        <source></source>
        <translation>Ventana principal</translation>
    </message>
    <message id="preferences_page_animatedview">
        <source></source>
        <translation>Vista animada</translation>
    </message>
    <message id="preferences_page_history">
        <source></source>
        <translation>Historial de CPU</translation>
    </message>
    <message id="preferences_page_logging">
        <source></source>
        <translation>Registro</translation>
    </message>
    <message id="preferences_all_settings">
        <source></source>
        <translation>Todos &amp;los ajustes…</translation>
    </message>
    <message id="preferences_all_settings_tip">
        <source></source>
        <translation>Todos los ajustes del programa, también los que no tienen un control propio.</translation>
    </message>
    <message id="preferences_close">
        <source></source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message id="preferences_close_tip">
        <source></source>
        <translation>Cierra la ventana. Cada cambio ya está guardado.</translation>
    </message>
    <message id="preferences_memoryFormatMatrix">
        <source></source>
        <translation>Tamaños de memoria</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_tip">
        <source></source>
        <translation>La unidad de los tamaños de memoria en tablas, barras y registros.</translation>
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
        <translation>Fechas</translation>
    </message>
    <message id="preferences_dateFormatMatrix_tip">
        <source></source>
        <translation>Cómo se escriben las fechas y horas en tablas y registros.</translation>
    </message>
    <message id="preferences_dateFormatMatrix_calendar">
        <source></source>
        <translation>Cale&amp;ndario y reloj</translation>
    </message>
    <message id="preferences_dateFormatMatrix_seconds">
        <source></source>
        <translation>&amp;Segundos desde 1970</translation>
    </message>
    <message id="preferences_dateFormatMatrix_microseconds">
        <source></source>
        <translation>Segundos y mic&amp;rosegundos</translation>
    </message>
    <message id="preferences_mainWindowInterval">
        <source></source>
        <translation>&amp;Actualizar la tabla:</translation>
    </message>
    <message id="preferences_mainWindowInterval_tip">
        <source></source>
        <translation>Con qué frecuencia se actualiza la tabla de la ventana principal. Actualizar pocas veces cuesta menos.</translation>
    </message>
    <message id="preferences_memoryGraph">
        <source></source>
        <translation>Mostrar el &amp;tamaño en las barras de memoria</translation>
    </message>
    <message id="preferences_memoryGraph_tip">
        <source></source>
        <translation>Escribe en cada barra de memoria el tamaño que indica su longitud.</translation>
    </message>
    <message id="preferences_memoryFigure">
        <source></source>
        <translation>Las &amp;barras de memoria muestran:</translation>
    </message>
    <message id="preferences_memoryFigure_tip">
        <source></source>
        <translation>Qué indica la longitud de las barras de memoria; si la tabla está ordenada por ellas, también es el orden de las filas.</translation>
    </message>
    <message id="preferences_memoryFigure_virtual">
        <source></source>
        <translation>el tamaño virtual, con el residente dentro</translation>
    </message>
    <message id="preferences_memoryFigure_resident">
        <source></source>
        <translation>el tamaño residente</translation>
    </message>
    <message id="preferences_memoryFigure_proportional">
        <source></source>
        <translation>el tamaño proporcional: la memoria compartida, por partes</translation>
    </message>
    <message id="preferences_frameInterval">
        <source></source>
        <translation>&amp;Dibujar una imagen:</translation>
    </message>
    <message id="preferences_frameInterval_tip">
        <source></source>
        <translation>Con qué frecuencia se dibuja la vista animada. Los dos intervalos de abajo nunca son más cortos.</translation>
    </message>
    <message id="preferences_mainInterval">
        <source></source>
        <translation>Actualizar los &amp;procesos:</translation>
    </message>
    <message id="preferences_mainInterval_tip">
        <source></source>
        <translation>Con qué frecuencia busca la vista animada procesos que han empezado o terminado. Nunca más corto que el de dibujar ni más largo que el de medir.</translation>
    </message>
    <message id="preferences_cpuInterval">
        <source></source>
        <translation>&amp;Medir el uso de CPU:</translation>
    </message>
    <message id="preferences_cpuInterval_tip">
        <source></source>
        <translation>Con qué frecuencia mide la vista animada el uso de CPU de sus procesos. Los dos intervalos de arriba nunca son más largos.</translation>
    </message>
    <message id="preferences_windowAlpha">
        <source></source>
        <translation>&amp;Opacidad a pantalla completa:</translation>
    </message>
    <message id="preferences_windowAlpha_tip">
        <source></source>
        <translation>Qué parte del escritorio cubre la vista a pantalla completa: 0 % oculta la vista, 100 % oculta el escritorio.</translation>
    </message>
    <message id="preferences_underlayAlpha">
        <source></source>
        <translation>Opacidad del &amp;fondo:</translation>
    </message>
    <message id="preferences_underlayAlpha_tip">
        <source></source>
        <translation>Con qué intensidad se ve a pantalla completa la imagen de detrás de los procesos.</translation>
    </message>
    <message id="preferences_connectors">
        <source></source>
        <translation>&amp;Unir padres e hijos a pantalla completa</translation>
    </message>
    <message id="preferences_connectors_tip">
        <source></source>
        <translation>Dibuja una línea de cada proceso a su padre, también en la vista a pantalla completa.</translation>
    </message>
    <message id="preferences_historyInterval">
        <source></source>
        <translation>&amp;Medir el uso de CPU:</translation>
    </message>
    <message id="preferences_historyInterval_tip">
        <source></source>
        <translation>Con qué frecuencia recibe un punto nuevo un historial de CPU.</translation>
    </message>
    <message id="preferences_historyFilter">
        <source></source>
        <translation>S&amp;uavizado:</translation>
    </message>
    <message id="preferences_historyFilter_tip">
        <source></source>
        <translation>Cuánto del punto anterior pasa al siguiente: 0 % muestra cada salto; valores más altos, una línea más tranquila.</translation>
    </message>
    <message id="preferences_historyColour">
        <source></source>
        <translation>Us&amp;o de CPU:</translation>
    </message>
    <message id="preferences_historyColour_tip">
        <source></source>
        <translation>El color de la línea del uso de CPU del proceso, con el de sus descendientes mientras se incluyen.</translation>
    </message>
    <message id="preferences_descendantsColour">
        <source></source>
        <translation>&amp;Parte propia:</translation>
    </message>
    <message id="preferences_descendantsColour_tip">
        <source></source>
        <translation>El color de la línea de la parte propia del proceso mientras se incluyen sus descendientes. Vale para las ventanas que se abran a partir de ahora.</translation>
    </message>
    <message id="preferences_relative">
        <source></source>
        <translation>&amp;Escalar al máximo reciente</translation>
    </message>
    <message id="preferences_relative_tip">
        <source></source>
        <translation>La altura del gráfico representa el mayor uso reciente en lugar del 100 %.</translation>
    </message>
    <message id="preferences_descendants">
        <source></source>
        <translation>&amp;Incluir los descendientes del proceso</translation>
    </message>
    <message id="preferences_descendants_tip">
        <source></source>
        <translation>Muestra lo que usan los procesos que él inició, en un color propio.</translation>
    </message>
    <message id="preferences_loggingInterval">
        <source></source>
        <translation>Bu&amp;scar cambios:</translation>
    </message>
    <message id="preferences_loggingInterval_tip">
        <source></source>
        <translation>Con qué frecuencia mira un registro si hay algo nuevo que anotar.</translation>
    </message>
    <message id="preferences_timestamp">
        <source></source>
        <translation>&amp;Hora</translation>
    </message>
    <message id="preferences_timestamp_tip">
        <source></source>
        <translation>Una columna con la hora de cada fila.</translation>
    </message>
    <message id="preferences_logToFile">
        <source></source>
        <translation>Escribir también en un &amp;archivo</translation>
    </message>
    <message id="preferences_logToFile_tip">
        <source></source>
        <translation>Añade cada fila a un archivo de texto propio del registro.</translation>
    </message>
    <message id="preferences_activeTime">
        <source></source>
        <translation>&amp;Tiempo de CPU</translation>
    </message>
    <message id="preferences_activeTime_tip">
        <source></source>
        <translation>Una columna con el tiempo de CPU que ha utilizado el proceso.</translation>
    </message>
    <message id="preferences_deltaActiveTime">
        <source></source>
        <translation>Cambio del t&amp;iempo de CPU</translation>
    </message>
    <message id="preferences_deltaActiveTime_tip">
        <source></source>
        <translation>Una columna con el tiempo de CPU utilizado desde la fila anterior.</translation>
    </message>
    <message id="preferences_realMemory">
        <source></source>
        <translation>&amp;Memoria real</translation>
    </message>
    <message id="preferences_realMemory_tip">
        <source></source>
        <translation>Una columna con la memoria que el proceso tiene en uso.</translation>
    </message>
    <message id="preferences_deltaRealMemory">
        <source></source>
        <translation>Cambio de la memoria &amp;real</translation>
    </message>
    <message id="preferences_deltaRealMemory_tip">
        <source></source>
        <translation>Una columna con el cambio de la memoria real desde la fila anterior.</translation>
    </message>
    <message id="preferences_virtualMemory">
        <source></source>
        <translation>Memoria &amp;virtual</translation>
    </message>
    <message id="preferences_virtualMemory_tip">
        <source></source>
        <translation>Una columna con el tamaño del espacio de direcciones del proceso.</translation>
    </message>
    <message id="preferences_deltaVirtualMemory">
        <source></source>
        <translation>Cambio de la memoria virt&amp;ual</translation>
    </message>
    <message id="preferences_deltaVirtualMemory_tip">
        <source></source>
        <translation>Una columna con el cambio de la memoria virtual desde la fila anterior.</translation>
    </message>
    <message id="preferences_notice">
        <source></source>
        <translation>Los cambios valen para las ventanas de registro que se abran a partir de ahora.</translation>
    </message>
    <message id="settings_title">
        <source></source>
        <translation>Todos los ajustes</translation>
    </message>
    <message id="settings_filter">
        <source></source>
        <translation>Filtrar por nombre, clave, valor o significado</translation>
    </message>
    <message id="settings_reset">
        <source></source>
        <translation>&amp;Restablecer</translation>
    </message>
    <message id="settings_reset_tip">
        <source></source>
        <translation>Elimina los valores guardados de los ajustes seleccionados, de modo que valgan los predeterminados.</translation>
    </message>
    <message id="settings_column_key">
        <source></source>
        <translation>Ajuste</translation>
    </message>
    <message id="settings_column_value">
        <source></source>
        <translation>Valor</translation>
    </message>
    <message id="settings_column_default">
        <source></source>
        <translation>Predeterminado</translation>
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
        <translation>opción</translation>
    </message>
    <message id="settings_kind_integer">
        <source></source>
        <translation>número entero</translation>
    </message>
    <message id="settings_kind_interval">
        <source></source>
        <translation>intervalo</translation>
    </message>
    <message id="settings_kind_colour">
        <source></source>
        <translation>color, de 0 a 65535</translation>
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
        <translation>anotación propia del programa</translation>
    </message>
    <message id="settings_kind_array">
        <source></source>
        <translation>anotaciones</translation>
    </message>
    <message id="settings_kind_unit">
        <source></source>
        <translation>%1 en %2</translation>
    </message>
    <message id="settings_unit_milliseconds">
        <source></source>
        <translation>milisegundos</translation>
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
        <translation>puntos</translation>
    </message>
    <message id="settings_unit_ticks">
        <source></source>
        <translation>tics (60 por segundo)</translation>
    </message>
    <message id="settings_kind_range">
        <source></source>
        <translation>%1, de %2 a %3</translation>
    </message>
    <message id="settings_effect_at_once">
        <source></source>
        <translation>al instante</translation>
    </message>
    <message id="settings_effect_new_windows">
        <source></source>
        <translation>para ventanas nuevas</translation>
    </message>
    <message id="settings_effect_next_start">
        <source></source>
        <translation>desde el próximo inicio</translation>
    </message>
    <message id="settings_note_at_once">
        <source></source>
        <translation>Un cambio vale al instante.</translation>
    </message>
    <message id="settings_note_new_windows">
        <source></source>
        <translation>Un cambio vale para las ventanas que se abran desde entonces.</translation>
    </message>
    <message id="settings_note_next_start">
        <source></source>
        <translation>Un cambio vale desde el próximo inicio del programa.</translation>
    </message>
    <message id="settings_note_not_stored">
        <source></source>
        <translation>No hay nada guardado; vale el valor predeterminado. %1</translation>
    </message>
    <message id="settings_note_record">
        <source></source>
        <translation>El programa lo mantiene por sí mismo; aquí no se cambia.</translation>
    </message>
    <message id="hot_key_given">
        <source></source>
        <translation>En este escritorio la tecla es: %1.</translation>
    </message>
    <message id="hot_key_awaited">
        <source></source>
        <translation>El escritorio aún no ha respondido.</translation>
    </message>
    <message id="hot_key_taken">
        <source></source>
        <translation>No funciona: otro programa tiene la tecla, o el teclado no la tiene.</translation>
    </message>
    <message id="hot_key_refused">
        <source></source>
        <translation>No funciona: el escritorio no ha concedido la tecla. Puede cambiarse en sus propios ajustes de teclas.</translation>
    </message>
    <message id="hot_key_no_way">
        <source></source>
        <translation>No funciona: este escritorio no concede teclas a los programas. En sus propios ajustes puede darse una tecla a la orden «lurkwell --toggle-overlay».</translation>
    </message>
    <message id="settings_note_no_number">
        <source></source>
        <translation>Lo que está guardado no es un número y se lee como 0. Escriba un número o restablezca el ajuste.</translation>
    </message>
    <message id="settings_elements" numerus="yes">
        <source></source>
        <translation>
            <numerusform>1 anotación</numerusform>
            <numerusform>%n anotaciones</numerusform>
        </translation>
    </message>
    <message id="settings_problem_no_number">
        <source></source>
        <translation>“%1” no es un número. El ajuste queda como estaba.</translation>
    </message>
    <message id="settings_problem_not_whole">
        <source></source>
        <translation>“%1” no es un número entero. El ajuste queda como estaba.</translation>
    </message>
    <message id="settings_problem_range">
        <source></source>
        <translation>“%1” está fuera del intervalo: debe estar entre %2 y %3. El ajuste queda como estaba.</translation>
    </message>
    <message id="settings_problem_characters">
        <source></source>
        <translation>El texto tiene caracteres que los ajustes no pueden guardar. El ajuste queda como estaba.</translation>
    </message>
    <message id="settings_component_red">
        <source></source>
        <translation>%1 Rojo.</translation>
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
        <translation>%1: rojo</translation>
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
        <translation>%1, clave %2</translation>
    </message>
    <message id="setting_title_GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT">
        <source></source>
        <translation>Unidad de los tamaños de memoria</translation>
    </message>
    <message id="setting_title_GENERAL_PREFERRED_DATE_DISPLAY_FORMAT">
        <source></source>
        <translation>Formato de las fechas</translation>
    </message>
    <message id="setting_title_GENERAL_ALWAYS_AUTHENTICATE_DAEMON">
        <source></source>
        <translation>Pedir una contraseña en cada inicio</translation>
    </message>
    <message id="setting_title_GENERAL_CONTINUE_WITHOUT_RIGHTS">
        <source></source>
        <translation>Iniciar sin permisos de administrador</translation>
    </message>
    <message id="setting_title_FIGURES_FROM_HELPER">
        <source></source>
        <translation>Pedir al auxiliar los valores de los procesos</translation>
    </message>
    <message id="setting_title_PREFERENCES_UI_DEFAULT_TAB">
        <source></source>
        <translation>Página de las preferencias</translation>
    </message>
    <message id="setting_title_ABOUT_PANEL_AT_EVERY_START">
        <source></source>
        <translation>Ventana “Acerca de” en cada inicio</translation>
    </message>
    <message id="hint_details">
        <source></source>
        <translation>Una doble pulsación sobre un proceso abre sus detalles; el botón derecho ofrece lo que se puede hacer con él.</translation>
    </message>
    <message id="hint_filter">
        <source></source>
        <translation>Ctrl+F busca procesos por cualquier cosa: pruebe user:root cpu&gt;5 o port:443.</translation>
    </message>
    <message id="hint_columns">
        <source></source>
        <translation>Una pulsación con el botón derecho sobre la cabecera añade columnas; de Ctrl+1 a Ctrl+7 se cambia entre conjuntos enteros.</translation>
    </message>
    <message id="hint_follow">
        <source></source>
        <translation>Ctrl+N hace flotar un pequeño gráfico del proceso seleccionado sobre todas las ventanas; vuelve con su programa.</translation>
    </message>
    <message id="hint_shapes">
        <source></source>
        <translation>Alt+2 muestra los procesos como árbol, Alt+3 por aplicación; los totales son los de toda la rama.</translation>
    </message>
    <message id="hints_none">
        <source></source>
        <translation>No más sugerencias</translation>
    </message>
    <message id="hints_close">
        <source></source>
        <translation>Quitar esta sugerencia</translation>
    </message>
    <message id="setting_title_HINTS_SEEN">
        <source></source>
        <translation>Sugerencias quitadas</translation>
    </message>
    <message id="setting_title_ABOUT_PANEL_SEEN_VERSION">
        <source></source>
        <translation>Ventana “Acerca de”: versión vista</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_INTERVAL">
        <source></source>
        <translation>Tabla: intervalo de actualización</translation>
    </message>
    <message id="setting_title_MEM_GRAPH_DRAW_VSZ">
        <source></source>
        <translation>Tabla: tamaño en las barras de memoria</translation>
    </message>
    <message id="setting_title_MEMORY_BAR_FIGURE">
        <source></source>
        <translation>Tabla: qué muestran las barras de memoria</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE">
        <source></source>
        <translation>Tabla: la tarea inactiva cuenta como 0</translation>
    </message>
    <message id="setting_title_CPU_SHARE_OF_MACHINE">
        <source></source>
        <translation>Columnas: las partes de CPU son del equipo</translation>
    </message>
    <message id="setting_title_KEEP_COMMAND_LINES">
        <source></source>
        <translation>Salida: líneas de comandos completas</translation>
    </message>
    <message id="setting_title_MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT">
        <source></source>
        <translation>Tabla: omitir la región compartida</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_PAGEOUT_CRITICAL_FLASH_INTERVAL">
        <source></source>
        <translation>Luz de paginación: tiempo entre destellos</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_FILTER">
        <source></source>
        <translation>Luz de paginación: suavizado</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_RED">
        <source></source>
        <translation>Luz de paginación: roja desde</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_YELLOW">
        <source></source>
        <translation>Luz de paginación: amarilla desde</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_PROCESS_LIST_WINDOW">
        <source></source>
        <translation>La ventana principal estaba abierta</translation>
    </message>
    <message id="setting_title_DETAILS_WINDOW_FRAME">
        <source></source>
        <translation>Detalles: posición y tamaño</translation>
    </message>
    <message id="setting_DETAILS_WINDOW_FRAME">
        <source></source>
        <translation>Posición y tamaño de la última ventana de detalles de un proceso que se cerró.</translation>
    </message>
    <message id="setting_title_DETAILS_WINDOW_PAGE">
        <source></source>
        <translation>Detalles: página</translation>
    </message>
    <message id="setting_DETAILS_WINDOW_PAGE">
        <source></source>
        <translation>Última página mostrada de la ventana de detalles, contada desde 0.</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FRAME">
        <source></source>
        <translation>Ventana principal: posición y tamaño</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_ITEMS">
        <source></source>
        <translation>Barra de herramientas: elementos</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_DISPLAY_MODE">
        <source></source>
        <translation>Barra de herramientas: iconos o texto</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_SHOWN">
        <source></source>
        <translation>Barra de herramientas: visible</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SORT_COLUMN_INDEX">
        <source></source>
        <translation>Tabla: columna ordenada</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SHAPE">
        <source></source>
        <translation>Forma de la tabla de procesos, conjunto estándar</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SCOPE">
        <source></source>
        <translation>Ámbito de la tabla de procesos</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FOLLOWS_SELECTION">
        <source></source>
        <translation>La selección se mantiene en su sitio</translation>
    </message>
    <message id="setting_title_WEB_SEARCH_ADDRESS">
        <source></source>
        <translation>Dirección con la que se busca en la web</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FOLDED_PROGRAMS">
        <source></source>
        <translation>Programas contraídos</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_UNFOLDED_APPLICATIONS">
        <source></source>
        <translation>Aplicaciones expandidas</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_RECENT_FILTERS">
        <source></source>
        <translation>Últimos filtros</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMNS">
        <source></source>
        <translation>Tabla: columnas</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMN_SETS">
        <source></source>
        <translation>Tabla: conjuntos de columnas</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMN_SET">
        <source></source>
        <translation>Tabla: conjunto que se muestra</translation>
    </message>
    <message id="setting_title_HAS_RUN_TWO_POINT_THREE">
        <source></source>
        <translation>Se añadió la columna del indicador</translation>
    </message>
    <message id="setting_title_HAS_RUN_TWO_POINT_FOUR">
        <source></source>
        <translation>Se añadió la columna de la barra de memoria</translation>
    </message>
    <message id="setting_title_DEFAULT_X_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Ventanas pequeñas: borde izquierdo de la última</translation>
    </message>
    <message id="setting_title_DEFAULT_Y_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Ventanas pequeñas: borde superior de la última</translation>
    </message>
    <message id="setting_title_DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA">
        <source></source>
        <translation>Ventanas pequeñas: opacidad</translation>
    </message>
    <message id="setting_title_DEFAULT_WATCHDOG_INTERVAL">
        <source></source>
        <translation>Ventanas recordadas: buscar sus programas cada</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_WINDOW_INTERVAL">
        <source></source>
        <translation>Historial de CPU: tiempo entre dos puntos</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_USE_RELATIVE">
        <source></source>
        <translation>Historial de CPU: escalar al máximo reciente</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS">
        <source></source>
        <translation>Historial de CPU: incluir los descendientes</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_DEFAULT_FILTER">
        <source></source>
        <translation>Historial de CPU: suavizado</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_BACKGROUND_RGB">
        <source></source>
        <translation>Historial de CPU: fondo</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_FOREGROUND_RGB">
        <source></source>
        <translation>Historial de CPU: uso de CPU</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB">
        <source></source>
        <translation>Historial de CPU: parte propia</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_NAME_RGB">
        <source></source>
        <translation>Historial de CPU: nombre</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_RGB">
        <source></source>
        <translation>Historial de CPU: etiqueta de la escala fija</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB">
        <source></source>
        <translation>Historial de CPU: etiqueta de la escala ajustada</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_FLASH_RGB">
        <source></source>
        <translation>Historial de CPU: etiqueta de una escala nueva</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG">
        <source></source>
        <translation>Historial de CPU: fondo del porcentaje</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG">
        <source></source>
        <translation>Historial de CPU: porcentaje</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_NAME_ALPHA">
        <source></source>
        <translation>Historial de CPU: opacidad del nombre</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HIGHWATERMARK_ALPHA">
        <source></source>
        <translation>Historial de CPU: opacidad de la etiqueta de la escala</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_ALPHA">
        <source></source>
        <translation>Historial de CPU: opacidad del porcentaje</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_ICON_ALPHA">
        <source></source>
        <translation>Historial de CPU: opacidad del icono (antigua)</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_ICON_ALPHA_REALLY">
        <source></source>
        <translation>Historial de CPU: opacidad del icono</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW">
        <source></source>
        <translation>Historial de CPU: ventanas recordadas</translation>
    </message>
    <message id="setting_title_DEFAULT_LOGGING_WINDOW_INTERVAL">
        <source></source>
        <translation>Registro: buscar cambios cada</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_INCLUDE_TIMESTAMP">
        <source></source>
        <translation>Registro: hora</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Registro: tiempo de CPU</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Registro: cambio del tiempo de CPU</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_REAL_MEM_BOOL">
        <source></source>
        <translation>Registro: memoria real</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_REAL_MEM_BOOL">
        <source></source>
        <translation>Registro: cambio de la memoria real</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Registro: memoria virtual</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Registro: cambio de la memoria virtual</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_LOG_TO_FILE">
        <source></source>
        <translation>Registro: escribir también en un archivo</translation>
    </message>
    <message id="setting_title_LOGGING_WINDOW">
        <source></source>
        <translation>Registro: ventanas recordadas</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_GL_THREAD_INTERVAL">
        <source></source>
        <translation>Vista animada: tiempo entre dos imágenes</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_MAINPIC_INTERVAL">
        <source></source>
        <translation>Vista animada: buscar procesos cada</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_HELPERPIC_INTERVAL">
        <source></source>
        <translation>Vista animada: medir el uso de CPU cada</translation>
    </message>
    <message id="setting_title_QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS">
        <source></source>
        <translation>Vista a pantalla completa: unir padres e hijos</translation>
    </message>
    <message id="setting_title_QUINT_FULLSCREEN_WINDOW_ALPHA">
        <source></source>
        <translation>Vista a pantalla completa: opacidad</translation>
    </message>
    <message id="setting_title_QUINT_FULLSCREEN_UNDERLAY_ALPHA">
        <source></source>
        <translation>Vista a pantalla completa: opacidad del fondo</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_ICON_SCALE_FACTOR">
        <source></source>
        <translation>Vista animada: escala de los iconos</translation>
    </message>
    <message id="setting_title_QUIVA_FULLSCREEN_EXTRA_SCALE_FACTOR">
        <source></source>
        <translation>Vista a pantalla completa: escala adicional de los iconos</translation>
    </message>
    <message id="setting_title_QUINT_MAX_ITERATIONS_TO_STABILIZE_WHEN_FIRST_SHOWING">
        <source></source>
        <translation>Vista animada: pasos antes de la primera imagen</translation>
    </message>
    <message id="setting_title_QUINT_TARVIK_FACTOR">
        <source></source>
        <translation>Vista animada: factor de la actividad de Lurkwell</translation>
    </message>
    <message id="setting_title_FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE">
        <source></source>
        <translation>Vista a pantalla completa: tecla</translation>
    </message>
    <message id="setting_title_QUIVA_CHECK_QUARTZ_EXTREME">
        <source></source>
        <translation>Vista animada: se comprobaron los gráficos</translation>
    </message>
    <message id="setting_title_QUIVA_CHECK_COMPOSITOR">
        <source></source>
        <translation>Vista a pantalla completa: se comprobó el compositor</translation>
    </message>
    <message id="setting_title_QUIVA_WINDOW_FRAME">
        <source></source>
        <translation>Vista animada: posición y tamaño</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>La vista animada estaba abierta</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>La vista a pantalla completa estaba abierta</translation>
    </message>
    <message id="setting_title_CLASSIC_INITIAL_ASSUMED_CPU_USAGE">
        <source></source>
        <translation>Entorno Classic: uso de CPU al principio</translation>
    </message>
    <message id="setting_title_CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER">
        <source></source>
        <translation>Entorno Classic: peso de una medición</translation>
    </message>
    <message id="setting_title_CLASSIC_WATCHDOG_INTERVAL">
        <source></source>
        <translation>Entorno Classic: buscarlo cada</translation>
    </message>
    <message id="setting_title_CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX">
        <source></source>
        <translation>Entorno Classic: reposo de su auxiliar</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_AND_TESTING">
        <source></source>
        <translation>Valores del equipo: mostrar una ventana</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_SWI_INTERVAL">
        <source></source>
        <translation>Valores del equipo: intervalo de actualización</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_LEFT">
        <source></source>
        <translation>Valores del equipo: borde izquierdo</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_TOP">
        <source></source>
        <translation>Valores del equipo: borde superior</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_RIGHT">
        <source></source>
        <translation>Valores del equipo: borde derecho</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_BOTTOM">
        <source></source>
        <translation>Valores del equipo: borde inferior</translation>
    </message>
    <message id="setting_GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT">
        <source></source>
        <translation>Unidad de los tamaños de memoria: 0 automática, 1 bytes, 2 kilobytes, 3 megabytes, 4 gigabytes.</translation>
    </message>
    <message id="setting_GENERAL_PREFERRED_DATE_DISPLAY_FORMAT">
        <source></source>
        <translation>Cómo se escriben las fechas: 0 calendario y reloj, 1 segundos desde 1970, 2 segundos y microsegundos.</translation>
    </message>
    <message id="setting_GENERAL_ALWAYS_AUTHENTICATE_DAEMON">
        <source></source>
        <translation>Pedir la contraseña de un administrador en cada inicio, aunque el auxiliar ya tenga sus permisos.</translation>
    </message>
    <message id="setting_GENERAL_CONTINUE_WITHOUT_RIGHTS">
        <source></source>
        <translation>Iniciar sin permisos de administrador si el auxiliar no los tiene, y no pedirlos. Lo activa “Continue Without”.</translation>
    </message>
    <message id="setting_FIGURES_FROM_HELPER">
        <source></source>
        <translation>Pedir al auxiliar los valores de los procesos, como en los equipos donde solo él puede leerlos. Si está desactivado, los lee el propio programa, lo que cuesta mucho menos.</translation>
    </message>
    <message id="setting_PREFERENCES_UI_DEFAULT_TAB">
        <source></source>
        <translation>Última página mostrada de la ventana de preferencias, contada desde 0.</translation>
    </message>
    <message id="setting_ABOUT_PANEL_AT_EVERY_START">
        <source></source>
        <translation>Mostrar la ventana “Acerca de” durante tres segundos en cada inicio, no solo en el primero de una versión.</translation>
    </message>
    <message id="setting_HINTS_SEEN">
        <source></source>
        <translation>Cuántas de las sugerencias de encima de la tabla se han quitado; 0 las muestra otra vez, una en cada inicio.</translation>
    </message>
    <message id="setting_ABOUT_PANEL_SEEN_VERSION">
        <source></source>
        <translation>Versión cuya ventana “Acerca de” se ha mostrado al inicio.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_INTERVAL">
        <source></source>
        <translation>Tiempo entre dos actualizaciones de la tabla de la ventana principal.</translation>
    </message>
    <message id="setting_MEM_GRAPH_DRAW_VSZ">
        <source></source>
        <translation>Escribir en las barras de memoria el tamaño que indica su longitud.</translation>
    </message>
    <message id="setting_MEMORY_BAR_FIGURE">
        <source></source>
        <translation>Qué indica la longitud de las barras de memoria, y su orden cuando la tabla está ordenada por ellas: 0 – el tamaño virtual, con el residente dentro, 1 – el tamaño residente, 2 – el tamaño proporcional, que cuenta la memoria compartida por partes. Los tamaños virtuales mayores que la memoria del equipo no sirven de medida para ninguna otra barra.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE">
        <source></source>
        <translation>Mostrar como 0 el uso de CPU y el tamaño de la tarea inactiva, para que sus barras no tapen todas las demás.</translation>
    </message>
    <message id="setting_CPU_SHARE_OF_MACHINE">
        <source></source>
        <translation>Mostrar las partes de CPU, usuario y sistema como partes de todos los procesadores juntos en lugar de uno: 100 % es entonces el equipo entero. Las cabeceras de las columnas dicen cuál.</translation>
    </message>
    <message id="setting_KEEP_COMMAND_LINES">
        <source></source>
        <translation>Escribir e imprimir los argumentos de los programas, que pueden contener contraseñas, y no solo el programa, dondequiera que se pida una línea de comandos.</translation>
    </message>
    <message id="setting_MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT">
        <source></source>
        <translation>Excluir de los tamaños virtuales la región que comparten todos los procesos, en los equipos que la tienen.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_PAGEOUT_CRITICAL_FLASH_INTERVAL">
        <source></source>
        <translation>Segundos entre dos cambios del rojo de la luz de paginación, mientras salen muchas páginas.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_FILTER">
        <source></source>
        <translation>Lo que queda de la tasa de paginación de una actualización a la siguiente, de 0 a 1.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_RED">
        <source></source>
        <translation>Páginas que salen por actualización a partir de las cuales la luz de paginación es roja.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_YELLOW">
        <source></source>
        <translation>Páginas que salen por actualización a partir de las cuales la luz de paginación es amarilla.</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_PROCESS_LIST_WINDOW">
        <source></source>
        <translation>Abrir la ventana principal al inicio. El programa anota aquí si estaba abierta.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FRAME">
        <source></source>
        <translation>Posición y tamaño de la ventana principal.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SORT_COLUMN_INDEX">
        <source></source>
        <translation>La columna recordada por la que se ordena la tabla, contada desde 0.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SHAPE">
        <source></source>
        <translation>Cómo se disponen los procesos en la tabla con el conjunto estándar de columnas: 0 – una lista, 1 – los hijos debajo de sus padres, 2 – debajo de sus aplicaciones.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SCOPE">
        <source></source>
        <translation>Qué procesos muestra la tabla: 0 – todos, 1 – los del propio usuario, 2 – los de otros usuarios, 3 – aplicaciones, 4 – todos menos los hilos del núcleo, 5 – lo que ha usado un procesador desde la última actualización.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FOLLOWS_SELECTION">
        <source></source>
        <translation>Si la fila seleccionada se queda donde está en la pantalla mientras otras cambian de lugar.</translation>
    </message>
    <message id="setting_WEB_SEARCH_ADDRESS">
        <source></source>
        <translation>Una dirección de la web en la que %1 representa el nombre del programa. Vacía para la habitual.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FOLDED_PROGRAMS">
        <source></source>
        <translation>Programas cuyos hijos están contraídos en el árbol, los últimos primero, con signos de porcentaje en lugar de otras letras.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_UNFOLDED_APPLICATIONS">
        <source></source>
        <translation>Aplicaciones, unidades, contenedores y programas cuyos procesos están expandidos, los últimos primero, con signos de porcentaje en lugar de otras letras.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_RECENT_FILTERS">
        <source></source>
        <translation>Los últimos filtros utilizados en la tabla de procesos, el más reciente primero, con signos de porcentaje en lugar de otras letras.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMNS">
        <source></source>
        <translation>Columnas del conjunto estándar, con sus anchuras y sentidos de orden.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMN_SETS">
        <source></source>
        <translation>Lo que guardan los conjuntos de columnas, salvo el estándar: columnas, anchuras, sentidos de orden, columna ordenada y forma.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMN_SET">
        <source></source>
        <translation>El conjunto de columnas que muestra la tabla.</translation>
    </message>
    <message id="setting_HAS_RUN_TWO_POINT_THREE">
        <source></source>
        <translation>Si la columna del indicador se añadió una vez a la tabla.</translation>
    </message>
    <message id="setting_HAS_RUN_TWO_POINT_FOUR">
        <source></source>
        <translation>Si la columna de la barra de memoria se añadió una vez a la tabla.</translation>
    </message>
    <message id="setting_DEFAULT_X_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Borde izquierdo de la última ventana pequeña que se abrió; la siguiente se pone a su lado.</translation>
    </message>
    <message id="setting_DEFAULT_Y_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Borde superior de la última ventana pequeña que se abrió; la siguiente se pone debajo.</translation>
    </message>
    <message id="setting_DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA">
        <source></source>
        <translation>Opacidad de las ventanas pequeñas, 1 para opacas.</translation>
    </message>
    <message id="setting_DEFAULT_WATCHDOG_INTERVAL">
        <source></source>
        <translation>Con qué frecuencia busca el programa procesos nuevos cuyas ventanas recuerda.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_WINDOW_INTERVAL">
        <source></source>
        <translation>Tiempo entre dos puntos de un historial de CPU.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_USE_RELATIVE">
        <source></source>
        <translation>Escalar los historiales de CPU al máximo reciente en lugar del 100 %.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS">
        <source></source>
        <translation>Mostrar también el uso de CPU de los descendientes de un proceso en su historial.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_DEFAULT_FILTER">
        <source></source>
        <translation>Cuánto del punto anterior pasa al siguiente, de 0 a 1.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_BACKGROUND_RGB">
        <source></source>
        <translation>Fondo de los historiales de CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_FOREGROUND_RGB">
        <source></source>
        <translation>El uso de CPU del proceso en su historial, con el de sus descendientes mientras se incluyen.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB">
        <source></source>
        <translation>La parte propia del proceso en el uso de CPU de su historial mientras se incluyen sus descendientes.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_NAME_RGB">
        <source></source>
        <translation>El nombre en los historiales de CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_RGB">
        <source></source>
        <translation>La etiqueta de la escala en los historiales de CPU con escala fija.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB">
        <source></source>
        <translation>La etiqueta de la escala en los historiales de CPU que se escalan al máximo.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_FLASH_RGB">
        <source></source>
        <translation>La etiqueta de la escala mientras destella tras un cambio.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG">
        <source></source>
        <translation>Fondo del porcentaje actual en los historiales de CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG">
        <source></source>
        <translation>El porcentaje actual en los historiales de CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_NAME_ALPHA">
        <source></source>
        <translation>Opacidad del nombre en los historiales de CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HIGHWATERMARK_ALPHA">
        <source></source>
        <translation>Opacidad de la etiqueta de la escala en los historiales de CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_ALPHA">
        <source></source>
        <translation>Opacidad del porcentaje actual en los historiales de CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_ICON_ALPHA">
        <source></source>
        <translation>Opacidad antigua del icono en los historiales de CPU; otro ajuste ha ocupado su lugar.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_ICON_ALPHA_REALLY">
        <source></source>
        <translation>Opacidad del icono en los historiales de CPU.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW">
        <source></source>
        <translation>Historiales de CPU que vuelven cuando se inicia un proceso con su nombre.</translation>
    </message>
    <message id="setting_DEFAULT_LOGGING_WINDOW_INTERVAL">
        <source></source>
        <translation>Con qué frecuencia busca cambios un registro.</translation>
    </message>
    <message id="setting_LOG_WINDOW_INCLUDE_TIMESTAMP">
        <source></source>
        <translation>Los registros tienen una columna con la hora.</translation>
    </message>
    <message id="setting_LOG_WINDOW_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Los registros tienen una columna con el tiempo de CPU.</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Los registros tienen una columna con el cambio del tiempo de CPU.</translation>
    </message>
    <message id="setting_LOG_WINDOW_REAL_MEM_BOOL">
        <source></source>
        <translation>Los registros tienen una columna con la memoria real.</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_REAL_MEM_BOOL">
        <source></source>
        <translation>Los registros tienen una columna con el cambio de la memoria real.</translation>
    </message>
    <message id="setting_LOG_WINDOW_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Los registros tienen una columna con la memoria virtual.</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Los registros tienen una columna con el cambio de la memoria virtual.</translation>
    </message>
    <message id="setting_LOG_WINDOW_LOG_TO_FILE">
        <source></source>
        <translation>Los registros se escriben también en archivos.</translation>
    </message>
    <message id="setting_LOGGING_WINDOW">
        <source></source>
        <translation>Registros que vuelven cuando se inicia un proceso con su nombre.</translation>
    </message>
    <message id="setting_HEARTQUIVA_GL_THREAD_INTERVAL">
        <source></source>
        <translation>Tiempo entre dos imágenes de la vista animada. Nunca más largo que el siguiente.</translation>
    </message>
    <message id="setting_HEARTQUIVA_MAINPIC_INTERVAL">
        <source></source>
        <translation>Con qué frecuencia busca la vista animada procesos que han empezado o terminado. Nunca más largo que el siguiente.</translation>
    </message>
    <message id="setting_HEARTQUIVA_HELPERPIC_INTERVAL">
        <source></source>
        <translation>Con qué frecuencia mide la vista animada el uso de CPU de sus procesos.</translation>
    </message>
    <message id="setting_QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS">
        <source></source>
        <translation>Dibujar líneas entre padres e hijos también en la vista a pantalla completa.</translation>
    </message>
    <message id="setting_QUINT_FULLSCREEN_WINDOW_ALPHA">
        <source></source>
        <translation>Opacidad de la vista a pantalla completa.</translation>
    </message>
    <message id="setting_QUINT_FULLSCREEN_UNDERLAY_ALPHA">
        <source></source>
        <translation>Opacidad de la imagen de detrás de los procesos en la vista a pantalla completa.</translation>
    </message>
    <message id="setting_HEARTQUIVA_ICON_SCALE_FACTOR">
        <source></source>
        <translation>Escala de los iconos en la vista animada: el lado de un icono, en puntos, es el peso de su proceso (0,5 en reposo, 2,9 con un procesador entero) por la mitad de este valor.</translation>
    </message>
    <message id="setting_QUIVA_FULLSCREEN_EXTRA_SCALE_FACTOR">
        <source></source>
        <translation>Cuántas veces más grandes son los iconos en la vista a pantalla completa.</translation>
    </message>
    <message id="setting_QUINT_MAX_ITERATIONS_TO_STABILIZE_WHEN_FIRST_SHOWING">
        <source></source>
        <translation>Pasos de la disposición de la vista animada antes de mostrarla por primera vez, como máximo.</translation>
    </message>
    <message id="setting_QUINT_TARVIK_FACTOR">
        <source></source>
        <translation>Con cuántas veces su actividad real cuentan el propio Lurkwell y su auxiliar en la vista animada; sin valor, con la real.</translation>
    </message>
    <message id="setting_FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE">
        <source></source>
        <translation>Tecla que activa y desactiva la vista a pantalla completa en cualquier lugar del escritorio, por su número: 98, F7, salvo que se guarde otra.</translation>
    </message>
    <message id="setting_QUIVA_CHECK_QUARTZ_EXTREME">
        <source></source>
        <translation>Si se comprobaron los gráficos de la pantalla cuando se mostró la vista animada por primera vez.</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>Abrir la vista animada al inicio. El programa anota aquí si estaba abierta.</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>Abrir la vista animada a pantalla completa al inicio. El programa anota aquí si lo estaba.</translation>
    </message>
    <message id="setting_CLASSIC_INITIAL_ASSUMED_CPU_USAGE">
        <source></source>
        <translation>Uso de CPU que se supone al entorno Classic antes de medirlo.</translation>
    </message>
    <message id="setting_CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER">
        <source></source>
        <translation>Cuánto cuenta una medición del uso de CPU del entorno Classic, de 0 a 1.</translation>
    </message>
    <message id="setting_CLASSIC_WATCHDOG_INTERVAL">
        <source></source>
        <translation>Con qué frecuencia comprueba el programa si el entorno Classic está en marcha.</translation>
    </message>
    <message id="setting_CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX">
        <source></source>
        <translation>Cuánto reposa el auxiliar del programa en el entorno Classic entre dos lecturas, en sesentavos de segundo.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_AND_TESTING">
        <source></source>
        <translation>Mostrar una ventana pequeña con los valores del equipo, para depuración.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_SWI_INTERVAL">
        <source></source>
        <translation>Con qué frecuencia se actualiza la ventana con los valores del equipo.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_LEFT">
        <source></source>
        <translation>Borde izquierdo de la ventana con los valores del equipo.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_TOP">
        <source></source>
        <translation>Borde superior de la ventana con los valores del equipo.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_RIGHT">
        <source></source>
        <translation>Borde derecho de la ventana con los valores del equipo.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_BOTTOM">
        <source></source>
        <translation>Borde inferior de la ventana con los valores del equipo.</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_ITEMS">
        <source></source>
        <translation>Elementos de la barra de herramientas de la ventana principal, en su orden, separados por espacios.</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_DISPLAY_MODE">
        <source></source>
        <translation>Qué muestra la barra de herramientas de la ventana principal: 0 o 1 imágenes y nombres, 2 imágenes, 3 nombres.</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_SHOWN">
        <source></source>
        <translation>Mostrar la barra de herramientas de la ventana principal.</translation>
    </message>
    <message id="setting_QUIVA_CHECK_COMPOSITOR">
        <source></source>
        <translation>Si se avisó de que la vista a pantalla completa necesita un escritorio con transparencia.</translation>
    </message>
    <message id="setting_QUIVA_WINDOW_FRAME">
        <source></source>
        <translation>Posición y tamaño de la ventana de la vista animada.</translation>
    </message>
    <message id="graph_missing">
        <source></source>
        <translation>no se conoce</translation>
    </message>
    <message id="graph_spoken_range">
        <source></source>
        <translation>entre %1 y %2</translation>
    </message>
    <message id="graph_spoken_span">
        <source></source>
        <translation>en %1</translation>
    </message>
    <message id="graph_now">
        <source></source>
        <translation>ahora</translation>
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
        <translation>E&amp;quipo</translation>
    </message>
    <message id="help_menu_window_show_machine">
        <source></source>
        <translation>El equipo en conjunto: procesadores, memoria, discos, red y quién estaba más ocupado</translation>
    </message>
    <message id="fleet_error_unreachable">
        <source></source>
        <translation>No se puede llegar al servidor: %1. Compruebe la dirección y que el servidor esté en marcha.</translation>
    </message>
    <message id="fleet_error_timed_out">
        <source></source>
        <translation>El servidor no ha dado una respuesta completa en %1 segundos. Puede que tenga demasiado trabajo; un filtro, o más tiempo entre dos consultas, lo reduce.</translation>
    </message>
    <message id="fleet_error_too_large">
        <source></source>
        <translation>La respuesta del servidor supera %1 MiB y se ha descartado. Un filtro la hace más pequeña.</translation>
    </message>
    <message id="fleet_error_certificate">
        <source></source>
        <translation>El servidor no ha demostrado ser el que debe: %1. No se le ha enviado nada. Use el nombre para el que es su certificado, o haga que este sistema confíe en quien lo emitió.</translation>
    </message>
    <message id="fleet_error_no_encryption">
        <source></source>
        <translation>El Qt de este sistema no tiene TLS, por lo que no se puede consultar ninguna dirección https. Instale su parte de OpenSSL.</translation>
    </message>
    <message id="fleet_error_credentials">
        <source></source>
        <translation>El servidor quiere saber quién pregunta, o no deja preguntar a este usuario (%1). “Iniciar sesión…” admite un nombre y una contraseña, o un token.</translation>
    </message>
    <message id="fleet_error_redirected">
        <source></source>
        <translation>El servidor remite todas las consultas a otro, %1, al que no se ha consultado. Abra esa dirección si es la correcta.</translation>
    </message>
    <message id="fleet_error_not_prometheus">
        <source></source>
        <translation>Lo que responde en esta dirección no es un Prometheus: %1. Compruebe el puerto y la ruta.</translation>
    </message>
    <message id="fleet_error_server">
        <source></source>
        <translation>El servidor ha fallado: %1. Se le volverá a consultar dentro de un rato.</translation>
    </message>
    <message id="fleet_error_query">
        <source></source>
        <translation>El servidor ha rechazado la consulta: %1.</translation>
    </message>
    <message id="fleet_address_empty">
        <source></source>
        <translation>Escriba la dirección de un servidor Prometheus, como http://monitor:9090.</translation>
    </message>
    <message id="fleet_address_has_password">
        <source></source>
        <translation>Una dirección no contiene nombre ni contraseña, porque se guarda y se muestra. Se le pedirán cuando el servidor los exija.</translation>
    </message>
    <message id="fleet_address_wrong">
        <source></source>
        <translation>“%1” no es una dirección como http://monitor:9090.</translation>
    </message>
    <message id="fleet_address_scheme">
        <source></source>
        <translation>A los servidores se les consulta por http o https, no por “%1”.</translation>
    </message>
    <message id="fleet_credentials_unreadable">
        <source></source>
        <translation>No se puede leer %1: %2.</translation>
    </message>
    <message id="fleet_credentials_open">
        <source></source>
        <translation>Otros también pueden leer o cambiar %1. Quíteles ese permiso (chmod 600), y use una contraseña nueva si era secreta.</translation>
    </message>
    <message id="fleet_credentials_no_line">
        <source></source>
        <translation>%1 no es un archivo de una línea, NOMBRE:CONTRASEÑA o un token.</translation>
    </message>
    <message id="fleet_filter_of_processes">
        <source></source>
        <translation>“%1” solo se conoce de procesos sueltos, no de las sumas que tiene el servidor.</translation>
    </message>
    <message id="fleet_filter_no_text">
        <source></source>
        <translation>“%1” es un número: compárelo, como en cpu&gt;50.</translation>
    </message>
    <message id="fleet_filter_either">
        <source></source>
        <translation>Al servidor se le puede pedir uno de varios textos de un mismo tipo, como en “a | b”, pero no una de varias condiciones distintas.</translation>
    </message>
    <message id="fleet_filter_two_kinds">
        <source></source>
        <translation>Cada grupo es de un solo tipo, así que no hay ninguno de ambos: %1.</translation>
    </message>
    <message id="fleet_filter_not_groups">
        <source></source>
        <translation>No se pueden pedir los equipos que no tienen un grupo así.</translation>
    </message>
    <message id="fleet_filter_not_here">
        <source></source>
        <translation>“%1” no se conoce aquí.</translation>
    </message>
    <message id="fleet_filter_one_number">
        <source></source>
        <translation>“%1” se compara con un número.</translation>
    </message>
    <message id="fleet_filter_order">
        <source></source>
        <translation>“%1” se compara con &lt; o &gt;, ya que las fracciones casi nunca son iguales.</translation>
    </message>
    <message id="fleet_filter_too_long">
        <source></source>
        <translation>El filtro es demasiado largo.</translation>
    </message>
    <message id="fleet_cpu">
        <source></source>
        <translation>CPU %</translation>
    </message>
    <message id="fleet_cpu_tip">
        <source></source>
        <translation>Parte del tiempo de los procesadores: en un equipo, de todos ellos; en un grupo, de uno, de modo que 250 son dos y medio. Entre las dos últimas visitas del servidor.</translation>
    </message>
    <message id="fleet_memory">
        <source></source>
        <translation>Memoria</translation>
    </message>
    <message id="fleet_memory_tip">
        <source></source>
        <translation>En un equipo, la memoria no disponible; en un grupo, la memoria residente de sus procesos.</translation>
    </message>
    <message id="fleet_memory_all">
        <source></source>
        <translation>Memoria total</translation>
    </message>
    <message id="fleet_memory_all_tip">
        <source></source>
        <translation>Toda la memoria del equipo.</translation>
    </message>
    <message id="fleet_swap">
        <source></source>
        <translation>Intercambio</translation>
    </message>
    <message id="fleet_swap_tip">
        <source></source>
        <translation>Memoria enviada al intercambio.</translation>
    </message>
    <message id="fleet_load">
        <source></source>
        <translation>Carga</translation>
    </message>
    <message id="fleet_load_tip">
        <source></source>
        <translation>Carga en un minuto.</translation>
    </message>
    <message id="fleet_disk">
        <source></source>
        <translation>Disco</translation>
    </message>
    <message id="fleet_disk_tip">
        <source></source>
        <translation>Bytes leídos de los discos y escritos en ellos, por segundo.</translation>
    </message>
    <message id="fleet_network">
        <source></source>
        <translation>Red</translation>
    </message>
    <message id="fleet_network_tip">
        <source></source>
        <translation>Bytes recibidos y enviados, por segundo; sin lo que el equipo se envía a sí mismo.</translation>
    </message>
    <message id="fleet_waits_cpu">
        <source></source>
        <translation>Esperas: CPU %</translation>
    </message>
    <message id="fleet_waits_cpu_tip">
        <source></source>
        <translation>Parte del tiempo en que algo esperó un procesador.</translation>
    </message>
    <message id="fleet_waits_memory">
        <source></source>
        <translation>Esperas: memoria %</translation>
    </message>
    <message id="fleet_waits_memory_tip">
        <source></source>
        <translation>Parte del tiempo en que algo esperó memoria.</translation>
    </message>
    <message id="fleet_waits_disk">
        <source></source>
        <translation>Esperas: disco %</translation>
    </message>
    <message id="fleet_waits_disk_tip">
        <source></source>
        <translation>Parte del tiempo en que algo esperó a los discos.</translation>
    </message>
    <message id="fleet_processes">
        <source></source>
        <translation>Procesos</translation>
    </message>
    <message id="fleet_processes_tip">
        <source></source>
        <translation>Cuántos procesos hay.</translation>
    </message>
    <message id="fleet_threads">
        <source></source>
        <translation>Hilos</translation>
    </message>
    <message id="fleet_threads_tip">
        <source></source>
        <translation>Cuántos hilos hay.</translation>
    </message>
    <message id="fleet_machines">
        <source></source>
        <translation>Equipos</translation>
    </message>
    <message id="fleet_machines_tip">
        <source></source>
        <translation>En cuántos equipos hay procesos del grupo.</translation>
    </message>
    <message id="fleet_oldest">
        <source></source>
        <translation>En marcha</translation>
    </message>
    <message id="fleet_oldest_tip">
        <source></source>
        <translation>Cuánto hace que se inició el equipo, o el proceso más antiguo del grupo.</translation>
    </message>
    <message id="fleet_seen">
        <source></source>
        <translation>Última vez</translation>
    </message>
    <message id="fleet_seen_tip">
        <source></source>
        <translation>Cuánto hace que el servidor supo del equipo. Un equipo al que no llega se muestra como caído.</translation>
    </message>
    <message id="fleet_up">
        <source></source>
        <translation>Activo</translation>
    </message>
    <message id="fleet_up_tip">
        <source></source>
        <translation>Si el servidor llega al equipo.</translation>
    </message>
    <message id="fleet_read">
        <source></source>
        <translation>Leído</translation>
    </message>
    <message id="fleet_read_tip">
        <source></source>
        <translation>Bytes leídos de los discos, por segundo.</translation>
    </message>
    <message id="fleet_written">
        <source></source>
        <translation>Escrito</translation>
    </message>
    <message id="fleet_written_tip">
        <source></source>
        <translation>Bytes escritos en los discos, por segundo.</translation>
    </message>
    <message id="fleet_received">
        <source></source>
        <translation>Recibido</translation>
    </message>
    <message id="fleet_received_tip">
        <source></source>
        <translation>Bytes recibidos, por segundo.</translation>
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
        <translation>Flota de %1</translation>
    </message>
    <message id="fleet_machine">
        <source></source>
        <translation>Equipo</translation>
    </message>
    <message id="fleet_group">
        <source></source>
        <translation>Nombre</translation>
    </message>
    <message id="fleet_down">
        <source></source>
        <translation>caído</translation>
    </message>
    <message id="fleet_down_for">
        <source></source>
        <translation>caído, %1</translation>
    </message>
    <message id="fleet_show_machines">
        <source></source>
        <translation>Equipos</translation>
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
        <translation>Contenedores</translation>
    </message>
    <message id="fleet_show_user">
        <source></source>
        <translation>Usuarios</translation>
    </message>
    <message id="fleet_back">
        <source></source>
        <translation>Atrás</translation>
    </message>
    <message id="fleet_back_tip">
        <source></source>
        <translation>Lo que se veía antes (Alt+Izquierda)</translation>
    </message>
    <message id="fleet_on">
        <source></source>
        <translation>en %1</translation>
    </message>
    <message id="fleet_with">
        <source></source>
        <translation>con %1</translation>
    </message>
    <message id="fleet_filter">
        <source></source>
        <translation>Filtro que se pide al servidor</translation>
    </message>
    <message id="fleet_filter_tip">
        <source></source>
        <translation>Como en la tabla de procesos: web, name:postgres, machine:web-1, unit:nginx, user:root, cpu&gt;50, mem&gt;4G, processes&gt;100. Busca el servidor, así que puede haber cualquier número de equipos.</translation>
    </message>
    <message id="fleet_interval">
        <source></source>
        <translation>Con qué frecuencia se consulta al servidor</translation>
    </message>
    <message id="fleet_interval_never">
        <source></source>
        <translation>No por sí solo</translation>
    </message>
    <message id="fleet_interval_seconds">
        <source></source>
        <translation>Cada %1 s</translation>
    </message>
    <message id="fleet_interval_minutes">
        <source></source>
        <translation>Cada %1 min</translation>
    </message>
    <message id="fleet_sign_in">
        <source></source>
        <translation>Iniciar sesión…</translation>
    </message>
    <message id="fleet_again">
        <source></source>
        <translation>Reintentar</translation>
    </message>
    <message id="fleet_open_machine">
        <source></source>
        <translation>Mostrar lo que se ejecuta en él</translation>
    </message>
    <message id="fleet_open_group">
        <source></source>
        <translation>Mostrar sus equipos</translation>
    </message>
    <message id="fleet_ssh">
        <source></source>
        <translation>Abrir ssh en un terminal</translation>
    </message>
    <message id="fleet_copy">
        <source></source>
        <translation>Copiar</translation>
    </message>
    <message id="fleet_ssh_no_host">
        <source></source>
        <translation>“%1” no es el nombre de un equipo al que ssh pueda ir.</translation>
    </message>
    <message id="fleet_ssh_no_ssh">
        <source></source>
        <translation>No hay ssh en este equipo. Instale el cliente OpenSSH.</translation>
    </message>
    <message id="fleet_ssh_no_terminal">
        <source></source>
        <translation>En este equipo no hay ningún terminal conocido. Instale uno, como xterm, o indique el suyo en la variable TERMINAL.</translation>
    </message>
    <message id="fleet_ssh_failed">
        <source></source>
        <translation>No se puede iniciar %1.</translation>
    </message>
    <message id="fleet_old_figures">
        <source></source>
        <translation>Los valores de abajo son los de las %1.</translation>
    </message>
    <message id="fleet_count_machines" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n equipo</numerusform>
            <numerusform>%n equipos</numerusform>
        </translation>
    </message>
    <message id="fleet_count_groups" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n fila</numerusform>
            <numerusform>%n filas</numerusform>
        </translation>
    </message>
    <message id="fleet_count_down" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n caído</numerusform>
            <numerusform>%n caídos</numerusform>
        </translation>
    </message>
    <message id="fleet_shown_most" numerus="yes">
        <source></source>
        <translation>
            <numerusform>se muestra %n, el de mayor valor en “%1”; un filtro encuentra otros</numerusform>
            <numerusform>se muestran %n, los de mayor valor en “%1”; un filtro encuentra otros</numerusform>
        </translation>
    </message>
    <message id="fleet_shown_least" numerus="yes">
        <source></source>
        <translation>
            <numerusform>se muestra %n, el de menor valor en “%1”; un filtro encuentra otros</numerusform>
            <numerusform>se muestran %n, los de menor valor en “%1”; un filtro encuentra otros</numerusform>
        </translation>
    </message>
    <message id="fleet_as_of">
        <source></source>
        <translation>a las %1</translation>
    </message>
    <message id="fleet_left_out" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n valor de la respuesta no tenía sentido y se ha omitido</numerusform>
            <numerusform>%n valores de la respuesta no tenían sentido y se han omitido</numerusform>
        </translation>
    </message>
    <message id="fleet_asking">
        <source></source>
        <translation>Consultando al servidor…</translation>
    </message>
    <message id="fleet_nothing_known">
        <source></source>
        <translation>Aún no se conoce nada.</translation>
    </message>
    <message id="fleet_nothing_fulfils">
        <source></source>
        <translation>Nada cumple el filtro.</translation>
    </message>
    <message id="fleet_nothing_there">
        <source></source>
        <translation>El servidor no conoce valores de este tipo. Los equipos se ven cuando el servidor consulta su exportador, lurkwell-export.</translation>
    </message>
    <message id="fleet_span">
        <source></source>
        <translation>Historial:</translation>
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
        <translation>1 día</translation>
    </message>
    <message id="fleet_span_week">
        <source></source>
        <translation>7 días</translation>
    </message>
    <message id="fleet_no_row">
        <source></source>
        <translation>Seleccione una fila para ver su historial.</translation>
    </message>
    <message id="fleet_no_history">
        <source></source>
        <translation>El servidor no tiene valores de ese tiempo.</translation>
    </message>
    <message id="fleet_graph_cpu_machine">
        <source></source>
        <translation>CPU, de todos los procesadores</translation>
    </message>
    <message id="fleet_graph_cpu">
        <source></source>
        <translation>CPU, de un procesador</translation>
    </message>
    <message id="fleet_graph_waits">
        <source></source>
        <translation>Esperas</translation>
    </message>
    <message id="fleet_graph_traffic">
        <source></source>
        <translation>Disco y red</translation>
    </message>
    <message id="fleet_memory_series">
        <source></source>
        <translation>En uso</translation>
    </message>
    <message id="fleet_memory_all_series">
        <source></source>
        <translation>Total</translation>
    </message>
    <message id="fleet_swap_series">
        <source></source>
        <translation>Intercambio</translation>
    </message>
    <message id="fleet_waits_cpu_series">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="fleet_waits_memory_series">
        <source></source>
        <translation>Memoria</translation>
    </message>
    <message id="fleet_waits_disk_series">
        <source></source>
        <translation>Disco</translation>
    </message>
    <message id="fleet_read_series">
        <source></source>
        <translation>Leído</translation>
    </message>
    <message id="fleet_written_series">
        <source></source>
        <translation>Escrito</translation>
    </message>
    <message id="fleet_received_series">
        <source></source>
        <translation>Recibido</translation>
    </message>
    <message id="fleet_sent_series">
        <source></source>
        <translation>Enviado</translation>
    </message>
    <message id="fleet_open_title">
        <source></source>
        <translation>Abrir una flota</translation>
    </message>
    <message id="fleet_open_words">
        <source></source>
        <translation>La dirección de un servidor Prometheus que consulta los exportadores de sus equipos:</translation>
    </message>
    <message id="fleet_address">
        <source></source>
        <translation>Dirección</translation>
    </message>
    <message id="fleet_sign_in_title">
        <source></source>
        <translation>Iniciar sesión en %1</translation>
    </message>
    <message id="fleet_sign_in_words">
        <source></source>
        <translation>Un nombre y una contraseña, un token o un archivo con cualquiera de ellos. Solo se envían a este servidor, y se guardan hasta que se cierra la ventana.</translation>
    </message>
    <message id="fleet_sign_in_in_clear">
        <source></source>
        <translation>Un nombre y una contraseña, un token o un archivo con cualquiera de ellos. Se guardan hasta que se cierra la ventana. Esta dirección no está cifrada: cualquiera que esté en el camino puede leerlos. Es mejor una dirección https.</translation>
    </message>
    <message id="fleet_sign_in_name">
        <source></source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message id="fleet_sign_in_password">
        <source></source>
        <translation>&amp;Contraseña:</translation>
    </message>
    <message id="fleet_sign_in_token">
        <source></source>
        <translation>&amp;Token:</translation>
    </message>
    <message id="fleet_sign_in_file">
        <source></source>
        <translation>&amp;Archivo:</translation>
    </message>
    <message id="fleet_sign_in_choose">
        <source></source>
        <translation>&amp;Elegir…</translation>
    </message>
    <message id="fleet_sign_in_nothing">
        <source></source>
        <translation>Escriba un nombre, un token o la ruta de un archivo.</translation>
    </message>
    <message id="fleet_sign_in_wrong">
        <source></source>
        <translation>Eso no se puede enviar: un nombre no tiene dos puntos, y un token no tiene espacios ni letras que no sean ASCII.</translation>
    </message>
    <message id="fleet_failed">
        <source></source>
        <translation>No se puede abrir la flota</translation>
    </message>
    <message id="menu_file_open_fleet">
        <source></source>
        <translation>Abrir &amp;flota…</translation>
    </message>
    <message id="help_menu_file_open_fleet">
        <source></source>
        <translation>ver todos los equipos que conoce un servidor Prometheus, en una ventana propia</translation>
    </message>
    <message id="setting_title_FLEET_WINDOW_FRAME">
        <source></source>
        <translation>Posición de la ventana de flota</translation>
    </message>
    <message id="setting_FLEET_WINDOW_FRAME">
        <source></source>
        <translation>Dónde estuvo por última vez la ventana de una flota, con su tamaño.</translation>
    </message>
    <message id="setting_title_FLEET_WINDOW_SECONDS">
        <source></source>
        <translation>Intervalo de la ventana de flota</translation>
    </message>
    <message id="setting_FLEET_WINDOW_SECONDS">
        <source></source>
        <translation>Cuántos segundos espera la ventana de una flota antes de volver a consultar a su servidor; 0 si solo consulta cuando se le pide.</translation>
    </message>
    <message id="setting_title_FLEET_RECENT_ADDRESSES">
        <source></source>
        <translation>Últimas flotas</translation>
    </message>
    <message id="setting_FLEET_RECENT_ADDRESSES">
        <source></source>
        <translation>Las direcciones de los últimos servidores que se abrieron, la más reciente primero, con signos de porcentaje en lugar de otras letras. No incluye nombres ni contraseñas.</translation>
    </message>
    <message id="machine_title">
        <source></source>
        <translation>Equipo</translation>
    </message>
    <message id="machine_span">
        <source></source>
        <translation>Mostrar los últimos</translation>
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
        <translation>Este equipo no dice lo ocupados que están sus procesadores.</translation>
    </message>
    <message id="machine_processors">
        <source></source>
        <translation>Procesadores</translation>
    </message>
    <message id="machine_processor">
        <source></source>
        <translation>%1: %2</translation>
    </message>
    <message id="machine_memory">
        <source></source>
        <translation>Memoria</translation>
    </message>
    <message id="machine_no_memory">
        <source></source>
        <translation>Este equipo no dice cuál es su memoria.</translation>
    </message>
    <message id="machine_swap">
        <source></source>
        <translation>Intercambio</translation>
    </message>
    <message id="machine_no_swap">
        <source></source>
        <translation>Este equipo no tiene espacio de intercambio.</translation>
    </message>
    <message id="machine_used_of">
        <source></source>
        <translation>de %1, en uso</translation>
    </message>
    <message id="machine_disks">
        <source></source>
        <translation>Discos</translation>
    </message>
    <message id="machine_no_disks">
        <source></source>
        <translation>Aún no hay valores de los discos, o no hay discos.</translation>
    </message>
    <message id="machine_network">
        <source></source>
        <translation>Red</translation>
    </message>
    <message id="machine_no_network">
        <source></source>
        <translation>Aún no hay valores de la red, o no hay red.</translation>
    </message>
    <message id="machine_all_devices">
        <source></source>
        <translation>Todos</translation>
    </message>
    <message id="machine_read">
        <source></source>
        <translation>leído</translation>
    </message>
    <message id="machine_written">
        <source></source>
        <translation>escrito</translation>
    </message>
    <message id="machine_received">
        <source></source>
        <translation>recibido</translation>
    </message>
    <message id="machine_sent">
        <source></source>
        <translation>enviado</translation>
    </message>
    <message id="machine_pressure">
        <source></source>
        <translation>Presión</translation>
    </message>
    <message id="machine_no_pressure">
        <source></source>
        <translation>Este núcleo no dice cuánto tiempo tuvieron que esperar los procesos.</translation>
    </message>
    <message id="machine_waits_processor">
        <source></source>
        <translation>algunos esperaron CPU</translation>
    </message>
    <message id="machine_waits_memory">
        <source></source>
        <translation>memoria</translation>
    </message>
    <message id="machine_waits_disk">
        <source></source>
        <translation>discos</translation>
    </message>
    <message id="machine_stalled_memory">
        <source></source>
        <translation>todos esperaron memoria</translation>
    </message>
    <message id="machine_stalled_disk">
        <source></source>
        <translation>discos</translation>
    </message>
    <message id="machine_graphics">
        <source></source>
        <translation>Gráficos</translation>
    </message>
    <message id="machine_no_graphics">
        <source></source>
        <translation>Ningún dispositivo gráfico dice lo ocupado que está.</translation>
    </message>
    <message id="machine_busiest_now">
        <source></source>
        <translation>Más ocupados ahora</translation>
    </message>
    <message id="machine_busiest_at">
        <source></source>
        <translation>Más ocupados a las %1</translation>
    </message>
    <message id="machine_back_to_now">
        <source></source>
        <translation>&amp;Ahora</translation>
    </message>
    <message id="machine_note">
        <source></source>
        <translation>Una pulsación en un gráfico muestra quién estaba más ocupado entonces; en un nombre, lo muestra en la tabla de procesos.</translation>
    </message>
    <message id="machine_has_ended">
        <source></source>
        <translation>El proceso %1 ha terminado.</translation>
    </message>
    <message id="machine_not_in_table">
        <source></source>
        <translation>El proceso %1 no está en la tabla: puede que lo oculte un filtro.</translation>
    </message>
    <message id="machine_ended">
        <source></source>
        <translation>%1 (terminado)</translation>
    </message>
    <message id="machine_name">
        <source></source>
        <translation>Nombre</translation>
    </message>
    <message id="machine_pid">
        <source></source>
        <translation>ID del proceso</translation>
    </message>
    <message id="machine_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="machine_load">
        <source></source>
        <translation>Carga: %1, %2, %3 en 1, 5 y 15 minutos</translation>
    </message>
    <message id="machine_no_load">
        <source></source>
        <translation>Carga: este equipo no la dice</translation>
    </message>
    <message id="machine_frequency">
        <source></source>
        <translation>Frecuencia: %1 GHz (de %2 a %3)</translation>
    </message>
    <message id="machine_no_frequency">
        <source></source>
        <translation>Frecuencia: este equipo no la dice</translation>
    </message>
    <message id="machine_no_temperature">
        <source></source>
        <translation>Temperatura: este equipo no la dice</translation>
    </message>
    <message id="machine_more_temperatures" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n sensor más está más frío</numerusform>
            <numerusform>%n sensores más están más fríos</numerusform>
        </translation>
    </message>
    <message id="machine_limits">
        <source></source>
        <translation>Este contenedor puede usar %1.</translation>
    </message>
    <message id="machine_limit_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n procesador</numerusform>
            <numerusform>%n procesadores</numerusform>
        </translation>
    </message>
    <message id="machine_limit_memory">
        <source></source>
        <translation>%1 de memoria</translation>
    </message>
    <message id="machine_limit_memory_used">
        <source></source>
        <translation>%1 de memoria (%2 en uso)</translation>
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
        <translation>Icono en la bandeja</translation>
    </message>
    <message id="setting_title_ACCESSIBLE_QUIET">
        <source></source>
        <translation>Lector de pantalla: no anunciar cambios</translation>
    </message>
    <message id="setting_title_REDUCE_MOTION">
        <source></source>
        <translation>Menos movimiento</translation>
    </message>
    <message id="setting_title_MACHINE_HISTORY_ALWAYS">
        <source></source>
        <translation>Historial del equipo desde el inicio</translation>
    </message>
    <message id="setting_TRAY_ICON">
        <source></source>
        <translation>Mostrar un icono con un pequeño gráfico de los procesadores en la bandeja del sistema; su información y su menú tienen los tres procesos más ocupados. Mientras está ahí, el programa sigue cuando se cierra su última ventana.</translation>
    </message>
    <message id="setting_ACCESSIBLE_QUIET">
        <source></source>
        <translation>El lector de pantalla lee a dónde va y lo que usted pide, y nada de lo que cambian las actualizaciones. Sin esto, la fila que tiene el foco se vuelve a leer cada pocos segundos mientras cambian sus valores.</translation>
    </message>
    <message id="setting_REDUCE_MOTION">
        <source></source>
        <translation>Nada se mueve, se desliza ni parpadea por sí solo: la vista animada queda quieta en cuanto sus procesos tienen su sitio, y los tamaños cambian de golpe. Lo mismo vale mientras el escritorio esté configurado con menos movimiento o sin animaciones.</translation>
    </message>
    <message id="setting_MACHINE_HISTORY_ALWAYS">
        <source></source>
        <translation>Guardar lo que hace el equipo, y quién está más ocupado, durante una hora desde el inicio del programa; si no, desde que se abre por primera vez la ventana del equipo.</translation>
    </message>
    <message id="setting_title_MACHINE_WINDOW_FRAME">
        <source></source>
        <translation>Ventana del equipo: posición y tamaño</translation>
    </message>
    <message id="setting_MACHINE_WINDOW_FRAME">
        <source></source>
        <translation>Posición y tamaño de la ventana del equipo.</translation>
    </message>
    <message id="setting_title_MACHINE_WINDOW_MINUTES">
        <source></source>
        <translation>Ventana del equipo: minutos mostrados</translation>
    </message>
    <message id="setting_MACHINE_WINDOW_MINUTES">
        <source></source>
        <translation>Cuántos minutos muestra la ventana del equipo. El programa anota aquí lo que se eligió en ella.</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_MACHINE_WINDOW">
        <source></source>
        <translation>La ventana del equipo estaba abierta</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_MACHINE_WINDOW">
        <source></source>
        <translation>Abrir la ventana del equipo al inicio. El programa anota aquí si estaba abierta.</translation>
    </message>
    <message id="alert_ok">
        <source></source>
        <translation>Aceptar</translation>
    </message>
    <message id="helper_refused_title">
        <source></source>
        <translation>Lurkwell debe autenticarse con la contraseña de un administrador para funcionar en este equipo.</translation>
    </message>
    <message id="helper_refused_text">
        <source></source>
        <translation>Sin derechos de administrador, Lurkwell muestra todos los procesos y actúa sobre los suyos. No preguntará en el próximo inicio; la barra de estado indica cómo volver a ser preguntado.</translation>
    </message>
    <message id="helper_refused_again">
        <source></source>
        <translation>Autenticar de nuevo</translation>
    </message>
    <message id="helper_refused_quit">
        <source></source>
        <translation>Salir de Lurkwell</translation>
    </message>
    <message id="helper_refused_without">
        <source></source>
        <translation>Continuar sin ellos</translation>
    </message>
    <message id="helper_not_wanted">
        <source></source>
        <translation>Lurkwell se inició sin derechos de administrador</translation>
    </message>
    <message id="helper_refused_by_user">
        <source></source>
        <translation>Lurkwell continúa sin derechos de administrador, como usted eligió</translation>
    </message>
    <message id="shortcut_overlay">
        <source></source>
        <translation>Vista animada sobre la pantalla</translation>
    </message>
    <message id="notifications_no_bus">
        <source></source>
        <translation>no hay bus de sesión</translation>
    </message>
    <message id="notifications_too_many">
        <source></source>
        <translation>demasiadas a la vez</translation>
    </message>
</context>
</TS>
