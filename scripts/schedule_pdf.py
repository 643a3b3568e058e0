"""A small PDF writer for made-up schedules: texts drawn in the many ways that drawing programs have.

Places are points from the top left corner of the page as it is looked at, y downward. The same
bytes every time.
"""

HELVETICA = {c: w for w, letters in (
    (222, "ijl"), (278, " .,:;/I!ft"), (333, "-r()`"), (191, "'"), (355, '"'), (389, "*"),
    (500, "ckvxyzsJ"), (556, "abdeghnopqu0123456789L#$_?"), (584, "=+<>~"), (611, "FTZ"),
    (667, "ABEKPSVXY&"), (722, "CDHNRUw"), (778, "GOQ"), (833, "mM"), (944, "W"), (889, "%"),
    (1015, "@"), (667, "ÉÈÀÂÊ"), (556, "éèàâêôûü"), (278, "îï"), (722, "Ñ"), (500, "ç"), (350, "•"),
    (260, "|"),
) for c in letters}
BOLD = dict(HELVETICA)
BOLD.update({c: w for w, letters in (
    (278, "Iijl"), (333, "ft:;!"), (389, "r"), (474, '"'), (238, "'"), (556, "ckvxysJ"),
    (611, "bdghnopquFTZL"), (667, "EPSVXY"), (722, "ABCDHKNRU&"), (778, "GOQw"), (889, "m"),
) for c in letters})
FONTS = {"F1": ("Helvetica", HELVETICA), "F2": ("Helvetica-Bold", BOLD), "F3": ("Courier", None)}


def width_of(text, size, font="F1"):
    widths = FONTS[font][1]
    return sum(600 if widths is None else widths.get(c, 556) for c in text) * size / 1000


def number(value):
    text = f"{value:.3f}".rstrip("0").rstrip(".")
    return "0" if text in ("", "-0") else text


def numbers(*values):
    return " ".join(number(v) for v in values)


def escaped(text):
    raw = text.encode("cp1252")
    return "".join("\\%03o" % b if b > 126 or b < 32 or chr(b) in "\\()" else chr(b) for b in raw)


class Page:
    """One page; `rotate` is its /Rotate, `crop` how far its CropBox lies inside of its MediaBox."""

    def __init__(self, width, height, rotate=0, crop=0):
        self.width, self.height, self.rotate, self.crop = width, height, rotate, crop
        self.ops = ["1 J 1 j"]
        self.turned = None  # (x, y, width) of a table that is drawn reading upwards

    # --- Places

    def shown(self, x, y):
        """From a turned table onto the page as it is looked at."""
        if self.turned is None:
            return x, y
        left, top, width = self.turned
        return left + y, top + width - x

    def place(self, x, y):
        x, y = self.shown(x, y)
        w, h, c = self.width, self.height, self.crop
        place = {0: (x, h - y), 90: (y, x), 180: (w - x, y), 270: (h - y, w - x)}[self.rotate]
        return place[0] + c, place[1] + c

    def along(self, x, y, dx, dy):
        a, b = self.place(x, y), self.place(x + dx, y + dy)
        return b[0] - a[0], b[1] - a[1]

    def box_of(self, x1, y1, x2, y2):
        a, b = self.shown(x1, y1), self.shown(x2, y2)
        return [min(a[0], b[0]), min(a[1], b[1]), max(a[0], b[0]), max(a[1], b[1])]

    # --- Lines and areas

    def line(self, x1, y1, x2, y2, width=0.6):
        a, b = self.place(x1, y1), self.place(x2, y2)
        self.ops.append(f"{number(width)} w 0 G {numbers(*a)} m {numbers(*b)} l S")

    def area(self, x1, y1, x2, y2, grey=0.0):
        a, b = self.place(x1, y1), self.place(x2, y2)
        x, y = min(a[0], b[0]), min(a[1], b[1])
        size = abs(a[0] - b[0]), abs(a[1] - b[1])
        self.ops.append(f"{number(grey)} g {numbers(x, y, *size)} re f")

    def frame(self, x1, y1, x2, y2, width=0.6):
        a, b = self.place(x1, y1), self.place(x2, y2)
        x, y = min(a[0], b[0]), min(a[1], b[1])
        size = abs(a[0] - b[0]), abs(a[1] - b[1])
        self.ops.append(f"{number(width)} w 0 G {numbers(x, y, *size)} re S")

    def outline(self, points, width=1.0):
        first, rest = self.place(*points[0]), [self.place(*p) for p in points[1:]]
        self.ops.append(f"{number(width)} w 0 G {numbers(*first)} m "
                        + " ".join(f"{numbers(*p)} l" for p in rest) + " h S")

    def arc(self, x1, y1, x2, y2, bulge, width=1.2):
        """A bow from one place to another, as revision clouds are drawn of."""
        dx, dy = x2 - x1, y2 - y1
        by = [(x1 + dy * bulge, y1 - dx * bulge), (x2 + dy * bulge, y2 - dx * bulge)]
        a, b, c, d = (self.place(*p) for p in [(x1, y1), *by, (x2, y2)])
        self.ops.append(f"{number(width)} w 0 G {numbers(*a)} m {numbers(*b, *c, *d)} c S")

    # --- Text

    def show(self, x, y, size, operand, font, spacing=0.0, up=False, mode=0):
        direction = (0, -1) if up else (1, 0)
        right = self.along(x, y, *direction)
        over = self.along(x, y, direction[1], -direction[0])
        self.ops.append(f"BT 0 g /{font} {number(size)} Tf {number(spacing)} Tc {mode} Tr "
                        f"{numbers(*right, *over, *self.place(x, y))} Tm {operand} ET")

    def text(self, x, y, size, words, font="F1", way="whole", up=False, spacing=0.0):
        """`way`: whole, words, letters, pieces (kerned), twice, small (small capitals)."""
        if way == "twice":
            self.text(x, y, size, words, font, "whole", up)
            self.text(x + 0.25, y, size, words, font, "whole", up)
        elif way == "pieces":
            cut = [words[i:i + 3] for i in range(0, len(words), 3)]
            kerned = " ".join(f"({escaped(c)}) {(-1) ** i * 35}" for i, c in enumerate(cut))
            self.show(x, y, size, f"[{kerned}] TJ", font, up=up)
        elif way in ("letters", "words"):
            self.parts(x, y, size, words, font, way, up, spacing)
        elif way == "small":
            self.small(x, y, size, words, font, up)
        else:
            self.show(x, y, size, f"({escaped(words)}) Tj", font, spacing, up)

    def parts(self, x, y, size, words, font, way, up, spacing):
        at = 0.0
        for part in (words if way == "letters" else words.split(" ")):
            if part.strip():
                place = (x, y - at) if up else (x + at, y)
                self.show(*place, size, f"({escaped(part)}) Tj", font, 0, up)
            at += width_of(part, size, font) + spacing
            if way == "words":
                at += width_of(" ", size, font)

    def small(self, x, y, size, words, font, up):
        at = 0.0
        for word in words.split(" "):
            for part, scale in ((word[:1], 1.0), (word[1:], 0.8)):
                place = (x, y - at) if up else (x + at, y)
                if part:
                    self.show(*place, size * scale, f"({escaped(part)}) Tj", font, 0, up)
                at += width_of(part, size * scale, font)
            at += width_of(" ", size, font)

    def dictionary(self, contents):
        turned = self.rotate in (90, 270)
        w, h = (self.height, self.width) if turned else (self.width, self.height)
        c = self.crop
        crop = f"/CropBox [{numbers(c, c, w + c, h + c)}] " if c else ""
        return (f"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 {numbers(w + 2 * c, h + 2 * c)}] {crop}"
                f"/Rotate {self.rotate} /Resources << /Font << /F1 3 0 R /F2 4 0 R /F3 5 0 R >> >> "
                f"/Contents {contents} 0 R >>")


def write(path, pages):
    kids = " ".join(f"{6 + 2 * i} 0 R" for i in range(len(pages)))
    objects = [b"<< /Type /Catalog /Pages 2 0 R >>",
               f"<< /Type /Pages /Kids [{kids}] /Count {len(pages)} >>".encode()]
    for name, _ in FONTS.values():
        objects.append(f"<< /Type /Font /Subtype /Type1 /BaseFont /{name} "
                       "/Encoding /WinAnsiEncoding >>".encode())
    for i, page in enumerate(pages):
        stream = ("\n".join(page.ops) + "\n").encode("latin-1")
        objects.append(page.dictionary(7 + 2 * i).encode())
        objects.append(b"<< /Length %d >>\nstream\n" % len(stream) + stream + b"endstream")
    out = bytearray(b"%PDF-1.4\n%\xe2\xe3\xcf\xd3\n")
    places = []
    for index, body in enumerate(objects, 1):
        places.append(len(out))
        out += b"%d 0 obj\n" % index + body + b"\nendobj\n"
    table = len(out)
    out += b"xref\n0 %d\n0000000000 65535 f \n" % (len(objects) + 1)
    for place in places:
        out += b"%010d 00000 n \n" % place
    out += b"trailer\n<< /Size %d /Root 1 0 R >>\nstartxref\n%d\n%%%%EOF\n" % (len(objects) + 1, table)
    path.write_bytes(out)
