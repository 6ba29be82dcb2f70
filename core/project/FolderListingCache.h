#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

// While one lives, CaseInsensitivePath reads each folder's listing once and keeps it, instead
// of asking the file system for every segment of every path. For a batch of reads over a tree
// that nothing changes meanwhile, such as the line count of many projects. The first one made
// on a thread serves until it goes; others made meanwhile change nothing.
class FolderListingCache final
{
public:
    struct Listing
    {
        QStringList entries; // in the order QDir lists them
        QSet<QString> names;
    };

    FolderListingCache();
    ~FolderListingCache();
    FolderListingCache(const FolderListingCache &) = delete;
    FolderListingCache &operator=(const FolderListingCache &) = delete;

    // The cache in force on this thread, or nullptr.
    static FolderListingCache *current();
    const Listing &listing(const QString &folder);

private:
    QHash<QString, Listing> m_listings;
};
