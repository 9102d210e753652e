// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Fuzzes cards made of any answer, with a user who clicks and types at random while the application answers
// at random. Sets QT_QPA_PLATFORM=offscreen itself.

#include "answertemplates.h"
#include "conferencecardinterface.h"
#include "conferencemsgstaticwidget.h"
#include "contactreplywidget.h"
#include "contactutils.h"
#include "request/processcheck.h"
#include "signalactiontype.h"
#include "templatetext.h"

#include <kelvane/kelvaneabilitymanager.h>
#include <lumo/lguiapplicationhelper.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QJsonDocument>
#include <QLabel>
#include <QPointer>
#include <QtTest>

namespace {

/// What the application answers to the card's requests.
int abilityCode = 0;
QString abilityAnswer; // clazy:exclude=non-pod-global-static

class FuzzedAbility : public ContactAbility
{
public:
    void setTimeout(const int &msecs) override { require(msecs > 0); }
    int request(const QString &action, const QString &parameters, QString &answer) override
    {
        require(!action.isEmpty());
        require(parameters.isEmpty() || QJsonDocument::fromJson(parameters.toUtf8()).isObject());
        if (abilityCode == 0) {
            answer = abilityAnswer;
        }
        return abilityCode;
    }
};

QVariant record(FuzzedDataProvider &bytes, int action)
{
    const auto text = [&bytes](const char *chosen) {
        return QString::fromUtf8(TemplateText(bytes).after(chosen));
    };
    if (action == Invite_Duplicate || action == Invite_ExceedLimit) {
        ContactInviteMemberDetail detail;
        static_cast<void>(ContactUtils::analyzeResultContext(
            text(action == Invite_Duplicate ? AnswerTemplate::People : AnswerTemplate::TooMany), {}, detail));
        return QVariant::fromValue(detail);
    }
    if (action == JoinMy_List || action == Query_List) {
        ContactQueryConferenceDetail detail;
        static_cast<void>(ContactUtils::analyzeQueryResultContext(text(AnswerTemplate::Conferences), 0,
                                                                  detail.conferences));
        return QVariant::fromValue(detail);
    }
    ContactCreatedConferenceDetail detail;
    static_cast<void>(ContactUtils::analyzeResultContext(
        text(action == Create_Duplicate ? AnswerTemplate::People : AnswerTemplate::Conferences), {}, true,
        1772850000000, detail));
    return QVariant::fromValue(detail);
}

/// A visible widget in @p card other than a label, or the card itself.
QWidget *anyWidget(FuzzedDataProvider &bytes, QWidget &card)
{
    QList<QWidget *> widgets{&card};
    const auto children = card.findChildren<QWidget *>();
    for (QWidget *child : children) {
        // Click what reacts to clicks; labels pass them on.
        if (child->isVisible() && qobject_cast<QLabel *>(child) == nullptr) {
            widgets.append(child);
        }
    }
    return widgets.at(bytes.ConsumeIntegralInRange(0, widgets.size() - 1));
}

void touch(FuzzedDataProvider &bytes, QWidget &card)
{
    static const Qt::Key keys[] = {Qt::Key_Tab,   Qt::Key_Return, Qt::Key_Space, Qt::Key_Down,
                                   Qt::Key_Right, Qt::Key_Up,     Qt::Key_5,     Qt::Key_Backspace};
    // Most clicks go to a button: that is where cards change.
    const auto buttons = card.findChildren<QAbstractButton *>();
    QWidget *widget = anyWidget(bytes, card);
    switch (bytes.ConsumeIntegralInRange(0, 6)) {
    case 0:
    case 1:
        if (!buttons.isEmpty()) {
            widget = buttons.at(bytes.ConsumeIntegralInRange(0, buttons.size() - 1));
        }
        QTest::mouseClick(widget, Qt::LeftButton);
        break;
    case 2:
        QTest::mouseClick(
            widget, Qt::LeftButton, {},
            QPoint(bytes.ConsumeIntegralInRange(0, qMax(0, widget->width() - 1)), widget->height() / 2));
        break;
    case 3:
        QTest::keyClick(widget, bytes.PickValueInArray(keys));
        break;
    case 4:
        if (auto *box = qobject_cast<QComboBox *>(widget)) {
            box->setCurrentIndex(bytes.ConsumeIntegralInRange(-1, box->count()));
        } else {
            widget->setFocus(bytes.ConsumeBool() ? Qt::TabFocusReason : Qt::MouseFocusReason);
        }
        break;
    case 5:
        card.resize(bytes.ConsumeIntegralInRange(0, 1200), card.height());
        break;
    default:
        LGuiApplicationHelper::instance()->setPaletteType(
            bytes.ConsumeBool() ? LGuiApplicationHelper::DarkType : LGuiApplicationHelper::LightType);
    }
    if (QWidget *popup = QApplication::activePopupWidget()) {
        popup->close();
    }
}

/// Requires that no label of a card takes what others wrote for markup.
void requirePlainText(const QWidget &card)
{
    const auto labels = card.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        require(label->textFormat() == Qt::PlainText);
    }
}

} // namespace

// Replace the real ones: no bus, no process table.

ContactAbility *KelvaneAbilityManager::createContact()
{
    return new FuzzedAbility;
}

bool contactsApplicationIsRunning()
{
    return true;
}

void prepareToFuzz(int &argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QApplication application(argc, argv);
    static const ContactReplyWidget dispatcher;
}

void fuzz(FuzzedDataProvider &bytes)
{
    const int action = bytes.ConsumeIntegralInRange<int>(Create_Success, Query_List + 1);
    // Once in a while, the record belongs to another action.
    const bool fits = bytes.ConsumeIntegralInRange(0, 15) != 15;
    const QVariant payload = record(bytes, fits ? action : bytes.ConsumeIntegralInRange<int>(0, Query_List));
    Reply reply;
    ConferenceCardInterface::instance()->noticeSentActionSignals(action, payload, &reply);
    require(reply.widget != nullptr && (reply.type & Reply::Card) != 0);
    const QPointer<QWidget> card(reply.widget);
    requirePlainText(*card);
    card->show();
    QApplication::processEvents();

    abilityCode = bytes.ConsumeIntegralInRange(0, 3) < 3 ? 0 : -16020;
    abilityAnswer = QString::fromUtf8(TemplateText(bytes).after(AnswerTemplate::Outcome));
    const QObject context;
    if (bytes.ConsumeBool()) {
        // A host that deletes the card as soon as it answers.
        QObject::connect(static_cast<ConferenceMsgStaticWidget *>(card.data()),
                         &ConferenceMsgStaticWidget::signalSendShowMessgae, &context,
                         [&card](const Reply &) { delete card.data(); });
    }
    for (int touches = bytes.ConsumeIntegralInRange(0, 12); touches > 0 && !card.isNull(); --touches) {
        touch(bytes, *card);
    }
    QApplication::processEvents();
    if (!card.isNull()) {
        requirePlainText(*card);
        static_cast<void>(card->grab());
        delete card.data();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    require(QApplication::topLevelWidgets().isEmpty());
}
