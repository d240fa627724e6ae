/* The rules of the game as C sees them; see game/src/takt.s and plansza.s. */
#ifndef REGULY_H
#define REGULY_H

#include "constants.h" /* made of game/src/reguly.inc and rekord.inc */

typedef unsigned char byte;

enum {
    KIJ_GORA = 1,
    KIJ_DOL = 2,
    KIJ_LEWO = 4,
    KIJ_PRAWO = 8
}; /* bits of drazek; one is 0 while the stick is pushed that way */

extern byte plansza[POLA];
extern byte pod[1024], stan[1024], zapach[1024];
extern byte punkty[3];
extern byte cel_masek, monety, premia;
extern byte drazek, spust, wynik, efekt, komunikat, energia, zycia, klucze, bomby, brak_masek;
extern byte maszyna_stoi, pochodnia, otwarte, dorva_x, dorva_y;
#pragma zpsym("drazek")
#pragma zpsym("spust")
#pragma zpsym("wynik")
#pragma zpsym("efekt")
#pragma zpsym("komunikat")
#pragma zpsym("energia")
#pragma zpsym("zycia")
#pragma zpsym("klucze")
#pragma zpsym("bomby")
#pragma zpsym("brak_masek")
#pragma zpsym("maszyna_stoi")
#pragma zpsym("pochodnia")
#pragma zpsym("otwarte")
#pragma zpsym("dorva_x")
#pragma zpsym("dorva_y")

/* The bounds of the rules' variables, in page zero and behind the program. */
extern byte* const zp_begin;
extern byte* const zp_end;
extern byte* const bss_begin;
extern byte* const bss_end;

void nowa_gra(void);
void nowy_etap(void);
void cofnij_probe(void);
void powtorz_probe(void);
byte start(void); /* 1: there is a heroine */
void takt(void);

void zagraj(byte ktory);
void graj_dzwiek(void); /* one frame */
void cisza(void);

#endif
