// The main window and the palette dialog as a plain record: what the controls hold, no behaviour.
#pragma once

#include "board/znak.h"
#include "podstawy.h"
#include "stage/tekst.h"
#include "tiles/obraz.h"

#include <array>
#include <string>
#include <string_view>

namespace dorva {

// A tile on show: its code and its picture, which may lag behind the code.
struct PokazanyZnak {
    Znak znak = NIC;
    ObrazRef obraz{};
    bool operator==(const PokazanyZnak&) const = default;
};

using Plansza = std::array<PokazanyZnak, PLANSZA_CELLS>;

// A slot of the tile picker.
struct ZnakSlot : PokazanyZnak {
    bool enabled = true;
};

// A figure of the panel: a count, or 0 and 1 for what is only there or not.
struct InfoFigura {
    int liczba = 0;
    bool czerwona = false;
    bool operator==(const InfoFigura&) const = default;
};

// The census of the board, and the goal.
using EtapInfo = std::array<InfoFigura, info::COUNT>;

// What the panel writes for a figure: "!" and "ok", or the number.
std::string infoCaption(info::Figura, int liczba);

// A text box. `zaznaczenia` counts the requests to select the whole text.
struct PoleTekstu {
    Tekst tekst;
    unsigned zaznaczenia = 0;
};

// A colour register of the stage and its swatch.
struct KolorSlot {
    Bajt value = 0;
    Rgb tlo{};
    bool wybrany = false; // its text is light red instead of white
    bool operator==(const KolorSlot&) const = default;
};

// The palette dialog: 128 cells of the even colour values, and the preview.
struct OknoPalety {
    bool otwarte = false;
    std::array<Rgb, 128> picPaleta{};
    Rgb picWybrany{};
    std::string lblWybrany = "0";
};

// The texts of a new window; the description is a credit line.
inline constexpr std::string_view NAZWA_DOMYSLNA = "           POWODZENIA!          ";
inline constexpr std::string_view AUTOR_DOMYSLNY = "DORVA PLANSZOWNIK - EDYTOR ETAPOW                               ";
inline constexpr std::string_view LINIA_DOMYSLNA = "DORVA PLANSZOWNIK!  ";
static_assert(NAZWA_DOMYSLNA.size() == NAZWA_WIDTH && AUTOR_DOMYSLNY.size() == AUTOR_WIDTH &&
              LINIA_DOMYSLNA.size() == LINIA_WIDTH);

struct Okno {
    std::string caption;

    // selected indexes of the option groups
    int optEtapNR = 0;
    int optObiektyNR = 0;
    int optPPM = 0; // 0 pipeta, 1 gumka
    int optNN = 0;  // 0 STD, 1 INV

    // stage figures
    Bajt chkOstatni = 0; // 2 is shown as partially checked
    bool chkOstatniEnabled = true;
    int hscMonet = CEL_MIN; // celMasek
    EtapInfo lblInfo{};
    std::array<ObrazRef, info::IKONY_COUNT> imgInfo{};

    // board, picker, buffer
    Plansza imgPG{};
    int obrys = -1; // the outlined cell, -1 for none
    std::array<ZnakSlot, ZNAKI_COUNT> imgZnak{};
    PokazanyZnak imgBufor{};
    std::array<std::string, 2> lblKodBufor{"0", "$0"};

    // texts
    PoleTekstu txtNazwa{{std::string(NAZWA_DOMYSLNA)}};
    PoleTekstu txtAutor{{std::string(AUTOR_DOMYSLNY)}};
    bool txtAutorEnabled = true;
    std::array<PoleTekstu, LINIE_COUNT> txtAutorGry{
        {{{std::string(LINIA_DOMYSLNA)}}, {Tekst::spaces(LINIA_WIDTH)}, {Tekst::spaces(LINIA_WIDTH)}}};

    // colours
    std::array<KolorSlot, SLOTY_COUNT> lblKolor{};
    bool chkZachowajKolory = false;
    OknoPalety dlgPaleta;
};

// The window as it stands before anything was loaded: a walled field of earth, texts and figures as
// captioned, pictures of the default state.
Okno defaultOkno();

} // namespace dorva
