<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AccountBar</name>
    <message>
        <source>Log &amp;Out</source>
        <translation>退出登录(&amp;O)</translation>
    </message>
    <message>
        <source>Account to log in with</source>
        <translation>登录账号</translation>
    </message>
    <message>
        <source>Kind of account</source>
        <translation>账号类型</translation>
    </message>
    <message>
        <source>Paying</source>
        <translation>付费</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>免费</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>账号(&amp;A)</translation>
    </message>
</context>
<context>
    <name>AccountModel</name>
    <message>
        <source>Not logged in</source>
        <translation>未登录</translation>
    </message>
</context>
<context>
    <name>AddFriendDialog</name>
    <message>
        <source>&amp;Send Request</source>
        <translation>发送申请(&amp;S)</translation>
    </message>
    <message>
        <source>Add Friend</source>
        <translation>添加好友</translation>
    </message>
    <message>
        <source>Their &amp;account, or a name that nobody else has</source>
        <translation>对方的账号，或没有重名的姓名(&amp;A)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Nobody was found, or several people have that name. Please give the account.</source>
        <translation>没有找到，或有多人同名，请填写账号。</translation>
    </message>
</context>
<context>
    <name>Befriend</name>
    <message>
        <source>They had asked you already, so you are friends now.</source>
        <translation>对方已申请加您为好友，已成为好友。</translation>
    </message>
    <message>
        <source>The friend request was sent.</source>
        <translation>好友申请已发送。</translation>
    </message>
</context>
<context>
    <name>CalendarDialog</name>
    <message>
        <source>The conference no longer exists.</source>
        <translation>会议已不存在。</translation>
    </message>
    <message>
        <source>Exported to %1.</source>
        <translation>已导出到 %1。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>That failed.</source>
        <translation>操作失败。</translation>
    </message>
    <message>
        <source>Export Calendar File</source>
        <translation>导出日历文件</translation>
    </message>
    <message>
        <source>Calendar files (*.ics)</source>
        <translation>日历文件 (*.ics)</translation>
    </message>
</context>
<context>
    <name>ClockText</name>
    <message>
        <source>MMM d, HH:mm</source>
        <translation>M月d日 HH:mm</translation>
    </message>
</context>
<context>
    <name>ConferenceCalendar</name>
    <message>
        <source>Number: %1</source>
        <translation>会议号：%1</translation>
    </message>
    <message>
        <source>Host: %1</source>
        <translation>主持人：%1</translation>
    </message>
    <message>
        <source>Participants: %1</source>
        <translation>参加者：%1</translation>
    </message>
    <message>
        <source>Video conference</source>
        <translation>视频会议</translation>
    </message>
    <message>
        <source>Video conference %1</source>
        <translation>视频会议 %1</translation>
    </message>
</context>
<context>
    <name>ConferenceCommands</name>
    <message>
        <source>Deta&amp;ils…</source>
        <translation>会议详情(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;New Conference…</source>
        <translation>发起会议(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Join</source>
        <translation>加入(&amp;J)</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>开始(&amp;S)</translation>
    </message>
    <message>
        <source>En&amp;d</source>
        <translation>结束(&amp;T)</translation>
    </message>
    <message>
        <source>Cancel Con&amp;ference</source>
        <translation>取消会议(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Copy Number</source>
        <translation>复制会议号(&amp;C)</translation>
    </message>
    <message>
        <source>E&amp;xport Calendar File…</source>
        <translation>导出日历文件(&amp;X)…</translation>
    </message>
    <message>
        <source>The conference no longer exists.</source>
        <translation>会议已不存在。</translation>
    </message>
    <message>
        <source>The conference has started.</source>
        <translation>会议已开始。</translation>
    </message>
    <message>
        <source>The conference has ended.</source>
        <translation>会议已结束。</translation>
    </message>
    <message>
        <source>The conference has changed. Please look at its state again.</source>
        <translation>会议已有变化，请再看一下它的状态。</translation>
    </message>
    <message>
        <source>The conference number was copied.</source>
        <translation>已复制会议号。</translation>
    </message>
    <message>
        <source>Cancel conference %1? Those who are invited will no longer see it either.</source>
        <translation>要取消会议 %1 吗？已邀请的成员也将看不到它。</translation>
    </message>
    <message>
        <source>Cancel Conference</source>
        <translation>取消会议</translation>
    </message>
</context>
<context>
    <name>ConferenceDetail</name>
    <message>
        <source>Joined</source>
        <translation>已加入</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>已离开</translation>
    </message>
    <message>
        <source>Not joined</source>
        <translation>未加入</translation>
    </message>
    <message>
        <source>%1 (host)</source>
        <translation>主持人，%1</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;O)</translation>
    </message>
    <message>
        <source>E&amp;xport Calendar File…</source>
        <translation>导出日历文件(&amp;X)…</translation>
    </message>
    <message>
        <source>Conference Details</source>
        <translation>会议详情</translation>
    </message>
    <message>
        <source>Participants</source>
        <translation>成员</translation>
    </message>
    <message>
        <source>Participant</source>
        <translation>成员</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>账号</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Export calendar file</source>
        <translation>导出日历文件</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source> min</source>
        <translation> 分钟</translation>
    </message>
    <message>
        <source> people</source>
        <translation> 人</translation>
    </message>
    <message>
        <source>T&amp;itle</source>
        <translation>主题(&amp;I)</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>会议号</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>主持人</translation>
    </message>
    <message>
        <source>&amp;Begins</source>
        <translation>开始时间(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Duration</source>
        <translation>时长(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Limit</source>
        <translation>人数上限(&amp;L)</translation>
    </message>
    <message>
        <source>Passcode</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Somebody else has logged in, so the details were closed.</source>
        <translation>账号已更换，会议详情已关闭。</translation>
    </message>
    <message>
        <source>The conference no longer exists.</source>
        <translation>会议已不存在。</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Set; only the host sees it</source>
        <translation>有，仅主持人可见</translation>
    </message>
    <message>
        <source>Conference %1 was changed.</source>
        <translation>会议 %1 已修改。</translation>
    </message>
    <message>
        <source>It could not be changed: the time has passed or is taken by another conference, or more people are invited than it would take.</source>
        <translation>修改失败：时间已过或与其他会议重复，或人数少于已邀请的成员。</translation>
    </message>
</context>
<context>
    <name>ConferenceDialog</name>
    <message>
        <source>Ri&amp;ght now</source>
        <translation>现在开始(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>预约(&amp;B)</translation>
    </message>
    <message>
        <source>%1&apos;s video conference</source>
        <translation>%1的视频会议</translation>
    </message>
    <message>
        <source>New Conference</source>
        <translation>发起会议</translation>
    </message>
    <message>
        <source>T&amp;itle</source>
        <translation>主题(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Participants</source>
        <translation>邀请(&amp;P)</translation>
    </message>
    <message>
        <source>Pa&amp;sscode</source>
        <translation>密码(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>发起(&amp;O)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>The time has passed, or the passcode has spaces.</source>
        <translation>时间已过，或密码含有空格。</translation>
    </message>
    <message>
        <source>Conference %1 was created.</source>
        <translation>会议 %1 已发起。</translation>
    </message>
    <message>
        <source>Conference %1 was created, but these people could not be invited: %2.</source>
        <translation>会议 %1 已发起，但未能邀请：%2。</translation>
    </message>
</context>
<context>
    <name>ConferenceModel</name>
    <message>
        <source>Upcoming</source>
        <translation>未开始</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>进行中</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>已结束</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>会议号</translation>
    </message>
    <message>
        <source>Starts</source>
        <translation>开始时间</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>People</source>
        <translation>人数</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>主持人</translation>
    </message>
    <message>
        <source>Passcode</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Today %1</source>
        <translation>今天 %1</translation>
    </message>
    <message>
        <source>Tomorrow %1</source>
        <translation>明天 %1</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1分钟</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>需要</translation>
    </message>
</context>
<context>
    <name>ConferencePage</name>
    <message>
        <source>List of conferences</source>
        <translation>会议列表</translation>
    </message>
    <message>
        <source>Which conferences are shown</source>
        <translation>显示哪些会议</translation>
    </message>
    <message>
        <source>My Conferences</source>
        <translation>我的会议</translation>
    </message>
    <message>
        <source>All Conferences</source>
        <translation>全部会议</translation>
    </message>
    <message>
        <source>Conference passcode</source>
        <translation>会议密码</translation>
    </message>
    <message>
        <source>Passcode</source>
        <translation>会议密码</translation>
    </message>
    <message>
        <source>No conference matches “%1”. Press Esc to clear the filter.</source>
        <translation>没有符合“%1”的会议。按 Esc 清除筛选。</translation>
    </message>
    <message>
        <source>Nobody is logged in. Choose an account above to see its conferences here.</source>
        <translation>还没有登录。请在上方选择账号，登录后可以在这里看到会议。</translation>
    </message>
    <message>
        <source>No conferences are coming up. Make one with “New Conference”.</source>
        <translation>没有即将开始的会议。点“发起会议”可以预约一个。</translation>
    </message>
</context>
<context>
    <name>ConferenceTimeEdit</name>
    <message>
        <source>Start time</source>
        <translation>开始时间</translation>
    </message>
</context>
<context>
    <name>ContactsWindow</name>
    <message>
        <source>&amp;Conferences</source>
        <translation>会议(&amp;1)</translation>
    </message>
    <message>
        <source>P&amp;eople</source>
        <translation>联系人(&amp;2)</translation>
    </message>
    <message>
        <source>&amp;Reminders</source>
        <translation>提醒(&amp;3)</translation>
    </message>
    <message>
        <source>Conferences, people and reminders</source>
        <translation>会议、联系人和提醒</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>O&amp;K</source>
        <translation>知道了(&amp;K)</translation>
    </message>
</context>
<context>
    <name>CurrentConference</name>
    <message>
        <source>Co&amp;py Number</source>
        <translation>复制会议号(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Leave</source>
        <translation>离开(&amp;L)</translation>
    </message>
    <message>
        <source>The conference you are in</source>
        <translation>正在进行的会议</translation>
    </message>
    <message>
        <source>The conference number was copied.</source>
        <translation>已复制会议号。</translation>
    </message>
    <message>
        <source>In a conference · Number %1 · %2 to %3 · People: %4</source>
        <translation>正在会议中 · 会议号 %1 · %2 至 %3 · %4 人</translation>
    </message>
</context>
<context>
    <name>DeveloperMenu</name>
    <message>
        <source>De&amp;veloper</source>
        <translation>开发者(&amp;V)</translation>
    </message>
    <message>
        <source>In a Conference on Another D&amp;evice</source>
        <translation>正在其他设备上开会(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Restore Sample Data…</source>
        <translation>恢复示例数据(&amp;R)…</translation>
    </message>
    <message>
        <source>Restore the sample data? All contacts and conferences that are there now are replaced.</source>
        <translation>要恢复示例数据吗？现有的联系人和会议都会被替换。</translation>
    </message>
    <message>
        <source>Restore Sample Data</source>
        <translation>恢复示例数据</translation>
    </message>
    <message>
        <source>The sample data was restored.</source>
        <translation>示例数据已恢复。</translation>
    </message>
    <message>
        <source>That failed.</source>
        <translation>操作失败。</translation>
    </message>
</context>
<context>
    <name>DisplayText</name>
    <message>
        <source>, </source>
        <comment>between names</comment>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>EndedConferences</name>
    <message>
        <source>Conferences that have ended</source>
        <translation>已结束的会议</translation>
    </message>
    <message>
        <source>No conference has ended within thirty days.</source>
        <translation>最近三十天没有已结束的会议。</translation>
    </message>
    <message>
        <source>Ended (%1)</source>
        <translation>已结束 (%1)</translation>
    </message>
</context>
<context>
    <name>InviteeField</name>
    <message>
        <source>Re&amp;move</source>
        <translation>移除(&amp;M)</translation>
    </message>
    <message>
        <source>People to invite</source>
        <translation>邀请的成员</translation>
    </message>
    <message>
        <source>Name, remark or account</source>
        <translation>输入姓名、备注或账号</translation>
    </message>
    <message>
        <source>People chosen</source>
        <translation>已选择的成员</translation>
    </message>
    <message>
        <source>“%1” is not among your contacts.</source>
        <translation>联系人中没有“%1”。</translation>
    </message>
    <message>
        <source>Several contacts match. Please choose from the list.</source>
        <translation>有多位联系人符合，请从列表中选择。</translation>
    </message>
    <message>
        <source>No more than %1 people can be invited.</source>
        <translation>最多可以邀请 %1 人。</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Contacts and video conferences, for the user and for the voice assistant.</source>
        <translation>联系人和视频会议，供用户和语音助手使用。</translation>
    </message>
    <message>
        <source>Serve other programs and show no window until it is asked for.</source>
        <translation>为其他程序服务，需要时才显示窗口。</translation>
    </message>
    <message>
        <source>As --service, for the start of a session: end at once when reminders are switched off or the application has never been used.</source>
        <translation>同 --service，用于会话开始时：提醒已关闭或从未使用过本程序时立即结束。</translation>
    </message>
    <message>
        <source>Put the administration on the session bus, which shows every passcode and can empty everything, and show what only a developer needs.</source>
        <translation>在会话总线上提供管理接口（可以看到所有密码，也可以清空一切），并显示只有开发者需要的内容。</translation>
    </message>
    <message>
        <source>Write one of your conferences to an iCalendar file, &apos;-&apos; for the standard output, and end.</source>
        <translation>把您的一个会议写入 iCalendar 文件（“-”表示标准输出），然后结束。</translation>
    </message>
    <message>
        <source>The number of the conference to export; without it the running or the next one.</source>
        <translation>要导出的会议的会议号；不填则为正在进行或下一个会议。</translation>
    </message>
</context>
<context>
    <name>OutcomeText</name>
    <message>
        <source>Done.</source>
        <translation>好的。</translation>
    </message>
    <message>
        <source>Not found, or several contacts have that name.</source>
        <translation>没有找到，或有同名联系人。</translation>
    </message>
    <message>
        <source>Not found.</source>
        <translation>没有找到。</translation>
    </message>
    <message>
        <source>There is no conference going on.</source>
        <translation>没有正在进行的会议。</translation>
    </message>
    <message>
        <source>The conference has not started.</source>
        <translation>会议还未开始。</translation>
    </message>
    <message>
        <source>The time is taken by another conference.</source>
        <translation>与其他会议时间重复。</translation>
    </message>
    <message>
        <source>They are your friend already, or have been asked.</source>
        <translation>已经添加过该好友。</translation>
    </message>
    <message>
        <source>You have as many friends as you can have.</source>
        <translation>好友已超过最大限制。</translation>
    </message>
    <message>
        <source>You cannot be your own friend.</source>
        <translation>无法添加自己为好友。</translation>
    </message>
    <message>
        <source>You are in another conference.</source>
        <translation>正在其他会议中。</translation>
    </message>
    <message>
        <source>The passcode is wrong. Please type it and join again.</source>
        <translation>密码不正确，请输入密码后再加入。</translation>
    </message>
    <message>
        <source>Please log in first.</source>
        <translation>请先登录。</translation>
    </message>
    <message>
        <source>Too many at once. Please try again in a while.</source>
        <translation>操作太频繁，请稍候重试。</translation>
    </message>
    <message>
        <source>The conference is full.</source>
        <translation>会议人数已满。</translation>
    </message>
    <message>
        <source>It could not be changed.</source>
        <translation>修改失败。</translation>
    </message>
    <message>
        <source>That failed.</source>
        <translation>操作失败。</translation>
    </message>
</context>
<context>
    <name>PasscodeField</name>
    <message>
        <source>Sho&amp;w</source>
        <translation>显示(&amp;W)</translation>
    </message>
    <message>
        <source>Conference passcode</source>
        <translation>会议密码</translation>
    </message>
    <message>
        <source>Leave empty for none</source>
        <translation>不填则无需密码</translation>
    </message>
    <message>
        <source>Show the conference passcode</source>
        <translation>显示会议密码</translation>
    </message>
</context>
<context>
    <name>PeopleHint</name>
    <message>
        <source>Nobody is logged in.
Choose an account above to see its contacts.</source>
        <translation>还没有登录。
在上方选择账号，就能看到联系人。</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>正在查找…</translation>
    </message>
    <message>
        <source>“%1” was not found.
Press Esc to clear the search.</source>
        <translation>没有找到“%1”。
按 Esc 清除搜索。</translation>
    </message>
    <message>
        <source>There are no friends yet.
Send a request with “Add Friend”.</source>
        <translation>还没有好友。
点“添加好友”发送申请。</translation>
    </message>
    <message>
        <source>No friend request waits for its answer.</source>
        <translation>没有等待回答的好友申请。</translation>
    </message>
    <message>
        <source>There are no contacts yet.
Send a request with “Add Friend”.</source>
        <translation>还没有联系人。
点“添加好友”发送申请。</translation>
    </message>
</context>
<context>
    <name>PeopleModel</name>
    <message>
        <source>Name</source>
        <translation>姓名</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>账号</translation>
    </message>
    <message>
        <source>Relation</source>
        <translation>关系</translation>
    </message>
    <message>
        <source>Kind of Account</source>
        <translation>账号类型</translation>
    </message>
</context>
<context>
    <name>PeoplePage</name>
    <message>
        <source>Add &amp;Friend…</source>
        <translation>添加好友(&amp;F)…</translation>
    </message>
    <message>
        <source>Add as Fr&amp;iend</source>
        <translation>加为好友(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Copy Account</source>
        <translation>复制账号(&amp;C)</translation>
    </message>
    <message>
        <source>Search names, remarks and accounts</source>
        <translation>搜索姓名、备注或账号</translation>
    </message>
    <message>
        <source>Which people are shown</source>
        <translation>显示哪些联系人</translation>
    </message>
    <message>
        <source>All Contacts</source>
        <translation>全部联系人</translation>
    </message>
    <message>
        <source>Friends</source>
        <translation>好友</translation>
    </message>
    <message>
        <source>Requests Sent</source>
        <translation>已发送的申请</translation>
    </message>
    <message>
        <source>List of contacts</source>
        <translation>联系人列表</translation>
    </message>
    <message>
        <source>The account was copied.</source>
        <translation>已复制账号。</translation>
    </message>
</context>
<context>
    <name>PersonTexts</name>
    <message>
        <source>Friend</source>
        <translation>好友</translation>
    </message>
    <message>
        <source>Request sent</source>
        <translation>已发送好友申请</translation>
    </message>
    <message>
        <source>Colleague</source>
        <translation>同事</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Paying</source>
        <translation>付费</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>免费</translation>
    </message>
</context>
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
    <name>Question</name>
    <message>
        <source>No, Keep</source>
        <translation>不，保留</translation>
    </message>
</context>
<context>
    <name>ReminderPage</name>
    <message>
        <source>Re&amp;mind me of conferences, invitations and friend requests</source>
        <translation>提醒我会议、邀请和好友申请(&amp;M)</translation>
    </message>
    <message>
        <source> min</source>
        <translation> 分钟</translation>
    </message>
    <message>
        <source>Minutes before a conference</source>
        <translation>会议开始前多少分钟提醒</translation>
    </message>
    <message>
        <source>&amp;Before it starts</source>
        <translation>会议开始前(&amp;B)</translation>
    </message>
    <message>
        <source>Notifies you before a conference starts and when it does. Conferences that you have declined or joined, or that have ended, are left out. While reminders are on, the application starts in the background when you log in, and reminds you after its window is closed.</source>
        <translation>会议开始前和开始时各通知一次；已谢绝、已加入和已结束的会议不再提醒。打开提醒后，登录桌面时会在后台启动，关闭窗口后仍会提醒。</translation>
    </message>
</context>
<context>
    <name>ReminderText</name>
    <message>
        <source>starts in %1 min</source>
        <translation>%1 分钟后开始</translation>
    </message>
    <message>
        <source>starts now</source>
        <translation>现在开始</translation>
    </message>
    <message>
        <source>started at %1</source>
        <translation>已于 %1 开始</translation>
    </message>
    <message>
        <source>Video conference</source>
        <translation>视频会议</translation>
    </message>
    <message>
        <source>%1 invites you to “%2”</source>
        <translation>%1邀请您参加“%2”</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>It is running.</source>
        <translation>正在进行</translation>
    </message>
    <message>
        <source>Host: %1</source>
        <translation>主持人：%1</translation>
    </message>
    <message>
        <source>Number: %1</source>
        <translation>会议号：%1</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>查看</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>加入</translation>
    </message>
    <message>
        <source>Decline</source>
        <translation>谢绝</translation>
    </message>
    <message>
        <source>%1 asks to be your friend</source>
        <translation>%1请求加您为好友</translation>
    </message>
    <message>
        <source>Account: %1</source>
        <translation>账号：%1</translation>
    </message>
</context>
<context>
    <name>Reminders</name>
    <message>
        <source>Contacts</source>
        <translation>联系人</translation>
    </message>
    <message>
        <source>The conference has not started. You will be reminded when it does.</source>
        <translation>会议还未开始，开始时会再次提醒您。</translation>
    </message>
</context>
<context>
    <name>Replacement</name>
    <message>
        <source>People recovered: %1, conferences recovered: %2. The rest may be lost.</source>
        <translation>已找回 %1 位联系人和 %2 个会议，其余内容可能已丢失。</translation>
    </message>
    <message>
        <source>Nothing could be recovered; the sample data is shown now.</source>
        <translation>没有可找回的内容，现在显示的是示例数据。</translation>
    </message>
    <message>
        <source>The database was damaged; the former file is kept as %1. %2</source>
        <translation>数据库已损坏，原文件保存为 %1。%2</translation>
    </message>
</context>
<context>
    <name>RequestBar</name>
    <message>
        <source>%1 (%2) wants to be your friend.</source>
        <translation>%1（%2）想加您为好友。</translation>
    </message>
    <message>
        <source>%1 Further requests: %2.</source>
        <translation>%1还有 %2 个申请。</translation>
    </message>
    <message>
        <source>Acce&amp;pt</source>
        <translation>接受(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Decline</source>
        <translation>谢绝(&amp;D)</translation>
    </message>
    <message>
        <source>You are friends now.</source>
        <translation>已成为好友。</translation>
    </message>
    <message>
        <source>The friend request was declined.</source>
        <translation>已谢绝好友申请。</translation>
    </message>
</context>
<context>
    <name>ResultLabel</name>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Result: %1</source>
        <translation>结果：%1</translation>
    </message>
</context>
<context>
    <name>TablePage</name>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
</context>
<context>
    <name>WindowTitle</name>
    <message>
        <source>Not logged in</source>
        <translation>未登录</translation>
    </message>
    <message>
        <source>Contacts and Conferences</source>
        <translation>联系人与会议</translation>
    </message>
</context>
</TS>
