<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
    <context>
        <name>tarnel</name>
        <message>
            <source> GB</source>
            <translation> GB</translation>
        </message>
        <message>
            <source> GB free</source>
            <translation> GB liberi</translation>
        </message>
        <message>
            <source>%@ checksum mismatch: the server says %@, the download gives %@. The file was not placed and stays on the server; it will be downloaded again.</source>
            <translation>Il checksum %@ non corrisponde: il server indica %@, il download dà %@. Il file non è stato collocato e resta sul server; verrà scaricato di nuovo.</translation>
        </message>
        <message>
            <source>%@ checksums</source>
            <translation>Checksum %@</translation>
        </message>
        <message>
            <source>%lld min ago</source>
            <translation>%lld min fa</translation>
        </message>
        <message>
            <source>%lldd ago</source>
            <translation>%lld g fa</translation>
        </message>
        <message>
            <source>%lldh ago</source>
            <translation>%lld h fa</translation>
        </message>
        <message>
            <source>%llds ago</source>
            <translation>%lld s fa</translation>
        </message>
        <message numerus="yes">
            <source>%n active connection(s)</source>
            <translation>
                <numerusform>%n connessione attiva</numerusform>
                <numerusform>%n connessioni attive</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s)</source>
            <translation>
                <numerusform>%n file</numerusform>
                <numerusform>%n file</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s) found</source>
            <translation>
                <numerusform>%n file trovato</numerusform>
                <numerusform>%n file trovati</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n folder(s) selected</source>
            <translation>
                <numerusform>%n cartella selezionata</numerusform>
                <numerusform>%n cartelle selezionate</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n minute(s)</source>
            <translation>
                <numerusform>%n minuto</numerusform>
                <numerusform>%n minuti</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n second(s)</source>
            <translation>
                <numerusform>%n secondo</numerusform>
                <numerusform>%n secondi</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n waiting for stability</source>
            <translation>
                <numerusform>%n in attesa di stabilità</numerusform>
                <numerusform>%n in attesa di stabilità</numerusform>
            </translation>
        </message>
        <message>
            <source>' has changes that were not applied.</source>
            <translation>» ha modifiche non applicate.</translation>
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
                <numerusform>+%n altro in download...</numerusform>
                <numerusform>+%n altri in download...</numerusform>
            </translation>
        </message>
        <message>
            <source>. Do you want to continue?</source>
            <translation>. Continuare?</translation>
        </message>
        <message numerus="yes">
            <source>...and %n more</source>
            <translation>
                <numerusform>...e %n altro</numerusform>
                <numerusform>...e %n altri</numerusform>
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
            <translation>15 secondi</translation>
        </message>
        <message>
            <source>2 MB/s</source>
            <translation>2 MB/s</translation>
        </message>
        <message>
            <source>2 minutes</source>
            <translation>2 minuti</translation>
        </message>
        <message>
            <source>2 seconds</source>
            <translation>2 secondi</translation>
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
            <translation>30 secondi</translation>
        </message>
        <message>
            <source>5 MB/s</source>
            <translation>5 MB/s</translation>
        </message>
        <message>
            <source>5 minutes</source>
            <translation>5 minuti</translation>
        </message>
        <message>
            <source>5 seconds</source>
            <translation>5 secondi</translation>
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
            <translation>ATTIVITÀ</translation>
        </message>
        <message>
            <source>About Tarnel</source>
            <translation>Informazioni su Tarnel</translation>
        </message>
        <message>
            <source>Access denied to the remote folder. Check that the path exists and you have read permission.</source>
            <translation>Accesso negato alla cartella remota. Verifica che il percorso esista e di avere il permesso di lettura.</translation>
        </message>
        <message>
            <source>Access to '%@' has expired. Please re-select the folder in Settings.</source>
            <translation>L'accesso a «%@» è scaduto. Seleziona di nuovo la cartella nelle Impostazioni.</translation>
        </message>
        <message>
            <source>Active</source>
            <translation>Attiva</translation>
        </message>
        <message>
            <source>Add Connection</source>
            <translation>Aggiungi connessione</translation>
        </message>
        <message>
            <source>Add Rule</source>
            <translation>Aggiungi regola</translation>
        </message>
        <message>
            <source>Advanced</source>
            <translation>Avanzate</translation>
        </message>
        <message>
            <source>Advanced Options</source>
            <translation>Opzioni avanzate</translation>
        </message>
        <message numerus="yes">
            <source>After %n consecutive failures</source>
            <translation>
                <numerusform>Dopo %n errore</numerusform>
                <numerusform>Dopo %n errori consecutivi</numerusform>
            </translation>
        </message>
        <message>
            <source>Agency / Creative</source>
            <translation>Agenzia / Creatività</translation>
        </message>
        <message>
            <source>All</source>
            <translation>Tutti</translation>
        </message>
        <message>
            <source>All except temporaries (recommended)</source>
            <translation>Tutto tranne i temporanei (consigliato)</translation>
        </message>
        <message>
            <source>All files</source>
            <translation>Tutti i file</translation>
        </message>
        <message>
            <source>All files (no filter)</source>
            <translation>Tutti i file (nessun filtro)</translation>
        </message>
        <message>
            <source>All files flat (one folder)</source>
            <translation>Tutti i file in una sola cartella</translation>
        </message>
        <message>
            <source>All time</source>
            <translation>Totale</translation>
        </message>
        <message>
            <source>Allow self-signed certificates</source>
            <translation>Consenti certificati autofirmati</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>Applica</translation>
        </message>
        <message>
            <source>Apply preset?</source>
            <translation>Applicare il modello?</translation>
        </message>
        <message>
            <source>Apply them now, or discard them?</source>
            <translation>Applicarle ora o scartarle?</translation>
        </message>
        <message>
            <source>Apply your changes?</source>
            <translation>Applicare le modifiche?</translation>
        </message>
        <message>
            <source>Audiovisual</source>
            <translation>Audiovisivo</translation>
        </message>
        <message>
            <source>Authentication</source>
            <translation>Autenticazione</translation>
        </message>
        <message>
            <source>Authentication failed. Check your username and password.</source>
            <translation>Autenticazione non riuscita. Verifica nome utente e password.</translation>
        </message>
        <message>
            <source>Auto-Rename</source>
            <translation>Rinomina automatica</translation>
        </message>
        <message>
            <source>Auto-decompress ZIP/GZ</source>
            <translation>Decomprimi automaticamente ZIP/GZ</translation>
        </message>
        <message>
            <source>Auto-monitor new remote folders</source>
            <translation>Monitora automaticamente le nuove cartelle remote</translation>
        </message>
        <message>
            <source>Behavior</source>
            <translation>Comportamento</translation>
        </message>
        <message>
            <source>Browse...</source>
            <translation>Sfoglia...</translation>
        </message>
        <message>
            <source>CONNECTIONS</source>
            <translation>CONNESSIONI</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
        <message>
            <source>Cannot connect to port %lld</source>
            <translation>Impossibile connettersi alla porta %lld</translation>
        </message>
        <message>
            <source>Cannot write to '%@'. Check the folder's permissions in the file manager.</source>
            <translation>Impossibile scrivere in «%@». Controlla i permessi della cartella nel gestore di file.</translation>
        </message>
        <message>
            <source>Cellular</source>
            <translation>Rete mobile</translation>
        </message>
        <message>
            <source>Changes applied</source>
            <translation>Modifiche applicate</translation>
        </message>
        <message>
            <source>Checksum and listing</source>
            <translation>Checksum ed elenco</translation>
        </message>
        <message>
            <source>Choose...</source>
            <translation>Scegli...</translation>
        </message>
        <message>
            <source>Clear</source>
            <translation>Cancella</translation>
        </message>
        <message>
            <source>Clear All</source>
            <translation>Cancella tutto</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>Colore</translation>
        </message>
        <message>
            <source>Comma-separated extensions. Example: jpg, pdf, raw, cr3</source>
            <translation>Estensioni separate da virgole. Esempio: jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>Command or script</source>
            <translation>Comando o script</translation>
        </message>
        <message>
            <source>Connect automatically when Tarnel starts</source>
            <translation>Connetti automaticamente all'avvio di Tarnel</translation>
        </message>
        <message>
            <source>Connected</source>
            <translation>Connesso</translation>
        </message>
        <message>
            <source>Connection</source>
            <translation>Connessione</translation>
        </message>
        <message>
            <source>Connection error (code %lld)%@. Check your connection settings.</source>
            <translation>Errore di connessione (codice %lld)%@. Controlla le impostazioni della connessione.</translation>
        </message>
        <message>
            <source>Connection failed: </source>
            <translation>Connessione non riuscita: </translation>
        </message>
        <message>
            <source>Connection successful</source>
            <translation>Connessione riuscita</translation>
        </message>
        <message>
            <source>Connection timed out. The server is too slow or unreachable. Try increasing the timeout or check your network.</source>
            <translation>Tempo di connessione scaduto. Il server è troppo lento o non raggiungibile. Prova ad aumentare il timeout o controlla la rete.</translation>
        </message>
        <message>
            <source>Connections</source>
            <translation>Connessioni</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Continua</translation>
        </message>
        <message>
            <source>Copy All</source>
            <translation>Copia tutto</translation>
        </message>
        <message>
            <source>Copy mode: files stay on the server.</source>
            <translation>Modalità copia: i file restano sul server.</translation>
        </message>
        <message>
            <source>Could not connect to server. Check the host, port, and that the server is running.</source>
            <translation>Impossibile connettersi al server. Controlla host e porta e che il server sia in funzione.</translation>
        </message>
        <message>
            <source>Could not resolve host. Check that the hostname is correct and your DNS is working.</source>
            <translation>Impossibile risolvere l'host. Controlla che il nome host sia corretto e che il DNS funzioni.</translation>
        </message>
        <message>
            <source>Create subfolder per connection</source>
            <translation>Crea una sottocartella per connessione</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Personalizzato</translation>
        </message>
        <message>
            <source>Custom mapping per folder</source>
            <translation>Mappatura personalizzata per cartella</translation>
        </message>
        <message>
            <source>Custom pattern (glob)</source>
            <translation>Schema personalizzato (glob)</translation>
        </message>
        <message>
            <source>DNS resolution</source>
            <translation>Risoluzione DNS</translation>
        </message>
        <message>
            <source>Data &amp; Analytics</source>
            <translation>Dati e analisi</translation>
        </message>
        <message>
            <source>Data / Analytics</source>
            <translation>Dati / Analisi</translation>
        </message>
        <message>
            <source>Days</source>
            <translation>Giorni</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Elimina</translation>
        </message>
        <message>
            <source>Delete '</source>
            <translation>Eliminare «</translation>
        </message>
        <message>
            <source>Delete empty remote folders</source>
            <translation>Elimina le cartelle remote vuote</translation>
        </message>
        <message>
            <source>Delete failed: %@</source>
            <translation>Eliminazione non riuscita: %@</translation>
        </message>
        <message>
            <source>Delete files from FTP after download</source>
            <translation>Elimina i file dal server FTP dopo il download</translation>
        </message>
        <message>
            <source>Delete this connection?</source>
            <translation>Eliminare questa connessione?</translation>
        </message>
        <message>
            <source>Deselect All</source>
            <translation>Deseleziona tutto</translation>
        </message>
        <message>
            <source>Destination</source>
            <translation>Destinazione</translation>
        </message>
        <message>
            <source>Destination Folder</source>
            <translation>Cartella di destinazione</translation>
        </message>
        <message>
            <source>Disable SSL verification. Only enable if your server uses a self-signed or expired certificate.</source>
            <translation>Disattiva la verifica SSL. Attivala solo se il server usa un certificato autofirmato o scaduto.</translation>
        </message>
        <message>
            <source>Disable connection</source>
            <translation>Disattiva connessione</translation>
        </message>
        <message>
            <source>Disabled</source>
            <translation>Disattivata</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>Scarta</translation>
        </message>
        <message>
            <source>Disk Space</source>
            <translation>Spazio su disco</translation>
        </message>
        <message>
            <source>Download Notifications</source>
            <translation>Notifiche di download</translation>
        </message>
        <message>
            <source>Download failed: %@</source>
            <translation>Download non riuscito: %@</translation>
        </message>
        <message>
            <source>Downloaded file '%@' is empty. The remote file may be corrupted or still being written.</source>
            <translation>Il file scaricato «%@» è vuoto. Il file remoto potrebbe essere danneggiato o ancora in scrittura.</translation>
        </message>
        <message>
            <source>E-commerce</source>
            <translation>E-commerce</translation>
        </message>
        <message>
            <source>E-commerce / Data</source>
            <translation>E-commerce / Dati</translation>
        </message>
        <message>
            <source>Enable connection</source>
            <translation>Attiva connessione</translation>
        </message>
        <message>
            <source>Enabled</source>
            <translation>Attiva</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>Errore</translation>
        </message>
        <message>
            <source>Error Notifications</source>
            <translation>Notifiche di errore</translation>
        </message>
        <message>
            <source>Error: </source>
            <translation>Errore: </translation>
        </message>
        <message>
            <source>Example: </source>
            <translation>Esempio: </translation>
        </message>
        <message>
            <source>Extension preset</source>
            <translation>Modello di estensioni</translation>
        </message>
        <message>
            <source>FTP Mode</source>
            <translation>Modalità FTP</translation>
        </message>
        <message>
            <source>FTP does not encrypt data. For medical records, SFTP is strongly recommended.</source>
            <translation>FTP non cifra i dati. Per i dati sanitari si consiglia vivamente SFTP.</translation>
        </message>
        <message>
            <source>FTP quote command failed. Check the remote path or delete permissions.</source>
            <translation>Comando FTP non riuscito. Controlla il percorso remoto o i permessi di eliminazione.</translation>
        </message>
        <message>
            <source>File</source>
            <translation>File</translation>
        </message>
        <message>
            <source>File type</source>
            <translation>Tipo di file</translation>
        </message>
        <message>
            <source>Filename contains</source>
            <translation>Il nome contiene</translation>
        </message>
        <message>
            <source>Filename starts with</source>
            <translation>Il nome inizia con</translation>
        </message>
        <message>
            <source>Filters</source>
            <translation>Filtri</translation>
        </message>
        <message>
            <source>Finance</source>
            <translation>Finanza</translation>
        </message>
        <message>
            <source>Finance / Accounting</source>
            <translation>Finanza / Contabilità</translation>
        </message>
        <message>
            <source>Folder error</source>
            <translation>Errore cartella</translation>
        </message>
        <message>
            <source>Folder not accessible: %@</source>
            <translation>Cartella non accessibile: %@</translation>
        </message>
        <message>
            <source>From </source>
            <translation>Dalle </translation>
        </message>
        <message>
            <source>General</source>
            <translation>Generali</translation>
        </message>
        <message>
            <source>Group notifications (summary instead of file list)</source>
            <translation>Raggruppa le notifiche (riepilogo invece dell'elenco dei file)</translation>
        </message>
        <message>
            <source>Health</source>
            <translation>Sanità</translation>
        </message>
        <message>
            <source>Health / Compliance</source>
            <translation>Sanità / Conformità</translation>
        </message>
        <message>
            <source>History...</source>
            <translation>Cronologia...</translation>
        </message>
        <message>
            <source>Host</source>
            <translation>Host</translation>
        </message>
        <message>
            <source>Host '%@' not found</source>
            <translation>Host «%@» non trovato</translation>
        </message>
        <message>
            <source>IT &amp; Integrations</source>
            <translation>IT e integrazioni</translation>
        </message>
        <message>
            <source>IT / Integrations</source>
            <translation>IT / Integrazioni</translation>
        </message>
        <message>
            <source>If No Rule Matches</source>
            <translation>Se nessuna regola corrisponde</translation>
        </message>
        <message>
            <source>If the computer sleeps anyway (battery, lid close), transfers will pause and resume automatically on wake.</source>
            <translation>Se il computer va comunque in sospensione (batteria, coperchio chiuso), i trasferimenti si fermano e riprendono da soli al risveglio.</translation>
        </message>
        <message>
            <source>Ignore (don't download)</source>
            <translation>Ignora (non scaricare)</translation>
        </message>
        <message>
            <source>Includes files from all subfolders on the server. Can be slow with large servers.</source>
            <translation>Include i file di tutte le sottocartelle del server. Può essere lento con server grandi.</translation>
        </message>
        <message>
            <source>Interrupted downloads resume automatically. Set to 0 to disable.</source>
            <translation>I download interrotti riprendono automaticamente. Imposta 0 per disattivare.</translation>
        </message>
        <message>
            <source>LIST listings</source>
            <translation>Elenchi LIST</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>Lingua</translation>
        </message>
        <message>
            <source>Last activity: </source>
            <translation>Ultima attività: </translation>
        </message>
        <message>
            <source>Launch Tarnel when you log in</source>
            <translation>Avvia Tarnel all'accesso</translation>
        </message>
        <message>
            <source>Listing folders...</source>
            <translation>Elenco delle cartelle...</translation>
        </message>
        <message>
            <source>Local Folder</source>
            <translation>Cartella locale</translation>
        </message>
        <message>
            <source>Log Folder</source>
            <translation>Cartella dei registri</translation>
        </message>
        <message>
            <source>Log...</source>
            <translation>Registro...</translation>
        </message>
        <message>
            <source>Low disk</source>
            <translation>Disco quasi pieno</translation>
        </message>
        <message>
            <source>MLSD listings</source>
            <translation>Elenchi MLSD</translation>
        </message>
        <message>
            <source>Made by the Tarnel developers.</source>
            <translation>Realizzato dagli sviluppatori di Tarnel.</translation>
        </message>
        <message>
            <source>Main folder</source>
            <translation>Cartella principale</translation>
        </message>
        <message>
            <source>Manual</source>
            <translation>Manuale</translation>
        </message>
        <message>
            <source>Match</source>
            <translation>Condizione</translation>
        </message>
        <message>
            <source>Matches any file whose name contains this text</source>
            <translation>Vale per ogni file il cui nome contiene questo testo</translation>
        </message>
        <message>
            <source>Matches any file whose name starts with this text</source>
            <translation>Vale per ogni file il cui nome inizia con questo testo</translation>
        </message>
        <message>
            <source>Max depth: </source>
            <translation>Profondità massima: </translation>
        </message>
        <message>
            <source>Max download speed</source>
            <translation>Velocità massima di download</translation>
        </message>
        <message>
            <source>Max resume attempts: </source>
            <translation>Tentativi di ripresa max: </translation>
        </message>
        <message>
            <source>Max retries: </source>
            <translation>Tentativi max: </translation>
        </message>
        <message>
            <source>Min file size: </source>
            <translation>Dimensione minima: </translation>
        </message>
        <message>
            <source>Minimum free space</source>
            <translation>Spazio libero minimo</translation>
        </message>
        <message>
            <source>Mirror remote structure</source>
            <translation>Replica la struttura remota</translation>
        </message>
        <message>
            <source>Monitoring — no transfers in progress</source>
            <translation>In monitoraggio — nessun trasferimento in corso</translation>
        </message>
        <message>
            <source>Move mode: files are removed from the server.</source>
            <translation>Modalità spostamento: i file vengono rimossi dal server.</translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>Silenzia</translation>
        </message>
        <message>
            <source>My Camera FTP</source>
            <translation>La mia fotocamera FTP</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Nome</translation>
        </message>
        <message>
            <source>Network</source>
            <translation>Rete</translation>
        </message>
        <message>
            <source>New Connection</source>
            <translation>Nuova connessione</translation>
        </message>
        <message>
            <source>No checksum: files are verified by size</source>
            <translation>Nessun checksum: i file sono verificati in base alla dimensione</translation>
        </message>
        <message>
            <source>No connections</source>
            <translation>Nessuna connessione</translation>
        </message>
        <message>
            <source>No connections configured</source>
            <translation>Nessuna connessione configurata</translation>
        </message>
        <message>
            <source>No log entries yet.</source>
            <translation>Ancora nessuna voce nel registro.</translation>
        </message>
        <message>
            <source>No minimum</source>
            <translation>Nessun minimo</translation>
        </message>
        <message>
            <source>No network</source>
            <translation>Nessuna rete</translation>
        </message>
        <message>
            <source>No recent downloads</source>
            <translation>Nessun download recente</translation>
        </message>
        <message>
            <source>No rename — original filename is kept</source>
            <translation>Nessuna ridenominazione — il nome originale resta</translation>
        </message>
        <message>
            <source>No rules — all files go to the main folder</source>
            <translation>Nessuna regola — tutti i file vanno nella cartella principale</translation>
        </message>
        <message>
            <source>No subdirectories found</source>
            <translation>Nessuna sottocartella trovata</translation>
        </message>
        <message>
            <source>No transfer history.</source>
            <translation>Nessun trasferimento nella cronologia.</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Nessuno</translation>
        </message>
        <message>
            <source>Not selected</source>
            <translation>Non selezionata</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>Notifiche</translation>
        </message>
        <message>
            <source>Notify on connection errors</source>
            <translation>Notifica gli errori di connessione</translation>
        </message>
        <message>
            <source>Notify when connections pause/resume by schedule</source>
            <translation>Notifica quando le connessioni si fermano o riprendono secondo l'orario</translation>
        </message>
        <message>
            <source>Notify when downloads complete</source>
            <translation>Notifica al termine dei download</translation>
        </message>
        <message>
            <source>Offline</source>
            <translation>Offline</translation>
        </message>
        <message>
            <source>Only %@ GB of disk space remaining. Free up space to continue downloading.</source>
            <translation>Restano solo %@ GB di spazio su disco. Libera spazio per continuare a scaricare.</translation>
        </message>
        <message numerus="yes">
            <source>Only if %n or more files</source>
            <translation>
                <numerusform>Solo se %n o più file</numerusform>
                <numerusform>Solo se %n o più file</numerusform>
            </translation>
        </message>
        <message>
            <source>Only last folder level</source>
            <translation>Solo l'ultimo livello di cartella</translation>
        </message>
        <message>
            <source>Open Tarnel</source>
            <translation>Apri Tarnel</translation>
        </message>
        <message>
            <source>Open destination folder</source>
            <translation>Apri la cartella di destinazione</translation>
        </message>
        <message>
            <source>Open destination folders</source>
            <translation>Apri le cartelle di destinazione</translation>
        </message>
        <message>
            <source>Open main folder</source>
            <translation>Apri la cartella principale</translation>
        </message>
        <message>
            <source>Optional tag name</source>
            <translation>Nome del tag (facoltativo)</translation>
        </message>
        <message>
            <source>Organization</source>
            <translation>Organizzazione</translation>
        </message>
        <message>
            <source>Organize by date (YYYY/MM/DD)</source>
            <translation>Organizza per data (AAAA/MM/GG)</translation>
        </message>
        <message>
            <source>Organize downloads</source>
            <translation>Organizza i download</translation>
        </message>
        <message>
            <source>Other files</source>
            <translation>Altri file</translation>
        </message>
        <message>
            <source>Parse error: %@</source>
            <translation>Errore di analisi: %@</translation>
        </message>
        <message>
            <source>Partial file received. The transfer was interrupted. It will retry automatically.</source>
            <translation>File ricevuto in parte. Il trasferimento si è interrotto e verrà ritentato automaticamente.</translation>
        </message>
        <message>
            <source>Passive (recommended)</source>
            <translation>Passiva (consigliata)</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>Password</translation>
        </message>
        <message>
            <source>Pattern (empty = no rename)</source>
            <translation>Schema (vuoto = nessuna ridenominazione)</translation>
        </message>
        <message>
            <source>Pattern:</source>
            <translation>Schema:</translation>
        </message>
        <message>
            <source>Pause</source>
            <translation>Pausa</translation>
        </message>
        <message>
            <source>Pause and resume on wake</source>
            <translation>Pausa e ripresa al risveglio</translation>
        </message>
        <message>
            <source>Pause when internet is unavailable</source>
            <translation>Pausa quando internet non è disponibile</translation>
        </message>
        <message>
            <source>Pause when on mobile hotspot</source>
            <translation>Pausa con hotspot mobile</translation>
        </message>
        <message>
            <source>Paused</source>
            <translation>In pausa</translation>
        </message>
        <message>
            <source>Paused — low disk space</source>
            <translation>In pausa — poco spazio su disco</translation>
        </message>
        <message>
            <source>Paused — mobile hotspot detected</source>
            <translation>In pausa — hotspot mobile rilevato</translation>
        </message>
        <message>
            <source>Paused — no internet connection</source>
            <translation>In pausa — nessuna connessione a internet</translation>
        </message>
        <message>
            <source>Photography</source>
            <translation>Fotografia</translation>
        </message>
        <message>
            <source>Photos only</source>
            <translation>Solo foto</translation>
        </message>
        <message>
            <source>Play sound on download</source>
            <translation>Riproduci un suono al download</translation>
        </message>
        <message>
            <source>Polling Interval</source>
            <translation>Intervallo di controllo</translation>
        </message>
        <message>
            <source>Port</source>
            <translation>Porta</translation>
        </message>
        <message>
            <source>Port must be between 1 and 65535</source>
            <translation>La porta deve essere tra 1 e 65535</translation>
        </message>
        <message>
            <source>Preset</source>
            <translation>Modello</translation>
        </message>
        <message>
            <source>Press "Browse..." to list the server's folders.</source>
            <translation>Premi «Sfoglia...» per elencare le cartelle del server.</translation>
        </message>
        <message>
            <source>Prevent sleep during downloads</source>
            <translation>Impedisci la sospensione durante i download</translation>
        </message>
        <message>
            <source>Preventing sleep — downloading</source>
            <translation>Sospensione impedita — download in corso</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Anteprima</translation>
        </message>
        <message>
            <source>Preview:</source>
            <translation>Anteprima:</translation>
        </message>
        <message>
            <source>Print &amp; Graphics</source>
            <translation>Stampa e grafica</translation>
        </message>
        <message>
            <source>Print / Graphics</source>
            <translation>Stampa / Grafica</translation>
        </message>
        <message>
            <source>Protocol</source>
            <translation>Protocollo</translation>
        </message>
        <message>
            <source>Quit</source>
            <translation>Esci</translation>
        </message>
        <message>
            <source>RECENT</source>
            <translation>RECENTI</translation>
        </message>
        <message>
            <source>Re-select folder to grant persistent access</source>
            <translation>Seleziona di nuovo la cartella per concedere l'accesso permanente</translation>
        </message>
        <message>
            <source>Read Me</source>
            <translation>Leggimi</translation>
        </message>
        <message>
            <source>Recommended for critical transfers. May double download time.</source>
            <translation>Consigliato per i trasferimenti critici. Può raddoppiare il tempo di download.</translation>
        </message>
        <message>
            <source>Remote Folder</source>
            <translation>Cartella remota</translation>
        </message>
        <message>
            <source>Remote Subdirectories</source>
            <translation>Sottocartelle remote</translation>
        </message>
        <message>
            <source>Remote folder access</source>
            <translation>Accesso alla cartella remota</translation>
        </message>
        <message>
            <source>Remote path</source>
            <translation>Percorso remoto</translation>
        </message>
        <message>
            <source>Remote path contains a control character</source>
            <translation>Il percorso remoto contiene un carattere di controllo</translation>
        </message>
        <message>
            <source>Research / Science</source>
            <translation>Ricerca / Scienza</translation>
        </message>
        <message>
            <source>Restart Tarnel to apply the language change.</source>
            <translation>Riavvia Tarnel per applicare il cambio di lingua.</translation>
        </message>
        <message>
            <source>Resume</source>
            <translation>Riprendi</translation>
        </message>
        <message>
            <source>Retry Failed</source>
            <translation>Fallito</translation>
        </message>
        <message>
            <source>Retrying (%lld/%lld)...</source>
            <translation>Nuovo tentativo (%lld/%lld)...</translation>
        </message>
        <message>
            <source>Routing Rule</source>
            <translation>Regola di smistamento</translation>
        </message>
        <message>
            <source>Routing Rules</source>
            <translation>Regole di smistamento</translation>
        </message>
        <message>
            <source>Rule enabled</source>
            <translation>Regola attiva</translation>
        </message>
        <message>
            <source>Run post-download action</source>
            <translation>Esegui un'azione dopo il download</translation>
        </message>
        <message>
            <source>SSH Key Path</source>
            <translation>Percorso chiave SSH</translation>
        </message>
        <message>
            <source>SSL certificate verification failed. The server certificate may be self-signed or expired.</source>
            <translation>Verifica del certificato SSL non riuscita. Il certificato del server potrebbe essere autofirmato o scaduto.</translation>
        </message>
        <message>
            <source>SSL/TLS handshake failed. The server may not support FTPS, or the certificate is invalid.</source>
            <translation>Handshake SSL/TLS non riuscito. Il server potrebbe non supportare FTPS o il certificato non è valido.</translation>
        </message>
        <message>
            <source>STATISTICS</source>
            <translation>STATISTICHE</translation>
        </message>
        <message>
            <source>STOCK_</source>
            <translation>STOCK_</translation>
        </message>
        <message>
            <source>Same as main folder</source>
            <translation>Come la cartella principale</translation>
        </message>
        <message>
            <source>Save Rule</source>
            <translation>Salva regola</translation>
        </message>
        <message>
            <source>Save to main folder</source>
            <translation>Salva nella cartella principale</translation>
        </message>
        <message>
            <source>Save to specific folder</source>
            <translation>Salva in una cartella specifica</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>Orario</translation>
        </message>
        <message>
            <source>Schedule Notifications</source>
            <translation>Notifiche dell'orario</translation>
        </message>
        <message>
            <source>Scheduled </source>
            <translation>Programmato </translation>
        </message>
        <message>
            <source>Search...</source>
            <translation>Cerca...</translation>
        </message>
        <message>
            <source>Sector preset</source>
            <translation>Modello di settore</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Seleziona tutto</translation>
        </message>
        <message>
            <source>Select SSH key (optional)</source>
            <translation>Seleziona la chiave SSH (facoltativa)</translation>
        </message>
        <message>
            <source>Select a connection or add a new one.</source>
            <translation>Seleziona una connessione o aggiungine una nuova.</translation>
        </message>
        <message>
            <source>Settings...</source>
            <translation>Impostazioni...</translation>
        </message>
        <message>
            <source>Simultaneous downloads: </source>
            <translation>Download simultanei: </translation>
        </message>
        <message>
            <source>Size</source>
            <translation>Dim.</translation>
        </message>
        <message>
            <source>Size mismatch: expected %@, got %@. The file may still be uploading.</source>
            <translation>Dimensione diversa: attesi %@, ricevuti %@. Il file potrebbe essere ancora in caricamento.</translation>
        </message>
        <message>
            <source>Sleep Behavior</source>
            <translation>Sospensione</translation>
        </message>
        <message>
            <source>Sleep is only prevented while files are actively downloading. Normal sleep resumes when idle.</source>
            <translation>La sospensione viene impedita solo mentre si scaricano file. A riposo la sospensione torna normale.</translation>
        </message>
        <message>
            <source>Sleep prevention enabled</source>
            <translation>Blocco della sospensione attivo</translation>
        </message>
        <message>
            <source>Sound</source>
            <translation>Suono</translation>
        </message>
        <message>
            <source>Stability checks: </source>
            <translation>Controlli di stabilità: </translation>
        </message>
        <message>
            <source>Startup</source>
            <translation>Avvio</translation>
        </message>
        <message>
            <source>Status</source>
            <translation>Stato</translation>
        </message>
        <message>
            <source>Stopped</source>
            <translation>Ferma</translation>
        </message>
        <message>
            <source>Success</source>
            <translation>Riuscito</translation>
        </message>
        <message>
            <source>Sync &amp; Transfer</source>
            <translation>Sincronizzazione e trasferimento</translation>
        </message>
        <message>
            <source>Sync Log</source>
            <translation>Registro di sincronizzazione</translation>
        </message>
        <message>
            <source>Sync Now</source>
            <translation>Sincronizza ora</translation>
        </message>
        <message>
            <source>Sync every </source>
            <translation>Sincronizza ogni </translation>
        </message>
        <message>
            <source>Sync only during scheduled hours</source>
            <translation>Sincronizza solo nelle ore programmate</translation>
        </message>
        <message>
            <source>Sync subfolders recursively</source>
            <translation>Sincronizza le sottocartelle in modo ricorsivo</translation>
        </message>
        <message>
            <source>Syncing...</source>
            <translation>Sincronizzazione...</translation>
        </message>
        <message>
            <source>System default</source>
            <translation>Lingua del sistema</translation>
        </message>
        <message>
            <source>TCP connection</source>
            <translation>Connessione TCP</translation>
        </message>
        <message>
            <source>Tags</source>
            <translation>Tag</translation>
        </message>
        <message>
            <source>Tarnel %1 (build %2)</source>
            <translation>Tarnel %1 (build %2)</translation>
        </message>
        <message>
            <source>Tarnel History</source>
            <translation>Cronologia di Tarnel</translation>
        </message>
        <message>
            <source>Tarnel Log</source>
            <translation>Registro di Tarnel</translation>
        </message>
        <message>
            <source>Tarnel Settings</source>
            <translation>Impostazioni di Tarnel</translation>
        </message>
        <message>
            <source>Tarnel keeps running in the background when you close this window. To open it again, launch Tarnel from the applications menu.</source>
            <translation>Tarnel continua a funzionare in background quando chiudi questa finestra. Per riaprirla, avvia Tarnel dal menu delle applicazioni.</translation>
        </message>
        <message numerus="yes">
            <source>Tarnel: %n file(s) downloaded</source>
            <translation>
                <numerusform>Tarnel: %n file scaricato</numerusform>
                <numerusform>Tarnel: %n file scaricati</numerusform>
            </translation>
        </message>
        <message>
            <source>Tarnel: Connection error</source>
            <translation>Tarnel: errore di connessione</translation>
        </message>
        <message>
            <source>Tarnel: Local folder problem</source>
            <translation>Tarnel: problema con la cartella locale</translation>
        </message>
        <message>
            <source>Tarnel: New folder detected</source>
            <translation>Tarnel: nuova cartella rilevata</translation>
        </message>
        <message>
            <source>Tarnel: Transfer failed</source>
            <translation>Tarnel: trasferimento non riuscito</translation>
        </message>
        <message>
            <source>Test Connection</source>
            <translation>Prova connessione</translation>
        </message>
        <message>
            <source>Text tag</source>
            <translation>Tag di testo</translation>
        </message>
        <message>
            <source>The SFTP server's host key has changed since the last connection to %@. This can mean someone is intercepting the connection. If the change is expected (the server was reinstalled or its key replaced), remove the line for %@ from %@ and connect again.</source>
            <translation>La chiave host del server SFTP è cambiata dall'ultima connessione a %@. Qualcuno potrebbe intercettare la connessione. Se il cambio è previsto (il server è stato reinstallato o la sua chiave sostituita), rimuovi la riga di %@ da %@ e connettiti di nuovo.</translation>
        </message>
        <message>
            <source>The connection '</source>
            <translation>La connessione «</translation>
        </message>
        <message>
            <source>This action cannot be undone.</source>
            <translation>Questa azione non può essere annullata.</translation>
        </message>
        <message>
            <source>This will overwrite the current configuration with the recommended values for </source>
            <translation>La configurazione attuale verrà sovrascritta con i valori consigliati per </translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Ora</translation>
        </message>
        <message>
            <source>To </source>
            <translation>Alle </translation>
        </message>
        <message>
            <source>Today</source>
            <translation>Oggi</translation>
        </message>
        <message>
            <source>Transfer History</source>
            <translation>Cronologia dei trasferimenti</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Tipo</translation>
        </message>
        <message>
            <source>Unix glob pattern: * matches any characters, ? matches one character</source>
            <translation>Schema glob Unix: * corrisponde a qualsiasi sequenza di caratteri, ? a un solo carattere</translation>
        </message>
        <message>
            <source>Unlimited</source>
            <translation>Illimitata</translation>
        </message>
        <message>
            <source>Unmute</source>
            <translation>Riattiva audio</translation>
        </message>
        <message>
            <source>Upload/store failed. The server rejected the operation. Check write permissions on the server.</source>
            <translation>Caricamento non riuscito. Il server ha rifiutato l'operazione. Controlla i permessi di scrittura sul server.</translation>
        </message>
        <message>
            <source>Username</source>
            <translation>Nome utente</translation>
        </message>
        <message>
            <source>Variables: {original}, {date}, {time}, {counter}, {host}</source>
            <translation>Variabili: {original}, {date}, {time}, {counter}, {host}</translation>
        </message>
        <message>
            <source>Verify checksum (MD5)</source>
            <translation>Verifica checksum (MD5)</translation>
        </message>
        <message>
            <source>Video</source>
            <translation>Video</translation>
        </message>
        <message>
            <source>Video only</source>
            <translation>Solo video</translation>
        </message>
        <message>
            <source>Waiting...</source>
            <translation>In attesa...</translation>
        </message>
        <message>
            <source>Warn and pause if disk space is low</source>
            <translation>Avvisa e metti in pausa se lo spazio su disco è poco</translation>
        </message>
        <message>
            <source>Wrong username or password</source>
            <translation>Nome utente o password errati</translation>
        </message>
        <message>
            <source>dead.rule.warning</source>
            <translation>Mai usata: una regola precedente prende già questi file</translation>
        </message>
        <message>
            <source>ext.cat.audio</source>
            <translation>Audio</translation>
        </message>
        <message>
            <source>ext.cat.documents</source>
            <translation>Documenti</translation>
        </message>
        <message>
            <source>ext.cat.images</source>
            <translation>Immagini</translation>
        </message>
        <message>
            <source>ext.cat.temp</source>
            <translation>File temporanei</translation>
        </message>
        <message>
            <source>ext.cat.video</source>
            <translation>Video</translation>
        </message>
        <message>
            <source>ext.reset.button</source>
            <translation>Ripristina il modello</translation>
        </message>
        <message>
            <source>ext.unspecified.download</source>
            <translation>Scarica</translation>
        </message>
        <message>
            <source>ext.unspecified.ignore</source>
            <translation>Ignora</translation>
        </message>
        <message>
            <source>ext.unspecified.label</source>
            <translation>Altre estensioni</translation>
        </message>
        <message numerus="yes">
            <source>failed after %n attempts</source>
            <translation>
                <numerusform>non riuscito dopo %n tentativo</numerusform>
                <numerusform>non riuscito dopo %n tentativi</numerusform>
            </translation>
        </message>
        <message>
            <source>growing...</source>
            <translation>in crescita...</translation>
        </message>
        <message>
            <source>invoice</source>
            <translation>fattura</translation>
        </message>
        <message>
            <source>jpg, pdf, raw, cr3</source>
            <translation>jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>just now</source>
            <translation>adesso</translation>
        </message>
    </context>
</TS>
