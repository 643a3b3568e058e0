#!/usr/bin/env python3
"""Makes damaged and hostile plans for the tests: make_bad_pdfs.py FOLDER

Every file is one way in which a plan can be broken. Needs nothing but Python. Prints how many it made.
"""
import os
import sys
import zlib

FOLDER = "."
COUNT = 0


def save(name, data):
    global COUNT
    with open(os.path.join(FOLDER, name), "wb") as out:
        out.write(data)
    COUNT += 1


def pdf(objects, trailer=b"", root=b"1 0 R", version=b"1.7", size=None):
    """A PDF of numbered objects with a table that is right, whatever the objects say."""
    out = b"%PDF-" + version + b"\n%\xe2\xe3\xcf\xd3\n"
    places = {}
    for number, body in sorted(objects.items()):
        places[number] = len(out)
        out += b"%d 0 obj\n" % number + body + b"\nendobj\n"
    xref = len(out)
    top = max(objects) + 1
    out += b"xref\n0 %d\n0000000000 65535 f \n" % top
    for number in range(1, top):
        out += b"%010d 00000 n \n" % places[number] if number in places else b"0000000000 00000 f \n"
    return out + b"trailer\n<</Size %d/Root %s%s>>\nstartxref\n%d\n%%%%EOF\n" % (size or top, root, trailer, xref)


def stream(data, entries=b""):
    return b"<<%s/Length %d>>\nstream\n" % (entries, len(data)) + data + b"\nendstream"


CONTENT = b"1 w 100 100 m 300 100 l S"


def plan(page=b"/MediaBox[0 0 612 792]", content=None, more=None):
    objects = {
        1: b"<</Type/Catalog/Pages 2 0 R>>",
        2: b"<</Type/Pages/Count 1/Kids[3 0 R]>>",
        3: b"<</Type/Page/Parent 2 0 R/Contents 4 0 R/Resources<<>>" + page + b">>",
        4: content if content is not None else stream(CONTENT),
    }
    objects.update(more or {})
    return objects


def deflated(count, levels):
    """`count` blanks, packed `levels` times. One megabyte is packed and repeated."""
    block = b" " * (1 << 20)
    packer = zlib.compressobj(9, zlib.DEFLATED, -15)
    packed = packer.compress(block) + packer.flush(zlib.Z_FULL_FLUSH)
    check = 1
    for _ in range(count >> 20):
        check = zlib.adler32(block, check)
    data = b"\x78\xda" + packed * (count >> 20) + b"\x03\x00" + check.to_bytes(4, "big")
    for _ in range(levels - 1):
        data = zlib.compress(data, 9)
    return data


def no_plans():
    good = pdf(plan())
    save("zero_bytes.pdf", b"")
    save("one_byte.pdf", b"%")
    save("header_only.pdf", b"%PDF-1.7\n")
    save("garbage.pdf", bytes((i * 7919 + i // 13) & 255 for i in range(50000)))
    save("zeros.pdf", b"\0" * 100000)
    save("text.pdf", b"This is a letter, not a plan.\r\n" * 100)
    save("picture.pdf", b"\x89PNG\r\n\x1a\n" + b"\0" * 4000)
    save("archive.pdf", b"PK\x03\x04" + b"\0" * 4000)
    save("web_page.pdf", b"<html><body>%PDF-1.7 Sign in to download</body></html>")
    save("header_then_garbage.pdf", b"%PDF-1.7\n" + bytes((i * 31) & 255 for i in range(20000)))
    for part in (10, 25, 50, 75, 90, 99):
        save("truncated_%d.pdf" % part, good[: len(good) * part // 100])
    save("no_eof.pdf", good.replace(b"%%EOF\n", b""))
    save("no_startxref.pdf", good[: good.rindex(b"startxref")])
    save("no_trailer.pdf", good[: good.rindex(b"trailer")])
    save("junk_before.pdf", b"From: plans@example.com\r\n\r\n" * 20 + good)
    save("junk_after.pdf", good + b"x" * 5000)
    save("line_ends_changed.pdf", good.replace(b"\n", b"\r\n"))
    save("zeros_in_the_middle.pdf", good[:200] + b"\0" * 200 + good[400:])


def broken_tables():
    good = pdf(plan())
    start = good.rindex(b"startxref\n") + 10
    for name, place in (("far", b"99999999999"), ("zero", b"0"), ("negative", b"-5"), ("self", b"15")):
        save("xref_%s.pdf" % name, good[:start] + place + b"\n%%EOF\n")
    save("xref_shifted.pdf", good.replace(b"0000000015", b"0000000022"))
    save("xref_count_huge.pdf", good.replace(b"xref\n0 5", b"xref\n0 999999999"))
    save("xref_count_negative.pdf", good.replace(b"xref\n0 5", b"xref\n0 -5"))
    save("xref_letters.pdf", good.replace(b"00000 n", b"0000x n"))
    save("size_huge.pdf", pdf(plan(), size=2147483647))
    save("size_small.pdf", pdf(plan(), size=1))
    loop = good[: good.rindex(b"trailer")]
    at = loop.rindex(b"xref\n")
    save("prev_loop.pdf", loop + b"trailer\n<</Size 5/Root 1 0 R/Prev %d>>\nstartxref\n%d\n%%%%EOF\n" % (at, at))
    save("xref_stream_broken.pdf", b"%PDF-1.7\n1 0 obj\n<</Type/XRef/W[9 9 9]/Size 99999999/Root 2 0 R/Length 3>>\n"
         b"stream\nabc\nendstream\nendobj\nstartxref\n9\n%%EOF\n")
    save("xref_stream_wide.pdf", b"%PDF-1.7\n1 0 obj\n<</Type/XRef/W[1 2147483647 1]/Size 10/Root 2 0 R/Length 3>>\n"
         b"stream\nabc\nendstream\nendobj\nstartxref\n9\n%%EOF\n")


def broken_trees():
    def tree(**change):
        objects = plan()
        objects.update({int(key[1:]): value for key, value in change.items()})
        return pdf(objects)

    save("tree_cycle.pdf", tree(o2=b"<</Type/Pages/Count 5/Kids[2 0 R 3 0 R 2 0 R]>>"))
    save("tree_cycle_two.pdf", tree(o2=b"<</Type/Pages/Count 2/Kids[5 0 R]>>", o5=b"<</Type/Pages/Count 2/Kids[2 0 R]>>"))
    save("tree_parent_cycle.pdf", tree(o3=b"<</Type/Page/Parent 3 0 R/Contents 4 0 R>>"))
    save("tree_no_pages.pdf", tree(o2=b"<</Type/Pages/Count 0/Kids[]>>"))
    save("tree_count_huge.pdf", tree(o2=b"<</Type/Pages/Count 2147483647/Kids[3 0 R]>>"))
    save("tree_count_negative.pdf", tree(o2=b"<</Type/Pages/Count -1/Kids[3 0 R]>>"))
    save("tree_kids_missing.pdf", tree(o2=b"<</Type/Pages/Count 1>>"))
    save("tree_kids_number.pdf", tree(o2=b"<</Type/Pages/Count 1/Kids 17>>"))
    save("tree_kids_lost.pdf", tree(o2=b"<</Type/Pages/Count 3/Kids[97 0 R 98 0 R 99 0 R]>>"))
    save("tree_same_page.pdf", tree(o2=b"<</Type/Pages/Count 4/Kids[3 0 R 3 0 R 3 0 R 3 0 R]>>"))
    save("tree_direct_page.pdf", tree(o2=b"<</Type/Pages/Count 1/Kids[<</Type/Page/Parent 2 0 R/MediaBox[0 0 9 9]>>]>>"))
    save("catalog_lost.pdf", pdf(plan(), root=b"77 0 R"))
    save("catalog_number.pdf", tree(o1=b"17"))
    save("pages_is_page.pdf", tree(o1=b"<</Type/Catalog/Pages 3 0 R>>"))
    deep = plan()
    for level in range(400):
        deep[10 + level] = b"<</Type/Pages/Count 1/Kids[%d 0 R]>>" % (11 + level)
    deep[410] = b"<</Type/Page/MediaBox[0 0 9 9]>>"
    deep[2] = b"<</Type/Pages/Count 1/Kids[10 0 R]>>"
    save("tree_deep.pdf", pdf(deep))
    wide = plan()
    wide[2] = b"<</Type/Pages/Count 50000/Kids[" + b"3 0 R " * 50000 + b"]>>"
    save("tree_wide.pdf", pdf(wide))
    save("nesting.pdf", tree(o5=b"[" * 50000 + b"]" * 50000, o3=b"<</Type/Page/Parent 2 0 R/Annots 5 0 R>>"))


def odd_pages():
    boxes = {
        "huge": b"/MediaBox[0 0 200000 200000]",
        "endless": b"/MediaBox[0 0 1e30 1e30]",
        "empty": b"/MediaBox[0 0 0 0]",
        "turned_over": b"/MediaBox[612 792 0 0]",
        "letters": b"/MediaBox[a b c d]",
        "short": b"/MediaBox[0 0]",
        "none": b"",
        "crop_outside": b"/MediaBox[0 0 612 792]/CropBox[1000 1000 2000 2000]",
        "rotate_odd": b"/MediaBox[0 0 612 792]/Rotate 37",
        "rotate_huge": b"/MediaBox[0 0 612 792]/Rotate 2147483647",
        "unit_zero": b"/MediaBox[0 0 612 792]/UserUnit 0",
        "unit_negative": b"/MediaBox[0 0 612 792]/UserUnit -3",
        "unit_huge": b"/MediaBox[0 0 612 792]/UserUnit 1e20",
        "annots_number": b"/MediaBox[0 0 612 792]/Annots 17",
        "annots_cycle": b"/MediaBox[0 0 612 792]/Annots[3 0 R 3 0 R]",
        "annots_lost": b"/MediaBox[0 0 612 792]/Annots[99 0 R null 12 (x)]",
    }
    for name, entries in boxes.items():
        save("page_%s.pdf" % name, pdf(plan(entries)))
    marks = [
        b"<</Type/Annot/Subtype/Line/NM(tamo-000001-00000000)>>",
        b"<</Type/Annot/Subtype/Line/NM(tamo-000002-00000000)/L[1 2]/Rect[0 0 1 1]>>",
        b"<</Type/Annot/Subtype/Line/NM(tamo-000003-00000000)/L[(a)(b)(c)(d)]/C[9 -9 (x)]/BS 7>>",
        b"<</Type/Annot/Subtype/Circle/NM(tamo-99999999999999-0)/Rect[1e38 -1e38 1e38 1e38]>>",
    ]
    numbers = {10 + i: mark for i, mark in enumerate(marks)}
    save("marks_broken.pdf", pdf(plan(b"/MediaBox[0 0 612 792]/Annots[10 0 R 11 0 R 12 0 R 13 0 R]", more=numbers)))


def hostile_contents():
    flate = b"/Filter/FlateDecode"
    save("bomb_content.pdf", pdf(plan(content=stream(deflated(200 << 20, 1), flate))))
    save("bomb_twice.pdf", pdf(plan(content=stream(deflated(1 << 30, 2), b"/Filter[/FlateDecode/FlateDecode]"))))
    save("bomb_objects.pdf", pdf(plan(more={5: stream(deflated(400 << 20, 2),
         b"/Type/ObjStm/N 1000000/First 10/Filter[/FlateDecode/FlateDecode]")})))
    image = b"/Type/XObject/Subtype/Image/Width %d/Height %d/BitsPerComponent 8/ColorSpace/DeviceRGB"
    use = b"/MediaBox[0 0 612 792]/Resources<</XObject<</I 5 0 R>>>>"
    do_image = stream(b"q 600 0 0 700 0 0 cm /I Do Q")
    for name, side in (("large", 60000), ("endless", 2147483647), ("negative", -5)):
        save("image_%s.pdf" % name, pdf(plan(use, do_image, {5: stream(b"\0" * 100, image % (side, side))})))
    save("image_bomb.pdf", pdf(plan(use, do_image, {5: stream(deflated(300 << 20, 1), image % (10000, 10000) + flate)})))
    save("form_cycle.pdf", pdf(plan(b"/MediaBox[0 0 612 792]/Resources<</XObject<</F 5 0 R>>>>", stream(b"/F Do"),
         {5: stream(b"/F Do", b"/Type/XObject/Subtype/Form/BBox[0 0 9 9]/Resources<</XObject<</F 5 0 R>>>>")})))
    fan = {}
    for level in range(20):
        fan[5 + level] = stream(b"/F Do /F Do /F Do /F Do", b"/Type/XObject/Subtype/Form/BBox[0 0 612 792]"
                                b"/Resources<</XObject<</F %d 0 R>>>>" % (6 + level))
    fan[25] = stream(CONTENT, b"/Type/XObject/Subtype/Form/BBox[0 0 612 792]")
    save("form_fan.pdf", pdf(plan(b"/MediaBox[0 0 612 792]/Resources<</XObject<</F 5 0 R>>>>", stream(b"/F Do"), fan)))
    save("content_garbage.pdf", pdf(plan(content=stream(bytes((i * 61) & 255 for i in range(30000))))))
    save("content_not_packed.pdf", pdf(plan(content=stream(b"no deflate at all", flate))))
    save("content_unknown_filter.pdf", pdf(plan(content=stream(CONTENT, b"/Filter/Wonder"))))
    save("content_self.pdf", pdf(plan(content=b"[4 0 R 4 0 R 4 0 R]")))
    save("content_length_huge.pdf", pdf(plan(content=b"<</Length 2147483647>>\nstream\n" + CONTENT + b"\nendstream")))
    save("content_length_self.pdf", pdf(plan(content=b"<</Length 4 0 R>>\nstream\n" + CONTENT + b"\nendstream")))
    save("content_filters_many.pdf", pdf(plan(content=stream(CONTENT, b"/Filter[" + b"/ASCIIHexDecode" * 3000 + b"]"))))
    save("numbers_huge.pdf", pdf(plan(content=stream(b"1e38 w -1e38 1e38 m 1e38 -1e38 l S 99999999999999 0 m 5 5 l S"))))
    save("saves_many.pdf", pdf(plan(content=stream(b"q " * 200000 + CONTENT))))
    save("dash_tiny.pdf", pdf(plan(content=stream(b"[0.00001] 0 d 1 w 0 0 m 612 792 l S"))))
    save("segments_many.pdf", pdf(plan(content=stream(b"0 0 m " + b"612 792 l 0 5 l " * 200000 + b"S"))))
    save("pattern_tiny.pdf", pdf(plan(b"/MediaBox[0 0 612 792]/Resources<</Pattern<</P 5 0 R>>>>",
         stream(b"/Pattern cs /P scn 0 0 612 792 re f"),
         {5: stream(b"0 0 1 1 re f", b"/Type/Pattern/PatternType 1/PaintType 1/TilingType 1/BBox[0 0 1 1]"
                    b"/XStep 0.0001/YStep 0.0001/Resources<<>>")})))


def locked():
    key = b"/Filter/Standard/V %d/R %d/Length 128/P -4/O(%s)/U(%s)"
    for name, version, revision in (("old", 1, 2), ("usual", 2, 3), ("unknown", 77, 99)):
        entries = b"/Encrypt<<" + key % (version, revision, b"o" * 32, b"u" * 32) + b">>/ID[(a)(a)]"
        save("locked_%s.pdf" % name, pdf(plan(), trailer=entries))
    save("locked_lost.pdf", pdf(plan(), trailer=b"/Encrypt 88 0 R/ID[(a)(a)]"))


def main():
    global FOLDER
    FOLDER = sys.argv[1]
    os.makedirs(FOLDER, exist_ok=True)
    no_plans()
    broken_tables()
    broken_trees()
    odd_pages()
    hostile_contents()
    locked()
    print(COUNT)


if __name__ == "__main__":
    main()
