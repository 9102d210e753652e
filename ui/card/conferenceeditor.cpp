// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/conferenceeditor.h"

#include "card/cardtheme.h"
#include "card/conferencerows.h"
#include "customizecombobox.h"

#include <lumo/lfontsizemanager.h>
#include <lumo/lspinbox.h>

#include <QHBoxLayout>
#include <QLabel>

namespace {

constexpr int DatePickerWidth = 160;
constexpr int HourBoxWidth = 100;
constexpr int WideControlWidth = 138;
constexpr int SpaceAfterDatePicker = 10;
constexpr int LeastParticipants = 2;
constexpr int MostParticipants = 100;

/// What all controls of the rows have in common.
void prepare(QWidget &control, const QString &accessibleName, int minimumWidth)
{
    control.setMinimumWidth(minimumWidth);
    control.setFont(LFontSizeManager::instance()->get(LFontSizeManager::T6, control.font()));
    control.setAccessibleName(accessibleName);
    // On this platform the accessible name of a combo box is its current text, and only this tells it from
    // another one.
    control.setAccessibleDescription(accessibleName);
    CardTheme::setText(control, CardTheme::ValueAlpha);
    // What a control leaves of a click is not meant for the card behind it.
    control.setAttribute(Qt::WA_NoMousePropagation);
}

} // namespace

QString ConferenceEditor::hourBoxTag()
{
    return QStringLiteral("timeBox");
}

QString ConferenceEditor::durationBoxTag()
{
    return QStringLiteral("timeLengthBox");
}

ConferenceEditor::ConferenceEditor(double widthScale, QObject *parent)
    : QObject(parent)
    , m_widthScale(widthScale)
{
}

QWidget *ConferenceEditor::beginTime(const ContactDetailMsg &conference, QWidget *card)
{
    const auto row = ConferenceRows::captioned(ConferenceRows::beginTimeCaption(), card);
    QWidget *picker = datePicker(conference, row.widget, card);
    row.caption->setBuddy(picker);
    row.layout->addWidget(picker);
    row.layout->addSpacing(SpaceAfterDatePicker);
    row.layout->addWidget(hourBox(conference, row.widget, card), 0, Qt::AlignRight);
    return row.widget;
}

QWidget *ConferenceEditor::timeLength(const ContactDetailMsg &conference, QWidget *card)
{
    const auto row = ConferenceRows::captioned(ConferenceRows::timeLengthCaption(), card);
    auto *box = new LComboBox(row.widget);
    prepare(*box, ConferenceRows::timeLengthCaption(), scaled(WideControlWidth));
    row.caption->setBuddy(box);
    box->setWindowTitle(durationBoxTag());
    box->installEventFilter(card);
    // Before the items: the first one already sets the working duration, which then is what the box shows
    // also for a duration that it does not offer.
    connect(box, &QComboBox::currentTextChanged, this, [this](const QString &label) {
        m_draft.working().duration = m_durations.duration(label);
        Q_EMIT signalEdited();
    });
    box->addItems(m_durations.choices(conference.isPayingUser));
    box->setCurrentText(m_durations.label(conference.duration));
    row.layout->addWidget(box);
    return row.widget;
}

QWidget *ConferenceEditor::personNum(const ContactDetailMsg &conference, QWidget *card)
{
    const auto row = ConferenceRows::captioned(ConferenceRows::personNumCaption(), card);
    auto *box = new LSpinBox(row.widget);
    prepare(*box, ConferenceRows::personNumCaption(), scaled(WideControlWidth));
    row.caption->setBuddy(box);
    box->setEnabledEmbedStyle(true);
    const int most = conference.isPayingUser ? MostParticipants : conference.participantLimit;
    box->setRange(LeastParticipants, qMax(LeastParticipants, most));
    box->setValue(conference.participantLimit);
    // A count that the box cannot show is sent as it came until a person sets another one.
    m_draft.working().participantLimit = conference.participantLimit;
    connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int limit) {
        m_draft.working().participantLimit = limit;
        Q_EMIT signalEdited();
    });
    row.layout->addWidget(box);
    return row.widget;
}

QWidget *ConferenceEditor::datePicker(const ContactDetailMsg &conference, QWidget *row, QObject *eventFilter)
{
    auto *picker = new CustomizeComboBox(row);
    prepare(*picker, QStringLiteral("日期"), scaled(DatePickerWidth));
    picker->installEventFilter(eventFilter);
    connect(picker, &CustomizeComboBox::signalSelectionDate, this, [this](const QDate &date) {
        m_draft.working().startDate = date;
        Q_EMIT signalEdited();
    });
    picker->slotSelectionData(ConferenceValues::of(conference).startDate);
    return picker;
}

QWidget *ConferenceEditor::hourBox(const ContactDetailMsg &conference, QWidget *row, QObject *eventFilter)
{
    auto *box = new LComboBox(row);
    prepare(*box, QStringLiteral("开始时间"), scaled(HourBoxWidth));
    box->setWindowTitle(hourBoxTag());
    box->installEventFilter(eventFilter);
    const QTime start = ConferenceValues::of(conference).startTime;
    box->addItems(m_hours.choices());
    box->setCurrentText(m_hours.label(start));
    // Only now: what starts at 09:30 stays there until a person picks an hour.
    m_draft.working().startTime = start;
    connect(box, &QComboBox::currentTextChanged, this, [this](const QString &label) {
        m_draft.working().startTime = m_hours.time(label);
        Q_EMIT signalEdited();
    });
    return box;
}

int ConferenceEditor::scaled(int width) const
{
    return static_cast<int>(width * m_widthScale);
}
