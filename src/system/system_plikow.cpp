#include "system/system_plikow.h"

#include "system/pliki.h"

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace dorva {
namespace {

int openFile(const char* path, int flags, ::mode_t mode) {
    return ::open(path, flags, mode);
}

} // namespace

const SystemPlikow SYSTEM_PLIKOW{openFile, ::read,  ::write, ::fsync,  ::close,    ::rename,  ::link,    ::unlink,
                                 ::stat,   ::lstat, ::fstat, ::fchmod, ::readlink, ::opendir, ::readdir, ::closedir};

} // namespace dorva
