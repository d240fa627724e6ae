#include "stage/etap.h"

#include "board/census.h"
#include "stage/pola.h"
#include "tiles/kolory.h"
#include "tiles/zestaw.h"

#include <cstddef>
#include <span>

namespace dorva {
namespace {

// What may not be on the edge becomes a wall there.
Znak ruled(Znak z, Znak krawedz) {
    return mayBeOnEdge(z) ? z : krawedz;
}

// Dorva is only ever stored in her STD form.
Znak heroine(Znak z) {
    return z == DORVA_INV ? DORVA : z;
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

EtapImage packed(const Okno& okno) {
    const Znak krawedz = KodKrawedzi(okno);
    EtapImage image(uklad::KOLORY, 0);
    image.reserve(ETAP_SIZE_BYTES);
    for (const KolorSlot& slot : okno.lblKolor)
        image.push_back(slot.value);
    image.resize(uklad::PLANSZA, 0);
    for (int i = 0; i < PLANSZA_CELLS; ++i) {
        const Znak z = okno.imgPG[i].znak;
        image.push_back(static_cast<Bajt>(isEdge(i) ? ruled(z, krawedz) : heroine(z)));
    }
    image.push_back(static_cast<Bajt>(okno.hscMonet));
    image.push_back(okno.chkOstatni);
    image.push_back(static_cast<Bajt>(okno.optObiektyNR));
    append(image, EncodeTekst(filled(okno, POLE_NAZWA)));
    append(image, EncodeTekst(filled(okno, POLE_AUTOR)));
    return image;
}

void PackEtap(Edytor& e) {
    Okno& okno = e.okno;
    fillShort(okno, POLE_NAZWA);
    fillShort(okno, POLE_AUTOR);

    const Znak krawedz = KodKrawedzi(okno);
    for (int i = 0; i < PLANSZA_CELLS; ++i)
        if (isEdge(i))
            okno.imgPG[i].znak = ruled(okno.imgPG[i].znak, krawedz);
    ShowZestaw(e, okno.optObiektyNR);
    RefreshInfo(e);

    for (PokazanyZnak& cell : okno.imgPG)
        cell.znak = heroine(cell.znak);
    e.image = packed(okno);
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
    if (value < 0 || value > OSTATNI_MAX)
        return false;
    e.okno.chkOstatni = static_cast<Bajt>(value);
    return true;
}

void chkOstatni_Click(Edytor& e) {
    e.okno.chkOstatni = e.okno.chkOstatni == 0 ? 1 : 0;
}

} // namespace dorva
