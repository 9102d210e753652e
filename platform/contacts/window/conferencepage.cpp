// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/conferencepage.h"

#include "core/outcometext.h"
#include "window/question.h"

#include "book/administration.h"
#include "book/contactsbook.h"
#include "core/conference.h"
#include "core/jsonkeys.h"
#include "window/calendardialog.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QJsonDocument>
#include <QJsonObject>

ConferencePage::ConferencePage(ConferenceModel *model, ContactsBook &book, Administration &administration,
                               QWidget *parent)
    : ConferencePage(model, new QSortFilterProxyModel, book, administration, parent)
{
}

ConferencePage::ConferencePage(ConferenceModel *model, QSortFilterProxyModel *sorted, ContactsBook &book,
                               Administration &administration, QWidget *parent)
    : TablePage(sorted, ConferenceModel::NumberRole, ConferenceModel::Start, parent)
    , m_model(model)
    , m_sorted(sorted)
    , m_book(book)
    , m_administration(administration)
    , m_scope(new QComboBox)
    , m_passcode(new QLineEdit)
    , m_join(addButton(QStringLiteral("join"), QStringLiteral("加入(&J)")))
    , m_leave(addButton(QStringLiteral("leave"), QStringLiteral("离开(&L)")))
    , m_create(addButton(QStringLiteral("create"), QStringLiteral("发起会议(&N)")))
    , m_start(addButton(QStringLiteral("start"), QStringLiteral("开始(&S)")))
    , m_end(addButton(QStringLiteral("end"), QStringLiteral("结束(&T)")))
    , m_delete(addButton(QStringLiteral("delete"), QStringLiteral("取消会议(&D)")))
    , m_copyNumber(
          addMenuEntry(QStringLiteral("copyNumber"), QStringLiteral("复制会议号(&C)"), QKeySequence::Copy))
    , m_export(addMenuEntry(QStringLiteral("export"), QStringLiteral("导出日历文件(&X)…"),
                            QKeySequence(QStringLiteral("Ctrl+E"))))
{
    m_model->setParent(this);
    m_sorted->setParent(this);
    m_sorted->setSourceModel(m_model);
    m_sorted->setSortRole(ConferenceModel::SortRole);
    m_sorted->setSortLocaleAware(true);
    m_sorted->setFilterRole(ConferenceModel::SearchRole);
    m_sorted->setFilterKeyColumn(0);
    m_sorted->setFilterCaseSensitivity(Qt::CaseInsensitive);
    addControls();
    addMenu();
    connectControls();
    showWhatIsPossible();
}

QPushButton *ConferencePage::addButton(const QString &name, const QString &text)
{
    auto *button = new QPushButton(text);
    button->setObjectName(name);
    button->setAutoDefault(false);
    lowerRow()->addWidget(button);
    return button;
}

QAction *ConferencePage::addMenuEntry(const QString &name, const QString &text, const QKeySequence &shortcut)
{
    auto *entry = new QAction(text, table());
    entry->setObjectName(name);
    entry->setShortcut(shortcut);
    entry->setShortcutContext(Qt::WidgetShortcut); // Ctrl+C in a field is the field's
    table()->addAction(entry);
    return entry;
}

void ConferencePage::addMenu()
{
    // Also opened with the menu key.
    table()->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(m_copyNumber, &QAction::triggered, this, [this] {
        QGuiApplication::clipboard()->setText(selected(ConferenceModel::NumberRole).toString());
        Q_EMIT told(QStringLiteral("已复制会议号。"));
    });
    connect(m_export, &QAction::triggered, this, [this] {
        askForCalendarFile(this, m_book, selected(ConferenceModel::NumberRole).toString(),
                           [this](const QString &text) { Q_EMIT told(text); });
    });
}

void ConferencePage::addControls()
{
    m_scope->setObjectName(QStringLiteral("scope"));
    m_scope->setAccessibleName(QStringLiteral("显示哪些会议"));
    m_scope->addItems({QStringLiteral("我的会议"), QStringLiteral("全部会议")});
    upperRow()->addWidget(m_scope);
    m_passcode->setObjectName(QStringLiteral("passcode"));
    m_passcode->setAccessibleName(QStringLiteral("会议密码"));
    m_passcode->setPlaceholderText(QStringLiteral("会议密码"));
    m_passcode->setMaxLength(20);
    m_passcode->setMaximumWidth(120);
    lowerRow()->insertWidget(0, m_passcode);
    lowerRow()->addStretch(1);

    table()->setAccessibleName(QStringLiteral("会议列表"));
    table()->setHint(QStringLiteral("还没有会议。"));
    QHeaderView *header = table()->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(ConferenceModel::Title, QHeaderView::Stretch);
    header->setSectionResizeMode(ConferenceModel::Host, QHeaderView::Interactive);
    table()->sortByColumn(ConferenceModel::Start, Qt::AscendingOrder);
}

void ConferencePage::connectControls()
{
    connect(m_scope, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        m_model->setScope(index == 0 ? ConferenceModel::Scope::Mine : ConferenceModel::Scope::Everybody);
    });
    connect(filter(), &QLineEdit::textChanged, this, [this](const QString &text) {
        m_sorted->setFilterFixedString(text);
        readEnough();
    });
    connect(table()->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this,
            &ConferencePage::readEnough);
    connect(this, &TablePage::selectionChanged, this, &ConferencePage::showWhatIsPossible);
    connect(m_model, &QAbstractItemModel::dataChanged, this, &ConferencePage::showWhatIsPossible);
    connect(this, &TablePage::activated, this, &ConferencePage::join);
    connect(m_passcode, &QLineEdit::returnPressed, this, &ConferencePage::join);
    connect(m_join, &QPushButton::clicked, this, &ConferencePage::join);
    connect(m_leave, &QPushButton::clicked, this, [this] { perform(QStringLiteral("Exit Conference"), {}); });
    connect(m_create, &QPushButton::clicked, this,
            [this] { perform(QStringLiteral("Create Conference"), {}); });
    connect(m_start, &QPushButton::clicked, this, [this] { setState(QStringLiteral("running")); });
    connect(m_end, &QPushButton::clicked, this, [this] { setState(QStringLiteral("ended")); });
    connect(m_delete, &QPushButton::clicked, this, [this] {
        // What is asked about, whatever is selected when the answer comes.
        const QString conferenceId = selected(ConferenceModel::ConferenceIdRole).toString();
        askFirst(this,
                 QStringLiteral("要取消会议 %1 吗？已邀请的成员也将看不到它。")
                     .arg(selected(ConferenceModel::NumberRole).toString()),
                 QStringLiteral("取消会议"), [this, conferenceId] {
                     perform(QStringLiteral("Delete Conference"), {{JsonKey::ConferenceId, conferenceId}});
                 });
    });
}

void ConferencePage::perform(const QString &action, const QJsonObject &parameters)
{
    // By the same way as the assistant's requests, so that what can be tried here is what happens there.
    const QString text = QString::fromUtf8(QJsonDocument(parameters).toJson(QJsonDocument::Compact));
    const QJsonObject answer = QJsonDocument::fromJson(m_book.perform(action, text).toUtf8()).object();
    Q_EMIT told(outcomeText(answer.value(JsonKey::Ret).toString()));
}

void ConferencePage::join()
{
    const QVariant number = selected(ConferenceModel::NumberRole);
    if (!number.isValid()) {
        return;
    }
    perform(QStringLiteral("Join Conference"),
            {{JsonKey::ConferenceId, number.toString()}, {JsonKey::Password, m_passcode->text()}});
    m_passcode->clear();
}

void ConferencePage::setState(const QString &state)
{
    const QVariant number = selected(ConferenceModel::NumberRole);
    if (number.isValid() && m_administration.SetConferenceState(number.toString(), state)) {
        Q_EMIT told(state == QLatin1String("ended") ? QStringLiteral("会议已结束。")
                                                    : QStringLiteral("会议已开始。"));
    }
}

void ConferencePage::readEnough()
{
    const QHeaderView *header = table()->horizontalHeader();
    const bool isInReadingOrder = header->sortIndicatorSection() == ConferenceModel::Start &&
                                  header->sortIndicatorOrder() == Qt::AscendingOrder &&
                                  filter()->text().isEmpty();
    m_model->setReading(isInReadingOrder ? ConferenceModel::Reading::Pages : ConferenceModel::Reading::Whole);
}

void ConferencePage::showWhatIsPossible()
{
    const QVariant state = selected(ConferenceModel::StateRole);
    const bool isRunning = state.isValid() && state.toInt() == static_cast<int>(ConferenceState::Running);
    m_join->setEnabled(state.isValid());
    m_delete->setEnabled(state.isValid());
    m_start->setEnabled(state.isValid() && !isRunning);
    m_end->setEnabled(isRunning);
    m_copyNumber->setEnabled(state.isValid());
    m_export->setEnabled(state.isValid());
}
