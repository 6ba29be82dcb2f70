#include "docs/RulebaseDocCreator.h"

#include "collections/IListItem.h"
#include "platform/ErrorFrame.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "platform/QuorinError.h"
#include "platform/TextUtils.h"
#include "platform/UserInterface.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/IRule.h"
#include "rulebase/Report.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/TableItem.h"
#include "rulebase/TagItem.h"
#include "rulebase/ViolationDefinition.h"

#include <QLocale>
#include <QSaveFile>

namespace {

constexpr const char *module = "clsStandardsDocCreator";

// The runtime's number for a file that can't be opened or written.
constexpr qint32 PathFileAccessError = 75;

const QString contentsAnchor = QStringLiteral("contents_page");

// One line of output: `indent` units of four blanks, the text, CR LF.
void line(QString &out, int indent, QStringView text)
{
    for (int i = 0; i < indent; ++i)
        out += QLatin1String("    ");
    out += text;
    out += QLatin1String("\r\n");
}

// A line built of pieces, once whole.
template<typename A, typename B>
void line(QString &out, int indent, const QStringBuilder<A, B> &text)
{
    line(out, indent, QString(text));
}

void emptyLine(QString &out)
{
    out += QLatin1String("\r\n");
}

QString orNbsp(const QString &value)
{
    return value.isEmpty() ? QStringLiteral("&nbsp;") : value;
}

QString cell(const QString &cssClass, const QString &value)
{
    return QStringLiteral("<td class=\"") + cssClass + QStringLiteral("\">") + value
           + QStringLiteral("</td>");
}

// The document carries no charset, so it is written in the code page a browser assumes for
// such a file; a character the code page lacks goes as a numeric reference, which every
// browser reads back as that character.
QByteArray toWindows1252(const QString &text)
{
    static const char16_t high[32] = {
        0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
    };
    QByteArray bytes;
    bytes.reserve(text.size() + text.size() / 16);
    const qsizetype size = text.size();
    const QChar *chars = text.constData();
    for (qsizetype i = 0; i < size; ++i) {
        const char16_t c = chars[i].unicode();
        if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
            bytes += char(c);
            continue;
        }
        int byte = -1;
        for (int b = 0; b < 32; ++b) {
            if (high[b] == c) {
                byte = 0x80 + b;
                break;
            }
        }
        if (byte >= 0) {
            bytes += char(byte);
            continue;
        }
        char32_t codePoint = c;
        if (QChar::isHighSurrogate(c) && i + 1 < size && chars[i + 1].isLowSurrogate()) {
            codePoint = QChar::surrogateToUcs4(c, chars[i + 1].unicode());
            ++i;
        }
        bytes += "&#" + QByteArray::number(quint32(codePoint)) + ';';
    }
    return bytes;
}

void writeFile(const QString &filename, const QByteArray &bytes)
{
    QSaveFile file(filename);
    bool ok = file.open(QIODevice::WriteOnly);
    if (ok)
        ok = file.write(bytes) == bytes.size();
    // A failed write discards the temporary file; the old document stays.
    if (ok)
        ok = file.commit();
    if (!ok)
        throw QuorinError(
            PathFileAccessError,
            QStringLiteral("RulebaseDocCreator::CreateDocumentation"),
            QStringLiteral("Can't write the document '%1': %2.").arg(filename, file.errorString()));
}

} // namespace

bool RulebaseDocCreator::CreateDocumentation(Rulebase &rulebase, QString &filename)
{
    return guarded("CreateDocumentation", module, false, [&] {
        const auto sections = rulebase.Report()->Sections();
        filename
            = m_targetFilename.isEmpty() ? DocumentFilename(rulebase.Filename()) : m_targetFilename;
        const QString source = QStringLiteral("RulebaseDocCreator::CreateDocumentation");
        if (filename.isEmpty())
            throw QuorinError(ErrorNumber::NoFilename,
                              source,
                              QStringLiteral("The rulebase has no file name yet. Save it first: "
                                             "its document is written beside it."));
        if (filename == rulebase.Filename())
            throw QuorinError(PathFileAccessError,
                              source,
                              QStringLiteral("The document of '%1' would replace the rulebase "
                                             "itself. Save the rulebase with the extension "
                                             "\".qrb\" first.")
                                  .arg(rulebase.Filename()));

        // A copy with today and the organisation filled in; this writer keeps what it was told.
        RulebaseDocCreator writer = *this;
        if (!writer.m_organisation) {
            QString organisation;
            if (!ResolveOrganisation(organisation))
                return false;
            writer.m_organisation = organisation;
        }
        if (!writer.m_published.isValid())
            writer.m_published = QDate::currentDate();

        QString out;
        // Some 700 characters a rule; one allocation for the usual document.
        out.reserve(32768 + qsizetype(rulebase.RuleLists()->AllConventions()->Count()) * 700);
        const bool written = writer.WriteHTMLHeader(out) && writer.CreateTitlePage(out, rulebase)
                             && writer.CreateContentsPage(out, *sections)
                             && writer.CreateSectionPages(out, rulebase, *sections)
                             && writer.WriteFooter(out) && writer.WriteHTMLFooter(out);
        if (!written)
            return false;
        writeFile(filename, toWindows1252(out));
        return true;
    });
}

bool RulebaseDocCreator::ResolveOrganisation(QString &organisation)
{
    return guarded("ResolveOrganisation", module, false, [&] {
        organisation = gobjAdminData ? gobjAdminData->LastCompanyName() : QString();
        if (!Text::trimBlanks(organisation).isEmpty())
            return true;
        QString answer;
        if (!UserInterface::current().getText(
                QStringLiteral("Enter the name of the organisation for which the coding standards "
                               "are published:"),
                programTitle(),
                answer))
            return false;
        answer = Text::trimBlanks(answer);
        if (answer.isEmpty())
            return false;
        if (gobjAdminData)
            gobjAdminData->setLastCompanyName(answer);
        organisation = answer;
        return true;
    });
}

QString RulebaseDocCreator::DocumentFilename(const QString &rulebaseFilename)
{
    const qsizetype point = rulebaseFilename.lastIndexOf(QLatin1Char('.'));
    if (point < 0)
        return rulebaseFilename;
    return rulebaseFilename.left(point + 1) + QStringLiteral("html");
}

bool RulebaseDocCreator::WriteHTMLHeader(QString &out) const
{
    return guarded("WriteHTMLHeader", module, false, [&] {
        line(out, 0, u"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Transitional//EN\">");
        emptyLine(out);
        line(out, 0, u"<html>");
        line(out, 0, u"<head>");
        line(out, 1, u"<title>Visual Basic Coding Standards</title>");
        GetStyleSheet(out);
        line(out, 0, u"</head>");
        emptyLine(out);
        line(out, 0, u"<body>");
        emptyLine(out);
        return true;
    });
}

void RulebaseDocCreator::GetStyleSheet(QString &out)
{
    // The pages ask for "back_refs" and never use ".pagebody_table"; both stay as they are.
    static const char16_t *const sheet[] = {
        u"<!--",
        u"body {margin-top: 0px; margin-bottom : 0px; margin-left : 5px; margin-right : 5px; "
        u"font-family: Verdana, Geneva, Arial, Helvetica, sans-serif; background : White;}",
        u".header_table {width: 100%; background-color : #0099FF; font-family: Verdana, Geneva, "
        u"Arial, Helvetica, sans-serif; font-weight: bold; font-size: medium; color: White;}",
        u".header_title_column{text-align : center; height : 30px;}",
        u".title_table {width: 100%; height: 30px; background-color : #000000; font-family: "
        u"Verdana, Geneva, Arial, Helvetica, sans-serif; font-size: small; color : White; "
        u"font-weight : bold;}",
        u".pagebody_table {width: 100%; background-color : #FFFFFF; font-family: Verdana, Geneva, "
        u"Arial, Helvetica, sans-serif; font-size: x-small; color : Black;}",
        u".tags_table{border : thin solid Black; font-family: Verdana, Geneva, Arial, Helvetica, "
        u"sans-serif; font-size: x-small; color : Black; margin-left : 2px; width : 60%;}",
        u".tbbordered_innercell{border-top : thin solid Silver; border-right : thin solid Silver}",
        u".tbbordered_cell{border-top : thin solid Silver}",
        u".authorised_items_table{border : thin solid Black; font-family: Verdana, Geneva, Arial, "
        u"Helvetica, sans-serif; font-size: x-small; color : Black; margin-left : 2px; width : "
        u"95%;}",
        u".footer_table{width: 100%; height: 30px; background-color: #0099FF;}",
        u".footer_text{font: Arial, Helvetica, sans-serif; font-size: xx-small; text-align: "
        u"center;}",
        u".level1_li{font-weight : bold; color : Black;}",
        u".level2_li{font-weight : normal;color : Black;}",
        u".rule_title{font-weight : bold;}",
        u".rule_id{font-weight : bold; font-size: x-small;}",
        u".backrefs{font-size : smaller;}",
        u"-->",
        u"</style>",
    };
    line(out, 1, u"<style type=\"text/css\">");
    for (const char16_t *text : sheet)
        line(out, 0, text);
}

bool RulebaseDocCreator::WriteHeader(QString &out, const QString &text) const
{
    return guarded("WriteHeader", module, false, [&] {
        line(out, 0, u"<!-- Header Table -->");
        line(out,
             0,
             u"<table border=\"0\" cellpadding=\"0\" cellspacing=\"0\" class=\"header_table\">");
        line(out, 1, u"<tr>");
        line(out,
             2,
             QStringLiteral("<td class=\"header_title_column\">") + text + QStringLiteral("</td>"));
        line(out, 1, u"</tr>");
        line(out, 0, u"</table>");
        line(out, 0, u"<!-- End Of Header Table -->");
        emptyLine(out);
        return true;
    });
}

bool RulebaseDocCreator::WritePageTitle(QString &out,
                                        const QString &title,
                                        const QString &anchor) const
{
    return guarded("WritePageTitle", module, false, [&] {
        line(out, 0, u"<!-- Page Title Table -->");
        QString table = QStringLiteral(
            "<table border=\"0\" cellpadding=\"0\" cellspacing=\"0\" class=\"title_table\"");
        if (!anchor.isEmpty())
            table += QStringLiteral(" id=\"") + anchor + QLatin1Char('"');
        line(out, 0, table + QLatin1Char('>'));
        line(out, 1, u"<tr align=\"middle\">");
        line(out, 2, QStringLiteral("<td>") + title + QStringLiteral("</td>"));
        line(out, 1, u"</tr>");
        line(out, 0, u"</table>");
        line(out, 0, u"<!-- End Of Page Title Table -->");
        emptyLine(out);
        return true;
    });
}

bool RulebaseDocCreator::CreateTitlePage(QString &out, const Rulebase &rulebase) const
{
    return guarded("CreateTitlePage", module, false, [&] {
        if (!WriteHeader(out, rulebase.Title()))
            return false;
        const QString date = QLocale::system().toString(m_published, QLocale::LongFormat);
        line(out, 0, u"<!-- Title Page Table -->");
        line(out,
             0,
             u"<table border=\"0\" cellpadding=\"0\" cellspacing=\"0\" width=\"100%\" "
             u"height=\"500\">");
        line(out, 1, u"<tr align=\"center\" valign=\"middle\">");
        line(out, 2, u"<td>");
        line(out, 3, u"<br>");
        line(out, 3, QStringLiteral("<h1>") + rulebase.Title() + QStringLiteral("</h1>"));
        line(out, 3, QStringLiteral("<h3>") + rulebase.Version() + QStringLiteral("</h3>"));
        line(out, 3, QStringLiteral("<h3>") + rulebase.FileTitle() + QStringLiteral("</h3>"));
        line(out, 3, u"<h3>for</h3>");
        line(out,
             3,
             QStringLiteral("<h2>") + m_organisation.value_or(QString()) + QStringLiteral("</h2>"));
        line(out, 3, u"<br><br><br>");
        line(out, 3, QStringLiteral("<h3>Published: ") + date + QStringLiteral("</h3>"));
        line(out, 3, u"<br><br><br>");
        line(out, 3, QStringLiteral("<h4>") + rulebase.Description() + QStringLiteral("</h4>"));
        line(out, 2, u"</td>");
        line(out, 1, u"</tr>");
        line(out, 0, u"</table>");
        line(out, 0, u"<!-- End Of Title Page Table -->");
        emptyLine(out);
        return true;
    });
}

bool RulebaseDocCreator::CreateContentsPage(QString &out, const Sections &sections) const
{
    return guarded("CreateContentsPage", module, false, [&] {
        if (!WritePageTitle(out, QStringLiteral("Table Of Contents"), contentsAnchor))
            return false;
        line(out, 0, u"<!-- Table Of Contents Table -->");
        line(out,
             0,
             u"<table border=\"0\" cellpadding=\"0\" cellspacing=\"0\" width=\"100%\" "
             u"height=\"500\">");
        line(out, 1, u"<tr>");
        line(out, 2, u"<td>");
        line(out, 3, u"<br>");
        line(out, 3, u"<ul type=\"square\">");
        for (qint32 i = 1; i <= sections.Count(); ++i) {
            const auto section = sections.Item(i);
            const auto category = std::dynamic_pointer_cast<CategoryItem>(section);
            const auto table = std::dynamic_pointer_cast<TableItem>(section);
            const QString anchor = category ? MakeCatIDAttribute(category->Title())
                                   : table  ? TableAnchor(table->TableType())
                                            : QString();
            line(out,
                 4,
                 QStringLiteral("<li class=\"level1_li\"><a href=\"#") + anchor
                     + QStringLiteral("\">") + section->Title() + QStringLiteral("</a></li>"));
            if (!category)
                continue;
            line(out, 5, u"<ul type=\"circle\">");
            const auto rules = category->CategoryRules();
            for (qint32 r = 1; r <= rules->Count(); ++r) {
                const auto rule = rules->Item(r);
                line(out,
                     6,
                     QStringLiteral("<li class=\"level2_li\"><a href=\"#")
                         + MakeRuleAnchor(rule->RuleID()) + QStringLiteral("\">") + rule->Title()
                         + QStringLiteral("</a></li>"));
            }
            line(out, 5, u"</ul>");
        }
        line(out, 3, u"</ul>");
        line(out, 2, u"</td>");
        line(out, 1, u"</tr>");
        line(out, 0, u"</table>");
        line(out, 0, u"<!-- End Of Table Of Contents Table -->");
        emptyLine(out);
        return true;
    });
}

bool RulebaseDocCreator::CreateSectionPages(QString &out,
                                            Rulebase &rulebase,
                                            const Sections &sections) const
{
    return guarded("CreateSectionPages", module, false, [&] {
        for (qint32 i = 1; i <= sections.Count(); ++i) {
            const auto section = sections.Item(i);
            bool ok = true;
            if (const auto table = std::dynamic_pointer_cast<TableItem>(section)) {
                const qint32 type = table->TableType();
                switch (type) {
                case 0:
                    SortTagList(*rulebase.ControlTags());
                    ok = CreateTagsPage(out,
                                        *rulebase.ControlTags(),
                                        *table,
                                        TableAnchor(type),
                                        QStringLiteral("Control"),
                                        1);
                    break;
                case 1:
                    SortTagList(*rulebase.DataTypeTags());
                    ok = CreateTagsPage(out,
                                        *rulebase.DataTypeTags(),
                                        *table,
                                        TableAnchor(type),
                                        QStringLiteral("Data Type"),
                                        2,
                                        rulebase.ArrayTag());
                    break;
                case 2:
                    // Scope tags keep the order of their list.
                    ok = CreateTagsPage(out,
                                        *rulebase.ScopeTags(),
                                        *table,
                                        TableAnchor(type),
                                        QStringLiteral("Scope"),
                                        3);
                    break;
                case 3:
                    ok = CreateAuthItemsPage(
                        out, *table, TableAnchor(type), QStringLiteral("Component"), rulebase);
                    break;
                case 4:
                    ok = CreateAuthItemsPage(
                        out, *table, TableAnchor(type), QStringLiteral("Reference"), rulebase);
                    break;
                case 5:
                    ok = CreateSeverityDetailsPage(
                        out, *table, TableAnchor(type), *rulebase.SeverityList());
                    break;
                default:
                    break; // a table this program does not know prints nothing
                }
            } else if (const auto category = std::dynamic_pointer_cast<CategoryItem>(section)) {
                ok = CreateCategoryPage(out, rulebase, *category);
            }
            if (!ok)
                return false;
        }
        return true;
    });
}

bool RulebaseDocCreator::CreateCategoryPage(QString &out,
                                            const Rulebase &rulebase,
                                            const CategoryItem &category) const
{
    if (!WritePageTitle(out, category.Title(), MakeCatIDAttribute(category.Title())))
        return false;
    const QString title = category.Title();
    const auto &severities = *rulebase.SeverityList();
    line(out, 0, QStringLiteral("<!-- Category: ") + title + QStringLiteral(" Table -->"));
    line(out, 0, u"<table border=\"0\" cellpadding=\"0\" cellspacing=\"0\" width=\"100%\">");
    line(out, 1, u"<tr valign=\"top\">");
    line(out, 2, u"<td>");
    line(out, 3, QStringLiteral("<a href=\"#contents_page\">Table Of Contents</a> &gt; ") + title);
    line(out, 2, u"</td>");
    line(out, 1, u"</tr>");
    line(out, 1, u"<tr valign=\"top\">");
    line(out, 2, u"<td>");
    line(out, 3, QStringLiteral("<br>") + category.Description() + QStringLiteral("<br>"));
    line(out, 2, u"</td>");
    line(out, 1, u"</tr>");
    line(out, 1, u"<tr>");
    line(out, 2, u"<td>&nbsp;</td>");
    line(out, 1, u"</tr>");
    line(out, 1, u"<tr valign=\"top\">");
    line(out, 2, u"<td>");
    line(
        out,
        3,
        u"<table align=\"center\" border=\"0\" cellpadding=\"0\" cellspacing=\"0\" width=\"98%\">");
    const auto rules = category.CategoryRules();
    for (qint32 r = 1; r <= rules->Count(); ++r) {
        const IRule &rule = *rules->Item(r);
        line(out,
             4,
             QStringLiteral("<tr id=\"") + MakeRuleAnchor(rule.RuleID()) + QStringLiteral("\">"));
        line(out,
             5,
             QStringLiteral("<td width=\"80%\"><span class=\"rule_title\">") + rule.Title()
                 + QStringLiteral("</span> <span class=\"rule_id\">[")
                 + Text::zeroPadded(rule.RuleID(), 4) + QStringLiteral("]</span></td>"));
        line(out,
             5,
             QStringLiteral("<td align=\"left\" class=\"rule_title\" width=\"20%\">")
                 + GetSeverityTitle(rule, severities) + QStringLiteral(" (")
                 + QString::number(rule.ViolationDefinition()->Impact())
                 + QStringLiteral(")</td>"));
        line(out, 4, u"</tr>");
        line(out, 4, u"<tr>");
        line(out, 5, QStringLiteral("<td>") + rule.Description() + QStringLiteral("</td>"));
        line(out, 5, u"<td>&nbsp;</td>");
        line(out, 4, u"</tr>");
        line(out, 4, u"<tr>");
        line(out, 5, u"<td colspan=\"2\">&nbsp;</td>");
        line(out, 4, u"</tr>");
    }
    line(out, 3, u"</table>");
    line(out, 2, u"</td>");
    line(out, 1, u"</tr>");
    line(out, 0, u"</table>");
    line(out, 0, QStringLiteral("<!-- End Of Category: ") + title + QStringLiteral(" Table -->"));
    emptyLine(out);
    return true;
}

void RulebaseDocCreator::WriteTablePageTop(QString &out,
                                           const TableItem &table,
                                           const QString &tableClass) const
{
    line(out, 0, u"<!-- Page Body Table -->");
    line(out, 0, u"<table border=\"0\" cellpadding=\"0\" cellspacing=\"0\" width=\"100%\">");
    line(out, 1, u"<tr>");
    line(out, 3, u"<td class=\"back_refs\">");
    line(out,
         4,
         QStringLiteral("<a href=\"#contents_page\">Table Of Contents</a> &gt; ")
             + table.TableTitle());
    line(out, 3, u"</td>");
    line(out, 1, u"</tr>");
    line(out, 1, u"<tr>");
    line(out, 2, u"<td>");
    line(out, 3, QStringLiteral("<br><p>") + table.TableText() + QStringLiteral("</p>"));
    line(out,
         3,
         QStringLiteral("<table align=\"center\" class=\"") + tableClass
             + QStringLiteral("\" cellspacing=\"0\">"));
}

void RulebaseDocCreator::WriteTablePageBottom(QString &out) const
{
    line(out, 3, u"</table>");
    line(out, 3, u"<p>&nbsp;</p>");
    line(out, 2, u"</td>");
    line(out, 1, u"</tr>");
    line(out, 0, u"</table>");
    line(out, 0, u"<!-- End Of Page Body Table -->");
    emptyLine(out);
}

bool RulebaseDocCreator::CreateTagsPage(QString &out,
                                        const TagList &tags,
                                        const TableItem &table,
                                        const QString &anchor,
                                        const QString &heading,
                                        int kind,
                                        const QString &arrayTag) const
{
    return guarded("CreateTagsPage", module, false, [&] {
        if (!WritePageTitle(out, table.TableTitle(), anchor))
            return false;
        const QString width = kind == 1 ? QStringLiteral("30%") : QStringLiteral("45%");
        WriteTablePageTop(out, table, QStringLiteral("tags_table"));
        line(out, 4, u"<tr>");
        if (kind == 1)
            line(out, 5, u"<th align=\"left\" width=\"30%\">Description</th>");
        line(out,
             5,
             QStringLiteral("<th align=\"left\" width=\"") + width + QStringLiteral("\">") + heading
                 + QStringLiteral("</th>"));
        line(out, 5, u"<th align=\"left\" width=\"10%\">Tag</th>");
        line(out,
             5,
             QStringLiteral("<th align=\"left\" width=\"") + width
                 + QStringLiteral("\">Examples</th>"));
        line(out, 4, u"</tr>");
        for (qint32 i = 1; i <= tags.Count(); ++i) {
            if (!CreateTagRow(out, *tags.Item(i), kind))
                return false;
        }
        if (kind == 2) {
            TagItem array;
            array.setTagName(QStringLiteral("Array Tag"));
            array.setTagValue(arrayTag);
            if (!CreateTagRow(out, array, kind))
                return false;
        }
        WriteTablePageBottom(out);
        return true;
    });
}

bool RulebaseDocCreator::CreateTagRow(QString &out, const TagItem &tag, int kind) const
{
    const QString inner = QStringLiteral("tbbordered_innercell");
    line(out, 4, u"<tr>");
    if (kind == 1)
        line(out, 5, cell(inner, orNbsp(tag.TagDescription())));
    line(out, 5, cell(inner, tag.TagName()));
    line(out, 5, cell(inner, orNbsp(tag.TagValue())));
    line(out, 5, cell(QStringLiteral("tbbordered_cell"), orNbsp(tag.TagExample())));
    line(out, 4, u"</tr>");
    return true;
}

bool RulebaseDocCreator::CreateAuthItemsPage(QString &out,
                                             const TableItem &table,
                                             const QString &anchor,
                                             const QString &heading,
                                             const Rulebase &rulebase) const
{
    return guarded("CreateAuthItemsPage", module, false, [&] {
        if (!WritePageTitle(out, table.TableTitle(), anchor))
            return false;
        const bool components = table.TableType() == 3;
        WriteTablePageTop(out, table, QStringLiteral("authorised_items_table"));
        line(out, 4, u"<tr>");
        line(out,
             5,
             QStringLiteral("<th align=\"left\" width=\"")
                 + (components ? QStringLiteral("25%") : QStringLiteral("30%"))
                 + QStringLiteral("\">") + heading + QStringLiteral("</th>"));
        line(out, 5, u"<th align=\"left\" width=\"20%\">Version(s)</th>");
        line(out, 5, u"<th align=\"left\">GUID</th>");
        line(out, 4, u"</tr>");
        const bool rows = components ? AddAuthorisedComponents(out, *CreateAndSortACList(rulebase))
                                     : AddAuthorisedReferences(out, *CreateAndSortARList(rulebase));
        if (!rows)
            return false;
        WriteTablePageBottom(out);
        return true;
    });
}

bool RulebaseDocCreator::AddAuthorisedComponents(
    QString &out, const ObjectArrayList<AuthorisedComponent> &list) const
{
    const QString cls = QStringLiteral("tbbordered_cell");
    for (qint32 i = 1; i <= list.Count(); ++i) {
        const AuthorisedComponent &item = *list.Item(i);
        line(out, 4, u"<tr>");
        line(out, 5, cell(cls, item.Filename()));
        line(out, 5, cell(cls, item.VersionList()));
        line(out, 5, cell(cls, item.LibID()));
        line(out, 4, u"</tr>");
    }
    return true;
}

bool RulebaseDocCreator::AddAuthorisedReferences(
    QString &out, const ObjectArrayList<AuthorisedReference> &list) const
{
    const QString cls = QStringLiteral("tbbordered_cell");
    for (qint32 i = 1; i <= list.Count(); ++i) {
        const AuthorisedReference &item = *list.Item(i);
        line(out, 4, u"<tr>");
        line(out, 5, cell(cls, item.Description()));
        line(out, 5, cell(cls, item.VersionList()));
        line(out, 5, cell(cls, item.LibID()));
        line(out, 4, u"</tr>");
    }
    return true;
}

bool RulebaseDocCreator::CreateSeverityDetailsPage(
    QString &out,
    const TableItem &table,
    const QString &anchor,
    const ObjectKeyedArrayList<SeverityItem> &severities) const
{
    return guarded("CreateSeverityDetailsPage", module, false, [&] {
        if (!WritePageTitle(out, table.TableTitle(), anchor))
            return false;
        WriteTablePageTop(out, table, QStringLiteral("tags_table"));
        line(out, 4, u"<tr>");
        line(out, 5, u"<th align=\"left\" width=\"20%\">Severity Level</th>");
        line(out, 5, u"<th align=\"left\" width=\"40%\">Description</th>");
        line(out, 4, u"</tr>");
        for (qint32 i = 1; i <= severities.Count(); ++i) {
            const SeverityItem &severity = *severities.Item(i);
            line(out, 4, u"<tr>");
            line(out,
                 5,
                 QStringLiteral("<td class=\"tbbordered_cell\" valign=\"top\">") + severity.Title()
                     + QStringLiteral("</td>"));
            line(out, 5, cell(QStringLiteral("tbbordered_cell"), orNbsp(severity.Description())));
            line(out, 4, u"</tr>");
        }
        WriteTablePageBottom(out);
        return true;
    });
}

bool RulebaseDocCreator::WriteFooter(QString &out) const
{
    return guarded("WriteFooter", module, false, [&] {
        line(out, 0, u"<!-- Footer Table -->");
        line(out,
             0,
             u"<table border=\"0\" cellpadding=\"0\" cellspacing=\"0\" class=\"footer_table\">");
        line(out, 1, u"<tr align=\"middle\">");
        line(out, 2, u"<td colspan=\"2\" class=\"footer_text\">");
        line(out,
             3,
             QStringLiteral("\u00A9 ") + QString::number(m_published.year()) + QLatin1Char(' ')
                 + m_organisation.value_or(QString()) + QStringLiteral(". All rights reserved."));
        line(out, 2, u"</td>");
        line(out, 1, u"</tr>");
        line(out, 0, u"</table>");
        line(out, 0, u"<!-- End Of Footer Table -->");
        emptyLine(out);
        return true;
    });
}

bool RulebaseDocCreator::WriteHTMLFooter(QString &out) const
{
    return guarded("WriteHTMLFooter", module, false, [&] {
        emptyLine(out);
        line(out, 0, u"</body>");
        line(out, 0, u"</html>");
        return true;
    });
}

QString RulebaseDocCreator::MakeCatIDAttribute(const QString &title)
{
    QString id = title;
    id.replace(QLatin1Char(' '), QLatin1Char('_'));
    return QStringLiteral("category_") + id;
}

QString RulebaseDocCreator::MakeRuleAnchor(qint32 ruleID)
{
    return QStringLiteral("rule_page_") + Text::zeroPadded(ruleID, 4);
}

QString RulebaseDocCreator::TableAnchor(qint32 tableType)
{
    static const char *const anchors[] = {"control_tags_page",
                                          "data_type_tags_page",
                                          "scope_tags_page",
                                          "authorised_components_page",
                                          "authorised_references_page",
                                          "severity_details_page"};
    if (tableType < 0 || tableType > 5)
        return QString();
    return QLatin1String(anchors[tableType]);
}

QString RulebaseDocCreator::GetSeverityTitle(const IRule &rule,
                                             const ObjectKeyedArrayList<SeverityItem> &severities)
{
    const qint32 level = rule.ViolationDefinition()->Severity();
    for (qint32 i = 1; i <= severities.Count(); ++i) {
        const auto severity = severities.Item(i);
        if (severity->SeverityLevel() == level)
            return severity->Title();
    }
    return QString();
}

void RulebaseDocCreator::SortTagList(TagList &tags)
{
    tags.SortBy([](const std::shared_ptr<TagItem> &a, const std::shared_ptr<TagItem> &b) {
        return a->TagName().compare(b->TagName(), Qt::CaseInsensitive) < 0;
    });
}

std::shared_ptr<ObjectArrayList<AuthorisedComponent>>
RulebaseDocCreator::CreateAndSortACList(const Rulebase &rulebase)
{
    auto list = std::make_shared<ObjectArrayList<AuthorisedComponent>>();
    const auto &components = *rulebase.AuthorisedComponents();
    for (qint32 i = 1; i <= components.Count(); ++i)
        list->Add(components.Item(i));
    list->SortBy([](const std::shared_ptr<AuthorisedComponent> &a,
                    const std::shared_ptr<AuthorisedComponent> &b) {
        return a->Filename().compare(b->Filename(), Qt::CaseInsensitive) < 0;
    });
    return list;
}

std::shared_ptr<ObjectArrayList<AuthorisedReference>>
RulebaseDocCreator::CreateAndSortARList(const Rulebase &rulebase)
{
    auto list = std::make_shared<ObjectArrayList<AuthorisedReference>>();
    const auto &references = *rulebase.AuthorisedReferences();
    for (qint32 i = 1; i <= references.Count(); ++i)
        list->Add(references.Item(i));
    list->SortBy([](const std::shared_ptr<AuthorisedReference> &a,
                    const std::shared_ptr<AuthorisedReference> &b) {
        return a->Description().compare(b->Description(), Qt::CaseInsensitive) < 0;
    });
    return list;
}
