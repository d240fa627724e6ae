#include "stage/etap.h"

#include "board/census.h"
#include "tiles/kolory.h"
#include "tiles/zestaw.h"

#include <algorithm>

namespace dorva {
namespace {

void applyEdgeRule(Okno& okno) {
    const Znak krawedz = KodKrawedzi(okno);
    for (int i = 0; i < PLANSZA_CELLS; ++i) {
        Znak& z = okno.imgPG[static_cast<std::size_t>(i)].znak;
        if (isEdge(i) && z != NIC && z != MUREK_PIONOWY && z != MUREK_POZIOMY)
            z = krawedz;
    }
}

// A box that is still being edited is brought to its form if it is too short; full text stays as it is.
void fillShort(PoleTekstu& pole, const Tekst& form) {
    if (pole.tekst.size() < pole.width)
        SetTekst(pole, form);
}

void append(Bajty& image, std::span<const Bajt> bytes) {
    image.insert(image.end(), bytes.begin(), bytes.end());
}

std::span<const Bajt> field(const Bajty& image, std::size_t offset, std::size_t length) {
    return std::span(image).subspan(offset, length);
}

} // namespace

Znak KodKrawedzi(const Okno& okno) {
    return okno.optNN == 0 ? MUREK_PIONOWY : znak(kod(MUREK_PIONOWY) + INV);
}

void PackEtap(Edytor& e) {
    Okno& okno = e.okno;
    fillShort(okno.txtNazwa, FitNazwa(okno.txtNazwa.tekst));
    fillShort(okno.txtAutor, NormalizeBox(okno.txtAutor.tekst, AUTOR_WIDTH));

    applyEdgeRule(okno);
    ShowZestaw(e, okno.optObiektyNR);
    RefreshInfo(e);

    Bajty image(uklad::KOLORY, 0);
    image.reserve(ETAP_SIZE_BYTES);
    for (const Probka& probka : okno.lblKolor)
        image.push_back(probka.value);
    image.resize(uklad::PLANSZA, 0);
    for (ZnakPole& cell : okno.imgPG) {
        if (cell.znak == DORVA_INV)
            cell.znak = DORVA;
        image.push_back(static_cast<Bajt>(cell.znak));
    }
    image.push_back(static_cast<Bajt>(okno.hscMonet));
    image.push_back(okno.chkOstatni);
    image.push_back(static_cast<Bajt>(okno.optObiektyNR));
    append(image, EncodeTekst(okno.txtNazwa.tekst));
    append(image, EncodeTekst(okno.txtAutor.tekst));
    e.obrazEtapu = std::move(image);
}

bool UnpackEtap(Edytor& e) {
    const Bajty& image = e.obrazEtapu;
    if (!e.okno.chkZachowajKolory)
        for (int i = 0; i < SLOTY_COUNT; ++i)
            ShowKolor(e, i, image[uklad::KOLORY + static_cast<std::size_t>(i)]);
    for (std::size_t i = 0; i < PLANSZA_CELLS; ++i)
        e.okno.imgPG[i].znak = znak(image[uklad::PLANSZA + i]);
    if (!SetMonet(e, image[uklad::CEL_MASEK]))
        return false;
    if (!SetOstatni(e, image[uklad::OSTATNI]))
        return false;
    if (!SelectObiektyNR(e, image[uklad::SWIAT]))
        return false;
    ShowZestaw(e, image[uklad::SWIAT]);
    SetTekst(e.okno.txtNazwa, DecodeTekst(field(image, uklad::NAZWA, NAZWA_WIDTH)));
    SetTekst(e.okno.txtAutor, DecodeTekst(field(image, uklad::AUTOR, AUTOR_WIDTH)));
    RefreshInfo(e);
    return true;
}

bool SetOstatni(Edytor& e, int value) {
    constexpr int GREYED = 2;
    if (value < 0 || value > GREYED)
        return false;
    e.okno.chkOstatni = static_cast<Bajt>(value);
    return true;
}

void SetTekst(PoleTekstu& pole, const Tekst& tekst) {
    pole.tekst = tekst;
    if (!tekst.znaki.empty())
        return;
    pole.tekst = Tekst::spaces(pole.width);
    ++pole.zaznaczenia;
}

void leaveNazwa(Edytor& e) {
    SetTekst(e.okno.txtNazwa, FitNazwa(e.okno.txtNazwa.tekst));
}

void leaveAutor(Edytor& e) {
    SetTekst(e.okno.txtAutor, NormalizeBox(e.okno.txtAutor.tekst, AUTOR_WIDTH));
}

void leaveAutorGry(Edytor& e, int index) {
    PoleTekstu& pole = e.okno.txtAutorGry[static_cast<std::size_t>(index)];
    SetTekst(pole, NormalizeBox(pole.tekst, LINIA_WIDTH));
}

} // namespace dorva
