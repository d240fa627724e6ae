#include "stage/etap.h"

#include "board/census.h"
#include "stage/pola.h"
#include "tiles/kolory.h"
#include "tiles/zestaw.h"

#include <cstddef>
#include <span>
#include <utility>

namespace dorva {
namespace {

void applyEdgeRule(Okno& okno) {
    const Znak krawedz = KodKrawedzi(okno);
    for (int i = 0; i < PLANSZA_CELLS; ++i) {
        Znak& z = okno.imgPG[i].znak;
        if (isEdge(i) && z != NIC && z != MUREK_PIONOWY && z != MUREK_POZIOMY)
            z = krawedz;
    }
}

void append(EtapImage& image, std::span<const Bajt> bytes) {
    image.insert(image.end(), bytes.begin(), bytes.end());
}

std::span<const Bajt> field(const EtapImage& image, std::size_t offset, std::size_t length) {
    return std::span(image).subspan(offset, length);
}

} // namespace

Znak KodKrawedzi(const Okno& okno) {
    return okno.optNN == 0 ? MUREK_PIONOWY : znak(kod(MUREK_PIONOWY) + INV);
}

void PackEtap(Edytor& e) {
    Okno& okno = e.okno;
    fillShort(okno, POLE_NAZWA);
    fillShort(okno, POLE_AUTOR);

    applyEdgeRule(okno);
    ShowZestaw(e, okno.optObiektyNR);
    RefreshInfo(e);

    EtapImage image(uklad::KOLORY, 0);
    image.reserve(ETAP_SIZE_BYTES);
    for (const KolorSlot& slot : okno.lblKolor)
        image.push_back(slot.value);
    image.resize(uklad::PLANSZA, 0);
    for (PokazanyZnak& cell : okno.imgPG) {
        if (cell.znak == DORVA_INV)
            cell.znak = DORVA;
        image.push_back(static_cast<Bajt>(cell.znak));
    }
    image.push_back(static_cast<Bajt>(okno.hscMonet));
    image.push_back(okno.chkOstatni);
    image.push_back(static_cast<Bajt>(okno.optObiektyNR));
    append(image, EncodeTekst(okno.txtNazwa.tekst));
    append(image, EncodeTekst(okno.txtAutor.tekst));
    e.image = std::move(image);
}

bool UnpackEtap(Edytor& e) {
    const EtapImage& image = e.image;
    if (!e.okno.chkZachowajKolory)
        for (int i = 0; i < SLOTY_COUNT; ++i)
            ShowKolor(e, i, image[uklad::KOLORY + i]);
    for (std::size_t i = 0; i < PLANSZA_CELLS; ++i)
        e.okno.imgPG[i].znak = znak(image[uklad::PLANSZA + i]);
    if (!SetMonet(e, image[uklad::CEL_MASEK]))
        return false;
    if (!SetOstatni(e, image[uklad::OSTATNI]))
        return false;
    if (!SelectObiektyNR(e, image[uklad::SWIAT]))
        return false;
    ShowZestaw(e, image[uklad::SWIAT]);
    SetTekst(e.okno, POLE_NAZWA, DecodeTekst(field(image, uklad::NAZWA, NAZWA_WIDTH)));
    SetTekst(e.okno, POLE_AUTOR, DecodeTekst(field(image, uklad::AUTOR, AUTOR_WIDTH)));
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

void chkOstatni_Click(Edytor& e) {
    e.okno.chkOstatni = e.okno.chkOstatni == 0 ? 1 : 0;
}

} // namespace dorva
