#include "qt/rozmowy.h"

#include "qt/konwersje.h"
#include "qt/lista_plikow.h"
#include "qt/sesja.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

#include <memory>
#include <string_view>
#include <system_error>

namespace dorva {
namespace {

namespace fs = std::filesystem;

constexpr QMessageBox::Icon iconOf(Ikona ikona) {
    switch (ikona) {
    case Ikona::Critical:
        return QMessageBox::Critical;
    case Ikona::Warning:
        return QMessageBox::Warning;
    default:
        return QMessageBox::Information;
    }
}

// Turns "label|pattern|label|pattern" into "label (pattern)" for each pair. "*.*" means all files, also those without a
// dot.
QStringList nameFilters(std::string_view filter) {
    const QStringList parts = toQString(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        filters += parts[i] + " (" + (parts[i + 1] == "*.*" ? QString("*") : parts[i + 1]) + ")";
    return filters;
}

QString startFolder(const fs::path& start) {
    std::error_code error;
    return nameOfPath(fs::is_directory(start, error) ? start : start.parent_path());
}

struct EndDialog {
    void operator()(QFileDialog* dialog) const { endFileDialog(dialog); }
};
using Dialog = std::unique_ptr<QFileDialog, EndDialog>;

std::optional<fs::path> ask(QFileDialog& dialog, const DialogPliku& question, const QString& accept) {
    constexpr QSize SIZE(760, 460);
    dialog.resize(SIZE);
    showLista(dialog);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(nameFilters(question.filter));
    dialog.setDirectory(startFolder(question.start));
    dialog.setLabelText(QFileDialog::Accept, accept);
    dialog.setLabelText(QFileDialog::Reject, "&Anuluj");
    dialog.setLabelText(QFileDialog::LookIn, "Szukaj w:");
    dialog.setLabelText(QFileDialog::FileName, "&Nazwa pliku:");
    dialog.setLabelText(QFileDialog::FileType, "Pliki typu:");
    if (!question.name.empty())
        dialog.selectFile(toQString(question.name));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return toPath(dialog.selectedFiles().constFirst());
}

} // namespace

bool showMessageBox(QWidget* parent, const Komunikat& komunikat) {
    QMessageBox box(iconOf(komunikat.ikona), toQString(komunikat.title), toQString(komunikat.text),
                    QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    const bool yesNo = komunikat.przyciski == Przyciski::YesNo;
    QPushButton* accept = box.addButton(yesNo ? "&Tak" : "&OK", QMessageBox::AcceptRole);
    QPushButton* last = accept;
    if (komunikat.przyciski != Przyciski::Ok)
        last = box.addButton(yesNo ? "&Nie" : "&Anuluj", QMessageBox::RejectRole);
    // The Enter key, pressed once too often, must not confirm a warning.
    box.setDefaultButton(komunikat.ikona == Ikona::Warning ? last : accept);
    box.exec();
    return box.clickedButton() == accept;
}

std::optional<fs::path> showOpenDialog(QWidget* parent, const DialogPliku& question) {
    const Dialog dialog(new QFileDialog(parent, "Otwieranie"));
    dialog->setFileMode(QFileDialog::AnyFile); // the operation deals with a missing one
    return ask(*dialog, question, "&Otwórz");
}

std::optional<fs::path> showSaveDialog(QWidget* parent, const DialogPliku& question) {
    const Dialog dialog(new QFileDialog(parent, "Zapisywanie jako"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    return ask(*dialog, question, "&Zapisz");
}

} // namespace dorva
