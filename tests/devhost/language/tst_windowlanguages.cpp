// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conversationscript.h"
#include "desklanguage.h"
#include "inspector.h"
#include "plugindesk.h"
#include "shownlanguage.h"
#include "statusline.h"
#include "turnmenu.h"
#include "welcomepage.h"

#include "applicationlink.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

using namespace devhost;

namespace {

struct ShownText
{
    QString where;
    QString text;
};

/// Returns @p text without the plugin's texts, which the inspector shows untranslated.
QString withoutPluginsTexts(const QWidget &widget, const QString &text)
{
    if (widget.objectName() == QLatin1String("inspectorLog")) {
        return QString();
    }
    QStringList lines = text.split(QLatin1Char('\n'));
    if (widget.objectName() == QLatin1String("inspectorReply")) {
        lines = lines.filter(QRegularExpression(QStringLiteral("^(?!display |speech )")));
    }
    return lines.join(QLatin1Char('\n'))
        .remove(QRegularExpression(QStringLiteral("thrown (on purpose|in the reply)")));
}

bool isAssistants(const QWidget &widget)
{
    const auto *bubble = qobject_cast<const Bubble *>(&widget);
    return (bubble != nullptr && bubble->role() != Bubble::Notice) ||
           widget.objectName() == QLatin1String("example") || widget.objectName() == QLatin1String("card");
}

QStringList textsOf(const QWidget &widget)
{
    if (isAssistants(widget)) {
        return {widget.toolTip()};
    }
    QStringList texts = ShownLanguage::textsOf(widget);
    for (QString &text : texts) {
        text = withoutPluginsTexts(widget, text);
    }
    if (const auto *bubble = qobject_cast<const Bubble *>(&widget)) {
        texts << withoutPluginsTexts(widget, bubble->text());
    }
    return texts;
}

QVector<ShownText> textsIn(QWidget &root)
{
    QVector<ShownText> all;
    QList<QWidget *> widgets = root.findChildren<QWidget *>();
    widgets.prepend(&root);
    for (const QWidget *widget : qAsConst(widgets)) {
        bool isInside = false;
        for (const QWidget *parent = widget->parentWidget(); parent != nullptr && parent != &root;
             parent = parent->parentWidget()) {
            isInside = isInside || isAssistants(*parent);
        }
        const QStringList texts = isInside ? QStringList() : textsOf(*widget);
        for (const QString &text : texts) {
            if (!text.isEmpty()) {
                all.append({QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ') +
                                widget->objectName(),
                            text});
            }
        }
    }
    return all;
}

void markCards(ConversationView &view)
{
    for (int i = 0; i < view.entries().size(); ++i) {
        if (QWidget *card = view.entries().at(i).card) {
            card->setObjectName(QStringLiteral("card"));
        }
    }
}

} // namespace

/// The window's frame is in one language, whatever the assistant says inside it.
class TestWindowLanguages : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void cleanup();
    void codesBeginWithEnglish();
    void frameIsInOneLanguage();
    void windowIsAsNarrowInEveryLanguage();
    void menusAndDialogsAreInOneLanguage();
    void datesFollowTheWindow();
    void assistantSpeaksChineseInEveryLanguage();

private:
    /// Chooses the language.
    void prepare() override;
    void verify(const QVector<ShownText> &texts, int least);

    std::unique_ptr<ProgramLanguage> m_language;
};

/// Runs every test in each language.
void TestWindowLanguages::initTestCase_data()
{
    QTest::addColumn<QString>("code");
    const QStringList codes = deskLanguage().codes();
    for (const QString &code : codes) {
        QTest::newRow(qPrintable(code)) << code;
    }
}

void TestWindowLanguages::prepare()
{
    QFETCH_GLOBAL(QString, code);
    m_language.reset(new ProgramLanguage(deskLanguage()));
    QVERIFY(m_language->choose(code));
    QCOMPARE(m_language->code(), code);
}

void TestWindowLanguages::cleanup()
{
    m_language.reset();
}

void TestWindowLanguages::verify(const QVector<ShownText> &texts, int least)
{
    const QRegularExpression strange = ShownLanguage::strangeTo(m_language->code());
    for (const ShownText &shown : texts) {
        QVERIFY2(!shown.text.contains(strange),
                 qUtf8Printable(shown.where + QStringLiteral(": ") + shown.text));
    }
    QVERIFY2(texts.size() >= least, qPrintable(QString::number(texts.size())));
}

void TestWindowLanguages::codesBeginWithEnglish()
{
    QCOMPARE(deskLanguage().codes(), QStringList({QStringLiteral("en"), QStringLiteral("zh_CN")}));
}

void TestWindowLanguages::frameIsInOneLanguage()
{
    PluginDesk desk;
    QVERIFY(desk.isLoaded);
    verify(textsIn(desk.window), 60);
    // In a conference, with turns of every kind.
    desk.window.findChild<StatusLine *>()->show(
        ApplicationState::read(QStringLiteral("{\"user\":{\"name\":\"1\",\"account\":\"2\"},"
                                              "\"conference\":{\"title\":\"3\",\"number\":\"4\"}}")));
    QVERIFY(desk.window.findChild<QLabel *>(QStringLiteral("statusConference"))->isVisible());
    for (const char *intent : {"ECHO", "CARD", "THROW", "THROWREPLY", "NOREPLY", "ASKPASSWORD"}) {
        desk.type(semantic(intent));
        QTRY_VERIFY(desk.isIdle());
        markCards(desk.view());
        verify(textsIn(desk.window), 60);
    }
    desk.window.showProblem(PluginHost().problem().what);
    PluginHost nothing;
    QVERIFY(!nothing.load(QStringLiteral("/nowhere.so")));
    desk.window.showProblem(nothing.problem().toText());
    verify(textsIn(desk.window), 60);
    const QStringList script = scriptOf(desk.conversation).split(QLatin1Char('\n'));
    for (const QString &line : script) {
        if (line.startsWith(QLatin1Char('#'))) {
            verify({{QStringLiteral("script"), line}}, 1);
        }
    }
}

/// The cards alone determine the minimum width.
void TestWindowLanguages::windowIsAsNarrowInEveryLanguage()
{
    PluginDesk desk;
    desk.window.findChild<Inspector *>()->hide();
    QTRY_COMPARE(desk.window.minimumSizeHint().width(), desk.view().minimumWidth());
}

void TestWindowLanguages::menusAndDialogsAreInOneLanguage()
{
    PluginDesk desk;
    desk.type(semantic("ECHO", QStringLiteral("1")));
    QTRY_VERIFY(desk.isIdle());
    const std::unique_ptr<QMenu> turn(
        makeTurnMenu(desk.conversation.turn(1), QStringLiteral("1"), desk.conversation, nullptr));
    verify(textsIn(*turn), 4);
    // Qt's own menu.
    const std::unique_ptr<QMenu> edit(desk.window.input()->createStandardContextMenu());
    verify(textsIn(*edit), 6);
    QAction *about = nullptr;
    QAction *save = nullptr;
    const auto actions = desk.window.findChildren<QAction *>();
    for (QAction *action : actions) {
        save = action->shortcut() == QKeySequence(QKeySequence::Save) ? action : save;
        const bool isAbout = action->text() == MainWindow::tr("&About");
        about = isAbout ? action : about;
    }
    QVERIFY(about != nullptr && save != nullptr);
    about->trigger();
    auto *box = desk.window.findChild<QMessageBox *>();
    QVERIFY(box != nullptr);
    verify(textsIn(*box), 3);
    box->close();
    save->trigger();
    auto *dialog = desk.window.findChild<QFileDialog *>();
    QVERIFY(dialog != nullptr);
    // Folder names are not translated.
    QVector<ShownText> texts;
    const QVector<ShownText> all = textsIn(*dialog);
    for (const ShownText &shown : all) {
        if (!shown.where.startsWith(QLatin1String("QComboBox")) &&
            !shown.where.startsWith(QLatin1String("QFileDialogComboBox"))) {
            texts << shown;
        }
    }
    verify(texts, 15);
    dialog->close();
}

void TestWindowLanguages::datesFollowTheWindow()
{
    const QHash<QString, QString> dates{{QStringLiteral("en"), QStringLiteral("March Sat")},
                                        {QStringLiteral("zh_CN"), QStringLiteral("三月 周六")}};
    const QLocale locale = QCalendarWidget().locale();
    QCOMPARE(locale.monthName(3) + QLatin1Char(' ') + locale.dayName(Qt::Saturday, QLocale::ShortFormat),
             dates.value(m_language->code()));
}

void TestWindowLanguages::assistantSpeaksChineseInEveryLanguage()
{
    PluginDesk desk;
    desk.window.submit(QStringLiteral("help"));
    QTRY_VERIFY(desk.isIdle());
    QVERIFY(desk.conversation.turn(1).display.startsWith(QStringLiteral("您可以说：")));
    const auto examples = WelcomePage::examples();
    for (const QString &example : examples) {
        QVERIFY2(example.contains(QRegularExpression(QStringLiteral("\\p{Han}"))), qUtf8Printable(example));
    }
}

QTEST_MAIN(TestWindowLanguages)
#include "tst_windowlanguages.moc"
