// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "desktoptheme.h"
#include "paintedcontrast.h"
#include "testcolumns.h"
#include "titleitem.h"
#include "titleitemtest.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QtTest>

namespace {

QStringList shownTexts(const TiTleItem &item)
{
    QStringList texts;
    for (int i = 0; i < item.layout()->count(); ++i) {
        const auto *label = qobject_cast<QLabel *>(item.layout()->itemAt(i)->widget());
        if (label != nullptr) {
            texts.append(label->text());
        }
    }
    return texts;
}

/// The widths of the spacers, with -1 for each label between them.
QVector<int> spacings(const TiTleItem &item)
{
    QVector<int> widths;
    for (int i = 0; i < item.layout()->count(); ++i) {
        QLayoutItem *entry = item.layout()->itemAt(i);
        if (entry->spacerItem() != nullptr) {
            widths.append(entry->sizeHint().width());
        } else if (qobject_cast<QLabel *>(entry->widget()) != nullptr) {
            widths.append(-1);
        }
    }
    return widths;
}

} // namespace

/// The looks of a candidate row.
class TestTiTleItem : public TitleItemTest
{
    Q_OBJECT

private Q_SLOTS:
    void theMeasures();
    void theTitleIsNotDisplayed();
    void whatIsShownOfAPerson_data();
    void whatIsShownOfAPerson();
    void onlyTheNameThatWasAskedFor();
    void theLayoutOfAPerson();
    void theColoursFollowTheTheme_data();
    void theColoursFollowTheTheme();
    void aGivenBackgroundStaysWhenTheThemeChanges_data();
    void aGivenBackgroundStaysWhenTheThemeChanges();
    void textsArePlainAndStayInTheRow();

    void aShortTextIsNotShortenedForALongOne();

    void theFocusIsSeen();
    void hoverAndSelectionAreSeen_data();
    void hoverAndSelectionAreSeen();
    void itIsACheckBoxToAssistiveTools();
};

void TestTiTleItem::theMeasures()
{
    QCOMPARE(m_row->minimumSize(), QSize(330, 40));
    QCOMPARE(m_row->maximumSize(), QSize(330, 40));
    auto *layout = qobject_cast<QHBoxLayout *>(m_row->layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->contentsMargins(), QMargins(10, 10, 10, 10));
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QVERIFY(!m_row->isSelected());
    QVERIFY(mark(*m_row)->isHidden());
}

void TestTiTleItem::theTitleIsNotDisplayed()
{
    QCOMPARE(shownTexts(*m_row), QStringList());
    QCOMPARE(m_row->accessibleName(), QStringLiteral("联系人"));
}

void TestTiTleItem::whatIsShownOfAPerson_data()
{
    addColumns<QString, QString, QString, QString>({"name", "remarkName", "account", "texts"});
    addRow("display name, caption and account", "a", "b", "d", "b|ID|d");
    addRow("without display name the account stands for it", "a", "", "d", "d|ID|d");
    addRow("a blank display name is shown", "a", " ", "d", " |ID|d");
    addRow("no caption for an empty name", "", "b", "d", "b|d");
    addRow("no caption for a name that is one space", " ", "b", "d", "b|d");
    addRow("a caption for a name of two spaces", "  ", "b", "d", "b|ID|d");
    addRow("without account", "a", "b", "", "b|ID|");
    addRow("with nothing at all", "", "", "", "|");
}

void TestTiTleItem::whatIsShownOfAPerson()
{
    QFETCH(QString, name);
    QFETCH(QString, remarkName);
    QFETCH(QString, account);
    QFETCH(QString, texts);
    m_row->insertConferenceMsg({name, remarkName, QStringLiteral("u7"), account});
    QCOMPARE(shownTexts(*m_row).join(QLatin1Char('|')), texts);
    QCOMPARE(m_row->accessibleName(), shownTexts(*m_row).constFirst());
    const UserInfo stored = m_row->getUserInfo();
    QCOMPARE(stored.name, name);
    QCOMPARE(stored.remarkName, remarkName);
    QCOMPARE(stored.userId, QStringLiteral("u7"));
    QCOMPARE(stored.account, account);
}

void TestTiTleItem::onlyTheNameThatWasAskedFor()
{
    m_row->insertSinglePersonName(Zhang);
    QCOMPARE(shownTexts(*m_row), QStringList{QStringLiteral("小张")});
    QCOMPARE(m_row->accessibleName(), QStringLiteral("小张"));
    QCOMPARE(m_row->getUserInfo().userId, QStringLiteral("u1"));
    QCOMPARE(m_row->layout()->itemAt(0)->widget()->palette().color(QPalette::WindowText).alpha(), 178);
    QCOMPARE(m_row->layout()->itemAt(1)->widget(), mark(*m_row));
    QVERIFY(mark(*m_row)->isHidden());
}

void TestTiTleItem::theLayoutOfAPerson()
{
    m_row->insertConferenceMsg(Zhang);
    QCOMPARE(spacings(*m_row), (QVector<int>{-1, 20, -1, 10, -1}));
    QCOMPARE(m_row->layout()->itemAt(5)->widget(), mark(*m_row));
    QVERIFY(mark(*m_row)->isHidden());

    TiTleItem withoutCaption(QString(), m_card.get());
    withoutCaption.insertConferenceMsg(
        {QStringLiteral(" "), QStringLiteral("b"), QString(), QStringLiteral("d")});
    QCOMPARE(spacings(withoutCaption), (QVector<int>{-1, 20, -1}));
}

void TestTiTleItem::theColoursFollowTheTheme_data()
{
    addColumns<int, int, QColor>({"before", "theme", "text"});
    const int light = DesktopTheme::Light;
    const int dark = DesktopTheme::Dark;
    QTest::newRow("made in the light theme") << light << light << QColor(Qt::black);
    QTest::newRow("made in the dark theme") << dark << dark << QColor(Qt::white);
    QTest::newRow("from light to dark") << light << dark << QColor(Qt::white);
    QTest::newRow("from dark to light") << dark << light << QColor(Qt::black);
}

void TestTiTleItem::theColoursFollowTheTheme()
{
    QFETCH(int, before);
    QFETCH(int, theme);
    QFETCH(QColor, text);
    DesktopTheme::set(static_cast<DesktopTheme::Theme>(before));
    m_row->insertConferenceMsg(Zhang);
    DesktopTheme::set(static_cast<DesktopTheme::Theme>(theme));

    const QVector<int> alphas{178, 153, 153};
    const auto labels = m_row->findChildren<QLabel *>();
    QCOMPARE(labels.size(), 3);
    for (int i = 0; i < labels.size(); ++i) {
        QColor expected = text;
        expected.setAlpha(alphas.at(i));
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            QCOMPARE(labels.at(i)->palette().color(group, QPalette::WindowText), expected);
        }
    }
    QLabel other;
    m_row->setWidgetColor(&other, 33);
    QCOMPARE(other.palette().color(QPalette::WindowText).alpha(), 33);
    QCOMPARE(other.palette().color(QPalette::WindowText).lightness(), text.lightness());

    // The texts stand out from the background.
    const int behind = m_row->grab().toImage().pixelColor(165, 3).lightness();
    QVERIFY2(qAbs(behind - text.lightness()) > 150, qPrintable(QString::number(behind)));
}

void TestTiTleItem::aGivenBackgroundStaysWhenTheThemeChanges_data()
{
    QTest::addColumn<QColor>("given");
    QTest::newRow("any colour") << QColor(200, 10, 20);
    QTest::newRow("the colour that a row has anyway in the light theme") << QColor(247, 247, 247, 204);
    QTest::newRow("none") << QColor(Qt::transparent);
}

void TestTiTleItem::aGivenBackgroundStaysWhenTheThemeChanges()
{
    QFETCH(QColor, given);
    const auto painted = [this] {
        QImage image(m_row->size(), QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        m_row->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        return image;
    };
    m_row->setBackGroundColor(given);
    const QImage before = painted();
    for (const auto theme : {DesktopTheme::Dark, DesktopTheme::Light}) {
        DesktopTheme::set(theme);
        QCOMPARE(painted(), before);
    }
}

void TestTiTleItem::textsArePlainAndStayInTheRow()
{
    const QString markup = QStringLiteral("<b>x</b><img src=\"file:///etc/hostname\">").repeated(5);
    m_row->insertConferenceMsg({markup, markup, QString(), markup});
    m_card->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_card.get()));
    const auto labels = m_row->findChildren<QLabel *>();
    QCOMPARE(labels.size(), 3);
    for (const QLabel *label : labels) {
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QVERIFY(m_row->rect().contains(label->geometry()));
        QVERIFY(label->width() > 0);
    }
    QTest::mouseClick(m_row, Qt::LeftButton);
    QVERIFY(m_row->rect().contains(mark(*m_row)->geometry()));
    QVERIFY(mark(*m_row)->width() >= 13);
}

void TestTiTleItem::aShortTextIsNotShortenedForALongOne()
{
    m_row->insertConferenceMsg(
        {QString(), QString(60, QLatin1Char('m')), QString(), QStringLiteral("short")});
    m_card->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_card.get()));
    QTest::mouseClick(m_row, Qt::LeftButton);
    const auto labels = m_row->findChildren<QLabel *>();
    QVERIFY(labels.at(0)->width() < labels.at(0)->sizeHint().width());
    QVERIFY(labels.at(1)->width() >= labels.at(1)->sizeHint().width());
    QVERIFY(labels.at(1)->geometry().right() < mark(*m_row)->geometry().left());
}

void TestTiTleItem::theFocusIsSeen()
{
    m_row->insertConferenceMsg(Zhang);
    m_card->show();
    m_card->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_card.get()));
    m_row->clearFocus();
    const QImage without = m_row->grab().toImage();
    QTest::mouseClick(m_row, Qt::LeftButton);
    QVERIFY(!m_row->hasFocus());
    QTest::mouseClick(m_row, Qt::LeftButton);
    QCOMPARE(m_row->grab().toImage(), without);

    m_row->setFocus(Qt::TabFocusReason);
    QVERIFY(m_row->hasFocus());
    const QImage with = m_row->grab().toImage();
    QCOMPARE(with.pixelColor(165, 0), QColor(0, 129, 255));
    QCOMPARE(with.pixelColor(0, 20), QColor(0, 129, 255));
    QCOMPARE(with.pixelColor(165, 39), QColor(0, 129, 255));
    QVERIFY(without.pixelColor(165, 0) != QColor(0, 129, 255));
    // Two pixels wide, all of it inside the row.
    for (const QPoint &inside : {QPoint(165, 1), QPoint(1, 20), QPoint(165, 38), QPoint(328, 20)}) {
        QCOMPARE(with.pixelColor(inside), QColor(0, 129, 255));
    }
    for (const QPoint &behind : {QPoint(165, 2), QPoint(2, 20), QPoint(165, 37), QPoint(327, 20)}) {
        QCOMPARE(with.pixelColor(behind), without.pixelColor(behind));
    }
    // The frame's corners are round and antialiased: there are colours between its own and the background.
    const QImage corner = with.copy(0, 0, 8, 8);
    QSet<QRgb> between;
    for (int y = 0; y < corner.height(); ++y) {
        for (int x = 0; x < corner.width(); ++x) {
            if (corner.pixelColor(x, y) != QColor(0, 129, 255) && corner.pixel(x, y) != without.pixel(x, y)) {
                between.insert(corner.pixel(x, y));
            }
        }
    }
    QVERIFY2(between.size() > 4, qPrintable(QString::number(between.size())));
}

void TestTiTleItem::hoverAndSelectionAreSeen_data()
{
    DesktopTheme::addRows();
}

void TestTiTleItem::hoverAndSelectionAreSeen()
{
    QFETCH(int, theme);
    DesktopTheme::set(static_cast<DesktopTheme::Theme>(theme));
    m_row->insertConferenceMsg(Zhang);
    m_card->show();
    QCOMPARE(m_row->cursor().shape(), Qt::PointingHandCursor);
    const auto picture = [this] {
        return m_card->grab(QRect(m_row->mapTo(m_card.get(), QPoint()), m_row->size())).toImage();
    };
    const QPoint empty(240, 4);
    const QRgb resting = picture().pixel(empty);
    m_row->setAttribute(Qt::WA_UnderMouse);
    const QRgb hovered = picture().pixel(empty);
    QVERIFY(qAbs(qGray(hovered) - qGray(resting)) >= 8);
    m_row->setAttribute(Qt::WA_UnderMouse, false);

    QTest::mouseClick(m_row, Qt::LeftButton);
    QVERIFY(m_row->isSelected());
    const QImage picked = picture();
    const QRgb ground = picked.pixel(empty);
    QVERIFY(qBlue(ground) - qRed(ground) >= qBlue(resting) - qRed(resting) + 15);
    const double edge = PaintedContrast::between(picked.pixel(165, 0), resting);
    QVERIFY2(edge >= 3, qPrintable(QString::number(edge)));
    const double text = PaintedContrast::ofText(picked.copy(10, 10, 60, 20));
    QVERIFY2(text >= 4.5, qPrintable(QString::number(text)));
    QTest::mouseClick(m_row, Qt::LeftButton);
    QCOMPARE(picture().pixel(empty), resting);
}

void TestTiTleItem::itIsACheckBoxToAssistiveTools()
{
    m_row->insertConferenceMsg(Zhang);
    QAccessibleInterface *row = QAccessible::queryAccessibleInterface(m_row);
    QVERIFY(row != nullptr);
    QCOMPARE(row->role(), QAccessible::CheckBox);
    QCOMPARE(row->text(QAccessible::Name), QStringLiteral("张三"));
    QCOMPARE(row->text(QAccessible::Description), QStringLiteral("zs@a"));
    QVERIFY(row->state().checkable);
    QVERIFY(row->state().focusable);
    QVERIFY(!row->state().checked);

    QAccessibleActionInterface *actions = row->actionInterface();
    QVERIFY(actions != nullptr);
    QCOMPARE(actions->actionNames().constFirst(), QAccessibleActionInterface::toggleAction());
    actions->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(m_row->isSelected());
    QVERIFY(row->state().checked);
    QTest::mouseClick(m_row, Qt::LeftButton);
    QVERIFY(!row->state().checked);
    actions->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(!m_row->isSelected());
}

QTEST_MAIN(TestTiTleItem)
#include "tst_titleitem.moc"
