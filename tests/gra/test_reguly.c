/* Tests of the rules, most of them rows of a table. A row sets up a board, makes moves, and checks the board and
   figures.

   Board: rows of letters with '/' between them, from cell (1, 1) on, with walls around; `~` makes the next tile INV.
   `2:` in front is the goal, which is 1 otherwise. A row without a board goes on where the one before ended.

   Moves: L R U D taps the stick, which makes one step; B taps the trigger; - waits as long as a step takes; a number
   waits for so many ticks. l r u d b hold the stick or the trigger; `.` lets everything go. `=e50` sets a figure. `:`
   begins a new stage. `!` loses the try, `?` begins it anew at the player's wish; both set up the board again.

   Board after: the tiles that must be there, `#` for any; D is the heroine in any form.

   Figures: letters of `figure_letters` with their values: h is her column, f her form, x hundreds of points, s the
   sound of the tick, j whether there is a heroine. */
#include "reguly.h"
#include <ctype.h>
#include <stdio.h>
#include <string.h>

static const struct row {
    const char *plansza, *moves, *after, *figures;
} rows[] = {
    /* walking */
    {"D   ", "RRRR", "   D", "f60"},
    {0, "---", "   D", "f63"},
    {0, "LU", "  D ", "f62"},
    {"D..~.? ", "RRRRL", " ,D~,? "},           /* digging; a code that is no tile */
    {"D        ", "r 10", " D"},               /* a press is a step; held, it makes the next one after */
    {0, "1", "  D"},                           /* ten ticks and then one every six */
    {0, "12 . 2 r 10", "     D"},              /* a second press waits for no more than the pace of steps */
    {"D    /     /     ", "r 6 d 6", " /#D"},  /* the newest direction wins */
    {0, ".r 2 d 2 .r 6", "//##D"},             /* a tap between two steps counts */
    {"D     ", "r 18 . 5 r 7", "    D"},       /* the same direction again: held, it waits as at first */
    {"  D   ", "r 2 . 7 l 7", "  D   "},       /* after a rest, a tap of seven ticks is one step */
    {"D   /||| /||| ", "r 22 .d 7", "//###D"}, /* a turn doesn't slow her down */
    {"D ||||/|  |||/||  ||/|||  |/||||  ", "rd 47", "////####D"}, /* a barred direction gives way to another */
    {"D    /|+ESz", "r 3 d 18", "    D", "g2"}, /* a door, an exit, a crate may bar her; at a thicket she tugs */
    {0, "16", "/####D"},
    {"  ", "", 0, "j0"},
    {"sDD ", "LR", "sDD ", "j1 h2"}, /* statues */
    /* the edge: nobody enters it, a heroine on it doesn't count, no crate is pushed onto it */
    {"/////////////////D/ ", "D", "/////////////////D/ "},
    {"                                      D/D", "", 0, "h1"},
    {"////////////////D/S/ ", "D", "////////////////D/S/ "},

    /* taking */
    {"2:DMMMKB$eE", "R", 0, "m1 o0 x1"},
    {0, "R", 0, "m0 o1"},
    {0, "RRR =e75 RR", 0, "m0 k1 b1 e99 w0"},
    {"DEM", "R", "DE", "w0 g2 p99"}, /* closed before the goal */
    {0, "150", 0, "p97"},            /* the bonus for time: one less every 75 ticks */
    {0, "7500", 0, "p0 w0"},
    {"0:DE", "R", 0, "w1"},             /* no goal: open at once */
    {"DK++ ", "RRRR", "  D+", "k0 g1"}, /* a key opens one door */
    {"Dnnnn ", "=e50 RR", 0, "e65 b0"}, /* jars: coins, strength, coins, a bomb */
    {0, "RRR", "     D", "b1"},
    {"D$$$$$$$$$$$$$$$$$$$$", "RRRRRRRRRRRRRRRRRRR", 0, "z3"}, /* twenty coins make a life */
    {0, "R", 0, "z4 x4"},
    {0, "!", 0, "x0 c0 z4"},                 /* a lost try costs its points and coins; */
    {0, "RRRRRRRRRRRRRRRRRRRR", 0, "z4 x4"}, /* the life comes once in a stage, not in each try */
    {"D$$$", "=c19 : R", 0, "z4"},
    {0, "=z5=c19 R =c19 R", 0, "z6"}, /* six lives at most */
    {0, "!", 0, "c19"},
    {"D$^$", "RRR ?", "D$^$", "c0 e79 p0 z3 x0"}, /* begun anew: no life lost, no strength, no bonus */
    {0, "RRR !", "D$^$", "c0 e99 p99"},
    {"De ", "=e50 ? R", 0, "e80"},
    {0, "?", "De", "e50"},      /* an elixir that is there again gives nothing, */
    {"Dbb ", "RR ?", 0, "e69"}, /* and the swamp takes some, but not all */
    {0, "=e15 R ?", 0, "e1"},
    {"zDz", "LLRRLL", "zDz"}, /* each thicket holds her back for a while */
    {0, "L", "D z"},
    {"Dizzz ", "r 23", " Df"},    /* not with a torch: it burns before she may enter, */
    {0, "180", "     D", "e99"},  /* and so do those beside it */
    {"Dwfzwz", "4000", "Dwf wz"}, /* a painted fire burns for ever */

    /* pushing */
    {"DS,S", "RL", "D SS"},
    {"D/S/w", "DDD", "//D", "e99"}, /* water takes the crate and turns to ground */
    {"b/S/D", "UU", "D", "e99"},
    {"DS^f ", "RRRR", "   DS", "e99"},     /* a trap is shut by it, a fire is put out */
    {"D~S~ ~w ", "RRRR", "  ~  D", "e99"}, /* all the same in INV forms */
    {"DS,.", "RR", " DS."},
    {"DS, ", "RRL", " D,S"}, /* what lay beneath comes back */

    /* bombs */
    {"   DB%  ", "RBB", 0, "b0"},
    {0, "200 LLLL", "D###Q%"}, /* it waits while she stands on it */
    {0, "130", "D###  ##|", "e99"},
    {"D ", "b 9", 0, "g0"}, /* a trigger held since before the stage does nothing */
    {0, ".-B", 0, "g4"},
    {"DB,  ", "RRBRR", "  Q D", "b0"}, /* on a track too */
    {"DQ ", "90", "Dxx", "e64"},       /* too near; the smoke stays for a while */
    {0, "27", "DXX"},
    {"E.M/+QK/oeD", "200", "E M/+#K/oe"},        /* nothing that a stage needs is lost */
    {" QB$/O|*L/D   ", "260", "#  $/%| ", "x1"}, /* a chain; blocks crack; coins and walls stay */

    /* creatures */
    {"d|D/,/ ", "18", " /,/d"}, /* a guard goes down and up, and what it treads on stays */
    {0, "18", "/u"},
    {"R    D", "45", "    LD", "e84"}, /* it bites and turns back */
    {"RD|", "4000", 0, "e0 w2"},
    {"DL", "R", "D", "e84"}, /* she runs into them */
    {"Dd", "R", "D", "e79"},
    {"DT", "R", "DT", "e79"},
    {"D!", "R", "D!", "e87"},
    {"D<", "R", " D", "e89"},
    {"g   /    /   D", "90", "g"},                         /* it wakes in her row only */
    {"!.../..../D|||", "63", " .../!.../D", "e87"},        /* a ghost passes earth and leaves it whole */
    {"Di!|", "RRRR", 0, "t1 e99"},                         /* a torch keeps it away */
    {"R   s/|||||/D", "180", 0, "e99"},                    /* a statue is no heroine */
    {"D      /T| || |/       ", "RRRDDRRR 144", 0, "e59"}, /* a tracker takes her way, round the corner */

    /* shooting */
    {" ,     / *  D  /       ", "108", " ,/ ~*  D"}, /* it blinks first */
    {0, "18", " A/<*> D/ V", "e99"},
    {0, "18", " A/<*>>D/ V", "e89"},
    {0, "36", " ,/ *  #/ ", "e89"},
    {"       / *  D  /@      ", "=a1 400", 0, "e99"}, /* the machine stops emitters */
    {"D  ~@", "r 200", "  D@", "a1"},                 /* a stick that is held touches it once */
    {0, ". 2 r 1", "  D~@", "a0"},
    {"m     D", "9", "~m "}, /* throwers see rows and columns; they take aim first */
    {0, "54", "m", "e87"},
    {"m|/ |/D|", "45", "m", "e87"},
    {"mD /|  /|  ", "9 DR 60", "m", "e99"}, /* she can step aside */
    {"P  S D", "400", "###S", "e99"},
    {"~P             D", "150", "~P", "e99"}, /* thirteen cells are near enough */
    {0, "L 90", "~P", "e79"},
    {" pD", "180", 0, "e79"},
    {"D   p   ", "180", "####### ", "e79"},

    /* elements */
    {"Dwwwwwwwwwwwwwwwwwwwwwwwwww", "RRRRRRRRRRRRRRRRRRRRRRRR", "#w", "e3 h25"}, /* 4 a cell */
    {0, "R", 0, "w2"},
    {"Dw", "r 1", 0, "s6"},       /* the splash is louder than the step */
    {"D~w ~b", "R 45", 0, "e87"}, /* and 4 for half a second in one */
    {0, "RR", "###D", "f52"},
    {"0:DwE", "=e8 R 19 R", "#D", "w2"}, /* who dies in it takes no further step */
    {"Dff ", "RR 38", "#f", "e79"},      /* no wound comes while she flickers from the last one */
    {0, "2", 0, "e59"},
    {"Dbbb ", "RR", 0, "f51"},
    {0, "RR", "###bD", "f53 e99"},
    {"Dbbbbb", "RRRR", 0, "w2"},
    {"Db ", "R 120", 0, "f50 w0"},
    {0, "60", 0, "w2"},
    {"Do ||||||/||||||o|o/o  |   ||", "R", "#o/######D"}, /* pairs in the order of the board; the way back */
    {" oD|||o  /|||||||||/o| o     ", "L", "######D"},
    {0, "RLL", "Do"},
    {"Do////////////|o ", "R", "#o////////////|D"},
    {"Do ", "RR", " oD"}, /* one alone is just passed */

    /* INV forms do the same as STD forms, and what moves keeps its form */
    {"D~.~,~^~$~e~K~+~i~z~M~B~E", "RRRR", " ~,~, D", "e79 c1"},
    {0, "RRRRRRRR 40 RRRR", 0, "e99 k0 t1 m0 b1 w1"},
    {"~L     /|||||||/D", "45", "    ~R"},
    {"~d|D/ / ", "9", " |D/~d"},
    {"~g..D", "9", "~R"},
    {"~!  |/   |/D|||", "63", "   /~!", "e87"},
    {"D    ~Q~%~O", "200", "D      ~O", "e99"},
};

/* The letters of the tiles by code, `#` where there is none; the last one stands for the codes that are no tiles. */
static const char letters[] = " .^,n|=%zE+wMKBSeO*<>AVQ!gLRdux##X$fT#t#mpP######b#s###o@i#####D?";

static byte has_dorva, form;
static const char figure_letters[] = "ewzkbmoctapgshxjf";
static byte* const figure_places[] = {&energia, &wynik,   &zycia,     &klucze,       &bomby,  &brak_masek,
                                      &otwarte, &monety,  &pochodnia, &maszyna_stoi, &premia, &komunikat,
                                      &efekt,   &dorva_x, &punkty[1], &has_dorva,    &form};
static unsigned failures;

static byte* figure(char letter) {
    return figure_places[strchr(figure_letters, letter) - figure_letters];
}

static byte* her_cell(void) {
    return plansza + dorva_y * KOLUMNY + dorva_x;
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
    return (strchr(letters, (*p)[-1]) - letters) | inv;
}

static void lay(const char* p) {
    byte *cell = plansza + KOLUMNY + 1, *row = cell;
    memset(plansza, MUR_V, POLA);
    cel_masek = 1;
    if (p[0] && p[1] == ':') {
        cel_masek = p[0] - '0';
        p += 2;
    }
    while (*p)
        if (*p == '/') {
            cell = row += KOLUMNY;
            ++p;
        } else
            *cell++ = next_code(&p);
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
    byte* place;
    while (*p) {
        const char c = *p++;
        const char* direction = strchr(directions, tolower(c));
        if (isdigit(c)) {
            --p;
            ticks(number(&p));
        } else if (c == '=') {
            place = figure(*p++);
            *place = number(&p);
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
    byte *cell = plansza + KOLUMNY + 1, *row = cell;
    byte code, any;
    const byte* place;
    while (after && *after)
        if (*after == '/') {
            cell = row += KOLUMNY;
            ++after;
        } else {
            any = *after == '#';
            code = next_code(&after);
            if (!any && *cell != code && !(code == DORVA && cell == her_cell()))
                return 0;
            ++cell;
        }
    form = *her_cell() & ~INV;
    while (figures && *figures) {
        place = figure(*figures++);
        if (*place != number(&figures))
            return 0;
        figures += *figures == ' ';
    }
    return 1;
}

/* Prints the corner of the board and the figures in the letters of the tables. */
static void show(void) {
    const byte *row, *cell;
    byte i;
    for (row = plansza + KOLUMNY + 1; row < plansza + 4 * KOLUMNY; row += KOLUMNY) {
        for (cell = row; cell < row + 30; ++cell)
            printf(*cell & INV ? "~%c" : "%c", cell == her_cell() ? 'D' : letters[*cell & 64 ? 64 : *cell & 63]);
        printf("\n");
    }
    for (i = 0; figure_letters[i]; ++i)
        printf("%c%u ", figure_letters[i], *figure_places[i]);
    printf("\n");
}

static void check_rows(void) {
    const struct row* row;
    const char* layout;
    for (row = rows; row < rows + sizeof(rows) / sizeof(*rows); ++row) {
        if (row->plansza) {
            layout = row->plansza;
            nowa_gra();
            nowy_etap();
            lay(layout);
        }
        act(row->moves, layout);
        if (!matches(row->after, row->figures)) {
            printf("row %u: %s, after %s:\n", (unsigned)(row - rows) + 1, layout, row->moves);
            show();
            ++failures;
        }
    }
}

static void check(byte holds, const char* what) {
    if (!holds) {
        printf("not so: %s\n", what);
        ++failures;
    }
}

/* A trail is 128 steps long, whatever older trail there is. */
static void check_trail(void) {
    byte i;
    lay("D        ");
    act("RRRRRRRR", "");
    for (i = 0; i < 61; ++i)
        act("LR", "");
    check(!zapach[KOLUMNY + 3] && zapach[KOLUMNY + 4], "her last 128 steps have a scent");
}

static byte* const pokey = (byte*)0xD200; /* pitch and loudness of four voices; plain memory here */

/* Starts two effects. Gives the loudness of both voices after some frames, a hexadecimal digit each. */
static byte loudness(byte effect, byte other, byte frames) {
    zagraj(effect);
    zagraj(other);
    while (frames--)
        graj_dzwiek();
    return pokey[1] << 4 | (pokey[3] & 15);
}

static void check_sounds(void) {
    memset(pokey, 0xC3, 8);
    cisza();
    check(loudness(EF_WYBUCH, EF_KROK, 1) == 0xF2, "two effects sound at a time");
    check(loudness(EF_MONETA, EF_KROK, 1) == 0xF8, "a coin replaces a step, and a step no coin");
    check(loudness(EF_BRAK, EF_BRAK, 8) == 0xF0, "the coin ends first");
    check(loudness(EF_OTWARTE, EF_MASKA, 1) == 0xFC, "a mask replaces neither the opening nor a blast");
    check(loudness(EF_BRAK, EF_BRAK, 40) == 0, "all end");
    check(pokey[4] == 0xC3 && !memcmp(pokey + 4, pokey + 5, 3), "the voices of the tune are left alone");
}

static byte random_byte(void) {
    static unsigned long seed = 1;
    seed = seed * 1103515245UL + 12345;
    return (byte)(seed >> 16);
}

/* Boards of random bytes, thousands of ticks with random input. Nothing outside the arrays and nothing on the edge is
   ever written, the heroine stays inside, and the figures stay in their ranges. */
static void check_random_boards(void) {
    static byte before[POLA];
    byte* const in_front = plansza - 224;
    byte n, changed, in_range;
    unsigned i;
    for (n = 0; n < 10; ++n) {
        for (i = 0; i < POLA; ++i) {
            plansza[i] = random_byte() & (n & 1 ? 0xBF : 0xFF); /* tiles only, or any bytes */
            if (n & 2)
                plansza[i] &= random_byte(); /* more room */
        }
        plansza[(1 + random_byte() % 18) * KOLUMNY + 1 + random_byte() % 38] = DORVA;
        memcpy(before, plansza, POLA);
        memset(in_front, 0xC3, 224);
        memset(plansza + POLA, 0xC3, 224);
        cel_masek = 1 + random_byte() % 9;
        nowa_gra();
        nowy_etap();
        check(start(), "there is a heroine");
        in_range = 1;
        for (i = 0; i < 3000 && in_range; ++i) {
            if (i % 7 == 0)
                drazek = random_byte() & 15;
            spust = random_byte() & 1;
            takt();
            in_range = dorva_x >= 1 && dorva_x <= 38 && dorva_y >= 1 && dorva_y <= 18 && energia <= 99 && bomby <= 99;
            if (energia < 30)
                energia = 99;
            wynik = 0;
        }
        check(in_range, "she and her figures stay in their ranges");
        changed = 0;
        for (i = 0; i < 224; ++i)
            changed |=
                (in_front[i] ^ 0xC3) | (plansza[POLA + i] ^ 0xC3) | pod[POLA + i] | stan[POLA + i] | zapach[POLA + i];
        for (i = 0; i < POLA; ++i)
            if (i < 40 || i >= 760 || i % 40 == 0 || i % 40 == 39)
                changed |= plansza[i] ^ before[i];
        check(!changed, "the edge and what lies around the arrays stay as they are");
    }
}

int main(void) {
    check_rows();
    check_trail();
    check_sounds();
    check_random_boards();
    return failures != 0;
}
