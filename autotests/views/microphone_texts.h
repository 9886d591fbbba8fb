// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTranslator>

#include <array>
#include <string_view>

/// What the microphone dialog says in the product's nine languages, to see whether it has the room.
namespace microphone_texts {

inline constexpr std::array<const char *, 8> keys = {"MICROPHONE_INTERACTIVE_TEST",
                                                     "SELECT_A_MICROPHONE_DEVICE",
                                                     "PRESS_RECORD_AND_SPEAK_ON_THE_MICROPHONE",
                                                     "PRESS_PLAY_AND_LISTEN_TO_THE_RECORDED_AUDIO",
                                                     "RECORD",
                                                     "PLAY",
                                                     "CANCEL",
                                                     "NEXT"};

struct Language {
    const char *code;
    std::array<const char *, keys.size()> texts; ///< of the keys, in their order
};

inline constexpr std::array<Language, 9> languages = {{
    {"de_DE",
     {"Interaktiver Mikrofontest", "Wählen Sie ein Mikrofon aus", "Drücken Sie „Aufnehmen“ und sprechen Sie in das Mikrofon.",
      "Drücken Sie „Wiedergeben“ und hören Sie sich die Aufnahme an.", "Aufnehmen", "Wiedergeben", "Abbrechen", "Weiter"}},
    {"en_US",
     {"Microphone Interactive Test", "Select a microphone", "Press “Record” and speak into the microphone.",
      "Press “Play” and listen to the recording.", "Record", "Play", "Cancel", "Next"}},
    {"es_ES",
     {"Prueba del micrófono", "Seleccione un micrófono", "Pulse «Grabar» y hable por el micrófono.",
      "Pulse «Reproducir» y escuche la grabación.", "Grabar", "Reproducir", "Cancelar", "Siguiente"}},
    {"fr_FR",
     {"Test interactif du microphone", "Sélectionnez un microphone",
      "Appuyez sur « Enregistrer » et parlez dans le microphone.", "Appuyez sur « Lire » et écoutez l’enregistrement.",
      "Enregistrer", "Lire", "Annuler", "Suivant"}},
    {"it_IT",
     {"Test interattivo del microfono", "Selezionare un microfono", "Premere «Registra» e parlare nel microfono.",
      "Premere «Riproduci» e ascoltare la registrazione.", "Registra", "Riproduci", "Annulla", "Avanti"}},
    {"ja_JP",
     {"マイクの対話式テスト", "マイクを選択してください", "「録音」を押して、マイクに向かって話してください。",
      "「再生」を押して、録音した音を聞いてください。", "録音", "再生", "キャンセル", "次へ"}},
    {"nl_NL",
     {"Interactieve microfoontest", "Selecteer een microfoon", "Druk op ‘Opnemen’ en spreek in de microfoon.",
      "Druk op ‘Afspelen’ en luister naar de opname.", "Opnemen", "Afspelen", "Annuleren", "Volgende"}},
    {"pt_BR",
     {"Teste interativo do microfone", "Selecione um microfone", "Pressione “Gravar” e fale ao microfone.",
      "Pressione “Reproduzir” e ouça a gravação.", "Gravar", "Reproduzir", "Cancelar", "Avançar"}},
    {"zh_CN",
     {"麦克风交互测试", "请选择麦克风", "请按“录音”，然后对着麦克风说话。", "请按“播放”，然后听录制的声音。", "录音", "播放",
      "取消", "下一步"}},
}};

/// Translates the keys into one of them.
class Translator final : public QTranslator {
public:
    explicit Translator(const Language &language) : language_(language) {}
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        for (std::size_t index = 0; index < keys.size(); ++index) {
            if (std::string_view(keys[index]) == text)
                return QString::fromUtf8(language_.texts[index]);
        }
        return {};
    }

private:
    const Language &language_;
};

} // namespace microphone_texts
