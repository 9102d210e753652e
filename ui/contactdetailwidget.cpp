// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactdetailwidget.h"

#include "card/cardlabel.h"
#include "card/cardmeasures.h"
#include "card/conferencedurations.h"
#include "card/participantlimits.h"
#include "conferencecardinterface.h"
#include "defaultlog.h"
#include "request/requesttexts.h"

#include <lumo/lcombobox.h>
#include <lumo/lfontsizemanager.h>
#include <lumo/lspinbox.h>

#include <QDateTime>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include <array>

namespace {

constexpr int Gap = 20; ///< between the rows and around them
constexpr int ColumnCount = 5;
constexpr int ControlWidth = 100;
constexpr int UnitSpacing = 5;

constexpr std::array OfferedMinutes = {15, 30};

QString minutesText(qint64 minutes)
{
    return QString::number(minutes) + QStringLiteral("分钟");
}

/// A CardLabel, because other people wrote the titles and names.
CardLabel *makeLabel(const QString &text, LFontSizeManager::SizeType size, QWidget *parent)
{
    auto *label = new CardLabel(text, parent);
    label->setFont(LFontSizeManager::instance()->get(size, label->font()));
    return label;
}

CardLabel *makeUnit(const QString &text, QWidget *parent)
{
    CardLabel *label = makeLabel(text, LFontSizeManager::T6, parent);
    label->setFixedWidth(CardMeasures::CaptionWidth);
    return label;
}

/// The layout of a row with a control and its unit.
QHBoxLayout *makeRow(QWidget *row)
{
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(UnitSpacing);
    layout->setAlignment(Qt::AlignLeft);
    return layout;
}

/// A combo box of the integers @p first to @p last, without a unit, because the texts are read as numbers.
LComboBox *makeNumberCombo(int first, int last, int current, const QString &accessibleName, QWidget *parent)
{
    auto *combo = new LComboBox(parent);
    for (int number = first; number <= last; ++number) {
        combo->addItem(QString::number(number));
    }
    combo->setCurrentText(QString::number(current));
    combo->setAccessibleName(accessibleName);
    return combo;
}

} // namespace

ContactDetailWidget::ContactDetailWidget(QWidget *parent) : QWidget(parent), m_grid(new QGridLayout(this)) {}

void ContactDetailWidget::init() {}

void ContactDetailWidget::gridLayout(const QVector<ContactDetailMsg> &list)
{
    m_grid->setContentsMargins(Gap, Gap, Gap, Gap);
    m_grid->setSpacing(Gap);
    if (list.isEmpty()) {
        return;
    }
    m_conference = list.first();

    m_grid->addWidget(makeLabel(m_conference.title, LFontSizeManager::T6, this), 0, 0, 1, ColumnCount);
    addRow(QStringLiteral("开始时间"), createMeetingTimeWidget(m_conference));
    addRow(QStringLiteral("时长"), createMeetingTimeLengthWidget(m_conference));
    addRow(QStringLiteral("参会方数"), createMeegtingPersonNumWidget(m_conference));
    addRow(QStringLiteral("参与人"), createConferenceInvite(list));
    addButtons();
}

QWidget *ContactDetailWidget::createMeetingTimeWidget(const ContactDetailMsg &conference)
{
    const QDateTime start = QDateTime::fromMSecsSinceEpoch(conference.startTime);
    auto *row = new QWidget(this);
    QHBoxLayout *layout = makeRow(row);

    m_month = makeNumberCombo(1, 12, start.date().month(), QStringLiteral("月"), row);
    m_day = makeNumberCombo(1, start.date().daysInMonth(), start.date().day(), QStringLiteral("日"), row);
    m_hour = makeNumberCombo(0, 23, start.time().hour(), QStringLiteral("开始时间"), row);
    layout->addWidget(m_month);
    layout->addWidget(makeUnit(QStringLiteral("月"), row));
    layout->addWidget(m_day);
    layout->addWidget(makeUnit(QStringLiteral("日"), row));
    layout->addWidget(m_hour);
    connect(m_month, &QComboBox::currentTextChanged, this, &ContactDetailWidget::fillDays);
    return row;
}

QWidget *ContactDetailWidget::createMeetingTimeLengthWidget(const ContactDetailMsg &conference)
{
    m_duration = new LComboBox(this);
    m_duration->setFixedWidth(ControlWidth);
    m_duration->setAccessibleName(QStringLiteral("时长"));
    // The conference may have a duration that is not on offer. It is shown, and kept unless another one is
    // picked; only an editable combo box can show a text that is not among its items.
    m_duration->setEditable(true);
    m_duration->setInsertPolicy(QComboBox::NoInsert);
    m_duration->lineEdit()->setReadOnly(true);
    for (const int minutes : OfferedMinutes) {
        m_duration->addItem(minutesText(minutes));
    }
    m_duration->setCurrentText(minutesText(conference.duration / ConferenceDurations::Minute));
    return m_duration;
}

QWidget *ContactDetailWidget::createMeegtingPersonNumWidget(const ContactDetailMsg &conference)
{
    auto *row = new QWidget(this);
    QHBoxLayout *layout = makeRow(row);
    m_personNum = new LSpinBox(row);
    m_personNum->setFixedWidth(ControlWidth);
    m_personNum->setAccessibleName(QStringLiteral("参会方数"));
    m_personNum->setRange(ParticipantLimits::Least, ParticipantLimits::most(conference));
    m_personNum->setValue(conference.participantLimit);
    layout->addWidget(m_personNum);
    layout->addWidget(makeUnit(QStringLiteral("人"), row));
    return row;
}

QWidget *ContactDetailWidget::createConferenceInvite(const QVector<ContactDetailMsg> &list)
{
    QStringList names;
    if (!list.isEmpty()) {
        for (const UserInfo &participant : list.first().participants) {
            names.append(participant.name);
        }
    }
    return makeLabel(names.join(QLatin1Char(' ')), LFontSizeManager::T6, this);
}

void ContactDetailWidget::slotsClickConfirm()
{
    qCDebug(defaultLog) << "slotsClickConfirm";
    if (m_hour == nullptr || m_duration == nullptr || m_personNum == nullptr) {
        return; // the form is not built
    }
    const QDateTime start = chosenStart();
    qCDebug(defaultLog) << "startTime:" << start;
    // The form may be gone when the call returns.
    const int code = ConferenceCardInterface::instance()->UpdateVideoConference(
        RequestText::updateConference(changedConference(start)));
    qCDebug(defaultLog) << code;
}

void ContactDetailWidget::slotsClickCancel()
{
    qCDebug(defaultLog) << "slotsClickCancel";
}

void ContactDetailWidget::addRow(const QString &caption, QWidget *control)
{
    const int row = m_grid->rowCount();
    CardLabel *label = makeLabel(caption, LFontSizeManager::T7, this);
    label->setFixedWidth(CardMeasures::CaptionWidth);
    m_grid->addWidget(label, row, 0);
    m_grid->addWidget(control, row, 1, 1, ColumnCount - 1);
}

void ContactDetailWidget::addButtons()
{
    auto *row = new QWidget(this);
    QHBoxLayout *layout = makeRow(row);
    layout->setSpacing(Gap);
    m_cancel = new QPushButton(QStringLiteral("取 消"), row);
    m_confirm = new QPushButton(QStringLiteral("确 认"), row);
    connect(m_cancel, &QPushButton::clicked, this, &ContactDetailWidget::slotsClickCancel);
    connect(m_confirm, &QPushButton::clicked, this, &ContactDetailWidget::slotsClickConfirm);
    layout->addWidget(m_cancel);
    layout->addWidget(m_confirm);
    m_grid->addWidget(row, m_grid->rowCount(), 0, 1, ColumnCount);
}

void ContactDetailWidget::fillDays()
{
    const int year = QDateTime::fromMSecsSinceEpoch(m_conference.startTime).date().year();
    const int days = QDate(year, m_month->currentText().toInt(), 1).daysInMonth();
    while (m_day->count() > days) {
        m_day->removeItem(m_day->count() - 1);
    }
    for (int day = m_day->count() + 1; day <= days; ++day) {
        m_day->addItem(QString::number(day));
    }
    if (m_day->currentIndex() < 0) {
        m_day->setCurrentIndex(days - 1);
    }
}

QDateTime ContactDetailWidget::chosenStart() const
{
    const int year = QDateTime::fromMSecsSinceEpoch(m_conference.startTime).date().year();
    const QDate date(year, m_month->currentText().toInt(), m_day->currentText().toInt());
    const QTime time(m_hour->currentText().toInt(), 0);
    // The round trip through text rejects whatever cannot be read back as a start.
    const QString text = date.toString(QStringLiteral("yyyy-MM-dd")) + QLatin1Char(' ') +
                         time.toString(QStringLiteral("hh:mm:ss"));
    return QDateTime::fromString(text, QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

ContactDetailMsg ContactDetailWidget::changedConference(const QDateTime &start) const
{
    QString minutes = m_duration->currentText();
    minutes.chop(QStringLiteral("分钟").size());
    ContactDetailMsg changed = m_conference;
    changed.startTime = start.toMSecsSinceEpoch();
    changed.duration = minutes.toLongLong() * ConferenceDurations::Minute;
    changed.participantLimit = m_personNum->value();
    return changed;
}
