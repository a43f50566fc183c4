<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="meta_pid">
        <source></source>
        <translation>Process ID</translation>
    </message>
    <message id="meta_pid_tip">
        <source></source>
        <translation>The process's number. The kernel's processes count from 1; 0 stands for the idle task, and applications of the Classic environment have made-up numbers below -1.</translation>
    </message>
    <message id="meta_name">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="meta_name_tip">
        <source></source>
        <translation>The application's name where the process is an application, else its command name, whole where it can be known.</translation>
    </message>
    <message id="meta_active_time">
        <source></source>
        <translation>CPU time</translation>
    </message>
    <message id="meta_active_time_tip">
        <source></source>
        <translation>CPU time used since the process started, user and system together, in seconds. For applications of the Classic environment it is an estimate.</translation>
    </message>
    <message id="meta_kind">
        <source></source>
        <translation>Kind</translation>
    </message>
    <message id="meta_kind_tip">
        <source></source>
        <translation>What it is: an application on the desktop, one of the Classic environment, a thread of the kernel, a zombie (ended, but its parent has not asked for its exit status), or any other process.</translation>
    </message>
    <message id="meta_psn">
        <source></source>
        <translation>Serial number</translation>
    </message>
    <message id="meta_psn_tip">
        <source></source>
        <translation>The serial number of the application on the desktop, as two hexadecimal words. Both are zero for a process that is no application.</translation>
    </message>
    <message id="carbonpsn_name">
        <source></source>
        <translation>Application name</translation>
    </message>
    <message id="carbonpsn_name_tip">
        <source></source>
        <translation>The application's name as the desktop knows it. Empty for a process that is no application.</translation>
    </message>
    <message id="carbonpsn_type">
        <source></source>
        <translation>Application type</translation>
    </message>
    <message id="carbonpsn_type_tip">
        <source></source>
        <translation>The four-character type of the application, APPL for an ordinary one. From the desktop.</translation>
    </message>
    <message id="carbonpsn_signature">
        <source></source>
        <translation>Application signature</translation>
    </message>
    <message id="carbonpsn_signature_tip">
        <source></source>
        <translation>Four characters that tell applications apart: the beginning of the desktop entry's or window class's name. From the desktop.</translation>
    </message>
    <message id="carbonpsn_mode">
        <source></source>
        <translation>Application mode</translation>
    </message>
    <message id="carbonpsn_mode_tip">
        <source></source>
        <translation>The application's mode flags as the desktop reports them, a hexadecimal mask.</translation>
    </message>
    <message id="classicpsn_name">
        <source></source>
        <translation>Classic name</translation>
    </message>
    <message id="classicpsn_name_tip">
        <source></source>
        <translation>The application's name inside the Classic environment. Only applications of that environment have one.</translation>
    </message>
    <message id="classicpsn_type">
        <source></source>
        <translation>Classic type</translation>
    </message>
    <message id="classicpsn_type_tip">
        <source></source>
        <translation>The four-character file type of the application inside the Classic environment.</translation>
    </message>
    <message id="classicpsn_signature">
        <source></source>
        <translation>Classic signature</translation>
    </message>
    <message id="classicpsn_signature_tip">
        <source></source>
        <translation>The four-character creator code of the application inside the Classic environment.</translation>
    </message>
    <message id="classicpsn_mode">
        <source></source>
        <translation>Classic mode</translation>
    </message>
    <message id="classicpsn_mode_tip">
        <source></source>
        <translation>The application's mode flags inside the Classic environment, a hexadecimal mask.</translation>
    </message>
    <message id="classicpsn_location">
        <source></source>
        <translation>Classic location</translation>
    </message>
    <message id="classicpsn_location_tip">
        <source></source>
        <translation>The address at which the application's memory partition begins inside the Classic environment, in hexadecimal.</translation>
    </message>
    <message id="classicpsn_size">
        <source></source>
        <translation>Classic size</translation>
    </message>
    <message id="classicpsn_size_tip">
        <source></source>
        <translation>The size of the application's memory partition inside the Classic environment, in bytes.</translation>
    </message>
    <message id="classicpsn_active_time">
        <source></source>
        <translation>Classic active time</translation>
    </message>
    <message id="classicpsn_active_time_tip">
        <source></source>
        <translation>Time the application has been active inside the Classic environment, in ticks of a sixtieth of a second.</translation>
    </message>
    <message id="classicpsn_free_mem">
        <source></source>
        <translation>Classic free memory</translation>
    </message>
    <message id="classicpsn_free_mem_tip">
        <source></source>
        <translation>What is left of the application's memory partition inside the Classic environment, in bytes.</translation>
    </message>
    <message id="pid_p_comm">
        <source></source>
        <translation>Command name</translation>
    </message>
    <message id="pid_p_comm_tip">
        <source></source>
        <translation>The name of the command, up to 16 characters. The kernel keeps 15 of them; a longer name is completed from the command line or the executable.</translation>
    </message>
    <message id="pid_p_priority">
        <source></source>
        <translation>Priority</translation>
    </message>
    <message id="pid_p_priority_tip">
        <source></source>
        <translation>The kernel's scheduling priority; lower numbers run first. Ordinary processes have 20 plus their nice value, real-time ones are below zero. From /proc/PID/stat.</translation>
    </message>
    <message id="pid_parent_pid">
        <source></source>
        <translation>Parent ID</translation>
    </message>
    <message id="pid_parent_pid_tip">
        <source></source>
        <translation>The number of the process that started this one, or of the one that took it over.</translation>
    </message>
    <message id="pid_p_nice">
        <source></source>
        <translation>Nice value</translation>
    </message>
    <message id="pid_p_nice_tip">
        <source></source>
        <translation>How much the process gives way to others, from -20 (least) to 19 (most). From /proc/PID/stat.</translation>
    </message>
    <message id="pid_p_starttime">
        <source></source>
        <translation>Start time</translation>
    </message>
    <message id="pid_p_starttime_tip">
        <source></source>
        <translation>The date and time at which the process was started. From /proc/PID/stat.</translation>
    </message>
    <message id="pid_user_time">
        <source></source>
        <translation>User time</translation>
    </message>
    <message id="pid_user_time_tip">
        <source></source>
        <translation>CPU time spent in the program's own code, all threads together, in seconds. From /proc/PID/stat.</translation>
    </message>
    <message id="pid_system_time">
        <source></source>
        <translation>System time</translation>
    </message>
    <message id="pid_system_time_tip">
        <source></source>
        <translation>CPU time that the kernel spent on the process's behalf, all threads together, in seconds. From /proc/PID/stat.</translation>
    </message>
    <message id="pid_vsz">
        <source></source>
        <translation>Virtual size</translation>
    </message>
    <message id="pid_vsz_tip">
        <source></source>
        <translation>The size of all memory the process has mapped, whether it is in use or not, in bytes. From /proc/PID/stat.</translation>
    </message>
    <message id="pid_rsz">
        <source></source>
        <translation>Resident size</translation>
    </message>
    <message id="pid_rsz_tip">
        <source></source>
        <translation>How much of the process's memory lies in RAM, shared pages included, in bytes. From /proc/PID/stat.</translation>
    </message>
    <message id="pid_pss">
        <source></source>
        <translation>Memory, its part</translation>
    </message>
    <message id="pid_pss_tip">
        <source></source>
        <translation>Proportional set size: the memory that the process has to itself, and of each page that it shares with others its part. Over all processes it adds up to what they take together. From /proc/PID/smaps_rollup, which the kernel adds up by walking through the memory: it is read in the background, rows in sight first. Swapped-out memory is left out. Of other users' processes it is not allowed.</translation>
    </message>
    <message id="pid_uss">
        <source></source>
        <translation>Memory of its own</translation>
    </message>
    <message id="pid_uss_tip">
        <source></source>
        <translation>Unique set size: the memory that nobody shares with the process, and so what its end would give back. Private_Clean and Private_Dirty of /proc/PID/smaps_rollup, read in the background, rows in sight first. Swapped-out memory and huge pages of hugetlbfs are left out. Of other users' processes it is not allowed.</translation>
    </message>
    <message id="pid_descriptors">
        <source></source>
        <translation>Open descriptors</translation>
    </message>
    <message id="pid_descriptors_tip">
        <source></source>
        <translation>How many descriptors of files, sockets, pipes and the like the process has open: the entries of /proc/PID/fd. Read in the background. Files that are only mapped into memory are left out. Of other users' processes the kernel tells it since version 6.2.</translation>
    </message>
    <message id="pid_net_received">
        <source></source>
        <translation>Received</translation>
    </message>
    <message id="pid_net_received_tip">
        <source></source>
        <translation>Bytes that have come in over the network, the loopback included. In all means: since Lurkwell looked, and before that what the connections still open have moved. Counted are TCP connections of this network namespace, which the kernel's socket diagnostics tell, by the process's descriptors; one that several processes hold counts for each. UDP and QUIC, connections that begin and end between two looks, and other network namespaces are not counted: a process without a TCP connection so far has no figure. Of other users' processes it is not allowed; see the unit's.</translation>
    </message>
    <message id="pid_net_sent">
        <source></source>
        <translation>Sent</translation>
    </message>
    <message id="pid_net_sent_tip">
        <source></source>
        <translation>Bytes that were sent over the network, the loopback included, and that the other end has acknowledged. In all means: since Lurkwell looked, and before that what the connections still open have moved. Counted are TCP connections of this network namespace, which the kernel's socket diagnostics tell, by the process's descriptors; one that several processes hold counts for each. UDP and QUIC, connections that begin and end between two looks, and other network namespaces are not counted: a process without a TCP connection so far has no figure. Of other users' processes it is not allowed; see the unit's.</translation>
    </message>
    <message id="pid_net_receive_rate">
        <source></source>
        <translation>Receiving</translation>
    </message>
    <message id="pid_net_receive_rate_tip">
        <source></source>
        <translation>Bytes per second that come in over the network, between the last two looks. Counted are TCP connections of this network namespace, which the kernel's socket diagnostics tell, by the process's descriptors; one that several processes hold counts for each. UDP and QUIC, connections that begin and end between two looks, and other network namespaces are not counted: a process without a TCP connection so far has no figure. Of other users' processes it is not allowed; see the unit's.</translation>
    </message>
    <message id="pid_net_send_rate">
        <source></source>
        <translation>Sending</translation>
    </message>
    <message id="pid_net_send_rate_tip">
        <source></source>
        <translation>Bytes per second that are sent over the network and acknowledged, between the last two looks. Counted are TCP connections of this network namespace, which the kernel's socket diagnostics tell, by the process's descriptors; one that several processes hold counts for each. UDP and QUIC, connections that begin and end between two looks, and other network namespaces are not counted: a process without a TCP connection so far has no figure. Of other users' processes it is not allowed; see the unit's.</translation>
    </message>
    <message id="pid_connections">
        <source></source>
        <translation>Connections</translation>
    </message>
    <message id="pid_connections_tip">
        <source></source>
        <translation>How many TCP connections the process has open, those that only listen left out. From the kernel's socket diagnostics, by the process's descriptors; other protocols and other network namespaces are not counted. Of other users' processes it is not allowed.</translation>
    </message>
    <message id="pid_listening_ports">
        <source></source>
        <translation>Listening on</translation>
    </message>
    <message id="pid_listening_ports_tip">
        <source></source>
        <translation>The TCP ports on which the process waits for connections. From the kernel's socket diagnostics, by the process's descriptors; UDP and other network namespaces are left out. Of other users' processes it is not allowed.</translation>
    </message>
    <message id="pid_ports">
        <source></source>
        <translation>Ports</translation>
    </message>
    <message id="pid_ports_tip">
        <source></source>
        <translation>The ports of the process’s TCP and UDP sockets: its own and those at the other ends.
From its open descriptors and the tables of sockets in /proc/PID/net; of other users’ processes that is not allowed.</translation>
    </message>
    <message id="pid_open_files">
        <source></source>
        <translation>Open Files</translation>
    </message>
    <message id="pid_open_files_tip">
        <source></source>
        <translation>The names of the files that the process has open, and its working folder.
From /proc/PID/fd and /proc/PID/cwd; of other users’ processes that is not allowed.</translation>
    </message>
    <message id="pid_unit_net_received">
        <source></source>
        <translation>Received (unit)</translation>
    </message>
    <message id="pid_unit_net_received_tip">
        <source></source>
        <translation>Bytes that have come in over TCP connections: one figure for all processes of the unit (control group) together, as the kernel's socket diagnostics tell it to everybody. UDP and QUIC, connections that begin and end between two looks, and other network namespaces are not counted. In all means: since Lurkwell looked, and before that what the connections still open have moved.</translation>
    </message>
    <message id="pid_unit_net_sent">
        <source></source>
        <translation>Sent (unit)</translation>
    </message>
    <message id="pid_unit_net_sent_tip">
        <source></source>
        <translation>Bytes that were sent over TCP connections and acknowledged: one figure for all processes of the unit (control group) together, as the kernel's socket diagnostics tell it to everybody. UDP and QUIC, connections that begin and end between two looks, and other network namespaces are not counted. In all means: since Lurkwell looked, and before that what the connections still open have moved.</translation>
    </message>
    <message id="pid_unit_net_receive_rate">
        <source></source>
        <translation>Receiving (unit)</translation>
    </message>
    <message id="pid_unit_net_receive_rate_tip">
        <source></source>
        <translation>Bytes per second that come in over TCP connections: one figure for all processes of the unit (control group) together, as the kernel's socket diagnostics tell it to everybody. UDP and QUIC, connections that begin and end between two looks, and other network namespaces are not counted.</translation>
    </message>
    <message id="pid_unit_net_send_rate">
        <source></source>
        <translation>Sending (unit)</translation>
    </message>
    <message id="pid_unit_net_send_rate_tip">
        <source></source>
        <translation>Bytes per second that are sent over TCP connections and acknowledged: one figure for all processes of the unit (control group) together, as the kernel's socket diagnostics tell it to everybody. UDP and QUIC, connections that begin and end between two looks, and other network namespaces are not counted.</translation>
    </message>
    <message id="pid_gpu_share">
        <source></source>
        <translation>GPU</translation>
    </message>
    <message id="pid_gpu_share_tip">
        <source></source>
        <translation>For how much of the time between the last two looks the busiest engine of a graphics device worked for the process. From the usage figures that the kernel keeps with the process's descriptors of graphics devices (/proc/PID/fdinfo); each client of a device counts once. Drivers that keep none, such as NVIDIA's own, are not counted. No device is opened or woken. Of other users' processes it is not allowed.</translation>
    </message>
    <message id="pid_gpu_memory">
        <source></source>
        <translation>GPU memory</translation>
    </message>
    <message id="pid_gpu_memory_tip">
        <source></source>
        <translation>Memory of graphics devices that the process holds: what resides there where the driver tells it, else what was allocated. From the usage figures that the kernel keeps with the process's descriptors of graphics devices (/proc/PID/fdinfo); each client of a device counts once. Drivers that keep none, such as NVIDIA's own, are not counted. No device is opened or woken. Of other users' processes it is not allowed.</translation>
    </message>
    <message id="pid_gpu_engine">
        <source></source>
        <translation>GPU engine</translation>
    </message>
    <message id="pid_gpu_engine_tip">
        <source></source>
        <translation>The engine that was busiest for the process between the last two looks, in the driver's words (render, video, copy and the like). From the usage figures that the kernel keeps with the process's descriptors of graphics devices (/proc/PID/fdinfo); each client of a device counts once. Drivers that keep none, such as NVIDIA's own, are not counted. No device is opened or woken. Of other users' processes it is not allowed.</translation>
    </message>
    <message id="value_age_tip" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Read %n second ago.</numerusform>
            <numerusform>Read %n seconds ago.</numerusform>
        </translation>
    </message>
    <message id="pid_suspend_count">
        <source></source>
        <translation>Suspend count</translation>
    </message>
    <message id="pid_suspend_count_tip">
        <source></source>
        <translation>1 while the process is stopped, by a signal or by a debugger, else 0.</translation>
    </message>
    <message id="pid_terminated_user_time">
        <source></source>
        <translation>Ended threads' user time</translation>
    </message>
    <message id="pid_terminated_user_time_tip">
        <source></source>
        <translation>User time of threads that have ended. Always 0 on Linux, where the user time includes it.</translation>
    </message>
    <message id="pid_terminated_system_time">
        <source></source>
        <translation>Ended threads' system time</translation>
    </message>
    <message id="pid_terminated_system_time_tip">
        <source></source>
        <translation>System time of threads that have ended. Always 0 on Linux, where the system time includes it.</translation>
    </message>
    <message id="pid_policy">
        <source></source>
        <translation>Scheduling policy</translation>
    </message>
    <message id="pid_policy_tip">
        <source></source>
        <translation>The kernel's scheduling policy as a number: 0 ordinary, 1 FIFO, 2 round robin, 3 batch, 5 idle, 6 deadline. From /proc/PID/stat.</translation>
    </message>
    <message id="pid_faults">
        <source></source>
        <translation>Page faults</translation>
    </message>
    <message id="pid_faults_tip">
        <source></source>
        <translation>Page faults since the process started, with and without a read from disk. From /proc/PID/stat.</translation>
    </message>
    <message id="pid_pageins">
        <source></source>
        <translation>Page-ins</translation>
    </message>
    <message id="pid_pageins_tip">
        <source></source>
        <translation>Page faults that had to wait for a read from disk (major faults). From /proc/PID/stat.</translation>
    </message>
    <message id="pid_cow_faults">
        <source></source>
        <translation>Copy-on-write faults</translation>
    </message>
    <message id="pid_cow_faults_tip">
        <source></source>
        <translation>Page faults that copied a shared page. Linux does not count them: always 0.</translation>
    </message>
    <message id="pid_messages_sent">
        <source></source>
        <translation>Messages sent</translation>
    </message>
    <message id="pid_messages_sent_tip">
        <source></source>
        <translation>Messages sent between the kernel and the process. Linux has no such messages: always 0.</translation>
    </message>
    <message id="pid_messages_received">
        <source></source>
        <translation>Messages received</translation>
    </message>
    <message id="pid_messages_received_tip">
        <source></source>
        <translation>Messages received between the kernel and the process. Linux has no such messages: always 0.</translation>
    </message>
    <message id="pid_syscalls_mach">
        <source></source>
        <translation>Mach system calls</translation>
    </message>
    <message id="pid_syscalls_mach_tip">
        <source></source>
        <translation>Calls of the Mach kernel's interface. Linux has none: always 0.</translation>
    </message>
    <message id="pid_syscalls_unix">
        <source></source>
        <translation>Unix system calls</translation>
    </message>
    <message id="pid_syscalls_unix_tip">
        <source></source>
        <translation>System calls that read or write, added up; other calls are not counted. From /proc/PID/io, which only its user and root may read.</translation>
    </message>
    <message id="pid_csw">
        <source></source>
        <translation>Context switches</translation>
    </message>
    <message id="pid_csw_tip">
        <source></source>
        <translation>How often a CPU was switched away from the process's main thread, voluntarily or not. From /proc/PID/status.</translation>
    </message>
    <message id="pid_processor">
        <source></source>
        <translation>Last CPU</translation>
    </message>
    <message id="pid_processor_tip">
        <source></source>
        <translation>The number of the processor that the process's main thread ran on last, from 0. From /proc/PID/stat.</translation>
    </message>
    <message id="pid_cpu_wait">
        <source></source>
        <translation>Waiting for a CPU</translation>
    </message>
    <message id="pid_cpu_wait_tip">
        <source></source>
        <translation>How long the threads of the process were ready to run and had to wait for a processor, in seconds, all of them together. Threads that have ended are missing. From /proc/PID/task/TID/schedstat.</translation>
    </message>
    <message id="pid_disk_read">
        <source></source>
        <translation>Read from disk</translation>
    </message>
    <message id="pid_disk_read_tip">
        <source></source>
        <translation>Bytes that the storage devices had to deliver for the process since it started. From /proc/PID/io, which only its user and root may read.</translation>
    </message>
    <message id="pid_disk_written">
        <source></source>
        <translation>Written to disk</translation>
    </message>
    <message id="pid_disk_written_tip">
        <source></source>
        <translation>Bytes that the process has given to the storage devices to write since it started; what it wrote to files that were deleted soon is counted, too. From /proc/PID/io, which only its user and root may read.</translation>
    </message>
    <message id="pid_bytes_read">
        <source></source>
        <translation>Bytes read</translation>
    </message>
    <message id="pid_bytes_read_tip">
        <source></source>
        <translation>Bytes that the process got from its read calls since it started, whether they came from a disk, a cache or a terminal. From /proc/PID/io, which only its user and root may read.</translation>
    </message>
    <message id="pid_bytes_written">
        <source></source>
        <translation>Bytes written</translation>
    </message>
    <message id="pid_bytes_written_tip">
        <source></source>
        <translation>Bytes that the process passed to its write calls since it started, whether they went to a disk, a cache or a terminal. From /proc/PID/io, which only its user and root may read.</translation>
    </message>
    <message id="pid_unit_disk_read">
        <source></source>
        <translation>Read from disk (unit)</translation>
    </message>
    <message id="pid_unit_disk_read_tip">
        <source></source>
        <translation>Bytes that the storage devices have delivered to the unit (control group) of the process: to all processes in it together, ended ones included. From its io.stat, which everybody may read; units whose input and output is not accounted have none.</translation>
    </message>
    <message id="pid_unit_disk_written">
        <source></source>
        <translation>Written to disk (unit)</translation>
    </message>
    <message id="pid_unit_disk_written_tip">
        <source></source>
        <translation>Bytes that the unit (control group) of the process has given to the storage devices to write: all processes in it together, ended ones included. From its io.stat, which everybody may read; units whose input and output is not accounted have none.</translation>
    </message>
    <message id="pid_owner">
        <source></source>
        <translation>Owner</translation>
    </message>
    <message id="pid_owner_tip">
        <source></source>
        <translation>The user whose process it is, and "as" whom it acts where that is another one. From /proc/PID/status; a user without a name is a number.</translation>
    </message>
    <message id="pid_state">
        <source></source>
        <translation>State in words</translation>
    </message>
    <message id="pid_state_tip">
        <source></source>
        <translation>What the process's main thread does: running (or ready to), sleeping, uninterruptible (mostly waiting for a disk), stopped, traced by a debugger, zombie (ended, not yet collected), idle (the kernel's own). From /proc/PID/stat. Other threads may do something else.</translation>
    </message>
    <message id="pid_threads">
        <source></source>
        <translation>Thread count</translation>
    </message>
    <message id="pid_threads_tip">
        <source></source>
        <translation>How many threads the process has. From /proc/PID/stat. Threads that have ended are not counted.</translation>
    </message>
    <message id="pid_terminal">
        <source></source>
        <translation>Controlling terminal</translation>
    </message>
    <message id="pid_terminal_tip">
        <source></source>
        <translation>The terminal that the process belongs to, by its name below /dev. From /proc/PID/stat. Empty for a process without one; a program in a terminal window has that window's.</translation>
    </message>
    <message id="pid_command_line">
        <source></source>
        <translation>Full command line</translation>
    </message>
    <message id="pid_command_line_tip">
        <source></source>
        <translation>The program and its arguments, characters that cannot be shown written as escapes. From /proc/PID/cmdline, at most some 4,000 characters, as the process has them now: it may rewrite them. Printed and written it is the program alone, unless the setting KEEP_COMMAND_LINES is on.</translation>
    </message>
    <message id="pid_executable">
        <source></source>
        <translation>Executable file</translation>
    </message>
    <message id="pid_executable_tip">
        <source></source>
        <translation>The file that the process runs, "(deleted)" once it has been replaced or removed. From /proc/PID/exe, which only its user and root may read. The kernel's threads have none.</translation>
    </message>
    <message id="pid_running_time">
        <source></source>
        <translation>Running for</translation>
    </message>
    <message id="pid_running_time_tip">
        <source></source>
        <translation>How long ago the process was started, in days, hours, minutes and seconds; the time that the machine was asleep is in it. From /proc/PID/stat and the clock.</translation>
    </message>
    <message id="pid_cpu_share">
        <source></source>
        <translation>CPU % of a core</translation>
    </message>
    <message id="pid_cpu_share_of_machine">
        <source></source>
        <translation>CPU % of all</translation>
    </message>
    <message id="pid_cpu_share_tip">
        <source></source>
        <translation>How much of one processor the process used since the last update, all its threads together: 100 is one processor all the time, four busy threads make 400. From the times in /proc/PID/stat, which count in hundredths of a second. What ended children used is not in it.</translation>
    </message>
    <message id="pid_user_share">
        <source></source>
        <translation>User % of a core</translation>
    </message>
    <message id="pid_user_share_of_machine">
        <source></source>
        <translation>User % of all</translation>
    </message>
    <message id="pid_user_share_tip">
        <source></source>
        <translation>How much of one processor the process used since the last update for its own code. From the times in /proc/PID/stat.</translation>
    </message>
    <message id="pid_system_share">
        <source></source>
        <translation>System % of a core</translation>
    </message>
    <message id="pid_system_share_of_machine">
        <source></source>
        <translation>System % of all</translation>
    </message>
    <message id="pid_system_share_tip">
        <source></source>
        <translation>How much of one processor the kernel used for the process since the last update. From the times in /proc/PID/stat.</translation>
    </message>
    <message id="pid_affinity">
        <source></source>
        <translation>CPUs allowed</translation>
    </message>
    <message id="pid_affinity_tip">
        <source></source>
        <translation>The processors that the process's main thread may run on, by their numbers from 0. As the kernel's sched_getaffinity tells. Limits of the process's control group are in it, other threads may have others.</translation>
    </message>
    <message id="pid_scheduler">
        <source></source>
        <translation>Scheduler</translation>
    </message>
    <message id="pid_scheduler_tip">
        <source></source>
        <translation>How the kernel shares processors with the process: normal, batch, idle (only when nobody else wants them), real time, deadline. From /proc/PID/stat, for its main thread.</translation>
    </message>
    <message id="pid_io_priority">
        <source></source>
        <translation>I/O priority</translation>
    </message>
    <message id="pid_io_priority_tip">
        <source></source>
        <translation>How the process stands when it waits for a disk: its class, and its level from 0, the highest, to 7. As the kernel's ioprio_get tells. Disks without a scheduler, most NVMe ones, take no notice of it.</translation>
    </message>
    <message id="pid_shared_memory">
        <source></source>
        <translation>Shared memory</translation>
    </message>
    <message id="pid_shared_memory_tip">
        <source></source>
        <translation>Memory of the process that others may have mapped, too: parts of files and libraries, and memory that is meant to be shared. From RssFile and RssShmem in /proc/PID/status. It is part of Real memory, whether or not somebody shares it.</translation>
    </message>
    <message id="pid_swap">
        <source></source>
        <translation>Swapped out</translation>
    </message>
    <message id="pid_swap_tip">
        <source></source>
        <translation>Memory of the process that was moved to the swap space. From VmSwap in /proc/PID/status. Shared memory that was swapped out is not in it.</translation>
    </message>
    <message id="pid_highest_rsz">
        <source></source>
        <translation>Highest real memory</translation>
    </message>
    <message id="pid_highest_rsz_tip">
        <source></source>
        <translation>The most memory that the process has had at a time. From VmHWM in /proc/PID/status.</translation>
    </message>
    <message id="pid_memory_share">
        <source></source>
        <translation>Memory %</translation>
    </message>
    <message id="pid_memory_share_tip">
        <source></source>
        <translation>Real memory of the process as a share of all the machine has. From /proc/PID/stat. What is shared counts in full for everybody who has it, so that the sum may be over 100.</translation>
    </message>
    <message id="pid_oom_score">
        <source></source>
        <translation>Out-of-memory score</translation>
    </message>
    <message id="pid_oom_score_tip">
        <source></source>
        <translation>Who is ended first when memory runs out: the process with the highest score. From /proc/PID/oom_score.</translation>
    </message>
    <message id="pid_disk_read_rate">
        <source></source>
        <translation>Disk read/s</translation>
    </message>
    <message id="pid_disk_read_rate_tip">
        <source></source>
        <translation>What the storage devices had to deliver for the process, in bytes per second since the last update. From /proc/PID/io, which only its user and root may read; for others' processes see the unit's.</translation>
    </message>
    <message id="pid_disk_write_rate">
        <source></source>
        <translation>Disk write/s</translation>
    </message>
    <message id="pid_disk_write_rate_tip">
        <source></source>
        <translation>What the process gave to the storage devices to write, in bytes per second since the last update. From /proc/PID/io, which only its user and root may read; for others' processes see the unit's.</translation>
    </message>
    <message id="pid_read_rate">
        <source></source>
        <translation>Read/s</translation>
    </message>
    <message id="pid_read_rate_tip">
        <source></source>
        <translation>What the process got from its read calls, in bytes per second since the last update, from a disk, a cache, a pipe or a terminal. From /proc/PID/io, which only its user and root may read.</translation>
    </message>
    <message id="pid_write_rate">
        <source></source>
        <translation>Write/s</translation>
    </message>
    <message id="pid_write_rate_tip">
        <source></source>
        <translation>What the process passed to its write calls, in bytes per second since the last update, to a disk, a cache, a pipe or a terminal. From /proc/PID/io, which only its user and root may read.</translation>
    </message>
    <message id="pid_unit_read_rate">
        <source></source>
        <translation>Disk read/s (unit)</translation>
    </message>
    <message id="pid_unit_read_rate_tip">
        <source></source>
        <translation>What the storage devices delivered to the unit (control group) of the process, all processes in it together, in bytes per second since the last update. From its io.stat, which everybody may read; units whose input and output is not accounted have none.</translation>
    </message>
    <message id="pid_unit_write_rate">
        <source></source>
        <translation>Disk write/s (unit)</translation>
    </message>
    <message id="pid_unit_write_rate_tip">
        <source></source>
        <translation>What the unit (control group) of the process gave to the storage devices to write, all processes in it together, in bytes per second since the last update. From its io.stat, which everybody may read; units whose input and output is not accounted have none.</translation>
    </message>
    <message id="pid_cgroup">
        <source></source>
        <translation>Control group path</translation>
    </message>
    <message id="pid_cgroup_tip">
        <source></source>
        <translation>The control group of the process, from the root that this program sees. From /proc/PID/cgroup. Where there are several hierarchies, the unified one's, else the service manager's.</translation>
    </message>
    <message id="pid_unit">
        <source></source>
        <translation>Service or scope</translation>
    </message>
    <message id="pid_unit_tip">
        <source></source>
        <translation>The unit of the service manager that the process belongs to: a service, a session, an application's scope. From the path of its control group. Empty without such a manager.</translation>
    </message>
    <message id="pid_slice">
        <source></source>
        <translation>Slice of units</translation>
    </message>
    <message id="pid_slice_tip">
        <source></source>
        <translation>The group of units that the process's unit is in. From the path of its control group.</translation>
    </message>
    <message id="pid_app_scope">
        <source></source>
        <translation>Application scope</translation>
    </message>
    <message id="pid_app_scope_tip">
        <source></source>
        <translation>The application for which the session manager keeps the process, by its desktop entry. From the path of its control group. Empty for services and for desktops that do not sort their applications.</translation>
    </message>
    <message id="pid_container">
        <source></source>
        <translation>Container</translation>
    </message>
    <message id="pid_container_tip">
        <source></source>
        <translation>Kind and name or number of the container that the process is in: Docker, Podman, containerd, CRI-O, Kubernetes, LXC, systemd-nspawn, Flatpak, Snap. From the path of its control group; an engine that names its groups otherwise is not known. "own pid namespace" for what is shut off without one, such as the parts of a web browser.</translation>
    </message>
    <message id="pid_inner_pid">
        <source></source>
        <translation>Pid inside</translation>
    </message>
    <message id="pid_inner_pid_tip">
        <source></source>
        <translation>The process's number in the innermost namespace of pids that it is in, when that is not this program's. From NSpid in /proc/PID/status.</translation>
    </message>
    <message id="pid_namespace">
        <source></source>
        <translation>Pid namespace</translation>
    </message>
    <message id="pid_namespace_tip">
        <source></source>
        <translation>The number of the namespace of pids that the process is in: those with the same number see each other. From /proc/PID/ns/pid, which only its user and root may read.</translation>
    </message>
    <message id="pid_capabilities">
        <source></source>
        <translation>Effective capabilities</translation>
    </message>
    <message id="pid_capabilities_tip">
        <source></source>
        <translation>Which of root's rights the process has at present. From CapEff in /proc/PID/status, for its main thread. In a namespace of users they count for that one alone.</translation>
    </message>
    <message id="pid_seccomp">
        <source></source>
        <translation>System call filter</translation>
    </message>
    <message id="pid_seccomp_tip">
        <source></source>
        <translation>Whether the process has its own system calls filtered: off, strict (next to none are left) or filter. From Seccomp in /proc/PID/status.</translation>
    </message>
    <message id="pid_no_new_privileges">
        <source></source>
        <translation>No new privileges</translation>
    </message>
    <message id="pid_no_new_privileges_tip">
        <source></source>
        <translation>Whether programs that the process starts cannot get more rights than it has, whatever their files say. From NoNewPrivs in /proc/PID/status.</translation>
    </message>
    <message id="pid_label">
        <source></source>
        <translation>Label of the security module</translation>
    </message>
    <message id="pid_label_tip">
        <source></source>
        <translation>What AppArmor, SELinux or Smack calls the process. From /proc/PID/attr/current; not there without such a module.</translation>
    </message>
    <message id="pid_elevated">
        <source></source>
        <translation>Elevated</translation>
    </message>
    <message id="pid_elevated_tip">
        <source></source>
        <translation>Whether the process has rights that its user's others have not: root when it acts as root, capabilities when it has some of root's rights. From Uid and CapEff in /proc/PID/status.</translation>
    </message>
    <message id="internal_Icon">
        <source></source>
        <translation>Icon</translation>
    </message>
    <message id="internal_Icon_tip">
        <source></source>
        <translation>The application's icon. A process that is no application has none.</translation>
    </message>
    <message id="internal_Indicator">
        <source></source>
        <translation>Indicator</translation>
    </message>
    <message id="internal_Indicator_tip">
        <source></source>
        <translation>A badge for what was done to the process here: halted, or its priority raised or lowered.</translation>
    </message>
    <message id="internal_CPUPercent">
        <source></source>
        <translation>CPU usage</translation>
    </message>
    <message id="internal_CPUPercent_tip">
        <source></source>
        <translation>The share of a CPU that the process used since the previous update, as a bar.</translation>
    </message>
    <message id="internal_MemGraph">
        <source></source>
        <translation>Memory</translation>
    </message>
    <message id="internal_MemGraph_tip">
        <source></source>
        <translation>The resident and the virtual size of the process, as a bar.</translation>
    </message>
    <message id="%CPU">
        <source></source>
        <translation>CPU usage (%CPU)</translation>
    </message>
    <message id="%CPU_tip">
        <source></source>
        <translation>CPU time used divided by the time the process has been running, in percent. It is an average over the whole life of the process.</translation>
    </message>
    <message id="%CUC">
        <source></source>
        <translation>CPU usage with children (%CUC)</translation>
    </message>
    <message id="%CUC_tip">
        <source></source>
        <translation>CPU time of the process and of its ended children divided by the time it has been running, in percent with three decimals.</translation>
    </message>
    <message id="%CUU">
        <source></source>
        <translation>CPU usage (%CUU)</translation>
    </message>
    <message id="%CUU_tip">
        <source></source>
        <translation>CPU time used divided by the time the process has been running, in percent with three decimals.</translation>
    </message>
    <message id="%MEM">
        <source></source>
        <translation>Memory usage (%MEM)</translation>
    </message>
    <message id="%MEM_tip">
        <source></source>
        <translation>The resident size as a percentage of the machine's physical memory.</translation>
    </message>
    <message id="AGID">
        <source></source>
        <translation>Autogroup ID (AGID)</translation>
    </message>
    <message id="AGID_tip">
        <source></source>
        <translation>The number of the scheduler's automatic group the process belongs to; as a rule each session has one.</translation>
    </message>
    <message id="AGNI">
        <source></source>
        <translation>Autogroup nice value (AGNI)</translation>
    </message>
    <message id="AGNI_tip">
        <source></source>
        <translation>The nice value of the scheduler's automatic group: how much the whole group gives way to others.</translation>
    </message>
    <message id="API">
        <source></source>
        <translation>Priority (API)</translation>
    </message>
    <message id="API_tip">
        <source></source>
        <translation>The scheduling priority on one of the historical scales that ps offers: -1 less the kernel's priority.</translation>
    </message>
    <message id="BLOCKED">
        <source></source>
        <translation>Blocked signals (BLOCKED)</translation>
    </message>
    <message id="BLOCKED_tip">
        <source></source>
        <translation>The signals whose delivery the process has put off, as a hexadecimal mask.</translation>
    </message>
    <message id="BSDTIME">
        <source></source>
        <translation>CPU time (BSDTIME)</translation>
    </message>
    <message id="BSDTIME_tip">
        <source></source>
        <translation>CPU time used since the process started, user and system together. The same as TIME.</translation>
    </message>
    <message id="C">
        <source></source>
        <translation>CPU usage (C)</translation>
    </message>
    <message id="C_tip">
        <source></source>
        <translation>CPU time used divided by the time the process has been running, in whole percent.</translation>
    </message>
    <message id="CATCHED">
        <source></source>
        <translation>Caught signals (CATCHED)</translation>
    </message>
    <message id="CATCHED_tip">
        <source></source>
        <translation>The signals for which the process has a handler of its own, as a hexadecimal mask. The same as CAUGHT.</translation>
    </message>
    <message id="CAUGHT">
        <source></source>
        <translation>Caught signals (CAUGHT)</translation>
    </message>
    <message id="CAUGHT_tip">
        <source></source>
        <translation>The signals for which the process has a handler of its own, as a hexadecimal mask.</translation>
    </message>
    <message id="CGNAME">
        <source></source>
        <translation>Control group names (CGNAME)</translation>
    </message>
    <message id="CGNAME_tip">
        <source></source>
        <translation>The names of the control groups the process belongs to, as the kernel gives them.</translation>
    </message>
    <message id="CGROUP">
        <source></source>
        <translation>Control groups (CGROUP)</translation>
    </message>
    <message id="CGROUP_tip">
        <source></source>
        <translation>The control groups the process belongs to.</translation>
    </message>
    <message id="CGROUPNS">
        <source></source>
        <translation>Control group namespace (CGROUPNS)</translation>
    </message>
    <message id="CGROUPNS_tip">
        <source></source>
        <translation>The inode number of the control group namespace the process lives in. Processes with equal numbers share it.</translation>
    </message>
    <message id="CLS">
        <source></source>
        <translation>Scheduling class (CLS)</translation>
    </message>
    <message id="CLS_tip">
        <source></source>
        <translation>The scheduling class: TS ordinary, FF first in first out, RR round robin, B batch, IDL idle, DLN deadline.</translation>
    </message>
    <message id="CMD">
        <source></source>
        <translation>Command line (CMD)</translation>
    </message>
    <message id="CMD_tip">
        <source></source>
        <translation>The command with all its arguments. The same as COMMAND.</translation>
    </message>
    <message id="COMM">
        <source></source>
        <translation>Command name (COMM)</translation>
    </message>
    <message id="COMM_tip">
        <source></source>
        <translation>The name of the command without its arguments.</translation>
    </message>
    <message id="COMMAND">
        <source></source>
        <translation>Command line (COMMAND)</translation>
    </message>
    <message id="COMMAND_tip">
        <source></source>
        <translation>The command with all its arguments. Where these cannot be had, as with kernel threads, the command's name in brackets.</translation>
    </message>
    <message id="CONTEXT">
        <source></source>
        <translation>Security context (CONTEXT)</translation>
    </message>
    <message id="CONTEXT_tip">
        <source></source>
        <translation>The security context that the kernel's access control (SELinux, for one) gave the process; a dash when there is none.</translation>
    </message>
    <message id="CP">
        <source></source>
        <translation>CPU usage (CP)</translation>
    </message>
    <message id="CP_tip">
        <source></source>
        <translation>CPU time used divided by the time the process has been running, in thousandths.</translation>
    </message>
    <message id="CPUID">
        <source></source>
        <translation>Last CPU (CPUID)</translation>
    </message>
    <message id="CPUID_tip">
        <source></source>
        <translation>The number of the processor that the process ran on last.</translation>
    </message>
    <message id="CPUTIMES">
        <source></source>
        <translation>CPU seconds (CPUTIMES)</translation>
    </message>
    <message id="CPUTIMES_tip">
        <source></source>
        <translation>CPU time used since the process started, user and system together, in seconds.</translation>
    </message>
    <message id="DRS">
        <source></source>
        <translation>Data size (DRS)</translation>
    </message>
    <message id="DRS_tip">
        <source></source>
        <translation>The size of all mapped memory except for the executable code. Despite the name, not all of it needs to be in RAM.</translation>
    </message>
    <message id="DSIZ">
        <source></source>
        <translation>Data size (DSIZ)</translation>
    </message>
    <message id="DSIZ_tip">
        <source></source>
        <translation>The size of all mapped memory except for the executable code.</translation>
    </message>
    <message id="EGID">
        <source></source>
        <translation>Effective group ID (EGID)</translation>
    </message>
    <message id="EGID_tip">
        <source></source>
        <translation>The number of the group whose rights the process has.</translation>
    </message>
    <message id="EGROUP">
        <source></source>
        <translation>Effective group (EGROUP)</translation>
    </message>
    <message id="EGROUP_tip">
        <source></source>
        <translation>The name of the group whose rights the process has.</translation>
    </message>
    <message id="EIP">
        <source></source>
        <translation>Instruction pointer (EIP)</translation>
    </message>
    <message id="EIP_tip">
        <source></source>
        <translation>The address of the instruction the process is at. Kernels since 4.9 show it only while a process ends; otherwise it is zero.</translation>
    </message>
    <message id="ELAPSED">
        <source></source>
        <translation>Elapsed time (ELAPSED)</translation>
    </message>
    <message id="ELAPSED_tip">
        <source></source>
        <translation>Time since the process was started, as days, hours, minutes and seconds.</translation>
    </message>
    <message id="ESP">
        <source></source>
        <translation>Stack pointer (ESP)</translation>
    </message>
    <message id="ESP_tip">
        <source></source>
        <translation>The address of the top of the stack. Kernels since 4.9 show it only while a process ends; otherwise it is zero.</translation>
    </message>
    <message id="ETIMES">
        <source></source>
        <translation>Elapsed seconds (ETIMES)</translation>
    </message>
    <message id="ETIMES_tip">
        <source></source>
        <translation>Time since the process was started, in seconds.</translation>
    </message>
    <message id="EUID">
        <source></source>
        <translation>Effective user ID (EUID)</translation>
    </message>
    <message id="EUID_tip">
        <source></source>
        <translation>The number of the user whose rights the process has.</translation>
    </message>
    <message id="EUSER">
        <source></source>
        <translation>Effective user (EUSER)</translation>
    </message>
    <message id="EUSER_tip">
        <source></source>
        <translation>The name of the user whose rights the process has.</translation>
    </message>
    <message id="EXE">
        <source></source>
        <translation>Executable (EXE)</translation>
    </message>
    <message id="EXE_tip">
        <source></source>
        <translation>The path of the program file; a dash for kernel threads, a cross where it may not be read.</translation>
    </message>
    <message id="F">
        <source></source>
        <translation>Flags (F)</translation>
    </message>
    <message id="F_tip">
        <source></source>
        <translation>Flags of the process, added up: 1 forked but not yet a program of its own, 4 has used the superuser's rights.</translation>
    </message>
    <message id="FGID">
        <source></source>
        <translation>File access group ID (FGID)</translation>
    </message>
    <message id="FGID_tip">
        <source></source>
        <translation>The number of the group that counts when the process opens files.</translation>
    </message>
    <message id="FGROUP">
        <source></source>
        <translation>File access group (FGROUP)</translation>
    </message>
    <message id="FGROUP_tip">
        <source></source>
        <translation>The name of the group that counts when the process opens files.</translation>
    </message>
    <message id="FNAME">
        <source></source>
        <translation>Command name, shortened (FNAME)</translation>
    </message>
    <message id="FNAME_tip">
        <source></source>
        <translation>The first eight letters of the name of the command.</translation>
    </message>
    <message id="FSGID">
        <source></source>
        <translation>File access group ID (FSGID)</translation>
    </message>
    <message id="FSGID_tip">
        <source></source>
        <translation>The number of the group that counts when the process opens files. The same as FGID.</translation>
    </message>
    <message id="FSGROUP">
        <source></source>
        <translation>File access group (FSGROUP)</translation>
    </message>
    <message id="FSGROUP_tip">
        <source></source>
        <translation>The name of the group that counts when the process opens files. The same as FGROUP.</translation>
    </message>
    <message id="FSUID">
        <source></source>
        <translation>File access user ID (FSUID)</translation>
    </message>
    <message id="FSUID_tip">
        <source></source>
        <translation>The number of the user who counts when the process opens files. The same as FUID.</translation>
    </message>
    <message id="FSUSER">
        <source></source>
        <translation>File access user (FSUSER)</translation>
    </message>
    <message id="FSUSER_tip">
        <source></source>
        <translation>The name of the user who counts when the process opens files. The same as FUSER.</translation>
    </message>
    <message id="FUID">
        <source></source>
        <translation>File access user ID (FUID)</translation>
    </message>
    <message id="FUID_tip">
        <source></source>
        <translation>The number of the user who counts when the process opens files.</translation>
    </message>
    <message id="FUSER">
        <source></source>
        <translation>File access user (FUSER)</translation>
    </message>
    <message id="FUSER_tip">
        <source></source>
        <translation>The name of the user who counts when the process opens files.</translation>
    </message>
    <message id="GID">
        <source></source>
        <translation>Group ID (GID)</translation>
    </message>
    <message id="GID_tip">
        <source></source>
        <translation>The number of the effective group. The same as EGID.</translation>
    </message>
    <message id="GROUP">
        <source></source>
        <translation>Group (GROUP)</translation>
    </message>
    <message id="GROUP_tip">
        <source></source>
        <translation>The name of the effective group. The same as EGROUP.</translation>
    </message>
    <message id="IGNORED">
        <source></source>
        <translation>Ignored signals (IGNORED)</translation>
    </message>
    <message id="IGNORED_tip">
        <source></source>
        <translation>The signals that the process ignores, as a hexadecimal mask.</translation>
    </message>
    <message id="IPCNS">
        <source></source>
        <translation>IPC namespace (IPCNS)</translation>
    </message>
    <message id="IPCNS_tip">
        <source></source>
        <translation>The inode number of the inter-process communication namespace the process lives in. Processes with equal numbers share it.</translation>
    </message>
    <message id="LABEL">
        <source></source>
        <translation>Security context (LABEL)</translation>
    </message>
    <message id="LABEL_tip">
        <source></source>
        <translation>The label that the kernel's access control gave the process; a dash when there is none. The same as CONTEXT.</translation>
    </message>
    <message id="LASTCPU">
        <source></source>
        <translation>Last CPU (LASTCPU)</translation>
    </message>
    <message id="LASTCPU_tip">
        <source></source>
        <translation>The number of the processor that the process ran on last. The same as PSR.</translation>
    </message>
    <message id="LIM">
        <source></source>
        <translation>Memory limit (LIM)</translation>
    </message>
    <message id="LIM_tip">
        <source></source>
        <translation>The limit on the resident size, in kibibytes; xx stands for no limit.</translation>
    </message>
    <message id="LSTART">
        <source></source>
        <translation>Start date (LSTART)</translation>
    </message>
    <message id="LSTART_tip">
        <source></source>
        <translation>When the process was started, date and time.</translation>
    </message>
    <message id="LUID">
        <source></source>
        <translation>Login user ID (LUID)</translation>
    </message>
    <message id="LUID_tip">
        <source></source>
        <translation>The number of the user who logged in, which stays the same when rights change hands later; a dash when there was no login.</translation>
    </message>
    <message id="LWP">
        <source></source>
        <translation>Thread ID (LWP)</translation>
    </message>
    <message id="LWP_tip">
        <source></source>
        <translation>The number of the process's main thread, which equals the process ID.</translation>
    </message>
    <message id="LXC">
        <source></source>
        <translation>LXC container (LXC)</translation>
    </message>
    <message id="LXC_tip">
        <source></source>
        <translation>The name of the LXC container the process runs in; a dash outside of containers.</translation>
    </message>
    <message id="M_SIZE">
        <source></source>
        <translation>Virtual size in bytes (M_SIZE)</translation>
    </message>
    <message id="M_SIZE_tip">
        <source></source>
        <translation>The size of all memory the process has mapped, in bytes.</translation>
    </message>
    <message id="MACHINE">
        <source></source>
        <translation>Virtual machine (MACHINE)</translation>
    </message>
    <message id="MACHINE_tip">
        <source></source>
        <translation>The name of the virtual machine or container the process belongs to. From systemd; a dash when there is none.</translation>
    </message>
    <message id="MAJFL">
        <source></source>
        <translation>Major faults (MAJFL)</translation>
    </message>
    <message id="MAJFL_tip">
        <source></source>
        <translation>Page faults that had to wait for a read from disk. The same as MAJFLT.</translation>
    </message>
    <message id="MAJFLT">
        <source></source>
        <translation>Major faults (MAJFLT)</translation>
    </message>
    <message id="MAJFLT_tip">
        <source></source>
        <translation>Page faults that had to wait for a read from disk, since the process started.</translation>
    </message>
    <message id="MINFL">
        <source></source>
        <translation>Minor faults (MINFL)</translation>
    </message>
    <message id="MINFL_tip">
        <source></source>
        <translation>Page faults that needed no read from disk. The same as MINFLT.</translation>
    </message>
    <message id="MINFLT">
        <source></source>
        <translation>Minor faults (MINFLT)</translation>
    </message>
    <message id="MINFLT_tip">
        <source></source>
        <translation>Page faults that needed no read from disk, since the process started.</translation>
    </message>
    <message id="MNTNS">
        <source></source>
        <translation>Mount namespace (MNTNS)</translation>
    </message>
    <message id="MNTNS_tip">
        <source></source>
        <translation>The inode number of the mount namespace the process lives in. Processes with equal numbers share it.</translation>
    </message>
    <message id="NETNS">
        <source></source>
        <translation>Network namespace (NETNS)</translation>
    </message>
    <message id="NETNS_tip">
        <source></source>
        <translation>The inode number of the network namespace the process lives in. Processes with equal numbers share it.</translation>
    </message>
    <message id="NI">
        <source></source>
        <translation>Nice value (NI)</translation>
    </message>
    <message id="NI_tip">
        <source></source>
        <translation>How much the process gives way to others, from -20 (least) to 19 (most). A dash where it has no meaning, as with real-time processes.</translation>
    </message>
    <message id="NLWP">
        <source></source>
        <translation>Threads (NLWP)</translation>
    </message>
    <message id="NLWP_tip">
        <source></source>
        <translation>How many threads the process has.</translation>
    </message>
    <message id="NUMA">
        <source></source>
        <translation>NUMA node (NUMA)</translation>
    </message>
    <message id="NUMA_tip">
        <source></source>
        <translation>The memory node of the processor that the process ran on last; -1 when that is not known.</translation>
    </message>
    <message id="OOM">
        <source></source>
        <translation>Out-of-memory score (OOM)</translation>
    </message>
    <message id="OOM_tip">
        <source></source>
        <translation>How likely the kernel is to end the process when memory runs out; the highest goes first.</translation>
    </message>
    <message id="OOMADJ">
        <source></source>
        <translation>Out-of-memory adjustment (OOMADJ)</translation>
    </message>
    <message id="OOMADJ_tip">
        <source></source>
        <translation>What is added to the out-of-memory score, from -1000 (never ended) to 1000 (ended first).</translation>
    </message>
    <message id="OPRI">
        <source></source>
        <translation>Priority (OPRI)</translation>
    </message>
    <message id="OPRI_tip">
        <source></source>
        <translation>The scheduling priority on one of the historical scales that ps offers: the kernel's priority plus 60, so 80 for an ordinary process and less for one that runs first.</translation>
    </message>
    <message id="OWNER">
        <source></source>
        <translation>Session owner (OWNER)</translation>
    </message>
    <message id="OWNER_tip">
        <source></source>
        <translation>The number of the user who owns the login session the process belongs to. From systemd; a dash when there is none.</translation>
    </message>
    <message id="P">
        <source></source>
        <translation>Current CPU (P)</translation>
    </message>
    <message id="P_tip">
        <source></source>
        <translation>The number of the processor that the process is running on; an asterisk while it is not running.</translation>
    </message>
    <message id="PAGEIN">
        <source></source>
        <translation>Major faults (PAGEIN)</translation>
    </message>
    <message id="PAGEIN_tip">
        <source></source>
        <translation>Page faults that had to wait for a read from disk. The same as MAJFLT.</translation>
    </message>
    <message id="PENDING">
        <source></source>
        <translation>Pending signals (PENDING)</translation>
    </message>
    <message id="PENDING_tip">
        <source></source>
        <translation>The signals that wait to be delivered to the process, as a hexadecimal mask.</translation>
    </message>
    <message id="PGID">
        <source></source>
        <translation>Process group ID (PGID)</translation>
    </message>
    <message id="PGID_tip">
        <source></source>
        <translation>The number of the process group; as a rule the commands of one pipeline share it.</translation>
    </message>
    <message id="PGRP">
        <source></source>
        <translation>Process group ID (PGRP)</translation>
    </message>
    <message id="PGRP_tip">
        <source></source>
        <translation>The number of the process group. The same as PGID.</translation>
    </message>
    <message id="PID">
        <source></source>
        <translation>Process ID (PID)</translation>
    </message>
    <message id="PID_tip">
        <source></source>
        <translation>The number of the process, as ps prints it.</translation>
    </message>
    <message id="PIDNS">
        <source></source>
        <translation>PID namespace (PIDNS)</translation>
    </message>
    <message id="PIDNS_tip">
        <source></source>
        <translation>The inode number of the process number namespace the process lives in. Processes with equal numbers share it.</translation>
    </message>
    <message id="POL">
        <source></source>
        <translation>Scheduling class (POL)</translation>
    </message>
    <message id="POL_tip">
        <source></source>
        <translation>The scheduling class in letters. The same as CLS.</translation>
    </message>
    <message id="PPID">
        <source></source>
        <translation>Parent ID (PPID)</translation>
    </message>
    <message id="PPID_tip">
        <source></source>
        <translation>The number of the process that started this one, or of the one that took it over.</translation>
    </message>
    <message id="PRI">
        <source></source>
        <translation>Priority (PRI)</translation>
    </message>
    <message id="PRI_tip">
        <source></source>
        <translation>The scheduling priority, turned round: 19 for an ordinary process and more for one that runs first.</translation>
    </message>
    <message id="PRIORITY">
        <source></source>
        <translation>Priority (PRIORITY)</translation>
    </message>
    <message id="PRIORITY_tip">
        <source></source>
        <translation>The kernel's own scheduling priority: 20 for an ordinary process and less for one that runs first, below zero for real-time ones.</translation>
    </message>
    <message id="PSR">
        <source></source>
        <translation>Last CPU (PSR)</translation>
    </message>
    <message id="PSR_tip">
        <source></source>
        <translation>The number of the processor that the process ran on last.</translation>
    </message>
    <message id="PSS">
        <source></source>
        <translation>Proportional size (PSS)</translation>
    </message>
    <message id="PSS_tip">
        <source></source>
        <translation>Memory in RAM with each shared page divided among those who share it. Slow to find out; a cross where it may not be read.</translation>
    </message>
    <message id="RBYTES">
        <source></source>
        <translation>Bytes read from storage (RBYTES)</translation>
    </message>
    <message id="RBYTES_tip">
        <source></source>
        <translation>Bytes that the storage devices had to deliver for the process. From /proc/PID/io; a cross where that may not be read.</translation>
    </message>
    <message id="RCHARS">
        <source></source>
        <translation>Bytes read (RCHARS)</translation>
    </message>
    <message id="RCHARS_tip">
        <source></source>
        <translation>Bytes that the process asked for in its read calls, whether they came from a disk, a cache or a terminal. From /proc/PID/io; a cross where that may not be read.</translation>
    </message>
    <message id="RGID">
        <source></source>
        <translation>Real group ID (RGID)</translation>
    </message>
    <message id="RGID_tip">
        <source></source>
        <translation>The number of the group that the process belongs to, whichever rights it has at present.</translation>
    </message>
    <message id="RGROUP">
        <source></source>
        <translation>Real group (RGROUP)</translation>
    </message>
    <message id="RGROUP_tip">
        <source></source>
        <translation>The name of the group that the process belongs to, whichever rights it has at present.</translation>
    </message>
    <message id="ROPS">
        <source></source>
        <translation>Read calls (ROPS)</translation>
    </message>
    <message id="ROPS_tip">
        <source></source>
        <translation>How many system calls for reading the process has made. From /proc/PID/io; a cross where that may not be read.</translation>
    </message>
    <message id="RSS">
        <source></source>
        <translation>Resident size (RSS)</translation>
    </message>
    <message id="RSS_tip">
        <source></source>
        <translation>How much of the process's memory lies in RAM, shared pages included.</translation>
    </message>
    <message id="RSZ">
        <source></source>
        <translation>Resident size (RSZ)</translation>
    </message>
    <message id="RSZ_tip">
        <source></source>
        <translation>How much of the process's memory lies in RAM, shared pages included.</translation>
    </message>
    <message id="RTPRIO">
        <source></source>
        <translation>Real-time priority (RTPRIO)</translation>
    </message>
    <message id="RTPRIO_tip">
        <source></source>
        <translation>The priority among real-time processes, from 1 to 99, higher ones running first; a dash for all other processes.</translation>
    </message>
    <message id="RUID">
        <source></source>
        <translation>Real user ID (RUID)</translation>
    </message>
    <message id="RUID_tip">
        <source></source>
        <translation>The number of the user who started the process, whichever rights it has at present.</translation>
    </message>
    <message id="RUSER">
        <source></source>
        <translation>Real user (RUSER)</translation>
    </message>
    <message id="RUSER_tip">
        <source></source>
        <translation>The name of the user who started the process, whichever rights it has at present.</translation>
    </message>
    <message id="S">
        <source></source>
        <translation>State (S)</translation>
    </message>
    <message id="S_tip">
        <source></source>
        <translation>What the process is doing: R running or ready, S sleeping, D waiting for a device, I idle kernel thread, T stopped, t stopped by a debugger, Z ended but not collected.</translation>
    </message>
    <message id="SCH">
        <source></source>
        <translation>Scheduling policy (SCH)</translation>
    </message>
    <message id="SCH_tip">
        <source></source>
        <translation>The scheduling policy as a number: 0 ordinary, 1 FIFO, 2 round robin, 3 batch, 5 idle, 6 deadline.</translation>
    </message>
    <message id="SEAT">
        <source></source>
        <translation>Seat (SEAT)</translation>
    </message>
    <message id="SEAT_tip">
        <source></source>
        <translation>The seat (a screen, keyboard and mouse that belong together) of the login session the process belongs to. From systemd; a dash when there is none.</translation>
    </message>
    <message id="SESSION">
        <source></source>
        <translation>Login session (SESSION)</translation>
    </message>
    <message id="SESSION_tip">
        <source></source>
        <translation>The identifier of the login session the process belongs to. From systemd; a dash when there is none.</translation>
    </message>
    <message id="SGID">
        <source></source>
        <translation>Saved group ID (SGID)</translation>
    </message>
    <message id="SGID_tip">
        <source></source>
        <translation>The number of the group whose rights the process may take back.</translation>
    </message>
    <message id="SGROUP">
        <source></source>
        <translation>Saved group (SGROUP)</translation>
    </message>
    <message id="SGROUP_tip">
        <source></source>
        <translation>The name of the group whose rights the process may take back.</translation>
    </message>
    <message id="SID">
        <source></source>
        <translation>Session ID (SID)</translation>
    </message>
    <message id="SID_tip">
        <source></source>
        <translation>The number of the session, which is the process ID of its leader.</translation>
    </message>
    <message id="SIGNAL">
        <source></source>
        <translation>Pending signals (SIGNAL)</translation>
    </message>
    <message id="SIGNAL_tip">
        <source></source>
        <translation>The signals that wait to be delivered to the process, as a hexadecimal mask. The same as PENDING.</translation>
    </message>
    <message id="SIZE">
        <source></source>
        <translation>Swap size (SIZE)</translation>
    </message>
    <message id="SIZE_tip">
        <source></source>
        <translation>A rough estimate of the swap space the process would need if all its writable memory were swapped out.</translation>
    </message>
    <message id="SLICE">
        <source></source>
        <translation>Slice (SLICE)</translation>
    </message>
    <message id="SLICE_tip">
        <source></source>
        <translation>The slice, a branch of the tree of control groups, that the process belongs to. From systemd; a dash when there is none.</translation>
    </message>
    <message id="SPID">
        <source></source>
        <translation>Thread ID (SPID)</translation>
    </message>
    <message id="SPID_tip">
        <source></source>
        <translation>The number of the process's main thread, which equals the process ID. The same as LWP.</translation>
    </message>
    <message id="STACKP">
        <source></source>
        <translation>Stack address (STACKP)</translation>
    </message>
    <message id="STACKP_tip">
        <source></source>
        <translation>The address of the bottom of the stack, in hexadecimal; zero where it may not be read.</translation>
    </message>
    <message id="START">
        <source></source>
        <translation>Start time (START)</translation>
    </message>
    <message id="START_tip">
        <source></source>
        <translation>When the process was started: the time of day within the last 24 hours, else the date.</translation>
    </message>
    <message id="STARTED">
        <source></source>
        <translation>Start time (STARTED)</translation>
    </message>
    <message id="STARTED_tip">
        <source></source>
        <translation>When the process was started: the time of day with seconds within the last 24 hours, else the date.</translation>
    </message>
    <message id="STAT">
        <source></source>
        <translation>State (STAT)</translation>
    </message>
    <message id="STAT_tip">
        <source></source>
        <translation>The state's letter and more behind it: &lt; high priority, N low priority, L pages locked in memory, s session leader, l several threads, + in the foreground of its terminal.</translation>
    </message>
    <message id="STIME">
        <source></source>
        <translation>Start time (STIME)</translation>
    </message>
    <message id="STIME_tip">
        <source></source>
        <translation>When the process was started: the time of day for today, the date for earlier days, the year for earlier years.</translation>
    </message>
    <message id="SUID">
        <source></source>
        <translation>Saved user ID (SUID)</translation>
    </message>
    <message id="SUID_tip">
        <source></source>
        <translation>The number of the user whose rights the process may take back.</translation>
    </message>
    <message id="SUPGID">
        <source></source>
        <translation>Supplementary group IDs (SUPGID)</translation>
    </message>
    <message id="SUPGID_tip">
        <source></source>
        <translation>The numbers of the further groups whose rights the process has; a dash when there are none.</translation>
    </message>
    <message id="SUPGRP">
        <source></source>
        <translation>Supplementary groups (SUPGRP)</translation>
    </message>
    <message id="SUPGRP_tip">
        <source></source>
        <translation>The names of the further groups whose rights the process has; a dash when there are none.</translation>
    </message>
    <message id="SUSER">
        <source></source>
        <translation>Saved user (SUSER)</translation>
    </message>
    <message id="SUSER_tip">
        <source></source>
        <translation>The name of the user whose rights the process may take back.</translation>
    </message>
    <message id="SVGID">
        <source></source>
        <translation>Saved group ID (SVGID)</translation>
    </message>
    <message id="SVGID_tip">
        <source></source>
        <translation>The number of the group whose rights the process may take back. The same as SGID.</translation>
    </message>
    <message id="SVGROUP">
        <source></source>
        <translation>Saved group (SVGROUP)</translation>
    </message>
    <message id="SVGROUP_tip">
        <source></source>
        <translation>The name of the group whose rights the process may take back. The same as SGROUP.</translation>
    </message>
    <message id="SVUID">
        <source></source>
        <translation>Saved user ID (SVUID)</translation>
    </message>
    <message id="SVUID_tip">
        <source></source>
        <translation>The number of the user whose rights the process may take back. The same as SUID.</translation>
    </message>
    <message id="SVUSER">
        <source></source>
        <translation>Saved user (SVUSER)</translation>
    </message>
    <message id="SVUSER_tip">
        <source></source>
        <translation>The name of the user whose rights the process may take back. The same as SUSER.</translation>
    </message>
    <message id="SZ">
        <source></source>
        <translation>Core size (SZ)</translation>
    </message>
    <message id="SZ_tip">
        <source></source>
        <translation>The size of all memory the process has mapped, as ps counts it in pages of the machine. The same as VSZ but for parts of a page.</translation>
    </message>
    <message id="TGID">
        <source></source>
        <translation>Thread group ID (TGID)</translation>
    </message>
    <message id="TGID_tip">
        <source></source>
        <translation>The number that all threads of the process share, which is the process ID.</translation>
    </message>
    <message id="THCNT">
        <source></source>
        <translation>Threads (THCNT)</translation>
    </message>
    <message id="THCNT_tip">
        <source></source>
        <translation>How many threads the process has. The same as NLWP.</translation>
    </message>
    <message id="TID">
        <source></source>
        <translation>Thread ID (TID)</translation>
    </message>
    <message id="TID_tip">
        <source></source>
        <translation>The number of the process's main thread, which equals the process ID. The same as LWP.</translation>
    </message>
    <message id="TIME">
        <source></source>
        <translation>CPU time (TIME)</translation>
    </message>
    <message id="TIME_tip">
        <source></source>
        <translation>CPU time used since the process started, user and system together, as days, hours, minutes and seconds.</translation>
    </message>
    <message id="TIMENS">
        <source></source>
        <translation>Time namespace (TIMENS)</translation>
    </message>
    <message id="TIMENS_tip">
        <source></source>
        <translation>The inode number of the clock namespace the process lives in. Processes with equal numbers share it.</translation>
    </message>
    <message id="TPGID">
        <source></source>
        <translation>Foreground group ID (TPGID)</translation>
    </message>
    <message id="TPGID_tip">
        <source></source>
        <translation>The process group in the foreground of the terminal that the process belongs to; -1 without a terminal.</translation>
    </message>
    <message id="TRS">
        <source></source>
        <translation>Code size (TRS)</translation>
    </message>
    <message id="TRS_tip">
        <source></source>
        <translation>The size of the executable code. Despite the name, not all of it needs to be in RAM.</translation>
    </message>
    <message id="TRSS">
        <source></source>
        <translation>Code size (TRSS)</translation>
    </message>
    <message id="TRSS_tip">
        <source></source>
        <translation>The size of the executable code. The same as TRS.</translation>
    </message>
    <message id="TSIG">
        <source></source>
        <translation>Pending signals of the thread (TSIG)</translation>
    </message>
    <message id="TSIG_tip">
        <source></source>
        <translation>The signals that wait to be delivered to the main thread of the process alone, as a hexadecimal mask.</translation>
    </message>
    <message id="TSIZ">
        <source></source>
        <translation>Code size (TSIZ)</translation>
    </message>
    <message id="TSIZ_tip">
        <source></source>
        <translation>The size of the executable code.</translation>
    </message>
    <message id="TT">
        <source></source>
        <translation>Terminal (TT)</translation>
    </message>
    <message id="TT_tip">
        <source></source>
        <translation>The terminal that the process belongs to; a question mark when there is none.</translation>
    </message>
    <message id="TTY">
        <source></source>
        <translation>Terminal (TTY)</translation>
    </message>
    <message id="TTY_tip">
        <source></source>
        <translation>The terminal that the process belongs to; a question mark when there is none. The same as TT.</translation>
    </message>
    <message id="TTY4">
        <source></source>
        <translation>Terminal, shortened (TTY4)</translation>
    </message>
    <message id="TTY4_tip">
        <source></source>
        <translation>The terminal that the process belongs to, by the last letters of its name; a question mark when there is none.</translation>
    </message>
    <message id="UCMD">
        <source></source>
        <translation>Command name (UCMD)</translation>
    </message>
    <message id="UCMD_tip">
        <source></source>
        <translation>The name of the command without its arguments. The same as COMM.</translation>
    </message>
    <message id="UID">
        <source></source>
        <translation>User ID (UID)</translation>
    </message>
    <message id="UID_tip">
        <source></source>
        <translation>The number of the user whose rights the process has.</translation>
    </message>
    <message id="UNIT">
        <source></source>
        <translation>System unit (UNIT)</translation>
    </message>
    <message id="UNIT_tip">
        <source></source>
        <translation>The unit (a service, a scope) that the process belongs to. From systemd; a dash when there is none.</translation>
    </message>
    <message id="USER">
        <source></source>
        <translation>User (USER)</translation>
    </message>
    <message id="USER_tip">
        <source></source>
        <translation>The name of the user whose rights the process has. The same as EUSER.</translation>
    </message>
    <message id="USERNS">
        <source></source>
        <translation>User namespace (USERNS)</translation>
    </message>
    <message id="USERNS_tip">
        <source></source>
        <translation>The inode number of the user namespace the process lives in. Processes with equal numbers share it.</translation>
    </message>
    <message id="USS">
        <source></source>
        <translation>Unique size (USS)</translation>
    </message>
    <message id="USS_tip">
        <source></source>
        <translation>Memory in RAM that the process shares with no other: what would be free if it ended. Slow to find out; a cross where it may not be read.</translation>
    </message>
    <message id="UTSNS">
        <source></source>
        <translation>Host name namespace (UTSNS)</translation>
    </message>
    <message id="UTSNS_tip">
        <source></source>
        <translation>The inode number of the host name namespace the process lives in. Processes with equal numbers share it.</translation>
    </message>
    <message id="UUNIT">
        <source></source>
        <translation>User unit (UUNIT)</translation>
    </message>
    <message id="UUNIT_tip">
        <source></source>
        <translation>The unit of the user's own service manager that the process belongs to. From systemd; a dash when there is none.</translation>
    </message>
    <message id="VSZ">
        <source></source>
        <translation>Virtual size (VSZ)</translation>
    </message>
    <message id="VSZ_tip">
        <source></source>
        <translation>The size of all memory the process has mapped, whether it is in use or not.</translation>
    </message>
    <message id="WBYTES">
        <source></source>
        <translation>Bytes written to storage (WBYTES)</translation>
    </message>
    <message id="WBYTES_tip">
        <source></source>
        <translation>Bytes that the process caused to be sent to the storage devices. From /proc/PID/io; a cross where that may not be read.</translation>
    </message>
    <message id="WCBYTES">
        <source></source>
        <translation>Cancelled written bytes (WCBYTES)</translation>
    </message>
    <message id="WCBYTES_tip">
        <source></source>
        <translation>Bytes that the process wrote to files that were deleted or shortened before they reached the storage device. From /proc/PID/io; a cross where that may not be read.</translation>
    </message>
    <message id="WCHAN">
        <source></source>
        <translation>Waiting in (WCHAN)</translation>
    </message>
    <message id="WCHAN_tip">
        <source></source>
        <translation>The kernel's function in which the process sleeps; a dash while it runs or where this may not be read.</translation>
    </message>
    <message id="WCHARS">
        <source></source>
        <translation>Bytes written (WCHARS)</translation>
    </message>
    <message id="WCHARS_tip">
        <source></source>
        <translation>Bytes that the process passed to its write calls, whether they went to a disk, a cache or a terminal. From /proc/PID/io; a cross where that may not be read.</translation>
    </message>
    <message id="WOPS">
        <source></source>
        <translation>Write calls (WOPS)</translation>
    </message>
    <message id="WOPS_tip">
        <source></source>
        <translation>How many system calls for writing the process has made. From /proc/PID/io; a cross where that may not be read.</translation>
    </message>
    <message id="ZONE">
        <source></source>
        <translation>Security context (ZONE)</translation>
    </message>
    <message id="ZONE_tip">
        <source></source>
        <translation>The label that the kernel's access control gave the process; a dash when there is none. The same as CONTEXT.</translation>
    </message>
    <message id="menu_application">
        <source></source>
        <translation>&amp;Lurkwell</translation>
    </message>
    <message id="menu_file">
        <source></source>
        <translation>&amp;File</translation>
    </message>
    <message id="menu_edit">
        <source></source>
        <translation>&amp;Edit</translation>
    </message>
    <message id="menu_view">
        <source></source>
        <translation>&amp;View</translation>
    </message>
    <message id="menu_columns">
        <source></source>
        <translation>&amp;Columns</translation>
    </message>
    <message id="menu_process">
        <source></source>
        <translation>&amp;Process</translation>
    </message>
    <message id="menu_window">
        <source></source>
        <translation>&amp;Window</translation>
    </message>
    <message id="menu_help">
        <source></source>
        <translation>&amp;Help</translation>
    </message>
    <message id="menu_application_about">
        <source></source>
        <translation>&amp;About Lurkwell</translation>
    </message>
    <message id="menu_application_preferences">
        <source></source>
        <translation>&amp;Preferences…</translation>
    </message>
    <message id="menu_application_quit">
        <source></source>
        <translation>&amp;Quit Lurkwell</translation>
    </message>
    <message id="menu_file_new_cpu_history">
        <source></source>
        <translation>New CPU &amp;History Window</translation>
    </message>
    <message id="menu_file_new_logging">
        <source></source>
        <translation>New &amp;Logging Window</translation>
    </message>
    <message id="menu_file_details">
        <source></source>
        <translation>Show &amp;Details</translation>
    </message>
    <message id="menu_file_record">
        <source></source>
        <translation>&amp;Record…</translation>
    </message>
    <message id="menu_file_open_recording">
        <source></source>
        <translation>&amp;Open Recording…</translation>
    </message>
    <message id="menu_file_close_window">
        <source></source>
        <translation>&amp;Close Window</translation>
    </message>
    <message id="menu_edit_copy">
        <source></source>
        <translation>&amp;Copy</translation>
    </message>
    <message id="menu_edit_select_all">
        <source></source>
        <translation>Select &amp;All</translation>
    </message>
    <message id="menu_edit_select_children">
        <source></source>
        <translation>Select Chil&amp;dren</translation>
    </message>
    <message id="menu_edit_filter">
        <source></source>
        <translation>&amp;Filter…</translation>
    </message>
    <message id="menu_view_update_now">
        <source></source>
        <translation>&amp;Update Now</translation>
    </message>
    <message id="menu_view_pause">
        <source></source>
        <translation>&amp;Pause</translation>
    </message>
    <message id="menu_view_follow">
        <source></source>
        <translation>&amp;Keep Selection in Place</translation>
    </message>
    <message id="menu_view_sort_by">
        <source></source>
        <translation>&amp;Sort By</translation>
    </message>
    <message id="menu_view_column_left">
        <source></source>
        <translation>Sorted Column &amp;Left</translation>
    </message>
    <message id="menu_view_column_right">
        <source></source>
        <translation>Sorted Column &amp;Right</translation>
    </message>
    <message id="menu_view_column_wider">
        <source></source>
        <translation>Sorted Column &amp;Wider</translation>
    </message>
    <message id="menu_view_column_narrower">
        <source></source>
        <translation>Sorted Column &amp;Narrower</translation>
    </message>
    <message id="menu_view_column_fit">
        <source></source>
        <translation>Sorted Colu&amp;mn as Wide as Its Texts</translation>
    </message>
    <message id="menu_view_shape_list">
        <source></source>
        <translation>L&amp;ist</translation>
    </message>
    <message id="menu_view_shape_tree">
        <source></source>
        <translation>Tr&amp;ee</translation>
    </message>
    <message id="menu_view_shape_applications">
        <source></source>
        <translation>By &amp;Application</translation>
    </message>
    <message id="menu_view_unfold_all">
        <source></source>
        <translation>Unfol&amp;d All</translation>
    </message>
    <message id="menu_view_fold_all">
        <source></source>
        <translation>&amp;Fold All</translation>
    </message>
    <message id="menu_view_scope">
        <source></source>
        <translation>S&amp;how</translation>
    </message>
    <message id="menu_scope_all">
        <source></source>
        <translation>&amp;All Processes</translation>
    </message>
    <message id="menu_scope_mine">
        <source></source>
        <translation>&amp;My Processes</translation>
    </message>
    <message id="menu_scope_others">
        <source></source>
        <translation>&amp;Other Users’ Processes</translation>
    </message>
    <message id="menu_scope_applications">
        <source></source>
        <translation>A&amp;pplications</translation>
    </message>
    <message id="menu_scope_without_kernel">
        <source></source>
        <translation>&amp;Without Kernel Threads</translation>
    </message>
    <message id="menu_scope_busy">
        <source></source>
        <translation>&amp;Busy Processes</translation>
    </message>
    <message id="menu_columns_set">
        <source></source>
        <translation>Column &amp;Set</translation>
    </message>
    <message id="menu_set_standard">
        <source></source>
        <translation>&amp;Standard</translation>
    </message>
    <message id="menu_set_cpu">
        <source></source>
        <translation>&amp;CPU</translation>
    </message>
    <message id="menu_set_memory">
        <source></source>
        <translation>&amp;Memory</translation>
    </message>
    <message id="menu_set_disk_network">
        <source></source>
        <translation>&amp;Disk and Network</translation>
    </message>
    <message id="menu_set_commands">
        <source></source>
        <translation>C&amp;ommands</translation>
    </message>
    <message id="menu_set_containers">
        <source></source>
        <translation>Con&amp;tainers</translation>
    </message>
    <message id="menu_set_security">
        <source></source>
        <translation>Secu&amp;rity</translation>
    </message>
    <message id="menu_set_save_as">
        <source></source>
        <translation>Sa&amp;ve As…</translation>
    </message>
    <message id="menu_set_rename">
        <source></source>
        <translation>R&amp;ename…</translation>
    </message>
    <message id="menu_set_delete">
        <source></source>
        <translation>De&amp;lete…</translation>
    </message>
    <message id="menu_set_restore">
        <source></source>
        <translation>&amp;As It Was…</translation>
    </message>
    <message id="menu_view_show_toolbar">
        <source></source>
        <translation>Show &amp;Toolbar</translation>
    </message>
    <message id="menu_view_customise_toolbar">
        <source></source>
        <translation>&amp;Customise Toolbar…</translation>
    </message>
    <message id="menu_columns_icon">
        <source></source>
        <translation>&amp;Icon</translation>
    </message>
    <message id="menu_columns_indicator">
        <source></source>
        <translation>In&amp;dicator</translation>
    </message>
    <message id="menu_columns_name">
        <source></source>
        <translation>&amp;Name</translation>
    </message>
    <message id="menu_columns_cpu_usage">
        <source></source>
        <translation>&amp;CPU Usage</translation>
    </message>
    <message id="menu_columns_memory">
        <source></source>
        <translation>&amp;Memory</translation>
    </message>
    <message id="menu_columns_built_in">
        <source></source>
        <translation>Process P&amp;roperties</translation>
    </message>
    <message id="menu_columns_ps">
        <source></source>
        <translation>&amp;ps Columns</translation>
    </message>
    <message id="column_group_identity">
        <source></source>
        <translation>Identity</translation>
    </message>
    <message id="column_group_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="column_group_memory">
        <source></source>
        <translation>Memory</translation>
    </message>
    <message id="column_group_network">
        <source></source>
        <translation>Network</translation>
    </message>
    <message id="column_group_gpu">
        <source></source>
        <translation>GPU</translation>
    </message>
    <message id="column_group_security">
        <source></source>
        <translation>Security</translation>
    </message>
    <message id="column_group_disk">
        <source></source>
        <translation>Disk</translation>
    </message>
    <message id="column_group_users">
        <source></source>
        <translation>Users and Groups</translation>
    </message>
    <message id="column_group_terminal">
        <source></source>
        <translation>Terminal and Session</translation>
    </message>
    <message id="column_group_signals">
        <source></source>
        <translation>Signals</translation>
    </message>
    <message id="column_group_belonging">
        <source></source>
        <translation>Belonging</translation>
    </message>
    <message id="column_group_other">
        <source></source>
        <translation>Other</translation>
    </message>
    <message id="column_group_desktop">
        <source></source>
        <translation>Desktop Application</translation>
    </message>
    <message id="column_group_repeated">
        <source></source>
        <translation>The Same under Other Names</translation>
    </message>
    <message id="column_group_classic">
        <source></source>
        <translation>Classic Environment</translation>
    </message>
    <message id="column_group_not_counted">
        <source></source>
        <translation>Not Counted on This System</translation>
    </message>
    <message id="column_filter">
        <source></source>
        <translation>Find a column</translation>
    </message>
    <message id="column_filter_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n more: type more letters</numerusform>
            <numerusform>%n more: type more letters</numerusform>
        </translation>
    </message>
    <message id="column_filter_nothing">
        <source></source>
        <translation>No column has this in its name or description</translation>
    </message>
    <message id="column_hide">
        <source></source>
        <translation>&amp;Hide “%1”</translation>
    </message>
    <message id="column_of_ps_tip">
        <source></source>
        <translation>A column of this system’s ps, printed by its keyword %1.</translation>
    </message>
    <message id="column_keywords_tip">
        <source></source>
        <translation>Keyword of ps: %1</translation>
    </message>
    <message id="menu_process_quit_or_kill">
        <source></source>
        <translation>&amp;Quit or Kill…</translation>
    </message>
    <message id="menu_process_high_priority">
        <source></source>
        <translation>&amp;High Priority</translation>
    </message>
    <message id="menu_process_normal_priority">
        <source></source>
        <translation>&amp;Normal Priority</translation>
    </message>
    <message id="menu_process_low_priority">
        <source></source>
        <translation>&amp;Low Priority</translation>
    </message>
    <message id="menu_process_halt">
        <source></source>
        <translation>H&amp;alt…</translation>
    </message>
    <message id="menu_process_continue">
        <source></source>
        <translation>&amp;Continue</translation>
    </message>
    <message id="menu_process_hide">
        <source></source>
        <translation>Hi&amp;de</translation>
    </message>
    <message id="menu_process_bring_to_front">
        <source></source>
        <translation>&amp;Bring to Front</translation>
    </message>
    <message id="menu_process_reveal">
        <source></source>
        <translation>&amp;Show in File Manager</translation>
    </message>
    <message id="menu_process_by_id">
        <source></source>
        <translation>Find Process by &amp;ID…</translation>
    </message>
    <message id="menu_window_show_main">
        <source></source>
        <translation>&amp;Processes</translation>
    </message>
    <message id="menu_window_remembered">
        <source></source>
        <translation>&amp;Remembered Windows…</translation>
    </message>
    <message id="menu_window_close_all">
        <source></source>
        <translation>&amp;Close All Histories, Logs and Details</translation>
    </message>
    <message id="menu_window_show_animated_view">
        <source></source>
        <translation>&amp;Animated View</translation>
    </message>
    <message id="menu_view_overlay">
        <source></source>
        <translation>Animated View &amp;over the Screen</translation>
    </message>
    <message id="quintessential_window_title">
        <source></source>
        <translation>Animated View</translation>
    </message>
    <message id="quintessential_spoken">
        <source></source>
        <translation>Processes as icons, busier ones larger: %1. The process table tells their figures.</translation>
    </message>
    <message id="quintessential_menu_toggle">
        <source></source>
        <translation>&amp;Over the Whole Screen</translation>
    </message>
    <message id="quintessential_menu_processes">
        <source></source>
        <translation>Show &amp;Processes</translation>
    </message>
    <message id="quintessential_menu_close">
        <source></source>
        <translation>&amp;Close</translation>
    </message>
    <message id="quintessential_cannot_draw">
        <source></source>
        <translation>The animated view cannot be drawn: this display has no OpenGL 3.3 or OpenGL ES 3.0, or it has stopped working. Everything else in Lurkwell goes on.</translation>
    </message>
    <message id="overlay_needs_compositor">
        <source></source>
        <translation>The animated view cannot be translucent here.</translation>
    </message>
    <message id="overlay_needs_compositor_text">
        <source></source>
        <translation>Nothing blends the windows of this desktop (no compositor is running). The view will fill the whole screen instead; press Escape or %1 to leave it.</translation>
    </message>
    <message id="overlay_needs_layer">
        <source></source>
        <translation>The animated view cannot lie over other windows here.</translation>
    </message>
    <message id="overlay_needs_layer_text">
        <source></source>
        <translation>This desktop lets no program keep a window above those of others. The view will fill the whole screen instead; press Escape or %1 to leave it.</translation>
    </message>
    <message id="menu_help_help">
        <source></source>
        <translation>Lurkwell &amp;Help</translation>
    </message>
    <message id="main_window_title">
        <source></source>
        <translation>Processes</translation>
    </message>
    <message id="main_window_title_paused">
        <source></source>
        <translation>Processes (paused)</translation>
    </message>
    <message id="main_window_filter_placeholder">
        <source></source>
        <translation>Filter processes</translation>
    </message>
    <message id="main_window_filter_tip">
        <source></source>
        <translation>Shows only some processes, such as:&lt;br&gt;&lt;b&gt;ssh&lt;/b&gt; – with this in their ID or a text that is shown&lt;br&gt;&lt;b&gt;name:post&lt;/b&gt;, &lt;b&gt;user:root,mail&lt;/b&gt;, &lt;b&gt;name:/^k.*d$/&lt;/b&gt; – with this in one property&lt;br&gt;&lt;b&gt;mem&amp;gt;500M&lt;/b&gt;, &lt;b&gt;nice&amp;lt;0&lt;/b&gt;, &lt;b&gt;time&amp;gt;=1h&lt;/b&gt; – with more or less&lt;br&gt;&lt;b&gt;port:443&lt;/b&gt;, &lt;b&gt;file:/var/log&lt;/b&gt; – with a socket or a file open&lt;br&gt;&lt;b&gt;-sleep&lt;/b&gt; – without; &lt;b&gt;a b&lt;/b&gt; – both; &lt;b&gt;a | b&lt;/b&gt; – one of them</translation>
    </message>
    <message id="main_window_filter_hides_all">
        <source></source>
        <translation>No process is as the filter wants it. Esc shows all again.</translation>
    </message>
    <message id="field_clear">
        <source></source>
        <translation>Empty the field</translation>
    </message>
    <message id="filter_last">
        <source></source>
        <translation>Filters that were used last</translation>
    </message>
    <message id="filter_none_yet">
        <source></source>
        <translation>No filter has been used yet</translation>
    </message>
    <message id="setting_title_ALERT_RULES">
        <source></source>
        <translation>Alerts: rules</translation>
    </message>
    <message id="setting_ALERT_RULES">
        <source></source>
        <translation>The rules of alerts, each with its command and whether it is on. They are made in the window for alerts.</translation>
    </message>
    <message id="setting_title_ALERT_NOTIFICATIONS">
        <source></source>
        <translation>Alerts: notifications</translation>
    </message>
    <message id="setting_ALERT_NOTIFICATIONS">
        <source></source>
        <translation>Show a notification on the desktop when an alert begins. The window for alerts and the log have it in any case.</translation>
    </message>
    <message id="setting_title_ALERTS_WINDOW_FRAME">
        <source></source>
        <translation>Alerts: place and size of the window</translation>
    </message>
    <message id="setting_ALERTS_WINDOW_FRAME">
        <source></source>
        <translation>Place and size of the window for alerts.</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_ALERTS_WINDOW">
        <source></source>
        <translation>Alerts: the window was open</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_ALERTS_WINDOW">
        <source></source>
        <translation>Open the window for alerts at the start. The program notes here whether it was open.</translation>
    </message>
    <message id="menu_process_alert">
        <source></source>
        <translation>Aler&amp;t When…</translation>
    </message>
    <message id="menu_window_show_alerts">
        <source></source>
        <translation>A&amp;lerts</translation>
    </message>
    <message id="help_menu_window_show_alerts">
        <source></source>
        <translation>Rules for what you want to be told of, what they say now, and what has happened</translation>
    </message>
    <message id="help_menu_process_alert">
        <source></source>
        <translation>be told when a process like the selected one does something</translation>
    </message>
    <message id="alerts_title">
        <source></source>
        <translation>Alerts</translation>
    </message>
    <message id="alerts_rules">
        <source></source>
        <translation>Rules</translation>
    </message>
    <message id="alerts_occurrences">
        <source></source>
        <translation>What has happened</translation>
    </message>
    <message id="alerts_none">
        <source></source>
        <translation>There are no rules yet. A rule says what you want to be told of, such as “any cpu&gt;90% for 10m” or “unit:backup.service absent for 1h”.</translation>
    </message>
    <message id="alerts_column_rule">
        <source></source>
        <translation>Rule</translation>
    </message>
    <message id="alerts_column_state">
        <source></source>
        <translation>Now</translation>
    </message>
    <message id="alerts_column_last">
        <source></source>
        <translation>Last alert</translation>
    </message>
    <message id="alerts_column_began">
        <source></source>
        <translation>Began</translation>
    </message>
    <message id="alerts_column_process">
        <source></source>
        <translation>Process</translation>
    </message>
    <message id="alerts_column_lasted">
        <source></source>
        <translation>Lasted</translation>
    </message>
    <message id="alerts_column_figures">
        <source></source>
        <translation>Figures</translation>
    </message>
    <message id="alerts_add">
        <source></source>
        <translation>Add…</translation>
    </message>
    <message id="alerts_change">
        <source></source>
        <translation>Change…</translation>
    </message>
    <message id="alerts_remove">
        <source></source>
        <translation>Remove</translation>
    </message>
    <message id="alerts_add_title">
        <source></source>
        <translation>New rule</translation>
    </message>
    <message id="alerts_change_title">
        <source></source>
        <translation>Change the rule</translation>
    </message>
    <message id="alerts_remove_question">
        <source></source>
        <translation>Remove this rule?</translation>
    </message>
    <message id="alerts_notifies">
        <source></source>
        <translation>Notify me on the desktop</translation>
    </message>
    <message id="alerts_show_process">
        <source></source>
        <translation>Show process</translation>
    </message>
    <message id="alerts_show_window">
        <source></source>
        <translation>Show alerts</translation>
    </message>
    <message id="alerts_show_log">
        <source></source>
        <translation>Show the log</translation>
    </message>
    <message id="alerts_never">
        <source></source>
        <translation>Never</translation>
    </message>
    <message id="alerts_state_off">
        <source></source>
        <translation>Off</translation>
    </message>
    <message id="alerts_state_damaged">
        <source></source>
        <translation>What is stored cannot be read; change the rule, or remove it.</translation>
    </message>
    <message id="alerts_state_calm">
        <source></source>
        <translation>Not met</translation>
    </message>
    <message id="alerts_state_pending">
        <source></source>
        <translation>Met for %1 of %2</translation>
    </message>
    <message id="alerts_state_firing">
        <source></source>
        <translation>Alert</translation>
    </message>
    <message id="alerts_state_firing_for" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Alert: %n process</numerusform>
            <numerusform>Alert: %n processes</numerusform>
        </translation>
    </message>
    <message id="alerts_not_allowed">
        <source></source>
        <translation>cannot tell of %1: not allowed</translation>
    </message>
    <message id="alerts_not_counted">
        <source></source>
        <translation>cannot tell of %1: not counted on this machine</translation>
    </message>
    <message id="alerts_not_yet_known">
        <source></source>
        <translation>cannot tell of %1 yet</translation>
    </message>
    <message id="alerts_nothing_there">
        <source></source>
        <translation>No such process</translation>
    </message>
    <message id="alerts_together">
        <source></source>
        <translation>All together</translation>
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
        <translation>%1 so far</translation>
    </message>
    <message id="alerts_lasted">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="alerts_lasted_to_process_end">
        <source></source>
        <translation>%1; the process ended</translation>
    </message>
    <message id="alerts_lasted_to_rule_change">
        <source></source>
        <translation>%1; the rule was changed</translation>
    </message>
    <message id="alerts_no_condition">
        <source></source>
        <translation>A rule needs a condition, such as “cpu&gt;90%”.</translation>
    </message>
    <message id="alerts_no_span">
        <source></source>
        <translation>“%1” needs a time, such as 30s, 5m or 1h30m.</translation>
    </message>
    <message id="alerts_too_long">
        <source></source>
        <translation>“%1” is longer than the 30 days that a rule can wait.</translation>
    </message>
    <message id="alerts_twice">
        <source></source>
        <translation>“%1” is there twice.</translation>
    </message>
    <message id="alerts_does_not_fit">
        <source></source>
        <translation>“%1” means nothing in a rule of this kind.</translation>
    </message>
    <message id="alerts_unknown_word">
        <source></source>
        <translation>“%1” stands behind the time; conditions stand before “for” and “until”.</translation>
    </message>
    <message id="alerts_no_total">
        <source></source>
        <translation>Behind “total” stands a comparison of a figure that can be added up, such as “mem&gt;8G”.</translation>
    </message>
    <message id="alerts_other_total">
        <source></source>
        <translation>Behind “until” stands a comparison of the same figure as behind “total”.</translation>
    </message>
    <message id="alerts_text_too_large">
        <source></source>
        <translation>A rule has %1 letters at most.</translation>
    </message>
    <message id="alerts_rule_label">
        <source></source>
        <translation>&amp;Rule:</translation>
    </message>
    <message id="alerts_rule_placeholder">
        <source></source>
        <translation>name:postgres mem&gt;4G for 5m until mem&lt;3G</translation>
    </message>
    <message id="alerts_trial_label">
        <source></source>
        <translation>Now:</translation>
    </message>
    <message id="alerts_trial_wait">
        <source></source>
        <translation>Looking…</translation>
    </message>
    <message id="alerts_trial_none">
        <source></source>
        <translation>No process meets it.</translation>
    </message>
    <message id="alerts_trial_some">
        <source></source>
        <translation>Processes that meet it: %1</translation>
    </message>
    <message id="alerts_trial_total" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 in %n process</numerusform>
            <numerusform>%1 in %n processes</numerusform>
        </translation>
    </message>
    <message id="alerts_trial_met">
        <source></source>
        <translation>The condition is met.</translation>
    </message>
    <message id="alerts_trial_not_met">
        <source></source>
        <translation>The condition is not met.</translation>
    </message>
    <message id="alerts_command_label">
        <source></source>
        <translation>&amp;Command:</translation>
    </message>
    <message id="alerts_command_placeholder">
        <source></source>
        <translation>Nothing is started</translation>
    </message>
    <message id="alerts_command_tip">
        <source></source>
        <translation>A program and its arguments, to be started when an alert begins. There is no shell: words are separated by blanks, and quotation marks keep some together. The environment has LURKWELL_ALERT_RULE, _TIME, _PID, _NAME and _FIGURES.</translation>
    </message>
    <message id="alerts_command_no_end">
        <source></source>
        <translation>In the command, a quotation mark has no second one.</translation>
    </message>
    <message id="alerts_command_long">
        <source></source>
        <translation>The command is too long.</translation>
    </message>
    <message id="alerts_command_not_started">
        <source></source>
        <translation>the command could not be started: %1</translation>
    </message>
    <message id="alerts_command_status">
        <source></source>
        <translation>the command ended with status %1</translation>
    </message>
    <message id="alerts_command_too_long">
        <source></source>
        <translation>the command took longer than %1 seconds and was ended</translation>
    </message>
    <message id="alerts_command_left_out">
        <source></source>
        <translation>too many commands at a time; some were left out</translation>
    </message>
    <message id="alerts_editor_note">
        <source></source>
        <translation>A rule is a condition as in the filter. “any” in front makes it one alert for all processes, “total mem&gt;8G” adds a figure up, “absent” waits for there to be none. “for 5m” says how long it has to hold, and “until cpu&lt;70%” what ends it; else it ends when it has not been met for half a minute.</translation>
    </message>
    <message id="alerts_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n more alert</numerusform>
            <numerusform>%n more alerts</numerusform>
        </translation>
    </message>
    <message id="alerts_more_latest">
        <source></source>
        <translation>The latest: %1
%2</translation>
    </message>
    <message id="alerts_left_out" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n more rule is stored than the %1 that are watched. Remove some to have it watched at the next start.</numerusform>
            <numerusform>%n more rules are stored than the %1 that are watched. Remove some to have them watched at the next start.</numerusform>
        </translation>
    </message>
    <message id="alerts_too_many">
        <source></source>
        <translation>There can be no more rules.</translation>
    </message>
    <message id="alerts_log_problem">
        <source></source>
        <translation>The log of alerts cannot be written: %1</translation>
    </message>
    <message id="alerts_log_not_shown">
        <source></source>
        <translation>No file manager could show the log, which is %1</translation>
    </message>
    <message id="alerts_notification_problem">
        <source></source>
        <translation>Notifications cannot be shown: %1</translation>
    </message>
    <message id="alerts_has_ended">
        <source></source>
        <translation>%1 has ended.</translation>
    </message>
    <message id="alerts_not_in_table">
        <source></source>
        <translation>%1 is running, but the filter or the scope of the table leaves it out.</translation>
    </message>
    <message id="alerts_not_of_recordings">
        <source></source>
        <translation>Alerts are about the processes that are running. In a recording nothing is watched.</translation>
    </message>
    <message id="filter_unknown_key">
        <source></source>
        <translation>There is no “%1” to look at; in quotation marks it is a text to look for.</translation>
    </message>
    <message id="filter_unknown_key_near">
        <source></source>
        <translation>There is no “%1” to look at; there is %2.</translation>
    </message>
    <message id="filter_no_value">
        <source></source>
        <translation>Nothing stands behind “%1”.</translation>
    </message>
    <message id="filter_no_term">
        <source></source>
        <translation>Something is missing beside “%1”.</translation>
    </message>
    <message id="filter_no_end">
        <source></source>
        <translation>A quotation mark has no second one.</translation>
    </message>
    <message id="filter_text_is_not_compared">
        <source></source>
        <translation>“%1” is a text; ask for %2.</translation>
    </message>
    <message id="filter_no_number">
        <source></source>
        <translation>“%1” is no number such as %2.</translation>
    </message>
    <message id="filter_no_expression">
        <source></source>
        <translation>“%1” is no regular expression: %2.</translation>
    </message>
    <message id="main_window_status_some" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 of %n process: %2; %3 selected</numerusform>
            <numerusform>%1 of %n processes: %2; %3 selected</numerusform>
        </translation>
    </message>
    <message id="main_window_status_totals">
        <source></source>
        <translation>: CPU %1 %, memory %2</translation>
    </message>
    <message id="main_window_status_paused">
        <source></source>
        <translation>Paused: %1 ended, %2 new since.</translation>
    </message>
    <message id="main_window_status_follows">
        <source></source>
        <translation>Selection stays in place.</translation>
    </message>
    <message id="main_window_scope_hides_all">
        <source></source>
        <translation>No process is one of these: %1. View › Show › All Processes shows all again.</translation>
    </message>
    <message id="scope_mine">
        <source></source>
        <translation>mine</translation>
    </message>
    <message id="scope_others">
        <source></source>
        <translation>other users’</translation>
    </message>
    <message id="scope_applications">
        <source></source>
        <translation>applications</translation>
    </message>
    <message id="scope_without_kernel">
        <source></source>
        <translation>without kernel threads</translation>
    </message>
    <message id="scope_busy">
        <source></source>
        <translation>busy</translation>
    </message>
    <message id="scope_filter">
        <source></source>
        <translation>filter</translation>
    </message>
    <message id="filter_not_allowed">
        <source></source>
        <translation>not allowed: %1</translation>
    </message>
    <message id="filter_not_allowed_tip">
        <source></source>
        <translation>Other users’ processes that only an administrator may look into</translation>
    </message>
    <message id="filter_looks" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Looking into %n process…</numerusform>
            <numerusform>Looking into %n processes…</numerusform>
        </translation>
    </message>
    <message id="filter_hides_all_not_allowed">
        <source></source>
        <translation>No process that may be looked into matches the filter; not allowed: %1. Escape takes the filter away.</translation>
    </message>
    <message id="switch_shape">
        <source></source>
        <translation>Shape of the table</translation>
    </message>
    <message id="switch_scope">
        <source></source>
        <translation>Which processes are shown</translation>
    </message>
    <message id="switch_columns">
        <source></source>
        <translation>Set of columns</translation>
    </message>
    <message id="set_save_title">
        <source></source>
        <translation>Save Columns As a Set</translation>
    </message>
    <message id="set_rename_title">
        <source></source>
        <translation>Rename Set of Columns</translation>
    </message>
    <message id="set_title_label">
        <source></source>
        <translation>Name of the set:</translation>
    </message>
    <message id="set_title_agree">
        <source></source>
        <translation>Save</translation>
    </message>
    <message id="set_without_title">
        <source></source>
        <translation>A set needs a name.</translation>
    </message>
    <message id="set_title_too_long">
        <source></source>
        <translation>The name may have %1 letters at most.</translation>
    </message>
    <message id="set_title_is_taken">
        <source></source>
        <translation>There is a set “%1” already.</translation>
    </message>
    <message id="set_too_many">
        <source></source>
        <translation>There can be %1 sets of your own at most. Delete one that you do not need.</translation>
    </message>
    <message id="set_question_title">
        <source></source>
        <translation>Set of Columns</translation>
    </message>
    <message id="set_delete_question">
        <source></source>
        <translation>Delete the set “%1”? Its columns, their widths and order cannot be brought back.</translation>
    </message>
    <message id="set_delete_agree">
        <source></source>
        <translation>Delete</translation>
    </message>
    <message id="set_restore_question">
        <source></source>
        <translation>Make the set “%1” what it was at first? What you have changed in it is lost.</translation>
    </message>
    <message id="set_restore_agree">
        <source></source>
        <translation>Restore</translation>
    </message>
    <message id="group_kernel_threads">
        <source></source>
        <translation>Kernel threads</translation>
    </message>
    <message id="row_level">
        <source></source>
        <translation>, level %1</translation>
    </message>
    <message id="row_folded">
        <source></source>
        <translation>, folded, %1 below</translation>
    </message>
    <message id="row_ended">
        <source></source>
        <translation>, ended</translation>
    </message>
    <message id="row_zombie">
        <source></source>
        <translation>, zombie</translation>
    </message>
    <message id="cell_spoken">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="sorted_ascending">
        <source></source>
        <translation>sorted, smallest first</translation>
    </message>
    <message id="sorted_descending">
        <source></source>
        <translation>sorted, largest first</translation>
    </message>
    <message id="row_unfolded">
        <source></source>
        <translation>, unfolded, %1 below</translation>
    </message>
    <message id="total_tip" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Total of %n process, as far as it is known</numerusform>
            <numerusform>Total of %n processes, as far as it is known</numerusform>
        </translation>
    </message>
    <message id="total_memory_tip">
        <source></source>
        <translation>Resident memory: what processes share is counted in parts where that is known (PSS), else for each of them</translation>
    </message>
    <message id="main_window_status_counts" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n process, %1 shown, %2 selected</numerusform>
            <numerusform>%n processes, %1 shown, %2 selected</numerusform>
        </translation>
    </message>
    <message id="main_window_helper_unprivileged">
        <source></source>
        <translation>Acts on your own processes only. &lt;a href=&quot;rights&quot;&gt;More rights…&lt;/a&gt;</translation>
    </message>
    <message id="main_window_helper_absent">
        <source></source>
        <translation>The helper is not running: nothing can be done to processes. &lt;a href=&quot;rights&quot;&gt;Why?&lt;/a&gt;</translation>
    </message>
    <message id="main_window_rights_title">
        <source></source>
        <translation>Lurkwell acts on your own processes only</translation>
    </message>
    <message id="main_window_rights_may_ask">
        <source></source>
        <translation>An administrator can give Lurkwell's helper the rights to signal and renice every process. This is asked once; later starts find them.</translation>
    </message>
    <message id="main_window_rights_may_not_ask">
        <source></source>
        <translation>An installed package brings a helper that an administrator can give the rights to signal and renice every process.</translation>
    </message>
    <message id="main_window_rights_ask">
        <source></source>
        <translation>Authenticate…</translation>
    </message>
    <message id="main_window_rights_close">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="help_title">
        <source></source>
        <translation>Lurkwell Help</translation>
    </message>
    <message id="help_no_key">
        <source></source>
        <translation>(no key is set for it)</translation>
    </message>
    <message id="help_menu_process_quit_or_kill">
        <source></source>
        <translation>quit or kill the selected processes</translation>
    </message>
    <message id="help_menu_edit_filter">
        <source></source>
        <translation>show only processes with some text; Escape shows all</translation>
    </message>
    <message id="help_menu_process_by_id">
        <source></source>
        <translation>go to a process by its ID</translation>
    </message>
    <message id="help_menu_edit_copy">
        <source></source>
        <translation>copy the selected rows</translation>
    </message>
    <message id="help_menu_file_new_cpu_history">
        <source></source>
        <translation>a CPU history of each selected process</translation>
    </message>
    <message id="help_menu_file_new_logging">
        <source></source>
        <translation>a log of each selected process</translation>
    </message>
    <message id="help_menu_file_details">
        <source></source>
        <translation>all about each selected process: threads, open files, memory, environment, limits</translation>
    </message>
    <message id="help_menu_view_overlay">
        <source></source>
        <translation>the animated view over the whole screen, and away again</translation>
    </message>
    <message id="help_menu_file_record">
        <source></source>
        <translation>record the processes to a file, to look at them later; a second time ends it</translation>
    </message>
    <message id="help_menu_set_standard">
        <source></source>
        <translation>Columns: Standard</translation>
    </message>
    <message id="help_menu_set_cpu">
        <source></source>
        <translation>Columns: CPU</translation>
    </message>
    <message id="help_menu_set_memory">
        <source></source>
        <translation>Columns: Memory</translation>
    </message>
    <message id="help_menu_set_disk_network">
        <source></source>
        <translation>Columns: Disk and Network</translation>
    </message>
    <message id="help_menu_set_commands">
        <source></source>
        <translation>Columns: Commands</translation>
    </message>
    <message id="help_menu_set_containers">
        <source></source>
        <translation>Columns: Containers</translation>
    </message>
    <message id="help_menu_set_security">
        <source></source>
        <translation>Columns: Security</translation>
    </message>
    <message id="help_menu_file_open_recording">
        <source></source>
        <translation>look at what was recorded, in a window of its own</translation>
    </message>
    <message id="help_menu_file_close_window">
        <source></source>
        <translation>close the window; the last one quits</translation>
    </message>
    <message id="help_menu_application_quit">
        <source></source>
        <translation>quit; what is open comes back at the next start</translation>
    </message>
    <message id="help_menu_application_preferences">
        <source></source>
        <translation>the preferences</translation>
    </message>
    <message id="help_menu_edit_select_all">
        <source></source>
        <translation>select all processes that are shown</translation>
    </message>
    <message id="help_menu_edit_select_children">
        <source></source>
        <translation>select the children of the selected processes instead of these</translation>
    </message>
    <message id="help_menu_view_update_now">
        <source></source>
        <translation>update now</translation>
    </message>
    <message id="help_menu_view_pause">
        <source></source>
        <translation>hold rows and figures still; once more to go on</translation>
    </message>
    <message id="help_menu_view_follow">
        <source></source>
        <translation>keep the selected row where it is while others move</translation>
    </message>
    <message id="help_menu_view_shape_list">
        <source></source>
        <translation>show all processes as a list</translation>
    </message>
    <message id="help_menu_view_shape_tree">
        <source></source>
        <translation>show children below their parents</translation>
    </message>
    <message id="help_menu_view_shape_applications">
        <source></source>
        <translation>show processes below their applications</translation>
    </message>
    <message id="help_menu_view_unfold_all">
        <source></source>
        <translation>unfold all rows</translation>
    </message>
    <message id="help_menu_view_fold_all">
        <source></source>
        <translation>fold all rows</translation>
    </message>
    <message id="help_menu_view_column_left">
        <source></source>
        <translation>move the sorted column to the left</translation>
    </message>
    <message id="help_menu_view_column_right">
        <source></source>
        <translation>move it to the right</translation>
    </message>
    <message id="help_menu_view_column_wider">
        <source></source>
        <translation>make it wider</translation>
    </message>
    <message id="help_menu_view_column_narrower">
        <source></source>
        <translation>make it narrower</translation>
    </message>
    <message id="help_menu_view_column_fit">
        <source></source>
        <translation>make it as wide as its texts</translation>
    </message>
    <message id="help_menu_process_halt">
        <source></source>
        <translation>halt the selected processes</translation>
    </message>
    <message id="help_menu_process_continue">
        <source></source>
        <translation>have halted ones go on</translation>
    </message>
    <message id="help_menu_process_high_priority">
        <source></source>
        <translation>give the selected processes a high priority</translation>
    </message>
    <message id="help_menu_process_normal_priority">
        <source></source>
        <translation>give them the normal priority</translation>
    </message>
    <message id="help_menu_process_low_priority">
        <source></source>
        <translation>give them a low priority</translation>
    </message>
    <message id="help_menu_process_bring_to_front">
        <source></source>
        <translation>bring the selected applications to the front</translation>
    </message>
    <message id="help_menu_process_hide">
        <source></source>
        <translation>hide their windows</translation>
    </message>
    <message id="help_menu_process_reveal">
        <source></source>
        <translation>show their files in the file manager</translation>
    </message>
    <message id="help_menu_help_help">
        <source></source>
        <translation>this page</translation>
    </message>
    <message id="main_window_help_missing">
        <source></source>
        <translation>The help page cannot be read: %1</translation>
    </message>
    <message id="value_not_yet_known">
        <source></source>
        <translation>not known yet</translation>
    </message>
    <message id="value_not_allowed">
        <source></source>
        <translation>not allowed</translation>
    </message>
    <message id="value_not_counted">
        <source></source>
        <translation>not counted on this system</translation>
    </message>
    <message id="value_not_yet_known_tip">
        <source></source>
        <translation>Not known yet: one of the next updates brings it.</translation>
    </message>
    <message id="value_not_allowed_tip">
        <source></source>
        <translation>Not allowed: of this process only root may read it. Lurkwell shows it when root starts it.</translation>
    </message>
    <message id="value_not_counted_tip">
        <source></source>
        <translation>Not counted: there is no such figure of this process on this system.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_read_tip">
        <source></source>
        <translation>Not allowed: only the process's user and root may read it. What its unit reads and writes is in the columns of the unit; root, when it starts Lurkwell, sees it.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_written_tip">
        <source></source>
        <translation>Not allowed: only the process's user and root may read it. What its unit reads and writes is in the columns of the unit; root, when it starts Lurkwell, sees it.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_read_rate_tip">
        <source></source>
        <translation>Not allowed: only the process's user and root may read it. What its unit reads and writes is in the columns of the unit; root, when it starts Lurkwell, sees it.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_write_rate_tip">
        <source></source>
        <translation>Not allowed: only the process's user and root may read it. What its unit reads and writes is in the columns of the unit; root, when it starts Lurkwell, sees it.</translation>
    </message>
    <message id="value_not_counted_pid_unit_disk_read_tip">
        <source></source>
        <translation>Not counted: the process's unit does not account for its input and output. IOAccounting=yes in the unit would do it.</translation>
    </message>
    <message id="value_not_counted_pid_unit_disk_written_tip">
        <source></source>
        <translation>Not counted: the process's unit does not account for its input and output. IOAccounting=yes in the unit would do it.</translation>
    </message>
    <message id="value_not_counted_pid_unit_read_rate_tip">
        <source></source>
        <translation>Not counted: the process's unit does not account for its input and output. IOAccounting=yes in the unit would do it.</translation>
    </message>
    <message id="value_not_counted_pid_unit_write_rate_tip">
        <source></source>
        <translation>Not counted: the process's unit does not account for its input and output. IOAccounting=yes in the unit would do it.</translation>
    </message>
    <message id="value_not_yet_known_pid_cpu_share_tip">
        <source></source>
        <translation>Not known yet: it takes two readings, one of the next updates brings it.</translation>
    </message>
    <message id="value_not_yet_known_pid_user_share_tip">
        <source></source>
        <translation>Not known yet: it takes two readings, one of the next updates brings it.</translation>
    </message>
    <message id="value_not_yet_known_pid_system_share_tip">
        <source></source>
        <translation>Not known yet: it takes two readings, one of the next updates brings it.</translation>
    </message>
    <message id="value_not_yet_known_pid_disk_read_rate_tip">
        <source></source>
        <translation>Not known yet: it takes two readings, one of the next updates brings it.</translation>
    </message>
    <message id="value_not_yet_known_pid_disk_write_rate_tip">
        <source></source>
        <translation>Not known yet: it takes two readings, one of the next updates brings it.</translation>
    </message>
    <message id="value_not_yet_known_pid_read_rate_tip">
        <source></source>
        <translation>Not known yet: it takes two readings, one of the next updates brings it.</translation>
    </message>
    <message id="value_not_yet_known_pid_write_rate_tip">
        <source></source>
        <translation>Not known yet: it takes two readings, one of the next updates brings it.</translation>
    </message>
    <message id="value_not_yet_known_pid_unit_read_rate_tip">
        <source></source>
        <translation>Not known yet: it takes two readings, one of the next updates brings it.</translation>
    </message>
    <message id="value_not_yet_known_pid_unit_write_rate_tip">
        <source></source>
        <translation>Not known yet: it takes two readings, one of the next updates brings it.</translation>
    </message>
    <message id="value_not_counted_pid_label_tip">
        <source></source>
        <translation>Not counted: the kernel has no security module that labels processes (AppArmor, SELinux, Smack).</translation>
    </message>
    <message id="main_window_idle_task_tip">
        <source></source>
        <translation>The idle task: what it has is the time that the processors had nothing to do.</translation>
    </message>
    <message id="main_window_zombie_tip">
        <source></source>
        <translation>A zombie: the process has ended, and its parent has not asked for its exit status yet.</translation>
    </message>
    <message id="main_window_ended_tip">
        <source></source>
        <translation>This process has ended while its row had to stay. No command reaches it.</translation>
    </message>
    <message id="main_window_late_tip">
        <source></source>
        <translation>This column was added while the table was paused: its figures are of then, and of those processes that were still there.</translation>
    </message>
    <message id="main_window_stale_tip">
        <source></source>
        <translation>The last update brought no figures for this column; these are older ones.</translation>
    </message>
    <message id="main_window_no_address">
        <source></source>
        <translation>This is no address of a process, such as lurkwell://pid/4711: %1</translation>
    </message>
    <message id="main_window_by_id_title">
        <source></source>
        <translation>Find Process by ID</translation>
    </message>
    <message id="main_window_by_id_label">
        <source></source>
        <translation>Process ID:</translation>
    </message>
    <message id="main_window_by_id_find">
        <source></source>
        <translation>&amp;Find</translation>
    </message>
    <message id="main_window_by_id_no_number">
        <source></source>
        <translation>A process ID is a number from 0 to %1.</translation>
    </message>
    <message id="main_window_not_revealed">
        <source></source>
        <translation>No file manager has shown the file, %1.</translation>
    </message>
    <message id="main_window_nothing_to_reveal_with">
        <source></source>
        <translation>Nothing can be asked to show the file: there is no session bus, or the program has gone.</translation>
    </message>
    <message id="main_window_no_details">
        <source></source>
        <translation>There are no details of %1: it is no process of the system.</translation>
    </message>
    <message id="main_window_no_children">
        <source></source>
        <translation>None of the selected processes has a child.</translation>
    </message>
    <message id="main_window_hidden_children" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n of the children is hidden by the filter.</numerusform>
            <numerusform>%n of the children are hidden by the filter.</numerusform>
        </translation>
    </message>
    <message id="main_window_preferences">
        <source></source>
        <translation>Your preferences: %1.</translation>
    </message>
    <message id="main_window_by_id_not_found">
        <source></source>
        <translation>There is no process %1.</translation>
    </message>
    <message id="process_halted">
        <source></source>
        <translation>Halted</translation>
    </message>
    <message id="process_niced_high">
        <source></source>
        <translation>High priority</translation>
    </message>
    <message id="process_niced_low">
        <source></source>
        <translation>Low priority</translation>
    </message>
    <message id="context_menu_one">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="context_menu_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n process</numerusform>
            <numerusform>%n processes</numerusform>
        </translation>
    </message>
    <message id="action_ask_window">
        <source></source>
        <translation>Lurkwell</translation>
    </message>
    <message id="action_ask_quit_one">
        <source></source>
        <translation>Quit process %1 (%2)?</translation>
    </message>
    <message id="action_ask_quit_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Quit %n process?</numerusform>
            <numerusform>Quit %n processes?</numerusform>
        </translation>
    </message>
    <message id="action_ask_kill_one">
        <source></source>
        <translation>Kill process %1 (%2)?</translation>
    </message>
    <message id="action_ask_kill_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Kill %n process?</numerusform>
            <numerusform>Kill %n processes?</numerusform>
        </translation>
    </message>
    <message id="action_ask_halt_one">
        <source></source>
        <translation>Halt process %1 (%2)?</translation>
    </message>
    <message id="action_ask_halt_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Halt %n process?</numerusform>
            <numerusform>Halt %n processes?</numerusform>
        </translation>
    </message>
    <message id="action_ask_lower_one">
        <source></source>
        <translation>Lower the priority of process %1 (%2)?</translation>
    </message>
    <message id="action_ask_lower_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Lower the priority of %n process?</numerusform>
            <numerusform>Lower the priority of %n processes?</numerusform>
        </translation>
    </message>
    <message id="action_button_quit">
        <source></source>
        <translation>&amp;Quit</translation>
    </message>
    <message id="action_button_kill">
        <source></source>
        <translation>&amp;Kill</translation>
    </message>
    <message id="action_button_halt">
        <source></source>
        <translation>&amp;Halt</translation>
    </message>
    <message id="action_button_lower">
        <source></source>
        <translation>&amp;Lower Priority</translation>
    </message>
    <message id="action_next_quit">
        <source></source>
        <translation>It is asked to close its windows and to quit.</translation>
    </message>
    <message id="action_next_terminate">
        <source></source>
        <translation>It is asked to end (SIGTERM). It may save its work first, but need not.</translation>
    </message>
    <message id="action_next_terminate_again">
        <source></source>
        <translation>It was asked to quit %1 and is still there; now it is asked to end (SIGTERM).</translation>
    </message>
    <message id="action_next_helper">
        <source></source>
        <translation>It was asked to end %1 and is still there; it is asked once more, by the helper (SIGTERM).</translation>
    </message>
    <message id="action_next_force">
        <source></source>
        <translation>It is ended by force (SIGKILL). What it has not saved is lost.</translation>
    </message>
    <message id="action_next_force_at_last">
        <source></source>
        <translation>It was asked to end %1; now it is ended by force (SIGKILL). What it has not saved is lost.</translation>
    </message>
    <message id="action_next_halted">
        <source></source>
        <translation>It is halted, and hears of this when it is continued.</translation>
    </message>
    <message id="action_next_several">
        <source></source>
        <translation>Each is asked to quit or to end, as the list says. What they have not saved may be lost.</translation>
    </message>
    <message id="action_next_several_forced">
        <source></source>
        <translation>Each takes the step that the list names. What those that are ended by force have not saved is lost.</translation>
    </message>
    <message id="action_next_halt">
        <source></source>
        <translation>A halted process stands still until it is continued: its windows do not answer, and whatever needs it waits.</translation>
    </message>
    <message id="action_next_lower">
        <source></source>
        <translation>It gets the processor when nobody else wants it. Raising the priority again takes an administrator's rights.</translation>
    </message>
    <message id="action_step_quit">
        <source></source>
        <translation>is asked to quit</translation>
    </message>
    <message id="action_step_terminate">
        <source></source>
        <translation>is asked to end</translation>
    </message>
    <message id="action_step_terminate_again">
        <source></source>
        <translation>is asked to end</translation>
    </message>
    <message id="action_step_helper">
        <source></source>
        <translation>is asked to end again</translation>
    </message>
    <message id="action_step_force">
        <source></source>
        <translation>is ended by force</translation>
    </message>
    <message id="action_step_force_at_last">
        <source></source>
        <translation>is ended by force</translation>
    </message>
    <message id="action_warn_own">
        <source></source>
        <translation>This is Lurkwell itself.</translation>
    </message>
    <message id="action_warn_own_among">
        <source></source>
        <translation>Lurkwell itself is among them.</translation>
    </message>
    <message id="action_warn_others" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n of them belongs to another user.</numerusform>
            <numerusform>%n of them belong to other users.</numerusform>
        </translation>
    </message>
    <message id="action_owner">
        <source></source>
        <translation>Owner:</translation>
    </message>
    <message id="action_command_line">
        <source></source>
        <translation>Command line:</translation>
    </message>
    <message id="action_unknown">
        <source></source>
        <translation>not known</translation>
    </message>
    <message id="action_column_name">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="action_column_pid">
        <source></source>
        <translation>ID</translation>
    </message>
    <message id="action_column_owner">
        <source></source>
        <translation>Owner</translation>
    </message>
    <message id="action_column_step">
        <source></source>
        <translation>Next step</translation>
    </message>
    <message id="action_column_command">
        <source></source>
        <translation>Command line</translation>
    </message>
    <message id="times_once">
        <source></source>
        <translation>once</translation>
    </message>
    <message id="times_twice">
        <source></source>
        <translation>twice</translation>
    </message>
    <message id="times_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n time</numerusform>
            <numerusform>%n times</numerusform>
        </translation>
    </message>
    <message id="action_process">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="action_processes" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n process (%1)</numerusform>
            <numerusform>%n processes (%1)</numerusform>
        </translation>
    </message>
    <message id="action_failed">
        <source></source>
        <translation>Nothing was done to %1: %2.</translation>
    </message>
    <message id="action_reason_gone">
        <source></source>
        <translation>gone already</translation>
    </message>
    <message id="action_reason_protected">
        <source></source>
        <translation>the system depends on it</translation>
    </message>
    <message id="action_reason_kernel_thread">
        <source></source>
        <translation>the kernel takes no signals</translation>
    </message>
    <message id="action_reason_refused">
        <source></source>
        <translation>you may not do that without an administrator's rights</translation>
    </message>
    <message id="action_reason_in_words">
        <source></source>
        <translation>the helper says “%1”</translation>
    </message>
    <message id="action_reason_no_helper">
        <source></source>
        <translation>the helper does not answer</translation>
    </message>
    <message id="action_reason_no_time">
        <source></source>
        <translation>not tried, because the helper takes too long</translation>
    </message>
    <message id="action_reason_nobody">
        <source></source>
        <translation>this desktop has no way to do it</translation>
    </message>
    <message id="action_reason_out_of_reach">
        <source></source>
        <translation>this desktop lets no program do that to another one’s windows</translation>
    </message>
    <message id="action_done_quit" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 was asked to quit.</numerusform>
            <numerusform>%1 were asked to quit.</numerusform>
        </translation>
    </message>
    <message id="action_done_terminate" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 was asked to end.</numerusform>
            <numerusform>%1 were asked to end.</numerusform>
        </translation>
    </message>
    <message id="action_done_force" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 was ended by force.</numerusform>
            <numerusform>%1 were ended by force.</numerusform>
        </translation>
    </message>
    <message id="action_done_halt" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 was halted.</numerusform>
            <numerusform>%1 were halted.</numerusform>
        </translation>
    </message>
    <message id="action_done_continue" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 was continued.</numerusform>
            <numerusform>%1 were continued.</numerusform>
        </translation>
    </message>
    <message id="action_done_high" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 now has a high priority.</numerusform>
            <numerusform>%1 now have a high priority.</numerusform>
        </translation>
    </message>
    <message id="action_done_normal" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 now has the normal priority.</numerusform>
            <numerusform>%1 now have the normal priority.</numerusform>
        </translation>
    </message>
    <message id="action_done_low" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 now has a low priority.</numerusform>
            <numerusform>%1 now have a low priority.</numerusform>
        </translation>
    </message>
    <message id="follow_confirmation_title" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Open %n new window?</numerusform>
            <numerusform>Open %n new windows?</numerusform>
        </translation>
    </message>
    <message id="follow_confirmation_text">
        <source></source>
        <translation>One window will be opened for each selected process.</translation>
    </message>
    <message id="follow_confirmation_open">
        <source></source>
        <translation>&amp;Open</translation>
    </message>
    <message id="follow_limit_title" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n of %1 windows was opened.</numerusform>
            <numerusform>%n of %1 windows were opened.</numerusform>
        </translation>
    </message>
    <message id="follow_limit_text">
        <source></source>
        <translation>No more windows that follow processes can be open at a time. Close some of them first.</translation>
    </message>
    <message id="darwin_tools_not_found">
        <source></source>
        <translation>Lurkwell cannot work without the system's tools /bin/ps, /bin/kill and /usr/bin/renice, and at least one of them was not found.</translation>
    </message>
    <message id="no_quartz_extreme">
        <source></source>
        <translation>This display has no graphics acceleration. The animated view will be slow.</translation>
    </message>
    <message id="about_title">
        <source></source>
        <translation>About Lurkwell</translation>
    </message>
    <message id="about_name">
        <source></source>
        <translation>Lurkwell</translation>
    </message>
    <message id="about_version">
        <source></source>
        <translation>Version %1</translation>
    </message>
    <message id="about_text">
        <source></source>
        <translation>An interactive process monitor
Free software under the MIT licence</translation>
    </message>
    <message id="toolbar_system_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="toolbar_system_cpu_tip">
        <source></source>
        <translation>How busy the machine's processors are.</translation>
    </message>
    <message id="toolbar_system_cpu_figure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>CPU: %1 % of %n processor</numerusform>
            <numerusform>CPU: %1 % of %n processors</numerusform>
        </translation>
    </message>
    <message id="toolbar_system_ram">
        <source></source>
        <translation>Memory</translation>
    </message>
    <message id="toolbar_system_ram_tip">
        <source></source>
        <translation>How the machine's memory is used.</translation>
    </message>
    <message id="toolbar_system_ram_figures">
        <source></source>
        <translation>Memory: %1 of %2 used
Wired: %3
Inactive: %4
Free: %5</translation>
    </message>
    <message id="toolbar_vm_thrashing">
        <source></source>
        <translation>Swapping</translation>
    </message>
    <message id="toolbar_vm_thrashing_tip">
        <source></source>
        <translation>Green while no memory is being swapped out, yellow while some is, flashing red while it is so much that the machine slows down.</translation>
    </message>
    <message id="toolbar_vm_thrashing_figure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n page swapped out since the last update</numerusform>
            <numerusform>%n pages swapped out since the last update</numerusform>
        </translation>
    </message>
    <message id="toolbar_usage_history">
        <source></source>
        <translation>CPU History</translation>
    </message>
    <message id="toolbar_usage_history_tip">
        <source></source>
        <translation>Opens a window with the CPU usage over time for each selected process.</translation>
    </message>
    <message id="toolbar_log">
        <source></source>
        <translation>Log</translation>
    </message>
    <message id="toolbar_log_tip">
        <source></source>
        <translation>Opens a window that logs figures of each selected process.</translation>
    </message>
    <message id="toolbar_bring_to_front">
        <source></source>
        <translation>Bring to Front</translation>
    </message>
    <message id="toolbar_bring_to_front_tip">
        <source></source>
        <translation>Brings the windows of the selected applications to the front.</translation>
    </message>
    <message id="toolbar_kill">
        <source></source>
        <translation>Kill</translation>
    </message>
    <message id="toolbar_kill_tip">
        <source></source>
        <translation>Asks the selected processes to end; each further time on the same process is harsher.</translation>
    </message>
    <message id="toolbar_hide_process">
        <source></source>
        <translation>Hide</translation>
    </message>
    <message id="toolbar_hide_process_tip">
        <source></source>
        <translation>Hides the windows of the selected applications.</translation>
    </message>
    <message id="toolbar_reveal">
        <source></source>
        <translation>Show File</translation>
    </message>
    <message id="toolbar_reveal_tip">
        <source></source>
        <translation>Shows the selected applications in the file manager.</translation>
    </message>
    <message id="toolbar_high">
        <source></source>
        <translation>High</translation>
    </message>
    <message id="toolbar_high_tip">
        <source></source>
        <translation>Gives the selected processes a high priority (nice -19).</translation>
    </message>
    <message id="toolbar_medium">
        <source></source>
        <translation>Normal</translation>
    </message>
    <message id="toolbar_medium_tip">
        <source></source>
        <translation>Gives the selected processes the normal priority (nice 0).</translation>
    </message>
    <message id="toolbar_low">
        <source></source>
        <translation>Low</translation>
    </message>
    <message id="toolbar_low_tip">
        <source></source>
        <translation>Gives the selected processes the lowest priority, so that they give way to all others.</translation>
    </message>
    <message id="toolbar_halt">
        <source></source>
        <translation>Halt</translation>
    </message>
    <message id="toolbar_halt_tip">
        <source></source>
        <translation>Stops the selected processes until they are continued.</translation>
    </message>
    <message id="toolbar_cont">
        <source></source>
        <translation>Continue</translation>
    </message>
    <message id="toolbar_cont_tip">
        <source></source>
        <translation>Lets the selected processes that were halted go on.</translation>
    </message>
    <message id="menu_process_kill_with_children">
        <source></source>
        <translation>Quit or Kill with Child&amp;ren</translation>
    </message>
    <message id="menu_process_signal">
        <source></source>
        <translation>Send Si&amp;gnal…</translation>
    </message>
    <message id="menu_process_scheduling">
        <source></source>
        <translation>&amp;Priority and Processors…</translation>
    </message>
    <message id="menu_process_show_executable">
        <source></source>
        <translation>Show the Program’s &amp;File</translation>
    </message>
    <message id="menu_process_search_web">
        <source></source>
        <translation>Search the &amp;Web</translation>
    </message>
    <message id="menu_edit_copy_csv">
        <source></source>
        <translation>Copy as CS&amp;V</translation>
    </message>
    <message id="menu_edit_copy_json">
        <source></source>
        <translation>Copy as &amp;JSON</translation>
    </message>
    <message id="help_menu_process_kill_with_children">
        <source></source>
        <translation>quit or kill the selected processes and all that they have started</translation>
    </message>
    <message id="help_menu_process_signal">
        <source></source>
        <translation>send any signal</translation>
    </message>
    <message id="help_menu_process_scheduling">
        <source></source>
        <translation>nice value, scheduling, disk priority, processors</translation>
    </message>
    <message id="help_menu_process_show_executable">
        <source></source>
        <translation>show the file of the program in the file manager</translation>
    </message>
    <message id="main_window_no_executable">
        <source></source>
        <translation>What program these are is not known, or you may not know.</translation>
    </message>
    <message id="main_window_many_executables">
        <source></source>
        <translation>These are more programs than %1; nothing was opened.</translation>
    </message>
    <message id="main_window_no_search">
        <source></source>
        <translation>This desktop does not open “%1”.</translation>
    </message>
    <message id="action_ask_signal_one">
        <source></source>
        <translation>Send a signal to process %1 (%2)?</translation>
    </message>
    <message id="action_ask_signal_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Send a signal to %n process?</numerusform>
            <numerusform>Send a signal to %n processes?</numerusform>
        </translation>
    </message>
    <message id="action_ask_scheduling_one">
        <source></source>
        <translation>Priority and processors of process %1 (%2)</translation>
    </message>
    <message id="action_ask_scheduling_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Priority and processors of %n process</numerusform>
            <numerusform>Priority and processors of %n processes</numerusform>
        </translation>
    </message>
    <message id="action_button_signal">
        <source></source>
        <translation>&amp;Send</translation>
    </message>
    <message id="action_button_scheduling">
        <source></source>
        <translation>&amp;Apply</translation>
    </message>
    <message id="action_next_signal">
        <source></source>
        <translation>A program may catch a signal and do something of its own instead, but for KILL and STOP. The list says what happens otherwise.</translation>
    </message>
    <message id="action_next_scheduling">
        <source></source>
        <translation>It holds for all threads at once, until the process ends. Coming before others takes an administrator’s rights.</translation>
    </message>
    <message id="action_reason_impossible">
        <source></source>
        <translation>this machine has no such processor or priority</translation>
    </message>
    <message id="action_done_signal" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 was sent %2.</numerusform>
            <numerusform>%1 were sent %2.</numerusform>
        </translation>
    </message>
    <message id="action_done_nice" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 now has the nice value %2.</numerusform>
            <numerusform>%1 now have the nice value %2.</numerusform>
        </translation>
    </message>
    <message id="action_done_policy" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 is now scheduled as %2.</numerusform>
            <numerusform>%1 are now scheduled as %2.</numerusform>
        </translation>
    </message>
    <message id="action_done_io_priority" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 now has the disk priority %2.</numerusform>
            <numerusform>%1 now have the disk priority %2.</numerusform>
        </translation>
    </message>
    <message id="action_done_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 now runs on the processors %2.</numerusform>
            <numerusform>%1 now run on the processors %2.</numerusform>
        </translation>
    </message>
    <message id="scheduling_unchanged">
        <source></source>
        <translation>as it is</translation>
    </message>
    <message id="scheduling_nice">
        <source></source>
        <translation>&amp;Nice value:</translation>
    </message>
    <message id="scheduling_nice_tip">
        <source></source>
        <translation>From -20, which comes before all others, to 19, which comes after them</translation>
    </message>
    <message id="scheduling_policy">
        <source></source>
        <translation>Scheduling as:</translation>
    </message>
    <message id="scheduling_policy_tip">
        <source></source>
        <translation>Batch suits what computes for long, idle what may wait for everything else. Real time comes before all that is not, and can make the machine stand still.</translation>
    </message>
    <message id="scheduling_policy_normal">
        <source></source>
        <translation>Normal</translation>
    </message>
    <message id="scheduling_policy_batch">
        <source></source>
        <translation>Batch</translation>
    </message>
    <message id="scheduling_policy_idle">
        <source></source>
        <translation>Idle</translation>
    </message>
    <message id="scheduling_policy_round_robin">
        <source></source>
        <translation>Real time, in turn</translation>
    </message>
    <message id="scheduling_policy_fifo">
        <source></source>
        <translation>Real time, one after the other</translation>
    </message>
    <message id="scheduling_priority">
        <source></source>
        <translation>Priority:</translation>
    </message>
    <message id="scheduling_io_class">
        <source></source>
        <translation>&amp;Disk priority:</translation>
    </message>
    <message id="scheduling_io_tip">
        <source></source>
        <translation>Counts where the disk’s scheduler knows of it. 0 comes before 7.</translation>
    </message>
    <message id="scheduling_io_none">
        <source></source>
        <translation>As the nice value says</translation>
    </message>
    <message id="scheduling_io_best_effort">
        <source></source>
        <translation>Best effort</translation>
    </message>
    <message id="scheduling_io_idle">
        <source></source>
        <translation>Idle</translation>
    </message>
    <message id="scheduling_io_real_time">
        <source></source>
        <translation>Real time</translation>
    </message>
    <message id="scheduling_io_level">
        <source></source>
        <translation>Level:</translation>
    </message>
    <message id="scheduling_processors">
        <source></source>
        <translation>&amp;Processors (of %1):</translation>
    </message>
    <message id="scheduling_processors_tip">
        <source></source>
        <translation>Numbers and ranges, for example 0-3,6; this machine has %1</translation>
    </message>
    <message id="scheduling_no_processors">
        <source></source>
        <translation>Give processors among %1, for example 0 or 0-1,3.</translation>
    </message>
    <message id="signal_list">
        <source></source>
        <translation>Signals</translation>
    </message>
    <message id="signal_column_name">
        <source></source>
        <translation>Signal</translation>
    </message>
    <message id="signal_column_number">
        <source></source>
        <translation>No.</translation>
    </message>
    <message id="signal_column_effect">
        <source></source>
        <translation>What it is for</translation>
    </message>
    <message id="signal_realtime">
        <source></source>
        <translation>For the program’s own use; ends it otherwise</translation>
    </message>
    <message id="signal_hup">
        <source></source>
        <translation>Its terminal is gone; services often read their settings anew</translation>
    </message>
    <message id="signal_int">
        <source></source>
        <translation>Interrupt, as Ctrl+C in a terminal; ends it</translation>
    </message>
    <message id="signal_quit">
        <source></source>
        <translation>As Ctrl+\ in a terminal; ends it, memory kept</translation>
    </message>
    <message id="signal_ill">
        <source></source>
        <translation>It came to a forbidden instruction; ends it, memory kept</translation>
    </message>
    <message id="signal_trap">
        <source></source>
        <translation>Of debuggers; ends it, memory kept</translation>
    </message>
    <message id="signal_abrt">
        <source></source>
        <translation>It gave up; ends it, memory kept</translation>
    </message>
    <message id="signal_bus">
        <source></source>
        <translation>It reached for missing memory; ends it, memory kept</translation>
    </message>
    <message id="signal_fpe">
        <source></source>
        <translation>It calculated something impossible; ends it, memory kept</translation>
    </message>
    <message id="signal_kill">
        <source></source>
        <translation>Ends it at once; it cannot save anything</translation>
    </message>
    <message id="signal_usr1">
        <source></source>
        <translation>For the program’s own use; ends it otherwise</translation>
    </message>
    <message id="signal_segv">
        <source></source>
        <translation>It reached for foreign memory; ends it, memory kept</translation>
    </message>
    <message id="signal_usr2">
        <source></source>
        <translation>For the program’s own use; ends it otherwise</translation>
    </message>
    <message id="signal_pipe">
        <source></source>
        <translation>Nothing reads what it writes any more; ends it</translation>
    </message>
    <message id="signal_alrm">
        <source></source>
        <translation>Its alarm clock rang; ends it</translation>
    </message>
    <message id="signal_term">
        <source></source>
        <translation>Asks it to end</translation>
    </message>
    <message id="signal_stkflt">
        <source></source>
        <translation>Unused; ends it</translation>
    </message>
    <message id="signal_chld">
        <source></source>
        <translation>A child has ended or stopped; does nothing</translation>
    </message>
    <message id="signal_cont">
        <source></source>
        <translation>Goes on after a stop</translation>
    </message>
    <message id="signal_stop">
        <source></source>
        <translation>Stands still until it is continued; cannot be caught</translation>
    </message>
    <message id="signal_tstp">
        <source></source>
        <translation>Stop, as Ctrl+Z in a terminal</translation>
    </message>
    <message id="signal_ttin">
        <source></source>
        <translation>It reads a terminal from the background; stops it</translation>
    </message>
    <message id="signal_ttou">
        <source></source>
        <translation>It writes to a terminal from the background; stops it</translation>
    </message>
    <message id="signal_urg">
        <source></source>
        <translation>Urgent data arrived; does nothing</translation>
    </message>
    <message id="signal_xcpu">
        <source></source>
        <translation>Its processor time is used up; ends it, memory kept</translation>
    </message>
    <message id="signal_xfsz">
        <source></source>
        <translation>A file became too large; ends it, memory kept</translation>
    </message>
    <message id="signal_vtalrm">
        <source></source>
        <translation>Its clock of processor time rang; ends it</translation>
    </message>
    <message id="signal_prof">
        <source></source>
        <translation>The clock of a profile rang; ends it</translation>
    </message>
    <message id="signal_winch">
        <source></source>
        <translation>Its window has another size; does nothing</translation>
    </message>
    <message id="signal_poll">
        <source></source>
        <translation>A file can be read or written; ends it</translation>
    </message>
    <message id="signal_pwr">
        <source></source>
        <translation>The power fails; ends it</translation>
    </message>
    <message id="signal_sys">
        <source></source>
        <translation>It made a forbidden system call; ends it, memory kept</translation>
    </message>
    <message id="toolbar_select_children">
        <source></source>
        <translation>Children</translation>
    </message>
    <message id="toolbar_select_children_tip">
        <source></source>
        <translation>Selects the processes that the selected ones have started, instead of these.</translation>
    </message>
    <message id="toolbar_prefs">
        <source></source>
        <translation>Preferences</translation>
    </message>
    <message id="toolbar_prefs_tip">
        <source></source>
        <translation>Opens the preferences.</translation>
    </message>
    <message id="toolbar_customise">
        <source></source>
        <translation>Customise</translation>
    </message>
    <message id="toolbar_customise_tip">
        <source></source>
        <translation>Chooses what the toolbar holds and in which order.</translation>
    </message>
    <message id="toolbar_separator">
        <source></source>
        <translation>Separator</translation>
    </message>
    <message id="toolbar_separator_tip">
        <source></source>
        <translation>A line between groups of items.</translation>
    </message>
    <message id="toolbar_space">
        <source></source>
        <translation>Space</translation>
    </message>
    <message id="toolbar_space_tip">
        <source></source>
        <translation>Some room between items.</translation>
    </message>
    <message id="toolbar_flexible_space">
        <source></source>
        <translation>Flexible Space</translation>
    </message>
    <message id="toolbar_flexible_space_tip">
        <source></source>
        <translation>Moves what follows to the end of the toolbar.</translation>
    </message>
    <message id="toolbar_title">
        <source></source>
        <translation>Toolbar</translation>
    </message>
    <message id="toolbar_customise_title">
        <source></source>
        <translation>Customise Toolbar</translation>
    </message>
    <message id="toolbar_customise_hint">
        <source></source>
        <translation>Drag items into the toolbar, or out of it to the list of available items. They can be dropped on the toolbar of the window, too.</translation>
    </message>
    <message id="toolbar_customise_available">
        <source></source>
        <translation>Available &amp;items:</translation>
    </message>
    <message id="toolbar_customise_current">
        <source></source>
        <translation>In the &amp;toolbar:</translation>
    </message>
    <message id="toolbar_customise_add">
        <source></source>
        <translation>&amp;Add</translation>
    </message>
    <message id="toolbar_customise_remove">
        <source></source>
        <translation>&amp;Remove</translation>
    </message>
    <message id="toolbar_customise_earlier">
        <source></source>
        <translation>Move &amp;Up</translation>
    </message>
    <message id="toolbar_customise_later">
        <source></source>
        <translation>Move &amp;Down</translation>
    </message>
    <message id="toolbar_customise_default_set">
        <source></source>
        <translation>Default set:</translation>
    </message>
    <message id="toolbar_customise_default_set_tip">
        <source></source>
        <translation>Can be dragged into the toolbar as a whole.</translation>
    </message>
    <message id="toolbar_customise_use_default">
        <source></source>
        <translation>U&amp;se Default Set</translation>
    </message>
    <message id="toolbar_customise_mode">
        <source></source>
        <translation>Sh&amp;ow:</translation>
    </message>
    <message id="toolbar_customise_done">
        <source></source>
        <translation>Do&amp;ne</translation>
    </message>
    <message id="toolbar_mode_both">
        <source></source>
        <translation>Icons and Text</translation>
    </message>
    <message id="toolbar_mode_icon">
        <source></source>
        <translation>Icons Only</translation>
    </message>
    <message id="toolbar_mode_text">
        <source></source>
        <translation>Text Only</translation>
    </message>
    <message id="logging_title">
        <source></source>
        <translation>Logging %1 pid:%2</translation>
    </message>
    <message id="logging_title_file">
        <source></source>
        <translation>filename: %1</translation>
    </message>
    <message id="logging_table">
        <source></source>
        <translation>Log of one process</translation>
    </message>
    <message id="logging_column_time">
        <source></source>
        <translation>Time</translation>
    </message>
    <message id="logging_column_time_tip">
        <source></source>
        <translation>When the row was written.</translation>
    </message>
    <message id="logging_column_active">
        <source></source>
        <translation>CPU time</translation>
    </message>
    <message id="logging_column_active_tip">
        <source></source>
        <translation>CPU time used since the process started, in seconds.</translation>
    </message>
    <message id="logging_column_active_change">
        <source></source>
        <translation>∆ CPU time</translation>
    </message>
    <message id="logging_column_active_change_tip">
        <source></source>
        <translation>CPU time used since the row before, in seconds.</translation>
    </message>
    <message id="logging_column_real">
        <source></source>
        <translation>Resident</translation>
    </message>
    <message id="logging_column_real_tip">
        <source></source>
        <translation>Memory that the process has in the machine's memory.</translation>
    </message>
    <message id="logging_column_real_change">
        <source></source>
        <translation>∆ Resident</translation>
    </message>
    <message id="logging_column_real_change_tip">
        <source></source>
        <translation>Change of the resident memory since the row before.</translation>
    </message>
    <message id="logging_column_virtual">
        <source></source>
        <translation>Virtual</translation>
    </message>
    <message id="logging_column_virtual_tip">
        <source></source>
        <translation>Address space of the process.</translation>
    </message>
    <message id="logging_column_virtual_change">
        <source></source>
        <translation>∆ Virtual</translation>
    </message>
    <message id="logging_column_virtual_change_tip">
        <source></source>
        <translation>Change of the address space since the row before.</translation>
    </message>
    <message id="logging_note_ended">
        <source></source>
        <translation>The process has ended.</translation>
    </message>
    <message id="logging_note_ended_remembered">
        <source></source>
        <translation>The process has ended. The window comes back when a process of that name starts.</translation>
    </message>
    <message id="logging_note_not_created">
        <source></source>
        <translation>There is no log file: %1. The rows are only shown here.</translation>
    </message>
    <message id="logging_note_not_written">
        <source></source>
        <translation>Rows are missing in the log file: %1.</translation>
    </message>
    <message id="logging_show_file">
        <source></source>
        <translation>Show &amp;File</translation>
    </message>
    <message id="logging_show_file_none">
        <source></source>
        <translation>Nothing is written to a file. The preferences can have new logs written to one.</translation>
    </message>
    <message id="logging_save_as">
        <source></source>
        <translation>&amp;Save As…</translation>
    </message>
    <message id="record_title">
        <source></source>
        <translation>Record Processes</translation>
    </message>
    <message id="record_filter">
        <source></source>
        <translation>Recordings (*.lwr);;All files (*)</translation>
    </message>
    <message id="record_failed">
        <source></source>
        <translation>The processes are not recorded.</translation>
    </message>
    <message id="record_behind">
        <source></source>
        <translation>The disk has not yet taken all that was recorded.</translation>
    </message>
    <message id="record_behind_message">
        <source></source>
        <translation>The rest is written while Lurkwell runs. Until then the file cannot be recorded to again.</translation>
    </message>
    <message id="record_status">
        <source></source>
        <translation>Recording to %1</translation>
    </message>
    <message id="record_trouble">
        <source></source>
        <translation>Not recording to %1: %2</translation>
    </message>
    <message id="replay_open_title">
        <source></source>
        <translation>Open Recording</translation>
    </message>
    <message id="replay_failed">
        <source></source>
        <translation>The recording cannot be shown.</translation>
    </message>
    <message id="replay_title">
        <source></source>
        <translation>%1 – %2</translation>
    </message>
    <message id="replay_bar">
        <source></source>
        <translation>Time line</translation>
    </message>
    <message id="replay_back">
        <source></source>
        <translation>One beat back</translation>
    </message>
    <message id="replay_play">
        <source></source>
        <translation>Play</translation>
    </message>
    <message id="replay_forth">
        <source></source>
        <translation>One beat on</translation>
    </message>
    <message id="replay_peak">
        <source></source>
        <translation>Next peak of processor use</translation>
    </message>
    <message id="replay_speed">
        <source></source>
        <translation>Speed</translation>
    </message>
    <message id="replay_moment">
        <source></source>
        <translation>Go to a moment</translation>
    </message>
    <message id="replay_moment_tip">
        <source></source>
        <translation>Go to a moment (%1): a time such as 03:12, a date with a time, or -2h, which is before the end</translation>
    </message>
    <message id="replay_no_peak">
        <source></source>
        <translation>There is no later peak of processor use.</translation>
    </message>
    <message id="replay_no_actions">
        <source></source>
        <translation>This is a recording: nothing can be done to its processes.</translation>
    </message>
    <message id="logging_save_title">
        <source></source>
        <translation>Save the log</translation>
    </message>
    <message id="logging_save_filter">
        <source></source>
        <translation>Tables (*.tsv);;All files (*)</translation>
    </message>
    <message id="logging_menu_title">
        <source></source>
        <translation>Log of %1, pid %2</translation>
    </message>
    <message id="logging_identity">
        <source></source>
        <translation>Owner %1: %2</translation>
    </message>
    <message id="remembered_owner">
        <source></source>
        <translation>Owner</translation>
    </message>
    <message id="logging_copy">
        <source></source>
        <translation>&amp;Copy</translation>
    </message>
    <message id="logging_select_all">
        <source></source>
        <translation>Select &amp;All</translation>
    </message>
    <message id="logging_note_not_saved">
        <source></source>
        <translation>The log is not saved: %1.</translation>
    </message>
    <message id="logging_note_saved">
        <source></source>
        <translation>Saved as %1.</translation>
    </message>
    <message id="logging_note_not_shown">
        <source></source>
        <translation>There is no file manager to show the file. It is %1.</translation>
    </message>
    <message id="logging_note_follows">
        <source></source>
        <translation>Process %1 has ended. From “pid %2” on the rows are those of process %2.</translation>
    </message>
    <message id="logging_row_of">
        <source></source>
        <translation>pid %1</translation>
    </message>
    <message id="history_title">
        <source></source>
        <translation>CPU history of %1, pid %2</translation>
    </message>
    <message id="history_identity">
        <source></source>
        <translation>pid %1</translation>
    </message>
    <message id="history_accessible">
        <source></source>
        <translation>CPU history of %1, process %2 of %3</translation>
    </message>
    <message id="history_now">
        <source></source>
        <translation>%1 % now, between %3 % and %4 % in the window; the upper edge is %2 %</translation>
    </message>
    <message id="history_tip">
        <source></source>
        <translation>&lt;b&gt;%1&lt;/b&gt;&lt;br&gt;pid %2, owner %3&lt;br&gt;%4</translation>
    </message>
    <message id="history_not_above">
        <source></source>
        <translation>This desktop does not keep it above other windows; a rule of its own for windows may.</translation>
    </message>
    <message id="history_menu_relative">
        <source></source>
        <translation>&amp;Scale to the Recent Maximum</translation>
    </message>
    <message id="history_menu_descendants">
        <source></source>
        <translation>Count &amp;Descendants Too</translation>
    </message>
    <message id="history_menu_close">
        <source></source>
        <translation>&amp;Close and Forget</translation>
    </message>
    <message id="details_title">
        <source></source>
        <translation>%1 (%2): Details</translation>
    </message>
    <message id="details_title_ended">
        <source></source>
        <translation>%1 (%2), ended: Details</translation>
    </message>
    <message id="details_heading">
        <source></source>
        <translation>%1 (process %2)</translation>
    </message>
    <message id="details_heading_ended">
        <source></source>
        <translation>%1 (process %2), as of %3, ended</translation>
    </message>
    <message id="details_ended">
        <source></source>
        <translation>As of %1, ended. What was read last stays as it is.</translation>
    </message>
    <message id="details_ended_before">
        <source></source>
        <translation>The process ended before this was read.</translation>
    </message>
    <message id="details_actions">
        <source></source>
        <translation>&amp;Actions</translation>
    </message>
    <message id="details_pages">
        <source></source>
        <translation>Pages</translation>
    </message>
    <message id="details_filter">
        <source></source>
        <translation>Show rows that contain…</translation>
    </message>
    <message id="details_reading">
        <source></source>
        <translation>Reading…</translation>
    </message>
    <message id="details_waiting">
        <source></source>
        <translation>No answer from the system yet; still waiting. The memory of the process may be locked, or on a file system that does not answer.</translation>
    </message>
    <message id="details_too_many_hang">
        <source></source>
        <translation>Too many earlier questions have had no answer from the system. This one is asked as soon as one of them has.</translation>
    </message>
    <message id="details_refused">
        <source></source>
        <translation>Not allowed: this process belongs to another user. Only its owner and root may read this.</translation>
    </message>
    <message id="details_refused_owner">
        <source></source>
        <translation>Not allowed: this process belongs to %1. Only its owner and root may read this.</translation>
    </message>
    <message id="details_kept_secret">
        <source></source>
        <translation>Not allowed: the process keeps this from other programs, also from those of its own user.</translation>
    </message>
    <message id="details_none">
        <source></source>
        <translation>This system has nothing of the kind for this process.</translation>
    </message>
    <message id="details_nothing">
        <source></source>
        <translation>There are none.</translation>
    </message>
    <message id="details_failed">
        <source></source>
        <translation>The system is short of something at the moment. This is tried again.</translation>
    </message>
    <message id="details_first_ones">
        <source></source>
        <translation>%1; the first %2 are shown</translation>
    </message>
    <message id="details_unlimited">
        <source></source>
        <translation>unlimited</translation>
    </message>
    <message id="details_parent">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="details_overview">
        <source></source>
        <translation>Overview</translation>
    </message>
    <message id="details_overview_figure">
        <source></source>
        <translation>What</translation>
    </message>
    <message id="details_overview_value">
        <source></source>
        <translation>Value</translation>
    </message>
    <message id="details_graph_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="details_graph_memory">
        <source></source>
        <translation>Memory</translation>
    </message>
    <message id="details_graph_disk">
        <source></source>
        <translation>Disk</translation>
    </message>
    <message id="details_graph_network">
        <source></source>
        <translation>Network (TCP)</translation>
    </message>
    <message id="details_graph_resident">
        <source></source>
        <translation>resident</translation>
    </message>
    <message id="details_graph_swap">
        <source></source>
        <translation>swapped</translation>
    </message>
    <message id="details_graph_read">
        <source></source>
        <translation>read</translation>
    </message>
    <message id="details_graph_written">
        <source></source>
        <translation>written</translation>
    </message>
    <message id="details_graph_received">
        <source></source>
        <translation>received</translation>
    </message>
    <message id="details_graph_sent">
        <source></source>
        <translation>sent</translation>
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
        <translation>Name</translation>
    </message>
    <message id="details_thread_share">
        <source></source>
        <translation>CPU %</translation>
    </message>
    <message id="details_thread_time">
        <source></source>
        <translation>CPU time</translation>
    </message>
    <message id="details_thread_state">
        <source></source>
        <translation>State</translation>
    </message>
    <message id="details_thread_processor">
        <source></source>
        <translation>Processor</translation>
    </message>
    <message id="details_thread_nice">
        <source></source>
        <translation>Nice</translation>
    </message>
    <message id="details_descriptors">
        <source></source>
        <translation>Files and Sockets</translation>
    </message>
    <message id="details_descriptors_count">
        <source></source>
        <translation>Open files, sockets and others: %1</translation>
    </message>
    <message id="details_descriptor">
        <source></source>
        <translation>Number</translation>
    </message>
    <message id="details_descriptor_kind">
        <source></source>
        <translation>Kind</translation>
    </message>
    <message id="details_descriptor_target">
        <source></source>
        <translation>Path or addresses</translation>
    </message>
    <message id="details_descriptor_position">
        <source></source>
        <translation>Position</translation>
    </message>
    <message id="details_descriptor_flags">
        <source></source>
        <translation>Opened for</translation>
    </message>
    <message id="details_mappings">
        <source></source>
        <translation>Memory</translation>
    </message>
    <message id="details_mappings_count">
        <source></source>
        <translation>Mappings: %1; size %2, resident %3, proportional %4</translation>
    </message>
    <message id="details_mapping_range">
        <source></source>
        <translation>Addresses</translation>
    </message>
    <message id="details_mapping_size">
        <source></source>
        <translation>Size</translation>
    </message>
    <message id="details_mapping_resident">
        <source></source>
        <translation>Resident</translation>
    </message>
    <message id="details_mapping_proportional">
        <source></source>
        <translation>Proportional</translation>
    </message>
    <message id="details_mapping_swapped">
        <source></source>
        <translation>Swapped</translation>
    </message>
    <message id="details_mapping_permissions">
        <source></source>
        <translation>Access</translation>
    </message>
    <message id="details_mapping_file">
        <source></source>
        <translation>File</translation>
    </message>
    <message id="details_environment">
        <source></source>
        <translation>Environment</translation>
    </message>
    <message id="details_environment_count">
        <source></source>
        <translation>Variables when the program was started: %1</translation>
    </message>
    <message id="details_variable_name">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="details_variable_value">
        <source></source>
        <translation>Value</translation>
    </message>
    <message id="details_limits">
        <source></source>
        <translation>Limits</translation>
    </message>
    <message id="details_limits_count">
        <source></source>
        <translation>Limits of the process: %1. It may raise its own ones up to the highest.</translation>
    </message>
    <message id="details_limit_name">
        <source></source>
        <translation>Limit</translation>
    </message>
    <message id="details_limit_soft">
        <source></source>
        <translation>Now</translation>
    </message>
    <message id="details_limit_hard">
        <source></source>
        <translation>Highest</translation>
    </message>
    <message id="details_limit_unit">
        <source></source>
        <translation>Unit</translation>
    </message>
    <message id="details_group">
        <source></source>
        <translation>Control Group</translation>
    </message>
    <message id="details_group_count">
        <source></source>
        <translation>Figures: %1. They are those of all processes in the group; groups above it are listed where they limit anything.</translation>
    </message>
    <message id="details_group_figure">
        <source></source>
        <translation>Figure</translation>
    </message>
    <message id="details_group_in_use">
        <source></source>
        <translation>In use</translation>
    </message>
    <message id="details_group_limit">
        <source></source>
        <translation>Limit</translation>
    </message>
    <message id="details_group_path">
        <source></source>
        <translation>Group</translation>
    </message>
    <message id="details_group_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n processor</numerusform>
            <numerusform>%n processors</numerusform>
        </translation>
    </message>
    <message id="details_group_memory">
        <source></source>
        <translation>Memory</translation>
    </message>
    <message id="details_group_memory.high">
        <source></source>
        <translation>Memory before it is slowed down</translation>
    </message>
    <message id="details_group_memory.peak">
        <source></source>
        <translation>Most memory so far</translation>
    </message>
    <message id="details_group_memory.swap">
        <source></source>
        <translation>Swap</translation>
    </message>
    <message id="details_group_pids">
        <source></source>
        <translation>Processes and threads</translation>
    </message>
    <message id="details_group_cpu.max">
        <source></source>
        <translation>CPU at most</translation>
    </message>
    <message id="details_group_cpu.weight">
        <source></source>
        <translation>CPU weight</translation>
    </message>
    <message id="details_group_cpu.usage">
        <source></source>
        <translation>CPU time</translation>
    </message>
    <message id="details_group_cpu.throttled">
        <source></source>
        <translation>Time without CPU, for its limit</translation>
    </message>
    <message id="details_group_memory.high_events">
        <source></source>
        <translation>Times slowed down for memory</translation>
    </message>
    <message id="details_group_memory.oom_kills">
        <source></source>
        <translation>Processes killed for want of memory</translation>
    </message>
    <message id="remembered_title">
        <source></source>
        <translation>Lurkwell: Remembered Windows</translation>
    </message>
    <message id="remembered_program">
        <source></source>
        <translation>Program</translation>
    </message>
    <message id="remembered_window">
        <source></source>
        <translation>Window</translation>
    </message>
    <message id="remembered_process">
        <source></source>
        <translation>Process</translation>
    </message>
    <message id="remembered_log">
        <source></source>
        <translation>Log</translation>
    </message>
    <message id="remembered_history">
        <source></source>
        <translation>CPU history</translation>
    </message>
    <message id="remembered_follows">
        <source></source>
        <translation>pid %1</translation>
    </message>
    <message id="remembered_waits">
        <source></source>
        <translation>waits for the program to start</translation>
    </message>
    <message id="remembered_explanation">
        <source></source>
        <translation>These windows come back when their program starts. One that is forgotten does not; if it is open it stays until it is closed.</translation>
    </message>
    <message id="remembered_forget">
        <source></source>
        <translation>&amp;Forget</translation>
    </message>
    <message id="preferences_title">
        <source></source>
        <translation>Lurkwell Preferences</translation>
    </message>
    <message id="preferences_page">
        <source></source>
        <translation>Page</translation>
    </message>
    <message id="preferences_form_missing">
        <source></source>
        <translation>The preferences cannot be shown.</translation>
    </message>
    <message id="preferences_form_missing_text">
        <source></source>
        <translation>A part of the program is missing: the layout of the preferences window. Install Lurkwell again.</translation>
    </message>
    <message id="preferences_times_per_second" numerus="yes">
        <source></source>
        <translation>
            <numerusform>once per second</numerusform>
            <numerusform>%n times per second</numerusform>
        </translation>
    </message>
    <message id="preferences_every_seconds" numerus="yes">
        <source></source>
        <translation>
            <numerusform>every second</numerusform>
            <numerusform>every %n seconds</numerusform>
        </translation>
    </message>
    <message id="preferences_every_minutes" numerus="yes">
        <source></source>
        <translation>
            <numerusform>every minute</numerusform>
            <numerusform>every %n minutes</numerusform>
        </translation>
    </message>
    <message id="preferences_every_hour">
        <source></source>
        <translation>every hour</translation>
    </message>
    <message id="preferences_interval_invalid">
        <source></source>
        <translation>invalid input. Can't convert</translation>
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
        <translation>Main Window</translation>
    </message>
    <message id="preferences_page_animatedview">
        <source></source>
        <translation>Animated View</translation>
    </message>
    <message id="preferences_page_history">
        <source></source>
        <translation>CPU History</translation>
    </message>
    <message id="preferences_page_logging">
        <source></source>
        <translation>Logging</translation>
    </message>
    <message id="preferences_all_settings">
        <source></source>
        <translation>A&amp;ll Settings…</translation>
    </message>
    <message id="preferences_all_settings_tip">
        <source></source>
        <translation>Every setting of the program, those without a control of their own among them.</translation>
    </message>
    <message id="preferences_close">
        <source></source>
        <translation>&amp;Close</translation>
    </message>
    <message id="preferences_close_tip">
        <source></source>
        <translation>Closes the window. Every change is saved already.</translation>
    </message>
    <message id="preferences_memoryFormatMatrix">
        <source></source>
        <translation>Memory sizes</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_tip">
        <source></source>
        <translation>The unit of memory sizes in tables, bars and logs.</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_automatic">
        <source></source>
        <translation>&amp;Automatic</translation>
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
        <translation>Dates</translation>
    </message>
    <message id="preferences_dateFormatMatrix_tip">
        <source></source>
        <translation>How dates and times are written in tables and logs.</translation>
    </message>
    <message id="preferences_dateFormatMatrix_calendar">
        <source></source>
        <translation>Cale&amp;ndar and clock</translation>
    </message>
    <message id="preferences_dateFormatMatrix_seconds">
        <source></source>
        <translation>&amp;Seconds since 1970</translation>
    </message>
    <message id="preferences_dateFormatMatrix_microseconds">
        <source></source>
        <translation>Seconds and mic&amp;roseconds</translation>
    </message>
    <message id="preferences_mainWindowInterval">
        <source></source>
        <translation>&amp;Update the table:</translation>
    </message>
    <message id="preferences_mainWindowInterval_tip">
        <source></source>
        <translation>How often the main window's table is brought up to date. Updating seldom costs less.</translation>
    </message>
    <message id="preferences_memoryGraph">
        <source></source>
        <translation>Show the &amp;size on memory bars</translation>
    </message>
    <message id="preferences_memoryGraph_tip">
        <source></source>
        <translation>Writes on each memory bar the size that its length shows.</translation>
    </message>
    <message id="preferences_memoryFigure">
        <source></source>
        <translation>Memory &amp;bars show:</translation>
    </message>
    <message id="preferences_memoryFigure_tip">
        <source></source>
        <translation>What the length of memory bars shows; where the table is sorted by them it is the order of the rows, too.</translation>
    </message>
    <message id="preferences_memoryFigure_virtual">
        <source></source>
        <translation>the virtual size, the resident one within</translation>
    </message>
    <message id="preferences_memoryFigure_resident">
        <source></source>
        <translation>the resident size</translation>
    </message>
    <message id="preferences_memoryFigure_proportional">
        <source></source>
        <translation>the proportional size: shared memory in parts</translation>
    </message>
    <message id="preferences_frameInterval">
        <source></source>
        <translation>&amp;Draw a picture:</translation>
    </message>
    <message id="preferences_frameInterval_tip">
        <source></source>
        <translation>How often the animated view is drawn. The two intervals below are never shorter.</translation>
    </message>
    <message id="preferences_mainInterval">
        <source></source>
        <translation>Update the &amp;processes:</translation>
    </message>
    <message id="preferences_mainInterval_tip">
        <source></source>
        <translation>How often the animated view looks for processes that started or ended. Never shorter than drawing, never longer than measuring.</translation>
    </message>
    <message id="preferences_cpuInterval">
        <source></source>
        <translation>&amp;Measure CPU usage:</translation>
    </message>
    <message id="preferences_cpuInterval_tip">
        <source></source>
        <translation>How often the animated view measures the CPU usage of its processes. The two intervals above are never longer.</translation>
    </message>
    <message id="preferences_windowAlpha">
        <source></source>
        <translation>&amp;Opacity in full screen:</translation>
    </message>
    <message id="preferences_windowAlpha_tip">
        <source></source>
        <translation>How much of the desktop the full-screen view covers: 0 % hides the view, 100 % hides the desktop.</translation>
    </message>
    <message id="preferences_underlayAlpha">
        <source></source>
        <translation>Opacity of the &amp;backdrop:</translation>
    </message>
    <message id="preferences_underlayAlpha_tip">
        <source></source>
        <translation>How strongly the picture behind the processes shows in full screen.</translation>
    </message>
    <message id="preferences_connectors">
        <source></source>
        <translation>&amp;Join parents and children in full screen</translation>
    </message>
    <message id="preferences_connectors_tip">
        <source></source>
        <translation>Draws a line from each process to its parent, in the full-screen view too.</translation>
    </message>
    <message id="preferences_historyInterval">
        <source></source>
        <translation>&amp;Measure CPU usage:</translation>
    </message>
    <message id="preferences_historyInterval_tip">
        <source></source>
        <translation>How often a CPU history gets a new point.</translation>
    </message>
    <message id="preferences_historyFilter">
        <source></source>
        <translation>Smoot&amp;h by:</translation>
    </message>
    <message id="preferences_historyFilter_tip">
        <source></source>
        <translation>How much of the point before goes into the next: 0 % shows every jump, higher values a calmer line.</translation>
    </message>
    <message id="preferences_historyColour">
        <source></source>
        <translation>CPU usa&amp;ge:</translation>
    </message>
    <message id="preferences_historyColour_tip">
        <source></source>
        <translation>The colour of the line of the process's CPU usage, with that of its descendants while they are included.</translation>
    </message>
    <message id="preferences_descendantsColour">
        <source></source>
        <translation>Own shar&amp;e:</translation>
    </message>
    <message id="preferences_descendantsColour_tip">
        <source></source>
        <translation>The colour of the line of the process's own share while its descendants are included. Holds for windows opened from now on.</translation>
    </message>
    <message id="preferences_relative">
        <source></source>
        <translation>&amp;Scale to the recent maximum</translation>
    </message>
    <message id="preferences_relative_tip">
        <source></source>
        <translation>The graph's height stands for the highest recent usage instead of 100 %.</translation>
    </message>
    <message id="preferences_descendants">
        <source></source>
        <translation>&amp;Include the process's descendants</translation>
    </message>
    <message id="preferences_descendants_tip">
        <source></source>
        <translation>Shows what the processes that it started use, in a colour of their own.</translation>
    </message>
    <message id="preferences_loggingInterval">
        <source></source>
        <translation>Loo&amp;k for changes:</translation>
    </message>
    <message id="preferences_loggingInterval_tip">
        <source></source>
        <translation>How often a log looks whether there is something new to write down.</translation>
    </message>
    <message id="preferences_timestamp">
        <source></source>
        <translation>&amp;Time</translation>
    </message>
    <message id="preferences_timestamp_tip">
        <source></source>
        <translation>A column with the time of each row.</translation>
    </message>
    <message id="preferences_logToFile">
        <source></source>
        <translation>Write to a &amp;file, too</translation>
    </message>
    <message id="preferences_logToFile_tip">
        <source></source>
        <translation>Appends every row to a text file of the log's own.</translation>
    </message>
    <message id="preferences_activeTime">
        <source></source>
        <translation>CP&amp;U time</translation>
    </message>
    <message id="preferences_activeTime_tip">
        <source></source>
        <translation>A column with the CPU time that the process has used.</translation>
    </message>
    <message id="preferences_deltaActiveTime">
        <source></source>
        <translation>Chan&amp;ge of CPU time</translation>
    </message>
    <message id="preferences_deltaActiveTime_tip">
        <source></source>
        <translation>A column with the CPU time used since the row before.</translation>
    </message>
    <message id="preferences_realMemory">
        <source></source>
        <translation>&amp;Real memory</translation>
    </message>
    <message id="preferences_realMemory_tip">
        <source></source>
        <translation>A column with the memory that the process has in use.</translation>
    </message>
    <message id="preferences_deltaRealMemory">
        <source></source>
        <translation>Change of r&amp;eal memory</translation>
    </message>
    <message id="preferences_deltaRealMemory_tip">
        <source></source>
        <translation>A column with the change of the real memory since the row before.</translation>
    </message>
    <message id="preferences_virtualMemory">
        <source></source>
        <translation>&amp;Virtual memory</translation>
    </message>
    <message id="preferences_virtualMemory_tip">
        <source></source>
        <translation>A column with the size of the process's address space.</translation>
    </message>
    <message id="preferences_deltaVirtualMemory">
        <source></source>
        <translation>Cha&amp;nge of virtual memory</translation>
    </message>
    <message id="preferences_deltaVirtualMemory_tip">
        <source></source>
        <translation>A column with the change of the virtual memory since the row before.</translation>
    </message>
    <message id="preferences_notice">
        <source></source>
        <translation>Changes hold for log windows that are opened from now on.</translation>
    </message>
    <message id="settings_title">
        <source></source>
        <translation>All Settings</translation>
    </message>
    <message id="settings_filter">
        <source></source>
        <translation>Filter by name, key, value or meaning</translation>
    </message>
    <message id="settings_reset">
        <source></source>
        <translation>&amp;Reset to Default</translation>
    </message>
    <message id="settings_reset_tip">
        <source></source>
        <translation>Removes the stored values of the selected settings, so that their defaults count.</translation>
    </message>
    <message id="settings_column_key">
        <source></source>
        <translation>Setting</translation>
    </message>
    <message id="settings_column_value">
        <source></source>
        <translation>Value</translation>
    </message>
    <message id="settings_column_default">
        <source></source>
        <translation>Default</translation>
    </message>
    <message id="settings_column_kind">
        <source></source>
        <translation>Type</translation>
    </message>
    <message id="settings_column_effect">
        <source></source>
        <translation>Holds</translation>
    </message>
    <message id="settings_column_meaning">
        <source></source>
        <translation>Meaning</translation>
    </message>
    <message id="settings_kind_switch">
        <source></source>
        <translation>switch</translation>
    </message>
    <message id="settings_kind_choice">
        <source></source>
        <translation>choice</translation>
    </message>
    <message id="settings_kind_integer">
        <source></source>
        <translation>whole number</translation>
    </message>
    <message id="settings_kind_interval">
        <source></source>
        <translation>interval</translation>
    </message>
    <message id="settings_kind_colour">
        <source></source>
        <translation>colour, 0 to 65535</translation>
    </message>
    <message id="settings_kind_real">
        <source></source>
        <translation>number</translation>
    </message>
    <message id="settings_kind_text">
        <source></source>
        <translation>text</translation>
    </message>
    <message id="settings_kind_record">
        <source></source>
        <translation>the program's own record</translation>
    </message>
    <message id="settings_kind_array">
        <source></source>
        <translation>records</translation>
    </message>
    <message id="settings_kind_unit">
        <source></source>
        <translation>%1 in %2</translation>
    </message>
    <message id="settings_unit_milliseconds">
        <source></source>
        <translation>milliseconds</translation>
    </message>
    <message id="settings_unit_seconds">
        <source></source>
        <translation>seconds</translation>
    </message>
    <message id="settings_unit_pages">
        <source></source>
        <translation>pages</translation>
    </message>
    <message id="settings_unit_points">
        <source></source>
        <translation>points</translation>
    </message>
    <message id="settings_unit_ticks">
        <source></source>
        <translation>ticks (60 a second)</translation>
    </message>
    <message id="settings_kind_range">
        <source></source>
        <translation>%1, %2 to %3</translation>
    </message>
    <message id="settings_effect_at_once">
        <source></source>
        <translation>at once</translation>
    </message>
    <message id="settings_effect_new_windows">
        <source></source>
        <translation>for new windows</translation>
    </message>
    <message id="settings_effect_next_start">
        <source></source>
        <translation>from the next start</translation>
    </message>
    <message id="settings_note_at_once">
        <source></source>
        <translation>A change holds at once.</translation>
    </message>
    <message id="settings_note_new_windows">
        <source></source>
        <translation>A change holds for windows that are opened from then on.</translation>
    </message>
    <message id="settings_note_next_start">
        <source></source>
        <translation>A change holds from the next start of the program.</translation>
    </message>
    <message id="settings_note_not_stored">
        <source></source>
        <translation>Nothing is stored; the default counts. %1</translation>
    </message>
    <message id="settings_note_record">
        <source></source>
        <translation>The program keeps this itself; it is not changed here.</translation>
    </message>
    <message id="hot_key_given">
        <source></source>
        <translation>On this desktop the key is: %1.</translation>
    </message>
    <message id="hot_key_awaited">
        <source></source>
        <translation>The desktop has not answered yet.</translation>
    </message>
    <message id="hot_key_taken">
        <source></source>
        <translation>It does not work: another program has the key, or the keyboard has no such key.</translation>
    </message>
    <message id="hot_key_refused">
        <source></source>
        <translation>It does not work: the desktop did not give the key. Its own settings for keys may.</translation>
    </message>
    <message id="hot_key_no_way">
        <source></source>
        <translation>It does not work: this desktop gives programs no keys. In its own settings a key can be given to the command “lurkwell --toggle-overlay”.</translation>
    </message>
    <message id="settings_note_no_number">
        <source></source>
        <translation>What is stored is no number and is read as 0. Enter a number, or reset the setting.</translation>
    </message>
    <message id="settings_elements" numerus="yes">
        <source></source>
        <translation>
            <numerusform>1 record</numerusform>
            <numerusform>%n records</numerusform>
        </translation>
    </message>
    <message id="settings_problem_no_number">
        <source></source>
        <translation>“%1” is no number. The setting stays as it was.</translation>
    </message>
    <message id="settings_problem_not_whole">
        <source></source>
        <translation>“%1” is no whole number. The setting stays as it was.</translation>
    </message>
    <message id="settings_problem_range">
        <source></source>
        <translation>“%1” is out of range: it must be from %2 to %3. The setting stays as it was.</translation>
    </message>
    <message id="settings_problem_characters">
        <source></source>
        <translation>The text has characters that settings cannot hold. The setting stays as it was.</translation>
    </message>
    <message id="settings_component_red">
        <source></source>
        <translation>%1 Red.</translation>
    </message>
    <message id="settings_component_green">
        <source></source>
        <translation>%1 Green.</translation>
    </message>
    <message id="settings_component_blue">
        <source></source>
        <translation>%1 Blue.</translation>
    </message>
    <message id="settings_title_red">
        <source></source>
        <translation>%1: red</translation>
    </message>
    <message id="settings_title_green">
        <source></source>
        <translation>%1: green</translation>
    </message>
    <message id="settings_title_blue">
        <source></source>
        <translation>%1: blue</translation>
    </message>
    <message id="settings_title_and_key">
        <source></source>
        <translation>%1, key %2</translation>
    </message>
    <message id="setting_title_GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT">
        <source></source>
        <translation>Unit of memory sizes</translation>
    </message>
    <message id="setting_title_GENERAL_PREFERRED_DATE_DISPLAY_FORMAT">
        <source></source>
        <translation>Format of dates</translation>
    </message>
    <message id="setting_title_GENERAL_ALWAYS_AUTHENTICATE_DAEMON">
        <source></source>
        <translation>Ask for a password at every start</translation>
    </message>
    <message id="setting_title_GENERAL_CONTINUE_WITHOUT_RIGHTS">
        <source></source>
        <translation>Start without an administrator's rights</translation>
    </message>
    <message id="setting_title_FIGURES_FROM_HELPER">
        <source></source>
        <translation>Ask the helper for figures of processes</translation>
    </message>
    <message id="setting_title_PREFERENCES_UI_DEFAULT_TAB">
        <source></source>
        <translation>Page of the preferences</translation>
    </message>
    <message id="setting_title_ABOUT_PANEL_AT_EVERY_START">
        <source></source>
        <translation>About panel at every start</translation>
    </message>
    <message id="hint_details">
        <source></source>
        <translation>A double click on a process opens its details; a right click has what can be done to it.</translation>
    </message>
    <message id="hint_filter">
        <source></source>
        <translation>Ctrl+F finds processes by anything: try user:root cpu&gt;5, or port:443.</translation>
    </message>
    <message id="hint_columns">
        <source></source>
        <translation>A right click on the header adds columns; Ctrl+1 to Ctrl+7 switch between whole sets of them.</translation>
    </message>
    <message id="hint_follow">
        <source></source>
        <translation>Ctrl+N lets a small graph of the selected process float above all windows; it comes back with its program.</translation>
    </message>
    <message id="hint_shapes">
        <source></source>
        <translation>Alt+2 shows the processes as a tree, Alt+3 by application; totals are those of the whole branch.</translation>
    </message>
    <message id="hints_none">
        <source></source>
        <translation>No More Hints</translation>
    </message>
    <message id="hints_close">
        <source></source>
        <translation>Put this hint away</translation>
    </message>
    <message id="setting_title_HINTS_SEEN">
        <source></source>
        <translation>Hints that were put away</translation>
    </message>
    <message id="setting_title_ABOUT_PANEL_SEEN_VERSION">
        <source></source>
        <translation>About panel: version seen</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_INTERVAL">
        <source></source>
        <translation>Table: update interval</translation>
    </message>
    <message id="setting_title_MEM_GRAPH_DRAW_VSZ">
        <source></source>
        <translation>Table: size on memory bars</translation>
    </message>
    <message id="setting_title_MEMORY_BAR_FIGURE">
        <source></source>
        <translation>Table: what memory bars show</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE">
        <source></source>
        <translation>Table: idle task counts as 0</translation>
    </message>
    <message id="setting_title_CPU_SHARE_OF_MACHINE">
        <source></source>
        <translation>Columns: CPU shares are of the machine</translation>
    </message>
    <message id="setting_title_KEEP_COMMAND_LINES">
        <source></source>
        <translation>Output: whole command lines</translation>
    </message>
    <message id="setting_title_MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT">
        <source></source>
        <translation>Table: leave out the shared region</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_PAGEOUT_CRITICAL_FLASH_INTERVAL">
        <source></source>
        <translation>Paging light: time between flashes</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_FILTER">
        <source></source>
        <translation>Paging light: smoothing</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_RED">
        <source></source>
        <translation>Paging light: red from</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_YELLOW">
        <source></source>
        <translation>Paging light: yellow from</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_PROCESS_LIST_WINDOW">
        <source></source>
        <translation>Main window was open</translation>
    </message>
    <message id="setting_title_DETAILS_WINDOW_FRAME">
        <source></source>
        <translation>Details: place and size</translation>
    </message>
    <message id="setting_DETAILS_WINDOW_FRAME">
        <source></source>
        <translation>Place and size of the window with details of a process that was closed last.</translation>
    </message>
    <message id="setting_title_DETAILS_WINDOW_PAGE">
        <source></source>
        <translation>Details: page</translation>
    </message>
    <message id="setting_DETAILS_WINDOW_PAGE">
        <source></source>
        <translation>Page of the window with details that was shown last, counted from 0.</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FRAME">
        <source></source>
        <translation>Main window: place and size</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_ITEMS">
        <source></source>
        <translation>Toolbar: items</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_DISPLAY_MODE">
        <source></source>
        <translation>Toolbar: icons or text</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_SHOWN">
        <source></source>
        <translation>Toolbar: shown</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SORT_COLUMN_INDEX">
        <source></source>
        <translation>Table: sorted column</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SHAPE">
        <source></source>
        <translation>Shape of the process table, standard set</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SCOPE">
        <source></source>
        <translation>Scope of the process table</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FOLLOWS_SELECTION">
        <source></source>
        <translation>Selection stays in place</translation>
    </message>
    <message id="setting_title_WEB_SEARCH_ADDRESS">
        <source></source>
        <translation>Address that the web is searched with</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FOLDED_PROGRAMS">
        <source></source>
        <translation>Folded programs</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_UNFOLDED_APPLICATIONS">
        <source></source>
        <translation>Unfolded applications</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_RECENT_FILTERS">
        <source></source>
        <translation>Last filters</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMNS">
        <source></source>
        <translation>Table: columns</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMN_SETS">
        <source></source>
        <translation>Table: sets of columns</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMN_SET">
        <source></source>
        <translation>Table: set that is shown</translation>
    </message>
    <message id="setting_title_HAS_RUN_TWO_POINT_THREE">
        <source></source>
        <translation>Indicator's column was added</translation>
    </message>
    <message id="setting_title_HAS_RUN_TWO_POINT_FOUR">
        <source></source>
        <translation>Memory bar's column was added</translation>
    </message>
    <message id="setting_title_DEFAULT_X_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Small windows: left edge of the last</translation>
    </message>
    <message id="setting_title_DEFAULT_Y_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Small windows: top edge of the last</translation>
    </message>
    <message id="setting_title_DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA">
        <source></source>
        <translation>Small windows: opacity</translation>
    </message>
    <message id="setting_title_DEFAULT_WATCHDOG_INTERVAL">
        <source></source>
        <translation>Remembered windows: look for their programs every</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_WINDOW_INTERVAL">
        <source></source>
        <translation>CPU history: time between two points</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_USE_RELATIVE">
        <source></source>
        <translation>CPU history: scale to the recent maximum</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS">
        <source></source>
        <translation>CPU history: include descendants</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_DEFAULT_FILTER">
        <source></source>
        <translation>CPU history: smoothing</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_BACKGROUND_RGB">
        <source></source>
        <translation>CPU history: ground</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_FOREGROUND_RGB">
        <source></source>
        <translation>CPU history: CPU usage</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB">
        <source></source>
        <translation>CPU history: own share</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_NAME_RGB">
        <source></source>
        <translation>CPU history: name</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_RGB">
        <source></source>
        <translation>CPU history: label of the fixed scale</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB">
        <source></source>
        <translation>CPU history: label of the fitted scale</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_FLASH_RGB">
        <source></source>
        <translation>CPU history: label of a new scale</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG">
        <source></source>
        <translation>CPU history: ground of the percentage</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG">
        <source></source>
        <translation>CPU history: percentage</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_NAME_ALPHA">
        <source></source>
        <translation>CPU history: opacity of the name</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HIGHWATERMARK_ALPHA">
        <source></source>
        <translation>CPU history: opacity of the scale's label</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_ALPHA">
        <source></source>
        <translation>CPU history: opacity of the percentage</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_ICON_ALPHA">
        <source></source>
        <translation>CPU history: opacity of the icon (of old)</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_ICON_ALPHA_REALLY">
        <source></source>
        <translation>CPU history: opacity of the icon</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW">
        <source></source>
        <translation>CPU history: remembered windows</translation>
    </message>
    <message id="setting_title_DEFAULT_LOGGING_WINDOW_INTERVAL">
        <source></source>
        <translation>Log: look for changes every</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_INCLUDE_TIMESTAMP">
        <source></source>
        <translation>Log: time</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Log: CPU time</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Log: change of the CPU time</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_REAL_MEM_BOOL">
        <source></source>
        <translation>Log: real memory</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_REAL_MEM_BOOL">
        <source></source>
        <translation>Log: change of the real memory</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Log: virtual memory</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Log: change of the virtual memory</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_LOG_TO_FILE">
        <source></source>
        <translation>Log: write to a file, too</translation>
    </message>
    <message id="setting_title_LOGGING_WINDOW">
        <source></source>
        <translation>Log: remembered windows</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_GL_THREAD_INTERVAL">
        <source></source>
        <translation>Animated view: time between two pictures</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_MAINPIC_INTERVAL">
        <source></source>
        <translation>Animated view: look for processes every</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_HELPERPIC_INTERVAL">
        <source></source>
        <translation>Animated view: measure CPU usage every</translation>
    </message>
    <message id="setting_title_QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS">
        <source></source>
        <translation>Full-screen view: join parents and children</translation>
    </message>
    <message id="setting_title_QUINT_FULLSCREEN_WINDOW_ALPHA">
        <source></source>
        <translation>Full-screen view: opacity</translation>
    </message>
    <message id="setting_title_QUINT_FULLSCREEN_UNDERLAY_ALPHA">
        <source></source>
        <translation>Full-screen view: opacity of the backdrop</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_ICON_SCALE_FACTOR">
        <source></source>
        <translation>Animated view: scale of icons</translation>
    </message>
    <message id="setting_title_QUIVA_FULLSCREEN_EXTRA_SCALE_FACTOR">
        <source></source>
        <translation>Full-screen view: further scale of icons</translation>
    </message>
    <message id="setting_title_QUINT_MAX_ITERATIONS_TO_STABILIZE_WHEN_FIRST_SHOWING">
        <source></source>
        <translation>Animated view: steps before the first picture</translation>
    </message>
    <message id="setting_title_QUINT_TARVIK_FACTOR">
        <source></source>
        <translation>Animated view: factor of Lurkwell's own activity</translation>
    </message>
    <message id="setting_title_FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE">
        <source></source>
        <translation>Full-screen view: key</translation>
    </message>
    <message id="setting_title_QUIVA_CHECK_QUARTZ_EXTREME">
        <source></source>
        <translation>Animated view: graphics were checked</translation>
    </message>
    <message id="setting_title_QUIVA_CHECK_COMPOSITOR">
        <source></source>
        <translation>Full-screen view: compositor was checked</translation>
    </message>
    <message id="setting_title_QUIVA_WINDOW_FRAME">
        <source></source>
        <translation>Animated view: place and size</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>Animated view was open</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>Full-screen view was open</translation>
    </message>
    <message id="setting_title_CLASSIC_INITIAL_ASSUMED_CPU_USAGE">
        <source></source>
        <translation>Classic environment: CPU usage at first</translation>
    </message>
    <message id="setting_title_CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER">
        <source></source>
        <translation>Classic environment: weight of a measurement</translation>
    </message>
    <message id="setting_title_CLASSIC_WATCHDOG_INTERVAL">
        <source></source>
        <translation>Classic environment: look for it every</translation>
    </message>
    <message id="setting_title_CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX">
        <source></source>
        <translation>Classic environment: its helper's sleep</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_AND_TESTING">
        <source></source>
        <translation>Machine's figures: show a window</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_SWI_INTERVAL">
        <source></source>
        <translation>Machine's figures: update interval</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_LEFT">
        <source></source>
        <translation>Machine's figures: left edge</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_TOP">
        <source></source>
        <translation>Machine's figures: top edge</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_RIGHT">
        <source></source>
        <translation>Machine's figures: right edge</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_BOTTOM">
        <source></source>
        <translation>Machine's figures: bottom edge</translation>
    </message>
    <message id="setting_GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT">
        <source></source>
        <translation>Unit of memory sizes: 0 automatic, 1 bytes, 2 kilobytes, 3 megabytes, 4 gigabytes.</translation>
    </message>
    <message id="setting_GENERAL_PREFERRED_DATE_DISPLAY_FORMAT">
        <source></source>
        <translation>How dates are written: 0 calendar and clock, 1 seconds since 1970, 2 seconds and microseconds.</translation>
    </message>
    <message id="setting_GENERAL_ALWAYS_AUTHENTICATE_DAEMON">
        <source></source>
        <translation>Ask for an administrator's password at every start, even when the helper has its rights already.</translation>
    </message>
    <message id="setting_GENERAL_CONTINUE_WITHOUT_RIGHTS">
        <source></source>
        <translation>Start without an administrator's rights where the helper has none, and do not ask for them. Set by "Continue Without".</translation>
    </message>
    <message id="setting_FIGURES_FROM_HELPER">
        <source></source>
        <translation>Ask the helper for figures of processes, as on machines where only it may read them. Off, the program reads them itself, which costs much less.</translation>
    </message>
    <message id="setting_PREFERENCES_UI_DEFAULT_TAB">
        <source></source>
        <translation>Page of the preferences window that was shown last, counted from 0.</translation>
    </message>
    <message id="setting_ABOUT_PANEL_AT_EVERY_START">
        <source></source>
        <translation>Show the about panel for three seconds at every start, not only at the first one of a version.</translation>
    </message>
    <message id="setting_HINTS_SEEN">
        <source></source>
        <translation>How many of the hints above the table have been put away; 0 shows them again, one at each start.</translation>
    </message>
    <message id="setting_ABOUT_PANEL_SEEN_VERSION">
        <source></source>
        <translation>Version whose about panel has been shown at the start.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_INTERVAL">
        <source></source>
        <translation>Time between two updates of the main window's table.</translation>
    </message>
    <message id="setting_MEM_GRAPH_DRAW_VSZ">
        <source></source>
        <translation>Write on memory bars the size that their length shows.</translation>
    </message>
    <message id="setting_MEMORY_BAR_FIGURE">
        <source></source>
        <translation>What the length of memory bars shows, and their order when the table is sorted by them: 0 – the virtual size, with the resident one within, 1 – the resident size, 2 – the proportional size, which counts shared memory in parts. Virtual sizes larger than the memory of the machine measure no other bar.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE">
        <source></source>
        <translation>Show the idle task's CPU usage and size as 0, so that its bars do not hide all others.</translation>
    </message>
    <message id="setting_CPU_SHARE_OF_MACHINE">
        <source></source>
        <translation>Show CPU, user and system shares as parts of all processors together instead of one: 100 % is then the whole machine. The column headers say which.</translation>
    </message>
    <message id="setting_KEEP_COMMAND_LINES">
        <source></source>
        <translation>Write and print the arguments of programs, which may hold passwords, and not only the program, wherever a command line is asked for.</translation>
    </message>
    <message id="setting_MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT">
        <source></source>
        <translation>Leave the region that all processes share out of virtual sizes, on machines that have one.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_PAGEOUT_CRITICAL_FLASH_INTERVAL">
        <source></source>
        <translation>Seconds between two changes of the paging light's red, while many pages go out.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_FILTER">
        <source></source>
        <translation>What remains of the paging rate from one update to the next, from 0 to 1.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_RED">
        <source></source>
        <translation>Pages that go out per update from which the paging light is red.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_YELLOW">
        <source></source>
        <translation>Pages that go out per update from which the paging light is yellow.</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_PROCESS_LIST_WINDOW">
        <source></source>
        <translation>Open the main window at the start. The program notes here whether it was open.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FRAME">
        <source></source>
        <translation>Place and size of the main window.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SORT_COLUMN_INDEX">
        <source></source>
        <translation>The remembered column that the table is sorted by, counted from 0.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SHAPE">
        <source></source>
        <translation>How processes stand in the table with the standard set of columns: 0 – a list, 1 – children below their parents, 2 – below their applications.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SCOPE">
        <source></source>
        <translation>Which processes the table shows: 0 – all, 1 – the user’s own, 2 – other users’, 3 – applications, 4 – all but kernel threads, 5 – what has used a processor since the last update.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FOLLOWS_SELECTION">
        <source></source>
        <translation>Whether the selected row stays where it is on the screen while others change places.</translation>
    </message>
    <message id="setting_WEB_SEARCH_ADDRESS">
        <source></source>
        <translation>An address of the web, in which %1 stands for the name of the program. Empty for the usual one.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FOLDED_PROGRAMS">
        <source></source>
        <translation>Programs whose children are folded away in the tree, the latest first, with percent signs in place of other letters.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_UNFOLDED_APPLICATIONS">
        <source></source>
        <translation>Applications, units, containers and programs whose processes are unfolded, the latest first, with percent signs in place of other letters.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_RECENT_FILTERS">
        <source></source>
        <translation>The filters of the process table that were used last, the latest first, with percent signs in place of other letters.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMNS">
        <source></source>
        <translation>Columns of the standard set, with their widths and sort directions.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMN_SETS">
        <source></source>
        <translation>What the sets of columns keep, except the standard one: columns, widths, sort directions, sort column and shape.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMN_SET">
        <source></source>
        <translation>The set of columns that the table shows.</translation>
    </message>
    <message id="setting_HAS_RUN_TWO_POINT_THREE">
        <source></source>
        <translation>Whether the indicator's column was added to the table once.</translation>
    </message>
    <message id="setting_HAS_RUN_TWO_POINT_FOUR">
        <source></source>
        <translation>Whether the memory bar's column was added to the table once.</translation>
    </message>
    <message id="setting_DEFAULT_X_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Left edge of the small window that was opened last; the next is put beside it.</translation>
    </message>
    <message id="setting_DEFAULT_Y_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Top edge of the small window that was opened last; the next is put below it.</translation>
    </message>
    <message id="setting_DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA">
        <source></source>
        <translation>Opacity of small windows, 1 for opaque.</translation>
    </message>
    <message id="setting_DEFAULT_WATCHDOG_INTERVAL">
        <source></source>
        <translation>How often the program looks for new processes whose windows it remembers.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_WINDOW_INTERVAL">
        <source></source>
        <translation>Time between two points of a CPU history.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_USE_RELATIVE">
        <source></source>
        <translation>Scale CPU histories to the recent maximum instead of 100 %.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS">
        <source></source>
        <translation>Show the CPU usage of a process's descendants in its history, too.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_DEFAULT_FILTER">
        <source></source>
        <translation>How much of the point before goes into the next, from 0 to 1.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_BACKGROUND_RGB">
        <source></source>
        <translation>Ground of CPU histories.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_FOREGROUND_RGB">
        <source></source>
        <translation>The process's CPU usage in its history, with that of its descendants while they are included.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB">
        <source></source>
        <translation>The process's own share of the CPU usage in its history while its descendants are included.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_NAME_RGB">
        <source></source>
        <translation>The name in CPU histories.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_RGB">
        <source></source>
        <translation>The scale's label in CPU histories with a fixed scale.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB">
        <source></source>
        <translation>The scale's label in CPU histories that are scaled to the maximum.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_FLASH_RGB">
        <source></source>
        <translation>The scale's label while it flashes after a change.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG">
        <source></source>
        <translation>Ground of the current percentage in CPU histories.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG">
        <source></source>
        <translation>The current percentage in CPU histories.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_NAME_ALPHA">
        <source></source>
        <translation>Opacity of the name in CPU histories.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HIGHWATERMARK_ALPHA">
        <source></source>
        <translation>Opacity of the scale's label in CPU histories.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_ALPHA">
        <source></source>
        <translation>Opacity of the current percentage in CPU histories.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_ICON_ALPHA">
        <source></source>
        <translation>Opacity of the icon in CPU histories, of old; another setting has taken its place.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_ICON_ALPHA_REALLY">
        <source></source>
        <translation>Opacity of the icon in CPU histories.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW">
        <source></source>
        <translation>CPU histories that come back when a process of their name starts.</translation>
    </message>
    <message id="setting_DEFAULT_LOGGING_WINDOW_INTERVAL">
        <source></source>
        <translation>How often a log looks for changes.</translation>
    </message>
    <message id="setting_LOG_WINDOW_INCLUDE_TIMESTAMP">
        <source></source>
        <translation>Logs have a column with the time.</translation>
    </message>
    <message id="setting_LOG_WINDOW_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Logs have a column with the CPU time.</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Logs have a column with the change of the CPU time.</translation>
    </message>
    <message id="setting_LOG_WINDOW_REAL_MEM_BOOL">
        <source></source>
        <translation>Logs have a column with the real memory.</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_REAL_MEM_BOOL">
        <source></source>
        <translation>Logs have a column with the change of the real memory.</translation>
    </message>
    <message id="setting_LOG_WINDOW_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Logs have a column with the virtual memory.</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Logs have a column with the change of the virtual memory.</translation>
    </message>
    <message id="setting_LOG_WINDOW_LOG_TO_FILE">
        <source></source>
        <translation>Logs are written to files, too.</translation>
    </message>
    <message id="setting_LOGGING_WINDOW">
        <source></source>
        <translation>Logs that come back when a process of their name starts.</translation>
    </message>
    <message id="setting_HEARTQUIVA_GL_THREAD_INTERVAL">
        <source></source>
        <translation>Time between two pictures of the animated view. Never longer than the next one.</translation>
    </message>
    <message id="setting_HEARTQUIVA_MAINPIC_INTERVAL">
        <source></source>
        <translation>How often the animated view looks for processes that started or ended. Never longer than the next one.</translation>
    </message>
    <message id="setting_HEARTQUIVA_HELPERPIC_INTERVAL">
        <source></source>
        <translation>How often the animated view measures the CPU usage of its processes.</translation>
    </message>
    <message id="setting_QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS">
        <source></source>
        <translation>Draw lines between parents and children in the full-screen view, too.</translation>
    </message>
    <message id="setting_QUINT_FULLSCREEN_WINDOW_ALPHA">
        <source></source>
        <translation>Opacity of the full-screen view.</translation>
    </message>
    <message id="setting_QUINT_FULLSCREEN_UNDERLAY_ALPHA">
        <source></source>
        <translation>Opacity of the picture behind the processes in the full-screen view.</translation>
    </message>
    <message id="setting_HEARTQUIVA_ICON_SCALE_FACTOR">
        <source></source>
        <translation>Scale of the icons in the animated view: an icon's side, in points, is its process's weight (0.5 at rest, 2.9 at one whole processor) times half of this.</translation>
    </message>
    <message id="setting_QUIVA_FULLSCREEN_EXTRA_SCALE_FACTOR">
        <source></source>
        <translation>How many times larger icons are in the full-screen view.</translation>
    </message>
    <message id="setting_QUINT_MAX_ITERATIONS_TO_STABILIZE_WHEN_FIRST_SHOWING">
        <source></source>
        <translation>Steps of the animated view's layout before it is shown for the first time, at most.</translation>
    </message>
    <message id="setting_QUINT_TARVIK_FACTOR">
        <source></source>
        <translation>How many times its real activity Lurkwell itself and its helper count with in the animated view; as it is without a value.</translation>
    </message>
    <message id="setting_FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE">
        <source></source>
        <translation>Key that turns the full-screen view on and off anywhere on the desktop, by its number: 98, F7, unless something else is stored.</translation>
    </message>
    <message id="setting_QUIVA_CHECK_QUARTZ_EXTREME">
        <source></source>
        <translation>Whether the display's graphics were checked when the animated view was shown for the first time.</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>Open the animated view at the start. The program notes here whether it was open.</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>Open the animated view in full screen at the start. The program notes here whether it was.</translation>
    </message>
    <message id="setting_CLASSIC_INITIAL_ASSUMED_CPU_USAGE">
        <source></source>
        <translation>CPU usage that the Classic environment is assumed to have before it is measured.</translation>
    </message>
    <message id="setting_CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER">
        <source></source>
        <translation>How much a measurement of the Classic environment's CPU usage counts, from 0 to 1.</translation>
    </message>
    <message id="setting_CLASSIC_WATCHDOG_INTERVAL">
        <source></source>
        <translation>How often the program looks whether the Classic environment runs.</translation>
    </message>
    <message id="setting_CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX">
        <source></source>
        <translation>How long the program's helper in the Classic environment sleeps between two looks, in sixtieths of a second.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_AND_TESTING">
        <source></source>
        <translation>Show a small window with the machine's figures, for debugging.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_SWI_INTERVAL">
        <source></source>
        <translation>How often the window with the machine's figures is brought up to date.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_LEFT">
        <source></source>
        <translation>Left edge of the window with the machine's figures.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_TOP">
        <source></source>
        <translation>Top edge of the window with the machine's figures.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_RIGHT">
        <source></source>
        <translation>Right edge of the window with the machine's figures.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_BOTTOM">
        <source></source>
        <translation>Bottom edge of the window with the machine's figures.</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_ITEMS">
        <source></source>
        <translation>Items of the main window's toolbar, in their order, blanks between them.</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_DISPLAY_MODE">
        <source></source>
        <translation>What the main window's toolbar shows: 0 or 1 pictures and names, 2 pictures, 3 names.</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_SHOWN">
        <source></source>
        <translation>Show the main window's toolbar.</translation>
    </message>
    <message id="setting_QUIVA_CHECK_COMPOSITOR">
        <source></source>
        <translation>Whether it was said that the full-screen view needs a desktop with transparency.</translation>
    </message>
    <message id="setting_QUIVA_WINDOW_FRAME">
        <source></source>
        <translation>Place and size of the animated view's window.</translation>
    </message>
    <message id="graph_missing">
        <source></source>
        <translation>not known</translation>
    </message>
    <message id="graph_spoken_range">
        <source></source>
        <translation>between %1 and %2</translation>
    </message>
    <message id="graph_spoken_span">
        <source></source>
        <translation>in %1</translation>
    </message>
    <message id="graph_now">
        <source></source>
        <translation>now</translation>
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
        <translation>&amp;Machine</translation>
    </message>
    <message id="help_menu_window_show_machine">
        <source></source>
        <translation>The machine as a whole: processors, memory, disks, network, and who was busiest</translation>
    </message>
    <message id="fleet_error_unreachable">
        <source></source>
        <translation>The server cannot be reached: %1. Check the address, and that the server runs.</translation>
    </message>
    <message id="fleet_error_timed_out">
        <source></source>
        <translation>The server has given no whole answer within %1 seconds. It may have too much to do; a filter, or a longer time between two questions, makes it less.</translation>
    </message>
    <message id="fleet_error_too_large">
        <source></source>
        <translation>The server's answer goes on beyond %1 MiB, and has been left out. A filter makes it smaller.</translation>
    </message>
    <message id="fleet_error_certificate">
        <source></source>
        <translation>The server has not shown that it is the one it should be: %1. Nothing was sent to it. Use the name that its certificate is for, or have this system trust who issued it.</translation>
    </message>
    <message id="fleet_error_no_encryption">
        <source></source>
        <translation>This system's Qt has no TLS, so that no https address can be asked. Install its OpenSSL part.</translation>
    </message>
    <message id="fleet_error_credentials">
        <source></source>
        <translation>The server wants to know who asks, or does not let this one ask (%1). “Sign In…” takes a name and a password, or a token.</translation>
    </message>
    <message id="fleet_error_redirected">
        <source></source>
        <translation>The server sends all questions on to another one, %1, which has not been asked. Open that address if it is the right one.</translation>
    </message>
    <message id="fleet_error_not_prometheus">
        <source></source>
        <translation>What answers at this address is no Prometheus: %1. Check the port and the path.</translation>
    </message>
    <message id="fleet_error_server">
        <source></source>
        <translation>The server has failed: %1. It is asked again in a while.</translation>
    </message>
    <message id="fleet_error_query">
        <source></source>
        <translation>The server has refused the question: %1.</translation>
    </message>
    <message id="fleet_address_empty">
        <source></source>
        <translation>Type the address of a Prometheus server, such as http://monitor:9090.</translation>
    </message>
    <message id="fleet_address_has_password">
        <source></source>
        <translation>An address has no name and no password in it, as it is kept and shown. You are asked for them when the server wants them.</translation>
    </message>
    <message id="fleet_address_wrong">
        <source></source>
        <translation>“%1” is no address such as http://monitor:9090.</translation>
    </message>
    <message id="fleet_address_scheme">
        <source></source>
        <translation>Servers are asked over http or https, not over “%1”.</translation>
    </message>
    <message id="fleet_credentials_unreadable">
        <source></source>
        <translation>%1 cannot be read: %2.</translation>
    </message>
    <message id="fleet_credentials_open">
        <source></source>
        <translation>Others may read or change %1, too. Take that right away (chmod 600), and use a new password if it was a secret.</translation>
    </message>
    <message id="fleet_credentials_no_line">
        <source></source>
        <translation>%1 is no file of one line, NAME:PASSWORD or a token.</translation>
    </message>
    <message id="fleet_filter_of_processes">
        <source></source>
        <translation>“%1” is known of single processes alone, not of the sums that the server has.</translation>
    </message>
    <message id="fleet_filter_no_text">
        <source></source>
        <translation>“%1” is a number: compare it, as in cpu&gt;50.</translation>
    </message>
    <message id="fleet_filter_either">
        <source></source>
        <translation>The server can be asked for one of several texts of a kind, as in “a | b”, but not for one of unlike conditions.</translation>
    </message>
    <message id="fleet_filter_two_kinds">
        <source></source>
        <translation>Each group is of one kind alone, so there is none of both: %1.</translation>
    </message>
    <message id="fleet_filter_not_groups">
        <source></source>
        <translation>Machines without such a group cannot be asked for.</translation>
    </message>
    <message id="fleet_filter_not_here">
        <source></source>
        <translation>“%1” is not known here.</translation>
    </message>
    <message id="fleet_filter_one_number">
        <source></source>
        <translation>“%1” is compared with one number.</translation>
    </message>
    <message id="fleet_filter_order">
        <source></source>
        <translation>“%1” is compared with &lt; or &gt;, as fractions are hardly ever equal.</translation>
    </message>
    <message id="fleet_filter_too_long">
        <source></source>
        <translation>The filter is too long.</translation>
    </message>
    <message id="fleet_cpu">
        <source></source>
        <translation>CPU %</translation>
    </message>
    <message id="fleet_cpu_tip">
        <source></source>
        <translation>Share of the processors' time: of a machine of all of them, of a group of one, so that 250 are two and a half. Over the server's last two visits.</translation>
    </message>
    <message id="fleet_memory">
        <source></source>
        <translation>Memory</translation>
    </message>
    <message id="fleet_memory_tip">
        <source></source>
        <translation>Of a machine, memory that is not available; of a group, the resident memory of its processes.</translation>
    </message>
    <message id="fleet_memory_all">
        <source></source>
        <translation>Memory, all</translation>
    </message>
    <message id="fleet_memory_all_tip">
        <source></source>
        <translation>All memory of the machine.</translation>
    </message>
    <message id="fleet_swap">
        <source></source>
        <translation>Swap</translation>
    </message>
    <message id="fleet_swap_tip">
        <source></source>
        <translation>Memory that is swapped out.</translation>
    </message>
    <message id="fleet_load">
        <source></source>
        <translation>Load</translation>
    </message>
    <message id="fleet_load_tip">
        <source></source>
        <translation>Load over one minute.</translation>
    </message>
    <message id="fleet_disk">
        <source></source>
        <translation>Disk</translation>
    </message>
    <message id="fleet_disk_tip">
        <source></source>
        <translation>Bytes read from and written to disks, by second.</translation>
    </message>
    <message id="fleet_network">
        <source></source>
        <translation>Network</translation>
    </message>
    <message id="fleet_network_tip">
        <source></source>
        <translation>Bytes received and sent, by second; without the machine's talk with itself.</translation>
    </message>
    <message id="fleet_waits_cpu">
        <source></source>
        <translation>Waits: CPU %</translation>
    </message>
    <message id="fleet_waits_cpu_tip">
        <source></source>
        <translation>Share of time in which something waited for a processor.</translation>
    </message>
    <message id="fleet_waits_memory">
        <source></source>
        <translation>Waits: memory %</translation>
    </message>
    <message id="fleet_waits_memory_tip">
        <source></source>
        <translation>Share of time in which something waited for memory.</translation>
    </message>
    <message id="fleet_waits_disk">
        <source></source>
        <translation>Waits: disk %</translation>
    </message>
    <message id="fleet_waits_disk_tip">
        <source></source>
        <translation>Share of time in which something waited for disks.</translation>
    </message>
    <message id="fleet_processes">
        <source></source>
        <translation>Processes</translation>
    </message>
    <message id="fleet_processes_tip">
        <source></source>
        <translation>How many processes there are.</translation>
    </message>
    <message id="fleet_threads">
        <source></source>
        <translation>Threads</translation>
    </message>
    <message id="fleet_threads_tip">
        <source></source>
        <translation>How many threads there are.</translation>
    </message>
    <message id="fleet_machines">
        <source></source>
        <translation>Machines</translation>
    </message>
    <message id="fleet_machines_tip">
        <source></source>
        <translation>On how many machines there are processes of the group.</translation>
    </message>
    <message id="fleet_oldest">
        <source></source>
        <translation>Runs for</translation>
    </message>
    <message id="fleet_oldest_tip">
        <source></source>
        <translation>How long ago the machine, or the oldest process of the group, was started.</translation>
    </message>
    <message id="fleet_seen">
        <source></source>
        <translation>Last seen</translation>
    </message>
    <message id="fleet_seen_tip">
        <source></source>
        <translation>How long ago the server heard of the machine. A machine that it does not reach is shown as down.</translation>
    </message>
    <message id="fleet_up">
        <source></source>
        <translation>Up</translation>
    </message>
    <message id="fleet_up_tip">
        <source></source>
        <translation>Whether the server reaches the machine.</translation>
    </message>
    <message id="fleet_read">
        <source></source>
        <translation>Read</translation>
    </message>
    <message id="fleet_read_tip">
        <source></source>
        <translation>Bytes read from disks, by second.</translation>
    </message>
    <message id="fleet_written">
        <source></source>
        <translation>Written</translation>
    </message>
    <message id="fleet_written_tip">
        <source></source>
        <translation>Bytes written to disks, by second.</translation>
    </message>
    <message id="fleet_received">
        <source></source>
        <translation>Received</translation>
    </message>
    <message id="fleet_received_tip">
        <source></source>
        <translation>Bytes received, by second.</translation>
    </message>
    <message id="fleet_sent">
        <source></source>
        <translation>Sent</translation>
    </message>
    <message id="fleet_sent_tip">
        <source></source>
        <translation>Bytes sent, by second.</translation>
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
        <translation>Fleet of %1</translation>
    </message>
    <message id="fleet_machine">
        <source></source>
        <translation>Machine</translation>
    </message>
    <message id="fleet_group">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="fleet_down">
        <source></source>
        <translation>down</translation>
    </message>
    <message id="fleet_down_for">
        <source></source>
        <translation>down, %1</translation>
    </message>
    <message id="fleet_show_machines">
        <source></source>
        <translation>Machines</translation>
    </message>
    <message id="fleet_show_program">
        <source></source>
        <translation>Programs</translation>
    </message>
    <message id="fleet_show_unit">
        <source></source>
        <translation>Units</translation>
    </message>
    <message id="fleet_show_container">
        <source></source>
        <translation>Containers</translation>
    </message>
    <message id="fleet_show_user">
        <source></source>
        <translation>Users</translation>
    </message>
    <message id="fleet_back">
        <source></source>
        <translation>Back</translation>
    </message>
    <message id="fleet_back_tip">
        <source></source>
        <translation>What was looked at before (Alt+Left)</translation>
    </message>
    <message id="fleet_on">
        <source></source>
        <translation>on %1</translation>
    </message>
    <message id="fleet_with">
        <source></source>
        <translation>with %1</translation>
    </message>
    <message id="fleet_filter">
        <source></source>
        <translation>Filter, asked of the server</translation>
    </message>
    <message id="fleet_filter_tip">
        <source></source>
        <translation>As in the table of processes: web, name:postgres, machine:web-1, unit:nginx, user:root, cpu&gt;50, mem&gt;4G, processes&gt;100. The server looks, so that it may have any number of machines.</translation>
    </message>
    <message id="fleet_interval">
        <source></source>
        <translation>How often the server is asked</translation>
    </message>
    <message id="fleet_interval_never">
        <source></source>
        <translation>Not by itself</translation>
    </message>
    <message id="fleet_interval_seconds">
        <source></source>
        <translation>Every %1 s</translation>
    </message>
    <message id="fleet_interval_minutes">
        <source></source>
        <translation>Every %1 min</translation>
    </message>
    <message id="fleet_sign_in">
        <source></source>
        <translation>Sign In…</translation>
    </message>
    <message id="fleet_again">
        <source></source>
        <translation>Try Again</translation>
    </message>
    <message id="fleet_open_machine">
        <source></source>
        <translation>Show What Runs on It</translation>
    </message>
    <message id="fleet_open_group">
        <source></source>
        <translation>Show Its Machines</translation>
    </message>
    <message id="fleet_ssh">
        <source></source>
        <translation>Open ssh in a Terminal</translation>
    </message>
    <message id="fleet_copy">
        <source></source>
        <translation>Copy</translation>
    </message>
    <message id="fleet_ssh_no_host">
        <source></source>
        <translation>“%1” is no name of a host that ssh could go to.</translation>
    </message>
    <message id="fleet_ssh_no_ssh">
        <source></source>
        <translation>There is no ssh on this machine. Install the OpenSSH client.</translation>
    </message>
    <message id="fleet_ssh_no_terminal">
        <source></source>
        <translation>There is no terminal on this machine that is known. Install one, such as xterm, or name yours in the variable TERMINAL.</translation>
    </message>
    <message id="fleet_ssh_failed">
        <source></source>
        <translation>%1 cannot be started.</translation>
    </message>
    <message id="fleet_old_figures">
        <source></source>
        <translation>The figures below are those of %1.</translation>
    </message>
    <message id="fleet_count_machines" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n machine</numerusform>
            <numerusform>%n machines</numerusform>
        </translation>
    </message>
    <message id="fleet_count_groups" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n row</numerusform>
            <numerusform>%n rows</numerusform>
        </translation>
    </message>
    <message id="fleet_count_down" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n down</numerusform>
            <numerusform>%n down</numerusform>
        </translation>
    </message>
    <message id="fleet_shown_most" numerus="yes">
        <source></source>
        <translation>
            <numerusform>the %n with the highest %1 is shown; a filter finds others</numerusform>
            <numerusform>the %n with the highest %1 are shown; a filter finds others</numerusform>
        </translation>
    </message>
    <message id="fleet_shown_least" numerus="yes">
        <source></source>
        <translation>
            <numerusform>the %n with the lowest %1 is shown; a filter finds others</numerusform>
            <numerusform>the %n with the lowest %1 are shown; a filter finds others</numerusform>
        </translation>
    </message>
    <message id="fleet_as_of">
        <source></source>
        <translation>as of %1</translation>
    </message>
    <message id="fleet_left_out" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n value of the answer made no sense and is left out</numerusform>
            <numerusform>%n values of the answer made no sense and are left out</numerusform>
        </translation>
    </message>
    <message id="fleet_asking">
        <source></source>
        <translation>Asking the server…</translation>
    </message>
    <message id="fleet_nothing_known">
        <source></source>
        <translation>Nothing is known yet.</translation>
    </message>
    <message id="fleet_nothing_fulfils">
        <source></source>
        <translation>Nothing fulfils the filter.</translation>
    </message>
    <message id="fleet_nothing_there">
        <source></source>
        <translation>The server knows no figures of this kind. Machines are seen once the server scrapes their exporter, lurkwell-export.</translation>
    </message>
    <message id="fleet_span">
        <source></source>
        <translation>History:</translation>
    </message>
    <message id="fleet_span_hour">
        <source></source>
        <translation>1 hour</translation>
    </message>
    <message id="fleet_span_6_hours">
        <source></source>
        <translation>6 hours</translation>
    </message>
    <message id="fleet_span_day">
        <source></source>
        <translation>1 day</translation>
    </message>
    <message id="fleet_span_week">
        <source></source>
        <translation>7 days</translation>
    </message>
    <message id="fleet_no_row">
        <source></source>
        <translation>Select a row to see its history.</translation>
    </message>
    <message id="fleet_no_history">
        <source></source>
        <translation>The server has no figures of that time.</translation>
    </message>
    <message id="fleet_graph_cpu_machine">
        <source></source>
        <translation>CPU, of all processors</translation>
    </message>
    <message id="fleet_graph_cpu">
        <source></source>
        <translation>CPU, of one processor</translation>
    </message>
    <message id="fleet_graph_waits">
        <source></source>
        <translation>Waits</translation>
    </message>
    <message id="fleet_graph_traffic">
        <source></source>
        <translation>Disk and network</translation>
    </message>
    <message id="fleet_memory_series">
        <source></source>
        <translation>Used</translation>
    </message>
    <message id="fleet_memory_all_series">
        <source></source>
        <translation>All</translation>
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
        <translation>Memory</translation>
    </message>
    <message id="fleet_waits_disk_series">
        <source></source>
        <translation>Disk</translation>
    </message>
    <message id="fleet_read_series">
        <source></source>
        <translation>Read</translation>
    </message>
    <message id="fleet_written_series">
        <source></source>
        <translation>Written</translation>
    </message>
    <message id="fleet_received_series">
        <source></source>
        <translation>Received</translation>
    </message>
    <message id="fleet_sent_series">
        <source></source>
        <translation>Sent</translation>
    </message>
    <message id="fleet_open_title">
        <source></source>
        <translation>Open a Fleet</translation>
    </message>
    <message id="fleet_open_words">
        <source></source>
        <translation>The address of a Prometheus server that scrapes the exporters of your machines:</translation>
    </message>
    <message id="fleet_address">
        <source></source>
        <translation>Address</translation>
    </message>
    <message id="fleet_sign_in_title">
        <source></source>
        <translation>Sign In at %1</translation>
    </message>
    <message id="fleet_sign_in_words">
        <source></source>
        <translation>A name and a password, a token, or a file with either. They are sent to this server alone, and kept until the window is closed.</translation>
    </message>
    <message id="fleet_sign_in_in_clear">
        <source></source>
        <translation>A name and a password, a token, or a file with either. They are kept until the window is closed. This address is not encrypted: everybody on the way can read them. An https address is better.</translation>
    </message>
    <message id="fleet_sign_in_name">
        <source></source>
        <translation>&amp;Name:</translation>
    </message>
    <message id="fleet_sign_in_password">
        <source></source>
        <translation>&amp;Password:</translation>
    </message>
    <message id="fleet_sign_in_token">
        <source></source>
        <translation>&amp;Token:</translation>
    </message>
    <message id="fleet_sign_in_file">
        <source></source>
        <translation>&amp;File:</translation>
    </message>
    <message id="fleet_sign_in_choose">
        <source></source>
        <translation>&amp;Choose…</translation>
    </message>
    <message id="fleet_sign_in_nothing">
        <source></source>
        <translation>Type a name, a token or a file's path.</translation>
    </message>
    <message id="fleet_sign_in_wrong">
        <source></source>
        <translation>That cannot be sent: a name has no colon, and a token no blanks and no letters beyond ASCII.</translation>
    </message>
    <message id="fleet_failed">
        <source></source>
        <translation>The fleet cannot be opened</translation>
    </message>
    <message id="menu_file_open_fleet">
        <source></source>
        <translation>Open &amp;Fleet…</translation>
    </message>
    <message id="help_menu_file_open_fleet">
        <source></source>
        <translation>look at all machines that a Prometheus server knows, in a window of its own</translation>
    </message>
    <message id="setting_title_FLEET_WINDOW_FRAME">
        <source></source>
        <translation>Fleet window's place</translation>
    </message>
    <message id="setting_FLEET_WINDOW_FRAME">
        <source></source>
        <translation>Where the window on a fleet was last, with its size.</translation>
    </message>
    <message id="setting_title_FLEET_WINDOW_SECONDS">
        <source></source>
        <translation>Fleet window's interval</translation>
    </message>
    <message id="setting_FLEET_WINDOW_SECONDS">
        <source></source>
        <translation>How many seconds the window on a fleet waits before it asks its server again; 0 when it asks only when told.</translation>
    </message>
    <message id="setting_title_FLEET_RECENT_ADDRESSES">
        <source></source>
        <translation>Last fleets</translation>
    </message>
    <message id="setting_FLEET_RECENT_ADDRESSES">
        <source></source>
        <translation>The addresses of the servers that were opened last, the latest first, with percent signs in place of other letters. Names and passwords are not among them.</translation>
    </message>
    <message id="machine_title">
        <source></source>
        <translation>Machine</translation>
    </message>
    <message id="machine_span">
        <source></source>
        <translation>Show the last</translation>
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
        <translation>This machine does not tell how busy its processors are.</translation>
    </message>
    <message id="machine_processors">
        <source></source>
        <translation>Processors</translation>
    </message>
    <message id="machine_processor">
        <source></source>
        <translation>%1: %2</translation>
    </message>
    <message id="machine_memory">
        <source></source>
        <translation>Memory</translation>
    </message>
    <message id="machine_no_memory">
        <source></source>
        <translation>This machine does not tell its memory.</translation>
    </message>
    <message id="machine_swap">
        <source></source>
        <translation>Swap</translation>
    </message>
    <message id="machine_no_swap">
        <source></source>
        <translation>This machine has no swap space.</translation>
    </message>
    <message id="machine_used_of">
        <source></source>
        <translation>of %1, used</translation>
    </message>
    <message id="machine_disks">
        <source></source>
        <translation>Disks</translation>
    </message>
    <message id="machine_no_disks">
        <source></source>
        <translation>No figures of disks yet, or there are no disks.</translation>
    </message>
    <message id="machine_network">
        <source></source>
        <translation>Network</translation>
    </message>
    <message id="machine_no_network">
        <source></source>
        <translation>No figures of the network yet, or there is no network.</translation>
    </message>
    <message id="machine_all_devices">
        <source></source>
        <translation>All</translation>
    </message>
    <message id="machine_read">
        <source></source>
        <translation>read</translation>
    </message>
    <message id="machine_written">
        <source></source>
        <translation>written</translation>
    </message>
    <message id="machine_received">
        <source></source>
        <translation>received</translation>
    </message>
    <message id="machine_sent">
        <source></source>
        <translation>sent</translation>
    </message>
    <message id="machine_pressure">
        <source></source>
        <translation>Pressure</translation>
    </message>
    <message id="machine_no_pressure">
        <source></source>
        <translation>This kernel does not tell for how long processes had to wait.</translation>
    </message>
    <message id="machine_waits_processor">
        <source></source>
        <translation>some waited for CPU</translation>
    </message>
    <message id="machine_waits_memory">
        <source></source>
        <translation>for memory</translation>
    </message>
    <message id="machine_waits_disk">
        <source></source>
        <translation>for disks</translation>
    </message>
    <message id="machine_stalled_memory">
        <source></source>
        <translation>all waited for memory</translation>
    </message>
    <message id="machine_stalled_disk">
        <source></source>
        <translation>for disks</translation>
    </message>
    <message id="machine_graphics">
        <source></source>
        <translation>Graphics</translation>
    </message>
    <message id="machine_no_graphics">
        <source></source>
        <translation>No graphics device tells how busy it is.</translation>
    </message>
    <message id="machine_busiest_now">
        <source></source>
        <translation>Busiest now</translation>
    </message>
    <message id="machine_busiest_at">
        <source></source>
        <translation>Busiest at %1</translation>
    </message>
    <message id="machine_back_to_now">
        <source></source>
        <translation>&amp;Now</translation>
    </message>
    <message id="machine_note">
        <source></source>
        <translation>A click on a graph shows who was busiest then; one on a name shows it in the table of processes.</translation>
    </message>
    <message id="machine_has_ended">
        <source></source>
        <translation>Process %1 has ended.</translation>
    </message>
    <message id="machine_not_in_table">
        <source></source>
        <translation>Process %1 is not in the table: a filter may hide it.</translation>
    </message>
    <message id="machine_ended">
        <source></source>
        <translation>%1 (ended)</translation>
    </message>
    <message id="machine_name">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="machine_pid">
        <source></source>
        <translation>Process ID</translation>
    </message>
    <message id="machine_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="machine_load">
        <source></source>
        <translation>Load: %1, %2, %3 over 1, 5 and 15 minutes</translation>
    </message>
    <message id="machine_no_load">
        <source></source>
        <translation>Load: not told by this machine</translation>
    </message>
    <message id="machine_frequency">
        <source></source>
        <translation>Frequency: %1 GHz (%2 to %3)</translation>
    </message>
    <message id="machine_no_frequency">
        <source></source>
        <translation>Frequency: not told by this machine</translation>
    </message>
    <message id="machine_no_temperature">
        <source></source>
        <translation>Temperature: not told by this machine</translation>
    </message>
    <message id="machine_more_temperatures" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n more sensor is cooler</numerusform>
            <numerusform>%n more sensors are cooler</numerusform>
        </translation>
    </message>
    <message id="machine_limits">
        <source></source>
        <translation>This container may use %1.</translation>
    </message>
    <message id="machine_limit_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n processor</numerusform>
            <numerusform>%n processors</numerusform>
        </translation>
    </message>
    <message id="machine_limit_memory">
        <source></source>
        <translation>%1 of memory</translation>
    </message>
    <message id="machine_limit_memory_used">
        <source></source>
        <translation>%1 of memory (%2 taken)</translation>
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
        <translation>Icon in the tray</translation>
    </message>
    <message id="setting_title_ACCESSIBLE_QUIET">
        <source></source>
        <translation>Screen reader: tell no changes unasked</translation>
    </message>
    <message id="setting_title_REDUCE_MOTION">
        <source></source>
        <translation>Less motion</translation>
    </message>
    <message id="setting_title_MACHINE_HISTORY_ALWAYS">
        <source></source>
        <translation>Machine's history from the start</translation>
    </message>
    <message id="setting_TRAY_ICON">
        <source></source>
        <translation>Show an icon with a small graph of the processors in the desktop's tray; its tip and its menu have the busiest three processes. While it is there the program goes on when its last window is closed.</translation>
    </message>
    <message id="setting_ACCESSIBLE_QUIET">
        <source></source>
        <translation>A screen reader hears what you move to and ask for, and nothing of what updates change. Without this the row that has the focus is told again every few seconds while its figures change.</translation>
    </message>
    <message id="setting_REDUCE_MOTION">
        <source></source>
        <translation>Nothing moves, slides or blinks by itself: the animated view stands still once its processes have their places, and changes of size come at once. The same counts while the desktop is set to less motion or no animations.</translation>
    </message>
    <message id="setting_MACHINE_HISTORY_ALWAYS">
        <source></source>
        <translation>Keep what the machine does, and who is busiest, for an hour from the start of the program on; else from when the machine's window is first opened.</translation>
    </message>
    <message id="setting_title_MACHINE_WINDOW_FRAME">
        <source></source>
        <translation>Machine's window: place and size</translation>
    </message>
    <message id="setting_MACHINE_WINDOW_FRAME">
        <source></source>
        <translation>Place and size of the machine's window.</translation>
    </message>
    <message id="setting_title_MACHINE_WINDOW_MINUTES">
        <source></source>
        <translation>Machine's window: minutes shown</translation>
    </message>
    <message id="setting_MACHINE_WINDOW_MINUTES">
        <source></source>
        <translation>How many minutes the machine's window shows. The program notes here what was chosen there.</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_MACHINE_WINDOW">
        <source></source>
        <translation>Machine's window was open</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_MACHINE_WINDOW">
        <source></source>
        <translation>Open the machine's window at the start. The program notes here whether it was open.</translation>
    </message>
    <message id="alert_ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="helper_refused_title">
        <source></source>
        <translation>Lurkwell must be authenticated in order to run on this computer with an administrator password.</translation>
    </message>
    <message id="helper_refused_text">
        <source></source>
        <translation>Without an administrator's rights Lurkwell shows every process and acts on your own. It will not ask at the next start; the status line says how to be asked.</translation>
    </message>
    <message id="helper_refused_again">
        <source></source>
        <translation>Authenticate Again</translation>
    </message>
    <message id="helper_refused_quit">
        <source></source>
        <translation>Quit Lurkwell</translation>
    </message>
    <message id="helper_refused_without">
        <source></source>
        <translation>Continue Without</translation>
    </message>
    <message id="helper_not_wanted">
        <source></source>
        <translation>Lurkwell was started without an administrator's rights</translation>
    </message>
    <message id="helper_refused_by_user">
        <source></source>
        <translation>Lurkwell goes on without an administrator's rights, as you chose</translation>
    </message>
    <message id="shortcut_overlay">
        <source></source>
        <translation>Animated view over the screen</translation>
    </message>
    <message id="notifications_no_bus">
        <source></source>
        <translation>there is no session bus</translation>
    </message>
    <message id="notifications_too_many">
        <source></source>
        <translation>too many at a time</translation>
    </message>
</context>
</TS>
