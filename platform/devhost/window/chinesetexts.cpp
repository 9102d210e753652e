// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "chinesetexts.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace devhost {

namespace {

struct Text
{
    const char *english;
    const char *chinese;
};

constexpr Text Messages[] = {
    {"The plugin %1 cannot be loaded: %2", "插件 %1 无法加载：%2"},
    {"Install the libraries that it names; \"ldd\" lists those that are missing.",
     "请安装上面提到的库；用 ldd 可以列出缺少的库。"},
    {"There is no plugin %1.", "找不到插件 %1。"},
    {"Install it there, or give its file with --plugin PATH.",
     "请把它安装到那里，或者用 --plugin 指定文件。"},
    {"Check the path after --plugin.", "请检查 --plugin 后面的路径。"},
    {"%1 is no Qt plugin.", "%1 不是 Qt 插件。"},
    {"Give the plugin's own file, such as libcontact-plugin.so; its class needs Q_PLUGIN_METADATA.",
     "请指定插件本身的文件，例如 libcontact-plugin.so；它的类需要 Q_PLUGIN_METADATA。"},
    {"The plugin %1 has the interface \"%2\"; this host speaks \"%3\".",
     "插件 %1 的接口是“%2”，而这个主机使用“%3”。"},
    {"Build the plugin with this host's headers, or use the host it was built for.",
     "请用这个主机的头文件编译插件，或者使用插件所对应的主机。"},
    {"The root object of %1 is no IServicePlugin.", "%1 的根对象不是 IServicePlugin。"},
    {"Its class needs Q_INTERFACES(IServicePlugin).", "它的类需要 Q_INTERFACES(IServicePlugin)。"},
    {"The plugin %1 failed to start: init() answered %2.", "插件 %1 启动失败：init() 返回 %2。"},
    {"The plugin %1 failed to start: init() threw %2.", "插件 %1 启动失败：init() 抛出 %2。"},
    {"A missing or broken configuration file is the usual cause; the contact plugin reads "
     "/etc/xdg/kelvane-speakmate-plugins/contact-plugin.json. --verbose shows its log.",
     "通常是配置文件缺失或者损坏；联系人插件读取 /etc/xdg/kelvane-speakmate-plugins/contact-plugin.json。"
     "加上 --verbose 可以看到它的日志。"},
    {"The plugin %1 offers no service.", "插件 %1 没有提供服务。"},
    {"Its getSupportService() has to name at least one.", "它的 getSupportService() 至少要给出一个名字。"},
    {"The text is too long: %1 characters.", "文字太长：%1 个字符。"},
    {"The plugin cannot read this as a semantic JSON (service() answered -100).",
     "插件读不懂这个语义 JSON（service() 返回 -100）。"},
    {"The plugin gave no service.", "插件没有给出服务。"},
    {"No plugin is loaded.", "没有加载插件。"},
    {"The plugin's service() threw: %1", "插件的 service() 抛出了：%1"},
    {"The plugin's getServiceReply() threw: %1", "插件的 getServiceReply() 抛出了：%1"},
    {"The plugin's getServiceReply() gave no reply.", "插件的 getServiceReply() 没有给出回复。"},
};

/// Of the menus of text fields and of the buttons of dialogs.
constexpr Text QtTexts[] = {
    {"&Undo", "撤销(&U)"},
    {"&Redo", "重做(&R)"},
    {"Cu&t", "剪切(&T)"},
    {"&Copy", "复制(&C)"},
    {"Copy &Link Location", "复制链接(&L)"},
    {"&Paste", "粘贴(&P)"},
    {"Delete", "删除"},
    {"Select All", "全选"},
    {"OK", "确定"},
    {"&OK", "确定(&O)"},
    {"Cancel", "取消"},
    {"&Cancel", "取消(&C)"},
    {"Close", "关闭"},
    {"&Close", "关闭(&C)"},
    {"&Yes", "是(&Y)"},
    {"&No", "否(&N)"},
};

template <std::size_t Count>
QString find(const Text (&texts)[Count], const char *english)
{
    const auto found = std::find_if(std::begin(texts), std::end(texts), [english](const Text &text) {
        return std::strcmp(text.english, english) == 0;
    });
    return found == std::end(texts) ? QString() : QString::fromUtf8(found->chinese);
}

} // namespace

QString ChineseTexts::translate(const char *context, const char *sourceText, const char *, int) const
{
    return std::strcmp(context, "devhost") == 0 ? find(Messages, sourceText) : find(QtTexts, sourceText);
}

} // namespace devhost
