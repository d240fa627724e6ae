// The main window and the palette dialog as a plain record: what the controls hold, no behaviour.
#pragma once

#include "shell/wartosci.h"

#include <array>
#include <string>

namespace dorva {

struct Okno {
    std::string caption;

    // selected indexes of the option groups
    int optEtapNR = 0;
    int optObiektyNR = 0;
    int optPPM = 0; // 0 pipeta, 1 gumka
    int optNN = 0;  // 0 STD, 1 INV

    // stage figures
    Ostatni chkOstatni = 0;
    bool chkOstatniEnabled = true;
    int hscMonet = CEL_MIN; // celMasek
    EtapInfo etapInfo;
    std::array<InfoFigura, info::COUNT> lblInfo;
    std::array<ObrazRef, info::IKONY_COUNT> imgInfo{};

    // board, picker, buffer
    Plansza imgPG{};
    int obrys = -1; // the outlined cell, -1 for none
    std::array<ZnakSlot, ZNAKI_COUNT> imgZnak{};
    Bufor imgBufor;
    std::array<std::string, 2> lblKodBufor{"0", "$0"};

    // texts
    std::array<PoleTekstu, POLA_COUNT> pola; // by NumerPola
    bool txtAutorEnabled = true;

    // colours
    std::array<KolorSlot, SLOTY_COUNT> lblKolor{};
    bool chkZachowajKolory = false;
    OknoPalety dlgPaleta;
};

// The window before anything is loaded: earth within walls, the first texts, placeholders for pictures.
Okno defaultOkno();

} // namespace dorva
