// What the whole program sets once: its look and its language.
#pragma once

class QApplication;

namespace dorva {

// One look on every desktop, and Qt's own dialogs in Polish.
void setUpApplication(QApplication&);

} // namespace dorva
