// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactdetailform.h"

#include "testcolumns.h"

#include <lumo/llabel.h>

#include <QLineEdit>
#include <QtTest>

namespace {

QStringList items(const QComboBox &combo)
{
    QStringList texts;
    for (int i = 0; i < combo.count(); ++i) {
        texts.append(combo.itemText(i));
    }
    return texts;
}

QStringList numbers(int first, int last)
{
    QStringList texts;
    for (int number = first; number <= last; ++number) {
        texts.append(QString::number(number));
    }
    return texts;
}

} // namespace

/// What the form shows and offers.
class TestContactDetailWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theGrid();
    void longTextsAreElided();
    void onlyTheFirstConferenceIsShown();
    void withoutConferenceTheFormIsEmpty();
    void theStartIsChosenByMonthDayAndHour();
    void theDaysAreThoseOfTheMonth_data();
    void theDaysAreThoseOfTheMonth();
    void twoDurationsAreOffered_data();
    void twoDurationsAreOffered();
    void theHeadCountsBounds_data();
    void theHeadCountsBounds();
    void theParticipantsAreNamed();
};

void TestContactDetailWidget::theGrid()
{
    const Form form({conference()});
    QGridLayout *grid = form.grid();
    QVERIFY(grid != nullptr);
    QCOMPARE(grid->contentsMargins(), QMargins(20, 20, 20, 20));
    QCOMPARE(grid->horizontalSpacing(), 20);
    QCOMPARE(grid->verticalSpacing(), 20);
    QCOMPARE(grid->columnCount(), 5);

    const QStringList captions{QStringLiteral("开始时间"), QStringLiteral("时长"), QStringLiteral("参会方数"),
                               QStringLiteral("参与人")};
    QStringList found;
    int lastRow = 0;
    for (int i = 0; i < grid->count(); ++i) {
        int row = 0;
        int column = 0;
        int rowSpan = 0;
        int columnSpan = 0;
        grid->getItemPosition(i, &row, &column, &rowSpan, &columnSpan);
        QCOMPARE(rowSpan, 1);
        const QWidget *widget = grid->itemAt(i)->widget();
        if (row == 0) {
            QCOMPARE(columnSpan, 5);
            QCOMPARE(qobject_cast<const LLabel *>(widget)->text(), QStringLiteral("周会"));
        } else if (column == 0 && columnSpan == 1) {
            QCOMPARE(row, lastRow + 1);
            QCOMPARE(widget->minimumWidth(), 60);
            QCOMPARE(widget->maximumWidth(), 60);
            found.append(qobject_cast<const LLabel *>(widget)->text());
        } else if (column == 1) {
            QCOMPARE(columnSpan, 4);
            QCOMPARE(row, lastRow);
        }
        lastRow = row;
    }
    QCOMPARE(found, captions);
    for (int row = 1; row < lastRow; ++row) {
        if (grid->itemAtPosition(row, 0) == nullptr) {
            continue; // QGridLayout's initial row is empty
        }
        QVERIFY(grid->itemAtPosition(row, 1) != nullptr);
        QVERIFY(grid->itemAtPosition(row, 1)->widget() != grid->itemAtPosition(row, 0)->widget());
        QCOMPARE(grid->itemAtPosition(row, 4), grid->itemAtPosition(row, 1));
    }
    QVERIFY(grid->itemAtPosition(lastRow, 0)->widget()->isAncestorOf(form.button(QStringLiteral("取 消"))));
    QVERIFY(grid->itemAtPosition(lastRow, 0)->widget()->isAncestorOf(form.button(QStringLiteral("确 认"))));
}

void TestContactDetailWidget::longTextsAreElided()
{
    const int usual = Form({conference()}).widget.minimumSizeHint().width();
    ContactDetailMsg talkative = conference();
    talkative.title = QString(300, QChar(0x4f1a));
    talkative.participants = {{QString(300, QChar(0x4eba)), {}, {}, {}}};
    const Form form({talkative});
    QCOMPARE(form.widget.minimumSizeHint().width(), usual);
    int whole = 0;
    const auto labels = form.widget.findChildren<LLabel *>();
    for (const LLabel *label : labels) {
        whole += label->text() == talkative.title ? 1 : 0;
    }
    QCOMPARE(whole, 1);
}

void TestContactDetailWidget::onlyTheFirstConferenceIsShown()
{
    ContactDetailMsg second = conference();
    second.title = QStringLiteral("other");
    const Form form({conference(), second});
    const auto labels = form.widget.findChildren<LLabel *>();
    for (const LLabel *label : labels) {
        QVERIFY(label->text() != second.title);
    }
}

void TestContactDetailWidget::withoutConferenceTheFormIsEmpty()
{
    Form form({});
    QCOMPARE(form.grid()->count(), 0);
    QCOMPARE(form.grid()->contentsMargins(), QMargins(20, 20, 20, 20));
    form.widget.init();
    QCOMPARE(form.grid()->count(), 0);
}

void TestContactDetailWidget::theStartIsChosenByMonthDayAndHour()
{
    const Form form({conference()});
    QCOMPARE(items(*form.month()), numbers(1, 12));
    QCOMPARE(items(*form.day()), numbers(1, 31));
    QCOMPARE(items(*form.hour()), numbers(0, 23));
    QCOMPARE(form.month()->currentText(), QStringLiteral("3"));
    QCOMPARE(form.day()->currentText(), QStringLiteral("31"));
    QCOMPARE(form.hour()->currentText(), QStringLiteral("9"));

    QStringList units;
    const auto labels = form.month()->parentWidget()->findChildren<LLabel *>();
    for (const LLabel *label : labels) {
        QCOMPARE(label->minimumWidth(), 60);
        QCOMPARE(label->maximumWidth(), 60);
        units.append(label->text());
    }
    QCOMPARE(units, (QStringList{QStringLiteral("月"), QStringLiteral("日")}));
}

void TestContactDetailWidget::theDaysAreThoseOfTheMonth_data()
{
    addColumns<int, QString, int, QString>({"year", "month", "days", "day"});
    QTest::newRow("April has no 31st") << 2024 << "4" << 30 << "30";
    QTest::newRow("February in a leap year") << 2024 << "2" << 29 << "29";
    QTest::newRow("February in another year") << 2023 << "2" << 28 << "28";
    QTest::newRow("July has a 31st") << 2024 << "7" << 31 << "31";
}

void TestContactDetailWidget::theDaysAreThoseOfTheMonth()
{
    QFETCH(int, year);
    QFETCH(QString, month);
    QFETCH(int, days);
    QFETCH(QString, day);
    ContactDetailMsg edited = conference();
    edited.startTime = QDateTime(QDate(year, 3, 31), QTime(9, 0)).toMSecsSinceEpoch();
    const Form form({edited});
    form.month()->setCurrentText(month);
    QCOMPARE(items(*form.day()), numbers(1, days));
    QCOMPARE(form.day()->currentText(), day);

    form.day()->setCurrentText(QStringLiteral("5"));
    form.month()->setCurrentText(QStringLiteral("12"));
    QCOMPARE(items(*form.day()), numbers(1, 31));
    QCOMPARE(form.day()->currentText(), QStringLiteral("5"));
}

void TestContactDetailWidget::twoDurationsAreOffered_data()
{
    addColumns<qint64, QString>({"duration", "text"});
    QTest::newRow("15 minutes") << qint64(900000) << QStringLiteral("15分钟");
    QTest::newRow("30 minutes") << qint64(1800000) << QStringLiteral("30分钟");
    QTest::newRow("another duration is shown as it is") << qint64(2700000) << QStringLiteral("45分钟");
    QTest::newRow("seconds do not count") << qint64(959999) << QStringLiteral("15分钟");
    QTest::newRow("none") << qint64(0) << QStringLiteral("0分钟");
}

void TestContactDetailWidget::twoDurationsAreOffered()
{
    QFETCH(qint64, duration);
    ContactDetailMsg edited = conference();
    edited.duration = duration;
    const Form form({edited});
    QCOMPARE(items(*form.duration()), (QStringList{QStringLiteral("15分钟"), QStringLiteral("30分钟")}));
    QTEST(form.duration()->currentText(), "text");
    QCOMPARE(form.duration()->minimumWidth(), 100);
    QCOMPARE(form.duration()->maximumWidth(), 100);

    QVERIFY(form.duration()->lineEdit()->isReadOnly());
    QTest::keyClick(form.duration()->lineEdit(), Qt::Key_Return);
    QCOMPARE(form.duration()->count(), 2);
    form.duration()->setCurrentIndex(1);
    QCOMPARE(form.duration()->currentText(), QStringLiteral("30分钟"));
}

void TestContactDetailWidget::theHeadCountsBounds_data()
{
    addColumns<bool, int>({"isPayingUser", "maximum"});
    QTest::newRow("who pays may have a hundred") << true << 100;
    QTest::newRow("who does not pay keeps the limit") << false << 40;
}

void TestContactDetailWidget::theHeadCountsBounds()
{
    QFETCH(bool, isPayingUser);
    ContactDetailMsg edited = conference();
    edited.isPayingUser = isPayingUser;
    const Form form({edited});
    QCOMPARE(form.persons()->value(), 40);
    QCOMPARE(form.persons()->minimum(), 2);
    QTEST(form.persons()->maximum(), "maximum");
    QCOMPARE(form.persons()->minimumWidth(), 100);
    QCOMPARE(form.persons()->maximumWidth(), 100);
    const auto *unit = form.persons()->parentWidget()->findChild<LLabel *>();
    QVERIFY(unit != nullptr);
    QCOMPARE(unit->text(), QStringLiteral("人"));
}

void TestContactDetailWidget::theParticipantsAreNamed()
{
    const Form form({conference()});
    const auto labels = form.widget.findChildren<LLabel *>();
    const auto isNames = [](const LLabel *label) {
        return label->text() == QStringLiteral("李雷 韩梅梅");
    };
    QCOMPARE(std::count_if(labels.begin(), labels.end(), isNames), 1);
    for (const LLabel *label : labels) {
        QCOMPARE(label->textFormat(), Qt::PlainText);
    }

    ContactDetailWidget empty;
    const auto *nobody = qobject_cast<LLabel *>(empty.createConferenceInvite({}));
    QVERIFY(nobody != nullptr);
    QCOMPARE(nobody->text(), QString());
}

QTEST_MAIN(TestContactDetailWidget)
#include "tst_contactdetailwidget.moc"
