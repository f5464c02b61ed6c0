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
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"

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

// Answers the next modal box from the event loop, as a child at the keyboard would.
void answerNextModal(std::function<void(QWidget*)> act) {
    auto* poll = new QTimer;
    QObject::connect(poll, &QTimer::timeout, [poll, act] {
        if (QWidget* box = QApplication::activeModalWidget()) {
            poll->stop();
            poll->deleteLater();
            act(box);
        }
    });
    poll->start(10);
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

    void printableBytesRoundTrip() {
        std::string all;
        for (int b = 32; b <= 126; ++b) all += char(b);
        for (int b = 160; b <= 255; ++b) all += char(b);
        const QString text = toQ(all);
        QCOMPARE(text.size(), qsizetype(all.size()));
        QCOMPARE(fromQ(text), all);
        // The upper half past 0xA0 is Latin-1: accented letters keep their code points.
        for (int b = 160; b <= 255; ++b) QCOMPARE(toQ(std::string(1, char(b))), QString(QChar(b)));
        std::string accented;
        for (int b = 191; b <= 255; ++b) accented += char(b);
        QCOMPARE(fromQ(toQ(accented)), accented);
        QCOMPARE(toQ("\xBF"
                     "Qu\xE9?"),
                 QString::fromUtf8("¿Qué?"));
    }

    void windowsRangeAndUnmappable() {
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

    void textTypedApartIsComposed() {
        // A letter and a combining accent become the one letter of the code page.
        const QString cafe = QString("cafe") + QChar(0x0301);
        QCOMPARE(fromQ(cafe), std::string("caf\xE9"));
        QCOMPARE(fromQ(QString("A") + QChar(0x030A) + "ngstr" + QChar(0x00F6) + "m"),
                 std::string("\xC5ngstr\xF6m"));
        QVERIFY(FitsCodePage(cafe));
        QCOMPARE(OutsideCodePage(cafe), QString());
        // An accent with no composed letter stays apart and does not fit.
        const QString q = QString("q") + QChar(0x0301);
        QVERIFY(!FitsCodePage(q));
        QCOMPARE(OutsideCodePage(q), QString(QChar(0x0301)));
        QCOMPARE(fromQ(q), std::string("q?"));
        // Every character the files know fits; outside ones are named once each, in order.
        std::string all;
        for (int b = 32; b <= 255; ++b) {
            // The five bytes the code page leaves without a character.
            if (b != 0x81 && b != 0x8D && b != 0x8F && b != 0x90 && b != 0x9D) all += char(b);
        }
        QVERIFY(FitsCodePage(toQ(all)));
        QVERIFY(FitsCodePage(QString()));
        QCOMPARE(OutsideCodePage(QString::fromUtf8("a😀bΩc😀Ω")), QString::fromUtf8("😀Ω"));
        QVERIFY(!FitsCodePage(QString::fromUtf8("€ ok Ω")));
    }

    void scriptedDialogsRecordAndAnswer() {
        ScriptedDialogs d;
        d.answerYes(true)
            .answerYes(false)
            .answerInput(QStringLiteral("abc"))
            .answerInput(std::nullopt);
        d.fileAnswers.push_back(QStringLiteral("/tmp/a.dat"));

        d.message(QStringLiteral("Hello"), QStringLiteral("T"));
        QVERIFY(d.yesNo(QStringLiteral("Q1")));
        QVERIFY(!d.yesNo(QStringLiteral("Q2")));
        QVERIFY(!d.yesNo(QStringLiteral("Q3")));  // queue empty: No
        QCOMPARE(d.input(QStringLiteral("Name?")), std::optional<QString>(QStringLiteral("abc")));
        QCOMPARE(d.input(QStringLiteral("Again?")), std::nullopt);
        QCOMPARE(d.input(QStringLiteral("Once more?")), std::nullopt);  // empty: Cancel
        QCOMPARE(d.openFile(QStringLiteral("Pick"), QStringLiteral("Lists (*.dat)")),
                 QStringLiteral("/tmp/a.dat"));
        QCOMPARE(d.openFile(QStringLiteral("Pick again"), {}), QString());

        QCOMPARE(d.texts(), QStringList({"Hello", "Q1", "Q2", "Q3", "Name?", "Again?", "Once more?",
                                         "Pick", "Pick again"}));
        QCOMPARE(d.shown[0].kind, QStringLiteral("message"));
        QCOMPARE(d.shown[0].title, QStringLiteral("T"));
        QCOMPARE(d.shown[1].kind, QStringLiteral("yesNo"));
        QCOMPARE(d.shown[4].kind, QStringLiteral("input"));
        QCOMPARE(d.shown[7].kind, QStringLiteral("openFile"));
        QCOMPARE(d.last(), QStringLiteral("Pick again"));
        QVERIFY(d.saw(QStringLiteral("Q2")));
        QVERIFY(!d.saw(QStringLiteral("Q")));  // exact text only
        QCOMPARE(ScriptedDialogs().last(), QString());
    }

    void realBoxesAnswerAndDefaultTitle() {
        QtDialogs d;
        QString seenTitle;
        auto press = [](QWidget* box, const QString& text) {
            for (auto* b : box->findChildren<QPushButton*>())
                if (b->text() == text) b->click();
        };
        answerNextModal([&](QWidget* box) {
            seenTitle = box->windowTitle();
            press(box, QStringLiteral("Yes"));
        });
        QVERIFY(d.yesNo(QStringLiteral("Play again?")));
        QCOMPARE(seenTitle, QStringLiteral("Wordmere"));

        // A long question wraps inside the box rather than running off its edge.
        const QString longText = QStringLiteral(
            "You got a high score of 2900! Would you like to try again? This line goes on well "
            "past the width of any box, so it has to wrap onto further lines.");
        answerNextModal([&](QWidget* box) {
            auto* label = box->findChild<QLabel*>(QStringLiteral("BoxText"));
            QVERIFY(label);
            QVERIFY(label->wordWrap());
            QVERIFY(box->geometry().width() >= label->width());
            QVERIFY(label->height() >= label->heightForWidth(label->width()));
            press(box, QStringLiteral("No"));
        });
        QVERIFY(!d.yesNo(longText, QStringLiteral("Great job!")));

        answerNextModal([&](QWidget* box) {
            seenTitle = box->windowTitle();
            box->findChild<QLineEdit*>()->setText(QStringLiteral("Spelling"));
            qobject_cast<QDialog*>(box)->accept();
        });
        QCOMPARE(
            d.input(QStringLiteral("List name?"), QStringLiteral("New list"), QStringLiteral("x")),
            std::optional<QString>(QStringLiteral("Spelling")));
        QCOMPARE(seenTitle, QStringLiteral("New list"));

        answerNextModal([](QWidget* box) { qobject_cast<QDialog*>(box)->reject(); });
        QCOMPARE(d.input(QStringLiteral("List name?")), std::nullopt);
    }

    void servicesFallBackToSilentDoubles() {
        // Nothing installed: every accessor still gives something usable.
        dialogs().message(QStringLiteral("no crash"));
        QVERIFY(!dialogs().yesNo(QStringLiteral("?")));
        sound().play(QStringLiteral("applause"));
        QVERIFY(music().open(QStringLiteral("x.mid")));
        music().close();

        ScriptedDialogs d;
        RecordingSound s;
        RecordingMusic m;
        services() = Services{&d, &s, &m};
        dialogs().message(QStringLiteral("installed"));
        sound().play(QStringLiteral("pop"));
        music().playFromStart();
        QCOMPARE(d.texts(), QStringList{QStringLiteral("installed")});
        QCOMPARE(s.played, QStringList{QStringLiteral("pop")});
        QCOMPARE(m.plays, 1);
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
};

QTEST_MAIN(PlatformBasicsTest)
#include "platform_basics_test.moc"
