#include "stage/archiwum.h"

#include "stage/etap.h"

namespace dorva {
namespace {

constexpr std::string_view FILTR_ZAPISU = "Plik archiwum|*.dpa|Wszystkie pliki (*.*)|*.*";
constexpr std::string_view FILTR_ODCZYTU = "Pliki archiwum|*.dpa|Wszystkie pliki (*.*)|*.*";
constexpr std::string_view NAZWA_ARCHIWUM = "DPArchiwum.dpa";

constexpr std::size_t rekordArchiwum(int number) {
    return AUTOR_GRY_SIZE_BYTES + ETAP_SIZE_BYTES * static_cast<std::size_t>(number - 1);
}

Bajty assemble(const Bajty& autorGry, const std::array<Bajty, ETAPY_COUNT>& etapy) {
    Bajty archiwum = autorGry;
    for (const Bajty& etap : etapy)
        archiwum.insert(archiwum.end(), etap.begin(), etap.end());
    return archiwum;
}

// Writes a stage of the archive over the working set. A file that is no whole stage, or whose content
// the editor failed to take over, is kept aside.
bool writeEtap(Edytor& e, int number, std::span<const Bajt> image) {
    const auto path = etapPath(e, number);
    const bool current = number == e.NumerEtapu;
    const bool keep = (current && !e.etapPrzejety) || lengthOf(e.system, path) != ETAP_SIZE_BYTES;
    if (!(keep ? writeKeepingOld(e.system, path, image) : writeWhole(e.system, path, image)))
        return false;
    if (current)
        e.etapPrzejety = false; // until the editor has taken over the archive's stage
    return true;
}

} // namespace

void cmdSaveArch_Click(Edytor& e) {
    PackEtap(e);
    if (!writeBiezacyEtap(e))
        return;
    if (!writeAutorGry(e))
        return;
    const auto etapy = readAllEtapy(e);
    if (!etapy)
        return;
    const Bajty archiwum = assemble(autorGryBytes(e), *etapy);
    if (archiwum.size() != ARCHIWUM_SIZE_BYTES) {
        askMessage(e.haki, komunikaty::NIE_MOZNA_PLIKU);
        return;
    }
    const auto path = askSavePath(e, {std::string(NAZWA_ARCHIWUM), e.OstatniaSciezka, FILTR_ZAPISU});
    if (!path || !writeChosen(e, *path, archiwum))
        return;
    askMessage(e.haki, komunikaty::ARCHIWUM_ZAPISANE);
}

void cmdLoadArch_Click(Edytor& e) {
    const auto path = askOpen(e.haki, {"", e.OstatniaSciezka, FILTR_ODCZYTU});
    if (!path)
        return;
    const auto length = lengthOf(e.system, *path);
    if (!length)
        return;
    if (*length != ARCHIWUM_SIZE_BYTES) {
        askMessage(e.haki, komunikaty::ZLY_FORMAT);
        return;
    }
    e.OstatniaSciezka = *path;
    const auto archiwum = readFirst(e.system, *path, ARCHIWUM_SIZE_BYTES);
    if (!archiwum)
        return;
    const std::span<const Bajt> bytes(*archiwum);
    for (std::size_t i = 0; i < e.okno.txtAutorGry.size(); ++i)
        SetTekst(e.okno.txtAutorGry[i], Tekst::fromBytes(bytes.subspan(i * LINIA_WIDTH, LINIA_WIDTH)));
    for (int number = 1; number <= ETAPY_COUNT; ++number)
        if (!writeEtap(e, number, bytes.subspan(rekordArchiwum(number), ETAP_SIZE_BYTES)))
            return;
    if (!writeAutorGry(e))
        return;
    (void)readEtap(e, e.NumerEtapu);
}

} // namespace dorva
