#pragma once

#include <string>

namespace quorvane {

/// The text of a document without a stylesheet: the groups that are always the same, the page and
/// the rows.
inline std::string documentText(const std::string& page, const std::string& rows) {
    static const char* const fixedLines[] = {
        R"({\rtf1\ansicpg1252\uc0\deff0)",
        R"({\fonttbl)",
        R"({\f0\fswiss\fcharset0\fprq2 Arial;})",
        R"({\f1\froman\fcharset0\fprq2 Book Antiqua;})",
        R"({\f2\froman\fcharset0\fprq2 Bookman Old Style;})",
        R"({\f3\fmodern\fcharset0\fprq1 Courier New;})",
        R"({\f4\froman\fcharset0\fprq2 Garamond;})",
        R"({\f5\froman\fcharset0\fprq2 Georgia;})",
        R"({\f6\fswiss\fcharset0\fprq2 Lucida Sans;})",
        R"({\f7\froman\fcharset2\fprq2 Symbol;})",
        R"({\f8\fswiss\fcharset0\fprq2 Tahoma;})",
        R"({\f9\froman\fcharset0\fprq2 Times New Roman;})",
        R"({\f10\fswiss\fcharset0\fprq2 Trebuchet MS;})",
        R"({\f11\fswiss\fcharset0\fprq2 Verdana;})",
        R"({\f12\froman\fcharset2\fprq2 Webdings;})",
        R"({\f13\fdecor\fcharset2\fprq2 Wingdings;})",
        R"({\f14\fswiss\fcharset0\fprq2 Arial Black;})",
        R"({\f15\fswiss\fcharset0\fprq2 Impact;})",
        R"({\f16\fscript\fcharset0\fprq2 Comic Sans MS;})",
        R"({\f17\fswiss\fcharset0\fprq2 Century Gothic;}})",
        R"({\colortbl;)",
        R"(\red127\green255\blue212;)",
        R"(\red255\green228\blue196;)",
        R"(\red0\green0\blue0;)",
        R"(\red0\green0\blue255;)",
        R"(\red128\green64\blue47;)",
        R"(\red127\green255\blue0;)",
        R"(\red0\green255\blue255;)",
        R"(\red0\green128\blue128;)",
        R"(\red90\green90\blue90;)",
        R"(\red0\green128\blue0;)",
        R"(\red128\green0\blue128;)",
        R"(\red128\green0\blue0;)",
        R"(\red72\green61\blue139;)",
        R"(\red128\green128\blue0;)",
        R"(\red0\green154\blue205;)",
        R"(\red255\green215\blue0;)",
        R"(\red128\green128\blue128;)",
        R"(\red0\green255\blue0;)",
        R"(\red173\green216\blue230;)",
        R"(\red144\green238\blue144;)",
        R"(\red255\green255\blue224;)",
        R"(\red150\green205\blue0;)",
        R"(\red255\green0\blue255;)",
        R"(\red0\green0\blue128;)",
        R"(\red85\green107\blue47;)",
        R"(\red255\green165\blue0;)",
        R"(\red255\green218\blue185;)",
        R"(\red255\green157\blue180;)",
        R"(\red160\green32\blue240;)",
        R"(\red255\green0\blue0;)",
        R"(\red46\green139\blue87;)",
        R"(\red214\green214\blue214;)",
        R"(\red106\green90\blue205;)",
        R"(\red135\green206\blue235;)",
        R"(\red64\green224\blue208;)",
        R"(\red255\green255\blue255;)",
        R"(\red255\green255\blue0;)",
        R"(\red102\green0\blue0;)",
        R"(\red153\green102\blue0;)",
        R"(\red153\green153\blue0;)",
        R"(\red102\green51\blue0;)",
        R"(\red158\green158\blue158;)",
        R"(\red102\green102\blue153;)",
        R"(\red51\green0\blue153;)",
        R"(\red51\green102\blue255;)",
        R"(\red153\green0\blue255;)",
        R"(\red0\green102\blue255;)",
        R"(\red0\green102\blue102;)",
        R"(\red51\green51\blue204;)",
        R"(\red51\green153\blue153;)",
        R"(\red102\green51\blue102;)",
        R"(\red51\green102\blue153;)",
        R"(\red61\green61\blue69;)",
        R"(\red205\green149\blue12;)",
        R"(\red0\green102\blue51;)",
        R"(\red0\green153\blue51;)",
        R"(\red153\green0\blue0;})",
    };
    std::string text;
    for (const char* line : fixedLines) {
        text += line;
        text += "\r\n";
    }
    return text + R"(\deftab360\defformat)" + page + "\\widowctrl\r\n" + rows + "}";
}

/// The page of a document for which nothing else was set.
inline const char* const defaultPage =
    R"(\margb1418\margl1701\margt1418\margr1701\paperw12242\paperh15842\pgnstart2)";

}  // namespace quorvane
