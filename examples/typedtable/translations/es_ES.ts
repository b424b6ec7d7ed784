<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US" language="es_ES">
<context>
    <name>typedtable</name>
    <message>
        <source>"%1" is not the name of a collation, as LEN_RUS_S2 is</source>
        <translation>«%1» no es el nombre de una intercalación, como LEN_RUS_S2</translation>
    </message>
    <message>
        <source>%1 cells where the header has %2</source>
        <translation>%1 celdas; el encabezado tiene %2</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1 columnas</translation>
    </message>
    <message>
        <source>%1 different values in %2</source>
        <translation>%1 valores diferentes en %2</translation>
    </message>
    <message>
        <source>%1 goes with --locale; the name behind --collation says it all</source>
        <translation>%1 va con --locale; el nombre tras --collation lo dice todo</translation>
    </message>
    <message>
        <source>%1 is for tables and %2 writes none: give one of them</source>
        <translation>%1 es para tablas y %2 no escribe ninguna: indique una de las dos</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 aparece dos veces</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 necesita %2</translation>
    </message>
    <message>
        <source>%1 needs --sort, --distinct, --find, --where, --min or --max</source>
        <translation>%1 necesita --sort, --distinct, --find, --where, --min o --max</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 necesita un valor</translation>
    </message>
    <message>
        <source>%1 of %2 locales</source>
        <translation>%1 de %2 configuraciones regionales</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 de %2 filas</translation>
    </message>
    <message>
        <source>%1 of 1 row</source>
        <translation>%1 de 1 fila</translation>
    </message>
    <message>
        <source>%1 periods from %2 to %3</source>
        <translation>%1 periodos de %2 a %3</translation>
    </message>
    <message>
        <source>%1 periods from %2 to %3, %4 of them without rows</source>
        <translation>%1 periodos de %2 a %3, %4 de ellos sin filas</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 filas</translation>
    </message>
    <message>
        <source>%1 rows grouped</source>
        <translation>%1 filas agrupadas</translation>
    </message>
    <message>
        <source>%1 rows listed</source>
        <translation>%1 filas listadas</translation>
    </message>
    <message>
        <source>%1 rows summed up</source>
        <translation>%1 filas resumidas</translation>
    </message>
    <message>
        <source>%1 rows typed</source>
        <translation>%1 filas tipificadas</translation>
    </message>
    <message>
        <source>%1 shows rows and %2 shows groups: give one of them</source>
        <translation>%1 muestra filas y %2 muestra grupos: indique solo uno</translation>
    </message>
    <message>
        <source>%1 shows rows and %2 shows one line: give one of them</source>
        <translation>%1 muestra filas y %2 muestra una sola línea: indique solo uno</translation>
    </message>
    <message>
        <source>%1 stands alone</source>
        <translation>%1 va solo</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 no admite valor</translation>
    </message>
    <message>
        <source>%1, the first %2 shown</source>
        <translation>%1, se muestran las primeras %2</translation>
    </message>
    <message>
        <source>%1: "%2" has %3 parts; a column is [COLUMN] or [SOURCE].[COLUMN]</source>
        <translation>%1: «%2» tiene %3 partes; una columna es [COLUMNA] o [ORIGEN].[COLUMNA]</translation>
    </message>
    <message>
        <source>%1: "%2" is not a number from %3 to %4</source>
        <translation>%1: «%2» no es un número de %3 a %4</translation>
    </message>
    <message>
        <source>%1: column "%2" is given twice</source>
        <translation>%1: la columna «%2» se indica dos veces</translation>
    </message>
    <message>
        <source>%1: column "%2": %3 of %4 cells are no %5, the first on line %6: "%7"</source>
        <translation>%1: columna «%2»: %3 de %4 celdas no son %5, la primera en la línea %6: «%7»</translation>
    </message>
    <message>
        <source>%1: is a folder, not a file</source>
        <translation>%1: es una carpeta, no un archivo</translation>
    </message>
    <message>
        <source>%1: the value is empty</source>
        <translation>%1: el valor está vacío</translation>
    </message>
    <message>
        <source>--%1: column "%2" is %3, not a number</source>
        <translation>--%1: la columna «%2» es %3, no un número</translation>
    </message>
    <message>
        <source>--as wkt: no column is SPATIAL; --cast COLUMN:spatial makes one</source>
        <translation>--as wkt: ninguna columna es SPATIAL; --cast COLUMN:spatial hace una</translation>
    </message>
    <message>
        <source>--as: "%1" is none of values, literals and wkt</source>
        <translation>--as: «%1» no es values, literals ni wkt</translation>
    </message>
    <message>
        <source>--cast: "%1" is not COLUMN:TYPE</source>
        <translation>--cast: «%1» no es COLUMN:TYPE</translation>
    </message>
    <message>
        <source>--cast: "%1" is not a type: %2</source>
        <translation>--cast: «%1» no es un tipo: %2</translation>
    </message>
    <message>
        <source>--collation and --locale both name a collation: give one of them</source>
        <translation>--collation y --locale nombran ambos una intercalación: indique solo uno</translation>
    </message>
    <message>
        <source>--find: no column is STRING</source>
        <translation>--find: ninguna columna es STRING</translation>
    </message>
    <message>
        <source>--fiscal-start moves years and quarters, not %1s</source>
        <translation>--fiscal-start desplaza años y trimestres, no «%1»</translation>
    </message>
    <message>
        <source>--format: "%1" is not COLUMN=FORMAT</source>
        <translation>--format: «%1» no es COLUMN=FORMAT</translation>
    </message>
    <message>
        <source>--format: "%1" is not a number format, as "n#,##0.00" is</source>
        <translation>--format: «%1» no es un formato de números como «n#,##0.00»</translation>
    </message>
    <message>
        <source>--format: a format has %1 bytes, more than %2</source>
        <translation>--format: un formato tiene %1 bytes, más de %2</translation>
    </message>
    <message>
        <source>--group-by and --distinct both gather rows: give one of them</source>
        <translation>--group-by y --distinct reúnen ambos filas: indique solo uno</translation>
    </message>
    <message>
        <source>--group-by: "%1" is not COLUMN:PERIOD</source>
        <translation>--group-by: «%1» no es COLUMNA:PERIODO</translation>
    </message>
    <message>
        <source>--group-by: "%1" is not a period: %2</source>
        <translation>--group-by: «%1» no es un periodo: %2</translation>
    </message>
    <message>
        <source>--group-by: column "%1" is %2, not DATE or DATETIME</source>
        <translation>--group-by: la columna «%1» es %2, no DATE ni DATETIME</translation>
    </message>
    <message>
        <source>--language: "%1" is not a known language, as de_DE is</source>
        <translation>--language: «%1» no es un idioma conocido, como de_DE</translation>
    </message>
    <message>
        <source>--list-locales: "%1" is not a regular expression</source>
        <translation>--list-locales: «%1» no es una expresión regular</translation>
    </message>
    <message>
        <source>--locale: "%1" is not a known locale, as sv_SE is</source>
        <translation>--locale: «%1» no es una configuración regional conocida, como sv_SE</translation>
    </message>
    <message>
        <source>--sql-nulls needs --where, --sort, --sum, --mean, --min or --max</source>
        <translation>--sql-nulls necesita --where, --sort, --sum, --mean, --min o --max</translation>
    </message>
    <message>
        <source>--week-start moves weeks, not %1s</source>
        <translation>--week-start desplaza semanas, no «%1»</translation>
    </message>
    <message>
        <source>--where: "%1" is no number, date, true, false or null, nor a text in quotes</source>
        <translation>--where: «%1» no es un número, ni una fecha, ni true, false o null, ni un texto entre comillas</translation>
    </message>
    <message>
        <source>--where: "%1" is not COLUMN, one of = != &lt; &lt;= &gt; &gt;=, and a literal</source>
        <translation>--where: «%1» no es COLUMNA, uno de = != &lt; &lt;= &gt; &gt;= y un literal</translation>
    </message>
    <message>
        <source>--where: column "%1" is %2 and does not compare with the %3 %4</source>
        <translation>--where: la columna «%1» es %2 y no se compara con %3 %4</translation>
    </message>
    <message>
        <source>1 cell where the header has %1</source>
        <translation>1 celda; el encabezado tiene %1</translation>
    </message>
    <message>
        <source>1 column</source>
        <translation>1 columna</translation>
    </message>
    <message>
        <source>1 period from %1 to %2</source>
        <translation>1 periodo de %1 a %2</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 fila</translation>
    </message>
    <message>
        <source>1 value in %1</source>
        <translation>1 valor en %1</translation>
    </message>
    <message>
        <source>Windows-specific</source>
        <translation>específico de Windows</translation>
    </message>
    <message>
        <source>a file name is empty</source>
        <translation>un nombre de archivo está vacío</translation>
    </message>
    <message>
        <source>a quote is never closed</source>
        <translation>una comilla no se cierra</translation>
    </message>
    <message>
        <source>a record of more than 16 MiB</source>
        <translation>un registro de más de 16 MiB</translation>
    </message>
    <message>
        <source>a record of more than 16 MiB: is a quote not closed?</source>
        <translation>un registro de más de 16 MiB: ¿falta cerrar una comilla?</translation>
    </message>
    <message>
        <source>a sum of integers is beyond 64 bits</source>
        <translation>una suma de enteros supera 64 bits</translation>
    </message>
    <message>
        <source>a zero byte: this is not a text file</source>
        <translation>un byte cero: esto no es un archivo de texto</translation>
    </message>
    <message>
        <source>collation</source>
        <translation>intercalación</translation>
    </message>
    <message>
        <source>column</source>
        <translation>columna</translation>
    </message>
    <message>
        <source>count</source>
        <translation>número</translation>
    </message>
    <message>
        <source>description</source>
        <translation>descripción</translation>
    </message>
    <message>
        <source>errors</source>
        <translation>errores</translation>
    </message>
    <message>
        <source>flags</source>
        <translation>indicadores</translation>
    </message>
    <message>
        <source>ignore accents</source>
        <translation>sin acentos</translation>
    </message>
    <message>
        <source>ignore case</source>
        <translation>sin mayúsculas ni minúsculas</translation>
    </message>
    <message>
        <source>ignore symbols</source>
        <translation>sin símbolos</translation>
    </message>
    <message>
        <source>iso-quarter</source>
        <translation>trimestre ISO</translation>
    </message>
    <message>
        <source>iso-week</source>
        <translation>semana ISO</translation>
    </message>
    <message>
        <source>iso-year</source>
        <translation>año ISO</translation>
    </message>
    <message>
        <source>language</source>
        <translation>idioma</translation>
    </message>
    <message>
        <source>lcid</source>
        <translation>LCID</translation>
    </message>
    <message>
        <source>line</source>
        <translation>línea</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>locale</source>
        <translation>configuración regional</translation>
    </message>
    <message>
        <source>max(%1)</source>
        <translation>máx(%1)</translation>
    </message>
    <message>
        <source>mean(%1)</source>
        <translation>media(%1)</translation>
    </message>
    <message>
        <source>min(%1)</source>
        <translation>mín(%1)</translation>
    </message>
    <message>
        <source>month</source>
        <translation>mes</translation>
    </message>
    <message>
        <source>more than one column is named "%1"</source>
        <translation>más de una columna se llama «%1»</translation>
    </message>
    <message>
        <source>more than one file: "%1" and "%2"</source>
        <translation>más de un archivo: «%1» y «%2»</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>no column is named "%1"</source>
        <translation>ninguna columna se llama «%1»</translation>
    </message>
    <message>
        <source>no data source is named "%1"; that of the file is "%2"</source>
        <translation>ningún origen de datos se llama «%1»; el del archivo es «%2»</translation>
    </message>
    <message>
        <source>no file is given; typedtable --help shows the usage</source>
        <translation>no se indica ningún archivo; typedtable --help muestra el uso</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>nulls</source>
        <translation>nulos</translation>
    </message>
    <message>
        <source>offending cell</source>
        <translation>celda errónea</translation>
    </message>
    <message>
        <source>quarter</source>
        <translation>trimestre</translation>
    </message>
    <message>
        <source>region</source>
        <translation>región</translation>
    </message>
    <message>
        <source>sample order, equal words on one line:</source>
        <translation>muestra ordenada, palabras iguales en una línea:</translation>
    </message>
    <message>
        <source>short date</source>
        <translation>fecha corta</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrada estándar</translation>
    </message>
    <message>
        <source>standard output cannot be written</source>
        <translation>no se puede escribir en la salida estándar</translation>
    </message>
    <message>
        <source>sum(%1)</source>
        <translation>suma(%1)</translation>
    </message>
    <message>
        <source>temporary file</source>
        <translation>archivo temporal</translation>
    </message>
    <message>
        <source>text behind a closing quote</source>
        <translation>texto tras una comilla de cierre</translation>
    </message>
    <message>
        <source>text that is not UTF-8</source>
        <translation>texto que no es UTF-8</translation>
    </message>
    <message>
        <source>the %1 of %2 begins before the year 400, where the calendar ends</source>
        <translation>%1 de %2 empieza antes del año 400, donde acaba el calendario</translation>
    </message>
    <message>
        <source>the file changed while it was read</source>
        <translation>el archivo cambió mientras se leía</translation>
    </message>
    <message>
        <source>the file is empty: no header</source>
        <translation>el archivo está vacío: no hay encabezado</translation>
    </message>
    <message>
        <source>type</source>
        <translation>tipo</translation>
    </message>
    <message>
        <source>unknown option "%1"; typedtable --help lists them</source>
        <translation>opción desconocida «%1»; typedtable --help las enumera</translation>
    </message>
    <message>
        <source>word sort</source>
        <translation>orden por palabras</translation>
    </message>
    <message>
        <source>year</source>
        <translation>año</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>day, month, year</source>
        <translation>día, mes, año</translation>
    </message>
    <message>
        <source>month, day, year</source>
        <translation>mes, día, año</translation>
    </message>
    <message>
        <source>year, month, day</source>
        <translation>año, mes, día</translation>
    </message>
    <message>
        <source>year, day, month</source>
        <translation>año, día, mes</translation>
    </message>
    <message>
        <source>no order</source>
        <translation>sin orden</translation>
    </message>
    <message>
        <source>%1: "%2" is not a known locale, as de_DE is</source>
        <translation>%1: «%2» no es una configuración regional conocida, como lo es de_DE</translation>
    </message>
    <message>
        <source>--dates-as: "%1" is not a pattern of dates, as "d. MMMM yyyy" is</source>
        <translation>--dates-as: «%1» no es un patrón de fechas, como lo es «d. MMMM yyyy»</translation>
    </message>
    <message>
        <source>%1 rows searched for dates</source>
        <translation>%1 filas examinadas en busca de fechas</translation>
    </message>
    <message>
        <source>dates</source>
        <translation>fechas</translation>
    </message>
    <message>
        <source>pattern</source>
        <translation>patrón</translation>
    </message>
    <message>
        <source>cells</source>
        <translation>celdas</translation>
    </message>
    <message>
        <source>disagree</source>
        <translation>en desacuerdo</translation>
    </message>
    <message>
        <source>day first</source>
        <translation>primero el día</translation>
    </message>
    <message>
        <source>month first</source>
        <translation>primero el mes</translation>
    </message>
    <message>
        <source>(own styles)</source>
        <translation>(formas propias)</translation>
    </message>
    <message>
        <source>--locale needs --sort, --distinct, --find, --where, --min, --max, --dates-as or --format</source>
        <translation>--locale necesita --sort, --distinct, --find, --where, --min, --max, --dates-as o --format</translation>
    </message>
    <message>
        <source>%1: column "%2": %3 of %4 cells are not written as %5</source>
        <translation>%1: columna «%2»: %3 de %4 celdas no están escritas como %5</translation>
    </message>
</context>
</TS>
