<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>AccessibleBar</name>
    <message>
        <source>Press</source>
        <translation>Нажать</translation>
    </message>
    <message>
        <source>Select or deselect</source>
        <translation>Выбрать или снять выбор</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Выбрать все</translation>
    </message>
    <message>
        <source>All items on the shelf</source>
        <translation>Все объекты на полке</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Предыдущие объекты</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Следующие объекты</translation>
    </message>
    <message>
        <source>Copy the selected items</source>
        <translation>Копировать выбранные объекты</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>Убрать выбранные объекты</translation>
    </message>
    <message>
        <source>All items: %L1</source>
        <translation>Все объекты: %L1</translation>
    </message>
</context>
<context>
    <name>AccessibleItems</name>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Ссылка</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 из %L2</translation>
    </message>
    <message>
        <source>being made ready</source>
        <translation>готовится</translation>
    </message>
</context>
<context>
    <name>AccessibleShelf</name>
    <message>
        <source>Press</source>
        <translation>Нажать</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Перейти</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Просмотр</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>Copy and take off the shelf</source>
        <translation>Копировать и убрать с полки</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>Предыдущие объекты</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>Следующие объекты</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Все объекты</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Полка</translation>
    </message>
    <message>
        <source>The shelf is empty</source>
        <translation>Полка пуста</translation>
    </message>
    <message>
        <source>Removed; 1 item is left</source>
        <translation>Убрано; остался 1 объект</translation>
    </message>
    <message numerus="yes">
        <source>Removed; %n items are left</source>
        <translation>
            <numerusform>Убрано; остался %Ln объект</numerusform>
            <numerusform>Убрано; осталось %Ln объекта</numerusform>
            <numerusform>Убрано; осталось %Ln объектов</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>Добавлено: %1</translation>
    </message>
    <message>
        <source>1 item was added</source>
        <translation>Добавлен 1 объект</translation>
    </message>
    <message numerus="yes">
        <source>%n items were added</source>
        <translation>
            <numerusform>Добавлен %Ln объект</numerusform>
            <numerusform>Добавлено %Ln объекта</numerusform>
            <numerusform>Добавлено %Ln объектов</numerusform>
        </translation>
    </message>
    <message>
        <source>Items on the shelf: %L1</source>
        <translation>Объекты на полке: %L1</translation>
    </message>
    <message>
        <source>The shelf is empty. %1 puts what is on the clipboard here.</source>
        <translation>Полка пуста. %1 кладёт сюда содержимое буфера обмена.</translation>
    </message>
    <message>
        <source>%1 was removed; the shelf is empty</source>
        <translation>Убрано: %1; полка пуста</translation>
    </message>
    <message>
        <source>%1 was removed; 1 item is left</source>
        <translation>Убрано: %1; остался 1 объект</translation>
    </message>
    <message numerus="yes">
        <source>%1 was removed; %n items are left</source>
        <translation>
            <numerusform>Убрано: %1; остался %Ln объект</numerusform>
            <numerusform>Убрано: %1; осталось %Ln объекта</numerusform>
            <numerusform>Убрано: %1; осталось %Ln объектов</numerusform>
        </translation>
    </message>
    <message>
        <source>The shelf is hidden</source>
        <translation>Полка скрыта</translation>
    </message>
</context>
<context>
    <name>AutostartLoginItems</name>
    <message>
        <source>A shelf at the top of the screen for what you drag</source>
        <translation>Полка у верхнего края экрана для того, что вы перетаскиваете</translation>
    </message>
</context>
<context>
    <name>ByteCount</name>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;КБ</translation>
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
        <translation>%1&#xa0;ЭБ</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 байт</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%Ln байт</numerusform>
            <numerusform>%Ln байта</numerusform>
            <numerusform>%Ln байт</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Показать или скрыть полку</translation>
    </message>
    <message>
        <source>Show all items in the bar</source>
        <translation>Показать все объекты на панели</translation>
    </message>
    <message>
        <source>Print the paths and links on the shelf, one a line</source>
        <translation>Вывести пути и ссылки на полке, по одному в строке</translation>
    </message>
    <message>
        <source>Print them, and remove them from the shelf</source>
        <translation>Вывести их и убрать с полки</translation>
    </message>
    <message>
        <source>Print a NUL character at the end of each, no new line</source>
        <translation>Выводить после каждого символ NUL вместо новой строки</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>Открыть параметры</translation>
    </message>
    <message>
        <source>End Corvane</source>
        <translation>Завершить Corvane</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>Вывести эту справку</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>Вывести версию</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Использование:</translation>
    </message>
    <message>
        <source>Puts files and links on the shelf, and with - a text from standard input.
Without arguments it starts Corvane, or shows or hides the shelf of the one
that runs.</source>
        <translation>Кладёт на полку файлы и ссылки, а с - текст со стандартного ввода.
Без аргументов запускает Corvane либо показывает или скрывает полку уже
запущенного.</translation>
    </message>
</context>
<context>
    <name>CommandProblem</name>
    <message>
        <source>there is no option %1</source>
        <translation>параметра %1 нет</translation>
    </message>
    <message>
        <source>no option of Corvane takes a value</source>
        <translation>ни один параметр Corvane не принимает значения</translation>
    </message>
    <message>
        <source>%1 and %2 cannot go together</source>
        <translation>%1 и %2 нельзя указывать вместе</translation>
    </message>
    <message>
        <source>--null goes with --list and --take</source>
        <translation>--null указывают с --list и --take</translation>
    </message>
    <message>
        <source>files and links go with no option</source>
        <translation>файлы и ссылки указывают без параметров</translation>
    </message>
    <message>
        <source>standard input can be put on the shelf once</source>
        <translation>стандартный ввод можно положить на полку только один раз</translation>
    </message>
    <message>
        <source>this is no address: %1</source>
        <translation>это не адрес: %1</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>нет файла %1</translation>
    </message>
    <message>
        <source>standard input cannot be read, or is larger than 256 MiB</source>
        <translation>стандартный ввод не читается или больше 256&#xa0;МиБ</translation>
    </message>
    <message>
        <source>standard input is no text in UTF-8</source>
        <translation>стандартный ввод не является текстом в UTF-8</translation>
    </message>
    <message>
        <source>there is no text on standard input</source>
        <translation>в стандартном вводе нет текста</translation>
    </message>
    <message>
        <source>the shelf does not take %1 of what was given</source>
        <translation>полка не принимает объектов из указанных: %1</translation>
    </message>
    <message>
        <source>standard output cannot be written to: %1</source>
        <translation>не удаётся записать в стандартный вывод: %1</translation>
    </message>
    <message>
        <source>Corvane is running, but does not answer</source>
        <translation>Corvane работает, но не отвечает</translation>
    </message>
    <message>
        <source>the Corvane that runs says: %1</source>
        <translation>запущенный Corvane сообщает: %1</translation>
    </message>
    <message>
        <source>the Corvane that runs does not do this; it may be an older version</source>
        <translation>запущенный Corvane этого не умеет; возможно, это более старая версия</translation>
    </message>
    <message>
        <source>the display cannot be used: %1</source>
        <translation>экран нельзя использовать: %1</translation>
    </message>
    <message>
        <source>%1; see corvane --help</source>
        <translation>%1; см. corvane --help</translation>
    </message>
    <message>
        <source>the Corvane that runs is not ready yet; try again in a moment</source>
        <translation>запущенный Corvane ещё не готов; повторите попытку чуть позже</translation>
    </message>
    <message>
        <source>the Corvane that runs has too much to do; try again in a moment</source>
        <translation>запущенный Corvane слишком занят; повторите попытку чуть позже</translation>
    </message>
    <message>
        <source>what was printed is still on the shelf</source>
        <translation>то, что было выведено, осталось на полке</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>недостаточно памяти</translation>
    </message>
    <message>
        <source>the answer of the Corvane that runs cannot be read</source>
        <translation>не удаётся прочитать ответ запущенного Corvane</translation>
    </message>
</context>
<context>
    <name>ItemTexts</name>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Converting to PNG…</source>
        <translation>Преобразование в PNG…</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>1 character</source>
        <translation>1 символ</translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>%Ln символ</numerusform>
            <numerusform>%Ln символа</numerusform>
            <numerusform>%Ln символов</numerusform>
        </translation>
    </message>
    <message>
        <source>Counting characters…</source>
        <translation>Подсчёт символов…</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Path copied</source>
        <translation>Путь скопирован</translation>
    </message>
    <message>
        <source>Image copied</source>
        <translation>Изображение скопировано</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Текст скопирован</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>Ссылка скопирована</translation>
    </message>
    <message>
        <source>Data URI copied</source>
        <translation>URI данных скопирован</translation>
    </message>
    <message numerus="yes">
        <source>%n items copied</source>
        <translation>
            <numerusform>Скопирован %Ln объект</numerusform>
            <numerusform>Скопировано %Ln объекта</numerusform>
            <numerusform>Скопировано %Ln объектов</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept on the shelf</source>
        <translation>Остаётся на полке</translation>
    </message>
    <message>
        <source>It was not taken</source>
        <translation>Не принято</translation>
    </message>
    <message>
        <source>%1 of %2 were not taken</source>
        <translation>Не принято: %1 из %2</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>Файла больше нет</translation>
    </message>
</context>
<context>
    <name>PreferencesTab</name>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
</context>
<context>
    <name>PreviewFile</name>
    <message numerus="yes">
        <source>More than %n items</source>
        <translation>
            <numerusform>Более %Ln объекта</numerusform>
            <numerusform>Более %Ln объектов</numerusform>
            <numerusform>Более %Ln объектов</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 объект</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%Ln объект</numerusform>
            <numerusform>%Ln объекта</numerusform>
            <numerusform>%Ln объектов</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>This item is no longer there.</source>
        <translation>Этого объекта больше нет.</translation>
    </message>
    <message>
        <source>Modified %1</source>
        <translation>Изменено: %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Страницы</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 страница</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%Ln страница</numerusform>
            <numerusform>%Ln страницы</numerusform>
            <numerusform>%Ln страниц</numerusform>
        </translation>
    </message>
    <message>
        <source>only the beginning is shown</source>
        <translation>показано только начало</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Открыть %1</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Загрузка…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Сведения</translation>
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
        <translation>Пробел</translation>
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
        <translation>Влево</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Вправо</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
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
        <translation>для этого сеанса Wayland нужен модуль Qt для Wayland, который не установлен (пакет qt6-wayland)</translation>
    </message>
    <message>
        <source>this Wayland session lets no program hang a shelf from its screen&apos;s edge, and there is no X11 display either (DISPLAY is not set)</source>
        <translation>этот сеанс Wayland не даёт программам закрепить полку у края экрана, и экрана X11 тоже нет (DISPLAY не задана)</translation>
    </message>
    <message>
        <source>there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either (DISPLAY is not set)</source>
        <translation>там, куда указывает WAYLAND_DISPLAY, нет сеанса Wayland, и экрана X11 тоже нет (DISPLAY не задана)</translation>
    </message>
    <message>
        <source>there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)</source>
        <translation>нет экрана, на котором можно закрепить полку (не заданы ни WAYLAND_DISPLAY, ни DISPLAY)</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session&apos;s X11 display, where some drags may not reach it</source>
        <translation>в этом сеансе Wayland не задана WAYLAND_DISPLAY, поэтому полка использует экран X11 этого сеанса, где не всё перетаскиваемое может до неё дойти</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session&apos;s X11 display, where some drags may not reach it</source>
        <translation>там, куда указывает WAYLAND_DISPLAY, не отвечает ни один композитор, поэтому полка использует экран X11 этого сеанса, где не всё перетаскиваемое может до неё дойти</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>your display server lacks XInput 2 or XFixes</source>
        <translation>у сервера отображения нет XInput 2 или XFixes</translation>
    </message>
    <message>
        <source>your desktop keeps that to itself</source>
        <translation>среда рабочего стола об этом не сообщает</translation>
    </message>
    <message>
        <source>%1, because %2. %3</source>
        <translation>%1, потому что %2. %3</translation>
    </message>
    <message>
        <source>Drags are noticed only at the top of the screen</source>
        <translation>Перетаскивание распознаётся только у верхнего края экрана</translation>
    </message>
    <message>
        <source>Drag to the middle of the top edge, and the shelf opens.</source>
        <translation>Перетащите к середине верхнего края, и полка откроется.</translation>
    </message>
    <message>
        <source>The shelf does not open when a drag begins</source>
        <translation>Полка не открывается в начале перетаскивания</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu before you drag.</source>
        <translation>Откройте её сочетанием клавиш или из меню до перетаскивания.</translation>
    </message>
    <message>
        <source>A hidden shelf does not come to the pointer at the top edge</source>
        <translation>Скрытая полка не появляется, когда указатель подходит к верхнему краю</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu.</source>
        <translation>Откройте её сочетанием клавиш или из меню.</translation>
    </message>
    <message>
        <source>A click in another program does not close the bar with all items</source>
        <translation>Щелчок в другой программе не закрывает панель со всеми объектами</translation>
    </message>
    <message>
        <source>Press Escape to close it.</source>
        <translation>Нажмите Esc, чтобы закрыть её.</translation>
    </message>
    <message>
        <source>Shortcuts cannot be recorded here</source>
        <translation>Сочетания клавиш здесь нельзя записать</translation>
    </message>
    <message>
        <source>Choose them in your desktop&apos;s settings.</source>
        <translation>Выберите их в параметрах среды рабочего стола.</translation>
    </message>
    <message>
        <source>Shift is not noticed once a drag has begun</source>
        <translation>Shift не распознаётся после начала перетаскивания</translation>
    </message>
    <message>
        <source>Hold it before you begin to drag, and the item stays.</source>
        <translation>Зажмите Shift до начала перетаскивания, и объект останется.</translation>
    </message>
</context>
<context>
    <name>ShelfView</name>
    <message>
        <source>Release to hold</source>
        <translation>Отпустите, чтобы сохранить</translation>
    </message>
    <message>
        <source>Drop to hold</source>
        <translation>Перетащите сюда</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Clear Shelf (1 item)</source>
        <translation>Очистить полку (1 объект)</translation>
    </message>
    <message numerus="yes">
        <source>Clear Shelf (%n items)</source>
        <translation>
            <numerusform>Очистить полку (%Ln объект)</numerusform>
            <numerusform>Очистить полку (%Ln объекта)</numerusform>
            <numerusform>Очистить полку (%Ln объектов)</numerusform>
        </translation>
    </message>
    <message>
        <source>Corvane</source>
        <translation>Corvane</translation>
    </message>
    <message>
        <source>Corvane — 1 item</source>
        <translation>Corvane — 1 объект</translation>
    </message>
    <message numerus="yes">
        <source>Corvane — %n items</source>
        <translation>
            <numerusform>Corvane — %Ln объект</numerusform>
            <numerusform>Corvane — %Ln объекта</numerusform>
            <numerusform>Corvane — %Ln объектов</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Shelf</source>
        <translation>Показать полку</translation>
    </message>
    <message>
        <source>View All Items…</source>
        <translation>Показать все объекты…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Параметры…</translation>
    </message>
    <message>
        <source>How It Works…</source>
        <translation>Как это работает…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Проверить обновления…</translation>
    </message>
    <message>
        <source>Quit Corvane</source>
        <translation>Завершить Corvane</translation>
    </message>
</context>
<context>
    <name>UnansweredStart</name>
    <message>
        <source>Corvane is running already, but does not answer.</source>
        <translation>Corvane уже запущен, но не отвечает.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end the process %1 and start Corvane anew.</source>
        <translation>Повторите попытку чуть позже или завершите процесс %1 и запустите Corvane заново.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end it and start Corvane anew.</source>
        <translation>Повторите попытку чуть позже или завершите его и запустите Corvane заново.</translation>
    </message>
</context>
<context>
    <name>UpdateTexts</name>
    <message>
        <source>What came from the place where new versions are announced could not be read.</source>
        <translation>Не удалось прочитать то, что пришло из места, где объявляют о новых версиях.</translation>
    </message>
    <message>
        <source>A newer version was announced before than is now. Somebody may be keeping news from you, so nothing was taken.</source>
        <translation>Ранее объявлялась более новая версия, чем сейчас. Возможно, кто-то скрывает от вас новости, поэтому ничего не принято.</translation>
    </message>
    <message>
        <source>What is announced is a release that this build cannot verify, or none at all. Nothing was taken.</source>
        <translation>Объявлен выпуск, который эта сборка не может проверить, либо никакого. Ничего не принято.</translation>
    </message>
    <message>
        <source>What is announced has not been renewed since %1. Somebody may be keeping news from you, or your clock is wrong.</source>
        <translation>Объявление не обновлялось с этой даты: %1. Возможно, кто-то скрывает от вас новости или ваши часы неверны.</translation>
    </message>
    <message>
        <source>What Corvane remembered of earlier updates was damaged. It was set aside and begins anew with the next check.</source>
        <translation>Сведения Corvane о прежних обновлениях были повреждены. Они отложены и начнутся заново при следующей проверке.</translation>
    </message>
    <message>
        <source>The place where new versions are announced could not be reached over a safe connection. Try again later.</source>
        <translation>Не удалось по безопасному соединению обратиться к месту, где объявляют о новых версиях. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The new version could not be downloaded. Try again later.</source>
        <translation>Не удалось загрузить новую версию. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The downloaded file has another length than was announced. It was thrown away.</source>
        <translation>Длина загруженного файла не та, что объявлена. Файл удалён.</translation>
    </message>
    <message>
        <source>The downloaded file was not signed by the makers of Corvane. It was thrown away.</source>
        <translation>Загруженный файл не подписан создателями Corvane. Файл удалён.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk.</source>
        <translation>На диске недостаточно места.</translation>
    </message>
    <message>
        <source>The new version could not be written to the disk.</source>
        <translation>Не удалось записать новую версию на диск.</translation>
    </message>
    <message>
        <source>Asked directly, without a proxy.</source>
        <translation>Запрошено напрямую, без прокси.</translation>
    </message>
    <message>
        <source>Asked through the proxy %1.</source>
        <translation>Запрошено через прокси %1.</translation>
    </message>
    <message>
        <source>Nothing was asked: a script chooses your proxy, and Corvane runs none.</source>
        <translation>Ничего не запрошено: прокси выбирает сценарий, а Corvane их не выполняет.</translation>
    </message>
    <message>
        <source>Nothing was asked: your proxy is of a kind that Corvane cannot use.</source>
        <translation>Ничего не запрошено: прокси такого вида Corvane использовать не может.</translation>
    </message>
    <message>
        <source>Corvane&apos;s record of updates was damaged</source>
        <translation>Записи об обновлениях Corvane были повреждены</translation>
    </message>
    <message>
        <source>Corvane could not check for updates</source>
        <translation>Corvane не удалось проверить обновления</translation>
    </message>
    <message>
        <source>Corvane was not updated</source>
        <translation>Corvane не обновлён</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>Поиск обновлений…</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>У вас последняя версия Corvane</translation>
    </message>
    <message>
        <source>You have version %1, the newest.</source>
        <translation>У вас версия %1, самая новая.</translation>
    </message>
    <message>
        <source>Corvane %1 is available</source>
        <translation>Доступен Corvane %1</translation>
    </message>
    <message>
        <source>You have %1. The download has %2.</source>
        <translation>У вас версия %1. Размер загрузки: %2.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Установить</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Загрузить</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Позже</translation>
    </message>
    <message>
        <source>Downloading Corvane %1…</source>
        <translation>Загрузка Corvane %1…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Checking and installing…</source>
        <translation>Проверка и установка…</translation>
    </message>
    <message>
        <source>Corvane %1 is installed</source>
        <translation>Corvane %1 установлен</translation>
    </message>
    <message>
        <source>It is used from the next time that Corvane is started. The one before is kept beside it until then.</source>
        <translation>Он будет использоваться со следующего запуска Corvane. До тех пор прежняя версия хранится рядом.</translation>
    </message>
    <message>
        <source>Corvane %1 is downloaded</source>
        <translation>Corvane %1 загружен</translation>
    </message>
    <message>
        <source>It was signed by the makers of Corvane and is in your downloads folder as %1.</source>
        <translation>Файл подписан создателями Corvane и лежит в папке загрузок под именем %1.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Показать</translation>
    </message>
    <message>
        <source>Updates Go Back in Time…</source>
        <translation>Обновления идут назад во времени…</translation>
    </message>
    <message>
        <source>Updates Cannot Be Verified…</source>
        <translation>Обновления нельзя проверить…</translation>
    </message>
    <message>
        <source>Updates Have Not Been Renewed…</source>
        <translation>Обновления не подтверждались…</translation>
    </message>
    <message>
        <source>Record of Updates Was Damaged…</source>
        <translation>Записи об обновлениях были повреждены…</translation>
    </message>
    <message>
        <source>Updates Cannot Use Your Proxy…</source>
        <translation>Обновления не могут использовать прокси…</translation>
    </message>
</context>
<context>
    <name>ViewAllView</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>Выбрано %1 из %2</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Drag anything onto the notch</source>
        <translation>Перетащите что угодно к верхнему краю экрана</translation>
    </message>
    <message>
        <source>Drag it back out when you arrive</source>
        <translation>Вытащите на новом месте</translation>
    </message>
    <message>
        <source>Hold ⇧ to keep it on the shelf</source>
        <translation>Удерживайте Shift, чтобы оставить на полке</translation>
    </message>
    <message>
        <source>Start dragging a file, image or link and a shelf slides down from the notch. Drop it there. It stays put while you switch apps, Spaces, or displays.</source>
        <translation>Начните перетаскивать файл, изображение или ссылку, и от верхнего края экрана выдвинется полка. Отпустите там. Всё останется на месте, пока вы переходите между программами, рабочими столами или экранами.</translation>
    </message>
    <message>
        <source>Move the pointer to the notch and the shelf reappears. Drag the item into whatever you are working in. Press Space to preview it, or ⌘C to copy its path.</source>
        <translation>Подведите указатель к верхнему краю экрана, и полка появится снова. Перетащите объект туда, где работаете. Нажмите «Пробел» для просмотра или Ctrl+C, чтобы скопировать путь.</translation>
    </message>
    <message>
        <source>Normally an item leaves the shelf when you drop it. Hold Shift as you release and it stays, so you can drop the same thing into several places without collecting it again.</source>
        <translation>Обычно объект покидает полку, когда вы его куда-то отпускаете. Удерживайте Shift при перетаскивании, и он останется: одно и то же можно отпустить в нескольких местах, не собирая заново.</translation>
    </message>
    <message>
        <source>By keyboard: press the shelf&apos;s shortcut, then %1 to paste onto it and %2 to go through it.</source>
        <translation>С клавиатуры: нажмите сочетание клавиш полки, затем %1, чтобы вставить на неё, и %2, чтобы переходить по ней.</translation>
    </message>
    <message>
        <source>By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.</source>
        <translation>С клавиатуры: нажмите %1, затем %2, чтобы вставить на полку, и %3, чтобы переходить по ней.</translation>
    </message>
</context>
<context>
    <name>corvane::AboutPane</name>
    <message>
        <source>Version %1 (%2)</source>
        <translation>Версия %1 (%2)</translation>
    </message>
    <message>
        <source>One slot. Drag in, switch context, drag out. The shelf clears itself and gets out of the way.</source>
        <translation>Место для многого. Положите, перейдите, вытащите. Полка сама опустеет и не мешает.</translation>
    </message>
    <message>
        <source>Runs on your Mac. Nothing you drop is uploaded to us, logged, or sent anywhere. Link previews are the one exception: they ask the linked site for its own page. Turn them off in General.</source>
        <translation>Работает на вашем компьютере. Ничто из положенного не отправляется нам, не записывается в журналы и никуда не передаётся. Corvane обращается к сети только для просмотра ссылок, запрашивая страницу у самого сайта, и, если она есть, для проверки обновлений. И то и другое отключается на вкладке «Общие».</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Веб-сайт</translation>
    </message>
    <message>
        <source>Opens the product&apos;s page in the web browser</source>
        <translation>Открывает страницу программы в веб-браузере</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>Написать в поддержку</translation>
    </message>
    <message>
        <source>Opens a new message in the mail program</source>
        <translation>Открывает новое письмо в почтовой программе</translation>
    </message>
</context>
<context>
    <name>corvane::ClearButton</name>
    <message>
        <source>Clear the shortcut</source>
        <translation>Очистить сочетание клавиш</translation>
    </message>
</context>
<context>
    <name>corvane::GeneralPane</name>
    <message>
        <source>Your settings folder cannot be written to. Changes work until Corvane quits, and are not kept.</source>
        <translation>В папку с параметрами нельзя писать. Изменения действуют до завершения Corvane и не сохраняются.</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Полка</translation>
    </message>
    <message>
        <source>Items in view</source>
        <translation>Видимых объектов</translation>
    </message>
    <message>
        <source>One at a time. Use the arrows to page through the rest.</source>
        <translation>По одному. Остальные листайте стрелками.</translation>
    </message>
    <message numerus="yes">
        <source>%n thumbnails at once, with arrows for the rest.</source>
        <translation>
            <numerusform>%Ln миниатюра сразу, остальные — стрелками.</numerusform>
            <numerusform>%Ln миниатюры сразу, остальные — стрелками.</numerusform>
            <numerusform>%Ln миниатюр сразу, остальные — стрелками.</numerusform>
        </translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Поведение</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Запускать при входе в систему</translation>
    </message>
    <message>
        <source>Corvane runs in the menu bar with no Dock icon.</source>
        <translation>Corvane работает в фоне, его значок находится на панели.</translation>
    </message>
    <message>
        <source>Open the shelf when a drag begins</source>
        <translation>Открывать полку в начале перетаскивания</translation>
    </message>
    <message>
        <source>Turn off to summon it only with the shortcut.</source>
        <translation>Если выключить, полку открываете вы сами, например сочетанием клавиш.</translation>
    </message>
    <message>
        <source>Show previews for dropped links</source>
        <translation>Показывать предпросмотр положенных ссылок</translation>
    </message>
    <message>
        <source>Asks the linked site for its title and image. It is the only time Corvane uses the network on your behalf, and the site learns you have the link.</source>
        <translation>Запрашивает у сайта его заголовок и изображение, и сайт узнаёт, что у вас есть ссылка. Кроме проверки обновлений, если она есть, только здесь Corvane обращается к сети.</translation>
    </message>
    <message>
        <source>Keep items when Corvane ends</source>
        <translation>Сохранять объекты при завершении Corvane</translation>
    </message>
    <message>
        <source>They are back at the next start. Until then, pictures and texts are stored in your home folder.</source>
        <translation>При следующем запуске они снова будут на полке. До тех пор изображения и тексты хранятся в домашней папке.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>Show or hide the shelf</source>
        <translation>Показать или скрыть полку</translation>
    </message>
    <message>
        <source>Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.</source>
        <translation>Нужна Super, Alt или Ctrl. Очистите, чтобы обходиться значком на панели.</translation>
    </message>
    <message>
        <source>Show or hide all items</source>
        <translation>Показать или скрыть все объекты</translation>
    </message>
    <message>
        <source>Unset by default. ↓ on the shelf does the same thing.</source>
        <translation>Изначально не задано. Клавиша «Вниз» на полке делает то же самое.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Проверить</translation>
    </message>
    <message>
        <source>Looks for a new version at once</source>
        <translation>Сразу ищет новую версию</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Обновления</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Проверять обновления автоматически</translation>
    </message>
    <message>
        <source>Your system&apos;s software manager keeps Corvane up to date.</source>
        <translation>Corvane обновляет менеджер программ вашей системы.</translation>
    </message>
    <message>
        <source>This build does not know where to look.</source>
        <translation>Эта сборка не знает, где искать.</translation>
    </message>
    <message>
        <source>Offer beta versions too</source>
        <translation>Предлагать и бета-версии</translation>
    </message>
    <message>
        <source>They come earlier, and fewer people have tried them.</source>
        <translation>Они выходят раньше, и их опробовало меньше людей.</translation>
    </message>
</context>
<context>
    <name>corvane::PageIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Шаг %1 из %2</translation>
    </message>
</context>
<context>
    <name>corvane::PreferencesWindow</name>
    <message>
        <source>Pane of the preferences</source>
        <translation>Вкладка параметров</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRecorderView</name>
    <message>
        <source>Type a shortcut…</source>
        <translation>Нажмите клавиши…</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Задать клавиши</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRow</name>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>That combination types a character. Record one with ⌘, ⌥ or ⌃.</source>
        <translation>Это сочетание вводит символ. Задайте сочетание с Super, Alt или Ctrl.</translation>
    </message>
    <message>
        <source>Another app already uses that combination.</source>
        <translation>Это сочетание уже занято другой программой.</translation>
    </message>
    <message>
        <source>Your desktop has not answered yet.</source>
        <translation>Среда рабочего стола ещё не ответила.</translation>
    </message>
    <message>
        <source>Bind a key to this command in your desktop&apos;s settings: %1</source>
        <translation>Назначьте клавишу этой команде в параметрах среды рабочего стола: %1</translation>
    </message>
    <message>
        <source>Add this line to your desktop&apos;s settings: %1</source>
        <translation>Добавьте эту строку в параметры среды рабочего стола: %1</translation>
    </message>
    <message>
        <source>Your desktop has bound it to %1.</source>
        <translation>Среда рабочего стола назначила %1.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateWindow</name>
    <message>
        <source>What is new</source>
        <translation>Что нового</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Загрузка</translation>
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
        <translation>Переходит к предыдущему шагу</translation>
    </message>
    <message>
        <source>Illustration: %1</source>
        <translation>Иллюстрация: %1</translation>
    </message>
    <message>
        <source>Start using it</source>
        <translation>Начать работу</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>Closes this guide</source>
        <translation>Закрывает это руководство</translation>
    </message>
    <message>
        <source>Goes to the next step</source>
        <translation>Переходит к следующему шагу</translation>
    </message>
</context>
</TS>
