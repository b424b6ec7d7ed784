<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US" language="de_DE">
<context>
    <name>typedtable</name>
    <message>
        <source>"%1" is not the name of a collation, as LEN_RUS_S2 is</source>
        <translation>„%1“ ist kein Name einer Sortierung wie LEN_RUS_S2</translation>
    </message>
    <message>
        <source>%1 cells where the header has %2</source>
        <translation>%1 Zellen, die Kopfzeile hat %2</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1 Spalten</translation>
    </message>
    <message>
        <source>%1 different values in %2</source>
        <translation>%1 verschiedene Werte in %2</translation>
    </message>
    <message>
        <source>%1 goes with --locale; the name behind --collation says it all</source>
        <translation>%1 gehört zu --locale; der Name hinter --collation sagt alles</translation>
    </message>
    <message>
        <source>%1 is for tables and %2 writes none: give one of them</source>
        <translation>%1 ist für Tabellen und %2 schreibt keine: nur eines davon geht</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 steht zweimal da</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 braucht %2</translation>
    </message>
    <message>
        <source>%1 needs --sort, --distinct, --find, --where, --min or --max</source>
        <translation>%1 braucht --sort, --distinct, --find, --where, --min oder --max</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 braucht einen Wert</translation>
    </message>
    <message>
        <source>%1 of %2 locales</source>
        <translation>%1 von %2 Gebietsschemas</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 von %2 Zeilen</translation>
    </message>
    <message>
        <source>%1 of 1 row</source>
        <translation>%1 von 1 Zeile</translation>
    </message>
    <message>
        <source>%1 periods from %2 to %3</source>
        <translation>%1 Zeiträume von %2 bis %3</translation>
    </message>
    <message>
        <source>%1 periods from %2 to %3, %4 of them without rows</source>
        <translation>%1 Zeiträume von %2 bis %3, %4 davon ohne Zeilen</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>%1 rows grouped</source>
        <translation>%1 Zeilen gruppiert</translation>
    </message>
    <message>
        <source>%1 rows listed</source>
        <translation>%1 Zeilen aufgelistet</translation>
    </message>
    <message>
        <source>%1 rows summed up</source>
        <translation>%1 Zeilen zusammengefasst</translation>
    </message>
    <message>
        <source>%1 rows typed</source>
        <translation>%1 Zeilen typisiert</translation>
    </message>
    <message>
        <source>%1 shows rows and %2 shows groups: give one of them</source>
        <translation>%1 zeigt Zeilen und %2 zeigt Gruppen: nur eines davon geht</translation>
    </message>
    <message>
        <source>%1 shows rows and %2 shows one line: give one of them</source>
        <translation>%1 zeigt Zeilen und %2 zeigt eine einzige: nur eines davon geht</translation>
    </message>
    <message>
        <source>%1 stands alone</source>
        <translation>%1 steht allein</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 nimmt keinen Wert</translation>
    </message>
    <message>
        <source>%1, the first %2 shown</source>
        <translation>%1, die ersten %2 gezeigt</translation>
    </message>
    <message>
        <source>%1: "%2" has %3 parts; a column is [COLUMN] or [SOURCE].[COLUMN]</source>
        <translation>%1: „%2“ hat %3 Teile; eine Spalte ist [SPALTE] oder [QUELLE].[SPALTE]</translation>
    </message>
    <message>
        <source>%1: "%2" is not a number from %3 to %4</source>
        <translation>%1: „%2“ ist keine Zahl von %3 bis %4</translation>
    </message>
    <message>
        <source>%1: column "%2" is given twice</source>
        <translation>%1: die Spalte „%2“ steht zweimal da</translation>
    </message>
    <message>
        <source>%1: column "%2": %3 of %4 cells are no %5, the first on line %6: "%7"</source>
        <translation>%1: Spalte „%2“: %3 von %4 Zellen sind kein %5, die erste in Zeile %6: „%7“</translation>
    </message>
    <message>
        <source>%1: is a folder, not a file</source>
        <translation>%1: ist ein Ordner, keine Datei</translation>
    </message>
    <message>
        <source>%1: the value is empty</source>
        <translation>%1: der Wert ist leer</translation>
    </message>
    <message>
        <source>--%1: column "%2" is %3, not a number</source>
        <translation>--%1: Spalte „%2“ ist %3, keine Zahl</translation>
    </message>
    <message>
        <source>--as wkt: no column is SPATIAL; --cast COLUMN:spatial makes one</source>
        <translation>--as wkt: keine Spalte ist SPATIAL; --cast COLUMN:spatial macht eine</translation>
    </message>
    <message>
        <source>--as: "%1" is none of values, literals and wkt</source>
        <translation>--as: „%1“ ist keines von values, literals und wkt</translation>
    </message>
    <message>
        <source>--cast: "%1" is not COLUMN:TYPE</source>
        <translation>--cast: „%1“ ist nicht COLUMN:TYPE</translation>
    </message>
    <message>
        <source>--cast: "%1" is not a type: %2</source>
        <translation>--cast: „%1“ ist kein Typ: %2</translation>
    </message>
    <message>
        <source>--collation and --locale both name a collation: give one of them</source>
        <translation>--collation und --locale nennen beide eine Sortierung: nur eines davon geht</translation>
    </message>
    <message>
        <source>--find: no column is STRING</source>
        <translation>--find: keine Spalte ist STRING</translation>
    </message>
    <message>
        <source>--fiscal-start moves years and quarters, not %1s</source>
        <translation>--fiscal-start verschiebt Jahre und Quartale, nicht „%1“</translation>
    </message>
    <message>
        <source>--format: "%1" is not COLUMN=FORMAT</source>
        <translation>--format: „%1“ ist nicht COLUMN=FORMAT</translation>
    </message>
    <message>
        <source>--format: "%1" is not a number format, as "n#,##0.00" is</source>
        <translation>--format: „%1“ ist kein Zahlenformat wie „n#,##0.00“</translation>
    </message>
    <message>
        <source>--format: a format has %1 bytes, more than %2</source>
        <translation>--format: ein Format hat %1 Bytes, mehr als %2</translation>
    </message>
    <message>
        <source>--group-by and --distinct both gather rows: give one of them</source>
        <translation>--group-by und --distinct fassen beide Zeilen zusammen: nur eines davon geht</translation>
    </message>
    <message>
        <source>--group-by: "%1" is not COLUMN:PERIOD</source>
        <translation>--group-by: „%1“ ist nicht SPALTE:ZEITRAUM</translation>
    </message>
    <message>
        <source>--group-by: "%1" is not a period: %2</source>
        <translation>--group-by: „%1“ ist kein Zeitraum: %2</translation>
    </message>
    <message>
        <source>--group-by: column "%1" is %2, not DATE or DATETIME</source>
        <translation>--group-by: Spalte „%1“ ist %2, nicht DATE oder DATETIME</translation>
    </message>
    <message>
        <source>--language: "%1" is not a known language, as de_DE is</source>
        <translation>--language: „%1“ ist keine bekannte Sprache wie de_DE</translation>
    </message>
    <message>
        <source>--list-locales: "%1" is not a regular expression</source>
        <translation>--list-locales: „%1“ ist kein regulärer Ausdruck</translation>
    </message>
    <message>
        <source>--locale: "%1" is not a known locale, as sv_SE is</source>
        <translation>--locale: „%1“ ist kein bekanntes Gebietsschema wie sv_SE</translation>
    </message>
    <message>
        <source>--sql-nulls needs --where, --sort, --sum, --mean, --min or --max</source>
        <translation>--sql-nulls braucht --where, --sort, --sum, --mean, --min oder --max</translation>
    </message>
    <message>
        <source>--week-start moves weeks, not %1s</source>
        <translation>--week-start verschiebt Wochen, nicht „%1“</translation>
    </message>
    <message>
        <source>--where: "%1" is no number, date, true, false or null, nor a text in quotes</source>
        <translation>--where: „%1“ ist weder Zahl noch Datum noch true, false oder null, noch ein Text in Anführungszeichen</translation>
    </message>
    <message>
        <source>--where: "%1" is not COLUMN, one of = != &lt; &lt;= &gt; &gt;=, and a literal</source>
        <translation>--where: „%1“ ist nicht SPALTE, eines von = != &lt; &lt;= &gt; &gt;= und ein Literal</translation>
    </message>
    <message>
        <source>--where: column "%1" is %2 and does not compare with the %3 %4</source>
        <translation>--where: Spalte „%1“ ist %2 und lässt sich nicht mit %3 %4 vergleichen</translation>
    </message>
    <message>
        <source>1 cell where the header has %1</source>
        <translation>1 Zelle, die Kopfzeile hat %1</translation>
    </message>
    <message>
        <source>1 column</source>
        <translation>1 Spalte</translation>
    </message>
    <message>
        <source>1 period from %1 to %2</source>
        <translation>1 Zeitraum von %1 bis %2</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 Zeile</translation>
    </message>
    <message>
        <source>1 value in %1</source>
        <translation>1 Wert in %1</translation>
    </message>
    <message>
        <source>Windows-specific</source>
        <translation>Windows-spezifisch</translation>
    </message>
    <message>
        <source>a file name is empty</source>
        <translation>ein Dateiname ist leer</translation>
    </message>
    <message>
        <source>a quote is never closed</source>
        <translation>ein Anführungszeichen wird nicht geschlossen</translation>
    </message>
    <message>
        <source>a record of more than 16 MiB</source>
        <translation>ein Datensatz von mehr als 16 MiB</translation>
    </message>
    <message>
        <source>a record of more than 16 MiB: is a quote not closed?</source>
        <translation>ein Datensatz von mehr als 16 MiB: Ist ein Anführungszeichen nicht geschlossen?</translation>
    </message>
    <message>
        <source>a sum of integers is beyond 64 bits</source>
        <translation>eine Summe von Ganzzahlen übersteigt 64 Bit</translation>
    </message>
    <message>
        <source>a zero byte: this is not a text file</source>
        <translation>ein Nullbyte: das ist keine Textdatei</translation>
    </message>
    <message>
        <source>collation</source>
        <translation>Sortierung</translation>
    </message>
    <message>
        <source>column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>count</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>flags</source>
        <translation>Schalter</translation>
    </message>
    <message>
        <source>ignore accents</source>
        <translation>ohne Akzente</translation>
    </message>
    <message>
        <source>ignore case</source>
        <translation>ohne Groß- und Kleinschreibung</translation>
    </message>
    <message>
        <source>ignore symbols</source>
        <translation>ohne Symbole</translation>
    </message>
    <message>
        <source>iso-quarter</source>
        <translation>ISO-Quartal</translation>
    </message>
    <message>
        <source>iso-week</source>
        <translation>ISO-Woche</translation>
    </message>
    <message>
        <source>iso-year</source>
        <translation>ISO-Jahr</translation>
    </message>
    <message>
        <source>language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>lcid</source>
        <translation>LCID</translation>
    </message>
    <message>
        <source>line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>locale</source>
        <translation>Gebietsschema</translation>
    </message>
    <message>
        <source>max(%1)</source>
        <translation>Max(%1)</translation>
    </message>
    <message>
        <source>mean(%1)</source>
        <translation>Mittel(%1)</translation>
    </message>
    <message>
        <source>min(%1)</source>
        <translation>Min(%1)</translation>
    </message>
    <message>
        <source>month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>more than one column is named "%1"</source>
        <translation>mehr als eine Spalte heißt „%1“</translation>
    </message>
    <message>
        <source>more than one file: "%1" and "%2"</source>
        <translation>mehr als eine Datei: „%1“ und „%2“</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>no column is named "%1"</source>
        <translation>keine Spalte heißt „%1“</translation>
    </message>
    <message>
        <source>no data source is named "%1"; that of the file is "%2"</source>
        <translation>keine Datenquelle heißt „%1“; die der Datei ist „%2“</translation>
    </message>
    <message>
        <source>no file is given; typedtable --help shows the usage</source>
        <translation>keine Datei angegeben; typedtable --help zeigt den Aufruf</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>nulls</source>
        <translation>Nullwerte</translation>
    </message>
    <message>
        <source>offending cell</source>
        <translation>fehlerhafte Zelle</translation>
    </message>
    <message>
        <source>quarter</source>
        <translation>Quartal</translation>
    </message>
    <message>
        <source>region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>sample order, equal words on one line:</source>
        <translation>Beispiele in dieser Ordnung, gleiche Wörter in einer Zeile:</translation>
    </message>
    <message>
        <source>short date</source>
        <translation>kurzes Datum</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>standard output cannot be written</source>
        <translation>die Standardausgabe ist nicht beschreibbar</translation>
    </message>
    <message>
        <source>sum(%1)</source>
        <translation>Summe(%1)</translation>
    </message>
    <message>
        <source>temporary file</source>
        <translation>temporäre Datei</translation>
    </message>
    <message>
        <source>text behind a closing quote</source>
        <translation>Text hinter einem schließenden Anführungszeichen</translation>
    </message>
    <message>
        <source>text that is not UTF-8</source>
        <translation>Text, der kein UTF-8 ist</translation>
    </message>
    <message>
        <source>the %1 of %2 begins before the year 400, where the calendar ends</source>
        <translation>%1 von %2 beginnt vor dem Jahr 400, mit dem der Kalender endet</translation>
    </message>
    <message>
        <source>the file changed while it was read</source>
        <translation>die Datei wurde beim Lesen geändert</translation>
    </message>
    <message>
        <source>the file is empty: no header</source>
        <translation>die Datei ist leer: keine Kopfzeile</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>unknown option "%1"; typedtable --help lists them</source>
        <translation>unbekannte Option „%1“; typedtable --help führt sie auf</translation>
    </message>
    <message>
        <source>word sort</source>
        <translation>Wortsortierung</translation>
    </message>
    <message>
        <source>year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>day, month, year</source>
        <translation>Tag, Monat, Jahr</translation>
    </message>
    <message>
        <source>month, day, year</source>
        <translation>Monat, Tag, Jahr</translation>
    </message>
    <message>
        <source>year, month, day</source>
        <translation>Jahr, Monat, Tag</translation>
    </message>
    <message>
        <source>year, day, month</source>
        <translation>Jahr, Tag, Monat</translation>
    </message>
    <message>
        <source>no order</source>
        <translation>keine Reihenfolge</translation>
    </message>
    <message>
        <source>%1: "%2" is not a known locale, as de_DE is</source>
        <translation>%1: „%2“ ist kein bekanntes Gebietsschema wie de_DE</translation>
    </message>
    <message>
        <source>--dates-as: "%1" is not a pattern of dates, as "d. MMMM yyyy" is</source>
        <translation>--dates-as: „%1“ ist kein Muster für Daten wie „d. MMMM yyyy“</translation>
    </message>
    <message>
        <source>%1 rows searched for dates</source>
        <translation>%1 Zeilen nach Daten durchsucht</translation>
    </message>
    <message>
        <source>dates</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>cells</source>
        <translation>Zellen</translation>
    </message>
    <message>
        <source>disagree</source>
        <translation>abweichend</translation>
    </message>
    <message>
        <source>day first</source>
        <translation>Tag zuerst</translation>
    </message>
    <message>
        <source>month first</source>
        <translation>Monat zuerst</translation>
    </message>
    <message>
        <source>(own styles)</source>
        <translation>(eigene Formen)</translation>
    </message>
    <message>
        <source>--locale needs --sort, --distinct, --find, --where, --min, --max, --dates-as or --format</source>
        <translation>--locale braucht --sort, --distinct, --find, --where, --min, --max, --dates-as oder --format</translation>
    </message>
    <message>
        <source>%1: column "%2": %3 of %4 cells are not written as %5</source>
        <translation>%1: Spalte „%2“: %3 von %4 Zellen sind nicht als %5 geschrieben</translation>
    </message>
</context>
</TS>
