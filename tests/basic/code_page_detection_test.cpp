#include "Basic/detection/code_page_detection.h"
#include <gtest/gtest.h>

using basic::CodePage;
using basic::codePageOfFile;
using basic::CodePageReason;

namespace {

const auto kWestern = CodePage::windows1252();

const std::string kJapanese = R"(Private Sub 計算ボタン_Click()
    ' 入力された値を確認してから計算する
    If 単価.Text = "" Then MsgBox "単価を入力してください": Exit Sub
    合計.Caption = "合計金額は" & 数量 * 単価 & "円です"
End Sub
)";
const std::string kChinese = R"(Private Sub 保存按钮_Click()
    ' 检查用户输入的数据是否正确，然后写入文件
    If 姓名.Text = "" Then MsgBox "请输入姓名！": Exit Sub
    状态.Caption = "数据已经保存到文件中"
End Sub
)";
const std::string kTaiwanese = R"(Private Sub 儲存按鈕_Click()
    ' 檢查使用者輸入的資料是否正確，然後寫入檔案
    If 姓名.Text = "" Then MsgBox "請輸入姓名！": Exit Sub
    狀態.Caption = "資料已經儲存到檔案中"
End Sub
)";
const std::string kKorean = R"(Private Sub 저장단추_Click()
    ' 사용자가 입력한 자료가 올바른지 확인하고 파일에 저장한다
    If 이름.Text = "" Then MsgBox "이름을 입력하세요": Exit Sub
    상태.Caption = "자료를 파일에 저장했습니다"
End Sub
)";

basic::DetectedCodePage detected(const std::vector<std::string>& files) {
    basic::CodePageEvidence evidence;
    for (const auto& file : files) evidence.addFile(file);
    return evidence.detect();
}

/// Detects the page of a file with this text, which is written in `page`.
int pageOf(const std::string& text, int page) { return detected({CodePage(page).encode(text)}).page.number(); }

std::string formWith(const std::string& fonts, const std::string& caption = "") {
    return "VERSION 5.00\r\nBegin VB.Form Form1\r\n   Caption = \"" + caption + "\"\r\n" + fonts +
           "End\r\nAttribute VB_Name = \"Form1\"\r\n";
}

std::string fontWith(int charset) {
    return "   BeginProperty Font\r\n      Name = \"Arial\"\r\n      Charset         =   " + std::to_string(charset) +
           "\r\n   EndProperty\r\n";
}

} // namespace

TEST(CodePageOfFile, IsUtf8ForUtf8InAnyProject) {
    EXPECT_EQ(codePageOfFile("plain", kWestern).number(), 1252);
    EXPECT_EQ(codePageOfFile("Gr\xF6\xDF"
                             "e",
                             kWestern)
                  .number(),
              1252);
    EXPECT_EQ(codePageOfFile("Größe", kWestern).number(), 65001);
    EXPECT_EQ(codePageOfFile("impresi\xEF\xBF\xBDn", kWestern).number(), 65001);
    EXPECT_EQ(codePageOfFile("Größe \xF6", kWestern).number(), 1252);
    EXPECT_EQ(codePageOfFile("\xEF\xBB\xBFx", kWestern).number(), 65001);
    EXPECT_EQ(codePageOfFile("\xEF\xBB\xBFx\xF6", kWestern).number(), 65001); // whatever follows the mark
}

TEST(CodePageOfFile, TwoByteSequencesDoNotOverrideADoubleBytePage) {
    EXPECT_EQ(codePageOfFile("\xC3\xA9", CodePage(936)).number(), 936);
    EXPECT_EQ(codePageOfFile("表", CodePage(932)).number(), 65001);
}

TEST(CodePageDetection, TextReveals) {
    EXPECT_EQ(pageOf(kJapanese, 932), 932);
    EXPECT_EQ(pageOf(kChinese, 936), 936);
    EXPECT_EQ(pageOf(kKorean, 949), 949);
    EXPECT_EQ(pageOf(kTaiwanese, 950), 950);
    EXPECT_EQ(pageOf(kChinese, 65001), 65001);
    const auto both = detected({CodePage(950).encode(kTaiwanese), "Dim a\r\n", kTaiwanese});
    EXPECT_EQ(both.page.number(), 950) << "a single UTF-8 file does not make a project UTF-8";
    EXPECT_EQ(both.reason, CodePageReason::Text);
    EXPECT_TRUE(both.matters);
}

TEST(CodePageDetection, CommentsAloneRevealADoubleBytePage) {
    EXPECT_EQ(pageOf("' ファイルを開いて一行ずつ読み込む\r\n", 932), 932);
    EXPECT_EQ(pageOf("' 打开文件并且读取所有的数据\r\n", 936), 936);
    EXPECT_EQ(pageOf("' 파일을 열고 모든 자료를 읽어서 화면에 표시한다\r\n", 949), 949);
    EXPECT_EQ(pageOf("' 開啟檔案並且讀取所有的資料\r\n", 950), 950);
}

TEST(CodePageDetection, AFewCharactersAreEnoughOnlyInNames) {
    EXPECT_EQ(pageOf("Private Sub 計算_Click()\r\n", 950), 950);
    EXPECT_EQ(pageOf("MsgBox \"計算\"\r\n", 950), 1252);
    EXPECT_EQ(pageOf("' 確認\r\n", 932), 1252);
    EXPECT_EQ(pageOf("' 計算\r\n", 950), 1252);
    EXPECT_EQ(pageOf("a = \"it's\": 計算 = 1\r\n", 950), 950);
}

TEST(CodePageDetection, WesternTextStaysWestern) {
    for (const auto* text :
         {"' Créée à l'été : vérifie l'accès aux données\r\nMsgBox \"Où êtes-vous ? « Ça va »\"\r\n",
          "' Prüft, ob die Größe überschritten ist (äußere Maße)\r\nDim Größe, Übergröße, Füße\r\n",
          "' Função de validação: não há informações\r\nMsgBox \"ATENÇÃO: OPERAÇÕES NÃO CONCLUÍDAS\"\r\n",
          "' Añade el número de teléfono ¿Está seguro? ¡Sí!\r\n",
          "' © 2001, ±5 °C, 25°C, 3 µm², § 7, £5, don’t, “word”, it’s\r\n",
          "' don’t can’t won’t it’s they’re we’ve you’ll isn’t aren’t couldn’t\r\n",
          "s = \"ÀÁÂÃÄÅÇÈÉÊËÌÍÎÏÑÒÓÔÕÖÙÚÛÜÝ\": t = \"àáâãäåçèéêëìíîïñòóôõöùúûüýÿ\"\r\n",
          "Änderung: ÄNDERUNG, ÜBERPRÜFUNG, ÖFFNEN, SCHLIEßEN\r\n",
          "' Læs først på øen, så går vi båd og sø: blåbærgrød ærø\r\n"})
        EXPECT_EQ(pageOf(text, 1252), 1252) << text;
}

TEST(CodePageDetection, OtherSingleBytePagesAreNotGuessed) {
    EXPECT_EQ(pageOf("' Zażółć gęślą jaźń: sprawdź połączenie z bazą danych\r\n", 1250), 1252);
    EXPECT_EQ(pageOf("' Příliš žluťoučký kůň úpěl ďábelské ódy\r\n", 1250), 1252);
    EXPECT_EQ(pageOf("' Проверяет, что файл существует, и читает данные\r\nMsgBox \"ОШИБКА ЧТЕНИЯ\"\r\n", 1251), 1252);
    EXPECT_EQ(pageOf("' ПРОГРАММА ДЛЯ РАБОТЫ С БАЗОЙ ДАННЫХ\r\n", 1251), 1252);
    EXPECT_EQ(pageOf("' Ελέγχει αν υπάρχει το αρχείο και διαβάζει τα δεδομένα\r\n", 1253), 1252);
    EXPECT_EQ(pageOf("' בודק אם הקובץ קיים וקורא את הנתונים\r\n", 1255), 1252);
    EXPECT_EQ(pageOf("' يتحقق من وجود الملف ويقرأ البيانات\r\n", 1256), 1252);
    EXPECT_EQ(pageOf("' ตรวจสอบว่ามีไฟล์อยู่หรือไม่\r\n", 874), 1252);
}

TEST(CodePageDetection, TheCharsetOfFormsDecidesBeforeText) {
    const auto russian = detected({formWith(fontWith(0) + fontWith(204), CodePage(1251).encode("Привет"))});
    EXPECT_EQ(russian.page.number(), 1251);
    EXPECT_EQ(russian.reason, CodePageReason::Charset);
    EXPECT_EQ(detected({formWith(fontWith(238)), CodePage(1250).encode("' żółć\r\n")}).page.number(), 1250);
    EXPECT_EQ(detected({formWith(fontWith(128), CodePage(932).encode("開く"))}).page.number(), 932);
    EXPECT_EQ(detected({formWith(fontWith(134))}).page.number(), 936);
    EXPECT_FALSE(detected({formWith(fontWith(134))}).matters) << "all files are ASCII";
    EXPECT_EQ(detected({formWith(fontWith(161) + fontWith(204) + fontWith(204))}).page.number(), 1251)
        << "the majority";
    EXPECT_EQ(detected({formWith(fontWith(0) + fontWith(2) + fontWith(255))}).page.number(), 1252);
    EXPECT_EQ(detected({formWith("") + "Charset = 134\r\n"}).page.number(), 1252) << "only in the form's head";
    EXPECT_EQ(detected({fontWith(134)}).page.number(), 1252) << "only in forms";
}

TEST(CodePageDetection, ACharsetInWhichTheTextDoesNotDecodeIsIgnored) {
    const auto german =
        CodePage(1252).encode("' Prüft, ob die Höhe größer ist, und lädt sie. Für später: è à é ü.\r\n");
    EXPECT_EQ(detected({formWith(fontWith(134)), german}).page.number(), 1252);
}

TEST(CodePageDetection, AStrayCharsetAmongWesternFontsIsIgnored) {
    std::string fonts = fontWith(178);
    for (int i = 0; i < 20; ++i) fonts += fontWith(0);
    EXPECT_EQ(detected({formWith(fonts)}).page.number(), 1252);
    EXPECT_EQ(detected({formWith(fonts + fontWith(178))}).page.number(), 1256);
    const auto spanish = kWestern.encode("' Añade el número de teléfono ¿Está seguro? Acción válida\r\n");
    EXPECT_EQ(detected({formWith(fontWith(204)), spanish}).page.number(), 1252);
}

TEST(CodePageDetection, UnicodeFilesWithAnyCharsetStayUnicode) {
    EXPECT_EQ(detected({formWith(fontWith(134), "保存文件")}).page.number(), 65001);
    EXPECT_EQ(detected({formWith(fontWith(0), "Größe")}).page.number(), 65001);
}

TEST(CodePageDetection, TheKeyDecidesFirst) {
    basic::CodePageEvidence evidence;
    evidence.addFile(formWith(fontWith(204), CodePage(1251).encode("Привет")));
    evidence.key(12345);
    EXPECT_EQ(evidence.detect().page.number(), 1251) << "unknown pages are ignored";
    evidence.key(1253);
    EXPECT_EQ(evidence.detect().page.number(), 1253);
    EXPECT_EQ(evidence.detect().reason, CodePageReason::Key);
}

TEST(CodePageDetection, NamesOnDiskDecideBeforeText) {
    basic::CodePageEvidence evidence;
    evidence.addFile(CodePage(936).encode(kChinese));
    evidence.addNameOnDisk(949);
    EXPECT_EQ(evidence.detect().page.number(), 949);
    EXPECT_EQ(evidence.detect().reason, CodePageReason::FileNames);
}

TEST(CodePageDetection, AnyBytesAreTaken) {
    std::string bytes;
    for (unsigned i = 0, x = 12345; i < 100'000; ++i, x = x * 1664525 + 1013904223) bytes += static_cast<char>(x >> 24);
    EXPECT_EQ(detected({bytes}).page.number(), 1252);
    EXPECT_EQ(
        detected({"", "\xFF", "VERSION", "VERSION 5.00\nCharset=", "VERSION\nCharset=99999999999999"}).page.number(),
        1252);
}
