"""PDF files of drawing sheets, written plainly: pages with texts, lines, areas and curves.

All places are points on the page as it is looked at, from its top left corner, y down; the page's rotation,
its crop box and its user unit are worked in here.
"""

import zlib

PLAIN = (278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333, 278, 278, 556, 556, 556, 556, 556, 556,
         556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667,
         556, 833, 722, 778, 667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 278, 278, 278, 469, 556, 333, 556,
         556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722,
         500, 500, 500, 334, 260, 334, 584)
BOLD = (278, 333, 474, 556, 556, 889, 722, 238, 333, 333, 389, 584, 278, 333, 278, 278, 556, 556, 556, 556, 556, 556,
        556, 556, 556, 556, 333, 333, 584, 584, 584, 611, 975, 722, 722, 722, 722, 667, 611, 778, 722, 278, 556, 722,
        611, 833, 722, 778, 667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 333, 278, 333, 584, 556, 333, 556,
        611, 556, 611, 556, 333, 611, 611, 278, 278, 556, 278, 889, 611, 611, 611, 611, 389, 556, 333, 611, 556, 778,
        556, 556, 500, 389, 280, 389, 584)
OTHERS = {"\u201c": 333, "\u201d": 333, "\u2019": 222, "\u2013": 556, "\u2014": 1000, "\u00bd": 834, "\u00e9": 556,
          "\u00c9": 667, "\u00b0": 400, "\u2022": 350}
LETTERS = [chr(c) for c in range(32, 127)] + sorted(OTHERS)


def plain_widths(table=PLAIN):
    widths = {chr(32 + i): w for i, w in enumerate(table)}
    widths.update(OTHERS)
    return widths


class Font:
    """kind: 'plain' one of the faces that every viewer has, 'sized' a face with its own widths, 'drawn' glyphs that
    are little drawings, 'wide' two bytes a letter."""

    def __init__(self, name, face, kind, widths):
        self.name, self.face, self.kind, self.widths = name, face, kind, widths
        # A face's own codes say nothing of its letters; what they are stands in its table.
        self.codes = {letter: 33 + (i * 37) % 200 for i, letter in enumerate(LETTERS)}

    def width(self, text, size):
        return sum(self.widths.get(c, 556) for c in text) * size / 1000

    def encoded(self, text):
        if self.kind == "wide":
            return "<" + "".join(f"{self.codes[c]:04X}" for c in text) + ">"
        if self.kind == "drawn":
            return "<" + "".join(f"{self.codes[c]:02X}" for c in text) + ">"
        out = ""
        for byte in text.encode("cp1252"):
            out += f"\\{byte:03o}" if byte > 126 or chr(byte) in "()\\" else chr(byte)
        return f"({out})"


def fonts():
    plain, bold = plain_widths(), plain_widths(BOLD)
    odd = {c: int(w * (0.8 + (ord(c) * 7 % 11) * 0.05)) for c, w in plain.items()}
    return {f.name: f for f in (
        Font("H", "Helvetica", "plain", plain), Font("B", "Helvetica-Bold", "plain", bold),
        Font("C", "Courier", "plain", {c: 600 for c in LETTERS}),
        Font("N", "ArialNarrow", "sized", {c: int(w * 0.82) for c, w in plain.items()}),
        Font("W", "CityBlueprint", "sized", {c: int(w * 1.12) for c, w in plain.items()}),
        Font("D", "StrokeLetters", "drawn", odd), Font("X", "Arial", "wide", plain))}


def number(value):
    return f"{value:.4f}".rstrip("0").rstrip(".")


class Page:
    def __init__(self, width, height, rotate=0, unit=1.0, crop=(0.0, 0.0)):
        self.width, self.height, self.rotate, self.unit, self.crop = width, height, rotate, unit, crop
        turned = rotate in (90, 270)
        self.w, self.h = ((height, width) if turned else (width, height))
        self.w, self.h = self.w / unit, self.h / unit
        cx, cy = crop
        u = 1 / unit
        self.matrix = {0: (u, 0, 0, -u, cx, cy + self.h), 90: (0, u, u, 0, cx, cy),
                       180: (-u, 0, 0, u, cx + self.w, cy), 270: (0, -u, -u, 0, cx + self.w, cy + self.h)}[rotate]
        self.ops, self.forms = [], []
        self.hidden = False

    def place(self, x, y):
        a, b, c, d, e, f = self.matrix
        return a * x + c * y + e, b * x + d * y + f

    def at(self, x, y):
        return " ".join(number(v) for v in self.place(x, y))

    def add(self, op):
        self.ops.append(op)

    # --- Lines and areas

    def line(self, x1, y1, x2, y2, width=0.5, grey=0.0, dash=None):
        dashes = f"[{dash}] 0 d" if dash else "[] 0 d"
        self.add(f"{number(grey)} G {number(width / self.unit)} w {dashes} {self.at(x1, y1)} m {self.at(x2, y2)} l S")

    def path(self, points, width=0.5, close=True):
        steps = " ".join(f"{self.at(*p)} {'m' if i == 0 else 'l'}" for i, p in enumerate(points))
        self.add(f"0 G {number(width / self.unit)} w [] 0 d {steps} {'s' if close else 'S'}")

    def frame(self, x1, y1, x2, y2, width=0.5):
        self.add(f"0 G {number(width / self.unit)} w [] 0 d {self.rect(x1, y1, x2, y2)} S")

    def area(self, x1, y1, x2, y2, grey):
        self.add(f"{number(grey)} g {self.rect(x1, y1, x2, y2)} f")

    def rect(self, x1, y1, x2, y2):
        (ax, ay), (bx, by) = self.place(x1, y1), self.place(x2, y2)
        return " ".join(number(v) for v in (min(ax, bx), min(ay, by), abs(bx - ax), abs(by - ay))) + " re"

    def arc(self, x1, y1, x2, y2, bulge):
        """A bow from one place to another."""
        nx, ny = (y2 - y1) * bulge, (x1 - x2) * bulge
        self.add(f"0 G {number(0.8 / self.unit)} w [] 0 d {self.at(x1, y1)} m {self.at(x1 + nx, y1 + ny)} "
                 f"{self.at(x2 + nx, y2 + ny)} {self.at(x2, y2)} c S")

    def picture(self, x1, y1, x2, y2):
        a, b, c, d, _, _ = self.matrix
        linear = [a * (x2 - x1), b * (x2 - x1), -c * (y2 - y1), -d * (y2 - y1)]
        ex, ey = self.place(x1, y2)
        self.add("q " + " ".join(number(v) for v in linear + [ex, ey]) + " cm /Im Do Q")

    # --- Texts

    def tm(self, x, y, dx, dy, stretch=1.0, scale=1.0):
        a, b, c, d, _, _ = self.matrix
        ux, uy = a * dx + c * dy, b * dx + d * dy
        vx, vy = a * dy + c * -dx, b * dy + d * -dx
        px, py = self.place(x, y)
        return " ".join(number(v) for v in (ux * stretch * scale, uy * stretch * scale, vx * scale, vy * scale, px, py))

    def text(self, x, y, size, font, text, way="whole", dx=1, dy=0, grey=0.0):
        """`way`: how a program writes it into the file."""
        if not text:
            return
        mode = 3 if self.hidden else 2 if way == "outlined" else 0
        self.add(f"BT {mode} Tr 0.2 w {number(grey)} g {number(grey)} G")
        for _ in range(2 if way == "twice" else 1):
            self.WAYS.get(way, Page.whole)(self, x, y, size, font, text, dx, dy)
        self.add("ET")

    def whole(self, x, y, size, font, text, dx, dy):
        self.add(f"/{font.name} {number(size)} Tf {self.tm(x, y, dx, dy)} Tm {font.encoded(text)} Tj")

    def in_matrix(self, x, y, size, font, text, dx, dy):
        self.add(f"/{font.name} 1 Tf {self.tm(x, y, dx, dy, 1, size)} Tm {font.encoded(text)} Tj")

    def letters(self, x, y, size, font, text, dx, dy):
        self.add(f"/{font.name} {number(size)} Tf")
        for letter in text:
            if letter != " ":
                self.add(f"{self.tm(x, y, dx, dy)} Tm {font.encoded(letter)} Tj")
            step = font.width(letter, size)
            x, y = x + dx * step, y + dy * step

    def words(self, x, y, size, font, text, dx, dy):
        self.add(f"/{font.name} {number(size)} Tf")
        for word in text.split(" "):
            if word:
                self.add(f"{self.tm(x, y, dx, dy)} Tm {font.encoded(word)} Tj")
            step = font.width(word + " ", size)
            x, y = x + dx * step, y + dy * step

    def kerned(self, x, y, size, font, text, dx, dy):
        """One statement with a number between the letters; blanks are numbers, too."""
        parts = []
        for i, letter in enumerate(text):
            if letter == " ":
                parts.append(f"{-font.widths.get(' ', 278)}")
            else:
                parts.append(font.encoded(letter))
                parts.append(str((i * 17) % 31 - 15))
        self.add(f"/{font.name} {number(size)} Tf {self.tm(x, y, dx, dy)} Tm [{' '.join(parts)}] TJ")

    def pieces(self, x, y, size, font, text, dx, dy):
        self.add(f"/{font.name} {number(size)} Tf")
        for i in range(0, len(text), 3):
            part = text[i:i + 3]
            self.add(f"{self.tm(x, y, dx, dy)} Tm {font.encoded(part)} Tj")
            step = font.width(part, size)
            x, y = x + dx * step, y + dy * step

    def spaced(self, x, y, size, font, text, dx, dy):
        self.add(f"/{font.name} {number(size)} Tf 0.04 Tc {self.tm(x, y, dx, dy, 0.98)} Tm {font.encoded(text)} Tj 0 Tc")

    WAYS = {"whole": whole, "matrix": in_matrix, "letters": letters, "words": words, "kerned": kerned,
            "pieces": pieces, "spaced": spaced}


# --- The file

def table_of_letters(font, digits):
    pairs = "\n".join(f"<{code:0{digits}X}> <{ord(c):04X}>" for c, code in font.codes.items())
    return (f"/CIDInit /ProcSet findresource begin 12 dict begin begincmap /CMapName /U def /CMapType 2 def\n"
            f"1 begincodespacerange <{'00' * (digits // 2)}> <{'FF' * (digits // 2)}> endcodespacerange\n"
            f"{len(font.codes)} beginbfchar\n{pairs}\nendbfchar endcmap end end")


class File:
    def __init__(self):
        self.objects = []

    def put(self, body, data=None):
        if data is not None:
            packed = zlib.compress(data)
            body = body[:-2] + f" /Length {len(packed)} /Filter /FlateDecode >>"
            body = body.encode() + b"\nstream\n" + packed + b"\nendstream"
        self.objects.append(body if isinstance(body, bytes) else body.encode())
        return len(self.objects)

    def font(self, font):
        if font.kind == "plain":
            return self.put(f"<< /Type /Font /Subtype /Type1 /BaseFont /{font.face} /Encoding /WinAnsiEncoding >>")
        if font.kind == "sized":
            told = {c.encode("cp1252")[0]: w for c, w in font.widths.items()}
            told |= {160: told[32], 173: told[45]}
            widths = " ".join(str(told.get(code, 556)) for code in range(32, 256))
            about = self.put(f"<< /Type /FontDescriptor /FontName /{font.face} /Flags 32 /FontBBox [-200 -250 1200 950] "
                             "/ItalicAngle 0 /Ascent 900 /Descent -220 /CapHeight 716 /StemV 80 >>")
            return self.put(f"<< /Type /Font /Subtype /TrueType /BaseFont /{font.face} /FirstChar 32 /LastChar 255 "
                            f"/Widths [{widths}] /Encoding /WinAnsiEncoding /FontDescriptor {about} 0 R >>")
        return self.drawn(font) if font.kind == "drawn" else self.wide(font)

    def drawn(self, font):
        told = self.put("<< >>", table_of_letters(font, 2).encode())
        last = max(font.codes.values())
        widths = {code: font.widths.get(c, 556) for c, code in font.codes.items()}
        glyphs = ""
        for c, code in sorted(font.codes.items(), key=lambda pair: pair[1]):
            wide = font.widths.get(c, 556)
            body = f"{wide} 0 d0 60 w 80 0 m {wide - 80} 700 l S" if c != " " else f"{wide} 0 d0"
            glyphs += f"/g{code} {self.put('<< >>', body.encode())} 0 R "
        names = "".join(f"/g{code} " if code in widths else "/.notdef " for code in range(last + 1))
        return self.put(f"<< /Type /Font /Subtype /Type3 /FontBBox [0 -200 1000 800] /FontMatrix [0.001 0 0 0.001 0 0] "
                        f"/CharProcs << {glyphs} >> /Encoding << /Type /Encoding /Differences [0 {names}] >> "
                        f"/FirstChar 0 /LastChar {last} "
                        f"/Widths [{' '.join(str(widths.get(i, 0)) for i in range(last + 1))}] "
                        f"/Resources << >> /ToUnicode {told} 0 R >>")

    def wide(self, font):
        told = self.put("<< >>", table_of_letters(font, 4).encode())
        widths = " ".join(f"{code} [{font.widths.get(c, 556)}]" for c, code in font.codes.items())
        about = self.put(f"<< /Type /FontDescriptor /FontName /{font.face} /Flags 4 /FontBBox [-200 -250 1200 950] "
                         "/ItalicAngle 0 /Ascent 900 /Descent -220 /CapHeight 716 /StemV 80 >>")
        below = self.put(f"<< /Type /Font /Subtype /CIDFontType2 /BaseFont /{font.face} /CIDSystemInfo << /Registry "
                         f"(Adobe) /Ordering (Identity) /Supplement 0 >> /FontDescriptor {about} 0 R /DW 556 "
                         f"/W [{widths}] /CIDToGIDMap /Identity >>")
        return self.put(f"<< /Type /Font /Subtype /Type0 /BaseFont /{font.face} /Encoding /Identity-H "
                        f"/DescendantFonts [{below} 0 R] /ToUnicode {told} 0 R >>")

    def page(self, page, parent, resources):
        body = "\n".join(page.ops).encode()
        forms = ""
        if page.forms:  # the whole drawing inside of a drawing that is placed
            inner = self.put(f"<< /Type /XObject /Subtype /Form /BBox [-9000 -9000 9000 9000] /Matrix [2 0 0 2 0 0] "
                             f"/Resources << {resources} >> >>", b"q 0.5 0 0 0.5 0 0 cm\n" + body + b"\nQ")
            forms, body = f"/Fm {inner} 0 R ", b"q /Fm Do Q"
        dots = bytes((x * 5 + y * 3) % 7 and 255 for y in range(64) for x in range(64))
        image = self.put("<< /Type /XObject /Subtype /Image /Width 64 /Height 64 /ColorSpace /DeviceGray "
                         "/BitsPerComponent 8 >>", dots)
        content = self.put("<< >>", body)
        cx, cy = page.crop
        crop = [cx, cy, cx + page.w, cy + page.h]
        media = [0, 0, cx + page.w + cx, cy + page.h + cy]
        boxes = f"/MediaBox [{' '.join(map(number, media))}] /CropBox [{' '.join(map(number, crop))}]"
        unit = f"/UserUnit {number(page.unit)} " if page.unit != 1 else ""
        return self.put(f"<< /Type /Page /Parent {parent} 0 R {boxes} /Rotate {page.rotate} {unit}/Contents {content} 0 R "
                        f"/Resources << {resources} /XObject << {forms}/Im {image} 0 R >> >> >>")

    def bytes(self, pages, used):
        own = "/Font << " + " ".join(f"/{f.name} {self.font(f)} 0 R" for f in used) + " >>"
        parent = self.put("<< >>")
        kids = [self.page(page, parent, own) for page in pages]
        self.objects[parent - 1] = (f"<< /Type /Pages /Count {len(kids)} /Kids "
                                    f"[{' '.join(f'{k} 0 R' for k in kids)}] >>").encode()
        root = self.put(f"<< /Type /Catalog /Pages {parent} 0 R >>")
        out, places = b"%PDF-1.6\n", []
        for i, body in enumerate(self.objects):
            places.append(len(out))
            out += f"{i + 1} 0 obj\n".encode() + body + b"\nendobj\n"
        rows = "".join(f"{at:010d} 00000 n \n" for at in places)
        end = f"trailer << /Size {len(places) + 1} /Root {root} 0 R >>\nstartxref\n{len(out)}\n%%EOF\n"
        return out + f"xref\n0 {len(places) + 1}\n0000000000 65535 f \n{rows}".encode() + end.encode()
