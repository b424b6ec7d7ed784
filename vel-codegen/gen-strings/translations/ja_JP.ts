<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US" language="ja_JP">
<context>
    <name>IDP_DATE_PARSE_ERROR</name>
    <message>
        <source>Error parsing date '%1'</source>
        <translation>日付「%1」の解析エラー</translation>
    </message>
</context>
<context>
    <name>IDP_STRINGUTILS_MISMATCH_QUOTE</name>
    <message>
        <source>Mismatched quote in '%1'</source>
        <translation>「%1」の引用符が対応していません</translation>
    </message>
</context>
<context>
    <name>IDP_VALUE_LIST_FEW_VALUES</name>
    <message>
        <source>%1 &amp; %2</source>
        <translation>%1 と %2</translation>
    </message>
</context>
<context>
    <name>IDP_VALUE_LIST_MANY_VALUES</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 と他 %2 個</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_DAY</name>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_WEEK</name>
    <message>
        <source>Week Number</source>
        <translation>週番号</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_WEEKDAY</name>
    <message>
        <source>Weekday</source>
        <translation>曜日</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_YEAR</name>
    <message>
        <source>Year</source>
        <translation>年</translation>
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
        <translation>無効な日付/時刻の値</translation>
    </message>
</context>
<context>
    <name>IDS_DEFAULT_NEG_FMT</name>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_BRACKET_MISMATCH</name>
    <message>
        <source>Invalid input: mismatched brackets</source>
        <translation>無効な入力: 角かっこが対応していません</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_DANGLING_DOT</name>
    <message>
        <source>Invalid input: dangling '.'</source>
        <translation>無効な入力: 「.」の後に続きがありません</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_DANGLING_LBRACKET</name>
    <message>
        <source>Invalid input: dangling '['</source>
        <translation>無効な入力: 「[」の後に続きがありません</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_EXPECT_DOT</name>
    <message>
        <source>Invalid input: expected '.'</source>
        <translation>無効な入力: 「.」が必要です</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_EXPECT_LBRACKET</name>
    <message>
        <source>Invalid input: expected '['</source>
        <translation>無効な入力: 「[」が必要です</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_INCORRECT_DATA_TYPE_GET</name>
    <message>
        <source>Incorrect data type %2, getting expected %1 type.</source>
        <translation>データ型 %2 が正しくありません。取得時には %1 型である必要があります。</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_INCORRECT_DATA_TYPE_SET</name>
    <message>
        <source>Incorrect data type %2, setting expected %1 type.</source>
        <translation>データ型 %2 が正しくありません。設定時には %1 型である必要があります。</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_PARSING_NUMBER</name>
    <message>
        <source>Error parsing number</source>
        <translation>数値の解析エラー</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_XML_ENUM_DECODING</name>
    <message>
        <source>XML enumerated value cannot be decoded.</source>
        <translation>XML 列挙値をデコードできません。</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_XML_ENUM_ENCODING</name>
    <message>
        <source>XML enumerated value cannot be encoded.</source>
        <translation>XML 列挙値をエンコードできません。</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_BIN_QUARTER_EXAMPLE</name>
    <message>
        <source>Q4</source>
        <translation>Q4</translation>
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
        <translation>2015 Q4</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_TRUNC_WEEKDAY_EXAMPLE</name>
    <message>
        <source>Oct 15, 2015</source>
        <translation>2015/10/15</translation>
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
        <translation>塗りつぶしなし</translation>
    </message>
</context>
<context>
    <name>IDS_STRINGUTILS_MISSING_SEPARATOR</name>
    <message>
        <source>Missing separator parameter</source>
        <translation>区切り文字パラメーターがありません</translation>
    </message>
</context>
<context>
    <name>IDS_STRING_COMPARISON_ERROR</name>
    <message>
        <source>String comparison error.</source>
        <translation>文字列の比較エラーです。</translation>
    </message>
</context>
<context>
    <name>IDS_VALUE_LIST_NO_VALUES</name>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
</context>
<context>
    <name>IDS_VALUE_LIST_SEPARATOR</name>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_AUTOMATIC</name>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUELIGHT</name>
    <message>
        <source>Light Blue Classic</source>
        <translation>薄い青 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUEREDBROWN_10_0</name>
    <message>
        <source>Blue-Red-Brown</source>
        <translation>青-赤-茶</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUE_10_0</name>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUE_TEAL_10_0</name>
    <message>
        <source>Blue-Teal</source>
        <translation>青-青緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BROWN_10_0</name>
    <message>
        <source>Brown</source>
        <translation>茶</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_COLORBLIND_10_0</name>
    <message>
        <source>Color Blind</source>
        <translation>色覚対応</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CUSTOMDIVERGING</name>
    <message>
        <source>Custom Diverging</source>
        <translation>カスタム発散</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CUSTOMSEQUENTIAL</name>
    <message>
        <source>Custom Sequential</source>
        <translation>カスタム連続</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CYCLIC</name>
    <message>
        <source>Cyclic Classic</source>
        <translation>循環 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CYCLIC_10_0</name>
    <message>
        <source>Cyclic</source>
        <translation>循環</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GOLD_PURPLE_DIVERGING_10_0</name>
    <message>
        <source>Gold-Purple Diverging</source>
        <translation>金-紫 (発散)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRANITE_STONE_10_0</name>
    <message>
        <source>Granite Stone</source>
        <translation>花崗岩</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY</name>
    <message>
        <source>Gray Classic</source>
        <translation>灰色 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY5</name>
    <message>
        <source>Gray 5 Classic</source>
        <translation>灰色 5 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY_10_0</name>
    <message>
        <source>Gray</source>
        <translation>灰色</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY_WARM_10_0</name>
    <message>
        <source>Warm Gray</source>
        <translation>暖かい灰色</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN</name>
    <message>
        <source>Green Classic</source>
        <translation>緑 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREENBLUE</name>
    <message>
        <source>Green-Blue Classic</source>
        <translation>緑-青 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREENLIGHT</name>
    <message>
        <source>Light Green Classic</source>
        <translation>薄い緑 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREENORANGETEAL_10_0</name>
    <message>
        <source>Green-Orange-Teal</source>
        <translation>緑-オレンジ-青緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_10_0</name>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_BLUE_DIVERGING_10_0</name>
    <message>
        <source>Green-Blue Diverging</source>
        <translation>緑-青 (発散)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_BLUE_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Green-Blue-White Diverging</source>
        <translation>緑-青-白 (発散)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_GOLD_10_0</name>
    <message>
        <source>Green-Gold</source>
        <translation>緑-金</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_JEWEL_BRIGHT_10_0</name>
    <message>
        <source>Jewel Bright</source>
        <translation>鮮やかな宝石</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LEGACY</name>
    <message>
        <source>Legacy</source>
        <translation>旧バージョン</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MARBLE_STONE_10_0</name>
    <message>
        <source>Marble Stone</source>
        <translation>大理石</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE</name>
    <message>
        <source>Orange Classic</source>
        <translation>オレンジ (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEBLUE</name>
    <message>
        <source>Orange-Blue Classic</source>
        <translation>オレンジ-青 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEBLUELIGHT</name>
    <message>
        <source>Light Orange-Blue Classic</source>
        <translation>薄いオレンジ-青 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGELIGHT</name>
    <message>
        <source>Light Orange Classic</source>
        <translation>薄いオレンジ (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEWHITEBLUE</name>
    <message>
        <source>Orange-White-Blue Classic</source>
        <translation>オレンジ-白-青 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEWHITEBLUELIGHT</name>
    <message>
        <source>Light Orange-White-Blue Classic</source>
        <translation>薄いオレンジ-白-青 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE_10_0</name>
    <message>
        <source>Orange</source>
        <translation>オレンジ</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE_BLUE_10_0</name>
    <message>
        <source>Orange-Blue</source>
        <translation>オレンジ-青</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE_BLUE_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Orange-Blue-White Diverging</source>
        <translation>オレンジ-青-白 (発散)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE_GOLD_10_0</name>
    <message>
        <source>Orange-Gold</source>
        <translation>オレンジ-金</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_PEBBLE_STONE_10_0</name>
    <message>
        <source>Pebble Stone</source>
        <translation>小石</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_PURPLEPINKGRAY_10_0</name>
    <message>
        <source>Purple-Pink-Gray</source>
        <translation>紫-ピンク-灰色</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_PURPLE_10_0</name>
    <message>
        <source>Purple</source>
        <translation>紫</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED</name>
    <message>
        <source>Red Classic</source>
        <translation>赤 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDBLACK</name>
    <message>
        <source>Red-Black Classic</source>
        <translation>赤-黒 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDBLUE</name>
    <message>
        <source>Red-Blue Classic</source>
        <translation>赤-青 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDGREEN</name>
    <message>
        <source>Red-Green Classic</source>
        <translation>赤-緑 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDGREENLIGHT</name>
    <message>
        <source>Light Red-Green Classic</source>
        <translation>薄い赤-緑 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDLIGHT</name>
    <message>
        <source>Light Red Classic</source>
        <translation>薄い赤 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEBLACK</name>
    <message>
        <source>Red-White-Black Classic</source>
        <translation>赤-白-黒 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEBLACKLIGHT</name>
    <message>
        <source>Light Red-White-Black Classic</source>
        <translation>薄い赤-白-黒 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEGREEN</name>
    <message>
        <source>Red-White-Green Classic</source>
        <translation>赤-白-緑 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEGREENLIGHT</name>
    <message>
        <source>Light Red-White-Green Classic</source>
        <translation>薄い赤-白-緑 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_10_0</name>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLACK_10_0</name>
    <message>
        <source>Red-Black</source>
        <translation>赤-黒</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLACK_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Red-Black-White Diverging</source>
        <translation>赤-黒-白 (発散)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLUE_DIVERGING_10_0</name>
    <message>
        <source>Red-Blue Diverging</source>
        <translation>赤-青 (発散)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLUE_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Red-Blue-White Diverging</source>
        <translation>赤-青-白 (発散)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GOLD_10_0</name>
    <message>
        <source>Red-Gold</source>
        <translation>赤-金</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GOLD_GREEN_10_0</name>
    <message>
        <source>Red-Gold-Green</source>
        <translation>赤-金-緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GREEN_DIVERGING_10_0</name>
    <message>
        <source>Red-Green Diverging</source>
        <translation>赤-緑 (発散)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GREEN_GOLD_DIVERGING_10_0</name>
    <message>
        <source>Red-Green-Gold Diverging</source>
        <translation>赤-緑-金 (発散)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GREEN_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Red-Green-White Diverging</source>
        <translation>赤-緑-白 (発散)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_SEATTLE_GRAYS</name>
    <message>
        <source>Seattle Grays</source>
        <translation>シアトルの灰色</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_SUMMER_10_0</name>
    <message>
        <source>Summer</source>
        <translation>夏</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_SUNRISE_SUNSET_DIVERGING_10_0</name>
    <message>
        <source>Sunrise-Sunset Diverging</source>
        <translation>日の出-日の入り (発散)</translation>
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
        <translation>Veltria 10 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_VELTRIA10_MEDIUM_CLASSIC</name>
    <message>
        <source>Veltria 10 Medium Classic</source>
        <translation>Veltria 10 中間色 (クラシック)</translation>
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
        <translation>Veltria 20 (クラシック)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_WINTER_10_0</name>
    <message>
        <source>Winter</source>
        <translation>冬</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_AREA_GREEN</name>
    <message>
        <source>Area Green Sequential</source>
        <translation>エリア 緑 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_AREA_RED</name>
    <message>
        <source>Area Red Sequential</source>
        <translation>エリア 赤 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_AREA_RED_GREEN</name>
    <message>
        <source>Area Red-Green Diverging</source>
        <translation>エリア 赤-緑 (発散)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_BLUE75_SEQUENTIAL</name>
    <message>
        <source>Band Blue 75 Sequential</source>
        <translation>バンド 青 75 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_BLUE80_SEQUENTIAL</name>
    <message>
        <source>Band Blue 80 Sequential</source>
        <translation>バンド 青 80 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GOLD75_SEQUENTIAL</name>
    <message>
        <source>Band Gold 75 Sequential</source>
        <translation>バンド 金 75 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GOLD80_SEQUENTIAL</name>
    <message>
        <source>Band Gold 80 Sequential</source>
        <translation>バンド 金 80 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY65_SEQUENTIAL</name>
    <message>
        <source>Band Gray 65 Sequential</source>
        <translation>バンド 灰色 65 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY75_SEQUENTIAL</name>
    <message>
        <source>Band Gray 75 Sequential</source>
        <translation>バンド 灰色 75 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY80_SEQUENTIAL</name>
    <message>
        <source>Band Gray 80 Sequential</source>
        <translation>バンド 灰色 80 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY85_SEQUENTIAL</name>
    <message>
        <source>Band Gray 85 Sequential</source>
        <translation>バンド 灰色 85 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY88_SEQUENTIAL</name>
    <message>
        <source>Band Gray 88 Sequential</source>
        <translation>バンド 灰色 88 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GREEN75_SEQUENTIAL</name>
    <message>
        <source>Band Green 75 Sequential</source>
        <translation>バンド 緑 75 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GREEN80_SEQUENTIAL</name>
    <message>
        <source>Band Green 80 Sequential</source>
        <translation>バンド 緑 80 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_STOPLIGHT_SEQUENTIAL</name>
    <message>
        <source>Band Stoplight Sequential</source>
        <translation>バンド 信号 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TAN75_SEQUENTIAL</name>
    <message>
        <source>Band Tan 75 Sequential</source>
        <translation>バンド 黄褐色 75 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TAN80_SEQUENTIAL</name>
    <message>
        <source>Band Tan 80 Sequential</source>
        <translation>バンド 黄褐色 80 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TAN_GREEN_SEQUENTIAL</name>
    <message>
        <source>Band Tan-Green Sequential</source>
        <translation>バンド 黄褐色-緑 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TEAL75_SEQUENTIAL</name>
    <message>
        <source>Band Teal 75 Sequential</source>
        <translation>バンド 青緑 75 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TEAL80_SEQUENTIAL</name>
    <message>
        <source>Band Teal 80 Sequential</source>
        <translation>バンド 青緑 80 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TINT88_SEQUENTIAL</name>
    <message>
        <source>Band Tint 88 Sequential</source>
        <translation>バンド ティント 88 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_BLUE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Blue Sequential</source>
        <translation>箱ひげ図 青 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_BRIGHTBLUE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Bright Blue Sequential</source>
        <translation>箱ひげ図 明るい青 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_BROWN_SEQUENTIAL</name>
    <message>
        <source>Box Plot Brown Sequential</source>
        <translation>箱ひげ図 茶 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_FOREST_SEQUENTIAL</name>
    <message>
        <source>Box Plot Forest Sequential</source>
        <translation>箱ひげ図 深緑 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY30_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 30 Sequential</source>
        <translation>箱ひげ図 灰色 30 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY40_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 40 Sequential</source>
        <translation>箱ひげ図 灰色 40 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY50_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 50 Sequential</source>
        <translation>箱ひげ図 灰色 50 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY60_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 60 Sequential</source>
        <translation>箱ひげ図 灰色 60 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAYBLUE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray-Blue Sequential</source>
        <translation>箱ひげ図 灰色-青 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GREEN_SEQUENTIAL</name>
    <message>
        <source>Box Plot Green Sequential</source>
        <translation>箱ひげ図 緑 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_LTGREEN_SEQUENTIAL</name>
    <message>
        <source>Box Plot Light Green Sequential</source>
        <translation>箱ひげ図 薄い緑 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_PURPLE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Purple Sequential</source>
        <translation>箱ひげ図 紫 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_RED_SEQUENTIAL</name>
    <message>
        <source>Box Plot Red Sequential</source>
        <translation>箱ひげ図 赤 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_TEAL_SEQUENTIAL</name>
    <message>
        <source>Box Plot Teal Sequential</source>
        <translation>箱ひげ図 青緑 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_YELLOW_SEQUENTIAL</name>
    <message>
        <source>Box Plot Yellow Sequential</source>
        <translation>箱ひげ図 黄 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_BLUE</name>
    <message>
        <source>Density Dark Blue</source>
        <translation>密度 濃い青</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_GOLD</name>
    <message>
        <source>Density Dark Gold</source>
        <translation>密度 濃い金</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_GREEN</name>
    <message>
        <source>Density Dark Green</source>
        <translation>密度 濃い緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_MULTICOLOR</name>
    <message>
        <source>Density Dark Multicolor</source>
        <translation>密度 濃いマルチカラー</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_RED</name>
    <message>
        <source>Density Dark Red</source>
        <translation>密度 濃い赤</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_BLUETEAL</name>
    <message>
        <source>Density Light Blue-Teal</source>
        <translation>密度 薄い青-青緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_GRAYRED</name>
    <message>
        <source>Density Light Gray-Red</source>
        <translation>密度 薄い灰色-赤</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_GRAYTEAL</name>
    <message>
        <source>Density Light Gray-Teal</source>
        <translation>密度 薄い灰色-青緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_MULTICOLOR</name>
    <message>
        <source>Density Light Multicolor</source>
        <translation>密度 薄いマルチカラー</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_ORANGE</name>
    <message>
        <source>Density Light Orange</source>
        <translation>密度 薄いオレンジ</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_BLUEGRASS</name>
    <message>
        <source>Lightning Bluegrass</source>
        <translation>ライトニング ブルーグラス</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_COLOR_SAFE</name>
    <message>
        <source>Lightning Color Safe</source>
        <translation>ライトニング カラーセーフ</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_DARK</name>
    <message>
        <source>Lightning Dark</source>
        <translation>ライトニング 濃色</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_DEFAULT</name>
    <message>
        <source>Lightning Default</source>
        <translation>ライトニング 既定</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_LIGHT</name>
    <message>
        <source>Lightning Light</source>
        <translation>ライトニング 淡色</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_SUNRISE</name>
    <message>
        <source>Lightning Sunrise</source>
        <translation>ライトニング 日の出</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_WATER</name>
    <message>
        <source>Lightning Water</source>
        <translation>ライトニング 水</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_WATERMELON</name>
    <message>
        <source>Lightning Watermelon</source>
        <translation>ライトニング スイカ</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_BLUE_GREEN_SEQUENTIAL</name>
    <message>
        <source>Map Blue-Green Sequential</source>
        <translation>マップ 青-緑 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_BROWN_SEQUENTIAL</name>
    <message>
        <source>Map Brown Sequential</source>
        <translation>マップ 茶 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_GREY_SEQUENTIAL</name>
    <message>
        <source>Map Gray Sequential</source>
        <translation>マップ 灰色 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_LIGHT_RED_GREEN_DIVERGING</name>
    <message>
        <source>Map Light Red-Green Diverging</source>
        <translation>マップ 薄い赤-緑 (発散)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_ORANGE_BLUE_DIVERGING</name>
    <message>
        <source>Map Orange-Blue Diverging</source>
        <translation>マップ オレンジ-青 (発散)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_PURPLE_SEQUENTIAL</name>
    <message>
        <source>Map Purple Sequential</source>
        <translation>マップ 紫 (連続)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_TEMPERATURE_DIVERGING</name>
    <message>
        <source>Map Temperature Diverging</source>
        <translation>マップ 温度 (発散)</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_BLACK</name>
    <message>
        <source>Black</source>
        <translation>黒</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_BLUE</name>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_BROWN</name>
    <message>
        <source>Brown</source>
        <translation>茶</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_BLUE</name>
    <message>
        <source>Dark Blue</source>
        <translation>濃い青</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_BROWN</name>
    <message>
        <source>Dark Brown</source>
        <translation>濃い茶</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_GRAY</name>
    <message>
        <source>Dark Gray</source>
        <translation>濃い灰色</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_GREEN</name>
    <message>
        <source>Dark Green</source>
        <translation>濃い緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_ORANGE</name>
    <message>
        <source>Brown</source>
        <translation>茶</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_PINK</name>
    <message>
        <source>Dark Pink</source>
        <translation>濃いピンク</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_PURPLE</name>
    <message>
        <source>Dark Purple</source>
        <translation>濃い紫</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_RED</name>
    <message>
        <source>Dark Red</source>
        <translation>濃い赤</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_TEAL</name>
    <message>
        <source>Dark Teal</source>
        <translation>濃い青緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_YELLOW</name>
    <message>
        <source>Olive Green</source>
        <translation>オリーブグリーン</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_YELLOW_GREEN</name>
    <message>
        <source>Dark Yellow-Green</source>
        <translation>濃い黄-緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_GRAY</name>
    <message>
        <source>Gray</source>
        <translation>灰色</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_GREEN</name>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_BLUE</name>
    <message>
        <source>Light Blue</source>
        <translation>薄い青</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_BROWN</name>
    <message>
        <source>Light Brown</source>
        <translation>薄い茶</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_GRAY</name>
    <message>
        <source>Light Gray</source>
        <translation>薄い灰色</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_GREEN</name>
    <message>
        <source>Light Green</source>
        <translation>薄い緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_ORANGE</name>
    <message>
        <source>Light Orange</source>
        <translation>薄いオレンジ</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_PINK</name>
    <message>
        <source>Light Pink</source>
        <translation>薄いピンク</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_PURPLE</name>
    <message>
        <source>Light Purple</source>
        <translation>薄い紫</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_RED</name>
    <message>
        <source>Pink</source>
        <translation>ピンク</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_TEAL</name>
    <message>
        <source>Light Teal</source>
        <translation>薄い青緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_YELLOW</name>
    <message>
        <source>Light Yellow</source>
        <translation>薄い黄</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_YELLOW_GREEN</name>
    <message>
        <source>Light Yellow-Green</source>
        <translation>薄い黄-緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_ORANGE</name>
    <message>
        <source>Orange</source>
        <translation>オレンジ</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_PINK</name>
    <message>
        <source>Pink</source>
        <translation>ピンク</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_PURPLE</name>
    <message>
        <source>Purple</source>
        <translation>紫</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_RED</name>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_TEAL</name>
    <message>
        <source>Teal</source>
        <translation>青緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_BLUE</name>
    <message>
        <source>Very Dark Blue</source>
        <translation>非常に濃い青</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_BROWN</name>
    <message>
        <source>Very Dark Brown</source>
        <translation>非常に濃い茶</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_GRAY</name>
    <message>
        <source>Very Dark Gray</source>
        <translation>非常に濃い灰色</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_GREEN</name>
    <message>
        <source>Very Dark Green</source>
        <translation>非常に濃い緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_ORANGE</name>
    <message>
        <source>Very Dark Orange</source>
        <translation>非常に濃いオレンジ</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_PINK</name>
    <message>
        <source>Very Dark Pink</source>
        <translation>非常に濃いピンク</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_PURPLE</name>
    <message>
        <source>Very Dark Purple</source>
        <translation>非常に濃い紫</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_RED</name>
    <message>
        <source>Brown</source>
        <translation>茶</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_TEAL</name>
    <message>
        <source>Very Dark Teal</source>
        <translation>非常に濃い青緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_YELLOW</name>
    <message>
        <source>Dark Gray</source>
        <translation>濃い灰色</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_YELLOW_GREEN</name>
    <message>
        <source>Dark Gray</source>
        <translation>濃い灰色</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_BLUE</name>
    <message>
        <source>Very Light Blue</source>
        <translation>非常に薄い青</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_BROWN</name>
    <message>
        <source>Very Light Brown</source>
        <translation>非常に薄い茶</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_GRAY</name>
    <message>
        <source>Very Light Gray</source>
        <translation>非常に薄い灰色</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_GREEN</name>
    <message>
        <source>Very Light Green</source>
        <translation>非常に薄い緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_ORANGE</name>
    <message>
        <source>Beige</source>
        <translation>ベージュ</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_PINK</name>
    <message>
        <source>Very Light Pink</source>
        <translation>非常に薄いピンク</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_PURPLE</name>
    <message>
        <source>Very Light Purple</source>
        <translation>非常に薄い紫</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_RED</name>
    <message>
        <source>Very Light Red</source>
        <translation>非常に薄い赤</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_TEAL</name>
    <message>
        <source>Very Light Teal</source>
        <translation>非常に薄い青緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_YELLOW</name>
    <message>
        <source>Very Light Yellow</source>
        <translation>非常に薄い黄</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_YELLOW_GREEN</name>
    <message>
        <source>Very Light Yellow-Green</source>
        <translation>非常に薄い黄-緑</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_WHITE</name>
    <message>
        <source>White</source>
        <translation>白</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_YELLOW</name>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_YELLOW_GREEN</name>
    <message>
        <source>Yellow-Green</source>
        <translation>黄-緑</translation>
    </message>
</context>
</TS>
