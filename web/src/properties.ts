// The properties of the field: their numbers in the module (src/hosts/web/properties.h), and the attributes and
// properties that stand for them on the element.

export const Property = {
  mask: 0,
  maskText: 1,
  maxLength: 2,
  comboItens: 3,
  enabled: 4,
  text: 5,
  usarFundoPastel: 6,
  preencherDatasInvalidasComDataDeHoje: 7,
  appearance: 8,
  trataEnterComoTab: 9,
  comboListIndex: 10,
  comboListCount: 11,
  cnpjAlfanumerico: 12,
} as const;

export type PropertyName = keyof typeof Property;

// The words of a list: a JSON array, or one word a line.
export function wordsOf(text: string): string[] {
  try {
    const parsed: unknown = JSON.parse(text);
    if (Array.isArray(parsed)) return parsed.map(String);
  } catch {
    // Not JSON: lines.
  }
  return text.split('\n').map((line) => line.trim()).filter((line) => line !== '');
}
