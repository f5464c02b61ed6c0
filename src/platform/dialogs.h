// Every modal box goes through Dialogs, so tests can script the answers.
#pragma once

#include <QString>
#include <QStringList>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

class QWidget;

namespace wm {

class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual void message(const QString& text, const QString& title = {}) = 0;
    virtual bool yesNo(const QString& text, const QString& title = {}) = 0;
    // The typed text, or nothing on Cancel.
    virtual std::optional<QString> input(const QString& prompt, const QString& title = {},
                                         const QString& initial = {}) = 0;
    // A chosen file, or an empty text on Cancel. `filter` is Qt's "Name (pattern)" form.
    virtual QString openFile(const QString& title, const QString& filter,
                             const QString& folder = {}) = 0;
};

// Real boxes, parented to the active window, styled to match the program.
class QtDialogs : public Dialogs {
public:
    void message(const QString& text, const QString& title = {}) override;
    bool yesNo(const QString& text, const QString& title = {}) override;
    std::optional<QString> input(const QString& prompt, const QString& title = {},
                                 const QString& initial = {}) override;
    QString openFile(const QString& title, const QString& filter,
                     const QString& folder = {}) override;
};

// Records every text and answers from queues; an empty queue answers No, Cancel, "".
class ScriptedDialogs : public Dialogs {
public:
    struct Shown {
        QString kind;  // "message", "yesNo", "input", "openFile"
        QString text;
        QString title;
    };

    void message(const QString& text, const QString& title = {}) override;
    bool yesNo(const QString& text, const QString& title = {}) override;
    std::optional<QString> input(const QString& prompt, const QString& title = {},
                                 const QString& initial = {}) override;
    QString openFile(const QString& title, const QString& filter,
                     const QString& folder = {}) override;

    ScriptedDialogs& answerYes(bool yes = true) {
        yesNoAnswers.push_back(yes);
        return *this;
    }
    ScriptedDialogs& answerInput(std::optional<QString> text) {
        inputAnswers.push_back(std::move(text));
        return *this;
    }
    QStringList texts() const;            // every text shown, in order
    QString last() const;                 // the last text shown, or ""
    bool saw(const QString& text) const;  // shown with exactly this text

    std::deque<bool> yesNoAnswers;
    // Answers a yes/no box once the queue is empty; absent, the answer is No.
    std::function<bool(const QString& text)> otherwiseYes;
    std::deque<std::optional<QString>> inputAnswers;
    std::deque<QString> fileAnswers;
    std::vector<Shown> shown;
    // Runs while a box stands open, before it is answered: a test moves the clock here to see
    // what goes on behind the box.
    std::function<void(const Shown&)> whileOpen;

private:
    void record(const QString& kind, const QString& text, const QString& title);
};

}  // namespace wm
