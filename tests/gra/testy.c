/* Tests of the rules. `testy GROUP` runs one group and ends with the number of failed checks. */
#include "reguly.h"
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static unsigned bledy;

#define CHECK(warunek)                                                                                                 \
    do {                                                                                                               \
        if (!(warunek)) {                                                                                              \
            printf("line %d: %s\n", __LINE__, #warunek);                                                               \
            ++bledy;                                                                                                   \
        }                                                                                                              \
    } while (0)

/* Letters of the small boards and their tiles. */
static const char litery[] = " .^,n|=%zE+wMKBSeO*Q!gLRdu$fTtmpPb o@iDs";
static const byte kody[] = {NIC,       ZIEMIA,           PULAPKA,       SLAD,     NACZYNIE,     MUR_V,    MUR_H,
                            KRUCHY,    ZAROSLA,          WYJSCIE,       DRZWI,    WODA,         MASKA,    KLUCZ,
                            BOMBA,     SKRZYNIA,         ELIKSIR,       BLOK,     PROMIENNIK,   ODPALONA, DUCH,
                            STWOREK,   STWOR + LEWO,     STWOR + PRAWO, STRAZNIK, STRAZNIK + 1, MONETA,   OGIEN,
                            TROPICIEL, TROPICIEL + GORA, MIOTNIK,       MIOTACZ,  PLUJKA,       BAGNO,    NIC,
                            MAGICZNY,  MASZYNA,          POCHODNIA,     DORVA,    PO_OCZY + 1};

/* Lays rows of letters into a board of walls, from cell (1, 1) on, and starts the stage. */
static byte uloz(const char* const* wiersze, byte ile, byte cel) {
    byte w, k;
    memset(plansza, MUR_V, POLA);
    for (w = 0; w < ile; ++w)
        for (k = 0; wiersze[w][k]; ++k)
            plansza[(w + 1) * KOLUMNY + k + 1] = kody[strchr(litery, wiersze[w][k]) - litery];
    cel_masek = cel;
    drazek = 15;
    spust = 1;
    nowa_gra();
    nowy_etap();
    return start();
}
static const char* w1[3];
static byte uloz1(byte cel, const char* a) {
    w1[0] = a;
    return uloz(w1, 1, cel);
}
static byte uloz3(byte cel, const char* a, const char* b, const char* c) {
    w1[0] = a;
    w1[1] = b;
    w1[2] = c;
    return uloz(w1, 3, cel);
}

static byte pole(byte w, byte k) {
    return plansza[w * KOLUMNY + k];
}
static byte tu(byte w, byte k) {
    return dorva_y == w && dorva_x == k;
}

static void takty(unsigned n) {
    while (n--)
        takt();
}

/* L R U D: a tap, so one step; B: lays a bomb; -: one step's time without a move. */
static void idz(const char* ruchy) {
    for (; *ruchy; ++ruchy) {
        drazek = 15;
        switch (*ruchy) {
        case 'L':
            drazek = 15 - KIJ_LEWO;
            break;
        case 'R':
            drazek = 15 - KIJ_PRAWO;
            break;
        case 'U':
            drazek = 15 - KIJ_GORA;
            break;
        case 'D':
            drazek = 15 - KIJ_DOL;
            break;
        case 'B':
            spust = 0;
            break;
        }
        takt();
        drazek = 15;
        spust = 1;
        takty(5);
    }
    drazek = 15;
}

static unsigned punktow(void) { /* without the two lowest digits */
    return (punkty[1] >> 4) * 10 + (punkty[1] & 15);
}

static void chodzenie(void) {
    uloz1(1, "D   ");
    idz("RRRR");
    CHECK(tu(1, 4));
    CHECK(pole(1, 1) == NIC && pole(1, 2) == NIC);
    CHECK((pole(1, 4) & ~INV) == IDZIE_PRAWO);
    idz("---");
    CHECK((pole(1, 4) & ~INV) == DORVA);
    idz("LU");
    CHECK(tu(1, 3));
    CHECK((pole(1, 3) & ~INV) == IDZIE_GORA);

    uloz1(1, "D..,"); /* digging */
    idz("RRRL");
    CHECK(tu(1, 3));
    CHECK(pole(1, 1) == NIC && pole(1, 2) == SLAD && pole(1, 4) == SLAD);

    uloz1(1, "D        "); /* a press is a step; held, it makes the next one after ten ticks and then one every six */
    drazek = 15 - KIJ_PRAWO;
    takty(10);
    CHECK(tu(1, 2));
    takty(1);
    CHECK(tu(1, 3));
    takty(12);
    CHECK(tu(1, 5));
    drazek = 15;
    takty(2);
    drazek = 15 - KIJ_PRAWO;
    takty(10); /* a second press waits for no more than the pace of steps */
    CHECK(tu(1, 6));

    uloz3(1, "D    ", "     ", "     "); /* the newest direction wins, and a tap between two steps counts */
    drazek = 15 - KIJ_PRAWO;
    takty(6);
    drazek = 15 - KIJ_PRAWO - KIJ_DOL;
    takty(6);
    CHECK(tu(2, 2));
    drazek = 15 - KIJ_PRAWO;
    takty(6);
    drazek = 15 - KIJ_PRAWO - KIJ_DOL;
    takty(2);
    drazek = 15 - KIJ_PRAWO;
    takty(12);
    CHECK(tu(3, 3));

    uloz1(1, "D."); /* INV partners and codes that are no tiles */
    plansza[43] = ZIEMIA + INV;
    plansza[44] = 70;
    plansza[45] = NIC;
    idz("RRRR");
    CHECK(tu(1, 3));
    CHECK(pole(1, 4) == 70);
    idz("L");
    CHECK(pole(1, 3) == SLAD + INV);

    CHECK(uloz1(1, "  ") == 0); /* nobody there */
    CHECK(uloz1(1, " DD ") == 1);
    CHECK(tu(1, 2));
    idz("RRR");
    CHECK(tu(1, 2)); /* the second is a statue */
    uloz1(1, "Ds");
    idz("R");
    CHECK(tu(1, 1));

    memset(plansza, MUR_V, POLA); /* the edge: nobody enters, and a heroine on it counts for nothing */
    plansza[1] = NIC;
    plansza[2] = DORVA;
    plansza[41] = DORVA + INV;
    cel_masek = 1;
    CHECK(start() == 1);
    CHECK(tu(1, 1));
    idz("UL");
    CHECK(tu(1, 1));
}

static void branie(void) {
    byte i;
    uloz1(2, "DMMMKB$eE");
    CHECK(brak_masek == 2);
    idz("R");
    CHECK(brak_masek == 1 && !otwarte && punktow() == 1);
    idz("R");
    CHECK(brak_masek == 0 && otwarte);
    idz("R");
    CHECK(brak_masek == 0);
    idz("RR");
    CHECK(klucze == 1 && bomby == 1);
    energia = 75;
    idz("RR");
    CHECK(energia == 99);
    CHECK(wynik == 0);
    idz("R");
    CHECK(wynik == ETAP_PRZESZLA);

    uloz1(1, "DEM"); /* closed before the goal, opened behind the back */
    idz("R");
    CHECK(wynik == 0 && tu(1, 1) && komunikat != 0);
    CHECK(premia == 99); /* the bonus for time: one less every 75 ticks, and never less than none */
    takty(75 * 2);
    CHECK(premia == 97);
    takty(75u * 100);
    CHECK(premia == 0 && wynik == 0);
    uloz1(0, "DE"); /* no goal: open at once */
    idz("R");
    CHECK(wynik == ETAP_PRZESZLA);

    uloz1(1, "D+K+ "); /* a key opens one door */
    idz("R");
    CHECK(tu(1, 1));
    uloz1(1, "DK++ ");
    idz("RRRR");
    CHECK(tu(1, 3) && klucze == 0 && pole(1, 3) != DRZWI);

    uloz1(1, "Dnnnn "); /* jars: coins, strength, coins, a bomb */
    energia = 50;
    idz("RR");
    CHECK(energia == 65 && bomby == 0);
    idz("RRR");
    CHECK(bomby == 1 && tu(1, 6));

    uloz1(1, "D$$$$$$$$$$$$$$$$$$$$"); /* twenty coins make a life */
    idz("RRRRRRRRRRRRRRRRRRR");
    CHECK(zycia == 3);
    idz("R");
    CHECK(zycia == 4 && punktow() == 4);
    cofnij_probe(); /* a lost try takes its points and coins along; the life comes once a stage, not once a try */
    CHECK(punktow() == 0 && monety == 0);
    w1[0] = "D$$$$$$$$$$$$$$$$$$$$";
    for (i = 0; w1[0][i]; ++i)
        plansza[KOLUMNY + 1 + i] = i ? 34 : 63;
    start();
    idz("RRRRRRRRRRRRRRRRRRRR");
    CHECK(zycia == 4 && punktow() == 4);
    uloz1(1, "D$ ");
    monety = 19;
    nowy_etap();
    idz("R");
    CHECK(zycia == 4);
    cofnij_probe();
    CHECK(monety == 19);

    uloz1(1, "Dz  "); /* a thicket holds back for a while; not with a torch */
    idz("RR");
    CHECK(tu(1, 1));
    idz("R");
    CHECK(tu(1, 2) && pole(1, 1) == NIC);
    uloz1(1, "Dizzz "); /* it burns before she may enter, and so do those beside it */
    drazek = 15 - KIJ_PRAWO;
    takty(11 + 12);
    CHECK(pole(1, 3) == OGIEN && tu(1, 2));
    takty(9 * 20);
    CHECK(tu(1, 6) && energia == 99);
    uloz3(1, "Dwfzwz", "", ""); /* a painted fire burns for ever and takes the thicket beside it */
    takty(4000);
    CHECK(pole(1, 3) == OGIEN && pole(1, 4) == NIC && pole(1, 6) == ZAROSLA);
}

static void pchanie(void) {
    uloz1(1, "DS ");
    idz("RR");
    CHECK(tu(1, 2) && pole(1, 3) == SKRZYNIA);
    uloz1(1, "DSS ");
    idz("R");
    CHECK(tu(1, 1));
    uloz1(1, "DS,S");
    idz("RL");
    CHECK(pole(1, 3) == SKRZYNIA);
    uloz3(1, "D", "S", "w"); /* water takes the crate and turns to ground */
    idz("DDD");
    CHECK(tu(3, 1) && energia == 99);
    uloz3(1, "b", "S", "D");
    idz("UU");
    CHECK(tu(1, 1) && energia == 99);
    uloz1(1, "DS^ "); /* a trap is shut by it */
    idz("RRR");
    CHECK(tu(1, 3) && energia == 99 && pole(1, 4) == SKRZYNIA);
    uloz1(1, "DSf "); /* a fire is put out */
    idz("RRR");
    CHECK(tu(1, 3) && energia == 99 && pole(1, 4) == SKRZYNIA);
    uloz1(1, "DS w "); /* all the same in INV forms */
    plansza[42] = SKRZYNIA + INV;
    plansza[43] = NIC + INV;
    plansza[44] = WODA + INV;
    idz("RRRR");
    CHECK(tu(1, 5) && energia == 99);
    uloz1(1, "DS,."); /* what lay beneath comes back */
    idz("RR");
    CHECK(tu(1, 2) && pole(1, 3) == SKRZYNIA);
    memset(plansza, NIC, POLA); /* not over the edge of the board */
    plansza[42] = DORVA;
    plansza[41] = SKRZYNIA;
    start();
    idz("LL");
    CHECK(tu(1, 2) && pole(1, 0) == NIC);
}

static void bomby_i_mury(void) {
    uloz1(1, "   DB%  ");
    idz("R");
    CHECK(bomby == 1);
    idz("BB");
    CHECK(bomby == 0);
    takty(200);
    CHECK(pole(1, 6) == KRUCHY && energia == 99); /* it waits while she stands on it */
    idz("LLLL");
    CHECK((pole(1, 5) & ~INV) == ODPALONA);
    takty(130);
    CHECK(pole(1, 5) == NIC && pole(1, 6) == NIC && pole(1, 9) == MUR_V && energia == 99);

    uloz1(1, "D "); /* without a bomb it says so; a trigger held since before the stage says nothing */
    spust = 0;
    takty(9);
    CHECK(komunikat == 0);
    idz("-B");
    CHECK(komunikat != 0);

    uloz1(1, "DB  "); /* too near */
    idz("RBR");
    takty(110);
    CHECK(energia == 99 - 35);

    uloz3(1, "E.M", "+QK", "oeD"); /* nothing that a stage needs is lost */
    takty(200);
    CHECK((pole(1, 1) & ~INV) == WYJSCIE && pole(1, 2) == NIC && pole(1, 3) == MASKA && pole(2, 1) == DRZWI &&
          pole(2, 3) == KLUCZ && pole(3, 1) == MAGICZNY && pole(3, 2) == ELIKSIR);

    uloz3(1, " QB$", "O|*L", "D   "); /* a chain; blocks crack; coins and walls stay; creatures score */
    takty(260);
    CHECK(pole(1, 2) == NIC && pole(1, 3) == NIC && pole(1, 4) == MONETA);
    CHECK(pole(2, 1) == KRUCHY && pole(2, 2) == MUR_V && pole(2, 3) == NIC && pole(0, 2) == MUR_V);
    CHECK(punktow() >= 1);
}

static void wedrowcy(void) {
    byte i, lewy = 0, prawy = 0;
    uloz3(1, "L      ", "|||||||", "D");
    for (i = 0; i < 200; ++i) {
        takty(9);
        if (pole(1, 1) == STWOR + LEWO)
            lewy = 1;
        if (pole(1, 7) == STWOR + PRAWO)
            prawy = 1;
    }
    CHECK(lewy && prawy);

    uloz3(1, "d|D", ",", " "); /* a guard goes down and up, and what it treads on stays */
    takty(9);
    CHECK(pole(2, 1) == STRAZNIK && pole(1, 1) == NIC);
    takty(9);
    CHECK(pole(3, 1) == STRAZNIK && pole(2, 1) == SLAD);
    takty(18);
    CHECK(pole(2, 1) == STRAZNIK + 1);

    uloz1(1, "R    D"); /* contact wounds, once a second at most */
    takty(9 * 5);
    CHECK(energia == 84);
    takty(9);
    CHECK(energia == 84);
    takty(60);
    CHECK(energia <= 69);
    uloz1(1, "DL");
    idz("R");
    CHECK(energia == 84 && tu(1, 1));
    takty(4000);
    CHECK(energia == 0 && wynik == DORVA_GINIE);

    uloz1(1, "g..D"); /* it wakes in her row only */
    takty(9);
    CHECK(pole(1, 1) == STWOR + PRAWO);
    uloz3(1, "g   ", "    ", "   D");
    takty(90);
    CHECK(pole(1, 1) == STWOREK);

    uloz3(1, "!...", "....", "D|||"); /* a ghost passes earth and leaves it whole */
    for (prawy = 0, i = 0; i < 100; ++i) {
        takty(9);
        prawy |= pole(1, 3) == DUCH || pole(2, 2) == DUCH;
    }
    CHECK(prawy);
    for (lewy = 0, i = 0; i < 4; ++i)
        lewy += (pole(1, 1 + i) == ZIEMIA) + (pole(2, 1 + i) == ZIEMIA);
    CHECK(lewy == 7 - (pole(1, 1) != DUCH));

    uloz1(1, "Di!|");
    idz("RRRR");
    CHECK(pochodnia && energia == 99); /* a torch keeps it away */
    uloz3(1, "R   s", "|||||", "D");   /* a statue is no heroine */
    takty(9 * 20);
    CHECK(energia == 99);

    uloz3(1, "D      ", "T| || |", "       "); /* a tracker takes her way, round the corner */
    idz("RRRDDRRR");
    takty(9 * 16);
    CHECK(energia < 99);

    uloz3(1, "D        |    ", "|||||||||||||", ""); /* a trail is 128 steps long, however old the one before is */
    for (i = 0; i < 8; ++i)
        idz("R");
    for (i = 0; i < 127 / 2; ++i)
        idz("LR");
    CHECK(zapach[44] == 0 && zapach[48] != 0);
}

static void strzelanie(void) {
    byte i, byl = 0, mrugal = 0;
    uloz3(1, " ,     ", " *  D  ", "       ");
    for (i = 0; i < 40; ++i) {
        takty(9);
        mrugal |= pole(2, 2) == PROMIENNIK + INV && byl == 0;
        byl |= (pole(2, 3) == PROMIEN + PRAWO) + 2 * (pole(1, 2) == PROMIEN + GORA) +
               4 * (pole(2, 1) == PROMIEN + LEWO) + 8 * (pole(3, 2) == PROMIEN + DOL);
    }
    CHECK(byl == 15 && energia < 99 && mrugal);
    maszyna_stoi = 1;
    takty(90);
    CHECK(pole(1, 2) == SLAD && pole(2, 3) == NIC);

    uloz3(1, "       ", " *  D  ", "@      "); /* the machine stops emitters */
    maszyna_stoi = 1;
    takty(400);
    CHECK(energia == 99);
    uloz1(1, "D@");
    idz("R");
    CHECK(maszyna_stoi == 1 && tu(1, 1));
    idz("R");
    CHECK(maszyna_stoi == 0);

    uloz3(1, "m     D", "|||||||", "|||||||"); /* throwers see rows and columns, through nothing in between */
    takty(9);
    CHECK(pole(1, 1) == MIOTNIK + INV && pole(1, 2) == NIC); /* it takes aim first */
    takty(9 * 6);
    CHECK(energia == 99 - 12);
    uloz3(1, "m|", " |", "D|");
    takty(9 * 5);
    CHECK(energia == 99 - 12 && pole(1, 1) == MIOTNIK);
    uloz3(1, "mD ", "|  ", "|  "); /* she can step aside */
    takty(9);
    idz("DR");
    takty(60);
    CHECK(energia == 99 && pole(1, 1) == MIOTNIK);
    uloz3(1, "m     |", "||||||D", "|||||||");
    takty(300);
    CHECK(energia == 99 && pole(1, 2) == NIC);
    uloz1(1, "P  S D");
    takty(400);
    CHECK(energia == 99 && pole(1, 4) == SKRZYNIA);
    uloz1(1, "D   p   ");
    takty(9 * 20);
    CHECK(energia < 99 && pole(1, 8) == NIC);
}

static void zywioly(void) {
    uloz1(1, "D^  ");
    idz("RR");
    CHECK(energia == 79 && pole(1, 2) == NIC);
    uloz1(1, "Dwwwwwwwwwwwwwwwwwwwwwwwwww"); /* 4 a cell, so it carries 24 of them; and 4 for half a second in one */
    idz("RR");
    CHECK(energia == 91 && pole(1, 2) == WODA);
    idz("RRRRRRRRRRRRRRRRRRRRRR");
    CHECK(energia == 3 && tu(1, 25));
    idz("R");
    CHECK(wynik == DORVA_GINIE);
    uloz1(1, "Dw ");
    idz("R");
    takty(25);
    CHECK(energia == 91);
    uloz1(1, "Dff "); /* fire wounds, and no wound comes while she flickers from the last one */
    idz("RR");
    CHECK(energia == 79 && pole(1, 2) == OGIEN);
    takty(38);
    CHECK(energia == 79);
    takty(2);
    CHECK(energia == 59);

    uloz1(1, "Dbbb ");
    idz("R");
    CHECK((pole(1, 2) & ~INV) == PO_OCZY + 2);
    idz("R");
    CHECK((pole(1, 3) & ~INV) == PO_OCZY + 1);
    idz("RR");
    CHECK(tu(1, 5) && (pole(1, 5) & ~INV) == PO_BAGNIE && energia == 99 && pole(1, 4) == BAGNO);
    uloz1(1, "Dbbbbb");
    idz("RRRR");
    CHECK(wynik == DORVA_GINIE);
    uloz1(1, "Dw b"); /* the same in INV forms */
    plansza[42] |= INV;
    plansza[44] |= INV;
    idz("R");
    takty(55);
    CHECK(energia == 99 - 3 * 4);
    idz("RR");
    CHECK((pole(1, 4) & ~INV) == PO_OCZY + 2);
    uloz1(1, "Db ");
    idz("R");
    takty(120);
    CHECK((pole(1, 2) & ~INV) == PO_OCZY && wynik == 0);
    takty(60);
    CHECK(wynik == DORVA_GINIE);

    uloz3(1, "Do ||||||", "||||||o|o", "o  |   ||"); /* pairs in the order of the board; the way back */
    idz("R");
    CHECK(tu(2, 7) && pole(1, 2) == MAGICZNY);
    uloz3(1, " oD|||o  ", "|||||||||", "o| o     ");
    idz("L");
    CHECK(tu(1, 7));
    idz("RL");
    CHECK(tu(1, 2));
    idz("L");
    CHECK(tu(1, 1) && pole(1, 2) == MAGICZNY);
    uloz1(1, "Do "); /* one alone is just passed */
    idz("RR");
    CHECK(tu(1, 3) && pole(1, 2) == MAGICZNY);
}

static unsigned long ziarno_testu = 1;
static byte losowy(void) {
    ziarno_testu = ziarno_testu * 1103515245UL + 12345;
    return (byte)(ziarno_testu >> 16);
}

/* Any 800 bytes: thousands of ticks with a shaken stick. Nothing outside the arrays and nothing on the edge
   is ever written, the heroine stays inside, and the figures in their ranges. */
static void losowe(void) {
    byte* const przed = plansza - 256;
    byte* const za = plansza + POLA;
    static byte brzeg[POLA];
    byte n;
    unsigned i;
    for (n = 0; n < 10; ++n) {
        for (i = 0; i < POLA; ++i) {
            plansza[i] = losowy();
            if (n & 1)
                plansza[i] &= 0xBF; /* tiles only */
            if (n & 2)
                plansza[i] &= losowy(); /* more room */
        }
        plansza[(1 + losowy() % 18) * KOLUMNY + 1 + losowy() % 38] = DORVA;
        memcpy(brzeg, plansza, POLA);
        memset(przed, 0xC3, 256);
        memset(za, 0xC3, 224);
        cel_masek = 1 + losowy() % 9;
        nowa_gra();
        CHECK(start());
        for (i = 0; i < 3000; ++i) {
            if (i % 7 == 0)
                drazek = losowy() & 15;
            spust = losowy() & 1;
            takt();
            if (dorva_x < 1 || dorva_x > 38 || dorva_y < 1 || dorva_y > 18 || energia > 99 || bomby > 99)
                break;
            if (energia < 30)
                energia = 99;
            wynik = 0;
        }
        CHECK(i == 3000);
        for (i = 0; i < 256 && przed[i] == 0xC3; ++i) {
        }
        CHECK(i == 256);
        for (i = 0; i < 224 && za[i] == 0xC3; ++i) {
        }
        CHECK(i == 224);
        for (i = POLA; i < 1024 && !pod[i] && !stan[i] && !zapach[i]; ++i) {
        }
        CHECK(i == 1024);
        for (i = 0; i < POLA; ++i)
            if ((i < 40 || i >= 760 || i % 40 == 0 || i % 40 == 39) && plansza[i] != brzeg[i])
                break;
        CHECK(i == POLA);
    }
}

/* A board and the same board in INV forms go the same way. */
static void inv(void) {
    static byte obraz[POLA], po[POLA];
    byte n, postac, energia_std = 0, maski_std = 0;
    unsigned i, ruchy, ziarno_ruchow;
    for (n = 0; n < 4; ++n) {
        for (i = 0; i < POLA; ++i)
            obraz[i] = losowy() & losowy() & 63;
        obraz[(1 + losowy() % 18) * KOLUMNY + 1 + losowy() % 38] = DORVA;
        ziarno_ruchow = losowy();
        for (postac = 0; postac < 2; ++postac) {
            for (i = 0; i < POLA; ++i)
                plansza[i] = postac ? obraz[i] | INV : obraz[i];
            cel_masek = 3;
            drazek = 15;
            ruchy = ziarno_ruchow;
            nowa_gra();
            CHECK(start());
            for (i = 0; i < 600 && !wynik; ++i) {
                if (i % 16 == 0)
                    drazek = (byte)((ruchy = ruchy * 25173u + 13849u) >> 8) & 15;
                spust = i % 50 != 0;
                takt();
            }
            if (!postac) {
                memcpy(po, plansza, POLA);
                energia_std = energia;
                maski_std = brak_masek;
            }
        }
        CHECK(energia == energia_std && brak_masek == maski_std);
        for (i = 0; i < POLA && !((plansza[i] ^ po[i]) & ~INV); ++i) {
        }
        CHECK(i == POLA);
    }
}

static const struct {
    const char* nazwa;
    void (*test)(void);
} grupy[] = {{"chodzenie", chodzenie}, {"branie", branie},     {"pchanie", pchanie},
             {"bomby", bomby_i_mury},  {"wedrowcy", wedrowcy}, {"strzelanie", strzelanie},
             {"zywioly", zywioly},     {"losowe", losowe},     {"inv", inv}};

int main(int argc, char* argv[]) {
    byte i;
    for (i = 0; i < sizeof(grupy) / sizeof(*grupy); ++i)
        if (argc < 2 || !strcmp(argv[1], grupy[i].nazwa)) {
            grupy[i].test();
            if (argc < 2)
                printf("%s: %u\n", grupy[i].nazwa, bledy);
        }
    return bledy > 255 ? 255 : (int)bledy;
}
