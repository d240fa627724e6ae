// Signals that ask the program to end: a logout, a shutdown, Ctrl+C.
#pragma once

class QWidget;

namespace dorva {

// From now on such a signal closes the window, which stores the work as any other way of closing does.
void closeOnSignals(QWidget& window);

} // namespace dorva
