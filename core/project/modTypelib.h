#pragma once

#include <QString>

#include <memory>

class VirtualComponent;
class VirtualReference;

// Reads the type library of one ActiveX file for the authorised item dialogs and for files
// dropped on the authorised items view. A file without a readable library is logged, `ok`
// becomes false, and the object comes back with its Filename alone; telling the user is the
// caller's business.
namespace modTypelib {

// Filename without its folder, GUID and "major.minor" Version of the file's library.
std::shared_ptr<VirtualComponent> LoadComponentFromFile(const QString &filename, bool &ok);
// The same, with the library's help string as Description.
std::shared_ptr<VirtualReference> LoadReferenceFromFile(const QString &filename, bool &ok);

} // namespace modTypelib
