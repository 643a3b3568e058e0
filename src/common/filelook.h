#pragma once

#include <QByteArray>

namespace tamo {

// Gives the open new file `handle` what the file `from` (its encoded path) has beside its content:
// owner and group, rights, extended attributes and with them its list of access rights. What the
// system does not let be given is left; rights of a group that could not be given are not given to
// another one.
void TakeOverLook(int handle, const QByteArray& from);

}  // namespace tamo
