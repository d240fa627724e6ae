/* Tests of the rules. `testy GROUP` runs one group and ends with the number of failed checks.

   Most of a group is a table. A row lays a board, makes moves and looks at the board and at figures.

   Board: rows of letters with '/' between them, from cell (1, 1) on, walls round about; `~` makes the next tile INV.
   `2:` in front is the goal, else 1. A row without a board goes on where the last one ended.

   Moves: L R U D a tap of the stick, so one step; B a tap of the trigger; - a step's time; a number: ticks. l r u d b
   hold the stick or the trigger on; `.` lets all go. `=e50` sets a figure. `:` a new stage begins; `!` the try is lost,
   `?` begun anew at the player's wish, and the board laid anew.

   Board after: what must stand where, `#` anything; D is the heroine in any form.

   Figures: letters of `liczby` with their values, h her column; f her form, x hundreds of points, j whether she is
   there. */
#include "reguly.h"
#include <ctype.h>
#include <stdio.h>
#include <string.h>

struct wiersz {
    const char *plansza, *ruchy, *po, *liczby;
};

static unsigned bledy;

#define CHECK(warunek)                                                                                                 \
    do {                                                                                                               \
        if (!(warunek)) {                                                                                              \
            printf("line %d: %s\n", __LINE__, #warunek);                                                               \
            ++bledy;                                                                                                   \
        }                                                                                                              \
    } while (0)

static const char litery[] = " .^,n|=%zE+wMKBSeO*Q!gLRdu$fTtmpPbo@iDs<>AVxX?";
static const byte kody[] = {
    NIC,           ZIEMIA,           PULAPKA,       SLAD,        NACZYNIE,       MUR_V,           MUR_H,
    KRUCHY,        ZAROSLA,          WYJSCIE,       DRZWI,       WODA,           MASKA,           KLUCZ,
    BOMBA,         SKRZYNIA,         ELIKSIR,       BLOK,        PROMIENNIK,     ODPALONA,        DUCH,
    STWOREK,       STWOR + LEWO,     STWOR + PRAWO, STRAZNIK,    STRAZNIK + 1,   MONETA,          OGIEN,
    TROPICIEL,     TROPICIEL + GORA, MIOTNIK,       MIOTACZ,     PLUJKA,         BAGNO,           MAGICZNY,
    MASZYNA,       POCHODNIA,        DORVA,         PO_OCZY + 1, PROMIEN + LEWO, PROMIEN + PRAWO, PROMIEN + GORA,
    PROMIEN + DOL, WYBUCH,           WYBUCH + 3,    70};

static const char liczby[] = "ewzkbmoctapgh";
static byte* const gdzie[] = {&energia, &wynik,     &zycia,        &klucze, &bomby,     &brak_masek, &otwarte,
                              &monety,  &pochodnia, &maszyna_stoi, &premia, &komunikat, &dorva_x};
static byte jest; /* there is a heroine */

static byte tu(byte w, byte k) {
    return dorva_y == w && dorva_x == k;
}

static byte pole(byte w, byte k) {
    return plansza[w * KOLUMNY + k];
}

static unsigned liczba(const char** p) {
    unsigned n = 0;
    for (; isdigit(**p); ++*p)
        n = n * 10 + (**p - '0');
    return n;
}

/* The code of the next letter, with its INV. */
static byte kod(const char** p) {
    const byte inv = **p == '~' ? INV : 0;
    *p += inv ? 2 : 1;
    return kody[strchr(litery, (*p)[-1]) - litery] | inv;
}

static void uloz(const char* p) {
    unsigned i = KOLUMNY + 1, od = i;
    memset(plansza, MUR_V, POLA);
    cel_masek = 1;
    if (p[0] && p[1] == ':') {
        cel_masek = p[0] - '0';
        p += 2;
    }
    while (*p)
        if (*p == '/') {
            i = od += KOLUMNY;
            ++p;
        } else
            plansza[i++] = kod(&p);
    drazek = 15;
    spust = 1;
    jest = start();
}

static void takty(unsigned n) {
    while (n--)
        takt();
}

static void rusz(const char* p, const char* uklad) {
    static const char kierunki[] = "udlr"; /* the bits of the stick, from the lowest on */
    byte i;
    while (*p) {
        const char c = *p++;
        const char* kierunek = strchr(kierunki, tolower(c));
        if (isdigit(c)) {
            --p;
            takty(liczba(&p));
        } else if (c == '=') {
            i = strchr(liczby, *p++) - liczby;
            *gdzie[i] = liczba(&p);
        } else if (c == ':')
            nowy_etap();
        else if (c == '!' || c == '?') {
            c == '!' ? cofnij_probe() : powtorz_probe();
            uloz(uklad);
        } else if (c != ' ') {
            if (isupper(c) || c == '.')
                drazek = 15;
            if (kierunek)
                drazek &= ~(1 << (kierunek - kierunki));
            spust = tolower(c) == 'b' ? 0 : c == '.' ? 1 : spust;
            if (isupper(c) || c == '-') {
                takt();
                drazek = 15;
                spust = 1;
                takty(KROK - 1);
            }
        }
    }
}

static byte zgadza_sie(const char* po, const char* co) {
    unsigned i = KOLUMNY + 1, od = i;
    byte n, ma;
    while (po && *po)
        if (*po == '/') {
            i = od += KOLUMNY;
            ++po;
        } else if (*po == '#') {
            ++i;
            ++po;
        } else {
            n = kod(&po);
            if (plansza[i] != n && !(n == DORVA && tu(i / KOLUMNY, i % KOLUMNY)))
                return 0;
            ++i;
        }
    while (co && *co) {
        const char c = *co++;
        n = liczba(&co);
        ma = c == 'f'   ? pole(dorva_y, dorva_x) & ~INV
             : c == 'j' ? jest
             : c == 'x' ? (punkty[1] >> 4) * 10 + (punkty[1] & 15)
                        : *gdzie[strchr(liczby, c) - liczby];
        if (ma != n)
            return 0;
        while (*co == ' ')
            ++co;
    }
    return 1;
}

/* What is there instead, in the letters of the tables. */
static void pokaz(void) {
    byte w, k, i;
    for (w = 1; w < 4; ++w) {
        for (k = 1; k < 30; ++k) {
            const char* c = memchr(kody, pole(w, k) & ~INV, sizeof(kody));
            printf("%s%c", pole(w, k) & INV ? "~" : "", tu(w, k) ? 'D' : c ? litery[c - (const char*)kody] : '#');
        }
        printf("\n");
    }
    for (i = 0; liczby[i]; ++i)
        printf("%c%u ", liczby[i], *gdzie[i]);
    printf("f%u x%x\n", pole(dorva_y, dorva_x) & ~INV, punkty[1]);
}

static void sprawdz(const struct wiersz* w, byte ile) {
    byte i;
    const char* uklad = "";
    for (i = 0; i < ile; ++i, ++w) {
        if (w->plansza) {
            uklad = w->plansza;
            nowa_gra();
            nowy_etap();
            uloz(uklad);
        }
        rusz(w->ruchy, uklad);
        if (!zgadza_sie(w->po, w->liczby)) {
            printf("row %u of %s, after %s:\n", i, uklad, w->ruchy);
            pokaz();
            ++bledy;
        }
    }
}

static const struct wiersz chodzenie[] = {
    {"D   ", "RRRR", "   D", "f60"},
    {0, "---", "   D", "f63"},
    {0, "LU", "  D ", "f62"},
    {"D..,", "RRRL", " ,D,"},    /* digging */
    {"D        ", "r 10", " D"}, /* a press is a step; held, it makes the next one after */
    {0, "1", "  D"},             /* ten ticks and then one every six */
    {0, "12", "    D"},
    {0, ". 2 r 10", "     D"},                /* a second press waits for no more than the pace of steps */
    {"D    /     /     ", "r 6 d 6", " /#D"}, /* the newest direction wins */
    {0, ".r 2 d 2 .r 6", "//##D"},            /* a tap between two steps counts */
    {"D     ", "r 18 . 5 r 7", "    D"},      /* the same direction anew: held, it waits as at first */
    {0, "4", "     D"},
    {"D   ", "rd 10", " D"}, /* where the newest is barred she goes on in another one */
    {0, "7", "   D"},
    {"D   /|| ", "r 3 d 9", "  D"},
    {0, "1", "/##D"},
    {"D    /|+ESz", "r 3 d 18", "    D", "g2"}, /* a door, an exit, a crate may bar her; at a thicket she tugs */
    {0, "15", "    D"},
    {0, "1", "/####D"},
    {"D/z", "d 2 r 10", "D"},
    {0, "1", "/D"},
    {"D.~.? ", "RRRR", "##D? "}, /* INV partners and codes that are no tiles */
    {0, "L", "#D~,?"},
    {"  ", "", 0, "j0"},
    {" DD ", "RRR", " DD ", "j1 h2"}, /* the second is a statue */
    {"Ds", "R", "Ds"},
};

static const struct wiersz branie[] = {
    {"2:DMMMKB$eE", "", 0, "m2 o0"},
    {0, "R", 0, "m1 o0 x1"},
    {0, "R", 0, "m0 o1"},
    {0, "R", 0, "m0"},
    {0, "RR =e75 RR", 0, "k1 b1 e99 w0"},
    {0, "R", 0, "w1"},
    {"DEM", "R", "DE", "w0 g2 p99"}, /* closed before the goal */
    {0, "150", 0, "p97"},            /* the bonus for time: one less every 75 ticks */
    {0, "7500", 0, "p0 w0"},
    {"0:DE", "R", 0, "w1"},       /* no goal: open at once */
    {"D+K+ ", "R", "D+K+", "g1"}, /* a key opens one door */
    {"DK++ ", "RRRR", "  D+", "k0"},
    {"Dnnnn ", "=e50 RR", 0, "e65 b0"}, /* jars: coins, strength, coins, a bomb */
    {0, "RRR", "     D", "b1"},
    {"D$$$$$$$$$$$$$$$$$$$$", "RRRRRRRRRRRRRRRRRRR", 0, "z3"}, /* twenty coins make a life */
    {0, "R", 0, "z4 x4"},
    {0, "!", 0, "x0 c0 z4"},                 /* a lost try takes its points and coins along; */
    {0, "RRRRRRRRRRRRRRRRRRRR", 0, "z4 x4"}, /* the life comes once a stage, not once a try */
    {"D$ ", "=c19 : R", 0, "z4"},
    {0, "!", 0, "c19"},
    {"D$^$", "RRR", 0, "c2 e79 p99"},
    {0, "?", "D$^$", "c0 e79 p0 z3 x0"}, /* begun anew, a try costs no life, but gives no strength and no bonus */
    {0, "RRR !", "D$^$", "c0 e99 p99"},
    {"Dz  ", "RR", "Dz"}, /* a thicket holds back for a while */
    {0, "R", " D"},
    {"Dizzz ", "r 23", " Df"},    /* not with a torch: it burns before she may enter, */
    {0, "180", "     D", "e99"},  /* and so do those beside it */
    {"Dwfzwz", "4000", "Dwf wz"}, /* a painted fire burns for ever */
};

static const struct wiersz pchanie[] = {
    {"DS ", "RR", " DS"},
    {"DSS ", "R", "DSS "},
    {"DS,S", "RL", "D SS"},
    {"D/S/w", "DDD", "//D", "e99"}, /* water takes the crate and turns to ground */
    {"b/S/D", "UU", "D", "e99"},
    {"DS^ ", "RRR", "  DS", "e99"},        /* a trap is shut by it */
    {"DSf ", "RRR", "  DS", "e99"},        /* a fire is put out */
    {"D~S~ ~w ", "RRRR", "  ~  D", "e99"}, /* all the same in INV forms */
    {"DS,.", "RR", " DS."},
    {"DS, ", "RRL", " D,S"}, /* what lay beneath comes back */
};

static const struct wiersz bomby_i_mury[] = {
    {"   DB%  ", "R", 0, "b1"},
    {0, "BB", 0, "b0"},
    {0, "200", "#####%", "e99"}, /* it waits while she stands on it */
    {0, "LLLL", "D###Q"},
    {0, "130", "D###  ##|", "e99"},
    {"D ", "b 9", 0, "g0"}, /* a trigger held since before the stage says nothing */
    {0, ".-B", 0, "g4"},
    {"DB,  ", "RRBRR", "  Q D", "b0"}, /* on a track too */
    {"DQ ", "90", "Dxx", "e64"},       /* too near; the smoke stays for a while */
    {0, "27", "DXX"},
    {0, "9", "D  "},
    {"E.M/+QK/oeD", "200", "E M/+#K/oe"},        /* nothing that a stage needs is lost */
    {" QB$/O|*L/D   ", "260", "#  $/%| ", "x1"}, /* a chain; blocks crack; coins and walls stay */
};

static const struct wiersz wedrowcy[] = {
    {"L      /|||||||/D", "63", "      R"},
    {0, "63", "L"},
    {"d|D/,/ ", "9", " |D/d"}, /* a guard goes down and up */
    {0, "9", " /,/d"},         /* and what it treads on stays */
    {0, "18", "/u"},
    {"R    D", "45", 0, "e84"}, /* contact wounds, once a second at most */
    {0, "9", 0, "e84"},
    {0, "60", 0, "e69"},
    {"DL", "R", "D", "e84"},
    {0, "4000", 0, "e0 w2"},
    {"Dd", "R", "D", "e79"}, /* into their arms */
    {"DT", "R", "DT", "e79"},
    {"D!", "R", "D!", "e87"},
    {"g..D", "9", "R"}, /* it wakes in her row only */
    {"g   /    /   D", "90", "g"},
    {"!.../..../D|||", "63", " .../!.../D", "e87"}, /* a ghost passes earth and leaves it whole */
    {0, "126", " ..!/..../D", "e87"},
    {"Di!|", "RRRR", 0, "t1 e99"},                         /* a torch keeps it away */
    {"R   s/|||||/D", "180", 0, "e99"},                    /* a statue is no heroine */
    {"D      /T| || |/       ", "RRRDDRRR 144", 0, "e59"}, /* a tracker takes her way, round the corner */
};

static const struct wiersz strzelanie[] = {
    {" ,     / *  D  /       ", "108", " ,/ ~*  D"}, /* it blinks first */
    {0, "18", " A/<*> D/ V", "e99"},
    {0, "18", " A/<*>>D/ V", "e89"},
    {0, "36", " ,/ *  #/ ", "e89"},
    {"       / *  D  /@      ", "=a1 400", 0, "e99"}, /* the machine stops emitters */
    {"D@", "R", "D~@", "a1"},
    {0, "R", 0, "a0"},
    {"m     D", "9", "~m ", 0}, /* throwers see rows and columns; they take aim first */
    {0, "54", "m", "e87"},
    {"m|/ |/D|", "45", "m", "e87"},
    {"mD /|  /|  ", "9 DR 60", "m", "e99"},          /* she can step aside */
    {"m     |/||||||D/|||||||", "300", "m ", "e99"}, /* not through what is in between */
    {"P  S D", "400", "###S", "e99"},
    {"P  D", "60", 0, "e79"},
    {" pD", "180", 0, "e79"},
    {"m/ /D", "40", 0, "e87"},

    {"D   p   ", "180", "####### ", "e79"},
};

static const struct wiersz zywioly[] = {
    {"D^  ", "RR", "  D", "e79"},
    {"Dwwwwwwwwwwwwwwwwwwwwwwwwww", "RR", "#w", "e91"}, /* 4 a cell, so it carries 24 of them */
    {0, "RRRRRRRRRRRRRRRRRRRRRR", 0, "e3 h25"},
    {0, "R", 0, "w2"},
    {"Dw ", "R 25", 0, "e91"},   /* and 4 for half a second in one */
    {"Dff ", "RR", "#f", "e79"}, /* no wound comes while she flickers from the last one */
    {0, "38", 0, "e79"},
    {0, "2", 0, "e59"},
    {"Dbbb ", "R", 0, "f52"},
    {0, "R", 0, "f51"},
    {0, "RR", "###bD", "f53 e99"},
    {"Dbbbbb", "RRRR", 0, "w2"},
    {"D~w ~b", "R 55", 0, "e87"}, /* the same in INV forms */
    {0, "RR", "###D", "f52"},
    {"Db ", "R 120", 0, "f50 w0"},
    {0, "60", 0, "w2"},
    {"Do ||||||/||||||o|o/o  |   ||", "R", "#o/######D"}, /* pairs in the order of the board; the way back */
    {" oD|||o  /|||||||||/o| o     ", "L", "######D"},
    {0, "RL", " D"},
    {0, "L", "Do"},
    {"Do////////////|o ", "R", "#o////////////|D"},
    {"Do ", "RR", " oD"}, /* one alone is just passed */
};

/* INV forms do what the plain ones do, and what moves keeps its form. */
static const struct wiersz inv[] = {
    {"D~.~,~^~$~e~K~+~i~z~M~B~E", "RRRR", " ~,~, D", "e79 c1"},
    {0, "RRRRRRRR", 0, "e99 k0 t1"},
    {0, "40 RRR", 0, "m0 b1"},
    {0, "R", 0, "w1"},
    {"D~@", "RR", "D~@", "a0"},
    {"~L     /|||||||/D", "45", "    ~R"},
    {"~d|D/ / ", "9", " |D/~d"},
    {"~g..D", "9", "~R"},
    {"~m     D", "9", "m "},
    {"~!  |/   |/D|||", "63", "   /~!", "e87"},
    {"~P   D", "60", "~P", "e79"},
    {"D    ~Q~%~O", "200", "D      ~O", "e99"},
};

/* The edge: nobody enters, a heroine on it counts for nothing, no crate goes over it. */
static void brzeg(void) {
    uloz("D");
    plansza[1] = NIC;
    plansza[2] = DORVA;
    CHECK(start() == 1 && tu(1, 1));
    rusz("UL", "");
    CHECK(tu(1, 1));
    uloz("SD");
    plansza[KOLUMNY] = NIC;
    start();
    rusz("LL", "");
    CHECK(tu(1, 2) && pole(1, 0) == NIC);
}

/* Held and turned, the stick makes her as fast as on a straight way, wherever the corners are; pressed early, both ways
   are held up to the corner. A tracker takes 6.75 ticks a cell. */
static void zakrety(void) {
    static const byte bity[2] = {KIJ_PRAWO, KIJ_DOL};
    byte prosto, wczesniej, odcinek, krok, czeka;
    unsigned ile, pola, i;
    for (prosto = 1; prosto <= 5; ++prosto)
        for (wczesniej = 0; wczesniej <= 4; ++wczesniej) {
            const byte odcinki = 17 / prosto * 2;
            memset(plansza, MUR_V, POLA);
            plansza[i = KOLUMNY + 1] = DORVA;
            for (odcinek = 0; odcinek < odcinki; ++odcinek)
                for (krok = 0; krok < prosto; ++krok)
                    plansza[i += odcinek & 1 ? KOLUMNY : 1] = NIC;
            start();
            ile = pola = 0;
            for (odcinek = 0; odcinek < odcinki; ++odcinek)
                for (krok = 0; krok < prosto; ++krok, ++pola)
                    for (i = dorva_x + dorva_y, czeka = KROK; dorva_x + dorva_y == i && ile < 2000; ++ile, --czeka) {
                        drazek = 15 - bity[odcinek & 1];
                        if (pola && krok == prosto - 1 && czeka <= wczesniej)
                            drazek -= bity[~odcinek & 1];
                        takt();
                    }
            CHECK(ile * 100 < pola * 620);
        }
}

/* Two effects sound at a time, and none of them on the voices of the tune. */
static void dzwieki(void) {
    byte* const pokey = (byte*)0xD200; /* pitch and loudness of four voices; plain memory here */
    byte i;
    memset(pokey, 0xC3, 8);
    cisza();
    zagraj(EF_WYBUCH);
    zagraj(EF_KROK);
    graj_dzwiek();
    CHECK((pokey[1] & 15) == 15 && (pokey[3] & 15));
    zagraj(EF_MONETA); /* in the place of the step */
    zagraj(EF_KROK);
    graj_dzwiek();
    CHECK((pokey[1] & 15) == 15 && (pokey[3] & 15) == 8);
    for (i = 0; i < 8; ++i)
        graj_dzwiek();
    CHECK((pokey[1] & 15) == 15 && !pokey[3]);
    zagraj(EF_MASKA);
    zagraj(EF_OTWARTE); /* the greater ones stay */
    zagraj(EF_MASKA);
    graj_dzwiek();
    CHECK((pokey[1] & 15) == 15 && (pokey[3] & 15) == 12);
    for (i = 0; i < 40; ++i)
        graj_dzwiek();
    CHECK(!pokey[1] && !pokey[3]);
    for (i = 4; i < 8; ++i)
        CHECK(pokey[i] == 0xC3);
    uloz("Dw");
    rusz("r 1", "");
    CHECK(efekt == EF_WODA);
    uloz("Db");
    rusz("r 1", "");
    CHECK(efekt == EF_BAGNO);
}

/* A trail is 128 steps long, however old the one before is. */
static void trop(void) {
    byte i;
    nowa_gra();
    uloz("D        |    /|||||||||||||");
    rusz("RRRRRRRR", "");
    for (i = 0; i < 127 / 2; ++i)
        rusz("LR", "");
    CHECK(zapach[44] == 0 && zapach[48] != 0);
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
    static byte brzeg[POLA], straz[256];
    static const byte zera[224];
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
        memset(straz, 0xC3, 256);
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
        CHECK(!memcmp(przed, straz, 256) && !memcmp(za, straz, 224));
        CHECK(!memcmp(pod + POLA, zera, 224) && !memcmp(stan + POLA, zera, 224) && !memcmp(zapach + POLA, zera, 224));
        for (i = 0; i < POLA; ++i)
            if ((i < 40 || i >= 760 || i % 40 == 0 || i % 40 == 39) && plansza[i] != brzeg[i])
                break;
        CHECK(i == POLA);
    }
}

#define TABELA(nazwa, wiersze)                                                                                         \
    { nazwa, wiersze, sizeof(wiersze) / sizeof(*wiersze), 0 }

static const struct {
    const char* nazwa;
    const struct wiersz* wiersze;
    byte ile;
    void (*test)(void);
} grupy[] = {TABELA("chodzenie", chodzenie), TABELA("branie", branie),     TABELA("pchanie", pchanie),
             TABELA("bomby", bomby_i_mury),  TABELA("wedrowcy", wedrowcy), TABELA("strzelanie", strzelanie),
             TABELA("zywioly", zywioly),     TABELA("inv", inv),           {"brzeg", 0, 0, brzeg},
             {"zakrety", 0, 0, zakrety},     {"dzwieki", 0, 0, dzwieki},   {"trop", 0, 0, trop},
             {"losowe", 0, 0, losowe}};

int main(int argc, char* argv[]) {
    byte i;
    nowa_gra();
    nowy_etap();
    for (i = 0; i < sizeof(grupy) / sizeof(*grupy); ++i)
        if (argc < 2 || !strcmp(argv[1], grupy[i].nazwa)) {
            sprawdz(grupy[i].wiersze, grupy[i].ile);
            if (grupy[i].test)
                grupy[i].test();
        }
    return bledy > 255 ? 255 : (int)bledy;
}
