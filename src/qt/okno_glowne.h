// The main window: shows an Okno and reports the user's events to the operations.
#pragma once

#include "edytor.h"
#include "qt/katalog.h"
#include "qt/obrazki.h"
#include "stage/pola.h"

#include <QHash>
#include <QWidget>

#include <array>
#include <vector>

class QCheckBox;
class QPushButton;
class QScrollBar;

namespace dorva {

class Etykieta;
class ObrazWidget;
class PaletaOkno;
class PlanszaWidget;
class PoleEdycji;
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
    struct OpcjeOkna;
    static const OpcjeOkna OPCJE[4];

    void build(const Kontrolka&);
    void setTabOrder();
    void bindHooks();
    void bindEvents();
    void bindOptions(const OpcjeOkna&);
    void bindText(const Pole&);

    // Runs an operation and shows what it did.
    template <typename Operation> void run(Operation operation);

    template <typename Widget> Widget* find(const char* name, int index = -1) const;
    template <typename Widget, std::size_t Count> std::array<Widget*, Count> findArray(const char* name) const;
    void showOptions();
    void showFigures();
    void showKolory();
    void showTexts();
    void showPaleta();

    Edytor& e_;
    Obrazki obrazki_;
    QHash<QString, QWidget*> widgets_; // by control name

    // the widgets that are brought up to date after every operation
    PlanszaWidget* imgPG_;
    WyborWidget* imgZnak_;
    ObrazWidget* imgBufor_;
    std::array<ObrazWidget*, 10> imgInfo_;
    std::array<Etykieta*, 11> lblInfo_;
    std::array<Etykieta*, 2> lblKodBufor_;
    std::array<Etykieta*, SLOTY_COUNT> lblKolor_;
    std::vector<std::vector<QPushButton*>> opcje_; // by group
    std::vector<PoleEdycji*> pola_;
    QCheckBox* chkOstatni_;
    QCheckBox* chkZachowajKolory_;
    QScrollBar* hscMonet_;
    PaletaOkno* dlgPaleta_ = nullptr; // made when first opened

    Okno shown_; // the record as the labels and boxes show it
    bool shownOnce_ = false;
};

} // namespace dorva
