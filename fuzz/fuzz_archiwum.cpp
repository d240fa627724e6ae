// An archive file of any bytes and any length into the working set and out again.
#include "niezmienniki.h"
#include "pamiec.h"
#include "stage/archiwum.h"

using namespace dorva;
using fuzz::pamiec;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Edytor e;
    static int messages;
    e.system = fuzz::systemPamieci();
    e.KatalogBazowy = "/p";
    e.haki.messageBox = [](const Komunikat&) { return ++messages, true; };
    e.haki.openDialog = [](const DialogPliku&) { return std::optional<std::filesystem::path>("/gra.dpa"); };
    e.haki.saveDialog = [](const DialogPliku&) { return std::optional<std::filesystem::path>("/nowa.dpa"); };
    pamiec = {};
    messages = 0;
    fuzz::Strumien input{{data, size}};
    e.NumerEtapu = input.byte() % ETAPY_COUNT + 1;
    e.etapPrzejety = e.autorPrzejety = true;
    const std::size_t wrong = input.byte() < 16 ? static_cast<std::size_t>(input.byte()) : 0;

    // Few input bytes fill a whole archive: each record is a window of them.
    Bajty archive(AUTOR_GRY_SIZE_BYTES + wrong, ' ');
    while (archive.size() < ARCHIWUM_SIZE_BYTES + wrong) {
        const Bajty record = input.filled(ETAP_SIZE_BYTES);
        archive.insert(archive.end(), record.begin(), record.end());
    }
    std::copy_n(archive.end() - ETAP_SIZE_BYTES, AUTOR_GRY_SIZE_BYTES, archive.begin());
    pamiec.put("/gra.dpa", archive);

    cmdLoadArch_Click(e);
    SPRAWDZ(messages == (wrong != 0 ? 1 : 0));
    if (wrong != 0) {
        SPRAWDZ(pamiec.pliki.size() == 1);
        return 0;
    }
    for (int number = 1; number <= ETAPY_COUNT; ++number) {
        const Bajty& stage = *pamiec.pliki.at(etapPath(e, number).string());
        SPRAWDZ(stage.size() == ETAP_SIZE_BYTES);
        SPRAWDZ(std::ranges::equal(stage,
                                   std::span(archive).subspan(60 + 931 * static_cast<std::size_t>(number - 1), 931)));
    }
    cmdSaveArch_Click(e);
    const Bajty& saved = *pamiec.pliki.at("/nowa.dpa");
    SPRAWDZ(saved.size() == archive.size());
    const auto own = 60 + 931 * static_cast<std::size_t>(e.NumerEtapu - 1);
    SPRAWDZ(std::equal(archive.begin(), archive.begin() + static_cast<std::ptrdiff_t>(own), saved.begin()));
    SPRAWDZ(std::equal(archive.begin() + static_cast<std::ptrdiff_t>(own) + 931, archive.end(),
                       saved.begin() + static_cast<std::ptrdiff_t>(own) + 931));
    fuzz::checkPack(e);
    return 0;
}
