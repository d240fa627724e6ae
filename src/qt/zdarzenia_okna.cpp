#include "qt/zdarzenia_okna.h"

#include "board/census.h"
#include "board/plansza.h"
#include "output/narzedzia.h"
#include "output/obraz_gry.h"
#include "qt/bitmapa_pliku.h"
#include "qt/kontrolki_okna.h"
#include "qt/konwersje.h"
#include "qt/opcje_okna.h"
#include "qt/paleta_okno.h"
#include "qt/pole_edycji.h"
#include "qt/programy.h"
#include "qt/rozmowy.h"
#include "qt/widgety.h"
#include "qt/widoki_znakow.h"
#include "stage/archiwum.h"
#include "stage/etap.h"
#include "stage/pola.h"
#include "stage/zbior_etapow.h"
#include "tiles/kolory.h"
#include "tiles/paleta.h"
#include "tiles/zestaw.h"

#include <QButtonGroup>
#include <QCheckBox>

#include <string_view>

namespace dorva {
namespace {

// A button, and what a click on it runs.
struct PrzyciskOkna {
    std::string_view name;
    void (*click)(Edytor&);
};
constexpr PrzyciskOkna PRZYCISKI[]{{"cmdCzysc", cmdCzysc_Click},       {"cmdLoad", cmdLoad_Click},
                                   {"cmdSave", cmdSave_Click},         {"cmdLoadArch", cmdLoadArch_Click},
                                   {"cmdSaveArch", cmdSaveArch_Click}, {"cmdTest", cmdTest_Click},
                                   {"cmdCreate", cmdCreate_Click},     {"cmdResetKolory", cmdResetKolory_Click},
                                   {"cmdReload", cmdReload_Click},     {"cmdORN", cmdORN_Click}};

// An array of labels, and what a click on one of them runs.
struct EtykietyOkna {
    std::string_view name;
    void (*run)(Edytor&, int index);
};
constexpr EtykietyOkna ETYKIETY[]{{"lblKolor", PickKolor}, {"lblInfo", lblInfo_Click}};

void bindPrzyciski(const KontrolkiOkna& kontrolki, const Wykonanie& run) {
    for (const PrzyciskOkna& p : PRZYCISKI) {
        auto* button = kontrolki.get<QPushButton>(p.name);
        QObject::connect(button, &QPushButton::clicked, button, [run, &p] { run(p.click); });
    }
}

void bindOpcje(const KontrolkiOkna& kontrolki, const Wykonanie& run) {
    for (const GrupaOpcji& opcje : OPCJE) {
        const auto buttons = kontrolki.getAll<QPushButton>(opcje.name);
        auto* group = new QButtonGroup(buttons.front()->parentWidget());
        for (int id = 0; QPushButton * button : buttons)
            group->addButton(button, id++);
        QObject::connect(group, &QButtonGroup::idClicked, group,
                         [run, &opcje](int index) { run([&](Edytor& e) { opcje.run(e, index); }); });
    }
}

void bindEtykiety(const KontrolkiOkna& kontrolki, const Wykonanie& run) {
    for (const EtykietyOkna& etykiety : ETYKIETY) {
        for (int index = 0; Etykieta * label : kontrolki.getAll<Etykieta>(etykiety.name))
            label->onClick = [run, &etykiety, index = index++] { run([&](Edytor& e) { etykiety.run(e, index); }); };
    }
}

void bindPola(const KontrolkiOkna& kontrolki, const Wykonanie& run) {
    for (const Pole& pole : POLA) {
        auto* box = kontrolki.get<PoleEdycji>(pole.name, pole.index);
        box->setMaxLength(pole.width);
        box->onEnter = [run, &pole] { run([&](Edytor& e) { txt_GotFocus(e, pole); }); };
        box->onLeave = [run, &pole] { run([&](Edytor& e) { txt_LostFocus(e, pole); }); };
        box->onEdit = [run, &pole](const QString& shown) {
            run([&](Edytor& e) { txt_Change(e, pole, fromShown(shown)); });
        };
    }
}

void bindFigury(const KontrolkiOkna& kontrolki, const Wykonanie& run) {
    auto* bar = kontrolki.get<QScrollBar>("hscMonet");
    QObject::connect(bar, &QScrollBar::valueChanged, bar,
                     [run](int value) { run([=](Edytor& e) { (void)SetMonet(e, value); }); });
    auto* ostatni = kontrolki.get<QCheckBox>("chkOstatni");
    QObject::connect(ostatni, &QCheckBox::clicked, ostatni, [run] { run(chkOstatni_Click); });
    auto* zachowaj = kontrolki.get<QCheckBox>("chkZachowajKolory");
    QObject::connect(zachowaj, &QCheckBox::clicked, zachowaj,
                     [run](bool checked) { run([=](Edytor& e) { e.okno.chkZachowajKolory = checked; }); });
}

void bindZnaki(const KontrolkiOkna& kontrolki, const Wykonanie& run) {
    auto* plansza = kontrolki.get<PlanszaWidget>("imgPG");
    plansza->onPress = [run](int cell, int button) { run([=](Edytor& e) { imgPG_MouseDown(e, cell, button); }); };
    plansza->onMove = [run](int cell, int buttons) { run([=](Edytor& e) { imgPG_MouseMove(e, cell, buttons); }); };
    kontrolki.get<WyborWidget>("imgZnak")->onClick = [run](int slot) {
        run([=](Edytor& e) { imgZnak_Click(e, slot); });
    };
}

} // namespace

void bindEvents(const KontrolkiOkna& kontrolki, PaletaOkno& dlgPaleta, const Wykonanie& run) {
    bindPrzyciski(kontrolki, run);
    bindOpcje(kontrolki, run);
    bindEtykiety(kontrolki, run);
    bindPola(kontrolki, run);
    bindFigury(kontrolki, run);
    bindZnaki(kontrolki, run);
    dlgPaleta.onPick = [run](int index) { run([=](Edytor& e) { picPaleta_Click(e, index); }); };
    dlgPaleta.onClose = [run] { run(closePaleta); };
    dlgPaleta.onKeyboard = [window = dlgPaleta.parentWidget()] {
        if (auto* box = dynamic_cast<PoleEdycji*>(window->focusWidget()))
            box->leave();
    };
}

void bindHooks(Haki& haki, QWidget* window, const std::function<void()>& show) {
    haki.messageBox = [=](const Komunikat& komunikat) {
        show();
        return showMessageBox(window, komunikat);
    };
    haki.openDialog = [=](const DialogPliku& dialog) {
        show();
        return showOpenDialog(window, dialog);
    };
    haki.saveDialog = [=](const DialogPliku& dialog) {
        show();
        return showSaveDialog(window, dialog);
    };
    haki.startProgram = startProgram;
    haki.loadPicture = loadBitmapa;
}

} // namespace dorva
