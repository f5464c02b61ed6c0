// A whole generator run into a scratch application folder: every file the program loads is
// there with the right size, the buttons are all different, a second run changes nothing and
// never touches the score tables.
#include "asset_gen.h"
#include "core/game_names.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QMap>
#include <QTemporaryDir>
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

    void writesEverySoundAndTune() {
        for (const char* name :
             {"tolvane", "ufofly", "applause", "fall", "click", "beep", "cheer", "ooh", "ricochet",
              "ding", "buzz", "pop", "tick", "whoosh", "tada"}) {
            const QByteArray b = first_.value(QStringLiteral("sounds/%1.wav").arg(name));
            QVERIFY2(b.size() > 44, name);
            QCOMPARE(b.left(4), QByteArray("RIFF"));
        }
        for (const char* name : {"wmtheme", "bgm-happy", "bgm-action", "bgm-calm"}) {
            QCOMPARE(first_.value(QStringLiteral("sounds/%1.mid").arg(name)).left(4),
                     QByteArray("MThd"));
        }
    }

    void secondRunIsIdenticalAndLeavesScoresAlone() {
        QString error;
        QVERIFY2(generateAll(dir_.path(), &error), qPrintable(error));
        const QMap<QString, QByteArray> second = snapshot(dir_.path());
        QCOMPARE(second.keys(), first_.keys());
        for (auto it = first_.cbegin(); it != first_.cend(); ++it) {
            QVERIFY2(second.value(it.key()) == it.value(), qPrintable(it.key() + " changed"));
        }
        QCOMPARE(second.value("scores/Quiz.dat"), kScore);
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
