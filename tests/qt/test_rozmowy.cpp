#include "window_desk.h"

#include "qt/rozmowy.h"

#include <QFile>
#include <QFileDialog>
#include <QStandardPaths>
#include <QTreeView>

namespace dorva::test {
namespace {

class DialogWindows : public WindowDesk {
protected:
    // Answers the next file dialog with a name.
    void whenAskedChoose(const fs::path& name) {
        whenAsked<QFileDialog>([this, name](QFileDialog* dialog) {
            words = {dialog->windowTitle()};
            for (auto label : {QFileDialog::LookIn, QFileDialog::FileName, QFileDialog::FileType, QFileDialog::Accept,
                               QFileDialog::Reject})
                words += dialog->labelText(label);
            words += dialog->nameFilters();
            words += dialog->findChild<QLineEdit*>("fileNameEdit")->text();
            folder = dialog->directory().absolutePath();
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(name.string()));
            static_cast<QDialog*>(dialog)->accept();
        });
    }
    QStringList words;
    QString folder;
};

TEST_F(DialogWindows, AStageGoesOutAndComesBack) {
    open();
    const fs::path copy = root / QString::fromUtf8("mój etap").toStdString();
    writeFile(copy, {1, 2, 3});
    whenAskedChoose(copy);
    QTimer::singleShot(0, [this] { // the only question about it
        whenAskedPress("OK");
        QTimer::singleShot(0, [this] { whenAskedPress("OK"); });
    });
    click("cmdSave");
    EXPECT_EQ(words.join("|"), "Zapisywanie jako|Szukaj w:|&Nazwa pliku:|Pliki typu:|&Zapisz|&Anuluj|"
                               "Etap gry (DETAP.*)|Wszystkie pliki (*.*) (*)|DETAP.1");
    EXPECT_EQ(folder, QString::fromStdString(fs::canonical(root).generic_string()));
    EXPECT_EQ(said.join(" "),
              "Ostrzeżenie!|Plik już istnieje!\nZastąpić? Informacja|Dane etapu zostały pomyślnie zapisane");
    EXPECT_EQ(readFile(copy), sampleEtap(1));

    writeFile(copy, sampleEtap(9));
    whenAskedChoose(copy);
    click("cmdLoad");
    EXPECT_EQ(words.mid(0, 6).join("|"), "Otwieranie|Szukaj w:|&Nazwa pliku:|Pliki typu:|&Otwórz|&Anuluj");
    EXPECT_EQ(find<QLabel>("lblInfo(3)")->text(), "9");
    EXPECT_FALSE(
        QFile::exists(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/QtProject.conf"));
}

TEST_F(DialogWindows, AMissingNameEndsTheOperationWithoutAWord) {
    open();
    const fs::path before = e.OstatniaSciezka, missing = root / "brak";
    QTimer stuck; // where the dialog stays open, or asks
    QObject::connect(&stuck, &QTimer::timeout, [] {
        ADD_FAILURE() << "a dialog is still there";
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            dialog->reject();
    });
    stuck.start(2000);
    whenAskedChoose(missing);
    click("cmdLoadArch");
    EXPECT_EQ(e.OstatniaSciezka, before);
    whenAskedChoose(missing);
    click("cmdLoad");
    EXPECT_EQ(e.OstatniaSciezka, missing);
    EXPECT_EQ(said, QStringList());
    EXPECT_FALSE(fs::exists(missing));
}

TEST_F(DialogWindows, FilesAreListedByNumberAndAlphabetInPolish) {
    open();
    e.OstatniaSciezka = base / "ETAPY";
    for (const char8_t* name : {u8"DETAP.zebra", u8"DETAP.ćma"})
        writeFile(base / "ETAPY" / fs::path(name), {});
    whenAsked<QFileDialog>([](QFileDialog* dialog) {
        const auto* list = dialog->findChild<QTreeView*>("treeView");
        const auto text = [&](int row, int column) {
            return list->model()->index(row, column, list->rootIndex()).data().toString();
        };
        EXPECT_TRUE(QTest::qWaitFor([&] { return text(33, 1) != ""; }));
        EXPECT_EQ(text(9, 0), "DETAP.10");
        EXPECT_EQ(text(32, 0), QString("DETAP.ćma"));
        EXPECT_EQ(text(33, 0), QString("DETAP.zebra"));
        EXPECT_EQ(QCoreApplication::translate("QFileDialog", "Directory:"), "Katalog:"); // the toolkit's own words
        EXPECT_EQ(text(9, 1), "931 B");
        EXPECT_EQ(text(9, 3).left(10), QDate::currentDate().toString("dd.MM.yyyy"));
        EXPECT_TRUE(list->isColumnHidden(2));
        EXPECT_EQ(list->model()->headerData(3, Qt::Horizontal), "Data zmiany");
        dialog->reject();
    });
    click("cmdLoad");
}

TEST_F(DialogWindows, KeysAndIconOfEveryMessage) {
    const std::map<Ikona, QMessageBox::Icon> icons{{Ikona::Critical, QMessageBox::Critical},
                                                   {Ikona::Warning, QMessageBox::Warning},
                                                   {Ikona::Information, QMessageBox::Information}};
    const std::map<Przyciski, std::pair<Qt::Key, Qt::Key>> letters{{Przyciski::Ok, {Qt::Key_O, Qt::Key_O}},
                                                                   {Przyciski::OkCancel, {Qt::Key_O, Qt::Key_A}},
                                                                   {Przyciski::YesNo, {Qt::Key_T, Qt::Key_N}}};
    for (auto [ikona, icon] : icons)
        for (auto [przyciski, letter] : letters)
            for (Qt::Key key : {letter.first, letter.second, Qt::Key_Return, Qt::Key_Escape}) {
                whenAsked<QMessageBox>([key, icon = icon](QMessageBox* box) {
                    EXPECT_EQ(box->icon(), icon);
                    QTest::keyClick(box, key);
                });
                const bool answer = showMessageBox(okno.get(), {"tytuł", "tekst", ikona, przyciski});
                const bool byEnter = key == Qt::Key_Return && ikona != Ikona::Warning; // what can't be undone isn't
                EXPECT_EQ(answer, przyciski == Przyciski::Ok || key == letter.first || byEnter)
                    << int(ikona) << int(przyciski) << key;
            }
}

TEST_F(DialogWindows, WhatBlocksTheWindowFirstShowsWhatWasDone) {
    open();
    const auto expectShown = [this](auto&& hook, const auto& question) {
        e.okno.caption += "!";
        whenAsked<QDialog>([this](QDialog* dialog) {
            EXPECT_EQ(okno->windowTitle(), QString::fromStdString(e.okno.caption));
            dialog->reject();
        });
        EXPECT_FALSE(hook(question));
    };
    expectShown(e.haki.messageBox, Komunikat{"", "", Ikona::Critical, Przyciski::YesNo});
    expectShown(e.haki.openDialog, DialogPliku{"", root, "Pliki|*.*"});
    expectShown(e.haki.saveDialog, DialogPliku{"", root, "Pliki|*.*"});
}

TEST_F(DialogWindows, EnterPressesTheButtonInFocus) {
    open();
    whenAskedPress("Tak");
    QTest::keyClick(find("cmdCzysc"), Qt::Key_Return);
    EXPECT_EQ(cellOf(45), ZIEMIA);
    EXPECT_EQ(find<QLineEdit>("txtNazwa")->text(), QString(32, ' '));
}

} // namespace
} // namespace dorva::test
