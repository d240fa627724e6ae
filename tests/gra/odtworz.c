/* Plays a recorded run: `odtworz STAGE RUN`. STAGE is a stage file of 931 bytes. RUN is text: tokens of letters and
   a number of ticks, say `R12 D6 F1 -30`: L R U D is the stick, F the trigger, - neither. Prints how the run ends, and
   the board if the stage isn't finished by it. Ends with 0 if she has gone through the exit. */
#include "reguly.h"
#include <ctype.h>
#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

enum { ETAP_PLANSZA = 32, ETAP_CEL = 832, ETAP_BAJTY = 931 };

static byte rekord[ETAP_BAJTY];
static char przebieg[8192];
static unsigned takty;

static int wczytaj(const char* nazwa, void* dokad, unsigned ile) {
    const int plik = open(nazwa, O_RDONLY);
    const int bajty = plik < 0 ? -1 : read(plik, dokad, ile);
    if (plik >= 0)
        close(plik);
    return bajty;
}

static void zagraj(const char* p) {
    unsigned n;
    while (*p && wynik == 0) {
        if (isspace(*p)) {
            ++p;
            continue;
        }
        drazek = 15;
        spust = 1;
        for (; *p && !isdigit(*p); ++p)
            switch (*p) {
            case 'L':
                drazek &= 15 - LEWO;
                break;
            case 'R':
                drazek &= 15 - PRAWO;
                break;
            case 'U':
                drazek &= 15 - GORA;
                break;
            case 'D':
                drazek &= 15 - DOL;
                break;
            case 'F':
                spust = 0;
                break;
            }
        for (n = 0; isdigit(*p); ++p)
            n = n * 10 + (*p - '0');
        for (; n && wynik == 0; --n, ++takty)
            takt();
    }
}

int main(int argc, char* argv[]) {
    unsigned i;
    if (argc != 3 || wczytaj(argv[1], rekord, ETAP_BAJTY) != ETAP_BAJTY ||
        wczytaj(argv[2], przebieg, sizeof(przebieg) - 1) <= 0) {
        printf("usage: odtworz STAGE RUN\n");
        return 2;
    }
    memcpy(plansza, rekord + ETAP_PLANSZA, POLA);
    cel_masek = rekord[ETAP_CEL];
    nowa_gra();
    if (!start()) {
        printf("no heroine\n");
        return 1;
    }
    zagraj(przebieg);
    printf("result %u ticks %u energy %u masks %u keys %u bombs %u at %u,%u\n", wynik, takty, energia, brak_masek,
           klucze, bomby, dorva_x, dorva_y);
    if (wynik == ETAP_PRZESZLA)
        return 0;
    for (i = 0; i < POLA; ++i)
        printf("%02X%s", plansza[i], i % KOLUMNY == KOLUMNY - 1 ? "\n" : "");
    return 1;
}
