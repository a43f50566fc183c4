<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="meta_pid">
        <source></source>
        <translation>Prozess-ID</translation>
    </message>
    <message id="meta_pid_tip">
        <source></source>
        <translation>Die Nummer des Prozesses. Die Prozesse des Kernels zählen ab 1; 0 steht für den Leerlaufprozess, und Anwendungen der Classic-Umgebung haben künstliche Nummern unter -1.</translation>
    </message>
    <message id="meta_name">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="meta_name_tip">
        <source></source>
        <translation>Der Name der Anwendung, wenn der Prozess eine Anwendung ist, sonst der Name des Befehls, ungekürzt, soweit er bekannt ist.</translation>
    </message>
    <message id="meta_active_time">
        <source></source>
        <translation>CPU-Zeit</translation>
    </message>
    <message id="meta_active_time_tip">
        <source></source>
        <translation>Die CPU-Zeit, die der Prozess seit seinem Start verbraucht hat, Benutzer- und Systemzeit zusammen, in Sekunden. Bei Anwendungen der Classic-Umgebung ist sie geschätzt.</translation>
    </message>
    <message id="meta_kind">
        <source></source>
        <translation>Art</translation>
    </message>
    <message id="meta_kind_tip">
        <source></source>
        <translation>Worum es sich handelt: eine Anwendung auf der Arbeitsfläche, eine der Classic-Umgebung, ein Thread des Kernels, ein Zombie (beendet, aber der Elternprozess hat den Rückgabewert noch nicht abgefragt) oder ein sonstiger Prozess.</translation>
    </message>
    <message id="meta_psn">
        <source></source>
        <translation>Seriennummer</translation>
    </message>
    <message id="meta_psn_tip">
        <source></source>
        <translation>Die Seriennummer der Anwendung auf der Arbeitsfläche, als zwei hexadezimale Wörter. Bei einem Prozess, der keine Anwendung ist, sind beide null.</translation>
    </message>
    <message id="carbonpsn_name">
        <source></source>
        <translation>Anwendungsname</translation>
    </message>
    <message id="carbonpsn_name_tip">
        <source></source>
        <translation>Der Name der Anwendung, wie ihn die Arbeitsumgebung kennt. Leer bei einem Prozess, der keine Anwendung ist.</translation>
    </message>
    <message id="carbonpsn_type">
        <source></source>
        <translation>Anwendungstyp</translation>
    </message>
    <message id="carbonpsn_type_tip">
        <source></source>
        <translation>Der vierstellige Typ der Anwendung, APPL bei gewöhnlichen. Von der Arbeitsumgebung.</translation>
    </message>
    <message id="carbonpsn_signature">
        <source></source>
        <translation>Anwendungssignatur</translation>
    </message>
    <message id="carbonpsn_signature_tip">
        <source></source>
        <translation>Vier Zeichen, die Anwendungen unterscheiden: der Anfang des Namens des Desktop-Eintrags oder der Fensterklasse. Von der Arbeitsumgebung.</translation>
    </message>
    <message id="carbonpsn_mode">
        <source></source>
        <translation>Anwendungsmodus</translation>
    </message>
    <message id="carbonpsn_mode_tip">
        <source></source>
        <translation>Die Modus-Flags der Anwendung, wie die Arbeitsumgebung sie meldet, als hexadezimale Maske.</translation>
    </message>
    <message id="classicpsn_name">
        <source></source>
        <translation>Classic-Name</translation>
    </message>
    <message id="classicpsn_name_tip">
        <source></source>
        <translation>Der Name der Anwendung in der Classic-Umgebung. Nur Anwendungen dieser Umgebung haben einen.</translation>
    </message>
    <message id="classicpsn_type">
        <source></source>
        <translation>Classic-Typ</translation>
    </message>
    <message id="classicpsn_type_tip">
        <source></source>
        <translation>Der vierstellige Dateityp der Anwendung in der Classic-Umgebung.</translation>
    </message>
    <message id="classicpsn_signature">
        <source></source>
        <translation>Classic-Signatur</translation>
    </message>
    <message id="classicpsn_signature_tip">
        <source></source>
        <translation>Der vierstellige Erzeugercode der Anwendung in der Classic-Umgebung.</translation>
    </message>
    <message id="classicpsn_mode">
        <source></source>
        <translation>Classic-Modus</translation>
    </message>
    <message id="classicpsn_mode_tip">
        <source></source>
        <translation>Die Modus-Flags der Anwendung in der Classic-Umgebung, als hexadezimale Maske.</translation>
    </message>
    <message id="classicpsn_location">
        <source></source>
        <translation>Classic-Adresse</translation>
    </message>
    <message id="classicpsn_location_tip">
        <source></source>
        <translation>Die Adresse, an der die Speicherpartition der Anwendung in der Classic-Umgebung beginnt, hexadezimal.</translation>
    </message>
    <message id="classicpsn_size">
        <source></source>
        <translation>Classic-Größe</translation>
    </message>
    <message id="classicpsn_size_tip">
        <source></source>
        <translation>Die Größe der Speicherpartition der Anwendung in der Classic-Umgebung, in Byte.</translation>
    </message>
    <message id="classicpsn_active_time">
        <source></source>
        <translation>Classic-Aktivzeit</translation>
    </message>
    <message id="classicpsn_active_time_tip">
        <source></source>
        <translation>Wie lange die Anwendung in der Classic-Umgebung aktiv war, in Ticks von einer Sechzigstelsekunde.</translation>
    </message>
    <message id="classicpsn_free_mem">
        <source></source>
        <translation>Classic: freier Speicher</translation>
    </message>
    <message id="classicpsn_free_mem_tip">
        <source></source>
        <translation>Was von der Speicherpartition der Anwendung in der Classic-Umgebung noch frei ist, in Byte.</translation>
    </message>
    <message id="pid_p_comm">
        <source></source>
        <translation>Befehlsname</translation>
    </message>
    <message id="pid_p_comm_tip">
        <source></source>
        <translation>Der Name des Befehls, bis zu 16 Zeichen. Der Kernel bewahrt 15 davon auf; ein längerer Name wird aus der Befehlszeile oder der Programmdatei ergänzt.</translation>
    </message>
    <message id="pid_p_priority">
        <source></source>
        <translation>Priorität</translation>
    </message>
    <message id="pid_p_priority_tip">
        <source></source>
        <translation>Die Scheduling-Priorität des Kernels; kleinere Zahlen kommen zuerst an die Reihe. Gewöhnliche Prozesse haben 20 plus ihren Nice-Wert, Echtzeitprozesse liegen unter null. Aus /proc/PID/stat.</translation>
    </message>
    <message id="pid_parent_pid">
        <source></source>
        <translation>Eltern-ID</translation>
    </message>
    <message id="pid_parent_pid_tip">
        <source></source>
        <translation>Die Nummer des Prozesses, der diesen gestartet oder übernommen hat.</translation>
    </message>
    <message id="pid_p_nice">
        <source></source>
        <translation>Nice-Wert</translation>
    </message>
    <message id="pid_p_nice_tip">
        <source></source>
        <translation>Wie sehr der Prozess anderen den Vortritt lässt, von -20 (am wenigsten) bis 19 (am meisten). Aus /proc/PID/stat.</translation>
    </message>
    <message id="pid_p_starttime">
        <source></source>
        <translation>Startzeit</translation>
    </message>
    <message id="pid_p_starttime_tip">
        <source></source>
        <translation>Datum und Uhrzeit des Prozessstarts. Aus /proc/PID/stat.</translation>
    </message>
    <message id="pid_user_time">
        <source></source>
        <translation>Benutzerzeit</translation>
    </message>
    <message id="pid_user_time_tip">
        <source></source>
        <translation>CPU-Zeit, die der Code des Programms selbst verbraucht hat, alle Threads zusammen, in Sekunden. Aus /proc/PID/stat.</translation>
    </message>
    <message id="pid_system_time">
        <source></source>
        <translation>Systemzeit</translation>
    </message>
    <message id="pid_system_time_tip">
        <source></source>
        <translation>CPU-Zeit, die der Kernel im Auftrag des Prozesses verbraucht hat, alle Threads zusammen, in Sekunden. Aus /proc/PID/stat.</translation>
    </message>
    <message id="pid_vsz">
        <source></source>
        <translation>Virtuelle Größe</translation>
    </message>
    <message id="pid_vsz_tip">
        <source></source>
        <translation>Die Größe des gesamten Speichers, den der Prozess eingeblendet hat, ob benutzt oder nicht, in Byte. Aus /proc/PID/stat.</translation>
    </message>
    <message id="pid_rsz">
        <source></source>
        <translation>Residente Größe</translation>
    </message>
    <message id="pid_rsz_tip">
        <source></source>
        <translation>Wie viel vom Speicher des Prozesses im RAM liegt, gemeinsam genutzte Seiten eingeschlossen, in Byte. Aus /proc/PID/stat.</translation>
    </message>
    <message id="pid_pss">
        <source></source>
        <translation>Anteiliger Speicher</translation>
    </message>
    <message id="pid_pss_tip">
        <source></source>
        <translation>Proportional Set Size (PSS): der Speicher, den der Prozess für sich allein hat, und von jeder mit anderen geteilten Seite sein Anteil. Über alle Prozesse summiert ergibt das, was sie zusammen belegen. Aus /proc/PID/smaps_rollup, wofür der Kernel den ganzen Speicher durchgeht: Der Wert wird im Hintergrund gelesen, sichtbare Zeilen zuerst. Ausgelagerter Speicher ist nicht enthalten. Bei Prozessen anderer Benutzer nicht erlaubt.</translation>
    </message>
    <message id="pid_uss">
        <source></source>
        <translation>Eigener Speicher</translation>
    </message>
    <message id="pid_uss_tip">
        <source></source>
        <translation>Unique Set Size (USS): der Speicher, den der Prozess mit niemandem teilt und der bei seinem Ende frei würde. Private_Clean und Private_Dirty aus /proc/PID/smaps_rollup, im Hintergrund gelesen, sichtbare Zeilen zuerst. Ausgelagerter Speicher und große Seiten von hugetlbfs sind nicht enthalten. Bei Prozessen anderer Benutzer nicht erlaubt.</translation>
    </message>
    <message id="pid_descriptors">
        <source></source>
        <translation>Offene Deskriptoren</translation>
    </message>
    <message id="pid_descriptors_tip">
        <source></source>
        <translation>Wie viele Deskriptoren für Dateien, Sockets, Pipes und dergleichen der Prozess geöffnet hat: die Einträge in /proc/PID/fd. Im Hintergrund gelesen. Dateien, die nur in den Speicher eingeblendet sind, zählen nicht. Bei Prozessen anderer Benutzer gibt der Kernel die Zahl seit Version 6.2 an.</translation>
    </message>
    <message id="pid_net_received">
        <source></source>
        <translation>Empfangen</translation>
    </message>
    <message id="pid_net_received_tip">
        <source></source>
        <translation>Bytes, die über das Netzwerk angekommen sind, Loopback eingeschlossen. Gesamtwert: alles, seit Lurkwell misst, und was die noch offenen Verbindungen vorher übertragen haben. Gezählt werden TCP-Verbindungen dieses Netzwerk-Namensraums, wie sie die Socket-Diagnose des Kernels meldet, anhand der Deskriptoren des Prozesses; halten mehrere Prozesse eine Verbindung, zählt sie bei jedem. Nicht gezählt werden UDP und QUIC, Verbindungen, die zwischen zwei Messungen beginnen und enden, sowie andere Netzwerk-Namensräume; ein Prozess, der noch keine TCP-Verbindung hatte, hat keinen Wert. Bei Prozessen anderer Benutzer nicht erlaubt; siehe die Werte der Unit.</translation>
    </message>
    <message id="pid_net_sent">
        <source></source>
        <translation>Gesendet</translation>
    </message>
    <message id="pid_net_sent_tip">
        <source></source>
        <translation>Bytes, die über das Netzwerk gesendet und von der Gegenseite bestätigt wurden, Loopback eingeschlossen. Gesamtwert: alles, seit Lurkwell misst, und was die noch offenen Verbindungen vorher übertragen haben. Gezählt werden TCP-Verbindungen dieses Netzwerk-Namensraums, wie sie die Socket-Diagnose des Kernels meldet, anhand der Deskriptoren des Prozesses; halten mehrere Prozesse eine Verbindung, zählt sie bei jedem. Nicht gezählt werden UDP und QUIC, Verbindungen, die zwischen zwei Messungen beginnen und enden, sowie andere Netzwerk-Namensräume; ein Prozess, der noch keine TCP-Verbindung hatte, hat keinen Wert. Bei Prozessen anderer Benutzer nicht erlaubt; siehe die Werte der Unit.</translation>
    </message>
    <message id="pid_net_receive_rate">
        <source></source>
        <translation>Empfangen/s</translation>
    </message>
    <message id="pid_net_receive_rate_tip">
        <source></source>
        <translation>Bytes pro Sekunde, die zwischen den letzten beiden Messungen über das Netzwerk angekommen sind. Gezählt werden TCP-Verbindungen dieses Netzwerk-Namensraums, wie sie die Socket-Diagnose des Kernels meldet, anhand der Deskriptoren des Prozesses; halten mehrere Prozesse eine Verbindung, zählt sie bei jedem. Nicht gezählt werden UDP und QUIC, Verbindungen, die zwischen zwei Messungen beginnen und enden, sowie andere Netzwerk-Namensräume; ein Prozess, der noch keine TCP-Verbindung hatte, hat keinen Wert. Bei Prozessen anderer Benutzer nicht erlaubt; siehe die Werte der Unit.</translation>
    </message>
    <message id="pid_net_send_rate">
        <source></source>
        <translation>Gesendet/s</translation>
    </message>
    <message id="pid_net_send_rate_tip">
        <source></source>
        <translation>Bytes pro Sekunde, die zwischen den letzten beiden Messungen über das Netzwerk gesendet und bestätigt wurden. Gezählt werden TCP-Verbindungen dieses Netzwerk-Namensraums, wie sie die Socket-Diagnose des Kernels meldet, anhand der Deskriptoren des Prozesses; halten mehrere Prozesse eine Verbindung, zählt sie bei jedem. Nicht gezählt werden UDP und QUIC, Verbindungen, die zwischen zwei Messungen beginnen und enden, sowie andere Netzwerk-Namensräume; ein Prozess, der noch keine TCP-Verbindung hatte, hat keinen Wert. Bei Prozessen anderer Benutzer nicht erlaubt; siehe die Werte der Unit.</translation>
    </message>
    <message id="pid_connections">
        <source></source>
        <translation>Verbindungen</translation>
    </message>
    <message id="pid_connections_tip">
        <source></source>
        <translation>Wie viele TCP-Verbindungen der Prozess offen hat, ohne solche, die nur auf Verbindungen warten. Aus der Socket-Diagnose des Kernels, anhand der Deskriptoren des Prozesses; andere Protokolle und andere Netzwerk-Namensräume werden nicht gezählt. Bei Prozessen anderer Benutzer nicht erlaubt.</translation>
    </message>
    <message id="pid_listening_ports">
        <source></source>
        <translation>Lauscht auf</translation>
    </message>
    <message id="pid_listening_ports_tip">
        <source></source>
        <translation>Die TCP-Ports, auf denen der Prozess auf Verbindungen wartet. Aus der Socket-Diagnose des Kernels, anhand der Deskriptoren des Prozesses; UDP und andere Netzwerk-Namensräume bleiben außer Betracht. Bei Prozessen anderer Benutzer nicht erlaubt.</translation>
    </message>
    <message id="pid_ports">
        <source></source>
        <translation>Ports</translation>
    </message>
    <message id="pid_ports_tip">
        <source></source>
        <translation>Die Ports der TCP- und UDP-Sockets des Prozesses: die eigenen und die der Gegenseiten.
Aus seinen offenen Deskriptoren und den Socket-Tabellen in /proc/PID/net; bei Prozessen anderer Benutzer nicht erlaubt.</translation>
    </message>
    <message id="pid_open_files">
        <source></source>
        <translation>Offene Dateien</translation>
    </message>
    <message id="pid_open_files_tip">
        <source></source>
        <translation>Die Namen der Dateien, die der Prozess geöffnet hat, und sein Arbeitsordner.
Aus /proc/PID/fd und /proc/PID/cwd; bei Prozessen anderer Benutzer nicht erlaubt.</translation>
    </message>
    <message id="pid_unit_net_received">
        <source></source>
        <translation>Empfangen (Unit)</translation>
    </message>
    <message id="pid_unit_net_received_tip">
        <source></source>
        <translation>Bytes, die über TCP-Verbindungen angekommen sind: ein gemeinsamer Wert für alle Prozesse der Unit (Kontrollgruppe), den die Socket-Diagnose des Kernels jedem mitteilt. Nicht gezählt werden UDP und QUIC, Verbindungen, die zwischen zwei Messungen beginnen und enden, sowie andere Netzwerk-Namensräume. Gesamtwert: alles, seit Lurkwell misst, und was die noch offenen Verbindungen vorher übertragen haben.</translation>
    </message>
    <message id="pid_unit_net_sent">
        <source></source>
        <translation>Gesendet (Unit)</translation>
    </message>
    <message id="pid_unit_net_sent_tip">
        <source></source>
        <translation>Bytes, die über TCP-Verbindungen gesendet und bestätigt wurden: ein gemeinsamer Wert für alle Prozesse der Unit (Kontrollgruppe), den die Socket-Diagnose des Kernels jedem mitteilt. Nicht gezählt werden UDP und QUIC, Verbindungen, die zwischen zwei Messungen beginnen und enden, sowie andere Netzwerk-Namensräume. Gesamtwert: alles, seit Lurkwell misst, und was die noch offenen Verbindungen vorher übertragen haben.</translation>
    </message>
    <message id="pid_unit_net_receive_rate">
        <source></source>
        <translation>Empfangen/s (Unit)</translation>
    </message>
    <message id="pid_unit_net_receive_rate_tip">
        <source></source>
        <translation>Bytes pro Sekunde, die über TCP-Verbindungen ankommen: ein gemeinsamer Wert für alle Prozesse der Unit (Kontrollgruppe), den die Socket-Diagnose des Kernels jedem mitteilt. Nicht gezählt werden UDP und QUIC, Verbindungen, die zwischen zwei Messungen beginnen und enden, sowie andere Netzwerk-Namensräume.</translation>
    </message>
    <message id="pid_unit_net_send_rate">
        <source></source>
        <translation>Gesendet/s (Unit)</translation>
    </message>
    <message id="pid_unit_net_send_rate_tip">
        <source></source>
        <translation>Bytes pro Sekunde, die über TCP-Verbindungen gesendet und bestätigt werden: ein gemeinsamer Wert für alle Prozesse der Unit (Kontrollgruppe), den die Socket-Diagnose des Kernels jedem mitteilt. Nicht gezählt werden UDP und QUIC, Verbindungen, die zwischen zwei Messungen beginnen und enden, sowie andere Netzwerk-Namensräume.</translation>
    </message>
    <message id="pid_gpu_share">
        <source></source>
        <translation>GPU</translation>
    </message>
    <message id="pid_gpu_share_tip">
        <source></source>
        <translation>Für welchen Teil der Zeit zwischen den letzten beiden Messungen die am stärksten ausgelastete Einheit eines Grafikgeräts für den Prozess gearbeitet hat. Aus den Nutzungsdaten, die der Kernel bei den Deskriptoren des Prozesses für Grafikgeräte führt (/proc/PID/fdinfo); jeder Client eines Geräts zählt einmal. Treiber, die keine führen, etwa der von NVIDIA, werden nicht gezählt. Kein Gerät wird dafür geöffnet oder aufgeweckt. Bei Prozessen anderer Benutzer nicht erlaubt.</translation>
    </message>
    <message id="pid_gpu_memory">
        <source></source>
        <translation>GPU-Speicher</translation>
    </message>
    <message id="pid_gpu_memory_tip">
        <source></source>
        <translation>Speicher von Grafikgeräten, den der Prozess belegt: was dort tatsächlich liegt, wenn der Treiber es angibt, sonst was angefordert wurde. Aus den Nutzungsdaten, die der Kernel bei den Deskriptoren des Prozesses für Grafikgeräte führt (/proc/PID/fdinfo); jeder Client eines Geräts zählt einmal. Treiber, die keine führen, etwa der von NVIDIA, werden nicht gezählt. Kein Gerät wird dafür geöffnet oder aufgeweckt. Bei Prozessen anderer Benutzer nicht erlaubt.</translation>
    </message>
    <message id="pid_gpu_engine">
        <source></source>
        <translation>GPU-Einheit</translation>
    </message>
    <message id="pid_gpu_engine_tip">
        <source></source>
        <translation>Die Einheit, die zwischen den letzten beiden Messungen am meisten für den Prozess gearbeitet hat, wie der Treiber sie nennt (render, video, copy und dergleichen). Aus den Nutzungsdaten, die der Kernel bei den Deskriptoren des Prozesses für Grafikgeräte führt (/proc/PID/fdinfo); jeder Client eines Geräts zählt einmal. Treiber, die keine führen, etwa der von NVIDIA, werden nicht gezählt. Kein Gerät wird dafür geöffnet oder aufgeweckt. Bei Prozessen anderer Benutzer nicht erlaubt.</translation>
    </message>
    <message id="value_age_tip" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Vor %n Sekunde gelesen.</numerusform>
            <numerusform>Vor %n Sekunden gelesen.</numerusform>
        </translation>
    </message>
    <message id="pid_suspend_count">
        <source></source>
        <translation>Anhaltezähler</translation>
    </message>
    <message id="pid_suspend_count_tip">
        <source></source>
        <translation>1, solange der Prozess durch ein Signal oder einen Debugger angehalten ist, sonst 0.</translation>
    </message>
    <message id="pid_terminated_user_time">
        <source></source>
        <translation>Benutzerzeit beendeter Threads</translation>
    </message>
    <message id="pid_terminated_user_time_tip">
        <source></source>
        <translation>Benutzerzeit von Threads, die bereits beendet sind. Unter Linux immer 0, denn dort ist sie in der Benutzerzeit enthalten.</translation>
    </message>
    <message id="pid_terminated_system_time">
        <source></source>
        <translation>Systemzeit beendeter Threads</translation>
    </message>
    <message id="pid_terminated_system_time_tip">
        <source></source>
        <translation>Systemzeit von Threads, die bereits beendet sind. Unter Linux immer 0, denn dort ist sie in der Systemzeit enthalten.</translation>
    </message>
    <message id="pid_policy">
        <source></source>
        <translation>Scheduling-Verfahren</translation>
    </message>
    <message id="pid_policy_tip">
        <source></source>
        <translation>Das Scheduling-Verfahren des Kernels als Zahl: 0 gewöhnlich, 1 FIFO, 2 Round Robin, 3 Batch, 5 Idle, 6 Deadline. Aus /proc/PID/stat.</translation>
    </message>
    <message id="pid_faults">
        <source></source>
        <translation>Seitenfehler</translation>
    </message>
    <message id="pid_faults_tip">
        <source></source>
        <translation>Seitenfehler seit dem Start des Prozesses, mit und ohne Lesen vom Datenträger. Aus /proc/PID/stat.</translation>
    </message>
    <message id="pid_pageins">
        <source></source>
        <translation>Eingelagerte Seiten</translation>
    </message>
    <message id="pid_pageins_tip">
        <source></source>
        <translation>Seitenfehler, die auf das Lesen vom Datenträger warten mussten („major faults“). Aus /proc/PID/stat.</translation>
    </message>
    <message id="pid_cow_faults">
        <source></source>
        <translation>Copy-on-Write-Fehler</translation>
    </message>
    <message id="pid_cow_faults_tip">
        <source></source>
        <translation>Seitenfehler, bei denen eine gemeinsame Seite kopiert wurde. Linux zählt sie nicht: immer 0.</translation>
    </message>
    <message id="pid_messages_sent">
        <source></source>
        <translation>Gesendete Nachrichten</translation>
    </message>
    <message id="pid_messages_sent_tip">
        <source></source>
        <translation>Nachrichten, die zwischen Kernel und Prozess gesendet wurden. Unter Linux gibt es sie nicht: immer 0.</translation>
    </message>
    <message id="pid_messages_received">
        <source></source>
        <translation>Empfangene Nachrichten</translation>
    </message>
    <message id="pid_messages_received_tip">
        <source></source>
        <translation>Nachrichten, die zwischen Kernel und Prozess empfangen wurden. Unter Linux gibt es sie nicht: immer 0.</translation>
    </message>
    <message id="pid_syscalls_mach">
        <source></source>
        <translation>Mach-Systemaufrufe</translation>
    </message>
    <message id="pid_syscalls_mach_tip">
        <source></source>
        <translation>Aufrufe der Schnittstelle des Mach-Kernels. Unter Linux gibt es sie nicht: immer 0.</translation>
    </message>
    <message id="pid_syscalls_unix">
        <source></source>
        <translation>Unix-Systemaufrufe</translation>
    </message>
    <message id="pid_syscalls_unix_tip">
        <source></source>
        <translation>Systemaufrufe zum Lesen und Schreiben, zusammengezählt; andere Aufrufe werden nicht gezählt. Aus /proc/PID/io, das nur der Benutzer des Prozesses und root lesen dürfen.</translation>
    </message>
    <message id="pid_csw">
        <source></source>
        <translation>Kontextwechsel</translation>
    </message>
    <message id="pid_csw_tip">
        <source></source>
        <translation>Wie oft dem Haupt-Thread des Prozesses eine CPU entzogen wurde, freiwillig oder nicht. Aus /proc/PID/status.</translation>
    </message>
    <message id="pid_processor">
        <source></source>
        <translation>Letzte CPU</translation>
    </message>
    <message id="pid_processor_tip">
        <source></source>
        <translation>Die Nummer des Prozessors, auf dem der Haupt-Thread des Prozesses zuletzt lief, ab 0. Aus /proc/PID/stat.</translation>
    </message>
    <message id="pid_cpu_wait">
        <source></source>
        <translation>Warten auf CPU</translation>
    </message>
    <message id="pid_cpu_wait_tip">
        <source></source>
        <translation>Wie lange die Threads des Prozesses lauffähig waren und auf einen Prozessor warten mussten, in Sekunden, alle zusammen. Bereits beendete Threads fehlen. Aus /proc/PID/task/TID/schedstat.</translation>
    </message>
    <message id="pid_disk_read">
        <source></source>
        <translation>Datenträger: gelesen</translation>
    </message>
    <message id="pid_disk_read_tip">
        <source></source>
        <translation>Bytes, die die Speichergeräte seit dem Start des Prozesses für ihn liefern mussten. Aus /proc/PID/io, das nur der Benutzer des Prozesses und root lesen dürfen.</translation>
    </message>
    <message id="pid_disk_written">
        <source></source>
        <translation>Datenträger: geschrieben</translation>
    </message>
    <message id="pid_disk_written_tip">
        <source></source>
        <translation>Bytes, die der Prozess seit seinem Start den Speichergeräten zum Schreiben übergeben hat; auch was in bald wieder gelöschte Dateien ging, zählt mit. Aus /proc/PID/io, das nur der Benutzer des Prozesses und root lesen dürfen.</translation>
    </message>
    <message id="pid_bytes_read">
        <source></source>
        <translation>Gelesene Bytes</translation>
    </message>
    <message id="pid_bytes_read_tip">
        <source></source>
        <translation>Bytes, die der Prozess seit seinem Start durch Leseaufrufe erhalten hat, ob von einem Datenträger, aus einem Cache oder von einem Terminal. Aus /proc/PID/io, das nur der Benutzer des Prozesses und root lesen dürfen.</translation>
    </message>
    <message id="pid_bytes_written">
        <source></source>
        <translation>Geschriebene Bytes</translation>
    </message>
    <message id="pid_bytes_written_tip">
        <source></source>
        <translation>Bytes, die der Prozess seit seinem Start mit Schreibaufrufen übergeben hat, ob an einen Datenträger, einen Cache oder ein Terminal. Aus /proc/PID/io, das nur der Benutzer des Prozesses und root lesen dürfen.</translation>
    </message>
    <message id="pid_unit_disk_read">
        <source></source>
        <translation>Datenträger: gelesen (Unit)</translation>
    </message>
    <message id="pid_unit_disk_read_tip">
        <source></source>
        <translation>Bytes, die die Speichergeräte an die Unit (Kontrollgruppe) des Prozesses geliefert haben: an alle Prozesse darin zusammen, auch an beendete. Aus ihrer io.stat, die jeder lesen darf; Units, deren Ein- und Ausgabe nicht erfasst wird, haben keinen Wert.</translation>
    </message>
    <message id="pid_unit_disk_written">
        <source></source>
        <translation>Datenträger: geschrieben (Unit)</translation>
    </message>
    <message id="pid_unit_disk_written_tip">
        <source></source>
        <translation>Bytes, die die Unit (Kontrollgruppe) des Prozesses den Speichergeräten zum Schreiben übergeben hat: alle Prozesse darin zusammen, auch beendete. Aus ihrer io.stat, die jeder lesen darf; Units, deren Ein- und Ausgabe nicht erfasst wird, haben keinen Wert.</translation>
    </message>
    <message id="pid_owner">
        <source></source>
        <translation>Eigentümer</translation>
    </message>
    <message id="pid_owner_tip">
        <source></source>
        <translation>Der Benutzer, dem der Prozess gehört, und nach „as“ derjenige, als der er handelt, wenn das ein anderer ist. Aus /proc/PID/status; ein Benutzer ohne Namen erscheint als Zahl.</translation>
    </message>
    <message id="pid_state">
        <source></source>
        <translation>Zustand in Worten</translation>
    </message>
    <message id="pid_state_tip">
        <source></source>
        <translation>Was der Haupt-Thread des Prozesses tut: „running“ (läuft oder ist lauffähig), „sleeping“ (schläft), „uninterruptible“ (nicht unterbrechbar, meist beim Warten auf einen Datenträger), „stopped“ (angehalten), „traced“ (von einem Debugger angehalten), „zombie“ (beendet, noch nicht abgeholt), „idle“ (untätiger Kernel-Thread). Aus /proc/PID/stat. Andere Threads tun vielleicht etwas anderes.</translation>
    </message>
    <message id="pid_threads">
        <source></source>
        <translation>Anzahl Threads</translation>
    </message>
    <message id="pid_threads_tip">
        <source></source>
        <translation>Wie viele Threads der Prozess hat. Aus /proc/PID/stat. Bereits beendete Threads werden nicht gezählt.</translation>
    </message>
    <message id="pid_terminal">
        <source></source>
        <translation>Steuerndes Terminal</translation>
    </message>
    <message id="pid_terminal_tip">
        <source></source>
        <translation>Das Terminal, zu dem der Prozess gehört, mit seinem Namen unterhalb von /dev. Aus /proc/PID/stat. Leer bei einem Prozess ohne Terminal; ein Programm in einem Terminalfenster hat das Terminal dieses Fensters.</translation>
    </message>
    <message id="pid_command_line">
        <source></source>
        <translation>Vollständige Befehlszeile</translation>
    </message>
    <message id="pid_command_line_tip">
        <source></source>
        <translation>Das Programm und seine Argumente; Zeichen, die sich nicht darstellen lassen, erscheinen als Escape-Folgen. Aus /proc/PID/cmdline, höchstens etwa 4000 Zeichen, so wie der Prozess sie jetzt hat: Er kann sie überschreiben. Beim Drucken und Schreiben steht hier nur das Programm, es sei denn, die Einstellung KEEP_COMMAND_LINES ist eingeschaltet.</translation>
    </message>
    <message id="pid_executable">
        <source></source>
        <translation>Programmdatei</translation>
    </message>
    <message id="pid_executable_tip">
        <source></source>
        <translation>Die Datei, die der Prozess ausführt; „(deleted)“ bedeutet, dass sie ersetzt oder entfernt wurde. Aus /proc/PID/exe, das nur der Benutzer des Prozesses und root lesen dürfen. Kernel-Threads haben keine.</translation>
    </message>
    <message id="pid_running_time">
        <source></source>
        <translation>Läuft seit</translation>
    </message>
    <message id="pid_running_time_tip">
        <source></source>
        <translation>Vor welcher Zeit der Prozess gestartet wurde, in Tagen, Stunden, Minuten und Sekunden; Zeit im Ruhezustand zählt mit. Aus /proc/PID/stat und der Uhr.</translation>
    </message>
    <message id="pid_cpu_share">
        <source></source>
        <translation>CPU % (ein Kern)</translation>
    </message>
    <message id="pid_cpu_share_of_machine">
        <source></source>
        <translation>CPU % (alle Kerne)</translation>
    </message>
    <message id="pid_cpu_share_tip">
        <source></source>
        <translation>Wie viel eines Prozessors der Prozess seit der letzten Aktualisierung genutzt hat, alle Threads zusammen: 100 heißt ein Prozessor die ganze Zeit, vier ausgelastete Threads ergeben 400. Aus den Zeiten in /proc/PID/stat, die in Hundertstelsekunden zählen. Was beendete Kindprozesse verbraucht haben, ist nicht enthalten.</translation>
    </message>
    <message id="pid_user_share">
        <source></source>
        <translation>Benutzer % (ein Kern)</translation>
    </message>
    <message id="pid_user_share_of_machine">
        <source></source>
        <translation>Benutzer % (alle Kerne)</translation>
    </message>
    <message id="pid_user_share_tip">
        <source></source>
        <translation>Wie viel eines Prozessors der Prozess seit der letzten Aktualisierung für seinen eigenen Code genutzt hat. Aus den Zeiten in /proc/PID/stat.</translation>
    </message>
    <message id="pid_system_share">
        <source></source>
        <translation>System % (ein Kern)</translation>
    </message>
    <message id="pid_system_share_of_machine">
        <source></source>
        <translation>System % (alle Kerne)</translation>
    </message>
    <message id="pid_system_share_tip">
        <source></source>
        <translation>Wie viel eines Prozessors der Kernel seit der letzten Aktualisierung für den Prozess genutzt hat. Aus den Zeiten in /proc/PID/stat.</translation>
    </message>
    <message id="pid_affinity">
        <source></source>
        <translation>Erlaubte CPUs</translation>
    </message>
    <message id="pid_affinity_tip">
        <source></source>
        <translation>Die Prozessoren, auf denen der Haupt-Thread des Prozesses laufen darf, mit ihren Nummern ab 0. Wie sched_getaffinity des Kernels sie angibt. Grenzen der Kontrollgruppe des Prozesses sind berücksichtigt; andere Threads können andere haben.</translation>
    </message>
    <message id="pid_scheduler">
        <source></source>
        <translation>Scheduler</translation>
    </message>
    <message id="pid_scheduler_tip">
        <source></source>
        <translation>Wie der Kernel dem Prozess Prozessoren zuteilt: normal, batch, idle (nur wenn sonst niemand sie will), real time (Echtzeit), deadline. Aus /proc/PID/stat, für den Haupt-Thread.</translation>
    </message>
    <message id="pid_io_priority">
        <source></source>
        <translation>E/A-Priorität</translation>
    </message>
    <message id="pid_io_priority_tip">
        <source></source>
        <translation>Wie der Prozess dasteht, wenn er auf einen Datenträger wartet: seine Klasse und seine Stufe von 0, der höchsten, bis 7. Wie ioprio_get des Kernels sie angibt. Datenträger ohne Scheduler, die meisten NVMe-Geräte, beachten sie nicht.</translation>
    </message>
    <message id="pid_shared_memory">
        <source></source>
        <translation>Gemeinsamer Speicher</translation>
    </message>
    <message id="pid_shared_memory_tip">
        <source></source>
        <translation>Speicher des Prozesses, den auch andere eingeblendet haben können: Teile von Dateien und Bibliotheken sowie Speicher, der zum Teilen gedacht ist. Aus RssFile und RssShmem in /proc/PID/status. Er ist Teil des realen Speichers, ob ihn jemand teilt oder nicht.</translation>
    </message>
    <message id="pid_swap">
        <source></source>
        <translation>Ausgelagert</translation>
    </message>
    <message id="pid_swap_tip">
        <source></source>
        <translation>Speicher des Prozesses, der in den Auslagerungsspeicher verschoben wurde. Aus VmSwap in /proc/PID/status. Ausgelagerter gemeinsamer Speicher ist nicht enthalten.</translation>
    </message>
    <message id="pid_highest_rsz">
        <source></source>
        <translation>Höchster realer Speicher</translation>
    </message>
    <message id="pid_highest_rsz_tip">
        <source></source>
        <translation>Der meiste Speicher, den der Prozess jemals gleichzeitig belegt hat. Aus VmHWM in /proc/PID/status.</translation>
    </message>
    <message id="pid_memory_share">
        <source></source>
        <translation>Speicher %</translation>
    </message>
    <message id="pid_memory_share_tip">
        <source></source>
        <translation>Realer Speicher des Prozesses als Anteil am Speicher des Rechners. Aus /proc/PID/stat. Gemeinsam genutzter Speicher zählt bei jedem, der ihn hat, voll, sodass die Summe über 100 liegen kann.</translation>
    </message>
    <message id="pid_oom_score">
        <source></source>
        <translation>OOM-Wert</translation>
    </message>
    <message id="pid_oom_score_tip">
        <source></source>
        <translation>Wer zuerst beendet wird, wenn der Speicher knapp wird: der Prozess mit dem höchsten Wert. Aus /proc/PID/oom_score.</translation>
    </message>
    <message id="pid_disk_read_rate">
        <source></source>
        <translation>Datentr. gelesen/s</translation>
    </message>
    <message id="pid_disk_read_rate_tip">
        <source></source>
        <translation>Was die Speichergeräte für den Prozess liefern mussten, in Byte pro Sekunde seit der letzten Aktualisierung. Aus /proc/PID/io, das nur der Benutzer des Prozesses und root lesen dürfen. Für fremde Prozesse siehe die Werte der Unit.</translation>
    </message>
    <message id="pid_disk_write_rate">
        <source></source>
        <translation>Datentr. geschrieben/s</translation>
    </message>
    <message id="pid_disk_write_rate_tip">
        <source></source>
        <translation>Was der Prozess den Speichergeräten zum Schreiben übergeben hat, in Byte pro Sekunde seit der letzten Aktualisierung. Aus /proc/PID/io, das nur der Benutzer des Prozesses und root lesen dürfen. Für fremde Prozesse siehe die Werte der Unit.</translation>
    </message>
    <message id="pid_read_rate">
        <source></source>
        <translation>Gelesen/s</translation>
    </message>
    <message id="pid_read_rate_tip">
        <source></source>
        <translation>Was der Prozess durch Leseaufrufe erhalten hat, in Byte pro Sekunde seit der letzten Aktualisierung, von einem Datenträger, aus einem Cache, einer Pipe oder einem Terminal. Aus /proc/PID/io, das nur der Benutzer des Prozesses und root lesen dürfen.</translation>
    </message>
    <message id="pid_write_rate">
        <source></source>
        <translation>Geschrieben/s</translation>
    </message>
    <message id="pid_write_rate_tip">
        <source></source>
        <translation>Was der Prozess mit Schreibaufrufen übergeben hat, in Byte pro Sekunde seit der letzten Aktualisierung, an einen Datenträger, einen Cache, eine Pipe oder ein Terminal. Aus /proc/PID/io, das nur der Benutzer des Prozesses und root lesen dürfen.</translation>
    </message>
    <message id="pid_unit_read_rate">
        <source></source>
        <translation>Datentr. gelesen/s (Unit)</translation>
    </message>
    <message id="pid_unit_read_rate_tip">
        <source></source>
        <translation>Was die Speichergeräte an die Unit (Kontrollgruppe) des Prozesses geliefert haben, an alle Prozesse darin zusammen, in Byte pro Sekunde seit der letzten Aktualisierung. Aus ihrer io.stat, die jeder lesen darf; Units, deren Ein- und Ausgabe nicht erfasst wird, haben keinen Wert.</translation>
    </message>
    <message id="pid_unit_write_rate">
        <source></source>
        <translation>Datentr. geschrieben/s (Unit)</translation>
    </message>
    <message id="pid_unit_write_rate_tip">
        <source></source>
        <translation>Was die Unit (Kontrollgruppe) des Prozesses den Speichergeräten zum Schreiben übergeben hat, alle Prozesse darin zusammen, in Byte pro Sekunde seit der letzten Aktualisierung. Aus ihrer io.stat, die jeder lesen darf; Units, deren Ein- und Ausgabe nicht erfasst wird, haben keinen Wert.</translation>
    </message>
    <message id="pid_cgroup">
        <source></source>
        <translation>Pfad der Kontrollgruppe</translation>
    </message>
    <message id="pid_cgroup_tip">
        <source></source>
        <translation>Die Kontrollgruppe des Prozesses, von der Wurzel aus, die dieses Programm sieht. Aus /proc/PID/cgroup. Gibt es mehrere Hierarchien, die der vereinheitlichten, sonst die der Diensteverwaltung.</translation>
    </message>
    <message id="pid_unit">
        <source></source>
        <translation>Dienst oder Scope</translation>
    </message>
    <message id="pid_unit_tip">
        <source></source>
        <translation>Die Unit der Diensteverwaltung, zu der der Prozess gehört: ein Dienst, eine Sitzung, der Scope einer Anwendung. Aus dem Pfad seiner Kontrollgruppe. Leer ohne eine solche Verwaltung.</translation>
    </message>
    <message id="pid_slice">
        <source></source>
        <translation>Slice der Units</translation>
    </message>
    <message id="pid_slice_tip">
        <source></source>
        <translation>Die Gruppe von Units, zu der die Unit des Prozesses gehört. Aus dem Pfad seiner Kontrollgruppe.</translation>
    </message>
    <message id="pid_app_scope">
        <source></source>
        <translation>Scope der Anwendung</translation>
    </message>
    <message id="pid_app_scope_tip">
        <source></source>
        <translation>Die Anwendung, für die die Sitzungsverwaltung den Prozess führt, mit ihrem Desktop-Eintrag. Aus dem Pfad seiner Kontrollgruppe. Leer bei Diensten und bei Arbeitsumgebungen, die ihre Anwendungen nicht einordnen.</translation>
    </message>
    <message id="pid_container">
        <source></source>
        <translation>Container</translation>
    </message>
    <message id="pid_container_tip">
        <source></source>
        <translation>Art und Name oder Nummer des Containers, in dem der Prozess läuft: Docker, Podman, containerd, CRI-O, Kubernetes, LXC, systemd-nspawn, Flatpak, Snap. Aus dem Pfad seiner Kontrollgruppe; eine Engine, die ihre Gruppen anders benennt, wird nicht erkannt. „own pid namespace“ steht bei dem, was ohne Container abgeschottet ist, etwa den Teilen eines Webbrowsers.</translation>
    </message>
    <message id="pid_inner_pid">
        <source></source>
        <translation>PID im Inneren</translation>
    </message>
    <message id="pid_inner_pid_tip">
        <source></source>
        <translation>Die Nummer des Prozesses im innersten PID-Namensraum, in dem er sich befindet, wenn das nicht der dieses Programms ist. Aus NSpid in /proc/PID/status.</translation>
    </message>
    <message id="pid_namespace">
        <source></source>
        <translation>PID-Namensraum</translation>
    </message>
    <message id="pid_namespace_tip">
        <source></source>
        <translation>Die Nummer des PID-Namensraums, in dem sich der Prozess befindet: Prozesse mit derselben Nummer sehen einander. Aus /proc/PID/ns/pid, das nur der Benutzer des Prozesses und root lesen dürfen.</translation>
    </message>
    <message id="pid_capabilities">
        <source></source>
        <translation>Wirksame Capabilities</translation>
    </message>
    <message id="pid_capabilities_tip">
        <source></source>
        <translation>Welche Rechte von root der Prozess gegenwärtig hat. Aus CapEff in /proc/PID/status, für den Haupt-Thread. In einem Benutzer-Namensraum gelten sie nur in diesem.</translation>
    </message>
    <message id="pid_seccomp">
        <source></source>
        <translation>Systemaufruffilter</translation>
    </message>
    <message id="pid_seccomp_tip">
        <source></source>
        <translation>Ob die Systemaufrufe des Prozesses gefiltert werden: „off“ (nein), „strict“ (fast keine sind erlaubt) oder „filter“. Aus Seccomp in /proc/PID/status.</translation>
    </message>
    <message id="pid_no_new_privileges">
        <source></source>
        <translation>Keine neuen Rechte</translation>
    </message>
    <message id="pid_no_new_privileges_tip">
        <source></source>
        <translation>Ob Programme, die der Prozess startet, nicht mehr Rechte als er bekommen können, was auch immer ihre Dateien besagen. Aus NoNewPrivs in /proc/PID/status.</translation>
    </message>
    <message id="pid_label">
        <source></source>
        <translation>Kennung des Sicherheitsmoduls</translation>
    </message>
    <message id="pid_label_tip">
        <source></source>
        <translation>Wie AppArmor, SELinux oder Smack den Prozess bezeichnet. Aus /proc/PID/attr/current; ohne ein solches Modul nicht vorhanden.</translation>
    </message>
    <message id="pid_elevated">
        <source></source>
        <translation>Erhöhte Rechte</translation>
    </message>
    <message id="pid_elevated_tip">
        <source></source>
        <translation>Ob der Prozess Rechte hat, die andere Prozesse seines Benutzers nicht haben: root, wenn er als root handelt, capabilities, wenn er einige der Rechte von root hat. Aus Uid und CapEff in /proc/PID/status.</translation>
    </message>
    <message id="internal_Icon">
        <source></source>
        <translation>Symbol</translation>
    </message>
    <message id="internal_Icon_tip">
        <source></source>
        <translation>Das Symbol der Anwendung. Ein Prozess, der keine Anwendung ist, hat keines.</translation>
    </message>
    <message id="internal_Indicator">
        <source></source>
        <translation>Kennzeichen</translation>
    </message>
    <message id="internal_Indicator_tip">
        <source></source>
        <translation>Ein Zeichen dafür, was hier mit dem Prozess gemacht wurde: angehalten oder seine Priorität erhöht oder gesenkt.</translation>
    </message>
    <message id="internal_CPUPercent">
        <source></source>
        <translation>CPU-Auslastung</translation>
    </message>
    <message id="internal_CPUPercent_tip">
        <source></source>
        <translation>Der Anteil einer CPU, den der Prozess seit der vorigen Aktualisierung genutzt hat, als Balken.</translation>
    </message>
    <message id="internal_MemGraph">
        <source></source>
        <translation>Speicher</translation>
    </message>
    <message id="internal_MemGraph_tip">
        <source></source>
        <translation>Die residente und die virtuelle Größe des Prozesses als Balken.</translation>
    </message>
    <message id="%CPU">
        <source></source>
        <translation>CPU-Auslastung (%CPU)</translation>
    </message>
    <message id="%CPU_tip">
        <source></source>
        <translation>Verbrauchte CPU-Zeit geteilt durch die Laufzeit des Prozesses, in Prozent. Es ist ein Durchschnitt über die ganze Lebensdauer des Prozesses.</translation>
    </message>
    <message id="%CUC">
        <source></source>
        <translation>CPU-Auslastung mit Kindern (%CUC)</translation>
    </message>
    <message id="%CUC_tip">
        <source></source>
        <translation>CPU-Zeit des Prozesses und seiner beendeten Kindprozesse geteilt durch seine Laufzeit, in Prozent mit drei Nachkommastellen.</translation>
    </message>
    <message id="%CUU">
        <source></source>
        <translation>CPU-Auslastung (%CUU)</translation>
    </message>
    <message id="%CUU_tip">
        <source></source>
        <translation>Verbrauchte CPU-Zeit geteilt durch die Laufzeit des Prozesses, in Prozent mit drei Nachkommastellen.</translation>
    </message>
    <message id="%MEM">
        <source></source>
        <translation>Speichernutzung (%MEM)</translation>
    </message>
    <message id="%MEM_tip">
        <source></source>
        <translation>Die residente Größe in Prozent des physischen Speichers des Rechners.</translation>
    </message>
    <message id="AGID">
        <source></source>
        <translation>Autogruppen-ID (AGID)</translation>
    </message>
    <message id="AGID_tip">
        <source></source>
        <translation>Die Nummer der automatischen Gruppe des Schedulers, zu der der Prozess gehört; in der Regel hat jede Sitzung eine.</translation>
    </message>
    <message id="AGNI">
        <source></source>
        <translation>Nice-Wert der Autogruppe (AGNI)</translation>
    </message>
    <message id="AGNI_tip">
        <source></source>
        <translation>Der Nice-Wert der automatischen Gruppe des Schedulers: wie sehr die ganze Gruppe anderen den Vortritt lässt.</translation>
    </message>
    <message id="API">
        <source></source>
        <translation>Priorität (API)</translation>
    </message>
    <message id="API_tip">
        <source></source>
        <translation>Die Scheduling-Priorität nach einer der historischen Skalen, die ps anbietet: -1 minus die Priorität des Kernels.</translation>
    </message>
    <message id="BLOCKED">
        <source></source>
        <translation>Blockierte Signale (BLOCKED)</translation>
    </message>
    <message id="BLOCKED_tip">
        <source></source>
        <translation>Die Signale, deren Zustellung der Prozess zurückgestellt hat, als hexadezimale Maske.</translation>
    </message>
    <message id="BSDTIME">
        <source></source>
        <translation>CPU-Zeit (BSDTIME)</translation>
    </message>
    <message id="BSDTIME_tip">
        <source></source>
        <translation>Die CPU-Zeit, die der Prozess seit seinem Start verbraucht hat, Benutzer- und Systemzeit zusammen. Dasselbe wie TIME.</translation>
    </message>
    <message id="C">
        <source></source>
        <translation>CPU-Auslastung (C)</translation>
    </message>
    <message id="C_tip">
        <source></source>
        <translation>Verbrauchte CPU-Zeit geteilt durch die Laufzeit des Prozesses, in ganzen Prozent.</translation>
    </message>
    <message id="CATCHED">
        <source></source>
        <translation>Abgefangene Signale (CATCHED)</translation>
    </message>
    <message id="CATCHED_tip">
        <source></source>
        <translation>Die Signale, für die der Prozess eine eigene Behandlung hat, als hexadezimale Maske. Dasselbe wie CAUGHT.</translation>
    </message>
    <message id="CAUGHT">
        <source></source>
        <translation>Abgefangene Signale (CAUGHT)</translation>
    </message>
    <message id="CAUGHT_tip">
        <source></source>
        <translation>Die Signale, für die der Prozess eine eigene Behandlung hat, als hexadezimale Maske.</translation>
    </message>
    <message id="CGNAME">
        <source></source>
        <translation>Namen der Kontrollgruppen (CGNAME)</translation>
    </message>
    <message id="CGNAME_tip">
        <source></source>
        <translation>Die Namen der Kontrollgruppen, zu denen der Prozess gehört, wie der Kernel sie angibt.</translation>
    </message>
    <message id="CGROUP">
        <source></source>
        <translation>Kontrollgruppen (CGROUP)</translation>
    </message>
    <message id="CGROUP_tip">
        <source></source>
        <translation>Die Kontrollgruppen, zu denen der Prozess gehört.</translation>
    </message>
    <message id="CGROUPNS">
        <source></source>
        <translation>Kontrollgruppen-Namensraum (CGROUPNS)</translation>
    </message>
    <message id="CGROUPNS_tip">
        <source></source>
        <translation>Die Inode-Nummer des Namensraums für Kontrollgruppen, in dem der Prozess läuft. Prozesse mit gleicher Nummer teilen ihn.</translation>
    </message>
    <message id="CLS">
        <source></source>
        <translation>Scheduling-Klasse (CLS)</translation>
    </message>
    <message id="CLS_tip">
        <source></source>
        <translation>Die Scheduling-Klasse: TS gewöhnlich, FF First in, First out, RR Round Robin, B Batch, IDL Idle, DLN Deadline.</translation>
    </message>
    <message id="CMD">
        <source></source>
        <translation>Befehlszeile (CMD)</translation>
    </message>
    <message id="CMD_tip">
        <source></source>
        <translation>Der Befehl mit allen Argumenten. Dasselbe wie COMMAND.</translation>
    </message>
    <message id="COMM">
        <source></source>
        <translation>Befehlsname (COMM)</translation>
    </message>
    <message id="COMM_tip">
        <source></source>
        <translation>Der Name des Befehls ohne seine Argumente.</translation>
    </message>
    <message id="COMMAND">
        <source></source>
        <translation>Befehlszeile (COMMAND)</translation>
    </message>
    <message id="COMMAND_tip">
        <source></source>
        <translation>Der Befehl mit allen Argumenten. Wo diese nicht zu bekommen sind, wie bei Kernel-Threads, der Name des Befehls in eckigen Klammern.</translation>
    </message>
    <message id="CONTEXT">
        <source></source>
        <translation>Sicherheitskontext (CONTEXT)</translation>
    </message>
    <message id="CONTEXT_tip">
        <source></source>
        <translation>Der Sicherheitskontext, den die Zugriffskontrolle des Kernels (etwa SELinux) dem Prozess gegeben hat; ein Strich, wenn es keinen gibt.</translation>
    </message>
    <message id="CP">
        <source></source>
        <translation>CPU-Auslastung (CP)</translation>
    </message>
    <message id="CP_tip">
        <source></source>
        <translation>Verbrauchte CPU-Zeit geteilt durch die Laufzeit des Prozesses, in Promille.</translation>
    </message>
    <message id="CPUID">
        <source></source>
        <translation>Letzte CPU (CPUID)</translation>
    </message>
    <message id="CPUID_tip">
        <source></source>
        <translation>Die Nummer des Prozessors, auf dem der Prozess zuletzt lief.</translation>
    </message>
    <message id="CPUTIMES">
        <source></source>
        <translation>CPU-Sekunden (CPUTIMES)</translation>
    </message>
    <message id="CPUTIMES_tip">
        <source></source>
        <translation>Die CPU-Zeit, die der Prozess seit seinem Start verbraucht hat, Benutzer- und Systemzeit zusammen, in Sekunden.</translation>
    </message>
    <message id="DRS">
        <source></source>
        <translation>Datengröße (DRS)</translation>
    </message>
    <message id="DRS_tip">
        <source></source>
        <translation>Die Größe des gesamten eingeblendeten Speichers ohne den ausführbaren Code. Trotz des Namens muss nicht alles davon im RAM liegen.</translation>
    </message>
    <message id="DSIZ">
        <source></source>
        <translation>Datengröße (DSIZ)</translation>
    </message>
    <message id="DSIZ_tip">
        <source></source>
        <translation>Die Größe des gesamten eingeblendeten Speichers ohne den ausführbaren Code.</translation>
    </message>
    <message id="EGID">
        <source></source>
        <translation>Effektive Gruppen-ID (EGID)</translation>
    </message>
    <message id="EGID_tip">
        <source></source>
        <translation>Die Nummer der Gruppe, deren Rechte der Prozess hat.</translation>
    </message>
    <message id="EGROUP">
        <source></source>
        <translation>Effektive Gruppe (EGROUP)</translation>
    </message>
    <message id="EGROUP_tip">
        <source></source>
        <translation>Der Name der Gruppe, deren Rechte der Prozess hat.</translation>
    </message>
    <message id="EIP">
        <source></source>
        <translation>Befehlszeiger (EIP)</translation>
    </message>
    <message id="EIP_tip">
        <source></source>
        <translation>Die Adresse des Befehls, bei dem der Prozess steht. Kernel ab 4.9 zeigen sie nur, während ein Prozess endet; sonst ist sie null.</translation>
    </message>
    <message id="ELAPSED">
        <source></source>
        <translation>Vergangene Zeit (ELAPSED)</translation>
    </message>
    <message id="ELAPSED_tip">
        <source></source>
        <translation>Zeit seit dem Start des Prozesses, in Tagen, Stunden, Minuten und Sekunden.</translation>
    </message>
    <message id="ESP">
        <source></source>
        <translation>Stapelzeiger (ESP)</translation>
    </message>
    <message id="ESP_tip">
        <source></source>
        <translation>Die Adresse der Spitze des Stapels. Kernel ab 4.9 zeigen sie nur, während ein Prozess endet; sonst ist sie null.</translation>
    </message>
    <message id="ETIMES">
        <source></source>
        <translation>Vergangene Sekunden (ETIMES)</translation>
    </message>
    <message id="ETIMES_tip">
        <source></source>
        <translation>Zeit seit dem Start des Prozesses, in Sekunden.</translation>
    </message>
    <message id="EUID">
        <source></source>
        <translation>Effektive Benutzer-ID (EUID)</translation>
    </message>
    <message id="EUID_tip">
        <source></source>
        <translation>Die Nummer des Benutzers, dessen Rechte der Prozess hat.</translation>
    </message>
    <message id="EUSER">
        <source></source>
        <translation>Effektiver Benutzer (EUSER)</translation>
    </message>
    <message id="EUSER_tip">
        <source></source>
        <translation>Der Name des Benutzers, dessen Rechte der Prozess hat.</translation>
    </message>
    <message id="EXE">
        <source></source>
        <translation>Programmdatei (EXE)</translation>
    </message>
    <message id="EXE_tip">
        <source></source>
        <translation>Der Pfad der Programmdatei; ein Strich bei Kernel-Threads, ein Kreuz, wo er nicht gelesen werden darf.</translation>
    </message>
    <message id="F">
        <source></source>
        <translation>Flags (F)</translation>
    </message>
    <message id="F_tip">
        <source></source>
        <translation>Flags des Prozesses, addiert: 1 abgespalten, aber noch kein eigenes Programm, 4 hat Rechte des Systemverwalters benutzt.</translation>
    </message>
    <message id="FGID">
        <source></source>
        <translation>Dateizugriffs-Gruppen-ID (FGID)</translation>
    </message>
    <message id="FGID_tip">
        <source></source>
        <translation>Die Nummer der Gruppe, die zählt, wenn der Prozess Dateien öffnet.</translation>
    </message>
    <message id="FGROUP">
        <source></source>
        <translation>Dateizugriffs-Gruppe (FGROUP)</translation>
    </message>
    <message id="FGROUP_tip">
        <source></source>
        <translation>Der Name der Gruppe, die zählt, wenn der Prozess Dateien öffnet.</translation>
    </message>
    <message id="FNAME">
        <source></source>
        <translation>Befehlsname, gekürzt (FNAME)</translation>
    </message>
    <message id="FNAME_tip">
        <source></source>
        <translation>Die ersten acht Buchstaben vom Namen des Befehls.</translation>
    </message>
    <message id="FSGID">
        <source></source>
        <translation>Dateizugriffs-Gruppen-ID (FSGID)</translation>
    </message>
    <message id="FSGID_tip">
        <source></source>
        <translation>Die Nummer der Gruppe, die zählt, wenn der Prozess Dateien öffnet. Dasselbe wie FGID.</translation>
    </message>
    <message id="FSGROUP">
        <source></source>
        <translation>Dateizugriffs-Gruppe (FSGROUP)</translation>
    </message>
    <message id="FSGROUP_tip">
        <source></source>
        <translation>Der Name der Gruppe, die zählt, wenn der Prozess Dateien öffnet. Dasselbe wie FGROUP.</translation>
    </message>
    <message id="FSUID">
        <source></source>
        <translation>Dateizugriffs-Benutzer-ID (FSUID)</translation>
    </message>
    <message id="FSUID_tip">
        <source></source>
        <translation>Die Nummer des Benutzers, der zählt, wenn der Prozess Dateien öffnet. Dasselbe wie FUID.</translation>
    </message>
    <message id="FSUSER">
        <source></source>
        <translation>Dateizugriffs-Benutzer (FSUSER)</translation>
    </message>
    <message id="FSUSER_tip">
        <source></source>
        <translation>Der Name des Benutzers, der zählt, wenn der Prozess Dateien öffnet. Dasselbe wie FUSER.</translation>
    </message>
    <message id="FUID">
        <source></source>
        <translation>Dateizugriffs-Benutzer-ID (FUID)</translation>
    </message>
    <message id="FUID_tip">
        <source></source>
        <translation>Die Nummer des Benutzers, der zählt, wenn der Prozess Dateien öffnet.</translation>
    </message>
    <message id="FUSER">
        <source></source>
        <translation>Dateizugriffs-Benutzer (FUSER)</translation>
    </message>
    <message id="FUSER_tip">
        <source></source>
        <translation>Der Name des Benutzers, der zählt, wenn der Prozess Dateien öffnet.</translation>
    </message>
    <message id="GID">
        <source></source>
        <translation>Gruppen-ID (GID)</translation>
    </message>
    <message id="GID_tip">
        <source></source>
        <translation>Die Nummer der effektiven Gruppe. Dasselbe wie EGID.</translation>
    </message>
    <message id="GROUP">
        <source></source>
        <translation>Gruppe (GROUP)</translation>
    </message>
    <message id="GROUP_tip">
        <source></source>
        <translation>Der Name der effektiven Gruppe. Dasselbe wie EGROUP.</translation>
    </message>
    <message id="IGNORED">
        <source></source>
        <translation>Ignorierte Signale (IGNORED)</translation>
    </message>
    <message id="IGNORED_tip">
        <source></source>
        <translation>Die Signale, die der Prozess ignoriert, als hexadezimale Maske.</translation>
    </message>
    <message id="IPCNS">
        <source></source>
        <translation>IPC-Namensraum (IPCNS)</translation>
    </message>
    <message id="IPCNS_tip">
        <source></source>
        <translation>Die Inode-Nummer des Namensraums für Interprozesskommunikation, in dem der Prozess läuft. Prozesse mit gleicher Nummer teilen ihn.</translation>
    </message>
    <message id="LABEL">
        <source></source>
        <translation>Sicherheitskontext (LABEL)</translation>
    </message>
    <message id="LABEL_tip">
        <source></source>
        <translation>Die Kennung, die die Zugriffskontrolle des Kernels dem Prozess gegeben hat; ein Strich, wenn es keine gibt. Dasselbe wie CONTEXT.</translation>
    </message>
    <message id="LASTCPU">
        <source></source>
        <translation>Letzte CPU (LASTCPU)</translation>
    </message>
    <message id="LASTCPU_tip">
        <source></source>
        <translation>Die Nummer des Prozessors, auf dem der Prozess zuletzt lief. Dasselbe wie PSR.</translation>
    </message>
    <message id="LIM">
        <source></source>
        <translation>Speichergrenze (LIM)</translation>
    </message>
    <message id="LIM_tip">
        <source></source>
        <translation>Die Grenze für die residente Größe, in Kibibyte; xx bedeutet unbegrenzt.</translation>
    </message>
    <message id="LSTART">
        <source></source>
        <translation>Startdatum (LSTART)</translation>
    </message>
    <message id="LSTART_tip">
        <source></source>
        <translation>Wann der Prozess gestartet wurde, Datum und Uhrzeit.</translation>
    </message>
    <message id="LUID">
        <source></source>
        <translation>Anmelde-Benutzer-ID (LUID)</translation>
    </message>
    <message id="LUID_tip">
        <source></source>
        <translation>Die Nummer des Benutzers, der sich angemeldet hat; sie bleibt gleich, auch wenn die Rechte später wechseln; ein Strich, wenn es keine Anmeldung gab.</translation>
    </message>
    <message id="LWP">
        <source></source>
        <translation>Thread-ID (LWP)</translation>
    </message>
    <message id="LWP_tip">
        <source></source>
        <translation>Die Nummer des Haupt-Threads des Prozesses, die gleich der Prozess-ID ist.</translation>
    </message>
    <message id="LXC">
        <source></source>
        <translation>LXC-Container (LXC)</translation>
    </message>
    <message id="LXC_tip">
        <source></source>
        <translation>Der Name des LXC-Containers, in dem der Prozess läuft; ein Strich außerhalb von Containern.</translation>
    </message>
    <message id="M_SIZE">
        <source></source>
        <translation>Virtuelle Größe in Byte (M_SIZE)</translation>
    </message>
    <message id="M_SIZE_tip">
        <source></source>
        <translation>Die Größe des gesamten Speichers, den der Prozess eingeblendet hat, in Byte.</translation>
    </message>
    <message id="MACHINE">
        <source></source>
        <translation>Virtuelle Maschine (MACHINE)</translation>
    </message>
    <message id="MACHINE_tip">
        <source></source>
        <translation>Der Name der virtuellen Maschine oder des Containers, zu dem der Prozess gehört. Von systemd; ein Strich, wenn es keinen gibt.</translation>
    </message>
    <message id="MAJFL">
        <source></source>
        <translation>Größere Seitenfehler (MAJFL)</translation>
    </message>
    <message id="MAJFL_tip">
        <source></source>
        <translation>Seitenfehler, die auf das Lesen vom Datenträger warten mussten. Dasselbe wie MAJFLT.</translation>
    </message>
    <message id="MAJFLT">
        <source></source>
        <translation>Größere Seitenfehler (MAJFLT)</translation>
    </message>
    <message id="MAJFLT_tip">
        <source></source>
        <translation>Seitenfehler, die auf das Lesen vom Datenträger warten mussten, seit dem Start des Prozesses.</translation>
    </message>
    <message id="MINFL">
        <source></source>
        <translation>Kleinere Seitenfehler (MINFL)</translation>
    </message>
    <message id="MINFL_tip">
        <source></source>
        <translation>Seitenfehler, bei denen nichts vom Datenträger gelesen werden musste. Dasselbe wie MINFLT.</translation>
    </message>
    <message id="MINFLT">
        <source></source>
        <translation>Kleinere Seitenfehler (MINFLT)</translation>
    </message>
    <message id="MINFLT_tip">
        <source></source>
        <translation>Seitenfehler, bei denen nichts vom Datenträger gelesen werden musste, seit dem Start des Prozesses.</translation>
    </message>
    <message id="MNTNS">
        <source></source>
        <translation>Einhänge-Namensraum (MNTNS)</translation>
    </message>
    <message id="MNTNS_tip">
        <source></source>
        <translation>Die Inode-Nummer des Namensraums für Einhängepunkte, in dem der Prozess läuft. Prozesse mit gleicher Nummer teilen ihn.</translation>
    </message>
    <message id="NETNS">
        <source></source>
        <translation>Netzwerk-Namensraum (NETNS)</translation>
    </message>
    <message id="NETNS_tip">
        <source></source>
        <translation>Die Inode-Nummer des Namensraums für das Netzwerk, in dem der Prozess läuft. Prozesse mit gleicher Nummer teilen ihn.</translation>
    </message>
    <message id="NI">
        <source></source>
        <translation>Nice-Wert (NI)</translation>
    </message>
    <message id="NI_tip">
        <source></source>
        <translation>Wie sehr der Prozess anderen den Vortritt lässt, von -20 (am wenigsten) bis 19 (am meisten). Ein Strich, wo er keine Bedeutung hat, wie bei Echtzeitprozessen.</translation>
    </message>
    <message id="NLWP">
        <source></source>
        <translation>Threads (NLWP)</translation>
    </message>
    <message id="NLWP_tip">
        <source></source>
        <translation>Wie viele Threads der Prozess hat.</translation>
    </message>
    <message id="NUMA">
        <source></source>
        <translation>NUMA-Knoten (NUMA)</translation>
    </message>
    <message id="NUMA_tip">
        <source></source>
        <translation>Der Speicherknoten des Prozessors, auf dem der Prozess zuletzt lief; -1, wenn er nicht bekannt ist.</translation>
    </message>
    <message id="OOM">
        <source></source>
        <translation>OOM-Wert (OOM)</translation>
    </message>
    <message id="OOM_tip">
        <source></source>
        <translation>Wie wahrscheinlich der Kernel den Prozess beendet, wenn der Speicher knapp wird; der höchste Wert ist zuerst an der Reihe.</translation>
    </message>
    <message id="OOMADJ">
        <source></source>
        <translation>OOM-Anpassung (OOMADJ)</translation>
    </message>
    <message id="OOMADJ_tip">
        <source></source>
        <translation>Was zum OOM-Wert addiert wird, von -1000 (nie beendet) bis 1000 (zuerst beendet).</translation>
    </message>
    <message id="OPRI">
        <source></source>
        <translation>Priorität (OPRI)</translation>
    </message>
    <message id="OPRI_tip">
        <source></source>
        <translation>Die Scheduling-Priorität nach einer der historischen Skalen, die ps anbietet: die Priorität des Kernels plus 60, also 80 bei einem gewöhnlichen Prozess und weniger bei einem, der zuerst an die Reihe kommt.</translation>
    </message>
    <message id="OWNER">
        <source></source>
        <translation>Sitzungseigentümer (OWNER)</translation>
    </message>
    <message id="OWNER_tip">
        <source></source>
        <translation>Die Nummer des Benutzers, dem die Anmeldesitzung gehört, zu der der Prozess gehört. Von systemd; ein Strich, wenn es keinen gibt.</translation>
    </message>
    <message id="P">
        <source></source>
        <translation>Aktuelle CPU (P)</translation>
    </message>
    <message id="P_tip">
        <source></source>
        <translation>Die Nummer des Prozessors, auf dem der Prozess gerade läuft; ein Sternchen, während er nicht läuft.</translation>
    </message>
    <message id="PAGEIN">
        <source></source>
        <translation>Größere Seitenfehler (PAGEIN)</translation>
    </message>
    <message id="PAGEIN_tip">
        <source></source>
        <translation>Seitenfehler, die auf das Lesen vom Datenträger warten mussten. Dasselbe wie MAJFLT.</translation>
    </message>
    <message id="PENDING">
        <source></source>
        <translation>Anstehende Signale (PENDING)</translation>
    </message>
    <message id="PENDING_tip">
        <source></source>
        <translation>Die Signale, die auf Zustellung an den Prozess warten, als hexadezimale Maske.</translation>
    </message>
    <message id="PGID">
        <source></source>
        <translation>Prozessgruppen-ID (PGID)</translation>
    </message>
    <message id="PGID_tip">
        <source></source>
        <translation>Die Nummer der Prozessgruppe; in der Regel haben die Befehle einer Pipeline dieselbe.</translation>
    </message>
    <message id="PGRP">
        <source></source>
        <translation>Prozessgruppen-ID (PGRP)</translation>
    </message>
    <message id="PGRP_tip">
        <source></source>
        <translation>Die Nummer der Prozessgruppe. Dasselbe wie PGID.</translation>
    </message>
    <message id="PID">
        <source></source>
        <translation>Prozess-ID (PID)</translation>
    </message>
    <message id="PID_tip">
        <source></source>
        <translation>Die Nummer des Prozesses, wie ps sie ausgibt.</translation>
    </message>
    <message id="PIDNS">
        <source></source>
        <translation>PID-Namensraum (PIDNS)</translation>
    </message>
    <message id="PIDNS_tip">
        <source></source>
        <translation>Die Inode-Nummer des Namensraums für Prozessnummern, in dem der Prozess läuft. Prozesse mit gleicher Nummer teilen ihn.</translation>
    </message>
    <message id="POL">
        <source></source>
        <translation>Scheduling-Klasse (POL)</translation>
    </message>
    <message id="POL_tip">
        <source></source>
        <translation>Die Scheduling-Klasse in Buchstaben. Dasselbe wie CLS.</translation>
    </message>
    <message id="PPID">
        <source></source>
        <translation>Eltern-ID (PPID)</translation>
    </message>
    <message id="PPID_tip">
        <source></source>
        <translation>Die Nummer des Prozesses, der diesen gestartet oder übernommen hat.</translation>
    </message>
    <message id="PRI">
        <source></source>
        <translation>Priorität (PRI)</translation>
    </message>
    <message id="PRI_tip">
        <source></source>
        <translation>Die Scheduling-Priorität, umgekehrt: 19 bei einem gewöhnlichen Prozess und mehr bei einem, der zuerst an die Reihe kommt.</translation>
    </message>
    <message id="PRIORITY">
        <source></source>
        <translation>Priorität (PRIORITY)</translation>
    </message>
    <message id="PRIORITY_tip">
        <source></source>
        <translation>Die Scheduling-Priorität des Kernels selbst: 20 bei einem gewöhnlichen Prozess und weniger bei einem, der zuerst an die Reihe kommt, unter null bei Echtzeitprozessen.</translation>
    </message>
    <message id="PSR">
        <source></source>
        <translation>Letzte CPU (PSR)</translation>
    </message>
    <message id="PSR_tip">
        <source></source>
        <translation>Die Nummer des Prozessors, auf dem der Prozess zuletzt lief.</translation>
    </message>
    <message id="PSS">
        <source></source>
        <translation>Anteilige Größe (PSS)</translation>
    </message>
    <message id="PSS_tip">
        <source></source>
        <translation>Speicher im RAM, wobei jede gemeinsame Seite auf die aufgeteilt wird, die sie teilen. Langsam zu ermitteln; ein Kreuz, wo das nicht gelesen werden darf.</translation>
    </message>
    <message id="RBYTES">
        <source></source>
        <translation>Vom Datenträger gelesen (RBYTES)</translation>
    </message>
    <message id="RBYTES_tip">
        <source></source>
        <translation>Bytes, die die Speichergeräte für den Prozess liefern mussten. Aus /proc/PID/io; ein Kreuz, wo das nicht gelesen werden darf.</translation>
    </message>
    <message id="RCHARS">
        <source></source>
        <translation>Gelesene Bytes (RCHARS)</translation>
    </message>
    <message id="RCHARS_tip">
        <source></source>
        <translation>Bytes, die der Prozess mit seinen Leseaufrufen angefordert hat, ob von einem Datenträger, aus einem Cache oder von einem Terminal. Aus /proc/PID/io; ein Kreuz, wo das nicht gelesen werden darf.</translation>
    </message>
    <message id="RGID">
        <source></source>
        <translation>Reale Gruppen-ID (RGID)</translation>
    </message>
    <message id="RGID_tip">
        <source></source>
        <translation>Die Nummer der Gruppe, zu der der Prozess gehört, welche Rechte er auch gegenwärtig hat.</translation>
    </message>
    <message id="RGROUP">
        <source></source>
        <translation>Reale Gruppe (RGROUP)</translation>
    </message>
    <message id="RGROUP_tip">
        <source></source>
        <translation>Der Name der Gruppe, zu der der Prozess gehört, welche Rechte er auch gegenwärtig hat.</translation>
    </message>
    <message id="ROPS">
        <source></source>
        <translation>Leseaufrufe (ROPS)</translation>
    </message>
    <message id="ROPS_tip">
        <source></source>
        <translation>Wie viele Systemaufrufe zum Lesen der Prozess gemacht hat. Aus /proc/PID/io; ein Kreuz, wo das nicht gelesen werden darf.</translation>
    </message>
    <message id="RSS">
        <source></source>
        <translation>Residente Größe (RSS)</translation>
    </message>
    <message id="RSS_tip">
        <source></source>
        <translation>Wie viel vom Speicher des Prozesses im RAM liegt, gemeinsam genutzte Seiten eingeschlossen.</translation>
    </message>
    <message id="RSZ">
        <source></source>
        <translation>Residente Größe (RSZ)</translation>
    </message>
    <message id="RSZ_tip">
        <source></source>
        <translation>Wie viel vom Speicher des Prozesses im RAM liegt, gemeinsam genutzte Seiten eingeschlossen.</translation>
    </message>
    <message id="RTPRIO">
        <source></source>
        <translation>Echtzeitpriorität (RTPRIO)</translation>
    </message>
    <message id="RTPRIO_tip">
        <source></source>
        <translation>Die Priorität unter den Echtzeitprozessen, von 1 bis 99, höhere laufen zuerst; ein Strich bei allen anderen Prozessen.</translation>
    </message>
    <message id="RUID">
        <source></source>
        <translation>Reale Benutzer-ID (RUID)</translation>
    </message>
    <message id="RUID_tip">
        <source></source>
        <translation>Die Nummer des Benutzers, der den Prozess gestartet hat, welche Rechte er auch gegenwärtig hat.</translation>
    </message>
    <message id="RUSER">
        <source></source>
        <translation>Realer Benutzer (RUSER)</translation>
    </message>
    <message id="RUSER_tip">
        <source></source>
        <translation>Der Name des Benutzers, der den Prozess gestartet hat, welche Rechte er auch gegenwärtig hat.</translation>
    </message>
    <message id="S">
        <source></source>
        <translation>Zustand (S)</translation>
    </message>
    <message id="S_tip">
        <source></source>
        <translation>Was der Prozess tut: R läuft oder ist lauffähig, S schläft, D wartet auf ein Gerät, I untätiger Kernel-Thread, T angehalten, t von einem Debugger angehalten, Z beendet, aber noch nicht abgeholt.</translation>
    </message>
    <message id="SCH">
        <source></source>
        <translation>Scheduling-Verfahren (SCH)</translation>
    </message>
    <message id="SCH_tip">
        <source></source>
        <translation>Das Scheduling-Verfahren als Zahl: 0 gewöhnlich, 1 FIFO, 2 Round Robin, 3 Batch, 5 Idle, 6 Deadline.</translation>
    </message>
    <message id="SEAT">
        <source></source>
        <translation>Arbeitsplatz (SEAT)</translation>
    </message>
    <message id="SEAT_tip">
        <source></source>
        <translation>Der Arbeitsplatz (Bildschirm, Tastatur und Maus, die zusammengehören) der Anmeldesitzung, zu der der Prozess gehört. Von systemd; ein Strich, wenn es keinen gibt.</translation>
    </message>
    <message id="SESSION">
        <source></source>
        <translation>Anmeldesitzung (SESSION)</translation>
    </message>
    <message id="SESSION_tip">
        <source></source>
        <translation>Die Kennung der Anmeldesitzung, zu der der Prozess gehört. Von systemd; ein Strich, wenn es keine gibt.</translation>
    </message>
    <message id="SGID">
        <source></source>
        <translation>Gesicherte Gruppen-ID (SGID)</translation>
    </message>
    <message id="SGID_tip">
        <source></source>
        <translation>Die Nummer der Gruppe, deren Rechte der Prozess wieder annehmen darf.</translation>
    </message>
    <message id="SGROUP">
        <source></source>
        <translation>Gesicherte Gruppe (SGROUP)</translation>
    </message>
    <message id="SGROUP_tip">
        <source></source>
        <translation>Der Name der Gruppe, deren Rechte der Prozess wieder annehmen darf.</translation>
    </message>
    <message id="SID">
        <source></source>
        <translation>Sitzungs-ID (SID)</translation>
    </message>
    <message id="SID_tip">
        <source></source>
        <translation>Die Nummer der Sitzung, das ist die Prozess-ID des Sitzungsleiters.</translation>
    </message>
    <message id="SIGNAL">
        <source></source>
        <translation>Anstehende Signale (SIGNAL)</translation>
    </message>
    <message id="SIGNAL_tip">
        <source></source>
        <translation>Die Signale, die auf Zustellung an den Prozess warten, als hexadezimale Maske. Dasselbe wie PENDING.</translation>
    </message>
    <message id="SIZE">
        <source></source>
        <translation>Auslagerungsgröße (SIZE)</translation>
    </message>
    <message id="SIZE_tip">
        <source></source>
        <translation>Eine grobe Schätzung des Auslagerungsspeichers, den der Prozess bräuchte, wenn sein ganzer beschreibbarer Speicher ausgelagert würde.</translation>
    </message>
    <message id="SLICE">
        <source></source>
        <translation>Slice (SLICE)</translation>
    </message>
    <message id="SLICE_tip">
        <source></source>
        <translation>Die Slice, ein Zweig im Baum der Kontrollgruppen, zu der der Prozess gehört. Von systemd; ein Strich, wenn es keine gibt.</translation>
    </message>
    <message id="SPID">
        <source></source>
        <translation>Thread-ID (SPID)</translation>
    </message>
    <message id="SPID_tip">
        <source></source>
        <translation>Die Nummer des Haupt-Threads des Prozesses, die gleich der Prozess-ID ist. Dasselbe wie LWP.</translation>
    </message>
    <message id="STACKP">
        <source></source>
        <translation>Stapeladresse (STACKP)</translation>
    </message>
    <message id="STACKP_tip">
        <source></source>
        <translation>Die Adresse des unteren Endes des Stapels, hexadezimal; null, wo sie nicht gelesen werden darf.</translation>
    </message>
    <message id="START">
        <source></source>
        <translation>Startzeit (START)</translation>
    </message>
    <message id="START_tip">
        <source></source>
        <translation>Wann der Prozess gestartet wurde: die Uhrzeit innerhalb der letzten 24 Stunden, sonst das Datum.</translation>
    </message>
    <message id="STARTED">
        <source></source>
        <translation>Startzeit (STARTED)</translation>
    </message>
    <message id="STARTED_tip">
        <source></source>
        <translation>Wann der Prozess gestartet wurde: die Uhrzeit mit Sekunden innerhalb der letzten 24 Stunden, sonst das Datum.</translation>
    </message>
    <message id="STAT">
        <source></source>
        <translation>Zustand (STAT)</translation>
    </message>
    <message id="STAT_tip">
        <source></source>
        <translation>Der Buchstabe des Zustands und weitere dahinter: &lt; hohe Priorität, N niedrige Priorität, L Seiten im Speicher gesperrt, s Sitzungsleiter, l mehrere Threads, + im Vordergrund seines Terminals.</translation>
    </message>
    <message id="STIME">
        <source></source>
        <translation>Startzeit (STIME)</translation>
    </message>
    <message id="STIME_tip">
        <source></source>
        <translation>Wann der Prozess gestartet wurde: die Uhrzeit für heute, das Datum für frühere Tage, das Jahr für frühere Jahre.</translation>
    </message>
    <message id="SUID">
        <source></source>
        <translation>Gesicherte Benutzer-ID (SUID)</translation>
    </message>
    <message id="SUID_tip">
        <source></source>
        <translation>Die Nummer des Benutzers, dessen Rechte der Prozess wieder annehmen darf.</translation>
    </message>
    <message id="SUPGID">
        <source></source>
        <translation>IDs der Zusatzgruppen (SUPGID)</translation>
    </message>
    <message id="SUPGID_tip">
        <source></source>
        <translation>Die Nummern der weiteren Gruppen, deren Rechte der Prozess hat; ein Strich, wenn es keine gibt.</translation>
    </message>
    <message id="SUPGRP">
        <source></source>
        <translation>Zusatzgruppen (SUPGRP)</translation>
    </message>
    <message id="SUPGRP_tip">
        <source></source>
        <translation>Die Namen der weiteren Gruppen, deren Rechte der Prozess hat; ein Strich, wenn es keine gibt.</translation>
    </message>
    <message id="SUSER">
        <source></source>
        <translation>Gesicherter Benutzer (SUSER)</translation>
    </message>
    <message id="SUSER_tip">
        <source></source>
        <translation>Der Name des Benutzers, dessen Rechte der Prozess wieder annehmen darf.</translation>
    </message>
    <message id="SVGID">
        <source></source>
        <translation>Gesicherte Gruppen-ID (SVGID)</translation>
    </message>
    <message id="SVGID_tip">
        <source></source>
        <translation>Die Nummer der Gruppe, deren Rechte der Prozess wieder annehmen darf. Dasselbe wie SGID.</translation>
    </message>
    <message id="SVGROUP">
        <source></source>
        <translation>Gesicherte Gruppe (SVGROUP)</translation>
    </message>
    <message id="SVGROUP_tip">
        <source></source>
        <translation>Der Name der Gruppe, deren Rechte der Prozess wieder annehmen darf. Dasselbe wie SGROUP.</translation>
    </message>
    <message id="SVUID">
        <source></source>
        <translation>Gesicherte Benutzer-ID (SVUID)</translation>
    </message>
    <message id="SVUID_tip">
        <source></source>
        <translation>Die Nummer des Benutzers, dessen Rechte der Prozess wieder annehmen darf. Dasselbe wie SUID.</translation>
    </message>
    <message id="SVUSER">
        <source></source>
        <translation>Gesicherter Benutzer (SVUSER)</translation>
    </message>
    <message id="SVUSER_tip">
        <source></source>
        <translation>Der Name des Benutzers, dessen Rechte der Prozess wieder annehmen darf. Dasselbe wie SUSER.</translation>
    </message>
    <message id="SZ">
        <source></source>
        <translation>Größe in Seiten (SZ)</translation>
    </message>
    <message id="SZ_tip">
        <source></source>
        <translation>Die Größe des gesamten Speichers, den der Prozess eingeblendet hat, wie ps sie in Speicherseiten des Rechners zählt. Dasselbe wie VSZ bis auf Teile einer Seite.</translation>
    </message>
    <message id="TGID">
        <source></source>
        <translation>Threadgruppen-ID (TGID)</translation>
    </message>
    <message id="TGID_tip">
        <source></source>
        <translation>Die Nummer, die alle Threads des Prozesses gemeinsam haben; das ist die Prozess-ID.</translation>
    </message>
    <message id="THCNT">
        <source></source>
        <translation>Threads (THCNT)</translation>
    </message>
    <message id="THCNT_tip">
        <source></source>
        <translation>Wie viele Threads der Prozess hat. Dasselbe wie NLWP.</translation>
    </message>
    <message id="TID">
        <source></source>
        <translation>Thread-ID (TID)</translation>
    </message>
    <message id="TID_tip">
        <source></source>
        <translation>Die Nummer des Haupt-Threads des Prozesses, die gleich der Prozess-ID ist. Dasselbe wie LWP.</translation>
    </message>
    <message id="TIME">
        <source></source>
        <translation>CPU-Zeit (TIME)</translation>
    </message>
    <message id="TIME_tip">
        <source></source>
        <translation>Die CPU-Zeit, die der Prozess seit seinem Start verbraucht hat, Benutzer- und Systemzeit zusammen, in Tagen, Stunden, Minuten und Sekunden.</translation>
    </message>
    <message id="TIMENS">
        <source></source>
        <translation>Zeit-Namensraum (TIMENS)</translation>
    </message>
    <message id="TIMENS_tip">
        <source></source>
        <translation>Die Inode-Nummer des Namensraums für die Uhren, in dem der Prozess läuft. Prozesse mit gleicher Nummer teilen ihn.</translation>
    </message>
    <message id="TPGID">
        <source></source>
        <translation>Vordergrund-Gruppen-ID (TPGID)</translation>
    </message>
    <message id="TPGID_tip">
        <source></source>
        <translation>Die Prozessgruppe im Vordergrund des Terminals, zu dem der Prozess gehört; -1 ohne Terminal.</translation>
    </message>
    <message id="TRS">
        <source></source>
        <translation>Codegröße (TRS)</translation>
    </message>
    <message id="TRS_tip">
        <source></source>
        <translation>Die Größe des ausführbaren Codes. Trotz des Namens muss nicht alles davon im RAM liegen.</translation>
    </message>
    <message id="TRSS">
        <source></source>
        <translation>Codegröße (TRSS)</translation>
    </message>
    <message id="TRSS_tip">
        <source></source>
        <translation>Die Größe des ausführbaren Codes. Dasselbe wie TRS.</translation>
    </message>
    <message id="TSIG">
        <source></source>
        <translation>Anstehende Signale des Threads (TSIG)</translation>
    </message>
    <message id="TSIG_tip">
        <source></source>
        <translation>Die Signale, die auf Zustellung allein an den Haupt-Thread des Prozesses warten, als hexadezimale Maske.</translation>
    </message>
    <message id="TSIZ">
        <source></source>
        <translation>Codegröße (TSIZ)</translation>
    </message>
    <message id="TSIZ_tip">
        <source></source>
        <translation>Die Größe des ausführbaren Codes.</translation>
    </message>
    <message id="TT">
        <source></source>
        <translation>Terminal (TT)</translation>
    </message>
    <message id="TT_tip">
        <source></source>
        <translation>Das Terminal, zu dem der Prozess gehört; ein Fragezeichen, wenn es keines gibt.</translation>
    </message>
    <message id="TTY">
        <source></source>
        <translation>Terminal (TTY)</translation>
    </message>
    <message id="TTY_tip">
        <source></source>
        <translation>Das Terminal, zu dem der Prozess gehört; ein Fragezeichen, wenn es keines gibt. Dasselbe wie TT.</translation>
    </message>
    <message id="TTY4">
        <source></source>
        <translation>Terminal, gekürzt (TTY4)</translation>
    </message>
    <message id="TTY4_tip">
        <source></source>
        <translation>Das Terminal, zu dem der Prozess gehört, mit den letzten Buchstaben seines Namens; ein Fragezeichen, wenn es keines gibt.</translation>
    </message>
    <message id="UCMD">
        <source></source>
        <translation>Befehlsname (UCMD)</translation>
    </message>
    <message id="UCMD_tip">
        <source></source>
        <translation>Der Name des Befehls ohne seine Argumente. Dasselbe wie COMM.</translation>
    </message>
    <message id="UID">
        <source></source>
        <translation>Benutzer-ID (UID)</translation>
    </message>
    <message id="UID_tip">
        <source></source>
        <translation>Die Nummer des Benutzers, dessen Rechte der Prozess hat.</translation>
    </message>
    <message id="UNIT">
        <source></source>
        <translation>System-Unit (UNIT)</translation>
    </message>
    <message id="UNIT_tip">
        <source></source>
        <translation>Die Unit (ein Dienst, ein Scope), zu der der Prozess gehört. Von systemd; ein Strich, wenn es keine gibt.</translation>
    </message>
    <message id="USER">
        <source></source>
        <translation>Benutzer (USER)</translation>
    </message>
    <message id="USER_tip">
        <source></source>
        <translation>Der Name des Benutzers, dessen Rechte der Prozess hat. Dasselbe wie EUSER.</translation>
    </message>
    <message id="USERNS">
        <source></source>
        <translation>Benutzer-Namensraum (USERNS)</translation>
    </message>
    <message id="USERNS_tip">
        <source></source>
        <translation>Die Inode-Nummer des Namensraums für Benutzer, in dem der Prozess läuft. Prozesse mit gleicher Nummer teilen ihn.</translation>
    </message>
    <message id="USS">
        <source></source>
        <translation>Eigener Speicher (USS)</translation>
    </message>
    <message id="USS_tip">
        <source></source>
        <translation>Speicher im RAM, den der Prozess mit keinem anderen teilt: was bei seinem Ende frei würde. Langsam zu ermitteln; ein Kreuz, wo das nicht gelesen werden darf.</translation>
    </message>
    <message id="UTSNS">
        <source></source>
        <translation>Rechnernamen-Namensraum (UTSNS)</translation>
    </message>
    <message id="UTSNS_tip">
        <source></source>
        <translation>Die Inode-Nummer des Namensraums für den Rechnernamen, in dem der Prozess läuft. Prozesse mit gleicher Nummer teilen ihn.</translation>
    </message>
    <message id="UUNIT">
        <source></source>
        <translation>Benutzer-Unit (UUNIT)</translation>
    </message>
    <message id="UUNIT_tip">
        <source></source>
        <translation>Die Unit der eigenen Diensteverwaltung des Benutzers, zu der der Prozess gehört. Von systemd; ein Strich, wenn es keine gibt.</translation>
    </message>
    <message id="VSZ">
        <source></source>
        <translation>Virtuelle Größe (VSZ)</translation>
    </message>
    <message id="VSZ_tip">
        <source></source>
        <translation>Die Größe des gesamten Speichers, den der Prozess eingeblendet hat, ob benutzt oder nicht.</translation>
    </message>
    <message id="WBYTES">
        <source></source>
        <translation>Auf Datenträger geschrieben (WBYTES)</translation>
    </message>
    <message id="WBYTES_tip">
        <source></source>
        <translation>Bytes, die wegen des Prozesses an die Speichergeräte gesendet wurden. Aus /proc/PID/io; ein Kreuz, wo das nicht gelesen werden darf.</translation>
    </message>
    <message id="WCBYTES">
        <source></source>
        <translation>Verworfene geschriebene Bytes (WCBYTES)</translation>
    </message>
    <message id="WCBYTES_tip">
        <source></source>
        <translation>Bytes, die der Prozess in Dateien geschrieben hat, die gelöscht oder gekürzt wurden, bevor sie das Speichergerät erreichten. Aus /proc/PID/io; ein Kreuz, wo das nicht gelesen werden darf.</translation>
    </message>
    <message id="WCHAN">
        <source></source>
        <translation>Wartet in (WCHAN)</translation>
    </message>
    <message id="WCHAN_tip">
        <source></source>
        <translation>Die Funktion des Kernels, in der der Prozess schläft; ein Strich, während er läuft oder wo das nicht gelesen werden darf.</translation>
    </message>
    <message id="WCHARS">
        <source></source>
        <translation>Geschriebene Bytes (WCHARS)</translation>
    </message>
    <message id="WCHARS_tip">
        <source></source>
        <translation>Bytes, die der Prozess mit seinen Schreibaufrufen übergeben hat, ob an einen Datenträger, einen Cache oder ein Terminal. Aus /proc/PID/io; ein Kreuz, wo das nicht gelesen werden darf.</translation>
    </message>
    <message id="WOPS">
        <source></source>
        <translation>Schreibaufrufe (WOPS)</translation>
    </message>
    <message id="WOPS_tip">
        <source></source>
        <translation>Wie viele Systemaufrufe zum Schreiben der Prozess gemacht hat. Aus /proc/PID/io; ein Kreuz, wo das nicht gelesen werden darf.</translation>
    </message>
    <message id="ZONE">
        <source></source>
        <translation>Sicherheitskontext (ZONE)</translation>
    </message>
    <message id="ZONE_tip">
        <source></source>
        <translation>Die Kennung, die die Zugriffskontrolle des Kernels dem Prozess gegeben hat; ein Strich, wenn es keine gibt. Dasselbe wie CONTEXT.</translation>
    </message>
    <message id="menu_application">
        <source></source>
        <translation>&amp;Lurkwell</translation>
    </message>
    <message id="menu_file">
        <source></source>
        <translation>&amp;Datei</translation>
    </message>
    <message id="menu_edit">
        <source></source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message id="menu_view">
        <source></source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message id="menu_columns">
        <source></source>
        <translation>&amp;Spalten</translation>
    </message>
    <message id="menu_process">
        <source></source>
        <translation>&amp;Prozess</translation>
    </message>
    <message id="menu_window">
        <source></source>
        <translation>&amp;Fenster</translation>
    </message>
    <message id="menu_help">
        <source></source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message id="menu_application_about">
        <source></source>
        <translation>Über &amp;Lurkwell</translation>
    </message>
    <message id="menu_application_preferences">
        <source></source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message id="menu_application_quit">
        <source></source>
        <translation>Lurkwell &amp;beenden</translation>
    </message>
    <message id="menu_file_new_cpu_history">
        <source></source>
        <translation>Neues CPU-&amp;Verlaufsfenster</translation>
    </message>
    <message id="menu_file_new_logging">
        <source></source>
        <translation>Neues &amp;Protokollfenster</translation>
    </message>
    <message id="menu_file_details">
        <source></source>
        <translation>&amp;Details anzeigen</translation>
    </message>
    <message id="menu_file_record">
        <source></source>
        <translation>&amp;Aufzeichnen…</translation>
    </message>
    <message id="menu_file_open_recording">
        <source></source>
        <translation>Aufzeichnung ö&amp;ffnen…</translation>
    </message>
    <message id="menu_file_close_window">
        <source></source>
        <translation>Fenster &amp;schließen</translation>
    </message>
    <message id="menu_edit_copy">
        <source></source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message id="menu_edit_select_all">
        <source></source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message id="menu_edit_select_children">
        <source></source>
        <translation>Kin&amp;dprozesse auswählen</translation>
    </message>
    <message id="menu_edit_filter">
        <source></source>
        <translation>&amp;Filtern…</translation>
    </message>
    <message id="menu_view_update_now">
        <source></source>
        <translation>Jetzt akt&amp;ualisieren</translation>
    </message>
    <message id="menu_view_pause">
        <source></source>
        <translation>&amp;Pause</translation>
    </message>
    <message id="menu_view_follow">
        <source></source>
        <translation>Auswahl am Platz &amp;halten</translation>
    </message>
    <message id="menu_view_sort_by">
        <source></source>
        <translation>&amp;Sortieren nach</translation>
    </message>
    <message id="menu_view_column_left">
        <source></source>
        <translation>Sortierte Spalte nach &amp;links</translation>
    </message>
    <message id="menu_view_column_right">
        <source></source>
        <translation>Sortierte Spalte nach &amp;rechts</translation>
    </message>
    <message id="menu_view_column_wider">
        <source></source>
        <translation>Sortierte Spalte &amp;breiter</translation>
    </message>
    <message id="menu_view_column_narrower">
        <source></source>
        <translation>Sortierte Spalte sch&amp;maler</translation>
    </message>
    <message id="menu_view_column_fit">
        <source></source>
        <translation>Sortierte Spalte s&amp;o breit wie ihr Inhalt</translation>
    </message>
    <message id="menu_view_shape_list">
        <source></source>
        <translation>L&amp;iste</translation>
    </message>
    <message id="menu_view_shape_tree">
        <source></source>
        <translation>B&amp;aum</translation>
    </message>
    <message id="menu_view_shape_applications">
        <source></source>
        <translation>Nach An&amp;wendung</translation>
    </message>
    <message id="menu_view_unfold_all">
        <source></source>
        <translation>Alles au&amp;fklappen</translation>
    </message>
    <message id="menu_view_fold_all">
        <source></source>
        <translation>Alles &amp;zuklappen</translation>
    </message>
    <message id="menu_view_scope">
        <source></source>
        <translation>Anzei&amp;gen</translation>
    </message>
    <message id="menu_scope_all">
        <source></source>
        <translation>&amp;Alle Prozesse</translation>
    </message>
    <message id="menu_scope_mine">
        <source></source>
        <translation>&amp;Eigene Prozesse</translation>
    </message>
    <message id="menu_scope_others">
        <source></source>
        <translation>Prozesse anderer &amp;Benutzer</translation>
    </message>
    <message id="menu_scope_applications">
        <source></source>
        <translation>A&amp;nwendungen</translation>
    </message>
    <message id="menu_scope_without_kernel">
        <source></source>
        <translation>&amp;Ohne Kernel-Threads</translation>
    </message>
    <message id="menu_scope_busy">
        <source></source>
        <translation>Ak&amp;tive Prozesse</translation>
    </message>
    <message id="menu_columns_set">
        <source></source>
        <translation>S&amp;paltensatz</translation>
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
        <translation>S&amp;peicher</translation>
    </message>
    <message id="menu_set_disk_network">
        <source></source>
        <translation>&amp;Datenträger und Netzwerk</translation>
    </message>
    <message id="menu_set_commands">
        <source></source>
        <translation>&amp;Befehle</translation>
    </message>
    <message id="menu_set_containers">
        <source></source>
        <translation>Con&amp;tainer</translation>
    </message>
    <message id="menu_set_security">
        <source></source>
        <translation>Sicher&amp;heit</translation>
    </message>
    <message id="menu_set_save_as">
        <source></source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message id="menu_set_rename">
        <source></source>
        <translation>U&amp;mbenennen…</translation>
    </message>
    <message id="menu_set_delete">
        <source></source>
        <translation>&amp;Löschen…</translation>
    </message>
    <message id="menu_set_restore">
        <source></source>
        <translation>Zu&amp;rücksetzen…</translation>
    </message>
    <message id="menu_view_show_toolbar">
        <source></source>
        <translation>Werkzeugleis&amp;te anzeigen</translation>
    </message>
    <message id="menu_view_customise_toolbar">
        <source></source>
        <translation>Werkzeugleiste anpass&amp;en…</translation>
    </message>
    <message id="menu_columns_icon">
        <source></source>
        <translation>Sy&amp;mbol</translation>
    </message>
    <message id="menu_columns_indicator">
        <source></source>
        <translation>&amp;Kennzeichen</translation>
    </message>
    <message id="menu_columns_name">
        <source></source>
        <translation>&amp;Name</translation>
    </message>
    <message id="menu_columns_cpu_usage">
        <source></source>
        <translation>&amp;CPU-Auslastung</translation>
    </message>
    <message id="menu_columns_memory">
        <source></source>
        <translation>&amp;Speicher</translation>
    </message>
    <message id="menu_columns_built_in">
        <source></source>
        <translation>Prozess&amp;eigenschaften</translation>
    </message>
    <message id="menu_columns_ps">
        <source></source>
        <translation>ps-Sp&amp;alten</translation>
    </message>
    <message id="column_group_identity">
        <source></source>
        <translation>Identität</translation>
    </message>
    <message id="column_group_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="column_group_memory">
        <source></source>
        <translation>Speicher</translation>
    </message>
    <message id="column_group_network">
        <source></source>
        <translation>Netzwerk</translation>
    </message>
    <message id="column_group_gpu">
        <source></source>
        <translation>GPU</translation>
    </message>
    <message id="column_group_security">
        <source></source>
        <translation>Sicherheit</translation>
    </message>
    <message id="column_group_disk">
        <source></source>
        <translation>Datenträger</translation>
    </message>
    <message id="column_group_users">
        <source></source>
        <translation>Benutzer und Gruppen</translation>
    </message>
    <message id="column_group_terminal">
        <source></source>
        <translation>Terminal und Sitzung</translation>
    </message>
    <message id="column_group_signals">
        <source></source>
        <translation>Signale</translation>
    </message>
    <message id="column_group_belonging">
        <source></source>
        <translation>Zugehörigkeit</translation>
    </message>
    <message id="column_group_other">
        <source></source>
        <translation>Sonstiges</translation>
    </message>
    <message id="column_group_desktop">
        <source></source>
        <translation>Desktop-Anwendung</translation>
    </message>
    <message id="column_group_repeated">
        <source></source>
        <translation>Dasselbe unter anderen Namen</translation>
    </message>
    <message id="column_group_classic">
        <source></source>
        <translation>Classic-Umgebung</translation>
    </message>
    <message id="column_group_not_counted">
        <source></source>
        <translation>Auf diesem System nicht erfasst</translation>
    </message>
    <message id="column_filter">
        <source></source>
        <translation>Spalte suchen</translation>
    </message>
    <message id="column_filter_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n weitere: mehr Buchstaben eingeben</numerusform>
            <numerusform>%n weitere: mehr Buchstaben eingeben</numerusform>
        </translation>
    </message>
    <message id="column_filter_nothing">
        <source></source>
        <translation>Keine Spalte enthält dies in Name oder Beschreibung</translation>
    </message>
    <message id="column_hide">
        <source></source>
        <translation>„%1“ &amp;ausblenden</translation>
    </message>
    <message id="column_of_ps_tip">
        <source></source>
        <translation>Eine Spalte von ps auf diesem System, ausgegeben mit dem Schlüsselwort %1.</translation>
    </message>
    <message id="column_keywords_tip">
        <source></source>
        <translation>Schlüsselwort von ps: %1</translation>
    </message>
    <message id="menu_process_quit_or_kill">
        <source></source>
        <translation>&amp;Beenden oder abwürgen…</translation>
    </message>
    <message id="menu_process_high_priority">
        <source></source>
        <translation>&amp;Hohe Priorität</translation>
    </message>
    <message id="menu_process_normal_priority">
        <source></source>
        <translation>&amp;Normale Priorität</translation>
    </message>
    <message id="menu_process_low_priority">
        <source></source>
        <translation>N&amp;iedrige Priorität</translation>
    </message>
    <message id="menu_process_halt">
        <source></source>
        <translation>&amp;Anhalten…</translation>
    </message>
    <message id="menu_process_continue">
        <source></source>
        <translation>&amp;Fortsetzen</translation>
    </message>
    <message id="menu_process_hide">
        <source></source>
        <translation>A&amp;usblenden</translation>
    </message>
    <message id="menu_process_bring_to_front">
        <source></source>
        <translation>In den &amp;Vordergrund holen</translation>
    </message>
    <message id="menu_process_reveal">
        <source></source>
        <translation>Im &amp;Dateimanager anzeigen</translation>
    </message>
    <message id="menu_process_by_id">
        <source></source>
        <translation>Prozess über ID &amp;suchen…</translation>
    </message>
    <message id="menu_window_show_main">
        <source></source>
        <translation>&amp;Prozesse</translation>
    </message>
    <message id="menu_window_remembered">
        <source></source>
        <translation>&amp;Gemerkte Fenster…</translation>
    </message>
    <message id="menu_window_close_all">
        <source></source>
        <translation>Alle Verläufe, Protokolle und Details &amp;schließen</translation>
    </message>
    <message id="menu_window_show_animated_view">
        <source></source>
        <translation>&amp;Animierte Ansicht</translation>
    </message>
    <message id="menu_view_overlay">
        <source></source>
        <translation>Animierte Ansicht über &amp;dem Bildschirm</translation>
    </message>
    <message id="quintessential_window_title">
        <source></source>
        <translation>Animierte Ansicht</translation>
    </message>
    <message id="quintessential_spoken">
        <source></source>
        <translation>Prozesse als Symbole, beschäftigtere größer: %1. Ihre Werte nennt die Prozesstabelle.</translation>
    </message>
    <message id="quintessential_menu_toggle">
        <source></source>
        <translation>Über dem ganzen &amp;Bildschirm</translation>
    </message>
    <message id="quintessential_menu_processes">
        <source></source>
        <translation>&amp;Prozesse anzeigen</translation>
    </message>
    <message id="quintessential_menu_close">
        <source></source>
        <translation>&amp;Schließen</translation>
    </message>
    <message id="quintessential_cannot_draw">
        <source></source>
        <translation>Die animierte Ansicht lässt sich nicht zeichnen: Diese Anzeige bietet weder OpenGL 3.3 noch OpenGL ES 3.0, oder es funktioniert nicht mehr. Alles andere in Lurkwell läuft weiter.</translation>
    </message>
    <message id="overlay_needs_compositor">
        <source></source>
        <translation>Die animierte Ansicht kann hier nicht durchscheinend sein.</translation>
    </message>
    <message id="overlay_needs_compositor_text">
        <source></source>
        <translation>Auf dieser Arbeitsfläche werden Fenster nicht überblendet (es läuft kein Compositor). Die Ansicht füllt stattdessen den ganzen Bildschirm; mit Esc oder %1 verlassen Sie sie.</translation>
    </message>
    <message id="overlay_needs_layer">
        <source></source>
        <translation>Die animierte Ansicht kann hier nicht über anderen Fenstern liegen.</translation>
    </message>
    <message id="overlay_needs_layer_text">
        <source></source>
        <translation>Diese Arbeitsumgebung lässt kein Programm ein Fenster über denen anderer halten. Die Ansicht füllt stattdessen den ganzen Bildschirm; mit Esc oder %1 verlassen Sie sie.</translation>
    </message>
    <message id="menu_help_help">
        <source></source>
        <translation>Lurkwell-&amp;Hilfe</translation>
    </message>
    <message id="main_window_title">
        <source></source>
        <translation>Prozesse</translation>
    </message>
    <message id="main_window_title_paused">
        <source></source>
        <translation>Prozesse (pausiert)</translation>
    </message>
    <message id="main_window_filter_placeholder">
        <source></source>
        <translation>Prozesse filtern</translation>
    </message>
    <message id="main_window_filter_tip">
        <source></source>
        <translation>Zeigt nur bestimmte Prozesse, zum Beispiel:&lt;br&gt;&lt;b&gt;ssh&lt;/b&gt; – mit diesem Text in der ID oder einer angezeigten Spalte&lt;br&gt;&lt;b&gt;name:post&lt;/b&gt;, &lt;b&gt;user:root,mail&lt;/b&gt;, &lt;b&gt;name:/^k.*d$/&lt;/b&gt; – mit diesem Text in einer bestimmten Eigenschaft&lt;br&gt;&lt;b&gt;mem&amp;gt;500M&lt;/b&gt;, &lt;b&gt;nice&amp;lt;0&lt;/b&gt;, &lt;b&gt;time&amp;gt;=1h&lt;/b&gt; – mit mehr oder weniger&lt;br&gt;&lt;b&gt;port:443&lt;/b&gt;, &lt;b&gt;file:/var/log&lt;/b&gt; – mit einem solchen Socket oder einer solchen Datei offen&lt;br&gt;&lt;b&gt;-sleep&lt;/b&gt; – ohne; &lt;b&gt;a b&lt;/b&gt; – beides; &lt;b&gt;a | b&lt;/b&gt; – eines davon</translation>
    </message>
    <message id="main_window_filter_hides_all">
        <source></source>
        <translation>Kein Prozess entspricht dem Filter. Esc zeigt wieder alle.</translation>
    </message>
    <message id="field_clear">
        <source></source>
        <translation>Feld leeren</translation>
    </message>
    <message id="filter_last">
        <source></source>
        <translation>Zuletzt benutzte Filter</translation>
    </message>
    <message id="filter_none_yet">
        <source></source>
        <translation>Noch kein Filter benutzt</translation>
    </message>
    <message id="setting_title_ALERT_RULES">
        <source></source>
        <translation>Alarme: Regeln</translation>
    </message>
    <message id="setting_ALERT_RULES">
        <source></source>
        <translation>Die Regeln für Alarme, jede mit ihrem Befehl und ob sie eingeschaltet ist. Sie werden im Fenster für Alarme erstellt.</translation>
    </message>
    <message id="setting_title_ALERT_NOTIFICATIONS">
        <source></source>
        <translation>Alarme: Benachrichtigungen</translation>
    </message>
    <message id="setting_ALERT_NOTIFICATIONS">
        <source></source>
        <translation>Eine Benachrichtigung auf der Arbeitsfläche anzeigen, wenn ein Alarm beginnt. Im Fenster für Alarme und im Protokoll steht er auf jeden Fall.</translation>
    </message>
    <message id="setting_title_ALERTS_WINDOW_FRAME">
        <source></source>
        <translation>Alarme: Position und Größe des Fensters</translation>
    </message>
    <message id="setting_ALERTS_WINDOW_FRAME">
        <source></source>
        <translation>Position und Größe des Fensters für Alarme.</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_ALERTS_WINDOW">
        <source></source>
        <translation>Alarme: Fenster war geöffnet</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_ALERTS_WINDOW">
        <source></source>
        <translation>Das Fenster für Alarme beim Start öffnen. Das Programm merkt sich hier, ob es geöffnet war.</translation>
    </message>
    <message id="menu_process_alert">
        <source></source>
        <translation>Alar&amp;mieren, wenn…</translation>
    </message>
    <message id="menu_window_show_alerts">
        <source></source>
        <translation>A&amp;larme</translation>
    </message>
    <message id="help_menu_window_show_alerts">
        <source></source>
        <translation>Regeln dafür, was Ihnen gemeldet werden soll, was sie jetzt ergeben und was geschehen ist</translation>
    </message>
    <message id="help_menu_process_alert">
        <source></source>
        <translation>melden lassen, wenn ein Prozess wie der ausgewählte etwas tut</translation>
    </message>
    <message id="alerts_title">
        <source></source>
        <translation>Alarme</translation>
    </message>
    <message id="alerts_rules">
        <source></source>
        <translation>Regeln</translation>
    </message>
    <message id="alerts_occurrences">
        <source></source>
        <translation>Was geschehen ist</translation>
    </message>
    <message id="alerts_none">
        <source></source>
        <translation>Es gibt noch keine Regeln. Eine Regel besagt, was Ihnen gemeldet werden soll, etwa „any cpu&gt;90% for 10m“ oder „unit:backup.service absent for 1h“.</translation>
    </message>
    <message id="alerts_column_rule">
        <source></source>
        <translation>Regel</translation>
    </message>
    <message id="alerts_column_state">
        <source></source>
        <translation>Jetzt</translation>
    </message>
    <message id="alerts_column_last">
        <source></source>
        <translation>Letzter Alarm</translation>
    </message>
    <message id="alerts_column_began">
        <source></source>
        <translation>Beginn</translation>
    </message>
    <message id="alerts_column_process">
        <source></source>
        <translation>Prozess</translation>
    </message>
    <message id="alerts_column_lasted">
        <source></source>
        <translation>Dauer</translation>
    </message>
    <message id="alerts_column_figures">
        <source></source>
        <translation>Werte</translation>
    </message>
    <message id="alerts_add">
        <source></source>
        <translation>Hinzufügen…</translation>
    </message>
    <message id="alerts_change">
        <source></source>
        <translation>Ändern…</translation>
    </message>
    <message id="alerts_remove">
        <source></source>
        <translation>Entfernen</translation>
    </message>
    <message id="alerts_add_title">
        <source></source>
        <translation>Neue Regel</translation>
    </message>
    <message id="alerts_change_title">
        <source></source>
        <translation>Regel ändern</translation>
    </message>
    <message id="alerts_remove_question">
        <source></source>
        <translation>Diese Regel entfernen?</translation>
    </message>
    <message id="alerts_notifies">
        <source></source>
        <translation>Auf der Arbeitsfläche benachrichtigen</translation>
    </message>
    <message id="alerts_show_process">
        <source></source>
        <translation>Prozess anzeigen</translation>
    </message>
    <message id="alerts_show_window">
        <source></source>
        <translation>Alarme anzeigen</translation>
    </message>
    <message id="alerts_show_log">
        <source></source>
        <translation>Protokoll anzeigen</translation>
    </message>
    <message id="alerts_never">
        <source></source>
        <translation>Nie</translation>
    </message>
    <message id="alerts_state_off">
        <source></source>
        <translation>Aus</translation>
    </message>
    <message id="alerts_state_damaged">
        <source></source>
        <translation>Das Gespeicherte ist nicht lesbar; ändern Sie die Regel oder entfernen Sie sie.</translation>
    </message>
    <message id="alerts_state_calm">
        <source></source>
        <translation>Nicht erfüllt</translation>
    </message>
    <message id="alerts_state_pending">
        <source></source>
        <translation>Seit %1 von %2 erfüllt</translation>
    </message>
    <message id="alerts_state_firing">
        <source></source>
        <translation>Alarm</translation>
    </message>
    <message id="alerts_state_firing_for" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Alarm: %n Prozess</numerusform>
            <numerusform>Alarm: %n Prozesse</numerusform>
        </translation>
    </message>
    <message id="alerts_not_allowed">
        <source></source>
        <translation>nicht feststellbar bei %1: nicht erlaubt</translation>
    </message>
    <message id="alerts_not_counted">
        <source></source>
        <translation>nicht feststellbar bei %1: auf diesem Rechner nicht erfasst</translation>
    </message>
    <message id="alerts_not_yet_known">
        <source></source>
        <translation>noch nicht feststellbar bei %1</translation>
    </message>
    <message id="alerts_nothing_there">
        <source></source>
        <translation>Kein solcher Prozess</translation>
    </message>
    <message id="alerts_together">
        <source></source>
        <translation>Alle zusammen</translation>
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
        <translation>bisher %1</translation>
    </message>
    <message id="alerts_lasted">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="alerts_lasted_to_process_end">
        <source></source>
        <translation>%1; der Prozess endete</translation>
    </message>
    <message id="alerts_lasted_to_rule_change">
        <source></source>
        <translation>%1; die Regel wurde geändert</translation>
    </message>
    <message id="alerts_no_condition">
        <source></source>
        <translation>Eine Regel braucht eine Bedingung, etwa „cpu&gt;90%“.</translation>
    </message>
    <message id="alerts_no_span">
        <source></source>
        <translation>Zu „%1“ gehört eine Zeit, etwa 30s, 5m oder 1h30m.</translation>
    </message>
    <message id="alerts_too_long">
        <source></source>
        <translation>„%1“ ist länger als die 30 Tage, die eine Regel warten kann.</translation>
    </message>
    <message id="alerts_twice">
        <source></source>
        <translation>„%1“ steht zweimal da.</translation>
    </message>
    <message id="alerts_does_not_fit">
        <source></source>
        <translation>„%1“ bedeutet in einer Regel dieser Art nichts.</translation>
    </message>
    <message id="alerts_unknown_word">
        <source></source>
        <translation>„%1“ steht hinter der Zeit; Bedingungen stehen vor „for“ und „until“.</translation>
    </message>
    <message id="alerts_no_total">
        <source></source>
        <translation>Hinter „total“ steht der Vergleich eines Wertes, der sich summieren lässt, etwa „mem&gt;8G“.</translation>
    </message>
    <message id="alerts_other_total">
        <source></source>
        <translation>Hinter „until“ steht ein Vergleich desselben Wertes wie hinter „total“.</translation>
    </message>
    <message id="alerts_text_too_large">
        <source></source>
        <translation>Eine Regel hat höchstens %1 Zeichen.</translation>
    </message>
    <message id="alerts_rule_label">
        <source></source>
        <translation>&amp;Regel:</translation>
    </message>
    <message id="alerts_rule_placeholder">
        <source></source>
        <translation>name:postgres mem&gt;4G for 5m until mem&lt;3G</translation>
    </message>
    <message id="alerts_trial_label">
        <source></source>
        <translation>Jetzt:</translation>
    </message>
    <message id="alerts_trial_wait">
        <source></source>
        <translation>Wird geprüft…</translation>
    </message>
    <message id="alerts_trial_none">
        <source></source>
        <translation>Kein Prozess erfüllt sie.</translation>
    </message>
    <message id="alerts_trial_some">
        <source></source>
        <translation>Prozesse, die sie erfüllen: %1</translation>
    </message>
    <message id="alerts_trial_total" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 in %n Prozess</numerusform>
            <numerusform>%1 in %n Prozessen</numerusform>
        </translation>
    </message>
    <message id="alerts_trial_met">
        <source></source>
        <translation>Die Bedingung ist erfüllt.</translation>
    </message>
    <message id="alerts_trial_not_met">
        <source></source>
        <translation>Die Bedingung ist nicht erfüllt.</translation>
    </message>
    <message id="alerts_command_label">
        <source></source>
        <translation>&amp;Befehl:</translation>
    </message>
    <message id="alerts_command_placeholder">
        <source></source>
        <translation>Es wird nichts gestartet</translation>
    </message>
    <message id="alerts_command_tip">
        <source></source>
        <translation>Ein Programm und seine Argumente, die gestartet werden, wenn ein Alarm beginnt. Es gibt keine Shell: Wörter werden durch Leerzeichen getrennt, Anführungszeichen halten mehrere zusammen. Die Umgebung enthält LURKWELL_ALERT_RULE, _TIME, _PID, _NAME und _FIGURES.</translation>
    </message>
    <message id="alerts_command_no_end">
        <source></source>
        <translation>Im Befehl fehlt zu einem Anführungszeichen das zweite.</translation>
    </message>
    <message id="alerts_command_long">
        <source></source>
        <translation>Der Befehl ist zu lang.</translation>
    </message>
    <message id="alerts_command_not_started">
        <source></source>
        <translation>der Befehl konnte nicht gestartet werden: %1</translation>
    </message>
    <message id="alerts_command_status">
        <source></source>
        <translation>der Befehl endete mit Status %1</translation>
    </message>
    <message id="alerts_command_too_long">
        <source></source>
        <translation>der Befehl brauchte länger als %1 Sekunden und wurde beendet</translation>
    </message>
    <message id="alerts_command_left_out">
        <source></source>
        <translation>zu viele Befehle auf einmal; einige wurden ausgelassen</translation>
    </message>
    <message id="alerts_editor_note">
        <source></source>
        <translation>Eine Regel ist eine Bedingung wie im Filter. „any“ davor macht daraus einen einzigen Alarm für alle Prozesse, „total mem&gt;8G“ summiert einen Wert, „absent“ wartet darauf, dass es keinen gibt. „for 5m“ sagt, wie lange sie gelten muss, und „until cpu&lt;70%“, was den Alarm beendet; sonst endet er, wenn sie eine halbe Minute nicht erfüllt war.</translation>
    </message>
    <message id="alerts_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n weiterer Alarm</numerusform>
            <numerusform>%n weitere Alarme</numerusform>
        </translation>
    </message>
    <message id="alerts_more_latest">
        <source></source>
        <translation>Der letzte: %1
%2</translation>
    </message>
    <message id="alerts_left_out" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Regel mehr ist gespeichert als die %1, die überwacht werden. Entfernen Sie eine, damit sie ab dem nächsten Start überwacht wird.</numerusform>
            <numerusform>%n Regeln mehr sind gespeichert als die %1, die überwacht werden. Entfernen Sie einige, damit sie ab dem nächsten Start überwacht werden.</numerusform>
        </translation>
    </message>
    <message id="alerts_too_many">
        <source></source>
        <translation>Mehr Regeln sind nicht möglich.</translation>
    </message>
    <message id="alerts_log_problem">
        <source></source>
        <translation>Das Protokoll der Alarme kann nicht geschrieben werden: %1</translation>
    </message>
    <message id="alerts_log_not_shown">
        <source></source>
        <translation>Kein Dateimanager konnte das Protokoll anzeigen; es ist %1</translation>
    </message>
    <message id="alerts_notification_problem">
        <source></source>
        <translation>Benachrichtigungen können nicht angezeigt werden: %1</translation>
    </message>
    <message id="alerts_has_ended">
        <source></source>
        <translation>%1 ist beendet.</translation>
    </message>
    <message id="alerts_not_in_table">
        <source></source>
        <translation>%1 läuft, aber der Filter oder der Umfang der Tabelle lässt den Prozess weg.</translation>
    </message>
    <message id="alerts_not_of_recordings">
        <source></source>
        <translation>Alarme betreffen die laufenden Prozesse. In einer Aufzeichnung wird nichts überwacht.</translation>
    </message>
    <message id="filter_unknown_key">
        <source></source>
        <translation>„%1“ gibt es hier nicht; in Anführungszeichen ist es ein Text, nach dem gesucht wird.</translation>
    </message>
    <message id="filter_unknown_key_near">
        <source></source>
        <translation>„%1“ gibt es hier nicht; es gibt %2.</translation>
    </message>
    <message id="filter_no_value">
        <source></source>
        <translation>Hinter „%1“ steht nichts.</translation>
    </message>
    <message id="filter_no_term">
        <source></source>
        <translation>Neben „%1“ fehlt etwas.</translation>
    </message>
    <message id="filter_no_end">
        <source></source>
        <translation>Zu einem Anführungszeichen fehlt das zweite.</translation>
    </message>
    <message id="filter_text_is_not_compared">
        <source></source>
        <translation>„%1“ ist ein Text; fragen Sie nach %2.</translation>
    </message>
    <message id="filter_no_number">
        <source></source>
        <translation>„%1“ ist keine Zahl wie %2.</translation>
    </message>
    <message id="filter_no_expression">
        <source></source>
        <translation>„%1“ ist kein regulärer Ausdruck: %2.</translation>
    </message>
    <message id="main_window_status_some" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 von %n Prozess: %2; %3 ausgewählt</numerusform>
            <numerusform>%1 von %n Prozessen: %2; %3 ausgewählt</numerusform>
        </translation>
    </message>
    <message id="main_window_status_totals">
        <source></source>
        <translation>: CPU %1 %, Speicher %2</translation>
    </message>
    <message id="main_window_status_paused">
        <source></source>
        <translation>Pausiert: seither %1 beendet, %2 neu.</translation>
    </message>
    <message id="main_window_status_follows">
        <source></source>
        <translation>Auswahl bleibt am Platz.</translation>
    </message>
    <message id="main_window_scope_hides_all">
        <source></source>
        <translation>Kein Prozess gehört dazu: %1. Ansicht › Anzeigen › Alle Prozesse zeigt wieder alle.</translation>
    </message>
    <message id="scope_mine">
        <source></source>
        <translation>eigene</translation>
    </message>
    <message id="scope_others">
        <source></source>
        <translation>andere Benutzer</translation>
    </message>
    <message id="scope_applications">
        <source></source>
        <translation>Anwendungen</translation>
    </message>
    <message id="scope_without_kernel">
        <source></source>
        <translation>ohne Kernel-Threads</translation>
    </message>
    <message id="scope_busy">
        <source></source>
        <translation>aktive</translation>
    </message>
    <message id="scope_filter">
        <source></source>
        <translation>Filter</translation>
    </message>
    <message id="filter_not_allowed">
        <source></source>
        <translation>nicht erlaubt: %1</translation>
    </message>
    <message id="filter_not_allowed_tip">
        <source></source>
        <translation>Prozesse anderer Benutzer, in die nur ein Systemverwalter Einblick hat</translation>
    </message>
    <message id="filter_looks" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Einblick in %n Prozess…</numerusform>
            <numerusform>%n Prozesse werden durchsucht…</numerusform>
        </translation>
    </message>
    <message id="filter_hides_all_not_allowed">
        <source></source>
        <translation>Kein Prozess, in den Sie Einblick haben, entspricht dem Filter; nicht erlaubt: %1. Esc hebt den Filter auf.</translation>
    </message>
    <message id="switch_shape">
        <source></source>
        <translation>Form der Tabelle</translation>
    </message>
    <message id="switch_scope">
        <source></source>
        <translation>Welche Prozesse angezeigt werden</translation>
    </message>
    <message id="switch_columns">
        <source></source>
        <translation>Spaltensatz</translation>
    </message>
    <message id="set_save_title">
        <source></source>
        <translation>Spalten als Satz speichern</translation>
    </message>
    <message id="set_rename_title">
        <source></source>
        <translation>Spaltensatz umbenennen</translation>
    </message>
    <message id="set_title_label">
        <source></source>
        <translation>Name des Satzes:</translation>
    </message>
    <message id="set_title_agree">
        <source></source>
        <translation>Speichern</translation>
    </message>
    <message id="set_without_title">
        <source></source>
        <translation>Ein Satz braucht einen Namen.</translation>
    </message>
    <message id="set_title_too_long">
        <source></source>
        <translation>Der Name darf höchstens %1 Zeichen haben.</translation>
    </message>
    <message id="set_title_is_taken">
        <source></source>
        <translation>Es gibt schon einen Satz „%1“.</translation>
    </message>
    <message id="set_too_many">
        <source></source>
        <translation>Es kann höchstens %1 eigene Sätze geben. Löschen Sie einen, den Sie nicht brauchen.</translation>
    </message>
    <message id="set_question_title">
        <source></source>
        <translation>Spaltensatz</translation>
    </message>
    <message id="set_delete_question">
        <source></source>
        <translation>Den Satz „%1“ löschen? Seine Spalten, ihre Breiten und ihre Reihenfolge lassen sich nicht wiederherstellen.</translation>
    </message>
    <message id="set_delete_agree">
        <source></source>
        <translation>Löschen</translation>
    </message>
    <message id="set_restore_question">
        <source></source>
        <translation>Den Satz „%1“ auf seinen ursprünglichen Stand zurücksetzen? Was Sie daran geändert haben, geht verloren.</translation>
    </message>
    <message id="set_restore_agree">
        <source></source>
        <translation>Zurücksetzen</translation>
    </message>
    <message id="group_kernel_threads">
        <source></source>
        <translation>Kernel-Threads</translation>
    </message>
    <message id="row_level">
        <source></source>
        <translation>, Ebene %1</translation>
    </message>
    <message id="row_folded">
        <source></source>
        <translation>, zugeklappt, %1 darunter</translation>
    </message>
    <message id="row_ended">
        <source></source>
        <translation>, beendet</translation>
    </message>
    <message id="row_zombie">
        <source></source>
        <translation>, Zombie</translation>
    </message>
    <message id="cell_spoken">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="sorted_ascending">
        <source></source>
        <translation>sortiert, kleinste zuerst</translation>
    </message>
    <message id="sorted_descending">
        <source></source>
        <translation>sortiert, größte zuerst</translation>
    </message>
    <message id="row_unfolded">
        <source></source>
        <translation>, aufgeklappt, %1 darunter</translation>
    </message>
    <message id="total_tip" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Summe von %n Prozess, soweit bekannt</numerusform>
            <numerusform>Summe von %n Prozessen, soweit bekannt</numerusform>
        </translation>
    </message>
    <message id="total_memory_tip">
        <source></source>
        <translation>Residenter Speicher: Was Prozesse teilen, zählt anteilig, wo das bekannt ist (PSS), sonst bei jedem von ihnen</translation>
    </message>
    <message id="main_window_status_counts" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Prozess, %1 angezeigt, %2 ausgewählt</numerusform>
            <numerusform>%n Prozesse, %1 angezeigt, %2 ausgewählt</numerusform>
        </translation>
    </message>
    <message id="main_window_helper_unprivileged">
        <source></source>
        <translation>Wirkt nur auf Ihre Prozesse. &lt;a href="rights"&gt;Mehr Rechte…&lt;/a&gt;</translation>
    </message>
    <message id="main_window_helper_absent">
        <source></source>
        <translation>Das Hilfsprogramm läuft nicht: Prozesse lassen sich nicht steuern. &lt;a href="rights"&gt;Warum?&lt;/a&gt;</translation>
    </message>
    <message id="main_window_rights_title">
        <source></source>
        <translation>Lurkwell kann nur Ihre eigenen Prozesse steuern</translation>
    </message>
    <message id="main_window_rights_may_ask">
        <source></source>
        <translation>Ein Systemverwalter kann dem Hilfsprogramm von Lurkwell die Rechte geben, allen Prozessen Signale zu senden und ihre Priorität zu ändern. Das wird einmal gefragt; spätere Starts finden sie vor.</translation>
    </message>
    <message id="main_window_rights_may_not_ask">
        <source></source>
        <translation>Ein installiertes Paket bringt ein Hilfsprogramm mit, dem ein Systemverwalter die Rechte geben kann, allen Prozessen Signale zu senden und ihre Priorität zu ändern.</translation>
    </message>
    <message id="main_window_rights_ask">
        <source></source>
        <translation>Authentifizieren…</translation>
    </message>
    <message id="main_window_rights_close">
        <source></source>
        <translation>Schließen</translation>
    </message>
    <message id="help_title">
        <source></source>
        <translation>Lurkwell-Hilfe</translation>
    </message>
    <message id="help_no_key">
        <source></source>
        <translation>(dafür ist keine Taste eingestellt)</translation>
    </message>
    <message id="help_menu_process_quit_or_kill">
        <source></source>
        <translation>die ausgewählten Prozesse beenden oder abwürgen</translation>
    </message>
    <message id="help_menu_edit_filter">
        <source></source>
        <translation>nur Prozesse mit einem bestimmten Text anzeigen; Esc zeigt alle</translation>
    </message>
    <message id="help_menu_process_by_id">
        <source></source>
        <translation>zu einem Prozess über seine ID gehen</translation>
    </message>
    <message id="help_menu_edit_copy">
        <source></source>
        <translation>die ausgewählten Zeilen kopieren</translation>
    </message>
    <message id="help_menu_file_new_cpu_history">
        <source></source>
        <translation>ein CPU-Verlauf für jeden ausgewählten Prozess</translation>
    </message>
    <message id="help_menu_file_new_logging">
        <source></source>
        <translation>ein Protokoll für jeden ausgewählten Prozess</translation>
    </message>
    <message id="help_menu_file_details">
        <source></source>
        <translation>alles über jeden ausgewählten Prozess: Threads, offene Dateien, Speicher, Umgebung, Grenzen</translation>
    </message>
    <message id="help_menu_view_overlay">
        <source></source>
        <translation>die animierte Ansicht über dem ganzen Bildschirm, und wieder weg</translation>
    </message>
    <message id="help_menu_file_record">
        <source></source>
        <translation>die Prozesse in eine Datei aufzeichnen, um sie später anzusehen; ein zweites Mal beendet es</translation>
    </message>
    <message id="help_menu_set_standard">
        <source></source>
        <translation>Spalten: Standard</translation>
    </message>
    <message id="help_menu_set_cpu">
        <source></source>
        <translation>Spalten: CPU</translation>
    </message>
    <message id="help_menu_set_memory">
        <source></source>
        <translation>Spalten: Speicher</translation>
    </message>
    <message id="help_menu_set_disk_network">
        <source></source>
        <translation>Spalten: Datenträger und Netzwerk</translation>
    </message>
    <message id="help_menu_set_commands">
        <source></source>
        <translation>Spalten: Befehle</translation>
    </message>
    <message id="help_menu_set_containers">
        <source></source>
        <translation>Spalten: Container</translation>
    </message>
    <message id="help_menu_set_security">
        <source></source>
        <translation>Spalten: Sicherheit</translation>
    </message>
    <message id="help_menu_file_open_recording">
        <source></source>
        <translation>eine Aufzeichnung ansehen, in einem eigenen Fenster</translation>
    </message>
    <message id="help_menu_file_close_window">
        <source></source>
        <translation>das Fenster schließen; das letzte beendet das Programm</translation>
    </message>
    <message id="help_menu_application_quit">
        <source></source>
        <translation>beenden; was offen ist, kommt beim nächsten Start wieder</translation>
    </message>
    <message id="help_menu_application_preferences">
        <source></source>
        <translation>die Einstellungen</translation>
    </message>
    <message id="help_menu_edit_select_all">
        <source></source>
        <translation>alle angezeigten Prozesse auswählen</translation>
    </message>
    <message id="help_menu_edit_select_children">
        <source></source>
        <translation>statt der ausgewählten Prozesse deren Kindprozesse auswählen</translation>
    </message>
    <message id="help_menu_view_update_now">
        <source></source>
        <translation>jetzt aktualisieren</translation>
    </message>
    <message id="help_menu_view_pause">
        <source></source>
        <translation>Zeilen und Werte festhalten; noch einmal, um fortzufahren</translation>
    </message>
    <message id="help_menu_view_follow">
        <source></source>
        <translation>die ausgewählte Zeile am Platz halten, während andere sich bewegen</translation>
    </message>
    <message id="help_menu_view_shape_list">
        <source></source>
        <translation>alle Prozesse als Liste anzeigen</translation>
    </message>
    <message id="help_menu_view_shape_tree">
        <source></source>
        <translation>Kindprozesse unter ihren Elternprozessen anzeigen</translation>
    </message>
    <message id="help_menu_view_shape_applications">
        <source></source>
        <translation>Prozesse unter ihren Anwendungen anzeigen</translation>
    </message>
    <message id="help_menu_view_unfold_all">
        <source></source>
        <translation>alle Zeilen aufklappen</translation>
    </message>
    <message id="help_menu_view_fold_all">
        <source></source>
        <translation>alle Zeilen zuklappen</translation>
    </message>
    <message id="help_menu_view_column_left">
        <source></source>
        <translation>die sortierte Spalte nach links schieben</translation>
    </message>
    <message id="help_menu_view_column_right">
        <source></source>
        <translation>nach rechts schieben</translation>
    </message>
    <message id="help_menu_view_column_wider">
        <source></source>
        <translation>breiter machen</translation>
    </message>
    <message id="help_menu_view_column_narrower">
        <source></source>
        <translation>schmaler machen</translation>
    </message>
    <message id="help_menu_view_column_fit">
        <source></source>
        <translation>so breit wie ihren Inhalt machen</translation>
    </message>
    <message id="help_menu_process_halt">
        <source></source>
        <translation>die ausgewählten Prozesse anhalten</translation>
    </message>
    <message id="help_menu_process_continue">
        <source></source>
        <translation>angehaltene fortsetzen</translation>
    </message>
    <message id="help_menu_process_high_priority">
        <source></source>
        <translation>den ausgewählten Prozessen eine hohe Priorität geben</translation>
    </message>
    <message id="help_menu_process_normal_priority">
        <source></source>
        <translation>ihnen die normale Priorität geben</translation>
    </message>
    <message id="help_menu_process_low_priority">
        <source></source>
        <translation>ihnen eine niedrige Priorität geben</translation>
    </message>
    <message id="help_menu_process_bring_to_front">
        <source></source>
        <translation>die ausgewählten Anwendungen in den Vordergrund holen</translation>
    </message>
    <message id="help_menu_process_hide">
        <source></source>
        <translation>ihre Fenster ausblenden</translation>
    </message>
    <message id="help_menu_process_reveal">
        <source></source>
        <translation>ihre Dateien im Dateimanager anzeigen</translation>
    </message>
    <message id="help_menu_help_help">
        <source></source>
        <translation>diese Seite</translation>
    </message>
    <message id="main_window_help_missing">
        <source></source>
        <translation>Die Hilfeseite kann nicht gelesen werden: %1</translation>
    </message>
    <message id="value_not_yet_known">
        <source></source>
        <translation>noch nicht bekannt</translation>
    </message>
    <message id="value_not_allowed">
        <source></source>
        <translation>nicht erlaubt</translation>
    </message>
    <message id="value_not_counted">
        <source></source>
        <translation>auf diesem System nicht erfasst</translation>
    </message>
    <message id="value_not_yet_known_tip">
        <source></source>
        <translation>Noch nicht bekannt: Eine der nächsten Aktualisierungen bringt es.</translation>
    </message>
    <message id="value_not_allowed_tip">
        <source></source>
        <translation>Nicht erlaubt: Bei diesem Prozess darf das nur root lesen. Lurkwell zeigt es, wenn root es startet.</translation>
    </message>
    <message id="value_not_counted_tip">
        <source></source>
        <translation>Nicht erfasst: Auf diesem System gibt es einen solchen Wert für diesen Prozess nicht.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_read_tip">
        <source></source>
        <translation>Nicht erlaubt: Nur der Benutzer des Prozesses und root dürfen das lesen. Was seine Unit liest und schreibt, steht in den Spalten der Unit; root sieht es, wenn es Lurkwell startet.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_written_tip">
        <source></source>
        <translation>Nicht erlaubt: Nur der Benutzer des Prozesses und root dürfen das lesen. Was seine Unit liest und schreibt, steht in den Spalten der Unit; root sieht es, wenn es Lurkwell startet.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_read_rate_tip">
        <source></source>
        <translation>Nicht erlaubt: Nur der Benutzer des Prozesses und root dürfen das lesen. Was seine Unit liest und schreibt, steht in den Spalten der Unit; root sieht es, wenn es Lurkwell startet.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_write_rate_tip">
        <source></source>
        <translation>Nicht erlaubt: Nur der Benutzer des Prozesses und root dürfen das lesen. Was seine Unit liest und schreibt, steht in den Spalten der Unit; root sieht es, wenn es Lurkwell startet.</translation>
    </message>
    <message id="value_not_counted_pid_unit_disk_read_tip">
        <source></source>
        <translation>Nicht erfasst: Die Unit des Prozesses führt nicht Buch über ihre Ein- und Ausgabe. IOAccounting=yes in der Unit würde es bewirken.</translation>
    </message>
    <message id="value_not_counted_pid_unit_disk_written_tip">
        <source></source>
        <translation>Nicht erfasst: Die Unit des Prozesses führt nicht Buch über ihre Ein- und Ausgabe. IOAccounting=yes in der Unit würde es bewirken.</translation>
    </message>
    <message id="value_not_counted_pid_unit_read_rate_tip">
        <source></source>
        <translation>Nicht erfasst: Die Unit des Prozesses führt nicht Buch über ihre Ein- und Ausgabe. IOAccounting=yes in der Unit würde es bewirken.</translation>
    </message>
    <message id="value_not_counted_pid_unit_write_rate_tip">
        <source></source>
        <translation>Nicht erfasst: Die Unit des Prozesses führt nicht Buch über ihre Ein- und Ausgabe. IOAccounting=yes in der Unit würde es bewirken.</translation>
    </message>
    <message id="value_not_yet_known_pid_cpu_share_tip">
        <source></source>
        <translation>Noch nicht bekannt: Es braucht zwei Messungen, eine der nächsten Aktualisierungen bringt es.</translation>
    </message>
    <message id="value_not_yet_known_pid_user_share_tip">
        <source></source>
        <translation>Noch nicht bekannt: Es braucht zwei Messungen, eine der nächsten Aktualisierungen bringt es.</translation>
    </message>
    <message id="value_not_yet_known_pid_system_share_tip">
        <source></source>
        <translation>Noch nicht bekannt: Es braucht zwei Messungen, eine der nächsten Aktualisierungen bringt es.</translation>
    </message>
    <message id="value_not_yet_known_pid_disk_read_rate_tip">
        <source></source>
        <translation>Noch nicht bekannt: Es braucht zwei Messungen, eine der nächsten Aktualisierungen bringt es.</translation>
    </message>
    <message id="value_not_yet_known_pid_disk_write_rate_tip">
        <source></source>
        <translation>Noch nicht bekannt: Es braucht zwei Messungen, eine der nächsten Aktualisierungen bringt es.</translation>
    </message>
    <message id="value_not_yet_known_pid_read_rate_tip">
        <source></source>
        <translation>Noch nicht bekannt: Es braucht zwei Messungen, eine der nächsten Aktualisierungen bringt es.</translation>
    </message>
    <message id="value_not_yet_known_pid_write_rate_tip">
        <source></source>
        <translation>Noch nicht bekannt: Es braucht zwei Messungen, eine der nächsten Aktualisierungen bringt es.</translation>
    </message>
    <message id="value_not_yet_known_pid_unit_read_rate_tip">
        <source></source>
        <translation>Noch nicht bekannt: Es braucht zwei Messungen, eine der nächsten Aktualisierungen bringt es.</translation>
    </message>
    <message id="value_not_yet_known_pid_unit_write_rate_tip">
        <source></source>
        <translation>Noch nicht bekannt: Es braucht zwei Messungen, eine der nächsten Aktualisierungen bringt es.</translation>
    </message>
    <message id="value_not_counted_pid_label_tip">
        <source></source>
        <translation>Nicht erfasst: Der Kernel hat kein Sicherheitsmodul, das Prozesse kennzeichnet (AppArmor, SELinux, Smack).</translation>
    </message>
    <message id="main_window_idle_task_tip">
        <source></source>
        <translation>Der Leerlaufprozess: Seine Werte sind die Zeit, in der die Prozessoren nichts zu tun hatten.</translation>
    </message>
    <message id="main_window_zombie_tip">
        <source></source>
        <translation>Ein Zombie: Der Prozess ist beendet, und sein Elternprozess hat den Rückgabewert noch nicht abgefragt.</translation>
    </message>
    <message id="main_window_ended_tip">
        <source></source>
        <translation>Dieser Prozess ist beendet, doch seine Zeile musste stehen bleiben. Kein Befehl erreicht ihn mehr.</translation>
    </message>
    <message id="main_window_late_tip">
        <source></source>
        <translation>Diese Spalte wurde hinzugefügt, während die Tabelle pausiert war: Ihre Werte sind von diesem Zeitpunkt und nur von den Prozessen, die es da noch gab.</translation>
    </message>
    <message id="main_window_stale_tip">
        <source></source>
        <translation>Die letzte Aktualisierung brachte keine Werte für diese Spalte; diese hier sind älter.</translation>
    </message>
    <message id="main_window_no_address">
        <source></source>
        <translation>Das ist keine Adresse eines Prozesses wie lurkwell://pid/4711: %1</translation>
    </message>
    <message id="main_window_by_id_title">
        <source></source>
        <translation>Prozess über ID suchen</translation>
    </message>
    <message id="main_window_by_id_label">
        <source></source>
        <translation>Prozess-ID:</translation>
    </message>
    <message id="main_window_by_id_find">
        <source></source>
        <translation>&amp;Suchen</translation>
    </message>
    <message id="main_window_by_id_no_number">
        <source></source>
        <translation>Eine Prozess-ID ist eine Zahl von 0 bis %1.</translation>
    </message>
    <message id="main_window_not_revealed">
        <source></source>
        <translation>Kein Dateimanager hat die Datei %1 angezeigt.</translation>
    </message>
    <message id="main_window_nothing_to_reveal_with">
        <source></source>
        <translation>Niemand kann gebeten werden, die Datei anzuzeigen: Es gibt keinen Sitzungsbus, oder das Programm ist nicht mehr da.</translation>
    </message>
    <message id="main_window_no_details">
        <source></source>
        <translation>Zu %1 gibt es keine Details: Es ist kein Prozess des Systems.</translation>
    </message>
    <message id="main_window_no_children">
        <source></source>
        <translation>Keiner der ausgewählten Prozesse hat Kindprozesse.</translation>
    </message>
    <message id="main_window_hidden_children" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n der Kindprozesse ist durch den Filter verborgen.</numerusform>
            <numerusform>%n der Kindprozesse sind durch den Filter verborgen.</numerusform>
        </translation>
    </message>
    <message id="main_window_preferences">
        <source></source>
        <translation>Ihre Einstellungen: %1.</translation>
    </message>
    <message id="main_window_by_id_not_found">
        <source></source>
        <translation>Es gibt keinen Prozess %1.</translation>
    </message>
    <message id="process_halted">
        <source></source>
        <translation>Angehalten</translation>
    </message>
    <message id="process_niced_high">
        <source></source>
        <translation>Hohe Priorität</translation>
    </message>
    <message id="process_niced_low">
        <source></source>
        <translation>Niedrige Priorität</translation>
    </message>
    <message id="context_menu_one">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="context_menu_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Prozess</numerusform>
            <numerusform>%n Prozesse</numerusform>
        </translation>
    </message>
    <message id="action_ask_window">
        <source></source>
        <translation>Lurkwell</translation>
    </message>
    <message id="action_ask_quit_one">
        <source></source>
        <translation>Prozess %1 (%2) beenden?</translation>
    </message>
    <message id="action_ask_quit_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Prozess beenden?</numerusform>
            <numerusform>%n Prozesse beenden?</numerusform>
        </translation>
    </message>
    <message id="action_ask_kill_one">
        <source></source>
        <translation>Prozess %1 (%2) abwürgen?</translation>
    </message>
    <message id="action_ask_kill_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Prozess abwürgen?</numerusform>
            <numerusform>%n Prozesse abwürgen?</numerusform>
        </translation>
    </message>
    <message id="action_ask_halt_one">
        <source></source>
        <translation>Prozess %1 (%2) anhalten?</translation>
    </message>
    <message id="action_ask_halt_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Prozess anhalten?</numerusform>
            <numerusform>%n Prozesse anhalten?</numerusform>
        </translation>
    </message>
    <message id="action_ask_lower_one">
        <source></source>
        <translation>Priorität von Prozess %1 (%2) senken?</translation>
    </message>
    <message id="action_ask_lower_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Priorität von %n Prozess senken?</numerusform>
            <numerusform>Priorität von %n Prozessen senken?</numerusform>
        </translation>
    </message>
    <message id="action_button_quit">
        <source></source>
        <translation>&amp;Beenden</translation>
    </message>
    <message id="action_button_kill">
        <source></source>
        <translation>Ab&amp;würgen</translation>
    </message>
    <message id="action_button_halt">
        <source></source>
        <translation>An&amp;halten</translation>
    </message>
    <message id="action_button_lower">
        <source></source>
        <translation>Priorität &amp;senken</translation>
    </message>
    <message id="action_next_quit">
        <source></source>
        <translation>Er wird gebeten, seine Fenster zu schließen und sich zu beenden.</translation>
    </message>
    <message id="action_next_terminate">
        <source></source>
        <translation>Er wird zum Beenden aufgefordert (SIGTERM). Er kann vorher seine Arbeit speichern, muss es aber nicht.</translation>
    </message>
    <message id="action_next_terminate_again">
        <source></source>
        <translation>Er wurde %1 gebeten, sich zu beenden, und ist noch da; jetzt wird er zum Beenden aufgefordert (SIGTERM).</translation>
    </message>
    <message id="action_next_helper">
        <source></source>
        <translation>Er wurde %1 zum Beenden aufgefordert und ist noch da; das Hilfsprogramm fordert ihn noch einmal auf (SIGTERM).</translation>
    </message>
    <message id="action_next_force">
        <source></source>
        <translation>Er wird gewaltsam beendet (SIGKILL). Was er nicht gespeichert hat, geht verloren.</translation>
    </message>
    <message id="action_next_force_at_last">
        <source></source>
        <translation>Er wurde %1 zum Beenden aufgefordert; jetzt wird er gewaltsam beendet (SIGKILL). Was er nicht gespeichert hat, geht verloren.</translation>
    </message>
    <message id="action_next_halted">
        <source></source>
        <translation>Er ist angehalten und erfährt hiervon, wenn er fortgesetzt wird.</translation>
    </message>
    <message id="action_next_several">
        <source></source>
        <translation>Jeder wird gebeten oder aufgefordert, sich zu beenden, wie in der Liste angegeben. Was sie nicht gespeichert haben, kann verloren gehen.</translation>
    </message>
    <message id="action_next_several_forced">
        <source></source>
        <translation>Mit jedem geschieht, was die Liste angibt. Was gewaltsam beendete Prozesse nicht gespeichert haben, geht verloren.</translation>
    </message>
    <message id="action_next_halt">
        <source></source>
        <translation>Ein angehaltener Prozess steht still, bis er fortgesetzt wird: Seine Fenster reagieren nicht, und was ihn braucht, wartet.</translation>
    </message>
    <message id="action_next_lower">
        <source></source>
        <translation>Er bekommt den Prozessor, wenn ihn sonst niemand will. Die Priorität wieder zu erhöhen erfordert die Rechte eines Systemverwalters.</translation>
    </message>
    <message id="action_step_quit">
        <source></source>
        <translation>wird gebeten, sich zu beenden</translation>
    </message>
    <message id="action_step_terminate">
        <source></source>
        <translation>wird zum Beenden aufgefordert</translation>
    </message>
    <message id="action_step_terminate_again">
        <source></source>
        <translation>wird zum Beenden aufgefordert</translation>
    </message>
    <message id="action_step_helper">
        <source></source>
        <translation>wird erneut zum Beenden aufgefordert</translation>
    </message>
    <message id="action_step_force">
        <source></source>
        <translation>wird gewaltsam beendet</translation>
    </message>
    <message id="action_step_force_at_last">
        <source></source>
        <translation>wird gewaltsam beendet</translation>
    </message>
    <message id="action_warn_own">
        <source></source>
        <translation>Das ist Lurkwell selbst.</translation>
    </message>
    <message id="action_warn_own_among">
        <source></source>
        <translation>Lurkwell selbst ist darunter.</translation>
    </message>
    <message id="action_warn_others" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n davon gehört einem anderen Benutzer.</numerusform>
            <numerusform>%n davon gehören anderen Benutzern.</numerusform>
        </translation>
    </message>
    <message id="action_owner">
        <source></source>
        <translation>Eigentümer:</translation>
    </message>
    <message id="action_command_line">
        <source></source>
        <translation>Befehlszeile:</translation>
    </message>
    <message id="action_unknown">
        <source></source>
        <translation>nicht bekannt</translation>
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
        <translation>Eigentümer</translation>
    </message>
    <message id="action_column_step">
        <source></source>
        <translation>Nächster Schritt</translation>
    </message>
    <message id="action_column_command">
        <source></source>
        <translation>Befehlszeile</translation>
    </message>
    <message id="times_once">
        <source></source>
        <translation>einmal</translation>
    </message>
    <message id="times_twice">
        <source></source>
        <translation>zweimal</translation>
    </message>
    <message id="times_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n-mal</numerusform>
            <numerusform>%n-mal</numerusform>
        </translation>
    </message>
    <message id="action_process">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="action_processes" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Prozess (%1)</numerusform>
            <numerusform>%n Prozesse (%1)</numerusform>
        </translation>
    </message>
    <message id="action_failed">
        <source></source>
        <translation>%1 – nichts unternommen: %2.</translation>
    </message>
    <message id="action_reason_gone">
        <source></source>
        <translation>schon beendet</translation>
    </message>
    <message id="action_reason_protected">
        <source></source>
        <translation>das System ist darauf angewiesen</translation>
    </message>
    <message id="action_reason_kernel_thread">
        <source></source>
        <translation>der Kernel nimmt keine Signale an</translation>
    </message>
    <message id="action_reason_refused">
        <source></source>
        <translation>ohne die Rechte eines Systemverwalters dürfen Sie das nicht</translation>
    </message>
    <message id="action_reason_in_words">
        <source></source>
        <translation>das Hilfsprogramm meldet „%1“</translation>
    </message>
    <message id="action_reason_no_helper">
        <source></source>
        <translation>das Hilfsprogramm antwortet nicht</translation>
    </message>
    <message id="action_reason_no_time">
        <source></source>
        <translation>nicht versucht, weil das Hilfsprogramm zu lange braucht</translation>
    </message>
    <message id="action_reason_nobody">
        <source></source>
        <translation>diese Arbeitsumgebung bietet dafür keinen Weg</translation>
    </message>
    <message id="action_reason_out_of_reach">
        <source></source>
        <translation>diese Arbeitsumgebung lässt das kein Programm mit den Fenstern eines anderen tun</translation>
    </message>
    <message id="action_done_quit" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 wurde gebeten, sich zu beenden.</numerusform>
            <numerusform>%1 wurden gebeten, sich zu beenden.</numerusform>
        </translation>
    </message>
    <message id="action_done_terminate" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 wurde zum Beenden aufgefordert.</numerusform>
            <numerusform>%1 wurden zum Beenden aufgefordert.</numerusform>
        </translation>
    </message>
    <message id="action_done_force" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 wurde gewaltsam beendet.</numerusform>
            <numerusform>%1 wurden gewaltsam beendet.</numerusform>
        </translation>
    </message>
    <message id="action_done_halt" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 wurde angehalten.</numerusform>
            <numerusform>%1 wurden angehalten.</numerusform>
        </translation>
    </message>
    <message id="action_done_continue" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 wurde fortgesetzt.</numerusform>
            <numerusform>%1 wurden fortgesetzt.</numerusform>
        </translation>
    </message>
    <message id="action_done_high" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 hat jetzt eine hohe Priorität.</numerusform>
            <numerusform>%1 haben jetzt eine hohe Priorität.</numerusform>
        </translation>
    </message>
    <message id="action_done_normal" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 hat jetzt die normale Priorität.</numerusform>
            <numerusform>%1 haben jetzt die normale Priorität.</numerusform>
        </translation>
    </message>
    <message id="action_done_low" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 hat jetzt eine niedrige Priorität.</numerusform>
            <numerusform>%1 haben jetzt eine niedrige Priorität.</numerusform>
        </translation>
    </message>
    <message id="follow_confirmation_title" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n neues Fenster öffnen?</numerusform>
            <numerusform>%n neue Fenster öffnen?</numerusform>
        </translation>
    </message>
    <message id="follow_confirmation_text">
        <source></source>
        <translation>Für jeden ausgewählten Prozess wird ein Fenster geöffnet.</translation>
    </message>
    <message id="follow_confirmation_open">
        <source></source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message id="follow_limit_title" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n von %1 Fenstern wurde geöffnet.</numerusform>
            <numerusform>%n von %1 Fenstern wurden geöffnet.</numerusform>
        </translation>
    </message>
    <message id="follow_limit_text">
        <source></source>
        <translation>Mehr Fenster, die Prozesse verfolgen, können nicht gleichzeitig offen sein. Schließen Sie zuerst einige.</translation>
    </message>
    <message id="darwin_tools_not_found">
        <source></source>
        <translation>Lurkwell kann ohne die Systemprogramme /bin/ps, /bin/kill und /usr/bin/renice nicht arbeiten, und mindestens eines davon wurde nicht gefunden.</translation>
    </message>
    <message id="no_quartz_extreme">
        <source></source>
        <translation>Diese Anzeige hat keine Grafikbeschleunigung. Die animierte Ansicht wird langsam sein.</translation>
    </message>
    <message id="about_title">
        <source></source>
        <translation>Über Lurkwell</translation>
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
        <translation>Ein interaktiver Prozessmonitor
Freie Software unter der MIT-Lizenz</translation>
    </message>
    <message id="toolbar_system_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="toolbar_system_cpu_tip">
        <source></source>
        <translation>Wie ausgelastet die Prozessoren des Rechners sind.</translation>
    </message>
    <message id="toolbar_system_cpu_figure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>CPU: %1 % von %n Prozessor</numerusform>
            <numerusform>CPU: %1 % von %n Prozessoren</numerusform>
        </translation>
    </message>
    <message id="toolbar_system_ram">
        <source></source>
        <translation>Speicher</translation>
    </message>
    <message id="toolbar_system_ram_tip">
        <source></source>
        <translation>Wie der Arbeitsspeicher des Rechners genutzt wird.</translation>
    </message>
    <message id="toolbar_system_ram_figures">
        <source></source>
        <translation>Speicher: %1 von %2 belegt
Fest belegt: %3
Inaktiv: %4
Frei: %5</translation>
    </message>
    <message id="toolbar_vm_thrashing">
        <source></source>
        <translation>Auslagern</translation>
    </message>
    <message id="toolbar_vm_thrashing_tip">
        <source></source>
        <translation>Grün, solange kein Speicher ausgelagert wird, gelb, während etwas ausgelagert wird, rot blinkend, wenn es so viel ist, dass der Rechner langsamer wird.</translation>
    </message>
    <message id="toolbar_vm_thrashing_figure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Seite seit der letzten Aktualisierung ausgelagert</numerusform>
            <numerusform>%n Seiten seit der letzten Aktualisierung ausgelagert</numerusform>
        </translation>
    </message>
    <message id="toolbar_usage_history">
        <source></source>
        <translation>CPU-Verlauf</translation>
    </message>
    <message id="toolbar_usage_history_tip">
        <source></source>
        <translation>Öffnet für jeden ausgewählten Prozess ein Fenster mit der CPU-Auslastung im Zeitverlauf.</translation>
    </message>
    <message id="toolbar_log">
        <source></source>
        <translation>Protokoll</translation>
    </message>
    <message id="toolbar_log_tip">
        <source></source>
        <translation>Öffnet ein Fenster, das Werte jedes ausgewählten Prozesses protokolliert.</translation>
    </message>
    <message id="toolbar_bring_to_front">
        <source></source>
        <translation>Nach vorne</translation>
    </message>
    <message id="toolbar_bring_to_front_tip">
        <source></source>
        <translation>Holt die Fenster der ausgewählten Anwendungen in den Vordergrund.</translation>
    </message>
    <message id="toolbar_kill">
        <source></source>
        <translation>Abwürgen</translation>
    </message>
    <message id="toolbar_kill_tip">
        <source></source>
        <translation>Fordert die ausgewählten Prozesse zum Beenden auf; mit jedem weiteren Mal beim selben Prozess nachdrücklicher.</translation>
    </message>
    <message id="toolbar_hide_process">
        <source></source>
        <translation>Ausblenden</translation>
    </message>
    <message id="toolbar_hide_process_tip">
        <source></source>
        <translation>Blendet die Fenster der ausgewählten Anwendungen aus.</translation>
    </message>
    <message id="toolbar_reveal">
        <source></source>
        <translation>Datei zeigen</translation>
    </message>
    <message id="toolbar_reveal_tip">
        <source></source>
        <translation>Zeigt die ausgewählten Anwendungen im Dateimanager an.</translation>
    </message>
    <message id="toolbar_high">
        <source></source>
        <translation>Hoch</translation>
    </message>
    <message id="toolbar_high_tip">
        <source></source>
        <translation>Gibt den ausgewählten Prozessen eine hohe Priorität (Nice-Wert -19).</translation>
    </message>
    <message id="toolbar_medium">
        <source></source>
        <translation>Normal</translation>
    </message>
    <message id="toolbar_medium_tip">
        <source></source>
        <translation>Gibt den ausgewählten Prozessen die normale Priorität (Nice-Wert 0).</translation>
    </message>
    <message id="toolbar_low">
        <source></source>
        <translation>Niedrig</translation>
    </message>
    <message id="toolbar_low_tip">
        <source></source>
        <translation>Gibt den ausgewählten Prozessen die niedrigste Priorität, sodass sie allen anderen den Vortritt lassen.</translation>
    </message>
    <message id="toolbar_halt">
        <source></source>
        <translation>Anhalten</translation>
    </message>
    <message id="toolbar_halt_tip">
        <source></source>
        <translation>Hält die ausgewählten Prozesse an, bis sie fortgesetzt werden.</translation>
    </message>
    <message id="toolbar_cont">
        <source></source>
        <translation>Fortsetzen</translation>
    </message>
    <message id="toolbar_cont_tip">
        <source></source>
        <translation>Lässt die angehaltenen unter den ausgewählten Prozessen weiterlaufen.</translation>
    </message>
    <message id="menu_process_kill_with_children">
        <source></source>
        <translation>Mit &amp;Kindprozessen beenden oder abwürgen</translation>
    </message>
    <message id="menu_process_signal">
        <source></source>
        <translation>Si&amp;gnal senden…</translation>
    </message>
    <message id="menu_process_scheduling">
        <source></source>
        <translation>&amp;Priorität und Prozessoren…</translation>
    </message>
    <message id="menu_process_show_executable">
        <source></source>
        <translation>Programmdat&amp;ei anzeigen</translation>
    </message>
    <message id="menu_process_search_web">
        <source></source>
        <translation>Im &amp;Web suchen</translation>
    </message>
    <message id="menu_edit_copy_csv">
        <source></source>
        <translation>Als &amp;CSV kopieren</translation>
    </message>
    <message id="menu_edit_copy_json">
        <source></source>
        <translation>Als &amp;JSON kopieren</translation>
    </message>
    <message id="help_menu_process_kill_with_children">
        <source></source>
        <translation>die ausgewählten Prozesse und alle, die sie gestartet haben, beenden oder abwürgen</translation>
    </message>
    <message id="help_menu_process_signal">
        <source></source>
        <translation>ein beliebiges Signal senden</translation>
    </message>
    <message id="help_menu_process_scheduling">
        <source></source>
        <translation>Nice-Wert, Scheduling, Datenträgerpriorität, Prozessoren</translation>
    </message>
    <message id="help_menu_process_show_executable">
        <source></source>
        <translation>die Datei des Programms im Dateimanager anzeigen</translation>
    </message>
    <message id="main_window_no_executable">
        <source></source>
        <translation>Welche Programme das sind, ist nicht bekannt, oder Sie dürfen es nicht wissen.</translation>
    </message>
    <message id="main_window_many_executables">
        <source></source>
        <translation>Das sind mehr als %1 Programme; es wurde nichts geöffnet.</translation>
    </message>
    <message id="main_window_no_search">
        <source></source>
        <translation>Diese Arbeitsumgebung öffnet „%1“ nicht.</translation>
    </message>
    <message id="action_ask_signal_one">
        <source></source>
        <translation>Ein Signal an Prozess %1 (%2) senden?</translation>
    </message>
    <message id="action_ask_signal_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Ein Signal an %n Prozess senden?</numerusform>
            <numerusform>Ein Signal an %n Prozesse senden?</numerusform>
        </translation>
    </message>
    <message id="action_ask_scheduling_one">
        <source></source>
        <translation>Priorität und Prozessoren von Prozess %1 (%2)</translation>
    </message>
    <message id="action_ask_scheduling_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Priorität und Prozessoren von %n Prozess</numerusform>
            <numerusform>Priorität und Prozessoren von %n Prozessen</numerusform>
        </translation>
    </message>
    <message id="action_button_signal">
        <source></source>
        <translation>&amp;Senden</translation>
    </message>
    <message id="action_button_scheduling">
        <source></source>
        <translation>An&amp;wenden</translation>
    </message>
    <message id="action_next_signal">
        <source></source>
        <translation>Ein Programm kann ein Signal abfangen und stattdessen etwas Eigenes tun, außer bei KILL und STOP. Die Liste sagt, was sonst geschieht.</translation>
    </message>
    <message id="action_next_scheduling">
        <source></source>
        <translation>Es gilt sofort für alle Threads, bis der Prozess endet. Anderen vorgezogen zu werden erfordert die Rechte eines Systemverwalters.</translation>
    </message>
    <message id="action_reason_impossible">
        <source></source>
        <translation>dieser Rechner hat keinen solchen Prozessor oder keine solche Priorität</translation>
    </message>
    <message id="action_done_signal" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 hat das Signal %2 erhalten.</numerusform>
            <numerusform>%1 haben das Signal %2 erhalten.</numerusform>
        </translation>
    </message>
    <message id="action_done_nice" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 hat jetzt den Nice-Wert %2.</numerusform>
            <numerusform>%1 haben jetzt den Nice-Wert %2.</numerusform>
        </translation>
    </message>
    <message id="action_done_policy" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 hat jetzt das Scheduling „%2“.</numerusform>
            <numerusform>%1 haben jetzt das Scheduling „%2“.</numerusform>
        </translation>
    </message>
    <message id="action_done_io_priority" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 hat jetzt die Datenträgerpriorität %2.</numerusform>
            <numerusform>%1 haben jetzt die Datenträgerpriorität %2.</numerusform>
        </translation>
    </message>
    <message id="action_done_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 läuft jetzt auf den Prozessoren %2.</numerusform>
            <numerusform>%1 laufen jetzt auf den Prozessoren %2.</numerusform>
        </translation>
    </message>
    <message id="scheduling_unchanged">
        <source></source>
        <translation>unverändert</translation>
    </message>
    <message id="scheduling_nice">
        <source></source>
        <translation>&amp;Nice-Wert:</translation>
    </message>
    <message id="scheduling_nice_tip">
        <source></source>
        <translation>Von -20, allen anderen voraus, bis 19, hinter allen anderen</translation>
    </message>
    <message id="scheduling_policy">
        <source></source>
        <translation>Scheduling:</translation>
    </message>
    <message id="scheduling_policy_tip">
        <source></source>
        <translation>Batch passt für lange Berechnungen, Idle für das, was hinter allem anderen warten kann. Echtzeit geht allem vor, was es nicht ist, und kann den Rechner zum Stillstand bringen.</translation>
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
        <translation>Echtzeit, reihum</translation>
    </message>
    <message id="scheduling_policy_fifo">
        <source></source>
        <translation>Echtzeit, nacheinander</translation>
    </message>
    <message id="scheduling_priority">
        <source></source>
        <translation>Priorität:</translation>
    </message>
    <message id="scheduling_io_class">
        <source></source>
        <translation>&amp;Datenträgerpriorität:</translation>
    </message>
    <message id="scheduling_io_tip">
        <source></source>
        <translation>Zählt, wo der Scheduler des Datenträgers sie kennt. 0 kommt vor 7.</translation>
    </message>
    <message id="scheduling_io_none">
        <source></source>
        <translation>Nach dem Nice-Wert</translation>
    </message>
    <message id="scheduling_io_best_effort">
        <source></source>
        <translation>Nach Möglichkeit</translation>
    </message>
    <message id="scheduling_io_idle">
        <source></source>
        <translation>Idle</translation>
    </message>
    <message id="scheduling_io_real_time">
        <source></source>
        <translation>Echtzeit</translation>
    </message>
    <message id="scheduling_io_level">
        <source></source>
        <translation>Stufe:</translation>
    </message>
    <message id="scheduling_processors">
        <source></source>
        <translation>&amp;Prozessoren (von %1):</translation>
    </message>
    <message id="scheduling_processors_tip">
        <source></source>
        <translation>Nummern und Bereiche, zum Beispiel 0-3,6; dieser Rechner hat %1</translation>
    </message>
    <message id="scheduling_no_processors">
        <source></source>
        <translation>Geben Sie Prozessoren aus %1 an, zum Beispiel 0 oder 0-1,3.</translation>
    </message>
    <message id="signal_list">
        <source></source>
        <translation>Signale</translation>
    </message>
    <message id="signal_column_name">
        <source></source>
        <translation>Signal</translation>
    </message>
    <message id="signal_column_number">
        <source></source>
        <translation>Nr.</translation>
    </message>
    <message id="signal_column_effect">
        <source></source>
        <translation>Wozu es dient</translation>
    </message>
    <message id="signal_realtime">
        <source></source>
        <translation>Zur eigenen Verwendung des Programms; beendet es sonst</translation>
    </message>
    <message id="signal_hup">
        <source></source>
        <translation>Sein Terminal ist weg; Dienste lesen oft ihre Einstellungen neu ein</translation>
    </message>
    <message id="signal_int">
        <source></source>
        <translation>Unterbrechung, wie Strg+C im Terminal; beendet es</translation>
    </message>
    <message id="signal_quit">
        <source></source>
        <translation>Wie Strg+\ im Terminal; beendet es mit Speicherabzug</translation>
    </message>
    <message id="signal_ill">
        <source></source>
        <translation>Unzulässiger Maschinenbefehl; beendet es mit Speicherabzug</translation>
    </message>
    <message id="signal_trap">
        <source></source>
        <translation>Von Debuggern; beendet es mit Speicherabzug</translation>
    </message>
    <message id="signal_abrt">
        <source></source>
        <translation>Es hat aufgegeben; beendet es mit Speicherabzug</translation>
    </message>
    <message id="signal_bus">
        <source></source>
        <translation>Zugriff auf fehlenden Speicher; beendet es mit Speicherabzug</translation>
    </message>
    <message id="signal_fpe">
        <source></source>
        <translation>Unmögliche Berechnung; beendet es mit Speicherabzug</translation>
    </message>
    <message id="signal_kill">
        <source></source>
        <translation>Beendet es sofort; es kann nichts mehr speichern</translation>
    </message>
    <message id="signal_usr1">
        <source></source>
        <translation>Zur eigenen Verwendung des Programms; beendet es sonst</translation>
    </message>
    <message id="signal_segv">
        <source></source>
        <translation>Zugriff auf fremden Speicher; beendet es mit Speicherabzug</translation>
    </message>
    <message id="signal_usr2">
        <source></source>
        <translation>Zur eigenen Verwendung des Programms; beendet es sonst</translation>
    </message>
    <message id="signal_pipe">
        <source></source>
        <translation>Niemand liest mehr, was es schreibt; beendet es</translation>
    </message>
    <message id="signal_alrm">
        <source></source>
        <translation>Sein Wecker ist abgelaufen; beendet es</translation>
    </message>
    <message id="signal_term">
        <source></source>
        <translation>Fordert es zum Beenden auf</translation>
    </message>
    <message id="signal_stkflt">
        <source></source>
        <translation>Unbenutzt; beendet es</translation>
    </message>
    <message id="signal_chld">
        <source></source>
        <translation>Ein Kindprozess endete oder wurde angehalten; keine Wirkung</translation>
    </message>
    <message id="signal_cont">
        <source></source>
        <translation>Läuft nach einem Anhalten weiter</translation>
    </message>
    <message id="signal_stop">
        <source></source>
        <translation>Steht still, bis es fortgesetzt wird; nicht abfangbar</translation>
    </message>
    <message id="signal_tstp">
        <source></source>
        <translation>Anhalten, wie Strg+Z im Terminal</translation>
    </message>
    <message id="signal_ttin">
        <source></source>
        <translation>Es liest im Hintergrund vom Terminal; hält es an</translation>
    </message>
    <message id="signal_ttou">
        <source></source>
        <translation>Es schreibt im Hintergrund auf das Terminal; hält es an</translation>
    </message>
    <message id="signal_urg">
        <source></source>
        <translation>Dringende Daten sind da; keine Wirkung</translation>
    </message>
    <message id="signal_xcpu">
        <source></source>
        <translation>Seine Prozessorzeit ist verbraucht; beendet es mit Speicherabzug</translation>
    </message>
    <message id="signal_xfsz">
        <source></source>
        <translation>Eine Datei wurde zu groß; beendet es mit Speicherabzug</translation>
    </message>
    <message id="signal_vtalrm">
        <source></source>
        <translation>Sein Zeitgeber für Prozessorzeit ist abgelaufen; beendet es</translation>
    </message>
    <message id="signal_prof">
        <source></source>
        <translation>Der Zeitgeber eines Profils ist abgelaufen; beendet es</translation>
    </message>
    <message id="signal_winch">
        <source></source>
        <translation>Sein Fenster hat eine andere Größe; keine Wirkung</translation>
    </message>
    <message id="signal_poll">
        <source></source>
        <translation>Eine Datei ist lesbar oder beschreibbar; beendet es</translation>
    </message>
    <message id="signal_pwr">
        <source></source>
        <translation>Der Strom fällt aus; beendet es</translation>
    </message>
    <message id="signal_sys">
        <source></source>
        <translation>Unzulässiger Systemaufruf; beendet es mit Speicherabzug</translation>
    </message>
    <message id="toolbar_select_children">
        <source></source>
        <translation>Kinder</translation>
    </message>
    <message id="toolbar_select_children_tip">
        <source></source>
        <translation>Wählt statt der ausgewählten Prozesse diejenigen aus, die von ihnen gestartet wurden.</translation>
    </message>
    <message id="toolbar_prefs">
        <source></source>
        <translation>Einstellungen</translation>
    </message>
    <message id="toolbar_prefs_tip">
        <source></source>
        <translation>Öffnet die Einstellungen.</translation>
    </message>
    <message id="toolbar_customise">
        <source></source>
        <translation>Anpassen</translation>
    </message>
    <message id="toolbar_customise_tip">
        <source></source>
        <translation>Legt fest, was die Werkzeugleiste enthält und in welcher Reihenfolge.</translation>
    </message>
    <message id="toolbar_separator">
        <source></source>
        <translation>Trenner</translation>
    </message>
    <message id="toolbar_separator_tip">
        <source></source>
        <translation>Eine Linie zwischen Gruppen von Elementen.</translation>
    </message>
    <message id="toolbar_space">
        <source></source>
        <translation>Abstand</translation>
    </message>
    <message id="toolbar_space_tip">
        <source></source>
        <translation>Etwas Platz zwischen Elementen.</translation>
    </message>
    <message id="toolbar_flexible_space">
        <source></source>
        <translation>Flexibler Abstand</translation>
    </message>
    <message id="toolbar_flexible_space_tip">
        <source></source>
        <translation>Schiebt das Folgende an das Ende der Werkzeugleiste.</translation>
    </message>
    <message id="toolbar_title">
        <source></source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message id="toolbar_customise_title">
        <source></source>
        <translation>Werkzeugleiste anpassen</translation>
    </message>
    <message id="toolbar_customise_hint">
        <source></source>
        <translation>Ziehen Sie Elemente in die Werkzeugleiste oder aus ihr in die Liste der verfügbaren Elemente. Sie lassen sich auch auf der Werkzeugleiste des Fensters ablegen.</translation>
    </message>
    <message id="toolbar_customise_available">
        <source></source>
        <translation>Verfügbare &amp;Elemente:</translation>
    </message>
    <message id="toolbar_customise_current">
        <source></source>
        <translation>In der &amp;Werkzeugleiste:</translation>
    </message>
    <message id="toolbar_customise_add">
        <source></source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message id="toolbar_customise_remove">
        <source></source>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message id="toolbar_customise_earlier">
        <source></source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message id="toolbar_customise_later">
        <source></source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message id="toolbar_customise_default_set">
        <source></source>
        <translation>Standardsatz:</translation>
    </message>
    <message id="toolbar_customise_default_set_tip">
        <source></source>
        <translation>Kann als Ganzes in die Werkzeugleiste gezogen werden.</translation>
    </message>
    <message id="toolbar_customise_use_default">
        <source></source>
        <translation>&amp;Standardsatz verwenden</translation>
    </message>
    <message id="toolbar_customise_mode">
        <source></source>
        <translation>An&amp;zeigen:</translation>
    </message>
    <message id="toolbar_customise_done">
        <source></source>
        <translation>Fer&amp;tig</translation>
    </message>
    <message id="toolbar_mode_both">
        <source></source>
        <translation>Symbole und Text</translation>
    </message>
    <message id="toolbar_mode_icon">
        <source></source>
        <translation>Nur Symbole</translation>
    </message>
    <message id="toolbar_mode_text">
        <source></source>
        <translation>Nur Text</translation>
    </message>
    <message id="logging_title">
        <source></source>
        <translation>Protokoll: %1, PID %2</translation>
    </message>
    <message id="logging_title_file">
        <source></source>
        <translation>Dateiname: %1</translation>
    </message>
    <message id="logging_table">
        <source></source>
        <translation>Protokoll eines Prozesses</translation>
    </message>
    <message id="logging_column_time">
        <source></source>
        <translation>Uhrzeit</translation>
    </message>
    <message id="logging_column_time_tip">
        <source></source>
        <translation>Wann die Zeile geschrieben wurde.</translation>
    </message>
    <message id="logging_column_active">
        <source></source>
        <translation>CPU-Zeit</translation>
    </message>
    <message id="logging_column_active_tip">
        <source></source>
        <translation>Die CPU-Zeit, die der Prozess seit seinem Start verbraucht hat, in Sekunden.</translation>
    </message>
    <message id="logging_column_active_change">
        <source></source>
        <translation>∆ CPU-Zeit</translation>
    </message>
    <message id="logging_column_active_change_tip">
        <source></source>
        <translation>Die seit der vorigen Zeile verbrauchte CPU-Zeit, in Sekunden.</translation>
    </message>
    <message id="logging_column_real">
        <source></source>
        <translation>Resident</translation>
    </message>
    <message id="logging_column_real_tip">
        <source></source>
        <translation>Speicher, den der Prozess im Arbeitsspeicher des Rechners belegt.</translation>
    </message>
    <message id="logging_column_real_change">
        <source></source>
        <translation>∆ Resident</translation>
    </message>
    <message id="logging_column_real_change_tip">
        <source></source>
        <translation>Änderung des residenten Speichers seit der vorigen Zeile.</translation>
    </message>
    <message id="logging_column_virtual">
        <source></source>
        <translation>Virtuell</translation>
    </message>
    <message id="logging_column_virtual_tip">
        <source></source>
        <translation>Adressraum des Prozesses.</translation>
    </message>
    <message id="logging_column_virtual_change">
        <source></source>
        <translation>∆ Virtuell</translation>
    </message>
    <message id="logging_column_virtual_change_tip">
        <source></source>
        <translation>Änderung des Adressraums seit der vorigen Zeile.</translation>
    </message>
    <message id="logging_note_ended">
        <source></source>
        <translation>Der Prozess ist beendet.</translation>
    </message>
    <message id="logging_note_ended_remembered">
        <source></source>
        <translation>Der Prozess ist beendet. Das Fenster kommt wieder, wenn ein Prozess dieses Namens startet.</translation>
    </message>
    <message id="logging_note_not_created">
        <source></source>
        <translation>Es gibt keine Protokolldatei: %1. Die Zeilen werden nur hier angezeigt.</translation>
    </message>
    <message id="logging_note_not_written">
        <source></source>
        <translation>In der Protokolldatei fehlen Zeilen: %1.</translation>
    </message>
    <message id="logging_show_file">
        <source></source>
        <translation>&amp;Datei anzeigen</translation>
    </message>
    <message id="logging_show_file_none">
        <source></source>
        <translation>Es wird nichts in eine Datei geschrieben. In den Einstellungen lässt sich das für neue Protokolle einschalten.</translation>
    </message>
    <message id="logging_save_as">
        <source></source>
        <translation>&amp;Speichern unter…</translation>
    </message>
    <message id="record_title">
        <source></source>
        <translation>Prozesse aufzeichnen</translation>
    </message>
    <message id="record_filter">
        <source></source>
        <translation>Aufzeichnungen (*.lwr);;Alle Dateien (*)</translation>
    </message>
    <message id="record_failed">
        <source></source>
        <translation>Die Prozesse werden nicht aufgezeichnet.</translation>
    </message>
    <message id="record_behind">
        <source></source>
        <translation>Der Datenträger hat noch nicht alles Aufgezeichnete übernommen.</translation>
    </message>
    <message id="record_behind_message">
        <source></source>
        <translation>Der Rest wird geschrieben, während Lurkwell läuft. Bis dahin kann nicht erneut in die Datei aufgezeichnet werden.</translation>
    </message>
    <message id="record_status">
        <source></source>
        <translation>Aufzeichnung in %1</translation>
    </message>
    <message id="record_trouble">
        <source></source>
        <translation>Keine Aufzeichnung in %1: %2</translation>
    </message>
    <message id="replay_open_title">
        <source></source>
        <translation>Aufzeichnung öffnen</translation>
    </message>
    <message id="replay_failed">
        <source></source>
        <translation>Die Aufzeichnung kann nicht angezeigt werden.</translation>
    </message>
    <message id="replay_title">
        <source></source>
        <translation>%1 – %2</translation>
    </message>
    <message id="replay_bar">
        <source></source>
        <translation>Zeitleiste</translation>
    </message>
    <message id="replay_back">
        <source></source>
        <translation>Einen Schritt zurück</translation>
    </message>
    <message id="replay_play">
        <source></source>
        <translation>Wiedergeben</translation>
    </message>
    <message id="replay_forth">
        <source></source>
        <translation>Einen Schritt vor</translation>
    </message>
    <message id="replay_peak">
        <source></source>
        <translation>Nächste Spitze der Prozessorauslastung</translation>
    </message>
    <message id="replay_speed">
        <source></source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message id="replay_moment">
        <source></source>
        <translation>Zu einem Zeitpunkt gehen</translation>
    </message>
    <message id="replay_moment_tip">
        <source></source>
        <translation>Zu einem Zeitpunkt gehen (%1): eine Uhrzeit wie 03:12, ein Datum mit Uhrzeit oder -2h, das heißt vor dem Ende</translation>
    </message>
    <message id="replay_no_peak">
        <source></source>
        <translation>Es gibt keine spätere Spitze der Prozessorauslastung.</translation>
    </message>
    <message id="replay_no_actions">
        <source></source>
        <translation>Dies ist eine Aufzeichnung: Die Prozesse darin lassen sich nicht steuern.</translation>
    </message>
    <message id="logging_save_title">
        <source></source>
        <translation>Protokoll speichern</translation>
    </message>
    <message id="logging_save_filter">
        <source></source>
        <translation>Tabellen (*.tsv);;Alle Dateien (*)</translation>
    </message>
    <message id="logging_menu_title">
        <source></source>
        <translation>Protokoll von %1, PID %2</translation>
    </message>
    <message id="logging_identity">
        <source></source>
        <translation>Eigentümer %1: %2</translation>
    </message>
    <message id="remembered_owner">
        <source></source>
        <translation>Eigentümer</translation>
    </message>
    <message id="logging_copy">
        <source></source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message id="logging_select_all">
        <source></source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message id="logging_note_not_saved">
        <source></source>
        <translation>Das Protokoll ist nicht gespeichert: %1.</translation>
    </message>
    <message id="logging_note_saved">
        <source></source>
        <translation>Gespeichert als %1.</translation>
    </message>
    <message id="logging_note_not_shown">
        <source></source>
        <translation>Kein Dateimanager kann die Datei anzeigen. Sie ist %1.</translation>
    </message>
    <message id="logging_note_follows">
        <source></source>
        <translation>Prozess %1 ist beendet. Ab „PID %2“ stammen die Zeilen von Prozess %2.</translation>
    </message>
    <message id="logging_row_of">
        <source></source>
        <translation>PID %1</translation>
    </message>
    <message id="history_title">
        <source></source>
        <translation>CPU-Verlauf von %1, PID %2</translation>
    </message>
    <message id="history_identity">
        <source></source>
        <translation>PID %1</translation>
    </message>
    <message id="history_accessible">
        <source></source>
        <translation>CPU-Verlauf von %1, Prozess %2 von %3</translation>
    </message>
    <message id="history_now">
        <source></source>
        <translation>jetzt %1 %, im Fenster zwischen %3 % und %4 %; der obere Rand ist %2 %</translation>
    </message>
    <message id="history_tip">
        <source></source>
        <translation>&lt;b&gt;%1&lt;/b&gt;&lt;br&gt;PID %2, Eigentümer %3&lt;br&gt;%4</translation>
    </message>
    <message id="history_not_above">
        <source></source>
        <translation>Diese Arbeitsumgebung hält es nicht über anderen Fenstern; eine eigene Fensterregel kann das.</translation>
    </message>
    <message id="history_menu_relative">
        <source></source>
        <translation>An das jüngste Ma&amp;ximum anpassen</translation>
    </message>
    <message id="history_menu_descendants">
        <source></source>
        <translation>&amp;Nachkommen mitzählen</translation>
    </message>
    <message id="history_menu_close">
        <source></source>
        <translation>&amp;Schließen und vergessen</translation>
    </message>
    <message id="details_title">
        <source></source>
        <translation>%1 (%2): Details</translation>
    </message>
    <message id="details_title_ended">
        <source></source>
        <translation>%1 (%2), beendet: Details</translation>
    </message>
    <message id="details_heading">
        <source></source>
        <translation>%1 (Prozess %2)</translation>
    </message>
    <message id="details_heading_ended">
        <source></source>
        <translation>%1 (Prozess %2), Stand %3, beendet</translation>
    </message>
    <message id="details_ended">
        <source></source>
        <translation>Stand %1, beendet. Was zuletzt gelesen wurde, bleibt stehen.</translation>
    </message>
    <message id="details_ended_before">
        <source></source>
        <translation>Der Prozess endete, bevor dies gelesen wurde.</translation>
    </message>
    <message id="details_actions">
        <source></source>
        <translation>&amp;Aktionen</translation>
    </message>
    <message id="details_pages">
        <source></source>
        <translation>Seiten</translation>
    </message>
    <message id="details_filter">
        <source></source>
        <translation>Zeilen mit diesem Text anzeigen…</translation>
    </message>
    <message id="details_reading">
        <source></source>
        <translation>Wird gelesen…</translation>
    </message>
    <message id="details_waiting">
        <source></source>
        <translation>Noch keine Antwort vom System; es wird weiter gewartet. Vielleicht ist der Speicher des Prozesses gesperrt oder liegt auf einem Dateisystem, das nicht antwortet.</translation>
    </message>
    <message id="details_too_many_hang">
        <source></source>
        <translation>Zu viele frühere Fragen hat das System noch nicht beantwortet. Diese wird gestellt, sobald eine davon beantwortet ist.</translation>
    </message>
    <message id="details_refused">
        <source></source>
        <translation>Nicht erlaubt: Dieser Prozess gehört einem anderen Benutzer. Nur sein Eigentümer und root dürfen das lesen.</translation>
    </message>
    <message id="details_refused_owner">
        <source></source>
        <translation>Nicht erlaubt: Dieser Prozess gehört %1. Nur sein Eigentümer und root dürfen das lesen.</translation>
    </message>
    <message id="details_kept_secret">
        <source></source>
        <translation>Nicht erlaubt: Der Prozess verbirgt das vor anderen Programmen, auch vor denen seines eigenen Benutzers.</translation>
    </message>
    <message id="details_none">
        <source></source>
        <translation>Dieses System hat für diesen Prozess nichts dergleichen.</translation>
    </message>
    <message id="details_nothing">
        <source></source>
        <translation>Es gibt keine.</translation>
    </message>
    <message id="details_failed">
        <source></source>
        <translation>Dem System fehlen im Augenblick die Mittel dafür. Es wird erneut versucht.</translation>
    </message>
    <message id="details_first_ones">
        <source></source>
        <translation>%1; die ersten %2 werden angezeigt</translation>
    </message>
    <message id="details_unlimited">
        <source></source>
        <translation>unbegrenzt</translation>
    </message>
    <message id="details_parent">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="details_overview">
        <source></source>
        <translation>Überblick</translation>
    </message>
    <message id="details_overview_figure">
        <source></source>
        <translation>Was</translation>
    </message>
    <message id="details_overview_value">
        <source></source>
        <translation>Wert</translation>
    </message>
    <message id="details_graph_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="details_graph_memory">
        <source></source>
        <translation>Speicher</translation>
    </message>
    <message id="details_graph_disk">
        <source></source>
        <translation>Datenträger</translation>
    </message>
    <message id="details_graph_network">
        <source></source>
        <translation>Netzwerk (TCP)</translation>
    </message>
    <message id="details_graph_resident">
        <source></source>
        <translation>resident</translation>
    </message>
    <message id="details_graph_swap">
        <source></source>
        <translation>ausgelagert</translation>
    </message>
    <message id="details_graph_read">
        <source></source>
        <translation>gelesen</translation>
    </message>
    <message id="details_graph_written">
        <source></source>
        <translation>geschrieben</translation>
    </message>
    <message id="details_graph_received">
        <source></source>
        <translation>empfangen</translation>
    </message>
    <message id="details_graph_sent">
        <source></source>
        <translation>gesendet</translation>
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
        <translation>CPU %</translation>
    </message>
    <message id="details_thread_time">
        <source></source>
        <translation>CPU-Zeit</translation>
    </message>
    <message id="details_thread_state">
        <source></source>
        <translation>Zustand</translation>
    </message>
    <message id="details_thread_processor">
        <source></source>
        <translation>Prozessor</translation>
    </message>
    <message id="details_thread_nice">
        <source></source>
        <translation>Nice</translation>
    </message>
    <message id="details_descriptors">
        <source></source>
        <translation>Dateien und Sockets</translation>
    </message>
    <message id="details_descriptors_count">
        <source></source>
        <translation>Offene Dateien, Sockets und anderes: %1</translation>
    </message>
    <message id="details_descriptor">
        <source></source>
        <translation>Nummer</translation>
    </message>
    <message id="details_descriptor_kind">
        <source></source>
        <translation>Art</translation>
    </message>
    <message id="details_descriptor_target">
        <source></source>
        <translation>Pfad oder Adressen</translation>
    </message>
    <message id="details_descriptor_position">
        <source></source>
        <translation>Position</translation>
    </message>
    <message id="details_descriptor_flags">
        <source></source>
        <translation>Geöffnet zum</translation>
    </message>
    <message id="details_mappings">
        <source></source>
        <translation>Speicher</translation>
    </message>
    <message id="details_mappings_count">
        <source></source>
        <translation>Zuordnungen: %1; Größe %2, resident %3, anteilig %4</translation>
    </message>
    <message id="details_mapping_range">
        <source></source>
        <translation>Adressen</translation>
    </message>
    <message id="details_mapping_size">
        <source></source>
        <translation>Größe</translation>
    </message>
    <message id="details_mapping_resident">
        <source></source>
        <translation>Resident</translation>
    </message>
    <message id="details_mapping_proportional">
        <source></source>
        <translation>Anteilig</translation>
    </message>
    <message id="details_mapping_swapped">
        <source></source>
        <translation>Ausgelagert</translation>
    </message>
    <message id="details_mapping_permissions">
        <source></source>
        <translation>Zugriff</translation>
    </message>
    <message id="details_mapping_file">
        <source></source>
        <translation>Datei</translation>
    </message>
    <message id="details_environment">
        <source></source>
        <translation>Umgebung</translation>
    </message>
    <message id="details_environment_count">
        <source></source>
        <translation>Variablen beim Start des Programms: %1</translation>
    </message>
    <message id="details_variable_name">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="details_variable_value">
        <source></source>
        <translation>Wert</translation>
    </message>
    <message id="details_limits">
        <source></source>
        <translation>Grenzen</translation>
    </message>
    <message id="details_limits_count">
        <source></source>
        <translation>Grenzen des Prozesses: %1. Er darf seine eigenen bis zur obersten anheben.</translation>
    </message>
    <message id="details_limit_name">
        <source></source>
        <translation>Grenze</translation>
    </message>
    <message id="details_limit_soft">
        <source></source>
        <translation>Jetzt</translation>
    </message>
    <message id="details_limit_hard">
        <source></source>
        <translation>Oberste</translation>
    </message>
    <message id="details_limit_unit">
        <source></source>
        <translation>Einheit</translation>
    </message>
    <message id="details_group">
        <source></source>
        <translation>Kontrollgruppe</translation>
    </message>
    <message id="details_group_count">
        <source></source>
        <translation>Werte: %1. Sie gelten für alle Prozesse der Gruppe zusammen; übergeordnete Gruppen stehen in der Liste, wo sie etwas begrenzen.</translation>
    </message>
    <message id="details_group_figure">
        <source></source>
        <translation>Messgröße</translation>
    </message>
    <message id="details_group_in_use">
        <source></source>
        <translation>Belegt</translation>
    </message>
    <message id="details_group_limit">
        <source></source>
        <translation>Grenze</translation>
    </message>
    <message id="details_group_path">
        <source></source>
        <translation>Gruppe</translation>
    </message>
    <message id="details_group_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Prozessor</numerusform>
            <numerusform>%n Prozessoren</numerusform>
        </translation>
    </message>
    <message id="details_group_memory">
        <source></source>
        <translation>Speicher</translation>
    </message>
    <message id="details_group_memory.high">
        <source></source>
        <translation>Speicher, ab dem gebremst wird</translation>
    </message>
    <message id="details_group_memory.peak">
        <source></source>
        <translation>Bisher höchste Speichernutzung</translation>
    </message>
    <message id="details_group_memory.swap">
        <source></source>
        <translation>Auslagerungsspeicher</translation>
    </message>
    <message id="details_group_pids">
        <source></source>
        <translation>Prozesse und Threads</translation>
    </message>
    <message id="details_group_cpu.max">
        <source></source>
        <translation>CPU höchstens</translation>
    </message>
    <message id="details_group_cpu.weight">
        <source></source>
        <translation>CPU-Gewicht</translation>
    </message>
    <message id="details_group_cpu.usage">
        <source></source>
        <translation>CPU-Zeit</translation>
    </message>
    <message id="details_group_cpu.throttled">
        <source></source>
        <translation>Zeit ohne CPU wegen der Grenze</translation>
    </message>
    <message id="details_group_memory.high_events">
        <source></source>
        <translation>Wegen Speicher gebremst, Anzahl</translation>
    </message>
    <message id="details_group_memory.oom_kills">
        <source></source>
        <translation>Aus Speichermangel beendete Prozesse</translation>
    </message>
    <message id="remembered_title">
        <source></source>
        <translation>Lurkwell: Gemerkte Fenster</translation>
    </message>
    <message id="remembered_program">
        <source></source>
        <translation>Programm</translation>
    </message>
    <message id="remembered_window">
        <source></source>
        <translation>Fenster</translation>
    </message>
    <message id="remembered_process">
        <source></source>
        <translation>Prozess</translation>
    </message>
    <message id="remembered_log">
        <source></source>
        <translation>Protokoll</translation>
    </message>
    <message id="remembered_history">
        <source></source>
        <translation>CPU-Verlauf</translation>
    </message>
    <message id="remembered_follows">
        <source></source>
        <translation>PID %1</translation>
    </message>
    <message id="remembered_waits">
        <source></source>
        <translation>wartet auf den Start des Programms</translation>
    </message>
    <message id="remembered_explanation">
        <source></source>
        <translation>Diese Fenster kommen wieder, wenn ihr Programm startet. Ein vergessenes tut das nicht; ist es offen, bleibt es, bis es geschlossen wird.</translation>
    </message>
    <message id="remembered_forget">
        <source></source>
        <translation>&amp;Vergessen</translation>
    </message>
    <message id="preferences_title">
        <source></source>
        <translation>Lurkwell-Einstellungen</translation>
    </message>
    <message id="preferences_page">
        <source></source>
        <translation>Seite</translation>
    </message>
    <message id="preferences_form_missing">
        <source></source>
        <translation>Die Einstellungen können nicht angezeigt werden.</translation>
    </message>
    <message id="preferences_form_missing_text">
        <source></source>
        <translation>Ein Teil des Programms fehlt: das Layout des Einstellungsfensters. Installieren Sie Lurkwell neu.</translation>
    </message>
    <message id="preferences_times_per_second" numerus="yes">
        <source></source>
        <translation>
            <numerusform>einmal pro Sekunde</numerusform>
            <numerusform>%n-mal pro Sekunde</numerusform>
        </translation>
    </message>
    <message id="preferences_every_seconds" numerus="yes">
        <source></source>
        <translation>
            <numerusform>jede Sekunde</numerusform>
            <numerusform>alle %n Sekunden</numerusform>
        </translation>
    </message>
    <message id="preferences_every_minutes" numerus="yes">
        <source></source>
        <translation>
            <numerusform>jede Minute</numerusform>
            <numerusform>alle %n Minuten</numerusform>
        </translation>
    </message>
    <message id="preferences_every_hour">
        <source></source>
        <translation>jede Stunde</translation>
    </message>
    <message id="preferences_interval_invalid">
        <source></source>
        <translation>ungültige Eingabe, nicht umwandelbar</translation>
    </message>
    <message id="preferences_percent">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="preferences_page_general">
        <source></source>
        <translation>Allgemein</translation>
    </message>
    <message id="preferences_page_mainwindow">
        <source></source>
        <translation>Hauptfenster</translation>
    </message>
    <message id="preferences_page_animatedview">
        <source></source>
        <translation>Animierte Ansicht</translation>
    </message>
    <message id="preferences_page_history">
        <source></source>
        <translation>CPU-Verlauf</translation>
    </message>
    <message id="preferences_page_logging">
        <source></source>
        <translation>Protokoll</translation>
    </message>
    <message id="preferences_all_settings">
        <source></source>
        <translation>A&amp;lle Einstellungen…</translation>
    </message>
    <message id="preferences_all_settings_tip">
        <source></source>
        <translation>Jede Einstellung des Programms, auch solche ohne eigenes Bedienelement.</translation>
    </message>
    <message id="preferences_close">
        <source></source>
        <translation>S&amp;chließen</translation>
    </message>
    <message id="preferences_close_tip">
        <source></source>
        <translation>Schließt das Fenster. Jede Änderung ist bereits gespeichert.</translation>
    </message>
    <message id="preferences_memoryFormatMatrix">
        <source></source>
        <translation>Speichergrößen</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_tip">
        <source></source>
        <translation>Die Einheit von Speichergrößen in Tabellen, Balken und Protokollen.</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_automatic">
        <source></source>
        <translation>&amp;Automatisch</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_bytes">
        <source></source>
        <translation>&amp;Byte</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_kilobytes">
        <source></source>
        <translation>&amp;Kilobyte</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_megabytes">
        <source></source>
        <translation>&amp;Megabyte</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_gigabytes">
        <source></source>
        <translation>&amp;Gigabyte</translation>
    </message>
    <message id="preferences_dateFormatMatrix">
        <source></source>
        <translation>Datum</translation>
    </message>
    <message id="preferences_dateFormatMatrix_tip">
        <source></source>
        <translation>Wie Datum und Uhrzeit in Tabellen und Protokollen geschrieben werden.</translation>
    </message>
    <message id="preferences_dateFormatMatrix_calendar">
        <source></source>
        <translation>Kale&amp;nder und Uhr</translation>
    </message>
    <message id="preferences_dateFormatMatrix_seconds">
        <source></source>
        <translation>&amp;Sekunden seit 1970</translation>
    </message>
    <message id="preferences_dateFormatMatrix_microseconds">
        <source></source>
        <translation>Sekunden und Mik&amp;rosekunden</translation>
    </message>
    <message id="preferences_mainWindowInterval">
        <source></source>
        <translation>&amp;Tabelle aktualisieren:</translation>
    </message>
    <message id="preferences_mainWindowInterval_tip">
        <source></source>
        <translation>Wie oft die Tabelle des Hauptfensters auf den neuesten Stand gebracht wird. Seltenes Aktualisieren kostet weniger.</translation>
    </message>
    <message id="preferences_memoryGraph">
        <source></source>
        <translation>&amp;Größe auf Speicherbalken anzeigen</translation>
    </message>
    <message id="preferences_memoryGraph_tip">
        <source></source>
        <translation>Schreibt auf jeden Speicherbalken die Größe, die seine Länge darstellt.</translation>
    </message>
    <message id="preferences_memoryFigure">
        <source></source>
        <translation>&amp;Speicherbalken zeigen:</translation>
    </message>
    <message id="preferences_memoryFigure_tip">
        <source></source>
        <translation>Was die Länge der Speicherbalken darstellt; wo die Tabelle danach sortiert ist, auch die Reihenfolge der Zeilen.</translation>
    </message>
    <message id="preferences_memoryFigure_virtual">
        <source></source>
        <translation>die virtuelle Größe, darin die residente</translation>
    </message>
    <message id="preferences_memoryFigure_resident">
        <source></source>
        <translation>die residente Größe</translation>
    </message>
    <message id="preferences_memoryFigure_proportional">
        <source></source>
        <translation>die anteilige Größe: gemeinsamer Speicher aufgeteilt</translation>
    </message>
    <message id="preferences_frameInterval">
        <source></source>
        <translation>&amp;Bild zeichnen:</translation>
    </message>
    <message id="preferences_frameInterval_tip">
        <source></source>
        <translation>Wie oft die animierte Ansicht gezeichnet wird. Die beiden Zeitabstände darunter sind nie kürzer.</translation>
    </message>
    <message id="preferences_mainInterval">
        <source></source>
        <translation>&amp;Prozesse aktualisieren:</translation>
    </message>
    <message id="preferences_mainInterval_tip">
        <source></source>
        <translation>Wie oft die animierte Ansicht nach gestarteten und beendeten Prozessen sieht. Nie kürzer als das Zeichnen, nie länger als das Messen.</translation>
    </message>
    <message id="preferences_cpuInterval">
        <source></source>
        <translation>CPU-Auslastung &amp;messen:</translation>
    </message>
    <message id="preferences_cpuInterval_tip">
        <source></source>
        <translation>Wie oft die animierte Ansicht die CPU-Auslastung ihrer Prozesse misst. Die beiden Zeitabstände darüber sind nie länger.</translation>
    </message>
    <message id="preferences_windowAlpha">
        <source></source>
        <translation>&amp;Deckkraft im Vollbild:</translation>
    </message>
    <message id="preferences_windowAlpha_tip">
        <source></source>
        <translation>Wie sehr die Vollbildansicht die Arbeitsfläche verdeckt: 0 % macht die Ansicht unsichtbar, 100 % die Arbeitsfläche.</translation>
    </message>
    <message id="preferences_underlayAlpha">
        <source></source>
        <translation>Deckkraft des &amp;Hintergrunds:</translation>
    </message>
    <message id="preferences_underlayAlpha_tip">
        <source></source>
        <translation>Wie stark das Bild hinter den Prozessen im Vollbild zu sehen ist.</translation>
    </message>
    <message id="preferences_connectors">
        <source></source>
        <translation>&amp;Eltern und Kinder im Vollbild verbinden</translation>
    </message>
    <message id="preferences_connectors_tip">
        <source></source>
        <translation>Zeichnet eine Linie von jedem Prozess zu seinem Elternprozess, auch in der Vollbildansicht.</translation>
    </message>
    <message id="preferences_historyInterval">
        <source></source>
        <translation>CPU-Auslastung &amp;messen:</translation>
    </message>
    <message id="preferences_historyInterval_tip">
        <source></source>
        <translation>Wie oft ein CPU-Verlauf einen neuen Punkt erhält.</translation>
    </message>
    <message id="preferences_historyFilter">
        <source></source>
        <translation>&amp;Glätten um:</translation>
    </message>
    <message id="preferences_historyFilter_tip">
        <source></source>
        <translation>Wie viel vom vorigen Punkt in den nächsten eingeht: 0 % zeigt jeden Sprung, höhere Werte eine ruhigere Linie.</translation>
    </message>
    <message id="preferences_historyColour">
        <source></source>
        <translation>CPU-A&amp;uslastung:</translation>
    </message>
    <message id="preferences_historyColour_tip">
        <source></source>
        <translation>Die Farbe der Linie für die CPU-Auslastung des Prozesses, samt seinen Nachkommen, wenn sie eingeschlossen sind.</translation>
    </message>
    <message id="preferences_descendantsColour">
        <source></source>
        <translation>Eigener A&amp;nteil:</translation>
    </message>
    <message id="preferences_descendantsColour_tip">
        <source></source>
        <translation>Die Farbe der Linie für den eigenen Anteil des Prozesses, wenn seine Nachkommen eingeschlossen sind. Gilt für Fenster, die ab jetzt geöffnet werden.</translation>
    </message>
    <message id="preferences_relative">
        <source></source>
        <translation>An das jüngste Ma&amp;ximum anpassen</translation>
    </message>
    <message id="preferences_relative_tip">
        <source></source>
        <translation>Die Höhe des Diagramms steht für die höchste Auslastung der jüngsten Zeit statt für 100 %.</translation>
    </message>
    <message id="preferences_descendants">
        <source></source>
        <translation>Nachkommen des Prozesses &amp;einschließen</translation>
    </message>
    <message id="preferences_descendants_tip">
        <source></source>
        <translation>Zeigt in einer eigenen Farbe, was die von ihm gestarteten Prozesse nutzen.</translation>
    </message>
    <message id="preferences_loggingInterval">
        <source></source>
        <translation>Auf Änderungen &amp;prüfen:</translation>
    </message>
    <message id="preferences_loggingInterval_tip">
        <source></source>
        <translation>Wie oft ein Protokoll prüft, ob es etwas Neues zu notieren gibt.</translation>
    </message>
    <message id="preferences_timestamp">
        <source></source>
        <translation>Uhr&amp;zeit</translation>
    </message>
    <message id="preferences_timestamp_tip">
        <source></source>
        <translation>Eine Spalte mit der Uhrzeit jeder Zeile.</translation>
    </message>
    <message id="preferences_logToFile">
        <source></source>
        <translation>Auch in eine &amp;Datei schreiben</translation>
    </message>
    <message id="preferences_logToFile_tip">
        <source></source>
        <translation>Hängt jede Zeile an eine eigene Textdatei des Protokolls an.</translation>
    </message>
    <message id="preferences_activeTime">
        <source></source>
        <translation>CP&amp;U-Zeit</translation>
    </message>
    <message id="preferences_activeTime_tip">
        <source></source>
        <translation>Eine Spalte mit der CPU-Zeit, die der Prozess verbraucht hat.</translation>
    </message>
    <message id="preferences_deltaActiveTime">
        <source></source>
        <translation>Änderun&amp;g der CPU-Zeit</translation>
    </message>
    <message id="preferences_deltaActiveTime_tip">
        <source></source>
        <translation>Eine Spalte mit der seit der vorigen Zeile verbrauchten CPU-Zeit.</translation>
    </message>
    <message id="preferences_realMemory">
        <source></source>
        <translation>&amp;Realer Speicher</translation>
    </message>
    <message id="preferences_realMemory_tip">
        <source></source>
        <translation>Eine Spalte mit dem Speicher, den der Prozess belegt.</translation>
    </message>
    <message id="preferences_deltaRealMemory">
        <source></source>
        <translation>Änderung des r&amp;ealen Speichers</translation>
    </message>
    <message id="preferences_deltaRealMemory_tip">
        <source></source>
        <translation>Eine Spalte mit der Änderung des realen Speichers seit der vorigen Zeile.</translation>
    </message>
    <message id="preferences_virtualMemory">
        <source></source>
        <translation>&amp;Virtueller Speicher</translation>
    </message>
    <message id="preferences_virtualMemory_tip">
        <source></source>
        <translation>Eine Spalte mit der Größe des Adressraums des Prozesses.</translation>
    </message>
    <message id="preferences_deltaVirtualMemory">
        <source></source>
        <translation>Ä&amp;nderung des virtuellen Speichers</translation>
    </message>
    <message id="preferences_deltaVirtualMemory_tip">
        <source></source>
        <translation>Eine Spalte mit der Änderung des virtuellen Speichers seit der vorigen Zeile.</translation>
    </message>
    <message id="preferences_notice">
        <source></source>
        <translation>Änderungen gelten für Protokollfenster, die ab jetzt geöffnet werden.</translation>
    </message>
    <message id="settings_title">
        <source></source>
        <translation>Alle Einstellungen</translation>
    </message>
    <message id="settings_filter">
        <source></source>
        <translation>Nach Name, Schlüssel, Wert oder Bedeutung filtern</translation>
    </message>
    <message id="settings_reset">
        <source></source>
        <translation>Auf Standard &amp;zurücksetzen</translation>
    </message>
    <message id="settings_reset_tip">
        <source></source>
        <translation>Entfernt die gespeicherten Werte der ausgewählten Einstellungen, sodass ihre Standardwerte gelten.</translation>
    </message>
    <message id="settings_column_key">
        <source></source>
        <translation>Einstellung</translation>
    </message>
    <message id="settings_column_value">
        <source></source>
        <translation>Wert</translation>
    </message>
    <message id="settings_column_default">
        <source></source>
        <translation>Standard</translation>
    </message>
    <message id="settings_column_kind">
        <source></source>
        <translation>Typ</translation>
    </message>
    <message id="settings_column_effect">
        <source></source>
        <translation>Gilt</translation>
    </message>
    <message id="settings_column_meaning">
        <source></source>
        <translation>Bedeutung</translation>
    </message>
    <message id="settings_kind_switch">
        <source></source>
        <translation>Schalter</translation>
    </message>
    <message id="settings_kind_choice">
        <source></source>
        <translation>Auswahl</translation>
    </message>
    <message id="settings_kind_integer">
        <source></source>
        <translation>ganze Zahl</translation>
    </message>
    <message id="settings_kind_interval">
        <source></source>
        <translation>Zeitabstand</translation>
    </message>
    <message id="settings_kind_colour">
        <source></source>
        <translation>Farbe, 0 bis 65535</translation>
    </message>
    <message id="settings_kind_real">
        <source></source>
        <translation>Zahl</translation>
    </message>
    <message id="settings_kind_text">
        <source></source>
        <translation>Text</translation>
    </message>
    <message id="settings_kind_record">
        <source></source>
        <translation>Notiz des Programms</translation>
    </message>
    <message id="settings_kind_array">
        <source></source>
        <translation>Datensätze</translation>
    </message>
    <message id="settings_kind_unit">
        <source></source>
        <translation>%1 in %2</translation>
    </message>
    <message id="settings_unit_milliseconds">
        <source></source>
        <translation>Millisekunden</translation>
    </message>
    <message id="settings_unit_seconds">
        <source></source>
        <translation>Sekunden</translation>
    </message>
    <message id="settings_unit_pages">
        <source></source>
        <translation>Seiten</translation>
    </message>
    <message id="settings_unit_points">
        <source></source>
        <translation>Punkten</translation>
    </message>
    <message id="settings_unit_ticks">
        <source></source>
        <translation>Ticks (60 pro Sekunde)</translation>
    </message>
    <message id="settings_kind_range">
        <source></source>
        <translation>%1, %2 bis %3</translation>
    </message>
    <message id="settings_effect_at_once">
        <source></source>
        <translation>sofort</translation>
    </message>
    <message id="settings_effect_new_windows">
        <source></source>
        <translation>für neue Fenster</translation>
    </message>
    <message id="settings_effect_next_start">
        <source></source>
        <translation>ab dem nächsten Start</translation>
    </message>
    <message id="settings_note_at_once">
        <source></source>
        <translation>Eine Änderung gilt sofort.</translation>
    </message>
    <message id="settings_note_new_windows">
        <source></source>
        <translation>Eine Änderung gilt für Fenster, die danach geöffnet werden.</translation>
    </message>
    <message id="settings_note_next_start">
        <source></source>
        <translation>Eine Änderung gilt ab dem nächsten Start des Programms.</translation>
    </message>
    <message id="settings_note_not_stored">
        <source></source>
        <translation>Es ist nichts gespeichert; der Standardwert gilt. %1</translation>
    </message>
    <message id="settings_note_record">
        <source></source>
        <translation>Das verwaltet das Programm selbst; es wird hier nicht geändert.</translation>
    </message>
    <message id="hot_key_given">
        <source></source>
        <translation>Auf dieser Arbeitsfläche ist die Taste: %1.</translation>
    </message>
    <message id="hot_key_awaited">
        <source></source>
        <translation>Die Arbeitsumgebung hat noch nicht geantwortet.</translation>
    </message>
    <message id="hot_key_taken">
        <source></source>
        <translation>Sie wirkt nicht: Ein anderes Programm hat die Taste, oder die Tastatur hat keine solche.</translation>
    </message>
    <message id="hot_key_refused">
        <source></source>
        <translation>Sie wirkt nicht: Die Arbeitsumgebung hat die Taste nicht vergeben. In ihren eigenen Tasteneinstellungen lässt sich das ändern.</translation>
    </message>
    <message id="hot_key_no_way">
        <source></source>
        <translation>Sie wirkt nicht: Diese Arbeitsumgebung vergibt keine Tasten an Programme. In ihren eigenen Einstellungen lässt sich dem Befehl „lurkwell --toggle-overlay“ eine Taste geben.</translation>
    </message>
    <message id="settings_note_no_number">
        <source></source>
        <translation>Was gespeichert ist, ist keine Zahl und wird als 0 gelesen. Geben Sie eine Zahl ein oder setzen Sie die Einstellung zurück.</translation>
    </message>
    <message id="settings_elements" numerus="yes">
        <source></source>
        <translation>
            <numerusform>1 Datensatz</numerusform>
            <numerusform>%n Datensätze</numerusform>
        </translation>
    </message>
    <message id="settings_problem_no_number">
        <source></source>
        <translation>„%1“ ist keine Zahl. Die Einstellung bleibt, wie sie war.</translation>
    </message>
    <message id="settings_problem_not_whole">
        <source></source>
        <translation>„%1“ ist keine ganze Zahl. Die Einstellung bleibt, wie sie war.</translation>
    </message>
    <message id="settings_problem_range">
        <source></source>
        <translation>„%1“ liegt außerhalb des Bereichs: Erlaubt ist %2 bis %3. Die Einstellung bleibt, wie sie war.</translation>
    </message>
    <message id="settings_problem_characters">
        <source></source>
        <translation>Der Text enthält Zeichen, die Einstellungen nicht aufnehmen können. Die Einstellung bleibt, wie sie war.</translation>
    </message>
    <message id="settings_component_red">
        <source></source>
        <translation>%1 Rot.</translation>
    </message>
    <message id="settings_component_green">
        <source></source>
        <translation>%1 Grün.</translation>
    </message>
    <message id="settings_component_blue">
        <source></source>
        <translation>%1 Blau.</translation>
    </message>
    <message id="settings_title_red">
        <source></source>
        <translation>%1: Rot</translation>
    </message>
    <message id="settings_title_green">
        <source></source>
        <translation>%1: Grün</translation>
    </message>
    <message id="settings_title_blue">
        <source></source>
        <translation>%1: Blau</translation>
    </message>
    <message id="settings_title_and_key">
        <source></source>
        <translation>%1, Schlüssel %2</translation>
    </message>
    <message id="setting_title_GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT">
        <source></source>
        <translation>Einheit der Speichergrößen</translation>
    </message>
    <message id="setting_title_GENERAL_PREFERRED_DATE_DISPLAY_FORMAT">
        <source></source>
        <translation>Format von Datum und Uhrzeit</translation>
    </message>
    <message id="setting_title_GENERAL_ALWAYS_AUTHENTICATE_DAEMON">
        <source></source>
        <translation>Bei jedem Start nach einem Passwort fragen</translation>
    </message>
    <message id="setting_title_GENERAL_CONTINUE_WITHOUT_RIGHTS">
        <source></source>
        <translation>Ohne die Rechte eines Systemverwalters starten</translation>
    </message>
    <message id="setting_title_FIGURES_FROM_HELPER">
        <source></source>
        <translation>Das Hilfsprogramm nach Prozesswerten fragen</translation>
    </message>
    <message id="setting_title_PREFERENCES_UI_DEFAULT_TAB">
        <source></source>
        <translation>Seite der Einstellungen</translation>
    </message>
    <message id="setting_title_ABOUT_PANEL_AT_EVERY_START">
        <source></source>
        <translation>Info-Fenster bei jedem Start</translation>
    </message>
    <message id="hint_details">
        <source></source>
        <translation>Ein Doppelklick auf einen Prozess öffnet seine Details; ein Rechtsklick bietet, was sich mit ihm tun lässt.</translation>
    </message>
    <message id="hint_filter">
        <source></source>
        <translation>Strg+F findet Prozesse nach jedem Merkmal: zum Beispiel user:root cpu&gt;5 oder port:443.</translation>
    </message>
    <message id="hint_columns">
        <source></source>
        <translation>Ein Rechtsklick auf die Kopfzeile fügt Spalten hinzu; Strg+1 bis Strg+7 wechseln zwischen ganzen Spaltensätzen.</translation>
    </message>
    <message id="hint_follow">
        <source></source>
        <translation>Strg+N lässt ein kleines Diagramm des ausgewählten Prozesses über allen Fenstern schweben; es kommt mit seinem Programm wieder.</translation>
    </message>
    <message id="hint_shapes">
        <source></source>
        <translation>Alt+2 zeigt die Prozesse als Baum, Alt+3 nach Anwendung; Summen gelten für den ganzen Zweig.</translation>
    </message>
    <message id="hints_none">
        <source></source>
        <translation>Keine Tipps mehr</translation>
    </message>
    <message id="hints_close">
        <source></source>
        <translation>Diesen Tipp ausblenden</translation>
    </message>
    <message id="setting_title_HINTS_SEEN">
        <source></source>
        <translation>Ausgeblendete Tipps</translation>
    </message>
    <message id="setting_title_ABOUT_PANEL_SEEN_VERSION">
        <source></source>
        <translation>Info-Fenster: gesehene Version</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_INTERVAL">
        <source></source>
        <translation>Tabelle: Aktualisierungsabstand</translation>
    </message>
    <message id="setting_title_MEM_GRAPH_DRAW_VSZ">
        <source></source>
        <translation>Tabelle: Größe auf Speicherbalken</translation>
    </message>
    <message id="setting_title_MEMORY_BAR_FIGURE">
        <source></source>
        <translation>Tabelle: was Speicherbalken zeigen</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE">
        <source></source>
        <translation>Tabelle: Leerlaufprozess zählt als 0</translation>
    </message>
    <message id="setting_title_CPU_SHARE_OF_MACHINE">
        <source></source>
        <translation>Spalten: CPU-Anteile am ganzen Rechner</translation>
    </message>
    <message id="setting_title_KEEP_COMMAND_LINES">
        <source></source>
        <translation>Ausgabe: ganze Befehlszeilen</translation>
    </message>
    <message id="setting_title_MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT">
        <source></source>
        <translation>Tabelle: gemeinsamen Bereich weglassen</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_PAGEOUT_CRITICAL_FLASH_INTERVAL">
        <source></source>
        <translation>Auslagerungsanzeige: Zeit zwischen Blinkwechseln</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_FILTER">
        <source></source>
        <translation>Auslagerungsanzeige: Glättung</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_RED">
        <source></source>
        <translation>Auslagerungsanzeige: rot ab</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_YELLOW">
        <source></source>
        <translation>Auslagerungsanzeige: gelb ab</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_PROCESS_LIST_WINDOW">
        <source></source>
        <translation>Hauptfenster war geöffnet</translation>
    </message>
    <message id="setting_title_DETAILS_WINDOW_FRAME">
        <source></source>
        <translation>Details: Position und Größe</translation>
    </message>
    <message id="setting_DETAILS_WINDOW_FRAME">
        <source></source>
        <translation>Position und Größe des zuletzt geschlossenen Fensters mit Details eines Prozesses.</translation>
    </message>
    <message id="setting_title_DETAILS_WINDOW_PAGE">
        <source></source>
        <translation>Details: Seite</translation>
    </message>
    <message id="setting_DETAILS_WINDOW_PAGE">
        <source></source>
        <translation>Die zuletzt angezeigte Seite des Fensters mit Details, ab 0 gezählt.</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FRAME">
        <source></source>
        <translation>Hauptfenster: Position und Größe</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_ITEMS">
        <source></source>
        <translation>Werkzeugleiste: Elemente</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_DISPLAY_MODE">
        <source></source>
        <translation>Werkzeugleiste: Symbole oder Text</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_SHOWN">
        <source></source>
        <translation>Werkzeugleiste: sichtbar</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SORT_COLUMN_INDEX">
        <source></source>
        <translation>Tabelle: sortierte Spalte</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SHAPE">
        <source></source>
        <translation>Form der Prozesstabelle, Standardsatz</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SCOPE">
        <source></source>
        <translation>Umfang der Prozesstabelle</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FOLLOWS_SELECTION">
        <source></source>
        <translation>Auswahl bleibt am Platz</translation>
    </message>
    <message id="setting_title_WEB_SEARCH_ADDRESS">
        <source></source>
        <translation>Adresse für die Suche im Web</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FOLDED_PROGRAMS">
        <source></source>
        <translation>Zugeklappte Programme</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_UNFOLDED_APPLICATIONS">
        <source></source>
        <translation>Aufgeklappte Anwendungen</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_RECENT_FILTERS">
        <source></source>
        <translation>Letzte Filter</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMNS">
        <source></source>
        <translation>Tabelle: Spalten</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMN_SETS">
        <source></source>
        <translation>Tabelle: Spaltensätze</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMN_SET">
        <source></source>
        <translation>Tabelle: angezeigter Spaltensatz</translation>
    </message>
    <message id="setting_title_HAS_RUN_TWO_POINT_THREE">
        <source></source>
        <translation>Spalte der Kennzeichen wurde hinzugefügt</translation>
    </message>
    <message id="setting_title_HAS_RUN_TWO_POINT_FOUR">
        <source></source>
        <translation>Spalte der Speicherbalken wurde hinzugefügt</translation>
    </message>
    <message id="setting_title_DEFAULT_X_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Kleine Fenster: linker Rand des letzten</translation>
    </message>
    <message id="setting_title_DEFAULT_Y_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Kleine Fenster: oberer Rand des letzten</translation>
    </message>
    <message id="setting_title_DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA">
        <source></source>
        <translation>Kleine Fenster: Deckkraft</translation>
    </message>
    <message id="setting_title_DEFAULT_WATCHDOG_INTERVAL">
        <source></source>
        <translation>Gemerkte Fenster: nach ihren Programmen sehen alle</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_WINDOW_INTERVAL">
        <source></source>
        <translation>CPU-Verlauf: Zeit zwischen zwei Punkten</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_USE_RELATIVE">
        <source></source>
        <translation>CPU-Verlauf: an das jüngste Maximum anpassen</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS">
        <source></source>
        <translation>CPU-Verlauf: Nachkommen einschließen</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_DEFAULT_FILTER">
        <source></source>
        <translation>CPU-Verlauf: Glättung</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_BACKGROUND_RGB">
        <source></source>
        <translation>CPU-Verlauf: Hintergrund</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_FOREGROUND_RGB">
        <source></source>
        <translation>CPU-Verlauf: CPU-Auslastung</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB">
        <source></source>
        <translation>CPU-Verlauf: eigener Anteil</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_NAME_RGB">
        <source></source>
        <translation>CPU-Verlauf: Name</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_RGB">
        <source></source>
        <translation>CPU-Verlauf: Beschriftung der festen Skala</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB">
        <source></source>
        <translation>CPU-Verlauf: Beschriftung der angepassten Skala</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_FLASH_RGB">
        <source></source>
        <translation>CPU-Verlauf: Beschriftung einer neuen Skala</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG">
        <source></source>
        <translation>CPU-Verlauf: Hintergrund des Prozentwerts</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG">
        <source></source>
        <translation>CPU-Verlauf: Prozentwert</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_NAME_ALPHA">
        <source></source>
        <translation>CPU-Verlauf: Deckkraft des Namens</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HIGHWATERMARK_ALPHA">
        <source></source>
        <translation>CPU-Verlauf: Deckkraft der Skalenbeschriftung</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_ALPHA">
        <source></source>
        <translation>CPU-Verlauf: Deckkraft des Prozentwerts</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_ICON_ALPHA">
        <source></source>
        <translation>CPU-Verlauf: Deckkraft des Symbols (frühere)</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_ICON_ALPHA_REALLY">
        <source></source>
        <translation>CPU-Verlauf: Deckkraft des Symbols</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW">
        <source></source>
        <translation>CPU-Verlauf: gemerkte Fenster</translation>
    </message>
    <message id="setting_title_DEFAULT_LOGGING_WINDOW_INTERVAL">
        <source></source>
        <translation>Protokoll: auf Änderungen prüfen alle</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_INCLUDE_TIMESTAMP">
        <source></source>
        <translation>Protokoll: Uhrzeit</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Protokoll: CPU-Zeit</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Protokoll: Änderung der CPU-Zeit</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_REAL_MEM_BOOL">
        <source></source>
        <translation>Protokoll: realer Speicher</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_REAL_MEM_BOOL">
        <source></source>
        <translation>Protokoll: Änderung des realen Speichers</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Protokoll: virtueller Speicher</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Protokoll: Änderung des virtuellen Speichers</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_LOG_TO_FILE">
        <source></source>
        <translation>Protokoll: auch in eine Datei schreiben</translation>
    </message>
    <message id="setting_title_LOGGING_WINDOW">
        <source></source>
        <translation>Protokoll: gemerkte Fenster</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_GL_THREAD_INTERVAL">
        <source></source>
        <translation>Animierte Ansicht: Zeit zwischen zwei Bildern</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_MAINPIC_INTERVAL">
        <source></source>
        <translation>Animierte Ansicht: nach Prozessen sehen alle</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_HELPERPIC_INTERVAL">
        <source></source>
        <translation>Animierte Ansicht: CPU-Auslastung messen alle</translation>
    </message>
    <message id="setting_title_QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS">
        <source></source>
        <translation>Vollbildansicht: Eltern und Kinder verbinden</translation>
    </message>
    <message id="setting_title_QUINT_FULLSCREEN_WINDOW_ALPHA">
        <source></source>
        <translation>Vollbildansicht: Deckkraft</translation>
    </message>
    <message id="setting_title_QUINT_FULLSCREEN_UNDERLAY_ALPHA">
        <source></source>
        <translation>Vollbildansicht: Deckkraft des Hintergrunds</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_ICON_SCALE_FACTOR">
        <source></source>
        <translation>Animierte Ansicht: Maßstab der Symbole</translation>
    </message>
    <message id="setting_title_QUIVA_FULLSCREEN_EXTRA_SCALE_FACTOR">
        <source></source>
        <translation>Vollbildansicht: weiterer Maßstab der Symbole</translation>
    </message>
    <message id="setting_title_QUINT_MAX_ITERATIONS_TO_STABILIZE_WHEN_FIRST_SHOWING">
        <source></source>
        <translation>Animierte Ansicht: Schritte vor dem ersten Bild</translation>
    </message>
    <message id="setting_title_QUINT_TARVIK_FACTOR">
        <source></source>
        <translation>Animierte Ansicht: Faktor für Lurkwells eigene Aktivität</translation>
    </message>
    <message id="setting_title_FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE">
        <source></source>
        <translation>Vollbildansicht: Taste</translation>
    </message>
    <message id="setting_title_QUIVA_CHECK_QUARTZ_EXTREME">
        <source></source>
        <translation>Animierte Ansicht: Grafik wurde geprüft</translation>
    </message>
    <message id="setting_title_QUIVA_CHECK_COMPOSITOR">
        <source></source>
        <translation>Vollbildansicht: Compositor wurde geprüft</translation>
    </message>
    <message id="setting_title_QUIVA_WINDOW_FRAME">
        <source></source>
        <translation>Animierte Ansicht: Position und Größe</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>Animierte Ansicht war geöffnet</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>Vollbildansicht war geöffnet</translation>
    </message>
    <message id="setting_title_CLASSIC_INITIAL_ASSUMED_CPU_USAGE">
        <source></source>
        <translation>Classic-Umgebung: anfängliche CPU-Auslastung</translation>
    </message>
    <message id="setting_title_CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER">
        <source></source>
        <translation>Classic-Umgebung: Gewicht einer Messung</translation>
    </message>
    <message id="setting_title_CLASSIC_WATCHDOG_INTERVAL">
        <source></source>
        <translation>Classic-Umgebung: nach ihr sehen alle</translation>
    </message>
    <message id="setting_title_CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX">
        <source></source>
        <translation>Classic-Umgebung: Ruhezeit ihres Hilfsprogramms</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_AND_TESTING">
        <source></source>
        <translation>Rechnerwerte: Fenster anzeigen</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_SWI_INTERVAL">
        <source></source>
        <translation>Rechnerwerte: Aktualisierungsabstand</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_LEFT">
        <source></source>
        <translation>Rechnerwerte: linker Rand</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_TOP">
        <source></source>
        <translation>Rechnerwerte: oberer Rand</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_RIGHT">
        <source></source>
        <translation>Rechnerwerte: rechter Rand</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_BOTTOM">
        <source></source>
        <translation>Rechnerwerte: unterer Rand</translation>
    </message>
    <message id="setting_GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT">
        <source></source>
        <translation>Einheit der Speichergrößen: 0 automatisch, 1 Byte, 2 Kilobyte, 3 Megabyte, 4 Gigabyte.</translation>
    </message>
    <message id="setting_GENERAL_PREFERRED_DATE_DISPLAY_FORMAT">
        <source></source>
        <translation>Wie Datum und Uhrzeit geschrieben werden: 0 Kalender und Uhr, 1 Sekunden seit 1970, 2 Sekunden und Mikrosekunden.</translation>
    </message>
    <message id="setting_GENERAL_ALWAYS_AUTHENTICATE_DAEMON">
        <source></source>
        <translation>Bei jedem Start nach dem Passwort eines Systemverwalters fragen, auch wenn das Hilfsprogramm seine Rechte schon hat.</translation>
    </message>
    <message id="setting_GENERAL_CONTINUE_WITHOUT_RIGHTS">
        <source></source>
        <translation>Ohne die Rechte eines Systemverwalters starten, wo das Hilfsprogramm keine hat, und nicht danach fragen. Wird durch „Ohne fortfahren“ eingeschaltet.</translation>
    </message>
    <message id="setting_FIGURES_FROM_HELPER">
        <source></source>
        <translation>Das Hilfsprogramm nach Prozesswerten fragen, wie auf Rechnern, auf denen nur es sie lesen darf. Ausgeschaltet liest das Programm sie selbst, was viel weniger kostet.</translation>
    </message>
    <message id="setting_PREFERENCES_UI_DEFAULT_TAB">
        <source></source>
        <translation>Die zuletzt angezeigte Seite des Einstellungsfensters, ab 0 gezählt.</translation>
    </message>
    <message id="setting_ABOUT_PANEL_AT_EVERY_START">
        <source></source>
        <translation>Das Info-Fenster bei jedem Start drei Sekunden lang zeigen, nicht nur beim ersten Start einer Version.</translation>
    </message>
    <message id="setting_HINTS_SEEN">
        <source></source>
        <translation>Wie viele der Tipps über der Tabelle ausgeblendet wurden; 0 zeigt sie wieder, bei jedem Start einen.</translation>
    </message>
    <message id="setting_ABOUT_PANEL_SEEN_VERSION">
        <source></source>
        <translation>Version, deren Info-Fenster beim Start gezeigt wurde.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_INTERVAL">
        <source></source>
        <translation>Zeit zwischen zwei Aktualisierungen der Tabelle im Hauptfenster.</translation>
    </message>
    <message id="setting_MEM_GRAPH_DRAW_VSZ">
        <source></source>
        <translation>Auf Speicherbalken die Größe schreiben, die ihre Länge darstellt.</translation>
    </message>
    <message id="setting_MEMORY_BAR_FIGURE">
        <source></source>
        <translation>Was die Länge der Speicherbalken darstellt, und ihre Reihenfolge, wenn die Tabelle danach sortiert ist: 0 – die virtuelle Größe, darin die residente, 1 – die residente Größe, 2 – die anteilige Größe, bei der gemeinsamer Speicher aufgeteilt zählt. Virtuelle Größen, die den Speicher des Rechners übersteigen, sind für andere Balken kein Maßstab.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE">
        <source></source>
        <translation>CPU-Auslastung und Größe des Leerlaufprozesses als 0 anzeigen, damit seine Balken nicht alle anderen verdecken.</translation>
    </message>
    <message id="setting_CPU_SHARE_OF_MACHINE">
        <source></source>
        <translation>CPU-, Benutzer- und Systemanteile auf alle Prozessoren zusammen statt auf einen beziehen: 100 % ist dann der ganze Rechner. Die Spaltenköpfe geben an, was gilt.</translation>
    </message>
    <message id="setting_KEEP_COMMAND_LINES">
        <source></source>
        <translation>Wo eine Befehlszeile verlangt ist, auch die Argumente der Programme schreiben und drucken, die Passwörter enthalten können, und nicht nur das Programm.</translation>
    </message>
    <message id="setting_MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT">
        <source></source>
        <translation>Den Bereich, den alle Prozesse gemeinsam haben, bei virtuellen Größen weglassen, auf Rechnern, die einen solchen haben.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_PAGEOUT_CRITICAL_FLASH_INTERVAL">
        <source></source>
        <translation>Sekunden zwischen zwei Wechseln des roten Lichts der Auslagerungsanzeige, während viele Seiten ausgelagert werden.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_FILTER">
        <source></source>
        <translation>Was von der Auslagerungsrate von einer Aktualisierung zur nächsten bleibt, von 0 bis 1.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_RED">
        <source></source>
        <translation>Ausgelagerte Seiten je Aktualisierung, ab denen die Auslagerungsanzeige rot ist.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_YELLOW">
        <source></source>
        <translation>Ausgelagerte Seiten je Aktualisierung, ab denen die Auslagerungsanzeige gelb ist.</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_PROCESS_LIST_WINDOW">
        <source></source>
        <translation>Das Hauptfenster beim Start öffnen. Das Programm merkt sich hier, ob es geöffnet war.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FRAME">
        <source></source>
        <translation>Position und Größe des Hauptfensters.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SORT_COLUMN_INDEX">
        <source></source>
        <translation>Die gemerkte Spalte, nach der die Tabelle sortiert ist, ab 0 gezählt.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SHAPE">
        <source></source>
        <translation>Wie Prozesse in der Tabelle mit dem Standardspaltensatz stehen: 0 – als Liste, 1 – Kindprozesse unter ihren Elternprozessen, 2 – unter ihren Anwendungen.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SCOPE">
        <source></source>
        <translation>Welche Prozesse die Tabelle zeigt: 0 – alle, 1 – die eigenen des Benutzers, 2 – die anderer Benutzer, 3 – Anwendungen, 4 – alle außer Kernel-Threads, 5 – was seit der letzten Aktualisierung einen Prozessor benutzt hat.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FOLLOWS_SELECTION">
        <source></source>
        <translation>Ob die ausgewählte Zeile an ihrem Platz auf dem Bildschirm bleibt, während andere die Plätze tauschen.</translation>
    </message>
    <message id="setting_WEB_SEARCH_ADDRESS">
        <source></source>
        <translation>Eine Webadresse, in der %1 für den Namen des Programms steht. Leer für die übliche.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FOLDED_PROGRAMS">
        <source></source>
        <translation>Programme, deren Kindprozesse im Baum zugeklappt sind, das jüngste zuerst, mit Prozentzeichen statt anderer Buchstaben.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_UNFOLDED_APPLICATIONS">
        <source></source>
        <translation>Anwendungen, Units, Container und Programme, deren Prozesse aufgeklappt sind, das jüngste zuerst, mit Prozentzeichen statt anderer Buchstaben.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_RECENT_FILTERS">
        <source></source>
        <translation>Die zuletzt benutzten Filter der Prozesstabelle, der jüngste zuerst, mit Prozentzeichen statt anderer Buchstaben.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMNS">
        <source></source>
        <translation>Spalten des Standardsatzes, mit ihren Breiten und Sortierrichtungen.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMN_SETS">
        <source></source>
        <translation>Was die Spaltensätze außer dem Standardsatz bewahren: Spalten, Breiten, Sortierrichtungen, Sortierspalte und Form.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMN_SET">
        <source></source>
        <translation>Der Spaltensatz, den die Tabelle zeigt.</translation>
    </message>
    <message id="setting_HAS_RUN_TWO_POINT_THREE">
        <source></source>
        <translation>Ob die Spalte der Kennzeichen der Tabelle einmal hinzugefügt wurde.</translation>
    </message>
    <message id="setting_HAS_RUN_TWO_POINT_FOUR">
        <source></source>
        <translation>Ob die Spalte der Speicherbalken der Tabelle einmal hinzugefügt wurde.</translation>
    </message>
    <message id="setting_DEFAULT_X_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Linker Rand des zuletzt geöffneten kleinen Fensters; das nächste kommt daneben.</translation>
    </message>
    <message id="setting_DEFAULT_Y_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Oberer Rand des zuletzt geöffneten kleinen Fensters; das nächste kommt darunter.</translation>
    </message>
    <message id="setting_DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA">
        <source></source>
        <translation>Deckkraft der kleinen Fenster, 1 für undurchsichtig.</translation>
    </message>
    <message id="setting_DEFAULT_WATCHDOG_INTERVAL">
        <source></source>
        <translation>Wie oft das Programm nach neuen Prozessen sieht, deren Fenster es sich gemerkt hat.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_WINDOW_INTERVAL">
        <source></source>
        <translation>Zeit zwischen zwei Punkten eines CPU-Verlaufs.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_USE_RELATIVE">
        <source></source>
        <translation>CPU-Verläufe an das jüngste Maximum statt an 100 % anpassen.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS">
        <source></source>
        <translation>Auch die CPU-Auslastung der Nachkommen eines Prozesses in seinem Verlauf anzeigen.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_DEFAULT_FILTER">
        <source></source>
        <translation>Wie viel vom vorigen Punkt in den nächsten eingeht, von 0 bis 1.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_BACKGROUND_RGB">
        <source></source>
        <translation>Hintergrund der CPU-Verläufe.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_FOREGROUND_RGB">
        <source></source>
        <translation>Die CPU-Auslastung des Prozesses in seinem Verlauf, samt seinen Nachkommen, wenn sie eingeschlossen sind.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB">
        <source></source>
        <translation>Der eigene Anteil des Prozesses an der CPU-Auslastung in seinem Verlauf, wenn seine Nachkommen eingeschlossen sind.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_NAME_RGB">
        <source></source>
        <translation>Der Name in CPU-Verläufen.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_RGB">
        <source></source>
        <translation>Die Beschriftung der Skala in CPU-Verläufen mit fester Skala.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB">
        <source></source>
        <translation>Die Beschriftung der Skala in CPU-Verläufen, die an das Maximum angepasst sind.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_FLASH_RGB">
        <source></source>
        <translation>Die Beschriftung der Skala, während sie nach einer Änderung blinkt.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG">
        <source></source>
        <translation>Hintergrund des aktuellen Prozentwerts in CPU-Verläufen.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG">
        <source></source>
        <translation>Der aktuelle Prozentwert in CPU-Verläufen.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_NAME_ALPHA">
        <source></source>
        <translation>Deckkraft des Namens in CPU-Verläufen.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HIGHWATERMARK_ALPHA">
        <source></source>
        <translation>Deckkraft der Skalenbeschriftung in CPU-Verläufen.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_ALPHA">
        <source></source>
        <translation>Deckkraft des aktuellen Prozentwerts in CPU-Verläufen.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_ICON_ALPHA">
        <source></source>
        <translation>Deckkraft des Symbols in CPU-Verläufen, aus früherer Zeit; eine andere Einstellung ist an ihre Stelle getreten.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_ICON_ALPHA_REALLY">
        <source></source>
        <translation>Deckkraft des Symbols in CPU-Verläufen.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW">
        <source></source>
        <translation>CPU-Verläufe, die wiederkommen, wenn ein Prozess ihres Namens startet.</translation>
    </message>
    <message id="setting_DEFAULT_LOGGING_WINDOW_INTERVAL">
        <source></source>
        <translation>Wie oft ein Protokoll auf Änderungen prüft.</translation>
    </message>
    <message id="setting_LOG_WINDOW_INCLUDE_TIMESTAMP">
        <source></source>
        <translation>Protokolle haben eine Spalte mit der Uhrzeit.</translation>
    </message>
    <message id="setting_LOG_WINDOW_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Protokolle haben eine Spalte mit der CPU-Zeit.</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Protokolle haben eine Spalte mit der Änderung der CPU-Zeit.</translation>
    </message>
    <message id="setting_LOG_WINDOW_REAL_MEM_BOOL">
        <source></source>
        <translation>Protokolle haben eine Spalte mit dem realen Speicher.</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_REAL_MEM_BOOL">
        <source></source>
        <translation>Protokolle haben eine Spalte mit der Änderung des realen Speichers.</translation>
    </message>
    <message id="setting_LOG_WINDOW_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Protokolle haben eine Spalte mit dem virtuellen Speicher.</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Protokolle haben eine Spalte mit der Änderung des virtuellen Speichers.</translation>
    </message>
    <message id="setting_LOG_WINDOW_LOG_TO_FILE">
        <source></source>
        <translation>Protokolle werden auch in Dateien geschrieben.</translation>
    </message>
    <message id="setting_LOGGING_WINDOW">
        <source></source>
        <translation>Protokolle, die wiederkommen, wenn ein Prozess ihres Namens startet.</translation>
    </message>
    <message id="setting_HEARTQUIVA_GL_THREAD_INTERVAL">
        <source></source>
        <translation>Zeit zwischen zwei Bildern der animierten Ansicht. Nie länger als der nächste Zeitabstand.</translation>
    </message>
    <message id="setting_HEARTQUIVA_MAINPIC_INTERVAL">
        <source></source>
        <translation>Wie oft die animierte Ansicht nach gestarteten und beendeten Prozessen sieht. Nie länger als der nächste Zeitabstand.</translation>
    </message>
    <message id="setting_HEARTQUIVA_HELPERPIC_INTERVAL">
        <source></source>
        <translation>Wie oft die animierte Ansicht die CPU-Auslastung ihrer Prozesse misst.</translation>
    </message>
    <message id="setting_QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS">
        <source></source>
        <translation>Auch in der Vollbildansicht Linien zwischen Eltern- und Kindprozessen zeichnen.</translation>
    </message>
    <message id="setting_QUINT_FULLSCREEN_WINDOW_ALPHA">
        <source></source>
        <translation>Deckkraft der Vollbildansicht.</translation>
    </message>
    <message id="setting_QUINT_FULLSCREEN_UNDERLAY_ALPHA">
        <source></source>
        <translation>Deckkraft des Bildes hinter den Prozessen in der Vollbildansicht.</translation>
    </message>
    <message id="setting_HEARTQUIVA_ICON_SCALE_FACTOR">
        <source></source>
        <translation>Maßstab der Symbole in der animierten Ansicht: Die Seite eines Symbols, in Punkten, ist das Gewicht seines Prozesses (0,5 in Ruhe, 2,9 bei einem ganzen Prozessor) mal die Hälfte dieses Werts.</translation>
    </message>
    <message id="setting_QUIVA_FULLSCREEN_EXTRA_SCALE_FACTOR">
        <source></source>
        <translation>Wievielmal größer Symbole in der Vollbildansicht sind.</translation>
    </message>
    <message id="setting_QUINT_MAX_ITERATIONS_TO_STABILIZE_WHEN_FIRST_SHOWING">
        <source></source>
        <translation>Höchstzahl der Schritte, mit denen die animierte Ansicht geordnet wird, bevor sie zum ersten Mal erscheint.</translation>
    </message>
    <message id="setting_QUINT_TARVIK_FACTOR">
        <source></source>
        <translation>Mit dem Wievielfachen ihrer wirklichen Aktivität Lurkwell selbst und sein Hilfsprogramm in der animierten Ansicht zählen; ohne Wert unverändert.</translation>
    </message>
    <message id="setting_FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE">
        <source></source>
        <translation>Die Taste, die die Vollbildansicht überall auf der Arbeitsfläche ein- und ausschaltet, als Nummer: 98, F7, wenn nichts anderes gespeichert ist.</translation>
    </message>
    <message id="setting_QUIVA_CHECK_QUARTZ_EXTREME">
        <source></source>
        <translation>Ob die Grafik der Anzeige geprüft wurde, als die animierte Ansicht zum ersten Mal gezeigt wurde.</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>Die animierte Ansicht beim Start öffnen. Das Programm merkt sich hier, ob sie geöffnet war.</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>Die animierte Ansicht beim Start im Vollbild öffnen. Das Programm merkt sich hier, ob sie es war.</translation>
    </message>
    <message id="setting_CLASSIC_INITIAL_ASSUMED_CPU_USAGE">
        <source></source>
        <translation>Die CPU-Auslastung, die für die Classic-Umgebung angenommen wird, bevor sie gemessen ist.</translation>
    </message>
    <message id="setting_CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER">
        <source></source>
        <translation>Wie viel eine Messung der CPU-Auslastung der Classic-Umgebung zählt, von 0 bis 1.</translation>
    </message>
    <message id="setting_CLASSIC_WATCHDOG_INTERVAL">
        <source></source>
        <translation>Wie oft das Programm nachsieht, ob die Classic-Umgebung läuft.</translation>
    </message>
    <message id="setting_CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX">
        <source></source>
        <translation>Wie lange das Hilfsprogramm in der Classic-Umgebung zwischen zwei Prüfungen ruht, in Sechzigstelsekunden.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_AND_TESTING">
        <source></source>
        <translation>Ein kleines Fenster mit den Werten des Rechners anzeigen, zur Fehlersuche.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_SWI_INTERVAL">
        <source></source>
        <translation>Wie oft das Fenster mit den Werten des Rechners auf den neuesten Stand gebracht wird.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_LEFT">
        <source></source>
        <translation>Linker Rand des Fensters mit den Werten des Rechners.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_TOP">
        <source></source>
        <translation>Oberer Rand des Fensters mit den Werten des Rechners.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_RIGHT">
        <source></source>
        <translation>Rechter Rand des Fensters mit den Werten des Rechners.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_BOTTOM">
        <source></source>
        <translation>Unterer Rand des Fensters mit den Werten des Rechners.</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_ITEMS">
        <source></source>
        <translation>Elemente der Werkzeugleiste des Hauptfensters in ihrer Reihenfolge, durch Leerzeichen getrennt.</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_DISPLAY_MODE">
        <source></source>
        <translation>Was die Werkzeugleiste des Hauptfensters zeigt: 0 oder 1 Symbole und Namen, 2 Symbole, 3 Namen.</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_SHOWN">
        <source></source>
        <translation>Die Werkzeugleiste des Hauptfensters anzeigen.</translation>
    </message>
    <message id="setting_QUIVA_CHECK_COMPOSITOR">
        <source></source>
        <translation>Ob schon gesagt wurde, dass die Vollbildansicht eine Arbeitsfläche mit Transparenz braucht.</translation>
    </message>
    <message id="setting_QUIVA_WINDOW_FRAME">
        <source></source>
        <translation>Position und Größe des Fensters der animierten Ansicht.</translation>
    </message>
    <message id="graph_missing">
        <source></source>
        <translation>nicht bekannt</translation>
    </message>
    <message id="graph_spoken_range">
        <source></source>
        <translation>zwischen %1 und %2</translation>
    </message>
    <message id="graph_spoken_span">
        <source></source>
        <translation>in %1</translation>
    </message>
    <message id="graph_now">
        <source></source>
        <translation>jetzt</translation>
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
        <translation>&amp;Rechner</translation>
    </message>
    <message id="help_menu_window_show_machine">
        <source></source>
        <translation>Der Rechner als Ganzes: Prozessoren, Speicher, Datenträger, Netzwerk und wer am aktivsten war</translation>
    </message>
    <message id="fleet_error_unreachable">
        <source></source>
        <translation>Der Server ist nicht erreichbar: %1. Prüfen Sie die Adresse und ob der Server läuft.</translation>
    </message>
    <message id="fleet_error_timed_out">
        <source></source>
        <translation>Der Server hat innerhalb von %1 Sekunden keine vollständige Antwort gegeben. Vielleicht hat er zu viel zu tun; ein Filter oder größere Abstände zwischen den Abfragen verringern die Last.</translation>
    </message>
    <message id="fleet_error_too_large">
        <source></source>
        <translation>Die Antwort des Servers ist länger als %1 MiB und wurde verworfen. Ein Filter macht sie kleiner.</translation>
    </message>
    <message id="fleet_error_certificate">
        <source></source>
        <translation>Der Server hat nicht nachgewiesen, dass er der richtige ist: %1. Es wurde nichts an ihn gesendet. Verwenden Sie den Namen, für den sein Zertifikat gilt, oder lassen Sie dieses System dem Aussteller vertrauen.</translation>
    </message>
    <message id="fleet_error_no_encryption">
        <source></source>
        <translation>Qt auf diesem System hat kein TLS, sodass keine https-Adresse abgefragt werden kann. Installieren Sie den OpenSSL-Teil.</translation>
    </message>
    <message id="fleet_error_credentials">
        <source></source>
        <translation>Der Server will wissen, wer fragt, oder lässt diesen Benutzer nicht abfragen (%1). „Anmelden…“ nimmt Name und Passwort oder ein Token entgegen.</translation>
    </message>
    <message id="fleet_error_redirected">
        <source></source>
        <translation>Der Server leitet alle Abfragen an einen anderen weiter, %1, der nicht befragt wurde. Öffnen Sie diese Adresse, wenn sie die richtige ist.</translation>
    </message>
    <message id="fleet_error_not_prometheus">
        <source></source>
        <translation>Was unter dieser Adresse antwortet, ist kein Prometheus: %1. Prüfen Sie Port und Pfad.</translation>
    </message>
    <message id="fleet_error_server">
        <source></source>
        <translation>Der Server hat einen Fehler gemeldet: %1. Er wird in Kürze erneut befragt.</translation>
    </message>
    <message id="fleet_error_query">
        <source></source>
        <translation>Der Server hat die Abfrage abgelehnt: %1.</translation>
    </message>
    <message id="fleet_address_empty">
        <source></source>
        <translation>Geben Sie die Adresse eines Prometheus-Servers ein, etwa http://monitor:9090.</translation>
    </message>
    <message id="fleet_address_has_password">
        <source></source>
        <translation>Eine Adresse enthält weder Namen noch Passwort, denn sie wird gespeichert und angezeigt. Sie werden danach gefragt, wenn der Server sie verlangt.</translation>
    </message>
    <message id="fleet_address_wrong">
        <source></source>
        <translation>„%1“ ist keine Adresse wie http://monitor:9090.</translation>
    </message>
    <message id="fleet_address_scheme">
        <source></source>
        <translation>Server werden über http oder https befragt, nicht über „%1“.</translation>
    </message>
    <message id="fleet_credentials_unreadable">
        <source></source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message id="fleet_credentials_open">
        <source></source>
        <translation>Auch andere dürfen %1 lesen oder ändern. Entziehen Sie ihnen dieses Recht (chmod 600) und nehmen Sie ein neues Passwort, wenn es geheim war.</translation>
    </message>
    <message id="fleet_credentials_no_line">
        <source></source>
        <translation>%1 ist keine Datei mit einer Zeile NAME:PASSWORT oder einem Token.</translation>
    </message>
    <message id="fleet_filter_of_processes">
        <source></source>
        <translation>„%1“ ist nur von einzelnen Prozessen bekannt, nicht von den Summen, die der Server hat.</translation>
    </message>
    <message id="fleet_filter_no_text">
        <source></source>
        <translation>„%1“ ist eine Zahl: Vergleichen Sie sie, etwa cpu&gt;50.</translation>
    </message>
    <message id="fleet_filter_either">
        <source></source>
        <translation>Der Server kann nach einem von mehreren Texten einer Art gefragt werden, wie in „a | b“, aber nicht nach einer von verschiedenartigen Bedingungen.</translation>
    </message>
    <message id="fleet_filter_two_kinds">
        <source></source>
        <translation>Jede Gruppe ist nur von einer Art, daher gibt es keine von beiden: %1.</translation>
    </message>
    <message id="fleet_filter_not_groups">
        <source></source>
        <translation>Nach Rechnern ohne eine solche Gruppe kann nicht gefragt werden.</translation>
    </message>
    <message id="fleet_filter_not_here">
        <source></source>
        <translation>„%1“ ist hier nicht bekannt.</translation>
    </message>
    <message id="fleet_filter_one_number">
        <source></source>
        <translation>„%1“ wird mit einer einzigen Zahl verglichen.</translation>
    </message>
    <message id="fleet_filter_order">
        <source></source>
        <translation>„%1“ wird mit &lt; oder &gt; verglichen, denn Brüche sind fast nie gleich.</translation>
    </message>
    <message id="fleet_filter_too_long">
        <source></source>
        <translation>Der Filter ist zu lang.</translation>
    </message>
    <message id="fleet_cpu">
        <source></source>
        <translation>CPU %</translation>
    </message>
    <message id="fleet_cpu_tip">
        <source></source>
        <translation>Anteil an der Zeit der Prozessoren: bei einem Rechner aller, bei einer Gruppe eines einzigen, sodass 250 zweieinhalb sind. Über die letzten beiden Besuche des Servers.</translation>
    </message>
    <message id="fleet_memory">
        <source></source>
        <translation>Speicher</translation>
    </message>
    <message id="fleet_memory_tip">
        <source></source>
        <translation>Bei einem Rechner der nicht verfügbare Speicher; bei einer Gruppe der residente Speicher ihrer Prozesse.</translation>
    </message>
    <message id="fleet_memory_all">
        <source></source>
        <translation>Speicher gesamt</translation>
    </message>
    <message id="fleet_memory_all_tip">
        <source></source>
        <translation>Der gesamte Arbeitsspeicher des Rechners.</translation>
    </message>
    <message id="fleet_swap">
        <source></source>
        <translation>Ausgelagert</translation>
    </message>
    <message id="fleet_swap_tip">
        <source></source>
        <translation>Ausgelagerter Speicher.</translation>
    </message>
    <message id="fleet_load">
        <source></source>
        <translation>Last</translation>
    </message>
    <message id="fleet_load_tip">
        <source></source>
        <translation>Last über eine Minute.</translation>
    </message>
    <message id="fleet_disk">
        <source></source>
        <translation>Datenträger</translation>
    </message>
    <message id="fleet_disk_tip">
        <source></source>
        <translation>Von Datenträgern gelesene und auf sie geschriebene Bytes pro Sekunde.</translation>
    </message>
    <message id="fleet_network">
        <source></source>
        <translation>Netzwerk</translation>
    </message>
    <message id="fleet_network_tip">
        <source></source>
        <translation>Empfangene und gesendete Bytes pro Sekunde; ohne den Verkehr des Rechners mit sich selbst.</translation>
    </message>
    <message id="fleet_waits_cpu">
        <source></source>
        <translation>Warten: CPU %</translation>
    </message>
    <message id="fleet_waits_cpu_tip">
        <source></source>
        <translation>Anteil der Zeit, in der etwas auf einen Prozessor wartete.</translation>
    </message>
    <message id="fleet_waits_memory">
        <source></source>
        <translation>Warten: Speicher %</translation>
    </message>
    <message id="fleet_waits_memory_tip">
        <source></source>
        <translation>Anteil der Zeit, in der etwas auf Speicher wartete.</translation>
    </message>
    <message id="fleet_waits_disk">
        <source></source>
        <translation>Warten: Datentr. %</translation>
    </message>
    <message id="fleet_waits_disk_tip">
        <source></source>
        <translation>Anteil der Zeit, in der etwas auf Datenträger wartete.</translation>
    </message>
    <message id="fleet_processes">
        <source></source>
        <translation>Prozesse</translation>
    </message>
    <message id="fleet_processes_tip">
        <source></source>
        <translation>Wie viele Prozesse es gibt.</translation>
    </message>
    <message id="fleet_threads">
        <source></source>
        <translation>Threads</translation>
    </message>
    <message id="fleet_threads_tip">
        <source></source>
        <translation>Wie viele Threads es gibt.</translation>
    </message>
    <message id="fleet_machines">
        <source></source>
        <translation>Rechner</translation>
    </message>
    <message id="fleet_machines_tip">
        <source></source>
        <translation>Auf wie vielen Rechnern es Prozesse der Gruppe gibt.</translation>
    </message>
    <message id="fleet_oldest">
        <source></source>
        <translation>Läuft seit</translation>
    </message>
    <message id="fleet_oldest_tip">
        <source></source>
        <translation>Vor welcher Zeit der Rechner oder der älteste Prozess der Gruppe gestartet wurde.</translation>
    </message>
    <message id="fleet_seen">
        <source></source>
        <translation>Zuletzt gesehen</translation>
    </message>
    <message id="fleet_seen_tip">
        <source></source>
        <translation>Vor welcher Zeit der Server von dem Rechner gehört hat. Ein Rechner, den er nicht erreicht, wird als ausgefallen angezeigt.</translation>
    </message>
    <message id="fleet_up">
        <source></source>
        <translation>Erreichbar</translation>
    </message>
    <message id="fleet_up_tip">
        <source></source>
        <translation>Ob der Server den Rechner erreicht.</translation>
    </message>
    <message id="fleet_read">
        <source></source>
        <translation>Gelesen</translation>
    </message>
    <message id="fleet_read_tip">
        <source></source>
        <translation>Von Datenträgern gelesene Bytes pro Sekunde.</translation>
    </message>
    <message id="fleet_written">
        <source></source>
        <translation>Geschrieben</translation>
    </message>
    <message id="fleet_written_tip">
        <source></source>
        <translation>Auf Datenträger geschriebene Bytes pro Sekunde.</translation>
    </message>
    <message id="fleet_received">
        <source></source>
        <translation>Empfangen</translation>
    </message>
    <message id="fleet_received_tip">
        <source></source>
        <translation>Empfangene Bytes pro Sekunde.</translation>
    </message>
    <message id="fleet_sent">
        <source></source>
        <translation>Gesendet</translation>
    </message>
    <message id="fleet_sent_tip">
        <source></source>
        <translation>Gesendete Bytes pro Sekunde.</translation>
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
        <translation>Rechnerflotte von %1</translation>
    </message>
    <message id="fleet_machine">
        <source></source>
        <translation>Rechner</translation>
    </message>
    <message id="fleet_group">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="fleet_down">
        <source></source>
        <translation>ausgefallen</translation>
    </message>
    <message id="fleet_down_for">
        <source></source>
        <translation>ausgefallen, %1</translation>
    </message>
    <message id="fleet_show_machines">
        <source></source>
        <translation>Rechner</translation>
    </message>
    <message id="fleet_show_program">
        <source></source>
        <translation>Programme</translation>
    </message>
    <message id="fleet_show_unit">
        <source></source>
        <translation>Units</translation>
    </message>
    <message id="fleet_show_container">
        <source></source>
        <translation>Container</translation>
    </message>
    <message id="fleet_show_user">
        <source></source>
        <translation>Benutzer</translation>
    </message>
    <message id="fleet_back">
        <source></source>
        <translation>Zurück</translation>
    </message>
    <message id="fleet_back_tip">
        <source></source>
        <translation>Was vorher angesehen wurde (Alt+Links)</translation>
    </message>
    <message id="fleet_on">
        <source></source>
        <translation>auf %1</translation>
    </message>
    <message id="fleet_with">
        <source></source>
        <translation>mit %1</translation>
    </message>
    <message id="fleet_filter">
        <source></source>
        <translation>Filter, vom Server ausgeführt</translation>
    </message>
    <message id="fleet_filter_tip">
        <source></source>
        <translation>Wie in der Prozesstabelle: web, name:postgres, machine:web-1, unit:nginx, user:root, cpu&gt;50, mem&gt;4G, processes&gt;100. Der Server sucht, sodass er beliebig viele Rechner haben kann.</translation>
    </message>
    <message id="fleet_interval">
        <source></source>
        <translation>Wie oft der Server abgefragt wird</translation>
    </message>
    <message id="fleet_interval_never">
        <source></source>
        <translation>Nicht von selbst</translation>
    </message>
    <message id="fleet_interval_seconds">
        <source></source>
        <translation>Alle %1 s</translation>
    </message>
    <message id="fleet_interval_minutes">
        <source></source>
        <translation>Alle %1 min</translation>
    </message>
    <message id="fleet_sign_in">
        <source></source>
        <translation>Anmelden…</translation>
    </message>
    <message id="fleet_again">
        <source></source>
        <translation>Erneut versuchen</translation>
    </message>
    <message id="fleet_open_machine">
        <source></source>
        <translation>Zeigen, was darauf läuft</translation>
    </message>
    <message id="fleet_open_group">
        <source></source>
        <translation>Seine Rechner zeigen</translation>
    </message>
    <message id="fleet_ssh">
        <source></source>
        <translation>ssh in einem Terminal öffnen</translation>
    </message>
    <message id="fleet_copy">
        <source></source>
        <translation>Kopieren</translation>
    </message>
    <message id="fleet_ssh_no_host">
        <source></source>
        <translation>„%1“ ist kein Rechnername, den ssh erreichen könnte.</translation>
    </message>
    <message id="fleet_ssh_no_ssh">
        <source></source>
        <translation>Auf diesem Rechner gibt es kein ssh. Installieren Sie den OpenSSH-Client.</translation>
    </message>
    <message id="fleet_ssh_no_terminal">
        <source></source>
        <translation>Auf diesem Rechner gibt es kein bekanntes Terminal. Installieren Sie eines, etwa xterm, oder nennen Sie Ihres in der Variablen TERMINAL.</translation>
    </message>
    <message id="fleet_ssh_failed">
        <source></source>
        <translation>%1 kann nicht gestartet werden.</translation>
    </message>
    <message id="fleet_old_figures">
        <source></source>
        <translation>Die Werte unten sind die von %1.</translation>
    </message>
    <message id="fleet_count_machines" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Rechner</numerusform>
            <numerusform>%n Rechner</numerusform>
        </translation>
    </message>
    <message id="fleet_count_groups" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
    <message id="fleet_count_down" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n ausgefallen</numerusform>
            <numerusform>%n ausgefallen</numerusform>
        </translation>
    </message>
    <message id="fleet_shown_most" numerus="yes">
        <source></source>
        <translation>
            <numerusform>gezeigt wird %n mit dem höchsten Wert für %1; ein Filter findet andere</numerusform>
            <numerusform>gezeigt werden die %n mit den höchsten Werten für %1; ein Filter findet andere</numerusform>
        </translation>
    </message>
    <message id="fleet_shown_least" numerus="yes">
        <source></source>
        <translation>
            <numerusform>gezeigt wird %n mit dem niedrigsten Wert für %1; ein Filter findet andere</numerusform>
            <numerusform>gezeigt werden die %n mit den niedrigsten Werten für %1; ein Filter findet andere</numerusform>
        </translation>
    </message>
    <message id="fleet_as_of">
        <source></source>
        <translation>Stand %1</translation>
    </message>
    <message id="fleet_left_out" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Wert der Antwort ergab keinen Sinn und wurde weggelassen</numerusform>
            <numerusform>%n Werte der Antwort ergaben keinen Sinn und wurden weggelassen</numerusform>
        </translation>
    </message>
    <message id="fleet_asking">
        <source></source>
        <translation>Der Server wird abgefragt…</translation>
    </message>
    <message id="fleet_nothing_known">
        <source></source>
        <translation>Noch ist nichts bekannt.</translation>
    </message>
    <message id="fleet_nothing_fulfils">
        <source></source>
        <translation>Nichts entspricht dem Filter.</translation>
    </message>
    <message id="fleet_nothing_there">
        <source></source>
        <translation>Der Server kennt keine Werte dieser Art. Rechner erscheinen, sobald der Server ihren Exporter, lurkwell-export, abfragt.</translation>
    </message>
    <message id="fleet_span">
        <source></source>
        <translation>Verlauf:</translation>
    </message>
    <message id="fleet_span_hour">
        <source></source>
        <translation>1 Stunde</translation>
    </message>
    <message id="fleet_span_6_hours">
        <source></source>
        <translation>6 Stunden</translation>
    </message>
    <message id="fleet_span_day">
        <source></source>
        <translation>1 Tag</translation>
    </message>
    <message id="fleet_span_week">
        <source></source>
        <translation>7 Tage</translation>
    </message>
    <message id="fleet_no_row">
        <source></source>
        <translation>Wählen Sie eine Zeile aus, um ihren Verlauf zu sehen.</translation>
    </message>
    <message id="fleet_no_history">
        <source></source>
        <translation>Der Server hat keine Werte aus dieser Zeit.</translation>
    </message>
    <message id="fleet_graph_cpu_machine">
        <source></source>
        <translation>CPU aller Prozessoren</translation>
    </message>
    <message id="fleet_graph_cpu">
        <source></source>
        <translation>CPU eines Prozessors</translation>
    </message>
    <message id="fleet_graph_waits">
        <source></source>
        <translation>Wartezeiten</translation>
    </message>
    <message id="fleet_graph_traffic">
        <source></source>
        <translation>Datenträger und Netzwerk</translation>
    </message>
    <message id="fleet_memory_series">
        <source></source>
        <translation>Belegt</translation>
    </message>
    <message id="fleet_memory_all_series">
        <source></source>
        <translation>Gesamt</translation>
    </message>
    <message id="fleet_swap_series">
        <source></source>
        <translation>Ausgelagert</translation>
    </message>
    <message id="fleet_waits_cpu_series">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="fleet_waits_memory_series">
        <source></source>
        <translation>Speicher</translation>
    </message>
    <message id="fleet_waits_disk_series">
        <source></source>
        <translation>Datenträger</translation>
    </message>
    <message id="fleet_read_series">
        <source></source>
        <translation>Gelesen</translation>
    </message>
    <message id="fleet_written_series">
        <source></source>
        <translation>Geschrieben</translation>
    </message>
    <message id="fleet_received_series">
        <source></source>
        <translation>Empfangen</translation>
    </message>
    <message id="fleet_sent_series">
        <source></source>
        <translation>Gesendet</translation>
    </message>
    <message id="fleet_open_title">
        <source></source>
        <translation>Rechnerflotte öffnen</translation>
    </message>
    <message id="fleet_open_words">
        <source></source>
        <translation>Die Adresse eines Prometheus-Servers, der die Exporter Ihrer Rechner abfragt:</translation>
    </message>
    <message id="fleet_address">
        <source></source>
        <translation>Adresse</translation>
    </message>
    <message id="fleet_sign_in_title">
        <source></source>
        <translation>Anmelden bei %1</translation>
    </message>
    <message id="fleet_sign_in_words">
        <source></source>
        <translation>Name und Passwort, ein Token oder eine Datei mit einem von beiden. Sie werden nur an diesen Server gesendet und behalten, bis das Fenster geschlossen wird.</translation>
    </message>
    <message id="fleet_sign_in_in_clear">
        <source></source>
        <translation>Name und Passwort, ein Token oder eine Datei mit einem von beiden. Sie werden behalten, bis das Fenster geschlossen wird. Diese Adresse ist nicht verschlüsselt: Jeder auf dem Weg kann sie mitlesen. Eine https-Adresse ist besser.</translation>
    </message>
    <message id="fleet_sign_in_name">
        <source></source>
        <translation>&amp;Name:</translation>
    </message>
    <message id="fleet_sign_in_password">
        <source></source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message id="fleet_sign_in_token">
        <source></source>
        <translation>&amp;Token:</translation>
    </message>
    <message id="fleet_sign_in_file">
        <source></source>
        <translation>&amp;Datei:</translation>
    </message>
    <message id="fleet_sign_in_choose">
        <source></source>
        <translation>&amp;Auswählen…</translation>
    </message>
    <message id="fleet_sign_in_nothing">
        <source></source>
        <translation>Geben Sie einen Namen, ein Token oder den Pfad einer Datei ein.</translation>
    </message>
    <message id="fleet_sign_in_wrong">
        <source></source>
        <translation>Das kann nicht gesendet werden: Ein Name enthält keinen Doppelpunkt, ein Token keine Leerzeichen und keine Zeichen außerhalb von ASCII.</translation>
    </message>
    <message id="fleet_failed">
        <source></source>
        <translation>Die Rechnerflotte kann nicht geöffnet werden</translation>
    </message>
    <message id="menu_file_open_fleet">
        <source></source>
        <translation>&amp;Rechnerflotte öffnen…</translation>
    </message>
    <message id="help_menu_file_open_fleet">
        <source></source>
        <translation>alle Rechner ansehen, die ein Prometheus-Server kennt, in einem eigenen Fenster</translation>
    </message>
    <message id="setting_title_FLEET_WINDOW_FRAME">
        <source></source>
        <translation>Flottenfenster: Position</translation>
    </message>
    <message id="setting_FLEET_WINDOW_FRAME">
        <source></source>
        <translation>Wo das Fenster einer Rechnerflotte zuletzt war, und seine Größe.</translation>
    </message>
    <message id="setting_title_FLEET_WINDOW_SECONDS">
        <source></source>
        <translation>Flottenfenster: Abfrageabstand</translation>
    </message>
    <message id="setting_FLEET_WINDOW_SECONDS">
        <source></source>
        <translation>Wie viele Sekunden das Fenster einer Rechnerflotte wartet, bevor es den Server erneut abfragt; 0, wenn es nur auf Verlangen abfragt.</translation>
    </message>
    <message id="setting_title_FLEET_RECENT_ADDRESSES">
        <source></source>
        <translation>Letzte Rechnerflotten</translation>
    </message>
    <message id="setting_FLEET_RECENT_ADDRESSES">
        <source></source>
        <translation>Die Adressen der zuletzt geöffneten Server, der jüngste zuerst, mit Prozentzeichen statt anderer Buchstaben. Namen und Passwörter sind nicht darunter.</translation>
    </message>
    <message id="machine_title">
        <source></source>
        <translation>Rechner</translation>
    </message>
    <message id="machine_span">
        <source></source>
        <translation>Zeitraum:</translation>
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
        <translation>Dieser Rechner gibt nicht an, wie ausgelastet seine Prozessoren sind.</translation>
    </message>
    <message id="machine_processors">
        <source></source>
        <translation>Prozessoren</translation>
    </message>
    <message id="machine_processor">
        <source></source>
        <translation>%1: %2</translation>
    </message>
    <message id="machine_memory">
        <source></source>
        <translation>Speicher</translation>
    </message>
    <message id="machine_no_memory">
        <source></source>
        <translation>Dieser Rechner gibt seinen Speicher nicht an.</translation>
    </message>
    <message id="machine_swap">
        <source></source>
        <translation>Auslagerungsspeicher</translation>
    </message>
    <message id="machine_no_swap">
        <source></source>
        <translation>Dieser Rechner hat keinen Auslagerungsspeicher.</translation>
    </message>
    <message id="machine_used_of">
        <source></source>
        <translation>von %1 belegt</translation>
    </message>
    <message id="machine_disks">
        <source></source>
        <translation>Datenträger</translation>
    </message>
    <message id="machine_no_disks">
        <source></source>
        <translation>Noch keine Werte von Datenträgern, oder es gibt keine.</translation>
    </message>
    <message id="machine_network">
        <source></source>
        <translation>Netzwerk</translation>
    </message>
    <message id="machine_no_network">
        <source></source>
        <translation>Noch keine Werte des Netzwerks, oder es gibt keines.</translation>
    </message>
    <message id="machine_all_devices">
        <source></source>
        <translation>Alle</translation>
    </message>
    <message id="machine_read">
        <source></source>
        <translation>gelesen</translation>
    </message>
    <message id="machine_written">
        <source></source>
        <translation>geschrieben</translation>
    </message>
    <message id="machine_received">
        <source></source>
        <translation>empfangen</translation>
    </message>
    <message id="machine_sent">
        <source></source>
        <translation>gesendet</translation>
    </message>
    <message id="machine_pressure">
        <source></source>
        <translation>Ressourcendruck</translation>
    </message>
    <message id="machine_no_pressure">
        <source></source>
        <translation>Dieser Kernel gibt nicht an, wie lange Prozesse warten mussten.</translation>
    </message>
    <message id="machine_waits_processor">
        <source></source>
        <translation>einige warteten auf CPU</translation>
    </message>
    <message id="machine_waits_memory">
        <source></source>
        <translation>auf Speicher</translation>
    </message>
    <message id="machine_waits_disk">
        <source></source>
        <translation>auf Datenträger</translation>
    </message>
    <message id="machine_stalled_memory">
        <source></source>
        <translation>alle warteten auf Speicher</translation>
    </message>
    <message id="machine_stalled_disk">
        <source></source>
        <translation>auf Datenträger</translation>
    </message>
    <message id="machine_graphics">
        <source></source>
        <translation>Grafik</translation>
    </message>
    <message id="machine_no_graphics">
        <source></source>
        <translation>Kein Grafikgerät gibt an, wie ausgelastet es ist.</translation>
    </message>
    <message id="machine_busiest_now">
        <source></source>
        <translation>Jetzt am aktivsten</translation>
    </message>
    <message id="machine_busiest_at">
        <source></source>
        <translation>Am aktivsten um %1</translation>
    </message>
    <message id="machine_back_to_now">
        <source></source>
        <translation>&amp;Jetzt</translation>
    </message>
    <message id="machine_note">
        <source></source>
        <translation>Ein Klick auf ein Diagramm zeigt, wer zu diesem Zeitpunkt am aktivsten war; einer auf einen Namen zeigt den Prozess in der Prozesstabelle.</translation>
    </message>
    <message id="machine_has_ended">
        <source></source>
        <translation>Prozess %1 ist beendet.</translation>
    </message>
    <message id="machine_not_in_table">
        <source></source>
        <translation>Prozess %1 ist nicht in der Tabelle: Vielleicht verbirgt ihn ein Filter.</translation>
    </message>
    <message id="machine_ended">
        <source></source>
        <translation>%1 (beendet)</translation>
    </message>
    <message id="machine_name">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="machine_pid">
        <source></source>
        <translation>Prozess-ID</translation>
    </message>
    <message id="machine_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="machine_load">
        <source></source>
        <translation>Last: %1, %2, %3 über 1, 5 und 15 Minuten</translation>
    </message>
    <message id="machine_no_load">
        <source></source>
        <translation>Last: von diesem Rechner nicht angegeben</translation>
    </message>
    <message id="machine_frequency">
        <source></source>
        <translation>Taktfrequenz: %1 GHz (%2 bis %3)</translation>
    </message>
    <message id="machine_no_frequency">
        <source></source>
        <translation>Taktfrequenz: von diesem Rechner nicht angegeben</translation>
    </message>
    <message id="machine_no_temperature">
        <source></source>
        <translation>Temperatur: von diesem Rechner nicht angegeben</translation>
    </message>
    <message id="machine_more_temperatures" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n weiterer Sensor ist kühler</numerusform>
            <numerusform>%n weitere Sensoren sind kühler</numerusform>
        </translation>
    </message>
    <message id="machine_limits">
        <source></source>
        <translation>Dieser Container darf %1 nutzen.</translation>
    </message>
    <message id="machine_limit_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Prozessor</numerusform>
            <numerusform>%n Prozessoren</numerusform>
        </translation>
    </message>
    <message id="machine_limit_memory">
        <source></source>
        <translation>%1 Speicher</translation>
    </message>
    <message id="machine_limit_memory_used">
        <source></source>
        <translation>%1 Speicher (%2 belegt)</translation>
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
        <translation>Symbol im Systemabschnitt</translation>
    </message>
    <message id="setting_title_ACCESSIBLE_QUIET">
        <source></source>
        <translation>Screenreader: Änderungen nicht ungefragt melden</translation>
    </message>
    <message id="setting_title_REDUCE_MOTION">
        <source></source>
        <translation>Weniger Bewegung</translation>
    </message>
    <message id="setting_title_MACHINE_HISTORY_ALWAYS">
        <source></source>
        <translation>Verlauf des Rechners von Anfang an</translation>
    </message>
    <message id="setting_TRAY_ICON">
        <source></source>
        <translation>Ein Symbol mit einem kleinen Diagramm der Prozessoren im Systemabschnitt der Kontrollleiste anzeigen; Kurzinfo und Menü nennen die drei aktivsten Prozesse. Solange es da ist, läuft das Programm weiter, wenn sein letztes Fenster geschlossen wird.</translation>
    </message>
    <message id="setting_ACCESSIBLE_QUIET">
        <source></source>
        <translation>Ein Screenreader erfährt, wohin Sie gehen und wonach Sie fragen, aber nichts von dem, was Aktualisierungen ändern. Sonst wird die Zeile mit dem Fokus alle paar Sekunden neu vorgelesen, solange sich ihre Werte ändern.</translation>
    </message>
    <message id="setting_REDUCE_MOTION">
        <source></source>
        <translation>Nichts bewegt sich, gleitet oder blinkt von selbst: Die animierte Ansicht steht still, sobald ihre Prozesse ihre Plätze haben, und Größen ändern sich sofort. Dasselbe gilt, solange auf dem Desktop weniger Bewegung oder keine Animationen eingestellt sind.</translation>
    </message>
    <message id="setting_MACHINE_HISTORY_ALWAYS">
        <source></source>
        <translation>Vom Start des Programms an eine Stunde lang behalten, was der Rechner tut und wer am aktivsten ist; sonst ab dem ersten Öffnen des Rechnerfensters.</translation>
    </message>
    <message id="setting_title_MACHINE_WINDOW_FRAME">
        <source></source>
        <translation>Rechnerfenster: Position und Größe</translation>
    </message>
    <message id="setting_MACHINE_WINDOW_FRAME">
        <source></source>
        <translation>Position und Größe des Rechnerfensters.</translation>
    </message>
    <message id="setting_title_MACHINE_WINDOW_MINUTES">
        <source></source>
        <translation>Rechnerfenster: angezeigte Minuten</translation>
    </message>
    <message id="setting_MACHINE_WINDOW_MINUTES">
        <source></source>
        <translation>Wie viele Minuten das Rechnerfenster zeigt. Das Programm merkt sich hier, was dort gewählt wurde.</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_MACHINE_WINDOW">
        <source></source>
        <translation>Rechnerfenster war geöffnet</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_MACHINE_WINDOW">
        <source></source>
        <translation>Das Rechnerfenster beim Start öffnen. Das Programm merkt sich hier, ob es geöffnet war.</translation>
    </message>
    <message id="alert_ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="helper_refused_title">
        <source></source>
        <translation>Lurkwell muss mit dem Passwort eines Systemverwalters authentifiziert werden, um auf diesem Rechner zu laufen.</translation>
    </message>
    <message id="helper_refused_text">
        <source></source>
        <translation>Ohne die Rechte eines Systemverwalters zeigt Lurkwell jeden Prozess und wirkt auf Ihre eigenen. Beim nächsten Start fragt es nicht; wie Sie wieder gefragt werden, sagt die Statuszeile.</translation>
    </message>
    <message id="helper_refused_again">
        <source></source>
        <translation>Erneut authentifizieren</translation>
    </message>
    <message id="helper_refused_quit">
        <source></source>
        <translation>Lurkwell beenden</translation>
    </message>
    <message id="helper_refused_without">
        <source></source>
        <translation>Ohne fortfahren</translation>
    </message>
    <message id="helper_not_wanted">
        <source></source>
        <translation>Lurkwell wurde ohne die Rechte eines Systemverwalters gestartet</translation>
    </message>
    <message id="helper_refused_by_user">
        <source></source>
        <translation>Lurkwell läuft ohne die Rechte eines Systemverwalters weiter, wie Sie es gewählt haben</translation>
    </message>
    <message id="shortcut_overlay">
        <source></source>
        <translation>Animierte Ansicht über dem Bildschirm</translation>
    </message>
    <message id="notifications_no_bus">
        <source></source>
        <translation>es gibt keinen Sitzungsbus</translation>
    </message>
    <message id="notifications_too_many">
        <source></source>
        <translation>zu viele auf einmal</translation>
    </message>
</context>
</TS>
