#include "qt/katalog.h"

#include "stage/etap_image.h"

#include <array>

namespace dorva {
namespace {

using enum Rodzaj;
using enum Widac;

constexpr std::string_view OKNO{}; // the window itself as a container

// Controls that stand alone, and the frames. Left, top, width, height.
constexpr Kontrolka POJEDYNCZE[]{
    {Ramka, "fraPole", -1, OKNO, 120, 0, 13215, 6735, "", ""},
    {Ramka, "fraEtapNR", -1, "fraPole", 120, 120, 975, 4215, "ETAPY", ""},
    {Ramka, "fraOstatni", -1, "fraPole", 120, 4440, 975, 735, "OSTATNI", ""},
    {Podklad, "fraPlansza", -1, "fraPole", 1200, 120, 9855, 5055, "", ""},
    {Ramka, "fraObiektyNR", -1, "fraPole", 11160, 120, 1935, 1095, "ŚWIATY GRY", ""},
    {Ramka, "fraKolory", -1, "fraPole", 11160, 1320, 1935, 3855, "KOLORY", ""},
    {Ramka, "frmInfo", -1, "fraPole", 1200, 5280, 9855, 615, "INFO", ""},
    {Ramka, "fraNazwa", -1, "fraPole", 120, 6000, 4455, 615, "TEKST POWITANIA ETAPU (32 litery oraz znaki: . , ! ?)",
     ""},
    {Ramka, "fraAutor", -1, OKNO, 4920, 6000, 8295, 615,
     "OPIS POMOCNICZY ETAPU (64 znaki) - np. autor etapu / data utworzenia (dane te nie są widoczne w grze)", ""},
    {Ramka, "fraObiekty", -1, OKNO, 120, 6720, 13215, 1575, "", ""},
    {Podklad, "fraZnaki", -1, "fraObiekty", 2280, 240, 10815, 1215, "", ""},
    {Ramka, "fraPPM", -1, OKNO, 240, 6960, 975, 1095, "PPMyszki", ""},
    {Ramka, "fraBufor", -1, OKNO, 1320, 6960, 975, 1095, "BUFOR", ""},
    {Podklad, "fraBuforZnak", -1, "fraBufor", 120, 240, 735, 735, "", ""},
    {Ramka, "fraAutorEtapow", -1, OKNO, 120, 8400, 7815, 735,
     "\n\nTEKST NA EKRANIE TYTUŁOWYM (3x20 znaków) - autor oraz dowolny opis", ""},

    {Przycisk, "cmdCzysc", -1, OKNO, 11520, 5400, 1455, 375, "Czyść etap", ""},
    {Przycisk, "cmdLoad", -1, OKNO, 8040, 8400, 1695, 375, "Odczyt etapu", ""},
    {Przycisk, "cmdSave", -1, OKNO, 8040, 8760, 1695, 375, "Zapis etapu jako...", ""},
    {Przycisk, "cmdLoadArch", -1, OKNO, 9840, 8400, 1815, 375, "Odczyt archiwum", ""},
    {Przycisk, "cmdSaveArch", -1, OKNO, 9840, 8760, 1815, 375, "Zapis archiwum jako...", ""},
    {Przycisk, "cmdTest", -1, OKNO, 11760, 8400, 1575, 375, "Test etapu", ""},
    {Przycisk, "cmdCreate", -1, OKNO, 11760, 8760, 1575, 375, "Utworzenie gry", ""},
    {Przycisk, "cmdReload", -1, OKNO, 960, 9480, 735, 255, "Reload", "", Ukryte},
    {Przycisk, "cmdORN", -1, OKNO, 960, 9720, 735, 255, "ORN", "", Ukryte},

    {Znacznik, "chkOstatni", -1, "fraOstatni", 360, 240, 255, 375, "",
     "zaznaczenie oznacza, że jest to ostatni etap w grze"},
    {Plansza, "imgPG", -1, "fraPlansza", 120, 120, 40 * 240, 20 * 240, "", ""},
    {Etykieta, "lblSwiatInfo", -1, "fraObiektyNR", 120, 600, 1695, 375, "zmiana nie wpływa na ustawienia kolorów", ""},
    {Przycisk, "cmdResetKolory", -1, "fraKolory", 120, 2760, 1695, 675, "Ustaw standardowe kolory danego świata", ""},
    {Znacznik, "chkZachowajKolory", -1, "fraKolory", 240, 3480, 1455, 255, "Blokuj kolory",
     "zaznaczenie oznacza, że kolory są chronione przed zmianą"},
    {Suwak, "hscMonet", -1, "frmInfo", 3720, 240, 495, 255, "", ""},
    {Pole, "txtNazwa", -1, "fraNazwa", 120, 240, 4215, 285, "", ""},
    {Pole, "txtAutor", -1, "fraAutor", 120, 240, 8055, 285, "", ""},
    {Pole, "txtData", -1, "fraAutor", 8160, 240, 240, 285, "", "", Ukryte},
    {Przycisk, "cmdBlokuj", -1, "fraAutor", 120, 600, 375, 255, "<!>", "", Wylaczone},
    {Wybor, "imgZnak", -1, "fraZnaki", 120, 120, 21 * 480 + 510, 480 + 510, "", ""},
    {Opcja, "optPPM", 0, "fraPPM", 120, 240, 735, 315, "pipeta", ""},
    {Opcja, "optPPM", 1, "fraPPM", 120, 600, 735, 315, "gumka", ""},
    {Obraz, "imgBufor", -1, "fraBuforZnak", 120, 120, 510, 510, "", ""},
    {Etykieta, "lblKodBufor", 0, "fraBufor", 960, 360, 495, 255, "", "", Schowane},
    {Etykieta, "lblKodBufor", 1, "fraBufor", 960, 600, 495, 255, "", "", Schowane},
    {Opcja, "optNN", 0, "fraObiekty", 2280, 1560, 615, 255, "STD", "", Ukryte},
    {Opcja, "optNN", 1, "fraObiekty", 2880, 1560, 615, 255, "INV", "", Ukryte},
    {Opcja, "optObiektyNR", 0, "fraObiektyNR", 120, 240, 495, 255, "1", ""},
    {Opcja, "optObiektyNR", 1, "fraObiektyNR", 720, 240, 495, 255, "2", ""},
    {Opcja, "optObiektyNR", 2, "fraObiektyNR", 1320, 240, 495, 255, "3", ""},
    {Pole, "txtAutorGry", 0, "fraAutorEtapow", 120, 240, 2535, 285, "", ""},
    {Pole, "txtAutorGry", 1, "fraAutorEtapow", 2640, 240, 2535, 285, "", ""},
    {Pole, "txtAutorGry", 2, "fraAutorEtapow", 5160, 240, 2535, 285, "", ""},
};

// The census panel: an icon and a figure each. Hidden ones stand above the frame.
constexpr int NIE_MA = -1; // no icon
struct PozycjaInfo {
    int imgLeft, lblLeft, top;
    std::string_view imgTooltip, lblTooltip;
    Widac img, lbl;
};
constexpr int INFO_TOP = 240, INFO_HIDDEN_TOP = -120;
constexpr PozycjaInfo INFO[]{
    {240, 480, INFO_TOP, "Czy jest Dorva?", "\"!\" - nie ma Dorvy, \"ok\" - jest", Tak, Tak},
    {1320, 1560, INFO_TOP, "Czy jest wyjście?", "\"!\" - nie ma wyjścia, \"ok\" - jest", Tak, Tak},
    {2400, 2640, INFO_TOP, "Maski na ekranie", "Liczba dostęnych masek", Tak, Tak},
    {3000, 3240, INFO_TOP, "Maski do zebrania", "Liczba masek, które należy zebrać", Ukryte, Tak},
    {4560, 4800, INFO_TOP, "Klucze", "Liczba dostępnych kluczy", Tak, Tak},
    {5640, 5880, INFO_TOP, "Drzwi", "Liczba drzwi do otwarcia", Tak, Tak},
    {6720, 6960, INFO_TOP, "Bomby", "Liczba dostępnych bomb", Tak, Tak},
    {7800, 8040, INFO_TOP, "Pułapki", "Liczba pułapek", Tak, Tak},
    {8880, 9120, INFO_TOP, "Magiczny przedmiot", "Liczba dostępnych magicznych przedmiotów ", Tak, Tak},
    {0, 240, INFO_HIDDEN_TOP, "Maszyna", "Liczba maszyn", Ukryte, Ukryte},
    {NIE_MA, 960, INFO_HIDDEN_TOP, "", "Liczba pochodni", Ukryte, Ukryte},
};

constexpr std::array<std::string_view, SLOTY_COUNT> NAZWY_KOLOROW{
    "klucze",  "bomby", "maski i etap", "energia i pkt.", "grunt",      "twarz",
    "ubranie", "woda",  "tło (ramka)",  "symbole",        "znaki info", "panel"};

constexpr std::array<std::string_view, ETAPY_COUNT> NUMERY_ETAPOW{
    "01", "02", "03", "04", "05", "06", "07", "08", "09", "10", "11", "12", "13", "14", "15", "16",
    "17", "18", "19", "20", "21", "22", "23", "24", "25", "26", "27", "28", "29", "30", "31", "32"};

void addEtapy(std::vector<Kontrolka>& katalog) {
    for (int i = 0; i < ETAPY_COUNT; ++i)
        katalog.push_back({Opcja, "optEtapNR", i, "fraEtapNR", i < 16 ? 120 : 480, 240 + 240 * (i % 16), 375, 255,
                           NUMERY_ETAPOW[static_cast<std::size_t>(i)], ""});
}

// Slots 9 and 10 have no row of their own: hidden, they share the row of the panel's slot.
void addKolory(std::vector<Kontrolka>& katalog) {
    for (int i = 0; i < SLOTY_COUNT; ++i) {
        const int top = 240 + 240 * (i < 9 ? i : 9);
        const Widac widac = i == 9 || i == 10 ? Ukryte : Tak;
        katalog.push_back({Nazwa, "lblKoloryNazwy", i, "fraKolory", 120, top, 975, 240,
                           NAZWY_KOLOROW[static_cast<std::size_t>(i)], "", widac});
        katalog.push_back({Probka, "lblKolor", i, "fraKolory", 1200, top, 615, 240, "", "", widac});
    }
}

void addInfo(std::vector<Kontrolka>& katalog) {
    int index = 0;
    for (const PozycjaInfo& p : INFO) {
        const int imgTop = p.img == Tak ? INFO_TOP : INFO_HIDDEN_TOP;
        if (p.imgLeft != NIE_MA)
            katalog.push_back(
                {Obraz, "imgInfo", index, "frmInfo", p.imgLeft, imgTop, 240, 240, "", p.imgTooltip, p.img});
        katalog.push_back({Figura, "lblInfo", index, "frmInfo", p.lblLeft, p.top, 495, 255, "", p.lblTooltip, p.lbl});
        ++index;
    }
}

} // namespace

std::vector<Kontrolka> katalogOkna() {
    std::vector<Kontrolka> katalog(std::begin(POJEDYNCZE), std::end(POJEDYNCZE));
    addEtapy(katalog);
    addKolory(katalog);
    addInfo(katalog);
    return katalog;
}

std::vector<std::string_view> kolejnoscTab() {
    return {"optEtapNR",      "chkOstatni",     "optObiektyNR",      "txtNazwa",  "txtAutor",
            "txtAutorGry(0)", "txtAutorGry(1)", "txtAutorGry(2)",    "cmdLoad",   "cmdLoadArch",
            "cmdTest",        "cmdSave",        "cmdSaveArch",       "cmdCreate", "hscMonet",
            "cmdCzysc",       "cmdResetKolory", "chkZachowajKolory", "optPPM"};
}

} // namespace dorva
