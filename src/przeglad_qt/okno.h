// The window of the overview: a game on a sheet, and what can be done with it. It never changes the working set.
#pragma once

#include "przeglad_qt/karty_model.h"
#include "przeglad_qt/rysownik.h"
#include "tiles/magazyn.h"

#include <QMainWindow>
#include <QTimer>
#include <QUndoStack>

#include <filesystem>
#include <span>
#include <string_view>

class QLabel;

namespace dorva {

class Arkusz;

class OknoPrzegladu : public QMainWindow {
public:
    // `base` is the folder of the working set, which is opened; `version` reads "1.0.2".
    OknoPrzegladu(const std::filesystem::path& base, std::string_view version);

    // Opens a game, unless the user wants to keep what isn't saved. One that can't be read is refused with a message.
    void open(const std::filesystem::path&);

protected:
    void closeEvent(QCloseEvent*) override;
    void dragEnterEvent(QDragEnterEvent*) override;
    void dropEvent(QDropEvent*) override;

private:
    void addActions();
    void showGra(const Gra&, const std::filesystem::path& source);
    void showStatus();
    bool mayDiscard(); // asks if something isn't saved
    void change(const QString& caption, const Gra& after, int place);

    void askOpen();
    void openZestaw();
    void openEarlier();
    void refresh();
    bool saveArchiwum();
    void saveObraz();
    void chooseWersja();
    void nextOstrzezenie();
    void move(int by);
    // Asks for a file and writes it. False if the user cancelled, or the file is refused or can't be written.
    bool writeAsked(std::string_view name, std::string_view filter, std::span<const Bajt> bytes);

    std::filesystem::path base_, zrodlo_, ostatniaSciezka_, upuszczony_;
    Magazyn frmZestawy_;
    Rysownik rysownik_{frmZestawy_};
    KartyModel model_;
    QUndoStack zmiany_;
    QTimer upuszczenie_; // opens what was dropped, once the drop is over
    Arkusz* arkusz_;
    QLabel *opis_, *linie_, *ostrzezenia_;
    bool saidStored_ = false; // that the editor's stage is here as it was last stored
};

} // namespace dorva
