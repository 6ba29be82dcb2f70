#pragma once

#include <QTextDocument>
#include <QWidget>

class BasicEditor;
class QCheckBox;
class QLabel;
class QLineEdit;

// The find and replace bar under the condition editor: it stays open while the author edits,
// finds as the text is typed, and Escape puts the focus back into the editor.
class BasicFindBar final : public QWidget
{
    Q_OBJECT

public:
    explicit BasicFindBar(BasicEditor *editor, QWidget *parent = nullptr);

    // Shows the bar, with the replace row when asked, the selected word as the text to find.
    void start(bool replace);
    bool findNext();
    bool findPrevious();
    void replace();
    void replaceAll();
    QTextDocument::FindFlags flags() const;

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void report(const QString &text);
    void findAsTyped();

    BasicEditor *m_editor;
    QLineEdit *m_find;
    QLineEdit *m_replace;
    QCheckBox *m_matchCase;
    QCheckBox *m_wholeWord;
    QLabel *m_result;
    QList<QWidget *> m_replaceRow;
};
