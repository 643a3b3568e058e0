#pragma once

#include <QChar>
#include <QString>
#include <QStringList>

namespace tamo {

// The rules for folder texts are functions of a text and a separator, so that the rules of both
// kinds of platform can be tested on one machine. Both separators are understood in a text that is
// read; the platform's own is written.

inline constexpr QChar kBackslash = QLatin1Char('\\');
inline constexpr QChar kSlash = QLatin1Char('/');

QChar PlatformSeparator();

bool EndsInSeparator(const QString& path);

// The data folder's text brought to its form: a separator at the end when it is longer than 2
// characters; "Tamo" and a separator appended when it is at least 5 long and does not end in "Tamo"
// and a separator (in any case). So every data folder is named Tamo; a root such as C:\ stays as it
// is.
QString FixedDataPath(QString path, QChar separator);

// The folders that lead to `path`, outermost first: for each separator, the text before it. Empty
// texts and the bare drive are left out.
QStringList FolderLevels(const QString& path);

// `folder`, with a separator at its end or without, and the name of something in it.
QString InFolder(const QString& folder, const QString& name);

// `folder` without separators at its end; a root keeps its own.
QString BareFolder(QString folder);

// What stands behind the last separator of either kind.
QString FileNameOf(const QString& path);
// Everything before the last separator, without it; "" when there is none.
QString FolderOf(const QString& path);

// `path` with every separator turned into the platform's own.
QString NativePath(QString path);

// Why a name cannot be a file's name: "" when it can. Refused are an empty name, separators, "."
// and "..", control characters, a reserved device name (CON, NUL, COM1 ... in any case, with or
// without an extension), and a name too long for a file (over 200 bytes). The text names the name
// and says what to do.
QString NameRefusal(const QString& name);

}  // namespace tamo
