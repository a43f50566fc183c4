<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="meta_pid">
        <source></source>
        <translation>进程 ID</translation>
    </message>
    <message id="meta_pid_tip">
        <source></source>
        <translation>进程的编号。内核的进程从 1 开始编号；0 表示空闲任务，Classic 环境的应用程序使用小于 -1 的虚拟编号。</translation>
    </message>
    <message id="meta_name">
        <source></source>
        <translation>名称</translation>
    </message>
    <message id="meta_name_tip">
        <source></source>
        <translation>如果进程是应用程序，则为应用程序的名称，否则为命令名；能够得知时显示全名。</translation>
    </message>
    <message id="meta_active_time">
        <source></source>
        <translation>CPU 时间</translation>
    </message>
    <message id="meta_active_time_tip">
        <source></source>
        <translation>进程启动以来使用的 CPU 时间（用户和系统合计），以秒为单位。Classic 环境的应用程序为估计值。</translation>
    </message>
    <message id="meta_kind">
        <source></source>
        <translation>种类</translation>
    </message>
    <message id="meta_kind_tip">
        <source></source>
        <translation>进程的种类：桌面应用程序、Classic 环境的应用程序、内核线程、僵尸进程（已结束，但其父进程尚未读取退出状态）或其他进程。</translation>
    </message>
    <message id="meta_psn">
        <source></source>
        <translation>序列号</translation>
    </message>
    <message id="meta_psn_tip">
        <source></source>
        <translation>应用程序在桌面上的序列号，由两个十六进制数组成。非应用程序的进程两者均为零。</translation>
    </message>
    <message id="carbonpsn_name">
        <source></source>
        <translation>应用程序名称</translation>
    </message>
    <message id="carbonpsn_name_tip">
        <source></source>
        <translation>桌面所知的应用程序名称。非应用程序的进程为空。</translation>
    </message>
    <message id="carbonpsn_type">
        <source></source>
        <translation>应用程序类型</translation>
    </message>
    <message id="carbonpsn_type_tip">
        <source></source>
        <translation>应用程序的四字符类型，普通应用程序为 APPL。取自桌面。</translation>
    </message>
    <message id="carbonpsn_signature">
        <source></source>
        <translation>应用程序签名</translation>
    </message>
    <message id="carbonpsn_signature_tip">
        <source></source>
        <translation>用于区分应用程序的四个字符：桌面项名称或窗口类名称的开头。取自桌面。</translation>
    </message>
    <message id="carbonpsn_mode">
        <source></source>
        <translation>应用程序模式</translation>
    </message>
    <message id="carbonpsn_mode_tip">
        <source></source>
        <translation>桌面报告的应用程序模式标志，为十六进制掩码。</translation>
    </message>
    <message id="classicpsn_name">
        <source></source>
        <translation>Classic 名称</translation>
    </message>
    <message id="classicpsn_name_tip">
        <source></source>
        <translation>应用程序在 Classic 环境中的名称。只有该环境的应用程序才有。</translation>
    </message>
    <message id="classicpsn_type">
        <source></source>
        <translation>Classic 类型</translation>
    </message>
    <message id="classicpsn_type_tip">
        <source></source>
        <translation>应用程序在 Classic 环境中的四字符文件类型。</translation>
    </message>
    <message id="classicpsn_signature">
        <source></source>
        <translation>Classic 签名</translation>
    </message>
    <message id="classicpsn_signature_tip">
        <source></source>
        <translation>应用程序在 Classic 环境中的四字符创建者代码。</translation>
    </message>
    <message id="classicpsn_mode">
        <source></source>
        <translation>Classic 模式</translation>
    </message>
    <message id="classicpsn_mode_tip">
        <source></source>
        <translation>应用程序在 Classic 环境中的模式标志，为十六进制掩码。</translation>
    </message>
    <message id="classicpsn_location">
        <source></source>
        <translation>Classic 位置</translation>
    </message>
    <message id="classicpsn_location_tip">
        <source></source>
        <translation>应用程序的内存分区在 Classic 环境中的起始地址，以十六进制表示。</translation>
    </message>
    <message id="classicpsn_size">
        <source></source>
        <translation>Classic 大小</translation>
    </message>
    <message id="classicpsn_size_tip">
        <source></source>
        <translation>应用程序的内存分区在 Classic 环境中的大小，以字节为单位。</translation>
    </message>
    <message id="classicpsn_active_time">
        <source></source>
        <translation>Classic 活动时间</translation>
    </message>
    <message id="classicpsn_active_time_tip">
        <source></source>
        <translation>应用程序在 Classic 环境中的活动时间，以六十分之一秒的滴答为单位。</translation>
    </message>
    <message id="classicpsn_free_mem">
        <source></source>
        <translation>Classic 可用内存</translation>
    </message>
    <message id="classicpsn_free_mem_tip">
        <source></source>
        <translation>应用程序的内存分区在 Classic 环境中的剩余大小，以字节为单位。</translation>
    </message>
    <message id="pid_p_comm">
        <source></source>
        <translation>命令名</translation>
    </message>
    <message id="pid_p_comm_tip">
        <source></source>
        <translation>命令的名称，最多 16 个字符。内核保存其中的 15 个；更长的名称根据命令行或可执行文件补全。</translation>
    </message>
    <message id="pid_p_priority">
        <source></source>
        <translation>优先级</translation>
    </message>
    <message id="pid_p_priority_tip">
        <source></source>
        <translation>内核的调度优先级；数值越小越先运行。普通进程为 20 加上其 nice 值，实时进程小于零。取自 /proc/PID/stat。</translation>
    </message>
    <message id="pid_parent_pid">
        <source></source>
        <translation>父进程 ID</translation>
    </message>
    <message id="pid_parent_pid_tip">
        <source></source>
        <translation>启动此进程的进程或接管它的进程的编号。</translation>
    </message>
    <message id="pid_p_nice">
        <source></source>
        <translation>nice 值</translation>
    </message>
    <message id="pid_p_nice_tip">
        <source></source>
        <translation>进程对其他进程的谦让程度，从 -20（最少）到 19（最多）。取自 /proc/PID/stat。</translation>
    </message>
    <message id="pid_p_starttime">
        <source></source>
        <translation>启动时间</translation>
    </message>
    <message id="pid_p_starttime_tip">
        <source></source>
        <translation>进程启动的日期和时间。取自 /proc/PID/stat。</translation>
    </message>
    <message id="pid_user_time">
        <source></source>
        <translation>用户时间</translation>
    </message>
    <message id="pid_user_time_tip">
        <source></source>
        <translation>程序自身代码使用的 CPU 时间，所有线程合计，以秒为单位。取自 /proc/PID/stat。</translation>
    </message>
    <message id="pid_system_time">
        <source></source>
        <translation>系统时间</translation>
    </message>
    <message id="pid_system_time_tip">
        <source></source>
        <translation>内核为此进程使用的 CPU 时间，所有线程合计，以秒为单位。取自 /proc/PID/stat。</translation>
    </message>
    <message id="pid_vsz">
        <source></source>
        <translation>虚拟大小</translation>
    </message>
    <message id="pid_vsz_tip">
        <source></source>
        <translation>进程映射的全部内存的大小，无论是否正在使用，以字节为单位。取自 /proc/PID/stat。</translation>
    </message>
    <message id="pid_rsz">
        <source></source>
        <translation>常驻大小</translation>
    </message>
    <message id="pid_rsz_tip">
        <source></source>
        <translation>进程的内存中位于 RAM 的部分，包括共享页，以字节为单位。取自 /proc/PID/stat。</translation>
    </message>
    <message id="pid_pss">
        <source></source>
        <translation>分摊内存</translation>
    </message>
    <message id="pid_pss_tip">
        <source></source>
        <translation>分摊大小（PSS）：进程独有的内存，加上与其他进程共享的每个页中它所分摊的部分。所有进程相加即为它们共同占用的内存。取自 /proc/PID/smaps_rollup；内核需要遍历内存来计算，因此在后台读取，优先读取可见的行。不包括已换出的内存。不允许读取其他用户的进程。</translation>
    </message>
    <message id="pid_uss">
        <source></source>
        <translation>独占内存</translation>
    </message>
    <message id="pid_uss_tip">
        <source></source>
        <translation>独占大小（USS）：不与任何进程共享的内存，也就是进程结束后会释放的内存。取自 /proc/PID/smaps_rollup 的 Private_Clean 和 Private_Dirty，在后台读取，优先读取可见的行。不包括已换出的内存和 hugetlbfs 的大页。不允许读取其他用户的进程。</translation>
    </message>
    <message id="pid_descriptors">
        <source></source>
        <translation>描述符数</translation>
    </message>
    <message id="pid_descriptors_tip">
        <source></source>
        <translation>进程打开的文件、套接字、管道等的描述符数量，即 /proc/PID/fd 中的项数。在后台读取。不包括仅映射到内存的文件。其他用户的进程自内核 6.2 起可以得知。</translation>
    </message>
    <message id="pid_net_received">
        <source></source>
        <translation>接收量</translation>
    </message>
    <message id="pid_net_received_tip">
        <source></source>
        <translation>从网络接收的字节数，包括环回。总量指 Lurkwell 开始查看以来的数量，加上仍然打开的连接在此之前传输的数量。统计范围是此网络命名空间中由内核套接字诊断报告的 TCP 连接，按进程的描述符归属；由多个进程持有的连接会分别计入每个进程。UDP 和 QUIC、在两次查看之间开始并结束的连接以及其他网络命名空间均不统计：至今没有 TCP 连接的进程没有数值。不允许读取其他用户的进程，请参见单元的数值。</translation>
    </message>
    <message id="pid_net_sent">
        <source></source>
        <translation>发送量</translation>
    </message>
    <message id="pid_net_sent_tip">
        <source></source>
        <translation>通过网络发送并已由对端确认的字节数，包括环回。总量指 Lurkwell 开始查看以来的数量，加上仍然打开的连接在此之前传输的数量。统计范围是此网络命名空间中由内核套接字诊断报告的 TCP 连接，按进程的描述符归属；由多个进程持有的连接会分别计入每个进程。UDP 和 QUIC、在两次查看之间开始并结束的连接以及其他网络命名空间均不统计：至今没有 TCP 连接的进程没有数值。不允许读取其他用户的进程，请参见单元的数值。</translation>
    </message>
    <message id="pid_net_receive_rate">
        <source></source>
        <translation>接收/秒</translation>
    </message>
    <message id="pid_net_receive_rate_tip">
        <source></source>
        <translation>最近两次查看之间每秒从网络接收的字节数。统计范围是此网络命名空间中由内核套接字诊断报告的 TCP 连接，按进程的描述符归属；由多个进程持有的连接会分别计入每个进程。UDP 和 QUIC、在两次查看之间开始并结束的连接以及其他网络命名空间均不统计：至今没有 TCP 连接的进程没有数值。不允许读取其他用户的进程，请参见单元的数值。</translation>
    </message>
    <message id="pid_net_send_rate">
        <source></source>
        <translation>发送/秒</translation>
    </message>
    <message id="pid_net_send_rate_tip">
        <source></source>
        <translation>最近两次查看之间每秒通过网络发送并得到确认的字节数。统计范围是此网络命名空间中由内核套接字诊断报告的 TCP 连接，按进程的描述符归属；由多个进程持有的连接会分别计入每个进程。UDP 和 QUIC、在两次查看之间开始并结束的连接以及其他网络命名空间均不统计：至今没有 TCP 连接的进程没有数值。不允许读取其他用户的进程，请参见单元的数值。</translation>
    </message>
    <message id="pid_connections">
        <source></source>
        <translation>连接数</translation>
    </message>
    <message id="pid_connections_tip">
        <source></source>
        <translation>进程打开的 TCP 连接数量，不包括仅监听的连接。取自内核的套接字诊断，按进程的描述符归属；不统计其他协议和其他网络命名空间。不允许读取其他用户的进程。</translation>
    </message>
    <message id="pid_listening_ports">
        <source></source>
        <translation>监听端口</translation>
    </message>
    <message id="pid_listening_ports_tip">
        <source></source>
        <translation>进程等待连接的 TCP 端口。取自内核的套接字诊断，按进程的描述符归属；不包括 UDP 和其他网络命名空间。不允许读取其他用户的进程。</translation>
    </message>
    <message id="pid_ports">
        <source></source>
        <translation>端口</translation>
    </message>
    <message id="pid_ports_tip">
        <source></source>
        <translation>进程的 TCP 和 UDP 套接字的端口：包括自己一端和对端的端口。
取自进程打开的描述符和 /proc/PID/net 中的套接字表；不允许读取其他用户的进程。</translation>
    </message>
    <message id="pid_open_files">
        <source></source>
        <translation>打开的文件</translation>
    </message>
    <message id="pid_open_files_tip">
        <source></source>
        <translation>进程打开的文件的名称及其工作文件夹。
取自 /proc/PID/fd 和 /proc/PID/cwd；不允许读取其他用户的进程。</translation>
    </message>
    <message id="pid_unit_net_received">
        <source></source>
        <translation>接收量（单元）</translation>
    </message>
    <message id="pid_unit_net_received_tip">
        <source></source>
        <translation>通过 TCP 连接接收的字节数。此值由该单元（控制组）的所有进程共有，内核套接字诊断向所有用户报告。UDP 和 QUIC、在两次查看之间开始并结束的连接以及其他网络命名空间均不统计。总量指 Lurkwell 开始查看以来的数量，加上仍然打开的连接在此之前传输的数量。</translation>
    </message>
    <message id="pid_unit_net_sent">
        <source></source>
        <translation>发送量（单元）</translation>
    </message>
    <message id="pid_unit_net_sent_tip">
        <source></source>
        <translation>通过 TCP 连接发送并得到确认的字节数。此值由该单元（控制组）的所有进程共有，内核套接字诊断向所有用户报告。UDP 和 QUIC、在两次查看之间开始并结束的连接以及其他网络命名空间均不统计。总量指 Lurkwell 开始查看以来的数量，加上仍然打开的连接在此之前传输的数量。</translation>
    </message>
    <message id="pid_unit_net_receive_rate">
        <source></source>
        <translation>接收/秒（单元）</translation>
    </message>
    <message id="pid_unit_net_receive_rate_tip">
        <source></source>
        <translation>每秒通过 TCP 连接接收的字节数。此值由该单元（控制组）的所有进程共有，内核套接字诊断向所有用户报告。UDP 和 QUIC、在两次查看之间开始并结束的连接以及其他网络命名空间均不统计。</translation>
    </message>
    <message id="pid_unit_net_send_rate">
        <source></source>
        <translation>发送/秒（单元）</translation>
    </message>
    <message id="pid_unit_net_send_rate_tip">
        <source></source>
        <translation>每秒通过 TCP 连接发送并得到确认的字节数。此值由该单元（控制组）的所有进程共有，内核套接字诊断向所有用户报告。UDP 和 QUIC、在两次查看之间开始并结束的连接以及其他网络命名空间均不统计。</translation>
    </message>
    <message id="pid_gpu_share">
        <source></source>
        <translation>GPU</translation>
    </message>
    <message id="pid_gpu_share_tip">
        <source></source>
        <translation>最近两次查看之间，图形设备最忙的引擎为此进程工作的时间比例。根据内核随进程的图形设备描述符保存的使用数据（/proc/PID/fdinfo）得出；设备的每个客户端只计一次。不保存此数据的驱动程序（如 NVIDIA 自有驱动）不统计。不会打开或唤醒任何设备。不允许读取其他用户的进程。</translation>
    </message>
    <message id="pid_gpu_memory">
        <source></source>
        <translation>GPU 内存</translation>
    </message>
    <message id="pid_gpu_memory_tip">
        <source></source>
        <translation>进程持有的图形设备内存：驱动程序能报告时为常驻量，否则为分配量。根据内核随进程的图形设备描述符保存的使用数据（/proc/PID/fdinfo）得出；设备的每个客户端只计一次。不保存此数据的驱动程序（如 NVIDIA 自有驱动）不统计。不会打开或唤醒任何设备。不允许读取其他用户的进程。</translation>
    </message>
    <message id="pid_gpu_engine">
        <source></source>
        <translation>GPU 引擎</translation>
    </message>
    <message id="pid_gpu_engine_tip">
        <source></source>
        <translation>最近两次查看之间为此进程工作最忙的引擎，采用驱动程序的名称（render、video、copy 等）。根据内核随进程的图形设备描述符保存的使用数据（/proc/PID/fdinfo）得出；设备的每个客户端只计一次。不保存此数据的驱动程序（如 NVIDIA 自有驱动）不统计。不会打开或唤醒任何设备。不允许读取其他用户的进程。</translation>
    </message>
    <message id="value_age_tip" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 秒前读取。</numerusform>
        </translation>
    </message>
    <message id="pid_suspend_count">
        <source></source>
        <translation>挂起计数</translation>
    </message>
    <message id="pid_suspend_count_tip">
        <source></source>
        <translation>进程被信号或调试器停止时为 1，否则为 0。</translation>
    </message>
    <message id="pid_terminated_user_time">
        <source></source>
        <translation>已结束线程的用户时间</translation>
    </message>
    <message id="pid_terminated_user_time_tip">
        <source></source>
        <translation>已结束线程的用户时间。在 Linux 上始终为 0，因为已包含在用户时间中。</translation>
    </message>
    <message id="pid_terminated_system_time">
        <source></source>
        <translation>已结束线程的系统时间</translation>
    </message>
    <message id="pid_terminated_system_time_tip">
        <source></source>
        <translation>已结束线程的系统时间。在 Linux 上始终为 0，因为已包含在系统时间中。</translation>
    </message>
    <message id="pid_policy">
        <source></source>
        <translation>调度策略</translation>
    </message>
    <message id="pid_policy_tip">
        <source></source>
        <translation>内核调度策略的编号：0 普通，1 FIFO，2 轮转，3 批处理，5 空闲，6 截止时间。取自 /proc/PID/stat。</translation>
    </message>
    <message id="pid_faults">
        <source></source>
        <translation>缺页</translation>
    </message>
    <message id="pid_faults_tip">
        <source></source>
        <translation>进程启动以来的缺页次数，无论是否需要从磁盘读取。取自 /proc/PID/stat。</translation>
    </message>
    <message id="pid_pageins">
        <source></source>
        <translation>页调入</translation>
    </message>
    <message id="pid_pageins_tip">
        <source></source>
        <translation>必须等待从磁盘读取的缺页（主缺页）次数。取自 /proc/PID/stat。</translation>
    </message>
    <message id="pid_cow_faults">
        <source></source>
        <translation>写时复制缺页</translation>
    </message>
    <message id="pid_cow_faults_tip">
        <source></source>
        <translation>复制了共享页的缺页次数。Linux 不统计：始终为 0。</translation>
    </message>
    <message id="pid_messages_sent">
        <source></source>
        <translation>已发送消息</translation>
    </message>
    <message id="pid_messages_sent_tip">
        <source></source>
        <translation>内核与进程之间发送的消息。Linux 没有这种消息：始终为 0。</translation>
    </message>
    <message id="pid_messages_received">
        <source></source>
        <translation>已接收消息</translation>
    </message>
    <message id="pid_messages_received_tip">
        <source></source>
        <translation>内核与进程之间接收的消息。Linux 没有这种消息：始终为 0。</translation>
    </message>
    <message id="pid_syscalls_mach">
        <source></source>
        <translation>Mach 系统调用</translation>
    </message>
    <message id="pid_syscalls_mach_tip">
        <source></source>
        <translation>对 Mach 内核接口的调用。Linux 没有：始终为 0。</translation>
    </message>
    <message id="pid_syscalls_unix">
        <source></source>
        <translation>Unix 系统调用</translation>
    </message>
    <message id="pid_syscalls_unix_tip">
        <source></source>
        <translation>读取和写入的系统调用的总数；其他调用不统计。取自 /proc/PID/io，只有其用户和 root 可以读取。</translation>
    </message>
    <message id="pid_csw">
        <source></source>
        <translation>上下文切换</translation>
    </message>
    <message id="pid_csw_tip">
        <source></source>
        <translation>CPU 从进程的主线程切换走的次数，无论是否自愿。取自 /proc/PID/status。</translation>
    </message>
    <message id="pid_processor">
        <source></source>
        <translation>上次的 CPU</translation>
    </message>
    <message id="pid_processor_tip">
        <source></source>
        <translation>进程的主线程上次运行所在处理器的编号，从 0 开始。取自 /proc/PID/stat。</translation>
    </message>
    <message id="pid_cpu_wait">
        <source></source>
        <translation>等待 CPU</translation>
    </message>
    <message id="pid_cpu_wait_tip">
        <source></source>
        <translation>进程的各线程已就绪但须等待处理器的时间合计，以秒为单位。不包括已结束的线程。取自 /proc/PID/task/TID/schedstat。</translation>
    </message>
    <message id="pid_disk_read">
        <source></source>
        <translation>磁盘读取量</translation>
    </message>
    <message id="pid_disk_read_tip">
        <source></source>
        <translation>进程启动以来存储设备为它读取的字节数。取自 /proc/PID/io，只有其用户和 root 可以读取。</translation>
    </message>
    <message id="pid_disk_written">
        <source></source>
        <translation>磁盘写入量</translation>
    </message>
    <message id="pid_disk_written_tip">
        <source></source>
        <translation>进程启动以来交给存储设备写入的字节数；写入后很快被删除的文件也计算在内。取自 /proc/PID/io，只有其用户和 root 可以读取。</translation>
    </message>
    <message id="pid_bytes_read">
        <source></source>
        <translation>已读字节</translation>
    </message>
    <message id="pid_bytes_read_tip">
        <source></source>
        <translation>进程启动以来从读取调用得到的字节数，无论来自磁盘、缓存还是终端。取自 /proc/PID/io，只有其用户和 root 可以读取。</translation>
    </message>
    <message id="pid_bytes_written">
        <source></source>
        <translation>已写字节</translation>
    </message>
    <message id="pid_bytes_written_tip">
        <source></source>
        <translation>进程启动以来传递给写入调用的字节数，无论去往磁盘、缓存还是终端。取自 /proc/PID/io，只有其用户和 root 可以读取。</translation>
    </message>
    <message id="pid_unit_disk_read">
        <source></source>
        <translation>磁盘读取量（单元）</translation>
    </message>
    <message id="pid_unit_disk_read_tip">
        <source></source>
        <translation>存储设备为进程所在单元（控制组）读取的字节数：其中所有进程合计，包括已结束的进程。取自单元的 io.stat，所有人都可以读取；未统计输入输出的单元没有数值。</translation>
    </message>
    <message id="pid_unit_disk_written">
        <source></source>
        <translation>磁盘写入量（单元）</translation>
    </message>
    <message id="pid_unit_disk_written_tip">
        <source></source>
        <translation>进程所在单元（控制组）交给存储设备写入的字节数：其中所有进程合计，包括已结束的进程。取自单元的 io.stat，所有人都可以读取；未统计输入输出的单元没有数值。</translation>
    </message>
    <message id="pid_owner">
        <source></source>
        <translation>所有者</translation>
    </message>
    <message id="pid_owner_tip">
        <source></source>
        <translation>进程所属的用户；以其他用户的身份运行时，用“as”标出该用户。取自 /proc/PID/status；没有名称的用户显示为编号。</translation>
    </message>
    <message id="pid_state">
        <source></source>
        <translation>状态（文字）</translation>
    </message>
    <message id="pid_state_tip">
        <source></source>
        <translation>进程主线程的状态：运行（或就绪）、睡眠、不可中断（多为等待磁盘）、停止、被调试器跟踪、僵尸（已结束但尚未回收）、空闲（内核自身的）。取自 /proc/PID/stat。其他线程的状态可能不同。</translation>
    </message>
    <message id="pid_threads">
        <source></source>
        <translation>线程数</translation>
    </message>
    <message id="pid_threads_tip">
        <source></source>
        <translation>进程的线程数量。取自 /proc/PID/stat。不包括已结束的线程。</translation>
    </message>
    <message id="pid_terminal">
        <source></source>
        <translation>控制终端</translation>
    </message>
    <message id="pid_terminal_tip">
        <source></source>
        <translation>进程所属的终端，以 /dev 下的名称表示。取自 /proc/PID/stat。没有终端的进程为空；终端窗口中的程序显示该窗口的终端。</translation>
    </message>
    <message id="pid_command_line">
        <source></source>
        <translation>完整命令行</translation>
    </message>
    <message id="pid_command_line_tip">
        <source></source>
        <translation>程序及其参数，无法显示的字符写作转义序列。取自 /proc/PID/cmdline，最多约 4,000 个字符，为进程当前的内容：进程可以改写它。输出和写出时只有程序本身，除非打开了设置 KEEP_COMMAND_LINES。</translation>
    </message>
    <message id="pid_executable">
        <source></source>
        <translation>可执行文件</translation>
    </message>
    <message id="pid_executable_tip">
        <source></source>
        <translation>进程运行的文件；被替换或删除后带有“(deleted)”。取自 /proc/PID/exe，只有其用户和 root 可以读取。内核线程没有。</translation>
    </message>
    <message id="pid_running_time">
        <source></source>
        <translation>运行时长</translation>
    </message>
    <message id="pid_running_time_tip">
        <source></source>
        <translation>进程启动至今的时间，以天、时、分、秒表示；包括计算机睡眠的时间。取自 /proc/PID/stat 和时钟。</translation>
    </message>
    <message id="pid_cpu_share">
        <source></source>
        <translation>CPU %（单核）</translation>
    </message>
    <message id="pid_cpu_share_of_machine">
        <source></source>
        <translation>CPU %（全部）</translation>
    </message>
    <message id="pid_cpu_share_tip">
        <source></source>
        <translation>上次更新以来进程的所有线程合计使用一个处理器的比例：100 表示一直占用一个处理器，四个繁忙的线程为 400。根据 /proc/PID/stat 中以百分之一秒计的时间得出。不包括已结束的子进程使用的部分。</translation>
    </message>
    <message id="pid_user_share">
        <source></source>
        <translation>用户 %（单核）</translation>
    </message>
    <message id="pid_user_share_of_machine">
        <source></source>
        <translation>用户 %（全部）</translation>
    </message>
    <message id="pid_user_share_tip">
        <source></source>
        <translation>上次更新以来进程为自身代码使用一个处理器的比例。根据 /proc/PID/stat 中的时间得出。</translation>
    </message>
    <message id="pid_system_share">
        <source></source>
        <translation>系统 %（单核）</translation>
    </message>
    <message id="pid_system_share_of_machine">
        <source></source>
        <translation>系统 %（全部）</translation>
    </message>
    <message id="pid_system_share_tip">
        <source></source>
        <translation>上次更新以来内核为此进程使用一个处理器的比例。根据 /proc/PID/stat 中的时间得出。</translation>
    </message>
    <message id="pid_affinity">
        <source></source>
        <translation>允许的 CPU</translation>
    </message>
    <message id="pid_affinity_tip">
        <source></source>
        <translation>进程的主线程可以运行的处理器，以从 0 开始的编号表示。由内核的 sched_getaffinity 报告。已包含进程控制组的限制；其他线程可能不同。</translation>
    </message>
    <message id="pid_scheduler">
        <source></source>
        <translation>调度方式</translation>
    </message>
    <message id="pid_scheduler_tip">
        <source></source>
        <translation>内核为此进程分配处理器的方式：普通、批处理、空闲（仅在无其他进程需要时）、实时、截止时间。取自主线程的 /proc/PID/stat。</translation>
    </message>
    <message id="pid_io_priority">
        <source></source>
        <translation>I/O 优先级</translation>
    </message>
    <message id="pid_io_priority_tip">
        <source></source>
        <translation>进程等待磁盘时的次序：类别以及从 0（最高）到 7 的级别。由内核的 ioprio_get 报告。没有调度器的磁盘（大多数 NVMe 磁盘）不理会它。</translation>
    </message>
    <message id="pid_shared_memory">
        <source></source>
        <translation>共享内存</translation>
    </message>
    <message id="pid_shared_memory_tip">
        <source></source>
        <translation>进程的内存中其他进程也可能映射的部分：文件和库的部分内容，以及用于共享的内存。取自 /proc/PID/status 的 RssFile 和 RssShmem。无论是否确实被共享，它都是常驻大小的一部分。</translation>
    </message>
    <message id="pid_swap">
        <source></source>
        <translation>已换出</translation>
    </message>
    <message id="pid_swap_tip">
        <source></source>
        <translation>进程的内存中已移到交换空间的部分。取自 /proc/PID/status 的 VmSwap。不包括已换出的共享内存。</translation>
    </message>
    <message id="pid_highest_rsz">
        <source></source>
        <translation>最大常驻大小</translation>
    </message>
    <message id="pid_highest_rsz_tip">
        <source></source>
        <translation>进程曾经同时占用的最多内存。取自 /proc/PID/status 的 VmHWM。</translation>
    </message>
    <message id="pid_memory_share">
        <source></source>
        <translation>内存 %</translation>
    </message>
    <message id="pid_memory_share_tip">
        <source></source>
        <translation>进程的常驻大小占计算机全部内存的比例。取自 /proc/PID/stat。共享的部分对每个持有者都按全部计算，因此总和可能超过 100。</translation>
    </message>
    <message id="pid_oom_score">
        <source></source>
        <translation>内存不足评分</translation>
    </message>
    <message id="pid_oom_score_tip">
        <source></source>
        <translation>内存耗尽时谁最先被结束：评分最高的进程。取自 /proc/PID/oom_score。</translation>
    </message>
    <message id="pid_disk_read_rate">
        <source></source>
        <translation>磁盘读取/秒</translation>
    </message>
    <message id="pid_disk_read_rate_tip">
        <source></source>
        <translation>上次更新以来存储设备每秒为此进程读取的字节数。取自 /proc/PID/io，只有其用户和 root 可以读取；其他用户的进程请参见单元的数值。</translation>
    </message>
    <message id="pid_disk_write_rate">
        <source></source>
        <translation>磁盘写入/秒</translation>
    </message>
    <message id="pid_disk_write_rate_tip">
        <source></source>
        <translation>上次更新以来此进程每秒交给存储设备写入的字节数。取自 /proc/PID/io，只有其用户和 root 可以读取；其他用户的进程请参见单元的数值。</translation>
    </message>
    <message id="pid_read_rate">
        <source></source>
        <translation>读取/秒</translation>
    </message>
    <message id="pid_read_rate_tip">
        <source></source>
        <translation>上次更新以来进程每秒从读取调用得到的字节数，无论来自磁盘、缓存、管道还是终端。取自 /proc/PID/io，只有其用户和 root 可以读取。</translation>
    </message>
    <message id="pid_write_rate">
        <source></source>
        <translation>写入/秒</translation>
    </message>
    <message id="pid_write_rate_tip">
        <source></source>
        <translation>上次更新以来进程每秒传递给写入调用的字节数，无论去往磁盘、缓存、管道还是终端。取自 /proc/PID/io，只有其用户和 root 可以读取。</translation>
    </message>
    <message id="pid_unit_read_rate">
        <source></source>
        <translation>磁盘读取/秒（单元）</translation>
    </message>
    <message id="pid_unit_read_rate_tip">
        <source></source>
        <translation>上次更新以来存储设备每秒为进程所在单元（控制组）读取的字节数，其中所有进程合计。取自单元的 io.stat，所有人都可以读取；未统计输入输出的单元没有数值。</translation>
    </message>
    <message id="pid_unit_write_rate">
        <source></source>
        <translation>磁盘写入/秒（单元）</translation>
    </message>
    <message id="pid_unit_write_rate_tip">
        <source></source>
        <translation>上次更新以来进程所在单元（控制组）每秒交给存储设备写入的字节数，其中所有进程合计。取自单元的 io.stat，所有人都可以读取；未统计输入输出的单元没有数值。</translation>
    </message>
    <message id="pid_cgroup">
        <source></source>
        <translation>控制组路径</translation>
    </message>
    <message id="pid_cgroup_tip">
        <source></source>
        <translation>进程的控制组，从此程序看到的根开始。取自 /proc/PID/cgroup。存在多个层级时取统一层级，否则取服务管理器的层级。</translation>
    </message>
    <message id="pid_unit">
        <source></source>
        <translation>服务或作用域</translation>
    </message>
    <message id="pid_unit_tip">
        <source></source>
        <translation>进程所属的服务管理器单元：服务、会话或应用程序的作用域。取自其控制组的路径。没有服务管理器时为空。</translation>
    </message>
    <message id="pid_slice">
        <source></source>
        <translation>单元的切片</translation>
    </message>
    <message id="pid_slice_tip">
        <source></source>
        <translation>进程的单元所在的单元组。取自其控制组的路径。</translation>
    </message>
    <message id="pid_app_scope">
        <source></source>
        <translation>应用程序作用域</translation>
    </message>
    <message id="pid_app_scope_tip">
        <source></source>
        <translation>会话管理器为哪个应用程序管理此进程，以其桌面项表示。取自其控制组的路径。服务以及不对应用程序分类的桌面为空。</translation>
    </message>
    <message id="pid_container">
        <source></source>
        <translation>容器</translation>
    </message>
    <message id="pid_container_tip">
        <source></source>
        <translation>进程所在容器的种类及名称或编号：Docker、Podman、containerd、CRI-O、Kubernetes、LXC、systemd-nspawn、Flatpak、Snap。取自其控制组的路径；以其他方式命名控制组的引擎无法识别。没有容器而被隔离的进程（如网页浏览器的某些部分）显示为“own pid namespace”。</translation>
    </message>
    <message id="pid_inner_pid">
        <source></source>
        <translation>内部 PID</translation>
    </message>
    <message id="pid_inner_pid_tip">
        <source></source>
        <translation>进程所在的最内层 PID 命名空间与此程序不同时，进程在其中的编号。取自 /proc/PID/status 的 NSpid。</translation>
    </message>
    <message id="pid_namespace">
        <source></source>
        <translation>PID 命名空间</translation>
    </message>
    <message id="pid_namespace_tip">
        <source></source>
        <translation>进程所在的 PID 命名空间的编号：编号相同的进程可以互相看到。取自 /proc/PID/ns/pid，只有其用户和 root 可以读取。</translation>
    </message>
    <message id="pid_capabilities">
        <source></source>
        <translation>有效权能</translation>
    </message>
    <message id="pid_capabilities_tip">
        <source></source>
        <translation>进程目前拥有 root 的哪些权限。取自主线程的 /proc/PID/status 的 CapEff。在用户命名空间中，这些权限只在该命名空间内有效。</translation>
    </message>
    <message id="pid_seccomp">
        <source></source>
        <translation>系统调用过滤</translation>
    </message>
    <message id="pid_seccomp_tip">
        <source></source>
        <translation>进程是否对自己的系统调用进行过滤：关闭、严格（几乎全部禁止）或过滤。取自 /proc/PID/status 的 Seccomp。</translation>
    </message>
    <message id="pid_no_new_privileges">
        <source></source>
        <translation>禁止新特权</translation>
    </message>
    <message id="pid_no_new_privileges_tip">
        <source></source>
        <translation>进程启动的程序是否无法得到比它更多的权限，无论其文件属性如何。取自 /proc/PID/status 的 NoNewPrivs。</translation>
    </message>
    <message id="pid_label">
        <source></source>
        <translation>安全模块标签</translation>
    </message>
    <message id="pid_label_tip">
        <source></source>
        <translation>AppArmor、SELinux 或 Smack 对进程的称呼。取自 /proc/PID/attr/current；没有此类模块时不存在。</translation>
    </message>
    <message id="pid_elevated">
        <source></source>
        <translation>提升权限</translation>
    </message>
    <message id="pid_elevated_tip">
        <source></source>
        <translation>进程是否拥有其用户的其他进程没有的权限：以 root 身份运行时为 root，拥有 root 的部分权限时为权能。取自 /proc/PID/status 的 Uid 和 CapEff。</translation>
    </message>
    <message id="internal_Icon">
        <source></source>
        <translation>图标</translation>
    </message>
    <message id="internal_Icon_tip">
        <source></source>
        <translation>应用程序的图标。非应用程序的进程没有。</translation>
    </message>
    <message id="internal_Indicator">
        <source></source>
        <translation>标记</translation>
    </message>
    <message id="internal_Indicator_tip">
        <source></source>
        <translation>表示在这里对进程所做操作的标记：已停止，或优先级已提高或降低。</translation>
    </message>
    <message id="internal_CPUPercent">
        <source></source>
        <translation>CPU 使用率</translation>
    </message>
    <message id="internal_CPUPercent_tip">
        <source></source>
        <translation>上次更新以来进程使用 CPU 的比例，以条形表示。</translation>
    </message>
    <message id="internal_MemGraph">
        <source></source>
        <translation>内存</translation>
    </message>
    <message id="internal_MemGraph_tip">
        <source></source>
        <translation>进程的常驻大小和虚拟大小，以条形表示。</translation>
    </message>
    <message id="%CPU">
        <source></source>
        <translation>CPU 使用率 (%CPU)</translation>
    </message>
    <message id="%CPU_tip">
        <source></source>
        <translation>使用的 CPU 时间除以进程的运行时间，以百分比表示。这是进程整个生命期的平均值。</translation>
    </message>
    <message id="%CUC">
        <source></source>
        <translation>CPU 使用率，含子进程 (%CUC)</translation>
    </message>
    <message id="%CUC_tip">
        <source></source>
        <translation>进程及其已结束的子进程的 CPU 时间除以其运行时间，以带三位小数的百分比表示。</translation>
    </message>
    <message id="%CUU">
        <source></source>
        <translation>CPU 使用率 (%CUU)</translation>
    </message>
    <message id="%CUU_tip">
        <source></source>
        <translation>使用的 CPU 时间除以进程的运行时间，以带三位小数的百分比表示。</translation>
    </message>
    <message id="%MEM">
        <source></source>
        <translation>内存使用率 (%MEM)</translation>
    </message>
    <message id="%MEM_tip">
        <source></source>
        <translation>常驻大小占计算机物理内存的百分比。</translation>
    </message>
    <message id="AGID">
        <source></source>
        <translation>自动组 ID (AGID)</translation>
    </message>
    <message id="AGID_tip">
        <source></source>
        <translation>进程所属的调度器自动组的编号；通常每个会话有一个。</translation>
    </message>
    <message id="AGNI">
        <source></source>
        <translation>自动组 nice 值 (AGNI)</translation>
    </message>
    <message id="AGNI_tip">
        <source></source>
        <translation>调度器自动组的 nice 值：整个组对其他组的谦让程度。</translation>
    </message>
    <message id="API">
        <source></source>
        <translation>优先级 (API)</translation>
    </message>
    <message id="API_tip">
        <source></source>
        <translation>按 ps 提供的一种历史标度表示的调度优先级：-1 减去内核的优先级。</translation>
    </message>
    <message id="BLOCKED">
        <source></source>
        <translation>阻塞的信号 (BLOCKED)</translation>
    </message>
    <message id="BLOCKED_tip">
        <source></source>
        <translation>进程推迟递送的信号，为十六进制掩码。</translation>
    </message>
    <message id="BSDTIME">
        <source></source>
        <translation>CPU 时间 (BSDTIME)</translation>
    </message>
    <message id="BSDTIME_tip">
        <source></source>
        <translation>进程启动以来使用的 CPU 时间，用户和系统合计。与 TIME 相同。</translation>
    </message>
    <message id="C">
        <source></source>
        <translation>CPU 使用率 (C)</translation>
    </message>
    <message id="C_tip">
        <source></source>
        <translation>使用的 CPU 时间除以进程的运行时间，以整数百分比表示。</translation>
    </message>
    <message id="CATCHED">
        <source></source>
        <translation>捕获的信号 (CATCHED)</translation>
    </message>
    <message id="CATCHED_tip">
        <source></source>
        <translation>进程有自己的处理函数的信号，为十六进制掩码。与 CAUGHT 相同。</translation>
    </message>
    <message id="CAUGHT">
        <source></source>
        <translation>捕获的信号 (CAUGHT)</translation>
    </message>
    <message id="CAUGHT_tip">
        <source></source>
        <translation>进程有自己的处理函数的信号，为十六进制掩码。</translation>
    </message>
    <message id="CGNAME">
        <source></source>
        <translation>控制组名称 (CGNAME)</translation>
    </message>
    <message id="CGNAME_tip">
        <source></source>
        <translation>进程所属控制组的名称，由内核给出。</translation>
    </message>
    <message id="CGROUP">
        <source></source>
        <translation>控制组 (CGROUP)</translation>
    </message>
    <message id="CGROUP_tip">
        <source></source>
        <translation>进程所属的控制组。</translation>
    </message>
    <message id="CGROUPNS">
        <source></source>
        <translation>控制组命名空间 (CGROUPNS)</translation>
    </message>
    <message id="CGROUPNS_tip">
        <source></source>
        <translation>进程所在控制组命名空间的 inode 编号。编号相同的进程共享同一命名空间。</translation>
    </message>
    <message id="CLS">
        <source></source>
        <translation>调度类别 (CLS)</translation>
    </message>
    <message id="CLS_tip">
        <source></source>
        <translation>调度类别：TS 普通，FF 先进先出，RR 轮转，B 批处理，IDL 空闲，DLN 截止时间。</translation>
    </message>
    <message id="CMD">
        <source></source>
        <translation>命令行 (CMD)</translation>
    </message>
    <message id="CMD_tip">
        <source></source>
        <translation>命令及其全部参数。与 COMMAND 相同。</translation>
    </message>
    <message id="COMM">
        <source></source>
        <translation>命令名 (COMM)</translation>
    </message>
    <message id="COMM_tip">
        <source></source>
        <translation>不带参数的命令名称。</translation>
    </message>
    <message id="COMMAND">
        <source></source>
        <translation>命令行 (COMMAND)</translation>
    </message>
    <message id="COMMAND_tip">
        <source></source>
        <translation>命令及其全部参数。无法取得参数时（如内核线程）为方括号中的命令名称。</translation>
    </message>
    <message id="CONTEXT">
        <source></source>
        <translation>安全上下文 (CONTEXT)</translation>
    </message>
    <message id="CONTEXT_tip">
        <source></source>
        <translation>内核的访问控制（如 SELinux）赋予进程的安全上下文；没有时为短横线。</translation>
    </message>
    <message id="CP">
        <source></source>
        <translation>CPU 使用率 (CP)</translation>
    </message>
    <message id="CP_tip">
        <source></source>
        <translation>使用的 CPU 时间除以进程的运行时间，以千分之一为单位。</translation>
    </message>
    <message id="CPUID">
        <source></source>
        <translation>上次的 CPU (CPUID)</translation>
    </message>
    <message id="CPUID_tip">
        <source></source>
        <translation>进程上次运行所在处理器的编号。</translation>
    </message>
    <message id="CPUTIMES">
        <source></source>
        <translation>CPU 秒数 (CPUTIMES)</translation>
    </message>
    <message id="CPUTIMES_tip">
        <source></source>
        <translation>进程启动以来使用的 CPU 时间，用户和系统合计，以秒为单位。</translation>
    </message>
    <message id="DRS">
        <source></source>
        <translation>数据大小 (DRS)</translation>
    </message>
    <message id="DRS_tip">
        <source></source>
        <translation>除可执行代码外全部映射内存的大小。虽名为此，但不一定全部位于 RAM 中。</translation>
    </message>
    <message id="DSIZ">
        <source></source>
        <translation>数据大小 (DSIZ)</translation>
    </message>
    <message id="DSIZ_tip">
        <source></source>
        <translation>除可执行代码外全部映射内存的大小。</translation>
    </message>
    <message id="EGID">
        <source></source>
        <translation>有效组 ID (EGID)</translation>
    </message>
    <message id="EGID_tip">
        <source></source>
        <translation>进程拥有其权限的组的编号。</translation>
    </message>
    <message id="EGROUP">
        <source></source>
        <translation>有效组 (EGROUP)</translation>
    </message>
    <message id="EGROUP_tip">
        <source></source>
        <translation>进程拥有其权限的组的名称。</translation>
    </message>
    <message id="EIP">
        <source></source>
        <translation>指令指针 (EIP)</translation>
    </message>
    <message id="EIP_tip">
        <source></source>
        <translation>进程所处指令的地址。自 4.9 起的内核仅在进程结束时显示，否则为零。</translation>
    </message>
    <message id="ELAPSED">
        <source></source>
        <translation>已运行时间 (ELAPSED)</translation>
    </message>
    <message id="ELAPSED_tip">
        <source></source>
        <translation>进程启动至今的时间，以天、时、分、秒表示。</translation>
    </message>
    <message id="ESP">
        <source></source>
        <translation>栈指针 (ESP)</translation>
    </message>
    <message id="ESP_tip">
        <source></source>
        <translation>栈顶的地址。自 4.9 起的内核仅在进程结束时显示，否则为零。</translation>
    </message>
    <message id="ETIMES">
        <source></source>
        <translation>已运行秒数 (ETIMES)</translation>
    </message>
    <message id="ETIMES_tip">
        <source></source>
        <translation>进程启动至今的时间，以秒为单位。</translation>
    </message>
    <message id="EUID">
        <source></source>
        <translation>有效用户 ID (EUID)</translation>
    </message>
    <message id="EUID_tip">
        <source></source>
        <translation>进程拥有其权限的用户的编号。</translation>
    </message>
    <message id="EUSER">
        <source></source>
        <translation>有效用户 (EUSER)</translation>
    </message>
    <message id="EUSER_tip">
        <source></source>
        <translation>进程拥有其权限的用户的名称。</translation>
    </message>
    <message id="EXE">
        <source></source>
        <translation>可执行文件 (EXE)</translation>
    </message>
    <message id="EXE_tip">
        <source></source>
        <translation>程序文件的路径；内核线程为短横线，无法读取时为叉号。</translation>
    </message>
    <message id="F">
        <source></source>
        <translation>标志 (F)</translation>
    </message>
    <message id="F_tip">
        <source></source>
        <translation>进程标志之和：1 已 fork 但尚未成为独立程序，4 使用过超级用户权限。</translation>
    </message>
    <message id="FGID">
        <source></source>
        <translation>文件访问组 ID (FGID)</translation>
    </message>
    <message id="FGID_tip">
        <source></source>
        <translation>进程打开文件时所依据的组的编号。</translation>
    </message>
    <message id="FGROUP">
        <source></source>
        <translation>文件访问组 (FGROUP)</translation>
    </message>
    <message id="FGROUP_tip">
        <source></source>
        <translation>进程打开文件时所依据的组的名称。</translation>
    </message>
    <message id="FNAME">
        <source></source>
        <translation>命令名，缩短 (FNAME)</translation>
    </message>
    <message id="FNAME_tip">
        <source></source>
        <translation>命令名称的前八个字母。</translation>
    </message>
    <message id="FSGID">
        <source></source>
        <translation>文件访问组 ID (FSGID)</translation>
    </message>
    <message id="FSGID_tip">
        <source></source>
        <translation>进程打开文件时所依据的组的编号。与 FGID 相同。</translation>
    </message>
    <message id="FSGROUP">
        <source></source>
        <translation>文件访问组 (FSGROUP)</translation>
    </message>
    <message id="FSGROUP_tip">
        <source></source>
        <translation>进程打开文件时所依据的组的名称。与 FGROUP 相同。</translation>
    </message>
    <message id="FSUID">
        <source></source>
        <translation>文件访问用户 ID (FSUID)</translation>
    </message>
    <message id="FSUID_tip">
        <source></source>
        <translation>进程打开文件时所依据的用户的编号。与 FUID 相同。</translation>
    </message>
    <message id="FSUSER">
        <source></source>
        <translation>文件访问用户 (FSUSER)</translation>
    </message>
    <message id="FSUSER_tip">
        <source></source>
        <translation>进程打开文件时所依据的用户的名称。与 FUSER 相同。</translation>
    </message>
    <message id="FUID">
        <source></source>
        <translation>文件访问用户 ID (FUID)</translation>
    </message>
    <message id="FUID_tip">
        <source></source>
        <translation>进程打开文件时所依据的用户的编号。</translation>
    </message>
    <message id="FUSER">
        <source></source>
        <translation>文件访问用户 (FUSER)</translation>
    </message>
    <message id="FUSER_tip">
        <source></source>
        <translation>进程打开文件时所依据的用户的名称。</translation>
    </message>
    <message id="GID">
        <source></source>
        <translation>组 ID (GID)</translation>
    </message>
    <message id="GID_tip">
        <source></source>
        <translation>有效组的编号。与 EGID 相同。</translation>
    </message>
    <message id="GROUP">
        <source></source>
        <translation>组 (GROUP)</translation>
    </message>
    <message id="GROUP_tip">
        <source></source>
        <translation>有效组的名称。与 EGROUP 相同。</translation>
    </message>
    <message id="IGNORED">
        <source></source>
        <translation>忽略的信号 (IGNORED)</translation>
    </message>
    <message id="IGNORED_tip">
        <source></source>
        <translation>进程忽略的信号，为十六进制掩码。</translation>
    </message>
    <message id="IPCNS">
        <source></source>
        <translation>IPC 命名空间 (IPCNS)</translation>
    </message>
    <message id="IPCNS_tip">
        <source></source>
        <translation>进程所在进程间通信命名空间的 inode 编号。编号相同的进程共享同一命名空间。</translation>
    </message>
    <message id="LABEL">
        <source></source>
        <translation>安全上下文 (LABEL)</translation>
    </message>
    <message id="LABEL_tip">
        <source></source>
        <translation>内核的访问控制赋予进程的标签；没有时为短横线。与 CONTEXT 相同。</translation>
    </message>
    <message id="LASTCPU">
        <source></source>
        <translation>上次的 CPU (LASTCPU)</translation>
    </message>
    <message id="LASTCPU_tip">
        <source></source>
        <translation>进程上次运行所在处理器的编号。与 PSR 相同。</translation>
    </message>
    <message id="LIM">
        <source></source>
        <translation>内存限制 (LIM)</translation>
    </message>
    <message id="LIM_tip">
        <source></source>
        <translation>常驻大小的限制，以 KiB 为单位；xx 表示没有限制。</translation>
    </message>
    <message id="LSTART">
        <source></source>
        <translation>启动日期 (LSTART)</translation>
    </message>
    <message id="LSTART_tip">
        <source></source>
        <translation>进程启动的日期和时间。</translation>
    </message>
    <message id="LUID">
        <source></source>
        <translation>登录用户 ID (LUID)</translation>
    </message>
    <message id="LUID_tip">
        <source></source>
        <translation>登录用户的编号，之后权限变化时保持不变；没有登录时为短横线。</translation>
    </message>
    <message id="LWP">
        <source></source>
        <translation>线程 ID (LWP)</translation>
    </message>
    <message id="LWP_tip">
        <source></source>
        <translation>进程主线程的编号，等于进程 ID。</translation>
    </message>
    <message id="LXC">
        <source></source>
        <translation>LXC 容器 (LXC)</translation>
    </message>
    <message id="LXC_tip">
        <source></source>
        <translation>进程运行所在的 LXC 容器的名称；不在容器中时为短横线。</translation>
    </message>
    <message id="M_SIZE">
        <source></source>
        <translation>虚拟大小，字节 (M_SIZE)</translation>
    </message>
    <message id="M_SIZE_tip">
        <source></source>
        <translation>进程映射的全部内存的大小，以字节为单位。</translation>
    </message>
    <message id="MACHINE">
        <source></source>
        <translation>虚拟机 (MACHINE)</translation>
    </message>
    <message id="MACHINE_tip">
        <source></source>
        <translation>进程所属的虚拟机或容器的名称。取自 systemd；没有时为短横线。</translation>
    </message>
    <message id="MAJFL">
        <source></source>
        <translation>主缺页 (MAJFL)</translation>
    </message>
    <message id="MAJFL_tip">
        <source></source>
        <translation>必须等待从磁盘读取的缺页次数。与 MAJFLT 相同。</translation>
    </message>
    <message id="MAJFLT">
        <source></source>
        <translation>主缺页 (MAJFLT)</translation>
    </message>
    <message id="MAJFLT_tip">
        <source></source>
        <translation>进程启动以来必须等待从磁盘读取的缺页次数。</translation>
    </message>
    <message id="MINFL">
        <source></source>
        <translation>次缺页 (MINFL)</translation>
    </message>
    <message id="MINFL_tip">
        <source></source>
        <translation>不需要从磁盘读取的缺页次数。与 MINFLT 相同。</translation>
    </message>
    <message id="MINFLT">
        <source></source>
        <translation>次缺页 (MINFLT)</translation>
    </message>
    <message id="MINFLT_tip">
        <source></source>
        <translation>进程启动以来不需要从磁盘读取的缺页次数。</translation>
    </message>
    <message id="MNTNS">
        <source></source>
        <translation>挂载命名空间 (MNTNS)</translation>
    </message>
    <message id="MNTNS_tip">
        <source></source>
        <translation>进程所在挂载命名空间的 inode 编号。编号相同的进程共享同一命名空间。</translation>
    </message>
    <message id="NETNS">
        <source></source>
        <translation>网络命名空间 (NETNS)</translation>
    </message>
    <message id="NETNS_tip">
        <source></source>
        <translation>进程所在网络命名空间的 inode 编号。编号相同的进程共享同一命名空间。</translation>
    </message>
    <message id="NI">
        <source></source>
        <translation>nice 值 (NI)</translation>
    </message>
    <message id="NI_tip">
        <source></source>
        <translation>进程对其他进程的谦让程度，从 -20（最少）到 19（最多）。没有意义时（如实时进程）为短横线。</translation>
    </message>
    <message id="NLWP">
        <source></source>
        <translation>线程数 (NLWP)</translation>
    </message>
    <message id="NLWP_tip">
        <source></source>
        <translation>进程的线程数量。</translation>
    </message>
    <message id="NUMA">
        <source></source>
        <translation>NUMA 节点 (NUMA)</translation>
    </message>
    <message id="NUMA_tip">
        <source></source>
        <translation>进程上次运行所在处理器的内存节点；未知时为 -1。</translation>
    </message>
    <message id="OOM">
        <source></source>
        <translation>内存不足评分 (OOM)</translation>
    </message>
    <message id="OOM_tip">
        <source></source>
        <translation>内存耗尽时内核结束此进程的可能性；最高者最先被结束。</translation>
    </message>
    <message id="OOMADJ">
        <source></source>
        <translation>内存不足调整值 (OOMADJ)</translation>
    </message>
    <message id="OOMADJ_tip">
        <source></source>
        <translation>加到内存不足评分上的值，从 -1000（永不结束）到 1000（最先结束）。</translation>
    </message>
    <message id="OPRI">
        <source></source>
        <translation>优先级 (OPRI)</translation>
    </message>
    <message id="OPRI_tip">
        <source></source>
        <translation>按 ps 提供的一种历史标度表示的调度优先级：内核的优先级加 60，因此普通进程为 80，先运行的进程更小。</translation>
    </message>
    <message id="OWNER">
        <source></source>
        <translation>会话所有者 (OWNER)</translation>
    </message>
    <message id="OWNER_tip">
        <source></source>
        <translation>进程所属登录会话的所有者用户的编号。取自 systemd；没有时为短横线。</translation>
    </message>
    <message id="P">
        <source></source>
        <translation>当前 CPU (P)</translation>
    </message>
    <message id="P_tip">
        <source></source>
        <translation>进程正在运行的处理器的编号；未运行时为星号。</translation>
    </message>
    <message id="PAGEIN">
        <source></source>
        <translation>主缺页 (PAGEIN)</translation>
    </message>
    <message id="PAGEIN_tip">
        <source></source>
        <translation>必须等待从磁盘读取的缺页次数。与 MAJFLT 相同。</translation>
    </message>
    <message id="PENDING">
        <source></source>
        <translation>待处理的信号 (PENDING)</translation>
    </message>
    <message id="PENDING_tip">
        <source></source>
        <translation>等待递送给进程的信号，为十六进制掩码。</translation>
    </message>
    <message id="PGID">
        <source></source>
        <translation>进程组 ID (PGID)</translation>
    </message>
    <message id="PGID_tip">
        <source></source>
        <translation>进程组的编号；通常同一管道的命令共用一个。</translation>
    </message>
    <message id="PGRP">
        <source></source>
        <translation>进程组 ID (PGRP)</translation>
    </message>
    <message id="PGRP_tip">
        <source></source>
        <translation>进程组的编号。与 PGID 相同。</translation>
    </message>
    <message id="PID">
        <source></source>
        <translation>进程 ID (PID)</translation>
    </message>
    <message id="PID_tip">
        <source></source>
        <translation>进程的编号，与 ps 显示的一样。</translation>
    </message>
    <message id="PIDNS">
        <source></source>
        <translation>PID 命名空间 (PIDNS)</translation>
    </message>
    <message id="PIDNS_tip">
        <source></source>
        <translation>进程所在进程编号命名空间的 inode 编号。编号相同的进程共享同一命名空间。</translation>
    </message>
    <message id="POL">
        <source></source>
        <translation>调度类别 (POL)</translation>
    </message>
    <message id="POL_tip">
        <source></source>
        <translation>以字母表示的调度类别。与 CLS 相同。</translation>
    </message>
    <message id="PPID">
        <source></source>
        <translation>父进程 ID (PPID)</translation>
    </message>
    <message id="PPID_tip">
        <source></source>
        <translation>启动此进程的进程或接管它的进程的编号。</translation>
    </message>
    <message id="PRI">
        <source></source>
        <translation>优先级 (PRI)</translation>
    </message>
    <message id="PRI_tip">
        <source></source>
        <translation>方向相反的调度优先级：普通进程为 19，先运行的进程更大。</translation>
    </message>
    <message id="PRIORITY">
        <source></source>
        <translation>优先级 (PRIORITY)</translation>
    </message>
    <message id="PRIORITY_tip">
        <source></source>
        <translation>内核自身的调度优先级：普通进程为 20，先运行的进程更小，实时进程小于零。</translation>
    </message>
    <message id="PSR">
        <source></source>
        <translation>上次的 CPU (PSR)</translation>
    </message>
    <message id="PSR_tip">
        <source></source>
        <translation>进程上次运行所在处理器的编号。</translation>
    </message>
    <message id="PSS">
        <source></source>
        <translation>分摊大小 (PSS)</translation>
    </message>
    <message id="PSS_tip">
        <source></source>
        <translation>位于 RAM 中的内存，每个共享页由共享者分摊。查询较慢；无法读取时为叉号。</translation>
    </message>
    <message id="RBYTES">
        <source></source>
        <translation>从存储读取的字节 (RBYTES)</translation>
    </message>
    <message id="RBYTES_tip">
        <source></source>
        <translation>存储设备为此进程读取的字节数。取自 /proc/PID/io；无法读取时为叉号。</translation>
    </message>
    <message id="RCHARS">
        <source></source>
        <translation>已读字节 (RCHARS)</translation>
    </message>
    <message id="RCHARS_tip">
        <source></source>
        <translation>进程在读取调用中请求的字节数，无论来自磁盘、缓存还是终端。取自 /proc/PID/io；无法读取时为叉号。</translation>
    </message>
    <message id="RGID">
        <source></source>
        <translation>实际组 ID (RGID)</translation>
    </message>
    <message id="RGID_tip">
        <source></source>
        <translation>进程所属的组的编号，无论它目前拥有何种权限。</translation>
    </message>
    <message id="RGROUP">
        <source></source>
        <translation>实际组 (RGROUP)</translation>
    </message>
    <message id="RGROUP_tip">
        <source></source>
        <translation>进程所属的组的名称，无论它目前拥有何种权限。</translation>
    </message>
    <message id="ROPS">
        <source></source>
        <translation>读取调用 (ROPS)</translation>
    </message>
    <message id="ROPS_tip">
        <source></source>
        <translation>进程进行的读取系统调用的次数。取自 /proc/PID/io；无法读取时为叉号。</translation>
    </message>
    <message id="RSS">
        <source></source>
        <translation>常驻大小 (RSS)</translation>
    </message>
    <message id="RSS_tip">
        <source></source>
        <translation>进程的内存中位于 RAM 的部分，包括共享页。</translation>
    </message>
    <message id="RSZ">
        <source></source>
        <translation>常驻大小 (RSZ)</translation>
    </message>
    <message id="RSZ_tip">
        <source></source>
        <translation>进程的内存中位于 RAM 的部分，包括共享页。</translation>
    </message>
    <message id="RTPRIO">
        <source></source>
        <translation>实时优先级 (RTPRIO)</translation>
    </message>
    <message id="RTPRIO_tip">
        <source></source>
        <translation>实时进程之间的优先级，从 1 到 99，数值越大越先运行；其他所有进程为短横线。</translation>
    </message>
    <message id="RUID">
        <source></source>
        <translation>实际用户 ID (RUID)</translation>
    </message>
    <message id="RUID_tip">
        <source></source>
        <translation>启动进程的用户的编号，无论它目前拥有何种权限。</translation>
    </message>
    <message id="RUSER">
        <source></source>
        <translation>实际用户 (RUSER)</translation>
    </message>
    <message id="RUSER_tip">
        <source></source>
        <translation>启动进程的用户的名称，无论它目前拥有何种权限。</translation>
    </message>
    <message id="S">
        <source></source>
        <translation>状态 (S)</translation>
    </message>
    <message id="S_tip">
        <source></source>
        <translation>进程的状态：R 运行或就绪，S 睡眠，D 等待设备，I 空闲的内核线程，T 停止，t 被调试器停止，Z 已结束但未回收。</translation>
    </message>
    <message id="SCH">
        <source></source>
        <translation>调度策略 (SCH)</translation>
    </message>
    <message id="SCH_tip">
        <source></source>
        <translation>调度策略的编号：0 普通，1 FIFO，2 轮转，3 批处理，5 空闲，6 截止时间。</translation>
    </message>
    <message id="SEAT">
        <source></source>
        <translation>席位 (SEAT)</translation>
    </message>
    <message id="SEAT_tip">
        <source></source>
        <translation>进程所属登录会话的席位（一套屏幕、键盘和鼠标）。取自 systemd；没有时为短横线。</translation>
    </message>
    <message id="SESSION">
        <source></source>
        <translation>登录会话 (SESSION)</translation>
    </message>
    <message id="SESSION_tip">
        <source></source>
        <translation>进程所属登录会话的标识符。取自 systemd；没有时为短横线。</translation>
    </message>
    <message id="SGID">
        <source></source>
        <translation>保存的组 ID (SGID)</translation>
    </message>
    <message id="SGID_tip">
        <source></source>
        <translation>进程可以重新取得其权限的组的编号。</translation>
    </message>
    <message id="SGROUP">
        <source></source>
        <translation>保存的组 (SGROUP)</translation>
    </message>
    <message id="SGROUP_tip">
        <source></source>
        <translation>进程可以重新取得其权限的组的名称。</translation>
    </message>
    <message id="SID">
        <source></source>
        <translation>会话 ID (SID)</translation>
    </message>
    <message id="SID_tip">
        <source></source>
        <translation>会话的编号，即会话首进程的进程 ID。</translation>
    </message>
    <message id="SIGNAL">
        <source></source>
        <translation>待处理的信号 (SIGNAL)</translation>
    </message>
    <message id="SIGNAL_tip">
        <source></source>
        <translation>等待递送给进程的信号，为十六进制掩码。与 PENDING 相同。</translation>
    </message>
    <message id="SIZE">
        <source></source>
        <translation>交换大小 (SIZE)</translation>
    </message>
    <message id="SIZE_tip">
        <source></source>
        <translation>粗略估计的值：如果进程的全部可写内存都被换出，所需的交换空间。</translation>
    </message>
    <message id="SLICE">
        <source></source>
        <translation>切片 (SLICE)</translation>
    </message>
    <message id="SLICE_tip">
        <source></source>
        <translation>进程所属的切片，即控制组树的一个分支。取自 systemd；没有时为短横线。</translation>
    </message>
    <message id="SPID">
        <source></source>
        <translation>线程 ID (SPID)</translation>
    </message>
    <message id="SPID_tip">
        <source></source>
        <translation>进程主线程的编号，等于进程 ID。与 LWP 相同。</translation>
    </message>
    <message id="STACKP">
        <source></source>
        <translation>栈地址 (STACKP)</translation>
    </message>
    <message id="STACKP_tip">
        <source></source>
        <translation>栈底的地址，以十六进制表示；无法读取时为零。</translation>
    </message>
    <message id="START">
        <source></source>
        <translation>启动时间 (START)</translation>
    </message>
    <message id="START_tip">
        <source></source>
        <translation>进程启动的时间：24 小时以内为时刻，否则为日期。</translation>
    </message>
    <message id="STARTED">
        <source></source>
        <translation>启动时间 (STARTED)</translation>
    </message>
    <message id="STARTED_tip">
        <source></source>
        <translation>进程启动的时间：24 小时以内为带秒的时刻，否则为日期。</translation>
    </message>
    <message id="STAT">
        <source></source>
        <translation>状态 (STAT)</translation>
    </message>
    <message id="STAT_tip">
        <source></source>
        <translation>状态字母及其后的附加信息：&lt; 高优先级，N 低优先级，L 有锁定在内存中的页，s 会话首进程，l 多个线程，+ 位于终端前台。</translation>
    </message>
    <message id="STIME">
        <source></source>
        <translation>启动时间 (STIME)</translation>
    </message>
    <message id="STIME_tip">
        <source></source>
        <translation>进程启动的时间：当天为时刻，更早的日子为日期，更早的年份为年。</translation>
    </message>
    <message id="SUID">
        <source></source>
        <translation>保存的用户 ID (SUID)</translation>
    </message>
    <message id="SUID_tip">
        <source></source>
        <translation>进程可以重新取得其权限的用户的编号。</translation>
    </message>
    <message id="SUPGID">
        <source></source>
        <translation>附加组 ID (SUPGID)</translation>
    </message>
    <message id="SUPGID_tip">
        <source></source>
        <translation>进程拥有其权限的其他组的编号；没有时为短横线。</translation>
    </message>
    <message id="SUPGRP">
        <source></source>
        <translation>附加组 (SUPGRP)</translation>
    </message>
    <message id="SUPGRP_tip">
        <source></source>
        <translation>进程拥有其权限的其他组的名称；没有时为短横线。</translation>
    </message>
    <message id="SUSER">
        <source></source>
        <translation>保存的用户 (SUSER)</translation>
    </message>
    <message id="SUSER_tip">
        <source></source>
        <translation>进程可以重新取得其权限的用户的名称。</translation>
    </message>
    <message id="SVGID">
        <source></source>
        <translation>保存的组 ID (SVGID)</translation>
    </message>
    <message id="SVGID_tip">
        <source></source>
        <translation>进程可以重新取得其权限的组的编号。与 SGID 相同。</translation>
    </message>
    <message id="SVGROUP">
        <source></source>
        <translation>保存的组 (SVGROUP)</translation>
    </message>
    <message id="SVGROUP_tip">
        <source></source>
        <translation>进程可以重新取得其权限的组的名称。与 SGROUP 相同。</translation>
    </message>
    <message id="SVUID">
        <source></source>
        <translation>保存的用户 ID (SVUID)</translation>
    </message>
    <message id="SVUID_tip">
        <source></source>
        <translation>进程可以重新取得其权限的用户的编号。与 SUID 相同。</translation>
    </message>
    <message id="SVUSER">
        <source></source>
        <translation>保存的用户 (SVUSER)</translation>
    </message>
    <message id="SVUSER_tip">
        <source></source>
        <translation>进程可以重新取得其权限的用户的名称。与 SUSER 相同。</translation>
    </message>
    <message id="SZ">
        <source></source>
        <translation>核心大小 (SZ)</translation>
    </message>
    <message id="SZ_tip">
        <source></source>
        <translation>进程映射的全部内存的大小，由 ps 以计算机的页为单位计算。除不足一页的部分外与 VSZ 相同。</translation>
    </message>
    <message id="TGID">
        <source></source>
        <translation>线程组 ID (TGID)</translation>
    </message>
    <message id="TGID_tip">
        <source></source>
        <translation>进程所有线程共用的编号，即进程 ID。</translation>
    </message>
    <message id="THCNT">
        <source></source>
        <translation>线程数 (THCNT)</translation>
    </message>
    <message id="THCNT_tip">
        <source></source>
        <translation>进程的线程数量。与 NLWP 相同。</translation>
    </message>
    <message id="TID">
        <source></source>
        <translation>线程 ID (TID)</translation>
    </message>
    <message id="TID_tip">
        <source></source>
        <translation>进程主线程的编号，等于进程 ID。与 LWP 相同。</translation>
    </message>
    <message id="TIME">
        <source></source>
        <translation>CPU 时间 (TIME)</translation>
    </message>
    <message id="TIME_tip">
        <source></source>
        <translation>进程启动以来使用的 CPU 时间，用户和系统合计，以天、时、分、秒表示。</translation>
    </message>
    <message id="TIMENS">
        <source></source>
        <translation>时间命名空间 (TIMENS)</translation>
    </message>
    <message id="TIMENS_tip">
        <source></source>
        <translation>进程所在时钟命名空间的 inode 编号。编号相同的进程共享同一命名空间。</translation>
    </message>
    <message id="TPGID">
        <source></source>
        <translation>前台进程组 ID (TPGID)</translation>
    </message>
    <message id="TPGID_tip">
        <source></source>
        <translation>进程所属终端的前台进程组；没有终端时为 -1。</translation>
    </message>
    <message id="TRS">
        <source></source>
        <translation>代码大小 (TRS)</translation>
    </message>
    <message id="TRS_tip">
        <source></source>
        <translation>可执行代码的大小。虽名为此，但不一定全部位于 RAM 中。</translation>
    </message>
    <message id="TRSS">
        <source></source>
        <translation>代码大小 (TRSS)</translation>
    </message>
    <message id="TRSS_tip">
        <source></source>
        <translation>可执行代码的大小。与 TRS 相同。</translation>
    </message>
    <message id="TSIG">
        <source></source>
        <translation>线程待处理的信号 (TSIG)</translation>
    </message>
    <message id="TSIG_tip">
        <source></source>
        <translation>仅等待递送给进程主线程的信号，为十六进制掩码。</translation>
    </message>
    <message id="TSIZ">
        <source></source>
        <translation>代码大小 (TSIZ)</translation>
    </message>
    <message id="TSIZ_tip">
        <source></source>
        <translation>可执行代码的大小。</translation>
    </message>
    <message id="TT">
        <source></source>
        <translation>终端 (TT)</translation>
    </message>
    <message id="TT_tip">
        <source></source>
        <translation>进程所属的终端；没有时为问号。</translation>
    </message>
    <message id="TTY">
        <source></source>
        <translation>终端 (TTY)</translation>
    </message>
    <message id="TTY_tip">
        <source></source>
        <translation>进程所属的终端；没有时为问号。与 TT 相同。</translation>
    </message>
    <message id="TTY4">
        <source></source>
        <translation>终端，缩短 (TTY4)</translation>
    </message>
    <message id="TTY4_tip">
        <source></source>
        <translation>进程所属的终端，以其名称的末尾字母表示；没有时为问号。</translation>
    </message>
    <message id="UCMD">
        <source></source>
        <translation>命令名 (UCMD)</translation>
    </message>
    <message id="UCMD_tip">
        <source></source>
        <translation>不带参数的命令名称。与 COMM 相同。</translation>
    </message>
    <message id="UID">
        <source></source>
        <translation>用户 ID (UID)</translation>
    </message>
    <message id="UID_tip">
        <source></source>
        <translation>进程拥有其权限的用户的编号。</translation>
    </message>
    <message id="UNIT">
        <source></source>
        <translation>系统单元 (UNIT)</translation>
    </message>
    <message id="UNIT_tip">
        <source></source>
        <translation>进程所属的单元（服务、作用域）。取自 systemd；没有时为短横线。</translation>
    </message>
    <message id="USER">
        <source></source>
        <translation>用户 (USER)</translation>
    </message>
    <message id="USER_tip">
        <source></source>
        <translation>进程拥有其权限的用户的名称。与 EUSER 相同。</translation>
    </message>
    <message id="USERNS">
        <source></source>
        <translation>用户命名空间 (USERNS)</translation>
    </message>
    <message id="USERNS_tip">
        <source></source>
        <translation>进程所在用户命名空间的 inode 编号。编号相同的进程共享同一命名空间。</translation>
    </message>
    <message id="USS">
        <source></source>
        <translation>独占大小 (USS)</translation>
    </message>
    <message id="USS_tip">
        <source></source>
        <translation>位于 RAM 中且不与其他进程共享的内存：进程结束后会释放。查询较慢；无法读取时为叉号。</translation>
    </message>
    <message id="UTSNS">
        <source></source>
        <translation>主机名命名空间 (UTSNS)</translation>
    </message>
    <message id="UTSNS_tip">
        <source></source>
        <translation>进程所在主机名命名空间的 inode 编号。编号相同的进程共享同一命名空间。</translation>
    </message>
    <message id="UUNIT">
        <source></source>
        <translation>用户单元 (UUNIT)</translation>
    </message>
    <message id="UUNIT_tip">
        <source></source>
        <translation>进程所属的用户自己的服务管理器的单元。取自 systemd；没有时为短横线。</translation>
    </message>
    <message id="VSZ">
        <source></source>
        <translation>虚拟大小 (VSZ)</translation>
    </message>
    <message id="VSZ_tip">
        <source></source>
        <translation>进程映射的全部内存的大小，无论是否正在使用。</translation>
    </message>
    <message id="WBYTES">
        <source></source>
        <translation>写入存储的字节 (WBYTES)</translation>
    </message>
    <message id="WBYTES_tip">
        <source></source>
        <translation>进程使之发送到存储设备的字节数。取自 /proc/PID/io；无法读取时为叉号。</translation>
    </message>
    <message id="WCBYTES">
        <source></source>
        <translation>已取消的写入字节 (WCBYTES)</translation>
    </message>
    <message id="WCBYTES_tip">
        <source></source>
        <translation>进程写入文件，但在到达存储设备之前文件已被删除或截短的字节数。取自 /proc/PID/io；无法读取时为叉号。</translation>
    </message>
    <message id="WCHAN">
        <source></source>
        <translation>等待位置 (WCHAN)</translation>
    </message>
    <message id="WCHAN_tip">
        <source></source>
        <translation>进程睡眠所在的内核函数；运行时或无法读取时为短横线。</translation>
    </message>
    <message id="WCHARS">
        <source></source>
        <translation>已写字节 (WCHARS)</translation>
    </message>
    <message id="WCHARS_tip">
        <source></source>
        <translation>进程传递给写入调用的字节数，无论去往磁盘、缓存还是终端。取自 /proc/PID/io；无法读取时为叉号。</translation>
    </message>
    <message id="WOPS">
        <source></source>
        <translation>写入调用 (WOPS)</translation>
    </message>
    <message id="WOPS_tip">
        <source></source>
        <translation>进程进行的写入系统调用的次数。取自 /proc/PID/io；无法读取时为叉号。</translation>
    </message>
    <message id="ZONE">
        <source></source>
        <translation>安全上下文 (ZONE)</translation>
    </message>
    <message id="ZONE_tip">
        <source></source>
        <translation>内核的访问控制赋予进程的标签；没有时为短横线。与 CONTEXT 相同。</translation>
    </message>
    <message id="menu_application">
        <source></source>
        <translation>&amp;Lurkwell</translation>
    </message>
    <message id="menu_file">
        <source></source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message id="menu_edit">
        <source></source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message id="menu_view">
        <source></source>
        <translation>查看(&amp;V)</translation>
    </message>
    <message id="menu_columns">
        <source></source>
        <translation>列(&amp;C)</translation>
    </message>
    <message id="menu_process">
        <source></source>
        <translation>进程(&amp;P)</translation>
    </message>
    <message id="menu_window">
        <source></source>
        <translation>窗口(&amp;W)</translation>
    </message>
    <message id="menu_help">
        <source></source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message id="menu_application_about">
        <source></source>
        <translation>关于 Lurkwell(&amp;A)</translation>
    </message>
    <message id="menu_application_preferences">
        <source></source>
        <translation>首选项(&amp;P)…</translation>
    </message>
    <message id="menu_application_quit">
        <source></source>
        <translation>退出 Lurkwell(&amp;Q)</translation>
    </message>
    <message id="menu_file_new_cpu_history">
        <source></source>
        <translation>新建 CPU 历史窗口(&amp;H)</translation>
    </message>
    <message id="menu_file_new_logging">
        <source></source>
        <translation>新建日志窗口(&amp;L)</translation>
    </message>
    <message id="menu_file_details">
        <source></source>
        <translation>显示详情(&amp;D)</translation>
    </message>
    <message id="menu_file_record">
        <source></source>
        <translation>录制(&amp;R)…</translation>
    </message>
    <message id="menu_file_open_recording">
        <source></source>
        <translation>打开录制文件(&amp;O)…</translation>
    </message>
    <message id="menu_file_close_window">
        <source></source>
        <translation>关闭窗口(&amp;C)</translation>
    </message>
    <message id="menu_edit_copy">
        <source></source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message id="menu_edit_select_all">
        <source></source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message id="menu_edit_select_children">
        <source></source>
        <translation>选择子进程(&amp;D)</translation>
    </message>
    <message id="menu_edit_filter">
        <source></source>
        <translation>过滤(&amp;F)…</translation>
    </message>
    <message id="menu_view_update_now">
        <source></source>
        <translation>立即更新(&amp;U)</translation>
    </message>
    <message id="menu_view_pause">
        <source></source>
        <translation>暂停(&amp;P)</translation>
    </message>
    <message id="menu_view_follow">
        <source></source>
        <translation>保持选中行位置(&amp;K)</translation>
    </message>
    <message id="menu_view_sort_by">
        <source></source>
        <translation>排序依据(&amp;S)</translation>
    </message>
    <message id="menu_view_column_left">
        <source></source>
        <translation>左移排序列(&amp;L)</translation>
    </message>
    <message id="menu_view_column_right">
        <source></source>
        <translation>右移排序列(&amp;R)</translation>
    </message>
    <message id="menu_view_column_wider">
        <source></source>
        <translation>加宽排序列(&amp;W)</translation>
    </message>
    <message id="menu_view_column_narrower">
        <source></source>
        <translation>缩窄排序列(&amp;N)</translation>
    </message>
    <message id="menu_view_column_fit">
        <source></source>
        <translation>使排序列适应内容(&amp;M)</translation>
    </message>
    <message id="menu_view_shape_list">
        <source></source>
        <translation>列表(&amp;I)</translation>
    </message>
    <message id="menu_view_shape_tree">
        <source></source>
        <translation>树形(&amp;E)</translation>
    </message>
    <message id="menu_view_shape_applications">
        <source></source>
        <translation>按应用程序(&amp;A)</translation>
    </message>
    <message id="menu_view_unfold_all">
        <source></source>
        <translation>全部展开(&amp;D)</translation>
    </message>
    <message id="menu_view_fold_all">
        <source></source>
        <translation>全部折叠(&amp;F)</translation>
    </message>
    <message id="menu_view_scope">
        <source></source>
        <translation>显示范围(&amp;H)</translation>
    </message>
    <message id="menu_scope_all">
        <source></source>
        <translation>所有进程(&amp;A)</translation>
    </message>
    <message id="menu_scope_mine">
        <source></source>
        <translation>我的进程(&amp;M)</translation>
    </message>
    <message id="menu_scope_others">
        <source></source>
        <translation>其他用户的进程(&amp;O)</translation>
    </message>
    <message id="menu_scope_applications">
        <source></source>
        <translation>应用程序(&amp;P)</translation>
    </message>
    <message id="menu_scope_without_kernel">
        <source></source>
        <translation>除内核线程外(&amp;W)</translation>
    </message>
    <message id="menu_scope_busy">
        <source></source>
        <translation>繁忙的进程(&amp;B)</translation>
    </message>
    <message id="menu_columns_set">
        <source></source>
        <translation>列方案(&amp;S)</translation>
    </message>
    <message id="menu_set_standard">
        <source></source>
        <translation>标准(&amp;S)</translation>
    </message>
    <message id="menu_set_cpu">
        <source></source>
        <translation>CPU(&amp;C)</translation>
    </message>
    <message id="menu_set_memory">
        <source></source>
        <translation>内存(&amp;M)</translation>
    </message>
    <message id="menu_set_disk_network">
        <source></source>
        <translation>磁盘和网络(&amp;D)</translation>
    </message>
    <message id="menu_set_commands">
        <source></source>
        <translation>命令(&amp;O)</translation>
    </message>
    <message id="menu_set_containers">
        <source></source>
        <translation>容器(&amp;T)</translation>
    </message>
    <message id="menu_set_security">
        <source></source>
        <translation>安全(&amp;R)</translation>
    </message>
    <message id="menu_set_save_as">
        <source></source>
        <translation>另存为(&amp;V)…</translation>
    </message>
    <message id="menu_set_rename">
        <source></source>
        <translation>重命名(&amp;E)…</translation>
    </message>
    <message id="menu_set_delete">
        <source></source>
        <translation>删除(&amp;L)…</translation>
    </message>
    <message id="menu_set_restore">
        <source></source>
        <translation>恢复原样(&amp;A)…</translation>
    </message>
    <message id="menu_view_show_toolbar">
        <source></source>
        <translation>显示工具栏(&amp;T)</translation>
    </message>
    <message id="menu_view_customise_toolbar">
        <source></source>
        <translation>自定义工具栏(&amp;C)…</translation>
    </message>
    <message id="menu_columns_icon">
        <source></source>
        <translation>图标(&amp;I)</translation>
    </message>
    <message id="menu_columns_indicator">
        <source></source>
        <translation>标记(&amp;D)</translation>
    </message>
    <message id="menu_columns_name">
        <source></source>
        <translation>名称(&amp;N)</translation>
    </message>
    <message id="menu_columns_cpu_usage">
        <source></source>
        <translation>CPU 使用率(&amp;C)</translation>
    </message>
    <message id="menu_columns_memory">
        <source></source>
        <translation>内存(&amp;M)</translation>
    </message>
    <message id="menu_columns_built_in">
        <source></source>
        <translation>进程属性(&amp;R)</translation>
    </message>
    <message id="menu_columns_ps">
        <source></source>
        <translation>ps 的列(&amp;P)</translation>
    </message>
    <message id="column_group_identity">
        <source></source>
        <translation>标识</translation>
    </message>
    <message id="column_group_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="column_group_memory">
        <source></source>
        <translation>内存</translation>
    </message>
    <message id="column_group_network">
        <source></source>
        <translation>网络</translation>
    </message>
    <message id="column_group_gpu">
        <source></source>
        <translation>GPU</translation>
    </message>
    <message id="column_group_security">
        <source></source>
        <translation>安全</translation>
    </message>
    <message id="column_group_disk">
        <source></source>
        <translation>磁盘</translation>
    </message>
    <message id="column_group_users">
        <source></source>
        <translation>用户和组</translation>
    </message>
    <message id="column_group_terminal">
        <source></source>
        <translation>终端和会话</translation>
    </message>
    <message id="column_group_signals">
        <source></source>
        <translation>信号</translation>
    </message>
    <message id="column_group_belonging">
        <source></source>
        <translation>归属</translation>
    </message>
    <message id="column_group_other">
        <source></source>
        <translation>其他</translation>
    </message>
    <message id="column_group_desktop">
        <source></source>
        <translation>桌面应用程序</translation>
    </message>
    <message id="column_group_repeated">
        <source></source>
        <translation>内容相同的别名</translation>
    </message>
    <message id="column_group_classic">
        <source></source>
        <translation>Classic 环境</translation>
    </message>
    <message id="column_group_not_counted">
        <source></source>
        <translation>本系统不统计的项</translation>
    </message>
    <message id="column_filter">
        <source></source>
        <translation>查找列</translation>
    </message>
    <message id="column_filter_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>另有 %n 列：请输入更多字母</numerusform>
        </translation>
    </message>
    <message id="column_filter_nothing">
        <source></source>
        <translation>没有名称或说明包含此内容的列</translation>
    </message>
    <message id="column_hide">
        <source></source>
        <translation>隐藏“%1”(&amp;H)</translation>
    </message>
    <message id="column_of_ps_tip">
        <source></source>
        <translation>本系统 ps 的一列，以关键字 %1 输出。</translation>
    </message>
    <message id="column_keywords_tip">
        <source></source>
        <translation>ps 的关键字：%1</translation>
    </message>
    <message id="menu_process_quit_or_kill">
        <source></source>
        <translation>退出或杀死(&amp;Q)…</translation>
    </message>
    <message id="menu_process_high_priority">
        <source></source>
        <translation>高优先级(&amp;H)</translation>
    </message>
    <message id="menu_process_normal_priority">
        <source></source>
        <translation>普通优先级(&amp;N)</translation>
    </message>
    <message id="menu_process_low_priority">
        <source></source>
        <translation>低优先级(&amp;L)</translation>
    </message>
    <message id="menu_process_halt">
        <source></source>
        <translation>停止(&amp;A)…</translation>
    </message>
    <message id="menu_process_continue">
        <source></source>
        <translation>继续(&amp;C)</translation>
    </message>
    <message id="menu_process_hide">
        <source></source>
        <translation>隐藏(&amp;D)</translation>
    </message>
    <message id="menu_process_bring_to_front">
        <source></source>
        <translation>移到最前(&amp;B)</translation>
    </message>
    <message id="menu_process_reveal">
        <source></source>
        <translation>在文件管理器中显示(&amp;S)</translation>
    </message>
    <message id="menu_process_by_id">
        <source></source>
        <translation>按 ID 查找进程(&amp;I)…</translation>
    </message>
    <message id="menu_window_show_main">
        <source></source>
        <translation>进程(&amp;P)</translation>
    </message>
    <message id="menu_window_remembered">
        <source></source>
        <translation>记住的窗口(&amp;R)…</translation>
    </message>
    <message id="menu_window_close_all">
        <source></source>
        <translation>关闭所有历史、日志和详情(&amp;C)</translation>
    </message>
    <message id="menu_window_show_animated_view">
        <source></source>
        <translation>动画视图(&amp;A)</translation>
    </message>
    <message id="menu_view_overlay">
        <source></source>
        <translation>动画视图覆盖屏幕(&amp;O)</translation>
    </message>
    <message id="quintessential_window_title">
        <source></source>
        <translation>动画视图</translation>
    </message>
    <message id="quintessential_spoken">
        <source></source>
        <translation>以图标显示的进程（越忙越大）：%1。具体数值见进程表。</translation>
    </message>
    <message id="quintessential_menu_toggle">
        <source></source>
        <translation>覆盖整个屏幕(&amp;O)</translation>
    </message>
    <message id="quintessential_menu_processes">
        <source></source>
        <translation>显示进程(&amp;P)</translation>
    </message>
    <message id="quintessential_menu_close">
        <source></source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message id="quintessential_cannot_draw">
        <source></source>
        <translation>无法绘制动画视图：此显示器没有 OpenGL 3.3 或 OpenGL ES 3.0，或者它已停止工作。Lurkwell 的其他功能照常运行。</translation>
    </message>
    <message id="overlay_needs_compositor">
        <source></source>
        <translation>动画视图在这里无法半透明显示。</translation>
    </message>
    <message id="overlay_needs_compositor_text">
        <source></source>
        <translation>此桌面无法混合窗口（没有运行合成器）。视图将改为填满整个屏幕；按 Escape 或 %1 退出。</translation>
    </message>
    <message id="overlay_needs_layer">
        <source></source>
        <translation>动画视图在这里无法覆盖在其他窗口之上。</translation>
    </message>
    <message id="overlay_needs_layer_text">
        <source></source>
        <translation>此桌面不允许任何程序让窗口保持在其他程序的窗口之上。视图将改为填满整个屏幕；按 Escape 或 %1 退出。</translation>
    </message>
    <message id="menu_help_help">
        <source></source>
        <translation>Lurkwell 帮助(&amp;H)</translation>
    </message>
    <message id="main_window_title">
        <source></source>
        <translation>进程</translation>
    </message>
    <message id="main_window_title_paused">
        <source></source>
        <translation>进程（已暂停）</translation>
    </message>
    <message id="main_window_filter_placeholder">
        <source></source>
        <translation>过滤进程</translation>
    </message>
    <message id="main_window_filter_tip">
        <source></source>
        <translation>只显示部分进程，例如：&lt;br&gt;&lt;b&gt;ssh&lt;/b&gt; – ID 或显示的文本中含有此内容&lt;br&gt;&lt;b&gt;name:post&lt;/b&gt;、&lt;b&gt;user:root,mail&lt;/b&gt;、&lt;b&gt;name:/^k.*d$/&lt;/b&gt; – 某个属性中含有此内容&lt;br&gt;&lt;b&gt;mem&amp;gt;500M&lt;/b&gt;、&lt;b&gt;nice&amp;lt;0&lt;/b&gt;、&lt;b&gt;time&amp;gt;=1h&lt;/b&gt; – 大于或小于某值&lt;br&gt;&lt;b&gt;port:443&lt;/b&gt;、&lt;b&gt;file:/var/log&lt;/b&gt; – 打开了某个套接字或文件&lt;br&gt;&lt;b&gt;-sleep&lt;/b&gt; – 不含；&lt;b&gt;a b&lt;/b&gt; – 两者都有；&lt;b&gt;a | b&lt;/b&gt; – 其中之一</translation>
    </message>
    <message id="main_window_filter_hides_all">
        <source></source>
        <translation>没有符合过滤条件的进程。按 Esc 重新显示全部。</translation>
    </message>
    <message id="field_clear">
        <source></source>
        <translation>清空输入框</translation>
    </message>
    <message id="filter_last">
        <source></source>
        <translation>最近使用的过滤器</translation>
    </message>
    <message id="filter_none_yet">
        <source></source>
        <translation>尚未使用过过滤器</translation>
    </message>
    <message id="setting_title_ALERT_RULES">
        <source></source>
        <translation>告警：规则</translation>
    </message>
    <message id="setting_ALERT_RULES">
        <source></source>
        <translation>告警的规则，以及各自的命令和是否启用。在告警窗口中创建。</translation>
    </message>
    <message id="setting_title_ALERT_NOTIFICATIONS">
        <source></source>
        <translation>告警：通知</translation>
    </message>
    <message id="setting_ALERT_NOTIFICATIONS">
        <source></source>
        <translation>告警开始时在桌面上显示通知。无论如何，告警窗口和日志中都会有记录。</translation>
    </message>
    <message id="setting_title_ALERTS_WINDOW_FRAME">
        <source></source>
        <translation>告警：窗口的位置和大小</translation>
    </message>
    <message id="setting_ALERTS_WINDOW_FRAME">
        <source></source>
        <translation>告警窗口的位置和大小。</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_ALERTS_WINDOW">
        <source></source>
        <translation>告警：窗口曾打开</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_ALERTS_WINDOW">
        <source></source>
        <translation>启动时打开告警窗口。程序在此记录它是否打开。</translation>
    </message>
    <message id="menu_process_alert">
        <source></source>
        <translation>设置告警(&amp;T)…</translation>
    </message>
    <message id="menu_window_show_alerts">
        <source></source>
        <translation>告警(&amp;L)</translation>
    </message>
    <message id="help_menu_window_show_alerts">
        <source></source>
        <translation>希望获知哪些情况的规则、规则的当前状态以及发生过的事</translation>
    </message>
    <message id="help_menu_process_alert">
        <source></source>
        <translation>当与选中进程类似的进程出现某种情况时告警</translation>
    </message>
    <message id="alerts_title">
        <source></source>
        <translation>告警</translation>
    </message>
    <message id="alerts_rules">
        <source></source>
        <translation>规则</translation>
    </message>
    <message id="alerts_occurrences">
        <source></source>
        <translation>发生记录</translation>
    </message>
    <message id="alerts_none">
        <source></source>
        <translation>还没有规则。规则说明您希望获知的情况，例如“any cpu&gt;90% for 10m”或“unit:backup.service absent for 1h”。</translation>
    </message>
    <message id="alerts_column_rule">
        <source></source>
        <translation>规则</translation>
    </message>
    <message id="alerts_column_state">
        <source></source>
        <translation>当前</translation>
    </message>
    <message id="alerts_column_last">
        <source></source>
        <translation>上次告警</translation>
    </message>
    <message id="alerts_column_began">
        <source></source>
        <translation>开始</translation>
    </message>
    <message id="alerts_column_process">
        <source></source>
        <translation>进程</translation>
    </message>
    <message id="alerts_column_lasted">
        <source></source>
        <translation>持续</translation>
    </message>
    <message id="alerts_column_figures">
        <source></source>
        <translation>数值</translation>
    </message>
    <message id="alerts_add">
        <source></source>
        <translation>添加…</translation>
    </message>
    <message id="alerts_change">
        <source></source>
        <translation>更改…</translation>
    </message>
    <message id="alerts_remove">
        <source></source>
        <translation>删除</translation>
    </message>
    <message id="alerts_add_title">
        <source></source>
        <translation>新建规则</translation>
    </message>
    <message id="alerts_change_title">
        <source></source>
        <translation>更改规则</translation>
    </message>
    <message id="alerts_remove_question">
        <source></source>
        <translation>删除此规则吗？</translation>
    </message>
    <message id="alerts_notifies">
        <source></source>
        <translation>在桌面上通知我</translation>
    </message>
    <message id="alerts_show_process">
        <source></source>
        <translation>显示进程</translation>
    </message>
    <message id="alerts_show_window">
        <source></source>
        <translation>显示告警</translation>
    </message>
    <message id="alerts_show_log">
        <source></source>
        <translation>显示日志</translation>
    </message>
    <message id="alerts_never">
        <source></source>
        <translation>从未</translation>
    </message>
    <message id="alerts_state_off">
        <source></source>
        <translation>关闭</translation>
    </message>
    <message id="alerts_state_damaged">
        <source></source>
        <translation>无法读取存储的内容；请更改或删除此规则。</translation>
    </message>
    <message id="alerts_state_calm">
        <source></source>
        <translation>未满足</translation>
    </message>
    <message id="alerts_state_pending">
        <source></source>
        <translation>已满足 %1，共需 %2</translation>
    </message>
    <message id="alerts_state_firing">
        <source></source>
        <translation>告警</translation>
    </message>
    <message id="alerts_state_firing_for" numerus="yes">
        <source></source>
        <translation>
            <numerusform>告警：%n 个进程</numerusform>
        </translation>
    </message>
    <message id="alerts_not_allowed">
        <source></source>
        <translation>有 %1 个无法判断：不允许</translation>
    </message>
    <message id="alerts_not_counted">
        <source></source>
        <translation>有 %1 个无法判断：本机不统计</translation>
    </message>
    <message id="alerts_not_yet_known">
        <source></source>
        <translation>有 %1 个尚无法判断</translation>
    </message>
    <message id="alerts_nothing_there">
        <source></source>
        <translation>没有此类进程</translation>
    </message>
    <message id="alerts_together">
        <source></source>
        <translation>全部合计</translation>
    </message>
    <message id="alerts_seconds">
        <source></source>
        <translation>%1 秒</translation>
    </message>
    <message id="alerts_minutes">
        <source></source>
        <translation>%1 分钟</translation>
    </message>
    <message id="alerts_hours">
        <source></source>
        <translation>%1 小时</translation>
    </message>
    <message id="alerts_days">
        <source></source>
        <translation>%1 天</translation>
    </message>
    <message id="alerts_lasts">
        <source></source>
        <translation>已持续 %1</translation>
    </message>
    <message id="alerts_lasted">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="alerts_lasted_to_process_end">
        <source></source>
        <translation>%1；进程已结束</translation>
    </message>
    <message id="alerts_lasted_to_rule_change">
        <source></source>
        <translation>%1；规则已更改</translation>
    </message>
    <message id="alerts_no_condition">
        <source></source>
        <translation>规则需要一个条件，例如“cpu&gt;90%”。</translation>
    </message>
    <message id="alerts_no_span">
        <source></source>
        <translation>“%1”需要一个时间，例如 30s、5m 或 1h30m。</translation>
    </message>
    <message id="alerts_too_long">
        <source></source>
        <translation>“%1”超过了规则最多能等待的 30 天。</translation>
    </message>
    <message id="alerts_twice">
        <source></source>
        <translation>“%1”出现了两次。</translation>
    </message>
    <message id="alerts_does_not_fit">
        <source></source>
        <translation>“%1”在此类规则中没有意义。</translation>
    </message>
    <message id="alerts_unknown_word">
        <source></source>
        <translation>“%1”位于时间之后；条件应位于“for”和“until”之前。</translation>
    </message>
    <message id="alerts_no_total">
        <source></source>
        <translation>“total”之后应为可以相加的数值的比较，例如“mem&gt;8G”。</translation>
    </message>
    <message id="alerts_other_total">
        <source></source>
        <translation>“until”之后应与“total”之后比较同一个数值。</translation>
    </message>
    <message id="alerts_text_too_large">
        <source></source>
        <translation>规则最多 %1 个字符。</translation>
    </message>
    <message id="alerts_rule_label">
        <source></source>
        <translation>规则(&amp;R)：</translation>
    </message>
    <message id="alerts_rule_placeholder">
        <source></source>
        <translation>name:postgres mem&gt;4G for 5m until mem&lt;3G</translation>
    </message>
    <message id="alerts_trial_label">
        <source></source>
        <translation>当前：</translation>
    </message>
    <message id="alerts_trial_wait">
        <source></source>
        <translation>正在查看…</translation>
    </message>
    <message id="alerts_trial_none">
        <source></source>
        <translation>没有进程满足条件。</translation>
    </message>
    <message id="alerts_trial_some">
        <source></source>
        <translation>满足条件的进程：%1</translation>
    </message>
    <message id="alerts_trial_total" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1，共 %n 个进程</numerusform>
        </translation>
    </message>
    <message id="alerts_trial_met">
        <source></source>
        <translation>条件已满足。</translation>
    </message>
    <message id="alerts_trial_not_met">
        <source></source>
        <translation>条件未满足。</translation>
    </message>
    <message id="alerts_command_label">
        <source></source>
        <translation>命令(&amp;C)：</translation>
    </message>
    <message id="alerts_command_placeholder">
        <source></source>
        <translation>不启动任何程序</translation>
    </message>
    <message id="alerts_command_tip">
        <source></source>
        <translation>告警开始时启动的程序及其参数。不经过 shell：各词以空格分隔，引号可将若干词合在一起。环境变量中有 LURKWELL_ALERT_RULE、_TIME、_PID、_NAME 和 _FIGURES。</translation>
    </message>
    <message id="alerts_command_no_end">
        <source></source>
        <translation>命令中的引号没有成对。</translation>
    </message>
    <message id="alerts_command_long">
        <source></source>
        <translation>命令太长。</translation>
    </message>
    <message id="alerts_command_not_started">
        <source></source>
        <translation>无法启动命令：%1</translation>
    </message>
    <message id="alerts_command_status">
        <source></source>
        <translation>命令以状态 %1 结束</translation>
    </message>
    <message id="alerts_command_too_long">
        <source></source>
        <translation>命令运行超过 %1 秒，已被结束</translation>
    </message>
    <message id="alerts_command_left_out">
        <source></source>
        <translation>同时运行的命令过多；已略过一部分</translation>
    </message>
    <message id="alerts_editor_note">
        <source></source>
        <translation>规则是与过滤器相同形式的条件。前面加“any”表示所有进程共用一个告警，“total mem&gt;8G”将数值相加，“absent”等待不再有符合的进程。“for 5m”表示条件须持续多久，“until cpu&lt;70%”表示何时结束告警；否则在条件有半分钟未满足时结束。</translation>
    </message>
    <message id="alerts_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>另有 %n 个告警</numerusform>
        </translation>
    </message>
    <message id="alerts_more_latest">
        <source></source>
        <translation>最近一个：%1
%2</translation>
    </message>
    <message id="alerts_left_out" numerus="yes">
        <source></source>
        <translation>
            <numerusform>除正在监视的 %1 个规则外，还存有 %n 个规则。删除一些规则后，下次启动时即可监视它们。</numerusform>
        </translation>
    </message>
    <message id="alerts_too_many">
        <source></source>
        <translation>不能再增加规则。</translation>
    </message>
    <message id="alerts_log_problem">
        <source></source>
        <translation>无法写入告警日志：%1</translation>
    </message>
    <message id="alerts_log_not_shown">
        <source></source>
        <translation>没有文件管理器可以显示日志，日志位于 %1</translation>
    </message>
    <message id="alerts_notification_problem">
        <source></source>
        <translation>无法显示通知：%1</translation>
    </message>
    <message id="alerts_has_ended">
        <source></source>
        <translation>%1 已结束。</translation>
    </message>
    <message id="alerts_not_in_table">
        <source></source>
        <translation>%1 正在运行，但不在表格的过滤器或显示范围之内。</translation>
    </message>
    <message id="alerts_not_of_recordings">
        <source></source>
        <translation>告警针对正在运行的进程。在录制文件中不监视任何内容。</translation>
    </message>
    <message id="filter_unknown_key">
        <source></source>
        <translation>没有名为“%1”的属性；加上引号即作为文本查找。</translation>
    </message>
    <message id="filter_unknown_key_near">
        <source></source>
        <translation>没有名为“%1”的属性；可用的是 %2。</translation>
    </message>
    <message id="filter_no_value">
        <source></source>
        <translation>“%1”之后没有内容。</translation>
    </message>
    <message id="filter_no_term">
        <source></source>
        <translation>“%1”旁边缺少内容。</translation>
    </message>
    <message id="filter_no_end">
        <source></source>
        <translation>引号没有成对。</translation>
    </message>
    <message id="filter_text_is_not_compared">
        <source></source>
        <translation>“%1”是文本；请用 %2 查询。</translation>
    </message>
    <message id="filter_no_number">
        <source></source>
        <translation>“%1”不是数值，数值的例子是 %2。</translation>
    </message>
    <message id="filter_no_expression">
        <source></source>
        <translation>“%1”不是正则表达式：%2。</translation>
    </message>
    <message id="main_window_status_some" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 个进程中的 %1 个：%2；已选中 %3 个</numerusform>
        </translation>
    </message>
    <message id="main_window_status_totals">
        <source></source>
        <translation>：CPU %1 %，内存 %2</translation>
    </message>
    <message id="main_window_status_paused">
        <source></source>
        <translation>已暂停：此后结束 %1 个，新增 %2 个。</translation>
    </message>
    <message id="main_window_status_follows">
        <source></source>
        <translation>选中行位置保持不变。</translation>
    </message>
    <message id="main_window_scope_hides_all">
        <source></source>
        <translation>没有符合条件的进程：%1。“查看”›“显示范围”›“所有进程”可重新显示全部。</translation>
    </message>
    <message id="scope_mine">
        <source></source>
        <translation>我的</translation>
    </message>
    <message id="scope_others">
        <source></source>
        <translation>其他用户的</translation>
    </message>
    <message id="scope_applications">
        <source></source>
        <translation>应用程序</translation>
    </message>
    <message id="scope_without_kernel">
        <source></source>
        <translation>除内核线程外</translation>
    </message>
    <message id="scope_busy">
        <source></source>
        <translation>繁忙</translation>
    </message>
    <message id="scope_filter">
        <source></source>
        <translation>过滤器</translation>
    </message>
    <message id="filter_not_allowed">
        <source></source>
        <translation>不允许：%1</translation>
    </message>
    <message id="filter_not_allowed_tip">
        <source></source>
        <translation>只有管理员可以查看的其他用户的进程</translation>
    </message>
    <message id="filter_looks" numerus="yes">
        <source></source>
        <translation>
            <numerusform>正在查看 %n 个进程…</numerusform>
        </translation>
    </message>
    <message id="filter_hides_all_not_allowed">
        <source></source>
        <translation>可以查看的进程中没有符合过滤条件的；不允许查看：%1。按 Escape 取消过滤。</translation>
    </message>
    <message id="switch_shape">
        <source></source>
        <translation>表格的形式</translation>
    </message>
    <message id="switch_scope">
        <source></source>
        <translation>显示哪些进程</translation>
    </message>
    <message id="switch_columns">
        <source></source>
        <translation>列方案</translation>
    </message>
    <message id="set_save_title">
        <source></source>
        <translation>将列保存为方案</translation>
    </message>
    <message id="set_rename_title">
        <source></source>
        <translation>重命名列方案</translation>
    </message>
    <message id="set_title_label">
        <source></source>
        <translation>方案名称：</translation>
    </message>
    <message id="set_title_agree">
        <source></source>
        <translation>保存</translation>
    </message>
    <message id="set_without_title">
        <source></source>
        <translation>方案需要名称。</translation>
    </message>
    <message id="set_title_too_long">
        <source></source>
        <translation>名称最多 %1 个字符。</translation>
    </message>
    <message id="set_title_is_taken">
        <source></source>
        <translation>已有名为“%1”的方案。</translation>
    </message>
    <message id="set_too_many">
        <source></source>
        <translation>您最多可以有 %1 个自己的方案。请删除不需要的方案。</translation>
    </message>
    <message id="set_question_title">
        <source></source>
        <translation>列方案</translation>
    </message>
    <message id="set_delete_question">
        <source></source>
        <translation>删除方案“%1”吗？其中的列及其宽度和顺序将无法恢复。</translation>
    </message>
    <message id="set_delete_agree">
        <source></source>
        <translation>删除</translation>
    </message>
    <message id="set_restore_question">
        <source></source>
        <translation>将方案“%1”恢复为最初的样子吗？您对它所做的更改将丢失。</translation>
    </message>
    <message id="set_restore_agree">
        <source></source>
        <translation>恢复</translation>
    </message>
    <message id="group_kernel_threads">
        <source></source>
        <translation>内核线程</translation>
    </message>
    <message id="row_level">
        <source></source>
        <translation>，第 %1 级</translation>
    </message>
    <message id="row_folded">
        <source></source>
        <translation>，已折叠，下有 %1 个</translation>
    </message>
    <message id="row_ended">
        <source></source>
        <translation>，已结束</translation>
    </message>
    <message id="row_zombie">
        <source></source>
        <translation>，僵尸进程</translation>
    </message>
    <message id="cell_spoken">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="sorted_ascending">
        <source></source>
        <translation>已排序，从小到大</translation>
    </message>
    <message id="sorted_descending">
        <source></source>
        <translation>已排序，从大到小</translation>
    </message>
    <message id="row_unfolded">
        <source></source>
        <translation>，已展开，下有 %1 个</translation>
    </message>
    <message id="total_tip" numerus="yes">
        <source></source>
        <translation>
            <numerusform>已知范围内 %n 个进程的合计</numerusform>
        </translation>
    </message>
    <message id="total_memory_tip">
        <source></source>
        <translation>常驻内存：进程之间共享的部分，能够得知时按分摊 (PSS) 计算，否则每个进程各计一次</translation>
    </message>
    <message id="main_window_status_counts" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 个进程，显示 %1 个，选中 %2 个</numerusform>
        </translation>
    </message>
    <message id="main_window_helper_unprivileged">
        <source></source>
        <translation>只能操作您自己的进程。&lt;a href="rights"&gt;更多权限…&lt;/a&gt;</translation>
    </message>
    <message id="main_window_helper_absent">
        <source></source>
        <translation>辅助程序未运行：无法对进程进行操作。&lt;a href="rights"&gt;为什么？&lt;/a&gt;</translation>
    </message>
    <message id="main_window_rights_title">
        <source></source>
        <translation>Lurkwell 只能操作您自己的进程</translation>
    </message>
    <message id="main_window_rights_may_ask">
        <source></source>
        <translation>管理员可以授予 Lurkwell 的辅助程序向所有进程发送信号和调整优先级的权限。只需询问一次，以后启动时仍然有效。</translation>
    </message>
    <message id="main_window_rights_may_not_ask">
        <source></source>
        <translation>以软件包形式安装时附带辅助程序，管理员可以授予它向所有进程发送信号和调整优先级的权限。</translation>
    </message>
    <message id="main_window_rights_ask">
        <source></source>
        <translation>认证…</translation>
    </message>
    <message id="main_window_rights_close">
        <source></source>
        <translation>关闭</translation>
    </message>
    <message id="help_title">
        <source></source>
        <translation>Lurkwell 帮助</translation>
    </message>
    <message id="help_no_key">
        <source></source>
        <translation>（未设置按键）</translation>
    </message>
    <message id="help_menu_process_quit_or_kill">
        <source></source>
        <translation>退出或杀死选中的进程</translation>
    </message>
    <message id="help_menu_edit_filter">
        <source></source>
        <translation>只显示含有某些文本的进程；按 Escape 显示全部</translation>
    </message>
    <message id="help_menu_process_by_id">
        <source></source>
        <translation>按 ID 转到某个进程</translation>
    </message>
    <message id="help_menu_edit_copy">
        <source></source>
        <translation>复制选中的行</translation>
    </message>
    <message id="help_menu_file_new_cpu_history">
        <source></source>
        <translation>为每个选中的进程打开 CPU 历史</translation>
    </message>
    <message id="help_menu_file_new_logging">
        <source></source>
        <translation>为每个选中的进程打开日志</translation>
    </message>
    <message id="help_menu_file_details">
        <source></source>
        <translation>每个选中进程的全部信息：线程、打开的文件、内存、环境、限制</translation>
    </message>
    <message id="help_menu_view_overlay">
        <source></source>
        <translation>在整个屏幕上显示动画视图，再按一次消失</translation>
    </message>
    <message id="help_menu_file_record">
        <source></source>
        <translation>将进程录制到文件，供日后查看；再按一次结束录制</translation>
    </message>
    <message id="help_menu_set_standard">
        <source></source>
        <translation>列：标准</translation>
    </message>
    <message id="help_menu_set_cpu">
        <source></source>
        <translation>列：CPU</translation>
    </message>
    <message id="help_menu_set_memory">
        <source></source>
        <translation>列：内存</translation>
    </message>
    <message id="help_menu_set_disk_network">
        <source></source>
        <translation>列：磁盘和网络</translation>
    </message>
    <message id="help_menu_set_commands">
        <source></source>
        <translation>列：命令</translation>
    </message>
    <message id="help_menu_set_containers">
        <source></source>
        <translation>列：容器</translation>
    </message>
    <message id="help_menu_set_security">
        <source></source>
        <translation>列：安全</translation>
    </message>
    <message id="help_menu_file_open_recording">
        <source></source>
        <translation>在单独的窗口中查看录制的内容</translation>
    </message>
    <message id="help_menu_file_close_window">
        <source></source>
        <translation>关闭窗口；关闭最后一个窗口即退出</translation>
    </message>
    <message id="help_menu_application_quit">
        <source></source>
        <translation>退出；打开的窗口下次启动时恢复</translation>
    </message>
    <message id="help_menu_application_preferences">
        <source></source>
        <translation>首选项</translation>
    </message>
    <message id="help_menu_edit_select_all">
        <source></source>
        <translation>选择所有显示的进程</translation>
    </message>
    <message id="help_menu_edit_select_children">
        <source></source>
        <translation>改为选择选中进程的子进程</translation>
    </message>
    <message id="help_menu_view_update_now">
        <source></source>
        <translation>立即更新</translation>
    </message>
    <message id="help_menu_view_pause">
        <source></source>
        <translation>使行和数值保持不动；再按一次继续</translation>
    </message>
    <message id="help_menu_view_follow">
        <source></source>
        <translation>其他行移动时使选中的行保持原位</translation>
    </message>
    <message id="help_menu_view_shape_list">
        <source></source>
        <translation>以列表显示所有进程</translation>
    </message>
    <message id="help_menu_view_shape_tree">
        <source></source>
        <translation>将子进程显示在父进程之下</translation>
    </message>
    <message id="help_menu_view_shape_applications">
        <source></source>
        <translation>将进程显示在其应用程序之下</translation>
    </message>
    <message id="help_menu_view_unfold_all">
        <source></source>
        <translation>展开所有行</translation>
    </message>
    <message id="help_menu_view_fold_all">
        <source></source>
        <translation>折叠所有行</translation>
    </message>
    <message id="help_menu_view_column_left">
        <source></source>
        <translation>将排序列左移</translation>
    </message>
    <message id="help_menu_view_column_right">
        <source></source>
        <translation>将其右移</translation>
    </message>
    <message id="help_menu_view_column_wider">
        <source></source>
        <translation>将其加宽</translation>
    </message>
    <message id="help_menu_view_column_narrower">
        <source></source>
        <translation>将其缩窄</translation>
    </message>
    <message id="help_menu_view_column_fit">
        <source></source>
        <translation>使其适应内容</translation>
    </message>
    <message id="help_menu_process_halt">
        <source></source>
        <translation>停止选中的进程</translation>
    </message>
    <message id="help_menu_process_continue">
        <source></source>
        <translation>使已停止的进程继续</translation>
    </message>
    <message id="help_menu_process_high_priority">
        <source></source>
        <translation>给选中的进程高优先级</translation>
    </message>
    <message id="help_menu_process_normal_priority">
        <source></source>
        <translation>给其普通优先级</translation>
    </message>
    <message id="help_menu_process_low_priority">
        <source></source>
        <translation>给其低优先级</translation>
    </message>
    <message id="help_menu_process_bring_to_front">
        <source></source>
        <translation>将选中的应用程序移到最前</translation>
    </message>
    <message id="help_menu_process_hide">
        <source></source>
        <translation>隐藏其窗口</translation>
    </message>
    <message id="help_menu_process_reveal">
        <source></source>
        <translation>在文件管理器中显示其文件</translation>
    </message>
    <message id="help_menu_help_help">
        <source></source>
        <translation>本页</translation>
    </message>
    <message id="main_window_help_missing">
        <source></source>
        <translation>无法读取帮助页：%1</translation>
    </message>
    <message id="value_not_yet_known">
        <source></source>
        <translation>尚未知</translation>
    </message>
    <message id="value_not_allowed">
        <source></source>
        <translation>不允许</translation>
    </message>
    <message id="value_not_counted">
        <source></source>
        <translation>本系统不统计</translation>
    </message>
    <message id="value_not_yet_known_tip">
        <source></source>
        <translation>尚未知：接下来的更新中会显示。</translation>
    </message>
    <message id="value_not_allowed_tip">
        <source></source>
        <translation>不允许：此进程的这一项只有 root 可以读取。由 root 启动 Lurkwell 时会显示。</translation>
    </message>
    <message id="value_not_counted_tip">
        <source></source>
        <translation>不统计：本系统上此进程没有这一数值。</translation>
    </message>
    <message id="value_not_allowed_pid_disk_read_tip">
        <source></source>
        <translation>不允许：只有进程的用户和 root 可以读取。其单元的读写量见单元的列；由 root 启动 Lurkwell 时可以看到。</translation>
    </message>
    <message id="value_not_allowed_pid_disk_written_tip">
        <source></source>
        <translation>不允许：只有进程的用户和 root 可以读取。其单元的读写量见单元的列；由 root 启动 Lurkwell 时可以看到。</translation>
    </message>
    <message id="value_not_allowed_pid_disk_read_rate_tip">
        <source></source>
        <translation>不允许：只有进程的用户和 root 可以读取。其单元的读写量见单元的列；由 root 启动 Lurkwell 时可以看到。</translation>
    </message>
    <message id="value_not_allowed_pid_disk_write_rate_tip">
        <source></source>
        <translation>不允许：只有进程的用户和 root 可以读取。其单元的读写量见单元的列；由 root 启动 Lurkwell 时可以看到。</translation>
    </message>
    <message id="value_not_counted_pid_unit_disk_read_tip">
        <source></source>
        <translation>不统计：进程所在的单元不统计输入输出。在单元中设置 IOAccounting=yes 即可统计。</translation>
    </message>
    <message id="value_not_counted_pid_unit_disk_written_tip">
        <source></source>
        <translation>不统计：进程所在的单元不统计输入输出。在单元中设置 IOAccounting=yes 即可统计。</translation>
    </message>
    <message id="value_not_counted_pid_unit_read_rate_tip">
        <source></source>
        <translation>不统计：进程所在的单元不统计输入输出。在单元中设置 IOAccounting=yes 即可统计。</translation>
    </message>
    <message id="value_not_counted_pid_unit_write_rate_tip">
        <source></source>
        <translation>不统计：进程所在的单元不统计输入输出。在单元中设置 IOAccounting=yes 即可统计。</translation>
    </message>
    <message id="value_not_yet_known_pid_cpu_share_tip">
        <source></source>
        <translation>尚未知：需要读取两次，接下来的更新中会显示。</translation>
    </message>
    <message id="value_not_yet_known_pid_user_share_tip">
        <source></source>
        <translation>尚未知：需要读取两次，接下来的更新中会显示。</translation>
    </message>
    <message id="value_not_yet_known_pid_system_share_tip">
        <source></source>
        <translation>尚未知：需要读取两次，接下来的更新中会显示。</translation>
    </message>
    <message id="value_not_yet_known_pid_disk_read_rate_tip">
        <source></source>
        <translation>尚未知：需要读取两次，接下来的更新中会显示。</translation>
    </message>
    <message id="value_not_yet_known_pid_disk_write_rate_tip">
        <source></source>
        <translation>尚未知：需要读取两次，接下来的更新中会显示。</translation>
    </message>
    <message id="value_not_yet_known_pid_read_rate_tip">
        <source></source>
        <translation>尚未知：需要读取两次，接下来的更新中会显示。</translation>
    </message>
    <message id="value_not_yet_known_pid_write_rate_tip">
        <source></source>
        <translation>尚未知：需要读取两次，接下来的更新中会显示。</translation>
    </message>
    <message id="value_not_yet_known_pid_unit_read_rate_tip">
        <source></source>
        <translation>尚未知：需要读取两次，接下来的更新中会显示。</translation>
    </message>
    <message id="value_not_yet_known_pid_unit_write_rate_tip">
        <source></source>
        <translation>尚未知：需要读取两次，接下来的更新中会显示。</translation>
    </message>
    <message id="value_not_counted_pid_label_tip">
        <source></source>
        <translation>不统计：内核没有为进程加标签的安全模块（AppArmor、SELinux、Smack）。</translation>
    </message>
    <message id="main_window_idle_task_tip">
        <source></source>
        <translation>空闲任务：它的时间就是处理器无事可做的时间。</translation>
    </message>
    <message id="main_window_zombie_tip">
        <source></source>
        <translation>僵尸进程：进程已结束，但其父进程尚未读取退出状态。</translation>
    </message>
    <message id="main_window_ended_tip">
        <source></source>
        <translation>此进程已结束，但它的行须保留。任何操作都不会作用于它。</translation>
    </message>
    <message id="main_window_late_tip">
        <source></source>
        <translation>此列是在表格暂停期间添加的：其数值是添加时的，且只有当时仍存在的进程才有。</translation>
    </message>
    <message id="main_window_stale_tip">
        <source></source>
        <translation>上次更新没有带来此列的数值；这些是较早的数值。</translation>
    </message>
    <message id="main_window_no_address">
        <source></source>
        <translation>这不是 lurkwell://pid/4711 之类的进程地址：%1</translation>
    </message>
    <message id="main_window_by_id_title">
        <source></source>
        <translation>按 ID 查找进程</translation>
    </message>
    <message id="main_window_by_id_label">
        <source></source>
        <translation>进程 ID：</translation>
    </message>
    <message id="main_window_by_id_find">
        <source></source>
        <translation>查找(&amp;F)</translation>
    </message>
    <message id="main_window_by_id_no_number">
        <source></source>
        <translation>进程 ID 是从 0 到 %1 的数字。</translation>
    </message>
    <message id="main_window_not_revealed">
        <source></source>
        <translation>没有文件管理器显示文件 %1。</translation>
    </message>
    <message id="main_window_nothing_to_reveal_with">
        <source></source>
        <translation>没有程序可以显示该文件：没有会话总线，或者程序已不存在。</translation>
    </message>
    <message id="main_window_no_details">
        <source></source>
        <translation>没有 %1 的详情：它不是系统的进程。</translation>
    </message>
    <message id="main_window_no_children">
        <source></source>
        <translation>选中的进程都没有子进程。</translation>
    </message>
    <message id="main_window_hidden_children" numerus="yes">
        <source></source>
        <translation>
            <numerusform>有 %n 个子进程被过滤器隐藏。</numerusform>
        </translation>
    </message>
    <message id="main_window_preferences">
        <source></source>
        <translation>您的首选项：%1。</translation>
    </message>
    <message id="main_window_by_id_not_found">
        <source></source>
        <translation>没有进程 %1。</translation>
    </message>
    <message id="process_halted">
        <source></source>
        <translation>已停止</translation>
    </message>
    <message id="process_niced_high">
        <source></source>
        <translation>高优先级</translation>
    </message>
    <message id="process_niced_low">
        <source></source>
        <translation>低优先级</translation>
    </message>
    <message id="context_menu_one">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="context_menu_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 个进程</numerusform>
        </translation>
    </message>
    <message id="action_ask_window">
        <source></source>
        <translation>Lurkwell</translation>
    </message>
    <message id="action_ask_quit_one">
        <source></source>
        <translation>退出进程 %1 (%2) 吗？</translation>
    </message>
    <message id="action_ask_quit_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>退出 %n 个进程吗？</numerusform>
        </translation>
    </message>
    <message id="action_ask_kill_one">
        <source></source>
        <translation>杀死进程 %1 (%2) 吗？</translation>
    </message>
    <message id="action_ask_kill_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>杀死 %n 个进程吗？</numerusform>
        </translation>
    </message>
    <message id="action_ask_halt_one">
        <source></source>
        <translation>停止进程 %1 (%2) 吗？</translation>
    </message>
    <message id="action_ask_halt_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>停止 %n 个进程吗？</numerusform>
        </translation>
    </message>
    <message id="action_ask_lower_one">
        <source></source>
        <translation>降低进程 %1 (%2) 的优先级吗？</translation>
    </message>
    <message id="action_ask_lower_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>降低 %n 个进程的优先级吗？</numerusform>
        </translation>
    </message>
    <message id="action_button_quit">
        <source></source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message id="action_button_kill">
        <source></source>
        <translation>杀死(&amp;K)</translation>
    </message>
    <message id="action_button_halt">
        <source></source>
        <translation>停止(&amp;H)</translation>
    </message>
    <message id="action_button_lower">
        <source></source>
        <translation>降低优先级(&amp;L)</translation>
    </message>
    <message id="action_next_quit">
        <source></source>
        <translation>将请求它关闭窗口并退出。</translation>
    </message>
    <message id="action_next_terminate">
        <source></source>
        <translation>将请求它结束 (SIGTERM)。它可以先保存工作，但不一定会这样做。</translation>
    </message>
    <message id="action_next_terminate_again">
        <source></source>
        <translation>已请求它退出 %1，但它仍然存在；现在将请求它结束 (SIGTERM)。</translation>
    </message>
    <message id="action_next_helper">
        <source></source>
        <translation>已请求它结束 %1，但它仍然存在；现在由辅助程序再次请求 (SIGTERM)。</translation>
    </message>
    <message id="action_next_force">
        <source></source>
        <translation>将强制结束它 (SIGKILL)。未保存的内容将丢失。</translation>
    </message>
    <message id="action_next_force_at_last">
        <source></source>
        <translation>已请求它结束 %1；现在将强制结束它 (SIGKILL)。未保存的内容将丢失。</translation>
    </message>
    <message id="action_next_halted">
        <source></source>
        <translation>它已停止，继续运行后才会收到此请求。</translation>
    </message>
    <message id="action_next_several">
        <source></source>
        <translation>按列表所示请求每个进程退出或结束。未保存的内容可能丢失。</translation>
    </message>
    <message id="action_next_several_forced">
        <source></source>
        <translation>对每个进程执行列表所示的步骤。被强制结束的进程未保存的内容将丢失。</translation>
    </message>
    <message id="action_next_halt">
        <source></source>
        <translation>停止的进程在继续之前静止不动：其窗口没有响应，需要它的程序也只能等待。</translation>
    </message>
    <message id="action_next_lower">
        <source></source>
        <translation>它只在没有其他进程需要时才使用处理器。再次提高优先级需要管理员权限。</translation>
    </message>
    <message id="action_step_quit">
        <source></source>
        <translation>请求退出</translation>
    </message>
    <message id="action_step_terminate">
        <source></source>
        <translation>请求结束</translation>
    </message>
    <message id="action_step_terminate_again">
        <source></source>
        <translation>请求结束</translation>
    </message>
    <message id="action_step_helper">
        <source></source>
        <translation>再次请求结束</translation>
    </message>
    <message id="action_step_force">
        <source></source>
        <translation>强制结束</translation>
    </message>
    <message id="action_step_force_at_last">
        <source></source>
        <translation>强制结束</translation>
    </message>
    <message id="action_warn_own">
        <source></source>
        <translation>这是 Lurkwell 本身。</translation>
    </message>
    <message id="action_warn_own_among">
        <source></source>
        <translation>其中包括 Lurkwell 本身。</translation>
    </message>
    <message id="action_warn_others" numerus="yes">
        <source></source>
        <translation>
            <numerusform>其中 %n 个属于其他用户。</numerusform>
        </translation>
    </message>
    <message id="action_owner">
        <source></source>
        <translation>所有者：</translation>
    </message>
    <message id="action_command_line">
        <source></source>
        <translation>命令行：</translation>
    </message>
    <message id="action_unknown">
        <source></source>
        <translation>未知</translation>
    </message>
    <message id="action_column_name">
        <source></source>
        <translation>名称</translation>
    </message>
    <message id="action_column_pid">
        <source></source>
        <translation>ID</translation>
    </message>
    <message id="action_column_owner">
        <source></source>
        <translation>所有者</translation>
    </message>
    <message id="action_column_step">
        <source></source>
        <translation>下一步</translation>
    </message>
    <message id="action_column_command">
        <source></source>
        <translation>命令行</translation>
    </message>
    <message id="times_once">
        <source></source>
        <translation>1 次</translation>
    </message>
    <message id="times_twice">
        <source></source>
        <translation>2 次</translation>
    </message>
    <message id="times_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 次</numerusform>
        </translation>
    </message>
    <message id="action_process">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="action_processes" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 个进程 (%1)</numerusform>
        </translation>
    </message>
    <message id="action_failed">
        <source></source>
        <translation>未对 %1 进行任何操作：%2。</translation>
    </message>
    <message id="action_reason_gone">
        <source></source>
        <translation>它已不存在</translation>
    </message>
    <message id="action_reason_protected">
        <source></source>
        <translation>系统依赖于它</translation>
    </message>
    <message id="action_reason_kernel_thread">
        <source></source>
        <translation>内核不接受信号</translation>
    </message>
    <message id="action_reason_refused">
        <source></source>
        <translation>没有管理员权限不能这样做</translation>
    </message>
    <message id="action_reason_in_words">
        <source></source>
        <translation>辅助程序报告“%1”</translation>
    </message>
    <message id="action_reason_no_helper">
        <source></source>
        <translation>辅助程序没有响应</translation>
    </message>
    <message id="action_reason_no_time">
        <source></source>
        <translation>辅助程序耗时过长，未尝试</translation>
    </message>
    <message id="action_reason_nobody">
        <source></source>
        <translation>此桌面没有办法做到</translation>
    </message>
    <message id="action_reason_out_of_reach">
        <source></source>
        <translation>此桌面不允许程序对其他程序的窗口这样做</translation>
    </message>
    <message id="action_done_quit" numerus="yes">
        <source></source>
        <translation>
            <numerusform>已请求 %1 退出。</numerusform>
        </translation>
    </message>
    <message id="action_done_terminate" numerus="yes">
        <source></source>
        <translation>
            <numerusform>已请求 %1 结束。</numerusform>
        </translation>
    </message>
    <message id="action_done_force" numerus="yes">
        <source></source>
        <translation>
            <numerusform>已强制结束 %1。</numerusform>
        </translation>
    </message>
    <message id="action_done_halt" numerus="yes">
        <source></source>
        <translation>
            <numerusform>已停止 %1。</numerusform>
        </translation>
    </message>
    <message id="action_done_continue" numerus="yes">
        <source></source>
        <translation>
            <numerusform>已使 %1 继续。</numerusform>
        </translation>
    </message>
    <message id="action_done_high" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 现在为高优先级。</numerusform>
        </translation>
    </message>
    <message id="action_done_normal" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 现在为普通优先级。</numerusform>
        </translation>
    </message>
    <message id="action_done_low" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 现在为低优先级。</numerusform>
        </translation>
    </message>
    <message id="follow_confirmation_title" numerus="yes">
        <source></source>
        <translation>
            <numerusform>打开 %n 个新窗口吗？</numerusform>
        </translation>
    </message>
    <message id="follow_confirmation_text">
        <source></source>
        <translation>将为每个选中的进程打开一个窗口。</translation>
    </message>
    <message id="follow_confirmation_open">
        <source></source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message id="follow_limit_title" numerus="yes">
        <source></source>
        <translation>
            <numerusform>已打开 %1 个窗口中的 %n 个。</numerusform>
        </translation>
    </message>
    <message id="follow_limit_text">
        <source></source>
        <translation>跟踪进程的窗口不能同时打开更多。请先关闭其中一些。</translation>
    </message>
    <message id="darwin_tools_not_found">
        <source></source>
        <translation>Lurkwell 需要系统工具 /bin/ps、/bin/kill 和 /usr/bin/renice 才能工作，但至少有一个未找到。</translation>
    </message>
    <message id="no_quartz_extreme">
        <source></source>
        <translation>此显示器没有图形加速。动画视图会很慢。</translation>
    </message>
    <message id="about_title">
        <source></source>
        <translation>关于 Lurkwell</translation>
    </message>
    <message id="about_name">
        <source></source>
        <translation>Lurkwell</translation>
    </message>
    <message id="about_version">
        <source></source>
        <translation>版本 %1</translation>
    </message>
    <message id="about_text">
        <source></source>
        <translation>交互式进程监视器
采用 MIT 许可证的自由软件</translation>
    </message>
    <message id="toolbar_system_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="toolbar_system_cpu_tip">
        <source></source>
        <translation>本机处理器的繁忙程度。</translation>
    </message>
    <message id="toolbar_system_cpu_figure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>CPU：%n 个处理器的 %1 %</numerusform>
        </translation>
    </message>
    <message id="toolbar_system_ram">
        <source></source>
        <translation>内存</translation>
    </message>
    <message id="toolbar_system_ram_tip">
        <source></source>
        <translation>本机内存的使用情况。</translation>
    </message>
    <message id="toolbar_system_ram_figures">
        <source></source>
        <translation>内存：已用 %1，共 %2
固定：%3
不活动：%4
空闲：%5</translation>
    </message>
    <message id="toolbar_vm_thrashing">
        <source></source>
        <translation>交换</translation>
    </message>
    <message id="toolbar_vm_thrashing_tip">
        <source></source>
        <translation>没有内存被换出时为绿色，有内存被换出时为黄色，换出过多以致本机变慢时闪烁红色。</translation>
    </message>
    <message id="toolbar_vm_thrashing_figure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>上次更新以来换出 %n 页</numerusform>
        </translation>
    </message>
    <message id="toolbar_usage_history">
        <source></source>
        <translation>CPU 历史</translation>
    </message>
    <message id="toolbar_usage_history_tip">
        <source></source>
        <translation>为每个选中的进程打开一个窗口，显示 CPU 使用率随时间的变化。</translation>
    </message>
    <message id="toolbar_log">
        <source></source>
        <translation>日志</translation>
    </message>
    <message id="toolbar_log_tip">
        <source></source>
        <translation>为每个选中的进程打开一个记录其数值的窗口。</translation>
    </message>
    <message id="toolbar_bring_to_front">
        <source></source>
        <translation>移到最前</translation>
    </message>
    <message id="toolbar_bring_to_front_tip">
        <source></source>
        <translation>将选中的应用程序的窗口移到最前。</translation>
    </message>
    <message id="toolbar_kill">
        <source></source>
        <translation>杀死</translation>
    </message>
    <message id="toolbar_kill_tip">
        <source></source>
        <translation>请求选中的进程结束；对同一进程再次操作时，方式会更加强硬。</translation>
    </message>
    <message id="toolbar_hide_process">
        <source></source>
        <translation>隐藏</translation>
    </message>
    <message id="toolbar_hide_process_tip">
        <source></source>
        <translation>隐藏选中的应用程序的窗口。</translation>
    </message>
    <message id="toolbar_reveal">
        <source></source>
        <translation>显示文件</translation>
    </message>
    <message id="toolbar_reveal_tip">
        <source></source>
        <translation>在文件管理器中显示选中的应用程序。</translation>
    </message>
    <message id="toolbar_high">
        <source></source>
        <translation>高</translation>
    </message>
    <message id="toolbar_high_tip">
        <source></source>
        <translation>给选中的进程高优先级 (nice -19)。</translation>
    </message>
    <message id="toolbar_medium">
        <source></source>
        <translation>普通</translation>
    </message>
    <message id="toolbar_medium_tip">
        <source></source>
        <translation>给选中的进程普通优先级 (nice 0)。</translation>
    </message>
    <message id="toolbar_low">
        <source></source>
        <translation>低</translation>
    </message>
    <message id="toolbar_low_tip">
        <source></source>
        <translation>给选中的进程最低优先级，使其让位于所有其他进程。</translation>
    </message>
    <message id="toolbar_halt">
        <source></source>
        <translation>停止</translation>
    </message>
    <message id="toolbar_halt_tip">
        <source></source>
        <translation>停止选中的进程，直到令其继续。</translation>
    </message>
    <message id="toolbar_cont">
        <source></source>
        <translation>继续</translation>
    </message>
    <message id="toolbar_cont_tip">
        <source></source>
        <translation>使选中的已停止进程继续运行。</translation>
    </message>
    <message id="menu_process_kill_with_children">
        <source></source>
        <translation>连同子进程退出或杀死(&amp;R)</translation>
    </message>
    <message id="menu_process_signal">
        <source></source>
        <translation>发送信号(&amp;G)…</translation>
    </message>
    <message id="menu_process_scheduling">
        <source></source>
        <translation>优先级和处理器(&amp;P)…</translation>
    </message>
    <message id="menu_process_show_executable">
        <source></source>
        <translation>显示程序文件(&amp;F)</translation>
    </message>
    <message id="menu_process_search_web">
        <source></source>
        <translation>在网上搜索(&amp;W)</translation>
    </message>
    <message id="menu_edit_copy_csv">
        <source></source>
        <translation>复制为 CSV(&amp;V)</translation>
    </message>
    <message id="menu_edit_copy_json">
        <source></source>
        <translation>复制为 JSON(&amp;J)</translation>
    </message>
    <message id="help_menu_process_kill_with_children">
        <source></source>
        <translation>退出或杀死选中的进程及其启动的所有进程</translation>
    </message>
    <message id="help_menu_process_signal">
        <source></source>
        <translation>发送任意信号</translation>
    </message>
    <message id="help_menu_process_scheduling">
        <source></source>
        <translation>nice 值、调度、磁盘优先级、处理器</translation>
    </message>
    <message id="help_menu_process_show_executable">
        <source></source>
        <translation>在文件管理器中显示程序的文件</translation>
    </message>
    <message id="main_window_no_executable">
        <source></source>
        <translation>不知道这些是什么程序，或者您无权得知。</translation>
    </message>
    <message id="main_window_many_executables">
        <source></source>
        <translation>这些程序超过 %1 个；未打开任何程序。</translation>
    </message>
    <message id="main_window_no_search">
        <source></source>
        <translation>此桌面无法打开“%1”。</translation>
    </message>
    <message id="action_ask_signal_one">
        <source></source>
        <translation>向进程 %1 (%2) 发送信号吗？</translation>
    </message>
    <message id="action_ask_signal_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>向 %n 个进程发送信号吗？</numerusform>
        </translation>
    </message>
    <message id="action_ask_scheduling_one">
        <source></source>
        <translation>进程 %1 (%2) 的优先级和处理器</translation>
    </message>
    <message id="action_ask_scheduling_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 个进程的优先级和处理器</numerusform>
        </translation>
    </message>
    <message id="action_button_signal">
        <source></source>
        <translation>发送(&amp;S)</translation>
    </message>
    <message id="action_button_scheduling">
        <source></source>
        <translation>应用(&amp;A)</translation>
    </message>
    <message id="action_next_signal">
        <source></source>
        <translation>除 KILL 和 STOP 外，程序可以捕获信号并自行处理。列表说明的是未捕获时的情况。</translation>
    </message>
    <message id="action_next_scheduling">
        <source></source>
        <translation>同时对所有线程生效，直到进程结束。要优先于其他进程需要管理员权限。</translation>
    </message>
    <message id="action_reason_impossible">
        <source></source>
        <translation>本机没有这样的处理器或优先级</translation>
    </message>
    <message id="action_done_signal" numerus="yes">
        <source></source>
        <translation>
            <numerusform>已向 %1 发送 %2。</numerusform>
        </translation>
    </message>
    <message id="action_done_nice" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 的 nice 值现在为 %2。</numerusform>
        </translation>
    </message>
    <message id="action_done_policy" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 的调度方式现在为“%2”。</numerusform>
        </translation>
    </message>
    <message id="action_done_io_priority" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 的磁盘优先级现在为“%2”。</numerusform>
        </translation>
    </message>
    <message id="action_done_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 现在运行于处理器 %2。</numerusform>
        </translation>
    </message>
    <message id="scheduling_unchanged">
        <source></source>
        <translation>保持不变</translation>
    </message>
    <message id="scheduling_nice">
        <source></source>
        <translation>nice 值(&amp;N)：</translation>
    </message>
    <message id="scheduling_nice_tip">
        <source></source>
        <translation>从 -20（优先于所有其他进程）到 19（排在所有其他进程之后）</translation>
    </message>
    <message id="scheduling_policy">
        <source></source>
        <translation>调度方式：</translation>
    </message>
    <message id="scheduling_policy_tip">
        <source></source>
        <translation>批处理适合长时间计算的进程，空闲适合可以等待其他一切的进程。实时优先于一切非实时进程，可能使计算机失去响应。</translation>
    </message>
    <message id="scheduling_policy_normal">
        <source></source>
        <translation>普通</translation>
    </message>
    <message id="scheduling_policy_batch">
        <source></source>
        <translation>批处理</translation>
    </message>
    <message id="scheduling_policy_idle">
        <source></source>
        <translation>空闲</translation>
    </message>
    <message id="scheduling_policy_round_robin">
        <source></source>
        <translation>实时，轮转</translation>
    </message>
    <message id="scheduling_policy_fifo">
        <source></source>
        <translation>实时，先进先出</translation>
    </message>
    <message id="scheduling_priority">
        <source></source>
        <translation>优先级：</translation>
    </message>
    <message id="scheduling_io_class">
        <source></source>
        <translation>磁盘优先级(&amp;D)：</translation>
    </message>
    <message id="scheduling_io_tip">
        <source></source>
        <translation>在磁盘的调度器支持时有效。0 优先于 7。</translation>
    </message>
    <message id="scheduling_io_none">
        <source></source>
        <translation>依照 nice 值</translation>
    </message>
    <message id="scheduling_io_best_effort">
        <source></source>
        <translation>尽力而为</translation>
    </message>
    <message id="scheduling_io_idle">
        <source></source>
        <translation>空闲</translation>
    </message>
    <message id="scheduling_io_real_time">
        <source></source>
        <translation>实时</translation>
    </message>
    <message id="scheduling_io_level">
        <source></source>
        <translation>级别：</translation>
    </message>
    <message id="scheduling_processors">
        <source></source>
        <translation>处理器(&amp;P)（可用 %1）：</translation>
    </message>
    <message id="scheduling_processors_tip">
        <source></source>
        <translation>编号和范围，例如 0-3,6；本机有 %1</translation>
    </message>
    <message id="scheduling_no_processors">
        <source></source>
        <translation>请指定 %1 中的处理器，例如 0 或 0-1,3。</translation>
    </message>
    <message id="signal_list">
        <source></source>
        <translation>信号</translation>
    </message>
    <message id="signal_column_name">
        <source></source>
        <translation>信号</translation>
    </message>
    <message id="signal_column_number">
        <source></source>
        <translation>编号</translation>
    </message>
    <message id="signal_column_effect">
        <source></source>
        <translation>用途</translation>
    </message>
    <message id="signal_realtime">
        <source></source>
        <translation>供程序自用；否则使其结束</translation>
    </message>
    <message id="signal_hup">
        <source></source>
        <translation>其终端已消失；服务通常会重新读取配置</translation>
    </message>
    <message id="signal_int">
        <source></source>
        <translation>中断，同终端中的 Ctrl+C；使其结束</translation>
    </message>
    <message id="signal_quit">
        <source></source>
        <translation>同终端中的 Ctrl+\；使其结束并产生核心转储</translation>
    </message>
    <message id="signal_ill">
        <source></source>
        <translation>遇到非法指令；使其结束并产生核心转储</translation>
    </message>
    <message id="signal_trap">
        <source></source>
        <translation>供调试器使用；使其结束并产生核心转储</translation>
    </message>
    <message id="signal_abrt">
        <source></source>
        <translation>自行中止；使其结束并产生核心转储</translation>
    </message>
    <message id="signal_bus">
        <source></source>
        <translation>访问不存在的内存；使其结束并产生核心转储</translation>
    </message>
    <message id="signal_fpe">
        <source></source>
        <translation>进行了无法完成的计算；使其结束并产生核心转储</translation>
    </message>
    <message id="signal_kill">
        <source></source>
        <translation>立即结束；无法保存任何内容</translation>
    </message>
    <message id="signal_usr1">
        <source></source>
        <translation>供程序自用；否则使其结束</translation>
    </message>
    <message id="signal_segv">
        <source></source>
        <translation>访问不属于它的内存；使其结束并产生核心转储</translation>
    </message>
    <message id="signal_usr2">
        <source></source>
        <translation>供程序自用；否则使其结束</translation>
    </message>
    <message id="signal_pipe">
        <source></source>
        <translation>已无程序读取它写出的内容；使其结束</translation>
    </message>
    <message id="signal_alrm">
        <source></source>
        <translation>其闹钟到时；使其结束</translation>
    </message>
    <message id="signal_term">
        <source></source>
        <translation>请求其结束</translation>
    </message>
    <message id="signal_stkflt">
        <source></source>
        <translation>未使用；使其结束</translation>
    </message>
    <message id="signal_chld">
        <source></source>
        <translation>子进程结束或停止；不做任何事</translation>
    </message>
    <message id="signal_cont">
        <source></source>
        <translation>停止后继续运行</translation>
    </message>
    <message id="signal_stop">
        <source></source>
        <translation>静止不动直到继续；无法捕获</translation>
    </message>
    <message id="signal_tstp">
        <source></source>
        <translation>停止，同终端中的 Ctrl+Z</translation>
    </message>
    <message id="signal_ttin">
        <source></source>
        <translation>在后台读取终端；使其停止</translation>
    </message>
    <message id="signal_ttou">
        <source></source>
        <translation>在后台写入终端；使其停止</translation>
    </message>
    <message id="signal_urg">
        <source></source>
        <translation>有紧急数据到达；不做任何事</translation>
    </message>
    <message id="signal_xcpu">
        <source></source>
        <translation>处理器时间已用完；使其结束并产生核心转储</translation>
    </message>
    <message id="signal_xfsz">
        <source></source>
        <translation>文件变得过大；使其结束并产生核心转储</translation>
    </message>
    <message id="signal_vtalrm">
        <source></source>
        <translation>其处理器时间的时钟到时；使其结束</translation>
    </message>
    <message id="signal_prof">
        <source></source>
        <translation>性能分析的时钟到时；使其结束</translation>
    </message>
    <message id="signal_winch">
        <source></source>
        <translation>其窗口大小改变；不做任何事</translation>
    </message>
    <message id="signal_poll">
        <source></source>
        <translation>有文件可以读写；使其结束</translation>
    </message>
    <message id="signal_pwr">
        <source></source>
        <translation>电源故障；使其结束</translation>
    </message>
    <message id="signal_sys">
        <source></source>
        <translation>进行了非法的系统调用；使其结束并产生核心转储</translation>
    </message>
    <message id="toolbar_select_children">
        <source></source>
        <translation>子进程</translation>
    </message>
    <message id="toolbar_select_children_tip">
        <source></source>
        <translation>改为选择选中进程所启动的进程。</translation>
    </message>
    <message id="toolbar_prefs">
        <source></source>
        <translation>首选项</translation>
    </message>
    <message id="toolbar_prefs_tip">
        <source></source>
        <translation>打开首选项。</translation>
    </message>
    <message id="toolbar_customise">
        <source></source>
        <translation>自定义</translation>
    </message>
    <message id="toolbar_customise_tip">
        <source></source>
        <translation>选择工具栏的内容和顺序。</translation>
    </message>
    <message id="toolbar_separator">
        <source></source>
        <translation>分隔线</translation>
    </message>
    <message id="toolbar_separator_tip">
        <source></source>
        <translation>各组项目之间的线。</translation>
    </message>
    <message id="toolbar_space">
        <source></source>
        <translation>空白</translation>
    </message>
    <message id="toolbar_space_tip">
        <source></source>
        <translation>项目之间的空白。</translation>
    </message>
    <message id="toolbar_flexible_space">
        <source></source>
        <translation>弹性空白</translation>
    </message>
    <message id="toolbar_flexible_space_tip">
        <source></source>
        <translation>将后面的项目移到工具栏末端。</translation>
    </message>
    <message id="toolbar_title">
        <source></source>
        <translation>工具栏</translation>
    </message>
    <message id="toolbar_customise_title">
        <source></source>
        <translation>自定义工具栏</translation>
    </message>
    <message id="toolbar_customise_hint">
        <source></source>
        <translation>将项目拖入工具栏，或从工具栏拖到可用项目列表中。也可以将项目放到窗口的工具栏上。</translation>
    </message>
    <message id="toolbar_customise_available">
        <source></source>
        <translation>可用项目(&amp;I)：</translation>
    </message>
    <message id="toolbar_customise_current">
        <source></source>
        <translation>工具栏中的项目(&amp;T)：</translation>
    </message>
    <message id="toolbar_customise_add">
        <source></source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message id="toolbar_customise_remove">
        <source></source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message id="toolbar_customise_earlier">
        <source></source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message id="toolbar_customise_later">
        <source></source>
        <translation>下移(&amp;D)</translation>
    </message>
    <message id="toolbar_customise_default_set">
        <source></source>
        <translation>默认组合：</translation>
    </message>
    <message id="toolbar_customise_default_set_tip">
        <source></source>
        <translation>可以整体拖入工具栏。</translation>
    </message>
    <message id="toolbar_customise_use_default">
        <source></source>
        <translation>使用默认组合(&amp;S)</translation>
    </message>
    <message id="toolbar_customise_mode">
        <source></source>
        <translation>显示(&amp;O)：</translation>
    </message>
    <message id="toolbar_customise_done">
        <source></source>
        <translation>完成(&amp;N)</translation>
    </message>
    <message id="toolbar_mode_both">
        <source></source>
        <translation>图标和文字</translation>
    </message>
    <message id="toolbar_mode_icon">
        <source></source>
        <translation>仅图标</translation>
    </message>
    <message id="toolbar_mode_text">
        <source></source>
        <translation>仅文字</translation>
    </message>
    <message id="logging_title">
        <source></source>
        <translation>%1 的日志 pid:%2</translation>
    </message>
    <message id="logging_title_file">
        <source></source>
        <translation>文件名：%1</translation>
    </message>
    <message id="logging_table">
        <source></source>
        <translation>单个进程的日志</translation>
    </message>
    <message id="logging_column_time">
        <source></source>
        <translation>时间</translation>
    </message>
    <message id="logging_column_time_tip">
        <source></source>
        <translation>写入此行的时间。</translation>
    </message>
    <message id="logging_column_active">
        <source></source>
        <translation>CPU 时间</translation>
    </message>
    <message id="logging_column_active_tip">
        <source></source>
        <translation>进程启动以来使用的 CPU 时间，以秒为单位。</translation>
    </message>
    <message id="logging_column_active_change">
        <source></source>
        <translation>∆ CPU 时间</translation>
    </message>
    <message id="logging_column_active_change_tip">
        <source></source>
        <translation>自上一行以来使用的 CPU 时间，以秒为单位。</translation>
    </message>
    <message id="logging_column_real">
        <source></source>
        <translation>常驻</translation>
    </message>
    <message id="logging_column_real_tip">
        <source></source>
        <translation>进程位于本机内存中的内存。</translation>
    </message>
    <message id="logging_column_real_change">
        <source></source>
        <translation>∆ 常驻</translation>
    </message>
    <message id="logging_column_real_change_tip">
        <source></source>
        <translation>常驻内存自上一行以来的变化。</translation>
    </message>
    <message id="logging_column_virtual">
        <source></source>
        <translation>虚拟</translation>
    </message>
    <message id="logging_column_virtual_tip">
        <source></source>
        <translation>进程的地址空间。</translation>
    </message>
    <message id="logging_column_virtual_change">
        <source></source>
        <translation>∆ 虚拟</translation>
    </message>
    <message id="logging_column_virtual_change_tip">
        <source></source>
        <translation>地址空间自上一行以来的变化。</translation>
    </message>
    <message id="logging_note_ended">
        <source></source>
        <translation>进程已结束。</translation>
    </message>
    <message id="logging_note_ended_remembered">
        <source></source>
        <translation>进程已结束。同名进程启动时，此窗口会重新出现。</translation>
    </message>
    <message id="logging_note_not_created">
        <source></source>
        <translation>没有日志文件：%1。各行仅在此显示。</translation>
    </message>
    <message id="logging_note_not_written">
        <source></source>
        <translation>日志文件中缺少一些行：%1。</translation>
    </message>
    <message id="logging_show_file">
        <source></source>
        <translation>显示文件(&amp;F)</translation>
    </message>
    <message id="logging_show_file_none">
        <source></source>
        <translation>没有写入文件。可以在首选项中设置将新日志写入文件。</translation>
    </message>
    <message id="logging_save_as">
        <source></source>
        <translation>另存为(&amp;S)…</translation>
    </message>
    <message id="record_title">
        <source></source>
        <translation>录制进程</translation>
    </message>
    <message id="record_filter">
        <source></source>
        <translation>录制文件 (*.lwr);;所有文件 (*)</translation>
    </message>
    <message id="record_failed">
        <source></source>
        <translation>无法录制进程。</translation>
    </message>
    <message id="record_behind">
        <source></source>
        <translation>录制的内容尚未全部写入磁盘。</translation>
    </message>
    <message id="record_behind_message">
        <source></source>
        <translation>其余部分会在 Lurkwell 运行期间写入。在此之前，不能再次录制到该文件。</translation>
    </message>
    <message id="record_status">
        <source></source>
        <translation>正在录制到 %1</translation>
    </message>
    <message id="record_trouble">
        <source></source>
        <translation>未能录制到 %1：%2</translation>
    </message>
    <message id="replay_open_title">
        <source></source>
        <translation>打开录制文件</translation>
    </message>
    <message id="replay_failed">
        <source></source>
        <translation>无法显示录制文件。</translation>
    </message>
    <message id="replay_title">
        <source></source>
        <translation>%1 – %2</translation>
    </message>
    <message id="replay_bar">
        <source></source>
        <translation>时间轴</translation>
    </message>
    <message id="replay_back">
        <source></source>
        <translation>后退一次更新</translation>
    </message>
    <message id="replay_play">
        <source></source>
        <translation>播放</translation>
    </message>
    <message id="replay_forth">
        <source></source>
        <translation>前进一次更新</translation>
    </message>
    <message id="replay_peak">
        <source></source>
        <translation>处理器使用率的下一个峰值</translation>
    </message>
    <message id="replay_speed">
        <source></source>
        <translation>速度</translation>
    </message>
    <message id="replay_moment">
        <source></source>
        <translation>转到某一时刻</translation>
    </message>
    <message id="replay_moment_tip">
        <source></source>
        <translation>转到某一时刻 (%1)：如 03:12 的时刻，带日期的时间，或 -2h，即距结尾的时间</translation>
    </message>
    <message id="replay_no_peak">
        <source></source>
        <translation>此后没有处理器使用率的峰值。</translation>
    </message>
    <message id="replay_no_actions">
        <source></source>
        <translation>这是录制文件：不能操作其中的进程。</translation>
    </message>
    <message id="logging_save_title">
        <source></source>
        <translation>保存日志</translation>
    </message>
    <message id="logging_save_filter">
        <source></source>
        <translation>表格 (*.tsv);;所有文件 (*)</translation>
    </message>
    <message id="logging_menu_title">
        <source></source>
        <translation>%1 的日志，pid %2</translation>
    </message>
    <message id="logging_identity">
        <source></source>
        <translation>所有者 %1：%2</translation>
    </message>
    <message id="remembered_owner">
        <source></source>
        <translation>所有者</translation>
    </message>
    <message id="logging_copy">
        <source></source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message id="logging_select_all">
        <source></source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message id="logging_note_not_saved">
        <source></source>
        <translation>日志未保存：%1。</translation>
    </message>
    <message id="logging_note_saved">
        <source></source>
        <translation>已保存为 %1。</translation>
    </message>
    <message id="logging_note_not_shown">
        <source></source>
        <translation>没有文件管理器可以显示该文件。文件为 %1。</translation>
    </message>
    <message id="logging_note_follows">
        <source></source>
        <translation>进程 %1 已结束。从“pid %2”开始的行属于进程 %2。</translation>
    </message>
    <message id="logging_row_of">
        <source></source>
        <translation>pid %1</translation>
    </message>
    <message id="history_title">
        <source></source>
        <translation>%1 的 CPU 历史，pid %2</translation>
    </message>
    <message id="history_identity">
        <source></source>
        <translation>pid %1</translation>
    </message>
    <message id="history_accessible">
        <source></source>
        <translation>%1 的 CPU 历史，%3 的进程 %2</translation>
    </message>
    <message id="history_now">
        <source></source>
        <translation>当前 %1 %，窗口内介于 %3 % 与 %4 % 之间；上边缘为 %2 %</translation>
    </message>
    <message id="history_tip">
        <source></source>
        <translation>&lt;b&gt;%1&lt;/b&gt;&lt;br&gt;pid %2，所有者 %3&lt;br&gt;%4</translation>
    </message>
    <message id="history_not_above">
        <source></source>
        <translation>此桌面不会让它保持在其他窗口之上；桌面自己的窗口规则也许可以。</translation>
    </message>
    <message id="history_menu_relative">
        <source></source>
        <translation>按最近的最大值缩放(&amp;S)</translation>
    </message>
    <message id="history_menu_descendants">
        <source></source>
        <translation>计入后代进程(&amp;D)</translation>
    </message>
    <message id="history_menu_close">
        <source></source>
        <translation>关闭并忘记(&amp;C)</translation>
    </message>
    <message id="details_title">
        <source></source>
        <translation>%1 (%2)：详情</translation>
    </message>
    <message id="details_title_ended">
        <source></source>
        <translation>%1 (%2)，已结束：详情</translation>
    </message>
    <message id="details_heading">
        <source></source>
        <translation>%1（进程 %2）</translation>
    </message>
    <message id="details_heading_ended">
        <source></source>
        <translation>%1（进程 %2），截至 %3，已结束</translation>
    </message>
    <message id="details_ended">
        <source></source>
        <translation>截至 %1，已结束。保留最后读取的内容。</translation>
    </message>
    <message id="details_ended_before">
        <source></source>
        <translation>进程在读取此内容之前已结束。</translation>
    </message>
    <message id="details_actions">
        <source></source>
        <translation>操作(&amp;A)</translation>
    </message>
    <message id="details_pages">
        <source></source>
        <translation>页面</translation>
    </message>
    <message id="details_filter">
        <source></source>
        <translation>只显示包含以下内容的行…</translation>
    </message>
    <message id="details_reading">
        <source></source>
        <translation>正在读取…</translation>
    </message>
    <message id="details_waiting">
        <source></source>
        <translation>系统尚未回应，仍在等待。进程的内存可能被锁定，或位于没有回应的文件系统上。</translation>
    </message>
    <message id="details_too_many_hang">
        <source></source>
        <translation>系统尚未回应的先前请求过多。其中一个得到回应后，就会发出此请求。</translation>
    </message>
    <message id="details_refused">
        <source></source>
        <translation>不允许：此进程属于其他用户。只有其所有者和 root 可以读取。</translation>
    </message>
    <message id="details_refused_owner">
        <source></source>
        <translation>不允许：此进程属于 %1。只有其所有者和 root 可以读取。</translation>
    </message>
    <message id="details_kept_secret">
        <source></source>
        <translation>不允许：该进程不让其他程序读取此内容，包括同一用户的程序。</translation>
    </message>
    <message id="details_none">
        <source></source>
        <translation>本系统没有此进程的这类信息。</translation>
    </message>
    <message id="details_nothing">
        <source></source>
        <translation>没有。</translation>
    </message>
    <message id="details_failed">
        <source></source>
        <translation>系统目前资源不足。稍后会重试。</translation>
    </message>
    <message id="details_first_ones">
        <source></source>
        <translation>%1；显示前 %2 个</translation>
    </message>
    <message id="details_unlimited">
        <source></source>
        <translation>无限制</translation>
    </message>
    <message id="details_parent">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="details_overview">
        <source></source>
        <translation>概览</translation>
    </message>
    <message id="details_overview_figure">
        <source></source>
        <translation>项目</translation>
    </message>
    <message id="details_overview_value">
        <source></source>
        <translation>值</translation>
    </message>
    <message id="details_graph_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="details_graph_memory">
        <source></source>
        <translation>内存</translation>
    </message>
    <message id="details_graph_disk">
        <source></source>
        <translation>磁盘</translation>
    </message>
    <message id="details_graph_network">
        <source></source>
        <translation>网络 (TCP)</translation>
    </message>
    <message id="details_graph_resident">
        <source></source>
        <translation>常驻</translation>
    </message>
    <message id="details_graph_swap">
        <source></source>
        <translation>已换出</translation>
    </message>
    <message id="details_graph_read">
        <source></source>
        <translation>读取</translation>
    </message>
    <message id="details_graph_written">
        <source></source>
        <translation>写入</translation>
    </message>
    <message id="details_graph_received">
        <source></source>
        <translation>接收</translation>
    </message>
    <message id="details_graph_sent">
        <source></source>
        <translation>发送</translation>
    </message>
    <message id="details_threads">
        <source></source>
        <translation>线程</translation>
    </message>
    <message id="details_threads_count">
        <source></source>
        <translation>线程：%1</translation>
    </message>
    <message id="details_thread_id">
        <source></source>
        <translation>线程</translation>
    </message>
    <message id="details_thread_name">
        <source></source>
        <translation>名称</translation>
    </message>
    <message id="details_thread_share">
        <source></source>
        <translation>CPU %</translation>
    </message>
    <message id="details_thread_time">
        <source></source>
        <translation>CPU 时间</translation>
    </message>
    <message id="details_thread_state">
        <source></source>
        <translation>状态</translation>
    </message>
    <message id="details_thread_processor">
        <source></source>
        <translation>处理器</translation>
    </message>
    <message id="details_thread_nice">
        <source></source>
        <translation>nice 值</translation>
    </message>
    <message id="details_descriptors">
        <source></source>
        <translation>文件和套接字</translation>
    </message>
    <message id="details_descriptors_count">
        <source></source>
        <translation>打开的文件、套接字等：%1</translation>
    </message>
    <message id="details_descriptor">
        <source></source>
        <translation>编号</translation>
    </message>
    <message id="details_descriptor_kind">
        <source></source>
        <translation>种类</translation>
    </message>
    <message id="details_descriptor_target">
        <source></source>
        <translation>路径或地址</translation>
    </message>
    <message id="details_descriptor_position">
        <source></source>
        <translation>位置</translation>
    </message>
    <message id="details_descriptor_flags">
        <source></source>
        <translation>打开用途</translation>
    </message>
    <message id="details_mappings">
        <source></source>
        <translation>内存</translation>
    </message>
    <message id="details_mappings_count">
        <source></source>
        <translation>映射：%1；大小 %2，常驻 %3，分摊 %4</translation>
    </message>
    <message id="details_mapping_range">
        <source></source>
        <translation>地址</translation>
    </message>
    <message id="details_mapping_size">
        <source></source>
        <translation>大小</translation>
    </message>
    <message id="details_mapping_resident">
        <source></source>
        <translation>常驻</translation>
    </message>
    <message id="details_mapping_proportional">
        <source></source>
        <translation>分摊</translation>
    </message>
    <message id="details_mapping_swapped">
        <source></source>
        <translation>已换出</translation>
    </message>
    <message id="details_mapping_permissions">
        <source></source>
        <translation>访问</translation>
    </message>
    <message id="details_mapping_file">
        <source></source>
        <translation>文件</translation>
    </message>
    <message id="details_environment">
        <source></source>
        <translation>环境</translation>
    </message>
    <message id="details_environment_count">
        <source></source>
        <translation>程序启动时的变量：%1</translation>
    </message>
    <message id="details_variable_name">
        <source></source>
        <translation>名称</translation>
    </message>
    <message id="details_variable_value">
        <source></source>
        <translation>值</translation>
    </message>
    <message id="details_limits">
        <source></source>
        <translation>限制</translation>
    </message>
    <message id="details_limits_count">
        <source></source>
        <translation>进程的限制：%1。进程可将自己的限制提高到上限。</translation>
    </message>
    <message id="details_limit_name">
        <source></source>
        <translation>限制</translation>
    </message>
    <message id="details_limit_soft">
        <source></source>
        <translation>当前</translation>
    </message>
    <message id="details_limit_hard">
        <source></source>
        <translation>上限</translation>
    </message>
    <message id="details_limit_unit">
        <source></source>
        <translation>单位</translation>
    </message>
    <message id="details_group">
        <source></source>
        <translation>控制组</translation>
    </message>
    <message id="details_group_count">
        <source></source>
        <translation>数值：%1。它们是组内所有进程的合计；上级组仅在有所限制时列出。</translation>
    </message>
    <message id="details_group_figure">
        <source></source>
        <translation>项目</translation>
    </message>
    <message id="details_group_in_use">
        <source></source>
        <translation>使用中</translation>
    </message>
    <message id="details_group_limit">
        <source></source>
        <translation>限制</translation>
    </message>
    <message id="details_group_path">
        <source></source>
        <translation>组</translation>
    </message>
    <message id="details_group_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 个处理器</numerusform>
        </translation>
    </message>
    <message id="details_group_memory">
        <source></source>
        <translation>内存</translation>
    </message>
    <message id="details_group_memory.high">
        <source></source>
        <translation>开始减速的内存</translation>
    </message>
    <message id="details_group_memory.peak">
        <source></source>
        <translation>迄今最多内存</translation>
    </message>
    <message id="details_group_memory.swap">
        <source></source>
        <translation>交换</translation>
    </message>
    <message id="details_group_pids">
        <source></source>
        <translation>进程和线程</translation>
    </message>
    <message id="details_group_cpu.max">
        <source></source>
        <translation>CPU 上限</translation>
    </message>
    <message id="details_group_cpu.weight">
        <source></source>
        <translation>CPU 权重</translation>
    </message>
    <message id="details_group_cpu.usage">
        <source></source>
        <translation>CPU 时间</translation>
    </message>
    <message id="details_group_cpu.throttled">
        <source></source>
        <translation>因限制而没有 CPU 的时间</translation>
    </message>
    <message id="details_group_memory.high_events">
        <source></source>
        <translation>因内存而减速的次数</translation>
    </message>
    <message id="details_group_memory.oom_kills">
        <source></source>
        <translation>因内存不足而被杀死的进程</translation>
    </message>
    <message id="remembered_title">
        <source></source>
        <translation>Lurkwell：记住的窗口</translation>
    </message>
    <message id="remembered_program">
        <source></source>
        <translation>程序</translation>
    </message>
    <message id="remembered_window">
        <source></source>
        <translation>窗口</translation>
    </message>
    <message id="remembered_process">
        <source></source>
        <translation>进程</translation>
    </message>
    <message id="remembered_log">
        <source></source>
        <translation>日志</translation>
    </message>
    <message id="remembered_history">
        <source></source>
        <translation>CPU 历史</translation>
    </message>
    <message id="remembered_follows">
        <source></source>
        <translation>pid %1</translation>
    </message>
    <message id="remembered_waits">
        <source></source>
        <translation>等待程序启动</translation>
    </message>
    <message id="remembered_explanation">
        <source></source>
        <translation>这些窗口会在其程序启动时重新出现。忘记的窗口不再出现；如果它正打开着，则保留到关闭为止。</translation>
    </message>
    <message id="remembered_forget">
        <source></source>
        <translation>忘记(&amp;F)</translation>
    </message>
    <message id="preferences_title">
        <source></source>
        <translation>Lurkwell 首选项</translation>
    </message>
    <message id="preferences_page">
        <source></source>
        <translation>页面</translation>
    </message>
    <message id="preferences_form_missing">
        <source></source>
        <translation>无法显示首选项。</translation>
    </message>
    <message id="preferences_form_missing_text">
        <source></source>
        <translation>程序缺少一部分：首选项窗口的布局。请重新安装 Lurkwell。</translation>
    </message>
    <message id="preferences_times_per_second" numerus="yes">
        <source></source>
        <translation>
            <numerusform>每秒 %n 次</numerusform>
        </translation>
    </message>
    <message id="preferences_every_seconds" numerus="yes">
        <source></source>
        <translation>
            <numerusform>每 %n 秒</numerusform>
        </translation>
    </message>
    <message id="preferences_every_minutes" numerus="yes">
        <source></source>
        <translation>
            <numerusform>每 %n 分钟</numerusform>
        </translation>
    </message>
    <message id="preferences_every_hour">
        <source></source>
        <translation>每小时</translation>
    </message>
    <message id="preferences_interval_invalid">
        <source></source>
        <translation>输入无效，无法转换</translation>
    </message>
    <message id="preferences_percent">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="preferences_page_general">
        <source></source>
        <translation>常规</translation>
    </message>
    <message id="preferences_page_mainwindow">
        <source></source>
        <translation>主窗口</translation>
    </message>
    <message id="preferences_page_animatedview">
        <source></source>
        <translation>动画视图</translation>
    </message>
    <message id="preferences_page_history">
        <source></source>
        <translation>CPU 历史</translation>
    </message>
    <message id="preferences_page_logging">
        <source></source>
        <translation>日志</translation>
    </message>
    <message id="preferences_all_settings">
        <source></source>
        <translation>所有设置(&amp;L)…</translation>
    </message>
    <message id="preferences_all_settings_tip">
        <source></source>
        <translation>程序的全部设置，包括没有专门控件的设置。</translation>
    </message>
    <message id="preferences_close">
        <source></source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message id="preferences_close_tip">
        <source></source>
        <translation>关闭窗口。所有更改均已保存。</translation>
    </message>
    <message id="preferences_memoryFormatMatrix">
        <source></source>
        <translation>内存大小</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_tip">
        <source></source>
        <translation>表格、条形和日志中内存大小的单位。</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_automatic">
        <source></source>
        <translation>自动(&amp;A)</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_bytes">
        <source></source>
        <translation>字节(&amp;B)</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_kilobytes">
        <source></source>
        <translation>千字节(&amp;K)</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_megabytes">
        <source></source>
        <translation>兆字节(&amp;M)</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_gigabytes">
        <source></source>
        <translation>吉字节(&amp;G)</translation>
    </message>
    <message id="preferences_dateFormatMatrix">
        <source></source>
        <translation>日期</translation>
    </message>
    <message id="preferences_dateFormatMatrix_tip">
        <source></source>
        <translation>表格和日志中日期和时间的写法。</translation>
    </message>
    <message id="preferences_dateFormatMatrix_calendar">
        <source></source>
        <translation>日历和时钟(&amp;N)</translation>
    </message>
    <message id="preferences_dateFormatMatrix_seconds">
        <source></source>
        <translation>自 1970 年起的秒数(&amp;S)</translation>
    </message>
    <message id="preferences_dateFormatMatrix_microseconds">
        <source></source>
        <translation>秒和微秒(&amp;R)</translation>
    </message>
    <message id="preferences_mainWindowInterval">
        <source></source>
        <translation>更新表格(&amp;U)：</translation>
    </message>
    <message id="preferences_mainWindowInterval_tip">
        <source></source>
        <translation>主窗口的表格多久更新一次。更新得越少，开销越小。</translation>
    </message>
    <message id="preferences_memoryGraph">
        <source></source>
        <translation>在内存条形图上显示大小(&amp;S)</translation>
    </message>
    <message id="preferences_memoryGraph_tip">
        <source></source>
        <translation>在每个内存条形图上写出其长度表示的大小。</translation>
    </message>
    <message id="preferences_memoryFigure">
        <source></source>
        <translation>内存条形图显示(&amp;B)：</translation>
    </message>
    <message id="preferences_memoryFigure_tip">
        <source></source>
        <translation>内存条形图的长度表示什么；表格按内存条形图排序时，也决定行的顺序。</translation>
    </message>
    <message id="preferences_memoryFigure_virtual">
        <source></source>
        <translation>虚拟大小，其中标出常驻大小</translation>
    </message>
    <message id="preferences_memoryFigure_resident">
        <source></source>
        <translation>常驻大小</translation>
    </message>
    <message id="preferences_memoryFigure_proportional">
        <source></source>
        <translation>分摊大小：共享内存按份计算</translation>
    </message>
    <message id="preferences_frameInterval">
        <source></source>
        <translation>绘制画面(&amp;D)：</translation>
    </message>
    <message id="preferences_frameInterval_tip">
        <source></source>
        <translation>动画视图多久绘制一次。下面两个间隔不会比它短。</translation>
    </message>
    <message id="preferences_mainInterval">
        <source></source>
        <translation>更新进程(&amp;P)：</translation>
    </message>
    <message id="preferences_mainInterval_tip">
        <source></source>
        <translation>动画视图多久查看一次启动或结束的进程。不会比绘制短，也不会比测量长。</translation>
    </message>
    <message id="preferences_cpuInterval">
        <source></source>
        <translation>测量 CPU 使用率(&amp;M)：</translation>
    </message>
    <message id="preferences_cpuInterval_tip">
        <source></source>
        <translation>动画视图多久测量一次其进程的 CPU 使用率。上面两个间隔不会比它长。</translation>
    </message>
    <message id="preferences_windowAlpha">
        <source></source>
        <translation>全屏时的不透明度(&amp;O)：</translation>
    </message>
    <message id="preferences_windowAlpha_tip">
        <source></source>
        <translation>全屏视图遮盖桌面的程度：0 % 看不到视图，100 % 看不到桌面。</translation>
    </message>
    <message id="preferences_underlayAlpha">
        <source></source>
        <translation>背景的不透明度(&amp;B)：</translation>
    </message>
    <message id="preferences_underlayAlpha_tip">
        <source></source>
        <translation>全屏时进程背后的画面有多明显。</translation>
    </message>
    <message id="preferences_connectors">
        <source></source>
        <translation>全屏时连接父进程和子进程(&amp;J)</translation>
    </message>
    <message id="preferences_connectors_tip">
        <source></source>
        <translation>在全屏视图中也从每个进程到其父进程画一条线。</translation>
    </message>
    <message id="preferences_historyInterval">
        <source></source>
        <translation>测量 CPU 使用率(&amp;M)：</translation>
    </message>
    <message id="preferences_historyInterval_tip">
        <source></source>
        <translation>CPU 历史多久增加一个新点。</translation>
    </message>
    <message id="preferences_historyFilter">
        <source></source>
        <translation>平滑(&amp;H)：</translation>
    </message>
    <message id="preferences_historyFilter_tip">
        <source></source>
        <translation>前一个点对下一个点的影响程度：0 % 显示每个跳变，数值越大线条越平缓。</translation>
    </message>
    <message id="preferences_historyColour">
        <source></source>
        <translation>CPU 使用率(&amp;G)：</translation>
    </message>
    <message id="preferences_historyColour_tip">
        <source></source>
        <translation>进程 CPU 使用率曲线的颜色；包含后代进程时，也计入后代进程的使用率。</translation>
    </message>
    <message id="preferences_descendantsColour">
        <source></source>
        <translation>自身份额(&amp;E)：</translation>
    </message>
    <message id="preferences_descendantsColour_tip">
        <source></source>
        <translation>包含后代进程时，进程自身份额曲线的颜色。适用于此后打开的窗口。</translation>
    </message>
    <message id="preferences_relative">
        <source></source>
        <translation>按最近的最大值缩放(&amp;S)</translation>
    </message>
    <message id="preferences_relative_tip">
        <source></source>
        <translation>图形的高度表示最近的最高使用率，而不是 100 %。</translation>
    </message>
    <message id="preferences_descendants">
        <source></source>
        <translation>包含进程的后代进程(&amp;I)</translation>
    </message>
    <message id="preferences_descendants_tip">
        <source></source>
        <translation>以另一种颜色显示它启动的进程的使用率。</translation>
    </message>
    <message id="preferences_loggingInterval">
        <source></source>
        <translation>查看变化(&amp;K)：</translation>
    </message>
    <message id="preferences_loggingInterval_tip">
        <source></source>
        <translation>日志多久查看一次是否有新内容要记录。</translation>
    </message>
    <message id="preferences_timestamp">
        <source></source>
        <translation>时间(&amp;T)</translation>
    </message>
    <message id="preferences_timestamp_tip">
        <source></source>
        <translation>包含每行时间的列。</translation>
    </message>
    <message id="preferences_logToFile">
        <source></source>
        <translation>同时写入文件(&amp;F)</translation>
    </message>
    <message id="preferences_logToFile_tip">
        <source></source>
        <translation>将每一行追加到日志自己的文本文件中。</translation>
    </message>
    <message id="preferences_activeTime">
        <source></source>
        <translation>CPU 时间(&amp;U)</translation>
    </message>
    <message id="preferences_activeTime_tip">
        <source></source>
        <translation>包含进程已用 CPU 时间的列。</translation>
    </message>
    <message id="preferences_deltaActiveTime">
        <source></source>
        <translation>CPU 时间的变化(&amp;G)</translation>
    </message>
    <message id="preferences_deltaActiveTime_tip">
        <source></source>
        <translation>包含自上一行以来所用 CPU 时间的列。</translation>
    </message>
    <message id="preferences_realMemory">
        <source></source>
        <translation>常驻内存(&amp;R)</translation>
    </message>
    <message id="preferences_realMemory_tip">
        <source></source>
        <translation>包含进程正在使用的内存的列。</translation>
    </message>
    <message id="preferences_deltaRealMemory">
        <source></source>
        <translation>常驻内存的变化(&amp;E)</translation>
    </message>
    <message id="preferences_deltaRealMemory_tip">
        <source></source>
        <translation>包含常驻内存自上一行以来的变化的列。</translation>
    </message>
    <message id="preferences_virtualMemory">
        <source></source>
        <translation>虚拟内存(&amp;V)</translation>
    </message>
    <message id="preferences_virtualMemory_tip">
        <source></source>
        <translation>包含进程地址空间大小的列。</translation>
    </message>
    <message id="preferences_deltaVirtualMemory">
        <source></source>
        <translation>虚拟内存的变化(&amp;N)</translation>
    </message>
    <message id="preferences_deltaVirtualMemory_tip">
        <source></source>
        <translation>包含虚拟内存自上一行以来的变化的列。</translation>
    </message>
    <message id="preferences_notice">
        <source></source>
        <translation>更改适用于此后打开的日志窗口。</translation>
    </message>
    <message id="settings_title">
        <source></source>
        <translation>所有设置</translation>
    </message>
    <message id="settings_filter">
        <source></source>
        <translation>按名称、键、值或含义过滤</translation>
    </message>
    <message id="settings_reset">
        <source></source>
        <translation>恢复默认值(&amp;R)</translation>
    </message>
    <message id="settings_reset_tip">
        <source></source>
        <translation>删除选中设置存储的值，使其默认值生效。</translation>
    </message>
    <message id="settings_column_key">
        <source></source>
        <translation>设置</translation>
    </message>
    <message id="settings_column_value">
        <source></source>
        <translation>值</translation>
    </message>
    <message id="settings_column_default">
        <source></source>
        <translation>默认值</translation>
    </message>
    <message id="settings_column_kind">
        <source></source>
        <translation>类型</translation>
    </message>
    <message id="settings_column_effect">
        <source></source>
        <translation>生效</translation>
    </message>
    <message id="settings_column_meaning">
        <source></source>
        <translation>含义</translation>
    </message>
    <message id="settings_kind_switch">
        <source></source>
        <translation>开关</translation>
    </message>
    <message id="settings_kind_choice">
        <source></source>
        <translation>选项</translation>
    </message>
    <message id="settings_kind_integer">
        <source></source>
        <translation>整数</translation>
    </message>
    <message id="settings_kind_interval">
        <source></source>
        <translation>间隔</translation>
    </message>
    <message id="settings_kind_colour">
        <source></source>
        <translation>颜色，0 至 65535</translation>
    </message>
    <message id="settings_kind_real">
        <source></source>
        <translation>数值</translation>
    </message>
    <message id="settings_kind_text">
        <source></source>
        <translation>文本</translation>
    </message>
    <message id="settings_kind_record">
        <source></source>
        <translation>程序自己的记录</translation>
    </message>
    <message id="settings_kind_array">
        <source></source>
        <translation>一组记录</translation>
    </message>
    <message id="settings_kind_unit">
        <source></source>
        <translation>%1（%2）</translation>
    </message>
    <message id="settings_unit_milliseconds">
        <source></source>
        <translation>毫秒</translation>
    </message>
    <message id="settings_unit_seconds">
        <source></source>
        <translation>秒</translation>
    </message>
    <message id="settings_unit_pages">
        <source></source>
        <translation>页</translation>
    </message>
    <message id="settings_unit_points">
        <source></source>
        <translation>点</translation>
    </message>
    <message id="settings_unit_ticks">
        <source></source>
        <translation>滴答（每秒 60 个）</translation>
    </message>
    <message id="settings_kind_range">
        <source></source>
        <translation>%1，%2 至 %3</translation>
    </message>
    <message id="settings_effect_at_once">
        <source></source>
        <translation>立即</translation>
    </message>
    <message id="settings_effect_new_windows">
        <source></source>
        <translation>对新窗口</translation>
    </message>
    <message id="settings_effect_next_start">
        <source></source>
        <translation>下次启动起</translation>
    </message>
    <message id="settings_note_at_once">
        <source></source>
        <translation>更改立即生效。</translation>
    </message>
    <message id="settings_note_new_windows">
        <source></source>
        <translation>更改适用于此后打开的窗口。</translation>
    </message>
    <message id="settings_note_next_start">
        <source></source>
        <translation>更改自程序下次启动起生效。</translation>
    </message>
    <message id="settings_note_not_stored">
        <source></source>
        <translation>没有存储值，使用默认值。%1</translation>
    </message>
    <message id="settings_note_record">
        <source></source>
        <translation>此项由程序自己维护，不在这里更改。</translation>
    </message>
    <message id="hot_key_given">
        <source></source>
        <translation>在此桌面上，按键为：%1。</translation>
    </message>
    <message id="hot_key_awaited">
        <source></source>
        <translation>桌面尚未答复。</translation>
    </message>
    <message id="hot_key_taken">
        <source></source>
        <translation>它不起作用：另一个程序占用了该按键，或键盘上没有该按键。</translation>
    </message>
    <message id="hot_key_refused">
        <source></source>
        <translation>它不起作用：桌面没有给予该按键。可在桌面自己的按键设置中更改。</translation>
    </message>
    <message id="hot_key_no_way">
        <source></source>
        <translation>它不起作用：此桌面不给程序分配按键。可在桌面自己的设置中为命令“lurkwell --toggle-overlay”指定一个按键。</translation>
    </message>
    <message id="settings_note_no_number">
        <source></source>
        <translation>存储的内容不是数值，按 0 读取。请输入数值，或将设置恢复默认值。</translation>
    </message>
    <message id="settings_elements" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 条记录</numerusform>
        </translation>
    </message>
    <message id="settings_problem_no_number">
        <source></source>
        <translation>“%1”不是数值。设置保持不变。</translation>
    </message>
    <message id="settings_problem_not_whole">
        <source></source>
        <translation>“%1”不是整数。设置保持不变。</translation>
    </message>
    <message id="settings_problem_range">
        <source></source>
        <translation>“%1”超出范围：必须在 %2 至 %3 之间。设置保持不变。</translation>
    </message>
    <message id="settings_problem_characters">
        <source></source>
        <translation>文本中有设置不能包含的字符。设置保持不变。</translation>
    </message>
    <message id="settings_component_red">
        <source></source>
        <translation>%1红色分量。</translation>
    </message>
    <message id="settings_component_green">
        <source></source>
        <translation>%1绿色分量。</translation>
    </message>
    <message id="settings_component_blue">
        <source></source>
        <translation>%1蓝色分量。</translation>
    </message>
    <message id="settings_title_red">
        <source></source>
        <translation>%1：红</translation>
    </message>
    <message id="settings_title_green">
        <source></source>
        <translation>%1：绿</translation>
    </message>
    <message id="settings_title_blue">
        <source></source>
        <translation>%1：蓝</translation>
    </message>
    <message id="settings_title_and_key">
        <source></source>
        <translation>%1，键 %2</translation>
    </message>
    <message id="setting_title_GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT">
        <source></source>
        <translation>内存大小的单位</translation>
    </message>
    <message id="setting_title_GENERAL_PREFERRED_DATE_DISPLAY_FORMAT">
        <source></source>
        <translation>日期的格式</translation>
    </message>
    <message id="setting_title_GENERAL_ALWAYS_AUTHENTICATE_DAEMON">
        <source></source>
        <translation>每次启动时要求输入密码</translation>
    </message>
    <message id="setting_title_GENERAL_CONTINUE_WITHOUT_RIGHTS">
        <source></source>
        <translation>不使用管理员权限启动</translation>
    </message>
    <message id="setting_title_FIGURES_FROM_HELPER">
        <source></source>
        <translation>向辅助程序查询进程数值</translation>
    </message>
    <message id="setting_title_PREFERENCES_UI_DEFAULT_TAB">
        <source></source>
        <translation>首选项的页面</translation>
    </message>
    <message id="setting_title_ABOUT_PANEL_AT_EVERY_START">
        <source></source>
        <translation>每次启动时显示关于面板</translation>
    </message>
    <message id="hint_details">
        <source></source>
        <translation>双击进程可打开其详情；右击可查看能对它执行的操作。</translation>
    </message>
    <message id="hint_filter">
        <source></source>
        <translation>Ctrl+F 可按任何内容查找进程：试试 user:root cpu&gt;5 或 port:443。</translation>
    </message>
    <message id="hint_columns">
        <source></source>
        <translation>右击表头可添加列；Ctrl+1 至 Ctrl+7 可切换整套列方案。</translation>
    </message>
    <message id="hint_follow">
        <source></source>
        <translation>Ctrl+N 可让选中进程的小图形浮在所有窗口之上；它会随其程序重新出现。</translation>
    </message>
    <message id="hint_shapes">
        <source></source>
        <translation>Alt+2 以树显示进程，Alt+3 按应用程序显示；合计为整个分支的数值。</translation>
    </message>
    <message id="hints_none">
        <source></source>
        <translation>不再显示提示</translation>
    </message>
    <message id="hints_close">
        <source></source>
        <translation>收起此提示</translation>
    </message>
    <message id="setting_title_HINTS_SEEN">
        <source></source>
        <translation>已收起的提示</translation>
    </message>
    <message id="setting_title_ABOUT_PANEL_SEEN_VERSION">
        <source></source>
        <translation>关于面板：已显示的版本</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_INTERVAL">
        <source></source>
        <translation>表格：更新间隔</translation>
    </message>
    <message id="setting_title_MEM_GRAPH_DRAW_VSZ">
        <source></source>
        <translation>表格：内存条形图上的大小</translation>
    </message>
    <message id="setting_title_MEMORY_BAR_FIGURE">
        <source></source>
        <translation>表格：内存条形图显示的内容</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE">
        <source></source>
        <translation>表格：空闲任务计为 0</translation>
    </message>
    <message id="setting_title_CPU_SHARE_OF_MACHINE">
        <source></source>
        <translation>列：CPU 份额按整机计算</translation>
    </message>
    <message id="setting_title_KEEP_COMMAND_LINES">
        <source></source>
        <translation>输出：完整命令行</translation>
    </message>
    <message id="setting_title_MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT">
        <source></source>
        <translation>表格：不计共享区域</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_PAGEOUT_CRITICAL_FLASH_INTERVAL">
        <source></source>
        <translation>换页灯：闪烁间隔</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_FILTER">
        <source></source>
        <translation>换页灯：平滑</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_RED">
        <source></source>
        <translation>换页灯：变红的值</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_YELLOW">
        <source></source>
        <translation>换页灯：变黄的值</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_PROCESS_LIST_WINDOW">
        <source></source>
        <translation>主窗口曾打开</translation>
    </message>
    <message id="setting_title_DETAILS_WINDOW_FRAME">
        <source></source>
        <translation>详情：位置和大小</translation>
    </message>
    <message id="setting_DETAILS_WINDOW_FRAME">
        <source></source>
        <translation>上次关闭的进程详情窗口的位置和大小。</translation>
    </message>
    <message id="setting_title_DETAILS_WINDOW_PAGE">
        <source></source>
        <translation>详情：页面</translation>
    </message>
    <message id="setting_DETAILS_WINDOW_PAGE">
        <source></source>
        <translation>详情窗口上次显示的页面，从 0 开始计数。</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FRAME">
        <source></source>
        <translation>主窗口：位置和大小</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_ITEMS">
        <source></source>
        <translation>工具栏：项目</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_DISPLAY_MODE">
        <source></source>
        <translation>工具栏：图标或文字</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_SHOWN">
        <source></source>
        <translation>工具栏：是否显示</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SORT_COLUMN_INDEX">
        <source></source>
        <translation>表格：排序列</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SHAPE">
        <source></source>
        <translation>进程表格的形式，标准方案</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SCOPE">
        <source></source>
        <translation>进程表格的范围</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FOLLOWS_SELECTION">
        <source></source>
        <translation>选中行位置保持不变</translation>
    </message>
    <message id="setting_title_WEB_SEARCH_ADDRESS">
        <source></source>
        <translation>网上搜索的地址</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FOLDED_PROGRAMS">
        <source></source>
        <translation>已折叠的程序</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_UNFOLDED_APPLICATIONS">
        <source></source>
        <translation>已展开的应用程序</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_RECENT_FILTERS">
        <source></source>
        <translation>最近的过滤器</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMNS">
        <source></source>
        <translation>表格：列</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMN_SETS">
        <source></source>
        <translation>表格：列方案</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMN_SET">
        <source></source>
        <translation>表格：显示的方案</translation>
    </message>
    <message id="setting_title_HAS_RUN_TWO_POINT_THREE">
        <source></source>
        <translation>已添加标记列</translation>
    </message>
    <message id="setting_title_HAS_RUN_TWO_POINT_FOUR">
        <source></source>
        <translation>已添加内存条形图列</translation>
    </message>
    <message id="setting_title_DEFAULT_X_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>小窗口：上一个的左边缘</translation>
    </message>
    <message id="setting_title_DEFAULT_Y_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>小窗口：上一个的上边缘</translation>
    </message>
    <message id="setting_title_DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA">
        <source></source>
        <translation>小窗口：不透明度</translation>
    </message>
    <message id="setting_title_DEFAULT_WATCHDOG_INTERVAL">
        <source></source>
        <translation>记住的窗口：查看其程序的间隔</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_WINDOW_INTERVAL">
        <source></source>
        <translation>CPU 历史：两点之间的时间</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_USE_RELATIVE">
        <source></source>
        <translation>CPU 历史：按最近的最大值缩放</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS">
        <source></source>
        <translation>CPU 历史：包含后代进程</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_DEFAULT_FILTER">
        <source></source>
        <translation>CPU 历史：平滑</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_BACKGROUND_RGB">
        <source></source>
        <translation>CPU 历史：底色</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_FOREGROUND_RGB">
        <source></source>
        <translation>CPU 历史：CPU 使用率</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB">
        <source></source>
        <translation>CPU 历史：自身份额</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_NAME_RGB">
        <source></source>
        <translation>CPU 历史：名称</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_RGB">
        <source></source>
        <translation>CPU 历史：固定刻度的标签</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB">
        <source></source>
        <translation>CPU 历史：缩放刻度的标签</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_FLASH_RGB">
        <source></source>
        <translation>CPU 历史：新刻度的标签</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG">
        <source></source>
        <translation>CPU 历史：百分比的底色</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG">
        <source></source>
        <translation>CPU 历史：百分比</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_NAME_ALPHA">
        <source></source>
        <translation>CPU 历史：名称的不透明度</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HIGHWATERMARK_ALPHA">
        <source></source>
        <translation>CPU 历史：刻度标签的不透明度</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_ALPHA">
        <source></source>
        <translation>CPU 历史：百分比的不透明度</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_ICON_ALPHA">
        <source></source>
        <translation>CPU 历史：图标的不透明度（旧）</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_ICON_ALPHA_REALLY">
        <source></source>
        <translation>CPU 历史：图标的不透明度</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW">
        <source></source>
        <translation>CPU 历史：记住的窗口</translation>
    </message>
    <message id="setting_title_DEFAULT_LOGGING_WINDOW_INTERVAL">
        <source></source>
        <translation>日志：查看变化的间隔</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_INCLUDE_TIMESTAMP">
        <source></source>
        <translation>日志：时间</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>日志：CPU 时间</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>日志：CPU 时间的变化</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_REAL_MEM_BOOL">
        <source></source>
        <translation>日志：常驻内存</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_REAL_MEM_BOOL">
        <source></source>
        <translation>日志：常驻内存的变化</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>日志：虚拟内存</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>日志：虚拟内存的变化</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_LOG_TO_FILE">
        <source></source>
        <translation>日志：同时写入文件</translation>
    </message>
    <message id="setting_title_LOGGING_WINDOW">
        <source></source>
        <translation>日志：记住的窗口</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_GL_THREAD_INTERVAL">
        <source></source>
        <translation>动画视图：绘制间隔</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_MAINPIC_INTERVAL">
        <source></source>
        <translation>动画视图：查看进程的间隔</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_HELPERPIC_INTERVAL">
        <source></source>
        <translation>动画视图：测量 CPU 使用率的间隔</translation>
    </message>
    <message id="setting_title_QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS">
        <source></source>
        <translation>全屏视图：连接父进程和子进程</translation>
    </message>
    <message id="setting_title_QUINT_FULLSCREEN_WINDOW_ALPHA">
        <source></source>
        <translation>全屏视图：不透明度</translation>
    </message>
    <message id="setting_title_QUINT_FULLSCREEN_UNDERLAY_ALPHA">
        <source></source>
        <translation>全屏视图：背景的不透明度</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_ICON_SCALE_FACTOR">
        <source></source>
        <translation>动画视图：图标的缩放</translation>
    </message>
    <message id="setting_title_QUIVA_FULLSCREEN_EXTRA_SCALE_FACTOR">
        <source></source>
        <translation>全屏视图：图标的额外缩放</translation>
    </message>
    <message id="setting_title_QUINT_MAX_ITERATIONS_TO_STABILIZE_WHEN_FIRST_SHOWING">
        <source></source>
        <translation>动画视图：首次绘制前的步数</translation>
    </message>
    <message id="setting_title_QUINT_TARVIK_FACTOR">
        <source></source>
        <translation>动画视图：Lurkwell 自身活动的倍数</translation>
    </message>
    <message id="setting_title_FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE">
        <source></source>
        <translation>全屏视图：按键</translation>
    </message>
    <message id="setting_title_QUIVA_CHECK_QUARTZ_EXTREME">
        <source></source>
        <translation>动画视图：已检查图形</translation>
    </message>
    <message id="setting_title_QUIVA_CHECK_COMPOSITOR">
        <source></source>
        <translation>全屏视图：已检查合成器</translation>
    </message>
    <message id="setting_title_QUIVA_WINDOW_FRAME">
        <source></source>
        <translation>动画视图：位置和大小</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>动画视图曾打开</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>全屏视图曾打开</translation>
    </message>
    <message id="setting_title_CLASSIC_INITIAL_ASSUMED_CPU_USAGE">
        <source></source>
        <translation>Classic 环境：初始 CPU 使用率</translation>
    </message>
    <message id="setting_title_CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER">
        <source></source>
        <translation>Classic 环境：测量值的权重</translation>
    </message>
    <message id="setting_title_CLASSIC_WATCHDOG_INTERVAL">
        <source></source>
        <translation>Classic 环境：查看间隔</translation>
    </message>
    <message id="setting_title_CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX">
        <source></source>
        <translation>Classic 环境：其辅助程序的休眠</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_AND_TESTING">
        <source></source>
        <translation>本机数值：显示窗口</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_SWI_INTERVAL">
        <source></source>
        <translation>本机数值：更新间隔</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_LEFT">
        <source></source>
        <translation>本机数值：左边缘</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_TOP">
        <source></source>
        <translation>本机数值：上边缘</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_RIGHT">
        <source></source>
        <translation>本机数值：右边缘</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_BOTTOM">
        <source></source>
        <translation>本机数值：下边缘</translation>
    </message>
    <message id="setting_GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT">
        <source></source>
        <translation>内存大小的单位：0 自动，1 字节，2 千字节，3 兆字节，4 吉字节。</translation>
    </message>
    <message id="setting_GENERAL_PREFERRED_DATE_DISPLAY_FORMAT">
        <source></source>
        <translation>日期的写法：0 日历和时钟，1 自 1970 年起的秒数，2 秒和微秒。</translation>
    </message>
    <message id="setting_GENERAL_ALWAYS_AUTHENTICATE_DAEMON">
        <source></source>
        <translation>每次启动时要求输入管理员密码，即使辅助程序已有权限。</translation>
    </message>
    <message id="setting_GENERAL_CONTINUE_WITHOUT_RIGHTS">
        <source></source>
        <translation>辅助程序没有管理员权限时直接启动，也不请求权限。由“Continue Without”设置。</translation>
    </message>
    <message id="setting_FIGURES_FROM_HELPER">
        <source></source>
        <translation>向辅助程序查询进程的数值，如同在只有它才能读取的计算机上一样。关闭时由程序自己读取，开销小得多。</translation>
    </message>
    <message id="setting_PREFERENCES_UI_DEFAULT_TAB">
        <source></source>
        <translation>首选项窗口上次显示的页面，从 0 开始计数。</translation>
    </message>
    <message id="setting_ABOUT_PANEL_AT_EVERY_START">
        <source></source>
        <translation>每次启动时显示关于面板三秒钟，而不只是在某个版本首次启动时。</translation>
    </message>
    <message id="setting_HINTS_SEEN">
        <source></source>
        <translation>表格上方的提示中已收起的数量；0 表示重新显示，每次启动显示一个。</translation>
    </message>
    <message id="setting_ABOUT_PANEL_SEEN_VERSION">
        <source></source>
        <translation>启动时已显示过其关于面板的版本。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_INTERVAL">
        <source></source>
        <translation>主窗口表格两次更新之间的时间。</translation>
    </message>
    <message id="setting_MEM_GRAPH_DRAW_VSZ">
        <source></source>
        <translation>在内存条形图上写出其长度表示的大小。</translation>
    </message>
    <message id="setting_MEMORY_BAR_FIGURE">
        <source></source>
        <translation>内存条形图的长度表示什么，以及表格按内存条形图排序时的顺序：0 – 虚拟大小，其中标出常驻大小，1 – 常驻大小，2 – 分摊大小，即共享内存按份计算。大于本机内存的虚拟大小不作为其他条形的基准。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE">
        <source></source>
        <translation>将空闲任务的 CPU 使用率和大小显示为 0，以免其条形掩盖所有其他条形。</translation>
    </message>
    <message id="setting_CPU_SHARE_OF_MACHINE">
        <source></source>
        <translation>将 CPU、用户和系统份额显示为占全部处理器的比例，而不是占一个处理器的比例：100 % 即整台计算机。列标题会说明是哪一种。</translation>
    </message>
    <message id="setting_KEEP_COMMAND_LINES">
        <source></source>
        <translation>凡需要命令行之处，输出和写出程序的参数（其中可能含有密码），而不只是程序。</translation>
    </message>
    <message id="setting_MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT">
        <source></source>
        <translation>在有所有进程共享的区域的计算机上，虚拟大小不计入该区域。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_PAGEOUT_CRITICAL_FLASH_INTERVAL">
        <source></source>
        <translation>大量页面换出时，换页灯红色两次变化之间的秒数。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_FILTER">
        <source></source>
        <translation>换页速率从一次更新到下一次保留多少，从 0 到 1。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_RED">
        <source></source>
        <translation>每次更新换出多少页起换页灯为红色。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_YELLOW">
        <source></source>
        <translation>每次更新换出多少页起换页灯为黄色。</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_PROCESS_LIST_WINDOW">
        <source></source>
        <translation>启动时打开主窗口。程序在此记录它是否打开。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FRAME">
        <source></source>
        <translation>主窗口的位置和大小。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SORT_COLUMN_INDEX">
        <source></source>
        <translation>表格排序所依据的已记住的列，从 0 开始计数。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SHAPE">
        <source></source>
        <translation>使用标准列方案时表格中进程的排列方式：0 – 列表，1 – 子进程在父进程之下，2 – 在其应用程序之下。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SCOPE">
        <source></source>
        <translation>表格显示哪些进程：0 – 全部，1 – 用户自己的，2 – 其他用户的，3 – 应用程序，4 – 除内核线程外的全部，5 – 上次更新以来使用过处理器的。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FOLLOWS_SELECTION">
        <source></source>
        <translation>其他行改变位置时，选中的行是否在屏幕上保持原位。</translation>
    </message>
    <message id="setting_WEB_SEARCH_ADDRESS">
        <source></source>
        <translation>一个网址，其中 %1 代表程序的名称。为空则使用通常的地址。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FOLDED_PROGRAMS">
        <source></source>
        <translation>在树中折叠了子进程的程序，最近的在前，其他字符以百分号编码表示。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_UNFOLDED_APPLICATIONS">
        <source></source>
        <translation>展开了进程的应用程序、单元、容器和程序，最近的在前，其他字符以百分号编码表示。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_RECENT_FILTERS">
        <source></source>
        <translation>进程表格最近使用的过滤器，最近的在前，其他字符以百分号编码表示。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMNS">
        <source></source>
        <translation>标准方案的列，及其宽度和排序方向。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMN_SETS">
        <source></source>
        <translation>除标准方案外各列方案保存的内容：列、宽度、排序方向、排序列和形式。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMN_SET">
        <source></source>
        <translation>表格显示的列方案。</translation>
    </message>
    <message id="setting_HAS_RUN_TWO_POINT_THREE">
        <source></source>
        <translation>标记列是否曾添加到表格。</translation>
    </message>
    <message id="setting_HAS_RUN_TWO_POINT_FOUR">
        <source></source>
        <translation>内存条形图列是否曾添加到表格。</translation>
    </message>
    <message id="setting_DEFAULT_X_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>上次打开的小窗口的左边缘；下一个放在其旁边。</translation>
    </message>
    <message id="setting_DEFAULT_Y_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>上次打开的小窗口的上边缘；下一个放在其下方。</translation>
    </message>
    <message id="setting_DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA">
        <source></source>
        <translation>小窗口的不透明度，1 为完全不透明。</translation>
    </message>
    <message id="setting_DEFAULT_WATCHDOG_INTERVAL">
        <source></source>
        <translation>程序多久查看一次是否有它记住其窗口的新进程。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_WINDOW_INTERVAL">
        <source></source>
        <translation>CPU 历史的两个点之间的时间。</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_USE_RELATIVE">
        <source></source>
        <translation>将 CPU 历史按最近的最大值而不是 100 % 缩放。</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS">
        <source></source>
        <translation>在进程的历史中同时显示其后代进程的 CPU 使用率。</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_DEFAULT_FILTER">
        <source></source>
        <translation>前一个点对下一个点的影响程度，从 0 到 1。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_BACKGROUND_RGB">
        <source></source>
        <translation>CPU 历史的底色。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_FOREGROUND_RGB">
        <source></source>
        <translation>历史中进程的 CPU 使用率；包含后代进程时，也计入后代进程的使用率。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB">
        <source></source>
        <translation>包含后代进程时，历史中进程自身的 CPU 使用率份额。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_NAME_RGB">
        <source></source>
        <translation>CPU 历史中的名称。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_RGB">
        <source></source>
        <translation>刻度固定的 CPU 历史中刻度的标签。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB">
        <source></source>
        <translation>按最大值缩放的 CPU 历史中刻度的标签。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_FLASH_RGB">
        <source></source>
        <translation>刻度变化后闪烁时的标签。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG">
        <source></source>
        <translation>CPU 历史中当前百分比的底色。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG">
        <source></source>
        <translation>CPU 历史中的当前百分比。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_NAME_ALPHA">
        <source></source>
        <translation>CPU 历史中名称的不透明度。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HIGHWATERMARK_ALPHA">
        <source></source>
        <translation>CPU 历史中刻度标签的不透明度。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_ALPHA">
        <source></source>
        <translation>CPU 历史中当前百分比的不透明度。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_ICON_ALPHA">
        <source></source>
        <translation>CPU 历史中图标以前的不透明度；已由另一设置取代。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_ICON_ALPHA_REALLY">
        <source></source>
        <translation>CPU 历史中图标的不透明度。</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW">
        <source></source>
        <translation>同名进程启动时重新出现的 CPU 历史。</translation>
    </message>
    <message id="setting_DEFAULT_LOGGING_WINDOW_INTERVAL">
        <source></source>
        <translation>日志多久查看一次变化。</translation>
    </message>
    <message id="setting_LOG_WINDOW_INCLUDE_TIMESTAMP">
        <source></source>
        <translation>日志包含时间列。</translation>
    </message>
    <message id="setting_LOG_WINDOW_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>日志包含 CPU 时间列。</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>日志包含 CPU 时间变化列。</translation>
    </message>
    <message id="setting_LOG_WINDOW_REAL_MEM_BOOL">
        <source></source>
        <translation>日志包含常驻内存列。</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_REAL_MEM_BOOL">
        <source></source>
        <translation>日志包含常驻内存变化列。</translation>
    </message>
    <message id="setting_LOG_WINDOW_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>日志包含虚拟内存列。</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>日志包含虚拟内存变化列。</translation>
    </message>
    <message id="setting_LOG_WINDOW_LOG_TO_FILE">
        <source></source>
        <translation>日志同时写入文件。</translation>
    </message>
    <message id="setting_LOGGING_WINDOW">
        <source></source>
        <translation>同名进程启动时重新出现的日志。</translation>
    </message>
    <message id="setting_HEARTQUIVA_GL_THREAD_INTERVAL">
        <source></source>
        <translation>动画视图两次绘制之间的时间。不会比下一项长。</translation>
    </message>
    <message id="setting_HEARTQUIVA_MAINPIC_INTERVAL">
        <source></source>
        <translation>动画视图多久查看一次启动或结束的进程。不会比下一项长。</translation>
    </message>
    <message id="setting_HEARTQUIVA_HELPERPIC_INTERVAL">
        <source></source>
        <translation>动画视图多久测量一次其进程的 CPU 使用率。</translation>
    </message>
    <message id="setting_QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS">
        <source></source>
        <translation>在全屏视图中也在父进程和子进程之间画线。</translation>
    </message>
    <message id="setting_QUINT_FULLSCREEN_WINDOW_ALPHA">
        <source></source>
        <translation>全屏视图的不透明度。</translation>
    </message>
    <message id="setting_QUINT_FULLSCREEN_UNDERLAY_ALPHA">
        <source></source>
        <translation>全屏视图中进程背后画面的不透明度。</translation>
    </message>
    <message id="setting_HEARTQUIVA_ICON_SCALE_FACTOR">
        <source></source>
        <translation>动画视图中图标的缩放：图标的边长（以点为单位）为其进程的权重（静止时 0.5，占满一个处理器时 2.9）乘以此值的一半。</translation>
    </message>
    <message id="setting_QUIVA_FULLSCREEN_EXTRA_SCALE_FACTOR">
        <source></source>
        <translation>全屏视图中的图标放大多少倍。</translation>
    </message>
    <message id="setting_QUINT_MAX_ITERATIONS_TO_STABILIZE_WHEN_FIRST_SHOWING">
        <source></source>
        <translation>动画视图首次显示之前布局计算的最多步数。</translation>
    </message>
    <message id="setting_QUINT_TARVIK_FACTOR">
        <source></source>
        <translation>在动画视图中，Lurkwell 本身及其辅助程序按其实际活动的多少倍计算；没有值时按实际活动。</translation>
    </message>
    <message id="setting_FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE">
        <source></source>
        <translation>在桌面任何位置打开和关闭全屏视图的按键的编号：未存储其他值时为 98，即 F7。</translation>
    </message>
    <message id="setting_QUIVA_CHECK_QUARTZ_EXTREME">
        <source></source>
        <translation>首次显示动画视图时是否检查过显示器的图形功能。</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>启动时打开动画视图。程序在此记录它是否打开。</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>启动时全屏打开动画视图。程序在此记录它是否打开。</translation>
    </message>
    <message id="setting_CLASSIC_INITIAL_ASSUMED_CPU_USAGE">
        <source></source>
        <translation>测量之前假定的 Classic 环境的 CPU 使用率。</translation>
    </message>
    <message id="setting_CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER">
        <source></source>
        <translation>Classic 环境 CPU 使用率的一次测量所占的权重，从 0 到 1。</translation>
    </message>
    <message id="setting_CLASSIC_WATCHDOG_INTERVAL">
        <source></source>
        <translation>程序多久查看一次 Classic 环境是否在运行。</translation>
    </message>
    <message id="setting_CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX">
        <source></source>
        <translation>程序在 Classic 环境中的辅助程序两次查看之间休眠多久，以六十分之一秒为单位。</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_AND_TESTING">
        <source></source>
        <translation>显示一个包含本机数值的小窗口，用于调试。</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_SWI_INTERVAL">
        <source></source>
        <translation>本机数值窗口多久更新一次。</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_LEFT">
        <source></source>
        <translation>本机数值窗口的左边缘。</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_TOP">
        <source></source>
        <translation>本机数值窗口的上边缘。</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_RIGHT">
        <source></source>
        <translation>本机数值窗口的右边缘。</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_BOTTOM">
        <source></source>
        <translation>本机数值窗口的下边缘。</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_ITEMS">
        <source></source>
        <translation>主窗口工具栏的项目，按顺序排列，以空格分隔。</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_DISPLAY_MODE">
        <source></source>
        <translation>主窗口工具栏显示的内容：0 或 1 图标和名称，2 图标，3 名称。</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_SHOWN">
        <source></source>
        <translation>显示主窗口的工具栏。</translation>
    </message>
    <message id="setting_QUIVA_CHECK_COMPOSITOR">
        <source></source>
        <translation>是否已提示全屏视图需要支持透明的桌面。</translation>
    </message>
    <message id="setting_QUIVA_WINDOW_FRAME">
        <source></source>
        <translation>动画视图窗口的位置和大小。</translation>
    </message>
    <message id="graph_missing">
        <source></source>
        <translation>未知</translation>
    </message>
    <message id="graph_spoken_range">
        <source></source>
        <translation>介于 %1 与 %2 之间</translation>
    </message>
    <message id="graph_spoken_span">
        <source></source>
        <translation>%1内</translation>
    </message>
    <message id="graph_now">
        <source></source>
        <translation>现在</translation>
    </message>
    <message id="graph_seconds_ago">
        <source></source>
        <translation>−%1 秒</translation>
    </message>
    <message id="graph_minutes_ago">
        <source></source>
        <translation>−%1 分钟</translation>
    </message>
    <message id="menu_window_show_machine">
        <source></source>
        <translation>本机(&amp;M)</translation>
    </message>
    <message id="help_menu_window_show_machine">
        <source></source>
        <translation>整台计算机：处理器、内存、磁盘、网络，以及谁最忙</translation>
    </message>
    <message id="fleet_error_unreachable">
        <source></source>
        <translation>无法连接服务器：%1。请检查地址以及服务器是否在运行。</translation>
    </message>
    <message id="fleet_error_timed_out">
        <source></source>
        <translation>服务器未在 %1 秒内给出完整的回应。它可能过于繁忙；使用过滤器或延长查询间隔可以减轻负担。</translation>
    </message>
    <message id="fleet_error_too_large">
        <source></source>
        <translation>服务器的回应超过 %1 MiB，已舍弃。使用过滤器可以减小回应。</translation>
    </message>
    <message id="fleet_error_certificate">
        <source></source>
        <translation>服务器未能证明其身份：%1。没有向它发送任何内容。请使用其证书所对应的名称，或使本系统信任其颁发者。</translation>
    </message>
    <message id="fleet_error_no_encryption">
        <source></source>
        <translation>本系统的 Qt 没有 TLS，因此无法查询 https 地址。请安装其 OpenSSL 部分。</translation>
    </message>
    <message id="fleet_error_credentials">
        <source></source>
        <translation>服务器要求知道查询者的身份，或不允许此查询者查询 (%1)。“登录…”可以输入用户名和密码，或令牌。</translation>
    </message>
    <message id="fleet_error_redirected">
        <source></source>
        <translation>服务器将所有查询转到另一服务器 %1，未向该服务器查询。如果地址正确，请打开该地址。</translation>
    </message>
    <message id="fleet_error_not_prometheus">
        <source></source>
        <translation>此地址上回应的不是 Prometheus：%1。请检查端口和路径。</translation>
    </message>
    <message id="fleet_error_server">
        <source></source>
        <translation>服务器出错：%1。稍后会再次查询。</translation>
    </message>
    <message id="fleet_error_query">
        <source></source>
        <translation>服务器拒绝了查询：%1。</translation>
    </message>
    <message id="fleet_address_empty">
        <source></source>
        <translation>请输入 Prometheus 服务器的地址，例如 http://monitor:9090。</translation>
    </message>
    <message id="fleet_address_has_password">
        <source></source>
        <translation>地址会被保存和显示，因此不能含有用户名和密码。服务器需要时会要求您输入。</translation>
    </message>
    <message id="fleet_address_wrong">
        <source></source>
        <translation>“%1”不是 http://monitor:9090 之类的地址。</translation>
    </message>
    <message id="fleet_address_scheme">
        <source></source>
        <translation>查询服务器使用 http 或 https，而不是“%1”。</translation>
    </message>
    <message id="fleet_credentials_unreadable">
        <source></source>
        <translation>无法读取 %1：%2。</translation>
    </message>
    <message id="fleet_credentials_open">
        <source></source>
        <translation>其他人也可以读取或更改 %1。请取消该权限 (chmod 600)，如果其中是秘密，请改用新密码。</translation>
    </message>
    <message id="fleet_credentials_no_line">
        <source></source>
        <translation>%1 不是只有一行 NAME:PASSWORD 或令牌的文件。</translation>
    </message>
    <message id="fleet_filter_of_processes">
        <source></source>
        <translation>“%1”只有单个进程才有，服务器所存的合计中没有。</translation>
    </message>
    <message id="fleet_filter_no_text">
        <source></source>
        <translation>“%1”是数值：请进行比较，例如 cpu&gt;50。</translation>
    </message>
    <message id="fleet_filter_either">
        <source></source>
        <translation>可以向服务器查询同类文本中的任意一个，如“a | b”，但不能查询不同条件中的任意一个。</translation>
    </message>
    <message id="fleet_filter_two_kinds">
        <source></source>
        <translation>每个组只属于一个种类，因此没有同时属于两者的组：%1。</translation>
    </message>
    <message id="fleet_filter_not_groups">
        <source></source>
        <translation>无法查询没有此类组的机器。</translation>
    </message>
    <message id="fleet_filter_not_here">
        <source></source>
        <translation>“%1”在这里无效。</translation>
    </message>
    <message id="fleet_filter_one_number">
        <source></source>
        <translation>“%1”只能与一个数值比较。</translation>
    </message>
    <message id="fleet_filter_order">
        <source></source>
        <translation>“%1”请用 &lt; 或 &gt; 比较，因为小数几乎不会相等。</translation>
    </message>
    <message id="fleet_filter_too_long">
        <source></source>
        <translation>过滤器太长。</translation>
    </message>
    <message id="fleet_cpu">
        <source></source>
        <translation>CPU %</translation>
    </message>
    <message id="fleet_cpu_tip">
        <source></source>
        <translation>占处理器时间的比例：对机器为占全部处理器的比例，对组为占一个处理器的比例，因此 250 表示两个半处理器。按服务器最近两次抓取计算。</translation>
    </message>
    <message id="fleet_memory">
        <source></source>
        <translation>内存</translation>
    </message>
    <message id="fleet_memory_tip">
        <source></source>
        <translation>对机器为不可用的内存；对组为其进程的常驻内存。</translation>
    </message>
    <message id="fleet_memory_all">
        <source></source>
        <translation>全部内存</translation>
    </message>
    <message id="fleet_memory_all_tip">
        <source></source>
        <translation>机器的全部内存。</translation>
    </message>
    <message id="fleet_swap">
        <source></source>
        <translation>交换</translation>
    </message>
    <message id="fleet_swap_tip">
        <source></source>
        <translation>已换出的内存。</translation>
    </message>
    <message id="fleet_load">
        <source></source>
        <translation>负载</translation>
    </message>
    <message id="fleet_load_tip">
        <source></source>
        <translation>一分钟的负载。</translation>
    </message>
    <message id="fleet_disk">
        <source></source>
        <translation>磁盘</translation>
    </message>
    <message id="fleet_disk_tip">
        <source></source>
        <translation>每秒从磁盘读取和写入磁盘的字节数。</translation>
    </message>
    <message id="fleet_network">
        <source></source>
        <translation>网络</translation>
    </message>
    <message id="fleet_network_tip">
        <source></source>
        <translation>每秒接收和发送的字节数；不包括机器与自身的通信。</translation>
    </message>
    <message id="fleet_waits_cpu">
        <source></source>
        <translation>等待：CPU %</translation>
    </message>
    <message id="fleet_waits_cpu_tip">
        <source></source>
        <translation>有任务等待处理器的时间比例。</translation>
    </message>
    <message id="fleet_waits_memory">
        <source></source>
        <translation>等待：内存 %</translation>
    </message>
    <message id="fleet_waits_memory_tip">
        <source></source>
        <translation>有任务等待内存的时间比例。</translation>
    </message>
    <message id="fleet_waits_disk">
        <source></source>
        <translation>等待：磁盘 %</translation>
    </message>
    <message id="fleet_waits_disk_tip">
        <source></source>
        <translation>有任务等待磁盘的时间比例。</translation>
    </message>
    <message id="fleet_processes">
        <source></source>
        <translation>进程</translation>
    </message>
    <message id="fleet_processes_tip">
        <source></source>
        <translation>进程的数量。</translation>
    </message>
    <message id="fleet_threads">
        <source></source>
        <translation>线程</translation>
    </message>
    <message id="fleet_threads_tip">
        <source></source>
        <translation>线程的数量。</translation>
    </message>
    <message id="fleet_machines">
        <source></source>
        <translation>机器</translation>
    </message>
    <message id="fleet_machines_tip">
        <source></source>
        <translation>有此组进程的机器的数量。</translation>
    </message>
    <message id="fleet_oldest">
        <source></source>
        <translation>运行时长</translation>
    </message>
    <message id="fleet_oldest_tip">
        <source></source>
        <translation>机器或组内最早的进程启动至今的时间。</translation>
    </message>
    <message id="fleet_seen">
        <source></source>
        <translation>上次联系</translation>
    </message>
    <message id="fleet_seen_tip">
        <source></source>
        <translation>服务器上次得到机器信息至今的时间。服务器无法连接的机器显示为宕机。</translation>
    </message>
    <message id="fleet_up">
        <source></source>
        <translation>在线</translation>
    </message>
    <message id="fleet_up_tip">
        <source></source>
        <translation>服务器能否连接到机器。</translation>
    </message>
    <message id="fleet_read">
        <source></source>
        <translation>读取</translation>
    </message>
    <message id="fleet_read_tip">
        <source></source>
        <translation>每秒从磁盘读取的字节数。</translation>
    </message>
    <message id="fleet_written">
        <source></source>
        <translation>写入</translation>
    </message>
    <message id="fleet_written_tip">
        <source></source>
        <translation>每秒写入磁盘的字节数。</translation>
    </message>
    <message id="fleet_received">
        <source></source>
        <translation>接收</translation>
    </message>
    <message id="fleet_received_tip">
        <source></source>
        <translation>每秒接收的字节数。</translation>
    </message>
    <message id="fleet_sent">
        <source></source>
        <translation>发送</translation>
    </message>
    <message id="fleet_sent_tip">
        <source></source>
        <translation>每秒发送的字节数。</translation>
    </message>
    <message id="fleet_seconds">
        <source></source>
        <translation>%1 秒</translation>
    </message>
    <message id="fleet_minutes">
        <source></source>
        <translation>%1 分钟</translation>
    </message>
    <message id="fleet_hours">
        <source></source>
        <translation>%1 小时</translation>
    </message>
    <message id="fleet_days">
        <source></source>
        <translation>%1 天</translation>
    </message>
    <message id="graph_hours_ago">
        <source></source>
        <translation>−%1 小时</translation>
    </message>
    <message id="graph_days_ago">
        <source></source>
        <translation>−%1 天</translation>
    </message>
    <message id="fleet_title">
        <source></source>
        <translation>%1 的机群</translation>
    </message>
    <message id="fleet_machine">
        <source></source>
        <translation>机器</translation>
    </message>
    <message id="fleet_group">
        <source></source>
        <translation>名称</translation>
    </message>
    <message id="fleet_down">
        <source></source>
        <translation>宕机</translation>
    </message>
    <message id="fleet_down_for">
        <source></source>
        <translation>宕机，%1</translation>
    </message>
    <message id="fleet_show_machines">
        <source></source>
        <translation>机器</translation>
    </message>
    <message id="fleet_show_program">
        <source></source>
        <translation>程序</translation>
    </message>
    <message id="fleet_show_unit">
        <source></source>
        <translation>单元</translation>
    </message>
    <message id="fleet_show_container">
        <source></source>
        <translation>容器</translation>
    </message>
    <message id="fleet_show_user">
        <source></source>
        <translation>用户</translation>
    </message>
    <message id="fleet_back">
        <source></source>
        <translation>后退</translation>
    </message>
    <message id="fleet_back_tip">
        <source></source>
        <translation>之前查看的内容 (Alt+Left)</translation>
    </message>
    <message id="fleet_on">
        <source></source>
        <translation>位于 %1</translation>
    </message>
    <message id="fleet_with">
        <source></source>
        <translation>含 %1</translation>
    </message>
    <message id="fleet_filter">
        <source></source>
        <translation>向服务器查询的过滤器</translation>
    </message>
    <message id="fleet_filter_tip">
        <source></source>
        <translation>与进程表格中相同：web、name:postgres、machine:web-1、unit:nginx、user:root、cpu&gt;50、mem&gt;4G、processes&gt;100。由服务器查找，因此机器数量不限。</translation>
    </message>
    <message id="fleet_interval">
        <source></source>
        <translation>多久向服务器查询一次</translation>
    </message>
    <message id="fleet_interval_never">
        <source></source>
        <translation>不自动查询</translation>
    </message>
    <message id="fleet_interval_seconds">
        <source></source>
        <translation>每 %1 秒</translation>
    </message>
    <message id="fleet_interval_minutes">
        <source></source>
        <translation>每 %1 分钟</translation>
    </message>
    <message id="fleet_sign_in">
        <source></source>
        <translation>登录…</translation>
    </message>
    <message id="fleet_again">
        <source></source>
        <translation>重试</translation>
    </message>
    <message id="fleet_open_machine">
        <source></source>
        <translation>显示其上运行的内容</translation>
    </message>
    <message id="fleet_open_group">
        <source></source>
        <translation>显示其所在的机器</translation>
    </message>
    <message id="fleet_ssh">
        <source></source>
        <translation>在终端中打开 ssh</translation>
    </message>
    <message id="fleet_copy">
        <source></source>
        <translation>复制</translation>
    </message>
    <message id="fleet_ssh_no_host">
        <source></source>
        <translation>“%1”不是 ssh 可以连接的主机名。</translation>
    </message>
    <message id="fleet_ssh_no_ssh">
        <source></source>
        <translation>本机没有 ssh。请安装 OpenSSH 客户端。</translation>
    </message>
    <message id="fleet_ssh_no_terminal">
        <source></source>
        <translation>本机没有已知的终端。请安装一个（如 xterm），或在变量 TERMINAL 中指定您的终端。</translation>
    </message>
    <message id="fleet_ssh_failed">
        <source></source>
        <translation>无法启动 %1。</translation>
    </message>
    <message id="fleet_old_figures">
        <source></source>
        <translation>下面的数值是 %1 的。</translation>
    </message>
    <message id="fleet_count_machines" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 台机器</numerusform>
        </translation>
    </message>
    <message id="fleet_count_groups" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 行</numerusform>
        </translation>
    </message>
    <message id="fleet_count_down" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 台宕机</numerusform>
        </translation>
    </message>
    <message id="fleet_shown_most" numerus="yes">
        <source></source>
        <translation>
            <numerusform>显示 %1 最高的 %n 个；其他可用过滤器查找</numerusform>
        </translation>
    </message>
    <message id="fleet_shown_least" numerus="yes">
        <source></source>
        <translation>
            <numerusform>显示 %1 最低的 %n 个；其他可用过滤器查找</numerusform>
        </translation>
    </message>
    <message id="fleet_as_of">
        <source></source>
        <translation>截至 %1</translation>
    </message>
    <message id="fleet_left_out" numerus="yes">
        <source></source>
        <translation>
            <numerusform>回应中有 %n 个无意义的值，已略去</numerusform>
        </translation>
    </message>
    <message id="fleet_asking">
        <source></source>
        <translation>正在向服务器查询…</translation>
    </message>
    <message id="fleet_nothing_known">
        <source></source>
        <translation>尚无任何信息。</translation>
    </message>
    <message id="fleet_nothing_fulfils">
        <source></source>
        <translation>没有符合过滤条件的内容。</translation>
    </message>
    <message id="fleet_nothing_there">
        <source></source>
        <translation>服务器没有此类数值。服务器抓取机器的导出器 lurkwell-export 之后，机器才会显示。</translation>
    </message>
    <message id="fleet_span">
        <source></source>
        <translation>历史：</translation>
    </message>
    <message id="fleet_span_hour">
        <source></source>
        <translation>1 小时</translation>
    </message>
    <message id="fleet_span_6_hours">
        <source></source>
        <translation>6 小时</translation>
    </message>
    <message id="fleet_span_day">
        <source></source>
        <translation>1 天</translation>
    </message>
    <message id="fleet_span_week">
        <source></source>
        <translation>7 天</translation>
    </message>
    <message id="fleet_no_row">
        <source></source>
        <translation>请选择一行以查看其历史。</translation>
    </message>
    <message id="fleet_no_history">
        <source></source>
        <translation>服务器没有该时段的数值。</translation>
    </message>
    <message id="fleet_graph_cpu_machine">
        <source></source>
        <translation>CPU，占全部处理器</translation>
    </message>
    <message id="fleet_graph_cpu">
        <source></source>
        <translation>CPU，占一个处理器</translation>
    </message>
    <message id="fleet_graph_waits">
        <source></source>
        <translation>等待</translation>
    </message>
    <message id="fleet_graph_traffic">
        <source></source>
        <translation>磁盘和网络</translation>
    </message>
    <message id="fleet_memory_series">
        <source></source>
        <translation>已用</translation>
    </message>
    <message id="fleet_memory_all_series">
        <source></source>
        <translation>全部</translation>
    </message>
    <message id="fleet_swap_series">
        <source></source>
        <translation>交换</translation>
    </message>
    <message id="fleet_waits_cpu_series">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="fleet_waits_memory_series">
        <source></source>
        <translation>内存</translation>
    </message>
    <message id="fleet_waits_disk_series">
        <source></source>
        <translation>磁盘</translation>
    </message>
    <message id="fleet_read_series">
        <source></source>
        <translation>读取</translation>
    </message>
    <message id="fleet_written_series">
        <source></source>
        <translation>写入</translation>
    </message>
    <message id="fleet_received_series">
        <source></source>
        <translation>接收</translation>
    </message>
    <message id="fleet_sent_series">
        <source></source>
        <translation>发送</translation>
    </message>
    <message id="fleet_open_title">
        <source></source>
        <translation>打开机群</translation>
    </message>
    <message id="fleet_open_words">
        <source></source>
        <translation>抓取您各台机器的导出器的 Prometheus 服务器的地址：</translation>
    </message>
    <message id="fleet_address">
        <source></source>
        <translation>地址</translation>
    </message>
    <message id="fleet_sign_in_title">
        <source></source>
        <translation>登录 %1</translation>
    </message>
    <message id="fleet_sign_in_words">
        <source></source>
        <translation>用户名和密码、令牌，或含有其中之一的文件。它们只发送到此服务器，并保留到窗口关闭为止。</translation>
    </message>
    <message id="fleet_sign_in_in_clear">
        <source></source>
        <translation>用户名和密码、令牌，或含有其中之一的文件。它们保留到窗口关闭为止。此地址未加密：途中的任何人都可以读取它们。最好使用 https 地址。</translation>
    </message>
    <message id="fleet_sign_in_name">
        <source></source>
        <translation>用户名(&amp;N)：</translation>
    </message>
    <message id="fleet_sign_in_password">
        <source></source>
        <translation>密码(&amp;P)：</translation>
    </message>
    <message id="fleet_sign_in_token">
        <source></source>
        <translation>令牌(&amp;T)：</translation>
    </message>
    <message id="fleet_sign_in_file">
        <source></source>
        <translation>文件(&amp;F)：</translation>
    </message>
    <message id="fleet_sign_in_choose">
        <source></source>
        <translation>选择(&amp;C)…</translation>
    </message>
    <message id="fleet_sign_in_nothing">
        <source></source>
        <translation>请输入用户名、令牌或文件路径。</translation>
    </message>
    <message id="fleet_sign_in_wrong">
        <source></source>
        <translation>无法发送：用户名不能含有冒号，令牌不能含有空格和非 ASCII 字符。</translation>
    </message>
    <message id="fleet_failed">
        <source></source>
        <translation>无法打开机群</translation>
    </message>
    <message id="menu_file_open_fleet">
        <source></source>
        <translation>打开机群(&amp;F)…</translation>
    </message>
    <message id="help_menu_file_open_fleet">
        <source></source>
        <translation>在单独的窗口中查看 Prometheus 服务器所知的所有机器</translation>
    </message>
    <message id="setting_title_FLEET_WINDOW_FRAME">
        <source></source>
        <translation>机群窗口的位置</translation>
    </message>
    <message id="setting_FLEET_WINDOW_FRAME">
        <source></source>
        <translation>机群窗口上次的位置和大小。</translation>
    </message>
    <message id="setting_title_FLEET_WINDOW_SECONDS">
        <source></source>
        <translation>机群窗口的间隔</translation>
    </message>
    <message id="setting_FLEET_WINDOW_SECONDS">
        <source></source>
        <translation>机群窗口再次向服务器查询之前等待的秒数；0 表示仅在要求时查询。</translation>
    </message>
    <message id="setting_title_FLEET_RECENT_ADDRESSES">
        <source></source>
        <translation>最近的机群</translation>
    </message>
    <message id="setting_FLEET_RECENT_ADDRESSES">
        <source></source>
        <translation>最近打开的服务器的地址，最近的在前，其他字符以百分号编码表示。其中不含用户名和密码。</translation>
    </message>
    <message id="machine_title">
        <source></source>
        <translation>本机</translation>
    </message>
    <message id="machine_span">
        <source></source>
        <translation>显示最近</translation>
    </message>
    <message id="machine_minutes">
        <source></source>
        <translation>%1 分钟</translation>
    </message>
    <message id="machine_processors_busy">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="machine_no_processors">
        <source></source>
        <translation>本机不报告其处理器的繁忙程度。</translation>
    </message>
    <message id="machine_processors">
        <source></source>
        <translation>处理器</translation>
    </message>
    <message id="machine_processor">
        <source></source>
        <translation>%1：%2</translation>
    </message>
    <message id="machine_memory">
        <source></source>
        <translation>内存</translation>
    </message>
    <message id="machine_no_memory">
        <source></source>
        <translation>本机不报告其内存。</translation>
    </message>
    <message id="machine_swap">
        <source></source>
        <translation>交换</translation>
    </message>
    <message id="machine_no_swap">
        <source></source>
        <translation>本机没有交换空间。</translation>
    </message>
    <message id="machine_used_of">
        <source></source>
        <translation>已用，共 %1</translation>
    </message>
    <message id="machine_disks">
        <source></source>
        <translation>磁盘</translation>
    </message>
    <message id="machine_no_disks">
        <source></source>
        <translation>尚无磁盘数值，或没有磁盘。</translation>
    </message>
    <message id="machine_network">
        <source></source>
        <translation>网络</translation>
    </message>
    <message id="machine_no_network">
        <source></source>
        <translation>尚无网络数值，或没有网络。</translation>
    </message>
    <message id="machine_all_devices">
        <source></source>
        <translation>全部</translation>
    </message>
    <message id="machine_read">
        <source></source>
        <translation>读取</translation>
    </message>
    <message id="machine_written">
        <source></source>
        <translation>写入</translation>
    </message>
    <message id="machine_received">
        <source></source>
        <translation>接收</translation>
    </message>
    <message id="machine_sent">
        <source></source>
        <translation>发送</translation>
    </message>
    <message id="machine_pressure">
        <source></source>
        <translation>压力</translation>
    </message>
    <message id="machine_no_pressure">
        <source></source>
        <translation>此内核不报告进程等待了多久。</translation>
    </message>
    <message id="machine_waits_processor">
        <source></source>
        <translation>部分等待 CPU</translation>
    </message>
    <message id="machine_waits_memory">
        <source></source>
        <translation>部分等待内存</translation>
    </message>
    <message id="machine_waits_disk">
        <source></source>
        <translation>部分等待磁盘</translation>
    </message>
    <message id="machine_stalled_memory">
        <source></source>
        <translation>全部等待内存</translation>
    </message>
    <message id="machine_stalled_disk">
        <source></source>
        <translation>全部等待磁盘</translation>
    </message>
    <message id="machine_graphics">
        <source></source>
        <translation>图形</translation>
    </message>
    <message id="machine_no_graphics">
        <source></source>
        <translation>没有图形设备报告其繁忙程度。</translation>
    </message>
    <message id="machine_busiest_now">
        <source></source>
        <translation>当前最忙</translation>
    </message>
    <message id="machine_busiest_at">
        <source></source>
        <translation>%1 时最忙</translation>
    </message>
    <message id="machine_back_to_now">
        <source></source>
        <translation>现在(&amp;N)</translation>
    </message>
    <message id="machine_note">
        <source></source>
        <translation>单击图形可查看当时谁最忙；单击名称可在进程表格中显示它。</translation>
    </message>
    <message id="machine_has_ended">
        <source></source>
        <translation>进程 %1 已结束。</translation>
    </message>
    <message id="machine_not_in_table">
        <source></source>
        <translation>进程 %1 不在表格中：可能被过滤器隐藏。</translation>
    </message>
    <message id="machine_ended">
        <source></source>
        <translation>%1（已结束）</translation>
    </message>
    <message id="machine_name">
        <source></source>
        <translation>名称</translation>
    </message>
    <message id="machine_pid">
        <source></source>
        <translation>进程 ID</translation>
    </message>
    <message id="machine_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="machine_load">
        <source></source>
        <translation>负载：%1、%2、%3（1、5 和 15 分钟）</translation>
    </message>
    <message id="machine_no_load">
        <source></source>
        <translation>负载：本机不报告</translation>
    </message>
    <message id="machine_frequency">
        <source></source>
        <translation>频率：%1 GHz（%2 至 %3）</translation>
    </message>
    <message id="machine_no_frequency">
        <source></source>
        <translation>频率：本机不报告</translation>
    </message>
    <message id="machine_no_temperature">
        <source></source>
        <translation>温度：本机不报告</translation>
    </message>
    <message id="machine_more_temperatures" numerus="yes">
        <source></source>
        <translation>
            <numerusform>另有 %n 个传感器温度更低</numerusform>
        </translation>
    </message>
    <message id="machine_limits">
        <source></source>
        <translation>此容器可以使用 %1。</translation>
    </message>
    <message id="machine_limit_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 个处理器</numerusform>
        </translation>
    </message>
    <message id="machine_limit_memory">
        <source></source>
        <translation>%1 内存</translation>
    </message>
    <message id="machine_limit_memory_used">
        <source></source>
        <translation>%1 内存（已用 %2）</translation>
    </message>
    <message id="tray_cpu">
        <source></source>
        <translation>CPU %1</translation>
    </message>
    <message id="tray_busy">
        <source></source>
        <translation>%1：%2</translation>
    </message>
    <message id="setting_title_TRAY_ICON">
        <source></source>
        <translation>托盘图标</translation>
    </message>
    <message id="setting_title_ACCESSIBLE_QUIET">
        <source></source>
        <translation>屏幕阅读器：不主动朗读变化</translation>
    </message>
    <message id="setting_title_REDUCE_MOTION">
        <source></source>
        <translation>减少动态效果</translation>
    </message>
    <message id="setting_title_MACHINE_HISTORY_ALWAYS">
        <source></source>
        <translation>从启动时起保留本机历史</translation>
    </message>
    <message id="setting_TRAY_ICON">
        <source></source>
        <translation>在桌面的托盘中显示带有处理器小图形的图标；其提示和菜单中有最忙的三个进程。有此图标时，关闭最后一个窗口后程序继续运行。</translation>
    </message>
    <message id="setting_ACCESSIBLE_QUIET">
        <source></source>
        <translation>屏幕阅读器只朗读您移动到和查询的内容，不朗读更新带来的变化。关闭时，只要数值在变化，获得焦点的行每隔几秒会重新朗读一次。</translation>
    </message>
    <message id="setting_REDUCE_MOTION">
        <source></source>
        <translation>不再有自行移动、滑动或闪烁的内容：进程就位后，动画视图保持静止，大小变化立即生效。当桌面设置为减少动态效果或关闭动画时也是如此。</translation>
    </message>
    <message id="setting_MACHINE_HISTORY_ALWAYS">
        <source></source>
        <translation>从程序启动时起保留一小时内本机的活动以及谁最忙；否则从首次打开本机窗口时起保留。</translation>
    </message>
    <message id="setting_title_MACHINE_WINDOW_FRAME">
        <source></source>
        <translation>本机窗口：位置和大小</translation>
    </message>
    <message id="setting_MACHINE_WINDOW_FRAME">
        <source></source>
        <translation>本机窗口的位置和大小。</translation>
    </message>
    <message id="setting_title_MACHINE_WINDOW_MINUTES">
        <source></source>
        <translation>本机窗口：显示的分钟数</translation>
    </message>
    <message id="setting_MACHINE_WINDOW_MINUTES">
        <source></source>
        <translation>本机窗口显示多少分钟。程序在此记录在窗口中所选的值。</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_MACHINE_WINDOW">
        <source></source>
        <translation>本机窗口曾打开</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_MACHINE_WINDOW">
        <source></source>
        <translation>启动时打开本机窗口。程序在此记录它是否打开。</translation>
    </message>
    <message id="alert_ok">
        <source></source>
        <translation>确定</translation>
    </message>
    <message id="helper_refused_title">
        <source></source>
        <translation>要在此计算机上运行，Lurkwell 必须用管理员密码进行认证。</translation>
    </message>
    <message id="helper_refused_text">
        <source></source>
        <translation>没有管理员权限时，Lurkwell 仍会显示所有进程，并可操作您自己的进程。下次启动时不再询问；状态栏会说明如何重新询问。</translation>
    </message>
    <message id="helper_refused_again">
        <source></source>
        <translation>重新认证</translation>
    </message>
    <message id="helper_refused_quit">
        <source></source>
        <translation>退出 Lurkwell</translation>
    </message>
    <message id="helper_refused_without">
        <source></source>
        <translation>无权限继续</translation>
    </message>
    <message id="helper_not_wanted">
        <source></source>
        <translation>Lurkwell 启动时没有管理员权限</translation>
    </message>
    <message id="helper_refused_by_user">
        <source></source>
        <translation>Lurkwell 按您的选择在没有管理员权限的情况下继续运行</translation>
    </message>
    <message id="shortcut_overlay">
        <source></source>
        <translation>覆盖屏幕的动画视图</translation>
    </message>
    <message id="notifications_no_bus">
        <source></source>
        <translation>没有会话总线</translation>
    </message>
    <message id="notifications_too_many">
        <source></source>
        <translation>同时显示的太多</translation>
    </message>
</context>
</TS>
