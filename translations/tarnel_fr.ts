<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
    <context>
        <name>tarnel</name>
        <message>
            <source> GB</source>
            <translation> Go</translation>
        </message>
        <message>
            <source> GB free</source>
            <translation> Go libres</translation>
        </message>
        <message>
            <source>%@ checksum mismatch: the server says %@, the download gives %@. The file was not placed and stays on the server; it will be downloaded again.</source>
            <translation>Somme de contrôle %@ différente : le serveur indique %@, le téléchargement donne %@. Le fichier n'a pas été placé et reste sur le serveur ; il sera téléchargé à nouveau.</translation>
        </message>
        <message>
            <source>%@ checksums</source>
            <translation>Sommes de contrôle %@</translation>
        </message>
        <message>
            <source>%lld min ago</source>
            <translation>il y a %lld min</translation>
        </message>
        <message>
            <source>%lldd ago</source>
            <translation>il y a %lld j</translation>
        </message>
        <message>
            <source>%lldh ago</source>
            <translation>il y a %lld h</translation>
        </message>
        <message>
            <source>%llds ago</source>
            <translation>il y a %lld s</translation>
        </message>
        <message numerus="yes">
            <source>%n active connection(s)</source>
            <translation>
                <numerusform>%n connexion active</numerusform>
                <numerusform>%n connexions actives</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s)</source>
            <translation>
                <numerusform>%n fichier</numerusform>
                <numerusform>%n fichiers</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s) found</source>
            <translation>
                <numerusform>%n fichier trouvé</numerusform>
                <numerusform>%n fichiers trouvés</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n folder(s) selected</source>
            <translation>
                <numerusform>%n dossier sélectionné</numerusform>
                <numerusform>%n dossiers sélectionnés</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n minute(s)</source>
            <translation>
                <numerusform>%n minute</numerusform>
                <numerusform>%n minutes</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n second(s)</source>
            <translation>
                <numerusform>%n seconde</numerusform>
                <numerusform>%n secondes</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n waiting for stability</source>
            <translation>
                <numerusform>%n en attente de stabilité</numerusform>
                <numerusform>%n en attente de stabilité</numerusform>
            </translation>
        </message>
        <message>
            <source>' has changes that were not applied.</source>
            <translation> » a des modifications non appliquées.</translation>
        </message>
        <message>
            <source>'?</source>
            <translation> » ?</translation>
        </message>
        <message>
            <source>*.2024.*</source>
            <translation>*.2024.*</translation>
        </message>
        <message numerus="yes">
            <source>+%n more downloading...</source>
            <translation>
                <numerusform>+%n autre en téléchargement...</numerusform>
                <numerusform>+%n autres en téléchargement...</numerusform>
            </translation>
        </message>
        <message>
            <source>. Do you want to continue?</source>
            <translation>. Voulez-vous continuer ?</translation>
        </message>
        <message numerus="yes">
            <source>...and %n more</source>
            <translation>
                <numerusform>...et %n autre</numerusform>
                <numerusform>...et %n autres</numerusform>
            </translation>
        </message>
        <message>
            <source>1 MB/s</source>
            <translation>1 Mo/s</translation>
        </message>
        <message>
            <source>1 minute</source>
            <translation>1 minute</translation>
        </message>
        <message>
            <source>10 MB/s</source>
            <translation>10 Mo/s</translation>
        </message>
        <message>
            <source>128 KB/s</source>
            <translation>128 Ko/s</translation>
        </message>
        <message>
            <source>15 seconds</source>
            <translation>15 secondes</translation>
        </message>
        <message>
            <source>2 MB/s</source>
            <translation>2 Mo/s</translation>
        </message>
        <message>
            <source>2 minutes</source>
            <translation>2 minutes</translation>
        </message>
        <message>
            <source>2 seconds</source>
            <translation>2 secondes</translation>
        </message>
        <message>
            <source>20 MB/s</source>
            <translation>20 Mo/s</translation>
        </message>
        <message>
            <source>256 KB/s</source>
            <translation>256 Ko/s</translation>
        </message>
        <message>
            <source>30 seconds</source>
            <translation>30 secondes</translation>
        </message>
        <message>
            <source>5 MB/s</source>
            <translation>5 Mo/s</translation>
        </message>
        <message>
            <source>5 minutes</source>
            <translation>5 minutes</translation>
        </message>
        <message>
            <source>5 seconds</source>
            <translation>5 secondes</translation>
        </message>
        <message>
            <source>50 MB/s</source>
            <translation>50 Mo/s</translation>
        </message>
        <message>
            <source>512 KB/s</source>
            <translation>512 Ko/s</translation>
        </message>
        <message>
            <source>ACTIVITY</source>
            <translation>ACTIVITÉ</translation>
        </message>
        <message>
            <source>About Tarnel</source>
            <translation>À propos de Tarnel</translation>
        </message>
        <message>
            <source>Access denied to the remote folder. Check that the path exists and you have read permission.</source>
            <translation>Accès refusé au dossier distant. Vérifiez que le chemin existe et que vous avez le droit de lecture.</translation>
        </message>
        <message>
            <source>Access to '%@' has expired. Please re-select the folder in Settings.</source>
            <translation>L'accès à « %@ » a expiré. Veuillez sélectionner à nouveau le dossier dans les réglages.</translation>
        </message>
        <message>
            <source>Active</source>
            <translation>Actif</translation>
        </message>
        <message>
            <source>Add Connection</source>
            <translation>Ajouter une connexion</translation>
        </message>
        <message>
            <source>Add Rule</source>
            <translation>Ajouter une règle</translation>
        </message>
        <message>
            <source>Advanced</source>
            <translation>Avancé</translation>
        </message>
        <message>
            <source>Advanced Options</source>
            <translation>Options avancées</translation>
        </message>
        <message numerus="yes">
            <source>After %n consecutive failures</source>
            <translation>
                <numerusform>Après %n échec</numerusform>
                <numerusform>Après %n échecs consécutifs</numerusform>
            </translation>
        </message>
        <message>
            <source>Agency / Creative</source>
            <translation>Agence / Création</translation>
        </message>
        <message>
            <source>All</source>
            <translation>Tous</translation>
        </message>
        <message>
            <source>All except temporaries (recommended)</source>
            <translation>Tout sauf les temporaires (recommandé)</translation>
        </message>
        <message>
            <source>All files</source>
            <translation>Tous les fichiers</translation>
        </message>
        <message>
            <source>All files (no filter)</source>
            <translation>Tous les fichiers (aucun filtre)</translation>
        </message>
        <message>
            <source>All files flat (one folder)</source>
            <translation>Tous les fichiers à plat (un dossier)</translation>
        </message>
        <message>
            <source>All time</source>
            <translation>Depuis le début</translation>
        </message>
        <message>
            <source>Allow self-signed certificates</source>
            <translation>Autoriser les certificats auto-signés</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>Appliquer</translation>
        </message>
        <message>
            <source>Apply preset?</source>
            <translation>Appliquer le préréglage ?</translation>
        </message>
        <message>
            <source>Apply them now, or discard them?</source>
            <translation>Les appliquer maintenant ou les abandonner ?</translation>
        </message>
        <message>
            <source>Apply your changes?</source>
            <translation>Appliquer les modifications ?</translation>
        </message>
        <message>
            <source>Audiovisual</source>
            <translation>Audiovisuel</translation>
        </message>
        <message>
            <source>Authentication</source>
            <translation>Authentification</translation>
        </message>
        <message>
            <source>Authentication failed. Check your username and password.</source>
            <translation>Échec de l'authentification. Vérifiez votre nom d'utilisateur et votre mot de passe.</translation>
        </message>
        <message>
            <source>Auto-Rename</source>
            <translation>Renommage automatique</translation>
        </message>
        <message>
            <source>Auto-decompress ZIP/GZ</source>
            <translation>Décompresser automatiquement les ZIP/GZ</translation>
        </message>
        <message>
            <source>Auto-monitor new remote folders</source>
            <translation>Surveiller automatiquement les nouveaux dossiers distants</translation>
        </message>
        <message>
            <source>Behavior</source>
            <translation>Comportement</translation>
        </message>
        <message>
            <source>Browse...</source>
            <translation>Parcourir...</translation>
        </message>
        <message>
            <source>CONNECTIONS</source>
            <translation>CONNEXIONS</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
        <message>
            <source>Cannot connect to port %lld</source>
            <translation>Impossible de se connecter au port %lld</translation>
        </message>
        <message>
            <source>Cannot write to '%@'. Check the folder's permissions in the file manager.</source>
            <translation>Impossible d'écrire dans « %@ ». Vérifiez les autorisations du dossier dans le gestionnaire de fichiers.</translation>
        </message>
        <message>
            <source>Cellular</source>
            <translation>Réseau mobile</translation>
        </message>
        <message>
            <source>Changes applied</source>
            <translation>Modifications appliquées</translation>
        </message>
        <message>
            <source>Checksum and listing</source>
            <translation>Somme de contrôle et listage</translation>
        </message>
        <message>
            <source>Choose...</source>
            <translation>Choisir...</translation>
        </message>
        <message>
            <source>Clear</source>
            <translation>Effacer</translation>
        </message>
        <message>
            <source>Clear All</source>
            <translation>Tout effacer</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>Couleur</translation>
        </message>
        <message>
            <source>Comma-separated extensions. Example: jpg, pdf, raw, cr3</source>
            <translation>Extensions séparées par des virgules. Exemple : jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>Command or script</source>
            <translation>Commande ou script</translation>
        </message>
        <message>
            <source>Connect automatically when Tarnel starts</source>
            <translation>Se connecter automatiquement au démarrage de Tarnel</translation>
        </message>
        <message>
            <source>Connected</source>
            <translation>Connectée</translation>
        </message>
        <message>
            <source>Connection</source>
            <translation>Connexion</translation>
        </message>
        <message>
            <source>Connection error (code %lld)%@. Check your connection settings.</source>
            <translation>Erreur de connexion (code %lld)%@. Vérifiez les réglages de la connexion.</translation>
        </message>
        <message>
            <source>Connection failed: </source>
            <translation>Échec de la connexion : </translation>
        </message>
        <message>
            <source>Connection successful</source>
            <translation>Connexion réussie</translation>
        </message>
        <message>
            <source>Connection timed out. The server is too slow or unreachable. Try increasing the timeout or check your network.</source>
            <translation>Délai de connexion dépassé. Le serveur est trop lent ou injoignable. Augmentez le délai d'attente ou vérifiez votre réseau.</translation>
        </message>
        <message>
            <source>Connections</source>
            <translation>Connexions</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Continuer</translation>
        </message>
        <message>
            <source>Copy All</source>
            <translation>Tout copier</translation>
        </message>
        <message>
            <source>Copy mode: files stay on the server.</source>
            <translation>Mode copie : les fichiers restent sur le serveur.</translation>
        </message>
        <message>
            <source>Could not connect to server. Check the host, port, and that the server is running.</source>
            <translation>Impossible de se connecter au serveur. Vérifiez l'hôte, le port et que le serveur est en marche.</translation>
        </message>
        <message>
            <source>Could not resolve host. Check that the hostname is correct and your DNS is working.</source>
            <translation>Impossible de résoudre l'hôte. Vérifiez que le nom d'hôte est correct et que votre DNS fonctionne.</translation>
        </message>
        <message>
            <source>Create subfolder per connection</source>
            <translation>Créer un sous-dossier par connexion</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Personnalisé</translation>
        </message>
        <message>
            <source>Custom mapping per folder</source>
            <translation>Correspondance personnalisée par dossier</translation>
        </message>
        <message>
            <source>Custom pattern (glob)</source>
            <translation>Motif personnalisé (glob)</translation>
        </message>
        <message>
            <source>DNS resolution</source>
            <translation>Résolution DNS</translation>
        </message>
        <message>
            <source>Data &amp; Analytics</source>
            <translation>Données et analyse</translation>
        </message>
        <message>
            <source>Data / Analytics</source>
            <translation>Données / Analyse</translation>
        </message>
        <message>
            <source>Days</source>
            <translation>Jours</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Supprimer</translation>
        </message>
        <message>
            <source>Delete '</source>
            <translation>Supprimer « </translation>
        </message>
        <message>
            <source>Delete empty remote folders</source>
            <translation>Supprimer les dossiers distants vides</translation>
        </message>
        <message>
            <source>Delete failed: %@</source>
            <translation>Échec de la suppression : %@</translation>
        </message>
        <message>
            <source>Delete files from FTP after download</source>
            <translation>Supprimer les fichiers du FTP après le téléchargement</translation>
        </message>
        <message>
            <source>Delete this connection?</source>
            <translation>Supprimer cette connexion ?</translation>
        </message>
        <message>
            <source>Deselect All</source>
            <translation>Tout désélectionner</translation>
        </message>
        <message>
            <source>Destination</source>
            <translation>Destination</translation>
        </message>
        <message>
            <source>Destination Folder</source>
            <translation>Dossier de destination</translation>
        </message>
        <message>
            <source>Disable SSL verification. Only enable if your server uses a self-signed or expired certificate.</source>
            <translation>Désactive la vérification SSL. À n'activer que si votre serveur utilise un certificat auto-signé ou expiré.</translation>
        </message>
        <message>
            <source>Disable connection</source>
            <translation>Désactiver la connexion</translation>
        </message>
        <message>
            <source>Disabled</source>
            <translation>Désactivée</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>Abandonner</translation>
        </message>
        <message>
            <source>Disk Space</source>
            <translation>Espace disque</translation>
        </message>
        <message>
            <source>Download Notifications</source>
            <translation>Notifications de téléchargement</translation>
        </message>
        <message>
            <source>Download failed: %@</source>
            <translation>Échec du téléchargement : %@</translation>
        </message>
        <message>
            <source>Downloaded file '%@' is empty. The remote file may be corrupted or still being written.</source>
            <translation>Le fichier téléchargé « %@ » est vide. Le fichier distant est peut-être endommagé ou encore en cours d'écriture.</translation>
        </message>
        <message>
            <source>E-commerce</source>
            <translation>E-commerce</translation>
        </message>
        <message>
            <source>E-commerce / Data</source>
            <translation>E-commerce / Données</translation>
        </message>
        <message>
            <source>Enable connection</source>
            <translation>Activer la connexion</translation>
        </message>
        <message>
            <source>Enabled</source>
            <translation>Activée</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>Erreur</translation>
        </message>
        <message>
            <source>Error Notifications</source>
            <translation>Notifications d'erreur</translation>
        </message>
        <message>
            <source>Error: </source>
            <translation>Erreur : </translation>
        </message>
        <message>
            <source>Example: </source>
            <translation>Exemple : </translation>
        </message>
        <message>
            <source>Extension preset</source>
            <translation>Préréglage d'extensions</translation>
        </message>
        <message>
            <source>FTP Mode</source>
            <translation>Mode FTP</translation>
        </message>
        <message>
            <source>FTP does not encrypt data. For medical records, SFTP is strongly recommended.</source>
            <translation>FTP ne chiffre pas les données. Pour des dossiers médicaux, SFTP est vivement recommandé.</translation>
        </message>
        <message>
            <source>FTP quote command failed. Check the remote path or delete permissions.</source>
            <translation>Échec de la commande FTP. Vérifiez le chemin distant ou les droits de suppression.</translation>
        </message>
        <message>
            <source>File</source>
            <translation>Fichier</translation>
        </message>
        <message>
            <source>File type</source>
            <translation>Type de fichier</translation>
        </message>
        <message>
            <source>Filename contains</source>
            <translation>Le nom contient</translation>
        </message>
        <message>
            <source>Filename starts with</source>
            <translation>Le nom commence par</translation>
        </message>
        <message>
            <source>Filters</source>
            <translation>Filtres</translation>
        </message>
        <message>
            <source>Finance</source>
            <translation>Finance</translation>
        </message>
        <message>
            <source>Finance / Accounting</source>
            <translation>Finance / Comptabilité</translation>
        </message>
        <message>
            <source>Folder error</source>
            <translation>Erreur de dossier</translation>
        </message>
        <message>
            <source>Folder not accessible: %@</source>
            <translation>Dossier inaccessible : %@</translation>
        </message>
        <message>
            <source>From </source>
            <translation>De </translation>
        </message>
        <message>
            <source>General</source>
            <translation>Général</translation>
        </message>
        <message>
            <source>Group notifications (summary instead of file list)</source>
            <translation>Regrouper les notifications (résumé au lieu de la liste des fichiers)</translation>
        </message>
        <message>
            <source>Health</source>
            <translation>Santé</translation>
        </message>
        <message>
            <source>Health / Compliance</source>
            <translation>Santé / Conformité</translation>
        </message>
        <message>
            <source>History...</source>
            <translation>Historique...</translation>
        </message>
        <message>
            <source>Host</source>
            <translation>Hôte</translation>
        </message>
        <message>
            <source>Host '%@' not found</source>
            <translation>Hôte « %@ » introuvable</translation>
        </message>
        <message>
            <source>IT &amp; Integrations</source>
            <translation>Informatique et intégrations</translation>
        </message>
        <message>
            <source>IT / Integrations</source>
            <translation>Informatique / Intégrations</translation>
        </message>
        <message>
            <source>If No Rule Matches</source>
            <translation>Si aucune règle ne correspond</translation>
        </message>
        <message>
            <source>If the computer sleeps anyway (battery, lid close), transfers will pause and resume automatically on wake.</source>
            <translation>Si l'ordinateur se met quand même en veille (batterie, écran rabattu), les transferts sont suspendus puis reprennent automatiquement au réveil.</translation>
        </message>
        <message>
            <source>Ignore (don't download)</source>
            <translation>Ignorer (ne pas télécharger)</translation>
        </message>
        <message>
            <source>Includes files from all subfolders on the server. Can be slow with large servers.</source>
            <translation>Inclut les fichiers de tous les sous-dossiers du serveur. Peut être lent sur les gros serveurs.</translation>
        </message>
        <message>
            <source>Interrupted downloads resume automatically. Set to 0 to disable.</source>
            <translation>Les téléchargements interrompus reprennent automatiquement. Mettez 0 pour désactiver.</translation>
        </message>
        <message>
            <source>LIST listings</source>
            <translation>Listages LIST</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>Langue</translation>
        </message>
        <message>
            <source>Last activity: </source>
            <translation>Dernière activité : </translation>
        </message>
        <message>
            <source>Launch Tarnel when you log in</source>
            <translation>Lancer Tarnel à l'ouverture de session</translation>
        </message>
        <message>
            <source>Listing folders...</source>
            <translation>Lecture des dossiers...</translation>
        </message>
        <message>
            <source>Local Folder</source>
            <translation>Dossier local</translation>
        </message>
        <message>
            <source>Log Folder</source>
            <translation>Dossier des journaux</translation>
        </message>
        <message>
            <source>Log...</source>
            <translation>Journal...</translation>
        </message>
        <message>
            <source>Low disk</source>
            <translation>Disque presque plein</translation>
        </message>
        <message>
            <source>MLSD listings</source>
            <translation>Listages MLSD</translation>
        </message>
        <message>
            <source>Made by the Tarnel developers.</source>
            <translation>Conçu par l'équipe de Tarnel.</translation>
        </message>
        <message>
            <source>Main folder</source>
            <translation>Dossier principal</translation>
        </message>
        <message>
            <source>Manual</source>
            <translation>Manuelle</translation>
        </message>
        <message>
            <source>Match</source>
            <translation>Condition</translation>
        </message>
        <message>
            <source>Matches any file whose name contains this text</source>
            <translation>Correspond à tout fichier dont le nom contient ce texte</translation>
        </message>
        <message>
            <source>Matches any file whose name starts with this text</source>
            <translation>Correspond à tout fichier dont le nom commence par ce texte</translation>
        </message>
        <message>
            <source>Max depth: </source>
            <translation>Profondeur maximale : </translation>
        </message>
        <message>
            <source>Max download speed</source>
            <translation>Vitesse de téléchargement max.</translation>
        </message>
        <message>
            <source>Max resume attempts: </source>
            <translation>Tentatives de reprise max. : </translation>
        </message>
        <message>
            <source>Max retries: </source>
            <translation>Nouvelles tentatives max. : </translation>
        </message>
        <message>
            <source>Min file size: </source>
            <translation>Taille min. : </translation>
        </message>
        <message>
            <source>Minimum free space</source>
            <translation>Espace libre minimum</translation>
        </message>
        <message>
            <source>Mirror remote structure</source>
            <translation>Reproduire la structure distante</translation>
        </message>
        <message>
            <source>Monitoring — no transfers in progress</source>
            <translation>Surveillance — aucun transfert en cours</translation>
        </message>
        <message>
            <source>Move mode: files are removed from the server.</source>
            <translation>Mode déplacement : les fichiers sont supprimés du serveur.</translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>Couper le son</translation>
        </message>
        <message>
            <source>My Camera FTP</source>
            <translation>FTP de mon appareil photo</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Nom</translation>
        </message>
        <message>
            <source>Network</source>
            <translation>Réseau</translation>
        </message>
        <message>
            <source>New Connection</source>
            <translation>Nouvelle connexion</translation>
        </message>
        <message>
            <source>No checksum: files are verified by size</source>
            <translation>Aucune somme de contrôle : les fichiers sont vérifiés par leur taille</translation>
        </message>
        <message>
            <source>No connections</source>
            <translation>Aucune connexion</translation>
        </message>
        <message>
            <source>No connections configured</source>
            <translation>Aucune connexion configurée</translation>
        </message>
        <message>
            <source>No log entries yet.</source>
            <translation>Aucune entrée dans le journal pour l'instant.</translation>
        </message>
        <message>
            <source>No minimum</source>
            <translation>Aucun minimum</translation>
        </message>
        <message>
            <source>No network</source>
            <translation>Pas de réseau</translation>
        </message>
        <message>
            <source>No recent downloads</source>
            <translation>Aucun téléchargement récent</translation>
        </message>
        <message>
            <source>No rename — original filename is kept</source>
            <translation>Pas de renommage — le nom d'origine est conservé</translation>
        </message>
        <message>
            <source>No rules — all files go to the main folder</source>
            <translation>Aucune règle — tous les fichiers vont dans le dossier principal</translation>
        </message>
        <message>
            <source>No subdirectories found</source>
            <translation>Aucun sous-dossier trouvé</translation>
        </message>
        <message>
            <source>No transfer history.</source>
            <translation>Aucun historique de transfert.</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Aucune</translation>
        </message>
        <message>
            <source>Not selected</source>
            <translation>Non sélectionné</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>Notifications</translation>
        </message>
        <message>
            <source>Notify on connection errors</source>
            <translation>Notifier les erreurs de connexion</translation>
        </message>
        <message>
            <source>Notify when connections pause/resume by schedule</source>
            <translation>Notifier quand les connexions sont suspendues ou reprises selon l'horaire</translation>
        </message>
        <message>
            <source>Notify when downloads complete</source>
            <translation>Notifier à la fin des téléchargements</translation>
        </message>
        <message>
            <source>Offline</source>
            <translation>Hors ligne</translation>
        </message>
        <message>
            <source>Only %@ GB of disk space remaining. Free up space to continue downloading.</source>
            <translation>Il ne reste que %@ Go d'espace disque. Libérez de l'espace pour continuer les téléchargements.</translation>
        </message>
        <message numerus="yes">
            <source>Only if %n or more files</source>
            <translation>
                <numerusform>Seulement à partir de %n fichier</numerusform>
                <numerusform>Seulement à partir de %n fichiers</numerusform>
            </translation>
        </message>
        <message>
            <source>Only last folder level</source>
            <translation>Dernier niveau de dossier uniquement</translation>
        </message>
        <message>
            <source>Open Tarnel</source>
            <translation>Ouvrir Tarnel</translation>
        </message>
        <message>
            <source>Open destination folder</source>
            <translation>Ouvrir le dossier de destination</translation>
        </message>
        <message>
            <source>Open destination folders</source>
            <translation>Ouvrir les dossiers de destination</translation>
        </message>
        <message>
            <source>Open main folder</source>
            <translation>Ouvrir le dossier principal</translation>
        </message>
        <message>
            <source>Optional tag name</source>
            <translation>Nom de tag facultatif</translation>
        </message>
        <message>
            <source>Organization</source>
            <translation>Organisation</translation>
        </message>
        <message>
            <source>Organize by date (YYYY/MM/DD)</source>
            <translation>Classer par date (AAAA/MM/JJ)</translation>
        </message>
        <message>
            <source>Organize downloads</source>
            <translation>Classer les téléchargements</translation>
        </message>
        <message>
            <source>Other files</source>
            <translation>Autres fichiers</translation>
        </message>
        <message>
            <source>Parse error: %@</source>
            <translation>Erreur d'analyse : %@</translation>
        </message>
        <message>
            <source>Partial file received. The transfer was interrupted. It will retry automatically.</source>
            <translation>Fichier reçu partiellement. Le transfert a été interrompu et sera relancé automatiquement.</translation>
        </message>
        <message>
            <source>Passive (recommended)</source>
            <translation>Passif (recommandé)</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>Mot de passe</translation>
        </message>
        <message>
            <source>Pattern (empty = no rename)</source>
            <translation>Motif (vide = pas de renommage)</translation>
        </message>
        <message>
            <source>Pattern:</source>
            <translation>Motif :</translation>
        </message>
        <message>
            <source>Pause</source>
            <translation>Suspendre</translation>
        </message>
        <message>
            <source>Pause and resume on wake</source>
            <translation>Suspendre et reprendre au réveil</translation>
        </message>
        <message>
            <source>Pause when internet is unavailable</source>
            <translation>Suspendre quand Internet n'est pas disponible</translation>
        </message>
        <message>
            <source>Pause when on mobile hotspot</source>
            <translation>Suspendre sur un partage de connexion mobile</translation>
        </message>
        <message>
            <source>Paused</source>
            <translation>En pause</translation>
        </message>
        <message>
            <source>Paused — low disk space</source>
            <translation>En pause — espace disque faible</translation>
        </message>
        <message>
            <source>Paused — mobile hotspot detected</source>
            <translation>En pause — partage de connexion mobile détecté</translation>
        </message>
        <message>
            <source>Paused — no internet connection</source>
            <translation>En pause — pas de connexion Internet</translation>
        </message>
        <message>
            <source>Photography</source>
            <translation>Photographie</translation>
        </message>
        <message>
            <source>Photos only</source>
            <translation>Photos uniquement</translation>
        </message>
        <message>
            <source>Play sound on download</source>
            <translation>Jouer un son à chaque téléchargement</translation>
        </message>
        <message>
            <source>Polling Interval</source>
            <translation>Intervalle de vérification</translation>
        </message>
        <message>
            <source>Port</source>
            <translation>Port</translation>
        </message>
        <message>
            <source>Port must be between 1 and 65535</source>
            <translation>Le port doit être compris entre 1 et 65535</translation>
        </message>
        <message>
            <source>Preset</source>
            <translation>Préréglage</translation>
        </message>
        <message>
            <source>Press "Browse..." to list the server's folders.</source>
            <translation>Cliquez sur « Parcourir... » pour lister les dossiers du serveur.</translation>
        </message>
        <message>
            <source>Prevent sleep during downloads</source>
            <translation>Empêcher la mise en veille pendant les téléchargements</translation>
        </message>
        <message>
            <source>Preventing sleep — downloading</source>
            <translation>Veille empêchée — téléchargement en cours</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Aperçu</translation>
        </message>
        <message>
            <source>Preview:</source>
            <translation>Aperçu :</translation>
        </message>
        <message>
            <source>Print &amp; Graphics</source>
            <translation>Impression et graphisme</translation>
        </message>
        <message>
            <source>Print / Graphics</source>
            <translation>Impression / Graphisme</translation>
        </message>
        <message>
            <source>Protocol</source>
            <translation>Protocole</translation>
        </message>
        <message>
            <source>Quit</source>
            <translation>Quitter</translation>
        </message>
        <message>
            <source>RECENT</source>
            <translation>RÉCENTS</translation>
        </message>
        <message>
            <source>Re-select folder to grant persistent access</source>
            <translation>Sélectionnez à nouveau le dossier pour accorder un accès permanent</translation>
        </message>
        <message>
            <source>Read Me</source>
            <translation>Lisez-moi</translation>
        </message>
        <message>
            <source>Recommended for critical transfers. May double download time.</source>
            <translation>Recommandé pour les transferts critiques. Peut doubler la durée du téléchargement.</translation>
        </message>
        <message>
            <source>Remote Folder</source>
            <translation>Dossier distant</translation>
        </message>
        <message>
            <source>Remote Subdirectories</source>
            <translation>Sous-dossiers distants</translation>
        </message>
        <message>
            <source>Remote folder access</source>
            <translation>Accès au dossier distant</translation>
        </message>
        <message>
            <source>Remote path</source>
            <translation>Chemin distant</translation>
        </message>
        <message>
            <source>Remote path contains a control character</source>
            <translation>Le chemin distant contient un caractère de contrôle</translation>
        </message>
        <message>
            <source>Research / Science</source>
            <translation>Recherche / Science</translation>
        </message>
        <message>
            <source>Restart Tarnel to apply the language change.</source>
            <translation>Redémarrez Tarnel pour appliquer le changement de langue.</translation>
        </message>
        <message>
            <source>Resume</source>
            <translation>Reprendre</translation>
        </message>
        <message>
            <source>Retry Failed</source>
            <translation>Abandonné</translation>
        </message>
        <message>
            <source>Retrying (%lld/%lld)...</source>
            <translation>Nouvelle tentative (%lld/%lld)...</translation>
        </message>
        <message>
            <source>Routing Rule</source>
            <translation>Règle de tri</translation>
        </message>
        <message>
            <source>Routing Rules</source>
            <translation>Règles de tri</translation>
        </message>
        <message>
            <source>Rule enabled</source>
            <translation>Règle activée</translation>
        </message>
        <message>
            <source>Run post-download action</source>
            <translation>Lancer une action après le téléchargement</translation>
        </message>
        <message>
            <source>SSH Key Path</source>
            <translation>Chemin de la clé SSH</translation>
        </message>
        <message>
            <source>SSL certificate verification failed. The server certificate may be self-signed or expired.</source>
            <translation>Échec de la vérification du certificat SSL. Le certificat du serveur est peut-être auto-signé ou expiré.</translation>
        </message>
        <message>
            <source>SSL/TLS handshake failed. The server may not support FTPS, or the certificate is invalid.</source>
            <translation>Échec de la négociation SSL/TLS. Le serveur ne prend peut-être pas en charge FTPS, ou le certificat n'est pas valide.</translation>
        </message>
        <message>
            <source>STATISTICS</source>
            <translation>STATISTIQUES</translation>
        </message>
        <message>
            <source>STOCK_</source>
            <translation>STOCK_</translation>
        </message>
        <message>
            <source>Same as main folder</source>
            <translation>Identique au dossier principal</translation>
        </message>
        <message>
            <source>Save Rule</source>
            <translation>Enregistrer la règle</translation>
        </message>
        <message>
            <source>Save to main folder</source>
            <translation>Enregistrer dans le dossier principal</translation>
        </message>
        <message>
            <source>Save to specific folder</source>
            <translation>Enregistrer dans un dossier précis</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>Horaire</translation>
        </message>
        <message>
            <source>Schedule Notifications</source>
            <translation>Notifications d'horaire</translation>
        </message>
        <message>
            <source>Scheduled </source>
            <translation>Plage horaire </translation>
        </message>
        <message>
            <source>Search...</source>
            <translation>Rechercher...</translation>
        </message>
        <message>
            <source>Sector preset</source>
            <translation>Préréglage par secteur</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Tout sélectionner</translation>
        </message>
        <message>
            <source>Select SSH key (optional)</source>
            <translation>Choisir une clé SSH (facultatif)</translation>
        </message>
        <message>
            <source>Select a connection or add a new one.</source>
            <translation>Sélectionnez une connexion ou ajoutez-en une.</translation>
        </message>
        <message>
            <source>Settings...</source>
            <translation>Paramètres...</translation>
        </message>
        <message>
            <source>Simultaneous downloads: </source>
            <translation>Transferts simultanés : </translation>
        </message>
        <message>
            <source>Size</source>
            <translation>Taille</translation>
        </message>
        <message>
            <source>Size mismatch: expected %@, got %@. The file may still be uploading.</source>
            <translation>Taille incorrecte : %@ attendus, %@ reçus. Le fichier est peut-être encore en cours d'envoi.</translation>
        </message>
        <message>
            <source>Sleep Behavior</source>
            <translation>Mise en veille</translation>
        </message>
        <message>
            <source>Sleep is only prevented while files are actively downloading. Normal sleep resumes when idle.</source>
            <translation>La veille n'est empêchée que pendant les téléchargements. Au repos, la mise en veille normale reprend.</translation>
        </message>
        <message>
            <source>Sleep prevention enabled</source>
            <translation>Blocage de la veille activé</translation>
        </message>
        <message>
            <source>Sound</source>
            <translation>Son</translation>
        </message>
        <message>
            <source>Stability checks: </source>
            <translation>Vérifications de stabilité : </translation>
        </message>
        <message>
            <source>Startup</source>
            <translation>Démarrage</translation>
        </message>
        <message>
            <source>Status</source>
            <translation>État</translation>
        </message>
        <message>
            <source>Stopped</source>
            <translation>Arrêtée</translation>
        </message>
        <message>
            <source>Success</source>
            <translation>Réussi</translation>
        </message>
        <message>
            <source>Sync &amp; Transfer</source>
            <translation>Synchronisation et transfert</translation>
        </message>
        <message>
            <source>Sync Log</source>
            <translation>Journal de synchronisation</translation>
        </message>
        <message>
            <source>Sync Now</source>
            <translation>Synchroniser</translation>
        </message>
        <message>
            <source>Sync every </source>
            <translation>Toutes les </translation>
        </message>
        <message>
            <source>Sync only during scheduled hours</source>
            <translation>Synchroniser uniquement aux heures planifiées</translation>
        </message>
        <message>
            <source>Sync subfolders recursively</source>
            <translation>Synchroniser les sous-dossiers récursivement</translation>
        </message>
        <message>
            <source>Syncing...</source>
            <translation>Synchronisation...</translation>
        </message>
        <message>
            <source>System default</source>
            <translation>Langue du système</translation>
        </message>
        <message>
            <source>TCP connection</source>
            <translation>Connexion TCP</translation>
        </message>
        <message>
            <source>Tags</source>
            <translation>Étiquettes</translation>
        </message>
        <message>
            <source>Tarnel %1 (build %2)</source>
            <translation>Tarnel %1 (build %2)</translation>
        </message>
        <message>
            <source>Tarnel History</source>
            <translation>Tarnel – Historique</translation>
        </message>
        <message>
            <source>Tarnel Log</source>
            <translation>Tarnel – Journal</translation>
        </message>
        <message>
            <source>Tarnel Settings</source>
            <translation>Paramètres de Tarnel</translation>
        </message>
        <message>
            <source>Tarnel keeps running in the background when you close this window. To open it again, launch Tarnel from the applications menu.</source>
            <translation>Tarnel continue de fonctionner en arrière-plan quand vous fermez cette fenêtre. Pour la rouvrir, lancez Tarnel depuis le menu des applications.</translation>
        </message>
        <message numerus="yes">
            <source>Tarnel: %n file(s) downloaded</source>
            <translation>
                <numerusform>Tarnel : %n fichier téléchargé</numerusform>
                <numerusform>Tarnel : %n fichiers téléchargés</numerusform>
            </translation>
        </message>
        <message>
            <source>Tarnel: Connection error</source>
            <translation>Tarnel : erreur de connexion</translation>
        </message>
        <message>
            <source>Tarnel: Local folder problem</source>
            <translation>Tarnel : problème de dossier local</translation>
        </message>
        <message>
            <source>Tarnel: New folder detected</source>
            <translation>Tarnel : nouveau dossier détecté</translation>
        </message>
        <message>
            <source>Tarnel: Transfer failed</source>
            <translation>Tarnel : échec du transfert</translation>
        </message>
        <message>
            <source>Test Connection</source>
            <translation>Tester la connexion</translation>
        </message>
        <message>
            <source>Text tag</source>
            <translation>Tag texte</translation>
        </message>
        <message>
            <source>The SFTP server's host key has changed since the last connection to %@. This can mean someone is intercepting the connection. If the change is expected (the server was reinstalled or its key replaced), remove the line for %@ from %@ and connect again.</source>
            <translation>La clé d'hôte du serveur SFTP a changé depuis la dernière connexion à %@. Cela peut signifier que quelqu'un intercepte la connexion. Si ce changement est attendu (le serveur a été réinstallé ou sa clé remplacée), supprimez la ligne de %@ dans %@ et reconnectez-vous.</translation>
        </message>
        <message>
            <source>The connection '</source>
            <translation>La connexion « </translation>
        </message>
        <message>
            <source>This action cannot be undone.</source>
            <translation>Cette action est irréversible.</translation>
        </message>
        <message>
            <source>This will overwrite the current configuration with the recommended values for </source>
            <translation>La configuration actuelle sera remplacée par les valeurs recommandées pour </translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Heure</translation>
        </message>
        <message>
            <source>To </source>
            <translation>À </translation>
        </message>
        <message>
            <source>Today</source>
            <translation>Aujourd'hui</translation>
        </message>
        <message>
            <source>Transfer History</source>
            <translation>Historique des transferts</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Type</translation>
        </message>
        <message>
            <source>Unix glob pattern: * matches any characters, ? matches one character</source>
            <translation>Motif glob Unix : * remplace n'importe quels caractères, ? un seul caractère</translation>
        </message>
        <message>
            <source>Unlimited</source>
            <translation>Illimitée</translation>
        </message>
        <message>
            <source>Unmute</source>
            <translation>Rétablir le son</translation>
        </message>
        <message>
            <source>Upload/store failed. The server rejected the operation. Check write permissions on the server.</source>
            <translation>Échec de l'envoi ou de l'enregistrement. Le serveur a refusé l'opération. Vérifiez les droits d'écriture sur le serveur.</translation>
        </message>
        <message>
            <source>Username</source>
            <translation>Nom d'utilisateur</translation>
        </message>
        <message>
            <source>Variables: {original}, {date}, {time}, {counter}, {host}</source>
            <translation>Variables : {original}, {date}, {time}, {counter}, {host}</translation>
        </message>
        <message>
            <source>Verify checksum (MD5)</source>
            <translation>Vérifier la somme de contrôle (MD5)</translation>
        </message>
        <message>
            <source>Video</source>
            <translation>Vidéo</translation>
        </message>
        <message>
            <source>Video only</source>
            <translation>Vidéo uniquement</translation>
        </message>
        <message>
            <source>Waiting...</source>
            <translation>En attente...</translation>
        </message>
        <message>
            <source>Warn and pause if disk space is low</source>
            <translation>Avertir et suspendre si l'espace disque est faible</translation>
        </message>
        <message>
            <source>Wrong username or password</source>
            <translation>Nom d'utilisateur ou mot de passe incorrect</translation>
        </message>
        <message>
            <source>dead.rule.warning</source>
            <translation>Jamais utilisée : une règle précédente prend déjà ces fichiers</translation>
        </message>
        <message>
            <source>ext.cat.audio</source>
            <translation>Audio</translation>
        </message>
        <message>
            <source>ext.cat.documents</source>
            <translation>Documents</translation>
        </message>
        <message>
            <source>ext.cat.images</source>
            <translation>Images</translation>
        </message>
        <message>
            <source>ext.cat.temp</source>
            <translation>Fichiers temporaires</translation>
        </message>
        <message>
            <source>ext.cat.video</source>
            <translation>Vidéo</translation>
        </message>
        <message>
            <source>ext.reset.button</source>
            <translation>Rétablir le préréglage</translation>
        </message>
        <message>
            <source>ext.unspecified.download</source>
            <translation>Télécharger</translation>
        </message>
        <message>
            <source>ext.unspecified.ignore</source>
            <translation>Ignorer</translation>
        </message>
        <message>
            <source>ext.unspecified.label</source>
            <translation>Autres extensions</translation>
        </message>
        <message numerus="yes">
            <source>failed after %n attempts</source>
            <translation>
                <numerusform>a échoué après %n tentative</numerusform>
                <numerusform>a échoué après %n tentatives</numerusform>
            </translation>
        </message>
        <message>
            <source>growing...</source>
            <translation>en cours d'écriture...</translation>
        </message>
        <message>
            <source>invoice</source>
            <translation>facture</translation>
        </message>
        <message>
            <source>jpg, pdf, raw, cr3</source>
            <translation>jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>just now</source>
            <translation>à l'instant</translation>
        </message>
    </context>
</TS>
