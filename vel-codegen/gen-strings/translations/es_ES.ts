<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US" language="es_ES">
<context>
    <name>IDP_DATE_PARSE_ERROR</name>
    <message>
        <source>Error parsing date '%1'</source>
        <translation>Error al analizar la fecha «%1»</translation>
    </message>
</context>
<context>
    <name>IDP_STRINGUTILS_MISMATCH_QUOTE</name>
    <message>
        <source>Mismatched quote in '%1'</source>
        <translation>Comilla sin cerrar en «%1»</translation>
    </message>
</context>
<context>
    <name>IDP_VALUE_LIST_FEW_VALUES</name>
    <message>
        <source>%1 &amp; %2</source>
        <translation>%1 y %2</translation>
    </message>
</context>
<context>
    <name>IDP_VALUE_LIST_MANY_VALUES</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_DAY</name>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_WEEK</name>
    <message>
        <source>Week Number</source>
        <translation>Número de semana</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_WEEKDAY</name>
    <message>
        <source>Weekday</source>
        <translation>Día de la semana</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_YEAR</name>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
</context>
<context>
    <name>IDS_DASH_LAYOUT_SPACING_COLOR_RGB</name>
    <message>
        <source>rgb (%1,%2,%3)</source>
        <translation>rgb (%1,%2,%3)</translation>
    </message>
</context>
<context>
    <name>IDS_DASH_LAYOUT_SPACING_COLOR_RGBA</name>
    <message>
        <source>rgba (%1,%2,%3,%4)</source>
        <translation>rgba (%1,%2,%3,%4)</translation>
    </message>
</context>
<context>
    <name>IDS_DATETIME_ERROR</name>
    <message>
        <source>Invalid datetime value</source>
        <translation>Valor de fecha y hora no válido</translation>
    </message>
</context>
<context>
    <name>IDS_DEFAULT_NEG_FMT</name>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_BRACKET_MISMATCH</name>
    <message>
        <source>Invalid input: mismatched brackets</source>
        <translation>Entrada no válida: corchetes desparejados</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_DANGLING_DOT</name>
    <message>
        <source>Invalid input: dangling '.'</source>
        <translation>Entrada no válida: «.» sin continuación</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_DANGLING_LBRACKET</name>
    <message>
        <source>Invalid input: dangling '['</source>
        <translation>Entrada no válida: «[» sin continuación</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_EXPECT_DOT</name>
    <message>
        <source>Invalid input: expected '.'</source>
        <translation>Entrada no válida: se esperaba «.»</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_EXPECT_LBRACKET</name>
    <message>
        <source>Invalid input: expected '['</source>
        <translation>Entrada no válida: se esperaba «[»</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_INCORRECT_DATA_TYPE_GET</name>
    <message>
        <source>Incorrect data type %2, getting expected %1 type.</source>
        <translation>Tipo de datos %2 incorrecto al obtener el tipo esperado %1.</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_INCORRECT_DATA_TYPE_SET</name>
    <message>
        <source>Incorrect data type %2, setting expected %1 type.</source>
        <translation>Tipo de datos %2 incorrecto al establecer el tipo esperado %1.</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_PARSING_NUMBER</name>
    <message>
        <source>Error parsing number</source>
        <translation>Error al analizar el número</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_XML_ENUM_DECODING</name>
    <message>
        <source>XML enumerated value cannot be decoded.</source>
        <translation>No se puede descodificar el valor de enumeración XML.</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_XML_ENUM_ENCODING</name>
    <message>
        <source>XML enumerated value cannot be encoded.</source>
        <translation>No se puede codificar el valor de enumeración XML.</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_BIN_QUARTER_EXAMPLE</name>
    <message>
        <source>Q4</source>
        <translation>T4</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_BIN_WEEKDAY_EXAMPLE</name>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_BIN_WEEK_EXAMPLE</name>
    <message>
        <source>W42</source>
        <translation>W42</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_BIN_YEAR_EXAMPLE</name>
    <message>
        <source>2015</source>
        <translation>2015</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_TRUNC_DAY_EXAMPLE</name>
    <message>
        <source>2015-W42-4</source>
        <translation>2015-W42-4</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_TRUNC_QUARTER_EXAMPLE</name>
    <message>
        <source>2015 Q4</source>
        <translation>2015 T4</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_TRUNC_WEEKDAY_EXAMPLE</name>
    <message>
        <source>Oct 15, 2015</source>
        <translation>15 oct 2015</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_TRUNC_WEEK_EXAMPLE</name>
    <message>
        <source>2015-W42</source>
        <translation>2015-W42</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_TRUNC_YEAR_EXAMPLE</name>
    <message>
        <source>2015</source>
        <translation>2015</translation>
    </message>
</context>
<context>
    <name>IDS_NO_FILL</name>
    <message>
        <source>No Fill</source>
        <translation>Sin relleno</translation>
    </message>
</context>
<context>
    <name>IDS_STRINGUTILS_MISSING_SEPARATOR</name>
    <message>
        <source>Missing separator parameter</source>
        <translation>Falta el parámetro separador</translation>
    </message>
</context>
<context>
    <name>IDS_STRING_COMPARISON_ERROR</name>
    <message>
        <source>String comparison error.</source>
        <translation>Error en la comparación de cadenas.</translation>
    </message>
</context>
<context>
    <name>IDS_VALUE_LIST_NO_VALUES</name>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
</context>
<context>
    <name>IDS_VALUE_LIST_SEPARATOR</name>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_AUTOMATIC</name>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUELIGHT</name>
    <message>
        <source>Light Blue Classic</source>
        <translation>Azul claro clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUEREDBROWN_10_0</name>
    <message>
        <source>Blue-Red-Brown</source>
        <translation>Azul-rojo-marrón</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUE_10_0</name>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUE_TEAL_10_0</name>
    <message>
        <source>Blue-Teal</source>
        <translation>Azul-verde azulado</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BROWN_10_0</name>
    <message>
        <source>Brown</source>
        <translation>Marrón</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_COLORBLIND_10_0</name>
    <message>
        <source>Color Blind</source>
        <translation>Daltónico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CUSTOMDIVERGING</name>
    <message>
        <source>Custom Diverging</source>
        <translation>Divergente personalizada</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CUSTOMSEQUENTIAL</name>
    <message>
        <source>Custom Sequential</source>
        <translation>Secuencial personalizada</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CYCLIC</name>
    <message>
        <source>Cyclic Classic</source>
        <translation>Cíclica clásica</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CYCLIC_10_0</name>
    <message>
        <source>Cyclic</source>
        <translation>Cíclica</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GOLD_PURPLE_DIVERGING_10_0</name>
    <message>
        <source>Gold-Purple Diverging</source>
        <translation>Oro-morado divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRANITE_STONE_10_0</name>
    <message>
        <source>Granite Stone</source>
        <translation>Granito</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY</name>
    <message>
        <source>Gray Classic</source>
        <translation>Gris clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY5</name>
    <message>
        <source>Gray 5 Classic</source>
        <translation>Gris 5 clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY_10_0</name>
    <message>
        <source>Gray</source>
        <translation>Gris</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY_WARM_10_0</name>
    <message>
        <source>Warm Gray</source>
        <translation>Gris cálido</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN</name>
    <message>
        <source>Green Classic</source>
        <translation>Verde clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREENBLUE</name>
    <message>
        <source>Green-Blue Classic</source>
        <translation>Verde-azul clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREENLIGHT</name>
    <message>
        <source>Light Green Classic</source>
        <translation>Verde claro clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREENORANGETEAL_10_0</name>
    <message>
        <source>Green-Orange-Teal</source>
        <translation>Verde-naranja-verde azulado</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_10_0</name>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_BLUE_DIVERGING_10_0</name>
    <message>
        <source>Green-Blue Diverging</source>
        <translation>Verde-azul divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_BLUE_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Green-Blue-White Diverging</source>
        <translation>Verde-azul-blanco divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_GOLD_10_0</name>
    <message>
        <source>Green-Gold</source>
        <translation>Verde-oro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_JEWEL_BRIGHT_10_0</name>
    <message>
        <source>Jewel Bright</source>
        <translation>Joyas brillantes</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LEGACY</name>
    <message>
        <source>Legacy</source>
        <translation>Heredada</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MARBLE_STONE_10_0</name>
    <message>
        <source>Marble Stone</source>
        <translation>Mármol</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE</name>
    <message>
        <source>Orange Classic</source>
        <translation>Naranja clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEBLUE</name>
    <message>
        <source>Orange-Blue Classic</source>
        <translation>Naranja-azul clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEBLUELIGHT</name>
    <message>
        <source>Light Orange-Blue Classic</source>
        <translation>Naranja-azul claro clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGELIGHT</name>
    <message>
        <source>Light Orange Classic</source>
        <translation>Naranja claro clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEWHITEBLUE</name>
    <message>
        <source>Orange-White-Blue Classic</source>
        <translation>Naranja-blanco-azul clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEWHITEBLUELIGHT</name>
    <message>
        <source>Light Orange-White-Blue Classic</source>
        <translation>Naranja-blanco-azul claro clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE_10_0</name>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE_BLUE_10_0</name>
    <message>
        <source>Orange-Blue</source>
        <translation>Naranja-azul</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE_BLUE_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Orange-Blue-White Diverging</source>
        <translation>Naranja-azul-blanco divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE_GOLD_10_0</name>
    <message>
        <source>Orange-Gold</source>
        <translation>Naranja-oro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_PEBBLE_STONE_10_0</name>
    <message>
        <source>Pebble Stone</source>
        <translation>Guijarro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_PURPLEPINKGRAY_10_0</name>
    <message>
        <source>Purple-Pink-Gray</source>
        <translation>Morado-rosa-gris</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_PURPLE_10_0</name>
    <message>
        <source>Purple</source>
        <translation>Morado</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED</name>
    <message>
        <source>Red Classic</source>
        <translation>Rojo clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDBLACK</name>
    <message>
        <source>Red-Black Classic</source>
        <translation>Rojo-negro clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDBLUE</name>
    <message>
        <source>Red-Blue Classic</source>
        <translation>Rojo-azul clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDGREEN</name>
    <message>
        <source>Red-Green Classic</source>
        <translation>Rojo-verde clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDGREENLIGHT</name>
    <message>
        <source>Light Red-Green Classic</source>
        <translation>Rojo-verde claro clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDLIGHT</name>
    <message>
        <source>Light Red Classic</source>
        <translation>Rojo claro clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEBLACK</name>
    <message>
        <source>Red-White-Black Classic</source>
        <translation>Rojo-blanco-negro clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEBLACKLIGHT</name>
    <message>
        <source>Light Red-White-Black Classic</source>
        <translation>Rojo-blanco-negro claro clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEGREEN</name>
    <message>
        <source>Red-White-Green Classic</source>
        <translation>Rojo-blanco-verde clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEGREENLIGHT</name>
    <message>
        <source>Light Red-White-Green Classic</source>
        <translation>Rojo-blanco-verde claro clásico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_10_0</name>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLACK_10_0</name>
    <message>
        <source>Red-Black</source>
        <translation>Rojo-negro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLACK_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Red-Black-White Diverging</source>
        <translation>Rojo-negro-blanco divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLUE_DIVERGING_10_0</name>
    <message>
        <source>Red-Blue Diverging</source>
        <translation>Rojo-azul divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLUE_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Red-Blue-White Diverging</source>
        <translation>Rojo-azul-blanco divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GOLD_10_0</name>
    <message>
        <source>Red-Gold</source>
        <translation>Rojo-oro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GOLD_GREEN_10_0</name>
    <message>
        <source>Red-Gold-Green</source>
        <translation>Rojo-oro-verde</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GREEN_DIVERGING_10_0</name>
    <message>
        <source>Red-Green Diverging</source>
        <translation>Rojo-verde divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GREEN_GOLD_DIVERGING_10_0</name>
    <message>
        <source>Red-Green-Gold Diverging</source>
        <translation>Rojo-verde-oro divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GREEN_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Red-Green-White Diverging</source>
        <translation>Rojo-verde-blanco divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_SEATTLE_GRAYS</name>
    <message>
        <source>Seattle Grays</source>
        <translation>Grises de Seattle</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_SUMMER_10_0</name>
    <message>
        <source>Summer</source>
        <translation>Verano</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_SUNRISE_SUNSET_DIVERGING_10_0</name>
    <message>
        <source>Sunrise-Sunset Diverging</source>
        <translation>Amanecer-atardecer divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_VELTRIA10_10_0</name>
    <message>
        <source>Veltria 10</source>
        <translation>Veltria 10</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_VELTRIA10_CLASSIC</name>
    <message>
        <source>Veltria 10 Classic</source>
        <translation>Veltria 10 clásica</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_VELTRIA10_MEDIUM_CLASSIC</name>
    <message>
        <source>Veltria 10 Medium Classic</source>
        <translation>Veltria 10 media clásica</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_VELTRIA20_10_0</name>
    <message>
        <source>Veltria 20</source>
        <translation>Veltria 20</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_VELTRIA20_CLASSIC</name>
    <message>
        <source>Veltria 20 Classic</source>
        <translation>Veltria 20 clásica</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_WINTER_10_0</name>
    <message>
        <source>Winter</source>
        <translation>Invierno</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_AREA_GREEN</name>
    <message>
        <source>Area Green Sequential</source>
        <translation>Área verde secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_AREA_RED</name>
    <message>
        <source>Area Red Sequential</source>
        <translation>Área rojo secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_AREA_RED_GREEN</name>
    <message>
        <source>Area Red-Green Diverging</source>
        <translation>Área rojo-verde divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_BLUE75_SEQUENTIAL</name>
    <message>
        <source>Band Blue 75 Sequential</source>
        <translation>Banda azul 75 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_BLUE80_SEQUENTIAL</name>
    <message>
        <source>Band Blue 80 Sequential</source>
        <translation>Banda azul 80 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GOLD75_SEQUENTIAL</name>
    <message>
        <source>Band Gold 75 Sequential</source>
        <translation>Banda oro 75 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GOLD80_SEQUENTIAL</name>
    <message>
        <source>Band Gold 80 Sequential</source>
        <translation>Banda oro 80 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY65_SEQUENTIAL</name>
    <message>
        <source>Band Gray 65 Sequential</source>
        <translation>Banda gris 65 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY75_SEQUENTIAL</name>
    <message>
        <source>Band Gray 75 Sequential</source>
        <translation>Banda gris 75 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY80_SEQUENTIAL</name>
    <message>
        <source>Band Gray 80 Sequential</source>
        <translation>Banda gris 80 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY85_SEQUENTIAL</name>
    <message>
        <source>Band Gray 85 Sequential</source>
        <translation>Banda gris 85 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY88_SEQUENTIAL</name>
    <message>
        <source>Band Gray 88 Sequential</source>
        <translation>Banda gris 88 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GREEN75_SEQUENTIAL</name>
    <message>
        <source>Band Green 75 Sequential</source>
        <translation>Banda verde 75 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GREEN80_SEQUENTIAL</name>
    <message>
        <source>Band Green 80 Sequential</source>
        <translation>Banda verde 80 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_STOPLIGHT_SEQUENTIAL</name>
    <message>
        <source>Band Stoplight Sequential</source>
        <translation>Banda semáforo secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TAN75_SEQUENTIAL</name>
    <message>
        <source>Band Tan 75 Sequential</source>
        <translation>Banda canela 75 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TAN80_SEQUENTIAL</name>
    <message>
        <source>Band Tan 80 Sequential</source>
        <translation>Banda canela 80 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TAN_GREEN_SEQUENTIAL</name>
    <message>
        <source>Band Tan-Green Sequential</source>
        <translation>Banda canela-verde secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TEAL75_SEQUENTIAL</name>
    <message>
        <source>Band Teal 75 Sequential</source>
        <translation>Banda verde azulado 75 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TEAL80_SEQUENTIAL</name>
    <message>
        <source>Band Teal 80 Sequential</source>
        <translation>Banda verde azulado 80 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TINT88_SEQUENTIAL</name>
    <message>
        <source>Band Tint 88 Sequential</source>
        <translation>Banda tinte 88 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_BLUE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Blue Sequential</source>
        <translation>Diagrama de caja azul secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_BRIGHTBLUE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Bright Blue Sequential</source>
        <translation>Diagrama de caja azul brillante secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_BROWN_SEQUENTIAL</name>
    <message>
        <source>Box Plot Brown Sequential</source>
        <translation>Diagrama de caja marrón secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_FOREST_SEQUENTIAL</name>
    <message>
        <source>Box Plot Forest Sequential</source>
        <translation>Diagrama de caja verde bosque secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY30_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 30 Sequential</source>
        <translation>Diagrama de caja gris 30 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY40_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 40 Sequential</source>
        <translation>Diagrama de caja gris 40 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY50_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 50 Sequential</source>
        <translation>Diagrama de caja gris 50 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY60_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 60 Sequential</source>
        <translation>Diagrama de caja gris 60 secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAYBLUE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray-Blue Sequential</source>
        <translation>Diagrama de caja gris-azul secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GREEN_SEQUENTIAL</name>
    <message>
        <source>Box Plot Green Sequential</source>
        <translation>Diagrama de caja verde secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_LTGREEN_SEQUENTIAL</name>
    <message>
        <source>Box Plot Light Green Sequential</source>
        <translation>Diagrama de caja verde claro secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_PURPLE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Purple Sequential</source>
        <translation>Diagrama de caja morado secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_RED_SEQUENTIAL</name>
    <message>
        <source>Box Plot Red Sequential</source>
        <translation>Diagrama de caja rojo secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_TEAL_SEQUENTIAL</name>
    <message>
        <source>Box Plot Teal Sequential</source>
        <translation>Diagrama de caja verde azulado secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_YELLOW_SEQUENTIAL</name>
    <message>
        <source>Box Plot Yellow Sequential</source>
        <translation>Diagrama de caja amarillo secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_BLUE</name>
    <message>
        <source>Density Dark Blue</source>
        <translation>Densidad azul oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_GOLD</name>
    <message>
        <source>Density Dark Gold</source>
        <translation>Densidad oro oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_GREEN</name>
    <message>
        <source>Density Dark Green</source>
        <translation>Densidad verde oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_MULTICOLOR</name>
    <message>
        <source>Density Dark Multicolor</source>
        <translation>Densidad multicolor oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_RED</name>
    <message>
        <source>Density Dark Red</source>
        <translation>Densidad rojo oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_BLUETEAL</name>
    <message>
        <source>Density Light Blue-Teal</source>
        <translation>Densidad azul-verde azulado claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_GRAYRED</name>
    <message>
        <source>Density Light Gray-Red</source>
        <translation>Densidad gris-rojo claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_GRAYTEAL</name>
    <message>
        <source>Density Light Gray-Teal</source>
        <translation>Densidad gris-verde azulado claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_MULTICOLOR</name>
    <message>
        <source>Density Light Multicolor</source>
        <translation>Densidad multicolor claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_ORANGE</name>
    <message>
        <source>Density Light Orange</source>
        <translation>Densidad naranja claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_BLUEGRASS</name>
    <message>
        <source>Lightning Bluegrass</source>
        <translation>Relámpago pasto azul</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_COLOR_SAFE</name>
    <message>
        <source>Lightning Color Safe</source>
        <translation>Relámpago colores seguros</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_DARK</name>
    <message>
        <source>Lightning Dark</source>
        <translation>Relámpago oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_DEFAULT</name>
    <message>
        <source>Lightning Default</source>
        <translation>Relámpago predeterminado</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_LIGHT</name>
    <message>
        <source>Lightning Light</source>
        <translation>Relámpago claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_SUNRISE</name>
    <message>
        <source>Lightning Sunrise</source>
        <translation>Relámpago amanecer</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_WATER</name>
    <message>
        <source>Lightning Water</source>
        <translation>Relámpago agua</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_WATERMELON</name>
    <message>
        <source>Lightning Watermelon</source>
        <translation>Relámpago sandía</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_BLUE_GREEN_SEQUENTIAL</name>
    <message>
        <source>Map Blue-Green Sequential</source>
        <translation>Mapa azul-verde secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_BROWN_SEQUENTIAL</name>
    <message>
        <source>Map Brown Sequential</source>
        <translation>Mapa marrón secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_GREY_SEQUENTIAL</name>
    <message>
        <source>Map Gray Sequential</source>
        <translation>Mapa gris secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_LIGHT_RED_GREEN_DIVERGING</name>
    <message>
        <source>Map Light Red-Green Diverging</source>
        <translation>Mapa rojo-verde claro divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_ORANGE_BLUE_DIVERGING</name>
    <message>
        <source>Map Orange-Blue Diverging</source>
        <translation>Mapa naranja-azul divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_PURPLE_SEQUENTIAL</name>
    <message>
        <source>Map Purple Sequential</source>
        <translation>Mapa morado secuencial</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_TEMPERATURE_DIVERGING</name>
    <message>
        <source>Map Temperature Diverging</source>
        <translation>Mapa temperatura divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_BLACK</name>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_BLUE</name>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_BROWN</name>
    <message>
        <source>Brown</source>
        <translation>Marrón</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_BLUE</name>
    <message>
        <source>Dark Blue</source>
        <translation>Azul oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_BROWN</name>
    <message>
        <source>Dark Brown</source>
        <translation>Marrón oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_GRAY</name>
    <message>
        <source>Dark Gray</source>
        <translation>Gris oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_GREEN</name>
    <message>
        <source>Dark Green</source>
        <translation>Verde oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_ORANGE</name>
    <message>
        <source>Brown</source>
        <translation>Marrón</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_PINK</name>
    <message>
        <source>Dark Pink</source>
        <translation>Rosa oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_PURPLE</name>
    <message>
        <source>Dark Purple</source>
        <translation>Morado oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_RED</name>
    <message>
        <source>Dark Red</source>
        <translation>Rojo oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_TEAL</name>
    <message>
        <source>Dark Teal</source>
        <translation>Verde azulado oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_YELLOW</name>
    <message>
        <source>Olive Green</source>
        <translation>Verde oliva</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_YELLOW_GREEN</name>
    <message>
        <source>Dark Yellow-Green</source>
        <translation>Amarillo-verde oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_GRAY</name>
    <message>
        <source>Gray</source>
        <translation>Gris</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_GREEN</name>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_BLUE</name>
    <message>
        <source>Light Blue</source>
        <translation>Azul claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_BROWN</name>
    <message>
        <source>Light Brown</source>
        <translation>Marrón claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_GRAY</name>
    <message>
        <source>Light Gray</source>
        <translation>Gris claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_GREEN</name>
    <message>
        <source>Light Green</source>
        <translation>Verde claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_ORANGE</name>
    <message>
        <source>Light Orange</source>
        <translation>Naranja claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_PINK</name>
    <message>
        <source>Light Pink</source>
        <translation>Rosa claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_PURPLE</name>
    <message>
        <source>Light Purple</source>
        <translation>Morado claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_RED</name>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_TEAL</name>
    <message>
        <source>Light Teal</source>
        <translation>Verde azulado claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_YELLOW</name>
    <message>
        <source>Light Yellow</source>
        <translation>Amarillo claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_YELLOW_GREEN</name>
    <message>
        <source>Light Yellow-Green</source>
        <translation>Amarillo-verde claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_ORANGE</name>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_PINK</name>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_PURPLE</name>
    <message>
        <source>Purple</source>
        <translation>Morado</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_RED</name>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_TEAL</name>
    <message>
        <source>Teal</source>
        <translation>Verde azulado</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_BLUE</name>
    <message>
        <source>Very Dark Blue</source>
        <translation>Azul muy oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_BROWN</name>
    <message>
        <source>Very Dark Brown</source>
        <translation>Marrón muy oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_GRAY</name>
    <message>
        <source>Very Dark Gray</source>
        <translation>Gris muy oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_GREEN</name>
    <message>
        <source>Very Dark Green</source>
        <translation>Verde muy oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_ORANGE</name>
    <message>
        <source>Very Dark Orange</source>
        <translation>Naranja muy oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_PINK</name>
    <message>
        <source>Very Dark Pink</source>
        <translation>Rosa muy oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_PURPLE</name>
    <message>
        <source>Very Dark Purple</source>
        <translation>Morado muy oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_RED</name>
    <message>
        <source>Brown</source>
        <translation>Marrón</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_TEAL</name>
    <message>
        <source>Very Dark Teal</source>
        <translation>Verde azulado muy oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_YELLOW</name>
    <message>
        <source>Dark Gray</source>
        <translation>Gris oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_YELLOW_GREEN</name>
    <message>
        <source>Dark Gray</source>
        <translation>Gris oscuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_BLUE</name>
    <message>
        <source>Very Light Blue</source>
        <translation>Azul muy claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_BROWN</name>
    <message>
        <source>Very Light Brown</source>
        <translation>Marrón muy claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_GRAY</name>
    <message>
        <source>Very Light Gray</source>
        <translation>Gris muy claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_GREEN</name>
    <message>
        <source>Very Light Green</source>
        <translation>Verde muy claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_ORANGE</name>
    <message>
        <source>Beige</source>
        <translation>Beis</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_PINK</name>
    <message>
        <source>Very Light Pink</source>
        <translation>Rosa muy claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_PURPLE</name>
    <message>
        <source>Very Light Purple</source>
        <translation>Morado muy claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_RED</name>
    <message>
        <source>Very Light Red</source>
        <translation>Rojo muy claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_TEAL</name>
    <message>
        <source>Very Light Teal</source>
        <translation>Verde azulado muy claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_YELLOW</name>
    <message>
        <source>Very Light Yellow</source>
        <translation>Amarillo muy claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_YELLOW_GREEN</name>
    <message>
        <source>Very Light Yellow-Green</source>
        <translation>Amarillo-verde muy claro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_WHITE</name>
    <message>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_YELLOW</name>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_YELLOW_GREEN</name>
    <message>
        <source>Yellow-Green</source>
        <translation>Amarillo-verde</translation>
    </message>
</context>
</TS>
