#include "qt/programy.h"

#include "qt/konwersje.h"
#include "system/pliki.h"
#include "system/system_calls.h"

#include <QDir>
#include <QProcess>

#include <filesystem>

namespace dorva {
namespace {

bool hasInterpreterLine(const std::filesystem::path& program) {
    const auto start = readFirst(SYSTEM_CALLS, program, 2);
    return start && (*start)[0] == '#' && (*start)[1] == '!';
}

} // namespace

void startProgram(const std::filesystem::path& program, OknoProgramu) {
    if (!lengthOf(SYSTEM_CALLS, program))
        return;
    const bool script = program.extension() == ".BAT" && !hasInterpreterLine(program);
    const QString name = nameOfPath(program);
    QProcess process;
    process.setProgram(script ? "sh" : name);
    process.setArguments(script ? QStringList{name} : QStringList{});
    process.setWorkingDirectory(QDir::currentPath());
    process.setStandardInputFile(QProcess::nullDevice());
    process.startDetached();
}

} // namespace dorva
