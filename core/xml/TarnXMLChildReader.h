#pragma once

#include <QLatin1StringView>
#include <QList>

class TarnXMLElement;

// Reads the children of chosen elements while TarnXMLDoc::LoadFromFile parses, each as soon as
// its end tag is read, so that a large file need not be held whole: a child the reader takes
// leaves the tree at once. Children are offered in order while every one before was taken;
// once one stays, the rest of its list stay too, and the tree holds them as it would have.
class TarnXMLChildReader
{
public:
    virtual ~TarnXMLChildReader() = default;

    // The parents, as paths of names below the root ("Rules/CodingConventions"); each step is
    // the first child element of that name ignoring case, as ElementByName finds it.
    virtual QList<QLatin1StringView> ChildLists() const = 0;
    // The root with its attributes, before any child; false offers nothing during this parse.
    // A document with a DTD offers nothing either, since validation needs the whole tree.
    virtual bool Begin(const TarnXMLElement &root) = 0;
    // A child of the parent at ChildLists()[list], its whitespace, comments and processing
    // instructions already dropped; true when read, and it goes. No handle on it or below it
    // may outlive the call. A throw counts as false and offers nothing more.
    virtual bool ReadChild(qint32 list, const TarnXMLElement &child) = 0;
    // The parent at ChildLists()[list] has ended: all its children have been offered.
    virtual void ChildListEnded(qint32 list) = 0;
};
