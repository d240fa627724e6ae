// Every message box that the operations show.
#pragma once

#include "system/haki.h"

namespace dorva::komunikaty {

inline constexpr Komunikat ZLY_FORMAT{"Uwaga!", "Niewłaściwy format pliku!", Ikona::Critical, Przyciski::Ok};
inline constexpr Komunikat ZASTAPIC{"Ostrzeżenie!", "Plik już istnieje!\nZastąpić?", Ikona::Warning,
                                    Przyciski::OkCancel};
inline constexpr Komunikat ETAP_ZAPISANY{"Informacja", "Dane etapu zostały pomyślnie zapisane", Ikona::Information,
                                         Przyciski::Ok};
inline constexpr Komunikat ARCHIWUM_ZAPISANE{"Informacja", "Archiwum zostało pomyślnie zapisane", Ikona::Information,
                                             Przyciski::Ok};
inline constexpr Komunikat NIE_MOZNA_PLIKU{"Uwaga!", "Coś poszło źle...\nNie można utworzyć pliku.", Ikona::Critical,
                                           Przyciski::Ok};
inline constexpr Komunikat NIE_MOZNA_GRY{"Uwaga!", "Coś poszło źle...\nNie można utworzyć gry.", Ikona::Critical,
                                         Przyciski::Ok};
inline constexpr Komunikat NIE_MOZNA_ETAPU{
    "Uwaga!", "Nie można zapisać etapu.\nSprawdź, czy jest miejsce na dysku i prawo do zapisu w folderze ETAPY.",
    Ikona::Critical, Przyciski::Ok};
inline constexpr Komunikat CZYSZCZENIE{"Ostrzeżenie!", "Czyszczenie usunie całą zawartość mapy!\nKontynuować?",
                                       Ikona::Warning, Przyciski::YesNo};
inline constexpr Komunikat KOLORY_ZABLOKOWANE{
    "Uwaga!", "Nie można zmienić kolorów ponieważ\nustawiony jest znacznik \"Blokuj kolory\".", Ikona::Warning,
    Przyciski::Ok};
inline constexpr Komunikat GRA_UTWORZONA{"Dorva Planszownik",
                                         "Został utworzony plik XEX z grą Dorva.\nUruchomić grę na emulatorze Atari?",
                                         Ikona::Information, Przyciski::YesNo};
inline constexpr Komunikat TEST_UTWORZONY{
    "Dorva Planszownik", "Został utworzony plik XEX z testowanym etapem.\nUruchomić plik na emulatorze Atari?",
    Ikona::Information, Przyciski::YesNo};

} // namespace dorva::komunikaty
