#include "project/FolderListingCache.h"

#include <QDir>

#include <utility>

namespace {

thread_local FolderListingCache *inForce = nullptr;

} // namespace

FolderListingCache::FolderListingCache()
{
    if (!inForce)
        inForce = this;
}

FolderListingCache::~FolderListingCache()
{
    if (inForce == this)
        inForce = nullptr;
}

FolderListingCache *FolderListingCache::current()
{
    return inForce;
}

const FolderListingCache::Listing &FolderListingCache::listing(const QString &folder)
{
    auto found = m_listings.find(folder);
    if (found == m_listings.end()) {
        Listing listing;
        listing.entries = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System
                                                 | QDir::NoDotAndDotDot);
        listing.names = QSet<QString>(listing.entries.cbegin(), listing.entries.cend());
        found = m_listings.insert(folder, std::move(listing));
    }
    return *found;
}
