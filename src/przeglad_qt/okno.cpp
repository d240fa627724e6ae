#include "przeglad_qt/okno.h"

#include "przeglad/ostrzezenia.h"
#include "przeglad/wersje.h"
#include "przeglad/zapis.h"
#include "przeglad/zrodla.h"
#include "przeglad_qt/arkusz.h"
#include "przeglad_qt/wybor_obrazu.h"
#include "qt/bitmapa_pliku.h"
#include "qt/czcionki.h"
#include "qt/konwersje.h"
#include "qt/rozmowy.h"
#include "shell/komunikaty.h"
#include "system/pliki.h"
#include "tiles/paski.h"

#include <QBuffer>
#include <QCloseEvent>
#include <QDir>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>
#include <QUndoCommand>
#include <QVBoxLayout>

#include <algorithm>
#include <set>
#include <string>

namespace dorva {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view TITLE = "Przegląd etapów";
constexpr std::string_view FILTR_ODCZYTU = "Archiwa i gry|*.dpa *.xex|Wszystkie pliki (*.*)|*.*";
constexpr std::string_view FILTR_ARCHIWUM = "Plik archiwum|*.dpa|Wszystkie pliki (*.*)|*.*";
constexpr std::string_view FILTR_OBRAZU = "Obraz|*.png|Wszystkie pliki (*.*)|*.*";

constexpr Komunikat ETAP_W_EDYTORZE{
    TITLE,
    "Etap otwarty teraz w edytorze jest tu taki, jaki był przy ostatnim zapisie.\nJeśli edytor jest uruchomiony, "
    "przełącz w nim najpierw na inny etap, a tutaj naciśnij F5.\n\nZapisać archiwum?",
    Ikona::Information, Przyciski::YesNo};
constexpr Komunikat ZESTAW_ROBOCZY{
    "Uwaga!", "Foldery ETAPY i PLIKI należą do edytora, przegląd niczego w nich nie zapisuje.\nWybierz inny folder.",
    Ikona::Critical, Przyciski::Ok};
constexpr Komunikat NIE_MA_WERSJI{TITLE, "Innych wersji tego etapu nie ma w folderze KOPIE.", Ikona::Information,
                                  Przyciski::Ok};
constexpr Komunikat NIE_MA_GIER{
    TITLE, "Wcześniejszych gier jeszcze nie ma.\nEdytor zachowuje całą grę przy każdym odczycie archiwum.",
    Ikona::Information, Przyciski::Ok};

// A change of the game, by its two states.
class Zmiana : public QUndoCommand {
public:
    Zmiana(const QString& caption, KartyModel& model, Arkusz& arkusz, const Gra& after, int place)
        : QUndoCommand(caption), model_(model), arkusz_(arkusz), before_(model.gra()), after_(after),
          placeBefore_(arkusz.place()), placeAfter_(place) {}

    void undo() override { show(before_, placeBefore_); }
    void redo() override { show(after_, placeAfter_); }

private:
    void show(const Gra& gra, int place) {
        model_.setGra(gra);
        arkusz_.select(place);
    }

    KartyModel& model_;
    Arkusz& arkusz_;
    Gra before_, after_;
    int placeBefore_, placeAfter_;
};

// Loads the tile sets anew. A world whose pictures are gone is shown without.
void loadZestawy(Magazyn& magazyn, const fs::path& base) {
    magazyn.imgZnak = {};
    ++magazyn.wersja;
    Haki haki;
    haki.loadPicture = loadBitmapa;
    const auto zestawy = listZestawy(SYSTEM_CALLS, base);
    for (Swiat swiat = 0; swiat < std::min<int>(SWIATY_COUNT, zestawy.size()); ++swiat)
        (void)loadPasek(magazyn, haki, zestawy[swiat], swiat);
}

// "Brakujące etapy (3, 4) są w nim puste."
std::string missingText(const Gra& gra) {
    std::set<int> numbers;
    for (int i = 0; i < ETAPY_COUNT; ++i)
        if (gra.karty[i].image.empty())
            numbers.insert(i + 1);
    return numbers.empty() ? "" : "\nBrakujące etapy są w nim puste: " + listed(numbers) + ".";
}

void say(QWidget* parent, const Komunikat& komunikat) {
    (void)showMessageBox(parent, komunikat);
}

void say(QWidget* parent, const std::string& text, Ikona ikona) {
    say(parent, {TITLE, text, ikona, Przyciski::Ok});
}

} // namespace

OknoPrzegladu::OknoPrzegladu(const fs::path& base, std::string_view version)
    : base_(base), ostatniaSciezka_(base.parent_path()) {
    setWindowTitle(toQString(TITLE) + " [wersja " + toQString(version) + "][*]");
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(true);
    resize(QSize(1100, 800).boundedTo(screen()->availableSize() * 9 / 10));

    auto* middle = new QWidget(this);
    opis_ = new QLabel(middle);
    opis_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    opis_->setTextFormat(Qt::PlainText);
    opis_->setWordWrap(true);
    linie_ = new QLabel(middle);
    linie_->setTextFormat(Qt::PlainText);
    linie_->setFont(fontStaly());
    linie_->setAlignment(Qt::AlignCenter);
    arkusz_ = new Arkusz(model_, rysownik_, middle);
    arkusz_->onMove = [this](int from, int to) { change("przesunięcie", moved(model_.gra(), from, to), to); };
    arkusz_->onExchange = [this](int one, int other) { change("zamianę", exchanged(model_.gra(), one, other), other); };
    arkusz_->onHint = [this](const QString& text) { statusBar()->showMessage(text); };
    auto* layout = new QVBoxLayout(middle);
    for (QWidget* widget : {static_cast<QWidget*>(opis_), static_cast<QWidget*>(linie_)})
        layout->addWidget(widget);
    layout->addWidget(arkusz_, 1);
    setCentralWidget(middle);
    ostrzezenia_ = new QLabel(this);
    statusBar()->addPermanentWidget(ostrzezenia_);

    addActions();
    connect(&zmiany_, &QUndoStack::cleanChanged, this, [this](bool clean) { setWindowModified(!clean); });
    connect(&zmiany_, &QUndoStack::indexChanged, this, &OknoPrzegladu::showStatus);
    connect(arkusz_->selectionModel(), &QItemSelectionModel::currentChanged, statusBar(), &QStatusBar::clearMessage);
    upuszczenie_.setSingleShot(true);
    connect(&upuszczenie_, &QTimer::timeout, this, [this] { open(upuszczony_); });
    showGra(readZestaw(SYSTEM_CALLS, base_), base_);
    arkusz_->setFocus();
}

void OknoPrzegladu::addActions() {
    QMenu* plik = menuBar()->addMenu("&Plik");
    QAction* otworz = plik->addAction("&Otwórz...", QKeySequence::Open, this, &OknoPrzegladu::askOpen);
    QAction* wczesniejsza = plik->addAction("Otwórz &wcześniejszą grę...", this, &OknoPrzegladu::openEarlier);
    plik->addAction("Otwórz &etapy edytora", this, &OknoPrzegladu::openZestaw);
    QAction* odswiez = plik->addAction("O&dśwież", Qt::Key_F5, this, &OknoPrzegladu::refresh);
    plik->addSeparator();
    QAction* archiwum = plik->addAction("&Zapisz archiwum...", QKeySequence::Save, this, &OknoPrzegladu::saveArchiwum);
    QAction* obraz = plik->addAction("Zapisz o&braz...", this, &OknoPrzegladu::saveObraz);
    plik->addSeparator();
    plik->addAction("Za&kończ", QKeySequence::Quit, this, &QWidget::close);

    QMenu* etap = menuBar()->addMenu("&Etap");
    QAction* cofnij = zmiany_.createUndoAction(this, "Cofnij");
    QAction* ponow = zmiany_.createRedoAction(this, "Ponów");
    cofnij->setShortcuts(QKeySequence::Undo);
    ponow->setShortcuts(QKeySequence::Redo);
    etap->addActions({cofnij, ponow});
    etap->addSeparator();
    QAction* wersje = etap->addAction("&Wcześniejsze wersje...", this, &OknoPrzegladu::chooseWersja);
    wersje->setShortcuts({Qt::Key_Enter, Qt::Key_Return}); // the first is shown, and keyboards here say Enter
    connect(arkusz_, &QListView::doubleClicked, wersje, &QAction::trigger); // a click may activate, on some desktops
    arkusz_->addAction(wersje);
    arkusz_->setContextMenuPolicy(Qt::ActionsContextMenu);
    etap->addSeparator();
    const auto addMove = [&](const char* caption, Qt::Key key, int columns, int rows) {
        etap->addAction(caption, Qt::CTRL | key, this, [=, this] { move(columns + rows * arkusz_->columns()); });
    };
    addMove("Przesuń w &lewo", Qt::Key_Left, -1, 0);
    addMove("Przesuń w p&rawo", Qt::Key_Right, 1, 0);
    addMove("Przesuń w &górę", Qt::Key_Up, 0, -1);
    addMove("Przesuń w &dół", Qt::Key_Down, 0, 1);
    etap->addSeparator();
    QAction* nastepne = etap->addAction("Następne &ostrzeżenie", Qt::Key_F8, this, &OknoPrzegladu::nextOstrzezenie);

    QToolBar* pasek = addToolBar("Czynności");
    pasek->setMovable(false);
    pasek->addActions({otworz, wczesniejsza, odswiez});
    pasek->addSeparator();
    pasek->addActions({archiwum, obraz});
    pasek->addSeparator();
    pasek->addActions({cofnij, ponow, wersje, nastepne});
}

void OknoPrzegladu::showGra(const Gra& gra, const fs::path& source) {
    loadZestawy(frmZestawy_, base_);
    const int place = source == zrodlo_ ? arkusz_->place() : 0; // the same game again keeps its place
    zrodlo_ = source;
    const QString name = QDir::toNativeSeparators(nameOfPath(source));
    opis_->setText(source == base_ ? "Etapy edytora z folderu " + name +
                                         ". Etap otwarty teraz w edytorze jest tu taki, jaki był przy ostatnim zapisie."
                                   : "Otwarto: " + name);
    QStringList linie;
    for (const Tekst& linia : gra.linie)
        linie += toQString(trimmed(linia));
    linie_->setText(linie.join('\n'));
    model_.setGra(gra);
    zmiany_.clear();
    arkusz_->select(std::max(place, 0));
    showStatus();
}

void OknoPrzegladu::showStatus() {
    statusBar()->clearMessage(); // it was of the game before
    int count = 0;
    for (int i = 0; i < ETAPY_COUNT; ++i)
        count += static_cast<int>(model_.ostrzezenia(i).size());
    ostrzezenia_->setText(count == 0 ? QString("Bez ostrzeżeń") : QString("Ostrzeżenia: %1 (F8: następne)").arg(count));
}

bool OknoPrzegladu::mayDiscard() {
    if (zmiany_.isClean())
        return true;
    QMessageBox box(QMessageBox::Warning, toQString(TITLE), "Zmiany nie są zapisane w archiwum.\nZapisać je?",
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.button(QMessageBox::Save)->setText("&Zapisz archiwum...");
    box.button(QMessageBox::Discard)->setText("&Nie zapisuj");
    box.button(QMessageBox::Cancel)->setText("&Anuluj");
    const int answer = box.exec();
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && saveArchiwum());
}

void OknoPrzegladu::change(const QString& caption, const Gra& after, int place) {
    if (after != model_.gra())
        zmiany_.push(new Zmiana(caption, model_, *arkusz_, after, place));
}

void OknoPrzegladu::open(const fs::path& path) {
    if (!mayDiscard()) // may also write the very file
        return;
    const Odczyt odczyt = readZrodlo(SYSTEM_CALLS, path);
    if (!odczyt.gra)
        return say(this, path.filename().string() + "\n\n" + odczyt.dlaczego, Ikona::Critical);
    showGra(*odczyt.gra, path);
}

void OknoPrzegladu::askOpen() {
    const auto path = showOpenDialog(this, {"", ostatniaSciezka_, FILTR_ODCZYTU});
    if (!path)
        return;
    ostatniaSciezka_ = *path;
    open(*path);
}

void OknoPrzegladu::openZestaw() {
    if (mayDiscard())
        showGra(readZestaw(SYSTEM_CALLS, base_), base_);
}

void OknoPrzegladu::refresh() {
    if (zrodlo_ == base_)
        openZestaw();
    else
        open(zrodlo_);
}

void OknoPrzegladu::openEarlier() {
    const int side = qRound(2 * devicePixelRatio());
    std::vector<fs::path> paths;
    std::vector<Propozycja> propozycje;
    for (const Kopia& kopia : listGry(SYSTEM_CALLS, base_))
        if (const Odczyt odczyt = readZrodlo(SYSTEM_CALLS, kopia.path); odczyt.gra) {
            paths.push_back(kopia.path);
            propozycje.push_back({rysownik_.film(*odczyt.gra, side), czasKopii(kopia.made)});
        }
    if (propozycje.empty())
        return say(this, NIE_MA_GIER);
    if (const auto chosen = chooseObraz(this, "Wcześniejsze gry", "&Otwórz", propozycje))
        open(paths[*chosen]);
}

void OknoPrzegladu::chooseWersja() {
    const int place = arkusz_->place();
    if (place < 0)
        return;
    const Karta& karta = model_.gra().karty[place];
    const auto wersje = listWersje(SYSTEM_CALLS, base_, karta.numer, karta.image);
    if (wersje.empty())
        return say(this, NIE_MA_WERSJI);
    std::vector<Propozycja> propozycje;
    propozycje.reserve(wersje.size());
    for (const auto& [image, made] : wersje)
        propozycje.push_back({rysownik_.plansza(image, qRound(8 * devicePixelRatio())), czasKopii(made)});
    const QString title = QString("Wcześniejsze wersje etapu %1").arg(karta.numer);
    if (const auto chosen = chooseObraz(this, title, "&Weź tę", propozycje))
        change("wcześniejszą wersję", replaced(model_.gra(), place, wersje[*chosen].image), place);
}

bool OknoPrzegladu::writeAsked(std::string_view name, std::string_view filter, std::span<const Bajt> bytes) {
    auto path = showSaveDialog(this, {std::string(name), ostatniaSciezka_, filter});
    if (!path)
        return false;
    if (!path->has_extension())
        *path += fs::path(name).extension();
    if (isInZestaw(SYSTEM_CALLS, base_, *path)) {
        say(this, ZESTAW_ROBOCZY);
        return false;
    }
    if (fileExists(SYSTEM_CALLS, *path) && !showMessageBox(this, komunikaty::ZASTAPIC))
        return false;
    ostatniaSciezka_ = *path;
    const bool isWritten = writeWhole(SYSTEM_CALLS, *path, bytes);
    if (!isWritten)
        say(this, komunikaty::NIE_MOZNA_PLIKU);
    return isWritten;
}

bool OknoPrzegladu::saveArchiwum() {
    if (!saidStored_ && zrodlo_ == base_ && !showMessageBox(this, ETAP_W_EDYTORZE))
        return false;
    saidStored_ = true;
    if (!writeAsked("DPArchiwum.dpa", FILTR_ARCHIWUM, archiwumOf(model_.gra())))
        return false;
    zmiany_.setClean();
    say(this,
        std::string(komunikaty::ARCHIWUM_ZAPISANE.text) + ".\nDo edytora wczyta je przycisk „Odczyt archiwum”." +
            missingText(model_.gra()),
        Ikona::Information);
    return true;
}

void OknoPrzegladu::saveObraz() {
    QByteArray png;
    QBuffer buffer(&png);
    if (!rysownik_.arkusz(model_.gra()).save(&buffer, "PNG"))
        return say(this, komunikaty::NIE_MOZNA_PLIKU);
    const Bajty bytes(png.begin(), png.end());
    if (writeAsked("Dorva - etapy.png", FILTR_OBRAZU, bytes))
        statusBar()->showMessage("Zapisano obraz " + nameOfPath(ostatniaSciezka_));
}

void OknoPrzegladu::nextOstrzezenie() {
    // The selected card's own, too, if they aren't shown yet.
    const int first = arkusz_->place() + (statusBar()->currentMessage().isEmpty() ? 0 : 1);
    for (int step = 0; step < ETAPY_COUNT; ++step) {
        const int place = (first + step) % ETAPY_COUNT;
        if (model_.ostrzezenia(place).empty())
            continue;
        arkusz_->select(place);
        return statusBar()->showMessage(QString("Etap %1: ").arg(place + 1) + model_.ostrzezenia(place).join("; "));
    }
    statusBar()->showMessage("Nie ma ostrzeżeń");
}

void OknoPrzegladu::move(int by) {
    const int from = arkusz_->place(), to = from + by;
    if (from >= 0 && to >= 0 && to < ETAPY_COUNT)
        change("przesunięcie", moved(model_.gra(), from, to), to);
}

void OknoPrzegladu::closeEvent(QCloseEvent* event) {
    event->setAccepted(mayDiscard());
}

void OknoPrzegladu::dragEnterEvent(QDragEnterEvent* event) {
    const auto urls = event->mimeData()->urls();
    if (urls.size() == 1 && urls.first().isLocalFile())
        event->acceptProposedAction();
}

void OknoPrzegladu::dropEvent(QDropEvent* event) {
    upuszczony_ = toPath(event->mimeData()->urls().first().toLocalFile());
    event->acceptProposedAction();
    // Not before the other program is told that the drop is done: a message would hold it up.
    upuszczenie_.start(0);
}

} // namespace dorva
