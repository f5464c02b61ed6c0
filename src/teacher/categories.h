// Files lists under categories. The category file is renamed to its lock name for as long as
// this box is open, so a second teacher is warned.
#pragma once

#include <QDialog>
#include <string>
#include <vector>

class QLabel;
class QListWidget;
class QListWidgetItem;

namespace wm {

class Categories : public QDialog {
    Q_OBJECT
public:
    explicit Categories(QWidget* parent = nullptr);
    ~Categories() override;
    bool loaded() const { return locked_; }
    QListWidget* categories() const { return List1; }
    QListWidget* lists() const { return List2; }
    QString countText() const;
    const std::vector<std::string>& lines() const { return HoldLIst; }

    void pickCategory(int row);
    void setTicked(const QString& list, bool on);
    void addCategory();     // Command2
    void deleteCategory();  // Command3
    void save();            // Command1

public slots:
    void reject() override;  // Cancel and the close box: unlocked, nothing written

private:
    void boxChanged(QListWidgetItem* item);
    void fillCategories();
    void clearBoxes();
    void showCount();
    std::string picked() const;

    QListWidget* List1;
    QListWidget* List2;
    QLabel* Label3;
    std::vector<std::string> HoldLIst;
    bool Refreshing = false;
    bool locked_ = false;
};

}  // namespace wm
