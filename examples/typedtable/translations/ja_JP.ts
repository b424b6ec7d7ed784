<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US" language="ja_JP">
<context>
    <name>typedtable</name>
    <message>
        <source>"%1" is not the name of a collation, as LEN_RUS_S2 is</source>
        <translation>「%1」は LEN_RUS_S2 のような照合順序の名前ではありません</translation>
    </message>
    <message>
        <source>%1 cells where the header has %2</source>
        <translation>セルが %1 個ありますが、ヘッダーは %2 個です</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1 列</translation>
    </message>
    <message>
        <source>%1 different values in %2</source>
        <translation>%2に %1 種類の値</translation>
    </message>
    <message>
        <source>%1 goes with --locale; the name behind --collation says it all</source>
        <translation>%1 は --locale と使います。--collation の名前がすべてを決めます</translation>
    </message>
    <message>
        <source>%1 is for tables and %2 writes none: give one of them</source>
        <translation>%1 は表のためのもので、%2 は表を書きません。どちらか一方を指定してください</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 が 2 回指定されています</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 には %2 が必要です</translation>
    </message>
    <message>
        <source>%1 needs --sort, --distinct, --find, --where, --min or --max</source>
        <translation>%1 には --sort、--distinct、--find、--where、--min、--max のいずれかが必要です</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 には値が必要です</translation>
    </message>
    <message>
        <source>%1 of %2 locales</source>
        <translation>%2 ロケール中 %1 ロケール</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%2 行中 %1 行</translation>
    </message>
    <message>
        <source>%1 of 1 row</source>
        <translation>1 行中 %1 行</translation>
    </message>
    <message>
        <source>%1 periods from %2 to %3</source>
        <translation>%2 から %3 まで %1 期間</translation>
    </message>
    <message>
        <source>%1 periods from %2 to %3, %4 of them without rows</source>
        <translation>%2 から %3 まで %1 期間、うち %4 期間は行なし</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 行</translation>
    </message>
    <message>
        <source>%1 rows grouped</source>
        <translation>%1 行をグループ化</translation>
    </message>
    <message>
        <source>%1 rows listed</source>
        <translation>%1 行を一覧</translation>
    </message>
    <message>
        <source>%1 rows summed up</source>
        <translation>%1 行を集計</translation>
    </message>
    <message>
        <source>%1 rows typed</source>
        <translation>%1 行の型を判定</translation>
    </message>
    <message>
        <source>%1 shows rows and %2 shows groups: give one of them</source>
        <translation>%1 は行を、%2 はグループを表示します。どちらか一方を指定してください</translation>
    </message>
    <message>
        <source>%1 shows rows and %2 shows one line: give one of them</source>
        <translation>%1 は行を、%2 は 1 行だけを表示します。どちらか一方を指定してください</translation>
    </message>
    <message>
        <source>%1 stands alone</source>
        <translation>%1 は単独で使います</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 は値を取りません</translation>
    </message>
    <message>
        <source>%1, the first %2 shown</source>
        <translation>%1、先頭の %2 行を表示</translation>
    </message>
    <message>
        <source>%1: "%2" has %3 parts; a column is [COLUMN] or [SOURCE].[COLUMN]</source>
        <translation>%1: 「%2」は %3 個の部分からなります。列は [列] または [ソース].[列] と書きます</translation>
    </message>
    <message>
        <source>%1: "%2" is not a number from %3 to %4</source>
        <translation>%1: 「%2」は %3 から %4 までの数ではありません</translation>
    </message>
    <message>
        <source>%1: column "%2" is given twice</source>
        <translation>%1: 列「%2」が 2 回指定されています</translation>
    </message>
    <message>
        <source>%1: column "%2": %3 of %4 cells are no %5, the first on line %6: "%7"</source>
        <translation>%1: 列「%2」: %4 個のセルのうち %3 個が %5 ではありません。最初は %6 行目: 「%7」</translation>
    </message>
    <message>
        <source>%1: is a folder, not a file</source>
        <translation>%1: ファイルではなくフォルダーです</translation>
    </message>
    <message>
        <source>%1: the value is empty</source>
        <translation>%1: 値が空です</translation>
    </message>
    <message>
        <source>--%1: column "%2" is %3, not a number</source>
        <translation>--%1: 列「%2」は %3 で、数値ではありません</translation>
    </message>
    <message>
        <source>--as wkt: no column is SPATIAL; --cast COLUMN:spatial makes one</source>
        <translation>--as wkt: SPATIAL の列がありません。--cast COLUMN:spatial で作れます</translation>
    </message>
    <message>
        <source>--as: "%1" is none of values, literals and wkt</source>
        <translation>--as: 「%1」は values、literals、wkt のいずれでもありません</translation>
    </message>
    <message>
        <source>--cast: "%1" is not COLUMN:TYPE</source>
        <translation>--cast: 「%1」は COLUMN:TYPE ではありません</translation>
    </message>
    <message>
        <source>--cast: "%1" is not a type: %2</source>
        <translation>--cast: 「%1」は型ではありません: %2</translation>
    </message>
    <message>
        <source>--collation and --locale both name a collation: give one of them</source>
        <translation>--collation と --locale はどちらも照合順序を指定します。どちらか一方を指定してください</translation>
    </message>
    <message>
        <source>--find: no column is STRING</source>
        <translation>--find: STRING の列がありません</translation>
    </message>
    <message>
        <source>--fiscal-start moves years and quarters, not %1s</source>
        <translation>--fiscal-start が動かすのは年と四半期で、「%1」ではありません</translation>
    </message>
    <message>
        <source>--format: "%1" is not COLUMN=FORMAT</source>
        <translation>--format: 「%1」は COLUMN=FORMAT ではありません</translation>
    </message>
    <message>
        <source>--format: "%1" is not a number format, as "n#,##0.00" is</source>
        <translation>--format: 「%1」は「n#,##0.00」のような数値の書式ではありません</translation>
    </message>
    <message>
        <source>--format: a format has %1 bytes, more than %2</source>
        <translation>--format: 書式が %1 バイトあり、%2 を超えています</translation>
    </message>
    <message>
        <source>--group-by and --distinct both gather rows: give one of them</source>
        <translation>--group-by と --distinct はどちらも行をまとめます。どちらか一方を指定してください</translation>
    </message>
    <message>
        <source>--group-by: "%1" is not COLUMN:PERIOD</source>
        <translation>--group-by: 「%1」は 列:期間 の形ではありません</translation>
    </message>
    <message>
        <source>--group-by: "%1" is not a period: %2</source>
        <translation>--group-by: 「%1」は期間ではありません: %2</translation>
    </message>
    <message>
        <source>--group-by: column "%1" is %2, not DATE or DATETIME</source>
        <translation>--group-by: 列「%1」は %2 で、DATE でも DATETIME でもありません</translation>
    </message>
    <message>
        <source>--language: "%1" is not a known language, as de_DE is</source>
        <translation>--language: 「%1」は de_DE のような既知の言語ではありません</translation>
    </message>
    <message>
        <source>--list-locales: "%1" is not a regular expression</source>
        <translation>--list-locales: 「%1」は正規表現ではありません</translation>
    </message>
    <message>
        <source>--locale: "%1" is not a known locale, as sv_SE is</source>
        <translation>--locale: 「%1」は sv_SE のような既知のロケールではありません</translation>
    </message>
    <message>
        <source>--sql-nulls needs --where, --sort, --sum, --mean, --min or --max</source>
        <translation>--sql-nulls には --where、--sort、--sum、--mean、--min、--max のいずれかが必要です</translation>
    </message>
    <message>
        <source>--week-start moves weeks, not %1s</source>
        <translation>--week-start が動かすのは週で、「%1」ではありません</translation>
    </message>
    <message>
        <source>--where: "%1" is no number, date, true, false or null, nor a text in quotes</source>
        <translation>--where: 「%1」は数値、日付、true、false、null、引用符で囲んだ文字列のいずれでもありません</translation>
    </message>
    <message>
        <source>--where: "%1" is not COLUMN, one of = != &lt; &lt;= &gt; &gt;=, and a literal</source>
        <translation>--where: 「%1」は 列、= != &lt; &lt;= &gt; &gt;= のいずれか、リテラル の形ではありません</translation>
    </message>
    <message>
        <source>--where: column "%1" is %2 and does not compare with the %3 %4</source>
        <translation>--where: 列「%1」は %2 で、%3 %4 とは比較できません</translation>
    </message>
    <message>
        <source>1 cell where the header has %1</source>
        <translation>セルが 1 個ありますが、ヘッダーは %1 個です</translation>
    </message>
    <message>
        <source>1 column</source>
        <translation>1 列</translation>
    </message>
    <message>
        <source>1 period from %1 to %2</source>
        <translation>%1 から %2 まで 1 期間</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 行</translation>
    </message>
    <message>
        <source>1 value in %1</source>
        <translation>%1に 1 種類の値</translation>
    </message>
    <message>
        <source>Windows-specific</source>
        <translation>Windows 固有</translation>
    </message>
    <message>
        <source>a file name is empty</source>
        <translation>ファイル名が空です</translation>
    </message>
    <message>
        <source>a quote is never closed</source>
        <translation>引用符が閉じられていません</translation>
    </message>
    <message>
        <source>a record of more than 16 MiB</source>
        <translation>レコードが 16 MiB を超えています</translation>
    </message>
    <message>
        <source>a record of more than 16 MiB: is a quote not closed?</source>
        <translation>レコードが 16 MiB を超えています。引用符の閉じ忘れではありませんか</translation>
    </message>
    <message>
        <source>a sum of integers is beyond 64 bits</source>
        <translation>整数の合計が 64 ビットを超えています</translation>
    </message>
    <message>
        <source>a zero byte: this is not a text file</source>
        <translation>ゼロ バイトがあります。テキスト ファイルではありません</translation>
    </message>
    <message>
        <source>collation</source>
        <translation>照合順序</translation>
    </message>
    <message>
        <source>column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>count</source>
        <translation>件数</translation>
    </message>
    <message>
        <source>description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>errors</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>flags</source>
        <translation>フラグ</translation>
    </message>
    <message>
        <source>ignore accents</source>
        <translation>アクセントを無視</translation>
    </message>
    <message>
        <source>ignore case</source>
        <translation>大文字と小文字を無視</translation>
    </message>
    <message>
        <source>ignore symbols</source>
        <translation>記号を無視</translation>
    </message>
    <message>
        <source>iso-quarter</source>
        <translation>ISO 四半期</translation>
    </message>
    <message>
        <source>iso-week</source>
        <translation>ISO 週</translation>
    </message>
    <message>
        <source>iso-year</source>
        <translation>ISO 年</translation>
    </message>
    <message>
        <source>language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>lcid</source>
        <translation>LCID</translation>
    </message>
    <message>
        <source>line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>locale</source>
        <translation>ロケール</translation>
    </message>
    <message>
        <source>max(%1)</source>
        <translation>最大(%1)</translation>
    </message>
    <message>
        <source>mean(%1)</source>
        <translation>平均(%1)</translation>
    </message>
    <message>
        <source>min(%1)</source>
        <translation>最小(%1)</translation>
    </message>
    <message>
        <source>month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>more than one column is named "%1"</source>
        <translation>「%1」という名前の列が複数あります</translation>
    </message>
    <message>
        <source>more than one file: "%1" and "%2"</source>
        <translation>ファイルが複数あります: 「%1」と「%2」</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>no column is named "%1"</source>
        <translation>「%1」という名前の列はありません</translation>
    </message>
    <message>
        <source>no data source is named "%1"; that of the file is "%2"</source>
        <translation>「%1」という名前のデータソースはありません。このファイルのデータソースは「%2」です</translation>
    </message>
    <message>
        <source>no file is given; typedtable --help shows the usage</source>
        <translation>ファイルが指定されていません。使い方は typedtable --help で表示します</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>nulls</source>
        <translation>null 数</translation>
    </message>
    <message>
        <source>offending cell</source>
        <translation>問題のセル</translation>
    </message>
    <message>
        <source>quarter</source>
        <translation>四半期</translation>
    </message>
    <message>
        <source>region</source>
        <translation>地域</translation>
    </message>
    <message>
        <source>sample order, equal words on one line:</source>
        <translation>並び順の例（等しい語は同じ行）:</translation>
    </message>
    <message>
        <source>short date</source>
        <translation>短い日付</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>標準入力</translation>
    </message>
    <message>
        <source>standard output cannot be written</source>
        <translation>標準出力に書き込めません</translation>
    </message>
    <message>
        <source>sum(%1)</source>
        <translation>合計(%1)</translation>
    </message>
    <message>
        <source>temporary file</source>
        <translation>一時ファイル</translation>
    </message>
    <message>
        <source>text behind a closing quote</source>
        <translation>閉じた引用符の後に文字があります</translation>
    </message>
    <message>
        <source>text that is not UTF-8</source>
        <translation>UTF-8 ではない文字列です</translation>
    </message>
    <message>
        <source>the %1 of %2 begins before the year 400, where the calendar ends</source>
        <translation>%2 の %1 は、暦の終わりである 400 年より前に始まります</translation>
    </message>
    <message>
        <source>the file changed while it was read</source>
        <translation>読み取り中にファイルが変更されました</translation>
    </message>
    <message>
        <source>the file is empty: no header</source>
        <translation>ファイルが空です。ヘッダーがありません</translation>
    </message>
    <message>
        <source>type</source>
        <translation>型</translation>
    </message>
    <message>
        <source>unknown option "%1"; typedtable --help lists them</source>
        <translation>不明なオプション「%1」です。一覧は typedtable --help で表示します</translation>
    </message>
    <message>
        <source>word sort</source>
        <translation>単語順</translation>
    </message>
    <message>
        <source>year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>day, month, year</source>
        <translation>日、月、年</translation>
    </message>
    <message>
        <source>month, day, year</source>
        <translation>月、日、年</translation>
    </message>
    <message>
        <source>year, month, day</source>
        <translation>年、月、日</translation>
    </message>
    <message>
        <source>year, day, month</source>
        <translation>年、日、月</translation>
    </message>
    <message>
        <source>no order</source>
        <translation>順序なし</translation>
    </message>
    <message>
        <source>%1: "%2" is not a known locale, as de_DE is</source>
        <translation>%1：「%2」は de_DE のような既知のロケールではありません</translation>
    </message>
    <message>
        <source>--dates-as: "%1" is not a pattern of dates, as "d. MMMM yyyy" is</source>
        <translation>--dates-as：「%1」は「d. MMMM yyyy」のような日付のパターンではありません</translation>
    </message>
    <message>
        <source>%1 rows searched for dates</source>
        <translation>%1 行の日付を調べました</translation>
    </message>
    <message>
        <source>dates</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>pattern</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>cells</source>
        <translation>セル</translation>
    </message>
    <message>
        <source>disagree</source>
        <translation>不一致</translation>
    </message>
    <message>
        <source>day first</source>
        <translation>日が先</translation>
    </message>
    <message>
        <source>month first</source>
        <translation>月が先</translation>
    </message>
    <message>
        <source>(own styles)</source>
        <translation>（固有の書式）</translation>
    </message>
    <message>
        <source>--locale needs --sort, --distinct, --find, --where, --min, --max, --dates-as or --format</source>
        <translation>--locale には --sort、--distinct、--find、--where、--min、--max、--dates-as、--format のいずれかが必要です</translation>
    </message>
    <message>
        <source>%1: column "%2": %3 of %4 cells are not written as %5</source>
        <translation>%1：列「%2」：%4 個のセルのうち %3 個は %5 の形で書かれていません</translation>
    </message>
</context>
</TS>
