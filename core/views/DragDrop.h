#pragma once

#include <QString>
#include <QStringList>

#include <functional>

// What the views and the controls agree on for dragging rules from the list onto the tree.
namespace DragDrop {

// The private format of the drag: the rows' keys joined with "|", closed by "||".
inline constexpr char ClipboardFormat[] = "TARNTFORMAT-QUORINADMIN";
// The same format as the MIME type a Qt drag carries.
inline constexpr char MimeType[] = "application/x-tarntformat-quorinadmin";

enum Effect { EffectNone = 0, EffectCopy = 1, EffectMove = 2 };
enum State { StateEnter = 0, StateLeave = 1, StateOver = 2 };

// A node hovered this many whole seconds opens, or scrolls at the edges.
inline constexpr int HoverSeconds = 2;

QString payload(const QStringList &keys);
// The keys part of the data: up to the first "||".
QString keyList(const QString &data);

// Whole seconds since midnight: the clock of the hover. Tests put their own clock in.
int secondsSinceMidnight();
void setClock(std::function<int()> clock);

} // namespace DragDrop
