<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="meta_pid">
        <source></source>
        <translation>ID du processus</translation>
    </message>
    <message id="meta_pid_tip">
        <source></source>
        <translation>Le numéro du processus. Les processus du noyau comptent à partir de 1 ; 0 désigne la tâche inactive, et les applications de l’environnement Classic ont des numéros fictifs inférieurs à -1.</translation>
    </message>
    <message id="meta_name">
        <source></source>
        <translation>Nom</translation>
    </message>
    <message id="meta_name_tip">
        <source></source>
        <translation>Le nom de l’application si le processus en est une, sinon le nom de sa commande, entier lorsqu’il peut être connu.</translation>
    </message>
    <message id="meta_active_time">
        <source></source>
        <translation>Temps CPU</translation>
    </message>
    <message id="meta_active_time_tip">
        <source></source>
        <translation>Temps CPU consommé depuis le démarrage du processus, utilisateur et système ensemble, en secondes. Pour les applications de l’environnement Classic, c’est une estimation.</translation>
    </message>
    <message id="meta_kind">
        <source></source>
        <translation>Genre</translation>
    </message>
    <message id="meta_kind_tip">
        <source></source>
        <translation>Ce qu’il est : une application du bureau, une application de l’environnement Classic, un thread du noyau, un zombie (terminé, mais son parent n’a pas demandé son code de sortie) ou tout autre processus.</translation>
    </message>
    <message id="meta_psn">
        <source></source>
        <translation>Numéro de série</translation>
    </message>
    <message id="meta_psn_tip">
        <source></source>
        <translation>Le numéro de série de l’application sur le bureau, en deux mots hexadécimaux. Les deux sont nuls pour un processus qui n’est pas une application.</translation>
    </message>
    <message id="carbonpsn_name">
        <source></source>
        <translation>Nom de l’application</translation>
    </message>
    <message id="carbonpsn_name_tip">
        <source></source>
        <translation>Le nom de l’application tel que le bureau le connaît. Vide pour un processus qui n’est pas une application.</translation>
    </message>
    <message id="carbonpsn_type">
        <source></source>
        <translation>Type de l’application</translation>
    </message>
    <message id="carbonpsn_type_tip">
        <source></source>
        <translation>Le type à quatre caractères de l’application, APPL pour une application ordinaire. Fourni par le bureau.</translation>
    </message>
    <message id="carbonpsn_signature">
        <source></source>
        <translation>Signature de l’application</translation>
    </message>
    <message id="carbonpsn_signature_tip">
        <source></source>
        <translation>Quatre caractères qui distinguent les applications : le début du nom de l’entrée de bureau ou de la classe de fenêtre. Fourni par le bureau.</translation>
    </message>
    <message id="carbonpsn_mode">
        <source></source>
        <translation>Mode de l’application</translation>
    </message>
    <message id="carbonpsn_mode_tip">
        <source></source>
        <translation>Les drapeaux de mode de l’application tels que le bureau les rapporte, en masque hexadécimal.</translation>
    </message>
    <message id="classicpsn_name">
        <source></source>
        <translation>Nom Classic</translation>
    </message>
    <message id="classicpsn_name_tip">
        <source></source>
        <translation>Le nom de l’application dans l’environnement Classic. Seules les applications de cet environnement en ont un.</translation>
    </message>
    <message id="classicpsn_type">
        <source></source>
        <translation>Type Classic</translation>
    </message>
    <message id="classicpsn_type_tip">
        <source></source>
        <translation>Le type de fichier à quatre caractères de l’application dans l’environnement Classic.</translation>
    </message>
    <message id="classicpsn_signature">
        <source></source>
        <translation>Signature Classic</translation>
    </message>
    <message id="classicpsn_signature_tip">
        <source></source>
        <translation>Le code créateur à quatre caractères de l’application dans l’environnement Classic.</translation>
    </message>
    <message id="classicpsn_mode">
        <source></source>
        <translation>Mode Classic</translation>
    </message>
    <message id="classicpsn_mode_tip">
        <source></source>
        <translation>Les drapeaux de mode de l’application dans l’environnement Classic, en masque hexadécimal.</translation>
    </message>
    <message id="classicpsn_location">
        <source></source>
        <translation>Adresse Classic</translation>
    </message>
    <message id="classicpsn_location_tip">
        <source></source>
        <translation>L’adresse à laquelle commence la partition mémoire de l’application dans l’environnement Classic, en hexadécimal.</translation>
    </message>
    <message id="classicpsn_size">
        <source></source>
        <translation>Taille Classic</translation>
    </message>
    <message id="classicpsn_size_tip">
        <source></source>
        <translation>La taille de la partition mémoire de l’application dans l’environnement Classic, en octets.</translation>
    </message>
    <message id="classicpsn_active_time">
        <source></source>
        <translation>Temps actif Classic</translation>
    </message>
    <message id="classicpsn_active_time_tip">
        <source></source>
        <translation>Durée pendant laquelle l’application a été active dans l’environnement Classic, en tics d’un soixantième de seconde.</translation>
    </message>
    <message id="classicpsn_free_mem">
        <source></source>
        <translation>Mémoire libre Classic</translation>
    </message>
    <message id="classicpsn_free_mem_tip">
        <source></source>
        <translation>Ce qui reste de la partition mémoire de l’application dans l’environnement Classic, en octets.</translation>
    </message>
    <message id="pid_p_comm">
        <source></source>
        <translation>Nom de la commande</translation>
    </message>
    <message id="pid_p_comm_tip">
        <source></source>
        <translation>Le nom de la commande, jusqu’à 16 caractères. Le noyau en garde 15 ; un nom plus long est complété d’après la ligne de commande ou l’exécutable.</translation>
    </message>
    <message id="pid_p_priority">
        <source></source>
        <translation>Priorité</translation>
    </message>
    <message id="pid_p_priority_tip">
        <source></source>
        <translation>La priorité d’ordonnancement du noyau ; les plus petits nombres passent en premier. Les processus ordinaires ont 20 plus leur valeur nice, ceux en temps réel sont au-dessous de zéro. Issu de /proc/PID/stat.</translation>
    </message>
    <message id="pid_parent_pid">
        <source></source>
        <translation>ID du parent</translation>
    </message>
    <message id="pid_parent_pid_tip">
        <source></source>
        <translation>Le numéro du processus qui a lancé celui-ci, ou de celui qui l’a adopté.</translation>
    </message>
    <message id="pid_p_nice">
        <source></source>
        <translation>Valeur nice</translation>
    </message>
    <message id="pid_p_nice_tip">
        <source></source>
        <translation>À quel point le processus cède la place aux autres, de -20 (le moins) à 19 (le plus). Issu de /proc/PID/stat.</translation>
    </message>
    <message id="pid_p_starttime">
        <source></source>
        <translation>Heure de début</translation>
    </message>
    <message id="pid_p_starttime_tip">
        <source></source>
        <translation>La date et l’heure de démarrage du processus. Issu de /proc/PID/stat.</translation>
    </message>
    <message id="pid_user_time">
        <source></source>
        <translation>Temps utilisateur</translation>
    </message>
    <message id="pid_user_time_tip">
        <source></source>
        <translation>Temps CPU passé dans le code même du programme, tous threads confondus, en secondes. Issu de /proc/PID/stat.</translation>
    </message>
    <message id="pid_system_time">
        <source></source>
        <translation>Temps système</translation>
    </message>
    <message id="pid_system_time_tip">
        <source></source>
        <translation>Temps CPU que le noyau a passé pour le compte du processus, tous threads confondus, en secondes. Issu de /proc/PID/stat.</translation>
    </message>
    <message id="pid_vsz">
        <source></source>
        <translation>Taille virtuelle</translation>
    </message>
    <message id="pid_vsz_tip">
        <source></source>
        <translation>La taille de toute la mémoire projetée par le processus, utilisée ou non, en octets. Issu de /proc/PID/stat.</translation>
    </message>
    <message id="pid_rsz">
        <source></source>
        <translation>Taille résidente</translation>
    </message>
    <message id="pid_rsz_tip">
        <source></source>
        <translation>La part de la mémoire du processus qui se trouve en mémoire vive, pages partagées comprises, en octets. Issu de /proc/PID/stat.</translation>
    </message>
    <message id="pid_pss">
        <source></source>
        <translation>Mémoire proportionnelle</translation>
    </message>
    <message id="pid_pss_tip">
        <source></source>
        <translation>Taille proportionnelle (PSS) : la mémoire que le processus a pour lui seul et, de chaque page qu’il partage, sa part. Additionnée sur tous les processus, elle donne ce qu’ils occupent ensemble. Issu de /proc/PID/smaps_rollup, que le noyau calcule en parcourant la mémoire : la valeur est lue en arrière-plan, les lignes visibles d’abord. La mémoire en espace d’échange n’est pas comprise. Non autorisé pour les processus des autres utilisateurs.</translation>
    </message>
    <message id="pid_uss">
        <source></source>
        <translation>Mémoire propre</translation>
    </message>
    <message id="pid_uss_tip">
        <source></source>
        <translation>Taille unique (USS) : la mémoire que personne ne partage avec le processus, donc ce que sa fin libérerait. Private_Clean et Private_Dirty de /proc/PID/smaps_rollup, lus en arrière-plan, les lignes visibles d’abord. La mémoire en espace d’échange et les grandes pages de hugetlbfs ne sont pas comprises. Non autorisé pour les processus des autres utilisateurs.</translation>
    </message>
    <message id="pid_descriptors">
        <source></source>
        <translation>Descripteurs ouverts</translation>
    </message>
    <message id="pid_descriptors_tip">
        <source></source>
        <translation>Combien de descripteurs de fichiers, de sockets, de tubes et autres le processus a ouverts : les entrées de /proc/PID/fd. Lu en arrière-plan. Les fichiers seulement projetés en mémoire ne comptent pas. Pour les processus des autres utilisateurs, le noyau le donne depuis la version 6.2.</translation>
    </message>
    <message id="pid_net_received">
        <source></source>
        <translation>Reçu</translation>
    </message>
    <message id="pid_net_received_tip">
        <source></source>
        <translation>Octets arrivés par le réseau, boucle locale comprise. Total : tout depuis que Lurkwell mesure, plus ce que les connexions encore ouvertes avaient déjà transféré. Seules comptent les connexions TCP de cet espace de noms réseau, telles que les rapportent les diagnostics de sockets du noyau, d’après les descripteurs du processus ; une connexion détenue par plusieurs processus compte pour chacun. Ne sont pas comptés UDP et QUIC, les connexions qui commencent et finissent entre deux mesures, ni les autres espaces de noms réseau : un processus qui n’a pas encore eu de connexion TCP n’a pas de valeur. Non autorisé pour les processus des autres utilisateurs ; voir les valeurs de l’unité.</translation>
    </message>
    <message id="pid_net_sent">
        <source></source>
        <translation>Envoyé</translation>
    </message>
    <message id="pid_net_sent_tip">
        <source></source>
        <translation>Octets envoyés par le réseau et dont l’autre bout a accusé réception, boucle locale comprise. Total : tout depuis que Lurkwell mesure, plus ce que les connexions encore ouvertes avaient déjà transféré. Seules comptent les connexions TCP de cet espace de noms réseau, telles que les rapportent les diagnostics de sockets du noyau, d’après les descripteurs du processus ; une connexion détenue par plusieurs processus compte pour chacun. Ne sont pas comptés UDP et QUIC, les connexions qui commencent et finissent entre deux mesures, ni les autres espaces de noms réseau : un processus qui n’a pas encore eu de connexion TCP n’a pas de valeur. Non autorisé pour les processus des autres utilisateurs ; voir les valeurs de l’unité.</translation>
    </message>
    <message id="pid_net_receive_rate">
        <source></source>
        <translation>Réception/s</translation>
    </message>
    <message id="pid_net_receive_rate_tip">
        <source></source>
        <translation>Octets par seconde arrivés par le réseau entre les deux dernières mesures. Seules comptent les connexions TCP de cet espace de noms réseau, telles que les rapportent les diagnostics de sockets du noyau, d’après les descripteurs du processus ; une connexion détenue par plusieurs processus compte pour chacun. Ne sont pas comptés UDP et QUIC, les connexions qui commencent et finissent entre deux mesures, ni les autres espaces de noms réseau : un processus qui n’a pas encore eu de connexion TCP n’a pas de valeur. Non autorisé pour les processus des autres utilisateurs ; voir les valeurs de l’unité.</translation>
    </message>
    <message id="pid_net_send_rate">
        <source></source>
        <translation>Envoi/s</translation>
    </message>
    <message id="pid_net_send_rate_tip">
        <source></source>
        <translation>Octets par seconde envoyés par le réseau et acquittés entre les deux dernières mesures. Seules comptent les connexions TCP de cet espace de noms réseau, telles que les rapportent les diagnostics de sockets du noyau, d’après les descripteurs du processus ; une connexion détenue par plusieurs processus compte pour chacun. Ne sont pas comptés UDP et QUIC, les connexions qui commencent et finissent entre deux mesures, ni les autres espaces de noms réseau : un processus qui n’a pas encore eu de connexion TCP n’a pas de valeur. Non autorisé pour les processus des autres utilisateurs ; voir les valeurs de l’unité.</translation>
    </message>
    <message id="pid_connections">
        <source></source>
        <translation>Connexions</translation>
    </message>
    <message id="pid_connections_tip">
        <source></source>
        <translation>Combien de connexions TCP le processus a ouvertes, sauf celles qui ne font qu’écouter. D’après les diagnostics de sockets du noyau et les descripteurs du processus ; les autres protocoles et les autres espaces de noms réseau ne sont pas comptés. Non autorisé pour les processus des autres utilisateurs.</translation>
    </message>
    <message id="pid_listening_ports">
        <source></source>
        <translation>En écoute sur</translation>
    </message>
    <message id="pid_listening_ports_tip">
        <source></source>
        <translation>Les ports TCP sur lesquels le processus attend des connexions. D’après les diagnostics de sockets du noyau et les descripteurs du processus ; UDP et les autres espaces de noms réseau ne sont pas compris. Non autorisé pour les processus des autres utilisateurs.</translation>
    </message>
    <message id="pid_ports">
        <source></source>
        <translation>Ports</translation>
    </message>
    <message id="pid_ports_tip">
        <source></source>
        <translation>Les ports des sockets TCP et UDP du processus : les siens et ceux de l’autre bout.
D’après ses descripteurs ouverts et les tables de sockets de /proc/PID/net ; non autorisé pour les processus des autres utilisateurs.</translation>
    </message>
    <message id="pid_open_files">
        <source></source>
        <translation>Fichiers ouverts</translation>
    </message>
    <message id="pid_open_files_tip">
        <source></source>
        <translation>Les noms des fichiers que le processus a ouverts, et son dossier de travail.
D’après /proc/PID/fd et /proc/PID/cwd ; non autorisé pour les processus des autres utilisateurs.</translation>
    </message>
    <message id="pid_unit_net_received">
        <source></source>
        <translation>Reçu (unité)</translation>
    </message>
    <message id="pid_unit_net_received_tip">
        <source></source>
        <translation>Octets arrivés par des connexions TCP : une seule valeur pour tous les processus de l’unité (groupe de contrôle), que les diagnostics de sockets du noyau donnent à tout le monde. Ne sont pas comptés UDP et QUIC, les connexions qui commencent et finissent entre deux mesures, ni les autres espaces de noms réseau. Total : tout depuis que Lurkwell mesure, plus ce que les connexions encore ouvertes avaient déjà transféré.</translation>
    </message>
    <message id="pid_unit_net_sent">
        <source></source>
        <translation>Envoyé (unité)</translation>
    </message>
    <message id="pid_unit_net_sent_tip">
        <source></source>
        <translation>Octets envoyés par des connexions TCP et acquittés : une seule valeur pour tous les processus de l’unité (groupe de contrôle), que les diagnostics de sockets du noyau donnent à tout le monde. Ne sont pas comptés UDP et QUIC, les connexions qui commencent et finissent entre deux mesures, ni les autres espaces de noms réseau. Total : tout depuis que Lurkwell mesure, plus ce que les connexions encore ouvertes avaient déjà transféré.</translation>
    </message>
    <message id="pid_unit_net_receive_rate">
        <source></source>
        <translation>Réception/s (unité)</translation>
    </message>
    <message id="pid_unit_net_receive_rate_tip">
        <source></source>
        <translation>Octets par seconde qui arrivent par des connexions TCP : une seule valeur pour tous les processus de l’unité (groupe de contrôle), que les diagnostics de sockets du noyau donnent à tout le monde. Ne sont pas comptés UDP et QUIC, les connexions qui commencent et finissent entre deux mesures, ni les autres espaces de noms réseau.</translation>
    </message>
    <message id="pid_unit_net_send_rate">
        <source></source>
        <translation>Envoi/s (unité)</translation>
    </message>
    <message id="pid_unit_net_send_rate_tip">
        <source></source>
        <translation>Octets par seconde envoyés par des connexions TCP et acquittés : une seule valeur pour tous les processus de l’unité (groupe de contrôle), que les diagnostics de sockets du noyau donnent à tout le monde. Ne sont pas comptés UDP et QUIC, les connexions qui commencent et finissent entre deux mesures, ni les autres espaces de noms réseau.</translation>
    </message>
    <message id="pid_gpu_share">
        <source></source>
        <translation>GPU</translation>
    </message>
    <message id="pid_gpu_share_tip">
        <source></source>
        <translation>Pendant quelle part du temps entre les deux dernières mesures le moteur le plus occupé d’un périphérique graphique a travaillé pour le processus. D’après les données d’utilisation que le noyau tient avec les descripteurs de périphériques graphiques du processus (/proc/PID/fdinfo) ; chaque client d’un périphérique compte une fois. Les pilotes qui n’en tiennent pas, comme celui de NVIDIA, ne sont pas comptés. Aucun périphérique n’est ouvert ni réveillé. Non autorisé pour les processus des autres utilisateurs.</translation>
    </message>
    <message id="pid_gpu_memory">
        <source></source>
        <translation>Mémoire GPU</translation>
    </message>
    <message id="pid_gpu_memory_tip">
        <source></source>
        <translation>Mémoire des périphériques graphiques que détient le processus : ce qui y réside réellement si le pilote le dit, sinon ce qui a été alloué. D’après les données d’utilisation que le noyau tient avec les descripteurs de périphériques graphiques du processus (/proc/PID/fdinfo) ; chaque client d’un périphérique compte une fois. Les pilotes qui n’en tiennent pas, comme celui de NVIDIA, ne sont pas comptés. Aucun périphérique n’est ouvert ni réveillé. Non autorisé pour les processus des autres utilisateurs.</translation>
    </message>
    <message id="pid_gpu_engine">
        <source></source>
        <translation>Moteur GPU</translation>
    </message>
    <message id="pid_gpu_engine_tip">
        <source></source>
        <translation>Le moteur qui a été le plus occupé pour le processus entre les deux dernières mesures, avec les mots du pilote (render, video, copy et autres). D’après les données d’utilisation que le noyau tient avec les descripteurs de périphériques graphiques du processus (/proc/PID/fdinfo) ; chaque client d’un périphérique compte une fois. Les pilotes qui n’en tiennent pas, comme celui de NVIDIA, ne sont pas comptés. Aucun périphérique n’est ouvert ni réveillé. Non autorisé pour les processus des autres utilisateurs.</translation>
    </message>
    <message id="value_age_tip" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Lu il y a %n seconde.</numerusform>
            <numerusform>Lu il y a %n secondes.</numerusform>
        </translation>
    </message>
    <message id="pid_suspend_count">
        <source></source>
        <translation>Compteur d’arrêts</translation>
    </message>
    <message id="pid_suspend_count_tip">
        <source></source>
        <translation>1 tant que le processus est arrêté, par un signal ou un débogueur, sinon 0.</translation>
    </message>
    <message id="pid_terminated_user_time">
        <source></source>
        <translation>Temps utilisateur des threads terminés</translation>
    </message>
    <message id="pid_terminated_user_time_tip">
        <source></source>
        <translation>Temps utilisateur des threads qui sont terminés. Toujours 0 sous Linux, où le temps utilisateur le comprend.</translation>
    </message>
    <message id="pid_terminated_system_time">
        <source></source>
        <translation>Temps système des threads terminés</translation>
    </message>
    <message id="pid_terminated_system_time_tip">
        <source></source>
        <translation>Temps système des threads qui sont terminés. Toujours 0 sous Linux, où le temps système le comprend.</translation>
    </message>
    <message id="pid_policy">
        <source></source>
        <translation>Politique d’ordonnancement</translation>
    </message>
    <message id="pid_policy_tip">
        <source></source>
        <translation>La politique d’ordonnancement du noyau, en nombre : 0 ordinaire, 1 FIFO, 2 tourniquet, 3 batch, 5 idle, 6 deadline. Issu de /proc/PID/stat.</translation>
    </message>
    <message id="pid_faults">
        <source></source>
        <translation>Défauts de page</translation>
    </message>
    <message id="pid_faults_tip">
        <source></source>
        <translation>Défauts de page depuis le démarrage du processus, avec et sans lecture sur disque. Issu de /proc/PID/stat.</translation>
    </message>
    <message id="pid_pageins">
        <source></source>
        <translation>Pages chargées</translation>
    </message>
    <message id="pid_pageins_tip">
        <source></source>
        <translation>Défauts de page qui ont dû attendre une lecture sur disque (défauts majeurs). Issu de /proc/PID/stat.</translation>
    </message>
    <message id="pid_cow_faults">
        <source></source>
        <translation>Défauts de copie sur écriture</translation>
    </message>
    <message id="pid_cow_faults_tip">
        <source></source>
        <translation>Défauts de page qui ont copié une page partagée. Linux ne les compte pas : toujours 0.</translation>
    </message>
    <message id="pid_messages_sent">
        <source></source>
        <translation>Messages envoyés</translation>
    </message>
    <message id="pid_messages_sent_tip">
        <source></source>
        <translation>Messages envoyés entre le noyau et le processus. Linux n’a pas de tels messages : toujours 0.</translation>
    </message>
    <message id="pid_messages_received">
        <source></source>
        <translation>Messages reçus</translation>
    </message>
    <message id="pid_messages_received_tip">
        <source></source>
        <translation>Messages reçus entre le noyau et le processus. Linux n’a pas de tels messages : toujours 0.</translation>
    </message>
    <message id="pid_syscalls_mach">
        <source></source>
        <translation>Appels système Mach</translation>
    </message>
    <message id="pid_syscalls_mach_tip">
        <source></source>
        <translation>Appels à l’interface du noyau Mach. Linux n’en a pas : toujours 0.</translation>
    </message>
    <message id="pid_syscalls_unix">
        <source></source>
        <translation>Appels système Unix</translation>
    </message>
    <message id="pid_syscalls_unix_tip">
        <source></source>
        <translation>Appels système de lecture et d’écriture, additionnés ; les autres appels ne sont pas comptés. Issu de /proc/PID/io, que seuls l’utilisateur du processus et root peuvent lire.</translation>
    </message>
    <message id="pid_csw">
        <source></source>
        <translation>Changements de contexte</translation>
    </message>
    <message id="pid_csw_tip">
        <source></source>
        <translation>Combien de fois un CPU a été retiré au thread principal du processus, de son gré ou non. Issu de /proc/PID/status.</translation>
    </message>
    <message id="pid_processor">
        <source></source>
        <translation>Dernier CPU</translation>
    </message>
    <message id="pid_processor_tip">
        <source></source>
        <translation>Le numéro du processeur sur lequel le thread principal du processus a tourné en dernier, à partir de 0. Issu de /proc/PID/stat.</translation>
    </message>
    <message id="pid_cpu_wait">
        <source></source>
        <translation>Attente d’un CPU</translation>
    </message>
    <message id="pid_cpu_wait_tip">
        <source></source>
        <translation>Pendant combien de temps les threads du processus, prêts à s’exécuter, ont dû attendre un processeur, en secondes, tous ensemble. Les threads terminés manquent. Issu de /proc/PID/task/TID/schedstat.</translation>
    </message>
    <message id="pid_disk_read">
        <source></source>
        <translation>Lu sur disque</translation>
    </message>
    <message id="pid_disk_read_tip">
        <source></source>
        <translation>Octets que les périphériques de stockage ont dû fournir au processus depuis son démarrage. Issu de /proc/PID/io, que seuls l’utilisateur du processus et root peuvent lire.</translation>
    </message>
    <message id="pid_disk_written">
        <source></source>
        <translation>Écrit sur disque</translation>
    </message>
    <message id="pid_disk_written_tip">
        <source></source>
        <translation>Octets que le processus a donnés à écrire aux périphériques de stockage depuis son démarrage ; ce qu’il a écrit dans des fichiers vite supprimés compte aussi. Issu de /proc/PID/io, que seuls l’utilisateur du processus et root peuvent lire.</translation>
    </message>
    <message id="pid_bytes_read">
        <source></source>
        <translation>Octets lus</translation>
    </message>
    <message id="pid_bytes_read_tip">
        <source></source>
        <translation>Octets que le processus a obtenus de ses appels de lecture depuis son démarrage, qu’ils viennent d’un disque, d’un cache ou d’un terminal. Issu de /proc/PID/io, que seuls l’utilisateur du processus et root peuvent lire.</translation>
    </message>
    <message id="pid_bytes_written">
        <source></source>
        <translation>Octets écrits</translation>
    </message>
    <message id="pid_bytes_written_tip">
        <source></source>
        <translation>Octets que le processus a transmis à ses appels d’écriture depuis son démarrage, qu’ils aillent à un disque, un cache ou un terminal. Issu de /proc/PID/io, que seuls l’utilisateur du processus et root peuvent lire.</translation>
    </message>
    <message id="pid_unit_disk_read">
        <source></source>
        <translation>Lu sur disque (unité)</translation>
    </message>
    <message id="pid_unit_disk_read_tip">
        <source></source>
        <translation>Octets que les périphériques de stockage ont fournis à l’unité (groupe de contrôle) du processus : à tous ses processus ensemble, terminés compris, d’après le fichier io.stat, que tout le monde peut lire ; les unités dont les entrées et sorties ne sont pas comptabilisées n’en ont pas.</translation>
    </message>
    <message id="pid_unit_disk_written">
        <source></source>
        <translation>Écrit sur disque (unité)</translation>
    </message>
    <message id="pid_unit_disk_written_tip">
        <source></source>
        <translation>Octets que l’unité (groupe de contrôle) du processus a donnés à écrire aux périphériques de stockage : tous ses processus ensemble, terminés compris, d’après le fichier io.stat, que tout le monde peut lire ; les unités dont les entrées et sorties ne sont pas comptabilisées n’en ont pas.</translation>
    </message>
    <message id="pid_owner">
        <source></source>
        <translation>Propriétaire</translation>
    </message>
    <message id="pid_owner_tip">
        <source></source>
        <translation>L’utilisateur à qui appartient le processus et, après « as », celui au nom duquel il agit si c’en est un autre. Issu de /proc/PID/status ; un utilisateur sans nom est un nombre.</translation>
    </message>
    <message id="pid_state">
        <source></source>
        <translation>État en toutes lettres</translation>
    </message>
    <message id="pid_state_tip">
        <source></source>
        <translation>Ce que fait le thread principal du processus : « running » (s’exécute ou est prêt), « sleeping » (endormi), « uninterruptible » (ininterruptible, le plus souvent en attente d’un disque), « stopped » (arrêté), « traced » (arrêté par un débogueur), « zombie » (terminé, pas encore récupéré), « idle » (thread inactif du noyau). Issu de /proc/PID/stat. Les autres threads font peut-être autre chose.</translation>
    </message>
    <message id="pid_threads">
        <source></source>
        <translation>Nombre de threads</translation>
    </message>
    <message id="pid_threads_tip">
        <source></source>
        <translation>Combien de threads a le processus. Issu de /proc/PID/stat. Les threads terminés ne comptent pas.</translation>
    </message>
    <message id="pid_terminal">
        <source></source>
        <translation>Terminal de contrôle</translation>
    </message>
    <message id="pid_terminal_tip">
        <source></source>
        <translation>Le terminal auquel appartient le processus, par son nom sous /dev. Issu de /proc/PID/stat. Vide pour un processus qui n’en a pas ; un programme dans une fenêtre de terminal a celui de cette fenêtre.</translation>
    </message>
    <message id="pid_command_line">
        <source></source>
        <translation>Ligne de commande complète</translation>
    </message>
    <message id="pid_command_line_tip">
        <source></source>
        <translation>Le programme et ses arguments, les caractères impossibles à afficher étant écrits sous forme d’échappements. Issu de /proc/PID/cmdline, au plus quelque 4000 caractères, tels que le processus les a maintenant : il peut les réécrire. Imprimée ou écrite, elle se réduit au programme, sauf si le paramètre KEEP_COMMAND_LINES est activé.</translation>
    </message>
    <message id="pid_executable">
        <source></source>
        <translation>Fichier exécutable</translation>
    </message>
    <message id="pid_executable_tip">
        <source></source>
        <translation>Le fichier que le processus exécute, suivi de « (deleted) » s’il a été remplacé ou supprimé. Issu de /proc/PID/exe, que seuls l’utilisateur du processus et root peuvent lire. Les threads du noyau n’en ont pas.</translation>
    </message>
    <message id="pid_running_time">
        <source></source>
        <translation>En cours depuis</translation>
    </message>
    <message id="pid_running_time_tip">
        <source></source>
        <translation>Depuis combien de temps le processus est démarré, en jours, heures, minutes et secondes ; le temps de veille de la machine est compris. D’après /proc/PID/stat et l’horloge.</translation>
    </message>
    <message id="pid_cpu_share">
        <source></source>
        <translation>CPU % (un cœur)</translation>
    </message>
    <message id="pid_cpu_share_of_machine">
        <source></source>
        <translation>CPU % (tous les cœurs)</translation>
    </message>
    <message id="pid_cpu_share_tip">
        <source></source>
        <translation>La part d’un processeur que le processus a utilisée depuis la dernière actualisation, tous threads confondus : 100 est un processeur tout le temps, quatre threads occupés font 400. D’après les temps de /proc/PID/stat, comptés en centièmes de seconde. Ce qu’ont consommé les enfants terminés n’y est pas.</translation>
    </message>
    <message id="pid_user_share">
        <source></source>
        <translation>Utilisateur % (un cœur)</translation>
    </message>
    <message id="pid_user_share_of_machine">
        <source></source>
        <translation>Utilisateur % (tous les cœurs)</translation>
    </message>
    <message id="pid_user_share_tip">
        <source></source>
        <translation>La part d’un processeur que le processus a utilisée pour son propre code depuis la dernière actualisation. D’après les temps de /proc/PID/stat.</translation>
    </message>
    <message id="pid_system_share">
        <source></source>
        <translation>Système % (un cœur)</translation>
    </message>
    <message id="pid_system_share_of_machine">
        <source></source>
        <translation>Système % (tous les cœurs)</translation>
    </message>
    <message id="pid_system_share_tip">
        <source></source>
        <translation>La part d’un processeur que le noyau a utilisée pour le processus depuis la dernière actualisation. D’après les temps de /proc/PID/stat.</translation>
    </message>
    <message id="pid_affinity">
        <source></source>
        <translation>CPU autorisés</translation>
    </message>
    <message id="pid_affinity_tip">
        <source></source>
        <translation>Les processeurs sur lesquels le thread principal du processus peut s’exécuter, par leurs numéros à partir de 0, d’après l’appel sched_getaffinity du noyau. Les limites du groupe de contrôle du processus y sont comprises ; d’autres threads peuvent en avoir d’autres.</translation>
    </message>
    <message id="pid_scheduler">
        <source></source>
        <translation>Ordonnanceur</translation>
    </message>
    <message id="pid_scheduler_tip">
        <source></source>
        <translation>Comment le noyau partage les processeurs avec le processus : normal, batch, idle (seulement quand personne d’autre n’en veut), real time (temps réel), deadline. Issu de /proc/PID/stat, pour le thread principal.</translation>
    </message>
    <message id="pid_io_priority">
        <source></source>
        <translation>Priorité d’E/S</translation>
    </message>
    <message id="pid_io_priority_tip">
        <source></source>
        <translation>Le rang du processus quand il attend un disque : sa classe et son niveau, de 0, le plus haut, à 7, d’après l’appel ioprio_get du noyau. Les disques sans ordonnanceur, comme la plupart des NVMe, n’en tiennent pas compte.</translation>
    </message>
    <message id="pid_shared_memory">
        <source></source>
        <translation>Mémoire partagée</translation>
    </message>
    <message id="pid_shared_memory_tip">
        <source></source>
        <translation>Mémoire du processus que d’autres peuvent aussi avoir projetée : des parties de fichiers et de bibliothèques, et la mémoire destinée à être partagée. D’après RssFile et RssShmem dans /proc/PID/status. Elle fait partie de la mémoire réelle, que quelqu’un la partage ou non.</translation>
    </message>
    <message id="pid_swap">
        <source></source>
        <translation>En espace d’échange</translation>
    </message>
    <message id="pid_swap_tip">
        <source></source>
        <translation>Mémoire du processus déplacée dans l’espace d’échange. D’après VmSwap dans /proc/PID/status. La mémoire partagée qui s’y trouve n’est pas comprise.</translation>
    </message>
    <message id="pid_highest_rsz">
        <source></source>
        <translation>Mémoire réelle maximale</translation>
    </message>
    <message id="pid_highest_rsz_tip">
        <source></source>
        <translation>La plus grande quantité de mémoire que le processus ait eue à la fois. D’après VmHWM dans /proc/PID/status.</translation>
    </message>
    <message id="pid_memory_share">
        <source></source>
        <translation>Mémoire %</translation>
    </message>
    <message id="pid_memory_share_tip">
        <source></source>
        <translation>Mémoire réelle du processus en part de celle de la machine. Issu de /proc/PID/stat. Ce qui est partagé compte entièrement pour chacun de ceux qui l’ont, si bien que la somme peut dépasser 100.</translation>
    </message>
    <message id="pid_oom_score">
        <source></source>
        <translation>Score OOM</translation>
    </message>
    <message id="pid_oom_score_tip">
        <source></source>
        <translation>Qui sera terminé le premier quand la mémoire viendra à manquer : le processus au score le plus élevé. Issu de /proc/PID/oom_score.</translation>
    </message>
    <message id="pid_disk_read_rate">
        <source></source>
        <translation>Disque lu/s</translation>
    </message>
    <message id="pid_disk_read_rate_tip">
        <source></source>
        <translation>Ce que les périphériques de stockage ont dû fournir au processus, en octets par seconde depuis la dernière actualisation. Issu de /proc/PID/io, que seuls l’utilisateur du processus et root peuvent lire. Pour les processus d’autrui, voir les valeurs de l’unité.</translation>
    </message>
    <message id="pid_disk_write_rate">
        <source></source>
        <translation>Disque écrit/s</translation>
    </message>
    <message id="pid_disk_write_rate_tip">
        <source></source>
        <translation>Ce que le processus a donné à écrire aux périphériques de stockage, en octets par seconde depuis la dernière actualisation. Issu de /proc/PID/io, que seuls l’utilisateur du processus et root peuvent lire. Pour les processus d’autrui, voir les valeurs de l’unité.</translation>
    </message>
    <message id="pid_read_rate">
        <source></source>
        <translation>Lu/s</translation>
    </message>
    <message id="pid_read_rate_tip">
        <source></source>
        <translation>Ce que le processus a obtenu de ses appels de lecture, en octets par seconde depuis la dernière actualisation, d’un disque, d’un cache, d’un tube ou d’un terminal. Issu de /proc/PID/io, que seuls l’utilisateur du processus et root peuvent lire.</translation>
    </message>
    <message id="pid_write_rate">
        <source></source>
        <translation>Écrit/s</translation>
    </message>
    <message id="pid_write_rate_tip">
        <source></source>
        <translation>Ce que le processus a transmis à ses appels d’écriture, en octets par seconde depuis la dernière actualisation, vers un disque, un cache, un tube ou un terminal. Issu de /proc/PID/io, que seuls l’utilisateur du processus et root peuvent lire.</translation>
    </message>
    <message id="pid_unit_read_rate">
        <source></source>
        <translation>Disque lu/s (unité)</translation>
    </message>
    <message id="pid_unit_read_rate_tip">
        <source></source>
        <translation>Ce que les périphériques de stockage ont fourni à l’unité (groupe de contrôle) du processus, tous ses processus ensemble, en octets par seconde depuis la dernière actualisation, d’après le fichier io.stat, que tout le monde peut lire ; les unités dont les entrées et sorties ne sont pas comptabilisées n’en ont pas.</translation>
    </message>
    <message id="pid_unit_write_rate">
        <source></source>
        <translation>Disque écrit/s (unité)</translation>
    </message>
    <message id="pid_unit_write_rate_tip">
        <source></source>
        <translation>Ce que l’unité (groupe de contrôle) du processus a donné à écrire aux périphériques de stockage, tous ses processus ensemble, en octets par seconde depuis la dernière actualisation, d’après le fichier io.stat, que tout le monde peut lire ; les unités dont les entrées et sorties ne sont pas comptabilisées n’en ont pas.</translation>
    </message>
    <message id="pid_cgroup">
        <source></source>
        <translation>Chemin du groupe de contrôle</translation>
    </message>
    <message id="pid_cgroup_tip">
        <source></source>
        <translation>Le groupe de contrôle du processus, depuis la racine que voit ce programme. Issu de /proc/PID/cgroup. S’il y a plusieurs hiérarchies, celle qui est unifiée, sinon celle du gestionnaire de services.</translation>
    </message>
    <message id="pid_unit">
        <source></source>
        <translation>Service ou scope</translation>
    </message>
    <message id="pid_unit_tip">
        <source></source>
        <translation>L’unité du gestionnaire de services à laquelle appartient le processus : un service, une session, le scope d’une application. D’après le chemin de son groupe de contrôle. Vide sans un tel gestionnaire.</translation>
    </message>
    <message id="pid_slice">
        <source></source>
        <translation>Tranche (slice) d’unités</translation>
    </message>
    <message id="pid_slice_tip">
        <source></source>
        <translation>Le groupe d’unités dans lequel se trouve l’unité du processus. D’après le chemin de son groupe de contrôle.</translation>
    </message>
    <message id="pid_app_scope">
        <source></source>
        <translation>Scope de l’application</translation>
    </message>
    <message id="pid_app_scope_tip">
        <source></source>
        <translation>L’application pour laquelle le gestionnaire de session tient le processus, par son entrée de bureau. D’après le chemin de son groupe de contrôle. Vide pour les services et pour les bureaux qui ne classent pas leurs applications.</translation>
    </message>
    <message id="pid_container">
        <source></source>
        <translation>Conteneur</translation>
    </message>
    <message id="pid_container_tip">
        <source></source>
        <translation>Genre et nom ou numéro du conteneur dans lequel se trouve le processus : Docker, Podman, containerd, CRI-O, Kubernetes, LXC, systemd-nspawn, Flatpak, Snap. D’après le chemin de son groupe de contrôle ; un moteur qui nomme ses groupes autrement n’est pas reconnu. « own pid namespace » pour ce qui est isolé sans conteneur, comme les parties d’un navigateur web.</translation>
    </message>
    <message id="pid_inner_pid">
        <source></source>
        <translation>PID interne</translation>
    </message>
    <message id="pid_inner_pid_tip">
        <source></source>
        <translation>Le numéro du processus dans l’espace de noms PID le plus intérieur où il se trouve, si ce n’est pas celui de ce programme. D’après NSpid dans /proc/PID/status.</translation>
    </message>
    <message id="pid_namespace">
        <source></source>
        <translation>Espace de noms PID</translation>
    </message>
    <message id="pid_namespace_tip">
        <source></source>
        <translation>Le numéro de l’espace de noms PID où se trouve le processus : ceux de même numéro se voient entre eux. Issu de /proc/PID/ns/pid, que seuls l’utilisateur du processus et root peuvent lire.</translation>
    </message>
    <message id="pid_capabilities">
        <source></source>
        <translation>Capacités effectives</translation>
    </message>
    <message id="pid_capabilities_tip">
        <source></source>
        <translation>Les droits de root que le processus a actuellement. D’après CapEff dans /proc/PID/status, pour le thread principal. Dans un espace de noms d’utilisateurs, ils ne valent que pour celui-ci.</translation>
    </message>
    <message id="pid_seccomp">
        <source></source>
        <translation>Filtre d’appels système</translation>
    </message>
    <message id="pid_seccomp_tip">
        <source></source>
        <translation>Si les appels système du processus sont filtrés : « off » (non), « strict » (presque aucun n’est permis) ou « filter ». D’après Seccomp dans /proc/PID/status.</translation>
    </message>
    <message id="pid_no_new_privileges">
        <source></source>
        <translation>Pas de nouveaux privilèges</translation>
    </message>
    <message id="pid_no_new_privileges_tip">
        <source></source>
        <translation>Si les programmes que lance le processus ne peuvent pas obtenir plus de droits que lui, quoi que disent leurs fichiers. D’après NoNewPrivs dans /proc/PID/status.</translation>
    </message>
    <message id="pid_label">
        <source></source>
        <translation>Étiquette du module de sécurité</translation>
    </message>
    <message id="pid_label_tip">
        <source></source>
        <translation>Comment AppArmor, SELinux ou Smack nomme le processus. Issu de /proc/PID/attr/current ; absent sans un tel module.</translation>
    </message>
    <message id="pid_elevated">
        <source></source>
        <translation>Droits élevés</translation>
    </message>
    <message id="pid_elevated_tip">
        <source></source>
        <translation>Si le processus a des droits que les autres de son utilisateur n’ont pas : root quand il agit en tant que root, capabilities quand il a certains des droits de root. D’après Uid et CapEff dans /proc/PID/status.</translation>
    </message>
    <message id="internal_Icon">
        <source></source>
        <translation>Icône</translation>
    </message>
    <message id="internal_Icon_tip">
        <source></source>
        <translation>L’icône de l’application. Un processus qui n’est pas une application n’en a pas.</translation>
    </message>
    <message id="internal_Indicator">
        <source></source>
        <translation>Indicateur</translation>
    </message>
    <message id="internal_Indicator_tip">
        <source></source>
        <translation>Une marque pour ce qui a été fait ici au processus : suspendu, ou sa priorité augmentée ou abaissée.</translation>
    </message>
    <message id="internal_CPUPercent">
        <source></source>
        <translation>Utilisation CPU</translation>
    </message>
    <message id="internal_CPUPercent_tip">
        <source></source>
        <translation>La part d’un CPU que le processus a utilisée depuis l’actualisation précédente, en barre.</translation>
    </message>
    <message id="internal_MemGraph">
        <source></source>
        <translation>Mémoire</translation>
    </message>
    <message id="internal_MemGraph_tip">
        <source></source>
        <translation>Les tailles résidente et virtuelle du processus, en barre.</translation>
    </message>
    <message id="%CPU">
        <source></source>
        <translation>Utilisation CPU (%CPU)</translation>
    </message>
    <message id="%CPU_tip">
        <source></source>
        <translation>Temps CPU consommé divisé par la durée de vie du processus, en pour cent. C’est une moyenne sur toute la vie du processus.</translation>
    </message>
    <message id="%CUC">
        <source></source>
        <translation>Utilisation CPU avec enfants (%CUC)</translation>
    </message>
    <message id="%CUC_tip">
        <source></source>
        <translation>Temps CPU du processus et de ses enfants terminés divisé par sa durée de vie, en pour cent avec trois décimales.</translation>
    </message>
    <message id="%CUU">
        <source></source>
        <translation>Utilisation CPU (%CUU)</translation>
    </message>
    <message id="%CUU_tip">
        <source></source>
        <translation>Temps CPU consommé divisé par la durée de vie du processus, en pour cent avec trois décimales.</translation>
    </message>
    <message id="%MEM">
        <source></source>
        <translation>Utilisation mémoire (%MEM)</translation>
    </message>
    <message id="%MEM_tip">
        <source></source>
        <translation>La taille résidente en pourcentage de la mémoire physique de la machine.</translation>
    </message>
    <message id="AGID">
        <source></source>
        <translation>ID d’autogroupe (AGID)</translation>
    </message>
    <message id="AGID_tip">
        <source></source>
        <translation>Le numéro du groupe automatique de l’ordonnanceur auquel appartient le processus ; en général, chaque session en a un.</translation>
    </message>
    <message id="AGNI">
        <source></source>
        <translation>Valeur nice de l’autogroupe (AGNI)</translation>
    </message>
    <message id="AGNI_tip">
        <source></source>
        <translation>La valeur nice du groupe automatique de l’ordonnanceur : à quel point tout le groupe cède la place aux autres.</translation>
    </message>
    <message id="API">
        <source></source>
        <translation>Priorité (API)</translation>
    </message>
    <message id="API_tip">
        <source></source>
        <translation>La priorité d’ordonnancement sur l’une des échelles historiques que propose ps : -1 moins la priorité du noyau.</translation>
    </message>
    <message id="BLOCKED">
        <source></source>
        <translation>Signaux bloqués (BLOCKED)</translation>
    </message>
    <message id="BLOCKED_tip">
        <source></source>
        <translation>Les signaux dont le processus a différé la remise, en masque hexadécimal.</translation>
    </message>
    <message id="BSDTIME">
        <source></source>
        <translation>Temps CPU (BSDTIME)</translation>
    </message>
    <message id="BSDTIME_tip">
        <source></source>
        <translation>Temps CPU consommé depuis le démarrage du processus, utilisateur et système ensemble. Identique à TIME.</translation>
    </message>
    <message id="C">
        <source></source>
        <translation>Utilisation CPU (C)</translation>
    </message>
    <message id="C_tip">
        <source></source>
        <translation>Temps CPU consommé divisé par la durée de vie du processus, en pour cent entiers.</translation>
    </message>
    <message id="CATCHED">
        <source></source>
        <translation>Signaux interceptés (CATCHED)</translation>
    </message>
    <message id="CATCHED_tip">
        <source></source>
        <translation>Les signaux pour lesquels le processus a son propre gestionnaire, en masque hexadécimal. Identique à CAUGHT.</translation>
    </message>
    <message id="CAUGHT">
        <source></source>
        <translation>Signaux interceptés (CAUGHT)</translation>
    </message>
    <message id="CAUGHT_tip">
        <source></source>
        <translation>Les signaux pour lesquels le processus a son propre gestionnaire, en masque hexadécimal.</translation>
    </message>
    <message id="CGNAME">
        <source></source>
        <translation>Noms des groupes de contrôle (CGNAME)</translation>
    </message>
    <message id="CGNAME_tip">
        <source></source>
        <translation>Les noms des groupes de contrôle auxquels appartient le processus, tels que le noyau les donne.</translation>
    </message>
    <message id="CGROUP">
        <source></source>
        <translation>Groupes de contrôle (CGROUP)</translation>
    </message>
    <message id="CGROUP_tip">
        <source></source>
        <translation>Les groupes de contrôle auxquels appartient le processus.</translation>
    </message>
    <message id="CGROUPNS">
        <source></source>
        <translation>Espace de noms de cgroups (CGROUPNS)</translation>
    </message>
    <message id="CGROUPNS_tip">
        <source></source>
        <translation>Le numéro d’inode de l’espace de noms de groupes de contrôle dans lequel vit le processus. Les processus de même numéro le partagent.</translation>
    </message>
    <message id="CLS">
        <source></source>
        <translation>Classe d’ordonnancement (CLS)</translation>
    </message>
    <message id="CLS_tip">
        <source></source>
        <translation>La classe d’ordonnancement : TS ordinaire, FF premier entré premier sorti, RR tourniquet, B batch, IDL idle, DLN deadline.</translation>
    </message>
    <message id="CMD">
        <source></source>
        <translation>Ligne de commande (CMD)</translation>
    </message>
    <message id="CMD_tip">
        <source></source>
        <translation>La commande avec tous ses arguments. Identique à COMMAND.</translation>
    </message>
    <message id="COMM">
        <source></source>
        <translation>Nom de la commande (COMM)</translation>
    </message>
    <message id="COMM_tip">
        <source></source>
        <translation>Le nom de la commande sans ses arguments.</translation>
    </message>
    <message id="COMMAND">
        <source></source>
        <translation>Ligne de commande (COMMAND)</translation>
    </message>
    <message id="COMMAND_tip">
        <source></source>
        <translation>La commande avec tous ses arguments. S’ils ne peuvent être obtenus, comme pour les threads du noyau, le nom de la commande entre crochets.</translation>
    </message>
    <message id="CONTEXT">
        <source></source>
        <translation>Contexte de sécurité (CONTEXT)</translation>
    </message>
    <message id="CONTEXT_tip">
        <source></source>
        <translation>Le contexte de sécurité que le contrôle d’accès du noyau (SELinux, par exemple) a donné au processus ; un tiret s’il n’y en a pas.</translation>
    </message>
    <message id="CP">
        <source></source>
        <translation>Utilisation CPU (CP)</translation>
    </message>
    <message id="CP_tip">
        <source></source>
        <translation>Temps CPU consommé divisé par la durée de vie du processus, en millièmes.</translation>
    </message>
    <message id="CPUID">
        <source></source>
        <translation>Dernier CPU (CPUID)</translation>
    </message>
    <message id="CPUID_tip">
        <source></source>
        <translation>Le numéro du processeur sur lequel le processus a tourné en dernier.</translation>
    </message>
    <message id="CPUTIMES">
        <source></source>
        <translation>Secondes CPU (CPUTIMES)</translation>
    </message>
    <message id="CPUTIMES_tip">
        <source></source>
        <translation>Temps CPU consommé depuis le démarrage du processus, utilisateur et système ensemble, en secondes.</translation>
    </message>
    <message id="DRS">
        <source></source>
        <translation>Taille des données (DRS)</translation>
    </message>
    <message id="DRS_tip">
        <source></source>
        <translation>La taille de toute la mémoire projetée sauf le code exécutable. Malgré le nom, tout n’est pas forcément en mémoire vive.</translation>
    </message>
    <message id="DSIZ">
        <source></source>
        <translation>Taille des données (DSIZ)</translation>
    </message>
    <message id="DSIZ_tip">
        <source></source>
        <translation>La taille de toute la mémoire projetée sauf le code exécutable.</translation>
    </message>
    <message id="EGID">
        <source></source>
        <translation>ID de groupe effectif (EGID)</translation>
    </message>
    <message id="EGID_tip">
        <source></source>
        <translation>Le numéro du groupe dont le processus a les droits.</translation>
    </message>
    <message id="EGROUP">
        <source></source>
        <translation>Groupe effectif (EGROUP)</translation>
    </message>
    <message id="EGROUP_tip">
        <source></source>
        <translation>Le nom du groupe dont le processus a les droits.</translation>
    </message>
    <message id="EIP">
        <source></source>
        <translation>Pointeur d’instruction (EIP)</translation>
    </message>
    <message id="EIP_tip">
        <source></source>
        <translation>L’adresse de l’instruction où en est le processus. Depuis 4.9, le noyau ne la montre que pendant la fin d’un processus ; sinon, elle est nulle.</translation>
    </message>
    <message id="ELAPSED">
        <source></source>
        <translation>Temps écoulé (ELAPSED)</translation>
    </message>
    <message id="ELAPSED_tip">
        <source></source>
        <translation>Temps depuis le démarrage du processus, en jours, heures, minutes et secondes.</translation>
    </message>
    <message id="ESP">
        <source></source>
        <translation>Pointeur de pile (ESP)</translation>
    </message>
    <message id="ESP_tip">
        <source></source>
        <translation>L’adresse du sommet de la pile. Depuis 4.9, le noyau ne la montre que pendant la fin d’un processus ; sinon, elle est nulle.</translation>
    </message>
    <message id="ETIMES">
        <source></source>
        <translation>Secondes écoulées (ETIMES)</translation>
    </message>
    <message id="ETIMES_tip">
        <source></source>
        <translation>Temps depuis le démarrage du processus, en secondes.</translation>
    </message>
    <message id="EUID">
        <source></source>
        <translation>ID d’utilisateur effectif (EUID)</translation>
    </message>
    <message id="EUID_tip">
        <source></source>
        <translation>Le numéro de l’utilisateur dont le processus a les droits.</translation>
    </message>
    <message id="EUSER">
        <source></source>
        <translation>Utilisateur effectif (EUSER)</translation>
    </message>
    <message id="EUSER_tip">
        <source></source>
        <translation>Le nom de l’utilisateur dont le processus a les droits.</translation>
    </message>
    <message id="EXE">
        <source></source>
        <translation>Exécutable (EXE)</translation>
    </message>
    <message id="EXE_tip">
        <source></source>
        <translation>Le chemin du fichier du programme ; un tiret pour les threads du noyau, une croix là où il n’est pas permis de le lire.</translation>
    </message>
    <message id="F">
        <source></source>
        <translation>Drapeaux (F)</translation>
    </message>
    <message id="F_tip">
        <source></source>
        <translation>Drapeaux du processus, additionnés : 1 dupliqué mais pas encore un programme à part, 4 a utilisé les droits du superutilisateur.</translation>
    </message>
    <message id="FGID">
        <source></source>
        <translation>ID de groupe d’accès fichiers (FGID)</translation>
    </message>
    <message id="FGID_tip">
        <source></source>
        <translation>Le numéro du groupe qui compte quand le processus ouvre des fichiers.</translation>
    </message>
    <message id="FGROUP">
        <source></source>
        <translation>Groupe d’accès aux fichiers (FGROUP)</translation>
    </message>
    <message id="FGROUP_tip">
        <source></source>
        <translation>Le nom du groupe qui compte quand le processus ouvre des fichiers.</translation>
    </message>
    <message id="FNAME">
        <source></source>
        <translation>Nom de commande abrégé (FNAME)</translation>
    </message>
    <message id="FNAME_tip">
        <source></source>
        <translation>Les huit premières lettres du nom de la commande.</translation>
    </message>
    <message id="FSGID">
        <source></source>
        <translation>ID de groupe d’accès fichiers (FSGID)</translation>
    </message>
    <message id="FSGID_tip">
        <source></source>
        <translation>Le numéro du groupe qui compte quand le processus ouvre des fichiers. Identique à FGID.</translation>
    </message>
    <message id="FSGROUP">
        <source></source>
        <translation>Groupe d’accès aux fichiers (FSGROUP)</translation>
    </message>
    <message id="FSGROUP_tip">
        <source></source>
        <translation>Le nom du groupe qui compte quand le processus ouvre des fichiers. Identique à FGROUP.</translation>
    </message>
    <message id="FSUID">
        <source></source>
        <translation>ID utilisateur d’accès fichiers (FSUID)</translation>
    </message>
    <message id="FSUID_tip">
        <source></source>
        <translation>Le numéro de l’utilisateur qui compte quand le processus ouvre des fichiers. Identique à FUID.</translation>
    </message>
    <message id="FSUSER">
        <source></source>
        <translation>Utilisateur d’accès fichiers (FSUSER)</translation>
    </message>
    <message id="FSUSER_tip">
        <source></source>
        <translation>Le nom de l’utilisateur qui compte quand le processus ouvre des fichiers. Identique à FUSER.</translation>
    </message>
    <message id="FUID">
        <source></source>
        <translation>ID utilisateur d’accès fichiers (FUID)</translation>
    </message>
    <message id="FUID_tip">
        <source></source>
        <translation>Le numéro de l’utilisateur qui compte quand le processus ouvre des fichiers.</translation>
    </message>
    <message id="FUSER">
        <source></source>
        <translation>Utilisateur d’accès fichiers (FUSER)</translation>
    </message>
    <message id="FUSER_tip">
        <source></source>
        <translation>Le nom de l’utilisateur qui compte quand le processus ouvre des fichiers.</translation>
    </message>
    <message id="GID">
        <source></source>
        <translation>ID de groupe (GID)</translation>
    </message>
    <message id="GID_tip">
        <source></source>
        <translation>Le numéro du groupe effectif. Identique à EGID.</translation>
    </message>
    <message id="GROUP">
        <source></source>
        <translation>Groupe (GROUP)</translation>
    </message>
    <message id="GROUP_tip">
        <source></source>
        <translation>Le nom du groupe effectif. Identique à EGROUP.</translation>
    </message>
    <message id="IGNORED">
        <source></source>
        <translation>Signaux ignorés (IGNORED)</translation>
    </message>
    <message id="IGNORED_tip">
        <source></source>
        <translation>Les signaux que le processus ignore, en masque hexadécimal.</translation>
    </message>
    <message id="IPCNS">
        <source></source>
        <translation>Espace de noms IPC (IPCNS)</translation>
    </message>
    <message id="IPCNS_tip">
        <source></source>
        <translation>Le numéro d’inode de l’espace de noms de communication interprocessus dans lequel vit le processus. Les processus de même numéro le partagent.</translation>
    </message>
    <message id="LABEL">
        <source></source>
        <translation>Contexte de sécurité (LABEL)</translation>
    </message>
    <message id="LABEL_tip">
        <source></source>
        <translation>L’étiquette que le contrôle d’accès du noyau a donnée au processus ; un tiret s’il n’y en a pas. Identique à CONTEXT.</translation>
    </message>
    <message id="LASTCPU">
        <source></source>
        <translation>Dernier CPU (LASTCPU)</translation>
    </message>
    <message id="LASTCPU_tip">
        <source></source>
        <translation>Le numéro du processeur sur lequel le processus a tourné en dernier. Identique à PSR.</translation>
    </message>
    <message id="LIM">
        <source></source>
        <translation>Limite de mémoire (LIM)</translation>
    </message>
    <message id="LIM_tip">
        <source></source>
        <translation>La limite de la taille résidente, en kibioctets ; xx signifie sans limite.</translation>
    </message>
    <message id="LSTART">
        <source></source>
        <translation>Date de début (LSTART)</translation>
    </message>
    <message id="LSTART_tip">
        <source></source>
        <translation>Quand le processus a été démarré, date et heure.</translation>
    </message>
    <message id="LUID">
        <source></source>
        <translation>ID utilisateur de connexion (LUID)</translation>
    </message>
    <message id="LUID_tip">
        <source></source>
        <translation>Le numéro de l’utilisateur qui s’est connecté, qui reste le même quand les droits changent ensuite ; un tiret s’il n’y a pas eu de connexion.</translation>
    </message>
    <message id="LWP">
        <source></source>
        <translation>ID de thread (LWP)</translation>
    </message>
    <message id="LWP_tip">
        <source></source>
        <translation>Le numéro du thread principal du processus, égal à l’ID du processus.</translation>
    </message>
    <message id="LXC">
        <source></source>
        <translation>Conteneur LXC (LXC)</translation>
    </message>
    <message id="LXC_tip">
        <source></source>
        <translation>Le nom du conteneur LXC dans lequel tourne le processus ; un tiret hors des conteneurs.</translation>
    </message>
    <message id="M_SIZE">
        <source></source>
        <translation>Taille virtuelle en octets (M_SIZE)</translation>
    </message>
    <message id="M_SIZE_tip">
        <source></source>
        <translation>La taille de toute la mémoire projetée par le processus, en octets.</translation>
    </message>
    <message id="MACHINE">
        <source></source>
        <translation>Machine virtuelle (MACHINE)</translation>
    </message>
    <message id="MACHINE_tip">
        <source></source>
        <translation>Le nom de la machine virtuelle ou du conteneur auquel appartient le processus. Fourni par systemd ; un tiret s’il n’y en a pas.</translation>
    </message>
    <message id="MAJFL">
        <source></source>
        <translation>Défauts majeurs (MAJFL)</translation>
    </message>
    <message id="MAJFL_tip">
        <source></source>
        <translation>Défauts de page qui ont dû attendre une lecture sur disque. Identique à MAJFLT.</translation>
    </message>
    <message id="MAJFLT">
        <source></source>
        <translation>Défauts majeurs (MAJFLT)</translation>
    </message>
    <message id="MAJFLT_tip">
        <source></source>
        <translation>Défauts de page qui ont dû attendre une lecture sur disque, depuis le démarrage du processus.</translation>
    </message>
    <message id="MINFL">
        <source></source>
        <translation>Défauts mineurs (MINFL)</translation>
    </message>
    <message id="MINFL_tip">
        <source></source>
        <translation>Défauts de page sans lecture sur disque. Identique à MINFLT.</translation>
    </message>
    <message id="MINFLT">
        <source></source>
        <translation>Défauts mineurs (MINFLT)</translation>
    </message>
    <message id="MINFLT_tip">
        <source></source>
        <translation>Défauts de page sans lecture sur disque, depuis le démarrage du processus.</translation>
    </message>
    <message id="MNTNS">
        <source></source>
        <translation>Espace de noms de montage (MNTNS)</translation>
    </message>
    <message id="MNTNS_tip">
        <source></source>
        <translation>Le numéro d’inode de l’espace de noms de montage dans lequel vit le processus. Les processus de même numéro le partagent.</translation>
    </message>
    <message id="NETNS">
        <source></source>
        <translation>Espace de noms réseau (NETNS)</translation>
    </message>
    <message id="NETNS_tip">
        <source></source>
        <translation>Le numéro d’inode de l’espace de noms réseau dans lequel vit le processus. Les processus de même numéro le partagent.</translation>
    </message>
    <message id="NI">
        <source></source>
        <translation>Valeur nice (NI)</translation>
    </message>
    <message id="NI_tip">
        <source></source>
        <translation>À quel point le processus cède la place aux autres, de -20 (le moins) à 19 (le plus). Un tiret là où elle n’a pas de sens, comme pour les processus en temps réel.</translation>
    </message>
    <message id="NLWP">
        <source></source>
        <translation>Threads (NLWP)</translation>
    </message>
    <message id="NLWP_tip">
        <source></source>
        <translation>Combien de threads a le processus.</translation>
    </message>
    <message id="NUMA">
        <source></source>
        <translation>Nœud NUMA (NUMA)</translation>
    </message>
    <message id="NUMA_tip">
        <source></source>
        <translation>Le nœud mémoire du processeur sur lequel le processus a tourné en dernier ; -1 s’il n’est pas connu.</translation>
    </message>
    <message id="OOM">
        <source></source>
        <translation>Score OOM (OOM)</translation>
    </message>
    <message id="OOM_tip">
        <source></source>
        <translation>La probabilité que le noyau termine le processus quand la mémoire vient à manquer ; le score le plus élevé part le premier.</translation>
    </message>
    <message id="OOMADJ">
        <source></source>
        <translation>Ajustement OOM (OOMADJ)</translation>
    </message>
    <message id="OOMADJ_tip">
        <source></source>
        <translation>Ce qui est ajouté au score OOM, de -1000 (jamais terminé) à 1000 (terminé en premier).</translation>
    </message>
    <message id="OPRI">
        <source></source>
        <translation>Priorité (OPRI)</translation>
    </message>
    <message id="OPRI_tip">
        <source></source>
        <translation>La priorité d’ordonnancement sur l’une des échelles historiques que propose ps : la priorité du noyau plus 60, donc 80 pour un processus ordinaire et moins pour un qui passe en premier.</translation>
    </message>
    <message id="OWNER">
        <source></source>
        <translation>Propriétaire de la session (OWNER)</translation>
    </message>
    <message id="OWNER_tip">
        <source></source>
        <translation>Le numéro de l’utilisateur qui possède la session à laquelle appartient le processus. Fourni par systemd ; un tiret s’il n’y en a pas.</translation>
    </message>
    <message id="P">
        <source></source>
        <translation>CPU actuel (P)</translation>
    </message>
    <message id="P_tip">
        <source></source>
        <translation>Le numéro du processeur sur lequel tourne le processus ; un astérisque tant qu’il ne tourne pas.</translation>
    </message>
    <message id="PAGEIN">
        <source></source>
        <translation>Défauts majeurs (PAGEIN)</translation>
    </message>
    <message id="PAGEIN_tip">
        <source></source>
        <translation>Défauts de page qui ont dû attendre une lecture sur disque. Identique à MAJFLT.</translation>
    </message>
    <message id="PENDING">
        <source></source>
        <translation>Signaux en attente (PENDING)</translation>
    </message>
    <message id="PENDING_tip">
        <source></source>
        <translation>Les signaux qui attendent d’être remis au processus, en masque hexadécimal.</translation>
    </message>
    <message id="PGID">
        <source></source>
        <translation>ID de groupe de processus (PGID)</translation>
    </message>
    <message id="PGID_tip">
        <source></source>
        <translation>Le numéro du groupe de processus ; en général, les commandes d’un même pipeline le partagent.</translation>
    </message>
    <message id="PGRP">
        <source></source>
        <translation>ID de groupe de processus (PGRP)</translation>
    </message>
    <message id="PGRP_tip">
        <source></source>
        <translation>Le numéro du groupe de processus. Identique à PGID.</translation>
    </message>
    <message id="PID">
        <source></source>
        <translation>ID du processus (PID)</translation>
    </message>
    <message id="PID_tip">
        <source></source>
        <translation>Le numéro du processus, tel que ps l’affiche.</translation>
    </message>
    <message id="PIDNS">
        <source></source>
        <translation>Espace de noms PID (PIDNS)</translation>
    </message>
    <message id="PIDNS_tip">
        <source></source>
        <translation>Le numéro d’inode de l’espace de noms de numéros de processus dans lequel vit le processus. Les processus de même numéro le partagent.</translation>
    </message>
    <message id="POL">
        <source></source>
        <translation>Classe d’ordonnancement (POL)</translation>
    </message>
    <message id="POL_tip">
        <source></source>
        <translation>La classe d’ordonnancement en lettres. Identique à CLS.</translation>
    </message>
    <message id="PPID">
        <source></source>
        <translation>ID du parent (PPID)</translation>
    </message>
    <message id="PPID_tip">
        <source></source>
        <translation>Le numéro du processus qui a lancé celui-ci, ou de celui qui l’a adopté.</translation>
    </message>
    <message id="PRI">
        <source></source>
        <translation>Priorité (PRI)</translation>
    </message>
    <message id="PRI_tip">
        <source></source>
        <translation>La priorité d’ordonnancement, inversée : 19 pour un processus ordinaire et plus pour un qui passe en premier.</translation>
    </message>
    <message id="PRIORITY">
        <source></source>
        <translation>Priorité (PRIORITY)</translation>
    </message>
    <message id="PRIORITY_tip">
        <source></source>
        <translation>La priorité d’ordonnancement propre au noyau : 20 pour un processus ordinaire et moins pour un qui passe en premier, au-dessous de zéro pour ceux en temps réel.</translation>
    </message>
    <message id="PSR">
        <source></source>
        <translation>Dernier CPU (PSR)</translation>
    </message>
    <message id="PSR_tip">
        <source></source>
        <translation>Le numéro du processeur sur lequel le processus a tourné en dernier.</translation>
    </message>
    <message id="PSS">
        <source></source>
        <translation>Taille proportionnelle (PSS)</translation>
    </message>
    <message id="PSS_tip">
        <source></source>
        <translation>Mémoire vive où chaque page partagée est répartie entre ceux qui la partagent. Longue à déterminer ; une croix là où il n’est pas permis de la lire.</translation>
    </message>
    <message id="RBYTES">
        <source></source>
        <translation>Octets lus du stockage (RBYTES)</translation>
    </message>
    <message id="RBYTES_tip">
        <source></source>
        <translation>Octets que les périphériques de stockage ont dû fournir au processus. Issu de /proc/PID/io ; une croix là où il n’est pas permis de le lire.</translation>
    </message>
    <message id="RCHARS">
        <source></source>
        <translation>Octets lus (RCHARS)</translation>
    </message>
    <message id="RCHARS_tip">
        <source></source>
        <translation>Octets que le processus a demandés par ses appels de lecture, qu’ils viennent d’un disque, d’un cache ou d’un terminal. Issu de /proc/PID/io ; une croix là où il n’est pas permis de le lire.</translation>
    </message>
    <message id="RGID">
        <source></source>
        <translation>ID de groupe réel (RGID)</translation>
    </message>
    <message id="RGID_tip">
        <source></source>
        <translation>Le numéro du groupe auquel appartient le processus, quels que soient ses droits actuels.</translation>
    </message>
    <message id="RGROUP">
        <source></source>
        <translation>Groupe réel (RGROUP)</translation>
    </message>
    <message id="RGROUP_tip">
        <source></source>
        <translation>Le nom du groupe auquel appartient le processus, quels que soient ses droits actuels.</translation>
    </message>
    <message id="ROPS">
        <source></source>
        <translation>Appels de lecture (ROPS)</translation>
    </message>
    <message id="ROPS_tip">
        <source></source>
        <translation>Combien d’appels système de lecture le processus a faits. Issu de /proc/PID/io ; une croix là où il n’est pas permis de le lire.</translation>
    </message>
    <message id="RSS">
        <source></source>
        <translation>Taille résidente (RSS)</translation>
    </message>
    <message id="RSS_tip">
        <source></source>
        <translation>La part de la mémoire du processus qui se trouve en mémoire vive, pages partagées comprises.</translation>
    </message>
    <message id="RSZ">
        <source></source>
        <translation>Taille résidente (RSZ)</translation>
    </message>
    <message id="RSZ_tip">
        <source></source>
        <translation>La part de la mémoire du processus qui se trouve en mémoire vive, pages partagées comprises.</translation>
    </message>
    <message id="RTPRIO">
        <source></source>
        <translation>Priorité temps réel (RTPRIO)</translation>
    </message>
    <message id="RTPRIO_tip">
        <source></source>
        <translation>La priorité parmi les processus en temps réel, de 1 à 99, les plus hautes passant en premier ; un tiret pour tous les autres processus.</translation>
    </message>
    <message id="RUID">
        <source></source>
        <translation>ID d’utilisateur réel (RUID)</translation>
    </message>
    <message id="RUID_tip">
        <source></source>
        <translation>Le numéro de l’utilisateur qui a lancé le processus, quels que soient ses droits actuels.</translation>
    </message>
    <message id="RUSER">
        <source></source>
        <translation>Utilisateur réel (RUSER)</translation>
    </message>
    <message id="RUSER_tip">
        <source></source>
        <translation>Le nom de l’utilisateur qui a lancé le processus, quels que soient ses droits actuels.</translation>
    </message>
    <message id="S">
        <source></source>
        <translation>État (S)</translation>
    </message>
    <message id="S_tip">
        <source></source>
        <translation>Ce que fait le processus : R s’exécute ou est prêt, S endormi, D attend un périphérique, I thread inactif du noyau, T arrêté, t arrêté par un débogueur, Z terminé mais pas récupéré.</translation>
    </message>
    <message id="SCH">
        <source></source>
        <translation>Politique d’ordonnancement (SCH)</translation>
    </message>
    <message id="SCH_tip">
        <source></source>
        <translation>La politique d’ordonnancement, en nombre : 0 ordinaire, 1 FIFO, 2 tourniquet, 3 batch, 5 idle, 6 deadline.</translation>
    </message>
    <message id="SEAT">
        <source></source>
        <translation>Poste (SEAT)</translation>
    </message>
    <message id="SEAT_tip">
        <source></source>
        <translation>Le poste (un écran, un clavier et une souris qui vont ensemble) de la session à laquelle appartient le processus. Fourni par systemd ; un tiret s’il n’y en a pas.</translation>
    </message>
    <message id="SESSION">
        <source></source>
        <translation>Session de connexion (SESSION)</translation>
    </message>
    <message id="SESSION_tip">
        <source></source>
        <translation>L’identifiant de la session de connexion à laquelle appartient le processus. Fourni par systemd ; un tiret s’il n’y en a pas.</translation>
    </message>
    <message id="SGID">
        <source></source>
        <translation>ID de groupe sauvegardé (SGID)</translation>
    </message>
    <message id="SGID_tip">
        <source></source>
        <translation>Le numéro du groupe dont le processus peut reprendre les droits.</translation>
    </message>
    <message id="SGROUP">
        <source></source>
        <translation>Groupe sauvegardé (SGROUP)</translation>
    </message>
    <message id="SGROUP_tip">
        <source></source>
        <translation>Le nom du groupe dont le processus peut reprendre les droits.</translation>
    </message>
    <message id="SID">
        <source></source>
        <translation>ID de session (SID)</translation>
    </message>
    <message id="SID_tip">
        <source></source>
        <translation>Le numéro de la session, qui est l’ID de processus de son meneur.</translation>
    </message>
    <message id="SIGNAL">
        <source></source>
        <translation>Signaux en attente (SIGNAL)</translation>
    </message>
    <message id="SIGNAL_tip">
        <source></source>
        <translation>Les signaux qui attendent d’être remis au processus, en masque hexadécimal. Identique à PENDING.</translation>
    </message>
    <message id="SIZE">
        <source></source>
        <translation>Taille en échange (SIZE)</translation>
    </message>
    <message id="SIZE_tip">
        <source></source>
        <translation>Une estimation grossière de l’espace d’échange qu’il faudrait si toute la mémoire modifiable du processus y était transférée.</translation>
    </message>
    <message id="SLICE">
        <source></source>
        <translation>Tranche (SLICE)</translation>
    </message>
    <message id="SLICE_tip">
        <source></source>
        <translation>La tranche (slice), une branche de l’arbre des groupes de contrôle, à laquelle appartient le processus. Fourni par systemd ; un tiret s’il n’y en a pas.</translation>
    </message>
    <message id="SPID">
        <source></source>
        <translation>ID de thread (SPID)</translation>
    </message>
    <message id="SPID_tip">
        <source></source>
        <translation>Le numéro du thread principal du processus, égal à l’ID du processus. Identique à LWP.</translation>
    </message>
    <message id="STACKP">
        <source></source>
        <translation>Adresse de la pile (STACKP)</translation>
    </message>
    <message id="STACKP_tip">
        <source></source>
        <translation>L’adresse du bas de la pile, en hexadécimal ; nulle là où il n’est pas permis de la lire.</translation>
    </message>
    <message id="START">
        <source></source>
        <translation>Heure de début (START)</translation>
    </message>
    <message id="START_tip">
        <source></source>
        <translation>Quand le processus a été démarré : l’heure si c’est dans les dernières 24 heures, sinon la date.</translation>
    </message>
    <message id="STARTED">
        <source></source>
        <translation>Heure de début (STARTED)</translation>
    </message>
    <message id="STARTED_tip">
        <source></source>
        <translation>Quand le processus a été démarré : l’heure avec les secondes si c’est dans les dernières 24 heures, sinon la date.</translation>
    </message>
    <message id="STAT">
        <source></source>
        <translation>État (STAT)</translation>
    </message>
    <message id="STAT_tip">
        <source></source>
        <translation>La lettre de l’état suivie d’autres : &lt; haute priorité, N basse priorité, L pages verrouillées en mémoire, s meneur de session, l plusieurs threads, + au premier plan de son terminal.</translation>
    </message>
    <message id="STIME">
        <source></source>
        <translation>Heure de début (STIME)</translation>
    </message>
    <message id="STIME_tip">
        <source></source>
        <translation>Quand le processus a été démarré : l’heure pour aujourd’hui, la date pour les jours précédents, l’année pour les années précédentes.</translation>
    </message>
    <message id="SUID">
        <source></source>
        <translation>ID d’utilisateur sauvegardé (SUID)</translation>
    </message>
    <message id="SUID_tip">
        <source></source>
        <translation>Le numéro de l’utilisateur dont le processus peut reprendre les droits.</translation>
    </message>
    <message id="SUPGID">
        <source></source>
        <translation>ID des groupes secondaires (SUPGID)</translation>
    </message>
    <message id="SUPGID_tip">
        <source></source>
        <translation>Les numéros des autres groupes dont le processus a les droits ; un tiret s’il n’y en a pas.</translation>
    </message>
    <message id="SUPGRP">
        <source></source>
        <translation>Groupes secondaires (SUPGRP)</translation>
    </message>
    <message id="SUPGRP_tip">
        <source></source>
        <translation>Les noms des autres groupes dont le processus a les droits ; un tiret s’il n’y en a pas.</translation>
    </message>
    <message id="SUSER">
        <source></source>
        <translation>Utilisateur sauvegardé (SUSER)</translation>
    </message>
    <message id="SUSER_tip">
        <source></source>
        <translation>Le nom de l’utilisateur dont le processus peut reprendre les droits.</translation>
    </message>
    <message id="SVGID">
        <source></source>
        <translation>ID de groupe sauvegardé (SVGID)</translation>
    </message>
    <message id="SVGID_tip">
        <source></source>
        <translation>Le numéro du groupe dont le processus peut reprendre les droits. Identique à SGID.</translation>
    </message>
    <message id="SVGROUP">
        <source></source>
        <translation>Groupe sauvegardé (SVGROUP)</translation>
    </message>
    <message id="SVGROUP_tip">
        <source></source>
        <translation>Le nom du groupe dont le processus peut reprendre les droits. Identique à SGROUP.</translation>
    </message>
    <message id="SVUID">
        <source></source>
        <translation>ID d’utilisateur sauvegardé (SVUID)</translation>
    </message>
    <message id="SVUID_tip">
        <source></source>
        <translation>Le numéro de l’utilisateur dont le processus peut reprendre les droits. Identique à SUID.</translation>
    </message>
    <message id="SVUSER">
        <source></source>
        <translation>Utilisateur sauvegardé (SVUSER)</translation>
    </message>
    <message id="SVUSER_tip">
        <source></source>
        <translation>Le nom de l’utilisateur dont le processus peut reprendre les droits. Identique à SUSER.</translation>
    </message>
    <message id="SZ">
        <source></source>
        <translation>Taille en pages (SZ)</translation>
    </message>
    <message id="SZ_tip">
        <source></source>
        <translation>La taille de toute la mémoire projetée par le processus, telle que ps la compte en pages de la machine. Identique à VSZ, aux fractions de page près.</translation>
    </message>
    <message id="TGID">
        <source></source>
        <translation>ID de groupe de threads (TGID)</translation>
    </message>
    <message id="TGID_tip">
        <source></source>
        <translation>Le numéro que partagent tous les threads du processus, qui est l’ID du processus.</translation>
    </message>
    <message id="THCNT">
        <source></source>
        <translation>Threads (THCNT)</translation>
    </message>
    <message id="THCNT_tip">
        <source></source>
        <translation>Combien de threads a le processus. Identique à NLWP.</translation>
    </message>
    <message id="TID">
        <source></source>
        <translation>ID de thread (TID)</translation>
    </message>
    <message id="TID_tip">
        <source></source>
        <translation>Le numéro du thread principal du processus, égal à l’ID du processus. Identique à LWP.</translation>
    </message>
    <message id="TIME">
        <source></source>
        <translation>Temps CPU (TIME)</translation>
    </message>
    <message id="TIME_tip">
        <source></source>
        <translation>Temps CPU consommé depuis le démarrage du processus, utilisateur et système ensemble, en jours, heures, minutes et secondes.</translation>
    </message>
    <message id="TIMENS">
        <source></source>
        <translation>Espace de noms d’horloge (TIMENS)</translation>
    </message>
    <message id="TIMENS_tip">
        <source></source>
        <translation>Le numéro d’inode de l’espace de noms d’horloge dans lequel vit le processus. Les processus de même numéro le partagent.</translation>
    </message>
    <message id="TPGID">
        <source></source>
        <translation>ID du groupe au premier plan (TPGID)</translation>
    </message>
    <message id="TPGID_tip">
        <source></source>
        <translation>Le groupe de processus au premier plan du terminal auquel appartient le processus ; -1 sans terminal.</translation>
    </message>
    <message id="TRS">
        <source></source>
        <translation>Taille du code (TRS)</translation>
    </message>
    <message id="TRS_tip">
        <source></source>
        <translation>La taille du code exécutable. Malgré le nom, tout n’est pas forcément en mémoire vive.</translation>
    </message>
    <message id="TRSS">
        <source></source>
        <translation>Taille du code (TRSS)</translation>
    </message>
    <message id="TRSS_tip">
        <source></source>
        <translation>La taille du code exécutable. Identique à TRS.</translation>
    </message>
    <message id="TSIG">
        <source></source>
        <translation>Signaux en attente du thread (TSIG)</translation>
    </message>
    <message id="TSIG_tip">
        <source></source>
        <translation>Les signaux qui attendent d’être remis au seul thread principal du processus, en masque hexadécimal.</translation>
    </message>
    <message id="TSIZ">
        <source></source>
        <translation>Taille du code (TSIZ)</translation>
    </message>
    <message id="TSIZ_tip">
        <source></source>
        <translation>La taille du code exécutable.</translation>
    </message>
    <message id="TT">
        <source></source>
        <translation>Terminal (TT)</translation>
    </message>
    <message id="TT_tip">
        <source></source>
        <translation>Le terminal auquel appartient le processus ; un point d’interrogation s’il n’y en a pas.</translation>
    </message>
    <message id="TTY">
        <source></source>
        <translation>Terminal (TTY)</translation>
    </message>
    <message id="TTY_tip">
        <source></source>
        <translation>Le terminal auquel appartient le processus ; un point d’interrogation s’il n’y en a pas. Identique à TT.</translation>
    </message>
    <message id="TTY4">
        <source></source>
        <translation>Terminal abrégé (TTY4)</translation>
    </message>
    <message id="TTY4_tip">
        <source></source>
        <translation>Le terminal auquel appartient le processus, par les dernières lettres de son nom ; un point d’interrogation s’il n’y en a pas.</translation>
    </message>
    <message id="UCMD">
        <source></source>
        <translation>Nom de la commande (UCMD)</translation>
    </message>
    <message id="UCMD_tip">
        <source></source>
        <translation>Le nom de la commande sans ses arguments. Identique à COMM.</translation>
    </message>
    <message id="UID">
        <source></source>
        <translation>ID d’utilisateur (UID)</translation>
    </message>
    <message id="UID_tip">
        <source></source>
        <translation>Le numéro de l’utilisateur dont le processus a les droits.</translation>
    </message>
    <message id="UNIT">
        <source></source>
        <translation>Unité système (UNIT)</translation>
    </message>
    <message id="UNIT_tip">
        <source></source>
        <translation>L’unité (un service, un scope) à laquelle appartient le processus. Fourni par systemd ; un tiret s’il n’y en a pas.</translation>
    </message>
    <message id="USER">
        <source></source>
        <translation>Utilisateur (USER)</translation>
    </message>
    <message id="USER_tip">
        <source></source>
        <translation>Le nom de l’utilisateur dont le processus a les droits. Identique à EUSER.</translation>
    </message>
    <message id="USERNS">
        <source></source>
        <translation>Espace de noms d’utilisateurs (USERNS)</translation>
    </message>
    <message id="USERNS_tip">
        <source></source>
        <translation>Le numéro d’inode de l’espace de noms d’utilisateurs dans lequel vit le processus. Les processus de même numéro le partagent.</translation>
    </message>
    <message id="USS">
        <source></source>
        <translation>Mémoire propre (USS)</translation>
    </message>
    <message id="USS_tip">
        <source></source>
        <translation>Mémoire vive que le processus ne partage avec aucun autre : ce qui serait libre s’il se terminait. Longue à déterminer ; une croix là où il n’est pas permis de la lire.</translation>
    </message>
    <message id="UTSNS">
        <source></source>
        <translation>Espace de noms d’hôte (UTSNS)</translation>
    </message>
    <message id="UTSNS_tip">
        <source></source>
        <translation>Le numéro d’inode de l’espace de noms de nom d’hôte dans lequel vit le processus. Les processus de même numéro le partagent.</translation>
    </message>
    <message id="UUNIT">
        <source></source>
        <translation>Unité utilisateur (UUNIT)</translation>
    </message>
    <message id="UUNIT_tip">
        <source></source>
        <translation>L’unité du gestionnaire de services de l’utilisateur à laquelle appartient le processus. Fourni par systemd ; un tiret s’il n’y en a pas.</translation>
    </message>
    <message id="VSZ">
        <source></source>
        <translation>Taille virtuelle (VSZ)</translation>
    </message>
    <message id="VSZ_tip">
        <source></source>
        <translation>La taille de toute la mémoire projetée par le processus, utilisée ou non.</translation>
    </message>
    <message id="WBYTES">
        <source></source>
        <translation>Octets écrits au stockage (WBYTES)</translation>
    </message>
    <message id="WBYTES_tip">
        <source></source>
        <translation>Octets dont le processus a causé l’envoi aux périphériques de stockage. Issu de /proc/PID/io ; une croix là où il n’est pas permis de le lire.</translation>
    </message>
    <message id="WCBYTES">
        <source></source>
        <translation>Octets écrits annulés (WCBYTES)</translation>
    </message>
    <message id="WCBYTES_tip">
        <source></source>
        <translation>Octets que le processus a écrits dans des fichiers supprimés ou raccourcis avant d’atteindre le périphérique de stockage. Issu de /proc/PID/io ; une croix là où il n’est pas permis de le lire.</translation>
    </message>
    <message id="WCHAN">
        <source></source>
        <translation>En attente dans (WCHAN)</translation>
    </message>
    <message id="WCHAN_tip">
        <source></source>
        <translation>La fonction du noyau dans laquelle dort le processus ; un tiret quand il s’exécute ou s’il n’est pas permis de la lire.</translation>
    </message>
    <message id="WCHARS">
        <source></source>
        <translation>Octets écrits (WCHARS)</translation>
    </message>
    <message id="WCHARS_tip">
        <source></source>
        <translation>Octets que le processus a transmis à ses appels d’écriture, qu’ils aillent à un disque, un cache ou un terminal. Issu de /proc/PID/io ; une croix là où il n’est pas permis de le lire.</translation>
    </message>
    <message id="WOPS">
        <source></source>
        <translation>Appels d’écriture (WOPS)</translation>
    </message>
    <message id="WOPS_tip">
        <source></source>
        <translation>Combien d’appels système d’écriture le processus a faits. Issu de /proc/PID/io ; une croix là où il n’est pas permis de le lire.</translation>
    </message>
    <message id="ZONE">
        <source></source>
        <translation>Contexte de sécurité (ZONE)</translation>
    </message>
    <message id="ZONE_tip">
        <source></source>
        <translation>L’étiquette que le contrôle d’accès du noyau a donnée au processus ; un tiret s’il n’y en a pas. Identique à CONTEXT.</translation>
    </message>
    <message id="menu_application">
        <source></source>
        <translation>&amp;Lurkwell</translation>
    </message>
    <message id="menu_file">
        <source></source>
        <translation>&amp;Fichier</translation>
    </message>
    <message id="menu_edit">
        <source></source>
        <translation>É&amp;dition</translation>
    </message>
    <message id="menu_view">
        <source></source>
        <translation>&amp;Affichage</translation>
    </message>
    <message id="menu_columns">
        <source></source>
        <translation>&amp;Colonnes</translation>
    </message>
    <message id="menu_process">
        <source></source>
        <translation>&amp;Processus</translation>
    </message>
    <message id="menu_window">
        <source></source>
        <translation>Fe&amp;nêtre</translation>
    </message>
    <message id="menu_help">
        <source></source>
        <translation>Aid&amp;e</translation>
    </message>
    <message id="menu_application_about">
        <source></source>
        <translation>À &amp;propos de Lurkwell</translation>
    </message>
    <message id="menu_application_preferences">
        <source></source>
        <translation>Préfé&amp;rences…</translation>
    </message>
    <message id="menu_application_quit">
        <source></source>
        <translation>&amp;Quitter Lurkwell</translation>
    </message>
    <message id="menu_file_new_cpu_history">
        <source></source>
        <translation>Nouvelle fenêtre d’&amp;historique CPU</translation>
    </message>
    <message id="menu_file_new_logging">
        <source></source>
        <translation>Nouvelle fenêtre de &amp;journal</translation>
    </message>
    <message id="menu_file_details">
        <source></source>
        <translation>Afficher les &amp;détails</translation>
    </message>
    <message id="menu_file_record">
        <source></source>
        <translation>&amp;Enregistrer l’activité…</translation>
    </message>
    <message id="menu_file_open_recording">
        <source></source>
        <translation>&amp;Ouvrir un enregistrement…</translation>
    </message>
    <message id="menu_file_close_window">
        <source></source>
        <translation>&amp;Fermer la fenêtre</translation>
    </message>
    <message id="menu_edit_copy">
        <source></source>
        <translation>&amp;Copier</translation>
    </message>
    <message id="menu_edit_select_all">
        <source></source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message id="menu_edit_select_children">
        <source></source>
        <translation>Sélectionner les &amp;enfants</translation>
    </message>
    <message id="menu_edit_filter">
        <source></source>
        <translation>&amp;Filtrer…</translation>
    </message>
    <message id="menu_view_update_now">
        <source></source>
        <translation>&amp;Actualiser</translation>
    </message>
    <message id="menu_view_pause">
        <source></source>
        <translation>&amp;Pause</translation>
    </message>
    <message id="menu_view_follow">
        <source></source>
        <translation>&amp;Maintenir la sélection en place</translation>
    </message>
    <message id="menu_view_sort_by">
        <source></source>
        <translation>&amp;Trier par</translation>
    </message>
    <message id="menu_view_column_left">
        <source></source>
        <translation>Colonne de tri vers la &amp;gauche</translation>
    </message>
    <message id="menu_view_column_right">
        <source></source>
        <translation>Colonne de tri vers la &amp;droite</translation>
    </message>
    <message id="menu_view_column_wider">
        <source></source>
        <translation>É&amp;largir la colonne de tri</translation>
    </message>
    <message id="menu_view_column_narrower">
        <source></source>
        <translation>&amp;Rétrécir la colonne de tri</translation>
    </message>
    <message id="menu_view_column_fit">
        <source></source>
        <translation>A&amp;juster la colonne de tri au contenu</translation>
    </message>
    <message id="menu_view_shape_list">
        <source></source>
        <translation>L&amp;iste</translation>
    </message>
    <message id="menu_view_shape_tree">
        <source></source>
        <translation>Ar&amp;borescence</translation>
    </message>
    <message id="menu_view_shape_applications">
        <source></source>
        <translation>Par applicatio&amp;n</translation>
    </message>
    <message id="menu_view_unfold_all">
        <source></source>
        <translation>To&amp;ut déplier</translation>
    </message>
    <message id="menu_view_fold_all">
        <source></source>
        <translation>Tout r&amp;eplier</translation>
    </message>
    <message id="menu_view_scope">
        <source></source>
        <translation>Affic&amp;her</translation>
    </message>
    <message id="menu_scope_all">
        <source></source>
        <translation>&amp;Tous les processus</translation>
    </message>
    <message id="menu_scope_mine">
        <source></source>
        <translation>&amp;Mes processus</translation>
    </message>
    <message id="menu_scope_others">
        <source></source>
        <translation>Processus des a&amp;utres utilisateurs</translation>
    </message>
    <message id="menu_scope_applications">
        <source></source>
        <translation>&amp;Applications</translation>
    </message>
    <message id="menu_scope_without_kernel">
        <source></source>
        <translation>&amp;Sans les threads du noyau</translation>
    </message>
    <message id="menu_scope_busy">
        <source></source>
        <translation>Processus a&amp;ctifs</translation>
    </message>
    <message id="menu_columns_set">
        <source></source>
        <translation>&amp;Jeu de colonnes</translation>
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
        <translation>&amp;Mémoire</translation>
    </message>
    <message id="menu_set_disk_network">
        <source></source>
        <translation>&amp;Disque et réseau</translation>
    </message>
    <message id="menu_set_commands">
        <source></source>
        <translation>C&amp;ommandes</translation>
    </message>
    <message id="menu_set_containers">
        <source></source>
        <translation>Con&amp;teneurs</translation>
    </message>
    <message id="menu_set_security">
        <source></source>
        <translation>Sécu&amp;rité</translation>
    </message>
    <message id="menu_set_save_as">
        <source></source>
        <translation>Enre&amp;gistrer sous…</translation>
    </message>
    <message id="menu_set_rename">
        <source></source>
        <translation>Re&amp;nommer…</translation>
    </message>
    <message id="menu_set_delete">
        <source></source>
        <translation>S&amp;upprimer…</translation>
    </message>
    <message id="menu_set_restore">
        <source></source>
        <translation>Réta&amp;blir…</translation>
    </message>
    <message id="menu_view_show_toolbar">
        <source></source>
        <translation>Afficher la barre d’&amp;outils</translation>
    </message>
    <message id="menu_view_customise_toolbar">
        <source></source>
        <translation>Per&amp;sonnaliser la barre d’outils…</translation>
    </message>
    <message id="menu_columns_icon">
        <source></source>
        <translation>&amp;Icône</translation>
    </message>
    <message id="menu_columns_indicator">
        <source></source>
        <translation>In&amp;dicateur</translation>
    </message>
    <message id="menu_columns_name">
        <source></source>
        <translation>&amp;Nom</translation>
    </message>
    <message id="menu_columns_cpu_usage">
        <source></source>
        <translation>Utilisation &amp;CPU</translation>
    </message>
    <message id="menu_columns_memory">
        <source></source>
        <translation>&amp;Mémoire</translation>
    </message>
    <message id="menu_columns_built_in">
        <source></source>
        <translation>P&amp;ropriétés des processus</translation>
    </message>
    <message id="menu_columns_ps">
        <source></source>
        <translation>Colonnes de &amp;ps</translation>
    </message>
    <message id="column_group_identity">
        <source></source>
        <translation>Identité</translation>
    </message>
    <message id="column_group_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="column_group_memory">
        <source></source>
        <translation>Mémoire</translation>
    </message>
    <message id="column_group_network">
        <source></source>
        <translation>Réseau</translation>
    </message>
    <message id="column_group_gpu">
        <source></source>
        <translation>GPU</translation>
    </message>
    <message id="column_group_security">
        <source></source>
        <translation>Sécurité</translation>
    </message>
    <message id="column_group_disk">
        <source></source>
        <translation>Disque</translation>
    </message>
    <message id="column_group_users">
        <source></source>
        <translation>Utilisateurs et groupes</translation>
    </message>
    <message id="column_group_terminal">
        <source></source>
        <translation>Terminal et session</translation>
    </message>
    <message id="column_group_signals">
        <source></source>
        <translation>Signaux</translation>
    </message>
    <message id="column_group_belonging">
        <source></source>
        <translation>Appartenance</translation>
    </message>
    <message id="column_group_other">
        <source></source>
        <translation>Autres</translation>
    </message>
    <message id="column_group_desktop">
        <source></source>
        <translation>Application de bureau</translation>
    </message>
    <message id="column_group_repeated">
        <source></source>
        <translation>Les mêmes sous d’autres noms</translation>
    </message>
    <message id="column_group_classic">
        <source></source>
        <translation>Environnement Classic</translation>
    </message>
    <message id="column_group_not_counted">
        <source></source>
        <translation>Non compté sur ce système</translation>
    </message>
    <message id="column_filter">
        <source></source>
        <translation>Chercher une colonne</translation>
    </message>
    <message id="column_filter_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n de plus : tapez d’autres lettres</numerusform>
            <numerusform>%n de plus : tapez d’autres lettres</numerusform>
        </translation>
    </message>
    <message id="column_filter_nothing">
        <source></source>
        <translation>Aucune colonne n’a cela dans son nom ou sa description</translation>
    </message>
    <message id="column_hide">
        <source></source>
        <translation>&amp;Masquer « %1 »</translation>
    </message>
    <message id="column_of_ps_tip">
        <source></source>
        <translation>Une colonne du ps de ce système, affichée par son mot clé %1.</translation>
    </message>
    <message id="column_keywords_tip">
        <source></source>
        <translation>Mot clé de ps : %1</translation>
    </message>
    <message id="menu_process_quit_or_kill">
        <source></source>
        <translation>&amp;Quitter ou tuer…</translation>
    </message>
    <message id="menu_process_high_priority">
        <source></source>
        <translation>Priorité &amp;haute</translation>
    </message>
    <message id="menu_process_normal_priority">
        <source></source>
        <translation>Priorité &amp;normale</translation>
    </message>
    <message id="menu_process_low_priority">
        <source></source>
        <translation>Priorité &amp;basse</translation>
    </message>
    <message id="menu_process_halt">
        <source></source>
        <translation>&amp;Suspendre…</translation>
    </message>
    <message id="menu_process_continue">
        <source></source>
        <translation>&amp;Reprendre</translation>
    </message>
    <message id="menu_process_hide">
        <source></source>
        <translation>&amp;Masquer</translation>
    </message>
    <message id="menu_process_bring_to_front">
        <source></source>
        <translation>Mettre au &amp;premier plan</translation>
    </message>
    <message id="menu_process_reveal">
        <source></source>
        <translation>&amp;Afficher dans le gestionnaire de fichiers</translation>
    </message>
    <message id="menu_process_by_id">
        <source></source>
        <translation>Chercher un processus par &amp;ID…</translation>
    </message>
    <message id="menu_window_show_main">
        <source></source>
        <translation>&amp;Processus</translation>
    </message>
    <message id="menu_window_remembered">
        <source></source>
        <translation>Fenêtres &amp;mémorisées…</translation>
    </message>
    <message id="menu_window_close_all">
        <source></source>
        <translation>&amp;Fermer tous les historiques, journaux et détails</translation>
    </message>
    <message id="menu_window_show_animated_view">
        <source></source>
        <translation>Vue &amp;animée</translation>
    </message>
    <message id="menu_view_overlay">
        <source></source>
        <translation>&amp;Vue animée par-dessus l’écran</translation>
    </message>
    <message id="quintessential_window_title">
        <source></source>
        <translation>Vue animée</translation>
    </message>
    <message id="quintessential_spoken">
        <source></source>
        <translation>Processus sous forme d’icônes, les plus actifs en plus grand : %1. Le tableau des processus donne leurs valeurs.</translation>
    </message>
    <message id="quintessential_menu_toggle">
        <source></source>
        <translation>Par-dessus tout l’&amp;écran</translation>
    </message>
    <message id="quintessential_menu_processes">
        <source></source>
        <translation>Afficher les &amp;processus</translation>
    </message>
    <message id="quintessential_menu_close">
        <source></source>
        <translation>&amp;Fermer</translation>
    </message>
    <message id="quintessential_cannot_draw">
        <source></source>
        <translation>La vue animée ne peut pas être dessinée : cet affichage n’a ni OpenGL 3.3 ni OpenGL ES 3.0, ou il a cessé de fonctionner. Tout le reste de Lurkwell continue.</translation>
    </message>
    <message id="overlay_needs_compositor">
        <source></source>
        <translation>La vue animée ne peut pas être translucide ici.</translation>
    </message>
    <message id="overlay_needs_compositor_text">
        <source></source>
        <translation>Rien ne mélange les fenêtres de ce bureau (aucun compositeur n’est en marche). La vue remplira plutôt tout l’écran ; appuyez sur Échap ou %1 pour la quitter.</translation>
    </message>
    <message id="overlay_needs_layer">
        <source></source>
        <translation>La vue animée ne peut pas être ici par-dessus d’autres fenêtres.</translation>
    </message>
    <message id="overlay_needs_layer_text">
        <source></source>
        <translation>Ce bureau ne laisse aucun programme garder une fenêtre au-dessus de celles des autres. La vue remplira plutôt tout l’écran ; appuyez sur Échap ou %1 pour la quitter.</translation>
    </message>
    <message id="menu_help_help">
        <source></source>
        <translation>Ai&amp;de de Lurkwell</translation>
    </message>
    <message id="main_window_title">
        <source></source>
        <translation>Processus</translation>
    </message>
    <message id="main_window_title_paused">
        <source></source>
        <translation>Processus (en pause)</translation>
    </message>
    <message id="main_window_filter_placeholder">
        <source></source>
        <translation>Filtrer les processus</translation>
    </message>
    <message id="main_window_filter_tip">
        <source></source>
        <translation>N’affiche que certains processus, par exemple :&lt;br&gt;&lt;b&gt;ssh&lt;/b&gt; – avec cela dans leur ID ou un texte affiché&lt;br&gt;&lt;b&gt;name:post&lt;/b&gt;, &lt;b&gt;user:root,mail&lt;/b&gt;, &lt;b&gt;name:/^k.*d$/&lt;/b&gt; – avec cela dans une propriété précise&lt;br&gt;&lt;b&gt;mem&amp;gt;500M&lt;/b&gt;, &lt;b&gt;nice&amp;lt;0&lt;/b&gt;, &lt;b&gt;time&amp;gt;=1h&lt;/b&gt; – avec plus ou moins&lt;br&gt;&lt;b&gt;port:443&lt;/b&gt;, &lt;b&gt;file:/var/log&lt;/b&gt; – avec un socket ou un fichier ouvert&lt;br&gt;&lt;b&gt;-sleep&lt;/b&gt; – sans ; &lt;b&gt;a b&lt;/b&gt; – les deux ; &lt;b&gt;a | b&lt;/b&gt; – l’un d’eux</translation>
    </message>
    <message id="main_window_filter_hides_all">
        <source></source>
        <translation>Aucun processus ne correspond au filtre. Échap les affiche tous de nouveau.</translation>
    </message>
    <message id="field_clear">
        <source></source>
        <translation>Vider le champ</translation>
    </message>
    <message id="filter_last">
        <source></source>
        <translation>Derniers filtres utilisés</translation>
    </message>
    <message id="filter_none_yet">
        <source></source>
        <translation>Aucun filtre n’a encore été utilisé</translation>
    </message>
    <message id="setting_title_ALERT_RULES">
        <source></source>
        <translation>Alertes : règles</translation>
    </message>
    <message id="setting_ALERT_RULES">
        <source></source>
        <translation>Les règles d’alerte, chacune avec sa commande et son état, activé ou non. Elles se définissent dans la fenêtre des alertes.</translation>
    </message>
    <message id="setting_title_ALERT_NOTIFICATIONS">
        <source></source>
        <translation>Alertes : notifications</translation>
    </message>
    <message id="setting_ALERT_NOTIFICATIONS">
        <source></source>
        <translation>Afficher une notification sur le bureau quand une alerte commence. La fenêtre des alertes et le journal l’ont dans tous les cas.</translation>
    </message>
    <message id="setting_title_ALERTS_WINDOW_FRAME">
        <source></source>
        <translation>Alertes : position et taille de la fenêtre</translation>
    </message>
    <message id="setting_ALERTS_WINDOW_FRAME">
        <source></source>
        <translation>Position et taille de la fenêtre des alertes.</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_ALERTS_WINDOW">
        <source></source>
        <translation>Alertes : la fenêtre était ouverte</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_ALERTS_WINDOW">
        <source></source>
        <translation>Ouvrir la fenêtre des alertes au démarrage. Le programme note ici si elle était ouverte.</translation>
    </message>
    <message id="menu_process_alert">
        <source></source>
        <translation>Al&amp;erter quand…</translation>
    </message>
    <message id="menu_window_show_alerts">
        <source></source>
        <translation>A&amp;lertes</translation>
    </message>
    <message id="help_menu_window_show_alerts">
        <source></source>
        <translation>Les règles de ce dont vous voulez être averti, ce qu’elles disent maintenant et ce qui s’est passé</translation>
    </message>
    <message id="help_menu_process_alert">
        <source></source>
        <translation>être averti quand un processus comme celui sélectionné fait quelque chose</translation>
    </message>
    <message id="alerts_title">
        <source></source>
        <translation>Alertes</translation>
    </message>
    <message id="alerts_rules">
        <source></source>
        <translation>Règles</translation>
    </message>
    <message id="alerts_occurrences">
        <source></source>
        <translation>Ce qui s’est passé</translation>
    </message>
    <message id="alerts_none">
        <source></source>
        <translation>Il n’y a pas encore de règle. Une règle dit de quoi vous voulez être averti, par exemple « any cpu&gt;90% for 10m » ou « unit:backup.service absent for 1h ».</translation>
    </message>
    <message id="alerts_column_rule">
        <source></source>
        <translation>Règle</translation>
    </message>
    <message id="alerts_column_state">
        <source></source>
        <translation>Maintenant</translation>
    </message>
    <message id="alerts_column_last">
        <source></source>
        <translation>Dernière alerte</translation>
    </message>
    <message id="alerts_column_began">
        <source></source>
        <translation>Début</translation>
    </message>
    <message id="alerts_column_process">
        <source></source>
        <translation>Processus</translation>
    </message>
    <message id="alerts_column_lasted">
        <source></source>
        <translation>Durée</translation>
    </message>
    <message id="alerts_column_figures">
        <source></source>
        <translation>Valeurs</translation>
    </message>
    <message id="alerts_add">
        <source></source>
        <translation>Ajouter…</translation>
    </message>
    <message id="alerts_change">
        <source></source>
        <translation>Modifier…</translation>
    </message>
    <message id="alerts_remove">
        <source></source>
        <translation>Supprimer</translation>
    </message>
    <message id="alerts_add_title">
        <source></source>
        <translation>Nouvelle règle</translation>
    </message>
    <message id="alerts_change_title">
        <source></source>
        <translation>Modifier la règle</translation>
    </message>
    <message id="alerts_remove_question">
        <source></source>
        <translation>Supprimer cette règle ?</translation>
    </message>
    <message id="alerts_notifies">
        <source></source>
        <translation>M’avertir sur le bureau</translation>
    </message>
    <message id="alerts_show_process">
        <source></source>
        <translation>Afficher le processus</translation>
    </message>
    <message id="alerts_show_window">
        <source></source>
        <translation>Afficher les alertes</translation>
    </message>
    <message id="alerts_show_log">
        <source></source>
        <translation>Afficher le journal</translation>
    </message>
    <message id="alerts_never">
        <source></source>
        <translation>Jamais</translation>
    </message>
    <message id="alerts_state_off">
        <source></source>
        <translation>Désactivée</translation>
    </message>
    <message id="alerts_state_damaged">
        <source></source>
        <translation>Ce qui est enregistré est illisible ; modifiez la règle ou supprimez-la.</translation>
    </message>
    <message id="alerts_state_calm">
        <source></source>
        <translation>Non remplie</translation>
    </message>
    <message id="alerts_state_pending">
        <source></source>
        <translation>Remplie depuis %1 sur %2</translation>
    </message>
    <message id="alerts_state_firing">
        <source></source>
        <translation>Alerte</translation>
    </message>
    <message id="alerts_state_firing_for" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Alerte : %n processus</numerusform>
            <numerusform>Alerte : %n processus</numerusform>
        </translation>
    </message>
    <message id="alerts_not_allowed">
        <source></source>
        <translation>indéterminé pour %1 : non autorisé</translation>
    </message>
    <message id="alerts_not_counted">
        <source></source>
        <translation>indéterminé pour %1 : non compté sur cette machine</translation>
    </message>
    <message id="alerts_not_yet_known">
        <source></source>
        <translation>encore indéterminé pour %1</translation>
    </message>
    <message id="alerts_nothing_there">
        <source></source>
        <translation>Aucun processus de ce genre</translation>
    </message>
    <message id="alerts_together">
        <source></source>
        <translation>Tous ensemble</translation>
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
        <translation>%1 j</translation>
    </message>
    <message id="alerts_lasts">
        <source></source>
        <translation>%1 jusqu’ici</translation>
    </message>
    <message id="alerts_lasted">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="alerts_lasted_to_process_end">
        <source></source>
        <translation>%1 ; le processus s’est terminé</translation>
    </message>
    <message id="alerts_lasted_to_rule_change">
        <source></source>
        <translation>%1 ; la règle a été modifiée</translation>
    </message>
    <message id="alerts_no_condition">
        <source></source>
        <translation>Une règle a besoin d’une condition, comme « cpu&gt;90% ».</translation>
    </message>
    <message id="alerts_no_span">
        <source></source>
        <translation>« %1 » a besoin d’une durée, comme 30s, 5m ou 1h30m.</translation>
    </message>
    <message id="alerts_too_long">
        <source></source>
        <translation>« %1 » dépasse les 30 jours pendant lesquels une règle peut attendre.</translation>
    </message>
    <message id="alerts_twice">
        <source></source>
        <translation>« %1 » figure deux fois.</translation>
    </message>
    <message id="alerts_does_not_fit">
        <source></source>
        <translation>« %1 » ne signifie rien dans une règle de ce genre.</translation>
    </message>
    <message id="alerts_unknown_word">
        <source></source>
        <translation>« %1 » se trouve après la durée ; les conditions se placent avant « for » et « until ».</translation>
    </message>
    <message id="alerts_no_total">
        <source></source>
        <translation>Après « total » vient la comparaison d’une valeur qui peut être additionnée, comme « mem&gt;8G ».</translation>
    </message>
    <message id="alerts_other_total">
        <source></source>
        <translation>Après « until » vient une comparaison de la même valeur qu’après « total ».</translation>
    </message>
    <message id="alerts_text_too_large">
        <source></source>
        <translation>Une règle a au plus %1 caractères.</translation>
    </message>
    <message id="alerts_rule_label">
        <source></source>
        <translation>&amp;Règle :</translation>
    </message>
    <message id="alerts_rule_placeholder">
        <source></source>
        <translation>name:postgres mem&gt;4G for 5m until mem&lt;3G</translation>
    </message>
    <message id="alerts_trial_label">
        <source></source>
        <translation>Maintenant :</translation>
    </message>
    <message id="alerts_trial_wait">
        <source></source>
        <translation>Recherche…</translation>
    </message>
    <message id="alerts_trial_none">
        <source></source>
        <translation>Aucun processus ne la remplit.</translation>
    </message>
    <message id="alerts_trial_some">
        <source></source>
        <translation>Processus qui la remplissent : %1</translation>
    </message>
    <message id="alerts_trial_total" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 dans %n processus</numerusform>
            <numerusform>%1 dans %n processus</numerusform>
        </translation>
    </message>
    <message id="alerts_trial_met">
        <source></source>
        <translation>La condition est remplie.</translation>
    </message>
    <message id="alerts_trial_not_met">
        <source></source>
        <translation>La condition n’est pas remplie.</translation>
    </message>
    <message id="alerts_command_label">
        <source></source>
        <translation>&amp;Commande :</translation>
    </message>
    <message id="alerts_command_placeholder">
        <source></source>
        <translation>Rien n’est lancé</translation>
    </message>
    <message id="alerts_command_tip">
        <source></source>
        <translation>Un programme et ses arguments, à lancer quand une alerte commence. Il n’y a pas de shell : les mots sont séparés par des espaces, et des guillemets en gardent plusieurs ensemble. L’environnement contient LURKWELL_ALERT_RULE, _TIME, _PID, _NAME et _FIGURES.</translation>
    </message>
    <message id="alerts_command_no_end">
        <source></source>
        <translation>Dans la commande, un guillemet n’a pas son second.</translation>
    </message>
    <message id="alerts_command_long">
        <source></source>
        <translation>La commande est trop longue.</translation>
    </message>
    <message id="alerts_command_not_started">
        <source></source>
        <translation>la commande n’a pas pu être lancée : %1</translation>
    </message>
    <message id="alerts_command_status">
        <source></source>
        <translation>la commande s’est terminée avec le code %1</translation>
    </message>
    <message id="alerts_command_too_long">
        <source></source>
        <translation>la commande a pris plus de %1 secondes et a été interrompue</translation>
    </message>
    <message id="alerts_command_left_out">
        <source></source>
        <translation>trop de commandes à la fois ; certaines ont été omises</translation>
    </message>
    <message id="alerts_editor_note">
        <source></source>
        <translation>Une règle est une condition comme dans le filtre. « any » en tête en fait une seule alerte pour tous les processus, « total mem&gt;8G » additionne une valeur, « absent » attend qu’il n’y en ait aucun. « for 5m » dit combien de temps elle doit tenir, et « until cpu&lt;70% » ce qui y met fin ; sinon, l’alerte finit quand la condition n’est plus remplie depuis une demi-minute.</translation>
    </message>
    <message id="alerts_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n alerte de plus</numerusform>
            <numerusform>%n alertes de plus</numerusform>
        </translation>
    </message>
    <message id="alerts_more_latest">
        <source></source>
        <translation>La dernière : %1
%2</translation>
    </message>
    <message id="alerts_left_out" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n règle de plus est enregistrée que les %1 surveillées. Supprimez-en une pour qu’elle soit surveillée au prochain démarrage.</numerusform>
            <numerusform>%n règles de plus sont enregistrées que les %1 surveillées. Supprimez-en pour qu’elles soient surveillées au prochain démarrage.</numerusform>
        </translation>
    </message>
    <message id="alerts_too_many">
        <source></source>
        <translation>Il ne peut pas y avoir plus de règles.</translation>
    </message>
    <message id="alerts_log_problem">
        <source></source>
        <translation>Le journal des alertes ne peut pas être écrit : %1</translation>
    </message>
    <message id="alerts_log_not_shown">
        <source></source>
        <translation>Aucun gestionnaire de fichiers n’a pu afficher le journal, qui est %1</translation>
    </message>
    <message id="alerts_notification_problem">
        <source></source>
        <translation>Les notifications ne peuvent pas être affichées : %1</translation>
    </message>
    <message id="alerts_has_ended">
        <source></source>
        <translation>%1 s’est terminé.</translation>
    </message>
    <message id="alerts_not_in_table">
        <source></source>
        <translation>%1 est en marche, mais le filtre ou le périmètre du tableau l’exclut.</translation>
    </message>
    <message id="alerts_not_of_recordings">
        <source></source>
        <translation>Les alertes concernent les processus en cours. Dans un enregistrement, rien n’est surveillé.</translation>
    </message>
    <message id="filter_unknown_key">
        <source></source>
        <translation>Il n’y a pas de « %1 » à examiner ; entre guillemets, c’est un texte à chercher.</translation>
    </message>
    <message id="filter_unknown_key_near">
        <source></source>
        <translation>Il n’y a pas de « %1 » à examiner ; il y a %2.</translation>
    </message>
    <message id="filter_no_value">
        <source></source>
        <translation>Rien ne suit « %1 ».</translation>
    </message>
    <message id="filter_no_term">
        <source></source>
        <translation>Il manque quelque chose à côté de « %1 ».</translation>
    </message>
    <message id="filter_no_end">
        <source></source>
        <translation>Un guillemet n’a pas son second.</translation>
    </message>
    <message id="filter_text_is_not_compared">
        <source></source>
        <translation>« %1 » est un texte ; demandez %2.</translation>
    </message>
    <message id="filter_no_number">
        <source></source>
        <translation>« %1 » n’est pas un nombre comme %2.</translation>
    </message>
    <message id="filter_no_expression">
        <source></source>
        <translation>« %1 » n’est pas une expression régulière : %2.</translation>
    </message>
    <message id="main_window_status_some" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 processus sur %n : %2 ; %3 sélectionnés</numerusform>
            <numerusform>%1 processus sur %n : %2 ; sélection : %3</numerusform>
        </translation>
    </message>
    <message id="main_window_status_totals">
        <source></source>
        <translation>, CPU %1 %, mémoire %2</translation>
    </message>
    <message id="main_window_status_paused">
        <source></source>
        <translation>En pause : depuis, %1 terminés, %2 nouveaux.</translation>
    </message>
    <message id="main_window_status_follows">
        <source></source>
        <translation>La sélection reste en place.</translation>
    </message>
    <message id="main_window_scope_hides_all">
        <source></source>
        <translation>Aucun processus n’en fait partie : %1. Affichage › Afficher › Tous les processus les affiche tous de nouveau.</translation>
    </message>
    <message id="scope_mine">
        <source></source>
        <translation>les miens</translation>
    </message>
    <message id="scope_others">
        <source></source>
        <translation>d’autres utilisateurs</translation>
    </message>
    <message id="scope_applications">
        <source></source>
        <translation>applications</translation>
    </message>
    <message id="scope_without_kernel">
        <source></source>
        <translation>sans threads du noyau</translation>
    </message>
    <message id="scope_busy">
        <source></source>
        <translation>actifs</translation>
    </message>
    <message id="scope_filter">
        <source></source>
        <translation>filtre</translation>
    </message>
    <message id="filter_not_allowed">
        <source></source>
        <translation>non autorisé : %1</translation>
    </message>
    <message id="filter_not_allowed_tip">
        <source></source>
        <translation>Processus d’autres utilisateurs que seul un administrateur peut examiner</translation>
    </message>
    <message id="filter_looks" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Examen de %n processus…</numerusform>
            <numerusform>Examen de %n processus…</numerusform>
        </translation>
    </message>
    <message id="filter_hides_all_not_allowed">
        <source></source>
        <translation>Aucun processus qu’il est permis d’examiner ne correspond au filtre ; non autorisé : %1. Échap enlève le filtre.</translation>
    </message>
    <message id="switch_shape">
        <source></source>
        <translation>Forme du tableau</translation>
    </message>
    <message id="switch_scope">
        <source></source>
        <translation>Quels processus sont affichés</translation>
    </message>
    <message id="switch_columns">
        <source></source>
        <translation>Jeu de colonnes</translation>
    </message>
    <message id="set_save_title">
        <source></source>
        <translation>Enregistrer les colonnes comme jeu</translation>
    </message>
    <message id="set_rename_title">
        <source></source>
        <translation>Renommer le jeu de colonnes</translation>
    </message>
    <message id="set_title_label">
        <source></source>
        <translation>Nom du jeu :</translation>
    </message>
    <message id="set_title_agree">
        <source></source>
        <translation>Enregistrer</translation>
    </message>
    <message id="set_without_title">
        <source></source>
        <translation>Un jeu a besoin d’un nom.</translation>
    </message>
    <message id="set_title_too_long">
        <source></source>
        <translation>Le nom peut avoir au plus %1 caractères.</translation>
    </message>
    <message id="set_title_is_taken">
        <source></source>
        <translation>Il y a déjà un jeu « %1 ».</translation>
    </message>
    <message id="set_too_many">
        <source></source>
        <translation>Vous pouvez avoir au plus %1 jeux personnels. Supprimez-en un dont vous n’avez pas besoin.</translation>
    </message>
    <message id="set_question_title">
        <source></source>
        <translation>Jeu de colonnes</translation>
    </message>
    <message id="set_delete_question">
        <source></source>
        <translation>Supprimer le jeu « %1 » ? Ses colonnes, leurs largeurs et leur ordre ne pourront pas être récupérés.</translation>
    </message>
    <message id="set_delete_agree">
        <source></source>
        <translation>Supprimer</translation>
    </message>
    <message id="set_restore_question">
        <source></source>
        <translation>Rétablir le jeu « %1 » tel qu’il était à l’origine ? Ce que vous y avez modifié sera perdu.</translation>
    </message>
    <message id="set_restore_agree">
        <source></source>
        <translation>Rétablir</translation>
    </message>
    <message id="group_kernel_threads">
        <source></source>
        <translation>Threads du noyau</translation>
    </message>
    <message id="row_level">
        <source></source>
        <translation>, niveau %1</translation>
    </message>
    <message id="row_folded">
        <source></source>
        <translation>, replié, %1 au-dessous</translation>
    </message>
    <message id="row_ended">
        <source></source>
        <translation>, terminé</translation>
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
        <translation>trié, du plus petit au plus grand</translation>
    </message>
    <message id="sorted_descending">
        <source></source>
        <translation>trié, du plus grand au plus petit</translation>
    </message>
    <message id="row_unfolded">
        <source></source>
        <translation>, déplié, %1 au-dessous</translation>
    </message>
    <message id="total_tip" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Total de %n processus, pour autant qu’il soit connu</numerusform>
            <numerusform>Total de %n processus, pour autant qu’il soit connu</numerusform>
        </translation>
    </message>
    <message id="total_memory_tip">
        <source></source>
        <translation>Mémoire résidente : ce que les processus partagent compte par parts là où c’est connu (PSS), sinon pour chacun d’eux</translation>
    </message>
    <message id="main_window_status_counts" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n processus, %1 affiché, sélection : %2</numerusform>
            <numerusform>%n processus, %1 affichés, sélection : %2</numerusform>
        </translation>
    </message>
    <message id="main_window_helper_unprivileged">
        <source></source>
        <translation>Limité à vos processus. &lt;a href="rights"&gt;Plus de droits…&lt;/a&gt;</translation>
    </message>
    <message id="main_window_helper_absent">
        <source></source>
        <translation>Le programme auxiliaire n’est pas en marche : rien ne peut être fait aux processus. &lt;a href="rights"&gt;Pourquoi ?&lt;/a&gt;</translation>
    </message>
    <message id="main_window_rights_title">
        <source></source>
        <translation>Lurkwell n’agit que sur vos propres processus</translation>
    </message>
    <message id="main_window_rights_may_ask">
        <source></source>
        <translation>Un administrateur peut donner au programme auxiliaire de Lurkwell le droit d’envoyer des signaux à tous les processus et de changer leur priorité. C’est demandé une seule fois ; les démarrages suivants retrouvent ce droit.</translation>
    </message>
    <message id="main_window_rights_may_not_ask">
        <source></source>
        <translation>Un paquet installé fournit un programme auxiliaire auquel un administrateur peut donner le droit d’envoyer des signaux à tous les processus et de changer leur priorité.</translation>
    </message>
    <message id="main_window_rights_ask">
        <source></source>
        <translation>S’authentifier…</translation>
    </message>
    <message id="main_window_rights_close">
        <source></source>
        <translation>Fermer</translation>
    </message>
    <message id="help_title">
        <source></source>
        <translation>Aide de Lurkwell</translation>
    </message>
    <message id="help_no_key">
        <source></source>
        <translation>(aucune touche n’y est affectée)</translation>
    </message>
    <message id="help_menu_process_quit_or_kill">
        <source></source>
        <translation>quitter ou tuer les processus sélectionnés</translation>
    </message>
    <message id="help_menu_edit_filter">
        <source></source>
        <translation>n’afficher que les processus contenant un texte ; Échap les affiche tous</translation>
    </message>
    <message id="help_menu_process_by_id">
        <source></source>
        <translation>aller à un processus par son ID</translation>
    </message>
    <message id="help_menu_edit_copy">
        <source></source>
        <translation>copier les lignes sélectionnées</translation>
    </message>
    <message id="help_menu_file_new_cpu_history">
        <source></source>
        <translation>un historique CPU de chaque processus sélectionné</translation>
    </message>
    <message id="help_menu_file_new_logging">
        <source></source>
        <translation>un journal de chaque processus sélectionné</translation>
    </message>
    <message id="help_menu_file_details">
        <source></source>
        <translation>tout sur chaque processus sélectionné : threads, fichiers ouverts, mémoire, environnement, limites</translation>
    </message>
    <message id="help_menu_view_overlay">
        <source></source>
        <translation>la vue animée par-dessus tout l’écran, et la retirer</translation>
    </message>
    <message id="help_menu_file_record">
        <source></source>
        <translation>enregistrer l’activité des processus dans un fichier, pour l’examiner plus tard ; une seconde fois y met fin</translation>
    </message>
    <message id="help_menu_set_standard">
        <source></source>
        <translation>Colonnes : Standard</translation>
    </message>
    <message id="help_menu_set_cpu">
        <source></source>
        <translation>Colonnes : CPU</translation>
    </message>
    <message id="help_menu_set_memory">
        <source></source>
        <translation>Colonnes : Mémoire</translation>
    </message>
    <message id="help_menu_set_disk_network">
        <source></source>
        <translation>Colonnes : Disque et réseau</translation>
    </message>
    <message id="help_menu_set_commands">
        <source></source>
        <translation>Colonnes : Commandes</translation>
    </message>
    <message id="help_menu_set_containers">
        <source></source>
        <translation>Colonnes : Conteneurs</translation>
    </message>
    <message id="help_menu_set_security">
        <source></source>
        <translation>Colonnes : Sécurité</translation>
    </message>
    <message id="help_menu_file_open_recording">
        <source></source>
        <translation>examiner ce qui a été enregistré, dans une fenêtre à part</translation>
    </message>
    <message id="help_menu_file_close_window">
        <source></source>
        <translation>fermer la fenêtre ; la dernière quitte le programme</translation>
    </message>
    <message id="help_menu_application_quit">
        <source></source>
        <translation>quitter ; ce qui est ouvert revient au prochain démarrage</translation>
    </message>
    <message id="help_menu_application_preferences">
        <source></source>
        <translation>les préférences</translation>
    </message>
    <message id="help_menu_edit_select_all">
        <source></source>
        <translation>sélectionner tous les processus affichés</translation>
    </message>
    <message id="help_menu_edit_select_children">
        <source></source>
        <translation>sélectionner les enfants des processus sélectionnés à la place de ceux-ci</translation>
    </message>
    <message id="help_menu_view_update_now">
        <source></source>
        <translation>actualiser maintenant</translation>
    </message>
    <message id="help_menu_view_pause">
        <source></source>
        <translation>figer lignes et valeurs ; une fois de plus pour continuer</translation>
    </message>
    <message id="help_menu_view_follow">
        <source></source>
        <translation>garder la ligne sélectionnée en place pendant que les autres bougent</translation>
    </message>
    <message id="help_menu_view_shape_list">
        <source></source>
        <translation>afficher tous les processus en liste</translation>
    </message>
    <message id="help_menu_view_shape_tree">
        <source></source>
        <translation>afficher les enfants sous leurs parents</translation>
    </message>
    <message id="help_menu_view_shape_applications">
        <source></source>
        <translation>afficher les processus sous leurs applications</translation>
    </message>
    <message id="help_menu_view_unfold_all">
        <source></source>
        <translation>déplier toutes les lignes</translation>
    </message>
    <message id="help_menu_view_fold_all">
        <source></source>
        <translation>replier toutes les lignes</translation>
    </message>
    <message id="help_menu_view_column_left">
        <source></source>
        <translation>déplacer la colonne de tri vers la gauche</translation>
    </message>
    <message id="help_menu_view_column_right">
        <source></source>
        <translation>la déplacer vers la droite</translation>
    </message>
    <message id="help_menu_view_column_wider">
        <source></source>
        <translation>l’élargir</translation>
    </message>
    <message id="help_menu_view_column_narrower">
        <source></source>
        <translation>la rétrécir</translation>
    </message>
    <message id="help_menu_view_column_fit">
        <source></source>
        <translation>l’ajuster à son contenu</translation>
    </message>
    <message id="help_menu_process_halt">
        <source></source>
        <translation>suspendre les processus sélectionnés</translation>
    </message>
    <message id="help_menu_process_continue">
        <source></source>
        <translation>reprendre ceux qui sont suspendus</translation>
    </message>
    <message id="help_menu_process_high_priority">
        <source></source>
        <translation>donner une priorité haute aux processus sélectionnés</translation>
    </message>
    <message id="help_menu_process_normal_priority">
        <source></source>
        <translation>leur donner la priorité normale</translation>
    </message>
    <message id="help_menu_process_low_priority">
        <source></source>
        <translation>leur donner une priorité basse</translation>
    </message>
    <message id="help_menu_process_bring_to_front">
        <source></source>
        <translation>mettre au premier plan les applications sélectionnées</translation>
    </message>
    <message id="help_menu_process_hide">
        <source></source>
        <translation>masquer leurs fenêtres</translation>
    </message>
    <message id="help_menu_process_reveal">
        <source></source>
        <translation>afficher leurs fichiers dans le gestionnaire de fichiers</translation>
    </message>
    <message id="help_menu_help_help">
        <source></source>
        <translation>cette page</translation>
    </message>
    <message id="main_window_help_missing">
        <source></source>
        <translation>La page d’aide ne peut pas être lue : %1</translation>
    </message>
    <message id="value_not_yet_known">
        <source></source>
        <translation>pas encore connu</translation>
    </message>
    <message id="value_not_allowed">
        <source></source>
        <translation>non autorisé</translation>
    </message>
    <message id="value_not_counted">
        <source></source>
        <translation>non compté sur ce système</translation>
    </message>
    <message id="value_not_yet_known_tip">
        <source></source>
        <translation>Pas encore connu : l’une des prochaines actualisations l’apportera.</translation>
    </message>
    <message id="value_not_allowed_tip">
        <source></source>
        <translation>Non autorisé : pour ce processus, seul root peut le lire. Lurkwell l’affiche quand root le lance.</translation>
    </message>
    <message id="value_not_counted_tip">
        <source></source>
        <translation>Non compté : cette valeur n’existe pas pour ce processus sur ce système.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_read_tip">
        <source></source>
        <translation>Non autorisé : seuls l’utilisateur du processus et root peuvent le lire. Ce que son unité lit et écrit se trouve dans les colonnes de l’unité ; root le voit quand il lance Lurkwell.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_written_tip">
        <source></source>
        <translation>Non autorisé : seuls l’utilisateur du processus et root peuvent le lire. Ce que son unité lit et écrit se trouve dans les colonnes de l’unité ; root le voit quand il lance Lurkwell.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_read_rate_tip">
        <source></source>
        <translation>Non autorisé : seuls l’utilisateur du processus et root peuvent le lire. Ce que son unité lit et écrit se trouve dans les colonnes de l’unité ; root le voit quand il lance Lurkwell.</translation>
    </message>
    <message id="value_not_allowed_pid_disk_write_rate_tip">
        <source></source>
        <translation>Non autorisé : seuls l’utilisateur du processus et root peuvent le lire. Ce que son unité lit et écrit se trouve dans les colonnes de l’unité ; root le voit quand il lance Lurkwell.</translation>
    </message>
    <message id="value_not_counted_pid_unit_disk_read_tip">
        <source></source>
        <translation>Non compté : l’unité du processus ne comptabilise pas ses entrées et sorties. IOAccounting=yes dans l’unité le permettrait.</translation>
    </message>
    <message id="value_not_counted_pid_unit_disk_written_tip">
        <source></source>
        <translation>Non compté : l’unité du processus ne comptabilise pas ses entrées et sorties. IOAccounting=yes dans l’unité le permettrait.</translation>
    </message>
    <message id="value_not_counted_pid_unit_read_rate_tip">
        <source></source>
        <translation>Non compté : l’unité du processus ne comptabilise pas ses entrées et sorties. IOAccounting=yes dans l’unité le permettrait.</translation>
    </message>
    <message id="value_not_counted_pid_unit_write_rate_tip">
        <source></source>
        <translation>Non compté : l’unité du processus ne comptabilise pas ses entrées et sorties. IOAccounting=yes dans l’unité le permettrait.</translation>
    </message>
    <message id="value_not_yet_known_pid_cpu_share_tip">
        <source></source>
        <translation>Pas encore connu : il faut deux mesures, l’une des prochaines actualisations l’apportera.</translation>
    </message>
    <message id="value_not_yet_known_pid_user_share_tip">
        <source></source>
        <translation>Pas encore connu : il faut deux mesures, l’une des prochaines actualisations l’apportera.</translation>
    </message>
    <message id="value_not_yet_known_pid_system_share_tip">
        <source></source>
        <translation>Pas encore connu : il faut deux mesures, l’une des prochaines actualisations l’apportera.</translation>
    </message>
    <message id="value_not_yet_known_pid_disk_read_rate_tip">
        <source></source>
        <translation>Pas encore connu : il faut deux mesures, l’une des prochaines actualisations l’apportera.</translation>
    </message>
    <message id="value_not_yet_known_pid_disk_write_rate_tip">
        <source></source>
        <translation>Pas encore connu : il faut deux mesures, l’une des prochaines actualisations l’apportera.</translation>
    </message>
    <message id="value_not_yet_known_pid_read_rate_tip">
        <source></source>
        <translation>Pas encore connu : il faut deux mesures, l’une des prochaines actualisations l’apportera.</translation>
    </message>
    <message id="value_not_yet_known_pid_write_rate_tip">
        <source></source>
        <translation>Pas encore connu : il faut deux mesures, l’une des prochaines actualisations l’apportera.</translation>
    </message>
    <message id="value_not_yet_known_pid_unit_read_rate_tip">
        <source></source>
        <translation>Pas encore connu : il faut deux mesures, l’une des prochaines actualisations l’apportera.</translation>
    </message>
    <message id="value_not_yet_known_pid_unit_write_rate_tip">
        <source></source>
        <translation>Pas encore connu : il faut deux mesures, l’une des prochaines actualisations l’apportera.</translation>
    </message>
    <message id="value_not_counted_pid_label_tip">
        <source></source>
        <translation>Non compté : le noyau n’a pas de module de sécurité qui étiquette les processus (AppArmor, SELinux, Smack).</translation>
    </message>
    <message id="main_window_idle_task_tip">
        <source></source>
        <translation>La tâche inactive : ses valeurs sont le temps pendant lequel les processeurs n’avaient rien à faire.</translation>
    </message>
    <message id="main_window_zombie_tip">
        <source></source>
        <translation>Un zombie : le processus s’est terminé, et son parent n’a pas encore demandé son code de sortie.</translation>
    </message>
    <message id="main_window_ended_tip">
        <source></source>
        <translation>Ce processus s’est terminé alors que sa ligne devait rester. Aucune commande ne l’atteint.</translation>
    </message>
    <message id="main_window_late_tip">
        <source></source>
        <translation>Cette colonne a été ajoutée pendant que le tableau était en pause : ses valeurs sont de ce moment-là, et des processus qui existaient encore.</translation>
    </message>
    <message id="main_window_stale_tip">
        <source></source>
        <translation>La dernière actualisation n’a pas apporté de valeurs pour cette colonne ; celles-ci sont plus anciennes.</translation>
    </message>
    <message id="main_window_no_address">
        <source></source>
        <translation>Ce n’est pas une adresse de processus comme lurkwell://pid/4711 : %1</translation>
    </message>
    <message id="main_window_by_id_title">
        <source></source>
        <translation>Chercher un processus par ID</translation>
    </message>
    <message id="main_window_by_id_label">
        <source></source>
        <translation>ID du processus :</translation>
    </message>
    <message id="main_window_by_id_find">
        <source></source>
        <translation>&amp;Chercher</translation>
    </message>
    <message id="main_window_by_id_no_number">
        <source></source>
        <translation>Un ID de processus est un nombre de 0 à %1.</translation>
    </message>
    <message id="main_window_not_revealed">
        <source></source>
        <translation>Aucun gestionnaire de fichiers n’a affiché le fichier %1.</translation>
    </message>
    <message id="main_window_nothing_to_reveal_with">
        <source></source>
        <translation>Rien ne peut être sollicité pour afficher le fichier : il n’y a pas de bus de session, ou le programme a disparu.</translation>
    </message>
    <message id="main_window_no_details">
        <source></source>
        <translation>Il n’y a pas de détails sur %1 : ce n’est pas un processus du système.</translation>
    </message>
    <message id="main_window_no_children">
        <source></source>
        <translation>Aucun des processus sélectionnés n’a d’enfant.</translation>
    </message>
    <message id="main_window_hidden_children" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n des enfants est masqué par le filtre.</numerusform>
            <numerusform>%n des enfants sont masqués par le filtre.</numerusform>
        </translation>
    </message>
    <message id="main_window_preferences">
        <source></source>
        <translation>Vos préférences : %1.</translation>
    </message>
    <message id="main_window_by_id_not_found">
        <source></source>
        <translation>Il n’y a pas de processus %1.</translation>
    </message>
    <message id="process_halted">
        <source></source>
        <translation>Suspendu</translation>
    </message>
    <message id="process_niced_high">
        <source></source>
        <translation>Priorité haute</translation>
    </message>
    <message id="process_niced_low">
        <source></source>
        <translation>Priorité basse</translation>
    </message>
    <message id="context_menu_one">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="context_menu_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n processus</numerusform>
            <numerusform>%n processus</numerusform>
        </translation>
    </message>
    <message id="action_ask_window">
        <source></source>
        <translation>Lurkwell</translation>
    </message>
    <message id="action_ask_quit_one">
        <source></source>
        <translation>Quitter le processus %1 (%2) ?</translation>
    </message>
    <message id="action_ask_quit_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Quitter %n processus ?</numerusform>
            <numerusform>Quitter %n processus ?</numerusform>
        </translation>
    </message>
    <message id="action_ask_kill_one">
        <source></source>
        <translation>Tuer le processus %1 (%2) ?</translation>
    </message>
    <message id="action_ask_kill_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Tuer %n processus ?</numerusform>
            <numerusform>Tuer %n processus ?</numerusform>
        </translation>
    </message>
    <message id="action_ask_halt_one">
        <source></source>
        <translation>Suspendre le processus %1 (%2) ?</translation>
    </message>
    <message id="action_ask_halt_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Suspendre %n processus ?</numerusform>
            <numerusform>Suspendre %n processus ?</numerusform>
        </translation>
    </message>
    <message id="action_ask_lower_one">
        <source></source>
        <translation>Abaisser la priorité du processus %1 (%2) ?</translation>
    </message>
    <message id="action_ask_lower_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Abaisser la priorité de %n processus ?</numerusform>
            <numerusform>Abaisser la priorité de %n processus ?</numerusform>
        </translation>
    </message>
    <message id="action_button_quit">
        <source></source>
        <translation>&amp;Quitter</translation>
    </message>
    <message id="action_button_kill">
        <source></source>
        <translation>&amp;Tuer</translation>
    </message>
    <message id="action_button_halt">
        <source></source>
        <translation>&amp;Suspendre</translation>
    </message>
    <message id="action_button_lower">
        <source></source>
        <translation>A&amp;baisser la priorité</translation>
    </message>
    <message id="action_next_quit">
        <source></source>
        <translation>Il est invité à fermer ses fenêtres et à quitter.</translation>
    </message>
    <message id="action_next_terminate">
        <source></source>
        <translation>Il lui est demandé de se terminer (SIGTERM). Il peut d’abord enregistrer son travail, mais n’y est pas obligé.</translation>
    </message>
    <message id="action_next_terminate_again">
        <source></source>
        <translation>Il a été invité %1 à quitter et est toujours là ; il lui est maintenant demandé de se terminer (SIGTERM).</translation>
    </message>
    <message id="action_next_helper">
        <source></source>
        <translation>Il lui a été demandé %1 de se terminer et il est toujours là ; le programme auxiliaire le lui demande encore une fois (SIGTERM).</translation>
    </message>
    <message id="action_next_force">
        <source></source>
        <translation>Il est terminé de force (SIGKILL). Ce qu’il n’a pas enregistré est perdu.</translation>
    </message>
    <message id="action_next_force_at_last">
        <source></source>
        <translation>Il lui a été demandé %1 de se terminer ; il est maintenant terminé de force (SIGKILL). Ce qu’il n’a pas enregistré est perdu.</translation>
    </message>
    <message id="action_next_halted">
        <source></source>
        <translation>Il est suspendu et l’apprendra quand il reprendra.</translation>
    </message>
    <message id="action_next_several">
        <source></source>
        <translation>Chacun est invité à quitter ou à se terminer, comme l’indique la liste. Ce qu’ils n’ont pas enregistré peut être perdu.</translation>
    </message>
    <message id="action_next_several_forced">
        <source></source>
        <translation>Chacun franchit l’étape qu’indique la liste. Ce que n’ont pas enregistré ceux qui sont terminés de force est perdu.</translation>
    </message>
    <message id="action_next_halt">
        <source></source>
        <translation>Un processus suspendu reste immobile jusqu’à sa reprise : ses fenêtres ne répondent pas, et tout ce qui a besoin de lui attend.</translation>
    </message>
    <message id="action_next_lower">
        <source></source>
        <translation>Il obtient le processeur quand personne d’autre n’en veut. Relever la priorité demande les droits d’un administrateur.</translation>
    </message>
    <message id="action_step_quit">
        <source></source>
        <translation>est invité à quitter</translation>
    </message>
    <message id="action_step_terminate">
        <source></source>
        <translation>est invité à se terminer</translation>
    </message>
    <message id="action_step_terminate_again">
        <source></source>
        <translation>est invité à se terminer</translation>
    </message>
    <message id="action_step_helper">
        <source></source>
        <translation>est invité de nouveau à se terminer</translation>
    </message>
    <message id="action_step_force">
        <source></source>
        <translation>est terminé de force</translation>
    </message>
    <message id="action_step_force_at_last">
        <source></source>
        <translation>est terminé de force</translation>
    </message>
    <message id="action_warn_own">
        <source></source>
        <translation>C’est Lurkwell lui-même.</translation>
    </message>
    <message id="action_warn_own_among">
        <source></source>
        <translation>Lurkwell lui-même en fait partie.</translation>
    </message>
    <message id="action_warn_others" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n d’entre eux appartient à un autre utilisateur.</numerusform>
            <numerusform>%n d’entre eux appartiennent à d’autres utilisateurs.</numerusform>
        </translation>
    </message>
    <message id="action_owner">
        <source></source>
        <translation>Propriétaire :</translation>
    </message>
    <message id="action_command_line">
        <source></source>
        <translation>Ligne de commande :</translation>
    </message>
    <message id="action_unknown">
        <source></source>
        <translation>inconnu</translation>
    </message>
    <message id="action_column_name">
        <source></source>
        <translation>Nom</translation>
    </message>
    <message id="action_column_pid">
        <source></source>
        <translation>ID</translation>
    </message>
    <message id="action_column_owner">
        <source></source>
        <translation>Propriétaire</translation>
    </message>
    <message id="action_column_step">
        <source></source>
        <translation>Étape suivante</translation>
    </message>
    <message id="action_column_command">
        <source></source>
        <translation>Ligne de commande</translation>
    </message>
    <message id="times_once">
        <source></source>
        <translation>une fois</translation>
    </message>
    <message id="times_twice">
        <source></source>
        <translation>deux fois</translation>
    </message>
    <message id="times_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n fois</numerusform>
            <numerusform>%n fois</numerusform>
        </translation>
    </message>
    <message id="action_process">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="action_processes" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n processus (%1)</numerusform>
            <numerusform>%n processus (%1)</numerusform>
        </translation>
    </message>
    <message id="action_failed">
        <source></source>
        <translation>Rien n’a été fait à %1 : %2.</translation>
    </message>
    <message id="action_reason_gone">
        <source></source>
        <translation>déjà disparu</translation>
    </message>
    <message id="action_reason_protected">
        <source></source>
        <translation>le système en dépend</translation>
    </message>
    <message id="action_reason_kernel_thread">
        <source></source>
        <translation>le noyau ne prend pas de signaux</translation>
    </message>
    <message id="action_reason_refused">
        <source></source>
        <translation>vous n’en avez pas le droit sans être administrateur</translation>
    </message>
    <message id="action_reason_in_words">
        <source></source>
        <translation>le programme auxiliaire dit « %1 »</translation>
    </message>
    <message id="action_reason_no_helper">
        <source></source>
        <translation>le programme auxiliaire ne répond pas</translation>
    </message>
    <message id="action_reason_no_time">
        <source></source>
        <translation>pas essayé, car le programme auxiliaire prend trop de temps</translation>
    </message>
    <message id="action_reason_nobody">
        <source></source>
        <translation>ce bureau n’a aucun moyen de le faire</translation>
    </message>
    <message id="action_reason_out_of_reach">
        <source></source>
        <translation>ce bureau ne laisse aucun programme faire cela aux fenêtres d’un autre</translation>
    </message>
    <message id="action_done_quit" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 a été invité à quitter.</numerusform>
            <numerusform>%1 ont été invités à quitter.</numerusform>
        </translation>
    </message>
    <message id="action_done_terminate" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 a été invité à se terminer.</numerusform>
            <numerusform>%1 ont été invités à se terminer.</numerusform>
        </translation>
    </message>
    <message id="action_done_force" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 a été terminé de force.</numerusform>
            <numerusform>%1 ont été terminés de force.</numerusform>
        </translation>
    </message>
    <message id="action_done_halt" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 a été suspendu.</numerusform>
            <numerusform>%1 ont été suspendus.</numerusform>
        </translation>
    </message>
    <message id="action_done_continue" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 a repris.</numerusform>
            <numerusform>%1 ont repris.</numerusform>
        </translation>
    </message>
    <message id="action_done_high" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 a maintenant une priorité haute.</numerusform>
            <numerusform>%1 ont maintenant une priorité haute.</numerusform>
        </translation>
    </message>
    <message id="action_done_normal" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 a maintenant la priorité normale.</numerusform>
            <numerusform>%1 ont maintenant la priorité normale.</numerusform>
        </translation>
    </message>
    <message id="action_done_low" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 a maintenant une priorité basse.</numerusform>
            <numerusform>%1 ont maintenant une priorité basse.</numerusform>
        </translation>
    </message>
    <message id="follow_confirmation_title" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Ouvrir %n nouvelle fenêtre ?</numerusform>
            <numerusform>Ouvrir %n nouvelles fenêtres ?</numerusform>
        </translation>
    </message>
    <message id="follow_confirmation_text">
        <source></source>
        <translation>Une fenêtre sera ouverte pour chaque processus sélectionné.</translation>
    </message>
    <message id="follow_confirmation_open">
        <source></source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message id="follow_limit_title" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n fenêtre sur %1 a été ouverte.</numerusform>
            <numerusform>%n fenêtres sur %1 ont été ouvertes.</numerusform>
        </translation>
    </message>
    <message id="follow_limit_text">
        <source></source>
        <translation>Il ne peut pas y avoir plus de fenêtres qui suivent des processus à la fois. Fermez-en d’abord quelques-unes.</translation>
    </message>
    <message id="darwin_tools_not_found">
        <source></source>
        <translation>Lurkwell ne peut pas fonctionner sans les outils système /bin/ps, /bin/kill et /usr/bin/renice, et au moins l’un d’eux est introuvable.</translation>
    </message>
    <message id="no_quartz_extreme">
        <source></source>
        <translation>Cet affichage n’a pas d’accélération graphique. La vue animée sera lente.</translation>
    </message>
    <message id="about_title">
        <source></source>
        <translation>À propos de Lurkwell</translation>
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
        <translation>Un moniteur de processus interactif
Logiciel libre sous licence MIT</translation>
    </message>
    <message id="toolbar_system_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="toolbar_system_cpu_tip">
        <source></source>
        <translation>À quel point les processeurs de la machine sont occupés.</translation>
    </message>
    <message id="toolbar_system_cpu_figure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>CPU : %1 % de %n processeur</numerusform>
            <numerusform>CPU : %1 % de %n processeurs</numerusform>
        </translation>
    </message>
    <message id="toolbar_system_ram">
        <source></source>
        <translation>Mémoire</translation>
    </message>
    <message id="toolbar_system_ram_tip">
        <source></source>
        <translation>Comment la mémoire de la machine est utilisée.</translation>
    </message>
    <message id="toolbar_system_ram_figures">
        <source></source>
        <translation>Mémoire : %1 utilisés sur %2
Verrouillée : %3
Inactive : %4
Libre : %5</translation>
    </message>
    <message id="toolbar_vm_thrashing">
        <source></source>
        <translation>Échange</translation>
    </message>
    <message id="toolbar_vm_thrashing_tip">
        <source></source>
        <translation>Vert tant qu’aucune mémoire n’est transférée en espace d’échange, jaune quand il y en a un peu, rouge clignotant quand il y en a tant que la machine ralentit.</translation>
    </message>
    <message id="toolbar_vm_thrashing_figure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n page transférée en espace d’échange depuis la dernière actualisation</numerusform>
            <numerusform>%n pages transférées en espace d’échange depuis la dernière actualisation</numerusform>
        </translation>
    </message>
    <message id="toolbar_usage_history">
        <source></source>
        <translation>Historique CPU</translation>
    </message>
    <message id="toolbar_usage_history_tip">
        <source></source>
        <translation>Ouvre, pour chaque processus sélectionné, une fenêtre avec l’utilisation CPU au fil du temps.</translation>
    </message>
    <message id="toolbar_log">
        <source></source>
        <translation>Journal</translation>
    </message>
    <message id="toolbar_log_tip">
        <source></source>
        <translation>Ouvre une fenêtre qui consigne des valeurs de chaque processus sélectionné.</translation>
    </message>
    <message id="toolbar_bring_to_front">
        <source></source>
        <translation>Premier plan</translation>
    </message>
    <message id="toolbar_bring_to_front_tip">
        <source></source>
        <translation>Met au premier plan les fenêtres des applications sélectionnées.</translation>
    </message>
    <message id="toolbar_kill">
        <source></source>
        <translation>Tuer</translation>
    </message>
    <message id="toolbar_kill_tip">
        <source></source>
        <translation>Demande aux processus sélectionnés de se terminer ; chaque fois suivante sur le même processus est plus énergique.</translation>
    </message>
    <message id="toolbar_hide_process">
        <source></source>
        <translation>Masquer</translation>
    </message>
    <message id="toolbar_hide_process_tip">
        <source></source>
        <translation>Masque les fenêtres des applications sélectionnées.</translation>
    </message>
    <message id="toolbar_reveal">
        <source></source>
        <translation>Fichier</translation>
    </message>
    <message id="toolbar_reveal_tip">
        <source></source>
        <translation>Affiche les applications sélectionnées dans le gestionnaire de fichiers.</translation>
    </message>
    <message id="toolbar_high">
        <source></source>
        <translation>Haute</translation>
    </message>
    <message id="toolbar_high_tip">
        <source></source>
        <translation>Donne aux processus sélectionnés une priorité haute (nice -19).</translation>
    </message>
    <message id="toolbar_medium">
        <source></source>
        <translation>Normale</translation>
    </message>
    <message id="toolbar_medium_tip">
        <source></source>
        <translation>Donne aux processus sélectionnés la priorité normale (nice 0).</translation>
    </message>
    <message id="toolbar_low">
        <source></source>
        <translation>Basse</translation>
    </message>
    <message id="toolbar_low_tip">
        <source></source>
        <translation>Donne aux processus sélectionnés la priorité la plus basse, de sorte qu’ils cèdent la place à tous les autres.</translation>
    </message>
    <message id="toolbar_halt">
        <source></source>
        <translation>Suspendre</translation>
    </message>
    <message id="toolbar_halt_tip">
        <source></source>
        <translation>Arrête les processus sélectionnés jusqu’à leur reprise.</translation>
    </message>
    <message id="toolbar_cont">
        <source></source>
        <translation>Reprendre</translation>
    </message>
    <message id="toolbar_cont_tip">
        <source></source>
        <translation>Fait reprendre les processus sélectionnés qui étaient suspendus.</translation>
    </message>
    <message id="menu_process_kill_with_children">
        <source></source>
        <translation>Quitter ou tuer a&amp;vec les enfants</translation>
    </message>
    <message id="menu_process_signal">
        <source></source>
        <translation>Envoyer un si&amp;gnal…</translation>
    </message>
    <message id="menu_process_scheduling">
        <source></source>
        <translation>Pri&amp;orité et processeurs…</translation>
    </message>
    <message id="menu_process_show_executable">
        <source></source>
        <translation>Afficher le &amp;fichier du programme</translation>
    </message>
    <message id="menu_process_search_web">
        <source></source>
        <translation>Chercher sur le &amp;Web</translation>
    </message>
    <message id="menu_edit_copy_csv">
        <source></source>
        <translation>Copier en CS&amp;V</translation>
    </message>
    <message id="menu_edit_copy_json">
        <source></source>
        <translation>Copier en &amp;JSON</translation>
    </message>
    <message id="help_menu_process_kill_with_children">
        <source></source>
        <translation>quitter ou tuer les processus sélectionnés et tous ceux qu’ils ont lancés</translation>
    </message>
    <message id="help_menu_process_signal">
        <source></source>
        <translation>envoyer un signal quelconque</translation>
    </message>
    <message id="help_menu_process_scheduling">
        <source></source>
        <translation>valeur nice, ordonnancement, priorité disque, processeurs</translation>
    </message>
    <message id="help_menu_process_show_executable">
        <source></source>
        <translation>afficher le fichier du programme dans le gestionnaire de fichiers</translation>
    </message>
    <message id="main_window_no_executable">
        <source></source>
        <translation>On ne sait pas de quels programmes il s’agit, ou vous n’avez pas le droit de le savoir.</translation>
    </message>
    <message id="main_window_many_executables">
        <source></source>
        <translation>Cela fait plus de %1 programmes ; rien n’a été ouvert.</translation>
    </message>
    <message id="main_window_no_search">
        <source></source>
        <translation>Ce bureau n’ouvre pas « %1 ».</translation>
    </message>
    <message id="action_ask_signal_one">
        <source></source>
        <translation>Envoyer un signal au processus %1 (%2) ?</translation>
    </message>
    <message id="action_ask_signal_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Envoyer un signal à %n processus ?</numerusform>
            <numerusform>Envoyer un signal à %n processus ?</numerusform>
        </translation>
    </message>
    <message id="action_ask_scheduling_one">
        <source></source>
        <translation>Priorité et processeurs du processus %1 (%2)</translation>
    </message>
    <message id="action_ask_scheduling_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Priorité et processeurs de %n processus</numerusform>
            <numerusform>Priorité et processeurs de %n processus</numerusform>
        </translation>
    </message>
    <message id="action_button_signal">
        <source></source>
        <translation>&amp;Envoyer</translation>
    </message>
    <message id="action_button_scheduling">
        <source></source>
        <translation>&amp;Appliquer</translation>
    </message>
    <message id="action_next_signal">
        <source></source>
        <translation>Un programme peut intercepter un signal et faire autre chose à la place, sauf pour KILL et STOP. La liste dit ce qui se passe sinon.</translation>
    </message>
    <message id="action_next_scheduling">
        <source></source>
        <translation>Cela vaut aussitôt pour tous les threads, jusqu’à la fin du processus. Passer avant les autres demande les droits d’un administrateur.</translation>
    </message>
    <message id="action_reason_impossible">
        <source></source>
        <translation>cette machine n’a pas de tel processeur ou de telle priorité</translation>
    </message>
    <message id="action_done_signal" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 a reçu le signal %2.</numerusform>
            <numerusform>%1 ont reçu le signal %2.</numerusform>
        </translation>
    </message>
    <message id="action_done_nice" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 a maintenant la valeur nice %2.</numerusform>
            <numerusform>%1 ont maintenant la valeur nice %2.</numerusform>
        </translation>
    </message>
    <message id="action_done_policy" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 a maintenant l’ordonnancement « %2 ».</numerusform>
            <numerusform>%1 ont maintenant l’ordonnancement « %2 ».</numerusform>
        </translation>
    </message>
    <message id="action_done_io_priority" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 a maintenant la priorité disque %2.</numerusform>
            <numerusform>%1 ont maintenant la priorité disque %2.</numerusform>
        </translation>
    </message>
    <message id="action_done_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 tourne maintenant sur les processeurs %2.</numerusform>
            <numerusform>%1 tournent maintenant sur les processeurs %2.</numerusform>
        </translation>
    </message>
    <message id="scheduling_unchanged">
        <source></source>
        <translation>inchangé</translation>
    </message>
    <message id="scheduling_nice">
        <source></source>
        <translation>Valeur &amp;nice :</translation>
    </message>
    <message id="scheduling_nice_tip">
        <source></source>
        <translation>De -20, qui passe avant tous les autres, à 19, qui passe après eux</translation>
    </message>
    <message id="scheduling_policy">
        <source></source>
        <translation>Ordonnancement :</translation>
    </message>
    <message id="scheduling_policy_tip">
        <source></source>
        <translation>Batch convient à ce qui calcule longtemps, idle à ce qui peut attendre tout le reste. Le temps réel passe avant tout ce qui ne l’est pas, et peut immobiliser la machine.</translation>
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
        <translation>Temps réel, à tour de rôle</translation>
    </message>
    <message id="scheduling_policy_fifo">
        <source></source>
        <translation>Temps réel, l’un après l’autre</translation>
    </message>
    <message id="scheduling_priority">
        <source></source>
        <translation>Priorité :</translation>
    </message>
    <message id="scheduling_io_class">
        <source></source>
        <translation>Priorité &amp;disque :</translation>
    </message>
    <message id="scheduling_io_tip">
        <source></source>
        <translation>Compte là où l’ordonnanceur du disque la connaît. 0 passe avant 7.</translation>
    </message>
    <message id="scheduling_io_none">
        <source></source>
        <translation>Selon la valeur nice</translation>
    </message>
    <message id="scheduling_io_best_effort">
        <source></source>
        <translation>Au mieux</translation>
    </message>
    <message id="scheduling_io_idle">
        <source></source>
        <translation>Idle</translation>
    </message>
    <message id="scheduling_io_real_time">
        <source></source>
        <translation>Temps réel</translation>
    </message>
    <message id="scheduling_io_level">
        <source></source>
        <translation>Niveau :</translation>
    </message>
    <message id="scheduling_processors">
        <source></source>
        <translation>&amp;Processeurs (sur %1) :</translation>
    </message>
    <message id="scheduling_processors_tip">
        <source></source>
        <translation>Numéros et plages, par exemple 0-3,6 ; cette machine a %1</translation>
    </message>
    <message id="scheduling_no_processors">
        <source></source>
        <translation>Indiquez des processeurs parmi %1, par exemple 0 ou 0-1,3.</translation>
    </message>
    <message id="signal_list">
        <source></source>
        <translation>Signaux</translation>
    </message>
    <message id="signal_column_name">
        <source></source>
        <translation>Signal</translation>
    </message>
    <message id="signal_column_number">
        <source></source>
        <translation>N°</translation>
    </message>
    <message id="signal_column_effect">
        <source></source>
        <translation>À quoi il sert</translation>
    </message>
    <message id="signal_realtime">
        <source></source>
        <translation>À l’usage du programme ; sinon, le termine</translation>
    </message>
    <message id="signal_hup">
        <source></source>
        <translation>Son terminal a disparu ; les services relisent souvent leurs paramètres</translation>
    </message>
    <message id="signal_int">
        <source></source>
        <translation>Interruption, comme Ctrl+C dans un terminal ; le termine</translation>
    </message>
    <message id="signal_quit">
        <source></source>
        <translation>Comme Ctrl+\ dans un terminal ; le termine avec image mémoire</translation>
    </message>
    <message id="signal_ill">
        <source></source>
        <translation>Instruction interdite ; le termine avec image mémoire</translation>
    </message>
    <message id="signal_trap">
        <source></source>
        <translation>Des débogueurs ; le termine avec image mémoire</translation>
    </message>
    <message id="signal_abrt">
        <source></source>
        <translation>Il a renoncé ; le termine avec image mémoire</translation>
    </message>
    <message id="signal_bus">
        <source></source>
        <translation>Accès à une mémoire absente ; le termine avec image mémoire</translation>
    </message>
    <message id="signal_fpe">
        <source></source>
        <translation>Calcul impossible ; le termine avec image mémoire</translation>
    </message>
    <message id="signal_kill">
        <source></source>
        <translation>Le termine aussitôt ; il ne peut rien enregistrer</translation>
    </message>
    <message id="signal_usr1">
        <source></source>
        <translation>À l’usage du programme ; sinon, le termine</translation>
    </message>
    <message id="signal_segv">
        <source></source>
        <translation>Accès à la mémoire d’autrui ; le termine avec image mémoire</translation>
    </message>
    <message id="signal_usr2">
        <source></source>
        <translation>À l’usage du programme ; sinon, le termine</translation>
    </message>
    <message id="signal_pipe">
        <source></source>
        <translation>Plus rien ne lit ce qu’il écrit ; le termine</translation>
    </message>
    <message id="signal_alrm">
        <source></source>
        <translation>Son réveil a sonné ; le termine</translation>
    </message>
    <message id="signal_term">
        <source></source>
        <translation>Lui demande de se terminer</translation>
    </message>
    <message id="signal_stkflt">
        <source></source>
        <translation>Inutilisé ; le termine</translation>
    </message>
    <message id="signal_chld">
        <source></source>
        <translation>Un enfant s’est terminé ou arrêté ; sans effet</translation>
    </message>
    <message id="signal_cont">
        <source></source>
        <translation>Reprend après un arrêt</translation>
    </message>
    <message id="signal_stop">
        <source></source>
        <translation>Reste immobile jusqu’à sa reprise ; ne peut pas être intercepté</translation>
    </message>
    <message id="signal_tstp">
        <source></source>
        <translation>Arrêt, comme Ctrl+Z dans un terminal</translation>
    </message>
    <message id="signal_ttin">
        <source></source>
        <translation>Il lit un terminal depuis l’arrière-plan ; l’arrête</translation>
    </message>
    <message id="signal_ttou">
        <source></source>
        <translation>Il écrit sur un terminal depuis l’arrière-plan ; l’arrête</translation>
    </message>
    <message id="signal_urg">
        <source></source>
        <translation>Données urgentes arrivées ; sans effet</translation>
    </message>
    <message id="signal_xcpu">
        <source></source>
        <translation>Son temps processeur est épuisé ; le termine avec image mémoire</translation>
    </message>
    <message id="signal_xfsz">
        <source></source>
        <translation>Un fichier est devenu trop grand ; le termine avec image mémoire</translation>
    </message>
    <message id="signal_vtalrm">
        <source></source>
        <translation>Son horloge de temps processeur a sonné ; le termine</translation>
    </message>
    <message id="signal_prof">
        <source></source>
        <translation>L’horloge d’un profil a sonné ; le termine</translation>
    </message>
    <message id="signal_winch">
        <source></source>
        <translation>Sa fenêtre a changé de taille ; sans effet</translation>
    </message>
    <message id="signal_poll">
        <source></source>
        <translation>Un fichier peut être lu ou écrit ; le termine</translation>
    </message>
    <message id="signal_pwr">
        <source></source>
        <translation>Panne de courant ; le termine</translation>
    </message>
    <message id="signal_sys">
        <source></source>
        <translation>Appel système interdit ; le termine avec image mémoire</translation>
    </message>
    <message id="toolbar_select_children">
        <source></source>
        <translation>Enfants</translation>
    </message>
    <message id="toolbar_select_children_tip">
        <source></source>
        <translation>Sélectionne les processus lancés par ceux qui sont sélectionnés, à la place de ceux-ci.</translation>
    </message>
    <message id="toolbar_prefs">
        <source></source>
        <translation>Préférences</translation>
    </message>
    <message id="toolbar_prefs_tip">
        <source></source>
        <translation>Ouvre les préférences.</translation>
    </message>
    <message id="toolbar_customise">
        <source></source>
        <translation>Personnaliser</translation>
    </message>
    <message id="toolbar_customise_tip">
        <source></source>
        <translation>Choisit ce que contient la barre d’outils et dans quel ordre.</translation>
    </message>
    <message id="toolbar_separator">
        <source></source>
        <translation>Séparateur</translation>
    </message>
    <message id="toolbar_separator_tip">
        <source></source>
        <translation>Une ligne entre des groupes d’éléments.</translation>
    </message>
    <message id="toolbar_space">
        <source></source>
        <translation>Espace</translation>
    </message>
    <message id="toolbar_space_tip">
        <source></source>
        <translation>Un peu de place entre des éléments.</translation>
    </message>
    <message id="toolbar_flexible_space">
        <source></source>
        <translation>Espace flexible</translation>
    </message>
    <message id="toolbar_flexible_space_tip">
        <source></source>
        <translation>Repousse ce qui suit à la fin de la barre d’outils.</translation>
    </message>
    <message id="toolbar_title">
        <source></source>
        <translation>Barre d’outils</translation>
    </message>
    <message id="toolbar_customise_title">
        <source></source>
        <translation>Personnaliser la barre d’outils</translation>
    </message>
    <message id="toolbar_customise_hint">
        <source></source>
        <translation>Faites glisser des éléments dans la barre d’outils, ou de celle-ci vers la liste des éléments disponibles. Ils peuvent aussi être déposés sur la barre d’outils de la fenêtre.</translation>
    </message>
    <message id="toolbar_customise_available">
        <source></source>
        <translation>É&amp;léments disponibles :</translation>
    </message>
    <message id="toolbar_customise_current">
        <source></source>
        <translation>Dans la &amp;barre d’outils :</translation>
    </message>
    <message id="toolbar_customise_add">
        <source></source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message id="toolbar_customise_remove">
        <source></source>
        <translation>&amp;Retirer</translation>
    </message>
    <message id="toolbar_customise_earlier">
        <source></source>
        <translation>&amp;Monter</translation>
    </message>
    <message id="toolbar_customise_later">
        <source></source>
        <translation>&amp;Descendre</translation>
    </message>
    <message id="toolbar_customise_default_set">
        <source></source>
        <translation>Jeu par défaut :</translation>
    </message>
    <message id="toolbar_customise_default_set_tip">
        <source></source>
        <translation>Peut être glissé dans la barre d’outils comme un tout.</translation>
    </message>
    <message id="toolbar_customise_use_default">
        <source></source>
        <translation>&amp;Utiliser le jeu par défaut</translation>
    </message>
    <message id="toolbar_customise_mode">
        <source></source>
        <translation>Affic&amp;her :</translation>
    </message>
    <message id="toolbar_customise_done">
        <source></source>
        <translation>&amp;Terminé</translation>
    </message>
    <message id="toolbar_mode_both">
        <source></source>
        <translation>Icônes et texte</translation>
    </message>
    <message id="toolbar_mode_icon">
        <source></source>
        <translation>Icônes seules</translation>
    </message>
    <message id="toolbar_mode_text">
        <source></source>
        <translation>Texte seul</translation>
    </message>
    <message id="logging_title">
        <source></source>
        <translation>Journal : %1, PID %2</translation>
    </message>
    <message id="logging_title_file">
        <source></source>
        <translation>fichier : %1</translation>
    </message>
    <message id="logging_table">
        <source></source>
        <translation>Journal d’un processus</translation>
    </message>
    <message id="logging_column_time">
        <source></source>
        <translation>Heure</translation>
    </message>
    <message id="logging_column_time_tip">
        <source></source>
        <translation>Quand la ligne a été écrite.</translation>
    </message>
    <message id="logging_column_active">
        <source></source>
        <translation>Temps CPU</translation>
    </message>
    <message id="logging_column_active_tip">
        <source></source>
        <translation>Temps CPU consommé depuis le démarrage du processus, en secondes.</translation>
    </message>
    <message id="logging_column_active_change">
        <source></source>
        <translation>∆ temps CPU</translation>
    </message>
    <message id="logging_column_active_change_tip">
        <source></source>
        <translation>Temps CPU consommé depuis la ligne précédente, en secondes.</translation>
    </message>
    <message id="logging_column_real">
        <source></source>
        <translation>Résidente</translation>
    </message>
    <message id="logging_column_real_tip">
        <source></source>
        <translation>Mémoire que le processus occupe dans celle de la machine.</translation>
    </message>
    <message id="logging_column_real_change">
        <source></source>
        <translation>∆ résidente</translation>
    </message>
    <message id="logging_column_real_change_tip">
        <source></source>
        <translation>Changement de la mémoire résidente depuis la ligne précédente.</translation>
    </message>
    <message id="logging_column_virtual">
        <source></source>
        <translation>Virtuelle</translation>
    </message>
    <message id="logging_column_virtual_tip">
        <source></source>
        <translation>Espace d’adressage du processus.</translation>
    </message>
    <message id="logging_column_virtual_change">
        <source></source>
        <translation>∆ virtuelle</translation>
    </message>
    <message id="logging_column_virtual_change_tip">
        <source></source>
        <translation>Changement de l’espace d’adressage depuis la ligne précédente.</translation>
    </message>
    <message id="logging_note_ended">
        <source></source>
        <translation>Le processus s’est terminé.</translation>
    </message>
    <message id="logging_note_ended_remembered">
        <source></source>
        <translation>Le processus s’est terminé. La fenêtre revient quand un processus de ce nom démarre.</translation>
    </message>
    <message id="logging_note_not_created">
        <source></source>
        <translation>Il n’y a pas de fichier journal : %1. Les lignes ne sont affichées qu’ici.</translation>
    </message>
    <message id="logging_note_not_written">
        <source></source>
        <translation>Des lignes manquent dans le fichier journal : %1.</translation>
    </message>
    <message id="logging_show_file">
        <source></source>
        <translation>Afficher le &amp;fichier</translation>
    </message>
    <message id="logging_show_file_none">
        <source></source>
        <translation>Rien n’est écrit dans un fichier. Les préférences permettent que les nouveaux journaux le soient.</translation>
    </message>
    <message id="logging_save_as">
        <source></source>
        <translation>&amp;Enregistrer sous…</translation>
    </message>
    <message id="record_title">
        <source></source>
        <translation>Enregistrer l’activité des processus</translation>
    </message>
    <message id="record_filter">
        <source></source>
        <translation>Enregistrements (*.lwr);;Tous les fichiers (*)</translation>
    </message>
    <message id="record_failed">
        <source></source>
        <translation>L’activité des processus n’est pas enregistrée.</translation>
    </message>
    <message id="record_behind">
        <source></source>
        <translation>Le disque n’a pas encore pris tout ce qui a été enregistré.</translation>
    </message>
    <message id="record_behind_message">
        <source></source>
        <translation>Le reste est écrit tant que Lurkwell est en marche. D’ici là, il n’est plus possible d’enregistrer dans ce fichier.</translation>
    </message>
    <message id="record_status">
        <source></source>
        <translation>Enregistrement dans %1</translation>
    </message>
    <message id="record_trouble">
        <source></source>
        <translation>Pas d’enregistrement dans %1 : %2</translation>
    </message>
    <message id="replay_open_title">
        <source></source>
        <translation>Ouvrir un enregistrement</translation>
    </message>
    <message id="replay_failed">
        <source></source>
        <translation>L’enregistrement ne peut pas être affiché.</translation>
    </message>
    <message id="replay_title">
        <source></source>
        <translation>%1 – %2</translation>
    </message>
    <message id="replay_bar">
        <source></source>
        <translation>Ligne de temps</translation>
    </message>
    <message id="replay_back">
        <source></source>
        <translation>Un pas en arrière</translation>
    </message>
    <message id="replay_play">
        <source></source>
        <translation>Lecture</translation>
    </message>
    <message id="replay_forth">
        <source></source>
        <translation>Un pas en avant</translation>
    </message>
    <message id="replay_peak">
        <source></source>
        <translation>Prochain pic d’utilisation des processeurs</translation>
    </message>
    <message id="replay_speed">
        <source></source>
        <translation>Vitesse</translation>
    </message>
    <message id="replay_moment">
        <source></source>
        <translation>Aller à un moment</translation>
    </message>
    <message id="replay_moment_tip">
        <source></source>
        <translation>Aller à un moment (%1) : une heure comme 03:12, une date avec une heure, ou -2h, c’est-à-dire avant la fin</translation>
    </message>
    <message id="replay_no_peak">
        <source></source>
        <translation>Il n’y a pas de pic ultérieur d’utilisation des processeurs.</translation>
    </message>
    <message id="replay_no_actions">
        <source></source>
        <translation>Ceci est un enregistrement : rien ne peut être fait à ses processus.</translation>
    </message>
    <message id="logging_save_title">
        <source></source>
        <translation>Enregistrer le journal</translation>
    </message>
    <message id="logging_save_filter">
        <source></source>
        <translation>Tableaux (*.tsv);;Tous les fichiers (*)</translation>
    </message>
    <message id="logging_menu_title">
        <source></source>
        <translation>Journal de %1, PID %2</translation>
    </message>
    <message id="logging_identity">
        <source></source>
        <translation>Propriétaire %1 : %2</translation>
    </message>
    <message id="remembered_owner">
        <source></source>
        <translation>Propriétaire</translation>
    </message>
    <message id="logging_copy">
        <source></source>
        <translation>&amp;Copier</translation>
    </message>
    <message id="logging_select_all">
        <source></source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message id="logging_note_not_saved">
        <source></source>
        <translation>Le journal n’est pas enregistré : %1.</translation>
    </message>
    <message id="logging_note_saved">
        <source></source>
        <translation>Enregistré sous %1.</translation>
    </message>
    <message id="logging_note_not_shown">
        <source></source>
        <translation>Il n’y a pas de gestionnaire de fichiers pour afficher le fichier. C’est %1.</translation>
    </message>
    <message id="logging_note_follows">
        <source></source>
        <translation>Le processus %1 s’est terminé. À partir de « PID %2 », les lignes sont celles du processus %2.</translation>
    </message>
    <message id="logging_row_of">
        <source></source>
        <translation>PID %1</translation>
    </message>
    <message id="history_title">
        <source></source>
        <translation>Historique CPU de %1, PID %2</translation>
    </message>
    <message id="history_identity">
        <source></source>
        <translation>PID %1</translation>
    </message>
    <message id="history_accessible">
        <source></source>
        <translation>Historique CPU de %1, processus %2 de %3</translation>
    </message>
    <message id="history_now">
        <source></source>
        <translation>%1 % maintenant, entre %3 % et %4 % dans la fenêtre ; le bord supérieur est %2 %</translation>
    </message>
    <message id="history_tip">
        <source></source>
        <translation>&lt;b&gt;%1&lt;/b&gt;&lt;br&gt;PID %2, propriétaire %3&lt;br&gt;%4</translation>
    </message>
    <message id="history_not_above">
        <source></source>
        <translation>Ce bureau ne la garde pas au-dessus des autres fenêtres ; une de ses règles de fenêtres le peut.</translation>
    </message>
    <message id="history_menu_relative">
        <source></source>
        <translation>&amp;Ajuster l’échelle au maximum récent</translation>
    </message>
    <message id="history_menu_descendants">
        <source></source>
        <translation>Compter aussi les &amp;descendants</translation>
    </message>
    <message id="history_menu_close">
        <source></source>
        <translation>&amp;Fermer et oublier</translation>
    </message>
    <message id="details_title">
        <source></source>
        <translation>%1 (%2) : détails</translation>
    </message>
    <message id="details_title_ended">
        <source></source>
        <translation>%1 (%2), terminé : détails</translation>
    </message>
    <message id="details_heading">
        <source></source>
        <translation>%1 (processus %2)</translation>
    </message>
    <message id="details_heading_ended">
        <source></source>
        <translation>%1 (processus %2), à %3, terminé</translation>
    </message>
    <message id="details_ended">
        <source></source>
        <translation>État à %1, terminé. Ce qui a été lu en dernier reste tel quel.</translation>
    </message>
    <message id="details_ended_before">
        <source></source>
        <translation>Le processus s’est terminé avant que ceci soit lu.</translation>
    </message>
    <message id="details_actions">
        <source></source>
        <translation>A&amp;ctions</translation>
    </message>
    <message id="details_pages">
        <source></source>
        <translation>Pages</translation>
    </message>
    <message id="details_filter">
        <source></source>
        <translation>Afficher les lignes contenant…</translation>
    </message>
    <message id="details_reading">
        <source></source>
        <translation>Lecture…</translation>
    </message>
    <message id="details_waiting">
        <source></source>
        <translation>Pas encore de réponse du système ; l’attente continue. La mémoire du processus est peut-être verrouillée, ou sur un système de fichiers qui ne répond pas.</translation>
    </message>
    <message id="details_too_many_hang">
        <source></source>
        <translation>Trop de questions antérieures sont restées sans réponse du système. Celle-ci sera posée dès que l’une d’elles en aura une.</translation>
    </message>
    <message id="details_refused">
        <source></source>
        <translation>Non autorisé : ce processus appartient à un autre utilisateur. Seuls son propriétaire et root peuvent lire ceci.</translation>
    </message>
    <message id="details_refused_owner">
        <source></source>
        <translation>Non autorisé : ce processus appartient à %1. Seuls son propriétaire et root peuvent lire ceci.</translation>
    </message>
    <message id="details_kept_secret">
        <source></source>
        <translation>Non autorisé : le processus cache ceci aux autres programmes, même à ceux de son propre utilisateur.</translation>
    </message>
    <message id="details_none">
        <source></source>
        <translation>Ce système n’a rien de tel pour ce processus.</translation>
    </message>
    <message id="details_nothing">
        <source></source>
        <translation>Il n’y en a pas.</translation>
    </message>
    <message id="details_failed">
        <source></source>
        <translation>Le système manque de ressources en ce moment. Un nouvel essai suivra.</translation>
    </message>
    <message id="details_first_ones">
        <source></source>
        <translation>%1 ; les %2 premiers sont affichés</translation>
    </message>
    <message id="details_unlimited">
        <source></source>
        <translation>illimité</translation>
    </message>
    <message id="details_parent">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="details_overview">
        <source></source>
        <translation>Vue d’ensemble</translation>
    </message>
    <message id="details_overview_figure">
        <source></source>
        <translation>Quoi</translation>
    </message>
    <message id="details_overview_value">
        <source></source>
        <translation>Valeur</translation>
    </message>
    <message id="details_graph_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="details_graph_memory">
        <source></source>
        <translation>Mémoire</translation>
    </message>
    <message id="details_graph_disk">
        <source></source>
        <translation>Disque</translation>
    </message>
    <message id="details_graph_network">
        <source></source>
        <translation>Réseau (TCP)</translation>
    </message>
    <message id="details_graph_resident">
        <source></source>
        <translation>résidente</translation>
    </message>
    <message id="details_graph_swap">
        <source></source>
        <translation>en échange</translation>
    </message>
    <message id="details_graph_read">
        <source></source>
        <translation>lu</translation>
    </message>
    <message id="details_graph_written">
        <source></source>
        <translation>écrit</translation>
    </message>
    <message id="details_graph_received">
        <source></source>
        <translation>reçu</translation>
    </message>
    <message id="details_graph_sent">
        <source></source>
        <translation>envoyé</translation>
    </message>
    <message id="details_threads">
        <source></source>
        <translation>Threads</translation>
    </message>
    <message id="details_threads_count">
        <source></source>
        <translation>Threads : %1</translation>
    </message>
    <message id="details_thread_id">
        <source></source>
        <translation>Thread</translation>
    </message>
    <message id="details_thread_name">
        <source></source>
        <translation>Nom</translation>
    </message>
    <message id="details_thread_share">
        <source></source>
        <translation>CPU %</translation>
    </message>
    <message id="details_thread_time">
        <source></source>
        <translation>Temps CPU</translation>
    </message>
    <message id="details_thread_state">
        <source></source>
        <translation>État</translation>
    </message>
    <message id="details_thread_processor">
        <source></source>
        <translation>Processeur</translation>
    </message>
    <message id="details_thread_nice">
        <source></source>
        <translation>Nice</translation>
    </message>
    <message id="details_descriptors">
        <source></source>
        <translation>Fichiers et sockets</translation>
    </message>
    <message id="details_descriptors_count">
        <source></source>
        <translation>Fichiers, sockets et autres ouverts : %1</translation>
    </message>
    <message id="details_descriptor">
        <source></source>
        <translation>Numéro</translation>
    </message>
    <message id="details_descriptor_kind">
        <source></source>
        <translation>Genre</translation>
    </message>
    <message id="details_descriptor_target">
        <source></source>
        <translation>Chemin ou adresses</translation>
    </message>
    <message id="details_descriptor_position">
        <source></source>
        <translation>Position</translation>
    </message>
    <message id="details_descriptor_flags">
        <source></source>
        <translation>Ouvert pour</translation>
    </message>
    <message id="details_mappings">
        <source></source>
        <translation>Mémoire</translation>
    </message>
    <message id="details_mappings_count">
        <source></source>
        <translation>Projections : %1 ; taille %2, résidente %3, proportionnelle %4</translation>
    </message>
    <message id="details_mapping_range">
        <source></source>
        <translation>Adresses</translation>
    </message>
    <message id="details_mapping_size">
        <source></source>
        <translation>Taille</translation>
    </message>
    <message id="details_mapping_resident">
        <source></source>
        <translation>Résidente</translation>
    </message>
    <message id="details_mapping_proportional">
        <source></source>
        <translation>Proportionnelle</translation>
    </message>
    <message id="details_mapping_swapped">
        <source></source>
        <translation>En échange</translation>
    </message>
    <message id="details_mapping_permissions">
        <source></source>
        <translation>Accès</translation>
    </message>
    <message id="details_mapping_file">
        <source></source>
        <translation>Fichier</translation>
    </message>
    <message id="details_environment">
        <source></source>
        <translation>Environnement</translation>
    </message>
    <message id="details_environment_count">
        <source></source>
        <translation>Variables au démarrage du programme : %1</translation>
    </message>
    <message id="details_variable_name">
        <source></source>
        <translation>Nom</translation>
    </message>
    <message id="details_variable_value">
        <source></source>
        <translation>Valeur</translation>
    </message>
    <message id="details_limits">
        <source></source>
        <translation>Limites</translation>
    </message>
    <message id="details_limits_count">
        <source></source>
        <translation>Limites du processus : %1. Il peut relever les siennes jusqu’au maximum.</translation>
    </message>
    <message id="details_limit_name">
        <source></source>
        <translation>Limite</translation>
    </message>
    <message id="details_limit_soft">
        <source></source>
        <translation>Actuelle</translation>
    </message>
    <message id="details_limit_hard">
        <source></source>
        <translation>Maximum</translation>
    </message>
    <message id="details_limit_unit">
        <source></source>
        <translation>Unité</translation>
    </message>
    <message id="details_group">
        <source></source>
        <translation>Groupe de contrôle</translation>
    </message>
    <message id="details_group_count">
        <source></source>
        <translation>Valeurs : %1. Ce sont celles de tous les processus du groupe ; les groupes supérieurs figurent là où ils limitent quelque chose.</translation>
    </message>
    <message id="details_group_figure">
        <source></source>
        <translation>Mesure</translation>
    </message>
    <message id="details_group_in_use">
        <source></source>
        <translation>Utilisé</translation>
    </message>
    <message id="details_group_limit">
        <source></source>
        <translation>Limite</translation>
    </message>
    <message id="details_group_path">
        <source></source>
        <translation>Groupe</translation>
    </message>
    <message id="details_group_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n processeur</numerusform>
            <numerusform>%n processeurs</numerusform>
        </translation>
    </message>
    <message id="details_group_memory">
        <source></source>
        <translation>Mémoire</translation>
    </message>
    <message id="details_group_memory.high">
        <source></source>
        <translation>Mémoire avant ralentissement</translation>
    </message>
    <message id="details_group_memory.peak">
        <source></source>
        <translation>Maximum de mémoire jusqu’ici</translation>
    </message>
    <message id="details_group_memory.swap">
        <source></source>
        <translation>Espace d’échange</translation>
    </message>
    <message id="details_group_pids">
        <source></source>
        <translation>Processus et threads</translation>
    </message>
    <message id="details_group_cpu.max">
        <source></source>
        <translation>CPU au plus</translation>
    </message>
    <message id="details_group_cpu.weight">
        <source></source>
        <translation>Poids CPU</translation>
    </message>
    <message id="details_group_cpu.usage">
        <source></source>
        <translation>Temps CPU</translation>
    </message>
    <message id="details_group_cpu.throttled">
        <source></source>
        <translation>Temps sans CPU, du fait de sa limite</translation>
    </message>
    <message id="details_group_memory.high_events">
        <source></source>
        <translation>Ralentissements faute de mémoire</translation>
    </message>
    <message id="details_group_memory.oom_kills">
        <source></source>
        <translation>Processus tués faute de mémoire</translation>
    </message>
    <message id="remembered_title">
        <source></source>
        <translation>Lurkwell : fenêtres mémorisées</translation>
    </message>
    <message id="remembered_program">
        <source></source>
        <translation>Programme</translation>
    </message>
    <message id="remembered_window">
        <source></source>
        <translation>Fenêtre</translation>
    </message>
    <message id="remembered_process">
        <source></source>
        <translation>Processus</translation>
    </message>
    <message id="remembered_log">
        <source></source>
        <translation>Journal</translation>
    </message>
    <message id="remembered_history">
        <source></source>
        <translation>Historique CPU</translation>
    </message>
    <message id="remembered_follows">
        <source></source>
        <translation>PID %1</translation>
    </message>
    <message id="remembered_waits">
        <source></source>
        <translation>attend le démarrage du programme</translation>
    </message>
    <message id="remembered_explanation">
        <source></source>
        <translation>Ces fenêtres reviennent quand leur programme démarre. Une fenêtre oubliée ne revient pas ; si elle est ouverte, elle reste jusqu’à ce qu’on la ferme.</translation>
    </message>
    <message id="remembered_forget">
        <source></source>
        <translation>&amp;Oublier</translation>
    </message>
    <message id="preferences_title">
        <source></source>
        <translation>Préférences de Lurkwell</translation>
    </message>
    <message id="preferences_page">
        <source></source>
        <translation>Page</translation>
    </message>
    <message id="preferences_form_missing">
        <source></source>
        <translation>Les préférences ne peuvent pas être affichées.</translation>
    </message>
    <message id="preferences_form_missing_text">
        <source></source>
        <translation>Une partie du programme manque : la disposition de la fenêtre des préférences. Réinstallez Lurkwell.</translation>
    </message>
    <message id="preferences_times_per_second" numerus="yes">
        <source></source>
        <translation>
            <numerusform>une fois par seconde</numerusform>
            <numerusform>%n fois par seconde</numerusform>
        </translation>
    </message>
    <message id="preferences_every_seconds" numerus="yes">
        <source></source>
        <translation>
            <numerusform>toutes les secondes</numerusform>
            <numerusform>toutes les %n secondes</numerusform>
        </translation>
    </message>
    <message id="preferences_every_minutes" numerus="yes">
        <source></source>
        <translation>
            <numerusform>toutes les minutes</numerusform>
            <numerusform>toutes les %n minutes</numerusform>
        </translation>
    </message>
    <message id="preferences_every_hour">
        <source></source>
        <translation>toutes les heures</translation>
    </message>
    <message id="preferences_interval_invalid">
        <source></source>
        <translation>saisie non valide, conversion impossible</translation>
    </message>
    <message id="preferences_percent">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="preferences_page_general">
        <source></source>
        <translation>Général</translation>
    </message>
    <message id="preferences_page_mainwindow">
        <source></source>
        <translation>Fenêtre principale</translation>
    </message>
    <message id="preferences_page_animatedview">
        <source></source>
        <translation>Vue animée</translation>
    </message>
    <message id="preferences_page_history">
        <source></source>
        <translation>Historique CPU</translation>
    </message>
    <message id="preferences_page_logging">
        <source></source>
        <translation>Journal</translation>
    </message>
    <message id="preferences_all_settings">
        <source></source>
        <translation>To&amp;us les paramètres…</translation>
    </message>
    <message id="preferences_all_settings_tip">
        <source></source>
        <translation>Tous les paramètres du programme, y compris ceux qui n’ont pas leur propre réglage ici.</translation>
    </message>
    <message id="preferences_close">
        <source></source>
        <translation>&amp;Fermer</translation>
    </message>
    <message id="preferences_close_tip">
        <source></source>
        <translation>Ferme la fenêtre. Chaque changement est déjà enregistré.</translation>
    </message>
    <message id="preferences_memoryFormatMatrix">
        <source></source>
        <translation>Tailles mémoire</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_tip">
        <source></source>
        <translation>L’unité des tailles mémoire dans les tableaux, les barres et les journaux.</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_automatic">
        <source></source>
        <translation>&amp;Automatique</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_bytes">
        <source></source>
        <translation>&amp;Octets</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_kilobytes">
        <source></source>
        <translation>&amp;Kilooctets</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_megabytes">
        <source></source>
        <translation>&amp;Mégaoctets</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_gigabytes">
        <source></source>
        <translation>&amp;Gigaoctets</translation>
    </message>
    <message id="preferences_dateFormatMatrix">
        <source></source>
        <translation>Dates</translation>
    </message>
    <message id="preferences_dateFormatMatrix_tip">
        <source></source>
        <translation>Comment les dates et heures sont écrites dans les tableaux et les journaux.</translation>
    </message>
    <message id="preferences_dateFormatMatrix_calendar">
        <source></source>
        <translation>Cale&amp;ndrier et heure</translation>
    </message>
    <message id="preferences_dateFormatMatrix_seconds">
        <source></source>
        <translation>&amp;Secondes depuis 1970</translation>
    </message>
    <message id="preferences_dateFormatMatrix_microseconds">
        <source></source>
        <translation>Secondes et mic&amp;rosecondes</translation>
    </message>
    <message id="preferences_mainWindowInterval">
        <source></source>
        <translation>&amp;Actualiser le tableau :</translation>
    </message>
    <message id="preferences_mainWindowInterval_tip">
        <source></source>
        <translation>À quelle fréquence le tableau de la fenêtre principale est mis à jour. L’actualiser rarement coûte moins.</translation>
    </message>
    <message id="preferences_memoryGraph">
        <source></source>
        <translation>Afficher la &amp;taille sur les barres de mémoire</translation>
    </message>
    <message id="preferences_memoryGraph_tip">
        <source></source>
        <translation>Écrit sur chaque barre de mémoire la taille que représente sa longueur.</translation>
    </message>
    <message id="preferences_memoryFigure">
        <source></source>
        <translation>Les &amp;barres de mémoire indiquent :</translation>
    </message>
    <message id="preferences_memoryFigure_tip">
        <source></source>
        <translation>Ce que représente la longueur des barres de mémoire ; quand le tableau est trié par elles, c’est aussi l’ordre des lignes.</translation>
    </message>
    <message id="preferences_memoryFigure_virtual">
        <source></source>
        <translation>la taille virtuelle, avec la résidente à l’intérieur</translation>
    </message>
    <message id="preferences_memoryFigure_resident">
        <source></source>
        <translation>la taille résidente</translation>
    </message>
    <message id="preferences_memoryFigure_proportional">
        <source></source>
        <translation>la taille proportionnelle : mémoire partagée par parts</translation>
    </message>
    <message id="preferences_frameInterval">
        <source></source>
        <translation>&amp;Dessiner une image :</translation>
    </message>
    <message id="preferences_frameInterval_tip">
        <source></source>
        <translation>À quelle fréquence la vue animée est dessinée. Les deux intervalles ci-dessous ne sont jamais plus courts.</translation>
    </message>
    <message id="preferences_mainInterval">
        <source></source>
        <translation>Actualiser les &amp;processus :</translation>
    </message>
    <message id="preferences_mainInterval_tip">
        <source></source>
        <translation>À quelle fréquence la vue animée cherche les processus démarrés ou terminés. Jamais plus court que le dessin, jamais plus long que la mesure.</translation>
    </message>
    <message id="preferences_cpuInterval">
        <source></source>
        <translation>&amp;Mesurer l’utilisation CPU :</translation>
    </message>
    <message id="preferences_cpuInterval_tip">
        <source></source>
        <translation>À quelle fréquence la vue animée mesure l’utilisation CPU de ses processus. Les deux intervalles ci-dessus ne sont jamais plus longs.</translation>
    </message>
    <message id="preferences_windowAlpha">
        <source></source>
        <translation>&amp;Opacité en plein écran :</translation>
    </message>
    <message id="preferences_windowAlpha_tip">
        <source></source>
        <translation>À quel point la vue plein écran couvre le bureau : 0 % cache la vue, 100 % cache le bureau.</translation>
    </message>
    <message id="preferences_underlayAlpha">
        <source></source>
        <translation>Opacité de l’a&amp;rrière-plan :</translation>
    </message>
    <message id="preferences_underlayAlpha_tip">
        <source></source>
        <translation>Avec quelle force l’image derrière les processus apparaît en plein écran.</translation>
    </message>
    <message id="preferences_connectors">
        <source></source>
        <translation>Re&amp;lier parents et enfants en plein écran</translation>
    </message>
    <message id="preferences_connectors_tip">
        <source></source>
        <translation>Trace une ligne de chaque processus à son parent, dans la vue plein écran aussi.</translation>
    </message>
    <message id="preferences_historyInterval">
        <source></source>
        <translation>&amp;Mesurer l’utilisation CPU :</translation>
    </message>
    <message id="preferences_historyInterval_tip">
        <source></source>
        <translation>À quelle fréquence un historique CPU reçoit un nouveau point.</translation>
    </message>
    <message id="preferences_historyFilter">
        <source></source>
        <translation>&amp;Lisser de :</translation>
    </message>
    <message id="preferences_historyFilter_tip">
        <source></source>
        <translation>Quelle part du point précédent passe dans le suivant : 0 % montre chaque saut, des valeurs plus élevées une ligne plus calme.</translation>
    </message>
    <message id="preferences_historyColour">
        <source></source>
        <translation>Utilisation &amp;CPU :</translation>
    </message>
    <message id="preferences_historyColour_tip">
        <source></source>
        <translation>La couleur de la ligne d’utilisation CPU du processus, avec celle de ses descendants quand ils sont inclus.</translation>
    </message>
    <message id="preferences_descendantsColour">
        <source></source>
        <translation>Part &amp;propre :</translation>
    </message>
    <message id="preferences_descendantsColour_tip">
        <source></source>
        <translation>La couleur de la ligne de la part propre du processus quand ses descendants sont inclus. Vaut pour les fenêtres ouvertes à partir de maintenant.</translation>
    </message>
    <message id="preferences_relative">
        <source></source>
        <translation>&amp;Ajuster l’échelle au maximum récent</translation>
    </message>
    <message id="preferences_relative_tip">
        <source></source>
        <translation>La hauteur du graphique représente l’utilisation récente la plus élevée au lieu de 100 %.</translation>
    </message>
    <message id="preferences_descendants">
        <source></source>
        <translation>Inclure les &amp;descendants du processus</translation>
    </message>
    <message id="preferences_descendants_tip">
        <source></source>
        <translation>Montre, dans une couleur à part, ce qu’utilisent les processus qu’il a lancés.</translation>
    </message>
    <message id="preferences_loggingInterval">
        <source></source>
        <translation>&amp;Chercher les changements :</translation>
    </message>
    <message id="preferences_loggingInterval_tip">
        <source></source>
        <translation>À quelle fréquence un journal regarde s’il y a quelque chose de nouveau à noter.</translation>
    </message>
    <message id="preferences_timestamp">
        <source></source>
        <translation>&amp;Heure</translation>
    </message>
    <message id="preferences_timestamp_tip">
        <source></source>
        <translation>Une colonne avec l’heure de chaque ligne.</translation>
    </message>
    <message id="preferences_logToFile">
        <source></source>
        <translation>Écrire aussi dans un fich&amp;ier</translation>
    </message>
    <message id="preferences_logToFile_tip">
        <source></source>
        <translation>Ajoute chaque ligne à un fichier texte propre au journal.</translation>
    </message>
    <message id="preferences_activeTime">
        <source></source>
        <translation>&amp;Temps CPU</translation>
    </message>
    <message id="preferences_activeTime_tip">
        <source></source>
        <translation>Une colonne avec le temps CPU que le processus a consommé.</translation>
    </message>
    <message id="preferences_deltaActiveTime">
        <source></source>
        <translation>Chan&amp;gement du temps CPU</translation>
    </message>
    <message id="preferences_deltaActiveTime_tip">
        <source></source>
        <translation>Une colonne avec le temps CPU consommé depuis la ligne précédente.</translation>
    </message>
    <message id="preferences_realMemory">
        <source></source>
        <translation>Mémoire &amp;réelle</translation>
    </message>
    <message id="preferences_realMemory_tip">
        <source></source>
        <translation>Une colonne avec la mémoire que le processus utilise.</translation>
    </message>
    <message id="preferences_deltaRealMemory">
        <source></source>
        <translation>Chang&amp;ement de la mémoire réelle</translation>
    </message>
    <message id="preferences_deltaRealMemory_tip">
        <source></source>
        <translation>Une colonne avec le changement de la mémoire réelle depuis la ligne précédente.</translation>
    </message>
    <message id="preferences_virtualMemory">
        <source></source>
        <translation>Mémoire &amp;virtuelle</translation>
    </message>
    <message id="preferences_virtualMemory_tip">
        <source></source>
        <translation>Une colonne avec la taille de l’espace d’adressage du processus.</translation>
    </message>
    <message id="preferences_deltaVirtualMemory">
        <source></source>
        <translation>Cha&amp;ngement de la mémoire virtuelle</translation>
    </message>
    <message id="preferences_deltaVirtualMemory_tip">
        <source></source>
        <translation>Une colonne avec le changement de la mémoire virtuelle depuis la ligne précédente.</translation>
    </message>
    <message id="preferences_notice">
        <source></source>
        <translation>Les changements valent pour les fenêtres de journal ouvertes à partir de maintenant.</translation>
    </message>
    <message id="settings_title">
        <source></source>
        <translation>Tous les paramètres</translation>
    </message>
    <message id="settings_filter">
        <source></source>
        <translation>Filtrer par nom, clé, valeur ou signification</translation>
    </message>
    <message id="settings_reset">
        <source></source>
        <translation>&amp;Rétablir la valeur par défaut</translation>
    </message>
    <message id="settings_reset_tip">
        <source></source>
        <translation>Supprime les valeurs enregistrées des paramètres sélectionnés, de sorte que leurs valeurs par défaut comptent.</translation>
    </message>
    <message id="settings_column_key">
        <source></source>
        <translation>Paramètre</translation>
    </message>
    <message id="settings_column_value">
        <source></source>
        <translation>Valeur</translation>
    </message>
    <message id="settings_column_default">
        <source></source>
        <translation>Par défaut</translation>
    </message>
    <message id="settings_column_kind">
        <source></source>
        <translation>Type</translation>
    </message>
    <message id="settings_column_effect">
        <source></source>
        <translation>Prise d’effet</translation>
    </message>
    <message id="settings_column_meaning">
        <source></source>
        <translation>Signification</translation>
    </message>
    <message id="settings_kind_switch">
        <source></source>
        <translation>interrupteur</translation>
    </message>
    <message id="settings_kind_choice">
        <source></source>
        <translation>choix</translation>
    </message>
    <message id="settings_kind_integer">
        <source></source>
        <translation>nombre entier</translation>
    </message>
    <message id="settings_kind_interval">
        <source></source>
        <translation>intervalle</translation>
    </message>
    <message id="settings_kind_colour">
        <source></source>
        <translation>couleur, 0 à 65535</translation>
    </message>
    <message id="settings_kind_real">
        <source></source>
        <translation>nombre</translation>
    </message>
    <message id="settings_kind_text">
        <source></source>
        <translation>texte</translation>
    </message>
    <message id="settings_kind_record">
        <source></source>
        <translation>note du programme</translation>
    </message>
    <message id="settings_kind_array">
        <source></source>
        <translation>enregistrements</translation>
    </message>
    <message id="settings_kind_unit">
        <source></source>
        <translation>%1 en %2</translation>
    </message>
    <message id="settings_unit_milliseconds">
        <source></source>
        <translation>millisecondes</translation>
    </message>
    <message id="settings_unit_seconds">
        <source></source>
        <translation>secondes</translation>
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
        <translation>tics (60 par seconde)</translation>
    </message>
    <message id="settings_kind_range">
        <source></source>
        <translation>%1, de %2 à %3</translation>
    </message>
    <message id="settings_effect_at_once">
        <source></source>
        <translation>aussitôt</translation>
    </message>
    <message id="settings_effect_new_windows">
        <source></source>
        <translation>nouvelles fenêtres</translation>
    </message>
    <message id="settings_effect_next_start">
        <source></source>
        <translation>prochain démarrage</translation>
    </message>
    <message id="settings_note_at_once">
        <source></source>
        <translation>Un changement prend effet aussitôt.</translation>
    </message>
    <message id="settings_note_new_windows">
        <source></source>
        <translation>Un changement vaut pour les fenêtres ouvertes par la suite.</translation>
    </message>
    <message id="settings_note_next_start">
        <source></source>
        <translation>Un changement vaut à partir du prochain démarrage du programme.</translation>
    </message>
    <message id="settings_note_not_stored">
        <source></source>
        <translation>Rien n’est enregistré ; la valeur par défaut compte. %1</translation>
    </message>
    <message id="settings_note_record">
        <source></source>
        <translation>Le programme tient ceci lui-même ; ce n’est pas modifié ici.</translation>
    </message>
    <message id="hot_key_given">
        <source></source>
        <translation>Sur ce bureau, la touche est : %1.</translation>
    </message>
    <message id="hot_key_awaited">
        <source></source>
        <translation>Le bureau n’a pas encore répondu.</translation>
    </message>
    <message id="hot_key_taken">
        <source></source>
        <translation>Elle est sans effet : un autre programme a la touche, ou le clavier n’en a pas de telle.</translation>
    </message>
    <message id="hot_key_refused">
        <source></source>
        <translation>Elle est sans effet : le bureau n’a pas accordé la touche. Ses propres réglages de touches le peuvent.</translation>
    </message>
    <message id="hot_key_no_way">
        <source></source>
        <translation>Elle est sans effet : ce bureau n’accorde pas de touches aux programmes. Dans ses propres réglages, on peut donner une touche à la commande « lurkwell --toggle-overlay ».</translation>
    </message>
    <message id="settings_note_no_number">
        <source></source>
        <translation>Ce qui est enregistré n’est pas un nombre et est lu comme 0. Entrez un nombre ou rétablissez la valeur par défaut.</translation>
    </message>
    <message id="settings_elements" numerus="yes">
        <source></source>
        <translation>
            <numerusform>1 enregistrement</numerusform>
            <numerusform>%n enregistrements</numerusform>
        </translation>
    </message>
    <message id="settings_problem_no_number">
        <source></source>
        <translation>« %1 » n’est pas un nombre. Le paramètre reste comme il était.</translation>
    </message>
    <message id="settings_problem_not_whole">
        <source></source>
        <translation>« %1 » n’est pas un nombre entier. Le paramètre reste comme il était.</translation>
    </message>
    <message id="settings_problem_range">
        <source></source>
        <translation>« %1 » est hors limites : il faut une valeur de %2 à %3. Le paramètre reste comme il était.</translation>
    </message>
    <message id="settings_problem_characters">
        <source></source>
        <translation>Le texte contient des caractères que les paramètres ne peuvent pas contenir. Le paramètre reste comme il était.</translation>
    </message>
    <message id="settings_component_red">
        <source></source>
        <translation>%1 Rouge.</translation>
    </message>
    <message id="settings_component_green">
        <source></source>
        <translation>%1 Vert.</translation>
    </message>
    <message id="settings_component_blue">
        <source></source>
        <translation>%1 Bleu.</translation>
    </message>
    <message id="settings_title_red">
        <source></source>
        <translation>%1 : rouge</translation>
    </message>
    <message id="settings_title_green">
        <source></source>
        <translation>%1 : vert</translation>
    </message>
    <message id="settings_title_blue">
        <source></source>
        <translation>%1 : bleu</translation>
    </message>
    <message id="settings_title_and_key">
        <source></source>
        <translation>%1, clé %2</translation>
    </message>
    <message id="setting_title_GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT">
        <source></source>
        <translation>Unité des tailles mémoire</translation>
    </message>
    <message id="setting_title_GENERAL_PREFERRED_DATE_DISPLAY_FORMAT">
        <source></source>
        <translation>Format des dates</translation>
    </message>
    <message id="setting_title_GENERAL_ALWAYS_AUTHENTICATE_DAEMON">
        <source></source>
        <translation>Demander un mot de passe à chaque démarrage</translation>
    </message>
    <message id="setting_title_GENERAL_CONTINUE_WITHOUT_RIGHTS">
        <source></source>
        <translation>Démarrer sans les droits d’un administrateur</translation>
    </message>
    <message id="setting_title_FIGURES_FROM_HELPER">
        <source></source>
        <translation>Demander au programme auxiliaire les valeurs des processus</translation>
    </message>
    <message id="setting_title_PREFERENCES_UI_DEFAULT_TAB">
        <source></source>
        <translation>Page des préférences</translation>
    </message>
    <message id="setting_title_ABOUT_PANEL_AT_EVERY_START">
        <source></source>
        <translation>Panneau « À propos » à chaque démarrage</translation>
    </message>
    <message id="hint_details">
        <source></source>
        <translation>Un double clic sur un processus ouvre ses détails ; un clic droit propose ce qui peut lui être fait.</translation>
    </message>
    <message id="hint_filter">
        <source></source>
        <translation>Ctrl+F trouve des processus par n’importe quoi : essayez user:root cpu&gt;5, ou port:443.</translation>
    </message>
    <message id="hint_columns">
        <source></source>
        <translation>Un clic droit sur l’en-tête ajoute des colonnes ; Ctrl+1 à Ctrl+7 passent d’un jeu entier de colonnes à l’autre.</translation>
    </message>
    <message id="hint_follow">
        <source></source>
        <translation>Ctrl+N fait flotter au-dessus de toutes les fenêtres un petit graphique du processus sélectionné ; il revient avec son programme.</translation>
    </message>
    <message id="hint_shapes">
        <source></source>
        <translation>Alt+2 affiche les processus en arborescence, Alt+3 par application ; les totaux sont ceux de toute la branche.</translation>
    </message>
    <message id="hints_none">
        <source></source>
        <translation>Plus d’astuces</translation>
    </message>
    <message id="hints_close">
        <source></source>
        <translation>Masquer cette astuce</translation>
    </message>
    <message id="setting_title_HINTS_SEEN">
        <source></source>
        <translation>Astuces masquées</translation>
    </message>
    <message id="setting_title_ABOUT_PANEL_SEEN_VERSION">
        <source></source>
        <translation>Panneau « À propos » : version vue</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_INTERVAL">
        <source></source>
        <translation>Tableau : intervalle d’actualisation</translation>
    </message>
    <message id="setting_title_MEM_GRAPH_DRAW_VSZ">
        <source></source>
        <translation>Tableau : taille sur les barres de mémoire</translation>
    </message>
    <message id="setting_title_MEMORY_BAR_FIGURE">
        <source></source>
        <translation>Tableau : ce qu’indiquent les barres de mémoire</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE">
        <source></source>
        <translation>Tableau : la tâche inactive compte pour 0</translation>
    </message>
    <message id="setting_title_CPU_SHARE_OF_MACHINE">
        <source></source>
        <translation>Colonnes : parts CPU rapportées à la machine</translation>
    </message>
    <message id="setting_title_KEEP_COMMAND_LINES">
        <source></source>
        <translation>Sortie : lignes de commande entières</translation>
    </message>
    <message id="setting_title_MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT">
        <source></source>
        <translation>Tableau : omettre la région partagée</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_PAGEOUT_CRITICAL_FLASH_INTERVAL">
        <source></source>
        <translation>Voyant d’échange : temps entre clignotements</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_FILTER">
        <source></source>
        <translation>Voyant d’échange : lissage</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_RED">
        <source></source>
        <translation>Voyant d’échange : rouge à partir de</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_YELLOW">
        <source></source>
        <translation>Voyant d’échange : jaune à partir de</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_PROCESS_LIST_WINDOW">
        <source></source>
        <translation>La fenêtre principale était ouverte</translation>
    </message>
    <message id="setting_title_DETAILS_WINDOW_FRAME">
        <source></source>
        <translation>Détails : position et taille</translation>
    </message>
    <message id="setting_DETAILS_WINDOW_FRAME">
        <source></source>
        <translation>Position et taille de la dernière fenêtre de détails d’un processus fermée.</translation>
    </message>
    <message id="setting_title_DETAILS_WINDOW_PAGE">
        <source></source>
        <translation>Détails : page</translation>
    </message>
    <message id="setting_DETAILS_WINDOW_PAGE">
        <source></source>
        <translation>Page de la fenêtre de détails affichée en dernier, comptée à partir de 0.</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FRAME">
        <source></source>
        <translation>Fenêtre principale : position et taille</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_ITEMS">
        <source></source>
        <translation>Barre d’outils : éléments</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_DISPLAY_MODE">
        <source></source>
        <translation>Barre d’outils : icônes ou texte</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_SHOWN">
        <source></source>
        <translation>Barre d’outils : affichée</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SORT_COLUMN_INDEX">
        <source></source>
        <translation>Tableau : colonne de tri</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SHAPE">
        <source></source>
        <translation>Forme du tableau des processus, jeu standard</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SCOPE">
        <source></source>
        <translation>Périmètre du tableau des processus</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FOLLOWS_SELECTION">
        <source></source>
        <translation>La sélection reste en place</translation>
    </message>
    <message id="setting_title_WEB_SEARCH_ADDRESS">
        <source></source>
        <translation>Adresse de la recherche sur le Web</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FOLDED_PROGRAMS">
        <source></source>
        <translation>Programmes repliés</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_UNFOLDED_APPLICATIONS">
        <source></source>
        <translation>Applications dépliées</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_RECENT_FILTERS">
        <source></source>
        <translation>Derniers filtres</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMNS">
        <source></source>
        <translation>Tableau : colonnes</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMN_SETS">
        <source></source>
        <translation>Tableau : jeux de colonnes</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMN_SET">
        <source></source>
        <translation>Tableau : jeu affiché</translation>
    </message>
    <message id="setting_title_HAS_RUN_TWO_POINT_THREE">
        <source></source>
        <translation>La colonne de l’indicateur a été ajoutée</translation>
    </message>
    <message id="setting_title_HAS_RUN_TWO_POINT_FOUR">
        <source></source>
        <translation>La colonne de la barre de mémoire a été ajoutée</translation>
    </message>
    <message id="setting_title_DEFAULT_X_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Petites fenêtres : bord gauche de la dernière</translation>
    </message>
    <message id="setting_title_DEFAULT_Y_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Petites fenêtres : bord supérieur de la dernière</translation>
    </message>
    <message id="setting_title_DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA">
        <source></source>
        <translation>Petites fenêtres : opacité</translation>
    </message>
    <message id="setting_title_DEFAULT_WATCHDOG_INTERVAL">
        <source></source>
        <translation>Fenêtres mémorisées : chercher leurs programmes</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_WINDOW_INTERVAL">
        <source></source>
        <translation>Historique CPU : temps entre deux points</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_USE_RELATIVE">
        <source></source>
        <translation>Historique CPU : ajuster au maximum récent</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS">
        <source></source>
        <translation>Historique CPU : inclure les descendants</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_DEFAULT_FILTER">
        <source></source>
        <translation>Historique CPU : lissage</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_BACKGROUND_RGB">
        <source></source>
        <translation>Historique CPU : fond</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_FOREGROUND_RGB">
        <source></source>
        <translation>Historique CPU : utilisation CPU</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB">
        <source></source>
        <translation>Historique CPU : part propre</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_NAME_RGB">
        <source></source>
        <translation>Historique CPU : nom</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_RGB">
        <source></source>
        <translation>Historique CPU : légende de l’échelle fixe</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB">
        <source></source>
        <translation>Historique CPU : légende de l’échelle ajustée</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_FLASH_RGB">
        <source></source>
        <translation>Historique CPU : légende d’une nouvelle échelle</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG">
        <source></source>
        <translation>Historique CPU : fond du pourcentage</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG">
        <source></source>
        <translation>Historique CPU : pourcentage</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_NAME_ALPHA">
        <source></source>
        <translation>Historique CPU : opacité du nom</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HIGHWATERMARK_ALPHA">
        <source></source>
        <translation>Historique CPU : opacité de la légende d’échelle</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_ALPHA">
        <source></source>
        <translation>Historique CPU : opacité du pourcentage</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_ICON_ALPHA">
        <source></source>
        <translation>Historique CPU : opacité de l’icône (ancien)</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_ICON_ALPHA_REALLY">
        <source></source>
        <translation>Historique CPU : opacité de l’icône</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW">
        <source></source>
        <translation>Historique CPU : fenêtres mémorisées</translation>
    </message>
    <message id="setting_title_DEFAULT_LOGGING_WINDOW_INTERVAL">
        <source></source>
        <translation>Journal : chercher les changements</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_INCLUDE_TIMESTAMP">
        <source></source>
        <translation>Journal : heure</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Journal : temps CPU</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Journal : changement du temps CPU</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_REAL_MEM_BOOL">
        <source></source>
        <translation>Journal : mémoire réelle</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_REAL_MEM_BOOL">
        <source></source>
        <translation>Journal : changement de la mémoire réelle</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Journal : mémoire virtuelle</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Journal : changement de la mémoire virtuelle</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_LOG_TO_FILE">
        <source></source>
        <translation>Journal : écrire aussi dans un fichier</translation>
    </message>
    <message id="setting_title_LOGGING_WINDOW">
        <source></source>
        <translation>Journal : fenêtres mémorisées</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_GL_THREAD_INTERVAL">
        <source></source>
        <translation>Vue animée : temps entre deux images</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_MAINPIC_INTERVAL">
        <source></source>
        <translation>Vue animée : chercher les processus</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_HELPERPIC_INTERVAL">
        <source></source>
        <translation>Vue animée : mesurer l’utilisation CPU</translation>
    </message>
    <message id="setting_title_QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS">
        <source></source>
        <translation>Vue plein écran : relier parents et enfants</translation>
    </message>
    <message id="setting_title_QUINT_FULLSCREEN_WINDOW_ALPHA">
        <source></source>
        <translation>Vue plein écran : opacité</translation>
    </message>
    <message id="setting_title_QUINT_FULLSCREEN_UNDERLAY_ALPHA">
        <source></source>
        <translation>Vue plein écran : opacité de l’arrière-plan</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_ICON_SCALE_FACTOR">
        <source></source>
        <translation>Vue animée : échelle des icônes</translation>
    </message>
    <message id="setting_title_QUIVA_FULLSCREEN_EXTRA_SCALE_FACTOR">
        <source></source>
        <translation>Vue plein écran : échelle supplémentaire des icônes</translation>
    </message>
    <message id="setting_title_QUINT_MAX_ITERATIONS_TO_STABILIZE_WHEN_FIRST_SHOWING">
        <source></source>
        <translation>Vue animée : étapes avant la première image</translation>
    </message>
    <message id="setting_title_QUINT_TARVIK_FACTOR">
        <source></source>
        <translation>Vue animée : facteur de l’activité de Lurkwell</translation>
    </message>
    <message id="setting_title_FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE">
        <source></source>
        <translation>Vue plein écran : touche</translation>
    </message>
    <message id="setting_title_QUIVA_CHECK_QUARTZ_EXTREME">
        <source></source>
        <translation>Vue animée : le graphisme a été vérifié</translation>
    </message>
    <message id="setting_title_QUIVA_CHECK_COMPOSITOR">
        <source></source>
        <translation>Vue plein écran : le compositeur a été vérifié</translation>
    </message>
    <message id="setting_title_QUIVA_WINDOW_FRAME">
        <source></source>
        <translation>Vue animée : position et taille</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>La vue animée était ouverte</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>La vue plein écran était ouverte</translation>
    </message>
    <message id="setting_title_CLASSIC_INITIAL_ASSUMED_CPU_USAGE">
        <source></source>
        <translation>Environnement Classic : utilisation CPU au début</translation>
    </message>
    <message id="setting_title_CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER">
        <source></source>
        <translation>Environnement Classic : poids d’une mesure</translation>
    </message>
    <message id="setting_title_CLASSIC_WATCHDOG_INTERVAL">
        <source></source>
        <translation>Environnement Classic : le chercher</translation>
    </message>
    <message id="setting_title_CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX">
        <source></source>
        <translation>Environnement Classic : sommeil de son auxiliaire</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_AND_TESTING">
        <source></source>
        <translation>Valeurs de la machine : afficher une fenêtre</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_SWI_INTERVAL">
        <source></source>
        <translation>Valeurs de la machine : intervalle d’actualisation</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_LEFT">
        <source></source>
        <translation>Valeurs de la machine : bord gauche</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_TOP">
        <source></source>
        <translation>Valeurs de la machine : bord supérieur</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_RIGHT">
        <source></source>
        <translation>Valeurs de la machine : bord droit</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_BOTTOM">
        <source></source>
        <translation>Valeurs de la machine : bord inférieur</translation>
    </message>
    <message id="setting_GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT">
        <source></source>
        <translation>Unité des tailles mémoire : 0 automatique, 1 octets, 2 kilooctets, 3 mégaoctets, 4 gigaoctets.</translation>
    </message>
    <message id="setting_GENERAL_PREFERRED_DATE_DISPLAY_FORMAT">
        <source></source>
        <translation>Comment les dates sont écrites : 0 calendrier et heure, 1 secondes depuis 1970, 2 secondes et microsecondes.</translation>
    </message>
    <message id="setting_GENERAL_ALWAYS_AUTHENTICATE_DAEMON">
        <source></source>
        <translation>Demander le mot de passe d’un administrateur à chaque démarrage, même si le programme auxiliaire a déjà ses droits.</translation>
    </message>
    <message id="setting_GENERAL_CONTINUE_WITHOUT_RIGHTS">
        <source></source>
        <translation>Démarrer sans les droits d’un administrateur là où le programme auxiliaire n’en a pas, et ne pas les demander. Activé par « Continuer sans ».</translation>
    </message>
    <message id="setting_FIGURES_FROM_HELPER">
        <source></source>
        <translation>Demander au programme auxiliaire les valeurs des processus, comme sur les machines où lui seul peut les lire. Désactivé, le programme les lit lui-même, ce qui coûte beaucoup moins.</translation>
    </message>
    <message id="setting_PREFERENCES_UI_DEFAULT_TAB">
        <source></source>
        <translation>Page de la fenêtre des préférences affichée en dernier, comptée à partir de 0.</translation>
    </message>
    <message id="setting_ABOUT_PANEL_AT_EVERY_START">
        <source></source>
        <translation>Afficher le panneau « À propos » pendant trois secondes à chaque démarrage, pas seulement au premier d’une version.</translation>
    </message>
    <message id="setting_HINTS_SEEN">
        <source></source>
        <translation>Combien des astuces au-dessus du tableau ont été masquées ; 0 les affiche de nouveau, une à chaque démarrage.</translation>
    </message>
    <message id="setting_ABOUT_PANEL_SEEN_VERSION">
        <source></source>
        <translation>Version dont le panneau « À propos » a été affiché au démarrage.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_INTERVAL">
        <source></source>
        <translation>Temps entre deux actualisations du tableau de la fenêtre principale.</translation>
    </message>
    <message id="setting_MEM_GRAPH_DRAW_VSZ">
        <source></source>
        <translation>Écrire sur les barres de mémoire la taille que représente leur longueur.</translation>
    </message>
    <message id="setting_MEMORY_BAR_FIGURE">
        <source></source>
        <translation>Ce que représente la longueur des barres de mémoire, et leur ordre quand le tableau est trié par elles : 0 – la taille virtuelle, avec la résidente à l’intérieur, 1 – la taille résidente, 2 – la taille proportionnelle, qui compte la mémoire partagée par parts. Les tailles virtuelles supérieures à la mémoire de la machine ne servent pas de mesure aux autres barres.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE">
        <source></source>
        <translation>Afficher comme 0 l’utilisation CPU et la taille de la tâche inactive, pour que ses barres ne cachent pas toutes les autres.</translation>
    </message>
    <message id="setting_CPU_SHARE_OF_MACHINE">
        <source></source>
        <translation>Afficher les parts CPU, utilisateur et système rapportées à tous les processeurs ensemble au lieu d’un seul : 100 % est alors la machine entière. Les en-têtes de colonne le précisent.</translation>
    </message>
    <message id="setting_KEEP_COMMAND_LINES">
        <source></source>
        <translation>Écrire et imprimer les arguments des programmes, qui peuvent contenir des mots de passe, et pas seulement le programme, partout où une ligne de commande est demandée.</translation>
    </message>
    <message id="setting_MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT">
        <source></source>
        <translation>Omettre des tailles virtuelles la région que partagent tous les processus, sur les machines qui en ont une.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_PAGEOUT_CRITICAL_FLASH_INTERVAL">
        <source></source>
        <translation>Secondes entre deux changements du rouge du voyant d’échange, tant que beaucoup de pages sortent.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_FILTER">
        <source></source>
        <translation>Ce qui reste du débit de pages d’une actualisation à la suivante, de 0 à 1.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_RED">
        <source></source>
        <translation>Pages sortantes par actualisation à partir desquelles le voyant d’échange est rouge.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_YELLOW">
        <source></source>
        <translation>Pages sortantes par actualisation à partir desquelles le voyant d’échange est jaune.</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_PROCESS_LIST_WINDOW">
        <source></source>
        <translation>Ouvrir la fenêtre principale au démarrage. Le programme note ici si elle était ouverte.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FRAME">
        <source></source>
        <translation>Position et taille de la fenêtre principale.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SORT_COLUMN_INDEX">
        <source></source>
        <translation>La colonne mémorisée par laquelle le tableau est trié, comptée à partir de 0.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SHAPE">
        <source></source>
        <translation>Comment les processus figurent dans le tableau avec le jeu de colonnes standard : 0 – en liste, 1 – les enfants sous leurs parents, 2 – sous leurs applications.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SCOPE">
        <source></source>
        <translation>Quels processus le tableau affiche : 0 – tous, 1 – ceux de l’utilisateur, 2 – ceux des autres utilisateurs, 3 – les applications, 4 – tous sauf les threads du noyau, 5 – ce qui a utilisé un processeur depuis la dernière actualisation.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FOLLOWS_SELECTION">
        <source></source>
        <translation>Si la ligne sélectionnée reste à sa place à l’écran pendant que les autres changent de place.</translation>
    </message>
    <message id="setting_WEB_SEARCH_ADDRESS">
        <source></source>
        <translation>Une adresse du Web, dans laquelle %1 représente le nom du programme. Vide pour l’adresse habituelle.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FOLDED_PROGRAMS">
        <source></source>
        <translation>Programmes dont les enfants sont repliés dans l’arborescence, le dernier en premier, avec des signes pour cent à la place des autres lettres.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_UNFOLDED_APPLICATIONS">
        <source></source>
        <translation>Applications, unités, conteneurs et programmes dont les processus sont dépliés, le dernier en premier, avec des signes pour cent à la place des autres lettres.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_RECENT_FILTERS">
        <source></source>
        <translation>Les derniers filtres utilisés du tableau des processus, le dernier en premier, avec des signes pour cent à la place des autres lettres.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMNS">
        <source></source>
        <translation>Colonnes du jeu standard, avec leurs largeurs et leurs sens de tri.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMN_SETS">
        <source></source>
        <translation>Ce que gardent les jeux de colonnes, sauf le standard : colonnes, largeurs, sens de tri, colonne de tri et forme.</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMN_SET">
        <source></source>
        <translation>Le jeu de colonnes qu’affiche le tableau.</translation>
    </message>
    <message id="setting_HAS_RUN_TWO_POINT_THREE">
        <source></source>
        <translation>Si la colonne de l’indicateur a été ajoutée une fois au tableau.</translation>
    </message>
    <message id="setting_HAS_RUN_TWO_POINT_FOUR">
        <source></source>
        <translation>Si la colonne de la barre de mémoire a été ajoutée une fois au tableau.</translation>
    </message>
    <message id="setting_DEFAULT_X_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Bord gauche de la dernière petite fenêtre ouverte ; la suivante est placée à côté.</translation>
    </message>
    <message id="setting_DEFAULT_Y_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>Bord supérieur de la dernière petite fenêtre ouverte ; la suivante est placée au-dessous.</translation>
    </message>
    <message id="setting_DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA">
        <source></source>
        <translation>Opacité des petites fenêtres, 1 pour opaque.</translation>
    </message>
    <message id="setting_DEFAULT_WATCHDOG_INTERVAL">
        <source></source>
        <translation>À quelle fréquence le programme cherche de nouveaux processus dont il a mémorisé les fenêtres.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_WINDOW_INTERVAL">
        <source></source>
        <translation>Temps entre deux points d’un historique CPU.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_USE_RELATIVE">
        <source></source>
        <translation>Ajuster l’échelle des historiques CPU au maximum récent au lieu de 100 %.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS">
        <source></source>
        <translation>Afficher aussi l’utilisation CPU des descendants d’un processus dans son historique.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_DEFAULT_FILTER">
        <source></source>
        <translation>Quelle part du point précédent passe dans le suivant, de 0 à 1.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_BACKGROUND_RGB">
        <source></source>
        <translation>Fond des historiques CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_FOREGROUND_RGB">
        <source></source>
        <translation>L’utilisation CPU du processus dans son historique, avec celle de ses descendants quand ils sont inclus.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB">
        <source></source>
        <translation>La part propre du processus dans l’utilisation CPU de son historique quand ses descendants sont inclus.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_NAME_RGB">
        <source></source>
        <translation>Le nom dans les historiques CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_RGB">
        <source></source>
        <translation>La légende de l’échelle dans les historiques CPU à échelle fixe.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB">
        <source></source>
        <translation>La légende de l’échelle dans les historiques CPU ajustés au maximum.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_FLASH_RGB">
        <source></source>
        <translation>La légende de l’échelle pendant qu’elle clignote après un changement.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG">
        <source></source>
        <translation>Fond du pourcentage actuel dans les historiques CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG">
        <source></source>
        <translation>Le pourcentage actuel dans les historiques CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_NAME_ALPHA">
        <source></source>
        <translation>Opacité du nom dans les historiques CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HIGHWATERMARK_ALPHA">
        <source></source>
        <translation>Opacité de la légende de l’échelle dans les historiques CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_ALPHA">
        <source></source>
        <translation>Opacité du pourcentage actuel dans les historiques CPU.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_ICON_ALPHA">
        <source></source>
        <translation>Opacité de l’icône dans les historiques CPU, ancien paramètre ; un autre a pris sa place.</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_ICON_ALPHA_REALLY">
        <source></source>
        <translation>Opacité de l’icône dans les historiques CPU.</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW">
        <source></source>
        <translation>Historiques CPU qui reviennent quand un processus de leur nom démarre.</translation>
    </message>
    <message id="setting_DEFAULT_LOGGING_WINDOW_INTERVAL">
        <source></source>
        <translation>À quelle fréquence un journal cherche les changements.</translation>
    </message>
    <message id="setting_LOG_WINDOW_INCLUDE_TIMESTAMP">
        <source></source>
        <translation>Les journaux ont une colonne avec l’heure.</translation>
    </message>
    <message id="setting_LOG_WINDOW_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Les journaux ont une colonne avec le temps CPU.</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>Les journaux ont une colonne avec le changement du temps CPU.</translation>
    </message>
    <message id="setting_LOG_WINDOW_REAL_MEM_BOOL">
        <source></source>
        <translation>Les journaux ont une colonne avec la mémoire réelle.</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_REAL_MEM_BOOL">
        <source></source>
        <translation>Les journaux ont une colonne avec le changement de la mémoire réelle.</translation>
    </message>
    <message id="setting_LOG_WINDOW_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Les journaux ont une colonne avec la mémoire virtuelle.</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>Les journaux ont une colonne avec le changement de la mémoire virtuelle.</translation>
    </message>
    <message id="setting_LOG_WINDOW_LOG_TO_FILE">
        <source></source>
        <translation>Les journaux sont aussi écrits dans des fichiers.</translation>
    </message>
    <message id="setting_LOGGING_WINDOW">
        <source></source>
        <translation>Journaux qui reviennent quand un processus de leur nom démarre.</translation>
    </message>
    <message id="setting_HEARTQUIVA_GL_THREAD_INTERVAL">
        <source></source>
        <translation>Temps entre deux images de la vue animée. Jamais plus long que l’intervalle suivant.</translation>
    </message>
    <message id="setting_HEARTQUIVA_MAINPIC_INTERVAL">
        <source></source>
        <translation>À quelle fréquence la vue animée cherche les processus démarrés ou terminés. Jamais plus long que l’intervalle suivant.</translation>
    </message>
    <message id="setting_HEARTQUIVA_HELPERPIC_INTERVAL">
        <source></source>
        <translation>À quelle fréquence la vue animée mesure l’utilisation CPU de ses processus.</translation>
    </message>
    <message id="setting_QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS">
        <source></source>
        <translation>Tracer aussi des lignes entre parents et enfants dans la vue plein écran.</translation>
    </message>
    <message id="setting_QUINT_FULLSCREEN_WINDOW_ALPHA">
        <source></source>
        <translation>Opacité de la vue plein écran.</translation>
    </message>
    <message id="setting_QUINT_FULLSCREEN_UNDERLAY_ALPHA">
        <source></source>
        <translation>Opacité de l’image derrière les processus dans la vue plein écran.</translation>
    </message>
    <message id="setting_HEARTQUIVA_ICON_SCALE_FACTOR">
        <source></source>
        <translation>Échelle des icônes dans la vue animée : le côté d’une icône, en points, est le poids de son processus (0,5 au repos, 2,9 pour un processeur entier) fois la moitié de cette valeur.</translation>
    </message>
    <message id="setting_QUIVA_FULLSCREEN_EXTRA_SCALE_FACTOR">
        <source></source>
        <translation>Combien de fois plus grandes sont les icônes dans la vue plein écran.</translation>
    </message>
    <message id="setting_QUINT_MAX_ITERATIONS_TO_STABILIZE_WHEN_FIRST_SHOWING">
        <source></source>
        <translation>Nombre maximal d’étapes de la disposition de la vue animée avant son premier affichage.</translation>
    </message>
    <message id="setting_QUINT_TARVIK_FACTOR">
        <source></source>
        <translation>Par combien l’activité réelle de Lurkwell et de son programme auxiliaire est multipliée dans la vue animée ; telle quelle sans valeur.</translation>
    </message>
    <message id="setting_FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE">
        <source></source>
        <translation>Touche qui affiche et retire la vue plein écran partout sur le bureau, par son numéro : 98, F7, sauf si autre chose est enregistré.</translation>
    </message>
    <message id="setting_QUIVA_CHECK_QUARTZ_EXTREME">
        <source></source>
        <translation>Si le graphisme de l’affichage a été vérifié au premier affichage de la vue animée.</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>Ouvrir la vue animée au démarrage. Le programme note ici si elle était ouverte.</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>Ouvrir la vue animée en plein écran au démarrage. Le programme note ici si elle l’était.</translation>
    </message>
    <message id="setting_CLASSIC_INITIAL_ASSUMED_CPU_USAGE">
        <source></source>
        <translation>L’utilisation CPU supposée de l’environnement Classic avant qu’elle soit mesurée.</translation>
    </message>
    <message id="setting_CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER">
        <source></source>
        <translation>Combien compte une mesure de l’utilisation CPU de l’environnement Classic, de 0 à 1.</translation>
    </message>
    <message id="setting_CLASSIC_WATCHDOG_INTERVAL">
        <source></source>
        <translation>À quelle fréquence le programme regarde si l’environnement Classic est en marche.</translation>
    </message>
    <message id="setting_CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX">
        <source></source>
        <translation>Combien de temps l’auxiliaire du programme dans l’environnement Classic dort entre deux vérifications, en soixantièmes de seconde.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_AND_TESTING">
        <source></source>
        <translation>Afficher une petite fenêtre avec les valeurs de la machine, pour le débogage.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_SWI_INTERVAL">
        <source></source>
        <translation>À quelle fréquence la fenêtre des valeurs de la machine est mise à jour.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_LEFT">
        <source></source>
        <translation>Bord gauche de la fenêtre des valeurs de la machine.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_TOP">
        <source></source>
        <translation>Bord supérieur de la fenêtre des valeurs de la machine.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_RIGHT">
        <source></source>
        <translation>Bord droit de la fenêtre des valeurs de la machine.</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_BOTTOM">
        <source></source>
        <translation>Bord inférieur de la fenêtre des valeurs de la machine.</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_ITEMS">
        <source></source>
        <translation>Éléments de la barre d’outils de la fenêtre principale, dans leur ordre, séparés par des espaces.</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_DISPLAY_MODE">
        <source></source>
        <translation>Ce que montre la barre d’outils de la fenêtre principale : 0 ou 1 icônes et noms, 2 icônes, 3 noms.</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_SHOWN">
        <source></source>
        <translation>Afficher la barre d’outils de la fenêtre principale.</translation>
    </message>
    <message id="setting_QUIVA_CHECK_COMPOSITOR">
        <source></source>
        <translation>S’il a été dit que la vue plein écran a besoin d’un bureau avec transparence.</translation>
    </message>
    <message id="setting_QUIVA_WINDOW_FRAME">
        <source></source>
        <translation>Position et taille de la fenêtre de la vue animée.</translation>
    </message>
    <message id="graph_missing">
        <source></source>
        <translation>inconnu</translation>
    </message>
    <message id="graph_spoken_range">
        <source></source>
        <translation>entre %1 et %2</translation>
    </message>
    <message id="graph_spoken_span">
        <source></source>
        <translation>en %1</translation>
    </message>
    <message id="graph_now">
        <source></source>
        <translation>maintenant</translation>
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
        <translation>Ma&amp;chine</translation>
    </message>
    <message id="help_menu_window_show_machine">
        <source></source>
        <translation>La machine dans son ensemble : processeurs, mémoire, disques, réseau, et qui était le plus actif</translation>
    </message>
    <message id="fleet_error_unreachable">
        <source></source>
        <translation>Le serveur est injoignable : %1. Vérifiez l’adresse, et que le serveur est en marche.</translation>
    </message>
    <message id="fleet_error_timed_out">
        <source></source>
        <translation>Le serveur n’a pas donné de réponse complète en %1 secondes. Il a peut-être trop à faire ; un filtre, ou un temps plus long entre deux questions, l’allège.</translation>
    </message>
    <message id="fleet_error_too_large">
        <source></source>
        <translation>La réponse du serveur dépasse %1 Mio et a été écartée. Un filtre la réduit.</translation>
    </message>
    <message id="fleet_error_certificate">
        <source></source>
        <translation>Le serveur n’a pas prouvé qu’il est celui qu’il devrait être : %1. Rien ne lui a été envoyé. Utilisez le nom pour lequel vaut son certificat, ou faites en sorte que ce système fasse confiance à son émetteur.</translation>
    </message>
    <message id="fleet_error_no_encryption">
        <source></source>
        <translation>Le Qt de ce système n’a pas TLS, si bien qu’aucune adresse https ne peut être interrogée. Installez sa partie OpenSSL.</translation>
    </message>
    <message id="fleet_error_credentials">
        <source></source>
        <translation>Le serveur veut savoir qui demande, ou ne laisse pas cet utilisateur l’interroger (%1). « Se connecter… » accepte un nom et un mot de passe, ou un jeton.</translation>
    </message>
    <message id="fleet_error_redirected">
        <source></source>
        <translation>Le serveur renvoie toutes les questions vers un autre, %1, qui n’a pas été interrogé. Ouvrez cette adresse si c’est la bonne.</translation>
    </message>
    <message id="fleet_error_not_prometheus">
        <source></source>
        <translation>Ce qui répond à cette adresse n’est pas un Prometheus : %1. Vérifiez le port et le chemin.</translation>
    </message>
    <message id="fleet_error_server">
        <source></source>
        <translation>Le serveur a échoué : %1. Il sera interrogé de nouveau dans un moment.</translation>
    </message>
    <message id="fleet_error_query">
        <source></source>
        <translation>Le serveur a refusé la question : %1.</translation>
    </message>
    <message id="fleet_address_empty">
        <source></source>
        <translation>Entrez l’adresse d’un serveur Prometheus, comme http://monitor:9090.</translation>
    </message>
    <message id="fleet_address_has_password">
        <source></source>
        <translation>Une adresse ne contient ni nom ni mot de passe, car elle est conservée et affichée. Ils vous seront demandés quand le serveur les voudra.</translation>
    </message>
    <message id="fleet_address_wrong">
        <source></source>
        <translation>« %1 » n’est pas une adresse comme http://monitor:9090.</translation>
    </message>
    <message id="fleet_address_scheme">
        <source></source>
        <translation>Les serveurs s’interrogent par http ou https, pas par « %1 ».</translation>
    </message>
    <message id="fleet_credentials_unreadable">
        <source></source>
        <translation>%1 ne peut pas être lu : %2.</translation>
    </message>
    <message id="fleet_credentials_open">
        <source></source>
        <translation>D’autres peuvent aussi lire ou modifier %1. Retirez-leur ce droit (chmod 600), et changez de mot de passe si c’était un secret.</translation>
    </message>
    <message id="fleet_credentials_no_line">
        <source></source>
        <translation>%1 n’est pas un fichier d’une ligne, NOM:MOT_DE_PASSE ou un jeton.</translation>
    </message>
    <message id="fleet_filter_of_processes">
        <source></source>
        <translation>« %1 » n’est connu que de processus isolés, pas des sommes dont dispose le serveur.</translation>
    </message>
    <message id="fleet_filter_no_text">
        <source></source>
        <translation>« %1 » est un nombre : comparez-le, comme dans cpu&gt;50.</translation>
    </message>
    <message id="fleet_filter_either">
        <source></source>
        <translation>Le serveur peut chercher l’un de plusieurs textes du même genre, comme dans « a | b », mais pas l’une de conditions de genres différents.</translation>
    </message>
    <message id="fleet_filter_two_kinds">
        <source></source>
        <translation>Chaque groupe est d’un seul genre, il n’y en a donc aucun des deux : %1.</translation>
    </message>
    <message id="fleet_filter_not_groups">
        <source></source>
        <translation>On ne peut pas demander les machines sans un tel groupe.</translation>
    </message>
    <message id="fleet_filter_not_here">
        <source></source>
        <translation>« %1 » n’est pas connu ici.</translation>
    </message>
    <message id="fleet_filter_one_number">
        <source></source>
        <translation>« %1 » se compare à un seul nombre.</translation>
    </message>
    <message id="fleet_filter_order">
        <source></source>
        <translation>« %1 » se compare avec &lt; ou &gt;, car des fractions ne sont presque jamais égales.</translation>
    </message>
    <message id="fleet_filter_too_long">
        <source></source>
        <translation>Le filtre est trop long.</translation>
    </message>
    <message id="fleet_cpu">
        <source></source>
        <translation>CPU %</translation>
    </message>
    <message id="fleet_cpu_tip">
        <source></source>
        <translation>Part du temps des processeurs : de tous pour une machine, d’un seul pour un groupe, si bien que 250 en font deux et demi. Sur les deux dernières visites du serveur.</translation>
    </message>
    <message id="fleet_memory">
        <source></source>
        <translation>Mémoire</translation>
    </message>
    <message id="fleet_memory_tip">
        <source></source>
        <translation>Pour une machine, la mémoire qui n’est pas disponible ; pour un groupe, la mémoire résidente de ses processus.</translation>
    </message>
    <message id="fleet_memory_all">
        <source></source>
        <translation>Mémoire totale</translation>
    </message>
    <message id="fleet_memory_all_tip">
        <source></source>
        <translation>Toute la mémoire de la machine.</translation>
    </message>
    <message id="fleet_swap">
        <source></source>
        <translation>Échange</translation>
    </message>
    <message id="fleet_swap_tip">
        <source></source>
        <translation>Mémoire transférée en espace d’échange.</translation>
    </message>
    <message id="fleet_load">
        <source></source>
        <translation>Charge</translation>
    </message>
    <message id="fleet_load_tip">
        <source></source>
        <translation>Charge sur une minute.</translation>
    </message>
    <message id="fleet_disk">
        <source></source>
        <translation>Disque</translation>
    </message>
    <message id="fleet_disk_tip">
        <source></source>
        <translation>Octets lus et écrits sur les disques, par seconde.</translation>
    </message>
    <message id="fleet_network">
        <source></source>
        <translation>Réseau</translation>
    </message>
    <message id="fleet_network_tip">
        <source></source>
        <translation>Octets reçus et envoyés, par seconde ; sans les échanges de la machine avec elle-même.</translation>
    </message>
    <message id="fleet_waits_cpu">
        <source></source>
        <translation>Attente : CPU %</translation>
    </message>
    <message id="fleet_waits_cpu_tip">
        <source></source>
        <translation>Part du temps pendant laquelle quelque chose attendait un processeur.</translation>
    </message>
    <message id="fleet_waits_memory">
        <source></source>
        <translation>Attente : mémoire %</translation>
    </message>
    <message id="fleet_waits_memory_tip">
        <source></source>
        <translation>Part du temps pendant laquelle quelque chose attendait de la mémoire.</translation>
    </message>
    <message id="fleet_waits_disk">
        <source></source>
        <translation>Attente : disque %</translation>
    </message>
    <message id="fleet_waits_disk_tip">
        <source></source>
        <translation>Part du temps pendant laquelle quelque chose attendait des disques.</translation>
    </message>
    <message id="fleet_processes">
        <source></source>
        <translation>Processus</translation>
    </message>
    <message id="fleet_processes_tip">
        <source></source>
        <translation>Combien il y a de processus.</translation>
    </message>
    <message id="fleet_threads">
        <source></source>
        <translation>Threads</translation>
    </message>
    <message id="fleet_threads_tip">
        <source></source>
        <translation>Combien il y a de threads.</translation>
    </message>
    <message id="fleet_machines">
        <source></source>
        <translation>Machines</translation>
    </message>
    <message id="fleet_machines_tip">
        <source></source>
        <translation>Sur combien de machines il y a des processus du groupe.</translation>
    </message>
    <message id="fleet_oldest">
        <source></source>
        <translation>En marche depuis</translation>
    </message>
    <message id="fleet_oldest_tip">
        <source></source>
        <translation>Depuis combien de temps la machine, ou le plus ancien processus du groupe, est démarrée.</translation>
    </message>
    <message id="fleet_seen">
        <source></source>
        <translation>Vue il y a</translation>
    </message>
    <message id="fleet_seen_tip">
        <source></source>
        <translation>Depuis combien de temps le serveur a eu des nouvelles de la machine. Une machine qu’il n’atteint pas est affichée comme hors service.</translation>
    </message>
    <message id="fleet_up">
        <source></source>
        <translation>Joignable</translation>
    </message>
    <message id="fleet_up_tip">
        <source></source>
        <translation>Si le serveur atteint la machine.</translation>
    </message>
    <message id="fleet_read">
        <source></source>
        <translation>Lu</translation>
    </message>
    <message id="fleet_read_tip">
        <source></source>
        <translation>Octets lus sur les disques, par seconde.</translation>
    </message>
    <message id="fleet_written">
        <source></source>
        <translation>Écrit</translation>
    </message>
    <message id="fleet_written_tip">
        <source></source>
        <translation>Octets écrits sur les disques, par seconde.</translation>
    </message>
    <message id="fleet_received">
        <source></source>
        <translation>Reçu</translation>
    </message>
    <message id="fleet_received_tip">
        <source></source>
        <translation>Octets reçus, par seconde.</translation>
    </message>
    <message id="fleet_sent">
        <source></source>
        <translation>Envoyé</translation>
    </message>
    <message id="fleet_sent_tip">
        <source></source>
        <translation>Octets envoyés, par seconde.</translation>
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
        <translation>%1 j</translation>
    </message>
    <message id="graph_hours_ago">
        <source></source>
        <translation>−%1 h</translation>
    </message>
    <message id="graph_days_ago">
        <source></source>
        <translation>−%1 j</translation>
    </message>
    <message id="fleet_title">
        <source></source>
        <translation>Parc de %1</translation>
    </message>
    <message id="fleet_machine">
        <source></source>
        <translation>Machine</translation>
    </message>
    <message id="fleet_group">
        <source></source>
        <translation>Nom</translation>
    </message>
    <message id="fleet_down">
        <source></source>
        <translation>hors service</translation>
    </message>
    <message id="fleet_down_for">
        <source></source>
        <translation>hors service, %1</translation>
    </message>
    <message id="fleet_show_machines">
        <source></source>
        <translation>Machines</translation>
    </message>
    <message id="fleet_show_program">
        <source></source>
        <translation>Programmes</translation>
    </message>
    <message id="fleet_show_unit">
        <source></source>
        <translation>Unités</translation>
    </message>
    <message id="fleet_show_container">
        <source></source>
        <translation>Conteneurs</translation>
    </message>
    <message id="fleet_show_user">
        <source></source>
        <translation>Utilisateurs</translation>
    </message>
    <message id="fleet_back">
        <source></source>
        <translation>Retour</translation>
    </message>
    <message id="fleet_back_tip">
        <source></source>
        <translation>Ce qui était affiché avant (Alt+Gauche)</translation>
    </message>
    <message id="fleet_on">
        <source></source>
        <translation>sur %1</translation>
    </message>
    <message id="fleet_with">
        <source></source>
        <translation>avec %1</translation>
    </message>
    <message id="fleet_filter">
        <source></source>
        <translation>Filtre, appliqué par le serveur</translation>
    </message>
    <message id="fleet_filter_tip">
        <source></source>
        <translation>Comme dans le tableau des processus : web, name:postgres, machine:web-1, unit:nginx, user:root, cpu&gt;50, mem&gt;4G, processes&gt;100. C’est le serveur qui cherche ; il peut donc avoir un nombre quelconque de machines.</translation>
    </message>
    <message id="fleet_interval">
        <source></source>
        <translation>À quelle fréquence le serveur est interrogé</translation>
    </message>
    <message id="fleet_interval_never">
        <source></source>
        <translation>Pas automatiquement</translation>
    </message>
    <message id="fleet_interval_seconds">
        <source></source>
        <translation>Toutes les %1 s</translation>
    </message>
    <message id="fleet_interval_minutes">
        <source></source>
        <translation>Toutes les %1 min</translation>
    </message>
    <message id="fleet_sign_in">
        <source></source>
        <translation>Se connecter…</translation>
    </message>
    <message id="fleet_again">
        <source></source>
        <translation>Réessayer</translation>
    </message>
    <message id="fleet_open_machine">
        <source></source>
        <translation>Afficher ce qui y tourne</translation>
    </message>
    <message id="fleet_open_group">
        <source></source>
        <translation>Afficher ses machines</translation>
    </message>
    <message id="fleet_ssh">
        <source></source>
        <translation>Ouvrir ssh dans un terminal</translation>
    </message>
    <message id="fleet_copy">
        <source></source>
        <translation>Copier</translation>
    </message>
    <message id="fleet_ssh_no_host">
        <source></source>
        <translation>« %1 » n’est pas un nom d’hôte que ssh puisse joindre.</translation>
    </message>
    <message id="fleet_ssh_no_ssh">
        <source></source>
        <translation>Il n’y a pas de ssh sur cette machine. Installez le client OpenSSH.</translation>
    </message>
    <message id="fleet_ssh_no_terminal">
        <source></source>
        <translation>Aucun terminal connu n’existe sur cette machine. Installez-en un, comme xterm, ou nommez le vôtre dans la variable TERMINAL.</translation>
    </message>
    <message id="fleet_ssh_failed">
        <source></source>
        <translation>%1 ne peut pas être lancé.</translation>
    </message>
    <message id="fleet_old_figures">
        <source></source>
        <translation>Les valeurs ci-dessous sont celles de %1.</translation>
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
            <numerusform>%n ligne</numerusform>
            <numerusform>%n lignes</numerusform>
        </translation>
    </message>
    <message id="fleet_count_down" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n hors service</numerusform>
            <numerusform>%n hors service</numerusform>
        </translation>
    </message>
    <message id="fleet_shown_most" numerus="yes">
        <source></source>
        <translation>
            <numerusform>est affichée %n seule, la première par %1, de la plus haute ; un filtre trouve les autres</numerusform>
            <numerusform>les %n plus hautes par %1 sont affichées ; un filtre trouve les autres</numerusform>
        </translation>
    </message>
    <message id="fleet_shown_least" numerus="yes">
        <source></source>
        <translation>
            <numerusform>est affichée %n seule, la première par %1, de la plus basse ; un filtre trouve les autres</numerusform>
            <numerusform>les %n plus basses par %1 sont affichées ; un filtre trouve les autres</numerusform>
        </translation>
    </message>
    <message id="fleet_as_of">
        <source></source>
        <translation>à %1</translation>
    </message>
    <message id="fleet_left_out" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n valeur de la réponse n’avait pas de sens et a été omise</numerusform>
            <numerusform>%n valeurs de la réponse n’avaient pas de sens et ont été omises</numerusform>
        </translation>
    </message>
    <message id="fleet_asking">
        <source></source>
        <translation>Interrogation du serveur…</translation>
    </message>
    <message id="fleet_nothing_known">
        <source></source>
        <translation>Rien n’est encore connu.</translation>
    </message>
    <message id="fleet_nothing_fulfils">
        <source></source>
        <translation>Rien ne correspond au filtre.</translation>
    </message>
    <message id="fleet_nothing_there">
        <source></source>
        <translation>Le serveur ne connaît pas de valeurs de ce genre. Les machines apparaissent dès que le serveur interroge leur exportateur, lurkwell-export.</translation>
    </message>
    <message id="fleet_span">
        <source></source>
        <translation>Historique :</translation>
    </message>
    <message id="fleet_span_hour">
        <source></source>
        <translation>1 heure</translation>
    </message>
    <message id="fleet_span_6_hours">
        <source></source>
        <translation>6 heures</translation>
    </message>
    <message id="fleet_span_day">
        <source></source>
        <translation>1 jour</translation>
    </message>
    <message id="fleet_span_week">
        <source></source>
        <translation>7 jours</translation>
    </message>
    <message id="fleet_no_row">
        <source></source>
        <translation>Sélectionnez une ligne pour voir son historique.</translation>
    </message>
    <message id="fleet_no_history">
        <source></source>
        <translation>Le serveur n’a pas de valeurs de cette période.</translation>
    </message>
    <message id="fleet_graph_cpu_machine">
        <source></source>
        <translation>CPU de tous les processeurs</translation>
    </message>
    <message id="fleet_graph_cpu">
        <source></source>
        <translation>CPU d’un processeur</translation>
    </message>
    <message id="fleet_graph_waits">
        <source></source>
        <translation>Attentes</translation>
    </message>
    <message id="fleet_graph_traffic">
        <source></source>
        <translation>Disque et réseau</translation>
    </message>
    <message id="fleet_memory_series">
        <source></source>
        <translation>Utilisée</translation>
    </message>
    <message id="fleet_memory_all_series">
        <source></source>
        <translation>Totale</translation>
    </message>
    <message id="fleet_swap_series">
        <source></source>
        <translation>Échange</translation>
    </message>
    <message id="fleet_waits_cpu_series">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="fleet_waits_memory_series">
        <source></source>
        <translation>Mémoire</translation>
    </message>
    <message id="fleet_waits_disk_series">
        <source></source>
        <translation>Disque</translation>
    </message>
    <message id="fleet_read_series">
        <source></source>
        <translation>Lu</translation>
    </message>
    <message id="fleet_written_series">
        <source></source>
        <translation>Écrit</translation>
    </message>
    <message id="fleet_received_series">
        <source></source>
        <translation>Reçu</translation>
    </message>
    <message id="fleet_sent_series">
        <source></source>
        <translation>Envoyé</translation>
    </message>
    <message id="fleet_open_title">
        <source></source>
        <translation>Ouvrir un parc</translation>
    </message>
    <message id="fleet_open_words">
        <source></source>
        <translation>L’adresse d’un serveur Prometheus qui interroge les exportateurs de vos machines :</translation>
    </message>
    <message id="fleet_address">
        <source></source>
        <translation>Adresse</translation>
    </message>
    <message id="fleet_sign_in_title">
        <source></source>
        <translation>Se connecter à %1</translation>
    </message>
    <message id="fleet_sign_in_words">
        <source></source>
        <translation>Un nom et un mot de passe, un jeton, ou un fichier avec l’un ou l’autre. Ils ne sont envoyés qu’à ce serveur, et gardés jusqu’à la fermeture de la fenêtre.</translation>
    </message>
    <message id="fleet_sign_in_in_clear">
        <source></source>
        <translation>Un nom et un mot de passe, un jeton, ou un fichier avec l’un ou l’autre. Ils sont gardés jusqu’à la fermeture de la fenêtre. Cette adresse n’est pas chiffrée : n’importe qui sur le chemin peut les lire. Une adresse https vaut mieux.</translation>
    </message>
    <message id="fleet_sign_in_name">
        <source></source>
        <translation>&amp;Nom :</translation>
    </message>
    <message id="fleet_sign_in_password">
        <source></source>
        <translation>Mot de &amp;passe :</translation>
    </message>
    <message id="fleet_sign_in_token">
        <source></source>
        <translation>&amp;Jeton :</translation>
    </message>
    <message id="fleet_sign_in_file">
        <source></source>
        <translation>&amp;Fichier :</translation>
    </message>
    <message id="fleet_sign_in_choose">
        <source></source>
        <translation>&amp;Choisir…</translation>
    </message>
    <message id="fleet_sign_in_nothing">
        <source></source>
        <translation>Entrez un nom, un jeton ou le chemin d’un fichier.</translation>
    </message>
    <message id="fleet_sign_in_wrong">
        <source></source>
        <translation>Cela ne peut pas être envoyé : un nom n’a pas de deux-points, et un jeton ni espaces ni lettres hors ASCII.</translation>
    </message>
    <message id="fleet_failed">
        <source></source>
        <translation>Le parc ne peut pas être ouvert</translation>
    </message>
    <message id="menu_file_open_fleet">
        <source></source>
        <translation>Ouvrir un &amp;parc…</translation>
    </message>
    <message id="help_menu_file_open_fleet">
        <source></source>
        <translation>examiner toutes les machines que connaît un serveur Prometheus, dans une fenêtre à part</translation>
    </message>
    <message id="setting_title_FLEET_WINDOW_FRAME">
        <source></source>
        <translation>Fenêtre de parc : position</translation>
    </message>
    <message id="setting_FLEET_WINDOW_FRAME">
        <source></source>
        <translation>Où se trouvait en dernier la fenêtre d’un parc, avec sa taille.</translation>
    </message>
    <message id="setting_title_FLEET_WINDOW_SECONDS">
        <source></source>
        <translation>Fenêtre de parc : intervalle</translation>
    </message>
    <message id="setting_FLEET_WINDOW_SECONDS">
        <source></source>
        <translation>Combien de secondes la fenêtre d’un parc attend avant d’interroger de nouveau son serveur ; 0 si elle ne l’interroge que sur demande.</translation>
    </message>
    <message id="setting_title_FLEET_RECENT_ADDRESSES">
        <source></source>
        <translation>Derniers parcs</translation>
    </message>
    <message id="setting_FLEET_RECENT_ADDRESSES">
        <source></source>
        <translation>Les adresses des serveurs ouverts en dernier, la dernière en premier, avec des signes pour cent à la place des autres lettres. Les noms et les mots de passe n’y figurent pas.</translation>
    </message>
    <message id="machine_title">
        <source></source>
        <translation>Machine</translation>
    </message>
    <message id="machine_span">
        <source></source>
        <translation>Période :</translation>
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
        <translation>Cette machine n’indique pas à quel point ses processeurs sont occupés.</translation>
    </message>
    <message id="machine_processors">
        <source></source>
        <translation>Processeurs</translation>
    </message>
    <message id="machine_processor">
        <source></source>
        <translation>%1 : %2</translation>
    </message>
    <message id="machine_memory">
        <source></source>
        <translation>Mémoire</translation>
    </message>
    <message id="machine_no_memory">
        <source></source>
        <translation>Cette machine n’indique pas sa mémoire.</translation>
    </message>
    <message id="machine_swap">
        <source></source>
        <translation>Espace d’échange</translation>
    </message>
    <message id="machine_no_swap">
        <source></source>
        <translation>Cette machine n’a pas d’espace d’échange.</translation>
    </message>
    <message id="machine_used_of">
        <source></source>
        <translation>sur %1, utilisée</translation>
    </message>
    <message id="machine_disks">
        <source></source>
        <translation>Disques</translation>
    </message>
    <message id="machine_no_disks">
        <source></source>
        <translation>Pas encore de valeurs des disques, ou il n’y a pas de disques.</translation>
    </message>
    <message id="machine_network">
        <source></source>
        <translation>Réseau</translation>
    </message>
    <message id="machine_no_network">
        <source></source>
        <translation>Pas encore de valeurs du réseau, ou il n’y a pas de réseau.</translation>
    </message>
    <message id="machine_all_devices">
        <source></source>
        <translation>Tous</translation>
    </message>
    <message id="machine_read">
        <source></source>
        <translation>lu</translation>
    </message>
    <message id="machine_written">
        <source></source>
        <translation>écrit</translation>
    </message>
    <message id="machine_received">
        <source></source>
        <translation>reçu</translation>
    </message>
    <message id="machine_sent">
        <source></source>
        <translation>envoyé</translation>
    </message>
    <message id="machine_pressure">
        <source></source>
        <translation>Pression</translation>
    </message>
    <message id="machine_no_pressure">
        <source></source>
        <translation>Ce noyau n’indique pas combien de temps les processus ont dû attendre.</translation>
    </message>
    <message id="machine_waits_processor">
        <source></source>
        <translation>certains attendaient le CPU</translation>
    </message>
    <message id="machine_waits_memory">
        <source></source>
        <translation>la mémoire</translation>
    </message>
    <message id="machine_waits_disk">
        <source></source>
        <translation>les disques</translation>
    </message>
    <message id="machine_stalled_memory">
        <source></source>
        <translation>tous attendaient la mémoire</translation>
    </message>
    <message id="machine_stalled_disk">
        <source></source>
        <translation>les disques</translation>
    </message>
    <message id="machine_graphics">
        <source></source>
        <translation>Graphisme</translation>
    </message>
    <message id="machine_no_graphics">
        <source></source>
        <translation>Aucun périphérique graphique n’indique à quel point il est occupé.</translation>
    </message>
    <message id="machine_busiest_now">
        <source></source>
        <translation>Les plus actifs maintenant</translation>
    </message>
    <message id="machine_busiest_at">
        <source></source>
        <translation>Les plus actifs à %1</translation>
    </message>
    <message id="machine_back_to_now">
        <source></source>
        <translation>&amp;Maintenant</translation>
    </message>
    <message id="machine_note">
        <source></source>
        <translation>Un clic sur un graphique montre qui était alors le plus actif ; un clic sur un nom montre le processus dans le tableau des processus.</translation>
    </message>
    <message id="machine_has_ended">
        <source></source>
        <translation>Le processus %1 s’est terminé.</translation>
    </message>
    <message id="machine_not_in_table">
        <source></source>
        <translation>Le processus %1 n’est pas dans le tableau : un filtre le masque peut-être.</translation>
    </message>
    <message id="machine_ended">
        <source></source>
        <translation>%1 (terminé)</translation>
    </message>
    <message id="machine_name">
        <source></source>
        <translation>Nom</translation>
    </message>
    <message id="machine_pid">
        <source></source>
        <translation>ID du processus</translation>
    </message>
    <message id="machine_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="machine_load">
        <source></source>
        <translation>Charge : %1, %2, %3 sur 1, 5 et 15 minutes</translation>
    </message>
    <message id="machine_no_load">
        <source></source>
        <translation>Charge : non indiquée par cette machine</translation>
    </message>
    <message id="machine_frequency">
        <source></source>
        <translation>Fréquence : %1 GHz (%2 à %3)</translation>
    </message>
    <message id="machine_no_frequency">
        <source></source>
        <translation>Fréquence : non indiquée par cette machine</translation>
    </message>
    <message id="machine_no_temperature">
        <source></source>
        <translation>Température : non indiquée par cette machine</translation>
    </message>
    <message id="machine_more_temperatures" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n autre capteur est moins chaud</numerusform>
            <numerusform>%n autres capteurs sont moins chauds</numerusform>
        </translation>
    </message>
    <message id="machine_limits">
        <source></source>
        <translation>Ce conteneur peut utiliser %1.</translation>
    </message>
    <message id="machine_limit_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n processeur</numerusform>
            <numerusform>%n processeurs</numerusform>
        </translation>
    </message>
    <message id="machine_limit_memory">
        <source></source>
        <translation>%1 de mémoire</translation>
    </message>
    <message id="machine_limit_memory_used">
        <source></source>
        <translation>%1 de mémoire (%2 utilisés)</translation>
    </message>
    <message id="tray_cpu">
        <source></source>
        <translation>CPU %1</translation>
    </message>
    <message id="tray_busy">
        <source></source>
        <translation>%1 : %2</translation>
    </message>
    <message id="setting_title_TRAY_ICON">
        <source></source>
        <translation>Icône dans la zone de notification</translation>
    </message>
    <message id="setting_title_ACCESSIBLE_QUIET">
        <source></source>
        <translation>Lecteur d’écran : ne rien annoncer sans demande</translation>
    </message>
    <message id="setting_title_REDUCE_MOTION">
        <source></source>
        <translation>Moins de mouvement</translation>
    </message>
    <message id="setting_title_MACHINE_HISTORY_ALWAYS">
        <source></source>
        <translation>Historique de la machine dès le démarrage</translation>
    </message>
    <message id="setting_TRAY_ICON">
        <source></source>
        <translation>Afficher une icône avec un petit graphique des processeurs dans la zone de notification du bureau ; son infobulle et son menu indiquent les trois processus les plus actifs. Tant qu’elle est là, le programme continue quand sa dernière fenêtre est fermée.</translation>
    </message>
    <message id="setting_ACCESSIBLE_QUIET">
        <source></source>
        <translation>Un lecteur d’écran apprend où vous allez et ce que vous demandez, mais rien de ce que changent les mises à jour. Sinon, la ligne qui a le focus est relue toutes les quelques secondes tant que ses valeurs changent.</translation>
    </message>
    <message id="setting_REDUCE_MOTION">
        <source></source>
        <translation>Rien ne bouge, ne glisse ni ne clignote de soi-même : la vue animée reste immobile dès que ses processus ont leur place, et les tailles changent d’un coup. Il en va de même tant que le bureau est réglé sur moins de mouvement ou sans animations.</translation>
    </message>
    <message id="setting_MACHINE_HISTORY_ALWAYS">
        <source></source>
        <translation>Garder pendant une heure ce que fait la machine et qui est le plus actif, dès le démarrage du programme ; sinon, à partir de la première ouverture de la fenêtre de la machine.</translation>
    </message>
    <message id="setting_title_MACHINE_WINDOW_FRAME">
        <source></source>
        <translation>Fenêtre de la machine : position et taille</translation>
    </message>
    <message id="setting_MACHINE_WINDOW_FRAME">
        <source></source>
        <translation>Position et taille de la fenêtre de la machine.</translation>
    </message>
    <message id="setting_title_MACHINE_WINDOW_MINUTES">
        <source></source>
        <translation>Fenêtre de la machine : minutes affichées</translation>
    </message>
    <message id="setting_MACHINE_WINDOW_MINUTES">
        <source></source>
        <translation>Combien de minutes affiche la fenêtre de la machine. Le programme note ici ce qui y a été choisi.</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_MACHINE_WINDOW">
        <source></source>
        <translation>La fenêtre de la machine était ouverte</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_MACHINE_WINDOW">
        <source></source>
        <translation>Ouvrir la fenêtre de la machine au démarrage. Le programme note ici si elle était ouverte.</translation>
    </message>
    <message id="alert_ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="helper_refused_title">
        <source></source>
        <translation>Lurkwell doit être authentifié avec le mot de passe d’un administrateur pour fonctionner sur cet ordinateur.</translation>
    </message>
    <message id="helper_refused_text">
        <source></source>
        <translation>Sans les droits d’un administrateur, Lurkwell affiche tous les processus et agit sur les vôtres. Il ne demandera rien au prochain démarrage ; la barre d’état indique comment être de nouveau interrogé.</translation>
    </message>
    <message id="helper_refused_again">
        <source></source>
        <translation>S’authentifier à nouveau</translation>
    </message>
    <message id="helper_refused_quit">
        <source></source>
        <translation>Quitter Lurkwell</translation>
    </message>
    <message id="helper_refused_without">
        <source></source>
        <translation>Continuer sans</translation>
    </message>
    <message id="helper_not_wanted">
        <source></source>
        <translation>Lurkwell a été démarré sans les droits d’un administrateur</translation>
    </message>
    <message id="helper_refused_by_user">
        <source></source>
        <translation>Lurkwell continue sans les droits d’un administrateur, comme vous l’avez choisi</translation>
    </message>
    <message id="shortcut_overlay">
        <source></source>
        <translation>Vue animée sur l’écran</translation>
    </message>
    <message id="notifications_no_bus">
        <source></source>
        <translation>il n’y a pas de bus de session</translation>
    </message>
    <message id="notifications_too_many">
        <source></source>
        <translation>trop à la fois</translation>
    </message>
</context>
</TS>
