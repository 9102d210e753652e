// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowfixture.h"
#include "windowpictures.h"
#include "windowstates.h"

#include "paintedcontrast.h"
#include "window/legiblecolor.h"
#include "window/windowtheme.h"

#include <lumo/lguiapplicationhelper.h>
#include <lumo/lstyle.h>

#include <QCheckBox>
#include <QDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QStyleOptionButton>
#include <QTabBar>

using Helper = LGuiApplicationHelper;

namespace {

constexpr double LeastTextContrast = 4.5;
constexpr double LeastEdgeContrast = 3;

void selectPerson(WindowFixture &fixture)
{
    fixture.tabs()->setCurrentIndex(1);
    fixture.page(1)->select(QStringLiteral("100031"));
}

void searchInVain(WindowFixture &fixture)
{
    fixture.tabs()->setCurrentIndex(1);
    fixture.page(1)->filter()->setText(QStringLiteral("没有这个人"));
}

void peopleLoggedOut(WindowFixture &fixture)
{
    fixture.tabs()->setCurrentIndex(1);
    fixture.world->admin.Logout();
    fixture.follow();
}

void addLongNames(WindowFixture &fixture)
{
    fixture.tabs()->setCurrentIndex(1);
    const QString account(100, QLatin1Char('9'));
    const QString name = QStringLiteral("名字非常非常长").repeated(10);
    fixture.world->admin.AddPerson(account, name, QStringLiteral("paying"));
    fixture.world->admin.AddContact(QStringLiteral("100001"), account, name + QStringLiteral("！"),
                                    QStringLiteral("friend"));
    fixture.follow();
    fixture.page(1)->filter()->setText(QStringLiteral("99"));
}

void openDialog(WindowFixture &fixture)
{
    fixture.tabs()->setCurrentIndex(1);
    fixture.click("addFriend");
    fixture.child<QLineEdit>("friendAccount")->setText(QStringLiteral("100001"));
    fixture.click("sendRequest");
}

/// States that the documents don't picture.
constexpr WindowState MoreStates[] = {{"a person selected", selectPerson},
                                      {"nobody found", searchInVain},
                                      {"people, logged out", peopleLoggedOut},
                                      {"long names", addLongNames},
                                      {"adding a friend", openDialog}};

} // namespace

/// Texts are legible and controls have visible edges, in both themes.
class TestWindowContrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void everyTextAndEdgeIsSeen_data();
    void everyTextAndEdgeIsSeen();
    void aColourIsChangedNoMoreThanNeeded();

private:
    void measure(QWidget &window);
    void measureText(const QRect &place, const QString &name);
    void measureEdge(const QRect &place, const QString &name);
    void measureView(const QAbstractItemView &view);
    /// Measures a check box or radio button.
    void measureButton(const QAbstractButton &button, QStyle::SubElement indicator, const QRect &place,
                       const QString &name);
    QRect pixels(const QRect &place) const
    {
        const qreal ratio = m_picture.devicePixelRatio();
        return {place.topLeft() * ratio, place.size() * ratio};
    }

    QWidget *m_window = nullptr;
    QImage m_picture;
    QStringList m_faint;
    int m_texts = 0;
    int m_edges = 0;
};

void TestWindowContrast::initTestCase()
{
    QApplication::setStyle(new LStyle);
    QApplication::setCursorFlashTime(0);
}

void TestWindowContrast::cleanup()
{
    Helper::instance()->setPaletteType(Helper::UnknownType);
}

void TestWindowContrast::measureText(const QRect &place, const QString &name)
{
    if (!m_window->rect().contains(place) || place.isEmpty()) {
        return;
    }
    ++m_texts;
    const double contrast = PaintedContrast::ofText(m_picture.copy(pixels(place)));
    if (contrast < LeastTextContrast) {
        m_faint.append(QStringLiteral("text of %1: %2").arg(name).arg(contrast));
    }
}

void TestWindowContrast::measureEdge(const QRect &place, const QString &name)
{
    ++m_edges;
    const double contrast = PaintedContrast::ofEdge(m_picture, pixels(place));
    if (contrast < LeastEdgeContrast) {
        m_faint.append(QStringLiteral("edge of %1: %2").arg(name).arg(contrast));
    }
}

void TestWindowContrast::measureView(const QAbstractItemView &view)
{
    const QAbstractItemModel *model = view.model();
    const QPoint origin = view.viewport()->mapTo(m_window, QPoint());
    for (int row = 0; row < qMin(12, model->rowCount()); ++row) {
        for (int column = 0; column < model->columnCount(); ++column) {
            const QModelIndex index = model->index(row, column);
            const QRect whole = view.visualRect(index);
            const QRect cell = whole & view.viewport()->rect();
            // The text of a partly hidden cell is cut off.
            if (!index.data().toString().isEmpty() && cell.height() == whole.height()) {
                measureText(cell.translated(origin), index.data().toString());
            }
        }
    }
    if (model->rowCount() == 0 && qobject_cast<const QTableView *>(&view)) {
        measureText(view.viewport()->rect().translated(origin), QStringLiteral("an empty list"));
    }
    const auto headers = view.findChildren<QHeaderView *>();
    for (const QHeaderView *header : headers) {
        for (int column = 0; header->isVisible() && column < model->columnCount(); ++column) {
            const QRect section(header->sectionViewportPosition(column), 0, header->sectionSize(column) - 2,
                                header->height() - 2);
            measureText(section.translated(header->mapTo(m_window, QPoint())),
                        model->headerData(column, Qt::Horizontal).toString());
        }
    }
}

void TestWindowContrast::measureButton(const QAbstractButton &button, QStyle::SubElement indicator,
                                       const QRect &place, const QString &name)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    measureText(place, name);
    measureEdge(button.style()->subElementRect(indicator, &option, &button).translated(place.topLeft()),
                name);
}

void TestWindowContrast::measure(QWidget &window)
{
    m_window = &window;
    m_picture = window.grab().toImage();
    const auto widgets = window.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!widget->isVisible() || !widget->isEnabled() || widget->window() != &window) {
            continue;
        }
        const QRect place(widget->mapTo(&window, QPoint()), widget->size());
        const QString name = widget->objectName().isEmpty()
                                 ? QString::fromLatin1(widget->metaObject()->className())
                                 : widget->objectName();
        const bool isPart = qobject_cast<const QComboBox *>(widget->parentWidget()) ||
                            qobject_cast<const QAbstractSpinBox *>(widget->parentWidget());
        if (qobject_cast<const QHeaderView *>(widget)) {
            continue; // measured with its table
        }
        if (const auto *view = qobject_cast<const QAbstractItemView *>(widget)) {
            measureEdge(place, name);
            measureView(*view);
        } else if (const auto *box = qobject_cast<const QCheckBox *>(widget)) {
            measureButton(*box, QStyle::SE_CheckBoxIndicator, place, name);
        } else if (const auto *radio = qobject_cast<const QRadioButton *>(widget)) {
            measureButton(*radio, QStyle::SE_RadioButtonIndicator, place, name);
        } else if (const auto *label = qobject_cast<const QLabel *>(widget)) {
            if (!label->text().isEmpty()) {
                measureText(place, name);
            }
        } else if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
            for (int tab = 0; tab < tabs->count(); ++tab) {
                measureText(tabs->tabRect(tab).adjusted(4, 4, -4, -6).translated(place.topLeft()),
                            tabs->tabText(tab));
            }
        } else if (!isPart &&
                   (qobject_cast<const QPushButton *>(widget) || qobject_cast<const QLineEdit *>(widget) ||
                    qobject_cast<const QComboBox *>(widget) ||
                    qobject_cast<const QAbstractSpinBox *>(widget))) {
            // Excludes the edge, which would count as text.
            measureText(place.adjusted(4, 4, -4, -4), name);
            measureEdge(place, name);
        }
    }
}

void TestWindowContrast::everyTextAndEdgeIsSeen_data()
{
    QTest::addColumn<WindowState>("state");
    QTest::addColumn<int>("theme");
    QVector<WindowState> states = windowStates();
    for (const WindowState &state : MoreStates) {
        states.append(state);
    }
    for (const WindowState &state : qAsConst(states)) {
        QTest::addRow("%s, light", state.name) << state << int(Helper::LightType);
        QTest::addRow("%s, dark", state.name) << state << int(Helper::DarkType);
    }
}

void TestWindowContrast::everyTextAndEdgeIsSeen()
{
    QFETCH(WindowState, state);
    QFETCH(int, theme);
    WindowFixture fixture;
    QVERIFY(fixture.waitUntilShown());
    // Change the theme of the shown window, as a user would.
    Helper::instance()->setPaletteType(static_cast<Helper::ColorType>(theme));
    state.arrange(fixture);
    QCoreApplication::sendPostedEvents();
    QTest::qWait(1); // the queued layout

    m_faint.clear();
    m_texts = 0;
    m_edges = 0;
    measure(*fixture.window);
    const QString name = QString::fromLatin1(QTest::currentDataTag()).remove(QLatin1Char(','));
    const QString scale = QString::number(m_picture.devicePixelRatio());
    savePicture(m_picture, QStringLiteral("contrast-%1-x%2.png")
                               .arg(QString(name).replace(QLatin1Char(' '), QLatin1Char('-')), scale));
    QCOMPARE(m_picture.pixelColor(2, 2), QApplication::palette().color(QPalette::Window));
    if (auto *dialog = fixture.window->findChild<QDialog *>()) {
        measure(*dialog);
    }
    QVERIFY2(m_faint.isEmpty(), qPrintable(m_faint.join(QStringLiteral("\n"))));
    QVERIFY2(m_texts >= 8 && m_edges >= 4,
             qPrintable(QStringLiteral("%1 texts, %2 edges").arg(m_texts).arg(m_edges)));
}

void TestWindowContrast::aColourIsChangedNoMoreThanNeeded()
{
    for (const Helper::ColorType theme : {Helper::LightType, Helper::DarkType}) {
        Helper::instance()->setPaletteType(theme);
        const QPalette palette = QApplication::palette();
        QCOMPARE(legibleInLists(palette.color(QPalette::Text)), palette.color(QPalette::Text));
        for (const QColor &color : {WindowTheme::running(), WindowTheme::notStarted(), WindowTheme::ended(),
                                    QColor(Qt::white), QColor(Qt::black)}) {
            const QRgb shown = legibleInLists(color).rgb();
            const double onBase = PaintedContrast::between(shown, palette.color(QPalette::Base).rgb());
            const double onOther =
                PaintedContrast::between(shown, palette.color(QPalette::AlternateBase).rgb());
            QVERIFY2(qMin(onBase, onOther) >= LeastTextContrast, qPrintable(color.name()));
            QVERIFY2(shown == color.rgb() || qMin(onBase, onOther) < 5.5, qPrintable(color.name()));
        }
    }
}

QTEST_MAIN(TestWindowContrast)
#include "tst_windowcontrast.moc"
