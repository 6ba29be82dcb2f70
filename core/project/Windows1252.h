#pragma once

#include <QByteArrayView>
#include <QString>

// Visual Basic source and project files are Windows-1252 text. The decoder is our own because
// not every platform's converter knows that code page.
namespace Windows1252 {

QString decode(QByteArrayView bytes);

} // namespace Windows1252
