#include "przeglad_qt/wybor_obrazu.h"

#include <QDateTime>
#include <QDialog>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace dorva {

std::optional<int> chooseObraz(QWidget* parent, const QString& title, const QString& accept,
                               const std::vector<Propozycja>& propozycje) {
    constexpr QSize SIZE(740, 560);
    QDialog dialog(parent);
    dialog.setWindowTitle(title);
    dialog.resize(SIZE);
    auto* list = new QListWidget(&dialog);
    list->setViewMode(QListView::IconMode);
    list->setMovement(QListView::Static);
    list->setResizeMode(QListView::Adjust);
    list->setVerticalScrollMode(QListView::ScrollPerPixel);
    list->setSpacing(8);
    for (const auto& [obraz, podpis] : propozycje) {
        QPixmap pixmap = QPixmap::fromImage(obraz);
        pixmap.setDevicePixelRatio(parent->devicePixelRatio());
        list->setIconSize(pixmap.deviceIndependentSize().toSize());
        QIcon icon(pixmap);
        icon.addPixmap(pixmap, QIcon::Selected); // else the chosen one would be tinted
        list->addItem(new QListWidgetItem(icon, podpis));
    }
    list->setCurrentRow(0);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    buttons->button(QDialogButtonBox::Ok)->setText(accept);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(list);
    layout->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    QObject::connect(list, &QListWidget::itemDoubleClicked, &dialog, &QDialog::accept);
    const bool chosen = dialog.exec() == QDialog::Accepted && list->currentRow() >= 0;
    return chosen ? std::optional(list->currentRow()) : std::nullopt;
}

QString czasKopii(const std::string& made) {
    const auto text = QString::fromStdString(made);
    const auto time = QDateTime::fromString(text, "yyyy-MM-dd HH.mm");
    return time.isValid() ? time.toString("d.MM.yyyy, HH:mm") : text;
}

} // namespace dorva
