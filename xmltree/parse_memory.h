// The memory of one parse.
#ifndef XTTML_XMLTREE_PARSE_MEMORY_H
#define XTTML_XMLTREE_PARSE_MEMORY_H

#include <xercesc/framework/MemoryManager.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>

/// Gives a parser its small pieces of memory from a block of the process, which is free again as a whole.
/// There are some three hundred, whatever the document: to ask for each and to return it takes a quarter of
/// the load of a short one. What is large or finds no room, and what is parsed while another parser has the
/// block, is the XML library's. It has to outlast the parser and what that throws.
class ParseMemory : public xercesc::MemoryManager {
public:
    /// The XML library has to be initialised.
    ParseMemory();
    ~ParseMemory() override;
    ParseMemory(const ParseMemory&) = delete;
    ParseMemory& operator=(const ParseMemory&) = delete;

    xercesc::MemoryManager* getExceptionMemoryManager() override;
    /// Throws xercesc::OutOfMemoryException.
    /// @param size in bytes
    void* allocate(XMLSize_t size) override;
    /// @param piece null for none
    void deallocate(void* piece) override;

private:
    xercesc::MemoryManager& library_;
    const bool hasBlock_;
    unsigned char* free_;
};

/// A parser of one document, in such memory. The document, which outlasts it, is in the XML library's.
class ShortLivedParser : public xercesc::XercesDOMParser {
public:
    explicit ShortLivedParser(ParseMemory& memory);

    void startDocument() override;
};

#endif
