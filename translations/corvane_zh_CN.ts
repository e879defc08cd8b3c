<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AccessibleBar</name>
    <message>
        <source>Press</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>Select or deselect</source>
        <translation>选择或取消选择</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>All items on the shelf</source>
        <translation>置物架上的全部项目</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>前面的项目</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>后面的项目</translation>
    </message>
    <message>
        <source>Copy the selected items</source>
        <translation>复制所选项目</translation>
    </message>
    <message>
        <source>Remove the selected items</source>
        <translation>移除所选项目</translation>
    </message>
    <message>
        <source>All items: %L1</source>
        <translation>全部项目：%L1</translation>
    </message>
</context>
<context>
    <name>AccessibleItems</name>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>第 %L1 个，共 %L2 个</translation>
    </message>
    <message>
        <source>being made ready</source>
        <translation>正在准备</translation>
    </message>
</context>
<context>
    <name>AccessibleShelf</name>
    <message>
        <source>Press</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>聚焦</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Copy and take off the shelf</source>
        <translation>复制并从置物架取走</translation>
    </message>
    <message>
        <source>Earlier items</source>
        <translation>前面的项目</translation>
    </message>
    <message>
        <source>Later items</source>
        <translation>后面的项目</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>全部项目</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>置物架</translation>
    </message>
    <message>
        <source>The shelf is empty</source>
        <translation>置物架是空的</translation>
    </message>
    <message>
        <source>Removed; 1 item is left</source>
        <translation>已移除；还剩 1 个项目</translation>
    </message>
    <message numerus="yes">
        <source>Removed; %n items are left</source>
        <translation>
            <numerusform>已移除；还剩 %Ln 个项目</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>已添加 %1</translation>
    </message>
    <message>
        <source>1 item was added</source>
        <translation>已添加 1 个项目</translation>
    </message>
    <message numerus="yes">
        <source>%n items were added</source>
        <translation>
            <numerusform>已添加 %Ln 个项目</numerusform>
        </translation>
    </message>
    <message>
        <source>Items on the shelf: %L1</source>
        <translation>置物架上的项目：%L1</translation>
    </message>
    <message>
        <source>The shelf is empty. %1 puts what is on the clipboard here.</source>
        <translation>置物架是空的。按 %1 把剪贴板的内容放到这里。</translation>
    </message>
    <message>
        <source>%1 was removed; the shelf is empty</source>
        <translation>已移除 %1；置物架是空的</translation>
    </message>
    <message>
        <source>%1 was removed; 1 item is left</source>
        <translation>已移除 %1；还剩 1 个项目</translation>
    </message>
    <message numerus="yes">
        <source>%1 was removed; %n items are left</source>
        <translation>
            <numerusform>已移除 %1；还剩 %Ln 个项目</numerusform>
        </translation>
    </message>
    <message>
        <source>The shelf is hidden</source>
        <translation>置物架已隐藏</translation>
    </message>
</context>
<context>
    <name>AutostartLoginItems</name>
    <message>
        <source>A shelf at the top of the screen for what you drag</source>
        <translation>屏幕顶部的置物架，存放您拖动的内容</translation>
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
        <translation>1 字节</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%Ln 字节</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show or hide the shelf</source>
        <translation>显示或隐藏置物架</translation>
    </message>
    <message>
        <source>Show all items in the bar</source>
        <translation>在项目栏中显示全部项目</translation>
    </message>
    <message>
        <source>Print the paths and links on the shelf, one a line</source>
        <translation>输出置物架上的路径和链接，每行一个</translation>
    </message>
    <message>
        <source>Print them, and remove them from the shelf</source>
        <translation>输出它们并从置物架移除</translation>
    </message>
    <message>
        <source>Print a NUL character at the end of each, no new line</source>
        <translation>在每项之后输出 NUL 字符，不换行</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>打开首选项</translation>
    </message>
    <message>
        <source>End Corvane</source>
        <translation>退出 Corvane</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>输出此帮助</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>输出版本</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>用法：</translation>
    </message>
    <message>
        <source>Puts files and links on the shelf, and with - a text from standard input.
Without arguments it starts Corvane, or shows or hides the shelf of the one
that runs.</source>
        <translation>将文件和链接放到置物架上，使用 - 时放入标准输入的文本。
没有参数时启动 Corvane，或者显示或隐藏正在运行的
那个置物架。</translation>
    </message>
</context>
<context>
    <name>CommandProblem</name>
    <message>
        <source>there is no option %1</source>
        <translation>没有选项 %1</translation>
    </message>
    <message>
        <source>no option of Corvane takes a value</source>
        <translation>Corvane 的选项都不带值</translation>
    </message>
    <message>
        <source>%1 and %2 cannot go together</source>
        <translation>%1 和 %2 不能一起使用</translation>
    </message>
    <message>
        <source>--null goes with --list and --take</source>
        <translation>--null 需与 --list 或 --take 一起使用</translation>
    </message>
    <message>
        <source>files and links go with no option</source>
        <translation>文件和链接不能与选项一起使用</translation>
    </message>
    <message>
        <source>standard input can be put on the shelf once</source>
        <translation>标准输入只能放到置物架上一次</translation>
    </message>
    <message>
        <source>this is no address: %1</source>
        <translation>这不是地址：%1</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>没有文件 %1</translation>
    </message>
    <message>
        <source>standard input cannot be read, or is larger than 256 MiB</source>
        <translation>标准输入无法读取，或者超过 256&#xa0;MiB</translation>
    </message>
    <message>
        <source>standard input is no text in UTF-8</source>
        <translation>标准输入不是 UTF-8 文本</translation>
    </message>
    <message>
        <source>there is no text on standard input</source>
        <translation>标准输入中没有文本</translation>
    </message>
    <message>
        <source>the shelf does not take %1 of what was given</source>
        <translation>给出的项目中有 %1 个置物架不接收</translation>
    </message>
    <message>
        <source>standard output cannot be written to: %1</source>
        <translation>无法写入标准输出：%1</translation>
    </message>
    <message>
        <source>Corvane is running, but does not answer</source>
        <translation>Corvane 正在运行，但没有响应</translation>
    </message>
    <message>
        <source>the Corvane that runs says: %1</source>
        <translation>正在运行的 Corvane 报告：%1</translation>
    </message>
    <message>
        <source>the Corvane that runs does not do this; it may be an older version</source>
        <translation>正在运行的 Corvane 不支持此操作，可能是较旧的版本</translation>
    </message>
    <message>
        <source>the display cannot be used: %1</source>
        <translation>无法使用显示器：%1</translation>
    </message>
    <message>
        <source>%1; see corvane --help</source>
        <translation>%1；请参阅 corvane --help</translation>
    </message>
    <message>
        <source>the Corvane that runs is not ready yet; try again in a moment</source>
        <translation>正在运行的 Corvane 尚未就绪，请稍后重试</translation>
    </message>
    <message>
        <source>the Corvane that runs has too much to do; try again in a moment</source>
        <translation>正在运行的 Corvane 过于繁忙，请稍后重试</translation>
    </message>
    <message>
        <source>what was printed is still on the shelf</source>
        <translation>已输出的项目仍在置物架上</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>the answer of the Corvane that runs cannot be read</source>
        <translation>无法读取正在运行的 Corvane 的应答</translation>
    </message>
</context>
<context>
    <name>ItemTexts</name>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Converting to PNG…</source>
        <translation>正在转换为 PNG…</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>1 character</source>
        <translation>1 个字符</translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>%Ln 个字符</numerusform>
        </translation>
    </message>
    <message>
        <source>Counting characters…</source>
        <translation>正在统计字符…</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Path copied</source>
        <translation>路径已复制</translation>
    </message>
    <message>
        <source>Image copied</source>
        <translation>图像已复制</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>文本已复制</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>链接已复制</translation>
    </message>
    <message>
        <source>Data URI copied</source>
        <translation>数据 URI 已复制</translation>
    </message>
    <message numerus="yes">
        <source>%n items copied</source>
        <translation>
            <numerusform>已复制 %Ln 个项目</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept on the shelf</source>
        <translation>留在置物架上</translation>
    </message>
    <message>
        <source>It was not taken</source>
        <translation>未被接收</translation>
    </message>
    <message>
        <source>%1 of %2 were not taken</source>
        <translation>%2 个中有 %1 个未被接收</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>文件已不存在</translation>
    </message>
</context>
<context>
    <name>PreferencesTab</name>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
</context>
<context>
    <name>PreviewFile</name>
    <message numerus="yes">
        <source>More than %n items</source>
        <translation>
            <numerusform>超过 %Ln 个项目</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 个项目</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%Ln 个项目</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>This item is no longer there.</source>
        <translation>此项目已不存在。</translation>
    </message>
    <message>
        <source>Modified %1</source>
        <translation>修改于 %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 页</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%Ln 页</numerusform>
        </translation>
    </message>
    <message>
        <source>only the beginning is shown</source>
        <translation>仅显示开头</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>打开 %1</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>正在加载…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
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
        <translation>回车</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>小键盘回车</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>退格</translation>
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
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下</translation>
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
        <translation>此 Wayland 会话需要 Qt 的 Wayland 插件，但未安装（软件包 qt6-wayland）</translation>
    </message>
    <message>
        <source>this Wayland session lets no program hang a shelf from its screen&apos;s edge, and there is no X11 display either (DISPLAY is not set)</source>
        <translation>此 Wayland 会话不允许程序把置物架挂在屏幕边缘，也没有 X11 显示器（未设置 DISPLAY）</translation>
    </message>
    <message>
        <source>there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either (DISPLAY is not set)</source>
        <translation>WAYLAND_DISPLAY 所指之处没有 Wayland 会话，也没有 X11 显示器（未设置 DISPLAY）</translation>
    </message>
    <message>
        <source>there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is set)</source>
        <translation>没有可以挂置物架的显示器（WAYLAND_DISPLAY 和 DISPLAY 均未设置）</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session&apos;s X11 display, where some drags may not reach it</source>
        <translation>此 Wayland 会话未设置 WAYLAND_DISPLAY，因此置物架使用该会话的 X11 显示器，某些拖放可能无法到达置物架</translation>
    </message>
    <message>
        <source>WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session&apos;s X11 display, where some drags may not reach it</source>
        <translation>WAYLAND_DISPLAY 所指之处没有合成器应答，因此置物架使用此会话的 X11 显示器，某些拖放可能无法到达置物架</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>your display server lacks XInput 2 or XFixes</source>
        <translation>您的显示服务器缺少 XInput 2 或 XFixes</translation>
    </message>
    <message>
        <source>your desktop keeps that to itself</source>
        <translation>您的桌面不提供这些信息</translation>
    </message>
    <message>
        <source>%1, because %2. %3</source>
        <translation>因为%2，%1。%3</translation>
    </message>
    <message>
        <source>Drags are noticed only at the top of the screen</source>
        <translation>只有在屏幕顶部才能检测到拖动</translation>
    </message>
    <message>
        <source>Drag to the middle of the top edge, and the shelf opens.</source>
        <translation>拖到顶部边缘的中间，置物架就会打开。</translation>
    </message>
    <message>
        <source>The shelf does not open when a drag begins</source>
        <translation>开始拖动时置物架不会打开</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu before you drag.</source>
        <translation>请在拖动之前用快捷键或从菜单打开它。</translation>
    </message>
    <message>
        <source>A hidden shelf does not come to the pointer at the top edge</source>
        <translation>指针移到顶部边缘时，隐藏的置物架不会出现</translation>
    </message>
    <message>
        <source>Open it with its shortcut or from the menu.</source>
        <translation>请用快捷键或从菜单打开它。</translation>
    </message>
    <message>
        <source>A click in another program does not close the bar with all items</source>
        <translation>在其他程序中点击不会关闭全部项目栏</translation>
    </message>
    <message>
        <source>Press Escape to close it.</source>
        <translation>按 Esc 关闭它。</translation>
    </message>
    <message>
        <source>Shortcuts cannot be recorded here</source>
        <translation>无法在这里录制快捷键</translation>
    </message>
    <message>
        <source>Choose them in your desktop&apos;s settings.</source>
        <translation>请在桌面的设置中选择。</translation>
    </message>
    <message>
        <source>Shift is not noticed once a drag has begun</source>
        <translation>拖动开始之后无法检测到 Shift</translation>
    </message>
    <message>
        <source>Hold it before you begin to drag, and the item stays.</source>
        <translation>请在开始拖动之前按住它，项目就会留下。</translation>
    </message>
</context>
<context>
    <name>ShelfView</name>
    <message>
        <source>Release to hold</source>
        <translation>松开即可存放</translation>
    </message>
    <message>
        <source>Drop to hold</source>
        <translation>拖到此处存放</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Clear Shelf (1 item)</source>
        <translation>清空置物架（1 个项目）</translation>
    </message>
    <message numerus="yes">
        <source>Clear Shelf (%n items)</source>
        <translation>
            <numerusform>清空置物架（%Ln 个项目）</numerusform>
        </translation>
    </message>
    <message>
        <source>Corvane</source>
        <translation>Corvane</translation>
    </message>
    <message>
        <source>Corvane — 1 item</source>
        <translation>Corvane — 1 个项目</translation>
    </message>
    <message numerus="yes">
        <source>Corvane — %n items</source>
        <translation>
            <numerusform>Corvane — %Ln 个项目</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Shelf</source>
        <translation>显示置物架</translation>
    </message>
    <message>
        <source>View All Items…</source>
        <translation>查看全部项目…</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>首选项…</translation>
    </message>
    <message>
        <source>How It Works…</source>
        <translation>使用方法…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Quit Corvane</source>
        <translation>退出 Corvane</translation>
    </message>
</context>
<context>
    <name>UnansweredStart</name>
    <message>
        <source>Corvane is running already, but does not answer.</source>
        <translation>Corvane 已在运行，但没有响应。</translation>
    </message>
    <message>
        <source>Try again in a moment, or end the process %1 and start Corvane anew.</source>
        <translation>请稍后重试，或结束进程 %1 并重新启动 Corvane。</translation>
    </message>
    <message>
        <source>Try again in a moment, or end it and start Corvane anew.</source>
        <translation>请稍后重试，或将其结束并重新启动 Corvane。</translation>
    </message>
</context>
<context>
    <name>UpdateTexts</name>
    <message>
        <source>What came from the place where new versions are announced could not be read.</source>
        <translation>无法读取来自新版本发布处的内容。</translation>
    </message>
    <message>
        <source>A newer version was announced before than is now. Somebody may be keeping news from you, so nothing was taken.</source>
        <translation>以前宣布过比现在更新的版本。可能有人在向您隐瞒消息，因此没有采用任何内容。</translation>
    </message>
    <message>
        <source>What is announced is a release that this build cannot verify, or none at all. Nothing was taken.</source>
        <translation>宣布的是此程序无法验证的版本，或者没有版本。没有采用任何内容。</translation>
    </message>
    <message>
        <source>What is announced has not been renewed since %1. Somebody may be keeping news from you, or your clock is wrong.</source>
        <translation>宣布的内容自 %1 起没有更新。可能有人在向您隐瞒消息，或者您的时钟不准。</translation>
    </message>
    <message>
        <source>What Corvane remembered of earlier updates was damaged. It was set aside and begins anew with the next check.</source>
        <translation>Corvane 对以往更新的记录已损坏。记录已移到一旁，将在下次检查时重新开始。</translation>
    </message>
    <message>
        <source>The place where new versions are announced could not be reached over a safe connection. Try again later.</source>
        <translation>无法通过安全连接访问新版本发布处。请稍后重试。</translation>
    </message>
    <message>
        <source>The new version could not be downloaded. Try again later.</source>
        <translation>无法下载新版本。请稍后重试。</translation>
    </message>
    <message>
        <source>The downloaded file has another length than was announced. It was thrown away.</source>
        <translation>下载的文件长度与宣布的不同，已将其丢弃。</translation>
    </message>
    <message>
        <source>The downloaded file was not signed by the makers of Corvane. It was thrown away.</source>
        <translation>下载的文件不是由 Corvane 的开发者签名的，已将其丢弃。</translation>
    </message>
    <message>
        <source>There is not enough room on the disk.</source>
        <translation>磁盘空间不足。</translation>
    </message>
    <message>
        <source>The new version could not be written to the disk.</source>
        <translation>无法将新版本写入磁盘。</translation>
    </message>
    <message>
        <source>Asked directly, without a proxy.</source>
        <translation>未使用代理，直接查询。</translation>
    </message>
    <message>
        <source>Asked through the proxy %1.</source>
        <translation>通过代理 %1 查询。</translation>
    </message>
    <message>
        <source>Nothing was asked: a script chooses your proxy, and Corvane runs none.</source>
        <translation>没有查询：您的代理由脚本选择，而 Corvane 不运行脚本。</translation>
    </message>
    <message>
        <source>Nothing was asked: your proxy is of a kind that Corvane cannot use.</source>
        <translation>没有查询：Corvane 无法使用您这种代理。</translation>
    </message>
    <message>
        <source>Corvane&apos;s record of updates was damaged</source>
        <translation>Corvane 的更新记录已损坏</translation>
    </message>
    <message>
        <source>Corvane could not check for updates</source>
        <translation>Corvane 无法检查更新</translation>
    </message>
    <message>
        <source>Corvane was not updated</source>
        <translation>Corvane 未更新</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Looking for updates…</source>
        <translation>正在查找更新…</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>Corvane 已是最新版本</translation>
    </message>
    <message>
        <source>You have version %1, the newest.</source>
        <translation>您使用的版本 %1 是最新的。</translation>
    </message>
    <message>
        <source>Corvane %1 is available</source>
        <translation>Corvane %1 可用</translation>
    </message>
    <message>
        <source>You have %1. The download has %2.</source>
        <translation>您使用的是 %1。下载大小为 %2。</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安装</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍后</translation>
    </message>
    <message>
        <source>Downloading Corvane %1…</source>
        <translation>正在下载 Corvane %1…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Checking and installing…</source>
        <translation>正在检查并安装…</translation>
    </message>
    <message>
        <source>Corvane %1 is installed</source>
        <translation>Corvane %1 已安装</translation>
    </message>
    <message>
        <source>It is used from the next time that Corvane is started. The one before is kept beside it until then.</source>
        <translation>下次启动 Corvane 时开始使用。在此之前，旧版本保留在旁边。</translation>
    </message>
    <message>
        <source>Corvane %1 is downloaded</source>
        <translation>Corvane %1 已下载</translation>
    </message>
    <message>
        <source>It was signed by the makers of Corvane and is in your downloads folder as %1.</source>
        <translation>它由 Corvane 的开发者签名，以 %1 的名称保存在您的下载文件夹中。</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Updates Go Back in Time…</source>
        <translation>更新倒退了…</translation>
    </message>
    <message>
        <source>Updates Cannot Be Verified…</source>
        <translation>更新无法验证…</translation>
    </message>
    <message>
        <source>Updates Have Not Been Renewed…</source>
        <translation>更新信息未续期…</translation>
    </message>
    <message>
        <source>Record of Updates Was Damaged…</source>
        <translation>更新记录已损坏…</translation>
    </message>
    <message>
        <source>Updates Cannot Use Your Proxy…</source>
        <translation>更新无法使用您的代理…</translation>
    </message>
</context>
<context>
    <name>ViewAllView</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>已选择 %1 个，共 %2 个</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Drag anything onto the notch</source>
        <translation>将任何东西拖到屏幕顶部</translation>
    </message>
    <message>
        <source>Drag it back out when you arrive</source>
        <translation>到达后再拖出来</translation>
    </message>
    <message>
        <source>Hold ⇧ to keep it on the shelf</source>
        <translation>按住 Shift 让它留在置物架上</translation>
    </message>
    <message>
        <source>Start dragging a file, image or link and a shelf slides down from the notch. Drop it there. It stays put while you switch apps, Spaces, or displays.</source>
        <translation>开始拖动文件、图像或链接，置物架就会从屏幕顶部滑下。放在那里即可。切换应用、工作区或显示器时，它都原地不动。</translation>
    </message>
    <message>
        <source>Move the pointer to the notch and the shelf reappears. Drag the item into whatever you are working in. Press Space to preview it, or ⌘C to copy its path.</source>
        <translation>将指针移到屏幕顶部，置物架会再次出现。把项目拖到您正在工作的地方。按空格键预览，按 Ctrl+C 复制其路径。</translation>
    </message>
    <message>
        <source>Normally an item leaves the shelf when you drop it. Hold Shift as you release and it stays, so you can drop the same thing into several places without collecting it again.</source>
        <translation>通常项目在放下后会离开置物架。拖动时按住 Shift，它就会留下，这样无需再次收集就能把同一项目放到多个地方。</translation>
    </message>
    <message>
        <source>By keyboard: press the shelf&apos;s shortcut, then %1 to paste onto it and %2 to go through it.</source>
        <translation>用键盘：按置物架的快捷键，再按 %1 粘贴，按 %2 逐项移动。</translation>
    </message>
    <message>
        <source>By keyboard: press %1, then %2 to paste onto the shelf and %3 to go through it.</source>
        <translation>用键盘：按 %1，再按 %2 粘贴到置物架，按 %3 逐项移动。</translation>
    </message>
</context>
<context>
    <name>corvane::AboutPane</name>
    <message>
        <source>Version %1 (%2)</source>
        <translation>版本 %1 (%2)</translation>
    </message>
    <message>
        <source>One slot. Drag in, switch context, drag out. The shelf clears itself and gets out of the way.</source>
        <translation>可放置多个项目。拖进来，换个地方，拖出去。置物架会自行清空，不碍事。</translation>
    </message>
    <message>
        <source>Runs on your Mac. Nothing you drop is uploaded to us, logged, or sent anywhere. Link previews are the one exception: they ask the linked site for its own page. Turn them off in General.</source>
        <translation>在您的计算机上运行。您放下的任何东西都不会上传给我们、被记录或发送到任何地方。Corvane 只在链接预览（向链接的网站请求其页面）以及检查更新（如果有）时使用网络。两者都可以在“常规”中关闭。</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>网站</translation>
    </message>
    <message>
        <source>Opens the product&apos;s page in the web browser</source>
        <translation>在网页浏览器中打开产品页面</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>联系支持</translation>
    </message>
    <message>
        <source>Opens a new message in the mail program</source>
        <translation>在邮件程序中打开新邮件</translation>
    </message>
</context>
<context>
    <name>corvane::ClearButton</name>
    <message>
        <source>Clear the shortcut</source>
        <translation>清除快捷键</translation>
    </message>
</context>
<context>
    <name>corvane::GeneralPane</name>
    <message>
        <source>Your settings folder cannot be written to. Changes work until Corvane quits, and are not kept.</source>
        <translation>无法写入您的设置文件夹。更改在 Corvane 退出之前有效，不会保存。</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>置物架</translation>
    </message>
    <message>
        <source>Items in view</source>
        <translation>可见项目数</translation>
    </message>
    <message>
        <source>One at a time. Use the arrows to page through the rest.</source>
        <translation>每次一个。用箭头翻看其余的。</translation>
    </message>
    <message numerus="yes">
        <source>%n thumbnails at once, with arrows for the rest.</source>
        <translation>
            <numerusform>同时显示 %Ln 个缩略图，用箭头翻看其余的。</numerusform>
        </translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>行为</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>登录时启动</translation>
    </message>
    <message>
        <source>Corvane runs in the menu bar with no Dock icon.</source>
        <translation>Corvane 在后台运行，面板中有图标。</translation>
    </message>
    <message>
        <source>Open the shelf when a drag begins</source>
        <translation>开始拖动时打开置物架</translation>
    </message>
    <message>
        <source>Turn off to summon it only with the shortcut.</source>
        <translation>关闭后由您自己打开，例如用快捷键。</translation>
    </message>
    <message>
        <source>Show previews for dropped links</source>
        <translation>显示所放链接的预览</translation>
    </message>
    <message>
        <source>Asks the linked site for its title and image. It is the only time Corvane uses the network on your behalf, and the site learns you have the link.</source>
        <translation>向链接的网站请求标题和图像，因此网站会知道您有该链接。除检查更新（如果有）外，Corvane 只在此时使用网络。</translation>
    </message>
    <message>
        <source>Keep items when Corvane ends</source>
        <translation>Corvane 退出时保留项目</translation>
    </message>
    <message>
        <source>They are back at the next start. Until then, pictures and texts are stored in your home folder.</source>
        <translation>下次启动时会恢复这些项目。在此之前，图像和文本保存在您的主文件夹中。</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Show or hide the shelf</source>
        <translation>显示或隐藏置物架</translation>
    </message>
    <message>
        <source>Needs ⌘, ⌥ or ⌃. Clear it to use the menu bar only.</source>
        <translation>需要 Super、Alt 或 Ctrl。清除后仍可使用面板中的图标。</translation>
    </message>
    <message>
        <source>Show or hide all items</source>
        <translation>显示或隐藏全部项目</translation>
    </message>
    <message>
        <source>Unset by default. ↓ on the shelf does the same thing.</source>
        <translation>默认未设置。在置物架上按“下”键效果相同。</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>立即检查</translation>
    </message>
    <message>
        <source>Looks for a new version at once</source>
        <translation>立即查找新版本</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>自动检查更新</translation>
    </message>
    <message>
        <source>Your system&apos;s software manager keeps Corvane up to date.</source>
        <translation>您系统的软件管理器会使 Corvane 保持最新。</translation>
    </message>
    <message>
        <source>This build does not know where to look.</source>
        <translation>此程序不知道到哪里查找。</translation>
    </message>
    <message>
        <source>Offer beta versions too</source>
        <translation>也提供测试版本</translation>
    </message>
    <message>
        <source>They come earlier, and fewer people have tried them.</source>
        <translation>它们来得更早，试用过的人也更少。</translation>
    </message>
</context>
<context>
    <name>corvane::PageIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>第 %1 步，共 %2 步</translation>
    </message>
</context>
<context>
    <name>corvane::PreferencesWindow</name>
    <message>
        <source>Pane of the preferences</source>
        <translation>首选项的页面</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRecorderView</name>
    <message>
        <source>Type a shortcut…</source>
        <translation>请按快捷键…</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>录制快捷键</translation>
    </message>
</context>
<context>
    <name>corvane::ShortcutRow</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>That combination types a character. Record one with ⌘, ⌥ or ⌃.</source>
        <translation>该组合会输入字符。请录制包含 Super、Alt 或 Ctrl 的组合。</translation>
    </message>
    <message>
        <source>Another app already uses that combination.</source>
        <translation>其他应用已在使用该组合。</translation>
    </message>
    <message>
        <source>Your desktop has not answered yet.</source>
        <translation>您的桌面尚未回应。</translation>
    </message>
    <message>
        <source>Bind a key to this command in your desktop&apos;s settings: %1</source>
        <translation>请在桌面的设置中为此命令指定按键：%1</translation>
    </message>
    <message>
        <source>Add this line to your desktop&apos;s settings: %1</source>
        <translation>请将此行添加到桌面的设置中：%1</translation>
    </message>
    <message>
        <source>Your desktop has bound it to %1.</source>
        <translation>您的桌面已将其设为 %1。</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateWindow</name>
    <message>
        <source>What is new</source>
        <translation>新增内容</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
</context>
<context>
    <name>corvane::WelcomeView</name>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Goes to the step before</source>
        <translation>转到上一步</translation>
    </message>
    <message>
        <source>Illustration: %1</source>
        <translation>插图：%1</translation>
    </message>
    <message>
        <source>Start using it</source>
        <translation>开始使用</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Closes this guide</source>
        <translation>关闭此指南</translation>
    </message>
    <message>
        <source>Goes to the next step</source>
        <translation>转到下一步</translation>
    </message>
</context>
</TS>
