/* Tests of the rules. `test_reguly GROUP` runs one group and ends with the number of failed checks.

   Most groups are tables. A row sets up a board, makes moves, and checks the board and figures.

   Board: rows of letters with '/' between them, from cell (1, 1) on, with walls around; `~` makes the next tile INV.
   `2:` in front is the goal, which is 1 otherwise. A row without a board goes on where the one before ended.

   Moves: L R U D taps the stick, which makes one step; B taps the trigger; - waits as long as a step takes; a number
   waits for so many ticks. l r u d b hold the stick or the trigger; `.` lets everything go. `=e50` sets a figure. `:`
   begins a new stage. `!` loses the try, `?` begins it anew at the player's wish; both set up the board again.

   Board after: the tiles that must be there, `#` for any; D is the heroine in any form.

   Figures: letters of `figure_letters` with their values, and h her column, f her form, x hundreds of points, j whether
   there is a heroine. */
#include "reguly.h"
#include <ctype.h>
#include <stdio.h>
#include <string.h>

struct row {
    const char *plansza, *moves, *after, *figures;
};

static unsigned failures;

#define CHECK(condition)                                                                                               \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            printf("line %d: %s\n", __LINE__, #condition);                                                             \
            ++failures;                                                                                                \
        }                                                                                                              \
    } while (0)

static const char letters[] = " .^,n|=%zE+wMKBSeO*Q!gLRdu$fTtmpPbo@iDs<>AVxX?";
static const byte codes[] = {
    NIC,           ZIEMIA,           PULAPKA,       SLAD,        NACZYNIE,       MUR_V,           MUR_H,
    KRUCHY,        ZAROSLA,          WYJSCIE,       DRZWI,       WODA,           MASKA,           KLUCZ,
    BOMBA,         SKRZYNIA,         ELIKSIR,       BLOK,        PROMIENNIK,     ODPALONA,        DUCH,
    STWOREK,       STWOR + LEWO,     STWOR + PRAWO, STRAZNIK,    STRAZNIK + 1,   MONETA,          OGIEN,
    TROPICIEL,     TROPICIEL + GORA, MIOTNIK,       MIOTACZ,     PLUJKA,         BAGNO,           MAGICZNY,
    MASZYNA,       POCHODNIA,        DORVA,         PO_OCZY + 1, PROMIEN + LEWO, PROMIEN + PRAWO, PROMIEN + GORA,
    PROMIEN + DOL, WYBUCH,           WYBUCH + 3,    70};

static const char figure_letters[] = "ewzkbmoctapgh";
static byte* const figure_places[] = {&energia, &wynik,     &zycia,        &klucze, &bomby,     &brak_masek, &otwarte,
                                      &monety,  &pochodnia, &maszyna_stoi, &premia, &komunikat, &dorva_x};
static byte has_dorva;

static byte is_here(byte w, byte k) {
    return dorva_y == w && dorva_x == k;
}

static byte cell(byte w, byte k) {
    return plansza[w * KOLUMNY + k];
}

static unsigned number(const char** p) {
    unsigned n = 0;
    for (; isdigit(**p); ++*p)
        n = n * 10 + (**p - '0');
    return n;
}

/* The code of the next letter, with its INV bit. */
static byte next_code(const char** p) {
    const byte inv = **p == '~' ? INV : 0;
    *p += inv ? 2 : 1;
    return codes[strchr(letters, (*p)[-1]) - letters] | inv;
}

static void lay(const char* p) {
    unsigned i = KOLUMNY + 1, row_start = i;
    memset(plansza, MUR_V, POLA);
    cel_masek = 1;
    if (p[0] && p[1] == ':') {
        cel_masek = p[0] - '0';
        p += 2;
    }
    while (*p)
        if (*p == '/') {
            i = row_start += KOLUMNY;
            ++p;
        } else
            plansza[i++] = next_code(&p);
    drazek = 15;
    spust = 1;
    has_dorva = start();
}

static void ticks(unsigned n) {
    while (n--)
        takt();
}

static void act(const char* p, const char* layout) {
    static const char directions[] = "udlr"; /* by bit of the stick, from the lowest on */
    byte i;
    while (*p) {
        const char c = *p++;
        const char* direction = strchr(directions, tolower(c));
        if (isdigit(c)) {
            --p;
            ticks(number(&p));
        } else if (c == '=') {
            i = strchr(figure_letters, *p++) - figure_letters;
            *figure_places[i] = number(&p);
        } else if (c == ':')
            nowy_etap();
        else if (c == '!' || c == '?') {
            c == '!' ? cofnij_probe() : powtorz_probe();
            lay(layout);
        } else if (c != ' ') {
            if (isupper(c) || c == '.')
                drazek = 15;
            if (direction)
                drazek &= ~(1 << (direction - directions));
            spust = tolower(c) == 'b' ? 0 : c == '.' ? 1 : spust;
            if (isupper(c) || c == '-') {
                takt();
                drazek = 15;
                spust = 1;
                ticks(KROK - 1);
            }
        }
    }
}

static byte matches(const char* after, const char* figures) {
    unsigned i = KOLUMNY + 1, row_start = i;
    byte n, found;
    while (after && *after)
        if (*after == '/') {
            i = row_start += KOLUMNY;
            ++after;
        } else if (*after == '#') {
            ++i;
            ++after;
        } else {
            n = next_code(&after);
            if (plansza[i] != n && !(n == DORVA && is_here(i / KOLUMNY, i % KOLUMNY)))
                return 0;
            ++i;
        }
    while (figures && *figures) {
        const char c = *figures++;
        n = number(&figures);
        found = c == 'f'   ? cell(dorva_y, dorva_x) & ~INV
                : c == 'j' ? has_dorva
                : c == 'x' ? (punkty[1] >> 4) * 10 + (punkty[1] & 15)
                           : *figure_places[strchr(figure_letters, c) - figure_letters];
        if (found != n)
            return 0;
        while (*figures == ' ')
            ++figures;
    }
    return 1;
}

/* Prints the board and the figures in the letters of the tables. */
static void show(void) {
    byte w, k, i;
    for (w = 1; w < 4; ++w) {
        for (k = 1; k < 30; ++k) {
            const char* c = memchr(codes, cell(w, k) & ~INV, sizeof(codes));
            printf("%s%c", cell(w, k) & INV ? "~" : "",
                   is_here(w, k) ? 'D'
                   : c           ? letters[c - (const char*)codes]
                                 : '#');
        }
        printf("\n");
    }
    for (i = 0; figure_letters[i]; ++i)
        printf("%c%u ", figure_letters[i], *figure_places[i]);
    printf("f%u x%x\n", cell(dorva_y, dorva_x) & ~INV, punkty[1]);
}

static void check_table(const struct row* w, byte count) {
    byte i;
    const char* layout = "";
    for (i = 0; i < count; ++i, ++w) {
        if (w->plansza) {
            layout = w->plansza;
            nowa_gra();
            nowy_etap();
            lay(layout);
        }
        act(w->moves, layout);
        if (!matches(w->after, w->figures)) {
            printf("row %u of %s, after %s:\n", i, layout, w->moves);
            show();
            ++failures;
        }
    }
}

static const struct row walking[] = {
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
    {"D     ", "r 18 . 5 r 7", "    D"},      /* the same direction again: held, it waits as at first */
    {0, "4", "     D"},
    {"  D   ", "r 2 . 7 l 7", "  D   "}, /* after a rest, a tap of seven ticks is one step */
    {"D   ", "rd 10", " D"},             /* if the newest direction is barred she goes on in another one */
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

static const struct row taking[] = {
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
    {0, "!", 0, "x0 c0 z4"},                 /* a lost try costs its points and coins; */
    {0, "RRRRRRRRRRRRRRRRRRRR", 0, "z4 x4"}, /* the life comes once in a stage, not in each try */
    {"D$ ", "=c19 : R", 0, "z4"},
    {0, "!", 0, "c19"},
    {"D$^$", "RRR", 0, "c2 e79 p99"},
    {0, "?", "D$^$", "c0 e79 p0 z3 x0"}, /* begun anew, a try costs no life, but gives no strength and no bonus */
    {0, "RRR !", "D$^$", "c0 e99 p99"},
    {"De ", "=e50 ? R", 0, "e80"},
    {0, "?", "De", "e50"}, /* an elixir that is there again gives nothing, */
    {0, "=e20 ?", 0, "e20"},
    {"Dbb ", "RR", 0, "e99"},
    {0, "?", 0, "e69"}, /* and the swamp takes some, but not all */
    {0, "=e15 R ?", 0, "e1"},
    {"Dz  ", "RR", "Dz"}, /* a thicket holds back for a while */
    {0, "R", " D"},
    {"zDz", "LLRRLL", "zDz"}, /* each on its own */
    {0, "L", "D z"},
    {"Dizzz ", "r 23", " Df"},    /* not with a torch: it burns before she may enter, */
    {0, "180", "     D", "e99"},  /* and so do those beside it */
    {"Dwfzwz", "4000", "Dwf wz"}, /* a painted fire burns for ever */
};

static const struct row pushing[] = {
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

static const struct row bombs_and_walls[] = {
    {"   DB%  ", "R", 0, "b1"},
    {0, "BB", 0, "b0"},
    {0, "200", "#####%", "e99"}, /* it waits while she stands on it */
    {0, "LLLL", "D###Q"},
    {0, "130", "D###  ##|", "e99"},
    {"D ", "b 9", 0, "g0"}, /* a trigger held since before the stage does nothing */
    {0, ".-B", 0, "g4"},
    {"DB,  ", "RRBRR", "  Q D", "b0"}, /* on a track too */
    {"DQ ", "90", "Dxx", "e64"},       /* too near; the smoke stays for a while */
    {0, "27", "DXX"},
    {0, "9", "D  "},
    {"E.M/+QK/oeD", "200", "E M/+#K/oe"},        /* nothing that a stage needs is lost */
    {" QB$/O|*L/D   ", "260", "#  $/%| ", "x1"}, /* a chain; blocks crack; coins and walls stay */
};

static const struct row wanderers[] = {
    {"L      /|||||||/D", "63", "      R"},
    {0, "63", "L"},
    {"d|D/,/ ", "9", " |D/d"}, /* a guard goes down and up */
    {0, "9", " /,/d"},         /* and what it treads on stays */
    {0, "18", "/u"},
    {"R    D", "45", "    LD", "e84"}, /* it bites and turns back */
    {0, "9", "   L D", "e84"},
    {"RD|", "36", 0, "e84"}, /* contact wounds, once a second at most */
    {0, "60", 0, "e69"},
    {"DL", "R", "D", "e84"}, /* she runs into them */
    {"RD|", "4000", 0, "e0 w2"},
    {"Dd", "R", "D", "e79"},
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

static const struct row shooting[] = {
    {" ,     / *  D  /       ", "108", " ,/ ~*  D"}, /* it blinks first */
    {0, "18", " A/<*> D/ V", "e99"},
    {0, "18", " A/<*>>D/ V", "e89"},
    {0, "36", " ,/ *  #/ ", "e89"},
    {"       / *  D  /@      ", "=a1 400", 0, "e99"}, /* the machine stops emitters */
    {"D@", "R", "D~@", "a1"},
    {0, "R", 0, "a0"},
    {"D  @", "r 200", "  D~@", "a1"}, /* a stick that is held touches it once */
    {0, ". 2 r 1", 0, "a0"},
    {"m     D", "9", "~m ", 0}, /* throwers see rows and columns; they take aim first */
    {0, "54", "m", "e87"},
    {"m|/ |/D|", "45", "m", "e87"},
    {"mD /|  /|  ", "9 DR 60", "m", "e99"},          /* she can step aside */
    {"m     |/||||||D/|||||||", "300", "m ", "e99"}, /* not through what stands in between */
    {"P  S D", "400", "###S", "e99"},
    {"P  D", "60", 0, "e79"},
    {" pD", "180", 0, "e79"},
    {"m/ /D", "40", 0, "e87"},

    {"D   p   ", "180", "####### ", "e79"},
};

static const struct row elements[] = {
    {"D^  ", "RR", "  D", "e79"},
    {"Dwwwwwwwwwwwwwwwwwwwwwwwwww", "RR", "#w", "e91"}, /* 4 a cell, so it carries 24 of them */
    {0, "RRRRRRRRRRRRRRRRRRRRRR", 0, "e3 h25"},
    {0, "R", 0, "w2"},
    {"Dw ", "R 25", 0, "e91"},           /* and 4 for half a second in one */
    {"0:DwE", "=e8 R 19 R", "#D", "w2"}, /* who dies in it takes no further step */
    {"Dff ", "RR", "#f", "e79"},         /* no wound comes while she flickers from the last one */
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

/* INV forms do the same as STD forms, and what moves keeps its form. */
static const struct row inv[] = {
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

/* The edge: nobody enters it, a heroine on it doesn't count, no crate is pushed onto it. */
static void edge(void) {
    lay("D");
    plansza[1] = NIC;
    plansza[2] = DORVA;
    CHECK(start() == 1 && is_here(1, 1));
    act("UL", "");
    CHECK(is_here(1, 1));
    lay("SD");
    plansza[KOLUMNY] = NIC;
    start();
    act("LL", "");
    CHECK(is_here(1, 2) && cell(1, 0) == NIC);
}

/* With a held stick she is as fast round corners as on a straight way, wherever they are; also if the next direction is
   pressed early, so that two are held up to the corner. For comparison, a tracker takes 6.75 ticks for a cell. */
static void corners(void) {
    static const byte bits[2] = {KIJ_PRAWO, KIJ_DOL};
    byte straight, early, leg, step, wait;
    unsigned count, cells, i;
    for (straight = 1; straight <= 5; ++straight)
        for (early = 0; early <= 4; ++early) {
            const byte legs = 17 / straight * 2;
            memset(plansza, MUR_V, POLA);
            plansza[i = KOLUMNY + 1] = DORVA;
            for (leg = 0; leg < legs; ++leg)
                for (step = 0; step < straight; ++step)
                    plansza[i += leg & 1 ? KOLUMNY : 1] = NIC;
            start();
            count = cells = 0;
            for (leg = 0; leg < legs; ++leg)
                for (step = 0; step < straight; ++step, ++cells)
                    for (i = dorva_x + dorva_y, wait = KROK; dorva_x + dorva_y == i && count < 2000; ++count, --wait) {
                        drazek = 15 - bits[leg & 1];
                        if (cells && step == straight - 1 && wait <= early)
                            drazek -= bits[~leg & 1];
                        takt();
                    }
            CHECK(count * 100 < cells * 620);
        }
}

/* Two effects can sound at a time, and never on the voices of the tune. */
static void sounds(void) {
    byte* const pokey = (byte*)0xD200; /* pitch and loudness of four voices; plain memory here */
    byte i;
    memset(pokey, 0xC3, 8);
    cisza();
    zagraj(EF_WYBUCH);
    zagraj(EF_KROK);
    graj_dzwiek();
    CHECK((pokey[1] & 15) == 15 && (pokey[3] & 15));
    zagraj(EF_MONETA); /* replaces the step */
    zagraj(EF_KROK);
    graj_dzwiek();
    CHECK((pokey[1] & 15) == 15 && (pokey[3] & 15) == 8);
    for (i = 0; i < 8; ++i)
        graj_dzwiek();
    CHECK((pokey[1] & 15) == 15 && !pokey[3]);
    zagraj(EF_MASKA);
    zagraj(EF_OTWARTE); /* the more important ones stay */
    zagraj(EF_MASKA);
    graj_dzwiek();
    CHECK((pokey[1] & 15) == 15 && (pokey[3] & 15) == 12);
    for (i = 0; i < 40; ++i)
        graj_dzwiek();
    CHECK(!pokey[1] && !pokey[3]);
    for (i = 4; i < 8; ++i)
        CHECK(pokey[i] == 0xC3);
    lay("Dw");
    act("r 1", "");
    CHECK(efekt == EF_WODA);
    lay("Db");
    act("r 1", "");
    CHECK(efekt == EF_BAGNO);
}

/* A trail is 128 steps long, whatever older trail there is. */
static void trail(void) {
    byte i;
    nowa_gra();
    lay("D        |    /|||||||||||||");
    act("RRRRRRRR", "");
    for (i = 0; i < 127 / 2; ++i)
        act("LR", "");
    CHECK(zapach[44] == 0 && zapach[48] != 0);
}

static unsigned long seed = 1;
static byte random_byte(void) {
    seed = seed * 1103515245UL + 12345;
    return (byte)(seed >> 16);
}

/* Boards of random bytes, thousands of ticks with random input. Nothing outside the arrays and nothing on the edge is
   ever written, the heroine stays inside, and the figures stay in their ranges. */
static void random_boards(void) {
    byte* const before = plansza - 256;
    byte* const behind = plansza + POLA;
    static byte edge[POLA], marks[256];
    static const byte zeros[224];
    byte n;
    unsigned i;
    for (n = 0; n < 10; ++n) {
        for (i = 0; i < POLA; ++i) {
            plansza[i] = random_byte();
            if (n & 1)
                plansza[i] &= 0xBF; /* tiles only */
            if (n & 2)
                plansza[i] &= random_byte(); /* more room */
        }
        plansza[(1 + random_byte() % 18) * KOLUMNY + 1 + random_byte() % 38] = DORVA;
        memcpy(edge, plansza, POLA);
        memset(marks, 0xC3, 256);
        memset(before, 0xC3, 256);
        memset(behind, 0xC3, 224);
        cel_masek = 1 + random_byte() % 9;
        nowa_gra();
        CHECK(start());
        for (i = 0; i < 3000; ++i) {
            if (i % 7 == 0)
                drazek = random_byte() & 15;
            spust = random_byte() & 1;
            takt();
            if (dorva_x < 1 || dorva_x > 38 || dorva_y < 1 || dorva_y > 18 || energia > 99 || bomby > 99)
                break;
            if (energia < 30)
                energia = 99;
            wynik = 0;
        }
        CHECK(i == 3000);
        CHECK(!memcmp(before, marks, 256) && !memcmp(behind, marks, 224));
        CHECK(!memcmp(pod + POLA, zeros, 224) && !memcmp(stan + POLA, zeros, 224) &&
              !memcmp(zapach + POLA, zeros, 224));
        for (i = 0; i < POLA; ++i)
            if ((i < 40 || i >= 760 || i % 40 == 0 || i % 40 == 39) && plansza[i] != edge[i])
                break;
        CHECK(i == POLA);
    }
}

#define TABLE(name, rows)                                                                                              \
    { name, rows, sizeof(rows) / sizeof(*rows), 0 }

static const struct {
    const char* name;
    const struct row* rows;
    byte count;
    void (*test)(void);
} groups[] = {TABLE("walking", walking),      TABLE("taking", taking),
              TABLE("pushing", pushing),      TABLE("bombs", bombs_and_walls),
              TABLE("wanderers", wanderers),  TABLE("shooting", shooting),
              TABLE("elements", elements),    TABLE("inv", inv),
              {"edge", 0, 0, edge},           {"corners", 0, 0, corners},
              {"sounds", 0, 0, sounds},       {"trail", 0, 0, trail},
              {"random", 0, 0, random_boards}};

int main(int argc, char* argv[]) {
    byte i;
    nowa_gra();
    nowy_etap();
    for (i = 0; i < sizeof(groups) / sizeof(*groups); ++i)
        if (argc < 2 || !strcmp(argv[1], groups[i].name)) {
            check_table(groups[i].rows, groups[i].count);
            if (groups[i].test)
                groups[i].test();
        }
    return failures > 255 ? 255 : (int)failures;
}
