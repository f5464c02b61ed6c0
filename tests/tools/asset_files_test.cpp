// A generator run into a scratch application folder: every file the manifest lists is there
// with sane content, the buttons are all different, another run makes the same bytes and it
// never touches the score tables, and one group can be made without touching the others. The
// sounds, slow to make, are checked in the build's own folder here and as made in wav_test.
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

// Writes `bytes` to `path`, or adds them at its end; whether it could.
bool Put(const QString& path, const QByteArray& bytes,
         QIODevice::OpenMode mode = QIODevice::WriteOnly) {
    QFile f(path);
    return f.open(mode) && f.write(bytes) == bytes.size();
}

}  // namespace

class AssetFilesTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QVERIFY(dir_.isValid());
        // A pupil's score table from an earlier run of the program.
        QVERIFY(QDir(dir_.path()).mkpath("scores") &&
                Put(dir_.filePath("scores/Quiz.dat"), kScore));
        QString error;
        QVERIFY2(generate(sourceAssetsDir(), dir_.path(),
                          {"pictures", "buttons", "tunes", "movies", "art"}, &error),
                 qPrintable(error));
        first_ = snapshot(dir_.path());
    }

    void everyButtonOwnAndEveryManifestEntrySane() {
        QSet<QByteArray> seen;
        for (int i = 0; i < wm::kGameCount; ++i) {
            // Names with blanks and dashes are used as they are.
            const QString path = dir_.filePath("buttons/" + gameName(i) + ".jpg");
            const QImage img(path);
            QVERIFY2(img.size() == QSize(360, 270), qPrintable(path));
            const QImage rgb = img.convertToFormat(QImage::Format_RGB32);
            const QByteArray hash = QCryptographicHash::hash(
                QByteArrayView(rgb.constBits(), rgb.sizeInBytes()), QCryptographicHash::Sha1);
            QVERIFY2(!seen.contains(hash), qPrintable(gameName(i) + " looks like another button"));
            seen.insert(hash);
        }
        // Every manifest line is in the folder with content the program can use.
        std::vector<ManifestEntry> entries;
        QString error;
        QVERIFY2(readManifest(QDir(sourceAssetsDir()).filePath("manifest.txt"), &entries, &error),
                 qPrintable(error));
        int sounds = 0, tunes = 0;
        for (const ManifestEntry& e : entries) {
            if (e.kind == "scene") continue;  // drawn by the program itself
            const bool sound = e.kind == "sound";
            QVERIFY2(assetPresent(sound ? built() : dir_.path(), e.name), qPrintable(e.name));
            const QByteArray b = first_.value(e.name);
            if (sound) {
                ++sounds;
            } else if (!e.size.isEmpty()) {
                QVERIFY2(QImage::fromData(b).size() == e.size, qPrintable(e.name));
            } else if (e.kind == "tune") {
                ++tunes;
                // A format 1 file whose chunk lengths add up to the file, each track closed by
                // its end-of-track event: what the player needs to loop it.
                QVERIFY2(b.startsWith(QByteArray("MThd\0\0\0\6\0\1", 10)), qPrintable(e.name));
                auto u32 = [&](int at) { return qFromBigEndian<quint32>(b.constData() + at); };
                const int tracks = qFromBigEndian<quint16>(b.constData() + 10);
                int at = 14, seen = 0;
                while (at + 8 <= b.size() && b.mid(at, 4) == "MTrk") {
                    at += 8 + int(u32(at + 4));
                    QVERIFY2(at <= b.size() && b.mid(at - 3, 3) == QByteArray("\xFF\x2F\0", 3),
                             qPrintable(e.name));
                    ++seen;
                }
                QVERIFY(at == int(b.size()) && seen == tracks && tracks >= 4);
            }
        }
        QVERIFY(sounds >= 15 && tunes >= 4);
        // The names screens ask for by hand are listed.
        for (const char* name : {"sounds/applause.wav", "sounds/wmtheme.mid", "images/wm-title.jpg",
                                 "buttons/Scramble.jpg", "movies/wmsplash"})
            QVERIFY2(manifestLists(name), name);
        QVERIFY(!manifestLists("sounds/nothing.wav"));
    }

    // Making one group rewrites that group's files and leaves every other file alone.
    void oneGroupTouchesOnlyItsOwnFilesAndABrokenRecipeIsNamed() {
        const QString mid = dir_.filePath("sounds/wmtheme.mid");
        const QString jpg = dir_.filePath("images/wm-back.jpg");
        const QString jpg2 = dir_.filePath("buttons/Quiz.jpg");
        for (const QString& path : {mid, jpg}) QVERIFY(Put(path, "spoilt"));
        const QDateTime buttonTime = QFileInfo(jpg2).lastModified();
        QString error;
        QVERIFY2(generate(sourceAssetsDir(), dir_.path(), {"tunes"}, &error), qPrintable(error));
        QCOMPARE(snapshot(dir_.path()).value("sounds/wmtheme.mid"),
                 first_.value("sounds/wmtheme.mid"));
        QCOMPARE(snapshot(dir_.path()).value("images/wm-back.jpg"), QByteArray("spoilt"));
        QCOMPARE(QFileInfo(jpg2).lastModified(), buttonTime);
        QVERIFY2(generate(sourceAssetsDir(), dir_.path(), {"pictures"}, &error), qPrintable(error));
        QCOMPARE(snapshot(dir_.path()).value("images/wm-back.jpg"),
                 first_.value("images/wm-back.jpg"));
        QVERIFY(!generate(sourceAssetsDir(), dir_.path(), {"noises"}, &error) &&
                error == "no asset group \"noises\"");
        // A mistake in a recipe stops the build with the recipe's file and line.
        QTemporaryDir src, app;
        QVERIFY(QDir(src.path()).mkpath("sounds"));
        QVERIFY(Put(src.filePath("manifest.txt"),
                    "sound sounds/pop.sound sounds/pop.wav\n"
                    "sound sounds/tick.sound sounds/tick.wav\n"));
        QFile::copy(sourceAssetsDir() + "/sounds/pop.sound", src.filePath("sounds/pop.sound"));
        QVERIFY(!generate(src.path(), app.path(), {"sounds"}, &error));
        QVERIFY2(error.contains("sounds/tick.sound"), qPrintable(error));
        QFile::copy(sourceAssetsDir() + "/sounds/tick.sound", src.filePath("sounds/tick.sound"));
        QVERIFY(Put(src.filePath("sounds/pop.sound"), "tone frq=300\n", QIODevice::Append));
        QVERIFY(!generate(src.path(), app.path(), {"sounds"}, &error));
        QVERIFY2(error.startsWith(src.filePath("sounds/pop.sound") + ":"), qPrintable(error));
        QVERIFY2(error.endsWith("tone has no key \"frq\""), qPrintable(error));
    }

    // The build made its application folder in another process: every file is byte for byte
    // the same, so nothing depends on the clock, the machine or memory left over. The run never
    // touched the pupils' score tables.
    void anotherRunMadeTheSameBytesAndLeftScoresAlone() {
        QVERIFY(!built().isEmpty());
        int compared = 0;
        for (auto it = first_.cbegin(); it != first_.cend(); ++it) {
            if (it.key().startsWith("scores/")) continue;
            QFile f(QDir(built()).filePath(it.key()));
            QVERIFY2(f.open(QIODevice::ReadOnly), qPrintable(it.key()));
            QVERIFY2(f.readAll() == it.value(), qPrintable(it.key() + " differs between runs"));
            ++compared;
        }
        QVERIFY(compared > 100);
        QCOMPARE(first_.value("scores/Quiz.dat"), kScore);
        QCOMPARE(QDir(dir_.filePath("scores")).entryList(QDir::Files), QStringList{"Quiz.dat"});
    }

private:
    static QString built() { return qEnvironmentVariable("WM_TEST_APP_DIR"); }
    const QByteArray kScore = "ABC\r\n12345\r\n";
    QTemporaryDir dir_;
    QMap<QString, QByteArray> first_;
};

QTEST_MAIN(AssetFilesTest)
#include "asset_files_test.moc"
