#pragma once

#include <concepts>
#include <ranges>
#include <string>
#include <string_view>
#include <type_traits>

// Writes compact JSON: no blanks, the members in the order in which they come.
class JsonWriter {
public:
    void BeginObject() { Begin('{'); }
    void EndObject() { End('}'); }
    void Key(std::string_view name);  // its value comes next

    // A truth value, a whole number or an enumerator, a text, or a range of any of them.
    template <typename T>
    void Value(const T& value) {
        if constexpr (std::same_as<T, bool>) {
            Literal(value ? "true" : "false");
        } else if constexpr (std::is_enum_v<T>) {
            Literal(std::to_string(static_cast<int>(value)));
        } else if constexpr (std::integral<T>) {
            Literal(std::to_string(value));
        } else if constexpr (std::convertible_to<const T&, std::string_view>) {
            Text(value);
        } else {
            Begin('[');
            for (const auto& element : value) Value(element);
            End(']');
        }
    }

    template <typename T>
    void Member(std::string_view name, const T& value) {
        Key(name);
        Value(value);
    }

    std::string Take() { return std::move(text_); }

private:
    void Begin(char bracket);
    void End(char bracket);
    void Literal(std::string_view literal);
    void Text(std::string_view text);
    void Separate();

    std::string text_;
    bool first_ = true;  // nothing stands before the next value that it must be parted from
};
