<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>AccessibleBar</name>
    <message>
        <source>Press</source>
        <translation>누르기</translation>
    </message>
    <message>
        <source>Select or deselect</source>
        <translation>선택 또는 선택 해제</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>All items on the shelf</source>
        <translation>선반의 모든 항목</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>이전 항목</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>다음 항목</translation>
    </message>
    <message>
        <source>Copy the selected items</source>
        <translation>선택한 항목 복사</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>선택한 항목 제거</translation>
    </message>
    <message>
        <source>All items: %L1</source>
        <translation>모든 항목: %L1</translation>
    </message>
</context>
<context>
    <name>AccessibleItems</name>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>그림</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>링크</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L2개 중 %L1번째</translation>
    </message>
    <message>
        <source>being made ready</source>
        <translation>준비 중</translation>
    </message>
</context>
<context>
    <name>AccessibleShelf</name>
    <message>
        <source>Press</source>
        <translation>누르기</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>초점 맞추기</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>미리 보기</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Copy and take off the shelf</source>
        <translation>복사하고 선반에서 내리기</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>이전 항목</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>다음 항목</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>모든 항목</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>선반</translation>
    </message>
    <message>
        <source>The shelf is empty</source>
        <translation>선반이 비었습니다</translation>
    </message>
    <message>
        <source>Removed; 1 item is left</source>
        <translation>제거했습니다. 항목 1개가 남았습니다</translation>
    </message>
    <message numerus="yes">
        <source>Removed; %n items are left</source>
        <translation>
            <numerusform>제거했습니다. 항목 %Ln개가 남았습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1을(를) 추가했습니다</translation>
    </message>
    <message>
        <source>1 item was added</source>
        <translation>항목 1개를 추가했습니다</translation>
    </message>
    <message numerus="yes">
        <source>%n items were added</source>
        <translation>
            <numerusform>항목 %Ln개를 추가했습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>Items on the shelf: %L1</source>
        <translation>선반의 항목: %L1</translation>
    </message>
    <message>
        <source>The shelf is empty. %1 puts what is on the clipboard here.</source>
        <translation>선반이 비었습니다. %1(으)로 클립보드의 내용을 여기에 놓습니다.</translation>
    </message>
    <message>
        <source>%1 was removed; the shelf is empty</source>
        <translation>%1을(를) 제거했습니다. 선반이 비었습니다</translation>
    </message>
    <message>
        <source>%1 was removed; 1 item is left</source>
        <translation>%1을(를) 제거했습니다. 항목 1개가 남았습니다</translation>
    </message>
    <message numerus="yes">
        <source>%1 was removed; %n items are left</source>
        <translation>
            <numerusform>%1을(를) 제거했습니다. 항목 %Ln개가 남았습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>The shelf is hidden</source>
        <translation>선반을 숨겼습니다</translation>
    </message>
</context>
<context>
    <name>AutostartLoginItems</name>
    <message>
        <source>A shelf at the top of the screen for what you drag</source>
        <translation>끌어 온 것을 놓아두는 화면 위쪽의 선반</translation>
    </message>
</context>
<context>
    <name>ByteCount</name>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;KB</translation>
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
        <translation>1바이트</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%Ln바이트</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show or hide the shelf</source>
        <translation>선반 보기 또는 숨기기</translation>
    </message>
    <message>
        <source>Show all items in the bar</source>
        <translation>모든 항목을 막대에 보이기</translation>
    </message>
    <message>
        <source>Print the paths and links on the shelf, one a line</source>
        <translation>선반의 경로와 링크를 한 줄에 하나씩 출력</translation>
    </message>
    <message>
        <source>Print them, and remove them from the shelf</source>
        <translation>출력하고 선반에서 제거</translation>
    </message>
    <message>
        <source>Print a NUL character at the end of each, no new line</source>
        <translation>줄바꿈 대신 각각의 끝에 NUL 문자 출력</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>기본 설정 열기</translation>
    </message>
    <message>
        <source>End Corvane</source>
        <translation>Corvane 끝내기</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>이 도움말 출력</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>버전 출력</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>사용법:</translation>
    </message>
    <message>
        <source>Puts files and links on the shelf, and with - a text from standard input.
Without arguments it starts Corvane, or shows or hides the shelf of the one
that runs.</source>
        <translation>파일과 링크를, -를 쓰면 표준 입력의 텍스트를 선반에 놓습니다.
인수가 없으면 Corvane을 시작하거나, 실행 중인 것의 선반을 보이거나
숨깁니다.</translation>
    </message>
</context>
<context>
    <name>CommandProblem</name>
    <message>
        <source>there is no option %1</source>
        <translation>%1 옵션이 없습니다</translation>
    </message>
    <message>
        <source>no option of Corvane takes a value</source>
        <translation>Corvane의 옵션은 값을 받지 않습니다</translation>
    </message>
    <message>
        <source>%1 and %2 cannot go together</source>
        <translation>%1과(와) %2은(는) 함께 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>--null goes with --list and --take</source>
        <translation>--null은 --list 또는 --take와 함께 씁니다</translation>
    </message>
    <message>
        <source>files and links go with no option</source>
        <translation>파일과 링크는 옵션과 함께 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>standard input can be put on the shelf once</source>
        <translation>표준 입력은 한 번만 선반에 놓을 수 있습니다</translation>
    </message>
    <message>
        <source>this is no address: %1</source>
        <translation>주소가 아닙니다: %1</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>%1 파일이 없습니다</translation>
    </message>
    <message>
        <source>standard input cannot be read, or is larger than 256 MiB</source>
        <translation>표준 입력을 읽을 수 없거나 256&#xa0;MiB보다 큽니다</translation>
    </message>
    <message>
        <source>standard input is no text in UTF-8</source>
        <translation>표준 입력이 UTF-8 텍스트가 아닙니다</translation>
    </message>
    <message>
        <source>there is no text on standard input</source>
        <translation>표준 입력에 텍스트가 없습니다</translation>
    </message>
    <message>
        <source>the shelf does not take %1 of what was given</source>
        <translation>주어진 것 중 %1개를 선반이 받지 않습니다</translation>
    </message>
    <message>
        <source>standard output cannot be written to: %1</source>
        <translation>표준 출력에 쓸 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Corvane is running, but does not answer</source>
        <translation>Corvane이 실행 중이지만 응답하지 않습니다</translation>
    </message>
    <message>
        <source>the Corvane that runs says: %1</source>
        <translation>실행 중인 Corvane의 메시지: %1</translation>
    </message>
    <message>
        <source>the Corvane that runs does not do this; it may be an older version</source>
        <translation>실행 중인 Corvane은 이 작업을 하지 않습니다. 이전 버전일 수 있습니다</translation>
    </message>
    <message>
        <source>the display cannot be used: %1</source>
        <translation>디스플레이를 사용할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>%1; see corvane --help</source>
        <translation>%1. corvane --help를 보십시오</translation>
    </message>
    <message>
        <source>the Corvane that runs is not ready yet; try again in a moment</source>
        <translation>실행 중인 Corvane이 아직 준비되지 않았습니다. 잠시 후 다시 시도하십시오</translation>
    </message>
    <message>
        <source>the Corvane that runs has too much to do; try again in a moment</source>
        <translation>실행 중인 Corvane에 처리할 작업이 너무 많습니다. 잠시 후 다시 시도하십시오</translation>
    </message>
    <message>
        <source>what was printed is still on the shelf</source>
        <translation>출력한 것이 아직 선반에 있습니다</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>메모리가 부족합니다</translation>
    </message>
    <message>
        <source>the answer of the Corvane that runs cannot be read</source>
        <translation>실행 중인 Corvane의 응답을 읽을 수 없습니다</translation>
    </message>
</context>
<context>
    <name>ItemTexts</name>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Converting to PNG…</source>
        <translation>PNG로 변환하는 중…</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>그림</translation>
    </message>
    <message>
        <source>1 character</source>
        <translation>1글자</translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>%Ln글자</numerusform>
        </translation>
    </message>
    <message>
        <source>Counting characters…</source>
        <translation>글자 수를 세는 중…</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Path copied</source>
        <translation>경로를 복사했습니다</translation>
    </message>
    <message>
        <source>Image copied</source>
        <translation>그림을 복사했습니다</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>텍스트를 복사했습니다</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>링크를 복사했습니다</translation>
    </message>
    <message>
        <source>Data URI copied</source>
        <translation>데이터 URI를 복사했습니다</translation>
    </message>
    <message numerus="yes">
        <source>%n items copied</source>
        <translation>
            <numerusform>항목 %Ln개를 복사했습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept on the shelf</source>
        <translation>선반에 남겼습니다</translation>
    </message>
    <message>
        <source>It was not taken</source>
        <translation>받아들여지지 않았습니다</translation>
    </message>
    <message>
        <source>%1 of %2 were not taken</source>
        <translation>%2개 중 %1개가 받아들여지지 않았습니다</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>파일이 더 이상 없습니다</translation>
    </message>
</context>
<context>
    <name>PreferencesTab</name>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
</context>
<context>
    <name>PreviewFile</name>
    <message numerus="yes">
        <source>More than %n items</source>
        <translation>
            <numerusform>항목 %Ln개 초과</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>항목 1개</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>항목 %Ln개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>This item is no longer there.</source>
        <translation>이 항목은 더 이상 없습니다.</translation>
    </message>
    <message>
        <source>Modified %1</source>
        <translation>수정한 날짜: %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>쪽</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>그림</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1쪽</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%Ln쪽</numerusform>
        </translation>
    </message>
    <message>
        <source>only the beginning is shown</source>
        <translation>앞부분만 표시</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 열기</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>불러오는 중…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>세부 정보</translation>
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
        <translation>스페이스</translation>
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
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>위</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>아래</translation>
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
        <translation>이 Wayland 세션에는 Qt의 Wayland 플러그인이 필요하지만 설치되어 있지 않습니다(qt6-wayland 패키지)</translation>
    </message>
    <message>
        <source>this Wayland session lets no program hang a shelf from its screen&apos;s edge, and there is no X11 display either (DISPLAY is not set)</source>
        <translation>이 Wayland 세션은 프로그램이 화면 가장자리에 선반을 걸도록 허용하지 않으며 X11 디스플레이도 없습니다(DISPLAY가 설정되지 않음)</translation>
    </message>
    <message>
        <source>there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either (DISPLAY is not set)</source>
        <translation>WAYLAND_DISPLAY가 가리키는 곳에 Wayland 세션이 없으며 X11 디스플레이도 없습니다(DISPLAY가 설정되지 않음)</translation>
    </message>
    <message>
        <source>there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)</source>
        <translation>선반을 걸 디스플레이가 없습니다(WAYLAND_DISPLAY와 DISPLAY가 모두 설정되지 않음)</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session&apos;s X11 display, where some drags may not reach it</source>
        <translation>이 Wayland 세션에 WAYLAND_DISPLAY가 설정되지 않아 선반이 세션의 X11 디스플레이를 사용하며, 여기서는 일부 드래그가 선반에 닿지 않을 수 있습니다</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session&apos;s X11 display, where some drags may not reach it</source>
        <translation>WAYLAND_DISPLAY가 가리키는 곳에서 응답하는 컴포지터가 없어 선반이 이 세션의 X11 디스플레이를 사용하며, 여기서는 일부 드래그가 선반에 닿지 않을 수 있습니다</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>your display server lacks XInput 2 or XFixes</source>
        <translation>디스플레이 서버에 XInput 2 또는 XFixes가 없기</translation>
    </message>
    <message>
        <source>your desktop keeps that to itself</source>
        <translation>데스크톱이 그것을 알려 주지 않기</translation>
    </message>
    <message>
        <source>%1, because %2. %3</source>
        <translation>%2 때문에 %1. %3</translation>
    </message>
    <message>
        <source>Drags are noticed only at the top of the screen</source>
        <translation>드래그는 화면 맨 위에서만 감지됩니다</translation>
    </message>
    <message>
        <source>Drag to the middle of the top edge, and the shelf opens.</source>
        <translation>위쪽 가장자리 가운데로 드래그하면 선반이 열립니다.</translation>
    </message>
    <message>
        <source>The shelf does not open when a drag begins</source>
        <translation>드래그를 시작해도 선반이 열리지 않습니다</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu before you drag.</source>
        <translation>드래그하기 전에 단축키나 메뉴로 여십시오.</translation>
    </message>
    <message>
        <source>A hidden shelf does not come to the pointer at the top edge</source>
        <translation>포인터를 위쪽 가장자리로 옮겨도 숨은 선반이 나타나지 않습니다</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu.</source>
        <translation>단축키나 메뉴로 여십시오.</translation>
    </message>
    <message>
        <source>A click in another program does not close the bar with all items</source>
        <translation>다른 프로그램을 클릭해도 모든 항목 막대가 닫히지 않습니다</translation>
    </message>
    <message>
        <source>Press Escape to close it.</source>
        <translation>닫으려면 Esc 키를 누르십시오.</translation>
    </message>
    <message>
        <source>Shortcuts cannot be recorded here</source>
        <translation>여기에서는 단축키를 기록할 수 없습니다</translation>
    </message>
    <message>
        <source>Choose them in your desktop&apos;s settings.</source>
        <translation>데스크톱 설정에서 고르십시오.</translation>
    </message>
    <message>
        <source>Shift is not noticed once a drag has begun</source>
        <translation>드래그를 시작한 뒤에는 Shift를 감지하지 못합니다</translation>
    </message>
    <message>
        <source>Hold it before you begin to drag, and the item stays.</source>
        <translation>드래그를 시작하기 전에 누르고 있으면 항목이 남습니다.</translation>
    </message>
</context>
<context>
    <name>ShelfView</name>
    <message>
        <source>Release to hold</source>
        <translation>놓으면 보관</translation>
    </message>
    <message>
        <source>Drop to hold</source>
        <translation>여기에 놓아 보관</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Clear Shelf (1 item)</source>
        <translation>선반 비우기(항목 1개)</translation>
    </message>
    <message numerus="yes">
        <source>Clear Shelf (%n items)</source>
        <translation>
            <numerusform>선반 비우기(항목 %Ln개)</numerusform>
        </translation>
    </message>
    <message>
        <source>Corvane</source>
        <translation>Corvane</translation>
    </message>
    <message>
        <source>Corvane — 1 item</source>
        <translation>Corvane — 항목 1개</translation>
    </message>
    <message numerus="yes">
        <source>Corvane — %n items</source>
        <translation>
            <numerusform>Corvane — 항목 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Shelf</source>
        <translation>선반 보기</translation>
    </message>
    <message>
        <source>View All Items…</source>
        <translation>모든 항목 보기…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>기본 설정…</translation>
    </message>
    <message>
        <source>How It Works…</source>
        <translation>사용 방법…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>업데이트 확인…</translation>
    </message>
    <message>
        <source>Quit Corvane</source>
        <translation>Corvane 끝내기</translation>
    </message>
</context>
<context>
    <name>UnansweredStart</name>
    <message>
        <source>Corvane is running already, but does not answer.</source>
        <translation>Corvane이 이미 실행 중이지만 응답하지 않습니다.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end the process %1 and start Corvane anew.</source>
        <translation>잠시 후 다시 시도하거나, 프로세스 %1을(를) 끝내고 Corvane을 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Try again in a moment, or end it and start Corvane anew.</source>
        <translation>잠시 후 다시 시도하거나, 끝내고 Corvane을 다시 시작하십시오.</translation>
    </message>
</context>
<context>
    <name>UpdateTexts</name>
    <message>
        <source>What came from the place where new versions are announced could not be read.</source>
        <translation>새 버전을 알리는 곳에서 온 내용을 읽을 수 없었습니다.</translation>
    </message>
    <message>
        <source>A newer version was announced before than is now. Somebody may be keeping news from you, so nothing was taken.</source>
        <translation>이전에 지금보다 더 새로운 버전이 발표되었습니다. 누군가 소식을 막고 있을 수 있어 아무것도 받지 않았습니다.</translation>
    </message>
    <message>
        <source>What is announced is a release that this build cannot verify, or none at all. Nothing was taken.</source>
        <translation>이 빌드가 검증할 수 없는 릴리스가 발표되었거나, 발표된 것이 없습니다. 아무것도 받지 않았습니다.</translation>
    </message>
    <message>
        <source>What is announced has not been renewed since %1. Somebody may be keeping news from you, or your clock is wrong.</source>
        <translation>발표 내용이 %1부터 갱신되지 않았습니다. 누군가 소식을 막고 있거나 시계가 잘못되었을 수 있습니다.</translation>
    </message>
    <message>
        <source>What Corvane remembered of earlier updates was damaged. It was set aside and begins anew with the next check.</source>
        <translation>Corvane이 기억하던 이전 업데이트 기록이 손상되었습니다. 따로 치워 두고 다음 확인부터 새로 시작합니다.</translation>
    </message>
    <message>
        <source>The place where new versions are announced could not be reached over a safe connection. Try again later.</source>
        <translation>새 버전을 알리는 곳에 안전한 연결로 접속할 수 없었습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The new version could not be downloaded. Try again later.</source>
        <translation>새 버전을 내려받을 수 없었습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The downloaded file has another length than was announced. It was thrown away.</source>
        <translation>내려받은 파일의 길이가 발표된 것과 다릅니다. 파일을 버렸습니다.</translation>
    </message>
    <message>
        <source>The downloaded file was not signed by the makers of Corvane. It was thrown away.</source>
        <translation>내려받은 파일은 Corvane을 만든 사람들이 서명한 것이 아닙니다. 파일을 버렸습니다.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk.</source>
        <translation>디스크 공간이 부족합니다.</translation>
    </message>
    <message>
        <source>The new version could not be written to the disk.</source>
        <translation>새 버전을 디스크에 쓸 수 없었습니다.</translation>
    </message>
    <message>
        <source>Asked directly, without a proxy.</source>
        <translation>프록시 없이 직접 요청했습니다.</translation>
    </message>
    <message>
        <source>Asked through the proxy %1.</source>
        <translation>프록시 %1을(를) 통해 요청했습니다.</translation>
    </message>
    <message>
        <source>Nothing was asked: a script chooses your proxy, and Corvane runs none.</source>
        <translation>요청하지 않았습니다. 스크립트가 프록시를 고르는데, Corvane은 스크립트를 실행하지 않습니다.</translation>
    </message>
    <message>
        <source>Nothing was asked: your proxy is of a kind that Corvane cannot use.</source>
        <translation>요청하지 않았습니다. Corvane이 쓸 수 없는 종류의 프록시입니다.</translation>
    </message>
    <message>
        <source>Corvane&apos;s record of updates was damaged</source>
        <translation>Corvane의 업데이트 기록이 손상되었습니다</translation>
    </message>
    <message>
        <source>Corvane could not check for updates</source>
        <translation>Corvane이 업데이트를 확인할 수 없었습니다</translation>
    </message>
    <message>
        <source>Corvane was not updated</source>
        <translation>Corvane이 업데이트되지 않았습니다</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>업데이트를 찾는 중…</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>Corvane이 최신 상태입니다</translation>
    </message>
    <message>
        <source>You have version %1, the newest.</source>
        <translation>사용 중인 버전 %1이(가) 최신입니다.</translation>
    </message>
    <message>
        <source>Corvane %1 is available</source>
        <translation>Corvane %1을(를) 쓸 수 있습니다</translation>
    </message>
    <message>
        <source>You have %1. The download has %2.</source>
        <translation>사용 중인 버전은 %1입니다. 내려받을 크기는 %2입니다.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>설치</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>내려받기</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>나중에</translation>
    </message>
    <message>
        <source>Downloading Corvane %1…</source>
        <translation>Corvane %1을(를) 내려받는 중…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Checking and installing…</source>
        <translation>확인하고 설치하는 중…</translation>
    </message>
    <message>
        <source>Corvane %1 is installed</source>
        <translation>Corvane %1을(를) 설치했습니다</translation>
    </message>
    <message>
        <source>It is used from the next time that Corvane is started. The one before is kept beside it until then.</source>
        <translation>다음에 Corvane을 시작할 때부터 쓰입니다. 그때까지 이전 버전은 옆에 보관됩니다.</translation>
    </message>
    <message>
        <source>Corvane %1 is downloaded</source>
        <translation>Corvane %1을(를) 내려받았습니다</translation>
    </message>
    <message>
        <source>It was signed by the makers of Corvane and is in your downloads folder as %1.</source>
        <translation>Corvane을 만든 사람들이 서명했으며, 다운로드 폴더에 %1(이)라는 이름으로 있습니다.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>보기</translation>
    </message>
    <message>
        <source>Updates Go Back in Time…</source>
        <translation>업데이트가 과거로 돌아감…</translation>
    </message>
    <message>
        <source>Updates Cannot Be Verified…</source>
        <translation>업데이트를 검증할 수 없음…</translation>
    </message>
    <message>
        <source>Updates Have Not Been Renewed…</source>
        <translation>업데이트가 갱신되지 않음…</translation>
    </message>
    <message>
        <source>Record of Updates Was Damaged…</source>
        <translation>업데이트 기록이 손상됨…</translation>
    </message>
    <message>
        <source>Updates Cannot Use Your Proxy…</source>
        <translation>업데이트가 프록시를 쓸 수 없음…</translation>
    </message>
</context>
<context>
    <name>ViewAllView</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%2개 중 %1개 선택</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Drag anything onto the notch</source>
        <translation>무엇이든 화면 맨 위로 드래그하십시오</translation>
    </message>
    <message>
        <source>Drag it back out when you arrive</source>
        <translation>도착하면 다시 꺼내십시오</translation>
    </message>
    <message>
        <source>Hold ⇧ to keep it on the shelf</source>
        <translation>Shift를 누르고 있으면 선반에 남습니다</translation>
    </message>
    <message>
        <source>Start dragging a file, image or link and a shelf slides down from the notch. Drop it there. It stays put while you switch apps, Spaces, or displays.</source>
        <translation>파일, 그림, 링크를 드래그하기 시작하면 화면 맨 위에서 선반이 내려옵니다. 거기에 놓으십시오. 앱, 작업 공간, 디스플레이를 바꾸어도 그대로 있습니다.</translation>
    </message>
    <message>
        <source>Move the pointer to the notch and the shelf reappears. Drag the item into whatever you are working in. Press Space to preview it, or ⌘C to copy its path.</source>
        <translation>포인터를 화면 맨 위로 옮기면 선반이 다시 나타납니다. 항목을 작업하던 곳으로 드래그하십시오. 스페이스 키로 미리 보고, Ctrl+C로 경로를 복사합니다.</translation>
    </message>
    <message>
        <source>Normally an item leaves the shelf when you drop it. Hold Shift as you release and it stays, so you can drop the same thing into several places without collecting it again.</source>
        <translation>보통 항목을 놓으면 선반에서 사라집니다. Shift를 누른 채 드래그하면 남으므로, 다시 모으지 않고도 같은 것을 여러 곳에 놓을 수 있습니다.</translation>
    </message>
    <message>
        <source>By keyboard: press the shelf&apos;s shortcut, then %1 to paste onto it and %2 to go through it.</source>
        <translation>키보드로는 선반의 단축키를 누른 다음 %1(으)로 붙여 넣고 %2(으)로 이동합니다.</translation>
    </message>
    <message>
        <source>By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.</source>
        <translation>키보드로는 %1을(를) 누른 다음 %2(으)로 선반에 붙여 넣고 %3(으)로 이동합니다.</translation>
    </message>
</context>
<context>
    <name>corvane::AboutPane</name>
    <message>
        <source>Version %1 (%2)</source>
        <translation>버전 %1(%2)</translation>
    </message>
    <message>
        <source>One slot. Drag in, switch context, drag out. The shelf clears itself and gets out of the way.</source>
        <translation>여러 개를 놓을 수 있습니다. 끌어 넣고, 옮겨 가서, 끌어내십시오. 선반은 스스로 비워지고 방해하지 않습니다.</translation>
    </message>
    <message>
        <source>Runs on your Mac. Nothing you drop is uploaded to us, logged, or sent anywhere. Link previews are the one exception: they ask the linked site for its own page. Turn them off in General.</source>
        <translation>내 컴퓨터에서 실행됩니다. 놓은 것은 무엇이든 저희에게 업로드되거나, 기록되거나, 다른 곳으로 전송되지 않습니다. Corvane은 링크된 사이트에 그 페이지를 요청하는 링크 미리 보기와, 있는 경우 업데이트 확인에만 네트워크를 씁니다. 둘 다 ‘일반’에서 끌 수 있습니다.</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>웹사이트</translation>
    </message>
    <message>
        <source>Opens the product&apos;s page in the web browser</source>
        <translation>웹 브라우저에서 제품 페이지를 엽니다</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>지원팀에 이메일 보내기</translation>
    </message>
    <message>
        <source>Opens a new message in the mail program</source>
        <translation>메일 프로그램에서 새 메시지를 엽니다</translation>
    </message>
</context>
<context>
    <name>corvane::ClearButton</name>
    <message>
        <source>Clear the shortcut</source>
        <translation>단축키 지우기</translation>
    </message>
</context>
<context>
    <name>corvane::GeneralPane</name>
    <message>
        <source>Your settings folder cannot be written to. Changes work until Corvane quits, and are not kept.</source>
        <translation>설정 폴더에 쓸 수 없습니다. 변경 사항은 Corvane을 끝낼 때까지 적용되며 보관되지 않습니다.</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>선반</translation>
    </message>
    <message>
        <source>Items in view</source>
        <translation>보이는 항목 수</translation>
    </message>
    <message>
        <source>One at a time. Use the arrows to page through the rest.</source>
        <translation>한 번에 하나. 나머지는 화살표로 넘깁니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n thumbnails at once, with arrows for the rest.</source>
        <translation>
            <numerusform>한 번에 미리 보기 그림 %Ln개, 나머지는 화살표로 넘깁니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>동작</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>로그인할 때 시작</translation>
    </message>
    <message>
        <source>Corvane runs in the menu bar with no Dock icon.</source>
        <translation>Corvane은 백그라운드에서 실행되며 패널에 아이콘이 있습니다.</translation>
    </message>
    <message>
        <source>Open the shelf when a drag begins</source>
        <translation>드래그를 시작하면 선반 열기</translation>
    </message>
    <message>
        <source>Turn off to summon it only with the shortcut.</source>
        <translation>끄면 단축키 등으로 직접 엽니다.</translation>
    </message>
    <message>
        <source>Show previews for dropped links</source>
        <translation>놓은 링크의 미리 보기 표시</translation>
    </message>
    <message>
        <source>Asks the linked site for its title and image. It is the only time Corvane uses the network on your behalf, and the site learns you have the link.</source>
        <translation>링크된 사이트에 제목과 그림을 요청하므로, 사이트는 사용자에게 이 링크가 있음을 알게 됩니다. 업데이트 확인이 있는 경우를 빼면 Corvane이 네트워크를 쓰는 것은 이때뿐입니다.</translation>
    </message>
    <message>
        <source>Keep items when Corvane ends</source>
        <translation>Corvane을 끝낼 때 항목 보관</translation>
    </message>
    <message>
        <source>They are back at the next start. Until then, pictures and texts are stored in your home folder.</source>
        <translation>다음에 시작하면 다시 나타납니다. 그때까지 그림과 텍스트는 홈 폴더에 저장됩니다.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>단축키</translation>
    </message>
    <message>
        <source>Show or hide the shelf</source>
        <translation>선반 보기 또는 숨기기</translation>
    </message>
    <message>
        <source>Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.</source>
        <translation>Super, Alt 또는 Ctrl이 필요합니다. 지워도 패널의 아이콘으로 열 수 있습니다.</translation>
    </message>
    <message>
        <source>Show or hide all items</source>
        <translation>모든 항목 보기 또는 숨기기</translation>
    </message>
    <message>
        <source>Unset by default. ↓ on the shelf does the same thing.</source>
        <translation>처음에는 지정되어 있지 않습니다. 선반에서 아래 키를 눌러도 같습니다.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>지금 확인</translation>
    </message>
    <message>
        <source>Looks for a new version at once</source>
        <translation>새 버전을 바로 찾습니다</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>자동으로 업데이트 확인</translation>
    </message>
    <message>
        <source>Your system&apos;s software manager keeps Corvane up to date.</source>
        <translation>시스템의 소프트웨어 관리자가 Corvane을 최신으로 유지합니다.</translation>
    </message>
    <message>
        <source>This build does not know where to look.</source>
        <translation>이 빌드는 어디에서 찾을지 모릅니다.</translation>
    </message>
    <message>
        <source>Offer beta versions too</source>
        <translation>베타 버전도 제안</translation>
    </message>
    <message>
        <source>They come earlier, and fewer people have tried them.</source>
        <translation>더 일찍 나오고, 써 본 사람이 더 적습니다.</translation>
    </message>
</context>
<context>
    <name>corvane::PageIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>%2단계 중 %1단계</translation>
    </message>
</context>
<context>
    <name>corvane::PreferencesWindow</name>
    <message>
        <source>Pane of the preferences</source>
        <translation>기본 설정의 페이지</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRecorderView</name>
    <message>
        <source>Type a shortcut…</source>
        <translation>단축키를 누르십시오…</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>단축키 기록</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRow</name>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>That combination types a character. Record one with ⌘, ⌥ or ⌃.</source>
        <translation>그 조합은 글자를 입력합니다. Super, Alt 또는 Ctrl이 있는 조합을 기록하십시오.</translation>
    </message>
    <message>
        <source>Another app already uses that combination.</source>
        <translation>다른 앱이 이미 그 조합을 쓰고 있습니다.</translation>
    </message>
    <message>
        <source>Your desktop has not answered yet.</source>
        <translation>데스크톱이 아직 응답하지 않았습니다.</translation>
    </message>
    <message>
        <source>Bind a key to this command in your desktop&apos;s settings: %1</source>
        <translation>데스크톱 설정에서 이 명령에 키를 지정하십시오: %1</translation>
    </message>
    <message>
        <source>Add this line to your desktop&apos;s settings: %1</source>
        <translation>데스크톱 설정에 이 줄을 추가하십시오: %1</translation>
    </message>
    <message>
        <source>Your desktop has bound it to %1.</source>
        <translation>데스크톱이 %1에 지정했습니다.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateWindow</name>
    <message>
        <source>What is new</source>
        <translation>새로운 기능</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>다운로드</translation>
    </message>
</context>
<context>
    <name>corvane::WelcomeView</name>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Goes to the step before</source>
        <translation>이전 단계로 갑니다</translation>
    </message>
    <message>
        <source>Illustration: %1</source>
        <translation>그림: %1</translation>
    </message>
    <message>
        <source>Start using it</source>
        <translation>사용 시작</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Closes this guide</source>
        <translation>이 안내를 닫습니다</translation>
    </message>
    <message>
        <source>Goes to the next step</source>
        <translation>다음 단계로 갑니다</translation>
    </message>
</context>
</TS>
