<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
    <context>
        <name>tarnel</name>
        <message>
            <source> GB</source>
            <translation> GB</translation>
        </message>
        <message>
            <source> GB free</source>
            <translation> GB vrij</translation>
        </message>
        <message>
            <source>%@ checksum mismatch: the server says %@, the download gives %@. The file was not placed and stays on the server; it will be downloaded again.</source>
            <translation>%@-controlesom komt niet overeen: de server meldt %@, de download geeft %@. Het bestand is niet geplaatst en blijft op de server; het wordt opnieuw gedownload.</translation>
        </message>
        <message>
            <source>%@ checksums</source>
            <translation>%@-controlesommen</translation>
        </message>
        <message>
            <source>%lld min ago</source>
            <translation>%lld min geleden</translation>
        </message>
        <message>
            <source>%lldd ago</source>
            <translation>%lld d geleden</translation>
        </message>
        <message>
            <source>%lldh ago</source>
            <translation>%lld u geleden</translation>
        </message>
        <message>
            <source>%llds ago</source>
            <translation>%lld s geleden</translation>
        </message>
        <message numerus="yes">
            <source>%n active connection(s)</source>
            <translation>
                <numerusform>%n actieve verbinding</numerusform>
                <numerusform>%n actieve verbindingen</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s)</source>
            <translation>
                <numerusform>%n bestand</numerusform>
                <numerusform>%n bestanden</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s) found</source>
            <translation>
                <numerusform>%n bestand gevonden</numerusform>
                <numerusform>%n bestanden gevonden</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n folder(s) selected</source>
            <translation>
                <numerusform>%n map geselecteerd</numerusform>
                <numerusform>%n mappen geselecteerd</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n minute(s)</source>
            <translation>
                <numerusform>%n minuut</numerusform>
                <numerusform>%n minuten</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n second(s)</source>
            <translation>
                <numerusform>%n seconde</numerusform>
                <numerusform>%n seconden</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n waiting for stability</source>
            <translation>
                <numerusform>%n wacht op stabiliteit</numerusform>
                <numerusform>%n wachten op stabiliteit</numerusform>
            </translation>
        </message>
        <message>
            <source>' has changes that were not applied.</source>
            <translation>’ heeft wijzigingen die nog niet zijn toegepast.</translation>
        </message>
        <message>
            <source>'?</source>
            <translation>’ verwijderen?</translation>
        </message>
        <message>
            <source>*.2024.*</source>
            <translation>*.2024.*</translation>
        </message>
        <message numerus="yes">
            <source>+%n more downloading...</source>
            <translation>
                <numerusform>+%n wordt nog gedownload...</numerusform>
                <numerusform>+%n worden nog gedownload...</numerusform>
            </translation>
        </message>
        <message>
            <source>. Do you want to continue?</source>
            <translation>. Wilt u doorgaan?</translation>
        </message>
        <message numerus="yes">
            <source>...and %n more</source>
            <translation>
                <numerusform>...en nog %n</numerusform>
                <numerusform>...en nog %n</numerusform>
            </translation>
        </message>
        <message>
            <source>1 MB/s</source>
            <translation>1 MB/s</translation>
        </message>
        <message>
            <source>1 minute</source>
            <translation>1 minuut</translation>
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
            <translation>15 seconden</translation>
        </message>
        <message>
            <source>2 MB/s</source>
            <translation>2 MB/s</translation>
        </message>
        <message>
            <source>2 minutes</source>
            <translation>2 minuten</translation>
        </message>
        <message>
            <source>2 seconds</source>
            <translation>2 seconden</translation>
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
            <translation>30 seconden</translation>
        </message>
        <message>
            <source>5 MB/s</source>
            <translation>5 MB/s</translation>
        </message>
        <message>
            <source>5 minutes</source>
            <translation>5 minuten</translation>
        </message>
        <message>
            <source>5 seconds</source>
            <translation>5 seconden</translation>
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
            <translation>ACTIVITEIT</translation>
        </message>
        <message>
            <source>About Tarnel</source>
            <translation>Over Tarnel</translation>
        </message>
        <message>
            <source>Access denied to the remote folder. Check that the path exists and you have read permission.</source>
            <translation>Toegang tot de externe map geweigerd. Controleer of het pad bestaat en of u leesrechten hebt.</translation>
        </message>
        <message>
            <source>Access to '%@' has expired. Please re-select the folder in Settings.</source>
            <translation>De toegang tot ‘%@’ is verlopen. Selecteer de map opnieuw in de Instellingen.</translation>
        </message>
        <message>
            <source>Active</source>
            <translation>Actief</translation>
        </message>
        <message>
            <source>Add Connection</source>
            <translation>Verbinding toevoegen</translation>
        </message>
        <message>
            <source>Add Rule</source>
            <translation>Regel toevoegen</translation>
        </message>
        <message>
            <source>Advanced</source>
            <translation>Geavanceerd</translation>
        </message>
        <message>
            <source>Advanced Options</source>
            <translation>Geavanceerde opties</translation>
        </message>
        <message numerus="yes">
            <source>After %n consecutive failures</source>
            <translation>
                <numerusform>Na %n mislukte poging</numerusform>
                <numerusform>Na %n mislukte pogingen op rij</numerusform>
            </translation>
        </message>
        <message>
            <source>Agency / Creative</source>
            <translation>Bureau / Creatief</translation>
        </message>
        <message>
            <source>All</source>
            <translation>Alle</translation>
        </message>
        <message>
            <source>All except temporaries (recommended)</source>
            <translation>Alles behalve tijdelijke bestanden (aanbevolen)</translation>
        </message>
        <message>
            <source>All files</source>
            <translation>Alle bestanden</translation>
        </message>
        <message>
            <source>All files (no filter)</source>
            <translation>Alle bestanden (geen filter)</translation>
        </message>
        <message>
            <source>All files flat (one folder)</source>
            <translation>Alle bestanden plat (één map)</translation>
        </message>
        <message>
            <source>All time</source>
            <translation>Totaal</translation>
        </message>
        <message>
            <source>Allow self-signed certificates</source>
            <translation>Zelfondertekende certificaten toestaan</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>Toepassen</translation>
        </message>
        <message>
            <source>Apply preset?</source>
            <translation>Sjabloon toepassen?</translation>
        </message>
        <message>
            <source>Apply them now, or discard them?</source>
            <translation>Nu toepassen of verwerpen?</translation>
        </message>
        <message>
            <source>Apply your changes?</source>
            <translation>Wijzigingen toepassen?</translation>
        </message>
        <message>
            <source>Audiovisual</source>
            <translation>Audiovisueel</translation>
        </message>
        <message>
            <source>Authentication</source>
            <translation>Aanmelding</translation>
        </message>
        <message>
            <source>Authentication failed. Check your username and password.</source>
            <translation>Aanmelden mislukt. Controleer uw gebruikersnaam en wachtwoord.</translation>
        </message>
        <message>
            <source>Auto-Rename</source>
            <translation>Automatisch hernoemen</translation>
        </message>
        <message>
            <source>Auto-decompress ZIP/GZ</source>
            <translation>ZIP/GZ automatisch uitpakken</translation>
        </message>
        <message>
            <source>Auto-monitor new remote folders</source>
            <translation>Nieuwe externe mappen automatisch volgen</translation>
        </message>
        <message>
            <source>Behavior</source>
            <translation>Gedrag</translation>
        </message>
        <message>
            <source>Browse...</source>
            <translation>Bladeren...</translation>
        </message>
        <message>
            <source>CONNECTIONS</source>
            <translation>VERBINDINGEN</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuleren</translation>
        </message>
        <message>
            <source>Cannot connect to port %lld</source>
            <translation>Kan geen verbinding maken met poort %lld</translation>
        </message>
        <message>
            <source>Cannot write to '%@'. Check the folder's permissions in the file manager.</source>
            <translation>Kan niet schrijven naar ‘%@’. Controleer de rechten van de map in het bestandsbeheer.</translation>
        </message>
        <message>
            <source>Cellular</source>
            <translation>Mobiel netwerk</translation>
        </message>
        <message>
            <source>Changes applied</source>
            <translation>Wijzigingen toegepast</translation>
        </message>
        <message>
            <source>Checksum and listing</source>
            <translation>Controlesom en lijst</translation>
        </message>
        <message>
            <source>Choose...</source>
            <translation>Kiezen...</translation>
        </message>
        <message>
            <source>Clear</source>
            <translation>Wissen</translation>
        </message>
        <message>
            <source>Clear All</source>
            <translation>Alles wissen</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>Kleur</translation>
        </message>
        <message>
            <source>Comma-separated extensions. Example: jpg, pdf, raw, cr3</source>
            <translation>Extensies gescheiden door komma's. Voorbeeld: jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>Command or script</source>
            <translation>Opdracht of script</translation>
        </message>
        <message>
            <source>Connect automatically when Tarnel starts</source>
            <translation>Automatisch verbinden bij het starten van Tarnel</translation>
        </message>
        <message>
            <source>Connected</source>
            <translation>Verbonden</translation>
        </message>
        <message>
            <source>Connection</source>
            <translation>Verbinding</translation>
        </message>
        <message>
            <source>Connection error (code %lld)%@. Check your connection settings.</source>
            <translation>Verbindingsfout (code %lld)%@. Controleer de verbindingsinstellingen.</translation>
        </message>
        <message>
            <source>Connection failed: </source>
            <translation>Verbinding mislukt: </translation>
        </message>
        <message>
            <source>Connection successful</source>
            <translation>Verbinding geslaagd</translation>
        </message>
        <message>
            <source>Connection timed out. The server is too slow or unreachable. Try increasing the timeout or check your network.</source>
            <translation>Time-out van de verbinding. De server is te traag of onbereikbaar. Verhoog de time-out of controleer uw netwerk.</translation>
        </message>
        <message>
            <source>Connections</source>
            <translation>Verbindingen</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Doorgaan</translation>
        </message>
        <message>
            <source>Copy All</source>
            <translation>Alles kopiëren</translation>
        </message>
        <message>
            <source>Copy mode: files stay on the server.</source>
            <translation>Kopieermodus: bestanden blijven op de server.</translation>
        </message>
        <message>
            <source>Could not connect to server. Check the host, port, and that the server is running.</source>
            <translation>Kan geen verbinding maken met de server. Controleer host en poort en of de server draait.</translation>
        </message>
        <message>
            <source>Could not resolve host. Check that the hostname is correct and your DNS is working.</source>
            <translation>Kan host niet vinden. Controleer of de hostnaam klopt en uw DNS werkt.</translation>
        </message>
        <message>
            <source>Create subfolder per connection</source>
            <translation>Submap per verbinding aanmaken</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Aangepast</translation>
        </message>
        <message>
            <source>Custom mapping per folder</source>
            <translation>Eigen indeling per map</translation>
        </message>
        <message>
            <source>Custom pattern (glob)</source>
            <translation>Eigen patroon (glob)</translation>
        </message>
        <message>
            <source>DNS resolution</source>
            <translation>DNS-omzetting</translation>
        </message>
        <message>
            <source>Data &amp; Analytics</source>
            <translation>Data en analyse</translation>
        </message>
        <message>
            <source>Data / Analytics</source>
            <translation>Data / Analyse</translation>
        </message>
        <message>
            <source>Days</source>
            <translation>Dagen</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Verwijderen</translation>
        </message>
        <message>
            <source>Delete '</source>
            <translation>‘</translation>
        </message>
        <message>
            <source>Delete empty remote folders</source>
            <translation>Lege externe mappen verwijderen</translation>
        </message>
        <message>
            <source>Delete failed: %@</source>
            <translation>Verwijderen mislukt: %@</translation>
        </message>
        <message>
            <source>Delete files from FTP after download</source>
            <translation>Bestanden na het downloaden van de FTP-server verwijderen</translation>
        </message>
        <message>
            <source>Delete this connection?</source>
            <translation>Deze verbinding verwijderen?</translation>
        </message>
        <message>
            <source>Deselect All</source>
            <translation>Niets selecteren</translation>
        </message>
        <message>
            <source>Destination</source>
            <translation>Bestemming</translation>
        </message>
        <message>
            <source>Destination Folder</source>
            <translation>Doelmap</translation>
        </message>
        <message>
            <source>Disable SSL verification. Only enable if your server uses a self-signed or expired certificate.</source>
            <translation>Schakelt de SSL-controle uit. Alleen inschakelen als uw server een zelfondertekend of verlopen certificaat gebruikt.</translation>
        </message>
        <message>
            <source>Disable connection</source>
            <translation>Verbinding uitschakelen</translation>
        </message>
        <message>
            <source>Disabled</source>
            <translation>Uitgeschakeld</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>Verwerpen</translation>
        </message>
        <message>
            <source>Disk Space</source>
            <translation>Schijfruimte</translation>
        </message>
        <message>
            <source>Download Notifications</source>
            <translation>Downloadmeldingen</translation>
        </message>
        <message>
            <source>Download failed: %@</source>
            <translation>Downloaden mislukt: %@</translation>
        </message>
        <message>
            <source>Downloaded file '%@' is empty. The remote file may be corrupted or still being written.</source>
            <translation>Het gedownloade bestand ‘%@’ is leeg. Het externe bestand is mogelijk beschadigd of wordt nog geschreven.</translation>
        </message>
        <message>
            <source>E-commerce</source>
            <translation>E-commerce</translation>
        </message>
        <message>
            <source>E-commerce / Data</source>
            <translation>E-commerce / Data</translation>
        </message>
        <message>
            <source>Enable connection</source>
            <translation>Verbinding inschakelen</translation>
        </message>
        <message>
            <source>Enabled</source>
            <translation>Ingeschakeld</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>Fout</translation>
        </message>
        <message>
            <source>Error Notifications</source>
            <translation>Foutmeldingen</translation>
        </message>
        <message>
            <source>Error: </source>
            <translation>Fout: </translation>
        </message>
        <message>
            <source>Example: </source>
            <translation>Voorbeeld: </translation>
        </message>
        <message>
            <source>Extension preset</source>
            <translation>Extensiesjabloon</translation>
        </message>
        <message>
            <source>FTP Mode</source>
            <translation>FTP-modus</translation>
        </message>
        <message>
            <source>FTP does not encrypt data. For medical records, SFTP is strongly recommended.</source>
            <translation>FTP versleutelt geen gegevens. Voor medische gegevens wordt SFTP sterk aanbevolen.</translation>
        </message>
        <message>
            <source>FTP quote command failed. Check the remote path or delete permissions.</source>
            <translation>FTP-opdracht mislukt. Controleer het externe pad of de verwijderrechten.</translation>
        </message>
        <message>
            <source>File</source>
            <translation>Bestand</translation>
        </message>
        <message>
            <source>File type</source>
            <translation>Bestandstype</translation>
        </message>
        <message>
            <source>Filename contains</source>
            <translation>Bestandsnaam bevat</translation>
        </message>
        <message>
            <source>Filename starts with</source>
            <translation>Bestandsnaam begint met</translation>
        </message>
        <message>
            <source>Filters</source>
            <translation>Filters</translation>
        </message>
        <message>
            <source>Finance</source>
            <translation>Financiën</translation>
        </message>
        <message>
            <source>Finance / Accounting</source>
            <translation>Financiën / Boekhouding</translation>
        </message>
        <message>
            <source>Folder error</source>
            <translation>Mapfout</translation>
        </message>
        <message>
            <source>Folder not accessible: %@</source>
            <translation>Map niet toegankelijk: %@</translation>
        </message>
        <message>
            <source>From </source>
            <translation>Van </translation>
        </message>
        <message>
            <source>General</source>
            <translation>Algemeen</translation>
        </message>
        <message>
            <source>Group notifications (summary instead of file list)</source>
            <translation>Meldingen groeperen (samenvatting in plaats van bestandslijst)</translation>
        </message>
        <message>
            <source>Health</source>
            <translation>Zorg</translation>
        </message>
        <message>
            <source>Health / Compliance</source>
            <translation>Zorg / Compliance</translation>
        </message>
        <message>
            <source>History...</source>
            <translation>Geschiedenis...</translation>
        </message>
        <message>
            <source>Host</source>
            <translation>Host</translation>
        </message>
        <message>
            <source>Host '%@' not found</source>
            <translation>Host ‘%@’ niet gevonden</translation>
        </message>
        <message>
            <source>IT &amp; Integrations</source>
            <translation>IT en integraties</translation>
        </message>
        <message>
            <source>IT / Integrations</source>
            <translation>IT / Integraties</translation>
        </message>
        <message>
            <source>If No Rule Matches</source>
            <translation>Als geen regel overeenkomt</translation>
        </message>
        <message>
            <source>If the computer sleeps anyway (battery, lid close), transfers will pause and resume automatically on wake.</source>
            <translation>Gaat de computer toch in slaapstand (accu, klep dicht), dan worden overdrachten gepauzeerd en bij het ontwaken automatisch hervat.</translation>
        </message>
        <message>
            <source>Ignore (don't download)</source>
            <translation>Negeren (niet downloaden)</translation>
        </message>
        <message>
            <source>Includes files from all subfolders on the server. Can be slow with large servers.</source>
            <translation>Neemt bestanden uit alle submappen op de server mee. Kan traag zijn bij grote servers.</translation>
        </message>
        <message>
            <source>Interrupted downloads resume automatically. Set to 0 to disable.</source>
            <translation>Onderbroken downloads worden automatisch hervat. Zet op 0 om dit uit te schakelen.</translation>
        </message>
        <message>
            <source>LIST listings</source>
            <translation>LIST-lijsten</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>Taal</translation>
        </message>
        <message>
            <source>Last activity: </source>
            <translation>Laatste activiteit: </translation>
        </message>
        <message>
            <source>Launch Tarnel when you log in</source>
            <translation>Tarnel starten bij aanmelden</translation>
        </message>
        <message>
            <source>Listing folders...</source>
            <translation>Mappen ophalen...</translation>
        </message>
        <message>
            <source>Local Folder</source>
            <translation>Lokale map</translation>
        </message>
        <message>
            <source>Log Folder</source>
            <translation>Logboekmap</translation>
        </message>
        <message>
            <source>Log...</source>
            <translation>Logboek...</translation>
        </message>
        <message>
            <source>Low disk</source>
            <translation>Schijf bijna vol</translation>
        </message>
        <message>
            <source>MLSD listings</source>
            <translation>MLSD-lijsten</translation>
        </message>
        <message>
            <source>Made by the Tarnel developers.</source>
            <translation>Gemaakt door de ontwikkelaars van Tarnel.</translation>
        </message>
        <message>
            <source>Main folder</source>
            <translation>Hoofdmap</translation>
        </message>
        <message>
            <source>Manual</source>
            <translation>Handmatig</translation>
        </message>
        <message>
            <source>Match</source>
            <translation>Voorwaarde</translation>
        </message>
        <message>
            <source>Matches any file whose name contains this text</source>
            <translation>Geldt voor elk bestand waarvan de naam deze tekst bevat</translation>
        </message>
        <message>
            <source>Matches any file whose name starts with this text</source>
            <translation>Geldt voor elk bestand waarvan de naam met deze tekst begint</translation>
        </message>
        <message>
            <source>Max depth: </source>
            <translation>Max. diepte: </translation>
        </message>
        <message>
            <source>Max download speed</source>
            <translation>Max. downloadsnelheid</translation>
        </message>
        <message>
            <source>Max resume attempts: </source>
            <translation>Max. hervatpogingen: </translation>
        </message>
        <message>
            <source>Max retries: </source>
            <translation>Max. nieuwe pogingen: </translation>
        </message>
        <message>
            <source>Min file size: </source>
            <translation>Min. bestandsgrootte: </translation>
        </message>
        <message>
            <source>Minimum free space</source>
            <translation>Minimale vrije ruimte</translation>
        </message>
        <message>
            <source>Mirror remote structure</source>
            <translation>Externe structuur overnemen</translation>
        </message>
        <message>
            <source>Monitoring — no transfers in progress</source>
            <translation>Bewaken — geen overdrachten bezig</translation>
        </message>
        <message>
            <source>Move mode: files are removed from the server.</source>
            <translation>Verplaatsmodus: bestanden worden van de server verwijderd.</translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>Dempen</translation>
        </message>
        <message>
            <source>My Camera FTP</source>
            <translation>Mijn camera-FTP</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Naam</translation>
        </message>
        <message>
            <source>Network</source>
            <translation>Netwerk</translation>
        </message>
        <message>
            <source>New Connection</source>
            <translation>Nieuwe verbinding</translation>
        </message>
        <message>
            <source>No checksum: files are verified by size</source>
            <translation>Geen controlesom: bestanden worden op grootte gecontroleerd</translation>
        </message>
        <message>
            <source>No connections</source>
            <translation>Geen verbindingen</translation>
        </message>
        <message>
            <source>No connections configured</source>
            <translation>Geen verbindingen ingesteld</translation>
        </message>
        <message>
            <source>No log entries yet.</source>
            <translation>Nog geen logboekregels.</translation>
        </message>
        <message>
            <source>No minimum</source>
            <translation>Geen minimum</translation>
        </message>
        <message>
            <source>No network</source>
            <translation>Geen netwerk</translation>
        </message>
        <message>
            <source>No recent downloads</source>
            <translation>Geen recente downloads</translation>
        </message>
        <message>
            <source>No rename — original filename is kept</source>
            <translation>Niet hernoemen — de oorspronkelijke naam blijft</translation>
        </message>
        <message>
            <source>No rules — all files go to the main folder</source>
            <translation>Geen regels — alle bestanden gaan naar de hoofdmap</translation>
        </message>
        <message>
            <source>No subdirectories found</source>
            <translation>Geen submappen gevonden</translation>
        </message>
        <message>
            <source>No transfer history.</source>
            <translation>Geen overdrachtsgeschiedenis.</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Geen</translation>
        </message>
        <message>
            <source>Not selected</source>
            <translation>Niet gekozen</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>Meldingen</translation>
        </message>
        <message>
            <source>Notify on connection errors</source>
            <translation>Melden bij verbindingsfouten</translation>
        </message>
        <message>
            <source>Notify when connections pause/resume by schedule</source>
            <translation>Melden wanneer verbindingen volgens planning pauzeren of hervatten</translation>
        </message>
        <message>
            <source>Notify when downloads complete</source>
            <translation>Melden wanneer downloads klaar zijn</translation>
        </message>
        <message>
            <source>Offline</source>
            <translation>Offline</translation>
        </message>
        <message>
            <source>Only %@ GB of disk space remaining. Free up space to continue downloading.</source>
            <translation>Nog maar %@ GB schijfruimte over. Maak ruimte vrij om verder te downloaden.</translation>
        </message>
        <message numerus="yes">
            <source>Only if %n or more files</source>
            <translation>
                <numerusform>Alleen bij %n of meer bestanden</numerusform>
                <numerusform>Alleen bij %n of meer bestanden</numerusform>
            </translation>
        </message>
        <message>
            <source>Only last folder level</source>
            <translation>Alleen het laatste mapniveau</translation>
        </message>
        <message>
            <source>Open Tarnel</source>
            <translation>Tarnel openen</translation>
        </message>
        <message>
            <source>Open destination folder</source>
            <translation>Doelmap openen</translation>
        </message>
        <message>
            <source>Open destination folders</source>
            <translation>Doelmappen openen</translation>
        </message>
        <message>
            <source>Open main folder</source>
            <translation>Hoofdmap openen</translation>
        </message>
        <message>
            <source>Optional tag name</source>
            <translation>Optionele labelnaam</translation>
        </message>
        <message>
            <source>Organization</source>
            <translation>Ordening</translation>
        </message>
        <message>
            <source>Organize by date (YYYY/MM/DD)</source>
            <translation>Ordenen op datum (JJJJ/MM/DD)</translation>
        </message>
        <message>
            <source>Organize downloads</source>
            <translation>Downloads ordenen</translation>
        </message>
        <message>
            <source>Other files</source>
            <translation>Overige bestanden</translation>
        </message>
        <message>
            <source>Parse error: %@</source>
            <translation>Verwerkingsfout: %@</translation>
        </message>
        <message>
            <source>Partial file received. The transfer was interrupted. It will retry automatically.</source>
            <translation>Bestand deels ontvangen. De overdracht is onderbroken en wordt automatisch opnieuw geprobeerd.</translation>
        </message>
        <message>
            <source>Passive (recommended)</source>
            <translation>Passief (aanbevolen)</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>Wachtwoord</translation>
        </message>
        <message>
            <source>Pattern (empty = no rename)</source>
            <translation>Patroon (leeg = niet hernoemen)</translation>
        </message>
        <message>
            <source>Pattern:</source>
            <translation>Patroon:</translation>
        </message>
        <message>
            <source>Pause</source>
            <translation>Pauzeren</translation>
        </message>
        <message>
            <source>Pause and resume on wake</source>
            <translation>Pauzeren en hervatten bij ontwaken</translation>
        </message>
        <message>
            <source>Pause when internet is unavailable</source>
            <translation>Pauzeren als internet niet beschikbaar is</translation>
        </message>
        <message>
            <source>Pause when on mobile hotspot</source>
            <translation>Pauzeren bij mobiele hotspot</translation>
        </message>
        <message>
            <source>Paused</source>
            <translation>Gepauzeerd</translation>
        </message>
        <message>
            <source>Paused — low disk space</source>
            <translation>Gepauzeerd — weinig schijfruimte</translation>
        </message>
        <message>
            <source>Paused — mobile hotspot detected</source>
            <translation>Gepauzeerd — mobiele hotspot gevonden</translation>
        </message>
        <message>
            <source>Paused — no internet connection</source>
            <translation>Gepauzeerd — geen internetverbinding</translation>
        </message>
        <message>
            <source>Photography</source>
            <translation>Fotografie</translation>
        </message>
        <message>
            <source>Photos only</source>
            <translation>Alleen foto's</translation>
        </message>
        <message>
            <source>Play sound on download</source>
            <translation>Geluid afspelen bij download</translation>
        </message>
        <message>
            <source>Polling Interval</source>
            <translation>Controle-interval</translation>
        </message>
        <message>
            <source>Port</source>
            <translation>Poort</translation>
        </message>
        <message>
            <source>Port must be between 1 and 65535</source>
            <translation>De poort moet tussen 1 en 65535 liggen</translation>
        </message>
        <message>
            <source>Preset</source>
            <translation>Sjabloon</translation>
        </message>
        <message>
            <source>Press "Browse..." to list the server's folders.</source>
            <translation>Klik op ‘Bladeren...’ om de mappen van de server op te halen.</translation>
        </message>
        <message>
            <source>Prevent sleep during downloads</source>
            <translation>Slaapstand voorkomen tijdens downloads</translation>
        </message>
        <message>
            <source>Preventing sleep — downloading</source>
            <translation>Slaapstand voorkomen — bezig met downloaden</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Voorbeeld</translation>
        </message>
        <message>
            <source>Preview:</source>
            <translation>Voorbeeld:</translation>
        </message>
        <message>
            <source>Print &amp; Graphics</source>
            <translation>Drukwerk en grafisch</translation>
        </message>
        <message>
            <source>Print / Graphics</source>
            <translation>Drukwerk / Grafisch</translation>
        </message>
        <message>
            <source>Protocol</source>
            <translation>Protocol</translation>
        </message>
        <message>
            <source>Quit</source>
            <translation>Afsluiten</translation>
        </message>
        <message>
            <source>RECENT</source>
            <translation>RECENT</translation>
        </message>
        <message>
            <source>Re-select folder to grant persistent access</source>
            <translation>Selecteer de map opnieuw om blijvend toegang te geven</translation>
        </message>
        <message>
            <source>Read Me</source>
            <translation>Leesmij</translation>
        </message>
        <message>
            <source>Recommended for critical transfers. May double download time.</source>
            <translation>Aanbevolen voor belangrijke overdrachten. Kan de downloadtijd verdubbelen.</translation>
        </message>
        <message>
            <source>Remote Folder</source>
            <translation>Externe map</translation>
        </message>
        <message>
            <source>Remote Subdirectories</source>
            <translation>Externe submappen</translation>
        </message>
        <message>
            <source>Remote folder access</source>
            <translation>Toegang tot externe map</translation>
        </message>
        <message>
            <source>Remote path</source>
            <translation>Extern pad</translation>
        </message>
        <message>
            <source>Remote path contains a control character</source>
            <translation>Het externe pad bevat een stuurteken</translation>
        </message>
        <message>
            <source>Research / Science</source>
            <translation>Onderzoek / Wetenschap</translation>
        </message>
        <message>
            <source>Restart Tarnel to apply the language change.</source>
            <translation>Start Tarnel opnieuw om de taalwijziging toe te passen.</translation>
        </message>
        <message>
            <source>Resume</source>
            <translation>Hervatten</translation>
        </message>
        <message>
            <source>Retry Failed</source>
            <translation>Opgegeven</translation>
        </message>
        <message>
            <source>Retrying (%lld/%lld)...</source>
            <translation>Nieuwe poging (%lld/%lld)...</translation>
        </message>
        <message>
            <source>Routing Rule</source>
            <translation>Sorteerregel</translation>
        </message>
        <message>
            <source>Routing Rules</source>
            <translation>Sorteerregels</translation>
        </message>
        <message>
            <source>Rule enabled</source>
            <translation>Regel actief</translation>
        </message>
        <message>
            <source>Run post-download action</source>
            <translation>Actie na download uitvoeren</translation>
        </message>
        <message>
            <source>SSH Key Path</source>
            <translation>Pad naar SSH-sleutel</translation>
        </message>
        <message>
            <source>SSL certificate verification failed. The server certificate may be self-signed or expired.</source>
            <translation>Controle van het SSL-certificaat mislukt. Het servercertificaat is mogelijk zelfondertekend of verlopen.</translation>
        </message>
        <message>
            <source>SSL/TLS handshake failed. The server may not support FTPS, or the certificate is invalid.</source>
            <translation>SSL/TLS-handshake mislukt. De server ondersteunt mogelijk geen FTPS of het certificaat is ongeldig.</translation>
        </message>
        <message>
            <source>STATISTICS</source>
            <translation>STATISTIEKEN</translation>
        </message>
        <message>
            <source>STOCK_</source>
            <translation>STOCK_</translation>
        </message>
        <message>
            <source>Same as main folder</source>
            <translation>Zelfde als hoofdmap</translation>
        </message>
        <message>
            <source>Save Rule</source>
            <translation>Regel opslaan</translation>
        </message>
        <message>
            <source>Save to main folder</source>
            <translation>Opslaan in hoofdmap</translation>
        </message>
        <message>
            <source>Save to specific folder</source>
            <translation>Opslaan in specifieke map</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>Planning</translation>
        </message>
        <message>
            <source>Schedule Notifications</source>
            <translation>Planningsmeldingen</translation>
        </message>
        <message>
            <source>Scheduled </source>
            <translation>Gepland </translation>
        </message>
        <message>
            <source>Search...</source>
            <translation>Zoeken...</translation>
        </message>
        <message>
            <source>Sector preset</source>
            <translation>Branchesjabloon</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Alles selecteren</translation>
        </message>
        <message>
            <source>Select SSH key (optional)</source>
            <translation>SSH-sleutel kiezen (optioneel)</translation>
        </message>
        <message>
            <source>Select a connection or add a new one.</source>
            <translation>Kies een verbinding of voeg een nieuwe toe.</translation>
        </message>
        <message>
            <source>Settings...</source>
            <translation>Instellingen...</translation>
        </message>
        <message>
            <source>Simultaneous downloads: </source>
            <translation>Downloads tegelijk: </translation>
        </message>
        <message>
            <source>Size</source>
            <translation>Grootte</translation>
        </message>
        <message>
            <source>Size mismatch: expected %@, got %@. The file may still be uploading.</source>
            <translation>Grootte klopt niet: verwacht %@, ontvangen %@. Het bestand wordt mogelijk nog geüpload.</translation>
        </message>
        <message>
            <source>Sleep Behavior</source>
            <translation>Slaapstand</translation>
        </message>
        <message>
            <source>Sleep is only prevented while files are actively downloading. Normal sleep resumes when idle.</source>
            <translation>De slaapstand wordt alleen voorkomen terwijl er bestanden worden gedownload. Bij inactiviteit werkt de slaapstand weer normaal.</translation>
        </message>
        <message>
            <source>Sleep prevention enabled</source>
            <translation>Slaapstandblokkering actief</translation>
        </message>
        <message>
            <source>Sound</source>
            <translation>Geluid</translation>
        </message>
        <message>
            <source>Stability checks: </source>
            <translation>Stabiliteitscontroles: </translation>
        </message>
        <message>
            <source>Startup</source>
            <translation>Opstarten</translation>
        </message>
        <message>
            <source>Status</source>
            <translation>Status</translation>
        </message>
        <message>
            <source>Stopped</source>
            <translation>Gestopt</translation>
        </message>
        <message>
            <source>Success</source>
            <translation>Gelukt</translation>
        </message>
        <message>
            <source>Sync &amp; Transfer</source>
            <translation>Synchronisatie en overdracht</translation>
        </message>
        <message>
            <source>Sync Log</source>
            <translation>Synchronisatielogboek</translation>
        </message>
        <message>
            <source>Sync Now</source>
            <translation>Nu synchroniseren</translation>
        </message>
        <message>
            <source>Sync every </source>
            <translation>Elke </translation>
        </message>
        <message>
            <source>Sync only during scheduled hours</source>
            <translation>Alleen synchroniseren binnen de geplande uren</translation>
        </message>
        <message>
            <source>Sync subfolders recursively</source>
            <translation>Submappen recursief synchroniseren</translation>
        </message>
        <message>
            <source>Syncing...</source>
            <translation>Synchroniseren...</translation>
        </message>
        <message>
            <source>System default</source>
            <translation>Systeemstandaard</translation>
        </message>
        <message>
            <source>TCP connection</source>
            <translation>TCP-verbinding</translation>
        </message>
        <message>
            <source>Tags</source>
            <translation>Labels</translation>
        </message>
        <message>
            <source>Tarnel %1 (build %2)</source>
            <translation>Tarnel %1 (build %2)</translation>
        </message>
        <message>
            <source>Tarnel History</source>
            <translation>Tarnel-geschiedenis</translation>
        </message>
        <message>
            <source>Tarnel Log</source>
            <translation>Tarnel-logboek</translation>
        </message>
        <message>
            <source>Tarnel Settings</source>
            <translation>Tarnel-instellingen</translation>
        </message>
        <message>
            <source>Tarnel keeps running in the background when you close this window. To open it again, launch Tarnel from the applications menu.</source>
            <translation>Tarnel blijft op de achtergrond draaien als u dit venster sluit. Start Tarnel opnieuw vanuit het toepassingenmenu om het weer te openen.</translation>
        </message>
        <message numerus="yes">
            <source>Tarnel: %n file(s) downloaded</source>
            <translation>
                <numerusform>Tarnel: %n bestand gedownload</numerusform>
                <numerusform>Tarnel: %n bestanden gedownload</numerusform>
            </translation>
        </message>
        <message>
            <source>Tarnel: Connection error</source>
            <translation>Tarnel: verbindingsfout</translation>
        </message>
        <message>
            <source>Tarnel: Local folder problem</source>
            <translation>Tarnel: probleem met lokale map</translation>
        </message>
        <message>
            <source>Tarnel: New folder detected</source>
            <translation>Tarnel: nieuwe map gevonden</translation>
        </message>
        <message>
            <source>Tarnel: Transfer failed</source>
            <translation>Tarnel: overdracht mislukt</translation>
        </message>
        <message>
            <source>Test Connection</source>
            <translation>Verbinding testen</translation>
        </message>
        <message>
            <source>Text tag</source>
            <translation>Tekstlabel</translation>
        </message>
        <message>
            <source>The SFTP server's host key has changed since the last connection to %@. This can mean someone is intercepting the connection. If the change is expected (the server was reinstalled or its key replaced), remove the line for %@ from %@ and connect again.</source>
            <translation>De hostsleutel van de SFTP-server is gewijzigd sinds de laatste verbinding met %@. Dit kan betekenen dat iemand de verbinding onderschept. Is de wijziging verwacht (de server is opnieuw geïnstalleerd of de sleutel vervangen), verwijder dan de regel voor %@ uit %@ en maak opnieuw verbinding.</translation>
        </message>
        <message>
            <source>The connection '</source>
            <translation>De verbinding ‘</translation>
        </message>
        <message>
            <source>This action cannot be undone.</source>
            <translation>Dit kan niet ongedaan worden gemaakt.</translation>
        </message>
        <message>
            <source>This will overwrite the current configuration with the recommended values for </source>
            <translation>De huidige configuratie wordt overschreven met de aanbevolen waarden voor </translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Tijd</translation>
        </message>
        <message>
            <source>To </source>
            <translation>Tot </translation>
        </message>
        <message>
            <source>Today</source>
            <translation>Vandaag</translation>
        </message>
        <message>
            <source>Transfer History</source>
            <translation>Overdrachtsgeschiedenis</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Type</translation>
        </message>
        <message>
            <source>Unix glob pattern: * matches any characters, ? matches one character</source>
            <translation>Unix-glob-patroon: * staat voor willekeurige tekens, ? voor één teken</translation>
        </message>
        <message>
            <source>Unlimited</source>
            <translation>Onbeperkt</translation>
        </message>
        <message>
            <source>Unmute</source>
            <translation>Geluid aan</translation>
        </message>
        <message>
            <source>Upload/store failed. The server rejected the operation. Check write permissions on the server.</source>
            <translation>Uploaden/opslaan mislukt. De server weigerde de bewerking. Controleer de schrijfrechten op de server.</translation>
        </message>
        <message>
            <source>Username</source>
            <translation>Gebruikersnaam</translation>
        </message>
        <message>
            <source>Variables: {original}, {date}, {time}, {counter}, {host}</source>
            <translation>Variabelen: {original}, {date}, {time}, {counter}, {host}</translation>
        </message>
        <message>
            <source>Verify checksum (MD5)</source>
            <translation>Controlesom verifiëren (MD5)</translation>
        </message>
        <message>
            <source>Video</source>
            <translation>Video</translation>
        </message>
        <message>
            <source>Video only</source>
            <translation>Alleen video</translation>
        </message>
        <message>
            <source>Waiting...</source>
            <translation>Wachten...</translation>
        </message>
        <message>
            <source>Warn and pause if disk space is low</source>
            <translation>Waarschuwen en pauzeren bij weinig schijfruimte</translation>
        </message>
        <message>
            <source>Wrong username or password</source>
            <translation>Verkeerde gebruikersnaam of wachtwoord</translation>
        </message>
        <message>
            <source>dead.rule.warning</source>
            <translation>Nooit gebruikt: een eerdere regel neemt deze bestanden al</translation>
        </message>
        <message>
            <source>ext.cat.audio</source>
            <translation>Audio</translation>
        </message>
        <message>
            <source>ext.cat.documents</source>
            <translation>Documenten</translation>
        </message>
        <message>
            <source>ext.cat.images</source>
            <translation>Afbeeldingen</translation>
        </message>
        <message>
            <source>ext.cat.temp</source>
            <translation>Tijdelijke bestanden</translation>
        </message>
        <message>
            <source>ext.cat.video</source>
            <translation>Video</translation>
        </message>
        <message>
            <source>ext.reset.button</source>
            <translation>Sjabloon herstellen</translation>
        </message>
        <message>
            <source>ext.unspecified.download</source>
            <translation>Downloaden</translation>
        </message>
        <message>
            <source>ext.unspecified.ignore</source>
            <translation>Negeren</translation>
        </message>
        <message>
            <source>ext.unspecified.label</source>
            <translation>Overige extensies</translation>
        </message>
        <message numerus="yes">
            <source>failed after %n attempts</source>
            <translation>
                <numerusform>mislukt na %n poging</numerusform>
                <numerusform>mislukt na %n pogingen</numerusform>
            </translation>
        </message>
        <message>
            <source>growing...</source>
            <translation>groeit...</translation>
        </message>
        <message>
            <source>invoice</source>
            <translation>factuur</translation>
        </message>
        <message>
            <source>jpg, pdf, raw, cr3</source>
            <translation>jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>just now</source>
            <translation>zojuist</translation>
        </message>
    </context>
</TS>
