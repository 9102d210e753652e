<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ProgramLanguage</name>
    <message>
        <source>The language of the window and of these texts, such as en or zh_CN; without it, the user&apos;s.</source>
        <translation>窗口和这些文字的语言，例如 en 或 zh_CN；省略时跟随用户的语言。</translation>
    </message>
    <message>
        <source>There is no translation to &apos;%1&apos;; --language takes one of: %2.</source>
        <translation>没有“%1”的翻译；--language 可以是：%2。</translation>
    </message>
</context>
<context>
    <name>devhost::AppearanceMenus</name>
    <message>
        <source>Follow the System</source>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>原来大小</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>主题(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Font Size</source>
        <translation>字号(&amp;F)</translation>
    </message>
</context>
<context>
    <name>devhost::ApplicationLink</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
</context>
<context>
    <name>devhost::Batch</name>
    <message>
        <source>line %1: later reply: %2</source>
        <translation>第 %1 行：稍后的回复：%2</translation>
    </message>
    <message>
        <source>longer than 1 MiB, skipped</source>
        <translation>超过 1 MiB，已跳过</translation>
    </message>
    <message>
        <source>not UTF-8, skipped</source>
        <translation>不是 UTF-8，已跳过</translation>
    </message>
    <message>
        <source>not JSON: %1 at byte %2</source>
        <translation>不是 JSON：%1，在第 %2 字节</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>不是 JSON 对象</translation>
    </message>
    <message>
        <source>the plugin cannot read this as a semantic (service() answered -100)</source>
        <translation>插件读不懂这个语义（service() 返回 -100）</translation>
    </message>
    <message>
        <source>the picture of the card could not be written to %1</source>
        <translation>卡片的图片无法写入 %1</translation>
    </message>
</context>
<context>
    <name>devhost::Conversation</name>
    <message>
        <source>Semantic JSON</source>
        <translation>语义 JSON</translation>
    </message>
    <message>
        <source>The text is too long: %1 characters.</source>
        <translation>文字太长：%1 个字符。</translation>
    </message>
    <message>
        <source>The plugin cannot read this as a semantic JSON (service() answered -100).</source>
        <translation>插件读不懂这个语义 JSON（service() 返回 -100）。</translation>
    </message>
</context>
<context>
    <name>devhost::ConversationScript</name>
    <message>
        <source># A password was entered here; it is not saved</source>
        <translation># 这里输入过密码，没有保存</translation>
    </message>
    <message>
        <source># A sentence that a script would take for a comment or a click is not saved</source>
        <translation># 这一句在脚本里会被当作注释或点击，没有保存</translation>
    </message>
</context>
<context>
    <name>devhost::ConversationView</name>
    <message>
        <source>Conversation</source>
        <translation>对话</translation>
    </message>
</context>
<context>
    <name>devhost::EndButton</name>
    <message>
        <source>Back to the latest turn</source>
        <translation>回到最新</translation>
    </message>
</context>
<context>
    <name>devhost::HostApplication</name>
    <message>
        <source>Voice Assistant</source>
        <translation>语音助手</translation>
    </message>
</context>
<context>
    <name>devhost::InputLine</name>
    <message>
        <source>Input</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>Please enter the password</source>
        <translation>请输入密码</translation>
    </message>
    <message>
        <source>Say something to the assistant…</source>
        <translation>对助手说点什么…</translation>
    </message>
</context>
<context>
    <name>devhost::Inspector</name>
    <message>
        <source>No conversation yet</source>
        <translation>还没有对话</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy everything on this page</source>
        <translation>复制这一页的全部内容</translation>
    </message>
    <message>
        <source>Semantic</source>
        <translation>语义</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>请求</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>回复</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>Find on this page</source>
        <translation>在这一页中查找</translation>
    </message>
    <message>
        <source>Show only records with these words</source>
        <translation>只显示包含这些文字的记录</translation>
    </message>
    <message>
        <source>Paste semantic JSON here; the plugin gets it as it is</source>
        <translation>在这里粘贴语义 JSON，原样发送给插件</translation>
    </message>
    <message>
        <source>Semantic JSON</source>
        <translation>语义 JSON</translation>
    </message>
    <message>
        <source>Turn %1</source>
        <translation>第 %1 轮</translation>
    </message>
</context>
<context>
    <name>devhost::KRunnerRequests</name>
    <message>
        <source>Run in the voice assistant&apos;s window</source>
        <translation>在语音助手的窗口中执行</translation>
    </message>
    <message>
        <source>Voice Assistant</source>
        <translation>语音助手</translation>
    </message>
</context>
<context>
    <name>devhost::LauncherDesk</name>
    <message>
        <source>Not carried out</source>
        <translation>没有执行</translation>
    </message>
    <message>
        <source>This entry has expired; please type it again.</source>
        <translation>这一条已经失效，请重新输入。</translation>
    </message>
    <message>
        <source>Voice Assistant</source>
        <translation>语音助手</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
</context>
<context>
    <name>devhost::LineMode</name>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
</context>
<context>
    <name>devhost::MainWindow</name>
    <message>
        <source>Send</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>Plugin Development – Voice Assistant</source>
        <translation>插件开发 – 语音助手</translation>
    </message>
    <message>
        <source>&amp;Conversation</source>
        <translation>对话(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;New Conversation</source>
        <translation>新对话(&amp;N)</translation>
    </message>
    <message>
        <source>Open &amp;Contacts</source>
        <translation>打开联系人应用(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save as Script…</source>
        <translation>保存为脚本(&amp;S)…</translation>
    </message>
    <message>
        <source>Go to the &amp;Latest Turn</source>
        <translation>到最新一轮(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Inspector</source>
        <translation>检查器(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Read Replies Aloud</source>
        <translation>朗读回复(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;What Can I Say?</source>
        <translation>可以说什么(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Development host for plugins of the voice assistant, version %1</source>
        <translation>语音助手插件的开发主机 %1</translation>
    </message>
    <message>
        <source>Save the Conversation as a Script</source>
        <translation>把对话保存为脚本</translation>
    </message>
    <message>
        <source>Cannot write %1.</source>
        <translation>无法写入 %1。</translation>
    </message>
    <message>
        <source>The contacts application does not answer, so its window cannot be opened.</source>
        <translation>联系人应用没有回答，窗口无法打开。</translation>
    </message>
    <message>
        <source>(A reply without text, code %1)</source>
        <translation>（没有文字的回复，代码 %1）</translation>
    </message>
</context>
<context>
    <name>devhost::Options</name>
    <message>
        <source>%1 See --help.</source>
        <translation>%1参见 --help。</translation>
    </message>
    <message>
        <source>There is no display to open a window on. Use --converse or --batch.</source>
        <translation>没有可以打开窗口的显示器。请使用 --converse 或 --batch。</translation>
    </message>
    <message>
        <source>Development host for plugins of the voice assistant: a window to talk to a plugin and to see what it does, or the same in a terminal.</source>
        <translation>语音助手插件的开发主机：在窗口中与插件对话并查看它的动作，或者在终端中进行。</translation>
    </message>
    <message>
        <source>With --converse: the conversation to play. Without it, or with &quot;-&quot;, sentences come from standard input.</source>
        <translation>与 --converse 一起：要播放的对话。省略或为“-”时，从标准输入读取句子。</translation>
    </message>
    <message>
        <source>One semantic JSON per line in FILE (&quot;-&quot;: standard input), one JSON reply per line on standard output.</source>
        <translation>FILE 中每行一个语义 JSON（“-”表示标准输入），每行一个 JSON 回复写到标准输出。</translation>
    </message>
    <message>
        <source>A conversation in the terminal: one sentence or semantic JSON per line.</source>
        <translation>终端中的对话：每行一个句子或者语义 JSON。</translation>
    </message>
    <message>
        <source>Play the conversation in FILE in the window; with --screenshots, picture the window after each turn and end.</source>
        <translation>在窗口中播放 FILE 里的对话；加上 --screenshots 时，每一轮之后给窗口拍照，然后结束。</translation>
    </message>
    <message>
        <source>Serve the search of the desktop&apos;s launchers, without a window until a reply needs one.</source>
        <translation>为桌面启动器的搜索提供服务，在回复需要窗口之前不打开窗口。</translation>
    </message>
    <message>
        <source>The plugin&apos;s file, or its name in the installed folder (contact-plugin unless told otherwise).</source>
        <translation>插件的文件，或者它在安装文件夹中的名字（默认为 contact-plugin）。</translation>
    </message>
    <message>
        <source>Write a PNG of every card to DIR.</source>
        <translation>把每张卡片的 PNG 写到 DIR。</translation>
    </message>
    <message>
        <source>Names that sentences may mention, one per line of FILE.</source>
        <translation>句子可能提到的名字，FILE 中每行一个。</translation>
    </message>
    <message>
        <source>light, dark or system. The window remembers its own choice.</source>
        <translation>light、dark 或 system。窗口会记住自己的选择。</translation>
    </message>
    <message>
        <source>Also write the log, the plugin&apos;s too, to standard error.</source>
        <translation>把日志（包括插件的）也写到标准错误。</translation>
    </message>
    <message>
        <source>This text.</source>
        <translation>本说明。</translation>
    </message>
    <message>
        <source>The version.</source>
        <translation>版本。</translation>
    </message>
    <message>
        <source>--batch, --converse, --script and --service exclude each other.</source>
        <translation>--batch、--converse、--script 和 --service 不能同时使用。</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>多余的参数“%1”。</translation>
    </message>
    <message>
        <source>--theme takes light, dark or system.</source>
        <translation>--theme 只接受 light、dark 或 system。</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>无法读取 %1。</translation>
    </message>
    <message>
        <source>There is no session bus.</source>
        <translation>没有会话总线。</translation>
    </message>
    <message>
        <source>Another instance already serves the launchers.</source>
        <translation>启动器已经有服务。</translation>
    </message>
    <message>
        <source>The session bus refuses the service.</source>
        <translation>会话总线拒绝了这个服务。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>无法创建文件夹 %1。</translation>
    </message>
    <message>
        <source>%1 cannot be read, or the folder for the pictures cannot be created.</source>
        <translation>无法读取 %1，或者无法创建图片的文件夹。</translation>
    </message>
</context>
<context>
    <name>devhost::PicturedCard</name>
    <message>
        <source>Of older cards only a picture is kept; to use it again, ask again.</source>
        <translation>较早的卡片只保留画面；要再次使用，请重新询问。</translation>
    </message>
</context>
<context>
    <name>devhost::PluginHost</name>
    <message>
        <source>The plugin %1 cannot be loaded: %2</source>
        <translation>插件 %1 无法加载：%2</translation>
    </message>
    <message>
        <source>Install the libraries that it names; &quot;ldd&quot; lists those that are missing.</source>
        <translation>请安装上面提到的库；用 ldd 可以列出缺少的库。</translation>
    </message>
    <message>
        <source>There is no plugin %1.</source>
        <translation>找不到插件 %1。</translation>
    </message>
    <message>
        <source>Install it there, or give its file with --plugin PATH.</source>
        <translation>请把它安装到那里，或者用 --plugin 指定文件。</translation>
    </message>
    <message>
        <source>Check the path after --plugin.</source>
        <translation>请检查 --plugin 后面的路径。</translation>
    </message>
    <message>
        <source>%1 is not a Qt plugin.</source>
        <translation>%1 不是 Qt 插件。</translation>
    </message>
    <message>
        <source>Give the plugin&apos;s own file, such as libcontact-plugin.so; its class needs Q_PLUGIN_METADATA.</source>
        <translation>请指定插件本身的文件，例如 libcontact-plugin.so；它的类需要 Q_PLUGIN_METADATA。</translation>
    </message>
    <message>
        <source>The plugin %1 has the interface &quot;%2&quot;; this host speaks &quot;%3&quot;.</source>
        <translation>插件 %1 的接口是“%2”，而这个主机使用“%3”。</translation>
    </message>
    <message>
        <source>Build the plugin with this host&apos;s headers, or use the host it was built for.</source>
        <translation>请用这个主机的头文件编译插件，或者使用插件所对应的主机。</translation>
    </message>
    <message>
        <source>The root object of %1 is not an IServicePlugin.</source>
        <translation>%1 的根对象不是 IServicePlugin。</translation>
    </message>
    <message>
        <source>Its class needs Q_INTERFACES(IServicePlugin).</source>
        <translation>它的类需要 Q_INTERFACES(IServicePlugin)。</translation>
    </message>
    <message>
        <source>The plugin %1 failed to start: init() answered %2.</source>
        <translation>插件 %1 启动失败：init() 返回 %2。</translation>
    </message>
    <message>
        <source>The plugin %1 failed to start: init() threw %2.</source>
        <translation>插件 %1 启动失败：init() 抛出 %2。</translation>
    </message>
    <message>
        <source>A missing or broken configuration file is the usual cause; the contact plugin reads /etc/xdg/kelvane-speakmate-plugins/contact-plugin.json. --verbose shows its log.</source>
        <translation>通常是配置文件缺失或者损坏；联系人插件读取 /etc/xdg/kelvane-speakmate-plugins/contact-plugin.json。加上 --verbose 可以看到它的日志。</translation>
    </message>
    <message>
        <source>The plugin %1 offers no service.</source>
        <translation>插件 %1 没有提供服务。</translation>
    </message>
    <message>
        <source>Its getSupportService() has to name at least one.</source>
        <translation>它的 getSupportService() 至少要给出一个名字。</translation>
    </message>
</context>
<context>
    <name>devhost::SearchRequests</name>
    <message>
        <source>Voice Assistant</source>
        <translation>语音助手</translation>
    </message>
</context>
<context>
    <name>devhost::StatusLine</name>
    <message>
        <source>The contacts application is not running</source>
        <translation>联系人应用未运行</translation>
    </message>
    <message>
        <source>Not logged in</source>
        <translation>未登录</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>离开</translation>
    </message>
    <message>
        <source>In a conference: %1  %2</source>
        <translation>会议中：%1&#x3000;%2</translation>
    </message>
</context>
<context>
    <name>devhost::TerminalConversation</name>
    <message>
        <source>  ! %1</source>
        <translation>  ！ %1</translation>
    </message>
    <message>
        <source>Password&gt; </source>
        <translation>密码&gt; </translation>
    </message>
    <message>
        <source>You&gt; </source>
        <translation>你&gt; </translation>
    </message>
    <message>
        <source>longer than 1 MiB, skipped</source>
        <translation>超过 1 MiB，已跳过</translation>
    </message>
    <message>
        <source>not UTF-8, skipped</source>
        <translation>不是 UTF-8，已跳过</translation>
    </message>
    <message>
        <source>  : You</source>
        <translation>  ：你</translation>
    </message>
    <message>
        <source>Assistant: </source>
        <translation>助手：</translation>
    </message>
    <message>
        <source>the picture of turn %1 could not be written to %2</source>
        <translation>第 %1 轮的图片无法写入 %2</translation>
    </message>
</context>
<context>
    <name>devhost::TurnButton</name>
    <message>
        <source>Menu of this turn</source>
        <translation>这一轮的菜单</translation>
    </message>
</context>
<context>
    <name>devhost::TurnMenu</name>
    <message>
        <source>&amp;Copy Text</source>
        <translation>复制文字(&amp;C)</translation>
    </message>
    <message>
        <source>Copy Conference &amp;Number</source>
        <translation>复制会议号(&amp;N)</translation>
    </message>
    <message>
        <source>Copy Semantic &amp;JSON</source>
        <translation>复制语义 JSON(&amp;J)</translation>
    </message>
    <message>
        <source>&amp;Ask Again</source>
        <translation>再问一次(&amp;A)</translation>
    </message>
</context>
<context>
    <name>devhost::TurnRunner</name>
    <message>
        <source>The plugin gave no service.</source>
        <translation>插件没有给出服务。</translation>
    </message>
    <message>
        <source>No plugin is loaded.</source>
        <translation>没有加载插件。</translation>
    </message>
    <message>
        <source>The plugin&apos;s service() threw: %1</source>
        <translation>插件的 service() 抛出了：%1</translation>
    </message>
    <message>
        <source>The plugin&apos;s getServiceReply() threw: %1</source>
        <translation>插件的 getServiceReply() 抛出了：%1</translation>
    </message>
    <message>
        <source>The plugin&apos;s getServiceReply() gave no reply.</source>
        <translation>插件的 getServiceReply() 没有给出回复。</translation>
    </message>
</context>
<context>
    <name>devhost::UtteranceAccessible</name>
    <message>
        <source>What I said</source>
        <translation>我说的</translation>
    </message>
    <message>
        <source>The assistant&apos;s answer</source>
        <translation>助手的回答</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>提示</translation>
    </message>
</context>
<context>
    <name>devhost::WaitingDots</name>
    <message>
        <source>Waiting for the answer</source>
        <translation>正在等待回答</translation>
    </message>
</context>
<context>
    <name>devhost::WelcomePage</name>
    <message>
        <source>Hello, what can I do for you?</source>
        <translation>您好，有什么可以帮您？</translation>
    </message>
    <message>
        <source>Type below, or click an example. The assistant understands Chinese:</source>
        <translation>在下面输入，或者点一个例子：</translation>
    </message>
</context>
<context>
    <name>devhost::guarded</name>
    <message>
        <source>%1 (exception)</source>
        <translation>%1（异常）</translation>
    </message>
    <message>
        <source>an exception of unknown type</source>
        <translation>未知类型的异常</translation>
    </message>
</context>
<context>
    <name>devhost::turntexts</name>
    <message>
        <source>
… (%1 characters in all)</source>
        <translation>
…（共 %1 个字符）</translation>
    </message>
    <message>
        <source>▸ %1    %2    code %3</source>
        <translation>▸ %1    %2    代码 %3</translation>
    </message>
    <message>
        <source>(no parameters)</source>
        <translation>（没有参数）</translation>
    </message>
    <message>
        <source>◂ answer</source>
        <translation>◂ 回答</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>（无）</translation>
    </message>
    <message>
        <source>(no requests)</source>
        <translation>（没有请求）</translation>
    </message>
    <message>
        <source>understanding   %1</source>
        <translation>理解&#x3000;&#x3000;&#x3000;%1</translation>
    </message>
    <message>
        <source>service()       %1, of which %2 in requests</source>
        <translation>service()&#x3000;%1，其中请求 %2</translation>
    </message>
    <message>
        <source>reply and card  %1</source>
        <translation>回复和卡片 %1</translation>
    </message>
    <message>
        <source>failure   %1</source>
        <translation>失败      %1</translation>
    </message>
</context>
</TS>
