// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conferencemsgstaticwidget.h"

#include "cardgateway.h"
#include "cardtext.h"
#include "conferenceeditor.h"
#include "conferencerows.h"
#include "customizeitem.h"

#include <lumo/lcommandlinkbutton.h>
#include <lumo/lguiapplicationhelper.h>
#include <lumo/lsuggestbutton.h>

#include <QtCore/QDebug>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtGui/QScreen>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace {

/// The width, in physical pixels, of the screen that the cards were drawn for.
constexpr double PlannedScreenWidth = 1920.0;
constexpr int Margin = 10;
constexpr int Spacing = 10;
constexpr int LineHeight = 1;
constexpr double CornerRadius = 8.0;
constexpr int FocusFrameWidth = 4;

constexpr int ShownConferences = 3;
constexpr int ItemRadius = 8;
constexpr int FooterWidth = 200;

double widthScale()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (screen == nullptr)
        return 1.0;
    return screen->availableGeometry().width() / PlannedScreenWidth / screen->devicePixelRatio();
}

bool isConfirmKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool isOpenKey(const QKeyEvent &event)
{
    return isConfirmKey(event) || event.key() == Qt::Key_Space;
}

QColor backgroundColor()
{
    if (LGuiApplicationHelper::instance()->themeType() == LGuiApplicationHelper::LightType)
        return QColor(247, 247, 247, 200);
    QColor color(QStringLiteral("#191919"));
    color.setAlpha(204);
    return color;
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
    connect(LGuiApplicationHelper::instance(), &LGuiApplicationHelper::themeTypeChanged, this,
            &ConferenceMsgStaticWidget::followTheme);
}

void ConferenceMsgStaticWidget::singleInit(const QVector<ContactDetailMsg> &list)
{
    if (list.isEmpty())
        return;
    m_rows.clear();
    m_mode = Single;
    const ContactDetailMsg &conference = list.first();
    m_layout->addWidget(getConferenceTitleWidget());
    m_layout->addWidget(getConferenceStatusWidget(conference, true));
    addLine();
    m_layout->addWidget(getConferenceNumberWidget(conference));
    m_layout->addWidget(getConferenceBeginTimeWidget(conference, true));
    m_layout->addWidget(getConferenceTimeLengthWidget(conference, true));
    m_layout->addWidget(getConferencePersonNumWidget(conference, true));
    m_layout->addWidget(getConferenceparticipateNameWidget(conference));
    update();
    adjustSize();
}

void ConferenceMsgStaticWidget::multipleInit(const QVector<ContactDetailMsg> &list)
{
    if (list.isEmpty())
        return;
    m_mode = List;
    m_layout->addWidget(getConferenceTitleWidget());
    for (int i = 0; i < qMin(list.size(), ShownConferences); ++i)
        m_layout->addWidget(conferenceItem(list.at(i)));
    if (list.size() > ShownConferences)
        m_layout->addWidget(footer(list.size()));
    adjustSize();
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
    CardText::setColor(*widget, alpha);
}

void ConferenceMsgStaticWidget::openContactApp()
{
    // The application tells the user itself when it cannot show its list.
    CardGateway::openConferenceList();
}

bool ConferenceMsgStaticWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn)
        m_controlFocusReason = static_cast<QFocusEvent *>(event)->reason();
    if (event->type() == QEvent::KeyPress) {
        const auto &key = static_cast<const QKeyEvent &>(*event);
        const QPointer<QObject> alive(watched);
        if (isConfirmKey(key) && !key.isAutoRepeat())
            activate(watched);
        // Deleted with the card by whoever heard of the click: there is nobody left to give the event to.
        if (alive.isNull())
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

void ConferenceMsgStaticWidget::focusInEvent(QFocusEvent *event)
{
    qDebug() << "focusInEvent";
    if (event->reason() == Qt::TabFocusReason) {
        m_focusedByKeyboard = true;
        update();
    }
}

void ConferenceMsgStaticWidget::focusOutEvent(QFocusEvent * /*event*/)
{
    m_focusedByKeyboard = false;
    update();
}

void ConferenceMsgStaticWidget::keyPressEvent(QKeyEvent *event)
{
    if (!hasFocus() || !isOpenKey(*event)) {
        QWidget::keyPressEvent(event);
        return;
    }
    // Acted on when the key is let go; the host's default button is not meant.
    if (!event->isAutoRepeat())
        m_ignoresNextRelease = false;
}

void ConferenceMsgStaticWidget::keyReleaseEvent(QKeyEvent *event)
{
    if (!hasFocus() || !isOpenKey(*event)) {
        QWidget::keyReleaseEvent(event);
        return;
    }
    if (event->isAutoRepeat() || !isEnabled())
        return;
    if (m_ignoresNextRelease)
        m_ignoresNextRelease = false;
    else
        openContactApp();
}

void ConferenceMsgStaticWidget::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    if (isEnabled())
        openContactApp();
}

void ConferenceMsgStaticWidget::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(backgroundColor());
    if (m_focusedByKeyboard) {
        QPen pen = painter.pen();
        pen.setColor(QColor(0, 129, 255));
        pen.setWidth(FocusFrameWidth);
        painter.setPen(pen);
    } else {
        painter.setPen(Qt::transparent);
    }
    painter.drawRoundedRect(0, 0, width(), height(), CornerRadius, CornerRadius, Qt::AbsoluteSize);
}

void ConferenceMsgStaticWidget::resizeEvent(QResizeEvent * /*event*/)
{
    // The layout does what is to be done.
}

QWidget *ConferenceMsgStaticWidget::listed(QWidget *row)
{
    m_rows.append(row);
    return row;
}

void ConferenceMsgStaticWidget::addLine()
{
    QPushButton *line = ConferenceRows::line(this);
    line->setFixedHeight(LineHeight);
    m_layout->addWidget(listed(line));
}

QWidget *ConferenceMsgStaticWidget::conferenceItem(const ContactDetailMsg &conference)
{
    auto *item = new CustomizeItem(this);
    item->setRaidus(ItemRadius);
    item->setBackGroundColor(QColor(0, 0, 0, 7));
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
    auto *link = new LCommandLinkButton(QStringLiteral("在“联系人”中查看所有%1个结果…").arg(count), this);
    link->setFont(LFontSizeManager::instance()->get(LFontSizeManager::T8, link->font()));
    link->setFixedWidth(FooterWidth);
    link->setAutoDefault(false);
    // The same in both themes.
    QPalette palette = link->palette();
    palette.setBrush(QPalette::All, QPalette::ButtonText, QColor(0, 0, 0, 102));
    palette.setBrush(QPalette::All, QPalette::WindowText, QColor(0, 0, 0, 102));
    link->setPalette(palette);
    link->installEventFilter(this);
    connect(link, &QPushButton::clicked, this, &ConferenceMsgStaticWidget::openContactApp);
    m_footerButton = link;
    return link;
}

void ConferenceMsgStaticWidget::activate(QObject *control)
{
    if (auto *button = qobject_cast<QPushButton *>(control)) {
        const bool isAction = button == m_cancelButton || button == m_modifyButton ||
                              button == m_confirmButton || button == m_footerButton;
        if (!isAction || !button->isEnabled())
            return;
        // The action may remove the button and leave the focus with the card, which then hears of the key
        // being let go.
        m_ignoresNextRelease = true;
        Q_EMIT button->clicked();
        return;
    }
    auto *box = qobject_cast<QComboBox *>(control);
    if (box != nullptr && (box->windowTitle() == ConferenceEditor::hourBoxTag() ||
                           box->windowTitle() == ConferenceEditor::durationBoxTag()))
        box->showPopup();
}

void ConferenceMsgStaticWidget::updateModifyButton()
{
    if (!m_modifyButton.isNull())
        m_modifyButton->setEnabled(getConferenceMsgState());
}

void ConferenceMsgStaticWidget::followTheme()
{
    CardText::followTheme(*this);
    update();
}
