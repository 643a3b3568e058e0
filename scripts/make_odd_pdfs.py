#!/usr/bin/env python3
"""Makes plans that are odd but real, for the tests: make_odd_pdfs.py FOLDER

Protected, certified and scanned plans, fine hatches, odd names. Needs nothing but Python. Prints how many it made.
"""
import hashlib
import os
import struct
import sys
import zlib

sys.dont_write_bytecode = True
from make_bad_pdfs import pdf, plan as bare_plan, stream  # noqa: E402

FOLDER = "."
COUNT = 0
LETTER = b"/MediaBox[0 0 612 792]"


def plan(page=LETTER + b"/Resources<<>>", content=None, more=None):
    objects = bare_plan(page, content, more)
    objects[3] = b"<</Type/Page/Parent 2 0 R/Contents 4 0 R" + page + b">>"
    return objects


def save(name, data):
    global COUNT
    with open(os.path.join(FOLDER, name), "wb") as out:
        out.write(data)
    COUNT += 1


# --- Protected plans: the usual 128 bits

PADDING = bytes.fromhex("28BF4E5E4E758A4164004E56FFFA01082E2E00B6D0683E802F0CA9FE6453697A")
FILE_ID = b"0123456789abcdef"


def rc4(key, data):
    state = list(range(256))
    j = 0
    for i in range(256):
        j = (j + state[i] + key[i % len(key)]) & 255
        state[i], state[j] = state[j], state[i]
    out = bytearray()
    i = j = 0
    for byte in data:
        i = (i + 1) & 255
        j = (j + state[i]) & 255
        state[i], state[j] = state[j], state[i]
        out.append(byte ^ state[(state[i] + state[j]) & 255])
    return bytes(out)


def rounds(key, data, count):
    for number in range(count):
        data = rc4(bytes(byte ^ number for byte in key), data)
    return data


def md5(data, times=1):
    for _ in range(times):
        data = hashlib.md5(data).digest()
    return data


def hexed(data):
    return b"<" + data.hex().encode() + b">"


def protected(objects, user=b"", owner=b"owner", rights=-4, apart=False):
    """The same plan encrypted; only streams may hold text. What opens it stands in the trailer or in an object apart."""
    padded = (user + PADDING)[:32]
    kept = rounds(md5((owner + PADDING)[:32], 51), padded, 20)
    key = md5(padded + kept + struct.pack("<i", rights) + FILE_ID, 51)
    check = rounds(key, md5(PADDING + FILE_ID), 20) + bytes(16)
    out = {}
    for number, body in objects.items():
        head, mark, rest = body.partition(b"stream\n")
        if mark:
            data = rest[: -len(b"\nendstream")]
            own = md5(key + struct.pack("<i", number)[:3] + b"\0\0")
            body = head + mark + rc4(own, data) + b"\nendstream"
        out[number] = body
    opens = b"<</Filter/Standard/V 2/R 3/Length 128/P %d/O%s/U%s>>" % (rights, hexed(kept), hexed(check))
    if apart:
        out[max(out) + 1] = opens
        opens = b" %d 0 R" % max(out)
    return pdf(out, trailer=b"/Encrypt" + opens + b"/ID[%s%s]" % (hexed(FILE_ID), hexed(FILE_ID)))


def protections():
    save("protected.pdf", protected(plan()))
    save("protected_damaged.pdf", protected(plan()) + b"x" * 3000)
    save("protected_apart_damaged.pdf", protected(plan(), apart=True) + b"x" * 3000)
    save("password.pdf", protected(plan(), user=b"plan"))
    save("owner_empty.pdf", protected(plan(), user=b"plan", owner=b""))
    save("notes_forbidden.pdf", protected(plan(), rights=-4 & ~32))
    save("certificate.pdf", pdf(plan(), trailer=b"/Encrypt<</Filter/Adobe.PubSec/SubFilter/adbe.pkcs7.s4/V 2/Length 128"
         b"/Recipients[<00>]>>/ID[(a)(a)]"))
    for level in (1, 2, 3):
        certified = plan(more={
            5: b"<</Type/Sig/Filter/Adobe.PPKLite/SubFilter/adbe.pkcs7.detached/ByteRange[0 0 0 0]/Contents<00>/Reference["
               b"<</Type/SigRef/TransformMethod/DocMDP/TransformParams<</Type/TransformParams/P %d/V/1.2>>>>]>>" % level})
        certified[1] = b"<</Type/Catalog/Pages 2 0 R/Perms<</DocMDP 5 0 R>>>>"
        save("certified_%d.pdf" % level, pdf(certified))


# --- Fine hatches

def hatch(times):
    fills = b"/Pattern cs /P scn " + b"0 0 3456 2592 re f " * times
    pattern = stream(b"0.2 w 0 0 m 1 1 l S", b"/Type/Pattern/PatternType 1/PaintType 1/TilingType 1/BBox[0 0 1 1]"
                     b"/XStep 1/YStep 1/Resources<<>>")
    line = b"1 0 0 RG 20 w 100 1296 m 3356 1296 l S"
    return pdf(plan(b"/MediaBox[0 0 3456 2592]/Resources<</Pattern<</P 5 0 R>>>>", stream(fills + line), {5: pattern}))


# --- Pictures

def picture(data, entries, page=LETTER):
    place = stream(b"q 612 0 0 792 0 0 cm /I Do Q")
    image = stream(data, b"/Type/XObject/Subtype/Image" + entries)
    return pdf(plan(page + b"/Resources<</XObject<</I 5 0 R>>>>", place, {5: image}))


def jpx_head(width, height):
    size = struct.pack(">HIIIIIIIIH", 0, width, height, 0, 0, width, height, 0, 0, 3) + b"\x07\x01\x01" * 3
    return b"\xff\x4f\xff\x51" + struct.pack(">H", len(size) + 2) + size


def pictures():
    entries = b"/Width %d/Height %d/BitsPerComponent %d/ColorSpace/DeviceGray/Filter/%s"
    # A scan of 14,400 by 9,600 dots, black in its upper left quarter and in every line of 64 below.
    black, white, half = b"\0" * 1800, b"\xff" * 1800, b"\0" * 900 + b"\xff" * 900
    rows = [half if y < 4800 else black if y % 64 < 32 else white for y in range(9600)]
    save("scan.pdf", picture(zlib.compress(b"".join(rows), 9), entries % (14400, 9600, 1, b"FlateDecode")))
    save("scan_cut.pdf", picture(zlib.compress(b"".join(rows[:5000]), 9), entries % (14400, 9600, 1, b"FlateDecode")))
    save("jpx_bomb.pdf", picture(jpx_head(30000, 30000) + b"\0" * 700, b"/Width 30000/Height 30000/Filter/JPXDecode"))
    save("jpx_damaged.pdf", picture(jpx_head(300, 300) + b"\0" * 700, b"/Width 300/Height 300/Filter/JPXDecode"))


# --- JBIG2 with a dictionary that two pictures share, in its usual Huffman codes


def bits(text):
    text += "0" * (-len(text) % 8)
    return bytes(int(text[i:i + 8], 2) for i in range(0, len(text), 8))


def segment(number, kind, data, refers=()):
    head = struct.pack(">IBB", number, kind, len(refers) << 5) + bytes(refers)
    return head + struct.pack(">BI", 0 if kind == 0 else 1, len(data)) + data


LETTERS = [(0xffff, 0x8001), (0x8001, 0x4002), (0xff00, 0x00ff), (0x0ff0, 0xaaaa)]  # upper rows, lower rows


def dictionary():
    """Four letters of 16 by 16 dots, unpacked."""
    count = len(LETTERS)
    # One class of height 16, widths 16 0 0 0, the end, the size 0 of a plain bitmap.
    head = "11110" + format(16 - 12, "06b") + "11110" + format(16 - 11, "06b") + "0" * (count - 1) + "111111" + "00000"
    rows = b"".join(b"".join(struct.pack(">H", letter[y // 8]) for letter in LETTERS) for y in range(16))
    exported = bits("00000" + "0" + format(count, "04b"))
    return segment(0, 0, struct.pack(">HII", 1, count, count) + bits(head) + rows + exported)


def text_page(columns, rows):
    """Letters side by side all over the picture."""
    width, height = 16 * columns, 16 * rows
    page = segment(1, 48, struct.pack(">IIIIBH", width, height, 0, 0, 0, 0))
    table = bits("".join("0001" if i == 2 else "0000" for i in range(35)) + "0" * len(LETTERS))
    text = ["0"]
    for row in range(rows):
        text.append("0" if row == 0 else "11110011")  # a line further, then sixteen
        text.append("00" + "0" * 7)  # from the left edge
        letters = [format((row + column) % 4, "02b") for column in range(columns)]
        text.append("001".join(letters) + "01")
    region = struct.pack(">IIIIBHHI", width, height, 0, 0, 0, 0x11, 0, columns * rows) + table + bits("".join(text))
    return page + segment(2, 6, region, (0,)), width, height


def shared_dictionary():
    more = {8: stream(dictionary())}
    for number, columns, rows in ((5, 120, 160), (6, 200, 210)):
        data, width, height = text_page(columns, rows)
        more[number] = stream(data, b"/Type/XObject/Subtype/Image/Width %d/Height %d/BitsPerComponent 1/ColorSpace/DeviceGray"
                              b"/Filter/JBIG2Decode/DecodeParms<</JBIG2Globals 8 0 R>>" % (width, height))
    place = stream(b"q 600 0 0 390 6 396 cm /A Do Q q 600 0 0 390 6 6 cm /B Do Q")
    save("jbig2.pdf", pdf(plan(LETTER + b"/Resources<</XObject<</A 5 0 R/B 6 0 R>>>>", place, more)))


# --- Bombs: small files that ask for much memory

def bombs():
    data = segment(1, 48, struct.pack(">IIIIBH", 65000, 65000, 0, 0, 0, 0))
    save("jbig2_bomb.pdf", picture(data, b"/Width 65000/Height 65000/BitsPerComponent 1/ColorSpace/DeviceGray"
                                   b"/Filter/JBIG2Decode"))
    # Four hundred groups, each inside the one before.
    deep = {}
    for number in range(5, 405):
        inner = b"/Resources<</XObject<</F %d 0 R>>>>" % (number + 1) if number < 404 else b""
        deep[number] = stream(b"0.9 g 0 0 612 792 re f" + (b" /F Do" if inner else b""),
                              b"/Type/XObject/Subtype/Form/BBox[0 0 612 792]/Group<</S/Transparency/I true/K true>>" + inner)
    half = b"/ExtGState<</G<</ca 0.5/CA 0.5>>>>"
    save("deep_bomb.pdf", pdf(plan(LETTER + b"/Resources<<" + half + b"/XObject<</F 5 0 R>>>>",
                                   stream(b"/G gs /F Do"), deep)))
    lines = zlib.compress(b"0 0 m 9 9 l S\n" * 4000000, 9)
    save("lines_bomb.pdf", pdf(plan(content=stream(lines, b"/Filter/FlateDecode"))))


# --- Names

def names():
    long = b"L" * 300
    entries = (LETTER + b"/Resources<</XObject<</ 5 0 R/#41#23#20x 5 0 R/" + long + b" 5 0 R>>>>"
               b"/Odd#20Key [ 1.50  +7 (a\\(b\\)) <AB CD> /#E4 ] % kept\n /LastModified(D:20260101)")
    form = stream(b"1 0 0 rg 0 0 50 50 re f", b"/Type/XObject/Subtype/Form/BBox[0 0 612 792]")
    content = stream(b"/ Do 1 0 0 1 100 0 cm /#41#23#20x Do 1 0 0 1 100 0 cm /" + long + b" Do")
    save("names.pdf", pdf(plan(entries, content, {5: form})))
    packed(entries, form, content)


def packed(entries, form, content):
    """The same with the page inside a stream of objects."""
    inside = {1: b"<</Type/Catalog/Pages 2 0 R>>", 2: b"<</Type/Pages/Count 1/Kids[3 0 R]>>",
              3: b"<</Type/Page/Parent 2 0 R/Contents 4 0 R" + entries + b">>"}
    heads, bodies = b"", b""
    for number, body in inside.items():
        heads += b"%d %d " % (number, len(bodies))
        bodies += body + b"\n"
    objects = {4: content, 5: form, 6: stream(zlib.compress(heads + bodies),
               b"/Type/ObjStm/N 3/First %d/Filter/FlateDecode" % len(heads))}
    out = b"%PDF-1.7\n%\xe2\xe3\xcf\xd3\n"
    rows = [b"\0" + bytes(4)] + [b"\2" + struct.pack(">IB", 6, i)[1:] for i in range(3)]
    for number, body in objects.items():
        rows.append(b"\1" + struct.pack(">IB", len(out), 0)[1:])
        out += b"%d 0 obj\n" % number + body + b"\nendobj\n"
    rows.append(b"\1" + struct.pack(">IB", len(out), 0)[1:])
    table = stream(b"".join(rows), b"/Type/XRef/Size 8/W[1 3 1]/Root 1 0 R")
    save("names_packed.pdf", out + b"7 0 obj\n" + table + b"\nendobj\nstartxref\n%d\n%%%%EOF\n" % len(out))


def main():
    global FOLDER
    FOLDER = sys.argv[1]
    os.makedirs(FOLDER, exist_ok=True)
    protections()
    save("hatch_once.pdf", hatch(1))
    save("hatch_often.pdf", hatch(120))
    pictures()
    shared_dictionary()
    bombs()
    names()
    print(COUNT)


if __name__ == "__main__":
    main()
