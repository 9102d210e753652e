// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "announcements.h"
#include "window/resultlabel.h"

#include <QtTest>

/// The label for results. Needs an active accessibility bus: otherwise, Qt announces nothing.
class TestResultLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QTRY_VERIFY(QAccessible::isActive()); }
    void whatIsToldIsAnnouncedByItsName();
    void nothingIsNotAnnounced();
    void aLongTextMakesTheWindowNoWider();
};

void TestResultLabel::whatIsToldIsAnnouncedByItsName()
{
    const Announcements announced;
    ResultLabel label;
    label.show();
    QCOMPARE(label.accessibleName(), QStringLiteral("结果"));
    label.tell(QStringLiteral("<b>好的。"));
    label.tell(QStringLiteral("<b>好的。")); // the same text is announced again
    const QString name = QStringLiteral("结果：<b>好的。");
    QCOMPARE(announced.names(), (QStringList{name, name}));
    QCOMPARE(label.text(), QStringLiteral("<b>好的。"));
    QCOMPARE(label.textFormat(), Qt::PlainText);
}

void TestResultLabel::nothingIsNotAnnounced()
{
    ResultLabel label;
    label.show();
    label.tell(QStringLiteral("好的。"));
    const Announcements announced;
    label.tell(QString());
    QCOMPARE(announced.names(), QStringList());
    QCOMPARE(label.accessibleName(), QStringLiteral("结果"));
}

void TestResultLabel::aLongTextMakesTheWindowNoWider()
{
    ResultLabel label;
    label.tell(QStringLiteral("已导出到 /home/x/文 档.ics。").repeated(20));
    QVERIFY2(label.minimumSizeHint().width() < 400,
             qPrintable(QString::number(label.minimumSizeHint().width())));
}

QTEST_MAIN(TestResultLabel)
#include "tst_resultlabel.moc"
