#pragma once

class QString;

// What the vocabulary needs of a combo box with pictures: the GUI adapts a QComboBox with
// icons, tests record the calls. Images are keys into the caller's own image list.
class ImageComboControl
{
public:
    virtual ~ImageComboControl() = default;

    virtual void clear() = 0;
    virtual void
    addItem(const QString &key, const QString &text, const QString &image, int indentation)
        = 0;
};
