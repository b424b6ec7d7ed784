<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US" language="fr_FR">
<context>
    <name>typedtable</name>
    <message>
        <source>"%1" is not the name of a collation, as LEN_RUS_S2 is</source>
        <translation>« %1 » n’est pas le nom d’un classement, comme LEN_RUS_S2</translation>
    </message>
    <message>
        <source>%1 cells where the header has %2</source>
        <translation>%1 cellules, l’en-tête en a %2</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1 colonnes</translation>
    </message>
    <message>
        <source>%1 different values in %2</source>
        <translation>%1 valeurs différentes dans %2</translation>
    </message>
    <message>
        <source>%1 goes with --locale; the name behind --collation says it all</source>
        <translation>%1 va avec --locale ; le nom derrière --collation dit tout</translation>
    </message>
    <message>
        <source>%1 is for tables and %2 writes none: give one of them</source>
        <translation>%1 vaut pour les tableaux et %2 n’en écrit pas : choisissez l’un des deux</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 est donné deux fois</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 nécessite %2</translation>
    </message>
    <message>
        <source>%1 needs --sort, --distinct, --find, --where, --min or --max</source>
        <translation>%1 nécessite --sort, --distinct, --find, --where, --min ou --max</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 nécessite une valeur</translation>
    </message>
    <message>
        <source>%1 of %2 locales</source>
        <translation>%1 paramètres régionaux sur %2</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 lignes sur %2</translation>
    </message>
    <message>
        <source>%1 of 1 row</source>
        <translation>%1 ligne sur 1</translation>
    </message>
    <message>
        <source>%1 periods from %2 to %3</source>
        <translation>%1 périodes de %2 à %3</translation>
    </message>
    <message>
        <source>%1 periods from %2 to %3, %4 of them without rows</source>
        <translation>%1 périodes de %2 à %3, dont %4 sans lignes</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 lignes</translation>
    </message>
    <message>
        <source>%1 rows grouped</source>
        <translation>%1 lignes groupées</translation>
    </message>
    <message>
        <source>%1 rows listed</source>
        <translation>%1 lignes listées</translation>
    </message>
    <message>
        <source>%1 rows summed up</source>
        <translation>%1 lignes résumées</translation>
    </message>
    <message>
        <source>%1 rows typed</source>
        <translation>%1 lignes typées</translation>
    </message>
    <message>
        <source>%1 shows rows and %2 shows groups: give one of them</source>
        <translation>%1 montre des lignes et %2 des groupes : donnez l’un des deux</translation>
    </message>
    <message>
        <source>%1 shows rows and %2 shows one line: give one of them</source>
        <translation>%1 montre des lignes et %2 une seule : donnez l’un des deux</translation>
    </message>
    <message>
        <source>%1 stands alone</source>
        <translation>%1 s’emploie seul</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 n’admet pas de valeur</translation>
    </message>
    <message>
        <source>%1, the first %2 shown</source>
        <translation>%1, les %2 premières affichées</translation>
    </message>
    <message>
        <source>%1: "%2" has %3 parts; a column is [COLUMN] or [SOURCE].[COLUMN]</source>
        <translation>%1 : « %2 » a %3 parties ; une colonne est [COLONNE] ou [SOURCE].[COLONNE]</translation>
    </message>
    <message>
        <source>%1: "%2" is not a number from %3 to %4</source>
        <translation>%1 : « %2 » n’est pas un nombre de %3 à %4</translation>
    </message>
    <message>
        <source>%1: column "%2" is given twice</source>
        <translation>%1 : la colonne « %2 » est donnée deux fois</translation>
    </message>
    <message>
        <source>%1: column "%2": %3 of %4 cells are no %5, the first on line %6: "%7"</source>
        <translation>%1 : colonne « %2 » : %3 cellules sur %4 ne sont pas %5, la première à la ligne %6 : « %7 »</translation>
    </message>
    <message>
        <source>%1: is a folder, not a file</source>
        <translation>%1 : est un dossier, pas un fichier</translation>
    </message>
    <message>
        <source>%1: the value is empty</source>
        <translation>%1 : la valeur est vide</translation>
    </message>
    <message>
        <source>--%1: column "%2" is %3, not a number</source>
        <translation>--%1 : la colonne « %2 » est %3, pas un nombre</translation>
    </message>
    <message>
        <source>--as wkt: no column is SPATIAL; --cast COLUMN:spatial makes one</source>
        <translation>--as wkt : aucune colonne n’est SPATIAL ; --cast COLUMN:spatial en fait une</translation>
    </message>
    <message>
        <source>--as: "%1" is none of values, literals and wkt</source>
        <translation>--as : « %1 » n’est ni values, ni literals, ni wkt</translation>
    </message>
    <message>
        <source>--cast: "%1" is not COLUMN:TYPE</source>
        <translation>--cast : « %1 » n’est pas COLUMN:TYPE</translation>
    </message>
    <message>
        <source>--cast: "%1" is not a type: %2</source>
        <translation>--cast : « %1 » n’est pas un type : %2</translation>
    </message>
    <message>
        <source>--collation and --locale both name a collation: give one of them</source>
        <translation>--collation et --locale nomment tous deux un classement : donnez l’un des deux</translation>
    </message>
    <message>
        <source>--find: no column is STRING</source>
        <translation>--find : aucune colonne n’est STRING</translation>
    </message>
    <message>
        <source>--fiscal-start moves years and quarters, not %1s</source>
        <translation>--fiscal-start décale les années et les trimestres, pas « %1 »</translation>
    </message>
    <message>
        <source>--format: "%1" is not COLUMN=FORMAT</source>
        <translation>--format : « %1 » n’est pas COLUMN=FORMAT</translation>
    </message>
    <message>
        <source>--format: "%1" is not a number format, as "n#,##0.00" is</source>
        <translation>--format : « %1 » n’est pas un format de nombres comme « n#,##0.00 »</translation>
    </message>
    <message>
        <source>--format: a format has %1 bytes, more than %2</source>
        <translation>--format : un format a %1 octets, plus de %2</translation>
    </message>
    <message>
        <source>--group-by and --distinct both gather rows: give one of them</source>
        <translation>--group-by et --distinct regroupent tous deux des lignes : donnez l’un des deux</translation>
    </message>
    <message>
        <source>--group-by: "%1" is not COLUMN:PERIOD</source>
        <translation>--group-by : « %1 » n’est pas COLONNE:PÉRIODE</translation>
    </message>
    <message>
        <source>--group-by: "%1" is not a period: %2</source>
        <translation>--group-by : « %1 » n’est pas une période : %2</translation>
    </message>
    <message>
        <source>--group-by: column "%1" is %2, not DATE or DATETIME</source>
        <translation>--group-by : la colonne « %1 » est %2, ni DATE ni DATETIME</translation>
    </message>
    <message>
        <source>--language: "%1" is not a known language, as de_DE is</source>
        <translation>--language : « %1 » n’est pas une langue connue, comme de_DE</translation>
    </message>
    <message>
        <source>--list-locales: "%1" is not a regular expression</source>
        <translation>--list-locales : « %1 » n’est pas une expression régulière</translation>
    </message>
    <message>
        <source>--locale: "%1" is not a known locale, as sv_SE is</source>
        <translation>--locale : « %1 » n’est pas un paramètre régional connu, comme sv_SE</translation>
    </message>
    <message>
        <source>--sql-nulls needs --where, --sort, --sum, --mean, --min or --max</source>
        <translation>--sql-nulls nécessite --where, --sort, --sum, --mean, --min ou --max</translation>
    </message>
    <message>
        <source>--week-start moves weeks, not %1s</source>
        <translation>--week-start décale les semaines, pas « %1 »</translation>
    </message>
    <message>
        <source>--where: "%1" is no number, date, true, false or null, nor a text in quotes</source>
        <translation>--where : « %1 » n’est ni un nombre, ni une date, ni true, false ou null, ni un texte entre guillemets</translation>
    </message>
    <message>
        <source>--where: "%1" is not COLUMN, one of = != &lt; &lt;= &gt; &gt;=, and a literal</source>
        <translation>--where : « %1 » n’est pas COLONNE, l’un de = != &lt; &lt;= &gt; &gt;= et un littéral</translation>
    </message>
    <message>
        <source>--where: column "%1" is %2 and does not compare with the %3 %4</source>
        <translation>--where : la colonne « %1 » est %2 et ne se compare pas avec %3 %4</translation>
    </message>
    <message>
        <source>1 cell where the header has %1</source>
        <translation>1 cellule, l’en-tête en a %1</translation>
    </message>
    <message>
        <source>1 column</source>
        <translation>1 colonne</translation>
    </message>
    <message>
        <source>1 period from %1 to %2</source>
        <translation>1 période de %1 à %2</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 ligne</translation>
    </message>
    <message>
        <source>1 value in %1</source>
        <translation>1 valeur dans %1</translation>
    </message>
    <message>
        <source>Windows-specific</source>
        <translation>propre à Windows</translation>
    </message>
    <message>
        <source>a file name is empty</source>
        <translation>un nom de fichier est vide</translation>
    </message>
    <message>
        <source>a quote is never closed</source>
        <translation>un guillemet n’est jamais fermé</translation>
    </message>
    <message>
        <source>a record of more than 16 MiB</source>
        <translation>un enregistrement de plus de 16 Mio</translation>
    </message>
    <message>
        <source>a record of more than 16 MiB: is a quote not closed?</source>
        <translation>un enregistrement de plus de 16 Mio : un guillemet n’est-il pas fermé ?</translation>
    </message>
    <message>
        <source>a sum of integers is beyond 64 bits</source>
        <translation>une somme d’entiers dépasse 64 bits</translation>
    </message>
    <message>
        <source>a zero byte: this is not a text file</source>
        <translation>un octet nul : ce n’est pas un fichier texte</translation>
    </message>
    <message>
        <source>collation</source>
        <translation>classement</translation>
    </message>
    <message>
        <source>column</source>
        <translation>colonne</translation>
    </message>
    <message>
        <source>count</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>description</source>
        <translation>description</translation>
    </message>
    <message>
        <source>errors</source>
        <translation>erreurs</translation>
    </message>
    <message>
        <source>flags</source>
        <translation>indicateurs</translation>
    </message>
    <message>
        <source>ignore accents</source>
        <translation>sans accents</translation>
    </message>
    <message>
        <source>ignore case</source>
        <translation>sans casse</translation>
    </message>
    <message>
        <source>ignore symbols</source>
        <translation>sans symboles</translation>
    </message>
    <message>
        <source>iso-quarter</source>
        <translation>trimestre ISO</translation>
    </message>
    <message>
        <source>iso-week</source>
        <translation>semaine ISO</translation>
    </message>
    <message>
        <source>iso-year</source>
        <translation>année ISO</translation>
    </message>
    <message>
        <source>language</source>
        <translation>langue</translation>
    </message>
    <message>
        <source>lcid</source>
        <translation>LCID</translation>
    </message>
    <message>
        <source>line</source>
        <translation>ligne</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>locale</source>
        <translation>paramètre régional</translation>
    </message>
    <message>
        <source>max(%1)</source>
        <translation>max(%1)</translation>
    </message>
    <message>
        <source>mean(%1)</source>
        <translation>moyenne(%1)</translation>
    </message>
    <message>
        <source>min(%1)</source>
        <translation>min(%1)</translation>
    </message>
    <message>
        <source>month</source>
        <translation>mois</translation>
    </message>
    <message>
        <source>more than one column is named "%1"</source>
        <translation>plusieurs colonnes s’appellent « %1 »</translation>
    </message>
    <message>
        <source>more than one file: "%1" and "%2"</source>
        <translation>plus d’un fichier : « %1 » et « %2 »</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>no column is named "%1"</source>
        <translation>aucune colonne ne s’appelle « %1 »</translation>
    </message>
    <message>
        <source>no data source is named "%1"; that of the file is "%2"</source>
        <translation>aucune source de données ne s’appelle « %1 » ; celle du fichier est « %2 »</translation>
    </message>
    <message>
        <source>no file is given; typedtable --help shows the usage</source>
        <translation>aucun fichier n’est donné ; typedtable --help montre l’usage</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>nulls</source>
        <translation>nuls</translation>
    </message>
    <message>
        <source>offending cell</source>
        <translation>cellule fautive</translation>
    </message>
    <message>
        <source>quarter</source>
        <translation>trimestre</translation>
    </message>
    <message>
        <source>region</source>
        <translation>région</translation>
    </message>
    <message>
        <source>sample order, equal words on one line:</source>
        <translation>exemples dans cet ordre, mots égaux sur une ligne :</translation>
    </message>
    <message>
        <source>short date</source>
        <translation>date courte</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrée standard</translation>
    </message>
    <message>
        <source>standard output cannot be written</source>
        <translation>la sortie standard ne peut pas être écrite</translation>
    </message>
    <message>
        <source>sum(%1)</source>
        <translation>somme(%1)</translation>
    </message>
    <message>
        <source>temporary file</source>
        <translation>fichier temporaire</translation>
    </message>
    <message>
        <source>text behind a closing quote</source>
        <translation>texte derrière un guillemet fermant</translation>
    </message>
    <message>
        <source>text that is not UTF-8</source>
        <translation>texte qui n’est pas de l’UTF-8</translation>
    </message>
    <message>
        <source>the %1 of %2 begins before the year 400, where the calendar ends</source>
        <translation>%1 de %2 commence avant l’an 400, où finit le calendrier</translation>
    </message>
    <message>
        <source>the file changed while it was read</source>
        <translation>le fichier a changé pendant la lecture</translation>
    </message>
    <message>
        <source>the file is empty: no header</source>
        <translation>le fichier est vide : pas d’en-tête</translation>
    </message>
    <message>
        <source>type</source>
        <translation>type</translation>
    </message>
    <message>
        <source>unknown option "%1"; typedtable --help lists them</source>
        <translation>option inconnue « %1 » ; typedtable --help les énumère</translation>
    </message>
    <message>
        <source>word sort</source>
        <translation>tri par mots</translation>
    </message>
    <message>
        <source>year</source>
        <translation>année</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>day, month, year</source>
        <translation>jour, mois, année</translation>
    </message>
    <message>
        <source>month, day, year</source>
        <translation>mois, jour, année</translation>
    </message>
    <message>
        <source>year, month, day</source>
        <translation>année, mois, jour</translation>
    </message>
    <message>
        <source>year, day, month</source>
        <translation>année, jour, mois</translation>
    </message>
    <message>
        <source>no order</source>
        <translation>aucun ordre</translation>
    </message>
    <message>
        <source>%1: "%2" is not a known locale, as de_DE is</source>
        <translation>%1 : « %2 » n’est pas un paramètre régional connu, comme de_DE</translation>
    </message>
    <message>
        <source>--dates-as: "%1" is not a pattern of dates, as "d. MMMM yyyy" is</source>
        <translation>--dates-as : « %1 » n’est pas un modèle de date, comme « d. MMMM yyyy »</translation>
    </message>
    <message>
        <source>%1 rows searched for dates</source>
        <translation>%1 lignes examinées pour des dates</translation>
    </message>
    <message>
        <source>dates</source>
        <translation>dates</translation>
    </message>
    <message>
        <source>pattern</source>
        <translation>modèle</translation>
    </message>
    <message>
        <source>cells</source>
        <translation>cellules</translation>
    </message>
    <message>
        <source>disagree</source>
        <translation>en désaccord</translation>
    </message>
    <message>
        <source>day first</source>
        <translation>jour d’abord</translation>
    </message>
    <message>
        <source>month first</source>
        <translation>mois d’abord</translation>
    </message>
    <message>
        <source>(own styles)</source>
        <translation>(formes propres)</translation>
    </message>
    <message>
        <source>--locale needs --sort, --distinct, --find, --where, --min, --max, --dates-as or --format</source>
        <translation>--locale nécessite --sort, --distinct, --find, --where, --min, --max, --dates-as ou --format</translation>
    </message>
    <message>
        <source>%1: column "%2": %3 of %4 cells are not written as %5</source>
        <translation>%1 : colonne « %2 » : %3 cellules sur %4 ne sont pas écrites comme %5</translation>
    </message>
</context>
</TS>
