// The main window: shows an Okno and reports the user's events to the operations.
#pragma once

#include "edytor.h"
#include "qt/katalog.h"
#include "qt/obrazki.h"

#include <QHash>
#include <QWidget>

namespace dorva {

enum class Pole;
class PaletaOkno;
class PlanszaWidget;
class WyborWidget;

class OknoGlowne : public QWidget {
public:
    // Builds the window and sets the editor's hooks. The editor has to outlive it.
    explicit OknoGlowne(Edytor&);
    ~OknoGlowne() override;

    // Brings the widgets to what the record holds; touches only what differs.
    void showRecord();

protected:
    void closeEvent(QCloseEvent*) override;

private:
    void build(const Kontrolka&);
    void setTabOrder();
    void bindHooks();
    void bindEvents();
    void bindOptions(const char* name, int count, void (*select)(Edytor&, int));
    void bindText(const char* name, int index, Pole pole);

    // Runs an operation and shows what it did.
    template <typename Operation> void run(Operation operation);

    template <typename Widget> Widget* find(const char* name, int index = -1) const;
    void showOptions();
    void showFigures();
    void showKolory();
    void showTexts();
    void showPaleta();

    Edytor& e_;
    Obrazki obrazki_;
    QHash<QString, QWidget*> widgets_; // by control name
    PlanszaWidget* imgPG_ = nullptr;
    WyborWidget* imgZnak_ = nullptr;
    PaletaOkno* dlgPaleta_ = nullptr; // made when first opened
    std::string caption_;             // of the title bar
    Okno shown_;                      // the record as the labels and boxes show it
    bool shownOnce_ = false;
};

} // namespace dorva
