<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
    <context>
        <name>tarnel</name>
        <message>
            <source> GB</source>
            <translation> GB</translation>
        </message>
        <message>
            <source> GB free</source>
            <translation> GB libres</translation>
        </message>
        <message>
            <source>%@ checksum mismatch: the server says %@, the download gives %@. The file was not placed and stays on the server; it will be downloaded again.</source>
            <translation>La suma de comprobación %@ no coincide: el servidor indica %@, la descarga da %@. El archivo no se ha colocado y permanece en el servidor; se volverá a descargar.</translation>
        </message>
        <message>
            <source>%@ checksums</source>
            <translation>Sumas de comprobación %@</translation>
        </message>
        <message>
            <source>%lld min ago</source>
            <translation>hace %lld min</translation>
        </message>
        <message>
            <source>%lldd ago</source>
            <translation>hace %lld d</translation>
        </message>
        <message>
            <source>%lldh ago</source>
            <translation>hace %lld h</translation>
        </message>
        <message>
            <source>%llds ago</source>
            <translation>hace %lld s</translation>
        </message>
        <message numerus="yes">
            <source>%n active connection(s)</source>
            <translation>
                <numerusform>%n conexión activa</numerusform>
                <numerusform>%n conexiones activas</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s)</source>
            <translation>
                <numerusform>%n archivo</numerusform>
                <numerusform>%n archivos</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n file(s) found</source>
            <translation>
                <numerusform>%n archivo encontrado</numerusform>
                <numerusform>%n archivos encontrados</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n folder(s) selected</source>
            <translation>
                <numerusform>%n carpeta seleccionada</numerusform>
                <numerusform>%n carpetas seleccionadas</numerusform>
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
                <numerusform>%n esperando a estabilizarse</numerusform>
                <numerusform>%n esperando a estabilizarse</numerusform>
            </translation>
        </message>
        <message>
            <source>' has changes that were not applied.</source>
            <translation>» tiene cambios sin aplicar.</translation>
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
                <numerusform>+%n más descargándose...</numerusform>
                <numerusform>+%n más descargándose...</numerusform>
            </translation>
        </message>
        <message>
            <source>. Do you want to continue?</source>
            <translation>. ¿Desea continuar?</translation>
        </message>
        <message numerus="yes">
            <source>...and %n more</source>
            <translation>
                <numerusform>...y %n más</numerusform>
                <numerusform>...y %n más</numerusform>
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
            <translation>ACTIVIDAD</translation>
        </message>
        <message>
            <source>About Tarnel</source>
            <translation>Acerca de Tarnel</translation>
        </message>
        <message>
            <source>Access denied to the remote folder. Check that the path exists and you have read permission.</source>
            <translation>Acceso denegado a la carpeta remota. Compruebe que la ruta existe y que tiene permiso de lectura.</translation>
        </message>
        <message>
            <source>Access to '%@' has expired. Please re-select the folder in Settings.</source>
            <translation>El acceso a «%@» ha caducado. Vuelva a seleccionar la carpeta en los ajustes.</translation>
        </message>
        <message>
            <source>Active</source>
            <translation>Activo</translation>
        </message>
        <message>
            <source>Add Connection</source>
            <translation>Añadir conexión</translation>
        </message>
        <message>
            <source>Add Rule</source>
            <translation>Añadir regla</translation>
        </message>
        <message>
            <source>Advanced</source>
            <translation>Avanzado</translation>
        </message>
        <message>
            <source>Advanced Options</source>
            <translation>Opciones avanzadas</translation>
        </message>
        <message numerus="yes">
            <source>After %n consecutive failures</source>
            <translation>
                <numerusform>Tras %n fallo</numerusform>
                <numerusform>Tras %n fallos consecutivos</numerusform>
            </translation>
        </message>
        <message>
            <source>Agency / Creative</source>
            <translation>Agencia / Creatividad</translation>
        </message>
        <message>
            <source>All</source>
            <translation>Todos</translation>
        </message>
        <message>
            <source>All except temporaries (recommended)</source>
            <translation>Todo excepto temporales (recomendado)</translation>
        </message>
        <message>
            <source>All files</source>
            <translation>Todos los archivos</translation>
        </message>
        <message>
            <source>All files (no filter)</source>
            <translation>Todos los archivos (sin filtro)</translation>
        </message>
        <message>
            <source>All files flat (one folder)</source>
            <translation>Todos los archivos juntos (una carpeta)</translation>
        </message>
        <message>
            <source>All time</source>
            <translation>Total</translation>
        </message>
        <message>
            <source>Allow self-signed certificates</source>
            <translation>Permitir certificados autofirmados</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>Aplicar</translation>
        </message>
        <message>
            <source>Apply preset?</source>
            <translation>¿Aplicar el ajuste predefinido?</translation>
        </message>
        <message>
            <source>Apply them now, or discard them?</source>
            <translation>¿Aplicarlos ahora o descartarlos?</translation>
        </message>
        <message>
            <source>Apply your changes?</source>
            <translation>¿Aplicar los cambios?</translation>
        </message>
        <message>
            <source>Audiovisual</source>
            <translation>Audiovisual</translation>
        </message>
        <message>
            <source>Authentication</source>
            <translation>Autenticación</translation>
        </message>
        <message>
            <source>Authentication failed. Check your username and password.</source>
            <translation>Error de autenticación. Compruebe el nombre de usuario y la contraseña.</translation>
        </message>
        <message>
            <source>Auto-Rename</source>
            <translation>Cambio de nombre automático</translation>
        </message>
        <message>
            <source>Auto-decompress ZIP/GZ</source>
            <translation>Descomprimir ZIP/GZ automáticamente</translation>
        </message>
        <message>
            <source>Auto-monitor new remote folders</source>
            <translation>Vigilar automáticamente las carpetas remotas nuevas</translation>
        </message>
        <message>
            <source>Behavior</source>
            <translation>Comportamiento</translation>
        </message>
        <message>
            <source>Browse...</source>
            <translation>Explorar...</translation>
        </message>
        <message>
            <source>CONNECTIONS</source>
            <translation>CONEXIONES</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message>
            <source>Cannot connect to port %lld</source>
            <translation>No se puede conectar al puerto %lld</translation>
        </message>
        <message>
            <source>Cannot write to '%@'. Check the folder's permissions in the file manager.</source>
            <translation>No se puede escribir en «%@». Compruebe los permisos de la carpeta en el gestor de archivos.</translation>
        </message>
        <message>
            <source>Cellular</source>
            <translation>Red móvil</translation>
        </message>
        <message>
            <source>Changes applied</source>
            <translation>Cambios aplicados</translation>
        </message>
        <message>
            <source>Checksum and listing</source>
            <translation>Suma de comprobación y listado</translation>
        </message>
        <message>
            <source>Choose...</source>
            <translation>Elegir...</translation>
        </message>
        <message>
            <source>Clear</source>
            <translation>Quitar</translation>
        </message>
        <message>
            <source>Clear All</source>
            <translation>Borrar todo</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>Color</translation>
        </message>
        <message>
            <source>Comma-separated extensions. Example: jpg, pdf, raw, cr3</source>
            <translation>Extensiones separadas por comas. Ejemplo: jpg, pdf, raw, cr3</translation>
        </message>
        <message>
            <source>Command or script</source>
            <translation>Comando o script</translation>
        </message>
        <message>
            <source>Connect automatically when Tarnel starts</source>
            <translation>Conectar automáticamente al iniciar Tarnel</translation>
        </message>
        <message>
            <source>Connected</source>
            <translation>Conectada</translation>
        </message>
        <message>
            <source>Connection</source>
            <translation>Conexión</translation>
        </message>
        <message>
            <source>Connection error (code %lld)%@. Check your connection settings.</source>
            <translation>Error de conexión (código %lld)%@. Compruebe los ajustes de la conexión.</translation>
        </message>
        <message>
            <source>Connection failed: </source>
            <translation>Error de conexión: </translation>
        </message>
        <message>
            <source>Connection successful</source>
            <translation>Conexión correcta</translation>
        </message>
        <message>
            <source>Connection timed out. The server is too slow or unreachable. Try increasing the timeout or check your network.</source>
            <translation>Se agotó el tiempo de conexión. El servidor es demasiado lento o no está disponible. Aumente el tiempo de espera o compruebe la red.</translation>
        </message>
        <message>
            <source>Connections</source>
            <translation>Conexiones</translation>
        </message>
        <message>
            <source>Continue</source>
            <translation>Continuar</translation>
        </message>
        <message>
            <source>Copy All</source>
            <translation>Copiar todo</translation>
        </message>
        <message>
            <source>Copy mode: files stay on the server.</source>
            <translation>Modo copia: los archivos se quedan en el servidor.</translation>
        </message>
        <message>
            <source>Could not connect to server. Check the host, port, and that the server is running.</source>
            <translation>No se pudo conectar con el servidor. Compruebe el host, el puerto y que el servidor esté en marcha.</translation>
        </message>
        <message>
            <source>Could not resolve host. Check that the hostname is correct and your DNS is working.</source>
            <translation>No se pudo resolver el host. Compruebe que el nombre del host es correcto y que el DNS funciona.</translation>
        </message>
        <message>
            <source>Create subfolder per connection</source>
            <translation>Crear una subcarpeta por conexión</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Personalizado</translation>
        </message>
        <message>
            <source>Custom mapping per folder</source>
            <translation>Asignación personalizada por carpeta</translation>
        </message>
        <message>
            <source>Custom pattern (glob)</source>
            <translation>Patrón personalizado (glob)</translation>
        </message>
        <message>
            <source>DNS resolution</source>
            <translation>Resolución DNS</translation>
        </message>
        <message>
            <source>Data &amp; Analytics</source>
            <translation>Datos y análisis</translation>
        </message>
        <message>
            <source>Data / Analytics</source>
            <translation>Datos / Análisis</translation>
        </message>
        <message>
            <source>Days</source>
            <translation>Días</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Eliminar</translation>
        </message>
        <message>
            <source>Delete '</source>
            <translation>¿Eliminar «</translation>
        </message>
        <message>
            <source>Delete empty remote folders</source>
            <translation>Eliminar carpetas remotas vacías</translation>
        </message>
        <message>
            <source>Delete failed: %@</source>
            <translation>Error al eliminar: %@</translation>
        </message>
        <message>
            <source>Delete files from FTP after download</source>
            <translation>Eliminar los archivos del FTP tras la descarga</translation>
        </message>
        <message>
            <source>Delete this connection?</source>
            <translation>¿Eliminar esta conexión?</translation>
        </message>
        <message>
            <source>Deselect All</source>
            <translation>Deseleccionar todo</translation>
        </message>
        <message>
            <source>Destination</source>
            <translation>Destino</translation>
        </message>
        <message>
            <source>Destination Folder</source>
            <translation>Carpeta de destino</translation>
        </message>
        <message>
            <source>Disable SSL verification. Only enable if your server uses a self-signed or expired certificate.</source>
            <translation>Desactiva la verificación SSL. Actívelo solo si su servidor usa un certificado autofirmado o caducado.</translation>
        </message>
        <message>
            <source>Disable connection</source>
            <translation>Desactivar conexión</translation>
        </message>
        <message>
            <source>Disabled</source>
            <translation>Desactivada</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>Descartar</translation>
        </message>
        <message>
            <source>Disk Space</source>
            <translation>Espacio en disco</translation>
        </message>
        <message>
            <source>Download Notifications</source>
            <translation>Notificaciones de descarga</translation>
        </message>
        <message>
            <source>Download failed: %@</source>
            <translation>Error en la descarga: %@</translation>
        </message>
        <message>
            <source>Downloaded file '%@' is empty. The remote file may be corrupted or still being written.</source>
            <translation>El archivo descargado «%@» está vacío. Puede que el archivo remoto esté dañado o que aún se esté escribiendo.</translation>
        </message>
        <message>
            <source>E-commerce</source>
            <translation>Comercio electrónico</translation>
        </message>
        <message>
            <source>E-commerce / Data</source>
            <translation>Comercio electrónico / Datos</translation>
        </message>
        <message>
            <source>Enable connection</source>
            <translation>Activar conexión</translation>
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
            <translation>Notificaciones de error</translation>
        </message>
        <message>
            <source>Error: </source>
            <translation>Error: </translation>
        </message>
        <message>
            <source>Example: </source>
            <translation>Ejemplo: </translation>
        </message>
        <message>
            <source>Extension preset</source>
            <translation>Extensiones predefinidas</translation>
        </message>
        <message>
            <source>FTP Mode</source>
            <translation>Modo FTP</translation>
        </message>
        <message>
            <source>FTP does not encrypt data. For medical records, SFTP is strongly recommended.</source>
            <translation>FTP no cifra los datos. Para historiales médicos se recomienda encarecidamente SFTP.</translation>
        </message>
        <message>
            <source>FTP quote command failed. Check the remote path or delete permissions.</source>
            <translation>Falló el comando FTP. Compruebe la ruta remota o los permisos de borrado.</translation>
        </message>
        <message>
            <source>File</source>
            <translation>Archivo</translation>
        </message>
        <message>
            <source>File type</source>
            <translation>Tipo de archivo</translation>
        </message>
        <message>
            <source>Filename contains</source>
            <translation>El nombre contiene</translation>
        </message>
        <message>
            <source>Filename starts with</source>
            <translation>El nombre empieza por</translation>
        </message>
        <message>
            <source>Filters</source>
            <translation>Filtros</translation>
        </message>
        <message>
            <source>Finance</source>
            <translation>Finanzas</translation>
        </message>
        <message>
            <source>Finance / Accounting</source>
            <translation>Finanzas / Contabilidad</translation>
        </message>
        <message>
            <source>Folder error</source>
            <translation>Error de carpeta</translation>
        </message>
        <message>
            <source>Folder not accessible: %@</source>
            <translation>Carpeta no accesible: %@</translation>
        </message>
        <message>
            <source>From </source>
            <translation>Desde las </translation>
        </message>
        <message>
            <source>General</source>
            <translation>General</translation>
        </message>
        <message>
            <source>Group notifications (summary instead of file list)</source>
            <translation>Agrupar notificaciones (resumen en lugar de lista de archivos)</translation>
        </message>
        <message>
            <source>Health</source>
            <translation>Salud</translation>
        </message>
        <message>
            <source>Health / Compliance</source>
            <translation>Salud / Cumplimiento</translation>
        </message>
        <message>
            <source>History...</source>
            <translation>Historial...</translation>
        </message>
        <message>
            <source>Host</source>
            <translation>Host</translation>
        </message>
        <message>
            <source>Host '%@' not found</source>
            <translation>No se encontró el host «%@»</translation>
        </message>
        <message>
            <source>IT &amp; Integrations</source>
            <translation>TI e integraciones</translation>
        </message>
        <message>
            <source>IT / Integrations</source>
            <translation>TI / Integraciones</translation>
        </message>
        <message>
            <source>If No Rule Matches</source>
            <translation>Si ninguna regla coincide</translation>
        </message>
        <message>
            <source>If the computer sleeps anyway (battery, lid close), transfers will pause and resume automatically on wake.</source>
            <translation>Si el equipo entra en reposo de todos modos (batería, tapa cerrada), las transferencias se pausan y se reanudan solas al despertar.</translation>
        </message>
        <message>
            <source>Ignore (don't download)</source>
            <translation>Ignorar (no descargar)</translation>
        </message>
        <message>
            <source>Includes files from all subfolders on the server. Can be slow with large servers.</source>
            <translation>Incluye los archivos de todas las subcarpetas del servidor. Puede ser lento en servidores grandes.</translation>
        </message>
        <message>
            <source>Interrupted downloads resume automatically. Set to 0 to disable.</source>
            <translation>Las descargas interrumpidas se reanudan automáticamente. Ponga 0 para desactivarlo.</translation>
        </message>
        <message>
            <source>LIST listings</source>
            <translation>Listados LIST</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>Idioma</translation>
        </message>
        <message>
            <source>Last activity: </source>
            <translation>Última actividad: </translation>
        </message>
        <message>
            <source>Launch Tarnel when you log in</source>
            <translation>Abrir Tarnel al iniciar sesión</translation>
        </message>
        <message>
            <source>Listing folders...</source>
            <translation>Listando carpetas...</translation>
        </message>
        <message>
            <source>Local Folder</source>
            <translation>Carpeta local</translation>
        </message>
        <message>
            <source>Log Folder</source>
            <translation>Carpeta de registros</translation>
        </message>
        <message>
            <source>Log...</source>
            <translation>Registro...</translation>
        </message>
        <message>
            <source>Low disk</source>
            <translation>Poco espacio</translation>
        </message>
        <message>
            <source>MLSD listings</source>
            <translation>Listados MLSD</translation>
        </message>
        <message>
            <source>Made by the Tarnel developers.</source>
            <translation>Creado por el equipo de Tarnel.</translation>
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
            <translation>Condición</translation>
        </message>
        <message>
            <source>Matches any file whose name contains this text</source>
            <translation>Coincide con cualquier archivo cuyo nombre contenga este texto</translation>
        </message>
        <message>
            <source>Matches any file whose name starts with this text</source>
            <translation>Coincide con cualquier archivo cuyo nombre empiece por este texto</translation>
        </message>
        <message>
            <source>Max depth: </source>
            <translation>Profundidad máxima: </translation>
        </message>
        <message>
            <source>Max download speed</source>
            <translation>Velocidad máxima de descarga</translation>
        </message>
        <message>
            <source>Max resume attempts: </source>
            <translation>Máx. intentos de reanudación: </translation>
        </message>
        <message>
            <source>Max retries: </source>
            <translation>Máx. reintentos: </translation>
        </message>
        <message>
            <source>Min file size: </source>
            <translation>Tamaño mínimo: </translation>
        </message>
        <message>
            <source>Minimum free space</source>
            <translation>Espacio libre mínimo</translation>
        </message>
        <message>
            <source>Mirror remote structure</source>
            <translation>Replicar la estructura remota</translation>
        </message>
        <message>
            <source>Monitoring — no transfers in progress</source>
            <translation>Vigilando — ninguna transferencia en curso</translation>
        </message>
        <message>
            <source>Move mode: files are removed from the server.</source>
            <translation>Modo mover: los archivos se borran del servidor.</translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>Silenciar</translation>
        </message>
        <message>
            <source>My Camera FTP</source>
            <translation>FTP de mi cámara</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Nombre</translation>
        </message>
        <message>
            <source>Network</source>
            <translation>Red</translation>
        </message>
        <message>
            <source>New Connection</source>
            <translation>Nueva conexión</translation>
        </message>
        <message>
            <source>No checksum: files are verified by size</source>
            <translation>Sin suma de comprobación: los archivos se verifican por su tamaño</translation>
        </message>
        <message>
            <source>No connections</source>
            <translation>Sin conexiones</translation>
        </message>
        <message>
            <source>No connections configured</source>
            <translation>No hay conexiones configuradas</translation>
        </message>
        <message>
            <source>No log entries yet.</source>
            <translation>Aún no hay entradas en el registro.</translation>
        </message>
        <message>
            <source>No minimum</source>
            <translation>Sin mínimo</translation>
        </message>
        <message>
            <source>No network</source>
            <translation>Sin red</translation>
        </message>
        <message>
            <source>No recent downloads</source>
            <translation>No hay descargas recientes</translation>
        </message>
        <message>
            <source>No rename — original filename is kept</source>
            <translation>Sin cambio de nombre — se conserva el nombre original</translation>
        </message>
        <message>
            <source>No rules — all files go to the main folder</source>
            <translation>Sin reglas — todos los archivos van a la carpeta principal</translation>
        </message>
        <message>
            <source>No subdirectories found</source>
            <translation>No se encontraron subcarpetas</translation>
        </message>
        <message>
            <source>No transfer history.</source>
            <translation>No hay historial de transferencias.</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Ninguno</translation>
        </message>
        <message>
            <source>Not selected</source>
            <translation>Sin seleccionar</translation>
        </message>
        <message>
            <source>Notifications</source>
            <translation>Notificaciones</translation>
        </message>
        <message>
            <source>Notify on connection errors</source>
            <translation>Avisar de errores de conexión</translation>
        </message>
        <message>
            <source>Notify when connections pause/resume by schedule</source>
            <translation>Avisar cuando las conexiones se pausen o reanuden según el horario</translation>
        </message>
        <message>
            <source>Notify when downloads complete</source>
            <translation>Avisar al terminar las descargas</translation>
        </message>
        <message>
            <source>Offline</source>
            <translation>Sin conexión</translation>
        </message>
        <message>
            <source>Only %@ GB of disk space remaining. Free up space to continue downloading.</source>
            <translation>Solo quedan %@ GB de espacio en disco. Libere espacio para seguir descargando.</translation>
        </message>
        <message numerus="yes">
            <source>Only if %n or more files</source>
            <translation>
                <numerusform>Solo si hay %n archivo o más</numerusform>
                <numerusform>Solo si hay %n archivos o más</numerusform>
            </translation>
        </message>
        <message>
            <source>Only last folder level</source>
            <translation>Solo el último nivel de carpeta</translation>
        </message>
        <message>
            <source>Open Tarnel</source>
            <translation>Abrir Tarnel</translation>
        </message>
        <message>
            <source>Open destination folder</source>
            <translation>Abrir carpeta de destino</translation>
        </message>
        <message>
            <source>Open destination folders</source>
            <translation>Abrir carpetas de destino</translation>
        </message>
        <message>
            <source>Open main folder</source>
            <translation>Abrir carpeta principal</translation>
        </message>
        <message>
            <source>Optional tag name</source>
            <translation>Nombre de etiqueta opcional</translation>
        </message>
        <message>
            <source>Organization</source>
            <translation>Organización</translation>
        </message>
        <message>
            <source>Organize by date (YYYY/MM/DD)</source>
            <translation>Organizar por fecha (AAAA/MM/DD)</translation>
        </message>
        <message>
            <source>Organize downloads</source>
            <translation>Organizar descargas</translation>
        </message>
        <message>
            <source>Other files</source>
            <translation>Otros archivos</translation>
        </message>
        <message>
            <source>Parse error: %@</source>
            <translation>Error de análisis: %@</translation>
        </message>
        <message>
            <source>Partial file received. The transfer was interrupted. It will retry automatically.</source>
            <translation>Archivo recibido a medias. La transferencia se interrumpió y se reintentará automáticamente.</translation>
        </message>
        <message>
            <source>Passive (recommended)</source>
            <translation>Pasivo (recomendado)</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>Contraseña</translation>
        </message>
        <message>
            <source>Pattern (empty = no rename)</source>
            <translation>Patrón (vacío = sin cambio de nombre)</translation>
        </message>
        <message>
            <source>Pattern:</source>
            <translation>Patrón:</translation>
        </message>
        <message>
            <source>Pause</source>
            <translation>Pausar</translation>
        </message>
        <message>
            <source>Pause and resume on wake</source>
            <translation>Pausar y reanudar al despertar</translation>
        </message>
        <message>
            <source>Pause when internet is unavailable</source>
            <translation>Pausar cuando no haya internet</translation>
        </message>
        <message>
            <source>Pause when on mobile hotspot</source>
            <translation>Pausar con punto de acceso móvil</translation>
        </message>
        <message>
            <source>Paused</source>
            <translation>En pausa</translation>
        </message>
        <message>
            <source>Paused — low disk space</source>
            <translation>En pausa — poco espacio en disco</translation>
        </message>
        <message>
            <source>Paused — mobile hotspot detected</source>
            <translation>En pausa — punto de acceso móvil detectado</translation>
        </message>
        <message>
            <source>Paused — no internet connection</source>
            <translation>En pausa — sin conexión a internet</translation>
        </message>
        <message>
            <source>Photography</source>
            <translation>Fotografía</translation>
        </message>
        <message>
            <source>Photos only</source>
            <translation>Solo fotos</translation>
        </message>
        <message>
            <source>Play sound on download</source>
            <translation>Reproducir un sonido al descargar</translation>
        </message>
        <message>
            <source>Polling Interval</source>
            <translation>Intervalo de comprobación</translation>
        </message>
        <message>
            <source>Port</source>
            <translation>Puerto</translation>
        </message>
        <message>
            <source>Port must be between 1 and 65535</source>
            <translation>El puerto debe estar entre 1 y 65535</translation>
        </message>
        <message>
            <source>Preset</source>
            <translation>Ajuste predefinido</translation>
        </message>
        <message>
            <source>Press "Browse..." to list the server's folders.</source>
            <translation>Pulse «Explorar...» para ver las carpetas del servidor.</translation>
        </message>
        <message>
            <source>Prevent sleep during downloads</source>
            <translation>Evitar el reposo durante las descargas</translation>
        </message>
        <message>
            <source>Preventing sleep — downloading</source>
            <translation>Reposo bloqueado — descargando</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Vista previa</translation>
        </message>
        <message>
            <source>Preview:</source>
            <translation>Vista previa:</translation>
        </message>
        <message>
            <source>Print &amp; Graphics</source>
            <translation>Imprenta y diseño gráfico</translation>
        </message>
        <message>
            <source>Print / Graphics</source>
            <translation>Impresión / Gráficos</translation>
        </message>
        <message>
            <source>Protocol</source>
            <translation>Protocolo</translation>
        </message>
        <message>
            <source>Quit</source>
            <translation>Salir</translation>
        </message>
        <message>
            <source>RECENT</source>
            <translation>RECIENTES</translation>
        </message>
        <message>
            <source>Re-select folder to grant persistent access</source>
            <translation>Vuelva a elegir la carpeta para conceder acceso permanente</translation>
        </message>
        <message>
            <source>Read Me</source>
            <translation>Léame</translation>
        </message>
        <message>
            <source>Recommended for critical transfers. May double download time.</source>
            <translation>Recomendado para transferencias críticas. Puede duplicar el tiempo de descarga.</translation>
        </message>
        <message>
            <source>Remote Folder</source>
            <translation>Carpeta remota</translation>
        </message>
        <message>
            <source>Remote Subdirectories</source>
            <translation>Subcarpetas remotas</translation>
        </message>
        <message>
            <source>Remote folder access</source>
            <translation>Acceso a la carpeta remota</translation>
        </message>
        <message>
            <source>Remote path</source>
            <translation>Ruta remota</translation>
        </message>
        <message>
            <source>Remote path contains a control character</source>
            <translation>La ruta remota contiene un carácter de control</translation>
        </message>
        <message>
            <source>Research / Science</source>
            <translation>Investigación / Ciencia</translation>
        </message>
        <message>
            <source>Restart Tarnel to apply the language change.</source>
            <translation>Reinicie Tarnel para aplicar el cambio de idioma.</translation>
        </message>
        <message>
            <source>Resume</source>
            <translation>Reanudar</translation>
        </message>
        <message>
            <source>Retry Failed</source>
            <translation>Agotado</translation>
        </message>
        <message>
            <source>Retrying (%lld/%lld)...</source>
            <translation>Reintentando (%lld/%lld)...</translation>
        </message>
        <message>
            <source>Routing Rule</source>
            <translation>Regla de destino</translation>
        </message>
        <message>
            <source>Routing Rules</source>
            <translation>Reglas de destino</translation>
        </message>
        <message>
            <source>Rule enabled</source>
            <translation>Regla activada</translation>
        </message>
        <message>
            <source>Run post-download action</source>
            <translation>Ejecutar una acción tras la descarga</translation>
        </message>
        <message>
            <source>SSH Key Path</source>
            <translation>Ruta de la clave SSH</translation>
        </message>
        <message>
            <source>SSL certificate verification failed. The server certificate may be self-signed or expired.</source>
            <translation>Falló la verificación del certificado SSL. Puede que el certificado del servidor sea autofirmado o esté caducado.</translation>
        </message>
        <message>
            <source>SSL/TLS handshake failed. The server may not support FTPS, or the certificate is invalid.</source>
            <translation>Falló la negociación SSL/TLS. Puede que el servidor no admita FTPS o que el certificado no sea válido.</translation>
        </message>
        <message>
            <source>STATISTICS</source>
            <translation>ESTADÍSTICAS</translation>
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
            <translation>Guardar regla</translation>
        </message>
        <message>
            <source>Save to main folder</source>
            <translation>Guardar en la carpeta principal</translation>
        </message>
        <message>
            <source>Save to specific folder</source>
            <translation>Guardar en una carpeta concreta</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>Horario</translation>
        </message>
        <message>
            <source>Schedule Notifications</source>
            <translation>Notificaciones del horario</translation>
        </message>
        <message>
            <source>Scheduled </source>
            <translation>Horario </translation>
        </message>
        <message>
            <source>Search...</source>
            <translation>Buscar...</translation>
        </message>
        <message>
            <source>Sector preset</source>
            <translation>Ajuste por sector</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Seleccionar todo</translation>
        </message>
        <message>
            <source>Select SSH key (optional)</source>
            <translation>Seleccione una clave SSH (opcional)</translation>
        </message>
        <message>
            <source>Select a connection or add a new one.</source>
            <translation>Seleccione una conexión o añada una nueva.</translation>
        </message>
        <message>
            <source>Settings...</source>
            <translation>Ajustes...</translation>
        </message>
        <message>
            <source>Simultaneous downloads: </source>
            <translation>Descargas simultáneas: </translation>
        </message>
        <message>
            <source>Size</source>
            <translation>Tamaño</translation>
        </message>
        <message>
            <source>Size mismatch: expected %@, got %@. The file may still be uploading.</source>
            <translation>El tamaño no coincide: se esperaban %@ y se recibieron %@. Puede que el archivo aún se esté subiendo.</translation>
        </message>
        <message>
            <source>Sleep Behavior</source>
            <translation>Reposo</translation>
        </message>
        <message>
            <source>Sleep is only prevented while files are actively downloading. Normal sleep resumes when idle.</source>
            <translation>El reposo solo se bloquea mientras se descargan archivos. Sin actividad, el equipo vuelve a dormir con normalidad.</translation>
        </message>
        <message>
            <source>Sleep prevention enabled</source>
            <translation>Bloqueo del reposo activado</translation>
        </message>
        <message>
            <source>Sound</source>
            <translation>Sonido</translation>
        </message>
        <message>
            <source>Stability checks: </source>
            <translation>Comprobaciones de estabilidad: </translation>
        </message>
        <message>
            <source>Startup</source>
            <translation>Inicio</translation>
        </message>
        <message>
            <source>Status</source>
            <translation>Estado</translation>
        </message>
        <message>
            <source>Stopped</source>
            <translation>Detenida</translation>
        </message>
        <message>
            <source>Success</source>
            <translation>Correcto</translation>
        </message>
        <message>
            <source>Sync &amp; Transfer</source>
            <translation>Sincronización y transferencia</translation>
        </message>
        <message>
            <source>Sync Log</source>
            <translation>Registro de sincronización</translation>
        </message>
        <message>
            <source>Sync Now</source>
            <translation>Sincronizar ahora</translation>
        </message>
        <message>
            <source>Sync every </source>
            <translation>Cada </translation>
        </message>
        <message>
            <source>Sync only during scheduled hours</source>
            <translation>Sincronizar solo en el horario programado</translation>
        </message>
        <message>
            <source>Sync subfolders recursively</source>
            <translation>Sincronizar subcarpetas de forma recursiva</translation>
        </message>
        <message>
            <source>Syncing...</source>
            <translation>Sincronizando...</translation>
        </message>
        <message>
            <source>System default</source>
            <translation>Idioma del sistema</translation>
        </message>
        <message>
            <source>TCP connection</source>
            <translation>Conexión TCP</translation>
        </message>
        <message>
            <source>Tags</source>
            <translation>Etiquetas</translation>
        </message>
        <message>
            <source>Tarnel %1 (build %2)</source>
            <translation>Tarnel %1 (compilación %2)</translation>
        </message>
        <message>
            <source>Tarnel History</source>
            <translation>Tarnel – Historial</translation>
        </message>
        <message>
            <source>Tarnel Log</source>
            <translation>Tarnel – Registro</translation>
        </message>
        <message>
            <source>Tarnel Settings</source>
            <translation>Ajustes de Tarnel</translation>
        </message>
        <message>
            <source>Tarnel keeps running in the background when you close this window. To open it again, launch Tarnel from the applications menu.</source>
            <translation>Tarnel sigue funcionando en segundo plano al cerrar esta ventana. Para volver a abrirla, inicie Tarnel desde el menú de aplicaciones.</translation>
        </message>
        <message numerus="yes">
            <source>Tarnel: %n file(s) downloaded</source>
            <translation>
                <numerusform>Tarnel: %n archivo descargado</numerusform>
                <numerusform>Tarnel: %n archivos descargados</numerusform>
            </translation>
        </message>
        <message>
            <source>Tarnel: Connection error</source>
            <translation>Tarnel: error de conexión</translation>
        </message>
        <message>
            <source>Tarnel: Local folder problem</source>
            <translation>Tarnel: problema con la carpeta local</translation>
        </message>
        <message>
            <source>Tarnel: New folder detected</source>
            <translation>Tarnel: nueva carpeta detectada</translation>
        </message>
        <message>
            <source>Tarnel: Transfer failed</source>
            <translation>Tarnel: error en la transferencia</translation>
        </message>
        <message>
            <source>Test Connection</source>
            <translation>Probar conexión</translation>
        </message>
        <message>
            <source>Text tag</source>
            <translation>Etiqueta de texto</translation>
        </message>
        <message>
            <source>The SFTP server's host key has changed since the last connection to %@. This can mean someone is intercepting the connection. If the change is expected (the server was reinstalled or its key replaced), remove the line for %@ from %@ and connect again.</source>
            <translation>La clave de host del servidor SFTP ha cambiado desde la última conexión a %@. Esto puede significar que alguien está interceptando la conexión. Si el cambio es esperado (se reinstaló el servidor o se sustituyó su clave), elimine la línea de %@ en %@ y vuelva a conectar.</translation>
        </message>
        <message>
            <source>The connection '</source>
            <translation>La conexión «</translation>
        </message>
        <message>
            <source>This action cannot be undone.</source>
            <translation>Esta acción no se puede deshacer.</translation>
        </message>
        <message>
            <source>This will overwrite the current configuration with the recommended values for </source>
            <translation>Esto sustituirá la configuración actual por los valores recomendados para </translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Hora</translation>
        </message>
        <message>
            <source>To </source>
            <translation>Hasta las </translation>
        </message>
        <message>
            <source>Today</source>
            <translation>Hoy</translation>
        </message>
        <message>
            <source>Transfer History</source>
            <translation>Historial de transferencias</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Tipo</translation>
        </message>
        <message>
            <source>Unix glob pattern: * matches any characters, ? matches one character</source>
            <translation>Patrón glob de Unix: * equivale a cualquier texto, ? a un solo carácter</translation>
        </message>
        <message>
            <source>Unlimited</source>
            <translation>Sin límite</translation>
        </message>
        <message>
            <source>Unmute</source>
            <translation>Activar sonido</translation>
        </message>
        <message>
            <source>Upload/store failed. The server rejected the operation. Check write permissions on the server.</source>
            <translation>Falló la subida o el guardado. El servidor rechazó la operación. Compruebe los permisos de escritura en el servidor.</translation>
        </message>
        <message>
            <source>Username</source>
            <translation>Usuario</translation>
        </message>
        <message>
            <source>Variables: {original}, {date}, {time}, {counter}, {host}</source>
            <translation>Variables: {original}, {date}, {time}, {counter}, {host}</translation>
        </message>
        <message>
            <source>Verify checksum (MD5)</source>
            <translation>Verificar suma de comprobación (MD5)</translation>
        </message>
        <message>
            <source>Video</source>
            <translation>Vídeo</translation>
        </message>
        <message>
            <source>Video only</source>
            <translation>Solo vídeo</translation>
        </message>
        <message>
            <source>Waiting...</source>
            <translation>Esperando...</translation>
        </message>
        <message>
            <source>Warn and pause if disk space is low</source>
            <translation>Avisar y pausar si queda poco espacio en disco</translation>
        </message>
        <message>
            <source>Wrong username or password</source>
            <translation>Usuario o contraseña incorrectos</translation>
        </message>
        <message>
            <source>dead.rule.warning</source>
            <translation>Nunca se aplica: una regla anterior ya recoge estos archivos</translation>
        </message>
        <message>
            <source>ext.cat.audio</source>
            <translation>Audio</translation>
        </message>
        <message>
            <source>ext.cat.documents</source>
            <translation>Documentos</translation>
        </message>
        <message>
            <source>ext.cat.images</source>
            <translation>Imágenes</translation>
        </message>
        <message>
            <source>ext.cat.temp</source>
            <translation>Archivos temporales</translation>
        </message>
        <message>
            <source>ext.cat.video</source>
            <translation>Vídeo</translation>
        </message>
        <message>
            <source>ext.reset.button</source>
            <translation>Restablecer valores predefinidos</translation>
        </message>
        <message>
            <source>ext.unspecified.download</source>
            <translation>Descargar</translation>
        </message>
        <message>
            <source>ext.unspecified.ignore</source>
            <translation>Ignorar</translation>
        </message>
        <message>
            <source>ext.unspecified.label</source>
            <translation>Otras extensiones</translation>
        </message>
        <message numerus="yes">
            <source>failed after %n attempts</source>
            <translation>
                <numerusform>falló tras %n intento</numerusform>
                <numerusform>falló tras %n intentos</numerusform>
            </translation>
        </message>
        <message>
            <source>growing...</source>
            <translation>creciendo...</translation>
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
            <translation>ahora mismo</translation>
        </message>
    </context>
</TS>
