#include "DocTestSupport.h"

#include "docs/RulebaseDocCreator.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"

#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QUrl>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString chromium = u"/usr/bin/chromium"_s;

// A page beside the document that loads it in a frame, follows every internal link the way a
// click does, and reports the links whose target does not become the page's :target.
const char checkPage[] = R"(<!DOCTYPE html>
<html><body>
<pre id="result">pending</pre>
<iframe id="doc" src="DOCUMENT" style="width:1024px;height:768px"></iframe>
<script>
document.getElementById('doc').addEventListener('load', function () {
    var out = [];
    var doc = this.contentDocument;
    if (!doc) {
        out.push('NOACCESS');
    } else {
        out.push('TITLE ' + doc.title);
        var links = doc.querySelectorAll('a[href^="#"]');
        out.push('LINKS ' + links.length);
        for (var i = 0; i < links.length; ++i) {
            var href = links[i].getAttribute('href');
            links[i].click();
            var target = doc.querySelector(':target');
            var wanted = href.substring(1);
            try { wanted = decodeURIComponent(wanted); } catch (e) {}
            if (!target || target.id !== wanted)
                out.push('BROKEN ' + href);
        }
        out.push('DONE');
    }
    document.getElementById('result').textContent = out.join('\n');
});
</script>
</body></html>
)";

} // namespace

// Opt-in: runs where Debian's chromium is installed (apt-get install chromium), else skips.
TEST(BrowserRender, EveryLinkOfTheSampleDocumentReachesItsAnchor)
{
    if (!QFile::exists(chromium))
        GTEST_SKIP() << "no browser at " << chromium.toStdString();

    ScriptedUserInterface ui;
    const QString folder = TestEnvironment::makeTempDir();
    const QString rulebaseFile = folder + u"/Sample.qrb"_s;
    ASSERT_TRUE(QFile::copy(TestEnvironment::sampleRulebase(), rulebaseFile));
    const auto rulebase = RulebaseManager().LoadRulebase(rulebaseFile);
    ASSERT_NE(rulebase, nullptr);

    RulebaseDocCreator writer;
    writer.setOrganisation(DocTestSupport::organisation());
    QString document;
    ASSERT_TRUE(writer.CreateDocumentation(*rulebase, document));
    const QString text = DocTestSupport::readDocument(document);
    const qsizetype internalLinks = text.count(u"<a href=\"#"_s);
    ASSERT_GT(internalLinks, 50);

    const QString page = folder + u"/check.html"_s;
    QFile check(page);
    ASSERT_TRUE(check.open(QIODevice::WriteOnly));
    check.write(QByteArray(checkPage).replace("DOCUMENT",
                                              QUrl::fromLocalFile(document).fileName().toUtf8()));
    check.close();

    QProcess browser;
    browser.start(chromium,
                  {u"--headless"_s,
                   u"--no-sandbox"_s,
                   u"--disable-gpu"_s,
                   u"--allow-file-access-from-files"_s,
                   u"--user-data-dir="_s + folder + u"/profile"_s,
                   u"--virtual-time-budget=10000"_s,
                   u"--dump-dom"_s,
                   QUrl::fromLocalFile(page).toString()});
    ASSERT_TRUE(browser.waitForFinished(120000)) << "the browser did not finish";
    const QString dom = QString::fromUtf8(browser.readAllStandardOutput());
    const QRegularExpression result(u"<pre id=\"result\">(.*?)</pre>"_s,
                                    QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = result.match(dom);
    ASSERT_TRUE(match.hasMatch()) << browser.readAllStandardError().toStdString();
    const QStringList lines = match.captured(1).split(QLatin1Char('\n'));

    EXPECT_EQ(lines.value(0), u"TITLE Visual Basic Coding Standards"_s);
    EXPECT_EQ(lines.value(1), u"LINKS %1"_s.arg(internalLinks));
    const QStringList broken = lines.filter(u"BROKEN"_s);
    EXPECT_TRUE(broken.isEmpty()) << broken.join(QLatin1Char(' ')).toStdString();
    EXPECT_EQ(lines.value(lines.size() - 1), u"DONE"_s);
}
