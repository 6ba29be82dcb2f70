#pragma once

#include <QWidget>

class BasicEditor;

// The editor's left margin: line numbers, and a mark on each line with an error or a warning,
// whose messages are the mark's tool tip.
class BasicEditorMargin final : public QWidget
{
    Q_OBJECT

public:
    explicit BasicEditorMargin(BasicEditor *editor);

    QSize sizeHint() const override;
    int marginWidth() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    BasicEditor *m_editor;
};
