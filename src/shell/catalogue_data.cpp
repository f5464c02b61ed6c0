// The 42 data cards: eligibility, options and how-to text of every game, in catalogue order.
#include "shell/catalogue.h"

#include <utility>

namespace wm {

const char* const kMsgM1 =
    "The list you have selected contains words only, with no definitions, and cannot be used for "
    "this game. Please choose another game or another list.";
const char* const kMsgM2 =
    "The list you have selected contains words only, with no definitions, and cannot be played "
    "with this game. Please choose another game or another list.";
const char* const kMsgW1 =
    "The list you have selected contains words only, with no definitions. The word meaning will "
    "not be displayed during the game.";
const char* const kMsgW2 =
    "The list you have selected contains words only, with no definitions. The <hint> button will "
    "not be available during the game.";
const char* const kMsgE1 =
    "There are not enough words in this vocabulary list to play this game! Please choose another "
    "list or another game.";
const char* const kMsgE2 =
    "There are not enough words in this vocabulary list to play this game at the level you have "
    "chosen! Please choose another list or go back and lower the difficulty level.";

std::string MsgN(int k) {
    return "You need a list with at least " + std::to_string(k) +
           " words to play this game. Please choose another game or another list.";
}

namespace {

using WO = WordsOnlyRule;

// The words-only texts that belong to one game only.
const char* const kFlashCardsRefusal =
    "The list you have selected contains words only, with no definitions, and cannot be used for "
    "flash cards. Please choose another game or another list.";
const char* const kQuizRefusal =
    "The list you have selected contains words only, with no definitions, and cannot be used for "
    "a quiz. Please choose another game or another list.";
const char* const kCannonShotWarning =
    "The list you have selected contains words only, with no definitions. During the game, the "
    "word meaning will not be displayed (making this game a bit harder than it would be "
    "otherwise...)";
const char* const kWordSearchWarning =
    "The list you have selected contains words only, with no definitions. The word clue will be "
    "the word and not the definition...";

// Eligibility rows, named after the shape of their count test.
EligibilityRow Elig(WO rule, std::string text, std::string opens, bool keepOption = false) {
    EligibilityRow row;
    row.wordsOnly = rule;
    row.wordsOnlyText = std::move(text);
    row.keepOption = keepOption;
    row.opens = std::move(opens);
    return row;
}

EligibilityRow AtLeast(EligibilityRow row, int minWords, std::string countText) {
    row.count = CountRule::Below;
    row.minWords = minWords;
    row.countText = std::move(countText);
    return row;
}

EligibilityRow AtLeastDifficulty(EligibilityRow row, std::string countText) {
    row.count = CountRule::BelowDifficulty;
    row.countText = std::move(countText);
    return row;
}

// Options rows.
OptionsRow Slider(int min, int max, int start, OptionFrame frame = OptionFrame::Hidden) {
    OptionsRow row;
    row.min = min;
    row.max = max;
    row.start = start;
    row.frame = frame;
    return row;
}

OptionsRow Clamped(int min, int max, int start, OptionFrame frame = OptionFrame::Hidden) {
    OptionsRow row = Slider(min, max, start, frame);
    row.clamped = true;
    return row;
}

// The slider keeps its design range; only the difficulty frame is hidden.
OptionsRow NoDifficulty(OptionFrame frame = OptionFrame::Hidden) {
    OptionsRow row;
    row.hasDifficulty = false;
    row.frame = frame;
    return row;
}

OptionsRow WordSearchOptions() {
    OptionsRow row = Slider(5, 20, 12, OptionFrame::Shown);
    row.frameCaption = "How do you want the clue?";
    row.option1 = "Clue is Word (Easy)";
    row.option2 = "Clue is Definition";
    return row;
}

OptionsRow ScrambleOptions() {
    OptionsRow row = Slider(1, 3, 1, OptionFrame::Shown);
    row.frameCaption = "Scatter Letters?";
    row.option1 = "Scatter (Harder)";
    row.option2 = "Don't Scatter (Easier)";
    row.easyLabel = "Normal";
    return row;
}

std::string FirstScreen(const std::string& name) {
    if (name == "Quiz") return "QuizOptions";
    if (name == "Flash Cards") return "FlashCardOptions";
    // Their sliders are clamped to the list's size, so the list is picked first.
    if (name == "Blind Tiles" || name == "Crossword" || name == "Word Maze" ||
        name == "Jailbreak" || name == "BreakThru")
        return "ChooseList";
    return "GameOptions";
}

// The list-first games open their options from the chooser, and the options open the game.
std::string ScreenOf(const std::string& name, const std::string& opens) {
    if (name == "Crossword") return "CrosswordForm";
    if (name == "Blind Tiles") return "BlindTilesForm";
    if (name == "Word Maze") return "WordMazeForm";
    if (name == "BreakThru") return "BreakThruForm";
    if (name == "Jailbreak") return "JailBreakForm";
    return opens;
}

GameCard Card(std::string name, EligibilityRow eligibility, OptionsRow options, std::string howTo) {
    GameCard card;
    card.screen = ScreenOf(name, eligibility.opens);
    card.button = "buttons/" + name + ".jpg";
    card.firstScreen = FirstScreen(name);
    card.name = std::move(name);
    card.eligibility = std::move(eligibility);
    card.options = std::move(options);
    card.howTo = std::move(howTo);
    return card;
}

std::vector<GameCard> BuildCatalogue() {
    const auto Shown = OptionFrame::Shown;
    std::vector<GameCard> cards;
    cards.reserve(42);

    cards.push_back(Card(
        "Flying Cow", Elig(WO::Allowed, "", "CowForm"), Slider(1, 9, 4),
        "A twist on the classic HANGMAN game. A cow is eating grass under a flying saucer! "
        "Guess the hidden word by typing one letter at a time, or click the letter keys. Every "
        "wrong letter lets the saucer's beam lift the cow one step higher. But if your letter "
        "fills two or more blanks, the cow drops back down a step! Guess five words before the "
        "cow is beamed up. Click Hint to see the meaning, but then that word is worth half the "
        "points. The higher the level, the fewer wrong letters you are allowed and the more "
        "points you get."));

    cards.push_back(Card(
        "Quiz", AtLeastDifficulty(Elig(WO::Refuse, kQuizRefusal, "Quiz"), kMsgE1), Slider(2, 8, 4),
        "You will see a question at the top of the screen and several answers below it. Click "
        "the answer that BEST matches: the meaning of the word, or the word for the meaning. "
        "Then click \"Click Here to go to the Next Question\" to go on. At the end you will see "
        "how many you got right. The level sets how many answers you choose from."));

    cards.push_back(Card(
        "Word Zap", AtLeastDifficulty(Elig(WO::RefuseIfOption, kMsgM1, "Zap"), kMsgE2),
        Slider(2, 8, 5),
        "It's a vocabulary shooting gallery! Words stand on the shelves as targets, and a "
        "definition appears at the bottom of the screen. Click the word that matches the "
        "definition to zap it. The faster you shoot, the more points you get, but a wrong target "
        "costs 500 points and a miss costs 100. You have 60 seconds, so be quick!"));

    cards.push_back(Card(
        "Scramble", Elig(WO::Warn, kMsgW2, "Scramble", true), ScrambleOptions(),
        "A scrambled vocabulary word will appear on the screen. Work out the word, type it in the "
        "box and click \"Submit Guess\" or press ENTER. Click \"Hint\" to see what the word means, "
        "or \"Give Up\" to see the answer. On the harder levels some letters blink out, and "
        "scattered letters are even trickier to read!"));

    cards.push_back(Card(
        "Wheel of Money", AtLeast(Elig(WO::Refuse, kMsgM2, "GameShowForm"), 4, kMsgE1),
        Slider(2, 10, 6),
        "Welcome to the Wheel of Money game show! Compete for fabulous prizes and loads of money "
        "in the game show that tests your vocabulary knowledge!"));

    cards.push_back(Card(
        "Concentration", AtLeastDifficulty(Elig(WO::Refuse, kMsgM1, "Concentration"), kMsgE2),
        Slider(2, 10, 6),
        "The classic card game of concentration! The cards lie face down on the table: half "
        "have vocabulary words and half have their definitions. Click a card to turn it over, "
        "then click another. A word and its own definition stay up, turn green and win points. "
        "Two cards that don't match turn back over, and you lose a few points, so remember "
        "where they were! Find every pair fast for a time bonus."));

    cards.push_back(Card(
        "BreakThru", Elig(WO::Allowed, "", "GameOptions"), Clamped(2, 20, 10),
        "On the right side of the screen will be a wall of letter bricks. Your word is at the "
        "top with its next letter lit up, and its meaning is just below it. Move your paddle "
        "with the up and down arrow keys and press the space bar to serve. Bounce the ball into "
        "the wall and knock out the word's letters in order. A wrong brick flashes red and "
        "costs 5 points. A ball that gets past your paddle is lost, and you only have three! "
        "Each new word brings a new wall and a faster ball. Spell all your words to break "
        "through!"));

    cards.push_back(Card(
        "Letter Drop", Elig(WO::WarnIfOption, kMsgW1, "LetterFall"), Slider(30, 240, 90, Shown),
        "Using the left and right arrow keys on the keyboard, steer each falling letter onto its "
        "place in the row of tiles at the bottom. Press the down arrow to make it fall faster. A "
        "letter that lands in the wrong place costs points and comes back later. Fill in the "
        "whole word to win! The higher the level, the faster the letters fall."));

    cards.push_back(Card(
        "Tower Assault", AtLeast(Elig(WO::Refuse, kMsgM2, "TowerGame"), 5, kMsgE1), NoDifficulty(),
        "Using only the right and left arrow keys, move your knight along the foot of the castle "
        "wall. The banner at the top shows a definition, and the guards on the battlements throw "
        "down scrolls, each with a word. Stand under the scroll whose word matches and catch it "
        "to build a rung of your ladder; each rung scores more than the last. Dodge the others: "
        "a wrong one costs one of your three shields! A right scroll that falls to the ground "
        "comes again later, and the scrolls fall faster with each rung. Build ten rungs to climb "
        "up and raise your flag on the castle!"));

    cards.push_back(Card(
        "Flash Cards", Elig(WO::Refuse, kFlashCardsRefusal, "FlashCardForm"), NoDifficulty(),
        "Flash cards are a great way to learn your vocabulary words! Each card shows you one "
        "side while the other side stays covered. Think of the answer, then click the button to "
        "uncover it and check yourself. Use \"Next Card\" and \"Previous Card\" to move through "
        "the set, or the scroll bar to jump to a card. There is no score!"));

    cards.push_back(
        Card("Crossword", Elig(WO::Refuse, kMsgM1, "GameOptions"), Clamped(2, 20, 10),
             "When you click on a box in the puzzle, the clue for the word that goes through it "
             "appears in the clue box. Type the word to fill it in, or click the same box again to "
             "switch between across and down. Every word you solve earns points. If you are stuck, "
             "click \"Give Answer\", but it costs points. Solve the whole puzzle to win!"));

    cards.push_back(Card(
        "Blind Tiles", Elig(WO::Allowed, "", "GameOptions"), Clamped(3, 7, 5),
        "Blind Tiles is similar to building a crossword puzzle. The words to use are listed at "
        "the side, but the puzzle shows only empty tiles and no clues. Click a tile, then type "
        "the word you think fits in that place. Every word placed right scores points; \"Give "
        "Answer\" fills one in for you but costs 1000 points."));

    cards.push_back(Card(
        "Basketball", AtLeast(Elig(WO::Refuse, kMsgM2, "BasketBallForm"), 10, kMsgE1),
        Slider(2, 10, 6),
        "Use the mouse to pick up the ball and drag it onto the net. A definition is shown under "
        "the basket, and words unscramble one letter at a time over the net. When the word that "
        "matches the definition appears, shoot! The sooner you shoot the right word, the more "
        "points you score. You have ten shots, so make them count."));

    cards.push_back(Card(
        "Speed Type", Elig(WO::Allowed, "", "SpeedType"), NoDifficulty(),
        "The rules for Speed Type are simple: wait for Ready... and Set..., and when you see "
        "Type!!! type the word on the screen as fast as you can, then press ENTER. Use BACKSPACE "
        "to fix a mistake, but a wrong word loses. Your score is your time per letter, so the "
        "smaller your score, the better!"));

    cards.push_back(Card(
        "Bug Spray", Elig(WO::Allowed, "", "BugSprayForm"), Slider(1, 3, 2),
        "A twist on the classic HANGMAN game. Guess the hidden vocabulary word by typing one "
        "letter "
        "at a time. Every wrong letter moves the spray can closer to the poor bug! Click \"Solve\" "
        "if you know the whole word, or \"Hint\" to see its definition, but a hint costs points. "
        "Find the word before the bug gets sprayed!"));

    cards.push_back(
        Card("Freeze-It", Elig(WO::Allowed, "", "FreezeIt"), Slider(1, 5, 3),
             "The word will be revealed to you one letter at a time. It stands as blocks of ice, "
             "and one block at a time melts to show its letter. Read the meaning, and as soon as "
             "you think you know the word, press the SPACE BAR to freeze the ice. Then type the "
             "whole word and press ENTER. The more blocks still frozen, the more points you win! "
             "A wrong guess costs 25 points and the ice keeps melting. If every block melts "
             "first, you get no points for that word. There are ten words in a game. The higher "
             "the level, the faster the ice melts, and the more each frozen block is worth!"));

    cards.push_back(Card(
        "Jailbreak", Elig(WO::Refuse, kMsgM1, "GameOptions"), Clamped(2, 6, 4),
        "Break out of jail! Each padlock on your cell door has a tag with a definition. Type its "
        "word and press ENTER to spring it open. A wrong word sets off the alarm, costs points "
        "and hurries the guard on. Open every lock before he reaches your door: the farther "
        "away he is, the more you score. Hint shows a lock's first letter. Escape three cells "
        "to win!"));

    cards.push_back(Card(
        "Cannon Shot", Elig(WO::Warn, kCannonShotWarning, "CannonShotForm"), Slider(2, 20, 10),
        "You will be given control of a cannon at the bottom of the screen. Balloons with "
        "letters float across the sky: the letters of a hidden word and a few tricky extra ones. "
        "The word's meaning at the top is your clue. Left and right arrows aim the cannon; hold "
        "the space bar to fill the power bar and let go to fire. Pop the letters in the order "
        "that spells the word. A wrong balloon costs points! From level 8 the wind pushes your "
        "ball: watch the flag. Spell five words to win before your cannonballs run out!"));

    cards.push_back(Card(
        "Word Search", Elig(WO::WarnIfOption, kWordSearchWarning, "WordSearchForm"),
        WordSearchOptions(),
        "Use the mouse to highlight the words hidden in the puzzle. The word to look for, or its "
        "meaning if you chose that clue, is shown beside the puzzle. Click each letter of the "
        "word in order, starting with the first. Words run across and down, and on harder levels "
        "diagonally too. Click \"Clear\" if you make a mistake."));

    cards.push_back(Card(
        "Word Maze", Elig(WO::Allowed, "", "GameOptions"),
        Clamped(2, 15, 8, OptionFrame::ShownUnlessWordsOnly),
        "Try to make your way from the beginning of the maze, the pink square at the top left, "
        "to the green square at the end. Click letters one at a time to spell each word whose "
        "clue is shown at the top; the pink squares show where you may go next. A wrong letter "
        "costs points, but \"Undo Move\" is free. Finish fast for a high score!"));

    cards.push_back(Card(
        "Asteroid Zap", Elig(WO::WarnIfOption, kMsgW1, "AsteroidBlast"), Slider(1, 15, 3, Shown),
        "Your ship has flown into an asteroid field! The letters of a vocabulary word are "
        "hidden, in order, in a wall of lettered asteroids sinking toward you. Move with the "
        "left and right arrow keys and fire with the space bar. Shoot away every extra letter so "
        "only the word is left. Never hit a letter of the word, and be quick!"));

    cards.push_back(Card(
        "Code Breaker", Elig(WO::Allowed, "", "CodeBreaker"), Slider(1, 50, 10),
        "You will be given one of your vocabulary words written in a secret code, and up to four "
        "more words in the same code. Every letter has been swapped for another letter, and a "
        "letter with an accent is a little picture. Click a code letter (or use the arrow "
        "keys), then type the real letter you think it stands for: every copy fills in, and a "
        "letter used elsewhere moves here. The meaning of the first word is your clue. "
        "\"Hint\" shows one letter but costs 30 seconds. Crack the whole code before the clock runs out! The "
        "higher the level, the less time you have, and the more each second left is worth."));

    cards.push_back(Card(
        "Slot Machine", Elig(WO::Refuse, kMsgM1, "SlotMachine"), Slider(1, 20, 9),
        "A definition will appear at the bottom of the screen. Pull the handle (or press Space) "
        "to spin the three reels of words: a pull costs 5 coins. Stop each reel with its STOP "
        "button (or the keys 1, 2 and 3) when the word that matches the definition is in its "
        "window. A right word pays 5 coins. Get it on all three reels in one pull to win the "
        "jackpot: 20 coins times the level! You start with 100 coins. After ten definitions the "
        "coins you have left are your score, but if you run out of coins the game is over. The "
        "higher the level, the faster the reels spin."));

    cards.push_back(Card(
        "Bridge Out", Elig(WO::Allowed, "", "BridgeOutGame"), Slider(2, 10, 6),
        "The bridge is out! A truck needs to cross the river, but planks are missing. The "
        "bridge's planks spell a word, and each gap is a missing letter. Letter planks float down "
        "the river: drag the right one into each gap. A right letter locks in and scores points; "
        "a wrong one splashes back into the river and costs points. Fix the whole bridge before "
        "the truck gets there and it rolls across, with bonus points for the road it had left. "
        "If the truck gets to a gap, it has to stop, and you lose one of your three trucks. Fix "
        "eight bridges to win! The higher the level, the faster the truck drives."));

    cards.push_back(Card(
        "Crunch Man", Elig(WO::Allowed, "", "CrunchManGame"), Slider(2, 14, 7),
        "You will see a definition at the top of the screen. The letters of the matching word "
        "are scattered around the field. Steer Crunch Man with the arrow keys and eat the "
        "letters in the order that spells the word. A wrong letter or a mine ends the game! The "
        "higher the level, the faster you move and the more mines there are."));

    cards.push_back(Card(
        "Letter Toss", AtLeastDifficulty(Elig(WO::Refuse, kMsgM2, "LetterTossGame"), kMsgE1),
        Slider(2, 4, 4),
        "You will see 2 to 4 definitions, each on a card over its own basket at the back of the "
        "classroom. A paper ball with a word lies at the front. Drag the ball with the mouse and "
        "let go to toss it into the basket whose definition matches the word. Watch the fan's "
        "arrow: its draught blows the ball sideways, and it changes every toss! The right basket "
        "scores 100 points, and 50 more for a clean swish. The wrong basket costs 50 points. On "
        "the floor? Just toss again. Toss as many words as you can in 60 seconds! The level sets "
        "how many baskets you see."));

    cards.push_back(Card(
        "Spell Crush", AtLeast(Elig(WO::Allowed, "", "SpellCrushGame"), 4, kMsgE1), NoDifficulty(),
        "You will see four words. ONE of the words is spelled wrong. Use your mouse to click on "
        "the misspelled word and the safe will drop to crush it."));

    cards.push_back(Card(
        "Spiderwebs", AtLeastDifficulty(Elig(WO::Refuse, kMsgM2, "SpiderGame"), kMsgE1),
        Slider(3, 12, 8),
        "A definition will appear at the top of the screen. Below it, flies are stuck in a "
        "spider web in the night garden, and every fly holds a word. A hungry spider crawls from "
        "the middle of the web toward the fly whose word matches the definition. Click that fly "
        "before the spider gets there to set it free! The quicker you are, the more points you "
        "get. If you click a wrong fly, the spider eats it, you lose 25 points, and the spider "
        "hurries. If the spider gets there first, you see the word but get no points. A game has "
        "ten definitions, and the level you pick is the number of flies in the web."));

    cards.push_back(Card(
        "Safe Cracker", Elig(WO::WarnIfOption, kMsgW1, "SafeCracker"), NoDifficulty(Shown),
        "Try to crack the safe! The combination is a hidden vocabulary word, with one tumbler "
        "for each letter. Type a whole word that long (or click the letter keys) and press "
        "ENTER. A tumbler turns green for a right letter in the right place, amber for a letter "
        "that is in the word somewhere else, and grey for a letter that is not in it at all. "
        "The keys below remember what you found. You have six tries for each safe, and the "
        "fewer you need, the more points you get. Open five safes! If you chose to show the "
        "word meaning, it appears above the safe as your clue."));

    cards.push_back(Card(
        "Word Bricks", AtLeastDifficulty(Elig(WO::Allowed, "", "WordBricks"), kMsgE1),
        Slider(2, 10, 6),
        "Pick up the pieces of broken words and put them back together! Each word has been "
        "broken into bricks of two or three letters, tipped out on the ground. Beside each yellow "
        "girder a sign gives the word's meaning (or how many letters it has). Drag the bricks "
        "onto the girder in the right order. A girder that spells its word turns gold and scores "
        "10 points a letter; a wrong one shakes its bricks off and costs 10 points. Build every "
        "word to win: the faster you finish, the bigger your bonus! The level sets how many "
        "words are broken."));

    cards.push_back(Card(
        "Toad Race", Elig(WO::Allowed, "", "ToadRace"), Slider(1, 10, 5),
        "It's a race! Your green toad races Goldie, Puddles and Ruby across the pond. A word "
        "appears on the sign, with its meaning underneath. Type the word and press ENTER: your "
        "toad hops to the next lily pad and a new word comes up. Big or small letters are fine, "
        "but accents count. Spell it wrong and your toad just sits there until you fix it. The "
        "other toads hop all by themselves. Twelve pads to the finish flag: get there first to "
        "win! The further behind the other toads are, the bigger your score. The higher the "
        "level, the faster they hop."));

    cards.push_back(Card(
        "Princess", Elig(WO::WarnIfOption, kMsgW1, "frmPrincess"), Slider(1, 15, 5, Shown),
        "Help the princess cross the drawbridge before the dragon wakes up! The letters of a "
        "word are mixed up on stepping stones in the moat. Click the stones in the right order "
        "to spell the word (or type the letters): each right stone jumps up and turns into a "
        "plank. If you chose to show the word meaning, it is your clue. A wrong stone goes "
        "splash and the dragon stirs: eight splashes and it wakes up! Every word you spell "
        "lowers the drawbridge a little. Spell as many words as the level and the princess "
        "walks across. Each word is worth 10 points a letter, and 50 more with no splash."));

    cards.push_back(Card(
        "Mini Golf", AtLeast(Elig(WO::Refuse, kMsgM1, "MiniGolf"), 5, MsgN(5)), Slider(1, 10, 5),
        "Use the mouse to hit the ball into the hole under the word that matches the definition "
        "at the top. Click near the ball, drag the mouse away from it and let go to swing: the "
        "farther you pull, the harder you hit. Fewer strokes earn more points, and a wrong hole "
        "costs 1000 points. Sink as many as you can before time runs out!"));

    cards.push_back(Card(
        "HangMan", Elig(WO::Warn, kMsgW2, "HangMan", true), Slider(1, 3, 2),
        "Try to guess the vocabulary word! Each blank stands for one letter. Type a letter: if "
        "it is in the word, it fills in its blanks. Every wrong letter builds more of the "
        "gallows! Click \"Solve\" when you know the whole word, or \"Hint\" to see its "
        "definition, but a hint costs points. Guess the word before your guy is hanged!"));

    cards.push_back(Card(
        "Short Circuit", Elig(WO::WarnIfOption, kMsgW1, "ShortCircuit"), Slider(2, 10, 5, Shown),
        "Connect the light bulb to the battery by completing the circuit. Click on the letters to "
        "spell out your vocabulry word to wire them together. If you wired them correctly, the "
        "bulb will light!"));

    cards.push_back(Card(
        "Tic-Tac-Toe", AtLeast(Elig(WO::Refuse, kMsgM1, "TicTacToe"), 6, MsgN(6)), Slider(2, 6, 4),
        "Play a game of Tic-Tac-Toe against the computer. To choose a square, pick the definition "
        "that matches the word in the square that you want. Get three in a row in any direction "
        "to win!"));

    cards.push_back(Card(
        // Both bomb games start at three wires: a six-word list, which the chooser accepts, can
        // always deal them.
        "Bomb Squad", AtLeast(Elig(WO::Refuse, kMsgM1, "BombSquad"), 6, MsgN(6)), Slider(2, 10, 2),
        "You are part of a special unit that has been called in to diffuse a bomb! Use the mouse "
        "to cut the wires that connect the words and definitions that DON'T MATCH. Cut them all "
        "before the timer runs out to diffuse the bomb..."));

    cards.push_back(Card(
        "Bomb Squad 2", AtLeast(Elig(WO::Refuse, kMsgM1, "BombSquad2"), 6, MsgN(6)),
        Slider(2, 10, 2),
        "You are part of a special unit that has been called in to diffuse a bomb! Use the mouse "
        "to wire the words to their matching definitions. Click on a word to connect a wire, then "
        "click on the matching definition to secure the wire. Connect all the wires before the "
        "timer runs out to diffuse the bomb..."));

    cards.push_back(Card(
        "Hang Glider", Elig(WO::Allowed, "", "HangGlider"), Slider(1, 10, 4),
        "Use the up and down arrow keys to steer your hang glider over the mountains. The word is "
        "at the top with its next letter lit up, and its meaning under it. Letters float toward "
        "you on little clouds: fly through the lit letter to add it to the word, and warm air "
        "lifts you up high. Steer around the other letters: a wrong one costs points and drops "
        "you down. Your glider sinks a little all the time, and it can only climb back as high "
        "as the last warm air took it. Spell five words to win, but don't land too early! The "
        "higher the level, the faster the letters fly."));

    cards.push_back(Card(
        "Slingshot", AtLeast(Elig(WO::Refuse, kMsgM1, "SlingShot"), 4, MsgN(4)), Slider(1, 9, 5),
        "Use the mouse to click on the slingshot, hold the button down and pull the band back, "
        "then let go to fire a stone! A definition is at the top of the screen, and four "
        "targets swing on ropes, each with a word. Hit the target whose word matches: it spins "
        "away and you get 100 points times the level. A wrong target wobbles and costs 50 "
        "points. The harder you pull, the faster the stone flies. You have three stones for "
        "each definition; if they all miss, the right target flashes and the next one comes. "
        "Ten definitions make a game. The higher the level, the wider and faster the targets "
        "swing."));

    cards.push_back(Card(
        "Froggy", AtLeast(Elig(WO::Refuse, kMsgM1, "FroggyForm"), 4, MsgN(4)), Slider(1, 9, 5),
        "Use the arrow keys on your keyboard to safely guide froggy to the word that answers the "
        "question at the top of the screen. Each key press is one hop. Dodge the cars on the roads "
        "and ride the logs across the river: a car or the water ends the game, and so does the "
        "wrong word! The faster you get there, the bigger your bonus."));

    cards.push_back(Card(
        "Pachinko", AtLeast(Elig(WO::Refuse, kMsgM1, "Plachinko"), 5, MsgN(5)), NoDifficulty(),
        "Answer questions to earn up to five disks, then drop the disks into the top of the "
        "pachinko game board and watch them zig-zag to the bottom to see how many points you can "
        "win!"));

    for (std::size_t i = 0; i < cards.size(); ++i) cards[i].index = static_cast<int>(i) + 1;
    return cards;
}

char AsciiLower(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

bool SameIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (AsciiLower(a[i]) != AsciiLower(b[i])) return false;
    return true;
}

std::vector<GameCard>& Cards() {
    static std::vector<GameCard> cards = BuildCatalogue();
    return cards;
}

}  // namespace

const std::vector<GameCard>& Catalogue() {
    return Cards();
}

const GameCard* FindCard(std::string_view name) {
    for (const GameCard& card : Catalogue())
        if (SameIgnoringCase(card.name, name)) return &card;
    return nullptr;
}

namespace {
bool onlyBuilt = false;
}  // namespace

bool IsOffered(std::string_view name) {
    const GameCard* card = FindCard(name);
    return !onlyBuilt || (card && card->built());
}

void OfferOnlyBuiltGames(bool only) {
    onlyBuilt = only;
}

bool AttachGame(std::string_view name, std::function<QWidget*()> make,
                std::vector<std::string> assets) {
    for (GameCard& card : Cards()) {
        if (card.name != name) continue;
        card.make = std::move(make);
        card.assets = std::move(assets);
        return true;
    }
    return false;
}

}  // namespace wm
