<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>AccessibleBar</name>
    <message>
        <source>Press</source>
        <translation>Naciśnij</translation>
    </message>
    <message>
        <source>Select or deselect</source>
        <translation>Zaznacz lub odznacz</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Zaznacz wszystko</translation>
    </message>
    <message>
        <source>All items on the shelf</source>
        <translation>Wszystkie elementy na półce</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Wcześniejsze elementy</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Późniejsze elementy</translation>
    </message>
    <message>
        <source>Copy the selected items</source>
        <translation>Skopiuj zaznaczone elementy</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>Usuń zaznaczone elementy</translation>
    </message>
    <message>
        <source>All items: %L1</source>
        <translation>Wszystkie elementy: %L1</translation>
    </message>
</context>
<context>
    <name>AccessibleItems</name>
    <message>
        <source>Folder</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Obraz</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Odnośnik</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 z %L2</translation>
    </message>
    <message>
        <source>being made ready</source>
        <translation>w przygotowaniu</translation>
    </message>
</context>
<context>
    <name>AccessibleShelf</name>
    <message>
        <source>Press</source>
        <translation>Naciśnij</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Uaktywnij</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Skopiuj</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Copy and take off the shelf</source>
        <translation>Skopiuj i zdejmij z półki</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Wcześniejsze elementy</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Późniejsze elementy</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Wszystkie elementy</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Półka</translation>
    </message>
    <message>
        <source>The shelf is empty</source>
        <translation>Półka jest pusta</translation>
    </message>
    <message>
        <source>Removed; 1 item is left</source>
        <translation>Usunięto; pozostał 1 element</translation>
    </message>
    <message numerus="yes">
        <source>Removed; %n items are left</source>
        <translation>
            <numerusform>Usunięto; pozostał %Ln element</numerusform>
            <numerusform>Usunięto; pozostały %Ln elementy</numerusform>
            <numerusform>Usunięto; pozostało %Ln elementów</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>Dodano: %1</translation>
    </message>
    <message>
        <source>1 item was added</source>
        <translation>Dodano 1 element</translation>
    </message>
    <message numerus="yes">
        <source>%n items were added</source>
        <translation>
            <numerusform>Dodano %Ln element</numerusform>
            <numerusform>Dodano %Ln elementy</numerusform>
            <numerusform>Dodano %Ln elementów</numerusform>
        </translation>
    </message>
    <message>
        <source>Items on the shelf: %L1</source>
        <translation>Elementy na półce: %L1</translation>
    </message>
    <message>
        <source>The shelf is empty. %1 puts what is on the clipboard here.</source>
        <translation>Półka jest pusta. %1 kładzie na niej zawartość schowka.</translation>
    </message>
    <message>
        <source>%1 was removed; the shelf is empty</source>
        <translation>Usunięto: %1; półka jest pusta</translation>
    </message>
    <message>
        <source>%1 was removed; 1 item is left</source>
        <translation>Usunięto: %1; pozostał 1 element</translation>
    </message>
    <message numerus="yes">
        <source>%1 was removed; %n items are left</source>
        <translation>
            <numerusform>Usunięto: %1; pozostał %Ln element</numerusform>
            <numerusform>Usunięto: %1; pozostały %Ln elementy</numerusform>
            <numerusform>Usunięto: %1; pozostało %Ln elementów</numerusform>
        </translation>
    </message>
    <message>
        <source>The shelf is hidden</source>
        <translation>Półka jest ukryta</translation>
    </message>
</context>
<context>
    <name>AutostartLoginItems</name>
    <message>
        <source>A shelf at the top of the screen for what you drag</source>
        <translation>Półka u góry ekranu na wszystko, co się przeciąga</translation>
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
        <translation>1 bajt</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%Ln bajt</numerusform>
            <numerusform>%Ln bajty</numerusform>
            <numerusform>%Ln bajtów</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Pokazuje lub ukrywa półkę</translation>
    </message>
    <message>
        <source>Show all items in the bar</source>
        <translation>Pokazuje wszystkie elementy na pasku</translation>
    </message>
    <message>
        <source>Print the paths and links on the shelf, one a line</source>
        <translation>Wypisuje ścieżki i odnośniki z półki, po jednym w wierszu</translation>
    </message>
    <message>
        <source>Print them, and remove them from the shelf</source>
        <translation>Wypisuje je i usuwa z półki</translation>
    </message>
    <message>
        <source>Print a NUL character at the end of each, no new line</source>
        <translation>Wypisuje po każdym znak NUL zamiast nowego wiersza</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>Otwiera preferencje</translation>
    </message>
    <message>
        <source>End Corvane</source>
        <translation>Kończy działanie Corvane</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>Wypisuje tę pomoc</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>Wypisuje wersję</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Użycie:</translation>
    </message>
    <message>
        <source>Puts files and links on the shelf, and with - a text from standard input.
Without arguments it starts Corvane, or shows or hides the shelf of the one
that runs.</source>
        <translation>Kładzie na półce pliki i odnośniki, a z - tekst ze standardowego wejścia.
Bez argumentów uruchamia Corvane albo pokazuje lub ukrywa półkę tego,
który już działa.</translation>
    </message>
</context>
<context>
    <name>CommandProblem</name>
    <message>
        <source>there is no option %1</source>
        <translation>nie ma opcji %1</translation>
    </message>
    <message>
        <source>no option of Corvane takes a value</source>
        <translation>żadna opcja Corvane nie przyjmuje wartości</translation>
    </message>
    <message>
        <source>%1 and %2 cannot go together</source>
        <translation>%1 i %2 nie mogą występować razem</translation>
    </message>
    <message>
        <source>--null goes with --list and --take</source>
        <translation>--null występuje z --list i --take</translation>
    </message>
    <message>
        <source>files and links go with no option</source>
        <translation>pliki i odnośniki nie występują z żadną opcją</translation>
    </message>
    <message>
        <source>standard input can be put on the shelf once</source>
        <translation>standardowe wejście można położyć na półce tylko raz</translation>
    </message>
    <message>
        <source>this is no address: %1</source>
        <translation>to nie jest adres: %1</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>nie ma pliku %1</translation>
    </message>
    <message>
        <source>standard input cannot be read, or is larger than 256 MiB</source>
        <translation>nie można odczytać standardowego wejścia albo jest ono większe niż 256&#xa0;MiB</translation>
    </message>
    <message>
        <source>standard input is no text in UTF-8</source>
        <translation>standardowe wejście nie jest tekstem w UTF-8</translation>
    </message>
    <message>
        <source>there is no text on standard input</source>
        <translation>na standardowym wejściu nie ma tekstu</translation>
    </message>
    <message>
        <source>the shelf does not take %1 of what was given</source>
        <translation>liczba podanych elementów, których półka nie przyjmuje: %1</translation>
    </message>
    <message>
        <source>standard output cannot be written to: %1</source>
        <translation>nie można pisać na standardowe wyjście: %1</translation>
    </message>
    <message>
        <source>Corvane is running, but does not answer</source>
        <translation>Corvane działa, ale nie odpowiada</translation>
    </message>
    <message>
        <source>the Corvane that runs says: %1</source>
        <translation>działający Corvane zgłasza: %1</translation>
    </message>
    <message>
        <source>the Corvane that runs does not do this; it may be an older version</source>
        <translation>działający Corvane tego nie potrafi; może to starsza wersja</translation>
    </message>
    <message>
        <source>the display cannot be used: %1</source>
        <translation>nie można użyć ekranu: %1</translation>
    </message>
    <message>
        <source>%1; see corvane --help</source>
        <translation>%1; zobacz corvane --help</translation>
    </message>
    <message>
        <source>the Corvane that runs is not ready yet; try again in a moment</source>
        <translation>działający Corvane nie jest jeszcze gotowy; spróbuj ponownie za chwilę</translation>
    </message>
    <message>
        <source>the Corvane that runs has too much to do; try again in a moment</source>
        <translation>działający Corvane jest zbyt zajęty; spróbuj ponownie za chwilę</translation>
    </message>
    <message>
        <source>what was printed is still on the shelf</source>
        <translation>to, co wypisano, jest nadal na półce</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>brakuje pamięci</translation>
    </message>
    <message>
        <source>the answer of the Corvane that runs cannot be read</source>
        <translation>nie można odczytać odpowiedzi działającego Corvane</translation>
    </message>
</context>
<context>
    <name>ItemTexts</name>
    <message>
        <source>Folder</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Converting to PNG…</source>
        <translation>Przekształcanie w PNG…</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Obraz</translation>
    </message>
    <message>
        <source>1 character</source>
        <translation>1 znak</translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>%Ln znak</numerusform>
            <numerusform>%Ln znaki</numerusform>
            <numerusform>%Ln znaków</numerusform>
        </translation>
    </message>
    <message>
        <source>Counting characters…</source>
        <translation>Liczenie znaków…</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Path copied</source>
        <translation>Skopiowano ścieżkę</translation>
    </message>
    <message>
        <source>Image copied</source>
        <translation>Skopiowano obraz</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Skopiowano tekst</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>Skopiowano odnośnik</translation>
    </message>
    <message>
        <source>Data URI copied</source>
        <translation>Skopiowano URI danych</translation>
    </message>
    <message numerus="yes">
        <source>%n items copied</source>
        <translation>
            <numerusform>Skopiowano %Ln element</numerusform>
            <numerusform>Skopiowano %Ln elementy</numerusform>
            <numerusform>Skopiowano %Ln elementów</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept on the shelf</source>
        <translation>Zostaje na półce</translation>
    </message>
    <message>
        <source>It was not taken</source>
        <translation>Nie przyjęto</translation>
    </message>
    <message>
        <source>%1 of %2 were not taken</source>
        <translation>Nie przyjęto: %1 z %2</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>Pliku już nie ma</translation>
    </message>
</context>
<context>
    <name>PreferencesTab</name>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
</context>
<context>
    <name>PreviewFile</name>
    <message numerus="yes">
        <source>More than %n items</source>
        <translation>
            <numerusform>Więcej niż %Ln element</numerusform>
            <numerusform>Więcej niż %Ln elementy</numerusform>
            <numerusform>Więcej niż %Ln elementów</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 element</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%Ln element</numerusform>
            <numerusform>%Ln elementy</numerusform>
            <numerusform>%Ln elementów</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>This item is no longer there.</source>
        <translation>Tego elementu już nie ma.</translation>
    </message>
    <message>
        <source>Modified %1</source>
        <translation>Zmieniono: %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Strony</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Obraz</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 strona</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%Ln strona</numerusform>
            <numerusform>%Ln strony</numerusform>
            <numerusform>%Ln stron</numerusform>
        </translation>
    </message>
    <message>
        <source>only the beginning is shown</source>
        <translation>pokazano tylko początek</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Otwórz %1</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Wczytywanie…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Szczegóły</translation>
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
        <translation>Shift</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter (klawiatura numeryczna)</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spacja</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Lewo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Prawo</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Góra</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Dół</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>Page Up</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>Page Down</translation>
    </message>
</context>
<context>
    <name>SessionChoice</name>
    <message>
        <source>this Wayland session takes Qt&apos;s plug-in for Wayland, which is not installed (the package qt6-wayland)</source>
        <translation>ta sesja Wayland wymaga wtyczki Qt dla Waylanda, która nie jest zainstalowana (pakiet qt6-wayland)</translation>
    </message>
    <message>
        <source>this Wayland session lets no program hang a shelf from its screen&apos;s edge, and there is no X11 display either (DISPLAY is not set)</source>
        <translation>ta sesja Wayland nie pozwala żadnemu programowi zawiesić półki na krawędzi ekranu, a ekranu X11 też nie ma (nie ustawiono DISPLAY)</translation>
    </message>
    <message>
        <source>there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either (DISPLAY is not set)</source>
        <translation>tam, gdzie wskazuje WAYLAND_DISPLAY, nie ma sesji Wayland, a ekranu X11 też nie ma (nie ustawiono DISPLAY)</translation>
    </message>
    <message>
        <source>there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)</source>
        <translation>nie ma ekranu, na którym można zawiesić półkę (nie ustawiono ani WAYLAND_DISPLAY, ani DISPLAY)</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session&apos;s X11 display, where some drags may not reach it</source>
        <translation>w tej sesji Wayland nie ustawiono WAYLAND_DISPLAY, więc półka używa ekranu X11 tej sesji, na którym część przeciąganych elementów może do niej nie dotrzeć</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session&apos;s X11 display, where some drags may not reach it</source>
        <translation>tam, gdzie wskazuje WAYLAND_DISPLAY, nie odpowiada żaden kompozytor, więc półka używa ekranu X11 tej sesji, na którym część przeciąganych elementów może do niej nie dotrzeć</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>your display server lacks XInput 2 or XFixes</source>
        <translation>serwer wyświetlania nie ma XInput 2 lub XFixes</translation>
    </message>
    <message>
        <source>your desktop keeps that to itself</source>
        <translation>środowisko zachowuje to dla siebie</translation>
    </message>
    <message>
        <source>%1, because %2. %3</source>
        <translation>%1, ponieważ %2. %3</translation>
    </message>
    <message>
        <source>Drags are noticed only at the top of the screen</source>
        <translation>Przeciąganie jest wykrywane tylko u góry ekranu</translation>
    </message>
    <message>
        <source>Drag to the middle of the top edge, and the shelf opens.</source>
        <translation>Proszę przeciągnąć na środek górnej krawędzi, a półka się otworzy.</translation>
    </message>
    <message>
        <source>The shelf does not open when a drag begins</source>
        <translation>Półka nie otwiera się na początku przeciągania</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu before you drag.</source>
        <translation>Przed przeciąganiem proszę otworzyć ją skrótem lub z menu.</translation>
    </message>
    <message>
        <source>A hidden shelf does not come to the pointer at the top edge</source>
        <translation>Ukryta półka nie pojawia się, gdy kursor dotrze do górnej krawędzi</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu.</source>
        <translation>Proszę otworzyć ją skrótem lub z menu.</translation>
    </message>
    <message>
        <source>A click in another program does not close the bar with all items</source>
        <translation>Kliknięcie w innym programie nie zamyka paska ze wszystkimi elementami</translation>
    </message>
    <message>
        <source>Press Escape to close it.</source>
        <translation>Klawisz Esc go zamyka.</translation>
    </message>
    <message>
        <source>Shortcuts cannot be recorded here</source>
        <translation>Nie można tu nagrywać skrótów</translation>
    </message>
    <message>
        <source>Choose them in your desktop&apos;s settings.</source>
        <translation>Można je wybrać w ustawieniach środowiska.</translation>
    </message>
    <message>
        <source>Shift is not noticed once a drag has begun</source>
        <translation>Shift nie jest wykrywany po rozpoczęciu przeciągania</translation>
    </message>
    <message>
        <source>Hold it before you begin to drag, and the item stays.</source>
        <translation>Proszę przytrzymać go przed przeciąganiem, a element pozostanie.</translation>
    </message>
</context>
<context>
    <name>ShelfView</name>
    <message>
        <source>Release to hold</source>
        <translation>Upuść, aby zachować</translation>
    </message>
    <message>
        <source>Drop to hold</source>
        <translation>Przeciągnij tutaj, aby zachować</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Clear Shelf (1 item)</source>
        <translation>Opróżnij półkę (1 element)</translation>
    </message>
    <message numerus="yes">
        <source>Clear Shelf (%n items)</source>
        <translation>
            <numerusform>Opróżnij półkę (%Ln element)</numerusform>
            <numerusform>Opróżnij półkę (%Ln elementy)</numerusform>
            <numerusform>Opróżnij półkę (%Ln elementów)</numerusform>
        </translation>
    </message>
    <message>
        <source>Corvane</source>
        <translation>Corvane</translation>
    </message>
    <message>
        <source>Corvane — 1 item</source>
        <translation>Corvane — 1 element</translation>
    </message>
    <message numerus="yes">
        <source>Corvane — %n items</source>
        <translation>
            <numerusform>Corvane — %Ln element</numerusform>
            <numerusform>Corvane — %Ln elementy</numerusform>
            <numerusform>Corvane — %Ln elementów</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Shelf</source>
        <translation>Pokaż półkę</translation>
    </message>
    <message>
        <source>View All Items…</source>
        <translation>Wyświetl wszystkie elementy…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferencje…</translation>
    </message>
    <message>
        <source>How It Works…</source>
        <translation>Jak to działa…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Sprawdź aktualizacje…</translation>
    </message>
    <message>
        <source>Quit Corvane</source>
        <translation>Zakończ Corvane</translation>
    </message>
</context>
<context>
    <name>UnansweredStart</name>
    <message>
        <source>Corvane is running already, but does not answer.</source>
        <translation>Corvane już działa, ale nie odpowiada.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end the process %1 and start Corvane anew.</source>
        <translation>Proszę spróbować za chwilę albo zakończyć proces %1 i uruchomić Corvane ponownie.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end it and start Corvane anew.</source>
        <translation>Proszę spróbować za chwilę albo zakończyć go i uruchomić Corvane ponownie.</translation>
    </message>
</context>
<context>
    <name>UpdateTexts</name>
    <message>
        <source>What came from the place where new versions are announced could not be read.</source>
        <translation>Nie udało się odczytać tego, co nadeszło z miejsca ogłaszania nowych wersji.</translation>
    </message>
    <message>
        <source>A newer version was announced before than is now. Somebody may be keeping news from you, so nothing was taken.</source>
        <translation>Wcześniej ogłoszono wersję nowszą niż obecnie. Być może ktoś zataja nowości, dlatego niczego nie przyjęto.</translation>
    </message>
    <message>
        <source>What is announced is a release that this build cannot verify, or none at all. Nothing was taken.</source>
        <translation>Ogłoszono wydanie, którego ten program nie może sprawdzić, albo żadnego. Niczego nie przyjęto.</translation>
    </message>
    <message>
        <source>What is announced has not been renewed since %1. Somebody may be keeping news from you, or your clock is wrong.</source>
        <translation>Ogłoszenie nie było odnawiane od: %1. Być może ktoś zataja nowości albo zegar jest źle ustawiony.</translation>
    </message>
    <message>
        <source>What Corvane remembered of earlier updates was damaged. It was set aside and begins anew with the next check.</source>
        <translation>To, co Corvane pamiętał o wcześniejszych aktualizacjach, było uszkodzone. Odłożono to na bok i zacznie się od nowa przy następnym sprawdzeniu.</translation>
    </message>
    <message>
        <source>The place where new versions are announced could not be reached over a safe connection. Try again later.</source>
        <translation>Nie udało się połączyć bezpiecznie z miejscem ogłaszania nowych wersji. Proszę spróbować później.</translation>
    </message>
    <message>
        <source>The new version could not be downloaded. Try again later.</source>
        <translation>Nie udało się pobrać nowej wersji. Proszę spróbować później.</translation>
    </message>
    <message>
        <source>The downloaded file has another length than was announced. It was thrown away.</source>
        <translation>Pobrany plik ma inną długość, niż ogłoszono. Odrzucono go.</translation>
    </message>
    <message>
        <source>The downloaded file was not signed by the makers of Corvane. It was thrown away.</source>
        <translation>Pobrany plik nie został podpisany przez twórców Corvane. Odrzucono go.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk.</source>
        <translation>Na dysku jest za mało miejsca.</translation>
    </message>
    <message>
        <source>The new version could not be written to the disk.</source>
        <translation>Nie udało się zapisać nowej wersji na dysku.</translation>
    </message>
    <message>
        <source>Asked directly, without a proxy.</source>
        <translation>Zapytano bezpośrednio, bez pośrednika.</translation>
    </message>
    <message>
        <source>Asked through the proxy %1.</source>
        <translation>Zapytano przez pośrednika %1.</translation>
    </message>
    <message>
        <source>Nothing was asked: a script chooses your proxy, and Corvane runs none.</source>
        <translation>O nic nie pytano: pośrednika wybiera skrypt, a Corvane żadnych nie uruchamia.</translation>
    </message>
    <message>
        <source>Nothing was asked: your proxy is of a kind that Corvane cannot use.</source>
        <translation>O nic nie pytano: pośrednik jest takiego rodzaju, jakiego Corvane nie może używać.</translation>
    </message>
    <message>
        <source>Corvane&apos;s record of updates was damaged</source>
        <translation>Zapis aktualizacji Corvane był uszkodzony</translation>
    </message>
    <message>
        <source>Corvane could not check for updates</source>
        <translation>Corvane nie mógł sprawdzić aktualizacji</translation>
    </message>
    <message>
        <source>Corvane was not updated</source>
        <translation>Corvane nie został zaktualizowany</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>Szukanie aktualizacji…</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>Corvane jest aktualny</translation>
    </message>
    <message>
        <source>You have version %1, the newest.</source>
        <translation>Używana wersja %1 jest najnowsza.</translation>
    </message>
    <message>
        <source>Corvane %1 is available</source>
        <translation>Dostępny jest Corvane %1</translation>
    </message>
    <message>
        <source>You have %1. The download has %2.</source>
        <translation>Używana wersja: %1. Rozmiar pobierania: %2.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Zainstaluj</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Pobierz</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Później</translation>
    </message>
    <message>
        <source>Downloading Corvane %1…</source>
        <translation>Pobieranie Corvane %1…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Checking and installing…</source>
        <translation>Sprawdzanie i instalowanie…</translation>
    </message>
    <message>
        <source>Corvane %1 is installed</source>
        <translation>Zainstalowano Corvane %1</translation>
    </message>
    <message>
        <source>It is used from the next time that Corvane is started. The one before is kept beside it until then.</source>
        <translation>Będzie używany od następnego uruchomienia Corvane. Do tego czasu poprzednia wersja pozostaje obok.</translation>
    </message>
    <message>
        <source>Corvane %1 is downloaded</source>
        <translation>Pobrano Corvane %1</translation>
    </message>
    <message>
        <source>It was signed by the makers of Corvane and is in your downloads folder as %1.</source>
        <translation>Plik jest podpisany przez twórców Corvane i znajduje się w katalogu pobranych pod nazwą %1.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Pokaż</translation>
    </message>
    <message>
        <source>Updates Go Back in Time…</source>
        <translation>Aktualizacje cofają się w czasie…</translation>
    </message>
    <message>
        <source>Updates Cannot Be Verified…</source>
        <translation>Nie można sprawdzić aktualizacji…</translation>
    </message>
    <message>
        <source>Updates Have Not Been Renewed…</source>
        <translation>Aktualizacje nie były odnawiane…</translation>
    </message>
    <message>
        <source>Record of Updates Was Damaged…</source>
        <translation>Zapis aktualizacji był uszkodzony…</translation>
    </message>
    <message>
        <source>Updates Cannot Use Your Proxy…</source>
        <translation>Aktualizacje nie mogą użyć pośrednika…</translation>
    </message>
</context>
<context>
    <name>ViewAllView</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>Zaznaczono %1 z %2</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Drag anything onto the notch</source>
        <translation>Przeciągnij cokolwiek do góry ekranu</translation>
    </message>
    <message>
        <source>Drag it back out when you arrive</source>
        <translation>Na miejscu wyciągnij to z powrotem</translation>
    </message>
    <message>
        <source>Hold ⇧ to keep it on the shelf</source>
        <translation>Shift zatrzymuje na półce</translation>
    </message>
    <message>
        <source>Start dragging a file, image or link and a shelf slides down from the notch. Drop it there. It stays put while you switch apps, Spaces, or displays.</source>
        <translation>Gdy zacznie się przeciągać plik, obraz lub odnośnik, z góry ekranu wysunie się półka. Wystarczy tam upuścić. Element pozostaje na miejscu podczas przechodzenia między programami, obszarami roboczymi i ekranami.</translation>
    </message>
    <message>
        <source>Move the pointer to the notch and the shelf reappears. Drag the item into whatever you are working in. Press Space to preview it, or ⌘C to copy its path.</source>
        <translation>Po przesunięciu kursora do góry ekranu półka pojawia się znowu. Element można przeciągnąć tam, gdzie się pracuje. Spacja pokazuje podgląd, a Ctrl+C kopiuje ścieżkę.</translation>
    </message>
    <message>
        <source>Normally an item leaves the shelf when you drop it. Hold Shift as you release and it stays, so you can drop the same thing into several places without collecting it again.</source>
        <translation>Zwykle element opuszcza półkę po upuszczeniu gdzie indziej. Jeśli podczas przeciągania przytrzyma się Shift, element pozostanie i można go upuścić w wielu miejscach bez ponownego zbierania.</translation>
    </message>
    <message>
        <source>By keyboard: press the shelf&apos;s shortcut, then %1 to paste onto it and %2 to go through it.</source>
        <translation>Z klawiatury: najpierw skrót półki, potem %1 wkleja na nią, a %2 po niej przechodzi.</translation>
    </message>
    <message>
        <source>By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.</source>
        <translation>Z klawiatury: najpierw %1, potem %2 wkleja na półkę, a %3 po niej przechodzi.</translation>
    </message>
</context>
<context>
    <name>corvane::AboutPane</name>
    <message>
        <source>Version %1 (%2)</source>
        <translation>Wersja %1 (%2)</translation>
    </message>
    <message>
        <source>One slot. Drag in, switch context, drag out. The shelf clears itself and gets out of the way.</source>
        <translation>Miejsce na wiele rzeczy. Przeciągnij do środka, przejdź dalej, wyciągnij. Półka sama się opróżnia i nie przeszkadza.</translation>
    </message>
    <message>
        <source>Runs on your Mac. Nothing you drop is uploaded to us, logged, or sent anywhere. Link previews are the one exception: they ask the linked site for its own page. Turn them off in General.</source>
        <translation>Działa na tym komputerze. Nic, co zostanie upuszczone, nie jest do nas wysyłane, zapisywane w dziennikach ani przekazywane dalej. Corvane używa sieci tylko do podglądu odnośników, o który pyta samą wskazaną stronę, oraz, jeśli jest dostępne, do sprawdzania aktualizacji. Jedno i drugie można wyłączyć w zakładce Ogólne.</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Strona WWW</translation>
    </message>
    <message>
        <source>Opens the product&apos;s page in the web browser</source>
        <translation>Otwiera stronę programu w przeglądarce</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>Napisz do pomocy</translation>
    </message>
    <message>
        <source>Opens a new message in the mail program</source>
        <translation>Otwiera nową wiadomość w programie pocztowym</translation>
    </message>
</context>
<context>
    <name>corvane::ClearButton</name>
    <message>
        <source>Clear the shortcut</source>
        <translation>Usuń skrót</translation>
    </message>
</context>
<context>
    <name>corvane::GeneralPane</name>
    <message>
        <source>Your settings folder cannot be written to. Changes work until Corvane quits, and are not kept.</source>
        <translation>Nie można zapisywać w katalogu ustawień. Zmiany działają do zakończenia Corvane i nie są zachowywane.</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Półka</translation>
    </message>
    <message>
        <source>Items in view</source>
        <translation>Widoczne elementy</translation>
    </message>
    <message>
        <source>One at a time. Use the arrows to page through the rest.</source>
        <translation>Po jednym. Pozostałe można przewijać strzałkami.</translation>
    </message>
    <message numerus="yes">
        <source>%n thumbnails at once, with arrows for the rest.</source>
        <translation>
            <numerusform>%Ln miniatura naraz, pozostałe za strzałkami.</numerusform>
            <numerusform>%Ln miniatury naraz, pozostałe za strzałkami.</numerusform>
            <numerusform>%Ln miniatur naraz, pozostałe za strzałkami.</numerusform>
        </translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Zachowanie</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Uruchamianie po zalogowaniu</translation>
    </message>
    <message>
        <source>Corvane runs in the menu bar with no Dock icon.</source>
        <translation>Corvane działa w tle i ma ikonę w panelu.</translation>
    </message>
    <message>
        <source>Open the shelf when a drag begins</source>
        <translation>Otwieranie półki na początku przeciągania</translation>
    </message>
    <message>
        <source>Turn off to summon it only with the shortcut.</source>
        <translation>Po wyłączeniu otwiera się ją samemu, na przykład skrótem.</translation>
    </message>
    <message>
        <source>Show previews for dropped links</source>
        <translation>Podgląd upuszczonych odnośników</translation>
    </message>
    <message>
        <source>Asks the linked site for its title and image. It is the only time Corvane uses the network on your behalf, and the site learns you have the link.</source>
        <translation>Pyta wskazaną stronę o tytuł i obraz, więc strona dowiaduje się, że masz ten odnośnik. Poza sprawdzaniem aktualizacji, jeśli jest dostępne, tylko wtedy Corvane używa sieci.</translation>
    </message>
    <message>
        <source>Keep items when Corvane ends</source>
        <translation>Zachowywanie elementów po zakończeniu Corvane</translation>
    </message>
    <message>
        <source>They are back at the next start. Until then, pictures and texts are stored in your home folder.</source>
        <translation>Wracają przy następnym uruchomieniu. Do tego czasu obrazy i teksty są przechowywane w katalogu domowym.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Skróty</translation>
    </message>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Pokazanie lub ukrycie półki</translation>
    </message>
    <message>
        <source>Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.</source>
        <translation>Wymaga Super, Alt lub Ctrl. Po usunięciu skrótu pozostaje ikona w panelu.</translation>
    </message>
    <message>
        <source>Show or hide all items</source>
        <translation>Pokazanie lub ukrycie wszystkich elementów</translation>
    </message>
    <message>
        <source>Unset by default. ↓ on the shelf does the same thing.</source>
        <translation>Początkowo nieustawiony. Klawisz Dół na półce robi to samo.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Sprawdź teraz</translation>
    </message>
    <message>
        <source>Looks for a new version at once</source>
        <translation>Natychmiast szuka nowej wersji</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aktualizacje</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Automatyczne sprawdzanie aktualizacji</translation>
    </message>
    <message>
        <source>Your system&apos;s software manager keeps Corvane up to date.</source>
        <translation>Corvane aktualizuje menedżer oprogramowania systemu.</translation>
    </message>
    <message>
        <source>This build does not know where to look.</source>
        <translation>Ten program nie wie, gdzie szukać.</translation>
    </message>
    <message>
        <source>Offer beta versions too</source>
        <translation>Także wersje beta</translation>
    </message>
    <message>
        <source>They come earlier, and fewer people have tried them.</source>
        <translation>Pojawiają się wcześniej, a wypróbowało je mniej osób.</translation>
    </message>
</context>
<context>
    <name>corvane::PageIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Krok %1 z %2</translation>
    </message>
</context>
<context>
    <name>corvane::PreferencesWindow</name>
    <message>
        <source>Pane of the preferences</source>
        <translation>Panel preferencji</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRecorderView</name>
    <message>
        <source>Type a shortcut…</source>
        <translation>Naciśnij skrót…</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Nagraj skrót</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRow</name>
    <message>
        <source>Copy</source>
        <translation>Skopiuj</translation>
    </message>
    <message>
        <source>That combination types a character. Record one with ⌘, ⌥ or ⌃.</source>
        <translation>Ta kombinacja wpisuje znak. Proszę nagrać taką z Super, Alt lub Ctrl.</translation>
    </message>
    <message>
        <source>Another app already uses that combination.</source>
        <translation>Inny program już używa tej kombinacji.</translation>
    </message>
    <message>
        <source>Your desktop has not answered yet.</source>
        <translation>Środowisko jeszcze nie odpowiedziało.</translation>
    </message>
    <message>
        <source>Bind a key to this command in your desktop&apos;s settings: %1</source>
        <translation>Proszę przypisać klawisz do tego polecenia w ustawieniach środowiska: %1</translation>
    </message>
    <message>
        <source>Add this line to your desktop&apos;s settings: %1</source>
        <translation>Proszę dodać ten wiersz do ustawień środowiska: %1</translation>
    </message>
    <message>
        <source>Your desktop has bound it to %1.</source>
        <translation>Środowisko przypisało %1.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateWindow</name>
    <message>
        <source>What is new</source>
        <translation>Co nowego</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Pobieranie</translation>
    </message>
</context>
<context>
    <name>corvane::WelcomeView</name>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Goes to the step before</source>
        <translation>Przechodzi do poprzedniego kroku</translation>
    </message>
    <message>
        <source>Illustration: %1</source>
        <translation>Ilustracja: %1</translation>
    </message>
    <message>
        <source>Start using it</source>
        <translation>Zacznij używać</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Closes this guide</source>
        <translation>Zamyka ten przewodnik</translation>
    </message>
    <message>
        <source>Goes to the next step</source>
        <translation>Przechodzi do następnego kroku</translation>
    </message>
</context>
</TS>
