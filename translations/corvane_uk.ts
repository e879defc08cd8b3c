<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name>AccessibleBar</name>
    <message>
        <source>Press</source>
        <translation>Натиснути</translation>
    </message>
    <message>
        <source>Select or deselect</source>
        <translation>Вибрати або зняти вибір</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Вибрати все</translation>
    </message>
    <message>
        <source>All items on the shelf</source>
        <translation>Усі об’єкти на полиці</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Попередні об’єкти</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Наступні об’єкти</translation>
    </message>
    <message>
        <source>Copy the selected items</source>
        <translation>Копіювати вибрані об’єкти</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>Прибрати вибрані об’єкти</translation>
    </message>
    <message>
        <source>All items: %L1</source>
        <translation>Усі об’єкти: %L1</translation>
    </message>
</context>
<context>
    <name>AccessibleItems</name>
    <message>
        <source>Folder</source>
        <translation>Тека</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Зображення</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Посилання</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 з %L2</translation>
    </message>
    <message>
        <source>being made ready</source>
        <translation>готується</translation>
    </message>
</context>
<context>
    <name>AccessibleShelf</name>
    <message>
        <source>Press</source>
        <translation>Натиснути</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Перевести фокус</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Попередній перегляд</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копіювати</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Прибрати</translation>
    </message>
    <message>
        <source>Copy and take off the shelf</source>
        <translation>Копіювати і прибрати з полиці</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Попередні об’єкти</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Наступні об’єкти</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Усі об’єкти</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Полиця</translation>
    </message>
    <message>
        <source>The shelf is empty</source>
        <translation>Полиця порожня</translation>
    </message>
    <message>
        <source>Removed; 1 item is left</source>
        <translation>Прибрано; лишився 1 об’єкт</translation>
    </message>
    <message numerus="yes">
        <source>Removed; %n items are left</source>
        <translation>
            <numerusform>Прибрано; лишився %Ln об’єкт</numerusform>
            <numerusform>Прибрано; лишилося %Ln об’єкти</numerusform>
            <numerusform>Прибрано; лишилося %Ln об’єктів</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>Додано: %1</translation>
    </message>
    <message>
        <source>1 item was added</source>
        <translation>Додано 1 об’єкт</translation>
    </message>
    <message numerus="yes">
        <source>%n items were added</source>
        <translation>
            <numerusform>Додано %Ln об’єкт</numerusform>
            <numerusform>Додано %Ln об’єкти</numerusform>
            <numerusform>Додано %Ln об’єктів</numerusform>
        </translation>
    </message>
    <message>
        <source>Items on the shelf: %L1</source>
        <translation>Об’єкти на полиці: %L1</translation>
    </message>
    <message>
        <source>The shelf is empty. %1 puts what is on the clipboard here.</source>
        <translation>Полиця порожня. %1 кладе сюди вміст буфера обміну.</translation>
    </message>
    <message>
        <source>%1 was removed; the shelf is empty</source>
        <translation>Прибрано: %1; полиця порожня</translation>
    </message>
    <message>
        <source>%1 was removed; 1 item is left</source>
        <translation>Прибрано: %1; лишився 1 об’єкт</translation>
    </message>
    <message numerus="yes">
        <source>%1 was removed; %n items are left</source>
        <translation>
            <numerusform>Прибрано: %1; лишився %Ln об’єкт</numerusform>
            <numerusform>Прибрано: %1; лишилося %Ln об’єкти</numerusform>
            <numerusform>Прибрано: %1; лишилося %Ln об’єктів</numerusform>
        </translation>
    </message>
    <message>
        <source>The shelf is hidden</source>
        <translation>Полицю приховано</translation>
    </message>
</context>
<context>
    <name>AutostartLoginItems</name>
    <message>
        <source>A shelf at the top of the screen for what you drag</source>
        <translation>Полиця біля верхнього краю екрана для того, що ви перетягуєте</translation>
    </message>
</context>
<context>
    <name>ByteCount</name>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;кБ</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;МБ</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;ГБ</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1&#xa0;ТБ</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1&#xa0;ПБ</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1&#xa0;ЕБ</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 байт</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%Ln байт</numerusform>
            <numerusform>%Ln байти</numerusform>
            <numerusform>%Ln байтів</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Показати або приховати полицю</translation>
    </message>
    <message>
        <source>Show all items in the bar</source>
        <translation>Показати всі об’єкти на панелі</translation>
    </message>
    <message>
        <source>Print the paths and links on the shelf, one a line</source>
        <translation>Вивести шляхи й посилання на полиці, по одному в рядку</translation>
    </message>
    <message>
        <source>Print them, and remove them from the shelf</source>
        <translation>Вивести їх і прибрати з полиці</translation>
    </message>
    <message>
        <source>Print a NUL character at the end of each, no new line</source>
        <translation>Виводити після кожного символ NUL замість нового рядка</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>Відкрити параметри</translation>
    </message>
    <message>
        <source>End Corvane</source>
        <translation>Завершити Corvane</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>Вивести цю довідку</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>Вивести версію</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Використання:</translation>
    </message>
    <message>
        <source>Puts files and links on the shelf, and with - a text from standard input.
Without arguments it starts Corvane, or shows or hides the shelf of the one
that runs.</source>
        <translation>Кладе на полицю файли й посилання, а з - текст зі стандартного введення.
Без аргументів запускає Corvane або показує чи приховує полицю вже
запущеного.</translation>
    </message>
</context>
<context>
    <name>CommandProblem</name>
    <message>
        <source>there is no option %1</source>
        <translation>параметра %1 немає</translation>
    </message>
    <message>
        <source>no option of Corvane takes a value</source>
        <translation>жоден параметр Corvane не приймає значення</translation>
    </message>
    <message>
        <source>%1 and %2 cannot go together</source>
        <translation>%1 і %2 не можна вказувати разом</translation>
    </message>
    <message>
        <source>--null goes with --list and --take</source>
        <translation>--null вказують з --list і --take</translation>
    </message>
    <message>
        <source>files and links go with no option</source>
        <translation>файли й посилання вказують без параметрів</translation>
    </message>
    <message>
        <source>standard input can be put on the shelf once</source>
        <translation>стандартне введення можна покласти на полицю лише один раз</translation>
    </message>
    <message>
        <source>this is no address: %1</source>
        <translation>це не адреса: %1</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>немає файла %1</translation>
    </message>
    <message>
        <source>standard input cannot be read, or is larger than 256 MiB</source>
        <translation>стандартне введення не читається або більше за 256&#xa0;МіБ</translation>
    </message>
    <message>
        <source>standard input is no text in UTF-8</source>
        <translation>стандартне введення не є текстом у UTF-8</translation>
    </message>
    <message>
        <source>there is no text on standard input</source>
        <translation>у стандартному введенні немає тексту</translation>
    </message>
    <message>
        <source>the shelf does not take %1 of what was given</source>
        <translation>полиця не приймає об’єктів із зазначених: %1</translation>
    </message>
    <message>
        <source>standard output cannot be written to: %1</source>
        <translation>не вдається записати у стандартне виведення: %1</translation>
    </message>
    <message>
        <source>Corvane is running, but does not answer</source>
        <translation>Corvane працює, але не відповідає</translation>
    </message>
    <message>
        <source>the Corvane that runs says: %1</source>
        <translation>запущений Corvane повідомляє: %1</translation>
    </message>
    <message>
        <source>the Corvane that runs does not do this; it may be an older version</source>
        <translation>запущений Corvane цього не вміє; можливо, це старіша версія</translation>
    </message>
    <message>
        <source>the display cannot be used: %1</source>
        <translation>дисплей не можна використати: %1</translation>
    </message>
    <message>
        <source>%1; see corvane --help</source>
        <translation>%1; див. corvane --help</translation>
    </message>
    <message>
        <source>the Corvane that runs is not ready yet; try again in a moment</source>
        <translation>запущений Corvane ще не готовий; спробуйте знову за мить</translation>
    </message>
    <message>
        <source>the Corvane that runs has too much to do; try again in a moment</source>
        <translation>запущений Corvane надто зайнятий; спробуйте знову за мить</translation>
    </message>
    <message>
        <source>what was printed is still on the shelf</source>
        <translation>те, що було виведено, лишилося на полиці</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>недостатньо пам’яті</translation>
    </message>
    <message>
        <source>the answer of the Corvane that runs cannot be read</source>
        <translation>не вдається прочитати відповідь запущеного Corvane</translation>
    </message>
</context>
<context>
    <name>ItemTexts</name>
    <message>
        <source>Folder</source>
        <translation>Тека</translation>
    </message>
    <message>
        <source>Converting to PNG…</source>
        <translation>Перетворення на PNG…</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Зображення</translation>
    </message>
    <message>
        <source>1 character</source>
        <translation>1 символ</translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>%Ln символ</numerusform>
            <numerusform>%Ln символи</numerusform>
            <numerusform>%Ln символів</numerusform>
        </translation>
    </message>
    <message>
        <source>Counting characters…</source>
        <translation>Підрахунок символів…</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Path copied</source>
        <translation>Шлях скопійовано</translation>
    </message>
    <message>
        <source>Image copied</source>
        <translation>Зображення скопійовано</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Текст скопійовано</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>Посилання скопійовано</translation>
    </message>
    <message>
        <source>Data URI copied</source>
        <translation>URI даних скопійовано</translation>
    </message>
    <message numerus="yes">
        <source>%n items copied</source>
        <translation>
            <numerusform>Скопійовано %Ln об’єкт</numerusform>
            <numerusform>Скопійовано %Ln об’єкти</numerusform>
            <numerusform>Скопійовано %Ln об’єктів</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept on the shelf</source>
        <translation>Залишається на полиці</translation>
    </message>
    <message>
        <source>It was not taken</source>
        <translation>Не прийнято</translation>
    </message>
    <message>
        <source>%1 of %2 were not taken</source>
        <translation>Не прийнято: %1 з %2</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>Файла більше немає</translation>
    </message>
</context>
<context>
    <name>PreferencesTab</name>
    <message>
        <source>General</source>
        <translation>Загальне</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Про програму</translation>
    </message>
</context>
<context>
    <name>PreviewFile</name>
    <message numerus="yes">
        <source>More than %n items</source>
        <translation>
            <numerusform>Понад %Ln об’єкт</numerusform>
            <numerusform>Понад %Ln об’єкти</numerusform>
            <numerusform>Понад %Ln об’єктів</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 об’єкт</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%Ln об’єкт</numerusform>
            <numerusform>%Ln об’єкти</numerusform>
            <numerusform>%Ln об’єктів</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>This item is no longer there.</source>
        <translation>Цього об’єкта більше немає.</translation>
    </message>
    <message>
        <source>Modified %1</source>
        <translation>Змінено: %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Сторінки</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Зображення</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 сторінка</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%Ln сторінка</numerusform>
            <numerusform>%Ln сторінки</numerusform>
            <numerusform>%Ln сторінок</numerusform>
        </translation>
    </message>
    <message>
        <source>only the beginning is shown</source>
        <translation>показано лише початок</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Відкрити</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Відкрити %1</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Завантаження…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Подробиці</translation>
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
        <translation>Return</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Пробіл</translation>
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
        <translation>Ліворуч</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Праворуч</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вгору</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Вниз</translation>
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
        <translation>для цього сеансу Wayland потрібен модуль Qt для Wayland, який не встановлено (пакунок qt6-wayland)</translation>
    </message>
    <message>
        <source>this Wayland session lets no program hang a shelf from its screen&apos;s edge, and there is no X11 display either (DISPLAY is not set)</source>
        <translation>цей сеанс Wayland не дає програмам закріпити полицю біля краю екрана, і дисплея X11 теж немає (DISPLAY не задано)</translation>
    </message>
    <message>
        <source>there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either (DISPLAY is not set)</source>
        <translation>там, куди вказує WAYLAND_DISPLAY, немає сеансу Wayland, і дисплея X11 теж немає (DISPLAY не задано)</translation>
    </message>
    <message>
        <source>there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)</source>
        <translation>немає дисплея, на якому можна закріпити полицю (не задано ні WAYLAND_DISPLAY, ні DISPLAY)</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session&apos;s X11 display, where some drags may not reach it</source>
        <translation>у цьому сеансі Wayland не задано WAYLAND_DISPLAY, тому полиця використовує дисплей X11 цього сеансу, де не все перетягуване може до неї дійти</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session&apos;s X11 display, where some drags may not reach it</source>
        <translation>там, куди вказує WAYLAND_DISPLAY, не відповідає жоден композитор, тому полиця використовує дисплей X11 цього сеансу, де не все перетягуване може до неї дійти</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>your display server lacks XInput 2 or XFixes</source>
        <translation>ваш дисплейний сервер не має XInput 2 або XFixes</translation>
    </message>
    <message>
        <source>your desktop keeps that to itself</source>
        <translation>стільничне середовище про це не повідомляє</translation>
    </message>
    <message>
        <source>%1, because %2. %3</source>
        <translation>%1, бо %2. %3</translation>
    </message>
    <message>
        <source>Drags are noticed only at the top of the screen</source>
        <translation>Перетягування розпізнається лише біля верхнього краю екрана</translation>
    </message>
    <message>
        <source>Drag to the middle of the top edge, and the shelf opens.</source>
        <translation>Перетягніть до середини верхнього краю, і полиця відкриється.</translation>
    </message>
    <message>
        <source>The shelf does not open when a drag begins</source>
        <translation>Полиця не відкривається на початку перетягування</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu before you drag.</source>
        <translation>Відкрийте її скороченням або з меню перед перетягуванням.</translation>
    </message>
    <message>
        <source>A hidden shelf does not come to the pointer at the top edge</source>
        <translation>Прихована полиця не з’являється, коли вказівник сягає верхнього краю</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu.</source>
        <translation>Відкрийте її скороченням або з меню.</translation>
    </message>
    <message>
        <source>A click in another program does not close the bar with all items</source>
        <translation>Клацання в іншій програмі не закриває панель з усіма об’єктами</translation>
    </message>
    <message>
        <source>Press Escape to close it.</source>
        <translation>Натисніть Esc, щоб закрити її.</translation>
    </message>
    <message>
        <source>Shortcuts cannot be recorded here</source>
        <translation>Клавіатурні скорочення тут не можна записати</translation>
    </message>
    <message>
        <source>Choose them in your desktop&apos;s settings.</source>
        <translation>Виберіть їх у параметрах стільничного середовища.</translation>
    </message>
    <message>
        <source>Shift is not noticed once a drag has begun</source>
        <translation>Shift не розпізнається після початку перетягування</translation>
    </message>
    <message>
        <source>Hold it before you begin to drag, and the item stays.</source>
        <translation>Затисніть Shift до початку перетягування, і об’єкт залишиться.</translation>
    </message>
</context>
<context>
    <name>ShelfView</name>
    <message>
        <source>Release to hold</source>
        <translation>Відпустіть, щоб зберегти</translation>
    </message>
    <message>
        <source>Drop to hold</source>
        <translation>Перетягніть сюди</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Clear Shelf (1 item)</source>
        <translation>Очистити полицю (1 об’єкт)</translation>
    </message>
    <message numerus="yes">
        <source>Clear Shelf (%n items)</source>
        <translation>
            <numerusform>Очистити полицю (%Ln об’єкт)</numerusform>
            <numerusform>Очистити полицю (%Ln об’єкти)</numerusform>
            <numerusform>Очистити полицю (%Ln об’єктів)</numerusform>
        </translation>
    </message>
    <message>
        <source>Corvane</source>
        <translation>Corvane</translation>
    </message>
    <message>
        <source>Corvane — 1 item</source>
        <translation>Corvane — 1 об’єкт</translation>
    </message>
    <message numerus="yes">
        <source>Corvane — %n items</source>
        <translation>
            <numerusform>Corvane — %Ln об’єкт</numerusform>
            <numerusform>Corvane — %Ln об’єкти</numerusform>
            <numerusform>Corvane — %Ln об’єктів</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Shelf</source>
        <translation>Показати полицю</translation>
    </message>
    <message>
        <source>View All Items…</source>
        <translation>Показати всі об’єкти…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Параметри…</translation>
    </message>
    <message>
        <source>How It Works…</source>
        <translation>Як це працює…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Перевірити оновлення…</translation>
    </message>
    <message>
        <source>Quit Corvane</source>
        <translation>Вийти з Corvane</translation>
    </message>
</context>
<context>
    <name>UnansweredStart</name>
    <message>
        <source>Corvane is running already, but does not answer.</source>
        <translation>Corvane вже запущено, але він не відповідає.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end the process %1 and start Corvane anew.</source>
        <translation>Спробуйте знову за мить або завершіть процес %1 і запустіть Corvane ще раз.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end it and start Corvane anew.</source>
        <translation>Спробуйте знову за мить або завершіть його і запустіть Corvane ще раз.</translation>
    </message>
</context>
<context>
    <name>UpdateTexts</name>
    <message>
        <source>What came from the place where new versions are announced could not be read.</source>
        <translation>Не вдалося прочитати те, що надійшло з місця, де оголошують нові версії.</translation>
    </message>
    <message>
        <source>A newer version was announced before than is now. Somebody may be keeping news from you, so nothing was taken.</source>
        <translation>Раніше було оголошено новішу версію, ніж тепер. Можливо, хтось приховує від вас новини, тому нічого не прийнято.</translation>
    </message>
    <message>
        <source>What is announced is a release that this build cannot verify, or none at all. Nothing was taken.</source>
        <translation>Оголошено випуск, який ця збірка не може перевірити, або жодного. Нічого не прийнято.</translation>
    </message>
    <message>
        <source>What is announced has not been renewed since %1. Somebody may be keeping news from you, or your clock is wrong.</source>
        <translation>Оголошення не поновлювали з такої дати: %1. Можливо, хтось приховує від вас новини або ваш годинник показує неправильний час.</translation>
    </message>
    <message>
        <source>What Corvane remembered of earlier updates was damaged. It was set aside and begins anew with the next check.</source>
        <translation>Відомості Corvane про попередні оновлення були пошкоджені. Їх відкладено, і вони почнуться заново з наступною перевіркою.</translation>
    </message>
    <message>
        <source>The place where new versions are announced could not be reached over a safe connection. Try again later.</source>
        <translation>Не вдалося безпечним з’єднанням звернутися до місця, де оголошують нові версії. Спробуйте пізніше.</translation>
    </message>
    <message>
        <source>The new version could not be downloaded. Try again later.</source>
        <translation>Не вдалося завантажити нову версію. Спробуйте пізніше.</translation>
    </message>
    <message>
        <source>The downloaded file has another length than was announced. It was thrown away.</source>
        <translation>Довжина завантаженого файла не та, що оголошена. Файл відкинуто.</translation>
    </message>
    <message>
        <source>The downloaded file was not signed by the makers of Corvane. It was thrown away.</source>
        <translation>Завантажений файл не підписали творці Corvane. Файл відкинуто.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk.</source>
        <translation>На диску недостатньо місця.</translation>
    </message>
    <message>
        <source>The new version could not be written to the disk.</source>
        <translation>Не вдалося записати нову версію на диск.</translation>
    </message>
    <message>
        <source>Asked directly, without a proxy.</source>
        <translation>Запитано безпосередньо, без проксі.</translation>
    </message>
    <message>
        <source>Asked through the proxy %1.</source>
        <translation>Запитано через проксі %1.</translation>
    </message>
    <message>
        <source>Nothing was asked: a script chooses your proxy, and Corvane runs none.</source>
        <translation>Нічого не запитано: ваш проксі вибирає сценарій, а Corvane їх не виконує.</translation>
    </message>
    <message>
        <source>Nothing was asked: your proxy is of a kind that Corvane cannot use.</source>
        <translation>Нічого не запитано: проксі такого виду Corvane не може використовувати.</translation>
    </message>
    <message>
        <source>Corvane&apos;s record of updates was damaged</source>
        <translation>Записи про оновлення Corvane були пошкоджені</translation>
    </message>
    <message>
        <source>Corvane could not check for updates</source>
        <translation>Corvane не вдалося перевірити оновлення</translation>
    </message>
    <message>
        <source>Corvane was not updated</source>
        <translation>Corvane не оновлено</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>Пошук оновлень…</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>У вас найновіший Corvane</translation>
    </message>
    <message>
        <source>You have version %1, the newest.</source>
        <translation>У вас версія %1, найновіша.</translation>
    </message>
    <message>
        <source>Corvane %1 is available</source>
        <translation>Доступний Corvane %1</translation>
    </message>
    <message>
        <source>You have %1. The download has %2.</source>
        <translation>У вас версія %1. Розмір завантаження: %2.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Встановити</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Завантажити</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Пізніше</translation>
    </message>
    <message>
        <source>Downloading Corvane %1…</source>
        <translation>Завантаження Corvane %1…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 з %2</translation>
    </message>
    <message>
        <source>Checking and installing…</source>
        <translation>Перевірка та встановлення…</translation>
    </message>
    <message>
        <source>Corvane %1 is installed</source>
        <translation>Corvane %1 встановлено</translation>
    </message>
    <message>
        <source>It is used from the next time that Corvane is started. The one before is kept beside it until then.</source>
        <translation>Його буде використано з наступного запуску Corvane. До того часу попередня версія зберігається поруч.</translation>
    </message>
    <message>
        <source>Corvane %1 is downloaded</source>
        <translation>Corvane %1 завантажено</translation>
    </message>
    <message>
        <source>It was signed by the makers of Corvane and is in your downloads folder as %1.</source>
        <translation>Файл підписали творці Corvane; він у вашій теці завантажень під назвою %1.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Показати</translation>
    </message>
    <message>
        <source>Updates Go Back in Time…</source>
        <translation>Оновлення йдуть назад у часі…</translation>
    </message>
    <message>
        <source>Updates Cannot Be Verified…</source>
        <translation>Оновлення не можна перевірити…</translation>
    </message>
    <message>
        <source>Updates Have Not Been Renewed…</source>
        <translation>Оновлення не поновлювали…</translation>
    </message>
    <message>
        <source>Record of Updates Was Damaged…</source>
        <translation>Записи про оновлення були пошкоджені…</translation>
    </message>
    <message>
        <source>Updates Cannot Use Your Proxy…</source>
        <translation>Оновлення не можуть використати ваш проксі…</translation>
    </message>
</context>
<context>
    <name>ViewAllView</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>Вибрано %1 з %2</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Drag anything onto the notch</source>
        <translation>Перетягніть будь-що до верхнього краю екрана</translation>
    </message>
    <message>
        <source>Drag it back out when you arrive</source>
        <translation>Витягніть на новому місці</translation>
    </message>
    <message>
        <source>Hold ⇧ to keep it on the shelf</source>
        <translation>Утримуйте Shift, щоб лишити на полиці</translation>
    </message>
    <message>
        <source>Start dragging a file, image or link and a shelf slides down from the notch. Drop it there. It stays put while you switch apps, Spaces, or displays.</source>
        <translation>Почніть перетягувати файл, зображення або посилання, і від верхнього краю екрана висунеться полиця. Відпустіть там. Усе лишиться на місці, поки ви переходите між програмами, робочими просторами чи екранами.</translation>
    </message>
    <message>
        <source>Move the pointer to the notch and the shelf reappears. Drag the item into whatever you are working in. Press Space to preview it, or ⌘C to copy its path.</source>
        <translation>Підведіть вказівник до верхнього краю екрана, і полиця з’явиться знову. Перетягніть об’єкт туди, де працюєте. Натисніть «Пробіл» для попереднього перегляду або Ctrl+C, щоб скопіювати шлях.</translation>
    </message>
    <message>
        <source>Normally an item leaves the shelf when you drop it. Hold Shift as you release and it stays, so you can drop the same thing into several places without collecting it again.</source>
        <translation>Зазвичай об’єкт залишає полицю, коли ви його кудись відпускаєте. Утримуйте Shift під час перетягування, і він залишиться: те саме можна відпустити в кількох місцях, не збираючи знову.</translation>
    </message>
    <message>
        <source>By keyboard: press the shelf&apos;s shortcut, then %1 to paste onto it and %2 to go through it.</source>
        <translation>З клавіатури: натисніть клавіатурне скорочення полиці, потім %1, щоб вставити на неї, і %2, щоб переходити нею.</translation>
    </message>
    <message>
        <source>By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.</source>
        <translation>З клавіатури: натисніть %1, потім %2, щоб вставити на полицю, і %3, щоб переходити нею.</translation>
    </message>
</context>
<context>
    <name>corvane::AboutPane</name>
    <message>
        <source>Version %1 (%2)</source>
        <translation>Версія %1 (%2)</translation>
    </message>
    <message>
        <source>One slot. Drag in, switch context, drag out. The shelf clears itself and gets out of the way.</source>
        <translation>Місце для багатьох речей. Покладіть, перейдіть, витягніть. Полиця сама спорожніє й не заважає.</translation>
    </message>
    <message>
        <source>Runs on your Mac. Nothing you drop is uploaded to us, logged, or sent anywhere. Link previews are the one exception: they ask the linked site for its own page. Turn them off in General.</source>
        <translation>Працює на вашому комп’ютері. Ніщо з покладеного не надсилається нам, не записується до журналів і нікуди не передається. Corvane звертається до мережі лише для попереднього перегляду посилань, запитуючи сторінку в самого сайту, і, якщо вона є, для перевірки оновлень. І те, й інше вимикається на вкладці «Загальне».</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Вебсайт</translation>
    </message>
    <message>
        <source>Opens the product&apos;s page in the web browser</source>
        <translation>Відкриває сторінку програми у веббраузері</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>Написати до підтримки</translation>
    </message>
    <message>
        <source>Opens a new message in the mail program</source>
        <translation>Відкриває новий лист у поштовій програмі</translation>
    </message>
</context>
<context>
    <name>corvane::ClearButton</name>
    <message>
        <source>Clear the shortcut</source>
        <translation>Очистити скорочення</translation>
    </message>
</context>
<context>
    <name>corvane::GeneralPane</name>
    <message>
        <source>Your settings folder cannot be written to. Changes work until Corvane quits, and are not kept.</source>
        <translation>До теки параметрів не можна писати. Зміни діють до виходу з Corvane і не зберігаються.</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Полиця</translation>
    </message>
    <message>
        <source>Items in view</source>
        <translation>Видимих об’єктів</translation>
    </message>
    <message>
        <source>One at a time. Use the arrows to page through the rest.</source>
        <translation>По одному. Решту гортайте стрілками.</translation>
    </message>
    <message numerus="yes">
        <source>%n thumbnails at once, with arrows for the rest.</source>
        <translation>
            <numerusform>%Ln мініатюра відразу, решта — стрілками.</numerusform>
            <numerusform>%Ln мініатюри відразу, решта — стрілками.</numerusform>
            <numerusform>%Ln мініатюр відразу, решта — стрілками.</numerusform>
        </translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Поведінка</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Запускати після входу до системи</translation>
    </message>
    <message>
        <source>Corvane runs in the menu bar with no Dock icon.</source>
        <translation>Corvane працює у фоні, його піктограма — на панелі.</translation>
    </message>
    <message>
        <source>Open the shelf when a drag begins</source>
        <translation>Відкривати полицю на початку перетягування</translation>
    </message>
    <message>
        <source>Turn off to summon it only with the shortcut.</source>
        <translation>Якщо вимкнути, полицю відкриваєте ви самі, наприклад скороченням.</translation>
    </message>
    <message>
        <source>Show previews for dropped links</source>
        <translation>Показувати попередній перегляд покладених посилань</translation>
    </message>
    <message>
        <source>Asks the linked site for its title and image. It is the only time Corvane uses the network on your behalf, and the site learns you have the link.</source>
        <translation>Запитує в сайту його заголовок і зображення, тож сайт дізнається, що у вас є посилання. Окрім перевірки оновлень, якщо вона є, лише тут Corvane звертається до мережі.</translation>
    </message>
    <message>
        <source>Keep items when Corvane ends</source>
        <translation>Зберігати об’єкти після виходу з Corvane</translation>
    </message>
    <message>
        <source>They are back at the next start. Until then, pictures and texts are stored in your home folder.</source>
        <translation>Під час наступного запуску вони знову будуть на полиці. Доти зображення й тексти зберігаються в домашній теці.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Клавіатурні скорочення</translation>
    </message>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Показати або приховати полицю</translation>
    </message>
    <message>
        <source>Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.</source>
        <translation>Потрібна Super, Alt або Ctrl. Якщо очистити, лишається піктограма на панелі.</translation>
    </message>
    <message>
        <source>Show or hide all items</source>
        <translation>Показати або приховати всі об’єкти</translation>
    </message>
    <message>
        <source>Unset by default. ↓ on the shelf does the same thing.</source>
        <translation>Спочатку не задано. Клавіша «Вниз» на полиці робить те саме.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Перевірити</translation>
    </message>
    <message>
        <source>Looks for a new version at once</source>
        <translation>Відразу шукає нову версію</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Оновлення</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Перевіряти оновлення автоматично</translation>
    </message>
    <message>
        <source>Your system&apos;s software manager keeps Corvane up to date.</source>
        <translation>Про оновлення Corvane дбає менеджер програм вашої системи.</translation>
    </message>
    <message>
        <source>This build does not know where to look.</source>
        <translation>Ця збірка не знає, де шукати.</translation>
    </message>
    <message>
        <source>Offer beta versions too</source>
        <translation>Пропонувати й бета-версії</translation>
    </message>
    <message>
        <source>They come earlier, and fewer people have tried them.</source>
        <translation>Вони виходять раніше, і їх випробувало менше людей.</translation>
    </message>
</context>
<context>
    <name>corvane::PageIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Крок %1 з %2</translation>
    </message>
</context>
<context>
    <name>corvane::PreferencesWindow</name>
    <message>
        <source>Pane of the preferences</source>
        <translation>Вкладка параметрів</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRecorderView</name>
    <message>
        <source>Type a shortcut…</source>
        <translation>Натисніть клавіші…</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Задати клавіші</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRow</name>
    <message>
        <source>Copy</source>
        <translation>Копіювати</translation>
    </message>
    <message>
        <source>That combination types a character. Record one with ⌘, ⌥ or ⌃.</source>
        <translation>Це сполучення вводить символ. Задайте сполучення з Super, Alt або Ctrl.</translation>
    </message>
    <message>
        <source>Another app already uses that combination.</source>
        <translation>Інша програма вже використовує це сполучення.</translation>
    </message>
    <message>
        <source>Your desktop has not answered yet.</source>
        <translation>Стільничне середовище ще не відповіло.</translation>
    </message>
    <message>
        <source>Bind a key to this command in your desktop&apos;s settings: %1</source>
        <translation>Призначте клавішу цій команді в параметрах стільничного середовища: %1</translation>
    </message>
    <message>
        <source>Add this line to your desktop&apos;s settings: %1</source>
        <translation>Додайте цей рядок до параметрів стільничного середовища: %1</translation>
    </message>
    <message>
        <source>Your desktop has bound it to %1.</source>
        <translation>Стільничне середовище призначило %1.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateWindow</name>
    <message>
        <source>What is new</source>
        <translation>Що нового</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Завантаження</translation>
    </message>
</context>
<context>
    <name>corvane::WelcomeView</name>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Goes to the step before</source>
        <translation>Переходить до попереднього кроку</translation>
    </message>
    <message>
        <source>Illustration: %1</source>
        <translation>Ілюстрація: %1</translation>
    </message>
    <message>
        <source>Start using it</source>
        <translation>Почати роботу</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далі</translation>
    </message>
    <message>
        <source>Closes this guide</source>
        <translation>Закриває цей посібник</translation>
    </message>
    <message>
        <source>Goes to the next step</source>
        <translation>Переходить до наступного кроку</translation>
    </message>
</context>
</TS>
