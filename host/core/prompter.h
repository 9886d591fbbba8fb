// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <cstdint>

namespace ostra {
class AbstractWidgetWrapper;
} // namespace ostra

namespace host {

/// What the user can be asked during a run. Every function is called on the GUI thread, one at a time, and returns when the
/// user has answered or `dismissAll` was called.
class Prompter {
public:
    virtual ~Prompter() = default;
    /// Runs a dialog of the module's own.
    virtual void runWidget(ostra::AbstractWidgetWrapper &widget) = 0;
    /// The Yes/No question. `prompt_answer::yes`, `prompt_answer::no`, or 0 when it was dismissed. Both texts are keys.
    virtual std::uint32_t ask(const QString &title, const QString &text) = 0;
    /// Any other prompt: whether the user accepts. Dismissing it declines. Both texts are keys.
    virtual bool accept(const QString &title, const QString &text) = 0;
    /// Whether somebody is there to answer. Called on the thread of the test.
    virtual bool canAsk() const = 0;
    /// Closes an open question or prompt without an answer. The module's own dialogs watch for a stop themselves.
    virtual void dismissAll() = 0;

protected:
    Prompter() = default;
    Prompter(const Prompter &) = delete;
    Prompter &operator=(const Prompter &) = delete;
};

/// Values of `ostra::InputRequest::answer` as this host writes them.
namespace prompt_answer {
inline constexpr std::uint32_t declined = 0; ///< of a prompt; for a question: no answer
inline constexpr std::uint32_t accepted = 1; ///< of a prompt
inline constexpr std::uint32_t yes = 3;      ///< of a question
inline constexpr std::uint32_t no = 4;       ///< of a question
} // namespace prompt_answer

} // namespace host
