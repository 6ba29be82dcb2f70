#pragma once

#include <QString>
#include <QStringList>

// The most recently used files of one application name, newest first, at most four.
class MRUUtils
{
public:
    static constexpr int MaxSize = 4;

    int Count() const { return int(m_files.size()); }
    // 1-based; an index outside the list gives the empty string.
    QString Item(int index) const;
    void setAppName(const QString &appName);
    void LoadList();
    void Add(const QString &filename);
    void Remove(const QString &filename);

private:
    void takeOut(const QString &filename);
    void writeList() const;

    QString m_key;
    QStringList m_files;
};
