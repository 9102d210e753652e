// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <set>

namespace {

constexpr int FrameWidth = 392; ///< of a picture at scale 1
/// An empty card shows its background and the frame's, blended at the round corners.
constexpr int LeastColors = 2;
constexpr int LeastColorsOfText = 40;

struct Run
{
    int exitCode = -1;
    QStringList names;
};

Run runGallery(const QStringList &arguments, int scale)
{
    QProcess gallery;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::number(scale));
    environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("*.debug=false"));
    gallery.setProcessEnvironment(environment);
    gallery.start(QStringLiteral(CARD_GALLERY), arguments);
    if (!gallery.waitForFinished(250000) || gallery.exitStatus() != QProcess::NormalExit) {
        return {};
    }
    QStringList lines = QString::fromUtf8(gallery.readAllStandardOutput()).split(QLatin1Char('\n'));
    lines.removeAll(QString());
    return {gallery.exitCode(), lines};
}

int countColors(const QImage &image)
{
    std::set<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colors.insert(image.pixel(x, y));
        }
    }
    return static_cast<int>(colors.size());
}

bool isOfEmptyCard(const QString &name)
{
    return name.startsWith(QLatin1String("query-empty-")) ||
           name.startsWith(QLatin1String("unknown-action-"));
}

} // namespace

class TestGallery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyStateHasItsPicture_data();
    void everyStateHasItsPicture();
    void onlyThePicturesThatAreWanted();
    void aPictureThatThereIsNotIsAnError();
    void theDocumentationShowsPicturesOfTheGallery();
};

void TestGallery::everyStateHasItsPicture_data()
{
    QTest::addColumn<int>("scale");
    QTest::newRow("in scale 1") << 1;
    QTest::newRow("in scale 2") << 2;
}

void TestGallery::everyStateHasItsPicture()
{
    QFETCH(int, scale);
    const QTemporaryDir folder;
    const Run run = runGallery({folder.path()}, scale);
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.names.size(), 2 * 36);
    QStringList files = QDir(folder.path()).entryList(QDir::Files);
    QStringList names = run.names;
    files.sort();
    names.sort();
    QCOMPARE(files, names);

    for (const QString &name : qAsConst(names)) {
        const QImage picture(folder.filePath(name));
        QVERIFY2(!picture.isNull(), qPrintable(name));
        QCOMPARE(picture.width(), FrameWidth * scale);
        const int colors = countColors(picture);
        QVERIFY2(colors >= (isOfEmptyCard(name) ? LeastColors : LeastColorsOfText),
                 qPrintable(QStringLiteral("%1 has %2 colours").arg(name).arg(colors)));
        if (name.endsWith(QLatin1String("-light.png"))) {
            QString darkName = name;
            darkName.replace(QLatin1String("-light."), QLatin1String("-dark."));
            const QImage dark(folder.filePath(darkName));
            QCOMPARE(dark.size(), picture.size());
            QVERIFY(qGray(picture.pixel(1, 1)) > 200);
            QVERIFY(qGray(dark.pixel(1, 1)) < 60);
        }
    }
}

void TestGallery::onlyThePicturesThatAreWanted()
{
    const QTemporaryDir folder;
    const Run run = runGallery({folder.path(), QStringLiteral("query-four-dark.png")}, 1);
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("query-four-dark.png")});
}

void TestGallery::aPictureThatThereIsNotIsAnError()
{
    const QTemporaryDir folder;
    QCOMPARE(runGallery({folder.path(), QStringLiteral("nothing.png")}, 1).exitCode, 1);
}

void TestGallery::theDocumentationShowsPicturesOfTheGallery()
{
    const QDir shown(QStringLiteral(CONTACT_SOURCE_DIR "/docs/pictures"));
    const QStringList known = runGallery({QStringLiteral("--list")}, 1).names;
    QStringList files = shown.entryList(QDir::Files);
    // Pictures of the development host and the contacts application don't come from the gallery.
    const QStringList windows{QStringLiteral("desk-*.png"), QStringLiteral("contacts-*.png")};
    const auto pictures = shown.entryList(windows, QDir::Files);
    for (const QString &file : pictures) {
        files.removeOne(file);
    }
    QVERIFY(!files.isEmpty());
    for (const QString &file : files) {
        QVERIFY2(known.contains(file), qPrintable(file));
    }
}

QTEST_GUILESS_MAIN(TestGallery)
#include "tst_gallery.moc"
