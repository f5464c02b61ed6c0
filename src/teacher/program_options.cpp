#include "teacher/program_options.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QVBoxLayout>

#include "core/display_file.h"
#include "core/settings_file.h"
#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "platform/speech.h"
#include "platform/text.h"
#include "shell/catalogue.h"
#include "shell/style.h"
#include "teacher/teacher_kit.h"

namespace wm {

namespace {
QHBoxLayout* SaveCancelRow(QDialog* d, const QString& okText, QPushButton** ok) {
    auto* row = new QHBoxLayout;
    auto* cancel = NamedButton("Command2", "Cancel", d);
    *ok = NamedButton("Command1", okText, d, true);
    row->addWidget(cancel);
    row->addStretch();
    row->addWidget(*ok);
    QObject::connect(cancel, &QPushButton::clicked, d, &QDialog::reject);
    return row;
}
}  // namespace

SoundOptions::SoundOptions(QWidget* parent) : QDialog(parent) {
    setObjectName("SoundOptions");
    QVBoxLayout* layout = DialogBody(this, "Sound Options");
    auto* frame = new QGroupBox("Choose the default sound setting", this);
    frame->setFont(ScreenFont(12, true));
    auto* inner = new QVBoxLayout(frame);
    SoundOn = new QRadioButton("Sound is  ON  by default. (Best for stand-alone computers)", frame);
    SoundOn->setObjectName("SoundOn");
    SoundOff =
        new QRadioButton("Sound is  OFF  by default. (Best for running over networks)", frame);
    SoundOff->setObjectName("SoundOff");
    for (QRadioButton* b : {SoundOn, SoundOff}) {
        b->setFont(ScreenFont(12));
        inner->addWidget(b);
    }
    layout->addWidget(frame);
    QPushButton* ok;
    layout->addLayout(SaveCancelRow(this, "Save", &ok));
    connect(ok, &QPushButton::clicked, this, &SoundOptions::save);
    Guarded([&] {
        const std::string line = ReadSettings(Shared().AppPath).lines[kSoundLine];
        // Any other text leaves both buttons clear.
        if (line == "Sound On") SoundOn->setChecked(true);
        if (line == "Sound Off") SoundOff->setChecked(true);
    });
    WidenToScreen(this, 0.4);
}

void SoundOptions::save() {
    // The running SoundDefault stays: the new default counts from the next start.
    if (Guarded([&] {
            RewriteSettingsLine(Shared().AppPath, kSoundLine,
                                SoundOn->isChecked() ? "Sound On" : "Sound Off");
        }))
        accept();
}

SpeechOptions::SpeechOptions(QWidget* parent) : QDialog(parent) {
    setObjectName("SpeechOptions");
    QVBoxLayout* layout = DialogBody(this, "Speech Options");
    auto* frame = new QGroupBox("Hear the words", this);
    frame->setFont(ScreenFont(12, true));
    auto* inner = new QVBoxLayout(frame);
    SpeechOn = new QCheckBox(
        "Games may say the words aloud (\"Say It\" and the flash cards' speaker)", frame);
    SpeechOn->setObjectName("SpeechOn");
    SpeechOn->setFont(ScreenFont(12));
    inner->addWidget(SpeechOn);
    inner->addWidget(NamedLabel("RateLabel", "Speaking rate:", frame, 12));
    auto* row = new QHBoxLayout;
    RateSlider = new QSlider(Qt::Horizontal, frame);
    RateSlider->setObjectName("RateSlider");
    RateSlider->setRange(kMinSpeechRate, kMaxSpeechRate);
    RateSlider->setTickPosition(QSlider::TicksBelow);
    RateSlider->setTickInterval(5);
    row->addWidget(NamedLabel("SlowLabel", "Slower", frame, 11));
    row->addWidget(RateSlider, 1);
    row->addWidget(NamedLabel("FastLabel", "Faster", frame, 11));
    inner->addLayout(row);
    Command3 = NamedButton("Command3", "Try It", frame);
    inner->addWidget(Command3, 0, Qt::AlignLeft);
    layout->addWidget(frame);
    QPushButton* ok;
    layout->addLayout(SaveCancelRow(this, "Save", &ok));
    connect(ok, &QPushButton::clicked, this, &SpeechOptions::save);

    const QLocale english(QLocale::English);
    auto refresh = [this, english] {
        const QString why = SpeechStatusText(speech().status(english), english);
        Command3->setEnabled(why.isEmpty());
        Command3->setToolTip(why);
    };
    connect(&speech(), &Speech::statusChanged, this, refresh);
    refresh();
    connect(Command3, &QPushButton::clicked, this, [this, english] {
        speech().say("Hello! This is how the words will sound.", english, RateSlider->value());
    });

    const SharedState& s = Shared();
    SpeechOn->setChecked(s.SpeechOn == kTrue);
    RateSlider->setValue(s.SpeechRate);
    WidenToScreen(this, 0.4);
}

void SpeechOptions::save() {
    SharedState& s = Shared();
    const bool on = SpeechOn->isChecked();
    if (Guarded([&] { WriteSpeechSettings(s.AppPath, on, RateSlider->value()); })) {
        // Unlike the sound default, this counts at once.
        s.SpeechOn = on ? kTrue : kFalse;
        s.SpeechRate = RateSlider->value();
        accept();
    }
}

EnableDisable::EnableDisable(QWidget* parent) : QDialog(parent) {
    setObjectName("EnableDisable");
    QVBoxLayout* layout = DialogBody(this, "Show/Hide Games");
    findChild<QWidget*>("Heading")->setObjectName("Label1");
    layout->addWidget(NamedLabel(
        "Direction", "To hide a game, uncheck the box before it on the list below.", this));
    auto* columns = new QHBoxLayout;
    List1 = NamedList("List1", this);
    columns->addWidget(List1, 2);
    auto* frame = new QGroupBox("Title Screen Icons", this);
    frame->setFont(ScreenFont(12, true));
    auto* inner = new QVBoxLayout(frame);
    const char* captions[3] = {"Large Icons", "Medium Icons", "Small Icons"};
    for (int i = 0; i < 3; ++i) {
        Option1[i] = new QRadioButton(captions[i], frame);
        Option1[i]->setObjectName(QString("Option1_%1").arg(i));
        Option1[i]->setFont(ScreenFont(12));
        inner->addWidget(Option1[i]);
    }
    inner->addStretch();
    columns->addWidget(frame, 1);
    layout->addLayout(columns, 1);
    QPushButton* ok;
    layout->addLayout(SaveCancelRow(this, "Apply", &ok));
    connect(ok, &QPushButton::clicked, this, &EnableDisable::apply);

    const SharedState& s = Shared();
    const DisplaySettings d = ReadDisplaySettings(AppFilePath(kDisplayFileName));
    for (int i = 1; i <= s.GameCount; ++i) {
        if (!IsOffered(s.GameNames[i])) continue;
        auto* item = new QListWidgetItem(toQ(s.GameNames[i]), List1);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(d.isHidden(s.GameNames[i]) ? Qt::Unchecked : Qt::Checked);
    }
    const double scales[3] = {DisplaySettings::LargeIcons().scale,
                              DisplaySettings::MediumIcons().scale,
                              DisplaySettings::SmallIcons().scale};
    for (int i = 0; i < 3; ++i) Option1[i]->setChecked(d.scale == scales[i]);
    SizeToScreen(this, 0.5, 0.75);
}

void EnableDisable::apply() {
    if (!dialogs().yesNo("Apply these changes?")) return;
    DisplaySettings d = Option1[2]->isChecked()   ? DisplaySettings::SmallIcons()
                        : Option1[1]->isChecked() ? DisplaySettings::MediumIcons()
                                                  : DisplaySettings::LargeIcons();
    // In catalogue order; a game not offered here keeps the state the file gave it.
    const SharedState& s = Shared();
    const DisplaySettings before = ReadDisplaySettings(AppFilePath(kDisplayFileName));
    for (int i = 1, row = 0; i <= s.GameCount; ++i) {
        const std::string& name = s.GameNames[i];
        const bool hidden = IsOffered(name) ? List1->item(row++)->checkState() != Qt::Checked
                                            : before.isHidden(name);
        if (hidden) d.hidden.push_back(name);
    }
    if (Guarded([&] { WriteDisplaySettings(AppFilePath(kDisplayFileName), d); })) accept();
}

}  // namespace wm
