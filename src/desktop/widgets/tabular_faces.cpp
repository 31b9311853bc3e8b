// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/tabular_faces.h"

#include <hb.h>

#include <QByteArray>
#include <QFontDatabase>
#include <QRawFont>
#include <QtEndian>
#include <array>
#include <memory>
#include <vector>

namespace varnholt {
namespace {

template <typename T, void (*destroy)(T*)>
struct Destroy {
    void operator()(T* object) const { destroy(object); }
};
using Blob = std::unique_ptr<hb_blob_t, Destroy<hb_blob_t, hb_blob_destroy>>;
using Face = std::unique_ptr<hb_face_t, Destroy<hb_face_t, hb_face_destroy>>;
using ShapingFont = std::unique_ptr<hb_font_t, Destroy<hb_font_t, hb_font_destroy>>;
using Buffer = std::unique_ptr<hb_buffer_t, Destroy<hb_buffer_t, hb_buffer_destroy>>;
using CodePoints = std::unique_ptr<hb_set_t, Destroy<hb_set_t, hb_set_destroy>>;
using Glyphs = std::array<hb_codepoint_t, 10>;

/// What a sister takes over as it stands; its names and its map of characters are made anew. The
/// tables of an older face, of outlines by points, are taken over likewise.
constexpr std::array keptTables{"head", "hhea", "maxp", "OS/2", "hmtx", "post", "CFF ", "glyf",
                                "loca", "cvt ", "fpgm", "prep", "gasp", "GSUB", "GPOS", "GDEF"};

Blob blobOf(const QByteArray& bytes) {
    return Blob{hb_blob_create(bytes.constData(), static_cast<unsigned>(bytes.size()),
                               HB_MEMORY_MODE_DUPLICATE, nullptr, nullptr)};
}

void addTable(hb_face_t* face, const char* tag, const QByteArray& bytes) {
    hb_face_builder_add_table(face, hb_tag_from_string(tag, 4), blobOf(bytes).get());
}

/// A face in the making, with what is kept of a font and this map of characters.
Face begunFrom(const QRawFont& font, const QByteArray& characters) {
    Face face{hb_face_builder_create()};
    for (const char* tag : keptTables)
        if (const QByteArray bytes = font.fontTable(tag); !bytes.isEmpty())
            addTable(face.get(), tag, bytes);
    addTable(face.get(), "cmap", characters);
    return face;
}

/// A font's face, to look things up in.
Face faceOf(const QRawFont& font) {
    const Face begun = begunFrom(font, font.fontTable("cmap"));
    const Blob file{hb_face_reference_blob(begun.get())};
    return Face{hb_face_create(file.get(), 0)};
}

/// Whether each of the font's weights has a file of its own.
bool isOfOneWeight(const QRawFont& font) {
    return font.isValid() && font.fontTable("fvar").isEmpty();
}

/// The glyphs of the ten digits, of one width where the face has such.
Glyphs digitsOf(hb_font_t* font, bool tabular) {
    const Buffer buffer{hb_buffer_create()};
    hb_buffer_add_utf8(buffer.get(), "0123456789", 10, 0, 10);
    hb_buffer_guess_segment_properties(buffer.get());
    const hb_feature_t feature{HB_TAG('t', 'n', 'u', 'm'), tabular ? 1U : 0U,
                               HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END};
    hb_shape(font, buffer.get(), &feature, 1);
    unsigned count = 0;
    const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(buffer.get(), &count);
    Glyphs glyphs{};
    for (unsigned i = 0; i < count && i < glyphs.size(); ++i) glyphs[i] = infos[i].codepoint;
    return glyphs;
}

template <typename Number>
void append(QByteArray& bytes, Number number) {
    const Number big = qToBigEndian(number);
    bytes.append(reinterpret_cast<const char*>(&big), sizeof big);
}

void append(QByteArray& bytes, std::initializer_list<quint16> numbers) {
    for (const quint16 number : numbers) append<quint16>(bytes, number);
}

struct CharacterGlyph {
    quint32 character, glyph;
};

/// A map of characters, OpenType's "cmap" with one table of format 12. It stands as that of the
/// Unicode platform too, beside which FreeType makes no map from the names of the glyphs.
QByteArray characterMap(const std::vector<CharacterGlyph>& entries) {
    QByteArray groups;
    quint32 count = 0;
    for (std::size_t i = 0; i < entries.size(); ++count) {
        std::size_t end = i + 1;
        while (end < entries.size() && entries[end].character - entries[i].character == end - i &&
               entries[end].glyph - entries[i].glyph == end - i)
            ++end;
        append(groups, entries[i].character);
        append(groups, entries[end - 1].character);
        append(groups, entries[i].glyph);
        i = end;
    }
    constexpr quint32 start = 20;
    QByteArray map;
    append(map, {0, 2});
    for (const auto& [platform, encoding] : {std::pair<quint16, quint16>{0, 4}, {3, 10}}) {
        append(map, {platform, encoding});
        append<quint32>(map, start);
    }
    append(map, {12, 0});
    append<quint32>(map, 16 + static_cast<quint32>(groups.size()));
    append<quint32>(map, 0);
    append<quint32>(map, count);
    return map + groups;
}

/// The characters of a face, its digits led to the glyphs of one width.
QByteArray tabularCharacterMap(hb_face_t* face, hb_font_t* font, const Glyphs& digits) {
    const CodePoints points{hb_set_create()};
    hb_face_collect_unicodes(face, points.get());
    std::vector<CharacterGlyph> entries;
    for (hb_codepoint_t point = HB_SET_VALUE_INVALID; hb_set_next(points.get(), &point);) {
        hb_codepoint_t glyph = 0;
        if (point >= '0' && point <= '9')
            glyph = digits[point - '0'];
        else if (hb_font_get_nominal_glyph(font, point, &glyph) == 0)
            continue;
        entries.push_back({point, glyph});
    }
    return characterMap(entries);
}

/// OpenType's "name" with family (1), style (2), full name (4) and PostScript name (6), in English
/// of the Windows platform.
QByteArray names(const QString& family, const QString& style) {
    const QString full = family + QLatin1Char(' ') + style;
    QString postScript = full;
    postScript.remove(QLatin1Char(' '));
    const std::array<std::pair<quint16, QString>, 4> entries{
        {{1, family}, {2, style}, {4, full}, {6, postScript}}};
    QByteArray head, text;
    append(head, {0, entries.size(), 6 + 12 * entries.size()});
    for (const auto& [id, name] : entries) {
        append(head, {3, 1, 0x409, id, static_cast<quint16>(2 * name.size()),
                      static_cast<quint16>(text.size())});
        for (const QChar sign : name) append<quint16>(text, sign.unicode());
    }
    return head + text;
}

/// The file of the sister of a family's font; empty where it can have none.
QByteArray sisterOf(const QRawFont& font, const QString& family) {
    if (!isOfOneWeight(font)) return {};
    const Face face = faceOf(font);
    const ShapingFont shaping{hb_font_create(face.get())};
    const Glyphs digits = digitsOf(shaping.get(), true);
    if (digits == digitsOf(shaping.get(), false)) return {};
    const Face sister = begunFrom(font, tabularCharacterMap(face.get(), shaping.get(), digits));
    addTable(sister.get(), "name", names(tabularFamily(family), font.styleName()));
    const Blob file{hb_face_reference_blob(sister.get())};
    unsigned size = 0;
    const char* bytes = hb_blob_get_data(file.get(), &size);
    return {bytes, static_cast<int>(size)};
}

}  // namespace

QString tabularFamily(const QString& family) { return family + QStringLiteral(" Tabular"); }

void registerTabularFaces(const QFont& font) {
    for (const QString& family : font.families()) {
        if (!QFontDatabase::hasFamily(family) || QFontDatabase::hasFamily(tabularFamily(family)))
            continue;
        for (const auto weight : {QFont::Normal, QFont::Medium, QFont::DemiBold, QFont::Bold}) {
            QFont face(family);
            face.setWeight(weight);
            const QByteArray file = sisterOf(QRawFont::fromFont(face), family);
            if (file.isEmpty()) break;
            QFontDatabase::addApplicationFontFromData(file);
        }
    }
}

}  // namespace varnholt
