<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
    <context>
        <name>tarnel</name>
        <message>
            <source> GB</source>
            <translation> GB</translation>
        </message>
        <message>
            <source> GB free</source>
            <translation> GB 空き</translation>
        </message>
        <message>
            <source>%@ checksum mismatch: the server says %@, the download gives %@. The file was not placed and stays on the server; it will be downloaded again.</source>
            <translation>%@ チェックサムが一致しません: サーバーは %@、ダウンロードは %@ です。ファイルは配置されず、サーバーに残ります。再度ダウンロードされます。</translation>
        </message>
        <message>
            <source>%@ checksums</source>
            <translation>%@ チェックサム</translation>
        </message>
        <message>
            <source>%lld min ago</source>
            <translation>%lld 分前</translation>
        </message>
        <message>
            <source>%lldd ago</source>
            <translation>%lld 日前</translation>
        </message>
        <message>
            <source>%lldh ago</source>
            <translation>%lld 時間前</translation>
        </message>
        <message>
            <source>%llds ago</source>
            <translation>%lld 秒前</translation>
        </message>
        <message numerus="yes">
            <source>%n active connection(s)</source>
            <translation>
                <numerusform>%n 件の接続が有効</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s)</source>
            <translation>
                <numerusform>%n 個のファイル</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s) found</source>
            <translation>
                <numerusform>%n 個のファイルが見つかりました</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n folder(s) selected</source>
            <translation>
                <numerusform>%n 個のフォルダーを選択</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n minute(s)</source>
            <translation>
                <numerusform>%n 分</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n second(s)</source>
            <translation>
                <numerusform>%n 秒</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n waiting for stability</source>
            <translation>
                <numerusform>%n 件がサイズの安定待ち</numerusform>
            </translation>
        </message>
        <message>
            <source>' has changes that were not applied.</source>
            <translation>」に適用していない変更があります。</translation>
        </message>
        <message>
            <source>'?</source>
            <translation>」を削除しますか？</translation>
        </message>
        <message>
            <source>*.2024.*</source>
            <translation>*.2024.*</translation>
        </message>
        <message numerus="yes">
            <source>+%n more downloading...</source>
            <translation>
                <numerusform>+%n 件をダウンロード中...</numerusform>
            </translation>
        </message>
        <message>
            <source>. Do you want to continue?</source>
            <translation>」の推奨値で上書きされます。続行しますか？</translation>
        </message>
        <message numerus="yes">
            <source>...and %n more</source>
            <translation>
                <numerusform>...ほか %n 件</numerusform>
            </translation>
        </message>
        <message>
            <source>1 MB/s</source>
            <translation>1 MB/s</translation>
        </message>
        <message>
            <source>1 minute</source>
            <translation>1 分</translation>
        </message>
        <message>
            <source>10 MB/s</source>
            <translation>10 MB/s</translation>
        </message>
        <message>
            <source>128 KB/s</source>
            <translation>128 KB/s</translation>
        </message>
        <message>
            <source>15 seconds</source>
            <translation>15 秒</translation>
        </message>
        <message>
            <source>2 MB/s</source>
            <translation>2 MB/s</translation>
        </message>
        <message>
            <source>2 minutes</source>
            <translation>2 分</translation>
        </message>
        <message>
            <source>2 seconds</source>
            <translation>2 秒</translation>
        </message>
        <message>
            <source>20 MB/s</source>
            <translation>20 MB/s</translation>
        </message>
        <message>
            <source>256 KB/s</source>
            <translation>256 KB/s</translation>
        </message>
        <message>
            <source>30 seconds</source>
            <translation>30 秒</translation>
        </message>
        <message>
            <source>5 MB/s</source>
            <translation>5 MB/s</translation>
        </message>
        <message>
            <source>5 minutes</source>
            <translation>5 分</translation>
        </message>
        <message>
            <source>5 seconds</source>
            <translation>5 秒</translation>
        </message>
        <message>
            <source>50 MB/s</source>
            <translation>50 MB/s</translation>
        </message>
        <message>
            <source>512 KB/s</source>
            <translation>512 KB/s</translation>
        </message>
        <message>
            <source>ACTIVITY</source>
            <translation>アクティビティ</translation>
        </message>
        <message>
            <source>About Tarnel</source>
            <translation>Tarnel について</translation>
        </message>
        <message>
            <source>Access denied to the remote folder. Check that the path exists and you have read permission.</source>
            <translation>リモートフォルダーへのアクセスが拒否されました。パスが存在し、読み取り権限があることを確認してください。</translation>
        </message>
        <message>
            <source>Access to '%@' has expired. Please re-select the folder in Settings.</source>
            <translation>「%@」へのアクセスの期限が切れました。設定でフォルダーを選択し直してください。</translation>
        </message>
        <message>
            <source>Active</source>
            <translation>アクティブ</translation>
        </message>
        <message>
            <source>Add Connection</source>
            <translation>接続を追加</translation>
        </message>
        <message>
            <source>Add Rule</source>
            <translation>ルールを追加</translation>
        </message>
        <message>
            <source>Advanced</source>
            <translation>詳細</translation>
        </message>
        <message>
            <source>Advanced Options</source>
            <translation>詳細オプション</translation>
        </message>
        <message numerus="yes">
            <source>After %n consecutive failures</source>
            <translation>
                <numerusform>連続 %n 回失敗した後</numerusform>
            </translation>
        </message>
        <message>
            <source>Agency / Creative</source>
            <translation>代理店・クリエイティブ</translation>
        </message>
        <message>
            <source>All</source>
            <translation>すべて</translation>
        </message>
        <message>
            <source>All except temporaries (recommended)</source>
            <translation>一時ファイル以外すべて (推奨)</translation>
        </message>
        <message>
            <source>All files</source>
            <translation>すべてのファイル</translation>
        </message>
        <message>
            <source>All files (no filter)</source>
            <translation>すべてのファイル (フィルターなし)</translation>
        </message>
        <message>
            <source>All files flat (one folder)</source>
            <translation>すべてのファイルを 1 つのフォルダーに</translation>
        </message>
        <message>
            <source>All time</source>
            <translation>累計</translation>
        </message>
        <message>
            <source>Allow self-signed certificates</source>
            <translation>自己署名証明書を許可</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>適用</translation>
        </message>
        <message>
            <source>Apply preset?</source>
            <translation>プリセットを適用しますか？</translation>
        </message>
        <message>
            <source>Apply them now, or discard them?</source>
            <translation>今すぐ適用するか、破棄しますか？</translation>
        </message>
        <message>
            <source>Apply your changes?</source>
            <translation>変更を適用しますか？</translation>
        </message>
        <message>
            <source>Audiovisual</source>
            <translation>映像・音声</translation>
        </message>
        <message>
            <source>Authentication</source>
            <translation>認証</translation>
        </message>
        <message>
            <source>Authentication failed. Check your username and password.</source>
            <translation>認証に失敗しました。ユーザー名とパスワードを確認してください。</translation>
        </message>
        <message>
            <source>Auto-Rename</source>
            <translation>自動リネーム</translation>
        </message>
        <message>
            <source>Auto-decompress ZIP/GZ</source>
            <translation>ZIP/GZ を自動的に展開</translation>
        </message>
        <message>
            <source>Auto-monitor new remote folders</source>
            <translation>新しいリモートフォルダーを自動的に監視</translation>
        </message>
        <message>
            <source>Behavior</source>
            <translation>動作</translation>
        </message>
        <message>
            <source>Browse...</source>
            <translation>参照...</translation>
        </message>
        <message>
            <source>CONNECTIONS</source>
            <translation>接続</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
        <message>
            <source>Cannot connect to port %lld</source>
            <translation>ポート %lld に接続できません</translation>
        </message>
        <message>
            <source>Cannot write to '%@'. Check the folder's permissions in the file manager.</source>
            <translation>「%@」に書き込めません。ファイルマネージャーでフォルダーのアクセス権を確認してください。</translation>
        </message>
        <message>
            <source>Cellular</source>
            <translation>モバイル回線</translation>
        </message>
        <message>
            <source>Changes applied</source>
            <translation>変更を適用しました</translation>
        </message>
        <message>
            <source>Checksum and listing</source>
            <translation>チェックサムと一覧</translation>
        </message>
        <message>
            <source>Choose...</source>
            <translation>選択...</translation>
        </message>
        <message>
            <source>Clear</source>
            <translation>クリア</translation>
        </message>
        <message>
            <source>Clear All</source>
            <translation>すべてクリア</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>色</translation>
        </message>
        <message>
            <source>Comma-separated extensions. Example: jpg, pdf, raw, cr3</source>
            <translation>拡張子をカンマで区切って入力します。例: jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>Command or script</source>
            <translation>コマンドまたはスクリプト</translation>
        </message>
        <message>
            <source>Connect automatically when Tarnel starts</source>
            <translation>Tarnel の起動時に自動的に接続</translation>
        </message>
        <message>
            <source>Connected</source>
            <translation>接続済み</translation>
        </message>
        <message>
            <source>Connection</source>
            <translation>接続</translation>
        </message>
        <message>
            <source>Connection error (code %lld)%@. Check your connection settings.</source>
            <translation>接続エラー (コード %lld)%@。接続設定を確認してください。</translation>
        </message>
        <message>
            <source>Connection failed: </source>
            <translation>接続に失敗しました: </translation>
        </message>
        <message>
            <source>Connection successful</source>
            <translation>接続に成功しました</translation>
        </message>
        <message>
            <source>Connection timed out. The server is too slow or unreachable. Try increasing the timeout or check your network.</source>
            <translation>接続がタイムアウトしました。サーバーが遅すぎるか到達できません。タイムアウトを延ばすか、ネットワークを確認してください。</translation>
        </message>
        <message>
            <source>Connections</source>
            <translation>接続</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>続行</translation>
        </message>
        <message>
            <source>Copy All</source>
            <translation>すべてコピー</translation>
        </message>
        <message>
            <source>Copy mode: files stay on the server.</source>
            <translation>コピーモード: ファイルはサーバーに残ります。</translation>
        </message>
        <message>
            <source>Could not connect to server. Check the host, port, and that the server is running.</source>
            <translation>サーバーに接続できませんでした。ホスト、ポート、サーバーが動作していることを確認してください。</translation>
        </message>
        <message>
            <source>Could not resolve host. Check that the hostname is correct and your DNS is working.</source>
            <translation>ホスト名を解決できませんでした。ホスト名が正しいこと、DNS が動作していることを確認してください。</translation>
        </message>
        <message>
            <source>Create subfolder per connection</source>
            <translation>接続ごとにサブフォルダーを作成</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>カスタム</translation>
        </message>
        <message>
            <source>Custom mapping per folder</source>
            <translation>フォルダーごとのカスタム対応付け</translation>
        </message>
        <message>
            <source>Custom pattern (glob)</source>
            <translation>カスタムパターン (glob)</translation>
        </message>
        <message>
            <source>DNS resolution</source>
            <translation>DNS 解決</translation>
        </message>
        <message>
            <source>Data &amp; Analytics</source>
            <translation>データ・分析</translation>
        </message>
        <message>
            <source>Data / Analytics</source>
            <translation>データ・分析</translation>
        </message>
        <message>
            <source>Days</source>
            <translation>曜日</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>削除</translation>
        </message>
        <message>
            <source>Delete '</source>
            <translation>「</translation>
        </message>
        <message>
            <source>Delete empty remote folders</source>
            <translation>空のリモートフォルダーを削除</translation>
        </message>
        <message>
            <source>Delete failed: %@</source>
            <translation>削除に失敗しました: %@</translation>
        </message>
        <message>
            <source>Delete files from FTP after download</source>
            <translation>ダウンロード後に FTP からファイルを削除</translation>
        </message>
        <message>
            <source>Delete this connection?</source>
            <translation>この接続を削除しますか？</translation>
        </message>
        <message>
            <source>Deselect All</source>
            <translation>すべて選択解除</translation>
        </message>
        <message>
            <source>Destination</source>
            <translation>保存先</translation>
        </message>
        <message>
            <source>Destination Folder</source>
            <translation>保存先フォルダー</translation>
        </message>
        <message>
            <source>Disable SSL verification. Only enable if your server uses a self-signed or expired certificate.</source>
            <translation>SSL の検証を無効にします。サーバーが自己署名または期限切れの証明書を使う場合のみ有効にしてください。</translation>
        </message>
        <message>
            <source>Disable connection</source>
            <translation>接続を無効にする</translation>
        </message>
        <message>
            <source>Disabled</source>
            <translation>無効</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>破棄</translation>
        </message>
        <message>
            <source>Disk Space</source>
            <translation>ディスク容量</translation>
        </message>
        <message>
            <source>Download Notifications</source>
            <translation>ダウンロードの通知</translation>
        </message>
        <message>
            <source>Download failed: %@</source>
            <translation>ダウンロードに失敗しました: %@</translation>
        </message>
        <message>
            <source>Downloaded file '%@' is empty. The remote file may be corrupted or still being written.</source>
            <translation>ダウンロードしたファイル「%@」が空です。リモートのファイルが壊れているか、まだ書き込み中の可能性があります。</translation>
        </message>
        <message>
            <source>E-commerce</source>
            <translation>EC・通販</translation>
        </message>
        <message>
            <source>E-commerce / Data</source>
            <translation>EC・データ</translation>
        </message>
        <message>
            <source>Enable connection</source>
            <translation>接続を有効にする</translation>
        </message>
        <message>
            <source>Enabled</source>
            <translation>有効</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>エラー</translation>
        </message>
        <message>
            <source>Error Notifications</source>
            <translation>エラーの通知</translation>
        </message>
        <message>
            <source>Error: </source>
            <translation>エラー: </translation>
        </message>
        <message>
            <source>Example: </source>
            <translation>例: </translation>
        </message>
        <message>
            <source>Extension preset</source>
            <translation>拡張子プリセット</translation>
        </message>
        <message>
            <source>FTP Mode</source>
            <translation>FTP モード</translation>
        </message>
        <message>
            <source>FTP does not encrypt data. For medical records, SFTP is strongly recommended.</source>
            <translation>FTP はデータを暗号化しません。医療記録には SFTP を強くお勧めします。</translation>
        </message>
        <message>
            <source>FTP quote command failed. Check the remote path or delete permissions.</source>
            <translation>FTP コマンドに失敗しました。リモートパスまたは削除権限を確認してください。</translation>
        </message>
        <message>
            <source>File</source>
            <translation>ファイル</translation>
        </message>
        <message>
            <source>File type</source>
            <translation>ファイルの種類</translation>
        </message>
        <message>
            <source>Filename contains</source>
            <translation>ファイル名に含む</translation>
        </message>
        <message>
            <source>Filename starts with</source>
            <translation>ファイル名の先頭</translation>
        </message>
        <message>
            <source>Filters</source>
            <translation>フィルター</translation>
        </message>
        <message>
            <source>Finance</source>
            <translation>金融</translation>
        </message>
        <message>
            <source>Finance / Accounting</source>
            <translation>金融・会計</translation>
        </message>
        <message>
            <source>Folder error</source>
            <translation>フォルダーエラー</translation>
        </message>
        <message>
            <source>Folder not accessible: %@</source>
            <translation>フォルダーにアクセスできません: %@</translation>
        </message>
        <message>
            <source>From </source>
            <translation>開始 </translation>
        </message>
        <message>
            <source>General</source>
            <translation>一般</translation>
        </message>
        <message>
            <source>Group notifications (summary instead of file list)</source>
            <translation>通知をまとめる (ファイル一覧の代わりに概要)</translation>
        </message>
        <message>
            <source>Health</source>
            <translation>医療</translation>
        </message>
        <message>
            <source>Health / Compliance</source>
            <translation>医療・コンプライアンス</translation>
        </message>
        <message>
            <source>History...</source>
            <translation>履歴...</translation>
        </message>
        <message>
            <source>Host</source>
            <translation>ホスト</translation>
        </message>
        <message>
            <source>Host '%@' not found</source>
            <translation>ホスト「%@」が見つかりません</translation>
        </message>
        <message>
            <source>IT &amp; Integrations</source>
            <translation>IT・連携</translation>
        </message>
        <message>
            <source>IT / Integrations</source>
            <translation>IT・連携</translation>
        </message>
        <message>
            <source>If No Rule Matches</source>
            <translation>どのルールにも一致しない場合</translation>
        </message>
        <message>
            <source>If the computer sleeps anyway (battery, lid close), transfers will pause and resume automatically on wake.</source>
            <translation>それでもコンピューターがスリープした場合 (バッテリー、蓋を閉じたときなど)、転送は一時停止し、復帰時に自動的に再開します。</translation>
        </message>
        <message>
            <source>Ignore (don't download)</source>
            <translation>無視 (ダウンロードしない)</translation>
        </message>
        <message>
            <source>Includes files from all subfolders on the server. Can be slow with large servers.</source>
            <translation>サーバー上のすべてのサブフォルダーのファイルを含めます。大きなサーバーでは遅くなることがあります。</translation>
        </message>
        <message>
            <source>Interrupted downloads resume automatically. Set to 0 to disable.</source>
            <translation>中断したダウンロードは自動的に再開します。0 にすると無効になります。</translation>
        </message>
        <message>
            <source>LIST listings</source>
            <translation>LIST による一覧</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>言語</translation>
        </message>
        <message>
            <source>Last activity: </source>
            <translation>最終アクティビティ: </translation>
        </message>
        <message>
            <source>Launch Tarnel when you log in</source>
            <translation>ログイン時に Tarnel を起動</translation>
        </message>
        <message>
            <source>Listing folders...</source>
            <translation>フォルダーを取得中...</translation>
        </message>
        <message>
            <source>Local Folder</source>
            <translation>ローカルフォルダー</translation>
        </message>
        <message>
            <source>Log Folder</source>
            <translation>ログフォルダー</translation>
        </message>
        <message>
            <source>Log...</source>
            <translation>ログ...</translation>
        </message>
        <message>
            <source>Low disk</source>
            <translation>ディスク不足</translation>
        </message>
        <message>
            <source>MLSD listings</source>
            <translation>MLSD による一覧</translation>
        </message>
        <message>
            <source>Made by the Tarnel developers.</source>
            <translation>Tarnel の開発者が作成しました。</translation>
        </message>
        <message>
            <source>Main folder</source>
            <translation>メインフォルダー</translation>
        </message>
        <message>
            <source>Manual</source>
            <translation>手動</translation>
        </message>
        <message>
            <source>Match</source>
            <translation>条件</translation>
        </message>
        <message>
            <source>Matches any file whose name contains this text</source>
            <translation>名前にこの文字列を含むすべてのファイルに一致</translation>
        </message>
        <message>
            <source>Matches any file whose name starts with this text</source>
            <translation>名前がこの文字列で始まるすべてのファイルに一致</translation>
        </message>
        <message>
            <source>Max depth: </source>
            <translation>最大階層: </translation>
        </message>
        <message>
            <source>Max download speed</source>
            <translation>最大ダウンロード速度</translation>
        </message>
        <message>
            <source>Max resume attempts: </source>
            <translation>再開の最大試行回数: </translation>
        </message>
        <message>
            <source>Max retries: </source>
            <translation>最大再試行回数: </translation>
        </message>
        <message>
            <source>Min file size: </source>
            <translation>最小ファイルサイズ: </translation>
        </message>
        <message>
            <source>Minimum free space</source>
            <translation>最低空き容量</translation>
        </message>
        <message>
            <source>Mirror remote structure</source>
            <translation>リモートの構造を再現</translation>
        </message>
        <message>
            <source>Monitoring — no transfers in progress</source>
            <translation>監視中 — 実行中の転送はありません</translation>
        </message>
        <message>
            <source>Move mode: files are removed from the server.</source>
            <translation>移動モード: ファイルはサーバーから削除されます。</translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>ミュート</translation>
        </message>
        <message>
            <source>My Camera FTP</source>
            <translation>カメラの FTP</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>名前</translation>
        </message>
        <message>
            <source>Network</source>
            <translation>ネットワーク</translation>
        </message>
        <message>
            <source>New Connection</source>
            <translation>新しい接続</translation>
        </message>
        <message>
            <source>No checksum: files are verified by size</source>
            <translation>チェックサムなし: ファイルはサイズで検証されます</translation>
        </message>
        <message>
            <source>No connections</source>
            <translation>接続がありません</translation>
        </message>
        <message>
            <source>No connections configured</source>
            <translation>接続が設定されていません</translation>
        </message>
        <message>
            <source>No log entries yet.</source>
            <translation>ログはまだありません。</translation>
        </message>
        <message>
            <source>No minimum</source>
            <translation>最小なし</translation>
        </message>
        <message>
            <source>No network</source>
            <translation>ネットワークなし</translation>
        </message>
        <message>
            <source>No recent downloads</source>
            <translation>最近のダウンロードはありません</translation>
        </message>
        <message>
            <source>No rename — original filename is kept</source>
            <translation>リネームしない — 元のファイル名を使います</translation>
        </message>
        <message>
            <source>No rules — all files go to the main folder</source>
            <translation>ルールなし — すべてのファイルはメインフォルダーへ</translation>
        </message>
        <message>
            <source>No subdirectories found</source>
            <translation>サブフォルダーが見つかりません</translation>
        </message>
        <message>
            <source>No transfer history.</source>
            <translation>転送履歴はありません。</translation>
        </message>
        <message>
            <source>None</source>
            <translation>なし</translation>
        </message>
        <message>
            <source>Not selected</source>
            <translation>未選択</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>通知</translation>
        </message>
        <message>
            <source>Notify on connection errors</source>
            <translation>接続エラーを通知</translation>
        </message>
        <message>
            <source>Notify when connections pause/resume by schedule</source>
            <translation>スケジュールによる接続の一時停止・再開を通知</translation>
        </message>
        <message>
            <source>Notify when downloads complete</source>
            <translation>ダウンロード完了時に通知</translation>
        </message>
        <message>
            <source>Offline</source>
            <translation>オフライン</translation>
        </message>
        <message>
            <source>Only %@ GB of disk space remaining. Free up space to continue downloading.</source>
            <translation>ディスクの空き容量が残り %@ GB です。ダウンロードを続けるには空き容量を増やしてください。</translation>
        </message>
        <message numerus="yes">
            <source>Only if %n or more files</source>
            <translation>
                <numerusform>ファイルが %n 個以上の場合のみ</numerusform>
            </translation>
        </message>
        <message>
            <source>Only last folder level</source>
            <translation>最後のフォルダー階層のみ</translation>
        </message>
        <message>
            <source>Open Tarnel</source>
            <translation>Tarnel を開く</translation>
        </message>
        <message>
            <source>Open destination folder</source>
            <translation>保存先フォルダーを開く</translation>
        </message>
        <message>
            <source>Open destination folders</source>
            <translation>保存先フォルダーを開く</translation>
        </message>
        <message>
            <source>Open main folder</source>
            <translation>メインフォルダーを開く</translation>
        </message>
        <message>
            <source>Optional tag name</source>
            <translation>タグ名 (任意)</translation>
        </message>
        <message>
            <source>Organization</source>
            <translation>整理</translation>
        </message>
        <message>
            <source>Organize by date (YYYY/MM/DD)</source>
            <translation>日付で整理 (YYYY/MM/DD)</translation>
        </message>
        <message>
            <source>Organize downloads</source>
            <translation>ダウンロードを整理</translation>
        </message>
        <message>
            <source>Other files</source>
            <translation>その他のファイル</translation>
        </message>
        <message>
            <source>Parse error: %@</source>
            <translation>解析エラー: %@</translation>
        </message>
        <message>
            <source>Partial file received. The transfer was interrupted. It will retry automatically.</source>
            <translation>ファイルを一部しか受信できませんでした。転送が中断されました。自動的に再試行します。</translation>
        </message>
        <message>
            <source>Passive (recommended)</source>
            <translation>パッシブ (推奨)</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>パスワード</translation>
        </message>
        <message>
            <source>Pattern (empty = no rename)</source>
            <translation>パターン (空欄 = リネームしない)</translation>
        </message>
        <message>
            <source>Pattern:</source>
            <translation>パターン:</translation>
        </message>
        <message>
            <source>Pause</source>
            <translation>一時停止</translation>
        </message>
        <message>
            <source>Pause and resume on wake</source>
            <translation>復帰時に一時停止と再開</translation>
        </message>
        <message>
            <source>Pause when internet is unavailable</source>
            <translation>インターネットが使えないときは一時停止</translation>
        </message>
        <message>
            <source>Pause when on mobile hotspot</source>
            <translation>モバイルホットスポットでは一時停止</translation>
        </message>
        <message>
            <source>Paused</source>
            <translation>一時停止中</translation>
        </message>
        <message>
            <source>Paused — low disk space</source>
            <translation>一時停止中 — ディスクの空き容量不足</translation>
        </message>
        <message>
            <source>Paused — mobile hotspot detected</source>
            <translation>一時停止中 — モバイルホットスポットを検出</translation>
        </message>
        <message>
            <source>Paused — no internet connection</source>
            <translation>一時停止中 — インターネット接続なし</translation>
        </message>
        <message>
            <source>Photography</source>
            <translation>写真</translation>
        </message>
        <message>
            <source>Photos only</source>
            <translation>写真のみ</translation>
        </message>
        <message>
            <source>Play sound on download</source>
            <translation>ダウンロード時にサウンドを再生</translation>
        </message>
        <message>
            <source>Polling Interval</source>
            <translation>確認間隔</translation>
        </message>
        <message>
            <source>Port</source>
            <translation>ポート</translation>
        </message>
        <message>
            <source>Port must be between 1 and 65535</source>
            <translation>ポートは 1 から 65535 の間で指定してください</translation>
        </message>
        <message>
            <source>Preset</source>
            <translation>プリセット</translation>
        </message>
        <message>
            <source>Press "Browse..." to list the server's folders.</source>
            <translation>「参照...」を押すとサーバーのフォルダーを一覧表示します。</translation>
        </message>
        <message>
            <source>Prevent sleep during downloads</source>
            <translation>ダウンロード中はスリープしない</translation>
        </message>
        <message>
            <source>Preventing sleep — downloading</source>
            <translation>スリープを抑止中 — ダウンロード中</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>プレビュー</translation>
        </message>
        <message>
            <source>Preview:</source>
            <translation>プレビュー:</translation>
        </message>
        <message>
            <source>Print &amp; Graphics</source>
            <translation>印刷・グラフィック</translation>
        </message>
        <message>
            <source>Print / Graphics</source>
            <translation>印刷・グラフィック</translation>
        </message>
        <message>
            <source>Protocol</source>
            <translation>プロトコル</translation>
        </message>
        <message>
            <source>Quit</source>
            <translation>終了</translation>
        </message>
        <message>
            <source>RECENT</source>
            <translation>最近</translation>
        </message>
        <message>
            <source>Re-select folder to grant persistent access</source>
            <translation>フォルダーを選択し直して永続的なアクセスを許可してください</translation>
        </message>
        <message>
            <source>Read Me</source>
            <translation>お読みください</translation>
        </message>
        <message>
            <source>Recommended for critical transfers. May double download time.</source>
            <translation>重要な転送にお勧めします。ダウンロード時間が 2 倍になることがあります。</translation>
        </message>
        <message>
            <source>Remote Folder</source>
            <translation>リモートフォルダー</translation>
        </message>
        <message>
            <source>Remote Subdirectories</source>
            <translation>リモートのサブフォルダー</translation>
        </message>
        <message>
            <source>Remote folder access</source>
            <translation>リモートフォルダーへのアクセス</translation>
        </message>
        <message>
            <source>Remote path</source>
            <translation>リモートパス</translation>
        </message>
        <message>
            <source>Remote path contains a control character</source>
            <translation>リモートパスに制御文字が含まれています</translation>
        </message>
        <message>
            <source>Research / Science</source>
            <translation>研究・科学</translation>
        </message>
        <message>
            <source>Restart Tarnel to apply the language change.</source>
            <translation>言語の変更を反映するには Tarnel を再起動してください。</translation>
        </message>
        <message>
            <source>Resume</source>
            <translation>再開</translation>
        </message>
        <message>
            <source>Retry Failed</source>
            <translation>再試行失敗</translation>
        </message>
        <message>
            <source>Retrying (%lld/%lld)...</source>
            <translation>再試行中 (%lld/%lld)...</translation>
        </message>
        <message>
            <source>Routing Rule</source>
            <translation>振り分けルール</translation>
        </message>
        <message>
            <source>Routing Rules</source>
            <translation>振り分けルール</translation>
        </message>
        <message>
            <source>Rule enabled</source>
            <translation>ルールを有効にする</translation>
        </message>
        <message>
            <source>Run post-download action</source>
            <translation>ダウンロード後のアクションを実行</translation>
        </message>
        <message>
            <source>SSH Key Path</source>
            <translation>SSH 鍵のパス</translation>
        </message>
        <message>
            <source>SSL certificate verification failed. The server certificate may be self-signed or expired.</source>
            <translation>SSL 証明書の検証に失敗しました。サーバー証明書が自己署名か期限切れの可能性があります。</translation>
        </message>
        <message>
            <source>SSL/TLS handshake failed. The server may not support FTPS, or the certificate is invalid.</source>
            <translation>SSL/TLS ハンドシェイクに失敗しました。サーバーが FTPS に対応していないか、証明書が無効です。</translation>
        </message>
        <message>
            <source>STATISTICS</source>
            <translation>統計</translation>
        </message>
        <message>
            <source>STOCK_</source>
            <translation>STOCK_</translation>
        </message>
        <message>
            <source>Same as main folder</source>
            <translation>メインフォルダーと同じ</translation>
        </message>
        <message>
            <source>Save Rule</source>
            <translation>ルールを保存</translation>
        </message>
        <message>
            <source>Save to main folder</source>
            <translation>メインフォルダーに保存</translation>
        </message>
        <message>
            <source>Save to specific folder</source>
            <translation>指定したフォルダーに保存</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>スケジュール</translation>
        </message>
        <message>
            <source>Schedule Notifications</source>
            <translation>スケジュールの通知</translation>
        </message>
        <message>
            <source>Scheduled </source>
            <translation>スケジュール </translation>
        </message>
        <message>
            <source>Search...</source>
            <translation>検索...</translation>
        </message>
        <message>
            <source>Sector preset</source>
            <translation>業種プリセット</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>すべて選択</translation>
        </message>
        <message>
            <source>Select SSH key (optional)</source>
            <translation>SSH 鍵を選択 (任意)</translation>
        </message>
        <message>
            <source>Select a connection or add a new one.</source>
            <translation>接続を選択するか、新しく追加してください。</translation>
        </message>
        <message>
            <source>Settings...</source>
            <translation>設定...</translation>
        </message>
        <message>
            <source>Simultaneous downloads: </source>
            <translation>同時ダウンロード数: </translation>
        </message>
        <message>
            <source>Size</source>
            <translation>サイズ</translation>
        </message>
        <message>
            <source>Size mismatch: expected %@, got %@. The file may still be uploading.</source>
            <translation>サイズが一致しません: 期待値 %@、受信 %@。ファイルはまだアップロード中の可能性があります。</translation>
        </message>
        <message>
            <source>Sleep Behavior</source>
            <translation>スリープ</translation>
        </message>
        <message>
            <source>Sleep is only prevented while files are actively downloading. Normal sleep resumes when idle.</source>
            <translation>スリープを抑止するのはファイルのダウンロード中だけです。アイドル時は通常どおりスリープします。</translation>
        </message>
        <message>
            <source>Sleep prevention enabled</source>
            <translation>スリープ抑止が有効</translation>
        </message>
        <message>
            <source>Sound</source>
            <translation>サウンド</translation>
        </message>
        <message>
            <source>Stability checks: </source>
            <translation>安定確認の回数: </translation>
        </message>
        <message>
            <source>Startup</source>
            <translation>起動</translation>
        </message>
        <message>
            <source>Status</source>
            <translation>状態</translation>
        </message>
        <message>
            <source>Stopped</source>
            <translation>停止</translation>
        </message>
        <message>
            <source>Success</source>
            <translation>成功</translation>
        </message>
        <message>
            <source>Sync &amp; Transfer</source>
            <translation>同期と転送</translation>
        </message>
        <message>
            <source>Sync Log</source>
            <translation>同期ログ</translation>
        </message>
        <message>
            <source>Sync Now</source>
            <translation>今すぐ同期</translation>
        </message>
        <message>
            <source>Sync every </source>
            <translation>同期間隔: </translation>
        </message>
        <message>
            <source>Sync only during scheduled hours</source>
            <translation>スケジュールした時間帯だけ同期</translation>
        </message>
        <message>
            <source>Sync subfolders recursively</source>
            <translation>サブフォルダーも再帰的に同期</translation>
        </message>
        <message>
            <source>Syncing...</source>
            <translation>同期中...</translation>
        </message>
        <message>
            <source>System default</source>
            <translation>システムの既定</translation>
        </message>
        <message>
            <source>TCP connection</source>
            <translation>TCP 接続</translation>
        </message>
        <message>
            <source>Tags</source>
            <translation>タグ</translation>
        </message>
        <message>
            <source>Tarnel %1 (build %2)</source>
            <translation>Tarnel %1 (ビルド %2)</translation>
        </message>
        <message>
            <source>Tarnel History</source>
            <translation>Tarnel の履歴</translation>
        </message>
        <message>
            <source>Tarnel Log</source>
            <translation>Tarnel のログ</translation>
        </message>
        <message>
            <source>Tarnel Settings</source>
            <translation>Tarnel の設定</translation>
        </message>
        <message>
            <source>Tarnel keeps running in the background when you close this window. To open it again, launch Tarnel from the applications menu.</source>
            <translation>このウィンドウを閉じても Tarnel はバックグラウンドで動作し続けます。再び開くには、アプリケーションメニューから Tarnel を起動してください。</translation>
        </message>
        <message numerus="yes">
            <source>Tarnel: %n file(s) downloaded</source>
            <translation>
                <numerusform>Tarnel: %n 個のファイルをダウンロードしました</numerusform>
            </translation>
        </message>
        <message>
            <source>Tarnel: Connection error</source>
            <translation>Tarnel: 接続エラー</translation>
        </message>
        <message>
            <source>Tarnel: Local folder problem</source>
            <translation>Tarnel: ローカルフォルダーの問題</translation>
        </message>
        <message>
            <source>Tarnel: New folder detected</source>
            <translation>Tarnel: 新しいフォルダーを検出</translation>
        </message>
        <message>
            <source>Tarnel: Transfer failed</source>
            <translation>Tarnel: 転送に失敗しました</translation>
        </message>
        <message>
            <source>Test Connection</source>
            <translation>接続をテスト</translation>
        </message>
        <message>
            <source>Text tag</source>
            <translation>テキストタグ</translation>
        </message>
        <message>
            <source>The SFTP server's host key has changed since the last connection to %@. This can mean someone is intercepting the connection. If the change is expected (the server was reinstalled or its key replaced), remove the line for %@ from %@ and connect again.</source>
            <translation>SFTP サーバーのホスト鍵が、前回 %@ に接続したときから変わっています。誰かが接続を傍受している可能性があります。変更が想定どおりの場合 (サーバーの再インストールや鍵の交換)、%@ の行を %@ から削除して接続し直してください。</translation>
        </message>
        <message>
            <source>The connection '</source>
            <translation>接続「</translation>
        </message>
        <message>
            <source>This action cannot be undone.</source>
            <translation>この操作は取り消せません。</translation>
        </message>
        <message>
            <source>This will overwrite the current configuration with the recommended values for </source>
            <translation>現在の設定は「</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>日時</translation>
        </message>
        <message>
            <source>To </source>
            <translation>終了 </translation>
        </message>
        <message>
            <source>Today</source>
            <translation>今日</translation>
        </message>
        <message>
            <source>Transfer History</source>
            <translation>転送履歴</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>種類</translation>
        </message>
        <message>
            <source>Unix glob pattern: * matches any characters, ? matches one character</source>
            <translation>Unix の glob パターン: * は任意の文字列、? は任意の 1 文字に一致</translation>
        </message>
        <message>
            <source>Unlimited</source>
            <translation>無制限</translation>
        </message>
        <message>
            <source>Unmute</source>
            <translation>ミュート解除</translation>
        </message>
        <message>
            <source>Upload/store failed. The server rejected the operation. Check write permissions on the server.</source>
            <translation>アップロード/保存に失敗しました。サーバーが操作を拒否しました。サーバーの書き込み権限を確認してください。</translation>
        </message>
        <message>
            <source>Username</source>
            <translation>ユーザー名</translation>
        </message>
        <message>
            <source>Variables: {original}, {date}, {time}, {counter}, {host}</source>
            <translation>変数: {original}, {date}, {time}, {counter}, {host}</translation>
        </message>
        <message>
            <source>Verify checksum (MD5)</source>
            <translation>チェックサムを検証 (MD5)</translation>
        </message>
        <message>
            <source>Video</source>
            <translation>ビデオ</translation>
        </message>
        <message>
            <source>Video only</source>
            <translation>ビデオのみ</translation>
        </message>
        <message>
            <source>Waiting...</source>
            <translation>待機中...</translation>
        </message>
        <message>
            <source>Warn and pause if disk space is low</source>
            <translation>ディスクの空き容量が少ないときは警告して一時停止</translation>
        </message>
        <message>
            <source>Wrong username or password</source>
            <translation>ユーザー名またはパスワードが違います</translation>
        </message>
        <message>
            <source>dead.rule.warning</source>
            <translation>使われません: 前のルールがこれらのファイルをすでに受け取ります</translation>
        </message>
        <message>
            <source>ext.cat.audio</source>
            <translation>オーディオ</translation>
        </message>
        <message>
            <source>ext.cat.documents</source>
            <translation>書類</translation>
        </message>
        <message>
            <source>ext.cat.images</source>
            <translation>画像</translation>
        </message>
        <message>
            <source>ext.cat.temp</source>
            <translation>一時ファイル</translation>
        </message>
        <message>
            <source>ext.cat.video</source>
            <translation>ビデオ</translation>
        </message>
        <message>
            <source>ext.reset.button</source>
            <translation>プリセットに戻す</translation>
        </message>
        <message>
            <source>ext.unspecified.download</source>
            <translation>ダウンロードする</translation>
        </message>
        <message>
            <source>ext.unspecified.ignore</source>
            <translation>無視する</translation>
        </message>
        <message>
            <source>ext.unspecified.label</source>
            <translation>その他の拡張子</translation>
        </message>
        <message numerus="yes">
            <source>failed after %n attempts</source>
            <translation>
                <numerusform>は %n 回試行しても失敗しました</numerusform>
            </translation>
        </message>
        <message>
            <source>growing...</source>
            <translation>増加中...</translation>
        </message>
        <message>
            <source>invoice</source>
            <translation>請求書</translation>
        </message>
        <message>
            <source>jpg, pdf, raw, cr3</source>
            <translation>jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>just now</source>
            <translation>たった今</translation>
        </message>
    </context>
</TS>
