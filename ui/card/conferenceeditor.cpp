// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/conferenceeditor.h"

#include "card/cardbuttons.h"
#include "card/cardmeasures.h"
#include "card/cardtheme.h"
#include "card/conferencehours.h"
#include "card/conferencerows.h"
#include "card/participantlimits.h"
#include "conferencecardinterface.h"
#include "customizecombobox.h"
#include "defaultlog.h"
#include "request/requesttexts.h"

#include <lumo/lfontsizemanager.h>
#include <lumo/lspinbox.h>
#include <lumo/lsuggestbutton.h>

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace {

constexpr int DatePickerWidth = 160;
constexpr int HourBoxWidth = 100;
constexpr int WideControlWidth = 138;

/// The width, in physical pixels, of the screen that the cards were drawn for.
constexpr double PlannedScreenWidth = 1920.0;

// The window titles by which the combo boxes with a list are known.
const QLatin1String HourBoxTag("timeBox");
const QLatin1String DurationBoxTag("timeLengthBox");

/// A planned width on the primary screen.
int scaledWidth(int width)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) {
        return width;
    }
    return static_cast<int>(
        width * (screen->availableGeometry().width() / PlannedScreenWidth / screen->devicePixelRatio()));
}

/// What all controls of the rows have in common.
void prepare(QWidget &control, const QString &accessibleName, int minimumWidth)
{
    control.setMinimumWidth(minimumWidth);
    control.setFont(LFontSizeManager::instance()->get(LFontSizeManager::T6, control.font()));
    control.setAccessibleName(accessibleName);
    // On this platform a combo box's accessible name is its current text; only the description tells two of
    // them apart.
    control.setAccessibleDescription(accessibleName);
    CardTheme::setText(control, CardTheme::ValueAlpha);
    // A mouse event that a control ignores must not reach the card behind it.
    control.setAttribute(Qt::WA_NoMousePropagation);
}

/// The only control of a row, still to be added to its layout.
template <typename Control>
Control *wideControl(const ConferenceRows::CaptionedRow &row, const QString &accessibleName)
{
    auto *control = new Control(row.widget);
    prepare(*control, accessibleName, scaledWidth(WideControlWidth));
    row.caption->setBuddy(control);
    return control;
}

} // namespace

ConferenceEditor::ConferenceEditor(QWidget *card) : QObject(card) {}

int ConferenceEditor::sendChange() const
{
    const QString request = RequestText::updateConference(m_conferences.first());
    const int code = ConferenceCardInterface::instance()->UpdateVideoConference(request);
    qCDebug(defaultLog) << "create conference code:" << code;
    return code;
}

int ConferenceEditor::sendCancellation() const
{
    // A copy: the editor may be deleted while the request runs.
    const QString conferenceId = m_conferences.first().confId;
    const int code = ConferenceCardInterface::instance()->deleteVideoConference(conferenceId);
    qCDebug(defaultLog) << "Cancle conference code:" << code;
    return code;
}

QWidget *ConferenceEditor::beginTime(const ContactDetailMsg &conference, QWidget *card)
{
    const auto row = ConferenceRows::captioned(ConferenceRows::beginTimeCaption(), card);
    QWidget *picker = datePicker(conference, row.widget, card);
    row.caption->setBuddy(picker);
    row.layout->addWidget(picker);
    row.layout->addSpacing(CardMeasures::Spacing);
    row.layout->addWidget(hourBox(conference, row.widget, card), 0, Qt::AlignRight);
    return row.widget;
}

QWidget *ConferenceEditor::timeLength(const ContactDetailMsg &conference, QWidget *card)
{
    const auto row = ConferenceRows::captioned(ConferenceRows::timeLengthCaption(), card);
    auto *box = wideControl<LComboBox>(row, ConferenceRows::timeLengthCaption());
    box->setWindowTitle(DurationBoxTag);
    box->installEventFilter(card);
    // Before adding items: the first one sets the working duration, which keeps it in line with the box even
    // for a duration that is not on offer.
    connect(box, &QComboBox::currentTextChanged, this, [this](const QString &label) {
        m_draft.working().duration = m_durations.duration(label);
        edited();
    });
    box->addItems(m_durations.choices(conference.isPayingUser));
    box->setCurrentText(m_durations.label(conference.duration));
    row.layout->addWidget(box);
    return row.widget;
}

QWidget *ConferenceEditor::personNum(const ContactDetailMsg &conference, QWidget *card)
{
    const auto row = ConferenceRows::captioned(ConferenceRows::personNumCaption(), card);
    auto *box = wideControl<LSpinBox>(row, ConferenceRows::personNumCaption());
    box->setEnabledEmbedStyle(true);
    const int most = ParticipantLimits::most(conference);
    box->setRange(ParticipantLimits::Least, qMax(ParticipantLimits::Least, most));
    box->setValue(conference.participantLimit);
    // A count outside the box's range is sent unchanged until the user sets another one.
    m_draft.working().participantLimit = conference.participantLimit;
    connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int limit) {
        m_draft.working().participantLimit = limit;
        edited();
    });
    row.layout->addWidget(box);
    return row.widget;
}

QWidget *ConferenceEditor::datePicker(const ContactDetailMsg &conference, QWidget *row, QObject *eventFilter)
{
    auto *picker = new CustomizeComboBox(row);
    prepare(*picker, QStringLiteral("日期"), scaledWidth(DatePickerWidth));
    picker->installEventFilter(eventFilter);
    connect(picker, &CustomizeComboBox::signalSelectionDate, this, [this](const QDate &date) {
        m_draft.working().startDate = date;
        edited();
    });
    picker->slotSelectionData(ConferenceValues::of(conference).startDate);
    return picker;
}

QWidget *ConferenceEditor::hourBox(const ContactDetailMsg &conference, QWidget *row, QObject *eventFilter)
{
    auto *box = new LComboBox(row);
    prepare(*box, QStringLiteral("开始时间"), scaledWidth(HourBoxWidth));
    box->setWindowTitle(HourBoxTag);
    box->installEventFilter(eventFilter);
    const QTime start = ConferenceValues::of(conference).startTime;
    box->addItems(ConferenceHours::choices());
    box->setCurrentText(ConferenceHours::label(start));
    // Only now: a start at 09:30 is kept until the user picks an hour.
    m_draft.working().startTime = start;
    connect(box, &QComboBox::currentTextChanged, this, [this](const QString &label) {
        m_draft.working().startTime = ConferenceHours::time(label);
        edited();
    });
    return box;
}

QWidget *ConferenceEditor::buttons(QWidget *card)
{
    auto *row = new QWidget(card);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(CardMeasures::Spacing);
    m_buttons.clear();
    const auto add = [this, layout, card](QPushButton *button) {
        CardButtons::prepare(*button, card);
        layout->addWidget(button);
        m_buttons.append(button);
    };

    m_cancelButton = new QPushButton(QStringLiteral("取 消"), row);
    add(m_cancelButton);

    QPushButton *divider = ConferenceRows::line(row);
    divider->setFixedWidth(CardMeasures::LineThickness);
    layout->addWidget(divider);

    m_modifyButton = new LSuggestButton(QStringLiteral("修 改"), row);
    m_modifyButton->setEnabled(false);
    add(m_modifyButton);
    return row;
}

bool ConferenceEditor::owns(const QPushButton *button) const
{
    return button != nullptr && std::find(m_buttons.cbegin(), m_buttons.cend(), button) != m_buttons.cend();
}

bool ConferenceEditor::isListBox(const QWidget &control)
{
    return control.windowTitle() == HourBoxTag || control.windowTitle() == DurationBoxTag;
}

void ConferenceEditor::edited()
{
    if (!m_modifyButton.isNull()) {
        m_modifyButton->setEnabled(isChanged());
    }
}
