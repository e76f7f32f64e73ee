// A heading stands here only where it means one thing, or where everything that it may mean stands beside it. What is
// left out becomes a column of its own, which is seen; what is wrong here becomes a wrong list, which is not:
//
//   "Unit weight"     of a piece, or of a metre: kEither, since a "Weight" beside it may be of all pieces or of one
//   "Total weight"    kIsOfAllPieces, never %Weight as it stands
//   "Gesamtlänge"     of all pieces, or from end to end of one: kMayBeOfAllPieces
//   "Net weight"      is not here: some mean %Weight by it, others %ExactWeight, others the total
//   "L", "t", "D"     are not here either: one letter may be anything
//
//   "Position"        is %PNum first, "Item" is %Num first, which is a number of lines: so "Mark" beside the one may be
//                     the mark of an assembly, and beside the other is that of the part
//
// Upper and lower case, blanks, dots, hyphens and accents need no entries of their own, see headingKey().
#include "HeadingTable.h"

#include "AlignedTable.h"
#include "HeadingKey.h"
#include "Utf8.h"

#include "VorBomTokenCatalogue.h"

#include <algorithm>
#include <iterator>
#include <list>
#include <unordered_map>

namespace mekbom::HeadingTable
{
const char* const kLanguages[4] = { "English", "German", "Dutch", "French" };

namespace
{
constexpr auto kIs = HeadingEntry::kIs;
constexpr auto kUsually = HeadingEntry::kUsually;
constexpr auto kMayBe = HeadingEntry::kMayBe;
constexpr auto kEither = HeadingEntry::kEither;
constexpr auto kIsOfAllPieces = HeadingEntry::kIsOfAllPieces;
constexpr auto kMayBeOfAllPieces = HeadingEntry::kMayBeOfAllPieces;

// A line for each language.
// clang-format off
const HeadingEntry kEntries[] = {
    // Marks and names.
    { kIs, "%PNum", "", "",
      { "Part mark, Piece mark, Part no, Part no., Part number, Part #, Part nr, Piece no, Piece number, PNum",
        "Teilenummer, Teile-Nr., Teil-Nr., Teilnummer, Einzelteilnummer, Einzelteil-Nr., Bauteilnummer, "
        "Bauteil-Nr.",
        "Onderdeelnummer, Onderdeelnr., Onderdeelmerk, Deelmerk, Stuknummer, Stuknr., Partnummer",
        "Numéro de pièce, N° de pièce, N° pièce, Repère pièce, Repère de pièce" } },
    { kUsually, "%PNum, %MNum", "", "", { "Mark", "", "Merk", "Repère, Rep., Marque" } },
    { kUsually, "%PNum, %Num", "", "",
      { "Pos., Pos no, Pos nr",
        "Pos.-Nr., Pos. Nr.",
        "Pos., Posnr., Posnummer",
        "Pos." } },
    { kMayBe, "%PNum, %Num", "", "",
      { "Position, Position no, Position number",
        "Position, Positionsnummer",
        "Positie, Positienummer",
        "Position, Numéro de position" } },
    { kMayBe, "%Num, %PNum", "", "", { "Item, Item no, Item number", "", "", "" } },
    { kMayBe, "%Num, %PNum, %Quantity", "", "",
      { "No, No., Number",
        "Nr., Nummer",
        "Nr., Nummer",
        "N°, Numéro" } },
    { kMayBe, "%PNum, %Role", "", "",
      { "Part, Member",
        "Teil, Einzelteil, Bauteil",
        "Onderdeel, Deel",
        "Pièce, Élément" } },
    { kIs, "%MNum", "", "",
      { "Assembly mark, Assembly no, Assembly number, Main mark, Ship mark, Shipping mark, "
        "Assembly pos, MNum",
        "Baugruppe, Baugruppennummer, Baugruppen-Nr., Hauptposition, Hauptpos., Versandposition, Versandpos.",
        "Samenstelling, Samenstellingsmerk, Hoofdmerk, Merknummer, Merknr.",
        "Assemblage, Repère assemblage, Repère d'assemblage, Ensemble" } },
    { kIs, "%MName", "", "",
      { "Assembly name",
        "Baugruppenname, Baugruppenbezeichnung",
        "Naam samenstelling, Merknaam",
        "Nom assemblage, Nom de l'assemblage" } },
    { kIs, "%Role", "", "",
      { "Part name, Member type",
        "Bauteilname, Benennung, Teilebezeichnung, Teilename",
        "Onderdeelnaam",
        "Nom de pièce, Nom de la pièce" } },
    { kIs, "%Name", "", "",
      { "Profile, Profile name, Section, Section name, Section size, Shape",
        "Profil, Profilname, Profilbezeichnung, Halbzeug",
        "Profiel, Profielnaam",
        "Profil, Profilé, Section" } },
    { kMayBe, "%Name, %Role", "", "",
      { "Description, Designation",
        "Bezeichnung, Beschreibung",
        "Omschrijving, Benaming, Naam",
        "Désignation, Description, Nom" } },
    { kIs, "%Material", "", "",
      { "Grade, Steel grade, Material grade, Steel, Material, Quality, Mat.",
        "Werkstoff, Material, Stahlgüte, Stahlsorte, Güte, Materialgüte, Qualität",
        "Materiaal, Kwaliteit, Staalkwaliteit, Staalsoort, Materiaalkwaliteit",
        "Matière, Matériau, Nuance, Qualité, Acier, Nuance d'acier" } },
    { kIs, "%Coating", "", "",
      { "Coating, Finish, Surface treatment, Surface finish",
        "Beschichtung, Oberflächenbehandlung, Korrosionsschutz, Oberflächenschutz",
        "Oppervlaktebehandeling, Conservering, Afwerking",
        "Revêtement, Traitement de surface, Finition" } },
    { kIs, "%Phase", "", "", { "Phase", "Phase, Bauabschnitt, Bauphase", "Fase, Bouwfase", "Phase" } },
    { kIs, "%Class", "", "", { "Class", "Klasse", "Klasse", "Classe" } },
    { kIs, "%FreeRemark", "", "",
      { "Remark, Remarks, Comment, Comments",
        "Bemerkung, Bemerkungen, Anmerkung, Kommentar",
        "Opmerking, Opmerkingen",
        "Remarque, Remarques, Observation, Observations, Commentaire" } },
    { kIs, "%Handle", "", "", { "Handle, GUID, Global ID", "", "", "" } },
    { kIs, "%Parent", "", "",
      { "Parent, Parent handle, Parent ID, Parent GUID, Part of",
        "Teil von, Übergeordnet, Übergeordnetes Teil",
        "Deel van, Bovenliggend",
        "Parent, Fait partie de, Élément parent" } },

    // Bolts.
    { kIs, "%BoltName", "", "",
      { "Bolt, Bolt name, Bolt type",
        "Schraube, Schraubenbezeichnung",
        "Bout, Boutnaam",
        "Boulon, Boulonnerie" } },
    { kIs, "%Standard", "", "", { "Standard", "Norm", "Norm", "Norme" } },

    // Numbers of pieces.
    { kIs, "%Quantity", "", "",
      { "Quantity, Qty, Qty., Quant., Count, Pieces, Pcs, Pcs., Number of pieces, No. of pieces, No. off, "
        "No off, Total quantity, Total qty, Qty total",
        "Anzahl, Anz., Stück, Stk., Stck., Stückzahl, Menge, Gesamtanzahl, Anzahl gesamt, Gesamtstückzahl",
        "Aantal, Aant., Stuks, Hoeveelheid, Totaal aantal, Aantal totaal",
        "Quantité, Qté, Qte., Nombre, Nbre, Nb, Nb., Nombre de pièces, Quantité totale, Qté totale" } },
    { kIs, "%MQuantity", "", "",
      { "Assembly quantity, Assembly qty",
        "Anzahl Baugruppen, Baugruppenanzahl",
        "Aantal samenstellingen, Aantal merken",
        "Nombre d'assemblages, Quantité assemblage" } },

    // Weights.
    { kIs, "%Weight", "%WeightMeter", "",
      { "Weight, Wt, Wt., Mass",
        "Gewicht, Gew., Masse",
        "Gewicht, Massa",
        "Poids, Masse" } },
    { kIs, "%Weight", "", "",
      { "Weight/pc, Weight per pc, Weight per piece, Weight/piece, Weight each, Weight ea, Weight/ea, "
        "Each weight, Piece weight, Single weight, Weight of one, Wt/pc, Wt each, Wt ea",
        "Einzelgewicht, Einzelgew., Stückgewicht, Stückgew., Gewicht/Stück, Gewicht/Stk., Gewicht/St., "
        "Gewicht je Stück, Gewicht pro Stück, Gewicht einzeln",
        "Stuksgewicht, Stukgewicht, Gewicht/stuk, Gewicht per stuk, Gewicht/st., Gewicht p/st",
        "Poids/pièce, Poids par pièce, Poids pièce, Poids d'une pièce" } },
    { kIs, "%Weight", "", "kg",
      { "kg, kg/pc, kg/piece, kg each, kg/ea",
        "kg/Stk., kg/St., kg/Stück",
        "kg/stuk",
        "kg/pièce" } },
    { kIs, "%Weight", "", "lb", { "lb, lbs, lb/pc, lbs/pc, lb each, lbs each", "", "", "" } },
    { kEither, "%Weight, %WeightMeter", "", "",
      { "Unit weight, Unit wt, Unit mass",
        "Einheitsgewicht",
        "Eenheidsgewicht",
        "Poids unitaire, Masse unitaire" } },
    { kIsOfAllPieces, "%Weight", "", "",
      { "Total weight, Weight total, Total wt, Wt total, Total mass, Tot. weight, Weight all, Extended weight",
        "Gesamtgewicht, Gewicht gesamt, Gewicht ges., Ges. Gewicht, Ges.-Gew., Gesamtgew., Gesamtmasse, "
        "Summe Gewicht, Gewichtssumme, Gewicht Summe",
        "Totaal gewicht, Totaalgewicht, Gewicht totaal, Tot. gewicht, Gewicht tot.",
        "Poids total, Poids tot., Masse totale" } },
    { kIsOfAllPieces, "%Weight", "", "kg",
      { "Total kg, kg total",
        "Gesamt kg, kg gesamt, kg ges.",
        "Totaal kg, kg totaal",
        "" } },
    { kIsOfAllPieces, "%Weight", "", "lb", { "Total lb, Total lbs, lb total, lbs total", "", "", "" } },
    { kIs, "%WeightMeter", "", "",
      { "Weight/m, Weight per m, Weight per metre, Weight per meter, Mass per metre, Weight/ft, "
        "Weight per foot, Linear weight",
        "Metergewicht, Gewicht/m, Gewicht je m, Gewicht je Meter, Gewicht pro m, Gewicht pro Meter",
        "Metergewicht, Gewicht/m, Gewicht per m, Gewicht per meter",
        "Poids/m, Poids au mètre, Poids par mètre, Poids linéique, Masse linéique, Masse au mètre" } },
    { kIs, "%WeightMeter", "", "kg/m", { "kg/m", "kg/lfm", "kg/m1", "kg/ml" } },
    { kIs, "%WeightMeter", "", "lb/ft", { "lb/ft, lbs/ft, plf", "", "", "" } },
    { kIs, "%AssemblyWeight", "", "",
      { "Assembly weight",
        "Baugruppengewicht",
        "Gewicht samenstelling, Merkgewicht",
        "Poids assemblage, Poids de l'assemblage" } },
    { kIs, "%Density", "", "", { "Density", "Dichte", "Dichtheid", "Densité, Masse volumique" } },

    // Lengths.
    { kIs, "%Length", "", "", { "Length, Len., Lgth", "Länge, Lg.", "Lengte", "Longueur, Long." } },
    { kMayBe, "%Length, %SawLength", "", "",
      { "Cut length, Cutting length",
        "Zuschnittlänge, Zuschnittslänge, Schnittlänge",
        "Snijlengte",
        "Longueur de coupe, Longueur débit" } },
    { kIs, "%SawLength", "", "", { "Saw length", "Sägelänge", "Zaaglengte", "Longueur de sciage" } },
    { kIs, "%SysLength", "", "", { "System length", "Systemlänge", "Systeemlengte", "Longueur système" } },
    { kMayBeOfAllPieces, "%Length", "", "",
      { "Total length, Length total, Overall length",
        "Gesamtlänge, Länge gesamt, Länge ges.",
        "Totale lengte, Totaallengte, Totaal lengte, Lengte totaal",
        "Longueur totale, Longueur tot." } },
    { kIs, "%Width", "", "", { "Width", "Breite, Blechbreite", "Breedte", "Largeur" } },
    { kIs, "%Thick", "", "",
      { "Thickness, Thick, Thk, Thk.",
        "Dicke, Blechdicke, Stärke, Materialstärke",
        "Dikte, Plaatdikte",
        "Épaisseur, Ép." } },
    { kIs, "%Diameter", "", "",
      { "Diameter, Dia., Diam.",
        "Durchmesser, Durchm.",
        "Diameter, Diam.",
        "Diamètre, Diam." } },

    // Areas.
    { kIs, "%Paint", "%%PaintMeter", "",
      { "Paint, Paint area, Painting area, Surface area, Coating area",
        "Anstrichfläche, Beschichtungsfläche",
        "Verfoppervlak, Verfoppervlakte, Conserveringsoppervlak",
        "Surface à peindre, Surface de peinture, Surface peinture" } },
    { kMayBe, "%Paint, %Area", "%%PaintMeter", "", { "Surface", "Fläche", "Oppervlak, Oppervlakte", "Surface" } },
    { kMayBe, "%Paint, %Coating", "%%PaintMeter", "", { "", "Oberfläche, Anstrich", "", "Peinture" } },
    { kIsOfAllPieces, "%Paint", "", "",
      { "Total paint area, Total painting area, Total surface area, Total paint",
        "Gesamtanstrichfläche, Anstrichfläche gesamt, Gesamtoberfläche, Oberfläche gesamt",
        "Totaal verfoppervlak, Verfoppervlak totaal, Totaal oppervlak, Oppervlak totaal",
        "Surface à peindre totale" } },
    { kIs, "%%PaintMeter", "", "",
      { "Paint/m, Paint area/m, Surface area/m, Surface area per metre, Surface area per meter",
        "Anstrichfläche/m, Oberfläche/m, Anstrichfläche je m",
        "Verfoppervlak/m",
        "Surface/m" } },
    { kIs, "%%PaintMeter", "", "m2/m", { "m2/m", "m2/lfm", "m2/m1", "m2/ml" } },

    // Purchase and transport.
    { kIs, "%Supplier", "", "", { "Supplier, Vendor", "Lieferant", "Leverancier", "Fournisseur" } },
    { kIs, "%PONumber", "", "",
      { "PO number, PO no, PO no., PO #, Purchase order",
        "Bestellnummer, Bestell-Nr.",
        "Bestelnummer, Bestelnr.",
        "N° de commande, Numéro de commande" } },
    { kIs, "%HeatNumber", "", "",
      { "Heat number, Heat no, Heat no., Heat",
        "Schmelze, Schmelznummer, Schmelzen-Nr., Chargennummer, Chargen-Nr.",
        "Chargenummer, Smeltnummer",
        "N° de coulée, Numéro de coulée" } },
    { kIs, "%DeliveryDate", "", "",
      { "Delivery date",
        "Lieferdatum, Liefertermin",
        "Leverdatum",
        "Date de livraison" } },
};
// clang-format on

const char* const kNotes =
    "Case, blanks, dots, hyphens and accents do not count; a unit may follow, as in Gewicht [kg] or Length mm. The "
    "names\n"
    "of tokens are headings, too. \"or\" means that the heading does not say which: other columns may settle it, or\n"
    "--map \"HEADING=TOKEN\" does. Values of all pieces are divided by the column of %Quantity.\n";

// The catalogue's names, with the texts that their entries point to. A name that begins others is no heading.
struct CatalogueNames
{
    CatalogueNames()
    {
        for (const auto* pEntry = VorBomTokenCatalogue::begin(); pEntry != VorBomTokenCatalogue::end(); ++pEntry)
            if (!pEntry->isPrefix)
                entries.push_back({ HeadingEntry::kIs,
                                    names.emplace_back(Utf8::toBytes(pEntry->name)).c_str(),
                                    "",
                                    "",
                                    { "", "", "", "" } });
    }

    std::list<std::string> names; // which stay where they are
    std::vector<HeadingEntry> entries;
};

using Index = std::unordered_map<std::string, const HeadingEntry*>;

// The headings of the table come first: "Weight" has more to say than that it is a token.
Index indexed()
{
    static const CatalogueNames catalogue;
    Index index;
    for (const HeadingEntry& entry : all())
        for (const char* const pHeadings : entry.headings)
            for (const std::string& heading : split(pHeadings))
                index.emplace(headingKey(heading), &entry);
    for (const HeadingEntry& entry : catalogue.entries)
        index.emplace(headingKey(std::string_view(entry.tokens).substr(1)), &entry);
    return index;
}

std::string replaced(std::string text, const std::string& word, const std::string& by)
{
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + by.size()))
        text.replace(at, word.size(), by);
    return text;
}

// "%PNum, or %MNum"
std::string meaningOf(const HeadingEntry& entry)
{
    std::string tokens = entry.tokens;
    switch (entry.meaning)
    {
        case HeadingEntry::kUsually: return replaced(tokens, ", ", ", or ");
        case HeadingEntry::kMayBe:
        case HeadingEntry::kEither: return replaced(tokens, ", ", " or ");
        case HeadingEntry::kIsOfAllPieces: return tokens + " of all pieces";
        case HeadingEntry::kMayBeOfAllPieces: return tokens + " of one or of all pieces";
        default: return tokens;
    }
}

bool holds(std::string_view text, const std::string& key)
{
    return headingKey(text).find(key) != std::string::npos;
}
}

const std::vector<HeadingEntry>& all()
{
    static const std::vector<HeadingEntry> entries(std::begin(kEntries), std::end(kEntries));
    return entries;
}

std::vector<std::string> split(std::string_view list)
{
    std::vector<std::string> texts;
    while (!list.empty())
    {
        const std::size_t end = std::min(list.find(", "), list.size());
        texts.emplace_back(list.substr(0, end));
        list.remove_prefix(std::min(end + 2, list.size()));
    }
    return texts;
}

const HeadingEntry* find(std::string_view heading)
{
    static const Index index = indexed();
    const auto found = index.find(headingKey(heading));
    return found == index.end() ? nullptr : found->second;
}

const std::vector<std::string>& certain()
{
    static const std::vector<std::string> headings = []
    {
        std::vector<std::string> texts;
        for (const HeadingEntry& entry : all())
            for (const char* const pHeadings : entry.headings)
                for (std::string& heading : split(entry.meaning == HeadingEntry::kIs ? pHeadings : ""))
                    texts.push_back(std::move(heading));
        return texts;
    }();
    return headings;
}

std::string textOf(std::string_view word)
{
    const std::string key = headingKey(word);
    AlignedTable table({ "Token", "Language", "Headings" });
    for (const HeadingEntry& entry : all())
        for (std::size_t i = 0; i < std::size(entry.headings); ++i)
            if (entry.headings[i][0] != '\0' && (holds(entry.tokens, key) || holds(entry.headings[i], key)))
                table.add({ meaningOf(entry), kLanguages[i], entry.headings[i] });
    return table.isEmpty() ? std::string() : table.text() + "\n" + kNotes;
}
}
