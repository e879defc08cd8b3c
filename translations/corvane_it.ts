<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>AccessibleBar</name>
    <message>
        <source>Press</source>
        <translation>Premi</translation>
    </message>
    <message>
        <source>Select or deselect</source>
        <translation>Seleziona o deseleziona</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>All items on the shelf</source>
        <translation>Tutti gli elementi del ripiano</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Elementi precedenti</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Elementi successivi</translation>
    </message>
    <message>
        <source>Copy the selected items</source>
        <translation>Copia gli elementi selezionati</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>Rimuovi gli elementi selezionati</translation>
    </message>
    <message>
        <source>All items: %L1</source>
        <translation>Tutti gli elementi: %L1</translation>
    </message>
</context>
<context>
    <name>AccessibleItems</name>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Collegamento</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 di %L2</translation>
    </message>
    <message>
        <source>being made ready</source>
        <translation>in preparazione</translation>
    </message>
</context>
<context>
    <name>AccessibleShelf</name>
    <message>
        <source>Press</source>
        <translation>Premi</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Porta qui il focus</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Copy and take off the shelf</source>
        <translation>Copia e togli dal ripiano</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Elementi precedenti</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Elementi successivi</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Tutti gli elementi</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Ripiano</translation>
    </message>
    <message>
        <source>The shelf is empty</source>
        <translation>Il ripiano è vuoto</translation>
    </message>
    <message>
        <source>Removed; 1 item is left</source>
        <translation>Rimosso; resta 1 elemento</translation>
    </message>
    <message numerus="yes">
        <source>Removed; %n items are left</source>
        <translation>
            <numerusform>Rimosso; resta %Ln elemento</numerusform>
            <numerusform>Rimosso; restano %Ln elementi</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 è stato aggiunto</translation>
    </message>
    <message>
        <source>1 item was added</source>
        <translation>1 elemento è stato aggiunto</translation>
    </message>
    <message numerus="yes">
        <source>%n items were added</source>
        <translation>
            <numerusform>%Ln elemento è stato aggiunto</numerusform>
            <numerusform>%Ln elementi sono stati aggiunti</numerusform>
        </translation>
    </message>
    <message>
        <source>Items on the shelf: %L1</source>
        <translation>Elementi del ripiano: %L1</translation>
    </message>
    <message>
        <source>The shelf is empty. %1 puts what is on the clipboard here.</source>
        <translation>Il ripiano è vuoto. %1 vi mette il contenuto degli appunti.</translation>
    </message>
    <message>
        <source>%1 was removed; the shelf is empty</source>
        <translation>%1 è stato rimosso; il ripiano è vuoto</translation>
    </message>
    <message>
        <source>%1 was removed; 1 item is left</source>
        <translation>%1 è stato rimosso; resta 1 elemento</translation>
    </message>
    <message numerus="yes">
        <source>%1 was removed; %n items are left</source>
        <translation>
            <numerusform>%1 è stato rimosso; resta %Ln elemento</numerusform>
            <numerusform>%1 è stato rimosso; restano %Ln elementi</numerusform>
        </translation>
    </message>
    <message>
        <source>The shelf is hidden</source>
        <translation>Il ripiano è nascosto</translation>
    </message>
</context>
<context>
    <name>AutostartLoginItems</name>
    <message>
        <source>A shelf at the top of the screen for what you drag</source>
        <translation>Un ripiano in cima allo schermo per ciò che si trascina</translation>
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
            <numerusform>%Ln byte</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Mostra o nascondi il ripiano</translation>
    </message>
    <message>
        <source>Show all items in the bar</source>
        <translation>Mostra tutti gli elementi nella barra</translation>
    </message>
    <message>
        <source>Print the paths and links on the shelf, one a line</source>
        <translation>Scrive i percorsi e i collegamenti del ripiano, uno per riga</translation>
    </message>
    <message>
        <source>Print them, and remove them from the shelf</source>
        <translation>Li scrive e li toglie dal ripiano</translation>
    </message>
    <message>
        <source>Print a NUL character at the end of each, no new line</source>
        <translation>Scrive un carattere NUL dopo ciascuno, senza andare a capo</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>Apri le preferenze</translation>
    </message>
    <message>
        <source>End Corvane</source>
        <translation>Termina Corvane</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>Scrive questo aiuto</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>Scrive la versione</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Uso:</translation>
    </message>
    <message>
        <source>Puts files and links on the shelf, and with - a text from standard input.
Without arguments it starts Corvane, or shows or hides the shelf of the one
that runs.</source>
        <translation>Mette file e collegamenti sul ripiano, e con - un testo dallo standard input.
Senza argomenti avvia Corvane, o mostra o nasconde il ripiano di quello
in esecuzione.</translation>
    </message>
</context>
<context>
    <name>CommandProblem</name>
    <message>
        <source>there is no option %1</source>
        <translation>l’opzione %1 non esiste</translation>
    </message>
    <message>
        <source>no option of Corvane takes a value</source>
        <translation>nessuna opzione di Corvane accetta un valore</translation>
    </message>
    <message>
        <source>%1 and %2 cannot go together</source>
        <translation>%1 e %2 non possono stare insieme</translation>
    </message>
    <message>
        <source>--null goes with --list and --take</source>
        <translation>--null va con --list e --take</translation>
    </message>
    <message>
        <source>files and links go with no option</source>
        <translation>file e collegamenti non vanno con nessuna opzione</translation>
    </message>
    <message>
        <source>standard input can be put on the shelf once</source>
        <translation>lo standard input si può mettere sul ripiano una volta sola</translation>
    </message>
    <message>
        <source>this is no address: %1</source>
        <translation>questo non è un indirizzo: %1</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>il file %1 non esiste</translation>
    </message>
    <message>
        <source>standard input cannot be read, or is larger than 256 MiB</source>
        <translation>lo standard input non si può leggere o supera i 256&#xa0;MiB</translation>
    </message>
    <message>
        <source>standard input is no text in UTF-8</source>
        <translation>lo standard input non è un testo in UTF-8</translation>
    </message>
    <message>
        <source>there is no text on standard input</source>
        <translation>non c’è testo nello standard input</translation>
    </message>
    <message>
        <source>the shelf does not take %1 of what was given</source>
        <translation>il ripiano non accetta %1 degli elementi dati</translation>
    </message>
    <message>
        <source>standard output cannot be written to: %1</source>
        <translation>non si può scrivere sullo standard output: %1</translation>
    </message>
    <message>
        <source>Corvane is running, but does not answer</source>
        <translation>Corvane è in esecuzione, ma non risponde</translation>
    </message>
    <message>
        <source>the Corvane that runs says: %1</source>
        <translation>il Corvane in esecuzione dice: %1</translation>
    </message>
    <message>
        <source>the Corvane that runs does not do this; it may be an older version</source>
        <translation>il Corvane in esecuzione non fa questo; forse è una versione precedente</translation>
    </message>
    <message>
        <source>the display cannot be used: %1</source>
        <translation>lo schermo non si può usare: %1</translation>
    </message>
    <message>
        <source>%1; see corvane --help</source>
        <translation>%1; vedi corvane --help</translation>
    </message>
    <message>
        <source>the Corvane that runs is not ready yet; try again in a moment</source>
        <translation>il Corvane in esecuzione non è ancora pronto; riprova tra un momento</translation>
    </message>
    <message>
        <source>the Corvane that runs has too much to do; try again in a moment</source>
        <translation>il Corvane in esecuzione ha troppo da fare; riprova tra un momento</translation>
    </message>
    <message>
        <source>what was printed is still on the shelf</source>
        <translation>ciò che è stato scritto nello standard output è ancora sul ripiano</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>la memoria non è sufficiente</translation>
    </message>
    <message>
        <source>the answer of the Corvane that runs cannot be read</source>
        <translation>la risposta del Corvane in esecuzione non è leggibile</translation>
    </message>
</context>
<context>
    <name>ItemTexts</name>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Converting to PNG…</source>
        <translation>Conversione in PNG…</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>1 character</source>
        <translation>1 carattere</translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>%Ln carattere</numerusform>
            <numerusform>%Ln caratteri</numerusform>
        </translation>
    </message>
    <message>
        <source>Counting characters…</source>
        <translation>Conteggio dei caratteri…</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Path copied</source>
        <translation>Percorso copiato</translation>
    </message>
    <message>
        <source>Image copied</source>
        <translation>Immagine copiata</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Testo copiato</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>Collegamento copiato</translation>
    </message>
    <message>
        <source>Data URI copied</source>
        <translation>URI di dati copiato</translation>
    </message>
    <message numerus="yes">
        <source>%n items copied</source>
        <translation>
            <numerusform>%Ln elemento copiato</numerusform>
            <numerusform>%Ln elementi copiati</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept on the shelf</source>
        <translation>Resta sul ripiano</translation>
    </message>
    <message>
        <source>It was not taken</source>
        <translation>Non è stato accettato</translation>
    </message>
    <message>
        <source>%1 of %2 were not taken</source>
        <translation>Non accettati: %1 su %2</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>Il file non c’è più</translation>
    </message>
</context>
<context>
    <name>PreferencesTab</name>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
</context>
<context>
    <name>PreviewFile</name>
    <message numerus="yes">
        <source>More than %n items</source>
        <translation>
            <numerusform>Più di %Ln elemento</numerusform>
            <numerusform>Più di %Ln elementi</numerusform>
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
            <numerusform>%Ln elementi</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>This item is no longer there.</source>
        <translation>Questo elemento non c’è più.</translation>
    </message>
    <message>
        <source>Modified %1</source>
        <translation>Modificato: %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 pagina</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%Ln pagina</numerusform>
            <numerusform>%Ln pagine</numerusform>
        </translation>
    </message>
    <message>
        <source>only the beginning is shown</source>
        <translation>è mostrato solo l’inizio</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Apri %1</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Caricamento…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
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
        <translation>Maiusc</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Invio</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Invio (tastierino)</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spazio</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Canc</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Su</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Giù</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>Pag su</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>Pag giù</translation>
    </message>
</context>
<context>
    <name>SessionChoice</name>
    <message>
        <source>this Wayland session takes Qt&apos;s plug-in for Wayland, which is not installed (the package qt6-wayland)</source>
        <translation>questa sessione Wayland richiede il plugin di Qt per Wayland, che non è installato (il pacchetto qt6-wayland)</translation>
    </message>
    <message>
        <source>this Wayland session lets no program hang a shelf from its screen&apos;s edge, and there is no X11 display either (DISPLAY is not set)</source>
        <translation>questa sessione Wayland non permette ai programmi di appendere un ripiano al bordo dello schermo, e non c’è nemmeno uno schermo X11 (DISPLAY non è impostata)</translation>
    </message>
    <message>
        <source>there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either (DISPLAY is not set)</source>
        <translation>non c’è nessuna sessione Wayland dove indica WAYLAND_DISPLAY, e nemmeno uno schermo X11 (DISPLAY non è impostata)</translation>
    </message>
    <message>
        <source>there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)</source>
        <translation>non c’è uno schermo a cui appendere il ripiano (né WAYLAND_DISPLAY né DISPLAY sono impostate)</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session&apos;s X11 display, where some drags may not reach it</source>
        <translation>WAYLAND_DISPLAY non è impostata in questa sessione Wayland, quindi il ripiano usa lo schermo X11 della sessione, dove alcuni trascinamenti potrebbero non raggiungerlo</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session&apos;s X11 display, where some drags may not reach it</source>
        <translation>nessun compositor risponde dove indica WAYLAND_DISPLAY, quindi il ripiano usa lo schermo X11 di questa sessione, dove alcuni trascinamenti potrebbero non raggiungerlo</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>your display server lacks XInput 2 or XFixes</source>
        <translation>al server grafico mancano XInput 2 o XFixes</translation>
    </message>
    <message>
        <source>your desktop keeps that to itself</source>
        <translation>l’ambiente desktop lo tiene per sé</translation>
    </message>
    <message>
        <source>%1, because %2. %3</source>
        <translation>%1, perché %2. %3</translation>
    </message>
    <message>
        <source>Drags are noticed only at the top of the screen</source>
        <translation>I trascinamenti si rilevano solo in cima allo schermo</translation>
    </message>
    <message>
        <source>Drag to the middle of the top edge, and the shelf opens.</source>
        <translation>Trascinare verso il centro del bordo superiore: il ripiano si apre.</translation>
    </message>
    <message>
        <source>The shelf does not open when a drag begins</source>
        <translation>Il ripiano non si apre quando si inizia a trascinare</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu before you drag.</source>
        <translation>Aprirlo con la scorciatoia o dal menù prima di trascinare.</translation>
    </message>
    <message>
        <source>A hidden shelf does not come to the pointer at the top edge</source>
        <translation>Un ripiano nascosto non appare quando il puntatore arriva al bordo superiore</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu.</source>
        <translation>Aprirlo con la scorciatoia o dal menù.</translation>
    </message>
    <message>
        <source>A click in another program does not close the bar with all items</source>
        <translation>Un clic in un altro programma non chiude la barra con tutti gli elementi</translation>
    </message>
    <message>
        <source>Press Escape to close it.</source>
        <translation>Premere Esc per chiuderla.</translation>
    </message>
    <message>
        <source>Shortcuts cannot be recorded here</source>
        <translation>Qui non si possono registrare scorciatoie</translation>
    </message>
    <message>
        <source>Choose them in your desktop&apos;s settings.</source>
        <translation>Sceglierle nelle impostazioni dell’ambiente desktop.</translation>
    </message>
    <message>
        <source>Shift is not noticed once a drag has begun</source>
        <translation>Maiusc non viene rilevato dopo l’inizio del trascinamento</translation>
    </message>
    <message>
        <source>Hold it before you begin to drag, and the item stays.</source>
        <translation>Tenerlo premuto prima di iniziare a trascinare: l’elemento resta.</translation>
    </message>
</context>
<context>
    <name>ShelfView</name>
    <message>
        <source>Release to hold</source>
        <translation>Rilasciare per conservare</translation>
    </message>
    <message>
        <source>Drop to hold</source>
        <translation>Trascinare qui per conservare</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Clear Shelf (1 item)</source>
        <translation>Svuota il ripiano (1 elemento)</translation>
    </message>
    <message numerus="yes">
        <source>Clear Shelf (%n items)</source>
        <translation>
            <numerusform>Svuota il ripiano (%Ln elemento)</numerusform>
            <numerusform>Svuota il ripiano (%Ln elementi)</numerusform>
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
            <numerusform>Corvane — %Ln elementi</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Shelf</source>
        <translation>Mostra il ripiano</translation>
    </message>
    <message>
        <source>View All Items…</source>
        <translation>Mostra tutti gli elementi…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferenze…</translation>
    </message>
    <message>
        <source>How It Works…</source>
        <translation>Come funziona…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Controlla aggiornamenti…</translation>
    </message>
    <message>
        <source>Quit Corvane</source>
        <translation>Esci da Corvane</translation>
    </message>
</context>
<context>
    <name>UnansweredStart</name>
    <message>
        <source>Corvane is running already, but does not answer.</source>
        <translation>Corvane è già in esecuzione, ma non risponde.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end the process %1 and start Corvane anew.</source>
        <translation>Riprovare tra un momento, oppure terminare il processo %1 e riavviare Corvane.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end it and start Corvane anew.</source>
        <translation>Riprovare tra un momento, oppure terminarlo e riavviare Corvane.</translation>
    </message>
</context>
<context>
    <name>UpdateTexts</name>
    <message>
        <source>What came from the place where new versions are announced could not be read.</source>
        <translation>Non è stato possibile leggere ciò che è arrivato dal luogo in cui si annunciano le nuove versioni.</translation>
    </message>
    <message>
        <source>A newer version was announced before than is now. Somebody may be keeping news from you, so nothing was taken.</source>
        <translation>In passato è stata annunciata una versione più recente di quella attuale. Forse qualcuno nasconde le novità; perciò non è stato preso nulla.</translation>
    </message>
    <message>
        <source>What is announced is a release that this build cannot verify, or none at all. Nothing was taken.</source>
        <translation>È annunciata una versione che questo programma non può verificare, oppure nessuna. Non è stato preso nulla.</translation>
    </message>
    <message>
        <source>What is announced has not been renewed since %1. Somebody may be keeping news from you, or your clock is wrong.</source>
        <translation>L’annuncio non è stato rinnovato da: %1. Forse qualcuno nasconde le novità, oppure l’orologio è sbagliato.</translation>
    </message>
    <message>
        <source>What Corvane remembered of earlier updates was damaged. It was set aside and begins anew with the next check.</source>
        <translation>Ciò che Corvane ricordava degli aggiornamenti precedenti era danneggiato. È stato messo da parte e ricomincerà al prossimo controllo.</translation>
    </message>
    <message>
        <source>The place where new versions are announced could not be reached over a safe connection. Try again later.</source>
        <translation>Il luogo in cui si annunciano le nuove versioni non era raggiungibile con una connessione sicura. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The new version could not be downloaded. Try again later.</source>
        <translation>Non è stato possibile scaricare la nuova versione. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The downloaded file has another length than was announced. It was thrown away.</source>
        <translation>Il file scaricato non ha la lunghezza annunciata. È stato scartato.</translation>
    </message>
    <message>
        <source>The downloaded file was not signed by the makers of Corvane. It was thrown away.</source>
        <translation>Il file scaricato non è firmato dagli autori di Corvane. È stato scartato.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk.</source>
        <translation>Non c’è abbastanza spazio sul disco.</translation>
    </message>
    <message>
        <source>The new version could not be written to the disk.</source>
        <translation>Non è stato possibile scrivere la nuova versione sul disco.</translation>
    </message>
    <message>
        <source>Asked directly, without a proxy.</source>
        <translation>Richiesto direttamente, senza proxy.</translation>
    </message>
    <message>
        <source>Asked through the proxy %1.</source>
        <translation>Richiesto tramite il proxy %1.</translation>
    </message>
    <message>
        <source>Nothing was asked: a script chooses your proxy, and Corvane runs none.</source>
        <translation>Non è stato richiesto nulla: uno script sceglie il proxy e Corvane non ne esegue.</translation>
    </message>
    <message>
        <source>Nothing was asked: your proxy is of a kind that Corvane cannot use.</source>
        <translation>Non è stato richiesto nulla: il proxy è di un tipo che Corvane non può usare.</translation>
    </message>
    <message>
        <source>Corvane&apos;s record of updates was damaged</source>
        <translation>Il registro degli aggiornamenti di Corvane era danneggiato</translation>
    </message>
    <message>
        <source>Corvane could not check for updates</source>
        <translation>Corvane non ha potuto cercare aggiornamenti</translation>
    </message>
    <message>
        <source>Corvane was not updated</source>
        <translation>Corvane non è stato aggiornato</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>Ricerca di aggiornamenti…</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>Corvane è aggiornato</translation>
    </message>
    <message>
        <source>You have version %1, the newest.</source>
        <translation>La versione in uso è la %1, la più recente.</translation>
    </message>
    <message>
        <source>Corvane %1 is available</source>
        <translation>Corvane %1 è disponibile</translation>
    </message>
    <message>
        <source>You have %1. The download has %2.</source>
        <translation>La versione in uso è la %1. Lo scaricamento è di %2.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installa</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Scarica</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Più tardi</translation>
    </message>
    <message>
        <source>Downloading Corvane %1…</source>
        <translation>Scaricamento di Corvane %1…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Checking and installing…</source>
        <translation>Verifica e installazione…</translation>
    </message>
    <message>
        <source>Corvane %1 is installed</source>
        <translation>Corvane %1 è installato</translation>
    </message>
    <message>
        <source>It is used from the next time that Corvane is started. The one before is kept beside it until then.</source>
        <translation>Sarà usato dal prossimo avvio di Corvane. Fino ad allora la versione precedente resta accanto.</translation>
    </message>
    <message>
        <source>Corvane %1 is downloaded</source>
        <translation>Corvane %1 è scaricato</translation>
    </message>
    <message>
        <source>It was signed by the makers of Corvane and is in your downloads folder as %1.</source>
        <translation>È firmato dagli autori di Corvane e si trova nella cartella degli scaricamenti come %1.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Updates Go Back in Time…</source>
        <translation>Gli aggiornamenti tornano indietro nel tempo…</translation>
    </message>
    <message>
        <source>Updates Cannot Be Verified…</source>
        <translation>Gli aggiornamenti non sono verificabili…</translation>
    </message>
    <message>
        <source>Updates Have Not Been Renewed…</source>
        <translation>Gli aggiornamenti non sono stati rinnovati…</translation>
    </message>
    <message>
        <source>Record of Updates Was Damaged…</source>
        <translation>Il registro degli aggiornamenti era danneggiato…</translation>
    </message>
    <message>
        <source>Updates Cannot Use Your Proxy…</source>
        <translation>Gli aggiornamenti non possono usare il proxy…</translation>
    </message>
</context>
<context>
    <name>ViewAllView</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 di %2 selezionati</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Drag anything onto the notch</source>
        <translation>Trascinare qualcosa in cima allo schermo</translation>
    </message>
    <message>
        <source>Drag it back out when you arrive</source>
        <translation>Tirarlo fuori una volta arrivati</translation>
    </message>
    <message>
        <source>Hold ⇧ to keep it on the shelf</source>
        <translation>Con Maiusc resta sul ripiano</translation>
    </message>
    <message>
        <source>Start dragging a file, image or link and a shelf slides down from the notch. Drop it there. It stays put while you switch apps, Spaces, or displays.</source>
        <translation>Iniziando a trascinare un file, un’immagine o un collegamento, un ripiano scende dalla cima dello schermo. Rilasciarlo lì. Resta al suo posto mentre si cambia applicazione, spazio di lavoro o schermo.</translation>
    </message>
    <message>
        <source>Move the pointer to the notch and the shelf reappears. Drag the item into whatever you are working in. Press Space to preview it, or ⌘C to copy its path.</source>
        <translation>Portando il puntatore in cima allo schermo il ripiano riappare. Trascinare l’elemento dove si sta lavorando. Premere Spazio per un’anteprima, o Ctrl+C per copiarne il percorso.</translation>
    </message>
    <message>
        <source>Normally an item leaves the shelf when you drop it. Hold Shift as you release and it stays, so you can drop the same thing into several places without collecting it again.</source>
        <translation>Di norma un elemento lascia il ripiano quando lo si rilascia altrove. Tenendo premuto Maiusc mentre lo si trascina, resta: così si può rilasciare la stessa cosa in più posti senza raccoglierla di nuovo.</translation>
    </message>
    <message>
        <source>By keyboard: press the shelf&apos;s shortcut, then %1 to paste onto it and %2 to go through it.</source>
        <translation>Con la tastiera: premere la scorciatoia del ripiano, poi %1 per incollarvi qualcosa e %2 per scorrerlo.</translation>
    </message>
    <message>
        <source>By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.</source>
        <translation>Con la tastiera: premere %1, poi %2 per incollare qualcosa sul ripiano e %3 per scorrerlo.</translation>
    </message>
</context>
<context>
    <name>corvane::AboutPane</name>
    <message>
        <source>Version %1 (%2)</source>
        <translation>Versione %1 (%2)</translation>
    </message>
    <message>
        <source>One slot. Drag in, switch context, drag out. The shelf clears itself and gets out of the way.</source>
        <translation>Posto per molte cose. Trascinare dentro, spostarsi, trascinare fuori. Il ripiano si svuota da sé e si toglie di mezzo.</translation>
    </message>
    <message>
        <source>Runs on your Mac. Nothing you drop is uploaded to us, logged, or sent anywhere. Link previews are the one exception: they ask the linked site for its own page. Turn them off in General.</source>
        <translation>Funziona sul proprio computer. Nulla di ciò che si rilascia ci viene inviato, viene registrato o spedito altrove. Corvane usa la rete solo per le anteprime dei collegamenti, che chiedono al sito la sua pagina, e, dove c’è, per il controllo degli aggiornamenti. Entrambi si disattivano in Generale.</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sito web</translation>
    </message>
    <message>
        <source>Opens the product&apos;s page in the web browser</source>
        <translation>Apre la pagina del prodotto nel browser web</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>Scrivi all’assistenza</translation>
    </message>
    <message>
        <source>Opens a new message in the mail program</source>
        <translation>Apre un nuovo messaggio nel programma di posta</translation>
    </message>
</context>
<context>
    <name>corvane::ClearButton</name>
    <message>
        <source>Clear the shortcut</source>
        <translation>Cancella la scorciatoia</translation>
    </message>
</context>
<context>
    <name>corvane::GeneralPane</name>
    <message>
        <source>Your settings folder cannot be written to. Changes work until Corvane quits, and are not kept.</source>
        <translation>Non è possibile scrivere nella cartella delle impostazioni. Le modifiche valgono finché Corvane non viene chiuso, e non sono conservate.</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Ripiano</translation>
    </message>
    <message>
        <source>Items in view</source>
        <translation>Elementi in vista</translation>
    </message>
    <message>
        <source>One at a time. Use the arrows to page through the rest.</source>
        <translation>Uno alla volta. Usare le frecce per scorrere gli altri.</translation>
    </message>
    <message numerus="yes">
        <source>%n thumbnails at once, with arrows for the rest.</source>
        <translation>
            <numerusform>%Ln miniatura per volta, con frecce per le altre.</numerusform>
            <numerusform>%Ln miniature per volta, con frecce per le altre.</numerusform>
        </translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Comportamento</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Avvia all’accesso</translation>
    </message>
    <message>
        <source>Corvane runs in the menu bar with no Dock icon.</source>
        <translation>Corvane lavora in sottofondo, con un’icona nel pannello.</translation>
    </message>
    <message>
        <source>Open the shelf when a drag begins</source>
        <translation>Apri il ripiano quando si inizia a trascinare</translation>
    </message>
    <message>
        <source>Turn off to summon it only with the shortcut.</source>
        <translation>Disattivare per aprirlo da sé, per esempio con la scorciatoia.</translation>
    </message>
    <message>
        <source>Show previews for dropped links</source>
        <translation>Mostra anteprime dei collegamenti rilasciati</translation>
    </message>
    <message>
        <source>Asks the linked site for its title and image. It is the only time Corvane uses the network on your behalf, and the site learns you have the link.</source>
        <translation>Chiede al sito il suo titolo e la sua immagine, così il sito sa che si possiede il collegamento. A parte il controllo degli aggiornamenti, se c’è, è l’unico caso in cui Corvane usa la rete.</translation>
    </message>
    <message>
        <source>Keep items when Corvane ends</source>
        <translation>Conserva gli elementi alla chiusura di Corvane</translation>
    </message>
    <message>
        <source>They are back at the next start. Until then, pictures and texts are stored in your home folder.</source>
        <translation>Tornano al prossimo avvio. Fino ad allora immagini e testi sono salvati nella cartella home.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Scorciatoie</translation>
    </message>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Mostra o nascondi il ripiano</translation>
    </message>
    <message>
        <source>Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.</source>
        <translation>Richiede Super, Alt o Ctrl. Se la si cancella, resta l’icona nel pannello.</translation>
    </message>
    <message>
        <source>Show or hide all items</source>
        <translation>Mostra o nascondi tutti gli elementi</translation>
    </message>
    <message>
        <source>Unset by default. ↓ on the shelf does the same thing.</source>
        <translation>All’inizio non impostata. Il tasto Giù sul ripiano fa lo stesso.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Controlla ora</translation>
    </message>
    <message>
        <source>Looks for a new version at once</source>
        <translation>Cerca subito una nuova versione</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aggiornamenti</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Controlla automaticamente gli aggiornamenti</translation>
    </message>
    <message>
        <source>Your system&apos;s software manager keeps Corvane up to date.</source>
        <translation>Il gestore di software del sistema tiene aggiornato Corvane.</translation>
    </message>
    <message>
        <source>This build does not know where to look.</source>
        <translation>Questo programma non sa dove cercare.</translation>
    </message>
    <message>
        <source>Offer beta versions too</source>
        <translation>Offri anche versioni beta</translation>
    </message>
    <message>
        <source>They come earlier, and fewer people have tried them.</source>
        <translation>Arrivano prima, e meno persone le hanno provate.</translation>
    </message>
</context>
<context>
    <name>corvane::PageIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Passo %1 di %2</translation>
    </message>
</context>
<context>
    <name>corvane::PreferencesWindow</name>
    <message>
        <source>Pane of the preferences</source>
        <translation>Riquadro delle preferenze</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRecorderView</name>
    <message>
        <source>Type a shortcut…</source>
        <translation>Premere i tasti…</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Registra scorciatoia</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRow</name>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>That combination types a character. Record one with ⌘, ⌥ or ⌃.</source>
        <translation>Questa combinazione scrive un carattere. Registrarne una con Super, Alt o Ctrl.</translation>
    </message>
    <message>
        <source>Another app already uses that combination.</source>
        <translation>Un’altra applicazione usa già questa combinazione.</translation>
    </message>
    <message>
        <source>Your desktop has not answered yet.</source>
        <translation>L’ambiente desktop non ha ancora risposto.</translation>
    </message>
    <message>
        <source>Bind a key to this command in your desktop&apos;s settings: %1</source>
        <translation>Assegnare un tasto a questo comando nelle impostazioni dell’ambiente desktop: %1</translation>
    </message>
    <message>
        <source>Add this line to your desktop&apos;s settings: %1</source>
        <translation>Aggiungere questa riga alle impostazioni dell’ambiente desktop: %1</translation>
    </message>
    <message>
        <source>Your desktop has bound it to %1.</source>
        <translation>L’ambiente desktop l’ha assegnata a %1.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateWindow</name>
    <message>
        <source>What is new</source>
        <translation>Novità</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Scaricamento</translation>
    </message>
</context>
<context>
    <name>corvane::WelcomeView</name>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Goes to the step before</source>
        <translation>Torna al passo precedente</translation>
    </message>
    <message>
        <source>Illustration: %1</source>
        <translation>Illustrazione: %1</translation>
    </message>
    <message>
        <source>Start using it</source>
        <translation>Inizia a usarlo</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Closes this guide</source>
        <translation>Chiude questa guida</translation>
    </message>
    <message>
        <source>Goes to the next step</source>
        <translation>Va al passo successivo</translation>
    </message>
</context>
</TS>
