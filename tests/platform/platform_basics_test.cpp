// Text conversion, scripted and real boxes, the service fallbacks, assets and sound effects.
#include <QApplication>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/music.h"
#include "platform/scene_kit.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "platform/text_fit.h"

using namespace wm;

Q_DECLARE_METATYPE(std::vector<bool>)

namespace {

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

QByteArray le32(quint32 v) {
    QByteArray b(4, '\0');
    for (int i = 0; i < 4; ++i) b[i] = char((v >> (8 * i)) & 0xFF);
    return b;
}

// A short, correct 8-bit mono WAV.
QByteArray wavBytes(int samples) {
    QByteArray fmt = QByteArray("fmt ") + le32(16);
    fmt += QByteArray::fromHex(
        "01000100"
        "401f0000"
        "401f0000"
        "01000800");
    QByteArray data = QByteArray("data") + le32(quint32(samples)) + QByteArray(samples, '\x80');
    if (samples & 1) data += '\0';
    return QByteArray("RIFF") + le32(quint32(4 + fmt.size() + data.size())) + "WAVE" + fmt + data;
}

}  // namespace

class PlatformBasicsTest : public QObject {
    Q_OBJECT
private slots:
    void init() {
        Shared() = SharedState{};
        services() = Services{};
        ScreenMetrics::overrideScreenSize({});
    }

    void windowsRangeAndUnmappable() {
        // The upper half past 0xA0 is Latin-1: accented letters keep their code points.
        for (int b = 160; b <= 255; ++b) QCOMPARE(toQ(std::string(1, char(b))), QString(QChar(b)));
        QCOMPARE(toQ("\xBF" "Qu\xE9?"), QString::fromUtf8("¿Qué?"));
        QCOMPARE(toQ("\x80"), QString(QChar(0x20AC)));  // euro sign, not a C1 control
        QCOMPARE(toQ("\x9F"), QString(QChar(0x0178)));
        QCOMPARE(fromQ(QString::fromUtf8("€ “quoted” – Ÿ")),
                 std::string("\x80 \x93quoted\x94 \x96 \x9F"));
        // Outside the code page: one "?" per character, astral ones included.
        QCOMPARE(fromQ(QString::fromUtf8("Жaβ😀")), std::string("?a??"));
        // A real SUB byte survives next to a replaced character.
        QCOMPARE(fromQ(QString::fromUtf8("a\x1A") + QChar(0x0416)), std::string("a\x1A?"));
        QCOMPARE(fromQ(QString()), std::string());
        QCOMPARE(toQ(""), QString());
    }

    void appFileAndFindAsset() {
        QTemporaryDir dir;
        Shared().AppPath = dir.path().toStdString();
        QCOMPARE(appFile(QStringLiteral("sounds/a.wav")), dir.path() + "/sounds/a.wav");
        QCOMPARE(appFile(QStringLiteral("\\sounds\\a.wav")), dir.path() + "/sounds/a.wav");

        QDir(dir.path()).mkpath(QStringLiteral("images"));
        writeFile(dir.filePath("images/wm-title.png"), "png");
        writeFile(dir.filePath("images/board.jpg"), "jpg");
        writeFile(dir.filePath("images/Flying Cow.jpg"), "jpg");
        writeFile(dir.filePath("images/notes.txt"), "txt");

        QCOMPARE(findAsset("images/board.jpg"), dir.filePath("images/board.jpg"));
        QCOMPARE(findAsset("images/wm-title.gif"), dir.filePath("images/wm-title.png"));
        QCOMPARE(findAsset("images/wm-title.wmf"), dir.filePath("images/wm-title.png"));
        QCOMPARE(findAsset("\\images\\board.bmp"), dir.filePath("images/board.jpg"));
        QCOMPARE(findAsset("images/flying cow.JPG"), dir.filePath("images/Flying Cow.jpg"));
        QCOMPARE(findAsset("images/FLYING COW.gif"), dir.filePath("images/Flying Cow.jpg"));
        QCOMPARE(findAsset("images/notes.gif"), QString());  // same stem, not a picture
        QCOMPARE(findAsset("images/missing.jpg"), QString());
        QCOMPARE(findAsset("nofolder/x.jpg"), QString());

        // Installed, the assets have a folder of their own; the data stays in AppPath.
        Shared().AssetPath = "/usr/share/wordmere";
        QCOMPARE(appFile(QStringLiteral("sounds/a.wav")),
                 QStringLiteral("/usr/share/wordmere/sounds/a.wav"));
        Shared().AssetPath.clear();
    }

    void effectsFollowSoundOn() {
        RecordingSound s;
        Shared().SoundOn = kFalse;
        s.effect(QStringLiteral("buzz"));
        Shared().SoundOn = 1;  // only -1 counts as on
        s.effect(QStringLiteral("buzz"));
        QVERIFY(s.played.isEmpty());
        Shared().SoundOn = kTrue;
        s.effect(QStringLiteral("ding"));
        QCOMPARE(s.played, QStringList{QStringLiteral("ding")});
        s.play(QStringLiteral("always"));  // play ignores the flag
        QCOMPARE(s.played.size(), 2);

        // The mode travels with the effect, and the flag gates every mode alike.
        s.effect(QStringLiteral("blast"), SoundMode::Overlap);
        s.effect(QStringLiteral("bleep"), SoundMode::NoInterrupt);
        Shared().SoundOn = kFalse;
        s.effect(QStringLiteral("muted"), SoundMode::Overlap);
        QCOMPARE(s.played, (QStringList{"ding", "always", "blast", "bleep"}));
        QCOMPARE(s.modes, (QList<SoundMode>{SoundMode::Replace, SoundMode::Replace,
                                            SoundMode::Overlap, SoundMode::NoInterrupt}));
    }

    void voicePlans_data() {
        QTest::addColumn<SoundMode>("mode");
        QTest::addColumn<std::vector<bool>>("mine");
        QTest::addColumn<bool>("other");
        QTest::addColumn<int>("voice");
        QTest::addColumn<bool>("stopOthers");
        using V = std::vector<bool>;
        const auto R = SoundMode::Replace, N = SoundMode::NoInterrupt, O = SoundMode::Overlap;
        QTest::newRow("replace cuts whatever sounds") << R << V{true, true} << true << 0 << true;
        QTest::newRow("bleep into silence") << N << V{false} << false << 0 << false;
        QTest::newRow("bleep over itself") << N << V{true} << false << -1 << false;
        QTest::newRow("bleep over another") << N << V{false} << true << -1 << false;
        QTest::newRow("bleep over a second voice") << N << V{false, true} << false << -1 << false;
        QTest::newRow("overlap reuses a free voice") << O << V{true, false} << true << 1 << false;
        QTest::newRow("overlap adds a voice") << O << V{true, true} << false << 2 << false;
        QTest::newRow("overlap cuts the oldest at the cap")
            << O << V(kMaxVoices, true) << false << 0 << false;
    }

    void voicePlans() {
        QFETCH(SoundMode, mode);
        QFETCH(std::vector<bool>, mine);
        QFETCH(bool, other);
        const VoicePlan plan = PlanVoice(mode, mine, other);
        QTEST(plan.voice, "voice");
        QTEST(plan.stopOthers, "stopOthers");
    }

    void wavCheckAndHarmlessQtSound() {
        QTemporaryDir dir;
        const QByteArray good = wavBytes(801);
        writeFile(dir.filePath("good.wav"), good);
        writeFile(dir.filePath("short.wav"), good.left(good.size() - 100));
        QByteArray lying = good;
        lying.replace(4, 4, le32(quint32(good.size() + 50)));  // RIFF size past the end
        writeFile(dir.filePath("lying.wav"), lying);
        writeFile(dir.filePath("text.wav"), "not a wave at all");

        QVERIFY(IsCompleteWav(dir.filePath("good.wav")));
        QVERIFY(!IsCompleteWav(dir.filePath("short.wav")));
        QVERIFY(!IsCompleteWav(dir.filePath("lying.wav")));
        QVERIFY(!IsCompleteWav(dir.filePath("text.wav")));
        QVERIFY(!IsCompleteWav(dir.filePath("none.wav")));

        // Whatever the machine has for audio, none of this may hang or crash.
        QElapsedTimer clock;
        clock.start();
        {
            QtSound sound(dir.path());
            Shared().SoundOn = kTrue;
            for (const char* name :
                 {"missing", "short", "lying.wav", "text", "good", "GOOD.WAV", ""}) {
                sound.effect(QString::fromLatin1(name));
            }
            for (int i = 0; i < kMaxVoices + 2; ++i) sound.effect("good", SoundMode::Overlap);
            sound.effect("good", SoundMode::NoInterrupt);
            sound.effect("short", SoundMode::Overlap);
            sound.stopAll();
        }
        QtSound nowhere(QStringLiteral("/no/such/folder"));
        nowhere.play(QStringLiteral("x"));
        QVERIFY(clock.elapsed() < 3000);
    }

    void scaledPointsFollowScreenHeight() {
        ScreenMetrics::overrideScreenSize({1024, 768});
        QCOMPARE(ScreenMetrics::scaledPoint(12), 12);
        ScreenMetrics::overrideScreenSize({1920, 1080});
        QCOMPARE(ScreenMetrics::screenSize(), QSize(1920, 1080));
        QCOMPARE(ScreenMetrics::scaledPoint(12), 17);  // 16.875 rounded
        ScreenMetrics::overrideScreenSize({800, 480});
        QCOMPARE(ScreenMetrics::scaledPoint(12), 10);  // 7.5 is below the floor of 9.6
        QCOMPARE(ScreenMetrics::scaledPoint(10), 8);
        ScreenMetrics::overrideScreenSize({});
        QVERIFY(ScreenMetrics::screenSize().isValid());
        QCOMPARE(ScreenMetrics::px(15), 1);
        QCOMPARE(ScreenMetrics::px(ScreenMetrics::twips(640)), 640);
    }
    // A 1600x1000 stage on a wide screen is cut top and bottom, on a tall one left and right,
    // and stays whole on a screen of its own shape.
    void stagesCoverTheScreen() {
        struct Row {
            QSizeF screen;
            double scale, dx, dy;
        } rows[] = {{{1920, 1080}, 1.2, 0, -60}, {{1280, 1024}, 1.024, -179.2, 0}, {{800, 500}, 0.5, 0, 0}};
        for (const Row& r : rows) {
            const QTransform t = scene::coverStage(r.screen, {1600, 1000});
            QCOMPARE(t.m11(), r.scale);
            QCOMPARE(t.m22(), r.scale);
            QCOMPARE(QPointF(t.dx(), t.dy()), QPointF(r.dx, r.dy));
        }
        QCOMPARE(scene::coverStage({800, 600}, {}), QTransform());
    }
    // Type comes down a pixel at a time to the largest size at which the text fits its box both
    // ways (a long word shrinks it as a long clue does), and never below the floor.
    void typeShrinksToTheLargestSizeThatFits() {
        QFont start("DejaVu Sans");
        start.setPixelSize(40);
        auto at = [&](int px) {
            QFont f = start;
            f.setPixelSize(px);
            return f;
        };
        auto fits = [](const QFont& f, const QRect& box, const QString& text) {
            const QRect need =
                QFontMetrics(f).boundingRect(box, Qt::AlignCenter | Qt::TextWordWrap, text);
            return need.height() <= box.height() && need.width() <= box.width();
        };
        const QString clue = "a bird that swims in icy seas but never flies";
        for (const QRect& box : {QRect(0, 0, 300, 70), QRect(0, 0, 120, 400)}) {
            for (const QString& text : {clue, QString("photosynthesis")}) {
                const int px = scene::shrinkToFit(start, box, text).pixelSize();
                QVERIFY2(px < 40 && px > 8, qPrintable(text));
                QVERIFY(fits(at(px), box, text));
                QVERIFY(!fits(at(px + 1), box, text));
            }
        }
        QCOMPARE(scene::shrinkToFit(start, QRect(0, 0, 900, 200), "ox").pixelSize(), 40);
        QCOMPARE(scene::shrinkToFit(start, QRect(0, 0, 20, 6), clue).pixelSize(), 8);
        QCOMPARE(scene::shrinkToFit(start, QRect(0, 0, 20, 6), clue, 11).pixelSize(), 11);

        const QString plate = "Score: 12345";
        const int px = scene::shrinkToWidth(start, 150, plate).pixelSize();
        QVERIFY(QFontMetrics(at(px)).horizontalAdvance(plate) <= 150);
        QVERIFY(QFontMetrics(at(px + 1)).horizontalAdvance(plate) > 150);
        QCOMPARE(scene::shrinkToWidth(start, 2000, plate).pixelSize(), 40);
        QCOMPARE(scene::shrinkToWidth(start, 5, plate).pixelSize(), 8);
        QCOMPARE(scene::shrinkToWidth(start, 5, plate, 10).pixelSize(), 10);
    }
};

QTEST_MAIN(PlatformBasicsTest)
#include "platform_basics_test.moc"
