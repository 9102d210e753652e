// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "inspector.h"

#include "jsonhighlighter.h"
#include "turntexts.h"

#include <lumo/lsuggestbutton.h>

#include <QClipboard>
#include <QEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
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
    edit->setTabChangesFocus(true);
    return edit;
}

} // namespace

Inspector::Inspector(QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel(this))
    , m_tabs(new QTabWidget(this))
    , m_search(new QLineEdit(this))
    , m_logFilter(new QLineEdit(this))
{
    m_title->setTextFormat(Qt::PlainText);
    m_title->setText(tr("No conversation yet"));
    auto *copyButton = new QPushButton(tr("Copy"), this);
    copyButton->setToolTip(tr("Copy everything on this page"));
    connect(copyButton, &QPushButton::clicked, this, &Inspector::copyShown);
    m_tabs->setDocumentMode(true);
    m_semantic = addTextTab(tr("Semantic"), QStringLiteral("inspectorSemantic"));
    m_requests = addTextTab(tr("Requests"), QStringLiteral("inspectorRequests"));
    m_reply = addTextTab(tr("Reply"), QStringLiteral("inspectorReply"));
    m_log = makeEdit(QStringLiteral("inspectorLog"), m_tabs);
    m_log->setReadOnly(true);
    m_log->setAccessibleName(tr("Log"));
    m_tabs->addTab(makeLogTab(), tr("Log"));
    m_entry = makeEdit(QStringLiteral("inspectorEntry"), this);
    m_tabs->addTab(makeSendTab(), tr("Send"));

    for (QPlainTextEdit *edit : {m_semantic, m_requests, m_entry}) {
        new JsonHighlighter(edit->document());
    }
    m_search->setObjectName(QStringLiteral("inspectorSearch"));
    m_search->setPlaceholderText(tr("Find on this page"));
    m_search->setAccessibleName(m_search->placeholderText());
    m_search->setClearButtonEnabled(true);
    // While typing, the current hit may still match; Return moves on to the next.
    connect(m_search, &QLineEdit::textEdited, this,
            [this] { search(shownEdit()->textCursor().selectionStart()); });
    connect(m_search, &QLineEdit::returnPressed, this,
            [this] { search(shownEdit()->textCursor().selectionEnd()); });

    auto *header = new QHBoxLayout;
    header->addWidget(m_title, 1);
    header->addWidget(copyButton);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(header);
    layout->addWidget(m_tabs, 1);
    layout->addWidget(m_search);
    setTabOrder(copyButton, m_tabs);
    followFont();
}

QWidget *Inspector::makeLogTab()
{
    auto *page = new QWidget(m_tabs);
    m_logFilter->setObjectName(QStringLiteral("inspectorLogFilter"));
    m_logFilter->setPlaceholderText(tr("Show only records with these words"));
    m_logFilter->setAccessibleName(m_logFilter->placeholderText());
    m_logFilter->setClearButtonEnabled(true);
    connect(m_logFilter, &QLineEdit::textChanged, this, &Inspector::filterLog);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 6, 0, 0);
    layout->addWidget(m_logFilter);
    layout->addWidget(m_log, 1);
    return page;
}

void Inspector::filterLog()
{
    QStringList lines = m_wholeLog.split(QLatin1Char('\n'));
    const QStringList words = m_logFilter->text().simplified().split(QLatin1Char(' '));
    for (const QString &word : words) {
        lines = lines.filter(word, Qt::CaseInsensitive);
    }
    m_log->setPlainText(lines.join(QLatin1Char('\n')));
}

void Inspector::search(int from)
{
    QPlainTextEdit *edit = shownEdit();
    QTextDocument *document = edit->document();
    QTextCursor found = document->find(m_search->text(), from);
    if (found.isNull()) {
        found = document->find(m_search->text(), 0);
    }
    if (!found.isNull()) {
        edit->setTextCursor(found);
    }
}

QPlainTextEdit *Inspector::shownEdit() const
{
    auto *edit = m_tabs->currentWidget()->findChild<QPlainTextEdit *>();
    auto *page = qobject_cast<QPlainTextEdit *>(m_tabs->currentWidget());
    return page != nullptr ? page : edit;
}

void Inspector::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        followFont();
    } else if (event->type() == QEvent::PaletteChange) {
        const auto highlighters = findChildren<JsonHighlighter *>();
        for (JsonHighlighter *highlighter : highlighters) {
            highlighter->rehighlight();
        }
    }
}

void Inspector::followFont()
{
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const QFontMetrics metrics(fixed); // QFontInfo::fixedPitch() is false for such fonts on some platforms
    if (metrics.horizontalAdvance(QLatin1Char('i')) != metrics.horizontalAdvance(QLatin1Char('W'))) {
        fixed.setFamily(
            QStringLiteral("monospace")); // where the desktop names none, Qt returns the general font
    }
    if (font().pointSizeF() > 0) {
        fixed.setPointSizeF(font().pointSizeF());
    }
    const auto edits = findChildren<QPlainTextEdit *>();
    for (QPlainTextEdit *edit : edits) {
        edit->setFont(fixed);
    }
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
    m_entry->setPlaceholderText(tr("Paste semantic JSON here; the plugin gets it as it is"));
    m_entry->setAccessibleName(tr("Semantic JSON"));
    auto *button = new LSuggestButton(tr("Send"), page);
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
    m_title->setText(tr("Turn %1").arg(turn.id));
    m_semantic->setPlainText(turntexts::semantic(turn));
    m_requests->setPlainText(turntexts::requests(turn));
    m_reply->setPlainText(turntexts::reply(turn));
    m_wholeLog = turntexts::log(turn);
    filterLog();
}

void Inspector::copyShown() const
{
    QGuiApplication::clipboard()->setText(shownEdit()->toPlainText());
}

void Inspector::send()
{
    const QString semantic = m_entry->toPlainText().trimmed();
    if (!semantic.isEmpty()) {
        Q_EMIT semanticEntered(semantic);
    }
}

} // namespace devhost
