// The pictures and texts reach the programs as resource objects beside this library; a library needs one translation
// unit of its own.
namespace zeltrona::assets {}
