// The main window and the palette dialog as a plain record: what the controls hold, no behaviour.
#pragma once

#include "board/znak.h"
#include "stage/obraz_etapu.h"
#include "stage/tekst.h"
#include "tiles/obraz.h"

#include <array>
#include <cstdint>
#include <string>

namespace dorva {

// A control that shows a tile: its code and its picture, which may lag behind the code.
struct ZnakPole {
    Znak znak = NIC;
    ObrazRef obraz{};
    bool operator==(const ZnakPole&) const = default;
};

// A slot of the tile picker.
struct ZnakSlot : ZnakPole {
    bool enabled = true;
};

// A figure of the census panel.
struct InfoPole {
    std::string caption = "0";
    bool czerwony = false;
    bool operator==(const InfoPole&) const = default;
};

// A text box of fixed width. `zaznaczenia` counts the requests to select the whole text.
struct PoleTekstu {
    std::size_t width = 0;
    Tekst tekst;
    unsigned zaznaczenia = 0;
};

// The swatch of one colour register.
struct Probka {
    Bajt value = 0;
    Rgb tlo{};
    bool wybrana = false; // its text is light red instead of white
    bool operator==(const Probka&) const = default;
};

// The palette dialog: 128 cells of the even colour values, and the preview.
struct OknoPalety {
    bool otwarte = false;
    std::array<Rgb, 128> picPaleta{};
    Rgb picWybrany{};
    std::string lblWybrany = "0";
};

// The credit line that a new window shows as the stage's description, 64 characters.
inline constexpr std::string_view AUTOR_DOMYSLNY = "DORVA PLANSZOWNIK - EDYTOR ETAPOW                               ";

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
    int hscMonet = CEL_MIN;
    std::array<InfoPole, 11> lblInfo{};
    std::array<ObrazRef, 10> imgInfo{};

    // board, picker, buffer
    std::array<ZnakPole, PLANSZA_CELLS> imgPG{};
    int obrys = -1; // the outlined cell, -1 for none
    std::array<ZnakSlot, ZNAKI_COUNT> imgZnak{};
    ZnakPole imgBufor{};
    std::array<std::string, 2> lblKodBufor{"0", "$0"};

    // texts
    PoleTekstu txtNazwa{NAZWA_WIDTH, {"           POWODZENIA!          "}};
    PoleTekstu txtAutor{AUTOR_WIDTH, {}};
    bool txtAutorEnabled = true;
    std::array<PoleTekstu, 3> txtAutorGry{{{LINIA_WIDTH, {"DORVA PLANSZOWNIK!  "}},
                                           {LINIA_WIDTH, Tekst::spaces(LINIA_WIDTH)},
                                           {LINIA_WIDTH, Tekst::spaces(LINIA_WIDTH)}}};

    // colours
    std::array<Probka, SLOTY_COUNT> lblKolor{};
    bool chkZachowajKolory = false;
    OknoPalety dlgPaleta;
};

// The window as it stands before anything was loaded: a walled field of earth, texts and figures as
// captioned, pictures of the default state.
Okno defaultOkno();

} // namespace dorva
