// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "inspector.h"

#include "turntexts.h"

#include <lumo/lsuggestbutton.h>

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace devhost {

namespace {

QPlainTextEdit *makeEdit(const QString &name, QWidget *parent)
{
    auto *edit = new QPlainTextEdit(parent);
    edit->setObjectName(name);
    edit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    edit->setTabChangesFocus(true);
    return edit;
}

} // namespace

Inspector::Inspector(QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel(this))
    , m_tabs(new QTabWidget(this))
{
    m_title->setTextFormat(Qt::PlainText);
    m_title->setText(QStringLiteral("还没有对话"));
    auto *copyButton = new QPushButton(QStringLiteral("复制"), this);
    copyButton->setToolTip(QStringLiteral("复制这一页的全部内容"));
    connect(copyButton, &QPushButton::clicked, this, &Inspector::copyShown);
    m_tabs->setDocumentMode(true);
    m_semantic = addTextTab(QStringLiteral("语义"), QStringLiteral("inspectorSemantic"));
    m_requests = addTextTab(QStringLiteral("请求"), QStringLiteral("inspectorRequests"));
    m_reply = addTextTab(QStringLiteral("回复"), QStringLiteral("inspectorReply"));
    m_log = addTextTab(QStringLiteral("日志"), QStringLiteral("inspectorLog"));
    m_entry = makeEdit(QStringLiteral("inspectorEntry"), this);
    m_tabs->addTab(makeSendTab(), QStringLiteral("发送"));

    auto *header = new QHBoxLayout;
    header->addWidget(m_title, 1);
    header->addWidget(copyButton);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(header);
    layout->addWidget(m_tabs, 1);
}

QPlainTextEdit *Inspector::addTextTab(const QString &title, const QString &name)
{
    QPlainTextEdit *edit = makeEdit(name, m_tabs);
    edit->setReadOnly(true);
    edit->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    edit->setAccessibleName(title);
    m_tabs->addTab(edit, title);
    return edit;
}

QWidget *Inspector::makeSendTab()
{
    auto *page = new QWidget(m_tabs);
    m_entry->setPlaceholderText(QStringLiteral("在这里粘贴语义 JSON，原样发送给插件"));
    m_entry->setAccessibleName(QStringLiteral("语义 JSON"));
    auto *button = new LSuggestButton(QStringLiteral("发送"), page);
    button->setObjectName(QStringLiteral("inspectorSend"));
    connect(button, &QPushButton::clicked, this, &Inspector::send);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 6, 0, 0);
    layout->addWidget(m_entry, 1);
    layout->addWidget(button, 0, Qt::AlignRight);
    return page;
}

void Inspector::show(const Turn &turn)
{
    m_turn = turn.id;
    m_title->setText(QStringLiteral("第 %1 轮").arg(turn.id));
    m_semantic->setPlainText(turntexts::semantic(turn));
    m_requests->setPlainText(turntexts::requests(turn));
    m_reply->setPlainText(turntexts::reply(turn));
    m_log->setPlainText(turntexts::log(turn));
}

void Inspector::copyShown() const
{
    const auto *edit = qobject_cast<QPlainTextEdit *>(m_tabs->currentWidget());
    QGuiApplication::clipboard()->setText((edit != nullptr ? edit : m_entry)->toPlainText());
}

void Inspector::send()
{
    const QString semantic = m_entry->toPlainText().trimmed();
    if (!semantic.isEmpty()) {
        Q_EMIT semanticEntered(semantic);
    }
}

} // namespace devhost
