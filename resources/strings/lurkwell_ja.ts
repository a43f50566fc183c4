<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="meta_pid">
        <source></source>
        <translation>プロセス ID</translation>
    </message>
    <message id="meta_pid_tip">
        <source></source>
        <translation>プロセスの番号です。カーネルのプロセスは 1 から数えます。0 はアイドルタスクを表し、Classic 環境のアプリケーションには -1 より小さい仮の番号が付きます。</translation>
    </message>
    <message id="meta_name">
        <source></source>
        <translation>名前</translation>
    </message>
    <message id="meta_name_tip">
        <source></source>
        <translation>アプリケーションであるプロセスはアプリケーションの名前、それ以外はコマンド名です。わかる場合は省略せずに示します。</translation>
    </message>
    <message id="meta_active_time">
        <source></source>
        <translation>CPU 時間</translation>
    </message>
    <message id="meta_active_time_tip">
        <source></source>
        <translation>プロセスの開始以降に使った CPU 時間 (ユーザーとシステムの合計) で、単位は秒です。Classic 環境のアプリケーションでは推定値です。</translation>
    </message>
    <message id="meta_kind">
        <source></source>
        <translation>種類</translation>
    </message>
    <message id="meta_kind_tip">
        <source></source>
        <translation>プロセスの種類です。デスクトップのアプリケーション、Classic 環境のアプリケーション、カーネルのスレッド、ゾンビ (終了したが、親プロセスが終了ステータスをまだ受け取っていないもの)、その他のプロセスがあります。</translation>
    </message>
    <message id="meta_psn">
        <source></source>
        <translation>シリアル番号</translation>
    </message>
    <message id="meta_psn_tip">
        <source></source>
        <translation>デスクトップ上のアプリケーションのシリアル番号で、2 つの 16 進数で表します。アプリケーションでないプロセスではどちらも 0 です。</translation>
    </message>
    <message id="carbonpsn_name">
        <source></source>
        <translation>アプリケーション名</translation>
    </message>
    <message id="carbonpsn_name_tip">
        <source></source>
        <translation>デスクトップが把握しているアプリケーションの名前です。アプリケーションでないプロセスでは空です。</translation>
    </message>
    <message id="carbonpsn_type">
        <source></source>
        <translation>アプリケーションタイプ</translation>
    </message>
    <message id="carbonpsn_type_tip">
        <source></source>
        <translation>アプリケーションの 4 文字のタイプです。通常のアプリケーションは APPL です。デスクトップから得ます。</translation>
    </message>
    <message id="carbonpsn_signature">
        <source></source>
        <translation>アプリケーションシグネチャ</translation>
    </message>
    <message id="carbonpsn_signature_tip">
        <source></source>
        <translation>アプリケーションを区別する 4 文字です。デスクトップエントリーまたはウィンドウクラスの名前の先頭部分です。デスクトップから得ます。</translation>
    </message>
    <message id="carbonpsn_mode">
        <source></source>
        <translation>アプリケーションモード</translation>
    </message>
    <message id="carbonpsn_mode_tip">
        <source></source>
        <translation>デスクトップが報告するアプリケーションのモードフラグで、16 進数のマスクです。</translation>
    </message>
    <message id="classicpsn_name">
        <source></source>
        <translation>Classic 名</translation>
    </message>
    <message id="classicpsn_name_tip">
        <source></source>
        <translation>Classic 環境内でのアプリケーションの名前です。その環境のアプリケーションだけにあります。</translation>
    </message>
    <message id="classicpsn_type">
        <source></source>
        <translation>Classic タイプ</translation>
    </message>
    <message id="classicpsn_type_tip">
        <source></source>
        <translation>Classic 環境内でのアプリケーションの 4 文字のファイルタイプです。</translation>
    </message>
    <message id="classicpsn_signature">
        <source></source>
        <translation>Classic シグネチャ</translation>
    </message>
    <message id="classicpsn_signature_tip">
        <source></source>
        <translation>Classic 環境内でのアプリケーションの 4 文字のクリエーターコードです。</translation>
    </message>
    <message id="classicpsn_mode">
        <source></source>
        <translation>Classic モード</translation>
    </message>
    <message id="classicpsn_mode_tip">
        <source></source>
        <translation>Classic 環境内でのアプリケーションのモードフラグで、16 進数のマスクです。</translation>
    </message>
    <message id="classicpsn_location">
        <source></source>
        <translation>Classic 位置</translation>
    </message>
    <message id="classicpsn_location_tip">
        <source></source>
        <translation>Classic 環境内でアプリケーションのメモリパーティションが始まるアドレスで、16 進数です。</translation>
    </message>
    <message id="classicpsn_size">
        <source></source>
        <translation>Classic サイズ</translation>
    </message>
    <message id="classicpsn_size_tip">
        <source></source>
        <translation>Classic 環境内でのアプリケーションのメモリパーティションのサイズで、単位はバイトです。</translation>
    </message>
    <message id="classicpsn_active_time">
        <source></source>
        <translation>Classic 動作時間</translation>
    </message>
    <message id="classicpsn_active_time_tip">
        <source></source>
        <translation>Classic 環境内でアプリケーションが動作した時間で、単位は 60 分の 1 秒のティックです。</translation>
    </message>
    <message id="classicpsn_free_mem">
        <source></source>
        <translation>Classic 空きメモリ</translation>
    </message>
    <message id="classicpsn_free_mem_tip">
        <source></source>
        <translation>Classic 環境内でのアプリケーションのメモリパーティションの残りで、単位はバイトです。</translation>
    </message>
    <message id="pid_p_comm">
        <source></source>
        <translation>コマンド名</translation>
    </message>
    <message id="pid_p_comm_tip">
        <source></source>
        <translation>コマンドの名前で、最大 16 文字です。カーネルはそのうち 15 文字を保持しており、それより長い名前はコマンドラインや実行ファイルから補います。</translation>
    </message>
    <message id="pid_p_priority">
        <source></source>
        <translation>優先度</translation>
    </message>
    <message id="pid_p_priority_tip">
        <source></source>
        <translation>カーネルのスケジューリング優先度で、小さいものほど先に実行されます。通常のプロセスは 20 に nice 値を加えた値、リアルタイムのものは 0 未満です。/proc/PID/stat によります。</translation>
    </message>
    <message id="pid_parent_pid">
        <source></source>
        <translation>親プロセス ID</translation>
    </message>
    <message id="pid_parent_pid_tip">
        <source></source>
        <translation>このプロセスを起動したプロセス、またはこれを引き取ったプロセスの番号です。</translation>
    </message>
    <message id="pid_p_nice">
        <source></source>
        <translation>nice 値</translation>
    </message>
    <message id="pid_p_nice_tip">
        <source></source>
        <translation>プロセスがほかにどれだけ譲るかを示します。-20 (最小) から 19 (最大) までです。/proc/PID/stat によります。</translation>
    </message>
    <message id="pid_p_starttime">
        <source></source>
        <translation>開始時刻</translation>
    </message>
    <message id="pid_p_starttime_tip">
        <source></source>
        <translation>プロセスが開始された日付と時刻です。/proc/PID/stat によります。</translation>
    </message>
    <message id="pid_user_time">
        <source></source>
        <translation>ユーザー時間</translation>
    </message>
    <message id="pid_user_time_tip">
        <source></source>
        <translation>プログラム自身のコードに使われた CPU 時間 (全スレッドの合計) で、単位は秒です。/proc/PID/stat によります。</translation>
    </message>
    <message id="pid_system_time">
        <source></source>
        <translation>システム時間</translation>
    </message>
    <message id="pid_system_time_tip">
        <source></source>
        <translation>カーネルがこのプロセスのために使った CPU 時間 (全スレッドの合計) で、単位は秒です。/proc/PID/stat によります。</translation>
    </message>
    <message id="pid_vsz">
        <source></source>
        <translation>仮想サイズ</translation>
    </message>
    <message id="pid_vsz_tip">
        <source></source>
        <translation>使用中かどうかにかかわらず、プロセスがマップしたすべてのメモリのサイズで、単位はバイトです。/proc/PID/stat によります。</translation>
    </message>
    <message id="pid_rsz">
        <source></source>
        <translation>常駐サイズ</translation>
    </message>
    <message id="pid_rsz_tip">
        <source></source>
        <translation>プロセスのメモリのうち RAM にある量で、共有ページも含みます。単位はバイトです。/proc/PID/stat によります。</translation>
    </message>
    <message id="pid_pss">
        <source></source>
        <translation>比例配分メモリ</translation>
    </message>
    <message id="pid_pss_tip">
        <source></source>
        <translation>比例配分サイズ (PSS) です。プロセスが単独で持つメモリに、ほかと共有する各ページの分担分を加えたものです。全プロセスで合計すると、全体の使用量になります。/proc/PID/smaps_rollup によります。カーネルがメモリをたどって集計するため、見えている行を優先してバックグラウンドで読み取ります。スワップアウトされたメモリは含みません。ほかのユーザーのプロセスについては許可されていません。</translation>
    </message>
    <message id="pid_uss">
        <source></source>
        <translation>固有メモリ</translation>
    </message>
    <message id="pid_uss_tip">
        <source></source>
        <translation>固有サイズ (USS) です。ほかのどのプロセスとも共有していないメモリで、終了すれば解放される量です。/proc/PID/smaps_rollup の Private_Clean と Private_Dirty によります。見えている行を優先してバックグラウンドで読み取ります。スワップアウトされたメモリと hugetlbfs の巨大ページは含みません。ほかのユーザーのプロセスについては許可されていません。</translation>
    </message>
    <message id="pid_descriptors">
        <source></source>
        <translation>ディスクリプター数</translation>
    </message>
    <message id="pid_descriptors_tip">
        <source></source>
        <translation>プロセスが開いているファイル、ソケット、パイプなどのディスクリプターの数です (/proc/PID/fd のエントリー数)。バックグラウンドで読み取ります。メモリにマップされているだけのファイルは含みません。ほかのユーザーのプロセスについては、バージョン 6.2 以降のカーネルが報告します。</translation>
    </message>
    <message id="pid_net_received">
        <source></source>
        <translation>受信量</translation>
    </message>
    <message id="pid_net_received_tip">
        <source></source>
        <translation>ネットワークから受信したバイト数で、ループバックも含みます。合計とは、Lurkwell が確認を始めてからの量に、まだ開いている接続がそれ以前に転送した量を加えたものです。対象は、この名前空間にある TCP 接続のうち、カーネルのソケット診断が報告するものです。プロセスのディスクリプターをもとに数え、複数のプロセスが持つ接続はそれぞれに数えます。UDP と QUIC、2 回の確認の間に始まって終わった接続、ほかのネットワーク名前空間は数えません。TCP 接続をまだ持ったことのないプロセスには値がありません。ほかのユーザーのプロセスについては許可されていません。ユニットの値を見てください。</translation>
    </message>
    <message id="pid_net_sent">
        <source></source>
        <translation>送信量</translation>
    </message>
    <message id="pid_net_sent_tip">
        <source></source>
        <translation>ネットワークへ送信され、相手が受信を確認したバイト数で、ループバックも含みます。合計とは、Lurkwell が確認を始めてからの量に、まだ開いている接続がそれ以前に転送した量を加えたものです。対象は、この名前空間にある TCP 接続のうち、カーネルのソケット診断が報告するものです。プロセスのディスクリプターをもとに数え、複数のプロセスが持つ接続はそれぞれに数えます。UDP と QUIC、2 回の確認の間に始まって終わった接続、ほかのネットワーク名前空間は数えません。TCP 接続をまだ持ったことのないプロセスには値がありません。ほかのユーザーのプロセスについては許可されていません。ユニットの値を見てください。</translation>
    </message>
    <message id="pid_net_receive_rate">
        <source></source>
        <translation>受信/秒</translation>
    </message>
    <message id="pid_net_receive_rate_tip">
        <source></source>
        <translation>直前 2 回の確認の間にネットワークから受信した、1 秒あたりのバイト数です。対象は、この名前空間にある TCP 接続のうち、カーネルのソケット診断が報告するものです。プロセスのディスクリプターをもとに数え、複数のプロセスが持つ接続はそれぞれに数えます。UDP と QUIC、2 回の確認の間に始まって終わった接続、ほかのネットワーク名前空間は数えません。TCP 接続をまだ持ったことのないプロセスには値がありません。ほかのユーザーのプロセスについては許可されていません。ユニットの値を見てください。</translation>
    </message>
    <message id="pid_net_send_rate">
        <source></source>
        <translation>送信/秒</translation>
    </message>
    <message id="pid_net_send_rate_tip">
        <source></source>
        <translation>直前 2 回の確認の間にネットワークへ送信され受信が確認された、1 秒あたりのバイト数です。対象は、この名前空間にある TCP 接続のうち、カーネルのソケット診断が報告するものです。プロセスのディスクリプターをもとに数え、複数のプロセスが持つ接続はそれぞれに数えます。UDP と QUIC、2 回の確認の間に始まって終わった接続、ほかのネットワーク名前空間は数えません。TCP 接続をまだ持ったことのないプロセスには値がありません。ほかのユーザーのプロセスについては許可されていません。ユニットの値を見てください。</translation>
    </message>
    <message id="pid_connections">
        <source></source>
        <translation>接続数</translation>
    </message>
    <message id="pid_connections_tip">
        <source></source>
        <translation>プロセスが開いている TCP 接続の数で、待ち受けだけのものは除きます。カーネルのソケット診断から、プロセスのディスクリプターをもとに数えます。ほかのプロトコルとほかのネットワーク名前空間は数えません。ほかのユーザーのプロセスについては許可されていません。</translation>
    </message>
    <message id="pid_listening_ports">
        <source></source>
        <translation>待ち受けポート</translation>
    </message>
    <message id="pid_listening_ports_tip">
        <source></source>
        <translation>プロセスが接続を待っている TCP ポートです。カーネルのソケット診断から、プロセスのディスクリプターをもとに調べます。UDP とほかのネットワーク名前空間は含みません。ほかのユーザーのプロセスについては許可されていません。</translation>
    </message>
    <message id="pid_ports">
        <source></source>
        <translation>ポート</translation>
    </message>
    <message id="pid_ports_tip">
        <source></source>
        <translation>プロセスの TCP・UDP ソケットのポートです。自分側と相手側の両方を含みます。
開いているディスクリプターと /proc/PID/net のソケット表によります。ほかのユーザーのプロセスについては許可されていません。</translation>
    </message>
    <message id="pid_open_files">
        <source></source>
        <translation>開いているファイル</translation>
    </message>
    <message id="pid_open_files_tip">
        <source></source>
        <translation>プロセスが開いているファイルの名前と作業フォルダーです。
/proc/PID/fd と /proc/PID/cwd によります。ほかのユーザーのプロセスについては許可されていません。</translation>
    </message>
    <message id="pid_unit_net_received">
        <source></source>
        <translation>受信量 (ユニット)</translation>
    </message>
    <message id="pid_unit_net_received_tip">
        <source></source>
        <translation>TCP 接続で受信したバイト数です。カーネルのソケット診断がすべてのユーザーに報告する、ユニット (コントロールグループ) の全プロセスを合わせた 1 つの値です。UDP と QUIC、2 回の確認の間に始まって終わった接続、ほかのネットワーク名前空間は数えません。合計とは、Lurkwell が確認を始めてからの量に、まだ開いている接続がそれ以前に転送した量を加えたものです。</translation>
    </message>
    <message id="pid_unit_net_sent">
        <source></source>
        <translation>送信量 (ユニット)</translation>
    </message>
    <message id="pid_unit_net_sent_tip">
        <source></source>
        <translation>TCP 接続で送信され、受信が確認されたバイト数です。カーネルのソケット診断がすべてのユーザーに報告する、ユニット (コントロールグループ) の全プロセスを合わせた 1 つの値です。UDP と QUIC、2 回の確認の間に始まって終わった接続、ほかのネットワーク名前空間は数えません。合計とは、Lurkwell が確認を始めてからの量に、まだ開いている接続がそれ以前に転送した量を加えたものです。</translation>
    </message>
    <message id="pid_unit_net_receive_rate">
        <source></source>
        <translation>受信/秒 (ユニット)</translation>
    </message>
    <message id="pid_unit_net_receive_rate_tip">
        <source></source>
        <translation>TCP 接続で受信している、1 秒あたりのバイト数です。カーネルのソケット診断がすべてのユーザーに報告する、ユニット (コントロールグループ) の全プロセスを合わせた 1 つの値です。UDP と QUIC、2 回の確認の間に始まって終わった接続、ほかのネットワーク名前空間は数えません。</translation>
    </message>
    <message id="pid_unit_net_send_rate">
        <source></source>
        <translation>送信/秒 (ユニット)</translation>
    </message>
    <message id="pid_unit_net_send_rate_tip">
        <source></source>
        <translation>TCP 接続で送信され受信が確認された、1 秒あたりのバイト数です。カーネルのソケット診断がすべてのユーザーに報告する、ユニット (コントロールグループ) の全プロセスを合わせた 1 つの値です。UDP と QUIC、2 回の確認の間に始まって終わった接続、ほかのネットワーク名前空間は数えません。</translation>
    </message>
    <message id="pid_gpu_share">
        <source></source>
        <translation>GPU</translation>
    </message>
    <message id="pid_gpu_share_tip">
        <source></source>
        <translation>直前 2 回の確認の間に、グラフィックスデバイスの最も忙しいエンジンがこのプロセスのために働いた時間の割合です。カーネルがプロセスのグラフィックスデバイスのディスクリプターごとに保持する使用状況 (/proc/PID/fdinfo) から求めます。デバイスの各クライアントは 1 回だけ数えます。NVIDIA 独自のドライバーのように、値を保持しないドライバーは数えません。デバイスを開いたり起こしたりはしません。ほかのユーザーのプロセスについては許可されていません。</translation>
    </message>
    <message id="pid_gpu_memory">
        <source></source>
        <translation>GPU メモリ</translation>
    </message>
    <message id="pid_gpu_memory_tip">
        <source></source>
        <translation>プロセスが保持するグラフィックスデバイスのメモリです。ドライバーが報告する場合は常駐量、それ以外は割り当て量です。カーネルがプロセスのグラフィックスデバイスのディスクリプターごとに保持する使用状況 (/proc/PID/fdinfo) から求めます。デバイスの各クライアントは 1 回だけ数えます。NVIDIA 独自のドライバーのように、値を保持しないドライバーは数えません。デバイスを開いたり起こしたりはしません。ほかのユーザーのプロセスについては許可されていません。</translation>
    </message>
    <message id="pid_gpu_engine">
        <source></source>
        <translation>GPU エンジン</translation>
    </message>
    <message id="pid_gpu_engine_tip">
        <source></source>
        <translation>直前 2 回の確認の間にこのプロセスのために最も忙しかったエンジンで、名称はドライバーによります (render、video、copy など)。カーネルがプロセスのグラフィックスデバイスのディスクリプターごとに保持する使用状況 (/proc/PID/fdinfo) から求めます。デバイスの各クライアントは 1 回だけ数えます。NVIDIA 独自のドライバーのように、値を保持しないドライバーは数えません。デバイスを開いたり起こしたりはしません。ほかのユーザーのプロセスについては許可されていません。</translation>
    </message>
    <message id="value_age_tip" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 秒前に読み取りました。</numerusform>
        </translation>
    </message>
    <message id="pid_suspend_count">
        <source></source>
        <translation>停止カウント</translation>
    </message>
    <message id="pid_suspend_count_tip">
        <source></source>
        <translation>シグナルまたはデバッガーによってプロセスが停止している間は 1、それ以外は 0 です。</translation>
    </message>
    <message id="pid_terminated_user_time">
        <source></source>
        <translation>終了スレッドのユーザー時間</translation>
    </message>
    <message id="pid_terminated_user_time_tip">
        <source></source>
        <translation>終了したスレッドのユーザー時間です。Linux ではユーザー時間に含まれるため、常に 0 です。</translation>
    </message>
    <message id="pid_terminated_system_time">
        <source></source>
        <translation>終了スレッドのシステム時間</translation>
    </message>
    <message id="pid_terminated_system_time_tip">
        <source></source>
        <translation>終了したスレッドのシステム時間です。Linux ではシステム時間に含まれるため、常に 0 です。</translation>
    </message>
    <message id="pid_policy">
        <source></source>
        <translation>スケジューリングポリシー</translation>
    </message>
    <message id="pid_policy_tip">
        <source></source>
        <translation>カーネルのスケジューリングポリシーの番号です。0 通常、1 FIFO、2 ラウンドロビン、3 バッチ、5 アイドル、6 デッドライン。/proc/PID/stat によります。</translation>
    </message>
    <message id="pid_faults">
        <source></source>
        <translation>ページフォールト</translation>
    </message>
    <message id="pid_faults_tip">
        <source></source>
        <translation>プロセスの開始以降のページフォールトで、ディスクからの読み取りの有無を問いません。/proc/PID/stat によります。</translation>
    </message>
    <message id="pid_pageins">
        <source></source>
        <translation>ページイン</translation>
    </message>
    <message id="pid_pageins_tip">
        <source></source>
        <translation>ディスクからの読み取りを待つ必要があったページフォールト (メジャーフォールト) です。/proc/PID/stat によります。</translation>
    </message>
    <message id="pid_cow_faults">
        <source></source>
        <translation>コピーオンライトフォールト</translation>
    </message>
    <message id="pid_cow_faults_tip">
        <source></source>
        <translation>共有ページをコピーしたページフォールトです。Linux では数えられないため、常に 0 です。</translation>
    </message>
    <message id="pid_messages_sent">
        <source></source>
        <translation>送信メッセージ</translation>
    </message>
    <message id="pid_messages_sent_tip">
        <source></source>
        <translation>カーネルとプロセスの間で送信されたメッセージです。Linux にはこのようなメッセージがないため、常に 0 です。</translation>
    </message>
    <message id="pid_messages_received">
        <source></source>
        <translation>受信メッセージ</translation>
    </message>
    <message id="pid_messages_received_tip">
        <source></source>
        <translation>カーネルとプロセスの間で受信されたメッセージです。Linux にはこのようなメッセージがないため、常に 0 です。</translation>
    </message>
    <message id="pid_syscalls_mach">
        <source></source>
        <translation>Mach システムコール</translation>
    </message>
    <message id="pid_syscalls_mach_tip">
        <source></source>
        <translation>Mach カーネルのインターフェースの呼び出しです。Linux にはないため、常に 0 です。</translation>
    </message>
    <message id="pid_syscalls_unix">
        <source></source>
        <translation>Unix システムコール</translation>
    </message>
    <message id="pid_syscalls_unix_tip">
        <source></source>
        <translation>読み取りと書き込みのシステムコールの合計です。ほかの呼び出しは数えません。/proc/PID/io によります。読めるのはそのユーザーと root だけです。</translation>
    </message>
    <message id="pid_csw">
        <source></source>
        <translation>コンテキストスイッチ</translation>
    </message>
    <message id="pid_csw_tip">
        <source></source>
        <translation>自発的かどうかを問わず、CPU がプロセスのメインスレッドから切り替えられた回数です。/proc/PID/status によります。</translation>
    </message>
    <message id="pid_processor">
        <source></source>
        <translation>最後の CPU</translation>
    </message>
    <message id="pid_processor_tip">
        <source></source>
        <translation>プロセスのメインスレッドが最後に動作したプロセッサーの番号で、0 から数えます。/proc/PID/stat によります。</translation>
    </message>
    <message id="pid_cpu_wait">
        <source></source>
        <translation>CPU 待ち時間</translation>
    </message>
    <message id="pid_cpu_wait_tip">
        <source></source>
        <translation>プロセスのスレッドが実行可能な状態でプロセッサーを待った時間の合計で、単位は秒です。終了したスレッドは含みません。/proc/PID/task/TID/schedstat によります。</translation>
    </message>
    <message id="pid_disk_read">
        <source></source>
        <translation>ディスク読み取り量</translation>
    </message>
    <message id="pid_disk_read_tip">
        <source></source>
        <translation>プロセスの開始以降に、記憶装置がこのプロセスのために読み出したバイト数です。/proc/PID/io によります。読めるのはそのユーザーと root だけです。</translation>
    </message>
    <message id="pid_disk_written">
        <source></source>
        <translation>ディスク書き込み量</translation>
    </message>
    <message id="pid_disk_written_tip">
        <source></source>
        <translation>プロセスの開始以降に、このプロセスが記憶装置に書き込ませたバイト数です。すぐに削除されたファイルに書き込んだ分も含みます。/proc/PID/io によります。読めるのはそのユーザーと root だけです。</translation>
    </message>
    <message id="pid_bytes_read">
        <source></source>
        <translation>読み取りバイト数</translation>
    </message>
    <message id="pid_bytes_read_tip">
        <source></source>
        <translation>プロセスの開始以降に、読み取りの呼び出しで受け取ったバイト数です。ディスク、キャッシュ、端末のどこから来たかを問いません。/proc/PID/io によります。読めるのはそのユーザーと root だけです。</translation>
    </message>
    <message id="pid_bytes_written">
        <source></source>
        <translation>書き込みバイト数</translation>
    </message>
    <message id="pid_bytes_written_tip">
        <source></source>
        <translation>プロセスの開始以降に、書き込みの呼び出しで渡したバイト数です。ディスク、キャッシュ、端末のどこへ行ったかを問いません。/proc/PID/io によります。読めるのはそのユーザーと root だけです。</translation>
    </message>
    <message id="pid_unit_disk_read">
        <source></source>
        <translation>ディスク読み取り量 (ユニット)</translation>
    </message>
    <message id="pid_unit_disk_read_tip">
        <source></source>
        <translation>記憶装置がプロセスのユニット (コントロールグループ) のために読み出したバイト数です。終了したものも含め、その中の全プロセスの合計です。誰でも読める io.stat によります。入出力を計量していないユニットには値がありません。</translation>
    </message>
    <message id="pid_unit_disk_written">
        <source></source>
        <translation>ディスク書き込み量 (ユニット)</translation>
    </message>
    <message id="pid_unit_disk_written_tip">
        <source></source>
        <translation>プロセスのユニット (コントロールグループ) が記憶装置に書き込ませたバイト数です。終了したものも含め、その中の全プロセスの合計です。誰でも読める io.stat によります。入出力を計量していないユニットには値がありません。</translation>
    </message>
    <message id="pid_owner">
        <source></source>
        <translation>所有者</translation>
    </message>
    <message id="pid_owner_tip">
        <source></source>
        <translation>プロセスの持ち主であるユーザーです。別のユーザーとして動作している場合は「as」に続けてそのユーザーを示します。/proc/PID/status によります。名前のないユーザーは番号で示します。</translation>
    </message>
    <message id="pid_state">
        <source></source>
        <translation>状態 (説明)</translation>
    </message>
    <message id="pid_state_tip">
        <source></source>
        <translation>プロセスのメインスレッドがしていることです。実行中 (または実行可能)、スリープ、割り込み不可 (多くはディスク待ち)、停止、デバッガーによる追跡、ゾンビ (終了したがまだ回収されていない)、アイドル (カーネル自身のもの) があります。/proc/PID/stat によります。ほかのスレッドは別のことをしている場合があります。</translation>
    </message>
    <message id="pid_threads">
        <source></source>
        <translation>スレッド数</translation>
    </message>
    <message id="pid_threads_tip">
        <source></source>
        <translation>プロセスのスレッドの数です。/proc/PID/stat によります。終了したスレッドは数えません。</translation>
    </message>
    <message id="pid_terminal">
        <source></source>
        <translation>制御端末</translation>
    </message>
    <message id="pid_terminal_tip">
        <source></source>
        <translation>プロセスが属する端末で、/dev 以下の名前で示します。/proc/PID/stat によります。端末のないプロセスでは空です。端末ウィンドウ内のプログラムは、そのウィンドウの端末になります。</translation>
    </message>
    <message id="pid_command_line">
        <source></source>
        <translation>コマンドライン全体</translation>
    </message>
    <message id="pid_command_line_tip">
        <source></source>
        <translation>プログラムとその引数です。表示できない文字はエスケープで示します。/proc/PID/cmdline により、最大約 4,000 文字です。プロセスは引数を書き換えることができるため、現在の内容を示します。設定 KEEP_COMMAND_LINES がオンでないかぎり、出力や書き出しではプログラムだけになります。</translation>
    </message>
    <message id="pid_executable">
        <source></source>
        <translation>実行ファイル</translation>
    </message>
    <message id="pid_executable_tip">
        <source></source>
        <translation>プロセスが実行しているファイルです。置き換えまたは削除された後は「(deleted)」が付きます。/proc/PID/exe によります。読めるのはそのユーザーと root だけです。カーネルスレッドにはありません。</translation>
    </message>
    <message id="pid_running_time">
        <source></source>
        <translation>実行時間</translation>
    </message>
    <message id="pid_running_time_tip">
        <source></source>
        <translation>プロセスが開始されてからの時間で、日、時、分、秒で表します。マシンがスリープしていた時間も含みます。/proc/PID/stat と時計によります。</translation>
    </message>
    <message id="pid_cpu_share">
        <source></source>
        <translation>CPU % (コア)</translation>
    </message>
    <message id="pid_cpu_share_of_machine">
        <source></source>
        <translation>CPU % (全体)</translation>
    </message>
    <message id="pid_cpu_share_tip">
        <source></source>
        <translation>前回の更新以降に、プロセスが全スレッド合わせて 1 つのプロセッサーをどれだけ使ったかを示します。100 は 1 つのプロセッサーを使い続けたこと、4 つの忙しいスレッドは 400 を意味します。/proc/PID/stat の時間 (100 分の 1 秒単位) によります。終了した子プロセスが使った分は含みません。</translation>
    </message>
    <message id="pid_user_share">
        <source></source>
        <translation>ユーザー % (コア)</translation>
    </message>
    <message id="pid_user_share_of_machine">
        <source></source>
        <translation>ユーザー % (全体)</translation>
    </message>
    <message id="pid_user_share_tip">
        <source></source>
        <translation>前回の更新以降に、プロセスが自分のコードのために 1 つのプロセッサーをどれだけ使ったかを示します。/proc/PID/stat の時間によります。</translation>
    </message>
    <message id="pid_system_share">
        <source></source>
        <translation>システム % (コア)</translation>
    </message>
    <message id="pid_system_share_of_machine">
        <source></source>
        <translation>システム % (全体)</translation>
    </message>
    <message id="pid_system_share_tip">
        <source></source>
        <translation>前回の更新以降に、カーネルがこのプロセスのために 1 つのプロセッサーをどれだけ使ったかを示します。/proc/PID/stat の時間によります。</translation>
    </message>
    <message id="pid_affinity">
        <source></source>
        <translation>使用可能な CPU</translation>
    </message>
    <message id="pid_affinity_tip">
        <source></source>
        <translation>プロセスのメインスレッドが動作できるプロセッサーで、0 からの番号で示します。カーネルの sched_getaffinity が報告する値です。プロセスのコントロールグループの制限を反映しています。ほかのスレッドでは異なる場合があります。</translation>
    </message>
    <message id="pid_scheduler">
        <source></source>
        <translation>スケジューラー</translation>
    </message>
    <message id="pid_scheduler_tip">
        <source></source>
        <translation>カーネルがこのプロセスにプロセッサーを割り当てる方法です。通常、バッチ、アイドル (ほかに使うものがないときだけ)、リアルタイム、デッドラインがあります。メインスレッドについて /proc/PID/stat によります。</translation>
    </message>
    <message id="pid_io_priority">
        <source></source>
        <translation>I/O 優先度</translation>
    </message>
    <message id="pid_io_priority_tip">
        <source></source>
        <translation>ディスクを待つときのプロセスの順位で、クラスと、0 (最高) から 7 までのレベルで示します。カーネルの ioprio_get が報告する値です。多くの NVMe ディスクのようにスケジューラーのないディスクでは考慮されません。</translation>
    </message>
    <message id="pid_shared_memory">
        <source></source>
        <translation>共有メモリ</translation>
    </message>
    <message id="pid_shared_memory_tip">
        <source></source>
        <translation>プロセスのメモリのうち、ほかもマップしている可能性があるものです。ファイルやライブラリの一部、共有を目的としたメモリが該当します。/proc/PID/status の RssFile と RssShmem によります。実際に共有されているかどうかにかかわらず、常駐サイズの一部です。</translation>
    </message>
    <message id="pid_swap">
        <source></source>
        <translation>スワップアウト</translation>
    </message>
    <message id="pid_swap_tip">
        <source></source>
        <translation>プロセスのメモリのうち、スワップ領域に移されたものです。/proc/PID/status の VmSwap によります。スワップアウトされた共有メモリは含みません。</translation>
    </message>
    <message id="pid_highest_rsz">
        <source></source>
        <translation>最大常駐サイズ</translation>
    </message>
    <message id="pid_highest_rsz_tip">
        <source></source>
        <translation>プロセスがこれまでに一度に使った最大のメモリです。/proc/PID/status の VmHWM によります。</translation>
    </message>
    <message id="pid_memory_share">
        <source></source>
        <translation>メモリ %</translation>
    </message>
    <message id="pid_memory_share_tip">
        <source></source>
        <translation>プロセスの常駐サイズがマシンの全メモリに占める割合です。/proc/PID/stat によります。共有している分は持っているプロセスごとに全量を数えるため、合計が 100 を超えることがあります。</translation>
    </message>
    <message id="pid_oom_score">
        <source></source>
        <translation>メモリ不足スコア</translation>
    </message>
    <message id="pid_oom_score_tip">
        <source></source>
        <translation>メモリが不足したときに最初に終了させられるのは、スコアの最も高いプロセスです。/proc/PID/oom_score によります。</translation>
    </message>
    <message id="pid_disk_read_rate">
        <source></source>
        <translation>ディスク読取/秒</translation>
    </message>
    <message id="pid_disk_read_rate_tip">
        <source></source>
        <translation>前回の更新以降に、記憶装置がこのプロセスのために読み出した 1 秒あたりのバイト数です。/proc/PID/io によります。読めるのはそのユーザーと root だけです。ほかのユーザーのプロセスについては、ユニットの値を見てください。</translation>
    </message>
    <message id="pid_disk_write_rate">
        <source></source>
        <translation>ディスク書込/秒</translation>
    </message>
    <message id="pid_disk_write_rate_tip">
        <source></source>
        <translation>前回の更新以降に、このプロセスが記憶装置に書き込ませた 1 秒あたりのバイト数です。/proc/PID/io によります。読めるのはそのユーザーと root だけです。ほかのユーザーのプロセスについては、ユニットの値を見てください。</translation>
    </message>
    <message id="pid_read_rate">
        <source></source>
        <translation>読取/秒</translation>
    </message>
    <message id="pid_read_rate_tip">
        <source></source>
        <translation>前回の更新以降に、プロセスが読み取りの呼び出しで受け取った 1 秒あたりのバイト数です。ディスク、キャッシュ、パイプ、端末のどこから来たかを問いません。/proc/PID/io によります。読めるのはそのユーザーと root だけです。</translation>
    </message>
    <message id="pid_write_rate">
        <source></source>
        <translation>書込/秒</translation>
    </message>
    <message id="pid_write_rate_tip">
        <source></source>
        <translation>前回の更新以降に、プロセスが書き込みの呼び出しで渡した 1 秒あたりのバイト数です。ディスク、キャッシュ、パイプ、端末のどこへ行ったかを問いません。/proc/PID/io によります。読めるのはそのユーザーと root だけです。</translation>
    </message>
    <message id="pid_unit_read_rate">
        <source></source>
        <translation>ディスク読取/秒 (ユニット)</translation>
    </message>
    <message id="pid_unit_read_rate_tip">
        <source></source>
        <translation>前回の更新以降に、記憶装置がプロセスのユニット (コントロールグループ) のために読み出した 1 秒あたりのバイト数で、その中の全プロセスの合計です。誰でも読める io.stat によります。入出力を計量していないユニットには値がありません。</translation>
    </message>
    <message id="pid_unit_write_rate">
        <source></source>
        <translation>ディスク書込/秒 (ユニット)</translation>
    </message>
    <message id="pid_unit_write_rate_tip">
        <source></source>
        <translation>前回の更新以降に、プロセスのユニット (コントロールグループ) が記憶装置に書き込ませた 1 秒あたりのバイト数で、その中の全プロセスの合計です。誰でも読める io.stat によります。入出力を計量していないユニットには値がありません。</translation>
    </message>
    <message id="pid_cgroup">
        <source></source>
        <translation>コントロールグループのパス</translation>
    </message>
    <message id="pid_cgroup_tip">
        <source></source>
        <translation>プロセスのコントロールグループを、このプログラムから見えるルートから示します。/proc/PID/cgroup によります。階層が複数ある場合は統合階層のもの、なければサービスマネージャーのものです。</translation>
    </message>
    <message id="pid_unit">
        <source></source>
        <translation>サービスまたはスコープ</translation>
    </message>
    <message id="pid_unit_tip">
        <source></source>
        <translation>プロセスが属するサービスマネージャーのユニットで、サービス、セッション、アプリケーションのスコープのいずれかです。コントロールグループのパスから得ます。サービスマネージャーがない場合は空です。</translation>
    </message>
    <message id="pid_slice">
        <source></source>
        <translation>ユニットのスライス</translation>
    </message>
    <message id="pid_slice_tip">
        <source></source>
        <translation>プロセスのユニットが属するユニットのグループです。コントロールグループのパスから得ます。</translation>
    </message>
    <message id="pid_app_scope">
        <source></source>
        <translation>アプリケーションスコープ</translation>
    </message>
    <message id="pid_app_scope_tip">
        <source></source>
        <translation>セッションマネージャーがこのプロセスを管理しているアプリケーションで、デスクトップエントリーの名前で示します。コントロールグループのパスから得ます。サービスや、アプリケーションを分類しないデスクトップでは空です。</translation>
    </message>
    <message id="pid_container">
        <source></source>
        <translation>コンテナ</translation>
    </message>
    <message id="pid_container_tip">
        <source></source>
        <translation>プロセスが入っているコンテナの種類と、名前または番号です。Docker、Podman、containerd、CRI-O、Kubernetes、LXC、systemd-nspawn、Flatpak、Snap に対応します。コントロールグループのパスから得るため、グループに別の名前を付けるエンジンはわかりません。Web ブラウザーの一部のように、コンテナなしで隔離されているものは「own pid namespace」と示します。</translation>
    </message>
    <message id="pid_inner_pid">
        <source></source>
        <translation>内部の PID</translation>
    </message>
    <message id="pid_inner_pid_tip">
        <source></source>
        <translation>プロセスが属する最も内側の PID 名前空間がこのプログラムのものと異なる場合の、その中でのプロセスの番号です。/proc/PID/status の NSpid によります。</translation>
    </message>
    <message id="pid_namespace">
        <source></source>
        <translation>PID 名前空間</translation>
    </message>
    <message id="pid_namespace_tip">
        <source></source>
        <translation>プロセスが属する PID 名前空間の番号です。番号が同じものは互いに見えます。/proc/PID/ns/pid によります。読めるのはそのユーザーと root だけです。</translation>
    </message>
    <message id="pid_capabilities">
        <source></source>
        <translation>実効ケーパビリティ</translation>
    </message>
    <message id="pid_capabilities_tip">
        <source></source>
        <translation>プロセスが現在持っている root の権限です。メインスレッドについて /proc/PID/status の CapEff によります。ユーザー名前空間の中では、その名前空間だけで有効です。</translation>
    </message>
    <message id="pid_seccomp">
        <source></source>
        <translation>システムコールフィルター</translation>
    </message>
    <message id="pid_seccomp_tip">
        <source></source>
        <translation>プロセスが自分のシステムコールを制限しているかどうかです。なし、厳格 (ほとんど残らない)、フィルターがあります。/proc/PID/status の Seccomp によります。</translation>
    </message>
    <message id="pid_no_new_privileges">
        <source></source>
        <translation>新しい特権なし</translation>
    </message>
    <message id="pid_no_new_privileges_tip">
        <source></source>
        <translation>プロセスが起動するプログラムが、ファイルの属性にかかわらず、プロセス自身より多くの権限を得られないようになっているかどうかです。/proc/PID/status の NoNewPrivs によります。</translation>
    </message>
    <message id="pid_label">
        <source></source>
        <translation>セキュリティモジュールのラベル</translation>
    </message>
    <message id="pid_label_tip">
        <source></source>
        <translation>AppArmor、SELinux、Smack がプロセスに付けた名前です。/proc/PID/attr/current によります。このようなモジュールがない場合はありません。</translation>
    </message>
    <message id="pid_elevated">
        <source></source>
        <translation>昇格</translation>
    </message>
    <message id="pid_elevated_tip">
        <source></source>
        <translation>プロセスが、同じユーザーのほかのプロセスにない権限を持っているかどうかです。root として動作している場合は root、root の権限の一部を持つ場合はケーパビリティと示します。/proc/PID/status の Uid と CapEff によります。</translation>
    </message>
    <message id="internal_Icon">
        <source></source>
        <translation>アイコン</translation>
    </message>
    <message id="internal_Icon_tip">
        <source></source>
        <translation>アプリケーションのアイコンです。アプリケーションでないプロセスにはありません。</translation>
    </message>
    <message id="internal_Indicator">
        <source></source>
        <translation>マーク</translation>
    </message>
    <message id="internal_Indicator_tip">
        <source></source>
        <translation>ここでプロセスに対して行ったこと (停止、優先度の変更) を示すマークです。</translation>
    </message>
    <message id="internal_CPUPercent">
        <source></source>
        <translation>CPU 使用率</translation>
    </message>
    <message id="internal_CPUPercent_tip">
        <source></source>
        <translation>前回の更新以降にプロセスが使った CPU の割合をバーで示します。</translation>
    </message>
    <message id="internal_MemGraph">
        <source></source>
        <translation>メモリ</translation>
    </message>
    <message id="internal_MemGraph_tip">
        <source></source>
        <translation>プロセスの常駐サイズと仮想サイズをバーで示します。</translation>
    </message>
    <message id="%CPU">
        <source></source>
        <translation>CPU 使用率 (%CPU)</translation>
    </message>
    <message id="%CPU_tip">
        <source></source>
        <translation>使った CPU 時間をプロセスの実行時間で割った値 (パーセント) です。プロセスの全期間の平均です。</translation>
    </message>
    <message id="%CUC">
        <source></source>
        <translation>CPU 使用率、子を含む (%CUC)</translation>
    </message>
    <message id="%CUC_tip">
        <source></source>
        <translation>プロセスと終了した子プロセスの CPU 時間を実行時間で割った値で、小数第 3 位までのパーセントです。</translation>
    </message>
    <message id="%CUU">
        <source></source>
        <translation>CPU 使用率 (%CUU)</translation>
    </message>
    <message id="%CUU_tip">
        <source></source>
        <translation>使った CPU 時間をプロセスの実行時間で割った値で、小数第 3 位までのパーセントです。</translation>
    </message>
    <message id="%MEM">
        <source></source>
        <translation>メモリ使用率 (%MEM)</translation>
    </message>
    <message id="%MEM_tip">
        <source></source>
        <translation>常駐サイズがマシンの物理メモリに占める割合 (パーセント) です。</translation>
    </message>
    <message id="AGID">
        <source></source>
        <translation>自動グループ ID (AGID)</translation>
    </message>
    <message id="AGID_tip">
        <source></source>
        <translation>プロセスが属するスケジューラーの自動グループの番号です。通常はセッションごとに 1 つあります。</translation>
    </message>
    <message id="AGNI">
        <source></source>
        <translation>自動グループの nice 値 (AGNI)</translation>
    </message>
    <message id="AGNI_tip">
        <source></source>
        <translation>スケジューラーの自動グループの nice 値です。グループ全体がほかにどれだけ譲るかを示します。</translation>
    </message>
    <message id="API">
        <source></source>
        <translation>優先度 (API)</translation>
    </message>
    <message id="API_tip">
        <source></source>
        <translation>ps が提供する歴史的な尺度の 1 つによるスケジューリング優先度で、-1 からカーネルの優先度を引いた値です。</translation>
    </message>
    <message id="BLOCKED">
        <source></source>
        <translation>ブロック中のシグナル (BLOCKED)</translation>
    </message>
    <message id="BLOCKED_tip">
        <source></source>
        <translation>プロセスが配送を保留しているシグナルで、16 進数のマスクです。</translation>
    </message>
    <message id="BSDTIME">
        <source></source>
        <translation>CPU 時間 (BSDTIME)</translation>
    </message>
    <message id="BSDTIME_tip">
        <source></source>
        <translation>プロセスの開始以降に使った CPU 時間 (ユーザーとシステムの合計) です。TIME と同じです。</translation>
    </message>
    <message id="C">
        <source></source>
        <translation>CPU 使用率 (C)</translation>
    </message>
    <message id="C_tip">
        <source></source>
        <translation>使った CPU 時間をプロセスの実行時間で割った値で、整数のパーセントです。</translation>
    </message>
    <message id="CATCHED">
        <source></source>
        <translation>捕捉シグナル (CATCHED)</translation>
    </message>
    <message id="CATCHED_tip">
        <source></source>
        <translation>プロセスが独自のハンドラーを持つシグナルで、16 進数のマスクです。CAUGHT と同じです。</translation>
    </message>
    <message id="CAUGHT">
        <source></source>
        <translation>捕捉シグナル (CAUGHT)</translation>
    </message>
    <message id="CAUGHT_tip">
        <source></source>
        <translation>プロセスが独自のハンドラーを持つシグナルで、16 進数のマスクです。</translation>
    </message>
    <message id="CGNAME">
        <source></source>
        <translation>コントロールグループ名 (CGNAME)</translation>
    </message>
    <message id="CGNAME_tip">
        <source></source>
        <translation>プロセスが属するコントロールグループの名前で、カーネルが示すとおりのものです。</translation>
    </message>
    <message id="CGROUP">
        <source></source>
        <translation>コントロールグループ (CGROUP)</translation>
    </message>
    <message id="CGROUP_tip">
        <source></source>
        <translation>プロセスが属するコントロールグループです。</translation>
    </message>
    <message id="CGROUPNS">
        <source></source>
        <translation>cgroup 名前空間 (CGROUPNS)</translation>
    </message>
    <message id="CGROUPNS_tip">
        <source></source>
        <translation>プロセスが属するコントロールグループ名前空間の inode 番号です。番号が同じプロセスは名前空間を共有しています。</translation>
    </message>
    <message id="CLS">
        <source></source>
        <translation>スケジューリングクラス (CLS)</translation>
    </message>
    <message id="CLS_tip">
        <source></source>
        <translation>スケジューリングクラスです。TS 通常、FF 先入れ先出し、RR ラウンドロビン、B バッチ、IDL アイドル、DLN デッドライン。</translation>
    </message>
    <message id="CMD">
        <source></source>
        <translation>コマンドライン (CMD)</translation>
    </message>
    <message id="CMD_tip">
        <source></source>
        <translation>コマンドとそのすべての引数です。COMMAND と同じです。</translation>
    </message>
    <message id="COMM">
        <source></source>
        <translation>コマンド名 (COMM)</translation>
    </message>
    <message id="COMM_tip">
        <source></source>
        <translation>引数を除いたコマンドの名前です。</translation>
    </message>
    <message id="COMMAND">
        <source></source>
        <translation>コマンドライン (COMMAND)</translation>
    </message>
    <message id="COMMAND_tip">
        <source></source>
        <translation>コマンドとそのすべての引数です。カーネルスレッドのように引数を得られない場合は、角かっこで囲んだコマンド名です。</translation>
    </message>
    <message id="CONTEXT">
        <source></source>
        <translation>セキュリティコンテキスト (CONTEXT)</translation>
    </message>
    <message id="CONTEXT_tip">
        <source></source>
        <translation>カーネルのアクセス制御 (SELinux など) がプロセスに与えたセキュリティコンテキストです。ない場合は - です。</translation>
    </message>
    <message id="CP">
        <source></source>
        <translation>CPU 使用率 (CP)</translation>
    </message>
    <message id="CP_tip">
        <source></source>
        <translation>使った CPU 時間をプロセスの実行時間で割った値で、千分率です。</translation>
    </message>
    <message id="CPUID">
        <source></source>
        <translation>最後の CPU (CPUID)</translation>
    </message>
    <message id="CPUID_tip">
        <source></source>
        <translation>プロセスが最後に動作したプロセッサーの番号です。</translation>
    </message>
    <message id="CPUTIMES">
        <source></source>
        <translation>CPU 秒数 (CPUTIMES)</translation>
    </message>
    <message id="CPUTIMES_tip">
        <source></source>
        <translation>プロセスの開始以降に使った CPU 時間 (ユーザーとシステムの合計) で、単位は秒です。</translation>
    </message>
    <message id="DRS">
        <source></source>
        <translation>データサイズ (DRS)</translation>
    </message>
    <message id="DRS_tip">
        <source></source>
        <translation>実行コードを除く、マップされた全メモリのサイズです。名前に反して、すべてが RAM にあるとはかぎりません。</translation>
    </message>
    <message id="DSIZ">
        <source></source>
        <translation>データサイズ (DSIZ)</translation>
    </message>
    <message id="DSIZ_tip">
        <source></source>
        <translation>実行コードを除く、マップされた全メモリのサイズです。</translation>
    </message>
    <message id="EGID">
        <source></source>
        <translation>実効グループ ID (EGID)</translation>
    </message>
    <message id="EGID_tip">
        <source></source>
        <translation>プロセスが権限を持つグループの番号です。</translation>
    </message>
    <message id="EGROUP">
        <source></source>
        <translation>実効グループ (EGROUP)</translation>
    </message>
    <message id="EGROUP_tip">
        <source></source>
        <translation>プロセスが権限を持つグループの名前です。</translation>
    </message>
    <message id="EIP">
        <source></source>
        <translation>命令ポインター (EIP)</translation>
    </message>
    <message id="EIP_tip">
        <source></source>
        <translation>プロセスが実行している命令のアドレスです。4.9 以降のカーネルではプロセスの終了中だけ示され、それ以外は 0 です。</translation>
    </message>
    <message id="ELAPSED">
        <source></source>
        <translation>経過時間 (ELAPSED)</translation>
    </message>
    <message id="ELAPSED_tip">
        <source></source>
        <translation>プロセスの開始からの経過時間で、日、時、分、秒で表します。</translation>
    </message>
    <message id="ESP">
        <source></source>
        <translation>スタックポインター (ESP)</translation>
    </message>
    <message id="ESP_tip">
        <source></source>
        <translation>スタックの先頭のアドレスです。4.9 以降のカーネルではプロセスの終了中だけ示され、それ以外は 0 です。</translation>
    </message>
    <message id="ETIMES">
        <source></source>
        <translation>経過秒数 (ETIMES)</translation>
    </message>
    <message id="ETIMES_tip">
        <source></source>
        <translation>プロセスの開始からの経過時間で、単位は秒です。</translation>
    </message>
    <message id="EUID">
        <source></source>
        <translation>実効ユーザー ID (EUID)</translation>
    </message>
    <message id="EUID_tip">
        <source></source>
        <translation>プロセスが権限を持つユーザーの番号です。</translation>
    </message>
    <message id="EUSER">
        <source></source>
        <translation>実効ユーザー (EUSER)</translation>
    </message>
    <message id="EUSER_tip">
        <source></source>
        <translation>プロセスが権限を持つユーザーの名前です。</translation>
    </message>
    <message id="EXE">
        <source></source>
        <translation>実行ファイル (EXE)</translation>
    </message>
    <message id="EXE_tip">
        <source></source>
        <translation>プログラムファイルのパスです。カーネルスレッドでは -、読めない場合は×印です。</translation>
    </message>
    <message id="F">
        <source></source>
        <translation>フラグ (F)</translation>
    </message>
    <message id="F_tip">
        <source></source>
        <translation>プロセスのフラグの合計です。1 は fork 後まだ独自のプログラムになっていないこと、4 はスーパーユーザーの権限を使ったことを示します。</translation>
    </message>
    <message id="FGID">
        <source></source>
        <translation>ファイルアクセスグループ ID (FGID)</translation>
    </message>
    <message id="FGID_tip">
        <source></source>
        <translation>プロセスがファイルを開くときに適用されるグループの番号です。</translation>
    </message>
    <message id="FGROUP">
        <source></source>
        <translation>ファイルアクセスグループ (FGROUP)</translation>
    </message>
    <message id="FGROUP_tip">
        <source></source>
        <translation>プロセスがファイルを開くときに適用されるグループの名前です。</translation>
    </message>
    <message id="FNAME">
        <source></source>
        <translation>コマンド名、短縮 (FNAME)</translation>
    </message>
    <message id="FNAME_tip">
        <source></source>
        <translation>コマンドの名前の先頭 8 文字です。</translation>
    </message>
    <message id="FSGID">
        <source></source>
        <translation>ファイルアクセスグループ ID (FSGID)</translation>
    </message>
    <message id="FSGID_tip">
        <source></source>
        <translation>プロセスがファイルを開くときに適用されるグループの番号です。FGID と同じです。</translation>
    </message>
    <message id="FSGROUP">
        <source></source>
        <translation>ファイルアクセスグループ (FSGROUP)</translation>
    </message>
    <message id="FSGROUP_tip">
        <source></source>
        <translation>プロセスがファイルを開くときに適用されるグループの名前です。FGROUP と同じです。</translation>
    </message>
    <message id="FSUID">
        <source></source>
        <translation>ファイルアクセスユーザー ID (FSUID)</translation>
    </message>
    <message id="FSUID_tip">
        <source></source>
        <translation>プロセスがファイルを開くときに適用されるユーザーの番号です。FUID と同じです。</translation>
    </message>
    <message id="FSUSER">
        <source></source>
        <translation>ファイルアクセスユーザー (FSUSER)</translation>
    </message>
    <message id="FSUSER_tip">
        <source></source>
        <translation>プロセスがファイルを開くときに適用されるユーザーの名前です。FUSER と同じです。</translation>
    </message>
    <message id="FUID">
        <source></source>
        <translation>ファイルアクセスユーザー ID (FUID)</translation>
    </message>
    <message id="FUID_tip">
        <source></source>
        <translation>プロセスがファイルを開くときに適用されるユーザーの番号です。</translation>
    </message>
    <message id="FUSER">
        <source></source>
        <translation>ファイルアクセスユーザー (FUSER)</translation>
    </message>
    <message id="FUSER_tip">
        <source></source>
        <translation>プロセスがファイルを開くときに適用されるユーザーの名前です。</translation>
    </message>
    <message id="GID">
        <source></source>
        <translation>グループ ID (GID)</translation>
    </message>
    <message id="GID_tip">
        <source></source>
        <translation>実効グループの番号です。EGID と同じです。</translation>
    </message>
    <message id="GROUP">
        <source></source>
        <translation>グループ (GROUP)</translation>
    </message>
    <message id="GROUP_tip">
        <source></source>
        <translation>実効グループの名前です。EGROUP と同じです。</translation>
    </message>
    <message id="IGNORED">
        <source></source>
        <translation>無視するシグナル (IGNORED)</translation>
    </message>
    <message id="IGNORED_tip">
        <source></source>
        <translation>プロセスが無視するシグナルで、16 進数のマスクです。</translation>
    </message>
    <message id="IPCNS">
        <source></source>
        <translation>IPC 名前空間 (IPCNS)</translation>
    </message>
    <message id="IPCNS_tip">
        <source></source>
        <translation>プロセスが属するプロセス間通信の名前空間の inode 番号です。番号が同じプロセスは名前空間を共有しています。</translation>
    </message>
    <message id="LABEL">
        <source></source>
        <translation>セキュリティコンテキスト (LABEL)</translation>
    </message>
    <message id="LABEL_tip">
        <source></source>
        <translation>カーネルのアクセス制御がプロセスに与えたラベルです。ない場合は - です。CONTEXT と同じです。</translation>
    </message>
    <message id="LASTCPU">
        <source></source>
        <translation>最後の CPU (LASTCPU)</translation>
    </message>
    <message id="LASTCPU_tip">
        <source></source>
        <translation>プロセスが最後に動作したプロセッサーの番号です。PSR と同じです。</translation>
    </message>
    <message id="LIM">
        <source></source>
        <translation>メモリ制限 (LIM)</translation>
    </message>
    <message id="LIM_tip">
        <source></source>
        <translation>常駐サイズの制限で、単位はキビバイトです。xx は制限なしを表します。</translation>
    </message>
    <message id="LSTART">
        <source></source>
        <translation>開始日時 (LSTART)</translation>
    </message>
    <message id="LSTART_tip">
        <source></source>
        <translation>プロセスが開始された日付と時刻です。</translation>
    </message>
    <message id="LUID">
        <source></source>
        <translation>ログインユーザー ID (LUID)</translation>
    </message>
    <message id="LUID_tip">
        <source></source>
        <translation>ログインしたユーザーの番号で、後で権限が移っても変わりません。ログインがなかった場合は - です。</translation>
    </message>
    <message id="LWP">
        <source></source>
        <translation>スレッド ID (LWP)</translation>
    </message>
    <message id="LWP_tip">
        <source></source>
        <translation>プロセスのメインスレッドの番号で、プロセス ID と同じです。</translation>
    </message>
    <message id="LXC">
        <source></source>
        <translation>LXC コンテナ (LXC)</translation>
    </message>
    <message id="LXC_tip">
        <source></source>
        <translation>プロセスが動作している LXC コンテナの名前です。コンテナの外では - です。</translation>
    </message>
    <message id="M_SIZE">
        <source></source>
        <translation>仮想サイズ、バイト (M_SIZE)</translation>
    </message>
    <message id="M_SIZE_tip">
        <source></source>
        <translation>プロセスがマップした全メモリのサイズで、単位はバイトです。</translation>
    </message>
    <message id="MACHINE">
        <source></source>
        <translation>仮想マシン (MACHINE)</translation>
    </message>
    <message id="MACHINE_tip">
        <source></source>
        <translation>プロセスが属する仮想マシンまたはコンテナの名前です。systemd から得ます。ない場合は - です。</translation>
    </message>
    <message id="MAJFL">
        <source></source>
        <translation>メジャーフォールト (MAJFL)</translation>
    </message>
    <message id="MAJFL_tip">
        <source></source>
        <translation>ディスクからの読み取りを待つ必要があったページフォールトです。MAJFLT と同じです。</translation>
    </message>
    <message id="MAJFLT">
        <source></source>
        <translation>メジャーフォールト (MAJFLT)</translation>
    </message>
    <message id="MAJFLT_tip">
        <source></source>
        <translation>プロセスの開始以降に、ディスクからの読み取りを待つ必要があったページフォールトです。</translation>
    </message>
    <message id="MINFL">
        <source></source>
        <translation>マイナーフォールト (MINFL)</translation>
    </message>
    <message id="MINFL_tip">
        <source></source>
        <translation>ディスクからの読み取りを必要としなかったページフォールトです。MINFLT と同じです。</translation>
    </message>
    <message id="MINFLT">
        <source></source>
        <translation>マイナーフォールト (MINFLT)</translation>
    </message>
    <message id="MINFLT_tip">
        <source></source>
        <translation>プロセスの開始以降に、ディスクからの読み取りを必要としなかったページフォールトです。</translation>
    </message>
    <message id="MNTNS">
        <source></source>
        <translation>マウント名前空間 (MNTNS)</translation>
    </message>
    <message id="MNTNS_tip">
        <source></source>
        <translation>プロセスが属するマウント名前空間の inode 番号です。番号が同じプロセスは名前空間を共有しています。</translation>
    </message>
    <message id="NETNS">
        <source></source>
        <translation>ネットワーク名前空間 (NETNS)</translation>
    </message>
    <message id="NETNS_tip">
        <source></source>
        <translation>プロセスが属するネットワーク名前空間の inode 番号です。番号が同じプロセスは名前空間を共有しています。</translation>
    </message>
    <message id="NI">
        <source></source>
        <translation>nice 値 (NI)</translation>
    </message>
    <message id="NI_tip">
        <source></source>
        <translation>プロセスがほかにどれだけ譲るかを示します。-20 (最小) から 19 (最大) までです。リアルタイムのプロセスのように意味を持たない場合は - です。</translation>
    </message>
    <message id="NLWP">
        <source></source>
        <translation>スレッド数 (NLWP)</translation>
    </message>
    <message id="NLWP_tip">
        <source></source>
        <translation>プロセスのスレッドの数です。</translation>
    </message>
    <message id="NUMA">
        <source></source>
        <translation>NUMA ノード (NUMA)</translation>
    </message>
    <message id="NUMA_tip">
        <source></source>
        <translation>プロセスが最後に動作したプロセッサーのメモリノードです。不明な場合は -1 です。</translation>
    </message>
    <message id="OOM">
        <source></source>
        <translation>メモリ不足スコア (OOM)</translation>
    </message>
    <message id="OOM_tip">
        <source></source>
        <translation>メモリが不足したときにカーネルがこのプロセスを終了させる可能性の高さです。最も高いものから終了させられます。</translation>
    </message>
    <message id="OOMADJ">
        <source></source>
        <translation>メモリ不足調整値 (OOMADJ)</translation>
    </message>
    <message id="OOMADJ_tip">
        <source></source>
        <translation>メモリ不足スコアに加える値で、-1000 (終了させない) から 1000 (最初に終了させる) までです。</translation>
    </message>
    <message id="OPRI">
        <source></source>
        <translation>優先度 (OPRI)</translation>
    </message>
    <message id="OPRI_tip">
        <source></source>
        <translation>ps が提供する歴史的な尺度の 1 つによるスケジューリング優先度で、カーネルの優先度に 60 を加えた値です。通常のプロセスは 80、先に実行されるものはそれより小さくなります。</translation>
    </message>
    <message id="OWNER">
        <source></source>
        <translation>セッション所有者 (OWNER)</translation>
    </message>
    <message id="OWNER_tip">
        <source></source>
        <translation>プロセスが属するログインセッションを所有するユーザーの番号です。systemd から得ます。ない場合は - です。</translation>
    </message>
    <message id="P">
        <source></source>
        <translation>現在の CPU (P)</translation>
    </message>
    <message id="P_tip">
        <source></source>
        <translation>プロセスが動作しているプロセッサーの番号です。動作していない間は * です。</translation>
    </message>
    <message id="PAGEIN">
        <source></source>
        <translation>メジャーフォールト (PAGEIN)</translation>
    </message>
    <message id="PAGEIN_tip">
        <source></source>
        <translation>ディスクからの読み取りを待つ必要があったページフォールトです。MAJFLT と同じです。</translation>
    </message>
    <message id="PENDING">
        <source></source>
        <translation>保留中のシグナル (PENDING)</translation>
    </message>
    <message id="PENDING_tip">
        <source></source>
        <translation>プロセスへの配送を待っているシグナルで、16 進数のマスクです。</translation>
    </message>
    <message id="PGID">
        <source></source>
        <translation>プロセスグループ ID (PGID)</translation>
    </message>
    <message id="PGID_tip">
        <source></source>
        <translation>プロセスグループの番号です。通常は 1 つのパイプラインのコマンドが同じ番号になります。</translation>
    </message>
    <message id="PGRP">
        <source></source>
        <translation>プロセスグループ ID (PGRP)</translation>
    </message>
    <message id="PGRP_tip">
        <source></source>
        <translation>プロセスグループの番号です。PGID と同じです。</translation>
    </message>
    <message id="PID">
        <source></source>
        <translation>プロセス ID (PID)</translation>
    </message>
    <message id="PID_tip">
        <source></source>
        <translation>ps が表示するプロセスの番号です。</translation>
    </message>
    <message id="PIDNS">
        <source></source>
        <translation>PID 名前空間 (PIDNS)</translation>
    </message>
    <message id="PIDNS_tip">
        <source></source>
        <translation>プロセスが属する PID 名前空間の inode 番号です。番号が同じプロセスは名前空間を共有しています。</translation>
    </message>
    <message id="POL">
        <source></source>
        <translation>スケジューリングクラス (POL)</translation>
    </message>
    <message id="POL_tip">
        <source></source>
        <translation>スケジューリングクラスを示す文字です。CLS と同じです。</translation>
    </message>
    <message id="PPID">
        <source></source>
        <translation>親プロセス ID (PPID)</translation>
    </message>
    <message id="PPID_tip">
        <source></source>
        <translation>このプロセスを起動したプロセス、またはこれを引き取ったプロセスの番号です。</translation>
    </message>
    <message id="PRI">
        <source></source>
        <translation>優先度 (PRI)</translation>
    </message>
    <message id="PRI_tip">
        <source></source>
        <translation>向きを逆にしたスケジューリング優先度です。通常のプロセスは 19、先に実行されるものはそれより大きくなります。</translation>
    </message>
    <message id="PRIORITY">
        <source></source>
        <translation>優先度 (PRIORITY)</translation>
    </message>
    <message id="PRIORITY_tip">
        <source></source>
        <translation>カーネル自身のスケジューリング優先度です。通常のプロセスは 20、先に実行されるものはそれより小さく、リアルタイムのものは 0 未満です。</translation>
    </message>
    <message id="PSR">
        <source></source>
        <translation>最後の CPU (PSR)</translation>
    </message>
    <message id="PSR_tip">
        <source></source>
        <translation>プロセスが最後に動作したプロセッサーの番号です。</translation>
    </message>
    <message id="PSS">
        <source></source>
        <translation>比例配分サイズ (PSS)</translation>
    </message>
    <message id="PSS_tip">
        <source></source>
        <translation>RAM にあるメモリで、共有ページは共有しているプロセスで等分します。調べるのに時間がかかります。読めない場合は×印です。</translation>
    </message>
    <message id="RBYTES">
        <source></source>
        <translation>記憶装置からの読み取り (RBYTES)</translation>
    </message>
    <message id="RBYTES_tip">
        <source></source>
        <translation>記憶装置がこのプロセスのために読み出したバイト数です。/proc/PID/io によります。読めない場合は×印です。</translation>
    </message>
    <message id="RCHARS">
        <source></source>
        <translation>読み取りバイト数 (RCHARS)</translation>
    </message>
    <message id="RCHARS_tip">
        <source></source>
        <translation>プロセスが読み取りの呼び出しで要求したバイト数です。ディスク、キャッシュ、端末のどこから来たかを問いません。/proc/PID/io によります。読めない場合は×印です。</translation>
    </message>
    <message id="RGID">
        <source></source>
        <translation>実グループ ID (RGID)</translation>
    </message>
    <message id="RGID_tip">
        <source></source>
        <translation>現在どの権限を持っているかにかかわらず、プロセスが属するグループの番号です。</translation>
    </message>
    <message id="RGROUP">
        <source></source>
        <translation>実グループ (RGROUP)</translation>
    </message>
    <message id="RGROUP_tip">
        <source></source>
        <translation>現在どの権限を持っているかにかかわらず、プロセスが属するグループの名前です。</translation>
    </message>
    <message id="ROPS">
        <source></source>
        <translation>読み取り呼び出し (ROPS)</translation>
    </message>
    <message id="ROPS_tip">
        <source></source>
        <translation>プロセスが行った読み取りのシステムコールの回数です。/proc/PID/io によります。読めない場合は×印です。</translation>
    </message>
    <message id="RSS">
        <source></source>
        <translation>常駐サイズ (RSS)</translation>
    </message>
    <message id="RSS_tip">
        <source></source>
        <translation>プロセスのメモリのうち RAM にある量で、共有ページも含みます。</translation>
    </message>
    <message id="RSZ">
        <source></source>
        <translation>常駐サイズ (RSZ)</translation>
    </message>
    <message id="RSZ_tip">
        <source></source>
        <translation>プロセスのメモリのうち RAM にある量で、共有ページも含みます。</translation>
    </message>
    <message id="RTPRIO">
        <source></source>
        <translation>リアルタイム優先度 (RTPRIO)</translation>
    </message>
    <message id="RTPRIO_tip">
        <source></source>
        <translation>リアルタイムプロセスの間の優先度で、1 から 99 まであり、大きいものほど先に実行されます。その他のプロセスでは - です。</translation>
    </message>
    <message id="RUID">
        <source></source>
        <translation>実ユーザー ID (RUID)</translation>
    </message>
    <message id="RUID_tip">
        <source></source>
        <translation>現在どの権限を持っているかにかかわらず、プロセスを起動したユーザーの番号です。</translation>
    </message>
    <message id="RUSER">
        <source></source>
        <translation>実ユーザー (RUSER)</translation>
    </message>
    <message id="RUSER_tip">
        <source></source>
        <translation>現在どの権限を持っているかにかかわらず、プロセスを起動したユーザーの名前です。</translation>
    </message>
    <message id="S">
        <source></source>
        <translation>状態 (S)</translation>
    </message>
    <message id="S_tip">
        <source></source>
        <translation>プロセスの状態です。R 実行中または実行可能、S スリープ、D デバイス待ち、I アイドル状態のカーネルスレッド、T 停止、t デバッガーによる停止、Z 終了したが回収されていない。</translation>
    </message>
    <message id="SCH">
        <source></source>
        <translation>スケジューリングポリシー (SCH)</translation>
    </message>
    <message id="SCH_tip">
        <source></source>
        <translation>スケジューリングポリシーの番号です。0 通常、1 FIFO、2 ラウンドロビン、3 バッチ、5 アイドル、6 デッドライン。</translation>
    </message>
    <message id="SEAT">
        <source></source>
        <translation>シート (SEAT)</translation>
    </message>
    <message id="SEAT_tip">
        <source></source>
        <translation>プロセスが属するログインセッションのシート (一組の画面、キーボード、マウス) です。systemd から得ます。ない場合は - です。</translation>
    </message>
    <message id="SESSION">
        <source></source>
        <translation>ログインセッション (SESSION)</translation>
    </message>
    <message id="SESSION_tip">
        <source></source>
        <translation>プロセスが属するログインセッションの識別子です。systemd から得ます。ない場合は - です。</translation>
    </message>
    <message id="SGID">
        <source></source>
        <translation>保存グループ ID (SGID)</translation>
    </message>
    <message id="SGID_tip">
        <source></source>
        <translation>プロセスが権限を取り戻せるグループの番号です。</translation>
    </message>
    <message id="SGROUP">
        <source></source>
        <translation>保存グループ (SGROUP)</translation>
    </message>
    <message id="SGROUP_tip">
        <source></source>
        <translation>プロセスが権限を取り戻せるグループの名前です。</translation>
    </message>
    <message id="SID">
        <source></source>
        <translation>セッション ID (SID)</translation>
    </message>
    <message id="SID_tip">
        <source></source>
        <translation>セッションの番号で、セッションリーダーのプロセス ID です。</translation>
    </message>
    <message id="SIGNAL">
        <source></source>
        <translation>保留中のシグナル (SIGNAL)</translation>
    </message>
    <message id="SIGNAL_tip">
        <source></source>
        <translation>プロセスへの配送を待っているシグナルで、16 進数のマスクです。PENDING と同じです。</translation>
    </message>
    <message id="SIZE">
        <source></source>
        <translation>スワップサイズ (SIZE)</translation>
    </message>
    <message id="SIZE_tip">
        <source></source>
        <translation>書き込み可能なメモリがすべてスワップアウトされた場合に必要になるスワップ領域の大まかな推定値です。</translation>
    </message>
    <message id="SLICE">
        <source></source>
        <translation>スライス (SLICE)</translation>
    </message>
    <message id="SLICE_tip">
        <source></source>
        <translation>プロセスが属するスライス (コントロールグループのツリーの枝) です。systemd から得ます。ない場合は - です。</translation>
    </message>
    <message id="SPID">
        <source></source>
        <translation>スレッド ID (SPID)</translation>
    </message>
    <message id="SPID_tip">
        <source></source>
        <translation>プロセスのメインスレッドの番号で、プロセス ID と同じです。LWP と同じです。</translation>
    </message>
    <message id="STACKP">
        <source></source>
        <translation>スタックアドレス (STACKP)</translation>
    </message>
    <message id="STACKP_tip">
        <source></source>
        <translation>スタックの底のアドレスで、16 進数です。読めない場合は 0 です。</translation>
    </message>
    <message id="START">
        <source></source>
        <translation>開始時刻 (START)</translation>
    </message>
    <message id="START_tip">
        <source></source>
        <translation>プロセスが開始された時です。24 時間以内は時刻、それ以前は日付で示します。</translation>
    </message>
    <message id="STARTED">
        <source></source>
        <translation>開始時刻 (STARTED)</translation>
    </message>
    <message id="STARTED_tip">
        <source></source>
        <translation>プロセスが開始された時です。24 時間以内は秒までの時刻、それ以前は日付で示します。</translation>
    </message>
    <message id="STAT">
        <source></source>
        <translation>状態 (STAT)</translation>
    </message>
    <message id="STAT_tip">
        <source></source>
        <translation>状態を示す文字と、それに続く補足です。&lt; 高い優先度、N 低い優先度、L メモリに固定されたページあり、s セッションリーダー、l 複数のスレッド、+ 端末のフォアグラウンド。</translation>
    </message>
    <message id="STIME">
        <source></source>
        <translation>開始時刻 (STIME)</translation>
    </message>
    <message id="STIME_tip">
        <source></source>
        <translation>プロセスが開始された時です。今日は時刻、それより前の日は日付、前年以前は年で示します。</translation>
    </message>
    <message id="SUID">
        <source></source>
        <translation>保存ユーザー ID (SUID)</translation>
    </message>
    <message id="SUID_tip">
        <source></source>
        <translation>プロセスが権限を取り戻せるユーザーの番号です。</translation>
    </message>
    <message id="SUPGID">
        <source></source>
        <translation>補助グループ ID (SUPGID)</translation>
    </message>
    <message id="SUPGID_tip">
        <source></source>
        <translation>プロセスが権限を持つその他のグループの番号です。ない場合は - です。</translation>
    </message>
    <message id="SUPGRP">
        <source></source>
        <translation>補助グループ (SUPGRP)</translation>
    </message>
    <message id="SUPGRP_tip">
        <source></source>
        <translation>プロセスが権限を持つその他のグループの名前です。ない場合は - です。</translation>
    </message>
    <message id="SUSER">
        <source></source>
        <translation>保存ユーザー (SUSER)</translation>
    </message>
    <message id="SUSER_tip">
        <source></source>
        <translation>プロセスが権限を取り戻せるユーザーの名前です。</translation>
    </message>
    <message id="SVGID">
        <source></source>
        <translation>保存グループ ID (SVGID)</translation>
    </message>
    <message id="SVGID_tip">
        <source></source>
        <translation>プロセスが権限を取り戻せるグループの番号です。SGID と同じです。</translation>
    </message>
    <message id="SVGROUP">
        <source></source>
        <translation>保存グループ (SVGROUP)</translation>
    </message>
    <message id="SVGROUP_tip">
        <source></source>
        <translation>プロセスが権限を取り戻せるグループの名前です。SGROUP と同じです。</translation>
    </message>
    <message id="SVUID">
        <source></source>
        <translation>保存ユーザー ID (SVUID)</translation>
    </message>
    <message id="SVUID_tip">
        <source></source>
        <translation>プロセスが権限を取り戻せるユーザーの番号です。SUID と同じです。</translation>
    </message>
    <message id="SVUSER">
        <source></source>
        <translation>保存ユーザー (SVUSER)</translation>
    </message>
    <message id="SVUSER_tip">
        <source></source>
        <translation>プロセスが権限を取り戻せるユーザーの名前です。SUSER と同じです。</translation>
    </message>
    <message id="SZ">
        <source></source>
        <translation>コアサイズ (SZ)</translation>
    </message>
    <message id="SZ_tip">
        <source></source>
        <translation>プロセスがマップした全メモリのサイズで、ps がマシンのページ単位で数えたものです。ページの端数を除き VSZ と同じです。</translation>
    </message>
    <message id="TGID">
        <source></source>
        <translation>スレッドグループ ID (TGID)</translation>
    </message>
    <message id="TGID_tip">
        <source></source>
        <translation>プロセスの全スレッドに共通の番号で、プロセス ID です。</translation>
    </message>
    <message id="THCNT">
        <source></source>
        <translation>スレッド数 (THCNT)</translation>
    </message>
    <message id="THCNT_tip">
        <source></source>
        <translation>プロセスのスレッドの数です。NLWP と同じです。</translation>
    </message>
    <message id="TID">
        <source></source>
        <translation>スレッド ID (TID)</translation>
    </message>
    <message id="TID_tip">
        <source></source>
        <translation>プロセスのメインスレッドの番号で、プロセス ID と同じです。LWP と同じです。</translation>
    </message>
    <message id="TIME">
        <source></source>
        <translation>CPU 時間 (TIME)</translation>
    </message>
    <message id="TIME_tip">
        <source></source>
        <translation>プロセスの開始以降に使った CPU 時間 (ユーザーとシステムの合計) で、日、時、分、秒で表します。</translation>
    </message>
    <message id="TIMENS">
        <source></source>
        <translation>時刻名前空間 (TIMENS)</translation>
    </message>
    <message id="TIMENS_tip">
        <source></source>
        <translation>プロセスが属する時計の名前空間の inode 番号です。番号が同じプロセスは名前空間を共有しています。</translation>
    </message>
    <message id="TPGID">
        <source></source>
        <translation>フォアグラウンドグループ ID (TPGID)</translation>
    </message>
    <message id="TPGID_tip">
        <source></source>
        <translation>プロセスが属する端末のフォアグラウンドにあるプロセスグループです。端末がない場合は -1 です。</translation>
    </message>
    <message id="TRS">
        <source></source>
        <translation>コードサイズ (TRS)</translation>
    </message>
    <message id="TRS_tip">
        <source></source>
        <translation>実行コードのサイズです。名前に反して、すべてが RAM にあるとはかぎりません。</translation>
    </message>
    <message id="TRSS">
        <source></source>
        <translation>コードサイズ (TRSS)</translation>
    </message>
    <message id="TRSS_tip">
        <source></source>
        <translation>実行コードのサイズです。TRS と同じです。</translation>
    </message>
    <message id="TSIG">
        <source></source>
        <translation>スレッドの保留シグナル (TSIG)</translation>
    </message>
    <message id="TSIG_tip">
        <source></source>
        <translation>プロセスのメインスレッドだけへの配送を待っているシグナルで、16 進数のマスクです。</translation>
    </message>
    <message id="TSIZ">
        <source></source>
        <translation>コードサイズ (TSIZ)</translation>
    </message>
    <message id="TSIZ_tip">
        <source></source>
        <translation>実行コードのサイズです。</translation>
    </message>
    <message id="TT">
        <source></source>
        <translation>端末 (TT)</translation>
    </message>
    <message id="TT_tip">
        <source></source>
        <translation>プロセスが属する端末です。ない場合は ? です。</translation>
    </message>
    <message id="TTY">
        <source></source>
        <translation>端末 (TTY)</translation>
    </message>
    <message id="TTY_tip">
        <source></source>
        <translation>プロセスが属する端末です。ない場合は ? です。TT と同じです。</translation>
    </message>
    <message id="TTY4">
        <source></source>
        <translation>端末、短縮 (TTY4)</translation>
    </message>
    <message id="TTY4_tip">
        <source></source>
        <translation>プロセスが属する端末で、名前の末尾の文字で示します。ない場合は ? です。</translation>
    </message>
    <message id="UCMD">
        <source></source>
        <translation>コマンド名 (UCMD)</translation>
    </message>
    <message id="UCMD_tip">
        <source></source>
        <translation>引数を除いたコマンドの名前です。COMM と同じです。</translation>
    </message>
    <message id="UID">
        <source></source>
        <translation>ユーザー ID (UID)</translation>
    </message>
    <message id="UID_tip">
        <source></source>
        <translation>プロセスが権限を持つユーザーの番号です。</translation>
    </message>
    <message id="UNIT">
        <source></source>
        <translation>システムユニット (UNIT)</translation>
    </message>
    <message id="UNIT_tip">
        <source></source>
        <translation>プロセスが属するユニット (サービス、スコープ) です。systemd から得ます。ない場合は - です。</translation>
    </message>
    <message id="USER">
        <source></source>
        <translation>ユーザー (USER)</translation>
    </message>
    <message id="USER_tip">
        <source></source>
        <translation>プロセスが権限を持つユーザーの名前です。EUSER と同じです。</translation>
    </message>
    <message id="USERNS">
        <source></source>
        <translation>ユーザー名前空間 (USERNS)</translation>
    </message>
    <message id="USERNS_tip">
        <source></source>
        <translation>プロセスが属するユーザー名前空間の inode 番号です。番号が同じプロセスは名前空間を共有しています。</translation>
    </message>
    <message id="USS">
        <source></source>
        <translation>固有サイズ (USS)</translation>
    </message>
    <message id="USS_tip">
        <source></source>
        <translation>RAM にあるメモリのうち、ほかのどのプロセスとも共有していない量です。終了すれば解放されます。調べるのに時間がかかります。読めない場合は×印です。</translation>
    </message>
    <message id="UTSNS">
        <source></source>
        <translation>ホスト名名前空間 (UTSNS)</translation>
    </message>
    <message id="UTSNS_tip">
        <source></source>
        <translation>プロセスが属するホスト名の名前空間の inode 番号です。番号が同じプロセスは名前空間を共有しています。</translation>
    </message>
    <message id="UUNIT">
        <source></source>
        <translation>ユーザーユニット (UUNIT)</translation>
    </message>
    <message id="UUNIT_tip">
        <source></source>
        <translation>プロセスが属する、ユーザー自身のサービスマネージャーのユニットです。systemd から得ます。ない場合は - です。</translation>
    </message>
    <message id="VSZ">
        <source></source>
        <translation>仮想サイズ (VSZ)</translation>
    </message>
    <message id="VSZ_tip">
        <source></source>
        <translation>使用中かどうかにかかわらず、プロセスがマップした全メモリのサイズです。</translation>
    </message>
    <message id="WBYTES">
        <source></source>
        <translation>記憶装置への書き込み (WBYTES)</translation>
    </message>
    <message id="WBYTES_tip">
        <source></source>
        <translation>プロセスが記憶装置へ送らせたバイト数です。/proc/PID/io によります。読めない場合は×印です。</translation>
    </message>
    <message id="WCBYTES">
        <source></source>
        <translation>取り消された書き込み (WCBYTES)</translation>
    </message>
    <message id="WCBYTES_tip">
        <source></source>
        <translation>プロセスが書き込んだものの、記憶装置に届く前にファイルが削除または短縮されたバイト数です。/proc/PID/io によります。読めない場合は×印です。</translation>
    </message>
    <message id="WCHAN">
        <source></source>
        <translation>待機中の関数 (WCHAN)</translation>
    </message>
    <message id="WCHAN_tip">
        <source></source>
        <translation>プロセスがスリープしているカーネルの関数です。動作中または読めない場合は - です。</translation>
    </message>
    <message id="WCHARS">
        <source></source>
        <translation>書き込みバイト数 (WCHARS)</translation>
    </message>
    <message id="WCHARS_tip">
        <source></source>
        <translation>プロセスが書き込みの呼び出しで渡したバイト数です。ディスク、キャッシュ、端末のどこへ行ったかを問いません。/proc/PID/io によります。読めない場合は×印です。</translation>
    </message>
    <message id="WOPS">
        <source></source>
        <translation>書き込み呼び出し (WOPS)</translation>
    </message>
    <message id="WOPS_tip">
        <source></source>
        <translation>プロセスが行った書き込みのシステムコールの回数です。/proc/PID/io によります。読めない場合は×印です。</translation>
    </message>
    <message id="ZONE">
        <source></source>
        <translation>セキュリティコンテキスト (ZONE)</translation>
    </message>
    <message id="ZONE_tip">
        <source></source>
        <translation>カーネルのアクセス制御がプロセスに与えたラベルです。ない場合は - です。CONTEXT と同じです。</translation>
    </message>
    <message id="menu_application">
        <source></source>
        <translation>&amp;Lurkwell</translation>
    </message>
    <message id="menu_file">
        <source></source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message id="menu_edit">
        <source></source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message id="menu_view">
        <source></source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message id="menu_columns">
        <source></source>
        <translation>列(&amp;C)</translation>
    </message>
    <message id="menu_process">
        <source></source>
        <translation>プロセス(&amp;P)</translation>
    </message>
    <message id="menu_window">
        <source></source>
        <translation>ウィンドウ(&amp;W)</translation>
    </message>
    <message id="menu_help">
        <source></source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message id="menu_application_about">
        <source></source>
        <translation>Lurkwell について(&amp;A)</translation>
    </message>
    <message id="menu_application_preferences">
        <source></source>
        <translation>設定(&amp;P)…</translation>
    </message>
    <message id="menu_application_quit">
        <source></source>
        <translation>Lurkwell を終了(&amp;Q)</translation>
    </message>
    <message id="menu_file_new_cpu_history">
        <source></source>
        <translation>新しい CPU 履歴ウィンドウ(&amp;H)</translation>
    </message>
    <message id="menu_file_new_logging">
        <source></source>
        <translation>新しいログウィンドウ(&amp;L)</translation>
    </message>
    <message id="menu_file_details">
        <source></source>
        <translation>詳細を表示(&amp;D)</translation>
    </message>
    <message id="menu_file_record">
        <source></source>
        <translation>記録(&amp;R)…</translation>
    </message>
    <message id="menu_file_open_recording">
        <source></source>
        <translation>記録を開く(&amp;O)…</translation>
    </message>
    <message id="menu_file_close_window">
        <source></source>
        <translation>ウィンドウを閉じる(&amp;C)</translation>
    </message>
    <message id="menu_edit_copy">
        <source></source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message id="menu_edit_select_all">
        <source></source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message id="menu_edit_select_children">
        <source></source>
        <translation>子プロセスを選択(&amp;D)</translation>
    </message>
    <message id="menu_edit_filter">
        <source></source>
        <translation>フィルター(&amp;F)…</translation>
    </message>
    <message id="menu_view_update_now">
        <source></source>
        <translation>今すぐ更新(&amp;U)</translation>
    </message>
    <message id="menu_view_pause">
        <source></source>
        <translation>一時停止(&amp;P)</translation>
    </message>
    <message id="menu_view_follow">
        <source></source>
        <translation>選択行の位置を保持(&amp;K)</translation>
    </message>
    <message id="menu_view_sort_by">
        <source></source>
        <translation>並べ替え(&amp;S)</translation>
    </message>
    <message id="menu_view_column_left">
        <source></source>
        <translation>並べ替え列を左へ移動(&amp;L)</translation>
    </message>
    <message id="menu_view_column_right">
        <source></source>
        <translation>並べ替え列を右へ移動(&amp;R)</translation>
    </message>
    <message id="menu_view_column_wider">
        <source></source>
        <translation>並べ替え列を広くする(&amp;W)</translation>
    </message>
    <message id="menu_view_column_narrower">
        <source></source>
        <translation>並べ替え列を狭くする(&amp;N)</translation>
    </message>
    <message id="menu_view_column_fit">
        <source></source>
        <translation>並べ替え列を内容に合わせる(&amp;M)</translation>
    </message>
    <message id="menu_view_shape_list">
        <source></source>
        <translation>リスト(&amp;I)</translation>
    </message>
    <message id="menu_view_shape_tree">
        <source></source>
        <translation>ツリー(&amp;E)</translation>
    </message>
    <message id="menu_view_shape_applications">
        <source></source>
        <translation>アプリケーション別(&amp;A)</translation>
    </message>
    <message id="menu_view_unfold_all">
        <source></source>
        <translation>すべて展開(&amp;D)</translation>
    </message>
    <message id="menu_view_fold_all">
        <source></source>
        <translation>すべて折りたたむ(&amp;F)</translation>
    </message>
    <message id="menu_view_scope">
        <source></source>
        <translation>表示範囲(&amp;H)</translation>
    </message>
    <message id="menu_scope_all">
        <source></source>
        <translation>すべてのプロセス(&amp;A)</translation>
    </message>
    <message id="menu_scope_mine">
        <source></source>
        <translation>自分のプロセス(&amp;M)</translation>
    </message>
    <message id="menu_scope_others">
        <source></source>
        <translation>ほかのユーザーのプロセス(&amp;O)</translation>
    </message>
    <message id="menu_scope_applications">
        <source></source>
        <translation>アプリケーション(&amp;P)</translation>
    </message>
    <message id="menu_scope_without_kernel">
        <source></source>
        <translation>カーネルスレッド以外(&amp;W)</translation>
    </message>
    <message id="menu_scope_busy">
        <source></source>
        <translation>活動中のプロセス(&amp;B)</translation>
    </message>
    <message id="menu_columns_set">
        <source></source>
        <translation>列セット(&amp;S)</translation>
    </message>
    <message id="menu_set_standard">
        <source></source>
        <translation>標準(&amp;S)</translation>
    </message>
    <message id="menu_set_cpu">
        <source></source>
        <translation>CPU(&amp;C)</translation>
    </message>
    <message id="menu_set_memory">
        <source></source>
        <translation>メモリ(&amp;M)</translation>
    </message>
    <message id="menu_set_disk_network">
        <source></source>
        <translation>ディスクとネットワーク(&amp;D)</translation>
    </message>
    <message id="menu_set_commands">
        <source></source>
        <translation>コマンド(&amp;O)</translation>
    </message>
    <message id="menu_set_containers">
        <source></source>
        <translation>コンテナ(&amp;T)</translation>
    </message>
    <message id="menu_set_security">
        <source></source>
        <translation>セキュリティ(&amp;R)</translation>
    </message>
    <message id="menu_set_save_as">
        <source></source>
        <translation>名前を付けて保存(&amp;V)…</translation>
    </message>
    <message id="menu_set_rename">
        <source></source>
        <translation>名前の変更(&amp;E)…</translation>
    </message>
    <message id="menu_set_delete">
        <source></source>
        <translation>削除(&amp;L)…</translation>
    </message>
    <message id="menu_set_restore">
        <source></source>
        <translation>初期状態に戻す(&amp;A)…</translation>
    </message>
    <message id="menu_view_show_toolbar">
        <source></source>
        <translation>ツールバーを表示(&amp;T)</translation>
    </message>
    <message id="menu_view_customise_toolbar">
        <source></source>
        <translation>ツールバーをカスタマイズ(&amp;C)…</translation>
    </message>
    <message id="menu_columns_icon">
        <source></source>
        <translation>アイコン(&amp;I)</translation>
    </message>
    <message id="menu_columns_indicator">
        <source></source>
        <translation>マーク(&amp;D)</translation>
    </message>
    <message id="menu_columns_name">
        <source></source>
        <translation>名前(&amp;N)</translation>
    </message>
    <message id="menu_columns_cpu_usage">
        <source></source>
        <translation>CPU 使用率(&amp;C)</translation>
    </message>
    <message id="menu_columns_memory">
        <source></source>
        <translation>メモリ(&amp;M)</translation>
    </message>
    <message id="menu_columns_built_in">
        <source></source>
        <translation>プロセスの属性(&amp;R)</translation>
    </message>
    <message id="menu_columns_ps">
        <source></source>
        <translation>ps の列(&amp;P)</translation>
    </message>
    <message id="column_group_identity">
        <source></source>
        <translation>識別</translation>
    </message>
    <message id="column_group_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="column_group_memory">
        <source></source>
        <translation>メモリ</translation>
    </message>
    <message id="column_group_network">
        <source></source>
        <translation>ネットワーク</translation>
    </message>
    <message id="column_group_gpu">
        <source></source>
        <translation>GPU</translation>
    </message>
    <message id="column_group_security">
        <source></source>
        <translation>セキュリティ</translation>
    </message>
    <message id="column_group_disk">
        <source></source>
        <translation>ディスク</translation>
    </message>
    <message id="column_group_users">
        <source></source>
        <translation>ユーザーとグループ</translation>
    </message>
    <message id="column_group_terminal">
        <source></source>
        <translation>端末とセッション</translation>
    </message>
    <message id="column_group_signals">
        <source></source>
        <translation>シグナル</translation>
    </message>
    <message id="column_group_belonging">
        <source></source>
        <translation>所属</translation>
    </message>
    <message id="column_group_other">
        <source></source>
        <translation>その他</translation>
    </message>
    <message id="column_group_desktop">
        <source></source>
        <translation>デスクトップアプリケーション</translation>
    </message>
    <message id="column_group_repeated">
        <source></source>
        <translation>同じ内容の別名</translation>
    </message>
    <message id="column_group_classic">
        <source></source>
        <translation>Classic 環境</translation>
    </message>
    <message id="column_group_not_counted">
        <source></source>
        <translation>このシステムでは計量されないもの</translation>
    </message>
    <message id="column_filter">
        <source></source>
        <translation>列を検索</translation>
    </message>
    <message id="column_filter_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>ほか %n 列: さらに文字を入力してください</numerusform>
        </translation>
    </message>
    <message id="column_filter_nothing">
        <source></source>
        <translation>名前や説明にこれを含む列はありません</translation>
    </message>
    <message id="column_hide">
        <source></source>
        <translation>「%1」を隠す(&amp;H)</translation>
    </message>
    <message id="column_of_ps_tip">
        <source></source>
        <translation>このシステムの ps の列で、キーワード %1 で出力されます。</translation>
    </message>
    <message id="column_keywords_tip">
        <source></source>
        <translation>ps のキーワード: %1</translation>
    </message>
    <message id="menu_process_quit_or_kill">
        <source></source>
        <translation>終了または強制終了(&amp;Q)…</translation>
    </message>
    <message id="menu_process_high_priority">
        <source></source>
        <translation>高い優先度(&amp;H)</translation>
    </message>
    <message id="menu_process_normal_priority">
        <source></source>
        <translation>通常の優先度(&amp;N)</translation>
    </message>
    <message id="menu_process_low_priority">
        <source></source>
        <translation>低い優先度(&amp;L)</translation>
    </message>
    <message id="menu_process_halt">
        <source></source>
        <translation>停止(&amp;A)…</translation>
    </message>
    <message id="menu_process_continue">
        <source></source>
        <translation>再開(&amp;C)</translation>
    </message>
    <message id="menu_process_hide">
        <source></source>
        <translation>隠す(&amp;D)</translation>
    </message>
    <message id="menu_process_bring_to_front">
        <source></source>
        <translation>前面に移動(&amp;B)</translation>
    </message>
    <message id="menu_process_reveal">
        <source></source>
        <translation>ファイルマネージャーで表示(&amp;S)</translation>
    </message>
    <message id="menu_process_by_id">
        <source></source>
        <translation>ID でプロセスを検索(&amp;I)…</translation>
    </message>
    <message id="menu_window_show_main">
        <source></source>
        <translation>プロセス(&amp;P)</translation>
    </message>
    <message id="menu_window_remembered">
        <source></source>
        <translation>記憶したウィンドウ(&amp;R)…</translation>
    </message>
    <message id="menu_window_close_all">
        <source></source>
        <translation>履歴、ログ、詳細をすべて閉じる(&amp;C)</translation>
    </message>
    <message id="menu_window_show_animated_view">
        <source></source>
        <translation>アニメーション表示(&amp;A)</translation>
    </message>
    <message id="menu_view_overlay">
        <source></source>
        <translation>アニメーション表示を画面に重ねる(&amp;O)</translation>
    </message>
    <message id="quintessential_window_title">
        <source></source>
        <translation>アニメーション表示</translation>
    </message>
    <message id="quintessential_spoken">
        <source></source>
        <translation>プロセスをアイコンで表示（忙しいものほど大きい）：%1。数値はプロセスの表にあります。</translation>
    </message>
    <message id="quintessential_menu_toggle">
        <source></source>
        <translation>画面全体に重ねる(&amp;O)</translation>
    </message>
    <message id="quintessential_menu_processes">
        <source></source>
        <translation>プロセスを表示(&amp;P)</translation>
    </message>
    <message id="quintessential_menu_close">
        <source></source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message id="quintessential_cannot_draw">
        <source></source>
        <translation>アニメーション表示を描画できません。このディスプレイには OpenGL 3.3 または OpenGL ES 3.0 がないか、動作しなくなっています。Lurkwell のほかの機能はすべて使えます。</translation>
    </message>
    <message id="overlay_needs_compositor">
        <source></source>
        <translation>ここではアニメーション表示を半透明にできません。</translation>
    </message>
    <message id="overlay_needs_compositor_text">
        <source></source>
        <translation>このデスクトップではウィンドウを合成するものがありません (コンポジターが動作していません)。代わりに画面全体を覆って表示します。Escape または %1 で戻ります。</translation>
    </message>
    <message id="overlay_needs_layer">
        <source></source>
        <translation>ここではアニメーション表示をほかのウィンドウの上に重ねられません。</translation>
    </message>
    <message id="overlay_needs_layer_text">
        <source></source>
        <translation>このデスクトップでは、プログラムがウィンドウをほかのプログラムのウィンドウより上に保つことはできません。代わりに画面全体を覆って表示します。Escape または %1 で戻ります。</translation>
    </message>
    <message id="menu_help_help">
        <source></source>
        <translation>Lurkwell ヘルプ(&amp;H)</translation>
    </message>
    <message id="main_window_title">
        <source></source>
        <translation>プロセス</translation>
    </message>
    <message id="main_window_title_paused">
        <source></source>
        <translation>プロセス (一時停止中)</translation>
    </message>
    <message id="main_window_filter_placeholder">
        <source></source>
        <translation>プロセスをフィルター</translation>
    </message>
    <message id="main_window_filter_tip">
        <source></source>
        <translation>一部のプロセスだけを表示します。例:&lt;br&gt;&lt;b&gt;ssh&lt;/b&gt; – ID または表示されているテキストにこれを含むもの&lt;br&gt;&lt;b&gt;name:post&lt;/b&gt;、&lt;b&gt;user:root,mail&lt;/b&gt;、&lt;b&gt;name:/^k.*d$/&lt;/b&gt; – 1 つの属性にこれを含むもの&lt;br&gt;&lt;b&gt;mem&amp;gt;500M&lt;/b&gt;、&lt;b&gt;nice&amp;lt;0&lt;/b&gt;、&lt;b&gt;time&amp;gt;=1h&lt;/b&gt; – 値がこれより大きい、または小さいもの&lt;br&gt;&lt;b&gt;port:443&lt;/b&gt;、&lt;b&gt;file:/var/log&lt;/b&gt; – ソケットまたはファイルを開いているもの&lt;br&gt;&lt;b&gt;-sleep&lt;/b&gt; – 含まないもの、&lt;b&gt;a b&lt;/b&gt; – 両方、&lt;b&gt;a | b&lt;/b&gt; – どちらか</translation>
    </message>
    <message id="main_window_filter_hides_all">
        <source></source>
        <translation>フィルターに一致するプロセスはありません。Esc ですべて表示します。</translation>
    </message>
    <message id="field_clear">
        <source></source>
        <translation>入力欄を空にする</translation>
    </message>
    <message id="filter_last">
        <source></source>
        <translation>最近使ったフィルター</translation>
    </message>
    <message id="filter_none_yet">
        <source></source>
        <translation>まだフィルターを使っていません</translation>
    </message>
    <message id="setting_title_ALERT_RULES">
        <source></source>
        <translation>アラート: ルール</translation>
    </message>
    <message id="setting_ALERT_RULES">
        <source></source>
        <translation>アラートのルールと、それぞれのコマンド、オンかどうかです。アラートのウィンドウで作成します。</translation>
    </message>
    <message id="setting_title_ALERT_NOTIFICATIONS">
        <source></source>
        <translation>アラート: 通知</translation>
    </message>
    <message id="setting_ALERT_NOTIFICATIONS">
        <source></source>
        <translation>アラートが始まったときにデスクトップに通知を表示します。アラートのウィンドウとログにはいずれの場合も表示されます。</translation>
    </message>
    <message id="setting_title_ALERTS_WINDOW_FRAME">
        <source></source>
        <translation>アラート: ウィンドウの位置とサイズ</translation>
    </message>
    <message id="setting_ALERTS_WINDOW_FRAME">
        <source></source>
        <translation>アラートのウィンドウの位置とサイズです。</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_ALERTS_WINDOW">
        <source></source>
        <translation>アラート: ウィンドウを開いていたか</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_ALERTS_WINDOW">
        <source></source>
        <translation>起動時にアラートのウィンドウを開きます。開いていたかどうかはプログラムがここに記録します。</translation>
    </message>
    <message id="menu_process_alert">
        <source></source>
        <translation>アラートを設定(&amp;T)…</translation>
    </message>
    <message id="menu_window_show_alerts">
        <source></source>
        <translation>アラート(&amp;L)</translation>
    </message>
    <message id="help_menu_window_show_alerts">
        <source></source>
        <translation>知らせてほしいことのルール、その現在の状態、これまでに起きたこと</translation>
    </message>
    <message id="help_menu_process_alert">
        <source></source>
        <translation>選択したプロセスのようなプロセスが何かをしたときに知らせる</translation>
    </message>
    <message id="alerts_title">
        <source></source>
        <translation>アラート</translation>
    </message>
    <message id="alerts_rules">
        <source></source>
        <translation>ルール</translation>
    </message>
    <message id="alerts_occurrences">
        <source></source>
        <translation>発生履歴</translation>
    </message>
    <message id="alerts_none">
        <source></source>
        <translation>まだルールがありません。ルールには知らせてほしいことを記述します。例: 「any cpu&gt;90% for 10m」、「unit:backup.service absent for 1h」。</translation>
    </message>
    <message id="alerts_column_rule">
        <source></source>
        <translation>ルール</translation>
    </message>
    <message id="alerts_column_state">
        <source></source>
        <translation>現在</translation>
    </message>
    <message id="alerts_column_last">
        <source></source>
        <translation>前回のアラート</translation>
    </message>
    <message id="alerts_column_began">
        <source></source>
        <translation>開始</translation>
    </message>
    <message id="alerts_column_process">
        <source></source>
        <translation>プロセス</translation>
    </message>
    <message id="alerts_column_lasted">
        <source></source>
        <translation>継続時間</translation>
    </message>
    <message id="alerts_column_figures">
        <source></source>
        <translation>値</translation>
    </message>
    <message id="alerts_add">
        <source></source>
        <translation>追加…</translation>
    </message>
    <message id="alerts_change">
        <source></source>
        <translation>変更…</translation>
    </message>
    <message id="alerts_remove">
        <source></source>
        <translation>削除</translation>
    </message>
    <message id="alerts_add_title">
        <source></source>
        <translation>新しいルール</translation>
    </message>
    <message id="alerts_change_title">
        <source></source>
        <translation>ルールの変更</translation>
    </message>
    <message id="alerts_remove_question">
        <source></source>
        <translation>このルールを削除しますか?</translation>
    </message>
    <message id="alerts_notifies">
        <source></source>
        <translation>デスクトップに通知する</translation>
    </message>
    <message id="alerts_show_process">
        <source></source>
        <translation>プロセスを表示</translation>
    </message>
    <message id="alerts_show_window">
        <source></source>
        <translation>アラートを表示</translation>
    </message>
    <message id="alerts_show_log">
        <source></source>
        <translation>ログを表示</translation>
    </message>
    <message id="alerts_never">
        <source></source>
        <translation>なし</translation>
    </message>
    <message id="alerts_state_off">
        <source></source>
        <translation>オフ</translation>
    </message>
    <message id="alerts_state_damaged">
        <source></source>
        <translation>保存内容を読み取れません。ルールを変更するか削除してください。</translation>
    </message>
    <message id="alerts_state_calm">
        <source></source>
        <translation>未成立</translation>
    </message>
    <message id="alerts_state_pending">
        <source></source>
        <translation>成立 %1 / %2</translation>
    </message>
    <message id="alerts_state_firing">
        <source></source>
        <translation>アラート</translation>
    </message>
    <message id="alerts_state_firing_for" numerus="yes">
        <source></source>
        <translation>
            <numerusform>アラート: %n プロセス</numerusform>
        </translation>
    </message>
    <message id="alerts_not_allowed">
        <source></source>
        <translation>%1 個は判断できません: 許可されていません</translation>
    </message>
    <message id="alerts_not_counted">
        <source></source>
        <translation>%1 個は判断できません: このマシンでは計量されません</translation>
    </message>
    <message id="alerts_not_yet_known">
        <source></source>
        <translation>%1 個はまだ判断できません</translation>
    </message>
    <message id="alerts_nothing_there">
        <source></source>
        <translation>該当プロセスなし</translation>
    </message>
    <message id="alerts_together">
        <source></source>
        <translation>全部の合計</translation>
    </message>
    <message id="alerts_seconds">
        <source></source>
        <translation>%1 秒</translation>
    </message>
    <message id="alerts_minutes">
        <source></source>
        <translation>%1 分</translation>
    </message>
    <message id="alerts_hours">
        <source></source>
        <translation>%1 時間</translation>
    </message>
    <message id="alerts_days">
        <source></source>
        <translation>%1 日</translation>
    </message>
    <message id="alerts_lasts">
        <source></source>
        <translation>%1 経過</translation>
    </message>
    <message id="alerts_lasted">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="alerts_lasted_to_process_end">
        <source></source>
        <translation>%1、プロセスが終了</translation>
    </message>
    <message id="alerts_lasted_to_rule_change">
        <source></source>
        <translation>%1、ルールを変更</translation>
    </message>
    <message id="alerts_no_condition">
        <source></source>
        <translation>ルールには「cpu&gt;90%」のような条件が必要です。</translation>
    </message>
    <message id="alerts_no_span">
        <source></source>
        <translation>「%1」には 30s、5m、1h30m のような時間が必要です。</translation>
    </message>
    <message id="alerts_too_long">
        <source></source>
        <translation>「%1」はルールが待てる 30 日を超えています。</translation>
    </message>
    <message id="alerts_twice">
        <source></source>
        <translation>「%1」が 2 回あります。</translation>
    </message>
    <message id="alerts_does_not_fit">
        <source></source>
        <translation>「%1」はこの種類のルールでは意味を持ちません。</translation>
    </message>
    <message id="alerts_unknown_word">
        <source></source>
        <translation>「%1」が時間の後にあります。条件は「for」と「until」の前に置きます。</translation>
    </message>
    <message id="alerts_no_total">
        <source></source>
        <translation>「total」の後には、「mem&gt;8G」のように、合計できる値の比較を置きます。</translation>
    </message>
    <message id="alerts_other_total">
        <source></source>
        <translation>「until」の後には、「total」の後と同じ値の比較を置きます。</translation>
    </message>
    <message id="alerts_text_too_large">
        <source></source>
        <translation>ルールは最大 %1 文字です。</translation>
    </message>
    <message id="alerts_rule_label">
        <source></source>
        <translation>ルール(&amp;R):</translation>
    </message>
    <message id="alerts_rule_placeholder">
        <source></source>
        <translation>name:postgres mem&gt;4G for 5m until mem&lt;3G</translation>
    </message>
    <message id="alerts_trial_label">
        <source></source>
        <translation>現在:</translation>
    </message>
    <message id="alerts_trial_wait">
        <source></source>
        <translation>確認中…</translation>
    </message>
    <message id="alerts_trial_none">
        <source></source>
        <translation>条件を満たすプロセスはありません。</translation>
    </message>
    <message id="alerts_trial_some">
        <source></source>
        <translation>条件を満たすプロセス: %1</translation>
    </message>
    <message id="alerts_trial_total" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 (%n プロセス)</numerusform>
        </translation>
    </message>
    <message id="alerts_trial_met">
        <source></source>
        <translation>条件が成立しています。</translation>
    </message>
    <message id="alerts_trial_not_met">
        <source></source>
        <translation>条件は成立していません。</translation>
    </message>
    <message id="alerts_command_label">
        <source></source>
        <translation>コマンド(&amp;C):</translation>
    </message>
    <message id="alerts_command_placeholder">
        <source></source>
        <translation>何も起動しません</translation>
    </message>
    <message id="alerts_command_tip">
        <source></source>
        <translation>アラートが始まったときに起動するプログラムとその引数です。シェルは介しません。語は空白で区切り、引用符で囲むとひとまとまりになります。環境変数 LURKWELL_ALERT_RULE、_TIME、_PID、_NAME、_FIGURES を参照できます。</translation>
    </message>
    <message id="alerts_command_no_end">
        <source></source>
        <translation>コマンドの引用符が閉じられていません。</translation>
    </message>
    <message id="alerts_command_long">
        <source></source>
        <translation>コマンドが長すぎます。</translation>
    </message>
    <message id="alerts_command_not_started">
        <source></source>
        <translation>コマンドを起動できませんでした: %1</translation>
    </message>
    <message id="alerts_command_status">
        <source></source>
        <translation>コマンドがステータス %1 で終了しました</translation>
    </message>
    <message id="alerts_command_too_long">
        <source></source>
        <translation>コマンドが %1 秒を超えたため終了させました</translation>
    </message>
    <message id="alerts_command_left_out">
        <source></source>
        <translation>同時に実行するコマンドが多すぎるため、一部を省きました</translation>
    </message>
    <message id="alerts_editor_note">
        <source></source>
        <translation>ルールはフィルターと同じ形の条件です。先頭に「any」を付けると全プロセスで 1 つのアラートになり、「total mem&gt;8G」は値を合計し、「absent」は該当するものがなくなるのを待ちます。「for 5m」は条件が続くべき時間、「until cpu&lt;70%」はアラートを終える条件です。指定しない場合は、条件が 30 秒間成立しなければ終わります。</translation>
    </message>
    <message id="alerts_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>ほか %n 件のアラート</numerusform>
        </translation>
    </message>
    <message id="alerts_more_latest">
        <source></source>
        <translation>最新: %1
%2</translation>
    </message>
    <message id="alerts_left_out" numerus="yes">
        <source></source>
        <translation>
            <numerusform>監視している %1 個のほかに、%n 個のルールが保存されています。次回の起動時から監視するには、ほかのルールを削除してください。</numerusform>
        </translation>
    </message>
    <message id="alerts_too_many">
        <source></source>
        <translation>これ以上ルールを追加できません。</translation>
    </message>
    <message id="alerts_log_problem">
        <source></source>
        <translation>アラートのログに書き込めません: %1</translation>
    </message>
    <message id="alerts_log_not_shown">
        <source></source>
        <translation>ログを表示できるファイルマネージャーがありません。ログは %1 です</translation>
    </message>
    <message id="alerts_notification_problem">
        <source></source>
        <translation>通知を表示できません: %1</translation>
    </message>
    <message id="alerts_has_ended">
        <source></source>
        <translation>%1 は終了しました。</translation>
    </message>
    <message id="alerts_not_in_table">
        <source></source>
        <translation>%1 は動作していますが、表のフィルターまたは表示範囲から外れています。</translation>
    </message>
    <message id="alerts_not_of_recordings">
        <source></source>
        <translation>アラートは動作中のプロセスを対象とします。記録の中では何も監視しません。</translation>
    </message>
    <message id="filter_unknown_key">
        <source></source>
        <translation>「%1」という属性はありません。引用符で囲むと、そのテキストを検索します。</translation>
    </message>
    <message id="filter_unknown_key_near">
        <source></source>
        <translation>「%1」という属性はありません。%2 ならあります。</translation>
    </message>
    <message id="filter_no_value">
        <source></source>
        <translation>「%1」の後に何もありません。</translation>
    </message>
    <message id="filter_no_term">
        <source></source>
        <translation>「%1」の横に何かが足りません。</translation>
    </message>
    <message id="filter_no_end">
        <source></source>
        <translation>引用符が閉じられていません。</translation>
    </message>
    <message id="filter_text_is_not_compared">
        <source></source>
        <translation>「%1」はテキストです。%2 のように指定してください。</translation>
    </message>
    <message id="filter_no_number">
        <source></source>
        <translation>「%1」は数値ではありません。例: %2</translation>
    </message>
    <message id="filter_no_expression">
        <source></source>
        <translation>「%1」は正規表現ではありません: %2。</translation>
    </message>
    <message id="main_window_status_some" numerus="yes">
        <source></source>
        <translation>
            <numerusform>プロセス %n 個中 %1 個: %2、選択 %3 個</numerusform>
        </translation>
    </message>
    <message id="main_window_status_totals">
        <source></source>
        <translation>: CPU %1 %、メモリ %2</translation>
    </message>
    <message id="main_window_status_paused">
        <source></source>
        <translation>一時停止中: その後 %1 個終了、%2 個開始。</translation>
    </message>
    <message id="main_window_status_follows">
        <source></source>
        <translation>選択行の位置を保持しています。</translation>
    </message>
    <message id="main_window_scope_hides_all">
        <source></source>
        <translation>条件に合うプロセスはありません: %1。「表示」›「表示範囲」›「すべてのプロセス」ですべて表示します。</translation>
    </message>
    <message id="scope_mine">
        <source></source>
        <translation>自分</translation>
    </message>
    <message id="scope_others">
        <source></source>
        <translation>ほかのユーザー</translation>
    </message>
    <message id="scope_applications">
        <source></source>
        <translation>アプリケーション</translation>
    </message>
    <message id="scope_without_kernel">
        <source></source>
        <translation>カーネルスレッド以外</translation>
    </message>
    <message id="scope_busy">
        <source></source>
        <translation>活動中</translation>
    </message>
    <message id="scope_filter">
        <source></source>
        <translation>フィルター</translation>
    </message>
    <message id="filter_not_allowed">
        <source></source>
        <translation>許可なし: %1</translation>
    </message>
    <message id="filter_not_allowed_tip">
        <source></source>
        <translation>管理者だけが調べられる、ほかのユーザーのプロセス</translation>
    </message>
    <message id="filter_looks" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 個のプロセスを調べています…</numerusform>
        </translation>
    </message>
    <message id="filter_hides_all_not_allowed">
        <source></source>
        <translation>調べられるプロセスの中にフィルターに一致するものはありません。許可なし: %1。Escape でフィルターを解除します。</translation>
    </message>
    <message id="switch_shape">
        <source></source>
        <translation>表の形</translation>
    </message>
    <message id="switch_scope">
        <source></source>
        <translation>表示するプロセス</translation>
    </message>
    <message id="switch_columns">
        <source></source>
        <translation>列セット</translation>
    </message>
    <message id="set_save_title">
        <source></source>
        <translation>列をセットとして保存</translation>
    </message>
    <message id="set_rename_title">
        <source></source>
        <translation>列セットの名前の変更</translation>
    </message>
    <message id="set_title_label">
        <source></source>
        <translation>セットの名前:</translation>
    </message>
    <message id="set_title_agree">
        <source></source>
        <translation>保存</translation>
    </message>
    <message id="set_without_title">
        <source></source>
        <translation>セットには名前が必要です。</translation>
    </message>
    <message id="set_title_too_long">
        <source></source>
        <translation>名前は最大 %1 文字です。</translation>
    </message>
    <message id="set_title_is_taken">
        <source></source>
        <translation>セット「%1」はすでにあります。</translation>
    </message>
    <message id="set_too_many">
        <source></source>
        <translation>自分のセットは最大 %1 個です。不要なものを削除してください。</translation>
    </message>
    <message id="set_question_title">
        <source></source>
        <translation>列セット</translation>
    </message>
    <message id="set_delete_question">
        <source></source>
        <translation>セット「%1」を削除しますか? 列とその幅、順序は元に戻せません。</translation>
    </message>
    <message id="set_delete_agree">
        <source></source>
        <translation>削除</translation>
    </message>
    <message id="set_restore_question">
        <source></source>
        <translation>セット「%1」を最初の状態に戻しますか? このセットへの変更は失われます。</translation>
    </message>
    <message id="set_restore_agree">
        <source></source>
        <translation>初期状態に戻す</translation>
    </message>
    <message id="group_kernel_threads">
        <source></source>
        <translation>カーネルスレッド</translation>
    </message>
    <message id="row_level">
        <source></source>
        <translation>、レベル %1</translation>
    </message>
    <message id="row_folded">
        <source></source>
        <translation>、折りたたみ、下位 %1 個</translation>
    </message>
    <message id="row_ended">
        <source></source>
        <translation>、終了</translation>
    </message>
    <message id="row_zombie">
        <source></source>
        <translation>、ゾンビ</translation>
    </message>
    <message id="cell_spoken">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="sorted_ascending">
        <source></source>
        <translation>昇順に並べ替え済み</translation>
    </message>
    <message id="sorted_descending">
        <source></source>
        <translation>降順に並べ替え済み</translation>
    </message>
    <message id="row_unfolded">
        <source></source>
        <translation>、展開、下位 %1 個</translation>
    </message>
    <message id="total_tip" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 個のプロセスの合計 (わかっている範囲)</numerusform>
        </translation>
    </message>
    <message id="total_memory_tip">
        <source></source>
        <translation>常駐メモリ: プロセスが共有する分は、わかる場合は比例配分 (PSS) で、それ以外はプロセスごとに全量を数えます</translation>
    </message>
    <message id="main_window_status_counts" numerus="yes">
        <source></source>
        <translation>
            <numerusform>プロセス %n 個、表示 %1 個、選択 %2 個</numerusform>
        </translation>
    </message>
    <message id="main_window_helper_unprivileged">
        <source></source>
        <translation>自分のプロセスだけを操作できます。&lt;a href="rights"&gt;権限を増やす…&lt;/a&gt;</translation>
    </message>
    <message id="main_window_helper_absent">
        <source></source>
        <translation>ヘルパーが動作していないため、プロセスを操作できません。&lt;a href="rights"&gt;理由&lt;/a&gt;</translation>
    </message>
    <message id="main_window_rights_title">
        <source></source>
        <translation>Lurkwell は、あなた自身のプロセスだけを操作できます</translation>
    </message>
    <message id="main_window_rights_may_ask">
        <source></source>
        <translation>管理者は、すべてのプロセスへのシグナル送信と優先度変更の権限を Lurkwell のヘルパーに与えることができます。確認は 1 回だけで、次回以降の起動でも有効です。</translation>
    </message>
    <message id="main_window_rights_may_not_ask">
        <source></source>
        <translation>パッケージとしてインストールすると、すべてのプロセスへのシグナル送信と優先度変更の権限を管理者が与えられるヘルパーが入ります。</translation>
    </message>
    <message id="main_window_rights_ask">
        <source></source>
        <translation>認証…</translation>
    </message>
    <message id="main_window_rights_close">
        <source></source>
        <translation>閉じる</translation>
    </message>
    <message id="help_title">
        <source></source>
        <translation>Lurkwell ヘルプ</translation>
    </message>
    <message id="help_no_key">
        <source></source>
        <translation>(キーの割り当てなし)</translation>
    </message>
    <message id="help_menu_process_quit_or_kill">
        <source></source>
        <translation>選択したプロセスを終了または強制終了する</translation>
    </message>
    <message id="help_menu_edit_filter">
        <source></source>
        <translation>あるテキストを含むプロセスだけを表示する。Escape ですべて表示</translation>
    </message>
    <message id="help_menu_process_by_id">
        <source></source>
        <translation>ID を指定してプロセスに移動する</translation>
    </message>
    <message id="help_menu_edit_copy">
        <source></source>
        <translation>選択した行をコピーする</translation>
    </message>
    <message id="help_menu_file_new_cpu_history">
        <source></source>
        <translation>選択した各プロセスの CPU 履歴を開く</translation>
    </message>
    <message id="help_menu_file_new_logging">
        <source></source>
        <translation>選択した各プロセスのログを開く</translation>
    </message>
    <message id="help_menu_file_details">
        <source></source>
        <translation>選択した各プロセスのすべて (スレッド、開いているファイル、メモリ、環境、制限) を表示する</translation>
    </message>
    <message id="help_menu_view_overlay">
        <source></source>
        <translation>アニメーション表示を画面全体に重ねる、または消す</translation>
    </message>
    <message id="help_menu_file_record">
        <source></source>
        <translation>後で見られるようにプロセスをファイルに記録する。もう一度で終わる</translation>
    </message>
    <message id="help_menu_set_standard">
        <source></source>
        <translation>列: 標準</translation>
    </message>
    <message id="help_menu_set_cpu">
        <source></source>
        <translation>列: CPU</translation>
    </message>
    <message id="help_menu_set_memory">
        <source></source>
        <translation>列: メモリ</translation>
    </message>
    <message id="help_menu_set_disk_network">
        <source></source>
        <translation>列: ディスクとネットワーク</translation>
    </message>
    <message id="help_menu_set_commands">
        <source></source>
        <translation>列: コマンド</translation>
    </message>
    <message id="help_menu_set_containers">
        <source></source>
        <translation>列: コンテナ</translation>
    </message>
    <message id="help_menu_set_security">
        <source></source>
        <translation>列: セキュリティ</translation>
    </message>
    <message id="help_menu_file_open_recording">
        <source></source>
        <translation>記録したものを別のウィンドウで見る</translation>
    </message>
    <message id="help_menu_file_close_window">
        <source></source>
        <translation>ウィンドウを閉じる。最後のウィンドウならプログラムを終了する</translation>
    </message>
    <message id="help_menu_application_quit">
        <source></source>
        <translation>終了する。開いているものは次回の起動時に戻る</translation>
    </message>
    <message id="help_menu_application_preferences">
        <source></source>
        <translation>設定を開く</translation>
    </message>
    <message id="help_menu_edit_select_all">
        <source></source>
        <translation>表示されているすべてのプロセスを選択する</translation>
    </message>
    <message id="help_menu_edit_select_children">
        <source></source>
        <translation>選択したプロセスの代わりに、その子プロセスを選択する</translation>
    </message>
    <message id="help_menu_view_update_now">
        <source></source>
        <translation>今すぐ更新する</translation>
    </message>
    <message id="help_menu_view_pause">
        <source></source>
        <translation>行と値を止める。もう一度で再開する</translation>
    </message>
    <message id="help_menu_view_follow">
        <source></source>
        <translation>ほかの行が動いても、選択した行をその位置に保つ</translation>
    </message>
    <message id="help_menu_view_shape_list">
        <source></source>
        <translation>すべてのプロセスをリストで表示する</translation>
    </message>
    <message id="help_menu_view_shape_tree">
        <source></source>
        <translation>子プロセスを親プロセスの下に表示する</translation>
    </message>
    <message id="help_menu_view_shape_applications">
        <source></source>
        <translation>プロセスをアプリケーションの下に表示する</translation>
    </message>
    <message id="help_menu_view_unfold_all">
        <source></source>
        <translation>すべての行を展開する</translation>
    </message>
    <message id="help_menu_view_fold_all">
        <source></source>
        <translation>すべての行を折りたたむ</translation>
    </message>
    <message id="help_menu_view_column_left">
        <source></source>
        <translation>並べ替え列を左へ移動する</translation>
    </message>
    <message id="help_menu_view_column_right">
        <source></source>
        <translation>右へ動かす</translation>
    </message>
    <message id="help_menu_view_column_wider">
        <source></source>
        <translation>広くする</translation>
    </message>
    <message id="help_menu_view_column_narrower">
        <source></source>
        <translation>狭くする</translation>
    </message>
    <message id="help_menu_view_column_fit">
        <source></source>
        <translation>内容の幅に合わせる</translation>
    </message>
    <message id="help_menu_process_halt">
        <source></source>
        <translation>選択したプロセスを停止する</translation>
    </message>
    <message id="help_menu_process_continue">
        <source></source>
        <translation>停止したプロセスを再開する</translation>
    </message>
    <message id="help_menu_process_high_priority">
        <source></source>
        <translation>選択したプロセスの優先度を高くする</translation>
    </message>
    <message id="help_menu_process_normal_priority">
        <source></source>
        <translation>通常の優先度にする</translation>
    </message>
    <message id="help_menu_process_low_priority">
        <source></source>
        <translation>優先度を低くする</translation>
    </message>
    <message id="help_menu_process_bring_to_front">
        <source></source>
        <translation>選択したアプリケーションを前面に移動する</translation>
    </message>
    <message id="help_menu_process_hide">
        <source></source>
        <translation>そのウィンドウを隠す</translation>
    </message>
    <message id="help_menu_process_reveal">
        <source></source>
        <translation>そのファイルをファイルマネージャーで表示する</translation>
    </message>
    <message id="help_menu_help_help">
        <source></source>
        <translation>このページ</translation>
    </message>
    <message id="main_window_help_missing">
        <source></source>
        <translation>ヘルプのページを読み取れません: %1</translation>
    </message>
    <message id="value_not_yet_known">
        <source></source>
        <translation>まだ不明</translation>
    </message>
    <message id="value_not_allowed">
        <source></source>
        <translation>許可なし</translation>
    </message>
    <message id="value_not_counted">
        <source></source>
        <translation>このシステムでは計量なし</translation>
    </message>
    <message id="value_not_yet_known_tip">
        <source></source>
        <translation>まだ不明です: 次回以降の更新で表示されます。</translation>
    </message>
    <message id="value_not_allowed_tip">
        <source></source>
        <translation>許可されていません: このプロセスのこの値を読めるのは root だけです。root が Lurkwell を起動すれば表示されます。</translation>
    </message>
    <message id="value_not_counted_tip">
        <source></source>
        <translation>計量されていません: このシステムには、このプロセスのこの値がありません。</translation>
    </message>
    <message id="value_not_allowed_pid_disk_read_tip">
        <source></source>
        <translation>許可されていません: 読めるのはプロセスのユーザーと root だけです。ユニットの読み書きはユニットの列で見られます。root が Lurkwell を起動すれば表示されます。</translation>
    </message>
    <message id="value_not_allowed_pid_disk_written_tip">
        <source></source>
        <translation>許可されていません: 読めるのはプロセスのユーザーと root だけです。ユニットの読み書きはユニットの列で見られます。root が Lurkwell を起動すれば表示されます。</translation>
    </message>
    <message id="value_not_allowed_pid_disk_read_rate_tip">
        <source></source>
        <translation>許可されていません: 読めるのはプロセスのユーザーと root だけです。ユニットの読み書きはユニットの列で見られます。root が Lurkwell を起動すれば表示されます。</translation>
    </message>
    <message id="value_not_allowed_pid_disk_write_rate_tip">
        <source></source>
        <translation>許可されていません: 読めるのはプロセスのユーザーと root だけです。ユニットの読み書きはユニットの列で見られます。root が Lurkwell を起動すれば表示されます。</translation>
    </message>
    <message id="value_not_counted_pid_unit_disk_read_tip">
        <source></source>
        <translation>計量されていません: プロセスのユニットは入出力を計量していません。ユニットに IOAccounting=yes を設定すると計量されます。</translation>
    </message>
    <message id="value_not_counted_pid_unit_disk_written_tip">
        <source></source>
        <translation>計量されていません: プロセスのユニットは入出力を計量していません。ユニットに IOAccounting=yes を設定すると計量されます。</translation>
    </message>
    <message id="value_not_counted_pid_unit_read_rate_tip">
        <source></source>
        <translation>計量されていません: プロセスのユニットは入出力を計量していません。ユニットに IOAccounting=yes を設定すると計量されます。</translation>
    </message>
    <message id="value_not_counted_pid_unit_write_rate_tip">
        <source></source>
        <translation>計量されていません: プロセスのユニットは入出力を計量していません。ユニットに IOAccounting=yes を設定すると計量されます。</translation>
    </message>
    <message id="value_not_yet_known_pid_cpu_share_tip">
        <source></source>
        <translation>まだ不明です: 2 回の読み取りが必要なため、次回以降の更新で表示されます。</translation>
    </message>
    <message id="value_not_yet_known_pid_user_share_tip">
        <source></source>
        <translation>まだ不明です: 2 回の読み取りが必要なため、次回以降の更新で表示されます。</translation>
    </message>
    <message id="value_not_yet_known_pid_system_share_tip">
        <source></source>
        <translation>まだ不明です: 2 回の読み取りが必要なため、次回以降の更新で表示されます。</translation>
    </message>
    <message id="value_not_yet_known_pid_disk_read_rate_tip">
        <source></source>
        <translation>まだ不明です: 2 回の読み取りが必要なため、次回以降の更新で表示されます。</translation>
    </message>
    <message id="value_not_yet_known_pid_disk_write_rate_tip">
        <source></source>
        <translation>まだ不明です: 2 回の読み取りが必要なため、次回以降の更新で表示されます。</translation>
    </message>
    <message id="value_not_yet_known_pid_read_rate_tip">
        <source></source>
        <translation>まだ不明です: 2 回の読み取りが必要なため、次回以降の更新で表示されます。</translation>
    </message>
    <message id="value_not_yet_known_pid_write_rate_tip">
        <source></source>
        <translation>まだ不明です: 2 回の読み取りが必要なため、次回以降の更新で表示されます。</translation>
    </message>
    <message id="value_not_yet_known_pid_unit_read_rate_tip">
        <source></source>
        <translation>まだ不明です: 2 回の読み取りが必要なため、次回以降の更新で表示されます。</translation>
    </message>
    <message id="value_not_yet_known_pid_unit_write_rate_tip">
        <source></source>
        <translation>まだ不明です: 2 回の読み取りが必要なため、次回以降の更新で表示されます。</translation>
    </message>
    <message id="value_not_counted_pid_label_tip">
        <source></source>
        <translation>計量されていません: カーネルに、プロセスにラベルを付けるセキュリティモジュール (AppArmor、SELinux、Smack) がありません。</translation>
    </message>
    <message id="main_window_idle_task_tip">
        <source></source>
        <translation>アイドルタスク: その時間は、プロセッサーに仕事がなかった時間です。</translation>
    </message>
    <message id="main_window_zombie_tip">
        <source></source>
        <translation>ゾンビ: プロセスは終了しましたが、親プロセスが終了ステータスをまだ受け取っていません。</translation>
    </message>
    <message id="main_window_ended_tip">
        <source></source>
        <translation>このプロセスは、行を残す必要がある間に終了しました。どの操作も届きません。</translation>
    </message>
    <message id="main_window_late_tip">
        <source></source>
        <translation>この列は表の一時停止中に追加されました。値は追加した時点のもので、その時まだ存在したプロセスのものだけです。</translation>
    </message>
    <message id="main_window_stale_tip">
        <source></source>
        <translation>前回の更新ではこの列の値が得られませんでした。これらは古い値です。</translation>
    </message>
    <message id="main_window_no_address">
        <source></source>
        <translation>lurkwell://pid/4711 のようなプロセスのアドレスではありません: %1</translation>
    </message>
    <message id="main_window_by_id_title">
        <source></source>
        <translation>ID でプロセスを検索</translation>
    </message>
    <message id="main_window_by_id_label">
        <source></source>
        <translation>プロセス ID:</translation>
    </message>
    <message id="main_window_by_id_find">
        <source></source>
        <translation>検索(&amp;F)</translation>
    </message>
    <message id="main_window_by_id_no_number">
        <source></source>
        <translation>プロセス ID は 0 から %1 までの数値です。</translation>
    </message>
    <message id="main_window_not_revealed">
        <source></source>
        <translation>ファイル %1 を表示したファイルマネージャーはありません。</translation>
    </message>
    <message id="main_window_nothing_to_reveal_with">
        <source></source>
        <translation>ファイルの表示を依頼できません。セッションバスがないか、プログラムがなくなっています。</translation>
    </message>
    <message id="main_window_no_details">
        <source></source>
        <translation>%1 の詳細はありません。システムのプロセスではありません。</translation>
    </message>
    <message id="main_window_no_children">
        <source></source>
        <translation>選択したプロセスには子プロセスがありません。</translation>
    </message>
    <message id="main_window_hidden_children" numerus="yes">
        <source></source>
        <translation>
            <numerusform>子プロセスのうち %n 個はフィルターで隠れています。</numerusform>
        </translation>
    </message>
    <message id="main_window_preferences">
        <source></source>
        <translation>設定: %1。</translation>
    </message>
    <message id="main_window_by_id_not_found">
        <source></source>
        <translation>プロセス %1 はありません。</translation>
    </message>
    <message id="process_halted">
        <source></source>
        <translation>停止中</translation>
    </message>
    <message id="process_niced_high">
        <source></source>
        <translation>高い優先度</translation>
    </message>
    <message id="process_niced_low">
        <source></source>
        <translation>低い優先度</translation>
    </message>
    <message id="context_menu_one">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="context_menu_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 個のプロセス</numerusform>
        </translation>
    </message>
    <message id="action_ask_window">
        <source></source>
        <translation>Lurkwell</translation>
    </message>
    <message id="action_ask_quit_one">
        <source></source>
        <translation>プロセス %1 (%2) を終了しますか?</translation>
    </message>
    <message id="action_ask_quit_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 個のプロセスを終了しますか?</numerusform>
        </translation>
    </message>
    <message id="action_ask_kill_one">
        <source></source>
        <translation>プロセス %1 (%2) を強制終了しますか?</translation>
    </message>
    <message id="action_ask_kill_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 個のプロセスを強制終了しますか?</numerusform>
        </translation>
    </message>
    <message id="action_ask_halt_one">
        <source></source>
        <translation>プロセス %1 (%2) を停止しますか?</translation>
    </message>
    <message id="action_ask_halt_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 個のプロセスを停止しますか?</numerusform>
        </translation>
    </message>
    <message id="action_ask_lower_one">
        <source></source>
        <translation>プロセス %1 (%2) の優先度を下げますか?</translation>
    </message>
    <message id="action_ask_lower_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 個のプロセスの優先度を下げますか?</numerusform>
        </translation>
    </message>
    <message id="action_button_quit">
        <source></source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message id="action_button_kill">
        <source></source>
        <translation>強制終了(&amp;K)</translation>
    </message>
    <message id="action_button_halt">
        <source></source>
        <translation>停止(&amp;H)</translation>
    </message>
    <message id="action_button_lower">
        <source></source>
        <translation>優先度を下げる(&amp;L)</translation>
    </message>
    <message id="action_next_quit">
        <source></source>
        <translation>ウィンドウを閉じて終了するよう求めます。</translation>
    </message>
    <message id="action_next_terminate">
        <source></source>
        <translation>終了するよう求めます (SIGTERM)。先に作業を保存することもありますが、その保証はありません。</translation>
    </message>
    <message id="action_next_terminate_again">
        <source></source>
        <translation>終了を %1求めましたが、まだ残っています。今度はシグナルで終了を求めます (SIGTERM)。</translation>
    </message>
    <message id="action_next_helper">
        <source></source>
        <translation>終了を %1求めましたが、まだ残っています。ヘルパーからもう一度求めます (SIGTERM)。</translation>
    </message>
    <message id="action_next_force">
        <source></source>
        <translation>強制的に終了させます (SIGKILL)。保存していないものは失われます。</translation>
    </message>
    <message id="action_next_force_at_last">
        <source></source>
        <translation>終了を %1求めました。今度は強制的に終了させます (SIGKILL)。保存していないものは失われます。</translation>
    </message>
    <message id="action_next_halted">
        <source></source>
        <translation>停止しているため、この要求は再開したときに届きます。</translation>
    </message>
    <message id="action_next_several">
        <source></source>
        <translation>一覧にあるとおり、それぞれに終了を求めます。保存していないものは失われることがあります。</translation>
    </message>
    <message id="action_next_several_forced">
        <source></source>
        <translation>それぞれに、一覧にある手順を実行します。強制的に終了させるものが保存していないものは失われます。</translation>
    </message>
    <message id="action_next_halt">
        <source></source>
        <translation>停止したプロセスは、再開するまで動きません。ウィンドウは応答せず、それを必要とするものは待たされます。</translation>
    </message>
    <message id="action_next_lower">
        <source></source>
        <translation>ほかに使うものがないときだけプロセッサーを使います。優先度を再び上げるには管理者の権限が必要です。</translation>
    </message>
    <message id="action_step_quit">
        <source></source>
        <translation>終了を要求</translation>
    </message>
    <message id="action_step_terminate">
        <source></source>
        <translation>終了を要求 (SIGTERM)</translation>
    </message>
    <message id="action_step_terminate_again">
        <source></source>
        <translation>終了を要求 (SIGTERM)</translation>
    </message>
    <message id="action_step_helper">
        <source></source>
        <translation>終了を再要求</translation>
    </message>
    <message id="action_step_force">
        <source></source>
        <translation>強制終了</translation>
    </message>
    <message id="action_step_force_at_last">
        <source></source>
        <translation>強制終了</translation>
    </message>
    <message id="action_warn_own">
        <source></source>
        <translation>これは Lurkwell 自身です。</translation>
    </message>
    <message id="action_warn_own_among">
        <source></source>
        <translation>Lurkwell 自身が含まれています。</translation>
    </message>
    <message id="action_warn_others" numerus="yes">
        <source></source>
        <translation>
            <numerusform>そのうち %n 個はほかのユーザーのものです。</numerusform>
        </translation>
    </message>
    <message id="action_owner">
        <source></source>
        <translation>所有者:</translation>
    </message>
    <message id="action_command_line">
        <source></source>
        <translation>コマンドライン:</translation>
    </message>
    <message id="action_unknown">
        <source></source>
        <translation>不明</translation>
    </message>
    <message id="action_column_name">
        <source></source>
        <translation>名前</translation>
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
        <translation>次の手順</translation>
    </message>
    <message id="action_column_command">
        <source></source>
        <translation>コマンドライン</translation>
    </message>
    <message id="times_once">
        <source></source>
        <translation>1 回</translation>
    </message>
    <message id="times_twice">
        <source></source>
        <translation>2 回</translation>
    </message>
    <message id="times_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 回</numerusform>
        </translation>
    </message>
    <message id="action_process">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="action_processes" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 個のプロセス (%1)</numerusform>
        </translation>
    </message>
    <message id="action_failed">
        <source></source>
        <translation>%1 には何も行いませんでした: %2。</translation>
    </message>
    <message id="action_reason_gone">
        <source></source>
        <translation>すでに終了しています</translation>
    </message>
    <message id="action_reason_protected">
        <source></source>
        <translation>システムに必要なプロセスです</translation>
    </message>
    <message id="action_reason_kernel_thread">
        <source></source>
        <translation>カーネルはシグナルを受け付けません</translation>
    </message>
    <message id="action_reason_refused">
        <source></source>
        <translation>管理者の権限がなければ行えません</translation>
    </message>
    <message id="action_reason_in_words">
        <source></source>
        <translation>ヘルパーからの報告「%1」</translation>
    </message>
    <message id="action_reason_no_helper">
        <source></source>
        <translation>ヘルパーが応答しません</translation>
    </message>
    <message id="action_reason_no_time">
        <source></source>
        <translation>ヘルパーに時間がかかりすぎるため試みませんでした</translation>
    </message>
    <message id="action_reason_nobody">
        <source></source>
        <translation>このデスクトップには方法がありません</translation>
    </message>
    <message id="action_reason_out_of_reach">
        <source></source>
        <translation>このデスクトップでは、ほかのプログラムのウィンドウにそれを行うことはできません</translation>
    </message>
    <message id="action_done_quit" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 に終了を求めました。</numerusform>
        </translation>
    </message>
    <message id="action_done_terminate" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 に終了を求めました (SIGTERM)。</numerusform>
        </translation>
    </message>
    <message id="action_done_force" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 を強制終了しました。</numerusform>
        </translation>
    </message>
    <message id="action_done_halt" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 を停止しました。</numerusform>
        </translation>
    </message>
    <message id="action_done_continue" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 を再開しました。</numerusform>
        </translation>
    </message>
    <message id="action_done_high" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 の優先度を高くしました。</numerusform>
        </translation>
    </message>
    <message id="action_done_normal" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 を通常の優先度にしました。</numerusform>
        </translation>
    </message>
    <message id="action_done_low" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 の優先度を低くしました。</numerusform>
        </translation>
    </message>
    <message id="follow_confirmation_title" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 個の新しいウィンドウを開きますか?</numerusform>
        </translation>
    </message>
    <message id="follow_confirmation_text">
        <source></source>
        <translation>選択したプロセスごとに 1 つのウィンドウを開きます。</translation>
    </message>
    <message id="follow_confirmation_open">
        <source></source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message id="follow_limit_title" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 個中 %n 個のウィンドウを開きました。</numerusform>
        </translation>
    </message>
    <message id="follow_limit_text">
        <source></source>
        <translation>プロセスを追跡するウィンドウを同時にこれ以上開くことはできません。先にいくつか閉じてください。</translation>
    </message>
    <message id="darwin_tools_not_found">
        <source></source>
        <translation>Lurkwell の動作にはシステムのツール /bin/ps、/bin/kill、/usr/bin/renice が必要ですが、少なくとも 1 つが見つかりませんでした。</translation>
    </message>
    <message id="no_quartz_extreme">
        <source></source>
        <translation>このディスプレイにはグラフィックスアクセラレーションがありません。アニメーション表示は遅くなります。</translation>
    </message>
    <message id="about_title">
        <source></source>
        <translation>Lurkwell について</translation>
    </message>
    <message id="about_name">
        <source></source>
        <translation>Lurkwell</translation>
    </message>
    <message id="about_version">
        <source></source>
        <translation>バージョン %1</translation>
    </message>
    <message id="about_text">
        <source></source>
        <translation>対話型プロセスモニター
MIT ライセンスのフリーソフトウェア</translation>
    </message>
    <message id="toolbar_system_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="toolbar_system_cpu_tip">
        <source></source>
        <translation>マシンのプロセッサーの使用状況を示します。</translation>
    </message>
    <message id="toolbar_system_cpu_figure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>CPU: %n 個のプロセッサーの %1 %</numerusform>
        </translation>
    </message>
    <message id="toolbar_system_ram">
        <source></source>
        <translation>メモリ</translation>
    </message>
    <message id="toolbar_system_ram_tip">
        <source></source>
        <translation>マシンのメモリの使われ方を示します。</translation>
    </message>
    <message id="toolbar_system_ram_figures">
        <source></source>
        <translation>メモリ: %2 中 %1 使用
固定: %3
非アクティブ: %4
空き: %5</translation>
    </message>
    <message id="toolbar_vm_thrashing">
        <source></source>
        <translation>スワップ</translation>
    </message>
    <message id="toolbar_vm_thrashing_tip">
        <source></source>
        <translation>スワップアウトがない間は緑、ある間は黄、マシンが遅くなるほど多い間は赤で点滅します。</translation>
    </message>
    <message id="toolbar_vm_thrashing_figure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>前回の更新以降に %n ページをスワップアウト</numerusform>
        </translation>
    </message>
    <message id="toolbar_usage_history">
        <source></source>
        <translation>CPU 履歴</translation>
    </message>
    <message id="toolbar_usage_history_tip">
        <source></source>
        <translation>選択した各プロセスについて、CPU 使用率の推移を示すウィンドウを開きます。</translation>
    </message>
    <message id="toolbar_log">
        <source></source>
        <translation>ログ</translation>
    </message>
    <message id="toolbar_log_tip">
        <source></source>
        <translation>選択した各プロセスについて、値を記録するウィンドウを開きます。</translation>
    </message>
    <message id="toolbar_bring_to_front">
        <source></source>
        <translation>前面に移動</translation>
    </message>
    <message id="toolbar_bring_to_front_tip">
        <source></source>
        <translation>選択したアプリケーションのウィンドウを前面に移動します。</translation>
    </message>
    <message id="toolbar_kill">
        <source></source>
        <translation>強制終了</translation>
    </message>
    <message id="toolbar_kill_tip">
        <source></source>
        <translation>選択したプロセスに終了を求めます。同じプロセスに繰り返すと、そのたびに強い方法になります。</translation>
    </message>
    <message id="toolbar_hide_process">
        <source></source>
        <translation>隠す</translation>
    </message>
    <message id="toolbar_hide_process_tip">
        <source></source>
        <translation>選択したアプリケーションのウィンドウを隠します。</translation>
    </message>
    <message id="toolbar_reveal">
        <source></source>
        <translation>ファイルを表示</translation>
    </message>
    <message id="toolbar_reveal_tip">
        <source></source>
        <translation>選択したアプリケーションをファイルマネージャーで表示します。</translation>
    </message>
    <message id="toolbar_high">
        <source></source>
        <translation>高</translation>
    </message>
    <message id="toolbar_high_tip">
        <source></source>
        <translation>選択したプロセスの優先度を高くします (nice -19)。</translation>
    </message>
    <message id="toolbar_medium">
        <source></source>
        <translation>通常</translation>
    </message>
    <message id="toolbar_medium_tip">
        <source></source>
        <translation>選択したプロセスを通常の優先度にします (nice 0)。</translation>
    </message>
    <message id="toolbar_low">
        <source></source>
        <translation>低</translation>
    </message>
    <message id="toolbar_low_tip">
        <source></source>
        <translation>選択したプロセスを最も低い優先度にし、ほかのすべてに譲らせます。</translation>
    </message>
    <message id="toolbar_halt">
        <source></source>
        <translation>停止</translation>
    </message>
    <message id="toolbar_halt_tip">
        <source></source>
        <translation>選択したプロセスを、再開するまで停止します。</translation>
    </message>
    <message id="toolbar_cont">
        <source></source>
        <translation>再開</translation>
    </message>
    <message id="toolbar_cont_tip">
        <source></source>
        <translation>停止した選択中のプロセスを再開します。</translation>
    </message>
    <message id="menu_process_kill_with_children">
        <source></source>
        <translation>子プロセスごと終了または強制終了(&amp;R)</translation>
    </message>
    <message id="menu_process_signal">
        <source></source>
        <translation>シグナルを送信(&amp;G)…</translation>
    </message>
    <message id="menu_process_scheduling">
        <source></source>
        <translation>優先度とプロセッサー(&amp;P)…</translation>
    </message>
    <message id="menu_process_show_executable">
        <source></source>
        <translation>プログラムのファイルを表示(&amp;F)</translation>
    </message>
    <message id="menu_process_search_web">
        <source></source>
        <translation>Web で検索(&amp;W)</translation>
    </message>
    <message id="menu_edit_copy_csv">
        <source></source>
        <translation>CSV としてコピー(&amp;V)</translation>
    </message>
    <message id="menu_edit_copy_json">
        <source></source>
        <translation>JSON としてコピー(&amp;J)</translation>
    </message>
    <message id="help_menu_process_kill_with_children">
        <source></source>
        <translation>選択したプロセスと、それが起動したすべてのプロセスを終了または強制終了する</translation>
    </message>
    <message id="help_menu_process_signal">
        <source></source>
        <translation>任意のシグナルを送る</translation>
    </message>
    <message id="help_menu_process_scheduling">
        <source></source>
        <translation>nice 値、スケジューリング、ディスク優先度、プロセッサー</translation>
    </message>
    <message id="help_menu_process_show_executable">
        <source></source>
        <translation>プログラムのファイルをファイルマネージャーで表示する</translation>
    </message>
    <message id="main_window_no_executable">
        <source></source>
        <translation>これらがどのプログラムかはわからないか、調べる権限がありません。</translation>
    </message>
    <message id="main_window_many_executables">
        <source></source>
        <translation>プログラムが %1 個を超えているため、何も開きませんでした。</translation>
    </message>
    <message id="main_window_no_search">
        <source></source>
        <translation>このデスクトップでは「%1」を開けません。</translation>
    </message>
    <message id="action_ask_signal_one">
        <source></source>
        <translation>プロセス %1 (%2) にシグナルを送りますか?</translation>
    </message>
    <message id="action_ask_signal_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 個のプロセスにシグナルを送りますか?</numerusform>
        </translation>
    </message>
    <message id="action_ask_scheduling_one">
        <source></source>
        <translation>プロセス %1 (%2) の優先度とプロセッサー</translation>
    </message>
    <message id="action_ask_scheduling_several" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 個のプロセスの優先度とプロセッサー</numerusform>
        </translation>
    </message>
    <message id="action_button_signal">
        <source></source>
        <translation>送信(&amp;S)</translation>
    </message>
    <message id="action_button_scheduling">
        <source></source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message id="action_next_signal">
        <source></source>
        <translation>KILL と STOP を除き、プログラムはシグナルを捕捉して独自の動作をすることがあります。一覧はそうしない場合の動作です。</translation>
    </message>
    <message id="action_next_scheduling">
        <source></source>
        <translation>すべてのスレッドに一度に適用され、プロセスが終了するまで有効です。ほかより優先するには管理者の権限が必要です。</translation>
    </message>
    <message id="action_reason_impossible">
        <source></source>
        <translation>このマシンにそのようなプロセッサーまたは優先度はありません</translation>
    </message>
    <message id="action_done_signal" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 に %2 を送りました。</numerusform>
        </translation>
    </message>
    <message id="action_done_nice" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 の nice 値を %2 にしました。</numerusform>
        </translation>
    </message>
    <message id="action_done_policy" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 のスケジューリングを「%2」にしました。</numerusform>
        </translation>
    </message>
    <message id="action_done_io_priority" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 のディスク優先度を「%2」にしました。</numerusform>
        </translation>
    </message>
    <message id="action_done_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 はプロセッサー %2 で動作します。</numerusform>
        </translation>
    </message>
    <message id="scheduling_unchanged">
        <source></source>
        <translation>変更しない</translation>
    </message>
    <message id="scheduling_nice">
        <source></source>
        <translation>nice 値(&amp;N):</translation>
    </message>
    <message id="scheduling_nice_tip">
        <source></source>
        <translation>-20 (ほかのすべてより優先) から 19 (ほかのすべての後) まで</translation>
    </message>
    <message id="scheduling_policy">
        <source></source>
        <translation>スケジューリング:</translation>
    </message>
    <message id="scheduling_policy_tip">
        <source></source>
        <translation>バッチは長時間の計算に、アイドルはほかのすべてを待ってよいものに適しています。リアルタイムはそうでないすべてのものより優先され、マシンが動かなくなることがあります。</translation>
    </message>
    <message id="scheduling_policy_normal">
        <source></source>
        <translation>通常</translation>
    </message>
    <message id="scheduling_policy_batch">
        <source></source>
        <translation>バッチ</translation>
    </message>
    <message id="scheduling_policy_idle">
        <source></source>
        <translation>アイドル</translation>
    </message>
    <message id="scheduling_policy_round_robin">
        <source></source>
        <translation>リアルタイム (ラウンドロビン)</translation>
    </message>
    <message id="scheduling_policy_fifo">
        <source></source>
        <translation>リアルタイム (FIFO)</translation>
    </message>
    <message id="scheduling_priority">
        <source></source>
        <translation>優先度:</translation>
    </message>
    <message id="scheduling_io_class">
        <source></source>
        <translation>ディスク優先度(&amp;D):</translation>
    </message>
    <message id="scheduling_io_tip">
        <source></source>
        <translation>ディスクのスケジューラーが対応している場合に有効です。0 は 7 より優先されます。</translation>
    </message>
    <message id="scheduling_io_none">
        <source></source>
        <translation>nice 値に従う</translation>
    </message>
    <message id="scheduling_io_best_effort">
        <source></source>
        <translation>ベストエフォート</translation>
    </message>
    <message id="scheduling_io_idle">
        <source></source>
        <translation>アイドル</translation>
    </message>
    <message id="scheduling_io_real_time">
        <source></source>
        <translation>リアルタイム</translation>
    </message>
    <message id="scheduling_io_level">
        <source></source>
        <translation>レベル:</translation>
    </message>
    <message id="scheduling_processors">
        <source></source>
        <translation>プロセッサー (%1 中)(&amp;P):</translation>
    </message>
    <message id="scheduling_processors_tip">
        <source></source>
        <translation>番号と範囲で指定します。例: 0-3,6。このマシンのプロセッサーは %1 です</translation>
    </message>
    <message id="scheduling_no_processors">
        <source></source>
        <translation>%1 の中からプロセッサーを指定してください。例: 0 または 0-1,3。</translation>
    </message>
    <message id="signal_list">
        <source></source>
        <translation>シグナル</translation>
    </message>
    <message id="signal_column_name">
        <source></source>
        <translation>シグナル</translation>
    </message>
    <message id="signal_column_number">
        <source></source>
        <translation>番号</translation>
    </message>
    <message id="signal_column_effect">
        <source></source>
        <translation>用途</translation>
    </message>
    <message id="signal_realtime">
        <source></source>
        <translation>プログラム独自の用途。処理しなければ終了</translation>
    </message>
    <message id="signal_hup">
        <source></source>
        <translation>端末がなくなった。サービスでは設定の再読み込みが多い</translation>
    </message>
    <message id="signal_int">
        <source></source>
        <translation>割り込み (端末での Ctrl+C)。終了</translation>
    </message>
    <message id="signal_quit">
        <source></source>
        <translation>端末での Ctrl+\。コアダンプを残して終了</translation>
    </message>
    <message id="signal_ill">
        <source></source>
        <translation>不正な命令に達した。コアダンプを残して終了</translation>
    </message>
    <message id="signal_trap">
        <source></source>
        <translation>デバッガー用。コアダンプを残して終了</translation>
    </message>
    <message id="signal_abrt">
        <source></source>
        <translation>自ら異常終了した。コアダンプを残して終了</translation>
    </message>
    <message id="signal_bus">
        <source></source>
        <translation>存在しないメモリにアクセスした。コアダンプを残して終了</translation>
    </message>
    <message id="signal_fpe">
        <source></source>
        <translation>不可能な計算をした。コアダンプを残して終了</translation>
    </message>
    <message id="signal_kill">
        <source></source>
        <translation>ただちに終了。何も保存できない</translation>
    </message>
    <message id="signal_usr1">
        <source></source>
        <translation>プログラム独自の用途。処理しなければ終了</translation>
    </message>
    <message id="signal_segv">
        <source></source>
        <translation>許可されないメモリにアクセスした。コアダンプを残して終了</translation>
    </message>
    <message id="signal_usr2">
        <source></source>
        <translation>プログラム独自の用途。処理しなければ終了</translation>
    </message>
    <message id="signal_pipe">
        <source></source>
        <translation>書き込み先を読むものがなくなった。終了</translation>
    </message>
    <message id="signal_alrm">
        <source></source>
        <translation>アラームタイマーの時間になった。終了</translation>
    </message>
    <message id="signal_term">
        <source></source>
        <translation>終了を求める</translation>
    </message>
    <message id="signal_stkflt">
        <source></source>
        <translation>未使用。終了</translation>
    </message>
    <message id="signal_chld">
        <source></source>
        <translation>子プロセスが終了または停止した。何もしない</translation>
    </message>
    <message id="signal_cont">
        <source></source>
        <translation>停止後に再開する</translation>
    </message>
    <message id="signal_stop">
        <source></source>
        <translation>再開するまで停止。捕捉できない</translation>
    </message>
    <message id="signal_tstp">
        <source></source>
        <translation>停止 (端末での Ctrl+Z)</translation>
    </message>
    <message id="signal_ttin">
        <source></source>
        <translation>バックグラウンドで端末から読もうとした。停止</translation>
    </message>
    <message id="signal_ttou">
        <source></source>
        <translation>バックグラウンドで端末に書こうとした。停止</translation>
    </message>
    <message id="signal_urg">
        <source></source>
        <translation>緊急データが届いた。何もしない</translation>
    </message>
    <message id="signal_xcpu">
        <source></source>
        <translation>プロセッサー時間を使い切った。コアダンプを残して終了</translation>
    </message>
    <message id="signal_xfsz">
        <source></source>
        <translation>ファイルが大きくなりすぎた。コアダンプを残して終了</translation>
    </message>
    <message id="signal_vtalrm">
        <source></source>
        <translation>プロセッサー時間のタイマーの時間になった。終了</translation>
    </message>
    <message id="signal_prof">
        <source></source>
        <translation>プロファイル用タイマーの時間になった。終了</translation>
    </message>
    <message id="signal_winch">
        <source></source>
        <translation>ウィンドウのサイズが変わった。何もしない</translation>
    </message>
    <message id="signal_poll">
        <source></source>
        <translation>ファイルが読み書き可能になった。終了</translation>
    </message>
    <message id="signal_pwr">
        <source></source>
        <translation>電源異常。終了</translation>
    </message>
    <message id="signal_sys">
        <source></source>
        <translation>不正なシステムコールをした。コアダンプを残して終了</translation>
    </message>
    <message id="toolbar_select_children">
        <source></source>
        <translation>子プロセス</translation>
    </message>
    <message id="toolbar_select_children_tip">
        <source></source>
        <translation>選択したプロセスの代わりに、それらが起動したプロセスを選択します。</translation>
    </message>
    <message id="toolbar_prefs">
        <source></source>
        <translation>設定</translation>
    </message>
    <message id="toolbar_prefs_tip">
        <source></source>
        <translation>設定を開きます。</translation>
    </message>
    <message id="toolbar_customise">
        <source></source>
        <translation>カスタマイズ</translation>
    </message>
    <message id="toolbar_customise_tip">
        <source></source>
        <translation>ツールバーの項目と順序を選びます。</translation>
    </message>
    <message id="toolbar_separator">
        <source></source>
        <translation>区切り線</translation>
    </message>
    <message id="toolbar_separator_tip">
        <source></source>
        <translation>項目のグループを区切る線です。</translation>
    </message>
    <message id="toolbar_space">
        <source></source>
        <translation>スペース</translation>
    </message>
    <message id="toolbar_space_tip">
        <source></source>
        <translation>項目の間の余白です。</translation>
    </message>
    <message id="toolbar_flexible_space">
        <source></source>
        <translation>可変スペース</translation>
    </message>
    <message id="toolbar_flexible_space_tip">
        <source></source>
        <translation>後に続く項目をツールバーの端に寄せます。</translation>
    </message>
    <message id="toolbar_title">
        <source></source>
        <translation>ツールバー</translation>
    </message>
    <message id="toolbar_customise_title">
        <source></source>
        <translation>ツールバーのカスタマイズ</translation>
    </message>
    <message id="toolbar_customise_hint">
        <source></source>
        <translation>項目をツールバーにドラッグするか、ツールバーから利用可能な項目の一覧にドラッグします。ウィンドウのツールバーにドロップすることもできます。</translation>
    </message>
    <message id="toolbar_customise_available">
        <source></source>
        <translation>利用可能な項目(&amp;I):</translation>
    </message>
    <message id="toolbar_customise_current">
        <source></source>
        <translation>ツールバーの項目(&amp;T):</translation>
    </message>
    <message id="toolbar_customise_add">
        <source></source>
        <translation>追加(&amp;A)</translation>
    </message>
    <message id="toolbar_customise_remove">
        <source></source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message id="toolbar_customise_earlier">
        <source></source>
        <translation>上へ(&amp;U)</translation>
    </message>
    <message id="toolbar_customise_later">
        <source></source>
        <translation>下へ(&amp;D)</translation>
    </message>
    <message id="toolbar_customise_default_set">
        <source></source>
        <translation>デフォルトのセット:</translation>
    </message>
    <message id="toolbar_customise_default_set_tip">
        <source></source>
        <translation>まとめてツールバーにドラッグできます。</translation>
    </message>
    <message id="toolbar_customise_use_default">
        <source></source>
        <translation>デフォルトに戻す(&amp;S)</translation>
    </message>
    <message id="toolbar_customise_mode">
        <source></source>
        <translation>表示(&amp;O):</translation>
    </message>
    <message id="toolbar_customise_done">
        <source></source>
        <translation>完了(&amp;N)</translation>
    </message>
    <message id="toolbar_mode_both">
        <source></source>
        <translation>アイコンとテキスト</translation>
    </message>
    <message id="toolbar_mode_icon">
        <source></source>
        <translation>アイコンのみ</translation>
    </message>
    <message id="toolbar_mode_text">
        <source></source>
        <translation>テキストのみ</translation>
    </message>
    <message id="logging_title">
        <source></source>
        <translation>%1 のログ pid:%2</translation>
    </message>
    <message id="logging_title_file">
        <source></source>
        <translation>ファイル名: %1</translation>
    </message>
    <message id="logging_table">
        <source></source>
        <translation>1 つのプロセスのログ</translation>
    </message>
    <message id="logging_column_time">
        <source></source>
        <translation>時刻</translation>
    </message>
    <message id="logging_column_time_tip">
        <source></source>
        <translation>行が書き込まれた時刻です。</translation>
    </message>
    <message id="logging_column_active">
        <source></source>
        <translation>CPU 時間</translation>
    </message>
    <message id="logging_column_active_tip">
        <source></source>
        <translation>プロセスの開始以降に使った CPU 時間で、単位は秒です。</translation>
    </message>
    <message id="logging_column_active_change">
        <source></source>
        <translation>∆ CPU 時間</translation>
    </message>
    <message id="logging_column_active_change_tip">
        <source></source>
        <translation>前の行以降に使った CPU 時間で、単位は秒です。</translation>
    </message>
    <message id="logging_column_real">
        <source></source>
        <translation>常駐</translation>
    </message>
    <message id="logging_column_real_tip">
        <source></source>
        <translation>プロセスのメモリのうち、マシンのメモリにある量です。</translation>
    </message>
    <message id="logging_column_real_change">
        <source></source>
        <translation>∆ 常駐</translation>
    </message>
    <message id="logging_column_real_change_tip">
        <source></source>
        <translation>前の行からの常駐メモリの変化です。</translation>
    </message>
    <message id="logging_column_virtual">
        <source></source>
        <translation>仮想</translation>
    </message>
    <message id="logging_column_virtual_tip">
        <source></source>
        <translation>プロセスのアドレス空間です。</translation>
    </message>
    <message id="logging_column_virtual_change">
        <source></source>
        <translation>∆ 仮想</translation>
    </message>
    <message id="logging_column_virtual_change_tip">
        <source></source>
        <translation>前の行からのアドレス空間の変化です。</translation>
    </message>
    <message id="logging_note_ended">
        <source></source>
        <translation>プロセスは終了しました。</translation>
    </message>
    <message id="logging_note_ended_remembered">
        <source></source>
        <translation>プロセスは終了しました。同じ名前のプロセスが始まると、このウィンドウは再び開きます。</translation>
    </message>
    <message id="logging_note_not_created">
        <source></source>
        <translation>ログファイルがありません: %1。行はここに表示されるだけです。</translation>
    </message>
    <message id="logging_note_not_written">
        <source></source>
        <translation>ログファイルに欠けている行があります: %1。</translation>
    </message>
    <message id="logging_show_file">
        <source></source>
        <translation>ファイルを表示(&amp;F)</translation>
    </message>
    <message id="logging_show_file_none">
        <source></source>
        <translation>ファイルには何も書き込まれていません。新しいログをファイルに書き込むには、設定で指定します。</translation>
    </message>
    <message id="logging_save_as">
        <source></source>
        <translation>名前を付けて保存(&amp;S)…</translation>
    </message>
    <message id="record_title">
        <source></source>
        <translation>プロセスの記録</translation>
    </message>
    <message id="record_filter">
        <source></source>
        <translation>記録 (*.lwr);;すべてのファイル (*)</translation>
    </message>
    <message id="record_failed">
        <source></source>
        <translation>プロセスを記録できません。</translation>
    </message>
    <message id="record_behind">
        <source></source>
        <translation>記録した内容の一部が、まだディスクに書き込まれていません。</translation>
    </message>
    <message id="record_behind_message">
        <source></source>
        <translation>残りは Lurkwell の動作中に書き込まれます。それまで、このファイルには再び記録できません。</translation>
    </message>
    <message id="record_status">
        <source></source>
        <translation>%1 に記録中</translation>
    </message>
    <message id="record_trouble">
        <source></source>
        <translation>%1 に記録できません: %2</translation>
    </message>
    <message id="replay_open_title">
        <source></source>
        <translation>記録を開く</translation>
    </message>
    <message id="replay_failed">
        <source></source>
        <translation>記録を表示できません。</translation>
    </message>
    <message id="replay_title">
        <source></source>
        <translation>%1 – %2</translation>
    </message>
    <message id="replay_bar">
        <source></source>
        <translation>タイムライン</translation>
    </message>
    <message id="replay_back">
        <source></source>
        <translation>1 つ前の更新へ</translation>
    </message>
    <message id="replay_play">
        <source></source>
        <translation>再生</translation>
    </message>
    <message id="replay_forth">
        <source></source>
        <translation>1 つ次の更新へ</translation>
    </message>
    <message id="replay_peak">
        <source></source>
        <translation>プロセッサー使用率の次のピーク</translation>
    </message>
    <message id="replay_speed">
        <source></source>
        <translation>速度</translation>
    </message>
    <message id="replay_moment">
        <source></source>
        <translation>時点を指定</translation>
    </message>
    <message id="replay_moment_tip">
        <source></source>
        <translation>時点を指定して移動します (%1)。03:12 のような時刻、日付と時刻、または末尾より前を示す -2h のような形で指定します</translation>
    </message>
    <message id="replay_no_peak">
        <source></source>
        <translation>これより後にプロセッサー使用率のピークはありません。</translation>
    </message>
    <message id="replay_no_actions">
        <source></source>
        <translation>これは記録です。プロセスを操作することはできません。</translation>
    </message>
    <message id="logging_save_title">
        <source></source>
        <translation>ログを保存</translation>
    </message>
    <message id="logging_save_filter">
        <source></source>
        <translation>表 (*.tsv);;すべてのファイル (*)</translation>
    </message>
    <message id="logging_menu_title">
        <source></source>
        <translation>%1 のログ、pid %2</translation>
    </message>
    <message id="logging_identity">
        <source></source>
        <translation>所有者 %1: %2</translation>
    </message>
    <message id="remembered_owner">
        <source></source>
        <translation>所有者</translation>
    </message>
    <message id="logging_copy">
        <source></source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message id="logging_select_all">
        <source></source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message id="logging_note_not_saved">
        <source></source>
        <translation>ログを保存できませんでした: %1。</translation>
    </message>
    <message id="logging_note_saved">
        <source></source>
        <translation>%1 として保存しました。</translation>
    </message>
    <message id="logging_note_not_shown">
        <source></source>
        <translation>ファイルを表示できるファイルマネージャーがありません。ファイルは %1 です。</translation>
    </message>
    <message id="logging_note_follows">
        <source></source>
        <translation>プロセス %1 は終了しました。「pid %2」以降の行はプロセス %2 のものです。</translation>
    </message>
    <message id="logging_row_of">
        <source></source>
        <translation>pid %1</translation>
    </message>
    <message id="history_title">
        <source></source>
        <translation>%1 の CPU 履歴、pid %2</translation>
    </message>
    <message id="history_identity">
        <source></source>
        <translation>pid %1</translation>
    </message>
    <message id="history_accessible">
        <source></source>
        <translation>%1 の CPU 履歴、%3 のプロセス %2</translation>
    </message>
    <message id="history_now">
        <source></source>
        <translation>現在 %1 %、ウィンドウ内では %3 %～%4 %。上端は %2 %</translation>
    </message>
    <message id="history_tip">
        <source></source>
        <translation>&lt;b&gt;%1&lt;/b&gt;&lt;br&gt;pid %2、所有者 %3&lt;br&gt;%4</translation>
    </message>
    <message id="history_not_above">
        <source></source>
        <translation>このデスクトップでは、このウィンドウはほかのウィンドウの上に保たれません。デスクトップのウィンドウ規則で設定できる場合があります。</translation>
    </message>
    <message id="history_menu_relative">
        <source></source>
        <translation>最近の最大値に合わせる(&amp;S)</translation>
    </message>
    <message id="history_menu_descendants">
        <source></source>
        <translation>子孫プロセスも数える(&amp;D)</translation>
    </message>
    <message id="history_menu_close">
        <source></source>
        <translation>閉じて記憶から削除(&amp;C)</translation>
    </message>
    <message id="details_title">
        <source></source>
        <translation>%1 (%2): 詳細</translation>
    </message>
    <message id="details_title_ended">
        <source></source>
        <translation>%1 (%2)、終了: 詳細</translation>
    </message>
    <message id="details_heading">
        <source></source>
        <translation>%1 (プロセス %2)</translation>
    </message>
    <message id="details_heading_ended">
        <source></source>
        <translation>%1 (プロセス %2)、%3 時点、終了</translation>
    </message>
    <message id="details_ended">
        <source></source>
        <translation>%1 時点、終了。最後に読み取った内容をそのまま表示しています。</translation>
    </message>
    <message id="details_ended_before">
        <source></source>
        <translation>これを読み取る前にプロセスが終了しました。</translation>
    </message>
    <message id="details_actions">
        <source></source>
        <translation>操作(&amp;A)</translation>
    </message>
    <message id="details_pages">
        <source></source>
        <translation>ページ</translation>
    </message>
    <message id="details_filter">
        <source></source>
        <translation>入力した文字を含む行を表示…</translation>
    </message>
    <message id="details_reading">
        <source></source>
        <translation>読み取り中…</translation>
    </message>
    <message id="details_waiting">
        <source></source>
        <translation>システムからの応答がまだないため、待っています。プロセスのメモリがロックされているか、応答しないファイルシステム上にある可能性があります。</translation>
    </message>
    <message id="details_too_many_hang">
        <source></source>
        <translation>以前の問い合わせの多くにシステムが応答していません。そのうちの 1 つに応答があり次第、これを問い合わせます。</translation>
    </message>
    <message id="details_refused">
        <source></source>
        <translation>許可されていません: このプロセスはほかのユーザーのものです。読めるのはその所有者と root だけです。</translation>
    </message>
    <message id="details_refused_owner">
        <source></source>
        <translation>許可されていません: このプロセスは %1 のものです。読めるのはその所有者と root だけです。</translation>
    </message>
    <message id="details_kept_secret">
        <source></source>
        <translation>許可されていません: プロセスは、同じユーザーのものも含め、ほかのプログラムにこれを見せません。</translation>
    </message>
    <message id="details_none">
        <source></source>
        <translation>このシステムには、このプロセスについてこの種の情報がありません。</translation>
    </message>
    <message id="details_nothing">
        <source></source>
        <translation>ありません。</translation>
    </message>
    <message id="details_failed">
        <source></source>
        <translation>システムで現在何かが不足しています。後で再試行します。</translation>
    </message>
    <message id="details_first_ones">
        <source></source>
        <translation>%1、最初の %2 個を表示</translation>
    </message>
    <message id="details_unlimited">
        <source></source>
        <translation>無制限</translation>
    </message>
    <message id="details_parent">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="details_overview">
        <source></source>
        <translation>概要</translation>
    </message>
    <message id="details_overview_figure">
        <source></source>
        <translation>項目</translation>
    </message>
    <message id="details_overview_value">
        <source></source>
        <translation>値</translation>
    </message>
    <message id="details_graph_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="details_graph_memory">
        <source></source>
        <translation>メモリ</translation>
    </message>
    <message id="details_graph_disk">
        <source></source>
        <translation>ディスク</translation>
    </message>
    <message id="details_graph_network">
        <source></source>
        <translation>ネットワーク (TCP)</translation>
    </message>
    <message id="details_graph_resident">
        <source></source>
        <translation>常駐</translation>
    </message>
    <message id="details_graph_swap">
        <source></source>
        <translation>スワップ</translation>
    </message>
    <message id="details_graph_read">
        <source></source>
        <translation>読み取り</translation>
    </message>
    <message id="details_graph_written">
        <source></source>
        <translation>書き込み</translation>
    </message>
    <message id="details_graph_received">
        <source></source>
        <translation>受信</translation>
    </message>
    <message id="details_graph_sent">
        <source></source>
        <translation>送信</translation>
    </message>
    <message id="details_threads">
        <source></source>
        <translation>スレッド</translation>
    </message>
    <message id="details_threads_count">
        <source></source>
        <translation>スレッド: %1</translation>
    </message>
    <message id="details_thread_id">
        <source></source>
        <translation>スレッド</translation>
    </message>
    <message id="details_thread_name">
        <source></source>
        <translation>名前</translation>
    </message>
    <message id="details_thread_share">
        <source></source>
        <translation>CPU %</translation>
    </message>
    <message id="details_thread_time">
        <source></source>
        <translation>CPU 時間</translation>
    </message>
    <message id="details_thread_state">
        <source></source>
        <translation>状態</translation>
    </message>
    <message id="details_thread_processor">
        <source></source>
        <translation>プロセッサー</translation>
    </message>
    <message id="details_thread_nice">
        <source></source>
        <translation>nice</translation>
    </message>
    <message id="details_descriptors">
        <source></source>
        <translation>ファイルとソケット</translation>
    </message>
    <message id="details_descriptors_count">
        <source></source>
        <translation>開いているファイル、ソケットなど: %1</translation>
    </message>
    <message id="details_descriptor">
        <source></source>
        <translation>番号</translation>
    </message>
    <message id="details_descriptor_kind">
        <source></source>
        <translation>種類</translation>
    </message>
    <message id="details_descriptor_target">
        <source></source>
        <translation>パスまたはアドレス</translation>
    </message>
    <message id="details_descriptor_position">
        <source></source>
        <translation>位置</translation>
    </message>
    <message id="details_descriptor_flags">
        <source></source>
        <translation>用途</translation>
    </message>
    <message id="details_mappings">
        <source></source>
        <translation>メモリ</translation>
    </message>
    <message id="details_mappings_count">
        <source></source>
        <translation>マッピング: %1、サイズ %2、常駐 %3、比例配分 %4</translation>
    </message>
    <message id="details_mapping_range">
        <source></source>
        <translation>アドレス</translation>
    </message>
    <message id="details_mapping_size">
        <source></source>
        <translation>サイズ</translation>
    </message>
    <message id="details_mapping_resident">
        <source></source>
        <translation>常駐</translation>
    </message>
    <message id="details_mapping_proportional">
        <source></source>
        <translation>比例配分</translation>
    </message>
    <message id="details_mapping_swapped">
        <source></source>
        <translation>スワップ</translation>
    </message>
    <message id="details_mapping_permissions">
        <source></source>
        <translation>アクセス</translation>
    </message>
    <message id="details_mapping_file">
        <source></source>
        <translation>ファイル</translation>
    </message>
    <message id="details_environment">
        <source></source>
        <translation>環境</translation>
    </message>
    <message id="details_environment_count">
        <source></source>
        <translation>プログラム起動時の変数: %1</translation>
    </message>
    <message id="details_variable_name">
        <source></source>
        <translation>名前</translation>
    </message>
    <message id="details_variable_value">
        <source></source>
        <translation>値</translation>
    </message>
    <message id="details_limits">
        <source></source>
        <translation>制限</translation>
    </message>
    <message id="details_limits_count">
        <source></source>
        <translation>プロセスの制限: %1。プロセスは自分の制限を上限まで引き上げられます。</translation>
    </message>
    <message id="details_limit_name">
        <source></source>
        <translation>制限</translation>
    </message>
    <message id="details_limit_soft">
        <source></source>
        <translation>現在</translation>
    </message>
    <message id="details_limit_hard">
        <source></source>
        <translation>上限</translation>
    </message>
    <message id="details_limit_unit">
        <source></source>
        <translation>単位</translation>
    </message>
    <message id="details_group">
        <source></source>
        <translation>コントロールグループ</translation>
    </message>
    <message id="details_group_count">
        <source></source>
        <translation>値: %1。グループ内の全プロセスを合わせた値です。上位のグループは、何かを制限している場合に示します。</translation>
    </message>
    <message id="details_group_figure">
        <source></source>
        <translation>項目</translation>
    </message>
    <message id="details_group_in_use">
        <source></source>
        <translation>使用中</translation>
    </message>
    <message id="details_group_limit">
        <source></source>
        <translation>制限</translation>
    </message>
    <message id="details_group_path">
        <source></source>
        <translation>グループ</translation>
    </message>
    <message id="details_group_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 個のプロセッサー</numerusform>
        </translation>
    </message>
    <message id="details_group_memory">
        <source></source>
        <translation>メモリ</translation>
    </message>
    <message id="details_group_memory.high">
        <source></source>
        <translation>減速が始まるメモリ</translation>
    </message>
    <message id="details_group_memory.peak">
        <source></source>
        <translation>これまでの最大メモリ</translation>
    </message>
    <message id="details_group_memory.swap">
        <source></source>
        <translation>スワップ</translation>
    </message>
    <message id="details_group_pids">
        <source></source>
        <translation>プロセスとスレッド</translation>
    </message>
    <message id="details_group_cpu.max">
        <source></source>
        <translation>CPU の上限</translation>
    </message>
    <message id="details_group_cpu.weight">
        <source></source>
        <translation>CPU の重み</translation>
    </message>
    <message id="details_group_cpu.usage">
        <source></source>
        <translation>CPU 時間</translation>
    </message>
    <message id="details_group_cpu.throttled">
        <source></source>
        <translation>制限のため CPU がなかった時間</translation>
    </message>
    <message id="details_group_memory.high_events">
        <source></source>
        <translation>メモリのため減速した回数</translation>
    </message>
    <message id="details_group_memory.oom_kills">
        <source></source>
        <translation>メモリ不足で強制終了したプロセス</translation>
    </message>
    <message id="remembered_title">
        <source></source>
        <translation>Lurkwell: 記憶したウィンドウ</translation>
    </message>
    <message id="remembered_program">
        <source></source>
        <translation>プログラム</translation>
    </message>
    <message id="remembered_window">
        <source></source>
        <translation>ウィンドウ</translation>
    </message>
    <message id="remembered_process">
        <source></source>
        <translation>プロセス</translation>
    </message>
    <message id="remembered_log">
        <source></source>
        <translation>ログ</translation>
    </message>
    <message id="remembered_history">
        <source></source>
        <translation>CPU 履歴</translation>
    </message>
    <message id="remembered_follows">
        <source></source>
        <translation>pid %1</translation>
    </message>
    <message id="remembered_waits">
        <source></source>
        <translation>プログラムの開始を待機中</translation>
    </message>
    <message id="remembered_explanation">
        <source></source>
        <translation>これらのウィンドウは、そのプログラムが始まると再び開きます。記憶から削除したものは開きません。現在開いているものは、閉じるまで残ります。</translation>
    </message>
    <message id="remembered_forget">
        <source></source>
        <translation>記憶から削除(&amp;F)</translation>
    </message>
    <message id="preferences_title">
        <source></source>
        <translation>Lurkwell の設定</translation>
    </message>
    <message id="preferences_page">
        <source></source>
        <translation>ページ</translation>
    </message>
    <message id="preferences_form_missing">
        <source></source>
        <translation>設定を表示できません。</translation>
    </message>
    <message id="preferences_form_missing_text">
        <source></source>
        <translation>プログラムの一部である設定ウィンドウのレイアウトがありません。Lurkwell をインストールし直してください。</translation>
    </message>
    <message id="preferences_times_per_second" numerus="yes">
        <source></source>
        <translation>
            <numerusform>毎秒 %n 回</numerusform>
        </translation>
    </message>
    <message id="preferences_every_seconds" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 秒ごと</numerusform>
        </translation>
    </message>
    <message id="preferences_every_minutes" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 分ごと</numerusform>
        </translation>
    </message>
    <message id="preferences_every_hour">
        <source></source>
        <translation>1 時間ごと</translation>
    </message>
    <message id="preferences_interval_invalid">
        <source></source>
        <translation>無効な入力です。変換できません</translation>
    </message>
    <message id="preferences_percent">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="preferences_page_general">
        <source></source>
        <translation>全般</translation>
    </message>
    <message id="preferences_page_mainwindow">
        <source></source>
        <translation>メインウィンドウ</translation>
    </message>
    <message id="preferences_page_animatedview">
        <source></source>
        <translation>アニメーション表示</translation>
    </message>
    <message id="preferences_page_history">
        <source></source>
        <translation>CPU 履歴</translation>
    </message>
    <message id="preferences_page_logging">
        <source></source>
        <translation>ログ</translation>
    </message>
    <message id="preferences_all_settings">
        <source></source>
        <translation>すべての設定項目(&amp;L)…</translation>
    </message>
    <message id="preferences_all_settings_tip">
        <source></source>
        <translation>専用の操作欄がないものも含め、プログラムのすべての設定項目です。</translation>
    </message>
    <message id="preferences_close">
        <source></source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message id="preferences_close_tip">
        <source></source>
        <translation>ウィンドウを閉じます。変更はすべて保存済みです。</translation>
    </message>
    <message id="preferences_memoryFormatMatrix">
        <source></source>
        <translation>メモリサイズ</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_tip">
        <source></source>
        <translation>表、バー、ログでのメモリサイズの単位です。</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_automatic">
        <source></source>
        <translation>自動(&amp;A)</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_bytes">
        <source></source>
        <translation>バイト(&amp;B)</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_kilobytes">
        <source></source>
        <translation>キロバイト(&amp;K)</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_megabytes">
        <source></source>
        <translation>メガバイト(&amp;M)</translation>
    </message>
    <message id="preferences_memoryFormatMatrix_gigabytes">
        <source></source>
        <translation>ギガバイト(&amp;G)</translation>
    </message>
    <message id="preferences_dateFormatMatrix">
        <source></source>
        <translation>日付</translation>
    </message>
    <message id="preferences_dateFormatMatrix_tip">
        <source></source>
        <translation>表とログでの日付と時刻の書き方です。</translation>
    </message>
    <message id="preferences_dateFormatMatrix_calendar">
        <source></source>
        <translation>日付と時刻(&amp;N)</translation>
    </message>
    <message id="preferences_dateFormatMatrix_seconds">
        <source></source>
        <translation>1970 年からの秒数(&amp;S)</translation>
    </message>
    <message id="preferences_dateFormatMatrix_microseconds">
        <source></source>
        <translation>秒とマイクロ秒(&amp;R)</translation>
    </message>
    <message id="preferences_mainWindowInterval">
        <source></source>
        <translation>表の更新(&amp;U):</translation>
    </message>
    <message id="preferences_mainWindowInterval_tip">
        <source></source>
        <translation>メインウィンドウの表を更新する間隔です。間隔が長いほど負荷は小さくなります。</translation>
    </message>
    <message id="preferences_memoryGraph">
        <source></source>
        <translation>メモリバーにサイズを表示(&amp;S)</translation>
    </message>
    <message id="preferences_memoryGraph_tip">
        <source></source>
        <translation>各メモリバーに、長さが示すサイズを書き込みます。</translation>
    </message>
    <message id="preferences_memoryFigure">
        <source></source>
        <translation>メモリバーの表示(&amp;B):</translation>
    </message>
    <message id="preferences_memoryFigure_tip">
        <source></source>
        <translation>メモリバーの長さが示すものです。メモリバーで並べ替えている場合は、行の順序もこれに従います。</translation>
    </message>
    <message id="preferences_memoryFigure_virtual">
        <source></source>
        <translation>仮想サイズと、その中の常駐サイズ</translation>
    </message>
    <message id="preferences_memoryFigure_resident">
        <source></source>
        <translation>常駐サイズ</translation>
    </message>
    <message id="preferences_memoryFigure_proportional">
        <source></source>
        <translation>比例配分サイズ (共有メモリを分担)</translation>
    </message>
    <message id="preferences_frameInterval">
        <source></source>
        <translation>描画(&amp;D):</translation>
    </message>
    <message id="preferences_frameInterval_tip">
        <source></source>
        <translation>アニメーション表示を描画する間隔です。下の 2 つの間隔がこれより短くなることはありません。</translation>
    </message>
    <message id="preferences_mainInterval">
        <source></source>
        <translation>プロセスの更新(&amp;P):</translation>
    </message>
    <message id="preferences_mainInterval_tip">
        <source></source>
        <translation>アニメーション表示が、開始または終了したプロセスを調べる間隔です。描画より短く、または測定より長くなることはありません。</translation>
    </message>
    <message id="preferences_cpuInterval">
        <source></source>
        <translation>CPU 使用率の測定(&amp;M):</translation>
    </message>
    <message id="preferences_cpuInterval_tip">
        <source></source>
        <translation>アニメーション表示が、プロセスの CPU 使用率を測定する間隔です。上の 2 つの間隔がこれより長くなることはありません。</translation>
    </message>
    <message id="preferences_windowAlpha">
        <source></source>
        <translation>全画面時の不透明度(&amp;O):</translation>
    </message>
    <message id="preferences_windowAlpha_tip">
        <source></source>
        <translation>全画面表示がデスクトップをどれだけ覆うかです。0 % では表示が見えなくなり、100 % ではデスクトップが見えなくなります。</translation>
    </message>
    <message id="preferences_underlayAlpha">
        <source></source>
        <translation>背景の不透明度(&amp;B):</translation>
    </message>
    <message id="preferences_underlayAlpha_tip">
        <source></source>
        <translation>全画面時に、プロセスの背後の画像をどれだけはっきり表示するかです。</translation>
    </message>
    <message id="preferences_connectors">
        <source></source>
        <translation>全画面時に親子を線で結ぶ(&amp;J)</translation>
    </message>
    <message id="preferences_connectors_tip">
        <source></source>
        <translation>全画面表示でも、各プロセスからその親プロセスへ線を引きます。</translation>
    </message>
    <message id="preferences_historyInterval">
        <source></source>
        <translation>CPU 使用率の測定(&amp;M):</translation>
    </message>
    <message id="preferences_historyInterval_tip">
        <source></source>
        <translation>CPU 履歴に新しい点を加える間隔です。</translation>
    </message>
    <message id="preferences_historyFilter">
        <source></source>
        <translation>平滑化(&amp;H):</translation>
    </message>
    <message id="preferences_historyFilter_tip">
        <source></source>
        <translation>前の点をどれだけ次の点に反映するかです。0 % ではすべての変動が現れ、値が大きいほど線がなめらかになります。</translation>
    </message>
    <message id="preferences_historyColour">
        <source></source>
        <translation>CPU 使用率(&amp;G):</translation>
    </message>
    <message id="preferences_historyColour_tip">
        <source></source>
        <translation>プロセスの CPU 使用率の線の色です。子孫プロセスを含めている間は、その分も含みます。</translation>
    </message>
    <message id="preferences_descendantsColour">
        <source></source>
        <translation>自身の分(&amp;E):</translation>
    </message>
    <message id="preferences_descendantsColour_tip">
        <source></source>
        <translation>子孫プロセスを含めている間の、プロセス自身の分の線の色です。これから開くウィンドウに適用されます。</translation>
    </message>
    <message id="preferences_relative">
        <source></source>
        <translation>最近の最大値に合わせる(&amp;S)</translation>
    </message>
    <message id="preferences_relative_tip">
        <source></source>
        <translation>グラフの高さは、100 % ではなく最近の最大使用率を表します。</translation>
    </message>
    <message id="preferences_descendants">
        <source></source>
        <translation>子孫プロセスを含める(&amp;I)</translation>
    </message>
    <message id="preferences_descendants_tip">
        <source></source>
        <translation>プロセスが起動したプロセスの使用分も、別の色で表示します。</translation>
    </message>
    <message id="preferences_loggingInterval">
        <source></source>
        <translation>変化の確認(&amp;K):</translation>
    </message>
    <message id="preferences_loggingInterval_tip">
        <source></source>
        <translation>新しく書き込むことがあるかどうかをログが確認する間隔です。</translation>
    </message>
    <message id="preferences_timestamp">
        <source></source>
        <translation>時刻(&amp;T)</translation>
    </message>
    <message id="preferences_timestamp_tip">
        <source></source>
        <translation>各行の時刻の列です。</translation>
    </message>
    <message id="preferences_logToFile">
        <source></source>
        <translation>ファイルにも書き込む(&amp;F)</translation>
    </message>
    <message id="preferences_logToFile_tip">
        <source></source>
        <translation>すべての行を、ログごとのテキストファイルに追記します。</translation>
    </message>
    <message id="preferences_activeTime">
        <source></source>
        <translation>CPU 時間(&amp;U)</translation>
    </message>
    <message id="preferences_activeTime_tip">
        <source></source>
        <translation>プロセスが使った CPU 時間の列です。</translation>
    </message>
    <message id="preferences_deltaActiveTime">
        <source></source>
        <translation>CPU 時間の変化(&amp;G)</translation>
    </message>
    <message id="preferences_deltaActiveTime_tip">
        <source></source>
        <translation>前の行以降に使った CPU 時間の列です。</translation>
    </message>
    <message id="preferences_realMemory">
        <source></source>
        <translation>常駐メモリ(&amp;R)</translation>
    </message>
    <message id="preferences_realMemory_tip">
        <source></source>
        <translation>プロセスが使用しているメモリの列です。</translation>
    </message>
    <message id="preferences_deltaRealMemory">
        <source></source>
        <translation>常駐メモリの変化(&amp;E)</translation>
    </message>
    <message id="preferences_deltaRealMemory_tip">
        <source></source>
        <translation>前の行からの常駐メモリの変化の列です。</translation>
    </message>
    <message id="preferences_virtualMemory">
        <source></source>
        <translation>仮想メモリ(&amp;V)</translation>
    </message>
    <message id="preferences_virtualMemory_tip">
        <source></source>
        <translation>プロセスのアドレス空間のサイズの列です。</translation>
    </message>
    <message id="preferences_deltaVirtualMemory">
        <source></source>
        <translation>仮想メモリの変化(&amp;N)</translation>
    </message>
    <message id="preferences_deltaVirtualMemory_tip">
        <source></source>
        <translation>前の行からの仮想メモリの変化の列です。</translation>
    </message>
    <message id="preferences_notice">
        <source></source>
        <translation>変更は、これから開くログウィンドウに適用されます。</translation>
    </message>
    <message id="settings_title">
        <source></source>
        <translation>すべての設定項目</translation>
    </message>
    <message id="settings_filter">
        <source></source>
        <translation>名前、キー、値、意味でフィルター</translation>
    </message>
    <message id="settings_reset">
        <source></source>
        <translation>デフォルトに戻す(&amp;R)</translation>
    </message>
    <message id="settings_reset_tip">
        <source></source>
        <translation>選択した設定項目の保存された値を削除し、デフォルト値を使います。</translation>
    </message>
    <message id="settings_column_key">
        <source></source>
        <translation>設定項目</translation>
    </message>
    <message id="settings_column_value">
        <source></source>
        <translation>値</translation>
    </message>
    <message id="settings_column_default">
        <source></source>
        <translation>デフォルト</translation>
    </message>
    <message id="settings_column_kind">
        <source></source>
        <translation>型</translation>
    </message>
    <message id="settings_column_effect">
        <source></source>
        <translation>適用</translation>
    </message>
    <message id="settings_column_meaning">
        <source></source>
        <translation>意味</translation>
    </message>
    <message id="settings_kind_switch">
        <source></source>
        <translation>オン/オフ</translation>
    </message>
    <message id="settings_kind_choice">
        <source></source>
        <translation>選択</translation>
    </message>
    <message id="settings_kind_integer">
        <source></source>
        <translation>整数</translation>
    </message>
    <message id="settings_kind_interval">
        <source></source>
        <translation>間隔</translation>
    </message>
    <message id="settings_kind_colour">
        <source></source>
        <translation>色、0 ～ 65535</translation>
    </message>
    <message id="settings_kind_real">
        <source></source>
        <translation>数値</translation>
    </message>
    <message id="settings_kind_text">
        <source></source>
        <translation>テキスト</translation>
    </message>
    <message id="settings_kind_record">
        <source></source>
        <translation>プログラム自身の記録</translation>
    </message>
    <message id="settings_kind_array">
        <source></source>
        <translation>記録の一覧</translation>
    </message>
    <message id="settings_kind_unit">
        <source></source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="settings_unit_milliseconds">
        <source></source>
        <translation>ミリ秒</translation>
    </message>
    <message id="settings_unit_seconds">
        <source></source>
        <translation>秒</translation>
    </message>
    <message id="settings_unit_pages">
        <source></source>
        <translation>ページ</translation>
    </message>
    <message id="settings_unit_points">
        <source></source>
        <translation>ポイント</translation>
    </message>
    <message id="settings_unit_ticks">
        <source></source>
        <translation>ティック (毎秒 60)</translation>
    </message>
    <message id="settings_kind_range">
        <source></source>
        <translation>%1、%2 ～ %3</translation>
    </message>
    <message id="settings_effect_at_once">
        <source></source>
        <translation>すぐに</translation>
    </message>
    <message id="settings_effect_new_windows">
        <source></source>
        <translation>新しいウィンドウから</translation>
    </message>
    <message id="settings_effect_next_start">
        <source></source>
        <translation>次回の起動から</translation>
    </message>
    <message id="settings_note_at_once">
        <source></source>
        <translation>変更はすぐに適用されます。</translation>
    </message>
    <message id="settings_note_new_windows">
        <source></source>
        <translation>変更は、それ以降に開くウィンドウに適用されます。</translation>
    </message>
    <message id="settings_note_next_start">
        <source></source>
        <translation>変更は、プログラムの次回の起動から適用されます。</translation>
    </message>
    <message id="settings_note_not_stored">
        <source></source>
        <translation>保存された値はなく、デフォルト値が使われます。%1</translation>
    </message>
    <message id="settings_note_record">
        <source></source>
        <translation>これはプログラム自身が管理するもので、ここでは変更できません。</translation>
    </message>
    <message id="hot_key_given">
        <source></source>
        <translation>このデスクトップでのキー: %1</translation>
    </message>
    <message id="hot_key_awaited">
        <source></source>
        <translation>デスクトップからの応答がまだありません。</translation>
    </message>
    <message id="hot_key_taken">
        <source></source>
        <translation>機能しません。ほかのプログラムがこのキーを使っているか、キーボードにこのキーがありません。</translation>
    </message>
    <message id="hot_key_refused">
        <source></source>
        <translation>機能しません。デスクトップがこのキーを割り当てませんでした。デスクトップ自身のキー設定で変更できます。</translation>
    </message>
    <message id="hot_key_no_way">
        <source></source>
        <translation>機能しません。このデスクトップはプログラムにキーを割り当てません。デスクトップ自身の設定で、コマンド「lurkwell --toggle-overlay」にキーを割り当てられます。</translation>
    </message>
    <message id="settings_note_no_number">
        <source></source>
        <translation>保存されている値は数値でないため、0 として扱われます。数値を入力するか、設定項目をデフォルトに戻してください。</translation>
    </message>
    <message id="settings_elements" numerus="yes">
        <source></source>
        <translation>
            <numerusform>記録 %n 個</numerusform>
        </translation>
    </message>
    <message id="settings_problem_no_number">
        <source></source>
        <translation>「%1」は数値ではありません。設定は元のままです。</translation>
    </message>
    <message id="settings_problem_not_whole">
        <source></source>
        <translation>「%1」は整数ではありません。設定は元のままです。</translation>
    </message>
    <message id="settings_problem_range">
        <source></source>
        <translation>「%1」は範囲外です。%2 から %3 までで指定してください。設定は元のままです。</translation>
    </message>
    <message id="settings_problem_characters">
        <source></source>
        <translation>設定で使えない文字がテキストに含まれています。設定は元のままです。</translation>
    </message>
    <message id="settings_component_red">
        <source></source>
        <translation>%1赤の値です。</translation>
    </message>
    <message id="settings_component_green">
        <source></source>
        <translation>%1緑の値です。</translation>
    </message>
    <message id="settings_component_blue">
        <source></source>
        <translation>%1青の値です。</translation>
    </message>
    <message id="settings_title_red">
        <source></source>
        <translation>%1: 赤</translation>
    </message>
    <message id="settings_title_green">
        <source></source>
        <translation>%1: 緑</translation>
    </message>
    <message id="settings_title_blue">
        <source></source>
        <translation>%1: 青</translation>
    </message>
    <message id="settings_title_and_key">
        <source></source>
        <translation>%1、キー %2</translation>
    </message>
    <message id="setting_title_GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT">
        <source></source>
        <translation>メモリサイズの単位</translation>
    </message>
    <message id="setting_title_GENERAL_PREFERRED_DATE_DISPLAY_FORMAT">
        <source></source>
        <translation>日付の形式</translation>
    </message>
    <message id="setting_title_GENERAL_ALWAYS_AUTHENTICATE_DAEMON">
        <source></source>
        <translation>起動のたびにパスワードを求める</translation>
    </message>
    <message id="setting_title_GENERAL_CONTINUE_WITHOUT_RIGHTS">
        <source></source>
        <translation>管理者の権限なしで起動する</translation>
    </message>
    <message id="setting_title_FIGURES_FROM_HELPER">
        <source></source>
        <translation>プロセスの値をヘルパーに問い合わせる</translation>
    </message>
    <message id="setting_title_PREFERENCES_UI_DEFAULT_TAB">
        <source></source>
        <translation>設定のページ</translation>
    </message>
    <message id="setting_title_ABOUT_PANEL_AT_EVERY_START">
        <source></source>
        <translation>起動のたびに情報パネルを表示</translation>
    </message>
    <message id="hint_details">
        <source></source>
        <translation>プロセスをダブルクリックすると詳細が開きます。右クリックすると、そのプロセスに行える操作が表示されます。</translation>
    </message>
    <message id="hint_filter">
        <source></source>
        <translation>Ctrl+F では、さまざまな条件でプロセスを検索できます。user:root cpu&gt;5 や port:443 を試してみてください。</translation>
    </message>
    <message id="hint_columns">
        <source></source>
        <translation>ヘッダーを右クリックすると列を追加できます。Ctrl+1 ～ Ctrl+7 で列セットを切り替えます。</translation>
    </message>
    <message id="hint_follow">
        <source></source>
        <translation>Ctrl+N で、選択したプロセスの小さなグラフがすべてのウィンドウの上に浮かびます。プログラムが始まると再び現れます。</translation>
    </message>
    <message id="hint_shapes">
        <source></source>
        <translation>Alt+2 でプロセスをツリー表示、Alt+3 でアプリケーション別に表示します。合計は枝全体のものです。</translation>
    </message>
    <message id="hints_none">
        <source></source>
        <translation>今後ヒントを表示しない</translation>
    </message>
    <message id="hints_close">
        <source></source>
        <translation>このヒントを閉じる</translation>
    </message>
    <message id="setting_title_HINTS_SEEN">
        <source></source>
        <translation>閉じたヒント</translation>
    </message>
    <message id="setting_title_ABOUT_PANEL_SEEN_VERSION">
        <source></source>
        <translation>情報パネル: 表示済みのバージョン</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_INTERVAL">
        <source></source>
        <translation>表: 更新間隔</translation>
    </message>
    <message id="setting_title_MEM_GRAPH_DRAW_VSZ">
        <source></source>
        <translation>表: メモリバー上のサイズ</translation>
    </message>
    <message id="setting_title_MEMORY_BAR_FIGURE">
        <source></source>
        <translation>表: メモリバーが示すもの</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE">
        <source></source>
        <translation>表: アイドルタスクを 0 とする</translation>
    </message>
    <message id="setting_title_CPU_SHARE_OF_MACHINE">
        <source></source>
        <translation>列: CPU の割合をマシン全体で示す</translation>
    </message>
    <message id="setting_title_KEEP_COMMAND_LINES">
        <source></source>
        <translation>出力: コマンドライン全体</translation>
    </message>
    <message id="setting_title_MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT">
        <source></source>
        <translation>表: 共有領域を除く</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_PAGEOUT_CRITICAL_FLASH_INTERVAL">
        <source></source>
        <translation>スワップランプ: 点滅の間隔</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_FILTER">
        <source></source>
        <translation>スワップランプ: 平滑化</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_RED">
        <source></source>
        <translation>スワップランプ: 赤になる値</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_YELLOW">
        <source></source>
        <translation>スワップランプ: 黄になる値</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_PROCESS_LIST_WINDOW">
        <source></source>
        <translation>メインウィンドウを開いていたか</translation>
    </message>
    <message id="setting_title_DETAILS_WINDOW_FRAME">
        <source></source>
        <translation>詳細: 位置とサイズ</translation>
    </message>
    <message id="setting_DETAILS_WINDOW_FRAME">
        <source></source>
        <translation>最後に閉じた、プロセスの詳細ウィンドウの位置とサイズです。</translation>
    </message>
    <message id="setting_title_DETAILS_WINDOW_PAGE">
        <source></source>
        <translation>詳細: ページ</translation>
    </message>
    <message id="setting_DETAILS_WINDOW_PAGE">
        <source></source>
        <translation>詳細ウィンドウで最後に表示したページで、0 から数えます。</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FRAME">
        <source></source>
        <translation>メインウィンドウ: 位置とサイズ</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_ITEMS">
        <source></source>
        <translation>ツールバー: 項目</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_DISPLAY_MODE">
        <source></source>
        <translation>ツールバー: アイコンとテキスト</translation>
    </message>
    <message id="setting_title_vqMainTableToolbarIdentifierTarvikTemp14_SHOWN">
        <source></source>
        <translation>ツールバー: 表示</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SORT_COLUMN_INDEX">
        <source></source>
        <translation>表: 並べ替えの列</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SHAPE">
        <source></source>
        <translation>プロセスの表の形、標準セット</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_SCOPE">
        <source></source>
        <translation>プロセスの表の表示範囲</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FOLLOWS_SELECTION">
        <source></source>
        <translation>選択行の位置を保持</translation>
    </message>
    <message id="setting_title_WEB_SEARCH_ADDRESS">
        <source></source>
        <translation>Web 検索のアドレス</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_FOLDED_PROGRAMS">
        <source></source>
        <translation>折りたたんだプログラム</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_UNFOLDED_APPLICATIONS">
        <source></source>
        <translation>展開したアプリケーション</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_RECENT_FILTERS">
        <source></source>
        <translation>最近のフィルター</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMNS">
        <source></source>
        <translation>表: 列</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMN_SETS">
        <source></source>
        <translation>表: 列セット</translation>
    </message>
    <message id="setting_title_MAIN_WINDOW_COLUMN_SET">
        <source></source>
        <translation>表: 表示中のセット</translation>
    </message>
    <message id="setting_title_HAS_RUN_TWO_POINT_THREE">
        <source></source>
        <translation>マークの列を追加済み</translation>
    </message>
    <message id="setting_title_HAS_RUN_TWO_POINT_FOUR">
        <source></source>
        <translation>メモリバーの列を追加済み</translation>
    </message>
    <message id="setting_title_DEFAULT_X_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>小さなウィンドウ: 最後のものの左端</translation>
    </message>
    <message id="setting_title_DEFAULT_Y_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>小さなウィンドウ: 最後のものの上端</translation>
    </message>
    <message id="setting_title_DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA">
        <source></source>
        <translation>小さなウィンドウ: 不透明度</translation>
    </message>
    <message id="setting_title_DEFAULT_WATCHDOG_INTERVAL">
        <source></source>
        <translation>記憶したウィンドウ: プログラムを調べる間隔</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_WINDOW_INTERVAL">
        <source></source>
        <translation>CPU 履歴: 点の間隔</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_USE_RELATIVE">
        <source></source>
        <translation>CPU 履歴: 最近の最大値に合わせる</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS">
        <source></source>
        <translation>CPU 履歴: 子孫プロセスを含める</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW_DEFAULT_FILTER">
        <source></source>
        <translation>CPU 履歴: 平滑化</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_BACKGROUND_RGB">
        <source></source>
        <translation>CPU 履歴: 背景</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_FOREGROUND_RGB">
        <source></source>
        <translation>CPU 履歴: CPU 使用率</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB">
        <source></source>
        <translation>CPU 履歴: 自身の分</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_NAME_RGB">
        <source></source>
        <translation>CPU 履歴: 名前</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_RGB">
        <source></source>
        <translation>CPU 履歴: 固定目盛りのラベル</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB">
        <source></source>
        <translation>CPU 履歴: 最大値に合わせた目盛りのラベル</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HWM_FLASH_RGB">
        <source></source>
        <translation>CPU 履歴: 新しい目盛りのラベル</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG">
        <source></source>
        <translation>CPU 履歴: パーセント値の背景</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG">
        <source></source>
        <translation>CPU 履歴: パーセント値</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_NAME_ALPHA">
        <source></source>
        <translation>CPU 履歴: 名前の不透明度</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_HIGHWATERMARK_ALPHA">
        <source></source>
        <translation>CPU 履歴: 目盛りのラベルの不透明度</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_ALPHA">
        <source></source>
        <translation>CPU 履歴: パーセント値の不透明度</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_ICON_ALPHA">
        <source></source>
        <translation>CPU 履歴: アイコンの不透明度 (旧)</translation>
    </message>
    <message id="setting_title_DEFAULT_CPU_HISTORY_ICON_ALPHA_REALLY">
        <source></source>
        <translation>CPU 履歴: アイコンの不透明度</translation>
    </message>
    <message id="setting_title_CPU_HISTORY_WINDOW">
        <source></source>
        <translation>CPU 履歴: 記憶したウィンドウ</translation>
    </message>
    <message id="setting_title_DEFAULT_LOGGING_WINDOW_INTERVAL">
        <source></source>
        <translation>ログ: 変化を確認する間隔</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_INCLUDE_TIMESTAMP">
        <source></source>
        <translation>ログ: 時刻</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>ログ: CPU 時間</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>ログ: CPU 時間の変化</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_REAL_MEM_BOOL">
        <source></source>
        <translation>ログ: 常駐メモリ</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_REAL_MEM_BOOL">
        <source></source>
        <translation>ログ: 常駐メモリの変化</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>ログ: 仮想メモリ</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_DELTA_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>ログ: 仮想メモリの変化</translation>
    </message>
    <message id="setting_title_LOG_WINDOW_LOG_TO_FILE">
        <source></source>
        <translation>ログ: ファイルにも書き込む</translation>
    </message>
    <message id="setting_title_LOGGING_WINDOW">
        <source></source>
        <translation>ログ: 記憶したウィンドウ</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_GL_THREAD_INTERVAL">
        <source></source>
        <translation>アニメーション表示: 描画の間隔</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_MAINPIC_INTERVAL">
        <source></source>
        <translation>アニメーション表示: プロセスを調べる間隔</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_HELPERPIC_INTERVAL">
        <source></source>
        <translation>アニメーション表示: CPU 使用率を測定する間隔</translation>
    </message>
    <message id="setting_title_QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS">
        <source></source>
        <translation>全画面表示: 親子を線で結ぶ</translation>
    </message>
    <message id="setting_title_QUINT_FULLSCREEN_WINDOW_ALPHA">
        <source></source>
        <translation>全画面表示: 不透明度</translation>
    </message>
    <message id="setting_title_QUINT_FULLSCREEN_UNDERLAY_ALPHA">
        <source></source>
        <translation>全画面表示: 背景の不透明度</translation>
    </message>
    <message id="setting_title_HEARTQUIVA_ICON_SCALE_FACTOR">
        <source></source>
        <translation>アニメーション表示: アイコンの倍率</translation>
    </message>
    <message id="setting_title_QUIVA_FULLSCREEN_EXTRA_SCALE_FACTOR">
        <source></source>
        <translation>全画面表示: アイコンの追加倍率</translation>
    </message>
    <message id="setting_title_QUINT_MAX_ITERATIONS_TO_STABILIZE_WHEN_FIRST_SHOWING">
        <source></source>
        <translation>アニメーション表示: 最初の描画までのステップ</translation>
    </message>
    <message id="setting_title_QUINT_TARVIK_FACTOR">
        <source></source>
        <translation>アニメーション表示: Lurkwell 自身の活動の倍率</translation>
    </message>
    <message id="setting_title_FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE">
        <source></source>
        <translation>全画面表示: キー</translation>
    </message>
    <message id="setting_title_QUIVA_CHECK_QUARTZ_EXTREME">
        <source></source>
        <translation>アニメーション表示: グラフィックスを確認済み</translation>
    </message>
    <message id="setting_title_QUIVA_CHECK_COMPOSITOR">
        <source></source>
        <translation>全画面表示: コンポジターを確認済み</translation>
    </message>
    <message id="setting_title_QUIVA_WINDOW_FRAME">
        <source></source>
        <translation>アニメーション表示: 位置とサイズ</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>アニメーション表示を開いていたか</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>全画面表示を開いていたか</translation>
    </message>
    <message id="setting_title_CLASSIC_INITIAL_ASSUMED_CPU_USAGE">
        <source></source>
        <translation>Classic 環境: 最初の CPU 使用率</translation>
    </message>
    <message id="setting_title_CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER">
        <source></source>
        <translation>Classic 環境: 測定値の重み</translation>
    </message>
    <message id="setting_title_CLASSIC_WATCHDOG_INTERVAL">
        <source></source>
        <translation>Classic 環境: 調べる間隔</translation>
    </message>
    <message id="setting_title_CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX">
        <source></source>
        <translation>Classic 環境: ヘルパーのスリープ</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_AND_TESTING">
        <source></source>
        <translation>マシンの値: ウィンドウを表示</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_SWI_INTERVAL">
        <source></source>
        <translation>マシンの値: 更新間隔</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_LEFT">
        <source></source>
        <translation>マシンの値: 左端</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_TOP">
        <source></source>
        <translation>マシンの値: 上端</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_RIGHT">
        <source></source>
        <translation>マシンの値: 右端</translation>
    </message>
    <message id="setting_title_QUBS_DEBUGGING_WINDOW_BOTTOM">
        <source></source>
        <translation>マシンの値: 下端</translation>
    </message>
    <message id="setting_GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT">
        <source></source>
        <translation>メモリサイズの単位です。0 自動、1 バイト、2 キロバイト、3 メガバイト、4 ギガバイト。</translation>
    </message>
    <message id="setting_GENERAL_PREFERRED_DATE_DISPLAY_FORMAT">
        <source></source>
        <translation>日付の書き方です。0 日付と時刻、1 1970 年からの秒数、2 秒とマイクロ秒。</translation>
    </message>
    <message id="setting_GENERAL_ALWAYS_AUTHENTICATE_DAEMON">
        <source></source>
        <translation>ヘルパーがすでに権限を持っていても、起動のたびに管理者のパスワードを求めます。</translation>
    </message>
    <message id="setting_GENERAL_CONTINUE_WITHOUT_RIGHTS">
        <source></source>
        <translation>ヘルパーに権限がない場合、管理者の権限を求めずに、そのまま起動します。「Continue Without」を選ぶと設定されます。</translation>
    </message>
    <message id="setting_FIGURES_FROM_HELPER">
        <source></source>
        <translation>プロセスの値をヘルパーに問い合わせます。ヘルパーだけが読めるマシンと同じ動作です。オフでは、プログラムが自分で読み取り、負荷がずっと小さくなります。</translation>
    </message>
    <message id="setting_PREFERENCES_UI_DEFAULT_TAB">
        <source></source>
        <translation>設定ウィンドウで最後に表示したページで、0 から数えます。</translation>
    </message>
    <message id="setting_ABOUT_PANEL_AT_EVERY_START">
        <source></source>
        <translation>そのバージョンの最初の起動だけでなく、起動のたびに「Lurkwell について」のパネルを 3 秒間表示します。</translation>
    </message>
    <message id="setting_HINTS_SEEN">
        <source></source>
        <translation>表の上のヒントのうち、すでに閉じたものの数です。0 にすると、起動ごとに 1 つずつ再び表示します。</translation>
    </message>
    <message id="setting_ABOUT_PANEL_SEEN_VERSION">
        <source></source>
        <translation>起動時に「Lurkwell について」のパネルを表示したバージョンです。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_INTERVAL">
        <source></source>
        <translation>メインウィンドウの表を更新する間隔です。</translation>
    </message>
    <message id="setting_MEM_GRAPH_DRAW_VSZ">
        <source></source>
        <translation>メモリバーに、長さが示すサイズを書き込みます。</translation>
    </message>
    <message id="setting_MEMORY_BAR_FIGURE">
        <source></source>
        <translation>メモリバーの長さと、メモリバーで並べ替えたときの順序を決めるものです。0 – 仮想サイズと、その中の常駐サイズ、1 – 常駐サイズ、2 – 共有メモリを分担して数える比例配分サイズ。マシンのメモリより大きい仮想サイズは、ほかのバーの基準になりません。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE">
        <source></source>
        <translation>アイドルタスクの CPU 使用率とサイズを 0 と表示し、そのバーのためにほかのバーが見えなくならないようにします。</translation>
    </message>
    <message id="setting_CPU_SHARE_OF_MACHINE">
        <source></source>
        <translation>CPU、ユーザー、システムの割合を、1 つのプロセッサーではなく全プロセッサーに対する割合で示します。100 % がマシン全体になります。どちらであるかは列の見出しに示します。</translation>
    </message>
    <message id="setting_KEEP_COMMAND_LINES">
        <source></source>
        <translation>コマンドラインを出力するとき、プログラムだけでなく、パスワードを含むかもしれない引数も出力し、書き出します。</translation>
    </message>
    <message id="setting_MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT">
        <source></source>
        <translation>全プロセスが共有する領域があるマシンで、それを仮想サイズから除きます。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_PAGEOUT_CRITICAL_FLASH_INTERVAL">
        <source></source>
        <translation>多くのページがスワップアウトされている間の、スワップランプの赤の点滅間隔 (秒) です。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_FILTER">
        <source></source>
        <translation>ある更新から次の更新まで、スワップアウト量の値をどれだけ残すかを 0 から 1 で示します。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_RED">
        <source></source>
        <translation>スワップランプが赤になる、更新あたりのスワップアウトページ数です。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_YELLOW">
        <source></source>
        <translation>スワップランプが黄になる、更新あたりのスワップアウトページ数です。</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_PROCESS_LIST_WINDOW">
        <source></source>
        <translation>起動時にメインウィンドウを開きます。開いていたかどうかはプログラムがここに記録します。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FRAME">
        <source></source>
        <translation>メインウィンドウの位置とサイズです。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SORT_COLUMN_INDEX">
        <source></source>
        <translation>記憶している、表の並べ替えに使う列で、0 から数えます。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SHAPE">
        <source></source>
        <translation>標準の列セットでのプロセスの並べ方です。0 – リスト、1 – 子プロセスを親プロセスの下に、2 – アプリケーションの下に。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_SCOPE">
        <source></source>
        <translation>表に表示するプロセスです。0 – すべて、1 – 自分のもの、2 – ほかのユーザーのもの、3 – アプリケーション、4 – カーネルスレッド以外、5 – 前回の更新以降にプロセッサーを使ったもの。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FOLLOWS_SELECTION">
        <source></source>
        <translation>ほかの行の位置が変わっても、選択した行を画面上の同じ位置に保つかどうかです。</translation>
    </message>
    <message id="setting_WEB_SEARCH_ADDRESS">
        <source></source>
        <translation>Web のアドレスで、%1 がプログラムの名前を表します。空の場合は通常のアドレスを使います。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_FOLDED_PROGRAMS">
        <source></source>
        <translation>ツリーで子プロセスを折りたたんだプログラムを、新しい順に並べたものです。使えない文字はパーセントエンコードで表します。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_UNFOLDED_APPLICATIONS">
        <source></source>
        <translation>プロセスを展開したアプリケーション、ユニット、コンテナ、プログラムを、新しい順に並べたものです。使えない文字はパーセントエンコードで表します。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_RECENT_FILTERS">
        <source></source>
        <translation>プロセスの表で最近使ったフィルターを、新しい順に並べたものです。使えない文字はパーセントエンコードで表します。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMNS">
        <source></source>
        <translation>標準セットの列と、その幅、並べ替えの方向です。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMN_SETS">
        <source></source>
        <translation>標準を除く列セットが保持するもの (列、幅、並べ替えの方向、並べ替えの列、形) です。</translation>
    </message>
    <message id="setting_MAIN_WINDOW_COLUMN_SET">
        <source></source>
        <translation>表に表示している列セットです。</translation>
    </message>
    <message id="setting_HAS_RUN_TWO_POINT_THREE">
        <source></source>
        <translation>マークの列を表に一度追加したかどうかです。</translation>
    </message>
    <message id="setting_HAS_RUN_TWO_POINT_FOUR">
        <source></source>
        <translation>メモリバーの列を表に一度追加したかどうかです。</translation>
    </message>
    <message id="setting_DEFAULT_X_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>最後に開いた小さなウィンドウの左端です。次のものはその横に置かれます。</translation>
    </message>
    <message id="setting_DEFAULT_Y_COOR_FOR_NEWLY_CREATED_WINDOWS">
        <source></source>
        <translation>最後に開いた小さなウィンドウの上端です。次のものはその下に置かれます。</translation>
    </message>
    <message id="setting_DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA">
        <source></source>
        <translation>小さなウィンドウの不透明度で、1 は完全に不透明です。</translation>
    </message>
    <message id="setting_DEFAULT_WATCHDOG_INTERVAL">
        <source></source>
        <translation>ウィンドウを記憶しているプロセスが新しく始まったかどうかを調べる間隔です。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_WINDOW_INTERVAL">
        <source></source>
        <translation>CPU 履歴の 2 つの点の間の時間です。</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_USE_RELATIVE">
        <source></source>
        <translation>CPU 履歴の目盛りを、100 % ではなく最近の最大値に合わせます。</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS">
        <source></source>
        <translation>プロセスの履歴に、子孫プロセスの CPU 使用率も表示します。</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW_DEFAULT_FILTER">
        <source></source>
        <translation>前の点を次の点にどれだけ反映するかを 0 から 1 で示します。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_BACKGROUND_RGB">
        <source></source>
        <translation>CPU 履歴の背景です。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_FOREGROUND_RGB">
        <source></source>
        <translation>履歴でのプロセスの CPU 使用率です。子孫プロセスを含めている間は、その分も含みます。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB">
        <source></source>
        <translation>子孫プロセスを含めている間の、履歴でのプロセス自身の CPU 使用率です。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_NAME_RGB">
        <source></source>
        <translation>CPU 履歴の名前です。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_RGB">
        <source></source>
        <translation>目盛りが固定の CPU 履歴での、目盛りのラベルです。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB">
        <source></source>
        <translation>最大値に合わせた CPU 履歴での、目盛りのラベルです。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HWM_FLASH_RGB">
        <source></source>
        <translation>変化後に点滅している間の、目盛りのラベルです。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG">
        <source></source>
        <translation>CPU 履歴での現在のパーセント値の背景です。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG">
        <source></source>
        <translation>CPU 履歴での現在のパーセント値です。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_NAME_ALPHA">
        <source></source>
        <translation>CPU 履歴での名前の不透明度です。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_HIGHWATERMARK_ALPHA">
        <source></source>
        <translation>CPU 履歴での目盛りのラベルの不透明度です。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_ALPHA">
        <source></source>
        <translation>CPU 履歴での現在のパーセント値の不透明度です。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_ICON_ALPHA">
        <source></source>
        <translation>CPU 履歴でのアイコンの以前の不透明度です。現在は別の設定項目に置き換えられています。</translation>
    </message>
    <message id="setting_DEFAULT_CPU_HISTORY_ICON_ALPHA_REALLY">
        <source></source>
        <translation>CPU 履歴でのアイコンの不透明度です。</translation>
    </message>
    <message id="setting_CPU_HISTORY_WINDOW">
        <source></source>
        <translation>同じ名前のプロセスが始まると再び開く CPU 履歴です。</translation>
    </message>
    <message id="setting_DEFAULT_LOGGING_WINDOW_INTERVAL">
        <source></source>
        <translation>ログが変化を確認する間隔です。</translation>
    </message>
    <message id="setting_LOG_WINDOW_INCLUDE_TIMESTAMP">
        <source></source>
        <translation>ログに時刻の列を設けます。</translation>
    </message>
    <message id="setting_LOG_WINDOW_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>ログに CPU 時間の列を設けます。</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_ACTIVE_TIME_BOOL">
        <source></source>
        <translation>ログに CPU 時間の変化の列を設けます。</translation>
    </message>
    <message id="setting_LOG_WINDOW_REAL_MEM_BOOL">
        <source></source>
        <translation>ログに常駐メモリの列を設けます。</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_REAL_MEM_BOOL">
        <source></source>
        <translation>ログに常駐メモリの変化の列を設けます。</translation>
    </message>
    <message id="setting_LOG_WINDOW_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>ログに仮想メモリの列を設けます。</translation>
    </message>
    <message id="setting_LOG_WINDOW_DELTA_VIRTUAL_MEM_BOOL">
        <source></source>
        <translation>ログに仮想メモリの変化の列を設けます。</translation>
    </message>
    <message id="setting_LOG_WINDOW_LOG_TO_FILE">
        <source></source>
        <translation>ログをファイルにも書き込みます。</translation>
    </message>
    <message id="setting_LOGGING_WINDOW">
        <source></source>
        <translation>同じ名前のプロセスが始まると再び開くログです。</translation>
    </message>
    <message id="setting_HEARTQUIVA_GL_THREAD_INTERVAL">
        <source></source>
        <translation>アニメーション表示を描画する間隔です。次の設定項目より長くなることはありません。</translation>
    </message>
    <message id="setting_HEARTQUIVA_MAINPIC_INTERVAL">
        <source></source>
        <translation>アニメーション表示が、開始または終了したプロセスを調べる間隔です。次の設定項目より長くなることはありません。</translation>
    </message>
    <message id="setting_HEARTQUIVA_HELPERPIC_INTERVAL">
        <source></source>
        <translation>アニメーション表示が、プロセスの CPU 使用率を測定する間隔です。</translation>
    </message>
    <message id="setting_QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS">
        <source></source>
        <translation>全画面表示でも、親プロセスと子プロセスの間に線を引きます。</translation>
    </message>
    <message id="setting_QUINT_FULLSCREEN_WINDOW_ALPHA">
        <source></source>
        <translation>全画面表示の不透明度です。</translation>
    </message>
    <message id="setting_QUINT_FULLSCREEN_UNDERLAY_ALPHA">
        <source></source>
        <translation>全画面表示での、プロセスの背後の画像の不透明度です。</translation>
    </message>
    <message id="setting_HEARTQUIVA_ICON_SCALE_FACTOR">
        <source></source>
        <translation>アニメーション表示でのアイコンの倍率です。アイコンの一辺 (ポイント) は、プロセスの重み (停止時 0.5、プロセッサー 1 つ分で 2.9) にこの値の半分を掛けたものです。</translation>
    </message>
    <message id="setting_QUIVA_FULLSCREEN_EXTRA_SCALE_FACTOR">
        <source></source>
        <translation>全画面表示でアイコンを何倍大きくするかです。</translation>
    </message>
    <message id="setting_QUINT_MAX_ITERATIONS_TO_STABILIZE_WHEN_FIRST_SHOWING">
        <source></source>
        <translation>アニメーション表示を最初に表示する前に行う、配置計算の最大ステップ数です。</translation>
    </message>
    <message id="setting_QUINT_TARVIK_FACTOR">
        <source></source>
        <translation>アニメーション表示で、Lurkwell 自身とそのヘルパーの活動を実際の何倍に数えるかです。値がない場合はそのままです。</translation>
    </message>
    <message id="setting_FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE">
        <source></source>
        <translation>デスクトップのどこからでも全画面表示をオン/オフするキーの番号です。何も保存されていなければ 98 (F7) です。</translation>
    </message>
    <message id="setting_QUIVA_CHECK_QUARTZ_EXTREME">
        <source></source>
        <translation>アニメーション表示を最初に表示したときに、ディスプレイのグラフィックスを確認したかどうかです。</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>起動時にアニメーション表示を開きます。開いていたかどうかはプログラムがここに記録します。</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW">
        <source></source>
        <translation>起動時にアニメーション表示を全画面で開きます。開いていたかどうかはプログラムがここに記録します。</translation>
    </message>
    <message id="setting_CLASSIC_INITIAL_ASSUMED_CPU_USAGE">
        <source></source>
        <translation>測定前に仮定する、Classic 環境の CPU 使用率です。</translation>
    </message>
    <message id="setting_CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER">
        <source></source>
        <translation>Classic 環境の CPU 使用率の測定値をどれだけ反映するかを 0 から 1 で示します。</translation>
    </message>
    <message id="setting_CLASSIC_WATCHDOG_INTERVAL">
        <source></source>
        <translation>Classic 環境が動作しているかどうかを調べる間隔です。</translation>
    </message>
    <message id="setting_CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX">
        <source></source>
        <translation>Classic 環境内のヘルパーが、確認と確認の間にスリープする時間 (60 分の 1 秒単位) です。</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_AND_TESTING">
        <source></source>
        <translation>デバッグのために、マシンの値を示す小さなウィンドウを表示します。</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_SWI_INTERVAL">
        <source></source>
        <translation>マシンの値のウィンドウを更新する間隔です。</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_LEFT">
        <source></source>
        <translation>マシンの値のウィンドウの左端です。</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_TOP">
        <source></source>
        <translation>マシンの値のウィンドウの上端です。</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_RIGHT">
        <source></source>
        <translation>マシンの値のウィンドウの右端です。</translation>
    </message>
    <message id="setting_QUBS_DEBUGGING_WINDOW_BOTTOM">
        <source></source>
        <translation>マシンの値のウィンドウの下端です。</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_ITEMS">
        <source></source>
        <translation>メインウィンドウのツールバーの項目を、順に空白で区切って並べたものです。</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_DISPLAY_MODE">
        <source></source>
        <translation>メインウィンドウのツールバーに表示するものです。0 または 1 アイコンと名前、2 アイコン、3 名前。</translation>
    </message>
    <message id="setting_vqMainTableToolbarIdentifierTarvikTemp14_SHOWN">
        <source></source>
        <translation>メインウィンドウのツールバーを表示します。</translation>
    </message>
    <message id="setting_QUIVA_CHECK_COMPOSITOR">
        <source></source>
        <translation>全画面表示には透明効果のあるデスクトップが必要であることを、すでに伝えたかどうかです。</translation>
    </message>
    <message id="setting_QUIVA_WINDOW_FRAME">
        <source></source>
        <translation>アニメーション表示のウィンドウの位置とサイズです。</translation>
    </message>
    <message id="graph_missing">
        <source></source>
        <translation>不明</translation>
    </message>
    <message id="graph_spoken_range">
        <source></source>
        <translation>%1～%2</translation>
    </message>
    <message id="graph_spoken_span">
        <source></source>
        <translation>%1間</translation>
    </message>
    <message id="graph_now">
        <source></source>
        <translation>現在</translation>
    </message>
    <message id="graph_seconds_ago">
        <source></source>
        <translation>−%1 秒</translation>
    </message>
    <message id="graph_minutes_ago">
        <source></source>
        <translation>−%1 分</translation>
    </message>
    <message id="menu_window_show_machine">
        <source></source>
        <translation>マシン(&amp;M)</translation>
    </message>
    <message id="help_menu_window_show_machine">
        <source></source>
        <translation>マシン全体の様子: プロセッサー、メモリ、ディスク、ネットワーク、最も忙しかったプロセス</translation>
    </message>
    <message id="fleet_error_unreachable">
        <source></source>
        <translation>サーバーに接続できません: %1。アドレスと、サーバーが動作しているかどうかを確認してください。</translation>
    </message>
    <message id="fleet_error_timed_out">
        <source></source>
        <translation>サーバーから %1 秒以内に完全な応答がありませんでした。負荷が高すぎる可能性があります。フィルターを使うか、問い合わせの間隔を長くすると軽くなります。</translation>
    </message>
    <message id="fleet_error_too_large">
        <source></source>
        <translation>サーバーの応答が %1 MiB を超えるため、読み取りませんでした。フィルターを使うと小さくなります。</translation>
    </message>
    <message id="fleet_error_certificate">
        <source></source>
        <translation>サーバーが本物であることを確認できませんでした: %1。何も送信していません。証明書に記された名前を使うか、このシステムで発行者を信頼するよう設定してください。</translation>
    </message>
    <message id="fleet_error_no_encryption">
        <source></source>
        <translation>このシステムの Qt には TLS がないため、https のアドレスに問い合わせできません。OpenSSL の部分をインストールしてください。</translation>
    </message>
    <message id="fleet_error_credentials">
        <source></source>
        <translation>サーバーは問い合わせ元の確認を求めているか、この問い合わせ元を許可していません (%1)。「サインイン…」で名前とパスワード、またはトークンを入力できます。</translation>
    </message>
    <message id="fleet_error_redirected">
        <source></source>
        <translation>サーバーはすべての問い合わせを別のサーバー %1 に転送しますが、そこには問い合わせていません。正しいアドレスであれば、そのアドレスを開いてください。</translation>
    </message>
    <message id="fleet_error_not_prometheus">
        <source></source>
        <translation>このアドレスで応答したのは Prometheus ではありません: %1。ポートとパスを確認してください。</translation>
    </message>
    <message id="fleet_error_server">
        <source></source>
        <translation>サーバーでエラーが発生しました: %1。しばらくしてから再び問い合わせます。</translation>
    </message>
    <message id="fleet_error_query">
        <source></source>
        <translation>サーバーが問い合わせを拒否しました: %1。</translation>
    </message>
    <message id="fleet_address_empty">
        <source></source>
        <translation>http://monitor:9090 のような、Prometheus サーバーのアドレスを入力してください。</translation>
    </message>
    <message id="fleet_address_has_password">
        <source></source>
        <translation>アドレスは保存され表示されるため、名前とパスワードを含めることはできません。サーバーが求めたときに入力を求めます。</translation>
    </message>
    <message id="fleet_address_wrong">
        <source></source>
        <translation>「%1」は http://monitor:9090 のようなアドレスではありません。</translation>
    </message>
    <message id="fleet_address_scheme">
        <source></source>
        <translation>サーバーへの問い合わせには「%1」ではなく http または https を使います。</translation>
    </message>
    <message id="fleet_credentials_unreadable">
        <source></source>
        <translation>%1 を読み取れません: %2。</translation>
    </message>
    <message id="fleet_credentials_open">
        <source></source>
        <translation>%1 はほかのユーザーも読み取りまたは変更できます。その権限をなくし (chmod 600)、秘密のものだった場合は新しいパスワードを使ってください。</translation>
    </message>
    <message id="fleet_credentials_no_line">
        <source></source>
        <translation>%1 は、NAME:PASSWORD またはトークンの 1 行だけのファイルではありません。</translation>
    </message>
    <message id="fleet_filter_of_processes">
        <source></source>
        <translation>「%1」は個々のプロセスだけにあり、サーバーが持つ合計にはありません。</translation>
    </message>
    <message id="fleet_filter_no_text">
        <source></source>
        <translation>「%1」は数値です。cpu&gt;50 のように比較してください。</translation>
    </message>
    <message id="fleet_filter_either">
        <source></source>
        <translation>サーバーには「a | b」のように同じ種類のテキストのどれかを問い合わせることはできますが、異なる種類の条件のどれかを問い合わせることはできません。</translation>
    </message>
    <message id="fleet_filter_two_kinds">
        <source></source>
        <translation>各グループは 1 つの種類だけに属するため、両方に当てはまるものはありません: %1。</translation>
    </message>
    <message id="fleet_filter_not_groups">
        <source></source>
        <translation>そのようなグループのないマシンを問い合わせることはできません。</translation>
    </message>
    <message id="fleet_filter_not_here">
        <source></source>
        <translation>「%1」はここでは使えません。</translation>
    </message>
    <message id="fleet_filter_one_number">
        <source></source>
        <translation>「%1」は 1 つの数値と比較します。</translation>
    </message>
    <message id="fleet_filter_order">
        <source></source>
        <translation>小数が等しくなることはほとんどないため、「%1」は &lt; または &gt; で比較します。</translation>
    </message>
    <message id="fleet_filter_too_long">
        <source></source>
        <translation>フィルターが長すぎます。</translation>
    </message>
    <message id="fleet_cpu">
        <source></source>
        <translation>CPU %</translation>
    </message>
    <message id="fleet_cpu_tip">
        <source></source>
        <translation>プロセッサーの時間に占める割合です。マシンでは全プロセッサーに対する割合、グループでは 1 つのプロセッサーに対する割合で、250 は 2 つ半分です。サーバーの直前 2 回の取得の間の値です。</translation>
    </message>
    <message id="fleet_memory">
        <source></source>
        <translation>メモリ</translation>
    </message>
    <message id="fleet_memory_tip">
        <source></source>
        <translation>マシンでは利用できないメモリの量、グループではそのプロセスの常駐メモリです。</translation>
    </message>
    <message id="fleet_memory_all">
        <source></source>
        <translation>全メモリ</translation>
    </message>
    <message id="fleet_memory_all_tip">
        <source></source>
        <translation>マシンの全メモリです。</translation>
    </message>
    <message id="fleet_swap">
        <source></source>
        <translation>スワップ</translation>
    </message>
    <message id="fleet_swap_tip">
        <source></source>
        <translation>スワップアウトされているメモリです。</translation>
    </message>
    <message id="fleet_load">
        <source></source>
        <translation>負荷</translation>
    </message>
    <message id="fleet_load_tip">
        <source></source>
        <translation>1 分間の負荷 (ロードアベレージ) です。</translation>
    </message>
    <message id="fleet_disk">
        <source></source>
        <translation>ディスク</translation>
    </message>
    <message id="fleet_disk_tip">
        <source></source>
        <translation>ディスクから読み取った量と書き込んだ量で、1 秒あたりのバイト数です。</translation>
    </message>
    <message id="fleet_network">
        <source></source>
        <translation>ネットワーク</translation>
    </message>
    <message id="fleet_network_tip">
        <source></source>
        <translation>受信した量と送信した量で、1 秒あたりのバイト数です。マシン自身との通信は含みません。</translation>
    </message>
    <message id="fleet_waits_cpu">
        <source></source>
        <translation>待ち: CPU %</translation>
    </message>
    <message id="fleet_waits_cpu_tip">
        <source></source>
        <translation>何かがプロセッサーを待っていた時間の割合です。</translation>
    </message>
    <message id="fleet_waits_memory">
        <source></source>
        <translation>待ち: メモリ %</translation>
    </message>
    <message id="fleet_waits_memory_tip">
        <source></source>
        <translation>何かがメモリを待っていた時間の割合です。</translation>
    </message>
    <message id="fleet_waits_disk">
        <source></source>
        <translation>待ち: ディスク %</translation>
    </message>
    <message id="fleet_waits_disk_tip">
        <source></source>
        <translation>何かがディスクを待っていた時間の割合です。</translation>
    </message>
    <message id="fleet_processes">
        <source></source>
        <translation>プロセス</translation>
    </message>
    <message id="fleet_processes_tip">
        <source></source>
        <translation>プロセスの数です。</translation>
    </message>
    <message id="fleet_threads">
        <source></source>
        <translation>スレッド</translation>
    </message>
    <message id="fleet_threads_tip">
        <source></source>
        <translation>スレッドの数です。</translation>
    </message>
    <message id="fleet_machines">
        <source></source>
        <translation>マシン</translation>
    </message>
    <message id="fleet_machines_tip">
        <source></source>
        <translation>このグループのプロセスがあるマシンの数です。</translation>
    </message>
    <message id="fleet_oldest">
        <source></source>
        <translation>稼働時間</translation>
    </message>
    <message id="fleet_oldest_tip">
        <source></source>
        <translation>マシン、またはグループの最も古いプロセスが開始されてからの時間です。</translation>
    </message>
    <message id="fleet_seen">
        <source></source>
        <translation>最終確認</translation>
    </message>
    <message id="fleet_seen_tip">
        <source></source>
        <translation>サーバーが最後にこのマシンから情報を得てからの時間です。サーバーが接続できないマシンは「ダウン」と示します。</translation>
    </message>
    <message id="fleet_up">
        <source></source>
        <translation>稼働</translation>
    </message>
    <message id="fleet_up_tip">
        <source></source>
        <translation>サーバーがこのマシンに接続できるかどうかです。</translation>
    </message>
    <message id="fleet_read">
        <source></source>
        <translation>読み取り</translation>
    </message>
    <message id="fleet_read_tip">
        <source></source>
        <translation>ディスクから読み取った、1 秒あたりのバイト数です。</translation>
    </message>
    <message id="fleet_written">
        <source></source>
        <translation>書き込み</translation>
    </message>
    <message id="fleet_written_tip">
        <source></source>
        <translation>ディスクに書き込んだ、1 秒あたりのバイト数です。</translation>
    </message>
    <message id="fleet_received">
        <source></source>
        <translation>受信</translation>
    </message>
    <message id="fleet_received_tip">
        <source></source>
        <translation>受信した、1 秒あたりのバイト数です。</translation>
    </message>
    <message id="fleet_sent">
        <source></source>
        <translation>送信</translation>
    </message>
    <message id="fleet_sent_tip">
        <source></source>
        <translation>送信した、1 秒あたりのバイト数です。</translation>
    </message>
    <message id="fleet_seconds">
        <source></source>
        <translation>%1 秒</translation>
    </message>
    <message id="fleet_minutes">
        <source></source>
        <translation>%1 分</translation>
    </message>
    <message id="fleet_hours">
        <source></source>
        <translation>%1 時間</translation>
    </message>
    <message id="fleet_days">
        <source></source>
        <translation>%1 日</translation>
    </message>
    <message id="graph_hours_ago">
        <source></source>
        <translation>−%1 時間</translation>
    </message>
    <message id="graph_days_ago">
        <source></source>
        <translation>−%1 日</translation>
    </message>
    <message id="fleet_title">
        <source></source>
        <translation>%1 のフリート</translation>
    </message>
    <message id="fleet_machine">
        <source></source>
        <translation>マシン</translation>
    </message>
    <message id="fleet_group">
        <source></source>
        <translation>名前</translation>
    </message>
    <message id="fleet_down">
        <source></source>
        <translation>ダウン</translation>
    </message>
    <message id="fleet_down_for">
        <source></source>
        <translation>ダウン、%1</translation>
    </message>
    <message id="fleet_show_machines">
        <source></source>
        <translation>マシン</translation>
    </message>
    <message id="fleet_show_program">
        <source></source>
        <translation>プログラム</translation>
    </message>
    <message id="fleet_show_unit">
        <source></source>
        <translation>ユニット</translation>
    </message>
    <message id="fleet_show_container">
        <source></source>
        <translation>コンテナ</translation>
    </message>
    <message id="fleet_show_user">
        <source></source>
        <translation>ユーザー</translation>
    </message>
    <message id="fleet_back">
        <source></source>
        <translation>戻る</translation>
    </message>
    <message id="fleet_back_tip">
        <source></source>
        <translation>前に見ていたもの (Alt+Left)</translation>
    </message>
    <message id="fleet_on">
        <source></source>
        <translation>%1 上</translation>
    </message>
    <message id="fleet_with">
        <source></source>
        <translation>%1 を含む</translation>
    </message>
    <message id="fleet_filter">
        <source></source>
        <translation>サーバーに問い合わせるフィルター</translation>
    </message>
    <message id="fleet_filter_tip">
        <source></source>
        <translation>プロセスの表と同じように指定します: web、name:postgres、machine:web-1、unit:nginx、user:root、cpu&gt;50、mem&gt;4G、processes&gt;100。検索はサーバーが行うため、マシンがいくつあってもかまいません。</translation>
    </message>
    <message id="fleet_interval">
        <source></source>
        <translation>サーバーに問い合わせる間隔</translation>
    </message>
    <message id="fleet_interval_never">
        <source></source>
        <translation>自動では問い合わせない</translation>
    </message>
    <message id="fleet_interval_seconds">
        <source></source>
        <translation>%1 秒ごと</translation>
    </message>
    <message id="fleet_interval_minutes">
        <source></source>
        <translation>%1 分ごと</translation>
    </message>
    <message id="fleet_sign_in">
        <source></source>
        <translation>サインイン…</translation>
    </message>
    <message id="fleet_again">
        <source></source>
        <translation>再試行</translation>
    </message>
    <message id="fleet_open_machine">
        <source></source>
        <translation>動作中のものを表示</translation>
    </message>
    <message id="fleet_open_group">
        <source></source>
        <translation>このグループのマシンを表示</translation>
    </message>
    <message id="fleet_ssh">
        <source></source>
        <translation>端末で ssh を開く</translation>
    </message>
    <message id="fleet_copy">
        <source></source>
        <translation>コピー</translation>
    </message>
    <message id="fleet_ssh_no_host">
        <source></source>
        <translation>「%1」は ssh で接続できるホストの名前ではありません。</translation>
    </message>
    <message id="fleet_ssh_no_ssh">
        <source></source>
        <translation>このマシンには ssh がありません。OpenSSH クライアントをインストールしてください。</translation>
    </message>
    <message id="fleet_ssh_no_terminal">
        <source></source>
        <translation>このマシンには既知の端末がありません。xterm などをインストールするか、変数 TERMINAL で端末を指定してください。</translation>
    </message>
    <message id="fleet_ssh_failed">
        <source></source>
        <translation>%1 を起動できません。</translation>
    </message>
    <message id="fleet_old_figures">
        <source></source>
        <translation>以下の値は %1 のものです。</translation>
    </message>
    <message id="fleet_count_machines" numerus="yes">
        <source></source>
        <translation>
            <numerusform>マシン %n 台</numerusform>
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
            <numerusform>ダウン %n 台</numerusform>
        </translation>
    </message>
    <message id="fleet_shown_most" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 の大きい %n 個を表示。ほかはフィルターで探せます</numerusform>
        </translation>
    </message>
    <message id="fleet_shown_least" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 の小さい %n 個を表示。ほかはフィルターで探せます</numerusform>
        </translation>
    </message>
    <message id="fleet_as_of">
        <source></source>
        <translation>%1 時点</translation>
    </message>
    <message id="fleet_left_out" numerus="yes">
        <source></source>
        <translation>
            <numerusform>応答のうち意味のない %n 個の値を除外</numerusform>
        </translation>
    </message>
    <message id="fleet_asking">
        <source></source>
        <translation>サーバーに問い合わせ中…</translation>
    </message>
    <message id="fleet_nothing_known">
        <source></source>
        <translation>まだ何もわかっていません。</translation>
    </message>
    <message id="fleet_nothing_fulfils">
        <source></source>
        <translation>フィルターに一致するものはありません。</translation>
    </message>
    <message id="fleet_nothing_there">
        <source></source>
        <translation>サーバーにはこの種の値がありません。サーバーがマシンのエクスポーター lurkwell-export から取得を始めると、マシンが表示されます。</translation>
    </message>
    <message id="fleet_span">
        <source></source>
        <translation>履歴:</translation>
    </message>
    <message id="fleet_span_hour">
        <source></source>
        <translation>1 時間</translation>
    </message>
    <message id="fleet_span_6_hours">
        <source></source>
        <translation>6 時間</translation>
    </message>
    <message id="fleet_span_day">
        <source></source>
        <translation>1 日</translation>
    </message>
    <message id="fleet_span_week">
        <source></source>
        <translation>7 日</translation>
    </message>
    <message id="fleet_no_row">
        <source></source>
        <translation>履歴を見るには行を選択してください。</translation>
    </message>
    <message id="fleet_no_history">
        <source></source>
        <translation>サーバーにはその期間の値がありません。</translation>
    </message>
    <message id="fleet_graph_cpu_machine">
        <source></source>
        <translation>CPU (全プロセッサー)</translation>
    </message>
    <message id="fleet_graph_cpu">
        <source></source>
        <translation>CPU (1 プロセッサー)</translation>
    </message>
    <message id="fleet_graph_waits">
        <source></source>
        <translation>待ち</translation>
    </message>
    <message id="fleet_graph_traffic">
        <source></source>
        <translation>ディスクとネットワーク</translation>
    </message>
    <message id="fleet_memory_series">
        <source></source>
        <translation>使用中</translation>
    </message>
    <message id="fleet_memory_all_series">
        <source></source>
        <translation>全体</translation>
    </message>
    <message id="fleet_swap_series">
        <source></source>
        <translation>スワップ</translation>
    </message>
    <message id="fleet_waits_cpu_series">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="fleet_waits_memory_series">
        <source></source>
        <translation>メモリ</translation>
    </message>
    <message id="fleet_waits_disk_series">
        <source></source>
        <translation>ディスク</translation>
    </message>
    <message id="fleet_read_series">
        <source></source>
        <translation>読み取り</translation>
    </message>
    <message id="fleet_written_series">
        <source></source>
        <translation>書き込み</translation>
    </message>
    <message id="fleet_received_series">
        <source></source>
        <translation>受信</translation>
    </message>
    <message id="fleet_sent_series">
        <source></source>
        <translation>送信</translation>
    </message>
    <message id="fleet_open_title">
        <source></source>
        <translation>フリートを開く</translation>
    </message>
    <message id="fleet_open_words">
        <source></source>
        <translation>マシンのエクスポーターから値を取得している Prometheus サーバーのアドレス:</translation>
    </message>
    <message id="fleet_address">
        <source></source>
        <translation>アドレス</translation>
    </message>
    <message id="fleet_sign_in_title">
        <source></source>
        <translation>%1 へのサインイン</translation>
    </message>
    <message id="fleet_sign_in_words">
        <source></source>
        <translation>名前とパスワード、トークン、またはどちらかを記したファイルを指定します。このサーバーだけに送られ、ウィンドウを閉じるまで保持されます。</translation>
    </message>
    <message id="fleet_sign_in_in_clear">
        <source></source>
        <translation>名前とパスワード、トークン、またはどちらかを記したファイルを指定します。ウィンドウを閉じるまで保持されます。このアドレスは暗号化されていないため、途中の誰でも読み取れます。https のアドレスを使うことをお勧めします。</translation>
    </message>
    <message id="fleet_sign_in_name">
        <source></source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message id="fleet_sign_in_password">
        <source></source>
        <translation>パスワード(&amp;P):</translation>
    </message>
    <message id="fleet_sign_in_token">
        <source></source>
        <translation>トークン(&amp;T):</translation>
    </message>
    <message id="fleet_sign_in_file">
        <source></source>
        <translation>ファイル(&amp;F):</translation>
    </message>
    <message id="fleet_sign_in_choose">
        <source></source>
        <translation>選択(&amp;C)…</translation>
    </message>
    <message id="fleet_sign_in_nothing">
        <source></source>
        <translation>名前、トークン、またはファイルのパスを入力してください。</translation>
    </message>
    <message id="fleet_sign_in_wrong">
        <source></source>
        <translation>送信できません。名前にコロンを、トークンに空白と ASCII 以外の文字を使うことはできません。</translation>
    </message>
    <message id="fleet_failed">
        <source></source>
        <translation>フリートを開けません</translation>
    </message>
    <message id="menu_file_open_fleet">
        <source></source>
        <translation>フリートを開く(&amp;F)…</translation>
    </message>
    <message id="help_menu_file_open_fleet">
        <source></source>
        <translation>Prometheus サーバーが把握しているすべてのマシンを、別のウィンドウで見る</translation>
    </message>
    <message id="setting_title_FLEET_WINDOW_FRAME">
        <source></source>
        <translation>フリートウィンドウの位置</translation>
    </message>
    <message id="setting_FLEET_WINDOW_FRAME">
        <source></source>
        <translation>フリートのウィンドウの最後の位置とサイズです。</translation>
    </message>
    <message id="setting_title_FLEET_WINDOW_SECONDS">
        <source></source>
        <translation>フリートウィンドウの間隔</translation>
    </message>
    <message id="setting_FLEET_WINDOW_SECONDS">
        <source></source>
        <translation>フリートのウィンドウがサーバーに再び問い合わせるまでの秒数です。0 では、指示したときだけ問い合わせます。</translation>
    </message>
    <message id="setting_title_FLEET_RECENT_ADDRESSES">
        <source></source>
        <translation>最近のフリート</translation>
    </message>
    <message id="setting_FLEET_RECENT_ADDRESSES">
        <source></source>
        <translation>最近開いたサーバーのアドレスを、新しい順に並べたものです。使えない文字はパーセントエンコードで表します。名前とパスワードは含みません。</translation>
    </message>
    <message id="machine_title">
        <source></source>
        <translation>マシン</translation>
    </message>
    <message id="machine_span">
        <source></source>
        <translation>表示する期間</translation>
    </message>
    <message id="machine_minutes">
        <source></source>
        <translation>%1 分</translation>
    </message>
    <message id="machine_processors_busy">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="machine_no_processors">
        <source></source>
        <translation>このマシンはプロセッサーの使用状況を報告しません。</translation>
    </message>
    <message id="machine_processors">
        <source></source>
        <translation>プロセッサー</translation>
    </message>
    <message id="machine_processor">
        <source></source>
        <translation>%1: %2</translation>
    </message>
    <message id="machine_memory">
        <source></source>
        <translation>メモリ</translation>
    </message>
    <message id="machine_no_memory">
        <source></source>
        <translation>このマシンはメモリを報告しません。</translation>
    </message>
    <message id="machine_swap">
        <source></source>
        <translation>スワップ</translation>
    </message>
    <message id="machine_no_swap">
        <source></source>
        <translation>このマシンにはスワップ領域がありません。</translation>
    </message>
    <message id="machine_used_of">
        <source></source>
        <translation>使用量 (全体 %1)</translation>
    </message>
    <message id="machine_disks">
        <source></source>
        <translation>ディスク</translation>
    </message>
    <message id="machine_no_disks">
        <source></source>
        <translation>ディスクの値がまだないか、ディスクがありません。</translation>
    </message>
    <message id="machine_network">
        <source></source>
        <translation>ネットワーク</translation>
    </message>
    <message id="machine_no_network">
        <source></source>
        <translation>ネットワークの値がまだないか、ネットワークがありません。</translation>
    </message>
    <message id="machine_all_devices">
        <source></source>
        <translation>すべて</translation>
    </message>
    <message id="machine_read">
        <source></source>
        <translation>読み取り</translation>
    </message>
    <message id="machine_written">
        <source></source>
        <translation>書き込み</translation>
    </message>
    <message id="machine_received">
        <source></source>
        <translation>受信</translation>
    </message>
    <message id="machine_sent">
        <source></source>
        <translation>送信</translation>
    </message>
    <message id="machine_pressure">
        <source></source>
        <translation>プレッシャー</translation>
    </message>
    <message id="machine_no_pressure">
        <source></source>
        <translation>このカーネルは、プロセスが待った時間を報告しません。</translation>
    </message>
    <message id="machine_waits_processor">
        <source></source>
        <translation>一部 CPU 待ち</translation>
    </message>
    <message id="machine_waits_memory">
        <source></source>
        <translation>一部メモリ待ち</translation>
    </message>
    <message id="machine_waits_disk">
        <source></source>
        <translation>一部ディスク待ち</translation>
    </message>
    <message id="machine_stalled_memory">
        <source></source>
        <translation>全部メモリ待ち</translation>
    </message>
    <message id="machine_stalled_disk">
        <source></source>
        <translation>全部ディスク待ち</translation>
    </message>
    <message id="machine_graphics">
        <source></source>
        <translation>グラフィックス</translation>
    </message>
    <message id="machine_no_graphics">
        <source></source>
        <translation>使用状況を報告するグラフィックスデバイスがありません。</translation>
    </message>
    <message id="machine_busiest_now">
        <source></source>
        <translation>現在最も忙しいプロセス</translation>
    </message>
    <message id="machine_busiest_at">
        <source></source>
        <translation>%1 に最も忙しかったプロセス</translation>
    </message>
    <message id="machine_back_to_now">
        <source></source>
        <translation>現在(&amp;N)</translation>
    </message>
    <message id="machine_note">
        <source></source>
        <translation>グラフをクリックするとその時点で最も忙しかったプロセスが示され、名前をクリックするとプロセスの表に示されます。</translation>
    </message>
    <message id="machine_has_ended">
        <source></source>
        <translation>プロセス %1 は終了しました。</translation>
    </message>
    <message id="machine_not_in_table">
        <source></source>
        <translation>プロセス %1 は表にありません。フィルターで隠れている可能性があります。</translation>
    </message>
    <message id="machine_ended">
        <source></source>
        <translation>%1 (終了)</translation>
    </message>
    <message id="machine_name">
        <source></source>
        <translation>名前</translation>
    </message>
    <message id="machine_pid">
        <source></source>
        <translation>プロセス ID</translation>
    </message>
    <message id="machine_cpu">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="machine_load">
        <source></source>
        <translation>負荷: %1、%2、%3 (1、5、15 分間)</translation>
    </message>
    <message id="machine_no_load">
        <source></source>
        <translation>負荷: このマシンは報告しません</translation>
    </message>
    <message id="machine_frequency">
        <source></source>
        <translation>周波数: %1 GHz (%2 ～ %3)</translation>
    </message>
    <message id="machine_no_frequency">
        <source></source>
        <translation>周波数: このマシンは報告しません</translation>
    </message>
    <message id="machine_no_temperature">
        <source></source>
        <translation>温度: このマシンは報告しません</translation>
    </message>
    <message id="machine_more_temperatures" numerus="yes">
        <source></source>
        <translation>
            <numerusform>ほか %n 個のセンサーはこれより低温</numerusform>
        </translation>
    </message>
    <message id="machine_limits">
        <source></source>
        <translation>このコンテナが使えるのは %1 です。</translation>
    </message>
    <message id="machine_limit_processors" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 個のプロセッサー</numerusform>
        </translation>
    </message>
    <message id="machine_limit_memory">
        <source></source>
        <translation>%1 のメモリ</translation>
    </message>
    <message id="machine_limit_memory_used">
        <source></source>
        <translation>%1 のメモリ (%2 使用中)</translation>
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
        <translation>トレイのアイコン</translation>
    </message>
    <message id="setting_title_ACCESSIBLE_QUIET">
        <source></source>
        <translation>スクリーンリーダー：変化を自動で読み上げない</translation>
    </message>
    <message id="setting_title_REDUCE_MOTION">
        <source></source>
        <translation>動きを減らす</translation>
    </message>
    <message id="setting_title_MACHINE_HISTORY_ALWAYS">
        <source></source>
        <translation>起動時からマシンの履歴を保持</translation>
    </message>
    <message id="setting_TRAY_ICON">
        <source></source>
        <translation>デスクトップのトレイに、プロセッサーの小さなグラフ付きのアイコンを表示します。ツールチップとメニューには、最も忙しい 3 つのプロセスが示されます。アイコンがある間は、最後のウィンドウを閉じてもプログラムは動作し続けます。</translation>
    </message>
    <message id="setting_ACCESSIBLE_QUIET">
        <source></source>
        <translation>スクリーンリーダーには移動先と尋ねたことだけが伝わり、更新による変化は伝わりません。オフの場合、フォーカスのある行は数値が変わる間、数秒ごとに読み上げ直されます。</translation>
    </message>
    <message id="setting_REDUCE_MOTION">
        <source></source>
        <translation>自動で動いたり、滑ったり、点滅したりするものがなくなります。アニメーション表示はプロセスの位置が決まると静止し、大きさはすぐに変わります。デスクトップで動きを減らす設定やアニメーションなしの設定になっている間も同じです。</translation>
    </message>
    <message id="setting_MACHINE_HISTORY_ALWAYS">
        <source></source>
        <translation>マシンの様子と最も忙しいプロセスを、プログラムの起動時から 1 時間分保持します。オフでは、マシンのウィンドウを最初に開いたときからになります。</translation>
    </message>
    <message id="setting_title_MACHINE_WINDOW_FRAME">
        <source></source>
        <translation>マシンのウィンドウ: 位置とサイズ</translation>
    </message>
    <message id="setting_MACHINE_WINDOW_FRAME">
        <source></source>
        <translation>マシンのウィンドウの位置とサイズです。</translation>
    </message>
    <message id="setting_title_MACHINE_WINDOW_MINUTES">
        <source></source>
        <translation>マシンのウィンドウ: 表示する分数</translation>
    </message>
    <message id="setting_MACHINE_WINDOW_MINUTES">
        <source></source>
        <translation>マシンのウィンドウに表示する分数です。そこで選んだ値をプログラムがここに記録します。</translation>
    </message>
    <message id="setting_title_DEFAULT_SHOW_MACHINE_WINDOW">
        <source></source>
        <translation>マシンのウィンドウを開いていたか</translation>
    </message>
    <message id="setting_DEFAULT_SHOW_MACHINE_WINDOW">
        <source></source>
        <translation>起動時にマシンのウィンドウを開きます。開いていたかどうかはプログラムがここに記録します。</translation>
    </message>
    <message id="alert_ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="helper_refused_title">
        <source></source>
        <translation>このコンピューターで Lurkwell を実行するには、管理者のパスワードによる認証が必要です。</translation>
    </message>
    <message id="helper_refused_text">
        <source></source>
        <translation>管理者の権限がなくても、Lurkwell はすべてのプロセスを表示し、自分のプロセスを操作できます。次回の起動時には確認しません。再び確認するにはステータスバーをご覧ください。</translation>
    </message>
    <message id="helper_refused_again">
        <source></source>
        <translation>再認証</translation>
    </message>
    <message id="helper_refused_quit">
        <source></source>
        <translation>Lurkwell を終了</translation>
    </message>
    <message id="helper_refused_without">
        <source></source>
        <translation>権限なしで続行</translation>
    </message>
    <message id="helper_not_wanted">
        <source></source>
        <translation>Lurkwell は管理者の権限なしで起動されました</translation>
    </message>
    <message id="helper_refused_by_user">
        <source></source>
        <translation>Lurkwell は選択のとおり、管理者の権限なしで続行しています</translation>
    </message>
    <message id="shortcut_overlay">
        <source></source>
        <translation>画面に重ねるアニメーション表示</translation>
    </message>
    <message id="notifications_no_bus">
        <source></source>
        <translation>セッションバスがありません</translation>
    </message>
    <message id="notifications_too_many">
        <source></source>
        <translation>同時に表示する数が多すぎます</translation>
    </message>
</context>
</TS>
