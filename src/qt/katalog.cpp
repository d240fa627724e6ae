#include "qt/katalog.h"

#include "board/znak.h"
#include "podstawy.h"
#include "qt/wytwornia.h"

#include <array>

namespace dorva {
namespace {

using namespace wytwornia;

constexpr std::string_view OKNO{}; // the window itself as a container

// The frames, and the controls whose places follow no pattern.
constexpr Kontrolka POJEDYNCZE[]{
    {ramka, "fraPole", -1, OKNO, 120, 0, 13215, 6735, "", ""},
    {ramka, "fraEtapNR", -1, "fraPole", 120, 120, 975, 4215, "ETAPY", ""},
    {ramka, "fraOstatni", -1, "fraPole", 120, 4440, 975, 735, "OSTATNI", ""},
    {podklad, "fraPlansza", -1, "fraPole", 1200, 120, 9855, 5055, "", ""},
    {ramka, "fraObiektyNR", -1, "fraPole", 11160, 120, 1935, 1095, "ŚWIATY GRY", ""},
    {ramka, "fraKolory", -1, "fraPole", 11160, 1320, 1935, 3855, "KOLORY", ""},
    {ramka, "frmInfo", -1, "fraPole", 1200, 5280, 9855, 615, "INFO", ""},
    {ramka, "fraNazwa", -1, "fraPole", 120, 6000, 4455, 615, "TEKST POWITANIA ETAPU (32 litery oraz znaki: . , ! ?)",
     ""},
    {ramka, "fraAutor", -1, OKNO, 4920, 6000, 8295, 615,
     "OPIS POMOCNICZY ETAPU (64 znaki) - np. autor etapu / data utworzenia (dane te nie są widoczne w grze)", ""},
    {ramka, "fraObiekty", -1, OKNO, 120, 6720, 13215, 1575, "", ""},
    {podklad, "fraZnaki", -1, "fraObiekty", 2280, 240, 10815, 1215, "", ""},
    {ramka, "fraPPM", -1, OKNO, 240, 6960, 975, 1095, "PPMyszki", ""},
    {ramka, "fraBufor", -1, OKNO, 1320, 6960, 975, 1095, "BUFOR", ""},
    {podklad, "fraBuforZnak", -1, "fraBufor", 120, 240, 735, 735, "", ""},
    {ramka, "fraAutorEtapow", -1, OKNO, 120, 8400, 7815, 735,
     "\n\nTEKST NA EKRANIE TYTUŁOWYM (3x20 znaków) - autor oraz dowolny opis", ""},

    {przycisk, "cmdCzysc", -1, OKNO, 11520, 5400, 1455, 375, "Czyść etap", ""},
    {przycisk, "cmdLoad", -1, OKNO, 8040, 8400, 1695, 375, "Odczyt etapu", ""},
    {przycisk, "cmdSave", -1, OKNO, 8040, 8760, 1695, 375, "Zapis etapu jako...", ""},
    {przycisk, "cmdLoadArch", -1, OKNO, 9840, 8400, 1815, 375, "Odczyt archiwum", ""},
    {przycisk, "cmdSaveArch", -1, OKNO, 9840, 8760, 1815, 375, "Zapis archiwum jako...", ""},
    {przycisk, "cmdTest", -1, OKNO, 11760, 8400, 1575, 375, "Test etapu", ""},
    {przycisk, "cmdCreate", -1, OKNO, 11760, 8760, 1575, 375, "Utworzenie gry", ""},
    {przycisk, "cmdReload", -1, OKNO, 960, 9480, 735, 255, "Reload", "", false, false},
    {przycisk, "cmdORN", -1, OKNO, 960, 9720, 735, 255, "ORN", "", false, false},

    {znacznik, "chkOstatni", -1, "fraOstatni", 360, 240, 255, 375, "",
     "zaznaczenie oznacza, że jest to ostatni etap w grze"},
    {plansza, "imgPG", -1, "fraPlansza", 120, 120, PLANSZA_COLUMNS * 240, PLANSZA_ROWS * 240, "", ""},
    {etykieta, "lblSwiatInfo", -1, "fraObiektyNR", 120, 600, 1695, 375, "zmiana nie wpływa na ustawienia kolorów", ""},
    {przycisk, "cmdResetKolory", -1, "fraKolory", 120, 2760, 1695, 675, "Ustaw standardowe kolory danego świata", ""},
    {znacznik, "chkZachowajKolory", -1, "fraKolory", 240, 3480, 1455, 255, "Blokuj kolory",
     "zaznaczenie oznacza, że kolory są chronione przed zmianą"},
    {suwak, "hscMonet", -1, "frmInfo", 3720, 240, 495, 255, "", ""},
    {pole, "txtNazwa", -1, "fraNazwa", 120, 240, 4215, 285, "", ""},
    {pole, "txtAutor", -1, "fraAutor", 120, 240, 8055, 285, "", ""},
    // reserved for a date and a lock of the description; nothing is bound to them
    {pole, "txtData", -1, "fraAutor", 8160, 240, 240, 285, "", "", false, false},
    {przycisk, "cmdBlokuj", -1, "fraAutor", 120, 600, 375, 255, "<!>", "", false},
    {wybor, "imgZnak", -1, "fraZnaki", 120, 120, (WYBOR_COLUMNS - 1) * 480 + 510, 480 + 510, "", ""},
    {opcja, "optPPM", 0, "fraPPM", 120, 240, 735, 315, "pipeta", ""},
    {opcja, "optPPM", 1, "fraPPM", 120, 600, 735, 315, "gumka", ""},
    {obraz, "imgBufor", -1, "fraBuforZnak", 120, 120, 510, 510, "", ""},
    {etykieta, "lblKodBufor", 0, "fraBufor", 960, 360, 495, 255, "", "", true, false},
    {etykieta, "lblKodBufor", 1, "fraBufor", 960, 600, 495, 255, "", "", true, false},
    {opcja, "optNN", 0, "fraObiekty", 2280, 1560, 615, 255, "STD", "", false, false},
    {opcja, "optNN", 1, "fraObiekty", 2880, 1560, 615, 255, "INV", "", false, false},
    {opcja, "optObiektyNR", 0, "fraObiektyNR", 120, 240, 495, 255, "1", ""},
    {opcja, "optObiektyNR", 1, "fraObiektyNR", 720, 240, 495, 255, "2", ""},
    {opcja, "optObiektyNR", 2, "fraObiektyNR", 1320, 240, 495, 255, "3", ""},
    {pole, "txtAutorGry", 0, "fraAutorEtapow", 120, 240, 2535, 285, "", ""},
    {pole, "txtAutorGry", 1, "fraAutorEtapow", 2640, 240, 2535, 285, "", ""},
    {pole, "txtAutorGry", 2, "fraAutorEtapow", 5160, 240, 2535, 285, "", ""},
};

// The panel of the census: icons and figures. Hidden ones are placed above the frame.
struct PozycjaInfo {
    int imgLeft, lblLeft;
    std::string_view imgTooltip, lblTooltip;
    bool imgVisible = true, lblVisible = true;
};
constexpr std::array<PozycjaInfo, info::COUNT> infoTable() {
    std::array<PozycjaInfo, info::COUNT> table;
    table[info::DORVA] = {240, 480, "Czy jest Dorva?", "\"!\" - nie ma Dorvy, \"ok\" - jest"};
    table[info::WYJSCIE] = {1320, 1560, "Czy jest wyjście?", "\"!\" - nie ma wyjścia, \"ok\" - jest"};
    table[info::MASKI] = {2400, 2640, "Maski na ekranie", "Liczba dostęnych masek"};
    table[info::CEL_MASEK] = {3000, 3240, "Maski do zebrania", "Liczba masek, które należy zebrać", false};
    table[info::KLUCZE] = {4560, 4800, "Klucze", "Liczba dostępnych kluczy"};
    table[info::DRZWI] = {5640, 5880, "Drzwi", "Liczba drzwi do otwarcia"};
    table[info::BOMBY] = {6720, 6960, "Bomby", "Liczba dostępnych bomb"};
    table[info::PULAPKI] = {7800, 8040, "Pułapki", "Liczba pułapek"};
    table[info::PRZEDMIOTY] = {8880, 9120, "Magiczny przedmiot", "Liczba dostępnych magicznych przedmiotów "};
    table[info::MASZYNY] = {0, 240, "Maszyna", "Liczba maszyn", false, false};
    table[info::POCHODNIA] = {0, 960, "", "Liczba pochodni", false, false}; // without an icon
    return table;
}
constexpr std::array<PozycjaInfo, info::COUNT> INFO = infoTable();

constexpr std::array<std::string_view, SLOTY_COUNT> NAZWY_KOLOROW{
    "klucze",  "bomby", "maski i etap", "energia i pkt.", "grunt",      "twarz",
    "ubranie", "woda",  "tło (ramka)",  "symbole",        "znaki info", "panel"};

// Two digits each: "01" to "32".
constexpr auto NUMERY_ETAPOW = [] {
    std::array<char, 2 * ETAPY_COUNT> digits{};
    for (int i = 0; i < ETAPY_COUNT; ++i) {
        digits[2 * i] = static_cast<char>('0' + (i + 1) / 10);
        digits[2 * i + 1] = static_cast<char>('0' + (i + 1) % 10);
    }
    return digits;
}();

void addEtapy(std::vector<Kontrolka>& katalog) {
    constexpr int ROWS = 16;
    for (int i = 0; i < ETAPY_COUNT; ++i)
        katalog.push_back({opcja, "optEtapNR", i, "fraEtapNR", i < ROWS ? 120 : 480, 240 + 240 * (i % ROWS), 375, 255,
                           std::string_view(&NUMERY_ETAPOW[2 * i], 2), ""});
}

// The hidden slots 9 and 10 are placed in the row of the panel's slot.
void addKolory(std::vector<Kontrolka>& katalog) {
    for (int i = 0; i < SLOTY_COUNT; ++i) {
        const int top = 240 + 240 * (i < 9 ? i : 9);
        const bool seen = i != 9 && i != 10;
        katalog.push_back(
            {nazwa, "lblKoloryNazwy", i, "fraKolory", 120, top, 975, 240, NAZWY_KOLOROW[i], "", seen, seen});
        katalog.push_back({probka, "lblKolor", i, "fraKolory", 1200, top, 615, 240, "", "", seen, seen});
    }
}

void addInfo(std::vector<Kontrolka>& katalog) {
    const auto top = [](bool visible) { return visible ? 240 : -120; };
    for (int i = 0; i < info::COUNT; ++i) {
        const PozycjaInfo& p = INFO[i];
        if (i < info::IKONY_COUNT)
            katalog.push_back({obraz, "imgInfo", i, "frmInfo", p.imgLeft, top(p.imgVisible), 240, 240, "", p.imgTooltip,
                               p.imgVisible, p.imgVisible});
        katalog.push_back({figura, "lblInfo", i, "frmInfo", p.lblLeft, top(p.lblVisible), 495, 255, "", p.lblTooltip,
                           p.lblVisible, p.lblVisible});
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
    return {"optEtapNR", "chkOstatni",  "optObiektyNR",   "txtNazwa",          "txtAutor",    "txtAutorGry",
            "cmdLoad",   "cmdLoadArch", "cmdTest",        "cmdSave",           "cmdSaveArch", "cmdCreate",
            "hscMonet",  "cmdCzysc",    "cmdResetKolory", "chkZachowajKolory", "optPPM"};
}

} // namespace dorva
