/* A simple-minded player: `gracz STAGE` looks for a way through a stage file and prints it as a recorded run, in the
   form that odtworz reads. It goes for the nearest thing worth having, keeps away from what moves, and tries again with
   other chances when it fails. It never pushes, bombs or leaps: a stage that it finishes can surely be finished. Ends
   with 0 if it has found a way. */
#include "reguly.h"
#include <fcntl.h>
#include <stdio.h>
#include <string.h>
#include <unistd.h>

enum { ETAP_PLANSZA = 32, ETAP_CEL = 832, ETAP_BAJTY = 931 };
enum { PROBY = 8, KROKOW = 900, KROK = 6, DALEKO = 0xFFFF, NIE = 255 };

/* What a cell costs to enter, by tile; NIE: not at all. Doors and the exit depend on more. */
static const byte ceny[64] = {4,   4,   120, 4,   4,   NIE, NIE, NIE, 12,  NIE, NIE, 24,  4,   4,   4,   NIE,
                              4,   NIE, NIE, 80,  80,  80,  80,  NIE, NIE, NIE, NIE, NIE, NIE, NIE, NIE, NIE,
                              NIE, NIE, 4,   100, NIE, NIE, NIE, NIE, NIE, NIE, NIE, 80,  80,  80,  80,  80,
                              80,  160, NIE, NIE, NIE, NIE, NIE, NIE, NIE, 4,   NIE, NIE, NIE, NIE, NIE, NIE};
static const byte strach[4] = {200, 200, 90, 30}; /* by the distance to a creature */

static const int obok[4] = {-1, 1, -KOLUMNY, KOLUMNY};
static const char litera[4] = {'L', 'R', 'U', 'D'};
static const byte stan_drazka[4] = {15 - LEWO, 15 - PRAWO, 15 - GORA, 15 - DOL};

static byte rekord[ETAP_BAJTY];
static byte cena[POLA];
static unsigned odleglosc[POLA];
static byte skad[POLA];
static byte w_kolejce[POLA];
static unsigned kolejka[1024];
static char przebieg[KROKOW + 8]; /* a letter a step */
static unsigned dlugosc;
static unsigned los_stan;

static byte los(void) {
    los_stan = los_stan * 25173u + 13849u;
    return (byte)(los_stan >> 8);
}

static byte znak(unsigned i) {
    return plansza[i] & 64 ? 5 : plansza[i] & 63;
}

static byte jest_stworem(byte z) {
    return (z >= 24 && z <= 29) || (z >= 36 && z <= 39);
}

static void podroz(unsigned i, byte o) {
    if (cena[i] != NIE)
        cena[i] = cena[i] > 250 - o ? 250 : cena[i] + o;
}

/* Prices of all cells: tiles, then what creatures and shooters make of their surroundings. */
static void wycen(void) {
    unsigned i, j;
    byte z, k;
    signed char dx, dy;
    memset(cena, NIE, POLA);
    for (i = KOLUMNY + 1; i < POLA - KOLUMNY; i += 2)
        for (k = 0; k < KOLUMNY - 2; ++k, ++i) { /* the edge is for nobody */
            z = znak(i);
            if ((z == 9 && otwarte) || (z == 10 && klucze))
                cena[i] = 8;
            else if (ceny[z] != NIE)
                cena[i] = ceny[z] + (los() & 1);
        }
    for (i = 0; i < POLA; ++i) {
        z = znak(i);
        if (jest_stworem(z))
            for (dy = -3; dy <= 3; ++dy)
                for (dx = -3; dx <= 3; ++dx) {
                    k = (dx < 0 ? -dx : dx) + (dy < 0 ? -dy : dy);
                    j = i + dy * KOLUMNY + dx;
                    if (k <= 3 && j < POLA)
                        podroz(j, strach[k]);
                }
        if (z == 18 || (z >= 40 && z <= 42))
            for (k = 0; k < 4; ++k)
                for (j = i + obok[k]; j < POLA && (cena[j] != NIE); j += obok[k])
                    podroz(j, 24);
    }
}

/* What a cell is worth: the smaller, the better; DALEKO: nothing. */
static unsigned cel(unsigned i) {
    switch (znak(i)) {
    case 9:
        return otwarte ? 0 : DALEKO;
    case 12:
        return brak_masek ? 800 : DALEKO;
    case 13:
    case 57:
        return 800;
    case 16:
        return energia < 60 ? 680 : DALEKO;
    default:
        return DALEKO;
    }
}

/* Distances from the heroine to all cells, by price. */
static void zmierz(unsigned start_tu) {
    unsigned glowa = 0, ogon = 0, i, j, d;
    byte k;
    for (i = 0; i < POLA; ++i)
        odleglosc[i] = DALEKO;
    memset(w_kolejce, 0, POLA);
    odleglosc[start_tu] = 0;
    kolejka[ogon++] = start_tu;
    while (glowa != ogon) {
        i = kolejka[glowa];
        glowa = (glowa + 1) & 1023;
        w_kolejce[i] = 0;
        for (k = 0; k < 4; ++k) {
            j = i + obok[k];
            if (cena[j] == NIE)
                continue;
            d = odleglosc[i] + cena[j];
            if (d < odleglosc[j]) {
                odleglosc[j] = d;
                skad[j] = k;
                if (!w_kolejce[j]) {
                    w_kolejce[j] = 1;
                    kolejka[ogon] = j;
                    ogon = (ogon + 1) & 1023;
                }
            }
        }
    }
}

static void krok(byte kierunek) {
    byte i;
    drazek = kierunek < 4 ? stan_drazka[kierunek] : 15;
    przebieg[dlugosc++] = kierunek < 4 ? litera[kierunek] : '-';
    for (i = 0; i < KROK && !wynik; ++i)
        takt();
}

/* Does anything move near her? */
static byte cos_sie_rusza(void) {
    const byte gora = dorva_y > 6 ? dorva_y - 6 : 0, dol = dorva_y < 13 ? dorva_y + 6 : 19;
    const byte lewo = dorva_x > 7 ? dorva_x - 7 : 0, prawo = dorva_x < 32 ? dorva_x + 7 : 39;
    byte w, k, z;
    for (w = gora; w <= dol; ++w)
        for (k = lewo; k <= prawo; ++k) {
            z = znak(w * KOLUMNY + k);
            if (jest_stworem(z) || (z >= 19 && z <= 22) || (z >= 43 && z <= 48))
                return 1;
        }
    return 0;
}

/* One try. 1: she is through the exit. */
static byte sprobuj(unsigned proba) {
    static byte droga[POLA];
    unsigned tu, i, najblizej, najlepszy, d;
    unsigned n;
    byte kroki, t;
    memcpy(plansza, rekord + ETAP_PLANSZA, POLA);
    cel_masek = rekord[ETAP_CEL];
    nowa_gra();
    spust = 1;
    dlugosc = 0;
    los_stan = 1 + proba * 7919u;
    if (!start())
        return 0;
    while (!wynik && dlugosc < KROKOW - 16) {
        tu = dorva_y * KOLUMNY + dorva_x;
        wycen();
        zmierz(tu);
        najlepszy = DALEKO;
        najblizej = tu;
        for (i = 0; i < POLA; ++i) {
            d = cel(i);
            if (d != DALEKO && odleglosc[i] != DALEKO && d + odleglosc[i] < najlepszy) {
                najlepszy = d + odleglosc[i];
                najblizej = i;
            }
        }
        kroki = cos_sie_rusza() ? 2 : 16;
        if (najblizej == tu || (kroki == 2 && los() < 8)) {
            krok(4); /* nothing to go for, or a moment's patience */
            continue;
        }
        for (n = 0, i = najblizej; i != tu; i -= obok[skad[i]])
            droga[n++] = skad[i];
        for (i = tu; n && kroki && !wynik; --kroki) {
            i += obok[droga[--n]];
            for (t = znak(i) == 8 && !pochodnia ? 3 : 1; t; --t)
                krok(droga[n]);
        }
    }
    return wynik == ETAP_PRZESZLA;
}

int main(int argc, char* argv[]) {
    const int plik = argc == 2 ? open(argv[1], O_RDONLY) : -1;
    unsigned i, j;
    byte kolumna = 0;
    if (plik < 0 || read(plik, rekord, ETAP_BAJTY) != ETAP_BAJTY) {
        printf("usage: gracz STAGE\n");
        return 2;
    }
    for (i = 0; i < PROBY && !sprobuj(i); ++i)
        printf("; try %u: result %u after %u steps, masks %u, energy %u\n", i, wynik, dlugosc, brak_masek, energia);
    if (i == PROBY)
        return 1;
    for (i = 0; i < dlugosc; i = j) {
        for (j = i; j < dlugosc && przebieg[j] == przebieg[i]; ++j) {
        }
        printf("%c%u%c", przebieg[i], (j - i) * KROK, ++kolumna % 16 ? ' ' : '\n');
    }
    printf("\n");
    return 0;
}
