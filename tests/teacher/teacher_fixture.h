// A throw-away installation with the teacher's screens registered, a queue of hands that
// answer the modal boxes one after another, and the ways into the screens the tests share.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>
#include <deque>
#include <functional>

#include "core/category_file.h"
#include "core/settings_file.h"
#include "platform/text.h"
#include "shell_fixture.h"
#include "teacher/build_list_form.h"
#include "teacher/categories.h"
#include "teacher/create_list.h"
#include "teacher/delete_list.h"
#include "teacher/edit_choose_list.h"
#include "teacher/edit_list.h"
#include "teacher/gate.h"
#include "teacher/make_new_list.h"
#include "teacher/manager.h"
#include "teacher/merge_form.h"
#include "teacher/program_options.h"
#include "teacher/teacher_kit.h"
#include "teacher/word_boxes.h"

namespace wm::test {

struct TeacherFixture : ShellFixture {
    std::deque<std::function<void(QDialog&)>> hands;
    QStringList opened;  // object names of the boxes shown, in order

    explicit TeacherFixture(const QStringList& lists = {"Animals", "cat", "a pet", "dog",
                                                        "a loyal pet"}) {
        [[maybe_unused]] static const bool once = (RegisterTeacherScreens(), true);
        QFile::copy(path("wmdata.new"), path("wmdata.dat"));
        writeLines("thelists.dat", lists);
        writeLines("folders.dat", {});
        QDir(dir.path()).mkpath("scores");
        SharedState& s = Shared();
        s.ListFilePath = path("thelists.dat").toStdString();
        s.FolderFilePath = path("folders.dat").toStdString();
        SetModalHook([this](QDialog& d) {
            opened << d.objectName();
            if (hands.empty()) return;
            auto hand = std::move(hands.front());
            hands.pop_front();
            hand(d);
        });
    }
    ~TeacherFixture() { QVERIFY2(hands.empty(), "a box the test meant to answer never opened"); }
    // Answers the next modal box, which must be a T.
    template <class T>
    void then(std::function<void(T&)> hand) {
        hands.push_back([hand](QDialog& d) {
            T* t = qobject_cast<T*>(&d);
            QVERIFY2(t, qPrintable("unexpected box " + d.objectName()));
            hand(*t);
        });
    }
    QByteArray crlf(const QStringList& lines) const {
        QByteArray out;
        for (const auto& l : lines) out += l.toLatin1() + "\r\n";
        return out;
    }
    QByteArray lists() const { return read("thelists.dat"); }
    // "title: text" of the message box shown `back` boxes ago (1: the last one).
    QString box(std::size_t back = 1) const {
        if (dialogs.shown.size() < back) return "(no box)";
        const auto& s = dialogs.shown[dialogs.shown.size() - back];
        return s.title + ": " + s.text;
    }
};

// The first row of `list` whose text starts with `start`, or -1.
inline int RowOf(QListWidget* list, const QString& start) {
    for (int i = 0; i < list->count(); ++i)
        if (list->item(i)->text().startsWith(start)) return i;
    return -1;
}

// The screen that makes a new list, as the create box leaves it.
inline MakeNewList* OpenMaker(const QString& name, bool wordsOnly = false,
                              const QString& language = {}) {
    SharedState& s = Shared();
    s.NewListName = fromQ(name);
    s.WordsOnly = wordsOnly ? kTrue : kFalse;
    s.ListLanguage = fromQ(language);
    return qobject_cast<MakeNewList*>(OpenScreen("MakeNewList"));
}

inline EditList* OpenEditor(const QString& list) {
    Shared().CurrentListName = fromQ(list);
    return qobject_cast<EditList*>(OpenScreen("EditList"));
}

}  // namespace wm::test
