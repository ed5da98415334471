"""writeForeignSources.py FOLDER: writes pages and documents for other programs to turn into RTF, one
for each thing that RTF files of other programs hold."""

import pathlib
import sys

PICTURE = ("iVBORw0KGgoAAAANSUhEUgAAAAIAAAACCAIAAAD91JpzAAAAFklEQVR4nGP8z8DAwMDAxMDAwMDAAAANHQEDasKb6QAA"
           "AABJRU5ErkJggg==")

PAGES = {
    "text": "<h1>Order</h1><p>Two <b>bold</b>, <i>slanted</i> and <u>underlined</u> words.</p>"
            "<p style='color:#990000;font-family:Courier New'>Red<br>and a line</p>",
    "table": "<table border=1><tr><th>Item</th><th>Price</th></tr>"
             "<tr><td>Pen</td><td align=right>1.20</td></tr><tr><td></td><td>.</td></tr></table>",
    "nested-table": "<table border=1><tr><td>Outer<table border=1><tr><td>a</td><td>b</td></tr>"
                    "<tr><td>c</td><td>d</td></tr></table>after</td><td>Right</td></tr>"
                    "<tr><td><table><tr><td><table><tr><td>Third level</td></tr></table></td></tr>"
                    "</table></td><td>End</td></tr></table>",
    "merged-cells": "<table border=1><tr><td colspan=3>Wide</td></tr><tr><td rowspan=2>High</td>"
                    "<td>a</td><td>b</td></tr><tr><td colspan=2>c</td></tr>"
                    "<tr><td>d</td><td>e</td><td>f</td></tr></table>",
    "colored-table": "<table bgcolor='#ffff99'><tr><td bgcolor='#000080'><font color=white>a</font>"
                     "</td><td style='border:2px solid red'>b</td></tr></table>",
    "uneven-table": "<table border=1><tr><td>a</td><td>b</td><td>c</td></tr><tr><td>d</td></tr>"
                    "</table><table><tr></tr><tr><td>e</td></tr></table>",
    "lists": "<ul><li>One<ul><li>Inner<ol><li>Deep</li></ol></li></ul></li><li>Two</li></ul>"
             "<ol start=5><li>Five</li><li>Six</li></ol><dl><dt>Term</dt><dd>Meaning</dd></dl>",
    "list-in-table": "<table><tr><td><ul><li>a</li><li>b</li></ul></td><td><ol><li>c</li></ol></td>"
                     "</tr></table>",
    "links": "<p><a name=top>Here</a> <a href='https://example.org/a?b=c&amp;d={e}'>there</a> "
             "<a href='#top'>back</a> <a href='mailto:a@example.org'>mail</a></p>",
    "picture": f"<p>A <img src='data:image/png;base64,{PICTURE}' width=20 height=20> picture</p>",
    "alphabets": "<p>Zażółć gęślą jaźń, Příliš žluťoučký, Ωμέγα, Съешь ещё, שלום, مرحبا, "
                 "日本語, 한국어, ไทย, 😀 €—“”</p>",
    "right-to-left": "<p dir=rtl>שלום <b>עולם</b> 123</p><table dir=rtl border=1><tr><td>אחת</td>"
                     "<td>שתיים</td></tr></table>",
    "special-characters": "<p>{braces} \\backslash\\ &nbsp;&shy;&lt;a=b&gt;</p><pre>a\tb\n c</pre>",
    "rules": "<p align=center>a</p><hr><p style='margin-left:2cm;text-indent:-1cm'>b</p>"
             "<blockquote>c</blockquote><p style='page-break-before:always'>d</p><p></p>",
    "empty": "",
}

TEXTS = {
    "text": "# Order\n\nTwo *slanted* and **bold** words, `code` and ~~gone~~.\n\n> Quoted\n\n---\n",
    "table": "| Item | Price |\n|:-----|------:|\n| Pen  | 1.20 |\n|      | 2 |\n\n: Prices\n",
    "lists": "1. One\n   - Inner\n   - More\n2. Two\n\n(@) Example\n\nTerm\n:   Meaning\n",
    "footnotes": "A note.[^1] Another.^[In the line]\n\n[^1]: Below, with `code`.\n\n    And more.\n",
    "links": "[there](https://example.org/{a}) and <mailto:a@example.org>\n",
    "alphabets": "Zażółć, Ωμέγα, Съешь, שלום, 日本語, 😀 €\n",
    "special-characters": "\\{braces\\} \\\\ a\\\nb\n\n    pre {x} \\y\n",
    "math": "Inline $a^2+b_1$ and\n\n$$\\sum_{i=1}^n i$$\n",
    "title": "---\ntitle: A title\nauthor: [One, Two]\ndate: Today\n---\n\nText\n",
}

OFFICE = """<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0"
 xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0"
 xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"
 xmlns:dc="http://purl.org/dc/elements/1.1/"
 office:version="1.2" office:mimetype="application/vnd.oasis.opendocument.text">
<office:styles><style:style style:name="Sum" style:family="paragraph" style:class="text">
<style:text-properties fo:font-weight="bold"/></style:style></office:styles>
<office:automatic-styles><style:page-layout style:name="P"><style:page-layout-properties
 fo:page-width="29.7cm" fo:page-height="21cm" style:print-orientation="landscape"/>
<style:header-style/><style:footer-style/></style:page-layout>
<style:style style:name="C" style:family="section"><style:section-properties>
<style:columns fo:column-count="2"/></style:section-properties></style:style>
</office:automatic-styles>
<office:master-styles><style:master-page style:name="Standard" style:page-layout-name="P">
<style:header><text:p>Head <text:page-number/></text:p></style:header>
<style:footer><table:table><table:table-column/><table:table-row><table:table-cell>
<text:p>Foot <text:page-count/></text:p></table:table-cell></table:table-row></table:table>
</style:footer></style:master-page></office:master-styles>
<office:body><office:text>BODY</office:text></office:body></office:document>
"""

BODIES = {
    "pages": "<text:p text:style-name='Sum'>A page with a header and a footer</text:p>",
    "notes": "<text:p>Text<text:note text:note-class='footnote'><text:note-citation>1"
             "</text:note-citation><text:note-body><text:p>Below</text:p></text:note-body></text:note>"
             " and<text:note text:note-class='endnote'><text:note-citation>i</text:note-citation>"
             "<text:note-body><text:p>End</text:p></text:note-body></text:note></text:p>",
    "comments": "<text:p>Text<office:annotation><dc:creator>A</dc:creator>"
                "<text:p>Remark</text:p></office:annotation> more</text:p>",
    "fields": "<text:p><text:date/> <text:time/> <text:author-name>A</text:author-name> "
              "<text:bookmark-start text:name='m'/>Marked<text:bookmark-end text:name='m'/> "
              "<text:bookmark-ref text:reference-format='text' text:ref-name='m'>Marked"
              "</text:bookmark-ref></text:p>",
    "columns": "<text:section text:style-name='C' text:name='S'><text:p>Left</text:p>"
               "<text:p>Right</text:p></text:section><text:p>Below</text:p>",
    "headed-table": "<table:table><table:table-column table:number-columns-repeated='2'/>"
                    "<table:table-header-rows><table:table-row><table:table-cell><text:p>a</text:p>"
                    "</table:table-cell><table:table-cell><text:p>b</text:p></table:table-cell>"
                    "</table:table-row></table:table-header-rows><table:table-row>"
                    "<table:table-cell table:number-columns-spanned='2'><text:p>wide</text:p>"
                    "</table:table-cell><table:covered-table-cell/></table:table-row></table:table>",
}

folder = pathlib.Path(sys.argv[1])
folder.mkdir(parents=True, exist_ok=True)
for name, body in PAGES.items():
    page = f"<html><head><meta charset=utf-8><title>{name}</title></head><body>{body}</body></html>"
    (folder / f"{name}.html").write_text(page, encoding="utf-8")
for name, text in TEXTS.items():
    (folder / f"{name}.md").write_text(text, encoding="utf-8")
for name, body in BODIES.items():
    (folder / f"{name}.fodt").write_text(OFFICE.replace("BODY", body), encoding="utf-8")
