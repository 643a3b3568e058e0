#pragma once

#include <QByteArray>
#include <QList>

// Small PDFs for tests, written byte by byte so that every oddity can be had.
namespace tamo::test {

struct PdfPage {
  QByteArray entries = "/MediaBox[0 0 612 792]";  // of the page's dictionary
  QByteArray content = "1 w 100 100 m 300 100 l S";
};

struct PdfOptions {
  bool xrefStream = false;
  QList<QByteArray> more;  // further objects, numbered from 3 + 2 * pages
};

inline QByteArray MakePdf(const QList<PdfPage>& pages, const PdfOptions& options = {}) {
  QByteArray pdf = "%PDF-1.7\n%\xe2\xe3\xcf\xd3\n";
  QList<qsizetype> places;
  const auto add = [&](const QByteArray& body) {
    places.push_back(pdf.size());
    pdf += QByteArray::number(places.size()) + " 0 obj\n" + body + "\nendobj\n";
  };
  QByteArray kids;
  for (qsizetype i = 0; i < pages.size(); ++i) kids += QByteArray::number(3 + 2 * i) + " 0 R ";
  add("<</Type/Catalog/Pages 2 0 R>>");
  add("<</Type/Pages/Count " + QByteArray::number(pages.size()) + "/Kids[" + kids + "]>>");
  for (const PdfPage& page : pages) {
    const QByteArray next = QByteArray::number(places.size() + 2);
    add("<</Type/Page/Parent 2 0 R/Resources<<>>/Contents " + next + " 0 R" + page.entries + ">>");
    add("<</Length " + QByteArray::number(page.content.size()) + ">>\nstream\n" + page.content +
        "\nendstream");
  }
  for (const QByteArray& body : options.more) add(body);
  const QByteArray xref = QByteArray::number(pdf.size());
  const qsizetype size = places.size() + 1;
  if (options.xrefStream) {
    QByteArray data("\0\0\0\0\xff", 5);
    places.push_back(pdf.size());
    for (const qsizetype place : places) {
      data += '\1';
      for (int shift = 16; shift >= 0; shift -= 8) data += static_cast<char>(place >> shift);
      data += '\0';
    }
    pdf += QByteArray::number(size) + " 0 obj\n<</Type/XRef/W[1 3 1]/Root 1 0 R/Size " +
           QByteArray::number(size + 1) + "/Length " + QByteArray::number(data.size()) +
           ">>\nstream\n" + data + "\nendstream\nendobj\n";
  } else {
    pdf += "xref\n0 " + QByteArray::number(size) + "\n0000000000 65535 f \n";
    for (const qsizetype place : places) {
      pdf += QByteArray::number(place).rightJustified(10, '0') + " 00000 n \n";
    }
    pdf += "trailer\n<</Size " + QByteArray::number(size) + "/Root 1 0 R>>\n";
  }
  return pdf + "startxref\n" + xref + "\n%%EOF\n";
}

}  // namespace tamo::test
