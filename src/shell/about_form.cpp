#include "shell/about_form.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/style.h"

namespace wm {

AboutForm::AboutForm(QWidget* parent) : QDialog(parent) {
    setObjectName("AboutForm");
    setWindowTitle("Wordmere");
    setModal(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(40, 30, 40, 30);
    layout->setSpacing(14);
    auto* logo = new QLabel(this);
    QPixmap title = LoadPicture("images/wm-title.jpg");
    if (!title.isNull()) {
        // The title art sits in the top third of the picture.
        QPixmap art = title.copy(0, 0, title.width(), title.height() / 3);
        logo->setPixmap(
            art.scaledToWidth(ScreenFont(10).pointSize() * 36, Qt::SmoothTransformation));
        logo->setAlignment(Qt::AlignCenter);
        layout->addWidget(logo);
    }
    auto* name = MakeHeading("Wordmere", this, 26);
    name->setAlignment(Qt::AlignCenter);
    layout->addWidget(name);
    auto* what = new QLabel("A classroom suite of 42 vocabulary games", this);
    what->setFont(ScreenFont(12));
    what->setAlignment(Qt::AlignCenter);
    layout->addWidget(what);
    auto* version = new QLabel("Version 1.01", this);
    version->setObjectName("Version");
    version->setFont(ScreenFont(12, true));
    version->setAlignment(Qt::AlignCenter);
    layout->addWidget(version);
    auto* ok = MakeButton("OK", this, true);
    ok->setObjectName("OK");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    layout->addWidget(ok, 0, Qt::AlignCenter);
}

}  // namespace wm
