<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en">
    <context>
        <name>tarnel</name>
        <message>
            <source> GB</source>
            <translation> GB</translation>
        </message>
        <message>
            <source> GB free</source>
            <translation> GB livres</translation>
        </message>
        <message>
            <source>%@ checksum mismatch: the server says %@, the download gives %@. The file was not placed and stays on the server; it will be downloaded again.</source>
            <translation>A soma de verificação %@ não coincide: o servidor indica %@, a transferência dá %@. O ficheiro não foi colocado e permanece no servidor; será transferido novamente.</translation>
        </message>
        <message>
            <source>%@ checksums</source>
            <translation>Somas de verificação %@</translation>
        </message>
        <message>
            <source>%lld min ago</source>
            <translation>há %lld min</translation>
        </message>
        <message>
            <source>%lldd ago</source>
            <translation>há %lld d</translation>
        </message>
        <message>
            <source>%lldh ago</source>
            <translation>há %lld h</translation>
        </message>
        <message>
            <source>%llds ago</source>
            <translation>há %lld s</translation>
        </message>
        <message numerus="yes">
            <source>%n active connection(s)</source>
            <translation>
                <numerusform>%n ligação ativa</numerusform>
                <numerusform>%n ligações ativas</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s)</source>
            <translation>
                <numerusform>%n ficheiro</numerusform>
                <numerusform>%n ficheiros</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s) found</source>
            <translation>
                <numerusform>%n ficheiro encontrado</numerusform>
                <numerusform>%n ficheiros encontrados</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n folder(s) selected</source>
            <translation>
                <numerusform>%n pasta selecionada</numerusform>
                <numerusform>%n pastas selecionadas</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n minute(s)</source>
            <translation>
                <numerusform>%n minuto</numerusform>
                <numerusform>%n minutos</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n second(s)</source>
            <translation>
                <numerusform>%n segundo</numerusform>
                <numerusform>%n segundos</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n waiting for stability</source>
            <translation>
                <numerusform>%n à espera de estabilidade</numerusform>
                <numerusform>%n à espera de estabilidade</numerusform>
            </translation>
        </message>
        <message>
            <source>' has changes that were not applied.</source>
            <translation>» tem alterações por aplicar.</translation>
        </message>
        <message>
            <source>'?</source>
            <translation>»?</translation>
        </message>
        <message>
            <source>*.2024.*</source>
            <translation>*.2024.*</translation>
        </message>
        <message numerus="yes">
            <source>+%n more downloading...</source>
            <translation>
                <numerusform>+%n mais a transferir...</numerusform>
                <numerusform>+%n mais a transferir...</numerusform>
            </translation>
        </message>
        <message>
            <source>. Do you want to continue?</source>
            <translation>. Pretende continuar?</translation>
        </message>
        <message numerus="yes">
            <source>...and %n more</source>
            <translation>
                <numerusform>...e mais %n</numerusform>
                <numerusform>...e mais %n</numerusform>
            </translation>
        </message>
        <message>
            <source>1 MB/s</source>
            <translation>1 MB/s</translation>
        </message>
        <message>
            <source>1 minute</source>
            <translation>1 minuto</translation>
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
            <translation>15 segundos</translation>
        </message>
        <message>
            <source>2 MB/s</source>
            <translation>2 MB/s</translation>
        </message>
        <message>
            <source>2 minutes</source>
            <translation>2 minutos</translation>
        </message>
        <message>
            <source>2 seconds</source>
            <translation>2 segundos</translation>
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
            <translation>30 segundos</translation>
        </message>
        <message>
            <source>5 MB/s</source>
            <translation>5 MB/s</translation>
        </message>
        <message>
            <source>5 minutes</source>
            <translation>5 minutos</translation>
        </message>
        <message>
            <source>5 seconds</source>
            <translation>5 segundos</translation>
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
            <translation>ATIVIDADE</translation>
        </message>
        <message>
            <source>About Tarnel</source>
            <translation>Acerca do Tarnel</translation>
        </message>
        <message>
            <source>Access denied to the remote folder. Check that the path exists and you have read permission.</source>
            <translation>Acesso negado à pasta remota. Verifique se o caminho existe e se tem permissão de leitura.</translation>
        </message>
        <message>
            <source>Access to '%@' has expired. Please re-select the folder in Settings.</source>
            <translation>O acesso a «%@» expirou. Volte a selecionar a pasta nas Definições.</translation>
        </message>
        <message>
            <source>Active</source>
            <translation>Ativo</translation>
        </message>
        <message>
            <source>Add Connection</source>
            <translation>Adicionar ligação</translation>
        </message>
        <message>
            <source>Add Rule</source>
            <translation>Adicionar regra</translation>
        </message>
        <message>
            <source>Advanced</source>
            <translation>Avançado</translation>
        </message>
        <message>
            <source>Advanced Options</source>
            <translation>Opções avançadas</translation>
        </message>
        <message numerus="yes">
            <source>After %n consecutive failures</source>
            <translation>
                <numerusform>Após %n falha</numerusform>
                <numerusform>Após %n falhas consecutivas</numerusform>
            </translation>
        </message>
        <message>
            <source>Agency / Creative</source>
            <translation>Agência / Criativo</translation>
        </message>
        <message>
            <source>All</source>
            <translation>Todos</translation>
        </message>
        <message>
            <source>All except temporaries (recommended)</source>
            <translation>Tudo exceto temporários (recomendado)</translation>
        </message>
        <message>
            <source>All files</source>
            <translation>Todos os ficheiros</translation>
        </message>
        <message>
            <source>All files (no filter)</source>
            <translation>Todos os ficheiros (sem filtro)</translation>
        </message>
        <message>
            <source>All files flat (one folder)</source>
            <translation>Todos os ficheiros juntos (uma pasta)</translation>
        </message>
        <message>
            <source>All time</source>
            <translation>Total</translation>
        </message>
        <message>
            <source>Allow self-signed certificates</source>
            <translation>Permitir certificados autoassinados</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>Aplicar</translation>
        </message>
        <message>
            <source>Apply preset?</source>
            <translation>Aplicar o modelo?</translation>
        </message>
        <message>
            <source>Apply them now, or discard them?</source>
            <translation>Aplicá-las agora ou descartá-las?</translation>
        </message>
        <message>
            <source>Apply your changes?</source>
            <translation>Aplicar as alterações?</translation>
        </message>
        <message>
            <source>Audiovisual</source>
            <translation>Audiovisual</translation>
        </message>
        <message>
            <source>Authentication</source>
            <translation>Autenticação</translation>
        </message>
        <message>
            <source>Authentication failed. Check your username and password.</source>
            <translation>A autenticação falhou. Verifique o nome de utilizador e a palavra-passe.</translation>
        </message>
        <message>
            <source>Auto-Rename</source>
            <translation>Mudar o nome automaticamente</translation>
        </message>
        <message>
            <source>Auto-decompress ZIP/GZ</source>
            <translation>Descomprimir ZIP/GZ automaticamente</translation>
        </message>
        <message>
            <source>Auto-monitor new remote folders</source>
            <translation>Vigiar automaticamente novas pastas remotas</translation>
        </message>
        <message>
            <source>Behavior</source>
            <translation>Comportamento</translation>
        </message>
        <message>
            <source>Browse...</source>
            <translation>Procurar...</translation>
        </message>
        <message>
            <source>CONNECTIONS</source>
            <translation>LIGAÇÕES</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Cannot connect to port %lld</source>
            <translation>Não é possível ligar à porta %lld</translation>
        </message>
        <message>
            <source>Cannot write to '%@'. Check the folder's permissions in the file manager.</source>
            <translation>Não é possível escrever em «%@». Verifique as permissões da pasta no gestor de ficheiros.</translation>
        </message>
        <message>
            <source>Cellular</source>
            <translation>Rede móvel</translation>
        </message>
        <message>
            <source>Changes applied</source>
            <translation>Alterações aplicadas</translation>
        </message>
        <message>
            <source>Checksum and listing</source>
            <translation>Soma de verificação e listagem</translation>
        </message>
        <message>
            <source>Choose...</source>
            <translation>Escolher...</translation>
        </message>
        <message>
            <source>Clear</source>
            <translation>Limpar</translation>
        </message>
        <message>
            <source>Clear All</source>
            <translation>Limpar tudo</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>Cor</translation>
        </message>
        <message>
            <source>Comma-separated extensions. Example: jpg, pdf, raw, cr3</source>
            <translation>Extensões separadas por vírgulas. Exemplo: jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>Command or script</source>
            <translation>Comando ou script</translation>
        </message>
        <message>
            <source>Connect automatically when Tarnel starts</source>
            <translation>Ligar automaticamente ao iniciar o Tarnel</translation>
        </message>
        <message>
            <source>Connected</source>
            <translation>Ligado</translation>
        </message>
        <message>
            <source>Connection</source>
            <translation>Ligação</translation>
        </message>
        <message>
            <source>Connection error (code %lld)%@. Check your connection settings.</source>
            <translation>Erro de ligação (código %lld)%@. Verifique as definições da ligação.</translation>
        </message>
        <message>
            <source>Connection failed: </source>
            <translation>A ligação falhou: </translation>
        </message>
        <message>
            <source>Connection successful</source>
            <translation>Ligação bem-sucedida</translation>
        </message>
        <message>
            <source>Connection timed out. The server is too slow or unreachable. Try increasing the timeout or check your network.</source>
            <translation>A ligação excedeu o tempo limite. O servidor está demasiado lento ou inacessível. Aumente o tempo limite ou verifique a rede.</translation>
        </message>
        <message>
            <source>Connections</source>
            <translation>Ligações</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Continuar</translation>
        </message>
        <message>
            <source>Copy All</source>
            <translation>Copiar tudo</translation>
        </message>
        <message>
            <source>Copy mode: files stay on the server.</source>
            <translation>Modo cópia: os ficheiros ficam no servidor.</translation>
        </message>
        <message>
            <source>Could not connect to server. Check the host, port, and that the server is running.</source>
            <translation>Não foi possível ligar ao servidor. Verifique o anfitrião, a porta e se o servidor está a funcionar.</translation>
        </message>
        <message>
            <source>Could not resolve host. Check that the hostname is correct and your DNS is working.</source>
            <translation>Não foi possível resolver o anfitrião. Verifique se o nome está correto e se o DNS funciona.</translation>
        </message>
        <message>
            <source>Create subfolder per connection</source>
            <translation>Criar uma subpasta por ligação</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Personalizado</translation>
        </message>
        <message>
            <source>Custom mapping per folder</source>
            <translation>Mapeamento personalizado por pasta</translation>
        </message>
        <message>
            <source>Custom pattern (glob)</source>
            <translation>Padrão personalizado (glob)</translation>
        </message>
        <message>
            <source>DNS resolution</source>
            <translation>Resolução DNS</translation>
        </message>
        <message>
            <source>Data &amp; Analytics</source>
            <translation>Dados e análise</translation>
        </message>
        <message>
            <source>Data / Analytics</source>
            <translation>Dados / Análise</translation>
        </message>
        <message>
            <source>Days</source>
            <translation>Dias</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Eliminar</translation>
        </message>
        <message>
            <source>Delete '</source>
            <translation>Eliminar «</translation>
        </message>
        <message>
            <source>Delete empty remote folders</source>
            <translation>Eliminar pastas remotas vazias</translation>
        </message>
        <message>
            <source>Delete failed: %@</source>
            <translation>A eliminação falhou: %@</translation>
        </message>
        <message>
            <source>Delete files from FTP after download</source>
            <translation>Eliminar ficheiros do FTP após a transferência</translation>
        </message>
        <message>
            <source>Delete this connection?</source>
            <translation>Eliminar esta ligação?</translation>
        </message>
        <message>
            <source>Deselect All</source>
            <translation>Desmarcar tudo</translation>
        </message>
        <message>
            <source>Destination</source>
            <translation>Destino</translation>
        </message>
        <message>
            <source>Destination Folder</source>
            <translation>Pasta de destino</translation>
        </message>
        <message>
            <source>Disable SSL verification. Only enable if your server uses a self-signed or expired certificate.</source>
            <translation>Desativa a verificação SSL. Ative apenas se o servidor usar um certificado autoassinado ou expirado.</translation>
        </message>
        <message>
            <source>Disable connection</source>
            <translation>Desativar ligação</translation>
        </message>
        <message>
            <source>Disabled</source>
            <translation>Desativada</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>Descartar</translation>
        </message>
        <message>
            <source>Disk Space</source>
            <translation>Espaço em disco</translation>
        </message>
        <message>
            <source>Download Notifications</source>
            <translation>Notificações de transferências</translation>
        </message>
        <message>
            <source>Download failed: %@</source>
            <translation>A transferência falhou: %@</translation>
        </message>
        <message>
            <source>Downloaded file '%@' is empty. The remote file may be corrupted or still being written.</source>
            <translation>O ficheiro transferido «%@» está vazio. O ficheiro remoto pode estar danificado ou ainda a ser escrito.</translation>
        </message>
        <message>
            <source>E-commerce</source>
            <translation>Comércio eletrónico</translation>
        </message>
        <message>
            <source>E-commerce / Data</source>
            <translation>Comércio eletrónico / Dados</translation>
        </message>
        <message>
            <source>Enable connection</source>
            <translation>Ativar ligação</translation>
        </message>
        <message>
            <source>Enabled</source>
            <translation>Ativada</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>Erro</translation>
        </message>
        <message>
            <source>Error Notifications</source>
            <translation>Notificações de erros</translation>
        </message>
        <message>
            <source>Error: </source>
            <translation>Erro: </translation>
        </message>
        <message>
            <source>Example: </source>
            <translation>Exemplo: </translation>
        </message>
        <message>
            <source>Extension preset</source>
            <translation>Modelo de extensões</translation>
        </message>
        <message>
            <source>FTP Mode</source>
            <translation>Modo FTP</translation>
        </message>
        <message>
            <source>FTP does not encrypt data. For medical records, SFTP is strongly recommended.</source>
            <translation>O FTP não cifra os dados. Para dados clínicos, recomenda-se vivamente o SFTP.</translation>
        </message>
        <message>
            <source>FTP quote command failed. Check the remote path or delete permissions.</source>
            <translation>O comando FTP falhou. Verifique o caminho remoto ou as permissões de eliminação.</translation>
        </message>
        <message>
            <source>File</source>
            <translation>Ficheiro</translation>
        </message>
        <message>
            <source>File type</source>
            <translation>Tipo de ficheiro</translation>
        </message>
        <message>
            <source>Filename contains</source>
            <translation>O nome contém</translation>
        </message>
        <message>
            <source>Filename starts with</source>
            <translation>O nome começa por</translation>
        </message>
        <message>
            <source>Filters</source>
            <translation>Filtros</translation>
        </message>
        <message>
            <source>Finance</source>
            <translation>Finanças</translation>
        </message>
        <message>
            <source>Finance / Accounting</source>
            <translation>Finanças / Contabilidade</translation>
        </message>
        <message>
            <source>Folder error</source>
            <translation>Erro de pasta</translation>
        </message>
        <message>
            <source>Folder not accessible: %@</source>
            <translation>Pasta inacessível: %@</translation>
        </message>
        <message>
            <source>From </source>
            <translation>Das </translation>
        </message>
        <message>
            <source>General</source>
            <translation>Geral</translation>
        </message>
        <message>
            <source>Group notifications (summary instead of file list)</source>
            <translation>Agrupar notificações (resumo em vez da lista de ficheiros)</translation>
        </message>
        <message>
            <source>Health</source>
            <translation>Saúde</translation>
        </message>
        <message>
            <source>Health / Compliance</source>
            <translation>Saúde / Conformidade</translation>
        </message>
        <message>
            <source>History...</source>
            <translation>Histórico...</translation>
        </message>
        <message>
            <source>Host</source>
            <translation>Anfitrião</translation>
        </message>
        <message>
            <source>Host '%@' not found</source>
            <translation>Anfitrião «%@» não encontrado</translation>
        </message>
        <message>
            <source>IT &amp; Integrations</source>
            <translation>TI e integrações</translation>
        </message>
        <message>
            <source>IT / Integrations</source>
            <translation>TI / Integrações</translation>
        </message>
        <message>
            <source>If No Rule Matches</source>
            <translation>Se nenhuma regra corresponder</translation>
        </message>
        <message>
            <source>If the computer sleeps anyway (battery, lid close), transfers will pause and resume automatically on wake.</source>
            <translation>Se o computador suspender mesmo assim (bateria, tampa fechada), as transferências são pausadas e retomadas automaticamente ao despertar.</translation>
        </message>
        <message>
            <source>Ignore (don't download)</source>
            <translation>Ignorar (não transferir)</translation>
        </message>
        <message>
            <source>Includes files from all subfolders on the server. Can be slow with large servers.</source>
            <translation>Inclui ficheiros de todas as subpastas do servidor. Pode ser lento em servidores grandes.</translation>
        </message>
        <message>
            <source>Interrupted downloads resume automatically. Set to 0 to disable.</source>
            <translation>As transferências interrompidas são retomadas automaticamente. Defina 0 para desativar.</translation>
        </message>
        <message>
            <source>LIST listings</source>
            <translation>Listagens LIST</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>Idioma</translation>
        </message>
        <message>
            <source>Last activity: </source>
            <translation>Última atividade: </translation>
        </message>
        <message>
            <source>Launch Tarnel when you log in</source>
            <translation>Iniciar o Tarnel ao iniciar sessão</translation>
        </message>
        <message>
            <source>Listing folders...</source>
            <translation>A listar pastas...</translation>
        </message>
        <message>
            <source>Local Folder</source>
            <translation>Pasta local</translation>
        </message>
        <message>
            <source>Log Folder</source>
            <translation>Pasta de registos</translation>
        </message>
        <message>
            <source>Log...</source>
            <translation>Registo...</translation>
        </message>
        <message>
            <source>Low disk</source>
            <translation>Pouco espaço</translation>
        </message>
        <message>
            <source>MLSD listings</source>
            <translation>Listagens MLSD</translation>
        </message>
        <message>
            <source>Made by the Tarnel developers.</source>
            <translation>Feito pelos programadores do Tarnel.</translation>
        </message>
        <message>
            <source>Main folder</source>
            <translation>Pasta principal</translation>
        </message>
        <message>
            <source>Manual</source>
            <translation>Manual</translation>
        </message>
        <message>
            <source>Match</source>
            <translation>Condição</translation>
        </message>
        <message>
            <source>Matches any file whose name contains this text</source>
            <translation>Corresponde a qualquer ficheiro cujo nome contenha este texto</translation>
        </message>
        <message>
            <source>Matches any file whose name starts with this text</source>
            <translation>Corresponde a qualquer ficheiro cujo nome comece por este texto</translation>
        </message>
        <message>
            <source>Max depth: </source>
            <translation>Profundidade máxima: </translation>
        </message>
        <message>
            <source>Max download speed</source>
            <translation>Velocidade máxima de transferência</translation>
        </message>
        <message>
            <source>Max resume attempts: </source>
            <translation>Tentativas de retoma máx.: </translation>
        </message>
        <message>
            <source>Max retries: </source>
            <translation>Repetições máx.: </translation>
        </message>
        <message>
            <source>Min file size: </source>
            <translation>Tamanho mínimo: </translation>
        </message>
        <message>
            <source>Minimum free space</source>
            <translation>Espaço livre mínimo</translation>
        </message>
        <message>
            <source>Mirror remote structure</source>
            <translation>Espelhar a estrutura remota</translation>
        </message>
        <message>
            <source>Monitoring — no transfers in progress</source>
            <translation>A vigiar — nenhuma transferência em curso</translation>
        </message>
        <message>
            <source>Move mode: files are removed from the server.</source>
            <translation>Modo mover: os ficheiros são removidos do servidor.</translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>Silenciar</translation>
        </message>
        <message>
            <source>My Camera FTP</source>
            <translation>O meu FTP da câmara</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Nome</translation>
        </message>
        <message>
            <source>Network</source>
            <translation>Rede</translation>
        </message>
        <message>
            <source>New Connection</source>
            <translation>Nova ligação</translation>
        </message>
        <message>
            <source>No checksum: files are verified by size</source>
            <translation>Sem soma de verificação: os ficheiros são verificados pelo tamanho</translation>
        </message>
        <message>
            <source>No connections</source>
            <translation>Sem ligações</translation>
        </message>
        <message>
            <source>No connections configured</source>
            <translation>Nenhuma ligação configurada</translation>
        </message>
        <message>
            <source>No log entries yet.</source>
            <translation>Ainda não há entradas no registo.</translation>
        </message>
        <message>
            <source>No minimum</source>
            <translation>Sem mínimo</translation>
        </message>
        <message>
            <source>No network</source>
            <translation>Sem rede</translation>
        </message>
        <message>
            <source>No recent downloads</source>
            <translation>Sem transferências recentes</translation>
        </message>
        <message>
            <source>No rename — original filename is kept</source>
            <translation>Sem mudança de nome — mantém-se o nome original</translation>
        </message>
        <message>
            <source>No rules — all files go to the main folder</source>
            <translation>Sem regras — todos os ficheiros vão para a pasta principal</translation>
        </message>
        <message>
            <source>No subdirectories found</source>
            <translation>Nenhuma subpasta encontrada</translation>
        </message>
        <message>
            <source>No transfer history.</source>
            <translation>Sem histórico de transferências.</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Nenhuma</translation>
        </message>
        <message>
            <source>Not selected</source>
            <translation>Não selecionada</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>Notificações</translation>
        </message>
        <message>
            <source>Notify on connection errors</source>
            <translation>Notificar erros de ligação</translation>
        </message>
        <message>
            <source>Notify when connections pause/resume by schedule</source>
            <translation>Notificar quando as ligações pausam ou retomam pelo horário</translation>
        </message>
        <message>
            <source>Notify when downloads complete</source>
            <translation>Notificar quando as transferências terminarem</translation>
        </message>
        <message>
            <source>Offline</source>
            <translation>Sem ligação</translation>
        </message>
        <message>
            <source>Only %@ GB of disk space remaining. Free up space to continue downloading.</source>
            <translation>Restam apenas %@ GB de espaço em disco. Liberte espaço para continuar a transferir.</translation>
        </message>
        <message numerus="yes">
            <source>Only if %n or more files</source>
            <translation>
                <numerusform>Apenas se houver %n ou mais ficheiros</numerusform>
                <numerusform>Apenas se houver %n ou mais ficheiros</numerusform>
            </translation>
        </message>
        <message>
            <source>Only last folder level</source>
            <translation>Apenas o último nível de pasta</translation>
        </message>
        <message>
            <source>Open Tarnel</source>
            <translation>Abrir o Tarnel</translation>
        </message>
        <message>
            <source>Open destination folder</source>
            <translation>Abrir a pasta de destino</translation>
        </message>
        <message>
            <source>Open destination folders</source>
            <translation>Abrir as pastas de destino</translation>
        </message>
        <message>
            <source>Open main folder</source>
            <translation>Abrir a pasta principal</translation>
        </message>
        <message>
            <source>Optional tag name</source>
            <translation>Nome da etiqueta (opcional)</translation>
        </message>
        <message>
            <source>Organization</source>
            <translation>Organização</translation>
        </message>
        <message>
            <source>Organize by date (YYYY/MM/DD)</source>
            <translation>Organizar por data (AAAA/MM/DD)</translation>
        </message>
        <message>
            <source>Organize downloads</source>
            <translation>Organizar transferências</translation>
        </message>
        <message>
            <source>Other files</source>
            <translation>Outros ficheiros</translation>
        </message>
        <message>
            <source>Parse error: %@</source>
            <translation>Erro de análise: %@</translation>
        </message>
        <message>
            <source>Partial file received. The transfer was interrupted. It will retry automatically.</source>
            <translation>Ficheiro recebido parcialmente. A transferência foi interrompida e será repetida automaticamente.</translation>
        </message>
        <message>
            <source>Passive (recommended)</source>
            <translation>Passivo (recomendado)</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>Palavra-passe</translation>
        </message>
        <message>
            <source>Pattern (empty = no rename)</source>
            <translation>Padrão (vazio = sem mudança de nome)</translation>
        </message>
        <message>
            <source>Pattern:</source>
            <translation>Padrão:</translation>
        </message>
        <message>
            <source>Pause</source>
            <translation>Pausar</translation>
        </message>
        <message>
            <source>Pause and resume on wake</source>
            <translation>Pausar e retomar ao despertar</translation>
        </message>
        <message>
            <source>Pause when internet is unavailable</source>
            <translation>Pausar quando não houver internet</translation>
        </message>
        <message>
            <source>Pause when on mobile hotspot</source>
            <translation>Pausar em hotspot móvel</translation>
        </message>
        <message>
            <source>Paused</source>
            <translation>Em pausa</translation>
        </message>
        <message>
            <source>Paused — low disk space</source>
            <translation>Em pausa — pouco espaço em disco</translation>
        </message>
        <message>
            <source>Paused — mobile hotspot detected</source>
            <translation>Em pausa — hotspot móvel detetado</translation>
        </message>
        <message>
            <source>Paused — no internet connection</source>
            <translation>Em pausa — sem ligação à internet</translation>
        </message>
        <message>
            <source>Photography</source>
            <translation>Fotografia</translation>
        </message>
        <message>
            <source>Photos only</source>
            <translation>Apenas fotografias</translation>
        </message>
        <message>
            <source>Play sound on download</source>
            <translation>Reproduzir som ao transferir</translation>
        </message>
        <message>
            <source>Polling Interval</source>
            <translation>Intervalo de consulta</translation>
        </message>
        <message>
            <source>Port</source>
            <translation>Porta</translation>
        </message>
        <message>
            <source>Port must be between 1 and 65535</source>
            <translation>A porta deve estar entre 1 e 65535</translation>
        </message>
        <message>
            <source>Preset</source>
            <translation>Modelo</translation>
        </message>
        <message>
            <source>Press "Browse..." to list the server's folders.</source>
            <translation>Prima «Procurar...» para listar as pastas do servidor.</translation>
        </message>
        <message>
            <source>Prevent sleep during downloads</source>
            <translation>Impedir a suspensão durante as transferências</translation>
        </message>
        <message>
            <source>Preventing sleep — downloading</source>
            <translation>Suspensão impedida — a transferir</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Pré-visualização</translation>
        </message>
        <message>
            <source>Preview:</source>
            <translation>Pré-visualização:</translation>
        </message>
        <message>
            <source>Print &amp; Graphics</source>
            <translation>Impressão e gráficos</translation>
        </message>
        <message>
            <source>Print / Graphics</source>
            <translation>Impressão / Gráficos</translation>
        </message>
        <message>
            <source>Protocol</source>
            <translation>Protocolo</translation>
        </message>
        <message>
            <source>Quit</source>
            <translation>Sair</translation>
        </message>
        <message>
            <source>RECENT</source>
            <translation>RECENTES</translation>
        </message>
        <message>
            <source>Re-select folder to grant persistent access</source>
            <translation>Volte a selecionar a pasta para conceder acesso permanente</translation>
        </message>
        <message>
            <source>Read Me</source>
            <translation>Leia-me</translation>
        </message>
        <message>
            <source>Recommended for critical transfers. May double download time.</source>
            <translation>Recomendado para transferências críticas. Pode duplicar o tempo de transferência.</translation>
        </message>
        <message>
            <source>Remote Folder</source>
            <translation>Pasta remota</translation>
        </message>
        <message>
            <source>Remote Subdirectories</source>
            <translation>Subpastas remotas</translation>
        </message>
        <message>
            <source>Remote folder access</source>
            <translation>Acesso à pasta remota</translation>
        </message>
        <message>
            <source>Remote path</source>
            <translation>Caminho remoto</translation>
        </message>
        <message>
            <source>Remote path contains a control character</source>
            <translation>O caminho remoto contém um carácter de controlo</translation>
        </message>
        <message>
            <source>Research / Science</source>
            <translation>Investigação / Ciência</translation>
        </message>
        <message>
            <source>Restart Tarnel to apply the language change.</source>
            <translation>Reinicie o Tarnel para aplicar a mudança de idioma.</translation>
        </message>
        <message>
            <source>Resume</source>
            <translation>Retomar</translation>
        </message>
        <message>
            <source>Retry Failed</source>
            <translation>Esgotado</translation>
        </message>
        <message>
            <source>Retrying (%lld/%lld)...</source>
            <translation>A repetir (%lld/%lld)...</translation>
        </message>
        <message>
            <source>Routing Rule</source>
            <translation>Regra de encaminhamento</translation>
        </message>
        <message>
            <source>Routing Rules</source>
            <translation>Regras de encaminhamento</translation>
        </message>
        <message>
            <source>Rule enabled</source>
            <translation>Regra ativa</translation>
        </message>
        <message>
            <source>Run post-download action</source>
            <translation>Executar ação após a transferência</translation>
        </message>
        <message>
            <source>SSH Key Path</source>
            <translation>Caminho da chave SSH</translation>
        </message>
        <message>
            <source>SSL certificate verification failed. The server certificate may be self-signed or expired.</source>
            <translation>A verificação do certificado SSL falhou. O certificado do servidor pode ser autoassinado ou ter expirado.</translation>
        </message>
        <message>
            <source>SSL/TLS handshake failed. The server may not support FTPS, or the certificate is invalid.</source>
            <translation>O handshake SSL/TLS falhou. O servidor pode não suportar FTPS ou o certificado é inválido.</translation>
        </message>
        <message>
            <source>STATISTICS</source>
            <translation>ESTATÍSTICAS</translation>
        </message>
        <message>
            <source>STOCK_</source>
            <translation>STOCK_</translation>
        </message>
        <message>
            <source>Same as main folder</source>
            <translation>Igual à pasta principal</translation>
        </message>
        <message>
            <source>Save Rule</source>
            <translation>Guardar regra</translation>
        </message>
        <message>
            <source>Save to main folder</source>
            <translation>Guardar na pasta principal</translation>
        </message>
        <message>
            <source>Save to specific folder</source>
            <translation>Guardar numa pasta específica</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>Horário</translation>
        </message>
        <message>
            <source>Schedule Notifications</source>
            <translation>Notificações do horário</translation>
        </message>
        <message>
            <source>Scheduled </source>
            <translation>Agendado </translation>
        </message>
        <message>
            <source>Search...</source>
            <translation>Pesquisar...</translation>
        </message>
        <message>
            <source>Sector preset</source>
            <translation>Modelo de setor</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Selecionar tudo</translation>
        </message>
        <message>
            <source>Select SSH key (optional)</source>
            <translation>Selecionar chave SSH (opcional)</translation>
        </message>
        <message>
            <source>Select a connection or add a new one.</source>
            <translation>Selecione uma ligação ou adicione uma nova.</translation>
        </message>
        <message>
            <source>Settings...</source>
            <translation>Definições...</translation>
        </message>
        <message>
            <source>Simultaneous downloads: </source>
            <translation>Transf. simultâneas: </translation>
        </message>
        <message>
            <source>Size</source>
            <translation>Tamanho</translation>
        </message>
        <message>
            <source>Size mismatch: expected %@, got %@. The file may still be uploading.</source>
            <translation>Tamanho diferente: esperado %@, recebido %@. O ficheiro pode estar ainda a ser carregado.</translation>
        </message>
        <message>
            <source>Sleep Behavior</source>
            <translation>Suspensão</translation>
        </message>
        <message>
            <source>Sleep is only prevented while files are actively downloading. Normal sleep resumes when idle.</source>
            <translation>A suspensão só é impedida enquanto há ficheiros a ser transferidos. Sem atividade, a suspensão volta ao normal.</translation>
        </message>
        <message>
            <source>Sleep prevention enabled</source>
            <translation>Bloqueio da suspensão ativo</translation>
        </message>
        <message>
            <source>Sound</source>
            <translation>Som</translation>
        </message>
        <message>
            <source>Stability checks: </source>
            <translation>Verificações de estabilidade: </translation>
        </message>
        <message>
            <source>Startup</source>
            <translation>Arranque</translation>
        </message>
        <message>
            <source>Status</source>
            <translation>Estado</translation>
        </message>
        <message>
            <source>Stopped</source>
            <translation>Parada</translation>
        </message>
        <message>
            <source>Success</source>
            <translation>Concluído</translation>
        </message>
        <message>
            <source>Sync &amp; Transfer</source>
            <translation>Sincronização e transferência</translation>
        </message>
        <message>
            <source>Sync Log</source>
            <translation>Registo de sincronização</translation>
        </message>
        <message>
            <source>Sync Now</source>
            <translation>Sincronizar agora</translation>
        </message>
        <message>
            <source>Sync every </source>
            <translation>A cada </translation>
        </message>
        <message>
            <source>Sync only during scheduled hours</source>
            <translation>Sincronizar apenas no horário agendado</translation>
        </message>
        <message>
            <source>Sync subfolders recursively</source>
            <translation>Sincronizar subpastas recursivamente</translation>
        </message>
        <message>
            <source>Syncing...</source>
            <translation>A sincronizar...</translation>
        </message>
        <message>
            <source>System default</source>
            <translation>Idioma do sistema</translation>
        </message>
        <message>
            <source>TCP connection</source>
            <translation>Ligação TCP</translation>
        </message>
        <message>
            <source>Tags</source>
            <translation>Etiquetas</translation>
        </message>
        <message>
            <source>Tarnel %1 (build %2)</source>
            <translation>Tarnel %1 (compilação %2)</translation>
        </message>
        <message>
            <source>Tarnel History</source>
            <translation>Histórico do Tarnel</translation>
        </message>
        <message>
            <source>Tarnel Log</source>
            <translation>Registo do Tarnel</translation>
        </message>
        <message>
            <source>Tarnel Settings</source>
            <translation>Definições do Tarnel</translation>
        </message>
        <message>
            <source>Tarnel keeps running in the background when you close this window. To open it again, launch Tarnel from the applications menu.</source>
            <translation>O Tarnel continua a funcionar em segundo plano quando fecha esta janela. Para a voltar a abrir, inicie o Tarnel a partir do menu de aplicações.</translation>
        </message>
        <message numerus="yes">
            <source>Tarnel: %n file(s) downloaded</source>
            <translation>
                <numerusform>Tarnel: %n ficheiro transferido</numerusform>
                <numerusform>Tarnel: %n ficheiros transferidos</numerusform>
            </translation>
        </message>
        <message>
            <source>Tarnel: Connection error</source>
            <translation>Tarnel: erro de ligação</translation>
        </message>
        <message>
            <source>Tarnel: Local folder problem</source>
            <translation>Tarnel: problema na pasta local</translation>
        </message>
        <message>
            <source>Tarnel: New folder detected</source>
            <translation>Tarnel: nova pasta detetada</translation>
        </message>
        <message>
            <source>Tarnel: Transfer failed</source>
            <translation>Tarnel: a transferência falhou</translation>
        </message>
        <message>
            <source>Test Connection</source>
            <translation>Testar ligação</translation>
        </message>
        <message>
            <source>Text tag</source>
            <translation>Etiqueta de texto</translation>
        </message>
        <message>
            <source>The SFTP server's host key has changed since the last connection to %@. This can mean someone is intercepting the connection. If the change is expected (the server was reinstalled or its key replaced), remove the line for %@ from %@ and connect again.</source>
            <translation>A chave do anfitrião do servidor SFTP mudou desde a última ligação a %@. Isto pode significar que alguém está a intercetar a ligação. Se a mudança era esperada (o servidor foi reinstalado ou a chave substituída), remova a linha de %@ de %@ e volte a ligar.</translation>
        </message>
        <message>
            <source>The connection '</source>
            <translation>A ligação «</translation>
        </message>
        <message>
            <source>This action cannot be undone.</source>
            <translation>Esta ação não pode ser anulada.</translation>
        </message>
        <message>
            <source>This will overwrite the current configuration with the recommended values for </source>
            <translation>A configuração atual será substituída pelos valores recomendados para </translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Hora</translation>
        </message>
        <message>
            <source>To </source>
            <translation>Até às </translation>
        </message>
        <message>
            <source>Today</source>
            <translation>Hoje</translation>
        </message>
        <message>
            <source>Transfer History</source>
            <translation>Histórico de transferências</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Tipo</translation>
        </message>
        <message>
            <source>Unix glob pattern: * matches any characters, ? matches one character</source>
            <translation>Padrão glob Unix: * corresponde a quaisquer caracteres, ? a um único carácter</translation>
        </message>
        <message>
            <source>Unlimited</source>
            <translation>Ilimitada</translation>
        </message>
        <message>
            <source>Unmute</source>
            <translation>Ativar som</translation>
        </message>
        <message>
            <source>Upload/store failed. The server rejected the operation. Check write permissions on the server.</source>
            <translation>O envio falhou. O servidor recusou a operação. Verifique as permissões de escrita no servidor.</translation>
        </message>
        <message>
            <source>Username</source>
            <translation>Nome de utilizador</translation>
        </message>
        <message>
            <source>Variables: {original}, {date}, {time}, {counter}, {host}</source>
            <translation>Variáveis: {original}, {date}, {time}, {counter}, {host}</translation>
        </message>
        <message>
            <source>Verify checksum (MD5)</source>
            <translation>Verificar soma de controlo (MD5)</translation>
        </message>
        <message>
            <source>Video</source>
            <translation>Vídeo</translation>
        </message>
        <message>
            <source>Video only</source>
            <translation>Apenas vídeo</translation>
        </message>
        <message>
            <source>Waiting...</source>
            <translation>À espera...</translation>
        </message>
        <message>
            <source>Warn and pause if disk space is low</source>
            <translation>Avisar e pausar se houver pouco espaço em disco</translation>
        </message>
        <message>
            <source>Wrong username or password</source>
            <translation>Nome de utilizador ou palavra-passe incorretos</translation>
        </message>
        <message>
            <source>dead.rule.warning</source>
            <translation>Nunca usada: uma regra anterior já apanha estes ficheiros</translation>
        </message>
        <message>
            <source>ext.cat.audio</source>
            <translation>Áudio</translation>
        </message>
        <message>
            <source>ext.cat.documents</source>
            <translation>Documentos</translation>
        </message>
        <message>
            <source>ext.cat.images</source>
            <translation>Imagens</translation>
        </message>
        <message>
            <source>ext.cat.temp</source>
            <translation>Ficheiros temporários</translation>
        </message>
        <message>
            <source>ext.cat.video</source>
            <translation>Vídeo</translation>
        </message>
        <message>
            <source>ext.reset.button</source>
            <translation>Repor o modelo</translation>
        </message>
        <message>
            <source>ext.unspecified.download</source>
            <translation>Transferir</translation>
        </message>
        <message>
            <source>ext.unspecified.ignore</source>
            <translation>Ignorar</translation>
        </message>
        <message>
            <source>ext.unspecified.label</source>
            <translation>Outras extensões</translation>
        </message>
        <message numerus="yes">
            <source>failed after %n attempts</source>
            <translation>
                <numerusform>falhou após %n tentativa</numerusform>
                <numerusform>falhou após %n tentativas</numerusform>
            </translation>
        </message>
        <message>
            <source>growing...</source>
            <translation>a crescer...</translation>
        </message>
        <message>
            <source>invoice</source>
            <translation>fatura</translation>
        </message>
        <message>
            <source>jpg, pdf, raw, cr3</source>
            <translation>jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>just now</source>
            <translation>agora mesmo</translation>
        </message>
    </context>
</TS>
