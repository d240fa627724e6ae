#include "window_desk.h"

#include "qt/rozmowy.h"

#include <QFile>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTreeView>

namespace dorva::test {
namespace {

using DialogWindows = WindowDesk;

TEST_F(DialogWindows, AStageGoesOutAndComesBack) {
    open();
    const fs::path copy = root / QString::fromUtf8("mój etap").toStdString();
    writeFile(copy, {1, 2, 3});
    click("cmdSave", {name(copy), "OK", "OK"});
    EXPECT_EQ(said.join("|"), "Plik już istnieje!\nZastąpić?|Dane etapu zostały pomyślnie zapisane");
    EXPECT_EQ(readFile(copy), sampleEtap(1));
    writeFile(copy, sampleEtap(9));
    look = [this](QDialog* dialog) {
        EXPECT_EQ(static_cast<QFileDialog*>(dialog)->directory(), QDir(name(fs::canonical(root))));
    };
    click("cmdLoad", {name(copy)});
    EXPECT_EQ(find<QScrollBar>("hscMonet")->value(), 9);
    click("cmdLoad", {name(root / "nie ma")});
    EXPECT_EQ(e.OstatniaSciezka, root / "nie ma");
    EXPECT_FALSE(
        QFile::exists(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/QtProject.conf"));
}

TEST_F(DialogWindows, EnterOnAButtonAsksItsQuestionOverWhatWasDone) {
    open();
    const std::pair<const char*, const char*> rows[]{
        {"cmdCzysc", "Czyszczenie usunie całą zawartość mapy!\nKontynuować?"},
        {"cmdLoad", "Otwieranie|&Otwórz|Etapy gry (DETAP.*)|Wszystkie pliki (*.*) (*)|"},
        {"cmdSave", "Zapisywanie jako|&Zapisz|Etap gry (DETAP.*)|Wszystkie pliki (*.*) (*)|DETAP.1"},
        {"cmdLoadArch", "Otwieranie|&Otwórz|Pliki archiwum (*.dpa)|Wszystkie pliki (*.*) (*)|"},
        {"cmdSaveArch", "Zapisywanie jako|&Zapisz|Plik archiwum (*.dpa)|Wszystkie pliki (*.*) (*)|DPArchiwum.dpa"},
        {"cmdTest", "Został utworzony plik XEX z testowanym etapem.\nUruchomić plik na emulatorze Atari?"},
        {"cmdCreate", "Zapisywanie jako|&Zapisz|Plik gry (*.xex)|Wszystkie pliki (*.*) (*)|Dorva - wyprawy.xex"},
    };
    QString asked;
    look = [&](QDialog* dialog) {
        EXPECT_EQ(okno->windowTitle(), QString::fromStdString(e.okno.caption));
        asked = dialog->property("text").toString();
        if (auto* files = qobject_cast<QFileDialog*>(dialog)) {
            QStringList words{files->windowTitle(), files->labelText(QFileDialog::Accept)};
            words += files->nameFilters();
            words += files->findChild<QLineEdit*>("fileNameEdit")->text();
            asked = words.join("|");
        }
    };
    for (const auto& [button, question] : rows) {
        e.okno.caption += "!"; // the window shows it before it asks
        answering({""}, [&, b = button] { QTest::keyClick(find(b), Qt::Key_Return); });
        EXPECT_EQ(asked, QString(question)) << button;
    }
}

TEST_F(DialogWindows, FilesAreListedByNumberAndAlphabetInPolish) {
    open();
    e.OstatniaSciezka = base / "ETAPY";
    for (const char8_t* name : {u8"DETAP.zoo", u8"DETAP.ćma"})
        writeFile(base / "ETAPY" / fs::path(name), {});
    look = [](QDialog* dialog) {
        const auto* list = dialog->findChild<QTreeView*>("treeView");
        const auto row = [&](int number) {
            QStringList cells;
            for (int column : {0, 1, 3})
                cells += list->model()->index(number, column, list->rootIndex()).data().toString().left(10);
            return cells.join(" ");
        };
        const QString today = QDate::currentDate().toString(" dd.MM.yyyy");
        EXPECT_TRUE(QTest::qWaitFor([&] { return row(33) == "DETAP.zoo 0 B" + today; }));
        EXPECT_EQ(row(32), "DETAP.ćma 0 B" + today);
        EXPECT_EQ(row(9), "DETAP.10 931 B" + today);
        EXPECT_TRUE(list->isColumnHidden(2));
        EXPECT_EQ(list->model()->headerData(3, Qt::Horizontal), "Data zmiany");
        EXPECT_EQ(QCoreApplication::translate("QFileDialog", "Directory:"), "Katalog:"); // the toolkit's own words
    };
    click("cmdLoad", {""});
}

TEST_F(DialogWindows, KeysAndIconOfEveryMessage) {
    for (auto [ikona, icon] : {std::pair(Ikona::Critical, QMessageBox::Critical),
                               {Ikona::Warning, QMessageBox::Warning},
                               {Ikona::Information, QMessageBox::Information}})
        for (auto [przyciski, yes, no] : {std::tuple(Przyciski::Ok, Qt::Key_O, Qt::Key_O),
                                          {Przyciski::OkCancel, Qt::Key_O, Qt::Key_A},
                                          {Przyciski::YesNo, Qt::Key_T, Qt::Key_N}})
            for (Qt::Key key : {yes, no, Qt::Key_Return, Qt::Key_Escape}) {
                QTimer::singleShot(0, [key, icon = icon] {
                    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                    EXPECT_EQ(box->icon(), icon);
                    EXPECT_EQ(box->windowTitle(), "tytuł");
                    QTest::keyClick(box, key);
                });
                const bool answer = showMessageBox(okno.get(), {"tytuł", "tekst", ikona, przyciski});
                const bool byEnter = key == Qt::Key_Return && ikona != Ikona::Warning; // what can't be undone isn't
                EXPECT_EQ(answer, przyciski == Przyciski::Ok || key == yes || byEnter)
                    << int(ikona) << int(przyciski) << key;
            }
}

} // namespace
} // namespace dorva::test
