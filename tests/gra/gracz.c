/* The player of the stages, in the real rules:
     gracz graj STAGE RUN     plays a recorded run; ends with 0 if she goes through the exit
     gracz szukaj STAGE RUN   follows the plan of a run with care and prints the run anew
     gracz smialek STAGE RUN  follows the plan without any fear, three lives long: prints lives lost and "tak" or "nie"

   STAGE is a stage file, RUN a text of two parts. Its first line is the plan, the rest its recording. Both consist of
   letters with a count: `R12` is twelve steps to the right (L R U D), `F1` the trigger, `-3` waits three steps long. A
   step is a tap of the stick, six ticks in all. A plan also knows `12,7`, go to column 12 of row 7, and `*`, take all
   masks, keys and the torch within reach and go through the exit; every plan ends with such a one.

   The careful player tries in the real rules what comes of going on; if that hurts, it tries to wait or to step aside
   first and takes what hurts least. Nobody tells it where danger is, so a stage that it finishes can be finished. */
#include "reguly.h"
#include <ctype.h>
#include <fcntl.h>
#include <stdio.h>
#include <string.h>
#include <unistd.h>

enum { PROBY = 6, KROKOW = 1500, DOTKNIECIE = 2, DALEKO = 0xFFFF, NIE = 255 };
enum { RUCHOME = 61 };                            /* creatures and smoke: in the way now, gone tomorrow */
enum { CZEKA = 4, SPUST = 5, WSZYSTKO = 0xFFFE }; /* CZEKA and SPUST follow the four directions */
enum { POMYSLY = 40, RUCHY = 3, SMIERC = 1000 };

/* What a cell costs to enter, by tile; NIE: not at all. Doors and the exit depend on more. */
static const byte ceny[64] = {4,  4,   120, 4,   4,   NIE, NIE, NIE, 12,  NIE, NIE, 24,  4,   4,   4,   NIE,
                              4,  NIE, NIE, 40,  40,  40,  40,  NIE, 61,  61,  61,  61,  61,  61,  61,  61,
                              61, 61,  4,   100, 61,  61,  61,  61,  NIE, NIE, NIE, 40,  40,  40,  40,  40,
                              40, 160, NIE, NIE, NIE, NIE, NIE, NIE, NIE, 4,   NIE, NIE, NIE, NIE, NIE, NIE};
static const byte strach[4] = {60, 60, 30, 10}; /* by the distance to a creature */

static const int obok[4] = {-1, 1, -KOLUMNY, KOLUMNY};
static const char litery[] = "LRUD-F";
static const byte stan_drazka[4] = {15 - KIJ_LEWO, 15 - KIJ_PRAWO, 15 - KIJ_GORA, 15 - KIJ_DOL};

static byte rekord[ETAP_BAJTY];
static char tekst[8192];          /* the run as read; its plan */
static char* plan;                /* what is still to be done of it */
static char przebieg[KROKOW + 8]; /* a letter a step */
static unsigned dlugosc;
static byte smialek;
static unsigned los_stan;

static byte cena[POLA];
static unsigned odleglosc[POLA];
static byte skad[POLA];
static byte w_kolejce[POLA];
static unsigned kolejka[1024];
static byte droga[POLA]; /* the way to the goal, its last step first */
static unsigned kroki_drogi;

/* The rules as they were at a moment. */
static struct {
    byte plansza[POLA], pod[POLA], stan[POLA], zapach[POLA], zp[256], bss[512];
    unsigned dlugosc;
} chwila;

/* What to do before going on: up to three moves of a kind, each a number of steps long. */
static byte ruch[POMYSLY][RUCHY], ile[POMYSLY][RUCHY];

static void zapisz(void) {
    memcpy(chwila.plansza, plansza, POLA);
    memcpy(chwila.pod, pod, POLA);
    memcpy(chwila.stan, stan, POLA);
    memcpy(chwila.zapach, zapach, POLA);
    memcpy(chwila.zp, zp_poczatek, zp_koniec - zp_poczatek);
    memcpy(chwila.bss, bss_poczatek, bss_koniec - bss_poczatek);
    chwila.dlugosc = dlugosc;
}

static void przywroc(void) {
    memcpy(plansza, chwila.plansza, POLA);
    memcpy(pod, chwila.pod, POLA);
    memcpy(stan, chwila.stan, POLA);
    memcpy(zapach, chwila.zapach, POLA);
    memcpy(zp_poczatek, chwila.zp, zp_koniec - zp_poczatek);
    memcpy(bss_poczatek, chwila.bss, bss_koniec - bss_poczatek);
    dlugosc = chwila.dlugosc;
}

static byte los(void) {
    los_stan = los_stan * 25173u + 13849u;
    return (byte)(los_stan >> 8);
}

static unsigned tu(void) {
    return dorva_y * KOLUMNY + dorva_x;
}

static byte znak(unsigned i) {
    return plansza[i] & 64 ? MUR_V : plansza[i] & 63;
}

static byte jest_stworem(byte z) {
    return (z >= DUCH && z < WYBUCH) || (z >= TROPICIEL && z < MIOTNIK);
}

/* One step of time: the stick is tapped, or the trigger, or nothing. */
static void krok(byte co) {
    byte i;
    if (dlugosc < KROKOW)
        przebieg[dlugosc++] = litery[co];
    drazek = co < CZEKA ? stan_drazka[co] : 15;
    spust = co != SPUST;
    for (i = 0; i < KROK && !wynik; ++i) {
        if (i == DOTKNIECIE) {
            drazek = 15;
            spust = 1;
        }
        takt();
    }
}

static void zdrozej(unsigned i, byte o) {
    if (i < POLA && cena[i] != NIE)
        cena[i] = cena[i] > 250 - o ? 250 : cena[i] + o;
}

/* Prices of all cells: tiles, then what creatures and shooters make of their surroundings. */
static void wycen(unsigned cel) {
    unsigned i, j;
    byte z, k;
    signed char dx, dy;
    memset(cena, NIE, POLA);
    for (i = KOLUMNY + 1; i < POLA - KOLUMNY; i += 2)
        for (k = 0; k < KOLUMNY - 2; ++k, ++i) { /* the edge is for nobody */
            z = znak(i);
            if ((z == WYJSCIE && otwarte) || (z == DRZWI && klucze))
                cena[i] = 8;
            else if (ceny[z] != NIE)
                cena[i] = smialek && ceny[z] == RUCHOME ? NIE : ceny[z] + (los() & 1);
        }
    if (cel < POLA && znak(cel) == MAGICZNY)
        cena[cel] = 4;
    for (i = 0; i < POLA && !smialek; ++i) {
        z = znak(i);
        if (jest_stworem(z))
            for (dy = -3; dy <= 3; ++dy)
                for (dx = -3; dx <= 3; ++dx) {
                    k = (dx < 0 ? -dx : dx) + (dy < 0 ? -dy : dy);
                    if (k <= 3)
                        zdrozej(i + dy * KOLUMNY + dx, strach[k]);
                }
        if (z == PROMIENNIK || (z >= MIOTNIK && z <= PLUJKA))
            for (k = 0; k < 4; ++k)
                for (j = i + obok[k]; j < POLA && cena[j] != NIE; j += obok[k])
                    zdrozej(j, 12);
    }
}

/* What a cell is worth: the smaller, the better; DALEKO: nothing. */
static unsigned wartosc(unsigned i) {
    switch (znak(i)) {
    case WYJSCIE:
        return otwarte ? 0 : DALEKO;
    case MASKA:
        return brak_masek ? 800 : DALEKO;
    case KLUCZ:
    case POCHODNIA:
        return 800;
    case ELIKSIR:
        return energia < 60 && !smialek ? 680 : DALEKO;
    default:
        return DALEKO;
    }
}

/* Distances from the heroine to all cells, by price. */
static void zmierz(void) {
    unsigned glowa = 0, ogon = 0, i, j, d;
    byte k;
    memset(odleglosc, 0xFF, sizeof(odleglosc));
    memset(w_kolejce, 0, POLA);
    odleglosc[tu()] = 0;
    kolejka[ogon++] = tu();
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

/* Looks for the way to a cell, or to the best of WSZYSTKO. 1: there is one. */
static byte znajdz_droge(unsigned cel) {
    unsigned i, d, najlepszy = DALEKO;
    kroki_drogi = 0;
    wycen(cel);
    zmierz();
    if (cel == WSZYSTKO)
        for (i = 0; i < POLA; ++i) {
            d = wartosc(i);
            if (d != DALEKO && odleglosc[i] != DALEKO && d + odleglosc[i] < najlepszy) {
                najlepszy = d + odleglosc[i];
                cel = i;
            }
        }
    if (cel == WSZYSTKO || odleglosc[cel] == DALEKO)
        return 0;
    for (i = cel; i != tu(); i -= obok[skad[i]])
        droga[kroki_drogi++] = skad[i];
    return 1;
}

/* Goes a number of steps of the way, through thickets as well. A leap ends it. */
static void idz(byte kroki) {
    unsigned skok;
    byte t;
    for (; kroki && kroki_drogi && !wynik; --kroki) {
        skok = tu() + obok[droga[--kroki_drogi]];
        for (t = znak(skok) == ZAROSLA && !pochodnia ? 3 : 1; t && !wynik; --t)
            krok(droga[kroki_drogi]);
        if (tu() != skok && tu() != skok - obok[droga[kroki_drogi]])
            kroki_drogi = 0;
    }
}

/* The first ideas are to wait, the next to go straight off, the others to wander. */
static void wymysl(void) {
    byte i, k;
    memset(ile, 0, sizeof(ile));
    for (i = 1; i < POMYSLY; ++i) {
        if (i < 6) {
            ruch[i][0] = CZEKA;
            ile[i][0] = i < 4 ? i : i * 2;
            continue;
        }
        for (k = 0; k < RUCHY; ++k) {
            ruch[i][k] = los() & 3;
            ile[i][k] = (los() & 7) + 1;
        }
        ruch[i][2] = CZEKA;
        if (i < 18)
            ile[i][1] = 0;
    }
}

static void zacznij(byte pomysl) {
    byte k, n;
    for (k = 0; k < RUCHY; ++k)
        for (n = ile[pomysl][k]; n && !wynik; --n)
            krok(ruch[pomysl][k]);
}

/* What an idea costs: energy within the next steps, or her life. */
static unsigned sprawdz(byte pomysl, unsigned cel, const char* ciag, byte daleko) {
    const byte bylo = energia;
    byte n;
    zacznij(pomysl);
    if (ciag)
        for (n = 0; n < daleko && ciag[n] && !wynik; ++n)
            krok(strchr(litery, ciag[n]) - litery);
    else if (!wynik && !znajdz_droge(cel))
        return energia < bylo ? 5 + bylo - energia : 5;
    else
        idz(daleko);
    if (wynik == DORVA_GINIE)
        return SMIERC;
    return energia < bylo ? bylo - energia : 0;
}

/* The idea that hurts least. Steps of a sequence may be put off, but she doesn't leave their place. */
static byte wybierz(unsigned cel, const char* ciag, byte daleko) {
    const byte pomysly = ciag ? 6 : POMYSLY;
    byte i, najlepszy = 0;
    unsigned strata, najmniej = DALEKO;
    wymysl();
    zapisz();
    for (i = 0; i < pomysly && najmniej; ++i) {
        strata = sprawdz(i, cel, ciag, daleko);
        if (strata < najmniej) {
            najmniej = strata;
            najlepszy = i;
        }
        przywroc();
    }
    return najlepszy;
}

static byte cos_sie_rusza(void) {
    unsigned i;
    byte z;
    for (i = 0; i < POLA; ++i) {
        z = znak(i);
        if (z >= PROMIENNIK && z < BAGNO && z != MONETA && z != OGIEN)
            return 1;
    }
    return 0;
}

/* Goes to a cell or takes what it can get. */
static void dojdz(unsigned cel, byte daleko) {
    unsigned skad_idzie;
    while (!wynik && dlugosc < KROKOW) {
        if (tu() == cel)
            return;
        if (!smialek && cos_sie_rusza())
            zacznij(wybierz(cel, 0, daleko));
        if (wynik)
            return;
        if (!znajdz_droge(cel)) {
            if (cel == WSZYSTKO && (*plan || !cos_sie_rusza()))
                return;
            krok(CZEKA);
            continue;
        }
        skad_idzie = tu();
        idz(smialek ? 1 : 2);
        if (cel != WSZYSTKO && !kroki_drogi && tu() != skad_idzie) /* there, or leapt from there */
            return;
    }
}

static void wykonaj(const char* ciag, byte daleko) {
    for (; *ciag && !wynik && dlugosc < KROKOW; ++ciag) {
        if (!smialek && cos_sie_rusza())
            zacznij(wybierz(0, ciag, daleko));
        krok(strchr(litery, *ciag) - litery);
    }
}

static unsigned liczba(void) {
    unsigned n = 0;
    for (; isdigit(*plan); ++plan)
        n = n * 10 + (*plan - '0');
    return n;
}

/* Follows the plan from its start. 1: she is through the exit. */
static byte sprobuj(byte proba) {
    static char ciag[100];
    const byte daleko = 8 + proba * 3;
    unsigned n;
    char litera;
    byte k;
    memcpy(plansza, rekord + ETAP_PLANSZA, POLA);
    cel_masek = rekord[ETAP_CEL];
    dlugosc = 0;
    los_stan = 1 + proba * 7919u;
    spust = 1;
    if (!start())
        return 0;
    for (n = 0; n < proba * 5; ++n)
        krok(CZEKA);
    plan = tekst;
    while (!wynik && dlugosc < KROKOW) {
        for (k = 0;;) { /* steps in a row belong together */
            while (*plan == ' ')
                ++plan;
            litera = *plan;
            if (!litera || !strchr(litery, litera))
                break;
            ++plan;
            for (n = liczba(); n && k < 99; --n)
                ciag[k++] = litera;
        }
        ciag[k] = 0;
        wykonaj(ciag, daleko);
        if (isdigit(litera)) {
            n = liczba();
            ++plan;
            dojdz(n + liczba() * KOLUMNY, daleko);
        } else if (litera == '*') {
            ++plan;
            dojdz(WSZYSTKO, daleko);
        } else
            break;
    }
    return wynik == ETAP_PRZESZLA;
}

static void wypisz(void) {
    unsigned i, j;
    byte kolumna = 0;
    printf("%s\n", tekst);
    for (i = 0; i < dlugosc; i = j) {
        for (j = i; j < dlugosc && przebieg[j] == przebieg[i]; ++j) {
        }
        printf("%c%u%c", przebieg[i], j - i, ++kolumna % 24 && j < dlugosc ? ' ' : '\n');
    }
}

static byte szukaj(void) {
    byte i;
    for (i = 0; i < PROBY; ++i) {
        nowa_gra();
        if (sprobuj(i)) {
            wypisz();
            return 0;
        }
        printf("; try %u: result %u after %u steps at %u,%u, masks %u, energy %u, plan %s\n", i, wynik, dlugosc,
               dorva_x, dorva_y, brak_masek, energia, plan);
    }
    return 1;
}

static byte badz_smialy(void) {
    byte stracone;
    smialek = 1;
    nowa_gra();
    for (stracone = 0; stracone < 3; ++stracone)
        if (sprobuj(stracone))
            break;
    printf("%u %s\n", stracone, stracone < 3 ? "tak" : "nie");
    return 0;
}

static byte graj(const char* p) {
    unsigned n;
    nowa_gra();
    memcpy(plansza, rekord + ETAP_PLANSZA, POLA);
    cel_masek = rekord[ETAP_CEL];
    spust = 1;
    start();
    while (*p && !wynik) {
        const char* litera = strchr(litery, *p++);
        if (!litera || !litera[0])
            continue;
        for (n = 0; isdigit(*p); ++p)
            n = n * 10 + (*p - '0');
        for (; n && !wynik; --n)
            krok(litera - litery);
    }
    printf("result %u energy %u masks %u at %u,%u\n", wynik, energia, brak_masek, dorva_x, dorva_y);
    return wynik != ETAP_PRZESZLA;
}

static int wczytaj(const char* nazwa, void* dokad, unsigned ile_bajtow) {
    const int plik = open(nazwa, O_RDONLY);
    const int bajty = plik < 0 ? -1 : read(plik, dokad, ile_bajtow);
    if (plik >= 0)
        close(plik);
    return bajty;
}

int main(int argc, char* argv[]) {
    char* nagranie;
    if (argc != 4 || wczytaj(argv[2], rekord, ETAP_BAJTY) != ETAP_BAJTY ||
        wczytaj(argv[3], tekst, sizeof(tekst) - 1) <= 0) {
        printf("usage: gracz graj|szukaj|smialek STAGE RUN\n");
        return 2;
    }
    nagranie = strchr(tekst, '\n');
    if (nagranie)
        *nagranie++ = 0;
    else
        nagranie = tekst + strlen(tekst);
    switch (argv[1][1]) {
    case 'r':
        return graj(nagranie);
    case 'z':
        return szukaj();
    default:
        return badz_smialy();
    }
}
