// A whole generator run into a scratch application folder: every file the manifest lists is
// there with sane content, the buttons are all different, another run makes the same bytes and it
// never touches the score tables, and one group can be made without touching the others.
#include "asset_gen.h"
#include "core/game_names.h"
#include "manifest.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QMap>
#include <QSet>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

using namespace wm::assetgen;

namespace {

QString gameName(int i) {
    return QString::fromUtf8(wm::kGameNames[i].data(), static_cast<int>(wm::kGameNames[i].size()));
}

// Every file under `root` (relative path -> bytes).
QMap<QString, QByteArray> snapshot(const QString& root) {
    QMap<QString, QByteArray> out;
    QDirIterator it(root, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        QFile f(path);
        if (f.open(QIODevice::ReadOnly)) out.insert(QDir(root).relativeFilePath(path), f.readAll());
    }
    return out;
}

}  // namespace

class AssetFilesTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QVERIFY(dir_.isValid());
        // A pupil's score table from an earlier run of the program.
        QVERIFY(QDir(dir_.path()).mkpath("scores"));
        QFile score(dir_.filePath("scores/Quiz.dat"));
        QVERIFY(score.open(QIODevice::WriteOnly));
        score.write(kScore);
        score.close();
        QString error;
        QVERIFY2(generateAll(dir_.path(), &error), qPrintable(error));
        first_ = snapshot(dir_.path());
    }

    void writesEveryPictureAtItsSize() {
        for (const char* name :
             {"images/wm-title.jpg", "images/wm-back.jpg", "images/scramble-back.jpg"}) {
            const QImage img(dir_.filePath(name));
            QVERIFY2(!img.isNull(), name);
            QCOMPARE(img.size(), QSize(1920, 1080));
        }
        for (const char* name : {"buttons/morebutton.jpg", "buttons/backbutton.jpg"}) {
            const QImage img(dir_.filePath(name));
            QVERIFY2(!img.isNull(), name);
            QCOMPARE(img.size(), QSize(180, 135));
        }
        // Toolbar icons keep a transparent ground around a drawn middle.
        for (const QString& icon : toolbarIconNames()) {
            const QImage img(dir_.filePath("images/tb-" + icon + ".png"));
            QVERIFY2(!img.isNull(), qPrintable(icon));
            QCOMPARE(img.size(), QSize(96, 96));
            QCOMPARE(img.pixelColor(0, 0).alpha(), 0);
            QVERIFY2(img.pixelColor(48, 48).alpha() > 200, qPrintable(icon));
        }
        QVERIFY(QDir(dir_.filePath("movies")).exists());
    }

    void everyGameHasItsOwnButton() {
        QSet<QByteArray> seen;
        for (int i = 0; i < wm::kGameCount; ++i) {
            // Names with blanks and dashes are used as they are.
            const QString path = dir_.filePath("buttons/" + gameName(i) + ".jpg");
            const QImage img(path);
            QVERIFY2(!img.isNull(), qPrintable(path));
            QCOMPARE(img.size(), QSize(360, 270));
            const QImage rgb = img.convertToFormat(QImage::Format_RGB32);
            const QByteArray hash = QCryptographicHash::hash(
                QByteArrayView(rgb.constBits(), rgb.sizeInBytes()), QCryptographicHash::Sha1);
            QVERIFY2(!seen.contains(hash), qPrintable(gameName(i) + " looks like another button"));
            seen.insert(hash);
        }
        QCOMPARE(seen.size(), wm::kGameCount);
    }

    // Every manifest line is in the folder with content the program can use.
    void everyManifestEntryIsThereAndSane() {
        std::vector<ManifestEntry> entries;
        QString error;
        QVERIFY2(readManifest(QDir(sourceAssetsDir()).filePath("manifest.txt"), &entries, &error),
                 qPrintable(error));
        int sounds = 0, tunes = 0;
        for (const ManifestEntry& e : entries) {
            if (e.kind == "scene") continue;  // drawn by the program itself
            QVERIFY2(assetPresent(dir_.path(), e.name), qPrintable(e.name));
            const QByteArray b = first_.value(e.name);
            if (!e.size.isEmpty()) {
                const QImage img = QImage::fromData(b);
                QVERIFY2(!img.isNull(), qPrintable(e.name));
                QCOMPARE(img.size(), e.size);
            } else if (e.kind == "sound") {
                ++sounds;
                // PCM, mono, 22050 Hz, 16-bit, and chunk sizes that match the file.
                QVERIFY2(b.startsWith("RIFF") && b.mid(8, 8) == "WAVEfmt ", qPrintable(e.name));
                auto u32 = [&](int at) { return qFromLittleEndian<quint32>(b.constData() + at); };
                auto u16 = [&](int at) { return qFromLittleEndian<quint16>(b.constData() + at); };
                QCOMPARE(u32(4), quint32(b.size() - 8));
                QCOMPARE(u16(20), quint16(1));
                QCOMPARE(u16(22), quint16(1));
                QCOMPARE(u32(24), quint32(22050));
                QCOMPARE(u16(34), quint16(16));
                QCOMPARE(b.mid(36, 4), QByteArray("data"));
                QCOMPARE(u32(40), quint32(b.size() - 44));
            } else if (e.kind == "tune") {
                ++tunes;
                QVERIFY2(b.startsWith(QByteArray("MThd\0\0\0\6\0\1", 10)), qPrintable(e.name));
            }
        }
        QVERIFY(sounds >= 15);
        QVERIFY(tunes >= 4);
        // The names screens ask for by hand are listed.
        for (const char* name : {"sounds/applause.wav", "sounds/wmtheme.mid", "images/wm-title.jpg",
                                 "buttons/Scramble.jpg", "movies/wmsplash"})
            QVERIFY2(manifestLists(name), name);
        QVERIFY(!manifestLists("sounds/nothing.wav"));
    }

    // A recipe without its manifest line would silently never be made.
    void everyRecipeIsListed() {
        std::vector<ManifestEntry> entries;
        QVERIFY(readManifest(QDir(sourceAssetsDir()).filePath("manifest.txt"), &entries, nullptr));
        QSet<QString> sources;
        for (const ManifestEntry& e : entries) sources.insert(e.source);
        QDirIterator it(sourceAssetsDir(), {"*.sound", "*.tune", "*.timeline", "*.svg"},
                        QDir::Files, QDirIterator::Subdirectories);
        int recipes = 0;
        while (it.hasNext()) {
            const QString rel = QDir(sourceAssetsDir()).relativeFilePath(it.next());
            ++recipes;
            QVERIFY2(sources.contains(rel), qPrintable(rel + " is not in the manifest"));
        }
        QVERIFY(recipes >= 19);
    }

    // Making one group rewrites that group's files and leaves every other file alone.
    void oneGroupTouchesOnlyItsOwnFiles() {
        const QString mid = dir_.filePath("sounds/wmtheme.mid");
        const QString jpg = dir_.filePath("images/wm-back.jpg");
        const QString wav = dir_.filePath("sounds/ding.wav");
        for (const QString& path : {mid, jpg}) {
            QFile f(path);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write("spoilt");
        }
        const QDateTime soundTime = QFileInfo(wav).lastModified();
        QString error;
        QVERIFY2(generate(sourceAssetsDir(), dir_.path(), {"tunes"}, &error), qPrintable(error));
        QCOMPARE(snapshot(dir_.path()).value("sounds/wmtheme.mid"),
                 first_.value("sounds/wmtheme.mid"));
        QCOMPARE(snapshot(dir_.path()).value("images/wm-back.jpg"), QByteArray("spoilt"));
        QCOMPARE(QFileInfo(wav).lastModified(), soundTime);
        QVERIFY2(generate(sourceAssetsDir(), dir_.path(), {"pictures"}, &error), qPrintable(error));
        QCOMPARE(snapshot(dir_.path()).value("images/wm-back.jpg"),
                 first_.value("images/wm-back.jpg"));
        QVERIFY(!generate(sourceAssetsDir(), dir_.path(), {"noises"}, &error));
        QCOMPARE(error, QString("no asset group \"noises\""));
    }

    // A mistake in a recipe stops the build with the recipe's file and line.
    void aBrokenRecipeNamesItsFileAndLine() {
        QTemporaryDir src, app;
        QVERIFY(QFile::copy(QDir(sourceAssetsDir()).filePath("manifest.txt"),
                            src.filePath("manifest.txt")));
        QVERIFY(QDir(src.path()).mkpath("sounds"));
        for (const QString& name : QDir(sourceAssetsDir() + "/sounds").entryList(QDir::Files))
            QVERIFY(
                QFile::copy(sourceAssetsDir() + "/sounds/" + name, src.filePath("sounds/" + name)));
        QString error;
        QVERIFY(QFile::rename(src.filePath("sounds/tick.sound"), src.filePath("tick.sound")));
        QVERIFY(!generate(src.path(), app.path(), {"sounds"}, &error));
        QVERIFY2(error.contains("sounds/tick.sound"), qPrintable(error));
        QVERIFY(QFile::rename(src.filePath("tick.sound"), src.filePath("sounds/tick.sound")));
        QFile pop(src.filePath("sounds/pop.sound"));
        QVERIFY(pop.open(QIODevice::Append));
        pop.write("tone frq=300\n");
        pop.close();
        QVERIFY(!generate(src.path(), app.path(), {"sounds"}, &error));
        QVERIFY2(error.startsWith(src.filePath("sounds/pop.sound") + ":"), qPrintable(error));
        QVERIFY2(error.endsWith("tone has no key \"frq\""), qPrintable(error));
    }

    // The build made its application folder in another process: every file is byte for byte
    // the same, so nothing depends on the clock, the machine or memory left over. The run never
    // touched the pupils' score tables.
    void anotherRunMadeTheSameBytesAndLeftScoresAlone() {
        const QString built = qEnvironmentVariable("WM_TEST_APP_DIR");
        QVERIFY(!built.isEmpty());
        int compared = 0;
        for (auto it = first_.cbegin(); it != first_.cend(); ++it) {
            if (it.key().startsWith("scores/")) continue;
            QFile f(QDir(built).filePath(it.key()));
            QVERIFY2(f.open(QIODevice::ReadOnly), qPrintable(it.key()));
            QVERIFY2(f.readAll() == it.value(), qPrintable(it.key() + " differs between runs"));
            ++compared;
        }
        QVERIFY(compared > 100);
        QCOMPARE(first_.value("scores/Quiz.dat"), kScore);
        QCOMPARE(QDir(dir_.filePath("scores")).entryList(QDir::Files), QStringList{"Quiz.dat"});
    }

    void unwritableFolderFailsWithAMessage() {
        QFile blocker(dir_.filePath("blocker"));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        QString error;
        QVERIFY(!generateAll(dir_.filePath("blocker/app"), &error));
        QVERIFY(!error.isEmpty());
    }

private:
    const QByteArray kScore = "ABC\r\n12345\r\n";
    QTemporaryDir dir_;
    QMap<QString, QByteArray> first_;
};

QTEST_MAIN(AssetFilesTest)
#include "asset_files_test.moc"
