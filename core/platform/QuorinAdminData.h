#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

// This user's window layout and habits, loaded on construction and saved on destruction.
// Every value and its default is declared once, in the table of QuorinAdminData.cpp.
class QuorinAdminData
{
public:
    QuorinAdminData();
    ~QuorinAdminData();
    QuorinAdminData(const QuorinAdminData &) = delete;
    QuorinAdminData &operator=(const QuorinAdminData &) = delete;

    // Workfield names the user has entered in pickers during this run.
    QStringList &Workfields() { return m_workfields; }

    bool FirstUse() const { return boolValue("FirstUse"); }
    void setFirstUse(bool v) { setBool("FirstUse", v); }
    int MainTop() const { return intValue("MainTop"); }
    void setMainTop(int v) { setInt("MainTop", v); }
    QString LastPath() const { return text("LastPath"); }
    void setLastPath(const QString &v) { setText("LastPath", v); }
    int MainWidth() const { return intValue("MainWidth"); }
    void setMainWidth(int v) { setInt("MainWidth", v); }
    int MainHeight() const { return intValue("MainHeight"); }
    void setMainHeight(int v) { setInt("MainHeight", v); }
    int MainLeft() const { return intValue("MainLeft"); }
    void setMainLeft(int v) { setInt("MainLeft", v); }
    bool DisplayTips() const { return boolValue("DisplayTips"); }
    void setDisplayTips(bool v) { setBool("DisplayTips", v); }
    bool DocWinVisible() const { return boolValue("DocWinVisible"); }
    void setDocWinVisible(bool v) { setBool("DocWinVisible", v); }
    bool QuorinBarVisible() const { return boolValue("QuorinBarVisible"); }
    void setQuorinBarVisible(bool v) { setBool("QuorinBarVisible", v); }
    int LastTip() const { return intValue("LastTip"); }
    void setLastTip(int v) { setInt("LastTip", v); }
    int DocHeight() const { return intValue("DocHeight"); }
    void setDocHeight(int v) { setInt("DocHeight", v); }
    int TreeWidth() const { return intValue("TreeWidth"); }
    void setTreeWidth(int v) { setInt("TreeWidth", v); }
    int ListLeft() const { return intValue("ListLeft"); }
    void setListLeft(int v) { setInt("ListLeft", v); }

    // Column widths as fractions of the list's width, 1-based column index.
    float ListColWidthAC(int index) const { return fraction("ListACCol", index); }
    void setListColWidthAC(int index, float v) { setFraction("ListACCol", index, v); }
    float ListColWidthAR(int index) const { return fraction("ListARCol", index); }
    void setListColWidthAR(int index, float v) { setFraction("ListARCol", index, v); }
    float ListColWidthUK(int index) const { return fraction("ListUKCol", index); }
    void setListColWidthUK(int index, float v) { setFraction("ListUKCol", index, v); }
    float ListColWidthCC(int index) const { return fraction("ListCCCol", index); }
    void setListColWidthCC(int index, float v) { setFraction("ListCCCol", index, v); }

    int ListACSortCol() const { return intValue("ListACSortCol"); }
    void setListACSortCol(int v) { setInt("ListACSortCol", v); }
    int ListACSortOrder() const { return intValue("ListACSortOrder"); }
    void setListACSortOrder(int v) { setInt("ListACSortOrder", v); }
    int ListARSortCol() const { return intValue("ListARSortCol"); }
    void setListARSortCol(int v) { setInt("ListARSortCol", v); }
    int ListARSortOrder() const { return intValue("ListARSortOrder"); }
    void setListARSortOrder(int v) { setInt("ListARSortOrder", v); }
    int ListCCSortCol() const { return intValue("ListCCSortCol"); }
    void setListCCSortCol(int v) { setInt("ListCCSortCol", v); }
    int ListCCSortOrder() const { return intValue("ListCCSortOrder"); }
    void setListCCSortOrder(int v) { setInt("ListCCSortOrder", v); }
    int ListCVSortCol() const { return intValue("ListCVSortCol"); }
    void setListCVSortCol(int v) { setInt("ListCVSortCol", v); }
    int ListCVSortOrder() const { return intValue("ListCVSortOrder"); }
    void setListCVSortOrder(int v) { setInt("ListCVSortOrder", v); }
    int ListSVSortCol() const { return intValue("ListSVSortCol"); }
    void setListSVSortCol(int v) { setInt("ListSVSortCol", v); }
    int ListSVSortOrder() const { return intValue("ListSVSortOrder"); }
    void setListSVSortOrder(int v) { setInt("ListSVSortOrder", v); }
    bool Maximised() const { return boolValue("Maximised"); }
    void setMaximised(bool v) { setBool("Maximised", v); }
    QString LastStandardsPath() const { return text("LastStandardsPath"); }
    void setLastStandardsPath(const QString &v) { setText("LastStandardsPath", v); }
    QString LastCompanyName() const { return text("LastCompanyName"); }
    void setLastCompanyName(const QString &v) { setText("LastCompanyName", v); }
    int ListUKSortCol() const { return intValue("ListUKSortCol"); }
    void setListUKSortCol(int v) { setInt("ListUKSortCol", v); }
    int ListUKSortOrder() const { return intValue("ListUKSortOrder"); }
    void setListUKSortOrder(int v) { setInt("ListUKSortOrder", v); }

    // The condition editor's window; EditorPlaced is false until it has been closed once.
    bool EditorPlaced() const { return !text("EditorLeft").isEmpty(); }
    int EditorLeft() const { return intValue("EditorLeft"); }
    void setEditorLeft(int v) { setInt("EditorLeft", v); }
    int EditorTop() const { return intValue("EditorTop"); }
    void setEditorTop(int v) { setInt("EditorTop", v); }
    int EditorWidth() const { return intValue("EditorWidth"); }
    void setEditorWidth(int v) { setInt("EditorWidth", v); }
    int EditorHeight() const { return intValue("EditorHeight"); }
    void setEditorHeight(int v) { setInt("EditorHeight", v); }
    bool EditorMaximised() const { return boolValue("EditorMaximised"); }
    void setEditorMaximised(bool v) { setBool("EditorMaximised", v); }

    bool LoadSettings();
    bool SaveSettings();

    static QString settingsKey();

private:
    QString text(const char *name) const;
    void setText(const char *name, const QString &value);
    int intValue(const char *name) const;
    void setInt(const char *name, int value);
    bool boolValue(const char *name) const;
    void setBool(const char *name, bool value);
    float fraction(const char *prefix, int index) const;
    void setFraction(const char *prefix, int index, float value);

    QHash<QString, QString> m_values; // by value name, as stored
    QStringList m_workfields;
};
