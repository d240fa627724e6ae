/* The player of the stages, in the real rules:
     gracz graj STAGE RUN     plays a recorded run; ends with 0 if she goes through the exit
     gracz szukaj STAGE RUN   follows the plan of a run with care and prints the run anew
     gracz smialek STAGE RUN  follows the plan without any fear, three lives long: prints lives lost, "tak" or "nie",
   energy left

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

enum { PROBY = 6, KROKOW = 1500, CIERPLIWOSC = 150, DOTKNIECIE = 2, DALEKO = 0xFFFF, NIE = 255 };
enum { RUCHOME = 61 };                            /* creatures and smoke: in the way now, gone tomorrow */
enum { CZEKA = 4, SPUST = 5, WSZYSTKO = 0xFFFE }; /* CZEKA and SPUST follow the four directions */
enum { POMYSLY = 32, CZEKANIA = 6, RUCHY = 3, SMIERC = 9000 };
enum { DAWNIEJ = 4, CO_ILE = 10, POWROTY = 60 };

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
static char tekst[6000];          /* the run as read; its plan */
static char* plan;                /* what is still to be done of it */
static char przebieg[KROKOW + 8]; /* a letter a step */
static unsigned dlugosc;
static unsigned ostatni_postep; /* the step of it that last brought something */
static unsigned postep;
static byte rany; /* energy lost otherwise than by wading, since it was set to 0 */
static byte smialek;
static unsigned los_stan;

static byte cena[POLA];
static unsigned odleglosc[POLA];
static byte skad[POLA];
static byte w_kolejce[POLA];
static unsigned kolejka[1024];
static byte droga[POLA]; /* the way to the goal, its last step first */
static unsigned kroki_drogi;
static byte droga_stad[POLA]; /* the same as it was before any idea */
static unsigned kroki_stad;

/* The rules as they were at a moment. */
struct chwila {
    byte plansza[POLA], pod[POLA], stan[POLA], zapach[POLA], zp[128], bss[512];
    unsigned dlugosc, los_stan;
};
static struct chwila teraz;            /* before she tries out ideas */
static struct chwila dawniej[DAWNIEJ]; /* moments to return to after a wound, the latest is the last */
static byte ile_dawniej;
static byte powroty; /* how often she may still return in this try */

/* What to do before going on: up to three moves of a kind, each a number of steps long. */
static byte ruch[POMYSLY][RUCHY], ile[POMYSLY][RUCHY];

static void zapisz(struct chwila* c) {
    memcpy(c->plansza, plansza, POLA);
    memcpy(c->pod, pod, POLA);
    memcpy(c->stan, stan, POLA);
    memcpy(c->zapach, zapach, POLA);
    memcpy(c->zp, zp_poczatek, zp_koniec - zp_poczatek);
    memcpy(c->bss, bss_poczatek, bss_koniec - bss_poczatek);
    c->dlugosc = dlugosc;
    c->los_stan = los_stan;
}

static void przywroc(const struct chwila* c) {
    memcpy(plansza, c->plansza, POLA);
    memcpy(pod, c->pod, POLA);
    memcpy(stan, c->stan, POLA);
    memcpy(zapach, c->zapach, POLA);
    memcpy(zp_poczatek, c->zp, zp_koniec - zp_poczatek);
    memcpy(bss_poczatek, c->bss, bss_koniec - bss_poczatek);
    dlugosc = c->dlugosc;
    los_stan = c->los_stan;
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

/* Where something stands in her way, so that a tap of the stick ends the greeting and does no more. */
static byte w_mur(void) {
    byte k;
    for (k = 0; k < 3 && ceny[znak(tu() + obok[k])] != NIE; ++k) {
    }
    return k;
}

/* One step of time: the stick is tapped, or the trigger, or nothing. The game waits for the first tap. */
static void krok(byte co) {
    byte i, bylo;
    if (!dlugosc && co >= CZEKA)
        co = w_mur();
    if (dlugosc < KROKOW)
        przebieg[dlugosc++] = litery[co];
    drazek = co < CZEKA ? stan_drazka[co] : 15;
    spust = co != SPUST;
    for (i = 0; i < KROK && !wynik; ++i) {
        if (i == DOTKNIECIE) {
            drazek = 15;
            spust = 1;
        }
        bylo = energia;
        takt();
        if (energia + 4 < bylo)
            rany += bylo - energia;
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
        if (i < CZEKANIA) {
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

/* What an idea does first, and the way from there. 0: there is none. */
static byte zacznij(byte pomysl, unsigned cel) {
    byte k, n;
    for (k = 0; k < RUCHY; ++k)
        for (n = ile[pomysl][k]; n && !wynik; --n)
            krok(ruch[pomysl][k]);
    if (pomysl >= CZEKANIA && !wynik)
        return znajdz_droge(cel);
    memcpy(droga, droga_stad, kroki_stad);
    kroki_drogi = kroki_stad;
    return kroki_drogi != 0;
}

/* What an idea costs: wounds, her life, the way that is left. The longer nothing gets done, the less she minds a wound.
 */
static unsigned sprawdz(byte pomysl, unsigned cel, const char* ciag, byte daleko) {
    const unsigned zwloka = dlugosc - ostatni_postep;
    byte n;
    rany = 0;
    if (!zacznij(pomysl, cel) && !ciag)
        kroki_drogi = 100;
    else if (ciag)
        for (n = 0; n < daleko && ciag[n] && !wynik; ++n)
            krok(strchr(litery, ciag[n]) - litery);
    else
        idz(daleko);
    if (wynik == ETAP_PRZESZLA)
        return 0;
    if (wynik == DORVA_GINIE)
        return SMIERC;
    return kroki_drogi + (zwloka < 40 ? rany * 8 : zwloka < 90 ? rany * 2 : rany >> 2);
}

/* The idea that costs least; one that doesn't hurt is good enough, if things get done at all. Steps of a sequence may
   be put off, but she doesn't leave their place. */
static byte wybierz(unsigned cel, const char* ciag, byte daleko) {
    const byte pomysly = ciag ? CZEKANIA : POMYSLY;
    byte i, najlepszy = 0;
    unsigned strata, najmniej = DALEKO;
    wymysl();
    if (!ciag)
        znajdz_droge(cel);
    kroki_stad = kroki_drogi;
    memcpy(droga_stad, droga, kroki_stad);
    zapisz(&teraz);
    for (i = 0; i < pomysly; ++i) {
        strata = sprawdz(i, cel, ciag, daleko);
        if (strata < najmniej) {
            najmniej = strata;
            najlepszy = i;
        }
        przywroc(&teraz);
        if (!rany && najmniej < SMIERC && (!i || dlugosc - ostatni_postep < 40))
            break;
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

/* Whether the try still makes sense: it gets something done every now and then. */
static byte jest_sens(void) {
    const unsigned teraz = (brak_masek << 8) + (klucze << 6) + energia + (unsigned)plan;
    if (teraz != postep) {
        postep = teraz;
        ostatni_postep = dlugosc;
    }
    return !wynik && dlugosc < KROKOW && dlugosc - ostatni_postep < CIERPLIWOSC;
}

/* Remembers this moment; after a wound she returns to an earlier one, as far as it goes, and tries something else. */
static void rozwaz(void) {
    if (rany && ile_dawniej && powroty > (wynik ? 0 : POWROTY / 2)) {
        --powroty;
        przywroc(dawniej);
        ostatni_postep = dlugosc;
        los_stan += powroty * 257u;
        ile_dawniej = 1;
        return;
    }
    if (rany)
        ile_dawniej = 0;
    else if (ile_dawniej && dlugosc < dawniej[ile_dawniej - 1].dlugosc + CO_ILE)
        return;
    if (ile_dawniej == DAWNIEJ)
        memmove(dawniej, dawniej + 1, --ile_dawniej * sizeof(struct chwila));
    zapisz(&dawniej[ile_dawniej++]);
}

/* Goes to a cell or takes what it can get. */
static void dojdz(unsigned cel, byte daleko) {
    unsigned skad_idzie;
    byte jest, pomysl;
    ile_dawniej = 0;
    for (rany = 0;; rany = 0) {
        if (!smialek && wynik != ETAP_PRZESZLA)
            rozwaz();
        if (tu() == cel || !jest_sens())
            return;
        if (smialek || !cos_sie_rusza())
            jest = znajdz_droge(cel);
        else {
            pomysl = wybierz(cel, 0, daleko);
            rany = 0;
            jest = zacznij(pomysl, cel);
        }
        if (!jest) {
            if (cel == WSZYSTKO && (*plan || !cos_sie_rusza()))
                return;
            krok(CZEKA);
            continue;
        }
        skad_idzie = tu();
        idz(smialek ? 1 : daleko / 2);
        if (cel != WSZYSTKO && !kroki_drogi && tu() != skad_idzie) /* there, or leapt from there */
            return;
    }
}

static void wykonaj(const char* ciag, byte daleko) {
    for (; *ciag && jest_sens(); ++ciag) {
        if (!smialek && strchr(litery, *ciag) < litery + CZEKA && cos_sie_rusza())
            zacznij(wybierz(0, ciag, daleko), 0);
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
    dlugosc = ostatni_postep = 0;
    powroty = POWROTY;
    los_stan = 1 + proba * 7919u;
    spust = 1;
    nowy_etap();
    if (!start())
        return 0;
    for (n = 0; n < proba * 5; ++n)
        krok(CZEKA);
    plan = tekst;
    while (jest_sens()) {
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
        fprintf(stderr, "try %u: result %u after %u steps at %u,%u, masks %u, energy %u, plan %s\n", i, wynik, dlugosc,
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
    printf("%u %s %u\n", stracone, stracone < 3 ? "tak" : "nie", energia);
    return 0;
}

static byte graj(const char* p) {
    unsigned n;
    nowa_gra();
    nowy_etap();
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
