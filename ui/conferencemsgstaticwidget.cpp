// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conferencemsgstaticwidget.h"

#include "card/cardfooter.h"
#include "card/cardtheme.h"
#include "card/conferenceeditor.h"
#include "card/conferencerows.h"
#include "conferencecardinterface.h"
#include "customizeitem.h"

#include <lumo/lsuggestbutton.h>

#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {

/// The width, in physical pixels, of the screen that the cards were drawn for.
constexpr double PlannedScreenWidth = 1920.0;
constexpr int Margin = 10;
constexpr int Spacing = 10;
constexpr int LineHeight = 1;

constexpr int ShownConferences = 3;
constexpr int ItemRadius = 8;

double widthScale()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) {
        return 1.0;
    }
    return screen->availableGeometry().width() / PlannedScreenWidth / screen->devicePixelRatio();
}

} // namespace

ConferenceMsgStaticWidget::ConferenceMsgStaticWidget(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
    , m_editor(new ConferenceEditor(widthScale(), this))
{
    setMinimumHeight(0);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_layout->setContentsMargins(Margin, Margin, Margin, Margin);
    m_layout->setSpacing(Spacing);
    m_layout->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(QStringLiteral("联系人"));
    setAccessibleDescription(QStringLiteral("打开联系人应用"));

    connect(m_editor, &ConferenceEditor::signalEdited, this, &ConferenceMsgStaticWidget::updateModifyButton);
    CardTheme::follow(this, &ConferenceMsgStaticWidget::followTheme);
}

void ConferenceMsgStaticWidget::singleInit(const QVector<ContactDetailMsg> &list)
{
    if (list.isEmpty()) {
        return;
    }
    m_rows.clear();
    m_mode = Single;
    const ContactDetailMsg &conference = list.first();
    addRow(getConferenceTitleWidget());
    addRow(getConferenceStatusWidget(conference, true));
    addLine();
    addRow(getConferenceNumberWidget(conference));
    addRow(getConferenceBeginTimeWidget(conference, true));
    addRow(getConferenceTimeLengthWidget(conference, true));
    addRow(getConferencePersonNumWidget(conference, true));
    addRow(getConferenceparticipateNameWidget(conference));
    update();
    takeOwnSize();
}

void ConferenceMsgStaticWidget::multipleInit(const QVector<ContactDetailMsg> &list)
{
    if (list.isEmpty()) {
        return;
    }
    m_mode = List;
    addRow(getConferenceTitleWidget());
    for (int i = 0; i < qMin(list.size(), ShownConferences); ++i) {
        addRow(conferenceItem(list.at(i)));
    }
    if (list.size() > ShownConferences) {
        addRow(footer(list.size()));
    }
    takeOwnSize();
    update();
}

QWidget *ConferenceMsgStaticWidget::getConferenceTitleWidget()
{
    return listed(ConferenceRows::title(this));
}

QWidget *ConferenceMsgStaticWidget::getConferenceStatusWidget(const ContactDetailMsg &conference,
                                                              bool isStatic)
{
    return listed(ConferenceRows::status(conference, isStatic, this));
}

QWidget *ConferenceMsgStaticWidget::getConferenceNumberWidget(const ContactDetailMsg &conference)
{
    return listed(ConferenceRows::number(conference, this));
}

QWidget *ConferenceMsgStaticWidget::getConferenceBeginTimeWidget(const ContactDetailMsg &conference,
                                                                 bool isStatic)
{
    return listed(isStatic ? ConferenceRows::beginTime(conference, this)
                           : m_editor->beginTime(conference, this));
}

QWidget *ConferenceMsgStaticWidget::getConferenceTimeLengthWidget(const ContactDetailMsg &conference,
                                                                  bool isStatic)
{
    return listed(isStatic ? ConferenceRows::timeLength(conference, this)
                           : m_editor->timeLength(conference, this));
}

QWidget *ConferenceMsgStaticWidget::getConferencePersonNumWidget(const ContactDetailMsg &conference,
                                                                 bool isStatic)
{
    return listed(isStatic ? ConferenceRows::personNum(conference, this)
                           : m_editor->personNum(conference, this));
}

QWidget *ConferenceMsgStaticWidget::getConferenceparticipateNameWidget(const ContactDetailMsg &conference)
{
    return listed(ConferenceRows::participants(conference, this));
}

void ConferenceMsgStaticWidget::setConstConferenceMsg(const ContactDetailMsg &conference)
{
    m_editor->setReference(conference);
}

bool ConferenceMsgStaticWidget::getConferenceMsgState() const
{
    return m_editor->isChanged();
}

void ConferenceMsgStaticWidget::setWidgetColor(QWidget *widget, int alpha)
{
    CardTheme::setText(*widget, alpha);
}

void ConferenceMsgStaticWidget::openContactApp()
{
    // The application tells the user itself when it cannot show its list.
    ConferenceCardInterface::instance()->openConferenceList();
}

QWidget *ConferenceMsgStaticWidget::listed(QWidget *row)
{
    m_rows.append(row);
    return row;
}

void ConferenceMsgStaticWidget::addRow(QWidget *row)
{
    m_layout->addWidget(row);
    // On a card that is on the screen a new row would be shown later only, and not be counted in its size.
    if (isVisible()) {
        row->show();
    }
}

void ConferenceMsgStaticWidget::takeOwnSize()
{
    adjustSize();
    // In a host with a layout that one has the last word.
    updateGeometry();
}

void ConferenceMsgStaticWidget::addLine()
{
    QPushButton *line = ConferenceRows::line(this);
    line->setFixedHeight(LineHeight);
    addRow(listed(line));
}

QWidget *ConferenceMsgStaticWidget::conferenceItem(const ContactDetailMsg &conference)
{
    auto *item = new CustomizeItem(this);
    item->setRaidus(ItemRadius);
    item->setBackGroundColor(CardTheme::itemGround());
    item->setFocusPolicy(Qt::NoFocus);
    auto *layout = new QVBoxLayout(item);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Spacing);
    layout->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    layout->addWidget(getConferenceStatusWidget(conference, true));
    layout->addWidget(getConferenceNumberWidget(conference));
    layout->addWidget(getConferenceBeginTimeWidget(conference, true));
    return item;
}

QWidget *ConferenceMsgStaticWidget::footer(int count)
{
    auto *link = new CardFooter(count, this);
    link->installEventFilter(this);
    connect(link, &QPushButton::clicked, this, &ConferenceMsgStaticWidget::openContactApp);
    m_footerButton = link;
    return link;
}

void ConferenceMsgStaticWidget::updateModifyButton()
{
    if (!m_modifyButton.isNull()) {
        m_modifyButton->setEnabled(getConferenceMsgState());
    }
}

void ConferenceMsgStaticWidget::followTheme()
{
    CardTheme::refreshTexts(*this);
    update();
}
