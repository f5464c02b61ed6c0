// A throw-away installation with the teacher's screens registered, and a queue of hands that
// answer the modal boxes one after another.
#pragma once

#include <QDialog>
#include <deque>
#include <functional>

#include "shell_fixture.h"
#include "core/settings_file.h"
#include "teacher/teacher_kit.h"

namespace wm::test {

struct TeacherFixture : ShellFixture {
    std::deque<std::function<void(QDialog&)>> hands;
    QStringList opened;  // object names of the boxes shown, in order

    explicit TeacherFixture(const QStringList& lists = {"Animals", "cat", "a pet", "dog",
                                                        "a loyal pet"}) {
        static bool once = [] {
            RegisterTeacherScreens();
            return true;
        }();
        (void)once;
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
};

}  // namespace wm::test
