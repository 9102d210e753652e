// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactwidget.h"

#include "conferencemsgstaticwidget.h"
#include "contactdetailwidget.h"
#include "testcolumns.h"
#include "titleitem.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

namespace {

QVector<ContactDetailMsg> conferences(int count)
{
    QVector<ContactDetailMsg> list(count);
    for (int i = 0; i < count; ++i) {
        list[i].title = QStringLiteral("conference %1").arg(i);
    }
    return list;
}

bool showsText(const QWidget &widget, const QString &text)
{
    const auto labels = widget.findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(),
                       [&text](const QLabel *label) { return label->text() == text; });
}

} // namespace

class TestContactWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theEditorStandsUnderATitle();
    void theCardStandsUnderATitle_data();
    void theCardStandsUnderATitle();
    void withoutConferencesItIsEmpty();
    void itHasNoLayoutBeforeItIsInitialised();
    void tabReachesTheTitle();

private:
    static void checkFrame(const ContactWidget &widget, int titleHeight);
};

void TestContactWidget::checkFrame(const ContactWidget &widget, int titleHeight)
{
    const auto *layout = qobject_cast<QVBoxLayout *>(widget.layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->alignment(), Qt::AlignTop);
    QCOMPARE(layout->count(), 2);
    const auto *title = qobject_cast<TiTleItem *>(layout->itemAt(0)->widget());
    QVERIFY(title != nullptr);
    QCOMPARE(title->height(), titleHeight);
    QCOMPARE(title->accessibleName(), QStringLiteral("联系人"));
    QCOMPARE(title->focusPolicy(), Qt::TabFocus);
}

void TestContactWidget::itHasNoLayoutBeforeItIsInitialised()
{
    ContactWidget widget(Query_List);
    QCOMPARE(widget.layout(), nullptr);
    widget.initStatic(Query_List, conferences(1));
    checkFrame(widget, 62);
}

void TestContactWidget::tabReachesTheTitle()
{
    QWidget window;
    auto *before = new QLineEdit(&window);
    auto *widget = new ContactWidget(Query_List, &window);
    widget->setFocusPolicy(Qt::NoFocus);
    widget->resize(420, 500);
    widget->initStatic(Query_List, conferences(1));
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    before->setFocus();
    QTest::keyClick(before, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), widget->layout()->itemAt(0)->widget());
}

void TestContactWidget::theEditorStandsUnderATitle()
{
    ContactWidget widget(Create_Success);
    widget.resize(420, 500);
    widget.init(Create_Success, conferences(2));
    checkFrame(widget, 60);
    const auto *editor = qobject_cast<ContactDetailWidget *>(widget.layout()->itemAt(1)->widget());
    QVERIFY(editor != nullptr);
    QCOMPARE(editor->minimumWidth(), 420);
    QCOMPARE(editor->maximumWidth(), 420);
    QVERIFY(showsText(*editor, QStringLiteral("conference 0")));
    QVERIFY(!showsText(*editor, QStringLiteral("conference 1")));
}

void TestContactWidget::theCardStandsUnderATitle_data()
{
    addColumns<int, int>({"count", "mode"});
    QTest::newRow("one conference is shown whole") << 1 << int(ConferenceMsgStaticWidget::Single);
    QTest::newRow("two make a list") << 2 << int(ConferenceMsgStaticWidget::List);
    QTest::newRow("and so do five") << 5 << int(ConferenceMsgStaticWidget::List);
}

void TestContactWidget::theCardStandsUnderATitle()
{
    QFETCH(int, count);
    QFETCH(int, mode);
    ContactWidget widget(Query_List);
    widget.resize(420, 500);
    widget.initStatic(Query_List, conferences(count));
    checkFrame(widget, 62);
    const auto *card = qobject_cast<ConferenceMsgStaticWidget *>(widget.layout()->itemAt(1)->widget());
    QVERIFY(card != nullptr);
    QCOMPARE(card->minimumWidth(), 420);
    QCOMPARE(card->maximumWidth(), 420);
    QCOMPARE(int(card->mode()), mode);
    QVERIFY(showsText(*card, QStringLiteral("conference 0")));
    QCOMPARE(showsText(*card, QStringLiteral("conference 1")), count > 1);
    // Until the layout is activated, the card of a list stays where it was placed.
    if (count > 1) {
        QCOMPARE(card->pos(), QPoint(0, (500 - 62) / 2));
    }
}

void TestContactWidget::withoutConferencesItIsEmpty()
{
    ContactWidget widget(Query_List);
    widget.resize(420, 500);
    widget.initStatic(Query_List, {});
    checkFrame(widget, 62);
    QVERIFY(widget.findChildren<QLabel *>().isEmpty());

    ContactWidget editor(Create_Success);
    editor.resize(420, 500);
    editor.init(Create_Success, {});
    checkFrame(editor, 60);
    QVERIFY(editor.findChildren<QLabel *>().isEmpty());
}

QTEST_MAIN(TestContactWidget)
#include "tst_contactwidget.moc"
