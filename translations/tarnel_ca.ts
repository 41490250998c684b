<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ca" sourcelanguage="en">
    <context>
        <name>tarnel</name>
        <message>
            <source> GB</source>
            <translation> GB</translation>
        </message>
        <message>
            <source> GB free</source>
            <translation> GB lliures</translation>
        </message>
        <message>
            <source>%@ checksum mismatch: the server says %@, the download gives %@. The file was not placed and stays on the server; it will be downloaded again.</source>
            <translation>La suma de verificació %@ no coincideix: el servidor indica %@, la baixada dona %@. El fitxer no s'ha col·locat i es queda al servidor; es tornarà a baixar.</translation>
        </message>
        <message>
            <source>%@ checksums</source>
            <translation>Sumes de verificació %@</translation>
        </message>
        <message>
            <source>%lld min ago</source>
            <translation>fa %lld min</translation>
        </message>
        <message>
            <source>%lldd ago</source>
            <translation>fa %lld d</translation>
        </message>
        <message>
            <source>%lldh ago</source>
            <translation>fa %lld h</translation>
        </message>
        <message>
            <source>%llds ago</source>
            <translation>fa %lld s</translation>
        </message>
        <message numerus="yes">
            <source>%n active connection(s)</source>
            <translation>
                <numerusform>%n connexió activa</numerusform>
                <numerusform>%n connexions actives</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s)</source>
            <translation>
                <numerusform>%n fitxer</numerusform>
                <numerusform>%n fitxers</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s) found</source>
            <translation>
                <numerusform>S'ha trobat %n fitxer</numerusform>
                <numerusform>S'han trobat %n fitxers</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n folder(s) selected</source>
            <translation>
                <numerusform>%n carpeta seleccionada</numerusform>
                <numerusform>%n carpetes seleccionades</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n minute(s)</source>
            <translation>
                <numerusform>%n minut</numerusform>
                <numerusform>%n minuts</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n second(s)</source>
            <translation>
                <numerusform>%n segon</numerusform>
                <numerusform>%n segons</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n waiting for stability</source>
            <translation>
                <numerusform>%n esperant que s'estabilitzi</numerusform>
                <numerusform>%n esperant que s'estabilitzin</numerusform>
            </translation>
        </message>
        <message>
            <source>' has changes that were not applied.</source>
            <translation>» té canvis sense aplicar.</translation>
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
                <numerusform>+%n més en baixada...</numerusform>
                <numerusform>+%n més en baixada...</numerusform>
            </translation>
        </message>
        <message>
            <source>. Do you want to continue?</source>
            <translation>. Voleu continuar?</translation>
        </message>
        <message numerus="yes">
            <source>...and %n more</source>
            <translation>
                <numerusform>...i %n més</numerusform>
                <numerusform>...i %n més</numerusform>
            </translation>
        </message>
        <message>
            <source>1 MB/s</source>
            <translation>1 MB/s</translation>
        </message>
        <message>
            <source>1 minute</source>
            <translation>1 minut</translation>
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
            <translation>15 segons</translation>
        </message>
        <message>
            <source>2 MB/s</source>
            <translation>2 MB/s</translation>
        </message>
        <message>
            <source>2 minutes</source>
            <translation>2 minuts</translation>
        </message>
        <message>
            <source>2 seconds</source>
            <translation>2 segons</translation>
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
            <translation>30 segons</translation>
        </message>
        <message>
            <source>5 MB/s</source>
            <translation>5 MB/s</translation>
        </message>
        <message>
            <source>5 minutes</source>
            <translation>5 minuts</translation>
        </message>
        <message>
            <source>5 seconds</source>
            <translation>5 segons</translation>
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
            <translation>ACTIVITAT</translation>
        </message>
        <message>
            <source>About Tarnel</source>
            <translation>Quant a Tarnel</translation>
        </message>
        <message>
            <source>Access denied to the remote folder. Check that the path exists and you have read permission.</source>
            <translation>S'ha denegat l'accés a la carpeta remota. Comproveu que el camí existeixi i que tingueu permís de lectura.</translation>
        </message>
        <message>
            <source>Access to '%@' has expired. Please re-select the folder in Settings.</source>
            <translation>L'accés a «%@» ha caducat. Torneu a seleccionar la carpeta a la Configuració.</translation>
        </message>
        <message>
            <source>Active</source>
            <translation>Actiu</translation>
        </message>
        <message>
            <source>Add Connection</source>
            <translation>Afegeix una connexió</translation>
        </message>
        <message>
            <source>Add Rule</source>
            <translation>Afegeix una regla</translation>
        </message>
        <message>
            <source>Advanced</source>
            <translation>Avançat</translation>
        </message>
        <message>
            <source>Advanced Options</source>
            <translation>Opcions avançades</translation>
        </message>
        <message numerus="yes">
            <source>After %n consecutive failures</source>
            <translation>
                <numerusform>Després de %n error</numerusform>
                <numerusform>Després de %n errors consecutius</numerusform>
            </translation>
        </message>
        <message>
            <source>Agency / Creative</source>
            <translation>Agència / Creativitat</translation>
        </message>
        <message>
            <source>All</source>
            <translation>Tot</translation>
        </message>
        <message>
            <source>All except temporaries (recommended)</source>
            <translation>Tot excepte temporals (recomanat)</translation>
        </message>
        <message>
            <source>All files</source>
            <translation>Tots els fitxers</translation>
        </message>
        <message>
            <source>All files (no filter)</source>
            <translation>Tots els fitxers (sense filtre)</translation>
        </message>
        <message>
            <source>All files flat (one folder)</source>
            <translation>Tots els fitxers junts (una carpeta)</translation>
        </message>
        <message>
            <source>All time</source>
            <translation>Total</translation>
        </message>
        <message>
            <source>Allow self-signed certificates</source>
            <translation>Permet certificats autosignats</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>Aplica</translation>
        </message>
        <message>
            <source>Apply preset?</source>
            <translation>Voleu aplicar la plantilla?</translation>
        </message>
        <message>
            <source>Apply them now, or discard them?</source>
            <translation>Voleu aplicar-los ara o descartar-los?</translation>
        </message>
        <message>
            <source>Apply your changes?</source>
            <translation>Voleu aplicar els canvis?</translation>
        </message>
        <message>
            <source>Audiovisual</source>
            <translation>Audiovisual</translation>
        </message>
        <message>
            <source>Authentication</source>
            <translation>Autenticació</translation>
        </message>
        <message>
            <source>Authentication failed. Check your username and password.</source>
            <translation>L'autenticació ha fallat. Comproveu el nom d'usuari i la contrasenya.</translation>
        </message>
        <message>
            <source>Auto-Rename</source>
            <translation>Canvi de nom automàtic</translation>
        </message>
        <message>
            <source>Auto-decompress ZIP/GZ</source>
            <translation>Descomprimeix ZIP/GZ automàticament</translation>
        </message>
        <message>
            <source>Auto-monitor new remote folders</source>
            <translation>Vigila automàticament les carpetes remotes noves</translation>
        </message>
        <message>
            <source>Behavior</source>
            <translation>Comportament</translation>
        </message>
        <message>
            <source>Browse...</source>
            <translation>Navega...</translation>
        </message>
        <message>
            <source>CONNECTIONS</source>
            <translation>CONNEXIONS</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel·la</translation>
        </message>
        <message>
            <source>Cannot connect to port %lld</source>
            <translation>No es pot connectar al port %lld</translation>
        </message>
        <message>
            <source>Cannot write to '%@'. Check the folder's permissions in the file manager.</source>
            <translation>No es pot escriure a «%@». Comproveu els permisos de la carpeta al gestor de fitxers.</translation>
        </message>
        <message>
            <source>Cellular</source>
            <translation>Dades mòbils</translation>
        </message>
        <message>
            <source>Changes applied</source>
            <translation>Canvis aplicats</translation>
        </message>
        <message>
            <source>Checksum and listing</source>
            <translation>Suma de verificació i llistat</translation>
        </message>
        <message>
            <source>Choose...</source>
            <translation>Tria...</translation>
        </message>
        <message>
            <source>Clear</source>
            <translation>Esborra</translation>
        </message>
        <message>
            <source>Clear All</source>
            <translation>Esborra-ho tot</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>Color</translation>
        </message>
        <message>
            <source>Comma-separated extensions. Example: jpg, pdf, raw, cr3</source>
            <translation>Extensions separades per comes. Exemple: jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>Command or script</source>
            <translation>Ordre o script</translation>
        </message>
        <message>
            <source>Connect automatically when Tarnel starts</source>
            <translation>Connecta automàticament quan s'iniciï Tarnel</translation>
        </message>
        <message>
            <source>Connected</source>
            <translation>Connectat</translation>
        </message>
        <message>
            <source>Connection</source>
            <translation>Connexió</translation>
        </message>
        <message>
            <source>Connection error (code %lld)%@. Check your connection settings.</source>
            <translation>Error de connexió (codi %lld)%@. Comproveu la configuració de la connexió.</translation>
        </message>
        <message>
            <source>Connection failed: </source>
            <translation>La connexió ha fallat: </translation>
        </message>
        <message>
            <source>Connection successful</source>
            <translation>Connexió correcta</translation>
        </message>
        <message>
            <source>Connection timed out. The server is too slow or unreachable. Try increasing the timeout or check your network.</source>
            <translation>S'ha esgotat el temps de connexió. El servidor és massa lent o inabastable. Proveu d'augmentar el temps d'espera o comproveu la xarxa.</translation>
        </message>
        <message>
            <source>Connections</source>
            <translation>Connexions</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Continua</translation>
        </message>
        <message>
            <source>Copy All</source>
            <translation>Copia-ho tot</translation>
        </message>
        <message>
            <source>Copy mode: files stay on the server.</source>
            <translation>Mode còpia: els fitxers es queden al servidor.</translation>
        </message>
        <message>
            <source>Could not connect to server. Check the host, port, and that the server is running.</source>
            <translation>No s'ha pogut connectar al servidor. Comproveu l'amfitrió, el port i que el servidor estigui en marxa.</translation>
        </message>
        <message>
            <source>Could not resolve host. Check that the hostname is correct and your DNS is working.</source>
            <translation>No s'ha pogut resoldre l'amfitrió. Comproveu que el nom sigui correcte i que el DNS funcioni.</translation>
        </message>
        <message>
            <source>Create subfolder per connection</source>
            <translation>Crea una subcarpeta per connexió</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Personalitzat</translation>
        </message>
        <message>
            <source>Custom mapping per folder</source>
            <translation>Assignació personalitzada per carpeta</translation>
        </message>
        <message>
            <source>Custom pattern (glob)</source>
            <translation>Patró personalitzat (glob)</translation>
        </message>
        <message>
            <source>DNS resolution</source>
            <translation>Resolució DNS</translation>
        </message>
        <message>
            <source>Data &amp; Analytics</source>
            <translation>Dades i analítica</translation>
        </message>
        <message>
            <source>Data / Analytics</source>
            <translation>Dades / Analítica</translation>
        </message>
        <message>
            <source>Days</source>
            <translation>Dies</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Suprimeix</translation>
        </message>
        <message>
            <source>Delete '</source>
            <translation>Voleu suprimir «</translation>
        </message>
        <message>
            <source>Delete empty remote folders</source>
            <translation>Suprimeix les carpetes remotes buides</translation>
        </message>
        <message>
            <source>Delete failed: %@</source>
            <translation>No s'ha pogut suprimir: %@</translation>
        </message>
        <message>
            <source>Delete files from FTP after download</source>
            <translation>Suprimeix els fitxers de l'FTP després de baixar-los</translation>
        </message>
        <message>
            <source>Delete this connection?</source>
            <translation>Voleu suprimir aquesta connexió?</translation>
        </message>
        <message>
            <source>Deselect All</source>
            <translation>Desselecciona-ho tot</translation>
        </message>
        <message>
            <source>Destination</source>
            <translation>Destinació</translation>
        </message>
        <message>
            <source>Destination Folder</source>
            <translation>Carpeta de destinació</translation>
        </message>
        <message>
            <source>Disable SSL verification. Only enable if your server uses a self-signed or expired certificate.</source>
            <translation>Desactiva la verificació SSL. Activeu-ho només si el servidor fa servir un certificat autosignat o caducat.</translation>
        </message>
        <message>
            <source>Disable connection</source>
            <translation>Desactiva la connexió</translation>
        </message>
        <message>
            <source>Disabled</source>
            <translation>Desactivada</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>Descarta</translation>
        </message>
        <message>
            <source>Disk Space</source>
            <translation>Espai de disc</translation>
        </message>
        <message>
            <source>Download Notifications</source>
            <translation>Notificacions de baixada</translation>
        </message>
        <message>
            <source>Download failed: %@</source>
            <translation>La baixada ha fallat: %@</translation>
        </message>
        <message>
            <source>Downloaded file '%@' is empty. The remote file may be corrupted or still being written.</source>
            <translation>El fitxer baixat «%@» és buit. El fitxer remot pot estar malmès o encara s'està escrivint.</translation>
        </message>
        <message>
            <source>E-commerce</source>
            <translation>Comerç electrònic</translation>
        </message>
        <message>
            <source>E-commerce / Data</source>
            <translation>Comerç electrònic / Dades</translation>
        </message>
        <message>
            <source>Enable connection</source>
            <translation>Activa la connexió</translation>
        </message>
        <message>
            <source>Enabled</source>
            <translation>Activada</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>Error</translation>
        </message>
        <message>
            <source>Error Notifications</source>
            <translation>Notificacions d'error</translation>
        </message>
        <message>
            <source>Error: </source>
            <translation>Error: </translation>
        </message>
        <message>
            <source>Example: </source>
            <translation>Exemple: </translation>
        </message>
        <message>
            <source>Extension preset</source>
            <translation>Plantilla d'extensions</translation>
        </message>
        <message>
            <source>FTP Mode</source>
            <translation>Mode FTP</translation>
        </message>
        <message>
            <source>FTP does not encrypt data. For medical records, SFTP is strongly recommended.</source>
            <translation>L'FTP no xifra les dades. Per a dades mèdiques es recomana molt l'SFTP.</translation>
        </message>
        <message>
            <source>FTP quote command failed. Check the remote path or delete permissions.</source>
            <translation>L'ordre FTP ha fallat. Comproveu el camí remot o els permisos de supressió.</translation>
        </message>
        <message>
            <source>File</source>
            <translation>Fitxer</translation>
        </message>
        <message>
            <source>File type</source>
            <translation>Tipus de fitxer</translation>
        </message>
        <message>
            <source>Filename contains</source>
            <translation>El nom conté</translation>
        </message>
        <message>
            <source>Filename starts with</source>
            <translation>El nom comença per</translation>
        </message>
        <message>
            <source>Filters</source>
            <translation>Filtres</translation>
        </message>
        <message>
            <source>Finance</source>
            <translation>Finances</translation>
        </message>
        <message>
            <source>Finance / Accounting</source>
            <translation>Finances / Comptabilitat</translation>
        </message>
        <message>
            <source>Folder error</source>
            <translation>Error de carpeta</translation>
        </message>
        <message>
            <source>Folder not accessible: %@</source>
            <translation>Carpeta no accessible: %@</translation>
        </message>
        <message>
            <source>From </source>
            <translation>De </translation>
        </message>
        <message>
            <source>General</source>
            <translation>General</translation>
        </message>
        <message>
            <source>Group notifications (summary instead of file list)</source>
            <translation>Agrupa les notificacions (resum en lloc de llista de fitxers)</translation>
        </message>
        <message>
            <source>Health</source>
            <translation>Salut</translation>
        </message>
        <message>
            <source>Health / Compliance</source>
            <translation>Salut / Compliment normatiu</translation>
        </message>
        <message>
            <source>History...</source>
            <translation>Historial...</translation>
        </message>
        <message>
            <source>Host</source>
            <translation>Amfitrió</translation>
        </message>
        <message>
            <source>Host '%@' not found</source>
            <translation>No s'ha trobat l'amfitrió «%@»</translation>
        </message>
        <message>
            <source>IT &amp; Integrations</source>
            <translation>TI i integracions</translation>
        </message>
        <message>
            <source>IT / Integrations</source>
            <translation>TI / Integracions</translation>
        </message>
        <message>
            <source>If No Rule Matches</source>
            <translation>Si no coincideix cap regla</translation>
        </message>
        <message>
            <source>If the computer sleeps anyway (battery, lid close), transfers will pause and resume automatically on wake.</source>
            <translation>Si l'ordinador entra en repòs igualment (bateria, tapa tancada), les transferències es posen en pausa i es reprenen soles en despertar-se.</translation>
        </message>
        <message>
            <source>Ignore (don't download)</source>
            <translation>Ignora (no baixis)</translation>
        </message>
        <message>
            <source>Includes files from all subfolders on the server. Can be slow with large servers.</source>
            <translation>Inclou els fitxers de totes les subcarpetes del servidor. Pot ser lent en servidors grans.</translation>
        </message>
        <message>
            <source>Interrupted downloads resume automatically. Set to 0 to disable.</source>
            <translation>Les baixades interrompudes es reprenen automàticament. Poseu 0 per desactivar-ho.</translation>
        </message>
        <message>
            <source>LIST listings</source>
            <translation>Llistats LIST</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>Llengua</translation>
        </message>
        <message>
            <source>Last activity: </source>
            <translation>Darrera activitat: </translation>
        </message>
        <message>
            <source>Launch Tarnel when you log in</source>
            <translation>Inicia Tarnel en iniciar la sessió</translation>
        </message>
        <message>
            <source>Listing folders...</source>
            <translation>S'estan llistant les carpetes...</translation>
        </message>
        <message>
            <source>Local Folder</source>
            <translation>Carpeta local</translation>
        </message>
        <message>
            <source>Log Folder</source>
            <translation>Carpeta de registres</translation>
        </message>
        <message>
            <source>Log...</source>
            <translation>Registre...</translation>
        </message>
        <message>
            <source>Low disk</source>
            <translation>Poc disc</translation>
        </message>
        <message>
            <source>MLSD listings</source>
            <translation>Llistats MLSD</translation>
        </message>
        <message>
            <source>Made by the Tarnel developers.</source>
            <translation>Fet pels desenvolupadors de Tarnel.</translation>
        </message>
        <message>
            <source>Main folder</source>
            <translation>Carpeta principal</translation>
        </message>
        <message>
            <source>Manual</source>
            <translation>Manual</translation>
        </message>
        <message>
            <source>Match</source>
            <translation>Condició</translation>
        </message>
        <message>
            <source>Matches any file whose name contains this text</source>
            <translation>Coincideix amb qualsevol fitxer el nom del qual contingui aquest text</translation>
        </message>
        <message>
            <source>Matches any file whose name starts with this text</source>
            <translation>Coincideix amb qualsevol fitxer el nom del qual comenci per aquest text</translation>
        </message>
        <message>
            <source>Max depth: </source>
            <translation>Profunditat màxima: </translation>
        </message>
        <message>
            <source>Max download speed</source>
            <translation>Velocitat màxima de baixada</translation>
        </message>
        <message>
            <source>Max resume attempts: </source>
            <translation>Intents de represa màx.: </translation>
        </message>
        <message>
            <source>Max retries: </source>
            <translation>Reintents màx.: </translation>
        </message>
        <message>
            <source>Min file size: </source>
            <translation>Mida mínima: </translation>
        </message>
        <message>
            <source>Minimum free space</source>
            <translation>Espai lliure mínim</translation>
        </message>
        <message>
            <source>Mirror remote structure</source>
            <translation>Replica l'estructura remota</translation>
        </message>
        <message>
            <source>Monitoring — no transfers in progress</source>
            <translation>Vigilant — cap transferència en curs</translation>
        </message>
        <message>
            <source>Move mode: files are removed from the server.</source>
            <translation>Mode moure: els fitxers s'eliminen del servidor.</translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>Silencia</translation>
        </message>
        <message>
            <source>My Camera FTP</source>
            <translation>El meu FTP de càmera</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Nom</translation>
        </message>
        <message>
            <source>Network</source>
            <translation>Xarxa</translation>
        </message>
        <message>
            <source>New Connection</source>
            <translation>Connexió nova</translation>
        </message>
        <message>
            <source>No checksum: files are verified by size</source>
            <translation>Sense suma de verificació: els fitxers es verifiquen per la mida</translation>
        </message>
        <message>
            <source>No connections</source>
            <translation>Cap connexió</translation>
        </message>
        <message>
            <source>No connections configured</source>
            <translation>No hi ha cap connexió configurada</translation>
        </message>
        <message>
            <source>No log entries yet.</source>
            <translation>Encara no hi ha cap entrada al registre.</translation>
        </message>
        <message>
            <source>No minimum</source>
            <translation>Sense mínim</translation>
        </message>
        <message>
            <source>No network</source>
            <translation>Sense xarxa</translation>
        </message>
        <message>
            <source>No recent downloads</source>
            <translation>Cap baixada recent</translation>
        </message>
        <message>
            <source>No rename — original filename is kept</source>
            <translation>Sense canvi de nom — es manté el nom original</translation>
        </message>
        <message>
            <source>No rules — all files go to the main folder</source>
            <translation>Sense regles — tots els fitxers van a la carpeta principal</translation>
        </message>
        <message>
            <source>No subdirectories found</source>
            <translation>No s'ha trobat cap subcarpeta</translation>
        </message>
        <message>
            <source>No transfer history.</source>
            <translation>No hi ha historial de transferències.</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Cap</translation>
        </message>
        <message>
            <source>Not selected</source>
            <translation>No seleccionada</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>Notificacions</translation>
        </message>
        <message>
            <source>Notify on connection errors</source>
            <translation>Notifica els errors de connexió</translation>
        </message>
        <message>
            <source>Notify when connections pause/resume by schedule</source>
            <translation>Notifica quan les connexions es pausen o es reprenen per horari</translation>
        </message>
        <message>
            <source>Notify when downloads complete</source>
            <translation>Notifica quan acabin les baixades</translation>
        </message>
        <message>
            <source>Offline</source>
            <translation>Fora de línia</translation>
        </message>
        <message>
            <source>Only %@ GB of disk space remaining. Free up space to continue downloading.</source>
            <translation>Només queden %@ GB d'espai de disc. Allibereu espai per continuar baixant.</translation>
        </message>
        <message numerus="yes">
            <source>Only if %n or more files</source>
            <translation>
                <numerusform>Només si hi ha %n fitxer o més</numerusform>
                <numerusform>Només si hi ha %n fitxers o més</numerusform>
            </translation>
        </message>
        <message>
            <source>Only last folder level</source>
            <translation>Només l'últim nivell de carpeta</translation>
        </message>
        <message>
            <source>Open Tarnel</source>
            <translation>Obre Tarnel</translation>
        </message>
        <message>
            <source>Open destination folder</source>
            <translation>Obre la carpeta de destinació</translation>
        </message>
        <message>
            <source>Open destination folders</source>
            <translation>Obre les carpetes de destinació</translation>
        </message>
        <message>
            <source>Open main folder</source>
            <translation>Obre la carpeta principal</translation>
        </message>
        <message>
            <source>Optional tag name</source>
            <translation>Nom d'etiqueta opcional</translation>
        </message>
        <message>
            <source>Organization</source>
            <translation>Organització</translation>
        </message>
        <message>
            <source>Organize by date (YYYY/MM/DD)</source>
            <translation>Organitza per data (AAAA/MM/DD)</translation>
        </message>
        <message>
            <source>Organize downloads</source>
            <translation>Organitza les baixades</translation>
        </message>
        <message>
            <source>Other files</source>
            <translation>Altres fitxers</translation>
        </message>
        <message>
            <source>Parse error: %@</source>
            <translation>Error d'anàlisi: %@</translation>
        </message>
        <message>
            <source>Partial file received. The transfer was interrupted. It will retry automatically.</source>
            <translation>S'ha rebut el fitxer parcialment. La transferència s'ha interromput i es tornarà a provar automàticament.</translation>
        </message>
        <message>
            <source>Passive (recommended)</source>
            <translation>Passiu (recomanat)</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>Contrasenya</translation>
        </message>
        <message>
            <source>Pattern (empty = no rename)</source>
            <translation>Patró (buit = sense canvi de nom)</translation>
        </message>
        <message>
            <source>Pattern:</source>
            <translation>Patró:</translation>
        </message>
        <message>
            <source>Pause</source>
            <translation>Pausa</translation>
        </message>
        <message>
            <source>Pause and resume on wake</source>
            <translation>Pausa i represa en despertar</translation>
        </message>
        <message>
            <source>Pause when internet is unavailable</source>
            <translation>Pausa quan no hi ha internet</translation>
        </message>
        <message>
            <source>Pause when on mobile hotspot</source>
            <translation>Pausa amb un punt d'accés mòbil</translation>
        </message>
        <message>
            <source>Paused</source>
            <translation>En pausa</translation>
        </message>
        <message>
            <source>Paused — low disk space</source>
            <translation>En pausa — poc espai de disc</translation>
        </message>
        <message>
            <source>Paused — mobile hotspot detected</source>
            <translation>En pausa — punt d'accés mòbil detectat</translation>
        </message>
        <message>
            <source>Paused — no internet connection</source>
            <translation>En pausa — sense connexió a internet</translation>
        </message>
        <message>
            <source>Photography</source>
            <translation>Fotografia</translation>
        </message>
        <message>
            <source>Photos only</source>
            <translation>Només fotos</translation>
        </message>
        <message>
            <source>Play sound on download</source>
            <translation>Reprodueix un so en baixar</translation>
        </message>
        <message>
            <source>Polling Interval</source>
            <translation>Interval de consulta</translation>
        </message>
        <message>
            <source>Port</source>
            <translation>Port</translation>
        </message>
        <message>
            <source>Port must be between 1 and 65535</source>
            <translation>El port ha d'estar entre 1 i 65535</translation>
        </message>
        <message>
            <source>Preset</source>
            <translation>Plantilla</translation>
        </message>
        <message>
            <source>Press "Browse..." to list the server's folders.</source>
            <translation>Premeu «Navega...» per llistar les carpetes del servidor.</translation>
        </message>
        <message>
            <source>Prevent sleep during downloads</source>
            <translation>Evita el repòs durant les baixades</translation>
        </message>
        <message>
            <source>Preventing sleep — downloading</source>
            <translation>Repòs evitat — baixada en curs</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Previsualització</translation>
        </message>
        <message>
            <source>Preview:</source>
            <translation>Previsualització:</translation>
        </message>
        <message>
            <source>Print &amp; Graphics</source>
            <translation>Impremta i grafisme</translation>
        </message>
        <message>
            <source>Print / Graphics</source>
            <translation>Impremta / Grafisme</translation>
        </message>
        <message>
            <source>Protocol</source>
            <translation>Protocol</translation>
        </message>
        <message>
            <source>Quit</source>
            <translation>Surt</translation>
        </message>
        <message>
            <source>RECENT</source>
            <translation>RECENTS</translation>
        </message>
        <message>
            <source>Re-select folder to grant persistent access</source>
            <translation>Torneu a seleccionar la carpeta per concedir accés permanent</translation>
        </message>
        <message>
            <source>Read Me</source>
            <translation>Llegiu-me</translation>
        </message>
        <message>
            <source>Recommended for critical transfers. May double download time.</source>
            <translation>Recomanat per a transferències crítiques. Pot doblar el temps de baixada.</translation>
        </message>
        <message>
            <source>Remote Folder</source>
            <translation>Carpeta remota</translation>
        </message>
        <message>
            <source>Remote Subdirectories</source>
            <translation>Subcarpetes remotes</translation>
        </message>
        <message>
            <source>Remote folder access</source>
            <translation>Accés a la carpeta remota</translation>
        </message>
        <message>
            <source>Remote path</source>
            <translation>Camí remot</translation>
        </message>
        <message>
            <source>Remote path contains a control character</source>
            <translation>El camí remot conté un caràcter de control</translation>
        </message>
        <message>
            <source>Research / Science</source>
            <translation>Recerca / Ciència</translation>
        </message>
        <message>
            <source>Restart Tarnel to apply the language change.</source>
            <translation>Reinicieu Tarnel per aplicar el canvi de llengua.</translation>
        </message>
        <message>
            <source>Resume</source>
            <translation>Reprèn</translation>
        </message>
        <message>
            <source>Retry Failed</source>
            <translation>Abandonat</translation>
        </message>
        <message>
            <source>Retrying (%lld/%lld)...</source>
            <translation>Reintentant (%lld/%lld)...</translation>
        </message>
        <message>
            <source>Routing Rule</source>
            <translation>Regla de classificació</translation>
        </message>
        <message>
            <source>Routing Rules</source>
            <translation>Regles de classificació</translation>
        </message>
        <message>
            <source>Rule enabled</source>
            <translation>Regla activada</translation>
        </message>
        <message>
            <source>Run post-download action</source>
            <translation>Executa una acció després de baixar</translation>
        </message>
        <message>
            <source>SSH Key Path</source>
            <translation>Camí de la clau SSH</translation>
        </message>
        <message>
            <source>SSL certificate verification failed. The server certificate may be self-signed or expired.</source>
            <translation>Ha fallat la verificació del certificat SSL. El certificat del servidor pot ser autosignat o caducat.</translation>
        </message>
        <message>
            <source>SSL/TLS handshake failed. The server may not support FTPS, or the certificate is invalid.</source>
            <translation>Ha fallat la negociació SSL/TLS. Potser el servidor no admet FTPS o el certificat no és vàlid.</translation>
        </message>
        <message>
            <source>STATISTICS</source>
            <translation>ESTADÍSTIQUES</translation>
        </message>
        <message>
            <source>STOCK_</source>
            <translation>STOCK_</translation>
        </message>
        <message>
            <source>Same as main folder</source>
            <translation>Igual que la carpeta principal</translation>
        </message>
        <message>
            <source>Save Rule</source>
            <translation>Desa la regla</translation>
        </message>
        <message>
            <source>Save to main folder</source>
            <translation>Desa a la carpeta principal</translation>
        </message>
        <message>
            <source>Save to specific folder</source>
            <translation>Desa a una carpeta concreta</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>Horari</translation>
        </message>
        <message>
            <source>Schedule Notifications</source>
            <translation>Notificacions d'horari</translation>
        </message>
        <message>
            <source>Scheduled </source>
            <translation>Programat </translation>
        </message>
        <message>
            <source>Search...</source>
            <translation>Cerca...</translation>
        </message>
        <message>
            <source>Sector preset</source>
            <translation>Plantilla de sector</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Selecciona-ho tot</translation>
        </message>
        <message>
            <source>Select SSH key (optional)</source>
            <translation>Seleccioneu la clau SSH (opcional)</translation>
        </message>
        <message>
            <source>Select a connection or add a new one.</source>
            <translation>Seleccioneu una connexió o afegiu-ne una de nova.</translation>
        </message>
        <message>
            <source>Settings...</source>
            <translation>Configuració...</translation>
        </message>
        <message>
            <source>Simultaneous downloads: </source>
            <translation>Baixades simultànies: </translation>
        </message>
        <message>
            <source>Size</source>
            <translation>Mida</translation>
        </message>
        <message>
            <source>Size mismatch: expected %@, got %@. The file may still be uploading.</source>
            <translation>La mida no coincideix: s'esperava %@, s'ha rebut %@. Potser el fitxer encara s'està pujant.</translation>
        </message>
        <message>
            <source>Sleep Behavior</source>
            <translation>Repòs</translation>
        </message>
        <message>
            <source>Sleep is only prevented while files are actively downloading. Normal sleep resumes when idle.</source>
            <translation>El repòs només s'evita mentre es baixen fitxers. En inactivitat, el repòs torna a ser normal.</translation>
        </message>
        <message>
            <source>Sleep prevention enabled</source>
            <translation>Bloqueig del repòs activat</translation>
        </message>
        <message>
            <source>Sound</source>
            <translation>So</translation>
        </message>
        <message>
            <source>Stability checks: </source>
            <translation>Comprovacions d'estabilitat: </translation>
        </message>
        <message>
            <source>Startup</source>
            <translation>Inici</translation>
        </message>
        <message>
            <source>Status</source>
            <translation>Estat</translation>
        </message>
        <message>
            <source>Stopped</source>
            <translation>Aturada</translation>
        </message>
        <message>
            <source>Success</source>
            <translation>Correcte</translation>
        </message>
        <message>
            <source>Sync &amp; Transfer</source>
            <translation>Sincronització i transferència</translation>
        </message>
        <message>
            <source>Sync Log</source>
            <translation>Registre de sincronització</translation>
        </message>
        <message>
            <source>Sync Now</source>
            <translation>Sincronitza ara</translation>
        </message>
        <message>
            <source>Sync every </source>
            <translation>Sincronitza cada </translation>
        </message>
        <message>
            <source>Sync only during scheduled hours</source>
            <translation>Sincronitza només en l'horari programat</translation>
        </message>
        <message>
            <source>Sync subfolders recursively</source>
            <translation>Sincronitza les subcarpetes recursivament</translation>
        </message>
        <message>
            <source>Syncing...</source>
            <translation>S'està sincronitzant...</translation>
        </message>
        <message>
            <source>System default</source>
            <translation>Llengua del sistema</translation>
        </message>
        <message>
            <source>TCP connection</source>
            <translation>Connexió TCP</translation>
        </message>
        <message>
            <source>Tags</source>
            <translation>Etiquetes</translation>
        </message>
        <message>
            <source>Tarnel %1 (build %2)</source>
            <translation>Tarnel %1 (compilació %2)</translation>
        </message>
        <message>
            <source>Tarnel History</source>
            <translation>Historial de Tarnel</translation>
        </message>
        <message>
            <source>Tarnel Log</source>
            <translation>Registre de Tarnel</translation>
        </message>
        <message>
            <source>Tarnel Settings</source>
            <translation>Configuració de Tarnel</translation>
        </message>
        <message>
            <source>Tarnel keeps running in the background when you close this window. To open it again, launch Tarnel from the applications menu.</source>
            <translation>Tarnel continua funcionant en segon pla quan tanqueu aquesta finestra. Per tornar-la a obrir, inicieu Tarnel des del menú d'aplicacions.</translation>
        </message>
        <message numerus="yes">
            <source>Tarnel: %n file(s) downloaded</source>
            <translation>
                <numerusform>Tarnel: %n fitxer baixat</numerusform>
                <numerusform>Tarnel: %n fitxers baixats</numerusform>
            </translation>
        </message>
        <message>
            <source>Tarnel: Connection error</source>
            <translation>Tarnel: error de connexió</translation>
        </message>
        <message>
            <source>Tarnel: Local folder problem</source>
            <translation>Tarnel: problema amb la carpeta local</translation>
        </message>
        <message>
            <source>Tarnel: New folder detected</source>
            <translation>Tarnel: s'ha detectat una carpeta nova</translation>
        </message>
        <message>
            <source>Tarnel: Transfer failed</source>
            <translation>Tarnel: la transferència ha fallat</translation>
        </message>
        <message>
            <source>Test Connection</source>
            <translation>Prova la connexió</translation>
        </message>
        <message>
            <source>Text tag</source>
            <translation>Etiqueta de text</translation>
        </message>
        <message>
            <source>The SFTP server's host key has changed since the last connection to %@. This can mean someone is intercepting the connection. If the change is expected (the server was reinstalled or its key replaced), remove the line for %@ from %@ and connect again.</source>
            <translation>La clau d'amfitrió del servidor SFTP ha canviat des de l'última connexió a %@. Això pot voler dir que algú intercepta la connexió. Si el canvi és esperat (el servidor s'ha reinstal·lat o se n'ha substituït la clau), suprimiu la línia de %@ de %@ i torneu a connectar.</translation>
        </message>
        <message>
            <source>The connection '</source>
            <translation>La connexió «</translation>
        </message>
        <message>
            <source>This action cannot be undone.</source>
            <translation>Aquesta acció no es pot desfer.</translation>
        </message>
        <message>
            <source>This will overwrite the current configuration with the recommended values for </source>
            <translation>Se sobreescriurà la configuració actual amb els valors recomanats per a </translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Hora</translation>
        </message>
        <message>
            <source>To </source>
            <translation>A </translation>
        </message>
        <message>
            <source>Today</source>
            <translation>Avui</translation>
        </message>
        <message>
            <source>Transfer History</source>
            <translation>Historial de transferències</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Tipus</translation>
        </message>
        <message>
            <source>Unix glob pattern: * matches any characters, ? matches one character</source>
            <translation>Patró glob d'Unix: * coincideix amb qualsevol seqüència de caràcters, ? amb un sol caràcter</translation>
        </message>
        <message>
            <source>Unlimited</source>
            <translation>Il·limitada</translation>
        </message>
        <message>
            <source>Unmute</source>
            <translation>Activa el so</translation>
        </message>
        <message>
            <source>Upload/store failed. The server rejected the operation. Check write permissions on the server.</source>
            <translation>No s'ha pogut pujar ni desar. El servidor ha rebutjat l'operació. Comproveu els permisos d'escriptura al servidor.</translation>
        </message>
        <message>
            <source>Username</source>
            <translation>Nom d'usuari</translation>
        </message>
        <message>
            <source>Variables: {original}, {date}, {time}, {counter}, {host}</source>
            <translation>Variables: {original}, {date}, {time}, {counter}, {host}</translation>
        </message>
        <message>
            <source>Verify checksum (MD5)</source>
            <translation>Verifica la suma de control (MD5)</translation>
        </message>
        <message>
            <source>Video</source>
            <translation>Vídeo</translation>
        </message>
        <message>
            <source>Video only</source>
            <translation>Només vídeo</translation>
        </message>
        <message>
            <source>Waiting...</source>
            <translation>En espera...</translation>
        </message>
        <message>
            <source>Warn and pause if disk space is low</source>
            <translation>Avisa i posa en pausa si queda poc espai de disc</translation>
        </message>
        <message>
            <source>Wrong username or password</source>
            <translation>Nom d'usuari o contrasenya incorrectes</translation>
        </message>
        <message>
            <source>dead.rule.warning</source>
            <translation>No s'usa mai: una regla anterior ja agafa aquests fitxers</translation>
        </message>
        <message>
            <source>ext.cat.audio</source>
            <translation>Àudio</translation>
        </message>
        <message>
            <source>ext.cat.documents</source>
            <translation>Documents</translation>
        </message>
        <message>
            <source>ext.cat.images</source>
            <translation>Imatges</translation>
        </message>
        <message>
            <source>ext.cat.temp</source>
            <translation>Fitxers temporals</translation>
        </message>
        <message>
            <source>ext.cat.video</source>
            <translation>Vídeo</translation>
        </message>
        <message>
            <source>ext.reset.button</source>
            <translation>Restableix la plantilla</translation>
        </message>
        <message>
            <source>ext.unspecified.download</source>
            <translation>Baixa</translation>
        </message>
        <message>
            <source>ext.unspecified.ignore</source>
            <translation>Ignora</translation>
        </message>
        <message>
            <source>ext.unspecified.label</source>
            <translation>Altres extensions</translation>
        </message>
        <message numerus="yes">
            <source>failed after %n attempts</source>
            <translation>
                <numerusform>ha fallat després de %n intent</numerusform>
                <numerusform>ha fallat després de %n intents</numerusform>
            </translation>
        </message>
        <message>
            <source>growing...</source>
            <translation>creixent...</translation>
        </message>
        <message>
            <source>invoice</source>
            <translation>factura</translation>
        </message>
        <message>
            <source>jpg, pdf, raw, cr3</source>
            <translation>jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>just now</source>
            <translation>ara mateix</translation>
        </message>
    </context>
</TS>
