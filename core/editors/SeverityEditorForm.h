#pragma once

#include "editors/NumberRange.h"

#include <QString>

#include <memory>

class SeverityItem;

// Edits one severity: title, default impact, description and the icon ("colour") chosen among
// the images of the severity image list. Writes into the item only on OK.
class SeverityEditorForm final
{
public:
    // How many images the severity image list holds; they are numbered from 1.
    static constexpr qint32 DefaultImageCount = 16;

    void setSeverityItem(std::shared_ptr<SeverityItem> item) { m_item = std::move(item); }
    std::shared_ptr<SeverityItem> severityItem() const { return m_item; }
    void setImageCount(qint32 count) { m_imageCount = count; }
    // The choices of the colour pop-up: one for each image.
    qint32 ImageCount() const { return m_imageCount; }

    // Fills the fields from an item that has a title.
    void Load();

    QString Title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }
    // Digits only, within ImpactRange; the box filters the keys.
    QString Impact() const { return m_impact; }
    static constexpr NumberRange ImpactRange() { return NumberRange::sixteenBit(); }
    void setImpact(const QString &impact) { m_impact = impact; }
    QString Description() const { return m_description; }
    void setDescription(const QString &description) { m_description = description; }
    // The image shown, kept as the icon's tag.
    qint32 Colour() const { return m_colour; }
    // A choice of the colour pop-up.
    void chooseColour(qint32 image) { m_colour = image; }

    // OK needs a title, an impact and a description.
    bool CanOK() const
    {
        return !m_title.isEmpty() && !m_impact.isEmpty() && !m_description.isEmpty();
    }
    // False when the impact does not fit (reported); nothing is written then.
    bool OK();
    void Cancel() { m_cancelled = true; }
    bool Cancelled() const { return m_cancelled; }

    static QString Caption() { return QStringLiteral("Severity"); }
    static QString HelpTopic() { return QStringLiteral("::/SeverityEditor.htm"); }

private:
    std::shared_ptr<SeverityItem> m_item;
    qint32 m_imageCount = DefaultImageCount;
    QString m_title;
    QString m_impact;
    QString m_description;
    qint32 m_colour = 0;
    bool m_cancelled = true;
};
