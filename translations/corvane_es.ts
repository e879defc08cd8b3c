<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AccessibleBar</name>
    <message>
        <source>Press</source>
        <translation>Pulsar</translation>
    </message>
    <message>
        <source>Select or deselect</source>
        <translation>Seleccionar o deseleccionar</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>All items on the shelf</source>
        <translation>Todos los elementos del estante</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Elementos anteriores</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Elementos posteriores</translation>
    </message>
    <message>
        <source>Copy the selected items</source>
        <translation>Copiar los elementos seleccionados</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>Quitar los elementos seleccionados</translation>
    </message>
    <message>
        <source>All items: %L1</source>
        <translation>Todos los elementos: %L1</translation>
    </message>
</context>
<context>
    <name>AccessibleItems</name>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Enlace</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 de %L2</translation>
    </message>
    <message>
        <source>being made ready</source>
        <translation>preparándose</translation>
    </message>
</context>
<context>
    <name>AccessibleShelf</name>
    <message>
        <source>Press</source>
        <translation>Pulsar</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Enfocar</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Copy and take off the shelf</source>
        <translation>Copiar y quitar del estante</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Elementos anteriores</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Elementos posteriores</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Todos los elementos</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Estante</translation>
    </message>
    <message>
        <source>The shelf is empty</source>
        <translation>El estante está vacío</translation>
    </message>
    <message>
        <source>Removed; 1 item is left</source>
        <translation>Quitado; queda 1 elemento</translation>
    </message>
    <message numerus="yes">
        <source>Removed; %n items are left</source>
        <translation>
            <numerusform>Quitado; queda %Ln elemento</numerusform>
            <numerusform>Quitado; quedan %Ln elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>Se añadió %1</translation>
    </message>
    <message>
        <source>1 item was added</source>
        <translation>Se añadió 1 elemento</translation>
    </message>
    <message numerus="yes">
        <source>%n items were added</source>
        <translation>
            <numerusform>Se añadió %Ln elemento</numerusform>
            <numerusform>Se añadieron %Ln elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>Items on the shelf: %L1</source>
        <translation>Elementos del estante: %L1</translation>
    </message>
    <message>
        <source>The shelf is empty. %1 puts what is on the clipboard here.</source>
        <translation>El estante está vacío. %1 pone aquí el contenido del portapapeles.</translation>
    </message>
    <message>
        <source>%1 was removed; the shelf is empty</source>
        <translation>Se quitó %1; el estante está vacío</translation>
    </message>
    <message>
        <source>%1 was removed; 1 item is left</source>
        <translation>Se quitó %1; queda 1 elemento</translation>
    </message>
    <message numerus="yes">
        <source>%1 was removed; %n items are left</source>
        <translation>
            <numerusform>Se quitó %1; queda %Ln elemento</numerusform>
            <numerusform>Se quitó %1; quedan %Ln elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>The shelf is hidden</source>
        <translation>El estante está oculto</translation>
    </message>
</context>
<context>
    <name>AutostartLoginItems</name>
    <message>
        <source>A shelf at the top of the screen for what you drag</source>
        <translation>Un estante en la parte superior de la pantalla para lo que arrastra</translation>
    </message>
</context>
<context>
    <name>ByteCount</name>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;kB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1&#xa0;TB</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1&#xa0;PB</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1&#xa0;EB</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 byte</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%Ln byte</numerusform>
            <numerusform>%Ln bytes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Mostrar u ocultar el estante</translation>
    </message>
    <message>
        <source>Show all items in the bar</source>
        <translation>Mostrar todos los elementos en la barra</translation>
    </message>
    <message>
        <source>Print the paths and links on the shelf, one a line</source>
        <translation>Imprimir las rutas y enlaces del estante, uno por línea</translation>
    </message>
    <message>
        <source>Print them, and remove them from the shelf</source>
        <translation>Imprimirlos y quitarlos del estante</translation>
    </message>
    <message>
        <source>Print a NUL character at the end of each, no new line</source>
        <translation>Imprimir un carácter NUL tras cada uno, sin salto de línea</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>Abrir las preferencias</translation>
    </message>
    <message>
        <source>End Corvane</source>
        <translation>Terminar Corvane</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>Imprimir esta ayuda</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>Imprimir la versión</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Uso:</translation>
    </message>
    <message>
        <source>Puts files and links on the shelf, and with - a text from standard input.
Without arguments it starts Corvane, or shows or hides the shelf of the one
that runs.</source>
        <translation>Pone archivos y enlaces en el estante, y con - un texto de la entrada estándar.
Sin argumentos inicia Corvane, o muestra u oculta el estante del que
se está ejecutando.</translation>
    </message>
</context>
<context>
    <name>CommandProblem</name>
    <message>
        <source>there is no option %1</source>
        <translation>no existe la opción %1</translation>
    </message>
    <message>
        <source>no option of Corvane takes a value</source>
        <translation>ninguna opción de Corvane lleva un valor</translation>
    </message>
    <message>
        <source>%1 and %2 cannot go together</source>
        <translation>%1 y %2 no pueden ir juntas</translation>
    </message>
    <message>
        <source>--null goes with --list and --take</source>
        <translation>--null va con --list y --take</translation>
    </message>
    <message>
        <source>files and links go with no option</source>
        <translation>los archivos y enlaces no van con ninguna opción</translation>
    </message>
    <message>
        <source>standard input can be put on the shelf once</source>
        <translation>la entrada estándar solo se puede poner una vez en el estante</translation>
    </message>
    <message>
        <source>this is no address: %1</source>
        <translation>esto no es una dirección: %1</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>no existe el archivo %1</translation>
    </message>
    <message>
        <source>standard input cannot be read, or is larger than 256 MiB</source>
        <translation>no se puede leer la entrada estándar o supera los 256&#xa0;MiB</translation>
    </message>
    <message>
        <source>standard input is no text in UTF-8</source>
        <translation>la entrada estándar no es un texto en UTF-8</translation>
    </message>
    <message>
        <source>there is no text on standard input</source>
        <translation>no hay texto en la entrada estándar</translation>
    </message>
    <message>
        <source>the shelf does not take %1 of what was given</source>
        <translation>el estante no acepta %1 de los elementos dados</translation>
    </message>
    <message>
        <source>standard output cannot be written to: %1</source>
        <translation>no se puede escribir en la salida estándar: %1</translation>
    </message>
    <message>
        <source>Corvane is running, but does not answer</source>
        <translation>Corvane está en ejecución, pero no responde</translation>
    </message>
    <message>
        <source>the Corvane that runs says: %1</source>
        <translation>el Corvane en ejecución dice: %1</translation>
    </message>
    <message>
        <source>the Corvane that runs does not do this; it may be an older version</source>
        <translation>el Corvane en ejecución no hace esto; quizá sea una versión anterior</translation>
    </message>
    <message>
        <source>the display cannot be used: %1</source>
        <translation>no se puede usar la pantalla: %1</translation>
    </message>
    <message>
        <source>%1; see corvane --help</source>
        <translation>%1; consulte corvane --help</translation>
    </message>
    <message>
        <source>the Corvane that runs is not ready yet; try again in a moment</source>
        <translation>el Corvane en ejecución aún no está listo; inténtelo de nuevo en un momento</translation>
    </message>
    <message>
        <source>the Corvane that runs has too much to do; try again in a moment</source>
        <translation>el Corvane en ejecución está saturado; inténtelo de nuevo en un momento</translation>
    </message>
    <message>
        <source>what was printed is still on the shelf</source>
        <translation>lo que se ha mostrado sigue en el estante</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>no hay memoria suficiente</translation>
    </message>
    <message>
        <source>the answer of the Corvane that runs cannot be read</source>
        <translation>no se puede leer la respuesta del Corvane en ejecución</translation>
    </message>
</context>
<context>
    <name>ItemTexts</name>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Converting to PNG…</source>
        <translation>Convirtiendo a PNG…</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>1 character</source>
        <translation>1 carácter</translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>%Ln carácter</numerusform>
            <numerusform>%Ln caracteres</numerusform>
        </translation>
    </message>
    <message>
        <source>Counting characters…</source>
        <translation>Contando caracteres…</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Path copied</source>
        <translation>Ruta copiada</translation>
    </message>
    <message>
        <source>Image copied</source>
        <translation>Imagen copiada</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Texto copiado</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>Enlace copiado</translation>
    </message>
    <message>
        <source>Data URI copied</source>
        <translation>URI de datos copiado</translation>
    </message>
    <message numerus="yes">
        <source>%n items copied</source>
        <translation>
            <numerusform>%Ln elemento copiado</numerusform>
            <numerusform>%Ln elementos copiados</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept on the shelf</source>
        <translation>Se queda en el estante</translation>
    </message>
    <message>
        <source>It was not taken</source>
        <translation>No se aceptó</translation>
    </message>
    <message>
        <source>%1 of %2 were not taken</source>
        <translation>No se aceptaron %1 de %2</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>El archivo ya no está</translation>
    </message>
</context>
<context>
    <name>PreferencesTab</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
</context>
<context>
    <name>PreviewFile</name>
    <message numerus="yes">
        <source>More than %n items</source>
        <translation>
            <numerusform>Más de %Ln elemento</numerusform>
            <numerusform>Más de %Ln elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 elemento</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%Ln elemento</numerusform>
            <numerusform>%Ln elementos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>This item is no longer there.</source>
        <translation>Este elemento ya no está.</translation>
    </message>
    <message>
        <source>Modified %1</source>
        <translation>Modificado: %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 página</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%Ln página</numerusform>
            <numerusform>%Ln páginas</numerusform>
        </translation>
    </message>
    <message>
        <source>only the beginning is shown</source>
        <translation>solo se muestra el principio</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Abrir %1</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Cargando…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Meta</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Intro (teclado numérico)</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retroceso</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>Re Pág</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>Av Pág</translation>
    </message>
</context>
<context>
    <name>SessionChoice</name>
    <message>
        <source>this Wayland session takes Qt&apos;s plug-in for Wayland, which is not installed (the package qt6-wayland)</source>
        <translation>esta sesión de Wayland necesita el complemento de Qt para Wayland, que no está instalado (el paquete qt6-wayland)</translation>
    </message>
    <message>
        <source>this Wayland session lets no program hang a shelf from its screen&apos;s edge, and there is no X11 display either (DISPLAY is not set)</source>
        <translation>esta sesión de Wayland no deja que ningún programa cuelgue un estante del borde de la pantalla, y tampoco hay pantalla de X11 (DISPLAY no está definida)</translation>
    </message>
    <message>
        <source>there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either (DISPLAY is not set)</source>
        <translation>no hay ninguna sesión de Wayland donde indica WAYLAND_DISPLAY, y tampoco pantalla de X11 (DISPLAY no está definida)</translation>
    </message>
    <message>
        <source>there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)</source>
        <translation>no hay pantalla de la que colgar el estante (ni WAYLAND_DISPLAY ni DISPLAY están definidas)</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session&apos;s X11 display, where some drags may not reach it</source>
        <translation>WAYLAND_DISPLAY no está definida en esta sesión de Wayland, así que el estante usa la pantalla de X11 de la sesión, donde puede que algunos arrastres no le lleguen</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session&apos;s X11 display, where some drags may not reach it</source>
        <translation>ningún compositor responde donde indica WAYLAND_DISPLAY, así que el estante usa la pantalla de X11 de esta sesión, donde puede que algunos arrastres no le lleguen</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>your display server lacks XInput 2 or XFixes</source>
        <translation>a su servidor gráfico le falta XInput 2 o XFixes</translation>
    </message>
    <message>
        <source>your desktop keeps that to itself</source>
        <translation>su escritorio se reserva esa información</translation>
    </message>
    <message>
        <source>%1, because %2. %3</source>
        <translation>%1, porque %2. %3</translation>
    </message>
    <message>
        <source>Drags are noticed only at the top of the screen</source>
        <translation>Los arrastres solo se detectan en la parte superior de la pantalla</translation>
    </message>
    <message>
        <source>Drag to the middle of the top edge, and the shelf opens.</source>
        <translation>Arrastre hasta el centro del borde superior y el estante se abrirá.</translation>
    </message>
    <message>
        <source>The shelf does not open when a drag begins</source>
        <translation>El estante no se abre al empezar a arrastrar</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu before you drag.</source>
        <translation>Ábralo con su atajo o desde el menú antes de arrastrar.</translation>
    </message>
    <message>
        <source>A hidden shelf does not come to the pointer at the top edge</source>
        <translation>Un estante oculto no aparece cuando el puntero llega al borde superior</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu.</source>
        <translation>Ábralo con su atajo o desde el menú.</translation>
    </message>
    <message>
        <source>A click in another program does not close the bar with all items</source>
        <translation>Un clic en otro programa no cierra la barra con todos los elementos</translation>
    </message>
    <message>
        <source>Press Escape to close it.</source>
        <translation>Pulse Esc para cerrarla.</translation>
    </message>
    <message>
        <source>Shortcuts cannot be recorded here</source>
        <translation>Aquí no se pueden grabar atajos</translation>
    </message>
    <message>
        <source>Choose them in your desktop&apos;s settings.</source>
        <translation>Elíjalos en la configuración de su escritorio.</translation>
    </message>
    <message>
        <source>Shift is not noticed once a drag has begun</source>
        <translation>Mayús no se detecta una vez empezado el arrastre</translation>
    </message>
    <message>
        <source>Hold it before you begin to drag, and the item stays.</source>
        <translation>Manténgala pulsada antes de empezar a arrastrar y el elemento se quedará.</translation>
    </message>
</context>
<context>
    <name>ShelfView</name>
    <message>
        <source>Release to hold</source>
        <translation>Suelte para guardar</translation>
    </message>
    <message>
        <source>Drop to hold</source>
        <translation>Arrastre aquí para guardar</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Clear Shelf (1 item)</source>
        <translation>Vaciar el estante (1 elemento)</translation>
    </message>
    <message numerus="yes">
        <source>Clear Shelf (%n items)</source>
        <translation>
            <numerusform>Vaciar el estante (%Ln elemento)</numerusform>
            <numerusform>Vaciar el estante (%Ln elementos)</numerusform>
        </translation>
    </message>
    <message>
        <source>Corvane</source>
        <translation>Corvane</translation>
    </message>
    <message>
        <source>Corvane — 1 item</source>
        <translation>Corvane — 1 elemento</translation>
    </message>
    <message numerus="yes">
        <source>Corvane — %n items</source>
        <translation>
            <numerusform>Corvane — %Ln elemento</numerusform>
            <numerusform>Corvane — %Ln elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Shelf</source>
        <translation>Mostrar el estante</translation>
    </message>
    <message>
        <source>View All Items…</source>
        <translation>Ver todos los elementos…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferencias…</translation>
    </message>
    <message>
        <source>How It Works…</source>
        <translation>Cómo funciona…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Quit Corvane</source>
        <translation>Salir de Corvane</translation>
    </message>
</context>
<context>
    <name>UnansweredStart</name>
    <message>
        <source>Corvane is running already, but does not answer.</source>
        <translation>Corvane ya se está ejecutando, pero no responde.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end the process %1 and start Corvane anew.</source>
        <translation>Inténtelo de nuevo en un momento, o termine el proceso %1 e inicie Corvane otra vez.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end it and start Corvane anew.</source>
        <translation>Inténtelo de nuevo en un momento, o termínelo e inicie Corvane otra vez.</translation>
    </message>
</context>
<context>
    <name>UpdateTexts</name>
    <message>
        <source>What came from the place where new versions are announced could not be read.</source>
        <translation>No se pudo leer lo que vino del lugar donde se anuncian las versiones nuevas.</translation>
    </message>
    <message>
        <source>A newer version was announced before than is now. Somebody may be keeping news from you, so nothing was taken.</source>
        <translation>Antes se anunció una versión más reciente que la de ahora. Puede que alguien le esté ocultando novedades, así que no se tomó nada.</translation>
    </message>
    <message>
        <source>What is announced is a release that this build cannot verify, or none at all. Nothing was taken.</source>
        <translation>Lo anunciado es una versión que este programa no puede verificar, o ninguna. No se tomó nada.</translation>
    </message>
    <message>
        <source>What is announced has not been renewed since %1. Somebody may be keeping news from you, or your clock is wrong.</source>
        <translation>Lo anunciado no se ha renovado desde el %1. Puede que alguien le esté ocultando novedades, o que su reloj esté mal.</translation>
    </message>
    <message>
        <source>What Corvane remembered of earlier updates was damaged. It was set aside and begins anew with the next check.</source>
        <translation>Lo que Corvane recordaba de actualizaciones anteriores estaba dañado. Se apartó y empezará de nuevo con la próxima comprobación.</translation>
    </message>
    <message>
        <source>The place where new versions are announced could not be reached over a safe connection. Try again later.</source>
        <translation>No se pudo llegar con una conexión segura al lugar donde se anuncian las versiones nuevas. Inténtelo más tarde.</translation>
    </message>
    <message>
        <source>The new version could not be downloaded. Try again later.</source>
        <translation>No se pudo descargar la versión nueva. Inténtelo más tarde.</translation>
    </message>
    <message>
        <source>The downloaded file has another length than was announced. It was thrown away.</source>
        <translation>El archivo descargado no tiene la longitud anunciada. Se desechó.</translation>
    </message>
    <message>
        <source>The downloaded file was not signed by the makers of Corvane. It was thrown away.</source>
        <translation>El archivo descargado no está firmado por los autores de Corvane. Se desechó.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk.</source>
        <translation>No hay suficiente espacio en el disco.</translation>
    </message>
    <message>
        <source>The new version could not be written to the disk.</source>
        <translation>No se pudo escribir la versión nueva en el disco.</translation>
    </message>
    <message>
        <source>Asked directly, without a proxy.</source>
        <translation>Se preguntó directamente, sin proxy.</translation>
    </message>
    <message>
        <source>Asked through the proxy %1.</source>
        <translation>Se preguntó a través del proxy %1.</translation>
    </message>
    <message>
        <source>Nothing was asked: a script chooses your proxy, and Corvane runs none.</source>
        <translation>No se preguntó nada: un script elige su proxy, y Corvane no ejecuta ninguno.</translation>
    </message>
    <message>
        <source>Nothing was asked: your proxy is of a kind that Corvane cannot use.</source>
        <translation>No se preguntó nada: su proxy es de un tipo que Corvane no puede usar.</translation>
    </message>
    <message>
        <source>Corvane&apos;s record of updates was damaged</source>
        <translation>El registro de actualizaciones de Corvane estaba dañado</translation>
    </message>
    <message>
        <source>Corvane could not check for updates</source>
        <translation>Corvane no pudo buscar actualizaciones</translation>
    </message>
    <message>
        <source>Corvane was not updated</source>
        <translation>Corvane no se actualizó</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>Corvane está actualizado</translation>
    </message>
    <message>
        <source>You have version %1, the newest.</source>
        <translation>Tiene la versión %1, la más reciente.</translation>
    </message>
    <message>
        <source>Corvane %1 is available</source>
        <translation>Corvane %1 está disponible</translation>
    </message>
    <message>
        <source>You have %1. The download has %2.</source>
        <translation>Tiene la versión %1. La descarga ocupa %2.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Downloading Corvane %1…</source>
        <translation>Descargando Corvane %1…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Checking and installing…</source>
        <translation>Comprobando e instalando…</translation>
    </message>
    <message>
        <source>Corvane %1 is installed</source>
        <translation>Corvane %1 está instalado</translation>
    </message>
    <message>
        <source>It is used from the next time that Corvane is started. The one before is kept beside it until then.</source>
        <translation>Se usará la próxima vez que se inicie Corvane. La versión anterior se conserva al lado hasta entonces.</translation>
    </message>
    <message>
        <source>Corvane %1 is downloaded</source>
        <translation>Corvane %1 está descargado</translation>
    </message>
    <message>
        <source>It was signed by the makers of Corvane and is in your downloads folder as %1.</source>
        <translation>Está firmado por los autores de Corvane y se encuentra en su carpeta de descargas como %1.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Updates Go Back in Time…</source>
        <translation>Las actualizaciones retroceden en el tiempo…</translation>
    </message>
    <message>
        <source>Updates Cannot Be Verified…</source>
        <translation>Las actualizaciones no se pueden verificar…</translation>
    </message>
    <message>
        <source>Updates Have Not Been Renewed…</source>
        <translation>Las actualizaciones no se han renovado…</translation>
    </message>
    <message>
        <source>Record of Updates Was Damaged…</source>
        <translation>El registro de actualizaciones estaba dañado…</translation>
    </message>
    <message>
        <source>Updates Cannot Use Your Proxy…</source>
        <translation>Las actualizaciones no pueden usar su proxy…</translation>
    </message>
</context>
<context>
    <name>ViewAllView</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 de %2 seleccionados</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Drag anything onto the notch</source>
        <translation>Arrastre algo a la parte superior de la pantalla</translation>
    </message>
    <message>
        <source>Drag it back out when you arrive</source>
        <translation>Sáquelo cuando llegue a su destino</translation>
    </message>
    <message>
        <source>Hold ⇧ to keep it on the shelf</source>
        <translation>Mantenga Mayús para que siga en el estante</translation>
    </message>
    <message>
        <source>Start dragging a file, image or link and a shelf slides down from the notch. Drop it there. It stays put while you switch apps, Spaces, or displays.</source>
        <translation>Empiece a arrastrar un archivo, una imagen o un enlace y un estante bajará desde la parte superior de la pantalla. Suéltelo ahí. Allí se queda mientras cambia de aplicación, de área de trabajo o de pantalla.</translation>
    </message>
    <message>
        <source>Move the pointer to the notch and the shelf reappears. Drag the item into whatever you are working in. Press Space to preview it, or ⌘C to copy its path.</source>
        <translation>Mueva el puntero a la parte superior de la pantalla y el estante volverá a aparecer. Arrastre el elemento adonde esté trabajando. Pulse Espacio para previsualizarlo, o Ctrl+C para copiar su ruta.</translation>
    </message>
    <message>
        <source>Normally an item leaves the shelf when you drop it. Hold Shift as you release and it stays, so you can drop the same thing into several places without collecting it again.</source>
        <translation>Normalmente un elemento deja el estante cuando lo suelta en otro sitio. Mantenga pulsada Mayús mientras lo arrastra y se quedará; así puede soltar lo mismo en varios lugares sin volver a recogerlo.</translation>
    </message>
    <message>
        <source>By keyboard: press the shelf&apos;s shortcut, then %1 to paste onto it and %2 to go through it.</source>
        <translation>Con el teclado: pulse el atajo del estante y luego %1 para pegar en él y %2 para recorrerlo.</translation>
    </message>
    <message>
        <source>By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.</source>
        <translation>Con el teclado: pulse %1 y luego %2 para pegar en el estante y %3 para recorrerlo.</translation>
    </message>
</context>
<context>
    <name>corvane::AboutPane</name>
    <message>
        <source>Version %1 (%2)</source>
        <translation>Versión %1 (%2)</translation>
    </message>
    <message>
        <source>One slot. Drag in, switch context, drag out. The shelf clears itself and gets out of the way.</source>
        <translation>Espacio para muchas cosas. Arrastre adentro, cambie de sitio, arrastre afuera. El estante se vacía solo y no estorba.</translation>
    </message>
    <message>
        <source>Runs on your Mac. Nothing you drop is uploaded to us, logged, or sent anywhere. Link previews are the one exception: they ask the linked site for its own page. Turn them off in General.</source>
        <translation>Se ejecuta en su equipo. Nada de lo que suelte se nos envía, se registra ni se manda a ninguna parte. Corvane solo usa la red para las vistas previas de enlaces, que piden al sitio enlazado su propia página, y, donde la haya, para la búsqueda de actualizaciones. Ambas se desactivan en General.</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>Opens the product&apos;s page in the web browser</source>
        <translation>Abre la página del producto en el navegador web</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>Escribir a soporte</translation>
    </message>
    <message>
        <source>Opens a new message in the mail program</source>
        <translation>Abre un mensaje nuevo en el programa de correo</translation>
    </message>
</context>
<context>
    <name>corvane::ClearButton</name>
    <message>
        <source>Clear the shortcut</source>
        <translation>Borrar el atajo</translation>
    </message>
</context>
<context>
    <name>corvane::GeneralPane</name>
    <message>
        <source>Your settings folder cannot be written to. Changes work until Corvane quits, and are not kept.</source>
        <translation>No se puede escribir en su carpeta de configuración. Los cambios valen hasta que se cierre Corvane, y no se conservan.</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Estante</translation>
    </message>
    <message>
        <source>Items in view</source>
        <translation>Elementos a la vista</translation>
    </message>
    <message>
        <source>One at a time. Use the arrows to page through the rest.</source>
        <translation>De uno en uno. Use las flechas para pasar por los demás.</translation>
    </message>
    <message numerus="yes">
        <source>%n thumbnails at once, with arrows for the rest.</source>
        <translation>
            <numerusform>%Ln miniatura a la vez, con flechas para las demás.</numerusform>
            <numerusform>%Ln miniaturas a la vez, con flechas para las demás.</numerusform>
        </translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Comportamiento</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Iniciar al abrir la sesión</translation>
    </message>
    <message>
        <source>Corvane runs in the menu bar with no Dock icon.</source>
        <translation>Corvane se ejecuta en segundo plano, con un icono en el panel.</translation>
    </message>
    <message>
        <source>Open the shelf when a drag begins</source>
        <translation>Abrir el estante al empezar a arrastrar</translation>
    </message>
    <message>
        <source>Turn off to summon it only with the shortcut.</source>
        <translation>Desactívelo para abrirlo usted, por ejemplo con el atajo.</translation>
    </message>
    <message>
        <source>Show previews for dropped links</source>
        <translation>Mostrar vistas previas de los enlaces soltados</translation>
    </message>
    <message>
        <source>Asks the linked site for its title and image. It is the only time Corvane uses the network on your behalf, and the site learns you have the link.</source>
        <translation>Pide al sitio enlazado su título y su imagen, así que el sitio sabe que usted tiene el enlace. Aparte de la búsqueda de actualizaciones, si la hay, es la única vez que Corvane usa la red.</translation>
    </message>
    <message>
        <source>Keep items when Corvane ends</source>
        <translation>Conservar los elementos al cerrar Corvane</translation>
    </message>
    <message>
        <source>They are back at the next start. Until then, pictures and texts are stored in your home folder.</source>
        <translation>Volverán a aparecer en el próximo inicio. Hasta entonces, las imágenes y los textos se guardan en su carpeta personal.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Atajos</translation>
    </message>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Mostrar u ocultar el estante</translation>
    </message>
    <message>
        <source>Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.</source>
        <translation>Necesita Super, Alt o Ctrl. Si lo borra, queda el icono del panel.</translation>
    </message>
    <message>
        <source>Show or hide all items</source>
        <translation>Mostrar u ocultar todos los elementos</translation>
    </message>
    <message>
        <source>Unset by default. ↓ on the shelf does the same thing.</source>
        <translation>Sin asignar al principio. La tecla Abajo en el estante hace lo mismo.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Buscar ahora</translation>
    </message>
    <message>
        <source>Looks for a new version at once</source>
        <translation>Busca ahora mismo una versión nueva</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Buscar actualizaciones automáticamente</translation>
    </message>
    <message>
        <source>Your system&apos;s software manager keeps Corvane up to date.</source>
        <translation>El gestor de software de su sistema mantiene Corvane actualizado.</translation>
    </message>
    <message>
        <source>This build does not know where to look.</source>
        <translation>Este programa no sabe dónde buscar.</translation>
    </message>
    <message>
        <source>Offer beta versions too</source>
        <translation>Ofrecer también versiones beta</translation>
    </message>
    <message>
        <source>They come earlier, and fewer people have tried them.</source>
        <translation>Llegan antes, y menos personas las han probado.</translation>
    </message>
</context>
<context>
    <name>corvane::PageIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Paso %1 de %2</translation>
    </message>
</context>
<context>
    <name>corvane::PreferencesWindow</name>
    <message>
        <source>Pane of the preferences</source>
        <translation>Panel de las preferencias</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRecorderView</name>
    <message>
        <source>Type a shortcut…</source>
        <translation>Pulse un atajo…</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Grabar un atajo</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRow</name>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>That combination types a character. Record one with ⌘, ⌥ or ⌃.</source>
        <translation>Esa combinación escribe un carácter. Grabe una con Super, Alt o Ctrl.</translation>
    </message>
    <message>
        <source>Another app already uses that combination.</source>
        <translation>Otra aplicación ya usa esa combinación.</translation>
    </message>
    <message>
        <source>Your desktop has not answered yet.</source>
        <translation>Su escritorio aún no ha respondido.</translation>
    </message>
    <message>
        <source>Bind a key to this command in your desktop&apos;s settings: %1</source>
        <translation>Asigne una tecla a esta orden en la configuración de su escritorio: %1</translation>
    </message>
    <message>
        <source>Add this line to your desktop&apos;s settings: %1</source>
        <translation>Añada esta línea a la configuración de su escritorio: %1</translation>
    </message>
    <message>
        <source>Your desktop has bound it to %1.</source>
        <translation>Su escritorio lo ha asignado a %1.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateWindow</name>
    <message>
        <source>What is new</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descarga</translation>
    </message>
</context>
<context>
    <name>corvane::WelcomeView</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Goes to the step before</source>
        <translation>Vuelve al paso anterior</translation>
    </message>
    <message>
        <source>Illustration: %1</source>
        <translation>Ilustración: %1</translation>
    </message>
    <message>
        <source>Start using it</source>
        <translation>Empezar a usarlo</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Closes this guide</source>
        <translation>Cierra esta guía</translation>
    </message>
    <message>
        <source>Goes to the next step</source>
        <translation>Pasa al paso siguiente</translation>
    </message>
</context>
</TS>
