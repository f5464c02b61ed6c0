#include "shell/choose_list.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "core/category_file.h"
#include "core/line_file.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "platform/text.h"
#include "shell/catalogue.h"
#include "shell/lang_choose.h"
#include "shell/screens.h"

namespace wm {

namespace {
constexpr const char* kAllLists = "ALL LISTS";

QString label(const std::string& name, double n, bool wordsOnly) {
    QString text = toQ(name) + " (" + toQ(CountText(n)) + " words";
    return text + (wordsOnly ? "- no definitions)" : ")");
}
}  // namespace

QString ListSummary::caption() const {
    return "Choose a list: " + toQ(StrText(total)) + " words available in " +
           toQ(StrText(static_cast<double>(lines.size()))) + " word lists.";
}

ListSummary SummariseLists(const std::vector<std::string>& lines, bool all,
                           const std::vector<std::string>& folderList) {
    ListSummary out;
    if (lines.empty()) return out;
    // The first line is a name; every later non-blank line is walked. The counter starts at
    // -0.5 so that a name line brings it to 0 and each word or definition line adds a half.
    std::vector<const std::string*> hold;
    hold.push_back(&lines[0]);
    for (std::size_t i = 1; i < lines.size(); ++i) {
        if (!Trim(lines[i]).empty()) hold.push_back(&lines[i]);
    }
    auto nameOf = [&](const std::string& stored) {
        if (Len(stored) > 4 && HasPrefix(stored)) {
            out.foreign.push_back({Mid(stored, 2, 1), Mid(stored, 4)});
            return Mid(stored, 4);
        }
        return stored;
    };
    auto inFolder = [&](const std::string& name) {
        if (all) return true;
        for (const auto& f : folderList) {
            if (Trim(f) == Trim(name)) return true;
        }
        return false;
    };
    auto close = [&](const std::string& name, double n, const std::string& lastLine) {
        if (inFolder(name)) out.lines << label(name, n, lastLine == kWordsOnlyMarker);
        out.total += n;
    };

    std::string current = nameOf(*hold[0]);
    double counter = -0.5;
    std::string previous;
    for (std::size_t i = 0; i < hold.size(); ++i) {
        const std::string& line = *hold[i];
        if (line != kSeparator) {
            counter += 0.5;
            previous = line;
            continue;
        }
        // A separator met before any line was counted leaves the list at -.5 words: kept.
        close(current, counter, previous);
        counter = -0.5;
        previous.clear();
        if (i + 1 < hold.size()) current = nameOf(*hold[i + 1]);
    }
    if (hold.back() && *hold.back() != kSeparator) close(current, counter, previous);
    return out;
}

ChooseList::ChooseList(QWidget* parent) : Backdrop("images/wm-back.jpg", parent) {
    setObjectName("ChooseList");
    setWindowTitle("Choose a list");
    QVBoxLayout* layout = CentredPanel(
        this, {.side = 1, .width = 4, .height = 10, .marginX = 40, .marginY = 30, .spacing = 14},
        toQ(Shared().CurrentGame));
    QWidget* panel = layout->parentWidget();
    Label1 = new QLabel("Choose the word list you want to use", panel);
    Label1->setObjectName("Label1");
    Label1->setFont(ScreenFont(16, true));
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setStyleSheet("color: #2f6fc4;");
    layout->addWidget(Label1);
    captionLabel_ = new QLabel(panel);
    captionLabel_->setObjectName("Caption");
    captionLabel_->setFont(ScreenFont(11));
    captionLabel_->setAlignment(Qt::AlignCenter);
    captionLabel_->setStyleSheet("color: #556;");
    layout->addWidget(captionLabel_);

    auto* catRow = new QHBoxLayout;
    auto* catLabel = new QLabel("Category:", panel);
    catLabel->setFont(ScreenFont(13, true));
    Combo1 = new QComboBox(panel);
    Combo1->setObjectName("Combo1");
    Combo1->setFont(ScreenFont(13));
    Combo1->addItem(kAllLists);
    catRow->addWidget(catLabel);
    catRow->addWidget(Combo1, 1);
    layout->addLayout(catRow);

    Label3 = new QLabel("Please wait while lists are retrieved...", panel);
    Label3->setObjectName("Label3");
    Label3->setFont(ScreenFont(14));
    Label3->setAlignment(Qt::AlignCenter);
    layout->addWidget(Label3);
    TheLists = new QListWidget(panel);
    TheLists->setObjectName("TheLists");
    TheLists->setFont(ScreenFont(14));
    // Sorted without regard to case, as the platform's sorted list box does: fillLists orders
    // the lines itself, since QListWidget's own sort goes by code point ("Zoo" before "apple").
    TheLists->setSortingEnabled(false);
    TheLists->hide();
    layout->addWidget(TheLists, 1);

    NavigationRow nav = MakeNavigationRow(panel, "<<Go Back", "Continue>>");
    Command1 = nav.onward;
    Command2 = nav.back;
    Command1->setEnabled(false);
    layout->addLayout(nav.layout);

    connect(Command1, &QPushButton::clicked, this, &ChooseList::continueOn);
    connect(Command2, &QPushButton::clicked, this, &ChooseList::goBack);
    connect(TheLists, &QListWidget::currentRowChanged, this,
            [this](int r) { Command1->setEnabled(r >= 0); });
    connect(TheLists, &QListWidget::itemDoubleClicked, this, &ChooseList::continueOn);
    connect(Combo1, &QComboBox::currentIndexChanged, this, [this] {
        if (!filling_) fillLists();
    });

    Timer1.setSingleShot(true);
    Timer1.setInterval(1);
    connect(&Timer1, &GameTimer::timeout, this, &ChooseList::opening);
    Timer1.start();
}

void ChooseList::opening() {
    SharedState& s = Shared();
    s.CurrentListName.clear();
    filling_ = true;
    for (const auto& c : CategoryNames(ReadCategoryLines(s.FolderFilePath)))
        Combo1->addItem(toQ(c));
    filling_ = false;
    fillLists();
    Label3->hide();
    TheLists->show();
    if (!s.LastCategoryChoice.empty()) {
        int i = Combo1->findText(toQ(s.LastCategoryChoice));
        if (i >= 0 && i != Combo1->currentIndex()) Combo1->setCurrentIndex(i);
    }
    if (TheLists->count() == 0) return;
    int pick = 0;
    if (!s.LastListChoice.empty()) {
        const QString last = toQ(s.LastListChoice).toLower();
        pick = -1;
        for (int i = 0; i < TheLists->count() && pick < 0; ++i) {
            if (TheLists->item(i)->text().toLower().startsWith(last)) pick = i;
        }
    }
    if (pick < 0) {
        // Nothing matches the last choice: nothing is chosen. Focus would make the box's first
        // line current, and Continue would then play a list the pupil never picked.
        Combo1->setFocus();
        return;
    }
    TheLists->setCurrentRow(pick);
    TheLists->setFocus();
}

void ChooseList::fillLists() {
    SharedState& s = Shared();
    TheLists->clear();
    const bool all = Combo1->currentIndex() <= 0;
    std::vector<std::string> folderList;
    if (!all)
        folderList =
            CollectLists(ReadCategoryLines(s.FolderFilePath), fromQ(Combo1->currentText()));
    std::vector<std::string> lines;
    try {
        lines = ReadAllLines(s.ListFilePath);
    } catch (const FileError& e) {
        dialogs().message(toQ(e.what()) + "\nAsk your teacher to check the vocabulary list file.",
                          "Vocabulary lists");
    }
    ListSummary summary = SummariseLists(lines, all, folderList);
    foreign_ = summary.foreign;
    std::stable_sort(
        summary.lines.begin(), summary.lines.end(),
        [](const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) < 0; });
    TheLists->addItems(summary.lines);
    captionLabel_->setText(summary.caption());
    setWindowTitle(summary.caption());
    Command1->setEnabled(TheLists->currentRow() >= 0);
}

void ChooseList::goBack() {
    OpenScreen("Title", this);
}

void ChooseList::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Escape) {
        goBack();
        return;
    }
    if ((e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) && TheLists->currentItem()) {
        continueOn();
        return;
    }
    Backdrop::keyPressEvent(e);
}

void ChooseList::continueOn() {
    SharedState& s = Shared();
    QListWidgetItem* item = TheLists->currentItem();
    if (!item) {
        dialogs().message("You need to choose a list!");
        return;
    }
    const std::string line = fromQ(item->text());
    s.LastListChoice = line;
    s.LastCategoryChoice = fromQ(Combo1->currentText());
    const int paren = InStrRev(line, "(");
    s.CurrentListName = paren > 2 ? Left(line, paren - 2) : line;

    LoadHooks hooks;
    hooks.chooseDirection = [this](const std::string& code) { return LangChoose::Ask(code, this); };
    hooks.message = [](const std::string& m) { dialogs().message(toQ(m)); };
    try {
        LoadList(s.ListFilePath, s, foreign_, hooks);
    } catch (const FileError& e) {
        dialogs().message(toQ(e.what()), "Vocabulary lists");
        return;
    }
    if (s.WordCount <= 0) {
        dialogs().message("The list \"" + toQ(s.CurrentListName) +
                          "\" has no words to play with. Please choose another list.");
        return;
    }
    const GameCard* card = FindCard(s.CurrentGame);
    if (!card) {
        OpenScreen("Title", this);
        return;
    }
    if (!applyEligibility(*card)) return;
    if (!card->built()) {
        dialogs().message(toQ(card->name) + " is not available yet. Please choose another game.",
                          "Wordmere");
        return;
    }
    // The list-first games go on to their options; the others straight into the game.
    OpenScreen(toQ(card->eligibility.opens), this);
}

bool ChooseList::applyEligibility(const GameCard& card) {
    SharedState& s = Shared();
    const EligibilityRow& row = card.eligibility;
    if (s.WordsOnly == kTrue) {
        const bool optionOn = s.GameOptionOn == kTrue;
        auto warn = [&] {
            dialogs().message(toQ(row.wordsOnlyText));
            if (!row.keepOption) s.GameOptionOn = kFalse;
        };
        switch (row.wordsOnly) {
            case WordsOnlyRule::Allowed:
                break;
            case WordsOnlyRule::Refuse:
                dialogs().message(toQ(row.wordsOnlyText));
                return false;
            case WordsOnlyRule::RefuseIfOption:
                if (optionOn) {
                    dialogs().message(toQ(row.wordsOnlyText));
                    return false;
                }
                break;
            case WordsOnlyRule::Warn:
                warn();
                break;
            case WordsOnlyRule::WarnIfOption:
                if (optionOn) warn();
                break;
        }
    }
    const bool tooFew = (row.count == CountRule::Below && s.WordCount < row.minWords) ||
                        (row.count == CountRule::BelowDifficulty && s.WordCount < s.Difficulty);
    if (tooFew) {
        dialogs().message(toQ(row.countText));
        return false;
    }
    return true;
}

}  // namespace wm
