# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Texts that windows, logs and bars must carry unharmed."""

import datetime

SCRIPTS = {
    "Arabic": "حزمة للاختبار، من اليمين إلى اليسار",
    "Armenian": "Փորձարկման փաթեթ",
    "Bengali": "পরীক্ষার প্যাকেজ",
    "Chinese": "用于测试的软件包，简体与繁體",
    "Cyrillic": "Пакет для проверки, ещё и с ё",
    "Devanagari": "परीक्षण के लिए पैकेज",
    "Ethiopic": "የሙከራ ጥቅል",
    "Georgian": "სატესტო პაკეტი",
    "Greek": "Πακέτο για δοκιμές",
    "Hebrew": "חבילה לבדיקה עם English באמצע",
    "Japanese": "試験用パッケージ、カタカナとひらがな",
    "Khmer": "កញ្ចប់សាកល្បង",
    "Korean": "시험용 꾸러미",
    "Latin": "Příliš žluťoučký kůň úpěl ďábelské ódy; ŁÓDŹ, straße, İstanbul, ﬁ",
    "Mongolian": "ᠮᠣᠩᠭᠣᠯ",
    "Tamil": "சோதனைத் தொகுப்பு",
    "Thai": "แพ็กเกจสำหรับทดสอบ",
    "Tibetan": "ཚོད་ལྟའི་ཐུམ་བུ",
    "Vietnamese": "Gói để kiểm thử, dấu kép: ế ộ ữ",
    "symbols": "🧪 👩‍🔬 🇳🇱 ∑∞≠ →← ½ ℃ a\u0301 \u200bzero width\u200d end",
}

MARKUP = "<b>bold</b> &amp; <a href=\"x\">link</a> & 'quoted' \"twice\" %1 %s %n \\n ${x} `y` <!-- c -->"

LONG_WORD = "Unbroken" * 400
LONG_LINE = "A sentence that goes on and on, with blanks to break at. " * 120


def all_scripts():
    """One line per script."""
    return "\n".join(f"{name}: {text}" for name, text in SCRIPTS.items())


def long_changelog(entries):
    """A changelog of that many entries, newest first, authors in turn in many scripts."""
    texts = list(SCRIPTS.values())
    start = datetime.date(2024, 6, 3)
    return tuple(
        (start - datetime.timedelta(days=number * 3),
         f"{texts[number % len(texts)].split(',')[0]} <dev{number % 7}@aster.example>",
         f"1.{entries - number}-1",
         [f"Change {entries - number}: {texts[number % len(texts)]}"] +
         ([LONG_LINE] if number % 50 == 0 else []) + ([MARKUP] if number % 40 == 0 else []))
        for number in range(entries))
