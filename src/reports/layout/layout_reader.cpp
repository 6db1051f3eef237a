#include "reports/layout/layout_reader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <pugixml.hpp>

#include "platform/file_system.h"
#include "platform/translation.h"
#include "reports/layout/layout_source.h"
#include "reports/layout/png_size.h"
#include "reports/layout/table_reader.h"

namespace kelvor {

namespace {

constexpr double kPointsPerDot = 72.0 / 96.0;

/// Walks the page and appends what it finds to the document.
class Reader {
  public:
    Reader(const LayoutSource& source, const LayoutData& data) : source_(source), data_(data) {}

    Document Read(pugi::xml_node tree) {
        const pugi::xml_node page = tree.child("html");
        const pugi::xml_node body = page.child("body");
        if (!body)
            throw source_.Error(tree,
                                Translated("there is no page: an element \"html\" with an element \"body\""));
        const LayoutScope scope{data_.tables, data_.texts};
        document_.title = source_.FilledText(page.child("head").child("title"), scope);
        ReadBlocks(body, scope);
        return std::move(document_);
    }

  private:
    using Routine = void (Reader::*)(pugi::xml_node, const LayoutScope&);
    struct Element {
        std::string_view name;
        Routine read;
    };
    static const std::array<Element, 12> kElements;

    void ReadBlocks(pugi::xml_node parent, const LayoutScope& outer) {
        const LayoutScope scope = InnerScope(source_, parent, outer);
        for (const pugi::xml_node child : parent.children()) {
            if (child.type() != pugi::node_element)
                throw source_.Error(child, Translated("a text stands outside of a paragraph"));
            const std::string_view name = child.name();
            const auto* const element = std::find_if(kElements.begin(), kElements.end(),
                                                     [name](const Element& e) { return e.name == name; });
            if (element == kElements.end()) {
                throw source_.Error(child,
                                    Filled(Translated("the element \"%1\" cannot stand here"), {name}));
            }
            (this->*element->read)(child, InnerScope(source_, child, scope));
        }
    }

    void ReadHeading(pugi::xml_node element, const LayoutScope& scope) {
        const int level = element.name()[1] - '0';
        document_.blocks.emplace_back(blocks::Heading{level, source_.FilledText(element, scope)});
    }

    void ReadParagraph(pugi::xml_node element, const LayoutScope& scope) {
        std::string text = source_.FilledText(element, scope);
        if (!text.empty()) document_.blocks.emplace_back(blocks::Paragraph{std::move(text)});
    }

    void ReadValueList(pugi::xml_node element, const LayoutScope& scope) {
        blocks::ValueList list;
        if (HasClass(element, "number")) list.alignment = Alignment::Right;
        for (pugi::xml_node label = element.first_child(); label;) {
            const pugi::xml_node value = label.next_sibling();
            if (!IsNamed(label, "dt") || !IsNamed(value, "dd")) {
                throw source_.Error(label,
                                    Translated("in a list \"dl\" each \"dt\" is followed by its \"dd\""));
            }
            const pugi::xml_node next = value.next_sibling();
            const bool hasUnit = IsNamed(next, "dd") && HasClass(next, "unit");
            list.rows.push_back({source_.FilledText(label, scope), source_.FilledText(value, scope),
                                 hasUnit ? source_.FilledText(next, scope) : ""});
            label = hasUnit ? next.next_sibling() : next;
        }
        document_.blocks.emplace_back(std::move(list));
    }

    void ReadTableBlock(pugi::xml_node element, const LayoutScope& scope) {
        document_.blocks.emplace_back(ReadTable(source_, element, scope));
    }

    void ReadHead(pugi::xml_node element, const LayoutScope& scope) {
        document_.head = ReadEdge(element, scope);
    }
    void ReadFoot(pugi::xml_node element, const LayoutScope& scope) {
        document_.foot = ReadEdge(element, scope);
    }

    [[nodiscard]] PageEdge ReadEdge(pugi::xml_node element, const LayoutScope& scope) const {
        std::vector<std::string> texts;
        for (const pugi::xml_node child : element.children()) {
            if (!IsNamed(child, "p") || texts.size() == 3) {
                throw source_.Error(child,
                                    Translated("the head and the foot of the pages have one to three \"p\""));
            }
            texts.push_back(source_.FilledText(child, scope));
        }
        texts.resize(std::max<std::size_t>(texts.size(), 1));
        if (texts.size() == 1) return {texts[0], "", ""};
        if (texts.size() == 2) return {texts[0], "", texts[1]};
        return {texts[0], texts[1], texts[2]};
    }

    void ReadPicture(pugi::xml_node element, const LayoutScope& scope) {
        const std::string name = source_.FilledAttribute(element, "src", scope);
        if (name.empty() || name.front() == '.' || name.find_first_of("/\\:") != std::string::npos) {
            throw source_.Error(
                element, Translated("a picture is named by a file beside the layout, without a folder"));
        }
        blocks::Picture picture;
        picture.png = PictureFile(element, name);
        const auto size = PngSize(picture.png);
        if (!size)
            throw source_.Error(element, Filled(Translated("the picture \"%1\" is no PNG file"), {name}));
        picture.words = source_.FilledAttribute(element, "alt", scope);
        const double wide = WidthOf(element, size->width);
        picture.widthPoints = wide * kPointsPerDot;
        picture.heightPoints = picture.widthPoints * size->height / size->width;
        document_.blocks.emplace_back(std::move(picture));
    }

    void ReadDrawing(pugi::xml_node element, const LayoutScope& scope) {
        const ReportDrawing& drawing = FindDrawing(element);
        const pugi::xml_node caption = element.first_child();
        if (!IsNamed(caption, "figcaption") || caption.next_sibling()) {
            throw source_.Error(element,
                                Translated("a \"figure\" holds one \"figcaption\" and nothing else"));
        }
        if (drawing.IsEmpty()) return;
        document_.blocks.emplace_back(blocks::Heading{2, source_.FilledText(caption, scope)});
        document_.blocks.emplace_back(drawing);
    }

    [[nodiscard]] const ReportDrawing& FindDrawing(pugi::xml_node element) const {
        const std::string_view name = element.attribute("data-drawing").value();
        if (data_.drawings != nullptr) {
            const auto found = data_.drawings->find(name);
            if (found != data_.drawings->end()) return found->second;
        }
        throw source_.Error(element, Filled(Translated("there is no drawing \"%1\""), {name}));
    }

    [[nodiscard]] std::string PictureFile(pugi::xml_node element, const std::string& name) const {
        try {
            return data_.pictures(name);
        } catch (const FileError& failure) {
            throw source_.Error(
                element, Filled(Translated("the picture \"%1\" cannot be read: %2"), {name, failure.what()}));
        }
    }

    [[nodiscard]] double WidthOf(pugi::xml_node element, double otherwise) const {
        const std::string_view text = element.attribute("width").value();
        if (text.empty()) return otherwise;
        unsigned int dots = 0;
        const auto result = std::from_chars(text.data(), text.data() + text.size(), dots);
        if (result.ec != std::errc{} || result.ptr != text.data() + text.size() || dots == 0) {
            throw source_.Error(element, Translated("the width of a picture is a whole number above 0"));
        }
        return dots;
    }

    const LayoutSource& source_;
    const LayoutData& data_;
    Document document_;
};

const std::array<Reader::Element, 12> Reader::kElements = {{{"h1", &Reader::ReadHeading},
                                                            {"h2", &Reader::ReadHeading},
                                                            {"h3", &Reader::ReadHeading},
                                                            {"p", &Reader::ReadParagraph},
                                                            {"dl", &Reader::ReadValueList},
                                                            {"table", &Reader::ReadTableBlock},
                                                            {"img", &Reader::ReadPicture},
                                                            {"figure", &Reader::ReadDrawing},
                                                            {"div", &Reader::ReadBlocks},
                                                            {"section", &Reader::ReadBlocks},
                                                            {"header", &Reader::ReadHead},
                                                            {"footer", &Reader::ReadFoot}}};

}  // namespace

Document FillLayout(std::string_view layout, const std::string& fileName, const LayoutData& data) {
    const LayoutSource source(layout, fileName);
    const pugi::xml_document tree = source.Parse();
    return Reader(source, data).Read(tree);
}

}  // namespace kelvor
