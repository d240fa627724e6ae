// The whole window against a list of what a user has to find, where and under which words.
#include "stanowisko.h"

#include "qt/budowa_okna.h"
#include "qt/wytwornia.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QScrollBar>

#include <algorithm>
#include <tuple>

namespace dorva::test {
namespace {

struct Oczekiwane {
    const char* name;
    const char* container;
    int left, top, width, height; // twips
    const char* caption = nullptr;
    const char* tooltip = "";
    bool enabled = true, visible = true;
};

constexpr Oczekiwane KONTROLKI[]{
    {"fraPole", "frmDP", 120, 0, 13215, 6735, ""},
    {"fraEtapNR", "fraPole", 120, 120, 975, 4215, "ETAPY"},
    {"fraOstatni", "fraPole", 120, 4440, 975, 735, "OSTATNI"},
    {"fraPlansza", "fraPole", 1200, 120, 9855, 5055},
    {"fraObiektyNR", "fraPole", 11160, 120, 1935, 1095, "ŚWIATY GRY"},
    {"fraKolory", "fraPole", 11160, 1320, 1935, 3855, "KOLORY"},
    {"frmInfo", "fraPole", 1200, 5280, 9855, 615, "INFO"},
    {"fraNazwa", "fraPole", 120, 6000, 4455, 615, "TEKST POWITANIA ETAPU (32 litery oraz znaki: . , ! ?)"},
    {"fraAutor", "frmDP", 4920, 6000, 8295, 615,
     "OPIS POMOCNICZY ETAPU (64 znaki) - np. autor etapu / data utworzenia (dane te nie są widoczne w grze)"},
    {"fraObiekty", "frmDP", 120, 6720, 13215, 1575, ""},
    {"fraZnaki", "fraObiekty", 2280, 240, 10815, 1215},
    {"fraPPM", "frmDP", 240, 6960, 975, 1095, "PPMyszki"},
    {"fraBufor", "frmDP", 1320, 6960, 975, 1095, "BUFOR"},
    {"fraBuforZnak", "fraBufor", 120, 240, 735, 735},
    {"fraAutorEtapow", "frmDP", 120, 8400, 7815, 735,
     "\n\nTEKST NA EKRANIE TYTUŁOWYM (3x20 znaków) - autor oraz dowolny opis"},
    {"cmdCzysc", "frmDP", 11520, 5400, 1455, 375, "Czyść etap"},
    {"cmdLoad", "frmDP", 8040, 8400, 1695, 375, "Odczyt etapu"},
    {"cmdSave", "frmDP", 8040, 8760, 1695, 375, "Zapis etapu jako..."},
    {"cmdLoadArch", "frmDP", 9840, 8400, 1815, 375, "Odczyt archiwum"},
    {"cmdSaveArch", "frmDP", 9840, 8760, 1815, 375, "Zapis archiwum jako..."},
    {"cmdTest", "frmDP", 11760, 8400, 1575, 375, "Test etapu"},
    {"cmdCreate", "frmDP", 11760, 8760, 1575, 375, "Utworzenie gry"},
    {"cmdReload", "frmDP", 960, 9480, 735, 255, "Reload", "", false, false},
    {"cmdORN", "frmDP", 960, 9720, 735, 255, "ORN", "", false, false},
    {"chkOstatni", "fraOstatni", 360, 240, 255, 375, "", "zaznaczenie oznacza, że jest to ostatni etap w grze"},
    {"imgPG", "fraPlansza", 120, 120, 9600, 4800},
    {"optObiektyNR(0)", "fraObiektyNR", 120, 240, 495, 255, "1"},
    {"optObiektyNR(1)", "fraObiektyNR", 720, 240, 495, 255, "2"},
    {"optObiektyNR(2)", "fraObiektyNR", 1320, 240, 495, 255, "3"},
    {"lblSwiatInfo", "fraObiektyNR", 120, 600, 1695, 375, "zmiana nie wpływa na ustawienia kolorów"},
    {"cmdResetKolory", "fraKolory", 120, 2760, 1695, 675, "Ustaw standardowe kolory danego świata"},
    {"chkZachowajKolory", "fraKolory", 240, 3480, 1455, 255, "Blokuj kolory",
     "zaznaczenie oznacza, że kolory są chronione przed zmianą"},
    {"hscMonet", "frmInfo", 3720, 240, 495, 255},
    {"txtNazwa", "fraNazwa", 120, 240, 4215, 285, "           POWODZENIA!          "},
    {"txtAutor", "fraAutor", 120, 240, 8055, 285},
    {"txtData", "fraAutor", 8160, 240, 240, 285, "", "", false, false},
    {"cmdBlokuj", "fraAutor", 120, 600, 375, 255, "<!>", "", false, true},
    {"txtAutorGry(0)", "fraAutorEtapow", 120, 240, 2535, 285, "DORVA PLANSZOWNIK!  "},
    {"txtAutorGry(1)", "fraAutorEtapow", 2640, 240, 2535, 285, "                    "},
    {"txtAutorGry(2)", "fraAutorEtapow", 5160, 240, 2535, 285, "                    "},
    {"optPPM(0)", "fraPPM", 120, 240, 735, 315, "pipeta"},
    {"optPPM(1)", "fraPPM", 120, 600, 735, 315, "gumka"},
    {"imgBufor", "fraBuforZnak", 120, 120, 510, 510},
    {"lblKodBufor(0)", "fraBufor", 960, 360, 495, 255, "0", "", true, false},
    {"lblKodBufor(1)", "fraBufor", 960, 600, 495, 255, "$0", "", true, false},
    {"optNN(0)", "fraObiekty", 2280, 1560, 615, 255, "STD", "", false, false},
    {"optNN(1)", "fraObiekty", 2880, 1560, 615, 255, "INV", "", false, false},
    {"optEtapNR(0)", "fraEtapNR", 120, 240, 375, 255, "01"},
    {"optEtapNR(15)", "fraEtapNR", 120, 3840, 375, 255, "16"},
    {"optEtapNR(16)", "fraEtapNR", 480, 240, 375, 255, "17"},
    {"optEtapNR(31)", "fraEtapNR", 480, 3840, 375, 255, "32"},
    {"lblKoloryNazwy(0)", "fraKolory", 120, 240, 975, 240, "klucze"},
    {"lblKoloryNazwy(3)", "fraKolory", 120, 960, 975, 240, "energia i pkt."},
    {"lblKoloryNazwy(8)", "fraKolory", 120, 2160, 975, 240, "tło (ramka)"},
    {"lblKoloryNazwy(11)", "fraKolory", 120, 2400, 975, 240, "panel"},
    {"lblKolor(0)", "fraKolory", 1200, 240, 615, 240, "0"},
    {"lblKolor(8)", "fraKolory", 1200, 2160, 615, 240, "0"},
    {"lblKolor(11)", "fraKolory", 1200, 2400, 615, 240, "0"},
    {"imgInfo(0)", "frmInfo", 240, 240, 240, 240, nullptr, "Czy jest Dorva?"},
    {"imgInfo(1)", "frmInfo", 1320, 240, 240, 240, nullptr, "Czy jest wyjście?"},
    {"imgInfo(2)", "frmInfo", 2400, 240, 240, 240, nullptr, "Maski na ekranie"},
    {"imgInfo(4)", "frmInfo", 4560, 240, 240, 240, nullptr, "Klucze"},
    {"imgInfo(5)", "frmInfo", 5640, 240, 240, 240, nullptr, "Drzwi"},
    {"imgInfo(6)", "frmInfo", 6720, 240, 240, 240, nullptr, "Bomby"},
    {"imgInfo(7)", "frmInfo", 7800, 240, 240, 240, nullptr, "Pułapki"},
    {"imgInfo(8)", "frmInfo", 8880, 240, 240, 240, nullptr, "Magiczny przedmiot"},
    {"lblInfo(0)", "frmInfo", 480, 240, 495, 255, "!", "\"!\" - nie ma Dorvy, \"ok\" - jest"},
    {"lblInfo(1)", "frmInfo", 1560, 240, 495, 255, "!", "\"!\" - nie ma wyjścia, \"ok\" - jest"},
    {"lblInfo(2)", "frmInfo", 2640, 240, 495, 255, "0", "Liczba dostęnych masek"},
    {"lblInfo(3)", "frmInfo", 3240, 240, 495, 255, "1", "Liczba masek, które należy zebrać"},
    {"lblInfo(4)", "frmInfo", 4800, 240, 495, 255, "0", "Liczba dostępnych kluczy"},
    {"lblInfo(5)", "frmInfo", 5880, 240, 495, 255, "0", "Liczba drzwi do otwarcia"},
    {"lblInfo(6)", "frmInfo", 6960, 240, 495, 255, "0", "Liczba dostępnych bomb"},
    {"lblInfo(7)", "frmInfo", 8040, 240, 495, 255, "0", "Liczba pułapek"},
    {"lblInfo(8)", "frmInfo", 9120, 240, 495, 255, "0", "Liczba dostępnych magicznych przedmiotów "},
};

constexpr const char* UKRYTE[]{"imgInfo(3)",  "imgInfo(9)",        "lblInfo(9)",   "lblInfo(10)",
                               "lblKolor(9)", "lblKoloryNazwy(9)", "lblKolor(10)", "lblKoloryNazwy(10)"};

QString captionOf(const QWidget* widget) {
    for (const char* property : {"title", "text"})
        if (const QVariant value = widget->property(property); value.isValid())
            return value.toString();
    return {};
}

// What the text of a widget needs beyond its place, in pixels; 0 where it fits.
int clippedPixels(const QWidget* widget) {
    const QFontMetrics metrics(widget->font());
    if (const auto* box = qobject_cast<const QLineEdit*>(widget))
        return metrics.horizontalAdvance(QString(box->maxLength(), 'W')) - (box->width() - 6);
    if (const auto* label = qobject_cast<const QLabel*>(widget); label && !label->wordWrap())
        return metrics.horizontalAdvance(label->text()) - label->contentsRect().width();
    if (const auto* button = qobject_cast<const QPushButton*>(widget)) {
        QFont bold = button->font();
        bold.setBold(true);
        const QSize place = button->size() - QSize(4, 2);
        const QRect needed = QFontMetrics(button->isCheckable() ? bold : button->font())
                                 .boundingRect(QRect({}, place), Qt::TextWordWrap, button->text());
        return std::max(needed.width() - place.width(), needed.height() - place.height());
    }
    return 0;
}

using Katalog = Stanowisko;

TEST_F(Katalog, EveryControlStandsAtItsPlaceWithItsWords) {
    okno->showRecord();
    okno->show();
    EXPECT_EQ(okno->objectName(), "frmDP");
    EXPECT_EQ(okno->size(), QSize(897, 617));
    EXPECT_EQ(okno->minimumSize(), okno->maximumSize());
    for (const Oczekiwane& k : KONTROLKI) {
        SCOPED_TRACE(k.name);
        const QWidget* widget = find(k.name);
        ASSERT_TRUE(widget);
        EXPECT_EQ(widget->parentWidget()->objectName(), k.container);
        EXPECT_EQ(widget->geometry(), QRect(k.left / 15, k.top / 15, k.width / 15, k.height / 15));
        EXPECT_EQ(widget->toolTip(), k.tooltip);
        EXPECT_EQ(widget->isEnabled(), k.enabled);
        EXPECT_EQ(widget->isVisible(), k.visible);
        EXPECT_TRUE(!k.caption || captionOf(widget) == k.caption);
        EXPECT_TRUE(!k.visible || clippedPixels(widget) <= 0);
    }
    for (const char* name : UKRYTE) {
        EXPECT_FALSE(find(name)->isVisible()) << name;
        EXPECT_FALSE(find(name)->isEnabled()) << name;
    }
    EXPECT_EQ(find<QLineEdit>("txtAutor")->text().size(), 64);
    for (const char* selected : {"optEtapNR(0)", "optObiektyNR(0)", "optPPM(0)", "optNN(0)"})
        EXPECT_TRUE(find<QPushButton>(selected)->isChecked()) << selected;
    const auto* bar = find<QScrollBar>("hscMonet");
    EXPECT_EQ(std::tuple(bar->minimum(), bar->maximum(), bar->value(), bar->hasTracking()),
              std::tuple(1, 99, 1, false));
}

TEST_F(Katalog, TabVisitsTheControlsInOrder) {
    open();
    QStringList visited;
    for (int i = 0; i < 14; ++i) {
        visited += QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    const QStringList wanted{"optEtapNR(0)",   "chkOstatni",     "optObiektyNR(1)", "txtNazwa", "txtAutor",
                             "txtAutorGry(0)", "txtAutorGry(1)", "txtAutorGry(2)",  "cmdLoad",  "cmdLoadArch",
                             "cmdTest",        "cmdSave",        "cmdSaveArch",     "cmdCreate"};
    EXPECT_EQ(visited.join(" ").toStdString(), wanted.join(" ").toStdString()); // stage 1 of the desk lies in world 1
}

// Container, binding, tab stop and kind alike: what is not in the catalogue is told by its name.
TEST_F(Katalog, AMisspeltNameEndsTheProgram) {
    QWidget window;
    const KontrolkiOkna kontrolki(katalogOkna(), &window);
    const auto end = ::testing::ExitedWithCode(1);
    EXPECT_EXIT(KontrolkiOkna({{wytwornia::ramka, "fraA", -1, "fraPloe", 0, 0, 0, 0, "", ""}}, &window), end,
                "fraPloe");
    EXPECT_EXIT((void)kontrolki.get<QPushButton>("cmdLaod"), end, "cmdLaod");
    EXPECT_EXIT((void)kontrolki.get<QPushButton>("optPPM", 2), end, "optPPM.2");
    EXPECT_EXIT((void)kontrolki.get<QLineEdit>("cmdLoad"), end, "cmdLoad");
    EXPECT_EXIT((void)kontrolki.getAll<QPushButton>("txtAutorGry"), end, "txtAutorGry.0");
    EXPECT_EXIT(kontrolki.setTabOrder({"cmdLoad", "txtNzawa"}), end, "txtNzawa");
}

} // namespace
} // namespace dorva::test
