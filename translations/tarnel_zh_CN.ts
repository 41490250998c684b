<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
    <context>
        <name>tarnel</name>
        <message>
            <source> GB</source>
            <translation> GB</translation>
        </message>
        <message>
            <source> GB free</source>
            <translation> GB 可用</translation>
        </message>
        <message>
            <source>%@ checksum mismatch: the server says %@, the download gives %@. The file was not placed and stays on the server; it will be downloaded again.</source>
            <translation>%@ 校验和不匹配：服务器为 %@，下载结果为 %@。文件未放置，仍保留在服务器上；将重新下载。</translation>
        </message>
        <message>
            <source>%@ checksums</source>
            <translation>%@ 校验和</translation>
        </message>
        <message>
            <source>%lld min ago</source>
            <translation>%lld 分钟前</translation>
        </message>
        <message>
            <source>%lldd ago</source>
            <translation>%lld 天前</translation>
        </message>
        <message>
            <source>%lldh ago</source>
            <translation>%lld 小时前</translation>
        </message>
        <message>
            <source>%llds ago</source>
            <translation>%lld 秒前</translation>
        </message>
        <message numerus="yes">
            <source>%n active connection(s)</source>
            <translation>
                <numerusform>%n 个活动连接</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s)</source>
            <translation>
                <numerusform>%n 个文件</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s) found</source>
            <translation>
                <numerusform>找到 %n 个文件</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n folder(s) selected</source>
            <translation>
                <numerusform>%n 个文件夹已选中</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n minute(s)</source>
            <translation>
                <numerusform>%n 分钟</numerusform>
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
                <numerusform>%n 个等待大小稳定</numerusform>
            </translation>
        </message>
        <message>
            <source>' has changes that were not applied.</source>
            <translation>”有尚未应用的更改。</translation>
        </message>
        <message>
            <source>'?</source>
            <translation>”吗？</translation>
        </message>
        <message>
            <source>*.2024.*</source>
            <translation>*.2024.*</translation>
        </message>
        <message numerus="yes">
            <source>+%n more downloading...</source>
            <translation>
                <numerusform>+%n 个正在下载...</numerusform>
            </translation>
        </message>
        <message>
            <source>. Do you want to continue?</source>
            <translation>”的推荐值覆盖。要继续吗？</translation>
        </message>
        <message numerus="yes">
            <source>...and %n more</source>
            <translation>
                <numerusform>...以及另外 %n 个</numerusform>
            </translation>
        </message>
        <message>
            <source>1 MB/s</source>
            <translation>1 MB/s</translation>
        </message>
        <message>
            <source>1 minute</source>
            <translation>1 分钟</translation>
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
            <translation>2 分钟</translation>
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
            <translation>5 分钟</translation>
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
            <translation>活动</translation>
        </message>
        <message>
            <source>About Tarnel</source>
            <translation>关于 Tarnel</translation>
        </message>
        <message>
            <source>Access denied to the remote folder. Check that the path exists and you have read permission.</source>
            <translation>拒绝访问远程文件夹。请检查路径是否存在以及您是否有读取权限。</translation>
        </message>
        <message>
            <source>Access to '%@' has expired. Please re-select the folder in Settings.</source>
            <translation>对“%@”的访问已过期。请在设置中重新选择该文件夹。</translation>
        </message>
        <message>
            <source>Active</source>
            <translation>主动</translation>
        </message>
        <message>
            <source>Add Connection</source>
            <translation>添加连接</translation>
        </message>
        <message>
            <source>Add Rule</source>
            <translation>添加规则</translation>
        </message>
        <message>
            <source>Advanced</source>
            <translation>高级</translation>
        </message>
        <message>
            <source>Advanced Options</source>
            <translation>高级选项</translation>
        </message>
        <message numerus="yes">
            <source>After %n consecutive failures</source>
            <translation>
                <numerusform>连续 %n 次失败后</numerusform>
            </translation>
        </message>
        <message>
            <source>Agency / Creative</source>
            <translation>代理机构/创意</translation>
        </message>
        <message>
            <source>All</source>
            <translation>全部</translation>
        </message>
        <message>
            <source>All except temporaries (recommended)</source>
            <translation>除临时文件外全部 (推荐)</translation>
        </message>
        <message>
            <source>All files</source>
            <translation>所有文件</translation>
        </message>
        <message>
            <source>All files (no filter)</source>
            <translation>所有文件 (不过滤)</translation>
        </message>
        <message>
            <source>All files flat (one folder)</source>
            <translation>所有文件平铺 (一个文件夹)</translation>
        </message>
        <message>
            <source>All time</source>
            <translation>总计</translation>
        </message>
        <message>
            <source>Allow self-signed certificates</source>
            <translation>允许自签名证书</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>应用</translation>
        </message>
        <message>
            <source>Apply preset?</source>
            <translation>应用预设？</translation>
        </message>
        <message>
            <source>Apply them now, or discard them?</source>
            <translation>立即应用还是放弃这些更改？</translation>
        </message>
        <message>
            <source>Apply your changes?</source>
            <translation>应用更改？</translation>
        </message>
        <message>
            <source>Audiovisual</source>
            <translation>视听</translation>
        </message>
        <message>
            <source>Authentication</source>
            <translation>身份验证</translation>
        </message>
        <message>
            <source>Authentication failed. Check your username and password.</source>
            <translation>身份验证失败。请检查用户名和密码。</translation>
        </message>
        <message>
            <source>Auto-Rename</source>
            <translation>自动重命名</translation>
        </message>
        <message>
            <source>Auto-decompress ZIP/GZ</source>
            <translation>自动解压 ZIP/GZ</translation>
        </message>
        <message>
            <source>Auto-monitor new remote folders</source>
            <translation>自动监视新的远程文件夹</translation>
        </message>
        <message>
            <source>Behavior</source>
            <translation>行为</translation>
        </message>
        <message>
            <source>Browse...</source>
            <translation>浏览...</translation>
        </message>
        <message>
            <source>CONNECTIONS</source>
            <translation>连接</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
        <message>
            <source>Cannot connect to port %lld</source>
            <translation>无法连接到端口 %lld</translation>
        </message>
        <message>
            <source>Cannot write to '%@'. Check the folder's permissions in the file manager.</source>
            <translation>无法写入“%@”。请在文件管理器中检查该文件夹的权限。</translation>
        </message>
        <message>
            <source>Cellular</source>
            <translation>移动网络</translation>
        </message>
        <message>
            <source>Changes applied</source>
            <translation>已应用更改</translation>
        </message>
        <message>
            <source>Checksum and listing</source>
            <translation>校验和与列表</translation>
        </message>
        <message>
            <source>Choose...</source>
            <translation>选择...</translation>
        </message>
        <message>
            <source>Clear</source>
            <translation>清除</translation>
        </message>
        <message>
            <source>Clear All</source>
            <translation>全部清除</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>颜色</translation>
        </message>
        <message>
            <source>Comma-separated extensions. Example: jpg, pdf, raw, cr3</source>
            <translation>以逗号分隔的扩展名。例如: jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>Command or script</source>
            <translation>命令或脚本</translation>
        </message>
        <message>
            <source>Connect automatically when Tarnel starts</source>
            <translation>Tarnel 启动时自动连接</translation>
        </message>
        <message>
            <source>Connected</source>
            <translation>已连接</translation>
        </message>
        <message>
            <source>Connection</source>
            <translation>连接</translation>
        </message>
        <message>
            <source>Connection error (code %lld)%@. Check your connection settings.</source>
            <translation>连接错误 (代码 %lld)%@。请检查连接设置。</translation>
        </message>
        <message>
            <source>Connection failed: </source>
            <translation>连接失败: </translation>
        </message>
        <message>
            <source>Connection successful</source>
            <translation>连接成功</translation>
        </message>
        <message>
            <source>Connection timed out. The server is too slow or unreachable. Try increasing the timeout or check your network.</source>
            <translation>连接超时。服务器太慢或无法访问。请尝试增加超时时间或检查网络。</translation>
        </message>
        <message>
            <source>Connections</source>
            <translation>连接</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>继续</translation>
        </message>
        <message>
            <source>Copy All</source>
            <translation>全部复制</translation>
        </message>
        <message>
            <source>Copy mode: files stay on the server.</source>
            <translation>复制模式: 文件保留在服务器上。</translation>
        </message>
        <message>
            <source>Could not connect to server. Check the host, port, and that the server is running.</source>
            <translation>无法连接到服务器。请检查主机、端口以及服务器是否正在运行。</translation>
        </message>
        <message>
            <source>Could not resolve host. Check that the hostname is correct and your DNS is working.</source>
            <translation>无法解析主机。请检查主机名是否正确以及 DNS 是否正常。</translation>
        </message>
        <message>
            <source>Create subfolder per connection</source>
            <translation>为每个连接创建子文件夹</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>自定义</translation>
        </message>
        <message>
            <source>Custom mapping per folder</source>
            <translation>按文件夹自定义映射</translation>
        </message>
        <message>
            <source>Custom pattern (glob)</source>
            <translation>自定义模式 (glob)</translation>
        </message>
        <message>
            <source>DNS resolution</source>
            <translation>DNS 解析</translation>
        </message>
        <message>
            <source>Data &amp; Analytics</source>
            <translation>数据与分析</translation>
        </message>
        <message>
            <source>Data / Analytics</source>
            <translation>数据/分析</translation>
        </message>
        <message>
            <source>Days</source>
            <translation>星期</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>删除</translation>
        </message>
        <message>
            <source>Delete '</source>
            <translation>删除“</translation>
        </message>
        <message>
            <source>Delete empty remote folders</source>
            <translation>删除空的远程文件夹</translation>
        </message>
        <message>
            <source>Delete failed: %@</source>
            <translation>删除失败: %@</translation>
        </message>
        <message>
            <source>Delete files from FTP after download</source>
            <translation>下载后从 FTP 删除文件</translation>
        </message>
        <message>
            <source>Delete this connection?</source>
            <translation>删除此连接？</translation>
        </message>
        <message>
            <source>Deselect All</source>
            <translation>全部取消选择</translation>
        </message>
        <message>
            <source>Destination</source>
            <translation>目标位置</translation>
        </message>
        <message>
            <source>Destination Folder</source>
            <translation>目标文件夹</translation>
        </message>
        <message>
            <source>Disable SSL verification. Only enable if your server uses a self-signed or expired certificate.</source>
            <translation>禁用 SSL 验证。仅当服务器使用自签名或过期证书时才启用。</translation>
        </message>
        <message>
            <source>Disable connection</source>
            <translation>禁用连接</translation>
        </message>
        <message>
            <source>Disabled</source>
            <translation>已禁用</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>放弃</translation>
        </message>
        <message>
            <source>Disk Space</source>
            <translation>磁盘空间</translation>
        </message>
        <message>
            <source>Download Notifications</source>
            <translation>下载通知</translation>
        </message>
        <message>
            <source>Download failed: %@</source>
            <translation>下载失败: %@</translation>
        </message>
        <message>
            <source>Downloaded file '%@' is empty. The remote file may be corrupted or still being written.</source>
            <translation>下载的文件“%@”为空。远程文件可能已损坏或仍在写入。</translation>
        </message>
        <message>
            <source>E-commerce</source>
            <translation>电子商务</translation>
        </message>
        <message>
            <source>E-commerce / Data</source>
            <translation>电子商务/数据</translation>
        </message>
        <message>
            <source>Enable connection</source>
            <translation>启用连接</translation>
        </message>
        <message>
            <source>Enabled</source>
            <translation>已启用</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>错误</translation>
        </message>
        <message>
            <source>Error Notifications</source>
            <translation>错误通知</translation>
        </message>
        <message>
            <source>Error: </source>
            <translation>错误: </translation>
        </message>
        <message>
            <source>Example: </source>
            <translation>示例: </translation>
        </message>
        <message>
            <source>Extension preset</source>
            <translation>扩展名预设</translation>
        </message>
        <message>
            <source>FTP Mode</source>
            <translation>FTP 模式</translation>
        </message>
        <message>
            <source>FTP does not encrypt data. For medical records, SFTP is strongly recommended.</source>
            <translation>FTP 不加密数据。对于医疗记录，强烈建议使用 SFTP。</translation>
        </message>
        <message>
            <source>FTP quote command failed. Check the remote path or delete permissions.</source>
            <translation>FTP 命令失败。请检查远程路径或删除权限。</translation>
        </message>
        <message>
            <source>File</source>
            <translation>文件</translation>
        </message>
        <message>
            <source>File type</source>
            <translation>文件类型</translation>
        </message>
        <message>
            <source>Filename contains</source>
            <translation>文件名包含</translation>
        </message>
        <message>
            <source>Filename starts with</source>
            <translation>文件名开头为</translation>
        </message>
        <message>
            <source>Filters</source>
            <translation>过滤器</translation>
        </message>
        <message>
            <source>Finance</source>
            <translation>金融</translation>
        </message>
        <message>
            <source>Finance / Accounting</source>
            <translation>金融/会计</translation>
        </message>
        <message>
            <source>Folder error</source>
            <translation>文件夹错误</translation>
        </message>
        <message>
            <source>Folder not accessible: %@</source>
            <translation>无法访问文件夹: %@</translation>
        </message>
        <message>
            <source>From </source>
            <translation>从 </translation>
        </message>
        <message>
            <source>General</source>
            <translation>常规</translation>
        </message>
        <message>
            <source>Group notifications (summary instead of file list)</source>
            <translation>合并通知 (显示摘要而非文件列表)</translation>
        </message>
        <message>
            <source>Health</source>
            <translation>医疗</translation>
        </message>
        <message>
            <source>Health / Compliance</source>
            <translation>医疗/合规</translation>
        </message>
        <message>
            <source>History...</source>
            <translation>历史记录...</translation>
        </message>
        <message>
            <source>Host</source>
            <translation>主机</translation>
        </message>
        <message>
            <source>Host '%@' not found</source>
            <translation>找不到主机“%@”</translation>
        </message>
        <message>
            <source>IT &amp; Integrations</source>
            <translation>IT 与集成</translation>
        </message>
        <message>
            <source>IT / Integrations</source>
            <translation>IT/集成</translation>
        </message>
        <message>
            <source>If No Rule Matches</source>
            <translation>没有规则匹配时</translation>
        </message>
        <message>
            <source>If the computer sleeps anyway (battery, lid close), transfers will pause and resume automatically on wake.</source>
            <translation>如果计算机仍然进入睡眠 (电池、合上盖子)，传输会暂停并在唤醒时自动恢复。</translation>
        </message>
        <message>
            <source>Ignore (don't download)</source>
            <translation>忽略 (不下载)</translation>
        </message>
        <message>
            <source>Includes files from all subfolders on the server. Can be slow with large servers.</source>
            <translation>包含服务器上所有子文件夹中的文件。服务器较大时可能较慢。</translation>
        </message>
        <message>
            <source>Interrupted downloads resume automatically. Set to 0 to disable.</source>
            <translation>中断的下载会自动续传。设为 0 可禁用。</translation>
        </message>
        <message>
            <source>LIST listings</source>
            <translation>LIST 列表</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>语言</translation>
        </message>
        <message>
            <source>Last activity: </source>
            <translation>最近活动: </translation>
        </message>
        <message>
            <source>Launch Tarnel when you log in</source>
            <translation>登录时启动 Tarnel</translation>
        </message>
        <message>
            <source>Listing folders...</source>
            <translation>正在列出文件夹...</translation>
        </message>
        <message>
            <source>Local Folder</source>
            <translation>本地文件夹</translation>
        </message>
        <message>
            <source>Log Folder</source>
            <translation>日志文件夹</translation>
        </message>
        <message>
            <source>Log...</source>
            <translation>日志...</translation>
        </message>
        <message>
            <source>Low disk</source>
            <translation>磁盘不足</translation>
        </message>
        <message>
            <source>MLSD listings</source>
            <translation>MLSD 列表</translation>
        </message>
        <message>
            <source>Made by the Tarnel developers.</source>
            <translation>由 Tarnel 开发者制作。</translation>
        </message>
        <message>
            <source>Main folder</source>
            <translation>主文件夹</translation>
        </message>
        <message>
            <source>Manual</source>
            <translation>手动</translation>
        </message>
        <message>
            <source>Match</source>
            <translation>匹配条件</translation>
        </message>
        <message>
            <source>Matches any file whose name contains this text</source>
            <translation>匹配名称包含此文本的任何文件</translation>
        </message>
        <message>
            <source>Matches any file whose name starts with this text</source>
            <translation>匹配名称以此文本开头的任何文件</translation>
        </message>
        <message>
            <source>Max depth: </source>
            <translation>最大深度: </translation>
        </message>
        <message>
            <source>Max download speed</source>
            <translation>最大下载速度</translation>
        </message>
        <message>
            <source>Max resume attempts: </source>
            <translation>最大续传次数: </translation>
        </message>
        <message>
            <source>Max retries: </source>
            <translation>最大重试次数: </translation>
        </message>
        <message>
            <source>Min file size: </source>
            <translation>最小文件大小: </translation>
        </message>
        <message>
            <source>Minimum free space</source>
            <translation>最小可用空间</translation>
        </message>
        <message>
            <source>Mirror remote structure</source>
            <translation>镜像远程结构</translation>
        </message>
        <message>
            <source>Monitoring — no transfers in progress</source>
            <translation>监视中 — 没有正在进行的传输</translation>
        </message>
        <message>
            <source>Move mode: files are removed from the server.</source>
            <translation>移动模式: 文件会从服务器上删除。</translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>静音</translation>
        </message>
        <message>
            <source>My Camera FTP</source>
            <translation>我的相机 FTP</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>名称</translation>
        </message>
        <message>
            <source>Network</source>
            <translation>网络</translation>
        </message>
        <message>
            <source>New Connection</source>
            <translation>新建连接</translation>
        </message>
        <message>
            <source>No checksum: files are verified by size</source>
            <translation>无校验和：按大小校验文件</translation>
        </message>
        <message>
            <source>No connections</source>
            <translation>没有连接</translation>
        </message>
        <message>
            <source>No connections configured</source>
            <translation>未配置任何连接</translation>
        </message>
        <message>
            <source>No log entries yet.</source>
            <translation>暂无日志条目。</translation>
        </message>
        <message>
            <source>No minimum</source>
            <translation>无下限</translation>
        </message>
        <message>
            <source>No network</source>
            <translation>无网络</translation>
        </message>
        <message>
            <source>No recent downloads</source>
            <translation>没有最近的下载</translation>
        </message>
        <message>
            <source>No rename — original filename is kept</source>
            <translation>不重命名 — 保留原始文件名</translation>
        </message>
        <message>
            <source>No rules — all files go to the main folder</source>
            <translation>没有规则 — 所有文件都进入主文件夹</translation>
        </message>
        <message>
            <source>No subdirectories found</source>
            <translation>未找到子文件夹</translation>
        </message>
        <message>
            <source>No transfer history.</source>
            <translation>没有传输历史记录。</translation>
        </message>
        <message>
            <source>None</source>
            <translation>无</translation>
        </message>
        <message>
            <source>Not selected</source>
            <translation>未选择</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>通知</translation>
        </message>
        <message>
            <source>Notify on connection errors</source>
            <translation>连接出错时通知</translation>
        </message>
        <message>
            <source>Notify when connections pause/resume by schedule</source>
            <translation>连接按计划暂停或恢复时通知</translation>
        </message>
        <message>
            <source>Notify when downloads complete</source>
            <translation>下载完成时通知</translation>
        </message>
        <message>
            <source>Offline</source>
            <translation>离线</translation>
        </message>
        <message>
            <source>Only %@ GB of disk space remaining. Free up space to continue downloading.</source>
            <translation>磁盘空间仅剩 %@ GB。请释放空间以继续下载。</translation>
        </message>
        <message numerus="yes">
            <source>Only if %n or more files</source>
            <translation>
                <numerusform>仅当文件达到 %n 个及以上时</numerusform>
            </translation>
        </message>
        <message>
            <source>Only last folder level</source>
            <translation>仅最后一级文件夹</translation>
        </message>
        <message>
            <source>Open Tarnel</source>
            <translation>打开 Tarnel</translation>
        </message>
        <message>
            <source>Open destination folder</source>
            <translation>打开目标文件夹</translation>
        </message>
        <message>
            <source>Open destination folders</source>
            <translation>打开目标文件夹</translation>
        </message>
        <message>
            <source>Open main folder</source>
            <translation>打开主文件夹</translation>
        </message>
        <message>
            <source>Optional tag name</source>
            <translation>可选标签名</translation>
        </message>
        <message>
            <source>Organization</source>
            <translation>整理</translation>
        </message>
        <message>
            <source>Organize by date (YYYY/MM/DD)</source>
            <translation>按日期整理 (YYYY/MM/DD)</translation>
        </message>
        <message>
            <source>Organize downloads</source>
            <translation>整理下载的文件</translation>
        </message>
        <message>
            <source>Other files</source>
            <translation>其他文件</translation>
        </message>
        <message>
            <source>Parse error: %@</source>
            <translation>解析错误: %@</translation>
        </message>
        <message>
            <source>Partial file received. The transfer was interrupted. It will retry automatically.</source>
            <translation>只收到部分文件。传输已中断，将自动重试。</translation>
        </message>
        <message>
            <source>Passive (recommended)</source>
            <translation>被动 (推荐)</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>密码</translation>
        </message>
        <message>
            <source>Pattern (empty = no rename)</source>
            <translation>模式 (留空 = 不重命名)</translation>
        </message>
        <message>
            <source>Pattern:</source>
            <translation>模式:</translation>
        </message>
        <message>
            <source>Pause</source>
            <translation>暂停</translation>
        </message>
        <message>
            <source>Pause and resume on wake</source>
            <translation>唤醒时暂停并恢复</translation>
        </message>
        <message>
            <source>Pause when internet is unavailable</source>
            <translation>无法连接互联网时暂停</translation>
        </message>
        <message>
            <source>Pause when on mobile hotspot</source>
            <translation>使用移动热点时暂停</translation>
        </message>
        <message>
            <source>Paused</source>
            <translation>已暂停</translation>
        </message>
        <message>
            <source>Paused — low disk space</source>
            <translation>已暂停 — 磁盘空间不足</translation>
        </message>
        <message>
            <source>Paused — mobile hotspot detected</source>
            <translation>已暂停 — 检测到移动热点</translation>
        </message>
        <message>
            <source>Paused — no internet connection</source>
            <translation>已暂停 — 没有互联网连接</translation>
        </message>
        <message>
            <source>Photography</source>
            <translation>摄影</translation>
        </message>
        <message>
            <source>Photos only</source>
            <translation>仅照片</translation>
        </message>
        <message>
            <source>Play sound on download</source>
            <translation>下载时播放声音</translation>
        </message>
        <message>
            <source>Polling Interval</source>
            <translation>轮询间隔</translation>
        </message>
        <message>
            <source>Port</source>
            <translation>端口</translation>
        </message>
        <message>
            <source>Port must be between 1 and 65535</source>
            <translation>端口必须介于 1 和 65535 之间</translation>
        </message>
        <message>
            <source>Preset</source>
            <translation>预设</translation>
        </message>
        <message>
            <source>Press "Browse..." to list the server's folders.</source>
            <translation>按“浏览...”列出服务器的文件夹。</translation>
        </message>
        <message>
            <source>Prevent sleep during downloads</source>
            <translation>下载期间阻止睡眠</translation>
        </message>
        <message>
            <source>Preventing sleep — downloading</source>
            <translation>正在阻止睡眠 — 下载中</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>预览</translation>
        </message>
        <message>
            <source>Preview:</source>
            <translation>预览:</translation>
        </message>
        <message>
            <source>Print &amp; Graphics</source>
            <translation>印刷与图形</translation>
        </message>
        <message>
            <source>Print / Graphics</source>
            <translation>印刷/图形</translation>
        </message>
        <message>
            <source>Protocol</source>
            <translation>协议</translation>
        </message>
        <message>
            <source>Quit</source>
            <translation>退出</translation>
        </message>
        <message>
            <source>RECENT</source>
            <translation>最近</translation>
        </message>
        <message>
            <source>Re-select folder to grant persistent access</source>
            <translation>重新选择文件夹以授予持久访问权限</translation>
        </message>
        <message>
            <source>Read Me</source>
            <translation>自述文件</translation>
        </message>
        <message>
            <source>Recommended for critical transfers. May double download time.</source>
            <translation>推荐用于关键传输。可能使下载时间加倍。</translation>
        </message>
        <message>
            <source>Remote Folder</source>
            <translation>远程文件夹</translation>
        </message>
        <message>
            <source>Remote Subdirectories</source>
            <translation>远程子文件夹</translation>
        </message>
        <message>
            <source>Remote folder access</source>
            <translation>远程文件夹访问</translation>
        </message>
        <message>
            <source>Remote path</source>
            <translation>远程路径</translation>
        </message>
        <message>
            <source>Remote path contains a control character</source>
            <translation>远程路径包含控制字符</translation>
        </message>
        <message>
            <source>Research / Science</source>
            <translation>研究/科学</translation>
        </message>
        <message>
            <source>Restart Tarnel to apply the language change.</source>
            <translation>重新启动 Tarnel 以应用语言更改。</translation>
        </message>
        <message>
            <source>Resume</source>
            <translation>恢复</translation>
        </message>
        <message>
            <source>Retry Failed</source>
            <translation>重试失败</translation>
        </message>
        <message>
            <source>Retrying (%lld/%lld)...</source>
            <translation>正在重试 (%lld/%lld)...</translation>
        </message>
        <message>
            <source>Routing Rule</source>
            <translation>分拣规则</translation>
        </message>
        <message>
            <source>Routing Rules</source>
            <translation>分拣规则</translation>
        </message>
        <message>
            <source>Rule enabled</source>
            <translation>启用规则</translation>
        </message>
        <message>
            <source>Run post-download action</source>
            <translation>运行下载后操作</translation>
        </message>
        <message>
            <source>SSH Key Path</source>
            <translation>SSH 密钥路径</translation>
        </message>
        <message>
            <source>SSL certificate verification failed. The server certificate may be self-signed or expired.</source>
            <translation>SSL 证书验证失败。服务器证书可能是自签名的或已过期。</translation>
        </message>
        <message>
            <source>SSL/TLS handshake failed. The server may not support FTPS, or the certificate is invalid.</source>
            <translation>SSL/TLS 握手失败。服务器可能不支持 FTPS，或证书无效。</translation>
        </message>
        <message>
            <source>STATISTICS</source>
            <translation>统计</translation>
        </message>
        <message>
            <source>STOCK_</source>
            <translation>STOCK_</translation>
        </message>
        <message>
            <source>Same as main folder</source>
            <translation>与主文件夹相同</translation>
        </message>
        <message>
            <source>Save Rule</source>
            <translation>保存规则</translation>
        </message>
        <message>
            <source>Save to main folder</source>
            <translation>保存到主文件夹</translation>
        </message>
        <message>
            <source>Save to specific folder</source>
            <translation>保存到指定文件夹</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>计划</translation>
        </message>
        <message>
            <source>Schedule Notifications</source>
            <translation>计划通知</translation>
        </message>
        <message>
            <source>Scheduled </source>
            <translation>计划时段 </translation>
        </message>
        <message>
            <source>Search...</source>
            <translation>搜索...</translation>
        </message>
        <message>
            <source>Sector preset</source>
            <translation>行业预设</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>全选</translation>
        </message>
        <message>
            <source>Select SSH key (optional)</source>
            <translation>选择 SSH 密钥 (可选)</translation>
        </message>
        <message>
            <source>Select a connection or add a new one.</source>
            <translation>请选择一个连接或添加新连接。</translation>
        </message>
        <message>
            <source>Settings...</source>
            <translation>设置...</translation>
        </message>
        <message>
            <source>Simultaneous downloads: </source>
            <translation>同时下载数: </translation>
        </message>
        <message>
            <source>Size</source>
            <translation>大小</translation>
        </message>
        <message>
            <source>Size mismatch: expected %@, got %@. The file may still be uploading.</source>
            <translation>大小不匹配: 应为 %@，实际为 %@。文件可能仍在上传。</translation>
        </message>
        <message>
            <source>Sleep Behavior</source>
            <translation>睡眠行为</translation>
        </message>
        <message>
            <source>Sleep is only prevented while files are actively downloading. Normal sleep resumes when idle.</source>
            <translation>仅在正在下载文件时阻止睡眠。空闲时恢复正常睡眠。</translation>
        </message>
        <message>
            <source>Sleep prevention enabled</source>
            <translation>已启用睡眠阻止</translation>
        </message>
        <message>
            <source>Sound</source>
            <translation>声音</translation>
        </message>
        <message>
            <source>Stability checks: </source>
            <translation>稳定性检查次数: </translation>
        </message>
        <message>
            <source>Startup</source>
            <translation>启动</translation>
        </message>
        <message>
            <source>Status</source>
            <translation>状态</translation>
        </message>
        <message>
            <source>Stopped</source>
            <translation>已停止</translation>
        </message>
        <message>
            <source>Success</source>
            <translation>成功</translation>
        </message>
        <message>
            <source>Sync &amp; Transfer</source>
            <translation>同步与传输</translation>
        </message>
        <message>
            <source>Sync Log</source>
            <translation>同步日志</translation>
        </message>
        <message>
            <source>Sync Now</source>
            <translation>立即同步</translation>
        </message>
        <message>
            <source>Sync every </source>
            <translation>同步间隔: </translation>
        </message>
        <message>
            <source>Sync only during scheduled hours</source>
            <translation>仅在计划时段内同步</translation>
        </message>
        <message>
            <source>Sync subfolders recursively</source>
            <translation>递归同步子文件夹</translation>
        </message>
        <message>
            <source>Syncing...</source>
            <translation>正在同步...</translation>
        </message>
        <message>
            <source>System default</source>
            <translation>系统默认</translation>
        </message>
        <message>
            <source>TCP connection</source>
            <translation>TCP 连接</translation>
        </message>
        <message>
            <source>Tags</source>
            <translation>标签</translation>
        </message>
        <message>
            <source>Tarnel %1 (build %2)</source>
            <translation>Tarnel %1 (构建 %2)</translation>
        </message>
        <message>
            <source>Tarnel History</source>
            <translation>Tarnel 历史记录</translation>
        </message>
        <message>
            <source>Tarnel Log</source>
            <translation>Tarnel 日志</translation>
        </message>
        <message>
            <source>Tarnel Settings</source>
            <translation>Tarnel 设置</translation>
        </message>
        <message>
            <source>Tarnel keeps running in the background when you close this window. To open it again, launch Tarnel from the applications menu.</source>
            <translation>关闭此窗口后，Tarnel 会继续在后台运行。要再次打开它，请从应用程序菜单启动 Tarnel。</translation>
        </message>
        <message numerus="yes">
            <source>Tarnel: %n file(s) downloaded</source>
            <translation>
                <numerusform>Tarnel: 已下载 %n 个文件</numerusform>
            </translation>
        </message>
        <message>
            <source>Tarnel: Connection error</source>
            <translation>Tarnel: 连接错误</translation>
        </message>
        <message>
            <source>Tarnel: Local folder problem</source>
            <translation>Tarnel: 本地文件夹问题</translation>
        </message>
        <message>
            <source>Tarnel: New folder detected</source>
            <translation>Tarnel: 检测到新文件夹</translation>
        </message>
        <message>
            <source>Tarnel: Transfer failed</source>
            <translation>Tarnel: 传输失败</translation>
        </message>
        <message>
            <source>Test Connection</source>
            <translation>测试连接</translation>
        </message>
        <message>
            <source>Text tag</source>
            <translation>文本标签</translation>
        </message>
        <message>
            <source>The SFTP server's host key has changed since the last connection to %@. This can mean someone is intercepting the connection. If the change is expected (the server was reinstalled or its key replaced), remove the line for %@ from %@ and connect again.</source>
            <translation>自上次连接到 %@ 以来，SFTP 服务器的主机密钥已更改。这可能意味着有人正在拦截连接。如果这一更改在预期之中 (服务器已重装或密钥已更换)，请删除 %@ 在 %@ 中的那一行，然后重新连接。</translation>
        </message>
        <message>
            <source>The connection '</source>
            <translation>连接“</translation>
        </message>
        <message>
            <source>This action cannot be undone.</source>
            <translation>此操作无法撤销。</translation>
        </message>
        <message>
            <source>This will overwrite the current configuration with the recommended values for </source>
            <translation>当前配置将被“</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>时间</translation>
        </message>
        <message>
            <source>To </source>
            <translation>到 </translation>
        </message>
        <message>
            <source>Today</source>
            <translation>今天</translation>
        </message>
        <message>
            <source>Transfer History</source>
            <translation>传输历史记录</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>类型</translation>
        </message>
        <message>
            <source>Unix glob pattern: * matches any characters, ? matches one character</source>
            <translation>Unix glob 模式: * 匹配任意字符，? 匹配单个字符</translation>
        </message>
        <message>
            <source>Unlimited</source>
            <translation>不限</translation>
        </message>
        <message>
            <source>Unmute</source>
            <translation>取消静音</translation>
        </message>
        <message>
            <source>Upload/store failed. The server rejected the operation. Check write permissions on the server.</source>
            <translation>上传/存储失败。服务器拒绝了该操作。请检查服务器上的写入权限。</translation>
        </message>
        <message>
            <source>Username</source>
            <translation>用户名</translation>
        </message>
        <message>
            <source>Variables: {original}, {date}, {time}, {counter}, {host}</source>
            <translation>变量: {original}, {date}, {time}, {counter}, {host}</translation>
        </message>
        <message>
            <source>Verify checksum (MD5)</source>
            <translation>校验和验证 (MD5)</translation>
        </message>
        <message>
            <source>Video</source>
            <translation>视频</translation>
        </message>
        <message>
            <source>Video only</source>
            <translation>仅视频</translation>
        </message>
        <message>
            <source>Waiting...</source>
            <translation>等待中...</translation>
        </message>
        <message>
            <source>Warn and pause if disk space is low</source>
            <translation>磁盘空间不足时警告并暂停</translation>
        </message>
        <message>
            <source>Wrong username or password</source>
            <translation>用户名或密码错误</translation>
        </message>
        <message>
            <source>dead.rule.warning</source>
            <translation>从不使用: 前面的规则已经接收这些文件</translation>
        </message>
        <message>
            <source>ext.cat.audio</source>
            <translation>音频</translation>
        </message>
        <message>
            <source>ext.cat.documents</source>
            <translation>文档</translation>
        </message>
        <message>
            <source>ext.cat.images</source>
            <translation>图片</translation>
        </message>
        <message>
            <source>ext.cat.temp</source>
            <translation>临时文件</translation>
        </message>
        <message>
            <source>ext.cat.video</source>
            <translation>视频</translation>
        </message>
        <message>
            <source>ext.reset.button</source>
            <translation>恢复预设</translation>
        </message>
        <message>
            <source>ext.unspecified.download</source>
            <translation>下载</translation>
        </message>
        <message>
            <source>ext.unspecified.ignore</source>
            <translation>忽略</translation>
        </message>
        <message>
            <source>ext.unspecified.label</source>
            <translation>其他扩展名</translation>
        </message>
        <message numerus="yes">
            <source>failed after %n attempts</source>
            <translation>
                <numerusform>在 %n 次尝试后失败</numerusform>
            </translation>
        </message>
        <message>
            <source>growing...</source>
            <translation>增长中...</translation>
        </message>
        <message>
            <source>invoice</source>
            <translation>发票</translation>
        </message>
        <message>
            <source>jpg, pdf, raw, cr3</source>
            <translation>jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>just now</source>
            <translation>刚刚</translation>
        </message>
    </context>
</TS>
