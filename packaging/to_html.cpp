// to_html FROM.md TO.html: turns a document of the package into a page for any browser.
#include <QFile>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QTextDocument>

namespace {

const QString HEAD = R"(<!DOCTYPE html>
<html lang="pl"><head><meta charset="utf-8"><title>%1</title><style>
body { max-width: 60em; margin: 2em auto; padding: 0 1em; font: 16px/1.5 sans-serif; color: #222; }
img { max-width: 100%; }
table { border-collapse: collapse; margin: 1em 0; }
td p, th p { margin: 0; }
td, th { border: 1px solid #bbb; padding: 0.2em 0.6em; vertical-align: top; text-align: left; }
pre { background: #eee; padding: 0.6em; margin: 0; overflow-x: auto; }
code { background: #eee; }
h2 { border-bottom: 1px solid #bbb; margin-top: 2em; }
</style></head>)";

// The anchor of a heading, as the documents' links have it: lower case, no punctuation, dashes for spaces.
QString anchorOf(QString heading) {
    static const QRegularExpression TAG("<[^>]*>"),
        PUNCTUATION("[^\\w\\s-]", QRegularExpression::UseUnicodePropertiesOption);
    return heading.remove(TAG).toLower().remove(PUNCTUATION).trimmed().replace(' ', '-');
}

QString withAnchors(QString html) {
    static const QRegularExpression HEADING("<h([1-6])>(.*?)</h[1-6]>");
    for (qsizetype at = 0;;) {
        const auto match = HEADING.match(html, at);
        if (!match.hasMatch())
            return html;
        const QString heading = "<h%1 id=\"%2\">%3</h%1>";
        const QString full = heading.arg(match.captured(1), anchorOf(match.captured(2)), match.captured(2));
        html.replace(match.capturedStart(), match.capturedLength(), full);
        at = match.capturedStart() + full.size();
    }
}

// Removes the styles that Qt writes into every element, since the page has a style sheet; makes links lead to pages.
QString plain(QString html) {
    const struct {
        const char* pattern;
        const char* with;
    } CHANGES[]{{"^.*?<body[^>]*>", "<body>"},
                {"<span style=\"[^\"]*font-weight:700[^\"]*\">(.*?)</span>", "<b>\\1</b>"},
                {"<span style=\"[^\"]*monospace[^\"]*\">(.*?)</span>", "<code>\\1</code>"},
                {"</?span[^>]*>", ""},
                {" (style|width|cellspacing|cellpadding|border|title)=\"[^\"]*\"", ""},
                {"</code></pre>\\s*<pre><code>", "\n"}, // Qt makes every line of a block an element
                {"(href=\"\\w+)\\.md", "\\1.html"}};
    for (const auto& change : CHANGES)
        html.replace(QRegularExpression(change.pattern, QRegularExpression::DotMatchesEverythingOption), change.with);
    return html;
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    QFile from(argc == 3 ? argv[1] : ""), to(argc == 3 ? argv[2] : "");
    if (!from.open(QFile::ReadOnly) || !to.open(QFile::WriteOnly))
        return 1;
    const QString markdown = QString::fromUtf8(from.readAll());
    QTextDocument document;
    document.setMarkdown(markdown);
    const QString title = markdown.section('\n', 0, 0).remove(0, 2);
    return to.write((HEAD.arg(title) + withAnchors(plain(document.toHtml()))).toUtf8()) > 0 ? 0 : 1;
}
