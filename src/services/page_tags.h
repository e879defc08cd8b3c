#pragma once

#include <optional>
#include <string_view>

/// Where in a page its tags say what it is, before anything of that is decoded.
///
/// Pages are UTF-8 and are searched as text: tags inside of comments and scripts count as any
/// other. All results are parts of the page. Any thread, and time linear in the page; see
/// bench/pages.cpp for what strangers can make of it.
namespace corvane::page_tags {

/// Of each, what stands under the first of its keys that anything stands under. For a key the first
/// tag counts that has a content which is not empty.
struct MetaContents {
    /// og:title, twitter:title
    std::optional<std::string_view> title;
    /// og:site_name
    std::optional<std::string_view> siteName;
    /// og:description, twitter:description, description
    std::optional<std::string_view> summary;
    /// og:image, og:image:url, twitter:image
    std::optional<std::string_view> image;
};

MetaContents metaContents(std::string_view html);

/// What stands in the first title element, even if it is nothing.
std::optional<std::string_view> titleElement(std::string_view html);

} // namespace corvane::page_tags
