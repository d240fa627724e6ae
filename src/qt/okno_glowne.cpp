#include "qt/okno_glowne.h"

#include "board/census.h"
#include "board/plansza.h"
#include "output/narzedzia.h"
#include "output/obraz_gry.h"
#include "qt/bitmapa_pliku.h"
#include "qt/kontrolki.h"
#include "qt/paleta_okno.h"
#include "qt/przeklad.h"
#include "qt/rozmowy.h"
#include "qt/widoki_znakow.h"
#include "qt/wytwornia.h"
#include "shell/start.h"
#include "stage/archiwum.h"
#include "stage/etap.h"
#include "stage/pola.h"
#include "stage/zbior_etapow.h"
#include "tiles/kolory.h"
#include "tiles/paleta.h"
#include "tiles/zestaw.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QCloseEvent>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>

namespace dorva {

// An option group: how many buttons, what a selection runs, where the record keeps it.
struct OknoGlowne::OpcjeOkna {
    const char* name;
    int count;
    void (*select)(Edytor&, int);
    int Okno::*selected;
};

const OknoGlowne::OpcjeOkna OknoGlowne::OPCJE[]{
    {"optEtapNR", ETAPY_COUNT, SelectEtapNR, &Okno::optEtapNR},
    {"optObiektyNR", SWIATY_COUNT, [](Edytor& e, int index) { (void)SelectObiektyNR(e, index); }, &Okno::optObiektyNR},
    {"optPPM", 2, [](Edytor& e, int index) { e.okno.optPPM = index; }, &Okno::optPPM},
    {"optNN", 2, SelectNN, &Okno::optNN}};

namespace {

QString nameOf(const char* name, int index) {
    return index < 0 ? QString(name) : QString("%1(%2)").arg(name).arg(index);
}

// To the right of the window where the screen has room, else over its left part: swatches stay in sight.
void placeBeside(QWidget& dialog, const QWidget& window) {
    constexpr int GAP = 8;
    const QRect frame = window.frameGeometry();
    const bool room = window.screen()->availableGeometry().right() > frame.right() + dialog.width() + 2 * GAP;
    dialog.move(room ? frame.right() + GAP : frame.right() - window.width() / 4 - dialog.width(), frame.top() + GAP);
}

struct PrzyciskOkna {
    const char* name;
    void (*click)(Edytor&);
};
constexpr PrzyciskOkna PRZYCISKI[]{{"cmdCzysc", cmdCzysc_Click},       {"cmdLoad", cmdLoad_Click},
                                   {"cmdSave", cmdSave_Click},         {"cmdLoadArch", cmdLoadArch_Click},
                                   {"cmdSaveArch", cmdSaveArch_Click}, {"cmdTest", cmdTest_Click},
                                   {"cmdCreate", cmdCreate_Click},     {"cmdResetKolory", cmdResetKolory_Click},
                                   {"cmdReload", cmdReload_Click},     {"cmdORN", cmdORN_Click}};

} // namespace

template <typename Operation> void OknoGlowne::run(Operation operation) {
    operation(e_);
    showRecord();
}

template <typename Widget> Widget* OknoGlowne::find(const char* name, int index) const {
    return static_cast<Widget*>(widgets_.value(nameOf(name, index)));
}

template <typename Widget, std::size_t Count> std::array<Widget*, Count> OknoGlowne::findArray(const char* name) const {
    std::array<Widget*, Count> widgets;
    for (std::size_t index = 0; index < Count; ++index)
        widgets[index] = find<Widget>(name, static_cast<int>(index));
    return widgets;
}

OknoGlowne::OknoGlowne(Edytor& e) : e_(e), obrazki_(e.zestawy) {
    setObjectName("frmDP");
    setFixedSize(OKNO_WIDTH, OKNO_HEIGHT);
    for (const Kontrolka& k : katalogOkna())
        build(k);
    imgPG_ = find<PlanszaWidget>("imgPG");
    imgZnak_ = find<WyborWidget>("imgZnak");
    imgBufor_ = find<ObrazWidget>("imgBufor");
    imgInfo_ = findArray<ObrazWidget, 10>("imgInfo");
    lblInfo_ = findArray<Etykieta, 11>("lblInfo");
    lblKodBufor_ = findArray<Etykieta, 2>("lblKodBufor");
    lblKolor_ = findArray<Etykieta, SLOTY_COUNT>("lblKolor");
    chkOstatni_ = find<QCheckBox>("chkOstatni");
    chkZachowajKolory_ = find<QCheckBox>("chkZachowajKolory");
    hscMonet_ = find<QScrollBar>("hscMonet");
    setTabOrder();
    bindHooks();
    bindEvents();
    find<QWidget>("optEtapNR", 0)->setFocus();
}

OknoGlowne::~OknoGlowne() = default;

void OknoGlowne::build(const Kontrolka& k) {
    QWidget* parent = k.container.empty() ? this : widgets_.value(toQString(k.container));
    QWidget* widget = makeWidget(k, parent);
    const QString name = nameOf(k.name.data(), k.index);
    widget->setObjectName(name);
    widget->setGeometry(pixels(k.left), pixels(k.top), pixels(k.width), pixels(k.height));
    widget->setToolTip(toQString(k.tooltip));
    widget->setEnabled(k.widac == Widac::Tak || k.widac == Widac::Schowane);
    widget->setVisible(k.widac == Widac::Tak || k.widac == Widac::Wylaczone);
    widgets_.insert(name, widget);
}

void OknoGlowne::setTabOrder() {
    QWidget* last = nullptr;
    for (std::string_view name : kolejnoscTab()) {
        // An option group is visited at its selected button, so each of its buttons joins the chain.
        for (int index = 0;; ++index) {
            QWidget* widget = widgets_.value(
                index == 0 && widgets_.contains(toQString(name)) ? toQString(name) : nameOf(name.data(), index));
            if (!widget)
                break;
            if (last)
                QWidget::setTabOrder(last, widget);
            last = widget;
        }
    }
}

// Whatever blocks the window shows first what was done up to then.
void OknoGlowne::bindHooks() {
    e_.haki.messageBox = [this](const Komunikat& komunikat) {
        showRecord();
        return showMessageBox(this, komunikat);
    };
    e_.haki.openDialog = [this](const DialogPliku& dialog) {
        showRecord();
        return askOpen(this, dialog);
    };
    e_.haki.saveDialog = [this](const DialogPliku& dialog) {
        showRecord();
        return askSave(this, dialog);
    };
    e_.haki.startProgram = [](const std::filesystem::path& program, OknoProgramu) { startDetached(program); };
    e_.haki.loadPicture = loadBitmapa;
}

void OknoGlowne::bindEvents() {
    imgPG_->onPress = [this](int cell, int button) { run([=](Edytor& e) { imgPG_MouseDown(e, cell, button); }); };
    imgPG_->onMove = [this](int cell, int buttons) { run([=](Edytor& e) { imgPG_MouseMove(e, cell, buttons); }); };
    imgZnak_->onClick = [this](int slot) { run([=](Edytor& e) { imgZnak_Click(e, slot); }); };

    for (const PrzyciskOkna& p : PRZYCISKI)
        connect(find<QPushButton>(p.name), &QPushButton::clicked, this, [this, &p] { run(p.click); });
    for (const OpcjeOkna& o : OPCJE)
        bindOptions(o);
    for (const Pole& pole : POLA)
        bindText(pole);

    for (int slot = 0; slot < SLOTY_COUNT; ++slot)
        lblKolor_[static_cast<std::size_t>(slot)]->onClick = [this, slot] {
            run([=](Edytor& e) { PickKolor(e, slot); });
        };
    for (int index = 0; index < static_cast<int>(lblInfo_.size()); ++index)
        lblInfo_[static_cast<std::size_t>(index)]->onClick = [this, index] {
            run([=](Edytor& e) { lblInfo_Click(e, index); });
        };
    connect(hscMonet_, &QScrollBar::valueChanged, this,
            [this](int value) { run([=](Edytor& e) { (void)SetMonet(e, value); }); });

    connect(chkOstatni_, &QCheckBox::clicked, this, [this] { run(chkOstatni_Click); });
    connect(chkZachowajKolory_, &QCheckBox::clicked, this,
            [this](bool checked) { run([=](Edytor& e) { e.okno.chkZachowajKolory = checked; }); });
}

void OknoGlowne::bindOptions(const OpcjeOkna& opcje) {
    auto* group = new QButtonGroup(this);
    std::vector<QPushButton*> buttons;
    for (int index = 0; index < opcje.count; ++index) {
        buttons.push_back(find<QPushButton>(opcje.name, index));
        group->addButton(buttons.back(), index);
    }
    opcje_.push_back(std::move(buttons));
    connect(group, &QButtonGroup::idClicked, this,
            [this, &opcje](int index) { run([&](Edytor& e) { opcje.select(e, index); }); });
}

void OknoGlowne::bindText(const Pole& pole) {
    auto* box = find<PoleEdycji>(pole.name.data(), pole.index);
    pola_.push_back(box);
    box->setMaxLength(static_cast<int>(pole.width));
    box->onEnter = [this, &pole] { run([&](Edytor& e) { txt_GotFocus(e, pole); }); };
    box->onLeave = [this, &pole] { run([&](Edytor& e) { txt_LostFocus(e, pole); }); };
    connect(box, &QLineEdit::textEdited, this,
            [this, &pole](const QString& typed) { run([&](Edytor& e) { txt_Change(e, pole, fromQString(typed)); }); });
}

void OknoGlowne::showRecord() {
    const Okno& okno = e_.okno;
    obrazki_.followMagazyn();
    imgPG_->showOkno(okno, obrazki_);
    imgZnak_->showOkno(okno, obrazki_);
    imgBufor_->showObraz(okno.imgBufor.obraz, obrazki_);
    showOptions();
    showFigures();
    showKolory();
    showTexts();
    showPaleta();
    shown_ = okno;
    shownOnce_ = true;
}

void OknoGlowne::showOptions() {
    const Okno& okno = e_.okno;
    for (std::size_t group = 0; group < opcje_.size(); ++group) {
        QPushButton* selected = opcje_[group][static_cast<std::size_t>(okno.*OPCJE[group].selected)];
        if (shownOnce_ && selected->isChecked())
            continue;
        selected->setChecked(true);
        // the Tab key enters a group at its selected button
        for (QPushButton* button : opcje_[group])
            button->setFocusPolicy(button == selected ? Qt::StrongFocus : Qt::ClickFocus);
    }
    chkOstatni_->setTristate(okno.chkOstatni == 2);
    chkOstatni_->setCheckState(okno.chkOstatni == 2 ? Qt::PartiallyChecked
                               : okno.chkOstatni    ? Qt::Checked
                                                    : Qt::Unchecked);
    chkOstatni_->setEnabled(okno.chkOstatniEnabled);
    chkZachowajKolory_->setChecked(okno.chkZachowajKolory);
}

void OknoGlowne::showFigures() {
    const Okno& okno = e_.okno;
    for (std::size_t i = 0; i < okno.lblInfo.size(); ++i) {
        const InfoFigura& figura = okno.lblInfo[i];
        if (shownOnce_ && figura == shown_.lblInfo[i])
            continue;
        Etykieta* label = lblInfo_[i];
        label->setText(toQString(infoCaption(static_cast<info::Figura>(i), figura.liczba)));
        setColour(label, QPalette::WindowText,
                  figura.czerwona ? QColor(Qt::red) : palette().color(QPalette::WindowText));
    }
    for (std::size_t k = 0; k < okno.imgInfo.size(); ++k)
        imgInfo_[k]->showObraz(okno.imgInfo[k], obrazki_);
    for (std::size_t i = 0; i < okno.lblKodBufor.size(); ++i)
        lblKodBufor_[i]->setText(toQString(okno.lblKodBufor[i]));
    const QSignalBlocker quiet(hscMonet_);
    hscMonet_->setValue(okno.hscMonet);
}

void OknoGlowne::showKolory() {
    const QColor white(Qt::white), lightRed(255, 192, 192);
    for (std::size_t i = 0; i < e_.okno.lblKolor.size(); ++i) {
        const KolorSlot& probka = e_.okno.lblKolor[i];
        if (shownOnce_ && probka == shown_.lblKolor[i])
            continue;
        Etykieta* label = lblKolor_[i];
        label->setText(QString::number(probka.value));
        setColour(label, QPalette::Window, toQColor(probka.tlo));
        setColour(label, QPalette::WindowText, probka.wybrany ? lightRed : white);
    }
}

// A box is written only where it shows another text than the record's, so that typing keeps the cursor.
void OknoGlowne::showTexts() {
    if (shown_.caption != e_.okno.caption)
        setWindowTitle(toQString(e_.okno.caption));
    for (std::size_t i = 0; i < pola_.size(); ++i) {
        const PoleTekstu& pole = POLA[i].box(e_.okno);
        PoleEdycji* box = pola_[i];
        if (const QString shown = toQString(pole.tekst); shown != box->text()) {
            const int cursor = box->cursorPosition();
            box->setText(shown);
            box->setCursorPosition(cursor);
        }
        if (shownOnce_ && pole.zaznaczenia != POLA[i].box(shown_).zaznaczenia)
            box->selectAll();
    }
    find<PoleEdycji>("txtAutor")->setEnabled(e_.okno.txtAutorEnabled);
}

void OknoGlowne::showPaleta() {
    const OknoPalety& okno = e_.okno.dlgPaleta;
    if (!dlgPaleta_ && !okno.otwarte)
        return;
    if (!dlgPaleta_) {
        dlgPaleta_ = new PaletaOkno(this);
        placeBeside(*dlgPaleta_, *this);
        dlgPaleta_->onPick = [this](int index) { run([=](Edytor& e) { picPaleta_Click(e, index); }); };
        dlgPaleta_->onClose = [this] { run(closePaleta); };
    }
    dlgPaleta_->showOkno(okno);
}

void OknoGlowne::closeEvent(QCloseEvent* event) {
    run([](Edytor& e) {
        Form_QueryUnload(e);
        Form_Unload(e);
    });
    event->accept();
}

} // namespace dorva
